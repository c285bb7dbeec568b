#include "session/ProgramTabTools.h"

#include "session/EditingSession.h"

#include "platform/FileHelpers.h"
#include "platform/FileNames.h"
#include "platform/StringHelpers.h"
#include "platform/TextFiles.h"
#include "session/DefaultTexts.h"

#include <QDir>
#include <QFileInfo>

namespace brevaro {

namespace {

// Sizes shown with half away from zero rounding and a "." whatever the locale.
QString kilobytes(qint64 bytes) {
    return QString::number((2 * bytes + 1024) / 2048);
}

QString megabytes(qint64 bytes) {
    const qint64 hundredths = (200 * bytes + 1048576) / 2097152;
    return QStringLiteral("%1.%2")
        .arg(hundredths / 100)
        .arg(hundredths % 100, 2, 10, QLatin1Char('0'));
}

} // namespace

ProgramTabTools::ProgramTabTools(EditingSession& session)
    : m_s(session) {}

void ProgramTabTools::openFileInfo() {
    const QString folder =
        QDir(m_s.store().home().padFolder())
            .filePath(safeFolderName(m_s.company().text(CompanyField::CompanyName)));
    ensureFolder(folder);
    const auto chosen = m_s.prompts().openFile(
        {QString(), QStringLiteral("exe"), folder,
         QStringLiteral("Program File(s) (*.exe)|*.exe| Program File(s) (*.zip)|*.zip| All "
                        "File(s) (*.*)|*.*|")});
    if (!chosen || chosen->isEmpty())
        return;
    const qint64 length = std::max<qint64>(0, fileSize(*chosen));
    const QString title = QFileInfo(*chosen).fileName();
    const QString base = GetFileBaseName(title, QStringLiteral("\\"));
    const QString extension = GetFileExtension(title);
    const QString name6 = base.left(6);
    const QString ver2 = removeAll(m_s.text(u"txtProgramVersion"), u".").left(2);
    m_s.setText(u"txtVersionedFilename", name6 + ver2 + u'.' + extension);
    m_s.setText(u"txtPreviousFilename", name6 + ver2 + u'.' + extension);
    m_s.setText(u"txtGenericFilename", name6 + u'.' + extension);
    m_s.setText(u"txtLongFilename", title);
    m_s.setText(u"txtSizeByte", QString::number(length));
    m_s.setText(u"txtSizeKB", kilobytes(length));
    m_s.setText(u"txtSizeMB", megabytes(length));
}

void ProgramTabTools::expiryCheckClicked() {
    const int after = m_s.id(u"txtExpireAfter");
    auto toggle = [&](int control) {
        m_s.screen().setEnabled(control, !m_s.screen().at(control).enabled);
    };
    toggle(after);
    for (int i = 0; i < 4; ++i)
        toggle(m_s.id(u"optExpire", i));
    auto enableDates = [&](bool on) {
        for (auto name : {u"cboExpireMonth", u"cboExpireDay", u"cboExpireYear"})
            m_s.screen().setEnabled(m_s.id(name), on);
    };
    if (m_s.screen().value(u"chkHasExpiredInfo") == 0) {
        m_s.screen().setEnabled(after, false);
        enableDates(false);
        m_s.screen().setEnabled(m_s.id(u"txtExpireInfo"), false);
        return;
    }
    if (m_s.screen().value(u"optExpire", 0) || m_s.screen().value(u"optExpire", 1) ||
        m_s.screen().value(u"optExpire", 2)) {
        m_s.screen().setEnabled(after, true);
        enableDates(false);
        m_s.screen().setEnabled(m_s.id(u"txtExpireInfo"), true);
    }
    if (m_s.screen().value(u"optExpire", 3)) {
        m_s.screen().setEnabled(after, false);
        enableDates(true);
        m_s.screen().setEnabled(m_s.id(u"txtExpireInfo"), true);
    }
}

void ProgramTabTools::expiryOptionClicked(int i) {
    const bool byDate = i == 3;
    m_s.screen().setEnabled(m_s.id(u"txtExpireAfter"), !byDate);
    for (auto name : {u"cboExpireMonth", u"cboExpireDay", u"cboExpireYear"})
        m_s.screen().setEnabled(m_s.id(name), byDate);
}

QString ProgramTabTools::defaultText(int which) const {
    CompanyRecord company = m_s.company();
    ProgramRecord program = m_s.program();
    const QString p = program.trimText(ProgramField::ProgramName).toUpper();
    if (which == 0)
        return defaultDistributionText(p, program.trimText(ProgramField::ProgramType).toUpper());
    return defaultLicenceText(p, company.trimText(CompanyField::CompanyName).toUpper());
}

void ProgramTabTools::insertDefaultText(int which, const QString& box) {
    if (!m_s.text(box).isEmpty() &&
        !m_s.prompts().askYesNo(
            QStringLiteral("Set Default Text"),
            QStringLiteral("Your current text will be lost!\nDo you want to continue?"),
            Prompts::Icon::Stop))
        return;
    m_s.company().trimText(CompanyField::CompanyName);
    m_s.program().trimText(ProgramField::ProgramName);
    m_s.program().trimText(ProgramField::ProgramType);
    m_s.setText(box, defaultText(which));
}

void ProgramTabTools::loadText(const QString& box) {
    const QString loaded = ReadTextFileDialog(m_s.prompts(), m_s.store().home().root());
    if (!loaded.isEmpty())
        m_s.setText(box, loaded);
}

void ProgramTabTools::saveText(const QString& box) {
    WriteTextFileDialog(m_s.prompts(), m_s.store().home().root(), m_s.text(box));
}

} // namespace brevaro

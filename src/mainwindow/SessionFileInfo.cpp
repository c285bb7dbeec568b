#include "mainwindow/EditingSession.h"

#include "mainwindow/DefaultTexts.h"
#include "platform/FileHelpers.h"
#include "platform/FileNames.h"
#include "platform/StringHelpers.h"
#include "platform/TextFiles.h"

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

void EditingSession::openFileInfo() {
    const QString folder = QDir(m_store.home().padFolder())
                               .filePath(safeFolderName(m_company.text(CompanyField::CompanyName)));
    ensureFolder(folder);
    const auto chosen = m_prompts.openFile(
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
    const QString ver2 = removeAll(text(u"txtProgramVersion"), u".").left(2);
    setText(u"txtVersionedFilename", name6 + ver2 + u'.' + extension);
    setText(u"txtPreviousFilename", name6 + ver2 + u'.' + extension);
    setText(u"txtGenericFilename", name6 + u'.' + extension);
    setText(u"txtLongFilename", title);
    setText(u"txtSizeByte", QString::number(length));
    setText(u"txtSizeKB", kilobytes(length));
    setText(u"txtSizeMB", megabytes(length));
}

void EditingSession::expiryCheckClicked() {
    const int after = id(u"txtExpireAfter");
    auto toggle = [&](int control) {
        m_screen.setEnabled(control, !m_screen.at(control).enabled);
    };
    toggle(after);
    for (int i = 0; i < 4; ++i)
        toggle(id(u"optExpire", i));
    auto enableDates = [&](bool on) {
        for (auto name : {u"cboExpireMonth", u"cboExpireDay", u"cboExpireYear"})
            m_screen.setEnabled(id(name), on);
    };
    if (m_screen.value(u"chkHasExpiredInfo") == 0) {
        m_screen.setEnabled(after, false);
        enableDates(false);
        m_screen.setEnabled(id(u"txtExpireInfo"), false);
        return;
    }
    if (m_screen.value(u"optExpire", 0) || m_screen.value(u"optExpire", 1) ||
        m_screen.value(u"optExpire", 2)) {
        m_screen.setEnabled(after, true);
        enableDates(false);
        m_screen.setEnabled(id(u"txtExpireInfo"), true);
    }
    if (m_screen.value(u"optExpire", 3)) {
        m_screen.setEnabled(after, false);
        enableDates(true);
        m_screen.setEnabled(id(u"txtExpireInfo"), true);
    }
}

void EditingSession::expiryOptionClicked(int i) {
    const bool byDate = i == 3;
    m_screen.setEnabled(id(u"txtExpireAfter"), !byDate);
    for (auto name : {u"cboExpireMonth", u"cboExpireDay", u"cboExpireYear"})
        m_screen.setEnabled(id(name), byDate);
}

QString EditingSession::defaultText(int which) const {
    CompanyRecord company = m_company;
    ProgramRecord program = m_program;
    const QString p = program.trimText(ProgramField::ProgramName).toUpper();
    if (which == 0)
        return defaultDistributionText(p, program.trimText(ProgramField::ProgramType).toUpper());
    return defaultLicenceText(p, company.trimText(CompanyField::CompanyName).toUpper());
}

void EditingSession::insertDefaultText(int i) {
    if (i < 0 || i > 1)
        return;
    const QStringView box =
        i == 0 ? QStringView(u"txtDistributionAgreements") : QStringView(u"txtEULA");
    if (!text(box).isEmpty() &&
        !m_prompts.askYesNo(
            QStringLiteral("Set Default Text"),
            QStringLiteral("Your current text will be lost!\nDo you want to continue?"),
            Prompts::Icon::Stop))
        return;
    m_company.trimText(CompanyField::CompanyName);
    m_program.trimText(ProgramField::ProgramName);
    m_program.trimText(ProgramField::ProgramType);
    setText(box, defaultText(i));
}

void EditingSession::permissionFile(int i) {
    const QStringView box =
        i < 2 ? QStringView(u"txtDistributionAgreements") : QStringView(u"txtEULA");
    if (i % 2 == 0) {
        const QString loaded = ReadTextFileDialog(m_prompts, m_store.home().root());
        if (!loaded.isEmpty())
            setText(box, loaded);
    } else {
        WriteTextFileDialog(m_prompts, m_store.home().root(), text(box));
    }
}

} // namespace brevaro

#include "session/ProgramTabTools.h"

#include "session/SessionCore.h"

#include "platform/FileHelpers.h"
#include "platform/FileNames.h"
#include "platform/StringHelpers.h"
#include "platform/TextFiles.h"
#include "release/DistributionFile.h"
#include "session/DefaultTexts.h"

#include <QDir>
#include <QFileInfo>

namespace brevaro {

ProgramTabTools::ProgramTabTools(SessionCore& core)
    : m_core(core) {}

void ProgramTabTools::openFileInfo() {
    const QString folder =
        QDir(m_core.store.home().padFolder())
            .filePath(safeFolderName(m_core.company.text(CompanyField::CompanyName)));
    ensureFolder(folder);
    const auto chosen = m_core.prompts.openFile(
        {QString(), QStringLiteral("exe"), folder,
         QStringLiteral("Program File(s) (*.exe)|*.exe| Program File(s) (*.zip)|*.zip| All "
                        "File(s) (*.*)|*.*|")});
    if (!chosen || chosen->isEmpty())
        return;
    const qint64 length = std::max<qint64>(0, fileSize(*chosen));
    const QString title = QFileInfo(*chosen).fileName();
    const FileInfoValues v = fileInfoValues(title, length, m_core.text(u"txtProgramVersion"));
    m_core.replaceText(u"txtVersionedFilename", v.versioned);
    m_core.replaceText(u"txtPreviousFilename", v.previous);
    m_core.replaceText(u"txtGenericFilename", v.generic);
    m_core.replaceText(u"txtLongFilename", v.longName);
    m_core.replaceText(u"txtSizeByte", v.bytes);
    m_core.replaceText(u"txtSizeKB", v.kilobytes);
    m_core.replaceText(u"txtSizeMB", v.megabytes);
}

void ProgramTabTools::expiryCheckClicked() {
    const int after = m_core.id(u"txtExpireAfter");
    auto toggle = [&](int control) {
        m_core.screen.setEnabled(control, !m_core.screen.at(control).enabled);
    };
    toggle(after);
    for (int i = 0; i < 4; ++i)
        toggle(m_core.id(u"optExpire", i));
    auto enableDates = [&](bool on) {
        for (auto name : {u"cboExpireMonth", u"cboExpireDay", u"cboExpireYear"})
            m_core.screen.setEnabled(m_core.id(name), on);
    };
    if (m_core.screen.value(u"chkHasExpiredInfo") == 0) {
        m_core.screen.setEnabled(after, false);
        enableDates(false);
        m_core.screen.setEnabled(m_core.id(u"txtExpireInfo"), false);
        return;
    }
    if (m_core.screen.value(u"optExpire", 0) || m_core.screen.value(u"optExpire", 1) ||
        m_core.screen.value(u"optExpire", 2)) {
        m_core.screen.setEnabled(after, true);
        enableDates(false);
        m_core.screen.setEnabled(m_core.id(u"txtExpireInfo"), true);
    }
    if (m_core.screen.value(u"optExpire", 3)) {
        m_core.screen.setEnabled(after, false);
        enableDates(true);
        m_core.screen.setEnabled(m_core.id(u"txtExpireInfo"), true);
    }
}

void ProgramTabTools::expiryOptionClicked(int i) {
    const bool byDate = i == 3;
    m_core.screen.setEnabled(m_core.id(u"txtExpireAfter"), !byDate);
    for (auto name : {u"cboExpireMonth", u"cboExpireDay", u"cboExpireYear"})
        m_core.screen.setEnabled(m_core.id(name), byDate);
}

QString ProgramTabTools::defaultText(int which) const {
    CompanyRecord company = m_core.company;
    ProgramRecord program = m_core.program;
    const QString p = program.trimText(ProgramField::ProgramName).toUpper();
    if (which == 0)
        return defaultDistributionText(p, program.trimText(ProgramField::ProgramType).toUpper());
    return defaultLicenceText(p, company.trimText(CompanyField::CompanyName).toUpper());
}

void ProgramTabTools::insertDefaultText(int which, const QString& box) {
    if (!m_core.text(box).isEmpty() &&
        !m_core.prompts.askYesNo(
            QStringLiteral("Set Default Text"),
            QStringLiteral("Your current text will be lost!\nDo you want to continue?"),
            Prompts::Icon::Stop))
        return;
    m_core.company.trimText(CompanyField::CompanyName);
    m_core.program.trimText(ProgramField::ProgramName);
    m_core.program.trimText(ProgramField::ProgramType);
    m_core.replaceText(box, defaultText(which));
}

void ProgramTabTools::loadText(const QString& box) {
    const QString loaded = ReadTextFileDialog(m_core.prompts, m_core.store.home().root());
    if (!loaded.isEmpty())
        m_core.replaceText(box, loaded);
}

void ProgramTabTools::saveText(const QString& box) {
    WriteTextFileDialog(m_core.prompts, m_core.store.home().root(), m_core.text(box));
}

} // namespace brevaro

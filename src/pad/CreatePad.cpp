#include "pad/CreatePad.h"

#include "mainwindow/EditingSession.h"
#include "mainwindow/WebAddresses.h"
#include "pad/PadText.h"
#include "pad/WebInfo.h"
#include "platform/FileHelpers.h"
#include "platform/FileNames.h"
#include "platform/StringHelpers.h"
#include "records/Win1252.h"

#include <QDir>
#include <QSaveFile>

namespace brevaro {

namespace {

bool writeWin1252(const QString& path, const QString& text, QString* error) {
    QSaveFile file(path);
    const QByteArray bytes = toWin1252(text);
    if (file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size() && file.commit())
        return true;
    *error = QStringLiteral("%1 could not be written: %2")
                 .arg(QDir::toNativeSeparators(path), file.errorString());
    return false;
}

} // namespace

QString proposedPadFileName(const QString& padUrl, const QString& programName) {
    const QString url = trimBlanks(padUrl);
    if (!url.isEmpty())
        return GetFileBaseName(url.toLower(), QStringLiteral("/"));
    return trimBlanks(programName).toLower().replace(u' ', u'_');
}

QString companionFileName(const QString& padPath) {
    const QString sep = QDir::separator();
    return GetPathFolder(padPath, sep) + sep + GetFileBaseName(padPath, sep).toLower() +
           QStringLiteral(".htm");
}

bool writePadFiles(EditingSession& s, const QString& path, QString* error) {
    const QString pad = CreatePADText(s.company(), s.program()) + QStringLiteral("\r\n");
    const QString web = CreateWebInfo(s.company(), s.program(), s.text(u"lblOrganization", 0)) +
                        QStringLiteral("\r\n");
    // The companion is attempted even when the PAD file fails.
    QString first, second;
    const bool padOk = writeWin1252(path, pad, &first);
    const bool webOk = writeWin1252(companionFileName(path), web, &second);
    *error = QString(first + u'\n' + second).trimmed();
    return padOk && webOk;
}

void CreatePADFile(EditingSession& s) {
    s.isCompanyDirty();
    s.isProgramDirty();
    if (s.CompanyDirty || s.ProgramDirty) {
        s.prompts().beep();
        s.SimpleText(QStringLiteral("You MUST save before you can create your PAD file ..."));
        return;
    }
    const QString folder =
        QDir(s.store().home().padFolder())
            .filePath(safeFolderName(s.company().text(CompanyField::CompanyName)));
    ensureFolder(folder);
    const auto chosen = s.prompts().saveFile(
        {proposedPadFileName(s.text(u"txtPadXMLfileURL"), s.text(u"cboProgramName")),
         QStringLiteral("xml"), folder, QStringLiteral("PAD File(s) (*.xml)|*.xml")});
    if (!chosen || chosen->isEmpty())
        return;
    QString error;
    if (!writePadFiles(s, QDir::toNativeSeparators(*chosen), &error))
        s.prompts().message(QStringLiteral("Create PAD"), error);
}

} // namespace brevaro

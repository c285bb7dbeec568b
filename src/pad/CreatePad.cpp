#include "pad/CreatePad.h"

#include "pad/PadText.h"
#include "pad/WebInfo.h"
#include "platform/FileNames.h"
#include "platform/StringHelpers.h"
#include "platform/Win1252.h"

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

bool writePadFiles(const CompanyRecord& company, const ProgramRecord& program,
                   const QString& aspSite, const QString& path, QString* error) {
    const QString pad = CreatePADText(company, program) + QStringLiteral("\r\n");
    const QString web = CreateWebInfo(company, program, aspSite) + QStringLiteral("\r\n");
    QString first, second;
    const bool padOk = writeWin1252(path, pad, &first);
    const bool webOk = writeWin1252(companionFileName(path), web, &second);
    *error = QString(first + u'\n' + second).trimmed();
    return padOk && webOk;
}

} // namespace brevaro

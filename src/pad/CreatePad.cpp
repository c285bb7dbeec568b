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

bool writeBytes(const QString& path, const QByteArray& bytes, QString* error) {
    QSaveFile file(path);
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
                   const QString& aspSite, const QString& path, QString* error,
                   PadVersion version) {
    const QByteArray pad = padFileBytes(CreatePADText(company, program, version), version);
    const QString web = CreateWebInfo(company, program, aspSite) + QStringLiteral("\r\n");
    QString first, second;
    const bool padOk = writeBytes(path, pad, &first);
    const bool webOk = writeBytes(companionFileName(path), toWin1252(web), &second);
    *error = QString(first + u'\n' + second).trimmed();
    return padOk && webOk;
}

PadVersion chosenPadVersion(const ProgramRecord& program) {
    return padVersionFromText(program.laterValue(QStringLiteral("PAD_Version")))
        .value_or(PadVersion::V1_15);
}

} // namespace brevaro

#include "submission/CreatedPadFile.h"

#include "pad/CreatePad.h"
#include "platform/FileNames.h"
#include "platform/Win1252.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

namespace brevaro {

namespace {

bool namesProgram(const QString& path, const QString& programName) {
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return false;
    // The program's name is near the start of a PAD file; a few KiB are enough.
    const QString head = fromWin1252(file.read(16 * 1024));
    QString escaped = programName;
    escaped.replace(u'&', QStringLiteral("&amp;"))
        .replace(u'<', QStringLiteral("&lt;"))
        .replace(u'>', QStringLiteral("&gt;"));
    for (const QString& name : {programName, escaped})
        if (head.contains(QStringLiteral("<Program_Name>") + name +
                          QStringLiteral("</Program_Name>")))
            return true;
    return false;
}

} // namespace

QString findCreatedPadFile(const QString& padFolder, const CompanyRecord& company,
                           const ProgramRecord& program) {
    const QDir folder(
        QDir(padFolder).filePath(safeFolderName(company.text(CompanyField::CompanyName))));
    const QString proposed = proposedPadFileName(program.text(ProgramField::ApplicationXMLFileURL),
                                                 program.text(ProgramField::ProgramName));
    if (!proposed.isEmpty()) {
        const QFileInfo named(folder.filePath(proposed + QStringLiteral(".xml")));
        if (named.isFile())
            return named.filePath();
    }
    const QString programName = program.text(ProgramField::ProgramName);
    if (programName.isEmpty())
        return {};
    const QFileInfoList candidates = folder.entryInfoList(
        {QStringLiteral("*.xml"), QStringLiteral("*.XML")}, QDir::Files, QDir::Time);
    for (const QFileInfo& candidate : candidates)
        if (namesProgram(candidate.filePath(), programName))
            return candidate.filePath();
    return {};
}

} // namespace brevaro

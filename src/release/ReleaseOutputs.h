#pragma once

#include "records/CompanyRecord.h"
#include "records/ProgramRecord.h"
#include "release/OutputCheck.h"

#include <QByteArray>
#include <optional>
#include <vector>

namespace brevaro {

// The formats a release writes.
enum class OutputFormat { Pad115, Pad40, AppStream, Winget, JsonLd };
// "pad", "pad4", "appstream", "winget", "jsonld"; and back (nullopt for another text).
QString outputFormatName(OutputFormat format);
std::optional<OutputFormat> outputFormatFromName(QStringView name);

// One file of an output, by its name in the output folder.
struct OutputFile {
    QString fileName;
    QByteArray bytes;
};

// An output as written: its files and what its check found.
struct Output {
    OutputFormat format;
    std::vector<OutputFile> files;
    std::vector<OutputFinding> findings;
};

// Builds the files of one format from the records and checks them. aspSite is the address the
// web info block links for the ASP member (the window's organisation label).
Output buildOutput(OutputFormat format, const CompanyRecord& company, const ProgramRecord& program,
                   const QString& aspSite);
// Every format a release writes, in the order above.
std::vector<Output> buildAllOutputs(const CompanyRecord& company, const ProgramRecord& program,
                                    const QString& aspSite);

// What writing a file did.
struct WrittenFile {
    QString path;
    bool changed = false; // false: the file already held these bytes and was left alone
};

// Writes the files into folder (made when missing), each replaced whole and only when its bytes
// differ; false with a plain reason for the first that cannot be written (the others are
// written all the same, and listed in written).
bool writeOutputFiles(const QString& folder, const std::vector<Output>& outputs,
                      std::vector<WrittenFile>* written, QString* error);

// The folder a program's outputs go to: the company's folder under the home's pad folder.
QString programOutputFolder(const QString& padFolder, const CompanyRecord& company);

} // namespace brevaro

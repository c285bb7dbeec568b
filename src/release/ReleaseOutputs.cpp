#include "release/ReleaseOutputs.h"

#include "pad/CreatePad.h"
#include "pad/PadCheck.h"
#include "pad/PadText.h"
#include "pad/WebInfo.h"
#include "platform/FileHelpers.h"
#include "platform/FileNames.h"
#include "platform/Threads.h"
#include "platform/Win1252.h"
#include "release/AppStreamWriter.h"
#include "release/JsonLdWriter.h"
#include "release/ReleaseStep.h"
#include "release/WingetWriter.h"

#include <QDir>
#include <QFile>
#include <future>

namespace brevaro {

namespace {

struct FormatName {
    OutputFormat format;
    const char* name;
};

constexpr std::array<FormatName, 5> kFormats = {{{OutputFormat::Pad115, "pad"},
                                                 {OutputFormat::Pad40, "pad4"},
                                                 {OutputFormat::AppStream, "appstream"},
                                                 {OutputFormat::Winget, "winget"},
                                                 {OutputFormat::JsonLd, "jsonld"}}};

// The name Create PAD proposes for the PAD file, without its extension.
QString padBaseName(const ProgramRecord& program) {
    const QString base = proposedPadFileName(program.text(ProgramField::ApplicationXMLFileURL),
                                             program.text(ProgramField::ProgramName));
    return base.isEmpty() ? QStringLiteral("pad") : base;
}

// The PAD check's errors and warnings as findings of an output (its notes are advice only).
std::vector<OutputFinding> padFindings(const CompanyRecord& c, const ProgramRecord& p,
                                       PadVersion version, const QString& output) {
    std::vector<OutputFinding> out;
    for (const PadFinding& f : checkPad(c, p, version))
        if (f.severity != PadFinding::Severity::Note)
            out.push_back({f.severity == PadFinding::Severity::Error
                               ? OutputFinding::Severity::Error
                               : OutputFinding::Severity::Warning,
                           output, f.element, f.message});
    return out;
}

// The releases an AppStream file lists: the history, with the current version first when
// the history does not have it yet.
std::vector<ReleaseEntry> releasesOf(const ProgramRecord& program, const ProductFacts& facts) {
    std::vector<ReleaseEntry> releases = releaseHistory(program);
    const bool listed = std::any_of(releases.begin(), releases.end(), [&](const ReleaseEntry& e) {
        return e.version == facts.version;
    });
    if (!listed && !facts.version.isEmpty() && facts.releaseDate.isValid())
        releases.insert(releases.begin(), {facts.version, facts.releaseDate});
    return releases;
}

} // namespace

QString outputFormatName(OutputFormat format) {
    for (const FormatName& f : kFormats)
        if (f.format == format)
            return QLatin1String(f.name);
    return {};
}

std::optional<OutputFormat> outputFormatFromName(QStringView name) {
    for (const FormatName& f : kFormats)
        if (name == QLatin1String(f.name))
            return f.format;
    return std::nullopt;
}

Output buildOutput(OutputFormat format, const CompanyRecord& company, const ProgramRecord& program,
                   const QString& aspSite) {
    Output out{format, {}, {}};
    const QString base = padBaseName(program);
    switch (format) {
    case OutputFormat::Pad115: {
        // The bytes Create PAD writes: the document and the web info block, each with CR LF.
        out.files.push_back(
            {base + QStringLiteral(".xml"),
             toWin1252(QString(CreatePADText(company, program) + QStringLiteral("\r\n")))});
        out.files.push_back(
            {companionFileName(QString(QDir::separator() + base + QStringLiteral(".xml"))).mid(1),
             toWin1252(
                 QString(CreateWebInfo(company, program, aspSite) + QStringLiteral("\r\n")))});
        out.findings = padFindings(company, program, PadVersion::V1_15, QStringLiteral("PAD 1.15"));
        break;
    }
    case OutputFormat::Pad40:
        out.files.push_back(
            {base + QStringLiteral("-4.0.xml"),
             padFileBytes(CreatePADText(company, program, PadVersion::V4_0), PadVersion::V4_0)});
        out.findings = padFindings(company, program, PadVersion::V4_0, QStringLiteral("PAD 4.0"));
        break;
    case OutputFormat::AppStream: {
        const ProductFacts facts = productFacts(company, program);
        const QByteArray bytes = appStreamMetainfo(facts, releasesOf(program, facts));
        out.files.push_back({appStreamFileName(facts), bytes});
        out.findings = checkAppStream(facts, bytes);
        break;
    }
    case OutputFormat::Winget: {
        const ProductFacts facts = productFacts(company, program);
        const WingetPackage package = wingetPackage(facts, program);
        for (WingetFile& f : wingetManifests(facts, package))
            out.files.push_back({f.fileName, f.bytes});
        out.findings = checkWinget(facts, package);
        break;
    }
    case OutputFormat::JsonLd: {
        const ProductFacts facts = productFacts(company, program);
        const QByteArray bytes = jsonLd(facts);
        out.files.push_back({base + QStringLiteral(".jsonld"), bytes});
        out.findings = checkJsonLd(facts, bytes);
        break;
    }
    }
    return out;
}

std::vector<Output> buildAllOutputs(const CompanyRecord& company, const ProgramRecord& program,
                                    const QString& aspSite) {
    // The outputs do not depend on each other: each is made on a thread of its own.
    std::vector<std::future<Output>> making;
    for (const FormatName& f : kFormats)
        making.push_back(std::async(kThreadOrHere, buildOutput, f.format, std::cref(company),
                                    std::cref(program), std::cref(aspSite)));
    std::vector<Output> outputs;
    for (std::future<Output>& m : making)
        outputs.push_back(m.get());
    return outputs;
}

bool writeOutputFiles(const QString& folder, const std::vector<Output>& outputs,
                      std::vector<WrittenFile>* written, QString* error) {
    if (!ensureFolder(folder)) {
        *error =
            QStringLiteral("the folder %1 cannot be made").arg(QDir::toNativeSeparators(folder));
        return false;
    }
    std::vector<WrittenFile> files;
    std::vector<FileToWrite> changed;
    for (const Output& output : outputs)
        for (const OutputFile& file : output.files) {
            const QString path = QDir::toNativeSeparators(QDir(folder).filePath(file.fileName));
            QFile existing(path);
            const bool same = existing.size() == file.bytes.size() &&
                              existing.open(QIODevice::ReadOnly) &&
                              existing.readAll() == file.bytes;
            files.push_back({path, !same});
            if (!same)
                changed.push_back({path, &file.bytes, {}});
        }
    const bool ok = writeFilesAtomically(changed);
    // Every file that was written or already right is listed, also when another one failed.
    auto result = changed.begin();
    for (const WrittenFile& f : files) {
        const bool failed = f.changed && !(result++)->error.isEmpty();
        if (!failed)
            written->push_back(f);
    }
    if (!ok) {
        const auto failed = std::find_if(changed.begin(), changed.end(),
                                         [](const FileToWrite& f) { return !f.error.isEmpty(); });
        *error = QStringLiteral("%1 cannot be written: %2").arg(failed->path, failed->error);
    }
    return ok;
}

QString programOutputFolder(const QString& padFolder, const CompanyRecord& company) {
    return QDir(padFolder).filePath(safeFolderName(company.text(CompanyField::CompanyName)));
}

} // namespace brevaro

#include "CliCommands.h"

#include "platform/FileHelpers.h"
#include "platform/StringHelpers.h"
#include "platform/Threads.h"
#include "release/OnlineCheck.h"
#include "release/ReleaseOutputs.h"
#include "release/ReleaseStep.h"
#include "session/ReleaseSave.h"

#include <QDir>
#include <QFileInfo>
#include <QTemporaryDir>
#include <future>

namespace brevaro::cli {

namespace {

QString shown(const QString& value) {
    if (value.isEmpty())
        return QStringLiteral("(empty)");
    QString one = value;
    one.replace(QStringLiteral("\r\n"), QStringLiteral("; ")).replace(u'\n', QStringLiteral("; "));
    return escapeControls(one);
}

QDate dateOption(const CliArgs& args) {
    if (!args.has(QStringLiteral("--date")))
        return QDate::currentDate();
    const QDate date =
        QDate::fromString(args.value(QStringLiteral("--date")), QStringLiteral("yyyy-MM-dd"));
    if (!date.isValid())
        throw CliError{2, QStringLiteral("--date takes a date as YYYY-MM-DD, not %1")
                              .arg(args.value(QStringLiteral("--date")))};
    return date;
}

// The release's input with its files named but not yet read: hashing them is the longest part
// of a release, so it runs beside the loading of the home (see hashFiles).
ReleaseInput releaseInput(const CliArgs& args) {
    ReleaseInput input;
    input.version = args.required(QStringLiteral("--version"));
    for (const QString& path : args.values(QStringLiteral("--file"))) {
        if (const QString problem = distributionFileProblem(path); !problem.isEmpty())
            throw CliError{2, problem};
        input.files.push_back({path, QFileInfo(path).fileName(), 0, {}});
    }
    input.date = dateOption(args);
    if (args.has(QStringLiteral("--changes")))
        input.changes = args.value(QStringLiteral("--changes"));
    if (const QString problem = releaseInputProblem(input); !problem.isEmpty())
        throw CliError{2, problem};
    return input;
}

struct HashedFiles {
    std::vector<DistributionFile> files;
    QString error;
};

// Reads every file of the input for its size and hash on another thread.
std::future<HashedFiles> hashFiles(const ReleaseInput& input) {
    return std::async(kThreadOrHere, [named = input.files] {
        HashedFiles out;
        for (const DistributionFile& f : named) {
            DistributionFile file;
            if (!readDistributionFile(f.path, &file, &out.error))
                break;
            out.files.push_back(file);
        }
        return out;
    });
}

// Saves the release in the command's one save, before anything is written.
void saveReleased(CliContext& ctx, const ProgramRecord& released) {
    const CommandResult result = saveRelease(ctx.session(), released);
    if (!result.isDone())
        throw CliError{2, QStringLiteral("the release could not be saved: ") + result.reason};
    ctx.failOnMessages();
    ctx.finish();
}

void printFindings(CliContext& ctx, const std::vector<Output>& outputs) {
    for (const Output& o : outputs)
        for (const OutputFinding& f : o.findings)
            ctx.print(
                QStringLiteral("%1: %2: %3%4\n")
                    .arg(f.severity == OutputFinding::Severity::Error ? QStringLiteral("error")
                                                                      : QStringLiteral("warning"),
                         f.output, f.field.isEmpty() ? QString() : f.field + QStringLiteral(": "),
                         escapeControls(f.message)));
}

bool anyErrors(const std::vector<Output>& outputs) {
    return std::any_of(outputs.begin(), outputs.end(),
                       [](const Output& o) { return hasErrors(o.findings); });
}

} // namespace

int releaseCommand(CliContext& ctx, const QStringList& words) {
    const CliArgs args(words,
                       {QStringLiteral("-c"), QStringLiteral("-p"), QStringLiteral("--version"),
                        QStringLiteral("--file"), QStringLiteral("--date"),
                        QStringLiteral("--changes"), QStringLiteral("--out")},
                       {QStringLiteral("--dry-run"), QStringLiteral("--verify-urls")});
    if (!args.positional().isEmpty())
        throw CliError{1, QStringLiteral("unexpected argument %1").arg(args.positional().front())};
    if (args.values(QStringLiteral("--file")).isEmpty())
        throw CliError{1, QStringLiteral("give at least one --file DIST")};
    const bool dryRun = args.has(QStringLiteral("--dry-run"));
    ReleaseInput input = releaseInput(args);
    std::future<HashedFiles> hashing = hashFiles(input);
    EditingSession& s = dryRun ? ctx.readingSession() : ctx.session();
    const int c = ctx.company(args.required(QStringLiteral("-c")));
    ctx.select(c, ctx.program(ctx.companyId(c), args.required(QStringLiteral("-p"))));
    HashedFiles hashed = hashing.get();
    if (!hashed.error.isEmpty())
        throw CliError{2, hashed.error};
    input.files = std::move(hashed.files);

    const ReleasePlan plan = planRelease(s.program(), input);
    ctx.print(QStringLiteral("%1 %2: %3\n")
                  .arg(s.program().wholeText(static_cast<int>(ProgramField::ProgramName)),
                       input.version,
                       plan.changes.empty()
                           ? QStringLiteral("nothing changes")
                           : QStringLiteral("%1 field(s) change").arg(plan.changes.size())));
    for (const ReleaseChange& change : plan.changes)
        ctx.print(QStringLiteral("  %1: %2 -> %3\n")
                      .arg(change.field, shown(change.before), shown(change.after)));
    for (const QString& note : plan.notes)
        ctx.print(QStringLiteral("note: %1\n").arg(note));
    // The outputs are made from copies of the records while the save waits for the disk.
    std::future<std::vector<Output>> building = std::async(
        kThreadOrHere, buildAllOutputs, s.company(), plan.program, s.text(u"lblOrganization", 0));
    if (!dryRun && !plan.changes.empty())
        saveReleased(ctx, plan.program);
    const std::vector<Output> outputs = building.get();
    // A dry run writes into a folder of its own that is removed afterwards.
    std::optional<QTemporaryDir> scratch;
    if (dryRun)
        scratch.emplace();
    const QString folder = dryRun ? scratch->path()
                           : args.has(QStringLiteral("--out"))
                               ? QFileInfo(args.value(QStringLiteral("--out"))).absoluteFilePath()
                               : programOutputFolder(ctx.home().padFolder(), s.company());
    std::vector<WrittenFile> written;
    QString error;
    if (!writeOutputFiles(folder, outputs, &written, &error))
        throw CliError{2, error};
    for (const WrittenFile& w : written)
        if (dryRun)
            ctx.print(QStringLiteral("would write: %1\n").arg(QFileInfo(w.path).fileName()));
        else
            ctx.print(QStringLiteral("%1: %2\n")
                          .arg(w.changed ? QStringLiteral("written") : QStringLiteral("unchanged"),
                               w.path));
    printFindings(ctx, outputs);
    bool online = true;
    if (args.has(QStringLiteral("--verify-urls"))) {
        OnlineCheck check;
        const auto results =
            check.run(onlineTargets(plan.program, input.files, written.front().path));
        for (const OnlineResult& r : results)
            ctx.print(QStringLiteral("%1: %2 (%3)\n")
                          .arg(outcomeName(r.outcome), r.url, escapeControls(r.detail)));
        online = allMatch(results);
    }
    return anyErrors(outputs) || !online ? kCheckFoundErrors : 0;
}

int exportCommand(CliContext& ctx, const QStringList& words) {
    const CliArgs args(words,
                       {QStringLiteral("-c"), QStringLiteral("-p"), QStringLiteral("-o"),
                        QStringLiteral("--format")},
                       {});
    if (!args.positional().isEmpty())
        throw CliError{1, QStringLiteral("unexpected argument %1").arg(args.positional().front())};
    const QString name = args.required(QStringLiteral("--format"));
    const auto format = outputFormatFromName(name);
    if (!format || *format == OutputFormat::Pad115 || *format == OutputFormat::Pad40)
        throw CliError{
            1, QStringLiteral("--format takes appstream, winget or jsonld, not %1").arg(name)};
    EditingSession& s = ctx.readingSession();
    const int c = ctx.company(args.required(QStringLiteral("-c")));
    ctx.select(c, ctx.program(ctx.companyId(c), args.required(QStringLiteral("-p"))));
    const Output output = buildOutput(*format, s.company(), s.program(), QString());
    for (const OutputFinding& f : output.findings)
        ctx.warn(QStringLiteral("%1: %2: %3%4")
                     .arg(f.output,
                          f.severity == OutputFinding::Severity::Error ? QStringLiteral("error")
                                                                       : QStringLiteral("warning"),
                          f.field.isEmpty() ? QString() : f.field + QStringLiteral(": "),
                          f.message));
    if (!args.has(QStringLiteral("-o"))) {
        // Several files: one YAML stream of documents.
        for (std::size_t i = 0; i < output.files.size(); ++i)
            ctx.printBytes((i > 0 ? QByteArray("---\n") : QByteArray()) + output.files[i].bytes);
    } else if (output.files.size() == 1) {
        QString error;
        if (!writeFileAtomically(args.value(QStringLiteral("-o")), output.files.front().bytes,
                                 &error))
            throw CliError{2, QStringLiteral("%1 cannot be written: %2")
                                  .arg(args.value(QStringLiteral("-o")), error)};
    } else {
        // The manifests of one package go into the folder -o names.
        std::vector<WrittenFile> written;
        QString error;
        if (!writeOutputFiles(args.value(QStringLiteral("-o")), {output}, &written, &error))
            throw CliError{2, error};
    }
    return hasErrors(output.findings) ? kCheckFoundErrors : 0;
}

} // namespace brevaro::cli

#include "CliCommands.h"

#include "pad/CreatePad.h"
#include "pad/PadImporter.h"
#include "pad/PadText.h"
#include "pad/VerificationReport.h"
#include "pad/WebInfo.h"
#include "platform/FileHelpers.h"
#include "platform/FileNames.h"
#include "platform/Win1252.h"

#include <QDir>
#include <QFileInfo>

namespace brevaro::cli {

namespace {

// Shows the program named by -c and -p in a freshly started session. A command that writes
// nothing into the home reads it without its lock, so it also works while the window is open.
EditingSession& showProgram(CliContext& ctx, const CliArgs& args, bool writesIntoHome = false) {
    if (!args.positional().isEmpty())
        throw CliError{1, QStringLiteral("unexpected argument %1").arg(args.positional().front())};
    EditingSession& s = writesIntoHome ? ctx.session() : ctx.readingSession();
    const int c = ctx.company(args.required(QStringLiteral("-c")));
    ctx.select(c, ctx.program(ctx.companyId(c), args.required(QStringLiteral("-p"))));
    return s;
}

void writeOrPrint(CliContext& ctx, const CliArgs& args, const QByteArray& bytes) {
    if (!args.has(QStringLiteral("-o")))
        return ctx.printBytes(bytes);
    QString error;
    if (!writeFileAtomically(args.value(QStringLiteral("-o")), bytes, &error))
        throw CliError{2, QStringLiteral("%1 cannot be written: %2")
                              .arg(args.value(QStringLiteral("-o")), error)};
}

const QString kCrLf = QStringLiteral("\r\n");

} // namespace

PadVersion formatOption(const CliArgs& args) {
    if (!args.has(QStringLiteral("--format")))
        return PadVersion::V1_15;
    const auto version = padVersionFromText(args.value(QStringLiteral("--format")));
    if (!version)
        throw CliError{1, QStringLiteral("--format takes 1.15, 3.11 or 4.0, not %1")
                              .arg(args.value(QStringLiteral("--format")))};
    return *version;
}

int padCommand(CliContext& ctx, const QStringList& words) {
    const CliArgs args(words,
                       {QStringLiteral("-c"), QStringLiteral("-p"), QStringLiteral("-o"),
                        QStringLiteral("--format")},
                       {QStringLiteral("--check")});
    const PadVersion version = formatOption(args);
    const bool intoHome =
        args.has(QStringLiteral("-o")) &&
        QDir::cleanPath(QFileInfo(args.value(QStringLiteral("-o"))).absoluteFilePath())
            .startsWith(QDir::cleanPath(ctx.home().root()) + u'/');
    EditingSession& s = showProgram(ctx, args, intoHome);
    if (args.has(QStringLiteral("--check")))
        refusePadWithErrors(s.company(), s.program(), version);
    // A later version is one UTF-8 file; its web info block is the 1.15 file's companion.
    if (!args.has(QStringLiteral("-o")) || version != PadVersion::V1_15) {
        writeOrPrint(ctx, args,
                     padFileBytes(CreatePADText(s.company(), s.program(), version), version));
        return 0;
    }
    // The companion goes beside the PAD file, so the folder must be a real one: a bare file
    // name is in the current folder.
    const QFileInfo target(args.value(QStringLiteral("-o")));
    const QString path = QDir::toNativeSeparators(target.absoluteFilePath());
    if (!target.absoluteDir().exists())
        throw CliError{2, QStringLiteral("the folder %1 does not exist")
                              .arg(QDir::toNativeSeparators(target.absolutePath()))};
    if (target.isDir())
        throw CliError{2, QStringLiteral("%1 is a folder; give a file name").arg(path)};
    if (GetFileBaseName(path, QDir::separator()).isEmpty())
        throw CliError{
            2, QStringLiteral("give the PAD file a name with an extension, such as "
                              "%1.xml, so that its web page can be named after it")
                   .arg(target.fileName().isEmpty() ? QStringLiteral("pad") : target.fileName())};
    QString error;
    if (!s.pad().writePadFiles(path, &error))
        throw CliError{2, error.split(u'\n', Qt::SkipEmptyParts).join(QStringLiteral("; "))};
    return 0;
}

int webinfoCommand(CliContext& ctx, const QStringList& words) {
    const CliArgs args(words, {QStringLiteral("-c"), QStringLiteral("-p")}, {});
    EditingSession& s = showProgram(ctx, args);
    ctx.printBytes(toWin1252(
        QString(CreateWebInfo(s.company(), s.program(), s.text(u"lblOrganization", 0)) + kCrLf)));
    return 0;
}

int verifyCommand(CliContext& ctx, const QStringList& words) {
    const CliArgs args(words, {QStringLiteral("-c"), QStringLiteral("-p"), QStringLiteral("-o")},
                       {});
    EditingSession& s = showProgram(ctx, args);
    writeOrPrint(
        ctx, args,
        toWin1252(verificationPage(s.company(), s.program(), s.text(u"lblOrganization", 0))));
    return 0;
}

int importCommand(CliContext& ctx, const QStringList& words) {
    const CliArgs args(words, {}, {});
    if (args.positional().isEmpty())
        throw CliError{1, QStringLiteral("give at least one PAD file")};
    for (const QString& path : args.positional())
        if (!QFileInfo(path).isFile())
            throw CliError{2, QStringLiteral("there is no file %1").arg(path)};
    // Every file goes in one batch, so each record file is written once, at the end.
    const QStringList files = args.positional();
    QString printed;
    qsizetype done = 0;
    for (qsizetype i = 0; i < files.size(); ++i) {
        try {
            EditingSession& s = ctx.session();
            // Each file goes into a window as it is freshly started: company 1 and its first
            // program shown.
            if (s.state().CompanyCount > 0)
                ctx.select(1, s.screen().at(u"cboProgramName").items.isEmpty() ? 0 : 1);
            // A refused file changes nothing.
            if (!s.pad().importPadFile(files[i]))
                throw CliError{
                    2,
                    QStringLiteral("%1 is not a PAD file: it must start with <?xml").arg(files[i])};
            printed += QStringLiteral("%1\t%2\n")
                           .arg(s.state().CurrentCompanyNo)
                           .arg(s.state().CurrentProgramNo);
            for (const QString& line : s.pad().notKeptByImport())
                ctx.warn(QStringLiteral("%1: %2").arg(files[i], line));
            done = i + 1;
            ctx.failOnMessages();
        } catch (CliError& e) {
            // What went in is kept, and the message says which files those are, so that a
            // rerun can leave them out.
            ctx.finish();
            ctx.print(printed);
            if (files.size() > 1)
                e.message +=
                    QStringLiteral("; imported: %1; not imported: %2")
                        .arg(done > 0 ? files.mid(0, done).join(QStringLiteral(", "))
                                      : QStringLiteral("none"),
                             done < files.size() ? files.mid(done).join(QStringLiteral(", "))
                                                 : QStringLiteral("none"));
            throw;
        }
    }
    ctx.finish();
    ctx.print(printed);
    return 0;
}

} // namespace brevaro::cli

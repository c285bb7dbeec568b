#include "CliCommands.h"

#include "pad/CreatePad.h"
#include "pad/PadImporter.h"
#include "pad/PadText.h"
#include "pad/VerificationReport.h"
#include "pad/WebInfo.h"
#include "platform/Win1252.h"

#include <QFileInfo>
#include <QSaveFile>

namespace brevaro::cli {

namespace {

// Shows the program named by -c and -p in a freshly started session.
EditingSession& showProgram(CliContext& ctx, const CliArgs& args) {
    if (!args.positional().isEmpty())
        throw CliError{1, QStringLiteral("unexpected argument %1").arg(args.positional().front())};
    EditingSession& s = ctx.session();
    const int c = ctx.company(args.required(QStringLiteral("-c")));
    ctx.select(c, ctx.program(ctx.companyId(c), args.required(QStringLiteral("-p"))));
    return s;
}

void writeOrPrint(CliContext& ctx, const CliArgs& args, const QByteArray& bytes) {
    if (!args.has(QStringLiteral("-o")))
        return ctx.printBytes(bytes);
    QSaveFile file(args.value(QStringLiteral("-o")));
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size() || !file.commit())
        throw CliError{
            2, QStringLiteral("%1 cannot be written: %2").arg(file.fileName(), file.errorString())};
}

const QString kCrLf = QStringLiteral("\r\n");

} // namespace

int padCommand(CliContext& ctx, const QStringList& words) {
    const CliArgs args(words, {QStringLiteral("-c"), QStringLiteral("-p"), QStringLiteral("-o")},
                       {QStringLiteral("--check")});
    EditingSession& s = showProgram(ctx, args);
    if (args.has(QStringLiteral("--check")))
        refusePadWithErrors(s.company(), s.program());
    if (!args.has(QStringLiteral("-o"))) {
        ctx.printBytes(toWin1252(QString(CreatePADText(s.company(), s.program()) + kCrLf)));
        return 0;
    }
    QString error;
    if (!s.pad().writePadFiles(args.value(QStringLiteral("-o")), &error))
        throw CliError{2, error};
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
    for (const QString& path : args.positional()) {
        EditingSession& s = ctx.session();
        // Each file goes into a window as it is freshly started: company 1 and its first
        // program shown.
        if (s.state().CompanyCount > 0)
            ctx.select(1, s.screen().at(u"cboProgramName").items.isEmpty() ? 0 : 1);
        if (!s.pad().importPadFile(path))
            throw CliError{
                2, QStringLiteral("%1 is not a PAD file: it must start with <?xml").arg(path)};
        ctx.failOnMessages();
        ctx.print(QStringLiteral("%1\t%2\n")
                      .arg(s.state().CurrentCompanyNo)
                      .arg(s.state().CurrentProgramNo));
    }
    return 0;
}

} // namespace brevaro::cli

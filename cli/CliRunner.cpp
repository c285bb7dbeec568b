#include "CliRunner.h"

#include "AppVersion.h"
#include "CliCommands.h"
#include "platform/StringHelpers.h"

namespace brevaro::cli {

namespace {

QString helpText() {
    QString text = QStringLiteral(
        "Usage: brevaro-cli [--home DIR] COMMAND ...\n"
        "Works on the Brevaro data of a home folder without asking questions.\n"
        "COMPANY and PROGRAM are a record number (from 1) or an exact name.\n\nCommands:\n");
    for (const auto& c : cliCommands())
        text += QStringLiteral("  ") + QLatin1String(c.usage) + u'\n';
    text += QStringLiteral("\nOptions:\n  --home DIR   the home folder (else $BREVARO_HOME, ...)\n"
                           "  --help       this text\n  --version    the program's version\n");
    return text;
}

} // namespace

int runCli(const QStringList& args, const QString& executableFolder, QIODevice& in, QIODevice& out,
           QIODevice& err) {
    auto fail = [&](int status, const QString& message) {
        err.write((QStringLiteral("brevaro-cli: ") + escapeControls(message) + u'\n').toUtf8());
        return status;
    };
    QString homeOption;
    qsizetype i = 0;
    for (; i < args.size(); ++i) {
        const QString& a = args[i];
        if (a == QLatin1String("--help") || a == QLatin1String("-h")) {
            out.write(helpText().toUtf8());
            return 0;
        }
        if (a == QLatin1String("--version")) {
            out.write((QStringLiteral("brevaro-cli ") + versionText() + u'\n').toUtf8());
            return 0;
        }
        if (a == QLatin1String("--home")) {
            if (i + 1 >= args.size())
                return fail(1, QStringLiteral("--home needs a folder"));
            homeOption = args[++i];
            continue;
        }
        break;
    }
    if (i >= args.size())
        return fail(1, QStringLiteral("no command given; see brevaro-cli --help"));
    const QString name = args[i];
    const QStringList rest = args.mid(i + 1);
    for (const auto& command : cliCommands()) {
        if (name != QLatin1String(command.name))
            continue;
        try {
            CliContext ctx(AppHome::resolve(homeOption, executableFolder), in, out, err);
            const int status = command.run(ctx, rest);
            ctx.finish();
            return status;
        } catch (const CliError& e) {
            return fail(e.status, e.message);
        }
    }
    return fail(1, QStringLiteral("unknown command \"%1\"; see brevaro-cli --help").arg(name));
}

} // namespace brevaro::cli

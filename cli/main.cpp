#include "CliRunner.h"

#include <QCoreApplication>
#include <QFile>

int main(int argc, char* argv[]) {
    // Each pattern a command uses matches a few short values once: compiling it to machine
    // code costs far more than it saves (a check takes three times as long with it).
    if (!qEnvironmentVariableIsSet("QT_ENABLE_REGEXP_JIT"))
        qputenv("QT_ENABLE_REGEXP_JIT", "0");
    QCoreApplication app(argc, argv);
    QCoreApplication::setApplicationName(QStringLiteral("brevaro-cli"));
    QFile in, out, err;
    in.open(stdin, QIODevice::ReadOnly);
    out.open(stdout, QIODevice::WriteOnly);
    err.open(stderr, QIODevice::WriteOnly);
    return brevaro::cli::runCli(QCoreApplication::arguments().mid(1),
                                QCoreApplication::applicationDirPath(), in, out, err);
}

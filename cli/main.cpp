#include "CliRunner.h"

#include <QCoreApplication>
#include <QFile>

int main(int argc, char* argv[]) {
    QCoreApplication app(argc, argv);
    QCoreApplication::setApplicationName(QStringLiteral("brevaro-cli"));
    QFile in, out, err;
    in.open(stdin, QIODevice::ReadOnly);
    out.open(stdout, QIODevice::WriteOnly);
    err.open(stderr, QIODevice::WriteOnly);
    return brevaro::cli::runCli(QCoreApplication::arguments().mid(1),
                                QCoreApplication::applicationDirPath(), in, out, err);
}

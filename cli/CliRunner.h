#pragma once

#include <QIODevice>
#include <QStringList>

namespace brevaro::cli {

// Runs one brevaro-cli invocation (args without the program name) and returns its exit
// status. executableFolder takes part in finding the home.
int runCli(const QStringList& args, const QString& executableFolder, QIODevice& in, QIODevice& out,
           QIODevice& err);

} // namespace brevaro::cli

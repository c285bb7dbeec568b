#pragma once

#include "CliRunner.h"
#include "TestSupport.h"

#include <QBuffer>

namespace brevaro::test {

// Runs brevaro-cli in this process on the home at path.
inline CliResult runCliAt(const QString& home, QStringList args, const QByteArray& input = {}) {
    args.prepend(home);
    args.prepend(QStringLiteral("--home"));
    QByteArray inBytes = input;
    QBuffer in(&inBytes), out, err;
    in.open(QIODevice::ReadOnly);
    out.open(QIODevice::WriteOnly);
    err.open(QIODevice::WriteOnly);
    CliResult r;
    r.status = cli::runCli(args, QString(), in, out, err);
    r.out = out.data();
    r.err = QString::fromUtf8(err.data());
    return r;
}

// Runs brevaro-cli in this process on the given home.
inline CliResult runCliIn(const TempHome& t, const QStringList& args,
                          const QByteArray& input = {}) {
    return runCliAt(t.path(), args, input);
}

// Command-line words from plain strings.
inline QStringList words(std::initializer_list<const char*> list) {
    QStringList out;
    for (const char* w : list)
        out << QString::fromUtf8(w);
    return out;
}

inline QString word(const char* w) {
    return QString::fromUtf8(w);
}
inline QString word(const QString& w) {
    return w;
}

// Runs brevaro-cli on the given home with words given as UTF-8 strings or QStrings.
template <typename... Words> CliResult run(const TempHome& t, const Words&... w) {
    return runCliIn(t, QStringList{word(w)...});
}

} // namespace brevaro::test

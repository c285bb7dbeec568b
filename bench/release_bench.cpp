// A release that writes every format beside brevaro-cli pad for the same product, each run as
// a user runs it: the executable started on a home holding the product. The release should
// take at most twice the time of pad.
#include <QElapsedTimer>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>
#include <benchmark/benchmark.h>
#include <cstdio>

namespace {

bool runCli(const QString& home, const QStringList& args) {
    QProcess p;
    p.start(QStringLiteral(BREVARO_CLI), QStringList{QStringLiteral("--home"), home} + args);
    const bool ok = p.waitForFinished(60000) && p.exitStatus() == QProcess::NormalExit &&
                    p.exitCode() != 1 && p.exitCode() != 2;
    if (!ok)
        std::fprintf(stderr, "%s: status %d, exit %d, %s\n", qPrintable(args.join(u' ')),
                     static_cast<int>(p.exitStatus()), p.exitCode(),
                     p.readAllStandardError().constData());
    return ok;
}

// The sample product of the documentation's pictures, with the facts the other formats need,
// and a distribution file of the given size.
struct Product {
    QTemporaryDir dir;
    QString home = dir.filePath(QStringLiteral("home"));
    QString dist = dir.filePath(QStringLiteral("harbour-notes-setup.exe"));
    explicit Product(int kilobytes = 3072) {
        runCli(home, {QStringLiteral("new-company"), QStringLiteral("Northwind Tools")});
        runCli(home, {QStringLiteral("new-program"), QStringLiteral("-c"), QStringLiteral("1"),
                      QStringLiteral("Harbour Notes")});
        runCli(
            home,
            {QStringLiteral("set"), QStringLiteral("-c"), QStringLiteral("1"), QStringLiteral("-p"),
             QStringLiteral("1"), QStringLiteral("ProgramVersion=2.4.1"),
             QStringLiteral("CostDollars=19.95"),
             QStringLiteral("CharDesc45[0]=Notes that follow you from port to port"),
             QStringLiteral("CharDesc250[0]=Harbour Notes keeps notes, journals and lists in "
                            "one outline."),
             QStringLiteral("Keywords[0]=notes,outliner,journal,sync"),
             QStringLiteral("ApplicationInfoURL=https://www.northwind.example/notes"),
             QStringLiteral("ApplicationXMLFileURL=https://www.northwind.example/pad.xml"),
             QStringLiteral("Application_Identifier=example.northwind.HarbourNotes"),
             QStringLiteral("SPDX_License=LicenseRef-proprietary"),
             QStringLiteral("Download_URL_Pattern=https://dl.northwind.example/{version}/{file}")});
        QFile f(dist);
        f.open(QIODevice::WriteOnly);
        QByteArray block(64 * 1024, '\0');
        for (int i = 0; i < kilobytes / 64; ++i) {
            for (int j = 0; j < block.size(); ++j)
                block[j] = static_cast<char>((i * 131 + j * 7) & 0xFF);
            f.write(block);
        }
    }
};

// Each iteration runs pad and then the release, so that both meet the same load of the machine;
// the counters give each one's time and their ratio.
void BM_ReleaseOverPad(benchmark::State& state) {
    Product product(static_cast<int>(state.range(0)));
    const QString out = product.dir.filePath(QStringLiteral("pad.xml"));
    const QStringList pad{QStringLiteral("pad"),
                          QStringLiteral("-c"),
                          QStringLiteral("1"),
                          QStringLiteral("-p"),
                          QStringLiteral("1"),
                          QStringLiteral("-o"),
                          out};
    qint64 padNs = 0, releaseNs = 0;
    int n = 0;
    for (auto _ : state) {
        // Another version each time, so that every run saves and writes every file.
        const QStringList release{QStringLiteral("release"),
                                  QStringLiteral("-c"),
                                  QStringLiteral("1"),
                                  QStringLiteral("-p"),
                                  QStringLiteral("1"),
                                  QStringLiteral("--version"),
                                  QStringLiteral("2.5.%1").arg(n++),
                                  QStringLiteral("--file"),
                                  product.dist};
        QElapsedTimer timer;
        timer.start();
        if (!runCli(product.home, pad))
            state.SkipWithError("pad failed");
        padNs += timer.nsecsElapsed();
        timer.restart();
        if (!runCli(product.home, release))
            state.SkipWithError("release failed");
        releaseNs += timer.nsecsElapsed();
    }
    const double runs = static_cast<double>(state.iterations());
    state.counters["pad_ms"] = static_cast<double>(padNs) / 1e6 / runs;
    state.counters["release_ms"] = static_cast<double>(releaseNs) / 1e6 / runs;
    state.counters["ratio"] = static_cast<double>(releaseNs) / static_cast<double>(padNs);
}

// A distribution file of 64 KB and of 3 MB (the hash grows with the file; pad reads no file).
BENCHMARK(BM_ReleaseOverPad)->Arg(64)->Arg(3072)->Unit(benchmark::kMillisecond)->MinTime(4.0);

} // namespace

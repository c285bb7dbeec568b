// Side by side in one run: keyword counting of a page against `wc -w` on the same bytes, and
// `brevaro-cli show` of the last of 10,000 companies against `brevaro-cli --version`.
#include "keywords/KeywordSuggester.h"
#include "platform/HttpTransfer.h"
#include "store/RecordStore.h"

#include <QFile>
#include <QFileInfo>
#include <QProcess>
#include <QRandomGenerator>
#include <QTemporaryDir>
#include <benchmark/benchmark.h>

using namespace brevaro;

namespace {

QTemporaryDir& scratch() {
    static QTemporaryDir dir;
    return dir;
}

// A page of about mb megabytes: words of a 20,000-word vocabulary, some markup; in a file.
QString pageFile(int mb) {
    const QString path = scratch().filePath(QStringLiteral("page%1.htm").arg(mb));
    if (QFile::exists(path))
        return path;
    QRandomGenerator random(42);
    QList<QByteArray> vocabulary;
    for (int i = 0; i < 20000; ++i) {
        QByteArray w;
        const int length = 3 + static_cast<int>(random.bounded(9));
        for (int c = 0; c < length; ++c)
            w += char('a' + random.bounded(26));
        vocabulary << w;
    }
    vocabulary << "<div"
               << "href=\"x\">"
               << "2024"
               << "Software."
               << "the";
    QByteArray page = "<html><body>\n";
    const qsizetype size = qsizetype(mb) * 1024 * 1024;
    page.reserve(size + 32);
    while (page.size() < size) {
        const double r = random.bounded(1.0);
        page += vocabulary[static_cast<int>(r * r * r * vocabulary.size()) % vocabulary.size()];
        page += random.bounded(12) == 0 ? '\n' : ' ';
    }
    QFile file(path);
    file.open(QIODevice::WriteOnly);
    file.write(page);
    return path;
}

// What `keywords --file` does with a page: read, decode, count, tick and build the keywords.
void BM_KeywordCountingOfAPage(benchmark::State& state) {
    const QString path = pageFile(static_cast<int>(state.range(0)));
    HttpTransfer http;
    for (auto _ : state) {
        KeywordSuggester suggester(http);
        QString error;
        if (!suggester.checkPageFile(path, &error))
            state.SkipWithError(error.toStdString().c_str());
        benchmark::DoNotOptimize(suggester.entryCount());
    }
    state.SetBytesProcessed(state.iterations() * QFileInfo(path).size());
}
BENCHMARK(BM_KeywordCountingOfAPage)->Arg(1)->Arg(5)->Arg(10)->Unit(benchmark::kMillisecond);

void runProcess(const QString& program, const QStringList& args) {
    QProcess p;
    p.start(program, args);
    p.waitForFinished(-1);
    benchmark::DoNotOptimize(p.readAllStandardOutput().size());
}

// The yardstick: the system's word count of the same file, process start included.
void BM_WcWordsOfAPage(benchmark::State& state) {
    const QString path = pageFile(static_cast<int>(state.range(0)));
    for (auto _ : state)
        runProcess(QStringLiteral("wc"), {QStringLiteral("-w"), path});
    state.SetBytesProcessed(state.iterations() * QFileInfo(path).size());
}
BENCHMARK(BM_WcWordsOfAPage)->Arg(10)->Unit(benchmark::kMillisecond);

// A home of 10,000 companies; the last has 1,000 programs.
QString bigHome() {
    static const QString root = [] {
        const QString path = scratch().filePath(QStringLiteral("home"));
        AppHome home(path);
        home.createFolders();
        RecordStore store(home);
        std::vector<QByteArray> companies;
        for (int c = 1; c <= 10000; ++c) {
            CompanyRecord r;
            r.setNumber(CompanyField::CompanyID, c);
            r.setText(CompanyField::CompanyName, QStringLiteral("Company %1").arg(c));
            companies.push_back(r.bytes());
        }
        store.companyFile().writeAll(companies);
        std::vector<QByteArray> programs;
        for (int p = 1; p <= 1000; ++p) {
            ProgramRecord r;
            r.setNumber(ProgramField::CompanyID, 10000);
            r.setText(ProgramField::ProgramName, QStringLiteral("Program %1").arg(p));
            programs.push_back(r.bytes());
        }
        store.programFile(10000).writeAll(programs);
        return path;
    }();
    return root;
}

void BM_CliShowOfTheLastCompany(benchmark::State& state) {
    const QString home = bigHome();
    for (auto _ : state)
        runProcess(QStringLiteral(BREVARO_CLI),
                   {QStringLiteral("--home"), home, QStringLiteral("show"), QStringLiteral("-c"),
                    QStringLiteral("10000"), QStringLiteral("-p"), QStringLiteral("1000"),
                    QStringLiteral("--json")});
}
BENCHMARK(BM_CliShowOfTheLastCompany)->Unit(benchmark::kMillisecond);

// The yardstick: the same executable doing nothing but starting.
void BM_CliVersion(benchmark::State& state) {
    for (auto _ : state)
        runProcess(QStringLiteral(BREVARO_CLI), {QStringLiteral("--version")});
}
BENCHMARK(BM_CliVersion)->Unit(benchmark::kMillisecond);

// One import of 1,000 PAD files of one company: every record file is written once.
void BM_CliImportOfAThousandPrograms(benchmark::State& state) {
    QStringList args{QStringLiteral("--home"), QString(), QStringLiteral("import")};
    for (int p = 1; p <= 1000; ++p) {
        const QString path = scratch().filePath(QStringLiteral("pad%1.xml").arg(p));
        QFile file(path);
        file.open(QIODevice::WriteOnly);
        file.write(QStringLiteral("<?xml version=\"1.0\"?>\r\n<XML_DIZ_INFO><Company_Info>"
                                  "<Company_Name>Acme</Company_Name></Company_Info><Program_Info>"
                                  "<Program_Name>Program %1</Program_Name><Program_Version>1.%1"
                                  "</Program_Version></Program_Info></XML_DIZ_INFO>\r\n")
                       .arg(p)
                       .toUtf8());
        args << path;
    }
    int run = 0;
    for (auto _ : state) {
        state.PauseTiming();
        args[1] = scratch().filePath(QStringLiteral("import%1").arg(++run));
        state.ResumeTiming();
        runProcess(QStringLiteral(BREVARO_CLI), args);
    }
}
BENCHMARK(BM_CliImportOfAThousandPrograms)->Unit(benchmark::kMillisecond)->Iterations(3);

} // namespace

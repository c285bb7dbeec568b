// Keyword counting on a generated page, beside a plain word count of the same text.
#include "keywords/KeywordList.h"

#include <QHash>
#include <QRandomGenerator>
#include <benchmark/benchmark.h>

using namespace brevaro;

namespace {

// A page of the given size with a vocabulary of 20,000 words, some markup and numbers.
QString generatedPage(qsizetype size) {
    QRandomGenerator random(42);
    QStringList vocabulary;
    for (int i = 0; i < 20000; ++i) {
        QString w;
        const int length = 3 + static_cast<int>(random.bounded(9));
        for (int c = 0; c < length; ++c)
            w += QChar(u'a' + static_cast<char16_t>(random.bounded(26)));
        vocabulary << w;
    }
    vocabulary << QStringLiteral("<div") << QStringLiteral("href=\"x\">") << QStringLiteral("2024")
               << QStringLiteral("Software.") << QStringLiteral("the");
    QString page;
    page.reserve(size + 32);
    while (page.size() < size) {
        // Zipf-like: a few words often, most rarely.
        const auto r = random.bounded(1.0);
        page += vocabulary[static_cast<int>(r * r * r * vocabulary.size()) % vocabulary.size()];
        page += u' ';
    }
    return page;
}

void BM_KeywordCounting(benchmark::State& state) {
    const QString page = generatedPage(state.range(0) * 1024 * 1024);
    for (auto _ : state) {
        KeywordList list;
        list.SplitWords(page);
        benchmark::DoNotOptimize(list.size());
    }
    state.SetBytesProcessed(state.iterations() * page.size());
}
BENCHMARK(BM_KeywordCounting)->Arg(1)->Arg(5)->Arg(10)->Unit(benchmark::kMillisecond);

// The yardstick: split at blanks and count exact words in a hash.
void BM_PlainWordCount(benchmark::State& state) {
    const QString page = generatedPage(state.range(0) * 1024 * 1024);
    for (auto _ : state) {
        QHash<QStringView, int> counts;
        qsizetype start = 0;
        for (qsizetype blank; (blank = page.indexOf(u' ', start)) >= 0; start = blank + 1)
            ++counts[QStringView(page).sliced(start, blank - start)];
        benchmark::DoNotOptimize(counts.size());
    }
    state.SetBytesProcessed(state.iterations() * page.size());
}
BENCHMARK(BM_PlainWordCount)->Arg(10)->Unit(benchmark::kMillisecond);

} // namespace

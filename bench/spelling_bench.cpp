// Spelling a full 2000-character description with the English dictionary: again as the author
// types (the words known from the last check), and for the first time (every word asked of
// Hunspell); beside them the one-time reading of the dictionary and the suggestions of a word.
#include "platform/HunspellChecker.h"
#include "platform/SpellingWords.h"

#include <QTemporaryDir>
#include <benchmark/benchmark.h>
#include <memory>

using namespace brevaro;

namespace {

const QString kEnglish = QStringLiteral("en_US");

// A description of 2000 characters: plain English with a few misspelt words, a code and an
// address, as authors write them.
QString description() {
    const QString sentences[] = {
        QStringLiteral("Harbour Notes keeps your notes, journals and lists in one outline. "),
        QStringLiteral("Everything is searchable as you type, and your notes follow you "
                       "between machines without any account. "),
        QStringLiteral("Import documents from other programs, attach pictures and files, and "
                       "export to plain text or web pages whenever you want. "),
        QStringLiteral("The editor recieves pasted tables and keeps their formating intact. "),
        QStringLiteral("Runs on Win11 x64 and older systems; see www.northwind.example for the "
                       "full list of features and write to help@northwind.example. "),
        QStringLiteral("Reminders, tags and a calendar view help you plan the week ahead. "),
    };
    QString text;
    for (int i = 0; text.size() < 2000; ++i)
        text += sentences[i % 6];
    return text.left(2000);
}

void BM_CheckAgainAsTyped(benchmark::State& state) {
    QTemporaryDir home;
    HunspellChecker checker(HunspellChecker::dictionaryFolders(),
                            home.filePath(QStringLiteral("w")));
    if (!checker.hasDictionary(kEnglish)) {
        state.SkipWithError("the English dictionary (hunspell-en-us) is not installed");
        return;
    }
    const QString text = description();
    misspeltWords(checker, kEnglish, text);
    std::size_t found = 0;
    for (auto _ : state)
        found = misspeltWords(checker, kEnglish, text).size();
    state.counters["misspelt"] = double(found);
}
BENCHMARK(BM_CheckAgainAsTyped)->Unit(benchmark::kMillisecond);

void BM_CheckFirstTime(benchmark::State& state) {
    QTemporaryDir home;
    const QString text = description();
    std::unique_ptr<HunspellChecker> checker;
    for (auto _ : state) {
        // A fresh checker with its dictionary read; reading and freeing it are not counted.
        state.PauseTiming();
        checker.reset();
        checker = std::make_unique<HunspellChecker>(HunspellChecker::dictionaryFolders(),
                                                    home.filePath(QStringLiteral("w")));
        if (!checker->hasDictionary(kEnglish)) {
            state.SkipWithError("the English dictionary (hunspell-en-us) is not installed");
            return;
        }
        state.ResumeTiming();
        benchmark::DoNotOptimize(misspeltWords(*checker, kEnglish, text).size());
    }
}
BENCHMARK(BM_CheckFirstTime)->Unit(benchmark::kMillisecond)->Iterations(20);

void BM_ReadDictionary(benchmark::State& state) {
    QTemporaryDir home;
    for (auto _ : state) {
        HunspellChecker checker(HunspellChecker::dictionaryFolders(),
                                home.filePath(QStringLiteral("w")));
        benchmark::DoNotOptimize(checker.hasDictionary(kEnglish));
    }
}
BENCHMARK(BM_ReadDictionary)->Unit(benchmark::kMillisecond)->Iterations(10);

void BM_Suggestions(benchmark::State& state) {
    QTemporaryDir home;
    HunspellChecker checker(HunspellChecker::dictionaryFolders(),
                            home.filePath(QStringLiteral("w")));
    checker.hasDictionary(kEnglish);
    for (auto _ : state)
        benchmark::DoNotOptimize(checker.suggestions(kEnglish, QStringLiteral("formating"), 6));
}
BENCHMARK(BM_Suggestions)->Unit(benchmark::kMillisecond);

} // namespace

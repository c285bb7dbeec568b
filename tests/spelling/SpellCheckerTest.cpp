#include "SpellingSupport.h"
#include "platform/HunspellChecker.h"
#include "platform/SpellingWords.h"

#include <QTemporaryDir>
#include <gtest/gtest.h>

using namespace brevaro;
using namespace brevaro::test;
using namespace Qt::StringLiterals;

namespace {

const QString kEnglish = u"en_US"_s;

QStringList wordsOf(const QString& text) {
    QStringList words;
    for (const WordSpan& w : wordsToCheck(text))
        words << text.mid(w.start, w.length);
    return words;
}

} // namespace

// Known words pass; misspellings are found, with the intended word among the first proposals.
TEST(SpellChecker, EnglishWordsAndMisspellings) {
    EnglishOnly dictionaries;
    TempHome t;
    HunspellChecker checker({dictionaries.path()}, t.file(u"words.txt"_s));
    ASSERT_TRUE(checker.hasDictionary(kEnglish));
    for (const char* word : {"keeps", "notes", "The", "searchable", "isn't", "journals"})
        EXPECT_TRUE(checker.isCorrect(kEnglish, QString::fromUtf8(word))) << word;
    const std::pair<const char*, const char*> wrong[] = {
        {"recieve", "receive"}, {"teh", "the"}, {"spelll", "spell"}, {"Definately", "Definitely"}};
    for (const auto& [typed, meant] : wrong) {
        EXPECT_FALSE(checker.isCorrect(kEnglish, QString::fromUtf8(typed))) << typed;
        const QStringList proposals = checker.suggestions(kEnglish, QString::fromUtf8(typed), 3);
        EXPECT_TRUE(proposals.contains(QString::fromUtf8(meant)))
            << typed << ": " << proposals.join(u", "_s).toStdString();
    }
    EXPECT_EQ(checker.suggestions(kEnglish, u"recieve"_s, 1), QStringList{u"receive"_s});

    const QString text = u"Teh notes recieve tidy updates"_s;
    std::vector<WordSpan> found = misspeltWords(checker, kEnglish, text);
    EXPECT_EQ(found, (std::vector<WordSpan>{{0, 3}, {10, 7}}));
    // Words of another alphabet (a Russian change note in an English-checked box) are not the
    // English dictionary's to judge.
    EXPECT_TRUE(misspeltWords(checker, kEnglish, u"Новая версия: быстрее поиск"_s).empty());
    EXPECT_FALSE(checker.isCorrect(kEnglish, u"Nоvaya"_s)); // a Latin word with one Cyrillic о
}

// Codes with digits, web addresses, file names and e-mail addresses are not words to check;
// an apostrophe belongs to a word only between letters.
TEST(SpellChecker, WordsToCheckLeaveCodesAndAddressesOut) {
    EXPECT_EQ(wordsOf(u"Runs on Win11 x64 and 3D, see www.brevaroo.example or "
                      "http://qwzx.example/path, write to ada@qwzxy.example; setup.exe "
                      "'isn't' the authors' own"_s),
              (QStringList{u"Runs"_s, u"on"_s, u"and"_s, u"see"_s, u"or"_s, u"write"_s, u"to"_s,
                           u"isn't"_s, u"the"_s, u"authors"_s, u"own"_s}));
    EXPECT_EQ(wordsOf(u"notes,outliner;journal\r\nsync\u2019d (état) end."_s),
              (QStringList{u"notes"_s, u"outliner"_s, u"journal"_s, u"sync\u2019d"_s, u"état"_s,
                           u"end"_s}));
    EXPECT_TRUE(wordsOf(u"  -- 2.0 / 100% "_s).isEmpty());

    EnglishOnly dictionaries;
    TempHome t;
    HunspellChecker checker({dictionaries.path()}, t.file(u"words.txt"_s));
    EXPECT_TRUE(
        misspeltWords(checker, kEnglish, u"Qwzx2000 at www.qwzx.example or qwzx@qwzx.example"_s)
            .empty());
}

// Added words are accepted in every language and kept in the list file, so a new checker (a
// restart) knows them; ignored words are forgotten with the checker.
TEST(SpellChecker, PersonalListSurvivesARestartAndIgnoringDoesNot) {
    EnglishOnly dictionaries;
    TempHome t;
    const QString list = t.file(u"data/spelling-words.txt"_s);
    QDir().mkpath(t.file(u"data"_s));
    {
        HunspellChecker checker({dictionaries.path()}, list);
        EXPECT_FALSE(checker.isCorrect(kEnglish, u"Brevaro"_s));
        EXPECT_FALSE(checker.isCorrect(kEnglish, u"qwzxy"_s));
        EXPECT_TRUE(checker.addToPersonalList(u"Brevaro"_s));
        checker.ignore(u"qwzxy"_s);
        EXPECT_TRUE(checker.isCorrect(kEnglish, u"Brevaro"_s));
        EXPECT_TRUE(checker.isCorrect(kEnglish, u"qwzxy"_s));
        // The dictionary's capitalisation rules apply to an added word.
        EXPECT_TRUE(checker.isCorrect(kEnglish, u"BREVARO"_s));
    }
    EXPECT_EQ(readBytes(list), QByteArray("Brevaro\n"));
    HunspellChecker restarted({dictionaries.path()}, list);
    EXPECT_TRUE(restarted.isCorrect(kEnglish, u"Brevaro"_s));
    EXPECT_FALSE(restarted.isCorrect(kEnglish, u"qwzxy"_s));
    EXPECT_TRUE(restarted.addToPersonalList(u"Quorin"_s));
    EXPECT_EQ(readBytes(list), QByteArray("Brevaro\nQuorin\n"));

    HunspellChecker unwritable({dictionaries.path()}, t.file(u"no/such/folder/words.txt"_s));
    EXPECT_FALSE(unwritable.addToPersonalList(u"Quorin"_s));
    EXPECT_TRUE(unwritable.isCorrect(kEnglish, u"Quorin"_s)) << "kept for this run";
}

// A dictionary that is not installed checks nothing and says how to get it.
TEST(SpellChecker, MissingDictionaryAcceptsEverything) {
    EnglishOnly dictionaries;
    TempHome t;
    HunspellChecker checker({t.path(), dictionaries.path()}, t.file(u"words.txt"_s));
    EXPECT_FALSE(checker.hasDictionary(u"de_DE"_s));
    EXPECT_TRUE(checker.isCorrect(u"de_DE"_s, u"Rechtschreibfeler"_s));
    EXPECT_TRUE(checker.suggestions(u"de_DE"_s, u"Feler"_s, 5).isEmpty());
    EXPECT_TRUE(misspeltWords(checker, u"de_DE"_s, u"Feler Feler"_s).empty());
#ifdef Q_OS_LINUX
    EXPECT_EQ(checker.howToInstall(u"de_DE"_s), u"install the package hunspell-de-de"_s);
    EXPECT_EQ(checker.howToInstall(u"fr_FR"_s), u"install the package hunspell-fr"_s);
#endif
    // Another region of a language stands in for the one asked for.
    EXPECT_TRUE(checker.hasDictionary(u"en_GB"_s));
}

// A dictionary in an 8-bit encoding: words go to it and suggestions come back in its own
// encoding; a word its alphabet cannot hold is not marked.
TEST(SpellChecker, DictionaryInItsOwnEncoding) {
    QTemporaryDir folder;
    const QString base = folder.filePath(u"xx_XX"_s);
    writeBytes(base + u".aff"_s, "SET ISO8859-1\nTRY \xe9\xef"
                                 "acfnv\n");
    writeBytes(base + u".dic"_s, "3\ncaf\xe9\nna\xefve\nfen\xeatre\n");
    TempHome t;
    HunspellChecker checker({folder.path()}, t.file(u"words.txt"_s));
    const QString dictionary = u"xx_XX"_s;
    EXPECT_TRUE(checker.isCorrect(dictionary, u"café"_s));
    EXPECT_TRUE(checker.isCorrect(dictionary, u"naïve"_s));
    EXPECT_FALSE(checker.isCorrect(dictionary, u"cafe"_s));
    EXPECT_EQ(checker.suggestions(dictionary, u"cafe"_s, 5).value(0), u"café"_s);
    EXPECT_EQ(checker.suggestions(dictionary, u"fenetre"_s, 5).value(0), u"fenêtre"_s);
    EXPECT_TRUE(checker.isCorrect(dictionary, u"кот"_s));
    EXPECT_TRUE(checker.addToPersonalList(u"crème"_s));
    EXPECT_TRUE(checker.isCorrect(dictionary, u"Crème"_s)) << "added to the dictionary itself";
}

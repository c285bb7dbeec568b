#pragma once

#include <QString>
#include <QStringList>

namespace brevaro {

// Spelling over dictionaries named by their locale ("en_US", "de_DE"). One checker serves every
// language of the program; a dictionary is read the first time a word of its language is asked
// about, so building a checker costs nothing. The author's own words (the personal list, kept
// on disk) and the words ignored in this run count as correct in every language.
class SpellChecker {
public:
    virtual ~SpellChecker() = default;

    // Whether the dictionary can be used; reads it on the first call.
    virtual bool hasDictionary(const QString& dictionary) = 0;
    // True when the dictionary knows the word, or the author added or ignored it; also true
    // when the dictionary is missing or the word cannot be written in its alphabet.
    virtual bool isCorrect(const QString& dictionary, const QString& word) = 0;
    // The dictionary's proposals for a word, best first, at most max of them.
    virtual QStringList suggestions(const QString& dictionary, const QString& word, int max) = 0;
    // Adds the word to the personal list on disk; false when the list cannot be written.
    virtual bool addToPersonalList(const QString& word) = 0;
    // Accepts the word until the program ends.
    virtual void ignore(const QString& word) = 0;
    // What the author can do to get a missing dictionary, e.g. "install the package ...".
    virtual QString howToInstall(const QString& dictionary) const = 0;
};

} // namespace brevaro

#pragma once

#include "platform/SpellChecker.h"

#include <QStringView>
#include <vector>

namespace brevaro {

// A word of a text: where it starts and how many characters it has.
struct WordSpan {
    qsizetype start = 0;
    qsizetype length = 0;
    friend bool operator==(const WordSpan&, const WordSpan&) = default;
};

// The words of a text that spelling looks at: runs of letters (an apostrophe between letters
// belongs to the word). Words with a digit (Win11, x64), web addresses, file names with an
// extension and e-mail addresses are left out.
std::vector<WordSpan> wordsToCheck(QStringView text);
// The words of the text that the dictionary does not know.
std::vector<WordSpan> misspeltWords(SpellChecker& checker, const QString& dictionary,
                                    QStringView text);

} // namespace brevaro

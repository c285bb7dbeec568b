#include "platform/SpellingWords.h"

namespace brevaro {

namespace {

bool isApostrophe(QChar c) {
    return c == u'\'' || c == u'\u2019';
}

bool isWordLetter(QChar c) {
    return c.isLetter() || c.isMark();
}

// A chunk between blanks that is an address or a file name, not prose: it holds "://", "@"
// or "www.", or a dot with a letter on both sides (example.com, setup.exe).
bool isAddressLike(QStringView chunk) {
    if (chunk.contains(u'@') || chunk.contains(QLatin1String("://")) ||
        chunk.startsWith(QLatin1String("www."), Qt::CaseInsensitive))
        return true;
    for (qsizetype i = 1; i + 1 < chunk.size(); ++i)
        if (chunk[i] == u'.' && chunk[i - 1].isLetterOrNumber() && chunk[i + 1].isLetter())
            return true;
    return false;
}

} // namespace

std::vector<WordSpan> wordsToCheck(QStringView text) {
    std::vector<WordSpan> words;
    const qsizetype n = text.size();
    qsizetype i = 0;
    while (i < n) {
        if (text[i].isSpace()) {
            ++i;
            continue;
        }
        qsizetype end = i;
        while (end < n && !text[end].isSpace())
            ++end;
        const QStringView chunk = text.mid(i, end - i);
        if (!isAddressLike(chunk)) {
            // Runs of letters and digits; a run with a digit is a code, not a word.
            for (qsizetype j = 0; j < chunk.size();) {
                if (!chunk[j].isLetterOrNumber()) {
                    ++j;
                    continue;
                }
                qsizetype k = j;
                bool digit = false;
                while (k < chunk.size() && (chunk[k].isLetterOrNumber() || chunk[k].isMark() ||
                                            (isApostrophe(chunk[k]) && k + 1 < chunk.size() &&
                                             isWordLetter(chunk[k + 1]) && k > j))) {
                    digit = digit || chunk[k].isNumber();
                    ++k;
                }
                if (!digit)
                    words.push_back({i + j, k - j});
                j = k;
            }
        }
        i = end;
    }
    return words;
}

std::vector<WordSpan> misspeltWords(SpellChecker& checker, const QString& dictionary,
                                    QStringView text) {
    std::vector<WordSpan> wrong;
    if (!checker.hasDictionary(dictionary))
        return wrong;
    for (const WordSpan& w : wordsToCheck(text))
        if (!checker.isCorrect(dictionary, text.mid(w.start, w.length).toString()))
            wrong.push_back(w);
    return wrong;
}

} // namespace brevaro

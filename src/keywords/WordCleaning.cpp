#include "keywords/WordCleaning.h"

#include <QSet>
#include <array>
#include <string_view>

namespace brevaro {

namespace {

const QSet<QString>& stopWords() {
    static const QSet<QString> words = [] {
        QSet<QString> set;
        for (const QString& w :
             QString::fromLatin1(kStopWordList.data(), qsizetype(kStopWordList.size())).split(u' '))
            set.insert(w);
        return set;
    }();
    return words;
}

} // namespace

bool isStopWord(QStringView word) {
    if (word.isEmpty() || word.size() > kLongestStopWord)
        return false;
    quint64 key = 0;
    for (qsizetype i = 0; i < word.size(); ++i) {
        char16_t c = word[i].unicode();
        if (c >= 128)
            return stopWords().contains(word.toString().toLower());
        if (c >= u'A' && c <= u'Z')
            c += 32;
        // Lower-casing keeps any other ASCII character, and no stop word has one.
        if (c < u'a' || c > u'z')
            return false;
        key |= quint64(c - u'a' + 1) << (5 * i);
    }
    return isPackedStopWord(key);
}

qsizetype keptCharacters(QStringView piece, char16_t* out) {
    qsizetype n = 0;
    for (QChar c : piece) {
        const char16_t u = c.unicode();
        const CharKind k = u < 128 ? kAsciiRules[u].kind : (u == 0x00A9 ? kRemoved : kKept);
        if (k == kRejecting)
            return -1;
        if (k != kRemoved)
            out[n++] = u;
    }
    return n;
}

qsizetype cleanPiece(QStringView piece, char16_t* word, char16_t* key) {
    const PieceScan scan = scanPiece(piece.utf16(), piece.utf16() + piece.size(), word, key);
    return scan.rejected || isEmptyOrStopWord(scan, word) ? 0 : scan.kept;
}

QString foldedWord(QStringView word) {
    QString f(word.size(), Qt::Uninitialized);
    QChar* out = f.data();
    for (qsizetype i = 0; i < word.size(); ++i)
        out[i] = word[i].toCaseFolded();
    return f;
}

} // namespace brevaro

#include "keywords/WordCleaning.h"

#include <QSet>
#include <array>
#include <string_view>

namespace brevaro {

namespace {

const char* const kStopWordList =
    "a able add after again age ages align all allows also am an and any anything are at "
    "been border both but by can comments div down else etc few following for from fully "
    "get getting give go got had has have having help helps here how href i if in into "
    "input is it its key keys know like lost made make many me more must my no not now of "
    "off on one or other our out own page pages rated remove return same save see select "
    "sent some sometime sorry such take tell thank thanks that the their them then thing "
    "things this through to top under up us use uses using via want was we when where "
    "which who will wish with within without worked year years yet you your";

const QSet<QString>& stopWords() {
    static const QSet<QString> words = [] {
        QSet<QString> set;
        for (const QString& w : QString::fromLatin1(kStopWordList).split(u' '))
            set.insert(w);
        return set;
    }();
    return words;
}

// A word of at most nine letters a to z is packed into five bits a letter, a = 1.

// The stop words packed, in a small table with open addressing; 0 marks a free slot.
constexpr int kStopBits = 9;
using StopTable = std::array<quint64, std::size_t(1) << kStopBits>;

std::size_t stopSlot(quint64 key) {
    return std::size_t((key * 0x9E3779B97F4A7C15ull) >> (64 - kStopBits));
}

const StopTable& packedStopWords() {
    static const StopTable table = [] {
        StopTable t{};
        quint64 key = 0;
        int at = 0;
        for (const char* p = kStopWordList;; ++p) {
            if (*p == ' ' || *p == 0) {
                std::size_t i = stopSlot(key);
                while (t[i] != 0)
                    i = (i + 1) % t.size();
                t[i] = key;
                key = 0;
                at = 0;
                if (*p == 0)
                    break;
            } else {
                key |= quint64(*p - 'a' + 1) << (5 * at++);
            }
        }
        return t;
    }();
    return table;
}

} // namespace

bool isPackedStopWord(quint64 key) {
    const StopTable& table = packedStopWords();
    for (std::size_t i = stopSlot(key);; i = (i + 1) % table.size()) {
        if (table[i] == key)
            return true;
        if (table[i] == 0)
            return false;
    }
}

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

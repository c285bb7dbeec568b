#pragma once

#include <QChar>
#include <QString>
#include <QStringView>
#include <algorithm>
#include <array>
#include <string_view>

namespace brevaro {

// The rules that turn a piece of a page into a word worth counting (see KeywordList).

// What a character does to a piece: it is kept, removed, rejects the piece, or (the blank)
// ends it.
enum CharKind : unsigned char { kKept, kRemoved, kRejecting, kBlank };

// For each ASCII character: its kind, its case-folded form, and for the letters a to z in
// either case their place in the alphabet from 1 (0 for any other character).
struct AsciiRule {
    char16_t key;
    CharKind kind;
    unsigned char letter;
};

// The 17 removed and 24 rejecting characters (the copyright sign, also removed, is not
// ASCII); every other character is kept.
inline constexpr std::array<AsciiRule, 128> kAsciiRules = [] {
    std::array<AsciiRule, 128> t{};
    for (char16_t c = 0; c < 128; ++c)
        t[c] = {c, kKept, 0};
    for (char16_t c = u'A'; c <= u'Z'; ++c)
        t[c] = {char16_t(c + 32), kKept, static_cast<unsigned char>(c - u'A' + 1)};
    for (char16_t c = u'a'; c <= u'z'; ++c)
        t[c].letter = static_cast<unsigned char>(c - u'a' + 1);
    for (char c : std::string_view(".\",!?:'_|[]()\r\n\t"))
        t[static_cast<unsigned char>(c)].kind = kRemoved;
    for (char c : std::string_view("0123456789-+<>/\\$&;{}%=@"))
        t[static_cast<unsigned char>(c)].kind = kRejecting;
    t[u' '].kind = kBlank;
    return t;
}();

inline constexpr qsizetype kLongestStopWord = 9;

// Copies the kept characters of piece to out, which has room for all of piece; how many,
// or -1 when a character rejects the word.
qsizetype keptCharacters(QStringView piece, char16_t* out);
// Whether word, as cleaned and before trimming, is a stop word, case ignored. Words of plain
// ASCII are answered without building a string; others take the full lower-casing.
bool isStopWord(QStringView word);

inline constexpr std::string_view kStopWordList =
    "a able add after again age ages align all allows also am an and any anything are at "
    "been border both but by can comments div down else etc few following for from fully "
    "get getting give go got had has have having help helps here how href i if in into "
    "input is it its key keys know like lost made make many me more must my no not now of "
    "off on one or other our out own page pages rated remove return same save see select "
    "sent some sometime sorry such take tell thank thanks that the their them then thing "
    "things this through to top under up us use uses using via want was we when where "
    "which who will wish with within without worked year years yet you your";

// A word of at most nine letters a to z is packed five bits a letter (a = 1, the first
// letter in the lowest bits). The stop words packed sit in a small table with open
// addressing, made when the program is built; 0 marks a free slot.
inline constexpr int kStopBits = 9;

constexpr std::size_t stopSlot(quint64 key) {
    return std::size_t((key * 0x9E3779B97F4A7C15ull) >> (64 - kStopBits));
}

inline constexpr std::array<quint64, std::size_t(1) << kStopBits> kPackedStopWords = [] {
    std::array<quint64, std::size_t(1) << kStopBits> t{};
    quint64 key = 0;
    int at = 0;
    for (std::size_t p = 0; p <= kStopWordList.size(); ++p) {
        if (p == kStopWordList.size() || kStopWordList[p] == ' ') {
            std::size_t i = stopSlot(key);
            while (t[i] != 0)
                i = (i + 1) % t.size();
            t[i] = key;
            key = 0;
            at = 0;
        } else {
            key |= quint64(kStopWordList[p] - 'a' + 1) << (5 * at++);
        }
    }
    return t;
}();

// Whether the packed word is a stop word.
inline bool isPackedStopWord(quint64 key) {
    for (std::size_t i = stopSlot(key);; i = (i + 1) % kPackedStopWords.size()) {
        if (kPackedStopWords[i] == key)
            return true;
        if (kPackedStopWords[i] == 0)
            return false;
    }
}

// A piece cleaned on the way to its end.
struct PieceScan {
    const char16_t* end; // where the scan stopped: a blank, a rejecting character, or the limit
    qsizetype kept = 0;  // characters written
    bool rejected = false;
    bool ascii = true;
    bool lettersOnly = true; // nothing but letters a to z, in either case
    quint64 stopKey = 0;     // the letters packed as isPackedStopWord takes them, while few
};

// Cleans the text from p on as CleanWord cleans a piece, until a blank, a rejecting character
// or limit: the kept characters go to word and, with simple case folding character by
// character, to key (both with room for limit - p characters). One pass does it all:
// removing, rejecting, folding and packing for the stop-word test.
inline PieceScan scanPiece(const char16_t* p, const char16_t* limit, char16_t* word,
                           char16_t* key) {
    PieceScan s;
    qsizetype n = 0;
    for (; p < limit; ++p) {
        const char16_t c = *p;
        if (c < 128) {
            const AsciiRule r = kAsciiRules[c];
            if (r.kind != kKept) {
                if (r.kind == kRemoved)
                    continue;
                s.rejected = r.kind == kRejecting;
                break;
            }
            // Past twelve letters the key is not used, and the shift stays in range.
            s.stopKey |= quint64(r.letter) << (5 * std::min<qsizetype>(n, 12));
            s.lettersOnly = s.lettersOnly && r.letter != 0;
            word[n] = c;
            key[n++] = r.key;
        } else if (c != 0x00A9) {
            s.ascii = false;
            word[n] = c;
            key[n++] = QChar(c).toCaseFolded().unicode();
        }
    }
    s.end = p;
    s.kept = n;
    return s;
}

// Whether the piece scanned into word is empty or a stop word.
inline bool isEmptyOrStopWord(const PieceScan& s, const char16_t* word) {
    if (s.kept == 0)
        return true;
    if (s.ascii)
        return s.lettersOnly && s.kept <= kLongestStopWord && isPackedStopWord(s.stopKey);
    return isStopWord(QStringView(word, s.kept));
}

// A piece cut from a text at blanks (so without blanks) cleaned as CleanWord cleans it,
// into word and key as scanPiece writes them: how many characters are left, 0 when none are,
// when a character rejects the piece or when it is a stop word.
qsizetype cleanPiece(QStringView piece, char16_t* word, char16_t* key);
// Simple case folding, character by character.
QString foldedWord(QStringView word);

} // namespace brevaro

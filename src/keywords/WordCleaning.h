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
// A word of at most nine letters a to z packed five bits a letter (a = 1, first letter in
// the lowest bits): whether it is a stop word.
bool isPackedStopWord(quint64 key);

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

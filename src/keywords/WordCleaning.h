#pragma once

#include <QString>
#include <QStringView>

namespace brevaro {

// The rules that turn a piece of a page into a word worth counting (see KeywordList).

// Copies the kept characters of piece to out, which has room for all of piece; how many,
// or -1 when a character rejects the word.
qsizetype keptCharacters(QStringView piece, char16_t* out);
// Whether word, as cleaned and before trimming, is a stop word, case ignored. Words of plain
// ASCII are answered without building a string; others take the full lower-casing.
bool isStopWord(QStringView word);
// A word of at most nine letters a to z packed five bits a letter (a = 1, first letter in
// the lowest bits): whether it is a stop word.
bool isPackedStopWord(quint64 key);
// A piece cut from a text at blanks (so without blanks) cleaned as CleanWord cleans it,
// into word and, with simple case folding character by character, into key; both have room
// for the piece. How many characters are left: 0 when none are, when a character rejects
// the piece or when it is a stop word.
qsizetype cleanPiece(QStringView piece, char16_t* word, char16_t* key);
// Simple case folding, character by character.
QString foldedWord(QStringView word);

} // namespace brevaro

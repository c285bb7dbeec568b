#pragma once

#include "keywords/FoldedWordTable.h"
#include "platform/LargePageAllocator.h"

#include <QStringView>
#include <array>
#include <functional>
#include <vector>

namespace brevaro {

// The words of a text counted in one pass: the text is cut into pieces at blanks, each piece
// cleaned by the keyword rules, and each distinct case-folded word kept once, numbered in
// order of first appearance, with how often it came and how it was first written. Then, for
// every word, the earliest-numbered word that begins with it (case ignored): the one its
// count goes to when a list kept in order of first appearance is searched by prefix.
class WordTally {
public:
    using CharStore = std::vector<char16_t, LargePageAllocator<char16_t>>;

    // Room for about n distinct words.
    void reserve(std::size_t n);

    // A word listed before the text, numbered before the words of the text; its count
    // starts at 0 and counts only the text's words. Its number.
    int seed(QStringView word, QStringView key);
    // Counts the pieces of a text that may come in parts: a piece that a part leaves open
    // is finished by the next. pump, when set, runs every few thousand pieces.
    void addText(QStringView part, const std::function<void()>& pump = {});
    // Ends the text; what follows its last blank is not counted.
    void finishText();

    int size() const { return static_cast<int>(m_count.size()); }
    QStringView word(int id) const;
    QStringView key(int id) const;
    int count(int id) const { return m_count[std::size_t(id)]; }
    quint32 start(int id) const { return m_start[std::size_t(id)]; }
    // Puts a word into the stores without counting it; where it starts.
    quint32 keepWord(QStringView word, QStringView key);
    // The stores word() and key() point into, for a list to take over: each word is at
    // start(id) in both.
    CharStore takeWords() { return std::move(m_words); }
    CharStore takeKeys() { return std::move(m_keys); }

    // For every word, the lowest-numbered word whose key begins with its key (perhaps itself).
    std::vector<int> targets() const;

private:
    // Cleans a whole piece into the batch and queues it.
    void addPiece(QStringView piece);
    // Queues the word of kept characters just cleaned into the batch.
    void queue(qsizetype kept);
    void flush();
    int insert(QStringView word, QStringView key, quint64 hash, int count);
    auto keyOf() const {
        return [this](int id) {
            return key(id);
        };
    }
    // Lexicographic order of two keys, by UTF-16 units.
    int compareKeys(int a, int b) const;

    FoldedWordTable m_table;
    // The keys and the first spellings, back to back; word id is at m_start[id] in both.
    CharStore m_keys;
    CharStore m_words;
    std::vector<quint32, LargePageAllocator<quint32>> m_start;
    std::vector<quint32, LargePageAllocator<quint32>> m_length;
    std::vector<int, LargePageAllocator<int>> m_count;

    // Pieces are cleaned and folded a batch at a time, and the table slots of a batch asked
    // for before any is looked up, so that their cache misses overlap.
    struct Pending {
        qsizetype at;
        qsizetype length;
        quint64 hash;
    };
    static constexpr int kBatch = 16;
    std::array<Pending, kBatch> m_pending;
    int m_waiting = 0;
    std::vector<char16_t> m_batchWords = std::vector<char16_t>(4096);
    std::vector<char16_t> m_batchKeys = std::vector<char16_t>(4096);
    qsizetype m_batchUsed = 0;
    // The piece a part left open.
    std::vector<char16_t> m_open;
    int m_pieces = 0;
};

} // namespace brevaro

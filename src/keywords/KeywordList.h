#pragma once

#include "keywords/KeywordEntry.h"
#include "keywords/WordTally.h"
#include "platform/LargePageAllocator.h"

#include <QString>
#include <functional>
#include <vector>

namespace brevaro {

// The word list of the keyword suggester. While words are counted the list keeps the order
// in which they first came, and FindWord, a prefix search, takes the first match in that
// order; when SplitWords has counted a text, the list is sorted by its sort column (by
// default the count, highest first, ties in order of first appearance).
class KeywordList {
public:
    KeywordList();

    void clear();
    // Cuts the text into pieces at blanks and counts each as CountWord would, then sorts the
    // list; the text after the last blank is not counted. pump, when set, runs now and then
    // so a window stays responsive.
    void SplitWords(QStringView buffer, const std::function<void()>& pump = {});
    void CountWord(QStringView piece);
    // The word left after removing punctuation, or empty for numbers, markup and stop words.
    static QString CleanWord(QStringView piece);
    // Index (in list order) of the first entry that begins with word, case ignored; -1.
    int FindWord(QStringView word) const;
    // Ticks every entry counted three times or more.
    void CheckFrequentWords();
    // The ticked words in list order, joined by ", ", at most 128 characters; current when
    // no ticked word fits.
    QString RebuildKeywords(const QString& current) const;

    // Sorting by a column header: 0 the word (ascending), 1 the count (descending); entries
    // that compare equal keep their order.
    void sortByColumn(int column);
    int sortColumn() const { return m_sortColumn; }

    // The entries in list order.
    std::vector<KeywordEntry> entries() const;
    int size() const { return static_cast<int>(m_order.size()); }
    void setTicked(int index, bool ticked);

private:
    QStringView wordOf(int entry) const;
    QStringView keyOf(int entry) const;
    // Adds an entry at the end of the list with a count of 0.
    int addEntry(QStringView word, QStringView key);
    // The same for a word already in the stores.
    int addEntry(quint32 start, qsizetype length);
    void reserveEntries(std::size_t entries);

    friend class KeywordCounting;

    // Entry i (numbered in order of first appearance) is written m_words[m_start[i]...] and,
    // case-folded, m_keys[m_start[i]...], m_length[i] characters in both.
    std::vector<char16_t, LargePageAllocator<char16_t>> m_words;
    std::vector<char16_t, LargePageAllocator<char16_t>> m_keys;
    std::vector<quint32, LargePageAllocator<quint32>> m_start;
    std::vector<quint32, LargePageAllocator<quint32>> m_length;
    std::vector<int, LargePageAllocator<int>> m_counts;
    std::vector<char, LargePageAllocator<char>> m_ticked;
    // The entries in list order.
    std::vector<int, LargePageAllocator<int>> m_order;
    int m_sortColumn = 1;
};

// Counts a text that comes in parts into a list, as SplitWords counts the parts joined.
class KeywordCounting {
public:
    // expectedCharacters: about how long the whole text is, to size the tables.
    KeywordCounting(KeywordList& list, std::size_t expectedCharacters);
    void add(QStringView part, const std::function<void()>& pump = {});
    // Ends the text, brings the counts into the list and sorts it.
    void finish();

private:
    KeywordList& m_list;
    WordTally m_tally;
    // The entries listed when counting began, in list order, and their words' numbers.
    std::vector<int> m_listed;
    std::vector<int> m_listedIds;
};

} // namespace brevaro

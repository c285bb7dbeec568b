#pragma once

#include "keywords/EdgeTable.h"
#include "keywords/FoldedWordTable.h"
#include "keywords/LargePageAllocator.h"

#include <QString>
#include <QStringList>
#include <functional>
#include <vector>

namespace brevaro {

// One counted word: the word as first met, its count and whether it is ticked.
struct KeywordEntry {
    QString word;
    int count = 0;
    bool ticked = false;
    int firstSeen = 0;

    // "001" to "999", then "1000" and on.
    QString countText() const;
};

// The word list of the keyword suggester. While counting it is ordered by count, highest
// first, ties in order of first appearance; FindWord is a prefix search in that order,
// answered from a case-folded prefix tree so that counting stays linear in the page.
class KeywordList {
public:
    KeywordList();

    void clear();
    // Cuts the text into pieces at blanks and counts each; the text after the last blank
    // is not counted. pump, when set, runs now and then so a window stays responsive.
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

    // Sorting by a column header: 0 the word (ascending), 1 the count (descending).
    void sortByColumn(int column);
    int sortColumn() const { return m_sortColumn; }

    // The entries in list order.
    std::vector<KeywordEntry> entries() const;
    int size() const { return static_cast<int>(m_entries.size()); }
    void setTicked(int index, bool ticked);

private:
    // A node of the prefix tree. The edge into it is labelled with labelLength folded
    // characters at labelStart in m_keys; the node stands for the first depth characters.
    struct Node {
        int parent = -1;
        int best = -1; // entry with the highest count in this subtree, earliest on a tie
        quint32 labelStart = 0;
        int labelLength = 0;
        int depth = 0;
    };
    // Where the search for a word that no entry begins with left the tree: below node after
    // pos characters, and when child >= 0 part way along the edge into child, after matched
    // further characters.
    struct Miss {
        int node = 0;
        qsizetype pos = 0;
        int child = -1;
        qsizetype matched = 0;
    };
    bool beats(int a, int b) const;
    int findEntry(QStringView folded, Miss* miss = nullptr) const;
    void addToTree(int entry, QStringView folded, const Miss& miss);
    void raiseInTree(int entry);
    std::vector<int> order() const;

    // The entries in order of first appearance; their counts are kept apart in m_counts,
    // which the ranking reads for every counted word.
    std::vector<KeywordEntry, LargePageAllocator<KeywordEntry>> m_entries;
    std::vector<int, LargePageAllocator<int>> m_counts;
    std::vector<Node, LargePageAllocator<Node>> m_nodes;
    EdgeTable m_edges;
    std::vector<int, LargePageAllocator<int>> m_entryNode;
    // The folded words of the entries, back to back; the edge labels point into it.
    std::vector<char16_t, LargePageAllocator<char16_t>> m_keys;
    // Words met before map straight to their node, so a repeated word is one lookup.
    mutable FoldedWordTable m_knownPrefixes;
    // Scratch space for the word being counted: cleaned, then case-folded.
    std::vector<char16_t> m_cleaned;
    std::vector<char16_t> m_folded;
    int m_sortColumn = 1;
};

} // namespace brevaro

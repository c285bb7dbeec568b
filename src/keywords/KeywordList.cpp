#include "keywords/KeywordList.h"

#include "keywords/WordCleaning.h"
#include "platform/StringHelpers.h"

#include <algorithm>

namespace brevaro {

namespace {

constexpr int kMaxKeywords = 128;

} // namespace

QString KeywordEntry::countText() const {
    return count < 1000 ? QStringLiteral("%1").arg(count, 3, 10, QLatin1Char('0'))
                        : QString::number(count);
}

KeywordList::KeywordList() {
    clear();
}

void KeywordList::clear() {
    m_words.clear();
    m_keys.clear();
    m_start.clear();
    m_length.clear();
    m_counts.clear();
    m_ticked.clear();
    m_order.clear();
    m_sortColumn = 1;
}

QString KeywordList::CleanWord(QStringView piece) {
    QString word(piece.size(), Qt::Uninitialized);
    const qsizetype n = keptCharacters(piece, reinterpret_cast<char16_t*>(word.data()));
    if (n < 0)
        return QString();
    word.truncate(n);
    if (isStopWord(word))
        return QString();
    return trimBlanks(word);
}

QStringView KeywordList::wordOf(int entry) const {
    return QStringView(m_words.data() + m_start[std::size_t(entry)],
                       qsizetype(m_length[std::size_t(entry)]));
}

QStringView KeywordList::keyOf(int entry) const {
    return QStringView(m_keys.data() + m_start[std::size_t(entry)],
                       qsizetype(m_length[std::size_t(entry)]));
}

int KeywordList::addEntry(QStringView word, QStringView key) {
    const auto start = quint32(m_words.size());
    m_words.insert(m_words.end(), word.utf16(), word.utf16() + word.size());
    m_keys.insert(m_keys.end(), key.utf16(), key.utf16() + key.size());
    return addEntry(start, word.size());
}

int KeywordList::addEntry(quint32 start, qsizetype length) {
    const auto entry = static_cast<int>(m_start.size());
    m_start.push_back(start);
    m_length.push_back(quint32(length));
    m_counts.push_back(0);
    m_ticked.push_back(0);
    m_order.push_back(entry);
    return entry;
}

void KeywordList::reserveEntries(std::size_t entries) {
    const std::size_t n = m_start.size() + entries;
    m_start.reserve(n);
    m_length.reserve(n);
    m_counts.reserve(n);
    m_ticked.reserve(n);
    m_order.reserve(n);
}

int KeywordList::FindWord(QStringView word) const {
    const QString key = foldedWord(word);
    for (int i = 0; i < size(); ++i)
        if (keyOf(m_order[std::size_t(i)]).startsWith(key))
            return i;
    return -1;
}

void KeywordList::CountWord(QStringView piece) {
    const QString word = CleanWord(piece);
    if (word.isEmpty())
        return;
    const int at = FindWord(word);
    const int entry = at >= 0 ? m_order[std::size_t(at)] : addEntry(word, foldedWord(word));
    ++m_counts[std::size_t(entry)];
}

void KeywordList::SplitWords(QStringView buffer, const std::function<void()>& pump) {
    KeywordCounting counting(*this, std::size_t(buffer.size()));
    counting.add(buffer, pump);
    counting.finish();
    if (pump)
        pump();
}

KeywordCounting::KeywordCounting(KeywordList& list, std::size_t expectedCharacters)
    : m_list(list)
    , m_listed(list.m_order.begin(), list.m_order.end()) {
    // A distinct word in every hundred or so characters, so that a big page does not keep
    // growing the tables.
    m_tally.reserve(expectedCharacters / 128 + m_listed.size());
    m_listedIds.reserve(m_listed.size());
    for (int entry : m_listed)
        m_listedIds.push_back(m_tally.seed(list.wordOf(entry), list.keyOf(entry)));
}

void KeywordCounting::add(QStringView part, const std::function<void()>& pump) {
    m_tally.addText(part, pump);
}

// Every distinct word was counted once; now each one's count goes to the first listed entry
// that begins with it: one listed before, or the earliest word of the text that does, which
// becomes a new entry. The list takes over the tally's stores of words, which hold the
// listed entries' words too.
void KeywordCounting::finish() {
    m_tally.finishText();
    const std::vector<int> target = m_tally.targets();
    KeywordList& list = m_list;
    std::vector<int> entryOf(target.size(), -1);
    // (The list is not meant to change while it counts. Should it, no entry points outside
    // the stores: a listed entry that has gone is counted as a word of the text, and one
    // added since keeps its word.)
    for (std::size_t k = 0; k < m_listed.size(); ++k) {
        const int entry = m_listed[k];
        if (entry >= list.size())
            continue;
        entryOf[std::size_t(m_listedIds[k])] = entry;
        list.m_start[std::size_t(entry)] = m_tally.start(m_listedIds[k]);
    }
    for (auto entry = static_cast<int>(m_listed.size()); entry < list.size(); ++entry)
        list.m_start[std::size_t(entry)] = m_tally.keepWord(list.wordOf(entry), list.keyOf(entry));
    std::size_t added = 0;
    for (int id = 0; id < m_tally.size(); ++id)
        added += target[std::size_t(id)] == id && entryOf[std::size_t(id)] < 0 ? 1 : 0;
    list.reserveEntries(added);
    for (int id = 0; id < m_tally.size(); ++id) {
        const int to = target[std::size_t(id)];
        if (to == id && entryOf[std::size_t(id)] < 0)
            entryOf[std::size_t(id)] = list.addEntry(m_tally.start(id), m_tally.key(id).size());
        list.m_counts[std::size_t(entryOf[std::size_t(to)])] += m_tally.count(id);
    }
    list.m_words = m_tally.takeWords();
    list.m_keys = m_tally.takeKeys();
    list.sortByColumn(list.m_sortColumn);
}

void KeywordList::CheckFrequentWords() {
    for (std::size_t i = 0; i < m_counts.size(); ++i)
        if (m_counts[i] > 2)
            m_ticked[i] = 1;
}

QString KeywordList::RebuildKeywords(const QString& current) const {
    QString text;
    for (int entry : m_order) {
        const QStringView word = wordOf(entry);
        if (m_ticked[std::size_t(entry)] && text.size() + word.size() <= kMaxKeywords)
            text += word.toString() + QStringLiteral(", ");
    }
    text = trimBlanks(text);
    return text.isEmpty() ? current : text.chopped(1);
}

// Entries that compare equal stay in order of first appearance.
void KeywordList::sortByColumn(int column) {
    m_sortColumn = column == 0 ? 0 : 1;
    if (m_sortColumn == 0) {
        std::sort(m_order.begin(), m_order.end(), [this](int a, int b) {
            const int c = wordOf(a).compare(wordOf(b), Qt::CaseInsensitive);
            return c < 0 || (c == 0 && a < b);
        });
        return;
    }
    const int n = size();
    const int highest = n == 0 ? 0 : *std::max_element(m_counts.begin(), m_counts.end());
    if (highest > 4 * n + 1024) {
        std::sort(m_order.begin(), m_order.end(), [this](int a, int b) {
            const int x = m_counts[std::size_t(a)];
            const int y = m_counts[std::size_t(b)];
            return x > y || (x == y && a < b);
        });
        return;
    }
    // Counts are small numbers: the entries are dealt into one place per count, highest first,
    // in order of first appearance.
    std::vector<int> starts(std::size_t(highest) + 2, 0);
    for (int count : m_counts)
        ++starts[std::size_t(highest - count) + 1];
    for (std::size_t i = 1; i < starts.size(); ++i)
        starts[i] += starts[i - 1];
    for (int entry = 0; entry < n; ++entry)
        m_order[std::size_t(starts[std::size_t(highest - m_counts[std::size_t(entry)])]++)] = entry;
}

std::vector<KeywordEntry> KeywordList::entries() const {
    std::vector<KeywordEntry> out;
    out.reserve(m_order.size());
    for (int entry : m_order)
        out.push_back({wordOf(entry).toString(), m_counts[std::size_t(entry)],
                       m_ticked[std::size_t(entry)] != 0});
    return out;
}

void KeywordList::setTicked(int index, bool ticked) {
    if (index >= 0 && index < size())
        m_ticked[std::size_t(m_order[std::size_t(index)])] = ticked ? 1 : 0;
}

} // namespace brevaro

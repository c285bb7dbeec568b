#include "keywords/KeywordList.h"

#include "platform/StringHelpers.h"

#include <QSet>
#include <algorithm>
#include <array>
#include <string_view>

namespace brevaro {

namespace {

constexpr int kMaxKeywords = 128;

enum CharClass : unsigned char { kKeep, kRemove, kReject };

// The 17 removed and 24 rejecting characters; every other character is kept.
const std::array<CharClass, 128>& asciiClasses() {
    static const std::array<CharClass, 128> table = [] {
        std::array<CharClass, 128> t{};
        for (char c : std::string_view(".\",!?:'_|[]()\r\n\t"))
            t[static_cast<unsigned char>(c)] = kRemove;
        for (char c : std::string_view("0123456789-+<>/\\$&;{}%=@"))
            t[static_cast<unsigned char>(c)] = kReject;
        return t;
    }();
    return table;
}

constexpr qsizetype kLongestStopWord = 9;

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

// Whether word, as cleaned and before trimming, is a stop word, case ignored. Words of plain
// ASCII are answered without building a string; others take the full lower-casing.
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
    const StopTable& table = packedStopWords();
    for (std::size_t i = stopSlot(key);; i = (i + 1) % table.size()) {
        if (table[i] == key)
            return true;
        if (table[i] == 0)
            return false;
    }
}

// Copies the kept characters of piece to out, which has room for all of piece; how many,
// or -1 when a character rejects the word.
qsizetype keptCharacters(QStringView piece, char16_t* out) {
    const auto& classes = asciiClasses();
    qsizetype n = 0;
    for (QChar c : piece) {
        const char16_t u = c.unicode();
        const CharClass k = u < 128 ? classes[u] : (u == 0x00A9 ? kRemove : kKeep);
        if (k == kReject)
            return -1;
        if (k == kKeep)
            out[n++] = u;
    }
    return n;
}

QStringView withoutBlanks(QStringView text) {
    qsizetype begin = 0;
    qsizetype end = text.size();
    while (begin < end && text[begin] == u' ')
        ++begin;
    while (end > begin && text[end - 1] == u' ')
        --end;
    return text.sliced(begin, end - begin);
}

// Simple case folding, character by character, into out.
void foldInto(QStringView word, char16_t* out) {
    for (qsizetype i = 0; i < word.size(); ++i) {
        const char16_t c = word[i].unicode();
        if (c < 128)
            out[i] = c >= u'A' && c <= u'Z' ? char16_t(c + 32) : c;
        else
            out[i] = word[i].toCaseFolded().unicode();
    }
}

QString folded(QStringView word) {
    QString f(word.size(), Qt::Uninitialized);
    QChar* out = f.data();
    for (qsizetype i = 0; i < word.size(); ++i)
        out[i] = word[i].toCaseFolded();
    return f;
}

} // namespace

QString KeywordEntry::countText() const {
    return count < 1000 ? QStringLiteral("%1").arg(count, 3, 10, QLatin1Char('0'))
                        : QString::number(count);
}

KeywordList::KeywordList() {
    clear();
}

void KeywordList::clear() {
    m_entries.clear();
    m_counts.clear();
    m_nodes.assign(1, Node{});
    m_edges.clear();
    m_entryNode.clear();
    m_keys.clear();
    m_knownPrefixes.clear();
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

bool KeywordList::beats(int a, int b) const {
    if (b < 0)
        return true;
    const int x = m_counts[std::size_t(a)];
    const int y = m_counts[std::size_t(b)];
    // An entry's index is its order of first appearance.
    return x > y || (x == y && a < b);
}

int KeywordList::findEntry(QStringView word, Miss* miss) const {
    const quint64 hash = FoldedWordTable::hashOf(word);
    int known = m_knownPrefixes.find(word, hash);
    if (known >= 0) {
        // An edge split since may have put a node for a shorter prefix above the one kept.
        for (int up = m_nodes[std::size_t(known)].parent;
             up >= 0 && m_nodes[std::size_t(up)].depth >= word.size();
             up = m_nodes[std::size_t(up)].parent)
            known = up;
        return m_nodes[std::size_t(known)].best;
    }
    int node = 0;
    qsizetype pos = 0;
    while (pos < word.size()) {
        const int child = m_edges.find(EdgeTable::keyOf(node, word[pos].unicode()));
        if (child < 0) {
            if (miss)
                *miss = {node, pos, -1, 0};
            return -1;
        }
        const Node& c = m_nodes[std::size_t(child)];
        const char16_t* label = m_keys.data() + c.labelStart;
        const qsizetype room = std::min<qsizetype>(c.labelLength, word.size() - pos);
        qsizetype matched = 1;
        while (matched < room && label[matched] == word[pos + matched].unicode())
            ++matched;
        if (matched < room) {
            if (miss)
                *miss = {node, pos, child, matched};
            return -1;
        }
        // Either the whole edge matched, or the word ends on it and child's entries all
        // begin with it.
        node = child;
        pos += matched;
    }
    m_knownPrefixes.insert(word, hash, node);
    return m_nodes[std::size_t(node)].best;
}

// A new entry has the lowest count and came last, so it takes over no existing node: only
// the nodes made for it (and the root of an empty list) get it as their best.
void KeywordList::addToTree(int entry, QStringView word, const Miss& miss) {
    const auto start = quint32(m_keys.size());
    m_keys.insert(m_keys.end(), word.utf16(), word.utf16() + word.size());
    if (m_nodes[0].best < 0)
        m_nodes[0].best = entry;
    int parent = miss.node;
    qsizetype pos = miss.pos;
    if (miss.child >= 0) {
        // Split the edge into the child where the word leaves it.
        const int child = miss.child;
        const int matched = static_cast<int>(miss.matched);
        const Node old = m_nodes[std::size_t(child)];
        const int middle = static_cast<int>(m_nodes.size());
        m_nodes.push_back(Node{parent, old.best, old.labelStart, matched,
                               m_nodes[std::size_t(parent)].depth + matched});
        m_edges.replace(EdgeTable::keyOf(parent, word[pos].unicode()), middle);
        Node& lower = m_nodes[std::size_t(child)];
        lower.parent = middle;
        lower.labelStart += quint32(matched);
        lower.labelLength -= matched;
        m_edges.insert(EdgeTable::keyOf(middle, m_keys[lower.labelStart]), child);
        parent = middle;
        pos += matched;
    }
    const int leaf = static_cast<int>(m_nodes.size());
    m_nodes.push_back(Node{parent, entry, start + quint32(pos), static_cast<int>(word.size() - pos),
                           static_cast<int>(word.size())});
    m_edges.insert(EdgeTable::keyOf(parent, word[pos].unicode()), leaf);
    m_knownPrefixes.insert(word, FoldedWordTable::hashOf(word), leaf);
    m_entryNode.push_back(leaf);
}

// A count only grows, so the entry can only take over nodes on its own path; and where it
// does not win, no node above can be won either (their best is at least as high).
void KeywordList::raiseInTree(int entry) {
    for (int node = m_entryNode[std::size_t(entry)]; node >= 0;
         node = m_nodes[std::size_t(node)].parent) {
        int& best = m_nodes[std::size_t(node)].best;
        if (beats(entry, best))
            best = entry;
        else if (best != entry)
            break;
    }
}

void KeywordList::CountWord(QStringView piece) {
    if (m_cleaned.size() < std::size_t(piece.size())) {
        m_cleaned.resize(std::size_t(piece.size()));
        m_folded.resize(std::size_t(piece.size()));
    }
    const qsizetype kept = keptCharacters(piece, m_cleaned.data());
    if (kept <= 0)
        return;
    QStringView word(m_cleaned.data(), kept);
    if (isStopWord(word))
        return;
    word = withoutBlanks(word);
    if (word.isEmpty())
        return;
    foldInto(word, m_folded.data());
    const QStringView key(m_folded.data(), word.size());
    Miss miss;
    const int found = findEntry(key, &miss);
    if (found >= 0) {
        ++m_counts[std::size_t(found)];
        raiseInTree(found);
        return;
    }
    const int entry = static_cast<int>(m_entries.size());
    m_entries.push_back({word.toString(), 0, false, entry});
    m_counts.push_back(1);
    addToTree(entry, key, miss);
}

void KeywordList::SplitWords(QStringView buffer, const std::function<void()>& pump) {
    if (m_entries.empty()) {
        // Room for an entry in every few dozen characters, so a big page does not keep
        // moving them.
        const auto expected = std::size_t(buffer.size() / 64);
        m_entries.reserve(expected);
        m_counts.reserve(expected);
        m_entryNode.reserve(expected);
    }
    qsizetype start = 0;
    int counted = 0;
    while (true) {
        const qsizetype blank = buffer.indexOf(u' ', start);
        if (blank < 0)
            break;
        CountWord(withoutBlanks(buffer.sliced(start, blank - start + 1)));
        start = blank + 1;
        if (pump && ++counted % 4096 == 0)
            pump();
    }
    if (pump)
        pump();
}

std::vector<int> KeywordList::order() const {
    std::vector<int> idx(m_entries.size());
    for (std::size_t i = 0; i < idx.size(); ++i)
        idx[i] = static_cast<int>(i);
    if (m_sortColumn == 0)
        std::stable_sort(idx.begin(), idx.end(), [&](int a, int b) {
            const int c = QString::compare(m_entries[std::size_t(a)].word,
                                           m_entries[std::size_t(b)].word, Qt::CaseInsensitive);
            return c < 0;
        });
    else
        std::stable_sort(idx.begin(), idx.end(), [&](int a, int b) { return beats(a, b); });
    return idx;
}

int KeywordList::FindWord(QStringView word) const {
    const int entry = findEntry(folded(word));
    if (entry < 0)
        return -1;
    const std::vector<int> idx = order();
    return static_cast<int>(std::find(idx.begin(), idx.end(), entry) - idx.begin());
}

void KeywordList::CheckFrequentWords() {
    for (std::size_t i = 0; i < m_entries.size(); ++i)
        if (m_counts[i] > 2)
            m_entries[i].ticked = true;
}

QString KeywordList::RebuildKeywords(const QString& current) const {
    QString text;
    for (int i : order()) {
        const KeywordEntry& e = m_entries[std::size_t(i)];
        if (e.ticked && text.size() + e.word.size() <= kMaxKeywords)
            text += e.word + QStringLiteral(", ");
    }
    text = trimBlanks(text);
    return text.isEmpty() ? current : text.chopped(1);
}

void KeywordList::sortByColumn(int column) {
    m_sortColumn = column == 0 ? 0 : 1;
}

std::vector<KeywordEntry> KeywordList::entries() const {
    std::vector<KeywordEntry> out;
    out.reserve(m_entries.size());
    for (int i : order()) {
        out.push_back(m_entries[std::size_t(i)]);
        out.back().count = m_counts[std::size_t(i)];
    }
    return out;
}

void KeywordList::setTicked(int index, bool ticked) {
    const std::vector<int> idx = order();
    if (index >= 0 && index < static_cast<int>(idx.size()))
        m_entries[std::size_t(idx[std::size_t(index)])].ticked = ticked;
}

} // namespace brevaro

#include "keywords/KeywordList.h"

#include "platform/StringHelpers.h"

#include <QSet>
#include <algorithm>
#include <array>
#include <string_view>

namespace brevaro {

namespace {

// Words longer than this share the node at this depth and are compared one by one.
constexpr int kTreeDepth = 48;
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

const QSet<QString>& stopWords() {
    static const QSet<QString> words = [] {
        const char* list =
            "a able add after again age ages align all allows also am an and any anything are at "
            "been border both but by can comments div down else etc few following for from fully "
            "get getting give go got had has have having help helps here how href i if in into "
            "input is it its key keys know like lost made make many me more must my no not now of "
            "off on one or other our out own page pages rated remove return same save see select "
            "sent some sometime sorry such take tell thank thanks that the their them then thing "
            "things this through to top under up us use uses using via want was we when where "
            "which who will wish with within without worked year years yet you your";
        QSet<QString> set;
        for (const QString& w : QString::fromLatin1(list).split(u' '))
            set.insert(w);
        return set;
    }();
    return words;
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
    m_folded.clear();
    m_nodes.assign(1, Node{});
    m_edges.clear();
    m_entryNode.clear();
    m_knownPrefixes.clear();
    m_sortColumn = 1;
}

QString KeywordList::CleanWord(QStringView piece) {
    const auto& classes = asciiClasses();
    QString word(piece.size(), Qt::Uninitialized);
    QChar* out = word.data();
    qsizetype n = 0;
    for (QChar c : piece) {
        const char16_t u = c.unicode();
        const CharClass k = u < 128 ? classes[u] : (u == 0x00A9 ? kRemove : kKeep);
        if (k == kReject)
            return QString();
        if (k == kKeep)
            out[n++] = c;
    }
    word.truncate(n);
    if (n <= kLongestStopWord && stopWords().contains(word.toLower()))
        return QString();
    return trimBlanks(word);
}

bool KeywordList::beats(int a, int b) const {
    if (b < 0)
        return true;
    const auto& x = m_entries[std::size_t(a)];
    const auto& y = m_entries[std::size_t(b)];
    return x.count > y.count || (x.count == y.count && x.firstSeen < y.firstSeen);
}

int KeywordList::nodeFor(int parent, char16_t c, bool create) {
    const quint64 key = (quint64(parent) << 16) | c;
    const auto found = m_edges.find(key);
    if (found != m_edges.end())
        return found->second;
    if (!create)
        return -1;
    m_nodes.push_back(Node{parent, -1, {}});
    const int id = static_cast<int>(m_nodes.size() - 1);
    m_edges.emplace(key, id);
    return id;
}

int KeywordList::findEntry(QStringView word) const {
    int node = -1;
    if (word.size() <= kTreeDepth) {
        const auto known = m_knownPrefixes.constFind(word.toString());
        if (known != m_knownPrefixes.constEnd())
            return m_nodes[std::size_t(*known)].best;
    }
    node = 0;
    const qsizetype depth = std::min<qsizetype>(word.size(), kTreeDepth);
    for (qsizetype i = 0; i < depth; ++i) {
        const auto found = m_edges.find((quint64(node) << 16) | word[i].unicode());
        if (found == m_edges.end())
            return -1;
        node = found->second;
    }
    if (word.size() <= kTreeDepth) {
        m_knownPrefixes.insert(word.toString(), node);
        return m_nodes[std::size_t(node)].best;
    }
    int best = -1;
    for (int e : m_nodes[std::size_t(node)].deep)
        if (QStringView(m_folded[std::size_t(e)]).startsWith(word) && beats(e, best))
            best = e;
    return best;
}

void KeywordList::addToTree(int entry, const QString& word) {
    int node = 0;
    if (beats(entry, m_nodes[0].best))
        m_nodes[0].best = entry;
    const qsizetype depth = std::min<qsizetype>(word.size(), kTreeDepth);
    for (qsizetype i = 0; i < depth; ++i) {
        node = nodeFor(node, word[i].unicode(), true);
        if (beats(entry, m_nodes[std::size_t(node)].best))
            m_nodes[std::size_t(node)].best = entry;
    }
    if (word.size() > kTreeDepth)
        m_nodes[std::size_t(node)].deep.push_back(entry);
    else
        m_knownPrefixes.insert(word, node);
    m_entryNode.push_back(node);
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
    const QString word = CleanWord(piece);
    if (word.isEmpty())
        return;
    const QString key = folded(word);
    const int found = findEntry(key);
    if (found >= 0) {
        ++m_entries[std::size_t(found)].count;
        raiseInTree(found);
        return;
    }
    const int entry = static_cast<int>(m_entries.size());
    m_entries.push_back({word, 1, false, entry});
    m_folded.push_back(key);
    addToTree(entry, key);
}

void KeywordList::SplitWords(QStringView buffer, const std::function<void()>& pump) {
    qsizetype start = 0;
    int counted = 0;
    while (true) {
        const qsizetype blank = buffer.indexOf(u' ', start);
        if (blank < 0)
            break;
        CountWord(trimBlanks(buffer.sliced(start, blank - start + 1)));
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
    for (auto& e : m_entries)
        if (e.count > 2)
            e.ticked = true;
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
    for (int i : order())
        out.push_back(m_entries[std::size_t(i)]);
    return out;
}

void KeywordList::setTicked(int index, bool ticked) {
    const std::vector<int> idx = order();
    if (index >= 0 && index < static_cast<int>(idx.size()))
        m_entries[std::size_t(idx[std::size_t(index)])].ticked = ticked;
}

} // namespace brevaro

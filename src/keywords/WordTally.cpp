#include "keywords/WordTally.h"

#include "keywords/WordCleaning.h"

#include <algorithm>
#include <array>
#include <string_view>

namespace brevaro {

namespace {

constexpr quint32 kPacked = 12;

// A key for sorting: its first twelve UTF-16 units, most significant first and padded with
// zeros, so that most comparisons of two keys never read the keys themselves.
struct SortRecord {
    quint64 pack[3];
    quint32 id;
    quint32 length;
};

SortRecord recordOf(int id, std::u16string_view key) {
    SortRecord r{{0, 0, 0}, quint32(id), quint32(key.size())};
    const std::size_t n = std::min<std::size_t>(key.size(), kPacked);
    for (std::size_t i = 0; i < n; ++i)
        r.pack[i / 4] |= quint64(key[i]) << (16 * (3 - i % 4));
    return r;
}

// Whether the first units units (at most twelve) of the two keys agree.
bool samePackedStart(const SortRecord& a, const SortRecord& b, quint32 units) {
    for (int w = 0; w < 3 && units > 0; ++w) {
        const quint32 u = std::min<quint32>(units, 4);
        const quint64 mask = ~quint64(0) << (16 * (4 - u));
        if ((a.pack[w] ^ b.pack[w]) & mask)
            return false;
        units -= u;
    }
    return true;
}

using SortRecords = std::vector<SortRecord, LargePageAllocator<SortRecord>>;

// Sorts by the first four characters: a radix sort, a byte a pass from the last, which skips
// the bytes all records share (the high bytes of plain ASCII, say).
void sortByFirstPack(SortRecords& records) {
    SortRecords other(records.size());
    for (int shift = 0; shift < 64; shift += 8) {
        std::array<std::size_t, 257> start{};
        for (const SortRecord& r : records)
            ++start[((r.pack[0] >> shift) & 255) + 1];
        if (std::find(start.begin(), start.end(), records.size()) != start.end())
            continue;
        for (std::size_t i = 1; i < start.size(); ++i)
            start[i] += start[i - 1];
        for (const SortRecord& r : records)
            other[start[(r.pack[0] >> shift) & 255]++] = r;
        records.swap(other);
    }
}

std::u16string_view viewOf(QStringView s) {
    return {s.utf16(), std::size_t(s.size())};
}

} // namespace

void WordTally::reserve(std::size_t n) {
    m_table.reserve(n);
    // Reserved room is only address space until it is written, so the stores get plenty.
    m_start.reserve(2 * n);
    m_length.reserve(2 * n);
    m_count.reserve(2 * n);
    m_keys.reserve(n * 32);
    m_words.reserve(n * 32);
}

QStringView WordTally::word(int id) const {
    return QStringView(m_words.data() + m_start[std::size_t(id)],
                       qsizetype(m_length[std::size_t(id)]));
}

QStringView WordTally::key(int id) const {
    return QStringView(m_keys.data() + m_start[std::size_t(id)],
                       qsizetype(m_length[std::size_t(id)]));
}

quint32 WordTally::keepWord(QStringView word, QStringView key) {
    const auto start = quint32(m_keys.size());
    m_keys.insert(m_keys.end(), key.utf16(), key.utf16() + key.size());
    m_words.insert(m_words.end(), word.utf16(), word.utf16() + word.size());
    return start;
}

int WordTally::insert(QStringView word, QStringView key, quint64 hash, int count) {
    const int id = size();
    m_start.push_back(keepWord(word, key));
    m_length.push_back(quint32(key.size()));
    m_count.push_back(count);
    m_table.insert(hash, id, keyOf());
    return id;
}

int WordTally::seed(QStringView word, QStringView key) {
    const quint64 hash = FoldedWordTable::hashOf(key);
    const int id = m_table.find(key, hash, keyOf());
    return id >= 0 ? id : insert(word, key, hash, 0);
}

void WordTally::addText(QStringView part, const std::function<void()>& pump) {
    const char16_t* p = part.utf16();
    const char16_t* const end = p + part.size();
    if (!m_open.empty()) {
        const char16_t* const blank = std::find(p, end, u' ');
        m_open.insert(m_open.end(), p, blank);
        if (blank == end)
            return;
        addPiece(QStringView(m_open.data(), qsizetype(m_open.size())));
        m_open.clear();
        p = blank + 1;
    }
    // Each piece is cleaned straight into the batch on the way to its blank; one longer than
    // kShort characters takes the general way.
    constexpr qsizetype kShort = 64;
    for (;;) {
        if (qsizetype(m_batchWords.size()) - m_batchUsed < kShort)
            flush();
        const char16_t* const limit = end - p > kShort ? p + kShort : end;
        char16_t* const word = m_batchWords.data() + m_batchUsed;
        char16_t* const key = m_batchKeys.data() + m_batchUsed;
        const PieceScan scan = scanPiece(p, limit, word, key);
        const char16_t* blank = scan.end;
        if (scan.rejected || blank == limit) {
            blank = std::find(blank, end, u' ');
            if (blank == end) {
                // The piece goes on in the next part, or is the text after the last blank.
                m_open.assign(p, end);
                return;
            }
            if (!scan.rejected)
                addPiece(QStringView(p, blank - p));
        } else if (!isEmptyOrStopWord(scan, word)) {
            queue(scan.kept);
        }
        p = blank + 1;
        if (pump && ++m_pieces % 4096 == 0)
            pump();
    }
}

void WordTally::finishText() {
    flush();
    m_open.clear();
}

void WordTally::addPiece(QStringView piece) {
    if (m_batchUsed + piece.size() > qsizetype(m_batchWords.size())) {
        flush();
        if (piece.size() > qsizetype(m_batchWords.size())) {
            m_batchWords.resize(std::size_t(piece.size()));
            m_batchKeys.resize(std::size_t(piece.size()));
        }
    }
    const qsizetype kept =
        cleanPiece(piece, m_batchWords.data() + m_batchUsed, m_batchKeys.data() + m_batchUsed);
    if (kept > 0)
        queue(kept);
}

void WordTally::queue(qsizetype kept) {
    const quint64 hash =
        FoldedWordTable::hashOf(QStringView(m_batchKeys.data() + m_batchUsed, kept));
    m_table.prefetch(hash);
    m_pending[std::size_t(m_waiting++)] = {m_batchUsed, kept, hash};
    m_batchUsed += kept;
    if (m_waiting == kBatch)
        flush();
}

void WordTally::flush() {
    for (int i = 0; i < m_waiting; ++i) {
        const Pending& p = m_pending[std::size_t(i)];
        const QStringView key(m_batchKeys.data() + p.at, p.length);
        const int id = m_table.find(key, p.hash, keyOf());
        if (id >= 0)
            ++m_count[std::size_t(id)];
        else
            insert(QStringView(m_batchWords.data() + p.at, p.length), key, p.hash, 1);
    }
    m_waiting = 0;
    m_batchUsed = 0;
}

int WordTally::compareKeys(int a, int b) const {
    return viewOf(key(a)).compare(viewOf(key(b)));
}

// In sorted order, the keys that begin with a key follow it as one run; a stack of the keys
// whose runs are open finds, for each, the lowest number in its run in one pass.
std::vector<int> WordTally::targets() const {
    SortRecords records;
    records.reserve(std::size_t(size()));
    for (int id = 0; id < size(); ++id)
        records.push_back(recordOf(id, viewOf(key(id))));
    sortByFirstPack(records);
    // Then each run that shares the first four characters by the rest.
    for (auto run = records.begin(); run != records.end();) {
        const auto end = std::find_if(
            run + 1, records.end(), [&](const SortRecord& r) { return r.pack[0] != run->pack[0]; });
        if (end - run > 1)
            std::sort(run, end, [this](const SortRecord& a, const SortRecord& b) {
                for (int w = 1; w < 3; ++w)
                    if (a.pack[w] != b.pack[w])
                        return a.pack[w] < b.pack[w];
                return compareKeys(int(a.id), int(b.id)) < 0;
            });
        run = end;
    }

    const auto begins = [this](const SortRecord& k, const SortRecord& prefix) {
        if (prefix.length > k.length ||
            !samePackedStart(k, prefix, std::min(prefix.length, kPacked)))
            return false;
        if (prefix.length <= kPacked)
            return true;
        return viewOf(key(int(k.id))).substr(0, prefix.length) == viewOf(key(int(prefix.id)));
    };
    struct Open {
        std::size_t record;
        int lowest;
    };
    std::vector<int> target(static_cast<std::size_t>(size()));
    std::vector<Open> open;
    const auto close = [&] {
        const Open o = open.back();
        open.pop_back();
        target[records[o.record].id] = o.lowest;
        if (!open.empty())
            open.back().lowest = std::min(open.back().lowest, o.lowest);
    };
    for (std::size_t i = 0; i < records.size(); ++i) {
        while (!open.empty() && !begins(records[i], records[open.back().record]))
            close();
        open.push_back({i, int(records[i].id)});
    }
    while (!open.empty())
        close();
    return target;
}

} // namespace brevaro

#pragma once

#include <QStringView>
#include <QtGlobal>
#include <cstddef>
#include <cstring>
#include <vector>

#include "platform/LargePageAllocator.h"

namespace brevaro {

// Case-folded words met before, each to a number, so that a repeated word is one hash and one
// compare. The words themselves stay with the caller, who tells the table the word of a
// number (keyOf); a slot holds only the number and 32 bits of the word's hash, so that the
// table of a big page stays small enough to be read at random quickly.
class FoldedWordTable {
public:
    FoldedWordTable() { clear(); }

    void clear() {
        m_slots.assign(std::size_t(1) << kFirstBits, Slot{});
        m_bits = kFirstBits;
        m_size = 0;
    }

    static quint64 hashOf(QStringView word) {
        const char16_t* p = word.utf16();
        qsizetype n = word.size();
        quint64 h = quint64(n) * kMul;
        for (; n >= 4; n -= 4, p += 4) {
            quint64 chunk;
            std::memcpy(&chunk, p, sizeof chunk);
            h = (h ^ chunk) * kMul;
            h ^= h >> 29;
        }
        for (; n > 0; --n, ++p)
            h = (h ^ *p) * kMul;
        h ^= h >> 32;
        return h;
    }

    // Makes room for n words without growing again.
    void reserve(std::size_t n) {
        int bits = m_bits;
        while ((std::size_t(1) << bits) < 2 * n)
            ++bits;
        if (bits > m_bits) {
            // Only an empty table is sized ahead; a filled one grows as it fills.
            if (m_size == 0) {
                m_slots.assign(std::size_t(1) << bits, Slot{});
                m_bits = bits;
            }
        }
    }

    // Asks for the slot of hash to be brought into the cache, for a find soon after.
    void prefetch(quint64 hash) const { prefetchForRead(&m_slots[slotOf(hash)]); }

    // The number of word (hashed by hashOf), or -1; keyOf(number) is the word of a number.
    template <typename KeyOf> int find(QStringView word, quint64 hash, const KeyOf& keyOf) const {
        const auto check = quint32(hash);
        for (std::size_t i = slotOf(hash);; i = (i + 1) & mask()) {
            const Slot s = m_slots[i];
            if (s.value < 0)
                return -1;
            if (s.check == check && sameWord(keyOf(s.value), word))
                return s.value;
        }
    }

    // Adds the number of a word that is not there yet.
    template <typename KeyOf> void insert(quint64 hash, int value, const KeyOf& keyOf) {
        if (2 * (m_size + 1) > m_slots.size()) {
            std::vector<Slot, LargePageAllocator<Slot>> old(std::size_t(2) << m_bits);
            old.swap(m_slots);
            ++m_bits;
            for (const Slot& s : old)
                if (s.value >= 0)
                    place({s.check, s.value}, hashOf(keyOf(s.value)));
        }
        place({quint32(hash), value}, hash);
        ++m_size;
    }

private:
    struct Slot {
        quint32 check = 0; // the low 32 bits of the hash, for a quick no
        int value = -1;
    };
    // The words are short and their hashes already agree: a plain loop beats a call.
    static bool sameWord(QStringView a, QStringView b) {
        if (a.size() != b.size())
            return false;
        for (qsizetype i = 0; i < a.size(); ++i)
            if (a[i] != b[i])
                return false;
        return true;
    }
    static constexpr quint64 kMul = 0x9E3779B97F4A7C15ull;
    static constexpr int kFirstBits = 10;

    std::size_t mask() const { return m_slots.size() - 1; }
    std::size_t slotOf(quint64 hash) const { return std::size_t((hash * kMul) >> (64 - m_bits)); }
    void place(const Slot& slot, quint64 hash) {
        std::size_t i = slotOf(hash);
        while (m_slots[i].value >= 0)
            i = (i + 1) & mask();
        m_slots[i] = slot;
    }

    std::vector<Slot, LargePageAllocator<Slot>> m_slots;
    std::size_t m_size = 0;
    int m_bits = kFirstBits;
};

} // namespace brevaro

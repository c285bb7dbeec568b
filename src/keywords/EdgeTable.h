#pragma once

#include <QtGlobal>
#include <cstddef>
#include <vector>

#include "keywords/LargePageAllocator.h"

namespace brevaro {

// The child links of the keyword prefix tree, (parent node << 16 | character) to child node,
// in one flat table with open addressing: a lookup is a multiply and a probe or two, and an
// insert allocates only when the table doubles.
class EdgeTable {
public:
    EdgeTable() { clear(); }

    void clear() {
        m_slots.assign(std::size_t(1) << kFirstBits, Slot{kEmpty, -1});
        m_bits = kFirstBits;
        m_size = 0;
    }

    // Makes room for n links without growing again.
    void reserve(std::size_t n) {
        int bits = m_bits;
        while ((std::size_t(1) << bits) < 2 * n)
            ++bits;
        if (bits != m_bits)
            rebuild(bits);
    }

    static quint64 keyOf(int parent, char16_t c) { return (quint64(parent) << 16) | c; }

    // The child, or -1.
    int find(quint64 key) const {
        for (std::size_t i = slotOf(key);; i = (i + 1) & mask()) {
            const Slot& s = m_slots[i];
            if (s.key == key)
                return s.child;
            if (s.key == kEmpty)
                return -1;
        }
    }

    // Adds a link that is not there yet.
    void insert(quint64 key, int child) {
        if (2 * (m_size + 1) > m_slots.size())
            rebuild(m_bits + 1);
        place(key, child);
        ++m_size;
    }

    // Points a link that is there at another child.
    void replace(quint64 key, int child) {
        std::size_t i = slotOf(key);
        while (m_slots[i].key != key)
            i = (i + 1) & mask();
        m_slots[i].child = child;
    }

private:
    struct Slot {
        quint64 key;
        int child;
    };
    static constexpr quint64 kEmpty = ~quint64(0);
    static constexpr int kFirstBits = 10;

    std::size_t mask() const { return m_slots.size() - 1; }
    std::size_t slotOf(quint64 key) const {
        return std::size_t((key * 0x9E3779B97F4A7C15ull) >> (64 - m_bits));
    }
    void place(quint64 key, int child) {
        std::size_t i = slotOf(key);
        while (m_slots[i].key != kEmpty)
            i = (i + 1) & mask();
        m_slots[i] = {key, child};
    }
    void rebuild(int bits) {
        std::vector<Slot, LargePageAllocator<Slot>> old(std::size_t(1) << bits, Slot{kEmpty, -1});
        old.swap(m_slots);
        m_bits = bits;
        for (const Slot& s : old)
            if (s.key != kEmpty)
                place(s.key, s.child);
    }

    std::vector<Slot, LargePageAllocator<Slot>> m_slots;
    std::size_t m_size = 0;
    int m_bits = kFirstBits;
};

} // namespace brevaro

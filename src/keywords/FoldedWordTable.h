#pragma once

#include <QStringView>
#include <QtGlobal>
#include <cstddef>
#include <cstring>
#include <vector>

#include "platform/LargePageAllocator.h"

namespace brevaro {

// Case-folded words met before, each to a number, so that a repeated word is one hash and one
// compare. The words are kept back to back in one character store, the slots in one flat
// table with open addressing; short words sit in their slot.
class FoldedWordTable {
public:
    FoldedWordTable() { clear(); }

    void clear() {
        m_slots.assign(std::size_t(1) << kFirstBits, Slot{});
        m_bits = kFirstBits;
        m_size = 0;
        m_chars.clear();
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
        if (bits != m_bits)
            rebuild(bits);
    }

    // Asks for the slot of hash to be brought into the cache, for a find soon after.
    void prefetch(quint64 hash) const { __builtin_prefetch(&m_slots[slotOf(hash)]); }

    // The number of word (hashed by hashOf), or -1.
    int find(QStringView word, quint64 hash) const {
        const auto length = quint32(word.size());
        const auto check = quint16(hash);
        for (std::size_t i = slotOf(hash);; i = (i + 1) & mask()) {
            const Slot& s = m_slots[i];
            if (s.value < 0)
                return -1;
            if (s.check == check && s.length == length && holds(s, word.utf16()))
                return s.value;
        }
    }

    // Adds a word that is not there yet.
    void insert(QStringView word, quint64 hash, int value) {
        if (2 * (m_size + 1) > m_slots.size())
            rebuild(m_bits + 1);
        Slot slot;
        slot.check = quint16(hash);
        slot.length = quint32(word.size());
        slot.value = value;
        if (word.size() <= kInline) {
            std::memcpy(slot.chars, word.utf16(), std::size_t(word.size()) * sizeof(char16_t));
        } else {
            std::memcpy(slot.chars, word.utf16(), kHead * sizeof(char16_t));
            const auto offset = quint32(m_chars.size());
            std::memcpy(slot.chars + kHead, &offset, sizeof offset);
            m_chars.insert(m_chars.end(), word.utf16(), word.utf16() + word.size());
        }
        place(slot, hash);
        ++m_size;
    }

private:
    // Words of up to eleven characters sit in their slot, so that finding one reads one cache
    // line; of a longer word the slot keeps the first nine and where the word is in m_chars,
    // which is read only when the start and the length agree.
    static constexpr qsizetype kInline = 11;
    static constexpr qsizetype kHead = 9;
    struct alignas(32) Slot {
        char16_t chars[kInline] = {};
        quint16 check = 0; // sixteen bits of the hash, for a quick no
        int value = -1;
        quint32 length = 0;
    };
    static_assert(sizeof(Slot) == 32);
    // The keys are short and their hashes already agree: a plain loop beats a call.
    static bool sameChars(const char16_t* a, const char16_t* b, qsizetype n) {
        for (qsizetype i = 0; i < n; ++i)
            if (a[i] != b[i])
                return false;
        return true;
    }
    const char16_t* longWord(const Slot& s) const {
        quint32 offset = 0;
        std::memcpy(&offset, s.chars + kHead, sizeof offset);
        return m_chars.data() + offset;
    }
    bool holds(const Slot& s, const char16_t* word) const {
        if (s.length <= kInline)
            return sameChars(s.chars, word, s.length);
        return sameChars(s.chars, word, kHead) &&
               sameChars(longWord(s) + kHead, word + kHead, s.length - kHead);
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
    void rebuild(int bits) {
        std::vector<Slot, LargePageAllocator<Slot>> old(std::size_t(1) << bits);
        old.swap(m_slots);
        m_bits = bits;
        for (const Slot& s : old)
            if (s.value >= 0) {
                const char16_t* word = s.length <= kInline ? s.chars : longWord(s);
                place(s, hashOf(QStringView(word, qsizetype(s.length))));
            }
    }

    std::vector<Slot, LargePageAllocator<Slot>> m_slots;
    std::vector<char16_t, LargePageAllocator<char16_t>> m_chars;
    std::size_t m_size = 0;
    int m_bits = kFirstBits;
};

} // namespace brevaro

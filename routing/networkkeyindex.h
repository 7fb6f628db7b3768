// Lookup acceleration for a route table's network map. Most probes of a
// longest-prefix walk miss; this index lets them miss without a descent
// through the ordered map:
//   - a hash set of the map's keys, by their 64-bit order key;
//   - which prefix lengths a walk for a host address can meet at all:
//     one mask of lengths for the table, and, for large tables, one per
//     /16 block of the address space.
// It holds no pointers into the map, so a stale index costs a wasted map
// search or (if the map was changed behind the table's back) a missed key,
// never a dangling read. Deleted keys may stay; they only cost a probe.
#pragma once

#include <cstdint>
#include <vector>

namespace netloom::detail {

class NetworkKeyIndex {
public:
    // Keys are at most 0xFFFFFFFF * 0xFFFFFFFF + 0xFFFFFFFF, so this never is one.
    static constexpr uint64_t kEmpty = ~uint64_t(0);
    // Per-block length masks pay for their 512 KiB only on large tables.
    static constexpr size_t kBlockThreshold = 16384;

    void Clear() {
        m_slots.clear();
        m_count = 0;
        m_lengths = 0;
        m_blocks.clear();
    }

    void Reserve(size_t keys) {
        size_t want = 16;
        while (want < keys * 2) want <<= 1;
        if (want > m_slots.size()) Rehash(want);
    }

    void Insert(uint64_t key) {
        if ((m_count + 1) * 2 > m_slots.size()) Rehash(m_slots.empty() ? 16 : m_slots.size() * 2);
        size_t i = Slot(key);
        while (m_slots[i] != kEmpty) {
            if (m_slots[i] == key) return;
            i = (i + 1) & (m_slots.size() - 1);
        }
        m_slots[i] = key;
        ++m_count;
        NoteLength(key);
        if (m_blocks.empty() && m_count >= kBlockThreshold) BuildBlocks();
    }

    bool MayContain(uint64_t key) const {
        if (m_slots.empty()) return false;
        size_t i = Slot(key);
        while (m_slots[i] != kEmpty) {
            if (m_slots[i] == key) return true;
            i = (i + 1) & (m_slots.size() - 1);
        }
        return false;
    }

    // Bit L set: a walk for this host address may meet a key of length L
    // (bit 0: the key 0.0.0.0/0). A clear bit is certain.
    uint64_t HostLengths(unsigned int address) const {
        return m_blocks.empty() ? m_lengths : (m_blocks[address >> 16] | (m_lengths & 1u));
    }

private:
    size_t Slot(uint64_t key) const {
        // Fibonacci hashing spreads the structured keys (shifted addresses).
        return size_t((key * 0x9E3779B97F4A7C15ull) >> 32) & (m_slots.size() - 1);
    }

    void Rehash(size_t slots) {
        std::vector<uint64_t> old;
        old.swap(m_slots);
        m_slots.assign(slots, kEmpty);
        m_count = 0;
        for (uint64_t k : old)
            if (k != kEmpty) {
                size_t i = Slot(k);
                while (m_slots[i] != kEmpty) i = (i + 1) & (m_slots.size() - 1);
                m_slots[i] = k;
                ++m_count;
            }
    }

    // Where a host-address walk can meet this key: (address, length), or
    // false if it never can. Decoding the order key folds the one pair of
    // equivalent keys, (A+1, 0) and (A, all ones), into the /32 of A.
    static bool Reach(uint64_t key, unsigned int& addr, int& len) {
        const unsigned int a = unsigned(key / 0xFFFFFFFFull), m = unsigned(key % 0xFFFFFFFFull);
        if (m == 0) {
            addr = a == 0 ? 0 : a - 1;
            len = a == 0 ? 0 : 32;
            return true;
        }
        const unsigned int inv = ~m;
        if ((inv & (inv + 1)) != 0 || (a & m) != a) return false;  // holes, or host bits
        addr = a;
        len = 32 - __builtin_ctz(m);
        return true;
    }

    void NoteLength(uint64_t key) {
        unsigned int addr = 0;
        int len = 0;
        if (!Reach(key, addr, len)) return;
        m_lengths |= uint64_t(1) << len;
        if (m_blocks.empty() || len == 0) return;
        const uint64_t bit = uint64_t(1) << len;
        const size_t first = addr >> 16;
        const size_t count = len >= 16 ? 1 : (size_t(1) << (16 - len));
        for (size_t b = first; b < first + count; ++b) m_blocks[b] |= bit;
    }

    void BuildBlocks() {
        m_blocks.assign(size_t(1) << 16, 0);
        for (uint64_t k : m_slots)
            if (k != kEmpty) NoteLength(k);
    }

    std::vector<uint64_t> m_slots;
    size_t m_count = 0;
    uint64_t m_lengths = 0;
    std::vector<uint64_t> m_blocks;
};

}  // namespace netloom::detail

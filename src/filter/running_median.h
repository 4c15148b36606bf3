// SPDX-License-Identifier: BSD-3-Clause
// The running median of a window of m values (m odd) that slides by one
// value per step: one value leaves, one enters, the median is read.
//
// Values are compared as integer keys that order them totally: 8u, 16s
// and 32s as their numbers, 32f as the order -NaN < -Inf < ... < -0 < +0 <
// ... < +Inf < +NaN of their bit patterns, so every input, NaNs included,
// has a defined place and the median is always one of the inputs, bit for
// bit.
//
// Two window structures, chosen by the window's size:
//   SortedWindow  the window kept sorted in a vector-aligned array. A step
//                 is one branch-free pass of 128-bit lanes: every lane
//                 between the leaving and the entering value moves by one
//                 place, every other keeps its value. O(m / lanes) per step
//                 with a few instructions per register, the fastest for
//                 windows up to a few hundred values.
//   MedianHeap    a max-heap of the lower half and a min-heap of the upper
//                 half that share their root, the median; each window slot
//                 knows its heap position, so the leaving value is replaced
//                 in place by the entering one and sifted. O(log m) per step.
#pragma once
#include <limits>

#include "qsp_validators.h"
#include "simd.h"

namespace median {

// Key type and the order-preserving map of each element type.
template <class T>
struct Key;

template <>
struct Key<Qsp8u> {
    using K = Qsp8s;
    static K of(Qsp8u v) { return K(v ^ 0x80); }
    static Qsp8u value(K k) { return Qsp8u(Qsp8u(k) ^ 0x80); }
};

template <>
struct Key<Qsp16s> {
    using K = Qsp16s;
    static K of(Qsp16s v) { return v; }
    static Qsp16s value(K k) { return k; }
};

template <>
struct Key<Qsp32s> {
    using K = Qsp32s;
    static K of(Qsp32s v) { return v; }
    static Qsp32s value(K k) { return k; }
};

// The bits of a float, the magnitude bits inverted when the sign is set:
// the map is its own inverse.
template <>
struct Key<Qsp32f> {
    using K = Qsp32s;
    static K flip(Qsp32s b) { return b ^ ((b >> 31) & 0x7FFFFFFF); }
    static K of(Qsp32f v) { return flip(__builtin_bit_cast(Qsp32s, v)); }
    static Qsp32f value(K k) { return __builtin_bit_cast(Qsp32f, flip(k)); }
};

// Ascending sort of n keys by the library's sorts (8-bit keys through the
// unsigned values they stand for).
inline void sortKeys(Qsp8s* k, int n)
{
    Qsp8u* u = reinterpret_cast<Qsp8u*>(k);
    for (int i = 0; i < n; ++i) u[i] ^= 0x80;
    y8::qspsSortAscend_8u_I(u, n);
    for (int i = 0; i < n; ++i) u[i] ^= 0x80;
}
inline void sortKeys(Qsp16s* k, int n) { y8::qspsSortAscend_16s_I(k, n); }
inline void sortKeys(Qsp32s* k, int n) { y8::qspsSortAscend_32s_I(k, n); }

// ---------------------------------------------------------------------------
// The sorted window. Memory: one register of lowest keys in front (read as
// the value before the first), the m sorted keys, and highest keys up to one
// register past the last register that holds a key (read as the values
// after the last).
template <class K>
struct SortedWindow {
    using V = simd::Vec<K>;
    static constexpr int W = V::lanes;
    static constexpr K kLow = std::numeric_limits<K>::min();
    static constexpr K kHigh = std::numeric_limits<K>::max();

    K* s;        // first sorted key, 16-byte aligned
    int m;
    int regs;    // registers that hold keys

    // Keys in memory, the window's m keys included.
    static Qsp64s keysNeeded(int m) { return (Qsp64s(m) + W - 1) / W * W + 2 * W; }

    // Builds the window at `mem` (16-byte aligned) from m keys in any order.
    void init(K* mem, const K* keys, int size)
    {
        m = size;
        regs = (m + W - 1) / W;
        s = mem + W;
        for (int i = 0; i < W; ++i) mem[i] = kLow;
        for (int i = 0; i < m; ++i) s[i] = keys[i];
        for (int i = m; i < (regs + 1) * W; ++i) s[i] = kHigh;
        sortKeys(s, m);
    }

    K median() const { return s[m / 2]; }

    // Replaces one copy of `out` by `in`. With in >= out the keys in
    // (out, in] move one place down: lane i takes its own key below out,
    // else the next key if that is at most in, else max(own, in). With
    // in < out the mirror image, keys in [in, out) moving one place up. The
    // passes run in the direction in which every key is read before it is
    // overwritten. The padding keeps the highest key: a lane there can only
    // take the key below it, which is the highest key whenever the mirror
    // pass reaches it (out itself is then the highest key).
    void replace(K out, K in)
    {
        const typename V::Reg a = V::splat(out), b = V::splat(in);
        if (in >= out) {
            for (int r = 0; r < regs; ++r) {
                K* p = s + r * W;
                const typename V::Reg cur = V::load(p), next = V::loadu(p + 1);
                const typename V::Reg moved = V::select(V::cmpgt(next, b), next, V::max(cur, b));
                V::store(p, V::select(V::cmpgt(a, cur), moved, cur));
            }
        } else {
            for (int r = regs - 1; r >= 0; --r) {
                K* p = s + r * W;
                const typename V::Reg cur = V::load(p), prev = V::loadu(p - 1);
                const typename V::Reg moved = V::select(V::cmpgt(b, prev), prev, V::min(cur, b));
                V::store(p, V::select(V::cmpgt(cur, a), moved, cur));
            }
        }
    }
};

// ---------------------------------------------------------------------------
// The double heap. heap[i] for i in [-half, half] holds a window slot: the
// root 0 is the median, i > 0 a min-heap of the upper half (children 2i,
// 2i + 1), i < 0 a max-heap of the lower half (children 2i, 2i - 1); i / 2
// (truncated) is the parent on both sides. pos[slot] is the slot's index.
template <class K>
struct MedianHeap {
    const K* key;  // key of each window slot
    int* heap;     // index 0 of the heap (heap - half is the first element)
    int* pos;
    int half;

    bool less(int i, int j) const { return key[heap[i]] < key[heap[j]]; }
    void swap(int i, int j)
    {
        const int si = heap[i], sj = heap[j];
        heap[i] = sj;
        heap[j] = si;
        pos[sj] = i;
        pos[si] = j;
    }
    void minDown(int i)
    {
        for (int c = 2 * i; c <= half; i = c, c = 2 * i) {
            if (c < half && less(c + 1, c)) ++c;
            if (!less(c, i)) return;
            swap(c, i);
        }
    }
    void maxDown(int i)
    {
        for (int c = 2 * i; c >= -half; i = c, c = 2 * i) {
            if (c > -half && less(c, c - 1)) --c;
            if (!less(i, c)) return;
            swap(c, i);
        }
    }

    // Builds the heap for the m = 2 half + 1 keys of the slots. `pairs`
    // (8m bytes) is the memory of heap and pos together: the slots are
    // sorted by key there, and the sorted order is a valid double heap.
    void init(const K* keys, int m, Qsp64s* pairs)
    {
        key = keys;
        half = m / 2;
        for (int slot = 0; slot < m; ++slot)
            pairs[slot] = Qsp64s((Qsp64u(Qsp64s(keys[slot])) << 32) | Qsp64u(slot));
        y8::qspsSortAscend_64s_I(pairs, m);
        // Rank j goes to heap index j - half. The slot of rank j is the low
        // word of pairs[j], word 2j of the memory; h[j] is word j, so the
        // copy only overwrites pairs already read.
        int* h = reinterpret_cast<int*>(pairs);
        for (int j = 0; j < m; ++j) h[j] = h[2 * j];
        heap = h + half;
        pos = h + m;
        for (int j = 0; j < m; ++j) pos[h[j]] = j - half;
    }

    K median() const { return key[heap[0]]; }

    // The slot's key has just changed: restore the order around it.
    void changed(int slot)
    {
        int i = pos[slot];
        if (i > 0) {
            for (; i > 0 && less(i, i / 2); i /= 2) swap(i, i / 2);
            if (i != 0) minDown(i);
            else if (less(0, -1)) swap(0, -1), maxDown(-1);
        } else if (i < 0) {
            for (; i < 0 && less(i / 2, i); i /= 2) swap(i, i / 2);
            if (i != 0) maxDown(i);
            else if (less(1, 0)) swap(0, 1), minDown(1);
        } else if (half > 0) {
            if (less(0, -1)) swap(0, -1), maxDown(-1);
            else if (less(1, 0)) swap(0, 1), minDown(1);
        }
    }
};

}  // namespace median

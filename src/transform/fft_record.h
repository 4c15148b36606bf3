// SPDX-License-Identifier: BSD-3-Clause
// The FFT record: its header, its identifiers, the sizes that GetSize
// reports and the tiers by order.
//
// Layout inside the caller's block (all offsets from the 64-byte aligned
// record address):
//   0    header (128 bytes, below)
//   128  the complex transform's factors: those of the medium tier
//        (fft_medium.h), or the large tier's tables (fft_large.h)
//   then, for the real kinds, the real-recombination table and the
//        inverse-recombination table; from order 21 on each is a coarse
//        table (W^(1024h), h < N/4096) followed by a fine one (W^l,
//        l < 1024).
// Every table pointer points into the caller's block.
//
// Sizes are formed in 64-bit arithmetic. Every size of every kind, order
// and flag fits in an int except the half-precision work buffer at order
// 28 (it holds the data as single-precision complex values, 8N = 2^31
// bytes): GetSize and Init report qspStsOverflow there.
#pragma once
#include "fft_large.h"
#include "qspdefs.h"

namespace fft {

enum Kind : Qsp32u {
    kC16fc = 4,
    kC32fc = 5,
    kC32f = 6,
    kR32f = 7,
    kC64fc = 8,
    kC64f = 9,
    kR64f = 10,
};

struct Record {
    Qsp32u id;
    Qsp32s order;
    Qsp32u forwardNormalise;
    Qsp32u inverseNormalise;
    union {
        Qsp32f f;
        Qsp64f d;
    } factor;
    Qsp32u hint;
    Qsp32s workSize;
    Qsp32u zero;
    Qsp32u recombSplit;  // 1: the recombination tables are coarse + fine
    void* bitReverse;    // unused: the passes sort themselves
    void* twiddles;      // the medium tier's factors
    void* recomb;
    void* recombInv;
    const void* large[5];  // the large tier's tables (LargeTables)
    Qsp8u reserved[128 - 112];
};
static_assert(sizeof(Record) == 128);

constexpr Qsp64s kHeaderBytes = sizeof(Record);

template <class T>
inline const LargeTables<T>& largeTablesOf(const Record* rec)
{
    static_assert(sizeof(LargeTables<T>) == sizeof(rec->large));
    return *reinterpret_cast<const LargeTables<T>*>(rec->large);
}

template <class T>
inline LargeTables<T>& largeTablesOf(Record* rec)
{
    return *reinterpret_cast<LargeTables<T>*>(rec->large);
}

inline Qsp64s r64(Qsp64s x) { return x & ~Qsp64s(63); }

template <class T>
inline T* alignUp64(T* p)
{
    return reinterpret_cast<T*>((reinterpret_cast<Qsp64u>(p) + 63) & ~Qsp64u(63));
}

struct Sizes {
    Qsp64s spec, init, work;
};

// Tier bounds of the complex engine. The records of orders 6 and 7 keep
// the medium tier's sizes and tables although the straight-line kernels
// (fft_small.h) run those orders, and double precision's orders 8..10 keep
// their sizes and hold the smaller two-step table (fft_fourstep.h): the
// sizes of the orders below 17 (double) and 18 (single) are part of the
// interface.
//
// From there on the layout, record and work buffer alike, is the
// library's own. The medium tier keeps running while the data and its
// work buffer (2N values) fit in 16 MiB, half the last-level cache of the
// processors this library is tuned on, so up to order 19 (double) and 20
// (single): its passes stream through that cache, where the large tier's
// strided columns cost more. Measured in one process against the large
// tier: 1.66x, 1.42x and 1.15x faster at double orders 17, 18 and 19,
// 1.53x, 1.36x and 1.16x at single orders 18, 19 and 20; one order further
// (32 MiB) the large tier wins, by 1.13x (double 20) and 1.04x (single 21).
// Those orders keep the medium formulas for their sizes.
constexpr int kSmallMax = 5;
inline int largeFrom(bool dbl) { return dbl ? 20 : 21; }

// Sizes of a complex transform of 2^order (order >= 6) as a real record
// embeds them, without the 256 and 64 bytes that GetSize adds and without
// the octant of the Init buffer: the medium formulas, or the large tier's
// tables and work buffer. In single precision the record also counts
// (4 << (order - 12)) + 4160 more bytes from order 19 on and the work
// buffer is at least 65536 bytes, whichever tier runs.
inline Sizes complexRawSizes(int order, bool dbl)
{
    const Qsp64s n = Qsp64s(1) << order;
    const Qsp64s bytes = dbl ? 16 : 8;
    Sizes s{};
    if (order < largeFrom(dbl)) {
        if (!dbl)
            s.spec = r64(8 * n + 71) + r64((n & ~Qsp64s(3)) + 67);
        else
            s.spec = r64(16 * n + 79) + r64((n & ~Qsp64s(3)) + 67);
        s.work = r64(bytes * n + 63);
    } else {
        s.spec = dbl ? largeTableBytes<double>(order) : largeTableBytes<float>(order);
        s.work = r64((dbl ? largeWorkValues<double>(order) : largeWorkValues<float>(order)) * bytes + 63);
    }
    if (!dbl && order >= 19) {
        s.spec += (Qsp64s(4) << (order - 12)) + 4160;
        if (s.work < 65536) s.work = 65536;
    }
    return s;
}

// Octant (base) table bytes in the Init buffer for a length of 2^order.
inline Qsp64s octantBytes(int order, bool dbl)
{
    const Qsp64s n = Qsp64s(1) << order;
    return dbl ? r64((2 * n & ~Qsp64s(7)) + 71) : r64((n & ~Qsp64s(3)) + 67);
}

inline Sizes complexSizes(int order, bool dbl)
{
    if (order <= kSmallMax) return {208, 0, 0};
    Sizes s = complexRawSizes(order, dbl);
    s.spec += 256;
    s.work += 64;
    s.init = order < 11 ? 0 : octantBytes(order, dbl) + 64;
    return s;
}

// From order 21 on the recombination tables are kept as coarse and fine
// factors.
inline bool realSplitTables(int order) { return order > 20; }

// The split of those tables: W^k = coarse[k >> kRecombFineBits] *
// fine[k & (F - 1)], F = 2^kRecombFineBits fine entries after the N/(4F)
// coarse ones.
constexpr int kRecombFineBits = 10;

inline Qsp64s realTableBytes(int order, bool dbl)
{
    const Qsp64s n = Qsp64s(1) << order;
    if (!realSplitTables(order)) return dbl ? r64((4 * n & ~Qsp64s(15)) + 63) : r64((2 * n & ~Qsp64s(7)) + 63);
    return dbl ? r64((Qsp64s(16) << (order - 12)) + 16447) : r64((Qsp64s(8) << (order - 12)) + 8255);
}

inline Sizes realSizes(int order, bool dbl)
{
    if (order <= 4) return {208, 0, 0};
    const Qsp64s tables = 2 * realTableBytes(order, dbl) + 256;
    if (order <= 6) return {tables, 0, 0};
    Sizes s = complexRawSizes(order - 1, dbl);
    s.spec += tables;
    s.work += 64;
    s.init = order < 11 ? 0 : octantBytes(order, dbl) + 64;
    return s;
}

inline int maxOrder(Kind k)
{
    switch (k) {
    case kR32f: return 29;
    case kC64fc:
    case kC64f: return 27;
    case kR64f: return 28;
    default: return 28;
    }
}

inline bool isDouble(Kind k) { return k == kC64fc || k == kC64f || k == kR64f; }
inline bool isReal(Kind k) { return k == kR32f || k == kR64f; }

// The sizes GetSize reports for a valid kind and order, in bytes: the half
// kind holds the data as 32-bit complex values in its work buffer and 20
// more bytes of record.
inline Sizes kindSizes(Kind k, int order)
{
    if (isReal(k)) return realSizes(order, isDouble(k));
    Sizes s = complexSizes(order, isDouble(k));
    if (k == kC16fc) {
        s.work += 8 * (Qsp64s(1) << order);
        s.spec += 20;
    }
    return s;
}

// Whether every size fits in an int.
inline bool sizesFit(const Sizes& s)
{
    constexpr Qsp64s kMax = 0x7fffffff;
    return s.spec <= kMax && s.init <= kMax && s.work <= kMax;
}

// The flag test: not above 8 and its bit set in 0x116 (1, 2, 4, 8).
inline bool validFlag(int flag) { return flag >= 0 && flag <= 8 && ((0x116 >> flag) & 1) != 0; }

}  // namespace fft

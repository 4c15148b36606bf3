// SPDX-License-Identifier: BSD-3-Clause
// The FFT record: its header, its identifiers, the sizes that GetSize
// reports and the tiers by order.
//
// Layout inside the caller's block (all offsets from the 64-byte aligned
// record address):
//   0    header (128 bytes, below)
//   128  complex pass twiddles of the medium tier, or the tables of the
//        large tier (row passes, column passes, the column twiddles as
//        batch-start and in-batch factors)
//   then, for the real kinds, the real-recombination table W^k and the
//        inverse-recombination table conj(W^k), k < N/4; for real single
//        precision above order 20 each is a coarse table (W^(1024h),
//        h < N/4096) followed by a fine one (W^l, l < 1024).
// Every table pointer points into the caller's block.
#pragma once
#include "fft_engine.h"
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
    void* twiddles;
    void* recomb;
    void* recombInv;
    Qsp8u reserved[128 - 72];
};
static_assert(sizeof(Record) == 128);

constexpr Qsp64s kHeaderBytes = sizeof(Record);

inline Qsp64s r64(Qsp64s x) { return x & ~Qsp64s(63); }

template <class T>
inline T* alignUp64(T* p)
{
    return reinterpret_cast<T*>((reinterpret_cast<Qsp64u>(p) + 63) & ~Qsp64u(63));
}

struct Sizes {
    Qsp64s spec, init, work;
};

// Tier bounds of the complex engine.
constexpr int kSmallMax = 5;
inline int largeFrom(bool dbl) { return dbl ? 17 : 18; }

// Medium and large sizes of a complex transform of 2^order, without the
// 256/64 that GetSize adds (the raw sizes a real record embeds); init is
// the large layout's own init size (0).
inline Sizes complexRawSizes(int order, bool dbl)
{
    const Qsp64s n = Qsp64s(1) << order;
    const Qsp64s bytes = dbl ? 16 : 8;
    Sizes s{};
    if (!dbl) s.spec = r64(8 * n + 71) + r64((n & ~Qsp64s(3)) + 67);
    else      s.spec = r64(16 * n + 79) + r64((n & ~Qsp64s(3)) + 67);
    s.work = r64(bytes * n + 63);
    if (order >= largeFrom(dbl)) {
        if (!dbl && order >= 19) s.spec += (Qsp64s(4) << (order - 12)) + 4160;
        if (dbl) s.spec += 1024;
        s.work += largeScratchCount(order) * bytes;
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

// Real single precision above order 20 keeps its recombination tables as
// coarse and fine factors.
inline bool realSplitTables(int order, bool dbl) { return !dbl && order > 20; }

inline Qsp64s realTableBytes(int order, bool dbl)
{
    const Qsp64s n = Qsp64s(1) << order;
    if (dbl) return r64(4 * n + 63);
    if (!realSplitTables(order, dbl)) return r64((2 * n & ~Qsp64s(7)) + 63);
    return r64((Qsp64s(8) << (order - 12)) + 8255);
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

inline Sizes kindSizes(Kind k, int order)
{
    return isReal(k) ? realSizes(order, isDouble(k)) : complexSizes(order, isDouble(k));
}

// The flag test: not above 8 and its bit set in 0x116 (1, 2, 4, 8).
inline bool validFlag(int flag) { return flag >= 0 && flag <= 8 && ((0x116 >> flag) & 1) != 0; }

}  // namespace fft

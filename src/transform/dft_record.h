// SPDX-License-Identifier: BSD-3-Clause
// The DFT record: identifiers, header, the choice of method by length, and
// the layout of the record block, the Init buffer and the work buffer. The
// size queries and Init both take their numbers from recordLayout(), so they
// cannot disagree.
//
// Method by length L (every kind):
//   L <= 16                      direct evaluation, straight-line kernels
//   L a power of two (>= 32)     an FFT record of that order inside the block
//   L > limit of the plan        qspStsBadSize
//   the factor rule gives a plan the prime-factor plan (dft_factor.h)
//   L > 50                       the chirp convolution (above its limit
//                                qspStsBadSize)
//   otherwise (primes 17..47)    direct evaluation from a table of L roots
//
// The complex transform that runs (the "core") has length L, except for the
// real kinds of even length L, which run a complex transform of L/2 on the
// even and odd samples and recombine (with the roots W_L^k, k <= L/4).
//
// Record block, from the 64-byte aligned record start:
//   header (kHeaderBytes)
//   the FFT record, or the core's tables (root table, plan tables or chirp
//   state), then the real recombination table.
// Init buffer (aligned): the roots of the length (W_n^j, or W_2n^j for the
// chirp), then the chirp's scratch. Work buffer (aligned): the core's work,
// then the complex temporary of the real kinds or the single-precision copy
// of the half-precision kind.
#pragma once
#include "dft_chirp.h"
#include "dft_factor.h"
#include "dft_layout.h"
#include "dft_mixed_radix.h"

namespace dft {

enum Kind : Qsp32u {
    kC16fc = 14,
    kC32fc = 15,
    kC32f = 16,
    kR32f = 17,
    kC64fc = 18,
    kC64f = 19,
    kR64f = 20,
};

// The normalisation flag of the FFT: 1, 2, 4 or 8.
inline bool validFlag(int flag) { return flag >= 0 && flag <= 8 && ((0x116 >> flag) & 1) != 0; }

inline bool isDouble(Kind k) { return k == kC64fc || k == kC64f || k == kR64f; }
inline bool isReal(Kind k) { return k == kR32f || k == kR64f; }

// Longest lengths of the plan and of the chirp. The 64-bit kinds halve the
// plan's limit and take a quarter of the chirp's, so that their byte sizes
// stay within those of the 32-bit kinds. The chirp's sizes for single
// precision fit in an int only up to 33554431: the size queries refuse the
// longer lengths that Init still accepts.
inline Qsp64s planLimit(Kind k) { return isDouble(k) ? 67108863 : 134217727; }
inline Qsp64s chirpLimit(Kind k) { return isDouble(k) ? 16777215 : 67108863; }
inline Qsp64s chirpSizeLimit(Kind k) { return isDouble(k) ? 16777215 : 33554431; }

enum Method : Qsp32u { kDirect = 0, kFft = 1, kPlan = 2, kTable = 3, kChirp = 4 };
enum CoreMethod : Qsp32u { kCoreNone = 0, kCoreSmall = 1, kCoreTable = 2, kCorePlan = 3, kCoreChirp = 4 };

struct Record {
    Qsp32u id;
    Qsp32s len;
    Qsp32u forwardNormalise;
    Qsp32u inverseNormalise;
    union {
        Qsp32f f;
        Qsp64f d;
    } factor;
    Qsp32u hint;
    Qsp32s workSize;
    Qsp32u powerOfTwo;
    Qsp32u method;           // Method
    void* fft;               // the FFT record (powers of two)
    const void* direct;      // the root table of the direct method
    Plan plan;
    Chirp chirp;
    // What runs: the core's method and length, and where the real kinds
    // keep their recombination roots and complex temporary.
    Qsp32u coreMethod;
    Qsp32s core;
    const void* recomb;
    Qsp64s tempAt;           // work-buffer offset of the real temporary or the half copy
};

constexpr Qsp64s kHeaderBytes = 896;
static_assert(sizeof(Record) <= kHeaderBytes);

inline Record* recordOf(const void* block)
{
    return reinterpret_cast<Record*>(alignUp64(const_cast<void*>(block)));
}

struct Layout {
    Method method = kDirect;
    CoreMethod coreMethod = kCoreNone;
    Qsp64s core = 0;          // complex length that runs
    int order = 0;            // FFT order (powers of two)
    FactorList list;          // the core's factors (plan)
    PlanLayout plan;
    ChirpLayout chirp;
    Qsp64s rootCount = 0;     // roots built in the Init buffer
    Qsp64s rootN = 1;         // of W_rootN
    Qsp64s tablesAt = kHeaderBytes;
    Qsp64s directAt = 0, recombAt = 0;
    Qsp64s tempAt = 0;        // in the work buffer
    Qsp64s spec = 0, init = 0, work = 0;
};

// The sizes of the embedded FFT record of each kind (the half-precision
// kind runs the single-precision one on a converted copy), from the FFT's
// own query.
inline QspStatus fftSizes(Kind kind, int order, int flag, int hint, Qsp64s& spec, Qsp64s& init, Qsp64s& work)
{
    int s = 0, i = 0, w = 0;
    QspStatus st;
    switch (kind) {
    case kC16fc:
    case kC32fc: st = y8::qspsFFTGetSize_C_32fc(order, flag, hint, &s, &i, &w); break;
    case kC32f: st = y8::qspsFFTGetSize_C_32f(order, flag, hint, &s, &i, &w); break;
    case kR32f: st = y8::qspsFFTGetSize_R_32f(order, flag, hint, &s, &i, &w); break;
    case kC64fc: st = y8::qspsFFTGetSize_C_64fc(order, flag, hint, &s, &i, &w); break;
    case kC64f: st = y8::qspsFFTGetSize_C_64f(order, flag, hint, &s, &i, &w); break;
    default: st = y8::qspsFFTGetSize_R_64f(order, flag, hint, &s, &i, &w); break;
    }
    spec = u32(s);
    init = u32(i);
    work = u32(w);
    if (kind == kC16fc) work = roundUp64(work) + roundUp64((Qsp64s(1) << order) * 8) + 64;
    return st;
}

// Work-buffer offset of the half kind's single-precision copy behind the
// FFT's work (its reported size includes its own alignment slack).
inline Qsp64s fftHalfCopyAt(Qsp64s fftWork) { return roundUp64(fftWork); }

// The plan of a real kind of even length: the list of L with one 2 taken
// out (a leading 2 goes, a 4 becomes 2, a 6 becomes 3).
inline FactorList halveList(FactorList f)
{
    if (f.f[0] == 2) {
        for (int i = 0; i + 1 < f.count; ++i) f.f[i] = f.f[i + 1];
        --f.count;
    } else {
        f.f[0] /= 2;
    }
    return f;
}

// The sizes and places of everything a record of this kind and length
// needs. The caller has checked len >= 1 and the flag; powers of two from
// 32 go to the FFT (their sizes come from its own query). Returns
// qspStsBadSize for lengths beyond the method's limit; forSizes applies the
// tighter limit of the size queries to the chirp.
template <class T>
QspStatus recordLayout(Kind kind, Qsp64s len, bool forSizes, Layout& l)
{
    const bool real = isReal(kind);
    const Qsp64s cx = 2 * Qsp64s(sizeof(T));  // bytes of a complex value
    l = Layout{};
    if (len <= 16) {
        l.method = kDirect;
        l.coreMethod = kCoreSmall;
        l.core = len;
        l.spec = 64 + kHeaderBytes;
        // the half kind converts on the stack at these lengths
        return qspStsOk;
    }
    if (len > planLimit(kind)) return qspStsBadSize;
    const FactorList f = factorise(len);
    const bool half = real && len % 2 == 0;
    l.core = half ? len / 2 : len;
    l.rootN = len;
    if (f.planned) {
        l.method = kPlan;
        l.list = half ? halveList(f) : f;
        if (l.list.count >= 2)
            l.coreMethod = kCorePlan;
        else
            l.coreMethod = l.core <= 16 ? kCoreSmall : kCoreTable;
    } else if (len > 50) {
        if (len > (forSizes ? chirpSizeLimit(kind) : chirpLimit(kind))) return qspStsBadSize;
        l.method = kChirp;
        l.coreMethod = kCoreChirp;
        l.rootN = 2 * l.core;  // the chirp's roots W_(2n); for even real lengths these are W_L
    } else {
        l.method = kTable;
        l.coreMethod = kCoreTable;
    }
    // real kinds of even length need W_L (for the core at stride 2) when
    // the core is not the chirp; the others W_n of the core
    l.rootCount = l.rootN;
    Qsp64s at = kHeaderBytes;
    Qsp64s work = 0;
    switch (l.coreMethod) {
    case kCoreTable:
        l.directAt = at;
        at += roundUp64(l.core * cx);
        work = l.core * cx;  // a copy of the source: 8 L + 64 bytes for single precision
        break;
    case kCorePlan:
        l.plan = planLayout<T>(l.list, l.core);
        at += l.plan.tableBytes;
        work = l.plan.workBytes;
        break;
    case kCoreChirp:
        l.chirp = chirpLayout<T>(l.core);
        at += l.chirp.tableBytes;
        work = l.chirp.workBytes;
        break;
    default: break;
    }
    if (half) {
        l.recombAt = at;
        at += roundUp64((len / 4 + 1) * cx);
    }
    l.spec = 64 + at;
    l.init = 64 + roundUp64(l.rootCount * cx) + (l.coreMethod == kCoreChirp ? l.chirp.initBytes : 0);
    // the real kinds' complex temporary or the half kind's single-precision
    // copy behind the core's work
    l.tempAt = roundUp64(work);
    Qsp64s extra = 0;
    if (real) extra += roundUp64(l.core * cx);
    if (kind == kC16fc) extra += roundUp64(len * 8);
    l.work = 64 + (extra ? l.tempAt + extra : work);
    return qspStsOk;
}

}  // namespace dft

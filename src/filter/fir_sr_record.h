// SPDX-License-Identifier: BSD-3-Clause
// The single-rate FIR record and its sizes.
//
// The record lives in caller memory, at the first 64-byte boundary at or
// after the caller's pointer; every call rounds the pointer up the same
// way. It carries no identifier. Layout from the aligned address:
//   0    header (below, 64 bytes)
//   64   direct-form tap area (64-byte aligned), in one of two layouts:
//        0: every tap repeated across a vector register, in natural
//           order (two registers per complex tap: real parts, then
//           imaginary parts), the kernel's broadcast operand as it is;
//        1: V copies of the taps in reversed order (last tap first), V the
//           samples per register, each L = (N + 2V - 2) rounded down to a
//           multiple of V taps long, copy k starting at tap k*L with k
//           zeros in front of the taps and zeros after them (for 32f:
//           four copies of (N + 6) & ~3). The kernels read copy 0.
//   then the FFT record's memory, the FFT init/work area used by Init, and
//        the taps' spectrum (64-byte aligned): the forward transform of the
//        taps zero padded to fftLen, Perm-packed for real data, complex for
//        complex data. These three exist unless the record is direct-only.
//
// Sizes, for an element of e bytes (the data type: 4 for 32f, 8 for 64f
// and the complex single types, 16 for 64fc), A(x) = x rounded up to a
// multiple of 64, and the transform of order k + 1 (fftLen = 2^(k+1), k
// the smallest integer of at least 1 with 2^k > N) as its GetSize reports
// it for normalisation flag 2:
//   record = max(A(eN), A(4eN), 4e((N + 6) & ~3)) + 191 + FFT record
//            + max(FFT init buffer, FFT work buffer) + e*fftLen
//   buffer = 64(ceil(2eN/64) + ceil(2e(N-1)/64)) + 32768 + FFT work buffer
//            + e*fftLen
// The 191 bytes are the alignment slack, the header and the slack that
// aligns the spectrum.
#pragma once
#include "overlap_save.h"
#include "qspdefs.h"

namespace firsr {

struct Record {
    Qsp32s tapsLen;
    Qsp32u reserved0;
    void* taps;          // the tap area
    Qsp32u layout;       // 0 or 1, above
    Qsp32u algType;      // as given to Init
    void* fftSpec;       // the FFT record, null for a direct-only record
    Qsp8u* fftSpecMem;   // the memory it was built in
    Qsp8u* fftWork;      // the init/work area Init used
    void* spectrum;      // the taps' transform, fftLen values
    Qsp32u fftLen;
    Qsp32u reserved1;
};
static_assert(sizeof(Record) == 64);

constexpr Qsp64s kHeaderBytes = sizeof(Record);
constexpr Qsp64s kStagingBytes = 32768;

inline Qsp64s roundUp64(Qsp64s x) { return (x + 63) & ~Qsp64s(63); }

template <class T>
inline T* alignUp64(T* p)
{
    return reinterpret_cast<T*>((reinterpret_cast<Qsp64u>(p) + 63) & ~Qsp64u(63));
}

inline const Record* recordOf(const void* spec) { return alignUp64(static_cast<const Record*>(spec)); }

// The transform order for N taps: k + 1, 2^k the smallest power of two
// above N with k >= 1.
inline int fftOrder(Qsp64s n)
{
    int k = 1;
    while ((Qsp64s(1) << k) <= n) ++k;
    return k + 1;
}

struct Sizes {
    Qsp64s tapArea;   // bytes of the tap area
    overlap::FftSizes fft;  // the transform's record, init and work sizes
    int order;
    Qsp64s fftLen;
    Qsp64s record;    // what GetSize reports
    Qsp64s buffer;
};

// The sizes for N taps and data of type D; false when they do not fit in
// an int (or the transform has no such order).
template <class D>
bool sizesFor(Qsp64s n, Sizes& z)
{
    constexpr Qsp64s e = sizeof(D);
    z.order = fftOrder(n);
    z.fftLen = Qsp64s(1) << z.order;
    if (!overlap::fftSizes<D>(z.order, z.fft)) return false;
    const Qsp64s copies = 4 * e * ((n + 6) & ~Qsp64s(3));
    z.tapArea = roundUp64(e * n);
    if (roundUp64(4 * e * n) > z.tapArea) z.tapArea = roundUp64(4 * e * n);
    if (copies > z.tapArea) z.tapArea = copies;
    const Qsp64s fftArea = z.fft.init > z.fft.work ? z.fft.init : z.fft.work;
    z.record = z.tapArea + 191 + z.fft.spec + fftArea + e * z.fftLen;
    z.buffer = 64 * ((2 * e * n + 63) / 64 + (2 * e * (n - 1) + 63) / 64) + kStagingBytes + z.fft.work + e * z.fftLen;
    return z.record <= 0x7FFFFFFF && z.buffer <= 0x7FFFFFFF;
}

// The work buffer's areas for N taps of data of e bytes, in the order of
// the size formula: the delay copy and the next delay line, the head of
// the direct method, the staging block, the transform's work buffer and
// the overlap-save block.
template <class D>
struct WorkAreas {
    D* delay;      // N - 1 samples
    D* delayNext;  // N - 1 samples
    D* head;       // 2(N - 1) samples
    D* staged;     // kStagingBytes
    Qsp8u* fftWork;
    D* block;      // fftLen samples
};

template <class D>
WorkAreas<D> workAreas(Qsp8u* buf, Qsp64s n, Qsp64s fftWorkBytes)
{
    constexpr Qsp64s e = sizeof(D);
    const Qsp64s first = 64 * ((2 * e * n + 63) / 64), second = 64 * ((2 * e * (n - 1) + 63) / 64);
    WorkAreas<D> w;
    w.delay = reinterpret_cast<D*>(buf);
    w.delayNext = w.delay + (n - 1);
    w.head = reinterpret_cast<D*>(buf + first);
    w.staged = reinterpret_cast<D*>(buf + first + second);
    w.fftWork = buf + first + second + kStagingBytes;
    w.block = reinterpret_cast<D*>(w.fftWork + fftWorkBytes);
    return w;
}

}  // namespace firsr

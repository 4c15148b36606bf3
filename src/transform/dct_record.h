// SPDX-License-Identifier: BSD-3-Clause
// The DCT record: identifiers, header, the method by length and the sizes
// of the record block, the Init buffer and the work buffer.
//
// Methods by length L:
//   1, 2, 4, 8                  fixed kernels (no buffers)
//   other lengths below 36      direct evaluation from a table of the 4L
//                               values cos(pi j / 2L)
//   powers of two from 16       the real FFT of length L (FFT method)
//   other lengths from 36       the real DFT of length L, whose record uses
//                               prime factors or the chirp convolution
//                               ("convolution method")
// The last two reorder the input (even samples ascending, odd samples
// descending), transform it as a real signal and turn bin k into outputs k
// and L - k with the roots W_4L^k, k <= L/2; the inverse runs the same steps
// backwards.
//
// Record block (from the 64-byte aligned record): the 128-byte header; the
// direct method's table, or the roots W_4L^k followed by the embedded FFT or
// DFT record. Work buffer (aligned): L + 2 values for the reordered signal
// and its spectrum, then the embedded transform's work buffer.
#pragma once
#include "dft_layout.h"
#include "dft_roots.h"
#include "qsp_validators.h"

namespace dct {

using dft::Cx;
using dft::roundUp64;
using dft::u32;

enum Kind : Qsp32u { kFwd32f = 23, kInv32f = 24, kFwd64f = 25, kInv64f = 26 };

template <class T>
struct Record {
    Qsp32u id;
    Qsp32s len;
    Qsp32u hint;
    Qsp32s workSize;
    Qsp32u zero;
    T scale0;                // 1/sqrt(L)
    T scale;                 // sqrt(2)/sqrt(L)
    Qsp32u smallKernel;
    Qsp32u fftMethod;
    Qsp32u convMethod;
    const T* direct;         // cos(pi j / 2L), j < 4L
    void* transform;         // the FFT record (FFT method) or the DFT record (convolution method)
    const Cx<T>* roots;      // W_4L^k, k <= L/2
    Qsp64s transformWorkAt;  // work-buffer offset of the embedded transform's work
};

// Tables start 128 bytes into the record; the header itself fits the
// records of the fixed kernels (160 and 168 bytes with the 64 of slack).
constexpr Qsp64s kHeaderBytes = 128;
static_assert(sizeof(Record<float>) <= 160 - 64 && sizeof(Record<double>) <= 168 - 64);

enum Method { kSmall, kDirect, kFft, kConv };

// Limits of the methods: the 32-bit size query stops the convolution method
// at 33554431 while Init goes to 67108863; the 64-bit kinds use one bound
// for both (that of the 64-bit real DFT's chirp) and stop the FFT method at
// 2^26 so that every size fits in an int.
template <class T>
struct Bounds {
    static constexpr Qsp64s smallRecord = sizeof(T) == 4 ? 160 : 168;
    static constexpr Qsp64s fftLimit = sizeof(T) == 4 ? 268435455 : 134217727;
    static constexpr Qsp64s convSizeLimit = sizeof(T) == 4 ? 33554431 : 16777215;
    static constexpr Qsp64s convInitLimit = sizeof(T) == 4 ? 67108863 : 16777215;
};

inline bool isPowerOfTwo(Qsp64s n) { return (n & (n - 1)) == 0; }

inline int orderOf(Qsp64s n)
{
    int k = 0;
    while ((Qsp64s(1) << k) < n) ++k;
    return k;
}

template <class T>
Method methodOf(Qsp64s len)
{
    if (isPowerOfTwo(len)) return len <= 8 ? kSmall : kFft;
    return len < 36 ? kDirect : kConv;
}

// The embedded transform of each precision, through its validating
// functions (no normalisation: flag 8).
template <class T>
struct Embedded;

template <>
struct Embedded<float> {
    static QspStatus fftSize(int order, int* s, int* i, int* w) { return y8::qspsFFTGetSize_R_32f(order, 8, 0, s, i, w); }
    static QspStatus dftSize(int len, int* s, int* i, int* w) { return y8::qspsDFTGetSize_R_32f(len, 8, 0, s, i, w); }
    static QspStatus fftInit(void** r, int order, Qsp8u* spec, Qsp8u* buf)
    {
        return y8::qspsFFTInit_R_32f(reinterpret_cast<QspsFFTSpec_R_32f**>(r), order, 8, 0, spec, buf);
    }
    static QspStatus dftInit(int len, Qsp8u* spec, Qsp8u* buf)
    {
        return y8::qspsDFTInit_R_32f(len, 8, 0, reinterpret_cast<QspsDFTSpec_R_32f*>(spec), buf);
    }
    static void fftFwd(float* p, const void* r, Qsp8u* w) { y8::qspsFFTFwd_RToCCS_32f_I(p, static_cast<const QspsFFTSpec_R_32f*>(r), w); }
    static void fftInv(float* p, const void* r, Qsp8u* w) { y8::qspsFFTInv_CCSToR_32f_I(p, static_cast<const QspsFFTSpec_R_32f*>(r), w); }
    static void dftFwd(float* p, const void* r, Qsp8u* w) { y8::qspsDFTFwd_RToCCS_32f(p, p, static_cast<const QspsDFTSpec_R_32f*>(r), w); }
    static void dftInv(float* p, const void* r, Qsp8u* w) { y8::qspsDFTInv_CCSToR_32f(p, p, static_cast<const QspsDFTSpec_R_32f*>(r), w); }
};

template <>
struct Embedded<double> {
    static QspStatus fftSize(int order, int* s, int* i, int* w) { return y8::qspsFFTGetSize_R_64f(order, 8, 0, s, i, w); }
    static QspStatus dftSize(int len, int* s, int* i, int* w) { return y8::qspsDFTGetSize_R_64f(len, 8, 0, s, i, w); }
    static QspStatus fftInit(void** r, int order, Qsp8u* spec, Qsp8u* buf)
    {
        return y8::qspsFFTInit_R_64f(reinterpret_cast<QspsFFTSpec_R_64f**>(r), order, 8, 0, spec, buf);
    }
    static QspStatus dftInit(int len, Qsp8u* spec, Qsp8u* buf)
    {
        return y8::qspsDFTInit_R_64f(len, 8, 0, reinterpret_cast<QspsDFTSpec_R_64f*>(spec), buf);
    }
    static void fftFwd(double* p, const void* r, Qsp8u* w) { y8::qspsFFTFwd_RToCCS_64f_I(p, static_cast<const QspsFFTSpec_R_64f*>(r), w); }
    static void fftInv(double* p, const void* r, Qsp8u* w) { y8::qspsFFTInv_CCSToR_64f_I(p, static_cast<const QspsFFTSpec_R_64f*>(r), w); }
    static void dftFwd(double* p, const void* r, Qsp8u* w) { y8::qspsDFTFwd_RToCCS_64f(p, p, static_cast<const QspsDFTSpec_R_64f*>(r), w); }
    static void dftInv(double* p, const void* r, Qsp8u* w) { y8::qspsDFTInv_CCSToR_64f(p, p, static_cast<const QspsDFTSpec_R_64f*>(r), w); }
};

// Record block: header, roots W_4L^k (k <= L/2), then the embedded
// transform's block; work buffer: L + 2 values, then the embedded
// transform's work.
inline Qsp64s rootsBytes(Qsp64s len, Qsp64s t) { return roundUp64((len / 2 + 1) * 2 * t); }
constexpr Qsp64s kRootsAt = kHeaderBytes;
inline Qsp64s innerAt(Qsp64s len, Qsp64s t) { return kHeaderBytes + rootsBytes(len, t); }
inline Qsp64s innerWorkAt(Qsp64s len, Qsp64s t) { return roundUp64((len + 2) * t); }

struct Layout {
    Method method = kSmall;
    Qsp64s spec = 0, init = 0, work = 0;  // as the size query reports them
};

// Sizes of a length whose limits the caller has checked.
template <class T>
QspStatus layoutOf(Qsp64s len, Layout& l)
{
    l = Layout{};
    l.method = methodOf<T>(len);
    const Qsp64s t = sizeof(T);
    switch (l.method) {
    case kSmall: l.spec = Bounds<T>::smallRecord; return qspStsOk;
    case kDirect:
        l.spec = 4 * t * len + 192;
        l.work = t * len + 64;
        return qspStsOk;
    default: break;
    }
    int s = 0, i = 0, w = 0;
    const QspStatus st = l.method == kFft ? Embedded<T>::fftSize(orderOf(len), &s, &i, &w)
                                          : Embedded<T>::dftSize(static_cast<int>(len), &s, &i, &w);
    if (st) return st;
    l.spec = 192 + rootsBytes(len, t) + u32(s);
    l.init = u32(i) ? u32(i) + 64 : 0;
    l.work = 64 + innerWorkAt(len, t) + u32(w);
    return qspStsOk;
}

}  // namespace dct

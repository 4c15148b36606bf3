// SPDX-License-Identifier: BSD-3-Clause
// Hilbert: the analytic signal z[n] = x[n] + i h[n] of a real block of the
// record's length L, h the discrete Hilbert transform of x: with X the DFT of
// x, h is the inverse DFT of -i sgn(k) X[k], where sgn is +1 for the bins
// 1 .. ceil(L/2) - 1, -1 for their mirrors, and 0 for bin 0 and (even L) bin
// L/2. This is the inverse DFT of X[k] H[k] with H = 1, 2, ..., 2, (1), 0, ...,
// 0 split into its real and imaginary parts: the real part is x itself (it
// is written from the input, exactly), and h is real, so one real DFT record
// (forward, and inverse divided by L) serves both transforms.
//
// Record block (aligned to 64): a 64-byte header, then the real DFT record.
// Buffer: L + 2 values for the signal and its half spectrum, then the real
// DFT's work buffer; the same buffer size serves Init (for the DFT record's
// tables).
#include "arith/rounding.h"
#include "dft_layout.h"
#include "qsp_validators.h"

namespace y8 {
namespace {

using dft::alignUp64;
using dft::roundUp64;
using dft::u32;

enum Kind : Qsp32u { kHilbert32f = 27, kHilbert64f = 28 };

struct Record {
    Qsp32u id;
    Qsp32s len;
    Qsp32u hint;
    Qsp32s workSize;
    void* dft;  // the real DFT record (flag 2: the inverse divided by L)
};

constexpr Qsp64s kHeaderBytes = 64;
static_assert(sizeof(Record) <= kHeaderBytes);

template <class T>
struct RealDft;

template <>
struct RealDft<float> {
    static constexpr Kind kind = kHilbert32f;
    static QspStatus getSize(int len, int* s, int* i, int* w) { return qspsDFTGetSize_R_32f(len, 2, 0, s, i, w); }
    static QspStatus init(int len, Qsp8u* spec, Qsp8u* buf)
    {
        return qspsDFTInit_R_32f(len, 2, 0, reinterpret_cast<QspsDFTSpec_R_32f*>(spec), buf);
    }
    static void forward(float* p, const void* r, Qsp8u* w)
    {
        qspsDFTFwd_RToCCS_32f(p, p, static_cast<const QspsDFTSpec_R_32f*>(r), w);
    }
    static void inverse(float* p, const void* r, Qsp8u* w)
    {
        qspsDFTInv_CCSToR_32f(p, p, static_cast<const QspsDFTSpec_R_32f*>(r), w);
    }
};

template <>
struct RealDft<double> {
    static constexpr Kind kind = kHilbert64f;
    static QspStatus getSize(int len, int* s, int* i, int* w) { return qspsDFTGetSize_R_64f(len, 2, 0, s, i, w); }
    static QspStatus init(int len, Qsp8u* spec, Qsp8u* buf)
    {
        return qspsDFTInit_R_64f(len, 2, 0, reinterpret_cast<QspsDFTSpec_R_64f*>(spec), buf);
    }
    static void forward(double* p, const void* r, Qsp8u* w)
    {
        qspsDFTFwd_RToCCS_64f(p, p, static_cast<const QspsDFTSpec_R_64f*>(r), w);
    }
    static void inverse(double* p, const void* r, Qsp8u* w)
    {
        qspsDFTInv_CCSToR_64f(p, p, static_cast<const QspsDFTSpec_R_64f*>(r), w);
    }
};

inline Qsp64s signalBytes(Qsp64s len, Qsp64s t) { return roundUp64((len + 2) * t); }

// Pointers, then the length (and the real DFT's own limits).
template <class T>
QspStatus getSize(int len, int* pSpecSize, int* pBufferSize)
{
    if (pSpecSize == nullptr || pBufferSize == nullptr) return qspStsNullPtr;
    if (len < 1) return qspStsBadSize;
    int s = 0, i = 0, w = 0;
    if (QspStatus st = RealDft<T>::getSize(len, &s, &i, &w)) return st;
    const Qsp64s spec = 64 + kHeaderBytes + u32(s);
    const Qsp64s work = 64 + signalBytes(len, sizeof(T)) + u32(w);
    const Qsp64s buffer = u32(i) > work ? u32(i) : work;
    if (spec > 0x7FFFFFFF || buffer > 0x7FFFFFFF) return qspStsBadSize;
    *pSpecSize = static_cast<int>(spec);
    *pBufferSize = static_cast<int>(buffer);
    return qspStsOk;
}

// The record pointer and block, the length, then the real DFT's Init (which
// refuses a missing buffer when its tables need one). The identifier is
// written last.
template <class T>
QspStatus init(void** ppSpec, int len, int hint, Qsp8u* pSpec, Qsp8u* pBuffer)
{
    if (ppSpec == nullptr || pSpec == nullptr) return qspStsNullPtr;
    if (len < 1) return qspStsBadSize;
    Record* rec = reinterpret_cast<Record*>(alignUp64(pSpec));
    rec->id = 0;
    Qsp8u* inner = reinterpret_cast<Qsp8u*>(rec) + kHeaderBytes;
    if (QspStatus s = RealDft<T>::init(len, inner, pBuffer)) return s;
    int s = 0, i = 0, w = 0;
    RealDft<T>::getSize(len, &s, &i, &w);
    rec->len = len;
    rec->hint = static_cast<Qsp32u>(hint);
    rec->dft = inner;
    const Qsp64s work = 64 + signalBytes(len, sizeof(T)) + u32(w);
    rec->workSize = work > 0x7FFFFFFF ? 0x7FFFFFFF : static_cast<Qsp32s>(work);
    rec->id = RealDft<T>::kind;
    *ppSpec = rec;
    return qspStsOk;
}

// h of the record's length from the signal held in v (L values; v has room
// for L + 2), in place: X = DFT(v), Y = -i sgn(k) X, h = DFT^-1(Y) / L.
template <class T>
void ownsHilbertPart(const Record* rec, T* v, Qsp8u* work)
{
    const Qsp64s len = rec->len;
    RealDft<T>::forward(v, rec->dft, work);
    v[0] = v[1] = T(0);
    for (Qsp64s k = 1; 2 * k < len; ++k) {
        const T re = v[2 * k], im = v[2 * k + 1];
        v[2 * k] = im;
        v[2 * k + 1] = -re;
    }
    if ((len & 1) == 0) v[len] = v[len + 1] = T(0);
    RealDft<T>::inverse(v, rec->dft, work);
}

// Pointers, the record's identifier, the buffer; then the signal into the
// buffer (converted when integer), h beside it, and z = x + i h out.
template <class T, class S, class Put>
QspStatus analytic(const S* pSrc, const void* pDst, const void* pSpec, Qsp8u* pBuffer, Put put)
{
    if (pSrc == nullptr || pDst == nullptr || pSpec == nullptr) return qspStsNullPtr;
    const Record* rec = static_cast<const Record*>(pSpec);
    if (rec->id != RealDft<T>::kind) return qspStsBadRecord;
    if (pBuffer == nullptr) return qspStsNullPtr;
    Qsp8u* w = alignUp64(pBuffer);
    T* v = reinterpret_cast<T*>(w);
    const Qsp64s len = rec->len;
    for (Qsp64s n = 0; n < len; ++n) v[n] = static_cast<T>(pSrc[n]);
    ownsHilbertPart<T>(rec, v, w + signalBytes(len, sizeof(T)));
    for (Qsp64s n = 0; n < len; ++n) put(n, static_cast<T>(pSrc[n]), v[n]);
    return qspStsOk;
}

}  // namespace

QspStatus qspsHilbertGetSize_32f32fc(int len, QspHintAlgorithm, int* pSpecSize, int* pBufferSize)
{
    return getSize<float>(len, pSpecSize, pBufferSize);
}

QspStatus qspsHilbertGetSize_64f64fc(int len, QspHintAlgorithm, int* pSpecSize, int* pBufferSize)
{
    return getSize<double>(len, pSpecSize, pBufferSize);
}

QspStatus qspsHilbertInit_32f32fc(QspsHilbertSpec_32f** ppSpec, int len, QspHintAlgorithm hint, Qsp8u* pSpec,
                                  Qsp8u* pBuffer)
{
    return init<float>(reinterpret_cast<void**>(ppSpec), len, hint, pSpec, pBuffer);
}

QspStatus qspsHilbertInit_64f64fc(QspsHilbertSpec_64f** ppSpec, int len, QspHintAlgorithm hint, Qsp8u* pSpec,
                                  Qsp8u* pBuffer)
{
    return init<double>(reinterpret_cast<void**>(ppSpec), len, hint, pSpec, pBuffer);
}

QspStatus qspsHilbert_32f32fc(const Qsp32f* pSrc, Qsp32fc* pDst, const QspsHilbertSpec_32f* pSpec, Qsp8u* pBuffer)
{
    return analytic<float>(pSrc, pDst, pSpec, pBuffer, [=](Qsp64s n, float re, float im) { pDst[n] = {re, im}; });
}

QspStatus qspsHilbert_64f64fc(const Qsp64f* pSrc, Qsp64fc* pDst, const QspsHilbertSpec_64f* pSpec, Qsp8u* pBuffer)
{
    return analytic<double>(pSrc, pDst, pSpec, pBuffer, [=](Qsp64s n, double re, double im) { pDst[n] = {re, im}; });
}

QspStatus qspsHilbert_16s32fc(const Qsp16s* pSrc, Qsp32fc* pDst, const QspsHilbertSpec_32f* pSpec, Qsp8u* pBuffer)
{
    return analytic<float>(pSrc, pDst, pSpec, pBuffer, [=](Qsp64s n, float re, float im) { pDst[n] = {re, im}; });
}

// Both parts times 2^-scaleFactor, to nearest with ties to even, saturated.
QspStatus qspsHilbert_16s16sc_Sfs(const Qsp16s* pSrc, Qsp16sc* pDst, const QspsHilbertSpec_32f* pSpec, Qsp8u* pBuffer,
                                  int scaleFactor)
{
    using rounding::kNear;
    const auto scale = rounding::PowerOfTwo::scaleFactor(scaleFactor);
    return analytic<float>(pSrc, pDst, pSpec, pBuffer, [=](Qsp64s n, float re, float im) {
        pDst[n] = {rounding::toInt<kNear, Qsp16s>(scale(re)), rounding::toInt<kNear, Qsp16s>(scale(im))};
    });
}

}  // namespace y8

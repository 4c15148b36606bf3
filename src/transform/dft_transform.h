// SPDX-License-Identifier: BSD-3-Clause
// The DFT transforms shared by the forward and inverse families: entry
// checks, the run of the record's method, the real kinds' recombination and
// packed layouts, and the half-precision conversions.
#pragma once
#include "dft_direct.h"
#include "dft_record.h"
#include "mathfn/half.h"
#include "qspcore.h"
#include "qsp_validators.h"

namespace dft {

// ---------------------------------------------------------------- checks

// The record (null, then its identifier), the data pointers in parameter
// order, then the work buffer when the record needs one. The block may be
// passed as allocated: the record is at its first 64-byte boundary.
template <class... P>
inline QspStatus checkCall(const void* spec, Kind kind, const Qsp8u* work, const P*... data)
{
    if (spec == nullptr) return qspStsNullPtr;
    const Record* rec = recordOf(spec);
    if (rec->id != kind) return qspStsBadRecord;
    if (((data == nullptr) || ...)) return qspStsNullPtr;
    if (rec->workSize > 0 && work == nullptr) return qspStsNullPtr;
    return qspStsOk;
}

template <class T>
inline T factorOf(const Record* rec)
{
    if constexpr (sizeof(T) == 4)
        return rec->factor.f;
    else
        return rec->factor.d;
}

template <bool Inv>
inline bool normalises(const Record* rec)
{
    return (Inv ? rec->inverseNormalise : rec->forwardNormalise) != 0;
}

inline Qsp8u* workOf(const Record* rec, Qsp8u* work) { return rec->workSize > 0 ? alignUp64(work) : nullptr; }

// Views of caller data for the kernels (const sources are only read).
template <class T>
inline InterleavedData<T> interleaved(const void* p)
{
    return {static_cast<T*>(const_cast<void*>(p))};
}
template <class T>
inline SplitData<T> split(const T* re, const T* im)
{
    return {const_cast<T*>(re), const_cast<T*>(im)};
}

// ---------------------------------------------------------------- complex

// The core transform of the record (every method but the FFT); work is the
// aligned work buffer.
template <class T, bool Inv, class In, class Out>
void ownsCore(const Record* rec, const In& in, const Out& out, Qsp8u* work, bool scaled, T f)
{
    const Qsp64s n = rec->core;
    switch (rec->coreMethod) {
    case kCoreSmall: ownsSmallTransform<T, Inv>(n, in, out, scaled, f); break;
    case kCoreTable:
        ownsTableTransform<T, Inv>(static_cast<const Cx<T>*>(rec->direct), n, in, out, reinterpret_cast<Cx<T>*>(work),
                                   scaled, f);
        break;
    case kCorePlan: ownsPlanTransform<T, Inv>(rec->plan, in, out, work, scaled, f); break;
    default: ownsChirpTransform<T, Inv>(rec->chirp, n, in, out, work, scaled, f); break;
    }
}

template <class T, bool Inv, class In, class Out>
inline void ownsComplexCall(const Record* rec, const In& in, const Out& out, Qsp8u* work)
{
    ownsCore<T, Inv>(rec, in, out, workOf(rec, work), normalises<Inv>(rec), factorOf<T>(rec));
}

// ---------------------------------------------------------------- half precision

// Two conversion paths between half and single precision, chosen by the
// processor-feature query: on processors with the half-precision
// conversion instructions the library converts four values at a time in
// vector registers; otherwise one value at a time. Both give the same
// (exact, respectively correctly rounded) values.
constexpr Qsp64u kHalfFeature = 0x1000000000ULL;

inline bool halfBlockPath() { return ownGetFeature(kHalfFeature) != 0; }

// Four halves (in the low 64 bits) to four floats, exactly.
inline __m128 ownsHalf4ToFloat(__m128i h)
{
    using I = simd::Vec<Qsp32s>;
    using F = simd::Vec<float>;
    const __m128i w = I::lo16u(h);
    const __m128i sign = I::sll(I::bitAnd(w, I::splat(0x8000)), I::count(16));
    const __m128i em = I::bitAnd(w, I::splat(0x7FFF));
    const __m128i shifted = I::sll(em, I::count(13));
    const __m128i normal = I::add(shifted, I::splat(0x38000000));
    const __m128i special = I::bitOr(shifted, I::splat(0x7F800000));
    // subnormal halves (and zero): em * 2^-24, exact in float
    const __m128 sub = F::mul(_mm_cvtepi32_ps(em), F::splat(5.9604644775390625e-8f));
    const __m128i isSpecial = I::cmpgt(em, I::splat(0x7BFF));
    const __m128i isSub = I::cmplt(em, I::splat(0x0400));
    __m128i bits = I::select(isSpecial, normal, special);
    bits = I::select(isSub, bits, _mm_castps_si128(sub));
    return _mm_castsi128_ps(I::bitOr(bits, sign));
}

inline void ownsHalfToFloat(const Qsp16f* h, float* f, Qsp64s count, bool block)
{
    Qsp64s i = 0;
    if (block)
        for (; i + 4 <= count; i += 4) simd::Vec<float>::storeu(f + i, ownsHalf4ToFloat(_mm_loadl_epi64(reinterpret_cast<const __m128i*>(h + i))));
    for (; i < count; ++i) f[i] = mathfn::halfToFloat(h[i]);
}

// Rounding to half: the block path rounds normal-range values four at a
// time in integers (ties to even) and leaves the other lanes to the
// one-value conversion.
inline void ownsFloatToHalf(const float* f, Qsp16f* h, Qsp64s count, bool block)
{
    using I = simd::Vec<Qsp32s>;
    Qsp64s i = 0;
    if (block) {
        for (; i + 4 <= count; i += 4) {
            const __m128i u = _mm_castps_si128(simd::Vec<float>::loadu(f + i));
            const __m128i au = I::bitAnd(u, I::splat(0x7FFFFFFF));
            // normal halves: 0x38800000 <= au < 0x477FF000
            const __m128i inRange = I::bitAnd(I::cmpgt(au, I::splat(0x387FFFFF)), I::cmplt(au, I::splat(0x477FF000)));
            if (I::anyMask(inRange) != 0xF) {
                for (int j = 0; j < 4; ++j) h[i + j] = mathfn::floatToHalf(f[i + j]);
                continue;
            }
            const __m128i odd = I::bitAnd(I::srl(au, I::count(13)), I::splat(1));
            const __m128i r = I::add(I::add(au, I::splat(0x0FFF)), odd);
            const __m128i mag = I::srl(I::sub(r, I::splat(0x38000000)), I::count(13));
            const __m128i sign = I::bitAnd(I::srl(u, I::count(16)), I::splat(0x8000));
            const __m128i v = I::bitOr(mag, sign);
            alignas(16) Qsp32s out[4];
            I::store(out, v);
            for (int j = 0; j < 4; ++j) h[i + j] = static_cast<Qsp16f>(out[j]);
        }
    }
    for (; i < count; ++i) h[i] = mathfn::floatToHalf(f[i]);
}

// ---------------------------------------------------------------- real

enum class Packed { Pack, Perm, Ccs };

// Bin k (0 <= k <= L/2) of a half spectrum in the layout.
template <class T>
inline void putBin(T* d, Packed layout, Qsp64s len, Qsp64s k, T re, T im)
{
    if (k == 0) {
        d[0] = re;
        if (layout == Packed::Ccs) d[1] = T(0);
        return;
    }
    if (2 * k == len) {
        if (layout == Packed::Pack) d[len - 1] = re;
        else if (layout == Packed::Perm) d[1] = re;
        else {
            d[len] = re;
            d[len + 1] = T(0);
        }
        return;
    }
    const Qsp64s at = layout == Packed::Pack || (layout == Packed::Perm && (len & 1)) ? 2 * k - 1 : 2 * k;
    d[at] = re;
    d[at + 1] = im;
}

template <class T>
inline Cx<T> getBin(const T* s, Packed layout, Qsp64s len, Qsp64s k)
{
    if (k == 0) return {s[0], T(0)};
    if (2 * k == len) {
        if (layout == Packed::Pack) return {s[len - 1], T(0)};
        if (layout == Packed::Perm) return {s[1], T(0)};
        return {s[len], T(0)};
    }
    const Qsp64s at = layout == Packed::Pack || (layout == Packed::Perm && (len & 1)) ? 2 * k - 1 : 2 * k;
    return {s[at], s[at + 1]};
}

// Z (the half-length transform of x[2m] + i x[2m+1]) to the bins of X:
// E = (Z_k + conj Z_m)/2, O = -i (Z_k - conj Z_m)/2 with m = H - k,
// X_k = E + W^k O and X_m = conj(E - W^k O).
template <class T>
void ownsRecombineForward(const Cx<T>* z, const Cx<T>* w, Qsp64s len, T* d, Packed layout)
{
    const Qsp64s h = len / 2;
    putBin<T>(d, layout, len, 0, z[0].re + z[0].im, T(0));
    putBin<T>(d, layout, len, h, z[0].re - z[0].im, T(0));
    for (Qsp64s k = 1; 2 * k <= h; ++k) {
        const Qsp64s m = h - k;
        const Cx<T> zk = z[k], zm = z[m];
        const Cx<T> e{(zk.re + zm.re) * T(0.5), (zk.im - zm.im) * T(0.5)};
        const Cx<T> o{(zk.im + zm.im) * T(0.5), (zm.re - zk.re) * T(0.5)};
        const Cx<T> wo{o.re * w[k].re - o.im * w[k].im, o.re * w[k].im + o.im * w[k].re};
        putBin<T>(d, layout, len, k, e.re + wo.re, e.im + wo.im);
        if (m != k) putBin<T>(d, layout, len, m, e.re - wo.re, wo.im - e.im);
    }
}

// The bins of X to 2Z: E = X_k + conj X_m, O = conj(W^k) (X_k - conj X_m),
// 2Z_k = E + i O, 2Z_m = conj(E - i O).
template <class T>
void ownsRecombineInverse(const T* s, const Cx<T>* w, Qsp64s len, Packed layout, Cx<T>* z)
{
    const Qsp64s h = len / 2;
    const T x0 = getBin<T>(s, layout, len, 0).re, xh = getBin<T>(s, layout, len, h).re;
    z[0] = {x0 + xh, x0 - xh};
    for (Qsp64s k = 1; 2 * k <= h; ++k) {
        const Qsp64s m = h - k;
        const Cx<T> xk = getBin<T>(s, layout, len, k), xm = getBin<T>(s, layout, len, m);
        const Cx<T> e{xk.re + xm.re, xk.im - xm.im};
        const Cx<T> dl{xk.re - xm.re, xk.im + xm.im};
        const Cx<T> o{dl.re * w[k].re + dl.im * w[k].im, dl.im * w[k].re - dl.re * w[k].im};
        z[k] = {e.re - o.im, e.im + o.re};
        if (m != k) z[m] = {e.re + o.im, o.re - e.im};
    }
}

// The real forward transform of any length but powers of two from 32.
template <class T>
void ownsRealForward(const Record* rec, const T* src, T* dst, Qsp8u* work, Packed layout)
{
    const Qsp64s len = rec->len;
    const bool scaled = normalises<false>(rec);
    const T f = factorOf<T>(rec);
    if (len <= 16) {
        Cx<T> x[16];
        for (Qsp64s i = 0; i < len; ++i) x[i] = {src[i], T(0)};
        const InterleavedData<T> v{&x[0].re};
        ownsSmallTransform<T, false>(len, v, v, scaled, f);
        for (Qsp64s k = 0; 2 * k <= len; ++k) putBin<T>(dst, layout, len, k, x[k].re, x[k].im);
        return;
    }
    Qsp8u* w = alignUp64(work);
    Cx<T>* temp = reinterpret_cast<Cx<T>*>(w + rec->tempAt);
    const InterleavedData<T> t{&temp->re};
    if ((len & 1) == 0) {
        ownsCore<T, false>(rec, interleaved<T>(src), t, w, scaled, f);
        ownsRecombineForward<T>(temp, static_cast<const Cx<T>*>(rec->recomb), len, dst, layout);
    } else {
        for (Qsp64s i = 0; i < len; ++i) temp[i] = {src[i], T(0)};
        ownsCore<T, false>(rec, t, t, w, scaled, f);
        for (Qsp64s k = 0; 2 * k <= len; ++k) putBin<T>(dst, layout, len, k, temp[k].re, temp[k].im);
    }
}

template <class T>
void ownsRealInverse(const Record* rec, const T* src, T* dst, Qsp8u* work, Packed layout)
{
    const Qsp64s len = rec->len;
    const bool scaled = normalises<true>(rec);
    const T f = factorOf<T>(rec);
    // the whole conjugate-symmetric spectrum from the half spectrum
    auto expand = [&](Cx<T>* x) {
        for (Qsp64s k = 0; 2 * k <= len; ++k) {
            const Cx<T> b = getBin<T>(src, layout, len, k);
            x[k] = b;
            if (k > 0 && 2 * k != len) x[len - k] = {b.re, -b.im};
        }
    };
    if (len <= 16) {
        Cx<T> x[16];
        expand(x);
        const InterleavedData<T> v{&x[0].re};
        ownsSmallTransform<T, true>(len, v, v, scaled, f);
        for (Qsp64s i = 0; i < len; ++i) dst[i] = x[i].re;
        return;
    }
    Qsp8u* w = alignUp64(work);
    Cx<T>* temp = reinterpret_cast<Cx<T>*>(w + rec->tempAt);
    const InterleavedData<T> t{&temp->re};
    if ((len & 1) == 0) {
        ownsRecombineInverse<T>(src, static_cast<const Cx<T>*>(rec->recomb), len, layout, temp);
        ownsCore<T, true>(rec, t, interleaved<T>(dst), w, scaled, f);
    } else {
        expand(temp);
        ownsCore<T, true>(rec, t, t, w, scaled, f);
        for (Qsp64s i = 0; i < len; ++i) dst[i] = temp[i].re;
    }
}

}  // namespace dft

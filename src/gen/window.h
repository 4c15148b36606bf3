// SPDX-License-Identifier: BSD-3-Clause
// The one driver of the window families. Every window is symmetric, so a
// weight w(k), k < len/2, serves element k and element len-1-k; for odd
// len the centre element has weight 1 and is copied (out of place) or left
// alone (in place).
//
// A family describes its weights by a source: an object whose
// fill(w, count) writes the next count weights, in order from k = 0, into
// a block of doubles. The driver asks for blocks of kBlock weights and
// multiplies both ends of the vector by each block while it is in L1:
//
//   window::apply(pSrc, pDst, len, source);
//
// Weighting by element type, the same in the vector loops and the scalar
// tails, so that a result never depends on where an element falls:
//   64f, 64fc   x * w in double
//   32f, 32fc   x * float(w) in single precision
//   16s, 16sc   x * w in double (exact), rounded to nearest with ties to
//               even and saturated
// A complex element has both parts multiplied by the same real weight.
#pragma once
#include "arith/rounding.h"
#include "checks.h"
#include "qspdefs.h"
#include "simd.h"

namespace window {

// The checks of every window: the pointers, then a length below the
// family's shortest.
template <class T>
QspStatus check(const T* pSrc, const T* pDst, int len, int shortest)
{
    if (QspStatus s = ::check::pointers(pSrc, pDst)) return s;
    return len < shortest ? qspStsBadSize : qspStsOk;
}

// Weights per block: 2 KiB of doubles on the stack.
constexpr int kBlock = 256;

using VD = simd::Vec<double>;
using VF = simd::Vec<float>;
using DReg = VD::Reg;

// Eight 16-bit parts times the eight weights in w0..w3 (two each, in part
// order), rounded to nearest even and saturated.
inline __m128i weigh8x16s(__m128i x, DReg w0, DReg w1, DReg w2, DReg w3)
{
    using V32 = simd::Vec<Qsp32s>;
    const DReg lo = VD::splat(-32768.0), hi = VD::splat(32767.0);
    const __m128i a = V32::lo16s(x), b = V32::hi16s(x);
    auto part = [&](DReg v, DReg w) { return rounding::toInt32<rounding::kNear>(VD::mul(v, w), lo, hi); };
    const __m128i r0 = part(VD::fromInt32(a), w0), r1 = part(VD::fromInt32High(a), w1);
    const __m128i r2 = part(VD::fromInt32(b), w2), r3 = part(VD::fromInt32High(b), w3);
    return simd::Vec<Qsp16s>::packs32(V32::lowHalves(r0, r1), V32::lowHalves(r2, r3));
}

// Per element type: `step` elements a group; front(s, d, w) weighs
// elements 0..step-1 by w[0..step-1]; back(s, d, w) weighs the group of
// elements 0..step-1 that mirrors a front group, so by w[step-1..0]; one()
// weighs a single element.
template <class T>
struct Weigh;

template <>
struct Weigh<Qsp64f> {
    static constexpr int step = 2;
    static void front(const Qsp64f* s, Qsp64f* d, const double* w) { VD::storeu(d, VD::mul(VD::loadu(s), VD::load(w))); }
    static void back(const Qsp64f* s, Qsp64f* d, const double* w)
    {
        VD::storeu(d, VD::mul(VD::loadu(s), VD::reverse(VD::load(w))));
    }
    static Qsp64f one(Qsp64f x, double w) { return x * w; }
};

template <>
struct Weigh<Qsp64fc> {
    static constexpr int step = 1;
    using V = simd::Vec<Qsp64fc>;
    static void front(const Qsp64fc* s, Qsp64fc* d, const double* w) { V::storeu(d, VD::mul(V::loadu(s), VD::splat(*w))); }
    static void back(const Qsp64fc* s, Qsp64fc* d, const double* w) { front(s, d, w); }
    static Qsp64fc one(Qsp64fc x, double w) { return {x.re * w, x.im * w}; }
};

template <>
struct Weigh<Qsp32f> {
    static constexpr int step = 4;
    static __m128 weights(const double* w) { return VD::narrow(VD::load(w), VD::load(w + 2)); }
    static void front(const Qsp32f* s, Qsp32f* d, const double* w) { VF::storeu(d, VF::mul(VF::loadu(s), weights(w))); }
    static void back(const Qsp32f* s, Qsp32f* d, const double* w)
    {
        VF::storeu(d, VF::mul(VF::loadu(s), VF::reverse(weights(w))));
    }
    static Qsp32f one(Qsp32f x, double w) { return x * float(w); }
};

template <>
struct Weigh<Qsp32fc> {
    static constexpr int step = 2;
    using V = simd::Vec<Qsp32fc>;
    // [w0, w0, w1, w1] from [w0, w1].
    static __m128 pairs(DReg w)
    {
        const __m128 f = VD::narrow(w, w);
        return VF::zipLo(f, f);
    }
    static void front(const Qsp32fc* s, Qsp32fc* d, const double* w) { V::storeu(d, VF::mul(V::loadu(s), pairs(VD::load(w)))); }
    static void back(const Qsp32fc* s, Qsp32fc* d, const double* w)
    {
        V::storeu(d, VF::mul(V::loadu(s), pairs(VD::reverse(VD::load(w)))));
    }
    static Qsp32fc one(Qsp32fc x, double w)
    {
        const float f = float(w);
        return {x.re * f, x.im * f};
    }
};

template <>
struct Weigh<Qsp16s> {
    static constexpr int step = 8;
    using V = simd::Vec<Qsp16s>;
    static void front(const Qsp16s* s, Qsp16s* d, const double* w)
    {
        V::storeu(d, weigh8x16s(V::loadu(s), VD::load(w), VD::load(w + 2), VD::load(w + 4), VD::load(w + 6)));
    }
    static void back(const Qsp16s* s, Qsp16s* d, const double* w)
    {
        V::storeu(d, weigh8x16s(V::loadu(s), VD::reverse(VD::load(w + 6)), VD::reverse(VD::load(w + 4)),
                                VD::reverse(VD::load(w + 2)), VD::reverse(VD::load(w))));
    }
    static Qsp16s one(Qsp16s x, double w) { return rounding::toInt<rounding::kNear, Qsp16s>(double(x) * w); }
};

template <>
struct Weigh<Qsp16sc> {
    static constexpr int step = 4;
    using V = simd::Vec<Qsp16s>;
    static void front(const Qsp16sc* s, Qsp16sc* d, const double* w)
    {
        const DReg a = VD::load(w), b = VD::load(w + 2);
        V::storeu(d, weigh8x16s(V::loadu(s), VD::dupRe(a), VD::dupIm(a), VD::dupRe(b), VD::dupIm(b)));
    }
    static void back(const Qsp16sc* s, Qsp16sc* d, const double* w)
    {
        const DReg a = VD::load(w), b = VD::load(w + 2);
        V::storeu(d, weigh8x16s(V::loadu(s), VD::dupIm(b), VD::dupRe(b), VD::dupIm(a), VD::dupRe(a)));
    }
    static Qsp16sc one(Qsp16sc x, double w) { return {Weigh<Qsp16s>::one(x.re, w), Weigh<Qsp16s>::one(x.im, w)}; }
};

// Weights w[0..n) applied to elements k0..k0+n-1 and to their mirrors
// len-1-k0 down to len-k0-n.
template <class T>
void weighBlock(const T* pSrc, T* pDst, int len, int k0, int n, const double* w)
{
    using W = Weigh<T>;
    constexpr int step = W::step;
    int j = 0;
    for (; j + step <= n; j += step) {
        const int front = k0 + j, back = len - k0 - j - step;
        W::front(pSrc + front, pDst + front, w + j);
        W::back(pSrc + back, pDst + back, w + j);
    }
    for (; j < n; ++j) {
        const int front = k0 + j, back = len - 1 - k0 - j;
        pDst[front] = W::one(pSrc[front], w[j]);
        pDst[back] = W::one(pSrc[back], w[j]);
    }
}

// The whole window: weights k = 0 .. len/2-1 from the source, both ends
// weighed, the centre of an odd length copied when out of place.
template <class T, class Source>
void apply(const T* pSrc, T* pDst, int len, Source& source)
{
    const int half = len / 2;
    alignas(16) double w[kBlock];
    for (int k0 = 0; k0 < half; k0 += kBlock) {
        const int n = half - k0 < kBlock ? half - k0 : kBlock;
        source.fill(w, n);
        weighBlock(pSrc, pDst, len, k0, n, w);
    }
    if ((len & 1) && pSrc != pDst) simd::storeOne(pDst + half, simd::loadOne(pSrc + half));
}

// Both end elements set to zero, whatever they hold, and the middle one
// copied or left alone: the three-element Bartlett and Blackman windows.
template <class T>
void endsZeroed(const T* pSrc, T* pDst)
{
    simd::storeOne(pDst, T{});
    simd::storeOne(pDst + 2, T{});
    if (pSrc != pDst) simd::storeOne(pDst + 1, simd::loadOne(pSrc + 1));
}

}  // namespace window

// SPDX-License-Identifier: BSD-3-Clause
// Direct-form FIR kernels: y[n] = sum over i < N of t[i] * x[n - i].
//
// The one inner product behind the single-rate FIR filter, the multi-rate,
// sparse and adaptive filters, and direct convolution and correlation.
//
// Interface (stable)
// ------------------
//   fir::ownsFir<Kind>(taps, N, x, y, count)
//       y[n] = sum over i < N of t[i] * x[n - i] for 0 <= n < count.
//       x points at the sample lined up with y[0]; x[-(N-1)] .. x[count-1]
//       are read, nothing else. N >= 1, count >= 1. y must not overlap x.
//   fir::ownsFirOne<Kind>(taps, N, x) -> Kind::Sample
//       the single output y[0] of the above, by the same arithmetic.
//
//   Kinds, Kind::Sample being the element type of x and y:
//     fir::RealKind<P>     real samples, real taps          (P = float, double)
//     fir::MixedKind<P>    complex samples, real taps       (Qsp32fc/Qsp64fc)
//     fir::ComplexKind<P>  complex samples, complex taps
//
//   Tap sources, telling the kernel where tap i is:
//     fir::ScalarTaps<P, Step, Conj>{p}
//         tap i at p[i * Step] (real) or the pair at p + 2 * i * Step
//         (complex). Step = 1 reads taps in their natural order, Step = -1
//         walks back from p (p at the last element of a reversed array, or
//         at the end of a sequence correlated against). Conj uses the
//         complex conjugate of every tap (complex kinds only).
//     fir::SplatTaps<P>{p}
//         every tap already repeated across a register, register after
//         register, in natural tap order: real taps one register per tap,
//         complex taps two (real part in every lane, then imaginary part).
//         fir::splatTaps() fills such an area; it spares the kernel one
//         shuffle per tap, which short filters notice.
//
// Summation order (part of the interface). Every output is the running sum
//     t[0] x[n] + t[1] x[n-1] + ... + t[N-1] x[n-N+1]
// from the left, starting from the first product, every product and every
// addition rounded once. Complex taps keep two running sums per sample in
// that order, of re(t) x and of im(t) x (each taken part by part), and
// combine them at the end: re y = sum re(t)re(x) - sum im(t)im(x),
// im y = sum re(t)im(x) + sum im(t)re(x) (signs of the im(t) terms swapped
// for conjugated taps). An output therefore does not depend on its place in
// a block, on the alignment of x or y, or on which lane computes it:
// filtering a stream in pieces gives the same bits as filtering it whole,
// and a plain scalar loop in this order reproduces the kernels exactly.
//
// How it is fast: each call of the block kernel keeps a row of consecutive
// outputs in registers (twelve registers of real outputs, six pairs of
// complex ones) and runs through the taps once for the whole row: one tap
// register and one unaligned load of x per output register and tap, so the
// multiplier and adder ports stay busy and nothing is stored before the row
// is done.
#pragma once
#include <type_traits>

#include "qspdefs.h"
#include "simd.h"

namespace fir {

// ---------------------------------------------------------------- kinds

template <class P>
struct ComplexOf;
template <>
struct ComplexOf<float> {
    using type = Qsp32fc;
};
template <>
struct ComplexOf<double> {
    using type = Qsp64fc;
};

// Parts per sample S (1 real, 2 complex) and whether the taps are complex.
template <class P, int S, bool CTaps>
struct Kind {
    using Part = P;
    using Sample = std::conditional_t<S == 1, P, typename ComplexOf<P>::type>;
    static constexpr int partsPerSample = S;
    static constexpr bool complexTaps = CTaps;
};

template <class P>
using RealKind = Kind<P, 1, false>;
template <class P>
using MixedKind = Kind<P, 2, false>;
template <class P>
using ComplexKind = Kind<P, 2, true>;

// ---------------------------------------------------------------- tap sources

template <class P, int Step = 1, bool Conj = false>
struct ScalarTaps {
    using V = simd::Vec<P>;
    static constexpr bool conj = Conj;
    const P* p;
    P scalar(Qsp64s i) const { return p[i * Step]; }
    P re(Qsp64s i) const { return p[2 * i * Step]; }
    P im(Qsp64s i) const { return p[2 * i * Step + 1]; }
    typename V::Reg splat(Qsp64s i) const { return V::splat(scalar(i)); }
    typename V::Reg splatRe(Qsp64s i) const { return V::splat(re(i)); }
    typename V::Reg splatIm(Qsp64s i) const { return V::splat(im(i)); }
};

template <class P>
struct SplatTaps {
    using V = simd::Vec<P>;
    static constexpr bool conj = false;
    static constexpr int L = V::lanes;
    const P* p;  // 16-byte aligned
    P scalar(Qsp64s i) const { return p[i * L]; }
    P re(Qsp64s i) const { return p[2 * i * L]; }
    P im(Qsp64s i) const { return p[(2 * i + 1) * L]; }
    typename V::Reg splat(Qsp64s i) const { return V::load(p + i * L); }
    typename V::Reg splatRe(Qsp64s i) const { return V::load(p + 2 * i * L); }
    typename V::Reg splatIm(Qsp64s i) const { return V::load(p + (2 * i + 1) * L); }
};

// Parts of a SplatTaps area for n taps of a kind.
template <class K>
constexpr Qsp64s splatParts(Qsp64s n)
{
    return n * simd::Vec<typename K::Part>::lanes * (K::complexTaps ? 2 : 1);
}

// Fills dst (16-byte aligned, splatParts<K>(n) parts) from n taps given in
// natural order (pairs for complex taps).
template <class K>
void splatTaps(const typename K::Part* taps, Qsp64s n, typename K::Part* dst)
{
    using P = typename K::Part;
    using V = simd::Vec<P>;
    if constexpr (K::complexTaps) {
        for (Qsp64s i = 0; i < n; ++i) {
            V::store(dst + 2 * i * V::lanes, V::splat(taps[2 * i]));
            V::store(dst + (2 * i + 1) * V::lanes, V::splat(taps[2 * i + 1]));
        }
    } else {
        for (Qsp64s i = 0; i < n; ++i) V::store(dst + i * V::lanes, V::splat(taps[i]));
    }
}

// ---------------------------------------------------------------- block kernels

// B registers of outputs with real taps: x and y in parts, S parts per
// sample, so that tap i meets x - S*i.
template <class P, int S, int B, class Taps>
inline void ownsFirRowReal(const Taps& t, Qsp64s n, const P* x, P* y)
{
    using V = simd::Vec<P>;
    constexpr int L = V::lanes;
    typename V::Reg acc[B];
    {
        const auto c = t.splat(0);
#pragma GCC unroll 16
        for (int b = 0; b < B; ++b) acc[b] = V::mul(c, V::loadu(x + b * L));
    }
    for (Qsp64s i = 1; i < n; ++i) {
        x -= S;
        const auto c = t.splat(i);
#pragma GCC unroll 16
        for (int b = 0; b < B; ++b) acc[b] = V::add(acc[b], V::mul(c, V::loadu(x + b * L)));
    }
#pragma GCC unroll 16
    for (int b = 0; b < B; ++b) V::storeu(y + b * L, acc[b]);
}

// The two running sums of complex taps combined into samples.
template <class V, bool Conj>
inline typename V::Reg combine(typename V::Reg sumRe, typename V::Reg sumIm)
{
    // sumRe = sum re(t) x, sumIm = sum im(t) x; swapping the parts of sumIm
    // lines im(t)im(x) up with the real parts and im(t)re(x) with the
    // imaginary ones.
    const auto s = V::swapParts(sumIm);
    if constexpr (Conj) return V::add(sumRe, V::negOdd(s));
    else return V::addsub(sumRe, s);
}

// B registers of complex outputs with complex taps.
template <class P, int B, class Taps>
inline void ownsFirRowComplex(const Taps& t, Qsp64s n, const P* x, P* y)
{
    using V = simd::Vec<P>;
    constexpr int L = V::lanes;
    typename V::Reg sr[B], si[B];
    {
        const auto cr = t.splatRe(0), ci = t.splatIm(0);
#pragma GCC unroll 8
        for (int b = 0; b < B; ++b) {
            const auto v = V::loadu(x + b * L);
            sr[b] = V::mul(cr, v);
            si[b] = V::mul(ci, v);
        }
    }
    for (Qsp64s i = 1; i < n; ++i) {
        x -= 2;
        const auto cr = t.splatRe(i), ci = t.splatIm(i);
#pragma GCC unroll 8
        for (int b = 0; b < B; ++b) {
            const auto v = V::loadu(x + b * L);
            sr[b] = V::add(sr[b], V::mul(cr, v));
            si[b] = V::add(si[b], V::mul(ci, v));
        }
    }
#pragma GCC unroll 8
    for (int b = 0; b < B; ++b) V::storeu(y + b * L, combine<V, Taps::conj>(sr[b], si[b]));
}

// One part of one output with real taps, in the order of the rows.
template <class P, int S, class Taps>
inline P ownsFirPartReal(const Taps& t, Qsp64s n, const P* x)
{
    P acc = t.scalar(0) * x[0];
    for (Qsp64s i = 1; i < n; ++i) acc = acc + t.scalar(i) * x[-S * i];
    return acc;
}

// One complex output with complex taps, in the order of the rows.
template <class P, class Taps>
inline void ownsFirSampleComplex(const Taps& t, Qsp64s n, const P* x, P* y)
{
    P rr = t.re(0) * x[0], ri = t.re(0) * x[1];
    P ir = t.im(0) * x[0], ii = t.im(0) * x[1];
    for (Qsp64s i = 1; i < n; ++i) {
        const P a = x[-2 * i], b = x[-2 * i + 1], tr = t.re(i), ti = t.im(i);
        rr = rr + tr * a;
        ri = ri + tr * b;
        ir = ir + ti * a;
        ii = ii + ti * b;
    }
    if constexpr (Taps::conj) {
        y[0] = rr + ii;
        y[1] = ri - ir;
    } else {
        y[0] = rr - ii;
        y[1] = ri + ir;
    }
}

// Registers per row: as many outputs as the sixteen vector registers hold
// beside the tap registers and one loaded operand.
template <class K>
constexpr int kRowRegisters = K::complexTaps ? 6 : 12;

// ---------------------------------------------------------------- drivers

template <class K, class Taps>
void ownsFir(const Taps& taps, Qsp64s n, const typename K::Sample* pX, typename K::Sample* pY, Qsp64s count)
{
    using P = typename K::Part;
    using V = simd::Vec<P>;
    constexpr int L = V::lanes, S = K::partsPerSample, R = kRowRegisters<K>;
    const P* x = reinterpret_cast<const P*>(pX);
    P* y = reinterpret_cast<P*>(pY);
    const Qsp64s parts = count * S;
    Qsp64s j = 0;
    if constexpr (K::complexTaps) {
        for (; j + R * L <= parts; j += R * L) ownsFirRowComplex<P, R>(taps, n, x + j, y + j);
        if (j + 3 * L <= parts) ownsFirRowComplex<P, 3>(taps, n, x + j, y + j), j += 3 * L;
        for (; j + L <= parts; j += L) ownsFirRowComplex<P, 1>(taps, n, x + j, y + j);
        for (; j < parts; j += 2) ownsFirSampleComplex<P>(taps, n, x + j, y + j);
    } else {
        for (; j + R * L <= parts; j += R * L) ownsFirRowReal<P, S, R>(taps, n, x + j, y + j);
        if (j + 6 * L <= parts) ownsFirRowReal<P, S, 6>(taps, n, x + j, y + j), j += 6 * L;
        if (j + 3 * L <= parts) ownsFirRowReal<P, S, 3>(taps, n, x + j, y + j), j += 3 * L;
        for (; j + L <= parts; j += L) ownsFirRowReal<P, S, 1>(taps, n, x + j, y + j);
        for (; j < parts; ++j) y[j] = ownsFirPartReal<P, S>(taps, n, x + j);
    }
}

template <class K, class Taps>
typename K::Sample ownsFirOne(const Taps& taps, Qsp64s n, const typename K::Sample* pX)
{
    using P = typename K::Part;
    typename K::Sample out;
    const P* x = reinterpret_cast<const P*>(pX);
    P* y = reinterpret_cast<P*>(&out);
    if constexpr (K::complexTaps) {
        ownsFirSampleComplex<P>(taps, n, x, y);
    } else {
        for (int s = 0; s < K::partsPerSample; ++s) y[s] = ownsFirPartReal<P, K::partsPerSample>(taps, n, x + s);
    }
    return out;
}

}  // namespace fir

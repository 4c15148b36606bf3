// SPDX-License-Identifier: BSD-3-Clause
// The complex power-of-two transform engine behind every FFT of the library.
//
// Three tiers, chosen by order:
//  - small (N <= 32): one straight-line kernel per order, no tables, no work
//    buffer (ownsFftSmall, in fft_small.h);
//  - medium: radix-4 self-sorting passes (Stockham form) that alternate
//    between the destination and the work buffer, so the output comes out in
//    natural order without a bit-reversal step (ownsFftMedium);
//  - large: N = B*M is cut into B = 2^n1 rows of M = 2^n2 values. The source
//    is transposed into the work buffer, every row is transformed while it
//    sits in cache, and the rows are combined, a cache-sized batch of
//    columns at a time, by twiddle multiplication and B-point transforms
//    (ownsFftLarge).
//
// Forward: X[k] = sum x[m] exp(-2*pi*i*k*m/N); inverse: the positive
// exponent. Neither scales; the callers apply the record's factor.
//
// A radix-4 pass at sub-length n and stride s computes, for every p < n/4
// and q < s, with a..d = x[q + s*(p + j*n/4)], j = 0..3:
//   y[q + s*(4p+0)] = (a+c) + (b+d)
//   y[q + s*(4p+1)] = ((a-c) -+ i(b-d)) w^p
//   y[q + s*(4p+2)] = ((a+c) - (b+d)) w^2p
//   y[q + s*(4p+3)] = ((a-c) +- i(b-d)) w^3p,     w = exp(-+2*pi*i/n)
// and then n /= 4, s *= 4. When log2 N is odd the last pass is radix-8.
//
// Buffers are passed as two halves (lo holds elements 0..N/2-1, hi the
// rest), so the two arrays of a split-complex destination can serve as one
// complex buffer of N values.
#pragma once
#include "fft_twiddles.h"
#include "qspdefs.h"
#include "simd.h"

namespace fft {

template <class T>
using C = Cplx<T>;

// Complex values in 128-bit registers: two per register for float, one for
// double.
template <class T>
struct CV {
    using V = simd::Vec<T>;
    using R = typename V::Reg;
    static constexpr int per = V::lanes / 2;
    static R load(const C<T>* p) { return V::loadu(&p->re); }
    static void store(C<T>* p, R r) { V::storeu(&p->re, r); }
    static R splat(const C<T>* p)
    {
        if constexpr (per == 2)
            return V::loadPairDup(&p->re);
        else
            return V::loadu(&p->re);
    }
    // a*w, and a*conj(w) for the inverse direction.
    template <bool Conj>
    static R mul(R a, R w)
    {
        const R re = V::mul(a, V::dupRe(w));
        const R im = V::mul(V::swapParts(a), V::dupIm(w));
        if constexpr (Conj)
            return V::addsub(re, V::bitXor(im, V::splat(T(-0.0))));
        else
            return V::addsub(re, im);
    }
    // -i*v (forward) or +i*v (inverse).
    template <bool Inv>
    static R rot(R v)
    {
        if constexpr (Inv)
            return V::negEven(V::swapParts(v));
        else
            return V::negOdd(V::swapParts(v));
    }
};

template <class T>
struct Halves {
    T* lo;
    T* hi;
};

template <class T>
inline Halves<C<T>> halvesOf(C<T>* p, Qsp64s n)
{
    return {p, p + n / 2};
}

// Between passes the values are kept block-split: in each block of L
// consecutive values (L = values per register: 4 float, 2 double) the L
// real parts come first, then the L imaginary parts. A block starts at the
// same address as the L interleaved values it replaces, so buffers,
// offsets and halves are unchanged; the first pass reads interleaved data
// and the last pass writes it.
template <class T>
struct SV {
    using V = simd::Vec<T>;
    using R = typename V::Reg;
    static constexpr int L = V::lanes;
    struct X {
        R re, im;
    };
    template <bool Interleaved>
    static X load(const C<T>* p)
    {
        const T* f = &p->re;
        const R a = V::loadu(f), b = V::loadu(f + L);
        if constexpr (Interleaved)
            return {V::evens(a, b), V::odds(a, b)};
        else
            return {a, b};
    }
    template <bool Interleaved>
    static void store(C<T>* p, X v)
    {
        T* f = &p->re;
        if constexpr (Interleaved) {
            V::storeu(f, V::zipLo(v.re, v.im));
            V::storeu(f + L, V::zipHi(v.re, v.im));
        } else {
            V::storeu(f, v.re);
            V::storeu(f + L, v.im);
        }
    }
    static X add(X a, X b) { return {V::add(a.re, b.re), V::add(a.im, b.im)}; }
    static X sub(X a, X b) { return {V::sub(a.re, b.re), V::sub(a.im, b.im)}; }
    // a*w, or a*conj(w) for the inverse direction.
    template <bool Conj>
    static X mul(X a, X w)
    {
        if constexpr (Conj)
            return {V::add(V::mul(a.re, w.re), V::mul(a.im, w.im)), V::sub(V::mul(a.im, w.re), V::mul(a.re, w.im))};
        else
            return {V::sub(V::mul(a.re, w.re), V::mul(a.im, w.im)), V::add(V::mul(a.re, w.im), V::mul(a.im, w.re))};
    }
    // The twiddle of index p of a block-split table, in every lane.
    static X splat(const C<T>* table, Qsp64s p)
    {
        const T* f = &table->re + (p / L) * 2 * L + p % L;
        return {V::splat(f[0]), V::splat(f[L])};
    }
};

// The radix-4 butterfly on split registers: o0..o3 from a..d, before the
// twiddles.
template <class T, bool Inv>
inline void butterfly4(typename SV<T>::X a, typename SV<T>::X b, typename SV<T>::X c, typename SV<T>::X d,
                       typename SV<T>::X o[4])
{
    using K = SV<T>;
    using V = typename K::V;
    const auto apc = K::add(a, c), amc = K::sub(a, c), bpd = K::add(b, d), bmd = K::sub(b, d);
    o[0] = K::add(apc, bpd);
    o[2] = K::sub(apc, bpd);
    // amc -+ i*bmd
    if constexpr (Inv) {
        o[1] = {V::sub(amc.re, bmd.im), V::add(amc.im, bmd.re)};
        o[3] = {V::add(amc.re, bmd.im), V::sub(amc.im, bmd.re)};
    } else {
        o[1] = {V::add(amc.re, bmd.im), V::sub(amc.im, bmd.re)};
        o[3] = {V::sub(amc.re, bmd.im), V::add(amc.im, bmd.re)};
    }
}

// 4x4 transpose of single-precision registers (rows in, columns out) from
// even/odd lane selections only: those run on both shuffle ports, where
// the unpack and half-move instructions run on one.
inline void transpose4(__m128& r0, __m128& r1, __m128& r2, __m128& r3)
{
    using V = simd::Vec<float>;
    const __m128 a = V::evens(r0, r1), b = V::odds(r0, r1), c = V::evens(r2, r3), d = V::odds(r2, r3);
    r0 = V::evens(a, c);
    r1 = V::evens(b, d);
    r2 = V::odds(a, c);
    r3 = V::odds(b, d);
}

// Twiddle entries of one pass's array of m values (rounded up to whole
// blocks).
template <class T>
inline Qsp64s passArray(Qsp64s m)
{
    constexpr Qsp64s L = SV<T>::L;
    return (m + L - 1) / L * L;
}

// Number of twiddles the radix-4 passes of an n-point transform read: three
// arrays of n'/4 for every pass with sub-length n' >= 8.
template <class T>
inline Qsp64s passTwiddleCount(Qsp64s n)
{
    Qsp64s count = 0;
    for (Qsp64s cur = n; cur >= 8; cur >>= 2) count += 3 * passArray<T>(cur >> 2);
    return count;
}

// A standalone single-precision transform of at least 32L values starts
// with its first two levels in one pass (ownsPass16First). In double
// precision (two values per register) two plain passes measured faster.
template <class T>
inline bool fusedFirst(int order, Qsp64s s0)
{
    return sizeof(T) == 4 && s0 == 1 && (Qsp64s(1) << order) >= 32 * SV<T>::L;
}

// Number of passes of an n-point transform (n >= 8): radix-4 levels, the
// last one radix-8 when the order is odd, the first two in one pass where
// fusedFirst says so.
template <class T>
inline int passCount(int order, Qsp64s s0 = 1)
{
    return fusedFirst<T>(order, s0) ? 1 + ((order - 4) >> 1) : order >> 1;
}

// Rewrites an array of count pairs (count a multiple of L) from
// interleaved to block-split order, in place.
template <class T>
void ownsToBlockSplit(C<T>* a, Qsp64s count)
{
    using K = SV<T>;
    for (Qsp64s i = 0; i < count; i += K::L) K::template store<false>(a + i, K::template load<true>(a + i));
}

// Fills the pass twiddles of an n-point transform, n = 2^order, from an
// octant of length 2^octOrder >= n, block-split; padding entries are 1.
template <class T, class O>
void ownsFillPassTwiddles(C<T>* tw, int order, const Octant<O>& oct)
{
    const Qsp64s n = Qsp64s(1) << order;
    for (Qsp64s cur = n; cur >= 8; cur >>= 2) {
        const Qsp64s m = cur >> 2, mp = passArray<T>(m);
        const Qsp64s step = (Qsp64s(1) << oct.order) / cur;
        for (int j = 1; j <= 3; ++j) {
            C<T>* a = tw + (j - 1) * mp;
            if (oct.order >= 3)
                ownsFillTwiddleRun<T>(a, m, 0, j * step, oct);
            else
                for (Qsp64s p = 0; p < m; ++p) a[p] = {T(twiddle(oct, j * p * step).re), T(twiddle(oct, j * p * step).im)};
            for (Qsp64s p = m; p < mp; ++p) a[p] = {T(1), T(0)};
            ownsToBlockSplit<T>(a, mp);
        }
        tw += 3 * mp;
    }
}

// ---------------------------------------------------------------- passes

// General radix-4 pass, s >= L, n/4 >= 2.
template <class T, bool Inv, bool InI, bool OutI>
void ownsPass4(Halves<const C<T>> x, Halves<C<T>> y, Qsp64s ntot, Qsp64s n, Qsp64s s, const C<T>* tw)
{
    using K = SV<T>;
    const Qsp64s m = n >> 2, mp = passArray<T>(m), quarter = ntot >> 2, half = ntot >> 1;
    for (Qsp64s p = 0; p < m; ++p) {
        const auto w1 = K::splat(tw, p), w2 = K::splat(tw + mp, p), w3 = K::splat(tw + 2 * mp, p);
        const C<T>* a = x.lo + s * p;
        const C<T>* b = a + quarter;
        const C<T>* c = x.hi + s * p;
        const C<T>* d = c + quarter;
        C<T>* out = (p < (m >> 1)) ? y.lo + 4 * s * p : y.hi + (4 * s * p - half);
        for (Qsp64s q = 0; q < s; q += K::L) {
            typename K::X o[4];
            butterfly4<T, Inv>(K::template load<InI>(a + q), K::template load<InI>(b + q),
                               K::template load<InI>(c + q), K::template load<InI>(d + q), o);
            K::template store<OutI>(out + q, o[0]);
            K::template store<OutI>(out + s + q, K::template mul<Inv>(o[1], w1));
            K::template store<OutI>(out + 2 * s + q, K::template mul<Inv>(o[2], w2));
            K::template store<OutI>(out + 3 * s + q, K::template mul<Inv>(o[3], w3));
        }
    }
}

// First radix-4 pass of a standalone transform (s = 1, n = ntot, n/4 >= 2L):
// vectorised over p; the four outputs of L consecutive p values are
// transposed into L whole blocks.
template <class T, bool Inv, bool InI>
void ownsPass4First(Halves<const C<T>> x, Halves<C<T>> y, Qsp64s n, const C<T>* tw)
{
    using K = SV<T>;
    using V = typename K::V;
    using X = typename K::X;
    constexpr Qsp64s L = K::L;
    const Qsp64s m = n >> 2, mp = passArray<T>(m), half = n >> 1;
    for (Qsp64s p = 0; p < m; p += L) {
        const X w1 = K::template load<false>(tw + p), w2 = K::template load<false>(tw + mp + p),
                w3 = K::template load<false>(tw + 2 * mp + p);
        X o[4];
        butterfly4<T, Inv>(K::template load<InI>(x.lo + p), K::template load<InI>(x.lo + m + p),
                           K::template load<InI>(x.hi + p), K::template load<InI>(x.hi + m + p), o);
        o[1] = K::template mul<Inv>(o[1], w1);
        o[2] = K::template mul<Inv>(o[2], w2);
        o[3] = K::template mul<Inv>(o[3], w3);
        C<T>* out = (p < (m >> 1)) ? y.lo + 4 * p : y.hi + (4 * p - half);
        if constexpr (L == 4) {
            // Block b holds y[4(p+b) + k], k = 0..3: column b of o[0..3].
            typename V::Reg r0 = o[0].re, r1 = o[1].re, r2 = o[2].re, r3 = o[3].re;
            typename V::Reg i0 = o[0].im, i1 = o[1].im, i2 = o[2].im, i3 = o[3].im;
            transpose4(r0, r1, r2, r3);
            transpose4(i0, i1, i2, i3);
            K::template store<false>(out, X{r0, i0});
            K::template store<false>(out + 4, X{r1, i1});
            K::template store<false>(out + 8, X{r2, i2});
            K::template store<false>(out + 12, X{r3, i3});
        } else {
            // Blocks of two: (o0, o1) and (o2, o3) of p, then of p + 1.
            K::template store<false>(out, X{V::zipLo(o[0].re, o[1].re), V::zipLo(o[0].im, o[1].im)});
            K::template store<false>(out + 2, X{V::zipLo(o[2].re, o[3].re), V::zipLo(o[2].im, o[3].im)});
            K::template store<false>(out + 4, X{V::zipHi(o[0].re, o[1].re), V::zipHi(o[0].im, o[1].im)});
            K::template store<false>(out + 6, X{V::zipHi(o[2].re, o[3].re), V::zipHi(o[2].im, o[3].im)});
        }
    }
}

// The first two radix-4 levels of a standalone transform in one pass
// (s = 1, n >= 32L): vectorised over p2 < n/16, L consecutive values in the
// lanes. Lane p2 reads x[p2 + j n/16 + jj n/4], runs four butterflies over
// jj (twiddles w_n^(k (p2 + j n/16))) and four over j (twiddles
// w_(n/4)^(r p2)), and writes its sixteen results to y[16 p2 + 4 r + k];
// each quadruple k = 0..3 is transposed from the lanes into one block.
template <class T, bool Inv, bool InI>
void ownsPass16First(Halves<const C<T>> x, Halves<C<T>> y, Qsp64s n, const C<T>* tw1, const C<T>* tw2)
{
    using K = SV<T>;
    using V = typename K::V;
    using X = typename K::X;
    constexpr Qsp64s L = K::L;
    const Qsp64s m1 = n >> 2, mp1 = passArray<T>(m1), m2 = n >> 4, mp2 = passArray<T>(m2), half = n >> 1;
    for (Qsp64s p2 = 0; p2 < m2; p2 += L) {
        X v[16];
        for (int j = 0; j < 4; ++j) {
            X o[4];
            const C<T>* lo = x.lo + p2 + j * m2;
            const C<T>* hi = x.hi + p2 + j * m2;
            butterfly4<T, Inv>(K::template load<InI>(lo), K::template load<InI>(lo + m1), K::template load<InI>(hi),
                               K::template load<InI>(hi + m1), o);
            v[4 * j] = o[0];
            for (int k = 1; k < 4; ++k)
                v[4 * j + k] = K::template mul<Inv>(o[k], K::template load<false>(tw1 + (k - 1) * mp1 + p2 + j * m2));
        }
        X z[4][4];
        for (int k = 0; k < 4; ++k) {
            X o[4];
            butterfly4<T, Inv>(v[k], v[4 + k], v[8 + k], v[12 + k], o);
            z[0][k] = o[0];
            for (int r = 1; r < 4; ++r) z[r][k] = K::template mul<Inv>(o[r], K::template load<false>(tw2 + (r - 1) * mp2 + p2));
        }
        C<T>* out = (p2 < (m2 >> 1)) ? y.lo + 16 * p2 : y.hi + (16 * p2 - half);
        for (int r = 0; r < 4; ++r) {
            // Lane l of z[r][k] is output 16 (p2 + l) + 4 r + k.
            if constexpr (L == 4) {
                typename V::Reg r0 = z[r][0].re, r1 = z[r][1].re, r2 = z[r][2].re, r3 = z[r][3].re;
                typename V::Reg i0 = z[r][0].im, i1 = z[r][1].im, i2 = z[r][2].im, i3 = z[r][3].im;
                transpose4(r0, r1, r2, r3);
                transpose4(i0, i1, i2, i3);
                K::template store<false>(out + 4 * r, X{r0, i0});
                K::template store<false>(out + 16 + 4 * r, X{r1, i1});
                K::template store<false>(out + 32 + 4 * r, X{r2, i2});
                K::template store<false>(out + 48 + 4 * r, X{r3, i3});
            } else {
                const X* q = z[r];
                K::template store<false>(out + 4 * r, X{V::zipLo(q[0].re, q[1].re), V::zipLo(q[0].im, q[1].im)});
                K::template store<false>(out + 4 * r + 2, X{V::zipLo(q[2].re, q[3].re), V::zipLo(q[2].im, q[3].im)});
                K::template store<false>(out + 16 + 4 * r, X{V::zipHi(q[0].re, q[1].re), V::zipHi(q[0].im, q[1].im)});
                K::template store<false>(out + 18 + 4 * r, X{V::zipHi(q[2].re, q[3].re), V::zipHi(q[2].im, q[3].im)});
            }
        }
    }
}

// Last radix-4 pass (n = 4, no twiddles), ntot/4 >= L.
template <class T, bool Inv, bool InI, bool OutI>
void ownsPass4Last(Halves<const C<T>> x, Halves<C<T>> y, Qsp64s ntot)
{
    using K = SV<T>;
    const Qsp64s quarter = ntot >> 2;
    for (Qsp64s q = 0; q < quarter; q += K::L) {
        typename K::X o[4];
        butterfly4<T, Inv>(K::template load<InI>(x.lo + q), K::template load<InI>(x.lo + quarter + q),
                           K::template load<InI>(x.hi + q), K::template load<InI>(x.hi + quarter + q), o);
        K::template store<OutI>(y.lo + q, o[0]);
        K::template store<OutI>(y.lo + quarter + q, o[1]);
        K::template store<OutI>(y.hi + q, o[2]);
        K::template store<OutI>(y.hi + quarter + q, o[3]);
    }
}

// Last radix-8 pass (n = 8, no outer twiddles), ntot/8 >= L: a radix-2
// step with the eighth-turn twiddles, then two 4-point butterflies.
template <class T, bool Inv, bool InI, bool OutI>
void ownsPass8Last(Halves<const C<T>> x, Halves<C<T>> y, Qsp64s ntot)
{
    using K = SV<T>;
    using V = typename K::V;
    using X = typename K::X;
    const Qsp64s s = ntot >> 3;
    const auto h = V::splat(T(0.707106781186547524400844362104849039L));
    for (Qsp64s q = 0; q < s; q += K::L) {
        X a[4], b[4];
        for (int j = 0; j < 4; ++j) {
            const X u = K::template load<InI>(x.lo + j * s + q), w = K::template load<InI>(x.hi + j * s + q);
            a[j] = K::add(u, w);
            b[j] = K::sub(u, w);
        }
        // b[j] *= exp(-+ i pi j / 4)
        const X d1 = b[1], d3 = b[3];
        if constexpr (Inv) {
            b[1] = {V::mul(V::sub(d1.re, d1.im), h), V::mul(V::add(d1.re, d1.im), h)};
            b[2] = {V::sub(V::zero(), b[2].im), b[2].re};
            b[3] = {V::mul(V::sub(V::zero(), V::add(d3.re, d3.im)), h), V::mul(V::sub(d3.re, d3.im), h)};
        } else {
            b[1] = {V::mul(V::add(d1.re, d1.im), h), V::mul(V::sub(d1.im, d1.re), h)};
            b[2] = {b[2].im, V::sub(V::zero(), b[2].re)};
            b[3] = {V::mul(V::sub(d3.im, d3.re), h), V::mul(V::sub(V::zero(), V::add(d3.re, d3.im)), h)};
        }
        X e[4], o[4];
        butterfly4<T, Inv>(a[0], a[1], a[2], a[3], e);
        butterfly4<T, Inv>(b[0], b[1], b[2], b[3], o);
        // X[2k] = e[k], X[2k+1] = o[k]; outputs k < 4 in the low half.
        K::template store<OutI>(y.lo + q, e[0]);
        K::template store<OutI>(y.lo + s + q, o[0]);
        K::template store<OutI>(y.lo + 2 * s + q, e[1]);
        K::template store<OutI>(y.lo + 3 * s + q, o[1]);
        K::template store<OutI>(y.hi + q, e[2]);
        K::template store<OutI>(y.hi + s + q, o[2]);
        K::template store<OutI>(y.hi + 2 * s + q, e[3]);
        K::template store<OutI>(y.hi + 3 * s + q, o[3]);
    }
}

template <class T>
inline Halves<const C<T>> asConst(Halves<C<T>> h)
{
    return {h.lo, h.hi};
}

template <class T>
void ownsCopyHalves(Halves<const C<T>> x, Halves<C<T>> y, Qsp64s n)
{
    const Qsp64s half = n >> 1;
    for (Qsp64s q = 0; q < half; ++q) {
        y.lo[q] = x.lo[q];
        y.hi[q] = x.hi[q];
    }
}

// ---------------------------------------------------------------- medium

// Runs the passes of a batch of s0 interleaved n-point transforms held in
// ntot = n*s0 values (s0 = 1: one transform; n >= 8). The first pass reads
// x; the passes alternate between the writable buffers a and b and the
// last one writes a. x and the result are interleaved. x may be a or b only
// where the caller has arranged that the first pass does not write it (see
// ownsFftMedium).
template <class T, bool Inv>
void ownsRunPasses(Halves<const C<T>> x, Halves<C<T>> a, Halves<C<T>> b, int order, Qsp64s s0, const C<T>* tw)
{
    const Qsp64s n = Qsp64s(1) << order, ntot = n * s0;
    const int passes = passCount<T>(order, s0);
    Halves<const C<T>> in = x;
    Halves<C<T>> out = (passes & 1) ? a : b;
    Qsp64s cur = n, s = s0;
    int i = 0;
    if (fusedFirst<T>(order, s0)) {
        const C<T>* tw2 = tw + 3 * passArray<T>(n >> 2);
        ownsPass16First<T, Inv, true>(in, out, n, tw, tw2);
        tw = tw2 + 3 * passArray<T>(n >> 4);
        cur = n >> 4;
        s = 16;
        i = 1;
        in = asConst(out);
        out = (out.lo == a.lo) ? b : a;
    }
    for (; i < passes; ++i) {
        if (cur == 8) {
            ownsPass8Last<T, Inv, false, true>(in, out, ntot);
        } else if (cur == 4) {
            ownsPass4Last<T, Inv, false, true>(in, out, ntot);
        } else if (s == 1) {
            ownsPass4First<T, Inv, true>(in, out, ntot, tw);
        } else if (i == 0) {
            ownsPass4<T, Inv, true, false>(in, out, ntot, cur, s, tw);
        } else {
            ownsPass4<T, Inv, false, false>(in, out, ntot, cur, s, tw);
        }
        tw += 3 * passArray<T>(cur >> 2);
        cur >>= 2;
        s <<= 2;
        in = asConst(out);
        out = (out.lo == a.lo) ? b : a;
    }
}

// One n-point transform (n >= 8L) from x into a, with b as the second
// buffer. x may equal a (in place); it is never written otherwise.
template <class T, bool Inv>
void ownsFftMedium(Halves<const C<T>> x, Halves<C<T>> a, Halves<C<T>> b, int order, const C<T>* tw)
{
    const Qsp64s n = Qsp64s(1) << order;
    if ((passCount<T>(order) & 1) && x.lo == a.lo) {
        // The first pass would write its own input: start from a copy.
        ownsCopyHalves<T>(x, b, n);
        ownsRunPasses<T, Inv>(asConst(b), a, b, order, 1, tw);
    } else {
        ownsRunPasses<T, Inv>(x, a, b, order, 1, tw);
    }
}

// ---------------------------------------------------------------- large

// Split of the order n into n1 (log2 of the row count) + n2 by order.
inline int largeRowOrder(int order) { return order < 20 ? 4 : 8; }

// Columns combined per batch in the large algorithm.
constexpr int kLargeBatch = 8;

// Complex values per 64-byte cache line.
template <class T>
inline constexpr int kLineValues = 64 / int(sizeof(C<T>));

// Twiddle and scratch counts of the large algorithm. The column twiddles
// W_N^(b k), b < B, k < M, are kept as two factors for the batches of
// kLargeBatch columns: W_N^(b k0) for every batch start k0 (N / kLargeBatch
// values, batch by batch) and W_N^(b kk) for kk < kLargeBatch.
template <class T>
inline Qsp64s largeTwiddleCount(int order)
{
    const int n1 = largeRowOrder(order), n2 = order - n1;
    return passTwiddleCount<T>(Qsp64s(1) << n2) + passTwiddleCount<T>(Qsp64s(1) << n1) +
           (Qsp64s(1) << order) / kLargeBatch + (Qsp64s(kLargeBatch) << n1);
}
inline Qsp64s largeScratchCount(int order) { return 2 * (Qsp64s(kLargeBatch) << largeRowOrder(order)); }

// out[t][b] = W_N^(b t mult), t < count, b < rows, N = 2^order, in single
// precision: W_N^e = W_N^(h F) W_N^l (e = h F + l, F = 2^ceil(order/2)), the
// product taken in double from double tables of both factors and rounded
// once. scratch holds 2 (F + N/F) doubles.
inline void ownsFillByProducts(C<float>* out, Qsp64s count, Qsp64s rows, Qsp64s mult, int order, double* scratch)
{
    const int fineOrder = (order + 1) / 2;
    const Qsp64s n = Qsp64s(1) << order, fine = Qsp64s(1) << fineOrder, coarse = n >> fineOrder;
    double* fc = scratch;
    double* fs = fc + fine;
    double* cc = fs + fine;
    double* cs = cc + coarse;
    const double step = -2.0 / static_cast<double>(n);  // exact: a power of two
    for (Qsp64s l = 0; l < fine; ++l) {
        const mathfn::SinCos v = mathfn::sinCosPi(step * static_cast<double>(l));
        fc[l] = v.c;
        fs[l] = v.s;
    }
    for (Qsp64s h = 0; h < coarse; ++h) {
        const mathfn::SinCos v = mathfn::sinCosPi(step * static_cast<double>(h << fineOrder));
        cc[h] = v.c;
        cs[h] = v.s;
    }
    for (Qsp64s t = 0; t < count; ++t) {
        const Qsp64s de = (t * mult) & (n - 1);
        Qsp64s e = 0;
        for (Qsp64s b = 0; b < rows; ++b, e = (e + de) & (n - 1)) {
            const Qsp64s h = e >> fineOrder, l = e & (fine - 1);
            out[t * rows + b] = {static_cast<float>(cc[h] * fc[l] - cs[h] * fs[l]),
                                 static_cast<float>(cc[h] * fs[l] + cs[h] * fc[l])};
        }
    }
}

// Fills the tables of the large algorithm: the row passes, the column
// passes, the batch-start factors (batch by batch, row by row) and the
// within-batch factors (row by row).
template <class T, class O>
void ownsFillLargeTwiddles(C<T>* tw, int order, const Octant<O>& oct)
{
    const int n1 = largeRowOrder(order), n2 = order - n1;
    ownsFillPassTwiddles<T>(tw, n2, oct);
    tw += passTwiddleCount<T>(Qsp64s(1) << n2);
    ownsFillPassTwiddles<T>(tw, n1, oct);
    tw += passTwiddleCount<T>(Qsp64s(1) << n1);
    const Qsp64s rows = Qsp64s(1) << n1, cols = Qsp64s(1) << n2, step = Qsp64s(1) << (oct.order - order);
    const Qsp64s batches = cols / kLargeBatch;
    // start[t][b] = W^(b t kLargeBatch), t < M / kLargeBatch: batch by batch,
    // so that a batch reads its B factors from one contiguous piece.
    if constexpr (sizeof(T) == 4) {
        if (rows == 256 && order >= 22) {
            // These exponents jump across the whole circle; once the octant
            // outgrows the second-level cache (4 MiB from order 22 on),
            // nearly every value read from it misses, while products of two
            // small tables stay in the cache. Below that the octant is the
            // cheaper source. The space behind the large tables (unused,
            // inside the record block) holds the small tables while they
            // are needed.
            double* scratch = reinterpret_cast<double*>(tw + batches * rows + (Qsp64s(kLargeBatch) << n1));
            ownsFillByProducts(tw, batches, rows, kLargeBatch, order, scratch);
            tw += batches * rows;
            for (Qsp64s b = 0; b < rows; ++b) ownsFillTwiddleRun<T>(tw + b * kLargeBatch, kLargeBatch, 0, b * step, oct);
            return;
        }
    }
    for (Qsp64s t = 0; t < batches; ++t) ownsFillTwiddleRun<T>(tw + t * rows, rows, 0, t * kLargeBatch * step, oct);
    tw += batches * rows;
    for (Qsp64s b = 0; b < rows; ++b) ownsFillTwiddleRun<T>(tw + b * kLargeBatch, kLargeBatch, 0, b * step, oct);
}

// Element i of an N-value buffer held in halves (half = N/2).
template <class T>
inline T* at(Halves<T> h, Qsp64s i, Qsp64s half)
{
    return i < half ? h.lo + i : h.hi + (i - half);
}

// Source readers of the large algorithm's transposition.
template <class T>
struct InterleavedSource {
    const C<T>* p;
    C<T> operator()(Qsp64s i) const { return p[i]; }
};
template <class T>
struct SplitSource {
    const T* re;
    const T* im;
    C<T> operator()(Qsp64s i) const { return {re[i], im[i]}; }
};

// Step 1 of the large algorithm: row b of work (rows x cols) receives
// x[b], x[b + rows], x[b + 2 rows], ... Tiles of 16 columns keep the 16
// source rows being read in the first-level cache.
constexpr Qsp64s kTransposeTile = 16;

template <class T, class Src>
void ownsLargeTranspose(Src src, C<T>* work, Qsp64s rows, Qsp64s cols)
{
    for (Qsp64s j0 = 0; j0 < cols; j0 += kTransposeTile)
        for (Qsp64s b = 0; b < rows; ++b)
            for (Qsp64s j = j0; j < j0 + kTransposeTile; ++j) work[b * cols + j] = src(j * rows + b);
}

// Interleaved source: whole registers. In single precision a register holds
// x[j rows + b] and x[j rows + b + 1]; two of them (j, j + 1) are regrouped
// into the pairs of rows b and b + 1.
template <class T>
void ownsLargeTranspose(InterleavedSource<T> src, C<T>* work, Qsp64s rows, Qsp64s cols)
{
    using K = CV<T>;
    using V = typename K::V;
    for (Qsp64s j0 = 0; j0 < cols; j0 += kTransposeTile) {
        const C<T>* tile = src.p + j0 * rows;
        if constexpr (K::per == 2) {
            for (Qsp64s b = 0; b < rows; b += 2) {
                const C<T>* in = tile + b;
                C<T>* o0 = work + b * cols + j0;
                C<T>* o1 = o0 + cols;
                for (Qsp64s j = 0; j < kTransposeTile; j += 2, in += 2 * rows) {
                    const auto a = K::load(in), c = K::load(in + rows);
                    K::store(o0 + j, V::lowHalves(a, c));
                    K::store(o1 + j, V::highHalves(a, c));
                }
            }
        } else {
            for (Qsp64s b = 0; b < rows; ++b) {
                const C<T>* in = tile + b;
                C<T>* o = work + b * cols + j0;
                for (Qsp64s j = 0; j < kTransposeTile; ++j, in += rows) K::store(o + j, K::load(in));
            }
        }
    }
}

// Rows of the large algorithm transformed as they are gathered, when the
// source lies apart from rowScratch: one source cache line holds the
// elements of kLineValues<T> consecutive rows, so the rows are gathered that
// many at a time into the front of work (each source line read once, the
// rows written while they stay in the second-level cache), then transformed
// into their place in rowScratch with the row behind them as the second
// buffer. Against transposing the whole array first this saves writing the
// transposed array out of the caches and reading it back.
constexpr Qsp64s kGatherAhead = 16;  // source lines fetched this many columns ahead
// Gathering pays from this many rows on; with 16 rows the source lines of a
// whole transposition tile are contiguous and the plain transposition
// measured faster.
constexpr Qsp64s kGatherRowsFrom = 64;

template <class T>
void ownsGatherRows(InterleavedSource<T> src, C<T>* stage, Qsp64s b0, Qsp64s rows, Qsp64s cols)
{
    using K = CV<T>;
    constexpr Qsp64s G = kLineValues<T>;
    const C<T>* in = src.p + b0;
    for (Qsp64s j = 0; j < cols; ++j, in += rows) {
        if (j + kGatherAhead < cols) simd::prefetch(in + kGatherAhead * rows);
        if constexpr (K::per == 2) {
            // Two rows per register: its halves are stored apart, no shuffle.
            for (Qsp64s g = 0; g < G; g += 2) {
                const auto r = K::load(in + g);
                K::V::storeLowHalf(&stage[g * cols + j].re, r);
                K::V::storeHighHalf(&stage[(g + 1) * cols + j].re, r);
            }
        } else {
            for (Qsp64s g = 0; g < G; ++g) K::store(stage + g * cols + j, K::load(in + g));
        }
    }
}

template <class T>
void ownsGatherRows(SplitSource<T> src, C<T>* stage, Qsp64s b0, Qsp64s rows, Qsp64s cols)
{
    constexpr Qsp64s G = kLineValues<T>;
    for (Qsp64s j = 0; j < cols; ++j)
        for (Qsp64s g = 0; g < G; ++g) stage[g * cols + j] = src(j * rows + b0 + g);
}

template <class T, bool Inv, class Src>
void ownsLargeRowsGathered(Src src, Halves<C<T>> rowScratch, C<T>* work, int n1, int n2, const C<T>* rowTw)
{
    constexpr Qsp64s G = kLineValues<T>;
    const Qsp64s rows = Qsp64s(1) << n1, cols = Qsp64s(1) << n2, half = (rows * cols) >> 1;
    C<T>* second = work + G * cols;
    for (Qsp64s b0 = 0; b0 < rows; b0 += G) {
        ownsGatherRows<T>(src, work, b0, rows, cols);
        for (Qsp64s g = 0; g < G; ++g) {
            C<T>* w = work + g * cols;
            ownsRunPasses<T, Inv>({w, w + cols / 2}, halvesOf(at(rowScratch, (b0 + g) * cols, half), cols),
                                  halvesOf(second, cols), n2, 1, rowTw);
        }
    }
}

// The large algorithm. work holds N values plus largeScratchCount(order).
// With srcApart (the source shares no memory with rowScratch) and many rows,
// the rows are gathered and transformed group by group
// (ownsLargeRowsGathered). Otherwise
// src is read completely (into work) before anything else is written, so it
// may share memory with rowScratch or out. out may be work or rowScratch.
// The rows of N/B values never straddle the halves of rowScratch or out.
template <class T, bool Inv, class Src>
void ownsFftLarge(Src src, bool srcApart, Halves<C<T>> rowScratch, Halves<C<T>> out, C<T>* work, int order,
                  const C<T>* tw, bool scaled, T scale)
{
    using K = CV<T>;
    using V = typename K::V;
    const int n1 = largeRowOrder(order), n2 = order - n1;
    const Qsp64s rows = Qsp64s(1) << n1, cols = Qsp64s(1) << n2, half = (Qsp64s(1) << order) >> 1;
    const C<T>* rowTw = tw;
    const C<T>* colTw = rowTw + passTwiddleCount<T>(cols);
    const C<T>* starts = colTw + passTwiddleCount<T>(rows);
    const C<T>* within = starts + (cols / kLargeBatch) * rows;
    C<T>* scratchA = work + (Qsp64s(1) << order);
    C<T>* scratchB = scratchA + (Qsp64s(kLargeBatch) << n1);

    // 1 and 2. Row b receives x[b], x[b + B], x[b + 2B], ... and is
    //    transformed. When the whole array is transposed first, each row
    //    uses the scratch buffer's row as its second buffer; the first pass
    //    reads the work row and writes the other one.
    bool rowsInScratch = true;
    if (srcApart && rows >= kGatherRowsFrom) {
        ownsLargeRowsGathered<T, Inv>(src, rowScratch, work, n1, n2, rowTw);
    } else {
        ownsLargeTranspose<T>(src, work, rows, cols);
        rowsInScratch = (passCount<T>(n2) & 1) != 0;
        for (Qsp64s b = 0; b < rows; ++b) {
            C<T>* w = work + b * cols;
            C<T>* d = at(rowScratch, b * cols, half);
            ownsRunPasses<T, Inv>({w, w + cols / 2}, rowsInScratch ? halvesOf(d, cols) : halvesOf(w, cols),
                                  rowsInScratch ? halvesOf(w, cols) : halvesOf(d, cols), n2, 1, rowTw);
        }
    }

    // 3. Columns, kLargeBatch at a time: twiddle, B-point transforms of the
    //    batch, store at k + M*r. A batch is read completely before it is
    //    written, so out may hold the rows' results.
    const Qsp64s batchN = Qsp64s(kLargeBatch) << n1;
    const auto f = V::splat(scale);
    // The batch reads one short piece of every row, rows a whole row apart:
    // each piece is a cache miss and on a page of its own. Pieces are
    // fetched this many rows ahead, into the next batch at the end of one
    // (with few rows: the same row's piece of the next batch).
    const Qsp64s ahead = rows >= 64 ? 32 : rows;
    auto rowPiece = [&](Qsp64s b, Qsp64s k) {
        return rowsInScratch ? at(rowScratch, b * cols + k, half) : work + b * cols + k;
    };
    for (Qsp64s k0 = 0; k0 < cols; k0 += kLargeBatch) {
        const C<T>* start = starts + (k0 / kLargeBatch) * rows;
        for (Qsp64s b = 0; b < rows; ++b) {
            const Qsp64s next = b + ahead < rows ? k0 : k0 + kLargeBatch;
            if (next < cols)
                for (int l = 0; l < kLargeBatch; l += kLineValues<T>)
                    simd::prefetch(rowPiece((b + ahead) & (rows - 1), next) + l);
            const C<T>* from = rowPiece(b, k0);
            const C<T>* g = within + b * kLargeBatch;
            const auto w0 = K::splat(start + b);
            C<T>* to = scratchA + b * kLargeBatch;
            for (int kk = 0; kk < kLargeBatch; kk += K::per)
                K::store(to + kk, K::template mul<Inv>(K::load(from + kk), K::template mul<false>(K::load(g + kk), w0)));
        }
        // n1 (4 or 8) gives an even number of passes: the first writes
        // scratchB, the last scratchA.
        ownsRunPasses<T, Inv>({scratchA, scratchA + batchN / 2}, halvesOf(scratchA, batchN),
                              halvesOf(scratchB, batchN), n1, kLargeBatch, colTw);
        for (Qsp64s r = 0; r < rows; ++r) {
            const C<T>* from = scratchA + r * kLargeBatch;
            C<T>* to = at(out, k0 + r * cols, half);
            if (k0 + kLargeBatch < cols)
                for (int l = 0; l < kLargeBatch; l += kLineValues<T>) simd::prefetch(to + kLargeBatch + l);
            for (int kk = 0; kk < kLargeBatch; kk += K::per) {
                const auto v = K::load(from + kk);
                K::store(to + kk, scaled ? V::mul(v, f) : v);
            }
        }
    }
}

}  // namespace fft

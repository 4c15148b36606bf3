// SPDX-License-Identifier: BSD-3-Clause
// The medium tier of the complex FFT: radix-4 self-sorting passes over
// values kept split (block by block, the real parts of L values before
// their imaginary parts) between the passes.
//
// A transform of N = 2^order values runs, from source to destination:
//  1. the first pass: radix 4 over x[p + j N/4], vectorised over p, each
//     output k twiddled by W_N^(k p) (one factor per lane) and written to
//     the k-th quarter of the work buffer with p in natural order;
//  2. the second pass: the same within each quarter (radix 4 over
//     p + j N/16, factors W_(N/4)^(k p)); its outputs are transposed across
//     the four quarters, so that the result is in the self-sorting order of
//     stride 16 (element k1 + 4 k2 + 16 p);
//  3. radix-4 passes of stride s = 16, 64, ...: for every p and q < s, with
//     a..d = x[q + s (p + j n/4)], y[q + s (4 p + k)] = DFT4(a..d)_k W_n^(k p),
//     vectorised over q, the factors of p held in registers;
//  4. the last pass, radix 4 (even order) or 8 (odd order), without
//     factors, written to the destination in its own layout (interleaved
//     or split), multiplied by the normalisation factor when one applies.
// The vectorised index of the first two passes is p, that of the others q:
// the one transposition between the two layouts is that of the second pass.
// Values move between the work buffer and the destination; the last pass
// may run in place, since it writes exactly the positions it reads.
//
// Forward: X[k] = sum x[m] exp(-2 pi i k m / N). The inverse is the same
// computation with the real and imaginary parts exchanged on the way in and
// on the way out (exchanging them is conjugation times i, and
// conj(F(conj(x))) is the inverse transform), so the passes compute forward
// transforms only, and the views below exchange the parts when Swap is set:
// the inverse costs exactly what the forward transform costs and reads the
// same tables.
#pragma once
#include "fft_vectors.h"

namespace fft {

// ---------------------------------------------------------------- views

// Sources of the first pass and destinations of the last, L values at a
// time from element i; Swap exchanges the real and imaginary parts.
template <class T, bool Swap>
struct InterleavedIn {
    const C<T>* p;
    typename SV<T>::X load(Qsp64s i) const
    {
        const typename SV<T>::X v = SV<T>::template load<true>(p + i);
        return Swap ? typename SV<T>::X{v.im, v.re} : v;
    }
    // Asks for the cache lines of count values from element i.
    void prefetch(Qsp64s i, Qsp64s count) const
    {
        for (Qsp64s k = 0; k < count; k += 64 / Qsp64s(sizeof(C<T>))) simd::prefetch(p + i + k);
    }
};

template <class T, bool Swap>
struct SplitIn {
    const T* re;
    const T* im;
    typename SV<T>::X load(Qsp64s i) const
    {
        const auto r = SV<T>::V::loadu(re + i), m = SV<T>::V::loadu(im + i);
        return Swap ? typename SV<T>::X{m, r} : typename SV<T>::X{r, m};
    }
    void prefetch(Qsp64s i, Qsp64s count) const
    {
        for (Qsp64s k = 0; k < count; k += 64 / Qsp64s(sizeof(T))) {
            simd::prefetch(re + i + k);
            simd::prefetch(im + i + k);
        }
    }
};

template <class T, bool Swap>
struct InterleavedOut {
    C<T>* p;
    void store(Qsp64s i, typename SV<T>::X v) const
    {
        SV<T>::template store<true>(p + i, Swap ? typename SV<T>::X{v.im, v.re} : v);
    }
};

template <class T, bool Swap>
struct SplitOut {
    T* re;
    T* im;
    void store(Qsp64s i, typename SV<T>::X v) const
    {
        SV<T>::V::storeu(re + i, Swap ? v.im : v.re);
        SV<T>::V::storeu(im + i, Swap ? v.re : v.im);
    }
};

// ---------------------------------------------------------------- plan

// The last pass is radix 8 for odd orders; the passes between the second
// and the last are radix 4. In double precision (two values per register)
// the first pass transposes its own outputs (its four outputs are four
// registers) and the second pass is an ordinary one of stride 4; in single
// precision (four values per register) the transposition of four quarters
// by a second pass measured cheaper than a first pass of stride 1 followed
// by one of stride 4.
template <class T>
inline constexpr bool kTransposeFirst = sizeof(T) == 8;
inline int mediumLastBits(int order) { return (order & 1) ? 3 : 2; }
// Passes between the first two (or the first, when it transposes) and the
// last.
template <class T>
inline int mediumMidPasses(int order)
{
    return (order - (kTransposeFirst<T> ? 2 : 4) - mediumLastBits(order)) / 2;
}

// Twiddle table of an N-point transform (N >= 64), in the order the passes
// read it:
//   first pass: for every block of L values of p, W_N^p, W_N^2p, W_N^3p as
//     three split blocks (3N/4 values);
//   second pass, when the first does not transpose: the same for W_(N/4)
//     and p < N/16 (3N/16 values);
//   middle pass of sub-length n: for every p < n/4, W_n^p, W_n^2p, W_n^3p as
//     three complex values.
template <class T>
inline Qsp64s mediumMidFrom(int order)
{
    return (Qsp64s(1) << order) >> (kTransposeFirst<T> ? 2 : 4);
}

template <class T>
inline Qsp64s mediumTwiddleCount(int order)
{
    const Qsp64s n = Qsp64s(1) << order;
    Qsp64s count = 3 * (n >> 2) + (kTransposeFirst<T> ? 0 : 3 * (n >> 4));
    Qsp64s sub = mediumMidFrom<T>(order);
    for (int i = 0; i < mediumMidPasses<T>(order); ++i, sub >>= 2) count += 3 * (sub >> 2);
    return count;
}

template <class T, class O>
void ownsFillMediumTwiddles(C<T>* tw, int order, const Octant<O>& oct)
{
    constexpr Qsp64s L = SV<T>::L;
    const Qsp64s n = Qsp64s(1) << order;
    auto w = [&](Qsp64s e, Qsp64s len) {
        const C<O> v = twiddle(oct, e * ((Qsp64s(1) << oct.order) / len));
        return C<T>{T(v.re), T(v.im)};
    };
    // Per-lane blocks: W_len^(k p) for p in the block, k = 1, 2, 3.
    auto perLane = [&](Qsp64s len) {
        T* f = &tw->re;
        for (Qsp64s p0 = 0; p0 < len / 4; p0 += L)
            for (int k = 1; k <= 3; ++k, f += 2 * L)
                for (Qsp64s l = 0; l < L; ++l) {
                    const C<T> v = w(k * (p0 + l), len);
                    f[l] = v.re;
                    f[L + l] = v.im;
                }
        tw += 3 * (len / 4);
    };
    perLane(n);
    if (!kTransposeFirst<T>) perLane(n >> 2);
    Qsp64s sub = mediumMidFrom<T>(order);
    for (int i = 0; i < mediumMidPasses<T>(order); ++i, sub >>= 2)
        for (Qsp64s p = 0; p < sub / 4; ++p)
            for (int k = 1; k <= 3; ++k) *tw++ = w(k * p, sub);
}

// ---------------------------------------------------------------- butterflies

// a - i b and a + i b on split values.
template <class T>
inline typename SV<T>::X minusIb(typename SV<T>::X a, typename SV<T>::X b)
{
    using V = typename SV<T>::V;
    return {V::add(a.re, b.im), V::sub(a.im, b.re)};
}
template <class T>
inline typename SV<T>::X plusIb(typename SV<T>::X a, typename SV<T>::X b)
{
    using V = typename SV<T>::V;
    return {V::sub(a.re, b.im), V::add(a.im, b.re)};
}

// The forward 4- and 8-point DFTs of in(0..R-1), out(k, v) receiving output
// k; both are always inlined, so that in and out fold into the caller's
// loop (left to itself the compiler calls the scaled 8-point variants). The
// 8-point one is a radix-2 step, the odd half turned by W_8^j, and
// two 4-point DFTs; it starts with the odd inputs, whose chain through the
// eighth turns is the longest, and hands each output over as soon as it is
// complete, so that few values are live at once.
template <class T, class In, class Out>
inline __attribute__((always_inline)) void dft4(In in, Out out)
{
    using K = SV<T>;
    const auto a = in(0), c = in(2);
    const auto apc = K::add(a, c), amc = K::sub(a, c);
    const auto b = in(1), d = in(3);
    const auto bpd = K::add(b, d), bmd = K::sub(b, d);
    out(0, K::add(apc, bpd));
    out(2, K::sub(apc, bpd));
    out(1, minusIb<T>(amc, bmd));
    out(3, plusIb<T>(amc, bmd));
}

template <class T, class In, class Out>
inline __attribute__((always_inline)) void dft8(In in, Out out)
{
    using K = SV<T>;
    using V = typename K::V;
    using X = typename K::X;
    const auto h = V::splat(T(0.707106781186547524400844362104849039L));
    const X u1 = in(1), u5 = in(5);
    const X b1 = K::add(u1, u5), d1 = K::sub(u1, u5);
    const X u3 = in(3), u7 = in(7);
    const X b3 = K::add(u3, u7), d3 = K::sub(u3, u7);
    // d1 W_8 = (re + im, im - re) h and d3 W_8^3 = (im - re, -(re + im)) h;
    // k0 and k1 are their sum and difference.
    const auto s1 = V::add(d1.re, d1.im), t1 = V::sub(d1.im, d1.re);
    const auto s3 = V::add(d3.re, d3.im), t3 = V::sub(d3.im, d3.re);
    const X k0{V::mul(V::add(s1, t3), h), V::mul(V::sub(t1, s3), h)};
    const X k1{V::mul(V::sub(s1, t3), h), V::mul(V::add(t1, s3), h)};
    const X f0 = K::add(b1, b3), f1 = K::sub(b1, b3);
    const X u0 = in(0), u4 = in(4);
    const X b0 = K::add(u0, u4), d0 = K::sub(u0, u4);
    const X u2 = in(2), u6 = in(6);
    const X b2 = K::add(u2, u6), d2 = K::sub(u2, u6);
    const X e0 = K::add(b0, b2), e1 = K::sub(b0, b2);
    out(0, K::add(e0, f0));
    out(4, K::sub(e0, f0));
    out(2, minusIb<T>(e1, f1));
    out(6, plusIb<T>(e1, f1));
    const X g0 = minusIb<T>(d0, d2), g1 = plusIb<T>(d0, d2);
    out(1, K::add(g0, k0));
    out(5, K::sub(g0, k0));
    out(3, minusIb<T>(g1, k1));
    out(7, plusIb<T>(g1, k1));
}

// ---------------------------------------------------------------- passes

// The first pass, source to work (N/4 values per quarter).
template <class T, bool A, class Src>
void ownsMediumFirst(Src src, Halves<C<T>> y, Qsp64s n, const C<T>* tw)
{
    using K = SV<T>;
    using X = typename K::X;
    constexpr Qsp64s L = K::L;
    const Qsp64s m = n >> 2;
    C<T>* const q1 = y.lo + m;
    C<T>* const q3 = y.hi + m;
    for (Qsp64s p = 0; p < m; p += L, tw += 3 * L) {
        X o[4];
        butterfly4<T, false>(src.load(p), src.load(p + m), src.load(p + 2 * m), src.load(p + 3 * m), o);
        K::template store<false, A>(y.lo + p, o[0]);
        K::template store<false, A>(q1 + p, K::template mul<false>(o[1], K::template load<false, A>(tw)));
        K::template store<false, A>(y.hi + p, K::template mul<false>(o[2], K::template load<false, A>(tw + L)));
        K::template store<false, A>(q3 + p, K::template mul<false>(o[3], K::template load<false, A>(tw + 2 * L)));
    }
}


// Alternative first two passes: the first pass transposes its outputs (the
// self-sorting order of stride 4 after it), the second is an ordinary pass of
// stride 4 whose factors are splatted from a table of (w1, w2), (w3, 0)
// per p.
template <class T, bool A, class Src>
void ownsMediumFirstT(Src src, Halves<C<T>> y, Qsp64s n, const C<T>* tw)
{
    using K = SV<T>;
    using V = typename K::V;
    using X = typename K::X;
    constexpr Qsp64s L = K::L;
    const Qsp64s m = n >> 2, half = n >> 1;
    for (Qsp64s p = 0; p < m; p += L, tw += 3 * L) {
        X o[4];
        butterfly4<T, false>(src.load(p), src.load(p + m), src.load(p + 2 * m), src.load(p + 3 * m), o);
        o[1] = K::template mul<false>(o[1], K::template load<false, A>(tw));
        o[2] = K::template mul<false>(o[2], K::template load<false, A>(tw + L));
        o[3] = K::template mul<false>(o[3], K::template load<false, A>(tw + 2 * L));
        // Lane l of o[k] is element k + 4 (p + l).
        C<T>* const out = at(y, 4 * p, half);
        if constexpr (L == 4) {
            typename V::Reg r0 = o[0].re, r1 = o[1].re, r2 = o[2].re, r3 = o[3].re;
            typename V::Reg i0 = o[0].im, i1 = o[1].im, i2 = o[2].im, i3 = o[3].im;
            transpose4(r0, r1, r2, r3);
            transpose4(i0, i1, i2, i3);
            K::template store<false, A>(out, X{r0, i0});
            K::template store<false, A>(out + 4, X{r1, i1});
            K::template store<false, A>(out + 8, X{r2, i2});
            K::template store<false, A>(out + 12, X{r3, i3});
        } else {
            K::template store<false, A>(out, X{V::zipLo(o[0].re, o[1].re), V::zipLo(o[0].im, o[1].im)});
            K::template store<false, A>(out + 2, X{V::zipLo(o[2].re, o[3].re), V::zipLo(o[2].im, o[3].im)});
            K::template store<false, A>(out + 4, X{V::zipHi(o[0].re, o[1].re), V::zipHi(o[0].im, o[1].im)});
            K::template store<false, A>(out + 6, X{V::zipHi(o[2].re, o[3].re), V::zipHi(o[2].im, o[3].im)});
        }
    }
}

// The second pass, work quarters to the self-sorting order of stride 16.
template <class T, bool A>
void ownsMediumSecond(Halves<const C<T>> x, Halves<C<T>> y, Qsp64s n, const C<T>* tw)
{
    using K = SV<T>;
    using V = typename K::V;
    using X = typename K::X;
    constexpr Qsp64s L = K::L;
    const Qsp64s m = n >> 2, m2 = n >> 4, half = n >> 1;
    const C<T>* const quarter[4] = {x.lo, x.lo + m, x.hi, x.hi + m};
    for (Qsp64s p = 0; p < m2; p += L, tw += 3 * L) {
        const X w1 = K::template load<false, A>(tw), w2 = K::template load<false, A>(tw + L),
                w3 = K::template load<false, A>(tw + 2 * L);
        X o[4][4];
        for (int k1 = 0; k1 < 4; ++k1) {
            const C<T>* s = quarter[k1] + p;
            butterfly4<T, false>(K::template load<false, A>(s), K::template load<false, A>(s + m2),
                               K::template load<false, A>(s + 2 * m2), K::template load<false, A>(s + 3 * m2), o[k1]);
            o[k1][1] = K::template mul<false>(o[k1][1], w1);
            o[k1][2] = K::template mul<false>(o[k1][2], w2);
            o[k1][3] = K::template mul<false>(o[k1][3], w3);
        }
        // Lane l of o[k1][k2] is element k1 + 4 k2 + 16 (p + l). Lanes 0, 1
        // and lanes 2, 3 each write 32 consecutive elements, which never
        // straddle the halves (N/2 is a multiple of 32).
        C<T>* const out01 = at(y, 16 * p, half);
        for (int k2 = 0; k2 < 4; ++k2) {
            if constexpr (L == 4) {
                C<T>* const out23 = at(y, 16 * p + 32, half);
                typename V::Reg r0 = o[0][k2].re, r1 = o[1][k2].re, r2 = o[2][k2].re, r3 = o[3][k2].re;
                typename V::Reg i0 = o[0][k2].im, i1 = o[1][k2].im, i2 = o[2][k2].im, i3 = o[3][k2].im;
                transpose4(r0, r1, r2, r3);
                transpose4(i0, i1, i2, i3);
                K::template store<false, A>(out01 + 4 * k2, X{r0, i0});
                K::template store<false, A>(out01 + 16 + 4 * k2, X{r1, i1});
                K::template store<false, A>(out23 + 4 * k2, X{r2, i2});
                K::template store<false, A>(out23 + 16 + 4 * k2, X{r3, i3});
            } else {
                for (int k1 = 0; k1 < 4; k1 += 2) {
                    const X& a = o[k1][k2];
                    const X& b = o[k1 + 1][k2];
                    K::template store<false, A>(out01 + k1 + 4 * k2, X{V::zipLo(a.re, b.re), V::zipLo(a.im, b.im)});
                    K::template store<false, A>(out01 + 16 + k1 + 4 * k2, X{V::zipHi(a.re, b.re), V::zipHi(a.im, b.im)});
                }
            }
        }
    }
}

// A middle pass of sub-length sub (>= 16) and stride s (>= 16), factors
// as complex values three per p.
template <class T, bool A>
void ownsMediumPass(Halves<const C<T>> x, Halves<C<T>> y, Qsp64s n, Qsp64s sub, Qsp64s s, const C<T>* tw)
{
    using K = SV<T>;
    using V = typename K::V;
    using X = typename K::X;
    const Qsp64s m = sub >> 2, quarter = n >> 2, half = n >> 1;
    auto splat = [](C<T> w) { return X{V::splat(w.re), V::splat(w.im)}; };
    // The butterflies of p: with Twiddled false (p = 0, every factor 1)
    // the outputs are stored as they are.
    auto row = [&]<bool Twiddled>(Qsp64s p, const C<T>* f) {
        X w1{}, w2{}, w3{};
        if constexpr (Twiddled) {
            w1 = splat(f[0]);
            w2 = splat(f[1]);
            w3 = splat(f[2]);
        }
        const C<T>* a = x.lo + s * p;
        const C<T>* b = a + quarter;
        const C<T>* c = x.hi + s * p;
        const C<T>* d = c + quarter;
        C<T>* out = at(y, 4 * s * p, half);
        for (Qsp64s q = 0; q < s; q += K::L) {
            X o[4];
            butterfly4<T, false>(K::template load<false, A>(a + q), K::template load<false, A>(b + q),
                               K::template load<false, A>(c + q), K::template load<false, A>(d + q), o);
            if constexpr (Twiddled) {
                o[1] = K::template mul<false>(o[1], w1);
                o[2] = K::template mul<false>(o[2], w2);
                o[3] = K::template mul<false>(o[3], w3);
            }
            K::template store<false, A>(out + q, o[0]);
            K::template store<false, A>(out + s + q, o[1]);
            K::template store<false, A>(out + 2 * s + q, o[2]);
            K::template store<false, A>(out + 3 * s + q, o[3]);
        }
    };
    row.template operator()<false>(0, tw);
    for (Qsp64s p = 1; p < m; ++p) row.template operator()<true>(p, tw + 3 * p);
}

// The last pass, radix 4 (Bits 2) or 8 (Bits 3), stride N/4 or N/8, no
// factors: x to the destination view, scaled by f when Scaled.
template <class T, bool A, int Bits, bool Scaled, class Dst>
void ownsMediumLast(Halves<const C<T>> x, Dst dst, Qsp64s n, T f)
{
    using K = SV<T>;
    using V = typename K::V;
    using X = typename K::X;
    constexpr int R = 1 << Bits;
    const Qsp64s s = n >> Bits, half = n >> 1;
    const auto scale = V::splat(f);
    auto put = [&](Qsp64s i, X v) {
        if constexpr (Scaled) v = {V::mul(v.re, scale), V::mul(v.im, scale)};
        dst.store(i, v);
    };
    for (Qsp64s q = 0; q < s; q += K::L) {
        // Inputs j < R/2 lie in the low half.
        auto in = [&](int j) {
            return K::template load<false, A>(j < R / 2 ? x.lo + q + j * s : x.hi + q + (j - R / 2) * s);
        };
        auto out = [&](int k, X v) { put(q + k * s, v); };
        if constexpr (R == 4)
            dft4<T>(in, out);
        else
            dft8<T>(in, out);
    }
    (void)half;
}

// ---------------------------------------------------------------- driver

// One transform of 2^order values (order >= 6): src through the first
// pass into work, then between work and buf, the last pass to dst. buf and
// dst are the destination's memory as a buffer and as the result view;
// lastInPlace says that dst may be written where buf is read (the
// interleaved kinds), otherwise a last pass that would read buf goes
// through work and a copy. src is read completely by the first pass.
template <class T, bool A, class Src, class Dst>
void ownsFftMediumRunAs(Src src, Halves<C<T>> buf, Dst dst, bool lastInPlace, Halves<C<T>> work, int order,
                        const C<T>* tw, bool scaled, T f)
{
    const Qsp64s n = Qsp64s(1) << order;
    Halves<C<T>> in = buf, out = work;
    if constexpr (kTransposeFirst<T>) {
        ownsMediumFirstT<T, A>(src, work, n, tw);
        tw += 3 * (n >> 2);
        in = work;
        out = buf;
    } else {
        ownsMediumFirst<T, A>(src, work, n, tw);
        tw += 3 * (n >> 2);
        ownsMediumSecond<T, A>(asConst(work), buf, n, tw);
        tw += 3 * (n >> 4);
    }
    Qsp64s sub = mediumMidFrom<T>(order), s = n / sub;
    for (int i = 0; i < mediumMidPasses<T>(order); ++i, sub >>= 2, s <<= 2) {
        ownsMediumPass<T, A>(asConst(in), out, n, sub, s, tw);
        tw += 3 * (sub >> 2);
        const Halves<C<T>> t = in;
        in = out;
        out = t;
    }
    auto last = [&](auto view) {
        if (mediumLastBits(order) == 3) {
            if (scaled)
                ownsMediumLast<T, A, 3, true>(asConst(in), view, n, f);
            else
                ownsMediumLast<T, A, 3, false>(asConst(in), view, n, f);
        } else {
            if (scaled)
                ownsMediumLast<T, A, 2, true>(asConst(in), view, n, f);
            else
                ownsMediumLast<T, A, 2, false>(asConst(in), view, n, f);
        }
    };
    if (in.lo != buf.lo || lastInPlace) {
        last(dst);
    } else {
        // The result goes through the work buffer (interleaved), then to dst.
        last(InterleavedOut<T, false>{work.lo});
        using K = SV<T>;
        for (Qsp64s i = 0; i < n; i += K::L) {
            // work is contiguous here: lo then hi.
            const typename K::X v = K::template load<true>(work.lo + i);
            dst.store(i, v);
        }
    }
}

// The transform with the block loads and stores of the passes aligned when
// every buffer they touch (both halves of buf and work) and the factor table
// start on 16 bytes, as with buffers from qspsMalloc: the aligned passes
// fold their loads into the arithmetic and so issue fewer instructions.
// Otherwise (a destination at any other address) the same
// passes run with unaligned accesses; both give bit-identical results.
template <class T, class Src, class Dst>
void ownsFftMediumRun(Src src, Halves<C<T>> buf, Dst dst, bool lastInPlace, Halves<C<T>> work, int order,
                      const C<T>* tw, bool scaled, T f)
{
    auto bits = [](const void* p) { return reinterpret_cast<Qsp64u>(p); };
    if (((bits(buf.lo) | bits(buf.hi) | bits(work.lo) | bits(work.hi) | bits(tw)) & 15) == 0)
        ownsFftMediumRunAs<T, true>(src, buf, dst, lastInPlace, work, order, tw, scaled, f);
    else
        ownsFftMediumRunAs<T, false>(src, buf, dst, lastInPlace, work, order, tw, scaled, f);
}

}  // namespace fft

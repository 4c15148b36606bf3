// The complex power-of-two transform engine behind every FFT of the library.
//
// Three tiers, chosen by order:
//  - small (N <= 32): one straight-line kernel per order, no tables, no work
//    buffer (ownsFftSmall);
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
// and then n /= 4, s *= 4. When log2 N is odd a last radix-2 pass follows.
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

// Number of twiddles the radix-4 passes of an n-point transform read: three
// arrays of n'/4 for every pass with sub-length n' >= 8.
inline Qsp64s passTwiddleCount(Qsp64s n)
{
    Qsp64s count = 0;
    for (Qsp64s cur = n; cur >= 8; cur >>= 2) count += 3 * (cur >> 2);
    return count;
}

// Number of passes of an n-point transform (n >= 4).
inline int passCount(int order) { return (order + 1) >> 1; }

// Fills the pass twiddles of an n-point transform, n = 2^order, from an
// octant of length 2^octOrder >= n.
template <class T, class O>
void ownsFillPassTwiddles(C<T>* tw, int order, const Octant<O>& oct)
{
    const Qsp64s n = Qsp64s(1) << order;
    for (Qsp64s cur = n; cur >= 8; cur >>= 2) {
        const Qsp64s m = cur >> 2;
        const Qsp64s step = (Qsp64s(1) << oct.order) / cur;
        for (Qsp64s p = 0; p < m; ++p) {
            for (int j = 1; j <= 3; ++j) {
                const C<O> w = twiddle(oct, j * p * step);
                tw[(j - 1) * m + p] = {T(w.re), T(w.im)};
            }
        }
        tw += 3 * m;
    }
}

// ---------------------------------------------------------------- passes

// General radix-4 pass, s >= CV<T>::per, n/4 >= 2.
template <class T, bool Inv>
void ownsPass4(Halves<const C<T>> x, Halves<C<T>> y, Qsp64s ntot, Qsp64s n, Qsp64s s, const C<T>* tw)
{
    using K = CV<T>;
    using V = typename K::V;
    const Qsp64s m = n >> 2, quarter = ntot >> 2, half = ntot >> 1;
    for (Qsp64s p = 0; p < m; ++p) {
        const auto w1 = K::splat(tw + p), w2 = K::splat(tw + m + p), w3 = K::splat(tw + 2 * m + p);
        const C<T>* a = x.lo + s * p;
        const C<T>* b = a + quarter;
        const C<T>* c = x.hi + s * p;
        const C<T>* d = c + quarter;
        C<T>* out = (p < (m >> 1)) ? y.lo + 4 * s * p : y.hi + (4 * s * p - half);
        for (Qsp64s q = 0; q < s; q += K::per) {
            const auto va = K::load(a + q), vb = K::load(b + q), vc = K::load(c + q), vd = K::load(d + q);
            const auto apc = V::add(va, vc), amc = V::sub(va, vc);
            const auto bpd = V::add(vb, vd), jbd = K::template rot<Inv>(V::sub(vb, vd));
            K::store(out + q, V::add(apc, bpd));
            K::store(out + s + q, K::template mul<Inv>(V::add(amc, jbd), w1));
            K::store(out + 2 * s + q, K::template mul<Inv>(V::sub(apc, bpd), w2));
            K::store(out + 3 * s + q, K::template mul<Inv>(V::sub(amc, jbd), w3));
        }
    }
}

// First radix-4 pass of a standalone transform (s = 1, n = ntot >= 16):
// vectorised over p, with the outputs of two p values interleaved.
template <class T, bool Inv>
void ownsPass4First(Halves<const C<T>> x, Halves<C<T>> y, Qsp64s n, const C<T>* tw)
{
    using K = CV<T>;
    using V = typename K::V;
    if constexpr (K::per == 1) {
        ownsPass4<T, Inv>(x, y, n, n, 1, tw);
    } else {
        const Qsp64s m = n >> 2, half = n >> 1;
        for (Qsp64s p = 0; p < m; p += 2) {
            const auto w1 = K::load(tw + p), w2 = K::load(tw + m + p), w3 = K::load(tw + 2 * m + p);
            const auto va = K::load(x.lo + p), vb = K::load(x.lo + m + p);
            const auto vc = K::load(x.hi + p), vd = K::load(x.hi + m + p);
            const auto apc = V::add(va, vc), amc = V::sub(va, vc);
            const auto bpd = V::add(vb, vd), jbd = K::template rot<Inv>(V::sub(vb, vd));
            const auto o0 = V::add(apc, bpd);
            const auto o1 = K::template mul<Inv>(V::add(amc, jbd), w1);
            const auto o2 = K::template mul<Inv>(V::sub(apc, bpd), w2);
            const auto o3 = K::template mul<Inv>(V::sub(amc, jbd), w3);
            C<T>* out = (p < (m >> 1)) ? y.lo + 4 * p : y.hi + (4 * p - half);
            K::store(out, V::lowHalves(o0, o1));
            K::store(out + 2, V::lowHalves(o2, o3));
            K::store(out + 4, V::highHalves(o0, o1));
            K::store(out + 6, V::highHalves(o2, o3));
        }
    }
}

// Last radix-4 pass (n = 4, no twiddles), ntot/4 >= per.
template <class T, bool Inv>
void ownsPass4Last(Halves<const C<T>> x, Halves<C<T>> y, Qsp64s ntot)
{
    using K = CV<T>;
    using V = typename K::V;
    const Qsp64s quarter = ntot >> 2;
    for (Qsp64s q = 0; q < quarter; q += K::per) {
        const auto va = K::load(x.lo + q), vb = K::load(x.lo + quarter + q);
        const auto vc = K::load(x.hi + q), vd = K::load(x.hi + quarter + q);
        const auto apc = V::add(va, vc), amc = V::sub(va, vc);
        const auto bpd = V::add(vb, vd), jbd = K::template rot<Inv>(V::sub(vb, vd));
        K::store(y.lo + q, V::add(apc, bpd));
        K::store(y.lo + quarter + q, V::add(amc, jbd));
        K::store(y.hi + q, V::sub(apc, bpd));
        K::store(y.hi + quarter + q, V::sub(amc, jbd));
    }
}

// Last radix-2 pass (n = 2), ntot/2 >= per.
template <class T>
void ownsPass2Last(Halves<const C<T>> x, Halves<C<T>> y, Qsp64s ntot)
{
    using K = CV<T>;
    using V = typename K::V;
    const Qsp64s half = ntot >> 1;
    for (Qsp64s q = 0; q < half; q += K::per) {
        const auto va = K::load(x.lo + q), vb = K::load(x.hi + q);
        K::store(y.lo + q, V::add(va, vb));
        K::store(y.hi + q, V::sub(va, vb));
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
    using K = CV<T>;
    const Qsp64s half = n >> 1;
    for (Qsp64s q = 0; q < half; q += K::per) {
        K::store(y.lo + q, K::load(x.lo + q));
        K::store(y.hi + q, K::load(x.hi + q));
    }
}

// ---------------------------------------------------------------- medium

// Runs the passes of a batch of s0 interleaved n-point transforms held in
// ntot = n*s0 values (s0 = 1: one transform). The first pass reads x; the
// passes alternate between the writable buffers a and b and the last one
// writes a. x may be a or b only where the caller has arranged that the
// first pass does not write it (see ownsFftMedium).
template <class T, bool Inv>
void ownsRunPasses(Halves<const C<T>> x, Halves<C<T>> a, Halves<C<T>> b, int order, Qsp64s s0, const C<T>* tw)
{
    const Qsp64s n = Qsp64s(1) << order, ntot = n * s0;
    const int passes = passCount(order);
    Halves<const C<T>> in = x;
    Halves<C<T>> out = (passes & 1) ? a : b;
    Qsp64s cur = n, s = s0;
    for (int i = 0; i < passes; ++i) {
        if (cur == 2)
            ownsPass2Last<T>(in, out, ntot);
        else if (cur == 4)
            ownsPass4Last<T, Inv>(in, out, ntot);
        else if (s == 1)
            ownsPass4First<T, Inv>(in, out, ntot, tw);
        else
            ownsPass4<T, Inv>(in, out, ntot, cur, s, tw);
        if (cur >= 8) tw += 3 * (cur >> 2);
        cur >>= 2;
        s <<= 2;
        in = asConst(out);
        out = (out.lo == a.lo) ? b : a;
    }
}

// One n-point transform (order >= 4 for float, >= 2 for double) from x into
// a, with b as the second buffer. x may equal a (in place); it is never
// written otherwise.
template <class T, bool Inv>
void ownsFftMedium(Halves<const C<T>> x, Halves<C<T>> a, Halves<C<T>> b, int order, const C<T>* tw)
{
    const Qsp64s n = Qsp64s(1) << order;
    if ((passCount(order) & 1) && x.lo == a.lo) {
        // The first pass would write its own input: start from a copy.
        ownsCopyHalves<T>(x, b, n);
        ownsRunPasses<T, Inv>(asConst(b), a, b, order, 1, tw);
    } else {
        ownsRunPasses<T, Inv>(x, a, b, order, 1, tw);
    }
}

// ---------------------------------------------------------------- small

// Twiddles W_32^k, 0 <= k < 32, for the straight-line kernels.
template <class T>
struct SmallTwiddles {
    C<T> w[32];
};

template <class T>
constexpr SmallTwiddles<T> makeSmallTwiddles()
{
    SmallTwiddles<T> t{};
    for (int k = 0; k < 32; ++k) {
        const mathfn::SinCosExt sc = mathfn::sinCosPiExt(-2.0 * k / 32.0);
        t.w[k] = {T(sc.c), T(sc.s)};
    }
    return t;
}

template <class T>
inline constexpr SmallTwiddles<T> kSmall = makeSmallTwiddles<T>();

// The straight-line kernel of one order (0..5): the same radix-4 passes on
// scalars, unrolled by the compiler for the fixed length. Scale is applied
// as the values are stored when Scaled.
template <class T, bool Inv, int Order, bool Scaled>
void ownsFftSmall(const C<T>* src, C<T>* dst, T scale)
{
    constexpr int n = 1 << Order;
    C<T> bufA[n], bufB[n];
#pragma GCC unroll 32
    for (int i = 0; i < n; ++i) bufA[i] = src[i];
    C<T>* x = bufA;
    C<T>* y = bufB;
    int s = 1;
#pragma GCC unroll 4
    for (int cur = n; cur >= 4; cur >>= 2) {
        const int m = cur >> 2;
#pragma GCC unroll 8
        for (int p = 0; p < m; ++p) {
#pragma GCC unroll 8
            for (int q = 0; q < s; ++q) {
                const C<T> a = x[q + s * p], b = x[q + s * (p + m)], c = x[q + s * (p + 2 * m)],
                           d = x[q + s * (p + 3 * m)];
                const C<T> apc{a.re + c.re, a.im + c.im}, amc{a.re - c.re, a.im - c.im};
                const C<T> bpd{b.re + d.re, b.im + d.im}, bmd{b.re - d.re, b.im - d.im};
                // -i*(b-d) forward, +i*(b-d) inverse
                const C<T> jbd = Inv ? C<T>{-bmd.im, bmd.re} : C<T>{bmd.im, -bmd.re};
                const C<T> o[4] = {{apc.re + bpd.re, apc.im + bpd.im},
                                   {amc.re + jbd.re, amc.im + jbd.im},
                                   {apc.re - bpd.re, apc.im - bpd.im},
                                   {amc.re - jbd.re, amc.im - jbd.im}};
#pragma GCC unroll 4
                for (int j = 0; j < 4; ++j) {
                    C<T> v = o[j];
                    if (j > 0 && p > 0) {
                        const C<T> w = kSmall<T>.w[(j * p * (32 / cur)) & 31];
                        const T wi = Inv ? -w.im : w.im;
                        v = {o[j].re * w.re - o[j].im * wi, o[j].re * wi + o[j].im * w.re};
                    }
                    y[q + s * (4 * p + j)] = v;
                }
            }
        }
        C<T>* t = x;
        x = y;
        y = t;
        s <<= 2;
    }
    if constexpr ((Order & 1) != 0) {
        constexpr int half = n >> 1;
#pragma GCC unroll 16
        for (int q = 0; q < half; ++q) {
            const C<T> a = x[q], b = x[q + half];
            y[q] = {a.re + b.re, a.im + b.im};
            y[q + half] = {a.re - b.re, a.im - b.im};
        }
        x = y;
    }
#pragma GCC unroll 32
    for (int i = 0; i < n; ++i) {
        if constexpr (Scaled)
            dst[i] = {x[i].re * scale, x[i].im * scale};
        else
            dst[i] = x[i];
    }
}

template <class T, bool Inv>
using SmallKernel = void (*)(const C<T>*, C<T>*, T);

// The six straight-line kernels indexed by order, without and with scaling.
template <class T, bool Inv, bool Scaled>
inline constexpr SmallKernel<T, Inv> kSmallKernels[6] = {
    ownsFftSmall<T, Inv, 0, Scaled>, ownsFftSmall<T, Inv, 1, Scaled>, ownsFftSmall<T, Inv, 2, Scaled>,
    ownsFftSmall<T, Inv, 3, Scaled>, ownsFftSmall<T, Inv, 4, Scaled>, ownsFftSmall<T, Inv, 5, Scaled>,
};

// ---------------------------------------------------------------- large

// Split of the order n into n1 (log2 of the row count) + n2 by order.
inline int largeRowOrder(int order) { return order < 20 ? 4 : 8; }

// Columns combined per batch in the large algorithm.
constexpr int kLargeBatch = 8;

// Twiddle and scratch counts of the large algorithm.
inline Qsp64s largeTwiddleCount(int order)
{
    const int n1 = largeRowOrder(order), n2 = order - n1;
    return passTwiddleCount(Qsp64s(1) << n2) + passTwiddleCount(Qsp64s(1) << n1) + (Qsp64s(1) << order);
}
inline Qsp64s largeScratchCount(int order) { return 2 * (Qsp64s(kLargeBatch) << largeRowOrder(order)); }

// Fills the tables of the large algorithm: the row passes, the column
// passes and the grid W_N^(b*k), b < B, k < M, row by row.
template <class T, class O>
void ownsFillLargeTwiddles(C<T>* tw, int order, const Octant<O>& oct)
{
    const int n1 = largeRowOrder(order), n2 = order - n1;
    ownsFillPassTwiddles<T>(tw, n2, oct);
    tw += passTwiddleCount(Qsp64s(1) << n2);
    ownsFillPassTwiddles<T>(tw, n1, oct);
    tw += passTwiddleCount(Qsp64s(1) << n1);
    const Qsp64s rows = Qsp64s(1) << n1, cols = Qsp64s(1) << n2, step = Qsp64s(1) << (oct.order - order);
    for (Qsp64s b = 0; b < rows; ++b) {
        for (Qsp64s k = 0; k < cols; ++k) {
            const C<O> w = twiddle(oct, b * k * step);
            tw[b * cols + k] = {T(w.re), T(w.im)};
        }
    }
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

// The large algorithm. work holds N values plus largeScratchCount(order).
// src is read completely (into work) before anything else is written, so it
// may share memory with rowScratch or out; out may be work or rowScratch.
// The rows of N/B values never straddle the halves of rowScratch or out.
template <class T, bool Inv, class Src>
void ownsFftLarge(Src src, Halves<C<T>> rowScratch, Halves<C<T>> out, C<T>* work, int order, const C<T>* tw,
                  bool scaled, T scale)
{
    using K = CV<T>;
    using V = typename K::V;
    const int n1 = largeRowOrder(order), n2 = order - n1;
    const Qsp64s rows = Qsp64s(1) << n1, cols = Qsp64s(1) << n2, half = (Qsp64s(1) << order) >> 1;
    const C<T>* rowTw = tw;
    const C<T>* colTw = rowTw + passTwiddleCount(cols);
    const C<T>* grid = colTw + passTwiddleCount(rows);
    C<T>* scratchA = work + (Qsp64s(1) << order);
    C<T>* scratchB = scratchA + (Qsp64s(kLargeBatch) << n1);

    // 1. Transpose: row b of the work buffer is x[b], x[b + B], x[b + 2B], ...
    constexpr Qsp64s kTile = 16;
    for (Qsp64s j0 = 0; j0 < cols; j0 += kTile)
        for (Qsp64s b = 0; b < rows; ++b)
            for (Qsp64s j = j0; j < j0 + kTile; ++j) work[b * cols + j] = src(j * rows + b);

    // 2. Each row, with the scratch buffer's row as the second buffer; the
    //    first pass reads the work row and writes the other one.
    const bool rowsInScratch = (passCount(n2) & 1) != 0;
    for (Qsp64s b = 0; b < rows; ++b) {
        C<T>* w = work + b * cols;
        C<T>* d = at(rowScratch, b * cols, half);
        ownsRunPasses<T, Inv>({w, w + cols / 2}, rowsInScratch ? halvesOf(d, cols) : halvesOf(w, cols),
                              rowsInScratch ? halvesOf(w, cols) : halvesOf(d, cols), n2, 1, rowTw);
    }

    // 3. Columns, kLargeBatch at a time: twiddle, B-point transforms of the
    //    batch, store at k + M*r. A batch is read completely before it is
    //    written, so out may hold the rows' results.
    const Qsp64s batchN = Qsp64s(kLargeBatch) << n1;
    const auto f = V::splat(scale);
    for (Qsp64s k0 = 0; k0 < cols; k0 += kLargeBatch) {
        for (Qsp64s b = 0; b < rows; ++b) {
            const C<T>* from = rowsInScratch ? at(rowScratch, b * cols + k0, half) : work + b * cols + k0;
            const C<T>* g = grid + b * cols + k0;
            C<T>* to = scratchA + b * kLargeBatch;
            for (int kk = 0; kk < kLargeBatch; kk += K::per)
                K::store(to + kk, K::template mul<Inv>(K::load(from + kk), K::load(g + kk)));
        }
        // n1 (4 or 8) gives an even number of passes: the first writes
        // scratchB, the last scratchA.
        ownsRunPasses<T, Inv>({scratchA, scratchA + batchN / 2}, halvesOf(scratchA, batchN),
                              halvesOf(scratchB, batchN), n1, kLargeBatch, colTw);
        for (Qsp64s r = 0; r < rows; ++r) {
            const C<T>* from = scratchA + r * kLargeBatch;
            C<T>* to = at(out, k0 + r * cols, half);
            for (int kk = 0; kk < kLargeBatch; kk += K::per) {
                const auto v = K::load(from + kk);
                K::store(to + kk, scaled ? V::mul(v, f) : v);
            }
        }
    }
}

}  // namespace fft

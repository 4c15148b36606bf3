// SPDX-License-Identifier: BSD-3-Clause
// IIR kernels: the arithmetic of recursive filters on 128-bit registers,
// shared by every family that filters through AR sections or biquad
// cascades. Everything here works on caller memory handed in by pointer; no
// function checks its arguments.
//
// Interface (namespace iir):
//
//   Lanes<T>        element arithmetic of T = float, double, Qsp32fc or
//                   Qsp64fc: Reg holds L elements (4, 2, 2, 1); Coef is a
//                   multiplier prepared once (splat: one value in every
//                   element; perLane: a value per element); add, sub,
//                   mul(x, Coef); the scalar forms sadd, ssub, smul (the
//                   same roundings as the register forms); load/store of L
//                   elements at any alignment; shiftUp<j>, alignUp<j>,
//                   broadcast<i>, which treat the elements of a register as
//                   consecutive samples.
//
//   Sample input and output: In and Out policies tell a kernel how samples
//   of the caller's type D become registers of T and back. PlainIO<T> moves
//   T unchanged (kPlain: the kernel may use the caller's arrays as T
//   arrays); WidenIO<D, T> reads 16s, 32s or 32f parts exactly as float or
//   double; NarrowIO<T, D> writes double results rounded to 32f;
//   ScaledIO<T, D> writes results as 16s or 32s by the integer scaling rule
//   (times 2^-scaleFactor, rounded to nearest even, saturated, NaN as 0).
//   Kernels take an input and an output policy and serve in-place calls:
//   every kernel reads a sample before it writes the sample at its index.
//
//   AR filter of order N (one section, b0..bN, a1..aN normalised by a0):
//     ArTaps<T>         the taps as the kernels read them: the normalised
//                       taps, one multiplier per tap, and the lookahead of
//                       the nearest feedback taps (below).
//     prepareAR<T>(...) builds those multipliers from the normalised taps.
//     ownsIIRAR<T>(taps, dly, sums, buf, src, dst, len, in, out)
//                       filters len samples. dly holds the N+1 values of
//                       the transposed direct form (d[N] = 0 always):
//                       y[n] = b0 x[n] + d[0], then d[k] = d[k+1] +
//                       b(k+1) x[n] - a(k+1) y[n]. sums is a work area of
//                       kArBlock elements; buf another one, used only when
//                       the policies are not plain. Blocks of kArBlock
//                       samples; a block of at most 4N samples runs the
//                       one-sample recursion, a longer one a vectorised
//                       feed-forward pass and then the recursive pass, and
//                       leaves dly as the one-sample recursion would.
//
//   Biquad cascade:
//     BiQuadCoefs<T>    one section's multipliers for the register kernel.
//     prepareBiQuad<T>  builds them from b0, b1, b2, a1, a2 (normalised).
//     BiQuadHistory<T>  a section's registers between calls of the kernel:
//                       its last two input and output registers, and what
//                       the initial state adds to its first two samples.
//                       historyFromDF2(s1, s2) and historyFromDF1(x[-1],
//                       x[-2], y[-1], y[-2]) set it up from a delay line;
//                       after a call, endDF2 and lastSamples read the delay
//                       line back (m: samples in the last register).
//     ownsIIRBiQuadCascade<T>(coefs, hist, numBq, buf, src, dst, len, in, out)
//                       filters len samples through numBq sections: in one
//                       pass when the samples are T and the sections fit
//                       one pass (kMaxPass), else in pieces of kArBlock
//                       samples through buf, each piece through every pass
//                       in turn. The histories carry every register
//                       exactly, so the result does not depend on the
//                       pieces: the plain and the converting forms give the
//                       same values of T.
//     ownsIIRBiQuad<K, T>(coefs, hist, src, dst, len, inject)
//                       one pass of K <= kMaxPass sections over samples of
//                       T (dst may be src); inject: the pieces start a call.
//
// How the kernels reach speed: a recursion of order M run sample by sample
// costs a multiply and an add of latency per sample. Here the feed-forward
// part of a register of L samples is formed first (it depends only on the
// input), then the recursion is solved for the whole register at once:
//     y[j] = sum over i <= j of g[j-i] w[i] + sum over m of P_m[j] y[-m]
// where g is the impulse response of 1/(1 + a1 z^-1 + ...) and P_m[j] the
// response at j to a unit y[-m]. The only dependence between registers is
// through the broadcasts of the last outputs, so the latency per register
// is about that of one sample in the plain recursion.
#pragma once
#include <limits>
#include <type_traits>
#include <utility>

#include "qspdefs.h"
#include "simd.h"

namespace iir {

#define QSP_IIR_INLINE inline __attribute__((always_inline))

// Elements of the AR block and of the work areas.
constexpr int kArBlock = 1024;
// Sections one pass of the biquad kernel keeps in registers.
constexpr int kMaxPass = 8;

// Calls f(std::integral_constant<int, i>) for i = 0 .. N-1.
template <int N, class F>
QSP_IIR_INLINE void staticFor(F&& f)
{
    [&]<int... i>(std::integer_sequence<int, i...>) {
        (f(std::integral_constant<int, i>{}), ...);
    }(std::make_integer_sequence<int, N>{});
}

// ---------------------------------------------------------------------------
// Element arithmetic.

template <class F>
struct RealLanes {
    using S = F;     // one element
    using Part = F;  // one part of an element
    using V = simd::Vec<F>;
    using Reg = typename V::Reg;
    static constexpr int L = V::lanes;
    static constexpr bool kComplex = false;
    struct Coef {
        Reg v;
    };
    static Reg zero() { return V::zero(); }
    static Reg add(Reg a, Reg b) { return V::add(a, b); }
    static Reg sub(Reg a, Reg b) { return V::sub(a, b); }
    static Reg mul(Reg x, const Coef& c) { return V::mul(x, c.v); }
    static Coef splat(S c) { return {V::splat(c)}; }
    static Coef perLane(const S* c) { return {V::loadu(c)}; }
    static Reg load(const S* p) { return V::loadu(p); }
    static void store(S* p, Reg r) { V::storeu(p, r); }
    template <int j>
    static Reg shiftUp(Reg r) { return V::template shiftUp<j>(r); }
    template <int j>
    static Reg alignUp(Reg cur, Reg prev) { return V::template alignUp<j>(cur, prev); }
    template <int i>
    static Reg broadcast(Reg r) { return V::template broadcast<i>(r); }
    static S sadd(S a, S b) { return a + b; }
    static S ssub(S a, S b) { return a - b; }
    static S smul(S a, S b) { return a * b; }
    static S szero() { return S(0); }
    static bool isZero(S a) { return a == S(0); }
};

template <class C, class F>
struct ComplexLanes {
    using S = C;
    using Part = F;
    using V = simd::Vec<F>;
    using Reg = typename V::Reg;
    static constexpr int L = V::lanes / 2;
    static constexpr bool kComplex = true;
    // Real parts repeated over both parts of each element, imaginary parts
    // likewise: x * c = (x * re) -+ (swapped x * im).
    struct Coef {
        Reg re, im;
    };
    static Reg zero() { return V::zero(); }
    static Reg add(Reg a, Reg b) { return V::add(a, b); }
    static Reg sub(Reg a, Reg b) { return V::sub(a, b); }
    static Reg mul(Reg x, const Coef& c) { return V::addsub(V::mul(x, c.re), V::mul(V::swapParts(x), c.im)); }
    static Coef splat(S c) { return {V::splat(c.re), V::splat(c.im)}; }
    static Coef perLane(const S* c)
    {
        const Reg r = load(c);
        return {V::dupRe(r), V::dupIm(r)};
    }
    static Reg load(const S* p) { return V::loadu(reinterpret_cast<const F*>(p)); }
    static void store(S* p, Reg r) { V::storeu(reinterpret_cast<F*>(p), r); }
    template <int j>
    static Reg shiftUp(Reg r) { return V::template shiftUp<2 * j>(r); }
    template <int j>
    static Reg alignUp(Reg cur, Reg prev) { return V::template alignUp<2 * j>(cur, prev); }
    template <int i>
    static Reg broadcast(Reg r)
    {
        if constexpr (L == 1) return r;
        else if constexpr (i == 0) return V::lowHalves(r, r);
        else return V::highHalves(r, r);
    }
    // The register forms' roundings: real part a.re b.re - a.im b.im,
    // imaginary part a.im b.re + a.re b.im.
    static S sadd(S a, S b) { return {a.re + b.re, a.im + b.im}; }
    static S ssub(S a, S b) { return {a.re - b.re, a.im - b.im}; }
    static S smul(S a, S b) { return {a.re * b.re - a.im * b.im, a.im * b.re + a.re * b.im}; }
    static S szero() { return {F(0), F(0)}; }
    static bool isZero(S a) { return a.re == F(0) && a.im == F(0); }
};

template <class T>
struct Lanes;
template <>
struct Lanes<float> : RealLanes<float> {};
template <>
struct Lanes<double> : RealLanes<double> {};
template <>
struct Lanes<Qsp32fc> : ComplexLanes<Qsp32fc, float> {};
template <>
struct Lanes<Qsp64fc> : ComplexLanes<Qsp64fc, double> {};

// ---------------------------------------------------------------------------
// Sample input and output.

// Samples of T itself.
template <class T>
struct PlainIO {
    using E = Lanes<T>;
    using D = T;
    using Reg = typename E::Reg;
    static constexpr bool kPlain = true;
    static Reg load(const D* p) { return E::load(p); }
    static void store(D* p, Reg r) { E::store(p, r); }
    static T loadOne(const D* p) { return simd::loadOne(p); }
    static void storeOne(D* p, T v) { simd::storeOne(p, v); }
};

// The part type of a sample type: Qsp16sc -> Qsp16s, Qsp32f -> Qsp32f.
template <class D>
struct PartOf {
    using type = D;
};
template <>
struct PartOf<Qsp16sc> {
    using type = Qsp16s;
};
template <>
struct PartOf<Qsp32sc> {
    using type = Qsp32s;
};
template <>
struct PartOf<Qsp32fc> {
    using type = Qsp32f;
};

// Samples D read as T: every 16s, 32s or 32f part converts exactly.
template <class D, class T>
struct WidenIO {
    using E = Lanes<T>;
    using Reg = typename E::Reg;
    using P = typename E::Part;
    using Dp = typename PartOf<D>::type;
    static constexpr bool kPlain = false;

    static Reg load(const D* pd)
    {
        using I = simd::Vec<Qsp32s>;
        if constexpr (std::is_same_v<P, float>) {
            static_assert(std::is_same_v<Dp, Qsp16s>);
            return simd::Vec<float>::fromInt32(I::lo16s(I::loadLow8(pd)));
        } else if constexpr (std::is_same_v<Dp, Qsp16s>) {
            return simd::Vec<double>::fromInt32(I::lo16s(I::loadLow4(pd)));
        } else if constexpr (std::is_same_v<Dp, Qsp32s>) {
            return simd::Vec<double>::fromInt32(I::loadLow8(pd));
        } else {
            static_assert(std::is_same_v<Dp, Qsp32f>);
            return simd::Vec<double>::widenLow(simd::Vec<float>::loadPair(reinterpret_cast<const float*>(pd)));
        }
    }
    static typename E::S loadOne(const D* pd)
    {
        if constexpr (E::kComplex) {
            const D x = simd::loadOne(pd);
            return {P(x.re), P(x.im)};
        } else {
            return P(simd::loadOne(pd));
        }
    }
};

// Double results written as single precision (rounded to nearest).
template <class T, class D>
struct NarrowIO {
    using E = Lanes<T>;
    using Reg = typename E::Reg;
    static constexpr bool kPlain = false;
    static void store(D* p, Reg r)
    {
        simd::Vec<float>::storeLowHalf(reinterpret_cast<float*>(p), simd::Vec<double>::narrowLow(r));
    }
    static void storeOne(D* p, typename E::S v)
    {
        if constexpr (E::kComplex) simd::storeOne(p, D{float(v.re), float(v.im)});
        else simd::storeOne(p, float(v));
    }
};

// Results written as integers by the scaling rule: the value times
// 2^-scaleFactor, rounded to nearest with ties to even, saturated to the
// part type; NaN gives 0. The product is exact wherever it matters: a
// single-precision value times 2^-s for |s| <= 400 is exact in double
// precision, and beyond that every result is 0 or saturated; a double
// value is scaled by two factors of at most 2^1000 each (|s| clamped to
// 2000, beyond which the same holds), and an intermediate can underflow
// only when the result rounds to 0 and overflow only when it saturates.
template <class T, class D>
struct ScaledIO {
    using E = Lanes<T>;
    using Reg = typename E::Reg;
    using P = typename E::Part;
    using Dp = typename PartOf<D>::type;
    using VD = simd::Vec<double>;
    static constexpr bool kPlain = false;
    static constexpr bool kSingle = std::is_same_v<P, float>;

    VD::Reg k1, k2, lo, hi;

    explicit ScaledIO(int scaleFactor)
    {
        const int limit = kSingle ? 400 : 2000;
        const int s = scaleFactor > limit ? limit : scaleFactor < -limit ? -limit : scaleFactor;
        const int s1 = s / 2;
        k1 = VD::splat(kSingle ? pow2(-s) : pow2(-s1));
        k2 = VD::splat(kSingle ? 1.0 : pow2(-(s - s1)));
        lo = VD::splat(double(std::numeric_limits<Dp>::min()));
        hi = VD::splat(double(std::numeric_limits<Dp>::max()));
    }

    static double pow2(int e) { return __builtin_bit_cast(double, Qsp64u(e + 1023) << 52); }

    // Two doubles to two 32-bit integers (low half of the result).
    __m128i toInt(VD::Reg x) const
    {
        if constexpr (!kSingle) x = VD::mul(x, k2);
        x = VD::roundEven(VD::mul(x, k1));
        x = VD::bitAnd(VD::max(VD::min(x, hi), lo), VD::cmpord(x, x));
        return VD::toInt32(x);
    }

    void store(D* pd, Reg r) const
    {
        using I = simd::Vec<Qsp32s>;
        if constexpr (kSingle) {
            static_assert(std::is_same_v<Dp, Qsp16s>);
            const __m128i a = toInt(VD::widenLow(r)), b = toInt(VD::widenHigh(r));
            I::storeLow8(pd, simd::Vec<Qsp16s>::packs32(I::lowHalves(a, b), a));
        } else if constexpr (std::is_same_v<Dp, Qsp16s>) {
            const __m128i a = toInt(r);
            I::storeLow4(pd, simd::Vec<Qsp16s>::packs32(a, a));
        } else {
            static_assert(std::is_same_v<Dp, Qsp32s>);
            I::storeLow8(pd, toInt(r));
        }
    }

    Dp one(P v) const { return Dp(simd::Vec<Qsp32s>::lane<0>(toInt(VD::splat(double(v))))); }
    void storeOne(D* p, typename E::S v) const
    {
        if constexpr (E::kComplex) simd::storeOne(p, D{one(v.re), one(v.im)});
        else simd::storeOne(p, one(v));
    }
};

// Loads of the first m < L elements (the rest zero) and stores of the first
// m elements, through a small array so that nothing outside the m samples
// is touched.
template <class IO, class D>
QSP_IIR_INLINE typename IO::Reg loadFirst(const IO& io, const D* p, int m)
{
    D t[4] = {};
    for (int i = 0; i < m; ++i) t[i] = simd::loadOne(p + i);
    return io.load(t);
}

template <class IO, class D>
QSP_IIR_INLINE void storeFirst(const IO& io, D* p, typename IO::Reg r, int m)
{
    D t[4];
    io.store(t, r);
    for (int i = 0; i < m; ++i) simd::storeOne(p + i, t[i]);
}

// ---------------------------------------------------------------------------
// Coefficient preparation in extended precision.

// long double scalars (real) and pairs (complex) with the few operations
// the preparation needs.
struct WideC {
    long double re, im;
};
inline WideC operator+(WideC a, WideC b) { return {a.re + b.re, a.im + b.im}; }
inline WideC operator-(WideC a, WideC b) { return {a.re - b.re, a.im - b.im}; }
inline WideC operator-(WideC a) { return {-a.re, -a.im}; }
inline WideC operator*(WideC a, WideC b) { return {a.re * b.re - a.im * b.im, a.re * b.im + a.im * b.re}; }

template <class T>
struct Wide {
    using W = long double;
    static W from(T x) { return W(x); }
    static T to(W x) { return T(x); }
    static W one() { return 1; }
    static W zero() { return 0; }
};
template <class C>
struct WideComplex {
    using W = WideC;
    using P = decltype(C{}.re);
    static W from(C x) { return {x.re, x.im}; }
    static C to(W x) { return {P(x.re), P(x.im)}; }
    static W one() { return {1, 0}; }
    static W zero() { return {0, 0}; }
};
template <>
struct Wide<Qsp32fc> : WideComplex<Qsp32fc> {};
template <>
struct Wide<Qsp64fc> : WideComplex<Qsp64fc> {};

// The lookahead of an all-pole recursion y[n] = w[n] - a1 y[n-1] - ... -
// aM y[n-M] over one register of L samples: g[i] (i = 1..L-1), the impulse
// response, and P_m[j] (m = 1..M, j = 0..L-1), the response at j to a unit
// y[-m]. a holds a1..aM.
template <class T>
struct Lookahead {
    static constexpr int L = Lanes<T>::L;
    using W = typename Wide<T>::W;
    T g[L];      // g[0] = 1
    T p[2][L];   // P_1, P_2 (the orders used here are at most 2 for
                 // biquads and at most L - 1 <= 3 for AR lookahead)
    T p3[L];     // P_3

    Lookahead(const T* a, int M)
    {
        using Wd = Wide<T>;
        W gw[L];
        for (int j = 0; j < L; ++j) {
            W s = j == 0 ? Wd::one() : Wd::zero();
            for (int k = 1; k <= M && k <= j; ++k) s = s - Wd::from(a[k - 1]) * gw[j - k];
            gw[j] = s;
            g[j] = Wd::to(s);
        }
        for (int m = 1; m <= 3; ++m) {
            W h[L + 3];  // h[i + 3] = response at i, i = -3 .. L-1
            for (int i = 0; i < 3; ++i) h[i] = (i == 3 - m && m <= M) ? Wd::one() : Wd::zero();
            for (int j = 0; j < L; ++j) {
                W s = Wd::zero();
                for (int k = 1; k <= M; ++k) s = s - Wd::from(a[k - 1]) * h[j - k + 3];
                h[j + 3] = s;
                if (m <= 2) p[m - 1][j] = Wd::to(s);
                else p3[j] = Wd::to(s);
            }
        }
    }
    const T* P(int m) const { return m == 3 ? p3 : p[m - 1]; }
};

// ---------------------------------------------------------------------------
// Register helpers shared by the AR and biquad kernels.

// w + g1 shiftUp<1>(w) + ... + g(L-1) shiftUp<L-1>(w): the impulse response
// applied to the samples of one register.
template <class E>
QSP_IIR_INLINE typename E::Reg applyLookahead(typename E::Reg w, const typename E::Coef* g)
{
    if constexpr (E::L == 1) {
        return w;
    } else if constexpr (E::L == 2) {
        return E::add(w, E::mul(E::template shiftUp<1>(w), g[0]));
    } else {
        static_assert(E::L == 4);
        const typename E::Reg a = E::add(w, E::mul(E::template shiftUp<1>(w), g[0]));
        const typename E::Reg b =
            E::add(E::mul(E::template shiftUp<2>(w), g[1]), E::mul(E::template shiftUp<3>(w), g[2]));
        return E::add(a, b);
    }
}

// ---------------------------------------------------------------------------
// AR filters.

template <class T>
struct ArTaps {
    using E = Lanes<T>;
    using Coef = typename E::Coef;
    int order;         // N
    const T* taps;     // b0 .. bN, a1 .. aN
    const Coef* ff;    // ff[k] = b_k, k = 0 .. N
    const Coef* fb;    // fb[k - 1] = a_k, k = 1 .. N
    const Coef* g;     // g[i - 1] = g_i, i = 1 .. L-1, of the nearest min(N, L-1) feedback taps
    const Coef* p;     // p[m - 1] = P_m, m = 1 .. L-1
};

// Multiplier areas of an AR filter: ff and fb take 2N + 1 Coefs, the
// lookahead 2 (L - 1).
template <class T>
void prepareAR(const T* taps, int N, typename Lanes<T>::Coef* ffb, typename Lanes<T>::Coef* look)
{
    using E = Lanes<T>;
    for (int k = 0; k <= N; ++k) ffb[k] = E::splat(taps[k]);
    for (int k = 1; k <= N; ++k) ffb[N + k] = E::splat(taps[N + k]);
    if constexpr (E::L > 1) {
        const int M = N < E::L - 1 ? N : E::L - 1;
        const Lookahead<T> la(taps + N + 1, M);
        for (int i = 1; i < E::L; ++i) look[i - 1] = E::splat(la.g[i]);
        for (int m = 1; m < E::L; ++m) look[E::L - 1 + m - 1] = E::perLane(la.P(m));
    }
}

template <class T>
ArTaps<T> arTaps(const T* taps, int N, const typename Lanes<T>::Coef* ffb, const typename Lanes<T>::Coef* look)
{
    return {N, taps, ffb, ffb + N + 1, look, look + (Lanes<T>::L - 1)};
}

// The one-sample recursion over count samples, the transposed direct form:
// y = b0 x + d[0]; d[k] = d[k+1] + b(k+1) x - a(k+1) y for k < N (d[N] = 0),
// the delay line updated a register of taps at a time where it can be.
template <class T, class In, class Out, class Ds, class Dd>
QSP_IIR_INLINE void ownsIIRAROne(const ArTaps<T>& f, T* d, const Ds* src, Dd* dst, int count, const In& in,
                                  const Out& out)
{
    using E = Lanes<T>;
    const int N = f.order;
    const T* b = f.taps;
    const T* a = f.taps + N;  // a[k] = a_k
    for (int i = 0; i < count; ++i) {
        const T x = in.loadOne(src + i);
        const T y = E::sadd(E::smul(b[0], x), d[0]);
        const typename E::Coef cx = E::splat(x), cy = E::splat(y);
        int k = 0;
        for (; k + E::L <= N; k += E::L)
            E::store(d + k, E::sub(E::add(E::load(d + k + 1), E::mul(E::load(b + k + 1), cx)),
                                   E::mul(E::load(a + k + 1), cy)));
        for (; k < N; ++k) d[k] = E::ssub(E::sadd(d[k + 1], E::smul(b[k + 1], x)), E::smul(a[k + 1], y));
        out.storeOne(dst + i, y);
    }
}

// Feed-forward sums s[n] = b0 x[n] + ... + bN x[n-N] for n in [from, to),
// G registers side by side so that the adds of different registers overlap.
template <class T, int G>
QSP_IIR_INLINE int feedForward(const ArTaps<T>& f, const T* x, T* s, int n, int to)
{
    using E = Lanes<T>;
    using Reg = typename E::Reg;
    constexpr int L = E::L;
    for (; n + G * L <= to; n += G * L) {
        Reg acc[G];
        staticFor<G>([&](auto g) { acc[g] = E::mul(E::load(x + n + g * L), f.ff[0]); });
        for (int k = 1; k <= f.order; ++k)
            staticFor<G>([&](auto g) { acc[g] = E::add(acc[g], E::mul(E::load(x + n + g * L - k), f.ff[k])); });
        staticFor<G>([&](auto g) { E::store(s + n + g * L, acc[g]); });
    }
    return n;
}

// The last L elements ending before index n of y, with zeros for indices
// below 0 (never used by a term, but kept defined).
template <class T>
QSP_IIR_INLINE typename Lanes<T>::Reg lastBefore(const T* y, int n)
{
    using E = Lanes<T>;
    if (n >= E::L) return E::load(y + n - E::L);
    T t[E::L];
    for (int i = 0; i < E::L; ++i) t[i] = n - E::L + i >= 0 ? y[n - E::L + i] : E::szero();
    return E::load(t);
}

// The recursive pass: y[n] = s[n] - a1 y[n-1] - ... - aN y[n-N] for n in
// [N, B), y[0..N-1] known. Per register of L outputs: the far taps (k >= L)
// from earlier registers (the last two kept in registers, older ones
// loaded), then the nearest ones solved by the lookahead.
template <class T>
void ownsIIRyAR(const ArTaps<T>& f, const T* s, T* y, int B)
{
    using E = Lanes<T>;
    using Reg = typename E::Reg;
    constexpr int L = E::L;
    const int N = f.order;
    int n = N;
    Reg y1 = lastBefore(y, n), y2 = lastBefore(y, n - L);
    for (; n + L <= B; n += L) {
        Reg acc = E::load(s + n);
        int k = N;
        if (k >= 2 * L + 3) {
            // Four chains of adds, so that long filters wait for the add
            // latency once per four taps rather than once per tap.
            Reg acc1 = E::zero(), acc2 = E::zero(), acc3 = E::zero();
            for (; k >= 2 * L + 3; k -= 4) {
                acc = E::sub(acc, E::mul(E::load(y + n - k), f.fb[k - 1]));
                acc1 = E::sub(acc1, E::mul(E::load(y + n - k + 1), f.fb[k - 2]));
                acc2 = E::sub(acc2, E::mul(E::load(y + n - k + 2), f.fb[k - 3]));
                acc3 = E::sub(acc3, E::mul(E::load(y + n - k + 3), f.fb[k - 4]));
            }
            acc = E::add(E::add(acc, acc1), E::add(acc2, acc3));
        }
        for (; k >= 2 * L; --k) acc = E::sub(acc, E::mul(E::load(y + n - k), f.fb[k - 1]));
        staticFor<L>([&](auto j) {
            constexpr int k = 2 * L - 1 - j;  // L .. 2L-1, farthest first
            if (k <= N) acc = E::sub(acc, E::mul(E::template alignUp<k - L>(y1, y2), f.fb[k - 1]));
        });
        Reg out = applyLookahead<E>(acc, f.g);
        if constexpr (L > 1) {
            Reg near = E::zero();
            staticFor<L - 1>([&](auto i) {
                constexpr int m = i + 1;
                if (m <= N) near = E::add(near, E::mul(E::template broadcast<L - m>(y1), f.p[m - 1]));
            });
            out = E::add(out, near);
        }
        E::store(y + n, out);
        y2 = y1;
        y1 = out;
    }
    for (; n < B; ++n) {
        T acc = s[n];
        for (int k = 1; k <= N; ++k) acc = E::ssub(acc, E::smul(f.taps[N + k], y[n - k]));
        y[n] = acc;
    }
}

// One block of B > 4N samples by the split: feed-forward sums into sums,
// the first N samples by the one-sample recursion, the rest by the
// recursive pass, then the delay line from the block's last N inputs and
// outputs. x and y may be the same array (in place): every input is read
// before the output at its index is written.
template <class T>
void ownsIIRARSplit(const ArTaps<T>& f, T* d, T* sums, const T* x, T* y, int B)
{
    using E = Lanes<T>;
    const int N = f.order;
    const T* b = f.taps;
    const T* a = f.taps + N;
    int n = feedForward<T, 4>(f, x, sums, N, B);
    n = feedForward<T, 1>(f, x, sums, n, B);
    for (; n < B; ++n) {
        T acc = E::smul(x[n], b[0]);
        for (int k = 1; k <= N; ++k) acc = E::sadd(acc, E::smul(x[n - k], b[k]));
        sums[n] = acc;
    }
    // The input half of the delay line after the block, into sums[0..N-1]
    // (the feed-forward sums start at N): dx[k] = sum over j > k of b_j
    // x[B-1+k+1-j].
    for (int k = 0; k < N; ++k) {
        T acc = E::szero();
        for (int j = k + 1; j <= N; ++j) acc = E::sadd(acc, E::smul(b[j], x[B + k - j]));
        sums[k] = acc;
    }
    ownsIIRAROne(f, d, x, y, N, PlainIO<T>{}, PlainIO<T>{});
    ownsIIRyAR(f, sums, y, B);
    for (int k = 0; k < N; ++k) {
        T acc = sums[k];
        for (int j = k + 1; j <= N; ++j) acc = E::ssub(acc, E::smul(a[j], y[B + k - j]));
        d[k] = acc;
    }
    d[N] = E::szero();
}

// Filters len samples through an AR filter, block by block.
template <class T, class In, class Out, class Ds, class Dd>
void ownsIIRAR(const ArTaps<T>& f, T* d, T* sums, T* buf, const Ds* src, Dd* dst, int len, const In& in,
               const Out& out)
{
    using E = Lanes<T>;
    constexpr int L = E::L;
    for (int off = 0; off < len; off += kArBlock) {
        const int B = len - off < kArBlock ? len - off : kArBlock;
        if (Qsp64s(B) <= 4 * Qsp64s(f.order)) {
            ownsIIRAROne(f, d, src + off, dst + off, B, in, out);
            continue;
        }
        if constexpr (In::kPlain && Out::kPlain) {
            ownsIIRARSplit(f, d, sums, src + off, dst + off, B);
        } else {
            int i = 0;
            for (; i + L <= B; i += L) E::store(buf + i, in.load(src + off + i));
            if (i < B) E::store(buf + i, loadFirst(in, src + off + i, B - i));
            ownsIIRARSplit(f, d, sums, buf, buf, B);
            for (i = 0; i + L <= B; i += L) out.store(dst + off + i, E::load(buf + i));
            if (i < B) storeFirst(out, dst + off + i, E::load(buf + i), B - i);
        }
    }
}

// ---------------------------------------------------------------------------
// Biquad cascades.

template <class T>
struct BiQuadCoefs {
    using Coef = typename Lanes<T>::Coef;
    Coef b0, b1, b2;
    Coef g[Lanes<T>::L > 1 ? Lanes<T>::L - 1 : 1];  // g_1 .. g_(L-1)
    Coef p1, p2;                                     // responses to y[-1], y[-2]
};

// t = b0, b1, b2, a1, a2 (normalised).
template <class T>
void prepareBiQuad(const T* t, BiQuadCoefs<T>* c)
{
    using E = Lanes<T>;
    c->b0 = E::splat(t[0]);
    c->b1 = E::splat(t[1]);
    c->b2 = E::splat(t[2]);
    const Lookahead<T> la(t + 3, 2);
    for (int i = 1; i < E::L; ++i) c->g[i - 1] = E::splat(la.g[i]);
    if constexpr (E::L == 1) c->g[0] = E::splat(E::szero());
    c->p1 = E::perLane(la.P(1));
    c->p2 = E::perLane(la.P(2));
}

template <class T>
struct BiQuadHistory {
    using Reg = typename Lanes<T>::Reg;
    Reg x1, x2;      // the section's inputs: last register, the one before
    Reg y1, y2;      // its outputs
    Reg inj0, inj1;  // added to the feed-forward part of the first two registers
};

// The input delayed by k samples, for the register x of the current block.
template <class E, int k, class H>
QSP_IIR_INLINE typename E::Reg delayed(typename E::Reg x, const H& h)
{
    if constexpr (k < E::L) return E::template alignUp<k>(x, h.x1);
    else if constexpr (k == E::L) return h.x1;
    else return h.x2;  // L = 1, k = 2
}

// y[-m] in every element.
template <class E, int m, class H>
QSP_IIR_INLINE typename E::Reg pastOutput(const H& h)
{
    if constexpr (m <= E::L) return E::template broadcast<E::L - m>(h.y1);
    else return h.y2;  // L = 1, m = 2
}

// One section over one register: w = b0 x + b1 x[-1] + b2 x[-2] (+ inj,
// the initial state), y = lookahead(w) + P1 y[-1] + P2 y[-2]. KeepOld keeps
// the registers before the last (needed every time when L = 1, else only
// for the state after the last block).
template <class T, bool Inject, bool KeepOld>
QSP_IIR_INLINE typename Lanes<T>::Reg biquadStep(const BiQuadCoefs<T>& c, BiQuadHistory<T>& h,
                                                 typename Lanes<T>::Reg x, typename Lanes<T>::Reg inj)
{
    using E = Lanes<T>;
    using Reg = typename E::Reg;
    Reg w = E::add(E::add(E::mul(x, c.b0), E::mul(delayed<E, 1>(x, h), c.b1)), E::mul(delayed<E, 2>(x, h), c.b2));
    if constexpr (Inject) w = E::add(w, inj);
    const Reg t = applyLookahead<E>(w, c.g);
    const Reg fb = E::add(E::mul(pastOutput<E, 1>(h), c.p1), E::mul(pastOutput<E, 2>(h), c.p2));
    const Reg y = E::add(t, fb);
    if constexpr (KeepOld || E::L == 1) {
        h.x2 = h.x1;
        h.y2 = h.y1;
    }
    h.x1 = x;
    h.y1 = y;
    return y;
}

// The registers of a pass of the biquad kernel between steps: each
// section's history and the input waiting for it (pend[s], produced by
// section s-1 in the step before).
template <class T>
struct BiQuadPass {
    using Reg = typename Lanes<T>::Reg;
    BiQuadHistory<T> h[kMaxPass];
    Reg pend[kMaxPass];
    int count;    // sections
    int nb;       // registers of samples
    int m;        // samples in the last register
    bool inject;  // the initial state enters (first registers of a call)
};

// The general step i of the skewed schedule below: section s filters
// register i - s when there is one, taking the initial state in its first
// registers and keeping the history it needs after its last one.
template <class T>
__attribute__((noinline)) void biquadGeneralStep(const BiQuadCoefs<T>* coefs, BiQuadPass<T>& p, int i,
                                                 const T* src, T* dst)
{
    using E = Lanes<T>;
    using Reg = typename E::Reg;
    constexpr int L = E::L;
    const PlainIO<T> io;
    for (int s = p.count - 1; s >= 0; --s) {
        const int b = i - s;
        if (b < 0 || b >= p.nb) continue;
        const bool lastReg = b == p.nb - 1, part = lastReg && p.m < L;
        Reg x;
        if (s > 0) x = p.pend[s];
        else x = part ? loadFirst(io, src + b * L, p.m) : io.load(src + b * L);
        Reg y;
        if (p.inject && b < 2) {
            const Reg inj = b == 0 ? p.h[s].inj0 : p.h[s].inj1;
            y = lastReg ? biquadStep<T, true, true>(coefs[s], p.h[s], x, inj)
                        : biquadStep<T, true, false>(coefs[s], p.h[s], x, inj);
        } else {
            y = lastReg ? biquadStep<T, false, true>(coefs[s], p.h[s], x, x)
                        : biquadStep<T, false, false>(coefs[s], p.h[s], x, x);
        }
        if (s + 1 < p.count) p.pend[s + 1] = y;
        else if (part) storeFirst(io, dst + b * L, y, p.m);
        else io.store(dst + b * L, y);
    }
}

// K sections over len samples of T (dst may be src), in registers of L
// samples; the last register holds len - L ((len - 1) / L) of them. The
// history of each section comes in and goes out through hist, exactly as
// the registers hold it, so that a call on consecutive pieces whose
// lengths are multiples of L gives the same results as one call on the
// whole; inject says whether the pieces start a filtering call (the
// initial state enters their first registers).
//
// The sections run skewed: in step i, section s filters register i - s,
// whose input section s-1 produced in step i-1. The work of one step is
// then independent from section to section, so the processor overlaps the
// sections instead of waiting for each register to pass through the whole
// cascade. The first and last steps, where sections start, take the
// initial state or finish, go through the general step; the steady steps
// between them keep everything in registers.
template <int K, class T>
void ownsIIRBiQuad(const BiQuadCoefs<T>* coefs, BiQuadHistory<T>* hist, const T* src, T* dst, int len, bool inject)
{
    static_assert(K >= 1 && K <= kMaxPass);
    using E = Lanes<T>;
    using Reg = typename E::Reg;
    constexpr int L = E::L;
    BiQuadPass<T> p;
    p.count = K;
    p.nb = (len - 1) / L + 1;
    p.m = len - (p.nb - 1) * L;
    p.inject = inject;
    for (int s = 0; s < K; ++s) p.h[s] = hist[s];

    // Steady steps: every section past its second register (the initial
    // state is in) and section 0 before the last register.
    const int total = p.nb + K - 1;
    const int steadyFrom = K + 1, steadyTo = p.nb - 1;
    int i = 0;
    for (; i < total && i < steadyFrom; ++i) biquadGeneralStep(coefs, p, i, src, dst);
    if (i < steadyTo) {
        BiQuadHistory<T> h[K];
        Reg pend[K];
        for (int s = 0; s < K; ++s) h[s] = p.h[s], pend[s] = p.pend[s];
        for (; i < steadyTo; ++i) {
            staticFor<K>([&](auto r) {
                constexpr int s = K - 1 - r;
                const Reg x = s > 0 ? pend[s] : E::load(src + i * L);
                const Reg y = biquadStep<T, false, false>(coefs[s], h[s], x, x);
                if constexpr (s + 1 < K) pend[s + 1] = y;
                else E::store(dst + (i - s) * L, y);
            });
        }
        for (int s = 0; s < K; ++s) p.h[s] = h[s], p.pend[s] = pend[s];
    }
    for (; i < total; ++i) biquadGeneralStep(coefs, p, i, src, dst);

    for (int s = 0; s < K; ++s) hist[s] = p.h[s];
}

// Up to kMaxPass sections, their number chosen at run time.
template <class T>
void ownsIIRBiQuadPass(const BiQuadCoefs<T>* coefs, BiQuadHistory<T>* hist, int count, const T* src, T* dst, int len,
                       bool inject)
{
    switch (count) {
    case 1: ownsIIRBiQuad<1>(coefs, hist, src, dst, len, inject); break;
    case 2: ownsIIRBiQuad<2>(coefs, hist, src, dst, len, inject); break;
    case 3: ownsIIRBiQuad<3>(coefs, hist, src, dst, len, inject); break;
    case 4: ownsIIRBiQuad<4>(coefs, hist, src, dst, len, inject); break;
    case 5: ownsIIRBiQuad<5>(coefs, hist, src, dst, len, inject); break;
    case 6: ownsIIRBiQuad<6>(coefs, hist, src, dst, len, inject); break;
    case 7: ownsIIRBiQuad<7>(coefs, hist, src, dst, len, inject); break;
    default: ownsIIRBiQuad<8>(coefs, hist, src, dst, len, inject); break;
    }
}

// A cascade of numBq sections over len samples of D read and written
// through the policies: in pieces of kArBlock samples through buf (a work
// area of kArBlock elements) when the samples are not T or the cascade is
// longer than one pass, each piece through every pass of up to kMaxPass
// sections in turn. hist holds numBq histories.
template <class T, class In, class Out, class Ds, class Dd>
void ownsIIRBiQuadCascade(const BiQuadCoefs<T>* coefs, BiQuadHistory<T>* hist, int numBq, T* buf, const Ds* src,
                          Dd* dst, int len, const In& in, const Out& out)
{
    using E = Lanes<T>;
    constexpr int L = E::L;
    if constexpr (In::kPlain && Out::kPlain) {
        if (numBq <= kMaxPass) {
            ownsIIRBiQuadPass(coefs, hist, numBq, src, dst, len, true);
            return;
        }
    }
    for (int off = 0; off < len; off += kArBlock) {
        const int B = len - off < kArBlock ? len - off : kArBlock;
        const T* from;
        T* to;
        if constexpr (In::kPlain && Out::kPlain) {
            from = src + off;
            to = dst + off;
        } else {
            int i = 0;
            for (; i + L <= B; i += L) E::store(buf + i, in.load(src + off + i));
            if (i < B) E::store(buf + i, loadFirst(in, src + off + i, B - i));
            from = to = buf;
        }
        for (int s0 = 0; s0 < numBq; s0 += kMaxPass) {
            const int count = numBq - s0 < kMaxPass ? numBq - s0 : kMaxPass;
            ownsIIRBiQuadPass(coefs + s0, hist + s0, count, s0 == 0 ? from : to, to, B, off == 0);
        }
        if constexpr (!(In::kPlain && Out::kPlain)) {
            int i = 0;
            for (; i + L <= B; i += L) out.store(dst + off + i, E::load(buf + i));
            if (i < B) storeFirst(out, dst + off + i, E::load(buf + i), B - i);
        }
    }
}

// History of a section in the transposed direct form (s1, s2): no past
// samples, the state added to the first two feed-forward sums.
template <class T>
BiQuadHistory<T> historyFromDF2(T s1, T s2)
{
    using E = Lanes<T>;
    BiQuadHistory<T> h;
    h.x1 = h.x2 = h.y1 = h.y2 = E::zero();
    T t[2 * E::L];
    for (int i = 0; i < 2 * E::L; ++i) t[i] = E::szero();
    t[0] = s1;
    t[1] = s2;
    h.inj0 = E::load(t);
    h.inj1 = E::load(t + E::L);
    return h;
}

// History of a section in direct form 1: x[-1], x[-2], y[-1], y[-2].
template <class T>
BiQuadHistory<T> historyFromDF1(const T* v)
{
    using E = Lanes<T>;
    constexpr int L = E::L;
    BiQuadHistory<T> h;
    T t[2 * L];
    for (int i = 0; i < 2 * L; ++i) t[i] = E::szero();
    t[2 * L - 1] = v[0];
    t[2 * L - 2] = v[1];
    h.x2 = E::load(t);
    h.x1 = E::load(t + L);
    t[2 * L - 1] = v[2];
    t[2 * L - 2] = v[3];
    h.y2 = E::load(t);
    h.y1 = E::load(t + L);
    h.inj0 = h.inj1 = E::zero();
    return h;
}

// The last two inputs and outputs of a section after a call whose last
// register held m samples: v = x[n], x[n-1], y[n], y[n-1].
template <class T>
void lastSamples(const BiQuadHistory<T>& h, int m, T* v)
{
    using E = Lanes<T>;
    constexpr int L = E::L;
    T t[2 * L];
    E::store(t, h.x2);
    E::store(t + L, h.x1);
    v[0] = t[L + m - 1];
    v[1] = t[L + m - 2];
    E::store(t, h.y2);
    E::store(t + L, h.y1);
    v[2] = t[L + m - 1];
    v[3] = t[L + m - 2];
}

// The transposed-direct-form state after a call of len samples from the
// state (s1in, s2in): s1 = b1 x[n] + b2 x[n-1] - a1 y[n] - a2 y[n-1] (plus
// s2in when the call had one sample, whose x[n-1] and y[n-1] were zero in
// the kernel), s2 = b2 x[n] - a2 y[n]. t = b0, b1, b2, a1, a2.
template <class T>
void endDF2(const BiQuadHistory<T>& h, int m, int len, const T* t, T s2in, T* s)
{
    using E = Lanes<T>;
    T v[4];
    lastSamples(h, m, v);
    T s1 = E::ssub(E::ssub(E::sadd(E::smul(t[1], v[0]), E::smul(t[2], v[1])), E::smul(t[3], v[2])),
                   E::smul(t[4], v[3]));
    if (len == 1) s1 = E::sadd(s1, s2in);
    s[0] = s1;
    s[1] = E::ssub(E::smul(t[2], v[0]), E::smul(t[4], v[2]));
}

}  // namespace iir

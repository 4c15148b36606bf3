// SPDX-License-Identifier: BSD-3-Clause
// The straight-line kernels of the small tier (N <= 32) and of orders 6
// and 7: one function per order, with their twiddles as compile-time
// constants.
#pragma once
#include "fft_vectors.h"

namespace fft {

// ---------------------------------------------------------------- small

// The straight-line kernels, orders 0..7, everything in registers (orders
// 6 and 7: two levels, the values between them on the stack) with the
// twiddles as constants; no tables, no buffer. Scaled variants multiply by
// the factor as they store.
//  - Double precision: one complex value per register; the DFT is written
//    out on those values (smallDft).
//  - Single precision, orders 0 and 1: scalar pairs, written out the same way.
//  - Single precision, orders 2..7 (N = 2M): a register holds x[2j] and
//    x[2j+1] as loaded, so the same M-point DFT run on the registers
//    transforms the even samples in the low half and the odd samples in the
//    high half at once. Pairs of results are then regrouped (a_k, a_k+1),
//    (b_k, b_k+1), the odd half twiddled by W_N^k, W_N^(k+1), and
//    X[k] = a + W b, X[k+M] = a - W b written two at a time.

// W_N^k, k < N, as constants: W_32 for the written-out kernels up to 32
// points and the recombination of the straight-line real orders
// (W_N^k = W_32^(32k/N)), W_128 for those of 64 and 128 points.
template <class T, int N>
struct SmallW {
    C<T> w[N];
};

template <class T, int N>
constexpr SmallW<T, N> makeSmallW()
{
    SmallW<T, N> t{};
    for (int k = 0; k < N; ++k) {
        const mathfn::SinCosExt sc = mathfn::sinCosPiExt(-2.0 * k / N);
        t.w[k] = {T(sc.c), T(sc.s)};
    }
    return t;
}

template <class T>
inline constexpr SmallW<T, 32> kSmallW = makeSmallW<T, 32>();
template <class T>
inline constexpr SmallW<T, 128> kWideW = makeSmallW<T, 128>();

// W_N^k for the written-out kernels, N <= 128.
template <class T, int N>
constexpr C<T> smallTwiddle(int k)
{
    if constexpr (N <= 32)
        return kSmallW<T>.w[k * (32 / N)];
    else
        return kWideW<T>.w[k * (128 / N)];
}

// Values of the written-out kernels: scalar pairs, or registers of one
// (double) or two (float) complex values. Every operation acts on each
// complex value of a register alike.
struct CD {
    __m128d v;
};
struct CF2 {
    __m128 v;
};

template <class T>
struct SmallOps {
    using Value = C<T>;
    static Value load(const C<T>* p) { return *p; }
    static void store(C<T>* p, Value v) { *p = v; }
    static Value add(Value a, Value b) { return {a.re + b.re, a.im + b.im}; }
    static Value sub(Value a, Value b) { return {a.re - b.re, a.im - b.im}; }
    static Value scale(Value v, T f) { return {v.re * f, v.im * f}; }
    static Value zero() { return {T(0), T(0)}; }
    static Value conj(Value v) { return {v.re, -v.im}; }
    // (im, re), and the real parts of two values, (a.re, b.re).
    static Value swap(Value v) { return {v.im, v.re}; }
    static Value realParts(Value a, Value b) { return {a.re, b.re}; }
    // The real part alone, and a value at any element address.
    static void storeRe(T* p, Value v) { *p = v.re; }
    static void storeAt(T* p, Value v) { p[0] = v.re, p[1] = v.im; }
    static Value loadAt(const T* p) { return {p[0], p[1]}; }
    static Value pair(T re, T im) { return {re, im}; }
    // -i*v forward, +i*v inverse.
    template <bool Inv>
    static Value rot(Value v) { return Inv ? Value{-v.im, v.re} : Value{v.im, -v.re}; }
    // v * w, or v * conj(w) for the inverse.
    template <bool Inv>
    static Value mulConst(Value v, C<T> w)
    {
        const T wi = Inv ? -w.im : w.im;
        return {v.re * w.re - v.im * wi, v.re * wi + v.im * w.re};
    }
};

// Registers of complex values (V = simd::Vec<double> or <float>).
template <class V, class Wrap, class T>
struct SmallRegOps {
    using Value = Wrap;
    static Value load(const C<T>* p) { return {V::loadu(&p->re)}; }
    static void store(C<T>* p, Value v) { V::storeu(&p->re, v.v); }
    static Value add(Value a, Value b) { return {V::add(a.v, b.v)}; }
    static Value sub(Value a, Value b) { return {V::sub(a.v, b.v)}; }
    static Value scale(Value v, T f) { return {V::mul(v.v, V::splat(f))}; }
    static Value zero() { return {V::zero()}; }
    static Value conj(Value v) { return {V::negOdd(v.v)}; }
    static Value swap(Value v) { return {V::swapParts(v.v)}; }
    static Value realParts(Value a, Value b) { return {V::lowHalves(a.v, b.v)}; }
    static void storeRe(T* p, Value v) { V::storeFirst(p, v.v); }
    static void storeAt(T* p, Value v) { V::storeu(p, v.v); }
    static Value loadAt(const T* p) { return {V::loadu(p)}; }
    static Value pair(T re, T im) { return {V::pair(re, im)}; }
    template <bool Inv>
    static Value rot(Value v)
    {
        return {Inv ? V::negEven(V::swapParts(v.v)) : V::negOdd(V::swapParts(v.v))};
    }
    template <bool Inv>
    static Value mulConst(Value v, C<T> w)
    {
        // (re wr - im wi, im wr + re wi) as addsub(v wr, swap(v) wi)
        return {V::addsub(V::mul(v.v, V::splat(w.re)), V::mul(V::swapParts(v.v), V::splat(Inv ? -w.im : w.im)))};
    }
};

template <>
struct SmallOps<double> : SmallRegOps<simd::Vec<double>, CD, double> {};

// Two single-precision complex values per register.
using SmallOpsPair = SmallRegOps<simd::Vec<float>, CF2, float>;

// v * exp(-+ i pi/4) and v * exp(-+ 3 i pi/4), times sqrt 2: v + rot(v) and
// rot(v) - v, i.e. (re + im, im - re) and (im - re, -re - im) forward.
template <class O, bool Inv>
inline typename O::Value eighth(typename O::Value v)
{
    return O::add(v, O::template rot<Inv>(v));
}
template <class O, bool Inv>
inline typename O::Value threeEighths(typename O::Value v)
{
    return O::sub(O::template rot<Inv>(v), v);
}

// The 4-point butterfly of a..d with its outputs 1, 2, 3 turned by the
// eighth-turn twiddles (1 -+ i)/sqrt 2, -+i and (-1 -+ i)/sqrt 2. With
// amc = a - c and bmd = b - d, output 1 is amc + rot(bmd), and
//   out1 + rot(out1) = (amc - bmd) + rot(amc + bmd),
//   rot(out3) - out3 = rot(amc + bmd) - (amc - bmd),
// so both eighth turns share one rotation.
template <class O, class T, bool Inv>
inline void butterflyEighths(typename O::Value a, typename O::Value b, typename O::Value c, typename O::Value d,
                             typename O::Value* t)
{
    constexpr T h = T(0.707106781186547524400844362104849039L);
    const auto apc = O::add(a, c), amc = O::sub(a, c), bpd = O::add(b, d), bmd = O::sub(b, d);
    const auto q = O::sub(amc, bmd), r = O::template rot<Inv>(O::add(amc, bmd));
    t[0] = O::add(apc, bpd);
    t[1] = O::scale(O::add(q, r), h);
    t[2] = O::template rot<Inv>(O::sub(apc, bpd));
    t[3] = O::scale(O::sub(r, q), h);
}

// The M-point DFT (M = 1..128) of the values in(0..M-1), written out; out(k, v)
// receives output k. Every input is read before the first output is given.
template <class O, class T, bool Inv, int M, class In, class Out>
inline void smallDft(In in, Out out)
{
    using Val = typename O::Value;
    constexpr T h = T(0.707106781186547524400844362104849039L);
    auto scaleH = [](Val v) { return O::scale(v, h); };
    // v W_P^e for P = 32 or 128 and 0 <= e < P, the quarter and eighth
    // turns without a general product (e is a constant once the callers'
    // loops are unrolled).
    auto twiddled = [&](Val v, int e, int period) {
        if (e == 0) return v;
        if (4 * e == period) return O::template rot<Inv>(v);
        if (8 * e == period) return scaleH(eighth<O, Inv>(v));
        if (8 * e == 3 * period) return scaleH(threeEighths<O, Inv>(v));
        return O::template mulConst<Inv>(v, period == 32 ? smallTwiddle<T, 32>(e) : smallTwiddle<T, 128>(e));
    };
    if constexpr (M == 1) {
        out(0, in(0));
    } else if constexpr (M == 2) {
        const Val a = in(0), b = in(1);
        out(0, O::add(a, b));
        out(1, O::sub(a, b));
    } else if constexpr (M == 4) {
        const Val x0 = in(0), x1 = in(1), x2 = in(2), x3 = in(3);
        const Val apc = O::add(x0, x2), amc = O::sub(x0, x2);
        const Val bpd = O::add(x1, x3), jbd = O::template rot<Inv>(O::sub(x1, x3));
        out(0, O::add(apc, bpd));
        out(1, O::add(amc, jbd));
        out(2, O::sub(apc, bpd));
        out(3, O::sub(amc, jbd));
    } else if constexpr (M == 8) {
        // Two 4-point transforms (even and odd samples) and the 8-point
        // twiddles (1 -+ i)/sqrt 2, -+i, (-1 -+ i)/sqrt 2.
        Val e[4], t[4];
        smallDft<O, T, Inv, 4>([&](int p) { return in(2 * p); }, [&](int k, Val v) { e[k] = v; });
        butterflyEighths<O, T, Inv>(in(1), in(3), in(5), in(7), t);
        #pragma GCC unroll 16
        for (int k = 0; k < 4; ++k) {
            out(k, O::add(e[k], t[k]));
            out(k + 4, O::sub(e[k], t[k]));
        }
    } else if constexpr (M >= 64) {
        // A radix-8 level with the twiddles W_M^(kp) as constants, then
        // 8- or 16-point transforms of the columns: two levels of register
        // code where radix-4 levels would need three.
        constexpr int m = M / 8;
        Val y[M];
        #pragma GCC unroll 16
        for (int p = 0; p < m; ++p) {
            smallDft<O, T, Inv, 8>([&](int j) { return in(p + j * m); },
                                   [&](int k, Val v) { y[8 * p + k] = twiddled(v, (k * p * (128 / M)) & 127, 128); });
        }
        // Column k holds y[8p + k], p < m; its output r is X[k + 8r].
        #pragma GCC unroll 16
        for (int k = 0; k < 8; ++k)
            smallDft<O, T, Inv, m>([&](int p) { return y[8 * p + k]; }, [&](int r, Val v) { out(k + 8 * r, v); });
    } else {
        // A radix-4 level with the twiddles W_M^(kp) as constants, then
        // 4- or 8-point transforms of the columns.
        constexpr int m = M / 4;
        Val y[M];
        #pragma GCC unroll 16
        for (int p = 0; p < m; ++p) {
            if (p * (32 / M) == 4) {
                // Twiddles (1 -+ i)/sqrt 2, -+i, (-1 -+ i)/sqrt 2.
                butterflyEighths<O, T, Inv>(in(p), in(p + m), in(p + 2 * m), in(p + 3 * m), y + 4 * p);
                continue;
            }
            smallDft<O, T, Inv, 4>([&](int j) { return in(p + j * m); },
                                   [&](int k, Val v) { y[4 * p + k] = twiddled(v, (k * p * (32 / M)) & 31, 32); });
        }
        // Column k holds y[4p + k], p < m; its output r is X[k + 4r].
        #pragma GCC unroll 16
        for (int k = 0; k < 4; ++k)
            smallDft<O, T, Inv, m>([&](int p) { return y[4 * p + k]; }, [&](int r, Val v) { out(k + 4 * r, v); });
    }
}

// Single precision, N = 2^Order >= 4 points as register pairs: in(p) gives
// x[2p], x[2p+1] (p < N/2), and put(k, v) receives X[k], X[k+1] for every
// even k < N, unscaled. Every input is read before the first put.
template <bool Inv, int Order, class In, class Put>
inline void ownsFftPairsOf(In in, Put put)
{
    using O = SmallOpsPair;
    using Val = O::Value;
    using V = simd::Vec<float>;
    constexpr int n = 1 << Order, m = n / 2;
    Val y[m];
    smallDft<O, float, Inv, m>([&](int p) { return Val{in(p)}; }, [&](int k, Val v) { y[k] = v; });
#pragma GCC unroll 16
    for (int k = 0; k < m; k += 2) {
        // (shufps rather than movlhps/movhlps: it issues on two ports, not one)
        const __m128 a = _mm_shuffle_ps(y[k].v, y[k + 1].v, _MM_SHUFFLE(1, 0, 1, 0));
        const __m128 b = _mm_shuffle_ps(y[k].v, y[k + 1].v, _MM_SHUFFLE(3, 2, 3, 2));
        // b * (W^k, W^(k+1)), conjugated for the inverse
        __m128 wb;
        if constexpr (n == 4) {
            // (1, -+i): the high value turned by a shuffle and a sign, which
            // shortens the path from load to store.
            const __m128 turned = _mm_shuffle_ps(b, b, _MM_SHUFFLE(2, 3, 1, 0));
            wb = V::bitXor(turned, Inv ? _mm_setr_ps(0.0f, 0.0f, -0.0f, 0.0f) : _mm_setr_ps(0.0f, 0.0f, 0.0f, -0.0f));
        } else {
            const C<float> w0 = smallTwiddle<float, n>(k), w1 = smallTwiddle<float, n>(k + 1);
            const float s = Inv ? -1.0f : 1.0f;
            const __m128 wr = _mm_setr_ps(w0.re, w0.re, w1.re, w1.re);
            const __m128 wi = _mm_setr_ps(s * w0.im, s * w0.im, s * w1.im, s * w1.im);
            wb = V::addsub(V::mul(b, wr), V::mul(V::swapParts(b), wi));
        }
        put(k, V::add(a, wb));
        put(k + m, V::sub(a, wb));
    }
}

// The same with the N points loaded from src.
template <bool Inv, int Order, class Put>
inline void ownsFftPairs(const C<float>* src, Put put)
{
    ownsFftPairsOf<Inv, Order>([&](int p) { return SmallOpsPair::load(src + 2 * p).v; }, put);
}

// Everything called here is inlined (flatten), so that every kernel is one
// straight run of register code.
template <class T, bool Inv, int Order, bool Scaled>
__attribute__((flatten)) void ownsFftSmall(const C<T>* src, C<T>* dst, T f)
{
    constexpr int n = 1 << Order;
    if constexpr (sizeof(T) == 8 || Order <= 1) {
        using O = SmallOps<T>;
        using Val = typename O::Value;
        smallDft<O, T, Inv, n>([&](int p) { return O::load(src + p); },
                               [&](int k, Val v) { O::store(dst + k, Scaled ? O::scale(v, f) : v); });
    } else {
        using V = simd::Vec<float>;
        ownsFftPairs<Inv, Order>(src,
                                 [&](int k, __m128 v) { V::storeu(&dst[k].re, Scaled ? V::mul(v, V::splat(f)) : v); });
    }
}

// A kernel returns qspStsOk, so that an entry point can end in a jump to it.
template <class T, bool Inv>
using SmallKernel = QspStatus (*)(const C<T>*, C<T>*, T);

template <class T, bool Inv, int Order, bool Scaled>
__attribute__((flatten)) QspStatus ownsFftSmallEntry(const C<T>* src, C<T>* dst, T f)
{
    ownsFftSmall<T, Inv, Order, Scaled>(src, dst, f);
    return qspStsOk;
}

// The twelve straight-line kernels, at 2 * order + scaled.
template <class T, bool Inv>
inline constexpr SmallKernel<T, Inv> kSmallKernels[12] = {
    ownsFftSmallEntry<T, Inv, 0, false>, ownsFftSmallEntry<T, Inv, 0, true>,
    ownsFftSmallEntry<T, Inv, 1, false>, ownsFftSmallEntry<T, Inv, 1, true>,
    ownsFftSmallEntry<T, Inv, 2, false>, ownsFftSmallEntry<T, Inv, 2, true>,
    ownsFftSmallEntry<T, Inv, 3, false>, ownsFftSmallEntry<T, Inv, 3, true>,
    ownsFftSmallEntry<T, Inv, 4, false>, ownsFftSmallEntry<T, Inv, 4, true>,
    ownsFftSmallEntry<T, Inv, 5, false>, ownsFftSmallEntry<T, Inv, 5, true>,
};

// Orders 6 and 7 also run as straight-line code: the compiler keeps the
// values between the two levels on the stack, which is where a pass would
// put them anyway, and the twiddles stay constants.
inline constexpr int kWideMax = 7;

template <class T, bool Inv>
inline void ownsWide(int order, bool scaled, const C<T>* src, C<T>* dst, T f)
{
    using K = void (*)(const C<T>*, C<T>*, T);
    static constexpr K kernels[4] = {ownsFftSmall<T, Inv, 6, false>, ownsFftSmall<T, Inv, 6, true>,
                                     ownsFftSmall<T, Inv, 7, false>, ownsFftSmall<T, Inv, 7, true>};
    kernels[2 * (order - 6) + int(scaled)](src, dst, f);
}

// A small transform, src to dst (src may equal dst), scaled by f when
// scaled is set.
template <class T, bool Inv>
inline QspStatus ownsSmall(int order, bool scaled, const C<T>* src, C<T>* dst, T f)
{
    return kSmallKernels<T, Inv>[2 * order + int(scaled)](src, dst, f);
}

}  // namespace fft

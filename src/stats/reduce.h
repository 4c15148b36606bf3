// SPDX-License-Identifier: BSD-3-Clause
// The accumulation schemes of the reductions (Sum, Mean, StdDev,
// MeanStdDev, Norm, NormDiff, DotProd) and their integer scaling. The
// order of every floating addition below is part of the result, so each
// kernel states it.
#pragma once
#include "arith/scaling.h"
#include "checks.h"
#include "qspdefs.h"
#include "simd.h"

namespace y8::reduce {

// ---------------------------------------------------------------------------
// Element sources: a vector, or the element-wise difference of two (formed
// in the element type, as a NormDiff of that type forms it). base() is the
// address whose alignment decides where the vector loops start.
// ---------------------------------------------------------------------------

template <class T>
struct Elements {
    const T* p;
    T at(Qsp64s i) const { return p[i]; }
    typename simd::Vec<T>::Reg load(Qsp64s i) const { return simd::Vec<T>::loadu(p + i); }
    const void* base() const { return p; }
};

template <class T>
struct Differences {
    const T* a;
    const T* b;
    // Integer differences are exact (16-bit operands give int).
    auto at(Qsp64s i) const { return a[i] - b[i]; }
    typename simd::Vec<T>::Reg load(Qsp64s i) const
    {
        return simd::Vec<T>::sub(simd::Vec<T>::loadu(a + i), simd::Vec<T>::loadu(b + i));
    }
    const void* base() const { return a; }
};

// What is summed of each element: itself, its magnitude, or its square
// (None: no second sum).
enum class Term { Value, Magnitude, Square, None };

template <Term M, class V>
typename V::Reg term(typename V::Reg r)
{
    if constexpr (M == Term::Magnitude)
        return V::andNot(V::signBit(), r);
    else if constexpr (M == Term::Square)
        return V::mul(r, r);
    else
        return r;
}

template <Term M, class F>
F term(F x)
{
    if constexpr (M == Term::Magnitude && sizeof(F) == 4)
        return __builtin_fabsf(x);
    else if constexpr (M == Term::Magnitude)
        return __builtin_fabs(x);
    else if constexpr (M == Term::Square)
        return x * x;
    else
        return x;
}

// Elements of size `bytes` before the first 16-byte boundary of p, kept a
// multiple of `parts` (the parts of a complex element stay in their lanes);
// none when no whole number of elements reaches a boundary.
inline Qsp64s headToBoundary(const void* p, Qsp64s bytes, Qsp64s parts, Qsp64s count)
{
    const Qsp64u a = reinterpret_cast<Qsp64u>(p);
    if (a % Qsp64u(bytes * parts) != 0) return 0;
    const Qsp64s head = Qsp64s((16 - a % 16) % 16) / bytes;
    return head < count ? head : count;
}

// ---------------------------------------------------------------------------
// 32-bit floats, fast: single-precision lanes, widened block by block.
//
// Elements before the first 16-byte boundary go one by one (widened) into
// the double totals. The rest is cut into blocks of 32768 elements (the
// last may be shorter). In a block four registers (16 single lanes) add
// sixteen elements a step; at the end of the block they are folded
// pairwise, s = (a0 + a1) + (a2 + a3), and the lanes of s are added as
// (s0 + s2) + (s1 + s3) (one part), or s0 + s2 and s1 + s3 (the real and
// imaginary parts of complex elements), in single precision; that block
// value is widened and added to the double total. The block's last
// elements that fill no step go one by one into the double totals. Parts
// P: 1 for real, 2 for interleaved complex. With Square, the squares are
// summed instead, in the same order.
// ---------------------------------------------------------------------------

constexpr Qsp64s kFastBlock = 32768;

// Folds four registers of single lanes as the fast scheme does and adds
// the block value to the double totals.
template <int P>
void foldFastBlock(__m128 a0, __m128 a1, __m128 a2, __m128 a3, double* total)
{
    using V = simd::Vec<float>;
    alignas(16) float s[4];
    V::store(s, V::add(V::add(a0, a1), V::add(a2, a3)));
    if constexpr (P == 1) {
        total[0] += double((s[0] + s[2]) + (s[1] + s[3]));
    } else {
        total[0] += double(s[0] + s[2]);
        total[1] += double(s[1] + s[3]);
    }
}

// With a second term M2, a second sum (of M2 terms, into total2) is formed
// in the same pass, in the same order.
template <int P, Term M, Term M2 = Term::None, class Src>
void ownsSumFast_32f(Src src, Qsp64s count, double* total, double* total2 = nullptr)
{
    using V = simd::Vec<float>;
    constexpr bool two = M2 != Term::None;
    auto one = [&](Qsp64s i) {
        total[i % P] += double(term<M>(src.at(i)));
        if constexpr (two) total2[i % P] += double(term<M2>(src.at(i)));
    };
    Qsp64s i = 0;
    const Qsp64s head = headToBoundary(src.base(), 4, P, count);
    for (; i < head; ++i) one(i);
    while (i < count) {
        const Qsp64s end = count - i < kFastBlock ? count : i + kFastBlock;
        auto a0 = V::zero(), a1 = a0, a2 = a0, a3 = a0;
        auto b0 = V::zero(), b1 = b0, b2 = b0, b3 = b0;
        for (; i + 16 <= end; i += 16) {
            const auto x0 = src.load(i), x1 = src.load(i + 4), x2 = src.load(i + 8), x3 = src.load(i + 12);
            a0 = V::add(a0, term<M, V>(x0));
            a1 = V::add(a1, term<M, V>(x1));
            a2 = V::add(a2, term<M, V>(x2));
            a3 = V::add(a3, term<M, V>(x3));
            if constexpr (two) {
                b0 = V::add(b0, term<M2, V>(x0));
                b1 = V::add(b1, term<M2, V>(x1));
                b2 = V::add(b2, term<M2, V>(x2));
                b3 = V::add(b3, term<M2, V>(x3));
            }
        }
        foldFastBlock<P>(a0, a1, a2, a3, total);
        if constexpr (two) foldFastBlock<P>(b0, b1, b2, b3, total2);
        for (; i < end; ++i) one(i);
    }
}

// ---------------------------------------------------------------------------
// Double lanes: 32-bit floats widened to double (the accurate scheme), or
// doubles as they are.
//
// For one-part 32-bit floats, a first element that is not 8-byte aligned
// is added to the total first. Then eight double lanes (four registers of
// two) add eight elements a step; at the end they are folded as
// t = (a0 + a2) + (a1 + a3) and the total gets t0 + t1 (one part), or t0
// and t1 (real and imaginary parts). The last elements that fill no step
// are added one by one.
// ---------------------------------------------------------------------------

template <class T>
struct Widened;

template <>
struct Widened<float> {
    template <class Src>
    static void load4(const Src& src, Qsp64s i, __m128d& r0, __m128d& r1, __m128d& r2, __m128d& r3)
    {
        using VD = simd::Vec<double>;
        const __m128 f0 = src.load(i), f1 = src.load(i + 4);
        r0 = VD::widenLow(f0), r1 = VD::widenHigh(f0), r2 = VD::widenLow(f1), r3 = VD::widenHigh(f1);
    }
};

template <>
struct Widened<double> {
    template <class Src>
    static void load4(const Src& src, Qsp64s i, __m128d& r0, __m128d& r1, __m128d& r2, __m128d& r3)
    {
        r0 = src.load(i), r1 = src.load(i + 2), r2 = src.load(i + 4), r3 = src.load(i + 6);
    }
};

template <int P>
void foldWide(__m128d a0, __m128d a1, __m128d a2, __m128d a3, double* total)
{
    using VD = simd::Vec<double>;
    alignas(16) double t[2];
    VD::store(t, VD::add(VD::add(a0, a2), VD::add(a1, a3)));
    if constexpr (P == 1) {
        total[0] += t[0] + t[1];
    } else {
        total[0] += t[0];
        total[1] += t[1];
    }
}

// With a second term M2, a second sum (into total2) in the same pass and
// order.
template <int P, Term M, class T, Term M2 = Term::None, class Src>
void ownsSumWide(Src src, Qsp64s count, double* total, double* total2 = nullptr)
{
    using VD = simd::Vec<double>;
    constexpr bool two = M2 != Term::None;
    Qsp64s i = 0;
    if constexpr (P == 1 && sizeof(T) == 4) {
        if (reinterpret_cast<Qsp64u>(src.base()) % 8 == 4) {
            total[0] += term<M>(double(src.at(0)));
            if constexpr (two) total2[0] += term<M2>(double(src.at(0)));
            i = 1;
        }
    }
    const Qsp64s start = i;
    auto a0 = VD::zero(), a1 = a0, a2 = a0, a3 = a0;
    auto b0 = VD::zero(), b1 = b0, b2 = b0, b3 = b0;
    for (; i + 8 <= count; i += 8) {
        __m128d r0, r1, r2, r3;
        Widened<T>::load4(src, i, r0, r1, r2, r3);
        a0 = VD::add(a0, term<M, VD>(r0));
        a1 = VD::add(a1, term<M, VD>(r1));
        a2 = VD::add(a2, term<M, VD>(r2));
        a3 = VD::add(a3, term<M, VD>(r3));
        if constexpr (two) {
            b0 = VD::add(b0, term<M2, VD>(r0));
            b1 = VD::add(b1, term<M2, VD>(r1));
            b2 = VD::add(b2, term<M2, VD>(r2));
            b3 = VD::add(b3, term<M2, VD>(r3));
        }
    }
    foldWide<P>(a0, a1, a2, a3, total);
    if constexpr (two) foldWide<P>(b0, b1, b2, b3, total2);
    for (; i < count; ++i) {
        total[(i - start) % P] += term<M>(double(src.at(i)));
        if constexpr (two) total2[(i - start) % P] += term<M2>(double(src.at(i)));
    }
}

// The sum and the sum of squares of one-part elements in one pass, each in
// the order of ownsSumFast_32f (fast) or ownsSumWide (otherwise).
template <class T, class Src>
void ownsSumAndSquares(Src src, Qsp64s count, bool fast, double& sum, double& squares)
{
    sum = 0;
    squares = 0;
    if constexpr (sizeof(T) == 4) {
        if (fast) {
            ownsSumFast_32f<1, Term::Value, Term::Square>(src, count, &sum, &squares);
            return;
        }
    }
    ownsSumWide<1, Term::Value, T, Term::Square>(src, count, &sum, &squares);
}

// The 32-bit float sum of every hint: 1 the fast scheme, any other value
// the accurate one. The double totals are rounded to single precision, and
// callers (Mean) go on from the rounded values.
template <int P>
void ownqspsSum_32f_L(const Qsp32f* pSrc, Qsp64s count, QspHintAlgorithm hint, Qsp32f* pSum)
{
    double total[P] = {};
    if (hint == qspAlgHintFast)
        ownsSumFast_32f<P, Term::Value>(Elements<float>{pSrc}, count, total);
    else
        ownsSumWide<P, Term::Value, float>(Elements<float>{pSrc}, count, total);
    for (int k = 0; k < P; ++k) pSum[k] = Qsp32f(total[k]);
}

// ---------------------------------------------------------------------------
// Squares of 32-bit floats in single precision, eight lanes (the L2 norm):
// the squares of the elements before the first 16-byte boundary start the
// lanes of the first register (element k in lane k); then two registers
// add eight squares a step; they are added, s = a0 + a1, folded as
// (s0 + s2) + (s1 + s3), and the squares of the last elements that fill no
// step are added one by one, all in single precision.
// ---------------------------------------------------------------------------

template <class Src>
float ownsSumSquares8_32f(Src src, Qsp64s count)
{
    using V = simd::Vec<float>;
    const Qsp64s head = headToBoundary(src.base(), 4, 1, count);
    alignas(16) float first[4] = {0, 0, 0, 0};
    Qsp64s i = 0;
    for (; i < head; ++i) first[i] = src.at(i) * src.at(i);
    auto a0 = V::load(first), a1 = V::zero();
    for (; i + 8 <= count; i += 8) {
        const auto x0 = src.load(i), x1 = src.load(i + 4);
        a0 = V::add(a0, V::mul(x0, x0));
        a1 = V::add(a1, V::mul(x1, x1));
    }
    alignas(16) float s[4];
    V::store(s, V::add(a0, a1));
    float total = (s[0] + s[2]) + (s[1] + s[3]);
    for (; i < count; ++i) total += src.at(i) * src.at(i);
    return total;
}

// ---------------------------------------------------------------------------
// Dot products.
// ---------------------------------------------------------------------------

// 32-bit floats in single precision, six lanes: lanes 0..5 take the
// products of elements 6k..6k+5 for every whole group of six; then the
// lanes are added from lane 0 up, ((((l0 + l1) + l2) + l3) + l4) + l5, and
// the 0 to 5 remaining products are added one by one.
inline Qsp32f ownsDotProd6_32f(const Qsp32f* a, const Qsp32f* b, Qsp64s len)
{
    using V = simd::Vec<float>;
    auto lo = V::zero(), hi = V::zero();  // lanes 0..3; lanes 4, 5 in the low half
    const Qsp64s whole = len / 6 * 6;
    Qsp64s i = 0;
    for (; i < whole; i += 6) {
        lo = V::add(lo, V::mul(V::loadu(a + i), V::loadu(b + i)));
        hi = V::add(hi, V::mul(V::loadPair(a + i + 4), V::loadPair(b + i + 4)));
    }
    alignas(16) float l[4], h[4];
    V::store(l, lo);
    V::store(h, hi);
    float total = ((((l[0] + l[1]) + l[2]) + l[3]) + h[0]) + h[1];
    for (; i < len; ++i) total += a[i] * b[i];
    return total;
}

// Real vectors in eight double lanes (32-bit floats widened, so every
// product is exact before it is added), folded as ownsSumWide folds.
template <class T>
double ownsDotWide(const T* a, const T* b, Qsp64s len)
{
    using VD = simd::Vec<double>;
    auto a0 = VD::zero(), a1 = a0, a2 = a0, a3 = a0;
    Qsp64s i = 0;
    for (; i + 8 <= len; i += 8) {
        __m128d x0, x1, x2, x3, y0, y1, y2, y3;
        Widened<T>::load4(Elements<T>{a}, i, x0, x1, x2, x3);
        Widened<T>::load4(Elements<T>{b}, i, y0, y1, y2, y3);
        a0 = VD::add(a0, VD::mul(x0, y0));
        a1 = VD::add(a1, VD::mul(x1, y1));
        a2 = VD::add(a2, VD::mul(x2, y2));
        a3 = VD::add(a3, VD::mul(x3, y3));
    }
    alignas(16) double t[2];
    VD::store(t, VD::add(VD::add(a0, a2), VD::add(a1, a3)));
    double total = t[0] + t[1];
    for (; i < len; ++i) total += double(a[i]) * double(b[i]);
    return total;
}

// Complex results in double, from element k of each source as a register
// of (real, imaginary) parts, widened when single precision. A complex
// second factor b = (br, bi) is multiplied without conjugation: two
// accumulators gather (ar br, ai br) and (ai bi, ar bi), and the result is
// their difference in the real lane and their sum in the imaginary lane. A
// real first factor x gives (x br, x bi).
template <class T>
__m128d complexAt(const T* parts, Qsp64s k)
{
    if constexpr (sizeof(T) == 4)
        return simd::Vec<double>::widenLow(simd::Vec<float>::loadPair(parts + 2 * k));
    else
        return simd::Vec<double>::loadu(parts + 2 * k);
}

template <class T>
__m128d realAt(const T* p, Qsp64s k)
{
    return simd::Vec<double>::splat(double(p[k]));
}

template <bool RealFirst, class TA, class TB>
void ownsDotComplex(const TA* a, const TB* bParts, Qsp64s len, double& re, double& im)
{
    using VD = simd::Vec<double>;
    auto p = VD::zero(), q = VD::zero();
    for (Qsp64s k = 0; k < len; ++k) {
        const __m128d b = complexAt(bParts, k);
        if constexpr (RealFirst) {
            p = VD::add(p, VD::mul(realAt(a, k), b));
        } else {
            const __m128d x = complexAt(a, k);
            p = VD::add(p, VD::mul(x, VD::dupRe(b)));
            q = VD::add(q, VD::mul(VD::swapParts(x), VD::dupIm(b)));
        }
    }
    alignas(16) double pp[2], qq[2];
    VD::store(pp, p);
    VD::store(qq, q);
    re = RealFirst ? pp[0] : pp[0] - qq[0];
    im = RealFirst ? pp[1] : pp[1] + qq[1];
}

// Exact integer dot products, in 64 bits (16-bit by 16-bit) or 128 bits.
template <class W, class TA, class TB>
W ownsDotExact(const TA* a, const TB* b, Qsp64s len)
{
    W total = 0;
    for (Qsp64s i = 0; i < len; ++i) total += W(Qsp64s(a[i]) * Qsp64s(b[i]));
    return total;
}

// ---------------------------------------------------------------------------
// Largest magnitude of floating elements, with the step of the value
// search (current = current > x ? current : x, lane by lane, so a NaN
// element replaces the current value): four registers side by side, folded
// at the end, the last elements one by one.
// ---------------------------------------------------------------------------

template <class T, class Src>
T ownsMaxMagnitude(Src src, Qsp64s count)
{
    using V = simd::Vec<T>;
    constexpr Qsp64s L = V::lanes;
    T current = term<Term::Magnitude>(T(src.at(0)));
    Qsp64s i = 0;
    if (count >= 4 * L) {
        auto a0 = V::splat(current), a1 = a0, a2 = a0, a3 = a0;
        for (; i + 4 * L <= count; i += 4 * L) {
            a0 = V::max(a0, term<Term::Magnitude, V>(src.load(i)));
            a1 = V::max(a1, term<Term::Magnitude, V>(src.load(i + L)));
            a2 = V::max(a2, term<Term::Magnitude, V>(src.load(i + 2 * L)));
            a3 = V::max(a3, term<Term::Magnitude, V>(src.load(i + 3 * L)));
        }
        alignas(16) T lane[L];
        V::store(lane, V::max(V::max(a0, a1), V::max(a2, a3)));
        current = lane[0];
        for (Qsp64s j = 1; j < L; ++j) current = current > lane[j] ? current : lane[j];
    }
    for (; i < count; ++i) {
        const T x = term<Term::Magnitude>(T(src.at(i)));
        current = current > x ? current : x;
    }
    return current;
}

// Complex magnitudes of the element pairs (part 2k real, 2k + 1 imaginary),
// in double: their sum, or the largest (by the step above, on the squared
// magnitudes, rooted once).
template <class Src>
double ownsSumComplexMagnitudes(Src src, Qsp64s len)
{
    double total = 0;
    for (Qsp64s k = 0; k < len; ++k) {
        const double re = src.at(2 * k), im = src.at(2 * k + 1);
        total += simd::sqrtOne(re * re + im * im);
    }
    return total;
}

template <class Src>
double ownsMaxComplexMagnitude(Src src, Qsp64s len)
{
    double current = -1;
    for (Qsp64s k = 0; k < len; ++k) {
        const double re = src.at(2 * k), im = src.at(2 * k + 1);
        const double m = re * re + im * im;
        current = k == 0 ? m : (current > m ? current : m);
    }
    return simd::sqrtOne(current);
}

// ---------------------------------------------------------------------------
// Exact integer sums (16-bit sources: at most 2^31 elements, so sums of
// values, magnitudes and squares, and sums of products of two 16-bit
// values, fit 64 bits; wider products are summed in 128 bits).
// ---------------------------------------------------------------------------

template <Term M, class Src>
Qsp64s ownsSumExact(Src src, Qsp64s count)
{
    Qsp64s total = 0;
    for (Qsp64s i = 0; i < count; ++i) {
        const Qsp64s x = src.at(i);
        total += M == Term::Square ? x * x : (M == Term::Magnitude ? (x < 0 ? -x : x) : x);
    }
    return total;
}

// Parts of complex 16-bit elements: real and imaginary sums.
inline void ownsSumExact2(const Qsp16s* p, Qsp64s len, Qsp64s& re, Qsp64s& im)
{
    Qsp64s r = 0, m = 0;
    for (Qsp64s k = 0; k < len; ++k) {
        r += p[2 * k];
        m += p[2 * k + 1];
    }
    re = r;
    im = m;
}

// The largest magnitude of integer elements (16-bit differences reach
// 65535).
template <class Src>
Qsp64s ownsMaxMagnitudeExact(Src src, Qsp64s count)
{
    Qsp64s current = 0;
    for (Qsp64s i = 0; i < count; ++i) {
        const Qsp64s x = src.at(i);
        const Qsp64s m = x < 0 ? -x : x;
        current = m > current ? m : current;
    }
    return current;
}

// ---------------------------------------------------------------------------
// Standard deviation (sample form): sqrt((len Q - S^2) / (len (len - 1))),
// a negative numerator (cancellation) taken as 0.
// ---------------------------------------------------------------------------

// Their checks: the pointers, then a length below 2 (one element has no
// sample deviation).
template <class... P>
QspStatus checkStdDev(int len, const P*... p)
{
    if (QspStatus s = check::pointers(p...)) return s;
    return len < 2 ? qspStsBadSize : qspStsOk;
}

inline double sampleStdDev(double sum, double squares, Qsp64s len)
{
    double numerator = double(len) * squares - sum * sum;
    if (numerator < 0) numerator = 0;
    return simd::sqrtOne(numerator / (double(len) * double(len - 1)));
}

// From exact integer sums: the numerator is exact and never negative.
inline double sampleStdDevExact(Qsp64s sum, Qsp64s squares, Qsp64s len)
{
    const __int128 numerator = __int128(len) * squares - __int128(sum) * sum;
    return simd::sqrtOne(double(numerator) / (double(len) * double(len - 1)));
}

// ---------------------------------------------------------------------------
// Integer scaling of reductions
// ---------------------------------------------------------------------------

// 2^-scaleFactor as a double whose exponent field is 1023 - scaleFactor
// clamped to 0..2047: from 1075 on the factor is 0, from -1024 down it is
// infinity.
inline double factorOf(int scaleFactor)
{
    Qsp64s e = 1023 - Qsp64s(scaleFactor);
    e = e < 0 ? 0 : (e > 2047 ? 2047 : e);
    const Qsp64u bits = Qsp64u(e) << 52;
    double f;
    __builtin_memcpy(&f, &bits, 8);
    return f;
}

// The double scheme of the 16-bit sums and means: v times the factor,
// clamped to the range of D and converted under the current rounding mode
// (ties to even by default). A zero v stays 0 for every factor (0 times an
// infinite factor would have no value).
template <class D>
D scaleByFactor(double v, int scaleFactor)
{
    if (v == 0) return D(0);
    double x = v * factorOf(scaleFactor);
    constexpr double hi = double(std::numeric_limits<D>::max()), lo = double(std::numeric_limits<D>::min());
    x = x > hi ? hi : (x < lo ? lo : x);
    return D(simd::toInt32Current(x));
}

// A real result v (a root of an exact sum) scaled by 2^-scaleFactor, rounded
// to nearest with ties to even and saturated to D.
template <class D>
D roundScaled(double v, int scaleFactor)
{
    if (v == 0) return D(0);
    double x = simd::roundEven(v * factorOf(scaleFactor));
    constexpr double hi = double(std::numeric_limits<D>::max()), lo = double(std::numeric_limits<D>::min());
    if (x >= hi) return std::numeric_limits<D>::max();
    if (x <= lo) return std::numeric_limits<D>::min();
    return D(x);
}

// An exact integer result v scaled by the rule of every Sfs function
// (round to nearest, ties to even; saturate), for results wider than 64
// bits too: a scale factor above 62 first drops the low bits of v, keeping
// a sticky bit, which leaves the rounding at the higher position as it was.
template <class D, class W, class ZeroFill>
QspStatus scaleExact(W v, int scaleFactor, scaling::Limits limits, D* pOut, ZeroFill zeroFill)
{
    if (scaleFactor > 62 && scaleFactor < limits.zerosFrom) {
        const int k = scaleFactor - 62;
        const W dropped = v & ((W(1) << k) - 1);
        v = (v >> k) | W(dropped != 0);
        scaleFactor = 62;
    }
    return scaling::select(
        scaleFactor, limits,
        [&](auto mode) {
            *pOut = mode.template apply<D>(v);
            return qspStsOk;
        },
        zeroFill);
}

}  // namespace y8::reduce

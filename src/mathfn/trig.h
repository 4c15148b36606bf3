// SPDX-License-Identifier: BSD-3-Clause
// Sine and cosine of a double in radians, within 1 ULP for every finite
// double.
//
// Interface (stable: windows, generators and filter design call these):
//
//   double    qspsSinOne(double x)       sin x
//   double    qspsCosOne(double x)       cos x
//   SinCosOne qspsSinCosOne(double x)    {sin x, cos x}: one argument
//                                        reduction for both
//   void      qspsSin_64f_A53(const double* pSrc, double* pDst, int len)
//   void      qspsCos_64f_A53(const double* pSrc, double* pDst, int len)
//             the vector forms: pDst[i] = qspsSinOne(pSrc[i]) (or
//             qspsCosOne) bit for bit, two lanes at a time; pDst may be
//             pSrc; len <= 0 does nothing.
//
// The one-element functions are constexpr; none needs a library call.
// Special values: sin x = x for |x| < 2^-27 (so sin(+-0) = +-0), cos x = 1
// there; an infinite x gives the default NaN (bit pattern
// 0xFFF8000000000000), a NaN x itself, made quiet. Results assume the
// default floating-point modes (round to nearest, no flush-to-zero). No
// state: any thread may call them at any time.
//
// Method. x = k pi/2 + r, |r| <= pi/4 (a hair more where x 2/pi rounds
// toward the other integer), r carried as hi + lo:
//  - 2^-27 <= |x| < 2^20: k = x 2/pi rounded to an integer; pi/2 is held
//    as four doubles, the first three of 33 bits so that k times each is
//    exact, and the subtractions are carried in double-double arithmetic:
//    r is within 2^-130 of x - k pi/2.
//  - |x| >= 2^20, or where that leaves |r| < 2^-70 (no double below 2^20
//    comes that close to a multiple of pi/2, but the check costs nothing):
//    x 2/pi mod 4 in integer arithmetic, from the 192 bits of 2/pi that
//    matter for x's exponent times x's 53-bit mantissa: the quadrant and a
//    fraction of 190 bits, of which at least 128 follow the leading one
//    (no double comes closer to a multiple of pi/2 than 2^-62 of a quarter
//    turn), then r = fraction pi/2 in double-double.
// Then sin r and cos r by their Taylor series to r^17 and r^18 (the first
// omitted terms are below 2^-62 of the result for |r| <= pi/4), the
// leading terms formed with their rounding errors kept: r^2 and r^3
// exactly, 1 - r^2/2 and r - r^3/6 as value plus error, so that only the
// final addition rounds by up to half an ULP and everything before it adds
// less than a tenth: 0.59 ULP measured (MPFR, 10^7 arguments over every
// binade).
#pragma once
#include "arith/rounding.h"
#include "basic.h"
#include "double_double.h"
#include "lanes.h"

namespace mathfn {

struct SinCosOne {
    double sin, cos;
};

namespace trig {

// pi/2 as the sum of four doubles; the first three hold 33 bits each, so
// that their products with an integer below 2^20 are exact.
constexpr double kPio2Part1 = 0x1.921fb54400000p+0;
constexpr double kPio2Part2 = 0x1.0b4611a600000p-34;
constexpr double kPio2Part3 = 0x1.3198a2e000000p-69;
constexpr double kPio2Part4 = 0x1.b839a252049c1p-104;
// 2/pi rounded; pi/2 to 107 bits as value plus correction.
constexpr double kTwoOverPi = 0x1.45f306dc9c883p-1;
constexpr Pair<double> kPio2 = {0x1.921fb54442d18p+0, 0x1.1a62633145c07p-54};

// The bits of 2/pi after the binary point, most significant first, behind
// one word of zeros (so that a window may start before the binary point):
// bit t of the table, counted from the top of word 0, is the bit of weight
// 2^-(t-63). 1216 bits: enough for the largest exponent.
constexpr Qsp64u kTwoOverPiBits[20] = {
    0x0000000000000000ull, 0xa2f9836e4e441529ull, 0xfc2757d1f534ddc0ull, 0xdb6295993c439041ull,
    0xfe5163abdebbc561ull, 0xb7246e3a424dd2e0ull, 0x06492eea09d1921cull, 0xfe1deb1cb129a73eull,
    0xe88235f52ebb4484ull, 0xe99c7026b45f7e41ull, 0x3991d639835339f4ull, 0x9c845f8bbdf9283bull,
    0x1ff897ffde05980full, 0xef2f118b5a0a6d1full, 0x6d367ecf27cb09b7ull, 0x4f463f669e5fea2dull,
    0x7527bac7ebe5f17bull, 0x3d0739f78a5292eaull, 0x6bfb5fb11f8d5d08ull, 0x56033046fc7b6babull,
};

// Taylor coefficients: (-1)^k / (2k+1)! for k = 1..8 (sine, r^3..r^17) and
// (-1)^k / (2k)! for k = 2..9 (cosine, r^4..r^18). Every factorial here is
// exact in double, so each coefficient is the quotient correctly rounded.
constexpr double kSinCoef[8] = {-1.0 / 6,          1.0 / 120,          -1.0 / 5040,
                                1.0 / 362880,      -1.0 / 39916800,    1.0 / 6227020800,
                                -1.0 / 1307674368000, 1.0 / 355687428096000};
constexpr double kCosCoef[8] = {1.0 / 24,           -1.0 / 720,          1.0 / 40320,
                                -1.0 / 3628800,     1.0 / 479001600,     -1.0 / 87178291200,
                                1.0 / 20922789888000, -1.0 / 6402373705728000};

constexpr double kMedium = 0x1p20;    // the medium reduction below this
constexpr double kTiny = 0x1p-27;     // sin x = x and cos x = 1 below this
constexpr double kCloseToAxis = 0x1p-70;  // a smaller medium r is redone

// The medium reduction: r = x - k pi/2 as hi + lo, and x 2/pi + 1.5 2^52,
// whose low two bits are k mod 4. For |x| < 2^20.
template <class R>
struct Medium {
    Pair<R> r;
    R shifted;
};

template <class R>
constexpr Medium<R> reduceMedium(R x)
{
    const R shifted = x * R(kTwoOverPi) + R(kRoundShift);
    const R k = shifted - R(kRoundShift);
    const R a = x - k * R(kPio2Part1);  // exact: k pi/2 lies within a factor 2 of x
    const Pair<R> s1 = twoSum(a, -(k * R(kPio2Part2)));
    const Pair<R> s2 = twoSum(s1.hi, -(k * R(kPio2Part3)));
    const R lo = (s1.lo + s2.lo) - k * R(kPio2Part4);
    return {fastTwoSum(s2.hi, lo), shifted};
}

// sin(hi + lo) and cos(hi + lo) for |hi + lo| <= pi/4 and z = hi^2
// (exactly, as value plus error). The correction lo enters through
// sin(hi + lo) = sin hi + lo cos hi and cos(hi + lo) = cos hi - lo sin hi,
// with cos hi and sin hi to their first two terms (lo is below 2^-53 hi).
template <class R>
constexpr R sinKernel(Pair<R> r, Pair<R> z)
{
    // r + s3 r^3 + r^5 (s5 + s7 r^2 + ...): r^3 = r.hi z.hi exactly, its
    // product with s3 rounded once and added to r.hi with its rounding
    // error kept, so that the largest correction costs no more than a
    // sixteenth of an ULP.
    R q = R(kSinCoef[7]);
    for (int i = 6; i >= 1; --i) q = q * z.hi + R(kSinCoef[i]);
    const Pair<R> cube = twoProd(r.hi, z.hi);
    const Pair<R> head = fastTwoSum(r.hi, R(kSinCoef[0]) * cube.hi);
    const R low = (r.lo - R(0.5) * z.hi * r.lo) + R(kSinCoef[0]) * (cube.lo + r.hi * z.lo);
    return head.hi + (head.lo + ((cube.hi * z.hi) * q + low));
}

template <class R>
constexpr R cosKernel(Pair<R> r, Pair<R> z)
{
    R p = R(kCosCoef[7]);
    for (int i = 6; i >= 0; --i) p = p * z.hi + R(kCosCoef[i]);
    // 1 - z/2 = w + e exactly: halving is exact, 1 - w is exact (w lies
    // in [1/2, 1]) and so is its difference from the half.
    const R half = R(0.5) * z.hi;
    const R w = R(1.0) - half;
    const R e = (R(1.0) - w) - half;
    const R sinLo = r.hi * r.lo * (R(1.0) - z.hi * R(1.0 / 6));
    return w + (((e - R(0.5) * z.lo) + (z.hi * z.hi) * p) - sinLo);
}

// The reduced argument of one double with its quadrant (k mod 4).
struct ReducedOne {
    Pair<double> r;
    int quadrant;
};

// Reduction of any finite x of at least 2^-10 in magnitude by 2/pi in
// integer arithmetic.
using U128 = unsigned __int128;

constexpr ReducedOne reduceLarge(double x)
{
    const Qsp64u bits = bitsOf(x);
    const int e = int((bits >> 52) & 0x7FF) - 1075;  // |x| = m 2^e
    const Qsp64u m = (bits & kMantissaMask) | (Qsp64u(1) << 52);
    // The window of 192 bits starts at the bit of weight 2^-(e-1): the
    // earlier bits times m 2^e are multiples of 4. Its index in the table
    // is (e - 1) + 63.
    const int first = e + 62;
    const int q = first >> 6, s = first & 63;
    auto word = [&](int j) {
        return s == 0 ? kTwoOverPiBits[q + j] : (kTwoOverPiBits[q + j] << s) | (kTwoOverPiBits[q + j + 1] >> (64 - s));
    };
    const Qsp64u w0 = word(0), w1 = word(1), w2 = word(2);
    // m (w0 w1 w2) 2^-190 mod 4, as three words of 64 bits: the integer
    // part in the top two bits, the fraction in the other 190.
    const U128 p2 = U128(m) * w2, p1 = U128(m) * w1;
    Qsp64u f0 = Qsp64u(p2);
    const U128 mid = (p2 >> 64) + Qsp64u(p1);
    Qsp64u f1 = Qsp64u(mid);
    const Qsp64u top = Qsp64u(mid >> 64) + Qsp64u(p1 >> 64) + m * w0;  // mod 2^64
    constexpr Qsp64u kLow62 = (Qsp64u(1) << 62) - 1;
    int quadrant = int(top >> 62);
    Qsp64u f2 = top & kLow62;
    // A fraction of one half or more is the next quadrant minus 1 - fraction.
    const bool negative = (f2 >> 61) != 0;
    if (negative) {
        quadrant = (quadrant + 1) & 3;
        f0 = ~f0 + 1;
        f1 = ~f1 + (f0 == 0 ? 1 : 0);
        f2 = ((~f2 & kLow62) + (f0 == 0 && f1 == 0 ? 1 : 0)) & kLow62;
    }
    // The leading 128 bits of the fraction from its first one.
    U128 h = (U128(f2) << 66) | (U128(f1) << 2) | (f0 >> 62);
    const U128 rest = U128(f0 & kLow62) << 66;
    Pair<double> r = {0.0, 0.0};
    if (h != 0) {
        const Qsp64u hTop = Qsp64u(h >> 64);
        const int lz = hTop != 0 ? __builtin_clzll(hTop) : 64 + __builtin_clzll(Qsp64u(h));
        if (lz > 0) h = (h << lz) | (rest >> (128 - lz));
        // fraction = h 2^-(128 + lz) = a 2^-(53 + lz) + b 2^-(128 + lz).
        const Qsp64u hi64 = Qsp64u(h >> 64), lo64 = Qsp64u(h);
        const double a = double(hi64 >> 11);
        const double b = double(hi64 & 0x7FF) * 0x1p64 + double(lo64);
        const double fHi = a * rounding::pow2(-53 - lz), fLo = b * rounding::pow2(-128 - lz);
        const Pair<double> p = twoProd(fHi, kPio2.hi);
        r = fastTwoSum(p.hi, p.lo + (fHi * kPio2.lo + fLo * kPio2.hi));
    }
    if (negative != (x < 0)) r = {-r.hi, -r.lo};
    if (x < 0) quadrant = (4 - quadrant) & 3;
    return {r, quadrant};
}

// Any finite x with |x| >= 2^-27.
constexpr ReducedOne reduceOne(double x)
{
    if (qspsFabsOne(x) < kMedium) {
        const Medium<double> m = reduceMedium(x);
        if (qspsFabsOne(m.r.hi) >= kCloseToAxis) return {m.r, int(bitsOf(m.shifted) & 3)};
    }
    return reduceLarge(x);
}

// sin and cos from the reduced argument: quadrant 1 turns sin into cos and
// cos into -sin, quadrant 2 negates both.
constexpr SinCosOne fromQuadrant(double s, double c, int quadrant)
{
    switch (quadrant) {
    case 0: return {s, c};
    case 1: return {c, -s};
    case 2: return {-s, -c};
    default: return {-c, s};
    }
}

}  // namespace trig

constexpr SinCosOne qspsSinCosOne(double x)
{
    const double ax = qspsFabsOne(x);
    if (ax < trig::kTiny) return {x, 1.0};
    if (!(ax <= kLargestDouble)) return {x - x, x - x};  // infinity: inf - inf is the default NaN
    const trig::ReducedOne red = trig::reduceOne(x);
    const Pair<double> z = twoSquare(red.r.hi);
    return trig::fromQuadrant(trig::sinKernel(red.r, z), trig::cosKernel(red.r, z), red.quadrant);
}

constexpr double qspsSinOne(double x)
{
    const double ax = qspsFabsOne(x);
    if (ax < trig::kTiny) return x;
    if (!(ax <= kLargestDouble)) return x - x;
    const trig::ReducedOne red = trig::reduceOne(x);
    const Pair<double> z = twoSquare(red.r.hi);
    const double v = (red.quadrant & 1) ? trig::cosKernel(red.r, z) : trig::sinKernel(red.r, z);
    return (red.quadrant & 2) ? -v : v;
}

constexpr double qspsCosOne(double x)
{
    const double ax = qspsFabsOne(x);
    if (ax < trig::kTiny) return 1.0;
    if (!(ax <= kLargestDouble)) return x - x;
    const trig::ReducedOne red = trig::reduceOne(x);
    const Pair<double> z = twoSquare(red.r.hi);
    const double v = (red.quadrant & 1) ? trig::sinKernel(red.r, z) : trig::cosKernel(red.r, z);
    return ((red.quadrant + 1) & 2) ? -v : v;
}

namespace trig {

// Two lanes at a time while both lie in the medium range and reduce to
// more than 2^-70; any other pair goes through the one-element function.
// Both kernels run on both lanes; the quadrant's low bit chooses between
// them and its next bit (for the cosine, of the quadrant plus one) the
// sign, as in the one-element functions.
template <bool Cosine>
inline void sinCosLanes(const double* pSrc, double* pDst, int len)
{
    using V = simd::Vec<double>;
    using B = simd::Vec<Qsp64u>;
    const V::Reg tiny = V::splat(kTiny), medium = V::splat(kMedium), close = V::splat(kCloseToAxis);
    auto one = [](double x) { return Cosine ? qspsCosOne(x) : qspsSinOne(x); };
    int i = 0;
    for (; i + 2 <= len; i += 2) {
        const Lanes2 x = V::loadu(pSrc + i);
        const V::Reg ax = V::andNot(V::signBit(), x.v);
        if (V::anyMask(V::bitAnd(V::cmpge(ax, tiny), V::cmplt(ax, medium))) == 3) {
            const Medium<Lanes2> m = reduceMedium(x);
            if (V::anyMask(V::cmplt(V::andNot(V::signBit(), m.r.hi.v), close)) == 0) {
                const Pair<Lanes2> z = twoSquare(m.r.hi);
                const Lanes2 s = sinKernel(m.r, z), c = cosKernel(m.r, z);
                const B::Reg k = V::bits(m.shifted.v);
                const V::Reg swap = V::ofBits(B::shiftLeft<63>(k));
                const B::Reg sign = Cosine ? B::add(k, B::splat(1)) : k;
                const V::Reg flip = V::bitAnd(V::ofBits(B::shiftLeft<62>(sign)), V::signBit());
                const V::Reg v = Cosine ? V::select(swap, c.v, s.v) : V::select(swap, s.v, c.v);
                V::storeu(pDst + i, V::bitXor(v, flip));
                continue;
            }
        }
        const double x0 = pSrc[i], x1 = pSrc[i + 1];
        pDst[i] = one(x0);
        pDst[i + 1] = one(x1);
    }
    if (i < len) pDst[i] = one(pSrc[i]);
}

}  // namespace trig

inline void qspsSin_64f_A53(const double* pSrc, double* pDst, int len) { trig::sinCosLanes<false>(pSrc, pDst, len); }
inline void qspsCos_64f_A53(const double* pSrc, double* pDst, int len) { trig::sinCosLanes<true>(pSrc, pDst, len); }

}  // namespace mathfn

// SPDX-License-Identifier: BSD-3-Clause
// Cube roots.
//
// Interface (stable; other families call these):
//
//   double qspsCbrtOne(double x)      the cube root, within 0.51 ULP
//   float  qspsCbrtOne_32f(float x)   the cube root correctly rounded
//   void   qspsCbrt_32f_A24(const float* pSrc, float* pDst, Qsp64s len)
//          the vector form of the latter, four at a time, the same bits
//          (single.h); pDst may be pSrc; len <= 0 does nothing.
//
// The one-element functions are constexpr; none needs a library call.
// Special values: cbrt(+-0) = +-0, cbrt(+-inf) = +-inf, cbrt(NaN) is that
// NaN made quiet; the root of a negative number is negative. Results
// assume the default floating-point modes (round to nearest, no
// flush-to-zero). No state: any thread may call them at any time.
//
// Method. |x| = 2^(3q + r) m with m in [1, 2) and r in {0, 1, 2} (a
// subnormal double scaled by 2^54 first); y = 2^r m in [1, 8), and
// cbrt |x| = 2^q cbrt y. The reciprocal root b = y^(-1/3) starts from a
// polynomial in m (within 2^-17.2 of m^(-1/3), a near-minimax fit) times
// 2^(-r/3), and Newton's steps b + b (1 - y b^3) / 3 square its error
// without a division. Then a = y b^2. In double precision two steps leave
// a few units of error in a, and one step of a + (y - a^3) / (3 a^2), with
// y - a^3 formed exactly (a^3 as value plus error), leaves 2^-100: the
// result is the exact root rounded, within half an ULP plus that. The
// single-precision fast evaluation does the polynomial and the first step
// in float lanes (error 2^-23.5), the second in double (2^-46), and
// a = y b^2 within 2^-42.5: less than 4096 units of its last place.
#pragma once
#include "basic.h"
#include "double_double.h"
#include "lanes.h"
#include "single.h"

namespace mathfn {
namespace cbrtfn {

// m^(-1/3) on [1, 2], highest power first, within 2^-17.2.
constexpr double kRecip[6] = {-0x1.0e87006cbe6bbp-6, 0x1.37ce9e9ed0a1dp-3, -0x1.2c4b958d54c08p-1,
                              0x1.3a267a3d49ad4p+0,  -0x1.8dd4bd7d34771p+0, 0x1.c713e2847cbe6p+0};
// 2^(-r/3), r = 0, 1, 2.
constexpr double kPowers[3] = {1.0, 0x1.965fea53d6e3dp-1, 0x1.428a2f98d728bp-1};

// One Newton step toward y^(-1/3).
template <class R>
constexpr R newton(R b, R y)
{
    return b + b * ((R(1.0) - y * (b * b * b)) * R(1.0 / 3));
}

template <class R>
constexpr R recipPolynomial(R m)
{
    R p = R(kRecip[0]);
    for (int i = 1; i < 6; ++i) p = p * m + R(kRecip[i]);
    return p;
}

// cbrt y for y = 2^r m in [1, 8), to half an ULP plus 2^-100.
constexpr double rootOfReduced(double y, double m, int r)
{
    double b = recipPolynomial(m) * kPowers[r];
    b = newton(b, y);
    b = newton(b, y);
    const double a = y * b * b;
    // a^3 = c.hi + lo exactly; y - c.hi is exact (a^3 is within 2^-48 of y).
    const Pair<double> s = twoSquare(a);
    const Pair<double> c = twoProd(s.hi, a);
    const double residual = (y - c.hi) - (c.lo + s.lo * a);
    return a + residual / (3.0 * s.hi);
}

// |x| positive normal: cbrt |x| with its exponent.
constexpr double positive(Qsp64u bits)
{
    const int e = int(bits >> 52) - 1023;
    const int q = (e + 1200) / 3 - 400, r = e - 3 * q;
    const Qsp64u mantissa = bits & kMantissaMask;
    const double m = fromBits(mantissa | 0x3FF0000000000000ull);
    const double y = fromBits(mantissa | (Qsp64u(1023 + r) << 52));
    const double a = rootOfReduced(y, m, r);
    return fromBits(bitsOf(a) + (Qsp64u(Qsp64s(q)) << 52));
}

}  // namespace cbrtfn

constexpr double qspsCbrtOne(double x)
{
    const Qsp64u bits = bitsOf(x), sign = bits & kSignMask, magnitude = bits & ~kSignMask;
    if (magnitude - 0x0010000000000000ull < 0x7FE0000000000000ull) return fromBits(bitsOf(cbrtfn::positive(magnitude)) | sign);
    if (magnitude == 0 || magnitude == 0x7FF0000000000000ull) return x;  // +-0, +-inf
    if (magnitude > 0x7FF0000000000000ull) return x + x;                 // NaN
    // Subnormal: 2^54 |x| is normal, and its root is 2^18 times the result.
    return fromBits(bitsOf(cbrtfn::positive(bitsOf(fromBits(magnitude) * 0x1p54)) * 0x1p-18) | sign);
}

namespace cbrtfn {

// Floats whose double-precision cube root lies exactly halfway between two
// floats, with the correctly rounded result (the first entry is a NaN
// pattern, never a tie).
constexpr single::Exception kSingleTies[] = {
    {0xFFFFFFFFu, 0},
};

}  // namespace cbrtfn

constexpr float qspsCbrtOne_32f(float x) { return single::rounded(qspsCbrtOne(double(x)), x, cbrtfn::kSingleTies); }

namespace cbrtfn {

struct Single {
    static constexpr Qsp32s kSlack = 4096;
    using F = simd::Vec<float>;
    using D = simd::Vec<double>;
    using I = simd::Vec<Qsp32s>;

    // |x| = 2^(3q + r) m: y = 2^r m, and +-2^q with x's sign, as floats;
    // b to 2^-23.5 in float lanes, then one step and a = y b^2 in double,
    // times +-2^q (exact: every root of a normal float is normal).
    static void evaluate(F::Reg x, D::Reg& y0, D::Reg& y1)
    {
        const I::Reg bits = F::bits(x);
        const I::Reg magnitude = I::bitAnd(bits, I::splat(0x7FFFFFFF));
        // t = e + 129 in [3, 256]; t 0x5556 >> 16 = floor(t / 3) there.
        const I::Reg t = I::sub(I::srai<23>(magnitude), I::splat(127 - 129));
        const I::Reg third = I::srai<16>(I::mullo(t, I::splat(0x5556)));
        const I::Reg r = I::sub(t, I::add(third, I::add(third, third)));
        const I::Reg mBits = I::bitOr(I::bitAnd(magnitude, I::splat(0x007FFFFF)), I::splat(0x3F800000));
        const F::Reg m = F::ofBits(mBits);
        const F::Reg y = F::ofBits(I::add(mBits, I::slli<23>(r)));
        const F::Reg one = F::select(F::ofBits(I::cmpeq(r, I::splat(1))), F::splat(1.0f), F::splat(float(kPowers[1])));
        const F::Reg power = F::select(F::ofBits(I::cmpeq(r, I::splat(2))), one, F::splat(float(kPowers[2])));
        F::Reg p = F::splat(float(kRecip[0]));
        for (int i = 1; i < 6; ++i) p = F::add(F::mul(p, m), F::splat(float(kRecip[i])));
        const F::Reg b = first(F::mul(p, power), y);
        // q = floor(t / 3) - 43; the scale's bits (q + 127) << 23 and the sign.
        const I::Reg scaleBits = I::bitOr(I::slli<23>(I::add(third, I::splat(127 - 43))), I::bitAnd(bits, I::signBit()));
        const F::Reg scale = F::ofBits(scaleBits);
        y0 = (root(D::widenLow(b), D::widenLow(y)) * D::widenLow(scale)).v;
        y1 = (root(D::widenHigh(b), D::widenHigh(y)) * D::widenHigh(scale)).v;
    }
    // One Newton step in float lanes.
    static F::Reg first(F::Reg b, F::Reg y)
    {
        const F::Reg b3 = F::mul(F::mul(b, b), b);
        return F::add(b, F::mul(b, F::mul(F::sub(F::splat(1.0f), F::mul(y, b3)), F::splat(1.0f / 3))));
    }
    static Lanes2 root(Lanes2 b, Lanes2 y)
    {
        const Lanes2 c = newton(b, y);
        return y * c * c;
    }
    static F::Reg outside(F::Reg x)
    {
        const I::Reg magnitude = I::bitAnd(F::bits(x), I::splat(0x7FFFFFFF));
        return F::ofBits(I::bitOr(I::cmpgt(I::splat(0x00800000), magnitude), I::cmpgt(magnitude, I::splat(0x7F7FFFFF))));
    }
    static float one(float x) { return qspsCbrtOne_32f(x); }
};

}  // namespace cbrtfn

inline void qspsCbrt_32f_A24(const float* pSrc, float* pDst, Qsp64s len) { single::run<cbrtfn::Single>(pSrc, pDst, len); }

}  // namespace mathfn

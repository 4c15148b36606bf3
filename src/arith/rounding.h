// SPDX-License-Identifier: BSD-3-Clause
// Floating-to-integer results: scaling by 2^-scaleFactor, rounding by one
// of the three rounding modes and saturation to the destination type. The
// work is done in double precision, where every single-precision value
// and its product with another single-precision value are exact and where
// scaling by a power of two is exact over the range that matters, so the
// result is the rule applied to the exact value.
//
// The rounding does not depend on the caller's floating-point control
// modes: each mode uses an explicit rounding instruction.
#pragma once
#include <limits>

#include "qspdefs.h"
#include "simd.h"

namespace rounding {

// Rounding modes, the values of QspRoundMode.
constexpr int kZero = 0;  // toward zero
constexpr int kNear = 1;  // to nearest, ties to even
constexpr int kAway = 2;  // to nearest, ties away from zero

// 2^e as a double for -1022 <= e <= 1023, built from its bits.
constexpr double pow2(int e)
{
    return __builtin_bit_cast(double, Qsp64u(e + 1023) << 52);
}

// Multiplication by 2^-scaleFactor for every int scale factor, as two
// multiplications by normal powers of two prepared once per call, so that
// the cost per element never depends on the scale factor. The exponent is
// clamped to -2044 .. 2046, beyond which no caller's result changes: a
// finite double (at least 2^-1074, below 2^1024) scaled by 2^2046 lies above
// every 64-bit integer and scaled by 2^-2044 rounds to 0 in every mode, and
// an integer source (magnitude 1 to 2^63) overflows every floating type or
// vanishes below its smallest subnormal. Inside the range both steps go
// the same way: scaling up is exact until it overflows, and scaling down
// is exact until it leaves the normal range, below which every integer
// result is 0; so the result is rounded once wherever it matters (integer
// sources stay at least 2^-1022 after the first step).
struct PowerOfTwo {
    double first, second;

    static PowerOfTwo scaleFactor(int scaleFactor)
    {
        const int e = scaleFactor > 2044 ? -2044 : scaleFactor < -2046 ? 2046 : -scaleFactor;
        const int half = e / 2;  // toward zero, so both halves lie in -1022 .. 1023
        return {pow2(half), pow2(e - half)};
    }
    double operator()(double x) const { return x * first * second; }
};

// The factor 2^-scaleFactor. Beyond +-400 every product of finite
// single-precision values rounds to 0 or saturates, and a double value
// beyond that range does as well, so the factor is clamped there.
constexpr double scaleOf(int scaleFactor)
{
    const int s = scaleFactor > 400 ? 400 : scaleFactor < -400 ? -400 : scaleFactor;
    return pow2(-s);
}

using V = simd::Vec<double>;

// Rounding of the lanes of x (double or single precision) to integral
// values in the mode M.
template <int M, class W = V>
typename W::Reg round(typename W::Reg x)
{
    if constexpr (M == kZero) {
        return W::truncate(x);
    } else if constexpr (M == kNear) {
        return W::roundEven(x);
    } else {
        // The truncated value, moved one away from zero when the dropped
        // fraction (exact) is at least one half.
        const typename W::Reg t = W::truncate(x);
        const typename W::Reg sign = W::bitAnd(x, W::signBit());
        const typename W::Reg frac = W::andNot(W::signBit(), W::sub(x, t));
        const typename W::Reg step = W::bitAnd(W::cmpge(frac, W::splat(0.5)), W::bitOr(W::splat(1.0), sign));
        return W::add(t, step);
    }
}

template <int M>
double round(double x)
{
    return _mm_cvtsd_f64(round<M>(_mm_set_sd(x)));
}

// x clamped to [lo, hi]; NaN gives 0.
template <class W = V>
typename W::Reg clamp(typename W::Reg x, typename W::Reg lo, typename W::Reg hi)
{
    return W::bitAnd(W::max(W::min(x, hi), lo), W::cmpord(x, x));
}

// Lanes rounded and clamped to a range within 32 bits, as 32-bit lanes
// (from doubles: the two low lanes).
template <int M, class W = V>
__m128i toInt32(typename W::Reg x, typename W::Reg lo, typename W::Reg hi)
{
    return W::toInt32(clamp<W>(round<M, W>(x), lo, hi));
}

// One double rounded and saturated to the integer type D (up to 64 bits);
// NaN gives 0.
template <int M, class D>
D toInt(double x)
{
    constexpr int n = 8 * int(sizeof(D));
    using L = std::numeric_limits<D>;
    const double r = round<M>(x);
    if (r != r) return D(0);
    if constexpr (L::is_signed) {
        if (r >= pow2(n - 1)) return L::max();
        if (r < -pow2(n - 1)) return L::min();
    } else {
        if (r >= pow2(n)) return L::max();
        if (r <= 0) return D(0);
    }
    return D(r);
}

}  // namespace rounding

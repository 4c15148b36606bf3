// SPDX-License-Identifier: BSD-3-Clause
// Sine and cosine of pi times an argument, in double precision.
//
// sinCosPi(x) returns sin(pi*x) and cos(pi*x) within 1 ULP for every finite
// x. The argument reduction is exact: x is split as x = k/2 + r with k an
// integer and |r| <= 1/4 by subtracting a multiple of 1/2, which costs no
// rounding for any double. The remaining sine and cosine of pi*r are
// evaluated in the 64-bit-mantissa extended format and rounded once to
// double, so the result is the correctly rounded value except within about
// 2^-10 ULP of a rounding boundary.
//
// The extended-precision forms (sinCosPiExt) are used where a product of two
// such values must still round correctly, as when tables of twiddle factors
// are built from a coarse and a fine table.
//
// Everything here is constexpr: the transforms' built-in twiddle table is
// computed by the compiler from these same functions.
#pragma once
#include "qspdefs.h"

namespace mathfn {

struct SinCosExt {
    long double s, c;
};
struct SinCos {
    double s, c;
};

// pi to the 64-bit mantissa of the extended format, rounded to nearest.
inline constexpr long double kPiExt = 3.14159265358979323846264338327950288L;

// sin(pi*r) and cos(pi*r) for |r| <= 1/4 (|pi*r| <= pi/4). Taylor series of
// sin to t^21 and cos to t^22: the first omitted terms are below 2^-70 of
// the result on this interval.
constexpr SinCosExt sinCosPiKernel(long double r)
{
    const long double t = kPiExt * r;
    const long double t2 = t * t;
    // Horner forms of sin(t)/t - 1 and cos(t) - 1 in powers of t2.
    long double ps = 0.0L, pc = 0.0L;
    // sin: coefficients (-1)^k / (2k+1)!, k = 10..1
    constexpr long double sinC[] = {
        -1.0L / 6.0L,
        1.0L / 120.0L,
        -1.0L / 5040.0L,
        1.0L / 362880.0L,
        -1.0L / 39916800.0L,
        1.0L / 6227020800.0L,
        -1.0L / 1307674368000.0L,
        1.0L / 355687428096000.0L,
        -1.0L / 121645100408832000.0L,
        1.0L / 51090942171709440000.0L,
    };
    // cos: coefficients (-1)^k / (2k)!, k = 11..1
    constexpr long double cosC[] = {
        -1.0L / 2.0L,
        1.0L / 24.0L,
        -1.0L / 720.0L,
        1.0L / 40320.0L,
        -1.0L / 3628800.0L,
        1.0L / 479001600.0L,
        -1.0L / 87178291200.0L,
        1.0L / 20922789888000.0L,
        -1.0L / 6402373705728000.0L,
        1.0L / 2432902008176640000.0L,
        -1.0L / 1124000727777607680000.0L,
    };
    for (int k = 9; k >= 0; --k) ps = ps * t2 + sinC[k];
    for (int k = 10; k >= 0; --k) pc = pc * t2 + cosC[k];
    return {t + t * t2 * ps, 1.0L + t2 * pc};
}

// Exact split of x into the nearest multiple of 1/2 (as k mod 4) and the
// remainder r, |r| <= 1/4.
constexpr void reduceHalfTurns(double x, int& quadrant, double& r)
{
    // |x| >= 2^52: x is an integer, so x/2 is a multiple of 1/2 and r = 0;
    // only x mod 2 matters, which the low bits of the integer give.
    const double ax = x < 0 ? -x : x;
    if (ax >= 4503599627370496.0) {
        // 2x is an even integer here; k = 2x mod 4 from x mod 2.
        // For |x| >= 2^53 every double is even, so k = 0.
        Qsp64s ix = ax >= 9007199254740992.0 ? 0 : static_cast<Qsp64s>(x);
        quadrant = static_cast<int>((ix & 1) * 2);
        r = 0.0;
        return;
    }
    // k = round(2x); 2x and the subtraction below are exact.
    const double twoX = 2.0 * x;
    Qsp64s k = static_cast<Qsp64s>(twoX < 0 ? twoX - 0.5 : twoX + 0.5);
    // round half away from zero can overshoot |r| = 1/4 only at exact
    // quarter points, where r = -1/4 or 1/4 is equally good.
    r = x - static_cast<double>(k) * 0.5;
    quadrant = static_cast<int>(k & 3);
}

// sin(pi*x), cos(pi*x) in the extended format.
constexpr SinCosExt sinCosPiExt(double x)
{
    int q = 0;
    double r = 0.0;
    reduceHalfTurns(x, q, r);
    const SinCosExt v = sinCosPiKernel(r);
    switch (q) {
    case 0: return {v.s, v.c};
    case 1: return {v.c, -v.s};
    case 2: return {-v.s, -v.c};
    default: return {-v.c, v.s};
    }
}

// sin(pi*x), cos(pi*x) in double precision, within 1 ULP. Exact zeros carry
// a positive sign except that sin keeps the sign of a zero argument.
constexpr SinCos sinCosPi(double x)
{
    if (x == 0.0) return {x, 1.0};
    const SinCosExt v = sinCosPiExt(x);
    return {static_cast<double>(v.s) + 0.0, static_cast<double>(v.c) + 0.0};
}

constexpr double sinPi(double x) { return sinCosPi(x).s; }
constexpr double cosPi(double x) { return sinCosPi(x).c; }

}  // namespace mathfn

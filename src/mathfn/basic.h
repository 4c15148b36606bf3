// SPDX-License-Identifier: BSD-3-Clause
// Absolute value, floor and square root of one double, without library
// calls; usable in constant expressions.
//
//   double qspsFabsOne(double x)    |x|: the sign bit cleared (NaN payloads kept)
//   double qspsFloorOne(double x)   the largest integral value <= x; +-0,
//                                   +-infinity, NaN and |x| >= 2^52 as they are
//   double qspsSqrtOne(double x)    the correctly rounded square root (the
//                                   processor's instruction at run time);
//                                   sqrt(-0) = -0, negative x gives NaN
#pragma once
#include "double_double.h"

namespace mathfn {

constexpr double qspsFabsOne(double x) { return fromBits(bitsOf(x) & ~kSignMask); }

constexpr double qspsFloorOne(double x)
{
    constexpr double kTwo52 = 4503599627370496.0;
    // Integral already (|x| >= 2^52), NaN, or a zero that keeps its sign.
    if (!(qspsFabsOne(x) < kTwo52) || x == 0) return x;
    // Adding and removing 2^52 rounds x to an integer (exactly, to nearest);
    // a result above x is one too large.
    const double r = x < 0 ? (x - kTwo52) + kTwo52 : (x + kTwo52) - kTwo52;
    return r > x ? r - 1.0 : r;
}

constexpr double qspsSqrtOne(double x) { return __builtin_sqrt(x); }

}  // namespace mathfn

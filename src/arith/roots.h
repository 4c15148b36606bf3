// SPDX-License-Identifier: BSD-3-Clause
// Square roots for the Sqrt and Magnitude families: the scale-factor rule
// applied exactly to the square root of a non-negative integer, and the
// floating roots and magnitudes that must neither overflow nor underflow
// on the way.
#pragma once
#include <limits>

#include "rounding.h"

namespace roots {

using u128 = unsigned __int128;

// round(sqrt(x) * 2^-s), ties to even, saturated to D (x >= 0). A double
// estimate of the root gives the integer part to within one; it is then
// fixed and rounded by exact integer comparisons of squares.
template <class D>
D scaledSqrt(u128 x, int s)
{
    using L = std::numeric_limits<D>;
    constexpr int bits = 8 * int(sizeof(D));
    if (x == 0 || s >= 40) return D(0);  // sqrt(x) < 2^32 for every caller
    if (s <= -(bits + 1)) return L::max();
    const double y = __builtin_sqrt(double(x)) * rounding::pow2(-s);
    if (y >= double(L::max()) + 2) return L::max();
    // Compare A = x * 4^k (s = -k < 0) or x with B = q^2 * 4^s (s >= 0) or q^2.
    const u128 a = s >= 0 ? x : x << (2 * -s);
    auto scaledSquare = [&](u128 q) { return s >= 0 ? (q * q) << (2 * s) : q * q; };
    u128 q = u128(y);
    while (q > 0 && scaledSquare(q) > a) --q;
    while (scaledSquare(q + 1) <= a) ++q;
    // Against (q + 1/2)^2: compare 4A with (2q + 1)^2, scaled alike.
    const u128 half = scaledSquare(2 * q + 1), four = 4 * a;
    if (four > half || (four == half && (q & 1))) ++q;
    return q > u128(L::max()) ? L::max() : D(q);
}

// The exponent of |x| for a power-of-two scaling, limited so that 2^-e
// stays a normal double.
inline int exponentOf(double x)
{
    const int e = int((__builtin_bit_cast(Qsp64u, x) >> 52) & 0x7FF) - 1023;
    return e < -1000 ? -1000 : e > 1000 ? 1000 : e;
}

// sqrt(a^2 + b^2) in double without overflow or underflow: both parts are
// scaled by a power of two near the larger one first (exact).
inline double hypot(double a, double b)
{
    const double ma = a < 0 ? -a : a, mb = b < 0 ? -b : b;
    const int e = exponentOf(ma > mb ? ma : mb);
    const double down = rounding::pow2(-e);
    const double x = a * down, y = b * down;
    return __builtin_sqrt(x * x + y * y) * rounding::pow2(e);
}

// The principal square root of re + i im, in double precision:
// t = sqrt((|z| + |re|) / 2), then (t, im / 2t) for re >= 0 and
// (|im| / 2t, t with the sign of im) otherwise. Scaled by an even power of
// two first, so that neither |z| nor the sum overflows.
inline void complexSqrt(double re, double im, double& outRe, double& outIm)
{
    const double mr = re < 0 ? -re : re, mi = im < 0 ? -im : im;
    const int e = exponentOf(mr > mi ? mr : mi) & ~1;
    const double down = rounding::pow2(-e), up = rounding::pow2(e / 2);
    const double r = re * down, i = im * down, ar = r < 0 ? -r : r;
    const double t = __builtin_sqrt((hypot(r, i) + ar) * 0.5);
    if (t == 0) {
        outRe = 0;
        outIm = im;
        return;
    }
    const double other = (i < 0 ? -i : i) / (2 * t);
    if (r >= 0) {
        outRe = t * up;
        outIm = i / (2 * t) * up;
    } else {
        outRe = other * up;
        outIm = (im < 0 ? -t : t) * up;
    }
}

}  // namespace roots

// SPDX-License-Identifier: BSD-3-Clause
// Error-free transformations of double-precision arithmetic, without FMA.
//
// The elementary functions carry intermediate values as unevaluated sums
// hi + lo, |lo| <= ulp(hi)/2, where one double would lose the last bits of
// the result: twoSum and twoProd return the rounded sum or product together
// with its exact rounding error. Every function is a template over the
// value type R, which is double or a register of doubles with the same
// operators (lanes.h), so that the scalar and the vector forms of a
// function perform the same operations in the same order and return the
// same bits.
//
// Conditions: no overflow anywhere; twoProd and twoSquare also need the
// products' rounding errors to stay normal (|a b| above 2^-969) to be exact,
// and their operands below 2^995 in magnitude (the splitting multiplies by
// 2^27 + 1).
#pragma once
#include "qspdefs.h"

namespace mathfn {

template <class R>
struct Pair {
    R hi, lo;
};

// a + b = s + e exactly, s the rounded sum, for any a and b.
template <class R>
constexpr Pair<R> twoSum(R a, R b)
{
    const R s = a + b;
    const R bb = s - a;
    return {s, (a - (s - bb)) + (b - bb)};
}

// The same for |a| >= |b| (or a = 0): three operations instead of six.
template <class R>
constexpr Pair<R> fastTwoSum(R a, R b)
{
    const R s = a + b;
    return {s, b - (s - a)};
}

// a = hi + lo exactly, hi holding the upper 26 bits of the mantissa and lo
// the rest (Veltkamp's splitting), so that products of halves are exact.
template <class R>
constexpr Pair<R> split(R a)
{
    const R c = R(134217729.0) * a;  // 2^27 + 1
    const R hi = c - (c - a);
    return {hi, a - hi};
}

// a b = p + e exactly, p the rounded product (Dekker).
template <class R>
constexpr Pair<R> twoProd(R a, R b)
{
    const R p = a * b;
    const Pair<R> x = split(a), y = split(b);
    return {p, ((x.hi * y.hi - p) + x.hi * y.lo + x.lo * y.hi) + x.lo * y.lo};
}

// a^2 = p + e exactly, p the rounded square.
template <class R>
constexpr Pair<R> twoSquare(R a)
{
    const R p = a * a;
    const Pair<R> x = split(a);
    return {p, ((x.hi * x.hi - p) + R(2.0) * x.hi * x.lo) + x.lo * x.lo};
}

// Bit patterns of doubles.
constexpr Qsp64u bitsOf(double x) { return __builtin_bit_cast(Qsp64u, x); }
constexpr double fromBits(Qsp64u b) { return __builtin_bit_cast(double, b); }
constexpr Qsp64u kSignMask = 0x8000000000000000ull;
constexpr Qsp64u kMantissaMask = 0x000FFFFFFFFFFFFFull;
constexpr double kLargestDouble = 0x1.fffffffffffffp+1023;

// Adding and removing 1.5 2^52 rounds a double below 2^51 in magnitude to
// an integer (ties to even); the sum's low mantissa bits hold that integer
// in two's complement, and its bit pattern minus kRoundShiftBits is the
// integer as a 64-bit value.
constexpr double kRoundShift = 0x1.8p52;
constexpr Qsp64u kRoundShiftBits = 0x4338000000000000ull;

}  // namespace mathfn

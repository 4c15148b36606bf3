// SPDX-License-Identifier: BSD-3-Clause
// Correctly rounded single-precision functions from double-precision
// evaluations.
//
// A single-precision result is the exact value rounded to float. A double
// y that lies within k units of its last place of the exact value z rounds
// to the same float as z unless a halfway point between two floats lies
// within those k units of y; for results in the normal float range the
// halfway points are the doubles whose low 29 bits are 2^28, so the test
// is one look at y's low bits.
//
// Every single-precision function has two evaluations:
//  - a fast one, four lanes at a time in two registers of doubles, with a
//    proven bound of k units; lanes whose result the test cannot settle,
//    and lanes outside the fast range, are recomputed by
//  - the one-element function: the double-precision kernel (within 0.6
//    ULP of double, so only a y exactly halfway between two floats is
//    unsettled) and, for those rare arguments, a short table of the
//    correctly rounded results, found by running every float through the
//    kernel and settled with a multiple-precision evaluation.
// Both give the correctly rounded result, so the vector and the
// one-element forms agree bit for bit.
#pragma once
#include "double_double.h"
#include "lanes.h"

namespace mathfn {
namespace single {

constexpr Qsp32u floatBits(float f) { return __builtin_bit_cast(Qsp32u, f); }
constexpr float floatOf(Qsp32u b) { return __builtin_bit_cast(float, b); }

// An argument whose double-precision result lies exactly halfway between
// two floats, and its correctly rounded result.
struct Exception {
    Qsp32u x, result;
};

// Whether y lies exactly halfway between two adjacent floats (in the
// normal or the subnormal range of float). y is a finite double.
constexpr bool isFloatTie(double y)
{
    const double a = y < 0 ? -y : y;
    if (a >= 0x1p128 || a == 0) return false;
    // The spacing of floats at a: 2^(e-23) for a in [2^e, 2^(e+1)), 2^-149
    // below 2^-126; a tie is an odd multiple of half of it.
    const int e = int((bitsOf(a) >> 52) & 0x7FF) - 1023;
    const int half = (e < -126 ? -149 : e - 23) - 1;
    // a / 2^half as a double is exact (a power-of-two scaling of a normal
    // double, and the result stays below 2^26).
    const double q = a * fromBits(Qsp64u(1023 - half) << 52);
    const Qsp64s n = Qsp64s(q);
    return double(n) == q && (n & 1) == 1;
}

// y rounded to float, or the listed result where y is a tie.
template <int N>
constexpr float rounded(double y, float x, const Exception (&list)[N])
{
    if (isFloatTie(y)) {
        for (const Exception& e : list)
            if (e.x == floatBits(x)) return floatOf(e.result);
    }
    return float(y);
}

// The lanes of four results (y0: elements 0, 1; y1: elements 2, 3) whose
// rounding to float the bound of `slack` units cannot settle, as 32-bit
// lane masks. Valid for results in the normal float range.
struct RoundingTest {
    using I = simd::Vec<Qsp32s>;
    I::Reg bias, low29, width;
    explicit RoundingTest(Qsp32s slack)
        : bias(I::splat(slack - (1 << 28))), low29(I::splat((1 << 29) - 1)), width(I::splat(2 * slack + 1))
    {
    }
    I::Reg unsettled(simd::Vec<double>::Reg y0, simd::Vec<double>::Reg y1) const
    {
        const I::Reg low = simd::Vec<double>::lowWords(y0, y1);
        return I::cmpgt(width, I::bitAnd(I::add(low, bias), low29));
    }
};

// Runs a single-precision function over a vector: K::evaluate(x, y0, y1)
// evaluates four floats in two registers of doubles (elements 0, 1 and 2,
// 3) with error below K::kSlack units, K::outside(x) marks the lanes the
// fast evaluation does not cover, and K::one(x) is the correctly rounded
// one-element function.
template <class K>
void run(const float* pSrc, float* pDst, Qsp64s len)
{
    using F = simd::Vec<float>;
    using D = simd::Vec<double>;
    using I = simd::Vec<Qsp32s>;
    const RoundingTest test(K::kSlack);
    Qsp64s i = 0;
    for (; i + 4 <= len; i += 4) {
        const F::Reg x = F::loadu(pSrc + i);
        D::Reg y0, y1;
        K::evaluate(x, y0, y1);
        const int redo = I::anyMask(I::bitOr(test.unsettled(y0, y1), F::bits(K::outside(x))));
        F::Reg out = D::narrow(y0, y1);
        if (redo != 0) [[unlikely]] {
            alignas(16) float lane[4];
            F::store(lane, out);
            for (int j = 0; j < 4; ++j)
                if (redo >> j & 1) lane[j] = K::one(pSrc[i + j]);
            out = F::load(lane);
        }
        F::storeu(pDst + i, out);
    }
    for (; i < len; ++i) pDst[i] = K::one(pSrc[i]);
}

}  // namespace single
}  // namespace mathfn

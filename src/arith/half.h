// SPDX-License-Identifier: BSD-3-Clause
// IEEE half precision (binary16) held as its bit pattern: narrowing from
// single precision in any of the three rounding modes (the shared
// conversion in mathfn/half.h rounds to nearest only), and its exact
// widening. Integer and single-precision arithmetic only (the instruction
// set has no half-precision conversions).
#pragma once
#include "mathfn/half.h"
#include "qspdefs.h"
#include "rounding.h"

namespace half {

inline Qsp32f bitsToFloat(Qsp32u b) { return __builtin_bit_cast(Qsp32f, b); }
inline Qsp32u floatToBits(Qsp32f f) { return __builtin_bit_cast(Qsp32u, f); }

// Widening is exact: the shared software conversion.
inline Qsp32f toFloat(Qsp16f h) { return mathfn::halfToFloat(h); }

// |x| rounded to an integer count of units in mode M (the count is at most
// 2^12, so single precision holds it and its fraction exactly).
template <int M>
Qsp32f roundCount(Qsp32f q)
{
    return Qsp32f(rounding::round<M>(double(q)));
}

// Single to half in mode M: |x| is rounded on the half grid of its binade
// (2^-24 below 2^-14); results beyond the largest half value 65504 become
// infinity, except toward zero, which stops at 65504. NaNs stay NaN
// (quiet, the top payload bits kept).
template <int M>
Qsp16f fromFloat(Qsp32f x)
{
    const Qsp32u bits = floatToBits(x);
    const Qsp16f sign = Qsp16f((bits >> 16) & 0x8000u);
    const Qsp32u mag = bits & 0x7FFFFFFFu;
    if (mag > 0x7F800000u) return Qsp16f(sign | 0x7E00u | ((mag >> 13) & 0x3FFu));
    if (mag == 0x7F800000u) return Qsp16f(sign | 0x7C00u);
    const Qsp32f a = bitsToFloat(mag);
    // The unit of the half grid at |x|.
    const int e = int(mag >> 23) - 127;  // binade of |x| (normal single)
    const int unitExp = (mag < 0x38800000u) ? -24 : e - 10;  // below 2^-14: subnormal halves
    const Qsp32f unit = bitsToFloat(Qsp32u(unitExp + 127) << 23);
    const Qsp32f r = roundCount<M>(a / unit) * unit;  // exact: a power-of-two scaling
    if (r > 65504.0f) return Qsp16f(sign | (M == rounding::kZero ? 0x7BFFu : 0x7C00u));
    if (r < 0x1p-14f) return Qsp16f(sign | Qsp16f(r * 0x1p24f));  // subnormal (or zero)
    const Qsp32u rb = floatToBits(r);
    return Qsp16f(sign | ((((rb >> 23) - 112) << 10) | ((rb >> 13) & 0x3FFu)));
}

}  // namespace half

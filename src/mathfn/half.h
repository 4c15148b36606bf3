// SPDX-License-Identifier: BSD-3-Clause
// IEEE binary16 <-> binary32 conversion in software (the library's
// instruction set has no half-precision conversions).
#pragma once
#include "qspdefs.h"

namespace mathfn {

inline Qsp32u floatBits(float f)
{
    return __builtin_bit_cast(Qsp32u, f);
}
inline float bitsFloat(Qsp32u u) { return __builtin_bit_cast(float, u); }

// Exact: every half value is a float.
inline float halfToFloat(Qsp16f h)
{
    const Qsp32u sign = Qsp32u(h & 0x8000) << 16;
    const Qsp32u exp = (h >> 10) & 0x1F, man = h & 0x3FF;
    if (exp == 0x1F) return bitsFloat(sign | 0x7F800000u | (man << 13));  // inf, NaN (payload kept)
    if (exp != 0) return bitsFloat(sign | ((exp + 112) << 23) | (man << 13));
    // zero or subnormal: man * 2^-24, exact in float
    const float v = static_cast<float>(man) * 5.9604644775390625e-8f;
    return sign ? -v : v;
}

// Rounded to nearest, ties to even; overflow gives infinity, NaN stays NaN
// (quiet, with the top of its payload).
inline Qsp16f floatToHalf(float f)
{
    const Qsp32u u = floatBits(f);
    const Qsp16f sign = static_cast<Qsp16f>((u >> 16) & 0x8000);
    const Qsp32u au = u & 0x7FFFFFFFu;
    if (au >= 0x7F800000u) {
        if (au == 0x7F800000u) return static_cast<Qsp16f>(sign | 0x7C00);
        return static_cast<Qsp16f>(sign | 0x7E00 | ((au >> 13) & 0x3FF));
    }
    if (au >= 0x477FF000u) return static_cast<Qsp16f>(sign | 0x7C00);  // rounds above 65504
    if (au >= 0x38800000u) {
        // normal half: drop 13 mantissa bits with round-to-nearest-even
        const Qsp32u r = au + 0x0FFFu + ((au >> 13) & 1u);
        return static_cast<Qsp16f>(sign | ((r - 0x38000000u) >> 13));
    }
    // subnormal half (or zero): value * 2^24 rounded to an integer, which
    // the float addition of 0.5 * 2^... does with the current rounding mode;
    // done in integers here to stay round-to-nearest-even.
    const Qsp32u exp = au >> 23;
    if (exp < 102) return sign;  // below half the smallest subnormal
    const Qsp32u man = (au & 0x7FFFFFu) | 0x800000u;
    const Qsp32u shift = 126 - exp;  // man * 2^(exp-150) * 2^24 = man >> (126-exp)
    const Qsp32u q = man >> shift, rem = man & ((1u << shift) - 1), halfway = 1u << (shift - 1);
    const Qsp32u rounded = q + ((rem > halfway || (rem == halfway && (q & 1))) ? 1u : 0u);
    return static_cast<Qsp16f>(sign | rounded);
}

}  // namespace mathfn

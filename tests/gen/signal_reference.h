// SPDX-License-Identifier: BSD-3-Clause
// References of the periodic generators' tests: the argument of element n,
// phase + 2 pi rFreq n, with the whole turns of rFreq n removed exactly in
// 128-bit integers (so that the reference stays exact at any n), and the
// type-generic helpers shared by the Tone and Triangle tests.
#pragma once
#include <cmath>
#include <cstring>
#include <limits>
#include <string>
#include <vector>

#include "element_parts.h"
#include "qsp_test.h"

namespace sigref {

using LD = long double;
constexpr LD kPi = 3.141592653589793238462643383279502884L;

// rFreq n mod 1, in [0, 1), exact up to the final rounding to long double.
inline LD turns(double rFreq, long long n)
{
    if (rFreq == 0 || n == 0) return 0;
    int e;
    const double m = std::frexp(rFreq, &e);             // rFreq = m 2^e, m in [0.5, 1)
    const __int128 mant = (__int128)std::ldexp(m, 53);  // rFreq = mant 2^(e-53)
    const int shift = 53 - e;                           // rFreq = mant / 2^shift
    const __int128 p = mant * n;
    if (shift <= 0) return 0;
    if (shift >= 126) return ldexpl((LD)p, -shift);
    const __int128 whole = p >> shift;
    return ldexpl((LD)(p - (whole << shift)), -shift);
}

// phase/(2 pi) + rFreq n mod 1.
inline LD turnsWithPhase(double phase, double rFreq, long long n)
{
    LD u = phase / (2 * kPi) + turns(rFreq, n);
    u -= floorl(u);
    return u;
}

using genparts::im;
using genparts::isComplex;
using genparts::Part;
using genparts::re;

// Whether a stored part is within `abs` of the exact value v (plus the
// rounding to the part type: half an ULP for floats, the rounding to an
// integer with ties to even and saturation for integers).
template <class P>
bool within(P got, LD v, LD abs)
{
    if constexpr (std::is_integral_v<P>) {
        auto sat = [](LD r) {
            r = nearbyintl(r);
            return std::min<LD>(std::max<LD>(r, std::numeric_limits<P>::min()), std::numeric_limits<P>::max());
        };
        return LD(got) >= sat(v - abs) && LD(got) <= sat(v + abs);
    } else {
        return fabsl(LD(got) - v) <= abs + fabsl(v) * std::numeric_limits<P>::epsilon() / 2;
    }
}

}  // namespace sigref

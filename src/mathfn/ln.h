// SPDX-License-Identifier: BSD-3-Clause
// Natural logarithm of a positive finite double, within 2 ULP.
//
// x = m * 2^e with m in [sqrt(1/2), sqrt(2)) taken from the bits; then
// ln m = 2 atanh(s) with s = (m - 1) / (m + 1), |s| < 0.1716, the odd
// series 2 (s + s^3/3 + ... + s^21/21), whose first omitted term is below
// 2^-54 of the sum; and ln x = e ln 2 + ln m with ln 2 split into a part
// that e multiplies exactly and a small remainder.
#pragma once
#include "qspdefs.h"

namespace mathfn {

inline double lnPositive(double x)
{
    Qsp64u bits;
    __builtin_memcpy(&bits, &x, 8);
    int e = int((bits >> 52) & 0x7FF);
    if (e == 0) {  // subnormal: scale by 2^54 first
        x *= 18014398509481984.0;
        __builtin_memcpy(&bits, &x, 8);
        e = int((bits >> 52) & 0x7FF) - 54;
    }
    e -= 1023;
    bits = (bits & 0x000FFFFFFFFFFFFFull) | 0x3FF0000000000000ull;  // m in [1, 2)
    double m;
    __builtin_memcpy(&m, &bits, 8);
    if (m > 1.4142135623730951) {
        m *= 0.5;
        ++e;
    }
    // With f = m - 1 (exact), 2s = f - s f, so ln m = f - s (f - 2 R) where
    // R = z/3 + z^2/5 + ... + z^10/21: the exact f carries the bulk and the
    // rounded terms only a correction below a fifth of it.
    const double f = m - 1, s = f / (2 + f), z = s * s;
    double r = 1.0 / 21;
    for (int k = 19; k >= 3; k -= 2) r = r * z + 1.0 / k;
    const double lnM = f - s * (f - 2 * (z * r));
    constexpr double ln2Hi = 6.93147180369123816490e-01;  // ln 2 to 32 bits: e * ln2Hi is exact
    constexpr double ln2Lo = 1.90821492927058770002e-10;  // ln 2 - ln2Hi
    return e * ln2Hi + (lnM + e * ln2Lo);
}

}  // namespace mathfn

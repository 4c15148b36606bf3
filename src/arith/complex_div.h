// Complex quotients b / a of floating elements. Single precision works in
// double, where the products are exact and nothing overflows, so each part
// is the exact quotient rounded twice (to double, then to single). Double
// precision scales the divisor by a power of two near its magnitude first
// (exact), so that its squared magnitude neither overflows nor underflows.
// A zero divisor gives the IEEE quotients of the numerator by 0.
#pragma once
#include "qspdefs.h"

namespace cdiv {

inline Qsp32fc quotient(Qsp32fc a, Qsp32fc b)
{
    const double ar = a.re, ai = a.im, br = b.re, bi = b.im;
    const double d = ar * ar + ai * ai;
    return {float((br * ar + bi * ai) / d), float((bi * ar - br * ai) / d)};
}

// The exponent e of the larger part's magnitude (|x| in [2^e, 2^(e+1))),
// limited to the range where 2^-e is a normal double.
inline int exponentOf(double x)
{
    const Qsp64u bits = __builtin_bit_cast(Qsp64u, x) & 0x7FFFFFFFFFFFFFFFull;
    int e = int(bits >> 52) - 1023;
    return e < -1000 ? -1000 : e > 1000 ? 1000 : e;
}

inline Qsp64fc quotient(Qsp64fc a, Qsp64fc b)
{
    const double mr = a.re < 0 ? -a.re : a.re, mi = a.im < 0 ? -a.im : a.im;
    const int e = exponentOf(mr > mi ? mr : mi);
    const double down = __builtin_bit_cast(double, Qsp64u(1023 - e) << 52);
    const double ar = a.re * down, ai = a.im * down;
    const double d = ar * ar + ai * ai;
    return {(b.re * ar + b.im * ai) / d * down, (b.im * ar - b.re * ai) / d * down};
}

}  // namespace cdiv

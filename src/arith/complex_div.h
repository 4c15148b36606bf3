// SPDX-License-Identifier: BSD-3-Clause
// Complex quotients b / a of floating elements. Single precision works in
// double, where the products are exact and nothing overflows or underflows:
// each part is its numerator times the reciprocal of |a|^2 (within 2^-51
// relative), rounded to single, so within 0.5 ULP plus 2^-27 ULP. Double
// precision scales the divisor by a power of two near its magnitude first
// (exact), so that its squared magnitude neither overflows nor underflows.
// A zero divisor gives the IEEE quotients of the numerator by 0.
#pragma once
#include "qspdefs.h"
#include "simd.h"

namespace cdiv {

inline Qsp32fc quotient(Qsp32fc a, Qsp32fc b)
{
    const double ar = a.re, ai = a.im, br = b.re, bi = b.im;
    const double r = 1.0 / (ar * ar + ai * ai);
    return {float((br * ar + bi * ai) * r), float((bi * ar - br * ai) * r)};
}

// pDst[i] = pSrc2[i] / pSrc1[i] for len elements, four at a time with the
// same operations as quotient(); true when a divisor is zero.
inline bool quotients(const Qsp32fc* pSrc1, const Qsp32fc* pSrc2, Qsp32fc* pDst, int len)
{
    using VF = simd::Vec<float>;
    using VD = simd::Vec<double>;
    VD::Reg zeros = VD::zero();
    int i = 0;
    for (; i + 4 <= len; i += 4) {
        // Real parts and imaginary parts of four elements, each as two
        // registers of doubles (elements 0 1, then 2 3).
        const VF::Reg a01 = VF::loadu(&pSrc1[i].re), a23 = VF::loadu(&pSrc1[i + 2].re);
        const VF::Reg b01 = VF::loadu(&pSrc2[i].re), b23 = VF::loadu(&pSrc2[i + 2].re);
        const VF::Reg are = VF::evens(a01, a23), aim = VF::odds(a01, a23);
        const VF::Reg bre = VF::evens(b01, b23), bim = VF::odds(b01, b23);
        VD::Reg qr[2], qi[2];
        for (int h = 0; h < 2; ++h) {
            const VD::Reg ar = h ? VD::widenHigh(are) : VD::widenLow(are);
            const VD::Reg ai = h ? VD::widenHigh(aim) : VD::widenLow(aim);
            const VD::Reg br = h ? VD::widenHigh(bre) : VD::widenLow(bre);
            const VD::Reg bi = h ? VD::widenHigh(bim) : VD::widenLow(bim);
            const VD::Reg d = VD::add(VD::mul(ar, ar), VD::mul(ai, ai));
            zeros = VD::bitOr(zeros, VD::cmpeq(d, VD::zero()));
            const VD::Reg r = VD::div(VD::splat(1.0), d);
            qr[h] = VD::mul(VD::add(VD::mul(br, ar), VD::mul(bi, ai)), r);
            qi[h] = VD::mul(VD::sub(VD::mul(bi, ar), VD::mul(br, ai)), r);
        }
        const VF::Reg re = VD::narrow(qr[0], qr[1]), im = VD::narrow(qi[0], qi[1]);
        VF::storeu(&pDst[i].re, VF::zipLo(re, im));
        VF::storeu(&pDst[i + 2].re, VF::zipHi(re, im));
    }
    bool zero = VD::anyMask(zeros) != 0;
    for (; i < len; ++i) {
        const Qsp32fc a = pSrc1[i];
        zero = zero || (a.re == 0 && a.im == 0);
        pDst[i] = quotient(a, pSrc2[i]);
    }
    return zero;
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

// SPDX-License-Identifier: BSD-3-Clause
// Ln: natural logarithms element by element in every type form. Single
// precision is correctly rounded, double precision within 0.52 ULP (ln.h);
// complex forms give ln|z| + i arg z on the principal branch; integer forms
// round ln(x) 2^-scaleFactor to nearest (ties to even) from a double-double
// value within 2^-100, and saturate. Every form reports what it met once
// the whole output is written: qspStsWarnLogOfNegative when any real
// element is negative (-infinity included; the result is NaN, or the
// type's minimum in integer forms), otherwise qspStsWarnLogOfZero when any
// element is zero (the result -infinity, or the type's minimum; a complex
// zero gives -infinity + i arg z).
#include <limits>

#include "checks.h"
#include "mathfn/arctan.h"
#include "mathfn/extended.h"
#include "mathfn/ln.h"
#include "qsp_validators.h"

namespace y8 {
namespace {

constexpr int kBlock = 256;

// What the logarithms met.
struct Domain {
    bool zero = false, negative = false;
    QspStatus status() const
    {
        return negative ? qspStsWarnLogOfNegative : zero ? qspStsWarnLogOfZero : qspStsOk;
    }
};

// Zeros (of either sign) and negative values (-infinity included; a NaN
// is neither) of a real floating vector.
template <class T>
Domain scan(const T* p, int len)
{
    using V = simd::Vec<T>;
    typename V::Reg zero = V::zero(), negative = V::zero();
    int i = 0;
    for (; i + V::lanes <= len; i += V::lanes) {
        const typename V::Reg x = V::loadu(p + i);
        zero = V::bitOr(zero, V::cmpeq(x, V::zero()));
        negative = V::bitOr(negative, V::cmplt(x, V::zero()));
    }
    Domain d{V::anyMask(zero) != 0, V::anyMask(negative) != 0};
    for (; i < len; ++i) {
        d.zero = d.zero || p[i] == 0;
        d.negative = d.negative || p[i] < 0;
    }
    return d;
}

QspStatus ln32f(const Qsp32f* pSrc, Qsp32f* pDst, int len)
{
    if (QspStatus s = check::vectors(len, pSrc, pDst)) return s;
    const Domain d = scan(pSrc, len);
    mathfn::qspsLn_32f_A24(pSrc, pDst, len);
    return d.status();
}

QspStatus ln64f(const Qsp64f* pSrc, Qsp64f* pDst, int len)
{
    if (QspStatus s = check::vectors(len, pSrc, pDst)) return s;
    const Domain d = scan(pSrc, len);
    mathfn::qspsLn_64f_A53(pSrc, pDst, len);
    return d.status();
}

struct Complex {
    double re, im;
};

// ln|z| from |z|^2 = s.hi + s.lo: ln s.hi + s.lo / s.hi, halved.
double halfLn(mathfn::Pair<double> s) { return 0.5 * (mathfn::qspsLnOne(s.hi) + s.lo / s.hi); }

// Single-precision parts: their squares and the sum of those are exact
// in double-double, so |z| near 1 loses nothing to cancellation.
Complex lnComplex(float a, float b)
{
    const double x = a, y = b;
    double re;
    if (mathfn::qspsFabsOne(x) == __builtin_inf() || mathfn::qspsFabsOne(y) == __builtin_inf()) re = __builtin_inf();
    else if (x == 0 && y == 0) re = -__builtin_inf();
    else re = halfLn(mathfn::twoSum(x * x, y * y));  // NaN parts give NaN
    return {re, mathfn::atan2(y, x)};
}

// Double-precision parts: scaled by 2^-k, k the exponent of the larger
// part (0 for parts up to 2, so that |z| near 1 is not scaled), their
// squares exact in double-double, and ln|z| = k ln 2 + ln|z 2^-k|.
Complex lnComplex(double a, double b)
{
    const double ma = mathfn::qspsFabsOne(a), mb = mathfn::qspsFabsOne(b);
    double re;
    if (ma == __builtin_inf() || mb == __builtin_inf()) {
        re = __builtin_inf();
    } else if (!(ma == ma && mb == mb)) {
        re = a + b;
    } else if (ma == 0 && mb == 0) {
        re = -__builtin_inf();
    } else {
        const double big = ma > mb ? ma : mb;
        int k = int((mathfn::bitsOf(big) >> 52) & 0x7FF) - 1023;
        if (k == -1023) k = -1022 - 52 + (63 - __builtin_clzll(mathfn::bitsOf(big)));  // subnormal
        if (k == -1 || k == 0) k = 0;
        // 2^-k: exact for the larger part; the smaller is rounded only below
        // the normal range, where its square no longer changes the sum.
        const auto scale = rounding::PowerOfTwo::scaleFactor(k);
        const double x = scale(a), y = scale(b);
        const mathfn::Pair<double> s = mathfn::extended::add(mathfn::twoSquare(x), mathfn::twoSquare(y));
        const double kd = double(k);
        re = kd * mathfn::lnfn::kLn2Hi + (kd * mathfn::lnfn::kLn2Lo + halfLn(s));
    }
    return {re, mathfn::atan2(b, a)};
}

template <class C>
QspStatus lnComplexVector(const C* pSrc, C* pDst, int len)
{
    if (QspStatus s = check::vectors(len, pSrc, pDst)) return s;
    using P = decltype(C::re);
    Domain d;
    for (int i = 0; i < len; ++i) {
        const P a = pSrc[i].re, b = pSrc[i].im;
        d.zero = d.zero || (a == 0 && b == 0);
        const Complex v = lnComplex(a, b);
        pDst[i] = {P(v.re), P(v.im)};
    }
    return d.status();
}

// ln(x) 2^-s rounded to nearest, ties to even, saturated to D; zero and
// negative x give D's minimum and are noted.
template <class D, class S>
D scaledLn(S x, int s, Domain& d)
{
    using L = std::numeric_limits<D>;
    if (x <= 0) {
        (x == 0 ? d.zero : d.negative) = true;
        return L::min();
    }
    // ln x lies in [ln 2, 43.7] for x >= 2: below 1/2 after 2^-7, above
    // 2^63 after 2^70.
    if (x == 1 || s > 6) return 0;
    if (s < -70) return L::max();
    const mathfn::extended::DD v = mathfn::extended::lnExtended(Qsp64u(x));
    const double scale = rounding::pow2(-s);
    bool tooLarge = false;
    const Qsp64s n = mathfn::extended::roundToInteger({v.hi * scale, v.lo * scale}, tooLarge);
    return tooLarge || n > Qsp64s(L::max()) ? L::max() : D(n);
}

template <class S, class D>
QspStatus lnScaled(const S* pSrc, D* pDst, int len, int scaleFactor)
{
    if (QspStatus s = check::vectors(len, pSrc, pDst)) return s;
    Domain d;
    for (int i = 0; i < len; ++i) pDst[i] = scaledLn<D>(pSrc[i], scaleFactor, d);
    return d.status();
}

}  // namespace

QspStatus qspsLn_32f(const Qsp32f* pSrc, Qsp32f* pDst, int len) { return ln32f(pSrc, pDst, len); }
QspStatus qspsLn_32f_I(Qsp32f* pSrcDst, int len) { return ln32f(pSrcDst, pSrcDst, len); }
QspStatus qspsLn_64f(const Qsp64f* pSrc, Qsp64f* pDst, int len) { return ln64f(pSrc, pDst, len); }
QspStatus qspsLn_64f_I(Qsp64f* pSrcDst, int len) { return ln64f(pSrcDst, pSrcDst, len); }
QspStatus qspsLn_32fc(const Qsp32fc* pSrc, Qsp32fc* pDst, int len) { return lnComplexVector(pSrc, pDst, len); }
QspStatus qspsLn_32fc_I(Qsp32fc* pSrcDst, int len) { return lnComplexVector(pSrcDst, pSrcDst, len); }
QspStatus qspsLn_64fc(const Qsp64fc* pSrc, Qsp64fc* pDst, int len) { return lnComplexVector(pSrc, pDst, len); }
QspStatus qspsLn_64fc_I(Qsp64fc* pSrcDst, int len) { return lnComplexVector(pSrcDst, pSrcDst, len); }

// The source scanned, widened into the destination, the double kernel there.
QspStatus qspsLn_32f64f(const Qsp32f* pSrc, Qsp64f* pDst, int len)
{
    if (QspStatus s = check::vectors(len, pSrc, pDst)) return s;
    const Domain d = scan(pSrc, len);
    qspsConvert_32f64f(pSrc, pDst, len);
    mathfn::qspsLn_64f_A53(pDst, pDst, len);
    return d.status();
}

// The double kernel into a block on the stack, then rounded to float.
QspStatus qspsLn_64f32f(const Qsp64f* pSrc, Qsp32f* pDst, int len)
{
    if (QspStatus s = check::vectors(len, pSrc, pDst)) return s;
    const Domain d = scan(pSrc, len);
    alignas(16) double block[kBlock];
    for (int i = 0; i < len; i += kBlock) {
        const int n = len - i < kBlock ? len - i : kBlock;
        mathfn::qspsLn_64f_A53(pSrc + i, block, n);
        qspsConvert_64f32f(block, pDst + i, n);
    }
    return d.status();
}

QspStatus qspsLn_16s_Sfs(const Qsp16s* pSrc, Qsp16s* pDst, int len, int scaleFactor)
{
    return lnScaled(pSrc, pDst, len, scaleFactor);
}
QspStatus qspsLn_16s_ISfs(Qsp16s* pSrcDst, int len, int scaleFactor)
{
    return lnScaled(pSrcDst, pSrcDst, len, scaleFactor);
}
QspStatus qspsLn_32s_Sfs(const Qsp32s* pSrc, Qsp32s* pDst, int len, int scaleFactor)
{
    return lnScaled(pSrc, pDst, len, scaleFactor);
}
QspStatus qspsLn_32s_ISfs(Qsp32s* pSrcDst, int len, int scaleFactor)
{
    return lnScaled(pSrcDst, pSrcDst, len, scaleFactor);
}
QspStatus qspsLn_64s_Sfs(const Qsp64s* pSrc, Qsp64s* pDst, int len, int scaleFactor)
{
    return lnScaled(pSrc, pDst, len, scaleFactor);
}
QspStatus qspsLn_64s_ISfs(Qsp64s* pSrcDst, int len, int scaleFactor)
{
    return lnScaled(pSrcDst, pSrcDst, len, scaleFactor);
}
QspStatus qspsLn_32s16s_Sfs(const Qsp32s* pSrc, Qsp16s* pDst, int len, int scaleFactor)
{
    return lnScaled(pSrc, pDst, len, scaleFactor);
}

}  // namespace y8

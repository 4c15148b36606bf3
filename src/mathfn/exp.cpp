// SPDX-License-Identifier: BSD-3-Clause
// Exp: e^x element by element in every type form. Single precision is
// correctly rounded, double precision within 0.52 ULP (exp.h); the mixed
// forms run the double kernel; complex forms multiply e^re by the cosine
// and sine of im; integer forms round e^x 2^-scaleFactor to nearest (ties
// to even) from a double-double value within 2^-100, and saturate, with
// qspStsWarnOutOfDomain when a result exceeds the type's maximum.
#include <limits>

#include "checks.h"
#include "mathfn/exp.h"
#include "mathfn/extended.h"
#include "mathfn/trig.h"
#include "qsp_validators.h"

namespace y8 {
namespace {

// Doubles on the stack for the double-to-single form.
constexpr int kBlock = 256;

QspStatus exp32f(const Qsp32f* pSrc, Qsp32f* pDst, int len)
{
    if (QspStatus s = check::vectors(len, pSrc, pDst)) return s;
    mathfn::qspsExp_32f_A24(pSrc, pDst, len);
    return qspStsOk;
}

QspStatus exp64f(const Qsp64f* pSrc, Qsp64f* pDst, int len)
{
    if (QspStatus s = check::vectors(len, pSrc, pDst)) return s;
    mathfn::qspsExp_64f_A53(pSrc, pDst, len);
    return qspStsOk;
}

struct Complex {
    double re, im;
};

// e^(a + ib) = e^a cos b + i e^a sin b, in double precision. Beyond
// |a| = 708 e^a alone would overflow or lose bits in the subnormals before
// the product does, so e^(a/2) is applied twice. A zero b gives a zero
// imaginary part of the same sign (e^a 0, even for infinite e^a).
Complex expComplex(double a, double b)
{
    const mathfn::SinCosOne sc = mathfn::qspsSinCosOne(b);
    double re, im;
    if (mathfn::qspsFabsOne(a) < 708.0) {
        const double e = mathfn::qspsExpOne(a);
        re = e * sc.cos;
        im = e * sc.sin;
    } else {
        const double h = mathfn::qspsExpOne(0.5 * a);
        re = (h * sc.cos) * h;
        im = (h * sc.sin) * h;
    }
    return {re, b == 0 ? b : im};
}

template <class C>
QspStatus expComplexVector(const C* pSrc, C* pDst, int len)
{
    if (QspStatus s = check::vectors(len, pSrc, pDst)) return s;
    using P = decltype(C::re);
    for (int i = 0; i < len; ++i) {
        const Complex v = expComplex(double(pSrc[i].re), double(pSrc[i].im));
        pDst[i] = {P(v.re), P(v.im)};
    }
    return qspStsOk;
}

// ln 2 in four parts, the first two of 22 bits, so that their products
// with a scale factor (below 2^31) are exact.
constexpr double kLn2Part1 = 0x1.62e4280000000p-1;
constexpr double kLn2Part2 = 0x1.fbe8e00000000p-23;
constexpr double kLn2Part3 = 0x1.ef35793c76730p-45;
constexpr double kLn2Part4 = 0x1.f97b57a079a19p-103;
constexpr double kLog2e = 0x1.71547652b82fep+0;

// e^x 2^-s rounded to nearest, ties to even, saturated to T; `overflow`
// set when the rounded value exceeds T's maximum.
template <class T>
T scaledExp(T x, int s, bool& overflow)
{
    using L = std::numeric_limits<T>;
    constexpr int kBits = 8 * int(sizeof(T)) - 1;
    if (x == 0) {
        // 2^-s: at most a half for s >= 1, which goes to the even 0.
        if (s >= 1) return 0;
        if (-s >= kBits) {
            overflow = true;
            return L::max();
        }
        return T(Qsp64s(1) << -s);
    }
    // log2 of the result, to within 2^-20 (|x| and |s| below 2^64 and 2^31).
    const double t = double(x) * kLog2e - double(s);
    if (t >= kBits + 1) {
        overflow = true;
        return L::max();
    }
    if (t < -2) return 0;
    // Here |x| < 2^31: w = x - s ln 2 in double-double, the first
    // difference exact (both are multiples of 2^-22 and it lies below 2^10).
    const double sd = double(s);
    mathfn::extended::DD w = mathfn::twoSum(double(x) - sd * kLn2Part1, -(sd * kLn2Part2));
    w = mathfn::extended::add(w, mathfn::extended::neg(mathfn::twoProd(sd, kLn2Part3)));
    w = mathfn::extended::add(w, mathfn::extended::neg(mathfn::twoProd(sd, kLn2Part4)));
    bool tooLarge = false;
    const Qsp64s n = mathfn::extended::roundToInteger(mathfn::extended::expExtended(w), tooLarge);
    if (tooLarge || n > Qsp64s(L::max())) {
        overflow = true;
        return L::max();
    }
    return T(n);
}

template <class T>
QspStatus expScaled(const T* pSrc, T* pDst, int len, int scaleFactor)
{
    if (QspStatus s = check::vectors(len, pSrc, pDst)) return s;
    bool overflow = false;
    for (int i = 0; i < len; ++i) pDst[i] = scaledExp(pSrc[i], scaleFactor, overflow);
    return overflow ? qspStsWarnOutOfDomain : qspStsOk;
}

}  // namespace

QspStatus qspsExp_32f(const Qsp32f* pSrc, Qsp32f* pDst, int len) { return exp32f(pSrc, pDst, len); }
QspStatus qspsExp_32f_I(Qsp32f* pSrcDst, int len) { return exp32f(pSrcDst, pSrcDst, len); }
QspStatus qspsExp_64f(const Qsp64f* pSrc, Qsp64f* pDst, int len) { return exp64f(pSrc, pDst, len); }
QspStatus qspsExp_64f_I(Qsp64f* pSrcDst, int len) { return exp64f(pSrcDst, pSrcDst, len); }
QspStatus qspsExp_32fc(const Qsp32fc* pSrc, Qsp32fc* pDst, int len) { return expComplexVector(pSrc, pDst, len); }
QspStatus qspsExp_32fc_I(Qsp32fc* pSrcDst, int len) { return expComplexVector(pSrcDst, pSrcDst, len); }
QspStatus qspsExp_64fc(const Qsp64fc* pSrc, Qsp64fc* pDst, int len) { return expComplexVector(pSrc, pDst, len); }
QspStatus qspsExp_64fc_I(Qsp64fc* pSrcDst, int len) { return expComplexVector(pSrcDst, pSrcDst, len); }

// The floats widened into the destination, then the double kernel there.
QspStatus qspsExp_32f64f(const Qsp32f* pSrc, Qsp64f* pDst, int len)
{
    if (QspStatus s = qspsConvert_32f64f(pSrc, pDst, len)) return s;
    mathfn::qspsExp_64f_A53(pDst, pDst, len);
    return qspStsOk;
}

// The double kernel into a block on the stack, then rounded to float.
QspStatus qspsExp_64f32f(const Qsp64f* pSrc, Qsp32f* pDst, int len)
{
    if (QspStatus s = check::vectors(len, pSrc, pDst)) return s;
    alignas(16) double block[kBlock];
    for (int i = 0; i < len; i += kBlock) {
        const int n = len - i < kBlock ? len - i : kBlock;
        mathfn::qspsExp_64f_A53(pSrc + i, block, n);
        qspsConvert_64f32f(block, pDst + i, n);
    }
    return qspStsOk;
}

QspStatus qspsExp_16s_Sfs(const Qsp16s* pSrc, Qsp16s* pDst, int len, int scaleFactor)
{
    return expScaled(pSrc, pDst, len, scaleFactor);
}
QspStatus qspsExp_16s_ISfs(Qsp16s* pSrcDst, int len, int scaleFactor)
{
    return expScaled(pSrcDst, pSrcDst, len, scaleFactor);
}
QspStatus qspsExp_32s_Sfs(const Qsp32s* pSrc, Qsp32s* pDst, int len, int scaleFactor)
{
    return expScaled(pSrc, pDst, len, scaleFactor);
}
QspStatus qspsExp_32s_ISfs(Qsp32s* pSrcDst, int len, int scaleFactor)
{
    return expScaled(pSrcDst, pSrcDst, len, scaleFactor);
}
QspStatus qspsExp_64s_Sfs(const Qsp64s* pSrc, Qsp64s* pDst, int len, int scaleFactor)
{
    return expScaled(pSrc, pDst, len, scaleFactor);
}
QspStatus qspsExp_64s_ISfs(Qsp64s* pSrcDst, int len, int scaleFactor)
{
    return expScaled(pSrcDst, pSrcDst, len, scaleFactor);
}

}  // namespace y8

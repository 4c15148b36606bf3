// SPDX-License-Identifier: BSD-3-Clause
// Sqrt: square roots. A negative real element gives NaN (floating) or 0
// (integer) and the warning qspStsWarnOutOfDomain once the whole output is
// written; -0.0 and NaN are not negative. Integer results are the exact
// root scaled, rounded to nearest even and saturated.
#include "forms.h"
#include "roots.h"

namespace y8 {
namespace {

// The IEEE root, noting negative elements.
template <class T>
struct SqrtWatch {
    using V = simd::Vec<T>;
    typename V::Reg* negative;
    bool* neg;
    typename V::Reg reg(typename V::Reg a) const
    {
        *negative = V::bitOr(*negative, V::cmplt(a, V::zero()));
        return V::sqrt(a);
    }
    T one(T a) const
    {
        *neg = *neg || a < 0;
        return _mm_cvtss_f32(V::sqrt(V::splat(a)));
    }
};
template <>
inline Qsp64f SqrtWatch<Qsp64f>::one(Qsp64f a) const
{
    *neg = *neg || a < 0;
    return _mm_cvtsd_f64(V::sqrt(V::splat(a)));
}

template <class T>
QspStatus sqrtFloating(const T* pSrc, T* pDst, int len)
{
    if (QspStatus s = check::vectors(len, pSrc, pDst)) return s;
    using V = simd::Vec<T>;
    typename V::Reg negative = V::zero();
    bool neg = false;
    elementwise::map1(pSrc, pDst, len, SqrtWatch<T>{&negative, &neg});
    return neg || V::anyMask(negative) ? qspStsWarnOutOfDomain : qspStsOk;
}

template <class C>
QspStatus sqrtComplex(const C* pSrc, C* pDst, int len)
{
    if (QspStatus s = check::vectors(len, pSrc, pDst)) return s;
    for (int i = 0; i < len; ++i) {
        double re, im;
        roots::complexSqrt(pSrc[i].re, pSrc[i].im, re, im);
        pDst[i] = {ops::Part<C>(re), ops::Part<C>(im)};
    }
    return qspStsOk;
}

template <class S, class D>
QspStatus sqrtScaled(const S* pSrc, D* pDst, int len, int scaleFactor)
{
    if (QspStatus s = check::vectors(len, pSrc, pDst)) return s;
    bool neg = false;
    for (int i = 0; i < len; ++i) {
        const S x = pSrc[i];
        if (x < 0) {
            neg = true;
            pDst[i] = D(0);
        } else {
            pDst[i] = roots::scaledSqrt<D>(roots::u128(x), scaleFactor);
        }
    }
    return neg ? qspStsWarnOutOfDomain : qspStsOk;
}

// 16sc: the principal root in double, scaled, rounded to nearest even and
// saturated part by part.
QspStatus sqrt16sc(const Qsp16sc* pSrc, Qsp16sc* pDst, int len, int scaleFactor)
{
    if (QspStatus s = check::vectors(len, pSrc, pDst)) return s;
    const double k = rounding::scaleOf(scaleFactor);
    for (int i = 0; i < len; ++i) {
        double re, im;
        roots::complexSqrt(pSrc[i].re, pSrc[i].im, re, im);
        pDst[i] = {rounding::toInt<rounding::kNear, Qsp16s>(re * k), rounding::toInt<rounding::kNear, Qsp16s>(im * k)};
    }
    return qspStsOk;
}

}  // namespace

QspStatus qspsSqrt_32f(const Qsp32f* pSrc, Qsp32f* pDst, int len) { return sqrtFloating(pSrc, pDst, len); }
QspStatus qspsSqrt_32f_I(Qsp32f* pSrcDst, int len) { return sqrtFloating(pSrcDst, pSrcDst, len); }
QspStatus qspsSqrt_64f(const Qsp64f* pSrc, Qsp64f* pDst, int len) { return sqrtFloating(pSrc, pDst, len); }
QspStatus qspsSqrt_64f_I(Qsp64f* pSrcDst, int len) { return sqrtFloating(pSrcDst, pSrcDst, len); }
QspStatus qspsSqrt_32fc(const Qsp32fc* pSrc, Qsp32fc* pDst, int len) { return sqrtComplex(pSrc, pDst, len); }
QspStatus qspsSqrt_32fc_I(Qsp32fc* pSrcDst, int len) { return sqrtComplex(pSrcDst, pSrcDst, len); }
QspStatus qspsSqrt_64fc(const Qsp64fc* pSrc, Qsp64fc* pDst, int len) { return sqrtComplex(pSrc, pDst, len); }
QspStatus qspsSqrt_64fc_I(Qsp64fc* pSrcDst, int len) { return sqrtComplex(pSrcDst, pSrcDst, len); }

QspStatus qspsSqrt_8u_Sfs(const Qsp8u* pSrc, Qsp8u* pDst, int len, int scaleFactor)
{
    return sqrtScaled(pSrc, pDst, len, scaleFactor);
}
QspStatus qspsSqrt_8u_ISfs(Qsp8u* pSrcDst, int len, int scaleFactor) { return sqrtScaled(pSrcDst, pSrcDst, len, scaleFactor); }
QspStatus qspsSqrt_16s_Sfs(const Qsp16s* pSrc, Qsp16s* pDst, int len, int scaleFactor)
{
    return sqrtScaled(pSrc, pDst, len, scaleFactor);
}
QspStatus qspsSqrt_16s_ISfs(Qsp16s* pSrcDst, int len, int scaleFactor) { return sqrtScaled(pSrcDst, pSrcDst, len, scaleFactor); }
QspStatus qspsSqrt_16u_Sfs(const Qsp16u* pSrc, Qsp16u* pDst, int len, int scaleFactor)
{
    return sqrtScaled(pSrc, pDst, len, scaleFactor);
}
QspStatus qspsSqrt_16u_ISfs(Qsp16u* pSrcDst, int len, int scaleFactor) { return sqrtScaled(pSrcDst, pSrcDst, len, scaleFactor); }
QspStatus qspsSqrt_16sc_Sfs(const Qsp16sc* pSrc, Qsp16sc* pDst, int len, int scaleFactor)
{
    return sqrt16sc(pSrc, pDst, len, scaleFactor);
}
QspStatus qspsSqrt_16sc_ISfs(Qsp16sc* pSrcDst, int len, int scaleFactor) { return sqrt16sc(pSrcDst, pSrcDst, len, scaleFactor); }
QspStatus qspsSqrt_32s16s_Sfs(const Qsp32s* pSrc, Qsp16s* pDst, int len, int scaleFactor)
{
    return sqrtScaled(pSrc, pDst, len, scaleFactor);
}
QspStatus qspsSqrt_64s16s_Sfs(const Qsp64s* pSrc, Qsp16s* pDst, int len, int scaleFactor)
{
    return sqrtScaled(pSrc, pDst, len, scaleFactor);
}

}  // namespace y8

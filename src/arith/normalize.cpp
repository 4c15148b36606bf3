// SPDX-License-Identifier: BSD-3-Clause
// Normalize: (x - vSub) / vDiv. A zero vDiv is an error, checked after the
// pointers and the length. Floating results: the difference rounded, then
// the quotient. The 16-bit forms divide the exact difference exactly,
// scale by 2^-scaleFactor, round to nearest even and saturate.
#include "forms.h"
#include "quotient.h"

namespace y8 {
namespace {

template <class T, class P>
struct Norm {
    using V = simd::Vec<T>;
    typename V::Reg sub, div;
    T vSub;
    P vDiv;
    typename V::Reg reg(typename V::Reg a) const { return V::div(V::sub(a, sub), div); }
    T one(T a) const
    {
        if constexpr (ops::isComplex<T>) return {(a.re - vSub.re) / vDiv, (a.im - vSub.im) / vDiv};
        else return (a - vSub) / vDiv;
    }
};

template <class T, class P>
QspStatus normalize(const T* pSrc, T* pDst, int len, T vSub, P vDiv)
{
    if (QspStatus s = check::vectors(len, pSrc, pDst)) return s;
    if (vDiv == P(0)) return qspStsZeroDivisor;
    using V = simd::Vec<T>;
    elementwise::map1(pSrc, pDst, len, Norm<T, P>{V::splat(vSub), simd::Vec<P>::splat(vDiv), vSub, vDiv});
    return qspStsOk;
}

QspStatus normalize16s(const Qsp16s* pSrc, Qsp16s* pDst, int len, Qsp16s vSub, int vDiv, int scaleFactor)
{
    if (QspStatus s = check::vectors(len, pSrc, pDst)) return s;
    if (vDiv == 0) return qspStsZeroDivisor;
    for (int i = 0; i < len; ++i)
        pDst[i] = quotient::exact<rounding::kNear, Qsp16s>(Qsp32s(pSrc[i]) - vSub, vDiv, scaleFactor);
    return qspStsOk;
}

QspStatus normalize16sc(const Qsp16sc* pSrc, Qsp16sc* pDst, int len, Qsp16sc vSub, int vDiv, int scaleFactor)
{
    if (QspStatus s = check::vectors(len, pSrc, pDst)) return s;
    if (vDiv == 0) return qspStsZeroDivisor;
    for (int i = 0; i < len; ++i)
        pDst[i] = {quotient::exact<rounding::kNear, Qsp16s>(Qsp32s(pSrc[i].re) - vSub.re, vDiv, scaleFactor),
                   quotient::exact<rounding::kNear, Qsp16s>(Qsp32s(pSrc[i].im) - vSub.im, vDiv, scaleFactor)};
    return qspStsOk;
}

}  // namespace

QspStatus qspsNormalize_32f(const Qsp32f* pSrc, Qsp32f* pDst, int len, Qsp32f vSub, Qsp32f vDiv)
{
    return normalize(pSrc, pDst, len, vSub, vDiv);
}
QspStatus qspsNormalize_32f_I(Qsp32f* pSrcDst, int len, Qsp32f vSub, Qsp32f vDiv)
{
    return normalize(pSrcDst, pSrcDst, len, vSub, vDiv);
}
QspStatus qspsNormalize_64f(const Qsp64f* pSrc, Qsp64f* pDst, int len, Qsp64f vSub, Qsp64f vDiv)
{
    return normalize(pSrc, pDst, len, vSub, vDiv);
}
QspStatus qspsNormalize_64f_I(Qsp64f* pSrcDst, int len, Qsp64f vSub, Qsp64f vDiv)
{
    return normalize(pSrcDst, pSrcDst, len, vSub, vDiv);
}
QspStatus qspsNormalize_32fc(const Qsp32fc* pSrc, Qsp32fc* pDst, int len, Qsp32fc vSub, Qsp32f vDiv)
{
    return normalize(pSrc, pDst, len, vSub, vDiv);
}
QspStatus qspsNormalize_32fc_I(Qsp32fc* pSrcDst, int len, Qsp32fc vSub, Qsp32f vDiv)
{
    return normalize(pSrcDst, pSrcDst, len, vSub, vDiv);
}
QspStatus qspsNormalize_64fc(const Qsp64fc* pSrc, Qsp64fc* pDst, int len, Qsp64fc vSub, Qsp64f vDiv)
{
    return normalize(pSrc, pDst, len, vSub, vDiv);
}
QspStatus qspsNormalize_64fc_I(Qsp64fc* pSrcDst, int len, Qsp64fc vSub, Qsp64f vDiv)
{
    return normalize(pSrcDst, pSrcDst, len, vSub, vDiv);
}
QspStatus qspsNormalize_16s_Sfs(const Qsp16s* pSrc, Qsp16s* pDst, int len, int vSub, int vDiv, int scaleFactor)
{
    return normalize16s(pSrc, pDst, len, Qsp16s(vSub), vDiv, scaleFactor);
}
QspStatus qspsNormalize_16s_ISfs(Qsp16s* pSrcDst, int len, int vSub, int vDiv, int scaleFactor)
{
    return normalize16s(pSrcDst, pSrcDst, len, Qsp16s(vSub), vDiv, scaleFactor);
}
QspStatus qspsNormalize_16sc_Sfs(const Qsp16sc* pSrc, Qsp16sc* pDst, int len, Qsp16sc vSub, int vDiv, int scaleFactor)
{
    return normalize16sc(pSrc, pDst, len, vSub, vDiv, scaleFactor);
}
QspStatus qspsNormalize_16sc_ISfs(Qsp16sc* pSrcDst, int len, Qsp16sc vSub, int vDiv, int scaleFactor)
{
    return normalize16sc(pSrcDst, pSrcDst, len, vSub, vDiv, scaleFactor);
}

}  // namespace y8

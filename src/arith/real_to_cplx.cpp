// SPDX-License-Identifier: BSD-3-Clause
// RealToCplx: two real vectors joined into a complex one. Either source
// may be null; its part is then zero. The kernel for the present sources
// is chosen once per call.
#include "forms.h"

namespace y8 {
namespace {

template <bool HasRe, bool HasIm, class P, class C>
void ownsRealToCplx(const P* pRe, const P* pIm, C* pDst, Qsp64s len)
{
    using V = simd::Vec<P>;
    constexpr Qsp64s L = V::lanes;
    Qsp64s i = 0;
    for (; i + L <= len; i += L) {
        const auto re = HasRe ? V::loadu(pRe + i) : V::zero();
        const auto im = HasIm ? V::loadu(pIm + i) : V::zero();
        P* d = &pDst[i].re;
        if constexpr (sizeof(P) == 2) {
            V::storeu(d, _mm_unpacklo_epi16(re, im));
            V::storeu(d + L, _mm_unpackhi_epi16(re, im));
        } else if constexpr (sizeof(P) == 4) {
            V::storeu(d, _mm_unpacklo_ps(re, im));
            V::storeu(d + L, _mm_unpackhi_ps(re, im));
        } else {
            V::storeu(d, _mm_unpacklo_pd(re, im));
            V::storeu(d + L, _mm_unpackhi_pd(re, im));
        }
    }
    for (; i < len; ++i) pDst[i] = {HasRe ? pRe[i] : P(0), HasIm ? pIm[i] : P(0)};
}

template <class P, class C>
QspStatus realToCplx(const P* pSrcRe, const P* pSrcIm, C* pDst, int len)
{
    if (QspStatus s = check::vectors(len, pDst)) return s;
    if (pSrcRe && pSrcIm) ownsRealToCplx<true, true>(pSrcRe, pSrcIm, pDst, len);
    else if (pSrcRe) ownsRealToCplx<true, false>(pSrcRe, pSrcIm, pDst, len);
    else if (pSrcIm) ownsRealToCplx<false, true>(pSrcRe, pSrcIm, pDst, len);
    else ownsRealToCplx<false, false>(pSrcRe, pSrcIm, pDst, len);
    return qspStsOk;
}

// A source advanced by the elements done, null staying null. (The _L forms
// chunk by the size of their named type, the real part.)
template <class P>
const P* at(const P* p, Qsp64s k)
{
    return p ? p + k : nullptr;
}

}  // namespace

QspStatus qspsRealToCplx_16s(const Qsp16s* pSrcRe, const Qsp16s* pSrcIm, Qsp16sc* pDst, int len)
{
    return realToCplx(pSrcRe, pSrcIm, pDst, len);
}
QspStatus qspsRealToCplx_32f(const Qsp32f* pSrcRe, const Qsp32f* pSrcIm, Qsp32fc* pDst, int len)
{
    return realToCplx(pSrcRe, pSrcIm, pDst, len);
}
QspStatus qspsRealToCplx_64f(const Qsp64f* pSrcRe, const Qsp64f* pSrcIm, Qsp64fc* pDst, int len)
{
    return realToCplx(pSrcRe, pSrcIm, pDst, len);
}
QspStatus qspsRealToCplx_32f_L(const Qsp32f* pSrcRe, const Qsp32f* pSrcIm, Qsp32fc* pDst, Qsp64s len)
{
    return chunked<Qsp32f>(len, [=](Qsp64s k, int n) {
        return qspsRealToCplx_32f(at(pSrcRe, k), at(pSrcIm, k), pDst + k, n);
    });
}
QspStatus qspsRealToCplx_64f_L(const Qsp64f* pSrcRe, const Qsp64f* pSrcIm, Qsp64fc* pDst, Qsp64s len)
{
    return chunked<Qsp64f>(len, [=](Qsp64s k, int n) {
        return qspsRealToCplx_64f(at(pSrcRe, k), at(pSrcIm, k), pDst + k, n);
    });
}

}  // namespace y8

// SPDX-License-Identifier: BSD-3-Clause
// CplxToReal: a complex vector split into its real and imaginary parts.
#include "forms.h"

namespace y8 {
namespace {

void ownsCplxToReal(const Qsp32fc* pSrc, Qsp32f* pRe, Qsp32f* pIm, Qsp64s len)
{
    using V = simd::Vec<float>;
    using C = simd::Vec<Qsp32fc>;
    Qsp64s i = 0;
    for (; i + 4 <= len; i += 4) {
        const V::Reg a = C::loadu(pSrc + i), b = C::loadu(pSrc + i + 2);
        V::storeu(pRe + i, _mm_shuffle_ps(a, b, _MM_SHUFFLE(2, 0, 2, 0)));
        V::storeu(pIm + i, _mm_shuffle_ps(a, b, _MM_SHUFFLE(3, 1, 3, 1)));
    }
    for (; i < len; ++i) pRe[i] = pSrc[i].re, pIm[i] = pSrc[i].im;
}

void ownsCplxToReal(const Qsp64fc* pSrc, Qsp64f* pRe, Qsp64f* pIm, Qsp64s len)
{
    using V = simd::Vec<double>;
    using C = simd::Vec<Qsp64fc>;
    Qsp64s i = 0;
    for (; i + 2 <= len; i += 2) {
        const V::Reg a = C::loadu(pSrc + i), b = C::loadu(pSrc + i + 1);
        V::storeu(pRe + i, _mm_unpacklo_pd(a, b));
        V::storeu(pIm + i, _mm_unpackhi_pd(a, b));
    }
    for (; i < len; ++i) pRe[i] = pSrc[i].re, pIm[i] = pSrc[i].im;
}

void ownsCplxToReal(const Qsp16sc* pSrc, Qsp16s* pRe, Qsp16s* pIm, Qsp64s len)
{
    using V = simd::Vec<Qsp16s>;
    // Within each register: real parts to the low half, imaginary to the high.
    const V::Reg split = _mm_setr_epi8(0, 1, 4, 5, 8, 9, 12, 13, 2, 3, 6, 7, 10, 11, 14, 15);
    Qsp64s i = 0;
    for (; i + 8 <= len; i += 8) {
        const V::Reg a = V::shuffleBytes(V::loadu(pSrc + i), split);
        const V::Reg b = V::shuffleBytes(V::loadu(pSrc + i + 4), split);
        V::storeu(pRe + i, _mm_unpacklo_epi64(a, b));
        V::storeu(pIm + i, _mm_unpackhi_epi64(a, b));
    }
    for (; i < len; ++i) pRe[i] = pSrc[i].re, pIm[i] = pSrc[i].im;
}

template <class C, class P>
QspStatus cplxToReal(const C* pSrc, P* pDstRe, P* pDstIm, int len)
{
    if (QspStatus s = check::vectors(len, pSrc, pDstRe, pDstIm)) return s;
    ownsCplxToReal(pSrc, pDstRe, pDstIm, len);
    return qspStsOk;
}

}  // namespace

QspStatus qspsCplxToReal_16sc(const Qsp16sc* pSrc, Qsp16s* pDstRe, Qsp16s* pDstIm, int len)
{
    return cplxToReal(pSrc, pDstRe, pDstIm, len);
}
QspStatus qspsCplxToReal_32fc(const Qsp32fc* pSrc, Qsp32f* pDstRe, Qsp32f* pDstIm, int len)
{
    return cplxToReal(pSrc, pDstRe, pDstIm, len);
}
QspStatus qspsCplxToReal_64fc(const Qsp64fc* pSrc, Qsp64f* pDstRe, Qsp64f* pDstIm, int len)
{
    return cplxToReal(pSrc, pDstRe, pDstIm, len);
}
QspStatus qspsCplxToReal_32fc_L(const Qsp32fc* pSrc, Qsp32f* pDstRe, Qsp32f* pDstIm, Qsp64s len)
{
    return chunked<Qsp32fc>(len, [=](Qsp64s at, int n) {
        return qspsCplxToReal_32fc(pSrc + at, pDstRe + at, pDstIm + at, n);
    });
}
QspStatus qspsCplxToReal_64fc_L(const Qsp64fc* pSrc, Qsp64f* pDstRe, Qsp64f* pDstIm, Qsp64s len)
{
    return chunked<Qsp64fc>(len, [=](Qsp64s at, int n) {
        return qspsCplxToReal_64fc(pSrc + at, pDstRe + at, pDstIm + at, n);
    });
}

}  // namespace y8

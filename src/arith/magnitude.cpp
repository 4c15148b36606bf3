// SPDX-License-Identifier: BSD-3-Clause
// Magnitude: |z| = sqrt(re^2 + im^2) of complex elements, interleaved or
// as separate parts. Single precision works in double (the squares and
// their sum cannot overflow there, and the result is rounded once more to
// single); double precision scales each element by a power of two first.
// Scaled integer forms take the exact root of the exact sum of squares.
#include "forms.h"
#include "roots.h"

namespace y8 {
namespace {

using VD = simd::Vec<double>;
using VF = simd::Vec<float>;

// Four single-precision magnitudes from their squared sums in double (the
// lanes of lo, then of hi): correctly rounded double roots, rounded once
// more. (A single-precision root refined by a Newton step in double was
// measured slower here than the two double roots.)
inline VF::Reg roots4(VD::Reg lo, VD::Reg hi) { return VD::narrow(VD::sqrt(lo), VD::sqrt(hi)); }

// Four magnitudes from four real and four imaginary parts, squared and
// summed in double (exact products).
inline VF::Reg magnitudes4(VF::Reg re, VF::Reg im)
{
    auto sumOfSquares = [](VD::Reg r, VD::Reg m) { return VD::add(VD::mul(r, r), VD::mul(m, m)); };
    return roots4(sumOfSquares(VD::widenLow(re), VD::widenLow(im)), sumOfSquares(VD::widenHigh(re), VD::widenHigh(im)));
}

void ownsMagnitude(const Qsp32fc* pSrc, Qsp32f* pDst, Qsp64s len)
{
    Qsp64s i = 0;
    for (; i + 4 <= len; i += 4) {
        const VF::Reg a = VF::loadu(&pSrc[i].re), b = VF::loadu(&pSrc[i + 2].re);
        VF::storeu(pDst + i, magnitudes4(VF::evens(a, b), VF::odds(a, b)));
    }
    for (; i < len; ++i) {
        const double re = pSrc[i].re, im = pSrc[i].im;
        pDst[i] = float(__builtin_sqrt(re * re + im * im));
    }
}

void ownsMagnitude(const Qsp32f* pRe, const Qsp32f* pIm, Qsp32f* pDst, Qsp64s len)
{
    Qsp64s i = 0;
    for (; i + 4 <= len; i += 4) {
        VF::storeu(pDst + i, magnitudes4(VF::loadu(pRe + i), VF::loadu(pIm + i)));
    }
    for (; i < len; ++i) {
        const double re = pRe[i], im = pIm[i];
        pDst[i] = float(__builtin_sqrt(re * re + im * im));
    }
}

void ownsMagnitude(const Qsp64fc* pSrc, Qsp64f* pDst, Qsp64s len)
{
    for (Qsp64s i = 0; i < len; ++i) pDst[i] = roots::hypot(pSrc[i].re, pSrc[i].im);
}

void ownsMagnitude(const Qsp64f* pRe, const Qsp64f* pIm, Qsp64f* pDst, Qsp64s len)
{
    for (Qsp64s i = 0; i < len; ++i) pDst[i] = roots::hypot(pRe[i], pIm[i]);
}

// 16sc to 32f: the exact sum of squares (up to 2^31, read without sign) in
// double, its root rounded to single.
void ownsMagnitude(const Qsp16sc* pSrc, Qsp32f* pDst, Qsp64s len)
{
    using V16 = simd::Vec<Qsp16s>;
    const VD::Reg wrap = VD::splat(4294967296.0);
    auto unsignedPd = [&](__m128i x) {
        const VD::Reg d = _mm_cvtepi32_pd(x);
        return VD::add(d, VD::bitAnd(VD::cmplt(d, VD::zero()), wrap));
    };
    Qsp64s i = 0;
    for (; i + 4 <= len; i += 4) {
        const V16::Reg a = V16::loadu(pSrc + i);
        const __m128i s = V16::madd(a, a);
        VF::storeu(pDst + i, roots4(unsignedPd(s), unsignedPd(_mm_srli_si128(s, 8))));
    }
    for (; i < len; ++i) {
        const double re = pSrc[i].re, im = pSrc[i].im;
        pDst[i] = float(__builtin_sqrt(re * re + im * im));
    }
}

template <class S, class D, class... P>
QspStatus magnitude(D* pDst, int len, const P*... pSrc)
{
    if (QspStatus s = check::vectors(len, pSrc..., pDst)) return s;
    ownsMagnitude(pSrc..., pDst, len);
    return qspStsOk;
}

template <class C, class D>
QspStatus magnitudeScaled(const C* pSrc, D* pDst, int len, int scaleFactor)
{
    if (QspStatus s = check::vectors(len, pSrc, pDst)) return s;
    for (int i = 0; i < len; ++i) {
        const Qsp64s re = pSrc[i].re, im = pSrc[i].im;
        const roots::u128 sum = roots::u128(re * re) + roots::u128(im * im);
        pDst[i] = roots::scaledSqrt<D>(sum, scaleFactor);
    }
    return qspStsOk;
}

}  // namespace

QspStatus qspsMagnitude_32fc(const Qsp32fc* pSrc, Qsp32f* pDst, int len) { return magnitude<Qsp32fc>(pDst, len, pSrc); }
QspStatus qspsMagnitude_64fc(const Qsp64fc* pSrc, Qsp64f* pDst, int len) { return magnitude<Qsp64fc>(pDst, len, pSrc); }
QspStatus qspsMagnitude_32f(const Qsp32f* pSrcRe, const Qsp32f* pSrcIm, Qsp32f* pDst, int len)
{
    return magnitude<Qsp32f>(pDst, len, pSrcRe, pSrcIm);
}
QspStatus qspsMagnitude_64f(const Qsp64f* pSrcRe, const Qsp64f* pSrcIm, Qsp64f* pDst, int len)
{
    return magnitude<Qsp64f>(pDst, len, pSrcRe, pSrcIm);
}
QspStatus qspsMagnitude_16sc32f(const Qsp16sc* pSrc, Qsp32f* pDst, int len) { return magnitude<Qsp16sc>(pDst, len, pSrc); }
QspStatus qspsMagnitude_16sc_Sfs(const Qsp16sc* pSrc, Qsp16s* pDst, int len, int scaleFactor)
{
    return magnitudeScaled(pSrc, pDst, len, scaleFactor);
}
QspStatus qspsMagnitude_32sc_Sfs(const Qsp32sc* pSrc, Qsp32s* pDst, int len, int scaleFactor)
{
    return magnitudeScaled(pSrc, pDst, len, scaleFactor);
}
QspStatus qspsMagnitude_32fc_L(const Qsp32fc* pSrc, Qsp32f* pDst, Qsp64s len)
{
    return forms::chunks(qspsMagnitude_32fc, pSrc, pDst, len);
}
QspStatus qspsMagnitude_64fc_L(const Qsp64fc* pSrc, Qsp64f* pDst, Qsp64s len)
{
    return forms::chunks(qspsMagnitude_64fc, pSrc, pDst, len);
}

}  // namespace y8

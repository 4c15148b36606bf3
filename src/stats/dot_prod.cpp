// SPDX-License-Identifier: BSD-3-Clause
// DotProd: the sum of the products of the elements of two vectors, without
// conjugation.
#include "qsp_validators.h"
#include "reduce.h"

namespace y8 {
namespace {

using reduce::ownsDotExact;

// Complex dot products in double, stored as the result type's parts.
template <bool RealFirst, class TA, class TB, class C>
void dotComplex(const TA* a, const TB* bParts, Qsp64s len, C* pDp)
{
    double re, im;
    reduce::ownsDotComplex<RealFirst>(a, bParts, len, re, im);
    pDp->re = decltype(pDp->re)(re);
    pDp->im = decltype(pDp->im)(im);
}

// The scale-factor thresholds of an exact sum of len products whose
// magnitude stays below 2^bits.
scaling::Limits limitsBelow(int bits) { return {bits + 1, scaling::boundFrom<Qsp32s>()}; }

}  // namespace

// 16-bit integers, exact.

QspStatus qspsDotProd_16s32f(const Qsp16s* pSrc1, const Qsp16s* pSrc2, int len, Qsp32f* pDp)
{
    if (QspStatus s = check::vectors(len, pSrc1, pSrc2, pDp)) return s;
    *pDp = Qsp32f(ownsDotExact<Qsp64s>(pSrc1, pSrc2, len));
    return qspStsOk;
}

QspStatus qspsDotProd_16s64s(const Qsp16s* pSrc1, const Qsp16s* pSrc2, int len, Qsp64s* pDp)
{
    if (QspStatus s = check::vectors(len, pSrc1, pSrc2, pDp)) return s;
    *pDp = ownsDotExact<Qsp64s>(pSrc1, pSrc2, len);
    return qspStsOk;
}

// |sum| <= 2^30 (2^31 - 1) < 2^61.
QspStatus qspsDotProd_16s32s_Sfs(const Qsp16s* pSrc1, const Qsp16s* pSrc2, int len, Qsp32s* pDp, int scaleFactor)
{
    if (QspStatus s = check::vectors(len, pSrc1, pSrc2, pDp)) return s;
    return reduce::scaleExact(ownsDotExact<Qsp64s>(pSrc1, pSrc2, len), scaleFactor, limitsBelow(61), pDp,
                              [&] { return qspsZero_32s(pDp, 1); });
}

// |sum| <= 2^46 (2^31 - 1) < 2^77, summed in 128 bits.
QspStatus qspsDotProd_16s32s32s_Sfs(const Qsp16s* pSrc1, const Qsp32s* pSrc2, int len, Qsp32s* pDp, int scaleFactor)
{
    if (QspStatus s = check::vectors(len, pSrc1, pSrc2, pDp)) return s;
    return reduce::scaleExact(ownsDotExact<__int128>(pSrc1, pSrc2, len), scaleFactor, limitsBelow(77), pDp,
                              [&] { return qspsZero_32s(pDp, 1); });
}

// |sum| <= 2^62 (2^31 - 1) < 2^93, summed in 128 bits.
QspStatus qspsDotProd_32s_Sfs(const Qsp32s* pSrc1, const Qsp32s* pSrc2, int len, Qsp32s* pDp, int scaleFactor)
{
    if (QspStatus s = check::vectors(len, pSrc1, pSrc2, pDp)) return s;
    return reduce::scaleExact(ownsDotExact<__int128>(pSrc1, pSrc2, len), scaleFactor, limitsBelow(93), pDp,
                              [&] { return qspsZero_32s(pDp, 1); });
}

QspStatus qspsDotProd_16sc64sc(const Qsp16sc* pSrc1, const Qsp16sc* pSrc2, int len, Qsp64sc* pDp)
{
    if (QspStatus s = check::vectors(len, pSrc1, pSrc2, pDp)) return s;
    Qsp64s re = 0, im = 0;
    for (int k = 0; k < len; ++k) {
        const Qsp64s ar = pSrc1[k].re, ai = pSrc1[k].im, br = pSrc2[k].re, bi = pSrc2[k].im;
        re += ar * br - ai * bi;
        im += ar * bi + ai * br;
    }
    *pDp = {re, im};
    return qspStsOk;
}

QspStatus qspsDotProd_16s16sc64sc(const Qsp16s* pSrc1, const Qsp16sc* pSrc2, int len, Qsp64sc* pDp)
{
    if (QspStatus s = check::vectors(len, pSrc1, pSrc2, pDp)) return s;
    Qsp64s re = 0, im = 0;
    for (int k = 0; k < len; ++k) {
        re += Qsp64s(pSrc1[k]) * pSrc2[k].re;
        im += Qsp64s(pSrc1[k]) * pSrc2[k].im;
    }
    *pDp = {re, im};
    return qspStsOk;
}

// 32-bit floats: six single-precision lanes.
QspStatus qspsDotProd_32f(const Qsp32f* pSrc1, const Qsp32f* pSrc2, int len, Qsp32f* pDp)
{
    if (QspStatus s = check::vectors(len, pSrc1, pSrc2, pDp)) return s;
    *pDp = reduce::ownsDotProd6_32f(pSrc1, pSrc2, len);
    return qspStsOk;
}

// Double results and complex products: double lanes.

QspStatus qspsDotProd_32f64f(const Qsp32f* pSrc1, const Qsp32f* pSrc2, int len, Qsp64f* pDp)
{
    if (QspStatus s = check::vectors(len, pSrc1, pSrc2, pDp)) return s;
    *pDp = reduce::ownsDotWide(pSrc1, pSrc2, len);
    return qspStsOk;
}

QspStatus qspsDotProd_32f64f_L(const Qsp32f* pSrc1, const Qsp32f* pSrc2, Qsp64s len, Qsp64f* pDp)
{
    if (QspStatus s = check::vectorsL(len, pSrc1, pSrc2, pDp)) return s;
    *pDp = reduce::ownsDotWide(pSrc1, pSrc2, len);
    return qspStsOk;
}

QspStatus qspsDotProd_64f(const Qsp64f* pSrc1, const Qsp64f* pSrc2, int len, Qsp64f* pDp)
{
    if (QspStatus s = check::vectors(len, pSrc1, pSrc2, pDp)) return s;
    *pDp = reduce::ownsDotWide(pSrc1, pSrc2, len);
    return qspStsOk;
}

QspStatus qspsDotProd_64f_L(const Qsp64f* pSrc1, const Qsp64f* pSrc2, Qsp64s len, Qsp64f* pDp)
{
    if (QspStatus s = check::vectorsL(len, pSrc1, pSrc2, pDp)) return s;
    *pDp = reduce::ownsDotWide(pSrc1, pSrc2, len);
    return qspStsOk;
}

QspStatus qspsDotProd_32f32fc(const Qsp32f* pSrc1, const Qsp32fc* pSrc2, int len, Qsp32fc* pDp)
{
    if (QspStatus s = check::vectors(len, pSrc1, pSrc2, pDp)) return s;
    dotComplex<true>(pSrc1, &pSrc2->re, len, pDp);
    return qspStsOk;
}

QspStatus qspsDotProd_32f32fc64fc(const Qsp32f* pSrc1, const Qsp32fc* pSrc2, int len, Qsp64fc* pDp)
{
    if (QspStatus s = check::vectors(len, pSrc1, pSrc2, pDp)) return s;
    dotComplex<true>(pSrc1, &pSrc2->re, len, pDp);
    return qspStsOk;
}

QspStatus qspsDotProd_32f32fc64fc_L(const Qsp32f* pSrc1, const Qsp32fc* pSrc2, Qsp64s len, Qsp64fc* pDp)
{
    if (QspStatus s = check::vectorsL(len, pSrc1, pSrc2, pDp)) return s;
    dotComplex<true>(pSrc1, &pSrc2->re, len, pDp);
    return qspStsOk;
}

QspStatus qspsDotProd_32fc(const Qsp32fc* pSrc1, const Qsp32fc* pSrc2, int len, Qsp32fc* pDp)
{
    if (QspStatus s = check::vectors(len, pSrc1, pSrc2, pDp)) return s;
    dotComplex<false>(&pSrc1->re, &pSrc2->re, len, pDp);
    return qspStsOk;
}

QspStatus qspsDotProd_32fc64fc(const Qsp32fc* pSrc1, const Qsp32fc* pSrc2, int len, Qsp64fc* pDp)
{
    if (QspStatus s = check::vectors(len, pSrc1, pSrc2, pDp)) return s;
    dotComplex<false>(&pSrc1->re, &pSrc2->re, len, pDp);
    return qspStsOk;
}

QspStatus qspsDotProd_32fc64fc_L(const Qsp32fc* pSrc1, const Qsp32fc* pSrc2, Qsp64s len, Qsp64fc* pDp)
{
    if (QspStatus s = check::vectorsL(len, pSrc1, pSrc2, pDp)) return s;
    dotComplex<false>(&pSrc1->re, &pSrc2->re, len, pDp);
    return qspStsOk;
}

QspStatus qspsDotProd_64f64fc(const Qsp64f* pSrc1, const Qsp64fc* pSrc2, int len, Qsp64fc* pDp)
{
    if (QspStatus s = check::vectors(len, pSrc1, pSrc2, pDp)) return s;
    dotComplex<true>(pSrc1, &pSrc2->re, len, pDp);
    return qspStsOk;
}

QspStatus qspsDotProd_64f64fc_L(const Qsp64f* pSrc1, const Qsp64fc* pSrc2, Qsp64s len, Qsp64fc* pDp)
{
    if (QspStatus s = check::vectorsL(len, pSrc1, pSrc2, pDp)) return s;
    dotComplex<true>(pSrc1, &pSrc2->re, len, pDp);
    return qspStsOk;
}

QspStatus qspsDotProd_64fc(const Qsp64fc* pSrc1, const Qsp64fc* pSrc2, int len, Qsp64fc* pDp)
{
    if (QspStatus s = check::vectors(len, pSrc1, pSrc2, pDp)) return s;
    dotComplex<false>(&pSrc1->re, &pSrc2->re, len, pDp);
    return qspStsOk;
}

QspStatus qspsDotProd_64fc_L(const Qsp64fc* pSrc1, const Qsp64fc* pSrc2, Qsp64s len, Qsp64fc* pDp)
{
    if (QspStatus s = check::vectorsL(len, pSrc1, pSrc2, pDp)) return s;
    dotComplex<false>(&pSrc1->re, &pSrc2->re, len, pDp);
    return qspStsOk;
}

}  // namespace y8

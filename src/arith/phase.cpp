// SPDX-License-Identifier: BSD-3-Clause
// Phase: the angle atan2(im, re) of complex elements, in radians, from
// interleaved or separate parts, computed in double precision (within 2.5
// ULP for double results; single results are that angle rounded once
// more). The scaled 16-bit form rounds the angle times 2^-scaleFactor to
// nearest even and saturates.
#include "forms.h"
#include "mathfn/arctan.h"
#include "rounding.h"

namespace y8 {
namespace {

// Angles in blocks: the parts widened to double, the block's arctangents
// two at a time, then each angle delivered by put(i, angle).
template <class ImAt, class ReAt, class Put>
void anglesInBlocks(int len, ImAt imAt, ReAt reAt, Put put)
{
    constexpr int kBlock = 256;
    double im[kBlock], re[kBlock];
    for (int start = 0; start < len; start += kBlock) {
        const int n = len - start < kBlock ? len - start : kBlock;
        for (int j = 0; j < n; ++j) im[j] = double(imAt(start + j)), re[j] = double(reAt(start + j));
        mathfn::atan2(im, re, im, n);
        for (int j = 0; j < n; ++j) put(start + j, im[j]);
    }
}

template <class C, class D>
QspStatus phase(const C* pSrc, D* pDst, int len)
{
    if (QspStatus s = check::vectors(len, pSrc, pDst)) return s;
    anglesInBlocks(
        len, [=](int i) { return pSrc[i].im; }, [=](int i) { return pSrc[i].re; },
        [=](int i, double a) { pDst[i] = D(a); });
    return qspStsOk;
}

template <class P>
QspStatus phaseParts(const P* pRe, const P* pIm, P* pDst, int len)
{
    if (QspStatus s = check::vectors(len, pRe, pIm, pDst)) return s;
    anglesInBlocks(
        len, [=](int i) { return pIm[i]; }, [=](int i) { return pRe[i]; }, [=](int i, double a) { pDst[i] = P(a); });
    return qspStsOk;
}

}  // namespace

QspStatus qspsPhase_32fc(const Qsp32fc* pSrc, Qsp32f* pDst, int len) { return phase(pSrc, pDst, len); }
QspStatus qspsPhase_64fc(const Qsp64fc* pSrc, Qsp64f* pDst, int len) { return phase(pSrc, pDst, len); }
QspStatus qspsPhase_32f(const Qsp32f* pSrcRe, const Qsp32f* pSrcIm, Qsp32f* pDst, int len)
{
    return phaseParts(pSrcRe, pSrcIm, pDst, len);
}
QspStatus qspsPhase_64f(const Qsp64f* pSrcRe, const Qsp64f* pSrcIm, Qsp64f* pDst, int len)
{
    return phaseParts(pSrcRe, pSrcIm, pDst, len);
}
QspStatus qspsPhase_16sc32f(const Qsp16sc* pSrc, Qsp32f* pDst, int len) { return phase(pSrc, pDst, len); }
QspStatus qspsPhase_16sc_Sfs(const Qsp16sc* pSrc, Qsp16s* pDst, int len, int scaleFactor)
{
    if (QspStatus s = check::vectors(len, pSrc, pDst)) return s;
    const double k = rounding::scaleOf(scaleFactor);
    anglesInBlocks(
        len, [=](int i) { return pSrc[i].im; }, [=](int i) { return pSrc[i].re; },
        [=](int i, double a) { pDst[i] = rounding::toInt<rounding::kNear, Qsp16s>(a * k); });
    return qspStsOk;
}

}  // namespace y8

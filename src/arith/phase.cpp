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

template <class C, class D>
QspStatus phase(const C* pSrc, D* pDst, int len)
{
    if (QspStatus s = check::vectors(len, pSrc, pDst)) return s;
    for (int i = 0; i < len; ++i) pDst[i] = D(mathfn::atan2(double(pSrc[i].im), double(pSrc[i].re)));
    return qspStsOk;
}

template <class P>
QspStatus phaseParts(const P* pRe, const P* pIm, P* pDst, int len)
{
    if (QspStatus s = check::vectors(len, pRe, pIm, pDst)) return s;
    for (int i = 0; i < len; ++i) pDst[i] = P(mathfn::atan2(double(pIm[i]), double(pRe[i])));
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
    for (int i = 0; i < len; ++i)
        pDst[i] = rounding::toInt<rounding::kNear, Qsp16s>(mathfn::atan2(pSrc[i].im, pSrc[i].re) * k);
    return qspStsOk;
}

}  // namespace y8

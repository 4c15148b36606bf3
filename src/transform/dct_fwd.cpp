// SPDX-License-Identifier: BSD-3-Clause
// DCTFwd: the orthonormal type-II DCT, out of place and in place.
#include "dct_kernels.h"

namespace y8 {

QspStatus qspsDCTFwd_32f(const Qsp32f* pSrc, Qsp32f* pDst, const QspsDCTFwdSpec_32f* pDCTSpec, Qsp8u* pBuffer)
{
    return dct::ownsDctCall<float, false>(pSrc, pDst, pDCTSpec, pBuffer, dct::kFwd32f);
}

QspStatus qspsDCTFwd_32f_I(Qsp32f* pSrcDst, const QspsDCTFwdSpec_32f* pDCTSpec, Qsp8u* pBuffer)
{
    return qspsDCTFwd_32f(pSrcDst, pSrcDst, pDCTSpec, pBuffer);
}

QspStatus qspsDCTFwd_64f(const Qsp64f* pSrc, Qsp64f* pDst, const QspsDCTFwdSpec_64f* pDCTSpec, Qsp8u* pBuffer)
{
    return dct::ownsDctCall<double, false>(pSrc, pDst, pDCTSpec, pBuffer, dct::kFwd64f);
}

QspStatus qspsDCTFwd_64f_I(Qsp64f* pSrcDst, const QspsDCTFwdSpec_64f* pDCTSpec, Qsp8u* pBuffer)
{
    return qspsDCTFwd_64f(pSrcDst, pSrcDst, pDCTSpec, pBuffer);
}

}  // namespace y8

// SPDX-License-Identifier: BSD-3-Clause
// DCTInv: the inverse of DCTFwd (type III with the same factors), out of place
// and in place.
#include "dct_kernels.h"

namespace y8 {

QspStatus qspsDCTInv_32f(const Qsp32f* pSrc, Qsp32f* pDst, const QspsDCTInvSpec_32f* pDCTSpec, Qsp8u* pBuffer)
{
    return dct::ownsDctCall<float, true>(pSrc, pDst, pDCTSpec, pBuffer, dct::kInv32f);
}

QspStatus qspsDCTInv_32f_I(Qsp32f* pSrcDst, const QspsDCTInvSpec_32f* pDCTSpec, Qsp8u* pBuffer)
{
    return qspsDCTInv_32f(pSrcDst, pSrcDst, pDCTSpec, pBuffer);
}

QspStatus qspsDCTInv_64f(const Qsp64f* pSrc, Qsp64f* pDst, const QspsDCTInvSpec_64f* pDCTSpec, Qsp8u* pBuffer)
{
    return dct::ownsDctCall<double, true>(pSrc, pDst, pDCTSpec, pBuffer, dct::kInv64f);
}

QspStatus qspsDCTInv_64f_I(Qsp64f* pSrcDst, const QspsDCTInvSpec_64f* pDCTSpec, Qsp8u* pBuffer)
{
    return qspsDCTInv_64f(pSrcDst, pSrcDst, pDCTSpec, pBuffer);
}

}  // namespace y8

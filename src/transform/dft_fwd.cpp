// SPDX-License-Identifier: BSD-3-Clause
// DFTFwd: the forward DFT of any length, complex and real kinds, and the
// direct evaluation on half-precision data.
#include "checks.h"
#include "dft_entry.h"

namespace y8 {

using dft::Packed;

QspStatus qspsDFTFwd_CToC_16fc(const Qsp16fc* pSrc, Qsp16fc* pDst, const QspsDFTSpec_C_16fc* pDFTSpec, Qsp8u* pBuffer)
{
    return dft::ownsDftC16fc<false>(pSrc, pDst, pDFTSpec, pBuffer);
}

QspStatus qspsDFTFwd_CToC_32fc(const Qsp32fc* pSrc, Qsp32fc* pDst, const QspsDFTSpec_C_32fc* pDFTSpec, Qsp8u* pBuffer)
{
    return dft::ownsDftC32fc<false>(pSrc, pDst, pDFTSpec, pBuffer);
}

QspStatus qspsDFTFwd_CToC_32f(const Qsp32f* pSrcRe, const Qsp32f* pSrcIm, Qsp32f* pDstRe, Qsp32f* pDstIm,
                             const QspsDFTSpec_C_32f* pDFTSpec, Qsp8u* pBuffer)
{
    return dft::ownsDftC32f<false>(pSrcRe, pSrcIm, pDstRe, pDstIm, pDFTSpec, pBuffer);
}

QspStatus qspsDFTFwd_CToC_64fc(const Qsp64fc* pSrc, Qsp64fc* pDst, const QspsDFTSpec_C_64fc* pDFTSpec, Qsp8u* pBuffer)
{
    return dft::ownsDftC64fc<false>(pSrc, pDst, pDFTSpec, pBuffer);
}

QspStatus qspsDFTFwd_CToC_64f(const Qsp64f* pSrcRe, const Qsp64f* pSrcIm, Qsp64f* pDstRe, Qsp64f* pDstIm,
                             const QspsDFTSpec_C_64f* pDFTSpec, Qsp8u* pBuffer)
{
    return dft::ownsDftC64f<false>(pSrcRe, pSrcIm, pDstRe, pDstIm, pDFTSpec, pBuffer);
}

QspStatus qspsDFTFwd_RToPack_32f(const Qsp32f* pSrc, Qsp32f* pDst, const QspsDFTSpec_R_32f* pDFTSpec, Qsp8u* pBuffer)
{
    return dft::ownsDftReal<float, false, Packed::Pack>(pSrc, pDst, pDFTSpec, pBuffer);
}

QspStatus qspsDFTFwd_RToPerm_32f(const Qsp32f* pSrc, Qsp32f* pDst, const QspsDFTSpec_R_32f* pDFTSpec, Qsp8u* pBuffer)
{
    return dft::ownsDftReal<float, false, Packed::Perm>(pSrc, pDst, pDFTSpec, pBuffer);
}

QspStatus qspsDFTFwd_RToCCS_32f(const Qsp32f* pSrc, Qsp32f* pDst, const QspsDFTSpec_R_32f* pDFTSpec, Qsp8u* pBuffer)
{
    return dft::ownsDftReal<float, false, Packed::Ccs>(pSrc, pDst, pDFTSpec, pBuffer);
}

QspStatus qspsDFTFwd_RToPack_64f(const Qsp64f* pSrc, Qsp64f* pDst, const QspsDFTSpec_R_64f* pDFTSpec, Qsp8u* pBuffer)
{
    return dft::ownsDftReal<double, false, Packed::Pack>(pSrc, pDst, pDFTSpec, pBuffer);
}

QspStatus qspsDFTFwd_RToPerm_64f(const Qsp64f* pSrc, Qsp64f* pDst, const QspsDFTSpec_R_64f* pDFTSpec, Qsp8u* pBuffer)
{
    return dft::ownsDftReal<double, false, Packed::Perm>(pSrc, pDst, pDFTSpec, pBuffer);
}

QspStatus qspsDFTFwd_RToCCS_64f(const Qsp64f* pSrc, Qsp64f* pDst, const QspsDFTSpec_R_64f* pDFTSpec, Qsp8u* pBuffer)
{
    return dft::ownsDftReal<double, false, Packed::Ccs>(pSrc, pDst, pDFTSpec, pBuffer);
}

QspStatus qspsDFTFwd_Direct_CToC_16fc(const Qsp16fc* pSrc, Qsp16fc* pDst, int len)
{
    return dft::ownsDftDirect16fc<false>(pSrc, pDst, len);
}

}  // namespace y8

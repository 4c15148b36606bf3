// SPDX-License-Identifier: BSD-3-Clause
// DFTInv: the inverse DFT of any length, complex and real kinds (from the
// packed half spectra), and the direct evaluation on half-precision data.
#include "checks.h"
#include "dft_entry.h"

namespace y8 {

using dft::Packed;

QspStatus qspsDFTInv_CToC_16fc(const Qsp16fc* pSrc, Qsp16fc* pDst, const QspsDFTSpec_C_16fc* pDFTSpec, Qsp8u* pBuffer)
{
    return dft::ownsDftC16fc<true>(pSrc, pDst, pDFTSpec, pBuffer);
}

QspStatus qspsDFTInv_CToC_32fc(const Qsp32fc* pSrc, Qsp32fc* pDst, const QspsDFTSpec_C_32fc* pDFTSpec, Qsp8u* pBuffer)
{
    return dft::ownsDftC32fc<true>(pSrc, pDst, pDFTSpec, pBuffer);
}

QspStatus qspsDFTInv_CToC_32f(const Qsp32f* pSrcRe, const Qsp32f* pSrcIm, Qsp32f* pDstRe, Qsp32f* pDstIm,
                             const QspsDFTSpec_C_32f* pDFTSpec, Qsp8u* pBuffer)
{
    return dft::ownsDftC32f<true>(pSrcRe, pSrcIm, pDstRe, pDstIm, pDFTSpec, pBuffer);
}

QspStatus qspsDFTInv_CToC_64fc(const Qsp64fc* pSrc, Qsp64fc* pDst, const QspsDFTSpec_C_64fc* pDFTSpec, Qsp8u* pBuffer)
{
    return dft::ownsDftC64fc<true>(pSrc, pDst, pDFTSpec, pBuffer);
}

QspStatus qspsDFTInv_CToC_64f(const Qsp64f* pSrcRe, const Qsp64f* pSrcIm, Qsp64f* pDstRe, Qsp64f* pDstIm,
                             const QspsDFTSpec_C_64f* pDFTSpec, Qsp8u* pBuffer)
{
    return dft::ownsDftC64f<true>(pSrcRe, pSrcIm, pDstRe, pDstIm, pDFTSpec, pBuffer);
}

QspStatus qspsDFTInv_PackToR_32f(const Qsp32f* pSrc, Qsp32f* pDst, const QspsDFTSpec_R_32f* pDFTSpec, Qsp8u* pBuffer)
{
    return dft::ownsDftReal<float, true, Packed::Pack>(pSrc, pDst, pDFTSpec, pBuffer);
}

QspStatus qspsDFTInv_PermToR_32f(const Qsp32f* pSrc, Qsp32f* pDst, const QspsDFTSpec_R_32f* pDFTSpec, Qsp8u* pBuffer)
{
    return dft::ownsDftReal<float, true, Packed::Perm>(pSrc, pDst, pDFTSpec, pBuffer);
}

QspStatus qspsDFTInv_CCSToR_32f(const Qsp32f* pSrc, Qsp32f* pDst, const QspsDFTSpec_R_32f* pDFTSpec, Qsp8u* pBuffer)
{
    return dft::ownsDftReal<float, true, Packed::Ccs>(pSrc, pDst, pDFTSpec, pBuffer);
}

QspStatus qspsDFTInv_PackToR_64f(const Qsp64f* pSrc, Qsp64f* pDst, const QspsDFTSpec_R_64f* pDFTSpec, Qsp8u* pBuffer)
{
    return dft::ownsDftReal<double, true, Packed::Pack>(pSrc, pDst, pDFTSpec, pBuffer);
}

QspStatus qspsDFTInv_PermToR_64f(const Qsp64f* pSrc, Qsp64f* pDst, const QspsDFTSpec_R_64f* pDFTSpec, Qsp8u* pBuffer)
{
    return dft::ownsDftReal<double, true, Packed::Perm>(pSrc, pDst, pDFTSpec, pBuffer);
}

QspStatus qspsDFTInv_CCSToR_64f(const Qsp64f* pSrc, Qsp64f* pDst, const QspsDFTSpec_R_64f* pDFTSpec, Qsp8u* pBuffer)
{
    return dft::ownsDftReal<double, true, Packed::Ccs>(pSrc, pDst, pDFTSpec, pBuffer);
}

QspStatus qspsDFTInv_Direct_CToC_16fc(const Qsp16fc* pSrc, Qsp16fc* pDst, int len)
{
    return dft::ownsDftDirect16fc<true>(pSrc, pDst, len);
}

}  // namespace y8

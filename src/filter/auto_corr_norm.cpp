// SPDX-License-Identifier: BSD-3-Clause
// AutoCorrNorm: the autocorrelation of a vector for lags 0 .. dstLen - 1,
// normalised as asked. It is the cross-correlation of the vector with
// itself from lag 0: the same checks in the same order, the same buffer.
#include "qsp_validators.h"

namespace y8 {

QspStatus qspsAutoCorrNormGetBufferSize(int srcLen, int dstLen, QspDataType dataType, QspAlgType algType,
                                        int* pBufferSize)
{
    return qspsCrossCorrNormGetBufferSize(srcLen, srcLen, dstLen, 0, dataType, algType, pBufferSize);
}

QspStatus qspsAutoCorrNorm_32f(const Qsp32f* pSrc, Qsp32f* pDst, int srcLen, int dstLen, QspAlgType algType,
                               QspCorrNorm normType, Qsp8u* pBuffer)
{
    return qspsCrossCorrNorm_32f(pSrc, pSrc, pDst, srcLen, srcLen, dstLen, 0, algType, normType, pBuffer);
}

QspStatus qspsAutoCorrNorm_64f(const Qsp64f* pSrc, Qsp64f* pDst, int srcLen, int dstLen, QspAlgType algType,
                               QspCorrNorm normType, Qsp8u* pBuffer)
{
    return qspsCrossCorrNorm_64f(pSrc, pSrc, pDst, srcLen, srcLen, dstLen, 0, algType, normType, pBuffer);
}

QspStatus qspsAutoCorrNorm_32fc(const Qsp32fc* pSrc, Qsp32fc* pDst, int srcLen, int dstLen, QspAlgType algType,
                                QspCorrNorm normType, Qsp8u* pBuffer)
{
    return qspsCrossCorrNorm_32fc(pSrc, pSrc, pDst, srcLen, srcLen, dstLen, 0, algType, normType, pBuffer);
}

QspStatus qspsAutoCorrNorm_64fc(const Qsp64fc* pSrc, Qsp64fc* pDst, int srcLen, int dstLen, QspAlgType algType,
                                QspCorrNorm normType, Qsp8u* pBuffer)
{
    return qspsCrossCorrNorm_64fc(pSrc, pSrc, pDst, srcLen, srcLen, dstLen, 0, algType, normType, pBuffer);
}

QspStatus qspsAutoCorrNorm_16s32f(const Qsp16s* pSrc, Qsp32f* pDst, int srcLen, int dstLen, QspAlgType algType,
                                  QspCorrNorm normType, Qsp8u* pBuffer)
{
    return qspsCrossCorrNorm_16s32f(pSrc, pSrc, pDst, srcLen, srcLen, dstLen, 0, algType, normType, pBuffer);
}

QspStatus qspsAutoCorrNorm_16s_Sfs(const Qsp16s* pSrc, Qsp16s* pDst, int srcLen, int dstLen, QspAlgType algType,
                                   QspCorrNorm normType, Qsp8u* pBuffer, int scaleFactor)
{
    return qspsCrossCorrNorm_16s_Sfs(pSrc, pSrc, pDst, srcLen, srcLen, dstLen, 0, algType, normType, pBuffer,
                                     scaleFactor);
}

}  // namespace y8

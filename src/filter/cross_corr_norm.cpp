// SPDX-License-Identifier: BSD-3-Clause
// CrossCorrNorm: the cross-correlation of two vectors over a range of lags,
// normalised as asked, directly or by FFT, with the work-buffer size query.
#include "checks.h"
#include "correlation.h"
#include "qsp_validators.h"

namespace y8 {
namespace {

inline bool validAlg(QspAlgType alg) { return static_cast<unsigned>(alg) <= 2u; }

template <class D, class S>
QspStatus checks(const S* pSrc1, const S* pSrc2, const D* pDst, int n1, int n2, int dstLen, QspAlgType alg, int norm,
                 const Qsp8u* pBuffer)
{
    if (QspStatus s = check::pointers(pSrc1, pSrc2, pDst, pBuffer)) return s;
    if (n1 < 1 || n2 < 1 || dstLen < 1) return qspStsBadSize;
    if (!validAlg(alg)) return qspStsBadAlgType;
    if (!corr::validNorm(norm)) return qspStsBadArgument;
    return qspStsOk;
}

template <class D>
QspStatus crossCorr(const D* pSrc1, const D* pSrc2, D* pDst, int n1, int n2, int dstLen, int lowLag, QspAlgType alg,
                    QspCorrNorm norm, Qsp8u* pBuffer)
{
    if (QspStatus s = checks(pSrc1, pSrc2, pDst, n1, n2, dstLen, alg, norm, pBuffer)) return s;
    if (corr::bufferBytes<D>(n1, n2, dstLen, lowLag, alg) < 0) return qspStsOverflow;
    return corr::ownsCorrelate(pSrc1, n1, pSrc2, n2, pDst, dstLen, lowLag, alg, norm, pBuffer);
}

}  // namespace

QspStatus qspsCrossCorrNormGetBufferSize(int src1Len, int src2Len, int dstLen, int lowLag, QspDataType dataType,
                                         QspAlgType algType, int* pBufferSize)
{
    if (pBufferSize == nullptr) return qspStsNullPtr;
    if (src1Len < 1 || src2Len < 1 || dstLen < 1) return qspStsBadSize;
    if (dataType != qsp32f && dataType != qsp64f && dataType != qsp32fc && dataType != qsp64fc && dataType != qsp16s)
        return qspStsBadDataType;
    if (!validAlg(algType)) return qspStsBadAlgType;
    Qsp64s bytes;
    switch (dataType) {
    case qsp32f: bytes = corr::bufferBytes<Qsp32f>(src1Len, src2Len, dstLen, lowLag, algType); break;
    case qsp64f: bytes = corr::bufferBytes<Qsp64f>(src1Len, src2Len, dstLen, lowLag, algType); break;
    case qsp32fc: bytes = corr::bufferBytes<Qsp32fc>(src1Len, src2Len, dstLen, lowLag, algType); break;
    case qsp64fc: bytes = corr::bufferBytes<Qsp64fc>(src1Len, src2Len, dstLen, lowLag, algType); break;
    default: bytes = corr::bufferBytes16(src1Len, src2Len, dstLen, lowLag, algType); break;
    }
    if (bytes < 0) return qspStsOverflow;
    *pBufferSize = int(bytes);
    return qspStsOk;
}

QspStatus qspsCrossCorrNorm_32f(const Qsp32f* pSrc1, const Qsp32f* pSrc2, Qsp32f* pDst, int src1Len, int src2Len,
                                int dstLen, int lowLag, QspAlgType algType, QspCorrNorm normType, Qsp8u* pBuffer)
{
    return crossCorr(pSrc1, pSrc2, pDst, src1Len, src2Len, dstLen, lowLag, algType, normType, pBuffer);
}

QspStatus qspsCrossCorrNorm_64f(const Qsp64f* pSrc1, const Qsp64f* pSrc2, Qsp64f* pDst, int src1Len, int src2Len,
                                int dstLen, int lowLag, QspAlgType algType, QspCorrNorm normType, Qsp8u* pBuffer)
{
    return crossCorr(pSrc1, pSrc2, pDst, src1Len, src2Len, dstLen, lowLag, algType, normType, pBuffer);
}

QspStatus qspsCrossCorrNorm_32fc(const Qsp32fc* pSrc1, const Qsp32fc* pSrc2, Qsp32fc* pDst, int src1Len, int src2Len,
                                 int dstLen, int lowLag, QspAlgType algType, QspCorrNorm normType, Qsp8u* pBuffer)
{
    return crossCorr(pSrc1, pSrc2, pDst, src1Len, src2Len, dstLen, lowLag, algType, normType, pBuffer);
}

QspStatus qspsCrossCorrNorm_64fc(const Qsp64fc* pSrc1, const Qsp64fc* pSrc2, Qsp64fc* pDst, int src1Len, int src2Len,
                                 int dstLen, int lowLag, QspAlgType algType, QspCorrNorm normType, Qsp8u* pBuffer)
{
    return crossCorr(pSrc1, pSrc2, pDst, src1Len, src2Len, dstLen, lowLag, algType, normType, pBuffer);
}

QspStatus qspsCrossCorrNorm_16s32f(const Qsp16s* pSrc1, const Qsp16s* pSrc2, Qsp32f* pDst, int src1Len, int src2Len,
                                   int dstLen, int lowLag, QspAlgType algType, QspCorrNorm normType, Qsp8u* pBuffer)
{
    if (QspStatus s = checks(pSrc1, pSrc2, pDst, src1Len, src2Len, dstLen, algType, normType, pBuffer)) return s;
    if (corr::bufferBytes16(src1Len, src2Len, dstLen, lowLag, algType) < 0) return qspStsOverflow;
    return corr::sink32f(pDst, normType, [&](auto store) {
        return corr::ownsCorrelate16(pSrc1, src1Len, pSrc2, src2Len, dstLen, lowLag, algType, normType, pBuffer, store);
    });
}

QspStatus qspsCrossCorrNorm_16s_Sfs(const Qsp16s* pSrc1, const Qsp16s* pSrc2, Qsp16s* pDst, int src1Len, int src2Len,
                                    int dstLen, int lowLag, QspAlgType algType, QspCorrNorm normType, Qsp8u* pBuffer,
                                    int scaleFactor)
{
    if (QspStatus s = checks(pSrc1, pSrc2, pDst, src1Len, src2Len, dstLen, algType, normType, pBuffer)) return s;
    if (corr::bufferBytes16(src1Len, src2Len, dstLen, lowLag, algType) < 0) return qspStsOverflow;
    const Qsp64s m = src1Len < src2Len ? src1Len : src2Len;
    return corr::sink16s(pDst, dstLen, normType, scaleFactor, m, [&](auto store) {
        return corr::ownsCorrelate16(pSrc1, src1Len, pSrc2, src2Len, dstLen, lowLag, algType, normType, pBuffer, store);
    });
}

}  // namespace y8

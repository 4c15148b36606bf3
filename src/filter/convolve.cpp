// SPDX-License-Identifier: BSD-3-Clause
// Convolve: the full linear convolution of two vectors, directly or by FFT
// as the algorithm type asks (or, for qspAlgAuto, as is cheaper for the
// lengths), with the work-buffer size query.
#include "checks.h"
#include "convolution.h"
#include "correlation.h"
#include "qsp_validators.h"

namespace y8 {
namespace {

inline bool validAlg(QspAlgType alg) { return static_cast<unsigned>(alg) <= 2u; }

// The shorter operand serves as taps.
struct Shape {
    Qsp64s m, len, count;
    explicit Shape(int n1, int n2)
        : m(n1 < n2 ? n1 : n2), len(n1 < n2 ? n2 : n1), count(Qsp64s(n1) + n2 - 1) {}
};

// Work-buffer bytes for the lengths, by type: 16-bit data also keeps its
// exact 64-bit sums.
Qsp64s bufferBytes(int n1, int n2, QspDataType type, QspAlgType alg)
{
    const Shape sh(n1, n2);
    switch (type) {
    case qsp32f: return conv::plan<Qsp32f>(sh.m, sh.len, sh.count, alg).bytes;
    case qsp64f: return conv::plan<Qsp64f>(sh.m, sh.len, sh.count, alg).bytes;
    case qsp32fc: return conv::plan<Qsp32fc>(sh.m, sh.len, sh.count, alg).bytes;
    case qsp64fc: return conv::plan<Qsp64fc>(sh.m, sh.len, sh.count, alg).bytes;
    default: {
        const conv::Plan16 p = conv::plan16(sh.m, sh.len, sh.count, alg);
        return p.bytes < 0 ? -1 : p.bytes + conv::roundUp64(8 * sh.count);
    }
    }
}

template <class D>
QspStatus convolve(const D* pSrc1, const D* pSrc2, D* pDst, int n1, int n2, QspAlgType alg, Qsp8u* pBuffer)
{
    if (QspStatus s = check::pointers(pSrc1, pSrc2, pDst, pBuffer)) return s;
    if (n1 < 1 || n2 < 1) return qspStsBadSize;
    if (!validAlg(alg)) return qspStsBadAlgType;
    const Shape sh(n1, n2);
    const conv::Plan pl = conv::plan<D>(sh.m, sh.len, sh.count, alg);
    if (pl.bytes < 0) return qspStsOverflow;
    const D* taps = n1 <= n2 ? pSrc1 : pSrc2;
    const D* x = n1 <= n2 ? pSrc2 : pSrc1;
    return conv::ownsConvolve(conv::Taps<D, 1, false>{taps}, sh.m, x, sh.len, 0, pDst, sh.count, pl, pBuffer);
}

// The exact sums of 16-bit operands, handed to store(j, v) one by one.
template <class Store>
QspStatus convolve16(const Qsp16s* pSrc1, const Qsp16s* pSrc2, int n1, int n2, QspAlgType alg, Qsp8u* pBuffer,
                     Store store)
{
    const Shape sh(n1, n2);
    const conv::Plan16 pl = conv::plan16(sh.m, sh.len, sh.count, alg);
    if (pl.bytes < 0) return qspStsOverflow;
    Qsp64s* acc = reinterpret_cast<Qsp64s*>(conv::alignUp64(pBuffer));
    Qsp8u* rest = reinterpret_cast<Qsp8u*>(acc) + conv::roundUp64(8 * sh.count);
    const Qsp16s* taps = n1 <= n2 ? pSrc1 : pSrc2;
    const Qsp16s* x = n1 <= n2 ? pSrc2 : pSrc1;
    if (QspStatus s = conv::ownsConvolve16(taps, 1, sh.m, x, sh.len, 0, sh.count, acc, pl, rest)) return s;
    for (Qsp64s j = 0; j < sh.count; ++j) store(j, acc[j], 1.0);
    return qspStsOk;
}

template <class D>
QspStatus checks16(const Qsp16s* pSrc1, const Qsp16s* pSrc2, const D* pDst, int n1, int n2, QspAlgType alg,
                   const Qsp8u* pBuffer)
{
    if (QspStatus s = check::pointers(pSrc1, pSrc2, pDst, pBuffer)) return s;
    if (n1 < 1 || n2 < 1) return qspStsBadSize;
    if (!validAlg(alg)) return qspStsBadAlgType;
    return qspStsOk;
}

}  // namespace

QspStatus qspsConvolveGetBufferSize(int src1Len, int src2Len, QspDataType dataType, QspAlgType algType,
                                    int* pBufferSize)
{
    if (pBufferSize == nullptr) return qspStsNullPtr;
    if (src1Len < 1 || src2Len < 1) return qspStsBadSize;
    if (dataType != qsp32f && dataType != qsp64f && dataType != qsp32fc && dataType != qsp64fc && dataType != qsp16s)
        return qspStsBadDataType;
    if (!validAlg(algType)) return qspStsBadAlgType;
    const Qsp64s bytes = bufferBytes(src1Len, src2Len, dataType, algType);
    if (bytes < 0) return qspStsOverflow;
    *pBufferSize = int(bytes);
    return qspStsOk;
}

QspStatus qspsConvolve_32f(const Qsp32f* pSrc1, const Qsp32f* pSrc2, Qsp32f* pDst, int src1Len, int src2Len,
                           QspAlgType algType, Qsp8u* pBuffer)
{
    return convolve(pSrc1, pSrc2, pDst, src1Len, src2Len, algType, pBuffer);
}

QspStatus qspsConvolve_64f(const Qsp64f* pSrc1, const Qsp64f* pSrc2, Qsp64f* pDst, int src1Len, int src2Len,
                           QspAlgType algType, Qsp8u* pBuffer)
{
    return convolve(pSrc1, pSrc2, pDst, src1Len, src2Len, algType, pBuffer);
}

QspStatus qspsConvolve_32fc(const Qsp32fc* pSrc1, const Qsp32fc* pSrc2, Qsp32fc* pDst, int src1Len, int src2Len,
                            QspAlgType algType, Qsp8u* pBuffer)
{
    return convolve(pSrc1, pSrc2, pDst, src1Len, src2Len, algType, pBuffer);
}

QspStatus qspsConvolve_64fc(const Qsp64fc* pSrc1, const Qsp64fc* pSrc2, Qsp64fc* pDst, int src1Len, int src2Len,
                            QspAlgType algType, Qsp8u* pBuffer)
{
    return convolve(pSrc1, pSrc2, pDst, src1Len, src2Len, algType, pBuffer);
}

QspStatus qspsConvolve_16s32f(const Qsp16s* pSrc1, const Qsp16s* pSrc2, Qsp32f* pDst, int src1Len, int src2Len,
                              QspAlgType algType, Qsp8u* pBuffer)
{
    if (QspStatus s = checks16(pSrc1, pSrc2, pDst, src1Len, src2Len, algType, pBuffer)) return s;
    return corr::sink32f(pDst, corr::kNone, [&](auto store) {
        return convolve16(pSrc1, pSrc2, src1Len, src2Len, algType, pBuffer, store);
    });
}

QspStatus qspsConvolve_16s_Sfs(const Qsp16s* pSrc1, const Qsp16s* pSrc2, Qsp16s* pDst, int src1Len, int src2Len,
                               QspAlgType algType, Qsp8u* pBuffer, int scaleFactor)
{
    if (QspStatus s = checks16(pSrc1, pSrc2, pDst, src1Len, src2Len, algType, pBuffer)) return s;
    const Shape sh(src1Len, src2Len);
    return corr::sink16s(pDst, sh.count, corr::kNone, scaleFactor, sh.m, [&](auto store) {
        return convolve16(pSrc1, pSrc2, src1Len, src2Len, algType, pBuffer, store);
    });
}

}  // namespace y8

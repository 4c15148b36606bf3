// SPDX-License-Identifier: BSD-3-Clause
// Norm: the infinity, L1 and L2 norms of a vector, and the squared L2 norm.
#include "norms.h"

namespace y8 {

using reduce::Elements;

// The largest magnitude of a 16-bit element.
constexpr Qsp64s kLargest = 32768;

QspStatus qspsNorm_Inf_16s32f(const Qsp16s* pSrc, int len, Qsp32f* pNorm)
{
    if (QspStatus s = check::vectors(len, pSrc, pNorm)) return s;
    *pNorm = norms::inf16s32f(Elements<Qsp16s>{pSrc}, len);
    return qspStsOk;
}

QspStatus qspsNorm_Inf_16s32s_Sfs(const Qsp16s* pSrc, int len, Qsp32s* pNorm, int scaleFactor)
{
    if (QspStatus s = check::vectors(len, pSrc, pNorm)) return s;
    *pNorm = norms::inf16s32sSfs(Elements<Qsp16s>{pSrc}, len, scaleFactor);
    return qspStsOk;
}

QspStatus qspsNorm_Inf_32f(const Qsp32f* pSrc, int len, Qsp32f* pNorm)
{
    if (QspStatus s = check::vectors(len, pSrc, pNorm)) return s;
    *pNorm = norms::infReal<Qsp32f>(Elements<Qsp32f>{pSrc}, len);
    return qspStsOk;
}

QspStatus qspsNorm_Inf_32fc32f(const Qsp32fc* pSrc, int len, Qsp32f* pNorm)
{
    if (QspStatus s = check::vectors(len, pSrc, pNorm)) return s;
    *pNorm = Qsp32f(norms::infComplex(Elements<Qsp32f>{&pSrc->re}, len));
    return qspStsOk;
}

QspStatus qspsNorm_Inf_64f(const Qsp64f* pSrc, int len, Qsp64f* pNorm)
{
    if (QspStatus s = check::vectors(len, pSrc, pNorm)) return s;
    *pNorm = norms::infReal<Qsp64f>(Elements<Qsp64f>{pSrc}, len);
    return qspStsOk;
}

QspStatus qspsNorm_Inf_64fc64f(const Qsp64fc* pSrc, int len, Qsp64f* pNorm)
{
    if (QspStatus s = check::vectors(len, pSrc, pNorm)) return s;
    *pNorm = norms::infComplex(Elements<Qsp64f>{&pSrc->re}, len);
    return qspStsOk;
}

QspStatus qspsNorm_L1_16s32f(const Qsp16s* pSrc, int len, Qsp32f* pNorm)
{
    if (QspStatus s = check::vectors(len, pSrc, pNorm)) return s;
    *pNorm = Qsp32f(norms::l1Exact(Elements<Qsp16s>{pSrc}, len));
    return qspStsOk;
}

QspStatus qspsNorm_L1_16s32s_Sfs(const Qsp16s* pSrc, int len, Qsp32s* pNorm, int scaleFactor)
{
    if (QspStatus s = check::vectors(len, pSrc, pNorm)) return s;
    return norms::l1Scaled(norms::l1Exact(Elements<Qsp16s>{pSrc}, len), kLargest, scaleFactor, pNorm);
}

QspStatus qspsNorm_L1_16s64s_Sfs(const Qsp16s* pSrc, int len, Qsp64s* pNorm, int scaleFactor)
{
    if (QspStatus s = check::vectors(len, pSrc, pNorm)) return s;
    return norms::l1Scaled(norms::l1Exact(Elements<Qsp16s>{pSrc}, len), kLargest, scaleFactor, pNorm);
}

QspStatus qspsNorm_L1_32f(const Qsp32f* pSrc, int len, Qsp32f* pNorm)
{
    if (QspStatus s = check::vectors(len, pSrc, pNorm)) return s;
    *pNorm = Qsp32f(norms::l1Real<Qsp32f>(Elements<Qsp32f>{pSrc}, len));
    return qspStsOk;
}

QspStatus qspsNorm_L1_32fc64f(const Qsp32fc* pSrc, int len, Qsp64f* pNorm)
{
    if (QspStatus s = check::vectors(len, pSrc, pNorm)) return s;
    *pNorm = norms::l1Complex(Elements<Qsp32f>{&pSrc->re}, len);
    return qspStsOk;
}

QspStatus qspsNorm_L1_64f(const Qsp64f* pSrc, int len, Qsp64f* pNorm)
{
    if (QspStatus s = check::vectors(len, pSrc, pNorm)) return s;
    *pNorm = norms::l1Real<Qsp64f>(Elements<Qsp64f>{pSrc}, len);
    return qspStsOk;
}

QspStatus qspsNorm_L1_64fc64f(const Qsp64fc* pSrc, int len, Qsp64f* pNorm)
{
    if (QspStatus s = check::vectors(len, pSrc, pNorm)) return s;
    *pNorm = norms::l1Complex(Elements<Qsp64f>{&pSrc->re}, len);
    return qspStsOk;
}

QspStatus qspsNorm_L2_16s32f(const Qsp16s* pSrc, int len, Qsp32f* pNorm)
{
    if (QspStatus s = check::vectors(len, pSrc, pNorm)) return s;
    *pNorm = Qsp32f(norms::l2Exact(Elements<Qsp16s>{pSrc}, len));
    return qspStsOk;
}

QspStatus qspsNorm_L2_16s32s_Sfs(const Qsp16s* pSrc, int len, Qsp32s* pNorm, int scaleFactor)
{
    if (QspStatus s = check::vectors(len, pSrc, pNorm)) return s;
    *pNorm = reduce::roundScaled<Qsp32s>(norms::l2Exact(Elements<Qsp16s>{pSrc}, len), scaleFactor);
    return qspStsOk;
}

QspStatus qspsNorm_L2_32f(const Qsp32f* pSrc, int len, Qsp32f* pNorm)
{
    if (QspStatus s = check::vectors(len, pSrc, pNorm)) return s;
    *pNorm = norms::l2Single(Elements<Qsp32f>{pSrc}, len);
    return qspStsOk;
}

QspStatus qspsNorm_L2_32f_L(const Qsp32f* pSrc, Qsp64s len, Qsp32f* pNorm)
{
    if (QspStatus s = check::vectorsL(len, pSrc, pNorm)) return s;
    *pNorm = norms::l2Single(Elements<Qsp32f>{pSrc}, len);
    return qspStsOk;
}

QspStatus qspsNorm_L2_32fc64f(const Qsp32fc* pSrc, int len, Qsp64f* pNorm)
{
    if (QspStatus s = check::vectors(len, pSrc, pNorm)) return s;
    *pNorm = norms::l2Wide<Qsp32f>(Elements<Qsp32f>{&pSrc->re}, 2 * Qsp64s(len));
    return qspStsOk;
}

QspStatus qspsNorm_L2_32fc64f_L(const Qsp32fc* pSrc, Qsp64s len, Qsp64f* pNorm)
{
    if (QspStatus s = check::vectorsL(len, pSrc, pNorm)) return s;
    *pNorm = norms::l2Wide<Qsp32f>(Elements<Qsp32f>{&pSrc->re}, 2 * Qsp64s(len));
    return qspStsOk;
}

QspStatus qspsNorm_L2_64f(const Qsp64f* pSrc, int len, Qsp64f* pNorm)
{
    if (QspStatus s = check::vectors(len, pSrc, pNorm)) return s;
    *pNorm = norms::l2Wide<Qsp64f>(Elements<Qsp64f>{pSrc}, len);
    return qspStsOk;
}

QspStatus qspsNorm_L2_64f_L(const Qsp64f* pSrc, Qsp64s len, Qsp64f* pNorm)
{
    if (QspStatus s = check::vectorsL(len, pSrc, pNorm)) return s;
    *pNorm = norms::l2Wide<Qsp64f>(Elements<Qsp64f>{pSrc}, len);
    return qspStsOk;
}

QspStatus qspsNorm_L2_64fc64f(const Qsp64fc* pSrc, int len, Qsp64f* pNorm)
{
    if (QspStatus s = check::vectors(len, pSrc, pNorm)) return s;
    *pNorm = norms::l2Wide<Qsp64f>(Elements<Qsp64f>{&pSrc->re}, 2 * Qsp64s(len));
    return qspStsOk;
}

QspStatus qspsNorm_L2_64fc64f_L(const Qsp64fc* pSrc, Qsp64s len, Qsp64f* pNorm)
{
    if (QspStatus s = check::vectorsL(len, pSrc, pNorm)) return s;
    *pNorm = norms::l2Wide<Qsp64f>(Elements<Qsp64f>{&pSrc->re}, 2 * Qsp64s(len));
    return qspStsOk;
}

QspStatus qspsNorm_L2Sqr_16s64s_Sfs(const Qsp16s* pSrc, int len, Qsp64s* pNorm, int scaleFactor)
{
    if (QspStatus s = check::vectors(len, pSrc, pNorm)) return s;
    return norms::l2SqrScaled(norms::squaresExact(Elements<Qsp16s>{pSrc}, len), kLargest, scaleFactor, pNorm);
}

}  // namespace y8

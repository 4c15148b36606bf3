// SPDX-License-Identifier: BSD-3-Clause
// NormDiff: the norms of the difference pSrc1[i] - pSrc2[i] of two vectors,
// formed in the element type (16-bit differences exactly, as int), by the
// accumulation of Norm.
#include "norms.h"

namespace y8 {

using reduce::Differences;

// The largest magnitude of a 16-bit difference.
constexpr Qsp64s kLargest = 65535;

QspStatus qspsNormDiff_Inf_16s32f(const Qsp16s* pSrc1, const Qsp16s* pSrc2, int len, Qsp32f* pNorm)
{
    if (QspStatus s = check::vectors(len, pSrc1, pSrc2, pNorm)) return s;
    *pNorm = norms::inf16s32f(Differences<Qsp16s>{pSrc1, pSrc2}, len);
    return qspStsOk;
}

QspStatus qspsNormDiff_Inf_16s32s_Sfs(const Qsp16s* pSrc1, const Qsp16s* pSrc2, int len, Qsp32s* pNorm, int scaleFactor)
{
    if (QspStatus s = check::vectors(len, pSrc1, pSrc2, pNorm)) return s;
    *pNorm = norms::inf16s32sSfs(Differences<Qsp16s>{pSrc1, pSrc2}, len, scaleFactor);
    return qspStsOk;
}

QspStatus qspsNormDiff_Inf_32f(const Qsp32f* pSrc1, const Qsp32f* pSrc2, int len, Qsp32f* pNorm)
{
    if (QspStatus s = check::vectors(len, pSrc1, pSrc2, pNorm)) return s;
    *pNorm = norms::infReal<Qsp32f>(Differences<Qsp32f>{pSrc1, pSrc2}, len);
    return qspStsOk;
}

QspStatus qspsNormDiff_Inf_32fc32f(const Qsp32fc* pSrc1, const Qsp32fc* pSrc2, int len, Qsp32f* pNorm)
{
    if (QspStatus s = check::vectors(len, pSrc1, pSrc2, pNorm)) return s;
    *pNorm = Qsp32f(norms::infComplex(Differences<Qsp32f>{&pSrc1->re, &pSrc2->re}, len));
    return qspStsOk;
}

QspStatus qspsNormDiff_Inf_64f(const Qsp64f* pSrc1, const Qsp64f* pSrc2, int len, Qsp64f* pNorm)
{
    if (QspStatus s = check::vectors(len, pSrc1, pSrc2, pNorm)) return s;
    *pNorm = norms::infReal<Qsp64f>(Differences<Qsp64f>{pSrc1, pSrc2}, len);
    return qspStsOk;
}

QspStatus qspsNormDiff_Inf_64fc64f(const Qsp64fc* pSrc1, const Qsp64fc* pSrc2, int len, Qsp64f* pNorm)
{
    if (QspStatus s = check::vectors(len, pSrc1, pSrc2, pNorm)) return s;
    *pNorm = norms::infComplex(Differences<Qsp64f>{&pSrc1->re, &pSrc2->re}, len);
    return qspStsOk;
}

QspStatus qspsNormDiff_L1_16s32f(const Qsp16s* pSrc1, const Qsp16s* pSrc2, int len, Qsp32f* pNorm)
{
    if (QspStatus s = check::vectors(len, pSrc1, pSrc2, pNorm)) return s;
    *pNorm = Qsp32f(norms::l1Exact(Differences<Qsp16s>{pSrc1, pSrc2}, len));
    return qspStsOk;
}

QspStatus qspsNormDiff_L1_16s32s_Sfs(const Qsp16s* pSrc1, const Qsp16s* pSrc2, int len, Qsp32s* pNorm, int scaleFactor)
{
    if (QspStatus s = check::vectors(len, pSrc1, pSrc2, pNorm)) return s;
    return norms::l1Scaled(norms::l1Exact(Differences<Qsp16s>{pSrc1, pSrc2}, len), kLargest, scaleFactor, pNorm);
}

QspStatus qspsNormDiff_L1_16s64s_Sfs(const Qsp16s* pSrc1, const Qsp16s* pSrc2, int len, Qsp64s* pNorm, int scaleFactor)
{
    if (QspStatus s = check::vectors(len, pSrc1, pSrc2, pNorm)) return s;
    return norms::l1Scaled(norms::l1Exact(Differences<Qsp16s>{pSrc1, pSrc2}, len), kLargest, scaleFactor, pNorm);
}

QspStatus qspsNormDiff_L1_32f(const Qsp32f* pSrc1, const Qsp32f* pSrc2, int len, Qsp32f* pNorm)
{
    if (QspStatus s = check::vectors(len, pSrc1, pSrc2, pNorm)) return s;
    *pNorm = Qsp32f(norms::l1Real<Qsp32f>(Differences<Qsp32f>{pSrc1, pSrc2}, len));
    return qspStsOk;
}

QspStatus qspsNormDiff_L1_32fc64f(const Qsp32fc* pSrc1, const Qsp32fc* pSrc2, int len, Qsp64f* pNorm)
{
    if (QspStatus s = check::vectors(len, pSrc1, pSrc2, pNorm)) return s;
    *pNorm = norms::l1Complex(Differences<Qsp32f>{&pSrc1->re, &pSrc2->re}, len);
    return qspStsOk;
}

QspStatus qspsNormDiff_L1_64f(const Qsp64f* pSrc1, const Qsp64f* pSrc2, int len, Qsp64f* pNorm)
{
    if (QspStatus s = check::vectors(len, pSrc1, pSrc2, pNorm)) return s;
    *pNorm = norms::l1Real<Qsp64f>(Differences<Qsp64f>{pSrc1, pSrc2}, len);
    return qspStsOk;
}

QspStatus qspsNormDiff_L1_64fc64f(const Qsp64fc* pSrc1, const Qsp64fc* pSrc2, int len, Qsp64f* pNorm)
{
    if (QspStatus s = check::vectors(len, pSrc1, pSrc2, pNorm)) return s;
    *pNorm = norms::l1Complex(Differences<Qsp64f>{&pSrc1->re, &pSrc2->re}, len);
    return qspStsOk;
}

QspStatus qspsNormDiff_L2_16s32f(const Qsp16s* pSrc1, const Qsp16s* pSrc2, int len, Qsp32f* pNorm)
{
    if (QspStatus s = check::vectors(len, pSrc1, pSrc2, pNorm)) return s;
    *pNorm = Qsp32f(norms::l2Exact(Differences<Qsp16s>{pSrc1, pSrc2}, len));
    return qspStsOk;
}

QspStatus qspsNormDiff_L2_16s32s_Sfs(const Qsp16s* pSrc1, const Qsp16s* pSrc2, int len, Qsp32s* pNorm, int scaleFactor)
{
    if (QspStatus s = check::vectors(len, pSrc1, pSrc2, pNorm)) return s;
    *pNorm = reduce::roundScaled<Qsp32s>(norms::l2Exact(Differences<Qsp16s>{pSrc1, pSrc2}, len), scaleFactor);
    return qspStsOk;
}

QspStatus qspsNormDiff_L2_32f(const Qsp32f* pSrc1, const Qsp32f* pSrc2, int len, Qsp32f* pNorm)
{
    if (QspStatus s = check::vectors(len, pSrc1, pSrc2, pNorm)) return s;
    *pNorm = norms::l2Single(Differences<Qsp32f>{pSrc1, pSrc2}, len);
    return qspStsOk;
}

QspStatus qspsNormDiff_L2_32f_L(const Qsp32f* pSrc1, const Qsp32f* pSrc2, Qsp64s len, Qsp32f* pNorm)
{
    if (QspStatus s = check::vectorsL(len, pSrc1, pSrc2, pNorm)) return s;
    *pNorm = norms::l2Single(Differences<Qsp32f>{pSrc1, pSrc2}, len);
    return qspStsOk;
}

QspStatus qspsNormDiff_L2_32fc64f(const Qsp32fc* pSrc1, const Qsp32fc* pSrc2, int len, Qsp64f* pNorm)
{
    if (QspStatus s = check::vectors(len, pSrc1, pSrc2, pNorm)) return s;
    *pNorm = norms::l2Wide<Qsp32f>(Differences<Qsp32f>{&pSrc1->re, &pSrc2->re}, 2 * Qsp64s(len));
    return qspStsOk;
}

QspStatus qspsNormDiff_L2_32fc64f_L(const Qsp32fc* pSrc1, const Qsp32fc* pSrc2, Qsp64s len, Qsp64f* pNorm)
{
    if (QspStatus s = check::vectorsL(len, pSrc1, pSrc2, pNorm)) return s;
    *pNorm = norms::l2Wide<Qsp32f>(Differences<Qsp32f>{&pSrc1->re, &pSrc2->re}, 2 * Qsp64s(len));
    return qspStsOk;
}

QspStatus qspsNormDiff_L2_64f(const Qsp64f* pSrc1, const Qsp64f* pSrc2, int len, Qsp64f* pNorm)
{
    if (QspStatus s = check::vectors(len, pSrc1, pSrc2, pNorm)) return s;
    *pNorm = norms::l2Wide<Qsp64f>(Differences<Qsp64f>{pSrc1, pSrc2}, len);
    return qspStsOk;
}

QspStatus qspsNormDiff_L2_64f_L(const Qsp64f* pSrc1, const Qsp64f* pSrc2, Qsp64s len, Qsp64f* pNorm)
{
    if (QspStatus s = check::vectorsL(len, pSrc1, pSrc2, pNorm)) return s;
    *pNorm = norms::l2Wide<Qsp64f>(Differences<Qsp64f>{pSrc1, pSrc2}, len);
    return qspStsOk;
}

QspStatus qspsNormDiff_L2_64fc64f(const Qsp64fc* pSrc1, const Qsp64fc* pSrc2, int len, Qsp64f* pNorm)
{
    if (QspStatus s = check::vectors(len, pSrc1, pSrc2, pNorm)) return s;
    *pNorm = norms::l2Wide<Qsp64f>(Differences<Qsp64f>{&pSrc1->re, &pSrc2->re}, 2 * Qsp64s(len));
    return qspStsOk;
}

QspStatus qspsNormDiff_L2_64fc64f_L(const Qsp64fc* pSrc1, const Qsp64fc* pSrc2, Qsp64s len, Qsp64f* pNorm)
{
    if (QspStatus s = check::vectorsL(len, pSrc1, pSrc2, pNorm)) return s;
    *pNorm = norms::l2Wide<Qsp64f>(Differences<Qsp64f>{&pSrc1->re, &pSrc2->re}, 2 * Qsp64s(len));
    return qspStsOk;
}

QspStatus qspsNormDiff_L2Sqr_16s64s_Sfs(const Qsp16s* pSrc1, const Qsp16s* pSrc2, int len, Qsp64s* pNorm, int scaleFactor)
{
    if (QspStatus s = check::vectors(len, pSrc1, pSrc2, pNorm)) return s;
    return norms::l2SqrScaled(norms::squaresExact(Differences<Qsp16s>{pSrc1, pSrc2}, len), kLargest, scaleFactor, pNorm);
}

}  // namespace y8

// SPDX-License-Identifier: BSD-3-Clause
// Div_Round: Div of 8- and 16-bit integers with the rounding of the scaled
// quotient chosen by the caller: toward zero, to nearest even, or to
// nearest with ties away from zero. A mode other than these three is an
// error, checked after the pointers and the length.
#include "forms.h"
#include "quotient.h"

namespace y8 {
namespace {

template <class T>
QspStatus divRound(const T* pSrc1, const T* pSrc2, T* pDst, int len, QspRoundMode rndMode, int scaleFactor)
{
    if (QspStatus s = check::vectors(len, pSrc1, pSrc2, pDst)) return s;
    if (unsigned(rndMode) > 2u) return qspStsBadRoundMode;
    bool zero;
    if (rndMode == rounding::kZero) zero = quotient::ownsDiv_16<rounding::kZero>(pSrc1, pSrc2, pDst, len, scaleFactor);
    else if (rndMode == rounding::kNear) zero = quotient::ownsDiv_16<rounding::kNear>(pSrc1, pSrc2, pDst, len, scaleFactor);
    else zero = quotient::ownsDiv_16<rounding::kAway>(pSrc1, pSrc2, pDst, len, scaleFactor);
    return zero ? qspStsWarnDivByZero : qspStsOk;
}

}  // namespace

QspStatus qspsDiv_Round_8u_Sfs(const Qsp8u* pSrc1, const Qsp8u* pSrc2, Qsp8u* pDst, int len, QspRoundMode rndMode,
                               int scaleFactor)
{
    return divRound(pSrc1, pSrc2, pDst, len, rndMode, scaleFactor);
}
QspStatus qspsDiv_Round_8u_ISfs(const Qsp8u* pSrc, Qsp8u* pSrcDst, int len, QspRoundMode rndMode, int scaleFactor)
{
    return divRound(pSrc, pSrcDst, pSrcDst, len, rndMode, scaleFactor);
}
QspStatus qspsDiv_Round_16s_Sfs(const Qsp16s* pSrc1, const Qsp16s* pSrc2, Qsp16s* pDst, int len, QspRoundMode rndMode,
                                int scaleFactor)
{
    return divRound(pSrc1, pSrc2, pDst, len, rndMode, scaleFactor);
}
QspStatus qspsDiv_Round_16s_ISfs(const Qsp16s* pSrc, Qsp16s* pSrcDst, int len, QspRoundMode rndMode, int scaleFactor)
{
    return divRound(pSrc, pSrcDst, pSrcDst, len, rndMode, scaleFactor);
}
QspStatus qspsDiv_Round_16u_Sfs(const Qsp16u* pSrc1, const Qsp16u* pSrc2, Qsp16u* pDst, int len, QspRoundMode rndMode,
                                int scaleFactor)
{
    return divRound(pSrc1, pSrc2, pDst, len, rndMode, scaleFactor);
}
QspStatus qspsDiv_Round_16u_ISfs(const Qsp16u* pSrc, Qsp16u* pSrcDst, int len, QspRoundMode rndMode, int scaleFactor)
{
    return divRound(pSrc, pSrcDst, pSrcDst, len, rndMode, scaleFactor);
}

}  // namespace y8

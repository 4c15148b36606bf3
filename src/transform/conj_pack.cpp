// SPDX-License-Identifier: BSD-3-Clause
// ConjPack: expansion of a Pack half spectrum into the complete spectrum.
#include "checks.h"
#include "packed_spectrum.h"
#include "qsp_validators.h"

namespace y8 {

QspStatus qspsConjPack_32fc(const Qsp32f* pSrc, Qsp32fc* pDst, int len)
{
    if (QspStatus s = check::vectors(len, pSrc, pDst)) return s;
    packed::ownsExpand<Qsp32f, packed::Layout::Pack>(pSrc, reinterpret_cast<Qsp32f*>(pDst), len);
    return qspStsOk;
}

QspStatus qspsConjPack_32fc_I(Qsp32fc* pSrcDst, int len)
{
    return qspsConjPack_32fc(reinterpret_cast<const Qsp32f*>(pSrcDst), pSrcDst, len);
}

// The 64-bit length is checked before the pointers.
QspStatus qspsConjPack_32fc_L(const Qsp32f* pSrc, Qsp32fc* pDst, Qsp64s len)
{
    if (QspStatus s = check::length(len)) return s;
    if (QspStatus s = check::pointers(pSrc, pDst)) return s;
    packed::ownsExpand<Qsp32f, packed::Layout::Pack>(pSrc, reinterpret_cast<Qsp32f*>(pDst), len);
    return qspStsOk;
}

QspStatus qspsConjPack_32fc_I_L(Qsp32fc* pSrcDst, Qsp64s len)
{
    return qspsConjPack_32fc_L(reinterpret_cast<const Qsp32f*>(pSrcDst), pSrcDst, len);
}

QspStatus qspsConjPack_64fc(const Qsp64f* pSrc, Qsp64fc* pDst, int len)
{
    if (QspStatus s = check::vectors(len, pSrc, pDst)) return s;
    packed::ownsExpand<Qsp64f, packed::Layout::Pack>(pSrc, reinterpret_cast<Qsp64f*>(pDst), len);
    return qspStsOk;
}

QspStatus qspsConjPack_64fc_I(Qsp64fc* pSrcDst, int len)
{
    return qspsConjPack_64fc(reinterpret_cast<const Qsp64f*>(pSrcDst), pSrcDst, len);
}

// The 64-bit length is checked before the pointers.
QspStatus qspsConjPack_64fc_L(const Qsp64f* pSrc, Qsp64fc* pDst, Qsp64s len)
{
    if (QspStatus s = check::length(len)) return s;
    if (QspStatus s = check::pointers(pSrc, pDst)) return s;
    packed::ownsExpand<Qsp64f, packed::Layout::Pack>(pSrc, reinterpret_cast<Qsp64f*>(pDst), len);
    return qspStsOk;
}

QspStatus qspsConjPack_64fc_I_L(Qsp64fc* pSrcDst, Qsp64s len)
{
    return qspsConjPack_64fc_L(reinterpret_cast<const Qsp64f*>(pSrcDst), pSrcDst, len);
}

}  // namespace y8

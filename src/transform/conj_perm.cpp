// SPDX-License-Identifier: BSD-3-Clause
// ConjPerm: expansion of a Perm half spectrum into the complete spectrum.
#include "checks.h"
#include "packed_spectrum.h"
#include "qsp_validators.h"

namespace y8 {

QspStatus qspsConjPerm_32fc(const Qsp32f* pSrc, Qsp32fc* pDst, int len)
{
    if (QspStatus s = check::vectors(len, pSrc, pDst)) return s;
    packed::ownsExpand<Qsp32f, packed::Layout::Perm>(pSrc, reinterpret_cast<Qsp32f*>(pDst), len);
    return qspStsOk;
}

QspStatus qspsConjPerm_32fc_I(Qsp32fc* pSrcDst, int len)
{
    return qspsConjPerm_32fc(reinterpret_cast<const Qsp32f*>(pSrcDst), pSrcDst, len);
}

QspStatus qspsConjPerm_64fc(const Qsp64f* pSrc, Qsp64fc* pDst, int len)
{
    if (QspStatus s = check::vectors(len, pSrc, pDst)) return s;
    packed::ownsExpand<Qsp64f, packed::Layout::Perm>(pSrc, reinterpret_cast<Qsp64f*>(pDst), len);
    return qspStsOk;
}

QspStatus qspsConjPerm_64fc_I(Qsp64fc* pSrcDst, int len)
{
    return qspsConjPerm_64fc(reinterpret_cast<const Qsp64f*>(pSrcDst), pSrcDst, len);
}

}  // namespace y8

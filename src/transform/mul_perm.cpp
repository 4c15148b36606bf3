// SPDX-License-Identifier: BSD-3-Clause
// MulPerm: product of two half spectra in Perm layout.
#include "checks.h"
#include "packed_spectrum.h"
#include "qsp_validators.h"

namespace y8 {

QspStatus qspsMulPerm_32f(const Qsp32f* pSrc1, const Qsp32f* pSrc2, Qsp32f* pDst, int len)
{
    if (QspStatus s = check::vectors(len, pSrc1, pSrc2, pDst)) return s;
    packed::ownsMulPacked<Qsp32f, packed::Layout::Perm, false>(pSrc1, pSrc2, pDst, len);
    return qspStsOk;
}

QspStatus qspsMulPerm_32f_I(const Qsp32f* pSrc, Qsp32f* pSrcDst, int len)
{
    return qspsMulPerm_32f(pSrc, pSrcDst, pSrcDst, len);
}

QspStatus qspsMulPerm_64f(const Qsp64f* pSrc1, const Qsp64f* pSrc2, Qsp64f* pDst, int len)
{
    if (QspStatus s = check::vectors(len, pSrc1, pSrc2, pDst)) return s;
    packed::ownsMulPacked<Qsp64f, packed::Layout::Perm, false>(pSrc1, pSrc2, pDst, len);
    return qspStsOk;
}

QspStatus qspsMulPerm_64f_I(const Qsp64f* pSrc, Qsp64f* pSrcDst, int len)
{
    return qspsMulPerm_64f(pSrc, pSrcDst, pSrcDst, len);
}

}  // namespace y8

// SPDX-License-Identifier: BSD-3-Clause
// MulPackConj: product of a half spectrum and the conjugate of another, Pack layout.
#include "checks.h"
#include "packed_spectrum.h"
#include "qsp_validators.h"

namespace y8 {

QspStatus qspsMulPackConj_32f_I(const Qsp32f* pSrc, Qsp32f* pSrcDst, int len)
{
    if (QspStatus s = check::vectors(len, pSrc, pSrcDst)) return s;
    packed::ownsMulPacked<Qsp32f, packed::Layout::Pack, true>(pSrc, pSrcDst, pSrcDst, len);
    return qspStsOk;
}

QspStatus qspsMulPackConj_64f_I(const Qsp64f* pSrc, Qsp64f* pSrcDst, int len)
{
    if (QspStatus s = check::vectors(len, pSrc, pSrcDst)) return s;
    packed::ownsMulPacked<Qsp64f, packed::Layout::Pack, true>(pSrc, pSrcDst, pSrcDst, len);
    return qspStsOk;
}

}  // namespace y8

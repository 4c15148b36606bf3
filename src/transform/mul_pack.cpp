// SPDX-License-Identifier: BSD-3-Clause
// MulPack: product of two half spectra in Pack layout.
#include "checks.h"
#include "packed_spectrum.h"
#include "qsp_validators.h"

namespace y8 {

QspStatus qspsMulPack_32f_I(const Qsp32f* pSrc, Qsp32f* pSrcDst, int len)
{
    if (QspStatus s = check::vectors(len, pSrc, pSrcDst)) return s;
    packed::ownsMulPacked<Qsp32f, packed::Layout::Pack, false>(pSrc, pSrcDst, pSrcDst, len);
    return qspStsOk;
}

QspStatus qspsMulPack_64f_I(const Qsp64f* pSrc, Qsp64f* pSrcDst, int len)
{
    if (QspStatus s = check::vectors(len, pSrc, pSrcDst)) return s;
    packed::ownsMulPacked<Qsp64f, packed::Layout::Pack, false>(pSrc, pSrcDst, pSrcDst, len);
    return qspStsOk;
}

}  // namespace y8

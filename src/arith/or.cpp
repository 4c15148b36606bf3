// SPDX-License-Identifier: BSD-3-Clause
// Or: bitwise or of two vectors, or of a vector and a constant (OrC).
#include "forms.h"

namespace y8 {

using ops::BitOr;
using C = forms::WithConst<BitOr, false>;

QspStatus qspsOr_8u(const Qsp8u* pSrc1, const Qsp8u* pSrc2, Qsp8u* pDst, int len)
{
    return forms::vv(pSrc1, pSrc2, pDst, len, BitOr{});
}
QspStatus qspsOr_8u_I(const Qsp8u* pSrc, Qsp8u* pSrcDst, int len) { return forms::vv(pSrc, pSrcDst, pSrcDst, len, BitOr{}); }
QspStatus qspsOr_16u(const Qsp16u* pSrc1, const Qsp16u* pSrc2, Qsp16u* pDst, int len)
{
    return forms::vv(pSrc1, pSrc2, pDst, len, BitOr{});
}
QspStatus qspsOr_16u_I(const Qsp16u* pSrc, Qsp16u* pSrcDst, int len) { return forms::vv(pSrc, pSrcDst, pSrcDst, len, BitOr{}); }
QspStatus qspsOr_32u(const Qsp32u* pSrc1, const Qsp32u* pSrc2, Qsp32u* pDst, int len)
{
    return forms::vv(pSrc1, pSrc2, pDst, len, BitOr{});
}
QspStatus qspsOr_32u_I(const Qsp32u* pSrc, Qsp32u* pSrcDst, int len) { return forms::vv(pSrc, pSrcDst, pSrcDst, len, BitOr{}); }
QspStatus qspsOrC_8u(const Qsp8u* pSrc, Qsp8u val, Qsp8u* pDst, int len) { return C::unscaled(pSrc, val, pDst, len); }
QspStatus qspsOrC_8u_I(Qsp8u val, Qsp8u* pSrcDst, int len) { return C::unscaled(pSrcDst, val, pSrcDst, len); }
QspStatus qspsOrC_16u(const Qsp16u* pSrc, int val, Qsp16u* pDst, int len) { return C::unscaled(pSrc, Qsp16u(val), pDst, len); }
QspStatus qspsOrC_16u_I(int val, Qsp16u* pSrcDst, int len) { return C::unscaled(pSrcDst, Qsp16u(val), pSrcDst, len); }
QspStatus qspsOrC_32u(const Qsp32u* pSrc, Qsp32u val, Qsp32u* pDst, int len) { return C::unscaled(pSrc, val, pDst, len); }
QspStatus qspsOrC_32u_I(Qsp32u val, Qsp32u* pSrcDst, int len) { return C::unscaled(pSrcDst, val, pSrcDst, len); }

}  // namespace y8

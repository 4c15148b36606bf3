// SPDX-License-Identifier: BSD-3-Clause
// And: bitwise and of two vectors, or of a vector and a constant (AndC).
#include "forms.h"

namespace y8 {

using ops::BitAnd;
using C = forms::WithConst<BitAnd, false>;

QspStatus qspsAnd_8u(const Qsp8u* pSrc1, const Qsp8u* pSrc2, Qsp8u* pDst, int len)
{
    return forms::vv(pSrc1, pSrc2, pDst, len, BitAnd{});
}
QspStatus qspsAnd_8u_I(const Qsp8u* pSrc, Qsp8u* pSrcDst, int len) { return forms::vv(pSrc, pSrcDst, pSrcDst, len, BitAnd{}); }
QspStatus qspsAnd_16u(const Qsp16u* pSrc1, const Qsp16u* pSrc2, Qsp16u* pDst, int len)
{
    return forms::vv(pSrc1, pSrc2, pDst, len, BitAnd{});
}
QspStatus qspsAnd_16u_I(const Qsp16u* pSrc, Qsp16u* pSrcDst, int len) { return forms::vv(pSrc, pSrcDst, pSrcDst, len, BitAnd{}); }
QspStatus qspsAnd_32u(const Qsp32u* pSrc1, const Qsp32u* pSrc2, Qsp32u* pDst, int len)
{
    return forms::vv(pSrc1, pSrc2, pDst, len, BitAnd{});
}
QspStatus qspsAnd_32u_I(const Qsp32u* pSrc, Qsp32u* pSrcDst, int len) { return forms::vv(pSrc, pSrcDst, pSrcDst, len, BitAnd{}); }
QspStatus qspsAndC_8u(const Qsp8u* pSrc, Qsp8u val, Qsp8u* pDst, int len) { return C::unscaled(pSrc, val, pDst, len); }
QspStatus qspsAndC_8u_I(Qsp8u val, Qsp8u* pSrcDst, int len) { return C::unscaled(pSrcDst, val, pSrcDst, len); }
QspStatus qspsAndC_16u(const Qsp16u* pSrc, int val, Qsp16u* pDst, int len) { return C::unscaled(pSrc, Qsp16u(val), pDst, len); }
QspStatus qspsAndC_16u_I(int val, Qsp16u* pSrcDst, int len) { return C::unscaled(pSrcDst, Qsp16u(val), pSrcDst, len); }
QspStatus qspsAndC_32u(const Qsp32u* pSrc, Qsp32u val, Qsp32u* pDst, int len) { return C::unscaled(pSrc, val, pDst, len); }
QspStatus qspsAndC_32u_I(Qsp32u val, Qsp32u* pSrcDst, int len) { return C::unscaled(pSrcDst, val, pSrcDst, len); }

}  // namespace y8

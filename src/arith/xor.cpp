// SPDX-License-Identifier: BSD-3-Clause
// Xor: bitwise exclusive or of two vectors, or of a vector and a constant (XorC).
#include "forms.h"

namespace y8 {

using ops::BitXor;
using C = forms::WithConst<BitXor, false>;

QspStatus qspsXor_8u(const Qsp8u* pSrc1, const Qsp8u* pSrc2, Qsp8u* pDst, int len)
{
    return forms::vv(pSrc1, pSrc2, pDst, len, BitXor{});
}
QspStatus qspsXor_8u_I(const Qsp8u* pSrc, Qsp8u* pSrcDst, int len) { return forms::vv(pSrc, pSrcDst, pSrcDst, len, BitXor{}); }
QspStatus qspsXor_16u(const Qsp16u* pSrc1, const Qsp16u* pSrc2, Qsp16u* pDst, int len)
{
    return forms::vv(pSrc1, pSrc2, pDst, len, BitXor{});
}
QspStatus qspsXor_16u_I(const Qsp16u* pSrc, Qsp16u* pSrcDst, int len) { return forms::vv(pSrc, pSrcDst, pSrcDst, len, BitXor{}); }
QspStatus qspsXor_32u(const Qsp32u* pSrc1, const Qsp32u* pSrc2, Qsp32u* pDst, int len)
{
    return forms::vv(pSrc1, pSrc2, pDst, len, BitXor{});
}
QspStatus qspsXor_32u_I(const Qsp32u* pSrc, Qsp32u* pSrcDst, int len) { return forms::vv(pSrc, pSrcDst, pSrcDst, len, BitXor{}); }
QspStatus qspsXorC_8u(const Qsp8u* pSrc, Qsp8u val, Qsp8u* pDst, int len) { return C::unscaled(pSrc, val, pDst, len); }
QspStatus qspsXorC_8u_I(Qsp8u val, Qsp8u* pSrcDst, int len) { return C::unscaled(pSrcDst, val, pSrcDst, len); }
QspStatus qspsXorC_16u(const Qsp16u* pSrc, int val, Qsp16u* pDst, int len) { return C::unscaled(pSrc, Qsp16u(val), pDst, len); }
QspStatus qspsXorC_16u_I(int val, Qsp16u* pSrcDst, int len) { return C::unscaled(pSrcDst, Qsp16u(val), pSrcDst, len); }
QspStatus qspsXorC_32u(const Qsp32u* pSrc, Qsp32u val, Qsp32u* pDst, int len) { return C::unscaled(pSrc, val, pDst, len); }
QspStatus qspsXorC_32u_I(Qsp32u val, Qsp32u* pSrcDst, int len) { return C::unscaled(pSrcDst, val, pSrcDst, len); }

}  // namespace y8

// SPDX-License-Identifier: BSD-3-Clause
// SubC: a constant subtracted from every element.
#include "forms.h"

namespace y8 {

using C = forms::WithConst<ops::Sub, true>;

QspStatus qspsSubC_32f(const Qsp32f* pSrc, Qsp32f val, Qsp32f* pDst, int len) { return C::unscaled(pSrc, val, pDst, len); }
QspStatus qspsSubC_32f_I(Qsp32f val, Qsp32f* pSrcDst, int len) { return C::unscaled(pSrcDst, val, pSrcDst, len); }
QspStatus qspsSubC_64f(const Qsp64f* pSrc, Qsp64f val, Qsp64f* pDst, int len) { return C::unscaled(pSrc, val, pDst, len); }
QspStatus qspsSubC_64f_I(Qsp64f val, Qsp64f* pSrcDst, int len) { return C::unscaled(pSrcDst, val, pSrcDst, len); }
QspStatus qspsSubC_32fc(const Qsp32fc* pSrc, Qsp32fc val, Qsp32fc* pDst, int len) { return C::unscaled(pSrc, val, pDst, len); }
QspStatus qspsSubC_32fc_I(Qsp32fc val, Qsp32fc* pSrcDst, int len) { return C::unscaled(pSrcDst, val, pSrcDst, len); }
QspStatus qspsSubC_64fc(const Qsp64fc* pSrc, Qsp64fc val, Qsp64fc* pDst, int len) { return C::unscaled(pSrc, val, pDst, len); }
QspStatus qspsSubC_64fc_I(Qsp64fc val, Qsp64fc* pSrcDst, int len) { return C::unscaled(pSrcDst, val, pSrcDst, len); }

QspStatus qspsSubC_8u_Sfs(const Qsp8u* pSrc, Qsp8u val, Qsp8u* pDst, int len, int scaleFactor)
{
    return C::scaledInt(pSrc, val, pDst, len, scaleFactor);
}
QspStatus qspsSubC_8u_ISfs(Qsp8u val, Qsp8u* pSrcDst, int len, int scaleFactor)
{
    return C::scaledInt(pSrcDst, val, pSrcDst, len, scaleFactor);
}
QspStatus qspsSubC_16s_Sfs(const Qsp16s* pSrc, int val, Qsp16s* pDst, int len, int scaleFactor)
{
    return C::scaledInt(pSrc, Qsp16s(val), pDst, len, scaleFactor);
}
QspStatus qspsSubC_16s_ISfs(int val, Qsp16s* pSrcDst, int len, int scaleFactor)
{
    return C::scaledInt(pSrcDst, Qsp16s(val), pSrcDst, len, scaleFactor);
}
QspStatus qspsSubC_16u_Sfs(const Qsp16u* pSrc, int val, Qsp16u* pDst, int len, int scaleFactor)
{
    return C::scaledInt(pSrc, Qsp16u(val), pDst, len, scaleFactor);
}
QspStatus qspsSubC_16u_ISfs(int val, Qsp16u* pSrcDst, int len, int scaleFactor)
{
    return C::scaledInt(pSrcDst, Qsp16u(val), pSrcDst, len, scaleFactor);
}
QspStatus qspsSubC_32s_Sfs(const Qsp32s* pSrc, Qsp32s val, Qsp32s* pDst, int len, int scaleFactor)
{
    return C::scaledInt(pSrc, val, pDst, len, scaleFactor);
}
QspStatus qspsSubC_32s_ISfs(Qsp32s val, Qsp32s* pSrcDst, int len, int scaleFactor)
{
    return C::scaledInt(pSrcDst, val, pSrcDst, len, scaleFactor);
}
QspStatus qspsSubC_16sc_Sfs(const Qsp16sc* pSrc, Qsp16sc val, Qsp16sc* pDst, int len, int scaleFactor)
{
    return C::scaledInt(pSrc, val, pDst, len, scaleFactor);
}
QspStatus qspsSubC_16sc_ISfs(Qsp16sc val, Qsp16sc* pSrcDst, int len, int scaleFactor)
{
    return C::scaledInt(pSrcDst, val, pSrcDst, len, scaleFactor);
}
QspStatus qspsSubC_32sc_Sfs(const Qsp32sc* pSrc, Qsp32sc val, Qsp32sc* pDst, int len, int scaleFactor)
{
    return C::scaledInt(pSrc, val, pDst, len, scaleFactor);
}
QspStatus qspsSubC_32sc_ISfs(Qsp32sc val, Qsp32sc* pSrcDst, int len, int scaleFactor)
{
    return C::scaledInt(pSrcDst, val, pSrcDst, len, scaleFactor);
}

QspStatus qspsSubC_32f_L(const Qsp32f* pSrc, Qsp32f val, Qsp32f* pDst, Qsp64s len)
{
    return forms::chunksC(qspsSubC_32f, pSrc, val, pDst, len);
}
QspStatus qspsSubC_32f_I_L(Qsp32f val, Qsp32f* pSrcDst, Qsp64s len)
{
    return forms::chunksCI(qspsSubC_32f_I, val, pSrcDst, len);
}
QspStatus qspsSubC_64f_L(const Qsp64f* pSrc, Qsp64f val, Qsp64f* pDst, Qsp64s len)
{
    return forms::chunksC(qspsSubC_64f, pSrc, val, pDst, len);
}
QspStatus qspsSubC_64f_I_L(Qsp64f val, Qsp64f* pSrcDst, Qsp64s len)
{
    return forms::chunksCI(qspsSubC_64f_I, val, pSrcDst, len);
}
QspStatus qspsSubC_32fc_L(const Qsp32fc* pSrc, Qsp32fc val, Qsp32fc* pDst, Qsp64s len)
{
    return forms::chunksC(qspsSubC_32fc, pSrc, val, pDst, len);
}
QspStatus qspsSubC_32fc_I_L(Qsp32fc val, Qsp32fc* pSrcDst, Qsp64s len)
{
    return forms::chunksCI(qspsSubC_32fc_I, val, pSrcDst, len);
}
QspStatus qspsSubC_64fc_L(const Qsp64fc* pSrc, Qsp64fc val, Qsp64fc* pDst, Qsp64s len)
{
    return forms::chunksC(qspsSubC_64fc, pSrc, val, pDst, len);
}
QspStatus qspsSubC_64fc_I_L(Qsp64fc val, Qsp64fc* pSrcDst, Qsp64s len)
{
    return forms::chunksCI(qspsSubC_64fc_I, val, pSrcDst, len);
}

}  // namespace y8

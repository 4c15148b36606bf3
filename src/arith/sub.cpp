// SPDX-License-Identifier: BSD-3-Clause
// Sub: element-wise differences, the second source minus the first.
#include "forms.h"

namespace y8 {

using ops::Sub;

QspStatus qspsSub_16u(const Qsp16u* pSrc1, const Qsp16u* pSrc2, Qsp16u* pDst, int len)
{
    return forms::vvSfs<Sub>(pSrc1, pSrc2, pDst, len, 0);
}
QspStatus qspsSub_16u_I(const Qsp16u* pSrc, Qsp16u* pSrcDst, int len)
{
    return forms::vvSfs<Sub>(pSrc, pSrcDst, pSrcDst, len, 0);
}

QspStatus qspsSub_32f(const Qsp32f* pSrc1, const Qsp32f* pSrc2, Qsp32f* pDst, int len)
{
    return forms::vv(pSrc1, pSrc2, pDst, len, Sub{});
}
QspStatus qspsSub_32f_I(const Qsp32f* pSrc, Qsp32f* pSrcDst, int len) { return forms::vv(pSrc, pSrcDst, pSrcDst, len, Sub{}); }
QspStatus qspsSub_64f(const Qsp64f* pSrc1, const Qsp64f* pSrc2, Qsp64f* pDst, int len)
{
    return forms::vv(pSrc1, pSrc2, pDst, len, Sub{});
}
QspStatus qspsSub_64f_I(const Qsp64f* pSrc, Qsp64f* pSrcDst, int len) { return forms::vv(pSrc, pSrcDst, pSrcDst, len, Sub{}); }
QspStatus qspsSub_32fc(const Qsp32fc* pSrc1, const Qsp32fc* pSrc2, Qsp32fc* pDst, int len)
{
    return forms::vv(pSrc1, pSrc2, pDst, len, Sub{});
}
QspStatus qspsSub_32fc_I(const Qsp32fc* pSrc, Qsp32fc* pSrcDst, int len)
{
    return forms::vv(pSrc, pSrcDst, pSrcDst, len, Sub{});
}
QspStatus qspsSub_64fc(const Qsp64fc* pSrc1, const Qsp64fc* pSrc2, Qsp64fc* pDst, int len)
{
    return forms::vv(pSrc1, pSrc2, pDst, len, Sub{});
}
QspStatus qspsSub_64fc_I(const Qsp64fc* pSrc, Qsp64fc* pSrcDst, int len)
{
    return forms::vv(pSrc, pSrcDst, pSrcDst, len, Sub{});
}

QspStatus qspsSub_8u_Sfs(const Qsp8u* pSrc1, const Qsp8u* pSrc2, Qsp8u* pDst, int len, int scaleFactor)
{
    return forms::vvSfs<Sub>(pSrc1, pSrc2, pDst, len, scaleFactor);
}
QspStatus qspsSub_8u_ISfs(const Qsp8u* pSrc, Qsp8u* pSrcDst, int len, int scaleFactor)
{
    return forms::vvSfs<Sub>(pSrc, pSrcDst, pSrcDst, len, scaleFactor);
}
QspStatus qspsSub_16s_Sfs(const Qsp16s* pSrc1, const Qsp16s* pSrc2, Qsp16s* pDst, int len, int scaleFactor)
{
    return forms::vvSfs<Sub>(pSrc1, pSrc2, pDst, len, scaleFactor);
}
QspStatus qspsSub_16s_ISfs(const Qsp16s* pSrc, Qsp16s* pSrcDst, int len, int scaleFactor)
{
    return forms::vvSfs<Sub>(pSrc, pSrcDst, pSrcDst, len, scaleFactor);
}
QspStatus qspsSub_16u_Sfs(const Qsp16u* pSrc1, const Qsp16u* pSrc2, Qsp16u* pDst, int len, int scaleFactor)
{
    return forms::vvSfs<Sub>(pSrc1, pSrc2, pDst, len, scaleFactor);
}
QspStatus qspsSub_16u_ISfs(const Qsp16u* pSrc, Qsp16u* pSrcDst, int len, int scaleFactor)
{
    return forms::vvSfs<Sub>(pSrc, pSrcDst, pSrcDst, len, scaleFactor);
}
QspStatus qspsSub_32s_Sfs(const Qsp32s* pSrc1, const Qsp32s* pSrc2, Qsp32s* pDst, int len, int scaleFactor)
{
    return forms::vvSfs<Sub>(pSrc1, pSrc2, pDst, len, scaleFactor);
}
QspStatus qspsSub_32s_ISfs(const Qsp32s* pSrc, Qsp32s* pSrcDst, int len, int scaleFactor)
{
    return forms::vvSfs<Sub>(pSrc, pSrcDst, pSrcDst, len, scaleFactor);
}

// Complex differences are the real differences of the parts.
QspStatus qspsSub_16sc_Sfs(const Qsp16sc* pSrc1, const Qsp16sc* pSrc2, Qsp16sc* pDst, int len, int scaleFactor)
{
    return qspsSub_16s_Sfs(forms::parts(pSrc1), forms::parts(pSrc2), forms::parts(pDst), forms::twice(len), scaleFactor);
}
QspStatus qspsSub_16sc_ISfs(const Qsp16sc* pSrc, Qsp16sc* pSrcDst, int len, int scaleFactor)
{
    return qspsSub_16s_ISfs(forms::parts(pSrc), forms::parts(pSrcDst), forms::twice(len), scaleFactor);
}
QspStatus qspsSub_32sc_Sfs(const Qsp32sc* pSrc1, const Qsp32sc* pSrc2, Qsp32sc* pDst, int len, int scaleFactor)
{
    return qspsSub_32s_Sfs(forms::parts(pSrc1), forms::parts(pSrc2), forms::parts(pDst), forms::twice(len), scaleFactor);
}
QspStatus qspsSub_32sc_ISfs(const Qsp32sc* pSrc, Qsp32sc* pSrcDst, int len, int scaleFactor)
{
    return qspsSub_32s_ISfs(forms::parts(pSrc), forms::parts(pSrcDst), forms::twice(len), scaleFactor);
}

QspStatus qspsSub_32f_L(const Qsp32f* pSrc1, const Qsp32f* pSrc2, Qsp32f* pDst, Qsp64s len)
{
    return forms::chunks(qspsSub_32f, pSrc1, pSrc2, pDst, len);
}
QspStatus qspsSub_32f_I_L(const Qsp32f* pSrc, Qsp32f* pSrcDst, Qsp64s len)
{
    return forms::chunks(qspsSub_32f_I, pSrc, pSrcDst, len);
}
QspStatus qspsSub_64f_L(const Qsp64f* pSrc1, const Qsp64f* pSrc2, Qsp64f* pDst, Qsp64s len)
{
    return forms::chunks(qspsSub_64f, pSrc1, pSrc2, pDst, len);
}
QspStatus qspsSub_64f_I_L(const Qsp64f* pSrc, Qsp64f* pSrcDst, Qsp64s len)
{
    return forms::chunks(qspsSub_64f_I, pSrc, pSrcDst, len);
}
QspStatus qspsSub_32fc_L(const Qsp32fc* pSrc1, const Qsp32fc* pSrc2, Qsp32fc* pDst, Qsp64s len)
{
    return forms::chunks(qspsSub_32fc, pSrc1, pSrc2, pDst, len);
}
QspStatus qspsSub_32fc_I_L(const Qsp32fc* pSrc, Qsp32fc* pSrcDst, Qsp64s len)
{
    return forms::chunks(qspsSub_32fc_I, pSrc, pSrcDst, len);
}
QspStatus qspsSub_64fc_L(const Qsp64fc* pSrc1, const Qsp64fc* pSrc2, Qsp64fc* pDst, Qsp64s len)
{
    return forms::chunks(qspsSub_64fc, pSrc1, pSrc2, pDst, len);
}
QspStatus qspsSub_64fc_I_L(const Qsp64fc* pSrc, Qsp64fc* pSrcDst, Qsp64s len)
{
    return forms::chunks(qspsSub_64fc_I, pSrc, pSrcDst, len);
}

}  // namespace y8

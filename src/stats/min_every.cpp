// SPDX-License-Identifier: BSD-3-Clause
// MinEvery: the element-wise minimum of two vectors.
#include "extremum.h"
#include "qsp_validators.h"

namespace y8 {

using extremum::Smallest;

QspStatus qspsMinEvery_8u(const Qsp8u* pSrc1, const Qsp8u* pSrc2, Qsp8u* pDst, int len)
{
    return extremum::every<Smallest>(pSrc1, pSrc2, pDst, len);
}
QspStatus qspsMinEvery_16u(const Qsp16u* pSrc1, const Qsp16u* pSrc2, Qsp16u* pDst, int len)
{
    return extremum::every<Smallest>(pSrc1, pSrc2, pDst, len);
}
QspStatus qspsMinEvery_32f(const Qsp32f* pSrc1, const Qsp32f* pSrc2, Qsp32f* pDst, int len)
{
    return extremum::every<Smallest>(pSrc1, pSrc2, pDst, len);
}
QspStatus qspsMinEvery_64f(const Qsp64f* pSrc1, const Qsp64f* pSrc2, Qsp64f* pDst, int len)
{
    return extremum::every<Smallest>(pSrc1, pSrc2, pDst, len);
}

QspStatus qspsMinEvery_8u_I(const Qsp8u* pSrc, Qsp8u* pSrcDst, int len)
{
    return extremum::everyInPlace<Smallest>(pSrc, pSrcDst, len);
}
QspStatus qspsMinEvery_16u_I(const Qsp16u* pSrc, Qsp16u* pSrcDst, int len)
{
    return extremum::everyInPlace<Smallest>(pSrc, pSrcDst, len);
}
QspStatus qspsMinEvery_16s_I(const Qsp16s* pSrc, Qsp16s* pSrcDst, int len)
{
    return extremum::everyInPlace<Smallest>(pSrc, pSrcDst, len);
}
QspStatus qspsMinEvery_32s_I(const Qsp32s* pSrc, Qsp32s* pSrcDst, int len)
{
    return extremum::everyInPlace<Smallest>(pSrc, pSrcDst, len);
}
QspStatus qspsMinEvery_32f_I(const Qsp32f* pSrc, Qsp32f* pSrcDst, int len)
{
    return extremum::everyInPlace<Smallest>(pSrc, pSrcDst, len);
}
QspStatus qspsMinEvery_64f_I(const Qsp64f* pSrc, Qsp64f* pSrcDst, int len)
{
    return extremum::everyInPlace<Smallest>(pSrc, pSrcDst, len);
}

}  // namespace y8

// SPDX-License-Identifier: BSD-3-Clause
// RShiftC: every element shifted right (arithmetically for signed types,
// logically for unsigned ones) by a constant count (see shift.h for
// the order of the count, pointer and length checks).
#include "shift.h"

namespace y8 {

QspStatus qspsRShiftC_8u(const Qsp8u* pSrc, int val, Qsp8u* pDst, int len) { return shift::run<Qsp8u, false>(pSrc, val, pDst, len); }
QspStatus qspsRShiftC_8u_I(int val, Qsp8u* pSrcDst, int len) { return shift::runInPlace<Qsp8u, false>(val, pSrcDst, len); }
QspStatus qspsRShiftC_16s(const Qsp16s* pSrc, int val, Qsp16s* pDst, int len)
{
    return shift::run<Qsp16s, false>(pSrc, val, pDst, len);
}
QspStatus qspsRShiftC_16s_I(int val, Qsp16s* pSrcDst, int len) { return shift::runInPlace<Qsp16s, false>(val, pSrcDst, len); }
QspStatus qspsRShiftC_16u(const Qsp16u* pSrc, int val, Qsp16u* pDst, int len)
{
    return shift::run<Qsp16u, false>(pSrc, val, pDst, len);
}
QspStatus qspsRShiftC_16u_I(int val, Qsp16u* pSrcDst, int len) { return shift::runInPlace<Qsp16u, false>(val, pSrcDst, len); }
QspStatus qspsRShiftC_32s(const Qsp32s* pSrc, int val, Qsp32s* pDst, int len)
{
    return shift::run<Qsp32s, false>(pSrc, val, pDst, len);
}
QspStatus qspsRShiftC_32s_I(int val, Qsp32s* pSrcDst, int len) { return shift::runInPlace<Qsp32s, false>(val, pSrcDst, len); }

}  // namespace y8

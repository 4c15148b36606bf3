// SPDX-License-Identifier: BSD-3-Clause
// LShiftC: every element shifted left by a constant count (see shift.h for
// the order of the count, pointer and length checks).
#include "shift.h"

namespace y8 {

QspStatus qspsLShiftC_8u(const Qsp8u* pSrc, int val, Qsp8u* pDst, int len) { return shift::run<Qsp8u, true>(pSrc, val, pDst, len); }
QspStatus qspsLShiftC_8u_I(int val, Qsp8u* pSrcDst, int len) { return shift::runInPlace<Qsp8u, true>(val, pSrcDst, len); }
QspStatus qspsLShiftC_16s(const Qsp16s* pSrc, int val, Qsp16s* pDst, int len)
{
    return shift::run<Qsp16s, true>(pSrc, val, pDst, len);
}
QspStatus qspsLShiftC_16s_I(int val, Qsp16s* pSrcDst, int len) { return shift::runInPlace<Qsp16s, true>(val, pSrcDst, len); }
QspStatus qspsLShiftC_16u(const Qsp16u* pSrc, int val, Qsp16u* pDst, int len)
{
    return shift::run<Qsp16u, true>(pSrc, val, pDst, len);
}
QspStatus qspsLShiftC_16u_I(int val, Qsp16u* pSrcDst, int len) { return shift::runInPlace<Qsp16u, true>(val, pSrcDst, len); }
QspStatus qspsLShiftC_32s(const Qsp32s* pSrc, int val, Qsp32s* pDst, int len)
{
    return shift::run<Qsp32s, true>(pSrc, val, pDst, len);
}
QspStatus qspsLShiftC_32s_I(int val, Qsp32s* pSrcDst, int len) { return shift::runInPlace<Qsp32s, true>(val, pSrcDst, len); }

}  // namespace y8

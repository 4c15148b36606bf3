// SPDX-License-Identifier: BSD-3-Clause
// ZeroCrossing: a zero-crossing measure of a signal in [0, 1], from the
// len - 1 pairs of neighbours:
//   qspZCR    pairs whose signs differ, a zero counting as positive;
//   qspZCXor  pairs whose sign bits differ (for floats -0.0 is negative);
//   qspZCC    half the sum of |sign(x[i]) - sign(x[i-1])|, sign in {-1, 0, 1}
//             (a NaN has sign 0),
// each divided by len - 1 in double and rounded to the result type.
// Checks: pointers, len below 2 (qspStsBadSize), then the measure
// (qspStsBadArgument).
#include "checks.h"
#include "qsp_validators.h"

namespace y8 {
namespace {

template <class T>
bool signBit(T x)
{
    if constexpr (sizeof(T) == 2) {
        return x < 0;
    } else {
        return __builtin_signbit(x) != 0;
    }
}

template <class T>
int signOf(T x)
{
    return (x > 0) - (x < 0);
}

template <class T>
double ownsZeroCrossing(const T* pSrc, int len, QspZCType zcType)
{
    Qsp64s count = 0;
    for (int i = 1; i < len; ++i) {
        const T a = pSrc[i - 1], b = pSrc[i];
        if (zcType == qspZCR)
            count += (a >= 0) != (b >= 0);
        else if (zcType == qspZCXor)
            count += signBit(a) != signBit(b);
        else
            count += signOf(b) > signOf(a) ? signOf(b) - signOf(a) : signOf(a) - signOf(b);
    }
    return double(count) / (zcType == qspZCC ? 2.0 * double(len - 1) : double(len - 1));
}

template <class D, class T>
QspStatus zeroCrossing(const T* pSrc, int len, D* pValZC, QspZCType zcType)
{
    if (QspStatus s = check::pointers(pSrc, pValZC)) return s;
    if (len < 2) return qspStsBadSize;
    if (zcType != qspZCR && zcType != qspZCXor && zcType != qspZCC) return qspStsBadArgument;
    *pValZC = D(ownsZeroCrossing(pSrc, len, zcType));
    return qspStsOk;
}

}  // namespace

QspStatus qspsZeroCrossing_16s32f(const Qsp16s* pSrc, int len, Qsp32f* pValZC, QspZCType zcType)
{
    return zeroCrossing(pSrc, len, pValZC, zcType);
}
QspStatus qspsZeroCrossing_32f(const Qsp32f* pSrc, int len, Qsp32f* pValZC, QspZCType zcType)
{
    return zeroCrossing(pSrc, len, pValZC, zcType);
}
QspStatus qspsZeroCrossing_64f(const Qsp64f* pSrc, int len, Qsp64f* pValZC, QspZCType zcType)
{
    return zeroCrossing(pSrc, len, pValZC, zcType);
}

}  // namespace y8

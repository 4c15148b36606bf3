// SPDX-License-Identifier: BSD-3-Clause
// CountInRange: the number of elements with lowerBound <= x <= upperBound.
// NaN elements are never counted; a bound above the other is
// qspStsBadRange (checked after the pointers and the length).
#include "checks.h"
#include "qsp_validators.h"

namespace y8 {
namespace {

template <class T>
QspStatus countInRange(const T* pSrc, int len, int* pCount, T lowerBound, T upperBound)
{
    if (QspStatus s = check::vectors(len, pSrc, pCount)) return s;
    if (lowerBound > upperBound) return qspStsBadRange;
    int count = 0;
    for (int i = 0; i < len; ++i) count += (pSrc[i] >= lowerBound) & (pSrc[i] <= upperBound);
    *pCount = count;
    return qspStsOk;
}

}  // namespace

QspStatus qspsCountInRange_32s(const Qsp32s* pSrc, int len, int* pCount, Qsp32s lowerBound, Qsp32s upperBound)
{
    return countInRange(pSrc, len, pCount, lowerBound, upperBound);
}
QspStatus qspsCountInRange_32f(const Qsp32f* pSrc, int len, int* pCount, Qsp32f lowerBound, Qsp32f upperBound)
{
    return countInRange(pSrc, len, pCount, lowerBound, upperBound);
}
QspStatus qspsCountInRange_64f(const Qsp64f* pSrc, int len, int* pCount, Qsp64f lowerBound, Qsp64f upperBound)
{
    return countInRange(pSrc, len, pCount, lowerBound, upperBound);
}

}  // namespace y8

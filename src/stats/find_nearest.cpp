// SPDX-License-Identifier: BSD-3-Clause
// FindNearest, FindNearestOne: for a value, the nearest entry of an
// ascending table and its index, ties (equal distances, equal entries) to
// the lower index. A binary search finds the first entry not below the
// value; the nearer of it and the entry before wins (distances of integers
// exact, of floats in double). A NaN value compares with nothing and takes
// entry 0.
#include "checks.h"
#include "qsp_validators.h"

namespace y8 {
namespace {

// The first index whose entry is not below x (tableLen when none).
template <class T>
int lowerBound(const T* pTable, int tableLen, T x)
{
    int lo = 0, hi = tableLen;
    while (lo < hi) {
        const int mid = lo + (hi - lo) / 2;
        if (pTable[mid] < x)
            lo = mid + 1;
        else
            hi = mid;
    }
    return lo;
}

// Of equal entries the first counts, so the entry below x is taken at the
// start of its run.
template <class T>
int ownsFindNearest(const T* pTable, int tableLen, T x)
{
    const int above = lowerBound(pTable, tableLen, x);
    if (above == 0) return 0;
    const int below = lowerBound(pTable, tableLen, pTable[above - 1]);
    if (above == tableLen) return below;
    const double up = double(pTable[above]) - double(x), down = double(x) - double(pTable[below]);
    return up < down ? above : below;
}

template <class T>
QspStatus findNearest(const T* pSrc, const T* pTable, T* pDst, int* pDstIndx, int len, int tableLen)
{
    if (QspStatus s = check::vectors(len, pSrc, pTable, pDst, pDstIndx)) return s;
    if (QspStatus s = check::length(tableLen)) return s;
    for (int i = 0; i < len; ++i) {
        const int j = ownsFindNearest(pTable, tableLen, pSrc[i]);
        pDst[i] = pTable[j];
        pDstIndx[i] = j;
    }
    return qspStsOk;
}

template <class T>
QspStatus findNearestOne(T val, const T* pTable, T* pDst, int* pDstIndx, int tableLen)
{
    if (QspStatus s = check::vectors(tableLen, pTable, pDst, pDstIndx)) return s;
    const int j = ownsFindNearest(pTable, tableLen, val);
    *pDst = pTable[j];
    *pDstIndx = j;
    return qspStsOk;
}

}  // namespace

QspStatus qspsFindNearest_16u(const Qsp16u* pSrc, const Qsp16u* pTable, Qsp16u* pDst, int* pDstIndx, int len, int tableLen)
{
    return findNearest(pSrc, pTable, pDst, pDstIndx, len, tableLen);
}
QspStatus qspsFindNearest_32s(const Qsp32s* pSrc, const Qsp32s* pTable, Qsp32s* pDst, int* pDstIndx, int len, int tableLen)
{
    return findNearest(pSrc, pTable, pDst, pDstIndx, len, tableLen);
}
QspStatus qspsFindNearest_32f(const Qsp32f* pSrc, const Qsp32f* pTable, Qsp32f* pDst, int* pDstIndx, int len, int tableLen)
{
    return findNearest(pSrc, pTable, pDst, pDstIndx, len, tableLen);
}
QspStatus qspsFindNearest_64f(const Qsp64f* pSrc, const Qsp64f* pTable, Qsp64f* pDst, int* pDstIndx, int len, int tableLen)
{
    return findNearest(pSrc, pTable, pDst, pDstIndx, len, tableLen);
}

QspStatus qspsFindNearestOne_16u(int val, const Qsp16u* pTable, Qsp16u* pDst, int* pDstIndx, int tableLen)
{
    return findNearestOne(Qsp16u(val), pTable, pDst, pDstIndx, tableLen);
}
QspStatus qspsFindNearestOne_32f(Qsp32f val, const Qsp32f* pTable, Qsp32f* pDst, int* pDstIndx, int tableLen)
{
    return findNearestOne(val, pTable, pDst, pDstIndx, tableLen);
}

}  // namespace y8

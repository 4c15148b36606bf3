// SPDX-License-Identifier: BSD-3-Clause
// MinMaxIndx: the smallest and the largest element of a vector with the
// lowest index of each. Two passes: the values by the one-pass search, then
// the positions, each the first element from index 0 that compares equal to
// its value; an extreme that no element equals (a NaN) is reported at
// index 0.
#include "extremum.h"
#include "qsp_validators.h"

namespace y8 {
namespace {

using extremum::Value;

template <class T>
void ownsSearchMinMaxIndx(const T* pSrc, Qsp64s len, T& min, Qsp64s& minAt, T& max, Qsp64s& maxAt)
{
    extremum::ownsSearchMinMax(pSrc, len, min, max);
    const Qsp64s lo = extremum::ownsFindFirstEqual<Value<T>>(pSrc, len, min);
    const Qsp64s hi = extremum::ownsFindFirstEqual<Value<T>>(pSrc, len, max);
    minAt = lo < 0 ? 0 : lo;
    maxAt = hi < 0 ? 0 : hi;
}

template <class T>
QspStatus minMaxIndx(const T* pSrc, int len, T* pMin, int* pMinIndx, T* pMax, int* pMaxIndx)
{
    if (QspStatus s = check::vectors(len, pSrc, pMin, pMinIndx, pMax, pMaxIndx)) return s;
    Qsp64s lo, hi;
    ownsSearchMinMaxIndx(pSrc, len, *pMin, lo, *pMax, hi);
    *pMinIndx = int(lo);
    *pMaxIndx = int(hi);
    return qspStsOk;
}

// Chunk by chunk; a later chunk's extreme replaces the one so far only when
// it is strictly better, so the lowest index stays.
template <class T, class Ordinary>
QspStatus minMaxIndxL(Qsp64s chunk, const T* pSrc, Qsp64s len, T* pMin, Qsp64s* pMinIndx, T* pMax,
                      Qsp64s* pMaxIndx, Ordinary ordinary)
{
    if (QspStatus s = check::vectorsL(len, pSrc, pMin, pMinIndx, pMax, pMaxIndx)) return s;
    return chunkedBy(chunk, len, [&](Qsp64s at, int n) -> QspStatus {
        T lo, hi;
        int loAt, hiAt;
        const QspStatus s = ordinary(pSrc + at, n, &lo, &loAt, &hi, &hiAt);
        if (at == 0 || extremum::Smallest::better(lo, *pMin)) {
            *pMin = lo;
            *pMinIndx = at + loAt;
        }
        if (at == 0 || extremum::Largest::better(hi, *pMax)) {
            *pMax = hi;
            *pMaxIndx = at + hiAt;
        }
        return s;
    });
}

}  // namespace

QspStatus qspsMinMaxIndx_8u(const Qsp8u* pSrc, int len, Qsp8u* pMin, int* pMinIndx, Qsp8u* pMax, int* pMaxIndx)
{
    return minMaxIndx(pSrc, len, pMin, pMinIndx, pMax, pMaxIndx);
}
QspStatus qspsMinMaxIndx_16s(const Qsp16s* pSrc, int len, Qsp16s* pMin, int* pMinIndx, Qsp16s* pMax, int* pMaxIndx)
{
    return minMaxIndx(pSrc, len, pMin, pMinIndx, pMax, pMaxIndx);
}
QspStatus qspsMinMaxIndx_16u(const Qsp16u* pSrc, int len, Qsp16u* pMin, int* pMinIndx, Qsp16u* pMax, int* pMaxIndx)
{
    return minMaxIndx(pSrc, len, pMin, pMinIndx, pMax, pMaxIndx);
}
QspStatus qspsMinMaxIndx_32f(const Qsp32f* pSrc, int len, Qsp32f* pMin, int* pMinIndx, Qsp32f* pMax, int* pMaxIndx)
{
    return minMaxIndx(pSrc, len, pMin, pMinIndx, pMax, pMaxIndx);
}
QspStatus qspsMinMaxIndx_32s(const Qsp32s* pSrc, int len, Qsp32s* pMin, int* pMinIndx, Qsp32s* pMax, int* pMaxIndx)
{
    return minMaxIndx(pSrc, len, pMin, pMinIndx, pMax, pMaxIndx);
}
QspStatus qspsMinMaxIndx_32u(const Qsp32u* pSrc, int len, Qsp32u* pMin, int* pMinIndx, Qsp32u* pMax, int* pMaxIndx)
{
    return minMaxIndx(pSrc, len, pMin, pMinIndx, pMax, pMaxIndx);
}
QspStatus qspsMinMaxIndx_64f(const Qsp64f* pSrc, int len, Qsp64f* pMin, int* pMinIndx, Qsp64f* pMax, int* pMaxIndx)
{
    return minMaxIndx(pSrc, len, pMin, pMinIndx, pMax, pMaxIndx);
}

QspStatus qspsMinMaxIndx_32f_L(const Qsp32f* pSrc, Qsp64s len, Qsp32f* pMin, Qsp64s* pMinIndx, Qsp32f* pMax,
                               Qsp64s* pMaxIndx)
{
    return minMaxIndxL(chunkElements<Qsp32f>, pSrc, len, pMin, pMinIndx, pMax, pMaxIndx, qspsMinMaxIndx_32f);
}
QspStatus qspsMinMaxIndx_64f_L(const Qsp64f* pSrc, Qsp64s len, Qsp64f* pMin, Qsp64s* pMinIndx, Qsp64f* pMax,
                               Qsp64s* pMaxIndx)
{
    return minMaxIndxL(chunkElements<Qsp64f>, pSrc, len, pMin, pMinIndx, pMax, pMaxIndx, qspsMinMaxIndx_64f);
}

}  // namespace y8

// SPDX-License-Identifier: BSD-3-Clause
// MinMax: the smallest and the largest element of a vector in one pass.
#include "extremum.h"
#include "qsp_validators.h"

namespace y8 {
namespace {

using extremum::Largest;
using extremum::Smallest;

template <class T>
QspStatus minMax(const T* pSrc, int len, T* pMin, T* pMax)
{
    if (QspStatus s = check::vectors(len, pSrc, pMin, pMax)) return s;
    extremum::ownsSearchMinMax(pSrc, len, *pMin, *pMax);
    return qspStsOk;
}

// Chunk by chunk, the chunk extremes combined by the steps of the search.
template <class T, class Ordinary>
QspStatus minMaxL(Qsp64s chunk, const T* pSrc, Qsp64s len, T* pMin, T* pMax, Ordinary ordinary)
{
    if (QspStatus s = check::vectorsL(len, pSrc, pMin, pMax)) return s;
    T lo{}, hi{};
    return chunkedBy(chunk, len, [&](Qsp64s at, int n) -> QspStatus {
        T partLo, partHi;
        const QspStatus s = ordinary(pSrc + at, n, &partLo, &partHi);
        lo = at == 0 ? partLo : Smallest::step(lo, partLo);
        hi = at == 0 ? partHi : Largest::step(hi, partHi);
        *pMin = lo;
        *pMax = hi;
        return s;
    });
}

}  // namespace

QspStatus qspsMinMax_8u(const Qsp8u* pSrc, int len, Qsp8u* pMin, Qsp8u* pMax) { return minMax(pSrc, len, pMin, pMax); }
QspStatus qspsMinMax_16s(const Qsp16s* pSrc, int len, Qsp16s* pMin, Qsp16s* pMax) { return minMax(pSrc, len, pMin, pMax); }
QspStatus qspsMinMax_16u(const Qsp16u* pSrc, int len, Qsp16u* pMin, Qsp16u* pMax) { return minMax(pSrc, len, pMin, pMax); }
QspStatus qspsMinMax_32f(const Qsp32f* pSrc, int len, Qsp32f* pMin, Qsp32f* pMax) { return minMax(pSrc, len, pMin, pMax); }
QspStatus qspsMinMax_32s(const Qsp32s* pSrc, int len, Qsp32s* pMin, Qsp32s* pMax) { return minMax(pSrc, len, pMin, pMax); }
QspStatus qspsMinMax_32u(const Qsp32u* pSrc, int len, Qsp32u* pMin, Qsp32u* pMax) { return minMax(pSrc, len, pMin, pMax); }
QspStatus qspsMinMax_64f(const Qsp64f* pSrc, int len, Qsp64f* pMin, Qsp64f* pMax) { return minMax(pSrc, len, pMin, pMax); }

QspStatus qspsMinMax_32f_L(const Qsp32f* pSrc, Qsp64s len, Qsp32f* pMin, Qsp32f* pMax)
{
    return minMaxL(chunkElements<Qsp32f>, pSrc, len, pMin, pMax, qspsMinMax_32f);
}
QspStatus qspsMinMax_64f_L(const Qsp64f* pSrc, Qsp64s len, Qsp64f* pMin, Qsp64f* pMax)
{
    return minMaxL(chunkElements<Qsp64f>, pSrc, len, pMin, pMax, qspsMinMax_64f);
}

}  // namespace y8

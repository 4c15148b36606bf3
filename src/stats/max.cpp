// SPDX-License-Identifier: BSD-3-Clause
// Max: the largest element of a vector, by the lane step of the value search.
#include "extremum.h"
#include "qsp_validators.h"

namespace y8 {

using extremum::Largest;
using extremum::Value;

QspStatus qspsMax_16s(const Qsp16s* pSrc, int len, Qsp16s* pMax) { return extremum::searchValue<Largest, Value<Qsp16s>>(pSrc, len, pMax); }
QspStatus qspsMax_32f(const Qsp32f* pSrc, int len, Qsp32f* pMax) { return extremum::searchValue<Largest, Value<Qsp32f>>(pSrc, len, pMax); }
QspStatus qspsMax_32s(const Qsp32s* pSrc, int len, Qsp32s* pMax) { return extremum::searchValue<Largest, Value<Qsp32s>>(pSrc, len, pMax); }
QspStatus qspsMax_64f(const Qsp64f* pSrc, int len, Qsp64f* pMax) { return extremum::searchValue<Largest, Value<Qsp64f>>(pSrc, len, pMax); }

QspStatus qspsMax_32f_L(const Qsp32f* pSrc, Qsp64s len, Qsp32f* pMax)
{
    return extremum::searchValueL<Largest>(chunkElements<Qsp32f>, pSrc, len, pMax, qspsMax_32f);
}
QspStatus qspsMax_64f_L(const Qsp64f* pSrc, Qsp64s len, Qsp64f* pMax)
{
    return extremum::searchValueL<Largest>(chunkElements<Qsp64f>, pSrc, len, pMax, qspsMax_64f);
}

}  // namespace y8

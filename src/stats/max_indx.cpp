// SPDX-License-Identifier: BSD-3-Clause
// MaxIndx: the largest element of a vector and the lowest index holding it.
#include "extremum.h"
#include "qsp_validators.h"

namespace y8 {

using extremum::Largest;
using extremum::Value;

QspStatus qspsMaxIndx_16s(const Qsp16s* pSrc, int len, Qsp16s* pMax, int* pIndx)
{
    return extremum::searchIndex<Largest, Value<Qsp16s>>(pSrc, len, pMax, pIndx, qspsMax_16s);
}
QspStatus qspsMaxIndx_32f(const Qsp32f* pSrc, int len, Qsp32f* pMax, int* pIndx)
{
    return extremum::searchIndex<Largest, Value<Qsp32f>>(pSrc, len, pMax, pIndx, qspsMax_32f);
}
QspStatus qspsMaxIndx_32s(const Qsp32s* pSrc, int len, Qsp32s* pMax, int* pIndx)
{
    return extremum::searchIndex<Largest, Value<Qsp32s>>(pSrc, len, pMax, pIndx, qspsMax_32s);
}
QspStatus qspsMaxIndx_64f(const Qsp64f* pSrc, int len, Qsp64f* pMax, int* pIndx)
{
    return extremum::searchIndex<Largest, Value<Qsp64f>>(pSrc, len, pMax, pIndx, qspsMax_64f);
}

QspStatus qspsMaxIndx_32f_L(const Qsp32f* pSrc, Qsp64s len, Qsp32f* pMax, Qsp64s* pIndx)
{
    return extremum::searchIndexL<Largest, Value<Qsp32f>>(chunkElements<Qsp32f>, pSrc, len, pMax, pIndx, qspsMaxIndx_32f,
                                                       qspsMax_32f_L);
}
QspStatus qspsMaxIndx_64f_L(const Qsp64f* pSrc, Qsp64s len, Qsp64f* pMax, Qsp64s* pIndx)
{
    return extremum::searchIndexL<Largest, Value<Qsp64f>>(chunkElements<Qsp64f>, pSrc, len, pMax, pIndx, qspsMaxIndx_64f,
                                                       qspsMax_64f_L);
}

}  // namespace y8

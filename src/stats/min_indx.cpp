// SPDX-License-Identifier: BSD-3-Clause
// MinIndx: the smallest element of a vector and the lowest index holding it.
#include "extremum.h"
#include "qsp_validators.h"

namespace y8 {

using extremum::Smallest;
using extremum::Value;

QspStatus qspsMinIndx_16s(const Qsp16s* pSrc, int len, Qsp16s* pMin, int* pIndx)
{
    return extremum::searchIndex<Smallest, Value<Qsp16s>>(pSrc, len, pMin, pIndx, qspsMin_16s);
}
QspStatus qspsMinIndx_32f(const Qsp32f* pSrc, int len, Qsp32f* pMin, int* pIndx)
{
    return extremum::searchIndex<Smallest, Value<Qsp32f>>(pSrc, len, pMin, pIndx, qspsMin_32f);
}
QspStatus qspsMinIndx_32s(const Qsp32s* pSrc, int len, Qsp32s* pMin, int* pIndx)
{
    return extremum::searchIndex<Smallest, Value<Qsp32s>>(pSrc, len, pMin, pIndx, qspsMin_32s);
}
QspStatus qspsMinIndx_64f(const Qsp64f* pSrc, int len, Qsp64f* pMin, int* pIndx)
{
    return extremum::searchIndex<Smallest, Value<Qsp64f>>(pSrc, len, pMin, pIndx, qspsMin_64f);
}

QspStatus qspsMinIndx_32f_L(const Qsp32f* pSrc, Qsp64s len, Qsp32f* pMin, Qsp64s* pIndx)
{
    return extremum::searchIndexL<Smallest, Value<Qsp32f>>(chunkElements<Qsp32f>, pSrc, len, pMin, pIndx, qspsMinIndx_32f,
                                                       qspsMin_32f_L);
}
QspStatus qspsMinIndx_64f_L(const Qsp64f* pSrc, Qsp64s len, Qsp64f* pMin, Qsp64s* pIndx)
{
    return extremum::searchIndexL<Smallest, Value<Qsp64f>>(chunkElements<Qsp64f>, pSrc, len, pMin, pIndx, qspsMinIndx_64f,
                                                       qspsMin_64f_L);
}

}  // namespace y8

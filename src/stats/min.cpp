// SPDX-License-Identifier: BSD-3-Clause
// Min: the smallest element of a vector, by the lane step of the value search.
#include "extremum.h"
#include "qsp_validators.h"

namespace y8 {

using extremum::Smallest;
using extremum::Value;

QspStatus qspsMin_16s(const Qsp16s* pSrc, int len, Qsp16s* pMin) { return extremum::searchValue<Smallest, Value<Qsp16s>>(pSrc, len, pMin); }
QspStatus qspsMin_32f(const Qsp32f* pSrc, int len, Qsp32f* pMin) { return extremum::searchValue<Smallest, Value<Qsp32f>>(pSrc, len, pMin); }
QspStatus qspsMin_32s(const Qsp32s* pSrc, int len, Qsp32s* pMin) { return extremum::searchValue<Smallest, Value<Qsp32s>>(pSrc, len, pMin); }
QspStatus qspsMin_64f(const Qsp64f* pSrc, int len, Qsp64f* pMin) { return extremum::searchValue<Smallest, Value<Qsp64f>>(pSrc, len, pMin); }

QspStatus qspsMin_32f_L(const Qsp32f* pSrc, Qsp64s len, Qsp32f* pMin)
{
    return extremum::searchValueL<Smallest>(chunkElements<Qsp32f>, pSrc, len, pMin, qspsMin_32f);
}
QspStatus qspsMin_64f_L(const Qsp64f* pSrc, Qsp64s len, Qsp64f* pMin)
{
    return extremum::searchValueL<Smallest>(chunkElements<Qsp64f>, pSrc, len, pMin, qspsMin_64f);
}

}  // namespace y8

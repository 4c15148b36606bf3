// SPDX-License-Identifier: BSD-3-Clause
// MaxAbsIndx: the largest magnitude in a vector and the lowest index holding
// it.
#include "extremum.h"
#include "qsp_validators.h"

namespace y8 {

using extremum::Largest;
using extremum::Magnitude;

QspStatus qspsMaxAbsIndx_16s(const Qsp16s* pSrc, int len, Qsp16s* pMaxAbs, int* pIndx)
{
    return extremum::searchIndex<Largest, Magnitude<Qsp16s>>(pSrc, len, pMaxAbs, pIndx, qspsMaxAbs_16s);
}
QspStatus qspsMaxAbsIndx_32f(const Qsp32f* pSrc, int len, Qsp32f* pMaxAbs, int* pIndx)
{
    return extremum::searchIndex<Largest, Magnitude<Qsp32f>>(pSrc, len, pMaxAbs, pIndx, qspsMaxAbs_32f);
}
QspStatus qspsMaxAbsIndx_32s(const Qsp32s* pSrc, int len, Qsp32s* pMaxAbs, int* pIndx)
{
    return extremum::searchIndex<Largest, Magnitude<Qsp32s>>(pSrc, len, pMaxAbs, pIndx, qspsMaxAbs_32s);
}
QspStatus qspsMaxAbsIndx_64f(const Qsp64f* pSrc, int len, Qsp64f* pMaxAbs, int* pIndx)
{
    return extremum::searchIndex<Largest, Magnitude<Qsp64f>>(pSrc, len, pMaxAbs, pIndx, qspsMaxAbs_64f);
}

QspStatus qspsMaxAbsIndx_32f_L(const Qsp32f* pSrc, Qsp64s len, Qsp32f* pMaxAbs, Qsp64s* pIndx)
{
    return extremum::searchIndexL<Largest, Magnitude<Qsp32f>>(chunkElements<Qsp32f>, pSrc, len, pMaxAbs, pIndx, qspsMaxAbsIndx_32f,
                                                       qspsMaxAbs_32f_L);
}
QspStatus qspsMaxAbsIndx_64f_L(const Qsp64f* pSrc, Qsp64s len, Qsp64f* pMaxAbs, Qsp64s* pIndx)
{
    return extremum::searchIndexL<Largest, Magnitude<Qsp64f>>(chunkElements<Qsp64f>, pSrc, len, pMaxAbs, pIndx, qspsMaxAbsIndx_64f,
                                                       qspsMaxAbs_64f_L);
}

}  // namespace y8

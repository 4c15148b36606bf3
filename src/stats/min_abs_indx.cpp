// SPDX-License-Identifier: BSD-3-Clause
// MinAbsIndx: the smallest magnitude in a vector and the lowest index
// holding it.
#include "extremum.h"
#include "qsp_validators.h"

namespace y8 {

using extremum::Smallest;
using extremum::Magnitude;

QspStatus qspsMinAbsIndx_16s(const Qsp16s* pSrc, int len, Qsp16s* pMinAbs, int* pIndx)
{
    return extremum::searchIndex<Smallest, Magnitude<Qsp16s>>(pSrc, len, pMinAbs, pIndx, qspsMinAbs_16s);
}
QspStatus qspsMinAbsIndx_32f(const Qsp32f* pSrc, int len, Qsp32f* pMinAbs, int* pIndx)
{
    return extremum::searchIndex<Smallest, Magnitude<Qsp32f>>(pSrc, len, pMinAbs, pIndx, qspsMinAbs_32f);
}
QspStatus qspsMinAbsIndx_32s(const Qsp32s* pSrc, int len, Qsp32s* pMinAbs, int* pIndx)
{
    return extremum::searchIndex<Smallest, Magnitude<Qsp32s>>(pSrc, len, pMinAbs, pIndx, qspsMinAbs_32s);
}
QspStatus qspsMinAbsIndx_64f(const Qsp64f* pSrc, int len, Qsp64f* pMinAbs, int* pIndx)
{
    return extremum::searchIndex<Smallest, Magnitude<Qsp64f>>(pSrc, len, pMinAbs, pIndx, qspsMinAbs_64f);
}

QspStatus qspsMinAbsIndx_32f_L(const Qsp32f* pSrc, Qsp64s len, Qsp32f* pMinAbs, Qsp64s* pIndx)
{
    return extremum::searchIndexL<Smallest, Magnitude<Qsp32f>>(chunkElements<Qsp32f>, pSrc, len, pMinAbs, pIndx, qspsMinAbsIndx_32f,
                                                       qspsMinAbs_32f_L);
}
QspStatus qspsMinAbsIndx_64f_L(const Qsp64f* pSrc, Qsp64s len, Qsp64f* pMinAbs, Qsp64s* pIndx)
{
    return extremum::searchIndexL<Smallest, Magnitude<Qsp64f>>(chunkElements<Qsp64f>, pSrc, len, pMinAbs, pIndx, qspsMinAbsIndx_64f,
                                                       qspsMinAbs_64f_L);
}

}  // namespace y8

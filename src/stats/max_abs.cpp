// SPDX-License-Identifier: BSD-3-Clause
// MaxAbs: the largest magnitude in a vector, by the lane step of the value
// search.
#include "extremum.h"
#include "qsp_validators.h"

namespace y8 {

using extremum::Largest;
using extremum::Magnitude;

QspStatus qspsMaxAbs_16s(const Qsp16s* pSrc, int len, Qsp16s* pMaxAbs) { return extremum::searchValue<Largest, Magnitude<Qsp16s>>(pSrc, len, pMaxAbs); }
QspStatus qspsMaxAbs_32f(const Qsp32f* pSrc, int len, Qsp32f* pMaxAbs) { return extremum::searchValue<Largest, Magnitude<Qsp32f>>(pSrc, len, pMaxAbs); }
QspStatus qspsMaxAbs_32s(const Qsp32s* pSrc, int len, Qsp32s* pMaxAbs) { return extremum::searchValue<Largest, Magnitude<Qsp32s>>(pSrc, len, pMaxAbs); }
QspStatus qspsMaxAbs_64f(const Qsp64f* pSrc, int len, Qsp64f* pMaxAbs) { return extremum::searchValue<Largest, Magnitude<Qsp64f>>(pSrc, len, pMaxAbs); }

QspStatus qspsMaxAbs_32f_L(const Qsp32f* pSrc, Qsp64s len, Qsp32f* pMaxAbs)
{
    return extremum::searchValueL<Largest>(chunkElements<Qsp32f>, pSrc, len, pMaxAbs, qspsMaxAbs_32f);
}
QspStatus qspsMaxAbs_64f_L(const Qsp64f* pSrc, Qsp64s len, Qsp64f* pMaxAbs)
{
    return extremum::searchValueL<Largest>(chunkElements<Qsp64f>, pSrc, len, pMaxAbs, qspsMaxAbs_64f);
}

}  // namespace y8

// SPDX-License-Identifier: BSD-3-Clause
// MinAbs: the smallest magnitude in a vector, by the lane step of the value
// search.
#include "extremum.h"
#include "qsp_validators.h"

namespace y8 {

using extremum::Smallest;
using extremum::Magnitude;

QspStatus qspsMinAbs_16s(const Qsp16s* pSrc, int len, Qsp16s* pMinAbs) { return extremum::searchValue<Smallest, Magnitude<Qsp16s>>(pSrc, len, pMinAbs); }
QspStatus qspsMinAbs_32f(const Qsp32f* pSrc, int len, Qsp32f* pMinAbs) { return extremum::searchValue<Smallest, Magnitude<Qsp32f>>(pSrc, len, pMinAbs); }
QspStatus qspsMinAbs_32s(const Qsp32s* pSrc, int len, Qsp32s* pMinAbs) { return extremum::searchValue<Smallest, Magnitude<Qsp32s>>(pSrc, len, pMinAbs); }
QspStatus qspsMinAbs_64f(const Qsp64f* pSrc, int len, Qsp64f* pMinAbs) { return extremum::searchValue<Smallest, Magnitude<Qsp64f>>(pSrc, len, pMinAbs); }

QspStatus qspsMinAbs_32f_L(const Qsp32f* pSrc, Qsp64s len, Qsp32f* pMinAbs)
{
    return extremum::searchValueL<Smallest>(chunkElements<Qsp32f>, pSrc, len, pMinAbs, qspsMinAbs_32f);
}
QspStatus qspsMinAbs_64f_L(const Qsp64f* pSrc, Qsp64s len, Qsp64f* pMinAbs)
{
    return extremum::searchValueL<Smallest>(chunkElements<Qsp64f>, pSrc, len, pMinAbs, qspsMinAbs_64f);
}

}  // namespace y8

// SPDX-License-Identifier: BSD-3-Clause
// StdDev: the sample standard deviation of a vector (divisor len - 1).
#include "qsp_validators.h"
#include "reduce.h"

namespace y8 {
namespace {

using reduce::Elements;
using reduce::Term;

double stdDev16(const Qsp16s* pSrc, int len)
{
    const Elements<Qsp16s> src{pSrc};
    return reduce::sampleStdDevExact(reduce::ownsSumExact<Term::Value>(src, len),
                                     reduce::ownsSumExact<Term::Square>(src, len), len);
}

}  // namespace

QspStatus qspsStdDev_16s32s_Sfs(const Qsp16s* pSrc, int len, Qsp32s* pStdDev, int scaleFactor)
{
    if (QspStatus s = reduce::checkStdDev(len, pSrc, pStdDev)) return s;
    *pStdDev = reduce::scaleByFactor<Qsp32s>(stdDev16(pSrc, len), scaleFactor);
    return qspStsOk;
}

QspStatus qspsStdDev_16s_Sfs(const Qsp16s* pSrc, int len, Qsp16s* pStdDev, int scaleFactor)
{
    if (QspStatus s = reduce::checkStdDev(len, pSrc, pStdDev)) return s;
    *pStdDev = reduce::scaleByFactor<Qsp16s>(stdDev16(pSrc, len), scaleFactor);
    return qspStsOk;
}

// Hint 1: single-precision lanes widened block by block; any other hint:
// every element widened to double.
QspStatus qspsStdDev_32f(const Qsp32f* pSrc, int len, Qsp32f* pStdDev, QspHintAlgorithm hint)
{
    if (QspStatus s = reduce::checkStdDev(len, pSrc, pStdDev)) return s;
    double sum, squares;
    reduce::ownsSumAndSquares<float>(Elements<float>{pSrc}, len, hint == qspAlgHintFast, sum, squares);
    *pStdDev = Qsp32f(reduce::sampleStdDev(sum, squares, len));
    return qspStsOk;
}

QspStatus qspsStdDev_64f(const Qsp64f* pSrc, int len, Qsp64f* pStdDev)
{
    if (QspStatus s = reduce::checkStdDev(len, pSrc, pStdDev)) return s;
    double sum, squares;
    reduce::ownsSumAndSquares<double>(Elements<double>{pSrc}, len, false, sum, squares);
    *pStdDev = reduce::sampleStdDev(sum, squares, len);
    return qspStsOk;
}

}  // namespace y8

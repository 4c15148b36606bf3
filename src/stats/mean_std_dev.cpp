// SPDX-License-Identifier: BSD-3-Clause
// MeanStdDev: the mean and the sample standard deviation of a vector from
// one pair of sums.
#include "qsp_validators.h"
#include "reduce.h"

namespace y8 {
namespace {

using reduce::Elements;
using reduce::Term;

template <class D>
void meanStdDev16(const Qsp16s* pSrc, int len, D* pMean, D* pStdDev, int scaleFactor)
{
    const Elements<Qsp16s> src{pSrc};
    const Qsp64s sum = reduce::ownsSumExact<Term::Value>(src, len);
    const Qsp64s squares = reduce::ownsSumExact<Term::Square>(src, len);
    *pMean = reduce::scaleByFactor<D>(double(sum) / double(len), scaleFactor);
    *pStdDev = reduce::scaleByFactor<D>(reduce::sampleStdDevExact(sum, squares, len), scaleFactor);
}

}  // namespace

QspStatus qspsMeanStdDev_16s_Sfs(const Qsp16s* pSrc, int len, Qsp16s* pMean, Qsp16s* pStdDev, int scaleFactor)
{
    if (QspStatus s = reduce::checkStdDev(len, pSrc, pMean, pStdDev)) return s;
    meanStdDev16(pSrc, len, pMean, pStdDev, scaleFactor);
    return qspStsOk;
}

QspStatus qspsMeanStdDev_16s32s_Sfs(const Qsp16s* pSrc, int len, Qsp32s* pMean, Qsp32s* pStdDev, int scaleFactor)
{
    if (QspStatus s = reduce::checkStdDev(len, pSrc, pMean, pStdDev)) return s;
    meanStdDev16(pSrc, len, pMean, pStdDev, scaleFactor);
    return qspStsOk;
}

// Always the accurate sums, whatever the hint (unlike StdDev_32f).
QspStatus qspsMeanStdDev_32f(const Qsp32f* pSrc, int len, Qsp32f* pMean, Qsp32f* pStdDev, QspHintAlgorithm)
{
    if (QspStatus s = reduce::checkStdDev(len, pSrc, pMean, pStdDev)) return s;
    double sum, squares;
    reduce::ownsSumAndSquares<float>(Elements<float>{pSrc}, len, false, sum, squares);
    *pMean = Qsp32f(sum / double(len));
    *pStdDev = Qsp32f(reduce::sampleStdDev(sum, squares, len));
    return qspStsOk;
}

QspStatus qspsMeanStdDev_64f(const Qsp64f* pSrc, int len, Qsp64f* pMean, Qsp64f* pStdDev)
{
    if (QspStatus s = reduce::checkStdDev(len, pSrc, pMean, pStdDev)) return s;
    double sum, squares;
    reduce::ownsSumAndSquares<double>(Elements<double>{pSrc}, len, false, sum, squares);
    *pMean = sum / double(len);
    *pStdDev = reduce::sampleStdDev(sum, squares, len);
    return qspStsOk;
}

}  // namespace y8

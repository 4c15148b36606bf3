// SPDX-License-Identifier: BSD-3-Clause
// Mean: the mean of the elements of a vector, the sum divided by the length
// in double.
#include "qsp_validators.h"
#include "reduce.h"

namespace y8 {
namespace {

using reduce::Elements;
using reduce::Term;

// 32-bit floats: the sum of the hint's scheme, already rounded to single
// precision, divided in double and rounded again.
template <int P, class C>
void mean32f(const Qsp32f* pSrc, Qsp64s len, C* pMean, QspHintAlgorithm hint)
{
    Qsp32f sum[P];
    reduce::ownqspsSum_32f_L<P>(pSrc, P * len, hint, sum);
    for (int k = 0; k < P; ++k) reinterpret_cast<Qsp32f*>(pMean)[k] = Qsp32f(simd::widenOne(sum[k]) / double(len));
}

template <int P, class C>
void mean64f(const Qsp64f* pSrc, Qsp64s len, C* pMean)
{
    double total[P] = {};
    reduce::ownsSumWide<P, Term::Value, double>(Elements<double>{pSrc}, P * len, total);
    for (int k = 0; k < P; ++k) reinterpret_cast<Qsp64f*>(pMean)[k] = total[k] / double(len);
}

}  // namespace

// Integers: the exact sum divided by len in double, times 2^-scaleFactor,
// clamped and converted under the current rounding mode.
QspStatus qspsMean_16s_Sfs(const Qsp16s* pSrc, int len, Qsp16s* pMean, int scaleFactor)
{
    if (QspStatus s = check::vectors(len, pSrc, pMean)) return s;
    const Qsp64s sum = reduce::ownsSumExact<Term::Value>(Elements<Qsp16s>{pSrc}, len);
    *pMean = reduce::scaleByFactor<Qsp16s>(double(sum) / double(len), scaleFactor);
    return qspStsOk;
}

QspStatus qspsMean_16sc_Sfs(const Qsp16sc* pSrc, int len, Qsp16sc* pMean, int scaleFactor)
{
    if (QspStatus s = check::vectors(len, pSrc, pMean)) return s;
    Qsp64s re, im;
    reduce::ownsSumExact2(&pSrc->re, len, re, im);
    *pMean = {reduce::scaleByFactor<Qsp16s>(double(re) / double(len), scaleFactor),
              reduce::scaleByFactor<Qsp16s>(double(im) / double(len), scaleFactor)};
    return qspStsOk;
}

QspStatus qspsMean_32s_Sfs(const Qsp32s* pSrc, int len, Qsp32s* pMean, int scaleFactor)
{
    if (QspStatus s = check::vectors(len, pSrc, pMean)) return s;
    const Qsp64s sum = reduce::ownsSumExact<Term::Value>(Elements<Qsp32s>{pSrc}, len);
    *pMean = reduce::scaleByFactor<Qsp32s>(double(sum) / double(len), scaleFactor);
    return qspStsOk;
}

QspStatus qspsMean_32f(const Qsp32f* pSrc, int len, Qsp32f* pMean, QspHintAlgorithm hint)
{
    if (QspStatus s = check::vectors(len, pSrc, pMean)) return s;
    mean32f<1>(pSrc, len, pMean, hint);
    return qspStsOk;
}

QspStatus qspsMean_32fc(const Qsp32fc* pSrc, int len, Qsp32fc* pMean, QspHintAlgorithm hint)
{
    if (QspStatus s = check::vectors(len, pSrc, pMean)) return s;
    mean32f<2>(&pSrc->re, len, pMean, hint);
    return qspStsOk;
}

QspStatus qspsMean_64f(const Qsp64f* pSrc, int len, Qsp64f* pMean)
{
    if (QspStatus s = check::vectors(len, pSrc, pMean)) return s;
    mean64f<1>(pSrc, len, pMean);
    return qspStsOk;
}

QspStatus qspsMean_64fc(const Qsp64fc* pSrc, int len, Qsp64fc* pMean)
{
    if (QspStatus s = check::vectors(len, pSrc, pMean)) return s;
    mean64f<2>(&pSrc->re, len, pMean);
    return qspStsOk;
}

QspStatus qspsMean_32f_L(const Qsp32f* pSrc, Qsp64s len, Qsp32f* pMean, QspHintAlgorithm hint)
{
    if (QspStatus s = check::vectorsL(len, pSrc, pMean)) return s;
    mean32f<1>(pSrc, len, pMean, hint);
    return qspStsOk;
}

QspStatus qspsMean_32fc_L(const Qsp32fc* pSrc, Qsp64s len, Qsp32fc* pMean, QspHintAlgorithm hint)
{
    if (QspStatus s = check::vectorsL(len, pSrc, pMean)) return s;
    mean32f<2>(&pSrc->re, len, pMean, hint);
    return qspStsOk;
}

QspStatus qspsMean_64f_L(const Qsp64f* pSrc, Qsp64s len, Qsp64f* pMean)
{
    if (QspStatus s = check::vectorsL(len, pSrc, pMean)) return s;
    mean64f<1>(pSrc, len, pMean);
    return qspStsOk;
}

QspStatus qspsMean_64fc_L(const Qsp64fc* pSrc, Qsp64s len, Qsp64fc* pMean)
{
    if (QspStatus s = check::vectorsL(len, pSrc, pMean)) return s;
    mean64f<2>(&pSrc->re, len, pMean);
    return qspStsOk;
}

}  // namespace y8

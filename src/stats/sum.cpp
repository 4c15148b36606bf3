// SPDX-License-Identifier: BSD-3-Clause
// Sum: the sum of the elements of a vector.
#include "qsp_validators.h"
#include "reduce.h"

namespace y8 {
namespace {

using reduce::Elements;
using reduce::Term;

template <int P, class C>
void sum32f(const Qsp32f* pSrc, Qsp64s len, C* pSum, QspHintAlgorithm hint)
{
    reduce::ownqspsSum_32f_L<P>(pSrc, P * len, hint, reinterpret_cast<Qsp32f*>(pSum));
}

template <int P, class C>
void sum64f(const Qsp64f* pSrc, Qsp64s len, C* pSum)
{
    double total[P] = {};
    reduce::ownsSumWide<P, Term::Value, double>(Elements<double>{pSrc}, P * len, total);
    for (int k = 0; k < P; ++k) reinterpret_cast<Qsp64f*>(pSum)[k] = total[k];
}

// The 16-bit sums: exact, then scaled by the double factor.
Qsp32s sum16(const Qsp16s* pSrc, int len, int scaleFactor)
{
    return reduce::scaleByFactor<Qsp32s>(double(reduce::ownsSumExact<Term::Value>(Elements<Qsp16s>{pSrc}, len)),
                                         scaleFactor);
}

Qsp32sc sum16c(const Qsp16sc* pSrc, int len, int scaleFactor)
{
    Qsp64s re, im;
    reduce::ownsSumExact2(&pSrc->re, len, re, im);
    return {reduce::scaleByFactor<Qsp32s>(double(re), scaleFactor),
            reduce::scaleByFactor<Qsp32s>(double(im), scaleFactor)};
}

Qsp16s saturate16(Qsp32s v) { return scaling::saturate<Qsp16s>(v); }

}  // namespace

QspStatus qspsSum_16s32s_Sfs(const Qsp16s* pSrc, int len, Qsp32s* pSum, int scaleFactor)
{
    if (QspStatus s = check::vectors(len, pSrc, pSum)) return s;
    *pSum = sum16(pSrc, len, scaleFactor);
    return qspStsOk;
}

QspStatus qspsSum_16sc32sc_Sfs(const Qsp16sc* pSrc, int len, Qsp32sc* pSum, int scaleFactor)
{
    if (QspStatus s = check::vectors(len, pSrc, pSum)) return s;
    *pSum = sum16c(pSrc, len, scaleFactor);
    return qspStsOk;
}

// The 16-bit results are the 32-bit results saturated.
QspStatus qspsSum_16s_Sfs(const Qsp16s* pSrc, int len, Qsp16s* pSum, int scaleFactor)
{
    if (QspStatus s = check::vectors(len, pSrc, pSum)) return s;
    Qsp32s wide;
    qspsSum_16s32s_Sfs(pSrc, len, &wide, scaleFactor);
    *pSum = saturate16(wide);
    return qspStsOk;
}

QspStatus qspsSum_16sc_Sfs(const Qsp16sc* pSrc, int len, Qsp16sc* pSum, int scaleFactor)
{
    if (QspStatus s = check::vectors(len, pSrc, pSum)) return s;
    Qsp32sc wide;
    qspsSum_16sc32sc_Sfs(pSrc, len, &wide, scaleFactor);
    *pSum = {saturate16(wide.re), saturate16(wide.im)};
    return qspStsOk;
}

// 32-bit integers: a 64-bit sum, scaled by the rule of every Sfs function.
QspStatus qspsSum_32s_Sfs(const Qsp32s* pSrc, int len, Qsp32s* pSum, int scaleFactor)
{
    if (QspStatus s = check::vectors(len, pSrc, pSum)) return s;
    constexpr Qsp64s bound = Qsp64s(1) << 62;  // 2^31 elements of magnitude 2^31
    return reduce::scaleExact(reduce::ownsSumExact<Term::Value>(Elements<Qsp32s>{pSrc}, len), scaleFactor,
                              scaling::limitsFor<Qsp32s>(-bound, bound), pSum, [&] { return qspsZero_32s(pSum, 1); });
}

QspStatus qspsSum_32f(const Qsp32f* pSrc, int len, Qsp32f* pSum, QspHintAlgorithm hint)
{
    if (QspStatus s = check::vectors(len, pSrc, pSum)) return s;
    sum32f<1>(pSrc, len, pSum, hint);
    return qspStsOk;
}

QspStatus qspsSum_32fc(const Qsp32fc* pSrc, int len, Qsp32fc* pSum, QspHintAlgorithm hint)
{
    if (QspStatus s = check::vectors(len, pSrc, pSum)) return s;
    sum32f<2>(&pSrc->re, len, pSum, hint);
    return qspStsOk;
}

QspStatus qspsSum_64f(const Qsp64f* pSrc, int len, Qsp64f* pSum)
{
    if (QspStatus s = check::vectors(len, pSrc, pSum)) return s;
    sum64f<1>(pSrc, len, pSum);
    return qspStsOk;
}

QspStatus qspsSum_64fc(const Qsp64fc* pSrc, int len, Qsp64fc* pSum)
{
    if (QspStatus s = check::vectors(len, pSrc, pSum)) return s;
    sum64f<2>(&pSrc->re, len, pSum);
    return qspStsOk;
}

// The 64-bit length forms run the same kernels; the length is checked
// before the pointers.
QspStatus qspsSum_32f_L(const Qsp32f* pSrc, Qsp64s len, Qsp32f* pSum, QspHintAlgorithm hint)
{
    if (QspStatus s = check::vectorsL(len, pSrc, pSum)) return s;
    sum32f<1>(pSrc, len, pSum, hint);
    return qspStsOk;
}

QspStatus qspsSum_32fc_L(const Qsp32fc* pSrc, Qsp64s len, Qsp32fc* pSum, QspHintAlgorithm hint)
{
    if (QspStatus s = check::vectorsL(len, pSrc, pSum)) return s;
    sum32f<2>(&pSrc->re, len, pSum, hint);
    return qspStsOk;
}

QspStatus qspsSum_64f_L(const Qsp64f* pSrc, Qsp64s len, Qsp64f* pSum)
{
    if (QspStatus s = check::vectorsL(len, pSrc, pSum)) return s;
    sum64f<1>(pSrc, len, pSum);
    return qspStsOk;
}

QspStatus qspsSum_64fc_L(const Qsp64fc* pSrc, Qsp64s len, Qsp64fc* pSum)
{
    if (QspStatus s = check::vectorsL(len, pSrc, pSum)) return s;
    sum64f<2>(&pSrc->re, len, pSum);
    return qspStsOk;
}

}  // namespace y8

// SPDX-License-Identifier: BSD-3-Clause
// PatternMatch: a pattern slid along a vector. For every start i from 0 to
// len - patternLen, pDst[i] is the number of positions j where pSrc[i + j]
// equals pPattern[j] (qspPatternMatchEqual), or the number of bits in which
// the window and the pattern differ (qspPatternMatchHamming); counts
// saturate at 65535. Checks: pointers; len, then patternLen below 1
// (qspStsBadSize); patternLen above len (qspStsBadPatternSize); the mode
// (qspStsBadArgument).
#include "checks.h"
#include "qsp_validators.h"

namespace y8 {
namespace {

template <class T>
Qsp16u ownsMatchAt(const T* pWindow, const T* pPattern, int patternLen, QspPatternMatchMode mode)
{
    Qsp64s count = 0;
    if (mode == qspPatternMatchEqual)
        for (int j = 0; j < patternLen; ++j) count += pWindow[j] == pPattern[j];
    else
        for (int j = 0; j < patternLen; ++j) count += __builtin_popcount(unsigned(pWindow[j] ^ pPattern[j]));
    return count > 65535 ? Qsp16u(65535) : Qsp16u(count);
}

template <class T>
QspStatus patternMatch(const T* pSrc, const T* pPattern, Qsp16u* pDst, int len, int patternLen,
                       QspPatternMatchMode mode)
{
    if (QspStatus s = check::vectors(len, pSrc, pPattern, pDst)) return s;
    if (QspStatus s = check::length(patternLen)) return s;
    if (patternLen > len) return qspStsBadPatternSize;
    if (mode != qspPatternMatchEqual && mode != qspPatternMatchHamming) return qspStsBadArgument;
    for (int i = 0; i + patternLen <= len; ++i) pDst[i] = ownsMatchAt(pSrc + i, pPattern, patternLen, mode);
    return qspStsOk;
}

}  // namespace

QspStatus qspsPatternMatch_8u16u(const Qsp8u* pSrc, const Qsp8u* pPattern, Qsp16u* pDst, int len, int patternLen,
                                 QspPatternMatchMode mode)
{
    return patternMatch(pSrc, pPattern, pDst, len, patternLen, mode);
}
QspStatus qspsPatternMatch_16u(const Qsp16u* pSrc, const Qsp16u* pPattern, Qsp16u* pDst, int len, int patternLen,
                               QspPatternMatchMode mode)
{
    return patternMatch(pSrc, pPattern, pDst, len, patternLen, mode);
}

}  // namespace y8

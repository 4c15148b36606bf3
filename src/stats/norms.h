// SPDX-License-Identifier: BSD-3-Clause
// The norms of a vector (Norm) and of the difference of two (NormDiff), one
// set of functions over an element source: Elements for Norm, Differences
// (formed in the element type) for NormDiff. Src16 is the 16-bit source;
// `largest` is the largest magnitude its elements can have (32768 for a
// vector, 65535 for a difference), from which the scaling thresholds come.
#pragma once
#include "qsp_validators.h"
#include "reduce.h"

namespace y8::norms {

using reduce::Term;

// Infinity norms.

template <class Src>
Qsp32f inf16s32f(Src src, int len)
{
    return Qsp32f(reduce::ownsMaxMagnitudeExact(src, len));
}

// The largest magnitude m, exact; a positive scale factor shifts it right,
// truncating (32 or more gives 0); a negative one shifts it left by its
// magnitude, at most 31, saturating to 2^31 - 1.
template <class Src>
Qsp32s inf16s32sSfs(Src src, int len, int scaleFactor)
{
    const Qsp64s m = reduce::ownsMaxMagnitudeExact(src, len);
    if (scaleFactor >= 32) return 0;
    if (scaleFactor >= 0) return Qsp32s(m >> scaleFactor);
    const int k = scaleFactor < -31 ? 31 : -scaleFactor;
    const Qsp64s v = m << k;
    return v > 2147483647 ? 2147483647 : Qsp32s(v);
}

template <class T, class Src>
T infReal(Src src, Qsp64s len)
{
    return reduce::ownsMaxMagnitude<T>(src, len);
}

// Complex sources address their parts: element k is parts 2k and 2k + 1.
template <class Src>
double infComplex(Src parts, Qsp64s len)
{
    return reduce::ownsMaxComplexMagnitude(parts, len);
}

// L1 norms.

template <class Src>
Qsp64s l1Exact(Src src, int len)
{
    return reduce::ownsSumExact<Term::Magnitude>(src, len);
}

template <class D>
QspStatus l1Scaled(Qsp64s sum, Qsp64s largest, int scaleFactor, D* pNorm)
{
    return reduce::scaleExact(sum, scaleFactor, scaling::limitsFor<D>(0, largest * 2147483647), pNorm, [&] {
        if constexpr (sizeof(D) == 4)
            return qspsZero_32s(reinterpret_cast<Qsp32s*>(pNorm), 1);
        else
            return qspsZero_64s(reinterpret_cast<Qsp64s*>(pNorm), 1);
    });
}

template <class T, class Src>
double l1Real(Src src, Qsp64s len)
{
    double total = 0;
    reduce::ownsSumWide<1, Term::Magnitude, T>(src, len, &total);
    return total;
}

template <class Src>
double l1Complex(Src parts, Qsp64s len)
{
    return reduce::ownsSumComplexMagnitudes(parts, len);
}

// L2 norms.

template <class Src>
Qsp64s squaresExact(Src src, int len)
{
    return reduce::ownsSumExact<Term::Square>(src, len);
}

// 16-bit sources: the root of the exact sum of squares, in double.
template <class Src>
double l2Exact(Src src, int len)
{
    return simd::sqrtOne(double(squaresExact(src, len)));
}

// Single precision: squares summed in eight single lanes, the root taken in
// double.
template <class Src>
Qsp32f l2Single(Src src, Qsp64s len)
{
    return Qsp32f(simd::sqrtOne(simd::widenOne(reduce::ownsSumSquares8_32f(src, len))));
}

// Doubles, and the parts of complex elements (every part squared), in eight
// double lanes.
template <class T, class Src>
double l2Wide(Src src, Qsp64s count)
{
    double total = 0;
    reduce::ownsSumWide<1, Term::Square, T>(src, count, &total);
    return simd::sqrtOne(total);
}

inline QspStatus l2SqrScaled(Qsp64s squares, Qsp64s largest, int scaleFactor, Qsp64s* pNorm)
{
    return reduce::scaleExact(__int128(squares), scaleFactor,
                              scaling::limitsFor<Qsp64s>(0, largest * largest * 2147483647), pNorm,
                              [&] { return qspsZero_64s(pNorm, 1); });
}

}  // namespace y8::norms

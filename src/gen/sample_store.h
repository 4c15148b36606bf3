// SPDX-License-Identifier: BSD-3-Clause
// Generated values are computed in double precision, a block at a time, and
// stored as elements by one routine per element type:
//   64f           as they are
//   32f           rounded to single precision (to nearest)
//   integers      rounded to nearest with ties to even and saturated to
//                 the type; NaN gives 0
//   complex types part by part (the block holds re, im, re, im, ...)
// The rounding is explicit, whatever the caller's rounding mode.
#pragma once
#include <type_traits>

#include "arith/ops.h"
#include "arith/rounding.h"
#include "qspdefs.h"
#include "simd.h"

namespace samples {

// Values generated per block: a block of doubles fits the stack and L1.
constexpr int kBlock = 512;

template <class T>
using Part = ops::Part<T>;
// Doubles per element: 2 for the complex types.
template <class T>
constexpr int partsOf = int(sizeof(T) / sizeof(Part<T>));

namespace detail {

using VD = simd::Vec<double>;

template <class P>
void storeParts(const double* v, P* d, int n)
{
    int i = 0;
    if constexpr (std::is_same_v<P, Qsp64f>) {
        for (; i + 2 <= n; i += 2) VD::storeu(d + i, VD::loadu(v + i));
        for (; i < n; ++i) d[i] = v[i];
    } else if constexpr (std::is_same_v<P, Qsp32f>) {
        for (; i + 4 <= n; i += 4) simd::Vec<float>::storeu(d + i, VD::narrow(VD::loadu(v + i), VD::loadu(v + i + 2)));
        for (; i < n; ++i) d[i] = float(v[i]);
    } else if constexpr (std::is_same_v<P, Qsp16s>) {
        using V32 = simd::Vec<Qsp32s>;
        const VD::Reg lo = VD::splat(-32768.0), hi = VD::splat(32767.0);
        auto two = [&](const double* p) { return rounding::toInt32<rounding::kNear>(VD::loadu(p), lo, hi); };
        for (; i + 8 <= n; i += 8) {
            const __m128i a = V32::lowHalves(two(v + i), two(v + i + 2));
            const __m128i b = V32::lowHalves(two(v + i + 4), two(v + i + 6));
            simd::Vec<Qsp16s>::storeu(d + i, simd::Vec<Qsp16s>::packs32(a, b));
        }
        for (; i < n; ++i) d[i] = rounding::toInt<rounding::kNear, Qsp16s>(v[i]);
    } else {
        for (; i < n; ++i) d[i] = rounding::toInt<rounding::kNear, P>(v[i]);
    }
}

}  // namespace detail

// count elements of T from count * partsOf<T> doubles.
template <class T>
void store(const double* v, T* pDst, int count)
{
    detail::storeParts(v, reinterpret_cast<Part<T>*>(pDst), count * partsOf<T>);
}

}  // namespace samples

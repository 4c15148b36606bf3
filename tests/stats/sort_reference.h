// SPDX-License-Identifier: BSD-3-Clause
// The order every sort of the library promises, written independently of
// the library's key formulas, and the inputs the sort tests share.
#pragma once
#include <algorithm>
#include <cstring>
#include <limits>
#include <numeric>
#include <vector>

#include "qsp_test.h"

namespace sortref {

// The order the sorts promise, written independently of the library's key
// formulas: integers by value; floating values by sign and magnitude of
// their bit patterns, a set sign bit placing a pattern below every pattern
// without it, and larger magnitudes further from zero. This is the total
// order -NaN < -Inf < ... < -0.0 < +0.0 < ... < +Inf < +NaN.

template <class T>
long double rankOf(T x)
{
    if constexpr (std::is_floating_point_v<T>) {
        using U = std::conditional_t<sizeof(T) == 4, uint32_t, uint64_t>;
        U u;
        std::memcpy(&u, &x, sizeof u);
        const U top = U(1) << (8 * sizeof(U) - 1);
        return (u & top) ? -(long double)(u & ~top) - 1 : (long double)u;
    } else {
        return (long double)x;
    }
}

template <class T>
std::vector<T> referenceSorted(std::vector<T> v, bool ascend)
{
    std::stable_sort(v.begin(), v.end(), [&](T a, T b) { return ascend ? rankOf(a) < rankOf(b) : rankOf(b) < rankOf(a); });
    return v;
}

template <class T>
QspDataType typeCode()
{
    if constexpr (std::is_same_v<T, Qsp8u>) return qsp8u;
    if constexpr (std::is_same_v<T, Qsp16u>) return qsp16u;
    if constexpr (std::is_same_v<T, Qsp16s>) return qsp16s;
    if constexpr (std::is_same_v<T, Qsp32u>) return qsp32u;
    if constexpr (std::is_same_v<T, Qsp32s>) return qsp32s;
    if constexpr (std::is_same_v<T, Qsp32f>) return qsp32f;
    if constexpr (std::is_same_v<T, Qsp64u>) return qsp64u;
    if constexpr (std::is_same_v<T, Qsp64s>) return qsp64s;
    if constexpr (std::is_same_v<T, Qsp64f>) return qsp64f;
}

// Special values of each type, to be mixed into the inputs.
template <class T>
std::vector<T> specials()
{
    if constexpr (std::is_floating_point_v<T>) {
        using U = std::conditional_t<sizeof(T) == 4, uint32_t, uint64_t>;
        const U top = U(1) << (8 * sizeof(U) - 1);
        const U expAll = sizeof(T) == 4 ? U(0x7F800000) : U(0x7FF0000000000000ull);
        const U patterns[] = {0, top, expAll, top | expAll, expAll | 1, expAll | 2, top | expAll | 1,
                              top | expAll | (expAll >> 1) /* quiet, large payload */, expAll | (expAll >> 1), 1,
                              top | 1, expAll - 1, top | (expAll - 1), (top >> 1) /* 2.0 */};
        std::vector<T> out;
        for (U p : patterns) {
            T x;
            std::memcpy(&x, &p, sizeof x);
            out.push_back(x);
        }
        return out;
    } else {
        return {std::numeric_limits<T>::min(), std::numeric_limits<T>::max(), T(0), T(1), T(-1),
                T(std::numeric_limits<T>::min() + 1), T(std::numeric_limits<T>::max() - 1)};
    }
}

// The stable sorting permutation: the indices of v ordered by value, equal
// values in index order.
template <class T>
std::vector<long long> referencePermutation(const std::vector<T>& v, bool ascend)
{
    std::vector<long long> idx(v.size());
    std::iota(idx.begin(), idx.end(), 0);
    std::stable_sort(idx.begin(), idx.end(), [&](long long a, long long b) {
        return ascend ? rankOf(v[a]) < rankOf(v[b]) : rankOf(v[b]) < rankOf(v[a]);
    });
    return idx;
}

// Inputs of every shape: random bit patterns (every length to 100 and some
// long ones), special values among random ones, sorted, reversed, all equal
// and a narrow range with many ties.
template <class T>
std::vector<std::vector<T>> shapes()
{
    std::vector<std::vector<T>> out;
    for (int len = 1; len <= 100; ++len) out.push_back(qsptest::randomBits<T>(len));
    for (int len : {255, 256, 257, 2049, 40000}) out.push_back(qsptest::randomBits<T>(len));
    std::vector<T> mixed = qsptest::randomBits<T>(3000);
    const std::vector<T> sp = specials<T>();
    for (size_t i = 0; i < mixed.size(); i += 3) mixed[i] = sp[(i / 3) % sp.size()];
    out.push_back(mixed);
    out.push_back(sp);
    std::vector<T> sorted = referenceSorted(qsptest::randomBits<T>(5000), true);
    out.push_back(sorted);
    std::reverse(sorted.begin(), sorted.end());
    out.push_back(sorted);
    for (T value : sp) out.push_back(std::vector<T>(300, value));
    std::vector<T> narrow(4000);
    for (auto& x : narrow) x = T(qsptest::rng()() % 5);
    out.push_back(narrow);
    return out;
}

}  // namespace sortref

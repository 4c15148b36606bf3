// Independent references of the arithmetic tests: the scale-factor rule in
// exact 128-bit integer arithmetic (floor division and an explicit
// comparison of the remainder with one half), sweeps over lengths and
// alignments, and random operands with the extreme values mixed in.
#pragma once
#include <limits>
#include <vector>

#include "qsp_test.h"

namespace arithref {

using i128 = __int128;

// The rule: v * 2^-s rounded to nearest with ties to even, then clamped to
// the range of D.
template <class D>
D scaled(i128 v, int s)
{
    i128 q;
    if (s >= 0) {
        const i128 p = i128(1) << (s > 100 ? 100 : s);
        q = v / p;
        i128 r = v - q * p;
        if (r < 0) {  // floor division
            q -= 1;
            r += p;
        }
        if (2 * r > p || (2 * r == p && (q & 1) != 0)) q += 1;
    } else {
        const int k = -s > 100 ? 100 : -s;
        q = v;
        for (int i = 0; i < k && q != 0 && q < (i128(1) << 80) && q > -(i128(1) << 80); ++i) q *= 2;
    }
    if (q > i128(std::numeric_limits<D>::max())) return std::numeric_limits<D>::max();
    if (q < i128(std::numeric_limits<D>::min())) return std::numeric_limits<D>::min();
    return D(q);
}

// Random values of an integer type with its extremes and small values mixed
// in (one in four is one of them).
template <class T>
std::vector<T> operands(size_t n)
{
    static_assert(std::is_integral_v<T>);
    using L = std::numeric_limits<T>;
    const T special[] = {L::min(), T(L::min() + 1), L::max(), T(L::max() - 1), T(0), T(1), T(2), T(3), T(-1), T(-2),
                         T(L::max() / 2), T(L::max() / 2 + 1)};
    std::vector<T> v = qsptest::randomBits<T>(n);
    for (size_t i = 0; i < n; ++i)
        if (qsptest::rng()() % 4 == 0) v[i] = special[qsptest::rng()() % (sizeof special / sizeof special[0])];
    return v;
}

}  // namespace arithref

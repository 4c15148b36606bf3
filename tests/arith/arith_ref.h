// SPDX-License-Identifier: BSD-3-Clause
// Independent references and sweeps of the arithmetic tests: the
// scale-factor rule in exact 128-bit integer arithmetic (floor division and
// an explicit comparison of the remainder with one half), distances to a
// long double reference in units in the last place, random operands with
// the extreme values mixed in, and sweeps over lengths and alignments.
#pragma once
#include <cfloat>
#include <functional>
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

// The quotient num / den times 2^-s, rounded (mode 0 toward zero, 1 to
// nearest even, 2 to nearest with ties away from zero) and clamped to D; a
// zero den gives D's maximum, minimum or 0 by the sign of num. Works by
// floor division and a comparison of twice the remainder with the divisor.
template <class D>
D quotient(i128 num, i128 den, int s, int mode = 1)
{
    using L = std::numeric_limits<D>;
    if (den == 0) return num > 0 ? L::max() : num < 0 ? L::min() : D(0);
    s = s > 90 ? 90 : s < -90 ? -90 : s;
    for (int i = 0; i < s; ++i) den *= 2;
    for (int i = 0; i < -s; ++i) num *= 2;
    if (den < 0) num = -num, den = -den;
    i128 q = num / den, r = num - q * den;
    if (r < 0) q -= 1, r += den;  // floor: 0 <= r < den
    // q + r/den is the exact value; pick the integer by the mode.
    if (r != 0) {
        const bool negative = q < 0;  // the exact value lies in (q, q+1)
        if (mode == 0) {
            if (negative) q += 1;  // toward zero
        } else if (2 * r > den) {
            q += 1;
        } else if (2 * r == den) {
            if (mode == 2) q += negative ? 0 : 1;
            else if (q & 1) q += 1;
        }
    }
    if (q > i128(L::max())) return L::max();
    if (q < i128(L::min())) return L::min();
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

// Random finite floating values over many binades (magnitudes 2^-40 ..
// 2^40), signs mixed, with some zeros.
template <class F>
std::vector<F> floats(size_t n, int maxExp = 40)
{
    std::vector<F> v(n);
    std::uniform_real_distribution<double> m(1.0, 2.0);
    for (auto& x : v) {
        const int e = int(qsptest::rng()() % (2 * maxExp + 1)) - maxExp;
        x = F(std::ldexp(m(qsptest::rng()), e));
        if (qsptest::rng()() % 2) x = -x;
        if (qsptest::rng()() % 29 == 0) x = F(0);
    }
    return v;
}

// The value of a half-precision number given as its 16 bits.
inline long double halfValue(Qsp16f h)
{
    const int e = (h >> 10) & 0x1F, m = h & 0x3FF;
    const long double s = (h & 0x8000) ? -1 : 1;
    if (e == 0x1F) return m ? NAN : s * INFINITY;
    if (e == 0) return s * std::ldexp((long double)m, -24);
    return s * std::ldexp((long double)(1024 + m), e - 25);
}

// Spacing of F at the magnitude of x (the smallest denormal spacing below
// the normal range).
template <class F>
long double ulpAt(long double x)
{
    x = x < 0 ? -x : x;
    const long double tiny = std::numeric_limits<F>::denorm_min();
    if (x < std::numeric_limits<F>::min()) return tiny;
    int e;
    std::frexp(x, &e);  // x = m * 2^e, 0.5 <= m < 1
    return std::ldexp(1.0L, e - std::numeric_limits<F>::digits);
}

// Error of got against the exact value, in units in the last place of F at
// the exact value's magnitude.
template <class F>
double ulpError(F got, long double exact)
{
    const long double d = (long double)got - exact;
    return double((d < 0 ? -d : d) / ulpAt<F>(exact));
}

// Element types and their byte offsets: every 16-byte alignment a vector of
// T can have.
template <class T>
constexpr int alignments = sizeof(T) >= 16 ? 1 : 16 / int(sizeof(T));

// Lengths that cover the vector bodies and tails of every kernel.
inline std::vector<int> sweepLengths()
{
    std::vector<int> l;
    for (int n = 1; n <= 70; ++n) l.push_back(n);
    l.push_back(255);
    l.push_back(1000);
    l.push_back(4099);
    return l;
}

// A buffer of len elements at element offset `off` from a 16-byte boundary.
template <class T>
struct At {
    std::vector<T> store;
    T* p;
    At(int len, int off) : store(size_t(len) + 32)
    {
        auto addr = reinterpret_cast<uintptr_t>(store.data());
        const uintptr_t aligned = (addr + 15) & ~uintptr_t(15);
        p = reinterpret_cast<T*>(aligned) + off;
    }
};

template <class T>
bool sameValue(T a, T b)
{
    if constexpr (std::is_floating_point_v<T>) return (a != a && b != b) || qsptest::sameBits(a, b);
    else return qsptest::sameBits(a, b);
}

}  // namespace arithref

// SPDX-License-Identifier: BSD-3-Clause
// Scalar models of the reductions' accumulation orders, written from their
// documented descriptions, so that results can be compared bit for bit,
// and exact references for the integer forms.
#pragma once
#include <cmath>
#include <cstdint>
#include <cstring>
#include <limits>
#include <algorithm>
#include <vector>

#include "qsp_test.h"

namespace redref {

// Elements before the first 16-byte boundary of p (element size `bytes`,
// `parts` per element), none when no whole element count reaches one.
inline long long head(const void* p, long long bytes, long long parts, long long count)
{
    const auto a = reinterpret_cast<uintptr_t>(p);
    if (a % (bytes * parts)) return 0;
    const long long h = (long long)((16 - a % 16) % 16) / bytes;
    return h < count ? h : count;
}

enum class Term { Value, Magnitude, Square };

template <class F>
F termOf(F x, Term t)
{
    return t == Term::Square ? x * x : (t == Term::Magnitude ? std::fabs(x) : x);
}

// The fast scheme of 32-bit floats: head one by one into double totals;
// blocks of 32768; in a block 16 single lanes (element i of a step in lane
// i), the four registers folded (a0 + a1) + (a2 + a3), their lanes as
// (s0 + s2) + (s1 + s3) or, for two parts, s0 + s2 and s1 + s3; the rest of
// a block one by one into the double totals.
inline void fastSum(const float* x, long long n, int parts, Term t, double* total)
{
    for (int k = 0; k < parts; ++k) total[k] = 0;
    long long i = 0;
    const long long h = head(x, 4, parts, n);
    for (; i < h; ++i) total[i % parts] += double(termOf(x[i], t));
    while (i < n) {
        const long long end = n - i < 32768 ? n : i + 32768;
        float lane[16] = {};
        for (; i + 16 <= end; i += 16)
            for (int l = 0; l < 16; ++l) lane[l] += termOf(x[i + l], t);
        float s[4];
        for (int l = 0; l < 4; ++l) s[l] = (lane[l] + lane[4 + l]) + (lane[8 + l] + lane[12 + l]);
        if (parts == 1) {
            total[0] += double((s[0] + s[2]) + (s[1] + s[3]));
        } else {
            total[0] += double(s[0] + s[2]);
            total[1] += double(s[1] + s[3]);
        }
        for (; i < end; ++i) total[i % parts] += double(termOf(x[i], t));
    }
}

// The double-lane scheme: for one-part floats a first element that is not
// 8-byte aligned first; eight double lanes (element i of a step in lane i),
// folded as (a0 + a2) + (a1 + a3) over registers of two lanes, the total
// getting t0 + t1 or, for two parts, t0 and t1; the rest one by one.
template <class T>
void wideSum(const T* x, long long n, int parts, Term t, double* total)
{
    for (int k = 0; k < parts; ++k) total[k] = 0;
    long long i = 0;
    if (sizeof(T) == 4 && parts == 1 && reinterpret_cast<uintptr_t>(x) % 8 == 4) {
        total[0] += termOf(double(x[0]), t);
        i = 1;
    }
    const long long start = i;
    double lane[8] = {};
    for (; i + 8 <= n; i += 8)
        for (int l = 0; l < 8; ++l) lane[l] += termOf(double(x[i + l]), t);
    const double t0 = (lane[0] + lane[4]) + (lane[2] + lane[6]);
    const double t1 = (lane[1] + lane[5]) + (lane[3] + lane[7]);
    if (parts == 1) {
        total[0] += t0 + t1;
    } else {
        total[0] += t0;
        total[1] += t1;
    }
    for (; i < n; ++i) total[(i - start) % parts] += termOf(double(x[i]), t);
}

// x rounded to single precision and widened again (through memory, so that
// no compiler folds the pair of conversions away).
inline double viaFloat(double x)
{
    volatile float f = float(x);
    return double(f);
}

// Sample standard deviation from the two sums, as documented.
inline double stdDevOf(double s, double q, long long n)
{
    double num = double(n) * q - s * s;
    if (num < 0) num = 0;
    return std::sqrt(num / (double(n) * double(n - 1)));
}

// v * 2^-s rounded to nearest, ties to even, saturated to [lo, hi]: exact,
// by integer division (v and the bounds fit 128 bits; s may be large).
inline long long roundScaleExact(__int128 v, int s, long long lo, long long hi)
{
    __int128 r;
    if (s <= 0) {
        const int k = -s;
        if (v == 0) return 0;
        if (k >= 100) return v > 0 ? hi : lo;
        r = v;
        for (int j = 0; j < k && r < (__int128(1) << 100) && r > -(__int128(1) << 100); ++j) r *= 2;
    } else if (s >= 120) {
        r = 0;
    } else {
        const __int128 d = __int128(1) << s;
        __int128 q = v / d, rem = v % d;
        if (rem < 0) {
            rem += d;
            q -= 1;
        }
        if (2 * rem > d || (2 * rem == d && (q & 1))) q += 1;
        r = q;
    }
    return r > hi ? hi : (r < lo ? lo : (long long)r);
}

// The double scheme of the 16-bit sums and means: v * 2^-s clamped to the
// range and rounded to nearest even; zero stays zero.
inline long long scaleByFactor(double v, int s, long long lo, long long hi)
{
    if (v == 0) return 0;
    const long double x = (long double)v * std::pow(2.0L, -s);
    if (x >= hi) return hi;
    if (x <= lo) return lo;
    return (long long)std::nearbyint(x);
}

// Copies v into a fresh buffer `offset` elements past a 16-byte boundary.
template <class T>
struct Placed {
    std::vector<T> storage;
    T* data;
    Placed(const std::vector<T>& v, int offset) : storage(v.size() + 8)
    {
        data = storage.data() + offset;
        std::memcpy(data, v.data(), v.size() * sizeof(T));
    }
};

template <class T>
std::vector<T> uniform(size_t n, double lo, double hi)
{
    std::vector<T> v(n);
    std::uniform_real_distribution<double> d(lo, hi);
    for (auto& x : v) x = T(d(qsptest::rng()));
    return v;
}

template <class T>
std::vector<T> randomInts(size_t n)
{
    std::vector<T> v(n);
    for (auto& x : v) x = T(qsptest::rng()());
    return v;
}

inline std::vector<int> lengths()
{
    std::vector<int> out;
    for (int n = 1; n <= 100; ++n) out.push_back(n);
    for (int n : {255, 1000, 32768 + 17, 2 * 32768 + 40, 100003}) out.push_back(n);
    return out;
}

}  // namespace redref

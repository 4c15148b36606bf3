// SPDX-License-Identifier: BSD-3-Clause
// Shared helpers of the FIR, convolution and correlation tests: element
// access for real and complex types, random signals, and the defining sums
// evaluated in long double together with the magnitude sums that error
// bounds are stated in.
#pragma once
#include <cmath>
#include <complex>
#include <cstring>
#include <algorithm>
#include <limits>
#include <utility>
#include <random>
#include <type_traits>
#include <vector>

#include "qsp_test.h"

namespace firref {

using LC = std::complex<long double>;

template <class T>
struct Elem;

template <>
struct Elem<Qsp32f> {
    using Part = float;
    static constexpr bool complex = false;
    static LC get(Qsp32f v) { return LC(v, 0); }
    static Qsp32f make(long double re, long double) { return Qsp32f(re); }
};
template <>
struct Elem<Qsp64f> {
    using Part = double;
    static constexpr bool complex = false;
    static LC get(Qsp64f v) { return LC(v, 0); }
    static Qsp64f make(long double re, long double) { return Qsp64f(re); }
};
template <>
struct Elem<Qsp32fc> {
    using Part = float;
    static constexpr bool complex = true;
    static LC get(Qsp32fc v) { return LC(v.re, v.im); }
    static Qsp32fc make(long double re, long double im) { return {Qsp32f(re), Qsp32f(im)}; }
};
template <>
struct Elem<Qsp64fc> {
    using Part = double;
    static constexpr bool complex = true;
    static LC get(Qsp64fc v) { return LC(v.re, v.im); }
    static Qsp64fc make(long double re, long double im) { return {Qsp64f(re), Qsp64f(im)}; }
};
template <>
struct Elem<Qsp16s> {
    using Part = Qsp16s;
    static constexpr bool complex = false;
    static LC get(Qsp16s v) { return LC(v, 0); }
};
template <>
struct Elem<Qsp16sc> {
    using Part = Qsp16s;
    static constexpr bool complex = true;
    static LC get(Qsp16sc v) { return LC(v.re, v.im); }
};

// Unit roundoff of a floating part type.
template <class P>
constexpr long double kU = std::numeric_limits<P>::epsilon() / 2;

// Values uniform in [-scale, scale) (both parts of complex ones).
template <class T>
std::vector<T> randomSignal(size_t n, long double scale = 1)
{
    std::uniform_real_distribution<long double> d(-scale, scale);
    std::vector<T> v(n);
    for (auto& x : v) x = Elem<T>::make(d(qsptest::rng()), d(qsptest::rng()));
    return v;
}

template <class T>
std::vector<T> random16(size_t n, int lo = -32768, int hi = 32767)
{
    std::uniform_int_distribution<int> d(lo, hi);
    std::vector<T> v(n);
    auto* p = reinterpret_cast<Qsp16s*>(v.data());
    for (size_t i = 0; i < n * sizeof(T) / 2; ++i) p[i] = Qsp16s(d(qsptest::rng()));
    return v;
}

// A copy of n values starting `offset` bytes past a 16-byte boundary, off
// the natural alignment of the type; at(i) reads a value back.
template <class T>
struct Shifted {
    std::vector<unsigned char> raw;
    T* p;
    Shifted(const T* v, size_t n, int offset) : raw(n * sizeof(T) + 32)
    {
        auto* base = reinterpret_cast<unsigned char*>((reinterpret_cast<uintptr_t>(raw.data()) + 15) & ~uintptr_t(15));
        p = reinterpret_cast<T*>(base + offset);
        if (v) std::memcpy(static_cast<void*>(p), v, n * sizeof(T));
    }
    T at(size_t i) const
    {
        T x;
        std::memcpy(static_cast<void*>(&x), p + i, sizeof(T));
        return x;
    }
};

inline long double mag(LC z) { return std::abs(z.real()) + std::abs(z.imag()); }

// The sum y[n] = sum over k < N of t[k] x[n - k] for n < count, where
// x[-j] = hist[N - 1 - j] (zeros when hist is null) and x[n] = src[n];
// with it the magnitude sum sum |t[k]| |x[n - k]| (|.| the sum of the
// parts' magnitudes) that rounding errors are bounded by.
struct Sums {
    std::vector<LC> y;
    std::vector<long double> m;
};

template <class T, class D>
Sums firSums(const T* taps, int n, const D* hist, const D* src, int count)
{
    Sums s{std::vector<LC>(count), std::vector<long double>(count)};
    for (int i = 0; i < count; ++i) {
        LC acc = 0;
        long double m = 0;
        for (int k = 0; k < n; ++k) {
            const int at = i - k;
            const LC x = at >= 0 ? Elem<D>::get(src[at]) : hist ? Elem<D>::get(hist[n - 1 + at]) : LC(0);
            const LC t = Elem<T>::get(taps[k]);
            acc += LC(t.real() * x.real() - t.imag() * x.imag(), t.real() * x.imag() + t.imag() * x.real());
            m += mag(t) * mag(x);
        }
        s.y[i] = acc;
        s.m[i] = m;
    }
    return s;
}

// Largest part magnitude and Euclidean norm of a vector.
template <class T>
long double maxAbs(const T* v, size_t n)
{
    long double m = 0;
    for (size_t i = 0; i < n; ++i) m = std::max(m, mag(Elem<T>::get(v[i])));
    return m;
}

template <class T>
long double norm2(const T* v, size_t n)
{
    long double s = 0;
    for (size_t i = 0; i < n; ++i) s += std::norm(Elem<T>::get(v[i]));
    return std::sqrt(s);
}

// How far a computed value is from the exact one, part by part.
template <class D>
long double deviation(const D& got, LC want)
{
    const LC g = Elem<D>::get(got);
    return std::max(std::abs(g.real() - want.real()), std::abs(g.imag() - want.imag()));
}

inline int log2Ceil(long long n)
{
    int k = 0;
    while ((1LL << k) < n) ++k;
    return k;
}


// v / (d 2^s) rounded to nearest, ties to even, saturated to 16 bits, in
// exact 128-bit arithmetic (d >= 1).
inline Qsp16s ratioRule16(long long v, long long d, int s)
{
    __int128 num = v, den = d;
    if (s > 0) {
        if (s >= 100) return 0;
        den <<= s;
    } else if (s < 0) {
        if (v == 0) return 0;
        if (-s >= 60) return v > 0 ? 32767 : -32768;
        num <<= -s;
    }
    const bool neg = num < 0;
    const __int128 a = neg ? -num : num;
    __int128 q = a / den;
    const __int128 r = a % den;
    if (2 * r > den || (2 * r == den && (q & 1))) ++q;
    const __int128 res = neg ? -q : q;
    return Qsp16s(res > 32767 ? 32767 : res < -32768 ? -32768 : (long long)res);
}

// One value of the full linear convolution y[j] = sum a[k] b[j - k] over
// the indices inside both operands (zero outside [0, n1 + n2 - 1)), with
// its magnitude sum.
template <class T>
std::pair<LC, long double> convAt(const T* a, long long n1, const T* b, long long n2, long long j)
{
    LC acc = 0;
    long double m = 0;
    const long long lo = std::max(0LL, j - n2 + 1), hi = std::min(n1 - 1, j);
    for (long long k = lo; k <= hi; ++k) {
        const LC x = Elem<T>::get(a[k]), y = Elem<T>::get(b[j - k]);
        acc += LC(x.real() * y.real() - x.imag() * y.imag(), x.real() * y.imag() + x.imag() * y.real());
        m += mag(x) * mag(y);
    }
    return {acc, m};
}

// One value of the correlation r[lag] = sum over n of b[n + lag] conj(a[n]).
template <class T>
std::pair<LC, long double> corrAt(const T* a, long long n1, const T* b, long long n2, long long lag)
{
    LC acc = 0;
    long double m = 0;
    for (long long n = std::max(0LL, -lag); n < n1 && n + lag < n2; ++n) {
        const LC x = std::conj(Elem<T>::get(a[n])), y = Elem<T>::get(b[n + lag]);
        acc += LC(x.real() * y.real() - x.imag() * y.imag(), x.real() * y.imag() + x.imag() * y.real());
        m += mag(x) * mag(y);
    }
    return {acc, m};
}

// The exact sums of 16-bit operands.
inline long long convAt16(const Qsp16s* a, long long n1, const Qsp16s* b, long long n2, long long j)
{
    long long acc = 0;
    const long long lo = std::max(0LL, j - n2 + 1), hi = std::min(n1 - 1, j);
    for (long long k = lo; k <= hi; ++k) acc += (long long)a[k] * b[j - k];
    return acc;
}

inline long long corrAt16(const Qsp16s* a, long long n1, const Qsp16s* b, long long n2, long long lag)
{
    long long acc = 0;
    for (long long n = std::max(0LL, -lag); n < n1 && n + lag < n2; ++n) acc += (long long)a[n] * b[n + lag];
    return acc;
}

// The scale-factor rule on an exact value: v 2^-s rounded to nearest, ties
// to even, saturated to 16 bits; exact in 128-bit arithmetic.
inline Qsp16s scaleRule16(long long v, int s)
{
    return ratioRule16(v, 1, s);
}

}  // namespace firref

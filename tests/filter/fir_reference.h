// SPDX-License-Identifier: BSD-3-Clause
// Shared helpers of the FIR, convolution and correlation tests: element
// access for real and complex types, random signals, and the defining sums
// evaluated in long double together with the magnitude sums that error
// bounds are stated in.
#pragma once
#include <cmath>
#include <complex>
#include <limits>
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

}  // namespace firref

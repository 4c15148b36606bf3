// SPDX-License-Identifier: BSD-3-Clause
// Reference transforms of any length for the DFT and DCT tests, in long
// double: the definition evaluated with a table of the length's roots (from
// the C library's long double sine and cosine) up to 700 points,
// and above that the chirp identity k m = (k^2 + m^2 - (k-m)^2)/2 carried
// out with the long double radix-2 transform of the FFT tests. Nothing here
// shares code with the library.
#pragma once
#include <cmath>
#include <complex>
#include <map>
#include <vector>

#include "fft_reference.h"
#include "qsp_test.h"

namespace dftref {

using fftref::LC;
using fftref::kPi;

// exp(sign * 2 pi i j / n), the angle reduced exactly: 4j = q n + r, so
// the angle is q quarter turns plus 2 pi r / (4n), |r| <= n/2.
inline LC rootL(long long j, long long n, int sign)
{
    j %= n;
    if (j < 0) j += n;
    long long q = (4 * j) / n, r = (4 * j) % n;
    if (2 * r > n) {
        ++q;
        r -= n;
    }
    const long double a = kPi * (long double)r / (2 * (long double)n);
    const long double c = cosl(a), s = sinl(a);
    LC v;
    switch (q & 3) {
    case 0: v = LC(c, s); break;
    case 1: v = LC(-s, c); break;
    case 2: v = LC(-c, -s); break;
    default: v = LC(s, -c); break;
    }
    return LC(v.real(), sign * v.imag());
}

inline std::vector<LC> directDft(const std::vector<LC>& x, int sign)
{
    const size_t n = x.size();
    std::vector<LC> w(n), y(n);
    for (size_t j = 0; j < n; ++j) w[j] = rootL((long long)j, (long long)n, sign);
    for (size_t k = 0; k < n; ++k) {
        long double re = 0, im = 0;
        size_t j = 0;
        for (size_t m = 0; m < n; ++m) {
            const LC& a = x[m];
            const LC& b = w[j];
            re += a.real() * b.real() - a.imag() * b.imag();
            im += a.real() * b.imag() + a.imag() * b.real();
            j += k;
            if (j >= n) j -= n;
        }
        y[k] = LC(re, im);
    }
    return y;
}

// The chirp identity with a power-of-two convolution, all in long double.
inline std::vector<LC> chirpDft(const std::vector<LC>& x, int sign)
{
    const long long n = (long long)x.size();
    size_t m = 1;
    while ((long long)m < 2 * n - 1) m *= 2;
    std::vector<LC> c(n), a(m, LC(0, 0)), b(m, LC(0, 0));
    for (long long j = 0; j < n; ++j) c[j] = rootL((j * j) % (2 * n), 2 * n, sign);  // exp(sign pi i j^2 / n)
    for (long long j = 0; j < n; ++j) {
        a[j] = x[j] * c[j];
        b[j] = std::conj(c[j]);
        if (j > 0) b[m - j] = std::conj(c[j]);
    }
    const std::vector<LC> fa = fftref::dft(a, -1), fb = fftref::dft(b, -1);
    std::vector<LC> p(m);
    for (size_t k = 0; k < m; ++k) p[k] = fa[k] * fb[k];
    const std::vector<LC> y = fftref::dft(p, 1);
    std::vector<LC> out(n);
    for (long long k = 0; k < n; ++k) out[k] = c[k] * y[k] / (long double)m;
    return out;
}

inline std::vector<LC> dft(const std::vector<LC>& x, int sign)
{
    return x.size() <= 700 ? directDft(x, sign) : chirpDft(x, sign);
}

// A deterministic signal of each length whose values are multiples of
// 2^-10 in [-1, 1): exact in half, single and double precision.
inline std::vector<LC> exactSignal(size_t n, bool real, unsigned salt = 0)
{
    std::mt19937_64 gen(0xd5f7 + 1009u * n + 7u * salt + (real ? 1 : 0));
    std::vector<LC> x(n);
    auto draw = [&]() { return (long double)((int64_t)(gen() % 2048) - 1024) / 1024.0L; };
    for (auto& v : x) {
        const long double re = draw();
        v = LC(re, real ? 0.0L : draw());
    }
    return x;
}

// Forward and inverse reference of the exact signal of a length, kept for
// the whole test program (kinds share them).
struct Cached {
    std::vector<LC> x, forward, inverse;
};

inline const Cached& cached(size_t n, bool real)
{
    static std::map<std::pair<size_t, bool>, Cached> cache;
    Cached& c = cache[{n, real}];
    if (c.x.empty()) {
        c.x = exactSignal(n, real);
        c.forward = dft(c.x, -1);
        c.inverse.resize(n);
        for (size_t k = 0; k < n; ++k) c.inverse[k] = c.forward[(n - k) % n];
    }
    return c;
}

// The accuracy bound of the DFT: relative RMS error within
// 3e-7 sqrt(log2 L) single and 6e-16 sqrt(log2 L) double (log2 L at least 1).
inline double bound(bool dbl, size_t n)
{
    const double l = n < 2 ? 1.0 : std::log2((double)n);
    return (dbl ? 6e-16 : 3e-7) * std::sqrt(l < 1 ? 1.0 : l);
}

inline bool isPrime(long long n)
{
    if (n < 2) return false;
    for (long long d = 2; d * d <= n; ++d)
        if (n % d == 0) return false;
    return true;
}

}  // namespace dftref

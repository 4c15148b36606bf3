// SPDX-License-Identifier: BSD-3-Clause
// Reference transforms for the FFT tests, in long double: a direct
// evaluation of the definition for short lengths and a recursive radix-2
// transform (its twiddles from the C library's long double sine and cosine)
// for long ones, both independent of the library's code.
#pragma once
#include <cmath>
#include <complex>
#include <cstdint>
#include <vector>

#include "qsp_test.h"

namespace fftref {

using LC = std::complex<long double>;

constexpr long double kPi = 3.141592653589793238462643383279502884L;

// X[k] = sum x[m] exp(sign * 2 pi i k m / N), sign -1 forward, +1 inverse.
inline std::vector<LC> directDft(const std::vector<LC>& x, int sign)
{
    const size_t n = x.size();
    std::vector<LC> y(n);
    for (size_t k = 0; k < n; ++k) {
        LC acc = 0;
        for (size_t m = 0; m < n; ++m) {
            const long double a = sign * 2 * kPi * (long double)((k * m) % n) / (long double)n;
            acc += x[m] * LC(cosl(a), sinl(a));
        }
        y[k] = acc;
    }
    return y;
}

// Iterative radix-2 decimation in time: bit-reversed copy, then log2 N
// stages of butterflies, all in long double.
inline void fftIterative(const LC* x, size_t n, LC* out, const std::vector<LC>& w)
{
    int bits = 0;
    while ((size_t(1) << bits) < n) ++bits;
    for (size_t i = 0; i < n; ++i) {
        size_t r = 0;
        for (int b = 0; b < bits; ++b) r |= ((i >> b) & 1) << (bits - 1 - b);
        out[r] = x[i];
    }
    for (size_t len = 2; len <= n; len <<= 1) {
        const size_t half = len / 2, step = n / len;
        for (size_t i = 0; i < n; i += len)
            for (size_t k = 0; k < half; ++k) {
                // Written out: std::complex's product checks for infinities.
                const LC a = out[i + k + half], b = w[k * step];
                const LC o(a.real() * b.real() - a.imag() * b.imag(), a.real() * b.imag() + a.imag() * b.real());
                const LC e = out[i + k];
                out[i + k] = e + o;
                out[i + k + half] = e - o;
            }
    }
}

// exp(sign * 2 pi i k / N) for k < N/2: the C library's long double
// sine and cosine on the first octant, the rest by the exact symmetries.
inline std::vector<LC> referenceTwiddles(size_t n, int sign)
{
    std::vector<LC> w(n / 2);
    const size_t eighth = n / 8, quarter = n / 4;
    std::vector<long double> c(eighth + 1), s(eighth + 1);
    for (size_t j = 0; j <= eighth; ++j) {
        const long double a = 2 * kPi * (long double)j / (long double)n;
        c[j] = cosl(a);
        s[j] = sinl(a);
    }
    for (size_t k = 0; k < n / 2; ++k) {
        const size_t q = k / quarter, r = k % quarter;
        const long double cr = r <= eighth ? c[r] : s[quarter - r], sr = r <= eighth ? s[r] : c[quarter - r];
        // angle = q * pi/2 + r * 2 pi / n, q in {0, 1}
        const long double re = q == 0 ? cr : -sr, im = q == 0 ? sr : cr;
        w[k] = LC(re, sign * im);
    }
    return w;
}

inline std::vector<LC> dft(std::vector<LC> x, int sign)
{
    const size_t n = x.size();
    if (n <= 64) return directDft(x, sign);
    const std::vector<LC> w = referenceTwiddles(n, sign);
    std::vector<LC> out(n);
    fftIterative(x.data(), n, out.data(), w);
    return out;
}

// The inverse transform from the forward one: X+[k] = X-[(N - k) mod N].
inline std::vector<LC> reversedIndex(const std::vector<LC>& forward)
{
    const size_t n = forward.size();
    std::vector<LC> r(n);
    for (size_t k = 0; k < n; ++k) r[k] = forward[(n - k) % n];
    return r;
}

// The reference transform of a deterministic signal of each order, kept
// for the whole test program: its values are multiples of 2^-12 in
// [-1, 1), exact in half, single and double precision, so every kind
// transforms the same input.
inline std::vector<LC> exactSignal(int order, bool real, unsigned salt = 0)
{
    std::mt19937_64 gen(0x5eed + 977u * order + (real ? 1 : 0) + 7919u * salt);
    std::vector<LC> x(size_t(1) << order);
    auto draw = [&]() { return (long double)((int64_t)(gen() % 8192) - 4096) / 4096.0L; };
    for (auto& v : x) {
        const long double re = draw();
        v = LC(re, real ? 0.0L : draw());
    }
    return x;
}

struct CachedPair {
    std::vector<LC> x, forward, inverse;
    // Real signals only: a conjugate-symmetric spectrum with exact values
    // (bins 0 and N/2 real) and its inverse transform, a real signal.
    std::vector<LC> hermitian, hermitianInverse;
};

inline const CachedPair& cached(int order, bool real)
{
    static std::vector<CachedPair> cache[2];
    auto& c = cache[real ? 1 : 0];
    if (c.size() <= (size_t)order) c.resize(order + 1);
    CachedPair& e = c[order];
    if (e.x.empty()) {
        e.x = exactSignal(order, real);
        e.forward = dft(e.x, -1);
        e.inverse = reversedIndex(e.forward);
        if (real) {
            const size_t n = e.x.size();
            const auto v = exactSignal(order, false, 1);
            e.hermitian.assign(n, LC(0, 0));
            for (size_t k = 0; k <= n / 2; ++k) {
                const bool realBin = k == 0 || 2 * k == n;
                e.hermitian[k] = LC(v[k].real(), realBin ? 0.0L : v[k].imag());
                if (!realBin) e.hermitian[n - k] = std::conj(e.hermitian[k]);
            }
            e.hermitianInverse = reversedIndex(dft(e.hermitian, -1));
        }
    }
    return e;
}

// Relative RMS error: sqrt(sum |got - ref|^2 / sum |ref|^2).
template <class Get>
double relRms(const std::vector<LC>& ref, Get got)
{
    long double num = 0, den = 0;
    for (size_t i = 0; i < ref.size(); ++i) {
        const LC d = got(i) - ref[i];
        num += std::norm(d);
        den += std::norm(ref[i]);
    }
    return den == 0 ? (double)std::sqrt(num) : (double)std::sqrt(num / den);
}

inline std::vector<LC> randomSignal(size_t n, bool real = false)
{
    std::uniform_real_distribution<double> dist(-1.0, 1.0);
    std::vector<LC> x(n);
    for (auto& v : x) v = LC(dist(qsptest::rng()), real ? 0.0 : dist(qsptest::rng()));
    return x;
}

// The accuracy bounds of the transforms: relative RMS error within
// 2e-7 sqrt(log2 N) in single and 4e-16 sqrt(log2 N) in double precision
// (log2 N taken as at least 1).
inline double bound(bool dbl, int order)
{
    const double l = order < 1 ? 1.0 : (double)order;
    return (dbl ? 4e-16 : 2e-7) * std::sqrt(l);
}

// A record of any kind built in caller memory from its size query, with
// the blocks deliberately misaligned by `offset` bytes.
struct Blocks {
    std::vector<Qsp8u> spec, init, work;
    int specSize = 0, initSize = 0, workSize = 0;
    int offset = 0;
    Qsp8u* specPtr() { return spec.data() + offset; }
    Qsp8u* initPtr() { return initSize ? init.data() + offset : nullptr; }
    Qsp8u* workPtr() { return workSize ? work.data() + offset : nullptr; }
};

template <class GetSize>
Blocks makeBlocks(GetSize getSize, int order, int flag, int offset)
{
    Blocks b;
    b.offset = offset;
    EXPECT_EQ(getSize(order, flag, 0, &b.specSize, &b.initSize, &b.workSize), qspStsOk);
    b.spec.assign(b.specSize + offset, 0xA5);
    b.init.assign(b.initSize + offset, 0xA5);
    b.work.assign(b.workSize + offset, 0xA5);
    return b;
}

}  // namespace fftref

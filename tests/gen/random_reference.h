// SPDX-License-Identifier: BSD-3-Clause
// An independent model of the random generators' core stream and the
// statistics the tests apply to it.
//
// The core stream: eight xoshiro256++ streams; stream 0 seeded by
// SplitMix64 from the 32-bit seed, stream s the state of stream 0 advanced
// by 2^128 s steps; step t of the streams gives words 8t .. 8t+7. Here the
// advance is done by the step's own linear map over GF(2), raised to the
// power 2^128 by squaring: a check of the library's jump constants that
// shares nothing with them.
#pragma once
#include <algorithm>
#include <array>
#include <cmath>
#include <cstdint>
#include <vector>

#include "qsp_test.h"

namespace randref {

using u64 = uint64_t;
using State = std::array<u64, 4>;

inline u64 rotl(u64 x, int k) { return (x << k) | (x >> (64 - k)); }

inline u64 step(State& s)
{
    const u64 result = rotl(s[0] + s[3], 23) + s[0];
    const u64 t = s[1] << 17;
    s[2] ^= s[0];
    s[3] ^= s[1];
    s[1] ^= s[2];
    s[0] ^= s[3];
    s[2] ^= t;
    s[3] = rotl(s[3], 45);
    return result;
}

inline u64 splitMix64(u64& x)
{
    u64 z = (x += 0x9e3779b97f4a7c15ull);
    z = (z ^ (z >> 30)) * 0xbf58476d1ce4e5b9ull;
    z = (z ^ (z >> 27)) * 0x94d049bb133111ebull;
    return z ^ (z >> 31);
}

// 256 x 256 matrices over GF(2) acting on states (bit 64 i + b of a state
// is bit b of word i). Row r of the matrix is a state: the output bit r is
// the parity of (row r AND input).
struct Matrix {
    std::vector<State> rows = std::vector<State>(256, State{0, 0, 0, 0});

    static Matrix identity()
    {
        Matrix m;
        for (int r = 0; r < 256; ++r) m.rows[r][r / 64] = u64(1) << (r % 64);
        return m;
    }
    // The state update of one step (the output is not part of it).
    static Matrix step()
    {
        // Column c is the image of the unit state e_c.
        Matrix m;
        for (int c = 0; c < 256; ++c) {
            State s{0, 0, 0, 0};
            s[c / 64] = u64(1) << (c % 64);
            randref::step(s);
            for (int r = 0; r < 256; ++r)
                if ((s[r / 64] >> (r % 64)) & 1) m.rows[r][c / 64] |= u64(1) << (c % 64);
        }
        return m;
    }
    State apply(const State& x) const
    {
        State y{0, 0, 0, 0};
        for (int r = 0; r < 256; ++r) {
            const u64 p = (rows[r][0] & x[0]) ^ (rows[r][1] & x[1]) ^ (rows[r][2] & x[2]) ^ (rows[r][3] & x[3]);
            if (__builtin_parityll(p)) y[r / 64] |= u64(1) << (r % 64);
        }
        return y;
    }
    // this * b: row r of the product is the sum of the rows of b selected
    // by the bits of row r of this.
    Matrix times(const Matrix& b) const
    {
        Matrix c;
        for (int r = 0; r < 256; ++r) {
            State acc{0, 0, 0, 0};
            for (int k = 0; k < 256; ++k)
                if ((rows[r][k / 64] >> (k % 64)) & 1)
                    for (int i = 0; i < 4; ++i) acc[i] ^= b.rows[k][i];
            c.rows[r] = acc;
        }
        return c;
    }
    bool operator==(const Matrix& o) const { return rows == o.rows; }
};

// The step raised to 2^128: the jump between streams.
inline const Matrix& jumpMatrix()
{
    static const Matrix j = [] {
        Matrix m = Matrix::step();
        for (int i = 0; i < 128; ++i) m = m.times(m);
        return m;
    }();
    return j;
}

// The core stream of a seed, word by word.
class CoreStream {
public:
    explicit CoreStream(unsigned seed)
    {
        u64 x = seed;
        State s;
        for (auto& w : s) w = splitMix64(x);
        for (int j = 0; j < 8; ++j) {
            if (j > 0) s = jumpMatrix().apply(s);
            streams_[j] = s;
        }
    }
    u64 word()
    {
        if (at_ == 8) {
            for (int j = 0; j < 8; ++j) step_[j] = step(streams_[j]);
            at_ = 0;
        }
        return step_[at_++];
    }
    // 32-bit halves, low half of each word first.
    uint32_t half()
    {
        if (!haveHigh_) {
            const u64 w = word();
            high_ = uint32_t(w >> 32);
            haveHigh_ = true;
            return uint32_t(w);
        }
        haveHigh_ = false;
        return high_;
    }

private:
    std::array<State, 8> streams_;
    std::array<u64, 8> step_{};
    int at_ = 8;
    uint32_t high_ = 0;
    bool haveHigh_ = false;
};

// ---------------------------------------------------------------------------
// Statistics.

// Upper tail probability of the chi-square distribution with k degrees
// of freedom (Wilson-Hilferty normal approximation, ample for k >= 30).
inline double chiSquareTail(double chi2, double k)
{
    const double z = (std::cbrt(chi2 / k) - (1 - 2 / (9 * k))) / std::sqrt(2 / (9 * k));
    return 0.5 * std::erfc(z / std::sqrt(2.0));
}

// Kolmogorov distribution: P(sqrt(n) D > t).
inline double ksTail(double t)
{
    double s = 0;
    for (int k = 1; k < 100; ++k) s += (k % 2 ? 2 : -2) * std::exp(-2.0 * k * k * t * t);
    return std::min(1.0, std::max(0.0, s));
}

// Kolmogorov-Smirnov statistic sqrt(n) D of samples against a continuous
// CDF, evaluated at the edges of `bins` equal bins of [lo, hi) (exact at
// those points; the supremum between them is bounded by the bin mass).
template <class Cdf>
double ksStatistic(const std::vector<double>& x, double lo, double hi, int bins, Cdf cdf)
{
    std::vector<int64_t> count(bins + 2, 0);
    for (double v : x) {
        const double f = (v - lo) / (hi - lo) * bins;
        const int b = f < 0 ? 0 : f >= bins ? bins + 1 : int(f) + 1;
        ++count[b];
    }
    const double n = double(x.size());
    int64_t below = count[0];
    double d = std::fabs(below / n - cdf(lo));
    for (int b = 1; b <= bins; ++b) {
        below += count[b];
        d = std::max(d, std::fabs(below / n - cdf(lo + (hi - lo) * b / bins)));
    }
    return d * std::sqrt(n);
}

// Pearson's chi-square of observed counts against expected ones.
inline double chiSquare(const std::vector<int64_t>& observed, const std::vector<double>& expected)
{
    double c = 0;
    for (size_t i = 0; i < observed.size(); ++i) {
        const double d = double(observed[i]) - expected[i];
        c += d * d / expected[i];
    }
    return c;
}

// Sample correlation of x(i) and x(i + lag).
inline double lagCorrelation(const std::vector<double>& x, int lag)
{
    double m = 0;
    for (double v : x) m += v;
    m /= double(x.size());
    double num = 0, den = 0;
    for (size_t i = 0; i < x.size(); ++i) {
        den += (x[i] - m) * (x[i] - m);
        if (i + lag < x.size()) num += (x[i] - m) * (x[i + lag] - m);
    }
    return num / den;
}

struct Moments {
    double mean, variance, skewness, kurtosis;
};
inline Moments moments(const std::vector<double>& x)
{
    const double n = double(x.size());
    double m = 0;
    for (double v : x) m += v;
    m /= n;
    double m2 = 0, m3 = 0, m4 = 0;
    for (double v : x) {
        const double d = v - m, d2 = d * d;
        m2 += d2, m3 += d2 * d, m4 += d2 * d2;
    }
    m2 /= n, m3 /= n, m4 /= n;
    return {m, m2, m3 / std::pow(m2, 1.5), m4 / (m2 * m2)};
}

}  // namespace randref

// SPDX-License-Identifier: BSD-3-Clause
// Exhaustive checks of correctly rounded single-precision functions: every
// one of the 2^32 float bit patterns goes through the vector form and the
// one-element form, and both must equal the correctly rounded result. The
// reference is the C library's double-precision function rounded to float,
// except where that double lies within 64 units of its last place of a
// halfway point between floats (about one argument in four million), where
// MPFR decides. Two threads share the work.
#pragma once
#include <mpfr.h>

#include <atomic>
#include <cmath>
#include <cstdint>
#include <cstring>
#include <mutex>
#include <random>
#include <string>
#include <thread>
#include <vector>

namespace exhaustive {

struct SingleFunction {
    const char* name;
    void (*vector)(const float*, float*, int);          // the exported function
    float (*one)(float);                                // the one-element kernel
    double (*libc)(double);                             // fast reference
    int (*mpfr)(mpfr_ptr, mpfr_srcptr, mpfr_rnd_t);     // exact reference
};

// The float nearest to f(x), from MPFR with float's exponent range.
inline float mpfrRounded(int (*f)(mpfr_ptr, mpfr_srcptr, mpfr_rnd_t), float x)
{
    const mpfr_exp_t emin = mpfr_get_emin(), emax = mpfr_get_emax();
    mpfr_set_emin(-148);
    mpfr_set_emax(128);
    mpfr_t a, r;
    mpfr_init2(a, 24);
    mpfr_init2(r, 24);
    mpfr_set_flt(a, x, MPFR_RNDN);
    int t = f(r, a, MPFR_RNDN);
    t = mpfr_subnormalize(r, t, MPFR_RNDN);
    const float v = mpfr_get_flt(r, MPFR_RNDN);
    mpfr_clears(a, r, (mpfr_ptr)0);
    mpfr_set_emin(emin);
    mpfr_set_emax(emax);
    return v;
}

inline bool nearHalfway(double y)
{
    const double a = std::fabs(y);
    if (!(a < 0x1p128) || a == 0) return false;
    if (a < 0x1p-126) {
        // Subnormal floats: the halfway points are the odd multiples of
        // 2^-150; the nearest one to q is 2 floor(q/2) + 1.
        const double q = a * 0x1p150;
        return std::fabs(q - (2 * std::floor(q / 2) + 1)) <= q * 0x1p-46;
    }
    uint64_t b;
    std::memcpy(&b, &a, 8);
    const int64_t low = int64_t(b & ((1u << 29) - 1)) - (1 << 28);
    return low >= -64 && low <= 64;
}

inline bool sameResult(float a, float b)
{
    if (std::isnan(a) || std::isnan(b)) return std::isnan(a) && std::isnan(b);
    uint32_t x, y;
    std::memcpy(&x, &a, 4);
    std::memcpy(&y, &b, 4);
    return x == y;
}

struct Outcome {
    uint64_t mismatches = 0, settledByMpfr = 0;
    std::vector<std::string> examples;  // the first few mismatches
};

// Checks the bit patterns [from, to) (as 64-bit counts) in blocks.
inline void checkRange(const SingleFunction& f, uint64_t from, uint64_t to, Outcome& out, std::mutex& lock)
{
    constexpr int kBlock = 1 << 16;
    std::vector<float> x(kBlock), y(kBlock);
    uint64_t mismatches = 0, mpfrCalls = 0;
    std::vector<std::string> examples;
    for (uint64_t start = from; start < to; start += kBlock) {
        for (int i = 0; i < kBlock; ++i) {
            const uint32_t bits = uint32_t(start + i);
            std::memcpy(&x[i], &bits, 4);
        }
        f.vector(x.data(), y.data(), kBlock);
        for (int i = 0; i < kBlock; ++i) {
            const double d = f.libc(double(x[i]));
            float want;
            if (nearHalfway(d)) {
                want = mpfrRounded(f.mpfr, x[i]);
                ++mpfrCalls;
            } else {
                want = float(d);
            }
            const float one = f.one(x[i]);
            if (!sameResult(y[i], want) || !sameResult(one, want)) {
                if (++mismatches <= 20) {
                    char line[160];
                    uint32_t xb, wb;
                    std::memcpy(&xb, &x[i], 4);
                    std::memcpy(&wb, &want, 4);
                    std::snprintf(line, sizeof line, "%s(%a) [0x%08x]: vector %a, one %a, correctly rounded %a [0x%08x]",
                                  f.name, double(x[i]), xb, double(y[i]), double(one), double(want), wb);
                    examples.push_back(line);
                }
            }
        }
    }
    std::lock_guard<std::mutex> g(lock);
    out.mismatches += mismatches;
    out.settledByMpfr += mpfrCalls;
    for (auto& e : examples)
        if (out.examples.size() < 20) out.examples.push_back(e);
}

// A sample of n random bit patterns and of n random normal floats of
// moderate magnitude, each against MPFR.
inline Outcome checkSample(const SingleFunction& f, int n, uint64_t seed)
{
    Outcome out;
    std::mt19937_64 rng(seed);
    std::vector<float> x(2 * n), y(2 * n);
    for (int i = 0; i < n; ++i) {
        const uint32_t bits = uint32_t(rng());
        std::memcpy(&x[i], &bits, 4);
        x[n + i] = std::ldexp(std::uniform_real_distribution<float>(-1, 1)(rng), int(rng() % 40) - 20);
    }
    f.vector(x.data(), y.data(), 2 * n);
    for (int i = 0; i < 2 * n; ++i) {
        const float want = mpfrRounded(f.mpfr, x[i]);
        const float one = f.one(x[i]);
        if (!sameResult(y[i], want) || !sameResult(one, want)) {
            if (++out.mismatches <= 20) {
                char line[160];
                std::snprintf(line, sizeof line, "%s(%a): vector %a, one %a, correctly rounded %a", f.name, double(x[i]),
                              double(y[i]), double(one), double(want));
                out.examples.push_back(line);
            }
        }
    }
    return out;
}

inline Outcome checkAll(const SingleFunction& f)
{
    Outcome out;
    std::mutex lock;
    constexpr uint64_t kAll = uint64_t(1) << 32;
    std::thread second([&] { checkRange(f, kAll / 2, kAll, out, lock); });
    checkRange(f, 0, kAll / 2, out, lock);
    second.join();
    return out;
}

}  // namespace exhaustive

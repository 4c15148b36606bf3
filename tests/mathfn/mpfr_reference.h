// SPDX-License-Identifier: BSD-3-Clause
// Errors of elementary-function results in units in the last place,
// measured against MPFR evaluated with 256 bits (far beyond any double), and
// samples of arguments spread over every binade.
#pragma once
#include <mpfr.h>

#include <cmath>
#include <cstdint>
#include <cstring>
#include <random>
#include <vector>

namespace mpref {

using Function = int (*)(mpfr_ptr, mpfr_srcptr, mpfr_rnd_t);

// A few MPFR numbers of 256 bits, reused across calls.
class Exact {
public:
    Exact()
    {
        mpfr_inits2(256, x_, y_, d_, (mpfr_ptr)0);
    }
    ~Exact() { mpfr_clears(x_, y_, d_, (mpfr_ptr)0); }
    Exact(const Exact&) = delete;
    Exact& operator=(const Exact&) = delete;

    // f(x) to 256 bits, kept for the error measures below.
    void evaluate(Function f, double x)
    {
        mpfr_set_d(x_, x, MPFR_RNDN);
        f(y_, x_, MPFR_RNDN);
    }
    void evaluate2(int (*f)(mpfr_ptr, mpfr_srcptr, mpfr_srcptr, mpfr_rnd_t), double a, double b)
    {
        mpfr_set_d(x_, a, MPFR_RNDN);
        mpfr_set_d(d_, b, MPFR_RNDN);
        f(y_, x_, d_, MPFR_RNDN);
    }
    mpfr_ptr value() { return y_; }

    // |got - f(x)| in ULPs of a format with `bits` of mantissa and least
    // exponent `minExp` of its smallest subnormal (53, -1074 for double;
    // 24, -149 for single). The ULP is that of the exact value. An infinite
    // result counts as exact where the reference rounds to it in the format,
    // and as infinitely wrong elsewhere.
    double ulps(double got, int bits, int minExp)
    {
        if (std::isnan(got)) return mpfr_nan_p(y_) ? 0.0 : INFINITY;
        if (mpfr_nan_p(y_)) return INFINITY;
        if (std::isinf(got)) {
            const double r = bits == 53 ? rounded64() : double(rounded32());
            return r == got ? 0.0 : INFINITY;
        }
        long e = mpfr_zero_p(y_) ? minExp : long(mpfr_get_exp(y_)) - bits;  // y = m 2^exp, m in [1/2, 1)
        if (e < minExp) e = minExp;
        mpfr_set_d(d_, got, MPFR_RNDN);
        mpfr_sub(d_, d_, y_, MPFR_RNDN);
        mpfr_abs(d_, d_, MPFR_RNDN);
        mpfr_mul_2si(d_, d_, -e, MPFR_RNDN);
        return mpfr_get_d(d_, MPFR_RNDN);
    }
    double ulps64(double got) { return ulps(got, 53, -1074); }
    double ulps32(float got) { return ulps(double(got), 24, -149); }

    // The reference rounded to double or single precision (nearest even),
    // with the format's overflow and subnormal range.
    double rounded64()
    {
        mpfr_t r;
        mpfr_init2(r, 53);
        const mpfr_exp_t emin = mpfr_get_emin(), emax = mpfr_get_emax();
        mpfr_set_emin(-1073);
        mpfr_set_emax(1024);
        const int t = mpfr_set(r, y_, MPFR_RNDN);
        mpfr_subnormalize(r, t, MPFR_RNDN);
        const double v = mpfr_get_d(r, MPFR_RNDN);
        mpfr_set_emin(emin);
        mpfr_set_emax(emax);
        mpfr_clear(r);
        return v;
    }
    float rounded32()
    {
        mpfr_t r;
        mpfr_init2(r, 24);
        const mpfr_exp_t emin = mpfr_get_emin(), emax = mpfr_get_emax();
        mpfr_set_emin(-148);
        mpfr_set_emax(128);
        const int t = mpfr_set(r, y_, MPFR_RNDN);
        mpfr_subnormalize(r, t, MPFR_RNDN);
        const float v = mpfr_get_flt(r, MPFR_RNDN);
        mpfr_set_emin(emin);
        mpfr_set_emax(emax);
        mpfr_clear(r);
        return v;
    }

private:
    mpfr_t x_, y_, d_;
};

// Doubles of random sign and mantissa whose binary exponent is uniform in
// [lo, hi] (exponents below -1022 give subnormals of that magnitude), so
// that every binade of the range gets its share.
inline std::vector<double> everyBinade(size_t n, int lo, int hi, std::mt19937_64& rng, bool negativeToo = true)
{
    std::vector<double> v(n);
    std::uniform_int_distribution<int> exponent(lo, hi);
    for (double& x : v) {
        const int e = exponent(rng);
        const uint64_t mantissa = rng() & 0x000FFFFFFFFFFFFFull;
        double m;
        const uint64_t one = 0x3FF0000000000000ull | mantissa;
        std::memcpy(&m, &one, 8);
        x = std::ldexp(m, e);  // exact, or rounded once into the subnormals
        if (negativeToo && (rng() & 1)) x = -x;
    }
    return v;
}

}  // namespace mpref

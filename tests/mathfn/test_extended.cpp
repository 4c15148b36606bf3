// SPDX-License-Identifier: BSD-3-Clause
// The double-double exponential and logarithm of the integer forms: within
// 2^-100 of MPFR relative, and the rounding of a double-double to the
// nearest integer with ties to even.
#include <cmath>

#include "mathfn/extended.h"
#include "mpfr_reference.h"
#include "qsp_test.h"

using mathfn::extended::DD;

namespace {

// |hi + lo - f(x)| / |f(x)| as a power of two.
double relativeErrorLog2(const DD& got, mpfr_ptr exact)
{
    mpfr_t d;
    mpfr_init2(d, 400);
    mpfr_set_d(d, got.hi, MPFR_RNDN);
    mpfr_add_d(d, d, got.lo, MPFR_RNDN);
    mpfr_sub(d, d, exact, MPFR_RNDN);
    mpfr_div(d, d, exact, MPFR_RNDN);
    mpfr_abs(d, d, MPFR_RNDN);
    const double e = mpfr_zero_p(d) ? -400 : std::log2(mpfr_get_d(d, MPFR_RNDN));
    mpfr_clear(d);
    return e;
}

}  // namespace

TEST(Extended, ExponentialWithinTwoToTheMinus100)
{
    std::mt19937_64 rng(601);
    std::uniform_real_distribution<double> hi(-2.0, 44.5), lo(-1.0, 1.0);
    mpfr_t x, y;
    mpfr_inits2(400, x, y, (mpfr_ptr)0);
    double worst = -400;
    for (int i = 0; i < 100000; ++i) {
        const double h = hi(rng);
        const DD w = mathfn::fastTwoSum(h, lo(rng) * std::ldexp(std::fabs(h), -54));
        mpfr_set_d(x, w.hi, MPFR_RNDN);
        mpfr_add_d(x, x, w.lo, MPFR_RNDN);
        mpfr_exp(y, x, MPFR_RNDN);
        worst = std::max(worst, relativeErrorLog2(mathfn::extended::expExtended(w), y));
    }
    mpfr_clears(x, y, (mpfr_ptr)0);
    EXPECT_LT(worst, -100.0);
    std::printf("worst relative error of the extended exponential: 2^%.1f\n", worst);
}

TEST(Extended, LogarithmWithinTwoToTheMinus100)
{
    std::mt19937_64 rng(602);
    mpfr_t x, y;
    mpfr_inits2(400, x, y, (mpfr_ptr)0);
    double worst = -400;
    for (int i = 0; i < 100000; ++i) {
        const int bits = 1 + int(rng() % 64);
        Qsp64u v = rng() >> (64 - bits);
        if (v < 2) v = 2 + (rng() & 7);
        mpfr_set_ui(x, v, MPFR_RNDN);
        mpfr_log(y, x, MPFR_RNDN);
        worst = std::max(worst, relativeErrorLog2(mathfn::extended::lnExtended(v), y));
    }
    for (Qsp64u v : {2ull, 3ull, 255ull, 256ull, 32767ull, 0x7FFFFFFFull, 0x7FFFFFFFFFFFFFFFull, 0xFFFFFFFFFFFFFFFFull}) {
        mpfr_set_ui(x, v, MPFR_RNDN);
        mpfr_log(y, x, MPFR_RNDN);
        worst = std::max(worst, relativeErrorLog2(mathfn::extended::lnExtended(v), y));
    }
    mpfr_clears(x, y, (mpfr_ptr)0);
    EXPECT_LT(worst, -100.0);
    std::printf("worst relative error of the extended logarithm: 2^%.1f\n", worst);
    const DD one = mathfn::extended::lnExtended(1);
    EXPECT_EQ(one.hi + one.lo, 0.0);
}

TEST(Extended, RoundingToIntegersTiesToEven)
{
    using mathfn::extended::roundToInteger;
    bool big = false;
    auto r = [&](double hi, double lo) { return roundToInteger({hi, lo}, big); };
    EXPECT_EQ(r(2.5, 0), 2);
    EXPECT_EQ(r(3.5, 0), 4);
    EXPECT_EQ(r(-2.5, 0), -2);
    EXPECT_EQ(r(-3.5, 0), -4);
    EXPECT_EQ(r(2.5, 1e-20), 3);
    EXPECT_EQ(r(2.5, -1e-20), 2);
    EXPECT_EQ(r(0.49999999999999994, 0), 0);
    EXPECT_EQ(r(0x1p60, 5.3), (Qsp64s(1) << 60) + 5);
    EXPECT_EQ(r(0x1p60, -0.5), (Qsp64s(1) << 60));
    EXPECT_EQ(r(0x1p60, 1.5), (Qsp64s(1) << 60) + 2);
    EXPECT_EQ(r(0x1.fffffffffffffp62, 511.0), Qsp64s(0x7FFFFFFFFFFFFDFFll));
    EXPECT_FALSE(big);
    r(0x1p63, 0);
    EXPECT_TRUE(big);
    r(-0x1p63, 0);
    EXPECT_TRUE(big);
}

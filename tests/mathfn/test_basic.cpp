// SPDX-License-Identifier: BSD-3-Clause
// Absolute value, floor and square root of one double.
#include <mpfr.h>

#include <cmath>

#include "mathfn/basic.h"
#include "qsp_test.h"

using mathfn::qspsFabsOne;
using mathfn::qspsFloorOne;
using mathfn::qspsSqrtOne;

TEST(Basic, AbsoluteValueClearsTheSignBitOnly)
{
    EXPECT_TRUE(qsptest::sameBits(qspsFabsOne(-0.0), 0.0));
    EXPECT_EQ(qspsFabsOne(-2.5), 2.5);
    EXPECT_EQ(qspsFabsOne(-HUGE_VAL), HUGE_VAL);
    EXPECT_EQ(std::bit_cast<Qsp64u>(qspsFabsOne(std::bit_cast<double>(0xFFF0000000000001ull))), 0x7FF0000000000001ull);
    static_assert(qspsFabsOne(-3.0) == 3.0);
}

TEST(Basic, FloorMatchesTheDefinition)
{
    std::mt19937_64 rng(7);
    for (int i = 0; i < 200000; ++i) {
        const double x = std::ldexp(std::uniform_real_distribution<double>(-1, 1)(rng), int(rng() % 60) - 5);
        ASSERT_TRUE(qsptest::sameBits(qspsFloorOne(x), std::floor(x))) << std::hexfloat << x;
    }
    for (double x : {0.0, -0.0, 0.5, -0.5, -1.0, 1.0, 0x1p52, -0x1p52 - 1, 0x1.fffffffffffffp51, -0x1.fffffffffffffp51,
                     0x1p-1074, -0x1p-1074, 0.9999999999999999, -0.9999999999999999, 1e300, -1e300, HUGE_VAL,
                     -HUGE_VAL})
        EXPECT_TRUE(qsptest::sameBits(qspsFloorOne(x), std::floor(x))) << std::hexfloat << x;
    EXPECT_TRUE(std::isnan(qspsFloorOne(std::nan(""))));
    static_assert(qspsFloorOne(-2.5) == -3.0 && qspsFloorOne(2.5) == 2.0);
}

TEST(Basic, SquareRootIsCorrectlyRounded)
{
    std::mt19937_64 rng(8);
    mpfr_t m;
    mpfr_init2(m, 53);
    for (int i = 0; i < 100000; ++i) {
        const double x = std::ldexp(std::uniform_real_distribution<double>(1, 4)(rng), 2 * (int(rng() % 400) - 200));
        mpfr_set_d(m, x, MPFR_RNDN);
        mpfr_sqrt(m, m, MPFR_RNDN);
        ASSERT_EQ(qspsSqrtOne(x), mpfr_get_d(m, MPFR_RNDN)) << std::hexfloat << x;
    }
    mpfr_clear(m);
    EXPECT_TRUE(qsptest::sameBits(qspsSqrtOne(-0.0), -0.0));
    EXPECT_TRUE(std::isnan(qspsSqrtOne(-1.0)));
    EXPECT_EQ(qspsSqrtOne(HUGE_VAL), HUGE_VAL);
    static_assert(qspsSqrtOne(16.0) == 4.0);
}

// SPDX-License-Identifier: BSD-3-Clause
// The cube root of doubles: within 0.51 ULP of MPFR over every binade,
// and its special values.
#include <cmath>

#include "mathfn/cbrt.h"
#include "mpfr_reference.h"
#include "qsp_test.h"

using mathfn::qspsCbrtOne;

namespace {

void expectWithinBound(const std::vector<double>& xs)
{
    mpref::Exact ref;
    double worst = 0, at = 0;
    for (double x : xs) {
        ref.evaluate(mpfr_cbrt, x);
        const double u = ref.ulps64(qspsCbrtOne(x));
        if (u > worst) worst = u, at = x;
    }
    EXPECT_LE(worst, 0.51) << std::hexfloat << at;
    std::printf("worst cbrt %.4f ULP at %a\n", worst, at);
}

// Doubles over every binade and, more densely, around the table's range.
std::vector<double> sample(size_t n, std::mt19937_64& rng)
{
    std::vector<double> v = mpref::everyBinade(n / 2, -1074, 1023, rng);
    std::vector<double> mid = mpref::everyBinade(n / 2, -6, 6, rng);
    v.insert(v.end(), mid.begin(), mid.end());
    return v;
}

}  // namespace

TEST(CbrtOne, WithinBound)
{
    std::mt19937_64 rng(501);
    expectWithinBound(sample(200000, rng));
    std::vector<double> edges = {1.0, 2.0, 4.0, 8.0, 27.0, 0x1p-1074, 0x1p-1022, 0x1.fffffffffffffp+1023, 0.125};
    for (double x : {1.0, 2.0, 4.0, 0x1p-1022, 0x1p-1073})
        edges.push_back(std::nextafter(x, 0.0)), edges.push_back(std::nextafter(x, 9.0));
    for (double& x : std::vector<double>(edges)) edges.push_back(-x);
    expectWithinBound(edges);
}

TEST(CbrtOneHeavy, WithinBoundOnTenMillionArguments)
{
    std::mt19937_64 rng(502);
    for (int block = 0; block < 20; ++block) expectWithinBound(sample(500000, rng));
}

TEST(CbrtOne, SpecialValuesAndExactCubes)
{
    EXPECT_TRUE(qsptest::sameBits(qspsCbrtOne(0.0), 0.0));
    EXPECT_TRUE(qsptest::sameBits(qspsCbrtOne(-0.0), -0.0));
    EXPECT_EQ(qspsCbrtOne(HUGE_VAL), HUGE_VAL);
    EXPECT_EQ(qspsCbrtOne(-HUGE_VAL), -HUGE_VAL);
    EXPECT_EQ(std::bit_cast<Qsp64u>(qspsCbrtOne(std::bit_cast<double>(0xFFF0000000000042ull))), 0xFFF8000000000042ull);
    for (double r = -3000; r <= 3000; r += 1) EXPECT_EQ(qspsCbrtOne(r * r * r), r);
    EXPECT_EQ(qspsCbrtOne(0x1p-1074), 0x1p-358);
    EXPECT_EQ(qspsCbrtOne(-0x1p-1023), -0x1p-341);
    static_assert(mathfn::qspsCbrtOne(27.0) == 3.0);
}

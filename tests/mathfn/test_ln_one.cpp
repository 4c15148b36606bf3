// SPDX-License-Identifier: BSD-3-Clause
// The natural logarithm of doubles: within 0.52 ULP of MPFR over every
// binade and near 1, special values, and the vector form bit-identical to
// the one-element function.
#include <cmath>

#include "mathfn/ln.h"
#include "mpfr_reference.h"
#include "qsp_test.h"

using mathfn::qspsLn_64f_A53;
using mathfn::qspsLnOne;

namespace {

void expectWithinBound(const std::vector<double>& xs)
{
    mpref::Exact ref;
    double worst = 0, at = 0;
    for (double x : xs) {
        ref.evaluate(mpfr_log, x);
        const double u = ref.ulps64(qspsLnOne(x));
        if (u > worst) worst = u, at = x;
    }
    EXPECT_LE(worst, 0.52) << std::hexfloat << at;
    std::printf("worst ln %.4f ULP at %a\n", worst, at);
}

// Positive doubles over every binade, subnormals included, and the
// neighbourhood of 1 where the result is smallest.
std::vector<double> sample(size_t n, std::mt19937_64& rng)
{
    std::vector<double> v = mpref::everyBinade(n / 2, -1074, 1023, rng, false);
    std::uniform_real_distribution<double> near1(-1.0 / 64, 1.0 / 64);
    for (size_t i = 0; i < n / 4; ++i) v.push_back(1.0 + near1(rng));
    for (size_t i = 0; i < n / 4; ++i) v.push_back(1.0 + std::ldexp(near1(rng), -int(rng() % 50)));
    return v;
}

}  // namespace

TEST(LnOne, WithinBound)
{
    std::mt19937_64 rng(301);
    expectWithinBound(sample(200000, rng));
    std::vector<double> edges = {1.0, std::nextafter(1.0, 0.0), std::nextafter(1.0, 2.0), 0x1.6a09e667f3bcdp-1,
                                 0x1.6a09e667f3bccp-1, 0x1.6a09e667f3bcdp+0, 0x1.6a09e667f3bcep+0, 2.0, 0.5,
                                 0x1p-1074, 0x1p-1022, 0x1.fffffffffffffp-1023, 0x1.fffffffffffffp+1023, M_E};
    for (int j = 90; j <= 182; ++j) {
        edges.push_back((j - 0.5) / 128), edges.push_back((j + 0.5) / 128);
        edges.push_back(std::nextafter((j - 0.5) / 128, 0.0)), edges.push_back(std::nextafter((j + 0.5) / 128, 2.0));
    }
    expectWithinBound(edges);
}

TEST(LnOneHeavy, WithinBoundOnTenMillionArguments)
{
    std::mt19937_64 rng(302);
    for (int block = 0; block < 20; ++block) expectWithinBound(sample(500000, rng));
}

TEST(LnOne, SpecialValues)
{
    EXPECT_EQ(qspsLnOne(1.0), 0.0);
    EXPECT_TRUE(qsptest::sameBits(qspsLnOne(1.0), 0.0));
    EXPECT_EQ(qspsLnOne(0.0), -HUGE_VAL);
    EXPECT_EQ(qspsLnOne(-0.0), -HUGE_VAL);
    EXPECT_EQ(qspsLnOne(HUGE_VAL), HUGE_VAL);
    for (double x : {-1.0, -0x1p-1074, -HUGE_VAL, -1e300})
        EXPECT_EQ(std::bit_cast<Qsp64u>(qspsLnOne(x)), 0xFFF8000000000000ull) << x;
    EXPECT_EQ(std::bit_cast<Qsp64u>(qspsLnOne(std::bit_cast<double>(0x7FF0000000000042ull))), 0x7FF8000000000042ull);
    EXPECT_EQ(qspsLnOne(0x1p-1074), -0x1.74385446d71c3p+9);
    static_assert(mathfn::qspsLnOne(1.0) == 0.0);
    constexpr double l2 = mathfn::qspsLnOne(2.0);
    EXPECT_EQ(l2, 0x1.62e42fefa39efp-1);
    EXPECT_EQ(mathfn::lnPositive(3.5), qspsLnOne(3.5));
}

TEST(LnOne, VectorFormEqualsOneElementResults)
{
    std::mt19937_64 rng(303);
    std::vector<double> pool = sample(4000, rng);
    for (double x : {0.0, -0.0, HUGE_VAL, -HUGE_VAL, std::nan(""), -1.0, 0x1p-1074, 0x1p-1030, 1.0})
        for (int r = 0; r < 20; ++r) pool.push_back(x);
    std::shuffle(pool.begin(), pool.end(), rng);
    size_t at = 0;
    for (int len = 0; len <= 67; ++len) {
        for (int offset = 0; offset < 2; ++offset) {
            qsptest::Guarded<double> src(len + 1), dst(len + 1);
            for (int i = 0; i < len; ++i) src[offset + i] = pool[(at + i) % pool.size()];
            at += len;
            qspsLn_64f_A53(src.data() + offset, dst.data() + offset, len);
            for (int i = 0; i < len; ++i)
                ASSERT_TRUE(qsptest::sameBits(dst[offset + i], qspsLnOne(src[offset + i])))
                    << std::hexfloat << src[offset + i];
            EXPECT_TRUE(dst.guardsIntact());
        }
    }
}

// SPDX-License-Identifier: BSD-3-Clause
// The arctangent of doubles: within 0.6 ULP of MPFR over every binade and
// at the table's edges, special values, and the vector form bit-identical
// to the one-element function.
#include <cmath>

#include "mathfn/arctan.h"
#include "mpfr_reference.h"
#include "qsp_test.h"

using mathfn::qspsArctan_64f_A53;
using mathfn::qspsArctanOne;

namespace {

void expectWithinBound(const std::vector<double>& xs)
{
    mpref::Exact ref;
    double worst = 0, at = 0;
    for (double x : xs) {
        ref.evaluate(mpfr_atan, x);
        const double u = ref.ulps64(qspsArctanOne(x));
        if (u > worst) worst = u, at = x;
    }
    EXPECT_LE(worst, 0.6) << std::hexfloat << at;
    std::printf("worst atan %.4f ULP at %a\n", worst, at);
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

TEST(ArctanOne, WithinBound)
{
    std::mt19937_64 rng(401);
    expectWithinBound(sample(200000, rng));
    // Both sides of every interval edge of the table, and the ends.
    std::vector<double> edges = {0x1p-4, 0x1p4, 1.0, 0x1p-1074, 0x1p-27, 0x1p27, 0x1p53, 0x1.fffffffffffffp+1023};
    for (int i = 0; i <= 128; ++i) {
        const double c = std::ldexp(1.0 + (i % 16) / 16.0, i / 16 - 4);
        for (double x : {c, std::nextafter(c, 0.0), std::nextafter(c, HUGE_VAL)}) edges.push_back(x), edges.push_back(-x);
    }
    expectWithinBound(edges);
}

TEST(ArctanOneHeavy, WithinBoundOnTenMillionArguments)
{
    std::mt19937_64 rng(402);
    for (int block = 0; block < 20; ++block) expectWithinBound(sample(500000, rng));
}

TEST(ArctanOne, SpecialValues)
{
    EXPECT_TRUE(qsptest::sameBits(qspsArctanOne(0.0), 0.0));
    EXPECT_TRUE(qsptest::sameBits(qspsArctanOne(-0.0), -0.0));
    EXPECT_EQ(qspsArctanOne(0x1p-1074), 0x1p-1074);
    EXPECT_EQ(qspsArctanOne(-0x1p-30), -0x1p-30);
    EXPECT_EQ(qspsArctanOne(HUGE_VAL), 0x1.921fb54442d18p+0);
    EXPECT_EQ(qspsArctanOne(-HUGE_VAL), -0x1.921fb54442d18p+0);
    EXPECT_EQ(qspsArctanOne(1e300), 0x1.921fb54442d18p+0);
    EXPECT_EQ(qspsArctanOne(1.0), 0x1.921fb54442d18p-1);
    EXPECT_EQ(std::bit_cast<Qsp64u>(qspsArctanOne(std::bit_cast<double>(0xFFF0000000000042ull))), 0xFFF8000000000042ull);
    static_assert(mathfn::qspsArctanOne(0.0) == 0.0);
    constexpr double a = mathfn::qspsArctanOne(0.5);
    EXPECT_EQ(a, qspsArctanOne(0.5));
}

TEST(ArctanOne, VectorFormEqualsOneElementResults)
{
    std::mt19937_64 rng(403);
    std::vector<double> pool = sample(4000, rng);
    for (double x : {0.0, -0.0, HUGE_VAL, -HUGE_VAL, std::nan(""), -1.0, 0x1p-1074, 1e300, 1.0})
        for (int r = 0; r < 20; ++r) pool.push_back(x);
    std::shuffle(pool.begin(), pool.end(), rng);
    size_t at = 0;
    for (int len = 0; len <= 67; ++len) {
        for (int offset = 0; offset < 2; ++offset) {
            qsptest::Guarded<double> src(len + 1), dst(len + 1);
            for (int i = 0; i < len; ++i) src[offset + i] = pool[(at + i) % pool.size()];
            at += len;
            qspsArctan_64f_A53(src.data() + offset, dst.data() + offset, len);
            for (int i = 0; i < len; ++i)
                ASSERT_TRUE(qsptest::sameBits(dst[offset + i], qspsArctanOne(src[offset + i])))
                    << std::hexfloat << src[offset + i];
            EXPECT_TRUE(dst.guardsIntact());
        }
    }
}

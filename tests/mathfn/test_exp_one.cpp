// SPDX-License-Identifier: BSD-3-Clause
// The exponential of doubles: within 0.52 ULP of MPFR for normal results
// and 0.76 ULP for subnormal ones,
// overflow and underflow at the right arguments, special values, and the
// vector form bit-identical to the one-element function.
#include <cmath>

#include "mathfn/exp.h"
#include "mpfr_reference.h"
#include "qsp_test.h"

using mathfn::qspsExp_64f_A53;
using mathfn::qspsExpOne;

namespace {

double worstExp(const std::vector<double>& xs, double& at)
{
    mpref::Exact ref;
    double worst = 0;
    for (double x : xs) {
        ref.evaluate(mpfr_exp, x);
        const double u = ref.ulps64(qspsExpOne(x));
        if (u > worst) worst = u, at = x;
    }
    return worst;
}

// Normal results are within 0.52 ULP: one rounding of the final sum and
// errors below 2^-58 before it. A subnormal result is rounded twice, to a
// double and then to the subnormal's precision: within 0.52 ULP of the
// normal precision plus half an ULP of the subnormal, at most 0.76 ULP.
void expectWithinBounds(const std::vector<double>& xs)
{
    constexpr double kSmallestNormalArgument = -0x1.6232bdd7abcd2p+9;  // e^x = 2^-1022 just above
    std::vector<double> normal, subnormal;
    for (double x : xs) (x < kSmallestNormalArgument ? subnormal : normal).push_back(x);
    double at = 0, worst = worstExp(normal, at);
    EXPECT_LE(worst, 0.52) << std::hexfloat << at;
    std::printf("worst exp %.4f ULP at %a (normal results)\n", worst, at);
    worst = worstExp(subnormal, at);
    EXPECT_LE(worst, 0.76) << std::hexfloat << at;
    if (!subnormal.empty()) std::printf("worst exp %.4f ULP at %a (subnormal results)\n", worst, at);
}

// Uniform over the arguments with finite non-zero results and a little
// beyond, plus every binade of small arguments.
std::vector<double> sample(size_t n, std::mt19937_64& rng)
{
    std::uniform_real_distribution<double> range(-750.0, 712.0);
    std::vector<double> v = mpref::everyBinade(n / 2, -1074, 9, rng);
    for (size_t i = 0; i < n / 2; ++i) v.push_back(range(rng));
    return v;
}

}  // namespace

TEST(ExpOne, WithinOneUlp)
{
    std::mt19937_64 rng(201);
    expectWithinBounds(sample(200000, rng));
}

TEST(ExpOneHeavy, WithinOneUlpOnTenMillionArguments)
{
    std::mt19937_64 rng(202);
    for (int block = 0; block < 20; ++block) expectWithinBounds(sample(500000, rng));
}

TEST(ExpOne, OverflowAndUnderflowEdges)
{
    // The largest argument with a finite result, and the next double.
    const double top = 0x1.62e42fefa39efp+9;
    EXPECT_TRUE(std::isfinite(qspsExpOne(top)));
    EXPECT_EQ(qspsExpOne(std::nextafter(top, INFINITY)), INFINITY);
    // Results in the subnormal range, down to the smallest and to zero.
    std::vector<double> xs;
    for (double x = -708.5; x > -746.0; x -= 0.0137) xs.push_back(x);
    for (double x = 703.0; x < 710.0; x += 0.0071) xs.push_back(x);
    for (double x : {-0x1.74910d52d3051p+9, -0x1.74910d52d3052p+9, -0x1.74910d52d3053p+9, -0x1.6232bdd7abcd2p+9,
                     -0x1.6232bdd7abcd3p+9, -704.0, 704.0, -0x1.5ffffffffffffp+9, 0x1.5ffffffffffffp+9, top})
        xs.push_back(x);
    expectWithinBounds(xs);
    EXPECT_EQ(qspsExpOne(-746.0), 0.0);
    EXPECT_GT(qspsExpOne(-745.0), 0.0);
}

TEST(ExpOne, SpecialValues)
{
    EXPECT_EQ(qspsExpOne(0.0), 1.0);
    EXPECT_EQ(qspsExpOne(-0.0), 1.0);
    EXPECT_EQ(qspsExpOne(0x1p-1074), 1.0);
    EXPECT_EQ(qspsExpOne(INFINITY), INFINITY);
    EXPECT_TRUE(qsptest::sameBits(qspsExpOne(-INFINITY), 0.0));
    EXPECT_TRUE(qsptest::sameBits(qspsExpOne(-1e300), 0.0));
    EXPECT_EQ(qspsExpOne(1e300), INFINITY);
    const double signalling = std::bit_cast<double>(0xFFF0000000000077ull);
    EXPECT_EQ(std::bit_cast<Qsp64u>(qspsExpOne(signalling)), 0xFFF8000000000077ull);
    EXPECT_EQ(qspsExpOne(1.0), 0x1.5bf0a8b145769p+1);
    static_assert(mathfn::qspsExpOne(0.0) == 1.0);
    constexpr double e = mathfn::qspsExpOne(1.0);
    EXPECT_EQ(e, qspsExpOne(1.0));
}

TEST(ExpOne, VectorFormEqualsOneElementResults)
{
    std::mt19937_64 rng(203);
    std::vector<double> pool = sample(4000, rng);
    for (double x : {0.0, -0.0, HUGE_VAL, -HUGE_VAL, std::nan(""), 709.9, -745.5, -707.0, 703.99})
        for (int r = 0; r < 20; ++r) pool.push_back(x);
    std::shuffle(pool.begin(), pool.end(), rng);
    size_t at = 0;
    for (int len = 0; len <= 67; ++len) {
        for (int offset = 0; offset < 2; ++offset) {
            qsptest::Guarded<double> src(len + 1), dst(len + 1);
            for (int i = 0; i < len; ++i) src[offset + i] = pool[(at + i) % pool.size()];
            at += len;
            qspsExp_64f_A53(src.data() + offset, dst.data() + offset, len);
            for (int i = 0; i < len; ++i)
                ASSERT_TRUE(qsptest::sameBits(dst[offset + i], qspsExpOne(src[offset + i])))
                    << std::hexfloat << src[offset + i];
            EXPECT_TRUE(dst.guardsIntact());
        }
    }
}

// SPDX-License-Identifier: BSD-3-Clause
#include <cmath>

#include "mathfn/sincospi.h"
#include "qsp_test.h"

using mathfn::sinCosPi;

namespace {

constexpr long double kPi = 3.141592653589793238462643383279502884L;

// Reference: the C library's long double sine and cosine after an exact
// reduction x = q/2 + r, |r| <= 1/4 (the quarter turns are exact
// symmetries); pi*r in long double is accurate to 2^-63 relative, far below
// a double ULP of either result.
struct Ref {
    long double s, c;
};
Ref reference(double x)
{
    const double q = std::nearbyint(2.0 * x);
    const long double r = (long double)(x - q / 2.0);  // exact
    const long double s = sinl(kPi * r), c = cosl(kPi * r);
    switch ((long long)std::fmod(std::fabs(q), 4.0) * (q < 0 ? -1 : 1) & 3) {
    case 0: return {s, c};
    case 1: return {c, -s};
    case 2: return {-s, -c};
    default: return {-c, s};
    }
}

double ulps(double got, long double ref)
{
    const double r = (double)ref;
    const double ulp = std::nextafter(std::fabs(r), INFINITY) - std::fabs(r);
    return (double)(fabsl((long double)got - ref) / ulp);
}

}  // namespace

TEST(SinCosPi, WithinOneUlpOnFourHalfTurns)
{
    std::uniform_real_distribution<double> dist(-2.0, 2.0);
    double worstS = 0, worstC = 0;
    for (int i = 0; i < 200000; ++i) {
        const double x = dist(qsptest::rng());
        const auto v = sinCosPi(x);
        const Ref ref = reference(x);
        worstS = std::max(worstS, ulps(v.s, ref.s));
        worstC = std::max(worstC, ulps(v.c, ref.c));
    }
    EXPECT_LT(worstS, 1.0);
    EXPECT_LT(worstC, 1.0);
    printf("  worst error: sin %.3f ULP, cos %.3f ULP\n", worstS, worstC);
}

TEST(SinCosPi, TinyArgumentsKeepFullRelativeAccuracy)
{
    for (double x = 1e-300; x < 1e-3; x *= 3.7) {
        const auto v = sinCosPi(x);
        EXPECT_LT(ulps(v.s, sinl(kPi * (long double)x)), 1.0) << x;
        EXPECT_EQ(v.c, x < 1e-9 ? 1.0 : v.c);
    }
    EXPECT_EQ(sinCosPi(0.0).s, 0.0);
    EXPECT_TRUE(std::signbit(sinCosPi(-0.0).s));
    EXPECT_EQ(sinCosPi(0.0).c, 1.0);
}

TEST(SinCosPi, ExactAtMultiplesOfHalfAndPeriodicForLargeArguments)
{
    for (long long k = -1000; k <= 1000; ++k) {
        const auto v = sinCosPi((double)k);
        EXPECT_EQ(v.s, 0.0);
        EXPECT_EQ(v.c, (k & 1) ? -1.0 : 1.0);
        const auto h = sinCosPi(k + 0.5);
        EXPECT_EQ(h.c, 0.0);
        EXPECT_EQ(h.s, ((k & 1) == 0) ? 1.0 : -1.0);
    }
    // The reduction is exact: x and x + 2^k (k >= 1, sum exact) agree.
    std::uniform_real_distribution<double> dist(-1.0, 1.0);
    for (int i = 0; i < 1000; ++i) {
        const double x = std::ldexp(std::round(std::ldexp(dist(qsptest::rng()), 20)), -20);
        for (int k = 1; k < 30; ++k) {
            const auto a = sinCosPi(x), b = sinCosPi(x + std::ldexp(1.0, k));
            ASSERT_EQ(a.s, b.s);
            ASSERT_EQ(a.c, b.c);
        }
    }
    // Huge arguments are even integers (or odd below 2^53).
    EXPECT_EQ(sinCosPi(9007199254740991.0).c, -1.0);  // 2^53 - 1: odd
    EXPECT_EQ(sinCosPi(1e300).c, 1.0);
    EXPECT_EQ(sinCosPi(1e300).s, 0.0);
}

TEST(SinCosPi, EvaluatedByTheCompilerAsAtRunTime)
{
    constexpr auto c = sinCosPi(0.3);
    volatile double x = 0.3;
    const auto r = sinCosPi(x);
    EXPECT_EQ(c.s, r.s);
    EXPECT_EQ(c.c, r.c);
}

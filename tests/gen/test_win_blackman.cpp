// SPDX-License-Identifier: BSD-3-Clause
// WinBlackman: w(n) = (alpha+1)/2 - 0.5 cos(2 pin/(N-1)) - (alpha/2)
// cos(4 pin/(N-1)) in all twelve forms, alpha as given (float or double).
#include "window_checks.h"

using wintest::LD;

namespace {

auto blackman(LD alpha)
{
    return [alpha](int N, int n) { return wintest::cosineWindow(N, n, (alpha + 1) / 2, 0.5L, -alpha / 2); };
}
auto bound(LD alpha)
{
    return [alpha](int N, auto) { return wintest::cosineBound(N, 1 + 2 * fabsl(alpha)); };
}

}  // namespace

TEST(WinBlackman, ArgumentChecks)
{
    wintest::expectArgumentChecks(WIN_FORMS(Blackman, -0.16f), 3);
    wintest::expectArgumentChecks(WIN_FORMS(Blackman, 1e30f), 3);
}

TEST(WinBlackman, WeightsMatchTheClosedFormula)
{
    // Float forms take alpha as a float: the reference uses the float's
    // value, as the 64f forms do when handed the same value.
    for (float alpha : {-0.16f, 0.0f, 0.3f, -2.5f}) {
        SCOPED_TRACE(alpha);
        wintest::expectWeights(WIN_FORMS(Blackman, alpha), wintest::sweepLengths(3), blackman(alpha), bound(alpha));
    }
}

TEST(WinBlackman, ThreeElementsZeroTheEndsAndKeepTheMiddle)
{
    const Qsp32f src[3] = {INFINITY, std::nanf("9"), NAN};
    Qsp32f dst[3];
    ASSERT_EQ(qspsWinBlackman_32f(src, dst, 3, 5.0f), qspStsOk);
    EXPECT_TRUE(qsptest::sameBits(dst[0], 0.0f));
    EXPECT_TRUE(qsptest::sameBits(dst[1], src[1]));
    EXPECT_TRUE(qsptest::sameBits(dst[2], 0.0f));
    Qsp64fc c[3] = {{1, 2}, {3, 4}, {-5, -6}};
    ASSERT_EQ(qspsWinBlackman_64fc_I(c, 3, -0.16), qspStsOk);
    EXPECT_TRUE(qsptest::sameBits(c[0].re, 0.0) && qsptest::sameBits(c[0].im, 0.0));
    EXPECT_EQ(c[1].re, 3.0);
    EXPECT_EQ(c[1].im, 4.0);
    EXPECT_TRUE(qsptest::sameBits(c[2].re, 0.0) && qsptest::sameBits(c[2].im, 0.0));
}

TEST(WinBlackman, EndWeightsAreExactlyZero)
{
    for (int N : {4, 5, 100, 1001}) {
        std::vector<Qsp64f> x(N, -3.0);
        ASSERT_EQ(qspsWinBlackman_64f_I(x.data(), N, 0.42), qspStsOk);
        EXPECT_TRUE(qsptest::sameBits(x[0], -0.0)) << N;
        EXPECT_TRUE(qsptest::sameBits(x[N - 1], -0.0)) << N;
    }
}

TEST(WinBlackman, IntegerResultsSaturate)
{
    // alpha = 2: w = (1 - c)(2.5 + 2c) reaches 2.53 (at cos = -1/8), so
    // 30000 times the weight passes the 16-bit range.
    std::vector<Qsp16s> x(101, 30000), y(101, -30000);
    ASSERT_EQ(qspsWinBlackman_16s_I(x.data(), 101, 2.0f), qspStsOk);
    ASSERT_EQ(qspsWinBlackman_16s_I(y.data(), 101, 2.0f), qspStsOk);
    int saturated = 0;
    for (int n = 0; n < 101; ++n) {
        const LD w = blackman(2.0L)(101, n);
        if (30000 * w > 32767) {
            EXPECT_EQ(x[n], 32767) << n;
            EXPECT_EQ(y[n], -32768) << n;
            ++saturated;
        }
    }
    EXPECT_GT(saturated, 10);
}

// SPDX-License-Identifier: BSD-3-Clause
// WinHann: w(n) = 0.5 - 0.5 cos(2 pin/(N-1)) in all twelve forms.
#include "window_checks.h"

using wintest::LD;

namespace {

LD hann(int N, int n) { return wintest::cosineWindow(N, n, 0.5L, 0.5L, 0); }
wintest::Family family() { return WIN_FORMS(Hann); }

}  // namespace

TEST(WinHann, ArgumentChecks) { wintest::expectArgumentChecks(family(), 3); }

TEST(WinHann, WeightsMatchTheClosedFormula)
{
    wintest::expectWeights(family(), wintest::sweepLengths(3), hann, [](int N, auto) { return wintest::cosineBound(N); });
}

TEST(WinHann, LengthTwoIsRejectedAndThreeGivesZeroOneZero)
{
    qsptest::Guarded<Qsp64f> g(2);
    EXPECT_EQ(qspsWinHann_64f_I(g.data(), 2), qspStsBadSize);
    EXPECT_TRUE(g.untouched());
    Qsp64f x[3] = {4.0, -7.5, 2.0};
    ASSERT_EQ(qspsWinHann_64f_I(x, 3), qspStsOk);
    EXPECT_EQ(x[0], 0.0);
    EXPECT_EQ(x[1], -7.5);
    EXPECT_EQ(x[2], 0.0);
}

TEST(WinHann, CentreAndSymmetry)
{
    for (int N : {5, 9, 1001}) {
        std::vector<Qsp32f> x(N, 1.0f), y(N);
        x[N / 2] = std::nanf("5");
        ASSERT_EQ(qspsWinHann_32f(x.data(), y.data(), N), qspStsOk);
        EXPECT_TRUE(qsptest::sameBits(y[N / 2], x[N / 2]));
        for (int n = 0; n < N / 2; ++n) EXPECT_EQ(y[n], y[N - 1 - n]);
        ASSERT_EQ(qspsWinHann_32f_I(x.data(), N), qspStsOk);
        EXPECT_TRUE(qsptest::sameBits(x[N / 2], y[N / 2]));
    }
}

TEST(WinHann, LongWindowsStayWithinTheBound)
{
    for (int N : {65536, 100001}) {
        const LD err = wintest::measuredWeightError(family().f64.out, N, hann);
        EXPECT_LE(err, wintest::cosineBound(N)) << N;
    }
}

// SPDX-License-Identifier: BSD-3-Clause
// WinHamming: w(n) = 0.54 - 0.46 cos(2 pin/(N-1)) in all twelve forms.
#include "window_checks.h"

using wintest::LD;

namespace {

LD hamming(int N, int n) { return wintest::cosineWindow(N, n, 0.54L, 0.46L, 0); }
wintest::Family family() { return WIN_FORMS(Hamming); }

}  // namespace

TEST(WinHamming, ArgumentChecks) { wintest::expectArgumentChecks(family(), 3); }

TEST(WinHamming, WeightsMatchTheClosedFormula)
{
    wintest::expectWeights(family(), wintest::sweepLengths(3), hamming,
                           [](int N, auto) { return wintest::cosineBound(N); });
}

TEST(WinHamming, EndsAreWeightedAndTheCentreKept)
{
    // Three elements: the general formula (0.08 at the ends), the middle kept.
    Qsp64f x[3] = {100.0, -3.0, -50.0};
    ASSERT_EQ(qspsWinHamming_64f_I(x, 3), qspStsOk);
    EXPECT_NEAR(x[0], 8.0, 1e-13);
    EXPECT_EQ(x[1], -3.0);
    EXPECT_NEAR(x[2], -4.0, 1e-13);
    Qsp16sc c[7];
    for (auto& e : c) e = {10000, -10000};
    ASSERT_EQ(qspsWinHamming_16sc_I(c, 7), qspStsOk);
    EXPECT_EQ(c[0].re, 800);
    EXPECT_EQ(c[0].im, -800);
    EXPECT_EQ(c[3].re, 10000);
    EXPECT_EQ(c[6].im, -800);
}

TEST(WinHamming, LongWindowsStayWithinTheBound)
{
    for (int N : {65536, 100001}) {
        EXPECT_LE(wintest::measuredWeightError(family().f64.out, N, hamming), wintest::cosineBound(N)) << N;
    }
}

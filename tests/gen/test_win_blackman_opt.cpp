// SPDX-License-Identifier: BSD-3-Clause
// WinBlackmanOpt: the Blackman window with alpha = -0.25/cos^2(pi/(N-1)) in
// all twelve forms; N of at least 4.
#include "window_checks.h"

using wintest::LD;

namespace {

LD alphaOf(int N)
{
    const LD c = cosl(wintest::kPi / (N - 1));
    return -0.25L / (c * c);
}
LD blackmanOpt(int N, int n)
{
    const LD alpha = alphaOf(N);
    return wintest::cosineWindow(N, n, (alpha + 1) / 2, 0.5L, -alpha / 2);
}
wintest::Family family() { return WIN_FORMS(BlackmanOpt); }

}  // namespace

TEST(WinBlackmanOpt, ArgumentChecks) { wintest::expectArgumentChecks(family(), 4); }

TEST(WinBlackmanOpt, LengthThreeIsRejectedThoughBlackmanTakesIt)
{
    qsptest::Guarded<Qsp32f> s(3), d(3);
    EXPECT_EQ(qspsWinBlackmanOpt_32f(s.data(), d.data(), 3), qspStsBadSize);
    EXPECT_TRUE(d.untouched());
    Qsp32f x[3] = {1, 2, 3}, y[3];
    EXPECT_EQ(qspsWinBlackman_32f(x, y, 3, -0.16f), qspStsOk);
}

TEST(WinBlackmanOpt, WeightsMatchTheClosedFormula)
{
    // alpha tends to -0.25 for long windows and is -1 at N = 4.
    wintest::expectWeights(family(), wintest::sweepLengths(4), blackmanOpt,
                           [](int N, auto) { return wintest::cosineBound(N, 1 + 2 * fabsl(alphaOf(N))); });
}

TEST(WinBlackmanOpt, EqualsBlackmanWithItsAlpha)
{
    for (int N : {4, 5, 64, 999}) {
        const double c = std::cos(3.141592653589793 / (N - 1)), t = 0.5 / c;
        const std::vector<Qsp64f> x = wintest::randomData<Qsp64f>(N);
        std::vector<Qsp64f> a(N), b(N);
        ASSERT_EQ(qspsWinBlackmanOpt_64f(x.data(), a.data(), N), qspStsOk);
        ASSERT_EQ(qspsWinBlackman_64f(x.data(), b.data(), N, -(t * t)), qspStsOk);
        for (int n = 0; n < N; ++n) EXPECT_NEAR(a[n], b[n], 1e-15 * std::fabs(x[n])) << N << " " << n;
    }
}

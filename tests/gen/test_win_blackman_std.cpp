// SPDX-License-Identifier: BSD-3-Clause
// WinBlackmanStd: the Blackman window with alpha = -0.16 in all twelve
// forms.
#include "window_checks.h"

using wintest::LD;

namespace {

LD blackmanStd(int N, int n)
{
    const LD alpha = LD(-0.16);
    return wintest::cosineWindow(N, n, (alpha + 1) / 2, 0.5L, -alpha / 2);
}
wintest::Family family() { return WIN_FORMS(BlackmanStd); }

}  // namespace

TEST(WinBlackmanStd, ArgumentChecks) { wintest::expectArgumentChecks(family(), 3); }

TEST(WinBlackmanStd, WeightsMatchTheClosedFormula)
{
    wintest::expectWeights(family(), wintest::sweepLengths(3), blackmanStd,
                           [](int N, auto) { return wintest::cosineBound(N, 1.32L); });
}

TEST(WinBlackmanStd, EqualsBlackmanWithMinusPointOneSix)
{
    for (int N : {3, 4, 77, 1024}) {
        const std::vector<Qsp64fc> x = wintest::randomData<Qsp64fc>(N);
        std::vector<Qsp64fc> a(N), b(N);
        ASSERT_EQ(qspsWinBlackmanStd_64fc(x.data(), a.data(), N), qspStsOk);
        ASSERT_EQ(qspsWinBlackman_64fc(x.data(), b.data(), N, -0.16), qspStsOk);
        EXPECT_EQ(std::memcmp(a.data(), b.data(), sizeof(Qsp64fc) * N), 0) << N;
    }
}

TEST(WinBlackmanStd, ThreeElementsZeroTheEnds)
{
    Qsp16s x[3] = {-32768, 1234, 32767};
    ASSERT_EQ(qspsWinBlackmanStd_16s_I(x, 3), qspStsOk);
    EXPECT_EQ(x[0], 0);
    EXPECT_EQ(x[1], 1234);
    EXPECT_EQ(x[2], 0);
}

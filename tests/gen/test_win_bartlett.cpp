// SPDX-License-Identifier: BSD-3-Clause
// WinBartlett: the triangle window in all twelve forms.
#include "window_checks.h"

using wintest::LD;

namespace {

LD bartlett(int N, int n)
{
    const int m = n <= (N - 1) / 2 ? n : N - 1 - n;
    return 2.0L * m / (N - 1);
}

// w = k * (2/(N-1)): the slope and the product are each rounded once.
LD bartlettError(int, Qsp16s) { return 0x1p-52L; }
LD bartlettError(int, Qsp32f) { return 0x1p-52L; }
LD bartlettError(int, Qsp64f) { return 0x1p-52L; }

wintest::Family family() { return WIN_FORMS(Bartlett); }

}  // namespace

TEST(WinBartlett, ArgumentChecks) { wintest::expectArgumentChecks(family(), 3); }

TEST(WinBartlett, WeightsMatchTheClosedFormula)
{
    wintest::expectWeights(family(), wintest::sweepLengths(3), bartlett,
                           [](int N, auto p) { return bartlettError(N, p); });
}

TEST(WinBartlett, ThreeElementsZeroTheEndsWhateverTheyHold)
{
    const Qsp64f src[3] = {NAN, std::nan("7"), -INFINITY};
    Qsp64f dst[3];
    ASSERT_EQ(qspsWinBartlett_64f(src, dst, 3), qspStsOk);
    EXPECT_TRUE(qsptest::sameBits(dst[0], 0.0));
    EXPECT_TRUE(qsptest::sameBits(dst[1], src[1]));
    EXPECT_TRUE(qsptest::sameBits(dst[2], 0.0));
    Qsp64f io[3] = {-5.0, 7.25, INFINITY};
    ASSERT_EQ(qspsWinBartlett_64f_I(io, 3), qspStsOk);
    EXPECT_TRUE(qsptest::sameBits(io[0], 0.0));
    EXPECT_EQ(io[1], 7.25);
    EXPECT_TRUE(qsptest::sameBits(io[2], 0.0));
    Qsp16sc c[3] = {{-3, 4}, {-32768, 32767}, {5, -6}};
    ASSERT_EQ(qspsWinBartlett_16sc_I(c, 3), qspStsOk);
    EXPECT_EQ(c[0].re, 0);
    EXPECT_EQ(c[0].im, 0);
    EXPECT_EQ(c[1].re, -32768);
    EXPECT_EQ(c[1].im, 32767);
    EXPECT_EQ(c[2].re, 0);
    EXPECT_EQ(c[2].im, 0);
}

TEST(WinBartlett, OddLengthsKeepTheCentreBitForBit)
{
    for (int N : {5, 7, 101, 1025}) {
        std::vector<Qsp32f> src(N, 3.0f), dst(N, 0.0f);
        src[N / 2] = std::nanf("123");
        ASSERT_EQ(qspsWinBartlett_32f(src.data(), dst.data(), N), qspStsOk);
        EXPECT_TRUE(qsptest::sameBits(dst[N / 2], src[N / 2]));
        ASSERT_EQ(qspsWinBartlett_32f_I(src.data(), N), qspStsOk);
        EXPECT_TRUE(qsptest::sameBits(src[N / 2], dst[N / 2]));
    }
}

TEST(WinBartlett, SymmetricAndExactAtTheSlopePoints)
{
    // N - 1 a power of two: every weight 2n/(N-1) is exact.
    const int N = 1025;
    std::vector<Qsp64f> one(N, 1.0), w(N);
    ASSERT_EQ(qspsWinBartlett_64f(one.data(), w.data(), N), qspStsOk);
    for (int n = 0; n < N; ++n) {
        EXPECT_EQ(w[n], w[N - 1 - n]);
        EXPECT_EQ(w[n], double(bartlett(N, n))) << n;
    }
    // Integers round to nearest with ties to even: 3 * 0.5 = 1.5 -> 2,
    // 5 * 0.5 = 2.5 -> 2, -3 * 0.5 -> -2 (N = 5: weights 0, 0.5, 1, 0.5, 0).
    Qsp16s s[5] = {9, 3, 11, 5, 9};
    ASSERT_EQ(qspsWinBartlett_16s_I(s, 5), qspStsOk);
    EXPECT_EQ(s[0], 0);
    EXPECT_EQ(s[1], 2);
    EXPECT_EQ(s[2], 11);
    EXPECT_EQ(s[3], 2);
    EXPECT_EQ(s[4], 0);
    Qsp16s t[5] = {1, -3, -7, -5, 1};
    ASSERT_EQ(qspsWinBartlett_16s_I(t, 5), qspStsOk);
    EXPECT_EQ(t[1], -2);
    EXPECT_EQ(t[3], -2);
}

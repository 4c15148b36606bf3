// SPDX-License-Identifier: BSD-3-Clause
// WinKaiser: w(n) = I0(beta sqrt(1 - ((2n-(N-1))/(N-1))^2)) / I0(beta), beta = 0.5
// |alpha| (N-1), with I0 the library's polynomial approximation, in all
// twelve forms.
#include "window_checks.h"

using wintest::LD;

namespace {

// The approximation of I0 as stated, in long double.
LD besselI0(LD x)
{
    if (x < 4) {
        const LD t = (x / 4) * (x / 4);
        return ((((((0.0008267816L * t + 0.0075942968L) * t + 0.0713758187L) * t + 0.4443189384L) * t +
                  1.777809969L) * t + 3.9999959541L) * t + 4.0000001935L) * t + 0.9999999985L;
    }
    const LD c[] = {0.0051246015L,  -0.0366694767L, 0.1113315511L, -0.1867783276L, 0.1895476618L,
                    -0.1209940805L, 0.0495811118L,  -0.0128314822L, 0.0022585672L, 0.00026L,
                    0.0017623668L,  0.0124667783L,  0.3989422809L};
    const LD u = 4 / x;
    LD p = c[0];
    for (int i = 1; i < 13; ++i) p = p * u + c[i];
    return expl(x) / sqrtl(x) * p;
}

// The true I0 by its power series, for the accuracy of the approximation.
LD besselI0Series(LD x)
{
    LD term = 1, sum = 1;
    for (int k = 1; k < 1000 && term > sum * 1e-21L; ++k) {
        term *= (x / 2) * (x / 2) / (LD(k) * k);
        sum += term;
    }
    return sum;
}

auto kaiser(LD alpha)
{
    return [alpha](int N, int n) -> LD {
        if (N == 1) return 1;
        const LD m = N - 1, beta = 0.5L * fabsl(alpha) * m, r = (2 * n - m) / m;
        return besselI0(beta * sqrtl(1 - r * r)) / besselI0(beta);
    };
}

// Double evaluation: the arguments and the exponential carry about beta
// ulps, the series a few. Single precision (32f and 32fc): about 2^-19 of
// the weight's own size, plus the output rounding the check adds.
auto bound(LD alpha)
{
    return [alpha](int N, auto part) -> LD {
        const LD beta = 0.5L * fabsl(alpha) * (N - 1);
        if constexpr (sizeof(part) == 4) return 0x1p-19L;
        return (32 + 4 * beta) * 0x1p-53L;
    };
}

}  // namespace

TEST(WinKaiser, ArgumentChecks)
{
    wintest::expectArgumentChecks(WIN_FORMS(Kaiser, 1.0f), 1);
    // A beta too large comes after the pointers and the length.
    wintest::expectArgumentChecks(WIN_FORMS(Kaiser, 1e30f), 1);
}

TEST(WinKaiser, BetaAbove308IsRejectedAndNothingIsWritten)
{
    auto rejects = [](auto fn, auto alpha, int len) {
        qsptest::Guarded<Qsp64f> s(len), d(len);
        EXPECT_EQ(fn(s.data(), d.data(), len, alpha), qspStsBadWindowParam) << double(alpha) << " " << len;
        EXPECT_TRUE(s.untouched() && d.untouched());
    };
    rejects(qspsWinKaiser_64f, 1.0, 700);   // beta = 349.5
    rejects(qspsWinKaiser_64f, 1.0, 618);   // beta = 308.5
    rejects(qspsWinKaiser_64f, -1.0, 618);  // the magnitude counts
    rejects(qspsWinKaiser_64f, INFINITY, 2);
    rejects(qspsWinKaiser_64f, 1e300, 3);
    std::vector<Qsp64f> one(617, 1.0), w(617);
    EXPECT_EQ(qspsWinKaiser_64f(one.data(), w.data(), 617, 1.0), qspStsOk);  // beta = 308
    EXPECT_EQ(qspsWinKaiser_64f(one.data(), w.data(), 617, -1.0), qspStsOk);
    qsptest::Guarded<Qsp32fc> s(700), d(700);
    EXPECT_EQ(qspsWinKaiser_32fc(s.data(), d.data(), 700, 1.0f), qspStsBadWindowParam);
    EXPECT_EQ(qspsWinKaiser_32fc_I(d.data(), 700, -1.0f), qspStsBadWindowParam);
    EXPECT_TRUE(s.untouched() && d.untouched());
    qsptest::Guarded<Qsp16s> i(700);
    EXPECT_EQ(qspsWinKaiser_16s_I(i.data(), 700, 2.0f), qspStsBadWindowParam);
    EXPECT_TRUE(i.untouched());
    // Pointers and length come first.
    EXPECT_EQ(qspsWinKaiser_16s_I(nullptr, 700, 2.0f), qspStsNullPtr);
    EXPECT_EQ(qspsWinKaiser_16s_I(i.data(), 0, 2.0f), qspStsBadSize);
}

TEST(WinKaiser, LengthOneCopiesTheElement)
{
    const Qsp64f x = std::nan("3");
    Qsp64f y = 0;
    ASSERT_EQ(qspsWinKaiser_64f(&x, &y, 1, 5.0), qspStsOk);
    EXPECT_TRUE(qsptest::sameBits(x, y));
    Qsp16sc c = {-7, 9};
    ASSERT_EQ(qspsWinKaiser_16sc_I(&c, 1, 1e30f), qspStsOk);  // beta = 0
    EXPECT_EQ(c.re, -7);
    EXPECT_EQ(c.im, 9);
}

TEST(WinKaiser, WeightsMatchTheStatedApproximation)
{
    for (float alpha : {0.0f, 0.5f, -3.0f, 0.05f}) {
        SCOPED_TRACE(alpha);
        std::vector<int> lengths;
        for (int N : wintest::sweepLengths(1))
            if (0.5 * std::fabs(alpha) * (N - 1) <= 308) lengths.push_back(N);
        wintest::expectWeights(WIN_FORMS(Kaiser, alpha), lengths, kaiser(alpha), bound(alpha));
    }
    // beta near the limit: weights down to e^-300 in double, single precision
    // far beyond its exponent range (its exponentials are paired).
    for (int N : {2, 3, 9, 100, 617}) {
        wintest::expectWeights(WIN_FORMS(Kaiser, 1.0f), {N}, kaiser(1.0f), bound(1.0f));
        const float alpha = 615.9f / float(N - 1 > 0 ? N - 1 : 1);
        wintest::expectWeights(WIN_FORMS(Kaiser, alpha), {N}, kaiser(alpha), bound(alpha));
    }
}

TEST(WinKaiser, SinglePrecisionWeightsAreAccurateRelativeToTheirSize)
{
    for (float alpha : {0.2f, 1.0f, 0.5f}) {
        for (int N : {100, 617, 4096}) {
            const float beta = 0.5f * alpha * float(N - 1);
            if (beta > 308) continue;
            std::vector<Qsp32f> one(N, 1.0f), w(N);
            ASSERT_EQ(qspsWinKaiser_32f(one.data(), w.data(), N, alpha), qspStsOk);
            std::vector<Qsp64f> oneD(N, 1.0), wd(N);
            ASSERT_EQ(qspsWinKaiser_64f(oneD.data(), wd.data(), N, alpha), qspStsOk);
            for (int n = 0; n < N; ++n) {
                const LD want = kaiser(alpha)(N, n);
                if (want < 1e-30L) continue;
                EXPECT_LE(fabsl(w[n] - want), want * 0x1p-19L) << N << " " << n;
                EXPECT_LE(fabsl(wd[n] - want), want * (32 + 4 * LD(beta)) * 0x1p-53L) << N << " " << n;
            }
        }
    }
}

TEST(WinKaiser, TheApproximationIsCloseToTheTrueBesselFunction)
{
    // What the stated polynomials give up against I0 itself: below 1.6e-9
    // under 4, 5.6e-6 at 4 (the large-argument form's worst point) falling
    // to 1e-9 by 50.
    LD worst = 0, worstSmall = 0;
    for (LD x = 0; x <= 308; x += 0.0625L) {
        const LD e = fabsl(besselI0(x) / besselI0Series(x) - 1);
        worst = std::max(worst, e);
        if (x < 4) worstSmall = std::max(worstSmall, e);
    }
    EXPECT_LT(worst, 5.6e-6L);
    EXPECT_LT(worstSmall, 1.6e-9L);
    // Through the library: a 64f window against the true function.
    const int N = 201;
    std::vector<Qsp64f> one(N, 1.0), w(N);
    ASSERT_EQ(qspsWinKaiser_64f(one.data(), w.data(), N, 0.08), qspStsOk);  // beta = 8
    for (int n = 0; n < N; ++n) {
        const LD r = (2.0L * n - (N - 1)) / (N - 1);
        const LD exact = besselI0Series(8 * sqrtl(1 - r * r)) / besselI0Series(8);
        EXPECT_NEAR(double(w[n]), double(exact), 1.2e-5 * double(exact)) << n;
    }
}

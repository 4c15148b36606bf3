// SPDX-License-Identifier: BSD-3-Clause
// StdDev and MeanStdDev: the sample standard deviation from a sum and a sum
// of squares in double, and the mean from the same sum.
#include "reduce_reference.h"

using redref::Term;

TEST(StdDev, Statuses)
{
    qsptest::Guarded<Qsp32f> src(4), out(1), out2(1);
    EXPECT_EQ(qspsStdDev_32f(nullptr, 4, out.data(), 0), qspStsNullPtr);
    EXPECT_EQ(qspsStdDev_32f(src.data(), 4, nullptr, 0), qspStsNullPtr);
    EXPECT_EQ(qspsStdDev_32f(nullptr, 1, out.data(), 0), qspStsNullPtr);
    EXPECT_EQ(qspsStdDev_32f(src.data(), 1, out.data(), 0), qspStsBadSize);
    EXPECT_EQ(qspsStdDev_32f(src.data(), 0, out.data(), 1), qspStsBadSize);
    EXPECT_EQ(qspsStdDev_64f(reinterpret_cast<Qsp64f*>(src.data()), 1, reinterpret_cast<Qsp64f*>(out.data())),
              qspStsBadSize);
    EXPECT_EQ(qspsStdDev_16s_Sfs(reinterpret_cast<Qsp16s*>(src.data()), 1, reinterpret_cast<Qsp16s*>(out.data()), 0),
              qspStsBadSize);
    EXPECT_EQ(qspsStdDev_16s32s_Sfs(nullptr, 1, reinterpret_cast<Qsp32s*>(out.data()), 0), qspStsNullPtr);
    EXPECT_EQ(qspsStdDev_16s32s_Sfs(reinterpret_cast<Qsp16s*>(src.data()), -1, reinterpret_cast<Qsp32s*>(out.data()), 0),
              qspStsBadSize);
    EXPECT_EQ(qspsMeanStdDev_32f(src.data(), 4, out.data(), nullptr, 0), qspStsNullPtr);
    EXPECT_EQ(qspsMeanStdDev_32f(src.data(), 4, nullptr, out2.data(), 0), qspStsNullPtr);
    EXPECT_EQ(qspsMeanStdDev_32f(src.data(), 1, out.data(), out2.data(), 0), qspStsBadSize);
    EXPECT_EQ(qspsMeanStdDev_64f(nullptr, 1, reinterpret_cast<Qsp64f*>(out.data()), reinterpret_cast<Qsp64f*>(out2.data())),
              qspStsNullPtr);
    EXPECT_EQ(qspsMeanStdDev_64f(reinterpret_cast<Qsp64f*>(src.data()), 1, reinterpret_cast<Qsp64f*>(out.data()),
                                 reinterpret_cast<Qsp64f*>(out2.data())),
              qspStsBadSize);
    EXPECT_EQ(qspsMeanStdDev_16s_Sfs(reinterpret_cast<Qsp16s*>(src.data()), 1, reinterpret_cast<Qsp16s*>(out.data()),
                                     reinterpret_cast<Qsp16s*>(out2.data()), 0),
              qspStsBadSize);
    EXPECT_EQ(qspsMeanStdDev_16s32s_Sfs(reinterpret_cast<Qsp16s*>(src.data()), 5, reinterpret_cast<Qsp32s*>(out.data()),
                                        nullptr, 0),
              qspStsNullPtr);
    EXPECT_TRUE(out.untouched() && out2.untouched());
}

TEST(StdDev, FloatingFollowTheSchemes)
{
    for (int len : redref::lengths()) {
        if (len < 2) continue;
        const std::vector<float> f = redref::uniform<float>(len, -3, 5);
        for (int offset = 0; offset < 4; ++offset) {
            redref::Placed<float> in(f, offset);
            double s, q, fs, fq;
            redref::wideSum(in.data, len, 1, Term::Value, &s);
            redref::wideSum(in.data, len, 1, Term::Square, &q);
            redref::fastSum(in.data, len, 1, Term::Value, &fs);
            redref::fastSum(in.data, len, 1, Term::Square, &fq);
            float sd, mean;
            ASSERT_EQ(qspsStdDev_32f(in.data, len, &sd, 0), qspStsOk);
            ASSERT_TRUE(qsptest::sameBits(sd, float(redref::stdDevOf(s, q, len)))) << len;
            ASSERT_EQ(qspsStdDev_32f(in.data, len, &sd, 1), qspStsOk);
            ASSERT_TRUE(qsptest::sameBits(sd, float(redref::stdDevOf(fs, fq, len)))) << len;
            // MeanStdDev ignores its hint: always the accurate sums.
            for (int hint : {0, 1, 2}) {
                ASSERT_EQ(qspsMeanStdDev_32f(in.data, len, &mean, &sd, hint), qspStsOk);
                ASSERT_TRUE(qsptest::sameBits(sd, float(redref::stdDevOf(s, q, len))));
                ASSERT_TRUE(qsptest::sameBits(mean, float(s / len)));
            }
        }
        const std::vector<double> d = redref::uniform<double>(len, -3, 5);
        double s, q, sd, mean;
        redref::wideSum(d.data(), len, 1, Term::Value, &s);
        redref::wideSum(d.data(), len, 1, Term::Square, &q);
        ASSERT_EQ(qspsStdDev_64f(d.data(), len, &sd), qspStsOk);
        ASSERT_TRUE(qsptest::sameBits(sd, redref::stdDevOf(s, q, len)));
        ASSERT_EQ(qspsMeanStdDev_64f(d.data(), len, &mean, &sd), qspStsOk);
        ASSERT_TRUE(qsptest::sameBits(sd, redref::stdDevOf(s, q, len)));
        ASSERT_TRUE(qsptest::sameBits(mean, s / len));
    }
}

TEST(StdDev, TwoEqualElementsGiveZero)
{
    const float two[] = {3.25f, 3.25f};
    float sd = 1;
    ASSERT_EQ(qspsStdDev_32f(two, 2, &sd, 0), qspStsOk);
    EXPECT_TRUE(qsptest::sameBits(sd, 0.0f));
    ASSERT_EQ(qspsStdDev_32f(two, 2, &sd, 1), qspStsOk);
    EXPECT_TRUE(qsptest::sameBits(sd, 0.0f));
}

// A constant vector whose numerator len Q - S^2 rounds below zero gives
// exactly 0, never a NaN. The constant is searched with the scheme's own
// sums, and the search must find one.
TEST(StdDev, NegativeNumeratorGivesZero)
{
    int found = 0;
    for (int len = 3; len < 60 && found < 5; ++len) {
        for (int k = 1; k < 400 && found < 5; ++k) {
            const std::vector<float> v(len, 0.1f * float(k));
            double s, q;
            redref::wideSum(v.data(), len, 1, Term::Value, &s);
            redref::wideSum(v.data(), len, 1, Term::Square, &q);
            if (double(len) * q - s * s >= 0) continue;
            ++found;
            float sd = 1, mean;
            ASSERT_EQ(qspsStdDev_32f(v.data(), len, &sd, 0), qspStsOk);
            EXPECT_TRUE(qsptest::sameBits(sd, 0.0f)) << len << " " << k;
            ASSERT_EQ(qspsMeanStdDev_32f(v.data(), len, &mean, &sd, 0), qspStsOk);
            EXPECT_TRUE(qsptest::sameBits(sd, 0.0f));
        }
    }
    EXPECT_EQ(found, 5);
}

// 16-bit sources: exact sums, the numerator exact, then the double factor
// as for the 16-bit sums.
TEST(StdDev, Int16Scaled)
{
    for (int len : {2, 3, 50, 4099}) {
        const std::vector<Qsp16s> v = redref::randomInts<Qsp16s>(len);
        long long s = 0;
        __int128 q = 0;
        for (Qsp16s x : v) s += x, q += (long long)x * x;
        const double sd = std::sqrt(double(__int128(len) * q - __int128(s) * s) / (double(len) * double(len - 1)));
        for (int sf : {-40, -3, 0, 1, 4, 15, 40}) {
            Qsp32s sd32, mean32;
            Qsp16s sd16, mean16;
            ASSERT_EQ(qspsStdDev_16s32s_Sfs(v.data(), len, &sd32, sf), qspStsOk);
            ASSERT_EQ(sd32, redref::scaleByFactor(sd, sf, INT32_MIN, INT32_MAX)) << len << " " << sf;
            ASSERT_EQ(qspsStdDev_16s_Sfs(v.data(), len, &sd16, sf), qspStsOk);
            ASSERT_EQ(sd16, redref::scaleByFactor(sd, sf, -32768, 32767));
            ASSERT_EQ(qspsMeanStdDev_16s32s_Sfs(v.data(), len, &mean32, &sd32, sf), qspStsOk);
            ASSERT_EQ(sd32, redref::scaleByFactor(sd, sf, INT32_MIN, INT32_MAX));
            ASSERT_EQ(mean32, redref::scaleByFactor(double(s) / len, sf, INT32_MIN, INT32_MAX));
            ASSERT_EQ(qspsMeanStdDev_16s_Sfs(v.data(), len, &mean16, &sd16, sf), qspStsOk);
            ASSERT_EQ(sd16, redref::scaleByFactor(sd, sf, -32768, 32767));
            ASSERT_EQ(mean16, redref::scaleByFactor(double(s) / len, sf, -32768, 32767));
        }
    }
    const Qsp16s v[] = {-32768, 32767};  // sd = 65535 / sqrt 2 = 46340.45...
    Qsp16s sd16;
    Qsp32s sd32;
    qspsStdDev_16s_Sfs(v, 2, &sd16, 0);
    EXPECT_EQ(sd16, 32767);
    qspsStdDev_16s32s_Sfs(v, 2, &sd32, 0);
    EXPECT_EQ(sd32, 46340);
}

// SPDX-License-Identifier: BSD-3-Clause
// Mean: the sum of the hint's scheme divided by the length in double.
#include "reduce_reference.h"

using redref::Term;

TEST(Mean, Statuses)
{
    qsptest::Guarded<Qsp32f> src(4), out(1);
    EXPECT_EQ(qspsMean_32f(nullptr, 4, out.data(), 0), qspStsNullPtr);
    EXPECT_EQ(qspsMean_32f(src.data(), 4, nullptr, 0), qspStsNullPtr);
    EXPECT_EQ(qspsMean_32f(nullptr, 0, out.data(), 0), qspStsNullPtr);
    EXPECT_EQ(qspsMean_32f(src.data(), 0, out.data(), 0), qspStsBadSize);
    EXPECT_EQ(qspsMean_32f_L(nullptr, 0, out.data(), 0), qspStsBadSize);
    EXPECT_EQ(qspsMean_32f_L(src.data(), 4, nullptr, 0), qspStsNullPtr);
    EXPECT_EQ(qspsMean_64f(nullptr, 2, reinterpret_cast<Qsp64f*>(out.data())), qspStsNullPtr);
    EXPECT_EQ(qspsMean_64f_L(reinterpret_cast<Qsp64f*>(src.data()), -1, nullptr), qspStsBadSize);
    EXPECT_EQ(qspsMean_64fc(reinterpret_cast<Qsp64fc*>(src.data()), 0, nullptr), qspStsNullPtr);
    EXPECT_EQ(qspsMean_64fc_L(reinterpret_cast<Qsp64fc*>(src.data()), 0, nullptr), qspStsBadSize);
    EXPECT_EQ(qspsMean_32fc(reinterpret_cast<Qsp32fc*>(src.data()), -2, reinterpret_cast<Qsp32fc*>(out.data()), 1),
              qspStsBadSize);
    EXPECT_EQ(qspsMean_32fc_L(nullptr, 2, reinterpret_cast<Qsp32fc*>(out.data()), 1), qspStsNullPtr);
    EXPECT_EQ(qspsMean_16s_Sfs(nullptr, 2, reinterpret_cast<Qsp16s*>(out.data()), 0), qspStsNullPtr);
    EXPECT_EQ(qspsMean_16s_Sfs(reinterpret_cast<Qsp16s*>(src.data()), 0, reinterpret_cast<Qsp16s*>(out.data()), 0),
              qspStsBadSize);
    EXPECT_EQ(qspsMean_16sc_Sfs(reinterpret_cast<Qsp16sc*>(src.data()), 2, nullptr, 0), qspStsNullPtr);
    EXPECT_EQ(qspsMean_32s_Sfs(reinterpret_cast<Qsp32s*>(src.data()), 0, nullptr, 0), qspStsNullPtr);
    EXPECT_EQ(qspsMean_32s_Sfs(reinterpret_cast<Qsp32s*>(src.data()), 0, reinterpret_cast<Qsp32s*>(out.data()), 0),
              qspStsBadSize);
    EXPECT_TRUE(out.untouched());
}

// The mean divides the sum already rounded to single precision.
TEST(Mean, FloatingMeansDivideTheSchemeSums)
{
    for (int len : redref::lengths()) {
        const std::vector<float> f = redref::uniform<float>(2 * len, -100, 300);
        for (int offset = 0; offset < 4; ++offset) {
            redref::Placed<float> in(f, offset);
            double fast, accurate, fastc[2], accuratec[2];
            redref::fastSum(in.data, len, 1, Term::Value, &fast);
            redref::wideSum(in.data, len, 1, Term::Value, &accurate);
            float got;
            ASSERT_EQ(qspsMean_32f(in.data, len, &got, 1), qspStsOk);
            ASSERT_TRUE(qsptest::sameBits(got, float(redref::viaFloat(fast) / len))) << len;
            ASSERT_EQ(qspsMean_32f_L(in.data, len, &got, 0), qspStsOk);
            ASSERT_TRUE(qsptest::sameBits(got, float(redref::viaFloat(accurate) / len))) << len;
            if (offset % 2) continue;
            redref::fastSum(in.data, 2 * len, 2, Term::Value, fastc);
            redref::wideSum(in.data, 2 * len, 2, Term::Value, accuratec);
            Qsp32fc gotc;
            ASSERT_EQ(qspsMean_32fc(reinterpret_cast<const Qsp32fc*>(in.data), len, &gotc, 1), qspStsOk);
            ASSERT_TRUE(qsptest::sameBits(gotc.re, float(redref::viaFloat(fastc[0]) / len))) << len;
            ASSERT_TRUE(qsptest::sameBits(gotc.im, float(redref::viaFloat(fastc[1]) / len)));
            ASSERT_EQ(qspsMean_32fc_L(reinterpret_cast<const Qsp32fc*>(in.data), len, &gotc, 2), qspStsOk);
            ASSERT_TRUE(qsptest::sameBits(gotc.re, float(redref::viaFloat(accuratec[0]) / len)));
            ASSERT_TRUE(qsptest::sameBits(gotc.im, float(redref::viaFloat(accuratec[1]) / len)));
        }
        const std::vector<double> d = redref::uniform<double>(2 * len, -100, 300);
        double want[2];
        redref::wideSum(d.data(), len, 1, Term::Value, want);
        double got;
        ASSERT_EQ(qspsMean_64f(d.data(), len, &got), qspStsOk);
        ASSERT_TRUE(qsptest::sameBits(got, want[0] / len));
        ASSERT_EQ(qspsMean_64f_L(d.data(), len, &got), qspStsOk);
        ASSERT_TRUE(qsptest::sameBits(got, want[0] / len));
        redref::wideSum(d.data(), 2 * len, 2, Term::Value, want);
        Qsp64fc gotc;
        ASSERT_EQ(qspsMean_64fc(reinterpret_cast<const Qsp64fc*>(d.data()), len, &gotc), qspStsOk);
        ASSERT_TRUE(qsptest::sameBits(gotc.re, want[0] / len) && qsptest::sameBits(gotc.im, want[1] / len));
        ASSERT_EQ(qspsMean_64fc_L(reinterpret_cast<const Qsp64fc*>(d.data()), len, &gotc), qspStsOk);
        ASSERT_TRUE(qsptest::sameBits(gotc.re, want[0] / len) && qsptest::sameBits(gotc.im, want[1] / len));
    }
}

// Integer means: the exact sum over len in double, times 2^-scaleFactor,
// clamped and rounded to nearest even.
TEST(Mean, IntegerMeansScaleTheDoubleQuotient)
{
    for (int len : {1, 2, 3, 10, 999}) {
        const std::vector<Qsp16s> v = redref::randomInts<Qsp16s>(2 * len);
        const std::vector<Qsp32s> w = redref::randomInts<Qsp32s>(len);
        long long s = 0, re = 0, im = 0, sw = 0;
        for (int i = 0; i < len; ++i) s += v[i], re += v[2 * i], im += v[2 * i + 1], sw += w[i];
        for (int sf : {-2000, -20, -1, 0, 1, 3, 15, 16, 40, 2000}) {
            Qsp16s m;
            ASSERT_EQ(qspsMean_16s_Sfs(v.data(), len, &m, sf), qspStsOk);
            ASSERT_EQ(m, redref::scaleByFactor(double(s) / len, sf, -32768, 32767)) << len << " " << sf;
            Qsp16sc mc;
            ASSERT_EQ(qspsMean_16sc_Sfs(reinterpret_cast<const Qsp16sc*>(v.data()), len, &mc, sf), qspStsOk);
            ASSERT_EQ(mc.re, redref::scaleByFactor(double(re) / len, sf, -32768, 32767));
            ASSERT_EQ(mc.im, redref::scaleByFactor(double(im) / len, sf, -32768, 32767));
            Qsp32s m32;
            ASSERT_EQ(qspsMean_32s_Sfs(w.data(), len, &m32, sf), qspStsOk);
            ASSERT_EQ(m32, redref::scaleByFactor(double(sw) / len, sf, INT32_MIN, INT32_MAX)) << len << " " << sf;
        }
    }
    const Qsp16s v[] = {1, 2, 2, 2};  // mean 1.75: 2; halved 0.875: 1; quartered 0.4375: 0
    Qsp16s m;
    qspsMean_16s_Sfs(v, 4, &m, 0);
    EXPECT_EQ(m, 2);
    qspsMean_16s_Sfs(v, 4, &m, 1);
    EXPECT_EQ(m, 1);
    qspsMean_16s_Sfs(v, 4, &m, 2);
    EXPECT_EQ(m, 0);
}

// SPDX-License-Identifier: BSD-3-Clause
// Sum: the sums of every type, by their accumulation schemes.
#include "reduce_reference.h"

using redref::Term;

namespace {

template <class T, class O, class Fn, class... Mode>
void checkStatuses(Fn fn, bool lengthFirst, Mode... mode)
{
    qsptest::Guarded<T> src(4);
    qsptest::Guarded<O> out(1);
    EXPECT_EQ(fn(nullptr, 4, out.data(), mode...), qspStsNullPtr);
    EXPECT_EQ(fn(src.data(), 4, nullptr, mode...), qspStsNullPtr);
    EXPECT_EQ(fn(nullptr, 0, out.data(), mode...), lengthFirst ? qspStsBadSize : qspStsNullPtr);
    EXPECT_EQ(fn(src.data(), 0, out.data(), mode...), qspStsBadSize);
    EXPECT_EQ(fn(src.data(), -1, out.data(), mode...), qspStsBadSize);
    EXPECT_TRUE(out.untouched());
}

}  // namespace

TEST(Sum, Statuses)
{
    checkStatuses<Qsp16s, Qsp16s>(qspsSum_16s_Sfs, false, 0);
    checkStatuses<Qsp16s, Qsp32s>(qspsSum_16s32s_Sfs, false, 0);
    checkStatuses<Qsp16sc, Qsp16sc>(qspsSum_16sc_Sfs, false, 0);
    checkStatuses<Qsp16sc, Qsp32sc>(qspsSum_16sc32sc_Sfs, false, 0);
    checkStatuses<Qsp32s, Qsp32s>(qspsSum_32s_Sfs, false, 0);
    checkStatuses<Qsp32f, Qsp32f>(qspsSum_32f, false, 0);
    checkStatuses<Qsp32fc, Qsp32fc>(qspsSum_32fc, false, 1);
    checkStatuses<Qsp64f, Qsp64f>(qspsSum_64f, false);
    checkStatuses<Qsp64fc, Qsp64fc>(qspsSum_64fc, false);
    checkStatuses<Qsp32f, Qsp32f>(qspsSum_32f_L, true, 2);
    checkStatuses<Qsp32fc, Qsp32fc>(qspsSum_32fc_L, true, 0);
    checkStatuses<Qsp64f, Qsp64f>(qspsSum_64f_L, true);
    checkStatuses<Qsp64fc, Qsp64fc>(qspsSum_64fc_L, true);
}

// Bit for bit the documented schemes, at every alignment.
TEST(Sum, Float32FollowsTheSchemeOfItsHint)
{
    for (int len : redref::lengths()) {
        const std::vector<float> v = redref::uniform<float>(len, -1000, 1000);
        for (int offset = 0; offset < 4; ++offset) {
            redref::Placed<float> in(v, offset);
            double fast, accurate;
            redref::fastSum(in.data, len, 1, Term::Value, &fast);
            redref::wideSum(in.data, len, 1, Term::Value, &accurate);
            float got;
            ASSERT_EQ(qspsSum_32f(in.data, len, &got, qspAlgHintFast), qspStsOk);
            ASSERT_TRUE(qsptest::sameBits(got, float(fast))) << "len " << len << " offset " << offset;
            for (int hint : {0, 2, -7, 3, 1000}) {
                ASSERT_EQ(qspsSum_32f(in.data, len, &got, hint), qspStsOk);
                ASSERT_TRUE(qsptest::sameBits(got, float(accurate))) << "len " << len << " hint " << hint;
            }
            ASSERT_EQ(qspsSum_32f_L(in.data, len, &got, qspAlgHintFast), qspStsOk);
            ASSERT_TRUE(qsptest::sameBits(got, float(fast)));
            ASSERT_EQ(qspsSum_32f_L(in.data, len, &got, 0), qspStsOk);
            ASSERT_TRUE(qsptest::sameBits(got, float(accurate)));
        }
    }
}

// Hints 0 and 2 agree bit for bit; hint 1 is another scheme. A 1 followed
// by many 2^-27 shows it: single-precision lanes lose the small terms added
// to the lane that holds the 1 (1 + 2^-27 rounds to 1), double lanes keep
// them all.
TEST(Sum, OnlyHintOneDiffers)
{
    std::vector<float> v(100000, 0x1p-27f);
    v[0] = 1.0f;
    float h0, h1, h2;
    ASSERT_EQ(qspsSum_32f(v.data(), int(v.size()), &h0, 0), qspStsOk);
    ASSERT_EQ(qspsSum_32f(v.data(), int(v.size()), &h1, 1), qspStsOk);
    ASSERT_EQ(qspsSum_32f(v.data(), int(v.size()), &h2, 2), qspStsOk);
    EXPECT_TRUE(qsptest::sameBits(h0, h2));
    // Exact: 1 + 99999 * 2^-27, rounded once to single precision.
    EXPECT_TRUE(qsptest::sameBits(h0, float(1.0 + 99999 * 0x1p-27)));
    // The lane of the 1 (lane 0 of the first block of 32768, which takes
    // every 16th element) drops its 2047 small terms: about 2^-16 below the
    // exact sum, far more than one single-precision ulp (2^-23) of it.
    EXPECT_FALSE(qsptest::sameBits(h0, h1));
    EXPECT_LT(h1, h0);
}

TEST(Sum, ComplexAndDoubleFollowTheirSchemes)
{
    for (int len : redref::lengths()) {
        const std::vector<float> f = redref::uniform<float>(2 * len, -50, 50);
        for (int offset = 0; offset < 4; offset += 2) {
            redref::Placed<float> in(f, offset);
            const auto* c = reinterpret_cast<const Qsp32fc*>(in.data);
            double fast[2], accurate[2];
            redref::fastSum(in.data, 2 * len, 2, Term::Value, fast);
            redref::wideSum(in.data, 2 * len, 2, Term::Value, accurate);
            Qsp32fc got;
            ASSERT_EQ(qspsSum_32fc(c, len, &got, qspAlgHintFast), qspStsOk);
            ASSERT_TRUE(qsptest::sameBits(got.re, float(fast[0])) && qsptest::sameBits(got.im, float(fast[1])))
                << "len " << len << " offset " << offset;
            ASSERT_EQ(qspsSum_32fc_L(c, len, &got, qspAlgHintAccurate), qspStsOk);
            ASSERT_TRUE(qsptest::sameBits(got.re, float(accurate[0])) && qsptest::sameBits(got.im, float(accurate[1])));
        }
        const std::vector<double> d = redref::uniform<double>(2 * len, -50, 50);
        for (int offset = 0; offset < 2; ++offset) {
            redref::Placed<double> in(d, offset);
            double want[2];
            redref::wideSum(in.data, len, 1, Term::Value, want);
            double got;
            ASSERT_EQ(qspsSum_64f(in.data, len, &got), qspStsOk);
            ASSERT_TRUE(qsptest::sameBits(got, want[0]));
            ASSERT_EQ(qspsSum_64f_L(in.data, len, &got), qspStsOk);
            ASSERT_TRUE(qsptest::sameBits(got, want[0]));
            redref::wideSum(in.data, 2 * len, 2, Term::Value, want);
            Qsp64fc gotc;
            ASSERT_EQ(qspsSum_64fc(reinterpret_cast<const Qsp64fc*>(in.data), len, &gotc), qspStsOk);
            ASSERT_TRUE(qsptest::sameBits(gotc.re, want[0]) && qsptest::sameBits(gotc.im, want[1]));
            ASSERT_EQ(qspsSum_64fc_L(reinterpret_cast<const Qsp64fc*>(in.data), len, &gotc), qspStsOk);
            ASSERT_TRUE(qsptest::sameBits(gotc.re, want[0]) && qsptest::sameBits(gotc.im, want[1]));
        }
    }
}

// 16-bit sums: exact, times 2^-scaleFactor (a double whose exponent is
// clamped), clamped to 32 bits and rounded to nearest even.
TEST(Sum, Int16ScaledByTheDoubleFactor)
{
    for (int len : {1, 2, 7, 100, 4099}) {
        const std::vector<Qsp16s> v = redref::randomInts<Qsp16s>(2 * len);
        long long s = 0, re = 0, im = 0;
        for (int i = 0; i < len; ++i) s += v[i];
        for (int i = 0; i < len; ++i) re += v[2 * i], im += v[2 * i + 1];
        for (int sf : {-2000, -1100, -40, -20, -3, -1, 0, 1, 2, 5, 13, 20, 31, 40, 1074, 1075, 3000}) {
            Qsp32s got32;
            ASSERT_EQ(qspsSum_16s32s_Sfs(v.data(), len, &got32, sf), qspStsOk);
            const long long want = redref::scaleByFactor(double(s), sf, INT32_MIN, INT32_MAX);
            ASSERT_EQ(got32, want) << "len " << len << " sf " << sf;
            Qsp16s got16;
            ASSERT_EQ(qspsSum_16s_Sfs(v.data(), len, &got16, sf), qspStsOk);
            ASSERT_EQ(got16, want > 32767 ? 32767 : (want < -32768 ? -32768 : want));
            Qsp32sc gotc;
            ASSERT_EQ(qspsSum_16sc32sc_Sfs(reinterpret_cast<const Qsp16sc*>(v.data()), len, &gotc, sf), qspStsOk);
            ASSERT_EQ(gotc.re, redref::scaleByFactor(double(re), sf, INT32_MIN, INT32_MAX));
            ASSERT_EQ(gotc.im, redref::scaleByFactor(double(im), sf, INT32_MIN, INT32_MAX));
            Qsp16sc got16c;
            ASSERT_EQ(qspsSum_16sc_Sfs(reinterpret_cast<const Qsp16sc*>(v.data()), len, &got16c, sf), qspStsOk);
            ASSERT_EQ(got16c.re, std::clamp<long long>(gotc.re, -32768, 32767));
            ASSERT_EQ(got16c.im, std::clamp<long long>(gotc.im, -32768, 32767));
        }
    }
    // Ties go to even: 3 / 2 -> 2, 5 / 2 -> 2, -3 / 2 -> -2.
    const Qsp16s three[] = {1, 2}, five[] = {2, 3}, minusThree[] = {-1, -2};
    Qsp32s r;
    qspsSum_16s32s_Sfs(three, 2, &r, 1);
    EXPECT_EQ(r, 2);
    qspsSum_16s32s_Sfs(five, 2, &r, 1);
    EXPECT_EQ(r, 2);
    qspsSum_16s32s_Sfs(minusThree, 2, &r, 1);
    EXPECT_EQ(r, -2);
    // A huge negative factor is infinite before saturation; a zero sum stays 0.
    const Qsp16s zero[] = {5, -5};
    qspsSum_16s32s_Sfs(zero, 2, &r, -3000);
    EXPECT_EQ(r, 0);
    qspsSum_16s32s_Sfs(three, 2, &r, -3000);
    EXPECT_EQ(r, INT32_MAX);
    qspsSum_16s32s_Sfs(minusThree, 2, &r, -3000);
    EXPECT_EQ(r, INT32_MIN);
}

TEST(Sum, Int16SaturatesTheThirtyTwoBitResult)
{
    std::vector<Qsp16s> v(40000, 32767);
    Qsp16s s;
    ASSERT_EQ(qspsSum_16s_Sfs(v.data(), 40000, &s, 0), qspStsOk);
    EXPECT_EQ(s, 32767);
    std::vector<Qsp16s> w(40000, -32768);
    ASSERT_EQ(qspsSum_16s_Sfs(w.data(), 40000, &s, 0), qspStsOk);
    EXPECT_EQ(s, -32768);
    ASSERT_EQ(qspsSum_16s_Sfs(w.data(), 40000, &s, 16), qspStsOk);
    EXPECT_EQ(s, -20000);
}

// 32-bit integers: the 64-bit sum by the rule of every Sfs function.
TEST(Sum, Int32ByTheScaleFactorRule)
{
    for (int len : {1, 3, 64, 1001}) {
        const std::vector<Qsp32s> v = redref::randomInts<Qsp32s>(len);
        long long s = 0;
        for (Qsp32s x : v) s += x;
        for (int sf = -70; sf <= 70; ++sf) {
            Qsp32s got = 12345;
            ASSERT_EQ(qspsSum_32s_Sfs(v.data(), len, &got, sf), qspStsOk);
            ASSERT_EQ(got, redref::roundScaleExact(s, sf, INT32_MIN, INT32_MAX)) << "len " << len << " sf " << sf;
        }
    }
    const Qsp32s big[] = {INT32_MAX, INT32_MAX, INT32_MAX};
    Qsp32s got;
    ASSERT_EQ(qspsSum_32s_Sfs(big, 3, &got, 0), qspStsOk);
    EXPECT_EQ(got, INT32_MAX);
    ASSERT_EQ(qspsSum_32s_Sfs(big, 3, &got, 2), qspStsOk);
    EXPECT_EQ(got, 1610612735);  // 3 (2^31 - 1) / 4 = 1610612735.25
    const Qsp32s one[] = {1};
    ASSERT_EQ(qspsSum_32s_Sfs(one, 1, &got, -30), qspStsOk);
    EXPECT_EQ(got, 1 << 30);
    ASSERT_EQ(qspsSum_32s_Sfs(one, 1, &got, -31), qspStsOk);
    EXPECT_EQ(got, INT32_MAX);
}

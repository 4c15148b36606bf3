// SPDX-License-Identifier: BSD-3-Clause
// Add: sums of two vectors, floating (IEEE, correctly rounded), saturating
// integer, scaled integer (exact rule at every scale factor from -40 to
// 40), complex, widening, and the 64-bit length forms.
#include "arith_families.h"

using namespace arithfam;
using arithchecks::expectChecks;

namespace {
auto exactSum = [](auto a, auto b) { return i128(a) + i128(b); };
}

TEST(Add, ArgumentChecks)
{
    expectChecks(qspsAdd_16u);
    expectChecks(qspsAdd_16u_I);
    expectChecks(qspsAdd_32u);
    expectChecks(qspsAdd_32f);
    expectChecks(qspsAdd_32f_I);
    expectChecks(qspsAdd_64f);
    expectChecks(qspsAdd_64f_I);
    expectChecks(qspsAdd_32fc);
    expectChecks(qspsAdd_32fc_I);
    expectChecks(qspsAdd_64fc);
    expectChecks(qspsAdd_64fc_I);
    expectChecks(qspsAdd_8u16u);
    expectChecks(qspsAdd_16s32f);
    expectChecks(qspsAdd_16s32s);
    expectChecks(qspsAdd_16s32s_I);
    expectChecks(qspsAdd_32f64f_I);
    for (int sf : {0, 1, 5, 40, -5, -40}) {
        expectChecks(qspsAdd_8u_Sfs, sf);
        expectChecks(qspsAdd_8u_ISfs, sf);
        expectChecks(qspsAdd_16s_Sfs, sf);
        expectChecks(qspsAdd_16s_ISfs, sf);
        expectChecks(qspsAdd_16u_Sfs, sf);
        expectChecks(qspsAdd_16u_ISfs, sf);
        expectChecks(qspsAdd_32s_Sfs, sf);
        expectChecks(qspsAdd_32s_ISfs, sf);
        expectChecks(qspsAdd_16sc_Sfs, sf);
        expectChecks(qspsAdd_16sc_ISfs, sf);
        expectChecks(qspsAdd_32sc_Sfs, sf);
        expectChecks(qspsAdd_32sc_ISfs, sf);
    }
    expectChecks(qspsAdd_32f_L);
    expectChecks(qspsAdd_32f_I_L);
    expectChecks(qspsAdd_64f_L);
    expectChecks(qspsAdd_64f_I_L);
    expectChecks(qspsAdd_32fc_L);
    expectChecks(qspsAdd_32fc_I_L);
    expectChecks(qspsAdd_64fc_L);
    expectChecks(qspsAdd_64fc_I_L);
}

TEST(Add, ScaledRuleExamples)
{
    auto one16s = [](Qsp16s a, Qsp16s b, int sf) {
        Qsp16s d = 99;
        EXPECT_EQ(qspsAdd_16s_Sfs(&a, &b, &d, 1, sf), qspStsOk);
        return int(d);
    };
    EXPECT_EQ(one16s(1, 2, 1), 2);
    EXPECT_EQ(one16s(1, 4, 1), 2);
    EXPECT_EQ(one16s(-1, -2, 1), -2);
    EXPECT_EQ(one16s(32767, 32767, 16), 1);
    EXPECT_EQ(one16s(32767, 32767, 17), 0);
    EXPECT_EQ(one16s(-32768, -32768, 16), -1);
    EXPECT_EQ(one16s(-32768, -32768, 17), 0);
    EXPECT_EQ(one16s(1, 0, -15), 32767);
    EXPECT_EQ(one16s(0, 0, -100), 0);
    EXPECT_EQ(one16s(-1, 0, -16), -32768);
    EXPECT_EQ(one16s(-1, 0, -15), -32768);
    EXPECT_EQ(one16s(1, 0, -14), 16384);
    auto one8u = [](Qsp8u a, Qsp8u b, int sf) {
        Qsp8u d = 99;
        EXPECT_EQ(qspsAdd_8u_Sfs(&a, &b, &d, 1, sf), qspStsOk);
        return int(d);
    };
    EXPECT_EQ(one8u(255, 255, 9), 1);
    EXPECT_EQ(one8u(255, 255, 10), 0);
    EXPECT_EQ(one8u(1, 0, -7), 128);
    EXPECT_EQ(one8u(1, 0, -8), 255);
    auto one32s = [](Qsp32s a, Qsp32s b, int sf) {
        Qsp32s d = 99;
        EXPECT_EQ(qspsAdd_32s_Sfs(&a, &b, &d, 1, sf), qspStsOk);
        return d;
    };
    EXPECT_EQ(one32s(-2147483647 - 1, -2147483647 - 1, 32), -1);
    EXPECT_EQ(one32s(-2147483647 - 1, -2147483647 - 1, 33), 0);
    EXPECT_EQ(one32s(1, 0, -30), 1 << 30);
    EXPECT_EQ(one32s(1, 0, -31), 2147483647);
    EXPECT_EQ(one32s(-1, 0, -31), -2147483647 - 1);
    EXPECT_EQ(one32s(0, 0, -31), 0);
    EXPECT_EQ(one32s(-1, 0, int(0x80000000)), -2147483647 - 1);
}

TEST(Add, ScaleFactorsAboveTheZeroThresholdWriteZerosAfterTheChecks)
{
    qsptest::Guarded<Qsp16s> a(40), b(40), d(40);
    for (int i = 0; i < 40; ++i) a[i] = -32768, b[i] = -32768;
    EXPECT_EQ(qspsAdd_16s_Sfs(a.data(), b.data(), d.data(), 40, 17), qspStsOk);
    for (int i = 0; i < 40; ++i) EXPECT_EQ(d[i], 0);
    EXPECT_TRUE(d.guardsIntact());
    EXPECT_EQ(qspsAdd_16s_Sfs(a.data(), b.data(), d.data(), 40, 16), qspStsOk);
    for (int i = 0; i < 40; ++i) EXPECT_EQ(d[i], -1);
    // The zero fill keeps the check order: a null source is still reported.
    EXPECT_EQ(qspsAdd_16s_Sfs(nullptr, b.data(), d.data(), 40, 17), qspStsNullPtr);
    qsptest::Guarded<Qsp32s> x(9), y(9), z(9);
    for (int i = 0; i < 9; ++i) x[i] = 2147483647, y[i] = 2147483647;
    EXPECT_EQ(qspsAdd_32s_Sfs(x.data(), y.data(), z.data(), 9, 33), qspStsOk);
    for (int i = 0; i < 9; ++i) EXPECT_EQ(z[i], 0);
    EXPECT_TRUE(z.guardsIntact());
}

TEST(Add, ScaledIntegersAreExactAtEveryScaleFactor)
{
    sfs2(qspsAdd_8u_Sfs, exactSum, qspsAdd_8u_ISfs);
    sfs2(qspsAdd_16s_Sfs, exactSum, qspsAdd_16s_ISfs);
    sfs2(qspsAdd_16u_Sfs, exactSum, qspsAdd_16u_ISfs);
    sfs2(qspsAdd_32s_Sfs, exactSum, qspsAdd_32s_ISfs);
}

TEST(Add, ComplexScaledSumsArePartWise)
{
    for (int sf : {-17, -3, 0, 1, 2, 9, 16, 17, 18, 33}) {
        auto c16 = [&](const Qsp16sc* a, const Qsp16sc* b, Qsp16sc* d, int len) {
            return qspsAdd_16sc_Sfs(a, b, d, len, sf);
        };
        auto c16I = [&](const Qsp16sc* a, Qsp16sc* sd, int len) { return qspsAdd_16sc_ISfs(a, sd, len, sf); };
        arithsweep::binary<Qsp16sc, Qsp16sc, Qsp16sc>(
            c16,
            [&](Qsp16sc a, Qsp16sc b, Qsp16sc got) {
                return equals(got, Qsp16sc{arithref::scaled<Qsp16s>(exactSum(a.re, b.re), sf),
                                           arithref::scaled<Qsp16s>(exactSum(a.im, b.im), sf)});
            },
            c16I, qspStsOk, arithsweep::shortLengths());
        auto c32 = [&](const Qsp32sc* a, const Qsp32sc* b, Qsp32sc* d, int len) {
            return qspsAdd_32sc_Sfs(a, b, d, len, sf);
        };
        auto c32I = [&](const Qsp32sc* a, Qsp32sc* sd, int len) { return qspsAdd_32sc_ISfs(a, sd, len, sf); };
        arithsweep::binary<Qsp32sc, Qsp32sc, Qsp32sc>(
            c32,
            [&](Qsp32sc a, Qsp32sc b, Qsp32sc got) {
                return equals(got, Qsp32sc{arithref::scaled<Qsp32s>(exactSum(a.re, b.re), sf),
                                           arithref::scaled<Qsp32s>(exactSum(a.im, b.im), sf)});
            },
            c32I, qspStsOk, arithsweep::shortLengths());
    }
}

TEST(Add, SaturatingAndWideningIntegers)
{
    arithsweep::binary<Qsp16u, Qsp16u, Qsp16u>(
        qspsAdd_16u, [](Qsp16u a, Qsp16u b, Qsp16u got) { return equals(got, arithref::scaled<Qsp16u>(exactSum(a, b), 0)); },
        qspsAdd_16u_I);
    arithsweep::binary<Qsp32u, Qsp32u, Qsp32u>(
        qspsAdd_32u, [](Qsp32u a, Qsp32u b, Qsp32u got) { return equals(got, arithref::scaled<Qsp32u>(exactSum(a, b), 0)); });
    arithsweep::binary<Qsp8u, Qsp8u, Qsp16u>(
        qspsAdd_8u16u, [](Qsp8u a, Qsp8u b, Qsp16u got) { return equals(got, Qsp16u(a + b)); });
    arithsweep::binary<Qsp16s, Qsp16s, Qsp32s>(
        qspsAdd_16s32s, [](Qsp16s a, Qsp16s b, Qsp32s got) { return equals(got, Qsp32s(a + b)); });
    arithsweep::binary<Qsp16s, Qsp16s, Qsp32f>(
        qspsAdd_16s32f, [](Qsp16s a, Qsp16s b, Qsp32f got) { return equals(got, Qsp32f(a + b)); });
    arithsweep::binary<Qsp16s, Qsp32s, Qsp32s>(
        arithsweep::asOutOfPlace(qspsAdd_16s32s_I),
        [](Qsp16s a, Qsp32s b, Qsp32s got) { return equals(got, arithref::scaled<Qsp32s>(exactSum(a, b), 0)); });
    arithsweep::binary<Qsp32f, Qsp64f, Qsp64f>(
        arithsweep::asOutOfPlace(qspsAdd_32f64f_I), [](Qsp32f a, Qsp64f b, Qsp64f got) {
            return arithsweep::withinUlps(got, LD(a) + LD(b), kHalfUlp);
        });
}

TEST(Add, FloatingSumsAreCorrectlyRounded)
{
    auto sum = [](auto a, auto b) { return LD(a) + LD(b); };
    auto csum = [](auto a, auto b) { return LDC(LD(a.re) + LD(b.re), LD(a.im) + LD(b.im)); };
    float2<Qsp32f>(qspsAdd_32f, sum, 0.5, qspsAdd_32f_I);
    float2<Qsp64f>(qspsAdd_64f, sum, kHalfUlp, qspsAdd_64f_I);
    float2<Qsp32fc>(qspsAdd_32fc, csum, 0.5, qspsAdd_32fc_I);
    float2<Qsp64fc>(qspsAdd_64fc, csum, kHalfUlp, qspsAdd_64fc_I);
}

TEST(Add, LongLengthFormsEqualTheOrdinaryOnes)
{
    auto sum = [](auto a, auto b) { return LD(a) + LD(b); };
    auto csum = [](auto a, auto b) { return LDC(LD(a.re) + LD(b.re), LD(a.im) + LD(b.im)); };
    float2<Qsp32f>(viaL(qspsAdd_32f_L), sum, 0.5, viaL(qspsAdd_32f_I_L));
    float2<Qsp64f>(viaL(qspsAdd_64f_L), sum, kHalfUlp, viaL(qspsAdd_64f_I_L));
    float2<Qsp32fc>(viaL(qspsAdd_32fc_L), csum, 0.5, viaL(qspsAdd_32fc_I_L));
    float2<Qsp64fc>(viaL(qspsAdd_64fc_L), csum, kHalfUlp, viaL(qspsAdd_64fc_I_L));
}

TEST(Add, SpecialFloatingValuesFollowIeee)
{
    const float inf = INFINITY, nan = NAN, den = std::ldexp(1.0f, -140);
    const Qsp32f a[] = {inf, inf, 0.0f, -0.0f, -0.0f, nan, den, -den, 3.0f};
    const Qsp32f b[] = {-inf, 1.0f, -0.0f, -0.0f, 0.0f, 1.0f, den, den, -3.0f};
    Qsp32f d[9];
    ASSERT_EQ(qspsAdd_32f(a, b, d, 9), qspStsOk);
    EXPECT_TRUE(std::isnan(d[0]));
    EXPECT_EQ(d[1], inf);
    EXPECT_TRUE(qsptest::sameBits(d[2], 0.0f));
    EXPECT_TRUE(qsptest::sameBits(d[3], -0.0f));
    EXPECT_TRUE(qsptest::sameBits(d[4], 0.0f));
    EXPECT_TRUE(std::isnan(d[5]));
    EXPECT_EQ(d[6], std::ldexp(1.0f, -139));  // denormals are kept, not flushed
    EXPECT_TRUE(qsptest::sameBits(d[7], 0.0f));
    EXPECT_TRUE(qsptest::sameBits(d[8], 0.0f));
}

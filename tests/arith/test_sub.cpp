// SPDX-License-Identifier: BSD-3-Clause
// Sub: the second source minus the first, in every form; the in-place
// forms subtract the source from the source-and-destination.
#include "arith_families.h"

using namespace arithfam;
using arithchecks::expectChecks;

namespace {
auto exactDiff = [](auto a, auto b) { return i128(b) - i128(a); };
auto diff = [](auto a, auto b) { return LD(b) - LD(a); };
auto cdiff = [](auto a, auto b) { return LDC(LD(b.re) - LD(a.re), LD(b.im) - LD(a.im)); };
}  // namespace

TEST(Sub, ArgumentChecks)
{
    expectChecks(qspsSub_16u);
    expectChecks(qspsSub_16u_I);
    expectChecks(qspsSub_32f);
    expectChecks(qspsSub_32f_I);
    expectChecks(qspsSub_64f);
    expectChecks(qspsSub_64f_I);
    expectChecks(qspsSub_32fc);
    expectChecks(qspsSub_32fc_I);
    expectChecks(qspsSub_64fc);
    expectChecks(qspsSub_64fc_I);
    for (int sf : {0, 1, 5, 40, -5, -40}) {
        expectChecks(qspsSub_8u_Sfs, sf);
        expectChecks(qspsSub_8u_ISfs, sf);
        expectChecks(qspsSub_16s_Sfs, sf);
        expectChecks(qspsSub_16s_ISfs, sf);
        expectChecks(qspsSub_16u_Sfs, sf);
        expectChecks(qspsSub_16u_ISfs, sf);
        expectChecks(qspsSub_32s_Sfs, sf);
        expectChecks(qspsSub_32s_ISfs, sf);
        expectChecks(qspsSub_16sc_Sfs, sf);
        expectChecks(qspsSub_16sc_ISfs, sf);
        expectChecks(qspsSub_32sc_Sfs, sf);
        expectChecks(qspsSub_32sc_ISfs, sf);
    }
    expectChecks(qspsSub_32f_L);
    expectChecks(qspsSub_32f_I_L);
    expectChecks(qspsSub_64f_L);
    expectChecks(qspsSub_64f_I_L);
    expectChecks(qspsSub_32fc_L);
    expectChecks(qspsSub_32fc_I_L);
    expectChecks(qspsSub_64fc_L);
    expectChecks(qspsSub_64fc_I_L);
}

TEST(Sub, OperandOrderIsSecondMinusFirst)
{
    const Qsp32f a[] = {1.0f}, b[] = {10.0f};
    Qsp32f d[1];
    ASSERT_EQ(qspsSub_32f(a, b, d, 1), qspStsOk);
    EXPECT_EQ(d[0], 9.0f);
    Qsp32f sd[] = {10.0f};
    ASSERT_EQ(qspsSub_32f_I(a, sd, 1), qspStsOk);
    EXPECT_EQ(sd[0], 9.0f);
    const Qsp16s x[] = {-32768}, y[] = {0};
    Qsp16s z[1];
    ASSERT_EQ(qspsSub_16s_Sfs(x, y, z, 1, 0), qspStsOk);
    EXPECT_EQ(z[0], 32767);  // 0 - (-32768) saturates
    ASSERT_EQ(qspsSub_16s_Sfs(x, y, z, 1, 1), qspStsOk);
    EXPECT_EQ(z[0], 16384);
    const Qsp8u p[] = {5}, q[] = {3};
    Qsp8u r[1];
    ASSERT_EQ(qspsSub_8u_Sfs(p, q, r, 1, 0), qspStsOk);
    EXPECT_EQ(r[0], 0);  // 3 - 5 saturates to 0
}

TEST(Sub, ScaledIntegersAreExactAtEveryScaleFactor)
{
    sfs2(qspsSub_8u_Sfs, exactDiff, qspsSub_8u_ISfs);
    sfs2(qspsSub_16s_Sfs, exactDiff, qspsSub_16s_ISfs);
    sfs2(qspsSub_16u_Sfs, exactDiff, qspsSub_16u_ISfs);
    sfs2(qspsSub_32s_Sfs, exactDiff, qspsSub_32s_ISfs);
}

TEST(Sub, ComplexScaledDifferencesArePartWise)
{
    for (int sf : {-17, -3, 0, 1, 2, 9, 16, 17, 18, 33}) {
        auto c16 = [&](const Qsp16sc* a, const Qsp16sc* b, Qsp16sc* d, int len) {
            return qspsSub_16sc_Sfs(a, b, d, len, sf);
        };
        auto c16I = [&](const Qsp16sc* a, Qsp16sc* sd, int len) { return qspsSub_16sc_ISfs(a, sd, len, sf); };
        arithsweep::binary<Qsp16sc, Qsp16sc, Qsp16sc>(
            c16,
            [&](Qsp16sc a, Qsp16sc b, Qsp16sc got) {
                return equals(got, Qsp16sc{arithref::scaled<Qsp16s>(exactDiff(a.re, b.re), sf),
                                           arithref::scaled<Qsp16s>(exactDiff(a.im, b.im), sf)});
            },
            c16I, qspStsOk, arithsweep::shortLengths());
        auto c32 = [&](const Qsp32sc* a, const Qsp32sc* b, Qsp32sc* d, int len) {
            return qspsSub_32sc_Sfs(a, b, d, len, sf);
        };
        auto c32I = [&](const Qsp32sc* a, Qsp32sc* sd, int len) { return qspsSub_32sc_ISfs(a, sd, len, sf); };
        arithsweep::binary<Qsp32sc, Qsp32sc, Qsp32sc>(
            c32,
            [&](Qsp32sc a, Qsp32sc b, Qsp32sc got) {
                return equals(got, Qsp32sc{arithref::scaled<Qsp32s>(exactDiff(a.re, b.re), sf),
                                           arithref::scaled<Qsp32s>(exactDiff(a.im, b.im), sf)});
            },
            c32I, qspStsOk, arithsweep::shortLengths());
    }
}

TEST(Sub, SaturatingUnsigned)
{
    arithsweep::binary<Qsp16u, Qsp16u, Qsp16u>(
        qspsSub_16u,
        [](Qsp16u a, Qsp16u b, Qsp16u got) { return equals(got, arithref::scaled<Qsp16u>(exactDiff(a, b), 0)); },
        qspsSub_16u_I);
}

TEST(Sub, FloatingDifferencesAreCorrectlyRounded)
{
    float2<Qsp32f>(qspsSub_32f, diff, 0.5, qspsSub_32f_I);
    float2<Qsp64f>(qspsSub_64f, diff, kHalfUlp, qspsSub_64f_I);
    float2<Qsp32fc>(qspsSub_32fc, cdiff, 0.5, qspsSub_32fc_I);
    float2<Qsp64fc>(qspsSub_64fc, cdiff, kHalfUlp, qspsSub_64fc_I);
}

TEST(Sub, LongLengthFormsEqualTheOrdinaryOnes)
{
    float2<Qsp32f>(viaL(qspsSub_32f_L), diff, 0.5, viaL(qspsSub_32f_I_L));
    float2<Qsp64f>(viaL(qspsSub_64f_L), diff, kHalfUlp, viaL(qspsSub_64f_I_L));
    float2<Qsp32fc>(viaL(qspsSub_32fc_L), cdiff, 0.5, viaL(qspsSub_32fc_I_L));
    float2<Qsp64fc>(viaL(qspsSub_64fc_L), cdiff, kHalfUlp, viaL(qspsSub_64fc_I_L));
}

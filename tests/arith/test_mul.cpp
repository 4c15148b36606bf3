// SPDX-License-Identifier: BSD-3-Clause
// Mul: products of two vectors in every form.
#include "arith_families.h"

using namespace arithfam;
using arithchecks::expectChecks;

namespace {
auto exactProd = [](auto a, auto b) { return i128(a) * i128(b); };
auto prod = [](auto a, auto b) { return LD(a) * LD(b); };

// A complex product part computed as a difference (sum) of two rounded
// products in precision F: its error is at most 2^(1-digits) * (|p1| + |p2|),
// one rounding of each product and one of the sum; for a cancelling sum this
// is far below one ULP of the products but can be many ULPs of the result.
template <class F, class C>
testing::AssertionResult complexProduct(C a, C b, C got)
{
    const LD ar = a.re, ai = a.im, br = b.re, bi = b.im;
    const LD u = std::ldexp(1.0L, 1 - std::numeric_limits<F>::digits);
    const LD tiny = 2 * std::numeric_limits<F>::denorm_min();
    const LD re = ar * br - ai * bi, im = ai * br + ar * bi;
    const LD boundRe = u * (std::fabs(ar * br) + std::fabs(ai * bi)) + tiny;
    const LD boundIm = u * (std::fabs(ai * br) + std::fabs(ar * bi)) + tiny;
    if (std::fabs(LD(got.re) - re) <= boundRe && std::fabs(LD(got.im) - im) <= boundIm)
        return testing::AssertionSuccess();
    return testing::AssertionFailure() << "exact (" << double(re) << ", " << double(im) << ")";
}

Qsp16sc scaledProduct16sc(Qsp16sc a, Qsp16sc b, int sf)
{
    const i128 re = i128(a.re) * b.re - i128(a.im) * b.im, im = i128(a.re) * b.im + i128(a.im) * b.re;
    return {arithref::scaled<Qsp16s>(re, sf), arithref::scaled<Qsp16s>(im, sf)};
}
Qsp32sc scaledProduct32sc(Qsp32sc a, Qsp32sc b, int sf)
{
    const i128 re = i128(a.re) * b.re - i128(a.im) * b.im, im = i128(a.re) * b.im + i128(a.im) * b.re;
    return {arithref::scaled<Qsp32s>(re, sf), arithref::scaled<Qsp32s>(im, sf)};
}
}  // namespace

TEST(Mul, ArgumentChecks)
{
    expectChecks(qspsMul_32f);
    expectChecks(qspsMul_32f_I);
    expectChecks(qspsMul_64f);
    expectChecks(qspsMul_64f_I);
    expectChecks(qspsMul_32fc);
    expectChecks(qspsMul_32fc_I);
    expectChecks(qspsMul_64fc);
    expectChecks(qspsMul_64fc_I);
    expectChecks(qspsMul_32f32fc);
    expectChecks(qspsMul_32f32fc_I);
    expectChecks(qspsMul_16s32f);
    expectChecks(qspsMul_8u16u);
    for (int sf : {0, 1, 5, 40, -5, -40}) {
        expectChecks(qspsMul_8u_Sfs, sf);
        expectChecks(qspsMul_8u_ISfs, sf);
        expectChecks(qspsMul_16s_Sfs, sf);
        expectChecks(qspsMul_16s_ISfs, sf);
        expectChecks(qspsMul_16u_Sfs, sf);
        expectChecks(qspsMul_16u_ISfs, sf);
        expectChecks(qspsMul_32s_Sfs, sf);
        expectChecks(qspsMul_32s_ISfs, sf);
        expectChecks(qspsMul_16sc_Sfs, sf);
        expectChecks(qspsMul_16sc_ISfs, sf);
        expectChecks(qspsMul_32sc_Sfs, sf);
        expectChecks(qspsMul_32sc_ISfs, sf);
        expectChecks(qspsMul_16u16s_Sfs, sf);
        expectChecks(qspsMul_16s32s_Sfs, sf);
        expectChecks(qspsMul_32s32sc_Sfs, sf);
        expectChecks(qspsMul_32s32sc_ISfs, sf);
    }
    expectChecks(qspsMul_32f_L);
    expectChecks(qspsMul_32f_I_L);
    expectChecks(qspsMul_64f_L);
    expectChecks(qspsMul_64f_I_L);
    expectChecks(qspsMul_32fc_L);
    expectChecks(qspsMul_32fc_I_L);
    expectChecks(qspsMul_64fc_L);
    expectChecks(qspsMul_64fc_I_L);
}

TEST(Mul, ScaledRuleExamples)
{
    const Qsp16s a[] = {-32768}, b[] = {-32768};
    Qsp16s d[1];
    ASSERT_EQ(qspsMul_16s_Sfs(a, b, d, 1, 30), qspStsOk);
    EXPECT_EQ(d[0], 1);
    ASSERT_EQ(qspsMul_16s_Sfs(a, b, d, 1, 31), qspStsOk);
    EXPECT_EQ(d[0], 0);
    ASSERT_EQ(qspsMul_16s_Sfs(a, b, d, 1, 15), qspStsOk);
    EXPECT_EQ(d[0], 32767);
    // (-32768 - 32768i)^2 = 2^31 i: the one imaginary part beyond 32 bits.
    const Qsp16sc c[] = {{-32768, -32768}};
    Qsp16sc e[1];
    const int sfs[] = {0, 1, 16, 17, 30, 31, 32, -1, -16};
    const Qsp16s im[] = {32767, 32767, 32767, 16384, 2, 1, 0, 32767, 32767};
    for (int k = 0; k < 9; ++k) {
        ASSERT_EQ(qspsMul_16sc_Sfs(c, c, e, 1, sfs[k]), qspStsOk);
        EXPECT_EQ(e[0].re, 0) << sfs[k];
        EXPECT_EQ(e[0].im, im[k]) << sfs[k];
    }
}

TEST(Mul, ScaledIntegersAreExactAtEveryScaleFactor)
{
    sfs2(qspsMul_8u_Sfs, exactProd, qspsMul_8u_ISfs);
    sfs2(qspsMul_16s_Sfs, exactProd, qspsMul_16s_ISfs);
    sfs2(qspsMul_16u_Sfs, exactProd, qspsMul_16u_ISfs);
    sfs2(qspsMul_32s_Sfs, exactProd, qspsMul_32s_ISfs);
    sfs2(qspsMul_16u16s_Sfs, exactProd);
    sfs2(qspsMul_16s32s_Sfs, exactProd);
}

TEST(Mul, ComplexScaledProductsAreExact)
{
    for (int sf = -40; sf <= 40; ++sf) {
        const std::vector<int> lengths = sf == 3 ? arithref::sweepLengths() : arithsweep::shortLengths();
        arithsweep::binary<Qsp16sc, Qsp16sc, Qsp16sc>(
            [&](auto a, auto b, auto d, int len) { return qspsMul_16sc_Sfs(a, b, d, len, sf); },
            [&](Qsp16sc a, Qsp16sc b, Qsp16sc got) { return equals(got, scaledProduct16sc(a, b, sf)); },
            [&](auto a, auto sd, int len) { return qspsMul_16sc_ISfs(a, sd, len, sf); }, qspStsOk, lengths);
        arithsweep::binary<Qsp32sc, Qsp32sc, Qsp32sc>(
            [&](auto a, auto b, auto d, int len) { return qspsMul_32sc_Sfs(a, b, d, len, sf); },
            [&](Qsp32sc a, Qsp32sc b, Qsp32sc got) { return equals(got, scaledProduct32sc(a, b, sf)); },
            [&](auto a, auto sd, int len) { return qspsMul_32sc_ISfs(a, sd, len, sf); }, qspStsOk, lengths);
        arithsweep::binary<Qsp32s, Qsp32sc, Qsp32sc>(
            [&](auto a, auto b, auto d, int len) { return qspsMul_32s32sc_Sfs(a, b, d, len, sf); },
            [&](Qsp32s a, Qsp32sc b, Qsp32sc got) {
                return equals(got, Qsp32sc{arithref::scaled<Qsp32s>(exactProd(a, b.re), sf),
                                           arithref::scaled<Qsp32s>(exactProd(a, b.im), sf)});
            },
            [&](auto a, auto sd, int len) { return qspsMul_32s32sc_ISfs(a, sd, len, sf); }, qspStsOk, lengths);
        if (HasFatalFailure()) {
            ADD_FAILURE() << "scale factor " << sf;
            return;
        }
    }
}

TEST(Mul, WideningProducts)
{
    arithsweep::binary<Qsp8u, Qsp8u, Qsp16u>(
        qspsMul_8u16u, [](Qsp8u a, Qsp8u b, Qsp16u got) { return equals(got, Qsp16u(a * b)); });
    // The exact product rounded once to single precision.
    arithsweep::binary<Qsp16s, Qsp16s, Qsp32f>(
        qspsMul_16s32f, [](Qsp16s a, Qsp16s b, Qsp32f got) { return equals(got, Qsp32f(Qsp32s(a) * Qsp32s(b))); });
}

TEST(Mul, FloatingProductsAreCorrectlyRounded)
{
    float2<Qsp32f>(qspsMul_32f, prod, 0.5, qspsMul_32f_I);
    float2<Qsp64f>(qspsMul_64f, prod, kHalfUlp, qspsMul_64f_I);
    float2<Qsp32f>(viaL(qspsMul_32f_L), prod, 0.5, viaL(qspsMul_32f_I_L));
    float2<Qsp64f>(viaL(qspsMul_64f_L), prod, kHalfUlp, viaL(qspsMul_64f_I_L));
    arithsweep::binary<Qsp32f, Qsp32fc, Qsp32fc>(
        qspsMul_32f32fc,
        [](Qsp32f a, Qsp32fc b, Qsp32fc got) {
            const testing::AssertionResult re = arithsweep::withinUlps(got.re, LD(a) * b.re, 0.5);
            return re ? arithsweep::withinUlps(got.im, LD(a) * b.im, 0.5) : re;
        },
        qspsMul_32f32fc_I);
}

TEST(Mul, ComplexFloatingProductsWithinTheStatedBound)
{
    arithsweep::binary<Qsp32fc, Qsp32fc, Qsp32fc>(qspsMul_32fc, complexProduct<float, Qsp32fc>, qspsMul_32fc_I);
    arithsweep::binary<Qsp64fc, Qsp64fc, Qsp64fc>(qspsMul_64fc, complexProduct<double, Qsp64fc>, qspsMul_64fc_I);
    arithsweep::binary<Qsp32fc, Qsp32fc, Qsp32fc>(viaL(qspsMul_32fc_L), complexProduct<float, Qsp32fc>,
                                                  viaL(qspsMul_32fc_I_L));
    arithsweep::binary<Qsp64fc, Qsp64fc, Qsp64fc>(viaL(qspsMul_64fc_L), complexProduct<double, Qsp64fc>,
                                                  viaL(qspsMul_64fc_I_L));
}

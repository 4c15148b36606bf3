// SPDX-License-Identifier: BSD-3-Clause
#include "qsp_test.h"

using qsptest::Guarded;

TEST(MulC, F32InPlaceStatuses)
{
    Guarded<Qsp32f> v(4);
    EXPECT_EQ(qspsMulC_32f_I(2.0f, nullptr, 4), qspStsNullPtr);
    EXPECT_EQ(qspsMulC_32f_I(2.0f, nullptr, 0), qspStsNullPtr);
    EXPECT_EQ(qspsMulC_32f_I(2.0f, v.data(), 0), qspStsBadSize);
    EXPECT_EQ(qspsMulC_32f_I(2.0f, v.data(), -1), qspStsBadSize);
    EXPECT_TRUE(v.untouched());
}

TEST(MulC, F32InPlaceIsTheRoundedProductForEveryLength)
{
    for (int len = 1; len <= 70; ++len) {
        for (int offset = 0; offset < 4; ++offset) {
            std::vector<Qsp32f> data(len + offset);
            std::uniform_real_distribution<float> dist(-1e3f, 1e3f);
            for (auto& x : data) x = dist(qsptest::rng());
            const std::vector<Qsp32f> before = data;
            const Qsp32f c = 0.37f;
            ASSERT_EQ(qspsMulC_32f_I(c, data.data() + offset, len), qspStsOk);
            for (int i = 0; i < len; ++i) {
                // A single IEEE multiplication: exactly the float-rounded product.
                const float expected = float((long double)before[offset + i] * c);
                ASSERT_EQ(data[offset + i], expected) << "len " << len << " i " << i;
            }
            for (int i = 0; i < offset; ++i) ASSERT_EQ(data[i], before[i]);
        }
    }
}

// ---------------------------------------------------------------------------
// The whole family.

#include "arith_families.h"

namespace {
using namespace arithfam;
using arithchecks::expectChecks;

template <class S>
auto scaledProd(S x, S c, int sf)
{
    return arithref::scaled<S>(i128(x) * i128(c), sf);
}
auto scaled16sc = [](Qsp16sc a, Qsp16sc c, int sf) {
    const i128 re = i128(a.re) * c.re - i128(a.im) * c.im, im = i128(a.re) * c.im + i128(a.im) * c.re;
    return Qsp16sc{arithref::scaled<Qsp16s>(re, sf), arithref::scaled<Qsp16s>(im, sf)};
};
auto scaled32sc = [](Qsp32sc a, Qsp32sc c, int sf) {
    const i128 re = i128(a.re) * c.re - i128(a.im) * c.im, im = i128(a.re) * c.im + i128(a.im) * c.re;
    return Qsp32sc{arithref::scaled<Qsp32s>(re, sf), arithref::scaled<Qsp32s>(im, sf)};
};
auto prod = [](auto a, auto c) { return LD(a) * LD(c); };

// As for Mul: each part within 2^(1-digits) (|p1| + |p2|) of the exact part.
template <class F, class C>
testing::AssertionResult complexProduct(C a, C b, C got)
{
    const LD ar = a.re, ai = a.im, br = b.re, bi = b.im;
    const LD u = std::ldexp(1.0L, 1 - std::numeric_limits<F>::digits);
    const LD tiny = 2 * std::numeric_limits<F>::denorm_min();
    const LD re = ar * br - ai * bi, im = ai * br + ar * bi;
    if (std::fabs(LD(got.re) - re) <= u * (std::fabs(ar * br) + std::fabs(ai * bi)) + tiny &&
        std::fabs(LD(got.im) - im) <= u * (std::fabs(ai * br) + std::fabs(ar * bi)) + tiny)
        return testing::AssertionSuccess();
    return testing::AssertionFailure() << "exact (" << double(re) << ", " << double(im) << ")";
}

// The exact product times 2^-sf, to nearest even, saturated; NaN gives 0.
Qsp16s scaled32f16s(Qsp32f a, Qsp32f c, int sf)
{
    const LD x = std::ldexp(LD(a) * LD(c), -sf);
    if (x != x) return 0;
    const LD r = std::nearbyint(x);
    return r > 32767 ? 32767 : r < -32768 ? -32768 : Qsp16s(r);
}
}  // namespace

TEST(MulC, ArgumentChecks)
{
    expectChecks(qspsMulC_32f, 2.0f);
    expectChecks(qspsMulC_32f_I, 2.0f);
    expectChecks(qspsMulC_64f, 2.0);
    expectChecks(qspsMulC_64f_I, 2.0);
    expectChecks(qspsMulC_32fc, Qsp32fc{1, 2});
    expectChecks(qspsMulC_32fc_I, Qsp32fc{1, 2});
    expectChecks(qspsMulC_64fc, Qsp64fc{1, 2});
    expectChecks(qspsMulC_64fc_I, Qsp64fc{1, 2});
    for (int sf : {0, 1, 5, 40, -5, -40}) {
        expectChecks(qspsMulC_8u_Sfs, Qsp8u(3), sf);
        expectChecks(qspsMulC_8u_ISfs, Qsp8u(3), sf);
        expectChecks(qspsMulC_16s_Sfs, Qsp16s(3), sf);
        expectChecks(qspsMulC_16s_ISfs, Qsp16s(3), sf);
        expectChecks(qspsMulC_16u_Sfs, Qsp16u(3), sf);
        expectChecks(qspsMulC_16u_ISfs, Qsp16u(3), sf);
        expectChecks(qspsMulC_32s_Sfs, 3, sf);
        expectChecks(qspsMulC_32s_ISfs, 3, sf);
        expectChecks(qspsMulC_16sc_Sfs, Qsp16sc{3, 4}, sf);
        expectChecks(qspsMulC_16sc_ISfs, Qsp16sc{3, 4}, sf);
        expectChecks(qspsMulC_16sc_Sfs, Qsp16sc{-32768, -32768}, sf);
        expectChecks(qspsMulC_16sc_ISfs, Qsp16sc{-32768, -32768}, sf);
        expectChecks(qspsMulC_32sc_Sfs, Qsp32sc{3, 4}, sf);
        expectChecks(qspsMulC_32sc_ISfs, Qsp32sc{3, 4}, sf);
        expectChecks(qspsMulC_32f16s_Sfs, 2.0f, sf);
    }
    expectChecks(qspsMulC_32f_L, 2.0f);
    expectChecks(qspsMulC_32f_I_L, 2.0f);
    expectChecks(qspsMulC_64f_L, 2.0);
    expectChecks(qspsMulC_64f_I_L, 2.0);
    expectChecks(qspsMulC_32fc_L, Qsp32fc{1, 2});
    expectChecks(qspsMulC_32fc_I_L, Qsp32fc{1, 2});
    expectChecks(qspsMulC_64fc_L, Qsp64fc{1, 2});
    expectChecks(qspsMulC_64fc_I_L, Qsp64fc{1, 2});
}

TEST(MulC, ScaledLongLengthFormsCheckPointersBeforeTheLength)
{
    qsptest::Guarded<Qsp32s> a(8), d(8);
    EXPECT_EQ(qspsMulC_32s_Sfs_L(nullptr, 3, d.data(), 0, 0), qspStsNullPtr);
    EXPECT_EQ(qspsMulC_32s_Sfs_L(a.data(), 3, nullptr, 8, 0), qspStsNullPtr);
    EXPECT_EQ(qspsMulC_32s_Sfs_L(a.data(), 3, d.data(), 0, 0), qspStsBadSize);
    EXPECT_EQ(qspsMulC_32s_Sfs_L(a.data(), 3, d.data(), -1, 0), qspStsBadSize);
    EXPECT_EQ(qspsMulC_32s_ISfs_L(3, nullptr, 0, 0), qspStsNullPtr);
    EXPECT_EQ(qspsMulC_32s_ISfs_L(3, d.data(), 0, 0), qspStsBadSize);
    EXPECT_TRUE(a.untouched());
    EXPECT_TRUE(d.untouched());
}

TEST(MulC, ScaledIntegersAreExactAtEveryScaleFactor)
{
    sfsC(qspsMulC_8u_Sfs, scaledProd<Qsp8u>, qspsMulC_8u_ISfs);
    sfsC(qspsMulC_16s_Sfs, scaledProd<Qsp16s>, qspsMulC_16s_ISfs);
    sfsC(qspsMulC_16u_Sfs, scaledProd<Qsp16u>, qspsMulC_16u_ISfs);
    sfsC(qspsMulC_32s_Sfs, scaledProd<Qsp32s>, qspsMulC_32s_ISfs);
    sfsC(qspsMulC_16sc_Sfs, scaled16sc, qspsMulC_16sc_ISfs);
    sfsC(qspsMulC_32sc_Sfs, scaled32sc, qspsMulC_32sc_ISfs);
    sfsCT<Qsp32s, Qsp32s, Qsp32s>(viaL(qspsMulC_32s_Sfs_L), scaledProd<Qsp32s>, viaL(qspsMulC_32s_ISfs_L));
}

TEST(MulC, TheOverflowingComplexConstantAtEveryScaleFactor)
{
    const Qsp16sc c{-32768, -32768};
    for (int sf = -40; sf <= 40; ++sf) {
        arithsweep::unary<Qsp16sc, Qsp16sc>(
            [&](auto a, auto d, int len) { return qspsMulC_16sc_Sfs(a, c, d, len, sf); },
            [&](Qsp16sc a, Qsp16sc got) { return equals(got, scaled16sc(a, c, sf)); },
            [&](auto sd, int len) { return qspsMulC_16sc_ISfs(c, sd, len, sf); }, qspStsOk,
            sf == 3 ? arithref::sweepLengths() : arithsweep::shortLengths());
        if (HasFatalFailure()) {
            ADD_FAILURE() << "scale factor " << sf;
            return;
        }
    }
    // Its largest part: (-32768 - 32768i)^2 = 2^31 i.
    Qsp16sc d[1];
    const Qsp16sc a[] = {c};
    ASSERT_EQ(qspsMulC_16sc_Sfs(a, c, d, 1, 31), qspStsOk);
    EXPECT_EQ(d[0].im, 1);
    ASSERT_EQ(qspsMulC_16sc_Sfs(a, c, d, 1, 32), qspStsOk);
    EXPECT_EQ(d[0].im, 0);
    ASSERT_EQ(qspsMulC_16sc_Sfs(a, c, d, 1, 0x7FFFFFFF), qspStsOk);
    EXPECT_EQ(d[0].im, 0);
    ASSERT_EQ(qspsMulC_16sc_Sfs(a, c, d, 1, int(0x80000000)), qspStsOk);
    EXPECT_EQ(d[0].im, 32767);
    EXPECT_EQ(d[0].re, 0);
}

TEST(MulC, FloatingProducts)
{
    floatC<Qsp32f>(qspsMulC_32f, prod, 0.5, qspsMulC_32f_I);
    floatC<Qsp64f>(qspsMulC_64f, prod, kHalfUlp, qspsMulC_64f_I);
    floatC<Qsp32f>(viaL(qspsMulC_32f_L), prod, 0.5, viaL(qspsMulC_32f_I_L));
    floatC<Qsp64f>(viaL(qspsMulC_64f_L), prod, kHalfUlp, viaL(qspsMulC_64f_I_L));
    for (Qsp32fc c : arithsweep::gen<Qsp32fc>(3)) {
        arithsweep::unary<Qsp32fc, Qsp32fc>(
            [&](auto a, auto d, int len) { return qspsMulC_32fc(a, c, d, len); },
            [&](Qsp32fc a, Qsp32fc got) { return complexProduct<float>(a, c, got); },
            [&](auto sd, int len) { return qspsMulC_32fc_I(c, sd, len); });
        arithsweep::unary<Qsp32fc, Qsp32fc>(
            [&](auto a, auto d, int len) { return qspsMulC_32fc_L(a, c, d, len); },
            [&](Qsp32fc a, Qsp32fc got) { return complexProduct<float>(a, c, got); },
            [&](auto sd, int len) { return qspsMulC_32fc_I_L(c, sd, len); });
    }
    for (Qsp64fc c : arithsweep::gen<Qsp64fc>(3)) {
        arithsweep::unary<Qsp64fc, Qsp64fc>(
            [&](auto a, auto d, int len) { return qspsMulC_64fc(a, c, d, len); },
            [&](Qsp64fc a, Qsp64fc got) { return complexProduct<double>(a, c, got); },
            [&](auto sd, int len) { return qspsMulC_64fc_I(c, sd, len); });
        arithsweep::unary<Qsp64fc, Qsp64fc>(
            [&](auto a, auto d, int len) { return qspsMulC_64fc_L(a, c, d, len); },
            [&](Qsp64fc a, Qsp64fc got) { return complexProduct<double>(a, c, got); },
            [&](auto sd, int len) { return qspsMulC_64fc_I_L(c, sd, len); });
    }
}

TEST(MulC, FloatToScaled16s)
{
    auto gen = [](size_t n) {
        std::vector<Qsp32f> v = arithref::floats<Qsp32f>(n, 20);
        for (size_t i = 0; i < n; i += 7) v[i] = std::nearbyint(v[i]) + 0.5f;  // ties
        return v;
    };
    for (Qsp32f c : {1.0f, -3.25f, 1e-3f, 7777.0f}) {
        for (int sf : {-40, -20, -3, -1, 0, 1, 2, 7, 15, 16, 30, 40, 500, -500}) {
            arithsweep::unary<Qsp32f, Qsp16s>(
                [&](auto a, auto d, int len) { return qspsMulC_32f16s_Sfs(a, c, d, len, sf); },
                [&](Qsp32f a, Qsp16s got) { return equals(got, scaled32f16s(a, c, sf)); }, nullptr, qspStsOk,
                arithsweep::shortLengths(), +gen);
            if (HasFatalFailure()) return;
        }
    }
    const Qsp32f s[] = {NAN, INFINITY, -INFINITY, 2.5f, 3.5f, -2.5f, 1e30f};
    Qsp16s d[7];
    ASSERT_EQ(qspsMulC_32f16s_Sfs(s, 1.0f, d, 7, 0), qspStsOk);
    const Qsp16s expected[] = {0, 32767, -32768, 2, 4, -2, 32767};
    for (int i = 0; i < 7; ++i) EXPECT_EQ(d[i], expected[i]) << i;
}

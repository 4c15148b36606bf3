// SPDX-License-Identifier: BSD-3-Clause
// DivC, DivCRev and Div_Round: division by a constant (through MulC with
// the reciprocal for floating types), of a constant, and with a chosen
// rounding.
#include "arith_families.h"

using namespace arithfam;
using arithchecks::expectChecks;
using arithchecks::expectModeError;

namespace {
template <class T>
std::vector<T> nonZero(size_t n)
{
    std::vector<T> v = arithsweep::gen<T>(n);
    for (auto& x : v)
        if (x == T(0)) x = T(1);
    return v;
}
}  // namespace

TEST(DivC, ArgumentChecksAndTheZeroDivisor)
{
    expectChecks(qspsDivC_32f, 2.0f);
    expectChecks(qspsDivC_32f_I, 2.0f);
    expectChecks(qspsDivC_64f, 2.0);
    expectChecks(qspsDivC_64f_I, 2.0);
    expectChecks(qspsDivC_32fc, Qsp32fc{1, 2});
    expectChecks(qspsDivC_32fc_I, Qsp32fc{1, 2});
    expectChecks(qspsDivC_64fc, Qsp64fc{1, 2});
    expectChecks(qspsDivC_64fc_I, Qsp64fc{1, 2});
    expectChecks(qspsDivC_8u_Sfs, Qsp8u(3), 0);
    expectChecks(qspsDivC_8u_ISfs, Qsp8u(3), 0);
    expectChecks(qspsDivC_16s_Sfs, Qsp16s(3), 0);
    expectChecks(qspsDivC_16s_ISfs, Qsp16s(3), 0);
    expectChecks(qspsDivC_16u_Sfs, Qsp16u(3), 0);
    expectChecks(qspsDivC_16u_ISfs, Qsp16u(3), 0);
    expectChecks(qspsDivC_16sc_Sfs, Qsp16sc{3, 4}, 0);
    expectChecks(qspsDivC_16sc_ISfs, Qsp16sc{3, 4}, 0);
    expectChecks(qspsDivC_32f_L, 2.0f);
    expectChecks(qspsDivC_32f_I_L, 2.0f);
    expectChecks(qspsDivC_64f_L, 2.0);
    expectChecks(qspsDivC_64f_I_L, 2.0);
    expectChecks(qspsDivC_32fc_L, Qsp32fc{1, 2});
    expectChecks(qspsDivC_32fc_I_L, Qsp32fc{1, 2});
    expectChecks(qspsDivC_64fc_L, Qsp64fc{1, 2});
    expectChecks(qspsDivC_64fc_I_L, Qsp64fc{1, 2});
    // The divisor is checked after the pointers and the length.
    expectModeError(qspStsZeroDivisor, qspsDivC_32f, 0.0f);
    expectModeError(qspStsZeroDivisor, qspsDivC_32f, -0.0f);
    expectModeError(qspStsZeroDivisor, qspsDivC_32f_I, 0.0f);
    expectModeError(qspStsZeroDivisor, qspsDivC_64f, -0.0);
    expectModeError(qspStsZeroDivisor, qspsDivC_64f_I, 0.0);
    expectModeError(qspStsZeroDivisor, qspsDivC_32fc, Qsp32fc{0.0f, -0.0f});
    expectModeError(qspStsZeroDivisor, qspsDivC_32fc_I, Qsp32fc{0, 0});
    expectModeError(qspStsZeroDivisor, qspsDivC_64fc, Qsp64fc{-0.0, 0});
    expectModeError(qspStsZeroDivisor, qspsDivC_64fc_I, Qsp64fc{0, 0});
    expectModeError(qspStsZeroDivisor, qspsDivC_8u_Sfs, Qsp8u(0), 0);
    expectModeError(qspStsZeroDivisor, qspsDivC_8u_ISfs, Qsp8u(0), 0);
    expectModeError(qspStsZeroDivisor, qspsDivC_16s_Sfs, Qsp16s(0), 3);
    expectModeError(qspStsZeroDivisor, qspsDivC_16s_ISfs, Qsp16s(0), 3);
    expectModeError(qspStsZeroDivisor, qspsDivC_16u_Sfs, Qsp16u(0), 0);
    expectModeError(qspStsZeroDivisor, qspsDivC_16u_ISfs, Qsp16u(0), 0);
    expectModeError(qspStsZeroDivisor, qspsDivC_16sc_Sfs, Qsp16sc{0, 0}, 0);
    expectModeError(qspStsZeroDivisor, qspsDivC_16sc_ISfs, Qsp16sc{0, 0}, 0);
    expectModeError(qspStsZeroDivisor, qspsDivC_32f_L, 0.0f);
    expectModeError(qspStsZeroDivisor, qspsDivC_64fc_I_L, Qsp64fc{0, 0});
}

TEST(DivC, FloatingFormsMultiplyByTheReciprocal)
{
    for (Qsp32f c : {3.0f, -0.1f, 1e-30f, 7e20f}) {
        const Qsp32f r = 1.0f / c;
        arithsweep::unary<Qsp32f, Qsp32f>(
            [&](auto a, auto d, int len) { return qspsDivC_32f(a, c, d, len); },
            [&](Qsp32f a, Qsp32f got) { return equals(got, a * r); },
            [&](auto sd, int len) { return qspsDivC_32f_I(c, sd, len); });
        arithsweep::unary<Qsp32f, Qsp32f>(
            [&](auto a, auto d, int len) { return qspsDivC_32f_L(a, c, d, len); },
            [&](Qsp32f a, Qsp32f got) { return equals(got, a * r); },
            [&](auto sd, int len) { return qspsDivC_32f_I_L(c, sd, len); });
    }
    for (Qsp64f c : {3.0, -0.1, 1e-300}) {
        const Qsp64f r = 1.0 / c;
        arithsweep::unary<Qsp64f, Qsp64f>(
            [&](auto a, auto d, int len) { return qspsDivC_64f(a, c, d, len); },
            [&](Qsp64f a, Qsp64f got) { return equals(got, a * r); },
            [&](auto sd, int len) { return qspsDivC_64f_I(c, sd, len); });
        arithsweep::unary<Qsp64f, Qsp64f>(
            [&](auto a, auto d, int len) { return qspsDivC_64f_L(a, c, d, len); },
            [&](Qsp64f a, Qsp64f got) { return equals(got, a * r); },
            [&](auto sd, int len) { return qspsDivC_64f_I_L(c, sd, len); });
    }
    // Complex: the quotient within a few ULPs of its magnitude (reciprocal
    // rounded once, then the complex product).
    for (Qsp32fc c : {Qsp32fc{3, 4}, Qsp32fc{-1e-3f, 2}, Qsp32fc{1e-5f, -1e5f}}) {
        auto check = [&](Qsp32fc a, Qsp32fc got) {
            const LD d = LD(c.re) * c.re + LD(c.im) * c.im;
            const LD re = (LD(a.re) * c.re + LD(a.im) * c.im) / d, im = (LD(a.im) * c.re - LD(a.re) * c.im) / d;
            const LD bound = 4 * std::ldexp(1.0L, -24) * std::sqrt((LD(a.re) * a.re + LD(a.im) * a.im) / d) + 1e-44L;
            if (std::fabs(got.re - re) <= bound && std::fabs(got.im - im) <= bound) return testing::AssertionSuccess();
            return testing::AssertionFailure() << "exact (" << double(re) << ", " << double(im) << ")";
        };
        arithsweep::unary<Qsp32fc, Qsp32fc>([&](auto a, auto d, int len) { return qspsDivC_32fc(a, c, d, len); }, check,
                                            [&](auto sd, int len) { return qspsDivC_32fc_I(c, sd, len); });
        arithsweep::unary<Qsp32fc, Qsp32fc>([&](auto a, auto d, int len) { return qspsDivC_32fc_L(a, c, d, len); },
                                            check, [&](auto sd, int len) { return qspsDivC_32fc_I_L(c, sd, len); });
    }
    for (Qsp64fc c : {Qsp64fc{3, 4}, Qsp64fc{-1e-30, 2e-30}, Qsp64fc{1e30, -1e30}}) {
        auto check = [&](Qsp64fc a, Qsp64fc got) {
            const LD d = LD(c.re) * c.re + LD(c.im) * c.im;
            const LD re = (LD(a.re) * c.re + LD(a.im) * c.im) / d, im = (LD(a.im) * c.re - LD(a.re) * c.im) / d;
            const LD bound = 4 * std::ldexp(1.0L, -53) * std::sqrt((LD(a.re) * a.re + LD(a.im) * a.im) / d);
            if (std::fabs(got.re - re) <= bound && std::fabs(got.im - im) <= bound) return testing::AssertionSuccess();
            return testing::AssertionFailure() << "exact (" << double(re) << ", " << double(im) << ")";
        };
        arithsweep::unary<Qsp64fc, Qsp64fc>([&](auto a, auto d, int len) { return qspsDivC_64fc(a, c, d, len); }, check,
                                            [&](auto sd, int len) { return qspsDivC_64fc_I(c, sd, len); });
        arithsweep::unary<Qsp64fc, Qsp64fc>([&](auto a, auto d, int len) { return qspsDivC_64fc_L(a, c, d, len); },
                                            check, [&](auto sd, int len) { return qspsDivC_64fc_I_L(c, sd, len); });
    }
}

TEST(DivC, ScaledIntegersAreExactAtEveryScaleFactor)
{
    auto q = [](auto x, auto c, int sf) { return arithref::quotient<decltype(x)>(x, c, sf); };
    for (int sf = -40; sf <= 40; ++sf) {
        for (Qsp16s c : {Qsp16s(3), Qsp16s(-32768), Qsp16s(-7), Qsp16s(1)}) {
            arithsweep::unary<Qsp16s, Qsp16s>(
                [&](auto a, auto d, int len) { return qspsDivC_16s_Sfs(a, c, d, len, sf); },
                [&](Qsp16s a, Qsp16s got) { return equals(got, q(a, c, sf)); },
                [&](auto sd, int len) { return qspsDivC_16s_ISfs(c, sd, len, sf); }, qspStsOk, arithsweep::shortLengths());
        }
        for (Qsp16u c : {Qsp16u(3), Qsp16u(65535)}) {
            arithsweep::unary<Qsp16u, Qsp16u>(
                [&](auto a, auto d, int len) { return qspsDivC_16u_Sfs(a, c, d, len, sf); },
                [&](Qsp16u a, Qsp16u got) { return equals(got, q(a, c, sf)); },
                [&](auto sd, int len) { return qspsDivC_16u_ISfs(c, sd, len, sf); }, qspStsOk, arithsweep::shortLengths());
        }
        for (Qsp8u c : {Qsp8u(3), Qsp8u(255)}) {
            arithsweep::unary<Qsp8u, Qsp8u>(
                [&](auto a, auto d, int len) { return qspsDivC_8u_Sfs(a, c, d, len, sf); },
                [&](Qsp8u a, Qsp8u got) { return equals(got, q(a, c, sf)); },
                [&](auto sd, int len) { return qspsDivC_8u_ISfs(c, sd, len, sf); }, qspStsOk, arithsweep::shortLengths());
        }
        for (Qsp16sc c : {Qsp16sc{3, -4}, Qsp16sc{-32768, -32768}, Qsp16sc{0, 1}}) {
            arithsweep::unary<Qsp16sc, Qsp16sc>(
                [&](auto a, auto d, int len) { return qspsDivC_16sc_Sfs(a, c, d, len, sf); },
                [&](Qsp16sc a, Qsp16sc got) {
                    const i128 d = i128(c.re) * c.re + i128(c.im) * c.im;
                    const i128 re = i128(a.re) * c.re + i128(a.im) * c.im, im = i128(a.im) * c.re - i128(a.re) * c.im;
                    return equals(got, Qsp16sc{arithref::quotient<Qsp16s>(re, d, sf), arithref::quotient<Qsp16s>(im, d, sf)});
                },
                [&](auto sd, int len) { return qspsDivC_16sc_ISfs(c, sd, len, sf); }, qspStsOk, arithsweep::shortLengths());
        }
        if (HasFatalFailure()) {
            ADD_FAILURE() << "scale factor " << sf;
            return;
        }
    }
}

TEST(DivCRev, ChecksQuotientsAndTheZeroWarning)
{
    expectChecks(qspsDivCRev_16u, Qsp16u(3));
    expectChecks(qspsDivCRev_16u_I, Qsp16u(3));
    expectChecks(qspsDivCRev_32f, 1.0f);
    expectChecks(qspsDivCRev_32f_I, 1.0f);
    expectChecks(qspsDivCRev_64f, 1.0);
    expectChecks(qspsDivCRev_64f_I, 1.0);
    expectChecks(qspsDivCRev_32f_L, 1.0f);
    expectChecks(qspsDivCRev_32f_I_L, 1.0f);
    expectChecks(qspsDivCRev_64f_L, 1.0);
    expectChecks(qspsDivCRev_64f_I_L, 1.0);
    for (Qsp32f c : {1.0f, -3.5f}) {
        auto check = [&](Qsp32f a, Qsp32f got) { return arithsweep::withinUlps(got, LD(c) / a, kHalfUlp); };
        arithsweep::unary<Qsp32f, Qsp32f>([&](auto a, auto d, int len) { return qspsDivCRev_32f(a, c, d, len); }, check,
                                          [&](auto sd, int len) { return qspsDivCRev_32f_I(c, sd, len); }, qspStsOk,
                                          arithref::sweepLengths(), nonZero<Qsp32f>);
        arithsweep::unary<Qsp32f, Qsp32f>([&](auto a, auto d, int len) { return qspsDivCRev_32f_L(a, c, d, len); },
                                          check, [&](auto sd, int len) { return qspsDivCRev_32f_I_L(c, sd, len); },
                                          qspStsOk, arithref::sweepLengths(), nonZero<Qsp32f>);
    }
    for (Qsp64f c : {1.0, -3.5}) {
        auto check = [&](Qsp64f a, Qsp64f got) { return arithsweep::withinUlps(got, LD(c) / a, kHalfUlp); };
        arithsweep::unary<Qsp64f, Qsp64f>([&](auto a, auto d, int len) { return qspsDivCRev_64f(a, c, d, len); }, check,
                                          [&](auto sd, int len) { return qspsDivCRev_64f_I(c, sd, len); }, qspStsOk,
                                          arithref::sweepLengths(), nonZero<Qsp64f>);
        arithsweep::unary<Qsp64f, Qsp64f>([&](auto a, auto d, int len) { return qspsDivCRev_64f_L(a, c, d, len); },
                                          check, [&](auto sd, int len) { return qspsDivCRev_64f_I_L(c, sd, len); },
                                          qspStsOk, arithref::sweepLengths(), nonZero<Qsp64f>);
    }
    for (Qsp16u c : {Qsp16u(0), Qsp16u(7), Qsp16u(65535)}) {
        arithsweep::unary<Qsp16u, Qsp16u>(
            [&](auto a, auto d, int len) { return qspsDivCRev_16u(a, c, d, len); },
            [&](Qsp16u a, Qsp16u got) { return equals(got, arithref::quotient<Qsp16u>(c, a, 0)); },
            [&](auto sd, int len) { return qspsDivCRev_16u_I(c, sd, len); }, qspStsOk, arithref::sweepLengths(),
            nonZero<Qsp16u>);
    }
    for (int at : {0, 9, 20}) {
        std::vector<Qsp32f> a(21, 4.0f), d(21);
        a[at] = -0.0f;
        ASSERT_EQ(qspsDivCRev_32f(a.data(), 2.0f, d.data(), 21), qspStsWarnDivByZero);
        EXPECT_EQ(d[at], -INFINITY);
        EXPECT_EQ(d[(at + 1) % 21], 0.5f);
        std::vector<Qsp16u> u(21, 2), v(21);
        u[at] = 0;
        ASSERT_EQ(qspsDivCRev_16u(u.data(), 9, v.data(), 21), qspStsWarnDivByZero);
        EXPECT_EQ(v[at], 65535);
        EXPECT_EQ(v[(at + 1) % 21], 4);  // 4.5 to even
        ASSERT_EQ(qspsDivCRev_16u(u.data(), 0, v.data(), 21), qspStsWarnDivByZero);
        EXPECT_EQ(v[at], 0);
        std::vector<Qsp64f> w(21, 4.0);
        w[at] = 0.0;
        ASSERT_EQ(qspsDivCRev_64f_I(1.0, w.data(), 21), qspStsWarnDivByZero);
        EXPECT_EQ(w[at], INFINITY);
    }
}

TEST(DivRound, ChecksModeErrorAndEveryRounding)
{
    for (int mode : {0, 1, 2}) {
        expectChecks(qspsDiv_Round_8u_Sfs, mode, 0);
        expectChecks(qspsDiv_Round_8u_ISfs, mode, 0);
        expectChecks(qspsDiv_Round_16s_Sfs, mode, 0);
        expectChecks(qspsDiv_Round_16s_ISfs, mode, 0);
        expectChecks(qspsDiv_Round_16u_Sfs, mode, 0);
        expectChecks(qspsDiv_Round_16u_ISfs, mode, 0);
    }
    for (int mode : {3, 100, -1}) {
        expectModeError(qspStsBadRoundMode, qspsDiv_Round_8u_Sfs, mode, 0);
        expectModeError(qspStsBadRoundMode, qspsDiv_Round_8u_ISfs, mode, 0);
        expectModeError(qspStsBadRoundMode, qspsDiv_Round_16s_Sfs, mode, 0);
        expectModeError(qspStsBadRoundMode, qspsDiv_Round_16s_ISfs, mode, 0);
        expectModeError(qspStsBadRoundMode, qspsDiv_Round_16u_Sfs, mode, 0);
        expectModeError(qspStsBadRoundMode, qspsDiv_Round_16u_ISfs, mode, 0);
    }
    const Qsp16s a[] = {2, 2, 2, 2, 4, -4, 0}, b[] = {5, -5, 3, 7, 6, 6, -1};
    Qsp16s d[7];
    const Qsp16s zero[] = {2, -2, 1, 3, 1, -1, -32768};
    const Qsp16s near[] = {2, -2, 2, 4, 2, -2, -32768};
    const Qsp16s away[] = {3, -3, 2, 4, 2, -2, -32768};
    ASSERT_EQ(qspsDiv_Round_16s_Sfs(a, b, d, 7, 0, 0), qspStsWarnDivByZero);
    for (int i = 0; i < 7; ++i) EXPECT_EQ(d[i], zero[i]) << i;
    ASSERT_EQ(qspsDiv_Round_16s_Sfs(a, b, d, 7, 1, 0), qspStsWarnDivByZero);
    for (int i = 0; i < 7; ++i) EXPECT_EQ(d[i], near[i]) << i;
    ASSERT_EQ(qspsDiv_Round_16s_Sfs(a, b, d, 7, 2, 0), qspStsWarnDivByZero);
    for (int i = 0; i < 7; ++i) EXPECT_EQ(d[i], away[i]) << i;
    for (int mode : {0, 1, 2}) {
        for (int sf = -40; sf <= 40; sf += 3) {
            arithsweep::binary<Qsp16s, Qsp16s, Qsp16s>(
                [&](auto x, auto y, auto z, int len) { return qspsDiv_Round_16s_Sfs(x, y, z, len, mode, sf); },
                [&](Qsp16s x, Qsp16s y, Qsp16s got) { return equals(got, arithref::quotient<Qsp16s>(y, x, sf, mode)); },
                [&](auto x, auto sd, int len) { return qspsDiv_Round_16s_ISfs(x, sd, len, mode, sf); }, qspStsOk,
                arithsweep::shortLengths(), nonZero<Qsp16s>);
            arithsweep::binary<Qsp16u, Qsp16u, Qsp16u>(
                [&](auto x, auto y, auto z, int len) { return qspsDiv_Round_16u_Sfs(x, y, z, len, mode, sf); },
                [&](Qsp16u x, Qsp16u y, Qsp16u got) { return equals(got, arithref::quotient<Qsp16u>(y, x, sf, mode)); },
                [&](auto x, auto sd, int len) { return qspsDiv_Round_16u_ISfs(x, sd, len, mode, sf); }, qspStsOk,
                arithsweep::shortLengths(), nonZero<Qsp16u>);
            arithsweep::binary<Qsp8u, Qsp8u, Qsp8u>(
                [&](auto x, auto y, auto z, int len) { return qspsDiv_Round_8u_Sfs(x, y, z, len, mode, sf); },
                [&](Qsp8u x, Qsp8u y, Qsp8u got) { return equals(got, arithref::quotient<Qsp8u>(y, x, sf, mode)); },
                [&](auto x, auto sd, int len) { return qspsDiv_Round_8u_ISfs(x, sd, len, mode, sf); }, qspStsOk,
                arithsweep::shortLengths(), nonZero<Qsp8u>);
            if (HasFatalFailure()) {
                ADD_FAILURE() << "mode " << mode << " scale factor " << sf;
                return;
            }
        }
    }
}

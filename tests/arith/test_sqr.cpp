// SPDX-License-Identifier: BSD-3-Clause
// Sqr: squares, floating (correctly rounded), complex, scaled integer.
#include "arith_families.h"

using namespace arithfam;
using arithchecks::expectChecks;

TEST(Sqr, ArgumentChecks)
{
    expectChecks(qspsSqr_32f);
    expectChecks(qspsSqr_32f_I);
    expectChecks(qspsSqr_64f);
    expectChecks(qspsSqr_64f_I);
    expectChecks(qspsSqr_32fc);
    expectChecks(qspsSqr_32fc_I);
    expectChecks(qspsSqr_64fc);
    expectChecks(qspsSqr_64fc_I);
    for (int sf : {0, 1, 31, -5, -40}) {
        expectChecks(qspsSqr_8u_Sfs, sf);
        expectChecks(qspsSqr_8u_ISfs, sf);
        expectChecks(qspsSqr_16s_Sfs, sf);
        expectChecks(qspsSqr_16s_ISfs, sf);
        expectChecks(qspsSqr_16u_Sfs, sf);
        expectChecks(qspsSqr_16u_ISfs, sf);
        expectChecks(qspsSqr_16sc_Sfs, sf);
        expectChecks(qspsSqr_16sc_ISfs, sf);
    }
    expectChecks(qspsSqr_32f_L);
    expectChecks(qspsSqr_32f_I_L);
    expectChecks(qspsSqr_64f_L);
    expectChecks(qspsSqr_64f_I_L);
}

TEST(Sqr, ScaledIntegersAreExactAtEveryScaleFactor)
{
    for (int sf = -40; sf <= 40; ++sf) {
        const std::vector<int> lengths = sf == 2 ? arithref::sweepLengths() : arithsweep::shortLengths();
        auto run = [&](auto fn, auto fnI, auto zero) {
            using T = decltype(zero);
            arithsweep::unary<T, T>([&](auto a, auto d, int len) { return fn(a, d, len, sf); },
                                    [&](T a, T got) { return equals(got, arithref::scaled<T>(i128(a) * a, sf)); },
                                    [&](auto sd, int len) { return fnI(sd, len, sf); }, qspStsOk, lengths);
        };
        run(qspsSqr_8u_Sfs, qspsSqr_8u_ISfs, Qsp8u{});
        run(qspsSqr_16s_Sfs, qspsSqr_16s_ISfs, Qsp16s{});
        run(qspsSqr_16u_Sfs, qspsSqr_16u_ISfs, Qsp16u{});
        arithsweep::unary<Qsp16sc, Qsp16sc>(
            [&](auto a, auto d, int len) { return qspsSqr_16sc_Sfs(a, d, len, sf); },
            [&](Qsp16sc a, Qsp16sc got) {
                const i128 re = i128(a.re) * a.re - i128(a.im) * a.im, im = 2 * i128(a.re) * a.im;
                return equals(got, Qsp16sc{arithref::scaled<Qsp16s>(re, sf), arithref::scaled<Qsp16s>(im, sf)});
            },
            [&](auto sd, int len) { return qspsSqr_16sc_ISfs(sd, len, sf); }, qspStsOk, lengths);
        if (HasFatalFailure()) {
            ADD_FAILURE() << "scale factor " << sf;
            return;
        }
    }
    const Qsp16s a[] = {-32768};
    Qsp16s d[1];
    ASSERT_EQ(qspsSqr_16s_Sfs(a, d, 1, 30), qspStsOk);
    EXPECT_EQ(d[0], 1);
    ASSERT_EQ(qspsSqr_16s_Sfs(a, d, 1, 31), qspStsOk);
    EXPECT_EQ(d[0], 0);
}

TEST(Sqr, FloatingSquares)
{
    auto sq = [](auto a, auto) { return LD(a) * LD(a); };
    auto u1 = [&](auto fn, auto fnI, auto zero, double ulps) {
        using T = decltype(zero);
        arithsweep::unary<T, T>(fn, [&](T a, T got) { return arithsweep::withinUlps(got, sq(a, a), ulps); }, fnI);
    };
    u1(qspsSqr_32f, qspsSqr_32f_I, Qsp32f{}, 0.5);
    u1(qspsSqr_64f, qspsSqr_64f_I, Qsp64f{}, kHalfUlp);
    u1(viaL(qspsSqr_32f_L), viaL(qspsSqr_32f_I_L), Qsp32f{}, 0.5);
    u1(viaL(qspsSqr_64f_L), viaL(qspsSqr_64f_I_L), Qsp64f{}, kHalfUlp);
    // Complex: re = ar^2 - ai^2 and im = 2 ar ai from rounded products:
    // re within 2^(1-digits) (ar^2 + ai^2), im correctly rounded.
    auto csq = [](auto a, auto got) {
        using F = decltype(a.re);
        const LD u = std::ldexp(1.0L, 1 - std::numeric_limits<F>::digits);
        const LD re = LD(a.re) * a.re - LD(a.im) * a.im, im = 2 * LD(a.re) * a.im;
        const LD bound = u * (LD(a.re) * a.re + LD(a.im) * a.im) + 2 * LD(std::numeric_limits<F>::denorm_min());
        if (std::fabs(got.re - re) <= bound && std::fabs(got.im - im) <= bound) return testing::AssertionSuccess();
        return testing::AssertionFailure() << "exact (" << double(re) << ", " << double(im) << ")";
    };
    arithsweep::unary<Qsp32fc, Qsp32fc>(qspsSqr_32fc, csq, qspsSqr_32fc_I);
    arithsweep::unary<Qsp64fc, Qsp64fc>(qspsSqr_64fc, csq, qspsSqr_64fc_I);
}

// SPDX-License-Identifier: BSD-3-Clause
// Normalize: (x - vSub) / vDiv in every form; a zero vDiv is an error.
#include "arith_families.h"

using namespace arithfam;
using arithchecks::expectChecks;
using arithchecks::expectModeError;

TEST(Normalize, ArgumentChecksAndTheZeroDivisor)
{
    expectChecks(qspsNormalize_32f, 1.0f, 2.0f);
    expectChecks(qspsNormalize_32f_I, 1.0f, 2.0f);
    expectChecks(qspsNormalize_64f, 1.0, 2.0);
    expectChecks(qspsNormalize_64f_I, 1.0, 2.0);
    expectChecks(qspsNormalize_32fc, Qsp32fc{1, 2}, 2.0f);
    expectChecks(qspsNormalize_32fc_I, Qsp32fc{1, 2}, 2.0f);
    expectChecks(qspsNormalize_64fc, Qsp64fc{1, 2}, 2.0);
    expectChecks(qspsNormalize_64fc_I, Qsp64fc{1, 2}, 2.0);
    expectChecks(qspsNormalize_16s_Sfs, Qsp16s(1), 3, 0);
    expectChecks(qspsNormalize_16s_ISfs, Qsp16s(1), 3, 0);
    expectChecks(qspsNormalize_16sc_Sfs, Qsp16sc{1, 2}, 3, 0);
    expectChecks(qspsNormalize_16sc_ISfs, Qsp16sc{1, 2}, 3, 0);
    expectModeError(qspStsZeroDivisor, qspsNormalize_32f, 1.0f, 0.0f);
    expectModeError(qspStsZeroDivisor, qspsNormalize_32f_I, 1.0f, -0.0f);
    expectModeError(qspStsZeroDivisor, qspsNormalize_64f, 1.0, 0.0);
    expectModeError(qspStsZeroDivisor, qspsNormalize_64f_I, 1.0, 0.0);
    expectModeError(qspStsZeroDivisor, qspsNormalize_32fc, Qsp32fc{1, 2}, 0.0f);
    expectModeError(qspStsZeroDivisor, qspsNormalize_32fc_I, Qsp32fc{1, 2}, 0.0f);
    expectModeError(qspStsZeroDivisor, qspsNormalize_64fc, Qsp64fc{1, 2}, 0.0);
    expectModeError(qspStsZeroDivisor, qspsNormalize_64fc_I, Qsp64fc{1, 2}, 0.0);
    expectModeError(qspStsZeroDivisor, qspsNormalize_16s_Sfs, Qsp16s(1), 0, 0);
    expectModeError(qspStsZeroDivisor, qspsNormalize_16s_ISfs, Qsp16s(1), 0, 0);
    expectModeError(qspStsZeroDivisor, qspsNormalize_16sc_Sfs, Qsp16sc{1, 2}, 0, 0);
    expectModeError(qspStsZeroDivisor, qspsNormalize_16sc_ISfs, Qsp16sc{1, 2}, 0, 0);
}

TEST(Normalize, FloatingResults)
{
    // The difference rounded, then the quotient: within 1.5 ULP of the
    // exact value when the difference does not cancel (|x - vSub| >= |x|/2
    // here: the subtrahend is small).
    auto run = [](auto fn, auto fnI, auto zero, auto vSub, auto vDiv) {
        using T = decltype(zero);
        auto check = [&](T a, T got) {
            if constexpr (std::is_floating_point_v<T>) {
                return arithsweep::withinUlps(got, (LD(a) - vSub) / vDiv, 1.5);
            } else {
                const testing::AssertionResult r = arithsweep::withinUlps(got.re, (LD(a.re) - vSub.re) / vDiv, 1.5);
                return r ? arithsweep::withinUlps(got.im, (LD(a.im) - vSub.im) / vDiv, 1.5) : r;
            }
        };
        auto gen = +[](size_t n) {
            std::vector<T> v = arithsweep::gen<T>(n);
            for (auto& x : v) {
                if constexpr (std::is_floating_point_v<T>) x = std::fabs(x) + 1;
                else x = T{std::fabs(x.re) + 1, std::fabs(x.im) + 1};
            }
            return v;
        };
        arithsweep::unary<T, T>([&](auto a, auto d, int len) { return fn(a, d, len, vSub, vDiv); }, check,
                                [&](auto sd, int len) { return fnI(sd, len, vSub, vDiv); }, qspStsOk,
                                arithref::sweepLengths(), gen);
    };
    run(qspsNormalize_32f, qspsNormalize_32f_I, Qsp32f{}, 0.25f, 3.0f);
    run(qspsNormalize_64f, qspsNormalize_64f_I, Qsp64f{}, -0.25, 1e-3);
    run(qspsNormalize_32fc, qspsNormalize_32fc_I, Qsp32fc{}, Qsp32fc{0.5f, -0.25f}, 7.0f);
    run(qspsNormalize_64fc, qspsNormalize_64fc_I, Qsp64fc{}, Qsp64fc{0.5, 0.125}, -3.0);
}

TEST(Normalize, ScaledIntegersAreExact)
{
    for (int sf = -20; sf <= 20; ++sf) {
        for (int vDiv : {1, 3, -7, 32768, -65536}) {
            const Qsp16s vSub = Qsp16s(sf * 1000);
            arithsweep::unary<Qsp16s, Qsp16s>(
                [&](auto a, auto d, int len) { return qspsNormalize_16s_Sfs(a, d, len, vSub, vDiv, sf); },
                [&](Qsp16s a, Qsp16s got) { return equals(got, arithref::quotient<Qsp16s>(i128(a) - vSub, vDiv, sf)); },
                [&](auto sd, int len) { return qspsNormalize_16s_ISfs(sd, len, vSub, vDiv, sf); }, qspStsOk,
                arithsweep::shortLengths());
            const Qsp16sc cSub{Qsp16s(-sf), Qsp16s(32767)};
            arithsweep::unary<Qsp16sc, Qsp16sc>(
                [&](auto a, auto d, int len) { return qspsNormalize_16sc_Sfs(a, d, len, cSub, vDiv, sf); },
                [&](Qsp16sc a, Qsp16sc got) {
                    return equals(got, Qsp16sc{arithref::quotient<Qsp16s>(i128(a.re) - cSub.re, vDiv, sf),
                                               arithref::quotient<Qsp16s>(i128(a.im) - cSub.im, vDiv, sf)});
                },
                [&](auto sd, int len) { return qspsNormalize_16sc_ISfs(sd, len, cSub, vDiv, sf); }, qspStsOk,
                arithsweep::shortLengths());
            if (HasFatalFailure()) return;
        }
    }
}

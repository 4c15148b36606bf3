// SPDX-License-Identifier: BSD-3-Clause
// Threshold in every mode, type and form.
#include <complex>

#include "arith_families.h"

using namespace arithfam;
using arithchecks::expectChecks;
using arithchecks::expectModeError;

namespace {
template <class T>
LD mag(T x)
{
    return std::fabs(LD(x));
}
template <class T>
bool neg(T x)
{
    if constexpr (std::is_floating_point_v<T>) return std::signbit(x);
    else return x < 0;
}

// Runs fn (out of place) and fnI on the sweep with `expect(x)`.
template <class T, class Fn, class FnI, class Expect>
void real(Fn fn, FnI fnI, Expect expect)
{
    arithsweep::unary<T, T>(fn, [&](T a, T got) { return equals(got, T(expect(a))); }, fnI);
}
}  // namespace

TEST(Threshold, ArgumentChecksAndModeErrors)
{
    for (int op : {0, 4}) {
        expectChecks(qspsThreshold_16s, Qsp16s(3), op);
        expectChecks(qspsThreshold_16s_I, Qsp16s(3), op);
        expectChecks(qspsThreshold_32f, 3.0f, op);
        expectChecks(qspsThreshold_32f_I, 3.0f, op);
        expectChecks(qspsThreshold_64f, 3.0, op);
        expectChecks(qspsThreshold_64f_I, 3.0, op);
        expectChecks(qspsThreshold_32fc, 3.0f, op);
        expectChecks(qspsThreshold_32fc_I, 3.0f, op);
        expectChecks(qspsThreshold_64fc, 3.0, op);
        expectChecks(qspsThreshold_64fc_I, 3.0, op);
    }
    for (int op : {1, 2, 3, 5, -1}) {
        expectModeError(qspStsBadArgument, qspsThreshold_16s, Qsp16s(3), op);
        expectModeError(qspStsBadArgument, qspsThreshold_16s_I, Qsp16s(3), op);
        expectModeError(qspStsBadArgument, qspsThreshold_32f, 3.0f, op);
        expectModeError(qspStsBadArgument, qspsThreshold_32f_I, 3.0f, op);
        expectModeError(qspStsBadArgument, qspsThreshold_64f, 3.0, op);
        expectModeError(qspStsBadArgument, qspsThreshold_64f_I, 3.0, op);
        expectModeError(qspStsBadArgument, qspsThreshold_32fc, 3.0f, op);
        expectModeError(qspStsBadArgument, qspsThreshold_32fc_I, 3.0f, op);
        expectModeError(qspStsBadArgument, qspsThreshold_64fc, 3.0, op);
        expectModeError(qspStsBadArgument, qspsThreshold_64fc_I, 3.0, op);
    }
    expectChecks(qspsThreshold_LT_16s, Qsp16s(1));
    expectChecks(qspsThreshold_LT_16s_I, Qsp16s(1));
    expectChecks(qspsThreshold_LT_32s, 1);
    expectChecks(qspsThreshold_LT_32s_I, 1);
    expectChecks(qspsThreshold_LT_32f, 1.0f);
    expectChecks(qspsThreshold_LT_32f_I, 1.0f);
    expectChecks(qspsThreshold_LT_64f, 1.0);
    expectChecks(qspsThreshold_LT_64f_I, 1.0);
    expectChecks(qspsThreshold_LT_32fc, 1.0f);
    expectChecks(qspsThreshold_LT_32fc_I, 1.0f);
    expectChecks(qspsThreshold_LT_64fc, 1.0);
    expectChecks(qspsThreshold_LT_64fc_I, 1.0);
    expectChecks(qspsThreshold_GT_16s, Qsp16s(1));
    expectChecks(qspsThreshold_GT_16s_I, Qsp16s(1));
    expectChecks(qspsThreshold_GT_32s, 1);
    expectChecks(qspsThreshold_GT_32s_I, 1);
    expectChecks(qspsThreshold_GT_32f, 1.0f);
    expectChecks(qspsThreshold_GT_32f_I, 1.0f);
    expectChecks(qspsThreshold_GT_64f, 1.0);
    expectChecks(qspsThreshold_GT_64f_I, 1.0);
    expectChecks(qspsThreshold_GT_32fc, 1.0f);
    expectChecks(qspsThreshold_GT_32fc_I, 1.0f);
    expectChecks(qspsThreshold_GT_64fc, 1.0);
    expectChecks(qspsThreshold_GT_64fc_I, 1.0);
    expectChecks(qspsThreshold_LTVal_16s, Qsp16s(1), Qsp16s(2));
    expectChecks(qspsThreshold_LTVal_16s_I, Qsp16s(1), Qsp16s(2));
    expectChecks(qspsThreshold_LTVal_32f, 1.0f, 2.0f);
    expectChecks(qspsThreshold_LTVal_32f_I, 1.0f, 2.0f);
    expectChecks(qspsThreshold_LTVal_64f, 1.0, 2.0);
    expectChecks(qspsThreshold_LTVal_64f_I, 1.0, 2.0);
    expectChecks(qspsThreshold_LTVal_32fc, 1.0f, Qsp32fc{1, 2});
    expectChecks(qspsThreshold_LTVal_32fc_I, 1.0f, Qsp32fc{1, 2});
    expectChecks(qspsThreshold_LTVal_64fc, 1.0, Qsp64fc{1, 2});
    expectChecks(qspsThreshold_LTVal_64fc_I, 1.0, Qsp64fc{1, 2});
    expectChecks(qspsThreshold_GTVal_16s, Qsp16s(1), Qsp16s(2));
    expectChecks(qspsThreshold_GTVal_16s_I, Qsp16s(1), Qsp16s(2));
    expectChecks(qspsThreshold_GTVal_32f, 1.0f, 2.0f);
    expectChecks(qspsThreshold_GTVal_32f_I, 1.0f, 2.0f);
    expectChecks(qspsThreshold_GTVal_64f, 1.0, 2.0);
    expectChecks(qspsThreshold_GTVal_64f_I, 1.0, 2.0);
    expectChecks(qspsThreshold_GTVal_32fc, 1.0f, Qsp32fc{1, 2});
    expectChecks(qspsThreshold_GTVal_32fc_I, 1.0f, Qsp32fc{1, 2});
    expectChecks(qspsThreshold_GTVal_64fc, 1.0, Qsp64fc{1, 2});
    expectChecks(qspsThreshold_GTVal_64fc_I, 1.0, Qsp64fc{1, 2});
    expectChecks(qspsThreshold_LTAbs_16s, Qsp16s(1));
    expectChecks(qspsThreshold_LTAbs_16s_I, Qsp16s(1));
    expectChecks(qspsThreshold_LTAbs_32s, 1);
    expectChecks(qspsThreshold_LTAbs_32s_I, 1);
    expectChecks(qspsThreshold_LTAbs_32f, 1.0f);
    expectChecks(qspsThreshold_LTAbs_32f_I, 1.0f);
    expectChecks(qspsThreshold_LTAbs_64f, 1.0);
    expectChecks(qspsThreshold_LTAbs_64f_I, 1.0);
    expectChecks(qspsThreshold_LTAbs_32f_L, 1.0f);
    expectChecks(qspsThreshold_LTAbs_32f_I_L, 1.0f);
    expectChecks(qspsThreshold_LTAbs_64f_L, 1.0);
    expectChecks(qspsThreshold_LTAbs_64f_I_L, 1.0);
    expectChecks(qspsThreshold_GTAbs_16s, Qsp16s(1));
    expectChecks(qspsThreshold_GTAbs_16s_I, Qsp16s(1));
    expectChecks(qspsThreshold_GTAbs_32s, 1);
    expectChecks(qspsThreshold_GTAbs_32s_I, 1);
    expectChecks(qspsThreshold_GTAbs_32f, 1.0f);
    expectChecks(qspsThreshold_GTAbs_32f_I, 1.0f);
    expectChecks(qspsThreshold_GTAbs_64f, 1.0);
    expectChecks(qspsThreshold_GTAbs_64f_I, 1.0);
    expectChecks(qspsThreshold_LTAbsVal_16s, Qsp16s(1), Qsp16s(2));
    expectChecks(qspsThreshold_LTAbsVal_16s_I, Qsp16s(1), Qsp16s(2));
    expectChecks(qspsThreshold_LTAbsVal_32s, 1, 2);
    expectChecks(qspsThreshold_LTAbsVal_32s_I, 1, 2);
    expectChecks(qspsThreshold_LTAbsVal_32f, 1.0f, 2.0f);
    expectChecks(qspsThreshold_LTAbsVal_32f_I, 1.0f, 2.0f);
    expectChecks(qspsThreshold_LTAbsVal_64f, 1.0, 2.0);
    expectChecks(qspsThreshold_LTAbsVal_64f_I, 1.0, 2.0);
    expectChecks(qspsThreshold_LTInv_32f, 1.0f);
    expectChecks(qspsThreshold_LTInv_32f_I, 1.0f);
    expectChecks(qspsThreshold_LTInv_64f, 1.0);
    expectChecks(qspsThreshold_LTInv_64f_I, 1.0);
    expectChecks(qspsThreshold_LTInv_32fc, 1.0f);
    expectChecks(qspsThreshold_LTInv_32fc_I, 1.0f);
    expectChecks(qspsThreshold_LTInv_64fc, 1.0);
    expectChecks(qspsThreshold_LTInv_64fc_I, 1.0);
    expectChecks(qspsThreshold_LTValGTVal_16s, Qsp16s(1), Qsp16s(2), Qsp16s(3), Qsp16s(4));
    expectChecks(qspsThreshold_LTValGTVal_16s_I, Qsp16s(1), Qsp16s(2), Qsp16s(3), Qsp16s(4));
    expectChecks(qspsThreshold_LTValGTVal_32s, 1, 2, 3, 4);
    expectChecks(qspsThreshold_LTValGTVal_32s_I, 1, 2, 3, 4);
    expectChecks(qspsThreshold_LTValGTVal_32f, 1.0f, 2.0f, 3.0f, 4.0f);
    expectChecks(qspsThreshold_LTValGTVal_32f_I, 1.0f, 2.0f, 3.0f, 4.0f);
    expectChecks(qspsThreshold_LTValGTVal_64f, 1.0, 2.0, 3.0, 4.0);
    expectChecks(qspsThreshold_LTValGTVal_64f_I, 1.0, 2.0, 3.0, 4.0);
    // A negative level of an Abs or Inv form; levelLT above levelGT.
    expectModeError(qspStsBadThreshold, qspsThreshold_LTAbs_16s, Qsp16s(-1));
    expectModeError(qspStsBadThreshold, qspsThreshold_LTAbs_16s_I, Qsp16s(-1));
    expectModeError(qspStsBadThreshold, qspsThreshold_LTAbs_32s, -1);
    expectModeError(qspStsBadThreshold, qspsThreshold_LTAbs_32s_I, -1);
    expectModeError(qspStsBadThreshold, qspsThreshold_LTAbs_32f, -1.0f);
    expectModeError(qspStsBadThreshold, qspsThreshold_LTAbs_32f_I, -1.0f);
    expectModeError(qspStsBadThreshold, qspsThreshold_LTAbs_64f, -1.0);
    expectModeError(qspStsBadThreshold, qspsThreshold_LTAbs_64f_I, -1.0);
    expectModeError(qspStsBadThreshold, qspsThreshold_LTAbs_32f_L, -1.0f);
    expectModeError(qspStsBadThreshold, qspsThreshold_LTAbs_64f_I_L, -1.0);
    expectModeError(qspStsBadThreshold, qspsThreshold_GTAbs_16s, Qsp16s(-1));
    expectModeError(qspStsBadThreshold, qspsThreshold_GTAbs_16s_I, Qsp16s(-1));
    expectModeError(qspStsBadThreshold, qspsThreshold_GTAbs_32s, -1);
    expectModeError(qspStsBadThreshold, qspsThreshold_GTAbs_32s_I, -1);
    expectModeError(qspStsBadThreshold, qspsThreshold_GTAbs_32f, -1.0f);
    expectModeError(qspStsBadThreshold, qspsThreshold_GTAbs_32f_I, -1.0f);
    expectModeError(qspStsBadThreshold, qspsThreshold_GTAbs_64f, -1.0);
    expectModeError(qspStsBadThreshold, qspsThreshold_GTAbs_64f_I, -1.0);
    expectModeError(qspStsBadThreshold, qspsThreshold_LTAbsVal_16s, Qsp16s(-1), Qsp16s(0));
    expectModeError(qspStsBadThreshold, qspsThreshold_LTAbsVal_32s_I, -1, 0);
    expectModeError(qspStsBadThreshold, qspsThreshold_LTAbsVal_32f, -1.0f, 0.0f);
    expectModeError(qspStsBadThreshold, qspsThreshold_LTAbsVal_64f_I, -1.0, 0.0);
    expectModeError(qspStsBadThreshold, qspsThreshold_LTInv_32f, -1.0f);
    expectModeError(qspStsBadThreshold, qspsThreshold_LTInv_64f_I, -1.0);
    expectModeError(qspStsBadThreshold, qspsThreshold_LTInv_32fc, -1.0f);
    expectModeError(qspStsBadThreshold, qspsThreshold_LTInv_64fc_I, -1.0);
    expectModeError(qspStsBadThreshold, qspsThreshold_LTValGTVal_16s, Qsp16s(5), Qsp16s(0), Qsp16s(4), Qsp16s(0));
    expectModeError(qspStsBadThreshold, qspsThreshold_LTValGTVal_16s_I, Qsp16s(5), Qsp16s(0), Qsp16s(4), Qsp16s(0));
    expectModeError(qspStsBadThreshold, qspsThreshold_LTValGTVal_32s, 5, 0, 4, 0);
    expectModeError(qspStsBadThreshold, qspsThreshold_LTValGTVal_32f_I, 5.0f, 0.0f, 4.0f, 0.0f);
    expectModeError(qspStsBadThreshold, qspsThreshold_LTValGTVal_64f, 5.0, 0.0, 4.0, 0.0);
}

TEST(Threshold, RealModes)
{
    auto all = [](auto zero, auto t, auto tI, auto lt, auto ltI, auto gt, auto gtI) {
        using T = decltype(zero);
        for (T level : arithsweep::gen<T>(3)) {
            auto lo = [&](T x) { return x < level ? level : x; };
            auto hi = [&](T x) { return x > level ? level : x; };
            real<T>([&](auto a, auto d, int n) { return t(a, d, n, level, qspCmpLess); }, [&](auto sd, int n) { return tI(sd, n, level, qspCmpLess); }, lo);
            real<T>([&](auto a, auto d, int n) { return t(a, d, n, level, qspCmpGreater); }, [&](auto sd, int n) { return tI(sd, n, level, qspCmpGreater); }, hi);
            real<T>([&](auto a, auto d, int n) { return lt(a, d, n, level); }, [&](auto sd, int n) { return ltI(sd, n, level); }, lo);
            real<T>([&](auto a, auto d, int n) { return gt(a, d, n, level); }, [&](auto sd, int n) { return gtI(sd, n, level); }, hi);
        }
    };
    all(Qsp16s{}, qspsThreshold_16s, qspsThreshold_16s_I, qspsThreshold_LT_16s, qspsThreshold_LT_16s_I, qspsThreshold_GT_16s, qspsThreshold_GT_16s_I);
    all(Qsp32f{}, qspsThreshold_32f, qspsThreshold_32f_I, qspsThreshold_LT_32f, qspsThreshold_LT_32f_I, qspsThreshold_GT_32f, qspsThreshold_GT_32f_I);
    all(Qsp64f{}, qspsThreshold_64f, qspsThreshold_64f_I, qspsThreshold_LT_64f, qspsThreshold_LT_64f_I, qspsThreshold_GT_64f, qspsThreshold_GT_64f_I);
    for (Qsp32s level : arithsweep::gen<Qsp32s>(3)) {
        real<Qsp32s>([&](auto a, auto d, int n) { return qspsThreshold_LT_32s(a, d, n, level); },
                     [&](auto sd, int n) { return qspsThreshold_LT_32s_I(sd, n, level); }, [&](Qsp32s x) { return x < level ? level : x; });
        real<Qsp32s>([&](auto a, auto d, int n) { return qspsThreshold_GT_32s(a, d, n, level); },
                     [&](auto sd, int n) { return qspsThreshold_GT_32s_I(sd, n, level); }, [&](Qsp32s x) { return x > level ? level : x; });
    }
    // Values.
    auto vals = [](auto zero, auto ltv, auto ltvI, auto gtv, auto gtvI) {
        using T = decltype(zero);
        const std::vector<T> lv = arithsweep::gen<T>(6);
        for (int k = 0; k < 3; ++k) {
            const T level = lv[2 * k], value = lv[2 * k + 1];
            real<T>([&](auto a, auto d, int n) { return ltv(a, d, n, level, value); }, [&](auto sd, int n) { return ltvI(sd, n, level, value); },
                    [&](T x) { return x < level ? value : x; });
            real<T>([&](auto a, auto d, int n) { return gtv(a, d, n, level, value); }, [&](auto sd, int n) { return gtvI(sd, n, level, value); },
                    [&](T x) { return x > level ? value : x; });
        }
    };
    vals(Qsp16s{}, qspsThreshold_LTVal_16s, qspsThreshold_LTVal_16s_I, qspsThreshold_GTVal_16s, qspsThreshold_GTVal_16s_I);
    vals(Qsp32f{}, qspsThreshold_LTVal_32f, qspsThreshold_LTVal_32f_I, qspsThreshold_GTVal_32f, qspsThreshold_GTVal_32f_I);
    vals(Qsp64f{}, qspsThreshold_LTVal_64f, qspsThreshold_LTVal_64f_I, qspsThreshold_GTVal_64f, qspsThreshold_GTVal_64f_I);
    // Both sides at once.
    auto both = [](auto zero, auto fn, auto fnI) {
        using T = decltype(zero);
        std::vector<T> v = arithsweep::gen<T>(4);
        if (v[2] < v[0]) std::swap(v[0], v[2]);
        real<T>([&](auto a, auto d, int n) { return fn(a, d, n, v[0], v[1], v[2], v[3]); },
                [&](auto sd, int n) { return fnI(sd, n, v[0], v[1], v[2], v[3]); },
                [&](T x) { return x < v[0] ? v[1] : x > v[2] ? v[3] : x; });
    };
    for (int k = 0; k < 3; ++k) {
        both(Qsp16s{}, qspsThreshold_LTValGTVal_16s, qspsThreshold_LTValGTVal_16s_I);
        both(Qsp32s{}, qspsThreshold_LTValGTVal_32s, qspsThreshold_LTValGTVal_32s_I);
        both(Qsp32f{}, qspsThreshold_LTValGTVal_32f, qspsThreshold_LTValGTVal_32f_I);
        both(Qsp64f{}, qspsThreshold_LTValGTVal_64f, qspsThreshold_LTValGTVal_64f_I);
    }
}

TEST(Threshold, AbsModes)
{
    auto abs = [](auto zero, auto lta, auto ltaI, auto gta, auto gtaI, auto ltav, auto ltavI) {
        using T = decltype(zero);
        for (T level : arithsweep::gen<T>(4)) {
            if (neg(level)) level = T(-(level + (std::is_integral_v<T> ? 1 : 0)));
            if (neg(level)) level = T(0);
            const T value = arithsweep::gen<T>(1)[0];
            auto signedLevel = [&](T x) { return neg(x) ? T(-level) : level; };
            real<T>([&](auto a, auto d, int n) { return lta(a, d, n, level); }, [&](auto sd, int n) { return ltaI(sd, n, level); },
                    [&](T x) { return mag(x) < mag(level) ? signedLevel(x) : x; });
            real<T>([&](auto a, auto d, int n) { return gta(a, d, n, level); }, [&](auto sd, int n) { return gtaI(sd, n, level); },
                    [&](T x) { return mag(x) > mag(level) ? signedLevel(x) : x; });
            real<T>([&](auto a, auto d, int n) { return ltav(a, d, n, level, value); },
                    [&](auto sd, int n) { return ltavI(sd, n, level, value); }, [&](T x) { return mag(x) < mag(level) ? value : x; });
        }
    };
    abs(Qsp16s{}, qspsThreshold_LTAbs_16s, qspsThreshold_LTAbs_16s_I, qspsThreshold_GTAbs_16s, qspsThreshold_GTAbs_16s_I,
        qspsThreshold_LTAbsVal_16s, qspsThreshold_LTAbsVal_16s_I);
    abs(Qsp32s{}, qspsThreshold_LTAbs_32s, qspsThreshold_LTAbs_32s_I, qspsThreshold_GTAbs_32s, qspsThreshold_GTAbs_32s_I,
        qspsThreshold_LTAbsVal_32s, qspsThreshold_LTAbsVal_32s_I);
    abs(Qsp32f{}, qspsThreshold_LTAbs_32f, qspsThreshold_LTAbs_32f_I, qspsThreshold_GTAbs_32f, qspsThreshold_GTAbs_32f_I,
        qspsThreshold_LTAbsVal_32f, qspsThreshold_LTAbsVal_32f_I);
    abs(Qsp64f{}, qspsThreshold_LTAbs_64f, qspsThreshold_LTAbs_64f_I, qspsThreshold_GTAbs_64f, qspsThreshold_GTAbs_64f_I,
        qspsThreshold_LTAbsVal_64f, qspsThreshold_LTAbsVal_64f_I);
    const Qsp32f level = 0.5f;
    auto lt = [&](Qsp32f x) { return std::fabs(x) < level ? (std::signbit(x) ? -level : level) : x; };
    real<Qsp32f>([&](auto a, auto d, int n) { return qspsThreshold_LTAbs_32f_L(a, d, n, level); },
                 [&](auto sd, int n) { return qspsThreshold_LTAbs_32f_I_L(sd, n, level); }, lt);
    real<Qsp64f>([&](auto a, auto d, int n) { return qspsThreshold_LTAbs_64f_L(a, d, n, 0.5); },
                 [&](auto sd, int n) { return qspsThreshold_LTAbs_64f_I_L(sd, n, 0.5); },
                 [&](Qsp64f x) { return std::fabs(x) < 0.5 ? (std::signbit(x) ? -0.5 : 0.5) : x; });
    // |-32768| is 32768: above every 16-bit level, below none.
    const Qsp16s m[] = {-32768, 0, -5};
    Qsp16s d[3];
    ASSERT_EQ(qspsThreshold_GTAbs_16s(m, d, 3, 32767), qspStsOk);
    EXPECT_EQ(d[0], -32767);
    ASSERT_EQ(qspsThreshold_LTAbs_16s(m, d, 3, 32767), qspStsOk);
    EXPECT_EQ(d[0], -32768);
    EXPECT_EQ(d[1], 32767);
    EXPECT_EQ(d[2], -32767);
}

TEST(Threshold, SpecialFloatingValuesStay)
{
    const Qsp32f s[] = {NAN, -0.0f, INFINITY, -INFINITY, 0.0f};
    Qsp32f d[5];
    ASSERT_EQ(qspsThreshold_LT_32f(s, d, 5, 0.0f), qspStsOk);
    EXPECT_TRUE(std::isnan(d[0]));
    EXPECT_TRUE(qsptest::sameBits(d[1], -0.0f));  // -0 is not below +0
    EXPECT_EQ(d[3], 0.0f);
    ASSERT_EQ(qspsThreshold_GTVal_32f(s, d, 5, 1.0f, 7.0f), qspStsOk);
    EXPECT_TRUE(std::isnan(d[0]));
    EXPECT_EQ(d[2], 7.0f);
    ASSERT_EQ(qspsThreshold_LTAbs_32f(s, d, 5, 2.0f), qspStsOk);
    EXPECT_TRUE(std::isnan(d[0]));
    EXPECT_EQ(d[1], -2.0f);  // the sign of -0 is kept
    EXPECT_EQ(d[4], 2.0f);
}

TEST(Threshold, SixteenBitLevelsAreSignExtended)
{
    // Levels and values passed as 16-bit integers keep their sign.
    const Qsp16s s[] = {-30000, -100, 0, 100, 30000};
    Qsp16s d[5];
    ASSERT_EQ(qspsThreshold_LTValGTVal_16s(s, d, 5, -200, -32768, 200, -1), qspStsOk);
    const Qsp16s expected[] = {-32768, -100, 0, 100, -1};
    for (int i = 0; i < 5; ++i) EXPECT_EQ(d[i], expected[i]) << i;
    EXPECT_EQ(qspsThreshold_LTValGTVal_16s(s, d, 5, 1, 0, -1, 0), qspStsBadThreshold);
    Qsp16s sd[] = {-30000, 30000};
    ASSERT_EQ(qspsThreshold_LTValGTVal_16s_I(sd, 2, -1, -2, 1, -3), qspStsOk);
    EXPECT_EQ(sd[0], -2);
    EXPECT_EQ(sd[1], -3);
}

TEST(Threshold, Inverse)
{
    for (Qsp32f level : {0.5f, 0.0f, 3.0f}) {
        auto gen = +[](size_t n) {
            std::vector<Qsp32f> v = arithref::floats<Qsp32f>(n, 4);
            for (auto& x : v)
                if (x == 0) x = 0.25f;
            return v;
        };
        arithsweep::unary<Qsp32f, Qsp32f>(
            [&](auto a, auto d, int n) { return qspsThreshold_LTInv_32f(a, d, n, level); },
            [&](Qsp32f x, Qsp32f got) {
                const Qsp32f y = std::fabs(x) < level ? std::copysign(level, x) : x;
                return equals(got, 1.0f / y);
            },
            [&](auto sd, int n) { return qspsThreshold_LTInv_32f_I(sd, n, level); }, qspStsOk, arithref::sweepLengths(), gen);
    }
    const Qsp64f z[] = {0.0, -0.0, 4.0};
    Qsp64f d[3];
    ASSERT_EQ(qspsThreshold_LTInv_64f(z, d, 3, 0.5), qspStsOk);
    EXPECT_EQ(d[0], 2.0);
    EXPECT_EQ(d[1], -2.0);
    EXPECT_EQ(d[2], 0.25);
    ASSERT_EQ(qspsThreshold_LTInv_64f(z, d, 3, 0.0), qspStsWarnDivByZero);
    EXPECT_EQ(d[0], INFINITY);
    EXPECT_EQ(d[1], -INFINITY);
    EXPECT_EQ(d[2], 0.25);
    const Qsp32fc c[] = {{0, 0}, {0.1f, 0}, {0, -4}};
    Qsp32fc e[3];
    ASSERT_EQ(qspsThreshold_LTInv_32fc(c, e, 3, 0.5f), qspStsOk);
    EXPECT_FLOAT_EQ(e[0].re, 2.0f);
    EXPECT_FLOAT_EQ(e[1].re, 2.0f);
    EXPECT_FLOAT_EQ(e[2].im, 0.25f);
    ASSERT_EQ(qspsThreshold_LTInv_32fc(c, e, 3, 0.0f), qspStsWarnDivByZero);
    Qsp64fc f[] = {{3, 4}, {0, 0}};
    ASSERT_EQ(qspsThreshold_LTInv_64fc_I(f, 2, 10.0), qspStsOk);
    EXPECT_NEAR(f[0].re, 0.06, 1e-15);  // (6, 8) inverted
    EXPECT_NEAR(f[0].im, -0.08, 1e-15);
    EXPECT_NEAR(f[1].re, 0.1, 1e-15);
}

TEST(Threshold, ComplexModesKeepThePhase)
{
    auto run = [](auto zero, auto t, auto tI, auto lt, auto ltI, auto gt, auto gtI, auto ltv, auto ltvI, auto gtv, auto gtvI) {
        using C = decltype(zero);
        using P = decltype(zero.re);
        const P level = P(1000);
        const C value{P(7), P(-7)};
        // Magnitude m of z; below (above) the level z becomes level * z / m.
        auto scaledTo = [&](C z, bool below) {
            const LD m = std::hypot(LD(z.re), LD(z.im));
            const bool hit = below ? m < level : m > level;
            if (!hit) return std::pair<LD, LD>(z.re, z.im);
            if (m == 0) return std::pair<LD, LD>(level, 0);
            return std::pair<LD, LD>(z.re * (level / m), z.im * (level / m));
        };
        auto near = [&](bool below) {
            return [=](C z, C got) {
                const auto e = scaledTo(z, below);
                const LD tol = 4 * std::ldexp(1.0L, 1 - std::numeric_limits<P>::digits) * (std::fabs(e.first) + std::fabs(e.second));
                if (std::fabs(got.re - e.first) <= tol && std::fabs(got.im - e.second) <= tol) return testing::AssertionSuccess();
                return testing::AssertionFailure() << "expected (" << double(e.first) << ", " << double(e.second) << ")";
            };
        };
        arithsweep::unary<C, C>([&](auto a, auto d, int n) { return t(a, d, n, level, qspCmpLess); }, near(true),
                                [&](auto sd, int n) { return tI(sd, n, level, qspCmpLess); });
        arithsweep::unary<C, C>([&](auto a, auto d, int n) { return t(a, d, n, level, qspCmpGreater); }, near(false),
                                [&](auto sd, int n) { return tI(sd, n, level, qspCmpGreater); });
        arithsweep::unary<C, C>([&](auto a, auto d, int n) { return lt(a, d, n, level); }, near(true),
                                [&](auto sd, int n) { return ltI(sd, n, level); });
        arithsweep::unary<C, C>([&](auto a, auto d, int n) { return gt(a, d, n, level); }, near(false),
                                [&](auto sd, int n) { return gtI(sd, n, level); });
        auto val = [&](bool below) {
            return [=](C z, C got) {
                const LD m = std::hypot(LD(z.re), LD(z.im));
                return equals(got, (below ? m < level : m > level) ? value : z);
            };
        };
        arithsweep::unary<C, C>([&](auto a, auto d, int n) { return ltv(a, d, n, level, value); }, val(true),
                                [&](auto sd, int n) { return ltvI(sd, n, level, value); });
        arithsweep::unary<C, C>([&](auto a, auto d, int n) { return gtv(a, d, n, level, value); }, val(false),
                                [&](auto sd, int n) { return gtvI(sd, n, level, value); });
    };
    run(Qsp32fc{}, qspsThreshold_32fc, qspsThreshold_32fc_I, qspsThreshold_LT_32fc, qspsThreshold_LT_32fc_I, qspsThreshold_GT_32fc,
        qspsThreshold_GT_32fc_I, qspsThreshold_LTVal_32fc, qspsThreshold_LTVal_32fc_I, qspsThreshold_GTVal_32fc,
        qspsThreshold_GTVal_32fc_I);
    run(Qsp64fc{}, qspsThreshold_64fc, qspsThreshold_64fc_I, qspsThreshold_LT_64fc, qspsThreshold_LT_64fc_I, qspsThreshold_GT_64fc,
        qspsThreshold_GT_64fc_I, qspsThreshold_LTVal_64fc, qspsThreshold_LTVal_64fc_I, qspsThreshold_GTVal_64fc,
        qspsThreshold_GTVal_64fc_I);
}

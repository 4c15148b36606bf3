// SPDX-License-Identifier: BSD-3-Clause
// Phase: atan2(im, re) of complex elements, against the long double
// arctangent, with the measured error bounds.
#include "arith_families.h"

using namespace arithfam;
using arithchecks::expectChecks;

namespace {
LD angle(LD im, LD re) { return std::atan2(im, re); }
}  // namespace

TEST(Phase, ArgumentChecks)
{
    expectChecks(qspsPhase_32fc);
    expectChecks(qspsPhase_64fc);
    expectChecks(qspsPhase_32f);
    expectChecks(qspsPhase_64f);
    expectChecks(qspsPhase_16sc32f);
    expectChecks(qspsPhase_16sc_Sfs, 0);
}

TEST(Phase, AnglesWithinTheStatedBounds)
{
    // Double results within 2.5 ULP; single results are the double angle
    // rounded once more: 0.5 ULP plus 2^-20 ULP.
    constexpr double single = 0.5 + 1.0 / (1 << 20);
    arithsweep::unary<Qsp32fc, Qsp32f>(
        qspsPhase_32fc, [](Qsp32fc a, Qsp32f got) { return arithsweep::withinUlps(got, angle(a.im, a.re), single); });
    arithsweep::unary<Qsp64fc, Qsp64f>(
        qspsPhase_64fc, [](Qsp64fc a, Qsp64f got) { return arithsweep::withinUlps(got, angle(a.im, a.re), 2.5); });
    arithsweep::binary<Qsp32f, Qsp32f, Qsp32f>(
        qspsPhase_32f, [](Qsp32f r, Qsp32f i, Qsp32f got) { return arithsweep::withinUlps(got, angle(i, r), single); });
    arithsweep::binary<Qsp64f, Qsp64f, Qsp64f>(
        qspsPhase_64f, [](Qsp64f r, Qsp64f i, Qsp64f got) { return arithsweep::withinUlps(got, angle(i, r), 2.5); });
    arithsweep::unary<Qsp16sc, Qsp32f>(
        qspsPhase_16sc32f, [](Qsp16sc a, Qsp32f got) { return arithsweep::withinUlps(got, angle(a.im, a.re), single); });
}

TEST(Phase, MeasuredErrorOverManyAngles)
{
    // A dense sweep of double angles: the largest error stays below 2.5 ULP
    // (measured: about 2.03).
    double worst = 0;
    const int n = 200000;
    std::vector<Qsp64f> re(n), im(n), d(n);
    std::uniform_real_distribution<double> u(-1.0, 1.0);
    for (int i = 0; i < n; ++i) {
        re[i] = u(qsptest::rng());
        im[i] = u(qsptest::rng()) * std::ldexp(1.0, int(qsptest::rng()() % 60) - 30);
    }
    ASSERT_EQ(qspsPhase_64f(re.data(), im.data(), d.data(), n), qspStsOk);
    for (int i = 0; i < n; ++i) worst = std::max(worst, arithref::ulpError(d[i], angle(im[i], re[i])));
    EXPECT_LT(worst, 2.5);
    RecordProperty("worst_ulp_64f", std::to_string(worst));
}

TEST(Phase, SpecialValues)
{
    const Qsp64f re[] = {1, -1, -1, 0, 0, -0.0, INFINITY, -INFINITY, INFINITY, NAN, 1};
    const Qsp64f im[] = {0, 0, -0.0, 0, -0.0, 0, INFINITY, INFINITY, 1, 1, NAN};
    const double pi = 3.141592653589793;
    const double expected[] = {0, pi, -pi, 0, -0.0, pi, pi / 4, 3 * pi / 4, 0, NAN, NAN};
    Qsp64f d[11];
    ASSERT_EQ(qspsPhase_64f(re, im, d, 11), qspStsOk);
    for (int i = 0; i < 11; ++i) {
        if (std::isnan(expected[i])) EXPECT_TRUE(std::isnan(d[i])) << i;
        else EXPECT_TRUE(qsptest::sameBits(d[i], expected[i])) << i << " " << d[i];
    }
}

TEST(Phase, SpecialValuesInEveryLaneMatchTheOneElementPath)
{
    // Each special pair at every position of short vectors of ordinary
    // angles: the whole-vector result equals the one-element result bit for
    // bit, for double and single precision.
    const Qsp64f specialRe[] = {1, -1, -1, 0, 0, -0.0, INFINITY, -INFINITY, INFINITY, NAN, 1, -2, 1e-310};
    const Qsp64f specialIm[] = {0, 0, -0.0, 0, -0.0, 0, INFINITY, INFINITY, 1, 1, NAN, -INFINITY, -1e-310};
    for (int s = 0; s < 13; ++s)
        for (int len = 1; len <= 6; ++len)
            for (int at = 0; at < len; ++at) {
                std::vector<Qsp64f> re(len), im(len), d(len);
                for (int i = 0; i < len; ++i) re[i] = 0.75 - i, im[i] = 0.5 * i - 1;
                re[at] = specialRe[s], im[at] = specialIm[s];
                ASSERT_EQ(qspsPhase_64f(re.data(), im.data(), d.data(), len), qspStsOk);
                std::vector<Qsp32fc> c(len);
                std::vector<Qsp32f> f(len);
                for (int i = 0; i < len; ++i) c[i] = {Qsp32f(re[i]), Qsp32f(im[i])};
                ASSERT_EQ(qspsPhase_32fc(c.data(), f.data(), len), qspStsOk);
                for (int i = 0; i < len; ++i) {
                    Qsp64f one;
                    Qsp32f oneF;
                    ASSERT_EQ(qspsPhase_64f(&re[i], &im[i], &one, 1), qspStsOk);
                    ASSERT_EQ(qspsPhase_32fc(&c[i], &oneF, 1), qspStsOk);
                    EXPECT_TRUE(qsptest::sameBits(d[i], one)) << s << " " << len << " " << at << " " << i;
                    EXPECT_TRUE(qsptest::sameBits(f[i], oneF)) << s << " " << len << " " << at << " " << i;
                }
            }
}

TEST(Phase, Scaled16sc)
{
    for (int sf : {-13, -12, -5, 0, 1, 2, 3}) {
        arithsweep::unary<Qsp16sc, Qsp16s>(
            [&](auto a, auto d, int len) { return qspsPhase_16sc_Sfs(a, d, len, sf); },
            [&](Qsp16sc a, Qsp16s got) {
                const LD v = angle(a.im, a.re) * std::ldexp(1.0L, -sf);
                return equals(got, Qsp16s(v > 32767 ? 32767 : v < -32768 ? -32768 : std::nearbyint(v)));
            },
            nullptr, qspStsOk, arithsweep::shortLengths());
    }
}

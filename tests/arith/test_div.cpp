// SPDX-License-Identifier: BSD-3-Clause
// Div: the second source divided by the first, in every form; zero
// divisors give the warning after the whole output is written.
#include "arith_families.h"

using namespace arithfam;
using arithchecks::expectChecks;

namespace {
// Operands without zero divisors (zero divisors have tests of their own).
template <class T>
std::vector<T> nonZero(size_t n)
{
    std::vector<T> v = arithsweep::gen<T>(n);
    for (auto& x : v) {
        if constexpr (std::is_arithmetic_v<T>) {
            if (x == T(0)) x = T(1);
        } else if (x.re == 0 && x.im == 0) {
            x.re = 1;
        }
    }
    return v;
}

auto quot = [](auto a, auto b) { return LD(b) / LD(a); };

template <class S>
void scaledDiv(QspStatus (*fn)(const S*, const S*, S*, int, int), QspStatus (*fnI)(const S*, S*, int, int))
{
    for (int sf = -40; sf <= 40; ++sf) {
        arithsweep::binary<S, S, S>(
            [&](auto a, auto b, auto d, int len) { return fn(a, b, d, len, sf); },
            [&](S a, S b, S got) { return equals(got, arithref::quotient<S>(b, a, sf)); },
            [&](auto a, auto sd, int len) { return fnI(a, sd, len, sf); }, qspStsOk,
            sf == 0 || sf == 5 ? arithref::sweepLengths() : arithsweep::shortLengths(), nonZero<S>);
        if (testing::Test::HasFatalFailure()) {
            ADD_FAILURE() << "scale factor " << sf;
            return;
        }
    }
}
}  // namespace

TEST(Div, ArgumentChecks)
{
    expectChecks(qspsDiv_32f);
    expectChecks(qspsDiv_32f_I);
    expectChecks(qspsDiv_64f);
    expectChecks(qspsDiv_64f_I);
    expectChecks(qspsDiv_32fc);
    expectChecks(qspsDiv_32fc_I);
    expectChecks(qspsDiv_64fc);
    expectChecks(qspsDiv_64fc_I);
    for (int sf : {0, 1, 5, 40, -5, -40}) {
        expectChecks(qspsDiv_8u_Sfs, sf);
        expectChecks(qspsDiv_8u_ISfs, sf);
        expectChecks(qspsDiv_16s_Sfs, sf);
        expectChecks(qspsDiv_16s_ISfs, sf);
        expectChecks(qspsDiv_16u_Sfs, sf);
        expectChecks(qspsDiv_16u_ISfs, sf);
        expectChecks(qspsDiv_32s_Sfs, sf);
        expectChecks(qspsDiv_32s_ISfs, sf);
        expectChecks(qspsDiv_16sc_Sfs, sf);
        expectChecks(qspsDiv_16sc_ISfs, sf);
    }
    expectChecks(qspsDiv_32f_L);
    expectChecks(qspsDiv_32f_I_L);
    expectChecks(qspsDiv_64f_L);
    expectChecks(qspsDiv_64f_I_L);
    expectChecks(qspsDiv_32fc_L);
    expectChecks(qspsDiv_32fc_I_L);
    expectChecks(qspsDiv_64fc_L);
    expectChecks(qspsDiv_64fc_I_L);
}

TEST(Div, OperandOrderIsSecondOverFirst)
{
    const Qsp32f a[] = {4.0f}, b[] = {1.0f};
    Qsp32f d[1];
    ASSERT_EQ(qspsDiv_32f(a, b, d, 1), qspStsOk);
    EXPECT_EQ(d[0], 0.25f);
    Qsp32f sd[] = {1.0f};
    ASSERT_EQ(qspsDiv_32f_I(a, sd, 1), qspStsOk);
    EXPECT_EQ(sd[0], 0.25f);
}

TEST(Div, ZeroDivisorsWarnAfterTheWholeOutput)
{
    for (int at : {0, 3, 16, 38}) {
        std::vector<Qsp32f> a(39, 2.0f), b(39, 6.0f), d(39, 0.0f);
        a[at] = at % 2 ? -0.0f : 0.0f;
        ASSERT_EQ(qspsDiv_32f(a.data(), b.data(), d.data(), 39), qspStsWarnDivByZero) << at;
        for (int i = 0; i < 39; ++i)
            if (i != at) ASSERT_EQ(d[i], 3.0f);
        EXPECT_TRUE(std::isinf(d[at]));
        std::vector<Qsp64f> a2(39, 2.0), b2(39, 6.0), d2(39, 0.0);
        a2[at] = 0.0;
        b2[at] = 0.0;
        ASSERT_EQ(qspsDiv_64f_I(a2.data(), b2.data(), 39), qspStsWarnDivByZero) << at;
        EXPECT_TRUE(std::isnan(b2[at]));
        EXPECT_EQ(b2[(at + 1) % 39], 3.0);
        std::vector<Qsp16s> x(39, 2), y(39, 7), z(39, 0);
        x[at] = 0;
        y[at] = Qsp16s(at % 2 ? -5 : 5);
        ASSERT_EQ(qspsDiv_16s_Sfs(x.data(), y.data(), z.data(), 39, 0), qspStsWarnDivByZero);
        EXPECT_EQ(z[at], at % 2 ? -32768 : 32767);
        EXPECT_EQ(z[(at + 1) % 39], 4);  // 3.5 to even
        y[at] = 0;
        ASSERT_EQ(qspsDiv_16s_Sfs(x.data(), y.data(), z.data(), 39, 0), qspStsWarnDivByZero);
        EXPECT_EQ(z[at], 0);
        std::vector<Qsp32fc> c(39, Qsp32fc{1, 1}), e(39, Qsp32fc{2, 2}), f(39);
        c[at] = Qsp32fc{0.0f, -0.0f};
        ASSERT_EQ(qspsDiv_32fc(c.data(), e.data(), f.data(), 39), qspStsWarnDivByZero);
        EXPECT_EQ(f[(at + 1) % 39].re, 2.0f);
    }
    // A NaN divisor is not zero.
    const Qsp32f n[] = {NAN}, one[] = {1.0f};
    Qsp32f r[1];
    EXPECT_EQ(qspsDiv_32f(n, one, r, 1), qspStsOk);
    // Unsigned and wide integer zero divisors.
    const Qsp8u u0[] = {0, 0}, u1[] = {9, 0};
    Qsp8u u2[2];
    EXPECT_EQ(qspsDiv_8u_Sfs(u0, u1, u2, 2, 3), qspStsWarnDivByZero);
    EXPECT_EQ(u2[0], 255);
    EXPECT_EQ(u2[1], 0);
    const Qsp32s w0[] = {0, 0, 0}, w1[] = {-9, 9, 0};
    Qsp32s w2[3];
    EXPECT_EQ(qspsDiv_32s_Sfs(w0, w1, w2, 3, -3), qspStsWarnDivByZero);
    EXPECT_EQ(w2[0], -2147483647 - 1);
    EXPECT_EQ(w2[1], 2147483647);
    EXPECT_EQ(w2[2], 0);
    const Qsp16sc c0[] = {{0, 0}}, c1[] = {{5, -5}};
    Qsp16sc c2[1];
    EXPECT_EQ(qspsDiv_16sc_Sfs(c0, c1, c2, 1, 0), qspStsWarnDivByZero);
    EXPECT_EQ(c2[0].re, 32767);
    EXPECT_EQ(c2[0].im, -32768);
    // The _L forms return the status of their (one) chunk.
    const Qsp32f z0[] = {0.0f};
    EXPECT_EQ(qspsDiv_32f_L(z0, one, r, 1), qspStsWarnDivByZero);
}

TEST(Div, ScaledIntegersAreExactAtEveryScaleFactor)
{
    scaledDiv(qspsDiv_8u_Sfs, qspsDiv_8u_ISfs);
    scaledDiv(qspsDiv_16s_Sfs, qspsDiv_16s_ISfs);
    scaledDiv(qspsDiv_16u_Sfs, qspsDiv_16u_ISfs);
    scaledDiv(qspsDiv_32s_Sfs, qspsDiv_32s_ISfs);
    for (int sf = -40; sf <= 40; sf += 3) {
        arithsweep::binary<Qsp16sc, Qsp16sc, Qsp16sc>(
            [&](auto a, auto b, auto d, int len) { return qspsDiv_16sc_Sfs(a, b, d, len, sf); },
            [&](Qsp16sc a, Qsp16sc b, Qsp16sc got) {
                const i128 d = i128(a.re) * a.re + i128(a.im) * a.im;
                const i128 re = i128(b.re) * a.re + i128(b.im) * a.im, im = i128(b.im) * a.re - i128(b.re) * a.im;
                return equals(got, Qsp16sc{arithref::quotient<Qsp16s>(re, d, sf), arithref::quotient<Qsp16s>(im, d, sf)});
            },
            [&](auto a, auto sd, int len) { return qspsDiv_16sc_ISfs(a, sd, len, sf); }, qspStsOk,
            arithsweep::shortLengths(), nonZero<Qsp16sc>);
        if (HasFatalFailure()) return;
    }
}

TEST(Div, FloatingQuotients)
{
    // The long double quotient carries its own rounding (2^-64), so the
    // bound is a correctly rounded 0.5 ULP plus that.
    arithsweep::binary<Qsp32f, Qsp32f, Qsp32f>(
        qspsDiv_32f, [](Qsp32f a, Qsp32f b, Qsp32f got) { return arithsweep::withinUlps(got, quot(a, b), kHalfUlp); },
        qspsDiv_32f_I, qspStsOk, arithref::sweepLengths(), nonZero<Qsp32f>);
    arithsweep::binary<Qsp64f, Qsp64f, Qsp64f>(
        qspsDiv_64f, [](Qsp64f a, Qsp64f b, Qsp64f got) { return arithsweep::withinUlps(got, quot(a, b), kHalfUlp); },
        qspsDiv_64f_I, qspStsOk, arithref::sweepLengths(), nonZero<Qsp64f>);
    arithsweep::binary<Qsp32f, Qsp32f, Qsp32f>(
        viaL(qspsDiv_32f_L), [](Qsp32f a, Qsp32f b, Qsp32f got) { return arithsweep::withinUlps(got, quot(a, b), kHalfUlp); },
        viaL(qspsDiv_32f_I_L), qspStsOk, arithref::sweepLengths(), nonZero<Qsp32f>);
    arithsweep::binary<Qsp64f, Qsp64f, Qsp64f>(
        viaL(qspsDiv_64f_L), [](Qsp64f a, Qsp64f b, Qsp64f got) { return arithsweep::withinUlps(got, quot(a, b), kHalfUlp); },
        viaL(qspsDiv_64f_I_L), qspStsOk, arithref::sweepLengths(), nonZero<Qsp64f>);
}

TEST(Div, ComplexFloatingQuotients)
{
    // 32fc: each part within 0.5 ULP plus 2^-20 ULP (the double-precision
    // intermediate). 64fc: each part within 6 * 2^-53 * |b| / |a|.
    auto c32 = [](Qsp32fc a, Qsp32fc b, Qsp32fc got) {
        const LD d = LD(a.re) * a.re + LD(a.im) * a.im;
        const LD re = (LD(b.re) * a.re + LD(b.im) * a.im) / d, im = (LD(b.im) * a.re - LD(b.re) * a.im) / d;
        const testing::AssertionResult r = arithsweep::withinUlps(got.re, re, 0.5 + 1.0 / (1 << 20));
        return r ? arithsweep::withinUlps(got.im, im, 0.5 + 1.0 / (1 << 20)) : r;
    };
    auto c64 = [](Qsp64fc a, Qsp64fc b, Qsp64fc got) {
        const LD d = LD(a.re) * a.re + LD(a.im) * a.im;
        const LD re = (LD(b.re) * a.re + LD(b.im) * a.im) / d, im = (LD(b.im) * a.re - LD(b.re) * a.im) / d;
        const LD bound = 6 * std::ldexp(1.0L, -53) * std::sqrt((LD(b.re) * b.re + LD(b.im) * b.im) / d);
        if (std::fabs(got.re - re) <= bound && std::fabs(got.im - im) <= bound) return testing::AssertionSuccess();
        return testing::AssertionFailure() << "exact (" << double(re) << ", " << double(im) << ")";
    };
    arithsweep::binary<Qsp32fc, Qsp32fc, Qsp32fc>(qspsDiv_32fc, c32, qspsDiv_32fc_I, qspStsOk,
                                                  arithref::sweepLengths(), nonZero<Qsp32fc>);
    arithsweep::binary<Qsp64fc, Qsp64fc, Qsp64fc>(qspsDiv_64fc, c64, qspsDiv_64fc_I, qspStsOk,
                                                  arithref::sweepLengths(), nonZero<Qsp64fc>);
    arithsweep::binary<Qsp32fc, Qsp32fc, Qsp32fc>(viaL(qspsDiv_32fc_L), c32, viaL(qspsDiv_32fc_I_L), qspStsOk,
                                                  arithsweep::shortLengths(), nonZero<Qsp32fc>);
    arithsweep::binary<Qsp64fc, Qsp64fc, Qsp64fc>(viaL(qspsDiv_64fc_L), c64, viaL(qspsDiv_64fc_I_L), qspStsOk,
                                                  arithsweep::shortLengths(), nonZero<Qsp64fc>);
    // Huge and tiny divisors neither overflow nor underflow in 64fc.
    const Qsp64fc a[] = {{1e300, 1e300}, {1e-300, -1e-300}}, b[] = {{1e300, 0}, {1e-300, 0}};
    Qsp64fc d[2];
    ASSERT_EQ(qspsDiv_64fc(a, b, d, 2), qspStsOk);
    EXPECT_NEAR(d[0].re, 0.5, 1e-15);
    EXPECT_NEAR(d[0].im, -0.5, 1e-15);
    EXPECT_NEAR(d[1].re, 0.5, 1e-15);
    EXPECT_NEAR(d[1].im, 0.5, 1e-15);
}

TEST(Div, SinglePrecisionComplexExtremesNeitherOverflowNorUnderflow)
{
    // Parts from the largest to the smallest denormal, in every lane: the
    // quotient is formed in double, so each part is the long double one
    // rounded (0.5 ULP plus 2^-20 ULP), and a zero divisor gives IEEE
    // infinities or NaN with the warning.
    const float parts[] = {3.4e38f, -3.4e38f, 1.4e-45f, -1.4e-45f, 1e-30f, 1.0f, -7.5f, 0.0f};
    std::vector<Qsp32fc> a, b;
    for (float ar : parts)
        for (float ai : parts)
            for (float br : {1.0f, -3.4e38f, 1.4e-45f})
                a.push_back({ar, ai}), b.push_back({br, ai});
    const int n = int(a.size());
    std::vector<Qsp32fc> d(n);
    ASSERT_EQ(qspsDiv_32fc(a.data(), b.data(), d.data(), n), qspStsWarnDivByZero);
    for (int i = 0; i < n; ++i) {
        const LD den = LD(a[i].re) * a[i].re + LD(a[i].im) * a[i].im;
        if (den == 0) {
            EXPECT_FALSE(std::isfinite(d[i].re)) << i;
            continue;
        }
        const LD re = (LD(b[i].re) * a[i].re + LD(b[i].im) * a[i].im) / den;
        const LD im = (LD(b[i].im) * a[i].re - LD(b[i].re) * a[i].im) / den;
        EXPECT_TRUE(arithsweep::withinUlps(d[i].re, re, 0.5 + 1.0 / (1 << 20))) << i;
        EXPECT_TRUE(arithsweep::withinUlps(d[i].im, im, 0.5 + 1.0 / (1 << 20))) << i;
        // Element by element (the one-element path) gives the same bits.
        Qsp32fc one;
        ASSERT_EQ(qspsDiv_32fc(&a[i], &b[i], &one, 1), qspStsOk);
        EXPECT_TRUE(qsptest::sameBits(one.re, d[i].re) && qsptest::sameBits(one.im, d[i].im)) << i;
    }
}


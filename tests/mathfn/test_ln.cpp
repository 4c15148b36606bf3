// SPDX-License-Identifier: BSD-3-Clause
// The Ln family: argument checks, every type form against its kernel or
// MPFR, the warnings for zero and negative elements in every form, the
// complex bounds and branch, and the scaled integer forms.
#include <cmath>

#include "../arith/arith_checks.h"
#include "family_checks.h"
#include "mathfn/arctan.h"
#include "mathfn/ln.h"
#include "mpfr_reference.h"

using familychecks::expectElementwise;

TEST(Ln, ChecksPointersThenLength)
{
    using arithchecks::expectChecks;
    expectChecks(qspsLn_32f);
    expectChecks(qspsLn_32f_I);
    expectChecks(qspsLn_64f);
    expectChecks(qspsLn_64f_I);
    expectChecks(qspsLn_32fc);
    expectChecks(qspsLn_32fc_I);
    expectChecks(qspsLn_64fc);
    expectChecks(qspsLn_64fc_I);
    expectChecks(qspsLn_32f64f);
    expectChecks(qspsLn_64f32f);
    for (int sf : {0, 3, -3, 100000, -100000}) {
        expectChecks(qspsLn_16s_Sfs, sf);
        expectChecks(qspsLn_16s_ISfs, sf);
        expectChecks(qspsLn_32s_Sfs, sf);
        expectChecks(qspsLn_32s_ISfs, sf);
        expectChecks(qspsLn_64s_Sfs, sf);
        expectChecks(qspsLn_64s_ISfs, sf);
        expectChecks(qspsLn_32s16s_Sfs, sf);
    }
}

TEST(Ln, RealFormsEqualTheirKernels)
{
    std::mt19937_64 rng(801);
    std::vector<float> f = familychecks::floatPool(3000, rng, 0.0f, 100.0f);
    std::vector<double> d = familychecks::doublePool(3000, rng, 0.0, 1e10);
    // Positive elements only here: the warnings have their own test.
    for (float& x : f) x = std::fabs(x) == 0 ? 1.0f : std::fabs(x);
    for (double& x : d) x = std::fabs(x) == 0 ? 1.0 : std::fabs(x);
    expectElementwise(qspsLn_32f, qspsLn_32f_I, f, mathfn::qspsLnOne_32f);
    expectElementwise(qspsLn_64f, qspsLn_64f_I, d, mathfn::qspsLnOne);
    expectElementwise(qspsLn_32f64f, nullptr, f, [](float x) { return mathfn::qspsLnOne(double(x)); });
    expectElementwise(qspsLn_64f32f, nullptr, d, [](double x) { return float(mathfn::qspsLnOne(x)); });
}

// The same elements and status in every floating form: a zero gives
// -infinity and qspStsWarnLogOfZero, a negative element the default NaN
// and qspStsWarnLogOfNegative, which wins over a zero elsewhere.
TEST(Ln, WarningsOfZeroAndNegativeElementsInEveryFloatingForm)
{
    // singleStatus: the status of the forms reading floats, where the
    // smallest negative double becomes -0.
    struct Case {
        std::vector<double> v;
        QspStatus status, singleStatus;
    };
    const Case cases[] = {
        {{1, 2, 3, 4, 5, 6}, qspStsOk, qspStsOk},
        {{1, 2, 0, 4, 5, 6, 7}, qspStsWarnLogOfZero, qspStsWarnLogOfZero},
        {{1, 2, -0.0, 4, 5}, qspStsWarnLogOfZero, qspStsWarnLogOfZero},
        {{1, 2, 3, 4, 5, -1}, qspStsWarnLogOfNegative, qspStsWarnLogOfNegative},
        {{0, 2, 3, 4, 5, -HUGE_VAL, 7, 8, 9}, qspStsWarnLogOfNegative, qspStsWarnLogOfNegative},
        {{std::nan(""), HUGE_VAL, 1}, qspStsOk, qspStsOk},
        {{-0x1p-1074}, qspStsWarnLogOfNegative, qspStsWarnLogOfZero},
    };
    for (const Case& c : cases) {
        const int n = int(c.v.size());
        std::vector<float> f(c.v.begin(), c.v.end()), fo(n);
        std::vector<double> d = c.v, dout(n);
        EXPECT_EQ(qspsLn_32f(f.data(), fo.data(), n), c.singleStatus);
        for (int i = 0; i < n; ++i) {
            if (f[i] == 0) EXPECT_EQ(fo[i], -INFINITY);
            if (f[i] < 0) EXPECT_EQ(std::bit_cast<Qsp32u>(fo[i]), 0xFFC00000u);
        }
        EXPECT_EQ(qspsLn_64f(d.data(), dout.data(), n), c.status);
        for (int i = 0; i < n; ++i) {
            if (d[i] == 0) EXPECT_EQ(dout[i], -HUGE_VAL);
            if (d[i] < 0) EXPECT_EQ(std::bit_cast<Qsp64u>(dout[i]), 0xFFF8000000000000ull);
        }
        std::vector<double> wide(n);
        std::vector<float> narrow(n);
        EXPECT_EQ(qspsLn_32f64f(f.data(), wide.data(), n), c.singleStatus);
        EXPECT_EQ(qspsLn_64f32f(d.data(), narrow.data(), n), c.status);
        std::vector<float> fi = f;
        std::vector<double> di = d;
        EXPECT_EQ(qspsLn_32f_I(fi.data(), n), c.singleStatus);
        EXPECT_EQ(qspsLn_64f_I(di.data(), n), c.status);
        // Integer forms: the same statuses, the type's minimum for both;
        // each negative element becomes -1, each NaN or +infinity 1.
        std::vector<Qsp16s> s16(n), o16(n);
        std::vector<Qsp32s> s32(n), o32(n);
        std::vector<Qsp64s> s64(n), o64(n);
        for (int i = 0; i < n; ++i) {
            const double v = c.v[i];
            const double x = v < 0 ? -1 : std::isfinite(v) ? v : 1;
            s16[i] = Qsp16s(x), s32[i] = Qsp32s(x), s64[i] = Qsp64s(x);
        }
        const QspStatus want = c.status;
        EXPECT_EQ(qspsLn_16s_Sfs(s16.data(), o16.data(), n, 0), want);
        EXPECT_EQ(qspsLn_32s_Sfs(s32.data(), o32.data(), n, 0), want);
        EXPECT_EQ(qspsLn_64s_Sfs(s64.data(), o64.data(), n, 0), want);
        EXPECT_EQ(qspsLn_32s16s_Sfs(s32.data(), o16.data(), n, 0), want);
        for (int i = 0; i < n; ++i)
            if (s32[i] <= 0) EXPECT_EQ(o16[i], INT16_MIN);
        EXPECT_EQ(familychecks::statusOf(qspsLn_16s_Sfs, qspsLn_16s_ISfs, s16, 2), want);
        EXPECT_EQ(familychecks::statusOf(qspsLn_32s_Sfs, qspsLn_32s_ISfs, s32, 2), want);
        EXPECT_EQ(familychecks::statusOf(qspsLn_64s_Sfs, qspsLn_64s_ISfs, s64, 2), want);
    }
    // A complex zero gives -infinity and the zero warning; negative real
    // parts are on the principal branch and warn of nothing.
    const Qsp32fc z[] = {{1, 0}, {-1, 0}, {0, 0}, {-2, -0.0f}};
    Qsp32fc w[4];
    EXPECT_EQ(qspsLn_32fc(z, w, 4), qspStsWarnLogOfZero);
    EXPECT_EQ(w[2].re, -INFINITY);
    EXPECT_TRUE(familychecks::same(w[2].im, 0.0f));
    EXPECT_EQ(qspsLn_32fc(z, w, 2), qspStsOk);
    EXPECT_EQ(w[1].im, float(M_PI));
    const Qsp64fc zd[] = {{-0.0, -0.0}, {-2, -0.0}};
    Qsp64fc wd[2];
    EXPECT_EQ(qspsLn_64fc(zd, wd, 2), qspStsWarnLogOfZero);
    EXPECT_EQ(wd[0].re, -HUGE_VAL);
    EXPECT_EQ(wd[0].im, -M_PI);
    EXPECT_EQ(wd[1].im, -M_PI);
    EXPECT_EQ(wd[1].re, std::log(2.0));
}

namespace {

// Errors in ULPs of ln|z| and arg z against MPFR.
template <class P>
void complexErrors(P a, P b, P re, P im, double& eRe, double& eIm)
{
    mpfr_t x, y, r;
    mpfr_inits2(300, x, y, r, (mpfr_ptr)0);
    mpfr_set_d(x, double(a), MPFR_RNDN);
    mpfr_set_d(y, double(b), MPFR_RNDN);
    mpfr_hypot(r, x, y, MPFR_RNDN);
    mpfr_log(r, r, MPFR_RNDN);
    constexpr int bits = sizeof(P) == 4 ? 24 : 53;
    constexpr int minExp = sizeof(P) == 4 ? -149 : -1074;
    auto ulps = [&](mpfr_ptr exact, P got) {
        long ex = mpfr_zero_p(exact) ? minExp : long(mpfr_get_exp(exact)) - bits;
        if (ex < minExp) ex = minExp;
        mpfr_t d;
        mpfr_init2(d, 300);
        mpfr_set_d(d, double(got), MPFR_RNDN);
        mpfr_sub(d, d, exact, MPFR_RNDN);
        mpfr_abs(d, d, MPFR_RNDN);
        mpfr_mul_2si(d, d, -ex, MPFR_RNDN);
        const double u = mpfr_get_d(d, MPFR_RNDN);
        mpfr_clear(d);
        return u;
    };
    eRe = ulps(r, re);
    mpfr_atan2(r, y, x, MPFR_RNDN);
    eIm = ulps(r, im);
    mpfr_clears(x, y, r, (mpfr_ptr)0);
}

template <class C>
void expectComplexBound(QspStatus (*fn)(const C*, C*, int), double boundRe, double boundIm, std::vector<C> z)
{
    using P = decltype(C::re);
    std::vector<C> w(z.size());
    fn(z.data(), w.data(), int(z.size()));
    double worstRe = 0, worstIm = 0;
    for (size_t i = 0; i < z.size(); ++i) {
        double eRe, eIm;
        complexErrors(z[i].re, z[i].im, w[i].re, w[i].im, eRe, eIm);
        worstRe = std::max(worstRe, eRe), worstIm = std::max(worstIm, eIm);
    }
    EXPECT_LE(worstRe, boundRe);
    EXPECT_LE(worstIm, boundIm);
    std::printf("ln %s: worst real part %.6f ULP, imaginary part %.6f ULP\n", sizeof(P) == 4 ? "32fc" : "64fc",
                worstRe, worstIm);
}

// Random elements of every magnitude, and elements near the unit circle,
// where ln|z| is smallest.
template <class C>
std::vector<C> complexSample(int n, uint64_t seed)
{
    using P = decltype(C::re);
    std::mt19937_64 rng(seed);
    const int emax = sizeof(P) == 4 ? 120 : 1000;
    std::vector<double> a = mpref::everyBinade(n, -emax, emax, rng), b = mpref::everyBinade(n, -emax, emax, rng);
    std::vector<C> z;
    for (int i = 0; i < n; ++i) z.push_back({P(a[i]), P(b[i] * (i % 3 == 0 ? 1e-3 : 1))});
    std::uniform_real_distribution<double> angle(-M_PI, M_PI), radius(-1e-3, 1e-3);
    for (int i = 0; i < n; ++i) {
        const double t = angle(rng), r = 1 + std::ldexp(radius(rng), -int(rng() % 20));
        z.push_back({P(r * std::cos(t)), P(r * std::sin(t))});
    }
    return z;
}

}  // namespace

// 32fc: |z|^2 exact in double-double, its logarithm within 0.52 ULP of
// double plus the correction's rounding, halved: the real part within
// 2^-51 relative before its rounding to float, so within 0.5 + 2^-26 ULP;
// the angle from the double atan2 (2.5 ULP of double) rounded to float,
// within 0.5 + 2^-27 ULP.
TEST(Ln, ComplexSinglePartsWithinHalfAnUlpAndABit)
{
    expectComplexBound(qspsLn_32fc, 0.5 + 0x1p-26, 0.5 + 0x1p-27, complexSample<Qsp32fc>(50000, 802));
}

// 64fc: the real part k ln 2 + ln|z 2^-k|, within 2 ULP (0.52 for the
// logarithm of the double-double square, one rounding of the halving sum,
// one of adding k ln 2); the angle within 2.5 ULP.
TEST(Ln, ComplexDoublePartsWithinTheirBounds)
{
    expectComplexBound(qspsLn_64fc, 2.0, 2.5, complexSample<Qsp64fc>(50000, 803));
}

TEST(Ln, ComplexInPlaceEqualsOutOfPlace)
{
    const std::vector<Qsp32fc> z = complexSample<Qsp32fc>(100, 804);
    const std::vector<Qsp64fc> zd = complexSample<Qsp64fc>(100, 805);
    for (int len = 1; len <= 67; ++len) {
        std::vector<Qsp32fc> a(z.begin(), z.begin() + len), b(len);
        std::vector<Qsp64fc> c(zd.begin(), zd.begin() + len), e(len);
        qspsLn_32fc(a.data(), b.data(), len);
        qspsLn_32fc_I(a.data(), len);
        qspsLn_64fc(c.data(), e.data(), len);
        qspsLn_64fc_I(c.data(), len);
        for (int i = 0; i < len; ++i) {
            ASSERT_TRUE(familychecks::same(a[i], b[i]));
            ASSERT_TRUE(familychecks::same(c[i], e[i]));
        }
    }
}

namespace {

template <class D>
D referenceScaledLn(Qsp64s x, int s)
{
    if (x <= 0) return std::numeric_limits<D>::min();
    mpfr_t v;
    mpfr_init2(v, 256);
    mpfr_set_si(v, x, MPFR_RNDN);
    mpfr_log(v, v, MPFR_RNDN);
    mpfr_mul_2si(v, v, -s, MPFR_RNDN);
    const D r = familychecks::roundSaturate<D>(v);
    mpfr_clear(v);
    return r;
}

}  // namespace

// Every positive 16-bit argument with every scale factor from -16 to 6,
// against MPFR.
TEST(Ln, Scaled16sExactForEveryArgumentAndScale)
{
    std::vector<Qsp16s> x(32767), y(32767);
    for (int i = 0; i < 32767; ++i) x[i] = Qsp16s(i + 1);
    for (int s = -16; s <= 7; ++s) {
        ASSERT_EQ(qspsLn_16s_Sfs(x.data(), y.data(), 32767, s), qspStsOk);
        for (int i = 0; i < 32767; ++i) ASSERT_EQ(y[i], referenceScaledLn<Qsp16s>(x[i], s)) << x[i] << " " << s;
    }
}

TEST(Ln, ScaledWideFormsAgainstMpfr)
{
    std::mt19937_64 rng(806);
    for (int i = 0; i < 20000; ++i) {
        const int bits = 1 + int(rng() % 63);
        const Qsp64s x64 = Qsp64s(rng() >> (64 - bits));
        const Qsp32s x32 = Qsp32s(x64 >> (bits > 31 ? bits - 31 : 0));
        const int s = -int(rng() % 70) + 6;
        Qsp64s y64;
        Qsp32s y32;
        Qsp16s y16;
        qspsLn_64s_Sfs(&x64, &y64, 1, s);
        qspsLn_32s_Sfs(&x32, &y32, 1, s);
        qspsLn_32s16s_Sfs(&x32, &y16, 1, s);
        ASSERT_EQ(y64, referenceScaledLn<Qsp64s>(x64, s)) << x64 << " " << s;
        ASSERT_EQ(y32, referenceScaledLn<Qsp32s>(x32, s)) << x32 << " " << s;
        ASSERT_EQ(y16, referenceScaledLn<Qsp16s>(x32, s)) << x32 << " " << s;
    }
    const Qsp64s top = INT64_MAX;
    Qsp64s r;
    EXPECT_EQ(qspsLn_64s_Sfs(&top, &r, 1, -57), qspStsOk);
    EXPECT_EQ(r, referenceScaledLn<Qsp64s>(top, -57));
    EXPECT_EQ(qspsLn_64s_Sfs(&top, &r, 1, -58), qspStsOk);
    EXPECT_EQ(r, INT64_MAX);
    EXPECT_EQ(qspsLn_64s_Sfs(&top, &r, 1, INT32_MIN), qspStsOk);
    EXPECT_EQ(r, INT64_MAX);
    EXPECT_EQ(qspsLn_64s_Sfs(&top, &r, 1, INT32_MAX), qspStsOk);
    EXPECT_EQ(r, 0);
    const Qsp16s one = 1;
    Qsp16s r16;
    EXPECT_EQ(qspsLn_16s_Sfs(&one, &r16, 1, INT32_MIN), qspStsOk);
    EXPECT_EQ(r16, 0);
}

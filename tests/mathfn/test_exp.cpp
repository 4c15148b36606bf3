// SPDX-License-Identifier: BSD-3-Clause
// The Exp family: argument checks, every type form against its kernel or
// MPFR, the bounds of the complex forms, special values, and the scaled
// integer forms with their overflow warning.
#include <cmath>

#include "../arith/arith_checks.h"
#include "family_checks.h"
#include "mathfn/exp.h"
#include "mpfr_reference.h"

using familychecks::expectElementwise;

TEST(Exp, ChecksPointersThenLength)
{
    using arithchecks::expectChecks;
    expectChecks(qspsExp_32f);
    expectChecks(qspsExp_32f_I);
    expectChecks(qspsExp_64f);
    expectChecks(qspsExp_64f_I);
    expectChecks(qspsExp_32fc);
    expectChecks(qspsExp_32fc_I);
    expectChecks(qspsExp_64fc);
    expectChecks(qspsExp_64fc_I);
    expectChecks(qspsExp_32f64f);
    expectChecks(qspsExp_64f32f);
    for (int sf : {0, 3, -3, 100000, -100000}) {
        expectChecks(qspsExp_16s_Sfs, sf);
        expectChecks(qspsExp_16s_ISfs, sf);
        expectChecks(qspsExp_32s_Sfs, sf);
        expectChecks(qspsExp_32s_ISfs, sf);
        expectChecks(qspsExp_64s_Sfs, sf);
        expectChecks(qspsExp_64s_ISfs, sf);
    }
}

TEST(Exp, RealFormsEqualTheirKernels)
{
    std::mt19937_64 rng(701);
    const std::vector<float> f = familychecks::floatPool(3000, rng, -100.0f, 100.0f);
    const std::vector<double> d = familychecks::doublePool(3000, rng, -750.0, 720.0);
    expectElementwise(qspsExp_32f, qspsExp_32f_I, f, mathfn::qspsExpOne_32f);
    expectElementwise(qspsExp_64f, qspsExp_64f_I, d, mathfn::qspsExpOne);
    expectElementwise(qspsExp_32f64f, nullptr, f, [](float x) { return mathfn::qspsExpOne(double(x)); });
    expectElementwise(qspsExp_64f32f, nullptr, d, [](double x) { return float(mathfn::qspsExpOne(x)); });
}

TEST(Exp, LongVectorsRunInBlocks)
{
    // The double-to-single form works through a block of 256 on the stack.
    std::mt19937_64 rng(702);
    const std::vector<double> d = familychecks::doublePool(1000, rng, -100.0, 100.0);
    std::vector<float> out(1000);
    ASSERT_EQ(qspsExp_64f32f(d.data(), out.data(), 1000), qspStsOk);
    for (int i = 0; i < 1000; ++i) ASSERT_TRUE(familychecks::same(out[i], float(mathfn::qspsExpOne(d[i]))));
}

TEST(Exp, SpecialValuesInEveryFloatingForm)
{
    // The largest argument with a finite result and the next float; the
    // argument whose result rounds up to the smallest subnormal, and one
    // below it.
    const float fin[] = {0.0f, -0.0f, INFINITY, -INFINITY, 88.72284f, -103.97208f, -104.0f, 1.0f, 88.72283f};
    const float fout[] = {1.0f, 1.0f, INFINITY, 0.0f, INFINITY, 0x1p-149f, 0.0f, 0x1.5bf0a8p+1f};
    float r[9];
    ASSERT_EQ(qspsExp_32f(fin, r, 9), qspStsOk);
    for (int i = 0; i < 8; ++i) EXPECT_TRUE(familychecks::same(r[i], fout[i])) << i << " " << r[i];
    EXPECT_TRUE(std::isfinite(r[8]));
    const float nan = std::bit_cast<float>(0x7F800123u);
    ASSERT_EQ(qspsExp_32f(&nan, r, 1), qspStsOk);
    EXPECT_EQ(std::bit_cast<Qsp32u>(r[0]), 0x7FC00123u);
    const double din[] = {0.0, -0.0, HUGE_VAL, -HUGE_VAL, 709.782712893384, 709.7827128933841, -746.0};
    double dr[7];
    ASSERT_EQ(qspsExp_64f(din, dr, 7), qspStsOk);
    EXPECT_EQ(dr[0], 1.0);
    EXPECT_EQ(dr[1], 1.0);
    EXPECT_EQ(dr[2], HUGE_VAL);
    EXPECT_TRUE(familychecks::same(dr[3], 0.0));
    EXPECT_TRUE(std::isfinite(dr[4]));
    EXPECT_EQ(dr[5], HUGE_VAL);
    EXPECT_TRUE(familychecks::same(dr[6], 0.0));
}

namespace {

// The parts of e^(a + ib) to 256 bits, and their errors in ULPs of the
// part type.
template <class P>
void complexErrors(P a, P b, P re, P im, double& eRe, double& eIm)
{
    mpfr_t x, y, e, c, s;
    mpfr_inits2(256, x, y, e, c, s, (mpfr_ptr)0);
    mpfr_set_d(x, double(a), MPFR_RNDN);
    mpfr_set_d(y, double(b), MPFR_RNDN);
    mpfr_exp(e, x, MPFR_RNDN);
    mpfr_sin_cos(s, c, y, MPFR_RNDN);
    mpfr_mul(c, c, e, MPFR_RNDN);
    mpfr_mul(s, s, e, MPFR_RNDN);
    constexpr int bits = sizeof(P) == 4 ? 24 : 53;
    constexpr int minExp = sizeof(P) == 4 ? -149 : -1074;
    auto ulps = [&](mpfr_ptr exact, P got) {
        if (std::isinf(got)) {
            // Right where the exact part rounds beyond the largest finite value.
            const double edge = sizeof(P) == 4 ? 0x1.ffffffp+127 : 0x1.fffffffffffffp+1023;
            mpfr_t lim;
            mpfr_init2(lim, 300);
            mpfr_set_d(lim, edge, MPFR_RNDN);
            if (sizeof(P) == 8) mpfr_add_d(lim, lim, 0x1p970, MPFR_RNDN);
            const bool over = got > 0 ? mpfr_cmp(exact, lim) >= 0 : (mpfr_neg(lim, lim, MPFR_RNDN), mpfr_cmp(exact, lim) <= 0);
            mpfr_clear(lim);
            return over ? 0.0 : INFINITY;
        }
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
    eRe = ulps(c, re);
    eIm = ulps(s, im);
    mpfr_clears(x, y, e, c, s, (mpfr_ptr)0);
}

template <class C>
void expectComplexBound(QspStatus (*fn)(const C*, C*, int), double bound, double lo, double hi, double bLimit,
                        int n, uint64_t seed)
{
    using P = decltype(C::re);
    std::mt19937_64 rng(seed);
    std::uniform_real_distribution<double> ra(lo, hi), rb(-bLimit, bLimit);
    std::vector<C> z(n), w(n);
    for (C& c : z) c = {P(ra(rng)), P(rb(rng))};
    ASSERT_EQ(fn(z.data(), w.data(), n), qspStsOk);
    double worst = 0;
    for (int i = 0; i < n; ++i) {
        double eRe, eIm;
        complexErrors(z[i].re, z[i].im, w[i].re, w[i].im, eRe, eIm);
        worst = std::max(worst, std::max(eRe, eIm));
    }
    EXPECT_LE(worst, bound);
    std::printf("exp %s on [%g, %g] x [-%g, %g]: worst part %.6f ULP\n", sizeof(P) == 4 ? "32fc" : "64fc", lo, hi,
                bLimit, bLimit, worst);
}

}  // namespace

// Single-precision parts are the double-precision products rounded once:
// within half an ULP plus 2^-26 of one.
TEST(Exp, ComplexSinglePartsWithinHalfAnUlpAndABit)
{
    expectComplexBound(qspsExp_32fc, 0.5 + 0x1p-26, -87.0, 88.0, 100.0, 100000, 703);
    expectComplexBound(qspsExp_32fc, 0.5 + 0x1p-26, -5.0, 5.0, 1e6, 100000, 704);
}

// Double-precision parts: e^a within 0.52 ULP, cos b and sin b within 0.6,
// the product rounded: 2 (0.52 + 0.6) + 0.5 = 2.74 ULP; beyond |a| = 708
// the half exponential twice, 2 (2 0.52 + 0.6) + 1 = 4.3 ULP.
TEST(Exp, ComplexDoublePartsWithinTheirBounds)
{
    expectComplexBound(qspsExp_64fc, 2.74, -700.0, 700.0, 100.0, 100000, 705);
    expectComplexBound(qspsExp_64fc, 2.74, -5.0, 5.0, 1e15, 50000, 706);
    expectComplexBound(qspsExp_64fc, 4.3, 708.0, 710.4, 3.0, 20000, 707);
    expectComplexBound(qspsExp_64fc, 4.3, -745.0, -708.0, 3.0, 20000, 708);
}

TEST(Exp, ComplexSpecialValues)
{
    const Qsp32fc in[] = {{0, 0}, {1, 0}, {1, -0.0f}, {INFINITY, 0}, {-INFINITY, 1}, {100, 0}, {0, INFINITY}};
    Qsp32fc out[7];
    ASSERT_EQ(qspsExp_32fc(in, out, 7), qspStsOk);
    EXPECT_EQ(out[0].re, 1.0f);
    EXPECT_TRUE(familychecks::same(out[0].im, 0.0f));
    EXPECT_EQ(out[1].re, 0x1.5bf0a8p+1f);
    EXPECT_TRUE(familychecks::same(out[2].im, -0.0f));
    EXPECT_EQ(out[3].re, INFINITY);
    EXPECT_TRUE(familychecks::same(out[3].im, 0.0f));
    EXPECT_EQ(out[4].re, 0.0f);
    EXPECT_EQ(out[4].im, 0.0f);
    EXPECT_EQ(out[5].re, INFINITY);
    EXPECT_TRUE(familychecks::same(out[5].im, 0.0f));
    EXPECT_TRUE(std::isnan(out[6].re) && std::isnan(out[6].im));
    const Qsp64fc big = {709.9, 1.5};  // e^a overflows, e^a cos b does not
    Qsp64fc r;
    ASSERT_EQ(qspsExp_64fc(&big, &r, 1), qspStsOk);
    EXPECT_TRUE(std::isfinite(r.re));
    EXPECT_EQ(r.im, HUGE_VAL);  // e^709.9 sin 1.5 does overflow
    EXPECT_NEAR(r.re / (std::exp(709.9 / 2) * std::cos(1.5) * std::exp(709.9 / 2)), 1.0, 1e-14);
}

TEST(Exp, ComplexInPlaceEqualsOutOfPlace)
{
    std::mt19937_64 rng(709);
    std::uniform_real_distribution<double> d(-30, 30);
    for (int len = 1; len <= 67; ++len) {
        std::vector<Qsp32fc> a(len), b(len);
        std::vector<Qsp64fc> c(len), e(len);
        for (int i = 0; i < len; ++i) a[i] = {float(d(rng)), float(d(rng))}, c[i] = {d(rng), d(rng)};
        ASSERT_EQ(qspsExp_32fc(a.data(), b.data(), len), qspStsOk);
        ASSERT_EQ(qspsExp_32fc_I(a.data(), len), qspStsOk);
        ASSERT_EQ(qspsExp_64fc(c.data(), e.data(), len), qspStsOk);
        ASSERT_EQ(qspsExp_64fc_I(c.data(), len), qspStsOk);
        for (int i = 0; i < len; ++i) {
            ASSERT_TRUE(familychecks::same(a[i], b[i]));
            ASSERT_TRUE(familychecks::same(c[i], e[i]));
        }
    }
}

namespace {

// e^x 2^-s rounded to nearest even and saturated, from MPFR.
// e^(x - s ln 2) to 200 bits beyond the 64 of x's magnitude (e^x itself
// would leave MPFR's exponent range for large x).
void scaledExponential(mpfr_ptr v, Qsp64s x, int s)
{
    mpfr_t l;
    mpfr_init2(l, 300);
    mpfr_const_log2(l, MPFR_RNDN);
    mpfr_mul_si(l, l, s, MPFR_RNDN);
    mpfr_set_si(v, x, MPFR_RNDN);
    mpfr_sub(v, v, l, MPFR_RNDN);
    mpfr_exp(v, v, MPFR_RNDN);
    mpfr_clear(l);
}

template <class T>
T referenceScaledExp(Qsp64s x, int s)
{
    mpfr_t v;
    mpfr_init2(v, 300);
    scaledExponential(v, x, s);
    const T r = familychecks::roundSaturate<T>(v);
    mpfr_clear(v);
    return r;
}

template <class T>
bool exceeds(Qsp64s x, int s)
{
    mpfr_t v;
    mpfr_init2(v, 300);
    scaledExponential(v, x, s);
    mpfr_rint(v, v, MPFR_RNDN);
    const bool over = mpfr_cmp_d(v, double(std::numeric_limits<T>::max())) > 0;
    mpfr_clear(v);
    return over;
}

}  // namespace

// Every 16-bit argument at scale factors -16 .. 16: against MPFR where
// |x| <= 40, elsewhere 0 (x < -40) or the saturated maximum with the
// warning (x > 40).
TEST(Exp, Scaled16sForEveryArgumentAtSmallScales)
{
    std::vector<Qsp16s> x(65536), y(65536);
    for (int i = 0; i < 65536; ++i) x[i] = Qsp16s(i - 32768);
    for (int s = -16; s <= 16; ++s) {
        EXPECT_EQ(qspsExp_16s_Sfs(x.data(), y.data(), 65536, s), qspStsWarnOutOfDomain);  // e^32767 exceeds
        for (int i = 0; i < 65536; ++i) {
            const Qsp16s want = x[i] > 40 ? 32767 : x[i] < -40 ? 0 : referenceScaledExp<Qsp16s>(x[i], s);
            ASSERT_EQ(y[i], want) << "x " << x[i] << " s " << s;
        }
    }
}

namespace {

// Each argument with every scale factor that brings its result between 0
// and the saturated maximum, and the two on either side.
void expectScaled16sRange(int from, int to, int step)
{
    for (int xv = from; xv <= to; xv += step) {
        const int s0 = int(std::floor(xv * 1.4426950408889634)) - 16;
        for (int s = s0; s <= s0 + 18; ++s) {
            const Qsp16s in = Qsp16s(xv);
            Qsp16s out;
            const QspStatus st = qspsExp_16s_Sfs(&in, &out, 1, s);
            ASSERT_EQ(out, referenceScaledExp<Qsp16s>(xv, s)) << "x " << xv << " s " << s;
            ASSERT_EQ(st, exceeds<Qsp16s>(xv, s) ? qspStsWarnOutOfDomain : qspStsOk) << "x " << xv << " s " << s;
        }
    }
}

}  // namespace

TEST(Exp, Scaled16sAtTheScalesThatMatter)
{
    expectScaled16sRange(-32768, 32767, 97);
}

TEST(ExpHeavy, Scaled16sExactForEveryArgumentAndScale)
{
    expectScaled16sRange(-32768, 32767, 1);
}

TEST(Exp, Scaled32sAnd64sAgainstMpfr)
{
    std::mt19937_64 rng(710);
    for (int i = 0; i < 20000; ++i) {
        const Qsp64s xv = Qsp64s(rng() % 2000) - 1000 + ((rng() & 1) ? Qsp64s(rng() % 3000000000ull) - 1500000000 : 0);
        // near x log2(e), formed in 64 bits and clamped to the int range
        const Qsp64s sWide = Qsp64s(std::floor(double(xv) * 1.4426950408889634)) - Qsp64s(rng() % 66) + 1;
        const int s = int(std::clamp<Qsp64s>(sWide, INT32_MIN, INT32_MAX));
        const Qsp32s x32 = Qsp32s(std::clamp<Qsp64s>(xv, INT32_MIN, INT32_MAX));
        Qsp32s y32;
        Qsp64s y64;
        const QspStatus s32 = qspsExp_32s_Sfs(&x32, &y32, 1, s);
        const QspStatus s64 = qspsExp_64s_Sfs(&xv, &y64, 1, s);
        ASSERT_EQ(y32, referenceScaledExp<Qsp32s>(x32, s)) << x32 << " " << s;
        ASSERT_EQ(y64, referenceScaledExp<Qsp64s>(xv, s)) << xv << " " << s;
        ASSERT_EQ(s32, exceeds<Qsp32s>(x32, s) ? qspStsWarnOutOfDomain : qspStsOk);
        ASSERT_EQ(s64, exceeds<Qsp64s>(xv, s) ? qspStsWarnOutOfDomain : qspStsOk);
    }
}

TEST(Exp, ScaledEdgeCases)
{
    auto one16 = [](Qsp16s x, int s, QspStatus* st = nullptr) {
        Qsp16s y;
        const QspStatus r = qspsExp_16s_Sfs(&x, &y, 1, s);
        if (st) *st = r;
        return y;
    };
    QspStatus st;
    EXPECT_EQ(one16(0, 0, &st), 1);
    EXPECT_EQ(st, qspStsOk);
    EXPECT_EQ(one16(0, 1), 0);   // a half goes to the even 0
    EXPECT_EQ(one16(0, -14), 16384);
    EXPECT_EQ(one16(0, -15, &st), 32767);
    EXPECT_EQ(st, qspStsWarnOutOfDomain);
    EXPECT_EQ(one16(1, 0), 3);    // 2.718...
    EXPECT_EQ(one16(1, 1), 1);    // 1.359...
    EXPECT_EQ(one16(10, 0, &st), 22026);
    EXPECT_EQ(st, qspStsOk);
    EXPECT_EQ(one16(11, 0, &st), 32767);
    EXPECT_EQ(st, qspStsWarnOutOfDomain);
    EXPECT_EQ(one16(-1, -1), 1);  // 0.7357...
    EXPECT_EQ(one16(-32768, 0), 0);
    EXPECT_EQ(one16(-32768, INT32_MIN, &st), 32767);
    EXPECT_EQ(st, qspStsWarnOutOfDomain);
    EXPECT_EQ(one16(32767, INT32_MAX, &st), 0);
    EXPECT_EQ(st, qspStsOk);
    Qsp64s big = INT64_MAX, r64;
    EXPECT_EQ(qspsExp_64s_Sfs(&big, &r64, 1, 0), qspStsWarnOutOfDomain);
    EXPECT_EQ(r64, INT64_MAX);
    big = INT64_MIN;  // e^-2^63 is far below 2^-2^31
    EXPECT_EQ(qspsExp_64s_Sfs(&big, &r64, 1, INT32_MIN), qspStsOk);
    EXPECT_EQ(r64, 0);
    EXPECT_EQ(qspsExp_64s_Sfs(&big, &r64, 1, 0), qspStsOk);
    EXPECT_EQ(r64, 0);
    // A warning is returned after the whole output is written, and the
    // in-place forms agree.
    std::vector<Qsp32s> v = {1, 100, 2, -3, 0};
    std::vector<Qsp32s> w(5);
    EXPECT_EQ(qspsExp_32s_Sfs(v.data(), w.data(), 5, 0), qspStsWarnOutOfDomain);
    EXPECT_EQ(w, (std::vector<Qsp32s>{3, INT32_MAX, 7, 0, 1}));
    EXPECT_EQ(familychecks::statusOf(qspsExp_32s_Sfs, qspsExp_32s_ISfs, v, 0), qspStsWarnOutOfDomain);
    EXPECT_EQ(familychecks::statusOf(qspsExp_16s_Sfs, qspsExp_16s_ISfs, std::vector<Qsp16s>{1, 2, 3}, 0), qspStsOk);
    std::vector<Qsp64s> v64 = {5, 6, 7};
    std::vector<Qsp64s> w64(3);
    qspsExp_64s_Sfs(v64.data(), w64.data(), 3, -3);
    qspsExp_64s_ISfs(v64.data(), 3, -3);
    EXPECT_EQ(v64, w64);
}

// SPDX-License-Identifier: BSD-3-Clause
// Sine and cosine of doubles: within 1 ULP of MPFR over every binade, at
// the doubles closest to multiples of pi/2 and at the special values; the
// vector forms bit-identical to the one-element functions.
#include <cmath>

#include "mathfn/trig.h"
#include "mpfr_reference.h"
#include "qsp_test.h"

using mathfn::qspsCos_64f_A53;
using mathfn::qspsCosOne;
using mathfn::qspsSin_64f_A53;
using mathfn::qspsSinCosOne;
using mathfn::qspsSinOne;

namespace {

struct Worst {
    double ulps = 0, at = 0;
    void take(double u, double x)
    {
        if (u > ulps) ulps = u, at = x;
    }
};

// The worst errors of sin, cos and both halves of sincos over xs, and a
// check that sincos returns exactly what sin and cos return.
struct TrigErrors {
    Worst sin, cos;
};
TrigErrors measure(const std::vector<double>& xs)
{
    mpref::Exact ref;
    TrigErrors w;
    for (double x : xs) {
        const double s = qspsSinOne(x), c = qspsCosOne(x);
        const mathfn::SinCosOne both = qspsSinCosOne(x);
        EXPECT_TRUE(qsptest::sameBits(both.sin, s) && qsptest::sameBits(both.cos, c)) << std::hexfloat << x;
        ref.evaluate(mpfr_sin, x);
        w.sin.take(ref.ulps64(s), x);
        ref.evaluate(mpfr_cos, x);
        w.cos.take(ref.ulps64(c), x);
    }
    return w;
}

void expectWithinOneUlp(const TrigErrors& w)
{
    EXPECT_LE(w.sin.ulps, 1.0) << "sin at " << std::hexfloat << w.sin.at;
    EXPECT_LE(w.cos.ulps, 1.0) << "cos at " << std::hexfloat << w.cos.at;
    std::printf("worst sin %.4f ULP at %a, cos %.4f ULP at %a\n", w.sin.ulps, w.sin.at, w.cos.ulps, w.cos.at);
}

// The doubles nearest k pi/2 (and their neighbours) for k in [from, to]:
// the arguments whose reduced value cancels most.
std::vector<double> nearMultiplesOfHalfPi(long from, long to)
{
    std::vector<double> v;
    mpfr_t t;
    mpfr_init2(t, 200);
    for (long k = from; k <= to; ++k) {
        mpfr_const_pi(t, MPFR_RNDN);
        mpfr_mul_si(t, t, k, MPFR_RNDN);
        mpfr_div_2ui(t, t, 1, MPFR_RNDN);
        const double x = mpfr_get_d(t, MPFR_RNDN);
        v.push_back(x);
        v.push_back(std::nextafter(x, INFINITY));
        v.push_back(std::nextafter(x, -INFINITY));
    }
    mpfr_clear(t);
    return v;
}

}  // namespace

TEST(Trig, WithinOneUlpOverEveryBinade)
{
    std::mt19937_64 rng(101);
    expectWithinOneUlp(measure(mpref::everyBinade(60000, -1074, 1023, rng)));
}

TEST(Trig, WithinOneUlpInTheMediumRange)
{
    std::mt19937_64 rng(102);
    expectWithinOneUlp(measure(mpref::everyBinade(100000, -30, 22, rng)));
}

TEST(Trig, WithinOneUlpNearMultiplesOfHalfPi)
{
    std::vector<double> xs = nearMultiplesOfHalfPi(-3000, 3000);
    const std::vector<double> far = nearMultiplesOfHalfPi(1048000, 1050000);
    xs.insert(xs.end(), far.begin(), far.end());
    // The double known to come closest to a multiple of pi/2, pi/2 and
    // its multiples rounded, and the edges of the reduction ranges.
    for (double x : {6381956970095103.0 * 0x1p797, 0x1.921fb54442d18p+0, 0x1.921fb54442d18p+1,
                     0x1.921fb54442d18p+2, 0x1.921fb54442d18p+1023, 0x1p20, 0x1.fffffffffffffp+19, 0x1p-27,
                     0x1.fffffffffffffp-28, 0x1.921fb54442d18p-1, 0x1.fffffffffffffp+1023})
        xs.push_back(x), xs.push_back(-x);
    expectWithinOneUlp(measure(xs));
}

TEST(TrigHeavy, WithinOneUlpOnTenMillionArguments)
{
    std::mt19937_64 rng(103);
    for (int block = 0; block < 10; ++block) {
        expectWithinOneUlp(measure(mpref::everyBinade(500000, -1074, 1023, rng)));
        expectWithinOneUlp(measure(mpref::everyBinade(500000, -27, 21, rng)));
    }
}

TEST(Trig, SpecialValues)
{
    const double inf = INFINITY, nan = std::nan("");
    EXPECT_TRUE(qsptest::sameBits(qspsSinOne(0.0), 0.0));
    EXPECT_TRUE(qsptest::sameBits(qspsSinOne(-0.0), -0.0));
    EXPECT_EQ(qspsCosOne(0.0), 1.0);
    EXPECT_EQ(qspsCosOne(-0.0), 1.0);
    EXPECT_EQ(qspsSinOne(0x1p-1074), 0x1p-1074);
    EXPECT_EQ(qspsSinOne(-0x1p-30), -0x1p-30);
    EXPECT_EQ(qspsCosOne(0x1p-28), 1.0);
    const Qsp64u defaultNan = 0xFFF8000000000000ull;
    for (double x : {inf, -inf}) {
        EXPECT_EQ(std::bit_cast<Qsp64u>(qspsSinOne(x)), defaultNan);
        EXPECT_EQ(std::bit_cast<Qsp64u>(qspsCosOne(x)), defaultNan);
        EXPECT_EQ(std::bit_cast<Qsp64u>(qspsSinCosOne(x).sin), defaultNan);
        EXPECT_EQ(std::bit_cast<Qsp64u>(qspsSinCosOne(x).cos), defaultNan);
    }
    // A NaN comes back quiet, its payload and sign kept.
    const double signalling = std::bit_cast<double>(0x7FF0000000000123ull);
    EXPECT_EQ(std::bit_cast<Qsp64u>(qspsSinOne(signalling)), 0x7FF8000000000123ull);
    EXPECT_EQ(std::bit_cast<Qsp64u>(qspsCosOne(-nan)), std::bit_cast<Qsp64u>(-nan));
    // Exact symmetries.
    for (double x : {0.5, 1.0, 3.0, 1e5, 1e22, 0x1.fffffffffffffp+1023}) {
        EXPECT_EQ(qspsSinOne(-x), -qspsSinOne(x));
        EXPECT_EQ(qspsCosOne(-x), qspsCosOne(x));
    }
}

TEST(Trig, UsableInConstantExpressions)
{
    static_assert(mathfn::qspsCosOne(0.0) == 1.0);
    static_assert(mathfn::qspsSinOne(0x1p-40) == 0x1p-40);
    constexpr double s = mathfn::qspsSinOne(1.0), c = mathfn::qspsCosOne(1e300);
    EXPECT_EQ(s, qspsSinOne(1.0));
    EXPECT_EQ(c, qspsCosOne(1e300));
}

// Every lane of the vector forms equals the one-element result: mixed
// vectors of medium, large, tiny and special arguments, every length up to
// 67 and every start offset.
TEST(Trig, VectorFormsEqualOneElementResults)
{
    std::mt19937_64 rng(104);
    std::vector<double> pool = mpref::everyBinade(4000, -40, 40, rng);
    for (double x : nearMultiplesOfHalfPi(1, 200)) pool.push_back(x);
    for (double x : {0.0, -0.0, HUGE_VAL, -HUGE_VAL, std::nan(""), 1e300, -3e19, 0x1p-1074})
        for (int r = 0; r < 20; ++r) pool.push_back(x);
    std::shuffle(pool.begin(), pool.end(), rng);
    size_t at = 0;
    for (int len = 0; len <= 67; ++len) {
        for (int offset = 0; offset < 2; ++offset) {
            qsptest::Guarded<double> src(len + 1), dst(len + 1);
            for (int i = 0; i < len; ++i) src[offset + i] = pool[(at + i) % pool.size()];
            at += len;
            for (bool cosine : {false, true}) {
                (cosine ? qspsCos_64f_A53 : qspsSin_64f_A53)(src.data() + offset, dst.data() + offset, len);
                for (int i = 0; i < len; ++i) {
                    const double x = src[offset + i];
                    const double want = cosine ? qspsCosOne(x) : qspsSinOne(x);
                    ASSERT_TRUE(qsptest::sameBits(dst[offset + i], want)) << std::hexfloat << x << " lane " << i;
                }
                EXPECT_TRUE(dst.guardsIntact());
            }
            // In place.
            std::vector<double> copy(src.data() + offset, src.data() + offset + len);
            qspsCos_64f_A53(src.data() + offset, src.data() + offset, len);
            for (int i = 0; i < len; ++i) ASSERT_TRUE(qsptest::sameBits(src[offset + i], qspsCosOne(copy[i])));
        }
    }
}

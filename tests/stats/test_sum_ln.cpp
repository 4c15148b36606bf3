// SPDX-License-Identifier: BSD-3-Clause
// SumLn: sums of natural logarithms, their warnings and special results.
#include "reduce_reference.h"

namespace {

// Each block of 512 rounds its mantissa product in double (at most 512
// roundings of 2^-53 relative, about 6e-14 in the logarithm), takes a
// logarithm within 2 ULP, and weighs its exponent sum by ln 2 rounded to
// double (relative 1e-17 of |exponent sum| ln 2); the block values are then
// added in double. So the result lies within 1e-13 of the sum of |ln x| plus
// one per element, relative to the long double sum.
template <class T>
long double tolerance(const std::vector<T>& v)
{
    long double magnitude = 0;
    for (T x : v) magnitude += std::fabs(logl((long double)x)) + 1;
    return 1e-13L * magnitude;
}

template <class T>
long double referenceSum(const std::vector<T>& v)
{
    long double s = 0;
    for (T x : v) s += logl((long double)x);
    return s;
}

// Positive values over a wide range of exponents, subnormals among them.
template <class T>
std::vector<T> positives(size_t n)
{
    std::vector<T> v(n);
    std::uniform_real_distribution<double> mant(0.5, 1.0);
    std::uniform_int_distribution<int> ex(sizeof(T) == 4 ? -140 : -1070, sizeof(T) == 4 ? 120 : 1000);
    for (auto& x : v) x = T(std::ldexp(mant(qsptest::rng()), ex(qsptest::rng())));
    for (auto& x : v)
        if (x == 0) x = std::numeric_limits<T>::denorm_min();
    return v;
}

bool negativeNaN(double x)
{
    return std::isnan(x) && std::signbit(x);
}

}  // namespace

TEST(SumLn, Statuses)
{
    qsptest::Guarded<Qsp32f> src(4), out(2);
    EXPECT_EQ(qspsSumLn_32f(nullptr, 4, out.data()), qspStsNullPtr);
    EXPECT_EQ(qspsSumLn_32f(src.data(), 4, nullptr), qspStsNullPtr);
    EXPECT_EQ(qspsSumLn_32f(nullptr, 0, out.data()), qspStsNullPtr);
    EXPECT_EQ(qspsSumLn_32f(src.data(), 0, out.data()), qspStsBadSize);
    EXPECT_EQ(qspsSumLn_32f64f(src.data(), -1, reinterpret_cast<Qsp64f*>(out.data())), qspStsBadSize);
    EXPECT_EQ(qspsSumLn_64f(nullptr, 1, reinterpret_cast<Qsp64f*>(out.data())), qspStsNullPtr);
    EXPECT_EQ(qspsSumLn_16s32f(reinterpret_cast<Qsp16s*>(src.data()), 0, out.data()), qspStsBadSize);
    EXPECT_TRUE(out.untouched());
}

TEST(SumLn, SumsTheLogarithms)
{
    for (int len : {1, 2, 7, 511, 512, 513, 2000}) {
        const auto f = positives<float>(len);
        const auto d = positives<double>(len);
        float r32;
        double r64;
        ASSERT_EQ(qspsSumLn_32f64f(f.data(), len, &r64), qspStsOk);
        EXPECT_LE(std::fabs(r64 - referenceSum(f)), tolerance(f)) << len;
        ASSERT_EQ(qspsSumLn_32f(f.data(), len, &r32), qspStsOk);
        EXPECT_TRUE(qsptest::sameBits(r32, float(r64)));
        ASSERT_EQ(qspsSumLn_64f(d.data(), len, &r64), qspStsOk);
        EXPECT_LE(std::fabs(r64 - referenceSum(d)), tolerance(d)) << len;
        std::vector<Qsp16s> s(len);
        for (auto& x : s) x = Qsp16s(1 + qsptest::rng()() % 32767);
        std::vector<float> sf(s.begin(), s.end());
        ASSERT_EQ(qspsSumLn_16s32f(s.data(), len, &r32), qspStsOk);
        ASSERT_EQ(qspsSumLn_32f64f(sf.data(), len, &r64), qspStsOk);
        EXPECT_TRUE(qsptest::sameBits(r32, float(r64)));
        EXPECT_LE(std::fabs(r64 - referenceSum(sf)), tolerance(sf)) << len;
    }
    const double one = 1.0, e = 2.718281828459045;
    double r;
    ASSERT_EQ(qspsSumLn_64f(&one, 1, &r), qspStsOk);
    EXPECT_EQ(r, 0.0);
    ASSERT_EQ(qspsSumLn_64f(&e, 1, &r), qspStsOk);
    EXPECT_NEAR(r, 1.0, 4e-16);
}

TEST(SumLn, ZeroGivesPlusInfinityAndWarning)
{
    const std::vector<float> f = {2.0f, 0.0f, 3.0f};
    double r;
    float r32;
    EXPECT_EQ(qspsSumLn_32f64f(f.data(), 3, &r), qspStsWarnLogOfZero);
    EXPECT_EQ(r, std::numeric_limits<double>::infinity());
    EXPECT_EQ(qspsSumLn_32f(f.data(), 3, &r32), qspStsWarnLogOfZero);
    EXPECT_EQ(r32, std::numeric_limits<float>::infinity());
    const std::vector<double> d = {0.0};
    EXPECT_EQ(qspsSumLn_64f(d.data(), 1, &r), qspStsWarnLogOfZero);
    EXPECT_EQ(r, std::numeric_limits<double>::infinity());
    const std::vector<Qsp16s> s = {5, 0};
    EXPECT_EQ(qspsSumLn_16s32f(s.data(), 2, &r32), qspStsWarnLogOfZero);
    EXPECT_EQ(r32, std::numeric_limits<float>::infinity());
}

TEST(SumLn, NegativeOrMinusZeroGivesNaNAndWarning)
{
    double r;
    float r32;
    const std::vector<float> minusZero = {1.0f, -0.0f};
    EXPECT_EQ(qspsSumLn_32f64f(minusZero.data(), 2, &r), qspStsWarnLogOfNegative);
    EXPECT_TRUE(negativeNaN(r));
    const std::vector<double> negative = {3.0, -1e-300, 0.0};
    EXPECT_EQ(qspsSumLn_64f(negative.data(), 3, &r), qspStsWarnLogOfNegative);
    EXPECT_TRUE(negativeNaN(r));
    const std::vector<Qsp16s> s = {5, -1, 0};
    EXPECT_EQ(qspsSumLn_16s32f(s.data(), 3, &r32), qspStsWarnLogOfNegative);
    EXPECT_TRUE(negativeNaN(r32));
    // The first special element decides: a zero before a negative value.
    const std::vector<float> zeroFirst = {1.0f, 0.0f, -2.0f};
    EXPECT_EQ(qspsSumLn_32f(zeroFirst.data(), 3, &r32), qspStsWarnLogOfZero);
    EXPECT_EQ(r32, std::numeric_limits<float>::infinity());
    // A NaN with its sign bit set counts as negative.
    const std::vector<float> negNaN = {-std::numeric_limits<float>::quiet_NaN()};
    EXPECT_EQ(qspsSumLn_32f(negNaN.data(), 1, &r32), qspStsWarnLogOfNegative);
    EXPECT_TRUE(negativeNaN(r32));
    // Deep in a later block too.
    std::vector<float> later(2000, 1.5f);
    later[1500] = -3.0f;
    EXPECT_EQ(qspsSumLn_32f(later.data(), 2000, &r32), qspStsWarnLogOfNegative);
}

TEST(SumLn, NaNGivesNaNWithoutWarning)
{
    double r;
    const std::vector<double> d = {1.0, std::numeric_limits<double>::quiet_NaN(), -1.0};
    EXPECT_EQ(qspsSumLn_64f(d.data(), 3, &r), qspStsOk);
    EXPECT_TRUE(std::isnan(r));
    float r32;
    const std::vector<float> f = {std::numeric_limits<float>::signaling_NaN(), 0.0f};
    EXPECT_EQ(qspsSumLn_32f(f.data(), 2, &r32), qspStsOk);
    EXPECT_TRUE(std::isnan(r32));
    const std::vector<float> inf = {2.0f, std::numeric_limits<float>::infinity()};
    EXPECT_EQ(qspsSumLn_32f(inf.data(), 2, &r32), qspStsOk);
    EXPECT_EQ(r32, std::numeric_limits<float>::infinity());
}

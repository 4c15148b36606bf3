// SPDX-License-Identifier: BSD-3-Clause
// RandGauss: state records, argument checks, the documented mapping of
// every type from the core stream (the ziggurat), reproducibility, and the
// statistics of the values.
#include "gen/ziggurat_tables.h"
#include "mathfn/ln.h"
#include "random_checks.h"

using randref::CoreStream;

namespace {

// The documented ziggurat on the model of the core stream: layer i from the
// low byte, u = (W >> 11) 2^-52 - 1; kept at once inside the layer's
// rectangle part, else the tail (layer 0) or the wedge test with one more
// word. The logarithm is the library's, so that the comparison is exact.
double normal(CoreStream& c)
{
    using namespace ziggurat;
    for (;;) {
        const uint64_t w = c.word();
        const int i = int(w & 255);
        const double u = double(w >> 11) * 0x1p-52 - 1.0;
        if (std::fabs(u) < kRatio[i]) return u * kX[i];
        if (i == 0) {
            for (;;) {
                const double x = -mathfn::lnPositive(double((c.word() >> 11) + 1) * 0x1p-53) / kR;
                const double y = -mathfn::lnPositive(double((c.word() >> 11) + 1) * 0x1p-53);
                if (2 * y > x * x) return u < 0 ? -(kR + x) : kR + x;
            }
        }
        const double x = u * kX[i];
        const double y = kF[i] + double(c.word() >> 11) * 0x1p-53 * (kF[i + 1] - kF[i]);
        if (mathfn::lnPositive(y) < -0.5 * x * x) return x;
    }
}

template <class T>
struct GaussMap {
    double mean, stdDev;
    T operator()(CoreStream& c) const
    {
        const double v = mean + stdDev * normal(c);
        if constexpr (std::is_floating_point_v<T>) {
            return T(v);
        } else {
            const double r = std::nearbyint(v);
            if (r != r) return 0;
            if (r > double(std::numeric_limits<T>::max())) return std::numeric_limits<T>::max();
            if (r < double(std::numeric_limits<T>::min())) return std::numeric_limits<T>::min();
            return T(r);
        }
    }
};

struct G8 {
    using T = Qsp8u;
    using State = QspsRandGaussState_8u;
    static QspStatus size(int* n) { return qspsRandGaussGetSize_8u(n); }
    static QspStatus init(State* s, int m, int d, unsigned seed) { return qspsRandGaussInit_8u(s, Qsp8u(m), Qsp8u(d), seed); }
    static QspStatus gen(T* d, int n, State* s) { return qspsRandGauss_8u(d, n, s); }
};
struct G16 {
    using T = Qsp16s;
    using State = QspsRandGaussState_16s;
    static QspStatus size(int* n) { return qspsRandGaussGetSize_16s(n); }
    static QspStatus init(State* s, int m, int d, unsigned seed) { return qspsRandGaussInit_16s(s, Qsp16s(m), Qsp16s(d), seed); }
    static QspStatus gen(T* d, int n, State* s) { return qspsRandGauss_16s(d, n, s); }
};
struct G32 {
    using T = Qsp32f;
    using State = QspsRandGaussState_32f;
    static QspStatus size(int* n) { return qspsRandGaussGetSize_32f(n); }
    static QspStatus init(State* s, Qsp32f m, Qsp32f d, unsigned seed) { return qspsRandGaussInit_32f(s, m, d, seed); }
    static QspStatus gen(T* d, int n, State* s) { return qspsRandGauss_32f(d, n, s); }
};
struct G64 {
    using T = Qsp64f;
    using State = QspsRandGaussState_64f;
    static QspStatus size(int* n) { return qspsRandGaussGetSize_64f(n); }
    static QspStatus init(State* s, Qsp64f m, Qsp64f d, unsigned seed) { return qspsRandGaussInit_64f(s, m, d, seed); }
    static QspStatus gen(T* d, int n, State* s) { return qspsRandGauss_64f(d, n, s); }
};

double normalCdf(double x) { return 0.5 * std::erfc(-x / std::sqrt(2.0)); }

}  // namespace

TEST(RandGauss, SizesAndInitChecks)
{
    randcheck::expectSizeChecks<G8>();
    randcheck::expectSizeChecks<G16>();
    randcheck::expectSizeChecks<G32>();
    randcheck::expectSizeChecks<G64>();
    // A null state first; then the mean (not finite: qspStsBadArgument),
    // then the deviation (negative or not finite: qspStsBadStdDev).
    randcheck::expectInitFails<G8>(qspStsNullPtr, true, 0, 0);
    randcheck::expectInitFails<G16>(qspStsNullPtr, true, 0, -1);
    randcheck::expectInitFails<G16>(qspStsBadStdDev, false, 0, -1);
    randcheck::expectInitFails<G16>(qspStsBadStdDev, false, 100, -32768);
    randcheck::expectInitFails<G32>(qspStsBadStdDev, false, 0.0f, -1e-30f);
    randcheck::expectInitFails<G32>(qspStsBadStdDev, false, 0.0f, NAN);
    randcheck::expectInitFails<G32>(qspStsBadStdDev, false, 0.0f, INFINITY);
    randcheck::expectInitFails<G32>(qspStsBadArgument, false, NAN, -1.0f);
    randcheck::expectInitFails<G32>(qspStsBadArgument, false, -INFINITY, 1.0f);
    randcheck::expectInitFails<G32>(qspStsNullPtr, true, NAN, -1.0f);
    randcheck::expectInitFails<G64>(qspStsBadStdDev, false, 1.0, -0.5);
    randcheck::expectInitFails<G64>(qspStsBadArgument, false, double(INFINITY), 0.5);
    // A deviation of zero is accepted: every value is the mean.
    randcheck::State<G64> flat(2.5, 0.0, 1);
    std::vector<Qsp64f> v(100);
    ASSERT_EQ(qspsRandGauss_64f(v.data(), 100, flat.get()), qspStsOk);
    for (double x : v) EXPECT_EQ(x, 2.5);
}

TEST(RandGauss, GeneratingChecks)
{
    randcheck::expectCallChecks<G8>(100, 20);
    randcheck::expectCallChecks<G16>(-5, 5);
    randcheck::expectCallChecks<G32>(0.0f, 1.0f);
    randcheck::expectCallChecks<G64>(0.0, 1.0);
    randcheck::expectComplexCallChecks<G16>(qspsRandGauss_16sc, -5, 5);
    randcheck::expectComplexCallChecks<G32>(qspsRandGauss_32fc, 0.0f, 1.0f);
    randcheck::expectComplexCallChecks<G64>(qspsRandGauss_64fc, 0.0, 1.0);
    // Records of the uniform generator are not taken.
    int n = 0;
    ASSERT_EQ(qspsRandUniformGetSize_32f(&n), qspStsOk);
    std::vector<unsigned char> block(n);
    ASSERT_EQ(qspsRandUniformInit_32f(reinterpret_cast<QspsRandUniformState_32f*>(block.data()), 0, 1, 1), qspStsOk);
    qsptest::Guarded<Qsp32f> d(8);
    EXPECT_EQ(qspsRandGauss_32f(d.data(), 8, reinterpret_cast<QspsRandGaussState_32f*>(block.data())), qspStsBadRecord);
    EXPECT_TRUE(d.untouched());
}

TEST(RandGauss, EveryTypeIsItsDocumentedMappingOfTheCoreStream)
{
    for (unsigned seed : {0u, 7u, 2026u}) {
        randcheck::expectStream<G64>(seed, 0.0, 1.0, GaussMap<Qsp64f>{0.0, 1.0});
        randcheck::expectStream<G64>(seed, -1e5, 3.25, GaussMap<Qsp64f>{-1e5, 3.25});
        randcheck::expectStream<G32>(seed, 0.0f, 1.0f, GaussMap<Qsp32f>{0.0, 1.0});
        randcheck::expectStream<G32>(seed, 10.5f, 0.1f, GaussMap<Qsp32f>{10.5, double(0.1f)});
        randcheck::expectStream<G16>(seed, 0, 1000, GaussMap<Qsp16s>{0, 1000});
        randcheck::expectStream<G16>(seed, -32768, 32767, GaussMap<Qsp16s>{-32768, 32767});
        randcheck::expectStream<G8>(seed, 128, 40, GaussMap<Qsp8u>{128, 40});
        randcheck::expectStream<G8>(seed, 3, 255, GaussMap<Qsp8u>{3, 255});
    }
}

TEST(RandGauss, ComplexFormsAreTheRealStreamOverTwiceTheLength)
{
    randcheck::expectComplexStream<G16>(qspsRandGauss_16sc, 0, 300, 5);
    randcheck::expectComplexStream<G32>(qspsRandGauss_32fc, 1.0f, 2.0f, 6);
    randcheck::expectComplexStream<G64>(qspsRandGauss_64fc, -1.0, 0.5, 7);
}

TEST(RandGauss, SplitCallsAndStateAlignmentDoNotChangeTheValues)
{
    randcheck::expectSplitInvariance<G8>(100, 30);
    randcheck::expectSplitInvariance<G16>(0, 100);
    randcheck::expectSplitInvariance<G32>(0.0f, 1.0f);
    randcheck::expectSplitInvariance<G64>(0.0, 1.0);
}

TEST(RandGauss, IntegerResultsSaturate)
{
    std::vector<Qsp16s> v(100000);
    randcheck::State<G16> s(0, 30000, 3);
    ASSERT_EQ(qspsRandGauss_16s(v.data(), int(v.size()), s.get()), qspStsOk);
    int top = 0, bottom = 0;
    for (Qsp16s x : v) top += x == 32767, bottom += x == -32768;
    // Saturated beyond +-32767.5: P(z > 32767.5/30000) on each side.
    const double p = normalCdf(-32767.5 / 30000);
    EXPECT_NEAR(top / 1e5, p, 0.006);
    EXPECT_NEAR(bottom / 1e5, p, 0.006);
    std::vector<Qsp8u> b(100000);
    randcheck::State<G8> t(10, 20, 3);
    ASSERT_EQ(qspsRandGauss_8u(b.data(), int(b.size()), t.get()), qspStsOk);
    int zeros = 0;
    for (Qsp8u x : b) zeros += x == 0;
    EXPECT_NEAR(zeros / 1e5, normalCdf((0.5 - 10) / 20), 0.006);  // v < 0.5
}

namespace {

void expectNormalStatistics(const std::vector<double>& x, const std::string& what)
{
    SCOPED_TRACE(what);
    const double n = double(x.size());
    // Kolmogorov-Smirnov on [-6, 6] at 2^16 points.
    EXPECT_GT(randref::ksTail(randref::ksStatistic(x, -6.0, 6.0, 1 << 16, normalCdf)), randcheck::kTail);
    // Chi-square over 200 bins of width 0.05 on [-5, 5), the outermost
    // ones taking the tails beyond.
    std::vector<int64_t> count(200, 0);
    std::vector<double> expected(200);
    for (double v : x) {
        const double f = (v + 5) * 20;
        ++count[f < 1 ? 0 : f >= 199 ? 199 : int(f)];
    }
    for (int b = 0; b < 200; ++b) {
        const double lo = b == 0 ? -INFINITY : -5 + b / 20.0, hi = b == 199 ? INFINITY : -5 + (b + 1) / 20.0;
        expected[b] = n * (normalCdf(hi) - normalCdf(lo));
    }
    const double p = randref::chiSquareTail(randref::chiSquare(count, expected), double(count.size() - 1));
    EXPECT_GT(p, randcheck::kTail);
    EXPECT_LT(p, 1 - randcheck::kTail);
    const randref::Moments m = randref::moments(x);
    EXPECT_NEAR(m.mean, 0, 5 / std::sqrt(n));
    EXPECT_NEAR(m.variance, 1, 5 * std::sqrt(2 / n));
    EXPECT_NEAR(m.skewness, 0, 5 * std::sqrt(6 / n));
    EXPECT_NEAR(m.kurtosis, 3, 5 * std::sqrt(24 / n));
    // The ziggurat's tail beyond R: expected 2 Q(R) n of them.
    int64_t beyond = 0;
    for (double v : x) beyond += std::fabs(v) > ziggurat::kR;
    const double want = 2 * normalCdf(-ziggurat::kR) * n;
    EXPECT_NEAR(double(beyond), want, 5 * std::sqrt(want));
    for (int lag : {1, 2, 3, 8, 16, 17, 256, 512}) {
        EXPECT_LT(std::fabs(randref::lagCorrelation(x, lag)), 5 / std::sqrt(n)) << "lag " << lag;
    }
}

}  // namespace

TEST(RandGaussHeavy, Gauss32fAndGauss64fPassKolmogorovSmirnovChiSquareMomentsTailsAndLags)
{
    constexpr int n = 10000000;
    {
        std::vector<Qsp64f> d(n);
        randcheck::State<G64> s(0.0, 1.0, 2026);
        ASSERT_EQ(qspsRandGauss_64f(d.data(), n, s.get()), qspStsOk);
        expectNormalStatistics(d, "64f");
    }
    {
        std::vector<Qsp32f> f(n);
        randcheck::State<G32> s(0.0f, 1.0f, 2027);
        ASSERT_EQ(qspsRandGauss_32f(f.data(), n, s.get()), qspStsOk);
        expectNormalStatistics(std::vector<double>(f.begin(), f.end()), "32f");
    }
}

TEST(RandGauss, ShortRunStatistics)
{
    // The same checks on 2^18 values, for the sanitizer build.
    std::vector<Qsp64f> d(1 << 18);
    randcheck::State<G64> s(0.0, 1.0, 77);
    ASSERT_EQ(qspsRandGauss_64f(d.data(), int(d.size()), s.get()), qspStsOk);
    expectNormalStatistics(d, "64f short");
}

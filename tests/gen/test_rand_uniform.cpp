// SPDX-License-Identifier: BSD-3-Clause
// RandUniform: state records, argument checks, the documented mapping of
// every type from the core stream, reproducibility, and the statistics of
// the values.
#include <cfloat>
#include <map>

#include "random_checks.h"

using randref::CoreStream;

namespace {

// The documented mappings, evaluated from the model of the core stream.
template <class F>
struct FloatMap {
    F low, width, scale, top;
    FloatMap(F lo, F hi) : low(lo), width(hi - lo), scale(1), top(lo < hi ? std::nextafter(hi, -INFINITY) : hi)
    {
        if (std::isinf(width)) scale = 2, low = lo / 2, width = hi / 2 - lo / 2;
    }
    F operator()(CoreStream& c) const
    {
        F u;
        if constexpr (sizeof(F) == 4) u = float(int32_t(c.half() >> 8)) * 0x1p-24f;
        else u = double(c.word() >> 12) * 0x1p-52;
        const F r = scale * (low + width * u);
        return r < top ? r : top;
    }
};

struct IntMap {
    int64_t low;
    uint64_t range;
    IntMap(int lo, int hi) : low(lo), range(uint64_t(hi - lo) + 1) {}
    int operator()(CoreStream& c) const
    {
        const uint64_t reject = (uint64_t(1) << 32) % range;
        for (;;) {
            const uint64_t m = uint64_t(c.half()) * range;
            if (uint32_t(m) >= reject) return int(low + int64_t(m >> 32));
        }
    }
};

// The library's generator of one type with its state, for the shared
// checks (random_checks.h).
struct U8 {
    using T = Qsp8u;
    using State = QspsRandUniformState_8u;
    static QspStatus size(int* n) { return qspsRandUniformGetSize_8u(n); }
    static QspStatus init(State* s, int lo, int hi, unsigned seed) { return qspsRandUniformInit_8u(s, Qsp8u(lo), Qsp8u(hi), seed); }
    static QspStatus gen(T* d, int n, State* s) { return qspsRandUniform_8u(d, n, s); }
};
struct U16 {
    using T = Qsp16s;
    using State = QspsRandUniformState_16s;
    static QspStatus size(int* n) { return qspsRandUniformGetSize_16s(n); }
    static QspStatus init(State* s, int lo, int hi, unsigned seed) { return qspsRandUniformInit_16s(s, Qsp16s(lo), Qsp16s(hi), seed); }
    static QspStatus gen(T* d, int n, State* s) { return qspsRandUniform_16s(d, n, s); }
};
struct U32 {
    using T = Qsp32f;
    using State = QspsRandUniformState_32f;
    static QspStatus size(int* n) { return qspsRandUniformGetSize_32f(n); }
    static QspStatus init(State* s, Qsp32f lo, Qsp32f hi, unsigned seed) { return qspsRandUniformInit_32f(s, lo, hi, seed); }
    static QspStatus gen(T* d, int n, State* s) { return qspsRandUniform_32f(d, n, s); }
};
struct U64 {
    using T = Qsp64f;
    using State = QspsRandUniformState_64f;
    static QspStatus size(int* n) { return qspsRandUniformGetSize_64f(n); }
    static QspStatus init(State* s, Qsp64f lo, Qsp64f hi, unsigned seed) { return qspsRandUniformInit_64f(s, lo, hi, seed); }
    static QspStatus gen(T* d, int n, State* s) { return qspsRandUniform_64f(d, n, s); }
};

}  // namespace

TEST(RandUniform, SizesAndInitChecks)
{
    randcheck::expectSizeChecks<U8>();
    randcheck::expectSizeChecks<U16>();
    randcheck::expectSizeChecks<U32>();
    randcheck::expectSizeChecks<U64>();
    // A null state first, then the range: low above high, or a bound that
    // is not finite, is qspStsBadRange; nothing is written.
    randcheck::expectInitFails<U8>(qspStsNullPtr, true, 0, 1);
    randcheck::expectInitFails<U8>(qspStsBadRange, false, 5, 4);
    randcheck::expectInitFails<U8>(qspStsNullPtr, true, 5, 4);
    randcheck::expectInitFails<U16>(qspStsBadRange, false, -3, -4);
    randcheck::expectInitFails<U16>(qspStsBadRange, false, 32767, -32768);
    randcheck::expectInitFails<U32>(qspStsBadRange, false, 1.0f, 0.5f);
    randcheck::expectInitFails<U32>(qspStsBadRange, false, NAN, 1.0f);
    randcheck::expectInitFails<U32>(qspStsBadRange, false, 0.0f, NAN);
    randcheck::expectInitFails<U32>(qspStsBadRange, false, -INFINITY, 0.0f);
    randcheck::expectInitFails<U32>(qspStsBadRange, false, 0.0f, INFINITY);
    randcheck::expectInitFails<U32>(qspStsNullPtr, true, NAN, NAN);
    randcheck::expectInitFails<U64>(qspStsBadRange, false, 2.0, -2.0);
    randcheck::expectInitFails<U64>(qspStsBadRange, false, double(NAN), 0.0);
    randcheck::expectInitFails<U64>(qspStsBadRange, false, 0.0, double(INFINITY));
}

TEST(RandUniform, GeneratingChecks)
{
    randcheck::expectCallChecks<U8>(0, 255);
    randcheck::expectCallChecks<U16>(-5, 5);
    randcheck::expectCallChecks<U32>(0.0f, 1.0f);
    randcheck::expectCallChecks<U64>(0.0, 1.0);
    randcheck::expectComplexCallChecks<U16>(qspsRandUniform_16sc, -5, 5);
    randcheck::expectComplexCallChecks<U32>(qspsRandUniform_32fc, 0.0f, 1.0f);
    randcheck::expectComplexCallChecks<U64>(qspsRandUniform_64fc, 0.0, 1.0);
    // A state of another kind is not taken.
    randcheck::State<U32> f32(0.0f, 1.0f, 1);
    qsptest::Guarded<Qsp64f> d(8);
    EXPECT_EQ(qspsRandUniform_64f(d.data(), 8, reinterpret_cast<QspsRandUniformState_64f*>(f32.get())),
              qspStsBadRecord);
    randcheck::State<U16> s16(0, 1, 1);
    qsptest::Guarded<Qsp8u> b(8);
    EXPECT_EQ(qspsRandUniform_8u(b.data(), 8, reinterpret_cast<QspsRandUniformState_8u*>(s16.get())), qspStsBadRecord);
    EXPECT_TRUE(d.untouched());
    EXPECT_TRUE(b.untouched());
}

TEST(RandUniform, EveryTypeIsItsDocumentedMappingOfTheCoreStream)
{
    for (unsigned seed : {0u, 1u, 12345u, 0xFFFFFFFFu}) {
        randcheck::expectStream<U32>(seed, 0.0f, 1.0f, FloatMap<float>(0.0f, 1.0f));
        randcheck::expectStream<U32>(seed, -3.5f, 1e7f, FloatMap<float>(-3.5f, 1e7f));
        randcheck::expectStream<U32>(seed, -FLT_MAX, FLT_MAX, FloatMap<float>(-FLT_MAX, FLT_MAX));
        randcheck::expectStream<U64>(seed, 0.0, 1.0, FloatMap<double>(0.0, 1.0));
        randcheck::expectStream<U64>(seed, -1e300, 1e-300, FloatMap<double>(-1e300, 1e-300));
        randcheck::expectStream<U64>(seed, -DBL_MAX, DBL_MAX, FloatMap<double>(-DBL_MAX, DBL_MAX));
        randcheck::expectStream<U8>(seed, 0, 255, IntMap(0, 255));
        randcheck::expectStream<U8>(seed, 10, 12, IntMap(10, 12));
        randcheck::expectStream<U8>(seed, 7, 7, IntMap(7, 7));
        randcheck::expectStream<U16>(seed, -32768, 32767, IntMap(-32768, 32767));
        randcheck::expectStream<U16>(seed, -1000, 30000, IntMap(-1000, 30000));
        // A range of 3 * 2^14: 2^32 mod r is large, so halves are dropped
        // now and then (about one in 2^17 here).
        randcheck::expectStream<U16>(seed, -20000, 29151, IntMap(-20000, 29151));
    }
}

TEST(RandUniform, ComplexFormsAreTheRealStreamOverTwiceTheLength)
{
    randcheck::expectComplexStream<U16>(qspsRandUniform_16sc, -300, 300, 77);
    randcheck::expectComplexStream<U32>(qspsRandUniform_32fc, -1.0f, 1.0f, 78);
    randcheck::expectComplexStream<U64>(qspsRandUniform_64fc, 0.0, 10.0, 79);
}

TEST(RandUniform, SplitCallsAndStateAlignmentDoNotChangeTheValues)
{
    randcheck::expectSplitInvariance<U8>(0, 200);
    randcheck::expectSplitInvariance<U16>(-9, 9);
    randcheck::expectSplitInvariance<U32>(-2.0f, 2.0f);
    randcheck::expectSplitInvariance<U64>(-2.0, 2.0);
}

TEST(RandUniform, ValuesStayInsideTheInterval)
{
    // A one-float interval gives its lower end only; low == high gives low.
    std::vector<Qsp32f> f(4096);
    randcheck::State<U32> tight(1.0f, std::nextafter(1.0f, 2.0f), 5);
    ASSERT_EQ(qspsRandUniform_32f(f.data(), 4096, tight.get<QspsRandUniformState_32f>()), qspStsOk);
    for (float v : f) ASSERT_EQ(v, 1.0f);
    randcheck::State<U32> point(-2.5f, -2.5f, 5);
    ASSERT_EQ(qspsRandUniform_32f(f.data(), 4096, point.get<QspsRandUniformState_32f>()), qspStsOk);
    for (float v : f) ASSERT_EQ(v, -2.5f);
    // Near the top of a wide interval the rounding would reach high: the
    // values stay below it.
    randcheck::State<U32> wide(-1.0f, 1e8f, 6);
    std::vector<Qsp32f> g(1 << 18);
    ASSERT_EQ(qspsRandUniform_32f(g.data(), int(g.size()), wide.get<QspsRandUniformState_32f>()), qspStsOk);
    for (float v : g) ASSERT_TRUE(v >= -1.0f && v < 1e8f) << v;
    randcheck::State<U64> huge(-DBL_MAX, DBL_MAX, 6);
    std::vector<Qsp64f> h(4096);
    ASSERT_EQ(qspsRandUniform_64f(h.data(), 4096, huge.get<QspsRandUniformState_64f>()), qspStsOk);
    for (double v : h) ASSERT_TRUE(std::isfinite(v));
    std::vector<Qsp16s> s(1 << 16);
    randcheck::State<U16> full(-32768, 32767, 9);
    ASSERT_EQ(qspsRandUniform_16s(s.data(), int(s.size()), full.get<QspsRandUniformState_16s>()), qspStsOk);
    randcheck::State<U8> one(200, 200, 9);
    std::vector<Qsp8u> b(1000);
    ASSERT_EQ(qspsRandUniform_8u(b.data(), 1000, one.get<QspsRandUniformState_8u>()), qspStsOk);
    for (Qsp8u v : b) ASSERT_EQ(v, 200);
}

TEST(RandUniform, SeedsGiveDifferentStreams)
{
    std::vector<Qsp64f> a(64), b(64);
    randcheck::State<U64> s1(0.0, 1.0, 1), s2(0.0, 1.0, 2);
    ASSERT_EQ(qspsRandUniform_64f(a.data(), 64, s1.get<QspsRandUniformState_64f>()), qspStsOk);
    ASSERT_EQ(qspsRandUniform_64f(b.data(), 64, s2.get<QspsRandUniformState_64f>()), qspStsOk);
    int same = 0;
    for (int i = 0; i < 64; ++i) same += a[i] == b[i];
    EXPECT_EQ(same, 0);
}

// ---------------------------------------------------------------------------
// Statistics of 10^7 values.

TEST(RandUniformHeavy, Uniform32fAndUniform64fPassChiSquareKolmogorovSmirnovMomentsAndLagCorrelations)
{
    constexpr int n = 10000000;
    std::vector<double> x(n);
    {
        std::vector<Qsp32f> f(n);
        randcheck::State<U32> s(0.0f, 1.0f, 2026);
        ASSERT_EQ(qspsRandUniform_32f(f.data(), n, s.get<QspsRandUniformState_32f>()), qspStsOk);
        std::copy(f.begin(), f.end(), x.begin());
        randcheck::expectUniformStatistics(x, "32f");
    }
    {
        std::vector<Qsp64f> d(n);
        randcheck::State<U64> s(0.0, 1.0, 2027);
        ASSERT_EQ(qspsRandUniform_64f(d.data(), n, s.get<QspsRandUniformState_64f>()), qspStsOk);
        randcheck::expectUniformStatistics(d, "64f");
    }
}

TEST(RandUniformHeavy, IntegersAreEquallyLikely)
{
    constexpr int n = 10000000;
    {
        std::vector<Qsp16s> v(n);
        randcheck::State<U16> s(-32768, 32767, 11);
        ASSERT_EQ(qspsRandUniform_16s(v.data(), n, s.get<QspsRandUniformState_16s>()), qspStsOk);
        std::vector<int64_t> count(65536, 0);
        for (Qsp16s x : v) ++count[x + 32768];
        randcheck::expectFlatCounts(count, n, "16s full range");
    }
    {
        // A range that is not a power of two, where the dropping matters.
        std::vector<Qsp16s> v(n);
        randcheck::State<U16> s(-20000, 29151, 12);
        ASSERT_EQ(qspsRandUniform_16s(v.data(), n, s.get<QspsRandUniformState_16s>()), qspStsOk);
        std::vector<int64_t> count(49152, 0);
        for (Qsp16s x : v) ++count[x + 20000];
        randcheck::expectFlatCounts(count, n, "16s r = 49152");
    }
    {
        std::vector<Qsp8u> v(n);
        randcheck::State<U8> s(3, 252, 13);
        ASSERT_EQ(qspsRandUniform_8u(v.data(), n, s.get<QspsRandUniformState_8u>()), qspStsOk);
        std::vector<int64_t> count(250, 0);
        for (Qsp8u x : v) ++count[x - 3];
        randcheck::expectFlatCounts(count, n, "8u r = 250");
    }
}

TEST(RandUniform, ShortRunStatistics)
{
    // The same checks on 2^17 values, for the sanitizer build.
    constexpr int n = 1 << 17;
    std::vector<Qsp64f> d(n);
    randcheck::State<U64> s(0.0, 1.0, 99);
    ASSERT_EQ(qspsRandUniform_64f(d.data(), n, s.get<QspsRandUniformState_64f>()), qspStsOk);
    randcheck::expectUniformStatistics(d, "64f short");
}

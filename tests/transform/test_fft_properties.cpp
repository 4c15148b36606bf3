// SPDX-License-Identifier: BSD-3-Clause
// Properties of the transforms beyond the reference comparison: round
// trips by flag, tier boundaries, misaligned blocks, special signals.
#include "fft_kinds.h"
#include "fft_real_kinds.h"

using namespace fftkinds;
using fftref::LC;

namespace {

double maxRelDiff(const std::vector<LC>& a, const std::vector<LC>& b, long double scale)
{
    long double num = 0, den = 0;
    for (size_t i = 0; i < a.size(); ++i) {
        num += std::norm(a[i] - b[i] * scale);
        den += std::norm(b[i] * scale);
    }
    return (double)sqrtl(num / den);
}

}  // namespace

TEST(FFTProperties, Flag4RoundTripReturnsTheInput)
{
    for (K k : {K::C32fc, K::C32f, K::C64fc, K::C64f})
        for (int order : {0, 5, 6, 17, 18, 19, 20}) {
            const auto& x = fftref::cached(order, false).x;
            Built b = build(k, order, 4);
            const auto y = run(k, true, b, run(k, false, b, x, false), false);
            // Two transforms' rounding: twice the single-transform bound.
            EXPECT_LE(maxRelDiff(y, x, 1), 2 * fftref::bound(isDouble(k), order)) << name(k) << " order " << order;
        }
}

TEST(FFTProperties, Flag8RoundTripGivesNTimesTheInput)
{
    for (K k : {K::C32fc, K::C64fc, K::C32f})
        for (int order : {0, 3, 6, 11, 18}) {
            const auto& x = fftref::cached(order, false).x;
            Built b = build(k, order, 8);
            const auto y = run(k, true, b, run(k, false, b, x, false), false);
            EXPECT_LE(maxRelDiff(y, x, (long double)(1 << order)), 2 * fftref::bound(isDouble(k), order))
                << name(k) << " order " << order;
        }
}

TEST(FFTProperties, Flags1And2DivideOneDirectionByN)
{
    for (int flag : {1, 2})
        for (int order : {2, 7, 12}) {
            const auto& x = fftref::cached(order, false).x;
            Built b = build(K::C64fc, order, flag);
            const auto y = run(K::C64fc, true, b, run(K::C64fc, false, b, x, false), false);
            EXPECT_LE(maxRelDiff(y, x, 1), 1e-15) << "flag " << flag << " order " << order;
        }
}

TEST(FFTProperties, MisalignedBlocksAndDataGiveIdenticalResults)
{
    // Orders of every tier; at 9 and 12 a 16-byte aligned destination
    // takes the medium tier's aligned passes and the others its unaligned
    // ones.
    for (K k : {K::C32fc, K::C32f, K::C64fc, K::C64f, K::C16fc})
        for (int order : {4, 7, 9, 12, 18}) {
            const auto& x = fftref::cached(order, false).x;
            Built a = build(k, order, 4, 0);
            const auto ya = run(k, false, a, x, false);
            for (int offset : {1, 4, 8, 36}) {
                Built b = build(k, order, 4, offset);
                const auto yb = run(k, false, b, x, false, nullptr, (offset % 4 == 0) ? 1 : 3);
                for (size_t i = 0; i < ya.size(); ++i)
                    ASSERT_TRUE(ya[i] == yb[i]) << name(k) << " order " << order << " offset " << offset;
            }
        }
    qspSetFlushToZero(0, nullptr);
    qspSetDenormAreZeros(0, nullptr);
}

TEST(FFTProperties, LargeOrderRoundTrip)
{
    // One order above the largest checked against the reference, in each
    // tier of the large algorithm (n1 = 8).
    for (K k : {K::C32fc, K::C64fc}) {
        const int order = 21;
        const auto x = fftref::exactSignal(order, false);
        Built b = build(k, order, 4);
        const auto y = run(k, true, b, run(k, false, b, x, true), true);
        EXPECT_LE(maxRelDiff(y, x, 1), 2 * fftref::bound(isDouble(k), order)) << name(k);
    }
}

TEST(FFTProperties, RealConstantSignalHasOnlyTheZeroBin)
{
    using namespace fftreal;
    for (int order = 0; order <= 12; ++order) {
        const size_t n = size_t(1) << order;
        for (Layout l : {Layout::Pack, Layout::Perm}) {
            auto b = build<float>(order, 8);
            std::vector<float> x(n, 0.75f), y(n, -1.0f);
            ASSERT_EQ(Api<float>::fwd(l, x.data(), y.data(), b.rec, b.blocks.workPtr()), qspStsOk);
            EXPECT_EQ(y[0], 0.75f * n);
            for (size_t i = 1; i < n; ++i) ASSERT_EQ(y[i], 0.0f) << order << " " << i;
        }
    }
}

TEST(FFTProperties, RealTwoPointPackEqualsPerm)
{
    using namespace fftreal;
    auto b = build<double>(1, 8);
    double x[2] = {3, -5}, p[2], q[2], c[4];
    ASSERT_EQ(Api<double>::fwd(Layout::Pack, x, p, b.rec, nullptr), qspStsOk);
    ASSERT_EQ(Api<double>::fwd(Layout::Perm, x, q, b.rec, nullptr), qspStsOk);
    ASSERT_EQ(Api<double>::fwd(Layout::Ccs, x, c, b.rec, nullptr), qspStsOk);
    EXPECT_EQ(p[0], -2);
    EXPECT_EQ(p[1], 8);
    EXPECT_EQ(q[0], -2);
    EXPECT_EQ(q[1], 8);
    EXPECT_EQ(c[0], -2);
    EXPECT_EQ(c[1], 0);
    EXPECT_EQ(c[2], 8);
    EXPECT_EQ(c[3], 0);
}

namespace {

// Forward then inverse with flag 4 through the raw API at one order, the
// data in place; returns the relative RMS difference from the input.
template <class T, class Spec, class GetSize, class Init, class Fwd, class Inv>
double roundTrip(int order, size_t valuesPerPoint, GetSize getSize, Init init, Fwd fwd, Inv inv)
{
    int s = 0, i = 0, w = 0;
    EXPECT_EQ(getSize(order, 4, 0, &s, &i, &w), qspStsOk);
    std::vector<Qsp8u> spec((size_t)(unsigned)s), ib((size_t)(unsigned)i + 1), work((size_t)(unsigned)w + 1);
    Spec* rec = nullptr;
    EXPECT_EQ(init(&rec, order, 4, 0, spec.data(), ib.data()), qspStsOk);
    ib = {};
    const size_t n = (size_t(1) << order) * valuesPerPoint;
    std::vector<T> x(n + 2);
    for (size_t k = 0; k < n; ++k) x[k] = T((long long)((k * 2654435761u) % 8192) - 4096) / T(4096);
    const std::vector<T> original(x.begin(), x.begin() + n);
    EXPECT_EQ(fwd(x.data(), rec, work.data()), qspStsOk);
    EXPECT_EQ(inv(x.data(), rec, work.data()), qspStsOk);
    long double num = 0, den = 0;
    for (size_t k = 0; k < n; ++k) {
        num += (long double)(x[k] - original[k]) * (x[k] - original[k]);
        den += (long double)original[k] * original[k];
    }
    return (double)sqrtl(num / den);
}

// The largest order of each kind whose record, buffers and data stay
// within 2.5 GiB.
int largestOrder(int maxOrder, long double bytesPerPoint)
{
    int order = maxOrder;
    while ((long double)(1LL << order) * bytesPerPoint > 2.5L * (1LL << 30)) --order;
    return order;
}

}  // namespace

TEST(FFTProperties, RoundTripsAtOrder22)
{
    using S32 = QspsFFTSpec_C_32fc;
    const int order = 22;
    EXPECT_LE((roundTrip<float, S32>(order, 2, qspsFFTGetSize_C_32fc, qspsFFTInit_C_32fc,
                                     [](float* x, S32* r, Qsp8u* w) { return qspsFFTFwd_CToC_32fc_I((Qsp32fc*)x, r, w); },
                                     [](float* x, S32* r, Qsp8u* w) { return qspsFFTInv_CToC_32fc_I((Qsp32fc*)x, r, w); })),
              2 * fftref::bound(false, order));
    using R32 = QspsFFTSpec_R_32f;
    EXPECT_LE((roundTrip<float, R32>(order, 1, qspsFFTGetSize_R_32f, qspsFFTInit_R_32f,
                                     [](float* x, R32* r, Qsp8u* w) { return qspsFFTFwd_RToCCS_32f_I(x, r, w); },
                                     [](float* x, R32* r, Qsp8u* w) { return qspsFFTInv_CCSToR_32f_I(x, r, w); })),
              2 * fftref::bound(false, order));
    using R64 = QspsFFTSpec_R_64f;
    EXPECT_LE((roundTrip<double, R64>(order, 1, qspsFFTGetSize_R_64f, qspsFFTInit_R_64f,
                                      [](double* x, R64* r, Qsp8u* w) { return qspsFFTFwd_RToPack_64f_I(x, r, w); },
                                      [](double* x, R64* r, Qsp8u* w) { return qspsFFTInv_PackToR_64f_I(x, r, w); })),
              2 * fftref::bound(true, order));
}

// The largest orders that memory allows here, one round trip per kind:
// several seconds and up to 2.5 GiB, so run on request only
// (--gtest_also_run_disabled_tests).
TEST(FFTProperties, DISABLED_RoundTripsAtTheLargestOrders)
{
    using S32 = QspsFFTSpec_C_32fc;
    using S64 = QspsFFTSpec_C_64fc;
    using R32 = QspsFFTSpec_R_32f;
    using R64 = QspsFFTSpec_R_64f;
    // Bytes per point: record and work buffer (about 9 and 8 bytes per
    // complex single value, twice that in double) plus the data and its copy.
    const int c32 = largestOrder(28, 9 + 8 + 16 + 1);
    const int c64 = largestOrder(27, 18 + 16 + 32 + 1);
    const int r32 = largestOrder(29, 5 + 4 + 8 + 1);
    const int r64 = largestOrder(28, 9 + 8 + 16 + 1);
    const double e1 = roundTrip<float, S32>(c32, 2, qspsFFTGetSize_C_32fc, qspsFFTInit_C_32fc,
        [](float* x, S32* r, Qsp8u* w) { return qspsFFTFwd_CToC_32fc_I((Qsp32fc*)x, r, w); },
        [](float* x, S32* r, Qsp8u* w) { return qspsFFTInv_CToC_32fc_I((Qsp32fc*)x, r, w); });
    EXPECT_LE(e1, 2 * fftref::bound(false, c32)) << "C_32fc order " << c32;
    const double e2 = roundTrip<double, S64>(c64, 2, qspsFFTGetSize_C_64fc, qspsFFTInit_C_64fc,
        [](double* x, S64* r, Qsp8u* w) { return qspsFFTFwd_CToC_64fc_I((Qsp64fc*)x, r, w); },
        [](double* x, S64* r, Qsp8u* w) { return qspsFFTInv_CToC_64fc_I((Qsp64fc*)x, r, w); });
    EXPECT_LE(e2, 2 * fftref::bound(true, c64)) << "C_64fc order " << c64;
    const double e3 = roundTrip<float, R32>(r32, 1, qspsFFTGetSize_R_32f, qspsFFTInit_R_32f,
        [](float* x, R32* r, Qsp8u* w) { return qspsFFTFwd_RToPerm_32f_I(x, r, w); },
        [](float* x, R32* r, Qsp8u* w) { return qspsFFTInv_PermToR_32f_I(x, r, w); });
    EXPECT_LE(e3, 2 * fftref::bound(false, r32)) << "R_32f order " << r32;
    const double e4 = roundTrip<double, R64>(r64, 1, qspsFFTGetSize_R_64f, qspsFFTInit_R_64f,
        [](double* x, R64* r, Qsp8u* w) { return qspsFFTFwd_RToCCS_64f_I(x, r, w); },
        [](double* x, R64* r, Qsp8u* w) { return qspsFFTInv_CCSToR_64f_I(x, r, w); });
    EXPECT_LE(e4, 2 * fftref::bound(true, r64)) << "R_64f order " << r64;
    printf("  round trips: C_32fc order %d %.3g, C_64fc order %d %.3g, R_32f order %d %.3g, R_64f order %d %.3g\n",
           c32, e1, c64, e2, r32, e3, r64, e4);
}

// The large tier at orders 21 and 22, which have no long double reference:
// every flag's result against the unscaled one (flag 8) times the record's
// factor, in both directions. The factor multiplies the finished values,
// so 1/N (a power of two) gives exactly the scaled unscaled result; with
// 1/sqrt(N) (rounded to the precision, as the record holds it) each value
// is that product rounded once, within 2^-24 (single) or 2^-53 (double)
// of it.
TEST(FFTPropertiesHeavy, LargeTierFlagsScaleTheUnscaledResult)
{
    for (K k : {K::C32fc, K::C32f, K::C64fc, K::C64f})
        for (int order : {21, 22}) {
            const auto x = fftref::randomSignal(size_t(1) << order);
            Built plain = build(k, order, 8);
            for (bool inverse : {false, true}) {
                const auto y8 = run(k, inverse, plain, x, false);
                for (int flag : {1, 2, 4}) {
                    Built b = build(k, order, flag);
                    const auto y = run(k, inverse, b, x, false);
                    const bool scaled = flag == 4 || (flag == 1) != inverse;
                    const long double n = (long double)(1LL << order);
                    const double r = 1.0 / sqrt((double)n);
                    const long double f = !scaled      ? 1.0L
                                          : flag != 4  ? 1.0L / n
                                          : isDouble(k) ? (long double)r
                                                        : (long double)(float)r;
                    if (flag == 4) {
                        // Each part rounded once: |error| <= u |exact part|.
                        EXPECT_LE(maxRelDiff(y, y8, f), isDouble(k) ? 0x1p-53 : 0x1p-24)
                            << name(k) << " order " << order << (inverse ? " inverse" : " forward");
                        continue;
                    }
                    for (size_t i = 0; i < x.size(); ++i)
                        ASSERT_TRUE(y[i] == y8[i] * f) << name(k) << " order " << order << " flag " << flag
                                                       << (inverse ? " inverse" : " forward") << " index " << i;
                }
            }
        }
}

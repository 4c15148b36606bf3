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
        for (int order : {0, 5, 6, 17, 18}) {
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
    for (K k : {K::C32fc, K::C32f, K::C64fc, K::C64f, K::C16fc})
        for (int order : {4, 7, 12, 18}) {
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

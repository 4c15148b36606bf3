// SPDX-License-Identifier: BSD-3-Clause
#include "fft_kinds.h"

using namespace fftkinds;
using fftref::LC;

namespace {

// Scale of the flag for a direction: 1, 1/N or 1/sqrt(N).
long double flagScale(int flag, bool inverse, int order)
{
    const long double n = (long double)(1LL << order);
    if (flag == 4) return 1.0L / sqrtl(n);
    if ((flag == 1 && !inverse) || (flag == 2 && inverse)) return 1.0L / n;
    return 1.0L;
}

void checkOrder(K k, int order, int flag, bool inverse, bool report = false)
{
    const size_t n = size_t(1) << order;
    const auto& c = fftref::cached(order, false);
    const auto& x = c.x;
    auto ref = inverse ? c.inverse : c.forward;
    const long double sc = flagScale(flag, inverse, order);
    for (auto& v : ref) v *= sc;
    Built b = build(k, order, flag);
    const auto out = run(k, inverse, b, x, false);
    const auto outI = run(k, inverse, b, x, true);
    const double err = fftref::relRms(ref, [&](size_t i) { return out[i]; });
    // Half precision stores its result in half: rounding the output alone
    // costs up to 2^-11 relative, so its bound is that of the 16-bit format.
    const double bound = k == K::C16fc ? 2e-3 : fftref::bound(isDouble(k), order);
    EXPECT_LE(err, bound) << name(k) << " order " << order << " flag " << flag << (inverse ? " inverse" : " forward");
    for (size_t i = 0; i < n; ++i) {
        ASSERT_TRUE(out[i] == outI[i]) << name(k) << " in place differs at order " << order << " index " << i;
    }
    if (report) printf("  %s %s order %2d: relative RMS error %.3g (bound %.3g)\n", name(k), inverse ? "inv" : "fwd", order, err, bound);
}

}  // namespace

// One test program run for every kind, so that the reference transforms
// (long double, up to order 20) are computed once.
TEST(FFTAccuracy, EveryKindEveryOrderFlagAndDirection)
{
    for (int order = 0; order <= 20; ++order) {
        checkOrder(K::C32fc, order, 8, false, true);
        checkOrder(K::C32fc, order, 8, true, true);
        checkOrder(K::C64fc, order, 8, false, true);
        checkOrder(K::C64fc, order, 8, true, true);
        checkOrder(K::C32f, order, 8, false);
        checkOrder(K::C32f, order, 8, true);
        checkOrder(K::C64f, order, 8, false);
        checkOrder(K::C64f, order, 8, true);
        // Flag 4 keeps the values of size 1, where half precision is accurate.
        checkOrder(K::C16fc, order, 4, false);
        checkOrder(K::C16fc, order, 4, true);
    }
    qspSetFlushToZero(0, nullptr);
    qspSetDenormAreZeros(0, nullptr);
    // Every flag at every straight-line order and at every order of the
    // double-precision two-step transform (each order and scaling has a
    // kernel of its own), at the tier boundaries (the large tier starts at
    // order 20 in double precision) and a few orders between.
    for (K k : {K::C32fc, K::C32f, K::C64fc, K::C64f})
        for (int flag : {1, 2, 4, 8})
            for (int order : {0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 16, 17, 18, 19, 20})
                for (bool inverse : {false, true}) checkOrder(k, order, flag, inverse);
}

// Orders 21 and 22 have no long double reference (too slow to build); the
// double transform, whose error is nine orders of magnitude below the
// single-precision bound, serves instead. Order 22 is the first whose
// single-precision record forms its batch-start twiddles from two small
// tables rather than from the octant.
TEST(FFTAccuracy, LargestSinglePrecisionOrdersAgainstDouble)
{
    for (int order : {21, 22}) {
        const size_t n = size_t(1) << order;
        std::vector<LC> x(n);
        Qsp32u r = 2463534242u;
        auto next = [&r] {
            r ^= r << 13;
            r ^= r >> 17;
            r ^= r << 5;
            return (float)(Qsp32s)r / 2147483648.0f;
        };
        for (auto& v : x) {
            const float re = next(), im = next();
            v = LC(re, im);
        }
        for (bool inverse : {false, true}) {
            std::vector<LC> ref;
            {
                Built d = build(K::C64fc, order, 8);
                ref = run(K::C64fc, inverse, d, x, false);
            }
            Built f = build(K::C32fc, order, 8);
            const auto out = run(K::C32fc, inverse, f, x, false);
            const double err = fftref::relRms(ref, [&](size_t i) { return out[i]; });
            EXPECT_LE(err, fftref::bound(false, order)) << "order " << order << (inverse ? " inverse" : " forward");
            const auto outI = run(K::C32fc, inverse, f, x, true);
            for (size_t i = 0; i < n; ++i)
                ASSERT_TRUE(out[i] == outI[i]) << "in place differs at order " << order << " index " << i;
        }
    }
}

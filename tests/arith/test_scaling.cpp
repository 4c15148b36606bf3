// SPDX-License-Identifier: BSD-3-Clause
// The scale-factor rule itself: every mode against the exact reference, the
// kernel selection by scale factor and the thresholds of the listed
// functions.
#include <climits>

#include "arith/rounding.h"
#include "arith/scaling.h"

#include "arith_ref.h"

namespace {

using arithref::i128;

// The rule as select() applies it to one exact value (zero fill included).
template <class D, class W>
D viaSelect(W v, int s, scaling::Limits lim)
{
    D out = D(123);
    scaling::select(
        s, lim, [&](auto mode) { out = mode.template apply<D>(v); return qspStsOk; },
        [&] { out = D(0); return qspStsOk; });
    return out;
}

// The same through the 32-bit lane form (or the full-range one) and a
// saturating pack to D.
template <class D, bool Full = false>
D viaLanes(Qsp32s v, int s, scaling::Limits lim)
{
    D out = D(123);
    scaling::select(
        s, lim,
        [&](auto mode) {
            const auto m = [&] {
                if constexpr (Full) return mode.template lanes32Full<D>();
                else return mode.template lanes32<D>();
            }();
            const __m128i r = m(_mm_set1_epi32(v));
            if constexpr (std::is_same_v<D, Qsp16s>) out = D(_mm_extract_epi16(_mm_packs_epi32(r, r), 0));
            else if constexpr (std::is_same_v<D, Qsp16u>) out = D(_mm_extract_epi16(simd::packs32to16u(r, r), 0));
            else out = D(_mm_extract_epi8(simd::packs32to8u(r, r, r, r), 0));
            return qspStsOk;
        },
        [&] { out = D(0); return qspStsOk; });
    return out;
}

template <class D, class W>
void checkRange(Qsp64s lo, Qsp64s hi, bool lanes, bool full = true)
{
    const scaling::Limits lim = scaling::limitsFor<D>(lo, hi);
    std::vector<Qsp64s> values = {lo, hi, 0, 1, -1, 2, -2, 3, -3, lo + 1, hi - 1, lo / 2, hi / 2};
    for (int k = 0; k < 40; ++k) {
        values.push_back(Qsp64s(1) << k);
        values.push_back((Qsp64s(1) << k) + 1);
        values.push_back((Qsp64s(1) << k) - 1);
        values.push_back(-(Qsp64s(1) << k));
        values.push_back(-(Qsp64s(1) << k) + 1);
        values.push_back(3 * (Qsp64s(1) << k));
    }
    for (int i = 0; i < 2000; ++i) values.push_back(Qsp64s(Qsp64u(lo) + qsptest::rng()() % (Qsp64u(hi) - Qsp64u(lo) + 1)));
    for (Qsp64s v : values) {
        if (v < lo || v > hi) continue;
        for (int s = -40; s <= 40; ++s) {
            const D expected = arithref::scaled<D>(i128(v), s);
            ASSERT_EQ(viaSelect<D>(W(v), s, lim), expected) << "v " << v << " s " << s;
            if (lanes) ASSERT_EQ(viaLanes<D>(Qsp32s(v), s, lim), expected) << "lanes v " << v << " s " << s;
            if (full) ASSERT_EQ((viaLanes<D, true>(Qsp32s(v), s, lim)), expected) << "full v " << v << " s " << s;
        }
    }
}

}  // namespace

TEST(Scaling, ThresholdsOfTheListedFunctions)
{
    // Add_8u: [0, 510]; Add_16s: [-65536, 65534]; Add_32s: [-2^32, 2^32 - 2];
    // Mul_16s: [-1073709056, 2^30]; MulC_16sc: parts up to 2^31 in magnitude.
    const scaling::Limits add8u = scaling::limitsFor<Qsp8u>(0, 510);
    EXPECT_EQ(add8u.zerosFrom, 10);
    EXPECT_EQ(add8u.boundFrom, 8);
    const scaling::Limits add16s = scaling::limitsFor<Qsp16s>(-65536, 65534);
    EXPECT_EQ(add16s.zerosFrom, 17);
    EXPECT_EQ(add16s.boundFrom, 16);
    const scaling::Limits add32s = scaling::limitsFor<Qsp32s>(-(Qsp64s(1) << 32), (Qsp64s(1) << 32) - 2);
    EXPECT_EQ(add32s.zerosFrom, 33);
    EXPECT_EQ(add32s.boundFrom, 31);
    const scaling::Limits mul16s = scaling::limitsFor<Qsp16s>(-1073709056, 1073741824);
    EXPECT_EQ(mul16s.zerosFrom, 31);
    EXPECT_EQ(mul16s.boundFrom, 16);
    const scaling::Limits mulc16sc = scaling::limitsFor<Qsp16s>(-(Qsp64s(1) << 31), Qsp64s(1) << 31);
    EXPECT_EQ(mulc16sc.zerosFrom, 32);
    EXPECT_EQ(mulc16sc.boundFrom, 16);
}

TEST(Scaling, SelectionByScaleFactor)
{
    const scaling::Limits lim{17, 16};
    auto kind = [&](int s) {
        int k = -1;
        scaling::select(
            s, lim,
            [&](auto mode) {
                using M = decltype(mode);
                k = std::is_same_v<M, scaling::Plain>  ? 0
                    : std::is_same_v<M, scaling::Half> ? 1
                    : std::is_same_v<M, scaling::Pos>  ? 2
                    : std::is_same_v<M, scaling::Neg>  ? 3
                                                       : 4;
                return qspStsOk;
            },
            [&] { k = 5; return qspStsOk; });
        return k;
    };
    EXPECT_EQ(kind(0), 0);
    EXPECT_EQ(kind(1), 1);
    EXPECT_EQ(kind(2), 2);
    EXPECT_EQ(kind(16), 2);
    EXPECT_EQ(kind(17), 5);
    EXPECT_EQ(kind(0x7FFFFFFF), 5);
    EXPECT_EQ(kind(-1), 3);
    EXPECT_EQ(kind(-15), 3);
    EXPECT_EQ(kind(-16), 4);
    EXPECT_EQ(kind(int(0x80000000)), 4);
}

TEST(Scaling, RuleExamples)
{
    const scaling::Half h;
    EXPECT_EQ((h.apply<Qsp16s, Qsp32s>(3)), 2);
    EXPECT_EQ((h.apply<Qsp16s, Qsp32s>(5)), 2);
    EXPECT_EQ((h.apply<Qsp16s, Qsp32s>(7)), 4);
    EXPECT_EQ((h.apply<Qsp16s, Qsp32s>(-3)), -2);
    EXPECT_EQ((h.apply<Qsp16s, Qsp32s>(-1)), 0);
}

TEST(Scaling, EveryModeMatchesTheExactRule8u) { checkRange<Qsp8u, Qsp32s>(0, 510, true); }
TEST(Scaling, EveryModeMatchesTheExactRule8uSigned) { checkRange<Qsp8u, Qsp32s>(-255, 255, true); }
TEST(Scaling, EveryModeMatchesTheExactRule16s) { checkRange<Qsp16s, Qsp32s>(-65536, 65534, true); }
TEST(Scaling, EveryModeMatchesTheExactRule16sProducts) { checkRange<Qsp16s, Qsp32s>(-1073709056, 1073741824, true); }
TEST(Scaling, EveryModeMatchesTheExactRule16u) { checkRange<Qsp16u, Qsp32s>(-65535, 131070, true); }
TEST(Scaling, EveryModeMatchesTheExactRule32s)
{
    checkRange<Qsp32s, Qsp64s>(-(Qsp64s(1) << 32), (Qsp64s(1) << 32) - 2, false, false);
}
TEST(Scaling, EveryModeMatchesTheExactRule32sProducts)
{
    checkRange<Qsp32s, Qsp64s>(-(Qsp64s(1) << 62), Qsp64s(1) << 62, false, false);
}
// The full-range lane form over every 32-bit value, to 16s and 8u.
TEST(Scaling, FullRangeLanes16s) { checkRange<Qsp16s, Qsp64s>(-2147483647 - 1, 2147483647, false, true); }
TEST(Scaling, FullRangeLanes8u) { checkRange<Qsp8u, Qsp64s>(-2147483647 - 1, 2147483647, false, true); }
TEST(Scaling, FullRangeLanes16u) { checkRange<Qsp16u, Qsp64s>(-2147483647 - 1, 2147483647, false, true); }

// The power-of-two scaling of the floating conversions, for every scale
// factor: integer sources scale exactly and round once, as ldexp in long
// double followed by one rounding says; double sources give the same
// integer (rounded to nearest even, saturated to 64 bits) as the exact
// product, across the clamp at -2044 .. 2046 and out to INT_MIN and INT_MAX.
TEST(Scaling, PowerOfTwoOfAnyScaleFactor)
{
    using LD = long double;
    const int factors[] = {INT_MIN, INT_MIN + 1, -100000, -2200, -2099, -2046, -2045, -2044, -1200, -1100, -1075,
                           -1074, -1024, -1023, -1000, -64, -1, 0, 1, 2, 63, 1000, 1022, 1023, 1100, 1200, 2043,
                           2044, 2045, 2046, 2200, 100000, INT_MAX - 1, INT_MAX};
    auto exactly = [](LD x, int sf) {
        const long long e = -static_cast<long long>(sf);
        return std::ldexp(x, int(e > 20000 ? 20000 : e < -20000 ? -20000 : e));
    };
    auto toInt64 = [](LD r) -> Qsp64s {
        if (r != r) return 0;
        r = std::nearbyint(r);
        if (r >= 0x1p63L) return INT64_MAX;
        if (r < -0x1p63L) return INT64_MIN;
        return Qsp64s(r);
    };
    std::vector<Qsp64s> integers = {1, -1, 3, -7, 255, 32767, -32768, 2147483647, -2147483647 - 1, INT64_MAX,
                                    INT64_MIN, (Qsp64s(1) << 53) + 1};
    std::vector<double> doubles = arithref::floats<double>(4000, 1022);
    for (double x : {5e-324, -5e-324, 2.2250738585072014e-308, 1.7976931348623157e308, -1.7976931348623157e308,
                     0.5, 1.5, 2.5, -2.5, 0.0, -0.0})
        doubles.push_back(x);
    for (int sf : factors) {
        const auto k = rounding::PowerOfTwo::scaleFactor(sf);
        for (Qsp64s v : integers) {
            ASSERT_TRUE(qsptest::sameBits(k(double(v)), double(exactly(LD(double(v)), sf)))) << v << " sf " << sf;
            ASSERT_TRUE(qsptest::sameBits(float(k(double(Qsp32s(v)))), float(exactly(LD(Qsp32s(v)), sf))))
                << Qsp32s(v) << " sf " << sf;
        }
        for (double x : doubles)
            ASSERT_EQ(toInt64(k(x)), toInt64(exactly(x, sf))) << x << " sf " << sf;
    }
}

// SPDX-License-Identifier: BSD-3-Clause
// Convert: every conversion, its rounding modes and their error.
#include "arith_families.h"

using namespace arithfam;
using arithchecks::expectChecks;
using arithchecks::expectModeError;

namespace {
// Reference rounding of a long double in mode 0 (toward zero), 1 (nearest
// even) or 2 (nearest, ties away), saturated to [lo, hi]; NaN gives 0.
LD roundIn(LD x, int mode)
{
    if (mode == 0) return std::trunc(x);
    if (mode == 1) return std::nearbyint(x);  // the default mode: to nearest even
    return std::round(x);
}
Qsp64s bounded(LD x, int mode, LD lo, LD hi)
{
    if (x != x) return 0;
    const LD r = roundIn(x, mode);
    return Qsp64s(r > hi ? hi : r < lo ? lo : r);
}

// Random floats with some exact ties and halves mixed in.
template <class F>
std::vector<F> withTies(size_t n)
{
    std::vector<F> v = arithref::floats<F>(n, 24);
    for (size_t i = 0; i < n; i += 5) v[i] = F(std::nearbyint(v[i] / 64) + 0.5);
    return v;
}

using arithref::halfValue;
// The half (as bits) of a long double value in a mode, by search over all
// finite halves of the sign (the two neighbours of x, then the mode).
Qsp16f toHalf(LD x, int mode)
{
    if (x != x) return 0x7E00;
    const Qsp16f sign = std::signbit(x) ? 0x8000 : 0;
    const LD a = std::fabs(x);
    int lo0 = 0, hi0 = 0x7BFF;  // the largest finite half not above a (binary search)
    while (lo0 < hi0) {
        const int mid = (lo0 + hi0 + 1) / 2;
        if (halfValue(Qsp16f(mid)) <= a) lo0 = mid;
        else hi0 = mid - 1;
    }
    const Qsp16f below = Qsp16f(lo0);
    const LD lo = halfValue(below);
    if (lo == a) return sign | below;
    const LD hi = below == 0x7BFF ? 65536 : halfValue(Qsp16f(below + 1));
    Qsp16f pick;
    if (mode == 0) pick = below;
    else if (a - lo < hi - a) pick = below;
    else if (a - lo > hi - a) pick = Qsp16f(below + 1);
    else pick = mode == 2 ? Qsp16f(below + 1) : ((below & 1) ? Qsp16f(below + 1) : below);
    return sign | pick;  // below + 1 past 0x7BFF is 0x7C00, infinity
}
}  // namespace

TEST(Convert, ArgumentChecksAndTheRoundingModeError)
{
    expectChecks(qspsConvert_8s16s);
    expectChecks(qspsConvert_8s32f);
    expectChecks(qspsConvert_8u32f);
    expectChecks(qspsConvert_16s32s);
    expectChecks(qspsConvert_16s32f);
    expectChecks(qspsConvert_16s64f);
    expectChecks(qspsConvert_16u32f);
    expectChecks(qspsConvert_32s16s);
    expectChecks(qspsConvert_32s32f);
    expectChecks(qspsConvert_32s64f);
    expectChecks(qspsConvert_32f64f);
    expectChecks(qspsConvert_64f32f);
    expectChecks(qspsConvert_64s64f);
    expectChecks(qspsConvert_16f32f);
    expectChecks(qspsConvert_24u32u);
    expectChecks(qspsConvert_24s32s);
    expectChecks(qspsConvert_24u32f);
    expectChecks(qspsConvert_24s32f);
    expectChecks(qspsConvert_32s16s_Sfs, 0);
    expectChecks(qspsConvert_64s32s_Sfs, 0);
    expectChecks(qspsConvert_32u24u_Sfs, 0);
    expectChecks(qspsConvert_32s24s_Sfs, 0);
    expectChecks(qspsConvert_16s32f_Sfs, 0);
    expectChecks(qspsConvert_32s32f_Sfs, 0);
    expectChecks(qspsConvert_32s64f_Sfs, 0);
    for (int mode : {0, 1, 2}) {
        expectChecks(qspsConvert_16s16f, mode);
        expectChecks(qspsConvert_32f16f, mode);
        expectChecks(qspsConvert_16f16s_Sfs, mode, 0);
        expectChecks(qspsConvert_32f8s_Sfs, mode, 0);
        expectChecks(qspsConvert_32f8u_Sfs, mode, 0);
        expectChecks(qspsConvert_32f16s_Sfs, mode, 0);
        expectChecks(qspsConvert_32f16u_Sfs, mode, 0);
        expectChecks(qspsConvert_32f24s_Sfs, mode, 0);
        expectChecks(qspsConvert_32f24u_Sfs, mode, 0);
        expectChecks(qspsConvert_32f32s_Sfs, mode, 0);
        expectChecks(qspsConvert_64f16s_Sfs, mode, 0);
        expectChecks(qspsConvert_64f32s_Sfs, mode, 0);
        expectChecks(qspsConvert_64f64s_Sfs, mode, 0);
    }
    for (int mode : {3, 7, -1}) {
        expectModeError(qspStsBadRoundMode, qspsConvert_16s16f, mode);
        expectModeError(qspStsBadRoundMode, qspsConvert_32f16f, mode);
        expectModeError(qspStsBadRoundMode, qspsConvert_16f16s_Sfs, mode, 0);
        expectModeError(qspStsBadRoundMode, qspsConvert_32f8s_Sfs, mode, 0);
        expectModeError(qspStsBadRoundMode, qspsConvert_32f8u_Sfs, mode, 0);
        expectModeError(qspStsBadRoundMode, qspsConvert_32f16s_Sfs, mode, 0);
        expectModeError(qspStsBadRoundMode, qspsConvert_32f16u_Sfs, mode, 0);
        expectModeError(qspStsBadRoundMode, qspsConvert_32f24s_Sfs, mode, 0);
        expectModeError(qspStsBadRoundMode, qspsConvert_32f24u_Sfs, mode, 0);
        expectModeError(qspStsBadRoundMode, qspsConvert_32f32s_Sfs, mode, 0);
        expectModeError(qspStsBadRoundMode, qspsConvert_64f16s_Sfs, mode, 0);
        expectModeError(qspStsBadRoundMode, qspsConvert_64f32s_Sfs, mode, 0);
        expectModeError(qspStsBadRoundMode, qspsConvert_64f64s_Sfs, mode, 0);
    }
}

TEST(Convert, WideningAndPlainConversions)
{
    auto exact = [](auto fn, auto s, auto d) {
        using S = decltype(s);
        using D = decltype(d);
        arithsweep::unary<S, D>(fn, [](S a, D got) { return equals(got, D(a)); });
    };
    exact(qspsConvert_8s16s, Qsp8s{}, Qsp16s{});
    exact(qspsConvert_8s32f, Qsp8s{}, Qsp32f{});
    exact(qspsConvert_8u32f, Qsp8u{}, Qsp32f{});
    exact(qspsConvert_16s32s, Qsp16s{}, Qsp32s{});
    exact(qspsConvert_16s32f, Qsp16s{}, Qsp32f{});
    exact(qspsConvert_16s64f, Qsp16s{}, Qsp64f{});
    exact(qspsConvert_16u32f, Qsp16u{}, Qsp32f{});
    exact(qspsConvert_32s64f, Qsp32s{}, Qsp64f{});
    exact(qspsConvert_32f64f, Qsp32f{}, Qsp64f{});
    // Rounded to nearest even once: checked against the long double value.
    arithsweep::unary<Qsp32s, Qsp32f>(qspsConvert_32s32f, [](Qsp32s a, Qsp32f got) { return arithsweep::withinUlps(got, LD(a), 0.5); });
    arithsweep::unary<Qsp64s, Qsp64f>(qspsConvert_64s64f, [](Qsp64s a, Qsp64f got) { return arithsweep::withinUlps(got, LD(a), 0.5); });
    arithsweep::unary<Qsp64f, Qsp32f>(qspsConvert_64f32f, [](Qsp64f a, Qsp32f got) { return arithsweep::withinUlps(got, LD(a), 0.5); });
    arithsweep::unary<Qsp32s, Qsp16s>(qspsConvert_32s16s,
                                      [](Qsp32s a, Qsp16s got) { return equals(got, arithref::scaled<Qsp16s>(a, 0)); });
}

TEST(Convert, TwentyFourBitElements)
{
    const Qsp8u b[] = {0x01, 0x02, 0x03, 0xFF, 0xFF, 0xFF, 0x00, 0x00, 0x80, 0xFF, 0xFF, 0x7F};
    Qsp32u u[4];
    Qsp32s s[4];
    Qsp32f f[4];
    ASSERT_EQ(qspsConvert_24u32u(b, u, 4), qspStsOk);
    EXPECT_EQ(u[0], 0x030201u);
    EXPECT_EQ(u[1], 0xFFFFFFu);
    ASSERT_EQ(qspsConvert_24s32s(b, s, 4), qspStsOk);
    EXPECT_EQ(s[0], 0x030201);
    EXPECT_EQ(s[1], -1);
    EXPECT_EQ(s[2], -8388608);
    EXPECT_EQ(s[3], 8388607);
    ASSERT_EQ(qspsConvert_24s32f(b, f, 4), qspStsOk);
    EXPECT_EQ(f[2], -8388608.0f);
    ASSERT_EQ(qspsConvert_24u32f(b, f, 4), qspStsOk);
    EXPECT_EQ(f[1], 16777215.0f);
    for (int sf = -30; sf <= 30; ++sf) {
        for (int len : arithsweep::shortLengths()) {
            const std::vector<Qsp32s> x = arithref::operands<Qsp32s>(len);
            std::vector<Qsp8u> out(3 * len + 3, 0xA5);
            ASSERT_EQ(qspsConvert_32s24s_Sfs(x.data(), out.data(), len, sf), qspStsOk);
            for (int i = 0; i < len; ++i) {
                const Qsp32s v = arithref::scaled<Qsp32s>(x[i], sf);
                const Qsp32s e = v > 8388607 ? 8388607 : v < -8388608 ? -8388608 : v;
                const Qsp32s got = Qsp32s((Qsp32u(out[3 * i]) | Qsp32u(out[3 * i + 1]) << 8 | Qsp32u(out[3 * i + 2]) << 16) << 8) >> 8;
                ASSERT_EQ(got, e) << sf << " " << i;
            }
            ASSERT_EQ(out[3 * len], 0xA5);
            const std::vector<Qsp32u> y = arithref::operands<Qsp32u>(len);
            ASSERT_EQ(qspsConvert_32u24u_Sfs(y.data(), out.data(), len, sf), qspStsOk);
            for (int i = 0; i < len; ++i) {
                const Qsp32u v = arithref::scaled<Qsp32u>(y[i], sf);
                const Qsp32u e = v > 16777215u ? 16777215u : v;
                ASSERT_EQ(Qsp32u(out[3 * i]) | Qsp32u(out[3 * i + 1]) << 8 | Qsp32u(out[3 * i + 2]) << 16, e);
            }
        }
    }
    for (int mode : {0, 1, 2}) {
        for (int sf : {-8, 0, 3}) {
            const std::vector<Qsp32f> x = withTies<Qsp32f>(70);
            std::vector<Qsp8u> out(3 * 70);
            ASSERT_EQ(qspsConvert_32f24s_Sfs(x.data(), out.data(), 70, mode, sf), qspStsOk);
            for (int i = 0; i < 70; ++i) {
                const Qsp32s got = Qsp32s((Qsp32u(out[3 * i]) | Qsp32u(out[3 * i + 1]) << 8 | Qsp32u(out[3 * i + 2]) << 16) << 8) >> 8;
                ASSERT_EQ(got, bounded(std::ldexp(LD(x[i]), -sf), mode, -8388608, 8388607)) << i;
            }
            ASSERT_EQ(qspsConvert_32f24u_Sfs(x.data(), out.data(), 70, mode, sf), qspStsOk);
            for (int i = 0; i < 70; ++i) {
                const Qsp64s got = Qsp32u(out[3 * i]) | Qsp32u(out[3 * i + 1]) << 8 | Qsp32u(out[3 * i + 2]) << 16;
                ASSERT_EQ(got, bounded(std::ldexp(LD(x[i]), -sf), mode, 0, 16777215)) << i;
            }
        }
    }
}

TEST(Convert, FloatToScaledIntegersInEveryMode)
{
    for (int mode : {0, 1, 2}) {
        for (int sf : {-40, -17, -3, 0, 1, 2, 5, 16, 31, 40, 300, -300, 126, 127, 150, -126, -127, -128}) {
            auto run = [&](auto fn, auto s, auto d) {
                using S = decltype(s);
                using D = decltype(d);
                using L = std::numeric_limits<D>;
                arithsweep::unary<S, D>(
                    [&](auto a, auto o, int len) { return fn(a, o, len, mode, sf); },
                    [&](S a, D got) { return equals(got, D(bounded(std::ldexp(LD(a), -sf), mode, LD(L::min()), LD(L::max())))); },
                    nullptr, qspStsOk, sf == 0 ? arithref::sweepLengths() : arithsweep::shortLengths(), withTies<S>);
            };
            run(qspsConvert_32f8s_Sfs, Qsp32f{}, Qsp8s{});
            run(qspsConvert_32f8u_Sfs, Qsp32f{}, Qsp8u{});
            run(qspsConvert_32f16s_Sfs, Qsp32f{}, Qsp16s{});
            run(qspsConvert_32f16u_Sfs, Qsp32f{}, Qsp16u{});
            run(qspsConvert_32f32s_Sfs, Qsp32f{}, Qsp32s{});
            run(qspsConvert_64f16s_Sfs, Qsp64f{}, Qsp16s{});
            run(qspsConvert_64f32s_Sfs, Qsp64f{}, Qsp32s{});
            run(qspsConvert_64f64s_Sfs, Qsp64f{}, Qsp64s{});
            if (HasFatalFailure()) {
                ADD_FAILURE() << "mode " << mode << " sf " << sf;
                return;
            }
        }
    }
    const Qsp32f s[] = {NAN, INFINITY, -INFINITY, 2.5f, -2.5f, 0.49999997f, 1e10f};
    Qsp16s d[7];
    ASSERT_EQ(qspsConvert_32f16s_Sfs(s, d, 7, 2, 0), qspStsOk);
    const Qsp16s away[] = {0, 32767, -32768, 3, -3, 0, 32767};
    for (int i = 0; i < 7; ++i) EXPECT_EQ(d[i], away[i]) << i;
    const Qsp64f big[] = {1e300, -1e300, 9223372036854775808.0, -9223372036854775808.0};
    Qsp64s e[4];
    ASSERT_EQ(qspsConvert_64f64s_Sfs(big, e, 4, 1, 0), qspStsOk);
    EXPECT_EQ(e[0], std::numeric_limits<Qsp64s>::max());
    EXPECT_EQ(e[1], std::numeric_limits<Qsp64s>::min());
    EXPECT_EQ(e[2], std::numeric_limits<Qsp64s>::max());
    EXPECT_EQ(e[3], std::numeric_limits<Qsp64s>::min());
}

TEST(Convert, IntegerScaledConversionsAreExact)
{
    for (int sf = -40; sf <= 40; ++sf) {
        arithsweep::unary<Qsp32s, Qsp16s>([&](auto a, auto d, int len) { return qspsConvert_32s16s_Sfs(a, d, len, sf); },
                                          [&](Qsp32s a, Qsp16s got) { return equals(got, arithref::scaled<Qsp16s>(a, sf)); },
                                          nullptr, qspStsOk, arithsweep::shortLengths());
        arithsweep::unary<Qsp64s, Qsp32s>([&](auto a, auto d, int len) { return qspsConvert_64s32s_Sfs(a, d, len, sf); },
                                          [&](Qsp64s a, Qsp32s got) { return equals(got, arithref::scaled<Qsp32s>(a, sf)); },
                                          nullptr, qspStsOk, arithsweep::shortLengths());
        // Integer to floating: scaled exactly, rounded once.
        arithsweep::unary<Qsp16s, Qsp32f>([&](auto a, auto d, int len) { return qspsConvert_16s32f_Sfs(a, d, len, sf); },
                                          [&](Qsp16s a, Qsp32f got) { return arithsweep::withinUlps(got, std::ldexp(LD(a), -sf), 0.5); },
                                          nullptr, qspStsOk, arithsweep::shortLengths());
        arithsweep::unary<Qsp32s, Qsp32f>([&](auto a, auto d, int len) { return qspsConvert_32s32f_Sfs(a, d, len, sf); },
                                          [&](Qsp32s a, Qsp32f got) { return arithsweep::withinUlps(got, std::ldexp(LD(a), -sf), 0.5); },
                                          nullptr, qspStsOk, arithsweep::shortLengths());
        arithsweep::unary<Qsp32s, Qsp64f>([&](auto a, auto d, int len) { return qspsConvert_32s64f_Sfs(a, d, len, sf); },
                                          [&](Qsp32s a, Qsp64f got) { return equals(got, Qsp64f(std::ldexp(LD(a), -sf))); },
                                          nullptr, qspStsOk, arithsweep::shortLengths());
        if (HasFatalFailure()) {
            ADD_FAILURE() << "scale factor " << sf;
            return;
        }
    }
    const Qsp32s a[] = {1, -1};
    Qsp64f d[2];
    ASSERT_EQ(qspsConvert_32s64f_Sfs(a, d, 2, 1074), qspStsOk);
    EXPECT_EQ(d[0], std::numeric_limits<double>::denorm_min());
    ASSERT_EQ(qspsConvert_32s64f_Sfs(a, d, 2, -1023), qspStsOk);
    EXPECT_EQ(d[1], -std::ldexp(1.0, 1023));
}

TEST(Convert, HalfPrecision)
{
    // Every half value widens exactly.
    std::vector<Qsp16f> all(65536);
    for (int i = 0; i < 65536; ++i) all[i] = Qsp16f(i);
    std::vector<Qsp32f> wide(65536);
    ASSERT_EQ(qspsConvert_16f32f(all.data(), wide.data(), 65536), qspStsOk);
    for (int i = 0; i < 65536; ++i) {
        const LD v = halfValue(Qsp16f(i));
        if (v != v) ASSERT_TRUE(std::isnan(wide[i])) << i;
        else ASSERT_TRUE(qsptest::sameBits(wide[i], Qsp32f(v)) || (v == 0 && wide[i] == 0 && std::signbit(wide[i]) == bool(i & 0x8000))) << i;
    }
    // Narrowing in each mode against the search over all halves.
    std::vector<Qsp32f> x = arithref::floats<Qsp32f>(600, 20);
    for (size_t i = 0; i < x.size(); i += 3) x[i] = Qsp32f(halfValue(Qsp16f(qsptest::rng()() % 0x7C00))) * 1.0000001f;
    x.push_back(65519.0f);
    x.push_back(65520.0f);
    x.push_back(-1e9f);
    x.push_back(std::ldexp(1.0f, -25));  // half of the smallest subnormal: a tie
    x.push_back(std::ldexp(3.0f, -26));
    x.push_back(std::ldexp(1.0f, -130));
    for (int mode : {0, 1, 2}) {
        std::vector<Qsp16f> h(x.size());
        ASSERT_EQ(qspsConvert_32f16f(x.data(), h.data(), int(x.size()), mode), qspStsOk);
        for (size_t i = 0; i < x.size(); ++i) {
            Qsp16f e = toHalf(x[i], mode);
            if (mode == 0 && (e & 0x7FFF) == 0x7C00) e = Qsp16f((e & 0x8000) | 0x7BFF);
            ASSERT_EQ(h[i], e) << "mode " << mode << " x " << x[i];
        }
    }
    const std::vector<Qsp16s> s = arithref::operands<Qsp16s>(300);
    for (int mode : {0, 1, 2}) {
        std::vector<Qsp16f> h(s.size());
        ASSERT_EQ(qspsConvert_16s16f(s.data(), h.data(), int(s.size()), mode), qspStsOk);
        for (size_t i = 0; i < s.size(); ++i) ASSERT_EQ(h[i], toHalf(s[i], mode)) << s[i];
    }
    const Qsp32f sp[] = {NAN, INFINITY, -INFINITY, -0.0f};
    Qsp16f hs[4];
    ASSERT_EQ(qspsConvert_32f16f(sp, hs, 4, 1), qspStsOk);
    EXPECT_EQ(hs[0] & 0x7E00, 0x7E00);
    EXPECT_EQ(hs[1], 0x7C00);
    EXPECT_EQ(hs[2], 0xFC00);
    EXPECT_EQ(hs[3], 0x8000);
    // Half to scaled 16s.
    for (int mode : {0, 1, 2}) {
        for (int sf : {-10, -1, 0, 1, 4}) {
            std::vector<Qsp16s> d(65536);
            ASSERT_EQ(qspsConvert_16f16s_Sfs(all.data(), d.data(), 65536, mode, sf), qspStsOk);
            for (int i = 0; i < 65536; ++i)
                ASSERT_EQ(d[i], bounded(std::ldexp(halfValue(Qsp16f(i)), -sf), mode, -32768, 32767)) << i;
        }
    }
}

TEST(Convert, MoreWideningAndComplexConversions)
{
    expectChecks(qspsConvert_8u16u);
    expectChecks(qspsConvert_8u16s);
    expectChecks(qspsConvert_16u32u);
    expectChecks(qspsConvert_16u32s);
    expectChecks(qspsConvert_32s64s);
    expectChecks(qspsConvert_32u64u);
    expectChecks(qspsConvert_32u32f);
    expectChecks(qspsConvert_32u64f);
    expectChecks(qspsConvert_64u64f);
    expectChecks(qspsConvert_64s32f);
    expectChecks(qspsConvert_16u64f);
    expectChecks(qspsConvert_16s8u);
    expectChecks(qspsConvert_16sc32sc);
    expectChecks(qspsConvert_16sc32fc);
    expectChecks(qspsConvert_32sc64fc);
    expectChecks(qspsConvert_32fc64fc);
    expectChecks(qspsConvert_64fc32fc);
    auto exact = [](auto fn, auto s, auto d) {
        using S = decltype(s);
        using D = decltype(d);
        arithsweep::unary<S, D>(fn, [](S a, D got) { return equals(got, D(a)); });
    };
    exact(qspsConvert_8u16u, Qsp8u{}, Qsp16u{});
    exact(qspsConvert_8u16s, Qsp8u{}, Qsp16s{});
    exact(qspsConvert_16u32u, Qsp16u{}, Qsp32u{});
    exact(qspsConvert_16u32s, Qsp16u{}, Qsp32s{});
    exact(qspsConvert_32s64s, Qsp32s{}, Qsp64s{});
    exact(qspsConvert_32u64u, Qsp32u{}, Qsp64u{});
    exact(qspsConvert_32u64f, Qsp32u{}, Qsp64f{});
    exact(qspsConvert_16u64f, Qsp16u{}, Qsp64f{});
    arithsweep::unary<Qsp32u, Qsp32f>(qspsConvert_32u32f, [](Qsp32u a, Qsp32f got) { return arithsweep::withinUlps(got, LD(a), 0.5); });
    arithsweep::unary<Qsp64u, Qsp64f>(qspsConvert_64u64f, [](Qsp64u a, Qsp64f got) { return arithsweep::withinUlps(got, LD(a), 0.5); });
    arithsweep::unary<Qsp64s, Qsp32f>(qspsConvert_64s32f, [](Qsp64s a, Qsp32f got) { return arithsweep::withinUlps(got, LD(a), 0.5); });
    arithsweep::unary<Qsp16s, Qsp8u>(qspsConvert_16s8u, [](Qsp16s a, Qsp8u got) { return equals(got, arithref::scaled<Qsp8u>(a, 0)); });
    auto parts = [](auto fn, auto s, auto d) {
        using S = decltype(s);
        using D = decltype(d);
        using P = decltype(D{}.re);
        arithsweep::unary<S, D>(fn, [](S a, D got) { return equals(got, D{P(a.re), P(a.im)}); });
    };
    parts(qspsConvert_16sc32sc, Qsp16sc{}, Qsp32sc{});
    parts(qspsConvert_16sc32fc, Qsp16sc{}, Qsp32fc{});
    parts(qspsConvert_32sc64fc, Qsp32sc{}, Qsp64fc{});
    parts(qspsConvert_32fc64fc, Qsp32fc{}, Qsp64fc{});
    parts(qspsConvert_64fc32fc, Qsp64fc{}, Qsp32fc{});
}

// SPDX-License-Identifier: BSD-3-Clause
// The Cubrt family: argument checks, the single-precision form against
// its kernel, and the integer forms against exact integer arithmetic for
// every argument and scale factor, with the kernel choice of the scaling
// rule at its thresholds.
#include <cmath>

#include "../arith/arith_checks.h"
#include "family_checks.h"
#include "mathfn/cbrt.h"

using familychecks::expectElementwise;

TEST(Cubrt, ChecksPointersThenLength)
{
    using arithchecks::expectChecks;
    expectChecks(qspsCubrt_32f);
    for (int sf : {0, 1, 3, -3, 6, 12, -16, 100000, -100000}) {
        expectChecks(qspsCubrt_16s_Sfs, sf);
        expectChecks(qspsCubrt_32s16s_Sfs, sf);
    }
}

TEST(Cubrt, SingleEqualsItsKernel)
{
    std::mt19937_64 rng(901);
    const std::vector<float> f = familychecks::floatPool(3000, rng, -1000.0f, 1000.0f);
    expectElementwise(qspsCubrt_32f, nullptr, f, mathfn::qspsCbrtOne_32f);
    const float in[] = {0.0f, -0.0f, 27.0f, -8.0f, INFINITY, -INFINITY, 0x1p-149f, -0x1p-126f};
    const float want[] = {0.0f, -0.0f, 3.0f, -2.0f, INFINITY, -INFINITY, 0x1.428a30p-50f, -0x1p-42f};
    float out[8];
    ASSERT_EQ(qspsCubrt_32f(in, out, 8), qspStsOk);
    for (int i = 0; i < 8; ++i) EXPECT_TRUE(familychecks::same(out[i], want[i])) << i << " " << out[i];
}

namespace {

// round(cbrt(x) 2^-s), ties to even, saturated to 16 bits, by exact
// integer search: q the largest integer with q^3 <= |x| 2^-3s, then the
// half-way comparison (2q + 1)^3 against 8 |x| 2^-3s.
Qsp16s referenceCbrt(Qsp64s x, int s)
{
    if (x == 0) return 0;
    if (s <= -16) return x > 0 ? 32767 : -32768;
    if (s >= 40) return 0;
    using u128 = unsigned __int128;
    const Qsp64u a = Qsp64u(x < 0 ? -x : x);
    const u128 big = s < 0 ? u128(a) << (-3 * s) : u128(a);
    const u128 unit = s > 0 ? u128(1) << (3 * s) : u128(1);
    auto cube = [&](u128 k) { return k * k * k * unit; };
    // Bisection for the largest q with q^3 unit <= big, from an upper
    // bound found by doubling.
    u128 lo = 0, hi = 1;
    while (cube(hi) <= big) hi *= 2;
    while (hi - lo > 1) {
        const u128 mid = (lo + hi) / 2;
        (cube(mid) <= big ? lo : hi) = mid;
    }
    u128 q = lo;
    const u128 h = cube(2 * q + 1);
    if (8 * big > h || (8 * big == h && (q & 1))) ++q;
    const Qsp64s r = x < 0 ? -Qsp64s(q) : Qsp64s(q);
    return Qsp16s(std::clamp<Qsp64s>(r, -32768, 32767));
}

}  // namespace

TEST(Cubrt, Scaled16sExactForEveryArgumentAndScale)
{
    std::vector<Qsp16s> x(65536), y(65536);
    for (int i = 0; i < 65536; ++i) x[i] = Qsp16s(i - 32768);
    for (int s = -17; s <= 7; ++s) {
        ASSERT_EQ(qspsCubrt_16s_Sfs(x.data(), y.data(), 65536, s), qspStsOk);
        for (int i = 0; i < 65536; ++i) ASSERT_EQ(y[i], referenceCbrt(x[i], s)) << x[i] << " " << s;
    }
}

TEST(Cubrt, Scaled32s16sAgainstExactArithmetic)
{
    std::mt19937_64 rng(902);
    std::vector<Qsp32s> x(4096);
    std::vector<Qsp16s> y(4096);
    for (int s = -17; s <= 13; ++s) {
        for (Qsp32s& v : x) v = Qsp32s(rng() >> (32 + rng() % 32));
        x[0] = INT32_MIN, x[1] = INT32_MAX, x[2] = 0, x[3] = 27, x[4] = -27, x[5] = 1;
        ASSERT_EQ(qspsCubrt_32s16s_Sfs(x.data(), y.data(), 4096, s), qspStsOk);
        for (int i = 0; i < 4096; ++i) ASSERT_EQ(y[i], referenceCbrt(x[i], s)) << x[i] << " " << s;
    }
}

TEST(Cubrt, ScaleFactorThresholds)
{
    auto one = [](Qsp16s x, int s) {
        Qsp16s y;
        EXPECT_EQ(qspsCubrt_16s_Sfs(&x, &y, 1, s), qspStsOk);
        return y;
    };
    EXPECT_EQ(one(27, 1), 2);       // 1.5: ties to even
    EXPECT_EQ(one(-27, 1), -2);
    EXPECT_EQ(one(125, 1), 2);      // 2.5 to 2
    EXPECT_EQ(one(-32768, 5), -1);  // -32/32
    EXPECT_EQ(one(-32768, 6), 0);   // -0.5: the zero fill from 6
    EXPECT_EQ(one(32767, 5), 1);
    EXPECT_EQ(one(1, -14), 16384);
    EXPECT_EQ(one(1, -15), 32767);
    EXPECT_EQ(one(1, -16), 32767);  // the bound kernel from -16
    EXPECT_EQ(one(-1, -16), -32768);
    EXPECT_EQ(one(0, -16), 0);
    EXPECT_EQ(one(0, INT32_MIN), 0);
    EXPECT_EQ(one(5, INT32_MAX), 0);
    const Qsp32s big = INT32_MIN;
    Qsp16s y;
    EXPECT_EQ(qspsCubrt_32s16s_Sfs(&big, &y, 1, 11), qspStsOk);
    EXPECT_EQ(y, -1);  // -1290.16 / 2048
    EXPECT_EQ(qspsCubrt_32s16s_Sfs(&big, &y, 1, 12), qspStsOk);
    EXPECT_EQ(y, 0);
    EXPECT_EQ(qspsCubrt_32s16s_Sfs(&big, &y, 1, 0), qspStsOk);
    EXPECT_EQ(y, -1290);
}

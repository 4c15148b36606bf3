// SPDX-License-Identifier: BSD-3-Clause
// Magnitude: sqrt(re^2 + im^2) of complex elements in every form.
#include "arith_families.h"

using namespace arithfam;
using arithchecks::expectChecks;

namespace {
// sqrt(r^2 + i^2) in long double (exact squares for single and 16-bit
// parts; relative error 2^-64 for double parts).
LD hyp(LD r, LD i) { return std::sqrt(r * r + i * i); }

// The scaled integer root, by binary search in 128-bit integers.
template <class D>
D refMag(i128 x, int s)
{
    using L = std::numeric_limits<D>;
    if (x == 0 || s >= 40) return 0;
    if (s <= -40 || std::sqrt((LD)x) * std::ldexp(1.0L, -s) > LD(L::max()) + 2) return L::max();
    const i128 X = s >= 0 ? x : x << (2 * -s);
    auto sq = [&](i128 q) { return s >= 0 ? (q * q) << (2 * s) : q * q; };
    i128 lo = 0, hi = ((i128(1) << 34) >> (s > 0 ? s : 0)) + 1;
    while (lo < hi) {
        const i128 mid = (lo + hi + 1) / 2;
        if (sq(mid) <= X) lo = mid;
        else hi = mid - 1;
    }
    i128 q = lo;
    const i128 half = sq(2 * q + 1);
    if (4 * X > half || (4 * X == half && (q & 1))) ++q;
    return q > i128(L::max()) ? L::max() : D(q);
}
}  // namespace

TEST(Magnitude, ArgumentChecks)
{
    expectChecks(qspsMagnitude_32fc);
    expectChecks(qspsMagnitude_64fc);
    expectChecks(qspsMagnitude_32f);
    expectChecks(qspsMagnitude_64f);
    expectChecks(qspsMagnitude_16sc32f);
    expectChecks(qspsMagnitude_16sc_Sfs, 0);
    expectChecks(qspsMagnitude_32sc_Sfs, 0);
    expectChecks(qspsMagnitude_32fc_L);
    expectChecks(qspsMagnitude_64fc_L);
}

TEST(Magnitude, FloatingMagnitudesWithinTheStatedBounds)
{
    // Single: the double-precision root rounded to single, 0.5 ULP plus
    // 2^-20 ULP. Double: scaled by a power of two, then two rounded squares,
    // their rounded sum and the rounded root: within 1.5 ULP.
    constexpr double single = 0.5 + 1.0 / (1 << 20);
    auto c32 = [](Qsp32fc a, Qsp32f got) { return arithsweep::withinUlps(got, hyp(a.re, a.im), single); };
    auto c64 = [](Qsp64fc a, Qsp64f got) { return arithsweep::withinUlps(got, hyp(a.re, a.im), 1.5); };
    arithsweep::unary<Qsp32fc, Qsp32f>(qspsMagnitude_32fc, c32);
    arithsweep::unary<Qsp64fc, Qsp64f>(qspsMagnitude_64fc, c64);
    arithsweep::unary<Qsp32fc, Qsp32f>(viaL(qspsMagnitude_32fc_L), c32);
    arithsweep::unary<Qsp64fc, Qsp64f>(viaL(qspsMagnitude_64fc_L), c64);
    arithsweep::binary<Qsp32f, Qsp32f, Qsp32f>(
        qspsMagnitude_32f, [](Qsp32f r, Qsp32f i, Qsp32f got) { return arithsweep::withinUlps(got, hyp(r, i), single); });
    arithsweep::binary<Qsp64f, Qsp64f, Qsp64f>(
        qspsMagnitude_64f, [](Qsp64f r, Qsp64f i, Qsp64f got) { return arithsweep::withinUlps(got, hyp(r, i), 1.5); });
    arithsweep::unary<Qsp16sc, Qsp32f>(
        qspsMagnitude_16sc32f, [](Qsp16sc a, Qsp32f got) { return arithsweep::withinUlps(got, hyp(a.re, a.im), single); });
    // No overflow or underflow on the way.
    const Qsp32fc big[] = {{3e38f, 3e38f}, {1e-40f, 1e-40f}, {-3.0f, 4.0f}};
    Qsp32f d[3];
    ASSERT_EQ(qspsMagnitude_32fc(big, d, 3), qspStsOk);
    EXPECT_EQ(d[0], INFINITY);  // 4.2e38 is beyond single range
    EXPECT_NEAR(d[1], 1.41421356e-40f, 1e-45f);
    EXPECT_EQ(d[2], 5.0f);
    const Qsp64fc huge[] = {{1e308, 1e308}, {1e-310, 1e-310}};
    Qsp64f e[2];
    ASSERT_EQ(qspsMagnitude_64fc(huge, e, 2), qspStsOk);
    EXPECT_NEAR(e[0], 1.4142135623730951e308, 1e293);
    EXPECT_NEAR(e[1], 1.4142135623730951e-310, 1e-323);
    const Qsp16sc m[] = {{-32768, -32768}};
    ASSERT_EQ(qspsMagnitude_16sc32f(m, d, 1), qspStsOk);
    EXPECT_EQ(d[0], 46340.95f);
}

TEST(Magnitude, ScaledIntegerMagnitudesAreExact)
{
    for (int sf = -40; sf <= 40; ++sf) {
        arithsweep::unary<Qsp16sc, Qsp16s>(
            [&](auto a, auto d, int len) { return qspsMagnitude_16sc_Sfs(a, d, len, sf); },
            [&](Qsp16sc a, Qsp16s got) { return equals(got, refMag<Qsp16s>(i128(a.re) * a.re + i128(a.im) * a.im, sf)); },
            nullptr, qspStsOk, arithsweep::shortLengths());
        arithsweep::unary<Qsp32sc, Qsp32s>(
            [&](auto a, auto d, int len) { return qspsMagnitude_32sc_Sfs(a, d, len, sf); },
            [&](Qsp32sc a, Qsp32s got) { return equals(got, refMag<Qsp32s>(i128(a.re) * a.re + i128(a.im) * a.im, sf)); },
            nullptr, qspStsOk, arithsweep::shortLengths());
        if (HasFatalFailure()) {
            ADD_FAILURE() << "scale factor " << sf;
            return;
        }
    }
}

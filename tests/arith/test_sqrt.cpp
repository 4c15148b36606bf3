// SPDX-License-Identifier: BSD-3-Clause
// Sqrt: square roots; correctly rounded floating roots, exact scaled
// integer roots, complex principal roots, and the out-of-domain warning.
#include <complex>

#include "arith_families.h"

using namespace arithfam;
using arithchecks::expectChecks;

namespace {
// round(sqrt(x) * 2^-s) to nearest even, saturated: by binary search for
// the largest q with q^2 <= x * 4^-s and an exact comparison with
// (q + 1/2)^2, all in 128-bit integers.
template <class D>
D refSqrt(i128 x, int s)
{
    using L = std::numeric_limits<D>;
    if (x <= 0) return 0;
    if (s >= 40) return 0;
    if (s <= -40) return L::max();
    // Far above the range (checked roughly in long double) it saturates.
    if (std::sqrt((LD)x) * std::ldexp(1.0L, -s) > LD(L::max()) + 2) return L::max();
    // Compare q^2 * 4^s with x (s >= 0), or q^2 with x * 4^-s.
    const i128 X = s >= 0 ? x : x << (2 * -s);
    auto sq = [&](i128 q) { return s >= 0 ? (q * q) << (2 * s) : q * q; };
    i128 lo = 0, hi = ((i128(1) << 33) >> (s > 0 ? s : 0)) + 1;
    while (lo < hi) {  // largest q with sq(q) <= X
        const i128 mid = (lo + hi + 1) / 2;
        if (sq(mid) <= X) lo = mid;
        else hi = mid - 1;
    }
    i128 q = lo;
    const i128 half = s >= 0 ? ((2 * q + 1) * (2 * q + 1)) << (2 * s) : (2 * q + 1) * (2 * q + 1);
    if (4 * X > half || (4 * X == half && (q & 1))) ++q;
    return q > i128(L::max()) ? L::max() : D(q);
}
}  // namespace

TEST(Sqrt, ArgumentChecks)
{
    expectChecks(qspsSqrt_32f);
    expectChecks(qspsSqrt_32f_I);
    expectChecks(qspsSqrt_64f);
    expectChecks(qspsSqrt_64f_I);
    expectChecks(qspsSqrt_32fc);
    expectChecks(qspsSqrt_32fc_I);
    expectChecks(qspsSqrt_64fc);
    expectChecks(qspsSqrt_64fc_I);
    for (int sf : {0, 1, -5, 40}) {
        expectChecks(qspsSqrt_8u_Sfs, sf);
        expectChecks(qspsSqrt_8u_ISfs, sf);
        expectChecks(qspsSqrt_16s_Sfs, sf);
        expectChecks(qspsSqrt_16s_ISfs, sf);
        expectChecks(qspsSqrt_16u_Sfs, sf);
        expectChecks(qspsSqrt_16u_ISfs, sf);
        expectChecks(qspsSqrt_16sc_Sfs, sf);
        expectChecks(qspsSqrt_16sc_ISfs, sf);
        expectChecks(qspsSqrt_32s16s_Sfs, sf);
        expectChecks(qspsSqrt_64s16s_Sfs, sf);
    }
}

TEST(Sqrt, FloatingRootsAreCorrectlyRounded)
{
    auto positive = [](auto zero) {
        using T = decltype(zero);
        return +[](size_t n) {
            std::vector<T> v = arithref::floats<T>(n, 100);
            for (auto& x : v) x = std::fabs(x);
            return v;
        };
    };
    auto check = [](auto a, auto got) { return arithsweep::withinUlps(got, std::sqrt((LD)a), 0.5); };
    arithsweep::unary<Qsp32f, Qsp32f>(qspsSqrt_32f, check, qspsSqrt_32f_I, qspStsOk, arithref::sweepLengths(),
                                      positive(Qsp32f{}));
    // sqrtl of a double is rounded to 64 bits first: allow for that.
    auto check64 = [](Qsp64f a, Qsp64f got) { return arithsweep::withinUlps(got, std::sqrt((LD)a), kHalfUlp); };
    arithsweep::unary<Qsp64f, Qsp64f>(qspsSqrt_64f, check64, qspsSqrt_64f_I, qspStsOk, arithref::sweepLengths(),
                                      positive(Qsp64f{}));
}

TEST(Sqrt, NegativeElementsGiveNanAndTheWarningAfterTheWholeOutput)
{
    for (int at : {0, 5, 17}) {
        std::vector<Qsp32f> a(18, 4.0f), d(18);
        a[at] = -1.0f;
        ASSERT_EQ(qspsSqrt_32f(a.data(), d.data(), 18), qspStsWarnOutOfDomain);
        EXPECT_TRUE(std::isnan(d[at]));
        EXPECT_EQ(d[(at + 1) % 18], 2.0f);
        std::vector<Qsp64f> b(18, 9.0);
        b[at] = -1e-300;
        ASSERT_EQ(qspsSqrt_64f_I(b.data(), 18), qspStsWarnOutOfDomain);
        EXPECT_TRUE(std::isnan(b[at]));
        EXPECT_EQ(b[(at + 1) % 18], 3.0);
        std::vector<Qsp16s> c(18, 16), e(18);
        c[at] = -4;
        ASSERT_EQ(qspsSqrt_16s_Sfs(c.data(), e.data(), 18, 0), qspStsWarnOutOfDomain);
        EXPECT_EQ(e[at], 0);
        EXPECT_EQ(e[(at + 1) % 18], 4);
        std::vector<Qsp64s> f(18, 16);
        f[at] = -1;
        ASSERT_EQ(qspsSqrt_64s16s_Sfs(f.data(), e.data(), 18, 0), qspStsWarnOutOfDomain);
    }
    const Qsp32f s[] = {-0.0f, NAN, INFINITY, 0.0f};
    Qsp32f d[4];
    ASSERT_EQ(qspsSqrt_32f(s, d, 4), qspStsOk);
    EXPECT_TRUE(qsptest::sameBits(d[0], -0.0f));
    EXPECT_TRUE(std::isnan(d[1]));
    EXPECT_EQ(d[2], INFINITY);
    EXPECT_EQ(d[3], 0.0f);
}

TEST(Sqrt, ScaledIntegerRootsAreExactAtEveryScaleFactor)
{
    auto nonNeg = [](auto zero) {
        using T = decltype(zero);
        return +[](size_t n) {
            std::vector<T> v = arithsweep::gen<T>(n);
            for (auto& x : v)
                if (x < 0) x = T(-(x + 1));
            return v;
        };
    };
    for (int sf = -40; sf <= 40; ++sf) {
        const std::vector<int> lengths = sf == 0 ? arithref::sweepLengths() : arithsweep::shortLengths();
        auto run = [&](auto fn, auto fnI, auto zero) {
            using T = decltype(zero);
            arithsweep::unary<T, T>([&](auto a, auto d, int len) { return fn(a, d, len, sf); },
                                    [&](T a, T got) { return equals(got, refSqrt<T>(a, sf)); },
                                    [&](auto sd, int len) { return fnI(sd, len, sf); }, qspStsOk, lengths, nonNeg(zero));
        };
        run(qspsSqrt_8u_Sfs, qspsSqrt_8u_ISfs, Qsp8u{});
        run(qspsSqrt_16s_Sfs, qspsSqrt_16s_ISfs, Qsp16s{});
        run(qspsSqrt_16u_Sfs, qspsSqrt_16u_ISfs, Qsp16u{});
        arithsweep::unary<Qsp32s, Qsp16s>([&](auto a, auto d, int len) { return qspsSqrt_32s16s_Sfs(a, d, len, sf); },
                                          [&](Qsp32s a, Qsp16s got) { return equals(got, refSqrt<Qsp16s>(a, sf)); },
                                          nullptr, qspStsOk, lengths, nonNeg(Qsp32s{}));
        arithsweep::unary<Qsp64s, Qsp16s>([&](auto a, auto d, int len) { return qspsSqrt_64s16s_Sfs(a, d, len, sf); },
                                          [&](Qsp64s a, Qsp16s got) { return equals(got, refSqrt<Qsp16s>(a, sf)); },
                                          nullptr, qspStsOk, lengths, nonNeg(Qsp64s{}));
        if (HasFatalFailure()) {
            ADD_FAILURE() << "scale factor " << sf;
            return;
        }
    }
    // Ties: sqrt(9) / 2 = 1.5 goes to 2, sqrt(25) / 2 = 2.5 to 2.
    const Qsp16s a[] = {9, 25, 2};
    Qsp16s d[3];
    ASSERT_EQ(qspsSqrt_16s_Sfs(a, d, 3, 1), qspStsOk);
    EXPECT_EQ(d[0], 2);
    EXPECT_EQ(d[1], 2);
    EXPECT_EQ(d[2], 1);  // 0.707
}

TEST(Sqrt, ComplexPrincipalRoots)
{
    // Each part within 2 ULP of the root's magnitude (double precision
    // intermediates for 32fc; scaled double arithmetic for 64fc).
    auto check = [](auto a, auto got) {
        using F = decltype(a.re);
        const std::complex<LD> r = std::sqrt(std::complex<LD>(a.re, a.im));
        const LD bound = 2 * std::ldexp(1.0L, 1 - std::numeric_limits<F>::digits) * std::abs(r) +
                         2 * LD(std::numeric_limits<F>::denorm_min());
        if (std::fabs(got.re - r.real()) <= bound && std::fabs(got.im - r.imag()) <= bound)
            return testing::AssertionSuccess();
        return testing::AssertionFailure() << "exact (" << double(r.real()) << ", " << double(r.imag()) << ")";
    };
    arithsweep::unary<Qsp32fc, Qsp32fc>(qspsSqrt_32fc, check, qspsSqrt_32fc_I);
    arithsweep::unary<Qsp64fc, Qsp64fc>(qspsSqrt_64fc, check, qspsSqrt_64fc_I);
    const Qsp64fc big[] = {{1e308, 1e308}, {-1e308, -1e308}, {0, 0}, {-4, 0}, {1e-310, 0}};
    Qsp64fc d[5];
    ASSERT_EQ(qspsSqrt_64fc(big, d, 5), qspStsOk);
    EXPECT_TRUE(std::isfinite(d[0].re) && d[0].re > 1e154);
    EXPECT_LT(d[1].im, -1e153);
    EXPECT_EQ(d[2].re, 0.0);
    EXPECT_EQ(d[3].re, 0.0);
    EXPECT_EQ(d[3].im, 2.0);
    EXPECT_NEAR(d[4].re, 1e-155, 1e-168);
    // 16sc: the root rounded part by part.
    for (int sf : {-8, -1, 0, 1, 3}) {
        arithsweep::unary<Qsp16sc, Qsp16sc>(
            [&](auto a, auto d2, int len) { return qspsSqrt_16sc_Sfs(a, d2, len, sf); },
            [&](Qsp16sc a, Qsp16sc got) {
                const std::complex<LD> r = std::sqrt(std::complex<LD>(a.re, a.im)) * std::ldexp(1.0L, -sf);
                auto part = [](LD v) { return Qsp16s(v > 32767 ? 32767 : v < -32768 ? -32768 : std::nearbyint(v)); };
                return equals(got, Qsp16sc{part(r.real()), part(r.imag())});
            },
            [&](auto sd, int len) { return qspsSqrt_16sc_ISfs(sd, len, sf); }, qspStsOk, arithsweep::shortLengths());
    }
}

// SPDX-License-Identifier: BSD-3-Clause
// FIRLMS: the recursion bit for bit against a scalar loop in the documented
// summation order, and against long double; the delay ring and its index
// in and out; pieces of a stream equal to the whole; convergence on a known
// system; the 16-bit form; odd record addresses, foreign records, and every
// status with nothing written.
#include <algorithm>
#include <cmath>
#include <cstring>
#include <vector>

#include "qsp_test.h"

using qsptest::Guarded;

namespace {

using Ext = long double;

std::vector<float> randomFloats(size_t n, double scale = 1)
{
    std::uniform_real_distribution<double> u(-scale, scale);
    std::vector<float> v(n);
    for (auto& x : v) x = float(u(qsptest::rng()));
    return v;
}

// The documented arithmetic: y from eight interleaved partial sums over
// the taps reversed and the window oldest first, then the tail; then each
// tap t += (mu (r - y)) x.
struct Scalar {
    std::vector<float> t;     // natural order
    std::vector<float> ring;  // the caller's layout
    int idx;

    float step(float x, float r, float mu)
    {
        const int L = int(t.size());
        ring[size_t(idx)] = x;
        std::vector<float> w(static_cast<size_t>(L)), rt(static_cast<size_t>(L));
        for (int i = 0; i < L; ++i) {
            w[size_t(i)] = ring[size_t((idx + 1 + i) % L)];  // oldest first, x last
            rt[size_t(i)] = t[size_t(L - 1 - i)];
        }
        float s[8] = {};
        int i = 0;
        for (; i + 8 <= L; i += 8)
            for (int j = 0; j < 8; ++j) s[j] = s[j] + rt[size_t(i + j)] * w[size_t(i + j)];
        float y = ((s[0] + s[4]) + (s[2] + s[6])) + ((s[1] + s[5]) + (s[3] + s[7]));
        for (; i < L; ++i) y += rt[size_t(i)] * w[size_t(i)];
        const float g = mu * (r - y);
        for (int k = 0; k < L; ++k) t[size_t(L - 1 - k)] = rt[size_t(k)] + g * w[size_t(k)];
        idx = (idx + 1) % L;
        return y;
    }
};

struct State {
    std::vector<Qsp8u> mem;
    QspsFIRLMSState_32f* st = nullptr;
    State(const float* taps, int L, const float* dly, int idx, int odd = 0)
    {
        int size = 0;
        EXPECT_EQ(qspsFIRLMSGetStateSize_32f(L, idx, &size), qspStsOk);
        mem.assign(size_t(size) + odd, 0);
        EXPECT_EQ(qspsFIRLMSInit_32f(&st, taps, L, dly, idx, mem.data() + odd), qspStsOk);
    }
};

TEST(FIRLMS, MatchesTheScalarRecursionBitForBit)
{
    for (int L : {1, 3, 7, 8, 13, 32, 61, 100}) {
        for (int odd : {0, 5}) {
            const auto taps = randomFloats(size_t(L), 0.3);
            const auto dly = randomFloats(size_t(L));
            const int idx = int(qsptest::rng()() % unsigned(L));
            const int n = 400;
            const auto x = randomFloats(n), r = randomFloats(n);
            State s(taps.data(), L, dly.data(), idx, odd);
            Scalar ref{taps, dly, idx};
            Guarded<float> y(n);
            ASSERT_EQ(qspsFIRLMS_32f(x.data(), r.data(), y.data(), n, 0.02f, s.st), qspStsOk);
            EXPECT_TRUE(y.guardsIntact());
            for (int k = 0; k < n; ++k) ASSERT_TRUE(qsptest::sameBits(y[size_t(k)], ref.step(x[size_t(k)], r[size_t(k)], 0.02f))) << L << " " << k;
            std::vector<float> t(static_cast<size_t>(L)), d(static_cast<size_t>(L));
            int i = -1;
            ASSERT_EQ(qspsFIRLMSGetTaps_32f(s.st, t.data()), qspStsOk);
            ASSERT_EQ(qspsFIRLMSGetDlyLine_32f(s.st, d.data(), &i), qspStsOk);
            EXPECT_EQ(i, ref.idx);
            for (int k = 0; k < L; ++k) {
                EXPECT_TRUE(qsptest::sameBits(t[size_t(k)], ref.t[size_t(k)])) << k;
                EXPECT_TRUE(qsptest::sameBits(d[size_t(k)], ref.ring[size_t(k)])) << k;
            }
        }
    }
}

TEST(FIRLMS, AgreesWithLongDoubleWithinTheRoundingBound)
{
    // Over a short run the float path stays near the exact recursion: every
    // y carries at most (L + 2) 2^-24 sum |t x| of its own error, which the
    // update passes on scaled by mu |x|^2 L per step; with mu L < 0.5 the
    // inherited part stays below the same order, hence the factor 4.
    const int L = 16, n = 200;
    const float mu = 0.02f;
    const auto taps = randomFloats(L, 0.5), dly = randomFloats(L), x = randomFloats(n), r = randomFloats(n);
    State s(taps.data(), L, dly.data(), 3);
    std::vector<float> y(n);
    ASSERT_EQ(qspsFIRLMS_32f(x.data(), r.data(), y.data(), n, mu, s.st), qspStsOk);
    std::vector<Ext> t(taps.begin(), taps.end()), win(static_cast<size_t>(L));
    // win[k] = x[m-k] after the shift; before the first, win[k-1] = x[-k]
    // from the ring (index 3: ring[(3 - k) mod L] = x[-k]).
    for (int k = 1; k < L; ++k) win[size_t(k - 1)] = dly[size_t(((3 - k) % L + L) % L)];
    for (int m = 0; m < n; ++m) {
        for (int k = L - 1; k > 0; --k) win[size_t(k)] = win[size_t(k - 1)];
        win[0] = x[size_t(m)];
        Ext yy = 0, mag = 0;
        for (int k = 0; k < L; ++k) yy += t[size_t(k)] * win[size_t(k)], mag += std::fabs(t[size_t(k)] * win[size_t(k)]);
        ASSERT_LE(std::fabs(Ext(y[size_t(m)]) - yy), 4 * (L + 2) * mag * 0x1p-24L + 1e-12L) << m;
        const Ext g = Ext(mu) * (Ext(r[size_t(m)]) - yy);
        for (int k = 0; k < L; ++k) t[size_t(k)] += g * win[size_t(k)];
    }
}

TEST(FIRLMS, PiecesEqualTheWholeAndTheRingCarriesOver)
{
    const int L = 21, n = 1000;
    const auto x = randomFloats(n), r = randomFloats(n);
    State whole(nullptr, L, nullptr, 0), pieces(nullptr, L, nullptr, 0);
    std::vector<float> a(n), b(n);
    ASSERT_EQ(qspsFIRLMS_32f(x.data(), r.data(), a.data(), n, 0.05f, whole.st), qspStsOk);
    for (int at = 0, step = 1; at < n; at += step, step = step * 2 + 1) {
        step = std::min(step, n - at);
        ASSERT_EQ(qspsFIRLMS_32f(x.data() + at, r.data() + at, b.data() + at, step, 0.05f, pieces.st), qspStsOk);
    }
    for (int k = 0; k < n; ++k) ASSERT_TRUE(qsptest::sameBits(a[size_t(k)], b[size_t(k)])) << k;
    // A ring read out and written into a fresh state with the same taps
    // continues the stream.
    std::vector<float> t(L), d(L);
    int idx = -1;
    ASSERT_EQ(qspsFIRLMSGetTaps_32f(whole.st, t.data()), qspStsOk);
    ASSERT_EQ(qspsFIRLMSGetDlyLine_32f(whole.st, d.data(), &idx), qspStsOk);
    EXPECT_EQ(idx, n % L);
    State next(t.data(), L, nullptr, 0);
    ASSERT_EQ(qspsFIRLMSSetDlyLine_32f(next.st, d.data(), idx), qspStsOk);
    const auto x2 = randomFloats(50), r2 = randomFloats(50);
    std::vector<float> c(50), e(50);
    ASSERT_EQ(qspsFIRLMS_32f(x2.data(), r2.data(), c.data(), 50, 0.05f, whole.st), qspStsOk);
    ASSERT_EQ(qspsFIRLMS_32f(x2.data(), r2.data(), e.data(), 50, 0.05f, next.st), qspStsOk);
    for (int k = 0; k < 50; ++k) ASSERT_TRUE(qsptest::sameBits(c[size_t(k)], e[size_t(k)])) << k;
    // Set with a null line clears it (and keeps the taps).
    ASSERT_EQ(qspsFIRLMSSetDlyLine_32f(next.st, nullptr, 4), qspStsOk);
    ASSERT_EQ(qspsFIRLMSGetDlyLine_32f(next.st, d.data(), &idx), qspStsOk);
    EXPECT_EQ(idx, 4);
    for (float v : d) EXPECT_EQ(v, 0.0f);
}

TEST(FIRLMS, IdentifiesAnUnknownSystemInPlace)
{
    // ref = h * x: the taps converge to h, the error to zero. The output
    // overwrites the input (pDst == pSrc).
    const int L = 16, n = 20000;
    const auto h = randomFloats(L, 0.5);
    auto x = randomFloats(n);
    std::vector<float> ref(n);
    for (int m = 0; m < n; ++m) {
        double s = 0;
        for (int k = 0; k < L && k <= m; ++k) s += double(h[size_t(k)]) * x[size_t(m - k)];
        ref[size_t(m)] = float(s);
    }
    State s(nullptr, L, nullptr, 0);
    ASSERT_EQ(qspsFIRLMS_32f(x.data(), ref.data(), x.data(), n, 0.05f, s.st), qspStsOk);
    std::vector<float> t(L);
    ASSERT_EQ(qspsFIRLMSGetTaps_32f(s.st, t.data()), qspStsOk);
    for (int k = 0; k < L; ++k) EXPECT_NEAR(t[size_t(k)], h[size_t(k)], 1e-4) << k;
    for (int m = n - 100; m < n; ++m) EXPECT_NEAR(x[size_t(m)], ref[size_t(m)], 1e-4) << m;
}

TEST(FIRLMS, SixteenBitFormRoundsTheOutputAndAdaptsOnTheUnroundedError)
{
    const int L = 9, n = 300;
    const auto taps = randomFloats(L, 2);
    std::vector<Qsp16s> dly(L), x(n), r(n);
    std::vector<float> dlyF(L);
    for (int k = 0; k < L; ++k) dly[size_t(k)] = Qsp16s(qsptest::rng()() % 2001) - 1000, dlyF[size_t(k)] = dly[size_t(k)];
    for (int m = 0; m < n; ++m) {
        x[size_t(m)] = Qsp16s(int(qsptest::rng()() % 60001) - 30000);
        r[size_t(m)] = Qsp16s(int(qsptest::rng()() % 2001) - 1000);
    }
    int size = 0;
    ASSERT_EQ(qspsFIRLMSGetStateSize32f_16s(L, 2, &size), qspStsOk);
    std::vector<Qsp8u> mem(size_t(size) + 3);
    QspsFIRLMSState32f_16s* st = nullptr;
    ASSERT_EQ(qspsFIRLMSInit32f_16s(&st, taps.data(), L, dly.data(), 2, mem.data() + 3), qspStsOk);
    Guarded<Qsp16s> y(n);
    ASSERT_EQ(qspsFIRLMS32f_16s(x.data(), r.data(), y.data(), n, 1e-9f, st), qspStsOk);
    Scalar ref{taps, dlyF, 2};
    for (int m = 0; m < n; ++m) {
        const float v = ref.step(float(x[size_t(m)]), float(r[size_t(m)]), 1e-9f);
        const double want = std::clamp(std::nearbyint(double(v)), -32768.0, 32767.0);
        ASSERT_EQ(double(y[size_t(m)]), want) << m;
    }
    std::vector<float> t(L);
    std::vector<Qsp16s> d(L);
    int idx = -1;
    ASSERT_EQ(qspsFIRLMSGetTaps32f_16s(st, t.data()), qspStsOk);
    ASSERT_EQ(qspsFIRLMSGetDlyLine32f_16s(st, d.data(), &idx), qspStsOk);
    EXPECT_EQ(idx, ref.idx);
    for (int k = 0; k < L; ++k) {
        EXPECT_TRUE(qsptest::sameBits(t[size_t(k)], ref.t[size_t(k)]));
        EXPECT_EQ(float(d[size_t(k)]), ref.ring[size_t(k)]);
    }
    ASSERT_EQ(qspsFIRLMSSetDlyLine32f_16s(st, d.data(), 8), qspStsOk);
    EXPECT_EQ(qspsFIRLMSSetDlyLine32f_16s(st, d.data(), 9), qspStsBadDelayIndex);
}

TEST(FIRLMS, StatusesInOrderAndNothingWritten)
{
    int size = -1;
    EXPECT_EQ(qspsFIRLMSGetStateSize_32f(0, 0, nullptr), qspStsNullPtr);
    EXPECT_EQ(qspsFIRLMSGetStateSize_32f(0, -1, &size), qspStsBadTapCount);
    EXPECT_EQ(qspsFIRLMSGetStateSize_32f(4, 4, &size), qspStsBadDelayIndex);
    EXPECT_EQ(qspsFIRLMSGetStateSize_32f(4, -1, &size), qspStsBadDelayIndex);
    EXPECT_EQ(qspsFIRLMSGetStateSize32f_16s(-2, 0, &size), qspStsBadTapCount);
    EXPECT_EQ(size, -1);
    ASSERT_EQ(qspsFIRLMSGetStateSize_32f(4, 3, &size), qspStsOk);

    const float taps[4] = {1, 2, 3, 4};
    Guarded<Qsp8u> mem{size_t(size)};
    QspsFIRLMSState_32f* st = nullptr;
    EXPECT_EQ(qspsFIRLMSInit_32f(nullptr, taps, 4, nullptr, 0, mem.data()), qspStsNullPtr);
    EXPECT_EQ(qspsFIRLMSInit_32f(&st, taps, 4, nullptr, 0, nullptr), qspStsNullPtr);
    EXPECT_EQ(qspsFIRLMSInit_32f(&st, taps, 0, nullptr, 9, nullptr), qspStsNullPtr);
    EXPECT_EQ(qspsFIRLMSInit_32f(&st, taps, 0, nullptr, 9, mem.data()), qspStsBadTapCount);
    EXPECT_EQ(qspsFIRLMSInit_32f(&st, taps, 4, nullptr, 4, mem.data()), qspStsBadDelayIndex);
    // A state too large to size: the query and Init refuse it alike.
    EXPECT_EQ(qspsFIRLMSGetStateSize_32f(0x7FFFFFFF, 0, &size), qspStsOverflow);
    EXPECT_EQ(qspsFIRLMSInit_32f(&st, taps, 0x7FFFFFFF, nullptr, 0, mem.data()), qspStsOverflow);
    EXPECT_EQ(qspsFIRLMSInit32f_16s(reinterpret_cast<QspsFIRLMSState32f_16s**>(&st), taps, 0x7FFFFFFF, nullptr, 0,
                                    mem.data()),
              qspStsOverflow);
    EXPECT_TRUE(mem.untouched());
    EXPECT_EQ(st, nullptr);
    ASSERT_EQ(qspsFIRLMSInit_32f(&st, taps, 4, nullptr, 3, mem.data()), qspStsOk);
    EXPECT_TRUE(mem.guardsIntact());

    const std::vector<Qsp8u> before(mem.data(), mem.data() + size);
    float x[4] = {1, 2, 3, 4}, r[4] = {0, 0, 0, 0};
    Guarded<float> y(4), out(4);
    Guarded<int> index(1);
    EXPECT_EQ(qspsFIRLMS_32f(nullptr, r, y.data(), 4, 0.1f, st), qspStsNullPtr);
    EXPECT_EQ(qspsFIRLMS_32f(x, nullptr, y.data(), 4, 0.1f, st), qspStsNullPtr);
    EXPECT_EQ(qspsFIRLMS_32f(x, r, nullptr, 4, 0.1f, st), qspStsNullPtr);
    EXPECT_EQ(qspsFIRLMS_32f(x, r, y.data(), 4, 0.1f, nullptr), qspStsNullPtr);
    EXPECT_EQ(qspsFIRLMS_32f(x, r, nullptr, 0, 0.0f, st), qspStsNullPtr);
    EXPECT_EQ(qspsFIRLMS_32f(x, r, y.data(), 0, 0.0f, st), qspStsBadSize);
    for (float mu : {0.0f, 1.0f, -0.5f, 2.0f, std::nanf("")})
        EXPECT_EQ(qspsFIRLMS_32f(x, r, y.data(), 4, mu, st), qspStsBadMu) << mu;
    EXPECT_EQ(qspsFIRLMSGetTaps_32f(nullptr, out.data()), qspStsNullPtr);
    EXPECT_EQ(qspsFIRLMSGetTaps_32f(st, nullptr), qspStsNullPtr);
    EXPECT_EQ(qspsFIRLMSGetDlyLine_32f(nullptr, out.data(), index.data()), qspStsNullPtr);
    EXPECT_EQ(qspsFIRLMSGetDlyLine_32f(st, nullptr, index.data()), qspStsNullPtr);
    EXPECT_EQ(qspsFIRLMSGetDlyLine_32f(st, out.data(), nullptr), qspStsNullPtr);
    EXPECT_EQ(qspsFIRLMSSetDlyLine_32f(nullptr, x, 0), qspStsNullPtr);
    EXPECT_EQ(qspsFIRLMSSetDlyLine_32f(st, x, 4), qspStsBadDelayIndex);
    EXPECT_EQ(qspsFIRLMSSetDlyLine_32f(st, x, -1), qspStsBadDelayIndex);
    // Another kind of record: the 16-bit state, and an IIRSparse state.
    std::vector<Qsp8u> m16(static_cast<size_t>(size));
    QspsFIRLMSState32f_16s* s16 = nullptr;
    ASSERT_EQ(qspsFIRLMSInit32f_16s(&s16, taps, 4, nullptr, 0, m16.data()), qspStsOk);
    auto* alien = reinterpret_cast<QspsFIRLMSState_32f*>(s16);
    const std::vector<Qsp8u> m16Before = m16;
    EXPECT_EQ(qspsFIRLMS_32f(x, r, y.data(), 4, 0.1f, alien), qspStsBadRecord);
    EXPECT_EQ(qspsFIRLMSGetTaps_32f(alien, out.data()), qspStsBadRecord);
    EXPECT_EQ(qspsFIRLMSGetDlyLine_32f(alien, out.data(), index.data()), qspStsBadRecord);
    EXPECT_EQ(qspsFIRLMSSetDlyLine_32f(alien, x, 0), qspStsBadRecord);
    EXPECT_EQ(qspsFIRLMS32f_16s(reinterpret_cast<Qsp16s*>(x), reinterpret_cast<Qsp16s*>(r),
                                reinterpret_cast<Qsp16s*>(y.data()), 4, 0.1f,
                                reinterpret_cast<QspsFIRLMSState32f_16s*>(st)),
              qspStsBadRecord);
    EXPECT_TRUE(m16 == m16Before);
    EXPECT_TRUE(y.untouched());
    EXPECT_TRUE(out.untouched());
    EXPECT_TRUE(index.untouched());
    EXPECT_TRUE(std::equal(before.begin(), before.end(), mem.data()));
}

}  // namespace

// SPDX-License-Identifier: BSD-3-Clause
// Tone: the checks in their order, nothing written on error (the phase
// neither), the continuing phase, and the values of both paths against
// long double cosines with the turns of rFreq n removed exactly.
#include "signal_reference.h"

using sigref::LD;

namespace {

template <class T, class F>
using ToneFn = QspStatus (*)(T*, int, F, F, F*, QspHintAlgorithm);

// The continuing phase as the interface states it.
template <class F>
F nextPhase(F ph, F rFreq, int len)
{
    double p = double(ph) + double(len) * (6.283185307179586 * double(rFreq));
    const double k = std::trunc(p * 0.15915494309189535);
    p = p - k * 6.283185307179586;
    const F r = F(p);
    return (!(double(r) < 6.283185307179586) || double(r) < 0) ? F(0) : r;
}

// Accurate and fast paths alike: within 2^-44 magn of the exact values.
constexpr LD kBound = 0x1p-44L;

template <class T, class F>
void expectChecks(ToneFn<T, F> fn)
{
    qsptest::Guarded<T> dst(16);
    // 2 pi in the phase's type is not below the double 2 pi (the float
    // rounds up); the value just below it passes.
    const F twoPiUp = F(6.283185307179586), below2Pi = std::nextafter(twoPiUp, F(0));
    F phase = F(1.25);
    auto expectFails = [&](QspStatus want, T* d, int len, F magn, F rFreq, F ph, bool nullPhase = false) {
        phase = ph;
        const F before = phase;
        EXPECT_EQ(fn(d, len, magn, rFreq, nullPhase ? nullptr : &phase, 0), want)
            << "len " << len << " magn " << magn << " rFreq " << rFreq << " phase " << ph;
        EXPECT_TRUE(qsptest::sameBits(phase, before));
        EXPECT_TRUE(dst.untouched());
    };
    const F nan = std::numeric_limits<F>::quiet_NaN();
    // 1: the phase pointer, before everything.
    expectFails(qspStsNullPtr, dst.data(), 8, F(1), F(0.1), F(0), true);
    expectFails(qspStsNullPtr, nullptr, 0, F(-1), F(0.7), F(-1), true);
    // 2: magn not above 0 (NaN passes), before the other arguments.
    for (F m : {F(0), F(-0.0), F(-1), -std::numeric_limits<F>::infinity()})
        expectFails(qspStsBadToneMagnitude, nullptr, 0, m, F(0.7), F(-1));
    // 3: rFreq below 0 or not below 0.5 (NaN and -0 pass).
    for (F r : {F(-1e-30), F(0.5), F(1), std::numeric_limits<F>::infinity()})
        expectFails(qspStsBadToneFrequency, nullptr, 0, F(1), r, F(-1));
    expectFails(qspStsBadToneFrequency, nullptr, 0, nan, F(0.5), F(-1));
    // 4: the phase, widened to double, below 0 or not below 2 pi.
    for (F p : {F(-1e-30), twoPiUp, F(7), std::numeric_limits<F>::infinity()})
        expectFails(qspStsBadTonePhase, nullptr, 0, F(1), F(0.1), p);
    expectFails(qspStsBadTonePhase, nullptr, 0, F(1), nan, twoPiUp);
    expectFails(qspStsBadTonePhase, nullptr, 0, F(1), F(-0.0), F(-1));
    // 5, 6: the destination, then the length.
    expectFails(qspStsNullPtr, nullptr, 0, F(1), F(0.1), below2Pi);
    expectFails(qspStsNullPtr, nullptr, 8, nan, nan, nan);
    expectFails(qspStsBadSize, dst.data(), 0, F(1), F(0.1), F(0));
    expectFails(qspStsBadSize, dst.data(), -3, F(1), F(0.1), F(-0.0));
    // The boundary values that pass.
    for (F p : {below2Pi, F(-0.0), F(0)}) {
        phase = p;
        std::vector<T> d(4);
        EXPECT_EQ(fn(d.data(), 4, F(1), F(0.4999), &phase, 0), qspStsOk) << p;
    }
}

template <class T, class F>
void expectValues(ToneFn<T, F> fn, F magn, F rFreq, F ph, int len, int hint)
{
    SCOPED_TRACE("magn " + std::to_string(double(magn)) + " rFreq " + std::to_string(double(rFreq)) + " phase " +
                 std::to_string(double(ph)) + " len " + std::to_string(len) + " hint " + std::to_string(hint));
    qsptest::Guarded<T> dst(len);
    F phase = ph;
    ASSERT_EQ(fn(dst.data(), len, magn, rFreq, &phase, hint), qspStsOk);
    EXPECT_TRUE(dst.guardsIntact());
    EXPECT_TRUE(qsptest::sameBits(phase, nextPhase(ph, rFreq, len)));
    int bad = 0;
    for (int n = 0; n < len && bad < 5; ++n) {
        const LD a = 2 * sigref::kPi * sigref::turnsWithPhase(double(ph), double(rFreq), n);
        const LD c = LD(magn) * cosl(a), s = LD(magn) * sinl(a);
        bool ok = sigref::within(sigref::re(dst[n]), c, kBound * LD(magn));
        if constexpr (sigref::isComplex<T>) ok = ok && sigref::within(sigref::im(dst[n]), s, kBound * LD(magn));
        if (!ok) {
            ++bad;
            ADD_FAILURE() << "n=" << n << " got " << double(sigref::re(dst[n])) << ", " << double(sigref::im(dst[n]))
                          << " want " << double(c) << ", " << double(s);
        }
    }
}

// Two calls of 100 elements against one of 200: the second continues from
// the returned phase, rounded to its type.
template <class T, class F>
void expectSplitCalls(ToneFn<T, F> fn, F magn, F rFreq, F ph, int hint)
{
    std::vector<T> whole(200), parts(200);
    F p1 = ph, p2 = ph;
    ASSERT_EQ(fn(whole.data(), 200, magn, rFreq, &p1, hint), qspStsOk);
    ASSERT_EQ(fn(parts.data(), 100, magn, rFreq, &p2, hint), qspStsOk);
    ASSERT_EQ(fn(parts.data() + 100, 100, magn, rFreq, &p2, hint), qspStsOk);
    // The phase's rounding: half an ULP of 2 pi in its type, times n rFreq
    // steps of nothing (the rounding moves every later element alike).
    const LD slack = LD(magn) * (LD(std::numeric_limits<F>::epsilon()) * 4 + 3 * kBound);
    for (int n = 0; n < 200; ++n) {
        EXPECT_TRUE(sigref::within(sigref::re(parts[n]), LD(sigref::re(whole[n])), slack)) << n;
        EXPECT_TRUE(sigref::within(sigref::im(parts[n]), LD(sigref::im(whole[n])), slack)) << n;
    }
    EXPECT_NEAR(double(p1), double(p2), 1e-5);
}

template <class T, class F>
void forEveryHint(ToneFn<T, F> fn, F magn)
{
    for (int hint : {0, 1}) {
        for (F rFreq : {F(0), F(1e-7), F(0.01), F(0.123456789), F(0.25), F(0.3), F(0.4999999)}) {
            expectValues(fn, magn, rFreq, F(0.3), 3000, hint);
            expectValues(fn, magn, rFreq, F(6.28), 5, hint);
        }
        for (int len : {1, 2, 3, 4, 5, 15, 16, 17, 255, 256, 257, 1023, 1024, 1025, 2049})
            expectValues(fn, magn, F(0.0371), F(2.0), len, hint);
        expectSplitCalls(fn, magn, F(0.0371), F(2.0), hint);
        expectSplitCalls(fn, magn, F(0.49), F(6.0), hint);
    }
}

}  // namespace

TEST(Tone, ChecksInTheStatedOrderAndNothingWritten)
{
    expectChecks(qspsTone_16s);
    expectChecks(qspsTone_16sc);
    expectChecks(qspsTone_32f);
    expectChecks(qspsTone_32fc);
    expectChecks(qspsTone_64f);
    expectChecks(qspsTone_64fc);
}

TEST(Tone, ValuesOfEveryTypeAndBothPaths)
{
    forEveryHint(qspsTone_64f, 1.0);
    forEveryHint(qspsTone_64fc, 2.5);
    forEveryHint(qspsTone_32f, 1.0f);
    forEveryHint(qspsTone_32fc, 0.75f);
    forEveryHint(qspsTone_16s, 12000.0f);
    forEveryHint(qspsTone_16sc, 32767.0f);
}

TEST(Tone, ZeroFrequencyWritesTheStartingValueAndKeepsThePhase)
{
    std::vector<Qsp32f> d(300);
    Qsp32f ph = 1.0f;
    ASSERT_EQ(qspsTone_32f(d.data(), 300, 2.0f, 0.0f, &ph, 0), qspStsOk);
    EXPECT_EQ(ph, 1.0f);
    for (float v : d) EXPECT_EQ(v, float(2.0 * std::cos(1.0)));
    std::vector<Qsp64fc> z(300);
    Qsp64f p = 3.0;
    ASSERT_EQ(qspsTone_64fc(z.data(), 300, 1.5, 0.0, &p, 1), qspStsOk);
    EXPECT_EQ(p, 3.0);
    for (auto v : z) {
        EXPECT_NEAR(v.re, 1.5 * std::cos(3.0), 1e-15);
        EXPECT_NEAR(v.im, 1.5 * std::sin(3.0), 1e-15);
    }
}

TEST(Tone, ContinuingPhaseOutsideTheRangeBecomesZero)
{
    // A whole number of periods: 4 quarter turns.
    Qsp64f p = 0.0;
    std::vector<Qsp64f> d(4);
    ASSERT_EQ(qspsTone_64f(d.data(), 4, 1.0, 0.25, &p, 0), qspStsOk);
    EXPECT_EQ(p, nextPhase(0.0, 0.25, 4));
    EXPECT_LT(p, 1e-15);
    // Single precision: the phase just below 2 pi rounds up to the float
    // above 2 pi, and is replaced by 0; a shorter advance keeps it.
    const Qsp32f top = 6.2831850f;
    Qsp32f q = top;
    std::vector<Qsp32f> f(4);
    ASSERT_EQ(qspsTone_32f(f.data(), 4, 1.0f, 1e-8f, &q, 0), qspStsOk);
    EXPECT_EQ(q, 0.0f);
    q = top;
    ASSERT_EQ(qspsTone_32f(f.data(), 2, 1.0f, 1e-8f, &q, 0), qspStsOk);
    EXPECT_EQ(q, top);
    // Against the formula over many arguments.
    for (int i = 0; i < 2000; ++i) {
        const Qsp32f ph = float(std::uniform_real_distribution<double>(0, 6.28318)(qsptest::rng()));
        const Qsp32f rf = float(std::uniform_real_distribution<double>(0, 0.5)(qsptest::rng()));
        const int len = 1 + int(qsptest::rng()() % 100000);
        Qsp32f got = ph;
        std::vector<Qsp32f> buf(len);
        ASSERT_EQ(qspsTone_32f(buf.data(), len, 1.0f, rf, &got, i & 1), qspStsOk);
        ASSERT_TRUE(qsptest::sameBits(got, nextPhase(ph, rf, len))) << ph << " " << rf << " " << len;
    }
}

TEST(Tone, NanArgumentsPassTheOrderedChecks)
{
    std::vector<Qsp32f> d(8);
    Qsp32f ph = 0.5f;
    EXPECT_EQ(qspsTone_32f(d.data(), 8, NAN, 0.1f, &ph, 0), qspStsOk);
    for (float v : d) EXPECT_TRUE(std::isnan(v));
    ph = NAN;
    EXPECT_EQ(qspsTone_32f(d.data(), 8, 1.0f, 0.1f, &ph, 0), qspStsOk);
    EXPECT_EQ(ph, 0.0f);  // the continuing phase is NaN, not in [0, 2 pi)
    std::vector<Qsp16s> s(8, 7);
    Qsp32f p2 = 0;
    EXPECT_EQ(qspsTone_16s(s.data(), 8, NAN, 0.1f, &p2, 0), qspStsOk);
    for (Qsp16s v : s) EXPECT_EQ(v, 0);
}

TEST(Tone, EveryHintButOneIsTheAccuratePath)
{
    std::vector<Qsp64f> a(3000), b(3000);
    for (QspHintAlgorithm h : {2, -1, 1000, 3}) {
        Qsp64f p0 = 1.0, p1 = 1.0;
        ASSERT_EQ(qspsTone_64f(a.data(), 3000, 1.0, 0.01, &p0, 0), qspStsOk);
        ASSERT_EQ(qspsTone_64f(b.data(), 3000, 1.0, 0.01, &p1, h), qspStsOk);
        EXPECT_EQ(std::memcmp(a.data(), b.data(), sizeof(Qsp64f) * 3000), 0) << h;
    }
    // The first elements follow the stated recurrence: x(2) = 2 cos w x(1) - x(0).
    Qsp64f p = 0.5;
    ASSERT_EQ(qspsTone_64f(a.data(), 8, 1.0, 0.1, &p, 0), qspStsOk);
    const double w = 6.283185307179586 * 0.1;
    EXPECT_NEAR(a[2], 2 * std::cos(w) * a[1] - a[0], 1e-16);
    EXPECT_NEAR(a[4], (4 * std::cos(w) * std::cos(w) - 2) * a[2] - a[0], 1e-15);
}

TEST(Tone, IntegerResultsRoundAndSaturate)
{
    std::vector<Qsp16s> s(1000);
    Qsp32f ph = 0;
    ASSERT_EQ(qspsTone_16s(s.data(), 1000, 50000.0f, 0.01f, &ph, 0), qspStsOk);
    EXPECT_EQ(s[0], 32767);
    EXPECT_EQ(s[50], -32768);  // half a period
    int saturated = 0;
    for (Qsp16s v : s) saturated += v == 32767 || v == -32768;
    EXPECT_GT(saturated, 400);
}

TEST(ToneHeavy, AMillionSamplesStayWithinTheBound)
{
    for (double rFreq : {1e-9, 1e-4, 0.1, 0.2499999, 0.25, 0.3333333, 0.4999999}) {
        for (int hint : {0, 1}) {
            expectValues(qspsTone_64f, 1.0, rFreq, 0.3, 1000000, hint);
            expectValues(qspsTone_64fc, 1.0, rFreq, 5.0, 1000000, hint);
        }
    }
}

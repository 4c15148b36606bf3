// SPDX-License-Identifier: BSD-3-Clause
// Triangle: the checks in their order, nothing written on error (the phase
// neither), the continuing phase, and the wave against a long double
// evaluation of its definition.
#include "signal_reference.h"

using sigref::LD;

namespace {

template <class T, class F>
using TriangleFn = QspStatus (*)(T*, int, F, F, F, F*);

template <class F>
F nextPhase(F ph, F rFreq, int len)
{
    double p = double(ph) + double(len) * (6.283185307179586 * double(rFreq));
    p = p - std::floor(p * 0.15915494309189535) * 6.283185307179586;
    return F(p);
}

// The wave at u turns: +1 at 0, falling to -1 over (pi - asym)/2pi of the
// period, rising back over the rest.
LD wave(LD u, LD asym)
{
    LD fall = (sigref::kPi - asym) / (2 * sigref::kPi);
    if (fall > 1) fall = 1;
    if (u < fall) return 1 - 2 * u / fall;
    return -1 + 2 * (u - fall) / (1 - fall);
}

template <class T, class F>
void expectChecks(TriangleFn<T, F> fn)
{
    qsptest::Guarded<T> dst(16);
    const F twoPiUp = F(6.283185307179586), below2Pi = std::nextafter(twoPiUp, F(0));
    const F piUp = F(3.141592653589793);  // not below pi in the type: rejected
    const F nan = std::numeric_limits<F>::quiet_NaN();
    F phase = F(1);
    auto expectFails = [&](QspStatus want, T* d, int len, F magn, F rFreq, F asym, F ph, bool nullPhase = false) {
        phase = ph;
        const F before = phase;
        EXPECT_EQ(fn(d, len, magn, rFreq, asym, nullPhase ? nullptr : &phase), want)
            << len << " " << magn << " " << rFreq << " " << asym << " " << ph;
        EXPECT_TRUE(qsptest::sameBits(phase, before));
        EXPECT_TRUE(dst.untouched());
    };
    expectFails(qspStsNullPtr, nullptr, 0, F(-1), F(1), F(9), F(-1), true);
    for (F m : {F(0), F(-0.0), F(-2)}) expectFails(qspStsBadTriangleMagnitude, nullptr, 0, m, F(1), F(9), F(-1));
    for (F r : {F(-1e-30), F(0.5), F(2)}) expectFails(qspStsBadTriangleFrequency, nullptr, 0, nan, r, F(9), F(-1));
    for (F a : {piUp, F(4), std::nextafter(-piUp, F(-4)), -std::numeric_limits<F>::infinity()})
        expectFails(qspStsBadTriangleAsymmetry, nullptr, 0, F(1), nan, a, F(-1));
    for (F p : {F(-1e-30), twoPiUp, F(100)}) expectFails(qspStsBadTrianglePhase, nullptr, 0, F(1), F(0.1), -piUp, p);
    expectFails(qspStsNullPtr, nullptr, 0, F(1), F(0.1), nan, below2Pi);
    expectFails(qspStsBadSize, dst.data(), 0, F(1), F(0.1), F(0), F(0));
    expectFails(qspStsBadSize, dst.data(), -1, F(1), F(0.1), F(0), F(0));
    // -pi in the type is accepted, and so are the largest phase and -0.
    for (F a : {-piUp, std::nextafter(piUp, F(0)), F(-0.0)}) {
        phase = below2Pi;
        std::vector<T> d(4);
        EXPECT_EQ(fn(d.data(), 4, F(1), F(0.2), a, &phase), qspStsOk) << a;
    }
}

// Every element against magn wave(u), u = phase/2pi + rFreq n mod 1; the
// imaginary part a quarter period later. Slack: the wave's slope times the
// rounding of u in double.
template <class T, class F>
void expectValues(TriangleFn<T, F> fn, F magn, F rFreq, F asym, F ph, int len)
{
    SCOPED_TRACE("magn " + std::to_string(double(magn)) + " rFreq " + std::to_string(double(rFreq)) + " asym " +
                 std::to_string(double(asym)) + " phase " + std::to_string(double(ph)) + " len " + std::to_string(len));
    qsptest::Guarded<T> dst(len);
    F phase = ph;
    ASSERT_EQ(fn(dst.data(), len, magn, rFreq, asym, &phase), qspStsOk);
    EXPECT_TRUE(dst.guardsIntact());
    EXPECT_TRUE(qsptest::sameBits(phase, nextPhase(ph, rFreq, len)));
    LD fall = (sigref::kPi - LD(asym)) / (2 * sigref::kPi);
    fall = std::min<LD>(fall, 1);
    const LD slope = 2 / std::min(fall, 1 - fall > 0 ? 1 - fall : fall);
    const LD slack = LD(magn) * (slope * 0x1p-44L + 0x1p-50L);
    int bad = 0;
    for (int n = 0; n < len && bad < 5; ++n) {
        const LD u = sigref::turnsWithPhase(double(ph), double(rFreq), n);
        LD q = u - 0.25L;
        if (q < 0) q += 1;
        const LD re = LD(magn) * wave(u, LD(asym)), im = LD(magn) * wave(q, LD(asym));
        bool ok = sigref::within(sigref::re(dst[n]), re, slack);
        if constexpr (sigref::isComplex<T>) ok = ok && sigref::within(sigref::im(dst[n]), im, slack);
        if (!ok) {
            ++bad;
            ADD_FAILURE() << "n=" << n << " u=" << double(u) << " got " << double(sigref::re(dst[n])) << ", "
                          << double(sigref::im(dst[n])) << " want " << double(re) << ", " << double(im);
        }
    }
}

template <class T, class F>
void expectSweep(TriangleFn<T, F> fn, F magn)
{
    for (F asym : {F(0), F(1), F(-1), F(3.1), F(-3.1)}) {
        for (F rFreq : {F(0), F(1e-6), F(0.01), F(0.123456789), F(0.25), F(0.4999)}) {
            expectValues(fn, magn, rFreq, asym, F(0.3), 2000);
            expectValues(fn, magn, rFreq, asym, F(6.2), 7);
        }
    }
    for (int len : {1, 2, 3, 511, 512, 513, 1500}) expectValues(fn, magn, F(0.0371), F(0.5), F(2), len);
    // Two calls of 100 continue one of 200, up to the rounding of the
    // returned phase to its type and of both calls' turns, times the
    // wave's slope (2 / fall, fall = (pi - 0.5) / 2 pi).
    std::vector<T> whole(200), parts(200);
    F p1 = F(1), p2 = F(1);
    ASSERT_EQ(fn(whole.data(), 200, magn, F(0.0371), F(0.5), &p1), qspStsOk);
    ASSERT_EQ(fn(parts.data(), 100, magn, F(0.0371), F(0.5), &p2), qspStsOk);
    ASSERT_EQ(fn(parts.data() + 100, 100, magn, F(0.0371), F(0.5), &p2), qspStsOk);
    const LD slope = 2 / ((sigref::kPi - 0.5L) / (2 * sigref::kPi));
    const LD slack = LD(magn) * slope * (0x1p-43L + LD(std::numeric_limits<F>::epsilon()));
    for (int n = 0; n < 200; ++n) {
        EXPECT_TRUE(sigref::within(sigref::re(parts[n]), LD(sigref::re(whole[n])), slack)) << n;
        EXPECT_TRUE(sigref::within(sigref::im(parts[n]), LD(sigref::im(whole[n])), slack)) << n;
    }
}

}  // namespace

TEST(Triangle, ChecksInTheStatedOrderAndNothingWritten)
{
    expectChecks(qspsTriangle_16s);
    expectChecks(qspsTriangle_16sc);
    expectChecks(qspsTriangle_32f);
    expectChecks(qspsTriangle_32fc);
    expectChecks(qspsTriangle_64f);
    expectChecks(qspsTriangle_64fc);
}

TEST(Triangle, AsymmetryPiIsRejectedAndMinusPiAccepted)
{
    std::vector<Qsp32f> d(8);
    Qsp32f ph = 0;
    EXPECT_EQ(qspsTriangle_32f(d.data(), 8, 1.0f, 0.1f, 3.14159265f, &ph), qspStsBadTriangleAsymmetry);
    EXPECT_EQ(qspsTriangle_32f(d.data(), 8, 1.0f, 0.1f, -3.14159265f, &ph), qspStsOk);
    std::vector<Qsp64f> e(8);
    Qsp64f p = 0;
    EXPECT_EQ(qspsTriangle_64f(e.data(), 8, 1.0, 0.1, 3.141592653589793, &p), qspStsBadTriangleAsymmetry);
    EXPECT_EQ(qspsTriangle_64f(e.data(), 8, 1.0, 0.1, -3.141592653589793, &p), qspStsOk);
}

TEST(Triangle, ValuesOfEveryType)
{
    expectSweep(qspsTriangle_64f, 1.0);
    expectSweep(qspsTriangle_64fc, 3.0);
    expectSweep(qspsTriangle_32f, 1.0f);
    expectSweep(qspsTriangle_32fc, 0.5f);
    expectSweep(qspsTriangle_16s, 20000.0f);
    expectSweep(qspsTriangle_16sc, 32767.0f);
}

TEST(Triangle, SymmetricWaveMeetsTheCosineAtQuarterPeriods)
{
    // rFreq 1/8: eight samples a period, starting at phase 0.
    std::vector<Qsp64fc> z(16);
    Qsp64f ph = 0;
    ASSERT_EQ(qspsTriangle_64fc(z.data(), 16, 2.0, 0.125, 0.0, &ph), qspStsOk);
    const double re[8] = {2, 1, 0, -1, -2, -1, 0, 1}, im[8] = {0, 1, 2, 1, 0, -1, -2, -1};
    for (int n = 0; n < 16; ++n) {
        EXPECT_NEAR(z[n].re, re[n % 8], 1e-15) << n;
        EXPECT_NEAR(z[n].im, im[n % 8], 1e-15) << n;
    }
    EXPECT_NEAR(ph, 0.0, 1e-15);  // two whole periods
}

TEST(Triangle, AsymmetryMovesTheTrough)
{
    // asym = pi/2: the wave falls for a quarter period and rises for three.
    std::vector<Qsp64f> d(8);
    Qsp64f ph = 0;
    ASSERT_EQ(qspsTriangle_64f(d.data(), 8, 1.0, 0.125, 3.141592653589793 / 2, &ph), qspStsOk);
    EXPECT_NEAR(d[0], 1.0, 1e-15);
    EXPECT_NEAR(d[1], 0.0, 1e-15);
    EXPECT_NEAR(d[2], -1.0, 1e-15);
    for (int n = 3; n < 8; ++n) EXPECT_NEAR(d[n], -1.0 + (n - 2) / 3.0, 1e-15) << n;
    // asym = -pi: a falling sawtooth over the whole period.
    ASSERT_EQ(qspsTriangle_64f(d.data(), 8, 1.0, 0.125, -3.141592653589793, &(ph = 0)), qspStsOk);
    for (int n = 0; n < 8; ++n) EXPECT_NEAR(d[n], 1.0 - n / 4.0, 1e-15) << n;
}

// SPDX-License-Identifier: BSD-3-Clause
// IIRGen: the designed biquad cascades against the closed forms of their
// magnitude responses (Butterworth and Chebyshev I under the bilinear
// transform) at every order and across the cut-offs, -3 dB at the
// Butterworth cut-off, the Chebyshev ripple band, the poles (on the
// pre-warped circle for Butterworth, inside the unit circle for both), the
// sections' layout, a filter built from them, and every status with nothing
// written.
#include <cmath>
#include <complex>
#include <vector>

#include "qsp_test.h"

using qsptest::Guarded;

namespace {

using Ext = long double;
using Cx = std::complex<Ext>;
constexpr Ext kPi = 3.141592653589793238462643383279502884L;

using GenFn = QspStatus (*)(Qsp64f*, int, Qsp64f, Qsp64f, QspIIRFilterType, Qsp8u*);

int sectionsOf(int order) { return (order + 1) / 2; }

std::vector<double> design(GenFn fn, int order, double f, double ripple, QspIIRFilterType type)
{
    int size = 0;
    EXPECT_EQ(qspsIIRGenGetBufferSize(order, &size), qspStsOk);
    Guarded<Qsp8u> buf(size + 1);
    const int n = 6 * sectionsOf(order);
    Guarded<Qsp64f> taps(n);
    EXPECT_EQ(fn(taps.data(), order, f, ripple, type, buf.data() + 1), qspStsOk);
    EXPECT_TRUE(taps.guardsIntact() && buf.guardsIntact());
    return std::vector<double>(taps.data(), taps.data() + n);
}

// |H| at relative frequency f of the cascade, and the bound on its
// relative error that the rounding of the sections' coefficients to double
// allows: each numerator is g (1 +- z^-1)^k with g rounded once (the others
// exact multiples of it, as SectionLayout checks), each denominator 1 + a1
// z^-1 + a2 z^-2 with a1, a2 rounded once, so a section's relative error is
// at most 2^-53 (1 + (|a1| + |a2|) / |A(e^iw)|) and the cascade's the sum
// over its sections. The numerator is evaluated in its factored form,
// |1 + e^-iw| = 2 |cos(pi f)| and |1 - e^-iw| = 2 |sin(pi f)|, which keeps
// its relative accuracy next to its zeros.
struct Response {
    Ext mag;
    Ext relBound;
};

Response responseAt(const std::vector<double>& t, Ext f)
{
    const Cx z1 = std::polar(Ext(1), -2 * kPi * f), z2 = z1 * z1;
    Response r{1, 0};
    for (size_t s = 0; s < t.size(); s += 6) {
        const bool second = t[s + 2] != 0, highpass = (t[s + 1] < 0) != (t[s] < 0);
        const Ext root = highpass ? 2 * std::fabs(std::sin(kPi * f)) : 2 * std::fabs(std::cos(kPi * f));
        const Cx a = Ext(t[s + 3]) + Ext(t[s + 4]) * z1 + Ext(t[s + 5]) * z2;
        r.mag *= std::fabs(Ext(t[s])) * (second ? root * root : root) / std::abs(a);
        r.relBound += 0x1p-53L * (1 + (std::fabs(Ext(t[s + 4])) + std::fabs(Ext(t[s + 5]))) / std::abs(a));
    }
    return r;
}

Ext powerAt(const std::vector<double>& t, Ext f)
{
    const Ext m = responseAt(t, f).mag;
    return m * m;
}

Ext chebyshevT(int n, Ext x)
{
    if (std::fabs(x) <= 1) return std::cos(n * std::acos(x));
    return std::cosh(n * std::acosh(std::fabs(x))) * ((x < 0 && n % 2) ? -1 : 1);
}

// The closed form: with v = tan(pi f) / tan(pi fc) (lowpass) or its
// inverse (highpass), 1 / (1 + v^2N) for Butterworth and 1 / (1 + e^2
// T_N(v)^2) for Chebyshev I.
Ext closedForm(bool highpass, bool cheb, int order, Ext fc, Ext ripple, Ext f)
{
    Ext v = std::tan(kPi * f) / std::tan(kPi * fc);
    if (highpass) v = 1 / v;
    if (!cheb) return 1 / (1 + std::pow(v, 2 * order));
    const Ext e2 = std::pow(Ext(10), ripple / 10) - 1;
    const Ext t = chebyshevT(order, v);
    return 1 / (1 + e2 * t * t);
}

// The poles of the cascade: the roots of each section's denominator.
std::vector<Cx> poles(const std::vector<double>& t)
{
    std::vector<Cx> z;
    for (size_t s = 0; s < t.size(); s += 6) {
        const Ext a1 = t[s + 4], a2 = t[s + 5];
        if (a2 == 0) {
            z.push_back(-a1);
        } else {
            const Cx d = std::sqrt(Cx(a1 * a1 - 4 * a2));
            z.push_back((-a1 + d) / Ext(2));
            z.push_back((-a1 - d) / Ext(2));
        }
    }
    return z;
}

struct Case {
    int order;
    double f;
};

// |H| against the closed form over a frequency grid, within four times
// the bound that the coefficients' rounding allows (the rest covers the
// extended-precision design and the evaluation here).
void expectClosedForm(bool highpass, bool cheb, double ripple, const Case& c)
{
    const std::vector<double> t =
        design(highpass ? qspsIIRGenHighpass_64f : qspsIIRGenLowpass_64f, c.order, c.f, ripple,
               cheb ? qspIIRChebyshev1 : qspIIRButterworth);
    for (int i = 1; i < 500; ++i) {
        const Ext f = Ext(i) / 1000;
        const Response r = responseAt(t, f);
        const Ext want = std::sqrt(closedForm(highpass, cheb, c.order, c.f, ripple, f));
        const Ext got = r.mag;
        ASSERT_LE(std::fabs(got - want), want * (4 * r.relBound + 1e-17L))
            << (highpass ? "highpass" : "lowpass") << (cheb ? " chebyshev" : " butterworth") << " order " << c.order
            << " f " << c.f << " at " << double(f) << " want " << double(want);
    }
}

}  // namespace

TEST(IIRGen, ButterworthMatchesClosedForm)
{
    for (bool hp : {false, true})
        for (int order = 1; order <= 18; ++order)
            for (double f : {0.005, 0.02, 0.1, 0.25, 0.4, 0.48, 0.495}) expectClosedForm(hp, false, 0.0, {order, f});
}

TEST(IIRGen, ChebyshevMatchesClosedForm)
{
    for (bool hp : {false, true})
        for (double ripple : {0.1, 0.5, 1.0, 3.0})
            for (Case c : {Case{1, 0.1}, {2, 0.25}, {3, 0.15}, {4, 0.3}, {5, 0.4}, {8, 0.2}, {12, 0.25}, {12, 0.01},
                           {18, 0.3}, {18, 0.49}})
                expectClosedForm(hp, true, ripple, c);
}

// Low cut-offs at high orders crowd every pole near z = 1, where a
// multiplied-out polynomial would keep no digit: the sections' response is
// still within a few units of rounding of the closed form, in the pass band
// and the stop band alike.
TEST(IIRGen, ExtremeCutOffsStayAccurate)
{
    for (bool hp : {false, true})
        for (double f : {0.001, 0.499}) {
            const auto t = design(hp ? qspsIIRGenHighpass_64f : qspsIIRGenLowpass_64f, 18, f, 0.0, qspIIRButterworth);
            for (Ext x : {Ext(f) / 2, Ext(f), 0.5L * (Ext(f) + 0.25L)}) {
                Ext v = std::tan(kPi * x) / std::tan(kPi * f);
                if (hp) v = 1 / v;
                const Ext want = 1 / (1 + std::pow(v, 36));
                const Response r = responseAt(t, x);
                EXPECT_NEAR(double(r.mag * r.mag / want), 1.0, double(8 * r.relBound)) << hp << " " << f << " " << double(x);
            }
        }
}

TEST(IIRGen, ButterworthHalfPowerAtCutOff)
{
    for (bool hp : {false, true})
        for (int order : {1, 2, 7, 12, 18})
            for (double f : {0.01, 0.1, 0.37, 0.49}) {
                const auto t = design(hp ? qspsIIRGenHighpass_64f : qspsIIRGenLowpass_64f, order, f, 0.0,
                                      qspIIRButterworth);
                // Within twice (power) four times the coefficients' bound.
                const Response edge = responseAt(t, f), centre = responseAt(t, hp ? 0.5L : 0.0L);
                EXPECT_NEAR(double(powerAt(t, f)), 0.5, double(4 * edge.relBound)) << order << " " << f;
                // Unit gain at the centre of the pass band.
                EXPECT_NEAR(double(powerAt(t, hp ? 0.5L : 0.0L)), 1.0, double(8 * centre.relBound));
            }
}

TEST(IIRGen, ChebyshevRippleBand)
{
    for (bool hp : {false, true})
        for (int order : {3, 4, 9})
            for (double ripple : {0.25, 1.0, 2.0}) {
                const double fc = 0.2;
                const auto t = design(hp ? qspsIIRGenHighpass_64f : qspsIIRGenLowpass_64f, order, fc, ripple,
                                      qspIIRChebyshev1);
                const Ext floorGain = std::pow(Ext(10), -ripple / 10);
                Ext lo = 2, hi = 0;
                for (int i = 0; i <= 2000; ++i) {
                    const Ext f = hp ? fc + (0.5 - fc) * i / 2000 : fc * i / 2000;
                    const Ext p = powerAt(t, f);
                    lo = std::min(lo, p), hi = std::max(hi, p);
                }
                // The pass band swings between 10^(-r/10) and 1 and reaches both.
                EXPECT_NEAR(double(hi), 1.0, 1e-6);
                EXPECT_NEAR(double(lo), double(floorGain), 1e-6);
                EXPECT_LE(double(hi), 1.0 + 1e-13);
                EXPECT_GE(double(lo), double(floorGain) - 1e-13);
                // At the edge the response leaves the band.
                EXPECT_NEAR(double(powerAt(t, fc)), double(floorGain), 1e-13);
            }
}

TEST(IIRGen, PolesOnThePrewarpedCircle)
{
    for (bool hp : {false, true})
        for (int order : {2, 5, 8})
            for (double f : {0.1, 0.3}) {
                const auto t = design(hp ? qspsIIRGenHighpass_64f : qspsIIRGenLowpass_64f, order, f, 0.0,
                                      qspIIRButterworth);
                const Ext w = std::tan(kPi * f);
                const std::vector<Cx> z0 = poles(t);
                ASSERT_EQ(int(z0.size()), order);
                for (const Cx& z : z0) {
                    EXPECT_LT(std::abs(z), 1.0L);
                    // Back to the analog plane: s = (z - 1) / (z + 1), |s| = W.
                    const Cx s = (z - Ext(1)) / (z + Ext(1));
                    EXPECT_NEAR(double(std::abs(s)), double(w), 1e-9 * double(w)) << order << " " << f;
                    EXPECT_LT(double(s.real()), 0.0);
                }
            }
}

TEST(IIRGen, ChebyshevPolesInsideTheUnitCircle)
{
    for (bool hp : {false, true})
        for (int order : {3, 6, 11}) {
            const auto t = design(hp ? qspsIIRGenHighpass_64f : qspsIIRGenLowpass_64f, order, 0.15, 0.5,
                                  qspIIRChebyshev1);
            for (const Cx& z : poles(t)) EXPECT_LT(std::abs(z), 1.0L);
        }
}

// Sections of b0 b1 b2 a0 a1 a2: a0 = 1, numerators g (1 + z^-1)^2 or
// g (1 - z^-1)^2, the first-order section of an odd order last in neither
// place but first, with b2 = a2 = 0.
TEST(IIRGen, SectionLayout)
{
    for (bool hp : {false, true})
        for (int order : {1, 4, 7}) {
            const auto t = design(hp ? qspsIIRGenHighpass_64f : qspsIIRGenLowpass_64f, order, 0.2, 0.0, qspIIRButterworth);
            const double s = hp ? -1 : 1;
            for (int k = 0; k < sectionsOf(order); ++k) {
                const double* q = &t[6 * k];
                const bool first = order % 2 && k == 0;
                EXPECT_EQ(q[3], 1.0);
                EXPECT_NE(q[0], 0.0);
                EXPECT_EQ(q[1], s * (first ? 1 : 2) * q[0]);
                EXPECT_EQ(q[2], first ? 0.0 : q[0]);
                if (first) EXPECT_EQ(q[5], 0.0);
            }
        }
}

TEST(IIRGen, Statuses)
{
    int size = 5;
    EXPECT_EQ(qspsIIRGenGetBufferSize(4, nullptr), qspStsNullPtr);
    EXPECT_EQ(qspsIIRGenGetBufferSize(0, nullptr), qspStsNullPtr);
    for (int bad : {0, -1, 19, 100}) EXPECT_EQ(qspsIIRGenGetBufferSize(bad, &size), qspStsBadFilterOrder);
    EXPECT_EQ(size, 5);

    std::vector<Qsp8u> buf(4096);
    const double nan = std::nan("");
    for (GenFn fn : {qspsIIRGenLowpass_64f, qspsIIRGenHighpass_64f}) {
        Guarded<Qsp64f> taps(60);
        Guarded<Qsp8u> b(1024);
        EXPECT_EQ(fn(nullptr, 4, 0.1, 1.0, qspIIRButterworth, b.data()), qspStsNullPtr);
        EXPECT_EQ(fn(taps.data(), 4, 0.1, 1.0, qspIIRButterworth, nullptr), qspStsNullPtr);
        EXPECT_EQ(fn(taps.data(), 0, 0.7, 1.0, 5, nullptr), qspStsNullPtr);
        for (int bad : {0, -2, 19})
            EXPECT_EQ(fn(taps.data(), bad, 0.7, -1.0, 5, b.data()), qspStsBadFilterOrder) << bad;
        for (double bad : {0.0, -0.0, 0.5, -0.1, 0.75, nan, double(INFINITY)})
            EXPECT_EQ(fn(taps.data(), 4, bad, -1.0, 5, b.data()), qspStsBadRelFreq) << bad;
        for (int bad : {2, -1, 100}) EXPECT_EQ(fn(taps.data(), 4, 0.1, 1.0, bad, b.data()), qspStsBadArgument);
        for (double bad : {0.0, -1.0, nan, double(INFINITY), 100.5})
            EXPECT_EQ(fn(taps.data(), 4, 0.1, bad, qspIIRChebyshev1, b.data()), qspStsBadArgument) << bad;
        EXPECT_TRUE(taps.untouched() && b.untouched());
        // The ripple is not looked at for Butterworth.
        EXPECT_EQ(fn(taps.data(), 4, 0.1, nan, qspIIRButterworth, buf.data()), qspStsOk);
    }
}

// SPDX-License-Identifier: BSD-3-Clause
// FIRGen: the taps against the windowed ideal responses computed in long
// double, exact symmetry, the pass-band gains that the normalisation sets
// (DC, half the sampling rate, the band's centre), stop-band levels of the
// windows, and every status with nothing written.
#include <cmath>
#include <cstring>
#include <vector>

#include "qsp_test.h"

using qsptest::Guarded;

namespace {

using Ext = long double;
constexpr Ext kPi = 3.141592653589793238462643383279502884L;

enum Band { kLow, kHigh, kPass, kStop };

Ext windowAt(QspWinType w, int n, int N)
{
    const Ext x = 2 * kPi * n / (N - 1);
    switch (w) {
    case qspWinBartlett: return 1 - std::fabs(Ext(2 * n) / (N - 1) - 1);
    case qspWinBlackman: return 0.42L - 0.5L * std::cos(x) + 0.08L * std::cos(2 * x);
    case qspWinHamming: return 0.54L - 0.46L * std::cos(x);
    case qspWinHann: return 0.5L - 0.5L * std::cos(x);
    default: return 1;
    }
}

Ext lowpassAt(Ext fc, Ext k) { return k == 0 ? 2 * fc : std::sin(2 * kPi * fc * k) / (kPi * k); }

std::vector<Ext> reference(Band band, int N, Ext lo, Ext hi, QspWinType w, bool normal)
{
    std::vector<Ext> h(N);
    const Ext M = Ext(N - 1) / 2;
    for (int n = 0; n < N; ++n) {
        const Ext k = n - M, d = k == 0 ? 1 : 0;
        Ext v = 0;
        switch (band) {
        case kLow: v = lowpassAt(lo, k); break;
        case kHigh: v = d - lowpassAt(lo, k); break;
        case kPass: v = lowpassAt(hi, k) - lowpassAt(lo, k); break;
        case kStop: v = d - lowpassAt(hi, k) + lowpassAt(lo, k); break;
        }
        h[n] = v * windowAt(w, n, N);
    }
    if (normal) {
        const Ext f = band == kHigh ? 0.5L : band == kPass ? (lo + hi) / 2 : 0;
        Ext a = 0;
        for (int n = 0; n < N; ++n) a += h[n] * std::cos(2 * kPi * f * (n - M));
        for (Ext& v : h) v /= a;
    }
    return h;
}

// |H(f)| of real taps.
Ext magnitude(const std::vector<Ext>& h, Ext f)
{
    Ext re = 0, im = 0;
    for (size_t n = 0; n < h.size(); ++n) {
        re += h[n] * std::cos(2 * kPi * f * n);
        im -= h[n] * std::sin(2 * kPi * f * n);
    }
    return std::sqrt(re * re + im * im);
}

template <class T>
std::vector<T> generate(Band band, int N, double lo, double hi, QspWinType w, int normal)
{
    int size = 0;
    EXPECT_EQ(qspsFIRGenGetBufferSize(N, &size), qspStsOk);
    Guarded<Qsp8u> buf(size + 3);
    Guarded<T> taps(N);
    QspStatus s = qspStsNullPtr;
    Qsp8u* b = buf.data() + 3;
    if constexpr (std::is_same_v<T, Qsp32f>) {
        switch (band) {
        case kLow: s = qspsFIRGenLowpass_32f(taps.data(), N, T(lo), w, normal, b); break;
        case kHigh: s = qspsFIRGenHighpass_32f(taps.data(), N, T(lo), w, normal, b); break;
        case kPass: s = qspsFIRGenBandpass_32f(taps.data(), N, T(lo), T(hi), w, normal, b); break;
        case kStop: s = qspsFIRGenBandstop_32f(taps.data(), N, T(lo), T(hi), w, normal, b); break;
        }
    } else {
        switch (band) {
        case kLow: s = qspsFIRGenLowpass_64f(taps.data(), N, lo, w, normal, b); break;
        case kHigh: s = qspsFIRGenHighpass_64f(taps.data(), N, lo, w, normal, b); break;
        case kPass: s = qspsFIRGenBandpass_64f(taps.data(), N, lo, hi, w, normal, b); break;
        case kStop: s = qspsFIRGenBandstop_64f(taps.data(), N, lo, hi, w, normal, b); break;
        }
    }
    EXPECT_EQ(s, qspStsOk);
    EXPECT_TRUE(taps.guardsIntact() && buf.guardsIntact());
    return std::vector<T>(taps.data(), taps.data() + N);
}

template <class T>
void expectDesigns()
{
    // The single-precision forms take their frequencies as floats: the
    // reference uses the same rounded values.
    const Ext tol = std::is_same_v<T, Qsp32f> ? 3e-7L : 1e-14L;
    for (Band band : {kLow, kHigh, kPass, kStop})
        for (QspWinType w : {qspWinBartlett, qspWinBlackman, qspWinHamming, qspWinHann, qspWinRect})
            for (int N : {3, 4, 5, 31, 64, 101, 255})
                for (int normal : {0, 1}) {
                    if ((band == kHigh || band == kStop) && N % 2 == 0) continue;
                    const double lo = double(T(0.13)), hi = double(T(0.31));
                    const std::vector<T> got = generate<T>(band, N, lo, hi, w, normal);
                    const std::vector<Ext> want = reference(band, N, lo, hi, w, normal);
                    Ext peak = 0;
                    for (Ext v : want) peak = std::max(peak, std::fabs(v));
                    for (int n = 0; n < N; ++n) {
                        ASSERT_LE(std::fabs(Ext(got[n]) - want[n]), tol * peak)
                            << "band " << band << " window " << w << " N " << N << " normal " << normal << " n " << n;
                        // Linear phase: symmetric, bit for bit.
                        ASSERT_TRUE(qsptest::sameBits(got[n], got[N - 1 - n]));
                    }
                }
}

}  // namespace

TEST(FIRGen, Designs32f) { expectDesigns<Qsp32f>(); }
TEST(FIRGen, Designs64f) { expectDesigns<Qsp64f>(); }

TEST(FIRGen, NormalisedPassBandGains)
{
    const int N = 63;
    auto gain = [](const std::vector<Qsp64f>& h, Ext f) {
        std::vector<Ext> e(h.begin(), h.end());
        return magnitude(e, f);
    };
    for (QspWinType w : {qspWinBartlett, qspWinBlackman, qspWinHamming, qspWinHann, qspWinRect}) {
        EXPECT_NEAR(double(gain(generate<Qsp64f>(kLow, N, 0.2, 0, w, 1), 0)), 1.0, 1e-13);
        EXPECT_NEAR(double(gain(generate<Qsp64f>(kHigh, N, 0.2, 0, w, 1), 0.5L)), 1.0, 1e-13);
        EXPECT_NEAR(double(gain(generate<Qsp64f>(kPass, N, 0.1, 0.3, w, 1), 0.2L)), 1.0, 1e-13);
        EXPECT_NEAR(double(gain(generate<Qsp64f>(kStop, N, 0.1, 0.3, w, 1), 0)), 1.0, 1e-13);
        // A highpass blocks DC and a lowpass half the sampling rate exactly
        // as far as the window lets them.
        EXPECT_LT(double(gain(generate<Qsp64f>(kHigh, N, 0.2, 0, w, 1), 0)), 0.1);
    }
}

// Stop-band levels of the classic windows, well inside the band: Hamming
// about -53 dB, Blackman about -74 dB, Hann about -44 dB.
TEST(FIRGen, StopBandAttenuation)
{
    const int N = 101;
    const struct {
        QspWinType w;
        double transition, dB;
    } cases[] = {{qspWinHamming, 3.3 / N, -50}, {qspWinBlackman, 5.5 / N, -70}, {qspWinHann, 3.1 / N, -43}};
    for (const auto& c : cases) {
        const auto h32 = generate<Qsp64f>(kLow, N, 0.15, 0, c.w, 1);
        std::vector<Ext> h(h32.begin(), h32.end());
        Ext worst = 0;
        for (Ext f = 0.15L + c.transition; f <= 0.5L; f += 0.0005L) worst = std::max(worst, magnitude(h, f));
        EXPECT_LT(20 * std::log10(double(worst)), c.dB) << c.w;
        // The pass band stays within the window's ripple.
        for (Ext f = 0; f <= 0.15L - c.transition; f += 0.0005L) EXPECT_NEAR(double(magnitude(h, f)), 1.0, 0.01);
    }
}

TEST(FIRGen, Statuses)
{
    int size = 9;
    EXPECT_EQ(qspsFIRGenGetBufferSize(5, nullptr), qspStsNullPtr);
    EXPECT_EQ(qspsFIRGenGetBufferSize(0, nullptr), qspStsNullPtr);
    EXPECT_EQ(qspsFIRGenGetBufferSize(0, &size), qspStsBadTapCount);
    EXPECT_EQ(qspsFIRGenGetBufferSize(-4, &size), qspStsBadTapCount);
    EXPECT_EQ(qspsFIRGenGetBufferSize(0x7FFFFFFF, &size), qspStsOverflow);
    EXPECT_EQ(size, 9);

    Guarded<Qsp32f> t32(16);
    Guarded<Qsp64f> t64(16);
    Guarded<Qsp8u> b(256);
    const float nanf = std::nanf("");
    Qsp8u* buf = b.data();
    EXPECT_EQ(qspsFIRGenLowpass_32f(nullptr, 9, 0.1f, qspWinHann, 1, buf), qspStsNullPtr);
    EXPECT_EQ(qspsFIRGenLowpass_64f(t64.data(), 9, 0.1, qspWinHann, 1, nullptr), qspStsNullPtr);
    EXPECT_EQ(qspsFIRGenBandpass_32f(nullptr, 0, 0.3f, 0.1f, 9, 1, nullptr), qspStsNullPtr);
    // Lengths before frequencies, frequencies before the window.
    EXPECT_EQ(qspsFIRGenLowpass_32f(t32.data(), 0, 0.7f, 9, 1, buf), qspStsBadTapCount);
    EXPECT_EQ(qspsFIRGenLowpass_64f(t64.data(), -1, 0.7, 9, 1, buf), qspStsBadTapCount);
    EXPECT_EQ(qspsFIRGenLowpass_64f(t64.data(), 2, 0.7, 9, 1, buf), qspStsBadSize);
    EXPECT_EQ(qspsFIRGenHighpass_32f(t32.data(), 8, 0.7f, 9, 1, buf), qspStsBadSize);
    EXPECT_EQ(qspsFIRGenBandstop_64f(t64.data(), 10, 0.1, 0.2, qspWinHann, 1, buf), qspStsBadSize);
    for (float bad : {0.0f, 0.5f, -0.1f, 0.9f, nanf}) {
        EXPECT_EQ(qspsFIRGenLowpass_32f(t32.data(), 9, bad, 9, 1, buf), qspStsBadRelFreq);
        EXPECT_EQ(qspsFIRGenHighpass_64f(t64.data(), 9, bad, 9, 1, buf), qspStsBadRelFreq);
        EXPECT_EQ(qspsFIRGenBandpass_32f(t32.data(), 9, bad, 0.3f, 9, 1, buf), qspStsBadRelFreq);
        EXPECT_EQ(qspsFIRGenBandstop_64f(t64.data(), 9, 0.1, bad, 9, 1, buf), qspStsBadRelFreq);
    }
    // The low edge must lie below the high edge.
    EXPECT_EQ(qspsFIRGenBandpass_64f(t64.data(), 9, 0.3, 0.1, qspWinHann, 1, buf), qspStsBadRelFreq);
    EXPECT_EQ(qspsFIRGenBandstop_32f(t32.data(), 9, 0.2f, 0.2f, qspWinHann, 1, buf), qspStsBadRelFreq);
    for (int bad : {-1, 5, 100}) {
        EXPECT_EQ(qspsFIRGenLowpass_32f(t32.data(), 9, 0.1f, bad, 1, buf), qspStsBadArgument);
        EXPECT_EQ(qspsFIRGenBandstop_64f(t64.data(), 9, 0.1, 0.2, bad, 0, buf), qspStsBadArgument);
    }
    EXPECT_TRUE(t32.untouched() && t64.untouched() && b.untouched());
}

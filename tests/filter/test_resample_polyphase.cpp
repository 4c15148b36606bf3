// SPDX-License-Identifier: BSD-3-Clause
// ResamplePolyphase: outputs against the long double kernel through the
// same interpolation between table rows, rates up and down, 16-bit and
// single precision; pieces with the samples moved between calls equal one
// call bit for bit; odd record addresses; foreign records; every status
// with nothing written; and the quality of the design measured: SNR of a
// sine, pass-band ripple and stop-band attenuation.
#include <cmath>
#include <cstdio>
#include <vector>

#include "qsp_test.h"
#include "resample_reference.h"

using qsptest::Guarded;
using resampleref::Ext;

namespace {

struct Design {
    float window;
    int nStep;
    float rollf, alpha;
};

// The record's numbers as the manual states them.
struct Numbers {
    long k, half;
    Ext width;
};
Numbers numbersOf(const Design& d)
{
    long k = long(std::ceil(double(d.window) * d.nStep / 2.0));
    if (k < 1) k = 1;
    return {k, k / d.nStep, Ext(k) / d.nStep};
}

template <class T>
struct Api;
template <>
struct Api<Qsp32f> {
    using Spec = QspsResamplingPolyphase_32f;
    static constexpr auto getSize = qspsResamplePolyphaseGetSize_32f;
    static constexpr auto init = qspsResamplePolyphaseInit_32f;
    static constexpr auto fn = qspsResamplePolyphase_32f;
};
template <>
struct Api<Qsp16s> {
    using Spec = QspsResamplingPolyphase_16s;
    static constexpr auto getSize = qspsResamplePolyphaseGetSize_16s;
    static constexpr auto init = qspsResamplePolyphaseInit_16s;
    static constexpr auto fn = qspsResamplePolyphase_16s;
};

template <class T>
struct Resampler {
    std::vector<unsigned char> mem;
    typename Api<T>::Spec* spec;
    explicit Resampler(const Design& d, size_t offset = 0)
    {
        int size = 0;
        EXPECT_EQ(Api<T>::getSize(d.window, d.nStep, &size, qspAlgHintNone), qspStsOk);
        mem.assign(size_t(size) + offset, 0);
        spec = reinterpret_cast<typename Api<T>::Spec*>(mem.data() + offset);
        EXPECT_EQ(Api<T>::init(d.window, d.nStep, d.rollf, d.alpha, spec, qspAlgHintNone), qspStsOk);
    }
};

// The reference of one output at time t (exact on the grid): the kernel's
// linear interpolation between table points, in long double; `mag` gets
// the sum of |tap x| for the tolerance.
template <class T>
Ext reference(const Design& d, const std::vector<T>& x, Ext t, double factor, Ext& mag)
{
    const Numbers z = numbersOf(d);
    const Ext fc = Ext(d.rollf) / 2, beta = d.alpha;
    const long n = long(std::floor(t));
    const Ext f = t - n;
    const Ext s = factor < 1 ? Ext(factor) : 1;
    const long h = factor < 1 ? long(Ext(z.k + 1) / d.nStep / s) : z.half;
    auto node = [&](long j) { return resampleref::kernel(Ext(j - z.k) / d.nStep, fc, z.width, beta); };
    Ext y = 0;
    mag = 0;
    for (long m = -h; m <= h + 1; ++m) {
        const Ext p = (f - m) * s * d.nStep + z.k;
        if (p <= -1 || p >= 2 * Ext(z.k) + 1) continue;
        const long j = long(std::floor(p));
        const Ext mu = p - j;
        const Ext g = s * ((1 - mu) * node(j) + mu * node(j + 1));
        y += g * Ext(x[size_t(n + m)]);
        mag += std::fabs(g * Ext(x[size_t(n + m)]));
    }
    return y;
}

constexpr double kGrid = 4294967296.0;

// Every output of one call against the reference.
template <class T>
void checkAgainstReference(const Design& d, double factor, float norm, const char* what)
{
    const Numbers z = numbersOf(d);
    const long h = factor < 1 ? long(Ext(z.k + 1) / d.nStep / factor) : z.half;
    const int len = int(6 * h + 300);
    std::vector<T> x(static_cast<size_t>(len));
    for (auto& v : x) {
        if constexpr (std::is_same_v<T, Qsp16s>) v = T(int(qsptest::rng()() % 20001) - 10000);
        else v = T(double(qsptest::rng()() % 2000001) / 1.0e6 - 1.0);
    }
    Resampler<T> r(d);
    const double t0 = double(h) + 0.37;
    Guarded<T> y(size_t(double(len) * factor) + 4);
    double t = t0;
    int outLen = -1;
    ASSERT_EQ(Api<T>::fn(x.data(), y.data(), len, factor, norm, &t, &outLen, r.spec), qspStsOk);
    ASSERT_TRUE(y.guardsIntact());
    // Times on the grid of 2^-32 samples.
    const Ext step = Ext(std::llround(kGrid / factor)) / kGrid;
    const Ext start = Ext(std::llround(t0 * kGrid)) / kGrid;
    int expected = 0;
    while (long(std::floor(start + expected * step)) + h + 1 <= len - 1) ++expected;
    ASSERT_EQ(outLen, expected) << what;
    EXPECT_EQ(Ext(t), start + expected * step) << what;
    // The taps to the window's accuracy and two roundings (table, then the
    // interpolation), the sum to one rounding per term.
    const double perTerm = resampleref::kWindowRel + 2.0 * 5.97e-8 * double(2 * h + 4);
    for (int j = 0; j < outLen; ++j) {
        Ext mag = 0;
        const Ext want = Ext(norm) * reference(d, x, start + j * step, factor, mag);
        const double tol = perTerm * double(mag) * std::fabs(norm) + 1e-30;
        if constexpr (std::is_same_v<T, Qsp16s>) {
            const Ext clamped = std::fmax(Ext(-32768), std::fmin(Ext(32767), want));
            EXPECT_LE(std::fabs(double(Ext(y[size_t(j)]) - clamped)), 0.5 + tol) << what << " factor " << factor << " output " << j;
        } else {
            EXPECT_LE(std::fabs(double(Ext(y[size_t(j)]) - want)), tol) << what << " factor " << factor << " output " << j;
        }
    }
}

const Design kSmall{12.0f, 16, 0.9f, 8.0f};
const Design kOdd{7.3f, 5, 0.75f, 5.0f};

TEST(ResamplePolyphase, AgainstReference32f)
{
    for (const Design& d : {kSmall, kOdd})
        for (double factor : {1.0, 1.0884353741496599, 2.5, 3.0, 0.7, 0.31}) {
            checkAgainstReference<Qsp32f>(d, factor, 1.0f, "32f");
            checkAgainstReference<Qsp32f>(d, factor, -0.75f, "32f norm");
        }
}

TEST(ResamplePolyphase, AgainstReference16s)
{
    for (const Design& d : {kSmall, kOdd})
        for (double factor : {1.0, 1.0884353741496599, 2.5, 0.7, 0.31}) {
            checkAgainstReference<Qsp16s>(d, factor, 1.0f, "16s");
            checkAgainstReference<Qsp16s>(d, factor, 3.5f, "16s saturating");
        }
}

// Pieces: after each call the caller moves its samples so that the next
// call starts h samples before the integer time returned.
template <class T>
void checkPieces(double factor)
{
    const Design d = kSmall;
    const Numbers z = numbersOf(d);
    const long h = factor < 1 ? long(Ext(z.k + 1) / d.nStep / factor) : z.half;
    const int len = 2000;
    std::vector<T> x(static_cast<size_t>(len));
    for (auto& v : x) v = T(int(qsptest::rng()() % 20001) - 10000) / T(std::is_same_v<T, Qsp16s> ? 1 : 10000);
    Resampler<T> r(d);
    std::vector<T> whole(size_t(len * factor) + 8), pieces(whole.size());
    double t = double(h) + 0.25;
    int wholeLen = 0;
    ASSERT_EQ(Api<T>::fn(x.data(), whole.data(), len, factor, 0.5f, &t, &wholeLen, r.spec), qspStsOk);
    double tp = double(h) + 0.25;
    long offset = 0, got = 0;
    for (int end : {100, 101, 433, 900, 1500, 1501, len}) {
        int n = 0;
        ASSERT_EQ(Api<T>::fn(x.data() + offset, pieces.data() + got, int(end - offset), factor, 0.5f, &tp, &n, r.spec),
                  qspStsOk);
        got += n;
        const long shift = long(std::floor(tp)) - h;
        if (shift > 0 && offset + shift < end) offset += shift, tp -= double(shift);
    }
    ASSERT_EQ(got, wholeLen);
    for (long j = 0; j < got; ++j) ASSERT_TRUE(qsptest::sameBits(whole[size_t(j)], pieces[size_t(j)])) << j;
    EXPECT_EQ(t, tp + double(offset));
}

TEST(ResamplePolyphase, PiecesEqualOneCall)
{
    for (double factor : {1.0884353741496599, 1.0, 2.0, 0.45}) {
        checkPieces<Qsp32f>(factor);
        checkPieces<Qsp16s>(factor);
    }
}

TEST(ResamplePolyphase, OddRecordAddresses)
{
    std::vector<Qsp32f> x(400);
    for (size_t i = 0; i < x.size(); ++i) x[i] = Qsp32f(std::sin(0.1 * double(i)));
    Resampler<Qsp32f> a(kOdd, 0);
    std::vector<Qsp32f> ya(600), yb(600);
    double ta = 10.0;
    int na = 0;
    ASSERT_EQ(qspsResamplePolyphase_32f(x.data(), ya.data(), 400, 1.3, 1.0f, &ta, &na, a.spec), qspStsOk);
    for (size_t off : {1, 3, 7, 13, 33}) {
        Resampler<Qsp32f> b(kOdd, off);
        double tb = 10.0;
        int nb = 0;
        ASSERT_EQ(qspsResamplePolyphase_32f(x.data(), yb.data(), 400, 1.3, 1.0f, &tb, &nb, b.spec), qspStsOk);
        ASSERT_EQ(na, nb);
        for (int j = 0; j < na; ++j) ASSERT_TRUE(qsptest::sameBits(ya[size_t(j)], yb[size_t(j)]));
    }
}

TEST(ResamplePolyphase, ForeignRecordsRefused)
{
    Resampler<Qsp32f> r32(kSmall);
    Resampler<Qsp16s> r16(kSmall);
    std::vector<unsigned char> zeros(r32.mem.size() + 64, 0);
    std::vector<Qsp32f> x(100, 0.0f);
    std::vector<Qsp16s> x16(100, 0);
    Guarded<Qsp32f> y(200);
    Guarded<Qsp16s> y16(200);
    double t = 20.0;
    int n = -5;
    EXPECT_EQ(qspsResamplePolyphase_32f(x.data(), y.data(), 100, 1.0, 1.0f, &t, &n,
                                        reinterpret_cast<const QspsResamplingPolyphase_32f*>(r16.spec)),
              qspStsBadRecord);
    EXPECT_EQ(qspsResamplePolyphase_16s(x16.data(), y16.data(), 100, 1.0, 1.0f, &t, &n,
                                        reinterpret_cast<const QspsResamplingPolyphase_16s*>(r32.spec)),
              qspStsBadRecord);
    EXPECT_EQ(qspsResamplePolyphase_32f(x.data(), y.data(), 100, 1.0, 1.0f, &t, &n,
                                        reinterpret_cast<const QspsResamplingPolyphase_32f*>(zeros.data())),
              qspStsBadRecord);
    EXPECT_TRUE(y.untouched());
    EXPECT_TRUE(y16.untouched());
    EXPECT_EQ(t, 20.0);
    EXPECT_EQ(n, -5);
}

TEST(ResamplePolyphase, SizeStatuses)
{
    int size = -1;
    EXPECT_EQ(qspsResamplePolyphaseGetSize_32f(12.0f, 16, nullptr, qspAlgHintNone), qspStsNullPtr);
    EXPECT_EQ(qspsResamplePolyphaseGetSize_16s(0.0f, 0, nullptr, 7), qspStsNullPtr);  // pointers first
    EXPECT_EQ(qspsResamplePolyphaseGetSize_32f(0.0f, 16, &size, qspAlgHintNone), qspStsBadSize);
    EXPECT_EQ(qspsResamplePolyphaseGetSize_32f(-1.0f, 16, &size, qspAlgHintNone), qspStsBadSize);
    EXPECT_EQ(qspsResamplePolyphaseGetSize_32f(NAN, 16, &size, qspAlgHintNone), qspStsBadSize);
    EXPECT_EQ(qspsResamplePolyphaseGetSize_32f(INFINITY, 16, &size, qspAlgHintNone), qspStsBadSize);
    EXPECT_EQ(qspsResamplePolyphaseGetSize_16s(12.0f, 0, &size, qspAlgHintNone), qspStsBadSize);
    EXPECT_EQ(qspsResamplePolyphaseGetSize_16s(12.0f, -3, &size, 9), qspStsBadSize);  // sizes before the hint
    EXPECT_EQ(qspsResamplePolyphaseGetSize_32f(12.0f, 16, &size, 3), qspStsBadArgument);
    EXPECT_EQ(qspsResamplePolyphaseGetSize_32f(12.0f, 16, &size, -1), qspStsBadArgument);
    EXPECT_EQ(qspsResamplePolyphaseGetSize_32f(1.0e8f, 1 << 20, &size, qspAlgHintNone), qspStsOverflow);
    EXPECT_EQ(size, -1);
    for (int hint : {qspAlgHintNone, qspAlgHintFast, qspAlgHintAccurate}) {
        EXPECT_EQ(qspsResamplePolyphaseGetSize_32f(12.0f, 16, &size, hint), qspStsOk);
        EXPECT_GT(size, 0);
    }
}

TEST(ResamplePolyphase, InitStatusesWriteNothing)
{
    int size = 0;
    ASSERT_EQ(qspsResamplePolyphaseGetSize_32f(12.0f, 16, &size, qspAlgHintNone), qspStsOk);
    Guarded<unsigned char> mem(static_cast<size_t>(size));
    auto* s32 = reinterpret_cast<QspsResamplingPolyphase_32f*>(mem.data());
    auto* s16 = reinterpret_cast<QspsResamplingPolyphase_16s*>(mem.data());
    EXPECT_EQ(qspsResamplePolyphaseInit_32f(12.0f, 16, 0.9f, 8.0f, nullptr, qspAlgHintNone), qspStsNullPtr);
    EXPECT_EQ(qspsResamplePolyphaseInit_16s(0.0f, 0, 2.0f, -1.0f, nullptr, 5), qspStsNullPtr);
    EXPECT_EQ(qspsResamplePolyphaseInit_32f(0.0f, 16, 0.9f, 8.0f, s32, qspAlgHintNone), qspStsBadSize);
    EXPECT_EQ(qspsResamplePolyphaseInit_32f(12.0f, 0, 2.0f, 8.0f, s32, qspAlgHintNone), qspStsBadSize);
    EXPECT_EQ(qspsResamplePolyphaseInit_32f(12.0f, 16, 0.0f, -1.0f, s32, qspAlgHintNone), qspStsBadRelFreq);
    EXPECT_EQ(qspsResamplePolyphaseInit_16s(12.0f, 16, 1.01f, 8.0f, s16, qspAlgHintNone), qspStsBadRelFreq);
    EXPECT_EQ(qspsResamplePolyphaseInit_16s(12.0f, 16, NAN, 8.0f, s16, qspAlgHintNone), qspStsBadRelFreq);
    EXPECT_EQ(qspsResamplePolyphaseInit_32f(12.0f, 16, 0.9f, -0.5f, s32, 7), qspStsBadWindowParam);
    EXPECT_EQ(qspsResamplePolyphaseInit_32f(12.0f, 16, 0.9f, 308.5f, s32, qspAlgHintNone), qspStsBadWindowParam);
    EXPECT_EQ(qspsResamplePolyphaseInit_16s(12.0f, 16, 0.9f, NAN, s16, qspAlgHintNone), qspStsBadWindowParam);
    EXPECT_EQ(qspsResamplePolyphaseInit_32f(12.0f, 16, 0.9f, 8.0f, s32, 3), qspStsBadArgument);
    EXPECT_EQ(qspsResamplePolyphaseInit_32f(1.0e8f, 1 << 20, 0.9f, 8.0f, s32, qspAlgHintNone), qspStsOverflow);
    EXPECT_TRUE(mem.untouched());
    // The limits themselves are accepted.
    EXPECT_EQ(qspsResamplePolyphaseInit_32f(12.0f, 16, 1.0f, 0.0f, s32, qspAlgHintNone), qspStsOk);
    EXPECT_EQ(qspsResamplePolyphaseInit_32f(12.0f, 16, 1.0f, 308.0f, s32, qspAlgHintNone), qspStsOk);
    EXPECT_TRUE(mem.guardsIntact());
}

TEST(ResamplePolyphase, CallStatusesWriteNothing)
{
    Resampler<Qsp32f> r(kSmall);  // h = 6
    Resampler<Qsp16s> r16(kSmall);
    std::vector<Qsp32f> x(100, 1.0f);
    std::vector<Qsp16s> x16(100, 1);
    Guarded<Qsp32f> y(200);
    Guarded<Qsp16s> y16(200);
    Guarded<double> t(1);
    Guarded<int> n(1);
    auto call = [&](const Qsp32f* s, Qsp32f* d, int len, double f, double* pt, int* pn,
                    const QspsResamplingPolyphase_32f* spec) { return qspsResamplePolyphase_32f(s, d, len, f, 1.0f, pt, pn, spec); };
    EXPECT_EQ(call(nullptr, y.data(), 0, 0.0, t.data(), n.data(), nullptr), qspStsNullPtr);
    EXPECT_EQ(call(x.data(), nullptr, 100, 1.0, t.data(), n.data(), r.spec), qspStsNullPtr);
    EXPECT_EQ(call(x.data(), y.data(), 100, 1.0, nullptr, n.data(), r.spec), qspStsNullPtr);
    EXPECT_EQ(call(x.data(), y.data(), 100, 1.0, t.data(), nullptr, r.spec), qspStsNullPtr);
    EXPECT_EQ(call(x.data(), y.data(), 100, 1.0, t.data(), n.data(), nullptr), qspStsNullPtr);
    // Length before the record, the record before the factor, the factor before the time.
    EXPECT_EQ(call(x.data(), y.data(), 0, 0.0, t.data(), n.data(),
                   reinterpret_cast<const QspsResamplingPolyphase_32f*>(r16.spec)),
              qspStsBadSize);
    EXPECT_EQ(call(x.data(), y.data(), -4, 1.0, t.data(), n.data(), r.spec), qspStsBadSize);
    EXPECT_EQ(call(x.data(), y.data(), 100, 0.0, t.data(), n.data(),
                   reinterpret_cast<const QspsResamplingPolyphase_32f*>(r16.spec)),
              qspStsBadRecord);
    for (double f : {0.0, -1.0, double(NAN), double(INFINITY), 1.0e7, 1.0e-7})
        EXPECT_EQ(call(x.data(), y.data(), 100, f, t.data(), n.data(), r.spec), qspStsBadFactor) << f;
    // The time (canary bits are a NaN) and times before the history.
    EXPECT_EQ(call(x.data(), y.data(), 100, 1.0, t.data(), n.data(), r.spec), qspStsBadArgument);
    EXPECT_EQ(qspsResamplePolyphase_16s(x16.data(), y16.data(), 100, 1.0, 1.0f, t.data(), n.data(), r16.spec),
              qspStsBadArgument);
    EXPECT_TRUE(y.untouched() && y16.untouched() && t.untouched() && n.untouched());
    for (double bad : {-1.0, 5.999, double(-INFINITY)}) {
        double tt = bad;
        int nn = -3;
        EXPECT_EQ(call(x.data(), y.data(), 100, 1.0, &tt, &nn, r.spec), qspStsBadArgument);
        EXPECT_TRUE(std::isnan(bad) || tt == bad);
        EXPECT_EQ(nn, -3);
    }
    // Going down the history grows by 1/factor: h = floor(6.0 / 0.5) = 12.
    double tt = 11.5;
    int nn = -3;
    EXPECT_EQ(call(x.data(), y.data(), 100, 0.5, &tt, &nn, r.spec), qspStsBadArgument);
    EXPECT_TRUE(y.untouched());
    tt = 12.0;
    EXPECT_EQ(call(x.data(), y.data(), 100, 0.5, &tt, &nn, r.spec), qspStsOk);
    EXPECT_GT(nn, 0);
    // Too few samples for an output: none, the time kept.
    tt = 6.0;
    EXPECT_EQ(call(x.data(), y.data(), 13, 1.0, &tt, &nn, r.spec), qspStsOk);
    EXPECT_EQ(nn, 0);
    EXPECT_EQ(tt, 6.0);
    EXPECT_EQ(call(x.data(), y.data(), 14, 1.0, &tt, &nn, r.spec), qspStsOk);
    EXPECT_EQ(nn, 1);
    EXPECT_EQ(tt, 7.0);
    tt = 1.0e300;
    EXPECT_EQ(call(x.data(), y.data(), 100, 1.0, &tt, &nn, r.spec), qspStsOk);
    EXPECT_EQ(nn, 0);
    EXPECT_EQ(tt, 1.0e300);
}

// ---------------------------------------------------------------- quality

// The design the manual quotes: window 128, 512 steps, roll-off 0.9,
// Kaiser beta 10 (stop band about 99 dB by Kaiser's formula), pass band to
// 0.425 and stop band from 0.475 of the input rate going up.
const Design kQuality{128.0f, 512, 0.9f, 10.0f};

std::vector<double> resampleSine(double f, double factor, int len, std::vector<double>& times, double amplitude = 0.5)
{
    std::vector<Qsp32f> x(static_cast<size_t>(len));
    for (int i = 0; i < len; ++i) x[size_t(i)] = Qsp32f(amplitude * std::sin(2 * resampleref::kPi * f * i));
    Resampler<Qsp32f> r(kQuality);
    const Numbers z = numbersOf(kQuality);
    const long h = factor < 1 ? long(Ext(z.k + 1) / kQuality.nStep / factor) : z.half;
    std::vector<Qsp32f> y(size_t(len * factor) + 8);
    double t = double(h);
    int n = 0;
    EXPECT_EQ(qspsResamplePolyphase_32f(x.data(), y.data(), len, factor, 1.0f, &t, &n, r.spec), qspStsOk);
    const Ext step = Ext(std::llround(kGrid / factor)) / kGrid;
    times.resize(size_t(n));
    for (int j = 0; j < n; ++j) times[size_t(j)] = double(Ext(h) + j * step);
    return std::vector<double>(y.begin(), y.begin() + n);
}

TEST(ResamplePolyphase, QualitySnrAndPassBand)
{
    const double factor = 48000.0 / 44100.0;
    std::vector<double> t;
    double worstResidual = 0, lo = 1, hi = 1;
    for (double f : {0.01, 0.05, 0.1, 0.2, 0.3, 0.4, 0.425}) {
        const auto y = resampleSine(f, factor, 4000, t);
        const auto fit = resampleref::fitSine(y, t, f, 0.5);
        worstResidual = std::fmax(worstResidual, fit.residual);
        lo = std::fmin(lo, fit.gain), hi = std::fmax(hi, fit.gain);
    }
    std::printf("ResamplePolyphase quality (window 128, nStep 512, rollf 0.9, beta 10): SNR %.1f dB, "
                "pass band to 0.425: gain %+.2e .. %+.2e dB\n",
                -resampleref::dB(worstResidual), resampleref::dB(lo), resampleref::dB(hi));
    // Kaiser's formula gives ripple 10^(-99/20) = 1.1e-5 (1e-4 dB); the
    // table's linear interpolation adds (pi 0.9 / 512)^2 / 8 = 3.8e-6 of the
    // kernel; float arithmetic -130 dB.
    EXPECT_GT(-resampleref::dB(worstResidual), 95.0);
    EXPECT_LT(std::fabs(resampleref::dB(lo)), 2e-4);
    EXPECT_LT(std::fabs(resampleref::dB(hi)), 2e-4);
}

TEST(ResamplePolyphase, QualityStopBand)
{
    // Going down by 2 the cut-off is 0.225 of the input rate, the stop band
    // from 0.25: sines there must vanish to the design's attenuation.
    std::vector<double> t;
    double worst = 0;
    for (double f : {0.25, 0.27, 0.3, 0.35, 0.4, 0.45, 0.49}) {
        const auto y = resampleSine(f, 0.5, 6000, t);
        double e = 0;
        for (double v : y) e += v * v;
        worst = std::fmax(worst, std::sqrt(2 * e / double(y.size())) / 0.5);
    }
    std::printf("ResamplePolyphase stop band (factor 0.5, from 0.25 of the input rate): %.1f dB\n",
                -resampleref::dB(worst));
    EXPECT_GT(-resampleref::dB(worst), 95.0);
}

}  // namespace

// SPDX-License-Identifier: BSD-3-Clause
// ResamplePolyphaseFixed: the stored filters against the long double
// kernel, outputs against long double sums, 16-bit and single precision,
// filters read and replaced, pieces equal one call bit for bit, odd record
// addresses, foreign records, every status with nothing written, and the
// quality measured (SNR, pass band, stop band).
#include <cmath>
#include <cstdio>
#include <numeric>
#include <vector>

#include "qsp_test.h"
#include "resample_reference.h"

using qsptest::Guarded;
using resampleref::Ext;

namespace {

struct Design {
    int inRate, outRate, filterLen;
    float rollf, alpha;
};

template <class T>
struct Api;
template <>
struct Api<Qsp32f> {
    using Spec = QspsResamplingPolyphaseFixed_32f;
    static constexpr auto getSize = qspsResamplePolyphaseFixedGetSize_32f;
    static constexpr auto init = qspsResamplePolyphaseFixedInit_32f;
    static constexpr auto fn = qspsResamplePolyphaseFixed_32f;
    static constexpr auto get = qspsResamplePolyphaseGetFixedFilter_32f;
    static constexpr auto set = qspsResamplePolyphaseSetFixedFilter_32f;
};
template <>
struct Api<Qsp16s> {
    using Spec = QspsResamplingPolyphaseFixed_16s;
    static constexpr auto getSize = qspsResamplePolyphaseFixedGetSize_16s;
    static constexpr auto init = qspsResamplePolyphaseFixedInit_16s;
    static constexpr auto fn = qspsResamplePolyphaseFixed_16s;
    static constexpr auto get = qspsResamplePolyphaseGetFixedFilter_16s;
    static constexpr auto set = qspsResamplePolyphaseSetFixedFilter_16s;
};

template <class T>
struct Resampler {
    std::vector<unsigned char> mem;
    typename Api<T>::Spec* spec;
    int taps = 0, filters = 0;
    explicit Resampler(const Design& d, size_t offset = 0)
    {
        int size = 0;
        EXPECT_EQ(Api<T>::getSize(d.inRate, d.outRate, d.filterLen, &size, &taps, &filters, qspAlgHintNone), qspStsOk);
        mem.assign(size_t(size) + offset, 0);
        spec = reinterpret_cast<typename Api<T>::Spec*>(mem.data() + offset);
        EXPECT_EQ(Api<T>::init(d.inRate, d.outRate, d.filterLen, d.rollf, d.alpha, spec, qspAlgHintNone), qspStsOk);
    }
};

// Reference taps: phase p, tap i = g(p / L - (i - a)).
std::vector<std::vector<Ext>> referenceBank(const Design& d)
{
    const int g = std::gcd(d.inRate, d.outRate), l = d.outRate / g, a = (d.filterLen - 1) / 2;
    const Ext fc = Ext(d.rollf) * std::fmin(Ext(1), Ext(d.outRate) / d.inRate) / 2;
    std::vector<std::vector<Ext>> bank(size_t(l), std::vector<Ext>(size_t(d.filterLen)));
    for (int p = 0; p < l; ++p)
        for (int i = 0; i < d.filterLen; ++i)
            bank[size_t(p)][size_t(i)] =
                resampleref::kernel(Ext(p) / l - (i - a), fc, Ext(d.filterLen) / 2, Ext(d.alpha));
    return bank;
}

const Design kDesigns[] = {
    {441, 480, 24, 0.9f, 8.0f},  {3, 2, 17, 0.8f, 6.0f}, {2, 3, 16, 0.95f, 7.0f},
    {5, 5, 9, 0.9f, 4.0f},       {480, 441, 31, 0.9f, 9.0f}, {1, 4, 1, 0.5f, 0.0f},
};

// Taps to the window's accuracy and one rounding to single precision.
constexpr double kTapRel = resampleref::kWindowRel + 5.97e-8;

TEST(ResamplePolyphaseFixed, FiltersAgainstKernel)
{
    for (const Design& d : kDesigns) {
        Resampler<Qsp32f> r(d);
        const auto want = referenceBank(d);
        ASSERT_EQ(r.taps, d.filterLen);
        ASSERT_EQ(r.filters, int(want.size()));
        const int step = d.filterLen + 3;
        Guarded<Qsp32f> got(size_t(step) * want.size());
        ASSERT_EQ(qspsResamplePolyphaseGetFixedFilter_32f(r.spec, got.data(), step, r.filters), qspStsOk);
        EXPECT_TRUE(got.guardsIntact());
        for (size_t p = 0; p < want.size(); ++p)
            for (int i = 0; i < d.filterLen; ++i) {
                const Ext w = want[p][size_t(i)];
                EXPECT_LE(std::fabs(double(Ext(got[p * size_t(step) + size_t(i)]) - w)),
                          kTapRel * std::fabs(double(w)) + 1e-12)
                    << d.inRate << ":" << d.outRate << " phase " << p << " tap " << i;
            }
        // The gaps between rows are not written.
        for (size_t p = 0; p < want.size(); ++p)
            for (int i = d.filterLen; i < step; ++i) {
                const auto* bytes = reinterpret_cast<const unsigned char*>(&got[p * size_t(step) + size_t(i)]);
                for (size_t k = 0; k < sizeof(Qsp32f); ++k) EXPECT_EQ(bytes[k], qsptest::kCanaryByte);
            }
    }
}

template <class T>
std::vector<T> randomSamples(int len)
{
    std::vector<T> x(static_cast<size_t>(len));
    for (auto& v : x) {
        if constexpr (std::is_same_v<T, Qsp16s>) v = T(int(qsptest::rng()() % 20001) - 10000);
        else v = T(double(qsptest::rng()() % 2000001) / 1.0e6 - 1.0);
    }
    return x;
}

// Outputs of one call against long double sums over the stored filters
// (read back, so that filters set by the caller are checked the same way).
template <class T>
void checkOutputs(Resampler<T>& r, const Design& d, float norm, const char* what)
{
    const int g = std::gcd(d.inRate, d.outRate), l = d.outRate / g, m = d.inRate / g, a = (d.filterLen - 1) / 2;
    std::vector<Qsp32f> bank(size_t(l) * size_t(d.filterLen));
    ASSERT_EQ(Api<T>::get(r.spec, bank.data(), d.filterLen, l), qspStsOk);
    const int len = 3 * d.filterLen + 200;
    const auto x = randomSamples<T>(len);
    const long startPos = long(a) * l + (l > 1 ? 1 : 0);  // a phase other than 0 when there is one
    double t = double(startPos) / l;
    int outLen = -1;
    Guarded<T> y(size_t(len * d.outRate / d.inRate + 4));
    ASSERT_EQ(Api<T>::fn(x.data(), y.data(), len, norm, &t, &outLen, r.spec), qspStsOk);
    EXPECT_TRUE(y.guardsIntact());
    long pos = startPos;
    int expected = 0;
    for (; pos / l - a + d.filterLen - 1 <= len - 1; pos += m) {
        const long n = pos / l, p = pos % l;
        Ext want = 0, mag = 0;
        for (int i = 0; i < d.filterLen; ++i) {
            const Ext v = Ext(bank[size_t(p) * size_t(d.filterLen) + size_t(i)]) * Ext(x[size_t(n - a + i)]);
            want += v, mag += std::fabs(v);
        }
        want *= norm;
        // The taps are the stored ones: one rounding per term of the sum.
        const double tol = 5.97e-8 * (d.filterLen + 4) * double(mag) * std::fabs(norm) + 1e-30;
        ASSERT_LT(expected, outLen) << what;
        const T got = y[size_t(expected)];
        if constexpr (std::is_same_v<T, Qsp16s>) {
            const Ext clamped = std::fmax(Ext(-32768), std::fmin(Ext(32767), want));
            EXPECT_LE(std::fabs(double(Ext(got) - clamped)), 0.5 + tol) << what << " output " << expected;
        } else {
            EXPECT_LE(std::fabs(double(Ext(got) - want)), tol) << what << " output " << expected;
        }
        ++expected;
    }
    EXPECT_EQ(outLen, expected) << what;
    EXPECT_EQ(std::lround(t * l), pos) << what;
}

TEST(ResamplePolyphaseFixed, AgainstLongDouble)
{
    for (const Design& d : kDesigns) {
        Resampler<Qsp32f> r(d);
        Resampler<Qsp16s> r16(d);
        checkOutputs(r, d, 1.0f, "32f");
        checkOutputs(r, d, -0.6f, "32f norm");
        checkOutputs(r16, d, 1.0f, "16s");
        checkOutputs(r16, d, 4.0f, "16s saturating");
    }
}

TEST(ResamplePolyphaseFixed, SetFilterReplacesTheFilters)
{
    const Design d{3, 2, 11, 0.8f, 6.0f};  // L = 2 filters
    Resampler<Qsp32f> r(d);
    Resampler<Qsp16s> r16(d);
    const int step = 13;
    std::vector<Qsp32f> mine(size_t(step) * 2, 123.0f);
    for (int p = 0; p < 2; ++p)
        for (int i = 0; i < d.filterLen; ++i) mine[size_t(p * step + i)] = Qsp32f(0.01 * (i + 1) * (p ? -1 : 1));
    ASSERT_EQ(qspsResamplePolyphaseSetFixedFilter_32f(r.spec, mine.data(), step, 2), qspStsOk);
    ASSERT_EQ(qspsResamplePolyphaseSetFixedFilter_16s(r16.spec, mine.data(), step, 2), qspStsOk);
    std::vector<Qsp32f> back(size_t(step) * 2, -7.0f);
    ASSERT_EQ(qspsResamplePolyphaseGetFixedFilter_32f(r.spec, back.data(), step, 2), qspStsOk);
    for (int p = 0; p < 2; ++p)
        for (int i = 0; i < step; ++i)
            EXPECT_EQ(back[size_t(p * step + i)], i < d.filterLen ? mine[size_t(p * step + i)] : -7.0f);
    checkOutputs(r, d, 1.0f, "32f set");
    checkOutputs(r16, d, 1.0f, "16s set");
    // Only the first filter replaced: the second keeps its taps.
    Resampler<Qsp32f> r2(d);
    std::vector<Qsp32f> before(size_t(d.filterLen) * 2), after(before.size());
    ASSERT_EQ(qspsResamplePolyphaseGetFixedFilter_32f(r2.spec, before.data(), d.filterLen, 2), qspStsOk);
    ASSERT_EQ(qspsResamplePolyphaseSetFixedFilter_32f(r2.spec, mine.data(), step, 1), qspStsOk);
    ASSERT_EQ(qspsResamplePolyphaseGetFixedFilter_32f(r2.spec, after.data(), d.filterLen, 2), qspStsOk);
    for (int i = 0; i < d.filterLen; ++i) {
        EXPECT_EQ(after[size_t(i)], mine[size_t(i)]);
        EXPECT_EQ(after[size_t(d.filterLen + i)], before[size_t(d.filterLen + i)]);
    }
}

template <class T>
void checkPieces(const Design& d)
{
    const int g = std::gcd(d.inRate, d.outRate), l = d.outRate / g, a = (d.filterLen - 1) / 2;
    Resampler<T> r(d);
    const int len = 3000;
    const auto x = randomSamples<T>(len);
    std::vector<T> whole(size_t(len) * size_t(d.outRate) / size_t(d.inRate) + 8), pieces(whole.size());
    const double t0 = double(a) + double(l > 2 ? 2 : 0) / l;
    double t = t0;
    int wholeLen = 0;
    ASSERT_EQ(Api<T>::fn(x.data(), whole.data(), len, 0.7f, &t, &wholeLen, r.spec), qspStsOk);
    double tp = t0;
    long offset = 0, got = 0;
    for (int end : {100, 101, 433, 900, 1500, 1501, len}) {
        int n = 0;
        ASSERT_EQ(Api<T>::fn(x.data() + offset, pieces.data() + got, int(end - offset), 0.7f, &tp, &n, r.spec),
                  qspStsOk);
        got += n;
        const long shift = long(std::floor(tp)) - a;
        if (shift > 0 && offset + shift < end) offset += shift, tp -= double(shift);
    }
    ASSERT_EQ(got, wholeLen);
    for (long j = 0; j < got; ++j) ASSERT_TRUE(qsptest::sameBits(whole[size_t(j)], pieces[size_t(j)])) << j;
    EXPECT_EQ(std::lround(t * l), std::lround((tp + double(offset)) * l));
}

TEST(ResamplePolyphaseFixed, PiecesEqualOneCall)
{
    for (const Design& d : kDesigns) {
        checkPieces<Qsp32f>(d);
        checkPieces<Qsp16s>(d);
    }
}

TEST(ResamplePolyphaseFixed, OddRecordAddresses)
{
    const Design d = kDesigns[0];
    const auto x = randomSamples<Qsp32f>(500);
    Resampler<Qsp32f> a(d);
    std::vector<Qsp32f> ya(600), yb(600);
    double ta = 20.0;
    int na = 0;
    ASSERT_EQ(qspsResamplePolyphaseFixed_32f(x.data(), ya.data(), 500, 1.0f, &ta, &na, a.spec), qspStsOk);
    for (size_t off : {1, 5, 9, 31, 63}) {
        Resampler<Qsp32f> b(d, off);
        double tb = 20.0;
        int nb = 0;
        ASSERT_EQ(qspsResamplePolyphaseFixed_32f(x.data(), yb.data(), 500, 1.0f, &tb, &nb, b.spec), qspStsOk);
        ASSERT_EQ(na, nb);
        for (int j = 0; j < na; ++j) ASSERT_TRUE(qsptest::sameBits(ya[size_t(j)], yb[size_t(j)]));
    }
}

TEST(ResamplePolyphaseFixed, ForeignRecordsRefused)
{
    const Design d = kDesigns[1];
    Resampler<Qsp32f> r32(d);
    Resampler<Qsp16s> r16(d);
    int size = 0;
    ASSERT_EQ(qspsResamplePolyphaseGetSize_32f(12.0f, 16, &size, qspAlgHintNone), qspStsOk);
    std::vector<unsigned char> general(size_t(size) + 64, 0);
    auto* g = reinterpret_cast<QspsResamplingPolyphase_32f*>(general.data());
    ASSERT_EQ(qspsResamplePolyphaseInit_32f(12.0f, 16, 0.9f, 8.0f, g, qspAlgHintNone), qspStsOk);
    std::vector<Qsp32f> x(100, 0.0f), f(64, 0.0f);
    std::vector<Qsp16s> x16(100, 0);
    Guarded<Qsp32f> y(200), fy(64);
    Guarded<Qsp16s> y16(200);
    double t = 20.0;
    int n = -5;
    auto as32 = [](const void* p) { return reinterpret_cast<QspsResamplingPolyphaseFixed_32f*>(const_cast<void*>(p)); };
    auto as16 = [](const void* p) { return reinterpret_cast<QspsResamplingPolyphaseFixed_16s*>(const_cast<void*>(p)); };
    EXPECT_EQ(qspsResamplePolyphaseFixed_32f(x.data(), y.data(), 100, 1.0f, &t, &n, as32(r16.spec)), qspStsBadRecord);
    EXPECT_EQ(qspsResamplePolyphaseFixed_32f(x.data(), y.data(), 100, 1.0f, &t, &n, as32(g)), qspStsBadRecord);
    EXPECT_EQ(qspsResamplePolyphaseFixed_16s(x16.data(), y16.data(), 100, 1.0f, &t, &n, as16(r32.spec)),
              qspStsBadRecord);
    EXPECT_EQ(qspsResamplePolyphaseGetFixedFilter_32f(as32(g), fy.data(), 17, 1), qspStsBadRecord);
    EXPECT_EQ(qspsResamplePolyphaseGetFixedFilter_16s(as16(r32.spec), fy.data(), 17, 1), qspStsBadRecord);
    EXPECT_EQ(qspsResamplePolyphaseSetFixedFilter_32f(as32(r16.spec), f.data(), 17, 1), qspStsBadRecord);
    EXPECT_EQ(qspsResamplePolyphaseSetFixedFilter_16s(as16(g), f.data(), 17, 1), qspStsBadRecord);
    // The general form refuses the fixed records too.
    EXPECT_EQ(qspsResamplePolyphase_32f(x.data(), y.data(), 100, 1.0, 1.0f, &t, &n,
                                        reinterpret_cast<const QspsResamplingPolyphase_32f*>(r32.spec)),
              qspStsBadRecord);
    EXPECT_TRUE(y.untouched() && y16.untouched() && fy.untouched());
    EXPECT_EQ(t, 20.0);
    EXPECT_EQ(n, -5);
}

TEST(ResamplePolyphaseFixed, SizeAndInitStatuses)
{
    int size = -1, taps = -1, filters = -1;
    auto gs = qspsResamplePolyphaseFixedGetSize_32f;
    EXPECT_EQ(gs(441, 480, 24, nullptr, &taps, &filters, 0), qspStsNullPtr);
    EXPECT_EQ(gs(441, 480, 24, &size, nullptr, &filters, 0), qspStsNullPtr);
    EXPECT_EQ(qspsResamplePolyphaseFixedGetSize_16s(0, 0, 0, &size, &taps, nullptr, 9), qspStsNullPtr);
    EXPECT_EQ(gs(0, 0, 0, &size, &taps, &filters, 9), qspStsBadTapCount);  // taps, then rates, then hint
    EXPECT_EQ(gs(441, 480, -2, &size, &taps, &filters, 0), qspStsBadTapCount);
    EXPECT_EQ(gs(0, 480, 24, &size, &taps, &filters, 9), qspStsBadFactor);
    EXPECT_EQ(gs(441, -1, 24, &size, &taps, &filters, 0), qspStsBadFactor);
    EXPECT_EQ(gs(441, 480, 24, &size, &taps, &filters, 3), qspStsBadArgument);
    EXPECT_EQ(gs(1, 2147483647, 1000, &size, &taps, &filters, 0), qspStsOverflow);
    EXPECT_EQ(size, -1);
    EXPECT_EQ(taps, -1);
    EXPECT_EQ(filters, -1);
    EXPECT_EQ(gs(44100, 48000, 24, &size, &taps, &filters, qspAlgHintAccurate), qspStsOk);
    EXPECT_EQ(taps, 24);
    EXPECT_EQ(filters, 160);

    ASSERT_EQ(gs(441, 480, 24, &size, &taps, &filters, 0), qspStsOk);
    Guarded<unsigned char> mem(static_cast<size_t>(size));
    auto* s32 = reinterpret_cast<QspsResamplingPolyphaseFixed_32f*>(mem.data());
    auto* s16 = reinterpret_cast<QspsResamplingPolyphaseFixed_16s*>(mem.data());
    auto in = qspsResamplePolyphaseFixedInit_32f;
    EXPECT_EQ(in(441, 480, 24, 0.9f, 8.0f, nullptr, 0), qspStsNullPtr);
    EXPECT_EQ(qspsResamplePolyphaseFixedInit_16s(0, 0, 0, 2.0f, -1.0f, nullptr, 9), qspStsNullPtr);
    EXPECT_EQ(in(0, 0, 0, 2.0f, -1.0f, s32, 9), qspStsBadTapCount);
    EXPECT_EQ(in(0, 480, 24, 2.0f, -1.0f, s32, 9), qspStsBadFactor);
    EXPECT_EQ(qspsResamplePolyphaseFixedInit_16s(441, 0, 24, 0.9f, 8.0f, s16, 0), qspStsBadFactor);
    EXPECT_EQ(in(441, 480, 24, 0.0f, -1.0f, s32, 9), qspStsBadRelFreq);
    EXPECT_EQ(in(441, 480, 24, 1.5f, 8.0f, s32, 0), qspStsBadRelFreq);
    EXPECT_EQ(in(441, 480, 24, 0.9f, -1.0f, s32, 9), qspStsBadWindowParam);
    EXPECT_EQ(in(441, 480, 24, 0.9f, 309.0f, s32, 0), qspStsBadWindowParam);
    EXPECT_EQ(in(441, 480, 24, 0.9f, 8.0f, s32, -1), qspStsBadArgument);
    EXPECT_EQ(in(1, 2147483647, 1000, 0.9f, 8.0f, s32, 0), qspStsOverflow);
    EXPECT_TRUE(mem.untouched());
    EXPECT_EQ(in(441, 480, 24, 1.0f, 308.0f, s32, 0), qspStsOk);
    EXPECT_TRUE(mem.guardsIntact());
}

TEST(ResamplePolyphaseFixed, CallAndFilterStatusesWriteNothing)
{
    const Design d{3, 2, 11, 0.8f, 6.0f};  // a = 5, 2 filters
    Resampler<Qsp32f> r(d);
    Resampler<Qsp16s> r16(d);
    std::vector<Qsp32f> x(100, 1.0f), f(40, 0.5f);
    std::vector<Qsp16s> x16(100, 1);
    Guarded<Qsp32f> y(200), fy(40);
    Guarded<Qsp16s> y16(200);
    Guarded<double> t(1);
    Guarded<int> n(1);
    auto call = qspsResamplePolyphaseFixed_32f;
    EXPECT_EQ(call(nullptr, y.data(), 0, 1.0f, t.data(), n.data(), nullptr), qspStsNullPtr);
    EXPECT_EQ(call(x.data(), nullptr, 100, 1.0f, t.data(), n.data(), r.spec), qspStsNullPtr);
    EXPECT_EQ(call(x.data(), y.data(), 100, 1.0f, nullptr, n.data(), r.spec), qspStsNullPtr);
    EXPECT_EQ(call(x.data(), y.data(), 100, 1.0f, t.data(), nullptr, r.spec), qspStsNullPtr);
    EXPECT_EQ(call(x.data(), y.data(), 100, 1.0f, t.data(), n.data(), nullptr), qspStsNullPtr);
    EXPECT_EQ(call(x.data(), y.data(), 0, 1.0f, t.data(), n.data(),
                   reinterpret_cast<QspsResamplingPolyphaseFixed_32f*>(r16.spec)),
              qspStsBadSize);
    EXPECT_EQ(call(x.data(), y.data(), -1, 1.0f, t.data(), n.data(), r.spec), qspStsBadSize);
    EXPECT_EQ(call(x.data(), y.data(), 100, 1.0f, t.data(), n.data(),
                   reinterpret_cast<QspsResamplingPolyphaseFixed_32f*>(r16.spec)),
              qspStsBadRecord);
    // The canary time is a NaN.
    EXPECT_EQ(call(x.data(), y.data(), 100, 1.0f, t.data(), n.data(), r.spec), qspStsBadArgument);
    EXPECT_EQ(qspsResamplePolyphaseFixed_16s(x16.data(), y16.data(), 100, 1.0f, t.data(), n.data(), r16.spec),
              qspStsBadArgument);
    for (double bad : {4.999, -1.0, double(-INFINITY)}) {
        double tt = bad;
        int nn = -3;
        EXPECT_EQ(call(x.data(), y.data(), 100, 1.0f, &tt, &nn, r.spec), qspStsBadArgument);
        EXPECT_EQ(tt, bad);
        EXPECT_EQ(nn, -3);
    }
    EXPECT_TRUE(y.untouched() && y16.untouched() && t.untouched() && n.untouched());
    // Too few samples: no output, the time kept; then exactly one.
    double tt = 5.0;
    int nn = -3;
    EXPECT_EQ(call(x.data(), y.data(), 10, 1.0f, &tt, &nn, r.spec), qspStsOk);
    EXPECT_EQ(nn, 0);
    EXPECT_EQ(tt, 5.0);
    EXPECT_EQ(call(x.data(), y.data(), 11, 1.0f, &tt, &nn, r.spec), qspStsOk);
    EXPECT_EQ(nn, 1);
    EXPECT_EQ(tt, 6.5);

    auto get = qspsResamplePolyphaseGetFixedFilter_32f;
    auto set = qspsResamplePolyphaseSetFixedFilter_32f;
    EXPECT_EQ(get(nullptr, fy.data(), 11, 2), qspStsNullPtr);
    EXPECT_EQ(get(r.spec, nullptr, 11, 2), qspStsNullPtr);
    EXPECT_EQ(get(reinterpret_cast<QspsResamplingPolyphaseFixed_32f*>(r16.spec), fy.data(), 0, 0), qspStsBadRecord);
    EXPECT_EQ(get(r.spec, fy.data(), 10, 2), qspStsBadSize);
    EXPECT_EQ(get(r.spec, fy.data(), 11, 0), qspStsBadSize);
    EXPECT_EQ(get(r.spec, fy.data(), 11, 3), qspStsBadSize);
    EXPECT_EQ(qspsResamplePolyphaseGetFixedFilter_16s(r16.spec, fy.data(), 11, -1), qspStsBadSize);
    EXPECT_TRUE(fy.untouched());
    std::vector<unsigned char> saved = r.mem;
    EXPECT_EQ(set(nullptr, f.data(), 11, 2), qspStsNullPtr);
    EXPECT_EQ(set(r.spec, nullptr, 11, 2), qspStsNullPtr);
    EXPECT_EQ(set(reinterpret_cast<QspsResamplingPolyphaseFixed_32f*>(r16.spec), f.data(), 0, 0), qspStsBadRecord);
    EXPECT_EQ(set(r.spec, f.data(), 10, 2), qspStsBadSize);
    EXPECT_EQ(set(r.spec, f.data(), 11, 0), qspStsBadSize);
    EXPECT_EQ(set(r.spec, f.data(), 11, 3), qspStsBadSize);
    EXPECT_EQ(qspsResamplePolyphaseSetFixedFilter_16s(r16.spec, f.data(), 5, 1), qspStsBadSize);
    EXPECT_TRUE(saved == r.mem);
}

// ---------------------------------------------------------------- quality

// 44.1 kHz to 48 kHz and back with 128 taps per filter, roll-off 0.9 and
// beta 10 (about 99 dB by Kaiser's formula): the transition is 0.05 of the
// lower rate, the pass band to 0.425 and the stop band from 0.475 of it.
TEST(ResamplePolyphaseFixed, QualitySnrPassAndStopBand)
{
    const Design up{441, 480, 128, 0.9f, 10.0f}, down{480, 441, 140, 0.9f, 10.0f};
    const int len = 5000;
    auto run = [&](const Design& d, double f, std::vector<double>& times) {
        Resampler<Qsp32f> r(d);
        std::vector<Qsp32f> x(static_cast<size_t>(len));
        for (int i = 0; i < len; ++i) x[size_t(i)] = Qsp32f(0.5 * std::sin(2 * resampleref::kPi * f * i));
        std::vector<Qsp32f> y(size_t(len) * 2);
        const int a = (d.filterLen - 1) / 2;
        double t = a;
        int n = 0;
        EXPECT_EQ(qspsResamplePolyphaseFixed_32f(x.data(), y.data(), len, 1.0f, &t, &n, r.spec), qspStsOk);
        times.resize(size_t(n));
        for (int j = 0; j < n; ++j) times[size_t(j)] = a + double(j) * d.inRate / d.outRate;
        return std::vector<double>(y.begin(), y.begin() + n);
    };
    std::vector<double> t;
    double worst = 0, lo = 1, hi = 1;
    for (double f : {0.01, 0.1, 0.2, 0.3, 0.4, 0.425}) {
        const auto y = run(up, f, t);
        const auto fit = resampleref::fitSine(y, t, f, 0.5);
        worst = std::fmax(worst, fit.residual);
        lo = std::fmin(lo, fit.gain), hi = std::fmax(hi, fit.gain);
    }
    // Going down the rates' ratio is 441/480: stop band from 0.475 * 441/480.
    double stop = 0;
    for (double f : {0.437, 0.45, 0.47, 0.49}) {
        const auto y = run(down, f, t);
        double e = 0;
        for (double v : y) e += v * v;
        stop = std::fmax(stop, std::sqrt(2 * e / double(y.size())) / 0.5);
    }
    std::printf("ResamplePolyphaseFixed 441:480, 128 taps, rollf 0.9, beta 10: SNR %.1f dB, pass band gain "
                "%+.2e .. %+.2e dB; 480:441, 140 taps: stop band %.1f dB\n",
                -resampleref::dB(worst), resampleref::dB(lo), resampleref::dB(hi), -resampleref::dB(stop));
    EXPECT_GT(-resampleref::dB(worst), 95.0);
    EXPECT_LT(std::fabs(resampleref::dB(lo)), 2e-4);
    EXPECT_LT(std::fabs(resampleref::dB(hi)), 2e-4);
    EXPECT_GT(-resampleref::dB(stop), 95.0);
}

}  // namespace

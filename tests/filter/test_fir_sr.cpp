// SPDX-License-Identifier: BSD-3-Clause
// FIRSR: size queries, record set-up and filtering of every type, by both
// methods and the automatic choice, against the defining sum in long
// double; delay lines, aliasing, streaming, 16-bit front ends, threads.
#include <algorithm>
#include <cstring>
#include <thread>

#include "fir_reference.h"

namespace {

using namespace firref;

// ---------------------------------------------------------------- types

// The record fields in their documented order, read at the aligned address.
struct RecordView {
    Qsp32s tapsLen;
    const float* taps;
    Qsp32u layout;
    Qsp32u algType;
    const Qsp32u* fftSpec;
    const Qsp8u* fftSpecMem;
    const Qsp8u* fftWork;
    const void* spectrum;
    Qsp32u fftLen;
};

template <class D_, class T_, class S_>
struct Api {
    using D = D_;
    using T = T_;
    using Spec = S_;
    using Part = typename Elem<D>::Part;
};

struct F32 : Api<Qsp32f, Qsp32f, QspsFIRSpec_32f> {
    static constexpr const char* name = "32f";
    static constexpr int fftTaps = 64, fftIters = 128, staging = 8192, splitFrom = 32, fftId = 7, perVector = 4;
    static QspStatus getSize(int n, int* s, int* b) { return qspsFIRSRGetSize(n, qsp32f, s, b); }
    static constexpr auto init = qspsFIRSRInit_32f;
    static constexpr auto filter = qspsFIRSR_32f;
    static QspStatus fftGetSize(int o, int* s, int* i, int* w) { return qspsFFTGetSize_R_32f(o, 2, 0, s, i, w); }
};
struct F64 : Api<Qsp64f, Qsp64f, QspsFIRSpec_64f> {
    static constexpr const char* name = "64f";
    static constexpr int fftTaps = 38, fftIters = 128, staging = 4096, splitFrom = 9, fftId = 10, perVector = 2;
    static QspStatus getSize(int n, int* s, int* b) { return qspsFIRSRGetSize(n, qsp64f, s, b); }
    static constexpr auto init = qspsFIRSRInit_64f;
    static constexpr auto filter = qspsFIRSR_64f;
    static QspStatus fftGetSize(int o, int* s, int* i, int* w) { return qspsFFTGetSize_R_64f(o, 2, 0, s, i, w); }
};
struct F32fc : Api<Qsp32fc, Qsp32fc, QspsFIRSpec_32fc> {
    static constexpr const char* name = "32fc";
    static constexpr int fftTaps = 18, fftIters = 256, staging = 4096, splitFrom = 32, fftId = 5, perVector = 2;
    static QspStatus getSize(int n, int* s, int* b) { return qspsFIRSRGetSize(n, qsp32fc, s, b); }
    static constexpr auto init = qspsFIRSRInit_32fc;
    static constexpr auto filter = qspsFIRSR_32fc;
    static QspStatus fftGetSize(int o, int* s, int* i, int* w) { return qspsFFTGetSize_C_32fc(o, 2, 0, s, i, w); }
};
struct F64fc : Api<Qsp64fc, Qsp64fc, QspsFIRSpec_64fc> {
    static constexpr const char* name = "64fc";
    static constexpr int fftTaps = 18, fftIters = 256, staging = 2048, splitFrom = 32, fftId = 8, perVector = 1;
    static QspStatus getSize(int n, int* s, int* b) { return qspsFIRSRGetSize(n, qsp64fc, s, b); }
    static constexpr auto init = qspsFIRSRInit_64fc;
    static constexpr auto filter = qspsFIRSR_64fc;
    static QspStatus fftGetSize(int o, int* s, int* i, int* w) { return qspsFFTGetSize_C_64fc(o, 2, 0, s, i, w); }
};
struct F32f32fc : Api<Qsp32fc, Qsp32f, QspsFIRSpec32f_32fc> {
    static constexpr const char* name = "32f_32fc";
    static constexpr int fftTaps = 64, fftIters = 256, staging = 4096, splitFrom = 32, fftId = 5, perVector = 2;
    static QspStatus getSize(int n, int* s, int* b) { return qspsFIRSRGetSize32f_32fc(n, s, b); }
    static constexpr auto init = qspsFIRSRInit32f_32fc;
    static constexpr auto filter = qspsFIRSR32f_32fc;
    static QspStatus fftGetSize(int o, int* s, int* i, int* w) { return qspsFFTGetSize_C_32fc(o, 2, 0, s, i, w); }
};

template <class A>
class FirTyped : public ::testing::Test {};
using AllTypes = ::testing::Types<F32, F64, F32fc, F64fc, F32f32fc>;
TYPED_TEST_SUITE(FirTyped, AllTypes);

// ---------------------------------------------------------------- helpers

long long roundUp64(long long x) { return (x + 63) & ~63LL; }

int fftOrderFor(int n)
{
    int k = 1;
    while ((1LL << k) <= n) ++k;
    return k + 1;
}

// The documented size formulas, for an element of e bytes.
template <class A>
void expectedSizes(int n, int& spec, int& buf)
{
    const long long e = sizeof(typename A::D);
    const int order = fftOrderFor(n);
    const long long len = 1LL << order;
    int fs = 0, fi = 0, fw = 0;
    EXPECT_EQ(A::fftGetSize(order, &fs, &fi, &fw), qspStsOk);
    const long long area = std::max({roundUp64(e * n), roundUp64(4 * e * n), 4 * e * ((n + 6) & ~3LL)});
    spec = int(area + 191 + fs + std::max(fi, fw) + e * len);
    buf = int(64 * ((2 * e * n + 63) / 64 + (2 * e * (n - 1) + 63) / 64) + 32768 + fw + e * len);
}

// A record built in caller memory at an offset from a 64-byte boundary.
template <class A>
struct Filter {
    int n;
    std::vector<Qsp8u> specMem, bufMem;
    typename A::Spec* spec;
    Qsp8u* buf;
    Filter(const typename A::T* taps, int n_, QspAlgType alg, int specOffset = 0, int bufOffset = 0) : n(n_)
    {
        int s = 0, b = 0;
        EXPECT_EQ(A::getSize(n, &s, &b), qspStsOk);
        specMem.assign(size_t(s) + 128, 0);
        bufMem.assign(size_t(b) + 128, 0);
        auto* base = reinterpret_cast<Qsp8u*>((reinterpret_cast<uintptr_t>(specMem.data()) + 63) & ~uintptr_t(63));
        spec = reinterpret_cast<typename A::Spec*>(base + specOffset);
        auto* bb = reinterpret_cast<Qsp8u*>((reinterpret_cast<uintptr_t>(bufMem.data()) + 63) & ~uintptr_t(63));
        buf = bb + bufOffset;
        EXPECT_EQ(A::init(taps, n, alg, spec), qspStsOk);
    }
    const RecordView& view() const
    {
        return *reinterpret_cast<const RecordView*>((reinterpret_cast<uintptr_t>(spec) + 63) & ~uintptr_t(63));
    }
    QspStatus run(const typename A::D* src, typename A::D* dst, int count, const typename A::D* dly,
                  typename A::D* dlyDst)
    {
        return A::filter(src, dst, count, spec, dly, dlyDst, buf);
    }
};

template <class A>
long double unit()
{
    return kU<typename A::Part>;
}

// Direct form: every output is a running sum of N rounded products.
template <class A>
long double directBound(int n, long double m)
{
    return 2 * (n + 2) * unit<A>() * m;
}

// Overlap-save: the transforms' error, proportional to log2 of their length
// and to the norms of the taps and of the block transformed.
template <class A>
long double fftBound(int n, long double tapsNorm, long double xMax)
{
    const int len = 1 << fftOrderFor(n);
    return 4 * unit<A>() * firref::log2Ceil(len) * tapsNorm * std::sqrt((long double)len) * xMax;
}

// Filters a random signal with a random delay line through the record and
// checks, for each count, the outputs against the long double sums and the
// new delay line exactly.
template <class A>
void checkCounts(int n, QspAlgType alg, const std::vector<int>& counts)
{
    using D = typename A::D;
    const int most = *std::max_element(counts.begin(), counts.end());
    const auto taps = randomSignal<typename A::T>(n);
    const auto x = randomSignal<D>(most);
    const auto hist = randomSignal<D>(n);
    Filter<A> f(taps.data(), n, alg);
    const Sums ref = firSums(taps.data(), n, hist.data(), x.data(), most);
    const long double tn = norm2(taps.data(), n), xm = std::max(maxAbs(x.data(), most), maxAbs(hist.data(), n));
    for (int count : counts) {
        qsptest::Guarded<D> y(count), dd(n - 1);
        ASSERT_EQ(f.run(x.data(), y.data(), count, hist.data(), dd.data()), qspStsOk);
        ASSERT_TRUE(y.guardsIntact() && dd.guardsIntact());
        const bool mayFft = alg == qspAlgFFT || (alg == qspAlgAuto && n >= A::fftTaps && count >= A::fftIters);
        for (int i = 0; i < count; ++i) {
            const long double bound =
                std::max(directBound<A>(n, ref.m[i]), mayFft ? fftBound<A>(n, tn, xm) : (long double)0);
            ASSERT_LE(deviation(y[i], ref.y[i]), bound)
                << A::name << " N=" << n << " alg=" << alg << " count=" << count << " i=" << i;
        }
        for (int j = 0; j < n - 1; ++j) {
            const int at = count - (n - 1) + j;
            const D want = at >= 0 ? x[at] : hist[n - 1 + at];
            ASSERT_TRUE(qsptest::sameBits(dd[j], want)) << A::name << " N=" << n << " count=" << count << " j=" << j;
        }
    }
}

std::vector<int> countsAround(int n)
{
    const int len = 1 << fftOrderFor(n), step = len - (n - 1);
    std::vector<int> c = {1, 2, 3, 5, 127, 128, 129, 255, 256, 257, step - 1, step, step + 1, 2 * step, 2 * step + 1,
                          3 * len};
    if (n > 2) c.insert(c.end(), {n - 2, n - 1, n});
    c.erase(std::remove_if(c.begin(), c.end(), [](int v) { return v < 1; }), c.end());
    return c;
}

// ---------------------------------------------------------------- size queries

TEST(FirSRGetSize, ChecksLengthThenTypeThenPointers)
{
    int s = -7, b = -7;
    EXPECT_EQ(qspsFIRSRGetSize(0, 7, nullptr, nullptr), qspStsBadSize);
    EXPECT_EQ(qspsFIRSRGetSize(-1, qsp32f, &s, &b), qspStsBadSize);
    for (int type : {7, 0, 12, 15, 21, -1, 13 + 256})
        EXPECT_EQ(qspsFIRSRGetSize(5, type, nullptr, nullptr), qspStsBadDataType) << type;
    EXPECT_EQ(qspsFIRSRGetSize(5, qsp32f, nullptr, &b), qspStsNullPtr);
    EXPECT_EQ(qspsFIRSRGetSize(5, qsp64fc, &s, nullptr), qspStsNullPtr);
    EXPECT_EQ(s, -7);
    EXPECT_EQ(b, -7);
    EXPECT_EQ(qspsFIRSRGetSize32f_32fc(0, nullptr, nullptr), qspStsBadSize);
    EXPECT_EQ(qspsFIRSRGetSize32f_32fc(3, &s, nullptr), qspStsNullPtr);
    EXPECT_EQ(qspsFIRSRGetSize32f_32fc(3, nullptr, &b), qspStsNullPtr);
    EXPECT_EQ(s, -7);
    EXPECT_EQ(b, -7);
}

TYPED_TEST(FirTyped, SizesFollowTheFormula)
{
    using A = TypeParam;
    std::vector<int> ns;
    for (int n = 1; n <= 70; ++n) ns.push_back(n);
    for (int n : {127, 128, 129, 255, 1000, 1023, 1024, 4096, 65535, 100000}) ns.push_back(n);
    for (int n : ns) {
        int s = 0, b = 0, es = 0, eb = 0;
        ASSERT_EQ(A::getSize(n, &s, &b), qspStsOk);
        expectedSizes<A>(n, es, eb);
        EXPECT_EQ(s, es) << A::name << " N=" << n;
        EXPECT_EQ(b, eb) << A::name << " N=" << n;
    }
}

TEST(FirSRGetSize, RealTapsOnComplexDataTakeTheComplexSizes)
{
    for (int n : {1, 7, 64, 300}) {
        int s1, b1, s2, b2;
        ASSERT_EQ(qspsFIRSRGetSize32f_32fc(n, &s1, &b1), qspStsOk);
        ASSERT_EQ(qspsFIRSRGetSize(n, qsp32fc, &s2, &b2), qspStsOk);
        EXPECT_EQ(s1, s2);
        EXPECT_EQ(b1, b2);
    }
}

TEST(FirSRGetSize, KnownValuesFor32f)
{
    // N = 1: order 2 (fftLen 4), whose real transform reports 208 bytes of
    // record and no buffers: max(64, 64, 16*4) + 191 + 208 + 0 + 16.
    int s, b;
    ASSERT_EQ(qspsFIRSRGetSize(1, qsp32f, &s, &b), qspStsOk);
    EXPECT_EQ(s, 64 + 191 + 208 + 16);
    EXPECT_EQ(b, 64 + 0 + 32768 + 0 + 16);
}

// ---------------------------------------------------------------- init

TYPED_TEST(FirTyped, InitChecksLengthThenPointersThenAlgorithm)
{
    using A = TypeParam;
    const auto taps = randomSignal<typename A::T>(4);
    qsptest::Guarded<Qsp8u> mem(4096);
    auto* spec = reinterpret_cast<typename A::Spec*>(mem.data());
    EXPECT_EQ(A::init(nullptr, 0, 7, nullptr), qspStsBadSize);
    EXPECT_EQ(A::init(taps.data(), -3, qspAlgAuto, spec), qspStsBadSize);
    EXPECT_EQ(A::init(nullptr, 4, 9, spec), qspStsNullPtr);
    EXPECT_EQ(A::init(taps.data(), 4, 9, nullptr), qspStsNullPtr);
    for (int alg : {3, -1, 100, int(0x80000000)}) EXPECT_EQ(A::init(taps.data(), 4, alg, spec), qspStsBadAlgType);
    EXPECT_TRUE(mem.untouched());
}

TYPED_TEST(FirTyped, InitWritesOnlyInsideTheReportedSize)
{
    using A = TypeParam;
    for (int n : {1, 9, 33, 200}) {
        for (int off : {0, 1, 3, 63}) {
            int s, b;
            ASSERT_EQ(A::getSize(n, &s, &b), qspStsOk);
            qsptest::Guarded<Qsp8u> mem(size_t(s) + 64, 64);
            const auto taps = randomSignal<typename A::T>(n);
            // Place the block at an offset from a 64-byte boundary.
            Qsp8u* base = mem.data();
            const size_t shift = (64 - (reinterpret_cast<uintptr_t>(base) & 63) + off) & 63;
            ASSERT_EQ(A::init(taps.data(), n, qspAlgAuto, reinterpret_cast<typename A::Spec*>(base + shift)), qspStsOk);
            for (size_t i = 0; i < shift; ++i) ASSERT_EQ(base[i], qsptest::kCanaryByte);
            for (size_t i = shift + s; i < size_t(s) + 64; ++i) ASSERT_EQ(base[i], qsptest::kCanaryByte);
            ASSERT_TRUE(mem.guardsIntact());
        }
    }
}

TYPED_TEST(FirTyped, RecordHoldsTheDocumentedFields)
{
    using A = TypeParam;
    for (int n : {1, 8, 9, 31, 32, 63, 64, 100}) {
        const auto taps = randomSignal<typename A::T>(n);
        for (QspAlgType alg : {qspAlgAuto, qspAlgDirect, qspAlgFFT}) {
            Filter<A> f(taps.data(), n, alg, 5);
            const RecordView& r = f.view();
            EXPECT_EQ(r.tapsLen, n);
            EXPECT_EQ(r.algType, Qsp32u(alg));
            EXPECT_EQ(r.layout, n >= A::splitFrom ? 1u : 0u) << A::name << " N=" << n;
            EXPECT_EQ(reinterpret_cast<uintptr_t>(r.taps) & 63, 0u);
            EXPECT_GE(reinterpret_cast<const Qsp8u*>(r.taps), reinterpret_cast<const Qsp8u*>(&r) + 64);
            if (alg == qspAlgDirect) {
                EXPECT_EQ(r.fftSpec, nullptr);
                continue;
            }
            const Qsp32u len = 1u << fftOrderFor(n);
            EXPECT_EQ(r.fftLen, len);
            // The FFT record: identifier of its kind, order, the inverse
            // divided by the length (flag 2).
            ASSERT_NE(r.fftSpec, nullptr);
            EXPECT_EQ(r.fftSpec[0], Qsp32u(A::fftId));
            EXPECT_EQ(r.fftSpec[1], Qsp32u(fftOrderFor(n)));
            EXPECT_EQ(r.fftSpec[2], 0u);
            EXPECT_EQ(r.fftSpec[3], 1u);
            const auto* lo = reinterpret_cast<const Qsp8u*>(f.spec);
            const auto* hi = lo + f.specMem.size() - 128;
            for (const void* p : {(const void*)r.fftSpec, (const void*)r.fftSpecMem, (const void*)r.fftWork, r.spectrum}) {
                EXPECT_GE(static_cast<const Qsp8u*>(p), lo);
                EXPECT_LT(static_cast<const Qsp8u*>(p), hi);
            }
        }
    }
}

TEST(FirSRInit, SpectrumIsTheTransformOfTheTapsInPerm)
{
    for (int n : {1, 3, 63, 64, 65}) {
        const auto taps = randomSignal<Qsp32f>(n);
        Filter<F32> f(taps.data(), n, qspAlgFFT);
        const RecordView& r = f.view();
        const int len = int(r.fftLen);
        const auto* h = static_cast<const Qsp32f*>(r.spectrum);
        // Perm: R0, R(L/2), then (Rk, Ik) for k = 1 .. L/2-1.
        auto bin = [&](int k) {
            LC acc = 0;
            for (int m = 0; m < n; ++m) {
                const long double a = -2 * 3.141592653589793238462643383279502884L * (long double)((long long)k * m % len) / len;
                acc += (long double)taps[m] * LC(cosl(a), sinl(a));
            }
            return acc;
        };
        const long double tol = 8 * kU<float> * firref::log2Ceil(len) * norm2(taps.data(), n) * std::sqrt((long double)len);
        EXPECT_LE(std::abs(h[0] - bin(0).real()), tol);
        EXPECT_LE(std::abs(h[1] - bin(len / 2).real()), tol);
        for (int k = 1; k < len / 2; ++k) {
            EXPECT_LE(std::abs(h[2 * k] - bin(k).real()), tol) << n << " " << k;
            EXPECT_LE(std::abs(h[2 * k + 1] - bin(k).imag()), tol) << n << " " << k;
        }
    }
}

TEST(FirSRInit, TapLayoutsOf32f)
{
    // Below 32 taps every tap four times in a row; from 32 on four reversed
    // copies, copy k shifted by k zeros, each (N + 6) & ~3 long.
    for (int n : {1, 5, 31, 32, 33, 34, 35, 36, 64}) {
        std::vector<Qsp32f> taps(n);
        for (int i = 0; i < n; ++i) taps[i] = Qsp32f(i + 1);
        Filter<F32> f(taps.data(), n, qspAlgDirect, 17);
        const RecordView& r = f.view();
        if (n < 32) {
            for (int i = 0; i < 4 * n; ++i) ASSERT_EQ(r.taps[i], taps[i / 4]) << n << " " << i;
            continue;
        }
        const int len = (n + 6) & ~3;
        for (int k = 0; k < 4; ++k)
            for (int j = 0; j < len; ++j) {
                const int t = j - k;
                const Qsp32f want = t >= 0 && t < n ? taps[n - 1 - t] : 0.0f;
                ASSERT_EQ(r.taps[k * len + j], want) << n << " copy " << k << " at " << j;
            }
    }
}

TEST(FirSRInit, TapLayoutFlagOf64fFromNine)
{
    for (int n = 1; n <= 12; ++n) {
        const auto taps = randomSignal<Qsp64f>(n);
        Filter<F64> f(taps.data(), n, qspAlgAuto);
        EXPECT_EQ(f.view().layout, n >= 9 ? 1u : 0u) << n;
    }
}

// ---------------------------------------------------------------- filtering: checks

TYPED_TEST(FirTyped, FilterChecksRecordThenPointersThenCount)
{
    using A = TypeParam;
    using D = typename A::D;
    const int n = 5;
    const auto taps = randomSignal<typename A::T>(n);
    Filter<A> f(taps.data(), n, qspAlgAuto);
    const std::vector<Qsp8u> record = f.specMem;
    const auto x = randomSignal<D>(8);
    qsptest::Guarded<D> y(8), dly(n - 1), dd(n - 1);
    qsptest::Guarded<Qsp8u> buf(16);
    EXPECT_EQ(A::filter(nullptr, nullptr, 0, nullptr, nullptr, nullptr, nullptr), qspStsNullPtr);
    EXPECT_EQ(A::filter(x.data(), y.data(), 8, nullptr, dly.data(), dd.data(), f.buf), qspStsNullPtr);
    EXPECT_EQ(A::filter(nullptr, y.data(), 8, f.spec, dly.data(), dd.data(), f.buf), qspStsNullPtr);
    EXPECT_EQ(A::filter(x.data(), nullptr, 8, f.spec, dly.data(), dd.data(), f.buf), qspStsNullPtr);
    EXPECT_EQ(A::filter(x.data(), y.data(), 8, f.spec, dly.data(), dd.data(), nullptr), qspStsNullPtr);
    EXPECT_EQ(A::filter(x.data(), y.data(), 0, f.spec, dly.data(), dd.data(), buf.data()), qspStsBadSize);
    EXPECT_EQ(A::filter(x.data(), y.data(), -5, f.spec, dly.data(), dd.data(), buf.data()), qspStsBadSize);
    EXPECT_EQ(A::filter(nullptr, y.data(), 0, f.spec, dly.data(), dd.data(), f.buf), qspStsNullPtr);
    EXPECT_TRUE(y.untouched() && dly.untouched() && dd.untouched() && buf.untouched());
    EXPECT_EQ(f.specMem, record);
}

// ---------------------------------------------------------------- filtering: values

TYPED_TEST(FirTyped, EveryTapCountAndMethodMatchesTheSum)
{
    using A = TypeParam;
    std::vector<int> ns;
    for (int n = 1; n <= 70; ++n) ns.push_back(n);
    ns.push_back(127);
    ns.push_back(128);
    for (QspAlgType alg : {qspAlgAuto, qspAlgDirect, qspAlgFFT})
        for (int n : ns) checkCounts<A>(n, alg, countsAround(n));
}

TYPED_TEST(FirTyped, HeavyThousandTaps)
{
    using A = TypeParam;
    for (QspAlgType alg : {qspAlgAuto, qspAlgDirect, qspAlgFFT}) checkCounts<A>(1024, alg, {1, 1022, 1023, 1024, 1500, 3073, 3074, 9000});
}

TYPED_TEST(FirTyped, EveryCountUpToThreeTransformLengths)
{
    using A = TypeParam;
    for (int n : {1, 2, 7, 18, 40}) {
        std::vector<int> counts;
        for (int c = 1; c <= 3 * (1 << fftOrderFor(n)); ++c) counts.push_back(c);
        for (QspAlgType alg : {qspAlgDirect, qspAlgFFT}) checkCounts<A>(n, alg, counts);
    }
}

// The direct method is exactly the running sum from the first tap: a plain
// loop in the part type reproduces it bit for bit.
TYPED_TEST(FirTyped, DirectMethodIsTheRunningSum)
{
    using A = TypeParam;
    using D = typename A::D;
    using P = typename A::Part;
    for (int n : {1, 3, 8, 9, 31, 32, 50}) {
        const int count = 300;
        const auto taps = randomSignal<typename A::T>(n);
        const auto x = randomSignal<D>(count), hist = randomSignal<D>(n);
        Filter<A> f(taps.data(), n, qspAlgDirect);
        std::vector<D> y(count);
        ASSERT_EQ(f.run(x.data(), y.data(), count, hist.data(), nullptr), qspStsOk);
        for (int i = 0; i < count; ++i) {
            auto at = [&](int k) { return Elem<D>::get(i - k >= 0 ? x[i - k] : hist[n - 1 + i - k]); };
            const LC t0 = Elem<typename A::T>::get(taps[0]), x0 = at(0);
            P rr = P(t0.real()) * P(x0.real()), ri = P(t0.real()) * P(x0.imag());
            P ir = P(t0.imag()) * P(x0.real()), ii = P(t0.imag()) * P(x0.imag());
            for (int k = 1; k < n; ++k) {
                const LC t = Elem<typename A::T>::get(taps[k]), v = at(k);
                rr = rr + P(t.real()) * P(v.real());
                ri = ri + P(t.real()) * P(v.imag());
                ir = ir + P(t.imag()) * P(v.real());
                ii = ii + P(t.imag()) * P(v.imag());
            }
            const LC got = Elem<D>::get(y[i]);
            if constexpr (Elem<typename A::T>::complex) {
                ASSERT_EQ(P(got.real()), P(rr - ii)) << n << " " << i;
                ASSERT_EQ(P(got.imag()), P(ri + ir)) << n << " " << i;
            } else {
                ASSERT_EQ(P(got.real()), rr) << n << " " << i;
                ASSERT_EQ(P(got.imag()), ri) << n << " " << i;
            }
        }
    }
}

// ---------------------------------------------------------------- delay lines

TYPED_TEST(FirTyped, OneTapNeverTouchesTheDelayLines)
{
    using A = TypeParam;
    using D = typename A::D;
    const auto taps = randomSignal<typename A::T>(1);
    for (QspAlgType alg : {qspAlgDirect, qspAlgFFT}) {
        Filter<A> f(taps.data(), 1, alg);
        const auto x = randomSignal<D>(50);
        qsptest::Guarded<D> dly(4), dd(4);
        std::vector<D> y(50);
        ASSERT_EQ(f.run(x.data(), y.data(), 50, dly.data(), dd.data()), qspStsOk);
        EXPECT_TRUE(dly.untouched() && dd.untouched());
        ASSERT_EQ(f.run(x.data(), y.data(), 50, dd.data(), dd.data()), qspStsOk);
        EXPECT_TRUE(dd.untouched());
        const LC t = Elem<typename A::T>::get(taps[0]);
        for (int i = 0; i < 50; ++i) {
            const LC v = Elem<D>::get(x[i]);
            EXPECT_LE(deviation(y[i], t * v), 4 * unit<A>() * mag(t) * mag(v) + 8 * unit<A>() * mag(t) * maxAbs(x.data(), 50));
        }
    }
}

TYPED_TEST(FirTyped, NullDelaySourceMeansZeros)
{
    using A = TypeParam;
    using D = typename A::D;
    for (QspAlgType alg : {qspAlgDirect, qspAlgFFT}) {
        for (int n : {4, 40}) {
            const auto taps = randomSignal<typename A::T>(n);
            Filter<A> f(taps.data(), n, alg);
            const int count = 10;
            const auto x = randomSignal<D>(count);
            std::vector<D> zeros(n - 1, Elem<D>::make(0, 0)), y1(count), y2(count), d1(n - 1), d2(n - 1);
            ASSERT_EQ(f.run(x.data(), y1.data(), count, nullptr, d1.data()), qspStsOk);
            ASSERT_EQ(f.run(x.data(), y2.data(), count, zeros.data(), d2.data()), qspStsOk);
            for (int i = 0; i < count; ++i) ASSERT_TRUE(qsptest::sameBits(y1[i], y2[i]));
            for (int j = 0; j < n - 1; ++j) ASSERT_TRUE(qsptest::sameBits(d1[j], d2[j]));
            // Fewer inputs than delay samples: zeros, then all inputs.
            for (int j = 0; j < n - 1 - count; ++j) ASSERT_EQ(Elem<D>::get(d1[j]), LC(0));
        }
    }
}

TYPED_TEST(FirTyped, ShortCallKeepsTheNewestDelaySamples)
{
    using A = TypeParam;
    using D = typename A::D;
    const int n = 20;
    const auto taps = randomSignal<typename A::T>(n);
    Filter<A> f(taps.data(), n, qspAlgAuto);
    const auto hist = randomSignal<D>(n - 1), x = randomSignal<D>(5);
    std::vector<D> y(5), dd(n - 1);
    ASSERT_EQ(f.run(x.data(), y.data(), 5, hist.data(), dd.data()), qspStsOk);
    for (int j = 0; j < n - 1 - 5; ++j) ASSERT_TRUE(qsptest::sameBits(dd[j], hist[j + 5]));
    for (int j = 0; j < 5; ++j) ASSERT_TRUE(qsptest::sameBits(dd[n - 1 - 5 + j], x[j]));
    // Without a delay destination nothing else is written.
    ASSERT_EQ(f.run(x.data(), y.data(), 5, hist.data(), nullptr), qspStsOk);
}

// ---------------------------------------------------------------- aliasing and streams

// Compares two outputs: the same bits when both came from the direct
// method, within the transform's bound otherwise.
template <class A>
void expectClose(const typename A::D* a, const typename A::D* b, int count, bool exact, long double tol)
{
    for (int i = 0; i < count; ++i) {
        if (exact) ASSERT_TRUE(qsptest::sameBits(a[i], b[i])) << i;
        else ASSERT_LE(deviation(a[i], Elem<typename A::D>::get(b[i])), tol) << i;
    }
}

TYPED_TEST(FirTyped, InPlaceAndOverDelaySourceEqualSeparateArrays)
{
    using A = TypeParam;
    using D = typename A::D;
    const int count = 2 * A::staging + 1234;
    for (QspAlgType alg : {qspAlgDirect, qspAlgFFT, qspAlgAuto}) {
        for (int n : {1, 6, 70}) {
            const auto taps = randomSignal<typename A::T>(n);
            Filter<A> f(taps.data(), n, alg);
            const auto x = randomSignal<D>(count), hist = randomSignal<D>(n);
            std::vector<D> want(count), wantDly(n);
            ASSERT_EQ(f.run(x.data(), want.data(), count, hist.data(), wantDly.data()), qspStsOk);
            const bool exact = alg == qspAlgDirect || (alg == qspAlgAuto && n < A::fftTaps);
            const long double tol = fftBound<A>(n, norm2(taps.data(), n), 1) * 2;
            // pSrc == pDst.
            std::vector<D> io = x, dd(n);
            ASSERT_EQ(f.run(io.data(), io.data(), count, hist.data(), dd.data()), qspStsOk);
            expectClose<A>(io.data(), want.data(), count, exact, tol);
            for (int j = 0; j < n - 1; ++j) ASSERT_TRUE(qsptest::sameBits(dd[j], wantDly[j]));
            // pDst == pDlySrc: the history lives at the start of the output.
            std::vector<D> out(count);
            std::copy(hist.begin(), hist.begin() + (n - 1), out.begin());
            ASSERT_EQ(f.run(x.data(), out.data(), count, out.data(), dd.data()), qspStsOk);
            expectClose<A>(out.data(), want.data(), count, exact, tol);
            for (int j = 0; j < n - 1; ++j) ASSERT_TRUE(qsptest::sameBits(dd[j], wantDly[j]));
            // pDlySrc == pDlyDst.
            std::vector<D> line(hist.begin(), hist.begin() + (n - 1) + (n == 1)), y(count);
            ASSERT_EQ(f.run(x.data(), y.data(), count, line.data(), line.data()), qspStsOk);
            expectClose<A>(y.data(), want.data(), count, true, 0);
            for (int j = 0; j < n - 1; ++j) ASSERT_TRUE(qsptest::sameBits(line[j], wantDly[j]));
        }
    }
}

TYPED_TEST(FirTyped, StreamInPiecesEqualsOneCall)
{
    using A = TypeParam;
    using D = typename A::D;
    const int total = 5000;
    const int pieces[] = {1, 2, 3, 17, 64, 100, 257, 1000, 3556};
    for (QspAlgType alg : {qspAlgDirect, qspAlgFFT}) {
        for (int n : {1, 2, 5, 33, 64, 129}) {
            const auto taps = randomSignal<typename A::T>(n);
            Filter<A> f(taps.data(), n, alg);
            const auto x = randomSignal<D>(total);
            std::vector<D> whole(total), parts(total);
            ASSERT_EQ(f.run(x.data(), whole.data(), total, nullptr, nullptr), qspStsOk);
            std::vector<D> line(n, Elem<D>::make(0, 0));
            int at = 0;
            for (int k = 0; at < total; k = (k + 1) % 9) {
                const int len = std::min(pieces[k], total - at);
                ASSERT_EQ(f.run(x.data() + at, parts.data() + at, len, line.data(), line.data()), qspStsOk);
                at += len;
            }
            expectClose<A>(parts.data(), whole.data(), total, alg == qspAlgDirect,
                           2 * fftBound<A>(n, norm2(taps.data(), n), 1));
        }
    }
}

// ---------------------------------------------------------------- method choice

// Which method a call took, told by comparing with records that can only
// use one: the automatic choice must give the bits of one and not the
// other.
template <class A>
void expectMethod(int n, int count, bool fft)
{
    using D = typename A::D;
    const auto taps = randomSignal<typename A::T>(n);
    const auto x = randomSignal<D>(count), hist = randomSignal<D>(n);
    Filter<A> autoF(taps.data(), n, qspAlgAuto), direct(taps.data(), n, qspAlgDirect), viaFft(taps.data(), n, qspAlgFFT);
    std::vector<D> ya(count), yd(count), yf(count);
    ASSERT_EQ(autoF.run(x.data(), ya.data(), count, hist.data(), nullptr), qspStsOk);
    ASSERT_EQ(direct.run(x.data(), yd.data(), count, hist.data(), nullptr), qspStsOk);
    ASSERT_EQ(viaFft.run(x.data(), yf.data(), count, hist.data(), nullptr), qspStsOk);
    const auto& want = fft ? yf : yd;
    const auto& other = fft ? yd : yf;
    bool differs = false;
    for (int i = 0; i < count; ++i) {
        ASSERT_TRUE(qsptest::sameBits(ya[i], want[i])) << A::name << " N=" << n << " count=" << count << " i=" << i;
        differs = differs || !qsptest::sameBits(ya[i], other[i]);
    }
    EXPECT_TRUE(differs) << "the two methods gave the same bits: the test cannot tell them apart";
}

TYPED_TEST(FirTyped, AutomaticChoiceFollowsTheThresholds)
{
    using A = TypeParam;
    expectMethod<A>(A::fftTaps, A::fftIters - 1, false);
    expectMethod<A>(A::fftTaps, A::fftIters, true);
    expectMethod<A>(A::fftTaps - 1, 4 * A::fftIters, false);
    expectMethod<A>(A::fftTaps + 1, A::fftIters + 1, true);
    expectMethod<A>(3 * A::fftTaps, A::fftIters - 1, false);
}

TYPED_TEST(FirTyped, DirectRecordNeverUsesTheTransform)
{
    using A = TypeParam;
    using D = typename A::D;
    const int n = 200, count = 3000;
    const auto taps = randomSignal<typename A::T>(n);
    Filter<A> direct(taps.data(), n, qspAlgDirect);
    const auto x = randomSignal<D>(count);
    std::vector<D> y(count), ref(count);
    ASSERT_EQ(direct.run(x.data(), y.data(), count, nullptr, nullptr), qspStsOk);
    // The direct method is the same in pieces; the transform is not.
    std::vector<D> line(n, Elem<D>::make(0, 0));
    ASSERT_EQ(direct.run(x.data(), ref.data(), 1000, line.data(), line.data()), qspStsOk);
    ASSERT_EQ(direct.run(x.data() + 1000, ref.data() + 1000, 2000, line.data(), line.data()), qspStsOk);
    for (int i = 0; i < count; ++i) ASSERT_TRUE(qsptest::sameBits(y[i], ref[i]));
}

// ---------------------------------------------------------------- alignment

TYPED_TEST(FirTyped, RecordsAndBuffersAtOddAddresses)
{
    using A = TypeParam;
    using D = typename A::D;
    const int n = 45, count = 700;
    const auto taps = randomSignal<typename A::T>(n);
    const auto x = randomSignal<D>(count + 1), hist = randomSignal<D>(n);
    Filter<A> ref(taps.data(), n, qspAlgAuto);
    std::vector<D> want(count);
    ASSERT_EQ(ref.run(x.data(), want.data(), count, hist.data(), nullptr), qspStsOk);
    for (int off : {1, 2, 3, 7, 33, 63}) {
        Filter<A> f(taps.data(), n, qspAlgAuto, off, off);
        // Data one byte off their natural alignment as well.
        std::vector<Qsp8u> raw((count + 2) * sizeof(D) + 8);
        D* src = reinterpret_cast<D*>(raw.data() + 1);
        std::memcpy(static_cast<void*>(src), x.data(), count * sizeof(D));
        std::vector<Qsp8u> rawOut((count + 2) * sizeof(D) + 8);
        D* dst = reinterpret_cast<D*>(rawOut.data() + 3);
        ASSERT_EQ(f.run(src, dst, count, hist.data(), nullptr), qspStsOk);
        for (int i = 0; i < count; ++i) {
            D got;
            std::memcpy(static_cast<void*>(&got), dst + i, sizeof(D));
            ASSERT_TRUE(qsptest::sameBits(got, want[i])) << off << " " << i;
        }
    }
}

TYPED_TEST(FirTyped, WritesOnlyInsideTheReportedBuffer)
{
    using A = TypeParam;
    using D = typename A::D;
    for (int n : {1, 30, 200}) {
        for (QspAlgType alg : {qspAlgDirect, qspAlgFFT}) {
            const auto taps = randomSignal<typename A::T>(n);
            int s, b;
            ASSERT_EQ(A::getSize(n, &s, &b), qspStsOk);
            std::vector<Qsp8u> mem(s);
            auto* spec = reinterpret_cast<typename A::Spec*>(mem.data());
            ASSERT_EQ(A::init(taps.data(), n, alg, spec), qspStsOk);
            qsptest::Guarded<Qsp8u> buf(b, 256);
            const int count = 3 * A::staging;
            std::vector<D> io = randomSignal<D>(count), dd(n);
            ASSERT_EQ(A::filter(io.data(), io.data(), count, spec, nullptr, dd.data(), buf.data()), qspStsOk);
            EXPECT_TRUE(buf.guardsIntact()) << n;
        }
    }
}

// ---------------------------------------------------------------- threads

TYPED_TEST(FirTyped, EightThreadsShareOneRecord)
{
    using A = TypeParam;
    using D = typename A::D;
    const int n = 80, count = 6000, threads = 8;
    const auto taps = randomSignal<typename A::T>(n);
    for (QspAlgType alg : {qspAlgDirect, qspAlgFFT}) {
        Filter<A> f(taps.data(), n, alg);
        int s, b;
        ASSERT_EQ(A::getSize(n, &s, &b), qspStsOk);
        std::vector<std::vector<D>> in(threads), out(threads), want(threads);
        for (int t = 0; t < threads; ++t) {
            in[t] = randomSignal<D>(count);
            out[t].resize(count);
            want[t].resize(count);
            std::vector<D> line(n, Elem<D>::make(0, 0));
            for (int at = 0; at < count; at += 500)
                ASSERT_EQ(f.run(in[t].data() + at, want[t].data() + at, 500, line.data(), line.data()), qspStsOk);
        }
        const std::vector<Qsp8u> before = f.specMem;
        std::vector<std::thread> pool;
        for (int t = 0; t < threads; ++t)
            pool.emplace_back([&, t] {
                std::vector<Qsp8u> buf(b);
                std::vector<D> line(n, Elem<D>::make(0, 0));
                for (int at = 0; at < count; at += 500)
                    A::filter(in[t].data() + at, out[t].data() + at, 500, f.spec, line.data(), line.data(), buf.data());
            });
        for (auto& th : pool) th.join();
        for (int t = 0; t < threads; ++t)
            for (int i = 0; i < count; ++i) ASSERT_TRUE(qsptest::sameBits(out[t][i], want[t][i])) << t << " " << i;
        EXPECT_EQ(f.specMem, before);
    }
}

// ---------------------------------------------------------------- 16-bit front ends

// The single-precision running sum of the direct method, rounded to
// nearest even and saturated.
Qsp16s round16(float v)
{
    if (!(v < 32767.5f)) return 32767;
    if (!(v > -32768.5f)) return -32768;
    return Qsp16s(std::nearbyint(v));
}

template <class I, class A>
void check16(int n, int count, QspAlgType alg, int lo, int hi, float tapScale)
{
    using D = typename A::D;
    using T = typename A::T;
    constexpr bool cplx = Elem<I>::complex;
    std::vector<T> taps = randomSignal<T>(n, tapScale);
    const auto x = random16<I>(count, lo, hi), hist = random16<I>(n, lo, hi);
    Filter<A> f(taps.data(), n, alg);
    qsptest::Guarded<I> y(count), dd(n - 1);
    QspStatus st;
    if constexpr (cplx) st = qspsFIRSR_16sc(x.data(), y.data(), count, f.spec, hist.data(), dd.data(), f.buf);
    else st = qspsFIRSR_16s(x.data(), y.data(), count, f.spec, hist.data(), dd.data(), f.buf);
    ASSERT_EQ(st, qspStsOk);
    ASSERT_TRUE(y.guardsIntact() && dd.guardsIntact());
    // The same filter on the data widened to single precision, by the
    // direct method, rounded.
    std::vector<D> xf(count), hf(n);
    for (int i = 0; i < count; ++i) xf[i] = Elem<D>::make(Elem<I>::get(x[i]).real(), Elem<I>::get(x[i]).imag());
    for (int i = 0; i < n; ++i) hf[i] = Elem<D>::make(Elem<I>::get(hist[i]).real(), Elem<I>::get(hist[i]).imag());
    Filter<A> direct(taps.data(), n, qspAlgDirect);
    std::vector<D> yf(count);
    ASSERT_EQ(direct.run(xf.data(), yf.data(), count, hf.data(), nullptr), qspStsOk);
    const Sums ref = firSums(taps.data(), n, hist.data(), x.data(), count);
    for (int i = 0; i < count; ++i) {
        const LC v = Elem<D>::get(yf[i]);
        const LC g = Elem<I>::get(y[i]);
        ASSERT_EQ(g.real(), round16(float(v.real()))) << i;
        ASSERT_EQ(g.imag(), cplx ? round16(float(v.imag())) : 0) << i;
        // And within one step (plus the single-precision sum's error) of
        // the exact sum rounded and saturated.
        const long double slack = 0.5L + directBound<A>(n, ref.m[i]);
        auto clampL = [](long double z) { return std::min<long double>(32767, std::max<long double>(-32768, z)); };
        ASSERT_LE(std::abs(g.real() - clampL(ref.y[i].real())), slack) << i;
        ASSERT_LE(std::abs(g.imag() - clampL(ref.y[i].imag())), slack) << i;
    }
    for (int j = 0; j < n - 1; ++j) {
        const int at = count - (n - 1) + j;
        ASSERT_TRUE(qsptest::sameBits(dd[j], at >= 0 ? x[at] : hist[n - 1 + at])) << j;
    }
}

TEST(FirSR16, RealDataRoundsAndSaturates)
{
    for (QspAlgType alg : {qspAlgAuto, qspAlgDirect, qspAlgFFT}) {
        for (int n : {1, 2, 31, 32, 64, 100}) {
            check16<Qsp16s, F32>(n, 9000, alg, -2000, 2000, 1.0f);
            check16<Qsp16s, F32>(n, 300, alg, -32768, 32767, 4.0f);  // saturates often
        }
    }
}

TEST(FirSR16, ComplexDataRoundsAndSaturates)
{
    for (QspAlgType alg : {qspAlgAuto, qspAlgDirect, qspAlgFFT}) {
        for (int n : {1, 3, 18, 40}) {
            check16<Qsp16sc, F32fc>(n, 5000, alg, -2000, 2000, 1.0f);
            check16<Qsp16sc, F32fc>(n, 300, alg, -32768, 32767, 4.0f);
        }
    }
}

TEST(FirSR16, SaturationBoundsAndTiesToEven)
{
    // One tap of 0.5: 3 -> 1.5 -> 2, 5 -> 2.5 -> 2, -3 -> -2; two taps of 1
    // on 32767 + 32767 saturate, -32768 - 32768 as well.
    const Qsp32f half = 0.5f;
    Filter<F32> f(&half, 1, qspAlgAuto);
    const Qsp16s x[] = {3, 5, -3, -5, 1, -1};
    Qsp16s y[6];
    ASSERT_EQ(qspsFIRSR_16s(x, y, 6, f.spec, nullptr, nullptr, f.buf), qspStsOk);
    const Qsp16s want[] = {2, 2, -2, -2, 0, 0};
    for (int i = 0; i < 6; ++i) EXPECT_EQ(y[i], want[i]) << i;
    const Qsp32f ones[] = {1.0f, 1.0f};
    Filter<F32> g(ones, 2, qspAlgFFT);
    const Qsp16s big[] = {32767, 32767, -32768, -32768};
    Qsp16s out[4], line[1] = {32767};
    ASSERT_EQ(qspsFIRSR_16s(big, out, 4, g.spec, line, line, g.buf), qspStsOk);
    EXPECT_EQ(out[0], 32767);
    EXPECT_EQ(out[1], 32767);
    EXPECT_EQ(out[2], -1);
    EXPECT_EQ(out[3], -32768);
    EXPECT_EQ(line[0], -32768);
}

TEST(FirSR16, InPlaceAndSharedDelayLine)
{
    const int n = 37, count = 10000;
    const auto taps = randomSignal<Qsp32f>(n);
    Filter<F32> f(taps.data(), n, qspAlgAuto);
    const auto x = random16<Qsp16s>(count, -3000, 3000), hist = random16<Qsp16s>(n, -3000, 3000);
    std::vector<Qsp16s> want(count), wantDly(n - 1);
    ASSERT_EQ(qspsFIRSR_16s(x.data(), want.data(), count, f.spec, hist.data(), wantDly.data(), f.buf), qspStsOk);
    std::vector<Qsp16s> io = x, line(hist.begin(), hist.begin() + n - 1);
    ASSERT_EQ(qspsFIRSR_16s(io.data(), io.data(), count, f.spec, line.data(), line.data(), f.buf), qspStsOk);
    EXPECT_EQ(io, want);
    EXPECT_EQ(line, wantDly);
    // The history at the start of the output.
    std::vector<Qsp16s> out(count);
    std::copy(hist.begin(), hist.begin() + n - 1, out.begin());
    ASSERT_EQ(qspsFIRSR_16s(x.data(), out.data(), count, f.spec, out.data(), nullptr, f.buf), qspStsOk);
    EXPECT_EQ(out, want);
}

TEST(FirSR16, ChecksRecordThenPointersThenCount)
{
    const Qsp32f tap = 1.0f;
    Filter<F32> f(&tap, 1, qspAlgAuto);
    const Qsp32fc ctap = {1.0f, 0.0f};
    Filter<F32fc> g(&ctap, 1, qspAlgAuto);
    qsptest::Guarded<Qsp16s> y(4);
    qsptest::Guarded<Qsp16sc> yc(4);
    const Qsp16s x[4] = {};
    const Qsp16sc xc[4] = {};
    EXPECT_EQ(qspsFIRSR_16s(nullptr, nullptr, 0, nullptr, nullptr, nullptr, nullptr), qspStsNullPtr);
    EXPECT_EQ(qspsFIRSR_16s(x, y.data(), 4, nullptr, nullptr, nullptr, f.buf), qspStsNullPtr);
    EXPECT_EQ(qspsFIRSR_16s(nullptr, y.data(), 4, f.spec, nullptr, nullptr, f.buf), qspStsNullPtr);
    EXPECT_EQ(qspsFIRSR_16s(x, nullptr, 4, f.spec, nullptr, nullptr, f.buf), qspStsNullPtr);
    EXPECT_EQ(qspsFIRSR_16s(x, y.data(), 4, f.spec, nullptr, nullptr, nullptr), qspStsNullPtr);
    EXPECT_EQ(qspsFIRSR_16s(x, y.data(), 0, f.spec, nullptr, nullptr, f.buf), qspStsBadSize);
    EXPECT_EQ(qspsFIRSR_16sc(xc, yc.data(), 4, nullptr, nullptr, nullptr, g.buf), qspStsNullPtr);
    EXPECT_EQ(qspsFIRSR_16sc(nullptr, yc.data(), 4, g.spec, nullptr, nullptr, g.buf), qspStsNullPtr);
    EXPECT_EQ(qspsFIRSR_16sc(xc, nullptr, 4, g.spec, nullptr, nullptr, g.buf), qspStsNullPtr);
    EXPECT_EQ(qspsFIRSR_16sc(xc, yc.data(), 4, g.spec, nullptr, nullptr, nullptr), qspStsNullPtr);
    EXPECT_EQ(qspsFIRSR_16sc(xc, yc.data(), -1, g.spec, nullptr, nullptr, g.buf), qspStsBadSize);
    EXPECT_TRUE(y.untouched() && yc.untouched());
}

}  // namespace

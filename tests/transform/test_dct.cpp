// SPDX-License-Identifier: BSD-3-Clause
// The DCT: size queries and their limits, Init's checks (the length before
// the pointers, the identifier written last), the transform calls' checks,
// and the orthonormal type-II transform and its inverse against a long
// double reference at every length to 300 and at the methods' boundaries.
#include <cstdint>
#include <cstring>
#include <map>

#include "dct_kinds.h"
#include "transform/dct_record.h"

namespace {

using namespace dctref;
using qsptest::Guarded;

// The same bounds as the DFT's: relative RMS within 3e-7 sqrt(log2 L) single
// and 6e-16 sqrt(log2 L) double.
template <class T>
double bound(size_t n)
{
    return dftref::bound(sizeof(T) == 8, n);
}

// ------------------------------------------------------------ GetSize

template <class T>
void sizesOfTheMethods()
{
    constexpr bool dbl = sizeof(T) == 8;
    const int t = sizeof(T);
    for (bool inv : {false, true}) {
        int s = -1, i = -1, w = -1;
        EXPECT_EQ(getSize<T>(inv, 0, nullptr, nullptr, nullptr), qspStsBadSize) << "the length first";
        EXPECT_EQ(getSize<T>(inv, -3, &s, &i, &w), qspStsBadSize);
        EXPECT_EQ(getSize<T>(inv, 8, nullptr, &i, &w), qspStsNullPtr);
        EXPECT_EQ(getSize<T>(inv, 8, &s, nullptr, &w), qspStsNullPtr);
        EXPECT_EQ(getSize<T>(inv, 8, &s, &i, nullptr), qspStsNullPtr);
        EXPECT_EQ(s, -1);
        for (int n : {1, 2, 4, 8}) {
            ASSERT_EQ(getSize<T>(inv, n, &s, &i, &w), qspStsOk);
            EXPECT_EQ(s, dbl ? 168 : 160) << n;
            EXPECT_EQ(i, 0);
            EXPECT_EQ(w, 0);
        }
        for (int n = 3; n < 36; ++n) {
            if ((n & (n - 1)) == 0) continue;
            ASSERT_EQ(getSize<T>(inv, n, &s, &i, &w), qspStsOk);
            EXPECT_EQ(s, 4 * t * n + 192) << n;
            EXPECT_EQ(i, 0) << n;
            EXPECT_EQ(w, t * n + 64) << n;
        }
        for (int n : {16, 32, 1024, 36, 37, 100, 1000, 1031}) {
            ASSERT_EQ(getSize<T>(inv, n, &s, &i, &w), qspStsOk);
            EXPECT_GT(s, 192) << n;
            EXPECT_GT(w, 64) << n;
            if ((n & (n - 1)) == 0 && n <= 1024) EXPECT_EQ(i, 0) << "the FFT's built-in twiddles: " << n;
            if ((n & (n - 1)) != 0) EXPECT_GT(i, 64) << n;
        }
        ASSERT_EQ(getSize<T>(inv, 2048, &s, &i, &w), qspStsOk);
        EXPECT_GT(i, 64);
    }
}

TEST(DctGetSize, MethodsAndChecks)
{
    sizesOfTheMethods<float>();
    sizesOfTheMethods<double>();
}

// The inverse query is the forward one.
TEST(DctGetSize, InverseSizesAreTheForwardOnes)
{
    for (int n : {1, 5, 8, 16, 35, 36, 100, 1031, 4096}) {
        int a[3], b[3];
        ASSERT_EQ(qspsDCTFwdGetSize_32f(n, 0, a, a + 1, a + 2), qspStsOk);
        ASSERT_EQ(qspsDCTInvGetSize_32f(n, 1, b, b + 1, b + 2), qspStsOk);
        EXPECT_EQ(std::vector<int>(a, a + 3), std::vector<int>(b, b + 3));
        ASSERT_EQ(qspsDCTFwdGetSize_64f(n, 0, a, a + 1, a + 2), qspStsOk);
        ASSERT_EQ(qspsDCTInvGetSize_64f(n, 1, b, b + 1, b + 2), qspStsOk);
        EXPECT_EQ(std::vector<int>(a, a + 3), std::vector<int>(b, b + 3));
    }
}

TEST(DctGetSize, Limits)
{
    int s, i, w;
    EXPECT_EQ(qspsDCTFwdGetSize_32f(33554432, 0, &s, &i, &w), qspStsOk) << "2^25 by the FFT method";
    EXPECT_EQ(qspsDCTFwdGetSize_32f(33554433, 0, &s, &i, &w), qspStsBadSize);
    EXPECT_EQ(qspsDCTFwdGetSize_32f(33554431, 0, &s, &i, &w), qspStsOk) << "the longest convolution";
    EXPECT_EQ(qspsDCTInvGetSize_32f(67108863, 0, &s, &i, &w), qspStsBadSize);
    EXPECT_EQ(qspsDCTFwdGetSize_32f(268435456, 0, &s, &i, &w), qspStsBadSize) << "a power of two above FFFFFFF";
    EXPECT_EQ(qspsDCTFwdGetSize_32f(0x7FFFFFFF, 0, &s, &i, &w), qspStsBadSize);
    // double precision: one bound for the query and Init
    EXPECT_EQ(qspsDCTFwdGetSize_64f(16777215, 0, &s, &i, &w), qspStsOk);
    EXPECT_EQ(qspsDCTFwdGetSize_64f(16777217, 0, &s, &i, &w), qspStsBadSize);
    EXPECT_EQ(qspsDCTFwdGetSize_64f(1 << 26, 0, &s, &i, &w), qspStsOk);
    EXPECT_EQ(qspsDCTFwdGetSize_64f(1 << 27, 0, &s, &i, &w), qspStsBadSize);
}

// ------------------------------------------------------------ Init

template <class T>
void initChecks()
{
    for (bool inv : {false, true}) {
        void* rec = nullptr;
        Guarded<Qsp8u> block(8192), buf(8192);
        // the length before the pointers
        EXPECT_EQ(init<T>(inv, nullptr, 0, nullptr, nullptr), qspStsBadSize);
        EXPECT_EQ(init<T>(inv, &rec, -1, block.data(), buf.data()), qspStsBadSize);
        EXPECT_EQ(init<T>(inv, nullptr, 268435456, nullptr, nullptr), qspStsBadSize);
        if (sizeof(T) == 4) {
            EXPECT_EQ(init<T>(inv, nullptr, 67108865, nullptr, nullptr), qspStsBadSize);
            // Init accepts the convolution lengths its size query refuses:
            // the length passes, a pointer is missing
            EXPECT_EQ(init<T>(inv, nullptr, 33554433, block.data(), buf.data()), qspStsNullPtr);
            EXPECT_EQ(init<T>(inv, &rec, 67108863, nullptr, buf.data()), qspStsNullPtr);
        } else {
            EXPECT_EQ(init<T>(inv, nullptr, 16777217, nullptr, nullptr), qspStsBadSize);
            EXPECT_EQ(init<T>(inv, nullptr, 1 << 27, nullptr, nullptr), qspStsBadSize);
        }
        EXPECT_EQ(init<T>(inv, nullptr, 8, block.data(), buf.data()), qspStsNullPtr);
        EXPECT_EQ(init<T>(inv, &rec, 8, nullptr, buf.data()), qspStsNullPtr);
        EXPECT_TRUE(block.untouched());
        EXPECT_TRUE(buf.untouched());
        // the Init buffer is needed by the convolution method and by the
        // FFT method from 2048
        for (int n : {36, 100, 2048}) {
            int s, i, w;
            ASSERT_EQ(getSize<T>(inv, n, &s, &i, &w), qspStsOk);
            std::vector<Qsp8u> big(s + 64, 0xA5);
            EXPECT_EQ(init<T>(inv, &rec, n, big.data(), nullptr), qspStsNullPtr) << n;
            Qsp32u id;
            std::memcpy(&id, reinterpret_cast<Qsp8u*>((reinterpret_cast<uintptr_t>(big.data()) + 63) & ~uintptr_t(63)), 4);
            EXPECT_NE(id, sizeof(T) == 4 ? (inv ? 24u : 23u) : (inv ? 26u : 25u)) << "no identifier on failure";
        }
        for (int n : {1, 8, 16, 35, 1024}) {
            int s, i, w;
            ASSERT_EQ(getSize<T>(inv, n, &s, &i, &w), qspStsOk);
            std::vector<Qsp8u> big(s);
            EXPECT_EQ(init<T>(inv, &rec, n, big.data(), nullptr), qspStsOk) << n;
        }
    }
}

TEST(DctInit, LengthBeforePointersAndTheInitBuffer)
{
    initChecks<float>();
    initChecks<double>();
}

// Init takes the convolution lengths above the size query's bound: given a
// large enough block it builds a working record for 2^25 + 1.
TEST(DctInitHeavy, AcceptsALengthItsSizeQueryRefuses)
{
    const int n = 33554433;
    int s, i, w;
    ASSERT_EQ(qspsDCTFwdGetSize_32f(n, 0, &s, &i, &w), qspStsBadSize);
    // no query reports these sizes (they pass 2^31 bytes): blocks far larger
    // than the method needs, of which Init touches only what it uses
    const Qsp64s spec_bytes = 3LL << 30, init_bytes = 3LL << 30;
    struct Buffer {
        explicit Buffer(Qsp64s bytes) : p(qspsMalloc_8u_L(bytes)) {}
        ~Buffer() { qspsFree(p); }
        Qsp8u* p;
    } spec(spec_bytes), buf(init_bytes);
    ASSERT_NE(spec.p, nullptr);
    ASSERT_NE(buf.p, nullptr);
    void* rec = nullptr;
    ASSERT_EQ(init<float>(false, &rec, n, spec.p, buf.p), qspStsOk);
    // the record states the work size its transform needs (2147483647 would
    // stand for any size from 2^31 bytes on); 3 GiB cover it
    EXPECT_GT(static_cast<const dct::Record<float>*>(rec)->workSize, 0);
    Buffer work(3LL << 30);
    ASSERT_NE(work.p, nullptr);
    EXPECT_EQ(static_cast<const dct::Record<float>*>(rec)->id, 23u);
    EXPECT_EQ(static_cast<const dct::Record<float>*>(rec)->convMethod, 1u);
    // a constant input c gives c sqrt(L) at 0 and (nearly) nothing elsewhere
    struct Signal {
        explicit Signal(Qsp64s count) : p(static_cast<float*>(static_cast<void*>(qspsMalloc_8u_L(count * 4)))) {}
        ~Signal() { qspsFree(p); }
        float* p;
    } x(n), y(n);
    ASSERT_NE(x.p, nullptr);
    ASSERT_NE(y.p, nullptr);
    for (int k = 0; k < n; ++k) x.p[k] = 1.0f;
    ASSERT_EQ(qspsDCTFwd_32f(x.p, y.p, static_cast<const QspsDCTFwdSpec_32f*>(rec), work.p), qspStsOk);
    EXPECT_NEAR(y.p[0], std::sqrt(double(n)), 1e-4 * std::sqrt(double(n)));
    double worst = 0;
    for (int k = 1; k < n; k += 4099) worst = std::max(worst, double(std::fabs(y.p[k])));
    EXPECT_LT(worst, 1e-3);
}

// The header: identifier, length, hint, work size, the zero word, the two
// factors from double, the method flags.
template <class T>
void header(bool inv, int n, int method)
{
    Record<T> r = make<T>(inv, n, 7);
    ASSERT_EQ(r.status, qspStsOk);
    const auto* h = static_cast<const dct::Record<T>*>(r.rec);
    EXPECT_EQ(reinterpret_cast<uintptr_t>(h) % 64, 0u);
    EXPECT_EQ(h->id, sizeof(T) == 4 ? (inv ? 24u : 23u) : (inv ? 26u : 25u));
    EXPECT_EQ(h->len, n);
    EXPECT_EQ(h->zero, 0u);
    EXPECT_EQ(h->scale0, T(1.0 / std::sqrt(double(n))));
    EXPECT_EQ(h->scale, T(std::sqrt(2.0) / std::sqrt(double(n))));
    EXPECT_EQ(h->smallKernel, method == 0 ? 1u : 0u) << n;
    EXPECT_EQ(h->fftMethod, method == 1 ? 1u : 0u) << n;
    EXPECT_EQ(h->convMethod, method == 2 ? 1u : 0u) << n;
    EXPECT_EQ(h->workSize > 0, method != 0) << n;
}

TEST(DctInit, RecordHeaderAndMethod)
{
    for (bool inv : {false, true}) {
        for (int n : {1, 2, 4, 8}) header<float>(inv, n, 0), header<double>(inv, n, 0);
        for (int n : {16, 64, 4096}) header<float>(inv, n, 1), header<double>(inv, n, 1);
        for (int n : {3, 12, 35}) header<float>(inv, n, 3), header<double>(inv, n, 3);
        for (int n : {36, 37, 100, 1031}) header<float>(inv, n, 2), header<double>(inv, n, 2);
    }
}

// ------------------------------------------------------------ transforms

template <class T>
void callChecks(int n)
{
    for (bool inv : {false, true}) {
        Record<T> r = make<T>(inv, n), other = make<T>(!inv, n);
        ASSERT_EQ(r.status, qspStsOk);
        Guarded<T> src(n), dst(n);
        for (int i = 0; i < n; ++i) src[i] = T(i);
        EXPECT_EQ(call<T>(inv, nullptr, dst.data(), r.rec, r.workPtr()), qspStsNullPtr);
        EXPECT_EQ(call<T>(inv, src.data(), nullptr, r.rec, r.workPtr()), qspStsNullPtr);
        EXPECT_EQ(call<T>(inv, src.data(), dst.data(), nullptr, r.workPtr()), qspStsNullPtr);
        EXPECT_EQ(call<T>(inv, nullptr, dst.data(), other.rec, r.workPtr()), qspStsNullPtr) << "pointers first";
        EXPECT_EQ(call<T>(inv, src.data(), dst.data(), other.rec, r.workPtr()), qspStsBadRecord);
        std::vector<Qsp8u> zeros(256, 0);
        EXPECT_EQ(call<T>(inv, src.data(), dst.data(), zeros.data(), r.workPtr()), qspStsBadRecord);
        if (r.workSize > 0) EXPECT_EQ(call<T>(inv, src.data(), dst.data(), r.rec, nullptr), qspStsNullPtr) << n;
        EXPECT_TRUE(dst.untouched()) << n;
        EXPECT_EQ(call<T>(inv, src.data(), dst.data(), r.rec, r.workPtr()), qspStsOk);
        EXPECT_TRUE(dst.guardsIntact());
        if (r.workSize == 0) EXPECT_EQ(call<T>(inv, src.data(), dst.data(), r.rec, nullptr), qspStsOk);
    }
}

TEST(DctCalls, ChecksInOrderAndNothingWrittenOnError)
{
    for (int n : {1, 2, 4, 8, 16, 35, 36, 64, 101, 2048}) {
        callChecks<float>(n);
        callChecks<double>(n);
    }
    // a single-precision record refused by the double transform and back
    Record<float> f = make<float>(false, 16);
    Record<double> d = make<double>(false, 16);
    std::vector<float> x(16), y(16);
    std::vector<double> u(16), v(16);
    EXPECT_EQ(call<float>(false, x.data(), y.data(), d.rec, d.workPtr()), qspStsBadRecord);
    EXPECT_EQ(call<double>(false, u.data(), v.data(), f.rec, f.workPtr()), qspStsBadRecord);
}

// The references of the test signal of a length, shared by the precisions.
const std::vector<long double>& cachedReference(int n, bool inverse)
{
    static std::map<std::pair<int, bool>, std::vector<long double>> cache;
    std::vector<long double>& r = cache[{n, inverse}];
    if (r.empty()) r = reference(signal(n, 1), inverse);
    return r;
}

template <class T>
void accuracy(int n)
{
    Record<T> f = make<T>(false, n, n % 5), i = make<T>(true, n, n % 3);
    ASSERT_EQ(f.status, qspStsOk) << n;
    ASSERT_EQ(i.status, qspStsOk) << n;
    const std::vector<long double> x = signal(n, 1);
    const std::vector<long double>& want = cachedReference(n, false);
    const std::vector<long double> y = transform(f, x);
    EXPECT_LE(relRms(want, y), bound<T>(n)) << "forward L=" << n;
    EXPECT_LE(relRms(cachedReference(n, true), transform(i, x)), bound<T>(n)) << "inverse L=" << n;
    // forward then inverse returns the input
    EXPECT_LE(relRms(x, transform(i, y)), 2 * bound<T>(n)) << "round trip L=" << n;
    // in place as out of place
    EXPECT_EQ(transform(f, x, true), y) << n;
}

TEST(DctTransforms, EveryLengthTo300)
{
    for (int n = 1; n <= 300; ++n) {
        accuracy<float>(n);
        accuracy<double>(n);
    }
}

TEST(DctTransforms, LongerLengths)
{
    for (int n : {1000, 1024, 1031, 2048, 2597, 4095, 4096}) {
        accuracy<float>(n);
        accuracy<double>(n);
    }
}

// L = 1: y[0] = x[0]; a constant c: y[0] = c sqrt(L), zeros elsewhere.
TEST(DctTransforms, LengthOneAndConstants)
{
    Record<float> one = make<float>(false, 1);
    float x = -3.25f, y = 0;
    ASSERT_EQ(call<float>(false, &x, &y, one.rec, nullptr), qspStsOk);
    EXPECT_EQ(y, x);
    for (int n : {2, 3, 8, 16, 35, 36, 100, 1024}) {
        Record<double> r = make<double>(false, n);
        const std::vector<long double> c(n, 0.5L);
        const std::vector<long double> out = transform(r, c);
        EXPECT_NEAR(double(out[0]), 0.5 * std::sqrt(double(n)), 1e-14 * n) << n;
        for (int k = 1; k < n; ++k) EXPECT_NEAR(double(out[k]), 0.0, 1e-14 * n) << n << " " << k;
    }
}

TEST(DctTransforms, RecordsAtAnyAddress)
{
    for (int n : {4, 12, 16, 36, 64, 101, 2048})
        for (int off : {1, 17, 63}) {
            Record<float> a = make<float>(false, n, 0), b = make<float>(false, n, off);
            const std::vector<long double> x = signal(n, 2);
            EXPECT_EQ(transform(a, x), transform(b, x)) << n << " offset " << off;
        }
}

}  // namespace

// SPDX-License-Identifier: BSD-3-Clause
// FIRMR: every type against upsample -> filter -> downsample in long double
// over a grid of factors, phases and tap counts; the delay line in and out;
// consecutive calls equal one call bit for bit; in place and the delay
// lines shared; agreement with FIRSR for factors 1; sizes, odd record
// addresses, foreign records, and every status with nothing written.
#include <algorithm>
#include <cmath>
#include <complex>
#include <cstring>
#include <vector>

#include "qsp_test.h"

using qsptest::Guarded;

namespace {

using Ext = long double;

// ---------------------------------------------------------------- types

template <class Tap, class Data, class Spec, QspDataType Code>
struct Api {
    using TapT = Tap;
    using DataT = Data;
    using SpecT = Spec;
    static constexpr QspDataType code = Code;
};

struct A32f : Api<Qsp32f, Qsp32f, QspsFIRMRSpec_32f, qsp32f> {
    static constexpr auto init = qspsFIRMRInit_32f;
    static constexpr auto fn = qspsFIRMR_32f;
};
struct A64f : Api<Qsp64f, Qsp64f, QspsFIRMRSpec_64f, qsp64f> {
    static constexpr auto init = qspsFIRMRInit_64f;
    static constexpr auto fn = qspsFIRMR_64f;
};
struct A32fc : Api<Qsp32fc, Qsp32fc, QspsFIRMRSpec_32fc, qsp32fc> {
    static constexpr auto init = qspsFIRMRInit_32fc;
    static constexpr auto fn = qspsFIRMR_32fc;
};
struct A64fc : Api<Qsp64fc, Qsp64fc, QspsFIRMRSpec_64fc, qsp64fc> {
    static constexpr auto init = qspsFIRMRInit_64fc;
    static constexpr auto fn = qspsFIRMR_64fc;
};
struct A32f32fc : Api<Qsp32f, Qsp32fc, QspsFIRMRSpec32f_32fc, qsp32f> {
    static constexpr auto init = qspsFIRMRInit32f_32fc;
    static constexpr auto fn = qspsFIRMR32f_32fc;
};
// The 16-bit forms run the single-precision records.
struct A16s : Api<Qsp32f, Qsp16s, QspsFIRMRSpec_32f, qsp32f> {
    static constexpr auto init = qspsFIRMRInit_32f;
    static constexpr auto fn = qspsFIRMR_16s;
};
struct A16sc : Api<Qsp32fc, Qsp16sc, QspsFIRMRSpec_32fc, qsp32fc> {
    static constexpr auto init = qspsFIRMRInit_32fc;
    static constexpr auto fn = qspsFIRMR_16sc;
};

template <class A>
constexpr bool kMixed = std::is_same_v<A, A32f32fc>;

// Sizes through the query that matches the record.
template <class A>
void sizes(int n, int up, int down, int* spec, int* buf)
{
    if constexpr (kMixed<A>) ASSERT_EQ(qspsFIRMRGetSize32f_32fc(n, up, down, spec, buf), qspStsOk);
    else ASSERT_EQ(qspsFIRMRGetSize(n, up, down, A::code, spec, buf), qspStsOk);
}

// Values as complex long doubles.
template <class T>
std::complex<Ext> cx(const T& v)
{
    if constexpr (std::is_arithmetic_v<T>) return {Ext(v), 0};
    else return {Ext(v.re), Ext(v.im)};
}

template <class T>
constexpr bool kComplex = !std::is_arithmetic_v<T>;
template <class T>
constexpr bool kInteger = std::is_same_v<T, Qsp16s> || std::is_same_v<T, Qsp16sc>;

template <class T>
T randomSample(std::mt19937_64& g)
{
    std::uniform_real_distribution<double> u(-1, 1);
    if constexpr (std::is_same_v<T, Qsp16s>) return Qsp16s(int(g() % 20001) - 10000);
    else if constexpr (std::is_same_v<T, Qsp16sc>) return {Qsp16s(int(g() % 20001) - 10000), Qsp16s(int(g() % 20001) - 10000)};
    else if constexpr (std::is_arithmetic_v<T>) return T(u(g));
    else return {decltype(T{}.re)(u(g)), decltype(T{}.re)(u(g))};
}

template <class T>
std::vector<T> randomVector(size_t n, unsigned seed)
{
    std::mt19937_64 g(seed);
    std::vector<T> v(n);
    for (auto& e : v) e = randomSample<T>(g);
    return v;
}

// ---------------------------------------------------------------- reference

struct Shape {
    int n, up, upPhase, down, downPhase;
};

int historyOf(const Shape& s) { return (s.n - 1 + s.up - 1) / s.up; }

// Dense reference: x extended by the delay line (zeros when null, and
// before it), upsampled with x[m] at mU + upPhase, filtered, every D-th
// kept from downPhase. Also the bound sum |h u| of every output.
template <class Tap, class T>
void reference(const Shape& s, const std::vector<Tap>& h, const std::vector<T>& x, const T* dly, int iters,
               std::vector<std::complex<Ext>>& y, std::vector<Ext>& mag)
{
    const int H = historyOf(s);
    auto xAt = [&](long m) -> std::complex<Ext> {
        if (m >= 0) return cx(x[m]);
        if (m >= -H && dly) return cx(dly[H + m]);
        return 0;
    };
    y.assign(size_t(iters) * s.up, 0);
    mag.assign(y.size(), 0);
    for (long n = 0; n < long(y.size()); ++n) {
        const long k = n * s.down + s.downPhase;
        for (int j = 0; j < s.n; ++j) {
            const long t = k - j - s.upPhase;
            if (t % s.up != 0) continue;
            const std::complex<Ext> v = cx(h[j]) * xAt(t >= 0 ? t / s.up : -((-t) / s.up));
            y[n] += v;
            mag[n] += std::abs(v);
        }
    }
}

// Unit roundoff of the arithmetic of a data type.
template <class T>
Ext epsOf()
{
    if constexpr (std::is_same_v<T, Qsp64f> || std::is_same_v<T, Qsp64fc>) return 0x1p-53L;
    else return 0x1p-24L;
}

// One output against the reference: floating outputs within the rounding
// of a sum of at most N + D terms (per part); 16-bit outputs are the
// rounded, saturated value, allowed one step where the single-precision sum
// lies within its error of a rounding boundary.
template <class T>
void expectNear(const T& got, std::complex<Ext> want, Ext mag, int terms, const char* what, long at)
{
    const Ext bound = 2 * terms * epsOf<T>() * mag + 1e-30L;
    if constexpr (kInteger<T>) {
        auto check = [&](Qsp16s g, Ext w) {
            const Ext clamped = std::min<Ext>(32767, std::max<Ext>(-32768, w));
            const Ext r = std::nearbyint(clamped);
            if (std::fabs(Ext(g) - r) != 0) {
                ASSERT_LE(std::fabs(Ext(g) - clamped), 0.5L + bound) << what << " at " << at;
            }
        };
        if constexpr (std::is_same_v<T, Qsp16s>) check(got, want.real());
        else check(got.re, want.real()), check(got.im, want.imag());
    } else {
        const std::complex<Ext> g = cx(got);
        ASSERT_LE(std::fabs(g.real() - want.real()), bound) << what << " at " << at << " want " << double(want.real());
        ASSERT_LE(std::fabs(g.imag() - want.imag()), bound) << what << " at " << at;
    }
}

// ---------------------------------------------------------------- a filter

template <class A>
struct Filter {
    using Tap = typename A::TapT;
    using T = typename A::DataT;
    Shape s;
    std::vector<Tap> h;
    std::vector<Qsp8u> spec, buf;
    typename A::SpecT* rec;

    explicit Filter(const Shape& shape, int offset = 0) : s(shape), h(randomVector<Tap>(shape.n, 7 + shape.n))
    {
        int specSize = 0, bufSize = 0;
        sizes<A>(s.n, s.up, s.down, &specSize, &bufSize);
        spec.assign(specSize + offset, 0xA5);
        buf.assign(bufSize, 0xA5);
        rec = reinterpret_cast<typename A::SpecT*>(spec.data() + offset);
        EXPECT_EQ(A::init(h.data(), s.n, s.up, s.upPhase, s.down, s.downPhase, rec), qspStsOk);
    }
    QspStatus run(const T* x, T* y, int iters, const T* dIn, T* dOut)
    {
        return A::fn(x, y, iters, rec, dIn, dOut, buf.data());
    }
};

template <class A>
void expectMatchesReference(const Shape& s, int iters)
{
    using T = typename A::DataT;
    Filter<A> f(s, int(s.n % 64));
    const int H = historyOf(s);
    const std::vector<T> x = randomVector<T>(size_t(iters) * s.down, 11);
    const std::vector<T> dly = randomVector<T>(H, 13);
    for (bool withDly : {true, false}) {
        const T* d = withDly && H ? dly.data() : nullptr;
        Guarded<T> y(size_t(iters) * s.up), dOut(H ? H : 1);
        ASSERT_EQ(f.run(x.data(), y.data(), iters, d, dOut.data()), qspStsOk);
        EXPECT_TRUE(y.guardsIntact() && dOut.guardsIntact());
        std::vector<std::complex<Ext>> want;
        std::vector<Ext> mag;
        reference(s, f.h, x, d, iters, want, mag);
        for (size_t n = 0; n < want.size(); ++n) expectNear(y[n], want[n], mag[n], s.n + s.down, "output", long(n));
        // The new delay line: the last H of history and input.
        std::vector<T> ext;
        for (int j = 0; j < H; ++j) ext.push_back(d ? d[j] : T{});
        ext.insert(ext.end(), x.begin(), x.end());
        if (H) EXPECT_EQ(std::memcmp(dOut.data(), ext.data() + ext.size() - H, H * sizeof(T)), 0);
        else EXPECT_TRUE(dOut.untouched());
    }
}

template <class A>
void expectShapes(const std::vector<int>& tapCounts)
{
    for (int n : tapCounts)
        for (int up : {1, 2, 3, 5})
            for (int down : {1, 2, 4, 7})
                for (int upPhase : {0, up - 1})
                    for (int downPhase : {0, down - 1}) {
                        SCOPED_TRACE(testing::Message() << "N " << n << " up " << up << "/" << upPhase << " down "
                                                        << down << "/" << downPhase);
                        expectMatchesReference<A>({n, up, upPhase, down, downPhase}, 37);
                        if (testing::Test::HasFatalFailure()) return;
                    }
}

// Blocks of varied sizes with one delay array for both lines equal one
// call, bit for bit; so does the same in place.
template <class A>
void expectBlocksJoin(const Shape& s)
{
    using T = typename A::DataT;
    Filter<A> f(s);
    const int H = historyOf(s), iters = 300;
    const std::vector<T> x = randomVector<T>(size_t(iters) * s.down, 3);
    const std::vector<T> dly0 = randomVector<T>(H, 4);
    std::vector<T> whole(size_t(iters) * s.up), parts(whole.size()), dly = dly0;
    ASSERT_EQ(f.run(x.data(), whole.data(), iters, dly0.data(), nullptr), qspStsOk);
    for (int at = 0, step = 1; at < iters; at += step, step = step * 5 % 71 + 1) {
        const int k = std::min(step, iters - at);
        ASSERT_EQ(f.run(x.data() + size_t(at) * s.down, parts.data() + size_t(at) * s.up, k, dly.data(), dly.data()),
                  qspStsOk);
    }
    EXPECT_EQ(std::memcmp(whole.data(), parts.data(), whole.size() * sizeof(T)), 0);
    // In place: the buffer holds the input and receives the output.
    std::vector<T> io(std::max(x.size(), whole.size()));
    std::copy(x.begin(), x.end(), io.begin());
    ASSERT_EQ(f.run(io.data(), io.data(), iters, dly0.data(), nullptr), qspStsOk);
    EXPECT_EQ(std::memcmp(whole.data(), io.data(), whole.size() * sizeof(T)), 0);
    // The output over the delay source.
    std::vector<T> over(std::max<size_t>(whole.size(), H));
    std::copy(dly0.begin(), dly0.end(), over.begin());
    ASSERT_EQ(f.run(x.data(), over.data(), iters, over.data(), nullptr), qspStsOk);
    EXPECT_EQ(std::memcmp(whole.data(), over.data(), whole.size() * sizeof(T)), 0);
}

}  // namespace

TEST(FIRMR, Matches32f) { expectShapes<A32f>({1, 2, 7, 24, 65}); }
TEST(FIRMR, Matches64f) { expectShapes<A64f>({1, 5, 33}); }
TEST(FIRMR, Matches32fc) { expectShapes<A32fc>({1, 6, 31}); }
TEST(FIRMR, Matches64fc) { expectShapes<A64fc>({3, 20}); }
TEST(FIRMR, Matches32f32fc) { expectShapes<A32f32fc>({1, 9, 40}); }
TEST(FIRMR, Matches16s) { expectShapes<A16s>({1, 8, 30}); }
TEST(FIRMR, Matches16sc) { expectShapes<A16sc>({4, 17}); }

// Long filters, long blocks and large factors.
TEST(FIRMR, LongFiltersAndFactors)
{
    expectMatchesReference<A32f>({300, 4, 1, 1, 0}, 1500);
    expectMatchesReference<A32f>({301, 1, 0, 6, 5}, 900);
    expectMatchesReference<A64f>({257, 3, 2, 8, 3}, 700);
    expectMatchesReference<A32f>({64, 160, 17, 147, 100}, 40);
    expectMatchesReference<A32fc>({50, 7, 6, 9000, 4321}, 3);
    expectMatchesReference<A32f>({5, 40, 39, 1, 0}, 50);
}

TEST(FIRMR, BlocksJoinAndInPlace)
{
    for (Shape s : {Shape{1, 1, 0, 1, 0}, {33, 1, 0, 1, 0}, {33, 3, 1, 1, 0}, {33, 1, 0, 4, 2}, {61, 5, 3, 3, 2},
                    {61, 3, 0, 5, 4}, {200, 2, 1, 3, 0}}) {
        SCOPED_TRACE(testing::Message() << "N " << s.n << " up " << s.up << " down " << s.down);
        expectBlocksJoin<A32f>(s);
        expectBlocksJoin<A64fc>(s);
        expectBlocksJoin<A32f32fc>(s);
        expectBlocksJoin<A16s>(s);
    }
}

// Factors 1 are the single-rate filter's direct form, bit for bit.
TEST(FIRMR, FactorsOneAreFIRSR)
{
    for (int n : {1, 3, 31, 32, 100}) {
        Filter<A32f> mr({n, 1, 0, 1, 0});
        int specSize = 0, bufSize = 0;
        ASSERT_EQ(qspsFIRSRGetSize(n, qsp32f, &specSize, &bufSize), qspStsOk);
        std::vector<Qsp8u> spec(specSize), buf(bufSize);
        auto* sr = reinterpret_cast<QspsFIRSpec_32f*>(spec.data());
        ASSERT_EQ(qspsFIRSRInit_32f(mr.h.data(), n, qspAlgDirect, sr), qspStsOk);
        const std::vector<Qsp32f> x = randomVector<Qsp32f>(500, 1), dly = randomVector<Qsp32f>(n, 2);
        std::vector<Qsp32f> a(500), b(500);
        ASSERT_EQ(mr.run(x.data(), a.data(), 500, dly.data(), nullptr), qspStsOk);
        ASSERT_EQ(qspsFIRSR_32f(x.data(), b.data(), 500, sr, dly.data(), nullptr, buf.data()), qspStsOk);
        EXPECT_EQ(std::memcmp(a.data(), b.data(), sizeof(Qsp32f) * 500), 0) << n;
    }
}

TEST(FIRMR, OddRecordAddresses)
{
    for (int offset : {1, 17, 63}) {
        Filter<A64f> f({21, 3, 2, 2, 1}, offset);
        const std::vector<Qsp64f> x = randomVector<Qsp64f>(40, 5);
        std::vector<Qsp64f> y(60);
        EXPECT_EQ(f.run(x.data(), y.data(), 20, nullptr, nullptr), qspStsOk);
        std::vector<std::complex<Ext>> want;
        std::vector<Ext> mag;
        reference(f.s, f.h, x, (const Qsp64f*)nullptr, 20, want, mag);
        for (int n = 0; n < 60; ++n) expectNear(y[n], want[n], mag[n], 25, "odd", n);
    }
}

TEST(FIRMR, ForeignRecordsRefused)
{
    Filter<A64f> f64({8, 2, 0, 3, 1});
    Filter<A32fc> f32fc({8, 2, 0, 3, 1});
    Filter<A32f32fc> fMixed({8, 2, 0, 3, 1});
    Filter<A32f> f32({8, 2, 0, 3, 1});
    std::vector<Qsp8u> zeros(f32.spec.size(), 0);
    Guarded<Qsp32f> y(32);
    Guarded<Qsp32fc> yc(32);
    Guarded<Qsp16s> y16(32);
    Guarded<Qsp16sc> y16c(32);
    const std::vector<Qsp32f> x(30, 1.0f);
    const std::vector<Qsp32fc> xc(30, {1.0f, 0.0f});
    const std::vector<Qsp16s> x16(30, 1);
    const std::vector<Qsp16sc> x16c(30, {1, 1});
    auto as32f = [](auto& f) { return reinterpret_cast<QspsFIRMRSpec_32f*>(f.rec); };
    auto as32fc = [](auto& f) { return reinterpret_cast<QspsFIRMRSpec_32fc*>(f.rec); };
    EXPECT_EQ(qspsFIRMR_32f(x.data(), y.data(), 10, as32f(f64), nullptr, nullptr, f64.buf.data()), qspStsBadRecord);
    EXPECT_EQ(qspsFIRMR_32f(x.data(), y.data(), 10, as32f(fMixed), nullptr, nullptr, f64.buf.data()), qspStsBadRecord);
    EXPECT_EQ(qspsFIRMR_32f(x.data(), y.data(), 10, reinterpret_cast<QspsFIRMRSpec_32f*>(zeros.data()), nullptr,
                            nullptr, f64.buf.data()),
              qspStsBadRecord);
    EXPECT_EQ(qspsFIRMR_16s(x16.data(), y16.data(), 10, as32f(f32fc), nullptr, nullptr, f64.buf.data()), qspStsBadRecord);
    EXPECT_EQ(qspsFIRMR_32fc(xc.data(), yc.data(), 10, as32fc(fMixed), nullptr, nullptr, f64.buf.data()), qspStsBadRecord);
    EXPECT_EQ(qspsFIRMR_16sc(x16c.data(), y16c.data(), 10, as32fc(f32), nullptr, nullptr, f64.buf.data()), qspStsBadRecord);
    EXPECT_EQ(qspsFIRMR32f_32fc(xc.data(), yc.data(), 10, reinterpret_cast<QspsFIRMRSpec32f_32fc*>(f32fc.rec), nullptr,
                                nullptr, f64.buf.data()),
              qspStsBadRecord);
    EXPECT_EQ(qspsFIRMR_64f(reinterpret_cast<const Qsp64f*>(x.data()), reinterpret_cast<Qsp64f*>(y.data()), 5,
                            reinterpret_cast<QspsFIRMRSpec_64f*>(f32.rec), nullptr, nullptr, f64.buf.data()),
              qspStsBadRecord);
    EXPECT_TRUE(y.untouched() && yc.untouched() && y16.untouched() && y16c.untouched());
}

TEST(FIRMR, Statuses)
{
    int spec = 3, buf = 4;
    // Size queries check in parameter order.
    EXPECT_EQ(qspsFIRMRGetSize(0, 0, 0, 99, nullptr, nullptr), qspStsBadTapCount);
    EXPECT_EQ(qspsFIRMRGetSize(4, 0, 0, 99, nullptr, nullptr), qspStsBadFactor);
    EXPECT_EQ(qspsFIRMRGetSize(4, 2, -1, 99, nullptr, nullptr), qspStsBadFactor);
    EXPECT_EQ(qspsFIRMRGetSize(4, 2, 3, 99, nullptr, nullptr), qspStsBadDataType);
    for (int t : {0, 7, 11, 12, 18, 21, -1}) EXPECT_EQ(qspsFIRMRGetSize(4, 2, 3, t, &spec, &buf), qspStsBadDataType);
    EXPECT_EQ(qspsFIRMRGetSize(4, 2, 3, qsp32f, nullptr, &buf), qspStsNullPtr);
    EXPECT_EQ(qspsFIRMRGetSize(4, 2, 3, qsp32f, &spec, nullptr), qspStsNullPtr);
    EXPECT_EQ(qspsFIRMRGetSize(0x7FFFFFFF, 1, 1, qsp64fc, &spec, &buf), qspStsOverflow);
    EXPECT_EQ(qspsFIRMRGetSize32f_32fc(-1, 2, 3, nullptr, nullptr), qspStsBadTapCount);
    EXPECT_EQ(qspsFIRMRGetSize32f_32fc(1, 2, 0, nullptr, nullptr), qspStsBadFactor);
    EXPECT_EQ(qspsFIRMRGetSize32f_32fc(1, 2, 3, &spec, nullptr), qspStsNullPtr);
    EXPECT_EQ(spec, 3);
    EXPECT_EQ(buf, 4);

    // Init: the tap count, the pointers, then factors and phases in order.
    const std::vector<Qsp32f> h(8, 0.5f);
    Guarded<Qsp8u> mem(4096);
    auto* rec = reinterpret_cast<QspsFIRMRSpec_32f*>(mem.data());
    EXPECT_EQ(qspsFIRMRInit_32f(nullptr, 0, 0, 0, 0, 0, nullptr), qspStsBadTapCount);
    EXPECT_EQ(qspsFIRMRInit_32f(nullptr, 8, 0, 0, 0, 0, rec), qspStsNullPtr);
    EXPECT_EQ(qspsFIRMRInit_32f(h.data(), 8, 0, 0, 0, 0, nullptr), qspStsNullPtr);
    EXPECT_EQ(qspsFIRMRInit_32f(h.data(), 8, 0, 5, 0, 5, rec), qspStsBadFactor);
    EXPECT_EQ(qspsFIRMRInit_32f(h.data(), 8, 2, 2, 0, 5, rec), qspStsBadPhase);
    EXPECT_EQ(qspsFIRMRInit_32f(h.data(), 8, 2, -1, 0, 5, rec), qspStsBadPhase);
    EXPECT_EQ(qspsFIRMRInit_32f(h.data(), 8, 2, 1, 0, 5, rec), qspStsBadFactor);
    EXPECT_EQ(qspsFIRMRInit_32f(h.data(), 8, 2, 1, 3, 3, rec), qspStsBadPhase);
    EXPECT_EQ(qspsFIRMRInit_32f(h.data(), 8, 2, 1, 3, int(0x80000000), rec), qspStsBadPhase);
    EXPECT_TRUE(mem.untouched());

    // Filtering: the record pointer, the data pointers, the count, the record.
    Filter<A32f> f({8, 2, 1, 3, 2});
    const std::vector<Qsp32f> x(30, 1.0f);
    Guarded<Qsp32f> y(20), dOut(4);
    Guarded<Qsp8u> work(f.buf.size());
    std::vector<Qsp8u> zeros(f.spec.size(), 0);
    auto* bad = reinterpret_cast<QspsFIRMRSpec_32f*>(zeros.data());
    EXPECT_EQ(qspsFIRMR_32f(x.data(), y.data(), 10, nullptr, nullptr, dOut.data(), work.data()), qspStsNullPtr);
    EXPECT_EQ(qspsFIRMR_32f(nullptr, y.data(), 10, f.rec, nullptr, dOut.data(), work.data()), qspStsNullPtr);
    EXPECT_EQ(qspsFIRMR_32f(x.data(), nullptr, 10, f.rec, nullptr, dOut.data(), work.data()), qspStsNullPtr);
    EXPECT_EQ(qspsFIRMR_32f(x.data(), y.data(), 10, f.rec, nullptr, dOut.data(), nullptr), qspStsNullPtr);
    EXPECT_EQ(qspsFIRMR_32f(nullptr, y.data(), 0, bad, nullptr, dOut.data(), work.data()), qspStsNullPtr);
    EXPECT_EQ(qspsFIRMR_32f(x.data(), y.data(), 0, bad, nullptr, dOut.data(), work.data()), qspStsBadSize);
    EXPECT_EQ(qspsFIRMR_32f(x.data(), y.data(), -5, f.rec, nullptr, dOut.data(), work.data()), qspStsBadSize);
    EXPECT_EQ(qspsFIRMR_32f(x.data(), y.data(), 10, bad, nullptr, dOut.data(), work.data()), qspStsBadRecord);
    EXPECT_TRUE(y.untouched() && dOut.untouched() && work.untouched());
}

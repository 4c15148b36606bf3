// SPDX-License-Identifier: BSD-3-Clause
// WTFwd and WTInv, the two-channel filter banks: the analysis and synthesis
// sums against their definitions, streams cut into calls of any size, the
// delay lines read and set, the integer front and back ends, perfect
// reconstruction of the Haar and Daubechies-4 banks with their stated delay,
// and the status paths of the size queries, Init and the calls.
#include <cmath>
#include <cstdint>
#include <limits>
#include <vector>

#include "qsp_test.h"

namespace {

using qsptest::Guarded;

struct Bank {
    std::vector<float> h0, h1, g0, g1;
};

// Daubechies 4: h1[j] = (-1)^j h0[N-1-j], synthesis taps the time reverse.
Bank daubechies4()
{
    const double s3 = std::sqrt(3.0), d = 4 * std::sqrt(2.0);
    Bank b;
    b.h0 = {float((1 + s3) / d), float((3 + s3) / d), float((3 - s3) / d), float((1 - s3) / d)};
    for (int j = 0; j < 4; ++j) b.h1.push_back(float((j % 2 ? -1 : 1) * b.h0[3 - j]));
    for (int j = 0; j < 4; ++j) b.g0.push_back(b.h0[3 - j]), b.g1.push_back(b.h1[3 - j]);
    return b;
}

Bank haar()
{
    const float c = float(1 / std::sqrt(2.0));
    return {{c, c}, {c, -c}, {c, c}, {-c, c}};
}

template <bool Inv>
struct State {
    std::vector<Qsp8u> block;
    void* st = nullptr;
    QspStatus status;
    State(const std::vector<float>& lo, int offLo, const std::vector<float>& hi, int offHi)
    {
        int size = 0;
        status = Inv ? qspsWTInvGetSize(qsp32f, int(lo.size()), offLo, int(hi.size()), offHi, &size)
                     : qspsWTFwdGetSize(qsp32f, int(lo.size()), offLo, int(hi.size()), offHi, &size);
        if (status) return;
        block.assign(size + 3, 0xA5);
        Qsp8u* at = block.data() + 3;  // a block at an odd address
        status = Inv ? qspsWTInvInit_32f(reinterpret_cast<QspsWTInvState_32f**>(&st), lo.data(), int(lo.size()), offLo,
                                         hi.data(), int(hi.size()), offHi, at)
                     : qspsWTFwdInit_32f(reinterpret_cast<QspsWTFwdState_32f**>(&st), lo.data(), int(lo.size()), offLo,
                                         hi.data(), int(hi.size()), offHi, at);
    }
    QspsWTFwdState_32f* fwd() { return static_cast<QspsWTFwdState_32f*>(st); }
    QspsWTInvState_32f* inv() { return static_cast<QspsWTInvState_32f*>(st); }
};

// out[k] = sum_j h[j] x[2k - offs - j], x before 0 zero.
std::vector<long double> analysisRef(const std::vector<float>& x, const std::vector<float>& h, int offs)
{
    std::vector<long double> out(x.size() / 2);
    for (size_t k = 0; k < out.size(); ++k) {
        long double acc = 0;
        for (size_t j = 0; j < h.size(); ++j) {
            const long long m = 2 * (long long)k - offs - (long long)j;
            if (m >= 0) acc += (long double)h[j] * x[m];
        }
        out[k] = acc;
    }
    return out;
}

// y[n] = sum_j g[j] u[n - offs - 1 - j], u[2k] = in[k], odd u zero.
std::vector<long double> synthesisRef(const std::vector<float>& in, const std::vector<float>& g, int offs)
{
    std::vector<long double> y(2 * in.size(), 0);
    for (size_t n = 0; n < y.size(); ++n)
        for (size_t j = 0; j < g.size(); ++j) {
            const long long m = (long long)n - offs - 1 - (long long)j;
            if (m >= 0 && m % 2 == 0) y[n] += (long double)g[j] * in[m / 2];
        }
    return y;
}

std::vector<float> signal(size_t n, unsigned salt)
{
    std::mt19937 gen(salt);
    std::vector<float> x(n);
    for (auto& v : x) v = float(int(gen() % 2001) - 1000) / 256.0f;
    return x;
}

std::vector<float> taps(int n, unsigned salt)
{
    std::mt19937 gen(salt + 1000);
    std::vector<float> t(n);
    for (auto& v : t) v = float(int(gen() % 201) - 100) / 64.0f;
    return t;
}

// Float sums of len terms: within len roundings of the sum of magnitudes.
long double tolerance(const std::vector<float>& h, long double amplitude)
{
    long double s = 0;
    for (float v : h) s += fabsl(v);
    return s * amplitude * h.size() * std::numeric_limits<float>::epsilon();
}

TEST(WTFwd, DefinitionAcrossCallsOfAnySize)
{
    for (int lenLo : {1, 2, 3, 5, 9})
        for (int lenHi : {1, 4, 7})
            for (int offLo : {-1, 0, lenLo - 1})
                for (int offHi : {-1, lenHi - 1}) {
                    const std::vector<float> h0 = taps(lenLo, 1), h1 = taps(lenHi, 2), x = signal(400, 3);
                    State<false> s(h0, offLo, h1, offHi);
                    ASSERT_EQ(s.status, qspStsOk);
                    std::vector<float> lo(200), hi(200);
                    size_t at = 0;
                    for (int chunk : {1, 3, 2, 7, 50, 1, 136}) {
                        ASSERT_EQ(qspsWTFwd_32f(x.data() + 2 * at, lo.data() + at, hi.data() + at, chunk, s.fwd()),
                                  qspStsOk);
                        at += chunk;
                    }
                    ASSERT_EQ(at, 200u);
                    const std::vector<long double> wlo = analysisRef(x, h0, offLo), whi = analysisRef(x, h1, offHi);
                    for (size_t k = 0; k < 200; ++k) {
                        EXPECT_LE(fabsl(lo[k] - wlo[k]), tolerance(h0, 4)) << lenLo << " " << offLo << " " << k;
                        EXPECT_LE(fabsl(hi[k] - whi[k]), tolerance(h1, 4)) << lenHi << " " << offHi << " " << k;
                    }
                    // one call gives the same bits as the pieces
                    State<false> one(h0, offLo, h1, offHi);
                    std::vector<float> lo1(200), hi1(200);
                    ASSERT_EQ(qspsWTFwd_32f(x.data(), lo1.data(), hi1.data(), 200, one.fwd()), qspStsOk);
                    EXPECT_EQ(lo, lo1);
                    EXPECT_EQ(hi, hi1);
                }
}

TEST(WTInv, DefinitionAcrossCallsOfAnySize)
{
    for (int lenLo : {1, 2, 4, 6})
        for (int lenHi : {1, 3, 8})
            for (int offLo : {-1, 0, lenLo - 1})
                for (int offHi : {-1, lenHi - 1}) {
                    const std::vector<float> g0 = taps(lenLo, 4), g1 = taps(lenHi, 5);
                    const std::vector<float> a = signal(600, 6), b = signal(600, 7);
                    State<true> s(g0, offLo, g1, offHi);
                    ASSERT_EQ(s.status, qspStsOk);
                    std::vector<float> y(1200);
                    size_t at = 0;
                    for (int chunk : {1, 2, 299, 257, 41}) {
                        ASSERT_EQ(qspsWTInv_32f(a.data() + at, b.data() + at, y.data() + 2 * at, chunk, s.inv()), qspStsOk);
                        at += chunk;
                    }
                    ASSERT_EQ(at, 600u);
                    const std::vector<long double> ya = synthesisRef(a, g0, offLo), yb = synthesisRef(b, g1, offHi);
                    for (size_t n = 0; n < 1200; ++n)
                        EXPECT_LE(fabsl(y[n] - (ya[n] + yb[n])), tolerance(g0, 4) + tolerance(g1, 4)) << n;
                }
}

// Analysis then synthesis: Haar with offsets -1 gives the input back with
// no delay; Daubechies 4 with analysis offset a and synthesis offset b gives
// it back delayed by N + a + b (N = 4 taps).
TEST(WTBank, PerfectReconstruction)
{
    const std::vector<float> x = signal(512, 8);
    struct Case {
        Bank bank;
        int a, b, delay;
    };
    const Case cases[] = {{haar(), -1, -1, 0}, {haar(), 0, 0, 2},       {daubechies4(), -1, -1, 2},
                          {daubechies4(), 0, 1, 5}, {daubechies4(), 3, 3, 10}, {daubechies4(), 2, -1, 5}};
    for (const Case& c : cases) {
        State<false> f(c.bank.h0, c.a, c.bank.h1, c.a);
        State<true> i(c.bank.g0, c.b, c.bank.g1, c.b);
        std::vector<float> lo(256), hi(256), y(512);
        ASSERT_EQ(qspsWTFwd_32f(x.data(), lo.data(), hi.data(), 256, f.fwd()), qspStsOk);
        ASSERT_EQ(qspsWTInv_32f(lo.data(), hi.data(), y.data(), 256, i.inv()), qspStsOk);
        for (int n = c.delay; n < 512; ++n) EXPECT_NEAR(y[n], x[n - c.delay], 1e-4) << "delay " << c.delay << " n " << n;
        for (int n = 0; n < c.delay; ++n) EXPECT_NEAR(y[n], 0.0f, 1e-4) << "before the delay: " << n;
    }
}

TEST(WTBank, DelayLinesGetAndSet)
{
    const std::vector<float> h0 = taps(5, 9), h1 = taps(3, 10), x = signal(100, 11);
    // analysis lines: N + offs - 1 samples (4 + 1 = 5 for 5 taps, offset 1;
    // 3 - 1 - 1 = 1 for 3 taps, offset -1), oldest first
    State<false> s(h0, 1, h1, -1);
    std::vector<float> lo(50), hi(50);
    ASSERT_EQ(qspsWTFwd_32f(x.data(), lo.data(), hi.data(), 50, s.fwd()), qspStsOk);
    Guarded<float> dl(5), dh(1);
    ASSERT_EQ(qspsWTFwdGetDlyLine_32f(s.fwd(), dl.data(), dh.data()), qspStsOk);
    for (int i = 0; i < 5; ++i) EXPECT_EQ(dl[i], x[95 + i]);
    EXPECT_EQ(dh[0], x[99]);
    EXPECT_TRUE(dl.guardsIntact() && dh.guardsIntact());
    // a fresh state given those lines continues the stream as the first does
    const std::vector<float> more = signal(40, 12);
    State<false> t(h0, 1, h1, -1);
    ASSERT_EQ(qspsWTFwdSetDlyLine_32f(t.fwd(), dl.data(), dh.data()), qspStsOk);
    std::vector<float> a(20), b(20), c(20), d(20);
    ASSERT_EQ(qspsWTFwd_32f(more.data(), a.data(), b.data(), 20, s.fwd()), qspStsOk);
    ASSERT_EQ(qspsWTFwd_32f(more.data(), c.data(), d.data(), 20, t.fwd()), qspStsOk);
    EXPECT_EQ(a, c);
    EXPECT_EQ(b, d);
    // synthesis lines: floor((N + offs) / 2) input values
    State<true> u(h0, 2, h1, -1);
    std::vector<float> p = signal(30, 13), q = signal(30, 14), y(60);
    ASSERT_EQ(qspsWTInv_32f(p.data(), q.data(), y.data(), 30, u.inv()), qspStsOk);
    Guarded<float> il(3), ih(1);
    ASSERT_EQ(qspsWTInvGetDlyLine_32f(u.inv(), il.data(), ih.data()), qspStsOk);
    for (int i = 0; i < 3; ++i) EXPECT_EQ(il[i], p[27 + i]);
    EXPECT_EQ(ih[0], q[29]);
    EXPECT_TRUE(il.guardsIntact() && ih.guardsIntact());
    State<true> v(h0, 2, h1, -1);
    ASSERT_EQ(qspsWTInvSetDlyLine_32f(v.inv(), il.data(), ih.data()), qspStsOk);
    std::vector<float> y1(20), y2(20);
    ASSERT_EQ(qspsWTInv_32f(p.data(), q.data(), y1.data(), 10, u.inv()), qspStsOk);
    ASSERT_EQ(qspsWTInv_32f(p.data(), q.data(), y2.data(), 10, v.inv()), qspStsOk);
    EXPECT_EQ(y1, y2);
}

// The integer front ends analyse the converted signal; the integer back
// ends round each output to nearest (ties to even) and saturate it.
TEST(WTBank, IntegerEnds)
{
    const std::vector<float> h0 = taps(4, 15), h1 = taps(2, 16);
    std::vector<Qsp8s> s8(64);
    std::vector<Qsp8u> u8(64);
    std::vector<Qsp16s> s16(64);
    std::vector<Qsp16u> u16(64);
    std::vector<float> f8s(64), f8u(64), f16s(64), f16u(64);
    for (int i = 0; i < 64; ++i) {
        s8[i] = Qsp8s(i * 37), u8[i] = Qsp8u(i * 41), s16[i] = Qsp16s(i * 2999), u16[i] = Qsp16u(i * 3001);
        f8s[i] = s8[i], f8u[i] = u8[i], f16s[i] = s16[i], f16u[i] = u16[i];
    }
    auto run = [&](auto call, const std::vector<float>& ref) {
        State<false> a(h0, 1, h1, 0), b(h0, 1, h1, 0);
        std::vector<float> l1(32), h1v(32), l2(32), h2(32);
        ASSERT_EQ(call(a.fwd(), l1.data(), h1v.data()), qspStsOk);
        ASSERT_EQ(qspsWTFwd_32f(ref.data(), l2.data(), h2.data(), 32, b.fwd()), qspStsOk);
        EXPECT_EQ(l1, l2);
        EXPECT_EQ(h1v, h2);
    };
    run([&](QspsWTFwdState_32f* s, float* l, float* h) { return qspsWTFwd_8s32f(s8.data(), l, h, 32, s); }, f8s);
    run([&](QspsWTFwdState_32f* s, float* l, float* h) { return qspsWTFwd_8u32f(u8.data(), l, h, 32, s); }, f8u);
    run([&](QspsWTFwdState_32f* s, float* l, float* h) { return qspsWTFwd_16s32f(s16.data(), l, h, 32, s); }, f16s);
    run([&](QspsWTFwdState_32f* s, float* l, float* h) { return qspsWTFwd_16u32f(u16.data(), l, h, 32, s); }, f16u);
    // back ends: the float outputs rounded and saturated
    const std::vector<float> lo = signal(32, 17), hi = signal(32, 18);
    std::vector<float> lo8(32), hi8(32);
    for (int i = 0; i < 32; ++i) lo8[i] = lo[i] * 300, hi8[i] = hi[i] * 300;
    State<true> r(h0, 0, h1, 1);
    std::vector<float> y(64);
    ASSERT_EQ(qspsWTInv_32f(lo8.data(), hi8.data(), y.data(), 32, r.inv()), qspStsOk);
    auto want = [&](float v, double lo, double hi) {
        const double q = std::nearbyint(double(v));
        return q < lo ? lo : q > hi ? hi : q;
    };
    {
        State<true> t(h0, 0, h1, 1);
        std::vector<Qsp8s> o(64);
        ASSERT_EQ(qspsWTInv_32f8s(lo8.data(), hi8.data(), o.data(), 32, t.inv()), qspStsOk);
        for (int i = 0; i < 64; ++i) EXPECT_EQ(o[i], want(y[i], -128, 127)) << i;
    }
    {
        State<true> t(h0, 0, h1, 1);
        std::vector<Qsp8u> o(64);
        ASSERT_EQ(qspsWTInv_32f8u(lo8.data(), hi8.data(), o.data(), 32, t.inv()), qspStsOk);
        for (int i = 0; i < 64; ++i) EXPECT_EQ(o[i], want(y[i], 0, 255)) << i;
    }
    {
        State<true> t(h0, 0, h1, 1);
        std::vector<Qsp16s> o(64);
        ASSERT_EQ(qspsWTInv_32f16s(lo8.data(), hi8.data(), o.data(), 32, t.inv()), qspStsOk);
        for (int i = 0; i < 64; ++i) EXPECT_EQ(o[i], want(y[i], -32768, 32767)) << i;
    }
    {
        State<true> t(h0, 0, h1, 1);
        std::vector<Qsp16u> o(64);
        ASSERT_EQ(qspsWTInv_32f16u(lo8.data(), hi8.data(), o.data(), 32, t.inv()), qspStsOk);
        for (int i = 0; i < 64; ++i) EXPECT_EQ(o[i], want(y[i], 0, 65535)) << i;
    }
}

TEST(WTBank, SizeQueriesAndInit)
{
    for (bool inv : {false, true}) {
        auto gs = [&](QspDataType t, int a, int b, int c, int d, int* p) {
            return inv ? qspsWTInvGetSize(t, a, b, c, d, p) : qspsWTFwdGetSize(t, a, b, c, d, p);
        };
        int size = -1;
        EXPECT_EQ(gs(qsp32f, 4, 0, 4, 0, nullptr), qspStsNullPtr);
        EXPECT_EQ(gs(qsp64f, 0, 0, 4, 0, nullptr), qspStsNullPtr) << "the pointer first";
        EXPECT_EQ(gs(qsp64f, 0, 0, 4, 0, &size), qspStsBadWaveletParam) << "lengths before the data type";
        EXPECT_EQ(gs(qsp32f, 4, 0, -1, 0, &size), qspStsBadWaveletParam);
        EXPECT_EQ(gs(qsp64f, 4, 9, 4, 0, &size), qspStsBadDataType) << "the data type before the offsets";
        EXPECT_EQ(gs(qsp16s, 4, 0, 4, 0, &size), qspStsBadDataType);
        for (int off : {-2, 4, 100, std::numeric_limits<int>::min()}) {
            EXPECT_EQ(gs(qsp32f, 4, off, 4, 0, &size), qspStsBadWaveletParam) << off;
            EXPECT_EQ(gs(qsp32f, 4, 0, 4, off, &size), qspStsBadWaveletParam) << off;
        }
        EXPECT_EQ(size, -1);
        for (int off : {-1, 0, 3}) EXPECT_EQ(gs(qsp32f, 4, off, 1, -1, &size), qspStsOk);
        EXPECT_EQ(gs(qsp32f, 1, 0, 1, -1, &size), qspStsOk);
    }
    const std::vector<float> h(4, 1.0f);
    Guarded<Qsp8u> block(512);
    QspsWTFwdState_32f* f = nullptr;
    EXPECT_EQ(qspsWTFwdInit_32f(nullptr, h.data(), 4, 0, h.data(), 4, 0, block.data()), qspStsNullPtr);
    EXPECT_EQ(qspsWTFwdInit_32f(&f, nullptr, 4, 0, h.data(), 4, 0, block.data()), qspStsNullPtr);
    EXPECT_EQ(qspsWTFwdInit_32f(&f, h.data(), 4, 0, nullptr, 4, 0, block.data()), qspStsNullPtr);
    EXPECT_EQ(qspsWTFwdInit_32f(&f, h.data(), 4, 0, h.data(), 4, 0, nullptr), qspStsNullPtr);
    EXPECT_EQ(qspsWTFwdInit_32f(&f, h.data(), 0, 0, h.data(), 4, 0, block.data()), qspStsBadWaveletParam);
    EXPECT_EQ(qspsWTFwdInit_32f(&f, h.data(), 4, 4, h.data(), 4, 0, block.data()), qspStsBadWaveletParam);
    QspsWTInvState_32f* i = nullptr;
    EXPECT_EQ(qspsWTInvInit_32f(&i, h.data(), 4, -2, h.data(), 4, 0, block.data()), qspStsBadWaveletParam);
    EXPECT_EQ(qspsWTInvInit_32f(&i, h.data(), 4, 0, h.data(), 4, 4, block.data()), qspStsBadWaveletParam);
    EXPECT_TRUE(block.untouched());
}

TEST(WTBank, CallChecks)
{
    const std::vector<float> h(3, 0.5f);
    State<false> f(h, 0, h, 0);
    State<true> i(h, 0, h, 0);
    std::vector<float> x(20);
    Guarded<float> a(10), b(10), y(20);
    EXPECT_EQ(qspsWTFwd_32f(nullptr, a.data(), b.data(), 10, f.fwd()), qspStsNullPtr);
    EXPECT_EQ(qspsWTFwd_32f(x.data(), nullptr, b.data(), 10, f.fwd()), qspStsNullPtr);
    EXPECT_EQ(qspsWTFwd_32f(x.data(), a.data(), nullptr, 10, f.fwd()), qspStsNullPtr);
    EXPECT_EQ(qspsWTFwd_32f(x.data(), a.data(), b.data(), 10, nullptr), qspStsNullPtr);
    EXPECT_EQ(qspsWTFwd_32f(x.data(), a.data(), b.data(), 0, f.fwd()), qspStsBadSize);
    EXPECT_EQ(qspsWTFwd_32f(x.data(), a.data(), b.data(), 10, reinterpret_cast<QspsWTFwdState_32f*>(i.inv())),
              qspStsBadRecord);
    EXPECT_EQ(qspsWTFwd_16s32f(nullptr, a.data(), b.data(), 0, nullptr), qspStsNullPtr) << "pointers first";
    EXPECT_EQ(qspsWTInv_32f(x.data(), x.data(), y.data(), -1, i.inv()), qspStsBadSize);
    EXPECT_EQ(qspsWTInv_32f(x.data(), x.data(), y.data(), 10, reinterpret_cast<QspsWTInvState_32f*>(f.fwd())),
              qspStsBadRecord);
    EXPECT_EQ(qspsWTInv_32f16u(x.data(), nullptr, nullptr, 10, i.inv()), qspStsNullPtr);
    EXPECT_EQ(qspsWTFwdGetDlyLine_32f(f.fwd(), nullptr, a.data()), qspStsNullPtr);
    EXPECT_EQ(qspsWTFwdGetDlyLine_32f(reinterpret_cast<QspsWTFwdState_32f*>(i.inv()), a.data(), b.data()),
              qspStsBadRecord);
    EXPECT_EQ(qspsWTInvSetDlyLine_32f(i.inv(), a.data(), nullptr), qspStsNullPtr);
    EXPECT_EQ(qspsWTInvSetDlyLine_32f(reinterpret_cast<QspsWTInvState_32f*>(f.fwd()), a.data(), b.data()),
              qspStsBadRecord);
    EXPECT_TRUE(a.untouched() && b.untouched() && y.untouched());
}

}  // namespace

// SPDX-License-Identifier: BSD-3-Clause
// IIRIIR: every type against forward-backward filtering of the reflected,
// extended block in long double, within the IIR error bound carried through
// both passes; constant signals pass without edge transients; the forward
// delay line in and out; in place; repeated calls; odd record addresses,
// foreign records, and every status with nothing written.
#include <algorithm>
#include <cmath>
#include <vector>

#include "iir_reference.h"
#include "qsp_test.h"

using qsptest::Guarded;

namespace {

using iirtest::CLD;
using iirtest::LD;
using iirtest::Section;
using iirtest::Shape;

template <class S, class D, class St>
struct Api {
    using State = S;
    using Data = D;
    using StateT = St;
    using Bound = iirtest::Kind<S, S, St, D>;
};
struct A32f : Api<Qsp32f, Qsp32f, QspsIIRState_32f> {
    static constexpr auto size = qspsIIRIIRGetStateSize_32f;
    static constexpr auto init = qspsIIRIIRInit_32f;
    static constexpr auto run = qspsIIRIIR_32f;
    static constexpr auto runI = qspsIIRIIR_32f_I;
    static constexpr auto getDly = qspsIIRIIRGetDlyLine_32f;
    static constexpr auto setDly = qspsIIRIIRSetDlyLine_32f;
    static constexpr auto arSize = qspsIIRGetStateSize_32f;
    static constexpr auto arInit = qspsIIRInit_32f;
    static constexpr auto arRun = qspsIIR_32f;
};
struct A64f : Api<Qsp64f, Qsp64f, QspsIIRState_64f> {
    static constexpr auto size = qspsIIRIIRGetStateSize_64f;
    static constexpr auto init = qspsIIRIIRInit_64f;
    static constexpr auto run = qspsIIRIIR_64f;
    static constexpr auto runI = qspsIIRIIR_64f_I;
    static constexpr auto getDly = qspsIIRIIRGetDlyLine_64f;
    static constexpr auto setDly = qspsIIRIIRSetDlyLine_64f;
    static constexpr auto arSize = qspsIIRGetStateSize_64f;
    static constexpr auto arInit = qspsIIRInit_64f;
    static constexpr auto arRun = qspsIIR_64f;
};
struct A64f32f : Api<Qsp64f, Qsp32f, QspsIIRState64f_32f> {
    static constexpr auto size = qspsIIRIIRGetStateSize64f_32f;
    static constexpr auto init = qspsIIRIIRInit64f_32f;
    static constexpr auto run = qspsIIRIIR64f_32f;
    static constexpr auto runI = qspsIIRIIR64f_32f_I;
    static constexpr auto getDly = qspsIIRIIRGetDlyLine64f_32f;
    static constexpr auto setDly = qspsIIRIIRSetDlyLine64f_32f;
    static constexpr auto arSize = qspsIIRGetStateSize64f_32f;
    static constexpr auto arInit = qspsIIRInit64f_32f;
    static constexpr auto arRun = qspsIIR64f_32f;
};

template <class A>
struct Filter {
    std::vector<Qsp8u> mem;
    typename A::StateT* st = nullptr;
    Filter(const std::vector<typename A::State>& taps, int N, const typename A::State* dly, int odd = 0)
    {
        int size = 0;
        EXPECT_EQ(A::size(N, &size), qspStsOk);
        mem.assign(size_t(size) + odd, 0);
        EXPECT_EQ(A::init(&st, taps.data(), N, dly, mem.data() + odd), qspStsOk);
    }
};

template <class T>
LD unitOf()
{
    return std::is_same_v<T, double> ? std::ldexp(LD(1), -53) : std::ldexp(LD(1), -24);
}

// The reference and its error bound.
struct Expected {
    std::vector<LD> y;
    LD bound;
};

template <class A>
Expected reference(const std::vector<typename A::State>& taps, int N, const std::vector<LD>& fwd,
                   const std::vector<typename A::Data>& x)
{
    const int len = int(x.size());
    const int P = std::min(3 * N, len - 1);
    std::vector<CLD> ext;
    for (int k = P; k >= 1; --k) ext.push_back(2 * LD(x[0]) - LD(x[size_t(k)]));
    for (auto v : x) ext.push_back(LD(v));
    for (int k = 1; k <= P; ++k) ext.push_back(2 * LD(x[size_t(len - 1)]) - LD(x[size_t(len - 1 - k)]));
    std::vector<Section> sec = iirtest::sections<typename A::State, typename A::State>(Shape::AR, N, taps, nullptr);
    const std::vector<CLD> b = sec[0].b, a = sec[0].a;
    CLD sb = 0, sa = 0;
    for (int j = 0; j <= N; ++j) sb += b[size_t(j)], sa += a[size_t(j)];
    const CLD g = sa != CLD(0) ? sb / sa : CLD(0);
    std::vector<CLD> zi(static_cast<size_t>(N));
    for (int k = 0; k < N; ++k)
        for (int j = k + 1; j <= N; ++j) zi[size_t(k)] += sa != CLD(0) ? b[size_t(j)] - a[size_t(j)] * g : CLD(0);
    auto start = [&](Section& s, CLD v, bool withFwd) {
        for (int k = 0; k < N; ++k) {
            s.d[size_t(k)] = zi[size_t(k)] * v + (withFwd ? CLD(fwd[size_t(k)]) : CLD(0));
            s.dm[size_t(k)] = std::abs(s.d[size_t(k)]);
        }
        s.smax = 0;
    };
    std::vector<Section> f = sec, r = sec;
    start(f[0], ext[0], true);
    std::vector<CLD> yf = iirtest::run(f, ext);
    std::reverse(yf.begin(), yf.end());
    start(r[0], yf[0], false);
    std::vector<CLD> yb = iirtest::run(r, yf);
    std::reverse(yb.begin(), yb.end());
    Expected e;
    LD ymax = 0, emax = 0, zmax = 0, yfmax = 0;
    for (int n = 0; n < len; ++n) e.y.push_back(yb[size_t(P + n)].real()), ymax = std::max(ymax, std::fabs(e.y.back()));
    for (auto v : ext) emax = std::max(emax, std::abs(v));
    for (auto v : yf) yfmax = std::max(yfmax, std::abs(v));
    for (auto v : zi) zmax = std::max(zmax, std::abs(v));
    // The forward pass's own error passes through the backward filter (l1
    // norm H); the extensions, the steady state and the stored intermediates
    // are rounded to the data's or the state's precision on the way.
    const LD H = iirtest::l1Norm(b, a);
    using B = typename A::Bound;
    const LD uS = unitOf<typename A::State>(), uD = unitOf<typename A::Data>();
    e.bound = H * iirtest::errorBound<B>(f, Shape::AR) + iirtest::errorBound<B>(r, Shape::AR) +
              H * H * 4 * (uD + uS * (1 + N * zmax)) * emax + H * 4 * (uD + uS * N * zmax) * yfmax + 2 * uD * ymax;
    return e;
}

template <class T>
std::vector<T> signal(int n, LD scale)
{
    std::vector<T> v(static_cast<size_t>(n));
    for (auto& x : v) x = T(iirtest::uniform(-scale, scale));
    return v;
}

template <class A>
class IIRIIRTyped : public ::testing::Test {};
using Types = ::testing::Types<A32f, A64f, A64f32f>;
TYPED_TEST_SUITE(IIRIIRTyped, Types);

TYPED_TEST(IIRIIRTyped, MatchesForwardBackwardOnTheExtendedBlock)
{
    using A = TypeParam;
    using S = typename A::State;
    using D = typename A::Data;
    for (int N : {1, 2, 3, 6}) {
        for (int len : {1, 2, 3, 5, 19, 20, 500, 2500}) {
            for (bool withDly : {false, true}) {
                const auto taps = iirtest::arTaps<S>(N, 0.8L);
                const auto x = signal<D>(len, 100);
                std::vector<S> dly(static_cast<size_t>(N));
                std::vector<LD> fwd(size_t(N), 0);
                if (withDly)
                    for (int k = 0; k < N; ++k) dly[size_t(k)] = S(iirtest::uniform(-10, 10)), fwd[size_t(k)] = LD(dly[size_t(k)]);
                Filter<A> f(taps, N, withDly ? dly.data() : nullptr, len % 7);
                Guarded<D> y{size_t(len)};
                ASSERT_EQ(A::run(x.data(), y.data(), len, f.st), qspStsOk);
                EXPECT_TRUE(y.guardsIntact());
                const Expected e = reference<A>(taps, N, fwd, x);
                for (int n = 0; n < len; ++n)
                    ASSERT_LE(std::fabs(LD(y[size_t(n)]) - e.y[size_t(n)]), e.bound) << N << " " << len << " " << n;
            }
        }
    }
}

TYPED_TEST(IIRIIRTyped, ConstantSignalsPassWithoutEdgeTransients)
{
    // Zero phase and the steady-state start: a constant c comes out as
    // c H(1)^2 at every sample, edges included.
    using A = TypeParam;
    using S = typename A::State;
    using D = typename A::Data;
    const int N = 2;
    // A second-order lowpass: (1 + 2z^-1 + z^-2) / (4 - 2.4z^-1 + 0.72z^-2) has H(1) = 4 / 2.32.
    const std::vector<S> taps = {S(1), S(2), S(1), S(4), S(-2.4), S(0.72)};
    Filter<A> f(taps, N, nullptr);
    const LD h1 = LD(4) / (LD(4) - LD(S(2.4)) + LD(S(0.72)));
    for (int len : {1, 4, 6, 7, 300}) {
        std::vector<D> x(size_t(len), D(3)), y(static_cast<size_t>(len));
        ASSERT_EQ(A::run(x.data(), y.data(), len, f.st), qspStsOk);
        for (int n = 0; n < len; ++n) EXPECT_NEAR(double(y[size_t(n)]), double(3 * h1 * h1), 3 * 64 * double(unitOf<D>())) << len << " " << n;
    }
}

TYPED_TEST(IIRIIRTyped, InPlaceRepeatedAndDelayLineExchange)
{
    using A = TypeParam;
    using S = typename A::State;
    using D = typename A::Data;
    const int N = 4, len = 3000;
    const auto taps = iirtest::arTaps<S>(N, 0.9L);
    const auto x = signal<D>(len, 1);
    Filter<A> f(taps, N, nullptr, 1);
    std::vector<D> a(static_cast<size_t>(len)), b(static_cast<size_t>(len)), c = x;
    ASSERT_EQ(A::run(x.data(), a.data(), len, f.st), qspStsOk);
    ASSERT_EQ(A::run(x.data(), b.data(), len, f.st), qspStsOk);  // the state is unchanged by filtering
    ASSERT_EQ(A::runI(c.data(), len, f.st), qspStsOk);
    for (int n = 0; n < len; ++n) {
        ASSERT_TRUE(qsptest::sameBits(a[size_t(n)], b[size_t(n)])) << n;
        ASSERT_TRUE(qsptest::sameBits(a[size_t(n)], c[size_t(n)])) << n;
    }
    // Set equals Init with the same delay line; Get returns it; null clears.
    std::vector<S> dly(static_cast<size_t>(N)), got(static_cast<size_t>(N));
    for (auto& v : dly) v = S(iirtest::uniform(-1, 1));
    Filter<A> g(taps, N, dly.data());
    ASSERT_EQ(A::setDly(f.st, dly.data()), qspStsOk);
    ASSERT_EQ(A::getDly(f.st, got.data()), qspStsOk);
    for (int k = 0; k < N; ++k) EXPECT_TRUE(qsptest::sameBits(got[size_t(k)], dly[size_t(k)]));
    ASSERT_EQ(A::run(x.data(), a.data(), len, f.st), qspStsOk);
    ASSERT_EQ(A::run(x.data(), b.data(), len, g.st), qspStsOk);
    bool differs = false;
    for (int n = 0; n < len; ++n) {
        ASSERT_TRUE(qsptest::sameBits(a[size_t(n)], b[size_t(n)])) << n;
        differs = differs || !qsptest::sameBits(a[size_t(n)], c[size_t(n)]);
    }
    EXPECT_TRUE(differs);
    ASSERT_EQ(A::setDly(f.st, nullptr), qspStsOk);
    ASSERT_EQ(A::getDly(f.st, got.data()), qspStsOk);
    for (auto v : got) EXPECT_EQ(v, S(0));
    ASSERT_EQ(A::run(x.data(), a.data(), len, f.st), qspStsOk);
    for (int n = 0; n < len; ++n) ASSERT_TRUE(qsptest::sameBits(a[size_t(n)], c[size_t(n)])) << n;
}

TYPED_TEST(IIRIIRTyped, StatusesInOrderAndNothingWritten)
{
    using A = TypeParam;
    using S = typename A::State;
    using D = typename A::Data;
    int size = -1;
    EXPECT_EQ(A::size(0, nullptr), qspStsNullPtr);
    EXPECT_EQ(A::size(0, &size), qspStsBadFilterOrder);
    EXPECT_EQ(A::size(-4, &size), qspStsBadFilterOrder);
    EXPECT_EQ(size, -1);
    EXPECT_EQ(A::size(0x7FFFFFF, &size), qspStsOverflow);
    EXPECT_EQ(size, -1);
    ASSERT_EQ(A::size(2, &size), qspStsOk);

    const std::vector<S> taps = {S(1), S(2), S(1), S(4), S(-2.4), S(0.72)};
    std::vector<S> zeroA0 = taps;
    zeroA0[3] = S(0);
    Guarded<Qsp8u> mem{size_t(size)};
    typename A::StateT* st = nullptr;
    EXPECT_EQ(A::init(nullptr, taps.data(), 2, nullptr, mem.data()), qspStsNullPtr);
    EXPECT_EQ(A::init(&st, nullptr, 2, nullptr, mem.data()), qspStsNullPtr);
    EXPECT_EQ(A::init(&st, taps.data(), 2, nullptr, nullptr), qspStsNullPtr);
    EXPECT_EQ(A::init(&st, taps.data(), 0, nullptr, nullptr), qspStsNullPtr);
    EXPECT_EQ(A::init(&st, taps.data(), 0, nullptr, mem.data()), qspStsBadFilterOrder);
    EXPECT_EQ(A::init(&st, zeroA0.data(), 2, nullptr, mem.data()), qspStsZeroDivisor);
    EXPECT_TRUE(mem.untouched());
    EXPECT_EQ(st, nullptr);
    ASSERT_EQ(A::init(&st, taps.data(), 2, nullptr, mem.data()), qspStsOk);
    EXPECT_TRUE(mem.guardsIntact());

    std::vector<D> x(8, D(1));
    Guarded<D> y{8};
    Guarded<S> dl{2};
    EXPECT_EQ(A::run(nullptr, y.data(), 8, st), qspStsNullPtr);
    EXPECT_EQ(A::run(x.data(), nullptr, 8, st), qspStsNullPtr);
    EXPECT_EQ(A::run(x.data(), y.data(), 8, nullptr), qspStsNullPtr);
    EXPECT_EQ(A::run(nullptr, y.data(), 0, st), qspStsNullPtr);
    EXPECT_EQ(A::run(x.data(), y.data(), 0, st), qspStsBadSize);
    EXPECT_EQ(A::runI(nullptr, 8, st), qspStsNullPtr);
    EXPECT_EQ(A::runI(y.data(), 8, nullptr), qspStsNullPtr);
    EXPECT_EQ(A::runI(y.data(), -1, st), qspStsBadSize);
    EXPECT_EQ(A::getDly(nullptr, dl.data()), qspStsNullPtr);
    EXPECT_EQ(A::getDly(st, nullptr), qspStsNullPtr);
    EXPECT_EQ(A::setDly(nullptr, nullptr), qspStsNullPtr);
    EXPECT_TRUE(y.untouched());
    EXPECT_TRUE(dl.untouched());

    // An IIR state of the same type is not a zero-phase state, nor the
    // other way round; neither is changed.
    int arSize = 0;
    ASSERT_EQ(A::arSize(2, &arSize), qspStsOk);
    std::vector<Qsp8u> arMem(static_cast<size_t>(arSize));
    typename A::StateT* ar = nullptr;
    ASSERT_EQ(A::arInit(&ar, taps.data(), 2, nullptr, arMem.data()), qspStsOk);
    const std::vector<Qsp8u> arBefore = arMem;
    const std::vector<Qsp8u> before(mem.data(), mem.data() + size);
    EXPECT_EQ(A::run(x.data(), y.data(), 8, ar), qspStsBadRecord);
    EXPECT_EQ(A::runI(y.data(), 8, ar), qspStsBadRecord);
    EXPECT_EQ(A::getDly(ar, dl.data()), qspStsBadRecord);
    EXPECT_EQ(A::setDly(ar, nullptr), qspStsBadRecord);
    EXPECT_EQ(A::arRun(x.data(), y.data(), 8, st), qspStsBadRecord);
    EXPECT_TRUE(y.untouched());
    EXPECT_TRUE(dl.untouched());
    EXPECT_TRUE(arMem == arBefore);
    EXPECT_TRUE(std::equal(before.begin(), before.end(), mem.data()));
}

TEST(IIRIIR, TypesRefuseEachOther)
{
    const double t64[4] = {1, 0.5, 1, -0.5};
    int size = 0;
    ASSERT_EQ(qspsIIRIIRGetStateSize_64f(1, &size), qspStsOk);
    std::vector<Qsp8u> mem(static_cast<size_t>(size));
    QspsIIRState_64f* st = nullptr;
    ASSERT_EQ(qspsIIRIIRInit_64f(&st, t64, 1, nullptr, mem.data()), qspStsOk);
    float x[4] = {1, 2, 3, 4}, y[4];
    EXPECT_EQ(qspsIIRIIR64f_32f(x, y, 4, reinterpret_cast<QspsIIRState64f_32f*>(st)), qspStsBadRecord);
    EXPECT_EQ(qspsIIRIIR_32f(x, y, 4, reinterpret_cast<QspsIIRState_32f*>(st)), qspStsBadRecord);
}

}  // namespace

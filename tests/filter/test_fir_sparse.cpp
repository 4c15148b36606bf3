// SPDX-License-Identifier: BSD-3-Clause
// FIRSparse: every type against the dense convolution in long double with
// the delay line in and out, pieces of a stream equal to the whole bit for
// bit, in place, odd record addresses, the 16-bit scaling, foreign records,
// and every status with nothing written.
#include <algorithm>
#include <cmath>
#include <complex>
#include <cstring>
#include <vector>

#include "qsp_test.h"

using qsptest::Guarded;

namespace {

using Ext = long double;
using C = std::complex<Ext>;

template <class T>
C cx(const T& v)
{
    if constexpr (std::is_arithmetic_v<T>) return {Ext(v), 0};
    else return {Ext(v.re), Ext(v.im)};
}

struct A32f {
    using Tap = Qsp32f;
    using Data = Qsp32f;
    using State = QspsFIRSparseState_32f;
    static constexpr auto size = qspsFIRSparseGetStateSize_32f;
    static constexpr auto init = qspsFIRSparseInit_32f;
    static constexpr auto getDly = qspsFIRSparseGetDlyLine_32f;
    static constexpr auto setDly = qspsFIRSparseSetDlyLine_32f;
    static QspStatus run(const Data* s, Data* d, int n, State* st, int) { return qspsFIRSparse_32f(s, d, n, st); }
};
struct A32fc {
    using Tap = Qsp32fc;
    using Data = Qsp32fc;
    using State = QspsFIRSparseState_32fc;
    static constexpr auto size = qspsFIRSparseGetStateSize_32fc;
    static constexpr auto init = qspsFIRSparseInit_32fc;
    static constexpr auto getDly = qspsFIRSparseGetDlyLine_32fc;
    static constexpr auto setDly = qspsFIRSparseSetDlyLine_32fc;
    static QspStatus run(const Data* s, Data* d, int n, State* st, int) { return qspsFIRSparse_32fc(s, d, n, st); }
};
struct A16s {
    using Tap = Qsp32f;
    using Data = Qsp16s;
    using State = QspsFIRSparseState32f_16s;
    static constexpr auto size = qspsFIRSparseGetStateSize32f_16s;
    static constexpr auto init = qspsFIRSparseInit32f_16s;
    static constexpr auto getDly = qspsFIRSparseGetDlyLine32f_16s;
    static constexpr auto setDly = qspsFIRSparseSetDlyLine32f_16s;
    static QspStatus run(const Data* s, Data* d, int n, State* st, int sf)
    {
        return qspsFIRSparse32f_16s_Sfs(s, d, n, st, sf);
    }
};

template <class T>
T randomValue(std::uniform_real_distribution<double>& u)
{
    auto& g = qsptest::rng();
    if constexpr (std::is_same_v<T, Qsp16s>) return Qsp16s(std::lround(u(g) * 3000));
    else if constexpr (std::is_arithmetic_v<T>) return T(u(g));
    else return T{float(u(g)), float(u(g))};
}

template <class T>
std::vector<T> randomVector(size_t n)
{
    std::uniform_real_distribution<double> u(-1, 1);
    std::vector<T> v(n);
    for (auto& x : v) x = randomValue<T>(u);
    return v;
}

// Sorted distinct positions, the first at `first`, the largest `order`.
std::vector<int> positions(int nz, int order)
{
    std::vector<int> p{order};
    std::uniform_int_distribution<int> u(0, order - 1);
    while (int(p.size()) < nz) {
        const int v = u(qsptest::rng());
        if (std::find(p.begin(), p.end(), v) == p.end()) p.push_back(v);
    }
    std::sort(p.begin(), p.end());
    return p;
}

// A state in a buffer of its own at offset `odd` bytes.
template <class A>
struct Filter {
    std::vector<Qsp8u> mem;
    typename A::State* st = nullptr;
    Filter(const std::vector<typename A::Tap>& t, const std::vector<int>& p, const typename A::Data* dly, int odd = 0)
    {
        int size = 0;
        EXPECT_EQ(A::size(int(t.size()), p.back(), &size), qspStsOk);
        mem.assign(size_t(size) + odd, 0);
        EXPECT_EQ(A::init(&st, t.data(), p.data(), int(t.size()), dly, mem.data() + odd), qspStsOk);
    }
};

// Dense reference: x = history (order samples, oldest first) then src.
template <class A>
std::vector<C> reference(const std::vector<typename A::Tap>& t, const std::vector<int>& p,
                         const std::vector<typename A::Data>& hist, const std::vector<typename A::Data>& src,
                         std::vector<Ext>* mag)
{
    const int order = p.back();
    std::vector<C> y(src.size());
    if (mag) mag->assign(src.size(), 0);
    for (size_t n = 0; n < src.size(); ++n) {
        for (size_t j = 0; j < t.size(); ++j) {
            const long k = long(n) - p[j];
            const C x = k >= 0 ? cx(src[size_t(k)]) : cx(hist[size_t(order + k)]);
            y[n] += cx(t[j]) * x;
            if (mag) (*mag)[n] += std::abs(cx(t[j])) * std::abs(x);
        }
    }
    return y;
}

template <class A>
class FIRSparseTyped : public ::testing::Test {};
using Types = ::testing::Types<A32f, A32fc, A16s>;
TYPED_TEST_SUITE(FIRSparseTyped, Types);

TYPED_TEST(FIRSparseTyped, MatchesDenseFilterWithDelayLine)
{
    using A = TypeParam;
    using D = typename A::Data;
    const int cases[][3] = {{1, 0, 7}, {1, 5, 40}, {3, 9, 1}, {4, 30, 100}, {7, 200, 3000}, {5, 1500, 2500},
                            {16, 64, 1024}, {2, 1, 5}};
    for (const auto& c : cases) {
        const int nz = c[0], order = c[1], len = c[2];
        const auto t = randomVector<typename A::Tap>(size_t(nz));
        const auto p = positions(nz, order);
        const auto hist = randomVector<D>(size_t(order));
        const auto src = randomVector<D>(size_t(len));
        for (int odd : {0, 1, 7}) {
            Filter<A> f(t, p, order ? hist.data() : nullptr, odd);
            Guarded<D> dst{size_t(len)};
            const int sf = std::is_same_v<D, Qsp16s> ? 1 : 0;
            ASSERT_EQ(A::run(src.data(), dst.data(), len, f.st, sf), qspStsOk);
            EXPECT_TRUE(dst.guardsIntact());
            std::vector<Ext> mag;
            const auto ref = reference<A>(t, p, hist, src, &mag);
            for (int n = 0; n < len; ++n) {
                if constexpr (std::is_same_v<D, Qsp16s>) {
                    // Single-precision sum within (nz + 1) 2^-24 of the
                    // magnitudes, then halved and rounded: within one unit.
                    const Ext want = std::clamp<Ext>(ref[n].real() / 2, -32768, 32767);
                    EXPECT_LE(std::fabs(Ext(dst[n]) - want), 0.5L + (nz + 1) * mag[n] * 0x1p-24L + 1e-9L)
                        << nz << " " << order << " " << n;
                } else {
                    const Ext tol = (nz + 1) * 2 * mag[n] * 0x1p-24L + 1e-30L;
                    EXPECT_LE(std::abs(cx(dst[n]) - ref[n]), tol) << nz << " " << order << " " << n;
                }
            }
            // The delay line afterwards: the last `order` inputs of history + src.
            std::vector<D> dl(size_t(order) + 1);
            ASSERT_EQ(A::getDly(f.st, dl.data()), qspStsOk);
            for (int k = 0; k < order; ++k) {
                const long g = long(len) - order + k;
                const D want = g >= 0 ? src[size_t(g)] : hist[size_t(order + g)];
                EXPECT_TRUE(qsptest::sameBits(dl[size_t(k)], want)) << k;
            }
        }
    }
}

TYPED_TEST(FIRSparseTyped, PiecesEqualTheWholeAndInPlace)
{
    using A = TypeParam;
    using D = typename A::Data;
    const auto t = randomVector<typename A::Tap>(6);
    const auto p = positions(6, 1300);
    const auto src = randomVector<D>(5000);
    Filter<A> whole(t, p, nullptr), pieces(t, p, nullptr), inPlace(t, p, nullptr);
    std::vector<D> a(src.size()), b(src.size()), c = src;
    ASSERT_EQ(A::run(src.data(), a.data(), int(src.size()), whole.st, 0), qspStsOk);
    for (size_t at = 0, step = 1; at < src.size(); at += step, step = step * 3 + 1) {
        const size_t n = std::min(step, src.size() - at);
        ASSERT_EQ(A::run(src.data() + at, b.data() + at, int(n), pieces.st, 0), qspStsOk);
        step = n;
    }
    ASSERT_EQ(A::run(c.data(), c.data(), int(c.size()), inPlace.st, 0), qspStsOk);
    for (size_t n = 0; n < src.size(); ++n) {
        ASSERT_TRUE(qsptest::sameBits(a[n], b[n])) << n;
        ASSERT_TRUE(qsptest::sameBits(a[n], c[n])) << n;
    }
}

TYPED_TEST(FIRSparseTyped, SetDelayLineContinuesAStream)
{
    using A = TypeParam;
    using D = typename A::Data;
    const auto t = randomVector<typename A::Tap>(4);
    const auto p = positions(4, 50);
    const auto src = randomVector<D>(300);
    Filter<A> one(t, p, nullptr), two(t, p, nullptr);
    std::vector<D> a(300), b(300), dl(50);
    ASSERT_EQ(A::run(src.data(), a.data(), 300, one.st, 0), qspStsOk);
    ASSERT_EQ(A::run(src.data(), b.data(), 120, two.st, 0), qspStsOk);
    ASSERT_EQ(A::getDly(two.st, dl.data()), qspStsOk);
    ASSERT_EQ(A::setDly(two.st, nullptr), qspStsOk);  // zeros...
    ASSERT_EQ(A::setDly(two.st, dl.data()), qspStsOk);  // ... and back
    ASSERT_EQ(A::run(src.data() + 120, b.data() + 120, 180, two.st, 0), qspStsOk);
    for (int n = 0; n < 300; ++n) ASSERT_TRUE(qsptest::sameBits(a[size_t(n)], b[size_t(n)])) << n;
    // A cleared delay line is the same as a fresh state.
    Filter<A> fresh(t, p, nullptr);
    ASSERT_EQ(A::setDly(two.st, nullptr), qspStsOk);
    ASSERT_EQ(A::run(src.data(), a.data(), 100, two.st, 0), qspStsOk);
    ASSERT_EQ(A::run(src.data(), b.data(), 100, fresh.st, 0), qspStsOk);
    for (int n = 0; n < 100; ++n) ASSERT_TRUE(qsptest::sameBits(a[size_t(n)], b[size_t(n)])) << n;
}

TYPED_TEST(FIRSparseTyped, StatusesInOrderAndNothingWritten)
{
    using A = TypeParam;
    using D = typename A::Data;
    int size = -1;
    EXPECT_EQ(A::size(0, 5, nullptr), qspStsNullPtr);
    EXPECT_EQ(A::size(0, 5, &size), qspStsBadTapCount);
    EXPECT_EQ(A::size(3, 1, &size), qspStsBadFilterOrder);
    EXPECT_EQ(A::size(1, -1, &size), qspStsBadFilterOrder);
    EXPECT_EQ(size, -1);
    ASSERT_EQ(A::size(3, 2, &size), qspStsOk);
    const int small = size;

    const std::vector<typename A::Tap> t = randomVector<typename A::Tap>(3);
    const int good[3] = {0, 1, 2}, unsorted[3] = {0, 2, 1}, negative[3] = {-1, 1, 2}, repeated[3] = {0, 2, 2};
    Guarded<Qsp8u> mem{size_t(size)};
    typename A::State* st = nullptr;
    EXPECT_EQ(A::init(nullptr, t.data(), good, 3, nullptr, mem.data()), qspStsNullPtr);
    EXPECT_EQ(A::init(&st, nullptr, good, 3, nullptr, mem.data()), qspStsNullPtr);
    EXPECT_EQ(A::init(&st, t.data(), nullptr, 3, nullptr, mem.data()), qspStsNullPtr);
    EXPECT_EQ(A::init(&st, t.data(), good, 3, nullptr, nullptr), qspStsNullPtr);
    EXPECT_EQ(A::init(&st, t.data(), nullptr, 0, nullptr, mem.data()), qspStsNullPtr);
    EXPECT_EQ(A::init(&st, t.data(), good, 0, nullptr, mem.data()), qspStsBadTapCount);
    EXPECT_EQ(A::init(&st, t.data(), unsorted, 3, nullptr, mem.data()), qspStsBadArgument);
    EXPECT_EQ(A::init(&st, t.data(), negative, 3, nullptr, mem.data()), qspStsBadArgument);
    EXPECT_EQ(A::init(&st, t.data(), repeated, 3, nullptr, mem.data()), qspStsBadArgument);
    const int far[1] = {0x7FFFFFF0};  // a state too large to size
    EXPECT_EQ(A::size(1, far[0], &size), qspStsOverflow);
    EXPECT_EQ(A::init(&st, t.data(), far, 1, nullptr, mem.data()), qspStsOverflow);
    EXPECT_TRUE(mem.untouched());
    EXPECT_EQ(st, nullptr);
    EXPECT_EQ(size, small);
    ASSERT_EQ(A::init(&st, t.data(), good, 3, nullptr, mem.data()), qspStsOk);
    EXPECT_TRUE(mem.guardsIntact());

    const std::vector<Qsp8u> before(mem.data(), mem.data() + size);
    const auto src = randomVector<D>(8);
    Guarded<D> dst(8), dl(2);
    EXPECT_EQ(A::run(nullptr, dst.data(), 8, st, 0), qspStsNullPtr);
    EXPECT_EQ(A::run(src.data(), nullptr, 8, st, 0), qspStsNullPtr);
    EXPECT_EQ(A::run(src.data(), dst.data(), 8, nullptr, 0), qspStsNullPtr);
    EXPECT_EQ(A::run(nullptr, dst.data(), 0, st, 0), qspStsNullPtr);
    EXPECT_EQ(A::run(src.data(), dst.data(), 0, st, 0), qspStsBadSize);
    EXPECT_EQ(A::run(src.data(), dst.data(), -3, st, 0), qspStsBadSize);
    EXPECT_EQ(A::getDly(nullptr, dl.data()), qspStsNullPtr);
    EXPECT_EQ(A::getDly(st, nullptr), qspStsNullPtr);
    EXPECT_EQ(A::setDly(nullptr, nullptr), qspStsNullPtr);
    EXPECT_TRUE(dst.untouched());
    EXPECT_TRUE(dl.untouched());
    EXPECT_TRUE(std::equal(before.begin(), before.end(), mem.data()));

    // A record of another kind (an FIRSparse state of another type, an
    // IIRSparse state) is refused, and neither is changed.
    int otherSize = 0;
    ASSERT_EQ(qspsIIRSparseGetStateSize_32f(1, 1, 0, 1, &otherSize), qspStsOk);
    std::vector<Qsp8u> other(static_cast<size_t>(otherSize));
    QspsIIRSparseState_32f* foreign = nullptr;
    const Qsp32f ft[2] = {1, 0.5f};
    const int fp[2] = {0, 1};
    ASSERT_EQ(qspsIIRSparseInit_32f(&foreign, ft, fp, 1, 1, nullptr, other.data()), qspStsOk);
    auto* alien = reinterpret_cast<typename A::State*>(foreign);
    const std::vector<Qsp8u> otherBefore = other;
    EXPECT_EQ(A::run(src.data(), dst.data(), 8, alien, 0), qspStsBadRecord);
    EXPECT_EQ(A::getDly(alien, dl.data()), qspStsBadRecord);
    EXPECT_EQ(A::setDly(alien, nullptr), qspStsBadRecord);
    EXPECT_TRUE(dst.untouched());
    EXPECT_TRUE(dl.untouched());
    EXPECT_TRUE(other == otherBefore);
}

TEST(FIRSparse, TypesRefuseEachOther)
{
    const Qsp32f t[2] = {1, 2};
    const int p[2] = {0, 3};
    int size = 0;
    ASSERT_EQ(qspsFIRSparseGetStateSize_32fc(2, 3, &size), qspStsOk);
    std::vector<Qsp8u> m1(size_t(size) + 64), m2(size_t(size) + 64);
    QspsFIRSparseState_32f* s32 = nullptr;
    QspsFIRSparseState32f_16s* s16 = nullptr;
    ASSERT_EQ(qspsFIRSparseInit_32f(&s32, t, p, 2, nullptr, m1.data()), qspStsOk);
    ASSERT_EQ(qspsFIRSparseInit32f_16s(&s16, t, p, 2, nullptr, m2.data()), qspStsOk);
    Qsp16s x16[4] = {}, y16[4];
    Qsp32f x[4] = {}, y[4];
    Qsp32fc xc[4] = {}, yc[4];
    EXPECT_EQ(qspsFIRSparse32f_16s_Sfs(x16, y16, 4, reinterpret_cast<QspsFIRSparseState32f_16s*>(s32), 0),
              qspStsBadRecord);
    EXPECT_EQ(qspsFIRSparse_32f(x, y, 4, reinterpret_cast<QspsFIRSparseState_32f*>(s16)), qspStsBadRecord);
    EXPECT_EQ(qspsFIRSparse_32fc(xc, yc, 4, reinterpret_cast<QspsFIRSparseState_32fc*>(s32)), qspStsBadRecord);
}

TEST(FIRSparse, SixteenBitScalingRoundsAndSaturates)
{
    const Qsp32f t[2] = {1.0f, 1.0f};
    const int p[2] = {0, 2};
    int size = 0;
    ASSERT_EQ(qspsFIRSparseGetStateSize32f_16s(2, 2, &size), qspStsOk);
    std::vector<Qsp8u> mem(static_cast<size_t>(size));
    QspsFIRSparseState32f_16s* st = nullptr;
    const Qsp16s dly[2] = {32767, 3};
    ASSERT_EQ(qspsFIRSparseInit32f_16s(&st, t, p, 2, dly, mem.data()), qspStsOk);
    // y = x[n] + x[n-2], the delay line oldest first.
    const Qsp16s src[4] = {5, 2, 7, -32768};
    Qsp16s dst[4];
    ASSERT_EQ(qspsFIRSparse32f_16s_Sfs(src, dst, 2, st, 0), qspStsOk);
    EXPECT_EQ(dst[0], 32767);
    EXPECT_EQ(dst[1], 5);
    ASSERT_EQ(qspsFIRSparse32f_16s_Sfs(src + 2, dst + 2, 2, st, 1), qspStsOk);
    EXPECT_EQ(dst[2], 6);       // (7 + 5) / 2
    EXPECT_EQ(dst[3], -16383);  // (-32768 + 2) / 2 = -16383
    ASSERT_EQ(qspsFIRSparse32f_16s_Sfs(src, dst, 1, st, -2), qspStsOk);
    EXPECT_EQ(dst[0], 48);  // (5 + 7) * 4
    const Qsp16s one = 1;
    ASSERT_EQ(qspsFIRSparse32f_16s_Sfs(&one, dst, 1, st, 1), qspStsOk);
    EXPECT_EQ(dst[0], -16384);  // (1 - 32768) / 2 = -16383.5, ties to even
    const Qsp16s big = -32000;
    ASSERT_EQ(qspsFIRSparse32f_16s_Sfs(&big, dst, 1, st, -1), qspStsOk);
    EXPECT_EQ(dst[0], -32768);  // (-32000 + 5) * 2 saturates
}

}  // namespace

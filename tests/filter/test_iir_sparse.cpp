// SPDX-License-Identifier: BSD-3-Clause
// IIRSparse: both types against the recursion in long double, with the
// input and output histories of the delay line, within an error bound
// carried through the recursion; pieces of a stream equal to the whole bit
// for bit; in place; without feedback equal to FIRSparse; odd record
// addresses, foreign records, and every status with nothing written.
#include <algorithm>
#include <cmath>
#include <cstring>
#include <vector>

#include "qsp_test.h"

using qsptest::Guarded;

namespace {

using Ext = long double;

struct A32f {
    using Data = Qsp32f;
    using State = QspsIIRSparseState_32f;
    static constexpr auto size = qspsIIRSparseGetStateSize_32f;
    static constexpr auto init = qspsIIRSparseInit_32f;
    static QspStatus run(const Data* s, Data* d, int n, State* st, int) { return qspsIIRSparse_32f(s, d, n, st); }
};
struct A16s {
    using Data = Qsp16s;
    using State = QspsIIRSparseState32f_16s;
    static constexpr auto size = qspsIIRSparseGetStateSize32f_16s;
    static constexpr auto init = qspsIIRSparseInit32f_16s;
    static QspStatus run(const Data* s, Data* d, int n, State* st, int sf)
    {
        return qspsIIRSparse32f_16s_Sfs(s, d, n, st, sf);
    }
};

// A stable filter: feedback magnitudes summing to `pull` < 1.
struct Taps {
    std::vector<Qsp32f> t;
    std::vector<int> p;
    int nz1, nz2, order1, order2;
};

std::vector<int> sortedPositions(int nz, int first, int last)
{
    std::vector<int> p;
    if (nz > 0) p.push_back(last);
    std::uniform_int_distribution<int> u(first, last - 1 < first ? first : last - 1);
    while (int(p.size()) < nz) {
        const int v = u(qsptest::rng());
        if (std::find(p.begin(), p.end(), v) == p.end()) p.push_back(v);
    }
    std::sort(p.begin(), p.end());
    return p;
}

Taps makeTaps(int nz1, int nz2, int order1, int order2, double pull = 0.8)
{
    std::uniform_real_distribution<double> u(-1, 1);
    Taps k{{}, sortedPositions(nz1, 0, order1), nz1, nz2, order1, nz2 ? order2 : 0};
    const auto q = sortedPositions(nz2, 1, order2);
    k.p.insert(k.p.end(), q.begin(), q.end());
    for (int j = 0; j < nz1; ++j) k.t.push_back(float(u(qsptest::rng())));
    std::vector<double> a(static_cast<size_t>(nz2));
    double s = 0;
    for (auto& v : a) v = u(qsptest::rng()), s += std::fabs(v);
    for (auto v : a) k.t.push_back(float(v * pull / s));
    return k;
}

template <class A>
struct Filter {
    std::vector<Qsp8u> mem;
    typename A::State* st = nullptr;
    Filter(const Taps& k, const typename A::Data* dly, int odd = 0)
    {
        int size = 0;
        EXPECT_EQ(A::size(k.nz1, k.nz2, k.order1, k.order2, &size), qspStsOk);
        mem.assign(size_t(size) + odd, 0);
        EXPECT_EQ(A::init(&st, k.t.data(), k.p.data(), k.nz1, k.nz2, dly, mem.data() + odd), qspStsOk);
    }
};

template <class T>
std::vector<T> randomVector(size_t n, double scale)
{
    std::uniform_real_distribution<double> u(-scale, scale);
    std::vector<T> v(n);
    for (auto& x : v) x = std::is_integral_v<T> ? T(std::lround(u(qsptest::rng()))) : T(u(qsptest::rng()));
    return v;
}

TEST(IIRSparse, MatchesTheRecursionWithinItsBound)
{
    const int cases[][5] = {{1, 0, 0, 0, 50}, {1, 1, 0, 1, 100}, {3, 2, 10, 7, 2000}, {5, 4, 300, 1200, 4000},
                            {2, 3, 1500, 3, 3000}, {8, 8, 64, 64, 1030}};
    for (const auto& c : cases) {
        const Taps k = makeTaps(c[0], c[1], c[2], c[3]);
        const int len = c[4];
        for (int type = 0; type < 2; ++type) {
            const double scale = type ? 1000 : 1;
            const auto hx = randomVector<Qsp32f>(size_t(k.order1 + k.order2), scale);
            std::vector<Qsp16s> h16(hx.size());
            for (size_t i = 0; i < hx.size(); ++i) h16[i] = Qsp16s(std::lround(hx[i]));
            std::vector<Ext> xs, ys;  // histories, oldest first, then the signal
            const auto src = randomVector<Qsp32f>(size_t(len), scale);
            std::vector<Qsp16s> src16(src.size());
            for (size_t i = 0; i < src.size(); ++i) src16[i] = Qsp16s(std::lround(src[i]));
            for (int i = 0; i < k.order1; ++i) xs.push_back(type ? Ext(h16[size_t(i)]) : Ext(hx[size_t(i)]));
            for (int i = 0; i < k.order2; ++i)
                ys.push_back(type ? Ext(h16[size_t(k.order1 + i)]) : Ext(hx[size_t(k.order1 + i)]));
            for (int n = 0; n < len; ++n) xs.push_back(type ? Ext(src16[size_t(n)]) : Ext(src[size_t(n)]));
            // The recursion, and its error bound: each output adds at most
            // (nz1 + nz2 + 1) 2^-24 of its terms' magnitudes, and inherits
            // |a_k| times the bound of y[n - q_k].
            std::vector<Ext> bound(ys.size(), 0);
            const int nz = k.nz1 + k.nz2;
            for (int n = 0; n < len; ++n) {
                Ext y = 0, m = 0, inherited = 0;
                for (int j = 0; j < k.nz1; ++j) {
                    const Ext x = xs[size_t(k.order1 + n - k.p[size_t(j)])];
                    y += Ext(k.t[size_t(j)]) * x;
                    m += std::fabs(Ext(k.t[size_t(j)]) * x);
                }
                for (int j = k.nz1; j < nz; ++j) {
                    const size_t at = size_t(k.order2 + n - k.p[size_t(j)]);
                    y -= Ext(k.t[size_t(j)]) * ys[at];
                    m += std::fabs(Ext(k.t[size_t(j)]) * ys[at]);
                    inherited += std::fabs(Ext(k.t[size_t(j)])) * bound[at];
                }
                ys.push_back(y);
                bound.push_back((nz + 1) * m * 0x1p-24L + inherited);
            }
            for (int odd : {0, 3}) {
                if (type == 0) {
                    Filter<A32f> f(k, hx.data(), odd);
                    Guarded<Qsp32f> dst{size_t(len)};
                    ASSERT_EQ(A32f::run(src.data(), dst.data(), len, f.st, 0), qspStsOk);
                    EXPECT_TRUE(dst.guardsIntact());
                    for (int n = 0; n < len; ++n) {
                        const size_t at = size_t(k.order2 + n);
                        ASSERT_LE(std::fabs(Ext(dst[size_t(n)]) - ys[at]), bound[at] + 1e-30L) << n;
                    }
                } else {
                    Filter<A16s> f(k, h16.data(), odd);
                    Guarded<Qsp16s> dst{size_t(len)};
                    ASSERT_EQ(A16s::run(src16.data(), dst.data(), len, f.st, 2), qspStsOk);
                    EXPECT_TRUE(dst.guardsIntact());
                    for (int n = 0; n < len; ++n) {
                        const size_t at = size_t(k.order2 + n);
                        const Ext want = std::clamp<Ext>(ys[at] / 4, -32768, 32767);
                        ASSERT_LE(std::fabs(Ext(dst[size_t(n)]) - want), 0.5L + bound[at] / 4 + 1e-9L) << n;
                    }
                }
            }
        }
    }
}

TEST(IIRSparse, PiecesEqualTheWholeAndInPlace)
{
    const Taps k = makeTaps(4, 3, 900, 1300, 0.9);
    const auto src = randomVector<Qsp32f>(6000, 1);
    Filter<A32f> whole(k, nullptr), pieces(k, nullptr), inPlace(k, nullptr);
    std::vector<Qsp32f> a(src.size()), b(src.size()), c = src;
    ASSERT_EQ(qspsIIRSparse_32f(src.data(), a.data(), int(src.size()), whole.st), qspStsOk);
    for (size_t at = 0, step = 1; at < src.size(); at += step, step = step * 3 + 1) {
        step = std::min(step, src.size() - at);
        ASSERT_EQ(qspsIIRSparse_32f(src.data() + at, b.data() + at, int(step), pieces.st), qspStsOk);
    }
    ASSERT_EQ(qspsIIRSparse_32f(c.data(), c.data(), int(c.size()), inPlace.st), qspStsOk);
    for (size_t n = 0; n < src.size(); ++n) {
        ASSERT_TRUE(qsptest::sameBits(a[n], b[n])) << n;
        ASSERT_TRUE(qsptest::sameBits(a[n], c[n])) << n;
    }
    // The 16-bit form in pieces as well.
    const auto s16 = randomVector<Qsp16s>(3000, 20000);
    Filter<A16s> w16(k, nullptr), p16(k, nullptr);
    std::vector<Qsp16s> d1(s16.size()), d2(s16.size());
    ASSERT_EQ(qspsIIRSparse32f_16s_Sfs(s16.data(), d1.data(), 3000, w16.st, 1), qspStsOk);
    ASSERT_EQ(qspsIIRSparse32f_16s_Sfs(s16.data(), d2.data(), 1234, p16.st, 1), qspStsOk);
    ASSERT_EQ(qspsIIRSparse32f_16s_Sfs(s16.data() + 1234, d2.data() + 1234, 1766, p16.st, 1), qspStsOk);
    EXPECT_TRUE(d1 == d2);
}

TEST(IIRSparse, WithoutFeedbackEqualsFIRSparse)
{
    const Taps k = makeTaps(5, 0, 77, 0);
    const auto src = randomVector<Qsp32f>(500, 1);
    const auto hist = randomVector<Qsp32f>(77, 1);
    Filter<A32f> f(k, hist.data());
    int size = 0;
    ASSERT_EQ(qspsFIRSparseGetStateSize_32f(5, 77, &size), qspStsOk);
    std::vector<Qsp8u> mem(static_cast<size_t>(size));
    QspsFIRSparseState_32f* fs = nullptr;
    ASSERT_EQ(qspsFIRSparseInit_32f(&fs, k.t.data(), k.p.data(), 5, hist.data(), mem.data()), qspStsOk);
    std::vector<Qsp32f> a(500), b(500);
    ASSERT_EQ(qspsIIRSparse_32f(src.data(), a.data(), 500, f.st), qspStsOk);
    ASSERT_EQ(qspsFIRSparse_32f(src.data(), b.data(), 500, fs), qspStsOk);
    for (int n = 0; n < 500; ++n) ASSERT_TRUE(qsptest::sameBits(a[size_t(n)], b[size_t(n)])) << n;
}

TEST(IIRSparse, StatusesInOrderAndNothingWritten)
{
    for (int type = 0; type < 2; ++type) {
        auto size = [&](int a, int b, int c, int d, int* s) {
            return type ? A16s::size(a, b, c, d, s) : A32f::size(a, b, c, d, s);
        };
        int sz = -1;
        EXPECT_EQ(size(0, 0, 0, 0, nullptr), qspStsNullPtr);
        EXPECT_EQ(size(0, 1, 3, 3, &sz), qspStsBadTapCount);
        EXPECT_EQ(size(1, -1, 3, 3, &sz), qspStsBadTapCount);
        EXPECT_EQ(size(3, 1, 1, 3, &sz), qspStsBadFilterOrder);
        EXPECT_EQ(size(1, 2, 0, 1, &sz), qspStsBadFilterOrder);
        EXPECT_EQ(size(1, 0, -1, 0, &sz), qspStsBadFilterOrder);
        EXPECT_EQ(sz, -1);
        ASSERT_EQ(size(2, 1, 2, 3, &sz), qspStsOk);
    }
    int sz = 0;
    ASSERT_EQ(A32f::size(2, 1, 2, 3, &sz), qspStsOk);
    const Qsp32f t[3] = {1, 0.5f, 0.25f};
    const int good[3] = {0, 2, 3}, badFF[3] = {2, 0, 3}, badFB[3] = {0, 2, 0}, negFF[3] = {-1, 2, 3};
    Guarded<Qsp8u> mem{size_t(sz)};
    QspsIIRSparseState_32f* st = nullptr;
    EXPECT_EQ(A32f::init(nullptr, t, good, 2, 1, nullptr, mem.data()), qspStsNullPtr);
    EXPECT_EQ(A32f::init(&st, nullptr, good, 2, 1, nullptr, mem.data()), qspStsNullPtr);
    EXPECT_EQ(A32f::init(&st, t, nullptr, 2, 1, nullptr, mem.data()), qspStsNullPtr);
    EXPECT_EQ(A32f::init(&st, t, good, 2, 1, nullptr, nullptr), qspStsNullPtr);
    EXPECT_EQ(A32f::init(&st, t, nullptr, 0, 1, nullptr, mem.data()), qspStsNullPtr);
    EXPECT_EQ(A32f::init(&st, t, good, 0, 1, nullptr, mem.data()), qspStsBadTapCount);
    EXPECT_EQ(A32f::init(&st, t, good, 2, -1, nullptr, mem.data()), qspStsBadTapCount);
    EXPECT_EQ(A32f::init(&st, t, badFF, 2, 1, nullptr, mem.data()), qspStsBadArgument);
    EXPECT_EQ(A32f::init(&st, t, negFF, 2, 1, nullptr, mem.data()), qspStsBadArgument);
    EXPECT_EQ(A32f::init(&st, t, badFB, 2, 1, nullptr, mem.data()), qspStsBadArgument);  // feedback at 0
    const int far[3] = {0, 2, 0x7FFFFFF0};  // a state too large to size
    EXPECT_EQ(A32f::size(2, 1, 2, far[2], &sz), qspStsOverflow);
    EXPECT_EQ(A32f::init(&st, t, far, 2, 1, nullptr, mem.data()), qspStsOverflow);
    EXPECT_TRUE(mem.untouched());
    EXPECT_EQ(st, nullptr);
    ASSERT_EQ(A32f::init(&st, t, good, 2, 1, nullptr, mem.data()), qspStsOk);
    EXPECT_TRUE(mem.guardsIntact());

    const std::vector<Qsp8u> before(mem.data(), mem.data() + sz);
    Qsp32f src[8] = {1, 2, 3, 4, 5, 6, 7, 8};
    Guarded<Qsp32f> dst(8);
    EXPECT_EQ(qspsIIRSparse_32f(nullptr, dst.data(), 8, st), qspStsNullPtr);
    EXPECT_EQ(qspsIIRSparse_32f(src, nullptr, 8, st), qspStsNullPtr);
    EXPECT_EQ(qspsIIRSparse_32f(src, dst.data(), 8, nullptr), qspStsNullPtr);
    EXPECT_EQ(qspsIIRSparse_32f(nullptr, dst.data(), 0, st), qspStsNullPtr);
    EXPECT_EQ(qspsIIRSparse_32f(src, dst.data(), 0, st), qspStsBadSize);
    // Records of other kinds: the 16-bit type, and FIRSparse.
    EXPECT_EQ(qspsIIRSparse32f_16s_Sfs(reinterpret_cast<Qsp16s*>(src), reinterpret_cast<Qsp16s*>(dst.data()), 8,
                                       reinterpret_cast<QspsIIRSparseState32f_16s*>(st), 0),
              qspStsBadRecord);
    std::vector<Qsp8u> fm(4096);
    QspsFIRSparseState_32f* fs = nullptr;
    ASSERT_EQ(qspsFIRSparseInit_32f(&fs, t, good, 2, nullptr, fm.data()), qspStsOk);
    const std::vector<Qsp8u> fBefore = fm;
    EXPECT_EQ(qspsIIRSparse_32f(src, dst.data(), 8, reinterpret_cast<QspsIIRSparseState_32f*>(fs)), qspStsBadRecord);
    EXPECT_TRUE(fm == fBefore);
    EXPECT_TRUE(dst.untouched());
    EXPECT_TRUE(std::equal(before.begin(), before.end(), mem.data()));
}

}  // namespace

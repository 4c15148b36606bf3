// SPDX-License-Identifier: BSD-3-Clause
// Checks shared by the RandUniform and RandGauss tests, written once over
// a generator description G:
//   G::T, G::State                  element type, state record type
//   G::size(int*)                   GetSize
//   G::init(State*, a, b, seed)     Init with the two parameters
//   G::gen(T*, int, State*)         the generating call
#pragma once
#include <cstring>
#include <string>
#include <vector>

#include "random_reference.h"

namespace randcheck {

// A state block of the reported size (plus `offset` bytes in front, to
// move the block's alignment), initialised with the given parameters.
template <class G>
class State {
public:
    template <class A>
    State(A a, A b, unsigned seed, int offset = 0) : offset_(offset)
    {
        int n = 0;
        EXPECT_EQ(G::size(&n), qspStsOk);
        bytes_.assign(size_t(n) + offset + 64, 0xA5);
        EXPECT_EQ(G::init(get(), a, b, seed), qspStsOk);
    }
    template <class S = typename G::State>
    S* get()
    {
        return reinterpret_cast<S*>(bytes_.data() + offset_);
    }
    std::vector<unsigned char> bytes() const { return bytes_; }

private:
    int offset_;
    std::vector<unsigned char> bytes_;
};

template <class G>
int stateSize()
{
    int n = 0;
    EXPECT_EQ(G::size(&n), qspStsOk);
    return n;
}

template <class G>
void expectSizeChecks()
{
    EXPECT_EQ(G::size(nullptr), qspStsNullPtr);
    int n = -1;
    ASSERT_EQ(G::size(&n), qspStsOk);
    // The record (identifier, parameters, engine, batch) and 63 bytes of
    // alignment slack.
    EXPECT_GT(n, 2048 + 63);
}

// Init failing with `status`; the block is untouched.
template <class G, class A>
void expectInitFails(QspStatus status, bool nullState, A a, A b)
{
    SCOPED_TRACE(std::string("init ") + std::to_string(double(a)) + " " + std::to_string(double(b)));
    qsptest::Guarded<unsigned char> block(stateSize<G>());
    auto* s = nullState ? nullptr : reinterpret_cast<typename G::State*>(block.data());
    EXPECT_EQ(G::init(s, a, b, 7), status);
    EXPECT_TRUE(block.untouched());
}

// The checks of a generating call gen(pDst, len, pState) of element type
// T: pointers in order, then the length, then the record; nothing is
// written to the destination or the state on error, and the state still
// gives its first values afterwards.
template <class G, class T, class Gen, class A>
void expectCalls(Gen gen, A a, A b)
{
    State<G> good(a, b, 3);
    const std::vector<unsigned char> before = good.bytes();
    qsptest::Guarded<T> dst(16);
    qsptest::Guarded<unsigned char> junk(stateSize<G>());
    auto* bad = reinterpret_cast<typename G::State*>(junk.data());
    std::vector<unsigned char> zeros(stateSize<G>(), 0);
    auto* zero = reinterpret_cast<typename G::State*>(zeros.data());
    auto* s = good.get();
    EXPECT_EQ(gen(nullptr, 8, s), qspStsNullPtr);
    EXPECT_EQ(gen(dst.data(), 8, nullptr), qspStsNullPtr);
    EXPECT_EQ(gen(nullptr, 8, nullptr), qspStsNullPtr);
    EXPECT_EQ(gen(nullptr, 0, s), qspStsNullPtr);
    EXPECT_EQ(gen(dst.data(), -1, nullptr), qspStsNullPtr);
    EXPECT_EQ(gen(dst.data(), 0, s), qspStsBadSize);
    EXPECT_EQ(gen(dst.data(), -5, s), qspStsBadSize);
    EXPECT_EQ(gen(dst.data(), 0, bad), qspStsBadSize);
    EXPECT_EQ(gen(dst.data(), 8, bad), qspStsBadRecord);
    EXPECT_EQ(gen(dst.data(), 8, zero), qspStsBadRecord);
    EXPECT_TRUE(dst.untouched());
    EXPECT_TRUE(junk.untouched());
    EXPECT_TRUE(good.bytes() == before);
    // The state is as Init left it.
    State<G> fresh(a, b, 3);
    std::vector<T> x(40), y(40);
    ASSERT_EQ(gen(x.data(), 40, s), qspStsOk);
    ASSERT_EQ(gen(y.data(), 40, fresh.get()), qspStsOk);
    EXPECT_EQ(std::memcmp(x.data(), y.data(), sizeof(T) * 40), 0);
}

template <class G, class A>
void expectCallChecks(A a, A b)
{
    expectCalls<G, typename G::T>([](typename G::T* d, int n, typename G::State* s) { return G::gen(d, n, s); }, a, b);
}

template <class G, class C, class A>
void expectComplexCallChecks(QspStatus (*fn)(C*, int, typename G::State*), A a, A b)
{
    expectCalls<G, C>(fn, a, b);
}

// The library's values against map(core stream) bit for bit, over calls of
// assorted lengths.
template <class G, class A, class Map>
void expectStream(unsigned seed, A a, A b, Map map)
{
    SCOPED_TRACE("seed " + std::to_string(seed) + " params " + std::to_string(double(a)) + " " +
                 std::to_string(double(b)));
    State<G> s(a, b, seed);
    randref::CoreStream core(seed);
    using T = typename G::T;
    int at = 0;
    for (int len : {1, 7, 300, 1, 2, 513, 2000, 33, 4096, 3}) {
        std::vector<T> got(len);
        ASSERT_EQ(G::gen(got.data(), len, s.get()), qspStsOk);
        for (int i = 0; i < len; ++i, ++at) {
            const T want = T(map(core));
            ASSERT_TRUE(qsptest::sameBits(got[i], want))
                << "value " << at << ": got " << double(got[i]) << " want " << double(want);
        }
    }
}

// A complex call equals the real stream over twice the length.
template <class G, class C, class A>
void expectComplexStream(QspStatus (*fn)(C*, int, typename G::State*), A a, A b, unsigned seed)
{
    using T = typename G::T;
    State<G> real(a, b, seed), cplx(a, b, seed);
    for (int len : {1, 5, 1000, 77}) {
        std::vector<T> r(2 * len);
        std::vector<C> c(len);
        ASSERT_EQ(G::gen(r.data(), 2 * len, real.get()), qspStsOk);
        ASSERT_EQ(fn(c.data(), len, cplx.get()), qspStsOk);
        EXPECT_EQ(std::memcmp(r.data(), c.data(), sizeof(C) * len), 0) << len;
    }
}

// One call of 1000 values equals the same values asked for in pieces, with
// the state block at any alignment; two calls of 100 equal one of 200.
template <class G, class A>
void expectSplitInvariance(A a, A b)
{
    using T = typename G::T;
    State<G> whole(a, b, 42);
    std::vector<T> want(1000);
    ASSERT_EQ(G::gen(want.data(), 1000, whole.get()), qspStsOk);
    const std::vector<std::vector<int>> splits = {{100, 100, 800}, {1, 999}, {512, 512 - 24}, {3, 5, 7, 985}};
    for (int offset : {0, 1, 8, 17, 63}) {
        for (const auto& split : splits) {
            State<G> s(a, b, 42, offset);
            std::vector<T> got(1000);
            int at = 0;
            for (int len : split) {
                ASSERT_EQ(G::gen(got.data() + at, len, s.get()), qspStsOk);
                at += len;
            }
            ASSERT_EQ(at, 1000);
            EXPECT_EQ(std::memcmp(got.data(), want.data(), sizeof(T) * 1000), 0) << "offset " << offset;
        }
    }
}

// ---------------------------------------------------------------------------
// Statistics. Every test is deterministic (fixed seeds); the thresholds are
// those a correct generator fails with probability about 10^-6 each.

constexpr double kTail = 1e-6;

inline void expectFlatCounts(const std::vector<int64_t>& count, int n, const std::string& what)
{
    SCOPED_TRACE(what);
    const std::vector<double> expected(count.size(), double(n) / double(count.size()));
    const double p = randref::chiSquareTail(randref::chiSquare(count, expected), double(count.size() - 1));
    EXPECT_GT(p, kTail);
    EXPECT_LT(p, 1 - kTail);
}

// Values in [0, 1): range, chi-square over 1000 bins, Kolmogorov-Smirnov,
// mean and variance, and correlations at short lags and at the lags of the
// interleaved streams.
template <class F>
void expectUniformStatistics(const std::vector<F>& v, const std::string& what)
{
    SCOPED_TRACE(what);
    const std::vector<double> x(v.begin(), v.end());
    const double n = double(x.size());
    std::vector<int64_t> bins(1000, 0);
    for (double u : x) {
        ASSERT_TRUE(u >= 0.0 && u < 1.0) << u;
        ++bins[size_t(u * 1000)];
    }
    expectFlatCounts(bins, int(x.size()), what + " bins");
    EXPECT_GT(randref::ksTail(randref::ksStatistic(x, 0.0, 1.0, 1 << 16, [](double u) { return u; })), kTail);
    const randref::Moments m = randref::moments(x);
    EXPECT_NEAR(m.mean, 0.5, 5 * std::sqrt(1.0 / 12 / n));
    EXPECT_NEAR(m.variance, 1.0 / 12, 5 * std::sqrt((1.0 / 80 - 1.0 / 144) / n));
    for (int lag : {1, 2, 3, 4, 5, 7, 8, 9, 15, 16, 17, 31, 32, 64, 256, 512, 513}) {
        EXPECT_LT(std::fabs(randref::lagCorrelation(x, lag)), 5 / std::sqrt(n)) << "lag " << lag;
    }
}

}  // namespace randcheck

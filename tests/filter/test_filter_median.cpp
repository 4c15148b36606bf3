// SPDX-License-Identifier: BSD-3-Clause
// FilterMedian: bit-exact medians against a per-window reference for every
// type and for short and long masks (both window structures), NaNs and
// signed zeros in their total order, the delay line in and out, blocks that
// continue a stream, in place, and every status with nothing written.
#include <algorithm>
#include <cstring>
#include <limits>
#include <vector>

#include "qsp_test.h"

using qsptest::Guarded;

namespace {

template <class T>
struct Api;
template <>
struct Api<Qsp8u> {
    static constexpr QspDataType code = qsp8u;
    static constexpr auto fn = qspsFilterMedian_8u;
    static constexpr auto fnI = qspsFilterMedian_8u_I;
};
template <>
struct Api<Qsp16s> {
    static constexpr QspDataType code = qsp16s;
    static constexpr auto fn = qspsFilterMedian_16s;
    static constexpr auto fnI = qspsFilterMedian_16s_I;
};
template <>
struct Api<Qsp32s> {
    static constexpr QspDataType code = qsp32s;
    static constexpr auto fn = qspsFilterMedian_32s;
    static constexpr auto fnI = qspsFilterMedian_32s_I;
};
template <>
struct Api<Qsp32f> {
    static constexpr QspDataType code = qsp32f;
    static constexpr auto fn = qspsFilterMedian_32f;
    static constexpr auto fnI = qspsFilterMedian_32f_I;
};

// The documented order of floats: -NaN < -Inf < ... < -0 < +0 < ... < +Inf
// < +NaN, by their bit patterns.
template <class T>
long long orderKey(T v)
{
    if constexpr (std::is_same_v<T, Qsp32f>) {
        int32_t b;
        std::memcpy(&b, &v, 4);
        return b >= 0 ? (long long)b : -1LL - (long long)(b & 0x7FFFFFFF);
    } else {
        return (long long)v;
    }
}

template <class T>
bool sameValue(T a, T b)
{
    return std::memcmp(&a, &b, sizeof(T)) == 0;
}

// Medians by sorting each window, from the delay line (or the first input
// repeated) and the source.
template <class T>
std::vector<T> reference(const std::vector<T>& x, int m, const T* dly)
{
    std::vector<T> ext;
    for (int j = 0; j < m - 1; ++j) ext.push_back(dly ? dly[j] : x[0]);
    ext.insert(ext.end(), x.begin(), x.end());
    std::vector<T> y(x.size()), win(m);
    const auto less = [](T a, T b) { return orderKey(a) < orderKey(b); };
    for (size_t i = 0; i < x.size(); ++i) {
        std::copy(ext.begin() + i, ext.begin() + i + m, win.begin());
        std::nth_element(win.begin(), win.begin() + m / 2, win.end(), less);
        y[i] = win[m / 2];
    }
    return y;
}

// Data with many ties and, for floats, NaNs, infinities and both zeros.
template <class T>
std::vector<T> testData(size_t n, int spread)
{
    std::vector<T> v(n);
    auto& g = qsptest::rng();
    for (auto& e : v) {
        if constexpr (std::is_same_v<T, Qsp32f>) {
            const int pick = int(g() % 40);
            const float specials[] = {-0.0f, 0.0f, std::numeric_limits<float>::infinity(),
                                      -std::numeric_limits<float>::infinity(), std::nanf(""), -std::nanf("")};
            e = pick < 6 ? specials[pick] : float(int(g() % (2 * spread + 1)) - spread) * 0.25f;
        } else if constexpr (std::is_same_v<T, Qsp8u>) {
            e = Qsp8u(g() % 4 == 0 ? (g() % 2) * 255 : g() % 256);
        } else {
            const int pick = int(g() % 20);
            if (pick == 0) e = std::numeric_limits<T>::min();
            else if (pick == 1) e = std::numeric_limits<T>::max();
            else e = T(int(g() % (2 * spread + 1)) - spread);
        }
    }
    return v;
}

template <class T>
int bufferSize(int m)
{
    int size = -1;
    EXPECT_EQ(qspsFilterMedianGetBufferSize(m, Api<T>::code, &size), qspStsOk);
    return size;
}

template <class T>
void expectVector(const std::vector<T>& got, const std::vector<T>& want, const char* what, int m)
{
    ASSERT_EQ(got.size(), want.size());
    for (size_t i = 0; i < want.size(); ++i)
        ASSERT_TRUE(sameValue(got[i], want[i])) << what << " mask " << m << " at " << i;
}

template <class T>
void expectMedians(const std::vector<int>& masks, int len)
{
    for (int m : masks)
        for (int spread : {3, 1000}) {
            const std::vector<T> x = testData<T>(len, spread);
            const std::vector<T> dly = testData<T>(m, spread);
            for (bool withDly : {true, false}) {
                const T* d = withDly ? dly.data() : nullptr;
                const std::vector<T> want = reference(x, m, d);
                Guarded<T> y(len), dlyOut(m > 1 ? m - 1 : 1);
                Guarded<Qsp8u> buf(bufferSize<T>(m) + 1);
                ASSERT_EQ(Api<T>::fn(x.data(), y.data(), len, m, d, dlyOut.data(), buf.data() + 1), qspStsOk);
                EXPECT_TRUE(y.guardsIntact() && dlyOut.guardsIntact() && buf.guardsIntact());
                expectVector(std::vector<T>(y.data(), y.data() + len), want, "out of place", m);
                // The new delay line: the last m - 1 values of history and input.
                if (m > 1) {
                    std::vector<T> ext;
                    for (int j = 0; j < m - 1; ++j) ext.push_back(d ? d[j] : x[0]);
                    ext.insert(ext.end(), x.begin(), x.end());
                    expectVector(std::vector<T>(dlyOut.data(), dlyOut.data() + m - 1),
                                 std::vector<T>(ext.end() - (m - 1), ext.end()), "delay out", m);
                } else {
                    EXPECT_TRUE(dlyOut.untouched());
                }
                // In place gives the same.
                std::vector<T> io = x;
                ASSERT_EQ(Api<T>::fnI(io.data(), len, m, d, nullptr, buf.data() + 1), qspStsOk);
                expectVector(io, want, "in place", m);
            }
        }
}

// Consecutive blocks with the delay line carried in one array (source and
// destination of the delay line the same) equal one call.
template <class T>
void expectBlocksJoin(int m)
{
    const int len = 700;
    const std::vector<T> x = testData<T>(len, 50);
    std::vector<T> dly = testData<T>(m - 1, 50);
    const std::vector<T> want = reference(x, m, dly.data());
    std::vector<T> got(len);
    std::vector<Qsp8u> buf(bufferSize<T>(m));
    for (int at = 0, step = 1; at < len; at += step, step = step * 3 % 97 + 1) {
        const int n = std::min(step, len - at);
        ASSERT_EQ(Api<T>::fn(x.data() + at, got.data() + at, n, m, dly.data(), dly.data(), buf.data()), qspStsOk);
    }
    expectVector(got, want, "blocks", m);
}

template <class T>
void expectStatuses()
{
    const std::vector<T> x = testData<T>(16, 9);
    Guarded<T> y(16), dlyOut(4);
    Guarded<Qsp8u> buf(bufferSize<T>(5));
    auto fn = Api<T>::fn;
    EXPECT_EQ(fn(nullptr, y.data(), 16, 5, nullptr, dlyOut.data(), buf.data()), qspStsNullPtr);
    EXPECT_EQ(fn(x.data(), nullptr, 16, 5, nullptr, dlyOut.data(), buf.data()), qspStsNullPtr);
    EXPECT_EQ(fn(x.data(), y.data(), 16, 5, nullptr, dlyOut.data(), nullptr), qspStsNullPtr);
    EXPECT_EQ(fn(x.data(), y.data(), 0, 4, nullptr, dlyOut.data(), nullptr), qspStsNullPtr);
    EXPECT_EQ(fn(x.data(), y.data(), 0, 4, nullptr, dlyOut.data(), buf.data()), qspStsBadSize);
    EXPECT_EQ(fn(x.data(), y.data(), -1, 5, nullptr, dlyOut.data(), buf.data()), qspStsBadSize);
    for (int bad : {0, 2, 4, -1, -3, int(0x80000000)})
        EXPECT_EQ(fn(x.data(), y.data(), 16, bad, x.data(), dlyOut.data(), buf.data()), qspStsBadMaskSize) << bad;
    EXPECT_EQ(Api<T>::fnI(nullptr, 16, 5, nullptr, nullptr, buf.data()), qspStsNullPtr);
    EXPECT_EQ(Api<T>::fnI(y.data(), 16, 5, nullptr, nullptr, nullptr), qspStsNullPtr);
    EXPECT_EQ(Api<T>::fnI(y.data(), 0, 5, nullptr, nullptr, buf.data()), qspStsBadSize);
    EXPECT_EQ(Api<T>::fnI(y.data(), 16, 6, nullptr, nullptr, buf.data()), qspStsBadMaskSize);
    EXPECT_TRUE(y.untouched() && dlyOut.untouched() && buf.untouched());
}

// Mask 1 copies (in place: leaves) and touches no delay line.
template <class T>
void expectMaskOne()
{
    const std::vector<T> x = testData<T>(9, 100);
    Guarded<T> y(9), dly(1);
    Guarded<Qsp8u> buf(bufferSize<T>(1));
    ASSERT_EQ(Api<T>::fn(x.data(), y.data(), 9, 1, nullptr, dly.data(), buf.data()), qspStsOk);
    expectVector(std::vector<T>(y.data(), y.data() + 9), x, "mask 1", 1);
    EXPECT_TRUE(dly.untouched());
}

}  // namespace

TEST(FilterMedianGetBufferSize, Statuses)
{
    int size = 77;
    EXPECT_EQ(qspsFilterMedianGetBufferSize(5, qsp32f, nullptr), qspStsNullPtr);
    EXPECT_EQ(qspsFilterMedianGetBufferSize(0, 99, nullptr), qspStsNullPtr);
    for (int bad : {0, -1, 2, 100})
        EXPECT_EQ(qspsFilterMedianGetBufferSize(bad, 99, &size), qspStsBadMaskSize) << bad;
    for (int bad : {0, 2, 5, 9, 12, 14, 19, 20, -1, 21})
        EXPECT_EQ(qspsFilterMedianGetBufferSize(5, bad, &size), qspStsBadDataType) << bad;
    EXPECT_EQ(size, 77);
    // A mask whose buffer cannot be counted in an int.
    EXPECT_EQ(qspsFilterMedianGetBufferSize(0x7FFFFFFF, qsp32f, &size), qspStsOverflow);
    EXPECT_EQ(size, 77);
    for (QspDataType t : {qsp8u, qsp16s, qsp32s, qsp32f}) {
        EXPECT_EQ(qspsFilterMedianGetBufferSize(1, t, &size), qspStsOk);
        EXPECT_GT(size, 0);
    }
}

TEST(FilterMedian, Short8u) { expectMedians<Qsp8u>({1, 3, 5, 7, 15, 17, 31, 33, 63, 255}, 300); }
TEST(FilterMedian, Short16s) { expectMedians<Qsp16s>({1, 3, 5, 7, 9, 31, 33, 127, 255}, 300); }
TEST(FilterMedian, Short32s) { expectMedians<Qsp32s>({1, 3, 5, 7, 31, 33, 255}, 300); }
TEST(FilterMedian, Short32f) { expectMedians<Qsp32f>({1, 3, 5, 7, 31, 33, 255}, 300); }
// Masks beyond the sorted window's reach run the double heap.
TEST(FilterMedian, Long8u) { expectMedians<Qsp8u>({767, 769, 2001}, 2500); }
TEST(FilterMedian, Long16s) { expectMedians<Qsp16s>({383, 385, 1001}, 2000); }
TEST(FilterMedian, Long32s) { expectMedians<Qsp32s>({191, 193, 1001}, 2000); }
TEST(FilterMedian, Long32f) { expectMedians<Qsp32f>({191, 193, 1001}, 2000); }

TEST(FilterMedian, BlocksJoin)
{
    for (int m : {3, 31, 1001}) {
        expectBlocksJoin<Qsp8u>(m);
        expectBlocksJoin<Qsp16s>(m);
        expectBlocksJoin<Qsp32s>(m);
        expectBlocksJoin<Qsp32f>(m);
    }
}

TEST(FilterMedian, MaskOne)
{
    expectMaskOne<Qsp8u>();
    expectMaskOne<Qsp16s>();
    expectMaskOne<Qsp32s>();
    expectMaskOne<Qsp32f>();
}

TEST(FilterMedian, Statuses)
{
    expectStatuses<Qsp8u>();
    expectStatuses<Qsp16s>();
    expectStatuses<Qsp32s>();
    expectStatuses<Qsp32f>();
}

// SPDX-License-Identifier: BSD-3-Clause
// FindNearest, FindNearestOne: the nearest table entry, ties to the lower
// index.
#include <algorithm>

#include "qsp_test.h"

namespace {

// Brute force over the whole table, distances in long double.
template <class T>
int nearest(const std::vector<T>& table, T x)
{
    int best = 0;
    long double d = std::fabs((long double)x - (long double)table[0]);
    for (size_t j = 1; j < table.size(); ++j) {
        const long double e = std::fabs((long double)x - (long double)table[j]);
        if (e < d) d = e, best = int(j);
    }
    return best;
}

template <class T>
std::vector<T> values(size_t n, int range)
{
    std::vector<T> v(n);
    for (auto& x : v) x = T(std::is_floating_point_v<T> ? double(qsptest::rng()() % (4 * range)) / 4 : qsptest::rng()() % range);
    return v;
}

template <class T>
void checkFindNearest(QspStatus (*fn)(const T*, const T*, T*, int*, int, int))
{
    for (int tableLen : {1, 2, 3, 17, 200}) {
        std::vector<T> table = values<T>(tableLen, 1000);
        std::sort(table.begin(), table.end());
        const std::vector<T> src = values<T>(500, 1100);  // some beyond the table's ends
        qsptest::Guarded<T> dst(500);
        qsptest::Guarded<int> idx(500);
        ASSERT_EQ(fn(src.data(), table.data(), dst.data(), idx.data(), 500, tableLen), qspStsOk);
        for (int i = 0; i < 500; ++i) {
            const int j = nearest(table, src[i]);
            ASSERT_EQ(idx[i], j) << "value " << src[i] << " table " << tableLen;
            ASSERT_EQ(dst[i], table[j]);
        }
        ASSERT_TRUE(dst.guardsIntact() && idx.guardsIntact());
    }
    const std::vector<T> table = {T(10), T(20), T(20), T(30)};
    const T between = T(15);  // a tie between 10 and 20: the lower index
    T out;
    int at;
    ASSERT_EQ(fn(&between, table.data(), &out, &at, 1, 4), qspStsOk);
    EXPECT_EQ(at, 0);
    const T onTie = T(20);
    ASSERT_EQ(fn(&onTie, table.data(), &out, &at, 1, 4), qspStsOk);
    EXPECT_EQ(at, 1);
    qsptest::Guarded<T> d(2);
    qsptest::Guarded<int> i(2);
    EXPECT_EQ(fn(nullptr, table.data(), d.data(), i.data(), 1, 4), qspStsNullPtr);
    EXPECT_EQ(fn(table.data(), nullptr, d.data(), i.data(), 1, 4), qspStsNullPtr);
    EXPECT_EQ(fn(table.data(), table.data(), nullptr, i.data(), 1, 4), qspStsNullPtr);
    EXPECT_EQ(fn(table.data(), table.data(), d.data(), nullptr, 0, 0), qspStsNullPtr);
    EXPECT_EQ(fn(table.data(), table.data(), d.data(), i.data(), 0, 4), qspStsBadSize);
    EXPECT_EQ(fn(table.data(), table.data(), d.data(), i.data(), 1, 0), qspStsBadSize);
    EXPECT_TRUE(d.untouched() && i.untouched());
}

}  // namespace

TEST(FindNearest, Unsigned16) { checkFindNearest<Qsp16u>(qspsFindNearest_16u); }
TEST(FindNearest, Signed32) { checkFindNearest<Qsp32s>(qspsFindNearest_32s); }
TEST(FindNearest, Float32) { checkFindNearest<Qsp32f>(qspsFindNearest_32f); }
TEST(FindNearest, Float64) { checkFindNearest<Qsp64f>(qspsFindNearest_64f); }

TEST(FindNearest, One)
{
    const std::vector<Qsp16u> t16 = {1, 100, 65535};
    Qsp16u o16;
    int at = -1;
    ASSERT_EQ(qspsFindNearestOne_16u(60000, t16.data(), &o16, &at, 3), qspStsOk);
    EXPECT_EQ(at, 2);
    EXPECT_EQ(o16, 65535);
    const std::vector<float> t = {-1.0f, 0.5f, 2.0f};
    float o;
    ASSERT_EQ(qspsFindNearestOne_32f(1.25f, t.data(), &o, &at, 3), qspStsOk);
    EXPECT_EQ(at, 1);  // a tie between 0.5 and 2.0
    ASSERT_EQ(qspsFindNearestOne_32f(std::nanf(""), t.data(), &o, &at, 3), qspStsOk);
    EXPECT_EQ(at, 0);
    EXPECT_EQ(qspsFindNearestOne_32f(1.0f, nullptr, &o, &at, 3), qspStsNullPtr);
    EXPECT_EQ(qspsFindNearestOne_32f(1.0f, t.data(), &o, nullptr, 3), qspStsNullPtr);
    EXPECT_EQ(qspsFindNearestOne_16u(1, t16.data(), &o16, &at, 0), qspStsBadSize);
}

// SPDX-License-Identifier: BSD-3-Clause
// CountInRange: elements within closed bounds.
#include "qsp_test.h"

namespace {

template <class T>
void checkCount(QspStatus (*fn)(const T*, int, int*, T, T))
{
    for (int len : {1, 5, 64, 1001}) {
        std::vector<T> v(len);
        for (auto& x : v) x = T(int(qsptest::rng()() % 200) - 100);
        if constexpr (std::is_floating_point_v<T>) v[len / 2] = std::numeric_limits<T>::quiet_NaN();
        for (auto [lo, hi] : {std::pair<T, T>{-10, 10}, {T(5), T(5)}, {-1000, 1000}, {T(50), T(99)}}) {
            int want = 0;
            for (T x : v) want += x >= lo && x <= hi;
            int got = -1;
            ASSERT_EQ(fn(v.data(), len, &got, lo, hi), qspStsOk);
            ASSERT_EQ(got, want) << len;
        }
    }
    const T v[] = {1, 2, 3};
    qsptest::Guarded<int> count(1);
    EXPECT_EQ(fn(nullptr, 3, count.data(), 0, 1), qspStsNullPtr);
    EXPECT_EQ(fn(v, 3, nullptr, 0, 1), qspStsNullPtr);
    EXPECT_EQ(fn(v, 0, nullptr, 2, 1), qspStsNullPtr);
    EXPECT_EQ(fn(v, 0, count.data(), 2, 1), qspStsBadSize);
    EXPECT_EQ(fn(v, 3, count.data(), 2, 1), qspStsBadRange);
    EXPECT_TRUE(count.untouched());
}

}  // namespace

TEST(CountInRange, Signed32) { checkCount<Qsp32s>(qspsCountInRange_32s); }
TEST(CountInRange, Float32) { checkCount<Qsp32f>(qspsCountInRange_32f); }
TEST(CountInRange, Float64) { checkCount<Qsp64f>(qspsCountInRange_64f); }

// SPDX-License-Identifier: BSD-3-Clause
// ReplaceNAN: NaN elements and parts replaced in place.
#include "qsp_test.h"

namespace {

template <class T, class C>
void checkReplace(QspStatus (*fn)(C*, int, T))
{
    constexpr int parts = sizeof(C) / sizeof(T);
    for (int len : {1, 2, 7, 100}) {
        std::vector<T> v(parts * len);
        for (size_t i = 0; i < v.size(); ++i) {
            const int kind = int(qsptest::rng()() % 5);
            v[i] = kind == 0 ? std::numeric_limits<T>::quiet_NaN()
                 : kind == 1 ? -std::numeric_limits<T>::quiet_NaN()
                 : kind == 2 ? std::numeric_limits<T>::infinity()
                             : T(i);
        }
        std::vector<T> got = v;
        ASSERT_EQ(fn(reinterpret_cast<C*>(got.data()), len, T(-7.5)), qspStsOk);
        for (size_t i = 0; i < v.size(); ++i) {
            const T want = std::isnan(v[i]) ? T(-7.5) : v[i];
            ASSERT_TRUE(qsptest::sameBits(got[i], want)) << i;
        }
    }
    qsptest::Guarded<C> d(2);
    EXPECT_EQ(fn(nullptr, 2, T(0)), qspStsNullPtr);
    EXPECT_EQ(fn(d.data(), 0, T(0)), qspStsBadSize);
    EXPECT_TRUE(d.untouched());
}

}  // namespace

TEST(ReplaceNAN, Float32) { checkReplace<Qsp32f, Qsp32f>(qspsReplaceNAN_32f_I); }
TEST(ReplaceNAN, Float64) { checkReplace<Qsp64f, Qsp64f>(qspsReplaceNAN_64f_I); }
TEST(ReplaceNAN, Complex32) { checkReplace<Qsp32f, Qsp32fc>(qspsReplaceNAN_32fc_I); }
TEST(ReplaceNAN, Complex64) { checkReplace<Qsp64f, Qsp64fc>(qspsReplaceNAN_64fc_I); }

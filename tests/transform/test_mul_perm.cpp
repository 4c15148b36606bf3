// SPDX-License-Identifier: BSD-3-Clause
#include "packed_reference.h"

using namespace packedref;

TEST(MulPerm, StatusesAndCanaries)
{
    qsptest::Guarded<Qsp32f> v(4);
    Qsp32f s[4] = {};
    EXPECT_EQ(qspsMulPerm_32f(nullptr, s, v.data(), 4), qspStsNullPtr);
    EXPECT_EQ(qspsMulPerm_32f(s, nullptr, v.data(), 4), qspStsNullPtr);
    EXPECT_EQ(qspsMulPerm_32f(s, s, nullptr, 4), qspStsNullPtr);
    EXPECT_EQ(qspsMulPerm_32f(s, s, v.data(), 0), qspStsBadSize);
    EXPECT_EQ(qspsMulPerm_32f_I(nullptr, v.data(), 4), qspStsNullPtr);
    EXPECT_EQ(qspsMulPerm_32f_I(s, v.data(), -1), qspStsBadSize);
    EXPECT_TRUE(v.untouched());
    qsptest::Guarded<Qsp64f> w(4);
    Qsp64f t[4] = {};
    EXPECT_EQ(qspsMulPerm_64f(t, t, nullptr, 4), qspStsNullPtr);
    EXPECT_EQ(qspsMulPerm_64f(t, t, w.data(), 0), qspStsBadSize);
    EXPECT_EQ(qspsMulPerm_64f_I(t, nullptr, 4), qspStsNullPtr);
    EXPECT_EQ(qspsMulPerm_64f_I(t, w.data(), 0), qspStsBadSize);
    EXPECT_TRUE(w.untouched());
}

TEST(MulPerm, EveryLengthMatchesTheReference)
{
    checkInPlaceProducts<Qsp32f, false>(Layout::Perm, qspsMulPerm_32f_I);
    checkInPlaceProducts<Qsp64f, false>(Layout::Perm, qspsMulPerm_64f_I);
}

TEST(MulPerm, OutOfPlaceEqualsInPlace)
{
    for (int len = 1; len <= 40; ++len) {
        auto a = randomValues<Qsp32f>(len), b = randomValues<Qsp32f>(len);
        std::vector<Qsp32f> d(len + 1, -9.0f), di = b;
        ASSERT_EQ(qspsMulPerm_32f(a.data(), b.data(), d.data(), len), qspStsOk);
        ASSERT_EQ(qspsMulPerm_32f_I(a.data(), di.data(), len), qspStsOk);
        EXPECT_EQ(d[len], -9.0f);
        for (int i = 0; i < len; ++i) ASSERT_EQ(d[i], di[i]);
        auto x = randomValues<Qsp64f>(len), y = randomValues<Qsp64f>(len);
        std::vector<Qsp64f> z(len), zi = y;
        ASSERT_EQ(qspsMulPerm_64f(x.data(), y.data(), z.data(), len), qspStsOk);
        ASSERT_EQ(qspsMulPerm_64f_I(x.data(), zi.data(), len), qspStsOk);
        for (int i = 0; i < len; ++i) ASSERT_EQ(z[i], zi[i]);
    }
}

TEST(MulPerm, OddLengthsEqualMulPack)
{
    for (int len = 1; len <= 41; len += 2) {
        auto a = randomValues<Qsp32f>(len), b = randomValues<Qsp32f>(len);
        auto p = b, q = b;
        ASSERT_EQ(qspsMulPerm_32f_I(a.data(), p.data(), len), qspStsOk);
        ASSERT_EQ(qspsMulPack_32f_I(a.data(), q.data(), len), qspStsOk);
        for (int i = 0; i < len; ++i) ASSERT_EQ(p[i], q[i]);
    }
}

TEST(MulPerm, EvenLengthHasTwoRealValuesFirst)
{
    Qsp32f a[4] = {2, 3, 1, 1}, b[4] = {5, 7, 1, -1};
    ASSERT_EQ(qspsMulPerm_32f_I(a, b, 4), qspStsOk);
    EXPECT_EQ(b[0], 10);
    EXPECT_EQ(b[1], 21);
    EXPECT_EQ(b[2], 2);  // (1 + i)(1 - i)
    EXPECT_EQ(b[3], 0);
}

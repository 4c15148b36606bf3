// SPDX-License-Identifier: BSD-3-Clause
#include "packed_reference.h"

using namespace packedref;

TEST(MulPack, StatusesAndCanaries)
{
    qsptest::Guarded<Qsp32f> v(4);
    Qsp32f s[4] = {1, 2, 3, 4};
    EXPECT_EQ(qspsMulPack_32f_I(nullptr, v.data(), 4), qspStsNullPtr);
    EXPECT_EQ(qspsMulPack_32f_I(s, nullptr, 0), qspStsNullPtr);
    EXPECT_EQ(qspsMulPack_32f_I(s, v.data(), 0), qspStsBadSize);
    EXPECT_EQ(qspsMulPack_32f_I(s, v.data(), -3), qspStsBadSize);
    EXPECT_TRUE(v.untouched());
    qsptest::Guarded<Qsp64f> w(4);
    Qsp64f t[4] = {1, 2, 3, 4};
    EXPECT_EQ(qspsMulPack_64f_I(nullptr, w.data(), 4), qspStsNullPtr);
    EXPECT_EQ(qspsMulPack_64f_I(t, nullptr, 4), qspStsNullPtr);
    EXPECT_EQ(qspsMulPack_64f_I(t, w.data(), 0), qspStsBadSize);
    EXPECT_TRUE(w.untouched());
}

TEST(MulPack, EveryLengthBothParities)
{
    checkInPlaceProducts<Qsp32f, false>(Layout::Pack, qspsMulPack_32f_I);
    checkInPlaceProducts<Qsp64f, false>(Layout::Pack, qspsMulPack_64f_I);
    // The Nyquist bin of even lengths is real too.
    auto a = randomValues<Qsp32f>(6), b = randomValues<Qsp32f>(6);
    auto d = b;
    ASSERT_EQ(qspsMulPack_32f_I(a.data(), d.data(), 6), qspStsOk);
    EXPECT_EQ(d[5], a[5] * b[5]);
}

TEST(MulPack, OneAndTwoRealValues)
{
    Qsp32f a[2] = {3, -2}, b[2] = {5, 7};
    ASSERT_EQ(qspsMulPack_32f_I(a, b, 1), qspStsOk);
    EXPECT_EQ(b[0], 15);
    EXPECT_EQ(b[1], 7);  // beyond len: untouched
    Qsp32f c[2] = {5, 7};
    ASSERT_EQ(qspsMulPack_32f_I(a, c, 2), qspStsOk);
    EXPECT_EQ(c[0], 15);
    EXPECT_EQ(c[1], -14);
    // len 3: one real value and one pair.
    Qsp64f x[3] = {2, 1, 2}, y[3] = {3, 3, -1};
    ASSERT_EQ(qspsMulPack_64f_I(x, y, 3), qspStsOk);
    EXPECT_EQ(y[0], 6);
    EXPECT_EQ(y[1], 1 * 3 - 2 * -1);
    EXPECT_EQ(y[2], 1 * -1 + 2 * 3);
}

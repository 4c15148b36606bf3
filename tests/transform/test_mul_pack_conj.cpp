// SPDX-License-Identifier: BSD-3-Clause
#include "packed_reference.h"

using namespace packedref;

TEST(MulPackConj, StatusesAndCanaries)
{
    qsptest::Guarded<Qsp32f> v(4);
    Qsp32f s[4] = {};
    EXPECT_EQ(qspsMulPackConj_32f_I(nullptr, v.data(), 4), qspStsNullPtr);
    EXPECT_EQ(qspsMulPackConj_32f_I(s, nullptr, 4), qspStsNullPtr);
    EXPECT_EQ(qspsMulPackConj_32f_I(s, v.data(), 0), qspStsBadSize);
    EXPECT_TRUE(v.untouched());
    qsptest::Guarded<Qsp64f> w(4);
    Qsp64f t[4] = {};
    EXPECT_EQ(qspsMulPackConj_64f_I(nullptr, w.data(), 4), qspStsNullPtr);
    EXPECT_EQ(qspsMulPackConj_64f_I(t, w.data(), -1), qspStsBadSize);
    EXPECT_TRUE(w.untouched());
}

TEST(MulPackConj, TheInPlaceOperandIsConjugated)
{
    // a = (0, 1) as a pair, b = (1, 0): a * conj(b) = (0, 1).
    Qsp32f a[3] = {1, 0, 1}, b[3] = {1, 1, 0};
    ASSERT_EQ(qspsMulPackConj_32f_I(a, b, 3), qspStsOk);
    EXPECT_EQ(b[1], 0);
    EXPECT_EQ(b[2], 1);
    // and with b = (0, 1): (0 + i)(0 - i) = 1.
    Qsp64f c[3] = {1, 0, 1}, d[3] = {1, 0, 1};
    ASSERT_EQ(qspsMulPackConj_64f_I(c, d, 3), qspStsOk);
    EXPECT_EQ(d[1], 1);
    EXPECT_EQ(d[2], 0);
}

TEST(MulPackConj, EveryLengthMatchesTheReference)
{
    checkInPlaceProducts<Qsp32f, true>(Layout::Pack, qspsMulPackConj_32f_I);
    checkInPlaceProducts<Qsp64f, true>(Layout::Pack, qspsMulPackConj_64f_I);
}

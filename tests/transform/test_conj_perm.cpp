// SPDX-License-Identifier: BSD-3-Clause
#include "conj_expand.h"

using namespace conjexpand;

TEST(ConjPerm, StatusesAndCanaries)
{
    qsptest::Guarded<Qsp32fc> d(4);
    Qsp32f s[4] = {};
    EXPECT_EQ(qspsConjPerm_32fc(nullptr, d.data(), 4), qspStsNullPtr);
    EXPECT_EQ(qspsConjPerm_32fc(s, nullptr, 4), qspStsNullPtr);
    EXPECT_EQ(qspsConjPerm_32fc(s, d.data(), 0), qspStsBadSize);
    EXPECT_EQ(qspsConjPerm_32fc_I(nullptr, 4), qspStsNullPtr);
    EXPECT_EQ(qspsConjPerm_32fc_I(d.data(), -2), qspStsBadSize);
    EXPECT_TRUE(d.untouched());
    qsptest::Guarded<Qsp64fc> e(4);
    Qsp64f t[4] = {};
    EXPECT_EQ(qspsConjPerm_64fc(t, nullptr, 4), qspStsNullPtr);
    EXPECT_EQ(qspsConjPerm_64fc(t, e.data(), 0), qspStsBadSize);
    EXPECT_EQ(qspsConjPerm_64fc_I(e.data(), 0), qspStsBadSize);
    EXPECT_TRUE(e.untouched());
}

TEST(ConjPerm, ExpandsEveryLength)
{
    checkLengths<Qsp32f>(
        Layout::Perm, [](const Qsp32f* s, Qsp32f* d, long long n) { return qspsConjPerm_32fc(s, (Qsp32fc*)d, (int)n); },
        [](Qsp32f* d, long long n) { return qspsConjPerm_32fc_I((Qsp32fc*)d, (int)n); });
    checkLengths<Qsp64f>(
        Layout::Perm, [](const Qsp64f* s, Qsp64f* d, long long n) { return qspsConjPerm_64fc(s, (Qsp64fc*)d, (int)n); },
        [](Qsp64f* d, long long n) { return qspsConjPerm_64fc_I((Qsp64fc*)d, (int)n); });
}

// SPDX-License-Identifier: BSD-3-Clause
#include "conj_expand.h"

using namespace conjexpand;

TEST(ConjCcs, StatusesAndCanaries)
{
    qsptest::Guarded<Qsp32fc> d(4);
    Qsp32f s[4] = {};
    EXPECT_EQ(qspsConjCcs_32fc(nullptr, d.data(), 4), qspStsNullPtr);
    EXPECT_EQ(qspsConjCcs_32fc(s, d.data(), 0), qspStsBadSize);
    EXPECT_EQ(qspsConjCcs_32fc_I(nullptr, 4), qspStsNullPtr);
    // The _L forms check the 64-bit length before the pointers.
    EXPECT_EQ(qspsConjCcs_32fc_L(nullptr, nullptr, 0), qspStsBadSize);
    EXPECT_EQ(qspsConjCcs_32fc_L(nullptr, d.data(), -1), qspStsBadSize);
    EXPECT_EQ(qspsConjCcs_32fc_L(s, nullptr, 4), qspStsNullPtr);
    EXPECT_EQ(qspsConjCcs_32fc_I_L(nullptr, 0), qspStsBadSize);
    EXPECT_EQ(qspsConjCcs_32fc_I_L(nullptr, 4), qspStsNullPtr);
    EXPECT_TRUE(d.untouched());
    qsptest::Guarded<Qsp64fc> e(4);
    EXPECT_EQ(qspsConjCcs_64fc_L(nullptr, nullptr, 0), qspStsBadSize);
    EXPECT_EQ(qspsConjCcs_64fc_I_L(nullptr, 3), qspStsNullPtr);
    EXPECT_EQ(qspsConjCcs_64fc(nullptr, e.data(), 0), qspStsNullPtr);
    EXPECT_TRUE(e.untouched());
}

TEST(ConjCcs, ExpandsEveryLength)
{
    checkLengths<Qsp32f>(
        Layout::Ccs, [](const Qsp32f* s, Qsp32f* d, long long n) { return qspsConjCcs_32fc(s, (Qsp32fc*)d, (int)n); },
        [](Qsp32f* d, long long n) { return qspsConjCcs_32fc_I((Qsp32fc*)d, (int)n); });
    checkLengths<Qsp32f>(
        Layout::Ccs, [](const Qsp32f* s, Qsp32f* d, long long n) { return qspsConjCcs_32fc_L(s, (Qsp32fc*)d, n); },
        [](Qsp32f* d, long long n) { return qspsConjCcs_32fc_I_L((Qsp32fc*)d, n); });
    checkLengths<Qsp64f>(
        Layout::Ccs, [](const Qsp64f* s, Qsp64f* d, long long n) { return qspsConjCcs_64fc(s, (Qsp64fc*)d, (int)n); },
        [](Qsp64f* d, long long n) { return qspsConjCcs_64fc_I((Qsp64fc*)d, (int)n); });
    checkLengths<Qsp64f>(
        Layout::Ccs, [](const Qsp64f* s, Qsp64f* d, long long n) { return qspsConjCcs_64fc_L(s, (Qsp64fc*)d, n); },
        [](Qsp64f* d, long long n) { return qspsConjCcs_64fc_I_L((Qsp64fc*)d, n); });
}

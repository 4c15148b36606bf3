// SPDX-License-Identifier: BSD-3-Clause
// NormDiff: the norms of the difference of two vectors.
#include "norm_check.h"

TEST(NormDiff, Statuses)
{
    qsptest::Guarded<Qsp32f> a(4), b(4), out(2);
    EXPECT_EQ(qspsNormDiff_L2_32f(nullptr, b.data(), 4, out.data()), qspStsNullPtr);
    EXPECT_EQ(qspsNormDiff_L2_32f(a.data(), nullptr, 4, out.data()), qspStsNullPtr);
    EXPECT_EQ(qspsNormDiff_L2_32f(a.data(), b.data(), 4, nullptr), qspStsNullPtr);
    EXPECT_EQ(qspsNormDiff_L2_32f(a.data(), b.data(), 0, nullptr), qspStsNullPtr);
    EXPECT_EQ(qspsNormDiff_L2_32f(a.data(), b.data(), 0, out.data()), qspStsBadSize);
    EXPECT_EQ(qspsNormDiff_L1_16s32s_Sfs(reinterpret_cast<Qsp16s*>(a.data()), nullptr, 2,
                                         reinterpret_cast<Qsp32s*>(out.data()), 0),
              qspStsNullPtr);
    EXPECT_EQ(qspsNormDiff_Inf_64fc64f(reinterpret_cast<Qsp64fc*>(a.data()), reinterpret_cast<Qsp64fc*>(b.data()), -4,
                                       reinterpret_cast<Qsp64f*>(out.data())),
              qspStsBadSize);
    EXPECT_TRUE(out.untouched());
}

TEST(NormDiff, FloatingFollowTheNormSchemes) { normcheck::checkFloating(true); }
TEST(NormDiff, Int16DifferencesExactAndScaled) { normcheck::checkInt16(true); }

// SPDX-License-Identifier: BSD-3-Clause
// Norm: infinity, L1 and L2 norms of a vector.
#include "norm_check.h"

TEST(Norm, Statuses)
{
    qsptest::Guarded<Qsp32f> src(4), out(2);
    EXPECT_EQ(qspsNorm_L2_32f(nullptr, 4, out.data()), qspStsNullPtr);
    EXPECT_EQ(qspsNorm_L2_32f(src.data(), 4, nullptr), qspStsNullPtr);
    EXPECT_EQ(qspsNorm_L2_32f(nullptr, 0, out.data()), qspStsNullPtr);
    EXPECT_EQ(qspsNorm_L2_32f(src.data(), 0, out.data()), qspStsBadSize);
    EXPECT_EQ(qspsNorm_L2_32f_L(nullptr, 0, out.data()), qspStsBadSize);
    EXPECT_EQ(qspsNorm_L2_32f_L(src.data(), 3, nullptr), qspStsNullPtr);
    EXPECT_EQ(qspsNorm_Inf_16s32s_Sfs(nullptr, 3, reinterpret_cast<Qsp32s*>(out.data()), 0), qspStsNullPtr);
    EXPECT_EQ(qspsNorm_L1_16s64s_Sfs(reinterpret_cast<Qsp16s*>(src.data()), -1, reinterpret_cast<Qsp64s*>(out.data()), 0),
              qspStsBadSize);
    EXPECT_EQ(qspsNorm_L2Sqr_16s64s_Sfs(reinterpret_cast<Qsp16s*>(src.data()), 3, nullptr, 0), qspStsNullPtr);
    EXPECT_EQ(qspsNorm_Inf_32fc32f(reinterpret_cast<Qsp32fc*>(src.data()), 0, out.data()), qspStsBadSize);
    EXPECT_EQ(qspsNorm_L1_64fc64f(nullptr, 1, reinterpret_cast<Qsp64f*>(out.data())), qspStsNullPtr);
    EXPECT_EQ(qspsNorm_L2_64fc64f_L(nullptr, 0, nullptr), qspStsBadSize);
    EXPECT_EQ(qspsNorm_L2_64f_L(nullptr, 2, reinterpret_cast<Qsp64f*>(out.data())), qspStsNullPtr);
    EXPECT_TRUE(out.untouched());
}

TEST(Norm, FloatingFollowTheirSchemes) { normcheck::checkFloating(false); }
TEST(Norm, Int16ExactAndScaled) { normcheck::checkInt16(false); }

TEST(Norm, InfinityWithScaleFactorFortyIsZero)
{
    const std::vector<Qsp16s> v = redref::randomInts<Qsp16s>(77);
    Qsp32s r = 5;
    ASSERT_EQ(qspsNorm_Inf_16s32s_Sfs(v.data(), 77, &r, 40), qspStsOk);
    EXPECT_EQ(r, 0);
}

// SPDX-License-Identifier: BSD-3-Clause
// MinAbs: the smallest magnitude.
#include "extremum_reference.h"

using exref::Want;

TEST(MinAbs, Statuses)
{
    exref::checkValueStatuses<Qsp16s>(qspsMinAbs_16s);
    exref::checkValueStatuses<Qsp32s>(qspsMinAbs_32s);
    exref::checkValueStatuses<Qsp32f>(qspsMinAbs_32f);
    exref::checkValueStatuses<Qsp64f>(qspsMinAbs_64f);
    exref::checkValueStatuses<Qsp32f>(qspsMinAbs_32f_L, true);
    exref::checkValueStatuses<Qsp64f>(qspsMinAbs_64f_L, true);
}

TEST(MinAbs, EqualsThePlainSmallestMagnitude)
{
    exref::checkValueSearch<Qsp16s, true>(qspsMinAbs_16s, Want::Smallest);
    exref::checkValueSearch<Qsp32s, true>(qspsMinAbs_32s, Want::Smallest);
    exref::checkValueSearch<Qsp32f, true>(qspsMinAbs_32f, Want::Smallest);
    exref::checkValueSearch<Qsp64f, true>(qspsMinAbs_64f, Want::Smallest);
    exref::checkValueSearch<Qsp32f, true>(qspsMinAbs_32f_L, Want::Smallest);
    exref::checkValueSearch<Qsp64f, true>(qspsMinAbs_64f_L, Want::Smallest);
}

TEST(MinAbs, NaNsFollowTheLaneStep)
{
    exref::checkValueSearchWithNaNs<Qsp32f, true>(qspsMinAbs_32f, Want::Smallest);
    exref::checkValueSearchWithNaNs<Qsp64f, true>(qspsMinAbs_64f, Want::Smallest);
}

// Magnitudes compare unsigned: the most negative integer is the smallest
// magnitude only when it is alone, and then it saturates.
TEST(MinAbs, MostNegativeIntegerHasTheLargestMagnitude)
{
    std::vector<Qsp16s> s(50, -32768);
    Qsp16s m16 = 0;
    ASSERT_EQ(qspsMinAbs_16s(s.data(), 50, &m16), qspStsOk);
    EXPECT_EQ(m16, 32767);
    s[33] = -32767;
    ASSERT_EQ(qspsMinAbs_16s(s.data(), 50, &m16), qspStsOk);
    EXPECT_EQ(m16, 32767);
    s[34] = 32766;
    ASSERT_EQ(qspsMinAbs_16s(s.data(), 50, &m16), qspStsOk);
    EXPECT_EQ(m16, 32766);
    std::vector<Qsp32s> t(50, -2147483647 - 1);
    t[7] = 2147483647;
    Qsp32s m32 = 0;
    ASSERT_EQ(qspsMinAbs_32s(t.data(), 50, &m32), qspStsOk);
    EXPECT_EQ(m32, 2147483647);
}

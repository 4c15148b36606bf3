// SPDX-License-Identifier: BSD-3-Clause
// MinAbsIndx: the smallest magnitude and the lowest index holding it.
#include "extremum_reference.h"

using exref::Want;

TEST(MinAbsIndx, Statuses)
{
    exref::checkIndexStatuses<Qsp16s>(qspsMinAbsIndx_16s, qspsMinAbs_16s);
    exref::checkIndexStatuses<Qsp32s>(qspsMinAbsIndx_32s, qspsMinAbs_32s);
    exref::checkIndexStatuses<Qsp32f>(qspsMinAbsIndx_32f, qspsMinAbs_32f);
    exref::checkIndexStatuses<Qsp64f>(qspsMinAbsIndx_64f, qspsMinAbs_64f);
    exref::checkIndexStatuses<Qsp32f>(qspsMinAbsIndx_32f_L, qspsMinAbs_32f_L, true);
    exref::checkIndexStatuses<Qsp64f>(qspsMinAbsIndx_64f_L, qspsMinAbs_64f_L, true);
}

TEST(MinAbsIndx, LowestIndexOfTheSmallestMagnitude)
{
    exref::checkIndexSearch<Qsp16s, true>(qspsMinAbsIndx_16s, Want::Smallest);
    exref::checkIndexSearch<Qsp32s, true>(qspsMinAbsIndx_32s, Want::Smallest);
    exref::checkIndexSearch<Qsp32f, true>(qspsMinAbsIndx_32f, Want::Smallest);
    exref::checkIndexSearch<Qsp64f, true>(qspsMinAbsIndx_64f, Want::Smallest);
    exref::checkIndexSearch<Qsp32f, true>(qspsMinAbsIndx_32f_L, Want::Smallest);
    exref::checkIndexSearch<Qsp64f, true>(qspsMinAbsIndx_64f_L, Want::Smallest);
}

TEST(MinAbsIndx, SignsDoNotMatterAndZerosTie)
{
    std::vector<float> a(100, 3.0f);
    a[40] = -0.5f;
    a[41] = 0.5f;
    float m = 0;
    int at = -1;
    ASSERT_EQ(qspsMinAbsIndx_32f(a.data(), 100, &m, &at), qspStsOk);
    EXPECT_EQ(at, 40);
    EXPECT_EQ(m, 0.5f);
    a[70] = -0.0f;
    a[80] = 0.0f;
    ASSERT_EQ(qspsMinAbsIndx_32f(a.data(), 100, &m, &at), qspStsOk);
    EXPECT_EQ(at, 70);
    EXPECT_TRUE(exref::sameBits(m, 0.0f));
    std::vector<Qsp16s> b(100, -32768);
    b[99] = -32767;
    Qsp16s m16;
    ASSERT_EQ(qspsMinAbsIndx_16s(b.data(), 100, &m16, &at), qspStsOk);
    EXPECT_EQ(at, 99);
    EXPECT_EQ(m16, 32767);
}

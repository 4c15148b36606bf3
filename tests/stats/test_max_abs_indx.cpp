// SPDX-License-Identifier: BSD-3-Clause
// MaxAbsIndx: the largest magnitude and the lowest index holding it.
#include "extremum_reference.h"

using exref::Want;

TEST(MaxAbsIndx, Statuses)
{
    exref::checkIndexStatuses<Qsp16s>(qspsMaxAbsIndx_16s, qspsMaxAbs_16s);
    exref::checkIndexStatuses<Qsp32s>(qspsMaxAbsIndx_32s, qspsMaxAbs_32s);
    exref::checkIndexStatuses<Qsp32f>(qspsMaxAbsIndx_32f, qspsMaxAbs_32f);
    exref::checkIndexStatuses<Qsp64f>(qspsMaxAbsIndx_64f, qspsMaxAbs_64f);
    exref::checkIndexStatuses<Qsp32f>(qspsMaxAbsIndx_32f_L, qspsMaxAbs_32f_L, true);
    exref::checkIndexStatuses<Qsp64f>(qspsMaxAbsIndx_64f_L, qspsMaxAbs_64f_L, true);
}

TEST(MaxAbsIndx, LowestIndexOfTheLargestMagnitude)
{
    exref::checkIndexSearch<Qsp16s, true>(qspsMaxAbsIndx_16s, Want::Largest);
    exref::checkIndexSearch<Qsp32s, true>(qspsMaxAbsIndx_32s, Want::Largest);
    exref::checkIndexSearch<Qsp32f, true>(qspsMaxAbsIndx_32f, Want::Largest);
    exref::checkIndexSearch<Qsp64f, true>(qspsMaxAbsIndx_64f, Want::Largest);
    exref::checkIndexSearch<Qsp32f, true>(qspsMaxAbsIndx_32f_L, Want::Largest);
    exref::checkIndexSearch<Qsp64f, true>(qspsMaxAbsIndx_64f_L, Want::Largest);
}

TEST(MaxAbsIndx, MostNegativeIntegerIsTheLargestMagnitude)
{
    std::vector<Qsp16s> a = {32767, -32768};
    Qsp16s m = 0;
    int at = -1;
    ASSERT_EQ(qspsMaxAbsIndx_16s(a.data(), 2, &m, &at), qspStsOk);
    EXPECT_EQ(at, 1);
    EXPECT_EQ(m, 32767);
    // The same in a long vector, behind a tie of 32767 and -32767.
    std::vector<Qsp16s> b(300, 7);
    b[10] = 32767;
    b[11] = -32767;
    b[250] = -32768;
    b[260] = -32768;
    ASSERT_EQ(qspsMaxAbsIndx_16s(b.data(), 300, &m, &at), qspStsOk);
    EXPECT_EQ(at, 250);
    std::vector<Qsp32s> c(300, 7);
    c[100] = 2147483647;
    c[200] = -2147483647 - 1;
    Qsp32s m32;
    ASSERT_EQ(qspsMaxAbsIndx_32s(c.data(), 300, &m32, &at), qspStsOk);
    EXPECT_EQ(at, 200);
    EXPECT_EQ(m32, 2147483647);
}

// SPDX-License-Identifier: BSD-3-Clause
// Min: the smallest element.
#include "extremum_reference.h"

using exref::Want;

TEST(Min, Statuses)
{
    exref::checkValueStatuses<Qsp16s>(qspsMin_16s);
    exref::checkValueStatuses<Qsp32s>(qspsMin_32s);
    exref::checkValueStatuses<Qsp32f>(qspsMin_32f);
    exref::checkValueStatuses<Qsp64f>(qspsMin_64f);
    exref::checkValueStatuses<Qsp32f>(qspsMin_32f_L, true);
    exref::checkValueStatuses<Qsp64f>(qspsMin_64f_L, true);
}

TEST(Min, EqualsThePlainMinimum)
{
    exref::checkValueSearch<Qsp16s, false>(qspsMin_16s, Want::Smallest);
    exref::checkValueSearch<Qsp32s, false>(qspsMin_32s, Want::Smallest);
    exref::checkValueSearch<Qsp32f, false>(qspsMin_32f, Want::Smallest);
    exref::checkValueSearch<Qsp64f, false>(qspsMin_64f, Want::Smallest);
    exref::checkValueSearch<Qsp32f, false>(qspsMin_32f_L, Want::Smallest);
    exref::checkValueSearch<Qsp64f, false>(qspsMin_64f_L, Want::Smallest);
}

TEST(Min, NaNsFollowTheLaneStep)
{
    exref::checkValueSearchWithNaNs<Qsp32f, false>(qspsMin_32f, Want::Smallest);
    exref::checkValueSearchWithNaNs<Qsp64f, false>(qspsMin_64f, Want::Smallest);
}

TEST(Min, ExtremeValuesOfTheType)
{
    std::vector<Qsp16s> s = {32767, 32767, -32768};
    Qsp16s m16;
    ASSERT_EQ(qspsMin_16s(s.data(), 3, &m16), qspStsOk);
    EXPECT_EQ(m16, -32768);
    std::vector<Qsp32s> t(77, 2147483647);
    t[40] = -2147483647 - 1;
    Qsp32s m32;
    ASSERT_EQ(qspsMin_32s(t.data(), 77, &m32), qspStsOk);
    EXPECT_EQ(m32, -2147483647 - 1);
    std::vector<Qsp64f> f(40, std::numeric_limits<double>::infinity());
    Qsp64f mf;
    ASSERT_EQ(qspsMin_64f(f.data(), 40, &mf), qspStsOk);
    EXPECT_EQ(mf, std::numeric_limits<double>::infinity());
}

// SPDX-License-Identifier: BSD-3-Clause
// Max: the largest element.
#include "extremum_reference.h"

using exref::Want;

TEST(Max, Statuses)
{
    exref::checkValueStatuses<Qsp16s>(qspsMax_16s);
    exref::checkValueStatuses<Qsp32s>(qspsMax_32s);
    exref::checkValueStatuses<Qsp32f>(qspsMax_32f);
    exref::checkValueStatuses<Qsp64f>(qspsMax_64f);
    exref::checkValueStatuses<Qsp32f>(qspsMax_32f_L, true);
    exref::checkValueStatuses<Qsp64f>(qspsMax_64f_L, true);
}

TEST(Max, EqualsThePlainMaximum)
{
    exref::checkValueSearch<Qsp16s, false>(qspsMax_16s, Want::Largest);
    exref::checkValueSearch<Qsp32s, false>(qspsMax_32s, Want::Largest);
    exref::checkValueSearch<Qsp32f, false>(qspsMax_32f, Want::Largest);
    exref::checkValueSearch<Qsp64f, false>(qspsMax_64f, Want::Largest);
    exref::checkValueSearch<Qsp32f, false>(qspsMax_32f_L, Want::Largest);
    exref::checkValueSearch<Qsp64f, false>(qspsMax_64f_L, Want::Largest);
}

TEST(Max, NaNsFollowTheLaneStep)
{
    exref::checkValueSearchWithNaNs<Qsp32f, false>(qspsMax_32f, Want::Largest);
    exref::checkValueSearchWithNaNs<Qsp64f, false>(qspsMax_64f, Want::Largest);
}

TEST(Max, ExtremeValuesOfTheType)
{
    std::vector<Qsp16s> s = {-32768, -32768, -5};
    Qsp16s m16;
    ASSERT_EQ(qspsMax_16s(s.data(), 3, &m16), qspStsOk);
    EXPECT_EQ(m16, -5);
    std::vector<Qsp32s> t(77, -2147483647 - 1);
    t[76] = 2147483647;
    Qsp32s m32;
    ASSERT_EQ(qspsMax_32s(t.data(), 77, &m32), qspStsOk);
    EXPECT_EQ(m32, 2147483647);
    std::vector<Qsp32f> f(40, -std::numeric_limits<float>::infinity());
    Qsp32f mf;
    ASSERT_EQ(qspsMax_32f(f.data(), 40, &mf), qspStsOk);
    EXPECT_EQ(mf, -std::numeric_limits<float>::infinity());
}

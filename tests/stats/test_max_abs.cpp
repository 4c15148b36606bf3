// SPDX-License-Identifier: BSD-3-Clause
// MaxAbs: the largest magnitude.
#include "extremum_reference.h"

using exref::Want;

TEST(MaxAbs, Statuses)
{
    exref::checkValueStatuses<Qsp16s>(qspsMaxAbs_16s);
    exref::checkValueStatuses<Qsp32s>(qspsMaxAbs_32s);
    exref::checkValueStatuses<Qsp32f>(qspsMaxAbs_32f);
    exref::checkValueStatuses<Qsp64f>(qspsMaxAbs_64f);
    exref::checkValueStatuses<Qsp32f>(qspsMaxAbs_32f_L, true);
    exref::checkValueStatuses<Qsp64f>(qspsMaxAbs_64f_L, true);
}

TEST(MaxAbs, EqualsThePlainLargestMagnitude)
{
    exref::checkValueSearch<Qsp16s, true>(qspsMaxAbs_16s, Want::Largest);
    exref::checkValueSearch<Qsp32s, true>(qspsMaxAbs_32s, Want::Largest);
    exref::checkValueSearch<Qsp32f, true>(qspsMaxAbs_32f, Want::Largest);
    exref::checkValueSearch<Qsp64f, true>(qspsMaxAbs_64f, Want::Largest);
    exref::checkValueSearch<Qsp32f, true>(qspsMaxAbs_32f_L, Want::Largest);
    exref::checkValueSearch<Qsp64f, true>(qspsMaxAbs_64f_L, Want::Largest);
}

TEST(MaxAbs, NaNsFollowTheLaneStep)
{
    exref::checkValueSearchWithNaNs<Qsp32f, true>(qspsMaxAbs_32f, Want::Largest);
    exref::checkValueSearchWithNaNs<Qsp64f, true>(qspsMaxAbs_64f, Want::Largest);
}

// The most negative integer has the largest magnitude; reported, the
// magnitude saturates to the largest positive value.
TEST(MaxAbs, MostNegativeIntegerSaturates)
{
    for (int len : {1, 2, 40, 100}) {
        std::vector<Qsp16s> s(len, 32767);
        s[len - 1] = -32768;
        Qsp16s m16 = 0;
        ASSERT_EQ(qspsMaxAbs_16s(s.data(), len, &m16), qspStsOk);
        EXPECT_EQ(m16, 32767);
        std::vector<Qsp32s> t(len, -5);
        t[len / 2] = -2147483647 - 1;
        Qsp32s m32 = 0;
        ASSERT_EQ(qspsMaxAbs_32s(t.data(), len, &m32), qspStsOk);
        EXPECT_EQ(m32, 2147483647);
    }
}

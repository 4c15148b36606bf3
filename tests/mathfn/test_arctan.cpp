// SPDX-License-Identifier: BSD-3-Clause
// The Arctan family: argument checks, both precisions against their
// kernels at every length and alignment, in place and out of place.
#include <cmath>

#include "../arith/arith_checks.h"
#include "family_checks.h"
#include "mathfn/arctan.h"

using familychecks::expectElementwise;

TEST(Arctan, ChecksPointersThenLength)
{
    using arithchecks::expectChecks;
    expectChecks(qspsArctan_32f);
    expectChecks(qspsArctan_32f_I);
    expectChecks(qspsArctan_64f);
    expectChecks(qspsArctan_64f_I);
}

TEST(Arctan, BothPrecisionsEqualTheirKernels)
{
    std::mt19937_64 rng(1001);
    const std::vector<float> f = familychecks::floatPool(3000, rng, -20.0f, 20.0f);
    const std::vector<double> d = familychecks::doublePool(3000, rng, -20.0, 20.0);
    expectElementwise(qspsArctan_32f, qspsArctan_32f_I, f, mathfn::qspsArctanOne_32f);
    expectElementwise(qspsArctan_64f, qspsArctan_64f_I, d, mathfn::qspsArctanOne);
}

TEST(Arctan, SpecialValues)
{
    const float in[] = {0.0f, -0.0f, INFINITY, -INFINITY, 1.0f, 0x1p-149f, 1e30f};
    const float want[] = {0.0f, -0.0f, 0x1.921fb6p+0f, -0x1.921fb6p+0f, 0x1.921fb6p-1f, 0x1p-149f, 0x1.921fb6p+0f};
    float out[7];
    ASSERT_EQ(qspsArctan_32f(in, out, 7), qspStsOk);
    for (int i = 0; i < 7; ++i) EXPECT_TRUE(familychecks::same(out[i], want[i])) << i;
    const double din[] = {0.0, -0.0, HUGE_VAL, -HUGE_VAL, 1.0};
    double dout[5];
    ASSERT_EQ(qspsArctan_64f(din, dout, 5), qspStsOk);
    EXPECT_TRUE(familychecks::same(dout[1], -0.0));
    EXPECT_EQ(dout[2], 0x1.921fb54442d18p+0);
    EXPECT_EQ(dout[4], 0x1.921fb54442d18p-1);
    const float nan = std::bit_cast<float>(0xFF800001u);
    ASSERT_EQ(qspsArctan_32f(&nan, out, 1), qspStsOk);
    EXPECT_EQ(std::bit_cast<Qsp32u>(out[0]), 0xFFC00001u);
}

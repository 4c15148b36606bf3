// SPDX-License-Identifier: BSD-3-Clause
// Every float through every correctly rounded single-precision function:
// the vector form and the one-element form must both return the correctly
// rounded result for all 2^32 arguments.
#include <cmath>

#include "mathfn/exp.h"
#include "qsp_test.h"
#include "single_exhaustive.h"

namespace {

void expectCorrectlyRounded(const exhaustive::SingleFunction& f)
{
    ASSERT_TRUE(mpfr_buildopt_tls_p()) << "MPFR's exponent range must be per thread";
    const exhaustive::Outcome out = exhaustive::checkAll(f);
    for (const std::string& line : out.examples) std::printf("%s\n", line.c_str());
    std::printf("%s: %llu arguments settled by MPFR, %llu mismatches\n", f.name,
                (unsigned long long)out.settledByMpfr, (unsigned long long)out.mismatches);
    EXPECT_EQ(out.mismatches, 0u);
}

void expVector(const float* x, float* y, int n) { mathfn::qspsExp_32f_A24(x, y, n); }
float expOne(float x) { return mathfn::qspsExpOne_32f(x); }
double expLibc(double x) { return std::exp(x); }

}  // namespace

TEST(SingleHeavy, ExpIsCorrectlyRoundedForEveryFloat)
{
    expectCorrectlyRounded({"exp", expVector, expOne, expLibc, mpfr_exp});
}

// SPDX-License-Identifier: BSD-3-Clause
// Every float through every correctly rounded single-precision function:
// the vector form and the one-element form must both return the correctly
// rounded result for all 2^32 arguments (tests labelled heavy), and for a
// random sample in the ordinary run.
#include <cmath>

#include "mathfn/arctan.h"
#include "mathfn/cbrt.h"
#include "mathfn/exp.h"
#include "mathfn/ln.h"
#include "qsp_test.h"
#include "single_exhaustive.h"

namespace {

void report(const exhaustive::Outcome& out)
{
    for (const std::string& line : out.examples) std::printf("%s\n", line.c_str());
    EXPECT_EQ(out.mismatches, 0u);
}

void expectCorrectlyRoundedOnSample(const exhaustive::SingleFunction& f) { report(exhaustive::checkSample(f, 100000, 17)); }

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

void lnVector(const float* x, float* y, int n) { mathfn::qspsLn_32f_A24(x, y, n); }
float lnOne(float x) { return mathfn::qspsLnOne_32f(x); }
double lnLibc(double x) { return std::log(x); }

void atanVector(const float* x, float* y, int n) { mathfn::qspsArctan_32f_A24(x, y, n); }
float atanOne(float x) { return mathfn::qspsArctanOne_32f(x); }
double atanLibc(double x) { return std::atan(x); }

void cbrtVector(const float* x, float* y, int n) { mathfn::qspsCbrt_32f_A24(x, y, n); }
float cbrtOne(float x) { return mathfn::qspsCbrtOne_32f(x); }
double cbrtLibc(double x) { return std::cbrt(x); }

}  // namespace

TEST(Single, CorrectlyRoundedOnSamples)
{
    expectCorrectlyRoundedOnSample({"exp", expVector, expOne, expLibc, mpfr_exp});
    expectCorrectlyRoundedOnSample({"ln", lnVector, lnOne, lnLibc, mpfr_log});
    expectCorrectlyRoundedOnSample({"atan", atanVector, atanOne, atanLibc, mpfr_atan});
    expectCorrectlyRoundedOnSample({"cbrt", cbrtVector, cbrtOne, cbrtLibc, mpfr_cbrt});
}

TEST(SingleHeavy, ArctanIsCorrectlyRoundedForEveryFloat)
{
    expectCorrectlyRounded({"atan", atanVector, atanOne, atanLibc, mpfr_atan});
}

TEST(SingleHeavy, CbrtIsCorrectlyRoundedForEveryFloat)
{
    expectCorrectlyRounded({"cbrt", cbrtVector, cbrtOne, cbrtLibc, mpfr_cbrt});
}

TEST(SingleHeavy, LnIsCorrectlyRoundedForEveryFloat)
{
    expectCorrectlyRounded({"ln", lnVector, lnOne, lnLibc, mpfr_log});
}

TEST(SingleHeavy, ExpIsCorrectlyRoundedForEveryFloat)
{
    expectCorrectlyRounded({"exp", expVector, expOne, expLibc, mpfr_exp});
}

// SPDX-License-Identifier: BSD-3-Clause
// SubCRev: every element subtracted from a constant, in every form: floating (correctly
// rounded), scaled integer (the exact rule at every scale factor from -40 to
// 40), complex part-wise, and the 64-bit length forms.
#include "arith_const_family.h"

using namespace arithfam;

namespace {
const constfamily::Rows rows = QSP_CONST_ROWS(SubCRev);
auto exact = [](auto x, auto c) { return i128(c) - i128(x); };
auto real = [](auto x, auto c) { return LD(c) - LD(x); };
}  // namespace

TEST(SubCRev, ArgumentChecks) { constfamily::argumentChecks(rows); }
TEST(SubCRev, ScaledIntegersAreExactAtEveryScaleFactor) { constfamily::scaledIntegers(rows, exact); }
TEST(SubCRev, FloatingResultsAndLongLengthForms) { constfamily::floatingAndLongForms(rows, real); }

TEST(SubCRev, OperandOrder)
{
    const Qsp32f a[] = {1.0f};
    Qsp32f d[1];
    ASSERT_EQ(qspsSubCRev_32f(a, 10.0f, d, 1), qspStsOk);
    EXPECT_EQ(d[0], 9.0f);
    const Qsp16s b[] = {-32768};
    Qsp16s e[1];
    ASSERT_EQ(qspsSubCRev_16s_Sfs(b, 0, e, 1, 0), qspStsOk);
    EXPECT_EQ(e[0], 32767);
}

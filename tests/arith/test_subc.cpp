// SPDX-License-Identifier: BSD-3-Clause
// SubC: a constant subtracted from every element, in every form: floating (correctly
// rounded), scaled integer (the exact rule at every scale factor from -40 to
// 40), complex part-wise, and the 64-bit length forms.
#include "arith_const_family.h"

using namespace arithfam;

namespace {
const constfamily::Rows rows = QSP_CONST_ROWS(SubC);
auto exact = [](auto x, auto c) { return i128(x) - i128(c); };
auto real = [](auto x, auto c) { return LD(x) - LD(c); };
}  // namespace

TEST(SubC, ArgumentChecks) { constfamily::argumentChecks(rows); }
TEST(SubC, ScaledIntegersAreExactAtEveryScaleFactor) { constfamily::scaledIntegers(rows, exact); }
TEST(SubC, FloatingResultsAndLongLengthForms) { constfamily::floatingAndLongForms(rows, real); }

TEST(SubC, OperandOrder)
{
    const Qsp32f a[] = {10.0f};
    Qsp32f d[1];
    ASSERT_EQ(qspsSubC_32f(a, 1.0f, d, 1), qspStsOk);
    EXPECT_EQ(d[0], 9.0f);
    const Qsp8u b[] = {1};
    Qsp8u e[1];
    ASSERT_EQ(qspsSubC_8u_Sfs(b, 2, e, 1, 0), qspStsOk);
    EXPECT_EQ(e[0], 0);
}

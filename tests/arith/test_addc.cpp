// SPDX-License-Identifier: BSD-3-Clause
// AddC: a constant added to every element, in every form: floating (correctly
// rounded), scaled integer (the exact rule at every scale factor from -40 to
// 40), complex part-wise, and the 64-bit length forms.
#include "arith_const_family.h"

using namespace arithfam;

namespace {
const constfamily::Rows rows = QSP_CONST_ROWS(AddC);
auto exact = [](auto x, auto c) { return i128(x) + i128(c); };
auto real = [](auto x, auto c) { return LD(x) + LD(c); };
}  // namespace

TEST(AddC, ArgumentChecks) { constfamily::argumentChecks(rows); }
TEST(AddC, ScaledIntegersAreExactAtEveryScaleFactor) { constfamily::scaledIntegers(rows, exact); }
TEST(AddC, FloatingResultsAndLongLengthForms) { constfamily::floatingAndLongForms(rows, real); }

TEST(AddC, Examples)
{
    const Qsp16s a[] = {32767, -32768, 1, 3};
    Qsp16s d[4];
    ASSERT_EQ(qspsAddC_16s_Sfs(a, 1, d, 4, 0), qspStsOk);
    EXPECT_EQ(d[0], 32767);
    EXPECT_EQ(d[1], -32767);
    ASSERT_EQ(qspsAddC_16s_Sfs(a, 0, d, 4, 1), qspStsOk);
    EXPECT_EQ(d[2], 0);  // 0.5 to even
    EXPECT_EQ(d[3], 2);  // 1.5 to even
    const Qsp16sc c[] = {{1, 2}, {3, 4}, {5, 6}};
    Qsp16sc e[3];
    ASSERT_EQ(qspsAddC_16sc_Sfs(c, Qsp16sc{10, 20}, e, 3, 0), qspStsOk);
    EXPECT_EQ(e[2].re, 15);
    EXPECT_EQ(e[2].im, 26);
}

// AddC: a constant added to every element, in every form: floating (correctly rounded), scaled
// integer (the exact rule at every scale factor from -40 to 40), complex
// part-wise, and the 64-bit length forms.
#include "arith_families.h"

using namespace arithfam;
using arithchecks::expectChecks;

namespace {
// The exact result of the operation on one part.
auto exact = [](auto x, auto c) { return i128(x) + i128(c); };
auto real = [](auto x, auto c) { return LD(x) + LD(c); };
auto cplx = [](auto x, auto c) { return LDC(real(x.re, c.re), real(x.im, c.im)); };

template <class S>
auto scaledPart(S x, S c, int sf)
{
    return arithref::scaled<S>(exact(x, c), sf);
}
auto scaled16sc = [](Qsp16sc x, Qsp16sc c, int sf) {
    return Qsp16sc{scaledPart<Qsp16s>(x.re, c.re, sf), scaledPart<Qsp16s>(x.im, c.im, sf)};
};
auto scaled32sc = [](Qsp32sc x, Qsp32sc c, int sf) {
    return Qsp32sc{scaledPart<Qsp32s>(x.re, c.re, sf), scaledPart<Qsp32s>(x.im, c.im, sf)};
};
}  // namespace

TEST(AddC, ArgumentChecks)
{
    expectChecks(qspsAddC_32f, 1.0f);
    expectChecks(qspsAddC_32f_I, 1.0f);
    expectChecks(qspsAddC_64f, 1.0);
    expectChecks(qspsAddC_64f_I, 1.0);
    expectChecks(qspsAddC_32fc, Qsp32fc{1, 2});
    expectChecks(qspsAddC_32fc_I, Qsp32fc{1, 2});
    expectChecks(qspsAddC_64fc, Qsp64fc{1, 2});
    expectChecks(qspsAddC_64fc_I, Qsp64fc{1, 2});
    for (int sf : {0, 1, 5, 40, -5, -40}) {
        expectChecks(qspsAddC_8u_Sfs, Qsp8u(3), sf);
        expectChecks(qspsAddC_8u_ISfs, Qsp8u(3), sf);
        expectChecks(qspsAddC_16s_Sfs, Qsp16s(3), sf);
        expectChecks(qspsAddC_16s_ISfs, Qsp16s(3), sf);
        expectChecks(qspsAddC_16u_Sfs, Qsp16u(3), sf);
        expectChecks(qspsAddC_16u_ISfs, Qsp16u(3), sf);
        expectChecks(qspsAddC_32s_Sfs, 3, sf);
        expectChecks(qspsAddC_32s_ISfs, 3, sf);
        expectChecks(qspsAddC_16sc_Sfs, Qsp16sc{3, 4}, sf);
        expectChecks(qspsAddC_16sc_ISfs, Qsp16sc{3, 4}, sf);
        expectChecks(qspsAddC_32sc_Sfs, Qsp32sc{3, 4}, sf);
        expectChecks(qspsAddC_32sc_ISfs, Qsp32sc{3, 4}, sf);
    }
    expectChecks(qspsAddC_32f_L, 1.0f);
    expectChecks(qspsAddC_32f_I_L, 1.0f);
    expectChecks(qspsAddC_64f_L, 1.0);
    expectChecks(qspsAddC_64f_I_L, 1.0);
    expectChecks(qspsAddC_32fc_L, Qsp32fc{1, 2});
    expectChecks(qspsAddC_32fc_I_L, Qsp32fc{1, 2});
    expectChecks(qspsAddC_64fc_L, Qsp64fc{1, 2});
    expectChecks(qspsAddC_64fc_I_L, Qsp64fc{1, 2});
}

TEST(AddC, ScaledIntegersAreExactAtEveryScaleFactor)
{
    sfsC(qspsAddC_8u_Sfs, scaledPart<Qsp8u>, qspsAddC_8u_ISfs);
    sfsC(qspsAddC_16s_Sfs, scaledPart<Qsp16s>, qspsAddC_16s_ISfs);
    sfsC(qspsAddC_16u_Sfs, scaledPart<Qsp16u>, qspsAddC_16u_ISfs);
    sfsC(qspsAddC_32s_Sfs, scaledPart<Qsp32s>, qspsAddC_32s_ISfs);
    sfsC(qspsAddC_16sc_Sfs, scaled16sc, qspsAddC_16sc_ISfs);
    sfsC(qspsAddC_32sc_Sfs, scaled32sc, qspsAddC_32sc_ISfs);
}

TEST(AddC, FloatingResultsAreCorrectlyRounded)
{
    floatC<Qsp32f>(qspsAddC_32f, real, 0.5, qspsAddC_32f_I);
    floatC<Qsp64f>(qspsAddC_64f, real, kHalfUlp, qspsAddC_64f_I);
    floatC<Qsp32fc>(qspsAddC_32fc, cplx, 0.5, qspsAddC_32fc_I);
    floatC<Qsp64fc>(qspsAddC_64fc, cplx, kHalfUlp, qspsAddC_64fc_I);
}

TEST(AddC, LongLengthFormsEqualTheOrdinaryOnes)
{
    floatC<Qsp32f>(viaL(qspsAddC_32f_L), real, 0.5, viaL(qspsAddC_32f_I_L));
    floatC<Qsp64f>(viaL(qspsAddC_64f_L), real, kHalfUlp, viaL(qspsAddC_64f_I_L));
    floatC<Qsp32fc>(viaL(qspsAddC_32fc_L), cplx, 0.5, viaL(qspsAddC_32fc_I_L));
    floatC<Qsp64fc>(viaL(qspsAddC_64fc_L), cplx, kHalfUlp, viaL(qspsAddC_64fc_I_L));
}

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

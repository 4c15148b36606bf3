// SubC: a constant subtracted from every element, in every form: floating (correctly rounded), scaled
// integer (the exact rule at every scale factor from -40 to 40), complex
// part-wise, and the 64-bit length forms.
#include "arith_families.h"

using namespace arithfam;
using arithchecks::expectChecks;

namespace {
// The exact result of the operation on one part.
auto exact = [](auto x, auto c) { return i128(x) - i128(c); };
auto real = [](auto x, auto c) { return LD(x) - LD(c); };
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

TEST(SubC, ArgumentChecks)
{
    expectChecks(qspsSubC_32f, 1.0f);
    expectChecks(qspsSubC_32f_I, 1.0f);
    expectChecks(qspsSubC_64f, 1.0);
    expectChecks(qspsSubC_64f_I, 1.0);
    expectChecks(qspsSubC_32fc, Qsp32fc{1, 2});
    expectChecks(qspsSubC_32fc_I, Qsp32fc{1, 2});
    expectChecks(qspsSubC_64fc, Qsp64fc{1, 2});
    expectChecks(qspsSubC_64fc_I, Qsp64fc{1, 2});
    for (int sf : {0, 1, 5, 40, -5, -40}) {
        expectChecks(qspsSubC_8u_Sfs, Qsp8u(3), sf);
        expectChecks(qspsSubC_8u_ISfs, Qsp8u(3), sf);
        expectChecks(qspsSubC_16s_Sfs, Qsp16s(3), sf);
        expectChecks(qspsSubC_16s_ISfs, Qsp16s(3), sf);
        expectChecks(qspsSubC_16u_Sfs, Qsp16u(3), sf);
        expectChecks(qspsSubC_16u_ISfs, Qsp16u(3), sf);
        expectChecks(qspsSubC_32s_Sfs, 3, sf);
        expectChecks(qspsSubC_32s_ISfs, 3, sf);
        expectChecks(qspsSubC_16sc_Sfs, Qsp16sc{3, 4}, sf);
        expectChecks(qspsSubC_16sc_ISfs, Qsp16sc{3, 4}, sf);
        expectChecks(qspsSubC_32sc_Sfs, Qsp32sc{3, 4}, sf);
        expectChecks(qspsSubC_32sc_ISfs, Qsp32sc{3, 4}, sf);
    }
    expectChecks(qspsSubC_32f_L, 1.0f);
    expectChecks(qspsSubC_32f_I_L, 1.0f);
    expectChecks(qspsSubC_64f_L, 1.0);
    expectChecks(qspsSubC_64f_I_L, 1.0);
    expectChecks(qspsSubC_32fc_L, Qsp32fc{1, 2});
    expectChecks(qspsSubC_32fc_I_L, Qsp32fc{1, 2});
    expectChecks(qspsSubC_64fc_L, Qsp64fc{1, 2});
    expectChecks(qspsSubC_64fc_I_L, Qsp64fc{1, 2});
}

TEST(SubC, ScaledIntegersAreExactAtEveryScaleFactor)
{
    sfsC(qspsSubC_8u_Sfs, scaledPart<Qsp8u>, qspsSubC_8u_ISfs);
    sfsC(qspsSubC_16s_Sfs, scaledPart<Qsp16s>, qspsSubC_16s_ISfs);
    sfsC(qspsSubC_16u_Sfs, scaledPart<Qsp16u>, qspsSubC_16u_ISfs);
    sfsC(qspsSubC_32s_Sfs, scaledPart<Qsp32s>, qspsSubC_32s_ISfs);
    sfsC(qspsSubC_16sc_Sfs, scaled16sc, qspsSubC_16sc_ISfs);
    sfsC(qspsSubC_32sc_Sfs, scaled32sc, qspsSubC_32sc_ISfs);
}

TEST(SubC, FloatingResultsAreCorrectlyRounded)
{
    floatC<Qsp32f>(qspsSubC_32f, real, 0.5, qspsSubC_32f_I);
    floatC<Qsp64f>(qspsSubC_64f, real, kHalfUlp, qspsSubC_64f_I);
    floatC<Qsp32fc>(qspsSubC_32fc, cplx, 0.5, qspsSubC_32fc_I);
    floatC<Qsp64fc>(qspsSubC_64fc, cplx, kHalfUlp, qspsSubC_64fc_I);
}

TEST(SubC, LongLengthFormsEqualTheOrdinaryOnes)
{
    floatC<Qsp32f>(viaL(qspsSubC_32f_L), real, 0.5, viaL(qspsSubC_32f_I_L));
    floatC<Qsp64f>(viaL(qspsSubC_64f_L), real, kHalfUlp, viaL(qspsSubC_64f_I_L));
    floatC<Qsp32fc>(viaL(qspsSubC_32fc_L), cplx, 0.5, viaL(qspsSubC_32fc_I_L));
    floatC<Qsp64fc>(viaL(qspsSubC_64fc_L), cplx, kHalfUlp, viaL(qspsSubC_64fc_I_L));
}

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

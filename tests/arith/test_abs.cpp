// SPDX-License-Identifier: BSD-3-Clause
// Abs and Conj: magnitudes of real elements and complex conjugates.
#include "arith_families.h"

using namespace arithfam;
using arithchecks::expectChecks;

TEST(Abs, ArgumentChecks)
{
    expectChecks(qspsAbs_16s);
    expectChecks(qspsAbs_16s_I);
    expectChecks(qspsAbs_32s);
    expectChecks(qspsAbs_32s_I);
    expectChecks(qspsAbs_32f);
    expectChecks(qspsAbs_32f_I);
    expectChecks(qspsAbs_64f);
    expectChecks(qspsAbs_64f_I);
    expectChecks(qspsAbs_32f_L);
    expectChecks(qspsAbs_32f_I_L);
    expectChecks(qspsAbs_64f_L);
    expectChecks(qspsAbs_64f_I_L);
}

TEST(Abs, IntegersSaturate)
{
    arithsweep::unary<Qsp16s, Qsp16s>(
        qspsAbs_16s, [](Qsp16s a, Qsp16s got) { return equals(got, arithref::scaled<Qsp16s>(a < 0 ? -i128(a) : i128(a), 0)); },
        qspsAbs_16s_I);
    arithsweep::unary<Qsp32s, Qsp32s>(
        qspsAbs_32s, [](Qsp32s a, Qsp32s got) { return equals(got, arithref::scaled<Qsp32s>(a < 0 ? -i128(a) : i128(a), 0)); },
        qspsAbs_32s_I);
    const Qsp16s a[] = {-32768, -32767, 0, 32767};
    Qsp16s d[4];
    ASSERT_EQ(qspsAbs_16s(a, d, 4), qspStsOk);
    EXPECT_EQ(d[0], 32767);
    EXPECT_EQ(d[1], 32767);
    EXPECT_EQ(d[2], 0);
}

TEST(Abs, FloatingValuesLoseTheirSignBit)
{
    auto bitsAbs = [](auto a, auto got) {
        using T = decltype(a);
        using U = std::conditional_t<sizeof(T) == 4, uint32_t, uint64_t>;
        U bits;
        std::memcpy(&bits, &a, sizeof bits);
        bits &= ~(U(1) << (8 * sizeof(T) - 1));
        T expected;
        std::memcpy(&expected, &bits, sizeof bits);
        return qsptest::sameBits(got, expected) ? testing::AssertionSuccess() : testing::AssertionFailure();
    };
    // Every bit pattern, NaNs and infinities included.
    auto bits32 = [](size_t n) { return qsptest::randomBits<Qsp32f>(n); };
    auto bits64 = [](size_t n) { return qsptest::randomBits<Qsp64f>(n); };
    arithsweep::unary<Qsp32f, Qsp32f>(qspsAbs_32f, bitsAbs, qspsAbs_32f_I, qspStsOk, arithref::sweepLengths(), +bits32);
    arithsweep::unary<Qsp64f, Qsp64f>(qspsAbs_64f, bitsAbs, qspsAbs_64f_I, qspStsOk, arithref::sweepLengths(), +bits64);
    arithsweep::unary<Qsp32f, Qsp32f>(viaL(qspsAbs_32f_L), bitsAbs, viaL(qspsAbs_32f_I_L), qspStsOk,
                                      arithref::sweepLengths(), +bits32);
    arithsweep::unary<Qsp64f, Qsp64f>(viaL(qspsAbs_64f_L), bitsAbs, viaL(qspsAbs_64f_I_L), qspStsOk,
                                      arithref::sweepLengths(), +bits64);
}

TEST(Conj, ArgumentChecks)
{
    expectChecks(qspsConj_16sc);
    expectChecks(qspsConj_16sc_I);
    expectChecks(qspsConj_32fc);
    expectChecks(qspsConj_32fc_I);
    expectChecks(qspsConj_64fc);
    expectChecks(qspsConj_64fc_I);
    expectChecks(qspsConj_32fc_L);
    expectChecks(qspsConj_32fc_I_L);
    expectChecks(qspsConj_64fc_L);
    expectChecks(qspsConj_64fc_I_L);
}

TEST(Conj, ImaginaryPartsNegated)
{
    arithsweep::unary<Qsp16sc, Qsp16sc>(
        qspsConj_16sc,
        [](Qsp16sc a, Qsp16sc got) { return equals(got, Qsp16sc{a.re, arithref::scaled<Qsp16s>(-i128(a.im), 0)}); },
        qspsConj_16sc_I);
    auto flip = [](auto a, auto got) {
        auto expected = a;
        expected.im = -a.im;
        return qsptest::sameBits(got, expected) ? testing::AssertionSuccess() : testing::AssertionFailure();
    };
    auto bits32 = [](size_t n) { return qsptest::randomBits<Qsp32fc>(n); };
    auto bits64 = [](size_t n) { return qsptest::randomBits<Qsp64fc>(n); };
    arithsweep::unary<Qsp32fc, Qsp32fc>(qspsConj_32fc, flip, qspsConj_32fc_I, qspStsOk, arithref::sweepLengths(), +bits32);
    arithsweep::unary<Qsp64fc, Qsp64fc>(qspsConj_64fc, flip, qspsConj_64fc_I, qspStsOk, arithref::sweepLengths(), +bits64);
    arithsweep::unary<Qsp32fc, Qsp32fc>(viaL(qspsConj_32fc_L), flip, viaL(qspsConj_32fc_I_L), qspStsOk,
                                        arithref::sweepLengths(), +bits32);
    arithsweep::unary<Qsp64fc, Qsp64fc>(viaL(qspsConj_64fc_L), flip, viaL(qspsConj_64fc_I_L), qspStsOk,
                                        arithref::sweepLengths(), +bits64);
    const Qsp16sc a[] = {{-32768, -32768}};
    Qsp16sc d[1];
    ASSERT_EQ(qspsConj_16sc(a, d, 1), qspStsOk);
    EXPECT_EQ(d[0].re, -32768);
    EXPECT_EQ(d[0].im, 32767);
}

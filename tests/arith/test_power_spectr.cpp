// SPDX-License-Identifier: BSD-3-Clause
// PowerSpectr: re^2 + im^2 of complex elements in every form.
#include "arith_families.h"

using namespace arithfam;
using arithchecks::expectChecks;

TEST(PowerSpectr, ArgumentChecks)
{
    expectChecks(qspsPowerSpectr_32fc);
    expectChecks(qspsPowerSpectr_64fc);
    expectChecks(qspsPowerSpectr_32f);
    expectChecks(qspsPowerSpectr_64f);
    expectChecks(qspsPowerSpectr_16sc_Sfs, 0);
    expectChecks(qspsPowerSpectr_32fc_L);
    expectChecks(qspsPowerSpectr_64fc_L);
}

TEST(PowerSpectr, FloatingPowersWithinOneAndAHalfUlp)
{
    // Two rounded squares (each within half an ULP of the sum) and a rounded
    // sum of non-negative terms: within 1.5 ULP of the exact sum.
    auto p = [](LD r, LD i) { return r * r + i * i; };
    auto c32 = [&](Qsp32fc a, Qsp32f got) { return arithsweep::withinUlps(got, p(a.re, a.im), 1.5); };
    auto c64 = [&](Qsp64fc a, Qsp64f got) { return arithsweep::withinUlps(got, p(a.re, a.im), 1.5); };
    arithsweep::unary<Qsp32fc, Qsp32f>(qspsPowerSpectr_32fc, c32);
    arithsweep::unary<Qsp64fc, Qsp64f>(qspsPowerSpectr_64fc, c64);
    arithsweep::unary<Qsp32fc, Qsp32f>(viaL(qspsPowerSpectr_32fc_L), c32);
    arithsweep::unary<Qsp64fc, Qsp64f>(viaL(qspsPowerSpectr_64fc_L), c64);
    arithsweep::binary<Qsp32f, Qsp32f, Qsp32f>(
        qspsPowerSpectr_32f, [&](Qsp32f r, Qsp32f i, Qsp32f got) { return arithsweep::withinUlps(got, p(r, i), 1.5); });
    arithsweep::binary<Qsp64f, Qsp64f, Qsp64f>(
        qspsPowerSpectr_64f, [&](Qsp64f r, Qsp64f i, Qsp64f got) { return arithsweep::withinUlps(got, p(r, i), 1.5); });
}

TEST(PowerSpectr, Scaled16scIsExactAtEveryScaleFactor)
{
    for (int sf = -40; sf <= 40; ++sf) {
        arithsweep::unary<Qsp16sc, Qsp16s>(
            [&](auto a, auto d, int len) { return qspsPowerSpectr_16sc_Sfs(a, d, len, sf); },
            [&](Qsp16sc a, Qsp16s got) {
                return equals(got, arithref::scaled<Qsp16s>(i128(a.re) * a.re + i128(a.im) * a.im, sf));
            },
            nullptr, qspStsOk, sf == 1 ? arithref::sweepLengths() : arithsweep::shortLengths());
        if (HasFatalFailure()) {
            ADD_FAILURE() << "scale factor " << sf;
            return;
        }
    }
    const Qsp16sc a[] = {{-32768, -32768}};
    Qsp16s d[1];
    ASSERT_EQ(qspsPowerSpectr_16sc_Sfs(a, d, 1, 31), qspStsOk);
    EXPECT_EQ(d[0], 1);
    ASSERT_EQ(qspsPowerSpectr_16sc_Sfs(a, d, 1, 32), qspStsOk);
    EXPECT_EQ(d[0], 0);
}

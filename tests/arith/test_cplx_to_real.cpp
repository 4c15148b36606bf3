// SPDX-License-Identifier: BSD-3-Clause
// CplxToReal and RealToCplx: splitting complex vectors into parts and
// joining parts (either part may be absent) into complex vectors.
#include "arith_families.h"

using namespace arithfam;
using arithchecks::expectChecks;

TEST(CplxToReal, ArgumentChecks)
{
    expectChecks(qspsCplxToReal_16sc);
    expectChecks(qspsCplxToReal_32fc);
    expectChecks(qspsCplxToReal_64fc);
    expectChecks(qspsCplxToReal_32fc_L);
    expectChecks(qspsCplxToReal_64fc_L);
}

namespace {
template <class C, class P, class Fn>
void split(Fn fn)
{
    for (int len : arithref::sweepLengths()) {
        const std::vector<C> a = qsptest::randomBits<C>(len);
        for (int off = 0; off < arithref::alignments<P>; ++off) {
            arithref::At<C> pa(len, off % arithref::alignments<C>);
            arithref::At<P> re(len + 1, off), im(len + 1, (off + 1) % arithref::alignments<P>);
            for (int i = 0; i < len; ++i) pa.p[i] = a[i];
            re.p[len] = im.p[len] = P(7);
            ASSERT_EQ(fn(pa.p, re.p, im.p, len), qspStsOk);
            for (int i = 0; i < len; ++i) {
                ASSERT_TRUE(qsptest::sameBits(re.p[i], a[i].re)) << len << " " << i;
                ASSERT_TRUE(qsptest::sameBits(im.p[i], a[i].im)) << len << " " << i;
            }
            ASSERT_EQ(re.p[len], P(7));
            ASSERT_EQ(im.p[len], P(7));
        }
    }
}

template <class P, class C, class Fn>
void join(Fn fn)
{
    for (int len : arithref::sweepLengths()) {
        const std::vector<P> re = qsptest::randomBits<P>(len), im = qsptest::randomBits<P>(len);
        for (int mask = 0; mask < 4; ++mask) {
            const int off = (len + mask) % arithref::alignments<C>;
            arithref::At<P> pr(len, (off + 1) % arithref::alignments<P>), pi(len, off % arithref::alignments<P>);
            arithref::At<C> d(len + 1, off);
            for (int i = 0; i < len; ++i) pr.p[i] = re[i], pi.p[i] = im[i];
            d.p[len] = C{P(7), P(7)};
            ASSERT_EQ(fn(mask & 1 ? pr.p : nullptr, mask & 2 ? pi.p : nullptr, d.p, len), qspStsOk);
            for (int i = 0; i < len; ++i) {
                ASSERT_TRUE(qsptest::sameBits(d.p[i].re, mask & 1 ? re[i] : P(0))) << len << " " << i;
                ASSERT_TRUE(qsptest::sameBits(d.p[i].im, mask & 2 ? im[i] : P(0))) << len << " " << i;
            }
            ASSERT_EQ(d.p[len].re, P(7));
        }
    }
}
}  // namespace

TEST(CplxToReal, PartsAreCopiedBitForBit)
{
    split<Qsp16sc, Qsp16s>(qspsCplxToReal_16sc);
    split<Qsp32fc, Qsp32f>(qspsCplxToReal_32fc);
    split<Qsp64fc, Qsp64f>(qspsCplxToReal_64fc);
    split<Qsp32fc, Qsp32f>(viaL(qspsCplxToReal_32fc_L));
    split<Qsp64fc, Qsp64f>(viaL(qspsCplxToReal_64fc_L));
}

TEST(RealToCplx, ChecksAllowAbsentSources)
{
    qsptest::Guarded<Qsp32f> re(8), im(8);
    qsptest::Guarded<Qsp32fc> d(8);
    EXPECT_EQ(qspsRealToCplx_32f(re.data(), im.data(), nullptr, 8), qspStsNullPtr);
    EXPECT_EQ(qspsRealToCplx_32f(nullptr, nullptr, nullptr, 0), qspStsNullPtr);
    EXPECT_EQ(qspsRealToCplx_32f(re.data(), im.data(), d.data(), 0), qspStsBadSize);
    EXPECT_EQ(qspsRealToCplx_32f(re.data(), im.data(), d.data(), -1), qspStsBadSize);
    EXPECT_EQ(qspsRealToCplx_32f_L(re.data(), im.data(), nullptr, 0), qspStsBadSize);
    EXPECT_EQ(qspsRealToCplx_32f_L(re.data(), im.data(), nullptr, 8), qspStsNullPtr);
    EXPECT_TRUE(d.untouched());
    qsptest::Guarded<Qsp16sc> e(8);
    qsptest::Guarded<Qsp64fc> f(8);
    EXPECT_EQ(qspsRealToCplx_16s(nullptr, nullptr, nullptr, 8), qspStsNullPtr);
    EXPECT_EQ(qspsRealToCplx_16s(nullptr, nullptr, e.data(), 0), qspStsBadSize);
    EXPECT_EQ(qspsRealToCplx_64f(nullptr, nullptr, nullptr, 8), qspStsNullPtr);
    EXPECT_EQ(qspsRealToCplx_64f(nullptr, nullptr, f.data(), -5), qspStsBadSize);
    EXPECT_EQ(qspsRealToCplx_64f_L(nullptr, nullptr, f.data(), 0), qspStsBadSize);
    EXPECT_TRUE(e.untouched());
    EXPECT_TRUE(f.untouched());
}

TEST(RealToCplx, PartsAreJoinedAndAbsentOnesAreZero)
{
    join<Qsp16s, Qsp16sc>(qspsRealToCplx_16s);
    join<Qsp32f, Qsp32fc>(qspsRealToCplx_32f);
    join<Qsp64f, Qsp64fc>(qspsRealToCplx_64f);
    join<Qsp32f, Qsp32fc>(viaL(qspsRealToCplx_32f_L));
    join<Qsp64f, Qsp64fc>(viaL(qspsRealToCplx_64f_L));
}

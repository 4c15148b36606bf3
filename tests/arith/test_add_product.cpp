// SPDX-License-Identifier: BSD-3-Clause
// AddProduct: pSrcDst += pSrc1 * pSrc2 in every form.
#include "arith_families.h"

using namespace arithfam;
using arithchecks::expectChecks;

TEST(AddProduct, ArgumentChecks)
{
    expectChecks(qspsAddProduct_32f);
    expectChecks(qspsAddProduct_64f);
    expectChecks(qspsAddProduct_32fc);
    expectChecks(qspsAddProduct_64fc);
    for (int sf : {0, 1, 40, -40}) {
        expectChecks(qspsAddProduct_16s_Sfs, sf);
        expectChecks(qspsAddProduct_32s_Sfs, sf);
        expectChecks(qspsAddProduct_16s32s_Sfs, sf);
    }
}

namespace {
// fn(a, b, sd, len) run on a copy of d, compared element by element.
template <class S, class D, class Fn, class Check>
void sweep3(Fn fn, Check check)
{
    for (int len : arithref::sweepLengths()) {
        const std::vector<S> a = arithsweep::gen<S>(len), b = arithsweep::gen<S>(len);
        const std::vector<D> d = arithsweep::gen<D>(len);
        for (int off : arithsweep::offsetsFor<D>(len)) {
            arithref::At<S> pa(len, off % arithref::alignments<S>), pb(len, (off + 1) % arithref::alignments<S>);
            arithref::At<D> pd(len + 1, off);
            for (int i = 0; i < len; ++i) pa.p[i] = a[i], pb.p[i] = b[i], pd.p[i] = d[i];
            pd.p[len] = D{};
            ASSERT_EQ(fn(pa.p, pb.p, pd.p, len), qspStsOk);
            for (int i = 0; i < len; ++i) {
                const testing::AssertionResult r = check(a[i], b[i], d[i], pd.p[i]);
                ASSERT_TRUE(r) << "len " << len << " i " << i;
            }
            ASSERT_TRUE(arithsweep::same(pd.p[len], D{}));
        }
    }
}
}  // namespace

TEST(AddProduct, FloatingResults)
{
    // The product rounded, then the sum: within 2^(1-digits) of
    // |a b| + |d + a b| (exactly representable in long double for 32f).
    auto real = [](auto a, auto b, auto d, auto got) {
        using F = decltype(a);
        const LD u = std::ldexp(1.0L, -std::numeric_limits<F>::digits);
        const LD exact = LD(d) + LD(a) * b;
        const LD bound = u * (std::fabs(LD(a) * b) + std::fabs(exact)) * (1 + 4 * u) + LD(std::numeric_limits<F>::denorm_min());
        if (std::fabs(got - exact) <= bound) return testing::AssertionSuccess();
        return testing::AssertionFailure() << "exact " << double(exact);
    };
    sweep3<Qsp32f, Qsp32f>(qspsAddProduct_32f, real);
    sweep3<Qsp64f, Qsp64f>(qspsAddProduct_64f, real);
    auto cplx = [](auto a, auto b, auto d, auto got) {
        using F = decltype(a.re);
        const LD u = std::ldexp(1.0L, 1 - std::numeric_limits<F>::digits);
        const LD pr = LD(a.re) * b.re - LD(a.im) * b.im, pi = LD(a.im) * b.re + LD(a.re) * b.im;
        const LD er = LD(d.re) + pr, ei = LD(d.im) + pi;
        const LD mag = std::fabs(LD(a.re) * b.re) + std::fabs(LD(a.im) * b.im) + std::fabs(LD(a.im) * b.re) +
                       std::fabs(LD(a.re) * b.im) + std::fabs(LD(d.re)) + std::fabs(LD(d.im));
        const LD bound = 2 * u * mag + LD(std::numeric_limits<F>::denorm_min());
        if (std::fabs(got.re - er) <= bound && std::fabs(got.im - ei) <= bound) return testing::AssertionSuccess();
        return testing::AssertionFailure() << "exact (" << double(er) << ", " << double(ei) << ")";
    };
    sweep3<Qsp32fc, Qsp32fc>(qspsAddProduct_32fc, cplx);
    sweep3<Qsp64fc, Qsp64fc>(qspsAddProduct_64fc, cplx);
}

TEST(AddProduct, ScaledIntegersAreExactAtEveryScaleFactor)
{
    for (int sf = -40; sf <= 40; ++sf) {
        auto run = [&](auto fn, auto s, auto dz) {
            using S = decltype(s);
            using D = decltype(dz);
            sweep3<S, D>([&](auto a, auto b, auto d, int len) { return fn(a, b, d, len, sf); },
                         [&](S a, S b, D d, D got) {
                             return equals(got, arithref::scaled<D>(i128(d) + i128(a) * b, sf));
                         });
        };
        run(qspsAddProduct_16s_Sfs, Qsp16s{}, Qsp16s{});
        run(qspsAddProduct_32s_Sfs, Qsp32s{}, Qsp32s{});
        run(qspsAddProduct_16s32s_Sfs, Qsp16s{}, Qsp32s{});
        if (HasFatalFailure()) {
            ADD_FAILURE() << "scale factor " << sf;
            return;
        }
    }
}

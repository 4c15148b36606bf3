// SPDX-License-Identifier: BSD-3-Clause
// AutoCorrNorm: the correlation of a vector with itself from lag 0, every
// normalisation and method, against the sums in long double (16-bit forms
// exactly).
#include "corr_checks.h"

namespace {

using namespace convtest;

template <class A>
class AutoCorrTyped : public ::testing::Test {};
using FloatTypes = ::testing::Types<C32f, C64f, C32fc, C64fc>;
TYPED_TEST_SUITE(AutoCorrTyped, FloatTypes);

TYPED_TEST(AutoCorrTyped, AutocorrelationIsTheCorrelationWithItself)
{
    using A = TypeParam;
    using D = typename A::D;
    for (int n : {1, 2, 7, 33, 64, 500}) {
        const auto x = randomSignal<D>(n);
        for (int len : {1, n, n + 5})
            for (QspAlgType alg : kAlgs)
                for (QspCorrNorm norm : kNorms) checkCross<A>(x, x, len, 0, alg, norm, true);
    }
}

TYPED_TEST(AutoCorrTyped, UnitEnergyGivesOneAtLagZero)
{
    using A = TypeParam;
    using D = typename A::D;
    const auto x = randomSignal<D>(200);
    for (QspAlgType alg : kAlgs) {
        int bytes;
        ASSERT_EQ(qspsAutoCorrNormGetBufferSize(200, 3, A::type, alg, &bytes), qspStsOk);
        Buffer buf(bytes);
        D y[3];
        ASSERT_EQ(A::autoc(x.data(), y, 200, 3, alg, qspNormUnitEnergy, buf.p), qspStsOk);
        EXPECT_LE(deviation(y[0], LC(1)), 64 * kU<typename A::Part>);
    }
    // A zero signal gives zeros, not NaN.
    const std::vector<D> zero(10, Elem<D>::make(0, 0));
    int bytes;
    ASSERT_EQ(qspsAutoCorrNormGetBufferSize(10, 4, A::type, qspAlgAuto, &bytes), qspStsOk);
    Buffer buf(bytes);
    D y[4];
    ASSERT_EQ(A::autoc(zero.data(), y, 10, 4, qspAlgAuto, qspNormUnitEnergy, buf.p), qspStsOk);
    for (const D& v : y) EXPECT_EQ(Elem<D>::get(v), LC(0));
}

TEST(AutoCorr16, EveryNormalisationIsExact)
{
    for (int n : {1, 2, 9, 64, 3000}) {
        const auto x = random16<Qsp16s>(n);
        for (QspAlgType alg : kAlgs)
            for (QspCorrNorm norm : kNorms) check16(x, x, n + 3, 0, alg, norm, {-2, 0, 5, 31}, true);
    }
}

}  // namespace

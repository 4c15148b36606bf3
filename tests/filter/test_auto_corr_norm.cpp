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

// Source, destination and buffer at any byte offset give the same bits.
TYPED_TEST(AutoCorrTyped, MisalignedPointers)
{
    using A = TypeParam;
    using D = typename A::D;
    const int n = 333, len = 150;
    const auto x = randomSignal<D>(n);
    for (QspAlgType alg : kAlgs) {
        int bytes;
        ASSERT_EQ(qspsAutoCorrNormGetBufferSize(n, len, A::type, alg, &bytes), qspStsOk);
        Buffer ref(bytes);
        std::vector<D> want(len);
        ASSERT_EQ(A::autoc(x.data(), want.data(), n, len, alg, qspNormUnbiased, ref.p), qspStsOk);
        for (int off : {1, 2, 7}) {
            const Shifted<D> px(x.data(), n, off), py(nullptr, len, off + 1);
            Buffer buf(bytes, off * 3);
            ASSERT_EQ(A::autoc(px.p, py.p, n, len, alg, qspNormUnbiased, buf.p), qspStsOk);
            for (int k = 0; k < len; ++k) ASSERT_TRUE(qsptest::sameBits(py.at(k), want[k])) << off << " " << k;
        }
    }
}

TEST(AutoCorr16, MisalignedPointers)
{
    const int n = 333, len = 150;
    const auto x = random16<Qsp16s>(n);
    for (QspAlgType alg : kAlgs) {
        int bytes;
        ASSERT_EQ(qspsAutoCorrNormGetBufferSize(n, len, qsp16s, alg, &bytes), qspStsOk);
        Buffer ref(bytes);
        std::vector<Qsp16s> want(len);
        std::vector<Qsp32f> wantf(len);
        ASSERT_EQ(qspsAutoCorrNorm_16s_Sfs(x.data(), want.data(), n, len, alg, qspNormBiased, ref.p, 3), qspStsOk);
        ASSERT_EQ(qspsAutoCorrNorm_16s32f(x.data(), wantf.data(), n, len, alg, qspNormNone, ref.p), qspStsOk);
        for (int off : {1, 2, 6}) {
            const Shifted<Qsp16s> px(x.data(), n, off), py(nullptr, len, off + 1);
            const Shifted<Qsp32f> pf(nullptr, len, off + 2);
            Buffer buf(bytes, off * 3);
            ASSERT_EQ(qspsAutoCorrNorm_16s_Sfs(px.p, py.p, n, len, alg, qspNormBiased, buf.p, 3), qspStsOk);
            ASSERT_EQ(qspsAutoCorrNorm_16s32f(px.p, pf.p, n, len, alg, qspNormNone, buf.p), qspStsOk);
            for (int k = 0; k < len; ++k) {
                ASSERT_EQ(py.at(k), want[k]) << off << " " << k;
                ASSERT_TRUE(qsptest::sameBits(pf.at(k), wantf[k])) << off << " " << k;
            }
        }
    }
}

}  // namespace

// SPDX-License-Identifier: BSD-3-Clause
// CrossCorrNorm and AutoCorrNorm: buffer sizes, checks, every lag window
// and normalisation of every type and method against the sums in long
// double, the 16-bit forms exactly.
#include <algorithm>
#include <cstring>

#include "corr_checks.h"

namespace {

using namespace convtest;

template <class A>
class CorrTyped : public ::testing::Test {};
using FloatTypes = ::testing::Types<C32f, C64f, C32fc, C64fc>;
TYPED_TEST_SUITE(CorrTyped, FloatTypes);

// ---------------------------------------------------------------- size queries

TEST(CorrGetBufferSize, ChecksPointerThenLengthsThenTypeThenAlgorithm)
{
    int bytes = -7;
    EXPECT_EQ(qspsCrossCorrNormGetBufferSize(0, 0, 0, 0, 99, 99, nullptr), qspStsNullPtr);
    EXPECT_EQ(qspsCrossCorrNormGetBufferSize(0, 5, 5, 0, 99, 99, &bytes), qspStsBadSize);
    EXPECT_EQ(qspsCrossCorrNormGetBufferSize(5, 0, 5, 0, 99, 99, &bytes), qspStsBadSize);
    EXPECT_EQ(qspsCrossCorrNormGetBufferSize(5, 5, 0, 0, 99, 99, &bytes), qspStsBadSize);
    EXPECT_EQ(qspsCrossCorrNormGetBufferSize(5, 5, 5, 0, 8, 99, &bytes), qspStsBadDataType);
    EXPECT_EQ(qspsCrossCorrNormGetBufferSize(5, 5, 5, 0, qsp32f, 3, &bytes), qspStsBadAlgType);
    EXPECT_EQ(qspsAutoCorrNormGetBufferSize(5, 5, qsp32f, 0, nullptr), qspStsNullPtr);
    EXPECT_EQ(qspsAutoCorrNormGetBufferSize(0, 5, 99, 99, &bytes), qspStsBadSize);
    EXPECT_EQ(qspsAutoCorrNormGetBufferSize(5, -5, 99, 99, &bytes), qspStsBadSize);
    EXPECT_EQ(qspsAutoCorrNormGetBufferSize(5, 5, 21, 99, &bytes), qspStsBadDataType);
    EXPECT_EQ(qspsAutoCorrNormGetBufferSize(5, 5, qsp16s, -1, &bytes), qspStsBadAlgType);
    EXPECT_EQ(bytes, -7);
    for (QspDataType type : {qsp32f, qsp64f, qsp32fc, qsp64fc, qsp16s})
        for (QspAlgType alg : kAlgs) {
            ASSERT_EQ(qspsAutoCorrNormGetBufferSize(1, 1, type, alg, &bytes), qspStsOk);
            EXPECT_GT(bytes, 0);
            int cross = 0;
            ASSERT_EQ(qspsCrossCorrNormGetBufferSize(100, 100, 30, 0, type, alg, &cross), qspStsOk);
            ASSERT_EQ(qspsAutoCorrNormGetBufferSize(100, 30, type, alg, &bytes), qspStsOk);
            EXPECT_EQ(bytes, cross);
        }
}

// ---------------------------------------------------------------- checks

TYPED_TEST(CorrTyped, ChecksPointersLengthsAlgorithmThenNormalisation)
{
    using A = TypeParam;
    using D = typename A::D;
    const auto a = randomSignal<D>(4), b = randomSignal<D>(3);
    qsptest::Guarded<D> y(6);
    qsptest::Guarded<Qsp8u> buf(crossBuffer(4, 4, 6, -3, A::type, qspAlgAuto));
    auto* yd = y.data();
    auto* bd = buf.data();
    EXPECT_EQ(A::cross(nullptr, b.data(), yd, 0, 3, 6, 0, 7, 9, bd), qspStsNullPtr);
    EXPECT_EQ(A::cross(a.data(), nullptr, yd, 4, 3, 6, 0, 0, 0, bd), qspStsNullPtr);
    EXPECT_EQ(A::cross(a.data(), b.data(), nullptr, 4, 3, 6, 0, 0, 0, bd), qspStsNullPtr);
    EXPECT_EQ(A::cross(a.data(), b.data(), yd, 4, 3, 6, 0, 0, 0, nullptr), qspStsNullPtr);
    EXPECT_EQ(A::cross(a.data(), b.data(), yd, 0, 3, 6, 0, 7, 9, bd), qspStsBadSize);
    EXPECT_EQ(A::cross(a.data(), b.data(), yd, 4, 0, 6, 0, 7, 9, bd), qspStsBadSize);
    EXPECT_EQ(A::cross(a.data(), b.data(), yd, 4, 3, 0, 0, 7, 9, bd), qspStsBadSize);
    EXPECT_EQ(A::cross(a.data(), b.data(), yd, 4, 3, 6, 0, 3, 9, bd), qspStsBadAlgType);
    EXPECT_EQ(A::cross(a.data(), b.data(), yd, 4, 3, 6, 0, 0, 4, bd), qspStsBadArgument);
    EXPECT_EQ(A::cross(a.data(), b.data(), yd, 4, 3, 6, 0, 0, -1, bd), qspStsBadArgument);
    EXPECT_EQ(A::autoc(nullptr, yd, 0, 6, 7, 9, bd), qspStsNullPtr);
    EXPECT_EQ(A::autoc(a.data(), nullptr, 4, 6, 0, 0, bd), qspStsNullPtr);
    EXPECT_EQ(A::autoc(a.data(), yd, 4, 6, 0, 0, nullptr), qspStsNullPtr);
    EXPECT_EQ(A::autoc(a.data(), yd, 0, 6, 7, 9, bd), qspStsBadSize);
    EXPECT_EQ(A::autoc(a.data(), yd, 4, -6, 7, 9, bd), qspStsBadSize);
    EXPECT_EQ(A::autoc(a.data(), yd, 4, 6, 3, 9, bd), qspStsBadAlgType);
    EXPECT_EQ(A::autoc(a.data(), yd, 4, 6, 0, 5, bd), qspStsBadArgument);
    EXPECT_TRUE(y.untouched() && buf.untouched());
}

// ---------------------------------------------------------------- values

// Every pair of lengths up to 64, every lag at which the sum has terms
// (numpy.correlate(src2, src1, "full")), by every method.
TYPED_TEST(CorrTyped, EveryLengthPairUpTo64FullRange)
{
    using A = TypeParam;
    using D = typename A::D;
    for (int n1 = 1; n1 <= 64; ++n1)
        for (int n2 = 1; n2 <= 64; ++n2) {
            const auto a = randomSignal<D>(n1), b = randomSignal<D>(n2);
            for (QspAlgType alg : kAlgs) checkCross<A>(a, b, n1 + n2 - 1, -(n1 - 1), alg, qspNormNone);
        }
}

TYPED_TEST(CorrTyped, LagWindowsAndNormalisations)
{
    using A = TypeParam;
    using D = typename A::D;
    for (auto [n1, n2] : {std::pair{1, 1}, {1, 9}, {9, 1}, {5, 12}, {12, 5}, {30, 30}, {17, 70}, {70, 17}}) {
        const auto a = randomSignal<D>(n1), b = randomSignal<D>(n2);
        for (int lowLag : {-n1 - 3, -n1, -n1 + 1, -1, 0, 1, n2 - 1, n2, n2 + 5})
            for (int len : {1, 2, n1 + n2 + 7})
                for (QspAlgType alg : kAlgs)
                    for (QspCorrNorm norm : kNorms) checkCross<A>(a, b, len, lowLag, alg, norm);
    }
}

TYPED_TEST(CorrTyped, LongerOperands)
{
    using A = TypeParam;
    using D = typename A::D;
    for (auto [n1, n2] : {std::pair{3000, 40}, {40, 3000}, {1500, 1700}}) {
        const auto a = randomSignal<D>(n1), b = randomSignal<D>(n2);
        for (QspAlgType alg : kAlgs) {
            checkCross<A>(a, b, 300, -(n1 - 1), alg, qspNormUnbiased);
            checkCross<A>(a, b, 300, std::max(n1, n2) - 250, alg, qspNormBiased);
            checkCross<A>(a, b, n1 + n2 - 1, -(n1 - 1), alg, qspNormUnitEnergy);
        }
    }
}

TYPED_TEST(CorrTyped, MisalignedOperandsAndBuffers)
{
    using A = TypeParam;
    using D = typename A::D;
    const int n1 = 45, n2 = 300, len = 200, lowLag = -20;
    const auto a = randomSignal<D>(n1), b = randomSignal<D>(n2);
    for (QspAlgType alg : kAlgs) {
        Buffer ref(crossBuffer(n1, n2, len, lowLag, A::type, alg));
        std::vector<D> want(len);
        ASSERT_EQ(A::cross(a.data(), b.data(), want.data(), n1, n2, len, lowLag, alg, qspNormBiased, ref.p), qspStsOk);
        for (int off : {1, 2, 7}) {
            const Shifted<D> pa(a.data(), n1, off), pb(b.data(), n2, off + 1), py(nullptr, len, off + 2);
            Buffer buf(crossBuffer(n1, n2, len, lowLag, A::type, alg), off * 5);
            ASSERT_EQ(A::cross(pa.p, pb.p, py.p, n1, n2, len, lowLag, alg, qspNormBiased, buf.p), qspStsOk);
            for (int k = 0; k < len; ++k) {
                const D got = py.at(k);
                ASSERT_TRUE(qsptest::sameBits(got, want[k])) << off << " " << k;
            }
        }
    }
}

// Both operands the same array: the bits of the same values in two arrays.
TYPED_TEST(CorrTyped, SharedOperandEqualsACopy)
{
    using A = TypeParam;
    using D = typename A::D;
    const int n = 300, len = 120, lowLag = -60;
    const auto x = randomSignal<D>(n);
    const std::vector<D> copy = x;
    for (QspAlgType alg : kAlgs)
        for (QspCorrNorm norm : kNorms) {
            Buffer buf(crossBuffer(n, n, len, lowLag, A::type, alg));
            std::vector<D> self(len), want(len);
            ASSERT_EQ(A::cross(x.data(), x.data(), self.data(), n, n, len, lowLag, alg, norm, buf.p), qspStsOk);
            ASSERT_EQ(A::cross(x.data(), copy.data(), want.data(), n, n, len, lowLag, alg, norm, buf.p), qspStsOk);
            for (int k = 0; k < len; ++k) ASSERT_TRUE(qsptest::sameBits(self[k], want[k])) << alg << " " << norm << " " << k;
        }
}

// A million samples: a sample of lags, both ends of the range and the
// middle, every normalisation.
TYPED_TEST(CorrTyped, HeavyMillionSamples)
{
    using A = TypeParam;
    using D = typename A::D;
    const int n1 = 1000000, n2 = 1000000;
    const auto a = randomSignal<D>(n1), b = randomSignal<D>(n2);
    for (int lowLag : {-(n1 - 1), -20, n2 - 20}) {
        const QspAlgType algs[] = {qspAlgAuto, qspAlgFFT};
        for (QspAlgType alg : algs) checkCross<A>(a, b, 20, lowLag, alg, lowLag == -20 ? qspNormUnitEnergy : qspNormUnbiased);
    }
}

// ---------------------------------------------------------------- 16-bit

TEST(Corr16, EveryLengthPairUpTo64IsExact)
{
    for (int n1 = 1; n1 <= 64; ++n1)
        for (int n2 = 1; n2 <= 64; ++n2) {
            const auto a = random16<Qsp16s>(n1), b = random16<Qsp16s>(n2);
            for (QspAlgType alg : kAlgs) check16(a, b, n1 + n2 - 1, -(n1 - 1), alg, qspNormNone, {0, 17});
        }
}

TEST(Corr16, NormalisationsAndScaleFactors)
{
    for (auto [n1, n2] : {std::pair{1, 1}, {3, 10}, {10, 3}, {33, 33}, {200, 64}}) {
        const auto a = random16<Qsp16s>(n1), b = random16<Qsp16s>(n2);
        for (int lowLag : {-n1 - 2, -n1 + 1, 0, n2 - 1, n2 + 1})
            for (QspAlgType alg : kAlgs)
                for (QspCorrNorm norm : kNorms)
                    check16(a, b, n1 + n2 + 4, lowLag, alg, norm, {-20, -16, -1, 0, 1, 2, 15, 40});
    }
    // Saturating lengths: a constant full-scale signal.
    const std::vector<Qsp16s> full(500, -32768);
    for (QspCorrNorm norm : kNorms) check16(full, full, 600, -499, qspAlgAuto, norm, {-3, 0, 9, 20, 39, 40});
}

TEST(Corr16, AutocorrelationAndLongOperands)
{
    const auto x = random16<Qsp16s>(3000), y = random16<Qsp16s>(40);
    for (QspAlgType alg : kAlgs)
        for (QspCorrNorm norm : kNorms) {
            check16(x, x, 50, 0, alg, norm, {0, 12}, true);
            check16(x, y, 200, -39, alg, norm, {0, 12});
            check16(y, x, 200, 2800, alg, norm, {0, 12});
        }
}

TEST(Corr16, QuotientsRoundToNearestEven)
{
    // Two samples each, lag 0 divided by 2 (biased) or by 2 products
    // (unbiased): v / 2 / 2^s with v = 5, 6, 7, 10, -5, -7.
    const Qsp16s a[2] = {1, 0};
    Buffer buf(crossBuffer(2, 2, 1, 0, qsp16s, qspAlgAuto));
    const struct {
        Qsp16s b0;
        int s;
        Qsp16s want;
    } cases[] = {{5, 0, 2}, {7, 0, 4}, {-5, 0, -2}, {-7, 0, -4}, {6, 0, 3}, {5, 1, 1}, {6, 1, 2}, {10, 1, 2},
                 {-10, 1, -2}, {3, -1, 3}, {1, -1, 1}, {3, 1, 1}, {1, 2, 0}, {2, 2, 0}, {6, 2, 1},
                 {4, 2, 0}, {12, 2, 2}, {20, 2, 2}, {-12, 2, -2}};
    for (const auto& c : cases)
        for (QspCorrNorm norm : {qspNormBiased, qspNormUnbiased}) {
            const Qsp16s b[2] = {c.b0, 0};
            Qsp16s y = 99;
            ASSERT_EQ(qspsCrossCorrNorm_16s_Sfs(a, b, &y, 2, 2, 1, 0, qspAlgAuto, norm, buf.p, c.s), qspStsOk);
            EXPECT_EQ(y, c.want) << c.b0 << " / 2 / 2^" << c.s;
        }
}

TEST(Corr16, ChecksPointersLengthsAlgorithmThenNormalisation)
{
    const Qsp16s a[3] = {1, 2, 3};
    Buffer buf(crossBuffer(3, 3, 5, -2, qsp16s, qspAlgAuto));
    qsptest::Guarded<Qsp16s> y(5);
    qsptest::Guarded<Qsp32f> yf(5);
    EXPECT_EQ(qspsCrossCorrNorm_16s_Sfs(nullptr, a, y.data(), 0, 3, 5, 0, 9, 9, buf.p, 0), qspStsNullPtr);
    EXPECT_EQ(qspsCrossCorrNorm_16s_Sfs(a, a, y.data(), 3, 3, 5, 0, 0, 0, nullptr, 0), qspStsNullPtr);
    EXPECT_EQ(qspsCrossCorrNorm_16s_Sfs(a, a, y.data(), 3, 3, 0, 0, 9, 9, buf.p, 0), qspStsBadSize);
    EXPECT_EQ(qspsCrossCorrNorm_16s_Sfs(a, a, y.data(), 3, 3, 5, 0, 9, 9, buf.p, 0), qspStsBadAlgType);
    EXPECT_EQ(qspsCrossCorrNorm_16s_Sfs(a, a, y.data(), 3, 3, 5, 0, 0, 9, buf.p, 0), qspStsBadArgument);
    EXPECT_EQ(qspsAutoCorrNorm_16s_Sfs(a, y.data(), 3, 5, 0, 4, buf.p, 0), qspStsBadArgument);
    EXPECT_EQ(qspsAutoCorrNorm_16s_Sfs(a, nullptr, 3, 5, 0, 0, buf.p, 0), qspStsNullPtr);
    EXPECT_EQ(qspsCrossCorrNorm_16s32f(a, nullptr, yf.data(), 3, 3, 5, 0, 0, 0, buf.p), qspStsNullPtr);
    EXPECT_EQ(qspsCrossCorrNorm_16s32f(a, a, yf.data(), 3, -3, 5, 0, 0, 0, buf.p), qspStsBadSize);
    EXPECT_EQ(qspsAutoCorrNorm_16s32f(a, yf.data(), 3, 5, -2, 0, buf.p), qspStsBadAlgType);
    EXPECT_EQ(qspsAutoCorrNorm_16s32f(a, yf.data(), 3, 5, 0, 7, buf.p), qspStsBadArgument);
    EXPECT_TRUE(y.untouched() && yf.untouched());
}

// 16-bit operands and destinations at any byte offset give the same values;
// both operands may be the same array.
TEST(Corr16, MisalignedPointersAndSharedOperand)
{
    const int n1 = 45, n2 = 300, len = 200, lowLag = -20;
    const auto a = random16<Qsp16s>(n1), b = random16<Qsp16s>(n2);
    for (QspAlgType alg : kAlgs) {
        Buffer ref(crossBuffer(n1, n2, len, lowLag, qsp16s, alg));
        std::vector<Qsp16s> want(len);
        std::vector<Qsp32f> wantf(len);
        ASSERT_EQ(qspsCrossCorrNorm_16s_Sfs(a.data(), b.data(), want.data(), n1, n2, len, lowLag, alg, qspNormNone,
                                            ref.p, 12),
                  qspStsOk);
        ASSERT_EQ(qspsCrossCorrNorm_16s32f(a.data(), b.data(), wantf.data(), n1, n2, len, lowLag, alg, qspNormBiased,
                                           ref.p),
                  qspStsOk);
        for (int off : {1, 2, 6}) {
            const Shifted<Qsp16s> pa(a.data(), n1, off), pb(b.data(), n2, off + 1), py(nullptr, len, off + 2);
            const Shifted<Qsp32f> pf(nullptr, len, off + 3);
            Buffer buf(crossBuffer(n1, n2, len, lowLag, qsp16s, alg), off * 5);
            ASSERT_EQ(qspsCrossCorrNorm_16s_Sfs(pa.p, pb.p, py.p, n1, n2, len, lowLag, alg, qspNormNone, buf.p, 12),
                      qspStsOk);
            ASSERT_EQ(qspsCrossCorrNorm_16s32f(pa.p, pb.p, pf.p, n1, n2, len, lowLag, alg, qspNormBiased, buf.p),
                      qspStsOk);
            for (int k = 0; k < len; ++k) {
                ASSERT_EQ(py.at(k), want[k]) << off << " " << k;
                ASSERT_TRUE(qsptest::sameBits(pf.at(k), wantf[k])) << off << " " << k;
            }
        }
        const std::vector<Qsp16s> copy = b;
        Buffer sb(crossBuffer(n2, n2, len, lowLag, qsp16s, alg));
        for (QspCorrNorm norm : kNorms) {
            std::vector<Qsp16s> self(len), other(len);
            ASSERT_EQ(qspsCrossCorrNorm_16s_Sfs(b.data(), b.data(), self.data(), n2, n2, len, lowLag, alg, norm, sb.p, -3),
                      qspStsOk);
            ASSERT_EQ(qspsCrossCorrNorm_16s_Sfs(b.data(), copy.data(), other.data(), n2, n2, len, lowLag, alg, norm,
                                                sb.p, -3),
                      qspStsOk);
            for (int k = 0; k < len; ++k) ASSERT_EQ(self[k], other[k]) << norm << " " << k;
        }
    }
}

}  // namespace

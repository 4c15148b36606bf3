// SPDX-License-Identifier: BSD-3-Clause
// Convolve: buffer sizes, checks, and the full convolution of every type
// and method against the sum in long double (16-bit forms exactly), for
// every pair of lengths up to 64 and a sample of long ones.
#include <algorithm>
#include <cstring>

#include "conv_calls.h"

namespace {

using namespace convtest;

template <class A>
class ConvTyped : public ::testing::Test {};
using FloatTypes = ::testing::Types<C32f, C64f, C32fc, C64fc>;
TYPED_TEST_SUITE(ConvTyped, FloatTypes);

const QspAlgType kAlgs[] = {qspAlgAuto, qspAlgDirect, qspAlgFFT};

int bufferFor(int n1, int n2, QspDataType type, QspAlgType alg)
{
    int bytes = -1;
    EXPECT_EQ(qspsConvolveGetBufferSize(n1, n2, type, alg, &bytes), qspStsOk);
    return bytes;
}

// Convolves through a buffer of exactly the reported size (guarded) and
// checks every value against the long double sum.
template <class A>
void checkPair(const std::vector<typename A::D>& a, const std::vector<typename A::D>& b, QspAlgType alg,
               const std::vector<long long>& at = {})
{
    using D = typename A::D;
    const int n1 = int(a.size()), n2 = int(b.size());
    const long long count = (long long)n1 + n2 - 1;
    const int bytes = bufferFor(n1, n2, A::type, alg);
    qsptest::Guarded<Qsp8u> buf(bytes, 64);
    qsptest::Guarded<D> y(count);
    ASSERT_EQ(A::convolve(a.data(), b.data(), y.data(), n1, n2, alg, buf.data()), qspStsOk);
    ASSERT_TRUE(y.guardsIntact() && buf.guardsIntact()) << A::name << " " << n1 << "x" << n2;
    const long double norms = norm2(a.data(), n1) * norm2(b.data(), n2);
    auto check = [&](long long j) {
        const auto [want, m] = convAt(a.data(), n1, b.data(), n2, j);
        const long double tol = bound<typename A::Part>(alg, std::min(n1, n2), m, n1, n2, norms);
        ASSERT_LE(deviation(y[j], want), tol) << A::name << " " << n1 << "x" << n2 << " alg " << alg << " j " << j;
    };
    if (at.empty())
        for (long long j = 0; j < count; ++j) check(j);
    else
        for (long long j : at) check(j);
}

// ---------------------------------------------------------------- size query

TEST(ConvolveGetBufferSize, ChecksPointerThenLengthsThenTypeThenAlgorithm)
{
    int bytes = -7;
    EXPECT_EQ(qspsConvolveGetBufferSize(0, 0, 99, 99, nullptr), qspStsNullPtr);
    EXPECT_EQ(qspsConvolveGetBufferSize(0, 5, 99, 99, &bytes), qspStsBadSize);
    EXPECT_EQ(qspsConvolveGetBufferSize(5, -1, 99, 99, &bytes), qspStsBadSize);
    for (int type : {0, 7 + 1, 12, 15, 21, -1})
        EXPECT_EQ(qspsConvolveGetBufferSize(5, 5, type, 99, &bytes), qspStsBadDataType) << type;
    for (int alg : {3, -1, 1000}) EXPECT_EQ(qspsConvolveGetBufferSize(5, 5, qsp32f, alg, &bytes), qspStsBadAlgType);
    EXPECT_EQ(bytes, -7);
    for (QspDataType type : {qsp32f, qsp64f, qsp32fc, qsp64fc, qsp16s})
        for (QspAlgType alg : kAlgs) {
            ASSERT_EQ(qspsConvolveGetBufferSize(1, 1, type, alg, &bytes), qspStsOk);
            EXPECT_GT(bytes, 0);
        }
}

TEST(ConvolveGetBufferSize, SymmetricInTheLengthsAndOverflowReported)
{
    for (QspAlgType alg : kAlgs)
        for (auto [n1, n2] : {std::pair{3, 70}, {1000, 17}, {4096, 4096}}) {
            int b1, b2;
            ASSERT_EQ(qspsConvolveGetBufferSize(n1, n2, qsp64fc, alg, &b1), qspStsOk);
            ASSERT_EQ(qspsConvolveGetBufferSize(n2, n1, qsp64fc, alg, &b2), qspStsOk);
            EXPECT_EQ(b1, b2);
        }
    int bytes = -7;
    EXPECT_EQ(qspsConvolveGetBufferSize(0x7FFFFFFF, 0x7FFFFFFF, qsp64fc, qspAlgFFT, &bytes), qspStsOverflow);
    EXPECT_EQ(bytes, -7);
}

// ---------------------------------------------------------------- checks

TYPED_TEST(ConvTyped, ChecksPointersThenLengthsThenAlgorithm)
{
    using A = TypeParam;
    using D = typename A::D;
    const auto a = randomSignal<D>(4), b = randomSignal<D>(3);
    qsptest::Guarded<D> y(6);
    qsptest::Guarded<Qsp8u> buf(bufferFor(4, 3, A::type, qspAlgAuto));
    EXPECT_EQ(A::convolve(nullptr, b.data(), y.data(), 0, 3, 7, buf.data()), qspStsNullPtr);
    EXPECT_EQ(A::convolve(a.data(), nullptr, y.data(), 4, 3, qspAlgAuto, buf.data()), qspStsNullPtr);
    EXPECT_EQ(A::convolve(a.data(), b.data(), nullptr, 4, 3, qspAlgAuto, buf.data()), qspStsNullPtr);
    EXPECT_EQ(A::convolve(a.data(), b.data(), y.data(), 4, 3, qspAlgAuto, nullptr), qspStsNullPtr);
    EXPECT_EQ(A::convolve(a.data(), b.data(), y.data(), 0, 3, 7, buf.data()), qspStsBadSize);
    EXPECT_EQ(A::convolve(a.data(), b.data(), y.data(), 4, -2, 7, buf.data()), qspStsBadSize);
    EXPECT_EQ(A::convolve(a.data(), b.data(), y.data(), 4, 3, 3, buf.data()), qspStsBadAlgType);
    EXPECT_EQ(A::convolve(a.data(), b.data(), y.data(), 4, 3, -1, buf.data()), qspStsBadAlgType);
    EXPECT_TRUE(y.untouched() && buf.untouched());
}

// ---------------------------------------------------------------- values

TYPED_TEST(ConvTyped, EveryLengthPairUpTo64)
{
    using A = TypeParam;
    using D = typename A::D;
    for (int n1 = 1; n1 <= 64; ++n1)
        for (int n2 = 1; n2 <= 64; ++n2) {
            const auto a = randomSignal<D>(n1), b = randomSignal<D>(n2);
            for (QspAlgType alg : kAlgs) checkPair<A>(a, b, alg);
        }
}

TYPED_TEST(ConvTyped, LongerOperands)
{
    using A = TypeParam;
    using D = typename A::D;
    for (auto [n1, n2] : {std::pair{1, 5000}, {5000, 3}, {65, 3000}, {700, 900}, {2049, 2047}})
        for (QspAlgType alg : kAlgs) checkPair<A>(randomSignal<D>(n1), randomSignal<D>(n2), alg);
}

// A million samples and more: a sample of the outputs, both ends and the
// middle, and a random spread.
TYPED_TEST(ConvTyped, HeavyMillionSamples)
{
    using A = TypeParam;
    using D = typename A::D;
    for (auto [n1, n2] : {std::pair{1000000, 16}, {100000, 1000}, {1000000, 1000000}}) {
        const long long count = (long long)n1 + n2 - 1;
        std::vector<long long> at = {0, 1, 2, n2 - 1LL, n2, count / 2, count - 3, count - 2, count - 1};
        std::uniform_int_distribution<long long> pick(0, count - 1);
        for (int i = 0; i < 40; ++i) at.push_back(pick(qsptest::rng()));
        const QspAlgType algs[] = {qspAlgAuto, qspAlgFFT};
        for (QspAlgType alg : algs) checkPair<A>(randomSignal<D>(n1), randomSignal<D>(n2), alg, at);
    }
}

TYPED_TEST(ConvTyped, DirectAndTransformAgree)
{
    using A = TypeParam;
    using D = typename A::D;
    for (auto [n1, n2] : {std::pair{40, 40}, {300, 70}, {7, 1000}}) {
        const auto a = randomSignal<D>(n1), b = randomSignal<D>(n2);
        const int count = n1 + n2 - 1;
        std::vector<D> yd(count), yf(count);
        Buffer bd(bufferFor(n1, n2, A::type, qspAlgDirect)), bf(bufferFor(n1, n2, A::type, qspAlgFFT));
        ASSERT_EQ(A::convolve(a.data(), b.data(), yd.data(), n1, n2, qspAlgDirect, bd.p), qspStsOk);
        ASSERT_EQ(A::convolve(a.data(), b.data(), yf.data(), n1, n2, qspAlgFFT, bf.p), qspStsOk);
        const long double norms = norm2(a.data(), n1) * norm2(b.data(), n2);
        for (int j = 0; j < count; ++j) {
            const long double m = convAt(a.data(), n1, b.data(), n2, j).second;
            ASSERT_LE(deviation(yd[j], Elem<D>::get(yf[j])),
                      directBound<typename A::Part>(std::min(n1, n2), m) + fftBound<typename A::Part>(n1, n2, norms));
        }
    }
}

TYPED_TEST(ConvTyped, OperandOrderAndSharedOperand)
{
    using A = TypeParam;
    using D = typename A::D;
    const int n1 = 37, n2 = 150;
    const auto a = randomSignal<D>(n1), b = randomSignal<D>(n2);
    for (QspAlgType alg : kAlgs) {
        Buffer buf(bufferFor(n1, n2, A::type, alg));
        std::vector<D> ab(n1 + n2 - 1), ba(n1 + n2 - 1);
        ASSERT_EQ(A::convolve(a.data(), b.data(), ab.data(), n1, n2, alg, buf.p), qspStsOk);
        ASSERT_EQ(A::convolve(b.data(), a.data(), ba.data(), n2, n1, alg, buf.p), qspStsOk);
        // The shorter operand serves as taps whichever its place: the same bits.
        for (int j = 0; j < n1 + n2 - 1; ++j) ASSERT_TRUE(qsptest::sameBits(ab[j], ba[j])) << j;
        // Both sources the same array.
        Buffer sb(bufferFor(n2, n2, A::type, alg));
        std::vector<D> self(2 * n2 - 1), copy = b;
        std::vector<D> want(2 * n2 - 1);
        ASSERT_EQ(A::convolve(b.data(), b.data(), self.data(), n2, n2, alg, sb.p), qspStsOk);
        ASSERT_EQ(A::convolve(b.data(), copy.data(), want.data(), n2, n2, alg, sb.p), qspStsOk);
        for (int j = 0; j < 2 * n2 - 1; ++j) ASSERT_TRUE(qsptest::sameBits(self[j], want[j])) << j;
    }
}

TYPED_TEST(ConvTyped, MisalignedOperandsAndBuffers)
{
    using A = TypeParam;
    using D = typename A::D;
    const int n1 = 45, n2 = 333, count = n1 + n2 - 1;
    const auto a = randomSignal<D>(n1), b = randomSignal<D>(n2);
    for (QspAlgType alg : kAlgs) {
        Buffer ref(bufferFor(n1, n2, A::type, alg));
        std::vector<D> want(count);
        ASSERT_EQ(A::convolve(a.data(), b.data(), want.data(), n1, n2, alg, ref.p), qspStsOk);
        for (int off : {1, 3, 5}) {
            const Shifted<D> pa(a.data(), n1, off), pb(b.data(), n2, off + 2), py(nullptr, count, off + 4);
            Buffer buf(bufferFor(n1, n2, A::type, alg), off * 7);
            ASSERT_EQ(A::convolve(pa.p, pb.p, py.p, n1, n2, alg, buf.p), qspStsOk);
            for (int j = 0; j < count; ++j) {
                const D got = py.at(j);
                ASSERT_TRUE(qsptest::sameBits(got, want[j])) << off << " " << j;
            }
        }
    }
}

// The automatic choice gives the bits of the method it picks: short taps
// directly, two long operands by the transform.
TYPED_TEST(ConvTyped, AutomaticChoice)
{
    using A = TypeParam;
    using D = typename A::D;
    auto same = [](int n1, int n2, QspAlgType expected) {
        const auto a = randomSignal<D>(n1), b = randomSignal<D>(n2);
        const int count = n1 + n2 - 1;
        std::vector<D> ya(count), ye(count);
        Buffer ba(bufferFor(n1, n2, A::type, qspAlgAuto)), be(bufferFor(n1, n2, A::type, expected));
        ASSERT_EQ(A::convolve(a.data(), b.data(), ya.data(), n1, n2, qspAlgAuto, ba.p), qspStsOk);
        ASSERT_EQ(A::convolve(a.data(), b.data(), ye.data(), n1, n2, expected, be.p), qspStsOk);
        for (int j = 0; j < count; ++j) ASSERT_TRUE(qsptest::sameBits(ya[j], ye[j])) << n1 << "x" << n2 << " " << j;
    };
    same(3, 10000, qspAlgDirect);
    same(1, 1, qspAlgDirect);
    same(4000, 4000, qspAlgFFT);
}

// ---------------------------------------------------------------- 16-bit

void check16(const std::vector<Qsp16s>& a, const std::vector<Qsp16s>& b, QspAlgType alg, const std::vector<int>& scales,
             const std::vector<long long>& at = {})
{
    const int n1 = int(a.size()), n2 = int(b.size());
    const long long count = (long long)n1 + n2 - 1;
    const int bytes = bufferFor(n1, n2, qsp16s, alg);
    qsptest::Guarded<Qsp8u> buf(bytes, 64);
    std::vector<long long> exact(at.empty() ? count : at.size());
    for (size_t i = 0; i < exact.size(); ++i) exact[i] = convAt16(a.data(), n1, b.data(), n2, at.empty() ? (long long)i : at[i]);
    auto index = [&](size_t i) { return at.empty() ? (long long)i : at[i]; };
    qsptest::Guarded<Qsp32f> yf(count);
    ASSERT_EQ(qspsConvolve_16s32f(a.data(), b.data(), yf.data(), n1, n2, alg, buf.data()), qspStsOk);
    ASSERT_TRUE(yf.guardsIntact() && buf.guardsIntact());
    for (size_t i = 0; i < exact.size(); ++i)
        ASSERT_EQ(yf[index(i)], Qsp32f(exact[i])) << n1 << "x" << n2 << " alg " << alg << " j " << index(i);
    for (int s : scales) {
        qsptest::Guarded<Qsp16s> y(count);
        ASSERT_EQ(qspsConvolve_16s_Sfs(a.data(), b.data(), y.data(), n1, n2, alg, buf.data(), s), qspStsOk);
        ASSERT_TRUE(y.guardsIntact() && buf.guardsIntact());
        for (size_t i = 0; i < exact.size(); ++i)
            ASSERT_EQ(y[index(i)], scaleRule16(exact[i], s)) << n1 << "x" << n2 << " alg " << alg << " sf " << s;
    }
}

TEST(Convolve16, EveryLengthPairUpTo64IsExact)
{
    for (int n1 = 1; n1 <= 64; ++n1)
        for (int n2 = 1; n2 <= 64; ++n2) {
            const auto a = random16<Qsp16s>(n1), b = random16<Qsp16s>(n2);
            for (QspAlgType alg : kAlgs) check16(a, b, alg, {0, 20});
        }
}

TEST(Convolve16, ScaleFactorsAndSaturation)
{
    const auto a = random16<Qsp16s>(100), b = random16<Qsp16s>(77);
    for (QspAlgType alg : kAlgs) check16(a, b, alg, {-40, -16, -15, -1, 0, 1, 2, 15, 16, 30, 36, 37, 38, 100});
    // Full-scale constants: every sum at the extremes.
    const std::vector<Qsp16s> lo(300, -32768), hi(200, 32767);
    for (QspAlgType alg : kAlgs) {
        check16(lo, lo, alg, {0, 1, 30, 38, 39});
        check16(lo, hi, alg, {0, 1, 30, 38});
    }
}

TEST(Convolve16, ScaleFactorFromWhichEverythingRoundsToZero)
{
    // Two operands of 3: sums of at most 3 products of at most 2^30, so from
    // 33 on (3 2^30 / 2^33 < 1/2) the result is the zero fill, whatever the
    // data; 32 still rounds 3 2^30 / 2^32 = 0.75 up to 1.
    const std::vector<Qsp16s> a(3, -32768);
    Buffer buf(bufferFor(3, 3, qsp16s, qspAlgAuto));
    Qsp16s y[5];
    ASSERT_EQ(qspsConvolve_16s_Sfs(a.data(), a.data(), y, 3, 3, qspAlgAuto, buf.p, 32), qspStsOk);
    EXPECT_EQ(y[2], 1);
    ASSERT_EQ(qspsConvolve_16s_Sfs(a.data(), a.data(), y, 3, 3, qspAlgAuto, buf.p, 33), qspStsOk);
    for (Qsp16s v : y) EXPECT_EQ(v, 0);
}

TEST(Convolve16, LongOperandsStayExact)
{
    check16(random16<Qsp16s>(20000), random16<Qsp16s>(3000), qspAlgAuto, {0, 12}, {0, 1, 2999, 11111, 22998});
    check16(random16<Qsp16s>(5000), random16<Qsp16s>(5000), qspAlgFFT, {0, 12});
}

TEST(Convolve16, HeavyMillionSamplesStayExact)
{
    std::vector<long long> at = {0, 1, 999999, 1000000, 1999997, 1999998};
    std::uniform_int_distribution<long long> pick(0, 1999998);
    for (int i = 0; i < 30; ++i) at.push_back(pick(qsptest::rng()));
    check16(random16<Qsp16s>(1000000), random16<Qsp16s>(1000000), qspAlgAuto, {0, 16}, at);
    const std::vector<Qsp16s> full(1000000, -32768);
    check16(full, full, qspAlgFFT, {0, 30}, at);
}

TEST(Convolve16, ChecksPointersThenLengthsThenAlgorithm)
{
    const Qsp16s a[3] = {1, 2, 3};
    Buffer buf(bufferFor(3, 3, qsp16s, qspAlgAuto));
    qsptest::Guarded<Qsp16s> y(5);
    qsptest::Guarded<Qsp32f> yf(5);
    EXPECT_EQ(qspsConvolve_16s_Sfs(nullptr, a, y.data(), 0, 3, 9, buf.p, 0), qspStsNullPtr);
    EXPECT_EQ(qspsConvolve_16s_Sfs(a, nullptr, y.data(), 3, 3, 0, buf.p, 0), qspStsNullPtr);
    EXPECT_EQ(qspsConvolve_16s_Sfs(a, a, nullptr, 3, 3, 0, buf.p, 0), qspStsNullPtr);
    EXPECT_EQ(qspsConvolve_16s_Sfs(a, a, y.data(), 3, 3, 0, nullptr, 0), qspStsNullPtr);
    EXPECT_EQ(qspsConvolve_16s_Sfs(a, a, y.data(), 3, 0, 9, buf.p, 0), qspStsBadSize);
    EXPECT_EQ(qspsConvolve_16s_Sfs(a, a, y.data(), 3, 3, 9, buf.p, 100), qspStsBadAlgType);
    EXPECT_EQ(qspsConvolve_16s32f(nullptr, a, yf.data(), 3, 3, 0, buf.p), qspStsNullPtr);
    EXPECT_EQ(qspsConvolve_16s32f(a, a, nullptr, 3, 3, 0, buf.p), qspStsNullPtr);
    EXPECT_EQ(qspsConvolve_16s32f(a, a, yf.data(), 3, 3, 0, nullptr), qspStsNullPtr);
    EXPECT_EQ(qspsConvolve_16s32f(a, a, yf.data(), -3, 3, 0, buf.p), qspStsBadSize);
    EXPECT_EQ(qspsConvolve_16s32f(a, a, yf.data(), 3, 3, 3, buf.p), qspStsBadAlgType);
    EXPECT_TRUE(y.untouched() && yf.untouched());
}

// 16-bit operands and destinations at any byte offset give the same values;
// both operands may be the same array.
TEST(Convolve16, MisalignedPointersAndSharedOperand)
{
    const int n1 = 45, n2 = 333, count = n1 + n2 - 1;
    const auto a = random16<Qsp16s>(n1), b = random16<Qsp16s>(n2);
    for (QspAlgType alg : kAlgs) {
        Buffer ref(bufferFor(n1, n2, qsp16s, alg));
        std::vector<Qsp16s> want(count);
        std::vector<Qsp32f> wantf(count);
        ASSERT_EQ(qspsConvolve_16s_Sfs(a.data(), b.data(), want.data(), n1, n2, alg, ref.p, 14), qspStsOk);
        ASSERT_EQ(qspsConvolve_16s32f(a.data(), b.data(), wantf.data(), n1, n2, alg, ref.p), qspStsOk);
        for (int off : {1, 2, 6}) {
            const Shifted<Qsp16s> pa(a.data(), n1, off), pb(b.data(), n2, off + 1), py(nullptr, count, off + 2);
            const Shifted<Qsp32f> pf(nullptr, count, off + 3);
            Buffer buf(bufferFor(n1, n2, qsp16s, alg), off * 7);
            ASSERT_EQ(qspsConvolve_16s_Sfs(pa.p, pb.p, py.p, n1, n2, alg, buf.p, 14), qspStsOk);
            ASSERT_EQ(qspsConvolve_16s32f(pa.p, pb.p, pf.p, n1, n2, alg, buf.p), qspStsOk);
            for (int j = 0; j < count; ++j) {
                ASSERT_EQ(py.at(j), want[j]) << off << " " << j;
                ASSERT_TRUE(qsptest::sameBits(pf.at(j), wantf[j])) << off << " " << j;
            }
        }
        const std::vector<Qsp16s> copy = b;
        Buffer sb(bufferFor(n2, n2, qsp16s, alg));
        std::vector<Qsp16s> self(2 * n2 - 1), other(2 * n2 - 1);
        ASSERT_EQ(qspsConvolve_16s_Sfs(b.data(), b.data(), self.data(), n2, n2, alg, sb.p, 16), qspStsOk);
        ASSERT_EQ(qspsConvolve_16s_Sfs(b.data(), copy.data(), other.data(), n2, n2, alg, sb.p, 16), qspStsOk);
        for (int j = 0; j < 2 * n2 - 1; ++j) ASSERT_EQ(self[j], other[j]) << j;
    }
}

}  // namespace

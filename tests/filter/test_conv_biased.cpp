// SPDX-License-Identifier: BSD-3-Clause
// ConvBiased: windows of the full convolution at every bias, against the
// sum in long double, and the 16-bit form exactly by the scale-factor rule.
#include <climits>

#include "conv_calls.h"

namespace {

using namespace convtest;

TEST(ConvBiased, ChecksPointersThenLengths)
{
    const Qsp32f a[4] = {1, 2, 3, 4};
    const Qsp16s s[4] = {1, 2, 3, 4};
    qsptest::Guarded<Qsp32f> y(4);
    qsptest::Guarded<Qsp16s> y16(4);
    EXPECT_EQ(qspsConvBiased_32f(nullptr, a, y.data(), 0, 4, 4, 0), qspStsNullPtr);
    EXPECT_EQ(qspsConvBiased_32f(a, nullptr, y.data(), 4, 4, 4, 0), qspStsNullPtr);
    EXPECT_EQ(qspsConvBiased_32f(a, a, nullptr, 4, 4, 4, 0), qspStsNullPtr);
    EXPECT_EQ(qspsConvBiased_32f(a, a, y.data(), 0, 4, 4, 0), qspStsBadSize);
    EXPECT_EQ(qspsConvBiased_32f(a, a, y.data(), 4, -4, 4, 0), qspStsBadSize);
    EXPECT_EQ(qspsConvBiased_32f(a, a, y.data(), 4, 4, 0, 0), qspStsBadSize);
    EXPECT_EQ(qspsConvBiased_16s_Sfs(nullptr, s, y16.data(), 0, 4, 4, 0, 0), qspStsNullPtr);
    EXPECT_EQ(qspsConvBiased_16s_Sfs(s, nullptr, y16.data(), 4, 4, 4, 0, 0), qspStsNullPtr);
    EXPECT_EQ(qspsConvBiased_16s_Sfs(s, s, nullptr, 4, 4, 4, 0, 0), qspStsNullPtr);
    EXPECT_EQ(qspsConvBiased_16s_Sfs(s, s, y16.data(), 4, 4, -1, 0, 0), qspStsBadSize);
    EXPECT_TRUE(y.untouched() && y16.untouched());
}

TEST(ConvBiased, EveryBiasOfSmallOperands)
{
    for (int n1 = 1; n1 <= 24; ++n1)
        for (int n2 = 1; n2 <= 24; n2 += (n2 < 8 ? 1 : 5)) {
            const auto a = randomSignal<Qsp32f>(n1), b = randomSignal<Qsp32f>(n2);
            for (int bias = -5; bias <= n1 + n2 + 2; ++bias)
                for (int len : {1, 3, n1 + n2 + 4}) {
                    qsptest::Guarded<Qsp32f> y(len);
                    ASSERT_EQ(qspsConvBiased_32f(a.data(), b.data(), y.data(), n1, n2, len, bias), qspStsOk);
                    ASSERT_TRUE(y.guardsIntact());
                    for (int n = 0; n < len; ++n) {
                        const auto [want, m] = convAt(a.data(), n1, b.data(), n2, (long long)n + bias);
                        ASSERT_LE(deviation(y[n], want), directBound<float>(std::min(n1, n2), m))
                            << n1 << "x" << n2 << " bias " << bias << " n " << n;
                    }
                }
        }
}

TEST(ConvBiased, LongOperandsBothOrders)
{
    const auto a = randomSignal<Qsp32f>(3000), b = randomSignal<Qsp32f>(57);
    for (int bias : {0, 56, 100, 2990})
        for (bool swap : {false, true}) {
            const int len = 200;
            std::vector<Qsp32f> y(len);
            if (swap) ASSERT_EQ(qspsConvBiased_32f(b.data(), a.data(), y.data(), 57, 3000, len, bias), qspStsOk);
            else ASSERT_EQ(qspsConvBiased_32f(a.data(), b.data(), y.data(), 3000, 57, len, bias), qspStsOk);
            for (int n = 0; n < len; ++n) {
                const auto [want, m] = convAt(a.data(), 3000, b.data(), 57, (long long)n + bias);
                ASSERT_LE(deviation(y[n], want), directBound<float>(57, m)) << bias << " " << n;
            }
        }
}

TEST(ConvBiased, SixteenBitIsTheScaleRuleOnTheExactSum)
{
    for (int n1 : {1, 5, 33})
        for (int n2 : {1, 7, 40}) {
            const auto a = random16<Qsp16s>(n1), b = random16<Qsp16s>(n2);
            for (int bias : {-3, 0, 4, n1 + n2 - 2, n1 + n2})
                for (int s : {-17, -16, -3, 0, 1, 2, 14, 31, 36, 37, 60}) {
                    const int len = n1 + n2 + 3;
                    qsptest::Guarded<Qsp16s> y(len);
                    ASSERT_EQ(qspsConvBiased_16s_Sfs(a.data(), b.data(), y.data(), n1, n2, len, bias, s), qspStsOk);
                    ASSERT_TRUE(y.guardsIntact());
                    for (int n = 0; n < len; ++n)
                        ASSERT_EQ(y[n], scaleRule16(convAt16(a.data(), n1, b.data(), n2, (long long)n + bias), s))
                            << n1 << "x" << n2 << " bias " << bias << " sf " << s << " n " << n;
                }
        }
}

// Operands and destination at any byte offset give the same bits; both
// operands may be the same array.
TEST(ConvBiased, MisalignedPointersAndSharedOperand)
{
    const int n1 = 45, n2 = 333, len = 400, bias = -10;
    const auto a = randomSignal<Qsp32f>(n1), b = randomSignal<Qsp32f>(n2);
    const auto a16 = random16<Qsp16s>(n1), b16 = random16<Qsp16s>(n2);
    std::vector<Qsp32f> want(len);
    std::vector<Qsp16s> want16(len);
    ASSERT_EQ(qspsConvBiased_32f(a.data(), b.data(), want.data(), n1, n2, len, bias), qspStsOk);
    ASSERT_EQ(qspsConvBiased_16s_Sfs(a16.data(), b16.data(), want16.data(), n1, n2, len, bias, 9), qspStsOk);
    for (int off : {1, 2, 3, 6}) {
        const Shifted<Qsp32f> pa(a.data(), n1, off), pb(b.data(), n2, off + 1), py(nullptr, len, off + 2);
        ASSERT_EQ(qspsConvBiased_32f(pa.p, pb.p, py.p, n1, n2, len, bias), qspStsOk);
        for (int n = 0; n < len; ++n) ASSERT_TRUE(qsptest::sameBits(py.at(n), want[n])) << off << " " << n;
        const Shifted<Qsp16s> qa(a16.data(), n1, off), qb(b16.data(), n2, off + 1), qy(nullptr, len, off + 2);
        ASSERT_EQ(qspsConvBiased_16s_Sfs(qa.p, qb.p, qy.p, n1, n2, len, bias, 9), qspStsOk);
        for (int n = 0; n < len; ++n) ASSERT_EQ(qy.at(n), want16[n]) << off << " " << n;
    }
    const std::vector<Qsp32f> copy = b;
    const std::vector<Qsp16s> copy16 = b16;
    std::vector<Qsp32f> self(len);
    std::vector<Qsp16s> self16(len);
    ASSERT_EQ(qspsConvBiased_32f(b.data(), b.data(), self.data(), n2, n2, len, bias + 200), qspStsOk);
    ASSERT_EQ(qspsConvBiased_32f(b.data(), copy.data(), want.data(), n2, n2, len, bias + 200), qspStsOk);
    ASSERT_EQ(qspsConvBiased_16s_Sfs(b16.data(), b16.data(), self16.data(), n2, n2, len, bias + 200, 20), qspStsOk);
    ASSERT_EQ(qspsConvBiased_16s_Sfs(b16.data(), copy16.data(), want16.data(), n2, n2, len, bias + 200, 20), qspStsOk);
    for (int n = 0; n < len; ++n) {
        ASSERT_TRUE(qsptest::sameBits(self[n], want[n])) << n;
        ASSERT_EQ(self16[n], want16[n]) << n;
    }
}

// Biases at the ends of the int range: windows far outside the result are
// zeros, and the window that ends exactly at the result's first value
// holds it last.
TEST(ConvBiased, BiasesAtTheEndsOfTheIntRange)
{
    const Qsp32f a[3] = {1, 2, 3}, b[2] = {4, 5};
    const Qsp16s a16[3] = {1, 2, 3}, b16[2] = {4, 5};
    const int len = 7;
    for (int bias : {INT_MIN, INT_MIN + 1, -1000000, INT_MAX - len + 1, INT_MAX, -len}) {
        qsptest::Guarded<Qsp32f> y(len);
        qsptest::Guarded<Qsp16s> y16(len);
        ASSERT_EQ(qspsConvBiased_32f(a, b, y.data(), 3, 2, len, bias), qspStsOk);
        ASSERT_EQ(qspsConvBiased_16s_Sfs(a16, b16, y16.data(), 3, 2, len, bias, 0), qspStsOk);
        ASSERT_TRUE(y.guardsIntact() && y16.guardsIntact());
        for (int n = 0; n < len; ++n) {
            EXPECT_EQ(y[n], 0.0f) << bias << " " << n;
            EXPECT_EQ(y16[n], 0) << bias << " " << n;
        }
    }
    Qsp32f y[len];
    ASSERT_EQ(qspsConvBiased_32f(a, b, y, 3, 2, len, -(len - 1)), qspStsOk);
    for (int n = 0; n < len - 1; ++n) EXPECT_EQ(y[n], 0.0f);
    EXPECT_EQ(y[len - 1], 4.0f);
}

}  // namespace

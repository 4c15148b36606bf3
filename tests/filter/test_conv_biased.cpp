// SPDX-License-Identifier: BSD-3-Clause
// ConvBiased: windows of the full convolution at every bias, against the
// sum in long double, and the 16-bit form exactly by the scale-factor rule.
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

}  // namespace

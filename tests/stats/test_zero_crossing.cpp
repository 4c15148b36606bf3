// SPDX-License-Identifier: BSD-3-Clause
// ZeroCrossing: the three measures of sign changes.
#include "qsp_test.h"

namespace {

template <class T>
double reference(const std::vector<T>& v, int type)
{
    long long count = 0;
    auto sign = [](T x) { return x > 0 ? 1 : (x < 0 ? -1 : 0); };
    for (size_t i = 1; i < v.size(); ++i) {
        if (type == qspZCR) count += (v[i - 1] >= 0) != (v[i] >= 0);
        if (type == qspZCXor) count += std::signbit(double(v[i - 1])) != std::signbit(double(v[i]));
        if (type == qspZCC) count += std::abs(sign(v[i]) - sign(v[i - 1]));
    }
    return double(count) / (type == qspZCC ? 2.0 * double(v.size() - 1) : double(v.size() - 1));
}

template <class T, class D>
void checkZeroCrossing(QspStatus (*fn)(const T*, int, D*, QspZCType))
{
    for (int len : {2, 3, 10, 999}) {
        std::vector<T> v(len);
        for (auto& x : v) x = T(int(qsptest::rng()() % 5) - 2);
        if constexpr (std::is_floating_point_v<T>) v[len / 2] = -T(0);
        for (int type : {qspZCR, qspZCXor, qspZCC}) {
            D got;
            ASSERT_EQ(fn(v.data(), len, &got, type), qspStsOk);
            ASSERT_EQ(got, D(reference(v, type))) << len << " type " << type;
        }
    }
    // +1, 0, -1, 0, +1: ZCR counts 0 as positive (one change, 0 to -1, and
    // one back), ZCC counts half steps.
    const std::vector<T> w = {1, 0, -1, 0, 1};
    D got;
    ASSERT_EQ(fn(w.data(), 5, &got, qspZCR), qspStsOk);
    EXPECT_EQ(got, D(0.5));
    ASSERT_EQ(fn(w.data(), 5, &got, qspZCC), qspStsOk);
    EXPECT_EQ(got, D(0.5));
    qsptest::Guarded<D> out(1);
    EXPECT_EQ(fn(nullptr, 5, out.data(), qspZCR), qspStsNullPtr);
    EXPECT_EQ(fn(w.data(), 5, nullptr, qspZCR), qspStsNullPtr);
    EXPECT_EQ(fn(w.data(), 1, out.data(), qspZCR), qspStsBadSize);
    EXPECT_EQ(fn(w.data(), 1, out.data(), 7), qspStsBadSize);
    EXPECT_EQ(fn(w.data(), 5, out.data(), 3), qspStsBadArgument);
    EXPECT_EQ(fn(w.data(), 5, out.data(), -1), qspStsBadArgument);
    EXPECT_TRUE(out.untouched());
}

}  // namespace

TEST(ZeroCrossing, Int16) { checkZeroCrossing<Qsp16s, Qsp32f>(qspsZeroCrossing_16s32f); }
TEST(ZeroCrossing, Float32) { checkZeroCrossing<Qsp32f, Qsp32f>(qspsZeroCrossing_32f); }
TEST(ZeroCrossing, Float64) { checkZeroCrossing<Qsp64f, Qsp64f>(qspsZeroCrossing_64f); }

TEST(ZeroCrossing, MinusZeroHasItsSignBit)
{
    const std::vector<float> v = {1.0f, -0.0f, 1.0f};
    float got;
    ASSERT_EQ(qspsZeroCrossing_32f(v.data(), 3, &got, qspZCXor), qspStsOk);
    EXPECT_EQ(got, 1.0f);
    ASSERT_EQ(qspsZeroCrossing_32f(v.data(), 3, &got, qspZCR), qspStsOk);
    EXPECT_EQ(got, 0.0f);
}

// SPDX-License-Identifier: BSD-3-Clause
// WTHaar: one Haar level forward and back, floating (to rounding) and 16-bit
// (the scale-factor rule applied to the exact sums and differences, the
// halving folded into the shift), odd lengths, and the status paths.
#include <cmath>
#include <limits>
#include <vector>

#include "qsp_test.h"

namespace {

using qsptest::Guarded;

template <class T>
void floating(int n)
{
    std::vector<T> x(n), lo((n + 1) / 2), hi(n / 2 + 1), y(n);
    for (int i = 0; i < n; ++i) x[i] = T(std::sin(0.7 * i) * 100 + (i % 3));
    QspStatus st;
    if constexpr (sizeof(T) == 4)
        st = qspsWTHaarFwd_32f(x.data(), lo.data(), hi.data(), n);
    else
        st = qspsWTHaarFwd_64f(x.data(), lo.data(), hi.data(), n);
    ASSERT_EQ(st, qspStsOk);
    for (int k = 0; k < n / 2; ++k) {
        // (a + b) / 2 and (b - a) / 2 rounded once: halving is exact
        EXPECT_EQ(lo[k], T((long double)x[2 * k] + x[2 * k + 1]) / 2) << n << " " << k;
        EXPECT_EQ(hi[k], T((long double)x[2 * k + 1] - x[2 * k]) / 2) << n << " " << k;
    }
    if (n & 1) EXPECT_EQ(lo[n / 2], x[n - 1] / 2);
    if constexpr (sizeof(T) == 4)
        st = qspsWTHaarInv_32f(lo.data(), hi.data(), y.data(), n);
    else
        st = qspsWTHaarInv_64f(lo.data(), hi.data(), y.data(), n);
    ASSERT_EQ(st, qspStsOk);
    // each output is two roundings away from the input
    for (int i = 0; i < n; ++i) EXPECT_LE(std::fabs(y[i] - x[i]), 2 * std::numeric_limits<T>::epsilon() * 128) << n;
    if (n & 1) EXPECT_EQ(y[n - 1], x[n - 1]);
}

TEST(WTHaar, FloatingForwardAndInverse)
{
    for (int n = 1; n <= 67; ++n) {
        floating<float>(n);
        floating<double>(n);
    }
}

// v * 2^-s rounded to nearest, ties to even, saturated to 16 bits.
Qsp16s rule(long long v, long long s)
{
    const long long e = -s < -100 ? -100 : -s > 100 ? 100 : -s;
    const long double r = ldexpl((long double)v, int(e));
    long double q = nearbyintl(r);
    if (q > 32767) q = 32767;
    if (q < -32768) q = -32768;
    return Qsp16s(q);
}

TEST(WTHaar, Integer16)
{
    std::vector<Qsp16s> x(101);
    std::mt19937 g(5);
    for (auto& v : x) v = Qsp16s(g());
    x[0] = 32767, x[1] = 32767, x[2] = -32768, x[3] = -32768, x[4] = 1, x[5] = 2, x[6] = -1, x[7] = 2;
    for (int sf : {-20, -16, -2, -1, 0, 1, 2, 5, 15, 16, 17, 30, std::numeric_limits<int>::max(),
                   std::numeric_limits<int>::min()})
        for (int n : {1, 2, 7, 8, 101}) {
            std::vector<Qsp16s> lo((n + 1) / 2), hi(n / 2 + 1), y(n);
            ASSERT_EQ(qspsWTHaarFwd_16s_Sfs(x.data(), lo.data(), hi.data(), n, sf), qspStsOk);
            for (int k = 0; k < n / 2; ++k) {
                EXPECT_EQ(lo[k], rule((long long)x[2 * k] + x[2 * k + 1], (long long)sf + 1)) << sf << " " << k;
                EXPECT_EQ(hi[k], rule((long long)x[2 * k + 1] - x[2 * k], (long long)sf + 1)) << sf << " " << k;
            }
            if (n & 1) EXPECT_EQ(lo[n / 2], rule(x[n - 1], (long long)sf + 1));
            ASSERT_EQ(qspsWTHaarInv_16s_Sfs(x.data(), x.data() + 50, y.data(), n, sf), qspStsOk);
            for (int k = 0; k < n / 2; ++k) {
                EXPECT_EQ(y[2 * k], rule((long long)x[k] - x[50 + k], sf)) << sf;
                EXPECT_EQ(y[2 * k + 1], rule((long long)x[k] + x[50 + k], sf)) << sf;
            }
            if (n & 1) EXPECT_EQ(y[n - 1], rule(x[n / 2], (long long)sf - 1)) << sf;
        }
}

// Forward with -1 and inverse with 1 lose nothing while the sums fit.
TEST(WTHaar, LosslessPair)
{
    std::vector<Qsp16s> x(99), lo(50), hi(50), y(99);
    for (int i = 0; i < 99; ++i) x[i] = Qsp16s((i * 3331) % 32768 - 16384);
    ASSERT_EQ(qspsWTHaarFwd_16s_Sfs(x.data(), lo.data(), hi.data(), 99, -1), qspStsOk);
    ASSERT_EQ(qspsWTHaarInv_16s_Sfs(lo.data(), hi.data(), y.data(), 99, 1), qspStsOk);
    EXPECT_EQ(x, y);
}

TEST(WTHaar, Checks)
{
    std::vector<float> x(8);
    Guarded<float> lo(4), hi(4), y(8);
    EXPECT_EQ(qspsWTHaarFwd_32f(nullptr, lo.data(), hi.data(), 8), qspStsNullPtr);
    EXPECT_EQ(qspsWTHaarFwd_32f(x.data(), nullptr, hi.data(), 8), qspStsNullPtr);
    EXPECT_EQ(qspsWTHaarFwd_32f(x.data(), lo.data(), nullptr, 8), qspStsNullPtr);
    EXPECT_EQ(qspsWTHaarFwd_32f(nullptr, lo.data(), hi.data(), 0), qspStsNullPtr) << "pointers first";
    EXPECT_EQ(qspsWTHaarFwd_32f(x.data(), lo.data(), hi.data(), 0), qspStsBadSize);
    EXPECT_EQ(qspsWTHaarInv_32f(x.data(), x.data(), y.data(), -2), qspStsBadSize);
    EXPECT_EQ(qspsWTHaarInv_32f(x.data(), nullptr, y.data(), 2), qspStsNullPtr);
    std::vector<double> d(8);
    EXPECT_EQ(qspsWTHaarFwd_64f(d.data(), nullptr, d.data(), 8), qspStsNullPtr);
    EXPECT_EQ(qspsWTHaarInv_64f(d.data(), d.data(), nullptr, 8), qspStsNullPtr);
    std::vector<Qsp16s> s(8);
    EXPECT_EQ(qspsWTHaarFwd_16s_Sfs(s.data(), s.data(), nullptr, 8, 0), qspStsNullPtr);
    EXPECT_EQ(qspsWTHaarInv_16s_Sfs(s.data(), s.data(), reinterpret_cast<Qsp16s*>(y.data()), 0, 0), qspStsBadSize);
    EXPECT_TRUE(lo.untouched() && hi.untouched() && y.untouched());
}

}  // namespace

// SPDX-License-Identifier: BSD-3-Clause
// VectorJaehne: magn sin(pi n^2 / 2len) in every type, rounded to nearest
// with ties to even and saturated.
#include "signal_reference.h"

using sigref::LD;

namespace {

template <class T, class M>
using JaehneFn = QspStatus (*)(T*, int, M);

// sin(pi n^2 / 2len) in long double after the exact reduction of n^2 mod
// 4len; sin(pi/6) is 1/2 exactly.
LD chirp(long long n, int len)
{
    const long long period = 4LL * len, q = (long long)((__int128)n * n % period);
    if (6 * q == period / 2 || 6 * q == 5 * (period / 2)) return 0.5L;      // pi/6, 5pi/6
    if (6 * q == 7 * (period / 2) || 6 * q == 11 * (period / 2)) return -0.5L;  // 7pi/6, 11pi/6
    return sinl(sigref::kPi * LD(q) / LD(2 * len));
}

template <class T, class M>
void expectJaehne(JaehneFn<T, M> fn, M magn)
{
    {
        qsptest::Guarded<T> d(8);
        EXPECT_EQ(fn(nullptr, 8, magn), qspStsNullPtr);
        EXPECT_EQ(fn(nullptr, 0, M(0)), qspStsNullPtr);
        EXPECT_EQ(fn(d.data(), 0, M(0)), qspStsBadSize);
        EXPECT_EQ(fn(d.data(), -2, magn), qspStsBadSize);
        EXPECT_EQ(fn(d.data(), 8, M(0)), qspStsBadArgument);
        if constexpr (std::is_signed_v<M>) EXPECT_EQ(fn(d.data(), 8, M(-1)), qspStsBadArgument);
        EXPECT_TRUE(d.untouched());
    }
    for (int len : {1, 2, 3, 6, 7, 12, 100, 511, 512, 513, 3000}) {
        qsptest::Guarded<T> d(len);
        ASSERT_EQ(fn(d.data(), len, magn), qspStsOk);
        EXPECT_TRUE(d.guardsIntact());
        for (int n = 0; n < len; ++n) {
            const LD v = LD(magn) * chirp(n, len);
            ASSERT_TRUE(sigref::within(d[n], v, fabsl(v) * 1e-15L)) << "len " << len << " n " << n << " got "
                                                                     << double(d[n]) << " want " << double(v);
        }
    }
}

}  // namespace

TEST(VectorJaehne, EveryType)
{
    expectJaehne(qspsVectorJaehne_8u, Qsp8u(255));
    expectJaehne(qspsVectorJaehne_8u, Qsp8u(3));
    expectJaehne(qspsVectorJaehne_8s, Qsp8s(127));
    expectJaehne(qspsVectorJaehne_16u, Qsp16u(65535));
    expectJaehne(qspsVectorJaehne_16s, Qsp16s(32767));
    expectJaehne(qspsVectorJaehne_16s, Qsp16s(1));
    expectJaehne(qspsVectorJaehne_32s, Qsp32s(2147483647));
    expectJaehne(qspsVectorJaehne_32s, Qsp32s(1000));
}

TEST(VectorJaehne, ExactHalvesRoundToEven)
{
    // len 3: n = 1 gives sin(pi/6) = 1/2 exactly, n = 2 sin(2pi/3).
    Qsp16s s[3];
    ASSERT_EQ(qspsVectorJaehne_16s(s, 3, 3), qspStsOk);
    EXPECT_EQ(s[0], 0);
    EXPECT_EQ(s[1], 2);  // 1.5
    EXPECT_EQ(s[2], 3);  // 2.598
    ASSERT_EQ(qspsVectorJaehne_16s(s, 3, 5), qspStsOk);
    EXPECT_EQ(s[1], 2);  // 2.5
    // Unsigned types keep the positive half-waves: len 4, n = 3 gives
    // sin(9 pi/8) < 0.
    Qsp8u b[4];
    ASSERT_EQ(qspsVectorJaehne_8u(b, 4, 100), qspStsOk);
    EXPECT_EQ(b[1], 38);   // 100 sin(pi/8)
    EXPECT_EQ(b[2], 100);  // 100 sin(pi/2)
    EXPECT_EQ(b[3], 0);
}

// SPDX-License-Identifier: BSD-3-Clause
// MaxEvery: the element-wise maximum of two vectors.
#include "extremum_reference.h"

namespace {

// pDst[i] = (a > b) ? a : b: where neither is greater (equal values of
// either sign, or a NaN) the second operand's element.
template <class T>
T larger(T a, T b)
{
    return a > b ? a : b;
}

template <class T>
std::vector<T> mixed(int len)
{
    std::vector<T> v = exref::randomValues<T>(len, 5);
    if constexpr (std::is_floating_point_v<T>)
        for (int i = 0; i < len; i += 7) v[i] = i % 2 ? exref::quietNaN<T>() : -T(0);
    return v;
}

template <class T>
void checkEvery(QspStatus (*fn)(const T*, const T*, T*, int), QspStatus (*fnI)(const T*, T*, int))
{
    for (int len : exref::lengths()) {
        const std::vector<T> a = mixed<T>(len), b = mixed<T>(len);
        if (fn) {
            qsptest::Guarded<T> dst(len);
            ASSERT_EQ(fn(a.data(), b.data(), dst.data(), len), qspStsOk);
            for (int i = 0; i < len; ++i) ASSERT_TRUE(exref::sameBits(dst[i], larger(a[i], b[i]))) << i;
            ASSERT_TRUE(dst.guardsIntact());
        }
        qsptest::Guarded<T> sd(len);
        std::memcpy(sd.data(), b.data(), len * sizeof(T));
        ASSERT_EQ(fnI(a.data(), sd.data(), len), qspStsOk);
        for (int i = 0; i < len; ++i) ASSERT_TRUE(exref::sameBits(sd[i], larger(a[i], b[i]))) << i;
        ASSERT_TRUE(sd.guardsIntact());
    }
    qsptest::Guarded<T> x(4), y(4), d(4);
    if (fn) {
        EXPECT_EQ(fn(nullptr, y.data(), d.data(), 4), qspStsNullPtr);
        EXPECT_EQ(fn(x.data(), nullptr, d.data(), 4), qspStsNullPtr);
        EXPECT_EQ(fn(x.data(), y.data(), nullptr, 0), qspStsNullPtr);
        EXPECT_EQ(fn(x.data(), y.data(), d.data(), 0), qspStsBadSize);
        EXPECT_EQ(fn(x.data(), y.data(), d.data(), -1), qspStsBadSize);
    }
    EXPECT_EQ(fnI(nullptr, d.data(), 4), qspStsNullPtr);
    EXPECT_EQ(fnI(x.data(), nullptr, 0), qspStsNullPtr);
    EXPECT_EQ(fnI(x.data(), d.data(), 0), qspStsBadSize);
    EXPECT_TRUE(d.untouched());
}

}  // namespace

TEST(MaxEvery, ElementWiseLarger)
{
    checkEvery<Qsp8u>(qspsMaxEvery_8u, qspsMaxEvery_8u_I);
    checkEvery<Qsp16u>(qspsMaxEvery_16u, qspsMaxEvery_16u_I);
    checkEvery<Qsp16s>(nullptr, qspsMaxEvery_16s_I);
    checkEvery<Qsp32s>(nullptr, qspsMaxEvery_32s_I);
    checkEvery<Qsp32f>(qspsMaxEvery_32f, qspsMaxEvery_32f_I);
    checkEvery<Qsp64f>(qspsMaxEvery_64f, qspsMaxEvery_64f_I);
}

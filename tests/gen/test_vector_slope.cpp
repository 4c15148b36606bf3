// SPDX-License-Identifier: BSD-3-Clause
// VectorSlope: offset + slope n in every type, rounded to nearest with ties
// to even and saturated for the integers.
#include "signal_reference.h"

using sigref::LD;

namespace {

template <class T>
using SlopeFn = QspStatus (*)(T*, int, Qsp64f, Qsp64f);

// offset + slope * n as the library forms it (one rounding for the
// product, one for the sum), then the element type's rounding.
template <class T>
T expected(double offset, double slope, int n)
{
    const double v = offset + slope * double(n);
    if constexpr (std::is_floating_point_v<T>) {
        return T(v);
    } else {
        if (v != v) return 0;
        const LD r = nearbyintl(LD(v));
        if (r >= LD(std::numeric_limits<T>::max())) return std::numeric_limits<T>::max();
        if (r <= LD(std::numeric_limits<T>::min())) return std::numeric_limits<T>::min();
        return T(r);
    }
}

template <class T>
void expectSlope(SlopeFn<T> fn)
{
    {
        qsptest::Guarded<T> d(8);
        EXPECT_EQ(fn(nullptr, 8, 0, 1), qspStsNullPtr);
        EXPECT_EQ(fn(nullptr, 0, 0, 1), qspStsNullPtr);
        EXPECT_EQ(fn(d.data(), 0, 0, 1), qspStsBadSize);
        EXPECT_EQ(fn(d.data(), -1, NAN, NAN), qspStsBadSize);
        EXPECT_TRUE(d.untouched());
    }
    const double cases[][2] = {{0, 1},       {-3.5, 0.5},  {100, -0.25},    {1e9, 1e9},       {-1e19, 3e17},
                               {0.5, 1},     {2.5, -1},    {-128.5, 0.125}, {1e300, -1e300},  {NAN, 1},
                               {0, INFINITY}, {-INFINITY, 0}, {0.1, 0.7},   {65535.5, -0.5}, {4294967295.0, 1}};
    for (const auto& c : cases) {
        for (int len : {1, 2, 3, 511, 512, 513, 2000}) {
            qsptest::Guarded<T> d(len);
            ASSERT_EQ(fn(d.data(), len, c[0], c[1]), qspStsOk);
            EXPECT_TRUE(d.guardsIntact());
            for (int n = 0; n < len; ++n) {
                const T want = expected<T>(c[0], c[1], n);
                ASSERT_TRUE(qsptest::sameBits(d[n], want) || (want != want && d[n] != d[n]))
                    << c[0] << " + " << c[1] << " * " << n << ": got " << double(d[n]) << " want " << double(want);
            }
        }
    }
}

}  // namespace

TEST(VectorSlope, EveryType)
{
    expectSlope(qspsVectorSlope_8u);
    expectSlope(qspsVectorSlope_8s);
    expectSlope(qspsVectorSlope_16u);
    expectSlope(qspsVectorSlope_16s);
    expectSlope(qspsVectorSlope_32u);
    expectSlope(qspsVectorSlope_32s);
    expectSlope(qspsVectorSlope_64s);
    expectSlope(qspsVectorSlope_32f);
    expectSlope(qspsVectorSlope_64f);
}

TEST(VectorSlope, TiesRoundToEvenAndEndsSaturate)
{
    Qsp16s s[4];
    ASSERT_EQ(qspsVectorSlope_16s(s, 4, 0.5, 1.0), qspStsOk);  // 0.5 1.5 2.5 3.5
    EXPECT_EQ(s[0], 0);
    EXPECT_EQ(s[1], 2);
    EXPECT_EQ(s[2], 2);
    EXPECT_EQ(s[3], 4);
    Qsp8u b[3];
    ASSERT_EQ(qspsVectorSlope_8u(b, 3, -1.0, 200.0), qspStsOk);
    EXPECT_EQ(b[0], 0);
    EXPECT_EQ(b[1], 199);
    EXPECT_EQ(b[2], 255);
    Qsp64s l[2];
    ASSERT_EQ(qspsVectorSlope_64s(l, 2, -1e19, 2e19), qspStsOk);
    EXPECT_EQ(l[0], std::numeric_limits<Qsp64s>::min());
    EXPECT_EQ(l[1], std::numeric_limits<Qsp64s>::max());
    Qsp32u u[2];
    ASSERT_EQ(qspsVectorSlope_32u(u, 2, 4294967294.5, 1.0), qspStsOk);
    EXPECT_EQ(u[0], 4294967294u);
    EXPECT_EQ(u[1], 4294967295u);
}

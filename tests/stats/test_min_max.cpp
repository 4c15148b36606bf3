// SPDX-License-Identifier: BSD-3-Clause
// MinMax: both extremes in one pass.
#include "extremum_reference.h"

using exref::Want;

namespace {

template <class T>
void checkMinMax(QspStatus (*fn)(const T*, int, T*, T*), bool withNaNs)
{
    for (int len : exref::lengths()) {
        std::vector<T> v = exref::randomValues<T>(len, len % 2 ? 9 : 0);
        if constexpr (std::is_floating_point_v<T>)
            if (withNaNs) v[qsptest::rng()() % len] = exref::quietNaN<T>();
        for (int offset = 0; offset < 4; ++offset) {
            exref::Placed<T> in(v, offset);
            qsptest::Guarded<T> lo(1), hi(1);
            ASSERT_EQ(fn(in.data, len, lo.data(), hi.data()), qspStsOk);
            ASSERT_TRUE(exref::sameBits(lo[0], exref::laneRule<T, false>(in.data, len, Want::Smallest)))
                << "len " << len << " offset " << offset;
            ASSERT_TRUE(exref::sameBits(hi[0], exref::laneRule<T, false>(in.data, len, Want::Largest)))
                << "len " << len << " offset " << offset;
            if (!withNaNs) {
                ASSERT_TRUE(lo[0] == exref::extremeOfNumbers<T>(v, Want::Smallest));
                ASSERT_TRUE(hi[0] == exref::extremeOfNumbers<T>(v, Want::Largest));
            }
            ASSERT_TRUE(lo.guardsIntact() && hi.guardsIntact());
        }
    }
}

template <class T, class Fn>
void checkStatuses(Fn fn, bool lengthFirst = false)
{
    qsptest::Guarded<T> src(4), lo(1), hi(1);
    EXPECT_EQ(fn(nullptr, 4, lo.data(), hi.data()), qspStsNullPtr);
    EXPECT_EQ(fn(src.data(), 4, nullptr, hi.data()), qspStsNullPtr);
    EXPECT_EQ(fn(src.data(), 4, lo.data(), nullptr), qspStsNullPtr);
    EXPECT_EQ(fn(src.data(), 0, lo.data(), nullptr), lengthFirst ? qspStsBadSize : qspStsNullPtr);
    EXPECT_EQ(fn(src.data(), 0, lo.data(), hi.data()), qspStsBadSize);
    EXPECT_EQ(fn(src.data(), -9, lo.data(), hi.data()), qspStsBadSize);
    EXPECT_TRUE(lo.untouched() && hi.untouched());
}

}  // namespace

TEST(MinMax, Statuses)
{
    checkStatuses<Qsp8u>(qspsMinMax_8u);
    checkStatuses<Qsp16s>(qspsMinMax_16s);
    checkStatuses<Qsp16u>(qspsMinMax_16u);
    checkStatuses<Qsp32f>(qspsMinMax_32f);
    checkStatuses<Qsp32s>(qspsMinMax_32s);
    checkStatuses<Qsp32u>(qspsMinMax_32u);
    checkStatuses<Qsp64f>(qspsMinMax_64f);
    checkStatuses<Qsp32f>(qspsMinMax_32f_L, true);
    checkStatuses<Qsp64f>(qspsMinMax_64f_L, true);
}

TEST(MinMax, BothExtremesByTheLaneStep)
{
    checkMinMax<Qsp8u>(qspsMinMax_8u, false);
    checkMinMax<Qsp16s>(qspsMinMax_16s, false);
    checkMinMax<Qsp16u>(qspsMinMax_16u, false);
    checkMinMax<Qsp32s>(qspsMinMax_32s, false);
    checkMinMax<Qsp32u>(qspsMinMax_32u, false);
    checkMinMax<Qsp32f>(qspsMinMax_32f, false);
    checkMinMax<Qsp64f>(qspsMinMax_64f, false);
    checkMinMax<Qsp32f>(qspsMinMax_32f, true);
    checkMinMax<Qsp64f>(qspsMinMax_64f, true);
}

TEST(MinMax, LongLengthFormsMatch)
{
    for (int len : {1, 33, 1000, 4097}) {
        std::vector<float> f = exref::randomValues<float>(len, 0);
        float lo, hi, loL, hiL;
        ASSERT_EQ(qspsMinMax_32f(f.data(), len, &lo, &hi), qspStsOk);
        ASSERT_EQ(qspsMinMax_32f_L(f.data(), len, &loL, &hiL), qspStsOk);
        EXPECT_TRUE(exref::sameBits(lo, loL) && exref::sameBits(hi, hiL));
        std::vector<double> d = exref::randomValues<double>(len, 0);
        double dlo, dhi, dloL, dhiL;
        ASSERT_EQ(qspsMinMax_64f(d.data(), len, &dlo, &dhi), qspStsOk);
        ASSERT_EQ(qspsMinMax_64f_L(d.data(), len, &dloL, &dhiL), qspStsOk);
        EXPECT_TRUE(exref::sameBits(dlo, dloL) && exref::sameBits(dhi, dhiL));
    }
}

TEST(MinMax, UnsignedRangesAreUnsigned)
{
    std::vector<Qsp32u> u = {5, 0xFFFFFFFFu, 0, 7};
    Qsp32u lo, hi;
    ASSERT_EQ(qspsMinMax_32u(u.data(), 4, &lo, &hi), qspStsOk);
    EXPECT_EQ(lo, 0u);
    EXPECT_EQ(hi, 0xFFFFFFFFu);
    std::vector<Qsp8u> b(100, 128);
    b[50] = 255;
    b[60] = 1;
    Qsp8u blo, bhi;
    ASSERT_EQ(qspsMinMax_8u(b.data(), 100, &blo, &bhi), qspStsOk);
    EXPECT_EQ(blo, 1);
    EXPECT_EQ(bhi, 255);
}

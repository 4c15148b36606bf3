// SPDX-License-Identifier: BSD-3-Clause
// MinMaxIndx: both extremes with the lowest index of each.
#include "extremum_reference.h"

using exref::Want;

namespace {

// The position of a value: the first element that compares equal to it,
// 0 when none does.
template <class T>
long long firstEqual(const std::vector<T>& v, T value)
{
    for (size_t i = 0; i < v.size(); ++i)
        if (v[i] == value) return (long long)i;
    return 0;
}

template <class T, class Fn>
void checkMinMaxIndx(Fn fn, bool withNaNs)
{
    using Args = typename exref::FnArgs<Fn>::type;
    using Len = std::tuple_element_t<1, Args>;
    using I = std::remove_pointer_t<std::tuple_element_t<3, Args>>;
    for (int len : exref::lengths()) {
        for (int distinct : {3, 0}) {
            std::vector<T> v = exref::randomValues<T>(len, distinct);
            if constexpr (std::is_floating_point_v<T>)
                if (withNaNs) v[qsptest::rng()() % len] = exref::quietNaN<T>();
            for (int offset = 0; offset < 4; offset += 3) {
                exref::Placed<T> in(v, offset);
                qsptest::Guarded<T> lo(1), hi(1);
                qsptest::Guarded<I> loAt(1), hiAt(1);
                ASSERT_EQ(fn(in.data, Len(len), lo.data(), loAt.data(), hi.data(), hiAt.data()), qspStsOk);
                const T wantLo = exref::laneRule<T, false>(in.data, len, Want::Smallest);
                const T wantHi = exref::laneRule<T, false>(in.data, len, Want::Largest);
                ASSERT_TRUE(exref::sameBits(lo[0], wantLo)) << "len " << len;
                ASSERT_TRUE(exref::sameBits(hi[0], wantHi)) << "len " << len;
                ASSERT_EQ(loAt[0], firstEqual(v, wantLo)) << "len " << len;
                ASSERT_EQ(hiAt[0], firstEqual(v, wantHi)) << "len " << len;
                if (!withNaNs) {
                    ASSERT_EQ(loAt[0], exref::indexOfExtreme<T>(v, Want::Smallest));
                    ASSERT_EQ(hiAt[0], exref::indexOfExtreme<T>(v, Want::Largest));
                }
                ASSERT_TRUE(lo.guardsIntact() && hi.guardsIntact() && loAt.guardsIntact() && hiAt.guardsIntact());
            }
        }
    }
}

template <class T, class Fn>
void checkStatuses(Fn fn, bool lengthFirst = false)
{
    using I = std::remove_pointer_t<std::tuple_element_t<3, typename exref::FnArgs<Fn>::type>>;
    qsptest::Guarded<T> src(4), lo(1), hi(1);
    qsptest::Guarded<I> loAt(1), hiAt(1);
    EXPECT_EQ(fn(nullptr, 4, lo.data(), loAt.data(), hi.data(), hiAt.data()), qspStsNullPtr);
    EXPECT_EQ(fn(src.data(), 4, nullptr, loAt.data(), hi.data(), hiAt.data()), qspStsNullPtr);
    EXPECT_EQ(fn(src.data(), 4, lo.data(), nullptr, hi.data(), hiAt.data()), qspStsNullPtr);
    EXPECT_EQ(fn(src.data(), 4, lo.data(), loAt.data(), nullptr, hiAt.data()), qspStsNullPtr);
    EXPECT_EQ(fn(src.data(), 4, lo.data(), loAt.data(), hi.data(), nullptr), qspStsNullPtr);
    EXPECT_EQ(fn(src.data(), 0, lo.data(), loAt.data(), hi.data(), nullptr),
              lengthFirst ? qspStsBadSize : qspStsNullPtr);
    EXPECT_EQ(fn(src.data(), 0, lo.data(), loAt.data(), hi.data(), hiAt.data()), qspStsBadSize);
    EXPECT_EQ(fn(src.data(), -1, lo.data(), loAt.data(), hi.data(), hiAt.data()), qspStsBadSize);
    EXPECT_TRUE(lo.untouched() && hi.untouched() && loAt.untouched() && hiAt.untouched());
}

}  // namespace

TEST(MinMaxIndx, Statuses)
{
    checkStatuses<Qsp8u>(qspsMinMaxIndx_8u);
    checkStatuses<Qsp16s>(qspsMinMaxIndx_16s);
    checkStatuses<Qsp16u>(qspsMinMaxIndx_16u);
    checkStatuses<Qsp32f>(qspsMinMaxIndx_32f);
    checkStatuses<Qsp32s>(qspsMinMaxIndx_32s);
    checkStatuses<Qsp32u>(qspsMinMaxIndx_32u);
    checkStatuses<Qsp64f>(qspsMinMaxIndx_64f);
    checkStatuses<Qsp32f>(qspsMinMaxIndx_32f_L, true);
    checkStatuses<Qsp64f>(qspsMinMaxIndx_64f_L, true);
}

TEST(MinMaxIndx, ValuesThenFirstPositions)
{
    checkMinMaxIndx<Qsp8u>(qspsMinMaxIndx_8u, false);
    checkMinMaxIndx<Qsp16s>(qspsMinMaxIndx_16s, false);
    checkMinMaxIndx<Qsp16u>(qspsMinMaxIndx_16u, false);
    checkMinMaxIndx<Qsp32s>(qspsMinMaxIndx_32s, false);
    checkMinMaxIndx<Qsp32u>(qspsMinMaxIndx_32u, false);
    checkMinMaxIndx<Qsp32f>(qspsMinMaxIndx_32f, false);
    checkMinMaxIndx<Qsp64f>(qspsMinMaxIndx_64f, false);
    checkMinMaxIndx<Qsp32f>(qspsMinMaxIndx_32f_L, false);
    checkMinMaxIndx<Qsp64f>(qspsMinMaxIndx_64f_L, false);
    checkMinMaxIndx<Qsp32f>(qspsMinMaxIndx_32f, true);
    checkMinMaxIndx<Qsp64f>(qspsMinMaxIndx_64f, true);
}

TEST(MinMaxIndx, Examples)
{
    float x = 3.5f, lo = 0, hi = 0;
    int loAt = -1, hiAt = -1;
    ASSERT_EQ(qspsMinMaxIndx_32f(&x, 1, &lo, &loAt, &hi, &hiAt), qspStsOk);
    EXPECT_EQ(lo, 3.5f);
    EXPECT_EQ(hi, 3.5f);
    EXPECT_EQ(loAt, 0);
    EXPECT_EQ(hiAt, 0);
    // An extreme that is a NaN matches no element: index 0.
    std::vector<float> v(10, 1.0f);
    v[9] = exref::quietNaN<float>();
    v[3] = 7.0f;
    ASSERT_EQ(qspsMinMaxIndx_32f(v.data(), 10, &lo, &loAt, &hi, &hiAt), qspStsOk);
    EXPECT_TRUE(std::isnan(lo) && std::isnan(hi));
    EXPECT_EQ(loAt, 0);
    EXPECT_EQ(hiAt, 0);
}

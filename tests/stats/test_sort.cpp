// SPDX-License-Identifier: BSD-3-Clause
// SortAscend, SortDescend: in-place comparison sorts.
#include "sort_reference.h"

namespace {

template <class T>
void checkSorts(QspStatus (*ascend)(T*, int), QspStatus (*descend)(T*, int), QspStatus (*ascendL)(T*, Qsp64s) = nullptr,
                QspStatus (*descendL)(T*, Qsp64s) = nullptr)
{
    for (const std::vector<T>& v : sortref::shapes<T>()) {
        const int len = int(v.size());
        for (bool up : {true, false}) {
            const std::vector<T> want = sortref::referenceSorted(v, up);
            for (bool wide : {false, true}) {
                auto fnL = up ? ascendL : descendL;
                if (wide && !fnL) continue;
                qsptest::Guarded<T> data(len);
                std::memcpy(data.data(), v.data(), len * sizeof(T));
                ASSERT_EQ(wide ? fnL(data.data(), len) : (up ? ascend : descend)(data.data(), len), qspStsOk);
                ASSERT_EQ(std::memcmp(data.data(), want.data(), len * sizeof(T)), 0) << "len " << len << (up ? " up" : " down");
                ASSERT_TRUE(data.guardsIntact());
            }
        }
    }
    qsptest::Guarded<T> d(3);
    EXPECT_EQ(ascend(nullptr, 3), qspStsNullPtr);
    EXPECT_EQ(ascend(nullptr, 0), qspStsNullPtr);
    EXPECT_EQ(descend(d.data(), 0), qspStsBadSize);
    EXPECT_EQ(descend(d.data(), -1), qspStsBadSize);
    if (ascendL) {
        EXPECT_EQ(ascendL(nullptr, 0), qspStsBadSize);
        EXPECT_EQ(descendL(nullptr, 2), qspStsNullPtr);
    }
    EXPECT_TRUE(d.untouched());
}

}  // namespace

TEST(Sort, Bytes) { checkSorts<Qsp8u>(qspsSortAscend_8u_I, qspsSortDescend_8u_I); }
TEST(Sort, Unsigned16) { checkSorts<Qsp16u>(qspsSortAscend_16u_I, qspsSortDescend_16u_I); }
TEST(Sort, Signed16) { checkSorts<Qsp16s>(qspsSortAscend_16s_I, qspsSortDescend_16s_I); }
TEST(Sort, Signed32)
{
    checkSorts<Qsp32s>(qspsSortAscend_32s_I, qspsSortDescend_32s_I, qspsSortAscend_32s_I_L, qspsSortDescend_32s_I_L);
}
TEST(Sort, Float32)
{
    checkSorts<Qsp32f>(qspsSortAscend_32f_I, qspsSortDescend_32f_I, qspsSortAscend_32f_I_L, qspsSortDescend_32f_I_L);
}
TEST(Sort, Signed64) { checkSorts<Qsp64s>(qspsSortAscend_64s_I, qspsSortDescend_64s_I); }
TEST(Sort, Float64)
{
    checkSorts<Qsp64f>(qspsSortAscend_64f_I, qspsSortDescend_64f_I, qspsSortAscend_64f_I_L, qspsSortDescend_64f_I_L);
}

// Inputs that drive a naive quicksort quadratic still sort: organ pipes
// and many equal keys.
TEST(Sort, AdversarialInputs)
{
    std::vector<Qsp32s> pipes(200000);
    for (int i = 0; i < 100000; ++i) pipes[i] = i, pipes[199999 - i] = i;
    std::vector<Qsp32s> want = pipes;
    std::sort(want.begin(), want.end());
    ASSERT_EQ(qspsSortAscend_32s_I(pipes.data(), 200000), qspStsOk);
    EXPECT_EQ(pipes, want);
    std::vector<Qsp32s> twos(200000);
    for (int i = 0; i < 200000; ++i) twos[i] = i % 2;
    ASSERT_EQ(qspsSortDescend_32s_I(twos.data(), 200000), qspStsOk);
    EXPECT_TRUE(std::is_sorted(twos.rbegin(), twos.rend()));
}

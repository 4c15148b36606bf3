// SPDX-License-Identifier: BSD-3-Clause
// SortIndexAscend, SortIndexDescend: sorted values and the stable
// permutation beside them.
#include "sort_reference.h"

namespace {

template <class T>
void checkSortIndex(QspStatus (*ascend)(T*, int*, int), QspStatus (*descend)(T*, int*, int))
{
    for (const std::vector<T>& v : sortref::shapes<T>()) {
        const int len = int(v.size());
        for (bool up : {true, false}) {
            const std::vector<T> want = sortref::referenceSorted(v, up);
            const std::vector<long long> perm = sortref::referencePermutation(v, up);
            qsptest::Guarded<T> data(len);
            qsptest::Guarded<int> idx(len);
            std::memcpy(data.data(), v.data(), len * sizeof(T));
            ASSERT_EQ((up ? ascend : descend)(data.data(), idx.data(), len), qspStsOk);
            ASSERT_EQ(std::memcmp(data.data(), want.data(), len * sizeof(T)), 0) << "len " << len;
            for (int j = 0; j < len; ++j) ASSERT_EQ(idx[j], perm[j]) << "len " << len << " at " << j;
            ASSERT_TRUE(data.guardsIntact() && idx.guardsIntact());
        }
    }
    qsptest::Guarded<T> d(3);
    qsptest::Guarded<int> i(3);
    EXPECT_EQ(ascend(nullptr, i.data(), 3), qspStsNullPtr);
    EXPECT_EQ(ascend(d.data(), nullptr, 3), qspStsNullPtr);
    EXPECT_EQ(ascend(d.data(), nullptr, 0), qspStsNullPtr);
    EXPECT_EQ(descend(d.data(), i.data(), 0), qspStsBadSize);
    EXPECT_TRUE(d.untouched() && i.untouched());
}

}  // namespace

TEST(SortIndex, Bytes) { checkSortIndex<Qsp8u>(qspsSortIndexAscend_8u_I, qspsSortIndexDescend_8u_I); }
TEST(SortIndex, Unsigned16) { checkSortIndex<Qsp16u>(qspsSortIndexAscend_16u_I, qspsSortIndexDescend_16u_I); }
TEST(SortIndex, Signed16) { checkSortIndex<Qsp16s>(qspsSortIndexAscend_16s_I, qspsSortIndexDescend_16s_I); }
TEST(SortIndex, Signed32) { checkSortIndex<Qsp32s>(qspsSortIndexAscend_32s_I, qspsSortIndexDescend_32s_I); }
TEST(SortIndex, Float32) { checkSortIndex<Qsp32f>(qspsSortIndexAscend_32f_I, qspsSortIndexDescend_32f_I); }
TEST(SortIndex, Float64) { checkSortIndex<Qsp64f>(qspsSortIndexAscend_64f_I, qspsSortIndexDescend_64f_I); }

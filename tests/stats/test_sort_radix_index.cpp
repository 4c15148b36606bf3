// SPDX-License-Identifier: BSD-3-Clause
// SortRadixIndexAscend, SortRadixIndexDescend and their buffer query: the
// stable sorting permutation, the source left as it was.
#include "sort_reference.h"
#include "stats/radix.h"

namespace {

template <class T, class I>
using IndexFn = QspStatus (*)(const T*, I*, std::conditional_t<sizeof(I) == 4, int, Qsp64s>, Qsp8u*);

template <class T, class I>
void checkOne(IndexFn<T, I> fn, const std::vector<T>& v, bool up)
{
    const Qsp64s len = Qsp64s(v.size());
    Qsp64s bytes = 0;
    if constexpr (sizeof(I) == 4) {
        int b32 = 0;
        ASSERT_EQ(qspsSortRadixIndexGetBufferSize(int(len), sortref::typeCode<T>(), &b32), qspStsOk);
        bytes = b32;
    } else {
        ASSERT_EQ(qspsSortRadixIndexGetBufferSize_L(len, sortref::typeCode<T>(), &bytes), qspStsOk);
    }
    qsptest::Guarded<Qsp8u> buffer(bytes + 1);
    qsptest::Guarded<I> idx(len);
    const std::vector<T> before = v;
    ASSERT_EQ(fn(v.data(), idx.data(), len, buffer.data() + 1), qspStsOk);
    const std::vector<long long> perm = sortref::referencePermutation(v, up);
    for (Qsp64s j = 0; j < len; ++j) ASSERT_EQ(idx[j], perm[j]) << "len " << len << " at " << j;
    ASSERT_TRUE(idx.guardsIntact());
    ASSERT_TRUE(buffer.guardsIntact() && buffer[0] == qsptest::kCanaryByte) << "used more than the reported buffer";
    ASSERT_EQ(std::memcmp(before.data(), v.data(), len * sizeof(T)), 0);
}

template <class T>
void checkIndexSorts(IndexFn<T, int> ascend, IndexFn<T, int> descend, IndexFn<T, Qsp64s> ascendL = nullptr,
                     IndexFn<T, Qsp64s> descendL = nullptr)
{
    for (const std::vector<T>& v : sortref::shapes<T>()) {
        checkOne<T, int>(ascend, v, true);
        checkOne<T, int>(descend, v, false);
        if (ascendL) {
            checkOne<T, Qsp64s>(ascendL, v, true);
            checkOne<T, Qsp64s>(descendL, v, false);
        }
    }
    qsptest::Guarded<T> d(3);
    qsptest::Guarded<int> i(3);
    qsptest::Guarded<Qsp8u> b(1 << 16);
    EXPECT_EQ(ascend(nullptr, i.data(), 3, b.data()), qspStsNullPtr);
    EXPECT_EQ(ascend(d.data(), nullptr, 3, b.data()), qspStsNullPtr);
    EXPECT_EQ(ascend(d.data(), i.data(), 3, nullptr), qspStsNullPtr);
    EXPECT_EQ(descend(d.data(), i.data(), 0, nullptr), qspStsNullPtr);
    EXPECT_EQ(descend(d.data(), i.data(), 0, b.data()), qspStsBadSize);
    if (ascendL) {
        EXPECT_EQ(ascendL(nullptr, nullptr, 0, nullptr), qspStsBadSize);
        EXPECT_EQ(descendL(d.data(), nullptr, 3, b.data()), qspStsNullPtr);
    }
    EXPECT_TRUE(i.untouched() && b.untouched());
}

}  // namespace

TEST(SortRadixIndex, Bytes) { checkIndexSorts<Qsp8u>(qspsSortRadixIndexAscend_8u, qspsSortRadixIndexDescend_8u); }
TEST(SortRadixIndex, Unsigned16) { checkIndexSorts<Qsp16u>(qspsSortRadixIndexAscend_16u, qspsSortRadixIndexDescend_16u); }
TEST(SortRadixIndex, Signed16) { checkIndexSorts<Qsp16s>(qspsSortRadixIndexAscend_16s, qspsSortRadixIndexDescend_16s); }
TEST(SortRadixIndex, Unsigned32) { checkIndexSorts<Qsp32u>(qspsSortRadixIndexAscend_32u, qspsSortRadixIndexDescend_32u); }
TEST(SortRadixIndex, Signed32)
{
    checkIndexSorts<Qsp32s>(qspsSortRadixIndexAscend_32s, qspsSortRadixIndexDescend_32s, qspsSortRadixIndexAscend_32s_L,
                            qspsSortRadixIndexDescend_32s_L);
}
TEST(SortRadixIndex, Float32)
{
    checkIndexSorts<Qsp32f>(qspsSortRadixIndexAscend_32f, qspsSortRadixIndexDescend_32f, qspsSortRadixIndexAscend_32f_L,
                            qspsSortRadixIndexDescend_32f_L);
}
TEST(SortRadixIndex, Unsigned64) { checkIndexSorts<Qsp64u>(qspsSortRadixIndexAscend_64u, qspsSortRadixIndexDescend_64u); }
TEST(SortRadixIndex, Signed64)
{
    checkIndexSorts<Qsp64s>(qspsSortRadixIndexAscend_64s, qspsSortRadixIndexDescend_64s, qspsSortRadixIndexAscend_64s_L,
                            qspsSortRadixIndexDescend_64s_L);
}
TEST(SortRadixIndex, Float64)
{
    checkIndexSorts<Qsp64f>(qspsSortRadixIndexAscend_64f, qspsSortRadixIndexDescend_64f, qspsSortRadixIndexAscend_64f_L,
                            qspsSortRadixIndexDescend_64f_L);
}

TEST(SortRadixIndex, BufferSizes)
{
    struct Row {
        int code;
        long long per32, per64, fixed;
    };
    // Counters, then key arrays (one for two passes, two for three or more)
    // and one index array.
    const Row rows[] = {{qsp8u, 0, 0, 1024},     {qsp16u, 6, 10, 2048},   {qsp16s, 6, 10, 2048},
                        {qsp32u, 12, 16, 20480}, {qsp32s, 12, 16, 20480}, {qsp32f, 12, 16, 20480},
                        {qsp64u, 20, 24, 40960}, {qsp64s, 20, 24, 40960}, {qsp64f, 20, 24, 40960}};
    for (const Row& r : rows) {
        int size;
        Qsp64s sizeL;
        ASSERT_EQ(qspsSortRadixIndexGetBufferSize(1000, r.code, &size), qspStsOk);
        EXPECT_EQ(size, r.per32 * 1000 + r.fixed) << r.code;
        ASSERT_EQ(qspsSortRadixIndexGetBufferSize_L(1000, r.code, &sizeL), qspStsOk);
        EXPECT_EQ(sizeL, r.per64 * 1000 + r.fixed) << r.code;
    }
    int size = -1;
    EXPECT_EQ(qspsSortRadixIndexGetBufferSize(10, 2, &size), qspStsBadDataType);
    EXPECT_EQ(size, 0);
    size = -1;
    EXPECT_EQ(qspsSortRadixIndexGetBufferSize(10, qsp32f, nullptr), qspStsNullPtr);
    EXPECT_EQ(qspsSortRadixIndexGetBufferSize(0, qsp32f, &size), qspStsBadSize);
    EXPECT_EQ(qspsSortRadixIndexGetBufferSize(200000000, qsp64f, &size), qspStsOverflow);
    EXPECT_EQ(size, -1);
    Qsp64s sizeL = -1;
    EXPECT_EQ(qspsSortRadixIndexGetBufferSize_L(0, qsp32f, nullptr), qspStsBadSize);
    EXPECT_EQ(qspsSortRadixIndexGetBufferSize_L(Qsp64s(1) << 60, qsp64f, &sizeL), qspStsOverflow);
    EXPECT_EQ(qspsSortRadixIndexGetBufferSize_L(7, 20, &sizeL), qspStsBadDataType);
    EXPECT_EQ(sizeL, 0);
}

// 2^32 elements or more switch to byte digits with 64-bit counters; the
// same kernel on small vectors.
TEST(SortRadixIndex, WideCounterPlansGiveTheSamePermutation)
{
    using namespace y8::radix;
    for (int len : {1, 5, 3000}) {
        const std::vector<float> v = qsptest::randomBits<float>(len);
        std::vector<Qsp64s> idx(len);
        std::vector<Qsp8u> buffer(20480 + 16 * len);
        ownsSortRadixIndex<FloatKey<Order::Descend>, DigitsWide32, Qsp64u>(reinterpret_cast<const Qsp32u*>(v.data()),
                                                                            idx.data(), len, buffer.data(), 20480);
        const auto perm = sortref::referencePermutation(v, false);
        for (int j = 0; j < len; ++j) ASSERT_EQ(idx[j], perm[j]);
    }
}

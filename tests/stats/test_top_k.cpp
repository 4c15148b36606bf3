// SPDX-License-Identifier: BSD-3-Clause
// TopK: the k largest with their indices, ties to the lower index.
#include "sort_reference.h"

namespace {

template <class T>
void checkTopK(QspStatus (*fn)(const T*, T*, int*, int, int, Qsp8u*), QspDataType code)
{
    for (int len : {1, 2, 3, 10, 100, 1000}) {
        for (int round = 0; round < 3; ++round) {
            std::vector<T> v = round == 0 ? sortref::specials<T>() : qsptest::randomBits<T>(len);
            if (round == 0) v.resize(len, T(1));
            if (round == 2)
                for (auto& x : v) x = T(qsptest::rng()() % 7);  // many ties
            const std::vector<long long> perm = sortref::referencePermutation(v, false);
            for (int k : {1, 2, len / 2, len - 1, len}) {
                if (k < 1 || k > len) continue;
                int bytes = 0;
                ASSERT_EQ(qspsTopKGetBufferSize(len, k, code, &bytes), qspStsOk);
                qsptest::Guarded<Qsp8u> buffer(bytes);
                qsptest::Guarded<T> value(k);
                qsptest::Guarded<int> index(k);
                ASSERT_EQ(fn(v.data(), value.data(), index.data(), len, k, buffer.data()), qspStsOk);
                for (int j = 0; j < k; ++j) {
                    ASSERT_EQ(index[j], perm[j]) << "len " << len << " k " << k << " at " << j;
                    ASSERT_TRUE(qsptest::sameBits(value[j], v[perm[j]]));
                }
                ASSERT_TRUE(buffer.guardsIntact() && value.guardsIntact() && index.guardsIntact());
            }
        }
    }
    qsptest::Guarded<T> src(4), value(4);
    qsptest::Guarded<int> index(4);
    qsptest::Guarded<Qsp8u> buffer(64);
    EXPECT_EQ(fn(nullptr, value.data(), index.data(), 4, 2, buffer.data()), qspStsNullPtr);
    EXPECT_EQ(fn(src.data(), nullptr, index.data(), 4, 2, buffer.data()), qspStsNullPtr);
    EXPECT_EQ(fn(src.data(), value.data(), nullptr, 4, 2, buffer.data()), qspStsNullPtr);
    EXPECT_EQ(fn(src.data(), value.data(), index.data(), 4, 2, nullptr), qspStsNullPtr);
    EXPECT_EQ(fn(src.data(), value.data(), index.data(), 0, 0, nullptr), qspStsNullPtr);
    EXPECT_EQ(fn(src.data(), value.data(), index.data(), 0, 0, buffer.data()), qspStsBadSize);
    EXPECT_EQ(fn(src.data(), value.data(), index.data(), 4, 0, buffer.data()), qspStsBadCount);
    EXPECT_EQ(fn(src.data(), value.data(), index.data(), 4, 5, buffer.data()), qspStsBadCount);
    EXPECT_TRUE(value.untouched() && index.untouched() && buffer.untouched());
}

}  // namespace

TEST(TopK, Signed32) { checkTopK<Qsp32s>(qspsTopK_32s, qsp32s); }
TEST(TopK, Float32) { checkTopK<Qsp32f>(qspsTopK_32f, qsp32f); }
TEST(TopK, Float64) { checkTopK<Qsp64f>(qspsTopK_64f, qsp64f); }

TEST(TopK, BufferSize)
{
    int size = -1;
    ASSERT_EQ(qspsTopKGetBufferSize(100, 10, qsp32s, &size), qspStsOk);
    EXPECT_EQ(size, 80);
    ASSERT_EQ(qspsTopKGetBufferSize(100, 10, qsp32f, &size), qspStsOk);
    EXPECT_EQ(size, 80);
    ASSERT_EQ(qspsTopKGetBufferSize(100, 10, qsp64f, &size), qspStsOk);
    EXPECT_EQ(size, 120);
    EXPECT_EQ(qspsTopKGetBufferSize(100, 10, qsp16s, &size), qspStsBadDataType);
    EXPECT_EQ(size, 0);
    size = -1;
    EXPECT_EQ(qspsTopKGetBufferSize(100, 10, qsp32f, nullptr), qspStsNullPtr);
    EXPECT_EQ(qspsTopKGetBufferSize(0, 1, qsp32f, &size), qspStsBadSize);
    EXPECT_EQ(qspsTopKGetBufferSize(5, 6, qsp32f, &size), qspStsBadCount);
    EXPECT_EQ(qspsTopKGetBufferSize(5, 0, 2, &size), qspStsBadCount);
    EXPECT_EQ(qspsTopKGetBufferSize(2147483647, 2000000000, qsp64f, &size), qspStsOverflow);
    EXPECT_EQ(size, -1);
}

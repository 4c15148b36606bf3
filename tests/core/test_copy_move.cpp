// SPDX-License-Identifier: BSD-3-Clause
// Copy and Move of every type: statuses, canaries, every length and
// alignment, and Move with every overlap direction.
#include "qsp_test.h"

using qsptest::Guarded;

namespace {

struct CopyCase {
    const char* name;
    size_t size;
    QspStatus (*fn)(const void*, void*, int);
};

#define QSP_COPY(op, t, T)                                                                    \
    CopyCase{#op "_" #t, sizeof(T), [](const void* s, void* d, int n) {                         \
                 return qsps##op##_##t(static_cast<const T*>(s), static_cast<T*>(d), n);       \
             }}
#define QSP_COPY_ALL(op)                                                                        \
    QSP_COPY(op, 8u, Qsp8u), QSP_COPY(op, 16s, Qsp16s), QSP_COPY(op, 16sc, Qsp16sc),            \
        QSP_COPY(op, 32s, Qsp32s), QSP_COPY(op, 32sc, Qsp32sc), QSP_COPY(op, 32f, Qsp32f),      \
        QSP_COPY(op, 32fc, Qsp32fc), QSP_COPY(op, 64s, Qsp64s), QSP_COPY(op, 64sc, Qsp64sc),    \
        QSP_COPY(op, 64f, Qsp64f), QSP_COPY(op, 64fc, Qsp64fc)

const CopyCase kCopy[] = {QSP_COPY_ALL(Copy)};
const CopyCase kMove[] = {QSP_COPY_ALL(Move)};

struct CopyLCase {
    const char* name;
    size_t size;
    QspStatus (*fn)(const void*, void*, Qsp64s);
};
#define QSP_COPY_L(t, T)                                                                 \
    CopyLCase{#t, sizeof(T), [](const void* s, void* d, Qsp64s n) {                        \
                  return qspsCopy_##t##_L(static_cast<const T*>(s), static_cast<T*>(d), n); \
              }}
const CopyLCase kCopyL[] = {QSP_COPY_L(32f, Qsp32f), QSP_COPY_L(32fc, Qsp32fc), QSP_COPY_L(64f, Qsp64f),
                            QSP_COPY_L(64fc, Qsp64fc)};

std::vector<int> lengthsFor(size_t size)
{
    std::vector<int> lens;
    for (int n = 1; n <= 70; ++n) lens.push_back(n);
    for (int n : {100, 127, 128, 129, 1000, 4097}) lens.push_back(n);
    lens.push_back(int((Qsp64s(5) << 20) / Qsp64s(size)) + 1);
    return lens;
}

void expectStatuses(const CopyCase& c)
{
    Guarded<Qsp8u> src(64), dst(64);
    EXPECT_EQ(c.fn(nullptr, dst.data(), 4), qspStsNullPtr) << c.name;
    EXPECT_EQ(c.fn(src.data(), nullptr, 4), qspStsNullPtr) << c.name;
    EXPECT_EQ(c.fn(nullptr, nullptr, 0), qspStsNullPtr) << c.name << ": pointers before length";
    EXPECT_EQ(c.fn(src.data(), nullptr, -1), qspStsNullPtr) << c.name;
    EXPECT_EQ(c.fn(src.data(), dst.data(), 0), qspStsBadSize) << c.name;
    EXPECT_EQ(c.fn(src.data(), dst.data(), -9), qspStsBadSize) << c.name;
    EXPECT_TRUE(dst.untouched()) << c.name;
}

void expectCopies(const CopyCase& c)
{
    for (int len : lengthsFor(c.size)) {
        const size_t bytes = len * c.size;
        for (size_t srcShift : {size_t(0), size_t(3)}) {
            for (size_t dstShift : {size_t(0), size_t(1), size_t(8), size_t(13)}) {
                const std::vector<Qsp8u> data = qsptest::randomBits<Qsp8u>(bytes + srcShift);
                Guarded<Qsp8u> dst(bytes + dstShift);
                ASSERT_EQ(c.fn(data.data() + srcShift, dst.data() + dstShift, len), qspStsOk);
                ASSERT_EQ(std::memcmp(dst.data() + dstShift, data.data() + srcShift, bytes), 0)
                    << c.name << " len " << len;
                for (size_t i = 0; i < dstShift; ++i) ASSERT_EQ(dst[i], qsptest::kCanaryByte);
                ASSERT_TRUE(dst.guardsIntact()) << c.name << " len " << len;
            }
        }
    }
}

}  // namespace

TEST(Copy, Statuses) { for (const CopyCase& c : kCopy) expectStatuses(c); }
TEST(Move, Statuses) { for (const CopyCase& c : kMove) expectStatuses(c); }
TEST(Copy, CopiesEveryLengthAndAlignment) { for (const CopyCase& c : kCopy) expectCopies(c); }
TEST(Move, CopiesSeparateVectorsLikeCopy) { for (const CopyCase& c : kMove) expectCopies(c); }

// Every overlap: destination below, equal to and above the source, by any
// number of elements, for short and long vectors.
TEST(Move, LeavesTheOldSourceInTheDestinationForEveryOverlap)
{
    for (const CopyCase& c : kMove) {
        for (int len : {1, 2, 3, 5, 8, 17, 33, 64, 65, 100, 257, 1030}) {
            for (int shift : {-len - 1, -len, -len + 1, -17, -5, -1, 0, 1, 2, 7, 16, len - 1, len, len + 1}) {
                const int span = 3 * len + 4;
                const int srcAt = len + 2;
                const int dstAt = srcAt + shift;
                if (dstAt < 0 || dstAt + len > span) continue;
                for (size_t bias : {size_t(0), size_t(1)}) {
                    std::vector<Qsp8u> area = qsptest::randomBits<Qsp8u>(span * c.size + bias);
                    std::vector<Qsp8u> expected = area;
                    Qsp8u* base = area.data() + bias;
                    std::memmove(expected.data() + bias + dstAt * c.size, expected.data() + bias + srcAt * c.size,
                                 len * c.size);
                    ASSERT_EQ(c.fn(base + srcAt * c.size, base + dstAt * c.size, len), qspStsOk);
                    ASSERT_EQ(area, expected) << c.name << " len " << len << " shift " << shift;
                }
            }
        }
    }
}

TEST(Move, OneElementUpMovesTheWholeVectorWithoutRepeatingTheFirst)
{
    Qsp32f v[11];
    for (int i = 0; i < 11; ++i) v[i] = Qsp32f(i);
    ASSERT_EQ(qspsMove_32f(v, v + 1, 10), qspStsOk);
    EXPECT_EQ(v[0], 0.0f);
    for (int i = 1; i < 11; ++i) EXPECT_EQ(v[i], Qsp32f(i - 1));
}

TEST(Copy, ChunkingFormsCheckTheLengthFirstThenCopy)
{
    for (const CopyLCase& c : kCopyL) {
        Guarded<Qsp8u> src(64 * 16), dst(64 * 16);
        EXPECT_EQ(c.fn(nullptr, nullptr, 0), qspStsBadSize) << c.name;
        EXPECT_EQ(c.fn(nullptr, dst.data(), -1), qspStsBadSize) << c.name;
        EXPECT_EQ(c.fn(nullptr, dst.data(), 5), qspStsNullPtr) << c.name;
        EXPECT_EQ(c.fn(src.data(), nullptr, 5), qspStsNullPtr) << c.name;
        EXPECT_TRUE(dst.untouched());
        const std::vector<Qsp8u> data = qsptest::randomBits<Qsp8u>(63 * c.size);
        ASSERT_EQ(c.fn(data.data(), dst.data(), 63), qspStsOk);
        EXPECT_EQ(std::memcmp(dst.data(), data.data(), data.size()), 0);
        EXPECT_EQ(dst[63 * c.size], qsptest::kCanaryByte);
    }
}

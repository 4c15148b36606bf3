// SPDX-License-Identifier: BSD-3-Clause
// The chunking helper of the _L functions, with small chunks injected, and
// once for real with a length just above the true chunk size.
#include <sys/mman.h>

#include "chunked.h"
#include "qsp_test.h"

namespace {

struct Call {
    Qsp64s at;
    int n;
};

}  // namespace

TEST(Chunked, ChunkSizeIsTheLargestCountThatFitsInt32Bytes)
{
    EXPECT_EQ(chunkElements<Qsp32f>, 536870911);
    EXPECT_EQ(chunkElements<Qsp64f>, 268435455);
    EXPECT_EQ(chunkElements<Qsp32fc>, 268435455);
    EXPECT_EQ(chunkElements<Qsp64fc>, 134217727);
    EXPECT_EQ(chunkElements<Qsp8u>, 2147483647);
    EXPECT_EQ(chunkElements<Qsp16s>, 1073741823);
}

TEST(Chunked, LengthIsCheckedBeforeAnyCall)
{
    int calls = 0;
    auto count = [&](Qsp64s, int) { ++calls; return qspStsOk; };
    EXPECT_EQ(chunkedBy(4, 0, count), qspStsBadSize);
    EXPECT_EQ(chunkedBy(4, -1, count), qspStsBadSize);
    EXPECT_EQ(chunkedBy(4, Qsp64s(-1) << 40, count), qspStsBadSize);
    EXPECT_EQ(calls, 0);
}

TEST(Chunked, CutsIntoConsecutiveChunksWithTheRemainderLast)
{
    for (Qsp64s chunk : {1, 3, 4, 7}) {
        for (Qsp64s len = 1; len <= 30; ++len) {
            std::vector<Call> calls;
            EXPECT_EQ(chunkedBy(chunk, len, [&](Qsp64s at, int n) { calls.push_back({at, n}); return qspStsOk; }),
                      qspStsOk);
            ASSERT_EQ(Qsp64s(calls.size()), (len + chunk - 1) / chunk);
            Qsp64s next = 0;
            for (size_t i = 0; i < calls.size(); ++i) {
                EXPECT_EQ(calls[i].at, next);
                EXPECT_EQ(calls[i].n, i + 1 < calls.size() ? chunk : len - next);
                next += calls[i].n;
            }
            EXPECT_EQ(next, len);
        }
    }
}

TEST(Chunked, JustAboveTheChunkMakesASecondCallOfOneElement)
{
    std::vector<Call> calls;
    EXPECT_EQ(chunkedBy(5, 6, [&](Qsp64s at, int n) { calls.push_back({at, n}); return qspStsOk; }), qspStsOk);
    ASSERT_EQ(calls.size(), 2u);
    EXPECT_EQ(calls[1].at, 5);
    EXPECT_EQ(calls[1].n, 1);
}

TEST(Chunked, AnErrorStopsTheLoopAtOnce)
{
    int calls = 0;
    const QspStatus s = chunkedBy(2, 10, [&](Qsp64s, int) { return ++calls == 2 ? qspStsNullPtr : qspStsOk; });
    EXPECT_EQ(s, qspStsNullPtr);
    EXPECT_EQ(calls, 2);
}

TEST(Chunked, AWarningDoesNotStopTheLoopAndOnlyTheLastStatusIsReturned)
{
    int calls = 0;
    EXPECT_EQ(chunkedBy(2, 10, [&](Qsp64s, int) { return ++calls == 1 ? qspStsWarnDivByZero : qspStsOk; }),
              qspStsOk);
    EXPECT_EQ(calls, 5);
    calls = 0;
    EXPECT_EQ(chunkedBy(2, 10, [&](Qsp64s, int) { return ++calls == 5 ? qspStsWarnDivByZero : qspStsOk; }),
              qspStsWarnDivByZero);
}

// One real run past the true chunk size: 536870912 floats (2 GiB) each
// way, so the copy takes two calls, the second with one element.
TEST(ChunkedReal, CopyAndZeroJustAboveTheChunkSize)
{
    const Qsp64s len = chunkElements<Qsp32f> + 1;
    const size_t bytes = size_t(len) * sizeof(Qsp32f);
    void* src = mmap(nullptr, bytes, PROT_READ | PROT_WRITE, MAP_PRIVATE | MAP_ANONYMOUS | MAP_NORESERVE, -1, 0);
    void* dst = mmap(nullptr, bytes, PROT_READ | PROT_WRITE, MAP_PRIVATE | MAP_ANONYMOUS | MAP_NORESERVE, -1, 0);
    if (src == MAP_FAILED || dst == MAP_FAILED) GTEST_SKIP() << "4 GiB could not be mapped";
    auto* s = static_cast<Qsp32f*>(src);
    auto* d = static_cast<Qsp32f*>(dst);
    for (Qsp64s i = 0; i < len; i += 1024) s[i] = Qsp32f(i % 4099) + 0.5f;
    s[len - 2] = 7.25f;
    s[len - 1] = -3.5f;

    ASSERT_EQ(qspsCopy_32f_L(s, d, len), qspStsOk);
    for (Qsp64s i = 0; i < len; i += 1024) ASSERT_EQ(d[i], s[i]) << i;
    EXPECT_EQ(d[len - 2], 7.25f);
    EXPECT_EQ(d[len - 1], -3.5f);

    ASSERT_EQ(qspsZero_32f_L(d, len), qspStsOk);
    for (Qsp64s i = 0; i < len; i += 4096) ASSERT_EQ(d[i], 0.0f) << i;
    EXPECT_EQ(d[len - 1], 0.0f);
    munmap(src, bytes);
    munmap(dst, bytes);
}

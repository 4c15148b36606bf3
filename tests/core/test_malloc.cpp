// SPDX-License-Identifier: BSD-3-Clause
// qspsMalloc_*: the byte count each asks of the support library, the
// limits of every element size, and release through qspsFree.
//
// This program defines qspMalloc and qspMalloc_L itself. The dynamic linker
// binds libqspsy8's calls to them (the executable comes first in the lookup
// order); they record the request and pass it on to the support library
// unless told to refuse it.
#include <dlfcn.h>

#include "qsp_test.h"

namespace {

struct Request {
    int calls = 0;
    Qsp64s bytes = 0;
    bool forward = true;
} gRequest;

template <class Fn>
Fn next(const char* name)
{
    return reinterpret_cast<Fn>(dlsym(RTLD_NEXT, name));
}

}  // namespace

extern "C" void* qspMalloc(int size)
{
    ++gRequest.calls;
    gRequest.bytes = size;
    return gRequest.forward ? next<void* (*)(int)>("qspMalloc")(size) : nullptr;
}

extern "C" void* qspMalloc_L(Qsp64s size)
{
    ++gRequest.calls;
    gRequest.bytes = size;
    return gRequest.forward ? next<void* (*)(Qsp64s)>("qspMalloc_L")(size) : nullptr;
}

namespace {

struct Recording {
    Recording(bool forward) { gRequest = Request{0, 0, forward}; }
    ~Recording() { gRequest = Request{}; }
};

struct MallocCase {
    const char* name;
    Qsp64s size;
    void* (*fn)(int);
    void* (*fnL)(Qsp64s);
};
#define QSP_MALLOC(t, T) \
    MallocCase{#t, sizeof(T), [](int n) -> void* { return qspsMalloc_##t(n); }, [](Qsp64s n) -> void* { return qspsMalloc_##t##_L(n); }}
const MallocCase kMalloc[] = {
    QSP_MALLOC(8u, Qsp8u),     QSP_MALLOC(8s, Qsp8s),     QSP_MALLOC(8sc, Qsp8sc),   QSP_MALLOC(16s, Qsp16s),
    QSP_MALLOC(16u, Qsp16u),   QSP_MALLOC(16sc, Qsp16sc), QSP_MALLOC(32s, Qsp32s),   QSP_MALLOC(32u, Qsp32u),
    QSP_MALLOC(32sc, Qsp32sc), QSP_MALLOC(32f, Qsp32f),   QSP_MALLOC(32fc, Qsp32fc), QSP_MALLOC(64s, Qsp64s),
    QSP_MALLOC(64sc, Qsp64sc), QSP_MALLOC(64f, Qsp64f),   QSP_MALLOC(64fc, Qsp64fc),
};

constexpr Qsp64s kInt32Max = 0x7FFFFFFF;
constexpr Qsp64s kInt64Max = 0x7FFFFFFFFFFFFFFFLL;

}  // namespace

TEST(Malloc, SmallBlocksAreAlignedUsableAndFreed)
{
    for (const MallocCase& c : kMalloc) {
        for (void* p : {c.fn(100), c.fnL(100)}) {
            ASSERT_NE(p, nullptr) << c.name;
            EXPECT_EQ(reinterpret_cast<uintptr_t>(p) % 64, 0u) << c.name;
            std::memset(p, 0x5A, size_t(100 * c.size));
            qspsFree(p);
        }
    }
    qspsFree(nullptr);
}

TEST(Malloc, AsksForTheElementCountTimesTheSize)
{
    for (const MallocCase& c : kMalloc) {
        Recording rec(false);
        EXPECT_EQ(c.fn(7), nullptr);
        EXPECT_EQ(gRequest.calls, 1);
        EXPECT_EQ(gRequest.bytes, 7 * c.size) << c.name;
        EXPECT_EQ(c.fnL(9), nullptr);
        EXPECT_EQ(gRequest.calls, 2);
        EXPECT_EQ(gRequest.bytes, 9 * c.size) << c.name;
    }
}

TEST(Malloc, ThirtyTwoBitLimitsByElementSize)
{
    for (const MallocCase& c : kMalloc) {
        Recording rec(false);
        const Qsp64s largest = kInt32Max / c.size;
        EXPECT_EQ(c.fn(int(largest)), nullptr);
        EXPECT_EQ(gRequest.calls, 1) << c.name << ": the largest count is passed on";
        EXPECT_EQ(gRequest.bytes, largest * c.size) << c.name;
        for (Qsp64s bad : {Qsp64s(0), Qsp64s(-1), Qsp64s(-2147483647 - 1)}) EXPECT_EQ(c.fn(int(bad)), nullptr);
        if (largest < kInt32Max) EXPECT_EQ(c.fn(int(largest + 1)), nullptr);
        EXPECT_EQ(gRequest.calls, 1) << c.name << ": rejected counts never reach the support library";
    }
}

TEST(Malloc, SixtyFourBitLimitsByElementSize)
{
    for (const MallocCase& c : kMalloc) {
        Recording rec(false);
        for (Qsp64s bad : {Qsp64s(0), Qsp64s(-1), Qsp64s(-kInt64Max - 1)}) EXPECT_EQ(c.fnL(bad), nullptr);
        EXPECT_EQ(gRequest.calls, 0) << c.name;
        if (c.size == 2) continue;  // no upper bound: the next test
        const Qsp64s largest = kInt64Max / c.size;
        EXPECT_EQ(c.fnL(largest), nullptr);
        EXPECT_EQ(gRequest.calls, 1) << c.name;
        EXPECT_EQ(gRequest.bytes, largest * c.size) << c.name;
        if (largest < kInt64Max) EXPECT_EQ(c.fnL(largest + 1), nullptr);
        EXPECT_EQ(gRequest.calls, 1) << c.name;
    }
}

TEST(Malloc, TwoByteSixtyFourBitFormsDoubleWithoutARangeCheck)
{
    for (const MallocCase& c : kMalloc) {
        if (c.size != 2) continue;
        Recording rec(false);
        EXPECT_EQ(c.fnL(Qsp64s(1) << 61), nullptr);
        EXPECT_EQ(gRequest.bytes, Qsp64s(1) << 62) << c.name;
        EXPECT_EQ(c.fnL(Qsp64s(1) << 62), nullptr);
        EXPECT_EQ(gRequest.calls, 2) << c.name << ": 2^62 is passed on";
        EXPECT_EQ(gRequest.bytes, -kInt64Max - 1) << c.name << ": the doubled count wraps";
        EXPECT_EQ(c.fnL(kInt64Max), nullptr);
        EXPECT_EQ(gRequest.calls, 3);
        EXPECT_EQ(gRequest.bytes, -2) << c.name;
    }
}

TEST(Malloc, NamedCases)
{
    Recording rec(false);
    EXPECT_EQ(qspsMalloc_32f(536870911), nullptr);
    EXPECT_EQ(gRequest.bytes, 2147483644);
    EXPECT_EQ(gRequest.calls, 1);
    EXPECT_EQ(qspsMalloc_32f(536870912), nullptr);
    EXPECT_EQ(qspsMalloc_16s(0), nullptr);
    EXPECT_EQ(qspsMalloc_16s(-1), nullptr);
    EXPECT_EQ(qspsMalloc_16s(1073741824), nullptr);
    EXPECT_EQ(qspsMalloc_64fc_L(Qsp64s(1) << 60), nullptr);
    EXPECT_EQ(gRequest.calls, 1);
}

TEST(CoreLibrary, AllocationAndFeatureQueries)
{
    EXPECT_EQ(next<void* (*)(int)>("qspMalloc")(0), nullptr);
    EXPECT_EQ(next<void* (*)(int)>("qspMalloc")(-5), nullptr);
    EXPECT_EQ(next<void* (*)(Qsp64s)>("qspMalloc_L")(-5), nullptr);
    void* p = next<void* (*)(Qsp64s)>("qspMalloc_L")(1000);
    ASSERT_NE(p, nullptr);
    EXPECT_EQ(reinterpret_cast<uintptr_t>(p) % 64, 0u);
    qspFree(p);
    qspFree(nullptr);

    EXPECT_EQ(ownGetFeature(0), 1);
    // The library is built for SSE4.2 and runs only where it is present.
    EXPECT_EQ(ownGetFeature(qspCPUID_SSE | qspCPUID_SSE2 | qspCPUID_SSE3 | qspCPUID_SSSE3 | qspCPUID_SSE41 |
                            qspCPUID_SSE42),
              1);
    EXPECT_EQ(ownGetFeature(0x8000000000000000ull), 0) << "a bit with no feature reads as absent";
    __builtin_cpu_init();
    EXPECT_EQ(ownGetFeature(qspCPUID_AVX2), __builtin_cpu_supports("avx2") ? 1 : 0);
    EXPECT_EQ(ownGetFeature(qspCPUID_POPCNT), __builtin_cpu_supports("popcnt") ? 1 : 0);
    EXPECT_EQ(qspCPUID_F16C, 0x1000000000ull);
}

TEST(CoreLibrary, DenormalControlsReportAndRestoreTheMode)
{
    unsigned previous = 99;
    ASSERT_EQ(qspSetFlushToZero(1, &previous), qspStsOk);
    EXPECT_EQ(previous, 0u);
    EXPECT_NE(_mm_getcsr() & 0x8000, 0u);
    volatile float tiny = 1e-30f;
    EXPECT_EQ(tiny * 1e-10f, 0.0f) << "denormal result flushed";
    ASSERT_EQ(qspSetFlushToZero(0, &previous), qspStsOk);
    EXPECT_EQ(previous, 1u);
    EXPECT_NE(tiny * 1e-10f, 0.0f);

    ASSERT_EQ(qspSetDenormAreZeros(1, nullptr), qspStsOk);
    EXPECT_NE(_mm_getcsr() & 0x40, 0u);
    ASSERT_EQ(qspSetDenormAreZeros(0, &previous), qspStsOk);
    EXPECT_EQ(previous, 1u);
    EXPECT_EQ(_mm_getcsr() & 0x40, 0u);
}

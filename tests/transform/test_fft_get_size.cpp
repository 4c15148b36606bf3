// SPDX-License-Identifier: BSD-3-Clause
#include <memory>
#include <string>

#include "guard_page.h"
#include "qsp_test.h"
#include "transform/fft_record.h"

namespace {

using GetSize = QspStatus (*)(int, int, QspHintAlgorithm, int*, int*, int*);

long long r64(long long x) { return x & ~63LL; }

struct Expected {
    long long spec, init, work;
};

// The sizes fixed by the size formulas, or spec = -1 where the large
// layout is the library's own (only its stated parts are then checked).
Expected complex32(int order)
{
    const long long n = 1LL << order;
    if (order <= 5) return {208, 0, 0};
    const long long base = r64((n & ~3LL) + 67) + 64;
    if (order <= 17) return {r64(8 * n + 71) + r64((n & ~3LL) + 67) + 256, order < 11 ? 0 : base, r64(8 * n + 63) + 64};
    return {-1, base, -1};
}

Expected complex64(int order)
{
    const long long n = 1LL << order;
    if (order <= 5) return {208, 0, 0};
    const long long base = r64((2 * n & ~7LL) + 71) + 64;
    if (order <= 16) return {r64(16 * n + 79) + r64((n & ~3LL) + 67) + 256, order < 11 ? 0 : base, r64(16 * n + 63) + 64};
    return {-1, base, -1};
}

Expected real32(int order)
{
    const long long n = 1LL << order;
    if (order <= 4) return {208, 0, 0};
    const long long t = order <= 20 ? (2 * n & ~7LL) + 63 : (8LL << (order - 12)) + 8255;
    if (order <= 6) return {2 * r64(t) + 256, 0, 0};
    const long long init = order < 11 ? 0 : r64((n & ~3LL) + 67) + 64;
    if (order - 1 <= 17)
        return {r64(4 * n + 71) + r64(((n / 2) & ~3LL) + 67) + 2 * r64(t) + 256, init, r64(4 * n + 63) + 64};
    return {-1, init, -1};
}

void expectSizes(GetSize f, const Expected& e, int order, const char* what)
{
    int s = -1, i = -1, w = -1;
    ASSERT_EQ(f(order, 8, 0, &s, &i, &w), qspStsOk) << what << " order " << order;
    if (e.spec >= 0) EXPECT_EQ(s, (int)e.spec) << what << " spec, order " << order;
    EXPECT_EQ(i, (int)e.init) << what << " init, order " << order;
    if (e.work >= 0) EXPECT_EQ(w, (int)e.work) << what << " work, order " << order;
    // The same sizes for every flag and any hint.
    for (int flag : {1, 2, 4})
        for (int hint : {-5, 0, 1, 2, 77}) {
            int s2, i2, w2;
            ASSERT_EQ(f(order, flag, hint, &s2, &i2, &w2), qspStsOk);
            EXPECT_EQ(s2, s);
            EXPECT_EQ(i2, i);
            EXPECT_EQ(w2, w);
        }
}

}  // namespace

TEST(FFTGetSize, ComplexSizesFollowTheFormulas)
{
    for (int order = 0; order <= 27; ++order) {
        expectSizes(qspsFFTGetSize_C_32fc, complex32(order), order, "C_32fc");
        expectSizes(qspsFFTGetSize_C_32f, complex32(order), order, "C_32f");
        expectSizes(qspsFFTGetSize_C_64fc, complex64(order), order, "C_64fc");
        expectSizes(qspsFFTGetSize_C_64f, complex64(order), order, "C_64f");
    }
}

TEST(FFTGetSize, RealSizesFollowTheFormulas)
{
    for (int order = 0; order <= 28; ++order) expectSizes(qspsFFTGetSize_R_32f, real32(order), order, "R_32f");
}

TEST(FFTGetSize, LargeLayoutAdditions)
{
    // Orders 19 and above: work of at least 65536 (+64); the record holds
    // the layout's tables and (4 << (order-12)) + 4160 bytes more. The
    // layout is the medium tier's (the formula of orders 6..17) up to
    // order 20 and the large tier's from 21 on.
    for (int order = 18; order <= 28; ++order) {
        int s, i, w;
        ASSERT_EQ(qspsFFTGetSize_C_32fc(order, 8, 0, &s, &i, &w), qspStsOk);
        if (order >= 19) EXPECT_GE(w, 65536 + 64);
        const long long n = 1LL << order;
        const long long tables =
            order <= 20 ? r64(8 * n + 71) + r64((n & ~3LL) + 67) : fft::largeTableBytes<float>(order);
        if (order <= 20) EXPECT_EQ(w, r64(8 * n + 63) + 64) << order;
        EXPECT_EQ(s, (int)(tables + 256 + (order >= 19 ? (4LL << (order - 12)) + 4160 : 0))) << order;
    }
}

TEST(FFTGetSize, SplitKindsEqualInterleaved)
{
    for (int order = 0; order <= 27; ++order) {
        int a[3], b[3];
        ASSERT_EQ(qspsFFTGetSize_C_32fc(order, 2, 0, a, a + 1, a + 2), qspStsOk);
        ASSERT_EQ(qspsFFTGetSize_C_32f(order, 2, 0, b, b + 1, b + 2), qspStsOk);
        EXPECT_EQ(0, memcmp(a, b, sizeof a));
        ASSERT_EQ(qspsFFTGetSize_C_64fc(order, 2, 0, a, a + 1, a + 2), qspStsOk);
        ASSERT_EQ(qspsFFTGetSize_C_64f(order, 2, 0, b, b + 1, b + 2), qspStsOk);
        EXPECT_EQ(0, memcmp(a, b, sizeof a));
    }
}

TEST(FFTGetSize, HalfPrecisionAddsTheDataCopy)
{
    for (int order = 0; order <= 26; ++order) {
        int a[3], b[3];
        ASSERT_EQ(qspsFFTGetSize_C_32fc(order, 4, 0, a, a + 1, a + 2), qspStsOk);
        ASSERT_EQ(qspsFFTGetSize_C_16fc(order, 4, 0, b, b + 1, b + 2), qspStsOk);
        EXPECT_EQ(b[0], a[0] + 20);
        EXPECT_EQ(b[1], a[1]);
        EXPECT_EQ(b[2], a[2] + 8 * (1 << order));
    }
}

TEST(FFTGetSize, CheckOrder)
{
    int s = 7, i = 7, w = 7;
    for (GetSize f : {qspsFFTGetSize_C_32fc, qspsFFTGetSize_C_32f, qspsFFTGetSize_R_32f, qspsFFTGetSize_C_64fc,
                      qspsFFTGetSize_C_64f, qspsFFTGetSize_R_64f}) {
        // Order 31 and above first, before the pointers and the flag.
        EXPECT_EQ(f(31, 3, 0, nullptr, nullptr, nullptr), qspStsBadFftOrder);
        EXPECT_EQ(f(1000, 8, 0, &s, &i, &w), qspStsBadFftOrder);
        // Then each pointer.
        EXPECT_EQ(f(30, 3, 0, nullptr, &i, &w), qspStsNullPtr);
        EXPECT_EQ(f(3, 8, 0, &s, nullptr, &w), qspStsNullPtr);
        EXPECT_EQ(f(3, 8, 0, &s, &i, nullptr), qspStsNullPtr);
        EXPECT_EQ(f(-1, 8, 0, nullptr, &i, &w), qspStsNullPtr);
        // Then the flag, before the kind's maximum.
        for (int flag : {0, 3, 5, 6, 7, 9, 16, 256, -1, -8})
            EXPECT_EQ(f(30, flag, 0, &s, &i, &w), qspStsBadFftFlag) << flag;
        // Then the maximum (negative orders too).
        EXPECT_EQ(f(30, 8, 0, &s, &i, &w), qspStsBadFftOrder);
        EXPECT_EQ(f(-1, 8, 0, &s, &i, &w), qspStsBadFftOrder);
    }
    EXPECT_EQ(s, 7);
    EXPECT_EQ(i, 7);
    EXPECT_EQ(w, 7);
}

TEST(FFTGetSize, MaximumOrderOfEachKind)
{
    int s, i, w;
    EXPECT_EQ(qspsFFTGetSize_R_32f(29, 8, 0, &s, &i, &w), qspStsOk);
    EXPECT_EQ(qspsFFTGetSize_C_32fc(29, 8, 0, &s, &i, &w), qspStsBadFftOrder);
    EXPECT_EQ(qspsFFTGetSize_C_32f(29, 8, 0, &s, &i, &w), qspStsBadFftOrder);
    EXPECT_EQ(qspsFFTGetSize_C_32fc(28, 8, 0, &s, &i, &w), qspStsOk);
    EXPECT_EQ(qspsFFTGetSize_R_64f(28, 8, 0, &s, &i, &w), qspStsOk);
    EXPECT_EQ(qspsFFTGetSize_R_64f(29, 8, 0, &s, &i, &w), qspStsBadFftOrder);
    EXPECT_EQ(qspsFFTGetSize_C_64fc(27, 8, 0, &s, &i, &w), qspStsOk);
    EXPECT_EQ(qspsFFTGetSize_C_64fc(28, 8, 0, &s, &i, &w), qspStsBadFftOrder);
    EXPECT_EQ(qspsFFTGetSize_C_64f(28, 8, 0, &s, &i, &w), qspStsBadFftOrder);
    EXPECT_EQ(qspsFFTGetSize_C_16fc(27, 8, 0, &s, &i, &w), qspStsOk);
    // Order 28 is accepted, but its work buffer (8N bytes for the data as
    // single-precision values alone) cannot be described by an int.
    EXPECT_EQ(qspsFFTGetSize_C_16fc(28, 8, 0, &s, &i, &w), qspStsOverflow);
    EXPECT_EQ(qspsFFTGetSize_C_16fc(29, 8, 0, &s, &i, &w), qspStsBadFftOrder);
}

TEST(FFTGetSize, HalfPrecisionChecksPointersFirst)
{
    int s = 7, i = 7, w = 7;
    EXPECT_EQ(qspsFFTGetSize_C_16fc(31, 8, 0, nullptr, &i, &w), qspStsNullPtr);
    EXPECT_EQ(qspsFFTGetSize_C_16fc(99, 3, 0, &s, nullptr, &w), qspStsNullPtr);
    EXPECT_EQ(qspsFFTGetSize_C_16fc(2, 8, 0, &s, &i, nullptr), qspStsNullPtr);
    EXPECT_EQ(qspsFFTGetSize_C_16fc(31, 3, 0, &s, &i, &w), qspStsBadFftOrder);
    EXPECT_EQ(qspsFFTGetSize_C_16fc(-1, 3, 0, &s, &i, &w), qspStsBadFftOrder);
    // 30 passes the half-precision test; the flag is then checked before
    // the maximum of 28.
    EXPECT_EQ(qspsFFTGetSize_C_16fc(30, 3, 0, &s, &i, &w), qspStsBadFftFlag);
    EXPECT_EQ(qspsFFTGetSize_C_16fc(30, 8, 0, &s, &i, &w), qspStsBadFftOrder);
    EXPECT_EQ(qspsFFTGetSize_C_16fc(3, 3, 0, &s, &i, &w), qspStsBadFftFlag);
    EXPECT_EQ(s, 7);
    EXPECT_EQ(i, 7);
    EXPECT_EQ(w, 7);
}

// ---------------------------------------------------------------- bounds

namespace {

using AnyInit = QspStatus (*)(void**, int, int, int, Qsp8u*, Qsp8u*);

// A kind's size query, Init, and one forward and one inverse transform
// through raw arrays: `arrays` arrays of `bytes(n)` bytes each for source
// and destination (split kinds: real and imaginary parts), the destination
// of a real forward transform N + 2 values (CCS).
struct BoundsKind {
    const char* name;
    int maxOrder;
    GetSize size;
    AnyInit init;
    int arrays;
    size_t srcBytesPerPoint, dstBytesPerPoint, dstExtra;
    QspStatus (*fwd)(void* const* s, void* const* d, const void* rec, Qsp8u* w);
    QspStatus (*inv)(void* const* s, void* const* d, const void* rec, Qsp8u* w);
};

const BoundsKind kBoundsKinds[] = {
    {"C_16fc", 28, qspsFFTGetSize_C_16fc, (AnyInit)qspsFFTInit_C_16fc, 1, 4, 4, 0,
     [](void* const* s, void* const* d, const void* r, Qsp8u* w) { return qspsFFTFwd_CToC_16fc((const Qsp16fc*)s[0], (Qsp16fc*)d[0], (const QspsFFTSpec_C_16fc*)r, w); },
     [](void* const* s, void* const* d, const void* r, Qsp8u* w) { return qspsFFTInv_CToC_16fc((const Qsp16fc*)s[0], (Qsp16fc*)d[0], (const QspsFFTSpec_C_16fc*)r, w); }},
    {"C_32fc", 28, qspsFFTGetSize_C_32fc, (AnyInit)qspsFFTInit_C_32fc, 1, 8, 8, 0,
     [](void* const* s, void* const* d, const void* r, Qsp8u* w) { return qspsFFTFwd_CToC_32fc((const Qsp32fc*)s[0], (Qsp32fc*)d[0], (const QspsFFTSpec_C_32fc*)r, w); },
     [](void* const* s, void* const* d, const void* r, Qsp8u* w) { return qspsFFTInv_CToC_32fc((const Qsp32fc*)s[0], (Qsp32fc*)d[0], (const QspsFFTSpec_C_32fc*)r, w); }},
    {"C_32f", 28, qspsFFTGetSize_C_32f, (AnyInit)qspsFFTInit_C_32f, 2, 4, 4, 0,
     [](void* const* s, void* const* d, const void* r, Qsp8u* w) { return qspsFFTFwd_CToC_32f((const Qsp32f*)s[0], (const Qsp32f*)s[1], (Qsp32f*)d[0], (Qsp32f*)d[1], (const QspsFFTSpec_C_32f*)r, w); },
     [](void* const* s, void* const* d, const void* r, Qsp8u* w) { return qspsFFTInv_CToC_32f((const Qsp32f*)s[0], (const Qsp32f*)s[1], (Qsp32f*)d[0], (Qsp32f*)d[1], (const QspsFFTSpec_C_32f*)r, w); }},
    {"R_32f", 29, qspsFFTGetSize_R_32f, (AnyInit)qspsFFTInit_R_32f, 1, 4, 4, 8,
     [](void* const* s, void* const* d, const void* r, Qsp8u* w) { return qspsFFTFwd_RToCCS_32f((const Qsp32f*)s[0], (Qsp32f*)d[0], (const QspsFFTSpec_R_32f*)r, w); },
     [](void* const* s, void* const* d, const void* r, Qsp8u* w) { return qspsFFTInv_CCSToR_32f((const Qsp32f*)d[0], (Qsp32f*)s[0], (const QspsFFTSpec_R_32f*)r, w); }},
    {"C_64fc", 27, qspsFFTGetSize_C_64fc, (AnyInit)qspsFFTInit_C_64fc, 1, 16, 16, 0,
     [](void* const* s, void* const* d, const void* r, Qsp8u* w) { return qspsFFTFwd_CToC_64fc((const Qsp64fc*)s[0], (Qsp64fc*)d[0], (const QspsFFTSpec_C_64fc*)r, w); },
     [](void* const* s, void* const* d, const void* r, Qsp8u* w) { return qspsFFTInv_CToC_64fc((const Qsp64fc*)s[0], (Qsp64fc*)d[0], (const QspsFFTSpec_C_64fc*)r, w); }},
    {"C_64f", 27, qspsFFTGetSize_C_64f, (AnyInit)qspsFFTInit_C_64f, 2, 8, 8, 0,
     [](void* const* s, void* const* d, const void* r, Qsp8u* w) { return qspsFFTFwd_CToC_64f((const Qsp64f*)s[0], (const Qsp64f*)s[1], (Qsp64f*)d[0], (Qsp64f*)d[1], (const QspsFFTSpec_C_64f*)r, w); },
     [](void* const* s, void* const* d, const void* r, Qsp8u* w) { return qspsFFTInv_CToC_64f((const Qsp64f*)s[0], (const Qsp64f*)s[1], (Qsp64f*)d[0], (Qsp64f*)d[1], (const QspsFFTSpec_C_64f*)r, w); }},
    {"R_64f", 28, qspsFFTGetSize_R_64f, (AnyInit)qspsFFTInit_R_64f, 1, 8, 8, 16,
     [](void* const* s, void* const* d, const void* r, Qsp8u* w) { return qspsFFTFwd_RToCCS_64f((const Qsp64f*)s[0], (Qsp64f*)d[0], (const QspsFFTSpec_R_64f*)r, w); },
     [](void* const* s, void* const* d, const void* r, Qsp8u* w) { return qspsFFTInv_CCSToR_64f((const Qsp64f*)d[0], (Qsp64f*)s[0], (const QspsFFTSpec_R_64f*)r, w); }},
};

// The one size that cannot be described: half precision's work buffer at
// order 28.
bool overflowExpected(const BoundsKind& k, int order) { return std::string(k.name) == "C_16fc" && order == 28; }

// GetSize, then Init into a record block and an Init buffer of exactly the
// reported sizes, each followed by an inaccessible page; with `transform`,
// a forward and an inverse transform with a work buffer and data arrays of
// exactly their sizes, followed by such pages. Reports the sizes.
void checkBounds(const BoundsKind& k, int order, int flag, bool transform, int* out = nullptr)
{
    int s = -1, i = -1, w = -1;
    const QspStatus st = k.size(order, flag, 0, &s, &i, &w);
    if (overflowExpected(k, order)) {
        ASSERT_EQ(st, qspStsOverflow) << k.name << " order " << order;
        EXPECT_EQ(s, -1);
        EXPECT_EQ(i, -1);
        EXPECT_EQ(w, -1);
        // Init refuses it too, writing nothing.
        qsptest::GuardPageBlock spec(4096);
        void* rec = (void*)0x1;
        EXPECT_EQ(k.init(&rec, order, flag, 0, spec.data(), nullptr), qspStsOverflow);
        EXPECT_EQ(rec, (void*)0x1);
        for (size_t b = 0; b < spec.size(); ++b) ASSERT_EQ(spec.data()[b], 0xA5);
        return;
    }
    ASSERT_EQ(st, qspStsOk) << k.name << " order " << order << " flag " << flag;
    ASSERT_GT(s, 0);
    ASSERT_GE(i, 0);
    ASSERT_GE(w, 0);
    if (out) out[0] = s, out[1] = i, out[2] = w;
    qsptest::GuardPageBlock spec{size_t(s)}, init{size_t(i)};
    ASSERT_TRUE(spec.ok() && init.ok());
    void* rec = nullptr;
    ASSERT_EQ(k.init(&rec, order, flag, 0, spec.data(), i ? init.data() : nullptr), qspStsOk)
        << k.name << " order " << order << " flag " << flag;
    if (!transform) return;
    const size_t n = size_t(1) << order;
    qsptest::GuardPageBlock work{size_t(w)};
    std::vector<std::unique_ptr<qsptest::GuardPageBlock>> blocks;
    void* src[2] = {};
    void* dst[2] = {};
    for (int a = 0; a < k.arrays; ++a) {
        blocks.push_back(std::make_unique<qsptest::GuardPageBlock>(n * k.srcBytesPerPoint, 0));
        src[a] = blocks.back()->data();
        blocks.push_back(std::make_unique<qsptest::GuardPageBlock>(n * k.dstBytesPerPoint + k.dstExtra, 0));
        dst[a] = blocks.back()->data();
    }
    for (auto& b : blocks) ASSERT_TRUE(b->ok());
    EXPECT_EQ(k.fwd(src, dst, rec, w ? work.data() : nullptr), qspStsOk) << k.name << " order " << order;
    EXPECT_EQ(k.inv(src, dst, rec, w ? work.data() : nullptr), qspStsOk) << k.name << " order " << order;
}

}  // namespace

// Every kind, order and flag: what GetSize reports is enough for Init, and
// from order 0 to 20 for a forward and an inverse transform as well. The
// orders above, where Init alone builds a table of N/8 values, are in the
// heavy tests below.
TEST(FFTGetSize, ReportedSizesBoundInitAndTransforms)
{
    for (const BoundsKind& k : kBoundsKinds)
        for (int order = 0; order <= 20; ++order)
            for (int flag : {1, 2, 4, 8}) checkBounds(k, order, flag, flag == 4);
    qspSetFlushToZero(0, nullptr);
    qspSetDenormAreZeros(0, nullptr);
}

TEST(FFTGetSize, EverySizeFitsAnIntOrIsRefused)
{
    for (const BoundsKind& k : kBoundsKinds)
        for (int order = 0; order <= k.maxOrder; ++order)
            for (int flag : {1, 2, 4, 8}) {
                int s = -1, i = -1, w = -1;
                const QspStatus st = k.size(order, flag, 0, &s, &i, &w);
                if (overflowExpected(k, order)) {
                    EXPECT_EQ(st, qspStsOverflow);
                    continue;
                }
                ASSERT_EQ(st, qspStsOk) << k.name << " order " << order;
                EXPECT_GT(s, 0);
                EXPECT_GE(i, 0);
                EXPECT_GE(w, 0);
            }
}

// Orders 21..24: Init and the transforms within the reported sizes.
TEST(FFTGetSizeHeavy, TransformsUpToOrder24)
{
    for (const BoundsKind& k : kBoundsKinds)
        for (int order = 21; order <= 24; ++order) checkBounds(k, order, 4, true);
    qspSetFlushToZero(0, nullptr);
    qspSetDenormAreZeros(0, nullptr);
}

// The largest orders: every kind and flag from order 25 to its maximum,
// GetSize then Init within the reported sizes; a transform at the largest
// order of each kind whose arrays, record and buffers stay within 3 GiB.
// Prints the sizes of the top orders.
TEST(FFTGetSizeHeavy, LargestOrders)
{
    for (const BoundsKind& k : kBoundsKinds) {
        for (int order = 25; order <= k.maxOrder; ++order)
            for (int flag : {1, 2, 4, 8}) {
                int sz[3] = {};
                checkBounds(k, order, flag, false, sz);
                if (flag == 8 && !overflowExpected(k, order))
                    printf("  %-6s order %d: record %d, Init buffer %d, work buffer %d bytes\n", k.name, order, sz[0],
                           sz[1], sz[2]);
                else if (flag == 8)
                    printf("  %-6s order %d: qspStsOverflow\n", k.name, order);
            }
        int order = k.maxOrder;
        auto bytes = [&](int o) {
            int s = 0, i = 0, w = 0;
            if (k.size(o, 4, 0, &s, &i, &w) != qspStsOk) return 1e30;
            const double n = double(1LL << o);
            return double(s) + i + w + n * k.arrays * (k.srcBytesPerPoint + k.dstBytesPerPoint);
        };
        while (bytes(order) > 3.0 * (1 << 30)) --order;
        checkBounds(k, order, 4, true);
        printf("  %-6s transforms at order %d within the reported sizes\n", k.name, order);
    }
    qspSetFlushToZero(0, nullptr);
    qspSetDenormAreZeros(0, nullptr);
}

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
    // the large layout's tables and (4 << (order-12)) + 4160 bytes more.
    for (int order = 18; order <= 28; ++order) {
        int s, i, w;
        ASSERT_EQ(qspsFFTGetSize_C_32fc(order, 8, 0, &s, &i, &w), qspStsOk);
        if (order >= 19) EXPECT_GE(w, 65536 + 64);
        const long long tables = fft::largeTableBytes<float>(order);
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

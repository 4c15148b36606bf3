// SPDX-License-Identifier: BSD-3-Clause
// SortRadixAscend, SortRadixDescend and SortRadixGetBufferSize.
#include <algorithm>
#include <cstring>
#include <limits>

#include "sort_reference.h"
#include "stats/radix.h"

using qsptest::Guarded;

namespace {

using sortref::referenceSorted;
using sortref::typeCode;

template <class T>
using SortFn = QspStatus (*)(T*, int, Qsp8u*);
template <class T>
using SortFnL = QspStatus (*)(T*, Qsp64s, Qsp8u*);

template <class T>
struct Sorts {
    SortFn<T> ascend, descend;
    SortFnL<T> ascendL = nullptr, descendL = nullptr;
};

template <class T>
Sorts<T> sortsOf()
{
    if constexpr (std::is_same_v<T, Qsp8u>) return {qspsSortRadixAscend_8u_I, qspsSortRadixDescend_8u_I};
    if constexpr (std::is_same_v<T, Qsp16u>) return {qspsSortRadixAscend_16u_I, qspsSortRadixDescend_16u_I};
    if constexpr (std::is_same_v<T, Qsp16s>) return {qspsSortRadixAscend_16s_I, qspsSortRadixDescend_16s_I};
    if constexpr (std::is_same_v<T, Qsp32u>) return {qspsSortRadixAscend_32u_I, qspsSortRadixDescend_32u_I};
    if constexpr (std::is_same_v<T, Qsp32s>)
        return {qspsSortRadixAscend_32s_I, qspsSortRadixDescend_32s_I, qspsSortRadixAscend_32s_I_L,
                qspsSortRadixDescend_32s_I_L};
    if constexpr (std::is_same_v<T, Qsp32f>)
        return {qspsSortRadixAscend_32f_I, qspsSortRadixDescend_32f_I, qspsSortRadixAscend_32f_I_L,
                qspsSortRadixDescend_32f_I_L};
    if constexpr (std::is_same_v<T, Qsp64u>)
        return {qspsSortRadixAscend_64u_I, qspsSortRadixDescend_64u_I, qspsSortRadixAscend_64u_I_L,
                qspsSortRadixDescend_64u_I_L};
    if constexpr (std::is_same_v<T, Qsp64s>)
        return {qspsSortRadixAscend_64s_I, qspsSortRadixDescend_64s_I, qspsSortRadixAscend_64s_I_L,
                qspsSortRadixDescend_64s_I_L};
    if constexpr (std::is_same_v<T, Qsp64f>)
        return {qspsSortRadixAscend_64f_I, qspsSortRadixDescend_64f_I, qspsSortRadixAscend_64f_I_L,
                qspsSortRadixDescend_64f_I_L};
}

int bufferSize(QspDataType code, int len)
{
    int size = -1;
    EXPECT_EQ(qspsSortRadixGetBufferSize(len, code, &size), qspStsOk);
    return size;
}

// Sorts v with the library through every form of the type (32-bit and, where
// it exists, 64-bit length), in a buffer of exactly the reported size placed
// at an odd address, and checks the result bit for bit against the
// reference, and that neither the vector's nor the buffer's guards were
// touched.
template <class T>
void expectSorts(const std::vector<T>& v, const char* what)
{
    const Sorts<T> fns = sortsOf<T>();
    const int len = int(v.size());
    const int bytes = bufferSize(typeCode<T>(), len);
    for (bool ascend : {true, false}) {
        const std::vector<T> want = referenceSorted(v, ascend);
        for (bool wide : {false, true}) {
            SortFnL<T> fnL = ascend ? fns.ascendL : fns.descendL;
            if (wide && !fnL) continue;
            Guarded<T> data(len);
            std::memcpy(data.data(), v.data(), len * sizeof(T));
            Guarded<Qsp8u> buffer(bytes + 1);
            Qsp8u* odd = buffer.data() + 1;
            const QspStatus s = wide ? fnL(data.data(), len, odd) : (ascend ? fns.ascend : fns.descend)(data.data(), len, odd);
            ASSERT_EQ(s, qspStsOk) << what;
            ASSERT_TRUE(data.guardsIntact()) << what;
            ASSERT_TRUE(buffer.guardsIntact()) << what << ": the sort used more than the reported buffer";
            ASSERT_EQ(buffer[0], qsptest::kCanaryByte) << what;
            ASSERT_EQ(std::memcmp(data.data(), want.data(), len * sizeof(T)), 0)
                << what << " len " << len << (ascend ? " ascending" : " descending") << (wide ? " _L" : "");
        }
    }
}

template <class T>
void checkEveryShape()
{
    // Random bit patterns of every length up to 100 and a few large ones.
    for (int len = 1; len <= 100; ++len) expectSorts(qsptest::randomBits<T>(len), "random");
    for (int len : {255, 256, 257, 2047, 2048, 2049, 4096 + 13, 40000}) expectSorts(qsptest::randomBits<T>(len), "random");

    // Special values mixed with random ones, many repeats of each.
    std::vector<T> mixed = qsptest::randomBits<T>(3000);
    const std::vector<T> sp = sortref::specials<T>();
    for (size_t i = 0; i < mixed.size(); i += 3) mixed[i] = sp[(i / 3) % sp.size()];
    expectSorts(mixed, "special values");
    expectSorts(sp, "special values alone");

    // Already sorted, reversed, all equal, two values, narrow range.
    std::vector<T> sorted = referenceSorted(qsptest::randomBits<T>(5000), true);
    expectSorts(sorted, "sorted");
    std::reverse(sorted.begin(), sorted.end());
    expectSorts(sorted, "reversed");
    for (T value : sp) expectSorts(std::vector<T>(777, value), "all equal");
    std::vector<T> narrow(4000);
    for (size_t i = 0; i < narrow.size(); ++i) narrow[i] = T(qsptest::rng()() % 5);
    expectSorts(narrow, "narrow range");
}

}  // namespace

TEST(SortRadix, Bytes) { checkEveryShape<Qsp8u>(); }
TEST(SortRadix, Unsigned16) { checkEveryShape<Qsp16u>(); }
TEST(SortRadix, Signed16) { checkEveryShape<Qsp16s>(); }
TEST(SortRadix, Unsigned32) { checkEveryShape<Qsp32u>(); }
TEST(SortRadix, Signed32) { checkEveryShape<Qsp32s>(); }
TEST(SortRadix, Float32) { checkEveryShape<Qsp32f>(); }
TEST(SortRadix, Unsigned64) { checkEveryShape<Qsp64u>(); }
TEST(SortRadix, Signed64) { checkEveryShape<Qsp64s>(); }
TEST(SortRadix, Float64) { checkEveryShape<Qsp64f>(); }

TEST(SortRadix, NegativeZeroBeforePositiveZeroAndNaNsOutsideInfinities)
{
    const float inf = std::numeric_limits<float>::infinity();
    const uint32_t negNaN = 0xFFC00000u, posNaN = 0x7FC00000u;
    float nn, pn;
    std::memcpy(&nn, &negNaN, 4);
    std::memcpy(&pn, &posNaN, 4);
    std::vector<float> v = {0.0f, pn, -0.0f, 1.0f, -inf, nn, inf, -1.0f};
    std::vector<Qsp8u> buffer(bufferSize(qsp32f, 8));
    ASSERT_EQ(qspsSortRadixAscend_32f_I(v.data(), 8, buffer.data()), qspStsOk);
    const uint32_t want[] = {negNaN, 0xFF800000u, 0xBF800000u, 0x80000000u, 0u, 0x3F800000u, 0x7F800000u, posNaN};
    for (int i = 0; i < 8; ++i) {
        uint32_t got;
        std::memcpy(&got, &v[i], 4);
        EXPECT_EQ(got, want[i]) << i;
    }
    ASSERT_EQ(qspsSortRadixDescend_32f_I(v.data(), 8, buffer.data()), qspStsOk);
    for (int i = 0; i < 8; ++i) {
        uint32_t got;
        std::memcpy(&got, &v[i], 4);
        EXPECT_EQ(got, want[7 - i]) << i;
    }
}

TEST(SortRadix, LengthOneIsLeftAsItIs)
{
    std::vector<Qsp8u> buffer(bufferSize(qsp64f, 1));
    const uint64_t nanBits = 0xFFF8000000000123ull;
    double x;
    std::memcpy(&x, &nanBits, 8);
    ASSERT_EQ(qspsSortRadixDescend_64f_I(&x, 1, buffer.data()), qspStsOk);
    EXPECT_TRUE(qsptest::sameBits(x, [&] { double y; std::memcpy(&y, &nanBits, 8); return y; }()));
    Qsp16s s = -7;
    ASSERT_EQ(qspsSortRadixAscend_16s_I(&s, 1, buffer.data()), qspStsOk);
    EXPECT_EQ(s, -7);
}

// The histograms of the 32-bit sorts stand at the start of the buffer: 2048
// counters for key bits 0..10, 2048 for bits 11..21, 1024 for bits 22..31.
// Each ends as (number of keys whose digit is at most its own) - 1, and the
// temporary array behind them ends holding the sorted vector.
TEST(SortRadix, Float32BufferHoldsHistogramsAndTemporaryArray)
{
    const int len = 3000;
    std::vector<float> v = qsptest::randomBits<float>(len);
    const std::vector<float> in = v;
    std::vector<Qsp8u> buffer(bufferSize(qsp32f, len));
    ASSERT_EQ(buffer.size(), size_t(4 * len + 20480));
    ASSERT_EQ(qspsSortRadixAscend_32f_I(v.data(), len, buffer.data()), qspStsOk);

    std::vector<uint32_t> want(5120, 0);
    for (float x : in) {
        int32_t s;
        std::memcpy(&s, &x, 4);
        const uint32_t key = s < 0 ? uint32_t(s) ^ 0xFFFFFFFFu : uint32_t(s) ^ 0x80000000u;
        ++want[key & 0x7FF];
        ++want[2048 + ((key >> 11) & 0x7FF)];
        ++want[4096 + (key >> 22)];
    }
    for (int base : {0, 2048, 4096}) {
        uint32_t run = 0;
        for (int j = 0; j < (base == 4096 ? 1024 : 2048); ++j) {
            run += want[base + j];
            want[base + j] = run - 1;
        }
    }
    std::vector<uint32_t> got(5120);
    std::memcpy(got.data(), buffer.data(), 20480);
    EXPECT_EQ(got, want);
    EXPECT_EQ(std::memcmp(buffer.data() + 20480, v.data(), 4 * len), 0);
}

// The 16-bit sorts: two byte histograms of 256 counters, the temporary array
// right behind them.
TEST(SortRadix, Signed16BufferHoldsTwoByteHistograms)
{
    const int len = 1000;
    std::vector<Qsp16s> v = qsptest::randomBits<Qsp16s>(len);
    const std::vector<Qsp16s> in = v;
    std::vector<Qsp8u> buffer(bufferSize(qsp16s, len));
    ASSERT_EQ(buffer.size(), size_t(2 * len + 2048));
    ASSERT_EQ(qspsSortRadixAscend_16s_I(v.data(), len, buffer.data()), qspStsOk);
    std::vector<uint32_t> want(512, 0);
    for (Qsp16s x : in) {
        const uint16_t key = uint16_t(x) ^ 0x8000u;
        ++want[key & 0xFF];
        ++want[256 + (key >> 8)];
    }
    for (int base : {0, 256}) {
        uint32_t run = 0;
        for (int j = 0; j < 256; ++j) {
            run += want[base + j];
            want[base + j] = run - 1;
        }
    }
    std::vector<uint32_t> got(512);
    std::memcpy(got.data(), buffer.data(), 2048);
    EXPECT_EQ(got, want);
}

TEST(SortRadix, BytesUseOnlyTheirCounters)
{
    std::vector<Qsp8u> v = qsptest::randomBits<Qsp8u>(500);
    Guarded<Qsp8u> buffer(1024 + 500);
    ASSERT_EQ(qspsSortRadixDescend_8u_I(v.data(), 500, buffer.data()), qspStsOk);
    for (int i = 1024; i < 1524; ++i) ASSERT_EQ(buffer[i], qsptest::kCanaryByte);
    EXPECT_TRUE(std::is_sorted(v.rbegin(), v.rend()));
}

TEST(SortRadix, Statuses)
{
    Guarded<Qsp32f> v(8);
    Guarded<Qsp8u> buffer(20480 + 32);
    EXPECT_EQ(qspsSortRadixAscend_32f_I(nullptr, 8, buffer.data()), qspStsNullPtr);
    EXPECT_EQ(qspsSortRadixAscend_32f_I(v.data(), 8, nullptr), qspStsNullPtr);
    EXPECT_EQ(qspsSortRadixAscend_32f_I(nullptr, 0, nullptr), qspStsNullPtr);
    EXPECT_EQ(qspsSortRadixAscend_32f_I(v.data(), 0, buffer.data()), qspStsBadSize);
    EXPECT_EQ(qspsSortRadixDescend_32f_I(v.data(), -1, buffer.data()), qspStsBadSize);
    // The 64-bit length forms look at the length first.
    EXPECT_EQ(qspsSortRadixAscend_32f_I_L(nullptr, 0, nullptr), qspStsBadSize);
    EXPECT_EQ(qspsSortRadixAscend_32f_I_L(nullptr, 8, buffer.data()), qspStsNullPtr);
    EXPECT_EQ(qspsSortRadixDescend_64f_I_L(reinterpret_cast<Qsp64f*>(v.data()), 4, nullptr), qspStsNullPtr);
    EXPECT_EQ(qspsSortRadixDescend_64s_I_L(reinterpret_cast<Qsp64s*>(v.data()), -5, buffer.data()), qspStsBadSize);
    EXPECT_TRUE(v.untouched());
    EXPECT_TRUE(buffer.untouched());

    // Every member has the same checks.
    EXPECT_EQ(qspsSortRadixAscend_8u_I(reinterpret_cast<Qsp8u*>(v.data()), 4, nullptr), qspStsNullPtr);
    EXPECT_EQ(qspsSortRadixAscend_8u_I(reinterpret_cast<Qsp8u*>(v.data()), 0, buffer.data()), qspStsBadSize);
    EXPECT_EQ(qspsSortRadixDescend_16u_I(nullptr, 4, buffer.data()), qspStsNullPtr);
    EXPECT_EQ(qspsSortRadixDescend_16s_I(reinterpret_cast<Qsp16s*>(v.data()), 0, buffer.data()), qspStsBadSize);
    EXPECT_EQ(qspsSortRadixAscend_32u_I(reinterpret_cast<Qsp32u*>(v.data()), 4, nullptr), qspStsNullPtr);
    EXPECT_EQ(qspsSortRadixAscend_32s_I(reinterpret_cast<Qsp32s*>(v.data()), -3, buffer.data()), qspStsBadSize);
    EXPECT_EQ(qspsSortRadixAscend_64u_I(nullptr, 1, buffer.data()), qspStsNullPtr);
    EXPECT_EQ(qspsSortRadixDescend_64s_I(reinterpret_cast<Qsp64s*>(v.data()), 0, buffer.data()), qspStsBadSize);
    EXPECT_EQ(qspsSortRadixAscend_64u_I_L(nullptr, 0, nullptr), qspStsBadSize);
    EXPECT_EQ(qspsSortRadixAscend_32s_I_L(nullptr, 1, buffer.data()), qspStsNullPtr);
    EXPECT_TRUE(v.untouched());
    EXPECT_TRUE(buffer.untouched());
}

TEST(SortRadix, BufferSizes)
{
    struct Row {
        QspDataType code;
        long long perElement, fixed;
    };
    const Row rows[] = {{qsp8u, 1, 1024},   {qsp16u, 2, 2048},  {qsp16s, 2, 2048},  {qsp32u, 4, 20480},
                        {qsp32s, 4, 20480}, {qsp32f, 4, 20480}, {qsp64u, 8, 81920}, {qsp64s, 8, 81920},
                        {qsp64f, 8, 40960}};
    for (const Row& r : rows) {
        for (int len : {1, 2, 1000, 123457}) {
            int size = -1;
            ASSERT_EQ(qspsSortRadixGetBufferSize(len, r.code, &size), qspStsOk);
            EXPECT_EQ(size, r.perElement * len + r.fixed) << r.code;
            Qsp64s sizeL = -1;
            ASSERT_EQ(qspsSortRadixGetBufferSize_L(len, r.code, &sizeL), qspStsOk);
            EXPECT_EQ(sizeL, r.perElement * len + r.fixed) << r.code;
        }
    }
    int size = -1;
    EXPECT_EQ(qspsSortRadixGetBufferSize(1000, qsp32f, &size), qspStsOk);
    EXPECT_EQ(size, 24480);

    for (int code : {-1, 0, 2, 3, 4, 6, 8, 10, 12, 14, 16, 18, 20, 21, 1000}) {
        size = -1;
        EXPECT_EQ(qspsSortRadixGetBufferSize(1000, code, &size), qspStsBadDataType) << code;
        EXPECT_EQ(size, 0) << code;
        Qsp64s sizeL = -1;
        EXPECT_EQ(qspsSortRadixGetBufferSize_L(1000, code, &sizeL), qspStsBadDataType) << code;
        EXPECT_EQ(sizeL, 0) << code;
    }
}

TEST(SortRadix, BufferSizeChecksAndOverflow)
{
    int size = -1;
    EXPECT_EQ(qspsSortRadixGetBufferSize(10, qsp32f, nullptr), qspStsNullPtr);
    EXPECT_EQ(qspsSortRadixGetBufferSize(0, 2, nullptr), qspStsNullPtr);
    EXPECT_EQ(qspsSortRadixGetBufferSize(0, qsp32f, &size), qspStsBadSize);
    EXPECT_EQ(qspsSortRadixGetBufferSize(-1, 2, &size), qspStsBadSize);
    EXPECT_EQ(size, -1);

    // The largest sizes that fit a signed 32-bit result, and one more.
    EXPECT_EQ(qspsSortRadixGetBufferSize(2147483647 - 1024, qsp8u, &size), qspStsOk);
    EXPECT_EQ(size, 2147483647);
    size = -1;
    EXPECT_EQ(qspsSortRadixGetBufferSize(2147483647 - 1023, qsp8u, &size), qspStsOverflow);
    EXPECT_EQ(qspsSortRadixGetBufferSize(2147483647, qsp32f, &size), qspStsOverflow);
    EXPECT_EQ(qspsSortRadixGetBufferSize((2147483647 - 20480) / 4 + 1, qsp32s, &size), qspStsOverflow);
    EXPECT_EQ(size, -1);
    EXPECT_EQ(qspsSortRadixGetBufferSize((2147483647 - 20480) / 4, qsp32s, &size), qspStsOk);
    EXPECT_EQ(size, (2147483647 - 20480) / 4 * 4 + 20480);

    Qsp64s sizeL = -1;
    EXPECT_EQ(qspsSortRadixGetBufferSize_L(0, 2, nullptr), qspStsBadSize);
    EXPECT_EQ(qspsSortRadixGetBufferSize_L(-7, qsp32f, nullptr), qspStsBadSize);
    EXPECT_EQ(qspsSortRadixGetBufferSize_L(7, qsp32f, nullptr), qspStsNullPtr);
    EXPECT_EQ(qspsSortRadixGetBufferSize_L(Qsp64s(1) << 40, qsp32f, &sizeL), qspStsOk);
    EXPECT_EQ(sizeL, (Qsp64s(1) << 42) + 20480);
    EXPECT_EQ(qspsSortRadixGetBufferSize_L(Qsp64s(1) << 62, qsp8u, &sizeL), qspStsOk);
    EXPECT_EQ(sizeL, (Qsp64s(1) << 62) + 1024);
    sizeL = -1;
    EXPECT_EQ(qspsSortRadixGetBufferSize_L(std::numeric_limits<Qsp64s>::max(), qsp8u, &sizeL), qspStsOverflow);
    EXPECT_EQ(qspsSortRadixGetBufferSize_L(Qsp64s(1) << 61, qsp32f, &sizeL), qspStsOverflow);
    EXPECT_EQ(qspsSortRadixGetBufferSize_L((Qsp64s(1) << 60) - 5120, qsp64f, &sizeL), qspStsOverflow);  // 2^63 exactly
    EXPECT_EQ(sizeL, -1);
    EXPECT_EQ(qspsSortRadixGetBufferSize_L(Qsp64s(1) << 59, qsp64u, &sizeL), qspStsOk);
    EXPECT_EQ(sizeL, (Qsp64s(1) << 62) + 81920);
}

// Vectors of 2^32 elements or more are sorted by bytes with 64-bit
// counters; the same kernel is run here on small vectors.
TEST(SortRadix, WideCounterPlansSortLikeTheOrdinaryOnes)
{
    using namespace y8::radix;
    for (int len : {1, 2, 17, 1000, 5000}) {
        std::vector<float> f = qsptest::randomBits<float>(len);
        std::vector<Qsp8u> buffer(20480 + 4 * len);
        auto* keys = reinterpret_cast<Qsp32u*>(f.data());
        const std::vector<float> want = referenceSorted(f, true);
        ownsSortRadix<FloatKey<Order::Ascend>, DigitsWide32, Qsp64u>(keys, len, buffer.data(), 20480);
        ASSERT_EQ(std::memcmp(f.data(), want.data(), 4 * len), 0) << len;

        std::vector<Qsp64s> s = qsptest::randomBits<Qsp64s>(len);
        std::vector<Qsp8u> buffer64(40960 + 8 * len);
        const std::vector<Qsp64s> want64 = referenceSorted(s, false);
        ownsSortRadix<SignedKey<Order::Descend>, DigitsWide64, Qsp64u>(reinterpret_cast<Qsp64u*>(s.data()), len,
                                                                      buffer64.data(), 40960);
        ASSERT_EQ(s, want64) << len;
    }
}

TEST(SortRadix, KeyCopyMovesForwardWhenTheArraysOverlap)
{
    using namespace y8::radix;
    for (int len = 1; len <= 40; ++len) {
        std::vector<Qsp32u> a(len + 8);
        for (int i = 0; i < len + 8; ++i) a[i] = 1000 + i;
        std::vector<Qsp32u> b(len);
        auto cells = [](Qsp32u* p) { return reinterpret_cast<Cell<Qsp32u>*>(p); };
        ownsCopyKeys<Qsp32u>(cells(a.data()), cells(b.data()), len);
        for (int i = 0; i < len; ++i) ASSERT_EQ(b[i], Qsp32u(1000 + i));
        // Destination three elements below the source: an element-wise
        // forward copy reads every element before it is overwritten.
        ownsCopyKeys<Qsp32u>(cells(a.data() + 3), cells(a.data()), len);
        for (int i = 0; i < len; ++i) ASSERT_EQ(a[i], Qsp32u(1003 + i));
    }
}

// SPDX-License-Identifier: BSD-3-Clause
// Zero and Set of every type: statuses, canaries on error, exact bit
// patterns for every length and alignment.
#include "qsp_test.h"

using qsptest::Guarded;

namespace {

struct ZeroCase {
    const char* name;
    size_t size;
    QspStatus (*fn)(void*, int);
};

#define QSP_ZERO(t, T) ZeroCase{#t, sizeof(T), [](void* p, int n) { return qspsZero_##t(static_cast<T*>(p), n); }}
const ZeroCase kZero[] = {
    QSP_ZERO(8u, Qsp8u),     QSP_ZERO(16s, Qsp16s), QSP_ZERO(16sc, Qsp16sc), QSP_ZERO(32s, Qsp32s),
    QSP_ZERO(32sc, Qsp32sc), QSP_ZERO(32f, Qsp32f), QSP_ZERO(32fc, Qsp32fc), QSP_ZERO(64s, Qsp64s),
    QSP_ZERO(64sc, Qsp64sc), QSP_ZERO(64f, Qsp64f), QSP_ZERO(64fc, Qsp64fc),
};

struct ZeroLCase {
    const char* name;
    size_t size;
    QspStatus (*fn)(void*, Qsp64s);
};
#define QSP_ZERO_L(t, T) \
    ZeroLCase{#t, sizeof(T), [](void* p, Qsp64s n) { return qspsZero_##t##_L(static_cast<T*>(p), n); }}
const ZeroLCase kZeroL[] = {QSP_ZERO_L(32f, Qsp32f), QSP_ZERO_L(32fc, Qsp32fc), QSP_ZERO_L(64f, Qsp64f),
                            QSP_ZERO_L(64fc, Qsp64fc)};

// Set with a value given as its bytes: the test fills `value` with random
// bits and expects exactly those bits in every element.
struct SetCase {
    const char* name;
    size_t size;
    QspStatus (*fn)(const void* value, void*, int);
};
#define QSP_SET(t, T)                                                       \
    SetCase{#t, sizeof(T), [](const void* v, void* p, int n) {             \
                T val;                                                      \
                std::memcpy(&val, v, sizeof(T));                            \
                return qspsSet_##t(val, static_cast<T*>(p), n);             \
            }}
const SetCase kSet[] = {
    QSP_SET(8u, Qsp8u),     QSP_SET(16s, Qsp16s), QSP_SET(16sc, Qsp16sc), QSP_SET(32s, Qsp32s),
    QSP_SET(32sc, Qsp32sc), QSP_SET(32f, Qsp32f), QSP_SET(32fc, Qsp32fc), QSP_SET(64s, Qsp64s),
    QSP_SET(64sc, Qsp64sc), QSP_SET(64f, Qsp64f), QSP_SET(64fc, Qsp64fc),
};

// Lengths that cover the short paths, the vector body and its tails, and
// the non-temporal path of large fills.
std::vector<int> lengthsFor(size_t size)
{
    std::vector<int> lens;
    for (int n = 1; n <= 70; ++n) lens.push_back(n);
    for (int n : {127, 128, 129, 1000, 4097}) lens.push_back(n);
    lens.push_back(int((Qsp64s(5) << 20) / Qsp64s(size)) + 3);
    return lens;
}

}  // namespace

TEST(Zero, StatusesAndNothingWrittenOnError)
{
    for (const ZeroCase& c : kZero) {
        Guarded<Qsp8u> buf(64);
        EXPECT_EQ(c.fn(nullptr, 4), qspStsNullPtr) << c.name;
        EXPECT_EQ(c.fn(nullptr, 0), qspStsNullPtr) << c.name << ": pointer checked before length";
        EXPECT_EQ(c.fn(nullptr, -3), qspStsNullPtr) << c.name;
        EXPECT_EQ(c.fn(buf.data(), 0), qspStsBadSize) << c.name;
        EXPECT_EQ(c.fn(buf.data(), -1), qspStsBadSize) << c.name;
        EXPECT_TRUE(buf.untouched()) << c.name;
    }
}

TEST(Zero, ClearsExactlyTheVectorAtEveryLengthAndAlignment)
{
    for (const ZeroCase& c : kZero) {
        for (int len : lengthsFor(c.size)) {
            for (size_t misalign : {size_t(0), size_t(1), c.size / 2 + 1, size_t(8)}) {
                Guarded<Qsp8u> buf(len * c.size + misalign);
                ASSERT_EQ(c.fn(buf.data() + misalign, len), qspStsOk) << c.name << " len " << len;
                for (size_t i = 0; i < misalign; ++i) ASSERT_EQ(buf[i], qsptest::kCanaryByte);
                for (size_t i = 0; i < len * c.size; ++i) ASSERT_EQ(buf[misalign + i], 0) << c.name << " len " << len;
                ASSERT_TRUE(buf.guardsIntact()) << c.name << " len " << len;
            }
        }
    }
}

TEST(Zero, ChunkingFormsCheckTheLengthFirst)
{
    for (const ZeroLCase& c : kZeroL) {
        Guarded<Qsp8u> buf(256);
        // The 64-bit length is checked before the pointer, unlike the ordinary functions.
        EXPECT_EQ(c.fn(nullptr, 0), qspStsBadSize) << c.name;
        EXPECT_EQ(c.fn(nullptr, -5), qspStsBadSize) << c.name;
        EXPECT_EQ(c.fn(nullptr, 3), qspStsNullPtr) << c.name;
        EXPECT_EQ(c.fn(buf.data(), 0), qspStsBadSize) << c.name;
        EXPECT_TRUE(buf.untouched());
        ASSERT_EQ(c.fn(buf.data(), 7), qspStsOk);
        for (size_t i = 0; i < 7 * c.size; ++i) ASSERT_EQ(buf[i], 0);
        EXPECT_TRUE(buf.guardsIntact());
    }
}

TEST(Set, StatusesAndNothingWrittenOnError)
{
    for (const SetCase& c : kSet) {
        Guarded<Qsp8u> buf(64);
        const std::vector<Qsp8u> value(c.size, 0x11);
        EXPECT_EQ(c.fn(value.data(), nullptr, 4), qspStsNullPtr) << c.name;
        EXPECT_EQ(c.fn(value.data(), nullptr, 0), qspStsNullPtr) << c.name;
        EXPECT_EQ(c.fn(value.data(), buf.data(), 0), qspStsBadSize) << c.name;
        EXPECT_EQ(c.fn(value.data(), buf.data(), -7), qspStsBadSize) << c.name;
        EXPECT_TRUE(buf.untouched()) << c.name;
    }
}

TEST(Set, WritesTheValueBitsAtEveryLengthAndAlignment)
{
    for (const SetCase& c : kSet) {
        for (int len : lengthsFor(c.size)) {
            for (size_t misalign : {size_t(0), size_t(1), c.size / 2 + 1, size_t(8)}) {
                const std::vector<Qsp8u> value = qsptest::randomBits<Qsp8u>(c.size);
                Guarded<Qsp8u> buf(len * c.size + misalign);
                ASSERT_EQ(c.fn(value.data(), buf.data() + misalign, len), qspStsOk);
                for (size_t i = 0; i < len * c.size; ++i)
                    ASSERT_EQ(buf[misalign + i], value[i % c.size]) << c.name << " len " << len << " byte " << i;
                ASSERT_TRUE(buf.guardsIntact()) << c.name << " len " << len;
            }
        }
    }
}

TEST(Set, FloatingValuesKeepTheirExactBitPatterns)
{
    Qsp32f f[9];
    ASSERT_EQ(qspsSet_32f(-0.0f, f, 9), qspStsOk);
    for (Qsp32f x : f) {
        Qsp32u bits;
        std::memcpy(&bits, &x, 4);
        EXPECT_EQ(bits, 0x80000000u);
    }
    const Qsp32u nanBits = 0xFFC01234u;  // a negative quiet NaN with a payload
    Qsp32f nan;
    std::memcpy(&nan, &nanBits, 4);
    ASSERT_EQ(qspsSet_32f(nan, f, 9), qspStsOk);
    for (Qsp32f x : f) EXPECT_TRUE(qsptest::sameBits(x, nan));

    const Qsp64u nanBits64 = 0x7FF0000000000001ull;  // a signalling NaN
    Qsp64f nan64, d[5];
    std::memcpy(&nan64, &nanBits64, 8);
    ASSERT_EQ(qspsSet_64f(nan64, d, 5), qspStsOk);
    for (Qsp64f x : d) EXPECT_TRUE(qsptest::sameBits(x, nan64));

    const Qsp32fc z = {-0.0f, nan};
    Qsp32fc zs[3];
    ASSERT_EQ(qspsSet_32fc(z, zs, 3), qspStsOk);
    for (const Qsp32fc& x : zs) EXPECT_TRUE(qsptest::sameBits(x, z));
}

TEST(Set, SixteenBitValueIsTheLow16Bits)
{
    Qsp16s v[3];
    ASSERT_EQ(qspsSet_16s(-2, v, 3), qspStsOk);
    for (Qsp16s x : v) EXPECT_EQ(x, -2);
    ASSERT_EQ(qspsSet_16s(-32768, v, 3), qspStsOk);
    for (Qsp16s x : v) EXPECT_EQ(x, -32768);
}

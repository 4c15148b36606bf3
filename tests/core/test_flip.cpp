// SPDX-License-Identifier: BSD-3-Clause
// Flip of every type: out of place, in place (odd and even lengths) and the
// 64-bit forms with their check order.
#include "qsp_test.h"

using qsptest::Guarded;

namespace {

struct FlipCase {
    const char* name;
    size_t size;
    QspStatus (*out)(const void*, void*, int);
    QspStatus (*inPlace)(void*, int);
    QspStatus (*outL)(const void*, void*, Qsp64s);
    QspStatus (*inPlaceL)(void*, Qsp64s);
};

#define QSP_FLIP_OUT(t, T) [](const void* s, void* d, int n) { return qspsFlip_##t(static_cast<const T*>(s), static_cast<T*>(d), n); }
#define QSP_FLIP_IN(t, T) [](void* p, int n) { return qspsFlip_##t##_I(static_cast<T*>(p), n); }
#define QSP_FLIP(t, T) FlipCase{#t, sizeof(T), QSP_FLIP_OUT(t, T), QSP_FLIP_IN(t, T), nullptr, nullptr}
#define QSP_FLIP_L(t, T)                                                                                  \
    FlipCase{#t, sizeof(T), QSP_FLIP_OUT(t, T), QSP_FLIP_IN(t, T),                                         \
             [](const void* s, void* d, Qsp64s n) { return qspsFlip_##t##_L(static_cast<const T*>(s), static_cast<T*>(d), n); }, \
             [](void* p, Qsp64s n) { return qspsFlip_##t##_I_L(static_cast<T*>(p), n); }}

const FlipCase kFlip[] = {QSP_FLIP(8u, Qsp8u), QSP_FLIP(16u, Qsp16u), QSP_FLIP_L(32f, Qsp32f),
                          QSP_FLIP_L(32fc, Qsp32fc), QSP_FLIP_L(64f, Qsp64f), QSP_FLIP_L(64fc, Qsp64fc)};

std::vector<Qsp8u> reversedElements(const Qsp8u* p, size_t len, size_t size)
{
    std::vector<Qsp8u> r(len * size);
    for (size_t i = 0; i < len; ++i) std::memcpy(&r[i * size], p + (len - 1 - i) * size, size);
    return r;
}

std::vector<int> lengths()
{
    std::vector<int> lens;
    for (int n = 1; n <= 70; ++n) lens.push_back(n);
    for (int n : {127, 128, 129, 1000, 1001, 65537}) lens.push_back(n);
    return lens;
}

}  // namespace

TEST(Flip, Statuses)
{
    for (const FlipCase& c : kFlip) {
        Guarded<Qsp8u> src(256), dst(256);
        EXPECT_EQ(c.out(nullptr, dst.data(), 3), qspStsNullPtr) << c.name;
        EXPECT_EQ(c.out(src.data(), nullptr, 3), qspStsNullPtr) << c.name;
        EXPECT_EQ(c.out(nullptr, nullptr, 0), qspStsNullPtr) << c.name;
        EXPECT_EQ(c.out(src.data(), dst.data(), 0), qspStsBadSize) << c.name;
        EXPECT_EQ(c.out(src.data(), dst.data(), -2), qspStsBadSize) << c.name;
        EXPECT_EQ(c.inPlace(nullptr, 3), qspStsNullPtr) << c.name;
        EXPECT_EQ(c.inPlace(nullptr, 0), qspStsNullPtr) << c.name;
        EXPECT_EQ(c.inPlace(dst.data(), 0), qspStsBadSize) << c.name;
        EXPECT_TRUE(dst.untouched()) << c.name;
        if (!c.outL) continue;
        // The 64-bit forms check the length before the pointers.
        EXPECT_EQ(c.outL(nullptr, nullptr, 0), qspStsBadSize) << c.name;
        EXPECT_EQ(c.outL(nullptr, dst.data(), -1), qspStsBadSize) << c.name;
        EXPECT_EQ(c.outL(nullptr, dst.data(), 2), qspStsNullPtr) << c.name;
        EXPECT_EQ(c.outL(src.data(), nullptr, 2), qspStsNullPtr) << c.name;
        EXPECT_EQ(c.inPlaceL(nullptr, 0), qspStsBadSize) << c.name;
        EXPECT_EQ(c.inPlaceL(nullptr, 2), qspStsNullPtr) << c.name;
        EXPECT_EQ(c.inPlaceL(dst.data(), -3), qspStsBadSize) << c.name;
        EXPECT_TRUE(dst.untouched()) << c.name;
    }
}

TEST(Flip, OutOfPlaceReversesEveryLength)
{
    for (const FlipCase& c : kFlip) {
        for (int len : lengths()) {
            for (size_t shift : {size_t(0), size_t(1), size_t(4)}) {
                const std::vector<Qsp8u> data = qsptest::randomBits<Qsp8u>(len * c.size + shift);
                Guarded<Qsp8u> dst(len * c.size + shift);
                ASSERT_EQ(c.out(data.data() + shift, dst.data() + shift, len), qspStsOk);
                const std::vector<Qsp8u> expected = reversedElements(data.data() + shift, len, c.size);
                ASSERT_EQ(std::memcmp(dst.data() + shift, expected.data(), expected.size()), 0)
                    << c.name << " len " << len;
                ASSERT_TRUE(dst.guardsIntact());
                if (!c.outL) continue;
                Guarded<Qsp8u> dstL(len * c.size);
                ASSERT_EQ(c.outL(data.data() + shift, dstL.data(), len), qspStsOk);
                ASSERT_EQ(std::memcmp(dstL.data(), expected.data(), expected.size()), 0) << c.name << " _L";
            }
        }
    }
}

TEST(Flip, InPlaceReversesEveryLength)
{
    for (const FlipCase& c : kFlip) {
        for (int len : lengths()) {
            for (size_t shift : {size_t(0), size_t(3)}) {
                const std::vector<Qsp8u> data = qsptest::randomBits<Qsp8u>(len * c.size);
                const std::vector<Qsp8u> expected = reversedElements(data.data(), len, c.size);
                Guarded<Qsp8u> buf(len * c.size + shift);
                std::memcpy(buf.data() + shift, data.data(), data.size());
                ASSERT_EQ(c.inPlace(buf.data() + shift, len), qspStsOk);
                ASSERT_EQ(std::memcmp(buf.data() + shift, expected.data(), expected.size()), 0)
                    << c.name << " len " << len;
                ASSERT_TRUE(buf.guardsIntact());
                if (!c.inPlaceL) continue;
                ASSERT_EQ(c.inPlaceL(buf.data() + shift, len), qspStsOk);
                ASSERT_EQ(std::memcmp(buf.data() + shift, data.data(), data.size()), 0) << c.name << " _I_L";
            }
        }
    }
}

TEST(Flip, InPlaceOddComplexLengthKeepsTheMiddleElementAndItsParts)
{
    Qsp32fc v[5] = {{1, 2}, {3, 4}, {5, 6}, {7, 8}, {9, 10}};
    ASSERT_EQ(qspsFlip_32fc_I(v, 5), qspStsOk);
    const Qsp32fc expected[5] = {{9, 10}, {7, 8}, {5, 6}, {3, 4}, {1, 2}};
    for (int i = 0; i < 5; ++i) {
        EXPECT_EQ(v[i].re, expected[i].re);
        EXPECT_EQ(v[i].im, expected[i].im);
    }
}

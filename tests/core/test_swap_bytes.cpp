// SPDX-License-Identifier: BSD-3-Clause
// SwapBytes: byte order reversed inside each element, out of place and in
// place, for 16-, 24-, 32- and 64-bit elements.
#include "qsp_test.h"

using qsptest::Guarded;

namespace {

struct SwapCase {
    const char* name;
    size_t size;
    QspStatus (*out)(const void*, void*, int);
    QspStatus (*inPlace)(void*, int);
};
#define QSP_SWAP(t, T)                                                                                         \
    SwapCase{#t, sizeof(T) * (std::string(#t) == "24u" ? 3 : 1),                                               \
             [](const void* s, void* d, int n) { return qspsSwapBytes_##t(static_cast<const T*>(s), static_cast<T*>(d), n); }, \
             [](void* p, int n) { return qspsSwapBytes_##t##_I(static_cast<T*>(p), n); }}
const SwapCase kSwap[] = {QSP_SWAP(16u, Qsp16u), QSP_SWAP(24u, Qsp8u), QSP_SWAP(32u, Qsp32u), QSP_SWAP(64u, Qsp64u)};

std::vector<Qsp8u> swappedBytes(const std::vector<Qsp8u>& v, size_t size)
{
    std::vector<Qsp8u> r(v.size());
    for (size_t e = 0; e < v.size(); e += size)
        for (size_t b = 0; b < size; ++b) r[e + b] = v[e + size - 1 - b];
    return r;
}

}  // namespace

TEST(SwapBytes, Statuses)
{
    for (const SwapCase& c : kSwap) {
        Guarded<Qsp8u> src(64), dst(64);
        EXPECT_EQ(c.out(nullptr, dst.data(), 2), qspStsNullPtr) << c.name;
        EXPECT_EQ(c.out(src.data(), nullptr, 2), qspStsNullPtr) << c.name;
        EXPECT_EQ(c.out(nullptr, nullptr, 0), qspStsNullPtr) << c.name;
        EXPECT_EQ(c.out(src.data(), dst.data(), 0), qspStsBadSize) << c.name;
        EXPECT_EQ(c.out(src.data(), dst.data(), -1), qspStsBadSize) << c.name;
        EXPECT_EQ(c.inPlace(nullptr, 2), qspStsNullPtr) << c.name;
        EXPECT_EQ(c.inPlace(nullptr, -2), qspStsNullPtr) << c.name;
        EXPECT_EQ(c.inPlace(dst.data(), 0), qspStsBadSize) << c.name;
        EXPECT_TRUE(dst.untouched()) << c.name;
    }
}

TEST(SwapBytes, ReversesTheBytesOfEveryElement)
{
    for (const SwapCase& c : kSwap) {
        for (int len = 1; len <= 100; len += (len < 70 ? 1 : 29)) {
            for (size_t shift : {size_t(0), size_t(1), size_t(5)}) {
                const std::vector<Qsp8u> data = qsptest::randomBits<Qsp8u>(len * c.size);
                const std::vector<Qsp8u> expected = swappedBytes(data, c.size);
                Guarded<Qsp8u> dst(len * c.size + shift);
                ASSERT_EQ(c.out(data.data(), dst.data() + shift, len), qspStsOk);
                ASSERT_EQ(std::memcmp(dst.data() + shift, expected.data(), expected.size()), 0)
                    << c.name << " len " << len;
                ASSERT_TRUE(dst.guardsIntact()) << c.name << " len " << len;
                std::memcpy(dst.data() + shift, data.data(), data.size());
                ASSERT_EQ(c.inPlace(dst.data() + shift, len), qspStsOk);
                ASSERT_EQ(std::memcmp(dst.data() + shift, expected.data(), expected.size()), 0)
                    << c.name << " in place, len " << len;
                ASSERT_TRUE(dst.guardsIntact()) << c.name << " len " << len;
            }
        }
    }
}

TEST(SwapBytes, ThreeByteElementsExchangeFirstAndThird)
{
    const Qsp8u src[6] = {1, 2, 3, 4, 5, 6};
    Qsp8u dst[6] = {};
    ASSERT_EQ(qspsSwapBytes_24u(src, dst, 2), qspStsOk);
    const Qsp8u expected[6] = {3, 2, 1, 6, 5, 4};
    EXPECT_EQ(std::memcmp(dst, expected, 6), 0);
}

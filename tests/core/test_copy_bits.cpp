// SPDX-License-Identifier: BSD-3-Clause
// CopyLE_1u / CopyBE_1u against a bit-by-bit reference for every offset
// 0..15 and every length 1..200, with the bits around the run kept.
#include "qsp_test.h"

namespace {

using CopyBits = QspStatus (*)(const Qsp8u*, int, Qsp8u*, int, int);

// Bit k of a string: byte k / 8; within it from the top (most significant
// first) or from the bottom.
bool getBit(const Qsp8u* p, int k, bool msbFirst)
{
    const int shift = msbFirst ? 7 - k % 8 : k % 8;
    return (p[k / 8] >> shift) & 1;
}

void putBit(Qsp8u* p, int k, bool value, bool msbFirst)
{
    const int shift = msbFirst ? 7 - k % 8 : k % 8;
    p[k / 8] = Qsp8u((p[k / 8] & ~(1 << shift)) | (int(value) << shift));
}

void expectMatchesReference(CopyBits fn, bool msbFirst, const char* name)
{
    for (int srcOff = 0; srcOff < 16; ++srcOff) {
        for (int dstOff = 0; dstOff < 16; ++dstOff) {
            for (int len = 1; len <= 200; ++len) {
                const int srcBytes = (srcOff + len + 7) / 8;
                const int dstBytes = (dstOff + len + 7) / 8;
                const std::vector<Qsp8u> src = qsptest::randomBits<Qsp8u>(srcBytes);
                const std::vector<Qsp8u> before = qsptest::randomBits<Qsp8u>(dstBytes);
                std::vector<Qsp8u> expected = before;
                for (int k = 0; k < len; ++k) putBit(expected.data(), dstOff + k, getBit(src.data(), srcOff + k, msbFirst), msbFirst);
                // Exactly sized heap blocks, so a read or write past the run's bytes is caught under the sanitizers.
                std::unique_ptr<Qsp8u[]> s(new Qsp8u[srcBytes]), d(new Qsp8u[dstBytes]);
                std::memcpy(s.get(), src.data(), srcBytes);
                std::memcpy(d.get(), before.data(), dstBytes);
                ASSERT_EQ(fn(s.get(), srcOff, d.get(), dstOff, len), qspStsOk);
                ASSERT_EQ(std::memcmp(d.get(), expected.data(), dstBytes), 0)
                    << name << " srcOff " << srcOff << " dstOff " << dstOff << " len " << len;
            }
        }
    }
}

}  // namespace

TEST(CopyBits, LittleEndianMatchesBitByBitReference) { expectMatchesReference(qspsCopyLE_1u, true, "LE"); }
TEST(CopyBits, BigEndianMatchesBitByBitReference) { expectMatchesReference(qspsCopyBE_1u, false, "BE"); }

TEST(CopyBits, StatusesInCheckOrder)
{
    for (CopyBits fn : {qspsCopyLE_1u, qspsCopyBE_1u}) {
        Qsp8u src[4] = {1, 2, 3, 4};
        qsptest::Guarded<Qsp8u> dst(4);
        EXPECT_EQ(fn(nullptr, 0, dst.data(), 0, 8), qspStsNullPtr);
        EXPECT_EQ(fn(src, 0, nullptr, 0, 8), qspStsNullPtr);
        EXPECT_EQ(fn(nullptr, -1, nullptr, -1, 0), qspStsNullPtr);
        EXPECT_EQ(fn(src, 0, dst.data(), 0, 0), qspStsBadSize);
        EXPECT_EQ(fn(src, 0, dst.data(), 0, -8), qspStsBadSize);
        // A negative offset is a bad size too, not an error of its own.
        EXPECT_EQ(fn(src, -1, dst.data(), 0, 8), qspStsBadSize);
        EXPECT_EQ(fn(src, 0, dst.data(), -1, 8), qspStsBadSize);
        EXPECT_EQ(fn(src, 0, dst.data(), -8, 8), qspStsBadSize);
        EXPECT_TRUE(dst.untouched());
    }
}

TEST(CopyBits, LittleEndianBitZeroIsTheTopBitOfTheByte)
{
    const Qsp8u src = 0x80;
    Qsp8u dst = 0;
    ASSERT_EQ(qspsCopyLE_1u(&src, 0, &dst, 3, 1), qspStsOk);
    EXPECT_EQ(dst, 0x10);  // 0x80 shifted right by the destination offset
    dst = 0;
    ASSERT_EQ(qspsCopyBE_1u(&src, 7, &dst, 3, 1), qspStsOk);
    EXPECT_EQ(dst, 0x08);
}

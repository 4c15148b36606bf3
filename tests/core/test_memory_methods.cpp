// SPDX-License-Identifier: BSD-3-Clause
// The methods that Copy, Zero, Set and Move choose by size (registers,
// string instructions, streaming stores, the repeated 16-byte pattern,
// chunked upward moves), each tried at the byte counts around its
// threshold, at several alignments, with the bytes around the destination
// checked untouched.
#include <cstring>

#include "memory_kernels.h"
#include "qsp_test.h"

using qsptest::Guarded;

namespace {

// Byte counts around a threshold, as whole elements of `size` bytes.
std::vector<Qsp64s> around(Qsp64s threshold, Qsp64s size)
{
    std::vector<Qsp64s> counts;
    for (Qsp64s delta : {-3 * size, -size, Qsp64s(0), size, 7 * size, 4096 + 5 * size}) {
        const Qsp64s bytes = (threshold / size) * size + delta;
        if (bytes >= size) counts.push_back(bytes);
    }
    return counts;
}

// Set of one element size with one value (its bytes), checked byte by byte.
template <class T>
void expectFill(QspStatus (*set)(T, T*, int), const std::vector<Qsp8u>& value, Qsp64s bytes, size_t misalign)
{
    T val;
    std::memcpy(&val, value.data(), sizeof(T));
    Guarded<Qsp8u> buf(size_t(bytes) + misalign);
    ASSERT_EQ(set(val, reinterpret_cast<T*>(buf.data() + misalign), int(bytes / Qsp64s(sizeof(T)))), qspStsOk);
    std::vector<Qsp8u> expected(static_cast<size_t>(bytes));
    for (size_t i = 0; i < expected.size(); ++i) expected[i] = value[i % sizeof(T)];
    ASSERT_EQ(std::memcmp(buf.data() + misalign, expected.data(), expected.size()), 0)
        << sizeof(T) << "-byte value, " << bytes << " bytes, misaligned by " << misalign;
    for (size_t i = 0; i < misalign; ++i) ASSERT_EQ(buf[i], qsptest::kCanaryByte);
    ASSERT_TRUE(buf.guardsIntact()) << sizeof(T) << "-byte value, " << bytes << " bytes";
}

// Values of every kind the fill tells apart: all bytes equal (rep stosb),
// both 8-byte halves equal (rep stosq) and any other 16 bytes (the
// repeated pattern).
template <class T>
void fillsOfElementSize(QspStatus (*set)(T, T*, int))
{
    std::vector<std::vector<Qsp8u>> values = {std::vector<Qsp8u>(sizeof(T), 0x5A),
                                              qsptest::randomBits<Qsp8u>(sizeof(T))};
    if (sizeof(T) == 16) {
        std::vector<Qsp8u> halves = qsptest::randomBits<Qsp8u>(16);
        std::memcpy(halves.data() + 8, halves.data(), 8);
        values.push_back(halves);
    }
    std::vector<Qsp64s> counts = around(memory::kStringFillBytes, sizeof(T));
    for (Qsp64s c : around(memory::kReplicateBytes * 3, sizeof(T))) counts.push_back(c);
    counts.push_back((Qsp64s(1) << 20) + Qsp64s(sizeof(T)));
    for (const auto& value : values)
        for (Qsp64s bytes : counts)
            for (size_t misalign : {size_t(0), size_t(1), size_t(8)}) {
                expectFill(set, value, bytes, misalign);
                if (testing::Test::HasFatalFailure()) return;
            }
}

void expectCopy(Qsp64s bytes, size_t srcShift, size_t dstShift)
{
    const std::vector<Qsp8u> data = qsptest::randomBits<Qsp8u>(size_t(bytes) + srcShift);
    Guarded<Qsp8u> dst(size_t(bytes) + dstShift);
    ASSERT_EQ(qspsCopy_8u(data.data() + srcShift, dst.data() + dstShift, int(bytes)), qspStsOk);
    ASSERT_EQ(std::memcmp(dst.data() + dstShift, data.data() + srcShift, size_t(bytes)), 0) << bytes << " bytes";
    for (size_t i = 0; i < dstShift; ++i) ASSERT_EQ(dst[i], qsptest::kCanaryByte);
    ASSERT_TRUE(dst.guardsIntact()) << bytes << " bytes";
}

// Move_8u of `bytes` from offset `from` to offset `to` of one area, against
// memmove.
void expectMove(Qsp64s bytes, Qsp64s from, Qsp64s to)
{
    const Qsp64s span = bytes + (from > to ? from : to) + 64;
    std::vector<Qsp8u> area = qsptest::randomBits<Qsp8u>(size_t(span));
    std::vector<Qsp8u> expected = area;
    std::memmove(expected.data() + to, expected.data() + from, size_t(bytes));
    ASSERT_EQ(qspsMove_8u(area.data() + from, area.data() + to, int(bytes)), qspStsOk);
    ASSERT_TRUE(area == expected) << bytes << " bytes from " << from << " to " << to;
}

}  // namespace

TEST(MemoryMethods, FillsOfEveryValueKindAroundTheThresholds)
{
    fillsOfElementSize(qspsSet_8u);
    fillsOfElementSize(qspsSet_16s);
    fillsOfElementSize(qspsSet_32s);
    fillsOfElementSize(qspsSet_64s);
    fillsOfElementSize(qspsSet_64fc);
}

TEST(MemoryMethods, ZeroAroundTheStringThreshold)
{
    for (Qsp64s bytes : around(memory::kStringFillBytes, 4)) {
        Guarded<Qsp8u> buf(size_t(bytes) + 2);
        ASSERT_EQ(qspsZero_32f(reinterpret_cast<Qsp32f*>(buf.data() + 2), int(bytes / 4)), qspStsOk);
        for (Qsp64s i = 0; i < bytes; ++i) ASSERT_EQ(buf[2 + size_t(i)], 0) << bytes << " bytes, byte " << i;
        ASSERT_EQ(buf[0], qsptest::kCanaryByte);
        ASSERT_EQ(buf[1], qsptest::kCanaryByte);
        ASSERT_TRUE(buf.guardsIntact());
    }
}

TEST(MemoryMethods, CopiesAroundTheStringAndStreamingThresholds)
{
    for (Qsp64s bytes : around(memory::kStringCopyBytes, 1))
        for (size_t srcShift : {size_t(0), size_t(5)})
            for (size_t dstShift : {size_t(0), size_t(3), size_t(16)}) expectCopy(bytes, srcShift, dstShift);
    for (Qsp64s bytes : {memory::kStreamCopyBytes - 1, memory::kStreamCopyBytes, memory::kStreamCopyBytes + 77})
        expectCopy(bytes, 1, 7);
}

TEST(MemoryMethods, MovesAroundTheStringAndChunkThresholds)
{
    const Qsp64s d = memory::kChunkedMoveDistance;
    for (Qsp64s bytes : around(memory::kStringCopyBytes, 1)) {
        // Down, forward: any distance, the string instruction from its
        // threshold on.
        for (Qsp64s distance : {Qsp64s(1), Qsp64s(40), Qsp64s(63), Qsp64s(64), bytes / 2, bytes - 1})
            expectMove(bytes, distance, 0);
        // Up, backward: registers below the chunk distance, chunks from it.
        for (Qsp64s distance : {Qsp64s(1), Qsp64s(40), d - 1, d, d + 1, bytes - 1})
            if (distance > 0 && distance < bytes) expectMove(bytes, 3, 3 + distance);
    }
    for (Qsp64s bytes : {4 * d + 5, 10 * d + 7, Qsp64s(1) << 20})
        for (Qsp64s distance : {d - 1, d, d + 13, 2 * d, 3 * d + 1, bytes / 2 + 1, bytes - 1})
            expectMove(bytes, 5, 5 + distance);
}

// Destinations 1 to 63 bytes above the source modulo 4 KiB take the
// register loop instead of rep movsb; both sides of that boundary, for
// copies, moves down (the destination below by 4 KiB less the distance)
// and chunked moves up (by 4 KiB plus the distance).
TEST(MemoryMethods, CopiesAndMovesAtDistancesAroundThePageAliasing)
{
    const Qsp64s alias = memory::kPageAliasBytes;
    for (Qsp64s bytes : {memory::kStringCopyBytes, memory::kStringCopyBytes + 1, Qsp64s(16384) + 3})
        for (Qsp64s distance : {Qsp64s(1), Qsp64s(8), alias - 1, alias, alias + 1, Qsp64s(4095)}) {
            // Separate vectors in one area, the destination a whole number
            // of pages plus `distance` above the source.
            const Qsp64s pages = (bytes + 4095) / 4096 * 4096;
            std::vector<Qsp8u> area = qsptest::randomBits<Qsp8u>(size_t(pages + distance + bytes + 64));
            std::vector<Qsp8u> expected = area;
            std::memcpy(expected.data() + pages + distance, expected.data(), size_t(bytes));
            ASSERT_EQ(qspsCopy_8u(area.data(), area.data() + pages + distance, int(bytes)), qspStsOk);
            ASSERT_TRUE(area == expected) << bytes << " bytes, " << distance << " above modulo 4 KiB";
            expectMove(bytes, 4096 - distance, 0);
            expectMove(bytes, 3, 3 + 4096 + distance);
        }
}

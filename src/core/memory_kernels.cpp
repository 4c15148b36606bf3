// SPDX-License-Identifier: BSD-3-Clause
#include "memory_kernels.h"

#include "simd.h"

namespace {

using V = simd::Vec<Qsp8u>;
using Reg = V::Reg;
using memory::kChunkedMoveDistance;
using memory::kPageAliasBytes;
using memory::kReplicateBytes;
using memory::kStreamCopyBytes;
using memory::kStringCopyBytes;
using memory::kStringFillBytes;

// The string instructions, with the direction flag clear as the ABI keeps
// it. Each acts as if it moved or stored one unit after another from the
// first to the last, whatever the processor does inside: so rep movsb with
// the destination below the source is a correct move for any overlap, and
// with the destination k bytes above the source it repeats the first k
// bytes over the whole count.
inline void repMovsb(const Qsp8u* s, Qsp8u* d, Qsp64s n)
{
    __asm__ volatile("rep movsb" : "+D"(d), "+S"(s), "+c"(n) : : "memory");
}
inline void repStosb(Qsp8u* d, Qsp8u value, Qsp64s n)
{
    __asm__ volatile("rep stosb" : "+D"(d), "+c"(n) : "a"(value) : "memory");
}
inline void repStosq(Qsp8u* d, Qsp64u value, Qsp64s words)
{
    __asm__ volatile("rep stosq" : "+D"(d), "+c"(words) : "a"(value) : "memory");
}

// True when the pattern's two halves are equal (every value of up to 8
// bytes), and when all its bytes are.
inline bool isEightByteSplat(Reg pattern)
{
    return V::anyMask(_mm_cmpeq_epi64(pattern, _mm_unpacklo_epi64(pattern, pattern))) == 0xFFFF;
}
inline bool isByteSplat(Reg pattern)
{
    return V::anyMask(V::cmpeq(pattern, V::shuffleBytes(pattern, V::zero()))) == 0xFFFF;
}

// False when the destination lies 1 to kPageAliasBytes - 1 bytes above the
// source modulo 4 KiB, where rep movsb slows many times over.
inline bool stringCopyIsFast(const Qsp8u* s, const Qsp8u* d)
{
    const Qsp64u ahead = (reinterpret_cast<Qsp64u>(d) - reinterpret_cast<Qsp64u>(s)) & 4095;
    return ahead == 0 || ahead >= Qsp64u(kPageAliasBytes);
}

inline Qsp64s misalignment(const void* p) { return reinterpret_cast<Qsp64u>(p) & 15; }

// 2 to 2 * sizeof(W) bytes as two possibly overlapping words, the first
// and the last, both loaded before either is stored so that overlapping
// vectors are moved correctly.
template <class W>
inline void moveBothEnds(const Qsp8u* s, Qsp8u* d, Qsp64s n)
{
    W first, last;
    __builtin_memcpy(&first, s, sizeof(W));
    __builtin_memcpy(&last, s + n - sizeof(W), sizeof(W));
    __builtin_memcpy(d, &first, sizeof(W));
    __builtin_memcpy(d + n - sizeof(W), &last, sizeof(W));
}

// Up to 64 bytes with overlapping words and registers, all loads first.
inline void moveUpTo64(const Qsp8u* s, Qsp8u* d, Qsp64s n)
{
    if (n == 1) d[0] = s[0];
    else if (n < 4) moveBothEnds<Qsp16u>(s, d, n);
    else if (n < 8) moveBothEnds<Qsp32u>(s, d, n);
    else if (n <= 16) moveBothEnds<Qsp64u>(s, d, n);
    else if (n <= 32) moveBothEnds<Reg>(s, d, n);
    else {
        const Reg a = V::loadu(s), b = V::loadu(s + 16);
        const Reg c = V::loadu(s + n - 32), e = V::loadu(s + n - 16);
        V::storeu(d, a);
        V::storeu(d + 16, b);
        V::storeu(d + n - 32, c);
        V::storeu(d + n - 16, e);
    }
}

struct Block64 {
    Reg r0, r1, r2, r3;
    static Block64 loadu(const Qsp8u* p)
    {
        return {V::loadu(p), V::loadu(p + 16), V::loadu(p + 32), V::loadu(p + 48)};
    }
    static Block64 splat(Reg r) { return {r, r, r, r}; }
    void storeu(Qsp8u* p) const
    {
        V::storeu(p, r0), V::storeu(p + 16, r1), V::storeu(p + 32, r2), V::storeu(p + 48, r3);
    }
    void store(Qsp8u* p) const
    {
        V::store(p, r0), V::store(p + 16, r1), V::store(p + 32, r2), V::store(p + 48, r3);
    }
    void stream(Qsp8u* p) const
    {
        V::stream(p, r0), V::stream(p + 16, r1), V::stream(p + 32, r2), V::stream(p + 48, r3);
    }
};

// More than 64 bytes, front to back, safe when the destination lies below
// the source. The first 16 and last 64 source bytes are read before the
// loop and written after it, so the loop works on aligned destination
// blocks and never overwrites a source byte it has still to read.
template <bool Stream>
void moveForward(const Qsp8u* s, Qsp8u* d, Qsp64s n)
{
    const Reg head = V::loadu(s);
    const Block64 tail = Block64::loadu(s + n - 64);
    Qsp64s i = (16 - misalignment(d)) & 15;
    for (; n - i > 64; i += 64) {
        const Block64 b = Block64::loadu(s + i);
        if constexpr (Stream) b.stream(d + i); else b.store(d + i);
    }
    if constexpr (Stream) _mm_sfence();
    V::storeu(d, head);
    tail.storeu(d + n - 64);
}

// The mirror image, back to front, for a destination above the source.
void moveBackward(const Qsp8u* s, Qsp8u* d, Qsp64s n)
{
    const Block64 head = Block64::loadu(s);
    const Reg tail = V::loadu(s + n - 16);
    Qsp64s i = n - misalignment(d + n);
    for (; i > 64; i -= 64) Block64::loadu(s + i - 64).store(d + i - 64);
    head.storeu(d);
    V::storeu(d + n - 16, tail);
}

// A destination at least `distance` above its source, back to front in
// chunks of that distance: no chunk overlaps itself, and each one is read
// before the chunks below it are written over it.
void moveUpInChunks(const Qsp8u* s, Qsp8u* d, Qsp64s n, Qsp64s distance)
{
    for (Qsp64s end = n; end > 0;) {
        const Qsp64s chunk = end < distance ? end : distance;
        end -= chunk;
        repMovsb(s + end, d + end, chunk);
    }
}

// 16 bytes or more from registers: unaligned stores at every multiple of
// 16 and a last one ending at the end. All of them stand at multiples of
// the pattern's period, so the pattern needs no rotation.
void fillFromRegisters(Reg pattern, Qsp8u* d, Qsp64s n)
{
    const Block64 block = Block64::splat(pattern);
    Qsp64s i = 0;
    for (; n - i > 64; i += 64) block.storeu(d + i);
    for (; n - i > 16; i += 16) V::storeu(d + i, pattern);
    V::storeu(d + n - 16, pattern);
}

}  // namespace

void ownsFill_128(__m128i pattern, Qsp8u* pDst, Qsp64s bytes)
{
    if (bytes < 16) {
        alignas(16) Qsp8u bytesOfPattern[16];
        V::store(bytesOfPattern, pattern);
        for (Qsp64s i = 0; i < bytes; ++i) pDst[i] = bytesOfPattern[i];
    } else if (bytes < kStringFillBytes) {
        fillFromRegisters(pattern, pDst, bytes);
    } else if (isByteSplat(pattern)) {
        repStosb(pDst, Qsp8u(_mm_cvtsi128_si32(pattern)), bytes);
    } else if (isEightByteSplat(pattern)) {
        // The bytes the 8-byte stores leave over (a 2- or 4-byte value):
        // one store of the last 16.
        repStosq(pDst, Qsp64u(_mm_cvtsi128_si64(pattern)), bytes / 8);
        V::storeu(pDst + bytes - 16, pattern);
    } else {
        fillFromRegisters(pattern, pDst, kReplicateBytes);
        repMovsb(pDst, pDst + kReplicateBytes, bytes - kReplicateBytes);
    }
}

void ownsZero_8u(Qsp8u* pDst, Qsp64s bytes)
{
    ownsFill_128(V::zero(), pDst, bytes);
}

void ownsCopy_8u_L(const Qsp8u* pSrc, Qsp8u* pDst, Qsp64s bytes)
{
    if (bytes <= 64) moveUpTo64(pSrc, pDst, bytes);
    else if (bytes >= kStreamCopyBytes) moveForward<true>(pSrc, pDst, bytes);
    else if (bytes >= kStringCopyBytes && stringCopyIsFast(pSrc, pDst)) repMovsb(pSrc, pDst, bytes);
    else moveForward<false>(pSrc, pDst, bytes);
}

void ownsMove_8u(const Qsp8u* pSrc, Qsp8u* pDst, Qsp64s bytes)
{
    if (pSrc == pDst) return;
    if (bytes <= 64) return moveUpTo64(pSrc, pDst, bytes);
    const bool overlap = pDst < pSrc + bytes && pSrc < pDst + bytes;
    if (!overlap) return ownsCopy_8u_L(pSrc, pDst, bytes);
    if (pDst < pSrc) {
        if (bytes >= kStringCopyBytes && stringCopyIsFast(pSrc, pDst)) repMovsb(pSrc, pDst, bytes);
        else moveForward<false>(pSrc, pDst, bytes);
        return;
    }
    const Qsp64s distance = pDst - pSrc;
    if (distance >= kChunkedMoveDistance && stringCopyIsFast(pSrc, pDst)) moveUpInChunks(pSrc, pDst, bytes, distance);
    else moveBackward(pSrc, pDst, bytes);
}

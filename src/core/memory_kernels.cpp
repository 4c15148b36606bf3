// SPDX-License-Identifier: BSD-3-Clause
#include "memory_kernels.h"

#include "simd.h"

namespace {

using V = simd::Vec<Qsp8u>;
using Reg = V::Reg;

// Above this many bytes a fill or copy bypasses the caches: the data would
// evict most of the last-level cache anyway, and non-temporal stores save
// the read of every destination line.
constexpr Qsp64s kStreamBytes = Qsp64s(32) << 20;

// From this size up to kStreamBytes the processor's string instructions
// move data faster than 16-byte registers can: on processors with fast
// string operations they write whole cache lines at a time.
constexpr Qsp64s kStringBytes = 2048;

inline void repMovsb(const Qsp8u* s, Qsp8u* d, Qsp64s n)
{
    __asm__ volatile("rep movsb" : "+D"(d), "+S"(s), "+c"(n) : : "memory");
}

// Stores `words` copies of an 8-byte value.
inline void repStosq(Qsp8u* d, Qsp64u value, Qsp64s words)
{
    __asm__ volatile("rep stosq" : "+D"(d), "+c"(words) : "a"(value) : "memory");
}

// True when the pattern's two halves are equal, so an 8-byte fill serves
// (every element size up to 8 bytes).
inline bool isEightByteSplat(Reg pattern)
{
    return _mm_movemask_epi8(_mm_cmpeq_epi64(pattern, _mm_unpacklo_epi64(pattern, pattern))) == 0xFFFF;
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

template <bool Stream>
void fillAligned(Reg pattern, Qsp8u* p, Qsp8u* end)
{
    for (; end - p >= 64; p += 64) {
        if constexpr (Stream) {
            V::stream(p, pattern), V::stream(p + 16, pattern);
            V::stream(p + 32, pattern), V::stream(p + 48, pattern);
        } else {
            V::store(p, pattern), V::store(p + 16, pattern);
            V::store(p + 32, pattern), V::store(p + 48, pattern);
        }
    }
    for (; end - p >= 16; p += 16) V::store(p, pattern);
    if constexpr (Stream) _mm_sfence();
}

// The pattern as it must stand at a position `shift` bytes into the fill.
Reg rotated(Reg pattern, Qsp64s shift)
{
    alignas(16) Qsp8u twice[32];
    V::store(twice, pattern);
    V::store(twice + 16, pattern);
    return V::loadu(twice + (shift & 15));
}

}  // namespace

void ownsFill_128(__m128i pattern, Qsp8u* pDst, Qsp64s bytes)
{
    if (bytes < 16) {
        alignas(16) Qsp8u bytesOfPattern[16];
        V::store(bytesOfPattern, pattern);
        for (Qsp64s i = 0; i < bytes; ++i) pDst[i] = bytesOfPattern[i];
        return;
    }
    if (bytes >= kStringBytes && bytes < kStreamBytes && isEightByteSplat(pattern)) {
        repStosq(pDst, Qsp64u(_mm_cvtsi128_si64(pattern)), bytes / 8);
        // The bytes the 8-byte stores leave over: one store of the last 16.
        V::storeu(pDst + bytes - 16, rotated(pattern, bytes - 16));
        return;
    }
    V::storeu(pDst, pattern);
    const Qsp64s skip = (16 - misalignment(pDst)) & 15;
    const Reg inPhase = rotated(pattern, skip);
    Qsp8u* end = pDst + bytes;
    if (bytes >= kStreamBytes) fillAligned<true>(inPhase, pDst + skip, end);
    else fillAligned<false>(inPhase, pDst + skip, end);
    V::storeu(end - 16, rotated(pattern, bytes - 16));
}

void ownsZero_8u(Qsp8u* pDst, Qsp64s bytes)
{
    ownsFill_128(V::zero(), pDst, bytes);
}

void ownsCopy_8u_L(const Qsp8u* pSrc, Qsp8u* pDst, Qsp64s bytes)
{
    if (bytes <= 64) moveUpTo64(pSrc, pDst, bytes);
    else if (bytes >= kStreamBytes) moveForward<true>(pSrc, pDst, bytes);
    else if (bytes >= kStringBytes) repMovsb(pSrc, pDst, bytes);
    else moveForward<false>(pSrc, pDst, bytes);
}

void ownsMove_8u(const Qsp8u* pSrc, Qsp8u* pDst, Qsp64s bytes)
{
    if (pSrc == pDst) return;
    if (bytes <= 64) return moveUpTo64(pSrc, pDst, bytes);
    const bool overlap = pDst < pSrc + bytes && pSrc < pDst + bytes;
    if (!overlap) return ownsCopy_8u_L(pSrc, pDst, bytes);
    if (pSrc > pDst) moveForward<false>(pSrc, pDst, bytes);
    else moveBackward(pSrc, pDst, bytes);
}

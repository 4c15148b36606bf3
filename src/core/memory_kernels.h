// SPDX-License-Identifier: BSD-3-Clause
// Untyped kernels behind Zero, Set, Copy and Move of every element type.
// Counts are in bytes; a typed function passes its length times the element
// size. Kernels assume valid pointers and a count of at least one.
//
// Each kernel picks its method by the byte count alone, once per call:
// 16-byte registers for short vectors, the processor's string instructions
// (rep movsb, rep stosb/stosq), which store whole cache lines at a time,
// from 768 bytes on, and non-temporal stores for copies too large for the
// last-level cache. The string instructions are correct on every x86-64
// processor, fast or not, so no processor query is needed to choose them;
// only the distance between destination and source can rule rep movsb out
// (kPageAliasBytes).
//
// The figures beside each constant compare the methods themselves, each
// timed in turn in one process, fastest of many runs (AMD EPYC, Zen 4, with
// fast short repeat moves; the C library glibc 2.36, which uses 256-bit
// registers). bench/bench_datamove.cpp compares the exported functions
// with memcpy, memset and memmove. Below about 2 KiB no method reaches the
// C library: 16-byte stores retire one per cycle, half the bytes of its
// 32-byte stores, and the string instructions' start-up costs a few
// nanoseconds (at 1 KiB, L1-resident: memcpy 9.5-11.3 ns, rep movsb
// 14.9-16.1 ns, the register loop 17.6 ns; memset 8.9-9.0 ns, rep stosb
// 13.0-14.4 ns, the register loop 17.3 ns).
#pragma once
#include <nmmintrin.h>

#include "qspdefs.h"

namespace memory {

// From this many bytes Copy and forward Move use rep movsb. Below it the
// 16-byte register loop is as fast or faster, the string instruction's
// start-up costing more than it saves (L1-resident copies: at 512 bytes
// the loop takes 9.0 ns and rep movsb 10.6 ns; at 768 bytes 13.3 and
// 12.7 ns; at 1 KiB 17.6-17.7 and 14.9-16.1 ns; at 1.25 KiB 21.9 and 17.1
// ns; at 16 KiB 278-281 and 150-157 ns, memcpy 160-167 ns).
constexpr Qsp64s kStringCopyBytes = 768;

// rep movsb loses its speed when the destination lies a little above the
// source modulo 4 KiB (the processor then takes each store for a possible
// overlap with the loads still to come). Copying 16 KiB with the
// destination 1, 2 or 8 bytes above the source modulo 4 KiB took rep movsb
// 4.6 us against 150 ns at a distance of 0 or 64, and the register loop
// 280-290 ns; 16 and 24 bytes 306 and 380 ns against 278 and 298 ns; at
// 1 MiB 1.18 ms (1 byte), 0.72 ms (8), 37.6 us (16), 28.0 us (40), 28.9 us
// (63) against 21-27 us for the loop and 21.4 us for rep movsb at 0 or 64.
// From 64 bytes on rep movsb runs at full speed, so below that distance
// (and above 0) the string copies take the register loop.
constexpr Qsp64s kPageAliasBytes = 64;

// From this many bytes Zero and Set use rep stosb (a byte value) or rep
// stosq (2-, 4- and 8-byte values): at 640 bytes the register loop takes
// 10.8 ns and rep stosb 11.7 ns; at 768 bytes 13.0 and 11.9 ns; at 1 KiB
// 17.4 and 13.0-14.4 ns; at 16 KiB 277-284 and 144-164 ns, memset
// 145-160 ns.
constexpr Qsp64s kStringFillBytes = 768;

// A 16-byte value (Set_64fc, Set_64sc) has no string store: the first
// kReplicateBytes are stored from registers and rep movsb copies them
// forward over the rest, each byte from kReplicateBytes below it. With a
// period of 512 bytes this runs at 0.92-0.97 of memset from 16 KiB to 1 MiB,
// against 0.56-0.69 for the register loop; periods of 256 and 1024 bytes
// were slower (0.81-0.85, 0.85-0.90), 64 bytes far slower (0.23).
constexpr Qsp64s kReplicateBytes = 512;
static_assert(kReplicateBytes % 16 == 0 && kReplicateBytes < kStringFillBytes,
              "the replicated block holds whole patterns and leaves bytes to copy");

// From this many bytes a copy between separate vectors streams its stores
// past the caches (the copy touches twice its size, and beyond the
// last-level cache the lines it would keep are evicted anyway; streaming
// saves reading every destination line first). At 8 MiB non-temporal
// stores ran at 22 GB/s and rep movsb at 18; at 16 MiB 15 and 13; from
// 32 MiB to 128 MiB both within the noise of each other.
constexpr Qsp64s kStreamCopyBytes = Qsp64s(16) << 20;

// Fills never stream: rep stosb ran at 0.7 (16 MiB), 1.0 (8 MiB), 1.5
// (32 MiB), 1.25 (64 MiB) and 3.4 times (128 MiB) the speed of
// non-temporal stores, and the C library's memset, which does not stream
// below 240 MiB on this machine, is rep stosb too.

// An overlapping Move whose destination lies at least this far above its
// source copies back to front in chunks of that distance with rep movsb
// (each chunk's source is read before any later chunk overwrites it).
// Moving 64 KiB up by 1536 bytes took 1079 ns in chunks and 1208 ns with
// the 16-byte register loop back to front, by 2048 bytes 999 and 1186 ns;
// by 1024 bytes the two were even (1222, 1204 ns) and by 512 the loop won
// (1206 against 1527 ns). Closer overlaps take that loop, whose speed does
// not depend on the distance, and so do distances of 1 to 63 bytes modulo
// 4 KiB (kPageAliasBytes) (rep movsb run backwards, with the direction
// flag set, managed 1-4 GB/s).
constexpr Qsp64s kChunkedMoveDistance = 1536;

}  // namespace memory

// Fills `bytes` bytes with a repeating 16-byte pattern whose byte 0 lands on
// pDst[0]. The pattern's period (an element size: 1, 2, 4, 8 or 16 bytes)
// must divide `bytes`.
void ownsFill_128(__m128i pattern, Qsp8u* pDst, Qsp64s bytes);

void ownsZero_8u(Qsp8u* pDst, Qsp64s bytes);

// Copy of non-overlapping vectors.
void ownsCopy_8u_L(const Qsp8u* pSrc, Qsp8u* pDst, Qsp64s bytes);

// Copy with the guarantee of a byte-wise move for any overlap.
void ownsMove_8u(const Qsp8u* pSrc, Qsp8u* pDst, Qsp64s bytes);

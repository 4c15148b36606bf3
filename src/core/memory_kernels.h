// SPDX-License-Identifier: BSD-3-Clause
// Untyped kernels behind Zero, Set, Copy and Move of every element type.
// Counts are in bytes; a typed function passes its length times the element
// size. Kernels assume valid pointers and a count of at least one.
#pragma once
#include <nmmintrin.h>

#include "qspdefs.h"

// Fills `bytes` bytes with a repeating 16-byte pattern whose byte 0 lands on
// pDst[0] (so every element size from 1 to 16 bytes keeps its phase).
void ownsFill_128(__m128i pattern, Qsp8u* pDst, Qsp64s bytes);

void ownsZero_8u(Qsp8u* pDst, Qsp64s bytes);

// Copy of non-overlapping vectors.
void ownsCopy_8u_L(const Qsp8u* pSrc, Qsp8u* pDst, Qsp64s bytes);

// Copy with the guarantee of a byte-wise move for any overlap.
void ownsMove_8u(const Qsp8u* pSrc, Qsp8u* pDst, Qsp64s bytes);

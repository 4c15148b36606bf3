// SPDX-License-Identifier: BSD-3-Clause
// SwapBytes: byte order reversed inside every element (endianness
// conversion); a three-byte element exchanges its first and third bytes.
#include "checks.h"
#include "qsp_validators.h"
#include "simd.h"

namespace y8 {
namespace {

using V = simd::Vec<Qsp8u>;

// Byte order of a register of elements of Size bytes, each reversed.
template <unsigned Size>
V::Reg reversalOrder()
{
    alignas(16) Qsp8u order[16];
    for (unsigned i = 0; i < 16; ++i) order[i] = Qsp8u(i - i % Size + (Size - 1 - i % Size));
    return V::load(order);
}

template <class T>
T swapped(T x)
{
    if constexpr (sizeof(T) == 2) return T(__builtin_bswap16(x));
    else if constexpr (sizeof(T) == 4) return T(__builtin_bswap32(x));
    else return T(__builtin_bswap64(x));
}

// Works in place too: each register is read before it is written.
template <class T>
void ownsSwapBytes(const T* pSrc, T* pDst, Qsp64s len)
{
    constexpr Qsp64s L = 16 / sizeof(T);
    const V::Reg order = reversalOrder<sizeof(T)>();
    Qsp64s i = 0;
    for (; i + 2 * L <= len; i += 2 * L) {
        const V::Reg a = V::loadu(pSrc + i), b = V::loadu(pSrc + i + L);
        V::storeu(pDst + i, V::shuffleBytes(a, order));
        V::storeu(pDst + i + L, V::shuffleBytes(b, order));
    }
    for (; i < len; ++i) simd::storeOne(pDst + i, swapped(simd::loadOne(pSrc + i)));
}

// Five three-byte elements per register; the sixteenth byte is carried
// through unchanged and rewritten by the next step, so a step needs 16
// readable bytes and the last elements go one by one.
void ownsSwapBytes_24u(const Qsp8u* pSrc, Qsp8u* pDst, Qsp64s len)
{
    const V::Reg order = _mm_setr_epi8(2, 1, 0, 5, 4, 3, 8, 7, 6, 11, 10, 9, 14, 13, 12, 15);
    const Qsp64s bytes = 3 * len;
    Qsp64s at = 0;
    for (; bytes - at >= 16; at += 15) V::storeu(pDst + at, V::shuffleBytes(V::loadu(pSrc + at), order));
    for (; at < bytes; at += 3) {
        const Qsp8u first = pSrc[at], middle = pSrc[at + 1], third = pSrc[at + 2];
        pDst[at] = third;
        pDst[at + 1] = middle;
        pDst[at + 2] = first;
    }
}

template <class T>
QspStatus swapBytes(const T* pSrc, T* pDst, int len)
{
    if (QspStatus s = check::vectors(len, pSrc, pDst)) return s;
    ownsSwapBytes(pSrc, pDst, len);
    return qspStsOk;
}

}  // namespace

QspStatus qspsSwapBytes_16u(const Qsp16u* pSrc, Qsp16u* pDst, int len) { return swapBytes(pSrc, pDst, len); }
QspStatus qspsSwapBytes_32u(const Qsp32u* pSrc, Qsp32u* pDst, int len) { return swapBytes(pSrc, pDst, len); }
QspStatus qspsSwapBytes_64u(const Qsp64u* pSrc, Qsp64u* pDst, int len) { return swapBytes(pSrc, pDst, len); }
QspStatus qspsSwapBytes_16u_I(Qsp16u* pSrcDst, int len) { return swapBytes(pSrcDst, pSrcDst, len); }
QspStatus qspsSwapBytes_32u_I(Qsp32u* pSrcDst, int len) { return swapBytes(pSrcDst, pSrcDst, len); }
QspStatus qspsSwapBytes_64u_I(Qsp64u* pSrcDst, int len) { return swapBytes(pSrcDst, pSrcDst, len); }

QspStatus qspsSwapBytes_24u(const Qsp8u* pSrc, Qsp8u* pDst, int len)
{
    if (QspStatus s = check::vectors(len, pSrc, pDst)) return s;
    ownsSwapBytes_24u(pSrc, pDst, len);
    return qspStsOk;
}

QspStatus qspsSwapBytes_24u_I(Qsp8u* pSrcDst, int len) { return qspsSwapBytes_24u(pSrcDst, pSrcDst, len); }

}  // namespace y8

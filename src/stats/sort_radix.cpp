// SPDX-License-Identifier: BSD-3-Clause
// SortRadixAscend, SortRadixDescend and their buffer-size query: in-place
// least-significant-digit radix sorts with a caller-supplied work buffer.
#include "checks.h"
#include "qsp_validators.h"
#include "radix.h"
#include "simd.h"

namespace y8 {
namespace {

using radix::Order;
namespace keys = radix::keys;

// ---------------------------------------------------------------------------
// Buffer sizes
// ---------------------------------------------------------------------------

// Bytes per element of the temporary array and bytes of the histogram
// block, by data-type code.
radix::BufferShape bufferShape(QspDataType type)
{
    switch (type) {
    case qsp8u: return {true, 1, radix::kHistogramBytes8};
    case qsp16u:
    case qsp16s: return {true, 2, radix::kHistogramBytes16};
    case qsp32u:
    case qsp32s:
    case qsp32f: return {true, 4, radix::kHistogramBytes32};
    case qsp64u:
    case qsp64s: return {true, 8, radix::kHistogramBytes64};
    case qsp64f: return {true, 8, radix::kHistogramBytes64f};
    default: return {false, 0, 0};
    }
}

// ---------------------------------------------------------------------------
// Kernels
// ---------------------------------------------------------------------------

// Bytes: a counting sort. 256 counters at the start of the buffer; every
// value is counted, then written as many times as it was counted, from the
// smallest value up (descending: from the largest down).
template <Order O>
void ownsSortCount_8u(Qsp8u* pSrcDst, Qsp64s len, Qsp8u* pBuffer)
{
    using V = simd::Vec<Qsp8u>;
    radix::Cell<Qsp32u>* count = reinterpret_cast<radix::Cell<Qsp32u>*>(pBuffer);
    for (int v = 0; v < 256; ++v) count[v].v = 0;
    for (Qsp64s i = 0; i < len; ++i) ++count[pSrcDst[i]].v;
    Qsp8u* out = pSrcDst;
    for (int j = 0; j < 256; ++j) {
        const int v = O == Order::Ascend ? j : 255 - j;
        Qsp64s n = count[v].v;
        const auto run = V::splat(Qsp8u(v));
        for (; n >= V::lanes; n -= V::lanes, out += V::lanes) V::storeu(out, run);
        for (; n > 0; --n) *out++ = Qsp8u(v);
    }
}

// Every wider type: the radix kernel over the element bits, with 32-bit
// counters while they cannot overflow.
template <class Map, class Plan, class WidePlan, class T>
void ownsSortRadix(T* pSrcDst, Qsp64s len, Qsp8u* pBuffer, Qsp64s histogramBytes)
{
    using K = simd::Bits<T>;
    K* keys = reinterpret_cast<K*>(pSrcDst);
    if (len <= Qsp64s(0xFFFFFFFF))
        radix::ownsSortRadix<Map, Plan, Qsp32u>(keys, len, pBuffer, histogramBytes);
    else
        radix::ownsSortRadix<Map, WidePlan, Qsp64u>(keys, len, pBuffer, histogramBytes);
}

// ---------------------------------------------------------------------------
// Validating functions
// ---------------------------------------------------------------------------

template <class Map, class T>
QspStatus sortRadix16(T* pSrcDst, int len, Qsp8u* pBuffer)
{
    if (QspStatus s = check::vectors(len, pSrcDst, pBuffer)) return s;
    ownsSortRadix<Map, radix::Digits16, radix::Digits16>(pSrcDst, len, pBuffer, radix::kHistogramBytes16);
    return qspStsOk;
}

template <class Map, class T>
QspStatus sortRadix32(T* pSrcDst, int len, Qsp8u* pBuffer)
{
    if (QspStatus s = check::vectors(len, pSrcDst, pBuffer)) return s;
    ownsSortRadix<Map, radix::Digits32, radix::DigitsWide32>(pSrcDst, len, pBuffer, radix::kHistogramBytes32);
    return qspStsOk;
}

// The 64-bit length forms check the length before the pointers.
template <class Map, class T>
QspStatus sortRadix32L(T* pSrcDst, Qsp64s len, Qsp8u* pBuffer)
{
    if (QspStatus s = check::vectorsL(len, pSrcDst, pBuffer)) return s;
    ownsSortRadix<Map, radix::Digits32, radix::DigitsWide32>(pSrcDst, len, pBuffer, radix::kHistogramBytes32);
    return qspStsOk;
}

template <class Map, class T>
QspStatus sortRadix64(T* pSrcDst, int len, Qsp8u* pBuffer, Qsp64s histogramBytes)
{
    if (QspStatus s = check::vectors(len, pSrcDst, pBuffer)) return s;
    ownsSortRadix<Map, radix::Digits64, radix::DigitsWide64>(pSrcDst, len, pBuffer, histogramBytes);
    return qspStsOk;
}

template <class Map, class T>
QspStatus sortRadix64L(T* pSrcDst, Qsp64s len, Qsp8u* pBuffer, Qsp64s histogramBytes)
{
    if (QspStatus s = check::vectorsL(len, pSrcDst, pBuffer)) return s;
    ownsSortRadix<Map, radix::Digits64, radix::DigitsWide64>(pSrcDst, len, pBuffer, histogramBytes);
    return qspStsOk;
}

template <Order O>
QspStatus sortCount8(Qsp8u* pSrcDst, int len, Qsp8u* pBuffer)
{
    if (QspStatus s = check::vectors(len, pSrcDst, pBuffer)) return s;
    ownsSortCount_8u<O>(pSrcDst, len, pBuffer);
    return qspStsOk;
}

constexpr Qsp64s k64 = radix::kHistogramBytes64;
constexpr Qsp64s k64f = radix::kHistogramBytes64f;

}  // namespace

QspStatus qspsSortRadixGetBufferSize(int len, QspDataType dataType, int* pBufferSize)
{
    if (QspStatus s = check::pointers(pBufferSize)) return s;
    if (QspStatus s = check::length(len)) return s;
    return radix::reportBufferSize(len, bufferShape(dataType), pBufferSize);
}

QspStatus qspsSortRadixGetBufferSize_L(Qsp64s len, QspDataType dataType, Qsp64s* pBufferSize)
{
    if (QspStatus s = check::vectorsL(len, pBufferSize)) return s;
    return radix::reportBufferSize(len, bufferShape(dataType), pBufferSize);
}

QspStatus qspsSortRadixAscend_8u_I(Qsp8u* pSrcDst, int len, Qsp8u* pBuffer) { return sortCount8<Order::Ascend>(pSrcDst, len, pBuffer); }
QspStatus qspsSortRadixAscend_16u_I(Qsp16u* pSrcDst, int len, Qsp8u* pBuffer) { return sortRadix16<keys::UnsignedUp>(pSrcDst, len, pBuffer); }
QspStatus qspsSortRadixAscend_16s_I(Qsp16s* pSrcDst, int len, Qsp8u* pBuffer) { return sortRadix16<keys::SignedUp>(pSrcDst, len, pBuffer); }
QspStatus qspsSortRadixAscend_32u_I(Qsp32u* pSrcDst, int len, Qsp8u* pBuffer) { return sortRadix32<keys::UnsignedUp>(pSrcDst, len, pBuffer); }
QspStatus qspsSortRadixAscend_32s_I(Qsp32s* pSrcDst, int len, Qsp8u* pBuffer) { return sortRadix32<keys::SignedUp>(pSrcDst, len, pBuffer); }
QspStatus qspsSortRadixAscend_32f_I(Qsp32f* pSrcDst, int len, Qsp8u* pBuffer) { return sortRadix32<keys::FloatUp>(pSrcDst, len, pBuffer); }
QspStatus qspsSortRadixAscend_64u_I(Qsp64u* pSrcDst, int len, Qsp8u* pBuffer) { return sortRadix64<keys::UnsignedUp>(pSrcDst, len, pBuffer, k64); }
QspStatus qspsSortRadixAscend_64s_I(Qsp64s* pSrcDst, int len, Qsp8u* pBuffer) { return sortRadix64<keys::SignedUp>(pSrcDst, len, pBuffer, k64); }
QspStatus qspsSortRadixAscend_64f_I(Qsp64f* pSrcDst, int len, Qsp8u* pBuffer) { return sortRadix64<keys::FloatUp>(pSrcDst, len, pBuffer, k64f); }
QspStatus qspsSortRadixAscend_32s_I_L(Qsp32s* pSrcDst, Qsp64s len, Qsp8u* pBuffer) { return sortRadix32L<keys::SignedUp>(pSrcDst, len, pBuffer); }
QspStatus qspsSortRadixAscend_32f_I_L(Qsp32f* pSrcDst, Qsp64s len, Qsp8u* pBuffer) { return sortRadix32L<keys::FloatUp>(pSrcDst, len, pBuffer); }
QspStatus qspsSortRadixAscend_64u_I_L(Qsp64u* pSrcDst, Qsp64s len, Qsp8u* pBuffer) { return sortRadix64L<keys::UnsignedUp>(pSrcDst, len, pBuffer, k64); }
QspStatus qspsSortRadixAscend_64s_I_L(Qsp64s* pSrcDst, Qsp64s len, Qsp8u* pBuffer) { return sortRadix64L<keys::SignedUp>(pSrcDst, len, pBuffer, k64); }
QspStatus qspsSortRadixAscend_64f_I_L(Qsp64f* pSrcDst, Qsp64s len, Qsp8u* pBuffer) { return sortRadix64L<keys::FloatUp>(pSrcDst, len, pBuffer, k64f); }

QspStatus qspsSortRadixDescend_8u_I(Qsp8u* pSrcDst, int len, Qsp8u* pBuffer) { return sortCount8<Order::Descend>(pSrcDst, len, pBuffer); }
QspStatus qspsSortRadixDescend_16u_I(Qsp16u* pSrcDst, int len, Qsp8u* pBuffer) { return sortRadix16<keys::UnsignedDown>(pSrcDst, len, pBuffer); }
QspStatus qspsSortRadixDescend_16s_I(Qsp16s* pSrcDst, int len, Qsp8u* pBuffer) { return sortRadix16<keys::SignedDown>(pSrcDst, len, pBuffer); }
QspStatus qspsSortRadixDescend_32u_I(Qsp32u* pSrcDst, int len, Qsp8u* pBuffer) { return sortRadix32<keys::UnsignedDown>(pSrcDst, len, pBuffer); }
QspStatus qspsSortRadixDescend_32s_I(Qsp32s* pSrcDst, int len, Qsp8u* pBuffer) { return sortRadix32<keys::SignedDown>(pSrcDst, len, pBuffer); }
QspStatus qspsSortRadixDescend_32f_I(Qsp32f* pSrcDst, int len, Qsp8u* pBuffer) { return sortRadix32<keys::FloatDown>(pSrcDst, len, pBuffer); }
QspStatus qspsSortRadixDescend_64u_I(Qsp64u* pSrcDst, int len, Qsp8u* pBuffer) { return sortRadix64<keys::UnsignedDown>(pSrcDst, len, pBuffer, k64); }
QspStatus qspsSortRadixDescend_64s_I(Qsp64s* pSrcDst, int len, Qsp8u* pBuffer) { return sortRadix64<keys::SignedDown>(pSrcDst, len, pBuffer, k64); }
QspStatus qspsSortRadixDescend_64f_I(Qsp64f* pSrcDst, int len, Qsp8u* pBuffer) { return sortRadix64<keys::FloatDown>(pSrcDst, len, pBuffer, k64f); }
QspStatus qspsSortRadixDescend_32s_I_L(Qsp32s* pSrcDst, Qsp64s len, Qsp8u* pBuffer) { return sortRadix32L<keys::SignedDown>(pSrcDst, len, pBuffer); }
QspStatus qspsSortRadixDescend_32f_I_L(Qsp32f* pSrcDst, Qsp64s len, Qsp8u* pBuffer) { return sortRadix32L<keys::FloatDown>(pSrcDst, len, pBuffer); }
QspStatus qspsSortRadixDescend_64u_I_L(Qsp64u* pSrcDst, Qsp64s len, Qsp8u* pBuffer) { return sortRadix64L<keys::UnsignedDown>(pSrcDst, len, pBuffer, k64); }
QspStatus qspsSortRadixDescend_64s_I_L(Qsp64s* pSrcDst, Qsp64s len, Qsp8u* pBuffer) { return sortRadix64L<keys::SignedDown>(pSrcDst, len, pBuffer, k64); }
QspStatus qspsSortRadixDescend_64f_I_L(Qsp64f* pSrcDst, Qsp64s len, Qsp8u* pBuffer) { return sortRadix64L<keys::FloatDown>(pSrcDst, len, pBuffer, k64f); }

}  // namespace y8

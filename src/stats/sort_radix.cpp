// SortRadixAscend, SortRadixDescend and their buffer-size query: in-place
// least-significant-digit radix sorts with a caller-supplied work buffer.
#include "checks.h"
#include "qsp_validators.h"
#include "radix.h"
#include "simd.h"

namespace y8 {
namespace {

using radix::Order;

// ---------------------------------------------------------------------------
// Buffer sizes
// ---------------------------------------------------------------------------

// Bytes per element of the temporary array and bytes of the histogram
// block, by data-type code; false for a code that has no radix sort.
struct BufferShape {
    Qsp64s elementBytes, histogramBytes;
};

bool bufferShape(QspDataType type, BufferShape& shape)
{
    switch (type) {
    case qsp8u: shape = {1, radix::kHistogramBytes8}; return true;
    case qsp16u:
    case qsp16s: shape = {2, radix::kHistogramBytes16}; return true;
    case qsp32u:
    case qsp32s:
    case qsp32f: shape = {4, radix::kHistogramBytes32}; return true;
    case qsp64u:
    case qsp64s: shape = {8, radix::kHistogramBytes64}; return true;
    case qsp64f: shape = {8, radix::kHistogramBytes64f}; return true;
    default: return false;
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

using UA = radix::UnsignedKey<Order::Ascend>;
using UD = radix::UnsignedKey<Order::Descend>;
using SA = radix::SignedKey<Order::Ascend>;
using SD = radix::SignedKey<Order::Descend>;
using FA = radix::FloatKey<Order::Ascend>;
using FD = radix::FloatKey<Order::Descend>;
constexpr Qsp64s k64 = radix::kHistogramBytes64;
constexpr Qsp64s k64f = radix::kHistogramBytes64f;

}  // namespace

QspStatus qspsSortRadixGetBufferSize(int len, QspDataType dataType, int* pBufferSize)
{
    if (QspStatus s = check::pointers(pBufferSize)) return s;
    if (QspStatus s = check::length(len)) return s;
    BufferShape shape;
    if (!bufferShape(dataType, shape)) {
        *pBufferSize = 0;
        return qspStsBadDataType;
    }
    const Qsp64s size = shape.elementBytes * len + shape.histogramBytes;
    if (size > 0x7FFFFFFF) return qspStsOverflow;
    *pBufferSize = int(size);
    return qspStsOk;
}

QspStatus qspsSortRadixGetBufferSize_L(Qsp64s len, QspDataType dataType, Qsp64s* pBufferSize)
{
    if (QspStatus s = check::vectorsL(len, pBufferSize)) return s;
    BufferShape shape;
    if (!bufferShape(dataType, shape)) {
        *pBufferSize = 0;
        return qspStsBadDataType;
    }
    // Judged in double, where the product cannot wrap: 2^63 and above does
    // not fit the size.
    if (double(shape.elementBytes) * double(len) + double(shape.histogramBytes) >= 9223372036854775808.0)
        return qspStsOverflow;
    *pBufferSize = shape.elementBytes * len + shape.histogramBytes;
    return qspStsOk;
}

QspStatus qspsSortRadixAscend_8u_I(Qsp8u* pSrcDst, int len, Qsp8u* pBuffer) { return sortCount8<Order::Ascend>(pSrcDst, len, pBuffer); }
QspStatus qspsSortRadixAscend_16u_I(Qsp16u* pSrcDst, int len, Qsp8u* pBuffer) { return sortRadix16<UA>(pSrcDst, len, pBuffer); }
QspStatus qspsSortRadixAscend_16s_I(Qsp16s* pSrcDst, int len, Qsp8u* pBuffer) { return sortRadix16<SA>(pSrcDst, len, pBuffer); }
QspStatus qspsSortRadixAscend_32u_I(Qsp32u* pSrcDst, int len, Qsp8u* pBuffer) { return sortRadix32<UA>(pSrcDst, len, pBuffer); }
QspStatus qspsSortRadixAscend_32s_I(Qsp32s* pSrcDst, int len, Qsp8u* pBuffer) { return sortRadix32<SA>(pSrcDst, len, pBuffer); }
QspStatus qspsSortRadixAscend_32f_I(Qsp32f* pSrcDst, int len, Qsp8u* pBuffer) { return sortRadix32<FA>(pSrcDst, len, pBuffer); }
QspStatus qspsSortRadixAscend_64u_I(Qsp64u* pSrcDst, int len, Qsp8u* pBuffer) { return sortRadix64<UA>(pSrcDst, len, pBuffer, k64); }
QspStatus qspsSortRadixAscend_64s_I(Qsp64s* pSrcDst, int len, Qsp8u* pBuffer) { return sortRadix64<SA>(pSrcDst, len, pBuffer, k64); }
QspStatus qspsSortRadixAscend_64f_I(Qsp64f* pSrcDst, int len, Qsp8u* pBuffer) { return sortRadix64<FA>(pSrcDst, len, pBuffer, k64f); }
QspStatus qspsSortRadixAscend_32s_I_L(Qsp32s* pSrcDst, Qsp64s len, Qsp8u* pBuffer) { return sortRadix32L<SA>(pSrcDst, len, pBuffer); }
QspStatus qspsSortRadixAscend_32f_I_L(Qsp32f* pSrcDst, Qsp64s len, Qsp8u* pBuffer) { return sortRadix32L<FA>(pSrcDst, len, pBuffer); }
QspStatus qspsSortRadixAscend_64u_I_L(Qsp64u* pSrcDst, Qsp64s len, Qsp8u* pBuffer) { return sortRadix64L<UA>(pSrcDst, len, pBuffer, k64); }
QspStatus qspsSortRadixAscend_64s_I_L(Qsp64s* pSrcDst, Qsp64s len, Qsp8u* pBuffer) { return sortRadix64L<SA>(pSrcDst, len, pBuffer, k64); }
QspStatus qspsSortRadixAscend_64f_I_L(Qsp64f* pSrcDst, Qsp64s len, Qsp8u* pBuffer) { return sortRadix64L<FA>(pSrcDst, len, pBuffer, k64f); }

QspStatus qspsSortRadixDescend_8u_I(Qsp8u* pSrcDst, int len, Qsp8u* pBuffer) { return sortCount8<Order::Descend>(pSrcDst, len, pBuffer); }
QspStatus qspsSortRadixDescend_16u_I(Qsp16u* pSrcDst, int len, Qsp8u* pBuffer) { return sortRadix16<UD>(pSrcDst, len, pBuffer); }
QspStatus qspsSortRadixDescend_16s_I(Qsp16s* pSrcDst, int len, Qsp8u* pBuffer) { return sortRadix16<SD>(pSrcDst, len, pBuffer); }
QspStatus qspsSortRadixDescend_32u_I(Qsp32u* pSrcDst, int len, Qsp8u* pBuffer) { return sortRadix32<UD>(pSrcDst, len, pBuffer); }
QspStatus qspsSortRadixDescend_32s_I(Qsp32s* pSrcDst, int len, Qsp8u* pBuffer) { return sortRadix32<SD>(pSrcDst, len, pBuffer); }
QspStatus qspsSortRadixDescend_32f_I(Qsp32f* pSrcDst, int len, Qsp8u* pBuffer) { return sortRadix32<FD>(pSrcDst, len, pBuffer); }
QspStatus qspsSortRadixDescend_64u_I(Qsp64u* pSrcDst, int len, Qsp8u* pBuffer) { return sortRadix64<UD>(pSrcDst, len, pBuffer, k64); }
QspStatus qspsSortRadixDescend_64s_I(Qsp64s* pSrcDst, int len, Qsp8u* pBuffer) { return sortRadix64<SD>(pSrcDst, len, pBuffer, k64); }
QspStatus qspsSortRadixDescend_64f_I(Qsp64f* pSrcDst, int len, Qsp8u* pBuffer) { return sortRadix64<FD>(pSrcDst, len, pBuffer, k64f); }
QspStatus qspsSortRadixDescend_32s_I_L(Qsp32s* pSrcDst, Qsp64s len, Qsp8u* pBuffer) { return sortRadix32L<SD>(pSrcDst, len, pBuffer); }
QspStatus qspsSortRadixDescend_32f_I_L(Qsp32f* pSrcDst, Qsp64s len, Qsp8u* pBuffer) { return sortRadix32L<FD>(pSrcDst, len, pBuffer); }
QspStatus qspsSortRadixDescend_64u_I_L(Qsp64u* pSrcDst, Qsp64s len, Qsp8u* pBuffer) { return sortRadix64L<UD>(pSrcDst, len, pBuffer, k64); }
QspStatus qspsSortRadixDescend_64s_I_L(Qsp64s* pSrcDst, Qsp64s len, Qsp8u* pBuffer) { return sortRadix64L<SD>(pSrcDst, len, pBuffer, k64); }
QspStatus qspsSortRadixDescend_64f_I_L(Qsp64f* pSrcDst, Qsp64s len, Qsp8u* pBuffer) { return sortRadix64L<FD>(pSrcDst, len, pBuffer, k64f); }

}  // namespace y8

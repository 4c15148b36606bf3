// SPDX-License-Identifier: BSD-3-Clause
// SortRadixIndexAscend, SortRadixIndexDescend and their buffer-size query:
// the sorting permutation of a vector by stable radix passes over (key,
// index) pairs; the vector itself is not moved, and equal values keep their
// index order.
#include "checks.h"
#include "qsp_validators.h"
#include "radix.h"

namespace y8 {
namespace {

using radix::Order;
namespace keys = radix::keys;

// Digit plans and histogram blocks by key width; 8-bit keys take one pass.
using Digits8 = radix::Digits<8>;

template <class K>
struct Plan;
template <>
struct Plan<Qsp8u> {
    using D = Digits8;
    using Wide = Digits8;
    static constexpr Qsp64s histogram = radix::kHistogramBytes8;
};
template <>
struct Plan<Qsp16u> {
    using D = radix::Digits16;
    using Wide = radix::Digits16;
    static constexpr Qsp64s histogram = radix::kHistogramBytes16;
};
template <>
struct Plan<Qsp32u> {
    using D = radix::Digits32;
    using Wide = radix::DigitsWide32;
    static constexpr Qsp64s histogram = radix::kHistogramBytes32;
};
template <>
struct Plan<Qsp64u> {
    using D = radix::Digits64;
    using Wide = radix::DigitsWide64;
    static constexpr Qsp64s histogram = radix::kHistogramBytes64f;
};

// Buffer bytes per element and fixed, for indices of type I; the plans
// that switch to byte digits for 2^32 elements or more need no more.
template <class K, class I>
constexpr radix::BufferShape shapeOf()
{
    using P = Plan<K>;
    return {true, radix::indexBufferBytes<typename P::D, K, I>(0, 1), P::histogram};
}

template <class I>
radix::BufferShape bufferShape(QspDataType type)
{
    switch (type) {
    case qsp8u: return shapeOf<Qsp8u, I>();
    case qsp16u:
    case qsp16s: return shapeOf<Qsp16u, I>();
    case qsp32u:
    case qsp32s:
    case qsp32f: return shapeOf<Qsp32u, I>();
    case qsp64u:
    case qsp64s:
    case qsp64f: return shapeOf<Qsp64u, I>();
    default: return {false, 0, 0};
    }
}

template <class Map, class T, class I>
void ownsSortRadixIndex(const T* pSrc, I* pIndx, Qsp64s len, Qsp8u* pBuffer)
{
    using K = simd::Bits<T>;
    using P = Plan<K>;
    const K* keys = reinterpret_cast<const K*>(pSrc);
    if (len <= Qsp64s(0xFFFFFFFF))
        radix::ownsSortRadixIndex<Map, typename P::D, Qsp32u>(keys, pIndx, len, pBuffer, P::histogram);
    else
        radix::ownsSortRadixIndex<Map, typename P::Wide, Qsp64u>(keys, pIndx, len, pBuffer, P::histogram);
}

template <class Map, class T>
QspStatus sortIndex(const T* pSrc, int* pDstIndx, int len, Qsp8u* pBuffer)
{
    if (QspStatus s = check::vectors(len, pSrc, pDstIndx, pBuffer)) return s;
    ownsSortRadixIndex<Map>(pSrc, pDstIndx, len, pBuffer);
    return qspStsOk;
}

template <class Map, class T>
QspStatus sortIndexL(const T* pSrc, Qsp64s* pDstIndx, Qsp64s len, Qsp8u* pBuffer)
{
    if (QspStatus s = check::vectorsL(len, pSrc, pDstIndx, pBuffer)) return s;
    ownsSortRadixIndex<Map>(pSrc, pDstIndx, len, pBuffer);
    return qspStsOk;
}


}  // namespace

QspStatus qspsSortRadixIndexGetBufferSize(int len, QspDataType dataType, int* pBufferSize)
{
    if (QspStatus s = check::pointers(pBufferSize)) return s;
    if (QspStatus s = check::length(len)) return s;
    return radix::reportBufferSize(len, bufferShape<int>(dataType), pBufferSize);
}

QspStatus qspsSortRadixIndexGetBufferSize_L(Qsp64s len, QspDataType dataType, Qsp64s* pBufferSize)
{
    if (QspStatus s = check::vectorsL(len, pBufferSize)) return s;
    return radix::reportBufferSize(len, bufferShape<Qsp64s>(dataType), pBufferSize);
}

QspStatus qspsSortRadixIndexAscend_8u(const Qsp8u* pSrc, int* pDstIndx, int len, Qsp8u* pBuffer) { return sortIndex<keys::UnsignedUp>(pSrc, pDstIndx, len, pBuffer); }
QspStatus qspsSortRadixIndexAscend_16u(const Qsp16u* pSrc, int* pDstIndx, int len, Qsp8u* pBuffer) { return sortIndex<keys::UnsignedUp>(pSrc, pDstIndx, len, pBuffer); }
QspStatus qspsSortRadixIndexAscend_16s(const Qsp16s* pSrc, int* pDstIndx, int len, Qsp8u* pBuffer) { return sortIndex<keys::SignedUp>(pSrc, pDstIndx, len, pBuffer); }
QspStatus qspsSortRadixIndexAscend_32u(const Qsp32u* pSrc, int* pDstIndx, int len, Qsp8u* pBuffer) { return sortIndex<keys::UnsignedUp>(pSrc, pDstIndx, len, pBuffer); }
QspStatus qspsSortRadixIndexAscend_32s(const Qsp32s* pSrc, int* pDstIndx, int len, Qsp8u* pBuffer) { return sortIndex<keys::SignedUp>(pSrc, pDstIndx, len, pBuffer); }
QspStatus qspsSortRadixIndexAscend_32f(const Qsp32f* pSrc, int* pDstIndx, int len, Qsp8u* pBuffer) { return sortIndex<keys::FloatUp>(pSrc, pDstIndx, len, pBuffer); }
QspStatus qspsSortRadixIndexAscend_64u(const Qsp64u* pSrc, int* pDstIndx, int len, Qsp8u* pBuffer) { return sortIndex<keys::UnsignedUp>(pSrc, pDstIndx, len, pBuffer); }
QspStatus qspsSortRadixIndexAscend_64s(const Qsp64s* pSrc, int* pDstIndx, int len, Qsp8u* pBuffer) { return sortIndex<keys::SignedUp>(pSrc, pDstIndx, len, pBuffer); }
QspStatus qspsSortRadixIndexAscend_64f(const Qsp64f* pSrc, int* pDstIndx, int len, Qsp8u* pBuffer) { return sortIndex<keys::FloatUp>(pSrc, pDstIndx, len, pBuffer); }
QspStatus qspsSortRadixIndexAscend_32s_L(const Qsp32s* pSrc, Qsp64s* pDstIndx, Qsp64s len, Qsp8u* pBuffer) { return sortIndexL<keys::SignedUp>(pSrc, pDstIndx, len, pBuffer); }
QspStatus qspsSortRadixIndexAscend_32f_L(const Qsp32f* pSrc, Qsp64s* pDstIndx, Qsp64s len, Qsp8u* pBuffer) { return sortIndexL<keys::FloatUp>(pSrc, pDstIndx, len, pBuffer); }
QspStatus qspsSortRadixIndexAscend_64s_L(const Qsp64s* pSrc, Qsp64s* pDstIndx, Qsp64s len, Qsp8u* pBuffer) { return sortIndexL<keys::SignedUp>(pSrc, pDstIndx, len, pBuffer); }
QspStatus qspsSortRadixIndexAscend_64f_L(const Qsp64f* pSrc, Qsp64s* pDstIndx, Qsp64s len, Qsp8u* pBuffer) { return sortIndexL<keys::FloatUp>(pSrc, pDstIndx, len, pBuffer); }

QspStatus qspsSortRadixIndexDescend_8u(const Qsp8u* pSrc, int* pDstIndx, int len, Qsp8u* pBuffer) { return sortIndex<keys::UnsignedDown>(pSrc, pDstIndx, len, pBuffer); }
QspStatus qspsSortRadixIndexDescend_16u(const Qsp16u* pSrc, int* pDstIndx, int len, Qsp8u* pBuffer) { return sortIndex<keys::UnsignedDown>(pSrc, pDstIndx, len, pBuffer); }
QspStatus qspsSortRadixIndexDescend_16s(const Qsp16s* pSrc, int* pDstIndx, int len, Qsp8u* pBuffer) { return sortIndex<keys::SignedDown>(pSrc, pDstIndx, len, pBuffer); }
QspStatus qspsSortRadixIndexDescend_32u(const Qsp32u* pSrc, int* pDstIndx, int len, Qsp8u* pBuffer) { return sortIndex<keys::UnsignedDown>(pSrc, pDstIndx, len, pBuffer); }
QspStatus qspsSortRadixIndexDescend_32s(const Qsp32s* pSrc, int* pDstIndx, int len, Qsp8u* pBuffer) { return sortIndex<keys::SignedDown>(pSrc, pDstIndx, len, pBuffer); }
QspStatus qspsSortRadixIndexDescend_32f(const Qsp32f* pSrc, int* pDstIndx, int len, Qsp8u* pBuffer) { return sortIndex<keys::FloatDown>(pSrc, pDstIndx, len, pBuffer); }
QspStatus qspsSortRadixIndexDescend_64u(const Qsp64u* pSrc, int* pDstIndx, int len, Qsp8u* pBuffer) { return sortIndex<keys::UnsignedDown>(pSrc, pDstIndx, len, pBuffer); }
QspStatus qspsSortRadixIndexDescend_64s(const Qsp64s* pSrc, int* pDstIndx, int len, Qsp8u* pBuffer) { return sortIndex<keys::SignedDown>(pSrc, pDstIndx, len, pBuffer); }
QspStatus qspsSortRadixIndexDescend_64f(const Qsp64f* pSrc, int* pDstIndx, int len, Qsp8u* pBuffer) { return sortIndex<keys::FloatDown>(pSrc, pDstIndx, len, pBuffer); }
QspStatus qspsSortRadixIndexDescend_32s_L(const Qsp32s* pSrc, Qsp64s* pDstIndx, Qsp64s len, Qsp8u* pBuffer) { return sortIndexL<keys::SignedDown>(pSrc, pDstIndx, len, pBuffer); }
QspStatus qspsSortRadixIndexDescend_32f_L(const Qsp32f* pSrc, Qsp64s* pDstIndx, Qsp64s len, Qsp8u* pBuffer) { return sortIndexL<keys::FloatDown>(pSrc, pDstIndx, len, pBuffer); }
QspStatus qspsSortRadixIndexDescend_64s_L(const Qsp64s* pSrc, Qsp64s* pDstIndx, Qsp64s len, Qsp8u* pBuffer) { return sortIndexL<keys::SignedDown>(pSrc, pDstIndx, len, pBuffer); }
QspStatus qspsSortRadixIndexDescend_64f_L(const Qsp64f* pSrc, Qsp64s* pDstIndx, Qsp64s len, Qsp8u* pBuffer) { return sortIndexL<keys::FloatDown>(pSrc, pDstIndx, len, pBuffer); }

}  // namespace y8

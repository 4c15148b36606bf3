// SPDX-License-Identifier: BSD-3-Clause
// TopK and its buffer query: the k largest elements of a vector in
// descending order with their indices; among equal values the lower index
// comes first. Values are compared through the radix sorts' keys, so
// floating values follow the total order of their bit patterns (a NaN with
// the sign bit clear ranks above +Inf, one with it set below -Inf).
//
// The buffer holds a heap of the k best so far (k keys, then k indices) with
// the worst on top: an element enters when it is strictly better than the
// top; the heap is emptied from the worst into the last output place.
#include "checks.h"
#include "qsp_validators.h"
#include "radix.h"

namespace y8 {
namespace {

namespace keys = radix::keys;

template <class K>
struct Heap {
    radix::Cell<K>* key;
    radix::Cell<int>* index;
    // a is worse than b: a smaller key, or an equal key at a higher index.
    bool worse(Qsp64s a, Qsp64s b) const
    {
        return key[a].v < key[b].v || (key[a].v == key[b].v && index[a].v > index[b].v);
    }
    void swap(Qsp64s a, Qsp64s b) const
    {
        const K k = key[a].v;
        const int i = index[a].v;
        key[a].v = key[b].v, index[a].v = index[b].v;
        key[b].v = k, index[b].v = i;
    }
    void siftUp(Qsp64s at) const
    {
        for (Qsp64s parent; at > 0 && worse(at, parent = (at - 1) / 2); at = parent) swap(at, parent);
    }
    void siftDown(Qsp64s at, Qsp64s n) const
    {
        for (Qsp64s child; (child = 2 * at + 1) < n; at = child) {
            if (child + 1 < n && worse(child + 1, child)) ++child;
            if (!worse(child, at)) break;
            swap(at, child);
        }
    }
};

template <class Map, class T>
void ownsTopK(const T* pSrc, T* pDstValue, int* pDstIndx, int len, int k, Qsp8u* pBuffer)
{
    using K = simd::Bits<T>;
    const K* src = reinterpret_cast<const K*>(pSrc);
    const Heap<K> heap{reinterpret_cast<radix::Cell<K>*>(pBuffer),
                       reinterpret_cast<radix::Cell<int>*>(pBuffer + Qsp64s(k) * Qsp64s(sizeof(K)))};
    Qsp64s n = 0;
    for (int i = 0; i < len; ++i) {
        const K key = Map::toKey(src[i]);
        if (n < k) {
            heap.key[n].v = key, heap.index[n].v = i;
            heap.siftUp(n++);
        } else if (key > heap.key[0].v) {
            heap.key[0].v = key, heap.index[0].v = i;
            heap.siftDown(0, n);
        }
    }
    K* outValue = reinterpret_cast<K*>(pDstValue);
    for (; n > 0; --n) {
        outValue[n - 1] = Map::fromKey(heap.key[0].v);
        pDstIndx[n - 1] = heap.index[0].v;
        heap.swap(0, n - 1);
        heap.siftDown(0, n - 1);
    }
}

template <class Map, class T>
QspStatus topK(const T* pSrc, T* pDstValue, int* pDstIndx, int len, int k, Qsp8u* pBuffer)
{
    if (QspStatus s = check::vectors(len, pSrc, pDstValue, pDstIndx, pBuffer)) return s;
    if (k < 1 || k > len) return qspStsBadCount;
    ownsTopK<Map>(pSrc, pDstValue, pDstIndx, len, k, pBuffer);
    return qspStsOk;
}

}  // namespace

// k keys and k 32-bit indices.
QspStatus qspsTopKGetBufferSize(int len, int k, QspDataType dataType, int* pBufferSize)
{
    if (QspStatus s = check::pointers(pBufferSize)) return s;
    if (QspStatus s = check::length(len)) return s;
    if (k < 1 || k > len) return qspStsBadCount;
    const Qsp64s keyBytes = dataType == qsp32s || dataType == qsp32f ? 4 : dataType == qsp64f ? 8 : 0;
    return radix::reportBufferSize(k, radix::BufferShape{keyBytes != 0, keyBytes + 4, 0}, pBufferSize);
}

QspStatus qspsTopK_32s(const Qsp32s* pSrc, Qsp32s* pDstValue, int* pDstIndx, int len, int k, Qsp8u* pBuffer)
{
    return topK<keys::SignedUp>(pSrc, pDstValue, pDstIndx, len, k, pBuffer);
}
QspStatus qspsTopK_32f(const Qsp32f* pSrc, Qsp32f* pDstValue, int* pDstIndx, int len, int k, Qsp8u* pBuffer)
{
    return topK<keys::FloatUp>(pSrc, pDstValue, pDstIndx, len, k, pBuffer);
}
QspStatus qspsTopK_64f(const Qsp64f* pSrc, Qsp64f* pDstValue, int* pDstIndx, int len, int k, Qsp8u* pBuffer)
{
    return topK<keys::FloatUp>(pSrc, pDstValue, pDstIndx, len, k, pBuffer);
}

}  // namespace y8

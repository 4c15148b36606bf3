// SPDX-License-Identifier: BSD-3-Clause
// FilterMedian: the running median of the last maskSize inputs,
//     pDst[i] = median of x[i - maskSize + 1 .. i],
// with x[-j] = pDlySrc[maskSize - 1 - j] (j = 1 .. maskSize - 1), or the first
// input when pDlySrc is null. The window slides one value per output; the
// work buffer holds the window (sorted, or as a double heap for long masks)
// and a ring of the keys of the last maskSize inputs, which supplies the
// value that leaves the window, so the source may be overwritten as it is
// read (in place) and the new delay line comes from the ring.
#include "checks.h"
#include "qsp_validators.h"
#include "running_median.h"

namespace y8 {
namespace {

template <class T>
using KeyOf = typename median::Key<T>::K;

// The sorted window serves masks up to this many registers of keys; longer
// masks take the double heap, whose step costs O(log maskSize).
constexpr int kSortedRegisters = 48;

template <class T>
bool useSortedWindow(int maskSize)
{
    return maskSize <= kSortedRegisters * simd::Vec<KeyOf<T>>::lanes;
}

constexpr Qsp64s align16(Qsp64s bytes) { return (bytes + 15) & ~Qsp64s(15); }

// Buffer layout from the 16-byte aligned start: the ring of keys, then the
// window (sorted keys, or heap and positions).
template <class T>
Qsp64s bufferBytes(int maskSize)
{
    using K = KeyOf<T>;
    const Qsp64s ring = align16(Qsp64s(maskSize) * Qsp64s(sizeof(K)));
    const Qsp64s window = useSortedWindow<T>(maskSize)
                              ? median::SortedWindow<K>::keysNeeded(maskSize) * Qsp64s(sizeof(K))
                              : 8 * Qsp64s(maskSize);
    return 15 + ring + window;
}

constexpr QspStatus maskSizeCheck(int maskSize)
{
    return maskSize < 1 || maskSize % 2 == 0 ? qspStsBadMaskSize : qspStsOk;
}

template <class T>
T* alignUp16(T* p)
{
    return reinterpret_cast<T*>((reinterpret_cast<Qsp64u>(p) + 15) & ~Qsp64u(15));
}

// Steps the window over the source: the key of the oldest input leaves,
// the key of x[i] enters, the median goes to pDst[i].
template <class T, class Window>
void ownsFilterMedian(const T* pSrc, T* pDst, int len, int maskSize, typename median::Key<T>::K* ring, Window&& window)
{
    using Key = median::Key<T>;
    int oldest = 0;
    for (int i = 0; i < len; ++i) {
        const KeyOf<T> in = Key::of(pSrc[i]);
        window(oldest, in);
        ring[oldest] = in;
        if (++oldest == maskSize) oldest = 0;
        pDst[i] = Key::value(window.median());
    }
}

template <class T, class Copy>
QspStatus filterMedian(const T* pSrc, T* pDst, int len, int maskSize, const T* pDlySrc, T* pDlyDst,
                       Qsp8u* pBuffer, Copy copy)
{
    if (QspStatus s = check::vectors(len, pSrc, pDst, pBuffer)) return s;
    if (QspStatus s = maskSizeCheck(maskSize)) return s;
    if (maskSize == 1) return pSrc == pDst ? qspStsOk : copy(pSrc, pDst, len);

    using Key = median::Key<T>;
    using K = KeyOf<T>;
    K* ring = alignUp16(reinterpret_cast<K*>(pBuffer));
    K* windowMem = reinterpret_cast<K*>(reinterpret_cast<Qsp8u*>(ring) +
                                        align16(Qsp64s(maskSize) * Qsp64s(sizeof(K))));
    // The ring starts as the oldest slot (a placeholder that leaves at the
    // first step) followed by the history x[-maskSize+1 .. -1].
    const T first = pSrc[0];
    ring[0] = Key::of(first);
    for (int j = 1; j < maskSize; ++j) ring[j] = Key::of(pDlySrc ? pDlySrc[j - 1] : first);
    // The keys of the last maskSize inputs, oldest first, end up in the ring
    // starting at slot len mod maskSize.
    const int end = int(Qsp64s(len) % maskSize);

    if (useSortedWindow<T>(maskSize)) {
        struct {
            median::SortedWindow<K> w;
            const K* ring;
            void operator()(int slot, K in) { if (ring[slot] != in) w.replace(ring[slot], in); }
            K median() const { return w.median(); }
        } sorted{{}, ring};
        sorted.w.init(windowMem, ring, maskSize);
        ownsFilterMedian(pSrc, pDst, len, maskSize, ring, sorted);
    } else {
        struct {
            median::MedianHeap<K> h;
            K* ring;
            void operator()(int slot, K in) { ring[slot] = in, h.changed(slot); }
            K median() const { return h.median(); }
        } heap{{}, ring};
        heap.h.init(ring, maskSize, reinterpret_cast<Qsp64s*>(windowMem));
        ownsFilterMedian(pSrc, pDst, len, maskSize, ring, heap);
    }

    if (pDlyDst) {
        // The newest maskSize - 1 keys: all slots but the oldest.
        for (int j = 1, slot = end + 1; j < maskSize; ++j, ++slot) {
            if (slot == maskSize) slot = 0;
            pDlyDst[j - 1] = Key::value(ring[slot]);
        }
    }
    return qspStsOk;
}

}  // namespace

QspStatus qspsFilterMedianGetBufferSize(int maskSize, QspDataType dataType, int* pBufferSize)
{
    if (QspStatus s = check::pointers(pBufferSize)) return s;
    if (QspStatus s = maskSizeCheck(maskSize)) return s;
    Qsp64s bytes;
    switch (dataType) {
    case qsp8u: bytes = bufferBytes<Qsp8u>(maskSize); break;
    case qsp16s: bytes = bufferBytes<Qsp16s>(maskSize); break;
    case qsp32s: bytes = bufferBytes<Qsp32s>(maskSize); break;
    case qsp32f: bytes = bufferBytes<Qsp32f>(maskSize); break;
    default: return qspStsBadDataType;
    }
    if (bytes > 0x7FFFFFFF) return qspStsOverflow;
    *pBufferSize = int(bytes);
    return qspStsOk;
}

QspStatus qspsFilterMedian_8u(const Qsp8u* pSrc, Qsp8u* pDst, int len, int maskSize, const Qsp8u* pDlySrc,
                              Qsp8u* pDlyDst, Qsp8u* pBuffer)
{
    return filterMedian(pSrc, pDst, len, maskSize, pDlySrc, pDlyDst, pBuffer, qspsCopy_8u);
}
QspStatus qspsFilterMedian_8u_I(Qsp8u* pSrcDst, int len, int maskSize, const Qsp8u* pDlySrc, Qsp8u* pDlyDst,
                                Qsp8u* pBuffer)
{
    return filterMedian(pSrcDst, pSrcDst, len, maskSize, pDlySrc, pDlyDst, pBuffer, qspsCopy_8u);
}
QspStatus qspsFilterMedian_16s(const Qsp16s* pSrc, Qsp16s* pDst, int len, int maskSize, const Qsp16s* pDlySrc,
                               Qsp16s* pDlyDst, Qsp8u* pBuffer)
{
    return filterMedian(pSrc, pDst, len, maskSize, pDlySrc, pDlyDst, pBuffer, qspsCopy_16s);
}
QspStatus qspsFilterMedian_16s_I(Qsp16s* pSrcDst, int len, int maskSize, const Qsp16s* pDlySrc, Qsp16s* pDlyDst,
                                 Qsp8u* pBuffer)
{
    return filterMedian(pSrcDst, pSrcDst, len, maskSize, pDlySrc, pDlyDst, pBuffer, qspsCopy_16s);
}
QspStatus qspsFilterMedian_32s(const Qsp32s* pSrc, Qsp32s* pDst, int len, int maskSize, const Qsp32s* pDlySrc,
                               Qsp32s* pDlyDst, Qsp8u* pBuffer)
{
    return filterMedian(pSrc, pDst, len, maskSize, pDlySrc, pDlyDst, pBuffer, qspsCopy_32s);
}
QspStatus qspsFilterMedian_32s_I(Qsp32s* pSrcDst, int len, int maskSize, const Qsp32s* pDlySrc, Qsp32s* pDlyDst,
                                 Qsp8u* pBuffer)
{
    return filterMedian(pSrcDst, pSrcDst, len, maskSize, pDlySrc, pDlyDst, pBuffer, qspsCopy_32s);
}
QspStatus qspsFilterMedian_32f(const Qsp32f* pSrc, Qsp32f* pDst, int len, int maskSize, const Qsp32f* pDlySrc,
                               Qsp32f* pDlyDst, Qsp8u* pBuffer)
{
    return filterMedian(pSrc, pDst, len, maskSize, pDlySrc, pDlyDst, pBuffer, qspsCopy_32f);
}
QspStatus qspsFilterMedian_32f_I(Qsp32f* pSrcDst, int len, int maskSize, const Qsp32f* pDlySrc, Qsp32f* pDlyDst,
                                 Qsp8u* pBuffer)
{
    return filterMedian(pSrcDst, pSrcDst, len, maskSize, pDlySrc, pDlyDst, pBuffer, qspsCopy_32f);
}

}  // namespace y8

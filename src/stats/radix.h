// SPDX-License-Identifier: BSD-3-Clause
// Least-significant-digit radix sorting of unsigned keys, shared by the
// in-place radix sorts and the radix index sorts.
//
// An element is sorted through an unsigned key of its width whose unsigned
// order is the wanted order of the elements (KeyMap below). Each pass
// distributes the keys by one digit into the other array, walking its input
// from first to last and placing each key at the next free position of its
// digit, so every pass is stable and after the last pass the keys are
// ordered by all their bits.
//
// Work buffer layout: a block of histogram counters (one histogram per
// digit, one after the other, 2^width counters each) at the first byte of
// the buffer, and the temporary array of len keys at a fixed offset behind
// the block. The buffer needs no alignment, so counters and temporaries are
// accessed through byte-aligned types.
#pragma once
#include "qspdefs.h"
#include "simd.h"

namespace y8::radix {

// A T read and written at any byte address and through any pointer type
// (a struct, so that the property survives template deduction).
template <class T>
struct __attribute__((packed, may_alias)) Cell {
    T v;
};

// ---------------------------------------------------------------------------
// Key mappings. Each maps the bits x of an element to its key and back; a
// mapping is its own inverse where the formula allows.
// ---------------------------------------------------------------------------

template <class K>
constexpr K kTop = K(1) << (8 * sizeof(K) - 1);

// All ones when the top bit of x is set, else zero.
template <class K>
constexpr K topMask(K x)
{
    return K(0) - (x >> (8 * sizeof(K) - 1));
}

enum class Order { Ascend, Descend };

// Unsigned integers: the bits themselves, inverted for descending order.
template <Order O>
struct UnsignedKey {
    template <class K> static constexpr K toKey(K x) { return O == Order::Ascend ? x : K(~x); }
    template <class K> static constexpr K fromKey(K k) { return toKey(k); }
};

// Signed integers: the sign bit inverted (ascending), or every other bit
// inverted (descending).
template <Order O>
struct SignedKey {
    template <class K> static constexpr K toKey(K x) { return x ^ (O == Order::Ascend ? kTop<K> : K(kTop<K> - 1)); }
    template <class K> static constexpr K fromKey(K k) { return toKey(k); }
};

// IEEE floating point. Ascending: a negative pattern is inverted whole, a
// non-negative one gets its sign bit set; so -0.0 (0x80..0 -> 0x7F..F)
// comes right before +0.0 (0x00..0 -> 0x80..0) and NaNs stand outside the
// infinities in the order of their bit patterns. Descending: a negative
// pattern stays as it is and a non-negative one has every bit but the sign
// inverted, which is the ascending key inverted.
template <Order O>
struct FloatKey {
    template <class K>
    static constexpr K toKey(K x)
    {
        if constexpr (O == Order::Ascend)
            return x ^ (topMask(x) | kTop<K>);
        else
            return x ^ (~topMask(x) & K(kTop<K> - 1));
    }
    template <class K>
    static constexpr K fromKey(K k)
    {
        if constexpr (O == Order::Ascend)
            return k ^ (~topMask(k) | kTop<K>);
        else
            return toKey(k);
    }
};

// The mappings by type and order, as the sort families name them.
namespace keys {
using UnsignedUp = UnsignedKey<Order::Ascend>;
using UnsignedDown = UnsignedKey<Order::Descend>;
using SignedUp = SignedKey<Order::Ascend>;
using SignedDown = SignedKey<Order::Descend>;
using FloatUp = FloatKey<Order::Ascend>;
using FloatDown = FloatKey<Order::Descend>;
}  // namespace keys

// ---------------------------------------------------------------------------
// Digit plans: the widths of the digits from the least significant up, which
// is also the order of the passes. Histogram d starts at counter offset(d).
// ---------------------------------------------------------------------------

template <int... W>
struct Digits {
    static constexpr int passes = sizeof...(W);
    static constexpr int width[passes] = {W...};
    static constexpr int shift(int d) { return d == 0 ? 0 : shift(d - 1) + width[d - 1]; }
    static constexpr int offset(int d) { return d == 0 ? 0 : offset(d - 1) + (1 << width[d - 1]); }
    static constexpr int counters = offset(passes - 1) + (1 << width[passes - 1]);
};

// 32-bit keys: 11 + 11 + 10 bits, 5120 counters.
using Digits32 = Digits<11, 11, 10>;
// 64-bit keys: 4 x 11 + 2 x 10 bits, 10240 counters.
using Digits64 = Digits<11, 11, 11, 11, 10, 10>;
// 16-bit keys: two bytes.
using Digits16 = Digits<8, 8>;
// A vector of 2^32 elements or more overflows 32-bit counters; it is
// sorted by bytes with 64-bit counters, which take no more room than the
// 32-bit counters of the ordinary plans.
using DigitsWide32 = Digits<8, 8, 8, 8>;
using DigitsWide64 = Digits<8, 8, 8, 8, 8, 8, 8, 8>;

// Bytes of the histogram block reserved in front of the temporary array,
// by key width (the integer 64-bit types reserve twice the room of the
// floating one).
constexpr Qsp64s kHistogramBytes8 = 1024;
constexpr Qsp64s kHistogramBytes16 = 2048;
constexpr Qsp64s kHistogramBytes32 = 20480;
constexpr Qsp64s kHistogramBytes64f = 40960;
constexpr Qsp64s kHistogramBytes64 = 81920;

static_assert(Digits16::counters * 4 <= kHistogramBytes16);
static_assert(Digits32::counters * 4 <= kHistogramBytes32);
static_assert(Digits64::counters * 4 <= kHistogramBytes64f);
static_assert(DigitsWide32::counters * 8 <= kHistogramBytes32);
static_assert(DigitsWide64::counters * 8 <= kHistogramBytes64f);

// The answer of a buffer-size query: size 0 and qspStsBadDataType for a type
// without a shape; qspStsOverflow (nothing written) when the size reaches
// 2^31 (a 32-bit result) or 2^63 (a 64-bit one), judged in double, where
// the product cannot wrap; otherwise the size.
struct BufferShape {
    bool known;
    Qsp64s perElement, fixed;
};

template <class Size>
QspStatus reportBufferSize(Qsp64s len, BufferShape shape, Size* pSize)
{
    if (!shape.known) {
        *pSize = 0;
        return qspStsBadDataType;
    }
    const double limit = sizeof(Size) == 4 ? 2147483648.0 : 9223372036854775808.0;
    if (double(shape.perElement) * double(len) + double(shape.fixed) >= limit) return qspStsOverflow;
    *pSize = Size(shape.perElement * len + shape.fixed);
    return qspStsOk;
}

// ---------------------------------------------------------------------------
// The passes.
// ---------------------------------------------------------------------------

// Copies len keys; element by element when the two arrays overlap,
// otherwise two registers at a time and then the tail.
template <class K>
void ownsCopyKeys(const Cell<K>* pSrc, Cell<K>* pDst, Qsp64s len)
{
    const Qsp64u s = reinterpret_cast<Qsp64u>(pSrc), d = reinterpret_cast<Qsp64u>(pDst);
    const Qsp64u bytes = Qsp64u(len) * sizeof(K);
    Qsp64s i = 0;
    if (s + bytes <= d || d + bytes <= s) {
        using V = simd::Vec<K>;
        for (; i + 2 * V::lanes <= len; i += 2 * V::lanes) {
            const auto a = V::loadu(pSrc + i), b = V::loadu(pSrc + i + V::lanes);
            V::storeu(pDst + i, a);
            V::storeu(pDst + i + V::lanes, b);
        }
    }
    for (; i < len; ++i) pDst[i].v = pSrc[i].v;
}

// Sorts len keys of the vector pSrcDst (element bits of the unsigned type
// K) in place by the key mapping Map and the digit plan D, with counters of
// type C in the buffer and the temporary array at tempOffset bytes.
//
//  1. Clear the counters.
//  2. One pass maps every element to its key, writes the key back over the
//     element and counts each of its digits.
//  3. Every histogram becomes exclusive running sums started at -1, so that
//     a pre-incremented counter is the position of the next key with that
//     digit.
//  4. Pass d moves the keys by digit d from the vector to the temporary
//     array or back, alternately; the last pass maps the keys back to
//     elements as it places them.
//  5. After an odd number of passes the result stands in the temporary
//     array and is copied into the vector.
template <class Map, class D, class C, class K>
void ownsSortRadix(K* pSrcDst, Qsp64s len, Qsp8u* pBuffer, Qsp64s tempOffset)
{
    Cell<C>* count = reinterpret_cast<Cell<C>*>(pBuffer);
    Cell<K>* temp = reinterpret_cast<Cell<K>*>(pBuffer + tempOffset);
    Cell<K>* vec = reinterpret_cast<Cell<K>*>(pSrcDst);

    for (int i = 0; i < D::counters; ++i) count[i].v = 0;

    for (Qsp64s i = 0; i < len; ++i) {
        const K k = Map::toKey(vec[i].v);
        vec[i].v = k;
        for (int d = 0; d < D::passes; ++d)
            ++count[D::offset(d) + int((k >> D::shift(d)) & ((K(1) << D::width[d]) - 1))].v;
    }

    for (int d = 0; d < D::passes; ++d) {
        C run = C(0) - 1;
        for (int j = 0; j < (1 << D::width[d]); ++j) {
            const C n = count[D::offset(d) + j].v;
            count[D::offset(d) + j].v = run;
            run += n;
        }
    }

    // The stores of a pass scatter over as many places as the digit has
    // values, more than the first-level cache and address translation keep
    // at hand; asking for the place of the key kAhead elements on (as its
    // counter now stands) halves the time of a pass on large vectors.
    constexpr Qsp64s kAhead = 16;
    auto pass = [&](const Cell<K>* in, Cell<K>* out, int d, auto place) {
        Cell<C>* c = count + D::offset(d);
        const int shift = D::shift(d);
        const K mask = (K(1) << D::width[d]) - 1;
        Qsp64s i = 0;
        for (; i + kAhead < len; ++i) {
            simd::prefetch(out + c[(in[i + kAhead].v >> shift) & mask].v + 1);
            const K k = in[i].v;
            out[++c[(k >> shift) & mask].v].v = place(k);
        }
        for (; i < len; ++i) {
            const K k = in[i].v;
            out[++c[(k >> shift) & mask].v].v = place(k);
        }
    };
    auto keep = [](K k) { return k; };
    auto back = [](K k) { return Map::fromKey(k); };
    for (int d = 0; d < D::passes - 1; ++d) {
        if (d % 2 == 0)
            pass(vec, temp, d, keep);
        else
            pass(temp, vec, d, keep);
    }
    if (D::passes % 2 == 1)
        pass(vec, temp, D::passes - 1, back);
    else
        pass(temp, vec, D::passes - 1, back);
    if (D::passes % 2 == 1) ownsCopyKeys(temp, vec, len);
}

// The radix index sort: the same passes over (key, index) pairs, the keys
// mapped from the source as the first pass reads it, which is never
// written. Pass d reads the keys and indices that pass d - 1 wrote (the
// first pass: the mapped source and the indices 0, 1, ...) and writes them
// by digit d; the last pass writes only the indices, into pIndx. Buffer:
// the counters, then one key array (two when there are three passes or
// more, which alternate), then one index array; the index arrays alternate
// between it and pIndx so that the last pass lands in pIndx.
template <class D, class K, class I>
constexpr Qsp64s indexBufferBytes(Qsp64s histogramBytes, Qsp64s len)
{
    return histogramBytes + (D::passes >= 3 ? 2 : D::passes == 2 ? 1 : 0) * len * Qsp64s(sizeof(K)) +
           (D::passes >= 2 ? len * Qsp64s(sizeof(I)) : 0);
}

template <class Map, class D, class C, class K, class I>
void ownsSortRadixIndex(const K* pSrc, I* pIndx, Qsp64s len, Qsp8u* pBuffer, Qsp64s histogramBytes)
{
    Cell<C>* count = reinterpret_cast<Cell<C>*>(pBuffer);
    Cell<K>* keys[2] = {reinterpret_cast<Cell<K>*>(pBuffer + histogramBytes),
                        reinterpret_cast<Cell<K>*>(pBuffer + histogramBytes) + (D::passes >= 3 ? len : 0)};
    Cell<I>* indexTemp = reinterpret_cast<Cell<I>*>(pBuffer + histogramBytes +
                                                    (D::passes >= 3 ? 2 : 1) * len * Qsp64s(sizeof(K)));
    Cell<I>* out = reinterpret_cast<Cell<I>*>(pIndx);

    for (int i = 0; i < D::counters; ++i) count[i].v = 0;
    for (Qsp64s i = 0; i < len; ++i) {
        const K k = Map::toKey(pSrc[i]);
        for (int d = 0; d < D::passes; ++d)
            ++count[D::offset(d) + int((k >> D::shift(d)) & ((K(1) << D::width[d]) - 1))].v;
    }
    for (int d = 0; d < D::passes; ++d) {
        C run = C(0) - 1;
        for (int j = 0; j < (1 << D::width[d]); ++j) {
            const C n = count[D::offset(d) + j].v;
            count[D::offset(d) + j].v = run;
            run += n;
        }
    }

    // Index arrays by pass: the last writes pIndx, the one before the
    // temporary array, and so on back.
    auto indexOut = [&](int d) { return (D::passes - 1 - d) % 2 == 0 ? out : indexTemp; };
    for (int d = 0; d < D::passes; ++d) {
        Cell<C>* c = count + D::offset(d);
        const int shift = D::shift(d);
        const K mask = (K(1) << D::width[d]) - 1;
        const bool last = d == D::passes - 1;
        Cell<I>* idxOut = indexOut(d);
        Cell<K>* keyOut = keys[d % 2];
        if (d == 0) {
            for (Qsp64s i = 0; i < len; ++i) {
                const K k = Map::toKey(pSrc[i]);
                const C at = ++c[(k >> shift) & mask].v;
                idxOut[at].v = I(i);
                if (!last) keyOut[at].v = k;
            }
        } else {
            const Cell<K>* keyIn = keys[(d - 1) % 2];
            const Cell<I>* idxIn = indexOut(d - 1);
            for (Qsp64s i = 0; i < len; ++i) {
                const K k = keyIn[i].v;
                const C at = ++c[(k >> shift) & mask].v;
                idxOut[at].v = idxIn[i].v;
                if (!last) keyOut[at].v = k;
            }
        }
    }
}

}  // namespace y8::radix

// SPDX-License-Identifier: BSD-3-Clause
// The extremum search shared by the Max, Min, MinMax, their index and
// magnitude forms: the kernels, and the validating steps that all of these
// families have in common.
//
// Two rules, both exact:
//  - Value search keeps the current extreme in every lane and takes one
//    step per element: current = (current better than element) ? current :
//    element. There is no NaN test: a NaN element replaces the current
//    value of its lane (nothing is better than it), and a NaN current value
//    is replaced by the next element. Lanes are folded with the same step.
//  - Index search reports the lowest index holding the extreme: a candidate
//    replaces the best only when it is strictly better under an ordered
//    comparison, so a NaN never replaces the best, and a NaN first element
//    stays the result with index 0.
#pragma once
#include "checks.h"
#include "chunked.h"
#include "qspdefs.h"
#include "simd.h"

namespace y8::extremum {

// ---------------------------------------------------------------------------
// Which extreme
// ---------------------------------------------------------------------------

struct Largest {
    template <class C>
    static C step(C current, C x) { return current > x ? current : x; }
    template <class V>
    static typename V::Reg stepv(typename V::Reg current, typename V::Reg x) { return V::max(current, x); }
    template <class C>
    static bool better(C x, C best) { return x > best; }
};

struct Smallest {
    template <class C>
    static C step(C current, C x) { return current < x ? current : x; }
    template <class V>
    static typename V::Reg stepv(typename V::Reg current, typename V::Reg x) { return V::min(current, x); }
    template <class C>
    static bool better(C x, C best) { return x < best; }
};

// ---------------------------------------------------------------------------
// What is compared: the element itself, or its magnitude
// ---------------------------------------------------------------------------

// C is the compared type; of() maps an element or a register of elements
// to it, out() maps a compared value to the reported value.
template <class T>
struct Value {
    using C = T;
    static C of(T x) { return x; }
    static typename simd::Vec<T>::Reg of(typename simd::Vec<T>::Reg r) { return r; }
    static T out(C c) { return c; }
};

template <class T>
struct Magnitude;

template <>
struct Magnitude<Qsp32f> {
    using C = Qsp32f;
    static C of(Qsp32f x) { return __builtin_fabsf(x); }
    static __m128 of(__m128 r) { return simd::Vec<Qsp32f>::andNot(simd::Vec<Qsp32f>::signBit(), r); }
    static Qsp32f out(C c) { return c; }
};

template <>
struct Magnitude<Qsp64f> {
    using C = Qsp64f;
    static C of(Qsp64f x) { return __builtin_fabs(x); }
    static __m128d of(__m128d r) { return simd::Vec<Qsp64f>::andNot(simd::Vec<Qsp64f>::signBit(), r); }
    static Qsp64f out(C c) { return c; }
};

// 16-bit magnitudes compare unsigned: -32768 has magnitude 32768, the
// largest; reported, it saturates to 32767.
template <>
struct Magnitude<Qsp16s> {
    using C = Qsp16u;
    static C of(Qsp16s x) { return x < 0 ? C(-int(x)) : C(x); }
    static __m128i of(__m128i r) { return simd::Vec<Qsp16s>::abs(r); }
    static Qsp16s out(C c) { return c > 32767 ? Qsp16s(32767) : Qsp16s(c); }
};

template <>
struct Magnitude<Qsp32s> {
    using C = Qsp32u;
    static C of(Qsp32s x) { return x < 0 ? C(0) - C(x) : C(x); }
    static __m128i of(__m128i r) { return simd::Vec<Qsp32s>::abs(r); }
    static Qsp32s out(C c) { return c > 2147483647u ? Qsp32s(2147483647) : Qsp32s(c); }
};

// ---------------------------------------------------------------------------
// Kernels
// ---------------------------------------------------------------------------

// True for a NaN; integers never are.
template <class C>
bool unordered(C x)
{
    if constexpr (sizeof(C) >= 4 && C(0.5) != C(0))
        return x != x;
    else
        return false;
}

// Elements before the first 16-byte boundary of p (none when p is not even
// aligned to its element size, which no boundary walk can mend).
template <class T>
Qsp64s ownsHeadToBoundary(const T* p, Qsp64s len)
{
    const Qsp64u a = reinterpret_cast<Qsp64u>(p);
    if (a % sizeof(T) != 0) return 0;
    const Qsp64s head = Qsp64s(((simd::kBytes - a % simd::kBytes) % simd::kBytes) / sizeof(T));
    return head < len ? head : len;
}

// Folds the lanes of r, from lane 0 up, with the step of Pick.
template <class Pick, class C>
C ownsFold(typename simd::Vec<C>::Reg r)
{
    using VC = simd::Vec<C>;
    alignas(16) C lane[VC::lanes];
    VC::store(lane, r);
    C current = lane[0];
    for (int j = 1; j < VC::lanes; ++j) current = Pick::step(current, lane[j]);
    return current;
}

// Value search: the running extreme starts as the first element; the
// elements up to the first 16-byte boundary are taken one by one, then
// four registers of lanes run side by side (16 lanes for 32-bit elements)
// and are folded, and the rest is taken one by one again.
template <class Pick, class View, class T>
typename View::C ownsSearchValue(const T* pSrc, Qsp64s len)
{
    using C = typename View::C;
    using VT = simd::Vec<T>;
    using VC = simd::Vec<C>;
    constexpr Qsp64s L = VC::lanes;
    C current = View::of(pSrc[0]);
    const Qsp64s head = ownsHeadToBoundary(pSrc, len);
    // Already on a boundary, the vector loop starts at element 0 again;
    // taking the first element twice changes nothing.
    Qsp64s i = head == 0 ? 0 : 1;
    for (; i < head; ++i) current = Pick::step(current, View::of(pSrc[i]));
    if (i + 4 * L <= len) {
        auto a0 = VC::splat(current), a1 = a0, a2 = a0, a3 = a0;
        for (; i + 4 * L <= len; i += 4 * L) {
            a0 = Pick::template stepv<VC>(a0, View::of(VT::loadu(pSrc + i)));
            a1 = Pick::template stepv<VC>(a1, View::of(VT::loadu(pSrc + i + L)));
            a2 = Pick::template stepv<VC>(a2, View::of(VT::loadu(pSrc + i + 2 * L)));
            a3 = Pick::template stepv<VC>(a3, View::of(VT::loadu(pSrc + i + 3 * L)));
        }
        a0 = Pick::template stepv<VC>(Pick::template stepv<VC>(a0, a1), Pick::template stepv<VC>(a2, a3));
        current = ownsFold<Pick, C>(a0);
    }
    for (; i < len; ++i) current = Pick::step(current, View::of(pSrc[i]));
    return current;
}

// Both extremes in one pass, by the same steps as ownsSearchValue.
template <class T>
void ownsSearchMinMax(const T* pSrc, Qsp64s len, T& min, T& max)
{
    using V = simd::Vec<T>;
    constexpr Qsp64s L = V::lanes;
    T lo = pSrc[0], hi = pSrc[0];
    const Qsp64s head = ownsHeadToBoundary(pSrc, len);
    Qsp64s i = head == 0 ? 0 : 1;
    for (; i < head; ++i) {
        lo = Smallest::step(lo, pSrc[i]);
        hi = Largest::step(hi, pSrc[i]);
    }
    if (i + 4 * L <= len) {
        auto l0 = V::splat(lo), l1 = l0, l2 = l0, l3 = l0;
        auto h0 = V::splat(hi), h1 = h0, h2 = h0, h3 = h0;
        for (; i + 4 * L <= len; i += 4 * L) {
            const auto x0 = V::loadu(pSrc + i), x1 = V::loadu(pSrc + i + L);
            const auto x2 = V::loadu(pSrc + i + 2 * L), x3 = V::loadu(pSrc + i + 3 * L);
            l0 = V::min(l0, x0), l1 = V::min(l1, x1), l2 = V::min(l2, x2), l3 = V::min(l3, x3);
            h0 = V::max(h0, x0), h1 = V::max(h1, x1), h2 = V::max(h2, x2), h3 = V::max(h3, x3);
        }
        lo = ownsFold<Smallest, T>(V::min(V::min(l0, l1), V::min(l2, l3)));
        hi = ownsFold<Largest, T>(V::max(V::max(h0, h1), V::max(h2, h3)));
    }
    for (; i < len; ++i) {
        lo = Smallest::step(lo, pSrc[i]);
        hi = Largest::step(hi, pSrc[i]);
    }
    min = lo;
    max = hi;
}

// The first index from 0 whose compared value equals `value` (ordered
// comparison), or -1 when there is none.
template <class View, class T>
Qsp64s ownsFindFirstEqual(const T* pSrc, Qsp64s len, typename View::C value)
{
    using C = typename View::C;
    using VT = simd::Vec<T>;
    using VC = simd::Vec<C>;
    constexpr Qsp64s L = VC::lanes;
    const auto v = VC::splat(value);
    Qsp64s i = 0;
    for (; i + 2 * L <= len; i += 2 * L) {
        const int m0 = VC::anyMask(VC::cmpeq(View::of(VT::loadu(pSrc + i)), v));
        const int m1 = VC::anyMask(VC::cmpeq(View::of(VT::loadu(pSrc + i + L)), v));
        if (m0 | m1) return i + __builtin_ctz(unsigned(m0 | (m1 << L)));
    }
    for (; i < len; ++i)
        if (View::of(pSrc[i]) == value) return i;
    return -1;
}

// Up to this length the index search is one sequential pass.
template <class T>
constexpr Qsp64s kShortIndexSearch = sizeof(T) <= 2 ? 31 : 33;

// Index search: the lowest index of the extreme. Short vectors are one
// sequential pass. Longer ones go in blocks of eight registers: the lanes
// of a block start from the best so far and take an element only when it
// is strictly better (so NaNs are passed over); only a block that holds a
// better value is looked at again, for the first position of that value.
template <class Pick, class View, class T>
Qsp64s ownsSearchIndex(const T* pSrc, Qsp64s len)
{
    using C = typename View::C;
    using VT = simd::Vec<T>;
    using VC = simd::Vec<C>;
    constexpr Qsp64s L = VC::lanes;
    constexpr Qsp64s B = 8 * L;
    constexpr int allLanes = (1 << L) - 1;
    C best = View::of(pSrc[0]);
    Qsp64s at = 0;
    if (unordered(best)) return 0;  // a NaN first element is never replaced
    Qsp64s i = 1;
    if (len > kShortIndexSearch<T>) {
        for (i = 0; i + B <= len; i += B) {
            const auto b = VC::splat(best);
            auto a0 = b, a1 = b, a2 = b, a3 = b;
            // Element first: where it is not better (or is a NaN) the lane
            // keeps its value.
            for (Qsp64s j = 0; j < B; j += 4 * L) {
                a0 = Pick::template stepv<VC>(View::of(VT::loadu(pSrc + i + j)), a0);
                a1 = Pick::template stepv<VC>(View::of(VT::loadu(pSrc + i + j + L)), a1);
                a2 = Pick::template stepv<VC>(View::of(VT::loadu(pSrc + i + j + 2 * L)), a2);
                a3 = Pick::template stepv<VC>(View::of(VT::loadu(pSrc + i + j + 3 * L)), a3);
            }
            const auto m = Pick::template stepv<VC>(Pick::template stepv<VC>(a0, a1), Pick::template stepv<VC>(a2, a3));
            if (VC::anyMask(VC::cmpeq(m, b)) != allLanes) {
                best = ownsFold<Pick, C>(m);
                at = i + ownsFindFirstEqual<View>(pSrc + i, B, best);
            }
        }
    }
    for (; i < len; ++i) {
        const C x = View::of(pSrc[i]);
        if (Pick::better(x, best)) {
            best = x;
            at = i;
        }
    }
    return at;
}

// Element-wise extreme of two vectors: pDst[i] = step(pSrc1[i], pSrc2[i]),
// so where neither is better (equal, or a NaN on either side) the element
// of the second vector comes out.
template <class Pick, class T>
void ownsEvery(const T* pSrc1, const T* pSrc2, T* pDst, Qsp64s len)
{
    using V = simd::Vec<T>;
    constexpr Qsp64s L = V::lanes;
    Qsp64s i = 0;
    for (; i + 4 * L <= len; i += 4 * L) {
        const auto a0 = V::loadu(pSrc1 + i), a1 = V::loadu(pSrc1 + i + L);
        const auto a2 = V::loadu(pSrc1 + i + 2 * L), a3 = V::loadu(pSrc1 + i + 3 * L);
        const auto b0 = V::loadu(pSrc2 + i), b1 = V::loadu(pSrc2 + i + L);
        const auto b2 = V::loadu(pSrc2 + i + 2 * L), b3 = V::loadu(pSrc2 + i + 3 * L);
        V::storeu(pDst + i, Pick::template stepv<V>(a0, b0));
        V::storeu(pDst + i + L, Pick::template stepv<V>(a1, b1));
        V::storeu(pDst + i + 2 * L, Pick::template stepv<V>(a2, b2));
        V::storeu(pDst + i + 3 * L, Pick::template stepv<V>(a3, b3));
    }
    for (; i + L <= len; i += L) V::storeu(pDst + i, Pick::template stepv<V>(V::loadu(pSrc1 + i), V::loadu(pSrc2 + i)));
    for (; i < len; ++i) pDst[i] = Pick::step(pSrc1[i], pSrc2[i]);
}

// ---------------------------------------------------------------------------
// Validating steps shared by the families
// ---------------------------------------------------------------------------

template <class Pick, class View, class T>
QspStatus searchValue(const T* pSrc, int len, T* pValue)
{
    if (QspStatus s = check::vectors(len, pSrc, pValue)) return s;
    *pValue = View::out(ownsSearchValue<Pick, View>(pSrc, len));
    return qspStsOk;
}

// pIndx is optional: without it the call is the value-only search.
template <class Pick, class View, class T, class ValueOnly>
QspStatus searchIndex(const T* pSrc, int len, T* pValue, int* pIndx, ValueOnly valueOnly)
{
    if (pIndx == nullptr) return valueOnly(pSrc, len, pValue);
    if (QspStatus s = check::vectors(len, pSrc, pValue)) return s;
    const Qsp64s at = ownsSearchIndex<Pick, View>(pSrc, len);
    *pValue = View::out(View::of(pSrc[at]));
    *pIndx = int(at);
    return qspStsOk;
}

// The 64-bit length forms run the 32-bit function chunk by chunk (length
// checked first, then the pointers) and combine the chunk results by the
// same rules as the elements.
template <class Pick, class T, class Ordinary>
QspStatus searchValueL(Qsp64s chunk, const T* pSrc, Qsp64s len, T* pValue, Ordinary ordinary)
{
    if (QspStatus s = check::vectorsL(len, pSrc, pValue)) return s;
    T current{};
    return chunkedBy(chunk, len, [&](Qsp64s at, int n) -> QspStatus {
        T part;
        const QspStatus s = ordinary(pSrc + at, n, &part);
        current = at == 0 ? part : Pick::step(current, part);
        *pValue = current;
        return s;
    });
}

template <class Pick, class View, class T, class Ordinary, class ValueOnlyL>
QspStatus searchIndexL(Qsp64s chunk, const T* pSrc, Qsp64s len, T* pValue, Qsp64s* pIndx, Ordinary ordinary,
                       ValueOnlyL valueOnlyL)
{
    if (pIndx == nullptr) return valueOnlyL(pSrc, len, pValue);
    if (QspStatus s = check::vectorsL(len, pSrc, pValue)) return s;
    T best{};
    Qsp64s bestAt = 0;
    return chunkedBy(chunk, len, [&](Qsp64s at, int n) -> QspStatus {
        // A later chunk that opens with NaNs would report its first NaN;
        // its candidates are the elements behind them.
        Qsp64s skip = 0;
        if (at > 0)
            while (skip < n && unordered(View::of(pSrc[at + skip]))) ++skip;
        if (skip == n) return qspStsOk;
        T part;
        int partAt;
        const QspStatus s = ordinary(pSrc + at + skip, int(n - skip), &part, &partAt);
        if (at == 0 || Pick::better(View::of(pSrc[at + skip + partAt]), View::of(pSrc[bestAt]))) {
            best = part;
            bestAt = at + skip + partAt;
        }
        *pValue = best;
        *pIndx = bestAt;
        return s;
    });
}

template <class Pick, class T>
QspStatus every(const T* pSrc1, const T* pSrc2, T* pDst, int len)
{
    if (QspStatus s = check::vectors(len, pSrc1, pSrc2, pDst)) return s;
    ownsEvery<Pick>(pSrc1, pSrc2, pDst, len);
    return qspStsOk;
}

// In place: the result goes into the second operand.
template <class Pick, class T>
QspStatus everyInPlace(const T* pSrc, T* pSrcDst, int len)
{
    if (QspStatus s = check::vectors(len, pSrc, pSrcDst)) return s;
    ownsEvery<Pick>(pSrc, pSrcDst, pSrcDst, len);
    return qspStsOk;
}

}  // namespace y8::extremum

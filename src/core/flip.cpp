// SPDX-License-Identifier: BSD-3-Clause
// Flip: elements in reverse order, out of place or where they stand.
// Elements are moved as bit patterns of their size (a complex element as a
// whole), so one kernel pair per element size serves every type.
#include "checks.h"
#include "qsp_validators.h"
#include "simd.h"

namespace y8 {
namespace {

template <class E>
void ownsFlip(const E* pSrc, E* pDst, Qsp64s len)
{
    using V = simd::Vec<E>;
    constexpr Qsp64s L = V::lanes;
    const E* back = pSrc + len;
    Qsp64s i = 0;
    for (; i + 4 * L <= len; i += 4 * L) {
        const auto a = V::loadu(back - i - L), b = V::loadu(back - i - 2 * L);
        const auto c = V::loadu(back - i - 3 * L), d = V::loadu(back - i - 4 * L);
        V::storeu(pDst + i, V::reverse(a));
        V::storeu(pDst + i + L, V::reverse(b));
        V::storeu(pDst + i + 2 * L, V::reverse(c));
        V::storeu(pDst + i + 3 * L, V::reverse(d));
    }
    for (; i + L <= len; i += L) V::storeu(pDst + i, V::reverse(V::loadu(back - i - L)));
    for (; i < len; ++i) simd::storeOne(pDst + i, simd::loadOne(back - 1 - i));
}

// Swaps registers from both ends towards the middle; what is left between
// them (less than two registers) is swapped element by element, so the
// middle element of an odd length stays where it is.
template <class E>
void ownsFlipCommon_I_L(E* pSrcDst, Qsp64s len)
{
    using V = simd::Vec<E>;
    constexpr Qsp64s L = V::lanes;
    E* lo = pSrcDst;
    E* hi = pSrcDst + len;
    for (; hi - lo >= 4 * L; lo += 2 * L, hi -= 2 * L) {
        const auto a = V::loadu(lo), b = V::loadu(lo + L);
        const auto c = V::loadu(hi - L), d = V::loadu(hi - 2 * L);
        V::storeu(lo, V::reverse(c));
        V::storeu(lo + L, V::reverse(d));
        V::storeu(hi - L, V::reverse(a));
        V::storeu(hi - 2 * L, V::reverse(b));
    }
    for (; hi - lo >= 2 * L; lo += L, hi -= L) {
        const auto a = V::loadu(lo), c = V::loadu(hi - L);
        V::storeu(lo, V::reverse(c));
        V::storeu(hi - L, V::reverse(a));
    }
    for (; hi - lo >= 2; ++lo, --hi) {
        const E t = simd::loadOne(lo);
        simd::storeOne(lo, simd::loadOne(hi - 1));
        simd::storeOne(hi - 1, t);
    }
}

template <class T>
QspStatus flip(const T* pSrc, T* pDst, int len)
{
    if (QspStatus s = check::vectors(len, pSrc, pDst)) return s;
    using E = simd::Bits<T>;
    ownsFlip(reinterpret_cast<const E*>(pSrc), reinterpret_cast<E*>(pDst), len);
    return qspStsOk;
}

template <class T>
QspStatus flipInPlace(T* pSrcDst, int len)
{
    if (QspStatus s = check::vectors(len, pSrcDst)) return s;
    ownsFlipCommon_I_L(reinterpret_cast<simd::Bits<T>*>(pSrcDst), Qsp64s(len));
    return qspStsOk;
}

// The 64-bit forms run the same kernels with their own length; the length
// is checked before the pointers.
template <class T>
QspStatus flipL(const T* pSrc, T* pDst, Qsp64s len)
{
    if (QspStatus s = check::length(len)) return s;
    if (QspStatus s = check::pointers(pSrc, pDst)) return s;
    using E = simd::Bits<T>;
    ownsFlip(reinterpret_cast<const E*>(pSrc), reinterpret_cast<E*>(pDst), len);
    return qspStsOk;
}

template <class T>
QspStatus flipInPlaceL(T* pSrcDst, Qsp64s len)
{
    if (QspStatus s = check::length(len)) return s;
    if (QspStatus s = check::pointers(pSrcDst)) return s;
    ownsFlipCommon_I_L(reinterpret_cast<simd::Bits<T>*>(pSrcDst), len);
    return qspStsOk;
}

}  // namespace

QspStatus qspsFlip_8u(const Qsp8u* pSrc, Qsp8u* pDst, int len) { return flip(pSrc, pDst, len); }
QspStatus qspsFlip_16u(const Qsp16u* pSrc, Qsp16u* pDst, int len) { return flip(pSrc, pDst, len); }
QspStatus qspsFlip_32f(const Qsp32f* pSrc, Qsp32f* pDst, int len) { return flip(pSrc, pDst, len); }
QspStatus qspsFlip_32fc(const Qsp32fc* pSrc, Qsp32fc* pDst, int len) { return flip(pSrc, pDst, len); }
QspStatus qspsFlip_64f(const Qsp64f* pSrc, Qsp64f* pDst, int len) { return flip(pSrc, pDst, len); }
QspStatus qspsFlip_64fc(const Qsp64fc* pSrc, Qsp64fc* pDst, int len) { return flip(pSrc, pDst, len); }

QspStatus qspsFlip_8u_I(Qsp8u* pSrcDst, int len) { return flipInPlace(pSrcDst, len); }
QspStatus qspsFlip_16u_I(Qsp16u* pSrcDst, int len) { return flipInPlace(pSrcDst, len); }
QspStatus qspsFlip_32f_I(Qsp32f* pSrcDst, int len) { return flipInPlace(pSrcDst, len); }
QspStatus qspsFlip_32fc_I(Qsp32fc* pSrcDst, int len) { return flipInPlace(pSrcDst, len); }
QspStatus qspsFlip_64f_I(Qsp64f* pSrcDst, int len) { return flipInPlace(pSrcDst, len); }
QspStatus qspsFlip_64fc_I(Qsp64fc* pSrcDst, int len) { return flipInPlace(pSrcDst, len); }

QspStatus qspsFlip_32f_L(const Qsp32f* pSrc, Qsp32f* pDst, Qsp64s len) { return flipL(pSrc, pDst, len); }
QspStatus qspsFlip_32fc_L(const Qsp32fc* pSrc, Qsp32fc* pDst, Qsp64s len) { return flipL(pSrc, pDst, len); }
QspStatus qspsFlip_64f_L(const Qsp64f* pSrc, Qsp64f* pDst, Qsp64s len) { return flipL(pSrc, pDst, len); }
QspStatus qspsFlip_64fc_L(const Qsp64fc* pSrc, Qsp64fc* pDst, Qsp64s len) { return flipL(pSrc, pDst, len); }

QspStatus qspsFlip_32f_I_L(Qsp32f* pSrcDst, Qsp64s len) { return flipInPlaceL(pSrcDst, len); }
QspStatus qspsFlip_32fc_I_L(Qsp32fc* pSrcDst, Qsp64s len) { return flipInPlaceL(pSrcDst, len); }
QspStatus qspsFlip_64f_I_L(Qsp64f* pSrcDst, Qsp64s len) { return flipInPlaceL(pSrcDst, len); }
QspStatus qspsFlip_64fc_I_L(Qsp64fc* pSrcDst, Qsp64s len) { return flipInPlaceL(pSrcDst, len); }

}  // namespace y8

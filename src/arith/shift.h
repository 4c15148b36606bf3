// SPDX-License-Identifier: BSD-3-Clause
// Shifts of every element by one count, for LShiftC and RShiftC: the
// kernels and the validating order both families share. The count is
// examined before the other checks: 0 is a copy and the element width or
// more gives zeros (left shifts, logical right shifts) or the sign
// (arithmetic right shifts), each served by the copy or zero fill that
// then checks the pointers itself; a negative count is an error reported
// after the pointer and length checks.
#pragma once
#include "forms.h"

namespace shift {

// The register shift of T's lane width by a count held in a register.
// Bytes have no shift instruction: they shift as 16-bit lanes and the bits
// that crossed from the neighbouring byte are masked off.
template <class T, bool Left>
struct Op {
    using V = simd::Vec<T>;
    using R = typename V::Reg;
    R count, mask;
    int n;
    explicit Op(int k) : count(_mm_cvtsi32_si128(k)), n(k)
    {
        const int m = Left ? (0xFF << k) & 0xFF : 0xFF >> k;
        mask = _mm_set1_epi8(char(m));
    }
    R reg(R a) const
    {
        if constexpr (sizeof(T) == 1) {
            return _mm_and_si128(Left ? _mm_sll_epi16(a, count) : _mm_srl_epi16(a, count), mask);
        } else if constexpr (sizeof(T) == 2) {
            if constexpr (Left) return _mm_sll_epi16(a, count);
            else if constexpr (std::is_signed_v<T>) return _mm_sra_epi16(a, count);
            else return _mm_srl_epi16(a, count);
        } else {
            if constexpr (Left) return _mm_sll_epi32(a, count);
            else return _mm_sra_epi32(a, count);  // 32s is the only 32-bit type
        }
    }
    T one(T a) const
    {
        if constexpr (Left) return T(std::make_unsigned_t<T>(a) << n);
        else return T(a >> n);
    }
};

// The copy and zero fill of T's width.
inline QspStatus copy(const Qsp8u* s, Qsp8u* d, int n) { return y8::qspsCopy_8u(s, d, n); }
inline QspStatus copy(const Qsp16s* s, Qsp16s* d, int n) { return y8::qspsCopy_16s(s, d, n); }
inline QspStatus copy(const Qsp16u* s, Qsp16u* d, int n)
{
    return y8::qspsCopy_16s(reinterpret_cast<const Qsp16s*>(s), reinterpret_cast<Qsp16s*>(d), n);
}
inline QspStatus copy(const Qsp32s* s, Qsp32s* d, int n) { return y8::qspsCopy_32s(s, d, n); }

template <class T, bool Left>
QspStatus run(const T* pSrc, int val, T* pDst, int len)
{
    constexpr int width = 8 * int(sizeof(T));
    if (val == 0) return copy(pSrc, pDst, len);
    if (val >= width) {
        if (Left || !std::is_signed_v<T>) {
            if (pSrc == nullptr) return qspStsNullPtr;
            return forms::zeroFill(pDst, len);
        }
        val = width - 1;  // the sign in every bit
    }
    if (QspStatus s = check::vectors(len, pSrc, pDst)) return s;
    if (val < 0) return qspStsBadShift;
    elementwise::map1(pSrc, pDst, len, Op<T, Left>(val));
    return qspStsOk;
}

// In place: a zero count leaves the vector as it is (after its checks).
template <class T, bool Left>
QspStatus runInPlace(int val, T* pSrcDst, int len)
{
    constexpr int width = 8 * int(sizeof(T));
    if (val == 0) return check::vectors(len, pSrcDst);
    if (val >= width) {
        if (Left || !std::is_signed_v<T>) return forms::zeroFill(pSrcDst, len);
        val = width - 1;
    }
    if (QspStatus s = check::vectors(len, pSrcDst)) return s;
    if (val < 0) return qspStsBadShift;
    elementwise::map1(pSrcDst, pSrcDst, len, Op<T, Left>(val));
    return qspStsOk;
}

}  // namespace shift

// SPDX-License-Identifier: BSD-3-Clause
// Abs: magnitudes of real elements; integers saturate (the most negative
// value gives the largest positive one), floating values lose their sign
// bit (NaN payloads kept, -0.0 becomes +0.0).
#include "forms.h"

namespace y8 {
namespace {

// Floating: the sign bit cleared.
template <class T>
struct AbsF {
    using V = simd::Vec<T>;
    typename V::Reg reg(typename V::Reg a) const { return V::andNot(V::signBit(), a); }
    T one(T a) const
    {
        using U = simd::Bits<T>;
        return __builtin_bit_cast(T, U(__builtin_bit_cast(U, a) & ~(U(1) << (8 * sizeof(T) - 1))));
    }
};

// 16s: |x| with saturation in 16-bit lanes (|-32768| is 32768, which the
// saturating subtraction of the sign mask turns into 32767).
struct Abs16 {
    using V = simd::Vec<Qsp16s>;
    V::Reg reg(V::Reg a) const { return V::subs(_mm_xor_si128(a, _mm_srai_epi16(a, 15)), _mm_srai_epi16(a, 15)); }
    Qsp16s one(Qsp16s a) const { return a == -32768 ? Qsp16s(32767) : Qsp16s(a < 0 ? -a : a); }
};

// 32s: |x| in 32-bit lanes; only -2^31 needs saturating, to 2^31 - 1.
struct Abs32 {
    using V = simd::Vec<Qsp32s>;
    V::Reg reg(V::Reg a) const
    {
        const V::Reg m = _mm_abs_epi32(a);  // -2^31 stays -2^31
        return V::add(m, _mm_srai_epi32(m, 31));
    }
    Qsp32s one(Qsp32s a) const { return a == Qsp32s(0x80000000u) ? 0x7FFFFFFF : (a < 0 ? -a : a); }
};

template <class T, class Op>
QspStatus abs(const T* pSrc, T* pDst, int len, Op op)
{
    return forms::v(pSrc, pDst, len, op);
}

}  // namespace

QspStatus qspsAbs_16s(const Qsp16s* pSrc, Qsp16s* pDst, int len) { return abs(pSrc, pDst, len, Abs16{}); }
QspStatus qspsAbs_16s_I(Qsp16s* pSrcDst, int len) { return abs(pSrcDst, pSrcDst, len, Abs16{}); }
QspStatus qspsAbs_32s(const Qsp32s* pSrc, Qsp32s* pDst, int len) { return abs(pSrc, pDst, len, Abs32{}); }
QspStatus qspsAbs_32s_I(Qsp32s* pSrcDst, int len) { return abs(pSrcDst, pSrcDst, len, Abs32{}); }
QspStatus qspsAbs_32f(const Qsp32f* pSrc, Qsp32f* pDst, int len) { return abs(pSrc, pDst, len, AbsF<Qsp32f>{}); }
QspStatus qspsAbs_32f_I(Qsp32f* pSrcDst, int len) { return abs(pSrcDst, pSrcDst, len, AbsF<Qsp32f>{}); }
QspStatus qspsAbs_64f(const Qsp64f* pSrc, Qsp64f* pDst, int len) { return abs(pSrc, pDst, len, AbsF<Qsp64f>{}); }
QspStatus qspsAbs_64f_I(Qsp64f* pSrcDst, int len) { return abs(pSrcDst, pSrcDst, len, AbsF<Qsp64f>{}); }

QspStatus qspsAbs_32f_L(const Qsp32f* pSrc, Qsp32f* pDst, Qsp64s len) { return forms::chunks(qspsAbs_32f, pSrc, pDst, len); }
QspStatus qspsAbs_32f_I_L(Qsp32f* pSrcDst, Qsp64s len) { return forms::chunksI(qspsAbs_32f_I, pSrcDst, len); }
QspStatus qspsAbs_64f_L(const Qsp64f* pSrc, Qsp64f* pDst, Qsp64s len) { return forms::chunks(qspsAbs_64f, pSrc, pDst, len); }
QspStatus qspsAbs_64f_I_L(Qsp64f* pSrcDst, Qsp64s len) { return forms::chunksI(qspsAbs_64f_I, pSrcDst, len); }

}  // namespace y8

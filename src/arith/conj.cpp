// SPDX-License-Identifier: BSD-3-Clause
// Conj: complex conjugates, the imaginary part negated (16sc saturates:
// -32768 becomes 32767; floating parts have their sign bit flipped, so
// NaN payloads and signed zeros are kept).
#include "forms.h"

namespace y8 {
namespace {

template <class C>
struct ConjF {
    using V = simd::Vec<C>;
    using P = ops::Part<C>;
    typename V::Reg mask;  // the sign bit of every imaginary part
    typename V::Reg reg(typename V::Reg a) const { return V::bitXor(a, mask); }
    C one(C a) const { return {a.re, -a.im}; }
};

template <class C>
ConjF<C> conjF()
{
    using V = simd::Vec<C>;
    const C m{ops::Part<C>(0.0), ops::Part<C>(-0.0)};
    return {V::splat(m)};
}

// 16sc: the imaginary lanes subtracted from zero with saturation.
struct Conj16 {
    using V = simd::Vec<Qsp16s>;
    V::Reg imag = _mm_set1_epi32(Qsp32s(0xFFFF0000u));
    V::Reg reg(V::Reg a) const
    {
        const V::Reg negated = V::subs(V::zero(), a);
        return _mm_blendv_epi8(a, negated, imag);
    }
    Qsp16sc one(Qsp16sc a) const { return {a.re, a.im == -32768 ? Qsp16s(32767) : Qsp16s(-a.im)}; }
};

}  // namespace

QspStatus qspsConj_16sc(const Qsp16sc* pSrc, Qsp16sc* pDst, int len)
{
    if (QspStatus s = check::vectors(len, pSrc, pDst)) return s;
    // Four complex elements per register of 16-bit lanes.
    const Conj16 op;
    int i = 0;
    for (; i + 4 <= len; i += 4)
        Conj16::V::storeu(pDst + i, op.reg(Conj16::V::loadu(pSrc + i)));
    for (; i < len; ++i) pDst[i] = op.one(pSrc[i]);
    return qspStsOk;
}
QspStatus qspsConj_16sc_I(Qsp16sc* pSrcDst, int len) { return qspsConj_16sc(pSrcDst, pSrcDst, len); }
QspStatus qspsConj_32fc(const Qsp32fc* pSrc, Qsp32fc* pDst, int len) { return forms::v(pSrc, pDst, len, conjF<Qsp32fc>()); }
QspStatus qspsConj_32fc_I(Qsp32fc* pSrcDst, int len) { return forms::v(pSrcDst, pSrcDst, len, conjF<Qsp32fc>()); }
QspStatus qspsConj_64fc(const Qsp64fc* pSrc, Qsp64fc* pDst, int len) { return forms::v(pSrc, pDst, len, conjF<Qsp64fc>()); }
QspStatus qspsConj_64fc_I(Qsp64fc* pSrcDst, int len) { return forms::v(pSrcDst, pSrcDst, len, conjF<Qsp64fc>()); }

QspStatus qspsConj_32fc_L(const Qsp32fc* pSrc, Qsp32fc* pDst, Qsp64s len) { return forms::chunks(qspsConj_32fc, pSrc, pDst, len); }
QspStatus qspsConj_32fc_I_L(Qsp32fc* pSrcDst, Qsp64s len) { return forms::chunksI(qspsConj_32fc_I, pSrcDst, len); }
QspStatus qspsConj_64fc_L(const Qsp64fc* pSrc, Qsp64fc* pDst, Qsp64s len) { return forms::chunks(qspsConj_64fc, pSrc, pDst, len); }
QspStatus qspsConj_64fc_I_L(Qsp64fc* pSrcDst, Qsp64s len) { return forms::chunksI(qspsConj_64fc_I, pSrcDst, len); }

}  // namespace y8

// SPDX-License-Identifier: BSD-3-Clause
// PowerSpectr: re^2 + im^2 of complex elements, interleaved or as separate
// parts. Floating results: both squares rounded, then their sum (within
// 1.5 ULP). The scaled 16-bit form takes the exact sum of squares.
#include "forms.h"

namespace y8 {
namespace {

template <class C, class P>
void ownsPowerSpectr(const C* pSrc, P* pDst, Qsp64s len)
{
    using V = simd::Vec<P>;
    using VC = simd::Vec<C>;
    constexpr Qsp64s L = V::lanes;
    // Squares of two registers of elements, then real squares plus
    // imaginary squares (a split and one add: cheaper than a horizontal add).
    auto power = [](typename V::Reg a, typename V::Reg b) {
        const typename V::Reg sa = V::mul(a, a), sb = V::mul(b, b);
        return V::add(V::evens(sa, sb), V::odds(sa, sb));
    };
    Qsp64s i = 0;
    for (; i + 2 * L <= len; i += 2 * L) {
        V::storeu(pDst + i, power(VC::loadu(pSrc + i), VC::loadu(pSrc + i + L / 2)));
        V::storeu(pDst + i + L, power(VC::loadu(pSrc + i + L), VC::loadu(pSrc + i + L + L / 2)));
    }
    for (; i + L <= len; i += L) V::storeu(pDst + i, power(VC::loadu(pSrc + i), VC::loadu(pSrc + i + L / 2)));
    for (; i < len; ++i) pDst[i] = pSrc[i].re * pSrc[i].re + pSrc[i].im * pSrc[i].im;
}

template <class P>
struct Power {
    using V = simd::Vec<P>;
    typename V::Reg reg(typename V::Reg re, typename V::Reg im) const { return V::add(V::mul(re, re), V::mul(im, im)); }
    P one(P re, P im) const { return re * re + im * im; }
};

template <class C, class P>
QspStatus powerSpectr(const C* pSrc, P* pDst, int len)
{
    if (QspStatus s = check::vectors(len, pSrc, pDst)) return s;
    ownsPowerSpectr(pSrc, pDst, len);
    return qspStsOk;
}

// 16sc: re^2 + im^2 by one multiply-add per element, in [0, 2^31]; 2^31
// (from -32768 - 32768i) wraps to -2^31 and is replaced by 2^31 - 1, which
// scales to the same 16-bit result. Zeros from 32, the bound from -16.
struct Power16 {
    using R = simd::Vec<Qsp32s>::Reg;
    R reg(R a) const
    {
        using V32 = simd::Vec<Qsp32s>;
        const R s = simd::Vec<Qsp16s>::madd(a, a);
        return V32::add(s, V32::cmpeq(s, V32::splat(Qsp32s(0x80000000u))));
    }
};

}  // namespace

QspStatus qspsPowerSpectr_32fc(const Qsp32fc* pSrc, Qsp32f* pDst, int len) { return powerSpectr(pSrc, pDst, len); }
QspStatus qspsPowerSpectr_64fc(const Qsp64fc* pSrc, Qsp64f* pDst, int len) { return powerSpectr(pSrc, pDst, len); }
QspStatus qspsPowerSpectr_32f(const Qsp32f* pSrcRe, const Qsp32f* pSrcIm, Qsp32f* pDst, int len)
{
    return forms::vv(pSrcRe, pSrcIm, pDst, len, Power<Qsp32f>{});
}
QspStatus qspsPowerSpectr_64f(const Qsp64f* pSrcRe, const Qsp64f* pSrcIm, Qsp64f* pDst, int len)
{
    return forms::vv(pSrcRe, pSrcIm, pDst, len, Power<Qsp64f>{});
}
QspStatus qspsPowerSpectr_16sc_Sfs(const Qsp16sc* pSrc, Qsp16s* pDst, int len, int scaleFactor)
{
    if (QspStatus s = check::vectors(len, pSrc, pDst)) return s;
    constexpr ops::Range R{0, (Qsp64s(1) << 31) - 1};
    return forms::scaled<R>(scaleFactor, pDst, len, [&](auto mode) {
        elementwise::lanes<true>(pDst, len, Power16{}, mode, pSrc);
        return qspStsOk;
    });
}
QspStatus qspsPowerSpectr_32fc_L(const Qsp32fc* pSrc, Qsp32f* pDst, Qsp64s len)
{
    return forms::chunks(qspsPowerSpectr_32fc, pSrc, pDst, len);
}
QspStatus qspsPowerSpectr_64fc_L(const Qsp64fc* pSrc, Qsp64f* pDst, Qsp64s len)
{
    return forms::chunks(qspsPowerSpectr_64fc, pSrc, pDst, len);
}

}  // namespace y8

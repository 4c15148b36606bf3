// SPDX-License-Identifier: BSD-3-Clause
// Div: element-wise quotients, the second source divided by the first. A
// zero divisor element does not stop the work: the whole output is written
// and the warning qspStsWarnDivByZero returned.
#include "complex_div.h"
#include "forms.h"
#include "quotient.h"

namespace y8 {
namespace {

// b / a on registers and elements, noting zero divisors on the way.
template <class T>
struct DivWatch {
    using V = simd::Vec<T>;
    typename V::Reg* zeros;
    bool* zero;
    typename V::Reg reg(typename V::Reg a, typename V::Reg b) const
    {
        *zeros = V::bitOr(*zeros, V::cmpeq(a, V::zero()));
        return V::div(b, a);
    }
    T one(T a, T b) const
    {
        *zero = *zero || a == T(0);
        return b / a;
    }
};

template <class T>
QspStatus divFloating(const T* pSrc1, const T* pSrc2, T* pDst, int len)
{
    if (QspStatus s = check::vectors(len, pSrc1, pSrc2, pDst)) return s;
    using V = simd::Vec<T>;
    typename V::Reg zeros = V::zero();
    bool zero = false;
    elementwise::map2(pSrc1, pSrc2, pDst, len, DivWatch<T>{&zeros, &zero});
    return zero || V::anyMask(zeros) ? qspStsWarnDivByZero : qspStsOk;
}

template <class C>
QspStatus divComplex(const C* pSrc1, const C* pSrc2, C* pDst, int len)
{
    if (QspStatus s = check::vectors(len, pSrc1, pSrc2, pDst)) return s;
    bool zero = false;
    if constexpr (sizeof(C) == 8) {
        zero = cdiv::quotients(pSrc1, pSrc2, pDst, len);
    } else {
        for (int i = 0; i < len; ++i) {
            const C a = pSrc1[i];
            zero = zero || (a.re == 0 && a.im == 0);
            pDst[i] = cdiv::quotient(a, pSrc2[i]);
        }
    }
    return zero ? qspStsWarnDivByZero : qspStsOk;
}

template <class T>
QspStatus divScaled(const T* pSrc1, const T* pSrc2, T* pDst, int len, int scaleFactor)
{
    if (QspStatus s = check::vectors(len, pSrc1, pSrc2, pDst)) return s;
    bool zero;
    if constexpr (sizeof(T) <= 2) {
        zero = quotient::ownsDiv_16<rounding::kNear>(pSrc1, pSrc2, pDst, len, scaleFactor);
    } else {
        zero = false;
        for (int i = 0; i < len; ++i) {
            zero = zero || pSrc1[i] == 0;
            pDst[i] = quotient::exact<rounding::kNear, T>(pSrc2[i], pSrc1[i], scaleFactor);
        }
    }
    return zero ? qspStsWarnDivByZero : qspStsOk;
}

// 16sc: b * conj(a) / |a|^2 exactly, each part rounded; a zero divisor
// gives each part the bound of the dividend's part.
QspStatus div16sc(const Qsp16sc* pSrc1, const Qsp16sc* pSrc2, Qsp16sc* pDst, int len, int scaleFactor)
{
    if (QspStatus s = check::vectors(len, pSrc1, pSrc2, pDst)) return s;
    bool zero = false;
    for (int i = 0; i < len; ++i) {
        const quotient::i128 ar = pSrc1[i].re, ai = pSrc1[i].im, br = pSrc2[i].re, bi = pSrc2[i].im;
        const quotient::i128 d = ar * ar + ai * ai;
        if (d == 0) {
            zero = true;
            pDst[i] = {quotient::boundOf<Qsp16s>(br), quotient::boundOf<Qsp16s>(bi)};
        } else {
            pDst[i] = {quotient::exact<rounding::kNear, Qsp16s>(br * ar + bi * ai, d, scaleFactor),
                       quotient::exact<rounding::kNear, Qsp16s>(bi * ar - br * ai, d, scaleFactor)};
        }
    }
    return zero ? qspStsWarnDivByZero : qspStsOk;
}

}  // namespace

QspStatus qspsDiv_32f(const Qsp32f* pSrc1, const Qsp32f* pSrc2, Qsp32f* pDst, int len)
{
    return divFloating(pSrc1, pSrc2, pDst, len);
}
QspStatus qspsDiv_32f_I(const Qsp32f* pSrc, Qsp32f* pSrcDst, int len) { return divFloating(pSrc, pSrcDst, pSrcDst, len); }
QspStatus qspsDiv_64f(const Qsp64f* pSrc1, const Qsp64f* pSrc2, Qsp64f* pDst, int len)
{
    return divFloating(pSrc1, pSrc2, pDst, len);
}
QspStatus qspsDiv_64f_I(const Qsp64f* pSrc, Qsp64f* pSrcDst, int len) { return divFloating(pSrc, pSrcDst, pSrcDst, len); }
QspStatus qspsDiv_32fc(const Qsp32fc* pSrc1, const Qsp32fc* pSrc2, Qsp32fc* pDst, int len)
{
    return divComplex(pSrc1, pSrc2, pDst, len);
}
QspStatus qspsDiv_32fc_I(const Qsp32fc* pSrc, Qsp32fc* pSrcDst, int len) { return divComplex(pSrc, pSrcDst, pSrcDst, len); }
QspStatus qspsDiv_64fc(const Qsp64fc* pSrc1, const Qsp64fc* pSrc2, Qsp64fc* pDst, int len)
{
    return divComplex(pSrc1, pSrc2, pDst, len);
}
QspStatus qspsDiv_64fc_I(const Qsp64fc* pSrc, Qsp64fc* pSrcDst, int len) { return divComplex(pSrc, pSrcDst, pSrcDst, len); }

QspStatus qspsDiv_8u_Sfs(const Qsp8u* pSrc1, const Qsp8u* pSrc2, Qsp8u* pDst, int len, int scaleFactor)
{
    return divScaled(pSrc1, pSrc2, pDst, len, scaleFactor);
}
QspStatus qspsDiv_8u_ISfs(const Qsp8u* pSrc, Qsp8u* pSrcDst, int len, int scaleFactor)
{
    return divScaled(pSrc, pSrcDst, pSrcDst, len, scaleFactor);
}
QspStatus qspsDiv_16s_Sfs(const Qsp16s* pSrc1, const Qsp16s* pSrc2, Qsp16s* pDst, int len, int scaleFactor)
{
    return divScaled(pSrc1, pSrc2, pDst, len, scaleFactor);
}
QspStatus qspsDiv_16s_ISfs(const Qsp16s* pSrc, Qsp16s* pSrcDst, int len, int scaleFactor)
{
    return divScaled(pSrc, pSrcDst, pSrcDst, len, scaleFactor);
}
QspStatus qspsDiv_16u_Sfs(const Qsp16u* pSrc1, const Qsp16u* pSrc2, Qsp16u* pDst, int len, int scaleFactor)
{
    return divScaled(pSrc1, pSrc2, pDst, len, scaleFactor);
}
QspStatus qspsDiv_16u_ISfs(const Qsp16u* pSrc, Qsp16u* pSrcDst, int len, int scaleFactor)
{
    return divScaled(pSrc, pSrcDst, pSrcDst, len, scaleFactor);
}
QspStatus qspsDiv_32s_Sfs(const Qsp32s* pSrc1, const Qsp32s* pSrc2, Qsp32s* pDst, int len, int scaleFactor)
{
    return divScaled(pSrc1, pSrc2, pDst, len, scaleFactor);
}
QspStatus qspsDiv_32s_ISfs(const Qsp32s* pSrc, Qsp32s* pSrcDst, int len, int scaleFactor)
{
    return divScaled(pSrc, pSrcDst, pSrcDst, len, scaleFactor);
}
QspStatus qspsDiv_16sc_Sfs(const Qsp16sc* pSrc1, const Qsp16sc* pSrc2, Qsp16sc* pDst, int len, int scaleFactor)
{
    return div16sc(pSrc1, pSrc2, pDst, len, scaleFactor);
}
QspStatus qspsDiv_16sc_ISfs(const Qsp16sc* pSrc, Qsp16sc* pSrcDst, int len, int scaleFactor)
{
    return div16sc(pSrc, pSrcDst, pSrcDst, len, scaleFactor);
}

QspStatus qspsDiv_32f_L(const Qsp32f* pSrc1, const Qsp32f* pSrc2, Qsp32f* pDst, Qsp64s len)
{
    return forms::chunks(qspsDiv_32f, pSrc1, pSrc2, pDst, len);
}
QspStatus qspsDiv_32f_I_L(const Qsp32f* pSrc, Qsp32f* pSrcDst, Qsp64s len)
{
    return forms::chunks(qspsDiv_32f_I, pSrc, pSrcDst, len);
}
QspStatus qspsDiv_64f_L(const Qsp64f* pSrc1, const Qsp64f* pSrc2, Qsp64f* pDst, Qsp64s len)
{
    return forms::chunks(qspsDiv_64f, pSrc1, pSrc2, pDst, len);
}
QspStatus qspsDiv_64f_I_L(const Qsp64f* pSrc, Qsp64f* pSrcDst, Qsp64s len)
{
    return forms::chunks(qspsDiv_64f_I, pSrc, pSrcDst, len);
}
QspStatus qspsDiv_32fc_L(const Qsp32fc* pSrc1, const Qsp32fc* pSrc2, Qsp32fc* pDst, Qsp64s len)
{
    return forms::chunks(qspsDiv_32fc, pSrc1, pSrc2, pDst, len);
}
QspStatus qspsDiv_32fc_I_L(const Qsp32fc* pSrc, Qsp32fc* pSrcDst, Qsp64s len)
{
    return forms::chunks(qspsDiv_32fc_I, pSrc, pSrcDst, len);
}
QspStatus qspsDiv_64fc_L(const Qsp64fc* pSrc1, const Qsp64fc* pSrc2, Qsp64fc* pDst, Qsp64s len)
{
    return forms::chunks(qspsDiv_64fc, pSrc1, pSrc2, pDst, len);
}
QspStatus qspsDiv_64fc_I_L(const Qsp64fc* pSrc, Qsp64fc* pSrcDst, Qsp64s len)
{
    return forms::chunks(qspsDiv_64fc_I, pSrc, pSrcDst, len);
}

}  // namespace y8

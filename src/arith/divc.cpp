// SPDX-License-Identifier: BSD-3-Clause
// DivC: every element divided by a constant. A zero constant is an error
// (floating: one that compares equal to 0.0, -0.0 included); the floating
// forms multiply by the reciprocal, computed once in the element precision,
// through MulC.
#include "complex_div.h"
#include "forms.h"
#include "quotient.h"

namespace y8 {
namespace {

template <class T>
bool isZero(T v)
{
    if constexpr (ops::isComplex<T>) return v.re == 0 && v.im == 0;
    else return v == T(0);
}

template <class T>
T reciprocal(T v)
{
    if constexpr (ops::isComplex<T>) return cdiv::quotient(v, T{1, 0});
    else return T(1) / v;
}

// Checks, then the product with the reciprocal by mul (a MulC function).
template <class T, class MulC>
QspStatus divc(MulC mul, const T* pSrc, T val, T* pDst, int len)
{
    if (QspStatus s = check::vectors(len, pSrc, pDst)) return s;
    if (isZero(val)) return qspStsZeroDivisor;
    return mul(pSrc, reciprocal(val), pDst, len);
}
template <class T, class MulC>
QspStatus divcI(MulC mul, T val, T* pSrcDst, int len)
{
    if (QspStatus s = check::vectors(len, pSrcDst)) return s;
    if (isZero(val)) return qspStsZeroDivisor;
    return mul(reciprocal(val), pSrcDst, len);
}

// Integer quotients by the exact rule, rounded to nearest even.
template <class T>
QspStatus divcScaled(const T* pSrc, T val, T* pDst, int len, int scaleFactor)
{
    if (QspStatus s = check::vectors(len, pSrc, pDst)) return s;
    if (val == 0) return qspStsZeroDivisor;
    quotient::ownsDivC_16<rounding::kNear>(pSrc, val, pDst, len, scaleFactor);
    return qspStsOk;
}

// 16sc: x * conj(val) / |val|^2 exactly, each part rounded.
QspStatus divc16sc(const Qsp16sc* pSrc, Qsp16sc val, Qsp16sc* pDst, int len, int scaleFactor)
{
    if (QspStatus s = check::vectors(len, pSrc, pDst)) return s;
    if (val.re == 0 && val.im == 0) return qspStsZeroDivisor;
    const quotient::i128 cr = val.re, ci = val.im, d = cr * cr + ci * ci;
    for (int i = 0; i < len; ++i) {
        const quotient::i128 xr = pSrc[i].re, xi = pSrc[i].im;
        pDst[i] = {quotient::exact<rounding::kNear, Qsp16s>(xr * cr + xi * ci, d, scaleFactor),
                   quotient::exact<rounding::kNear, Qsp16s>(xi * cr - xr * ci, d, scaleFactor)};
    }
    return qspStsOk;
}

}  // namespace

QspStatus qspsDivC_32f(const Qsp32f* pSrc, Qsp32f val, Qsp32f* pDst, int len) { return divc(qspsMulC_32f, pSrc, val, pDst, len); }
QspStatus qspsDivC_32f_I(Qsp32f val, Qsp32f* pSrcDst, int len) { return divcI(qspsMulC_32f_I, val, pSrcDst, len); }
QspStatus qspsDivC_64f(const Qsp64f* pSrc, Qsp64f val, Qsp64f* pDst, int len) { return divc(qspsMulC_64f, pSrc, val, pDst, len); }
QspStatus qspsDivC_64f_I(Qsp64f val, Qsp64f* pSrcDst, int len) { return divcI(qspsMulC_64f_I, val, pSrcDst, len); }
QspStatus qspsDivC_32fc(const Qsp32fc* pSrc, Qsp32fc val, Qsp32fc* pDst, int len)
{
    return divc(qspsMulC_32fc, pSrc, val, pDst, len);
}
QspStatus qspsDivC_32fc_I(Qsp32fc val, Qsp32fc* pSrcDst, int len) { return divcI(qspsMulC_32fc_I, val, pSrcDst, len); }
QspStatus qspsDivC_64fc(const Qsp64fc* pSrc, Qsp64fc val, Qsp64fc* pDst, int len)
{
    return divc(qspsMulC_64fc, pSrc, val, pDst, len);
}
QspStatus qspsDivC_64fc_I(Qsp64fc val, Qsp64fc* pSrcDst, int len) { return divcI(qspsMulC_64fc_I, val, pSrcDst, len); }

QspStatus qspsDivC_8u_Sfs(const Qsp8u* pSrc, Qsp8u val, Qsp8u* pDst, int len, int scaleFactor)
{
    return divcScaled(pSrc, val, pDst, len, scaleFactor);
}
QspStatus qspsDivC_8u_ISfs(Qsp8u val, Qsp8u* pSrcDst, int len, int scaleFactor)
{
    return divcScaled(pSrcDst, val, pSrcDst, len, scaleFactor);
}
QspStatus qspsDivC_16s_Sfs(const Qsp16s* pSrc, int val, Qsp16s* pDst, int len, int scaleFactor)
{
    return divcScaled(pSrc, Qsp16s(val), pDst, len, scaleFactor);
}
QspStatus qspsDivC_16s_ISfs(int val, Qsp16s* pSrcDst, int len, int scaleFactor)
{
    return divcScaled(pSrcDst, Qsp16s(val), pSrcDst, len, scaleFactor);
}
QspStatus qspsDivC_16u_Sfs(const Qsp16u* pSrc, int val, Qsp16u* pDst, int len, int scaleFactor)
{
    return divcScaled(pSrc, Qsp16u(val), pDst, len, scaleFactor);
}
QspStatus qspsDivC_16u_ISfs(int val, Qsp16u* pSrcDst, int len, int scaleFactor)
{
    return divcScaled(pSrcDst, Qsp16u(val), pSrcDst, len, scaleFactor);
}
QspStatus qspsDivC_16sc_Sfs(const Qsp16sc* pSrc, Qsp16sc val, Qsp16sc* pDst, int len, int scaleFactor)
{
    return divc16sc(pSrc, val, pDst, len, scaleFactor);
}
QspStatus qspsDivC_16sc_ISfs(Qsp16sc val, Qsp16sc* pSrcDst, int len, int scaleFactor)
{
    return divc16sc(pSrcDst, val, pSrcDst, len, scaleFactor);
}

QspStatus qspsDivC_32f_L(const Qsp32f* pSrc, Qsp32f val, Qsp32f* pDst, Qsp64s len)
{
    return forms::chunksC(qspsDivC_32f, pSrc, val, pDst, len);
}
QspStatus qspsDivC_32f_I_L(Qsp32f val, Qsp32f* pSrcDst, Qsp64s len) { return forms::chunksCI(qspsDivC_32f_I, val, pSrcDst, len); }
QspStatus qspsDivC_64f_L(const Qsp64f* pSrc, Qsp64f val, Qsp64f* pDst, Qsp64s len)
{
    return forms::chunksC(qspsDivC_64f, pSrc, val, pDst, len);
}
QspStatus qspsDivC_64f_I_L(Qsp64f val, Qsp64f* pSrcDst, Qsp64s len) { return forms::chunksCI(qspsDivC_64f_I, val, pSrcDst, len); }
QspStatus qspsDivC_32fc_L(const Qsp32fc* pSrc, Qsp32fc val, Qsp32fc* pDst, Qsp64s len)
{
    return forms::chunksC(qspsDivC_32fc, pSrc, val, pDst, len);
}
QspStatus qspsDivC_32fc_I_L(Qsp32fc val, Qsp32fc* pSrcDst, Qsp64s len)
{
    return forms::chunksCI(qspsDivC_32fc_I, val, pSrcDst, len);
}
QspStatus qspsDivC_64fc_L(const Qsp64fc* pSrc, Qsp64fc val, Qsp64fc* pDst, Qsp64s len)
{
    return forms::chunksC(qspsDivC_64fc, pSrc, val, pDst, len);
}
QspStatus qspsDivC_64fc_I_L(Qsp64fc val, Qsp64fc* pSrcDst, Qsp64s len)
{
    return forms::chunksCI(qspsDivC_64fc_I, val, pSrcDst, len);
}

}  // namespace y8

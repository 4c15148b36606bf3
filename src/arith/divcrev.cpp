// SPDX-License-Identifier: BSD-3-Clause
// DivCRev: a constant divided by every element. Zero elements give the
// warning qspStsWarnDivByZero after the whole output is written.
#include "forms.h"
#include "quotient.h"

namespace y8 {
namespace {

// val / x on registers and elements, noting zero elements on the way.
template <class T>
struct RevWatch {
    using V = simd::Vec<T>;
    typename V::Reg num;
    T val;
    typename V::Reg* zeros;
    bool* zero;
    typename V::Reg reg(typename V::Reg x) const
    {
        *zeros = V::bitOr(*zeros, V::cmpeq(x, V::zero()));
        return V::div(num, x);
    }
    T one(T x) const
    {
        *zero = *zero || x == T(0);
        return val / x;
    }
};

template <class T>
QspStatus divcrev(const T* pSrc, T val, T* pDst, int len)
{
    if (QspStatus s = check::vectors(len, pSrc, pDst)) return s;
    using V = simd::Vec<T>;
    typename V::Reg zeros = V::zero();
    bool zero = false;
    elementwise::map1(pSrc, pDst, len, RevWatch<T>{V::splat(val), val, &zeros, &zero});
    return zero || V::anyMask(zeros) ? qspStsWarnDivByZero : qspStsOk;
}

// 16u: val / x rounded to nearest even; a zero element gives 65535 (0 for
// a zero val).
QspStatus divcrev16u(const Qsp16u* pSrc, Qsp16u val, Qsp16u* pDst, int len)
{
    if (QspStatus s = check::vectors(len, pSrc, pDst)) return s;
    const bool zero = quotient::ownsDivCRev_16<rounding::kNear>(pSrc, val, pDst, len, 0);
    return zero ? qspStsWarnDivByZero : qspStsOk;
}

}  // namespace

QspStatus qspsDivCRev_16u(const Qsp16u* pSrc, int val, Qsp16u* pDst, int len) { return divcrev16u(pSrc, Qsp16u(val), pDst, len); }
QspStatus qspsDivCRev_16u_I(int val, Qsp16u* pSrcDst, int len) { return divcrev16u(pSrcDst, Qsp16u(val), pSrcDst, len); }
QspStatus qspsDivCRev_32f(const Qsp32f* pSrc, Qsp32f val, Qsp32f* pDst, int len) { return divcrev(pSrc, val, pDst, len); }
QspStatus qspsDivCRev_32f_I(Qsp32f val, Qsp32f* pSrcDst, int len) { return divcrev(pSrcDst, val, pSrcDst, len); }
QspStatus qspsDivCRev_64f(const Qsp64f* pSrc, Qsp64f val, Qsp64f* pDst, int len) { return divcrev(pSrc, val, pDst, len); }
QspStatus qspsDivCRev_64f_I(Qsp64f val, Qsp64f* pSrcDst, int len) { return divcrev(pSrcDst, val, pSrcDst, len); }

QspStatus qspsDivCRev_32f_L(const Qsp32f* pSrc, Qsp32f val, Qsp32f* pDst, Qsp64s len)
{
    return forms::chunksC(qspsDivCRev_32f, pSrc, val, pDst, len);
}
QspStatus qspsDivCRev_32f_I_L(Qsp32f val, Qsp32f* pSrcDst, Qsp64s len)
{
    return forms::chunksCI(qspsDivCRev_32f_I, val, pSrcDst, len);
}
QspStatus qspsDivCRev_64f_L(const Qsp64f* pSrc, Qsp64f val, Qsp64f* pDst, Qsp64s len)
{
    return forms::chunksC(qspsDivCRev_64f, pSrc, val, pDst, len);
}
QspStatus qspsDivCRev_64f_I_L(Qsp64f val, Qsp64f* pSrcDst, Qsp64s len)
{
    return forms::chunksCI(qspsDivCRev_64f_I, val, pSrcDst, len);
}

}  // namespace y8

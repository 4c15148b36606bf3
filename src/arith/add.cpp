// SPDX-License-Identifier: BSD-3-Clause
// Add: element-wise sums, floating, saturating and scaled integer.
#include "forms.h"

namespace y8 {
namespace {

using ops::Add;

// 32s sums lie in [-2^32, 2^32 - 2]: zeros from 33 by the four-byte zero
// fill of 16sc, and from -31 down every non-zero sum saturates. That bound
// case runs here, the others through the common selection.
QspStatus add32sSfs(const Qsp32s* pSrc1, const Qsp32s* pSrc2, Qsp32s* pDst, int len, int scaleFactor)
{
    if (QspStatus s = check::vectors(len, pSrc1, pSrc2, pDst)) return s;
    if (scaleFactor <= -31) {
        for (int i = 0; i < len; ++i)
            pDst[i] = scaling::Bound{}.apply<Qsp32s>(Qsp64s(pSrc1[i]) + Qsp64s(pSrc2[i]));
        return qspStsOk;
    }
    constexpr ops::Range R = Add::range<Qsp32s, Qsp32s>();
    constexpr scaling::Limits lim = scaling::limitsFor<Qsp32s>(R.lo, R.hi);
    return scaling::select(
        scaleFactor, lim,
        [&](auto mode) {
            forms::runScaled<R>(pDst, len, Add{}, mode, pSrc1, pSrc2);
            return qspStsOk;
        },
        [&] { return qspsZero_16sc(reinterpret_cast<Qsp16sc*>(pDst), len); });
}

// 16s + 16s exactly, widened to 32s or 32f (every sum is representable).
template <class D>
QspStatus add16sWide(const Qsp16s* pSrc1, const Qsp16s* pSrc2, D* pDst, int len)
{
    if (QspStatus s = check::vectors(len, pSrc1, pSrc2, pDst)) return s;
    elementwise::lanesExact(pDst, len, Add{}, pSrc1, pSrc2);
    return qspStsOk;
}

// pSrcDst (64f) += pSrc (32f), each single value widened exactly.
void ownsAdd_32f64f_I(const Qsp32f* pSrc, Qsp64f* pSrcDst, Qsp64s len)
{
    using V = simd::Vec<double>;
    Qsp64s i = 0;
    for (; i + 4 <= len; i += 4) {
        const __m128 a = simd::Vec<float>::loadu(pSrc + i);
        V::storeu(pSrcDst + i, V::add(V::loadu(pSrcDst + i), _mm_cvtps_pd(a)));
        V::storeu(pSrcDst + i + 2, V::add(V::loadu(pSrcDst + i + 2), _mm_cvtps_pd(_mm_movehl_ps(a, a))));
    }
    for (; i < len; ++i) pSrcDst[i] += Qsp64f(pSrc[i]);
}

}  // namespace

QspStatus qspsAdd_16u(const Qsp16u* pSrc1, const Qsp16u* pSrc2, Qsp16u* pDst, int len)
{
    return forms::vvSfs<Add>(pSrc1, pSrc2, pDst, len, 0);
}
QspStatus qspsAdd_16u_I(const Qsp16u* pSrc, Qsp16u* pSrcDst, int len)
{
    return forms::vvSfs<Add>(pSrc, pSrcDst, pSrcDst, len, 0);
}
QspStatus qspsAdd_32u(const Qsp32u* pSrc1, const Qsp32u* pSrc2, Qsp32u* pDst, int len)
{
    return forms::vvSfs<Add>(pSrc1, pSrc2, pDst, len, 0);
}

QspStatus qspsAdd_32f(const Qsp32f* pSrc1, const Qsp32f* pSrc2, Qsp32f* pDst, int len)
{
    return forms::vv(pSrc1, pSrc2, pDst, len, Add{});
}
QspStatus qspsAdd_32f_I(const Qsp32f* pSrc, Qsp32f* pSrcDst, int len) { return forms::vv(pSrc, pSrcDst, pSrcDst, len, Add{}); }
QspStatus qspsAdd_64f(const Qsp64f* pSrc1, const Qsp64f* pSrc2, Qsp64f* pDst, int len)
{
    return forms::vv(pSrc1, pSrc2, pDst, len, Add{});
}
QspStatus qspsAdd_64f_I(const Qsp64f* pSrc, Qsp64f* pSrcDst, int len) { return forms::vv(pSrc, pSrcDst, pSrcDst, len, Add{}); }
QspStatus qspsAdd_32fc(const Qsp32fc* pSrc1, const Qsp32fc* pSrc2, Qsp32fc* pDst, int len)
{
    return forms::vv(pSrc1, pSrc2, pDst, len, Add{});
}
QspStatus qspsAdd_32fc_I(const Qsp32fc* pSrc, Qsp32fc* pSrcDst, int len)
{
    return forms::vv(pSrc, pSrcDst, pSrcDst, len, Add{});
}
QspStatus qspsAdd_64fc(const Qsp64fc* pSrc1, const Qsp64fc* pSrc2, Qsp64fc* pDst, int len)
{
    return forms::vv(pSrc1, pSrc2, pDst, len, Add{});
}
QspStatus qspsAdd_64fc_I(const Qsp64fc* pSrc, Qsp64fc* pSrcDst, int len)
{
    return forms::vv(pSrc, pSrcDst, pSrcDst, len, Add{});
}

QspStatus qspsAdd_8u16u(const Qsp8u* pSrc1, const Qsp8u* pSrc2, Qsp16u* pDst, int len)
{
    return forms::vvSfs<Add>(pSrc1, pSrc2, pDst, len, 0);
}
QspStatus qspsAdd_16s32f(const Qsp16s* pSrc1, const Qsp16s* pSrc2, Qsp32f* pDst, int len)
{
    return add16sWide(pSrc1, pSrc2, pDst, len);
}
QspStatus qspsAdd_16s32s(const Qsp16s* pSrc1, const Qsp16s* pSrc2, Qsp32s* pDst, int len)
{
    return add16sWide(pSrc1, pSrc2, pDst, len);
}
QspStatus qspsAdd_16s32s_I(const Qsp16s* pSrc, Qsp32s* pSrcDst, int len)
{
    return forms::vvSfs<Add>(pSrc, pSrcDst, pSrcDst, len, 0);
}
QspStatus qspsAdd_32f64f_I(const Qsp32f* pSrc, Qsp64f* pSrcDst, int len)
{
    if (QspStatus s = check::vectors(len, pSrc, pSrcDst)) return s;
    ownsAdd_32f64f_I(pSrc, pSrcDst, len);
    return qspStsOk;
}

QspStatus qspsAdd_8u_Sfs(const Qsp8u* pSrc1, const Qsp8u* pSrc2, Qsp8u* pDst, int len, int scaleFactor)
{
    return forms::vvSfs<Add>(pSrc1, pSrc2, pDst, len, scaleFactor);
}
QspStatus qspsAdd_8u_ISfs(const Qsp8u* pSrc, Qsp8u* pSrcDst, int len, int scaleFactor)
{
    return forms::vvSfs<Add>(pSrc, pSrcDst, pSrcDst, len, scaleFactor);
}
QspStatus qspsAdd_16s_Sfs(const Qsp16s* pSrc1, const Qsp16s* pSrc2, Qsp16s* pDst, int len, int scaleFactor)
{
    return forms::vvSfs<Add>(pSrc1, pSrc2, pDst, len, scaleFactor);
}
QspStatus qspsAdd_16s_ISfs(const Qsp16s* pSrc, Qsp16s* pSrcDst, int len, int scaleFactor)
{
    return forms::vvSfs<Add>(pSrc, pSrcDst, pSrcDst, len, scaleFactor);
}
QspStatus qspsAdd_16u_Sfs(const Qsp16u* pSrc1, const Qsp16u* pSrc2, Qsp16u* pDst, int len, int scaleFactor)
{
    return forms::vvSfs<Add>(pSrc1, pSrc2, pDst, len, scaleFactor);
}
QspStatus qspsAdd_16u_ISfs(const Qsp16u* pSrc, Qsp16u* pSrcDst, int len, int scaleFactor)
{
    return forms::vvSfs<Add>(pSrc, pSrcDst, pSrcDst, len, scaleFactor);
}
QspStatus qspsAdd_32s_Sfs(const Qsp32s* pSrc1, const Qsp32s* pSrc2, Qsp32s* pDst, int len, int scaleFactor)
{
    return add32sSfs(pSrc1, pSrc2, pDst, len, scaleFactor);
}
QspStatus qspsAdd_32s_ISfs(const Qsp32s* pSrc, Qsp32s* pSrcDst, int len, int scaleFactor)
{
    return add32sSfs(pSrc, pSrcDst, pSrcDst, len, scaleFactor);
}

// Complex sums are the real sums of the parts: twice the length.
QspStatus qspsAdd_16sc_Sfs(const Qsp16sc* pSrc1, const Qsp16sc* pSrc2, Qsp16sc* pDst, int len, int scaleFactor)
{
    return qspsAdd_16s_Sfs(forms::parts(pSrc1), forms::parts(pSrc2), forms::parts(pDst), forms::twice(len), scaleFactor);
}
QspStatus qspsAdd_16sc_ISfs(const Qsp16sc* pSrc, Qsp16sc* pSrcDst, int len, int scaleFactor)
{
    return qspsAdd_16s_ISfs(forms::parts(pSrc), forms::parts(pSrcDst), forms::twice(len), scaleFactor);
}
QspStatus qspsAdd_32sc_Sfs(const Qsp32sc* pSrc1, const Qsp32sc* pSrc2, Qsp32sc* pDst, int len, int scaleFactor)
{
    return qspsAdd_32s_Sfs(forms::parts(pSrc1), forms::parts(pSrc2), forms::parts(pDst), forms::twice(len), scaleFactor);
}
QspStatus qspsAdd_32sc_ISfs(const Qsp32sc* pSrc, Qsp32sc* pSrcDst, int len, int scaleFactor)
{
    return qspsAdd_32s_ISfs(forms::parts(pSrc), forms::parts(pSrcDst), forms::twice(len), scaleFactor);
}

QspStatus qspsAdd_32f_L(const Qsp32f* pSrc1, const Qsp32f* pSrc2, Qsp32f* pDst, Qsp64s len)
{
    return forms::chunks(qspsAdd_32f, pSrc1, pSrc2, pDst, len);
}
QspStatus qspsAdd_32f_I_L(const Qsp32f* pSrc, Qsp32f* pSrcDst, Qsp64s len)
{
    return forms::chunks(qspsAdd_32f_I, pSrc, pSrcDst, len);
}
QspStatus qspsAdd_64f_L(const Qsp64f* pSrc1, const Qsp64f* pSrc2, Qsp64f* pDst, Qsp64s len)
{
    return forms::chunks(qspsAdd_64f, pSrc1, pSrc2, pDst, len);
}
QspStatus qspsAdd_64f_I_L(const Qsp64f* pSrc, Qsp64f* pSrcDst, Qsp64s len)
{
    return forms::chunks(qspsAdd_64f_I, pSrc, pSrcDst, len);
}
QspStatus qspsAdd_32fc_L(const Qsp32fc* pSrc1, const Qsp32fc* pSrc2, Qsp32fc* pDst, Qsp64s len)
{
    return forms::chunks(qspsAdd_32fc, pSrc1, pSrc2, pDst, len);
}
QspStatus qspsAdd_32fc_I_L(const Qsp32fc* pSrc, Qsp32fc* pSrcDst, Qsp64s len)
{
    return forms::chunks(qspsAdd_32fc_I, pSrc, pSrcDst, len);
}
QspStatus qspsAdd_64fc_L(const Qsp64fc* pSrc1, const Qsp64fc* pSrc2, Qsp64fc* pDst, Qsp64s len)
{
    return forms::chunks(qspsAdd_64fc, pSrc1, pSrc2, pDst, len);
}
QspStatus qspsAdd_64fc_I_L(const Qsp64fc* pSrc, Qsp64fc* pSrcDst, Qsp64s len)
{
    return forms::chunks(qspsAdd_64fc_I, pSrc, pSrcDst, len);
}

}  // namespace y8

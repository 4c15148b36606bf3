// SPDX-License-Identifier: BSD-3-Clause
// Mul: element-wise products, real, complex, mixed and scaled integer.
#include "forms.h"

namespace y8 {
namespace {

using ops::Mul;

// Real times complex: pDst[i] = pSrc1[i] * pSrc2[i], both parts scaled by
// the real factor.
void ownsMul_32f32fc(const Qsp32f* pSrc1, const Qsp32fc* pSrc2, Qsp32fc* pDst, Qsp64s len)
{
    using V = simd::Vec<float>;
    using C = simd::Vec<Qsp32fc>;
    Qsp64s i = 0;
    for (; i + 4 <= len; i += 4) {
        const V::Reg r = V::loadu(pSrc1 + i);
        C::storeu(pDst + i, V::mul(_mm_unpacklo_ps(r, r), C::loadu(pSrc2 + i)));
        C::storeu(pDst + i + 2, V::mul(_mm_unpackhi_ps(r, r), C::loadu(pSrc2 + i + 2)));
    }
    for (; i < len; ++i) pDst[i] = {pSrc1[i] * pSrc2[i].re, pSrc1[i] * pSrc2[i].im};
}

QspStatus mul32f32fc(const Qsp32f* pSrc1, const Qsp32fc* pSrc2, Qsp32fc* pDst, int len)
{
    if (QspStatus s = check::vectors(len, pSrc1, pSrc2, pDst)) return s;
    ownsMul_32f32fc(pSrc1, pSrc2, pDst, len);
    return qspStsOk;
}

// 16sc: the complex product in 32-bit lanes, scaled; zeros from 32, the
// bound from -16.
QspStatus mul16sc(const Qsp16sc* pSrc1, const Qsp16sc* pSrc2, Qsp16sc* pDst, int len, int scaleFactor)
{
    if (QspStatus s = check::vectors(len, pSrc1, pSrc2, pDst)) return s;
    return forms::scaled<ops::CMul16::range()>(scaleFactor, pDst, len, [&](auto mode) {
        elementwise::lanesComplex16(pDst, len, ops::CMul16{}, mode, pSrc1, pSrc2);
        return qspStsOk;
    });
}

// 32sc: the complex product in 128-bit integers (the imaginary part of
// (-2^31 - 2^31 i)^2 is 2^63); zeros from 64, the bound from -31.
template <class Mode>
void ownsMul_32sc(const Qsp32sc* pSrc1, const Qsp32sc* pSrc2, Qsp32sc* pDst, Qsp64s len, Mode mode)
{
    using W = __int128;
    for (Qsp64s i = 0; i < len; ++i) {
        const W ar = pSrc1[i].re, ai = pSrc1[i].im, br = pSrc2[i].re, bi = pSrc2[i].im;
        const W re = ar * br - ai * bi, im = ar * bi + ai * br;
        pDst[i] = {mode.template apply<Qsp32s>(re), mode.template apply<Qsp32s>(im)};
    }
}

QspStatus mul32sc(const Qsp32sc* pSrc1, const Qsp32sc* pSrc2, Qsp32sc* pDst, int len, int scaleFactor)
{
    if (QspStatus s = check::vectors(len, pSrc1, pSrc2, pDst)) return s;
    return scaling::select(
        scaleFactor, scaling::Limits{64, 31},
        [&](auto mode) {
            ownsMul_32sc(pSrc1, pSrc2, pDst, len, mode);
            return qspStsOk;
        },
        [&] { return qspsZero_32sc(pDst, len); });
}

// 32s times 32sc: both parts are 32s products, in 64 bits.
template <class Mode>
void ownsMul_32s32sc(const Qsp32s* pSrc1, const Qsp32sc* pSrc2, Qsp32sc* pDst, Qsp64s len, Mode mode)
{
    for (Qsp64s i = 0; i < len; ++i) {
        const Qsp64s a = pSrc1[i];
        pDst[i] = {mode.template apply<Qsp32s>(a * pSrc2[i].re), mode.template apply<Qsp32s>(a * pSrc2[i].im)};
    }
}

QspStatus mul32s32sc(const Qsp32s* pSrc1, const Qsp32sc* pSrc2, Qsp32sc* pDst, int len, int scaleFactor)
{
    if (QspStatus s = check::vectors(len, pSrc1, pSrc2, pDst)) return s;
    return forms::scaled<Mul::range<Qsp32s, Qsp32s>()>(scaleFactor, pDst, len, [&](auto mode) {
        ownsMul_32s32sc(pSrc1, pSrc2, pDst, len, mode);
        return qspStsOk;
    });
}

}  // namespace

QspStatus qspsMul_32f(const Qsp32f* pSrc1, const Qsp32f* pSrc2, Qsp32f* pDst, int len)
{
    return forms::vv(pSrc1, pSrc2, pDst, len, Mul{});
}
QspStatus qspsMul_32f_I(const Qsp32f* pSrc, Qsp32f* pSrcDst, int len) { return forms::vv(pSrc, pSrcDst, pSrcDst, len, Mul{}); }
QspStatus qspsMul_64f(const Qsp64f* pSrc1, const Qsp64f* pSrc2, Qsp64f* pDst, int len)
{
    return forms::vv(pSrc1, pSrc2, pDst, len, Mul{});
}
QspStatus qspsMul_64f_I(const Qsp64f* pSrc, Qsp64f* pSrcDst, int len) { return forms::vv(pSrc, pSrcDst, pSrcDst, len, Mul{}); }
QspStatus qspsMul_32fc(const Qsp32fc* pSrc1, const Qsp32fc* pSrc2, Qsp32fc* pDst, int len)
{
    return forms::vv(pSrc1, pSrc2, pDst, len, ops::CMul{});
}
QspStatus qspsMul_32fc_I(const Qsp32fc* pSrc, Qsp32fc* pSrcDst, int len)
{
    return forms::vv(pSrc, pSrcDst, pSrcDst, len, ops::CMul{});
}
QspStatus qspsMul_64fc(const Qsp64fc* pSrc1, const Qsp64fc* pSrc2, Qsp64fc* pDst, int len)
{
    return forms::vv(pSrc1, pSrc2, pDst, len, ops::CMul{});
}
QspStatus qspsMul_64fc_I(const Qsp64fc* pSrc, Qsp64fc* pSrcDst, int len)
{
    return forms::vv(pSrc, pSrcDst, pSrcDst, len, ops::CMul{});
}

QspStatus qspsMul_32f32fc(const Qsp32f* pSrc1, const Qsp32fc* pSrc2, Qsp32fc* pDst, int len)
{
    return mul32f32fc(pSrc1, pSrc2, pDst, len);
}
QspStatus qspsMul_32f32fc_I(const Qsp32f* pSrc, Qsp32fc* pSrcDst, int len)
{
    return mul32f32fc(pSrc, pSrcDst, pSrcDst, len);
}
QspStatus qspsMul_16s32f(const Qsp16s* pSrc1, const Qsp16s* pSrc2, Qsp32f* pDst, int len)
{
    if (QspStatus s = check::vectors(len, pSrc1, pSrc2, pDst)) return s;
    elementwise::lanesExact(pDst, len, Mul{}, pSrc1, pSrc2);
    return qspStsOk;
}
QspStatus qspsMul_8u16u(const Qsp8u* pSrc1, const Qsp8u* pSrc2, Qsp16u* pDst, int len)
{
    return forms::vvSfs<Mul>(pSrc1, pSrc2, pDst, len, 0);
}

QspStatus qspsMul_8u_Sfs(const Qsp8u* pSrc1, const Qsp8u* pSrc2, Qsp8u* pDst, int len, int scaleFactor)
{
    return forms::vvSfs<Mul>(pSrc1, pSrc2, pDst, len, scaleFactor);
}
QspStatus qspsMul_8u_ISfs(const Qsp8u* pSrc, Qsp8u* pSrcDst, int len, int scaleFactor)
{
    return forms::vvSfs<Mul>(pSrc, pSrcDst, pSrcDst, len, scaleFactor);
}
QspStatus qspsMul_16s_Sfs(const Qsp16s* pSrc1, const Qsp16s* pSrc2, Qsp16s* pDst, int len, int scaleFactor)
{
    return forms::vvSfs<Mul>(pSrc1, pSrc2, pDst, len, scaleFactor);
}
QspStatus qspsMul_16s_ISfs(const Qsp16s* pSrc, Qsp16s* pSrcDst, int len, int scaleFactor)
{
    return forms::vvSfs<Mul>(pSrc, pSrcDst, pSrcDst, len, scaleFactor);
}
QspStatus qspsMul_16u_Sfs(const Qsp16u* pSrc1, const Qsp16u* pSrc2, Qsp16u* pDst, int len, int scaleFactor)
{
    return forms::vvSfs<Mul>(pSrc1, pSrc2, pDst, len, scaleFactor);
}
QspStatus qspsMul_16u_ISfs(const Qsp16u* pSrc, Qsp16u* pSrcDst, int len, int scaleFactor)
{
    return forms::vvSfs<Mul>(pSrc, pSrcDst, pSrcDst, len, scaleFactor);
}
QspStatus qspsMul_32s_Sfs(const Qsp32s* pSrc1, const Qsp32s* pSrc2, Qsp32s* pDst, int len, int scaleFactor)
{
    return forms::vvSfs<Mul>(pSrc1, pSrc2, pDst, len, scaleFactor);
}
QspStatus qspsMul_32s_ISfs(const Qsp32s* pSrc, Qsp32s* pSrcDst, int len, int scaleFactor)
{
    return forms::vvSfs<Mul>(pSrc, pSrcDst, pSrcDst, len, scaleFactor);
}
QspStatus qspsMul_16sc_Sfs(const Qsp16sc* pSrc1, const Qsp16sc* pSrc2, Qsp16sc* pDst, int len, int scaleFactor)
{
    return mul16sc(pSrc1, pSrc2, pDst, len, scaleFactor);
}
QspStatus qspsMul_16sc_ISfs(const Qsp16sc* pSrc, Qsp16sc* pSrcDst, int len, int scaleFactor)
{
    return mul16sc(pSrc, pSrcDst, pSrcDst, len, scaleFactor);
}
QspStatus qspsMul_32sc_Sfs(const Qsp32sc* pSrc1, const Qsp32sc* pSrc2, Qsp32sc* pDst, int len, int scaleFactor)
{
    return mul32sc(pSrc1, pSrc2, pDst, len, scaleFactor);
}
QspStatus qspsMul_32sc_ISfs(const Qsp32sc* pSrc, Qsp32sc* pSrcDst, int len, int scaleFactor)
{
    return mul32sc(pSrc, pSrcDst, pSrcDst, len, scaleFactor);
}

QspStatus qspsMul_32f_L(const Qsp32f* pSrc1, const Qsp32f* pSrc2, Qsp32f* pDst, Qsp64s len)
{
    return forms::chunks(qspsMul_32f, pSrc1, pSrc2, pDst, len);
}
QspStatus qspsMul_32f_I_L(const Qsp32f* pSrc, Qsp32f* pSrcDst, Qsp64s len)
{
    return forms::chunks(qspsMul_32f_I, pSrc, pSrcDst, len);
}
QspStatus qspsMul_64f_L(const Qsp64f* pSrc1, const Qsp64f* pSrc2, Qsp64f* pDst, Qsp64s len)
{
    return forms::chunks(qspsMul_64f, pSrc1, pSrc2, pDst, len);
}
QspStatus qspsMul_64f_I_L(const Qsp64f* pSrc, Qsp64f* pSrcDst, Qsp64s len)
{
    return forms::chunks(qspsMul_64f_I, pSrc, pSrcDst, len);
}
QspStatus qspsMul_32fc_L(const Qsp32fc* pSrc1, const Qsp32fc* pSrc2, Qsp32fc* pDst, Qsp64s len)
{
    return forms::chunks(qspsMul_32fc, pSrc1, pSrc2, pDst, len);
}
QspStatus qspsMul_32fc_I_L(const Qsp32fc* pSrc, Qsp32fc* pSrcDst, Qsp64s len)
{
    return forms::chunks(qspsMul_32fc_I, pSrc, pSrcDst, len);
}
QspStatus qspsMul_64fc_L(const Qsp64fc* pSrc1, const Qsp64fc* pSrc2, Qsp64fc* pDst, Qsp64s len)
{
    return forms::chunks(qspsMul_64fc, pSrc1, pSrc2, pDst, len);
}
QspStatus qspsMul_64fc_I_L(const Qsp64fc* pSrc, Qsp64fc* pSrcDst, Qsp64s len)
{
    return forms::chunks(qspsMul_64fc_I, pSrc, pSrcDst, len);
}

QspStatus qspsMul_16u16s_Sfs(const Qsp16u* pSrc1, const Qsp16s* pSrc2, Qsp16s* pDst, int len, int scaleFactor)
{
    return forms::vvSfs<Mul>(pSrc1, pSrc2, pDst, len, scaleFactor);
}
QspStatus qspsMul_16s32s_Sfs(const Qsp16s* pSrc1, const Qsp16s* pSrc2, Qsp32s* pDst, int len, int scaleFactor)
{
    return forms::vvSfs<Mul>(pSrc1, pSrc2, pDst, len, scaleFactor);
}
QspStatus qspsMul_32s32sc_Sfs(const Qsp32s* pSrc1, const Qsp32sc* pSrc2, Qsp32sc* pDst, int len, int scaleFactor)
{
    return mul32s32sc(pSrc1, pSrc2, pDst, len, scaleFactor);
}
QspStatus qspsMul_32s32sc_ISfs(const Qsp32s* pSrc, Qsp32sc* pSrcDst, int len, int scaleFactor)
{
    return mul32s32sc(pSrc, pSrcDst, pSrcDst, len, scaleFactor);
}

}  // namespace y8

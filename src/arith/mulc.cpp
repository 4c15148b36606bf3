// SPDX-License-Identifier: BSD-3-Clause
// MulC: every element multiplied by a constant, floating, scaled integer
// (the complex 16-bit constant -32768 - 32768i by its own kernels), float
// to scaled 16-bit, and the 64-bit length forms with kernels of their own.
#include "forms.h"
#include "rounding.h"

namespace y8 {
namespace {

using C = forms::WithConst<ops::Mul, false>;
using CC = forms::WithConst<ops::CMul, false>;

// The multiplication by val of the element type: real or complex.
template <class T>
auto byConst(T val)
{
    if constexpr (ops::isComplex<T>) return CC::bound(val);
    else return C::bound(val);
}

// The 64-bit length forms run the same kernel over their own length; the
// length is checked before the pointer.
template <class T>
QspStatus mulcL(const T* pSrc, T val, T* pDst, Qsp64s len)
{
    if (QspStatus s = check::length(len)) return s;
    if (QspStatus s = check::pointers(pSrc, pDst)) return s;
    elementwise::map1(pSrc, pDst, len, byConst(val));
    return qspStsOk;
}

// 16sc by the constant -32768 - 32768i: the parts are 2^15 times
// t = ai - ar and t = -(ar + ai), which need 17 bits; the rule is applied
// to t with the scale factor less 15. Thresholds: zeros from 32 (t from
// 17), the bound from -16 (t from -31).
struct MulCOvf16 {
    using R = simd::Vec<Qsp32s>::Reg;
    R toRe = _mm_set1_epi32(0x0001FFFF);  // (-1, 1) per complex element
    R toIm = _mm_set1_epi32(-1);          // (-1, -1)
    void reg(R& re, R& im, R a) const
    {
        using V16 = simd::Vec<Qsp16s>;
        re = V16::madd(a, toRe);
        im = V16::madd(a, toIm);
    }
};

QspStatus mulc16sc(const Qsp16sc* pSrc, Qsp16sc val, Qsp16sc* pDst, int len, int scaleFactor)
{
    if (QspStatus s = check::vectors(len, pSrc, pDst)) return s;
    auto zeros = [&] { return qspsZero_16sc(pDst, len); };
    if (val.re == -32768 && val.im == -32768) {
        if (scaleFactor >= 32) return zeros();
        const int tScale = scaleFactor <= -16 ? -31 : scaleFactor - 15;
        return scaling::select(
            tScale, scaling::Limits{17, 31},
            [&](auto mode) {
                elementwise::lanesComplex16(pDst, len, MulCOvf16{}, mode, pSrc);
                return qspStsOk;
            },
            zeros);
    }
    const ops::CMulC16 op{_mm_set1_epi32(Qsp32s(Qsp32u(Qsp16u(val.re)) | (Qsp32u(Qsp16u(val.im)) << 16)))};
    return forms::scaled<ops::CMul16::range()>(scaleFactor, pDst, len, [&](auto mode) {
        elementwise::lanesComplex16(pDst, len, op, mode, pSrc);
        return qspStsOk;
    });
}

// 32sc: the complex product in 128-bit integers; zeros from 64, the bound
// from -31.
template <class Mode>
void ownsMulC_32sc(const Qsp32sc* pSrc, Qsp32sc val, Qsp32sc* pDst, Qsp64s len, Mode mode)
{
    using W = __int128;
    const W cr = val.re, ci = val.im;
    for (Qsp64s i = 0; i < len; ++i) {
        const W ar = pSrc[i].re, ai = pSrc[i].im;
        pDst[i] = {mode.template apply<Qsp32s>(ar * cr - ai * ci), mode.template apply<Qsp32s>(ar * ci + ai * cr)};
    }
}

QspStatus mulc32sc(const Qsp32sc* pSrc, Qsp32sc val, Qsp32sc* pDst, int len, int scaleFactor)
{
    if (QspStatus s = check::vectors(len, pSrc, pDst)) return s;
    return scaling::select(
        scaleFactor, scaling::Limits{64, 31},
        [&](auto mode) {
            ownsMulC_32sc(pSrc, val, pDst, len, mode);
            return qspStsOk;
        },
        [&] { return qspsZero_32sc(pDst, len); });
}

// 32s with a 64-bit length: the scale-factor rule in 64 bits over the whole
// vector, pointers checked before the length; the zero fill in chunks.
template <class Mode>
void ownsMulC_32s_L(const Qsp32s* pSrc, Qsp32s val, Qsp32s* pDst, Qsp64s len, Mode mode)
{
    for (Qsp64s i = 0; i < len; ++i) pDst[i] = mode.template apply<Qsp32s>(Qsp64s(pSrc[i]) * val);
}

QspStatus mulc32sL(const Qsp32s* pSrc, Qsp32s val, Qsp32s* pDst, Qsp64s len, int scaleFactor)
{
    if (QspStatus s = check::vectors(len, pSrc, pDst)) return s;
    constexpr ops::Range R = ops::Mul::range<Qsp32s, Qsp32s>();
    return scaling::select(
        scaleFactor, scaling::limitsFor<Qsp32s>(R.lo, R.hi),
        [&](auto mode) {
            ownsMulC_32s_L(pSrc, val, pDst, len, mode);
            return qspStsOk;
        },
        [&] { return chunked<Qsp32s>(len, [=](Qsp64s at, int n) { return qspsZero_32s(pDst + at, n); }); });
}

// 32f times a 32f constant to 16s: the exact product (formed in double),
// times 2^-scaleFactor, rounded to nearest even and saturated; NaN gives 0.
void ownsMulC_32f16s_Sfs(const Qsp32f* pSrc, Qsp32f val, Qsp16s* pDst, Qsp64s len, int scaleFactor)
{
    using VD = simd::Vec<double>;
    using VF = simd::Vec<float>;
    const double k = double(val) * rounding::scaleOf(scaleFactor);
    const VD::Reg kk = VD::splat(k), lo = VD::splat(-32768.0), hi = VD::splat(32767.0);
    auto four = [&](VF::Reg x) {
        const __m128i a = rounding::toInt32<rounding::kNear>(VD::mul(_mm_cvtps_pd(x), kk), lo, hi);
        const __m128i b = rounding::toInt32<rounding::kNear>(VD::mul(_mm_cvtps_pd(_mm_movehl_ps(x, x)), kk), lo, hi);
        return _mm_unpacklo_epi64(a, b);
    };
    Qsp64s i = 0;
    for (; i + 8 <= len; i += 8)
        simd::Vec<Qsp16s>::storeu(pDst + i, _mm_packs_epi32(four(VF::loadu(pSrc + i)), four(VF::loadu(pSrc + i + 4))));
    for (; i < len; ++i) pDst[i] = rounding::toInt<rounding::kNear, Qsp16s>(double(pSrc[i]) * k);
}

}  // namespace

QspStatus qspsMulC_32f(const Qsp32f* pSrc, Qsp32f val, Qsp32f* pDst, int len) { return C::unscaled(pSrc, val, pDst, len); }
QspStatus qspsMulC_32f_I(Qsp32f val, Qsp32f* pSrcDst, int len) { return C::unscaled(pSrcDst, val, pSrcDst, len); }
QspStatus qspsMulC_64f(const Qsp64f* pSrc, Qsp64f val, Qsp64f* pDst, int len) { return C::unscaled(pSrc, val, pDst, len); }
QspStatus qspsMulC_64f_I(Qsp64f val, Qsp64f* pSrcDst, int len) { return C::unscaled(pSrcDst, val, pSrcDst, len); }

QspStatus qspsMulC_32fc(const Qsp32fc* pSrc, Qsp32fc val, Qsp32fc* pDst, int len) { return CC::unscaled(pSrc, val, pDst, len); }
QspStatus qspsMulC_32fc_I(Qsp32fc val, Qsp32fc* pSrcDst, int len) { return CC::unscaled(pSrcDst, val, pSrcDst, len); }
QspStatus qspsMulC_64fc(const Qsp64fc* pSrc, Qsp64fc val, Qsp64fc* pDst, int len) { return CC::unscaled(pSrc, val, pDst, len); }
QspStatus qspsMulC_64fc_I(Qsp64fc val, Qsp64fc* pSrcDst, int len) { return CC::unscaled(pSrcDst, val, pSrcDst, len); }

QspStatus qspsMulC_8u_Sfs(const Qsp8u* pSrc, Qsp8u val, Qsp8u* pDst, int len, int scaleFactor)
{
    return C::scaledInt(pSrc, val, pDst, len, scaleFactor);
}
QspStatus qspsMulC_8u_ISfs(Qsp8u val, Qsp8u* pSrcDst, int len, int scaleFactor)
{
    return C::scaledInt(pSrcDst, val, pSrcDst, len, scaleFactor);
}
QspStatus qspsMulC_16s_Sfs(const Qsp16s* pSrc, int val, Qsp16s* pDst, int len, int scaleFactor)
{
    return C::scaledInt(pSrc, Qsp16s(val), pDst, len, scaleFactor);
}
QspStatus qspsMulC_16s_ISfs(int val, Qsp16s* pSrcDst, int len, int scaleFactor)
{
    return C::scaledInt(pSrcDst, Qsp16s(val), pSrcDst, len, scaleFactor);
}
QspStatus qspsMulC_16u_Sfs(const Qsp16u* pSrc, int val, Qsp16u* pDst, int len, int scaleFactor)
{
    return C::scaledInt(pSrc, Qsp16u(val), pDst, len, scaleFactor);
}
QspStatus qspsMulC_16u_ISfs(int val, Qsp16u* pSrcDst, int len, int scaleFactor)
{
    return C::scaledInt(pSrcDst, Qsp16u(val), pSrcDst, len, scaleFactor);
}
QspStatus qspsMulC_32s_Sfs(const Qsp32s* pSrc, Qsp32s val, Qsp32s* pDst, int len, int scaleFactor)
{
    return C::scaledInt(pSrc, val, pDst, len, scaleFactor);
}
QspStatus qspsMulC_32s_ISfs(Qsp32s val, Qsp32s* pSrcDst, int len, int scaleFactor)
{
    return C::scaledInt(pSrcDst, val, pSrcDst, len, scaleFactor);
}
QspStatus qspsMulC_16sc_Sfs(const Qsp16sc* pSrc, Qsp16sc val, Qsp16sc* pDst, int len, int scaleFactor)
{
    return mulc16sc(pSrc, val, pDst, len, scaleFactor);
}
QspStatus qspsMulC_16sc_ISfs(Qsp16sc val, Qsp16sc* pSrcDst, int len, int scaleFactor)
{
    return mulc16sc(pSrcDst, val, pSrcDst, len, scaleFactor);
}
QspStatus qspsMulC_32sc_Sfs(const Qsp32sc* pSrc, Qsp32sc val, Qsp32sc* pDst, int len, int scaleFactor)
{
    return mulc32sc(pSrc, val, pDst, len, scaleFactor);
}
QspStatus qspsMulC_32sc_ISfs(Qsp32sc val, Qsp32sc* pSrcDst, int len, int scaleFactor)
{
    return mulc32sc(pSrcDst, val, pSrcDst, len, scaleFactor);
}

QspStatus qspsMulC_32f16s_Sfs(const Qsp32f* pSrc, Qsp32f val, Qsp16s* pDst, int len, int scaleFactor)
{
    if (QspStatus s = check::vectors(len, pSrc, pDst)) return s;
    ownsMulC_32f16s_Sfs(pSrc, val, pDst, len, scaleFactor);
    return qspStsOk;
}

QspStatus qspsMulC_32f_L(const Qsp32f* pSrc, Qsp32f val, Qsp32f* pDst, Qsp64s len) { return mulcL(pSrc, val, pDst, len); }
QspStatus qspsMulC_32f_I_L(Qsp32f val, Qsp32f* pSrcDst, Qsp64s len) { return mulcL(pSrcDst, val, pSrcDst, len); }
QspStatus qspsMulC_64f_L(const Qsp64f* pSrc, Qsp64f val, Qsp64f* pDst, Qsp64s len) { return mulcL(pSrc, val, pDst, len); }
QspStatus qspsMulC_64f_I_L(Qsp64f val, Qsp64f* pSrcDst, Qsp64s len) { return mulcL(pSrcDst, val, pSrcDst, len); }
QspStatus qspsMulC_32fc_L(const Qsp32fc* pSrc, Qsp32fc val, Qsp32fc* pDst, Qsp64s len)
{
    return mulcL(pSrc, val, pDst, len);
}
QspStatus qspsMulC_32fc_I_L(Qsp32fc val, Qsp32fc* pSrcDst, Qsp64s len) { return mulcL(pSrcDst, val, pSrcDst, len); }
QspStatus qspsMulC_64fc_L(const Qsp64fc* pSrc, Qsp64fc val, Qsp64fc* pDst, Qsp64s len)
{
    return mulcL(pSrc, val, pDst, len);
}
QspStatus qspsMulC_64fc_I_L(Qsp64fc val, Qsp64fc* pSrcDst, Qsp64s len) { return mulcL(pSrcDst, val, pSrcDst, len); }
QspStatus qspsMulC_32s_Sfs_L(const Qsp32s* pSrc, Qsp32s val, Qsp32s* pDst, Qsp64s len, int scaleFactor)
{
    return mulc32sL(pSrc, val, pDst, len, scaleFactor);
}
QspStatus qspsMulC_32s_ISfs_L(Qsp32s val, Qsp32s* pSrcDst, Qsp64s len, int scaleFactor)
{
    return mulc32sL(pSrcDst, val, pSrcDst, len, scaleFactor);
}

}  // namespace y8

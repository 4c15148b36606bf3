// SPDX-License-Identifier: BSD-3-Clause
// FFTInv: the inverse power-of-two FFT of every kind, and the real transforms from the packed spectra.
#include "fft_transform.h"

namespace y8 {

using fft::C;

QspStatus qspsFFTInv_CToC_32fc(const Qsp32fc* pSrc, Qsp32fc* pDst, const QspsFFTSpec_C_32fc* pFFTSpec, Qsp8u* pBuffer)
{
    return fft::ownsComplexEntry<float, true>(pFFTSpec, fft::kC32fc, reinterpret_cast<const C<float>*>(pSrc),
                                              reinterpret_cast<C<float>*>(pDst), pBuffer);
}

QspStatus qspsFFTInv_CToC_32fc_I(Qsp32fc* pSrcDst, const QspsFFTSpec_C_32fc* pFFTSpec, Qsp8u* pBuffer)
{
    return qspsFFTInv_CToC_32fc(pSrcDst, pSrcDst, pFFTSpec, pBuffer);
}

QspStatus qspsFFTInv_CToC_64fc(const Qsp64fc* pSrc, Qsp64fc* pDst, const QspsFFTSpec_C_64fc* pFFTSpec, Qsp8u* pBuffer)
{
    return fft::ownsComplexEntry<double, true>(pFFTSpec, fft::kC64fc, reinterpret_cast<const C<double>*>(pSrc),
                                               reinterpret_cast<C<double>*>(pDst), pBuffer);
}

QspStatus qspsFFTInv_CToC_64fc_I(Qsp64fc* pSrcDst, const QspsFFTSpec_C_64fc* pFFTSpec, Qsp8u* pBuffer)
{
    return qspsFFTInv_CToC_64fc(pSrcDst, pSrcDst, pFFTSpec, pBuffer);
}

QspStatus qspsFFTInv_CToC_32f(const Qsp32f* pSrcRe, const Qsp32f* pSrcIm, Qsp32f* pDstRe, Qsp32f* pDstIm,
                             const QspsFFTSpec_C_32f* pFFTSpec, Qsp8u* pBuffer)
{
    if (QspStatus s = fft::checkCall(pFFTSpec, fft::kC32f, pBuffer, pSrcRe, pSrcIm, pDstRe, pDstIm)) return s;
    const auto* rec = reinterpret_cast<const fft::Record*>(pFFTSpec);
    fft::ownsSplitCall<float, true>(rec, pSrcRe, pSrcIm, pDstRe, pDstIm, fft::workOf<C<float>>(rec, pBuffer));
    return qspStsOk;
}

QspStatus qspsFFTInv_CToC_32f_I(Qsp32f* pSrcDstRe, Qsp32f* pSrcDstIm, const QspsFFTSpec_C_32f* pFFTSpec, Qsp8u* pBuffer)
{
    return qspsFFTInv_CToC_32f(pSrcDstRe, pSrcDstIm, pSrcDstRe, pSrcDstIm, pFFTSpec, pBuffer);
}

QspStatus qspsFFTInv_CToC_64f(const Qsp64f* pSrcRe, const Qsp64f* pSrcIm, Qsp64f* pDstRe, Qsp64f* pDstIm,
                             const QspsFFTSpec_C_64f* pFFTSpec, Qsp8u* pBuffer)
{
    if (QspStatus s = fft::checkCall(pFFTSpec, fft::kC64f, pBuffer, pSrcRe, pSrcIm, pDstRe, pDstIm)) return s;
    const auto* rec = reinterpret_cast<const fft::Record*>(pFFTSpec);
    fft::ownsSplitCall<double, true>(rec, pSrcRe, pSrcIm, pDstRe, pDstIm, fft::workOf<C<double>>(rec, pBuffer));
    return qspStsOk;
}

QspStatus qspsFFTInv_CToC_64f_I(Qsp64f* pSrcDstRe, Qsp64f* pSrcDstIm, const QspsFFTSpec_C_64f* pFFTSpec, Qsp8u* pBuffer)
{
    return qspsFFTInv_CToC_64f(pSrcDstRe, pSrcDstIm, pSrcDstRe, pSrcDstIm, pFFTSpec, pBuffer);
}

QspStatus qspsFFTInv_CToC_16fc(const Qsp16fc* pSrc, Qsp16fc* pDst, const QspsFFTSpec_C_16fc* pFFTSpec, Qsp8u* pBuffer)
{
    if (QspStatus s = fft::checkCall(pFFTSpec, fft::kC16fc, pBuffer, pSrc, pDst)) return s;
    const auto* rec = reinterpret_cast<const fft::Record*>(pFFTSpec);
    fft::ownsHalfCall<true>(rec, pSrc, pDst, rec->workSize > 0 ? fft::alignUp64(pBuffer) : nullptr);
    return qspStsOk;
}

QspStatus qspsFFTInv_PackToR_32f(const Qsp32f* pSrc, Qsp32f* pDst, const QspsFFTSpec_R_32f* pFFTSpec, Qsp8u* pBuffer)
{
    return fft::ownsRealEntry<float, fft::Packed::Pack, true>(pFFTSpec, fft::kR32f, pSrc, pDst, pBuffer);
}

QspStatus qspsFFTInv_PackToR_32f_I(Qsp32f* pSrcDst, const QspsFFTSpec_R_32f* pFFTSpec, Qsp8u* pBuffer)
{
    return qspsFFTInv_PackToR_32f(pSrcDst, pSrcDst, pFFTSpec, pBuffer);
}

QspStatus qspsFFTInv_PermToR_32f(const Qsp32f* pSrc, Qsp32f* pDst, const QspsFFTSpec_R_32f* pFFTSpec, Qsp8u* pBuffer)
{
    return fft::ownsRealEntry<float, fft::Packed::Perm, true>(pFFTSpec, fft::kR32f, pSrc, pDst, pBuffer);
}

QspStatus qspsFFTInv_PermToR_32f_I(Qsp32f* pSrcDst, const QspsFFTSpec_R_32f* pFFTSpec, Qsp8u* pBuffer)
{
    return qspsFFTInv_PermToR_32f(pSrcDst, pSrcDst, pFFTSpec, pBuffer);
}

QspStatus qspsFFTInv_CCSToR_32f(const Qsp32f* pSrc, Qsp32f* pDst, const QspsFFTSpec_R_32f* pFFTSpec, Qsp8u* pBuffer)
{
    return fft::ownsRealEntry<float, fft::Packed::Ccs, true>(pFFTSpec, fft::kR32f, pSrc, pDst, pBuffer);
}

QspStatus qspsFFTInv_CCSToR_32f_I(Qsp32f* pSrcDst, const QspsFFTSpec_R_32f* pFFTSpec, Qsp8u* pBuffer)
{
    return qspsFFTInv_CCSToR_32f(pSrcDst, pSrcDst, pFFTSpec, pBuffer);
}

QspStatus qspsFFTInv_PackToR_64f(const Qsp64f* pSrc, Qsp64f* pDst, const QspsFFTSpec_R_64f* pFFTSpec, Qsp8u* pBuffer)
{
    return fft::ownsRealEntry<double, fft::Packed::Pack, true>(pFFTSpec, fft::kR64f, pSrc, pDst, pBuffer);
}

QspStatus qspsFFTInv_PackToR_64f_I(Qsp64f* pSrcDst, const QspsFFTSpec_R_64f* pFFTSpec, Qsp8u* pBuffer)
{
    return qspsFFTInv_PackToR_64f(pSrcDst, pSrcDst, pFFTSpec, pBuffer);
}

QspStatus qspsFFTInv_PermToR_64f(const Qsp64f* pSrc, Qsp64f* pDst, const QspsFFTSpec_R_64f* pFFTSpec, Qsp8u* pBuffer)
{
    return fft::ownsRealEntry<double, fft::Packed::Perm, true>(pFFTSpec, fft::kR64f, pSrc, pDst, pBuffer);
}

QspStatus qspsFFTInv_PermToR_64f_I(Qsp64f* pSrcDst, const QspsFFTSpec_R_64f* pFFTSpec, Qsp8u* pBuffer)
{
    return qspsFFTInv_PermToR_64f(pSrcDst, pSrcDst, pFFTSpec, pBuffer);
}

QspStatus qspsFFTInv_CCSToR_64f(const Qsp64f* pSrc, Qsp64f* pDst, const QspsFFTSpec_R_64f* pFFTSpec, Qsp8u* pBuffer)
{
    return fft::ownsRealEntry<double, fft::Packed::Ccs, true>(pFFTSpec, fft::kR64f, pSrc, pDst, pBuffer);
}

QspStatus qspsFFTInv_CCSToR_64f_I(Qsp64f* pSrcDst, const QspsFFTSpec_R_64f* pFFTSpec, Qsp8u* pBuffer)
{
    return qspsFFTInv_CCSToR_64f(pSrcDst, pSrcDst, pFFTSpec, pBuffer);
}

}  // namespace y8

// SPDX-License-Identifier: BSD-3-Clause
// WinHann: w(k) = 0.5 - 0.5 cos(k theta), theta = 2 pi/(N-1), N >= 3.
#include "qsp_validators.h"
#include "window.h"
#include "window_cosines.h"

namespace y8 {
namespace {

template <class T>
QspStatus hann(const T* pSrc, T* pDst, int len)
{
    if (QspStatus s = window::check(pSrc, pDst, len, 3)) return s;
    using VD = window::VD;
    auto weights = window::cosineWeights(len, [](VD::Reg c) { return VD::sub(VD::splat(0.5), VD::mul(VD::splat(0.5), c)); });
    window::apply(pSrc, pDst, len, weights);
    return qspStsOk;
}

}  // namespace

QspStatus qspsWinHann_16s(const Qsp16s* pSrc, Qsp16s* pDst, int len) { return hann(pSrc, pDst, len); }
QspStatus qspsWinHann_16s_I(Qsp16s* pSrcDst, int len) { return hann(pSrcDst, pSrcDst, len); }
QspStatus qspsWinHann_16sc(const Qsp16sc* pSrc, Qsp16sc* pDst, int len) { return hann(pSrc, pDst, len); }
QspStatus qspsWinHann_16sc_I(Qsp16sc* pSrcDst, int len) { return hann(pSrcDst, pSrcDst, len); }
QspStatus qspsWinHann_32f(const Qsp32f* pSrc, Qsp32f* pDst, int len) { return hann(pSrc, pDst, len); }
QspStatus qspsWinHann_32f_I(Qsp32f* pSrcDst, int len) { return hann(pSrcDst, pSrcDst, len); }
QspStatus qspsWinHann_32fc(const Qsp32fc* pSrc, Qsp32fc* pDst, int len) { return hann(pSrc, pDst, len); }
QspStatus qspsWinHann_32fc_I(Qsp32fc* pSrcDst, int len) { return hann(pSrcDst, pSrcDst, len); }
QspStatus qspsWinHann_64f(const Qsp64f* pSrc, Qsp64f* pDst, int len) { return hann(pSrc, pDst, len); }
QspStatus qspsWinHann_64f_I(Qsp64f* pSrcDst, int len) { return hann(pSrcDst, pSrcDst, len); }
QspStatus qspsWinHann_64fc(const Qsp64fc* pSrc, Qsp64fc* pDst, int len) { return hann(pSrc, pDst, len); }
QspStatus qspsWinHann_64fc_I(Qsp64fc* pSrcDst, int len) { return hann(pSrcDst, pSrcDst, len); }

}  // namespace y8

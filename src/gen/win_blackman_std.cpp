// SPDX-License-Identifier: BSD-3-Clause
// WinBlackmanStd: the standard Blackman window, alpha = -0.16 (the double
// nearest it, for every form), N >= 3.
#include "qsp_validators.h"
#include "window_blackman.h"

namespace y8 {
namespace {

template <class T>
QspStatus blackmanStd(const T* pSrc, T* pDst, int len)
{
    if (QspStatus s = window::check(pSrc, pDst, len, 3)) return s;
    window::blackman(pSrc, pDst, len, -0.16);
    return qspStsOk;
}

}  // namespace

QspStatus qspsWinBlackmanStd_16s(const Qsp16s* pSrc, Qsp16s* pDst, int len) { return blackmanStd(pSrc, pDst, len); }
QspStatus qspsWinBlackmanStd_16s_I(Qsp16s* pSrcDst, int len) { return blackmanStd(pSrcDst, pSrcDst, len); }
QspStatus qspsWinBlackmanStd_16sc(const Qsp16sc* pSrc, Qsp16sc* pDst, int len) { return blackmanStd(pSrc, pDst, len); }
QspStatus qspsWinBlackmanStd_16sc_I(Qsp16sc* pSrcDst, int len) { return blackmanStd(pSrcDst, pSrcDst, len); }
QspStatus qspsWinBlackmanStd_32f(const Qsp32f* pSrc, Qsp32f* pDst, int len) { return blackmanStd(pSrc, pDst, len); }
QspStatus qspsWinBlackmanStd_32f_I(Qsp32f* pSrcDst, int len) { return blackmanStd(pSrcDst, pSrcDst, len); }
QspStatus qspsWinBlackmanStd_32fc(const Qsp32fc* pSrc, Qsp32fc* pDst, int len) { return blackmanStd(pSrc, pDst, len); }
QspStatus qspsWinBlackmanStd_32fc_I(Qsp32fc* pSrcDst, int len) { return blackmanStd(pSrcDst, pSrcDst, len); }
QspStatus qspsWinBlackmanStd_64f(const Qsp64f* pSrc, Qsp64f* pDst, int len) { return blackmanStd(pSrc, pDst, len); }
QspStatus qspsWinBlackmanStd_64f_I(Qsp64f* pSrcDst, int len) { return blackmanStd(pSrcDst, pSrcDst, len); }
QspStatus qspsWinBlackmanStd_64fc(const Qsp64fc* pSrc, Qsp64fc* pDst, int len) { return blackmanStd(pSrc, pDst, len); }
QspStatus qspsWinBlackmanStd_64fc_I(Qsp64fc* pSrcDst, int len) { return blackmanStd(pSrcDst, pSrcDst, len); }

}  // namespace y8

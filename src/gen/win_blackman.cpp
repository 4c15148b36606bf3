// SPDX-License-Identifier: BSD-3-Clause
// WinBlackman: the three-term Blackman window with parameter alpha,
// N >= 3 (window_blackman.h). alpha is a float for all but the 64f forms
// and is used as given, widened to double.
#include "qsp_validators.h"
#include "window_blackman.h"

namespace y8 {
namespace {

template <class T>
QspStatus blackman(const T* pSrc, T* pDst, int len, double alpha)
{
    if (QspStatus s = window::check(pSrc, pDst, len, 3)) return s;
    window::blackman(pSrc, pDst, len, alpha);
    return qspStsOk;
}

}  // namespace

QspStatus qspsWinBlackman_16s(const Qsp16s* pSrc, Qsp16s* pDst, int len, Qsp32f alpha) { return blackman(pSrc, pDst, len, alpha); }
QspStatus qspsWinBlackman_16s_I(Qsp16s* pSrcDst, int len, Qsp32f alpha) { return blackman(pSrcDst, pSrcDst, len, alpha); }
QspStatus qspsWinBlackman_16sc(const Qsp16sc* pSrc, Qsp16sc* pDst, int len, Qsp32f alpha) { return blackman(pSrc, pDst, len, alpha); }
QspStatus qspsWinBlackman_16sc_I(Qsp16sc* pSrcDst, int len, Qsp32f alpha) { return blackman(pSrcDst, pSrcDst, len, alpha); }
QspStatus qspsWinBlackman_32f(const Qsp32f* pSrc, Qsp32f* pDst, int len, Qsp32f alpha) { return blackman(pSrc, pDst, len, alpha); }
QspStatus qspsWinBlackman_32f_I(Qsp32f* pSrcDst, int len, Qsp32f alpha) { return blackman(pSrcDst, pSrcDst, len, alpha); }
QspStatus qspsWinBlackman_32fc(const Qsp32fc* pSrc, Qsp32fc* pDst, int len, Qsp32f alpha) { return blackman(pSrc, pDst, len, alpha); }
QspStatus qspsWinBlackman_32fc_I(Qsp32fc* pSrcDst, int len, Qsp32f alpha) { return blackman(pSrcDst, pSrcDst, len, alpha); }
QspStatus qspsWinBlackman_64f(const Qsp64f* pSrc, Qsp64f* pDst, int len, Qsp64f alpha) { return blackman(pSrc, pDst, len, alpha); }
QspStatus qspsWinBlackman_64f_I(Qsp64f* pSrcDst, int len, Qsp64f alpha) { return blackman(pSrcDst, pSrcDst, len, alpha); }
QspStatus qspsWinBlackman_64fc(const Qsp64fc* pSrc, Qsp64fc* pDst, int len, Qsp64f alpha) { return blackman(pSrc, pDst, len, alpha); }
QspStatus qspsWinBlackman_64fc_I(Qsp64fc* pSrcDst, int len, Qsp64f alpha) { return blackman(pSrcDst, pSrcDst, len, alpha); }

}  // namespace y8

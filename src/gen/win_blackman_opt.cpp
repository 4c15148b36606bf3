// SPDX-License-Identifier: BSD-3-Clause
// WinBlackmanOpt: the Blackman window whose alpha, -0.25/cos^2(pi/(N-1)),
// follows from the length, N >= 4: t = 0.5/cos(pi/(N-1)) with pi the double
// 3.141592653589793, alpha = -(t t), in double for every form.
#include "mathfn/trig.h"
#include "qsp_validators.h"
#include "window_blackman.h"

namespace y8 {
namespace {

template <class T>
QspStatus blackmanOpt(const T* pSrc, T* pDst, int len)
{
    if (QspStatus s = window::check(pSrc, pDst, len, 4)) return s;
    const double t = 0.5 / mathfn::qspsCosOne(3.141592653589793 / double(len - 1));
    window::blackman(pSrc, pDst, len, -(t * t));
    return qspStsOk;
}

}  // namespace

QspStatus qspsWinBlackmanOpt_16s(const Qsp16s* pSrc, Qsp16s* pDst, int len) { return blackmanOpt(pSrc, pDst, len); }
QspStatus qspsWinBlackmanOpt_16s_I(Qsp16s* pSrcDst, int len) { return blackmanOpt(pSrcDst, pSrcDst, len); }
QspStatus qspsWinBlackmanOpt_16sc(const Qsp16sc* pSrc, Qsp16sc* pDst, int len) { return blackmanOpt(pSrc, pDst, len); }
QspStatus qspsWinBlackmanOpt_16sc_I(Qsp16sc* pSrcDst, int len) { return blackmanOpt(pSrcDst, pSrcDst, len); }
QspStatus qspsWinBlackmanOpt_32f(const Qsp32f* pSrc, Qsp32f* pDst, int len) { return blackmanOpt(pSrc, pDst, len); }
QspStatus qspsWinBlackmanOpt_32f_I(Qsp32f* pSrcDst, int len) { return blackmanOpt(pSrcDst, pSrcDst, len); }
QspStatus qspsWinBlackmanOpt_32fc(const Qsp32fc* pSrc, Qsp32fc* pDst, int len) { return blackmanOpt(pSrc, pDst, len); }
QspStatus qspsWinBlackmanOpt_32fc_I(Qsp32fc* pSrcDst, int len) { return blackmanOpt(pSrcDst, pSrcDst, len); }
QspStatus qspsWinBlackmanOpt_64f(const Qsp64f* pSrc, Qsp64f* pDst, int len) { return blackmanOpt(pSrc, pDst, len); }
QspStatus qspsWinBlackmanOpt_64f_I(Qsp64f* pSrcDst, int len) { return blackmanOpt(pSrcDst, pSrcDst, len); }
QspStatus qspsWinBlackmanOpt_64fc(const Qsp64fc* pSrc, Qsp64fc* pDst, int len) { return blackmanOpt(pSrc, pDst, len); }
QspStatus qspsWinBlackmanOpt_64fc_I(Qsp64fc* pSrcDst, int len) { return blackmanOpt(pSrcDst, pSrcDst, len); }

}  // namespace y8

// SPDX-License-Identifier: BSD-3-Clause
// WinBartlett: the triangle window, w(k) = 2k/(N-1) rising to the centre
// and mirrored. The slope is formed once; each weight is k times it, so
// no error accumulates along the vector.
#include "qsp_validators.h"
#include "window.h"

namespace y8 {
namespace {

class BartlettWeights {
public:
    explicit BartlettWeights(int len) : slope_(2.0 / double(len - 1)) {}
    void fill(double* w, int count)
    {
        using VD = window::VD;
        const VD::Reg slope = VD::splat(slope_), two = VD::splat(2.0);
        VD::Reg k = VD::pair(double(k_), double(k_ + 1));
        int j = 0;
        for (; j + 2 <= count; j += 2, k = VD::add(k, two)) VD::store(w + j, VD::mul(k, slope));
        if (j < count) w[j] = double(k_ + j) * slope_;
        k_ += count;
    }

private:
    double slope_;
    int k_ = 0;
};

template <class T>
QspStatus bartlett(const T* pSrc, T* pDst, int len)
{
    if (QspStatus s = window::check(pSrc, pDst, len, 3)) return s;
    if (len == 3) {
        window::endsZeroed(pSrc, pDst);
        return qspStsOk;
    }
    BartlettWeights weights(len);
    window::apply(pSrc, pDst, len, weights);
    return qspStsOk;
}

}  // namespace

QspStatus qspsWinBartlett_16s(const Qsp16s* pSrc, Qsp16s* pDst, int len) { return bartlett(pSrc, pDst, len); }
QspStatus qspsWinBartlett_16s_I(Qsp16s* pSrcDst, int len) { return bartlett(pSrcDst, pSrcDst, len); }
QspStatus qspsWinBartlett_16sc(const Qsp16sc* pSrc, Qsp16sc* pDst, int len) { return bartlett(pSrc, pDst, len); }
QspStatus qspsWinBartlett_16sc_I(Qsp16sc* pSrcDst, int len) { return bartlett(pSrcDst, pSrcDst, len); }
QspStatus qspsWinBartlett_32f(const Qsp32f* pSrc, Qsp32f* pDst, int len) { return bartlett(pSrc, pDst, len); }
QspStatus qspsWinBartlett_32f_I(Qsp32f* pSrcDst, int len) { return bartlett(pSrcDst, pSrcDst, len); }
QspStatus qspsWinBartlett_32fc(const Qsp32fc* pSrc, Qsp32fc* pDst, int len) { return bartlett(pSrc, pDst, len); }
QspStatus qspsWinBartlett_32fc_I(Qsp32fc* pSrcDst, int len) { return bartlett(pSrcDst, pSrcDst, len); }
QspStatus qspsWinBartlett_64f(const Qsp64f* pSrc, Qsp64f* pDst, int len) { return bartlett(pSrc, pDst, len); }
QspStatus qspsWinBartlett_64f_I(Qsp64f* pSrcDst, int len) { return bartlett(pSrcDst, pSrcDst, len); }
QspStatus qspsWinBartlett_64fc(const Qsp64fc* pSrc, Qsp64fc* pDst, int len) { return bartlett(pSrc, pDst, len); }
QspStatus qspsWinBartlett_64fc_I(Qsp64fc* pSrcDst, int len) { return bartlett(pSrcDst, pSrcDst, len); }

}  // namespace y8

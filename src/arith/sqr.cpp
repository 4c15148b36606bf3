// SPDX-License-Identifier: BSD-3-Clause
// Sqr: every element squared (complex: the complex square).
#include "forms.h"

namespace y8 {
namespace {

using ops::Sqr;

template <class T>
QspStatus sqrFloating(const T* pSrc, T* pDst, int len)
{
    if constexpr (ops::isComplex<T>) {
        struct CSqr {
            auto reg(typename simd::Vec<T>::Reg a) const { return ops::CMul{}.reg(a, a); }
            T one(T a) const { return ops::CMul{}.one(a, a); }
        };
        return forms::v(pSrc, pDst, len, CSqr{});
    } else {
        return forms::v(pSrc, pDst, len, Sqr{});
    }
}

template <class T>
QspStatus sqrScaled(const T* pSrc, T* pDst, int len, int scaleFactor)
{
    if (QspStatus s = check::vectors(len, pSrc, pDst)) return s;
    constexpr ops::Range R = Sqr::range<T>();
    return forms::scaled<R>(scaleFactor, pDst, len, [&](auto mode) {
        forms::runScaled<R>(pDst, len, Sqr{}, mode, pSrc);
        return qspStsOk;
    });
}

// 16sc: the complex product of each element with itself; the imaginary
// part 2 re im reaches 2^31 for -32768 - 32768i, zeros from 32.
struct CSqr16 {
    using R = simd::Vec<Qsp32s>::Reg;
    void reg(R& re, R& im, R a) const { ops::CMul16{}.reg(re, im, a, a); }
};

QspStatus sqr16sc(const Qsp16sc* pSrc, Qsp16sc* pDst, int len, int scaleFactor)
{
    if (QspStatus s = check::vectors(len, pSrc, pDst)) return s;
    return forms::scaled<ops::CMul16::range()>(scaleFactor, pDst, len, [&](auto mode) {
        elementwise::lanesComplex16(pDst, len, CSqr16{}, mode, pSrc);
        return qspStsOk;
    });
}

}  // namespace

QspStatus qspsSqr_32f(const Qsp32f* pSrc, Qsp32f* pDst, int len) { return sqrFloating(pSrc, pDst, len); }
QspStatus qspsSqr_32f_I(Qsp32f* pSrcDst, int len) { return sqrFloating(pSrcDst, pSrcDst, len); }
QspStatus qspsSqr_64f(const Qsp64f* pSrc, Qsp64f* pDst, int len) { return sqrFloating(pSrc, pDst, len); }
QspStatus qspsSqr_64f_I(Qsp64f* pSrcDst, int len) { return sqrFloating(pSrcDst, pSrcDst, len); }
QspStatus qspsSqr_32fc(const Qsp32fc* pSrc, Qsp32fc* pDst, int len) { return sqrFloating(pSrc, pDst, len); }
QspStatus qspsSqr_32fc_I(Qsp32fc* pSrcDst, int len) { return sqrFloating(pSrcDst, pSrcDst, len); }
QspStatus qspsSqr_64fc(const Qsp64fc* pSrc, Qsp64fc* pDst, int len) { return sqrFloating(pSrc, pDst, len); }
QspStatus qspsSqr_64fc_I(Qsp64fc* pSrcDst, int len) { return sqrFloating(pSrcDst, pSrcDst, len); }

QspStatus qspsSqr_8u_Sfs(const Qsp8u* pSrc, Qsp8u* pDst, int len, int scaleFactor)
{
    return sqrScaled(pSrc, pDst, len, scaleFactor);
}
QspStatus qspsSqr_8u_ISfs(Qsp8u* pSrcDst, int len, int scaleFactor) { return sqrScaled(pSrcDst, pSrcDst, len, scaleFactor); }
QspStatus qspsSqr_16s_Sfs(const Qsp16s* pSrc, Qsp16s* pDst, int len, int scaleFactor)
{
    return sqrScaled(pSrc, pDst, len, scaleFactor);
}
QspStatus qspsSqr_16s_ISfs(Qsp16s* pSrcDst, int len, int scaleFactor) { return sqrScaled(pSrcDst, pSrcDst, len, scaleFactor); }
QspStatus qspsSqr_16u_Sfs(const Qsp16u* pSrc, Qsp16u* pDst, int len, int scaleFactor)
{
    return sqrScaled(pSrc, pDst, len, scaleFactor);
}
QspStatus qspsSqr_16u_ISfs(Qsp16u* pSrcDst, int len, int scaleFactor) { return sqrScaled(pSrcDst, pSrcDst, len, scaleFactor); }
QspStatus qspsSqr_16sc_Sfs(const Qsp16sc* pSrc, Qsp16sc* pDst, int len, int scaleFactor)
{
    return sqr16sc(pSrc, pDst, len, scaleFactor);
}
QspStatus qspsSqr_16sc_ISfs(Qsp16sc* pSrcDst, int len, int scaleFactor) { return sqr16sc(pSrcDst, pSrcDst, len, scaleFactor); }

QspStatus qspsSqr_32f_L(const Qsp32f* pSrc, Qsp32f* pDst, Qsp64s len) { return forms::chunks(qspsSqr_32f, pSrc, pDst, len); }
QspStatus qspsSqr_32f_I_L(Qsp32f* pSrcDst, Qsp64s len) { return forms::chunksI(qspsSqr_32f_I, pSrcDst, len); }
QspStatus qspsSqr_64f_L(const Qsp64f* pSrc, Qsp64f* pDst, Qsp64s len) { return forms::chunks(qspsSqr_64f, pSrc, pDst, len); }
QspStatus qspsSqr_64f_I_L(Qsp64f* pSrcDst, Qsp64s len) { return forms::chunksI(qspsSqr_64f_I, pSrcDst, len); }

}  // namespace y8

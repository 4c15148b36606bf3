// SPDX-License-Identifier: BSD-3-Clause
// IIR: filtering through an IIR state. Checks: the pointers (state first),
// then the length, then the record's identifier; every filtering form
// accepts the AR, biquad and (where one exists) direct-form-1 records of
// its sample and state types. Samples of another type than the state's are
// converted exactly on the way in; integer results are scaled by
// 2^-scaleFactor, rounded to nearest even and saturated on the way out.
// Multi-channel forms check every channel before they filter any.
#include "checks.h"
#include "iir_state.h"
#include "qsp_validators.h"

namespace y8 {
namespace {

using namespace iir::served;

using iir::NarrowIO;
using iir::PlainIO;
using iir::ScaledIO;
using iir::WidenIO;

template <class T, class D, class In, class Out>
QspStatus run(const D* pSrc, D* pDst, int len, void* pState, std::initializer_list<int> digits, const In& in,
              const Out& out)
{
    if (QspStatus s = check::vectors(len, pState, pSrc, pDst)) return s;
    if (!iir::accepts(pState, digits)) return qspStsBadRecord;
    iir::filter<T>(pState, pSrc, pDst, len, in, out);
    return qspStsOk;
}

// Samples of the state's own type.
template <class T, class P>
QspStatus same(const T* pSrc, T* pDst, int len, P* pState, std::initializer_list<int> digits)
{
    return run<T>(pSrc, pDst, len, pState, digits, PlainIO<T>{}, PlainIO<T>{});
}

// Floating samples of single precision through a double state.
template <class T, class D, class P>
QspStatus widened(const D* pSrc, D* pDst, int len, P* pState, std::initializer_list<int> digits)
{
    return run<T>(pSrc, pDst, len, pState, digits, WidenIO<D, T>{}, NarrowIO<T, D>{});
}

// Integer samples, scaled results.
template <class T, class D, class P>
QspStatus scaled(const D* pSrc, D* pDst, int len, P* pState, int scaleFactor, std::initializer_list<int> digits)
{
    return run<T>(pSrc, pDst, len, pState, digits, WidenIO<D, T>{}, ScaledIO<T, D>(scaleFactor));
}

// nChannels vectors, each through its own state: the channel-array
// pointers, the length, the channel count (below 1: qspStsBadSize), every
// channel's pointers, every channel's record; then the channels in turn.
template <class T, class D, class P, class In, class Out>
QspStatus channels(const D* const* ppSrc, D* const* ppDst, int len, int nChannels, P* const* ppState,
                   std::initializer_list<int> digits, const In& in, const Out& out)
{
    if (QspStatus s = check::vectors(len, ppSrc, ppDst, ppState)) return s;
    if (QspStatus s = check::length(nChannels)) return s;
    for (int c = 0; c < nChannels; ++c)
        if (QspStatus s = check::pointers(ppSrc[c], ppDst[c], ppState[c])) return s;
    for (int c = 0; c < nChannels; ++c)
        if (!iir::accepts(ppState[c], digits)) return qspStsBadRecord;
    for (int c = 0; c < nChannels; ++c) iir::filter<T>(ppState[c], ppSrc[c], ppDst[c], len, in, out);
    return qspStsOk;
}


}  // namespace

QspStatus qspsIIR_32f(const Qsp32f* pSrc, Qsp32f* pDst, int len, QspsIIRState_32f* pState)
{
    return same(pSrc, pDst, len, pState, k32f);
}
QspStatus qspsIIR_32f_I(Qsp32f* pSrcDst, int len, QspsIIRState_32f* pState)
{
    return same(pSrcDst, pSrcDst, len, pState, k32f);
}
QspStatus qspsIIR_32f_P(const Qsp32f** ppSrc, Qsp32f** ppDst, int len, int nChannels, QspsIIRState_32f** ppState)
{
    return channels<float>(ppSrc, ppDst, len, nChannels, ppState, k32f, PlainIO<float>{}, PlainIO<float>{});
}
QspStatus qspsIIR_32f_IP(Qsp32f** ppSrcDst, int len, int nChannels, QspsIIRState_32f** ppState)
{
    return channels<float>(ppSrcDst, ppSrcDst, len, nChannels, ppState, k32f, PlainIO<float>{}, PlainIO<float>{});
}
QspStatus qspsIIR_32fc(const Qsp32fc* pSrc, Qsp32fc* pDst, int len, QspsIIRState_32fc* pState)
{
    return same(pSrc, pDst, len, pState, k32fc);
}
QspStatus qspsIIR_32fc_I(Qsp32fc* pSrcDst, int len, QspsIIRState_32fc* pState)
{
    return same(pSrcDst, pSrcDst, len, pState, k32fc);
}
QspStatus qspsIIR32f_16s_Sfs(const Qsp16s* pSrc, Qsp16s* pDst, int len, QspsIIRState32f_16s* pState, int scaleFactor)
{
    return scaled<float>(pSrc, pDst, len, pState, scaleFactor, k32f16s);
}
QspStatus qspsIIR32f_16s_ISfs(Qsp16s* pSrcDst, int len, QspsIIRState32f_16s* pState, int scaleFactor)
{
    return scaled<float>(pSrcDst, pSrcDst, len, pState, scaleFactor, k32f16s);
}
QspStatus qspsIIR32fc_16sc_Sfs(const Qsp16sc* pSrc, Qsp16sc* pDst, int len, QspsIIRState32fc_16sc* pState,
                               int scaleFactor)
{
    return scaled<Qsp32fc>(pSrc, pDst, len, pState, scaleFactor, k32fc16sc);
}
QspStatus qspsIIR32fc_16sc_ISfs(Qsp16sc* pSrcDst, int len, QspsIIRState32fc_16sc* pState, int scaleFactor)
{
    return scaled<Qsp32fc>(pSrcDst, pSrcDst, len, pState, scaleFactor, k32fc16sc);
}
QspStatus qspsIIR_64f(const Qsp64f* pSrc, Qsp64f* pDst, int len, QspsIIRState_64f* pState)
{
    return same(pSrc, pDst, len, pState, k64f);
}
QspStatus qspsIIR_64f_I(Qsp64f* pSrcDst, int len, QspsIIRState_64f* pState)
{
    return same(pSrcDst, pSrcDst, len, pState, k64f);
}
QspStatus qspsIIR_64fc(const Qsp64fc* pSrc, Qsp64fc* pDst, int len, QspsIIRState_64fc* pState)
{
    return same(pSrc, pDst, len, pState, k64fc);
}
QspStatus qspsIIR_64fc_I(Qsp64fc* pSrcDst, int len, QspsIIRState_64fc* pState)
{
    return same(pSrcDst, pSrcDst, len, pState, k64fc);
}
QspStatus qspsIIR64f_32f(const Qsp32f* pSrc, Qsp32f* pDst, int len, QspsIIRState64f_32f* pState)
{
    return widened<double>(pSrc, pDst, len, pState, k64f32f);
}
QspStatus qspsIIR64f_32f_I(Qsp32f* pSrcDst, int len, QspsIIRState64f_32f* pState)
{
    return widened<double>(pSrcDst, pSrcDst, len, pState, k64f32f);
}
QspStatus qspsIIR64fc_32fc(const Qsp32fc* pSrc, Qsp32fc* pDst, int len, QspsIIRState64fc_32fc* pState)
{
    return widened<Qsp64fc>(pSrc, pDst, len, pState, k64fc32fc);
}
QspStatus qspsIIR64fc_32fc_I(Qsp32fc* pSrcDst, int len, QspsIIRState64fc_32fc* pState)
{
    return widened<Qsp64fc>(pSrcDst, pSrcDst, len, pState, k64fc32fc);
}
QspStatus qspsIIR64f_32s_Sfs(const Qsp32s* pSrc, Qsp32s* pDst, int len, QspsIIRState64f_32s* pState, int scaleFactor)
{
    return scaled<double>(pSrc, pDst, len, pState, scaleFactor, k64f32sAll);
}
QspStatus qspsIIR64f_32s_ISfs(Qsp32s* pSrcDst, int len, QspsIIRState64f_32s* pState, int scaleFactor)
{
    return scaled<double>(pSrcDst, pSrcDst, len, pState, scaleFactor, k64f32sAll);
}
QspStatus qspsIIR64f_32s_PSfs(const Qsp32s** ppSrc, Qsp32s** ppDst, int len, int nChannels,
                              QspsIIRState64f_32s** ppState, int scaleFactor)
{
    return channels<double>(ppSrc, ppDst, len, nChannels, ppState, k64f32sAll, WidenIO<Qsp32s, double>{},
                            ScaledIO<double, Qsp32s>(scaleFactor));
}
QspStatus qspsIIR64f_32s_IPSfs(Qsp32s** ppSrcDst, int len, int nChannels, QspsIIRState64f_32s** ppState,
                               int scaleFactor)
{
    return channels<double>(ppSrcDst, ppSrcDst, len, nChannels, ppState, k64f32sAll, WidenIO<Qsp32s, double>{},
                            ScaledIO<double, Qsp32s>(scaleFactor));
}
QspStatus qspsIIR64fc_32sc_Sfs(const Qsp32sc* pSrc, Qsp32sc* pDst, int len, QspsIIRState64fc_32sc* pState,
                               int scaleFactor)
{
    return scaled<Qsp64fc>(pSrc, pDst, len, pState, scaleFactor, k64fc32sc);
}
QspStatus qspsIIR64fc_32sc_ISfs(Qsp32sc* pSrcDst, int len, QspsIIRState64fc_32sc* pState, int scaleFactor)
{
    return scaled<Qsp64fc>(pSrcDst, pSrcDst, len, pState, scaleFactor, k64fc32sc);
}
QspStatus qspsIIR64f_16s_Sfs(const Qsp16s* pSrc, Qsp16s* pDst, int len, QspsIIRState64f_16s* pState, int scaleFactor)
{
    return scaled<double>(pSrc, pDst, len, pState, scaleFactor, k64f16s);
}
QspStatus qspsIIR64f_16s_ISfs(Qsp16s* pSrcDst, int len, QspsIIRState64f_16s* pState, int scaleFactor)
{
    return scaled<double>(pSrcDst, pSrcDst, len, pState, scaleFactor, k64f16s);
}
QspStatus qspsIIR64fc_16sc_Sfs(const Qsp16sc* pSrc, Qsp16sc* pDst, int len, QspsIIRState64fc_16sc* pState,
                               int scaleFactor)
{
    return scaled<Qsp64fc>(pSrc, pDst, len, pState, scaleFactor, k64fc16sc);
}
QspStatus qspsIIR64fc_16sc_ISfs(Qsp16sc* pSrcDst, int len, QspsIIRState64fc_16sc* pState, int scaleFactor)
{
    return scaled<Qsp64fc>(pSrcDst, pSrcDst, len, pState, scaleFactor, k64fc16sc);
}

}  // namespace y8

// SPDX-License-Identifier: BSD-3-Clause
// IIRGetDlyLine and IIRSetDlyLine: the delay line of an IIR state read out
// or replaced (a null source clears it). Checks: the pointers, then the
// record's identifier. The values are those of the state's type; the
// direct-form-1 cascade of 32-bit samples exchanges its past samples as
// 32-bit integers (Get rounds to nearest even and saturates).
#include "checks.h"
#include "iir_state.h"
#include "qsp_validators.h"

namespace y8 {
namespace {

using namespace iir::served;

template <class T, class V, class P>
QspStatus get(const P* pState, V* pDlyLine, std::initializer_list<int> digits)
{
    if (QspStatus s = check::pointers(pState, pDlyLine)) return s;
    if (!iir::accepts(pState, digits)) return qspStsBadRecord;
    const auto* h = reinterpret_cast<const iir::Header*>(pState);
    const T* d = static_cast<const T*>(h->dly);
    const int n = iir::delayCount(h);
    if constexpr (std::is_same_v<T, V>) {
        for (int k = 0; k < n; ++k) simd::storeOne(pDlyLine + k, d[k]);
    } else {
        const iir::ScaledIO<T, V> toInt(0);
        for (int k = 0; k < n; ++k) toInt.storeOne(pDlyLine + k, d[k]);
    }
    return qspStsOk;
}

template <class T, class V, class P>
QspStatus set(P* pState, const V* pDlyLine, std::initializer_list<int> digits)
{
    if (QspStatus s = check::pointers(pState)) return s;
    if (!iir::accepts(pState, digits)) return qspStsBadRecord;
    auto* h = reinterpret_cast<iir::Header*>(pState);
    iir::loadDelay(static_cast<T*>(h->dly), iir::delayCount(h), pDlyLine);
    return qspStsOk;
}


}  // namespace

QspStatus qspsIIRGetDlyLine_64fc(const QspsIIRState_64fc* pState, Qsp64fc* pDlyLine)
{
    return get<Qsp64fc>(pState, pDlyLine, k64fc);
}
QspStatus qspsIIRGetDlyLine_64f(const QspsIIRState_64f* pState, Qsp64f* pDlyLine)
{
    return get<double>(pState, pDlyLine, k64f);
}
QspStatus qspsIIRGetDlyLine_32fc(const QspsIIRState_32fc* pState, Qsp32fc* pDlyLine)
{
    return get<Qsp32fc>(pState, pDlyLine, k32fc);
}
QspStatus qspsIIRGetDlyLine_32f(const QspsIIRState_32f* pState, Qsp32f* pDlyLine)
{
    return get<float>(pState, pDlyLine, k32f);
}
QspStatus qspsIIRGetDlyLine64fc_32sc(const QspsIIRState64fc_32sc* pState, Qsp64fc* pDlyLine)
{
    return get<Qsp64fc>(pState, pDlyLine, k64fc32sc);
}
QspStatus qspsIIRGetDlyLine64fc_32fc(const QspsIIRState64fc_32fc* pState, Qsp64fc* pDlyLine)
{
    return get<Qsp64fc>(pState, pDlyLine, k64fc32fc);
}
QspStatus qspsIIRGetDlyLine64fc_16sc(const QspsIIRState64fc_16sc* pState, Qsp64fc* pDlyLine)
{
    return get<Qsp64fc>(pState, pDlyLine, k64fc16sc);
}
QspStatus qspsIIRGetDlyLine64f_DF1_32s(const QspsIIRState64f_32s* pState, Qsp32s* pDlyLine)
{
    return get<double>(pState, pDlyLine, kDF164f32s);
}
QspStatus qspsIIRGetDlyLine64f_32s(const QspsIIRState64f_32s* pState, Qsp64f* pDlyLine)
{
    return get<double>(pState, pDlyLine, k64f32s);
}
QspStatus qspsIIRGetDlyLine64f_32f(const QspsIIRState64f_32f* pState, Qsp64f* pDlyLine)
{
    return get<double>(pState, pDlyLine, k64f32f);
}
QspStatus qspsIIRGetDlyLine64f_16s(const QspsIIRState64f_16s* pState, Qsp64f* pDlyLine)
{
    return get<double>(pState, pDlyLine, k64f16s);
}
QspStatus qspsIIRGetDlyLine32fc_16sc(const QspsIIRState32fc_16sc* pState, Qsp32fc* pDlyLine)
{
    return get<Qsp32fc>(pState, pDlyLine, k32fc16sc);
}
QspStatus qspsIIRGetDlyLine32f_16s(const QspsIIRState32f_16s* pState, Qsp32f* pDlyLine)
{
    return get<float>(pState, pDlyLine, k32f16s);
}

QspStatus qspsIIRSetDlyLine_64fc(QspsIIRState_64fc* pState, const Qsp64fc* pDlyLine)
{
    return set<Qsp64fc>(pState, pDlyLine, k64fc);
}
QspStatus qspsIIRSetDlyLine_64f(QspsIIRState_64f* pState, const Qsp64f* pDlyLine)
{
    return set<double>(pState, pDlyLine, k64f);
}
QspStatus qspsIIRSetDlyLine_32fc(QspsIIRState_32fc* pState, const Qsp32fc* pDlyLine)
{
    return set<Qsp32fc>(pState, pDlyLine, k32fc);
}
QspStatus qspsIIRSetDlyLine_32f(QspsIIRState_32f* pState, const Qsp32f* pDlyLine)
{
    return set<float>(pState, pDlyLine, k32f);
}
QspStatus qspsIIRSetDlyLine64fc_32sc(QspsIIRState64fc_32sc* pState, const Qsp64fc* pDlyLine)
{
    return set<Qsp64fc>(pState, pDlyLine, k64fc32sc);
}
QspStatus qspsIIRSetDlyLine64fc_32fc(QspsIIRState64fc_32fc* pState, const Qsp64fc* pDlyLine)
{
    return set<Qsp64fc>(pState, pDlyLine, k64fc32fc);
}
QspStatus qspsIIRSetDlyLine64fc_16sc(QspsIIRState64fc_16sc* pState, const Qsp64fc* pDlyLine)
{
    return set<Qsp64fc>(pState, pDlyLine, k64fc16sc);
}
QspStatus qspsIIRSetDlyLine64f_DF1_32s(QspsIIRState64f_32s* pState, const Qsp32s* pDlyLine)
{
    return set<double>(pState, pDlyLine, kDF164f32s);
}
QspStatus qspsIIRSetDlyLine64f_32s(QspsIIRState64f_32s* pState, const Qsp64f* pDlyLine)
{
    return set<double>(pState, pDlyLine, k64f32s);
}
QspStatus qspsIIRSetDlyLine64f_32f(QspsIIRState64f_32f* pState, const Qsp64f* pDlyLine)
{
    return set<double>(pState, pDlyLine, k64f32f);
}
QspStatus qspsIIRSetDlyLine64f_16s(QspsIIRState64f_16s* pState, const Qsp64f* pDlyLine)
{
    return set<double>(pState, pDlyLine, k64f16s);
}
QspStatus qspsIIRSetDlyLine32fc_16sc(QspsIIRState32fc_16sc* pState, const Qsp32fc* pDlyLine)
{
    return set<Qsp32fc>(pState, pDlyLine, k32fc16sc);
}
QspStatus qspsIIRSetDlyLine32f_16s(QspsIIRState32f_16s* pState, const Qsp32f* pDlyLine)
{
    return set<float>(pState, pDlyLine, k32f16s);
}

}  // namespace y8

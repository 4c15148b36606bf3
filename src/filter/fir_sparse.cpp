// SPDX-License-Identifier: BSD-3-Clause
// FIRSparse: FIR filters with few non-zero taps at arbitrary delays,
// y[n] = sum over j of t[j] x[n - p[j]], on the sparse filter engine
// (sparse_filter.h). The delay line, the last `order` inputs oldest first,
// lives in the state.
#include "qsp_validators.h"
#include "sparse_filter.h"

namespace y8 {
namespace {

// Identifiers: "FS" and the type's number.
constexpr Qsp32u kId32f = 0x46533031u;
constexpr Qsp32u kId32fc = 0x46533032u;
constexpr Qsp32u kId32f16s = 0x46533033u;

template <class T>
QspStatus getSize(int nzTapsLen, int order, int* pStateSize)
{
    if (QspStatus s = check::pointers(pStateSize)) return s;
    if (nzTapsLen < 1) return qspStsBadTapCount;
    if (order < nzTapsLen - 1) return qspStsBadFilterOrder;
    return sparse::stateSize<T>(nzTapsLen, order, 0, pStateSize);
}

template <class T, class V, class S>
QspStatus init(Qsp32u id, S** ppState, const T* pTaps, const int* pPos, int nzTapsLen, const V* pDlyLine,
               Qsp8u* pBuffer)
{
    if (QspStatus s = check::pointers(ppState, pTaps, pPos, pBuffer)) return s;
    if (nzTapsLen < 1) return qspStsBadTapCount;
    if (!sparse::ascending(pPos, nzTapsLen, 0)) return qspStsBadArgument;
    int size;  // a record too large to size is refused as its size query refuses it
    if (QspStatus s = sparse::stateSize<T>(nzTapsLen, pPos[nzTapsLen - 1], 0, &size)) return s;
    *ppState = reinterpret_cast<S*>(sparse::build<T>(id, pBuffer, pTaps, pPos, nzTapsLen, 0, pDlyLine));
    return qspStsOk;
}

template <class T, class V, class S>
QspStatus getDly(Qsp32u id, const S* pState, V* pDlyLine)
{
    if (QspStatus s = check::pointers(pState, pDlyLine)) return s;
    const auto* h = reinterpret_cast<const sparse::Header*>(pState);
    if (h->id != id) return qspStsBadRecord;
    const T* x = sparse::area<T>(h, h->xs);
    for (int k = 0; k < h->order1; ++k) simd::storeOne(pDlyLine + k, V(x[k]));
    return qspStsOk;
}

template <class T, class V, class S>
QspStatus setDly(Qsp32u id, S* pState, const V* pDlyLine)
{
    if (QspStatus s = check::pointers(pState)) return s;
    auto* h = reinterpret_cast<sparse::Header*>(pState);
    if (h->id != id) return qspStsBadRecord;
    sparse::loadHistory(sparse::area<T>(h, h->xs), pDlyLine, h->order1);
    return qspStsOk;
}

}  // namespace

QspStatus qspsFIRSparseGetStateSize_32f(int nzTapsLen, int order, int* pStateSize)
{
    return getSize<Qsp32f>(nzTapsLen, order, pStateSize);
}
QspStatus qspsFIRSparseInit_32f(QspsFIRSparseState_32f** ppState, const Qsp32f* pNZTaps, const int* pNZTapPos,
                                int nzTapsLen, const Qsp32f* pDlyLine, Qsp8u* pBuffer)
{
    return init(kId32f, ppState, pNZTaps, pNZTapPos, nzTapsLen, pDlyLine, pBuffer);
}
QspStatus qspsFIRSparse_32f(const Qsp32f* pSrc, Qsp32f* pDst, int len, QspsFIRSparseState_32f* pState)
{
    return sparse::filter<Qsp32f>(kId32f, pSrc, pDst, len, pState, sparse::SameIO<Qsp32f>{});
}
QspStatus qspsFIRSparseGetDlyLine_32f(const QspsFIRSparseState_32f* pState, Qsp32f* pDlyLine)
{
    return getDly<Qsp32f>(kId32f, pState, pDlyLine);
}
QspStatus qspsFIRSparseSetDlyLine_32f(QspsFIRSparseState_32f* pState, const Qsp32f* pDlyLine)
{
    return setDly<Qsp32f>(kId32f, pState, pDlyLine);
}

QspStatus qspsFIRSparseGetStateSize_32fc(int nzTapsLen, int order, int* pStateSize)
{
    return getSize<Qsp32fc>(nzTapsLen, order, pStateSize);
}
QspStatus qspsFIRSparseInit_32fc(QspsFIRSparseState_32fc** ppState, const Qsp32fc* pNZTaps, const int* pNZTapPos,
                                 int nzTapsLen, const Qsp32fc* pDlyLine, Qsp8u* pBuffer)
{
    return init(kId32fc, ppState, pNZTaps, pNZTapPos, nzTapsLen, pDlyLine, pBuffer);
}
QspStatus qspsFIRSparse_32fc(const Qsp32fc* pSrc, Qsp32fc* pDst, int len, QspsFIRSparseState_32fc* pState)
{
    return sparse::filter<Qsp32fc>(kId32fc, pSrc, pDst, len, pState, sparse::SameIO<Qsp32fc>{});
}
QspStatus qspsFIRSparseGetDlyLine_32fc(const QspsFIRSparseState_32fc* pState, Qsp32fc* pDlyLine)
{
    return getDly<Qsp32fc>(kId32fc, pState, pDlyLine);
}
QspStatus qspsFIRSparseSetDlyLine_32fc(QspsFIRSparseState_32fc* pState, const Qsp32fc* pDlyLine)
{
    return setDly<Qsp32fc>(kId32fc, pState, pDlyLine);
}

QspStatus qspsFIRSparseGetStateSize32f_16s(int nzTapsLen, int order, int* pStateSize)
{
    return getSize<Qsp32f>(nzTapsLen, order, pStateSize);
}
QspStatus qspsFIRSparseInit32f_16s(QspsFIRSparseState32f_16s** ppState, const Qsp32f* pNZTaps, const int* pNZTapPos,
                                   int nzTapsLen, const Qsp16s* pDlyLine, Qsp8u* pBuffer)
{
    return init(kId32f16s, ppState, pNZTaps, pNZTapPos, nzTapsLen, pDlyLine, pBuffer);
}
QspStatus qspsFIRSparse32f_16s_Sfs(const Qsp16s* pSrc, Qsp16s* pDst, int len, QspsFIRSparseState32f_16s* pState,
                                   int scaleFactor)
{
    return sparse::filter<Qsp32f>(kId32f16s, pSrc, pDst, len, pState, sparse::Scaled16(scaleFactor));
}
QspStatus qspsFIRSparseGetDlyLine32f_16s(const QspsFIRSparseState32f_16s* pState, Qsp16s* pDlyLine)
{
    return getDly<Qsp32f>(kId32f16s, pState, pDlyLine);
}
QspStatus qspsFIRSparseSetDlyLine32f_16s(QspsFIRSparseState32f_16s* pState, const Qsp16s* pDlyLine)
{
    return setDly<Qsp32f>(kId32f16s, pState, pDlyLine);
}

}  // namespace y8

// SPDX-License-Identifier: BSD-3-Clause
// IIRSparse: recursive filters with few non-zero taps at arbitrary delays,
// y[n] = sum of b[j] x[n - p[j]] - sum of a[k] y[n - q[k]], on the sparse
// filter engine (sparse_filter.h). The input and output histories live in
// the state.
#include "qsp_validators.h"
#include "sparse_filter.h"

namespace y8 {
namespace {

// Identifiers: "IS" and the type's number.
constexpr Qsp32u kId32f = 0x49533031u;
constexpr Qsp32u kId32f16s = 0x49533033u;

QspStatus getSize(int nz1, int nz2, int order1, int order2, int* pStateSize)
{
    if (QspStatus s = check::pointers(pStateSize)) return s;
    if (nz1 < 1 || nz2 < 0) return qspStsBadTapCount;
    if (order1 < nz1 - 1 || order2 < nz2) return qspStsBadFilterOrder;
    return sparse::stateSize<Qsp32f>(Qsp64s(nz1) + nz2, order1, order2, pStateSize);
}

template <class V, class S>
QspStatus init(Qsp32u id, S** ppState, const Qsp32f* pTaps, const int* pPos, int nz1, int nz2, const V* pDlyLine,
               Qsp8u* pBuffer)
{
    if (QspStatus s = check::pointers(ppState, pTaps, pPos, pBuffer)) return s;
    if (nz1 < 1 || nz2 < 0) return qspStsBadTapCount;
    if (!sparse::ascending(pPos, nz1, 0) || !sparse::ascending(pPos + nz1, nz2, 1)) return qspStsBadArgument;
    int size;  // a record too large to size is refused as its size query refuses it
    if (QspStatus s = sparse::stateSize<Qsp32f>(Qsp64s(nz1) + nz2, pPos[nz1 - 1], nz2 ? pPos[nz1 + nz2 - 1] : 0, &size))
        return s;
    *ppState = reinterpret_cast<S*>(sparse::build<Qsp32f>(id, pBuffer, pTaps, pPos, nz1, nz2, pDlyLine));
    return qspStsOk;
}

}  // namespace

QspStatus qspsIIRSparseGetStateSize_32f(int nzTapsLen1, int nzTapsLen2, int order1, int order2, int* pStateSize)
{
    return getSize(nzTapsLen1, nzTapsLen2, order1, order2, pStateSize);
}
QspStatus qspsIIRSparseInit_32f(QspsIIRSparseState_32f** ppState, const Qsp32f* pNZTaps, const int* pNZTapPos,
                                int nzTapsLen1, int nzTapsLen2, const Qsp32f* pDlyLine, Qsp8u* pBuffer)
{
    return init(kId32f, ppState, pNZTaps, pNZTapPos, nzTapsLen1, nzTapsLen2, pDlyLine, pBuffer);
}
QspStatus qspsIIRSparse_32f(const Qsp32f* pSrc, Qsp32f* pDst, int len, QspsIIRSparseState_32f* pState)
{
    return sparse::filter<Qsp32f>(kId32f, pSrc, pDst, len, pState, sparse::SameIO<Qsp32f>{});
}

QspStatus qspsIIRSparseGetStateSize32f_16s(int nzTapsLen1, int nzTapsLen2, int order1, int order2, int* pStateSize)
{
    return getSize(nzTapsLen1, nzTapsLen2, order1, order2, pStateSize);
}
QspStatus qspsIIRSparseInit32f_16s(QspsIIRSparseState32f_16s** ppState, const Qsp32f* pNZTaps, const int* pNZTapPos,
                                   int nzTapsLen1, int nzTapsLen2, const Qsp16s* pDlyLine, Qsp8u* pBuffer)
{
    return init(kId32f16s, ppState, pNZTaps, pNZTapPos, nzTapsLen1, nzTapsLen2, pDlyLine, pBuffer);
}
QspStatus qspsIIRSparse32f_16s_Sfs(const Qsp16s* pSrc, Qsp16s* pDst, int len, QspsIIRSparseState32f_16s* pState,
                                   int scaleFactor)
{
    return sparse::filter<Qsp32f>(kId32f16s, pSrc, pDst, len, pState, sparse::Scaled16(scaleFactor));
}

}  // namespace y8

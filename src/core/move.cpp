// SPDX-License-Identifier: BSD-3-Clause
// Move: a copy that is correct for any overlap of source and destination.
#include "checks.h"
#include "memory_kernels.h"
#include "qsp_validators.h"

namespace y8 {
namespace {

template <class T>
QspStatus move(const T* pSrc, T* pDst, int len)
{
    if (QspStatus s = check::vectors(len, pSrc, pDst)) return s;
    ownsMove_8u(reinterpret_cast<const Qsp8u*>(pSrc), reinterpret_cast<Qsp8u*>(pDst),
                Qsp64s(len) * Qsp64s(sizeof(T)));
    return qspStsOk;
}

}  // namespace

QspStatus qspsMove_8u(const Qsp8u* pSrc, Qsp8u* pDst, int len) { return move(pSrc, pDst, len); }
QspStatus qspsMove_16s(const Qsp16s* pSrc, Qsp16s* pDst, int len) { return move(pSrc, pDst, len); }
QspStatus qspsMove_16sc(const Qsp16sc* pSrc, Qsp16sc* pDst, int len) { return move(pSrc, pDst, len); }
QspStatus qspsMove_32s(const Qsp32s* pSrc, Qsp32s* pDst, int len) { return move(pSrc, pDst, len); }
QspStatus qspsMove_32sc(const Qsp32sc* pSrc, Qsp32sc* pDst, int len) { return move(pSrc, pDst, len); }
QspStatus qspsMove_32f(const Qsp32f* pSrc, Qsp32f* pDst, int len) { return move(pSrc, pDst, len); }
QspStatus qspsMove_32fc(const Qsp32fc* pSrc, Qsp32fc* pDst, int len) { return move(pSrc, pDst, len); }
QspStatus qspsMove_64s(const Qsp64s* pSrc, Qsp64s* pDst, int len) { return move(pSrc, pDst, len); }
QspStatus qspsMove_64sc(const Qsp64sc* pSrc, Qsp64sc* pDst, int len) { return move(pSrc, pDst, len); }
QspStatus qspsMove_64f(const Qsp64f* pSrc, Qsp64f* pDst, int len) { return move(pSrc, pDst, len); }
QspStatus qspsMove_64fc(const Qsp64fc* pSrc, Qsp64fc* pDst, int len) { return move(pSrc, pDst, len); }

}  // namespace y8

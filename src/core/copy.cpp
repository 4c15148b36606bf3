// SPDX-License-Identifier: BSD-3-Clause
// Copy: a byte copy of len elements, without overlap guarantee.
#include "checks.h"
#include "chunked.h"
#include "memory_kernels.h"
#include "qsp_validators.h"

namespace y8 {
namespace {

template <class T>
QspStatus copy(const T* pSrc, T* pDst, int len)
{
    if (QspStatus s = check::vectors(len, pSrc, pDst)) return s;
    ownsCopy_8u_L(reinterpret_cast<const Qsp8u*>(pSrc), reinterpret_cast<Qsp8u*>(pDst),
                  Qsp64s(len) * Qsp64s(sizeof(T)));
    return qspStsOk;
}

}  // namespace

QspStatus qspsCopy_8u(const Qsp8u* pSrc, Qsp8u* pDst, int len) { return copy(pSrc, pDst, len); }
QspStatus qspsCopy_16s(const Qsp16s* pSrc, Qsp16s* pDst, int len) { return copy(pSrc, pDst, len); }
QspStatus qspsCopy_16sc(const Qsp16sc* pSrc, Qsp16sc* pDst, int len) { return copy(pSrc, pDst, len); }
QspStatus qspsCopy_32s(const Qsp32s* pSrc, Qsp32s* pDst, int len) { return copy(pSrc, pDst, len); }
QspStatus qspsCopy_32sc(const Qsp32sc* pSrc, Qsp32sc* pDst, int len) { return copy(pSrc, pDst, len); }
QspStatus qspsCopy_32f(const Qsp32f* pSrc, Qsp32f* pDst, int len) { return copy(pSrc, pDst, len); }
QspStatus qspsCopy_32fc(const Qsp32fc* pSrc, Qsp32fc* pDst, int len) { return copy(pSrc, pDst, len); }
QspStatus qspsCopy_64s(const Qsp64s* pSrc, Qsp64s* pDst, int len) { return copy(pSrc, pDst, len); }
QspStatus qspsCopy_64sc(const Qsp64sc* pSrc, Qsp64sc* pDst, int len) { return copy(pSrc, pDst, len); }
QspStatus qspsCopy_64f(const Qsp64f* pSrc, Qsp64f* pDst, int len) { return copy(pSrc, pDst, len); }
QspStatus qspsCopy_64fc(const Qsp64fc* pSrc, Qsp64fc* pDst, int len) { return copy(pSrc, pDst, len); }

QspStatus qspsCopy_32f_L(const Qsp32f* pSrc, Qsp32f* pDst, Qsp64s len)
{
    return chunked<Qsp32f>(len, [=](Qsp64s at, int n) { return qspsCopy_32f(pSrc + at, pDst + at, n); });
}
QspStatus qspsCopy_32fc_L(const Qsp32fc* pSrc, Qsp32fc* pDst, Qsp64s len)
{
    return chunked<Qsp32fc>(len, [=](Qsp64s at, int n) { return qspsCopy_32fc(pSrc + at, pDst + at, n); });
}
QspStatus qspsCopy_64f_L(const Qsp64f* pSrc, Qsp64f* pDst, Qsp64s len)
{
    return chunked<Qsp64f>(len, [=](Qsp64s at, int n) { return qspsCopy_64f(pSrc + at, pDst + at, n); });
}
QspStatus qspsCopy_64fc_L(const Qsp64fc* pSrc, Qsp64fc* pDst, Qsp64s len)
{
    return chunked<Qsp64fc>(len, [=](Qsp64s at, int n) { return qspsCopy_64fc(pSrc + at, pDst + at, n); });
}

}  // namespace y8

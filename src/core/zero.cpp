// SPDX-License-Identifier: BSD-3-Clause
// Zero: every element set to all-zero bits, by the byte fill kernel.
#include "checks.h"
#include "chunked.h"
#include "memory_kernels.h"
#include "qsp_validators.h"

namespace y8 {
namespace {

template <class T>
QspStatus zero(T* pDst, int len)
{
    if (QspStatus s = check::vectors(len, pDst)) return s;
    ownsZero_8u(reinterpret_cast<Qsp8u*>(pDst), Qsp64s(len) * Qsp64s(sizeof(T)));
    return qspStsOk;
}

}  // namespace

QspStatus qspsZero_8u(Qsp8u* pDst, int len) { return zero(pDst, len); }
QspStatus qspsZero_16s(Qsp16s* pDst, int len) { return zero(pDst, len); }
QspStatus qspsZero_16sc(Qsp16sc* pDst, int len) { return zero(pDst, len); }
QspStatus qspsZero_32s(Qsp32s* pDst, int len) { return zero(pDst, len); }
QspStatus qspsZero_32sc(Qsp32sc* pDst, int len) { return zero(pDst, len); }
QspStatus qspsZero_32f(Qsp32f* pDst, int len) { return zero(pDst, len); }
QspStatus qspsZero_32fc(Qsp32fc* pDst, int len) { return zero(pDst, len); }
QspStatus qspsZero_64s(Qsp64s* pDst, int len) { return zero(pDst, len); }
QspStatus qspsZero_64sc(Qsp64sc* pDst, int len) { return zero(pDst, len); }
QspStatus qspsZero_64f(Qsp64f* pDst, int len) { return zero(pDst, len); }
QspStatus qspsZero_64fc(Qsp64fc* pDst, int len) { return zero(pDst, len); }

QspStatus qspsZero_32f_L(Qsp32f* pDst, Qsp64s len)
{
    return chunked<Qsp32f>(len, [=](Qsp64s at, int n) { return qspsZero_32f(pDst + at, n); });
}
QspStatus qspsZero_32fc_L(Qsp32fc* pDst, Qsp64s len)
{
    return chunked<Qsp32fc>(len, [=](Qsp64s at, int n) { return qspsZero_32fc(pDst + at, n); });
}
QspStatus qspsZero_64f_L(Qsp64f* pDst, Qsp64s len)
{
    return chunked<Qsp64f>(len, [=](Qsp64s at, int n) { return qspsZero_64f(pDst + at, n); });
}
QspStatus qspsZero_64fc_L(Qsp64fc* pDst, Qsp64s len)
{
    return chunked<Qsp64fc>(len, [=](Qsp64s at, int n) { return qspsZero_64fc(pDst + at, n); });
}

}  // namespace y8

// SPDX-License-Identifier: BSD-3-Clause
// ReplaceNAN: every NaN element (complex: every NaN part) of a vector is
// replaced by a value, in place; every other element, infinities included,
// stays as it is.
#include "checks.h"
#include "qsp_validators.h"

namespace y8 {
namespace {

template <class T>
void ownsReplaceNaN(T* p, Qsp64s count, T value)
{
    for (Qsp64s i = 0; i < count; ++i) p[i] = p[i] != p[i] ? value : p[i];
}

template <class C, class T>
QspStatus replaceNaN(C* pSrcDst, int len, T value)
{
    if (QspStatus s = check::vectors(len, pSrcDst)) return s;
    ownsReplaceNaN(reinterpret_cast<T*>(pSrcDst), Qsp64s(len) * Qsp64s(sizeof(C) / sizeof(T)), value);
    return qspStsOk;
}

}  // namespace

QspStatus qspsReplaceNAN_32f_I(Qsp32f* pSrcDst, int len, Qsp32f value) { return replaceNaN(pSrcDst, len, value); }
QspStatus qspsReplaceNAN_64f_I(Qsp64f* pSrcDst, int len, Qsp64f value) { return replaceNaN(pSrcDst, len, value); }
QspStatus qspsReplaceNAN_32fc_I(Qsp32fc* pSrcDst, int len, Qsp32f value) { return replaceNaN(pSrcDst, len, value); }
QspStatus qspsReplaceNAN_64fc_I(Qsp64fc* pSrcDst, int len, Qsp64f value) { return replaceNaN(pSrcDst, len, value); }

}  // namespace y8

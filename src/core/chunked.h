// SPDX-License-Identifier: BSD-3-Clause
// The one implementation of the chunking _L functions: a 64-bit length is
// cut into consecutive chunks that the ordinary 32-bit function can take,
// each chunk's byte count fitting in a signed 32-bit integer.
//
//   return chunked<Qsp32f>(len, [=](Qsp64s at, int n) {
//       return qspsCopy_32f(pSrc + at, pDst + at, n); });
//
// The 64-bit length is checked first (before any pointer, unlike the
// ordinary functions). A negative status stops the loop and is returned; a
// warning does not, and the status returned is the last chunk's.
#pragma once
#include "qspdefs.h"

// Elements of type T in one chunk: the largest count whose byte size fits
// in a signed 32-bit integer.
template <class T>
constexpr Qsp64s chunkElements = 0x7FFFFFFF / sizeof(T);

// The loop itself, with the chunk size as an argument so that it can be
// exercised with small chunks.
template <class Call>
QspStatus chunkedBy(Qsp64s chunk, Qsp64s len, Call call)
{
    if (len <= 0) return qspStsBadSize;
    QspStatus status = qspStsOk;
    for (Qsp64s at = 0; at < len; at += chunk) {
        const Qsp64s rest = len - at;
        status = call(at, static_cast<int>(rest < chunk ? rest : chunk));
        if (status < 0) return status;
    }
    return status;
}

template <class T, class Call>
QspStatus chunked(Qsp64s len, Call call)
{
    return chunkedBy(chunkElements<T>, len, call);
}

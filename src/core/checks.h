// SPDX-License-Identifier: BSD-3-Clause
// The argument checks shared by every validating function, in the one
// order the library uses: pointers in parameter order, then lengths, then
// mode arguments. Each returns qspStsOk or the error status, so a
// validating function reads
//     if (QspStatus s = check::vectors(len, pSrc, pDst)) return s;
#pragma once
#include "qspdefs.h"

namespace check {

// qspStsNullPtr when any pointer is null. All null pointers give the same
// status, so the order within the list cannot change the result.
template <class... P>
constexpr QspStatus pointers(const P*... p)
{
    return ((p == nullptr) || ...) ? qspStsNullPtr : qspStsOk;
}

// qspStsBadSize for a length of zero or less.
constexpr QspStatus length(Qsp64s len)
{
    return len <= 0 ? qspStsBadSize : qspStsOk;
}

// The common case: pointers first, then the one length.
template <class... P>
constexpr QspStatus vectors(Qsp64s len, const P*... p)
{
    if (QspStatus s = pointers(p...)) return s;
    return length(len);
}

// The 64-bit length forms: the length first, then the pointers.
template <class... P>
constexpr QspStatus vectorsL(Qsp64s len, const P*... p)
{
    if (QspStatus s = length(len)) return s;
    return pointers(p...);
}

}  // namespace check

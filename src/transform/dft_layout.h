// SPDX-License-Identifier: BSD-3-Clause
// Byte arithmetic of the records laid out in caller memory: every table
// starts on a 64-byte boundary, and sizes are reckoned in 64 bits before
// they are reported as int.
#pragma once
#include "qspdefs.h"

namespace dft {

inline Qsp64s roundUp64(Qsp64s x) { return (x + 63) & ~Qsp64s(63); }

template <class P>
inline P* alignUp64(P* p)
{
    return reinterpret_cast<P*>((reinterpret_cast<Qsp64u>(p) + 63) & ~Qsp64u(63));
}

// A size reported by another family as int, read back as unsigned bytes.
inline Qsp64s u32(int v) { return static_cast<Qsp64s>(static_cast<Qsp32u>(v)); }

}  // namespace dft

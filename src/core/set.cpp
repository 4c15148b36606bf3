// SPDX-License-Identifier: BSD-3-Clause
// Set: every element takes the value's exact bit pattern (-0.0 and NaN
// payloads included), written by the pattern fill kernel.
#include "checks.h"
#include "memory_kernels.h"
#include "qsp_validators.h"
#include "simd.h"

namespace y8 {
namespace {

// A register holding the value's bytes repeated 16 / sizeof(T) times.
template <class T>
__m128i splatBits(const T& val)
{
    alignas(16) Qsp8u bytes[16];
    for (unsigned at = 0; at < 16; at += sizeof(T)) __builtin_memcpy(bytes + at, &val, sizeof(T));
    return simd::Vec<Qsp8u>::load(bytes);
}

template <class T>
QspStatus set(const T& val, T* pDst, int len)
{
    if (QspStatus s = check::vectors(len, pDst)) return s;
    ownsFill_128(splatBits(val), reinterpret_cast<Qsp8u*>(pDst), Qsp64s(len) * Qsp64s(sizeof(T)));
    return qspStsOk;
}

}  // namespace

QspStatus qspsSet_8u(Qsp8u val, Qsp8u* pDst, int len) { return set(val, pDst, len); }
QspStatus qspsSet_16s(int val, Qsp16s* pDst, int len) { return set(Qsp16s(val), pDst, len); }
QspStatus qspsSet_16sc(Qsp16sc val, Qsp16sc* pDst, int len) { return set(val, pDst, len); }
QspStatus qspsSet_32s(Qsp32s val, Qsp32s* pDst, int len) { return set(val, pDst, len); }
QspStatus qspsSet_32sc(Qsp32sc val, Qsp32sc* pDst, int len) { return set(val, pDst, len); }
QspStatus qspsSet_32f(Qsp32f val, Qsp32f* pDst, int len) { return set(val, pDst, len); }
QspStatus qspsSet_32fc(Qsp32fc val, Qsp32fc* pDst, int len) { return set(val, pDst, len); }
QspStatus qspsSet_64s(Qsp64s val, Qsp64s* pDst, int len) { return set(val, pDst, len); }
QspStatus qspsSet_64sc(Qsp64sc val, Qsp64sc* pDst, int len) { return set(val, pDst, len); }
QspStatus qspsSet_64f(Qsp64f val, Qsp64f* pDst, int len) { return set(val, pDst, len); }
QspStatus qspsSet_64fc(Qsp64fc val, Qsp64fc* pDst, int len) { return set(val, pDst, len); }

}  // namespace y8

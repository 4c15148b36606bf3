// SPDX-License-Identifier: BSD-3-Clause
// Typed allocation: an element count becomes a byte count for the support
// library, within the limits of the size type.
#include "qspcore.h"
#include "qsp_validators.h"

namespace y8 {
namespace {

// Largest element count whose byte count is positive in the 32-bit size.
template <class T>
T* allocate(int len)
{
    if (len <= 0 || len > 0x7FFFFFFF / int(sizeof(T))) return nullptr;
    return static_cast<T*>(qspMalloc(len * int(sizeof(T))));
}

template <class T>
T* allocateL(Qsp64s len)
{
    if (len <= 0 || len > 0x7FFFFFFFFFFFFFFFLL / Qsp64s(sizeof(T))) return nullptr;
    return static_cast<T*>(qspMalloc_L(len * Qsp64s(sizeof(T))));
}

// The two-byte _L members pass the doubled count on without an upper
// bound; from 2^62 on it wraps. Kept so, as the published behaviour.
template <class T>
T* allocateDoubledL(Qsp64s len)
{
    static_assert(sizeof(T) == 2);
    if (len <= 0) return nullptr;
    return static_cast<T*>(qspMalloc_L(Qsp64s(Qsp64u(len) * 2u)));
}

}  // namespace

Qsp8u* qspsMalloc_8u(int len) { return allocate<Qsp8u>(len); }
Qsp8s* qspsMalloc_8s(int len) { return allocate<Qsp8s>(len); }
Qsp8sc* qspsMalloc_8sc(int len) { return allocate<Qsp8sc>(len); }
Qsp16s* qspsMalloc_16s(int len) { return allocate<Qsp16s>(len); }
Qsp16u* qspsMalloc_16u(int len) { return allocate<Qsp16u>(len); }
Qsp16sc* qspsMalloc_16sc(int len) { return allocate<Qsp16sc>(len); }
Qsp32s* qspsMalloc_32s(int len) { return allocate<Qsp32s>(len); }
Qsp32u* qspsMalloc_32u(int len) { return allocate<Qsp32u>(len); }
Qsp32sc* qspsMalloc_32sc(int len) { return allocate<Qsp32sc>(len); }
Qsp32f* qspsMalloc_32f(int len) { return allocate<Qsp32f>(len); }
Qsp32fc* qspsMalloc_32fc(int len) { return allocate<Qsp32fc>(len); }
Qsp64s* qspsMalloc_64s(int len) { return allocate<Qsp64s>(len); }
Qsp64sc* qspsMalloc_64sc(int len) { return allocate<Qsp64sc>(len); }
Qsp64f* qspsMalloc_64f(int len) { return allocate<Qsp64f>(len); }
Qsp64fc* qspsMalloc_64fc(int len) { return allocate<Qsp64fc>(len); }

Qsp8u* qspsMalloc_8u_L(Qsp64s len) { return allocateL<Qsp8u>(len); }
Qsp8s* qspsMalloc_8s_L(Qsp64s len) { return allocateL<Qsp8s>(len); }
Qsp8sc* qspsMalloc_8sc_L(Qsp64s len) { return allocateDoubledL<Qsp8sc>(len); }
Qsp16s* qspsMalloc_16s_L(Qsp64s len) { return allocateDoubledL<Qsp16s>(len); }
Qsp16u* qspsMalloc_16u_L(Qsp64s len) { return allocateDoubledL<Qsp16u>(len); }
Qsp16sc* qspsMalloc_16sc_L(Qsp64s len) { return allocateL<Qsp16sc>(len); }
Qsp32s* qspsMalloc_32s_L(Qsp64s len) { return allocateL<Qsp32s>(len); }
Qsp32u* qspsMalloc_32u_L(Qsp64s len) { return allocateL<Qsp32u>(len); }
Qsp32sc* qspsMalloc_32sc_L(Qsp64s len) { return allocateL<Qsp32sc>(len); }
Qsp32f* qspsMalloc_32f_L(Qsp64s len) { return allocateL<Qsp32f>(len); }
Qsp32fc* qspsMalloc_32fc_L(Qsp64s len) { return allocateL<Qsp32fc>(len); }
Qsp64s* qspsMalloc_64s_L(Qsp64s len) { return allocateL<Qsp64s>(len); }
Qsp64sc* qspsMalloc_64sc_L(Qsp64s len) { return allocateL<Qsp64sc>(len); }
Qsp64f* qspsMalloc_64f_L(Qsp64s len) { return allocateL<Qsp64f>(len); }
Qsp64fc* qspsMalloc_64fc_L(Qsp64s len) { return allocateL<Qsp64fc>(len); }

void qspsFree(void* ptr) { qspFree(ptr); }

}  // namespace y8

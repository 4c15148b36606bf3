// SPDX-License-Identifier: BSD-3-Clause
// SampleUp: upsampling by an integer factor. Every source element becomes a
// group of `factor` destination elements, the source element at position
// *pPhase of the group and zeros elsewhere. The phase stays as it is, which
// is what the next block of the same stream needs.
#include "checks.h"
#include "memory_kernels.h"
#include "qsp_validators.h"
#include "rate_args.h"
#include "simd.h"

namespace y8 {
namespace {

// Groups are written from the last to the first: group i covers elements
// i*factor .. i*factor + factor - 1, at or after i, so a source that shares
// the destination's start is read before it is overwritten.
template <class T>
void ownsSampleUp(const T* pSrc, T* pDst, int len, int factor, int phase)
{
    using B = simd::Bits<T>;
    const B* src = reinterpret_cast<const B*>(pSrc);
    B* dst = reinterpret_cast<B*>(pDst);
    const B zero{};
    // Long runs of zeros go to the fill kernel; short ones are stored here.
    constexpr int kFillFrom = 16;
    for (Qsp64s i = len - 1; i >= 0; --i) {
        const B x = simd::loadOne(src + i);
        B* group = dst + i * factor;
        const int after = factor - 1 - phase;
        if (after >= kFillFrom) {
            ownsZero_8u(reinterpret_cast<Qsp8u*>(group + phase + 1), Qsp64s(after) * Qsp64s(sizeof(B)));
        } else {
            for (int j = phase + 1; j < factor; ++j) simd::storeOne(group + j, zero);
        }
        simd::storeOne(group + phase, x);
        if (phase >= kFillFrom) {
            ownsZero_8u(reinterpret_cast<Qsp8u*>(group), Qsp64s(phase) * Qsp64s(sizeof(B)));
        } else {
            for (int j = 0; j < phase; ++j) simd::storeOne(group + j, zero);
        }
    }
}

template <class T, class Copy>
QspStatus sampleUp(const T* pSrc, T* pDst, int len, int* pDstLen, int factor, int* pPhase, Copy copy)
{
    if (QspStatus s = check::vectors(len, pSrc, pDst, pDstLen, pPhase)) return s;
    if (QspStatus s = rate::factorAndPhase(factor, *pPhase)) return s;
    const Qsp64s outLen = Qsp64s(len) * factor;
    if (outLen > 0x7FFFFFFF) return qspStsOverflow;
    if (factor == 1) {
        if (QspStatus s = copy(pSrc, pDst, len)) return s;
    } else {
        ownsSampleUp(pSrc, pDst, len, factor, *pPhase);
    }
    *pDstLen = int(outLen);
    return qspStsOk;
}

}  // namespace

QspStatus qspsSampleUp_16s(const Qsp16s* pSrc, Qsp16s* pDst, int len, int* pDstLen, int factor, int* pPhase)
{
    return sampleUp(pSrc, pDst, len, pDstLen, factor, pPhase, qspsCopy_16s);
}
QspStatus qspsSampleUp_16sc(const Qsp16sc* pSrc, Qsp16sc* pDst, int len, int* pDstLen, int factor, int* pPhase)
{
    return sampleUp(pSrc, pDst, len, pDstLen, factor, pPhase, qspsCopy_16sc);
}
QspStatus qspsSampleUp_32s(const Qsp32s* pSrc, Qsp32s* pDst, int len, int* pDstLen, int factor, int* pPhase)
{
    return sampleUp(pSrc, pDst, len, pDstLen, factor, pPhase, qspsCopy_32s);
}
QspStatus qspsSampleUp_32sc(const Qsp32sc* pSrc, Qsp32sc* pDst, int len, int* pDstLen, int factor, int* pPhase)
{
    return sampleUp(pSrc, pDst, len, pDstLen, factor, pPhase, qspsCopy_32sc);
}
QspStatus qspsSampleUp_32f(const Qsp32f* pSrc, Qsp32f* pDst, int len, int* pDstLen, int factor, int* pPhase)
{
    return sampleUp(pSrc, pDst, len, pDstLen, factor, pPhase, qspsCopy_32f);
}
QspStatus qspsSampleUp_32fc(const Qsp32fc* pSrc, Qsp32fc* pDst, int len, int* pDstLen, int factor, int* pPhase)
{
    return sampleUp(pSrc, pDst, len, pDstLen, factor, pPhase, qspsCopy_32fc);
}
QspStatus qspsSampleUp_64f(const Qsp64f* pSrc, Qsp64f* pDst, int len, int* pDstLen, int factor, int* pPhase)
{
    return sampleUp(pSrc, pDst, len, pDstLen, factor, pPhase, qspsCopy_64f);
}
QspStatus qspsSampleUp_64fc(const Qsp64fc* pSrc, Qsp64fc* pDst, int len, int* pDstLen, int factor, int* pPhase)
{
    return sampleUp(pSrc, pDst, len, pDstLen, factor, pPhase, qspsCopy_64fc);
}

}  // namespace y8

// SPDX-License-Identifier: BSD-3-Clause
// SampleDown: downsampling by an integer factor. The source elements at
// positions *pPhase, *pPhase + factor, ... are kept; *pPhase then becomes
// the position in the next block at which the stream continues, so that
// consecutive blocks give the same elements as one long block.
#include "checks.h"
#include "qsp_validators.h"
#include "rate_args.h"
#include "simd.h"

namespace y8 {
namespace {

// Destination element k comes from source element phase + k*factor, at or
// after k, so the destination may share the source's start.
template <class T>
void ownsSampleDown(const T* pSrc, T* pDst, int count, int factor, int phase)
{
    using B = simd::Bits<T>;
    const B* src = reinterpret_cast<const B*>(pSrc) + phase;
    B* dst = reinterpret_cast<B*>(pDst);
    for (Qsp64s k = 0; k < count; ++k) simd::storeOne(dst + k, simd::loadOne(src + k * factor));
}

template <class T, class Copy>
QspStatus sampleDown(const T* pSrc, T* pDst, int len, int* pDstLen, int factor, int* pPhase, Copy copy)
{
    if (QspStatus s = check::vectors(len, pSrc, pDst, pDstLen, pPhase)) return s;
    const int phase = *pPhase;
    if (QspStatus s = rate::factorAndPhase(factor, phase)) return s;
    // Elements kept: those at phase + k*factor below len.
    const int count = phase < len ? (len - phase - 1) / factor + 1 : 0;
    if (factor == 1) {
        if (QspStatus s = copy(pSrc, pDst, len)) return s;
    } else if (count > 0) {
        ownsSampleDown(pSrc, pDst, count, factor, phase);
    }
    *pDstLen = count;
    *pPhase = int(Qsp64s(phase) + Qsp64s(count) * factor - len);
    return qspStsOk;
}

}  // namespace

QspStatus qspsSampleDown_16s(const Qsp16s* pSrc, Qsp16s* pDst, int len, int* pDstLen, int factor, int* pPhase)
{
    return sampleDown(pSrc, pDst, len, pDstLen, factor, pPhase, qspsCopy_16s);
}
QspStatus qspsSampleDown_16sc(const Qsp16sc* pSrc, Qsp16sc* pDst, int len, int* pDstLen, int factor, int* pPhase)
{
    return sampleDown(pSrc, pDst, len, pDstLen, factor, pPhase, qspsCopy_16sc);
}
QspStatus qspsSampleDown_32s(const Qsp32s* pSrc, Qsp32s* pDst, int len, int* pDstLen, int factor, int* pPhase)
{
    return sampleDown(pSrc, pDst, len, pDstLen, factor, pPhase, qspsCopy_32s);
}
QspStatus qspsSampleDown_32sc(const Qsp32sc* pSrc, Qsp32sc* pDst, int len, int* pDstLen, int factor, int* pPhase)
{
    return sampleDown(pSrc, pDst, len, pDstLen, factor, pPhase, qspsCopy_32sc);
}
QspStatus qspsSampleDown_32f(const Qsp32f* pSrc, Qsp32f* pDst, int len, int* pDstLen, int factor, int* pPhase)
{
    return sampleDown(pSrc, pDst, len, pDstLen, factor, pPhase, qspsCopy_32f);
}
QspStatus qspsSampleDown_32fc(const Qsp32fc* pSrc, Qsp32fc* pDst, int len, int* pDstLen, int factor, int* pPhase)
{
    return sampleDown(pSrc, pDst, len, pDstLen, factor, pPhase, qspsCopy_32fc);
}
QspStatus qspsSampleDown_64f(const Qsp64f* pSrc, Qsp64f* pDst, int len, int* pDstLen, int factor, int* pPhase)
{
    return sampleDown(pSrc, pDst, len, pDstLen, factor, pPhase, qspsCopy_64f);
}
QspStatus qspsSampleDown_64fc(const Qsp64fc* pSrc, Qsp64fc* pDst, int len, int* pDstLen, int factor, int* pPhase)
{
    return sampleDown(pSrc, pDst, len, pDstLen, factor, pPhase, qspsCopy_64fc);
}

}  // namespace y8

// SPDX-License-Identifier: BSD-3-Clause
// DFTGetSize: the record, Init-buffer and work-buffer bytes of a DFT of any
// length, from the same layout that Init builds.
#include "dft_record.h"
#include "qsp_validators.h"

namespace y8 {
namespace {

// The size pointers, the length, the flag, then the limits of the method
// (as Init checks them, except that the chirp's sizes must fit in an int).
template <class T>
QspStatus getSize(dft::Kind kind, int len, int flag, int hint, int* pSpecSize, int* pSpecBufferSize,
                  int* pBufferSize)
{
    if (pSpecSize == nullptr || pSpecBufferSize == nullptr || pBufferSize == nullptr) return qspStsNullPtr;
    if (len < 1) return qspStsBadSize;
    if (!dft::validFlag(flag)) return qspStsBadFftFlag;
    Qsp64s spec = 0, init = 0, work = 0;
    if (len > 16 && dft::isPowerOfTwo(len)) {
        if (QspStatus s = dft::fftSizes(kind, dft::log2Of(len), flag, hint, spec, init, work)) return s;
        spec += 64 + dft::kHeaderBytes;
    } else {
        dft::Layout l;
        if (QspStatus s = dft::recordLayout<T>(kind, len, true, l)) return s;
        spec = l.spec;
        init = l.init;
        work = l.work;
    }
    if (spec > 0x7FFFFFFF || init > 0x7FFFFFFF || work > 0x7FFFFFFF) return qspStsBadSize;
    *pSpecSize = static_cast<int>(spec);
    *pSpecBufferSize = static_cast<int>(init);
    *pBufferSize = static_cast<int>(work);
    return qspStsOk;
}

}  // namespace

QspStatus qspsDFTGetSize_C_16fc(int len, int flag, QspHintAlgorithm hint, int* pSpecSize, int* pSpecBufferSize,
                                int* pBufferSize)
{
    return getSize<float>(dft::kC16fc, len, flag, hint, pSpecSize, pSpecBufferSize, pBufferSize);
}

QspStatus qspsDFTGetSize_C_32fc(int len, int flag, QspHintAlgorithm hint, int* pSpecSize, int* pSpecBufferSize,
                                int* pBufferSize)
{
    return getSize<float>(dft::kC32fc, len, flag, hint, pSpecSize, pSpecBufferSize, pBufferSize);
}

QspStatus qspsDFTGetSize_C_32f(int len, int flag, QspHintAlgorithm hint, int* pSpecSize, int* pSpecBufferSize,
                               int* pBufferSize)
{
    return getSize<float>(dft::kC32f, len, flag, hint, pSpecSize, pSpecBufferSize, pBufferSize);
}

QspStatus qspsDFTGetSize_R_32f(int len, int flag, QspHintAlgorithm hint, int* pSpecSize, int* pSpecBufferSize,
                               int* pBufferSize)
{
    return getSize<float>(dft::kR32f, len, flag, hint, pSpecSize, pSpecBufferSize, pBufferSize);
}

QspStatus qspsDFTGetSize_C_64fc(int len, int flag, QspHintAlgorithm hint, int* pSpecSize, int* pSpecBufferSize,
                                int* pBufferSize)
{
    return getSize<double>(dft::kC64fc, len, flag, hint, pSpecSize, pSpecBufferSize, pBufferSize);
}

QspStatus qspsDFTGetSize_C_64f(int len, int flag, QspHintAlgorithm hint, int* pSpecSize, int* pSpecBufferSize,
                               int* pBufferSize)
{
    return getSize<double>(dft::kC64f, len, flag, hint, pSpecSize, pSpecBufferSize, pBufferSize);
}

QspStatus qspsDFTGetSize_R_64f(int len, int flag, QspHintAlgorithm hint, int* pSpecSize, int* pSpecBufferSize,
                               int* pBufferSize)
{
    return getSize<double>(dft::kR64f, len, flag, hint, pSpecSize, pSpecBufferSize, pBufferSize);
}

}  // namespace y8

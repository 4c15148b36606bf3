// SPDX-License-Identifier: BSD-3-Clause
// FFTGetSize: the byte sizes of the record block, the Init buffer and the
// work buffer of every power-of-two FFT kind.
#include "fft_record.h"
#include "qsp_validators.h"

namespace y8 {
namespace {

// The checks after the pointers: the flag, the kind's maximum order, then
// sizes that must fit in an int; the sizes themselves are formed in 64
// bits. Nothing is written on any error.
QspStatus getSizeChecked(fft::Kind kind, int order, int flag, int* pSpecSize, int* pSpecBufferSize, int* pBufferSize)
{
    if (!fft::validFlag(flag)) return qspStsBadFftFlag;
    if (static_cast<unsigned>(order) > static_cast<unsigned>(fft::maxOrder(kind))) return qspStsBadFftOrder;
    const fft::Sizes s = fft::kindSizes(kind, order);
    if (!fft::sizesFit(s)) return qspStsOverflow;
    *pSpecSize = static_cast<int>(s.spec);
    *pSpecBufferSize = static_cast<int>(s.init);
    *pBufferSize = static_cast<int>(s.work);
    return qspStsOk;
}

QspStatus getSize(fft::Kind kind, int order, int flag, int* pSpecSize, int* pSpecBufferSize, int* pBufferSize)
{
    if (order >= 31) return qspStsBadFftOrder;
    if (pSpecSize == nullptr || pSpecBufferSize == nullptr || pBufferSize == nullptr) return qspStsNullPtr;
    return getSizeChecked(kind, order, flag, pSpecSize, pSpecBufferSize, pBufferSize);
}

}  // namespace

QspStatus qspsFFTGetSize_C_32fc(int order, int flag, QspHintAlgorithm, int* pSpecSize, int* pSpecBufferSize,
                                int* pBufferSize)
{
    return getSize(fft::kC32fc, order, flag, pSpecSize, pSpecBufferSize, pBufferSize);
}

QspStatus qspsFFTGetSize_C_32f(int order, int flag, QspHintAlgorithm, int* pSpecSize, int* pSpecBufferSize,
                               int* pBufferSize)
{
    return getSize(fft::kC32f, order, flag, pSpecSize, pSpecBufferSize, pBufferSize);
}

QspStatus qspsFFTGetSize_R_32f(int order, int flag, QspHintAlgorithm, int* pSpecSize, int* pSpecBufferSize,
                               int* pBufferSize)
{
    return getSize(fft::kR32f, order, flag, pSpecSize, pSpecBufferSize, pBufferSize);
}

QspStatus qspsFFTGetSize_C_64fc(int order, int flag, QspHintAlgorithm, int* pSpecSize, int* pSpecBufferSize,
                                int* pBufferSize)
{
    return getSize(fft::kC64fc, order, flag, pSpecSize, pSpecBufferSize, pBufferSize);
}

QspStatus qspsFFTGetSize_C_64f(int order, int flag, QspHintAlgorithm, int* pSpecSize, int* pSpecBufferSize,
                               int* pBufferSize)
{
    return getSize(fft::kC64f, order, flag, pSpecSize, pSpecBufferSize, pBufferSize);
}

QspStatus qspsFFTGetSize_R_64f(int order, int flag, QspHintAlgorithm, int* pSpecSize, int* pSpecBufferSize,
                               int* pBufferSize)
{
    return getSize(fft::kR64f, order, flag, pSpecSize, pSpecBufferSize, pBufferSize);
}

// Half precision: the pointers first, then orders above 30; then the
// single-precision checks and sizes, with room for a 32-bit copy of the
// data in the work buffer and 20 more bytes of record. At order 28 that
// copy alone is 2^31 bytes: qspStsOverflow.
QspStatus qspsFFTGetSize_C_16fc(int order, int flag, QspHintAlgorithm, int* pSpecSize, int* pSpecBufferSize,
                                int* pBufferSize)
{
    if (pSpecSize == nullptr || pSpecBufferSize == nullptr || pBufferSize == nullptr) return qspStsNullPtr;
    if (static_cast<unsigned>(order) > 30u) return qspStsBadFftOrder;
    return getSizeChecked(fft::kC16fc, order, flag, pSpecSize, pSpecBufferSize, pBufferSize);
}

}  // namespace y8

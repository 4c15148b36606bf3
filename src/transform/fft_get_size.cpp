// SPDX-License-Identifier: BSD-3-Clause
// FFTGetSize: the byte sizes of the record block, the Init buffer and the
// work buffer of every power-of-two FFT kind.
#include "fft_record.h"
#include "qsp_validators.h"

namespace y8 {
namespace {

// Sizes are formed in 64-bit arithmetic and stored as int; above the range
// of int (complex single precision at order 28) they wrap as 32-bit
// arithmetic would.
QspStatus getSize(fft::Kind kind, int order, int flag, int* pSpecSize, int* pSpecBufferSize, int* pBufferSize)
{
    if (order >= 31) return qspStsBadFftOrder;
    if (pSpecSize == nullptr || pSpecBufferSize == nullptr || pBufferSize == nullptr) return qspStsNullPtr;
    if (!fft::validFlag(flag)) return qspStsBadFftFlag;
    if (static_cast<unsigned>(order) > static_cast<unsigned>(fft::maxOrder(kind))) return qspStsBadFftOrder;
    const fft::Sizes s = fft::kindSizes(kind, order);
    *pSpecSize = static_cast<int>(static_cast<Qsp32u>(s.spec));
    *pSpecBufferSize = static_cast<int>(static_cast<Qsp32u>(s.init));
    *pBufferSize = static_cast<int>(static_cast<Qsp32u>(s.work));
    return qspStsOk;
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
// single-precision sizes, with room for a 32-bit copy of the data in the
// work buffer and 20 more bytes of record.
QspStatus qspsFFTGetSize_C_16fc(int order, int flag, QspHintAlgorithm hint, int* pSpecSize, int* pSpecBufferSize,
                                int* pBufferSize)
{
    if (pSpecSize == nullptr || pSpecBufferSize == nullptr || pBufferSize == nullptr) return qspStsNullPtr;
    if (static_cast<unsigned>(order) > 30u) return qspStsBadFftOrder;
    if (QspStatus s = qspsFFTGetSize_C_32fc(order, flag, hint, pSpecSize, pSpecBufferSize, pBufferSize)) return s;
    const Qsp64s n = Qsp64s(1) << order;
    *pBufferSize = static_cast<int>(static_cast<Qsp32u>(Qsp64s(*pBufferSize) + 8 * n));
    *pSpecSize += 20;
    return qspStsOk;
}

}  // namespace y8

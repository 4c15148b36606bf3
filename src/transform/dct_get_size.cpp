// SPDX-License-Identifier: BSD-3-Clause
// DCTGetSize: the record, Init-buffer and work-buffer bytes of a DCT; the
// inverse transform's sizes are the forward one's.
#include "dct_record.h"

namespace y8 {
namespace {

// The length, the size pointers, then the limit of the method.
template <class T>
QspStatus getSize(int len, int* pSpecSize, int* pSpecBufferSize, int* pBufferSize)
{
    if (len < 1) return qspStsBadSize;
    if (pSpecSize == nullptr || pSpecBufferSize == nullptr || pBufferSize == nullptr) return qspStsNullPtr;
    const dct::Method m = dct::methodOf<T>(len);
    if (m == dct::kConv && len > dct::Bounds<T>::convSizeLimit) return qspStsBadSize;
    if (m == dct::kFft && len > dct::Bounds<T>::fftLimit) return qspStsBadSize;
    dct::Layout l;
    if (QspStatus s = dct::layoutOf<T>(len, l)) return s;
    if (l.spec > 0x7FFFFFFF || l.init > 0x7FFFFFFF || l.work > 0x7FFFFFFF) return qspStsBadSize;
    *pSpecSize = static_cast<int>(l.spec);
    *pSpecBufferSize = static_cast<int>(l.init);
    *pBufferSize = static_cast<int>(l.work);
    return qspStsOk;
}

}  // namespace

QspStatus qspsDCTFwdGetSize_32f(int len, QspHintAlgorithm, int* pSpecSize, int* pSpecBufferSize, int* pBufferSize)
{
    return getSize<float>(len, pSpecSize, pSpecBufferSize, pBufferSize);
}

QspStatus qspsDCTInvGetSize_32f(int len, QspHintAlgorithm hint, int* pSpecSize, int* pSpecBufferSize, int* pBufferSize)
{
    return qspsDCTFwdGetSize_32f(len, hint, pSpecSize, pSpecBufferSize, pBufferSize);
}

QspStatus qspsDCTFwdGetSize_64f(int len, QspHintAlgorithm, int* pSpecSize, int* pSpecBufferSize, int* pBufferSize)
{
    return getSize<double>(len, pSpecSize, pSpecBufferSize, pBufferSize);
}

QspStatus qspsDCTInvGetSize_64f(int len, QspHintAlgorithm hint, int* pSpecSize, int* pSpecBufferSize, int* pBufferSize)
{
    return qspsDCTFwdGetSize_64f(len, hint, pSpecSize, pSpecBufferSize, pBufferSize);
}

}  // namespace y8

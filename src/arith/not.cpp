// SPDX-License-Identifier: BSD-3-Clause
// Not: bitwise complement of every element.
#include "forms.h"

namespace y8 {
namespace {

template <class T>
struct BitNot {
    using V = simd::Vec<T>;
    typename V::Reg reg(typename V::Reg a) const { return _mm_xor_si128(a, _mm_set1_epi32(-1)); }
    T one(T a) const { return T(~a); }
};

}  // namespace

QspStatus qspsNot_8u(const Qsp8u* pSrc, Qsp8u* pDst, int len) { return forms::v(pSrc, pDst, len, BitNot<Qsp8u>{}); }
QspStatus qspsNot_8u_I(Qsp8u* pSrcDst, int len) { return forms::v(pSrcDst, pSrcDst, len, BitNot<Qsp8u>{}); }
QspStatus qspsNot_16u(const Qsp16u* pSrc, Qsp16u* pDst, int len) { return forms::v(pSrc, pDst, len, BitNot<Qsp16u>{}); }
QspStatus qspsNot_16u_I(Qsp16u* pSrcDst, int len) { return forms::v(pSrcDst, pSrcDst, len, BitNot<Qsp16u>{}); }
QspStatus qspsNot_32u(const Qsp32u* pSrc, Qsp32u* pDst, int len) { return forms::v(pSrc, pDst, len, BitNot<Qsp32u>{}); }
QspStatus qspsNot_32u_I(Qsp32u* pSrcDst, int len) { return forms::v(pSrcDst, pSrcDst, len, BitNot<Qsp32u>{}); }

}  // namespace y8

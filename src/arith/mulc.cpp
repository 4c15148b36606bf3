// MulC: every element multiplied by one constant.
#include "checks.h"
#include "qsp_validators.h"
#include "simd.h"

namespace y8 {
namespace {

template <class T>
void ownsMulC(const T* pSrc, T val, T* pDst, Qsp64s len)
{
    using V = simd::Vec<T>;
    constexpr Qsp64s L = V::lanes;
    const auto c = V::splat(val);
    Qsp64s i = 0;
    for (; i + 4 * L <= len; i += 4 * L) {
        const auto a = V::loadu(pSrc + i), b = V::loadu(pSrc + i + L);
        const auto d = V::loadu(pSrc + i + 2 * L), e = V::loadu(pSrc + i + 3 * L);
        V::storeu(pDst + i, V::mul(a, c));
        V::storeu(pDst + i + L, V::mul(b, c));
        V::storeu(pDst + i + 2 * L, V::mul(d, c));
        V::storeu(pDst + i + 3 * L, V::mul(e, c));
    }
    for (; i + L <= len; i += L) V::storeu(pDst + i, V::mul(V::loadu(pSrc + i), c));
    for (; i < len; ++i) pDst[i] = pSrc[i] * val;
}

}  // namespace

QspStatus qspsMulC_32f_I(Qsp32f val, Qsp32f* pSrcDst, int len)
{
    if (QspStatus s = check::vectors(len, pSrcDst)) return s;
    ownsMulC(pSrcDst, val, pSrcDst, len);
    return qspStsOk;
}

}  // namespace y8

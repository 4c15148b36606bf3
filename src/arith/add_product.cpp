// SPDX-License-Identifier: BSD-3-Clause
// AddProduct: pSrcDst[i] += pSrc1[i] * pSrc2[i]. Floating: the product
// rounded, then the sum (complex: the complex product, then the sums).
// Integer: the old value plus the exact product, scaled, rounded to
// nearest even and saturated.
#include "forms.h"

namespace y8 {
namespace {

template <class T, class Mul>
void ownsAddProduct(const T* pSrc1, const T* pSrc2, T* pSrcDst, Qsp64s len, Mul mul)
{
    using V = simd::Vec<T>;
    constexpr Qsp64s L = V::lanes;
    Qsp64s i = 0;
    for (; i + 2 * L <= len; i += 2 * L) {
        const auto p0 = mul.reg(V::loadu(pSrc1 + i), V::loadu(pSrc2 + i));
        const auto p1 = mul.reg(V::loadu(pSrc1 + i + L), V::loadu(pSrc2 + i + L));
        V::storeu(pSrcDst + i, V::add(V::loadu(pSrcDst + i), p0));
        V::storeu(pSrcDst + i + L, V::add(V::loadu(pSrcDst + i + L), p1));
    }
    for (; i + L <= len; i += L)
        V::storeu(pSrcDst + i, V::add(V::loadu(pSrcDst + i), mul.reg(V::loadu(pSrc1 + i), V::loadu(pSrc2 + i))));
    for (; i < len; ++i) pSrcDst[i] = ops::Add{}.one(pSrcDst[i], mul.one(pSrc1[i], pSrc2[i]));
}

template <class T>
QspStatus addProduct(const T* pSrc1, const T* pSrc2, T* pSrcDst, int len)
{
    if (QspStatus s = check::vectors(len, pSrc1, pSrc2, pSrcDst)) return s;
    if constexpr (ops::isComplex<T>) ownsAddProduct(pSrc1, pSrc2, pSrcDst, len, ops::CMul{});
    else ownsAddProduct(pSrc1, pSrc2, pSrcDst, len, ops::Mul{});
    return qspStsOk;
}

// d + a * b for integers, the exact result.
struct MulAdd {
    using R = simd::Vec<Qsp32s>::Reg;
    R reg(R a, R b, R d) const { return simd::Vec<Qsp32s>::add(d, simd::Vec<Qsp32s>::mullo(a, b)); }
    template <class W>
    W one(W a, W b, W d) const { return d + a * b; }
    template <class A, class B, class D>
    static constexpr ops::Range range()
    {
        constexpr ops::Range p = ops::Mul::range<A, B>();
        return {p.lo + ops::lowest<D>, p.hi + ops::highest<D>};
    }
};

template <class S, class D>
QspStatus addProductScaled(const S* pSrc1, const S* pSrc2, D* pSrcDst, int len, int scaleFactor)
{
    if (QspStatus s = check::vectors(len, pSrc1, pSrc2, pSrcDst)) return s;
    constexpr ops::Range R = MulAdd::range<S, S, D>();
    return forms::scaled<R>(scaleFactor, pSrcDst, len, [&](auto mode) {
        forms::runScaled<R>(pSrcDst, len, MulAdd{}, mode, pSrc1, pSrc2, static_cast<const D*>(pSrcDst));
        return qspStsOk;
    });
}

}  // namespace

QspStatus qspsAddProduct_32f(const Qsp32f* pSrc1, const Qsp32f* pSrc2, Qsp32f* pSrcDst, int len)
{
    return addProduct(pSrc1, pSrc2, pSrcDst, len);
}
QspStatus qspsAddProduct_64f(const Qsp64f* pSrc1, const Qsp64f* pSrc2, Qsp64f* pSrcDst, int len)
{
    return addProduct(pSrc1, pSrc2, pSrcDst, len);
}
QspStatus qspsAddProduct_32fc(const Qsp32fc* pSrc1, const Qsp32fc* pSrc2, Qsp32fc* pSrcDst, int len)
{
    return addProduct(pSrc1, pSrc2, pSrcDst, len);
}
QspStatus qspsAddProduct_64fc(const Qsp64fc* pSrc1, const Qsp64fc* pSrc2, Qsp64fc* pSrcDst, int len)
{
    return addProduct(pSrc1, pSrc2, pSrcDst, len);
}
QspStatus qspsAddProduct_16s_Sfs(const Qsp16s* pSrc1, const Qsp16s* pSrc2, Qsp16s* pSrcDst, int len, int scaleFactor)
{
    return addProductScaled(pSrc1, pSrc2, pSrcDst, len, scaleFactor);
}
QspStatus qspsAddProduct_32s_Sfs(const Qsp32s* pSrc1, const Qsp32s* pSrc2, Qsp32s* pSrcDst, int len, int scaleFactor)
{
    return addProductScaled(pSrc1, pSrc2, pSrcDst, len, scaleFactor);
}
QspStatus qspsAddProduct_16s32s_Sfs(const Qsp16s* pSrc1, const Qsp16s* pSrc2, Qsp32s* pSrcDst, int len, int scaleFactor)
{
    return addProductScaled(pSrc1, pSrc2, pSrcDst, len, scaleFactor);
}

}  // namespace y8

// SPDX-License-Identifier: BSD-3-Clause
// The validating functions of the element-wise forms, written once: checks
// in the library's order (pointers in parameter order, then the length,
// then mode arguments), the kernel chosen once, then the run. A family's
// exported rows are one-line calls of these with its operation object.
#pragma once
#include "checks.h"
#include "chunked.h"
#include "elementwise.h"
#include "ops.h"
#include "qsp_validators.h"
#include "scaling.h"

namespace forms {

// A complex vector seen as its interleaved parts, and the doubled length
// of that view (computed in unsigned arithmetic: a length above 2^30
// wraps to a negative one, which the callee reports).
template <class C>
auto parts(C* p)
{
    using P = ops::Part<std::remove_const_t<C>>;
    if constexpr (std::is_const_v<C>) return reinterpret_cast<const P*>(p);
    else return reinterpret_cast<P*>(p);
}
constexpr int twice(int len) { return int(unsigned(len) * 2u); }

// ---------------------------------------------------------------------------
// Floating (real or complex) vectors of one element type.

template <class T, class Op>
QspStatus vv(const T* pSrc1, const T* pSrc2, T* pDst, int len, Op op)
{
    if (QspStatus s = check::vectors(len, pSrc1, pSrc2, pDst)) return s;
    elementwise::map2(pSrc1, pSrc2, pDst, len, op);
    return qspStsOk;
}

template <class T, class Op>
QspStatus v(const T* pSrc, T* pDst, int len, Op op)
{
    if (QspStatus s = check::vectors(len, pSrc, pDst)) return s;
    elementwise::map1(pSrc, pDst, len, op);
    return qspStsOk;
}

// ---------------------------------------------------------------------------
// _L forms: the ordinary function over chunks.

template <class T, class U, class F>
QspStatus chunks(F fn, const T* pSrc, U* pDst, Qsp64s len)
{
    return chunked<T>(len, [=](Qsp64s at, int n) { return fn(pSrc + at, pDst + at, n); });
}
template <class T, class U, class F>
QspStatus chunks(F fn, const T* pSrc1, const T* pSrc2, U* pDst, Qsp64s len)
{
    return chunked<T>(len, [=](Qsp64s at, int n) { return fn(pSrc1 + at, pSrc2 + at, pDst + at, n); });
}
template <class T, class F>
QspStatus chunksI(F fn, T* pSrcDst, Qsp64s len)
{
    return chunked<T>(len, [=](Qsp64s at, int n) { return fn(pSrcDst + at, n); });
}
// Constant forms: fn(pSrc, val, pDst, n) and fn(val, pSrcDst, n).
template <class T, class F>
QspStatus chunksC(F fn, const T* pSrc, T val, T* pDst, Qsp64s len)
{
    return chunked<T>(len, [=](Qsp64s at, int n) { return fn(pSrc + at, val, pDst + at, n); });
}
template <class T, class F>
QspStatus chunksCI(F fn, T val, T* pSrcDst, Qsp64s len)
{
    return chunked<T>(len, [=](Qsp64s at, int n) { return fn(val, pSrcDst + at, n); });
}

// ---------------------------------------------------------------------------
// Integer results under the scale-factor rule.

// The zero fill of the destination's element width.
inline QspStatus zeroFill(Qsp8u* p, int n) { return y8::qspsZero_8u(p, n); }
inline QspStatus zeroFill(Qsp8s* p, int n) { return y8::qspsZero_8u(reinterpret_cast<Qsp8u*>(p), n); }
inline QspStatus zeroFill(Qsp16s* p, int n) { return y8::qspsZero_16s(p, n); }
inline QspStatus zeroFill(Qsp16u* p, int n) { return y8::qspsZero_16s(reinterpret_cast<Qsp16s*>(p), n); }
inline QspStatus zeroFill(Qsp32s* p, int n) { return y8::qspsZero_32s(p, n); }
inline QspStatus zeroFill(Qsp32u* p, int n) { return y8::qspsZero_32s(reinterpret_cast<Qsp32s*>(p), n); }
inline QspStatus zeroFill(Qsp16sc* p, int n) { return y8::qspsZero_16sc(p, n); }
inline QspStatus zeroFill(Qsp32sc* p, int n) { return y8::qspsZero_32sc(p, n); }
inline QspStatus zeroFill(Qsp64s* p, int n) { return y8::qspsZero_64s(p, n); }

template <class T>
constexpr bool isNarrow = std::is_same_v<T, Qsp8u> || std::is_same_v<T, Qsp8s> || std::is_same_v<T, Qsp16s> ||
                          std::is_same_v<T, Qsp16u>;

// Whether the fast 32-bit lane scaling holds a result range exactly,
// rounding included (v + 2^(Z-2) must stay below 2^31), and whether the
// range fits 32-bit lanes at all (then the full-range scaling serves).
template <class D>
constexpr bool fitsLanes(ops::Range r)
{
    if (!isNarrow<D> || r.lo < -(Qsp64s(1) << 31)) return false;
    const scaling::Limits lim = scaling::limitsFor<D>(r.lo, r.hi);
    return r.hi + (Qsp64s(1) << (lim.zerosFrom - 2)) < (Qsp64s(1) << 31);
}
template <class D>
constexpr bool fitsLanesFull(ops::Range r)
{
    return isNarrow<D> && r.lo >= -(Qsp64s(1) << 31) && r.hi < (Qsp64s(1) << 31);
}

// Runs op over the sources into pDst under the mode: 32-bit lanes when the
// result range allows, otherwise element by element in 64 bits.
template <ops::Range R, class D, class Op, class Mode, class... S>
void runScaled(D* pDst, Qsp64s len, Op op, Mode mode, const S*... pSrc)
{
    if constexpr (fitsLanes<D>(R) && (isNarrow<S> && ...)) {
        elementwise::lanes<false>(pDst, len, op, mode, pSrc...);
    } else if constexpr (fitsLanesFull<D>(R) && (isNarrow<S> && ...)) {
        elementwise::lanes<true>(pDst, len, op, mode, pSrc...);
    } else {
        for (Qsp64s i = 0; i < len; ++i) pDst[i] = mode.template apply<D>(op.one(Qsp64s(pSrc[i])...));
    }
}

// The scale-factor selection for a result range R and destination D (its
// part type for a complex D), with the zero fill of D's width.
template <ops::Range R, class D, class Kernel>
QspStatus scaled(int scaleFactor, D* pDst, int len, Kernel kernel)
{
    constexpr scaling::Limits lim = scaling::limitsFor<ops::Part<D>>(R.lo, R.hi);
    return scaling::select(scaleFactor, lim, kernel, [=] { return zeroFill(pDst, len); });
}

// Two integer vectors, scaled result.
template <class Op, class S1, class S2, class D>
QspStatus vvSfs(const S1* pSrc1, const S2* pSrc2, D* pDst, int len, int scaleFactor, Op op = {})
{
    if (QspStatus s = check::vectors(len, pSrc1, pSrc2, pDst)) return s;
    constexpr ops::Range R = Op::template range<S1, S2>();
    return scaled<R>(scaleFactor, pDst, len, [&](auto mode) {
        runScaled<R>(pDst, len, op, mode, pSrc1, pSrc2);
        return qspStsOk;
    });
}

// A vector and a constant: op(x, val) (ConstFirst false) or op(val, x)
// (ConstFirst true), in every type of the constant families.
template <class Op, bool ConstFirst>
struct WithConst {
    template <class T, class V = simd::Vec<T>>
    static auto bound(T val)
    {
        if constexpr (ConstFirst) return ops::BindFirst<Op, T, V>{Op{}, val, V::splat(val)};
        else return ops::BindSecond<Op, T, V>{Op{}, val, V::splat(val)};
    }

    // Without scaling: floating (real or complex), bitwise.
    template <class T>
    static QspStatus unscaled(const T* pSrc, T val, T* pDst, int len)
    {
        return v(pSrc, pDst, len, bound(val));
    }

    // Integer with the scale-factor rule. A complex 16-bit constant runs
    // part-wise in 32-bit lanes with its parts alternating in the register
    // (blocks start at even parts, so they stay in step).
    template <class S>
    static QspStatus scaledInt(const S* pSrc, S val, S* pDst, int len, int scaleFactor)
    {
        if (QspStatus s = check::vectors(len, pSrc, pDst)) return s;
        using P = ops::Part<S>;
        constexpr ops::Range R = Op::template range<P, P>();
        return scaled<R>(scaleFactor, pDst, len, [&](auto mode) {
            using V32 = simd::Vec<Qsp32s>;
            if constexpr (std::is_same_v<S, Qsp32sc>) {
                for (int i = 0; i < len; ++i) pDst[i] = {part(pSrc[i].re, val.re, mode), part(pSrc[i].im, val.im, mode)};
            } else if constexpr (std::is_same_v<S, Qsp16sc>) {
                static_assert(fitsLanesFull<P>(R), "the alternating constant needs the lane kernels");
                const V32::Reg c = _mm_setr_epi32(val.re, val.im, val.re, val.im);
                runScaled<R>(parts(pDst), 2 * Qsp64s(len), bind32(Qsp64s(0), c), mode, parts(pSrc));
            } else {
                runScaled<R>(pDst, len, bind32(Qsp64s(val), V32::splat(Qsp32s(val))), mode, pSrc);
            }
            return qspStsOk;
        });
    }

private:
    static auto bind32(Qsp64s c, simd::Vec<Qsp32s>::Reg creg)
    {
        using V32 = simd::Vec<Qsp32s>;
        if constexpr (ConstFirst) return ops::BindFirst<Op, Qsp64s, V32>{Op{}, c, creg};
        else return ops::BindSecond<Op, Qsp64s, V32>{Op{}, c, creg};
    }
    template <class P, class Mode>
    static P part(P x, P c, Mode mode)
    {
        const Qsp64s r = ConstFirst ? Op{}.one(Qsp64s(c), Qsp64s(x)) : Op{}.one(Qsp64s(x), Qsp64s(c));
        return mode.template apply<P>(r);
    }
};

}  // namespace forms

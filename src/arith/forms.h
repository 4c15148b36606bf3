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

// Operation objects with a constant bound to one side, register prepared.
template <class Op, class T>
auto second(T c)
{
    using V = simd::Vec<T>;
    return ops::BindSecond<Op, T, V>{Op{}, c, V::splat(c)};
}
template <class Op, class T>
auto first(T c)
{
    using V = simd::Vec<T>;
    return ops::BindFirst<Op, T, V>{Op{}, c, V::splat(c)};
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

// The scale-factor selection for a result range R and destination D, with
// the zero fill of D's width.
template <ops::Range R, class D, class Kernel>
QspStatus scaled(int scaleFactor, D* pDst, int len, Kernel kernel)
{
    constexpr scaling::Limits lim = scaling::limitsFor<D>(R.lo, R.hi);
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

// An integer vector and a constant, scaled result. Bind says on which side
// of the operation the constant stands.
template <class Op, bool ConstFirst, class S, class D>
QspStatus vcSfs(const S* pSrc, S val, D* pDst, int len, int scaleFactor)
{
    if (QspStatus s = check::vectors(len, pSrc, pDst)) return s;
    constexpr ops::Range R = ConstFirst ? Op::template range<S, S>() : Op::template range<S, S>();
    using V32 = simd::Vec<Qsp32s>;
    const auto creg = V32::splat(Qsp32s(val));
    return scaled<R>(scaleFactor, pDst, len, [&](auto mode) {
        if constexpr (ConstFirst)
            runScaled<R>(pDst, len, ops::BindFirst<Op, Qsp64s, simd::Vec<Qsp32s>>{Op{}, Qsp64s(val), creg}, mode, pSrc);
        else
            runScaled<R>(pDst, len, ops::BindSecond<Op, Qsp64s, simd::Vec<Qsp32s>>{Op{}, Qsp64s(val), creg}, mode, pSrc);
        return qspStsOk;
    });
}

}  // namespace forms

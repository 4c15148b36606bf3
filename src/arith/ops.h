// SPDX-License-Identifier: BSD-3-Clause
// The element operations shared by the arithmetic families, written once
// for every register and scalar type they run on:
//   reg(a, b)   on a register: float, double, interleaved complex parts, or
//               32-bit integer lanes holding widened operands
//   one(a, b)   on one element (floating, complex, or a wide integer)
// Operand order is that of the two-vector functions: Sub and Div take the
// first source as subtrahend and divisor (b - a, b / a).
//
// Integer operations also state the range of their exact result for given
// operand types, from which the scale-factor thresholds follow.
#pragma once
#include <limits>
#include <type_traits>

#include "qspdefs.h"
#include "scaling.h"
#include "simd.h"

namespace ops {

// The vector traits that act on a register type (found by overloading: a
// vector type as a template argument loses its attributes).
simd::Vec<float> vecOf(__m128);
simd::Vec<double> vecOf(__m128d);
simd::Vec<Qsp32s> vecOf(__m128i);
template <class R>
using VecFor = decltype(vecOf(R{}));

template <class T>
constexpr bool isComplex = std::is_same_v<T, Qsp32fc> || std::is_same_v<T, Qsp64fc> || std::is_same_v<T, Qsp16sc> ||
                           std::is_same_v<T, Qsp32sc> || std::is_same_v<T, Qsp64sc>;

// The part type of a complex type (the type itself for a real one).
template <class T> struct PartOf { using type = T; };
template <> struct PartOf<Qsp16sc> { using type = Qsp16s; };
template <> struct PartOf<Qsp32sc> { using type = Qsp32s; };
template <> struct PartOf<Qsp64sc> { using type = Qsp64s; };
template <> struct PartOf<Qsp32fc> { using type = Qsp32f; };
template <> struct PartOf<Qsp64fc> { using type = Qsp64f; };
template <class T>
using Part = typename PartOf<T>::type;

// Range of an exact integer result, for the scale-factor thresholds.
struct Range {
    Qsp64s lo, hi;
};

template <class T>
constexpr Qsp64s lowest = Qsp64s(std::numeric_limits<Part<T>>::min());
template <class T>
constexpr Qsp64s highest = Qsp64s(std::numeric_limits<Part<T>>::max());

constexpr Qsp64s min4(Qsp64s a, Qsp64s b, Qsp64s c, Qsp64s d)
{
    const Qsp64s x = a < b ? a : b, y = c < d ? c : d;
    return x < y ? x : y;
}
constexpr Qsp64s max4(Qsp64s a, Qsp64s b, Qsp64s c, Qsp64s d)
{
    const Qsp64s x = a > b ? a : b, y = c > d ? c : d;
    return x > y ? x : y;
}

struct Add {
    template <class R>
    R reg(R a, R b) const { return VecFor<R>::add(a, b); }
    template <class W>
    W one(W a, W b) const
    {
        if constexpr (isComplex<W>) return {a.re + b.re, a.im + b.im};
        else return W(a + b);
    }
    template <class A, class B>
    static constexpr Range range() { return {lowest<A> + lowest<B>, highest<A> + highest<B>}; }
};

// b - a: the first operand is the subtrahend.
struct Sub {
    template <class R>
    R reg(R a, R b) const { return VecFor<R>::sub(b, a); }
    template <class W>
    W one(W a, W b) const
    {
        if constexpr (isComplex<W>) return {b.re - a.re, b.im - a.im};
        else return W(b - a);
    }
    template <class A, class B>
    static constexpr Range range() { return {lowest<B> - highest<A>, highest<B> - lowest<A>}; }
};

// Real product (complex operands: see CMul).
struct Mul {
    template <class R>
    R reg(R a, R b) const
    {
        if constexpr (std::is_same_v<VecFor<R>, simd::Vec<Qsp32s>>) return VecFor<R>::mullo(a, b);
        else return VecFor<R>::mul(a, b);
    }
    template <class W>
    W one(W a, W b) const { return W(a * b); }
    template <class A, class B>
    static constexpr Range range()
    {
        const Qsp64s p1 = lowest<A> * lowest<B>, p2 = lowest<A> * highest<B>;
        const Qsp64s p3 = highest<A> * lowest<B>, p4 = highest<A> * highest<B>;
        return {min4(p1, p2, p3, p4), max4(p1, p2, p3, p4)};
    }
};

// Square of a real element; the result range is that of a product of the
// value with itself, which is never negative.
struct Sqr {
    template <class R>
    R reg(R a) const { return Mul{}.reg(a, a); }
    template <class W>
    W one(W a) const { return W(a * a); }
    template <class A>
    static constexpr Range range()
    {
        const Qsp64s l = lowest<A> * lowest<A>, h = highest<A> * highest<A>;
        return {0, l > h ? l : h};
    }
};

// Complex product of floating complex elements (registers of interleaved
// parts): re = ar*br - ai*bi, im = ai*br + ar*bi, each product rounded
// before the sum, in the element precision.
struct CMul {
    template <class R>
    R reg(R a, R b) const
    {
        using V = VecFor<R>;
        return V::addsub(V::mul(a, V::dupRe(b)), V::mul(V::swapParts(a), V::dupIm(b)));
    }
    template <class C>
    C one(C a, C b) const { return {a.re * b.re - a.im * b.im, a.im * b.re + a.re * b.im}; }
};

// Complex product of 16sc elements, four per register, into exact parts in
// 32-bit lanes: re = ar*br - ai*bi (within 32 bits), im = ar*bi + ai*br.
// im leaves 32 bits only as 2^31 (both factors -32768 - 32768i), which the
// multiply-add wraps to -2^31; it is replaced by 2^31 - 1, which scales,
// rounds and saturates to the same 16-bit result at every scale factor.
struct CMul16 {
    using R = simd::Vec<Qsp32s>::Reg;
    void reg(R& re, R& im, R a, R b) const
    {
        using V16 = simd::Vec<Qsp16s>;
        using V32 = simd::Vec<Qsp32s>;
        re = V32::hsub(V16::mulWideLo(a, b), V16::mulWideHi(a, b));
        im = V16::madd(a, V16::swapPairs(b));
        im = V32::add(im, V32::cmpeq(im, V32::splat(Qsp32s(0x80000000u))));
    }
    // The exact range of either part.
    static constexpr Range range() { return {-2147450880ll, 2147483648ll}; }
};

// The same with a constant second factor, prepared once.
struct CMulC16 {
    using R = simd::Vec<Qsp32s>::Reg;
    R c;
    void reg(R& re, R& im, R a) const { CMul16{}.reg(re, im, a, c); }
};

// b / a: the first operand is the divisor.
struct Div {
    template <class R>
    R reg(R a, R b) const { return VecFor<R>::div(b, a); }
    template <class W>
    W one(W a, W b) const { return W(b / a); }
};

// Bitwise operations on integer registers of any lane width.
struct BitAnd {
    template <class R>
    R reg(R a, R b) const { return _mm_and_si128(a, b); }
    template <class W>
    W one(W a, W b) const { return W(a & b); }
};
struct BitOr {
    template <class R>
    R reg(R a, R b) const { return _mm_or_si128(a, b); }
    template <class W>
    W one(W a, W b) const { return W(a | b); }
};
struct BitXor {
    template <class R>
    R reg(R a, R b) const { return _mm_xor_si128(a, b); }
    template <class W>
    W one(W a, W b) const { return W(a ^ b); }
};

// An operation with one operand fixed: Second binds op(x, c), First binds
// op(c, x). The constant's register is prepared once, with the kernel.
// V is the vector traits of the register.
template <class Op, class W, class V>
struct BindSecond {
    using R = typename V::Reg;
    Op op;
    W c;
    R creg;
    R reg(R a) const { return op.reg(a, creg); }
    template <class X>
    X one(X a) const { return op.one(a, X(c)); }
};
template <class Op, class W, class V>
struct BindFirst {
    using R = typename V::Reg;
    Op op;
    W c;
    R creg;
    R reg(R a) const { return op.reg(creg, a); }
    template <class X>
    X one(X a) const { return op.one(X(c), a); }
};

}  // namespace ops

// SPDX-License-Identifier: BSD-3-Clause
// Loop drivers of the element-wise kernels. A family describes its
// operation once, as an operation object, and a driver runs it over the
// vectors: full registers first (unrolled), then the tail element by
// element. Pointers may have any alignment; source and destination may be
// the same vector (every register is read before its results are stored),
// which is how the in-place forms run.
//
// Operation objects:
//   floating    reg(a[, b]) on simd::Vec<T>::Reg, one(a[, b]) on T
//   lanes       reg(a[, b]) on 32-bit lanes holding the widened operands,
//               one(a[, b]) on Qsp32s or Qsp64s; the exact result goes
//               through a scaling mode (scaling.h) and is narrowed to the
//               destination type with saturation
#pragma once
#include "qspdefs.h"
#include "scaling.h"
#include "simd.h"

namespace elementwise {

// ---------------------------------------------------------------------------
// Same-type vectors (floating, or integer operations that need no widening).

template <class T, class Op>
void map1(const T* pSrc, T* pDst, Qsp64s len, Op op)
{
    using V = simd::Vec<T>;
    constexpr Qsp64s L = V::lanes;
    Qsp64s i = 0;
    for (; i + 4 * L <= len; i += 4 * L) {
        const auto a = V::loadu(pSrc + i), b = V::loadu(pSrc + i + L);
        const auto c = V::loadu(pSrc + i + 2 * L), d = V::loadu(pSrc + i + 3 * L);
        V::storeu(pDst + i, op.reg(a));
        V::storeu(pDst + i + L, op.reg(b));
        V::storeu(pDst + i + 2 * L, op.reg(c));
        V::storeu(pDst + i + 3 * L, op.reg(d));
    }
    for (; i + L <= len; i += L) V::storeu(pDst + i, op.reg(V::loadu(pSrc + i)));
    for (; i < len; ++i) pDst[i] = op.one(pSrc[i]);
}

template <class T, class Op>
void map2(const T* pSrc1, const T* pSrc2, T* pDst, Qsp64s len, Op op)
{
    using V = simd::Vec<T>;
    constexpr Qsp64s L = V::lanes;
    Qsp64s i = 0;
    for (; i + 4 * L <= len; i += 4 * L) {
        const auto a0 = V::loadu(pSrc1 + i), a1 = V::loadu(pSrc1 + i + L);
        const auto a2 = V::loadu(pSrc1 + i + 2 * L), a3 = V::loadu(pSrc1 + i + 3 * L);
        const auto b0 = V::loadu(pSrc2 + i), b1 = V::loadu(pSrc2 + i + L);
        const auto b2 = V::loadu(pSrc2 + i + 2 * L), b3 = V::loadu(pSrc2 + i + 3 * L);
        V::storeu(pDst + i, op.reg(a0, b0));
        V::storeu(pDst + i + L, op.reg(a1, b1));
        V::storeu(pDst + i + 2 * L, op.reg(a2, b2));
        V::storeu(pDst + i + 3 * L, op.reg(a3, b3));
    }
    for (; i + L <= len; i += L) V::storeu(pDst + i, op.reg(V::loadu(pSrc1 + i), V::loadu(pSrc2 + i)));
    for (; i < len; ++i) pDst[i] = op.one(pSrc1[i], pSrc2[i]);
}

// ---------------------------------------------------------------------------
// Integer operands widened to 32-bit lanes, results narrowed with
// saturation. One block is one destination register: 16 / sizeof(D)
// elements, widened four at a time straight from memory.

namespace detail {
using R = __m128i;

template <class S>
R widen4(const S* p)
{
    if constexpr (std::is_same_v<S, Qsp16s>) return _mm_cvtepi16_epi32(_mm_loadl_epi64(reinterpret_cast<const R*>(p)));
    else if constexpr (std::is_same_v<S, Qsp16u>) return _mm_cvtepu16_epi32(_mm_loadl_epi64(reinterpret_cast<const R*>(p)));
    else if constexpr (std::is_same_v<S, Qsp8u>) {
        Qsp32s bits;
        __builtin_memcpy(&bits, p, 4);
        return _mm_cvtepu8_epi32(_mm_cvtsi32_si128(bits));
    } else if constexpr (std::is_same_v<S, Qsp16sc>) {
        // Four complex elements: one register of interleaved 16-bit parts,
        // which the operation combines into one 32-bit lane per element.
        return _mm_loadu_si128(reinterpret_cast<const R*>(p));
    } else {
        static_assert(std::is_same_v<S, Qsp8s>);
        Qsp32s bits;
        __builtin_memcpy(&bits, p, 4);
        return _mm_cvtepi8_epi32(_mm_cvtsi32_si128(bits));
    }
}

template <class D>
constexpr int blockOf = 16 / int(sizeof(D));

// The first n elements of p in a block of G, padded with ones (so that a
// padding lane never looks like a zero divisor).
template <class S, int G>
struct Block {
    S v[G];
};
template <int G, class S>
Block<S, G> gather(const S* p, int n)
{
    Block<S, G> b{};
    for (int j = 0; j < G; ++j) {
        if (j < n) b.v[j] = p[j];
        else if constexpr (std::is_arithmetic_v<S>) b.v[j] = S(1);
    }
    return b;
}

// Narrows blockOf<D> / 4 registers of 32-bit lanes and stores them.
template <class D>
void narrowStore(D* p, const R* r)
{
    if constexpr (std::is_same_v<D, Qsp16s>) simd::Vec<Qsp16s>::storeu(p, _mm_packs_epi32(r[0], r[1]));
    else if constexpr (std::is_same_v<D, Qsp16u>) simd::Vec<Qsp16u>::storeu(p, simd::packs32to16u(r[0], r[1]));
    else {
        static_assert(std::is_same_v<D, Qsp8u>);
        simd::Vec<Qsp8u>::storeu(p, simd::packs32to8u(r[0], r[1], r[2], r[3]));
    }
}
}  // namespace detail

// One block: the operands widened four at a time, the operation and the
// scaling mode applied, the results narrowed and stored.
template <class D, class Op, class M, class... S>
void lanesBlock(D* pDst, Op& op, const M& m, const S*... pSrc)
{
    constexpr int G = detail::blockOf<D>;
    detail::R r[G / 4];
    for (int j = 0; j < G / 4; ++j) r[j] = m(op.reg(detail::widen4(pSrc + 4 * j)...));
    detail::narrowStore(pDst, r);
}

// pDst[i] = scaled(op(pSrc...[i])) for 8- and 16-bit destinations. The
// tail (less than one block) is copied into a block on the stack and runs
// through the same vector code, so the operation needs no scalar form and
// every element sees the same arithmetic. Full selects the scaling form
// valid for any 32-bit exact result (see scaling.h).
template <bool Full, class D, class Op, class Mode, class... S>
void lanes(D* pDst, Qsp64s len, Op op, Mode mode, const S*... pSrc)
{
    constexpr int G = detail::blockOf<D>;
    const auto m = [&] {
        if constexpr (Full) return mode.template lanes32Full<D>();
        else return mode.template lanes32<D>();
    }();
    Qsp64s i = 0;
    for (; i + G <= len; i += G) lanesBlock(pDst + i, op, m, (pSrc + i)...);
    if (i < len) {
        const int n = int(len - i);
        D out[G];
        lanesBlock(out, op, m, detail::gather<G>(pSrc + i, n).v...);
        for (int j = 0; j < n; ++j) pDst[i + j] = out[j];
    }
}

// pDst[i] = op(pSrc...[i]) for a 32-bit destination (Qsp32s or Qsp32f)
// that holds every exact result: no scaling, no saturation.
template <class D, class Op, class... S>
void lanesExact(D* pDst, Qsp64s len, Op op, const S*... pSrc)
{
    auto block = [&](D* out, const auto*... in) {
        const detail::R r = op.reg(detail::widen4(in)...);
        if constexpr (std::is_same_v<D, Qsp32f>) simd::Vec<float>::storeu(out, _mm_cvtepi32_ps(r));
        else simd::Vec<Qsp32s>::storeu(out, r);
    };
    Qsp64s i = 0;
    for (; i + 4 <= len; i += 4) block(pDst + i, (pSrc + i)...);
    if (i < len) {
        const int n = int(len - i);
        D out[4];
        block(out, detail::gather<4>(pSrc + i, n).v...);
        for (int j = 0; j < n; ++j) pDst[i + j] = out[j];
    }
}

// Complex 16-bit results: op.reg(a...) takes registers of four complex
// elements (interleaved 16-bit parts) and sets the exact real and imaginary
// parts of the four results in 32-bit lanes; they are scaled under the
// mode, interleaved again and narrowed with saturation. The tail runs
// through a stack block, as in lanes().
template <class Op, class Mode, class... S>
void lanesComplex16(Qsp16sc* pDst, Qsp64s len, Op op, Mode mode, const S*... pSrc)
{
    using V32 = simd::Vec<Qsp32s>;
    using V16 = simd::Vec<Qsp16s>;
    const auto m = mode.template lanes32Full<Qsp16s>();
    auto block = [&](Qsp16sc* out, const auto*... in) {
        detail::R re, im;
        op.reg(re, im, V16::loadu(in)...);
        re = m(re);
        im = m(im);
        V16::storeu(out, V16::packs32(V32::interleaveLo(re, im), V32::interleaveHi(re, im)));
    };
    Qsp64s i = 0;
    for (; i + 4 <= len; i += 4) block(pDst + i, (pSrc + i)...);
    if (i < len) {
        const int n = int(len - i);
        Qsp16sc out[4];
        block(out, detail::gather<4>(pSrc + i, n).v...);
        for (int j = 0; j < n; ++j) pDst[i + j] = out[j];
    }
}

// ---------------------------------------------------------------------------
// Element by element with a wide scalar type W (32-bit destinations, whose
// exact results need 64 bits).

template <class W, class S, class D, class Op, class Mode>
void scalar1(const S* pSrc, D* pDst, Qsp64s len, Op op, Mode mode)
{
    for (Qsp64s i = 0; i < len; ++i) pDst[i] = mode.template apply<D>(op.one(W(pSrc[i])));
}

template <class W, class S1, class S2, class D, class Op, class Mode>
void scalar2(const S1* pSrc1, const S2* pSrc2, D* pDst, Qsp64s len, Op op, Mode mode)
{
    for (Qsp64s i = 0; i < len; ++i) pDst[i] = mode.template apply<D>(op.one(W(pSrc1[i]), W(pSrc2[i])));
}

}  // namespace elementwise

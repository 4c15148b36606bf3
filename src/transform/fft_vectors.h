// SPDX-License-Identifier: BSD-3-Clause
// Complex values in 128-bit registers for the FFT kernels: interleaved (a
// register holds whole complex values) and split (a pair of registers holds
// the real and the imaginary parts of L values), the radix-4 butterfly on
// split values, and buffers of N values held as two halves.
#pragma once
#include "fft_twiddles.h"
#include "qspdefs.h"
#include "simd.h"

namespace fft {

template <class T>
using C = Cplx<T>;

// Complex values in 128-bit registers: two per register for float, one for
// double.
template <class T>
struct CV {
    using V = simd::Vec<T>;
    using R = typename V::Reg;
    static constexpr int per = V::lanes / 2;
    static R load(const C<T>* p) { return V::loadu(&p->re); }
    static void store(C<T>* p, R r) { V::storeu(&p->re, r); }
    static R splat(const C<T>* p)
    {
        if constexpr (per == 2)
            return V::loadPairDup(&p->re);
        else
            return V::loadu(&p->re);
    }
    // a*w, and a*conj(w) for the inverse direction.
    template <bool Conj>
    static R mul(R a, R w)
    {
        const R re = V::mul(a, V::dupRe(w));
        const R im = V::mul(V::swapParts(a), V::dupIm(w));
        if constexpr (Conj)
            return V::addsub(re, V::bitXor(im, V::splat(T(-0.0))));
        else
            return V::addsub(re, im);
    }
    // -i*v (forward) or +i*v (inverse).
    template <bool Inv>
    static R rot(R v)
    {
        if constexpr (Inv)
            return V::negEven(V::swapParts(v));
        else
            return V::negOdd(V::swapParts(v));
    }
};

// Split values: X holds L values (L = values per register: 4 float, 2
// double) as a register of real parts and one of imaginary parts. Between
// passes the values are kept block-split: in each block of L consecutive
// values the L real parts come first, then the L imaginary parts. A block
// starts at the same address as the L interleaved values it replaces, so
// buffers, offsets and halves are unchanged; load<true> and store<true>
// read and write interleaved values instead.
template <class T>
struct SV {
    using V = simd::Vec<T>;
    using R = typename V::Reg;
    static constexpr int L = V::lanes;
    struct X {
        R re, im;
    };
    // Aligned says that a block-split block starts on 16 bytes: the loads
    // may then be folded into the arithmetic that uses them.
    template <bool Interleaved, bool Aligned = false>
    static X load(const C<T>* p)
    {
        const T* f = &p->re;
        if constexpr (Interleaved) {
            const R a = V::loadu(f), b = V::loadu(f + L);
            return {V::evens(a, b), V::odds(a, b)};
        } else if constexpr (Aligned) {
            return {V::load(f), V::load(f + L)};
        } else {
            return {V::loadu(f), V::loadu(f + L)};
        }
    }
    template <bool Interleaved, bool Aligned = false>
    static void store(C<T>* p, X v)
    {
        T* f = &p->re;
        if constexpr (Interleaved) {
            V::storeu(f, V::zipLo(v.re, v.im));
            V::storeu(f + L, V::zipHi(v.re, v.im));
        } else if constexpr (Aligned) {
            V::store(f, v.re);
            V::store(f + L, v.im);
        } else {
            V::storeu(f, v.re);
            V::storeu(f + L, v.im);
        }
    }
    static X add(X a, X b) { return {V::add(a.re, b.re), V::add(a.im, b.im)}; }
    static X sub(X a, X b) { return {V::sub(a.re, b.re), V::sub(a.im, b.im)}; }
    // a*w, or a*conj(w) for the inverse direction.
    template <bool Conj>
    static X mul(X a, X w)
    {
        if constexpr (Conj)
            return {V::add(V::mul(a.re, w.re), V::mul(a.im, w.im)), V::sub(V::mul(a.im, w.re), V::mul(a.re, w.im))};
        else
            return {V::sub(V::mul(a.re, w.re), V::mul(a.im, w.im)), V::add(V::mul(a.re, w.im), V::mul(a.im, w.re))};
    }
    // The twiddle of index p of a block-split table, in every lane.
    static X splat(const C<T>* table, Qsp64s p)
    {
        const T* f = &table->re + (p / L) * 2 * L + p % L;
        return {V::splat(f[0]), V::splat(f[L])};
    }
};

// The radix-4 butterfly on split registers: o0..o3 from a..d, before the
// twiddles.
template <class T, bool Inv>
inline void butterfly4(typename SV<T>::X a, typename SV<T>::X b, typename SV<T>::X c, typename SV<T>::X d,
                       typename SV<T>::X o[4])
{
    using K = SV<T>;
    using V = typename K::V;
    const auto apc = K::add(a, c), amc = K::sub(a, c), bpd = K::add(b, d), bmd = K::sub(b, d);
    o[0] = K::add(apc, bpd);
    o[2] = K::sub(apc, bpd);
    // amc -+ i*bmd
    if constexpr (Inv) {
        o[1] = {V::sub(amc.re, bmd.im), V::add(amc.im, bmd.re)};
        o[3] = {V::add(amc.re, bmd.im), V::sub(amc.im, bmd.re)};
    } else {
        o[1] = {V::add(amc.re, bmd.im), V::sub(amc.im, bmd.re)};
        o[3] = {V::sub(amc.re, bmd.im), V::add(amc.im, bmd.re)};
    }
}

// 4x4 transpose of single-precision registers (rows in, columns out) from
// even/odd lane selections only: those run on both shuffle ports, where
// the unpack and half-move instructions run on one.
inline void transpose4(__m128& r0, __m128& r1, __m128& r2, __m128& r3)
{
    using V = simd::Vec<float>;
    const __m128 a = V::evens(r0, r1), b = V::odds(r0, r1), c = V::evens(r2, r3), d = V::odds(r2, r3);
    r0 = V::evens(a, c);
    r1 = V::evens(b, d);
    r2 = V::odds(a, c);
    r3 = V::odds(b, d);
}

// A buffer of N values as two halves: lo holds elements 0..N/2-1, hi the
// rest, so that the two arrays of a split-complex destination can serve
// as one complex buffer of N values.
template <class T>
struct Halves {
    T* lo;
    T* hi;
};

template <class T>
inline Halves<C<T>> halvesOf(C<T>* p, Qsp64s n)
{
    return {p, p + n / 2};
}

template <class T>
inline Halves<const C<T>> asConst(Halves<C<T>> h)
{
    return {h.lo, h.hi};
}

// Element i of an N-value buffer held in halves (half = N/2).
template <class T>
inline T* at(Halves<T> h, Qsp64s i, Qsp64s half)
{
    return i < half ? h.lo + i : h.hi + (i - half);
}

}  // namespace fft

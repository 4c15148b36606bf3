// SPDX-License-Identifier: BSD-3-Clause
// The double-precision complex FFT of orders 8..10 in two steps:
// N = N1 N2 with N2 = 64, the length of a straight-line kernel.
//
//   X[k1 + N1 k2] = sum_n2 W_N2^(n2 k2) W_N^(n2 k1) sum_n1 x[n1 N2 + n2] W_N1^(n1 k1)
//
//  1. Columns: for every n2, the N1-point DFT of x[n1 N2 + n2] (n1 < N1),
//     vectorised over n2 on split registers; output k1 is turned by
//     W_N^(n2 k1) and stored interleaved at t[k1 N2 + n2] in the work
//     buffer, so that each row of t is contiguous.
//  2. Rows: for every k1, the straight-line N2-point kernel on row k1 of t,
//     its output k2 written to X[k1 + N1 k2] (multiplied by the
//     normalisation factor when one applies).
// The data crosses memory twice, against four or five radix-4 passes, and
// the rows run with constant twiddles. src is read completely by the first
// step, so src may equal dst.
//
// The inverse: the first step reads the parts exchanged and stores its
// results exchanged (both free on split registers), which makes t the
// inverse transform's columns; the rows then run the inverse kernel.
#pragma once
#include "fft_medium.h"
#include "fft_small.h"

namespace fft {

// Orders 8..10 of double precision run in two steps; single precision
// measured faster with the medium tier's passes throughout, and so did
// double precision at orders 7 (two rows) and 11 (rows of 128 points).
template <class T>
inline bool fourStepOrder(int order)
{
    return sizeof(T) == 8 && order >= 8 && order <= 10;
}
inline constexpr int kFourStepRowBits = 6;

// Twiddles of the column step: for every block of L values of n2, the
// factors W_N^(k1 n2) of k1 = 1 .. N1-1 as split blocks; (N1 - 1) N2
// values.
inline Qsp64s fourStepTwiddleCount(int order)
{
    return (Qsp64s(1) << order) - (Qsp64s(1) << kFourStepRowBits);
}

template <class T, class O>
void ownsFillFourStepTwiddles(C<T>* tw, int order, const Octant<O>& oct)
{
    constexpr Qsp64s L = SV<T>::L;
    const Qsp64s n = Qsp64s(1) << order, n2 = Qsp64s(1) << kFourStepRowBits, n1 = n / n2;
    T* f = &tw->re;
    for (Qsp64s q = 0; q < n2; q += L)
        for (Qsp64s k = 1; k < n1; ++k, f += 2 * L)
            for (Qsp64s l = 0; l < L; ++l) {
                const C<O> v = twiddle(oct, k * (q + l) * ((Qsp64s(1) << oct.order) / n));
                f[l] = T(v.re);
                f[L + l] = T(v.im);
            }
}

// Values in the twiddle table of a complex record of the medium orders
// (fillComplexTables): the two-step table where fourStepOrder holds, the medium
// tier's table at the others.
template <class T>
inline Qsp64s complexTwiddleCount(int order)
{
    return fourStepOrder<T>(order) ? fourStepTwiddleCount(order) : mediumTwiddleCount<T>(order);
}

// smallDft's operations on split registers: L complex values at once.
template <class T>
struct SplitOps {
    using K = SV<T>;
    using V = typename K::V;
    using Value = typename K::X;
    static Value add(Value a, Value b) { return K::add(a, b); }
    static Value sub(Value a, Value b) { return K::sub(a, b); }
    static Value scale(Value v, T f)
    {
        const auto s = V::splat(f);
        return {V::mul(v.re, s), V::mul(v.im, s)};
    }
    // -i*v forward, +i*v inverse.
    template <bool Inv>
    static Value rot(Value v)
    {
        const auto sign = V::splat(T(-0.0));
        return Inv ? Value{V::bitXor(v.im, sign), v.re} : Value{v.im, V::bitXor(v.re, sign)};
    }
    template <bool Inv>
    static Value mulConst(Value v, C<T> w)
    {
        const auto wr = V::splat(w.re), wi = V::splat(Inv ? -w.im : w.im);
        return {V::sub(V::mul(v.re, wr), V::mul(v.im, wi)), V::add(V::mul(v.re, wi), V::mul(v.im, wr))};
    }
};

// Step 1, src to t.
template <class T, bool Inv, int N1, int N2, class Src>
__attribute__((flatten)) void ownsFourStepColumns(Src src, C<T>* t, const C<T>* tw)
{
    using K = SV<T>;
    using X = typename K::X;
    constexpr int L = K::L;
    for (int q = 0; q < N2; q += L, tw += (N1 - 1) * L) {
        auto in = [&](int j) { return src.load(q + Qsp64s(j) * N2); };
        auto out = [&](int k, X v) {
            if (k > 0) v = K::template mul<false>(v, K::template load<false>(tw + (k - 1) * L));
            K::template store<true>(t + k * N2 + q, Inv ? X{v.im, v.re} : v);
        };
        if constexpr (N1 == 4)
            dft4<T>(in, out);
        else if constexpr (N1 == 8)
            dft8<T>(in, out);
        else
            smallDft<SplitOps<T>, T, false, N1>(in, out);
    }
}

// Destinations of the row step: one value at element i.
struct FourStepInterleaved {
    C<double>* p;
    void put(Qsp64s i, __m128d v) const { simd::Vec<double>::storeu(&p[i].re, v); }
};

struct FourStepSplit {
    double* re;
    double* im;
    void put(Qsp64s i, __m128d v) const
    {
        _mm_storel_pd(re + i, v);
        _mm_storeh_pd(im + i, v);
    }
};

// Step 2, t to dst: row k1 gives X[k1 + N1 k2], one value per register.
template <bool Inv, int N1, bool Scaled, class Dst>
__attribute__((flatten)) void ownsFourStepRows(const C<double>* t, Dst dst, double f)
{
    using O = SmallOps<double>;
    constexpr int N2 = 1 << kFourStepRowBits;
    for (int k1 = 0; k1 < N1; ++k1) {
        const C<double>* row = t + k1 * N2;
        smallDft<O, double, Inv, N2>([&](int p) { return O::load(row + p); }, [&](int k, O::Value v) {
            dst.put(k1 + Qsp64s(N1) * k, (Scaled ? O::scale(v, f) : v).v);
        });
    }
}

template <bool Inv, int Order, class Src, class Dst>
void ownsFourStepOrder(Src src, Dst dst, C<double>* work, const C<double>* tw, bool scaled, double f)
{
    constexpr int N1 = 1 << (Order - kFourStepRowBits), N2 = 1 << kFourStepRowBits;
    ownsFourStepColumns<double, Inv, N1, N2>(src, work, tw);
    if (scaled)
        ownsFourStepRows<Inv, N1, true>(work, dst, f);
    else
        ownsFourStepRows<Inv, N1, false>(work, dst, f);
}

// One double-precision transform of 2^order values (fourStepOrder), from
// the source view (read with the parts exchanged for the inverse) to dst
// through work (N values), each result multiplied by f when scaled.
template <bool Inv, class Src, class Dst>
void ownsFourStepRun(Src src, Dst dst, C<double>* work, int order, const C<double>* tw, bool scaled, double f)
{
    switch (order) {
    case 8: ownsFourStepOrder<Inv, 8>(src, dst, work, tw, scaled, f); break;
    case 9: ownsFourStepOrder<Inv, 9>(src, dst, work, tw, scaled, f); break;
    default: ownsFourStepOrder<Inv, 10>(src, dst, work, tw, scaled, f); break;
    }
}

}  // namespace fft

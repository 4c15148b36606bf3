// SPDX-License-Identifier: BSD-3-Clause
// Complex values across the lanes of a register pair: one register holds the
// real parts and one the imaginary parts of as many independent complex
// values as a register has lanes (four single, two double). The mixed-radix
// kernels work on such pairs "vertically": every lane runs the same
// transform on its own data, so the butterflies need no shuffles at all and
// a complex product costs four multiplications and two additions.
//
// Butterflies are written for the forward direction, W_p = exp(-2 pi i / p);
// the inverse transform exchanges the real and imaginary parts of its input
// and output instead (swap(DFT(swap(x))) is the inverse DFT).
#pragma once
#include "dft_roots.h"
#include "simd.h"

namespace dft {

template <class T>
struct Lanes {
    using V = simd::Vec<T>;
    using R = typename V::Reg;
    static constexpr int n = V::lanes;
    struct X {
        R re, im;
    };
    static X add(X a, X b) { return {V::add(a.re, b.re), V::add(a.im, b.im)}; }
    static X sub(X a, X b) { return {V::sub(a.re, b.re), V::sub(a.im, b.im)}; }
    static X mul(X a, X w)
    {
        return {V::sub(V::mul(a.re, w.re), V::mul(a.im, w.im)), V::add(V::mul(a.re, w.im), V::mul(a.im, w.re))};
    }
    static X scale(X a, R c) { return {V::mul(a.re, c), V::mul(a.im, c)}; }
    static X splat(Cx<T> w) { return {V::splat(w.re), V::splat(w.im)}; }
    static X zero() { return {V::zero(), V::zero()}; }
    // Loads and stores of a pair kept as two consecutive registers.
    static X load(const X* p) { return *p; }
    static void store(X* p, X v) { *p = v; }
};

// In-place p-point DFTs of a[0..p-1] for the fixed radices.
template <class T, int P>
struct Butterfly;

template <class T>
struct Butterfly<T, 2> {
    using K = Lanes<T>;
    using X = typename K::X;
    static void run(X* a)
    {
        const X s = K::add(a[0], a[1]), d = K::sub(a[0], a[1]);
        a[0] = s;
        a[1] = d;
    }
};

template <class T>
struct Butterfly<T, 4> {
    using K = Lanes<T>;
    using V = typename K::V;
    using X = typename K::X;
    static void run(X* a)
    {
        const X s02 = K::add(a[0], a[2]), d02 = K::sub(a[0], a[2]);
        const X s13 = K::add(a[1], a[3]), d13 = K::sub(a[1], a[3]);
        a[0] = K::add(s02, s13);
        a[2] = K::sub(s02, s13);
        // d02 -+ i d13
        a[1] = {V::add(d02.re, d13.im), V::sub(d02.im, d13.re)};
        a[3] = {V::sub(d02.re, d13.im), V::add(d02.im, d13.re)};
    }
};

// Odd p: with t_m = a_m + a_(p-m) and u_m = a_m - a_(p-m),
//   y_0 = a_0 + sum t_m,  b_k = a_0 + sum c_km t_m,  d_k = sum s_km u_m,
//   y_k = b_k - i d_k,   y_(p-k) = b_k + i d_k.
template <class T, int P>
struct OddButterfly {
    using K = Lanes<T>;
    using V = typename K::V;
    using X = typename K::X;
    static constexpr int H = (P - 1) / 2;
    static void run(X* a)
    {
        X t[H + 1], u[H + 1];
        X y0 = a[0];
        for (int m = 1; m <= H; ++m) {
            t[m] = K::add(a[m], a[P - m]);
            u[m] = K::sub(a[m], a[P - m]);
            y0 = K::add(y0, t[m]);
        }
        for (int k = 1; k <= H; ++k) {
            X b = a[0], d = K::zero();
            for (int m = 1; m <= H; ++m) {
                const auto c = V::splat(kOdd<T, P>.c[k][m]);
                const auto s = V::splat(kOdd<T, P>.s[k][m]);
                b = K::add(b, K::scale(t[m], c));
                d = K::add(d, K::scale(u[m], s));
            }
            a[k] = {V::add(b.re, d.im), V::sub(b.im, d.re)};
            a[P - k] = {V::sub(b.re, d.im), V::add(b.im, d.re)};
        }
        a[0] = y0;
    }
};

template <class T>
struct Butterfly<T, 3> : OddButterfly<T, 3> {};
template <class T>
struct Butterfly<T, 5> : OddButterfly<T, 5> {};
template <class T>
struct Butterfly<T, 7> : OddButterfly<T, 7> {};

// 6 = 2 * 3 by the prime-factor mapping (no inner twiddles): the 3-point
// transforms of (a0, a2, a4) and (a3, a5, a1), then 2-point transforms whose
// outputs land at (3 k1 + 4 k2) mod 6.
template <class T>
struct Butterfly<T, 6> {
    using K = Lanes<T>;
    using X = typename K::X;
    static void run(X* a)
    {
        X e[3] = {a[0], a[2], a[4]};
        X o[3] = {a[3], a[5], a[1]};
        Butterfly<T, 3>::run(e);
        Butterfly<T, 3>::run(o);
        a[0] = K::add(e[0], o[0]);
        a[3] = K::sub(e[0], o[0]);
        a[4] = K::add(e[1], o[1]);
        a[1] = K::sub(e[1], o[1]);
        a[2] = K::add(e[2], o[2]);
        a[5] = K::sub(e[2], o[2]);
    }
};

// Any odd prime p (the factors above 7), with the constants taken from a
// table of p values: cw[j] = (cos, sin) of 2 pi j / p as splatted registers.
// t and u are scratch of (p+1)/2 pairs each.
template <class T>
void ownsOddButterflyAny(typename Lanes<T>::X* a, int p, const typename Lanes<T>::X* cw,
                         typename Lanes<T>::X* t, typename Lanes<T>::X* u)
{
    using K = Lanes<T>;
    using V = typename K::V;
    using X = typename K::X;
    const int h = (p - 1) / 2;
    X y0 = a[0];
    for (int m = 1; m <= h; ++m) {
        t[m] = K::add(a[m], a[p - m]);
        u[m] = K::sub(a[m], a[p - m]);
        y0 = K::add(y0, t[m]);
    }
    for (int k = 1; k <= h; ++k) {
        X b = a[0], d = K::zero();
        X b2 = K::zero(), d2 = K::zero();
        int j = 0;
        int m = 1;
        // Two accumulators each to shorten the dependency chains.
        for (; m + 1 <= h; m += 2) {
            j += k;
            if (j >= p) j -= p;
            const X w1 = cw[j];
            j += k;
            if (j >= p) j -= p;
            const X w2 = cw[j];
            b = K::add(b, K::scale(t[m], w1.re));
            d = K::add(d, K::scale(u[m], w1.im));
            b2 = K::add(b2, K::scale(t[m + 1], w2.re));
            d2 = K::add(d2, K::scale(u[m + 1], w2.im));
        }
        if (m <= h) {
            j += k;
            if (j >= p) j -= p;
            const X w1 = cw[j];
            b = K::add(b, K::scale(t[m], w1.re));
            d = K::add(d, K::scale(u[m], w1.im));
        }
        b = K::add(b, b2);
        d = K::add(d, d2);
        a[k] = {V::add(b.re, d.im), V::sub(b.im, d.re)};
        a[p - k] = {V::sub(b.re, d.im), V::add(b.im, d.re)};
    }
    a[0] = y0;
}

}  // namespace dft

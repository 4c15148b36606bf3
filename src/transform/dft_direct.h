// SPDX-License-Identifier: BSD-3-Clause
// Direct evaluation of the DFT.
//
// Lengths up to 16 have one straight-line kernel each, with no tables: the
// sums of the definition evaluated with their common terms shared (a
// composite length is split into its smallest factor, 4 for multiples of
// 4, and the rest, with the twiddles as compile-time constants; a prime
// length pairs x[m] with x[n-m]). Other short lengths take their twiddles
// from a table of the n roots W_n^j built at Init.
//
// Both are written for the forward direction; the inverse exchanges real
// and imaginary parts on the way in and out.
#pragma once
#include <utility>

#include "dft_roots.h"

namespace dft {

template <class T>
inline Cx<T> cadd(Cx<T> a, Cx<T> b) { return {a.re + b.re, a.im + b.im}; }
template <class T>
inline Cx<T> csub(Cx<T> a, Cx<T> b) { return {a.re - b.re, a.im - b.im}; }

// a * W_n^e with the constant exact where it is a quarter turn.
template <class T, int N, int E>
inline Cx<T> twiddleConst(Cx<T> a)
{
    constexpr int e = E % N;
    if constexpr (e == 0) {
        return a;
    } else if constexpr ((4 * e) % N == 0) {
        constexpr int q = 4 * e / N;  // W^e = (-i)^q
        if constexpr (q == 1) return {a.im, -a.re};
        else if constexpr (q == 2) return {-a.re, -a.im};
        else return {-a.im, a.re};
    } else {
        constexpr Cx<T> w = root<T>(e, N);
        return {a.re * w.re - a.im * w.im, a.re * w.im + a.im * w.re};
    }
}

constexpr int smallestFactor(int n)
{
    if (n % 4 == 0) return 4;
    for (int d = 2; d * d <= n; ++d)
        if (n % d == 0) return d;
    return n;
}

// out[k] = sum_m in[m * stride] W_N^(k m), k < N.
template <class T, int N, int P = smallestFactor(N)>
struct SmallDft {
    static constexpr int Q = N / P;
    static void run(const Cx<T>* in, int stride, Cx<T>* out)
    {
        Cx<T> y[P][Q];
        for (int p = 0; p < P; ++p) SmallDft<T, Q>::run(in + p * stride, stride * P, y[p]);
        [&]<int... K>(std::integer_sequence<int, K...>) { (column<K>(y, out), ...); }(std::make_integer_sequence<int, Q>{});
    }
    template <int K>
    static void column(Cx<T> (&y)[P][Q], Cx<T>* out)
    {
        Cx<T> z[P];
        [&]<int... Pi>(std::integer_sequence<int, Pi...>) { ((z[Pi] = twiddleConst<T, N, Pi * K>(y[Pi][K])), ...); }(
            std::make_integer_sequence<int, P>{});
        Cx<T> r[P];
        SmallDft<T, P>::run(z, 1, r);
        for (int i = 0; i < P; ++i) out[K + Q * i] = r[i];
    }
};

// Prime lengths (and 1, 2, 4): the definition with x[m] and x[N-m] paired.
template <class T, int N>
struct SmallDft<T, N, N> {
    static void run(const Cx<T>* in, int stride, Cx<T>* out)
    {
        if constexpr (N == 1) {
            out[0] = in[0];
        } else if constexpr (N == 2) {
            out[0] = cadd(in[0], in[stride]);
            out[1] = csub(in[0], in[stride]);
        } else {
            constexpr int H = (N - 1) / 2;
            const Cx<T> x0 = in[0];
            Cx<T> t[H + 1], u[H + 1];
            Cx<T> y0 = x0;
            for (int m = 1; m <= H; ++m) {
                t[m] = cadd(in[m * stride], in[(N - m) * stride]);
                u[m] = csub(in[m * stride], in[(N - m) * stride]);
                y0 = cadd(y0, t[m]);
            }
            for (int k = 1; k <= H; ++k) {
                Cx<T> b = x0, d{T(0), T(0)};
                for (int m = 1; m <= H; ++m) {
                    const T c = kOdd<T, N>.c[k][m], s = kOdd<T, N>.s[k][m];
                    b = {b.re + c * t[m].re, b.im + c * t[m].im};
                    d = {d.re + s * u[m].re, d.im + s * u[m].im};
                }
                out[k] = {b.re + d.im, b.im - d.re};
                out[N - k] = {b.re - d.im, b.im + d.re};
            }
            out[0] = y0;
        }
    }
};

template <class T>
struct SmallDft<T, 4, 4> {
    static void run(const Cx<T>* in, int stride, Cx<T>* out)
    {
        const Cx<T> s02 = cadd(in[0], in[2 * stride]), d02 = csub(in[0], in[2 * stride]);
        const Cx<T> s13 = cadd(in[stride], in[3 * stride]), d13 = csub(in[stride], in[3 * stride]);
        out[0] = cadd(s02, s13);
        out[2] = csub(s02, s13);
        out[1] = {d02.re + d13.im, d02.im - d13.re};
        out[3] = {d02.re - d13.im, d02.im + d13.re};
    }
};

// One length's kernel over any data view.
template <class T, int N, bool Swap, class In, class Out>
inline void ownsSmallOne(const In& in, const Out& out, bool scaled, T f)
{
    Cx<T> x[N], y[N];
    for (int i = 0; i < N; ++i) x[i] = in.template get<Swap>(i);
    SmallDft<T, N>::run(x, 1, y);
    if (scaled)
        for (int i = 0; i < N; ++i) y[i] = {y[i].re * f, y[i].im * f};
    for (int i = 0; i < N; ++i) out.template put<Swap>(i, y[i]);
}

template <class T, bool Swap, class In, class Out>
void ownsSmallTransform(Qsp64s n, const In& in, const Out& out, bool scaled, T f)
{
    switch (n) {
    case 1: ownsSmallOne<T, 1, Swap>(in, out, scaled, f); break;
    case 2: ownsSmallOne<T, 2, Swap>(in, out, scaled, f); break;
    case 3: ownsSmallOne<T, 3, Swap>(in, out, scaled, f); break;
    case 4: ownsSmallOne<T, 4, Swap>(in, out, scaled, f); break;
    case 5: ownsSmallOne<T, 5, Swap>(in, out, scaled, f); break;
    case 6: ownsSmallOne<T, 6, Swap>(in, out, scaled, f); break;
    case 7: ownsSmallOne<T, 7, Swap>(in, out, scaled, f); break;
    case 8: ownsSmallOne<T, 8, Swap>(in, out, scaled, f); break;
    case 9: ownsSmallOne<T, 9, Swap>(in, out, scaled, f); break;
    case 10: ownsSmallOne<T, 10, Swap>(in, out, scaled, f); break;
    case 11: ownsSmallOne<T, 11, Swap>(in, out, scaled, f); break;
    case 12: ownsSmallOne<T, 12, Swap>(in, out, scaled, f); break;
    case 13: ownsSmallOne<T, 13, Swap>(in, out, scaled, f); break;
    case 14: ownsSmallOne<T, 14, Swap>(in, out, scaled, f); break;
    case 15: ownsSmallOne<T, 15, Swap>(in, out, scaled, f); break;
    default: ownsSmallOne<T, 16, Swap>(in, out, scaled, f); break;
    }
}

// Odd n from the table w[j] = W_n^j: with t_m = x_m + x_(n-m) and
// u_m = x_m - x_(n-m), X_k = x_0 + sum c_km t_m - i sum s_km u_m and
// X_(n-k) the same with +i. copy holds n values (the source may be the
// destination).
template <class T, bool Swap, class In, class Out>
void ownsTableTransform(const Cx<T>* w, Qsp64s n, const In& in, const Out& out, Cx<T>* copy, bool scaled, T f)
{
    const Qsp64s h = (n - 1) / 2;
    const Cx<T> x0 = in.template get<Swap>(0);
    Cx<T> y0 = x0;
    for (Qsp64s m = 1; m <= h; ++m) {
        const Cx<T> a = in.template get<Swap>(m), b = in.template get<Swap>(n - m);
        copy[m] = cadd(a, b);
        copy[n - m] = csub(a, b);
        y0 = cadd(y0, copy[m]);
    }
    const T g = scaled ? f : T(1);
    for (Qsp64s k = 1; k <= h; ++k) {
        T br = x0.re, bi = x0.im, dr = 0, di = 0;
        Qsp64s j = 0;
        for (Qsp64s m = 1; m <= h; ++m) {
            j += k;
            if (j >= n) j -= n;
            const T c = w[j].re, s = -w[j].im;
            br += c * copy[m].re;
            bi += c * copy[m].im;
            dr += s * copy[n - m].re;
            di += s * copy[n - m].im;
        }
        out.template put<Swap>(k, Cx<T>{(br + di) * g, (bi - dr) * g});
        out.template put<Swap>(n - k, Cx<T>{(br - di) * g, (bi + dr) * g});
    }
    out.template put<Swap>(0, Cx<T>{y0.re * g, y0.im * g});
}

}  // namespace dft

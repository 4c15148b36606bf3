// SPDX-License-Identifier: BSD-3-Clause
// Roots of unity for transforms of any length: W_n^j = exp(-2 pi i j / n).
//
// A single value is evaluated in the extended format after an exact
// reduction of the angle to at most an eighth of a turn: 4j = q n + r in
// integers, so the angle is q quarter turns (exact rotations) plus pi r/(2n)
// or minus pi (n - r)/(2n). Rounded once to the element type it is the
// correctly rounded value except in the rarest ties.
//
// Whole tables (W_n^j for j < count) use a coarse and a fine table of such
// values, W^(aF + b) = W^(aF) W^b, multiplied in the extended format and
// rounded once: a few multiplications per value instead of a series, which
// keeps record set-up fast.
#pragma once
#include "mathfn/sincospi.h"
#include "qspdefs.h"

namespace dft {

template <class T>
struct Cx {
    T re, im;
};

using CxExt = Cx<long double>;

// exp(-2 pi i j / n) for any integer j (n >= 1), in the extended format.
constexpr CxExt rootExt(Qsp64s j, Qsp64s n)
{
    j %= n;
    if (j < 0) j += n;
    Qsp64s q = (4 * j) / n;
    const Qsp64s r = (4 * j) % n;
    long double t;
    if (2 * r > n) {
        // Closer to the next quarter turn: approach it from below.
        q += 1;
        t = -static_cast<long double>(n - r) / (2.0L * static_cast<long double>(n));
    } else {
        t = static_cast<long double>(r) / (2.0L * static_cast<long double>(n));
    }
    const mathfn::SinCosExt sc = mathfn::sinCosPiKernel(t);
    long double c = 0, s = 0;
    switch (q & 3) {
    case 0: c = sc.c; s = sc.s; break;
    case 1: c = -sc.s; s = sc.c; break;
    case 2: c = -sc.c; s = -sc.s; break;
    default: c = sc.s; s = -sc.c; break;
    }
    return {c, -s};
}

template <class T>
constexpr Cx<T> root(Qsp64s j, Qsp64s n)
{
    const CxExt w = rootExt(j, n);
    return {static_cast<T>(w.re), static_cast<T>(w.im)};
}

// out[j] = W_n^j for 0 <= j < count (count <= n), rounded once to T.
// Values above n/2 are the conjugates of those below, taken exactly.
template <class T>
void ownsBuildRoots(Cx<T>* out, Qsp64s n, Qsp64s count)
{
    const Qsp64s half = n / 2;                       // W^j for j <= half is computed
    const Qsp64s direct = count - 1 < half ? count - 1 : half;
    // fine table size F ~ sqrt(direct + 1), at most 512 values
    Qsp64s fine = 1;
    while (fine * fine < direct + 1 && fine < 512) fine *= 2;
    CxExt fineTab[512];
    for (Qsp64s b = 0; b < fine && b <= direct; ++b) fineTab[b] = rootExt(b, n);
    for (Qsp64s a = 0; a <= direct; a += fine) {
        const CxExt c = rootExt(a, n);
        const Qsp64s m = direct - a + 1 < fine ? direct - a + 1 : fine;
        for (Qsp64s b = 0; b < m; ++b) {
            const CxExt f = fineTab[b];
            out[a + b] = {static_cast<T>(c.re * f.re - c.im * f.im), static_cast<T>(c.re * f.im + c.im * f.re)};
        }
    }
    for (Qsp64s j = direct + 1; j < count; ++j) out[j] = {out[n - j].re, -out[n - j].im};
}

// The constants of the p-point butterfly for odd p: c[k][m] = cos(2 pi k m / p)
// and s[k][m] = sin(2 pi k m / p), 1 <= k, m <= (p-1)/2.
template <class T, int P>
struct OddConstants {
    static constexpr int H = (P - 1) / 2;
    T c[H + 1][H + 1]{}, s[H + 1][H + 1]{};
    constexpr OddConstants()
    {
        for (int k = 1; k <= H; ++k)
            for (int m = 1; m <= H; ++m) {
                const CxExt w = rootExt(Qsp64s(k) * m, P);
                c[k][m] = static_cast<T>(w.re);
                s[k][m] = static_cast<T>(-w.im);
            }
    }
};

template <class T, int P>
inline constexpr OddConstants<T, P> kOdd{};

}  // namespace dft

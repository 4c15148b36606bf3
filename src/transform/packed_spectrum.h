// SPDX-License-Identifier: BSD-3-Clause
// Kernels of the packed-spectrum families: products of half spectra in the
// Pack and Perm layouts and their expansion into complete spectra.
//
// Layouts for a real signal of length N (len = N):
//   Pack  R0, R1, I1, ..., R(N/2-1), I(N/2-1), R(N/2)    (even N)
//         R0, R1, I1, ..., R((N-1)/2), I((N-1)/2)        (odd N)
//   Perm  R0, R(N/2), R1, I1, ...                         (even N; odd N as Pack)
//   CCS   R0, 0, R1, I1, ..., R(N/2), 0                  (N+2 values; odd N: N+1)
#pragma once
#include "qspdefs.h"

namespace packed {

enum class Layout { Pack, Perm, Ccs };

// d = s * d (Conj: d = s * conj(d)) for the complex pairs starting at
// `first`, count pairs.
template <class T, bool Conj>
void ownsMulPairs(const T* s1, const T* s2, T* d, Qsp64s first, Qsp64s count)
{
    for (Qsp64s j = 0; j < count; ++j) {
        const Qsp64s i = first + 2 * j;
        const T ar = s1[i], ai = s1[i + 1], br = s2[i], bi = s2[i + 1];
        if constexpr (Conj) {
            d[i] = ar * br + ai * bi;
            d[i + 1] = ai * br - ar * bi;
        } else {
            d[i] = ar * br - ai * bi;
            d[i + 1] = ar * bi + ai * br;
        }
    }
}

// The product of two half spectra of the layout (Pack or Perm), d = s1 * s2
// (Conj: s1 * conj(s2)); d may be s2.
template <class T, Layout L, bool Conj>
void ownsMulPacked(const T* s1, const T* s2, T* d, Qsp64s len)
{
    const bool even = (len & 1) == 0;
    Qsp64s first = 1;
    Qsp64s pairs = (len - 1) / 2;
    if (even) {
        // Two real bins: element len-1 (Pack) or element 1 (Perm).
        const Qsp64s other = L == Layout::Pack ? len - 1 : 1;
        d[other] = s1[other] * s2[other];
        if (L == Layout::Perm) first = 2;
        pairs = (len - 2) / 2;
    }
    d[0] = s1[0] * s2[0];
    ownsMulPairs<T, Conj>(s1, s2, d, first, pairs);
}

// The complete conjugate-symmetric spectrum of len complex values from a
// half spectrum; src may be the start of dst (the expansion runs from the
// top down and reads every bin before overwriting it).
template <class T, Layout L>
void ownsExpand(const T* src, T* dst, Qsp64s len)
{
    const Qsp64s n = len;
    const bool even = (n & 1) == 0;
    const Qsp64s top = n / 2;  // highest stored bin
    // Bins 0 and, for even n, n/2, saved before anything is written.
    const T r0 = src[0], i0 = L == Layout::Ccs ? src[1] : T(0);
    T rh = T(0), ih = T(0);
    if (even && n >= 2) {
        if (L == Layout::Pack) rh = src[n - 1];
        else if (L == Layout::Perm) rh = src[1];
        else {
            rh = src[n];
            ih = src[n + 1];
        }
    }
    // Position of the stored pair of bin k (1 <= k, k < n/2 for even n).
    auto at = [&](Qsp64s k) -> Qsp64s {
        if (L == Layout::Pack || (L == Layout::Perm && !even)) return 2 * k - 1;
        return 2 * k;
    };
    const Qsp64s lastPair = even ? top - 1 : top;
    if (even && n >= 2) {
        dst[2 * top] = rh;
        dst[2 * top + 1] = ih;
    }
    for (Qsp64s k = lastPair; k >= 1; --k) {
        const T re = src[at(k)], im = src[at(k) + 1];
        dst[2 * (n - k)] = re;
        dst[2 * (n - k) + 1] = -im;
        dst[2 * k] = re;
        dst[2 * k + 1] = im;
    }
    dst[0] = r0;
    dst[1] = i0;
}

}  // namespace packed

// SPDX-License-Identifier: BSD-3-Clause
// Twiddle factors of the power-of-two transforms.
//
// Every twiddle W_N^k = exp(-2*pi*i*k/N) is taken from one table of the
// first octant, cos and sin of 2*pi*j/N for 0 <= j <= N/8, by the exact
// symmetries of the circle, so each one is the correctly rounded value (no
// value is ever obtained by repeated multiplication).
//
// Lengths up to 1024 read the octant from the built-in table, computed by the
// compiler from the library's own sine and cosine. Longer lengths build the
// octant at Init in the caller's initialisation buffer: each value is the
// product, in the extended format, of a coarse and a fine extended-precision
// value, rounded once to the element type.
#pragma once
#include "mathfn/sincospi.h"
#include "qspdefs.h"

namespace fft {

template <class T>
struct Cplx {
    T re, im;
};

// The built-in octant has length 1024: cos and sin of 2*pi*j/1024, 0 <= j <= 128.
constexpr int kBuiltinOrder = 10;
constexpr int kBuiltinOctant = (1 << kBuiltinOrder) / 8;


// A view of the octant of length 2^order: entry j is (cos, sin) of
// 2*pi*j/2^order, stored at table[j * stride].
template <class T>
struct Octant {
    const Cplx<T>* table;
    Qsp64s stride;
    int order;
};

// Fills octant[0..N/8] for N = 2^order (order >= 3) in the element type.
template <class T>
void ownsBuildOctant(Cplx<T>* octant, int order);

// W_N^k = exp(-2*pi*i*k/N) for 0 <= k < N, N = 2^order, from an octant
// table of T (orders 0..2 have no octant and are served exactly).
template <class T>
inline Cplx<T> twiddle(const Octant<T>& o, Qsp64s k)
{
    const Qsp64s n = Qsp64s(1) << o.order;
    k &= n - 1;
    if (o.order < 3) {
        // N = 1, 2, 4: the values are 1, -1, -i, i exactly.
        const Qsp64s q = o.order == 0 ? 0 : (k << (2 - o.order));
        switch (q & 3) {
        case 0: return {T(1), T(0)};
        case 1: return {T(0), T(-1)};
        case 2: return {T(-1), T(0)};
        default: return {T(0), T(1)};
        }
    }
    const Qsp64s quarter = n >> 2;
    const Qsp64s q = k >> (o.order - 2), r = k & (quarter - 1);
    T c, s;
    if (r <= (quarter >> 1)) {
        const Cplx<T> v = o.table[r * o.stride];
        c = v.re;
        s = v.im;
    } else {
        const Cplx<T> v = o.table[(quarter - r) * o.stride];
        c = v.im;
        s = v.re;
    }
    // exp(+i*theta) rotated by q quarter turns, then conjugated.
    switch (q) {
    case 0: return {c, -s};
    case 1: return {-s, -c};
    case 2: return {-c, s};
    default: return {s, c};
    }
}

// out[i] = W_N^(e0 + i*de) for 0 <= i < count, N = 2^o.order >= 8, in the
// element type U: the exponents are walked in runs that read the octant
// table in one direction with one rotation, so each value costs a load and
// a store.
template <class U, class T>
void ownsFillTwiddleRun(Cplx<U>* out, Qsp64s count, Qsp64s e0, Qsp64s de, const Octant<T>& o)
{
    const Qsp64s n = Qsp64s(1) << o.order, quarter = n >> 2, eighth = n >> 3;
    const int qShift = o.order - 2;
    de &= n - 1;
    Qsp64s e = e0 & (n - 1);
    Qsp64s i = 0;
    while (i < count) {
        if (de == 0) {
            const Cplx<T> w = twiddle(o, e);
            for (; i < count; ++i) out[i] = {U(w.re), U(w.im)};
            return;
        }
        const Qsp64s q = e >> qShift, r = e & (quarter - 1);
        // Values up to the end of this half-quadrant (r <= N/8 reads the
        // octant upwards, r > N/8 downwards) or of the circle.
        const bool mirror = r > eighth;
        const Qsp64s limit = mirror ? quarter : eighth + 1;  // first r outside the run
        Qsp64s run = (limit - r + de - 1) / de;
        const Qsp64s toWrap = (n - e + de - 1) / de;
        if (run > toWrap) run = toWrap;
        if (run > count - i) run = count - i;
        const Cplx<T>* t = o.table;
        const Qsp64s stride = o.stride;
        // exp(+i theta) = i^q (c + i s), conjugated, is (c, -s), (-s, -c),
        // (-c, s), (s, c) for q = 0..3, with c, s exchanged in the mirrored
        // half: one exchange decision and two signs for the whole run (a
        // multiplication by -1 is exact and keeps the signs of zeros).
        const bool swap = mirror != ((q & 1) != 0);
        const T sr = (q == 1 || q == 2) ? T(-1) : T(1);
        const T si = (q == 0 || q == 1) ? T(-1) : T(1);
        Qsp64s idx = mirror ? quarter - r : r;
        const Qsp64s didx = (mirror ? -de : de) * stride;
        const Cplx<T>* src = t + idx * stride;
        Cplx<U>* dst = out + i;
        if (swap)
            for (Qsp64s j = 0; j < run; ++j, src += didx) dst[j] = {U(sr * src->im), U(si * src->re)};
        else
            for (Qsp64s j = 0; j < run; ++j, src += didx) dst[j] = {U(sr * src->re), U(si * src->im)};
        i += run;
        e = (e + run * de) & (n - 1);
    }
}

// The built-in octant as a view for lengths up to 1024, in T.
template <class T>
struct BuiltinAs {
    Cplx<T> v[kBuiltinOctant + 1];
};

template <class T>
constexpr BuiltinAs<T> makeBuiltinAs()
{
    BuiltinAs<T> t{};
    // Rounded once, from the extended-precision values, to T.
    for (int j = 0; j <= kBuiltinOctant; ++j) {
        const mathfn::SinCosExt sc = mathfn::sinCosPiExt(2.0 * j / (1 << kBuiltinOrder));
        t.v[j] = {T(sc.c), T(sc.s)};
    }
    return t;
}

template <class T>
inline constexpr BuiltinAs<T> kBuiltinAs = makeBuiltinAs<T>();

// The built-in octant as the octant of length 2^order, order <= 10.
template <class T>
inline Octant<T> builtinOctant(int order)
{
    // Above the built-in order the record carries a table of its own, and
    // the stride here is never used.
    const bool strided = order >= 3 && order <= kBuiltinOrder;
    return {kBuiltinAs<T>.v, strided ? (Qsp64s(1) << (kBuiltinOrder - order)) : 0, order};
}

}  // namespace fft

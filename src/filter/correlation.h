// SPDX-License-Identifier: BSD-3-Clause
// Correlation over a range of lags, shared by AutoCorrNorm and
// CrossCorrNorm:
//     r[lag] = sum over n of src2[n + lag] conj(src1[n]),
//     pDst[k] = r[lowLag + k] / norm(lowLag + k),   0 <= k < dstLen.
// As a convolution with the reversed conjugate of src1 as taps,
// r[lag] = y[lag + n1 - 1]. When src1 is the longer operand the roles swap
// (the taps are always the shorter one): r[lag] = conj(r'[-lag]) with r'
// the correlation of src1 against src2, so the window is computed in the
// opposite order and reversed afterwards.
#pragma once
#include "convolution.h"
#include "qsp_validators.h"
#include "arith/rounding.h"
#include "arith/scaling.h"

namespace corr {

// Normalisations, the values of QspCorrNorm.
constexpr int kNone = 0, kBiased = 1, kUnbiased = 2, kUnitEnergy = 3;

inline bool validNorm(int n) { return static_cast<unsigned>(n) <= 3u; }

// Where the lags fall in the convolution of taps (m samples) and x (xLen).
struct Geometry {
    bool swapped;
    Qsp64s m, xLen;
    Qsp64s m0;      // convolution index of the window's first value
    Qsp64s lead;    // window values before index 0 (zeros)
    Qsp64s inside;  // window values inside [0, m + xLen - 1), after lead
};

inline Geometry geometry(Qsp64s n1, Qsp64s n2, Qsp64s dstLen, Qsp64s lowLag)
{
    Geometry g;
    g.swapped = n1 > n2;
    g.m = g.swapped ? n2 : n1;
    g.xLen = g.swapped ? n1 : n2;
    // Unswapped, pDst[k] is y[lowLag + k + n1 - 1]; swapped, it is
    // conj(y'[n2 - 1 - lowLag - k]), whose window starts at k = dstLen - 1.
    g.m0 = g.swapped ? n2 - 1 - lowLag - (dstLen - 1) : lowLag + n1 - 1;
    const Qsp64s end = n1 + n2 - 1;
    g.lead = g.m0 < 0 ? (-g.m0 < dstLen ? -g.m0 : dstLen) : 0;
    const Qsp64s from = g.m0 + g.lead;
    g.inside = end - from;
    if (g.inside > dstLen - g.lead) g.inside = dstLen - g.lead;
    if (g.inside < 0) g.inside = 0;
    return g;
}

// Products at a lag: n with 0 <= n < n1 and 0 <= n + lag < n2.
inline Qsp64s overlap(Qsp64s n1, Qsp64s n2, Qsp64s lag)
{
    const Qsp64s lo = lag < 0 ? -lag : 0;
    const Qsp64s hi = n2 - lag < n1 ? n2 - lag : n1;
    return hi > lo ? hi - lo : 0;
}

// Work-buffer bytes of a floating type and of 16-bit data.
template <class D>
Qsp64s bufferBytes(Qsp64s n1, Qsp64s n2, Qsp64s dstLen, Qsp64s lowLag, QspAlgType alg)
{
    const Geometry g = geometry(n1, n2, dstLen, lowLag);
    return conv::plan<D>(g.m, g.xLen, g.inside, alg).bytes;
}

inline Qsp64s bufferBytes16(Qsp64s n1, Qsp64s n2, Qsp64s dstLen, Qsp64s lowLag, QspAlgType alg)
{
    const Geometry g = geometry(n1, n2, dstLen, lowLag);
    const conv::Plan16 p = conv::plan16(g.m, g.xLen, g.inside, alg);
    return p.bytes < 0 ? -1 : p.bytes + conv::roundUp64(8 * g.inside);
}

// ---------------------------------------------------------------- divisors

// What a lag's value is divided by (0: the value is 0).
struct Divisor {
    int norm;
    Qsp64s n1, n2, lowLag;
    double energy;  // sqrt(E1 E2) for kUnitEnergy
    double at(Qsp64s k) const
    {
        switch (norm) {
        case kBiased: return double(n1 > n2 ? n1 : n2);
        case kUnbiased: return double(overlap(n1, n2, lowLag + k));
        default: return energy;
        }
    }
};

template <class D>
double energyOf(const D* x, Qsp64s n)
{
    double e = 0;
    if constexpr (std::is_same_v<D, Qsp32f> || std::is_same_v<D, Qsp64f>) {
        for (Qsp64s i = 0; i < n; ++i) e += double(x[i]) * double(x[i]);
    } else {
        for (Qsp64s i = 0; i < n; ++i) e += double(x[i].re) * double(x[i].re) + double(x[i].im) * double(x[i].im);
    }
    return e;
}

// ---------------------------------------------------------------- floating types

template <class D>
void conjugate(D* p, int n)
{
    if constexpr (std::is_same_v<D, Qsp32fc>) y8::qspsConj_32fc_I(p, n);
    else if constexpr (std::is_same_v<D, Qsp64fc>) y8::qspsConj_64fc_I(p, n);
}

template <class D>
void flip(D* p, int n)
{
    if constexpr (std::is_same_v<D, Qsp32f>) y8::qspsFlip_32f_I(p, n);
    else if constexpr (std::is_same_v<D, Qsp64f>) y8::qspsFlip_64f_I(p, n);
    else if constexpr (std::is_same_v<D, Qsp32fc>) y8::qspsFlip_32fc_I(p, n);
    else y8::qspsFlip_64fc_I(p, n);
}

template <class D>
void divide(D* p, double d)
{
    if constexpr (std::is_same_v<D, Qsp32f> || std::is_same_v<D, Qsp64f>) {
        *p = D(double(*p) / d);
    } else {
        using P = decltype(p->re);
        p->re = P(double(p->re) / d);
        p->im = P(double(p->im) / d);
    }
}

// The correlation of the arguments already checked, into pDst, then
// normalised.
template <class D>
QspStatus ownsCorrelate(const D* src1, Qsp64s n1, const D* src2, Qsp64s n2, D* dst, int dstLen, Qsp64s lowLag,
                        QspAlgType alg, int norm, Qsp8u* work)
{
    const Geometry g = geometry(n1, n2, dstLen, lowLag);
    const conv::Plan pl = conv::plan<D>(g.m, g.xLen, g.inside, alg);
    constexpr bool cplx = !std::is_same_v<D, Qsp32f> && !std::is_same_v<D, Qsp64f>;
    const D* taps = g.swapped ? src2 : src1;
    const D* x = g.swapped ? src1 : src2;
    const conv::Taps<D, -1, cplx> view{taps + (g.m - 1)};
    if (QspStatus s = conv::ownsConvolve(view, g.m, x, g.xLen, g.m0, dst, dstLen, pl, work)) return s;
    if (g.swapped) {
        flip(dst, dstLen);
        conjugate(dst, dstLen);
    }
    if (norm == kNone) return qspStsOk;
    Divisor dv{norm, n1, n2, lowLag, 0};
    if (norm == kUnitEnergy) {
        const double e1 = energyOf(src1, n1);
        dv.energy = simd::sqrtOne(e1 * (src1 == src2 && n1 == n2 ? e1 : energyOf(src2, n2)));
    }
    for (int k = 0; k < dstLen; ++k) {
        const double d = dv.at(k);
        if (d > 0) divide(dst + k, d);
        else samples::zero(dst + k, 1);
    }
    return qspStsOk;
}

// ---------------------------------------------------------------- 16-bit data

// v / (d 2^s) rounded to nearest, ties to even, and saturated to 16 bits;
// d >= 1, |v| < 2^62. Exact: integer quotient and remainder.
inline Qsp16s roundRatio16(Qsp64s v, Qsp64u d, int s)
{
    if (v == 0) return 0;
    const bool neg = v < 0;
    const Qsp64u a = neg ? Qsp64u(0) - Qsp64u(v) : Qsp64u(v);
    Qsp64u q, r, den;
    if (s >= 0) {
        // A denominator of 2^63 or more leaves at most a quarter: 0.
        if (s >= 63 || d >= (Qsp64u(1) << (63 - s))) return 0;
        den = d << s;
        q = a / den;
        r = a % den;
    } else {
        const int k = -s;
        // a 2^k at or beyond 2^64 is far beyond 32768 d (d < 2^33).
        if (k >= 64 || a > (~Qsp64u(0) >> k)) return neg ? Qsp16s(-32768) : Qsp16s(32767);
        den = d;
        q = (a << k) / den;
        r = (a << k) % den;
    }
    if (r > den - r || (r == den - r && (q & 1))) ++q;
    if (neg) return q >= 32768 ? Qsp16s(-32768) : Qsp16s(-Qsp64s(q));
    return q >= 32767 ? Qsp16s(32767) : Qsp16s(q);
}

inline Qsp64s energy16(const Qsp16s* x, Qsp64s n)
{
    Qsp64s e = 0;
    for (Qsp64s i = 0; i < n; ++i) e += Qsp64s(Qsp32s(x[i]) * Qsp32s(x[i]));
    return e;
}

// The exact correlation of 16-bit data, then store(k, v, divisor) for
// every output: v the 64-bit sum at pDst[k], divisor what the
// normalisation divides it by (1 for none, 0 where there is nothing).
template <class Store>
QspStatus ownsCorrelate16(const Qsp16s* src1, Qsp64s n1, const Qsp16s* src2, Qsp64s n2, int dstLen, Qsp64s lowLag,
                          QspAlgType alg, int norm, Qsp8u* work, Store store)
{
    const Geometry g = geometry(n1, n2, dstLen, lowLag);
    const conv::Plan16 pl = conv::plan16(g.m, g.xLen, g.inside, alg);
    Qsp64s* acc = reinterpret_cast<Qsp64s*>(conv::alignUp64(work));
    Qsp8u* rest = reinterpret_cast<Qsp8u*>(acc) + conv::roundUp64(8 * g.inside);
    const Qsp16s* taps = g.swapped ? src2 : src1;
    const Qsp16s* x = g.swapped ? src1 : src2;
    if (g.inside > 0) {
        if (QspStatus s = conv::ownsConvolve16(taps + (g.m - 1), -1, g.m, x, g.xLen, g.m0 + g.lead, g.inside, acc, pl,
                                               rest))
            return s;
    }
    Divisor dv{norm, n1, n2, lowLag, 0};
    if (norm == kUnitEnergy) {
        const Qsp64s e1 = energy16(src1, n1);
        dv.energy = simd::sqrtOne(double(e1) * double(src1 == src2 && n1 == n2 ? e1 : energy16(src2, n2)));
    }
    for (Qsp64s k = 0; k < dstLen; ++k) {
        const Qsp64s w = (g.swapped ? dstLen - 1 - k : k) - g.lead;
        const Qsp64s v = w >= 0 && w < g.inside ? acc[w] : 0;
        store(k, v, norm == kNone ? 1.0 : dv.at(k));
    }
    return qspStsOk;
}

// ---------------------------------------------------------------- 16-bit results

// The range of a sum of m products of 16-bit values.
inline scaling::Limits limits16(Qsp64s m)
{
    return scaling::limitsFor<Qsp16s>(-1073709056LL * m, 1073741824LL * m);
}

// dst = the exact sums as single precision (divided in double first when
// normalised): run(store) computes them and calls store per output.
template <class Run>
QspStatus sink32f(Qsp32f* dst, int norm, Run run)
{
    if (norm == kNone) return run([=](Qsp64s k, Qsp64s v, double) { dst[k] = Qsp32f(v); });
    return run([=](Qsp64s k, Qsp64s v, double d) { dst[k] = d > 0 ? Qsp32f(double(v) / d) : 0.0f; });
}

// dst = the sums by the scale-factor rule: plain sums with its kernels
// (and the zero fill when every result rounds to 0), sums divided by a
// length rounded exactly from the quotient, sums divided by the energies
// rounded from their double-precision quotient.
template <class Run>
QspStatus sink16s(Qsp16s* dst, Qsp64s count, int norm, int scaleFactor, Qsp64s m, Run run)
{
    if (norm == kNone) {
        return scaling::select(
            scaleFactor, limits16(m),
            [&](auto mode) { return run([=](Qsp64s k, Qsp64s v, double) { dst[k] = mode.template apply<Qsp16s>(v); }); },
            [&]() -> QspStatus {
                for (Qsp64s at = 0; at < count; at += 0x40000000)
                    if (QspStatus s = y8::qspsZero_16s(dst + at, int(count - at < 0x40000000 ? count - at : 0x40000000)))
                        return s;
                return qspStsOk;
            });
    }
    if (norm == kUnitEnergy) {
        const auto scale = rounding::PowerOfTwo::scaleFactor(scaleFactor);
        return run([=](Qsp64s k, Qsp64s v, double d) {
            dst[k] = d > 0 ? rounding::toInt<rounding::kNear, Qsp16s>(scale(double(v) / d)) : Qsp16s(0);
        });
    }
    return run([=](Qsp64s k, Qsp64s v, double d) { dst[k] = d > 0 ? roundRatio16(v, Qsp64u(d), scaleFactor) : Qsp16s(0); });
}

}  // namespace corr

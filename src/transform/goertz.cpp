// SPDX-License-Identifier: BSD-3-Clause
// Goertz: one DFT bin, X = sum over n of x[n] exp(-2 pi i f n), at a relative
// frequency f in [0, 1).
//
// The classic second-order recurrence is a chain of dependent operations
// per sample and loses accuracy near f = 0 and f = 1/2 (its error grows
// with the square of the length there). Here the sum is formed directly:
// four lanes take every fourth sample, each with its phase factor, which
// advances by multiplication with exp(-2 pi i 4 f) in double precision. Every
// kBlock samples the phases are taken afresh from the exact phase
// frac(f n) (formed in integers, so that neither the length nor the
// frequency limits it) evaluated in the extended format, so a phase is
// never more than kBlock/4 multiplications away from an exact value. The
// sums are kept in double; the integer forms scale the bin by
// 2^-scaleFactor, round it to nearest (ties to even) and saturate it.
#include <type_traits>

#include "arith/rounding.h"
#include "checks.h"
#include "dft_roots.h"
#include "qsp_validators.h"

namespace y8 {
namespace {

using dft::Cx;

constexpr Qsp64s kBlock = 2048;

// frac(f n) exactly (to the extended format's precision), 0 <= f < 1.
long double fracProduct(double f, Qsp64u n)
{
    if (f == 0.0 || n == 0) return 0.0L;
    const Qsp64u bits = __builtin_bit_cast(Qsp64u, f);
    int e = int((bits >> 52) & 0x7FF);
    Qsp64u m = bits & ((Qsp64u(1) << 52) - 1);
    if (e != 0)
        m |= Qsp64u(1) << 52;
    else
        e = 1;
    int k = 1075 - e;  // f = m / 2^k, k >= 53
    unsigned __int128 p = static_cast<unsigned __int128>(m) * n;
    if (k < 128) p &= (static_cast<unsigned __int128>(1) << k) - 1;
    long double v = static_cast<long double>(static_cast<Qsp64u>(p >> 64)) * 18446744073709551616.0L +
                    static_cast<long double>(static_cast<Qsp64u>(p));
    for (; k >= 63; k -= 63) v *= 1.0L / 9223372036854775808.0L;
    return v / static_cast<long double>(Qsp64u(1) << k);
}

// exp(-2 pi i t), 0 <= t < 1: the nearest quarter turn exactly, the rest
// (at most an eighth of a turn) by the extended-precision kernel.
Cx<double> turn(long double t)
{
    const int q = static_cast<int>(4.0L * t + 0.5L);
    const long double r = t - static_cast<long double>(q) * 0.25L;  // |r| <= 1/8
    const mathfn::SinCosExt sc = mathfn::sinCosPiKernel(2.0L * r);
    long double c = 0, s = 0;
    switch (q & 3) {
    case 0: c = sc.c, s = sc.s; break;
    case 1: c = -sc.s, s = sc.c; break;
    case 2: c = -sc.c, s = -sc.s; break;
    default: c = sc.s, s = -sc.c; break;
    }
    return {static_cast<double>(c), static_cast<double>(-s)};
}

inline Cx<double> phaseAt(double f, Qsp64u n) { return turn(fracProduct(f, n)); }

inline Cx<double> cmul(Cx<double> a, Cx<double> b) { return {a.re * b.re - a.im * b.im, a.re * b.im + a.im * b.re}; }

// Samples as pairs of doubles: real data have a zero imaginary part.
template <class S>
struct Samples;

template <>
struct Samples<Qsp32f> {
    static constexpr bool complex = false;
    static Cx<double> at(const Qsp32f* p, Qsp64s i) { return {double(p[i]), 0.0}; }
};
template <>
struct Samples<Qsp64f> {
    static constexpr bool complex = false;
    static Cx<double> at(const Qsp64f* p, Qsp64s i) { return {p[i], 0.0}; }
};
template <>
struct Samples<Qsp16s> {
    static constexpr bool complex = false;
    static Cx<double> at(const Qsp16s* p, Qsp64s i) { return {double(p[i]), 0.0}; }
};
template <>
struct Samples<Qsp32s> {
    static constexpr bool complex = false;
    static Cx<double> at(const Qsp32s* p, Qsp64s i) { return {double(p[i]), 0.0}; }
};
template <class C>
struct ComplexSamples {
    static constexpr bool complex = true;
    static Cx<double> at(const C* p, Qsp64s i) { return {double(p[i].re), double(p[i].im)}; }
};
template <>
struct Samples<Qsp32fc> : ComplexSamples<Qsp32fc> {};
template <>
struct Samples<Qsp64fc> : ComplexSamples<Qsp64fc> {};
template <>
struct Samples<Qsp16sc> : ComplexSamples<Qsp16sc> {};
template <>
struct Samples<Qsp32sc> : ComplexSamples<Qsp32sc> {};

// Four samples n0 .. n0+3 as two registers of doubles each (real and
// imaginary parts), lanes (n0, n0+1) and (n0+2, n0+3).
template <class S>
struct Quad {
    using V = simd::Vec<double>;
    using R = V::Reg;
    R re[2], im[2];
};

template <class S>
inline void loadQuad(const S* p, Qsp64s n0, Quad<S>& q)
{
    using V = simd::Vec<double>;
    if constexpr (std::is_same_v<S, Qsp32f>) {
        const __m128 f = simd::Vec<float>::loadu(p + n0);
        q.re[0] = V::widenLow(f);
        q.re[1] = V::widenHigh(f);
    } else if constexpr (std::is_same_v<S, Qsp64f>) {
        q.re[0] = V::loadu(p + n0);
        q.re[1] = V::loadu(p + n0 + 2);
    } else if constexpr (std::is_same_v<S, Qsp32fc>) {
        const __m128 a = simd::Vec<float>::loadu(&p[n0].re), b = simd::Vec<float>::loadu(&p[n0 + 2].re);
        const __m128 r = simd::Vec<float>::evens(a, b), i = simd::Vec<float>::odds(a, b);
        q.re[0] = V::widenLow(r);
        q.re[1] = V::widenHigh(r);
        q.im[0] = V::widenLow(i);
        q.im[1] = V::widenHigh(i);
    } else if constexpr (std::is_same_v<S, Qsp64fc>) {
        const V::Reg a = V::loadu(&p[n0].re), b = V::loadu(&p[n0 + 1].re);
        const V::Reg c = V::loadu(&p[n0 + 2].re), d = V::loadu(&p[n0 + 3].re);
        q.re[0] = V::evens(a, b);
        q.im[0] = V::odds(a, b);
        q.re[1] = V::evens(c, d);
        q.im[1] = V::odds(c, d);
    } else {
        for (int h = 0; h < 2; ++h) {
            const Cx<double> a = Samples<S>::at(p, n0 + 2 * h), b = Samples<S>::at(p, n0 + 2 * h + 1);
            q.re[h] = V::pair(a.re, b.re);
            q.im[h] = V::pair(a.im, b.im);
        }
    }
}

// The bin of len samples at relative frequency f.
template <class S>
Cx<double> ownsGoertz(const S* p, Qsp64s len, double f)
{
    using V = simd::Vec<double>;
    using R = V::Reg;
    const Cx<double> w1 = phaseAt(f, 1);
    const Cx<double> w2 = cmul(w1, w1), w3 = cmul(w2, w1), w4 = cmul(w2, w2);
    const R stepRe = V::splat(w4.re), stepIm = V::splat(w4.im);
    R accRe[2] = {V::zero(), V::zero()}, accIm[2] = {V::zero(), V::zero()};
    Qsp64s n0 = 0;
    const Qsp64s body = len & ~Qsp64s(3);
    while (n0 < body) {
        // lane phases of this block from the exact phase of its first sample
        const Cx<double> b = phaseAt(f, static_cast<Qsp64u>(n0));
        const Cx<double> b1 = cmul(b, w1), b2 = cmul(b, w2), b3 = cmul(b, w3);
        R pr[2] = {V::pair(b.re, b1.re), V::pair(b2.re, b3.re)};
        R pi[2] = {V::pair(b.im, b1.im), V::pair(b2.im, b3.im)};
        const Qsp64s end = n0 + kBlock < body ? n0 + kBlock : body;
        for (; n0 < end; n0 += 4) {
            Quad<S> q;
            loadQuad<S>(p, n0, q);
            for (int h = 0; h < 2; ++h) {
                if constexpr (Samples<S>::complex) {
                    accRe[h] = V::add(accRe[h], V::sub(V::mul(q.re[h], pr[h]), V::mul(q.im[h], pi[h])));
                    accIm[h] = V::add(accIm[h], V::add(V::mul(q.re[h], pi[h]), V::mul(q.im[h], pr[h])));
                } else {
                    accRe[h] = V::add(accRe[h], V::mul(q.re[h], pr[h]));
                    accIm[h] = V::add(accIm[h], V::mul(q.re[h], pi[h]));
                }
                const R nr = V::sub(V::mul(pr[h], stepRe), V::mul(pi[h], stepIm));
                pi[h] = V::add(V::mul(pr[h], stepIm), V::mul(pi[h], stepRe));
                pr[h] = nr;
            }
        }
    }
    alignas(16) double re[2], im[2];
    V::store(re, V::add(accRe[0], accRe[1]));
    V::store(im, V::add(accIm[0], accIm[1]));
    Cx<double> x{re[0] + re[1], im[0] + im[1]};
    for (Qsp64s n = body; n < len; ++n) {
        const Cx<double> v = cmul(Samples<S>::at(p, n), phaseAt(f, static_cast<Qsp64u>(n)));
        x.re += v.re;
        x.im += v.im;
    }
    return x;
}

inline bool validFreq(double f) { return f >= 0.0 && f < 1.0; }

// Floating forms: pointers, length, frequency; the bin rounded to the
// destination's precision.
template <class S, class C, class F>
QspStatus floating(const S* pSrc, Qsp64s len, C* pVal, F rFreq)
{
    if (!validFreq(rFreq)) return qspStsBadRelFreq;
    const Cx<double> x = ownsGoertz(pSrc, len, double(rFreq));
    using P = decltype(pVal->re);
    *pVal = {static_cast<P>(x.re), static_cast<P>(x.im)};
    return qspStsOk;
}

// Integer forms: the bin times 2^-scaleFactor, to nearest with ties to even,
// saturated to the part type.
template <class S, class C>
QspStatus scaled(const S* pSrc, int len, C* pVal, float rFreq, int scaleFactor)
{
    if (QspStatus s = check::vectors(len, pSrc, pVal)) return s;
    if (!validFreq(rFreq)) return qspStsBadRelFreq;
    const Cx<double> x = ownsGoertz(pSrc, len, double(rFreq));
    using P = decltype(pVal->re);
    const auto scale = rounding::PowerOfTwo::scaleFactor(scaleFactor);
    *pVal = {rounding::toInt<rounding::kNear, P>(scale(x.re)), rounding::toInt<rounding::kNear, P>(scale(x.im))};
    return qspStsOk;
}

}  // namespace

QspStatus qspsGoertz_16s_Sfs(const Qsp16s* pSrc, int len, Qsp16sc* pVal, Qsp32f rFreq, int scaleFactor)
{
    return scaled(pSrc, len, pVal, rFreq, scaleFactor);
}

QspStatus qspsGoertz_16sc_Sfs(const Qsp16sc* pSrc, int len, Qsp16sc* pVal, Qsp32f rFreq, int scaleFactor)
{
    return scaled(pSrc, len, pVal, rFreq, scaleFactor);
}

QspStatus qspsGoertz_32s_Sfs(const Qsp32s* pSrc, int len, Qsp32sc* pVal, Qsp32f rFreq, int scaleFactor)
{
    return scaled(pSrc, len, pVal, rFreq, scaleFactor);
}

QspStatus qspsGoertz_32sc_Sfs(const Qsp32sc* pSrc, int len, Qsp32sc* pVal, Qsp32f rFreq, int scaleFactor)
{
    return scaled(pSrc, len, pVal, rFreq, scaleFactor);
}

QspStatus qspsGoertz_32f(const Qsp32f* pSrc, int len, Qsp32fc* pVal, Qsp32f rFreq)
{
    if (QspStatus s = check::vectors(len, pSrc, pVal)) return s;
    return floating(pSrc, len, pVal, rFreq);
}

QspStatus qspsGoertz_32fc(const Qsp32fc* pSrc, int len, Qsp32fc* pVal, Qsp32f rFreq)
{
    if (QspStatus s = check::vectors(len, pSrc, pVal)) return s;
    return floating(pSrc, len, pVal, rFreq);
}

QspStatus qspsGoertz_64f(const Qsp64f* pSrc, int len, Qsp64fc* pVal, Qsp64f rFreq)
{
    if (QspStatus s = check::vectors(len, pSrc, pVal)) return s;
    return floating(pSrc, len, pVal, rFreq);
}

QspStatus qspsGoertz_64fc(const Qsp64fc* pSrc, int len, Qsp64fc* pVal, Qsp64f rFreq)
{
    if (QspStatus s = check::vectors(len, pSrc, pVal)) return s;
    return floating(pSrc, len, pVal, rFreq);
}

// The 64-bit length forms check the length first, then the pointers.
QspStatus qspsGoertz_32f_L(const Qsp32f* pSrc, Qsp64s len, Qsp32fc* pVal, Qsp32f rFreq)
{
    if (QspStatus s = check::vectorsL(len, pSrc, pVal)) return s;
    return floating(pSrc, len, pVal, rFreq);
}

QspStatus qspsGoertz_32fc_L(const Qsp32fc* pSrc, Qsp64s len, Qsp32fc* pVal, Qsp32f rFreq)
{
    if (QspStatus s = check::vectorsL(len, pSrc, pVal)) return s;
    return floating(pSrc, len, pVal, rFreq);
}

QspStatus qspsGoertz_64f_L(const Qsp64f* pSrc, Qsp64s len, Qsp64fc* pVal, Qsp64f rFreq)
{
    if (QspStatus s = check::vectorsL(len, pSrc, pVal)) return s;
    return floating(pSrc, len, pVal, rFreq);
}

QspStatus qspsGoertz_64fc_L(const Qsp64fc* pSrc, Qsp64s len, Qsp64fc* pVal, Qsp64f rFreq)
{
    if (QspStatus s = check::vectorsL(len, pSrc, pVal)) return s;
    return floating(pSrc, len, pVal, rFreq);
}

}  // namespace y8

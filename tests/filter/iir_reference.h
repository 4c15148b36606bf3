// SPDX-License-Identifier: BSD-3-Clause
// Helpers of the IIR tests: every kind of IIR state described by its
// functions and types, states built in canary-guarded buffers, long double
// references of the three filter shapes (AR and biquads in the transposed
// direct form, biquads in direct form 1), and the error bound that a
// filter's output must meet.
//
// The bound. Each section (an AR filter, or one biquad) computes its output
// y[n] from products of its taps with inputs and past outputs. Rounding
// adds to each output a local error of at most c u S[n], where u is the unit
// roundoff of the state's precision, S[n] the sum of the magnitudes of all
// products forming y[n] (past outputs included; at least |y[n]|), and c
// counts the roundings on the way: the 2N+1 products and their sums, the
// register lookahead of the kernels (L - 1 more products and sums) and the
// state's conversion at the ends of a call, doubled for margin, and doubled
// again for complex arithmetic. The lookahead solves the recursion for L
// samples at once with coefficients g and P whose magnitudes multiply the
// local error by at most Lambda = max over j of (sum |g_i| + sum |P_m[j]|).
// A local error then runs through the recursion 1/A(z), whose impulse
// response has l1 norm G, and through every later section (l1 norm H of its
// whole impulse response). So
//     |error| <= u * sum over sections k of c_k Lambda_k G_k Smax_k prod_{j>k} H_j
// with Smax_k the largest S of section k over the signal. Everything in it
// is computed in long double from the taps and the reference.
#pragma once
#include <algorithm>
#include <cmath>
#include <complex>
#include <cstring>
#include <limits>
#include <random>
#include <type_traits>
#include <vector>

#include "qsp_test.h"

namespace iirtest {

using LD = long double;
using CLD = std::complex<LD>;

enum class Shape { AR, BiQuad, DF1 };

// ---------------------------------------------------------------------------
// Element types as long double complex values.

template <class T>
struct Num;

template <class F>
struct RealNum {
    using Part = F;
    static constexpr bool kComplex = false;
    static CLD ld(F x) { return CLD(LD(x), 0); }
    static F from(CLD v) { return F(v.real()); }
};
template <class C, class F>
struct ComplexNum {
    using Part = F;
    static constexpr bool kComplex = true;
    static CLD ld(C x) { return CLD(LD(x.re), LD(x.im)); }
    static C from(CLD v) { return C{F(v.real()), F(v.imag())}; }
};
template <> struct Num<float> : RealNum<float> {};
template <> struct Num<double> : RealNum<double> {};
template <> struct Num<Qsp16s> : RealNum<Qsp16s> {};
template <> struct Num<Qsp32s> : RealNum<Qsp32s> {};
template <> struct Num<Qsp32fc> : ComplexNum<Qsp32fc, float> {};
template <> struct Num<Qsp64fc> : ComplexNum<Qsp64fc, double> {};
template <> struct Num<Qsp16sc> : ComplexNum<Qsp16sc, Qsp16s> {};
template <> struct Num<Qsp32sc> : ComplexNum<Qsp32sc, Qsp32s> {};

template <class T>
constexpr bool isInteger = std::is_integral_v<typename Num<T>::Part>;

// ---------------------------------------------------------------------------
// The kinds.

// Tap: the taps' type (also the state's precision); Dly: the delay line's
// type; St: the state's C type; Data: the samples.
template <class Tap, class Dly, class St, class Data>
struct Kind {
    using TapT = Tap;
    using DlyT = Dly;
    using StateT = St;
    using DataT = Data;
    const char* name;
    int digits;
    Shape shape;
    QspStatus (*getSize)(int, int*);
    QspStatus (*init)(St**, const Tap*, int, const Dly*, Qsp8u*);
    QspStatus (*getDly)(const St*, Dly*);
    QspStatus (*setDly)(St*, const Dly*);
    // Filtering, the scale factor ignored by the floating forms.
    QspStatus (*filter)(const Data*, Data*, int, St*, int);
    QspStatus (*filterI)(Data*, int, St*, int);

    static constexpr bool kScaled = isInteger<Data>;
    static constexpr bool kComplex = Num<Tap>::kComplex;
    static constexpr bool kDouble = std::is_same_v<typename Num<Tap>::Part, double>;
    // Elements per register of the state's precision.
    static constexpr int kLanes = (kDouble ? 2 : 4) / (kComplex ? 2 : 1);
    static LD unit() { return kDouble ? std::ldexp(LD(1), -53) : std::ldexp(LD(1), -24); }
    Qsp32u id() const
    {
        return 0x49490000u | Qsp32u('0' + digits / 10) << 8 | Qsp32u('0' + digits % 10);
    }
};

#define IIRTEST_FILTERS(ST, DATA, CALL, CALLI)                                                              \
    [](const DATA* s, DATA* d, int n, ST* st, int) { return CALL(s, d, n, st); },                           \
        [](DATA* sd, int n, ST* st, int) { return CALLI(sd, n, st); }
#define IIRTEST_SCALED(ST, DATA, CALL, CALLI)                                                               \
    [](const DATA* s, DATA* d, int n, ST* st, int sf) { return CALL(s, d, n, st, sf); },                    \
        [](DATA* sd, int n, ST* st, int sf) { return CALLI(sd, n, st, sf); }

// Calls f(kind) for every kind of state, the 26 initialisers.
template <class F>
void forEachKind(F&& f)
{
    using S32f = QspsIIRState_32f;
    using S32fc = QspsIIRState_32fc;
    using S64f = QspsIIRState_64f;
    using S64fc = QspsIIRState_64fc;
    f(Kind<Qsp32f, Qsp32f, S32f, Qsp32f>{"32f", 1, Shape::AR, qspsIIRGetStateSize_32f, qspsIIRInit_32f,
        qspsIIRGetDlyLine_32f, qspsIIRSetDlyLine_32f, IIRTEST_FILTERS(S32f, Qsp32f, qspsIIR_32f, qspsIIR_32f_I)});
    f(Kind<Qsp32f, Qsp32f, S32f, Qsp32f>{"BiQuad_32f", 2, Shape::BiQuad, qspsIIRGetStateSize_BiQuad_32f,
        qspsIIRInit_BiQuad_32f, qspsIIRGetDlyLine_32f, qspsIIRSetDlyLine_32f,
        IIRTEST_FILTERS(S32f, Qsp32f, qspsIIR_32f, qspsIIR_32f_I)});
    f(Kind<Qsp32fc, Qsp32fc, S32fc, Qsp32fc>{"32fc", 3, Shape::AR, qspsIIRGetStateSize_32fc, qspsIIRInit_32fc,
        qspsIIRGetDlyLine_32fc, qspsIIRSetDlyLine_32fc,
        IIRTEST_FILTERS(S32fc, Qsp32fc, qspsIIR_32fc, qspsIIR_32fc_I)});
    f(Kind<Qsp32fc, Qsp32fc, S32fc, Qsp32fc>{"BiQuad_32fc", 4, Shape::BiQuad, qspsIIRGetStateSize_BiQuad_32fc,
        qspsIIRInit_BiQuad_32fc, qspsIIRGetDlyLine_32fc, qspsIIRSetDlyLine_32fc,
        IIRTEST_FILTERS(S32fc, Qsp32fc, qspsIIR_32fc, qspsIIR_32fc_I)});
    f(Kind<Qsp32f, Qsp32f, QspsIIRState32f_16s, Qsp16s>{"32f_16s", 5, Shape::AR, qspsIIRGetStateSize32f_16s,
        qspsIIRInit32f_16s, qspsIIRGetDlyLine32f_16s, qspsIIRSetDlyLine32f_16s,
        IIRTEST_SCALED(QspsIIRState32f_16s, Qsp16s, qspsIIR32f_16s_Sfs, qspsIIR32f_16s_ISfs)});
    f(Kind<Qsp32f, Qsp32f, QspsIIRState32f_16s, Qsp16s>{"32f_BiQuad_16s", 6, Shape::BiQuad,
        qspsIIRGetStateSize32f_BiQuad_16s, qspsIIRInit32f_BiQuad_16s, qspsIIRGetDlyLine32f_16s,
        qspsIIRSetDlyLine32f_16s, IIRTEST_SCALED(QspsIIRState32f_16s, Qsp16s, qspsIIR32f_16s_Sfs, qspsIIR32f_16s_ISfs)});
    f(Kind<Qsp32fc, Qsp32fc, QspsIIRState32fc_16sc, Qsp16sc>{"32fc_16sc", 7, Shape::AR,
        qspsIIRGetStateSize32fc_16sc, qspsIIRInit32fc_16sc, qspsIIRGetDlyLine32fc_16sc, qspsIIRSetDlyLine32fc_16sc,
        IIRTEST_SCALED(QspsIIRState32fc_16sc, Qsp16sc, qspsIIR32fc_16sc_Sfs, qspsIIR32fc_16sc_ISfs)});
    f(Kind<Qsp32fc, Qsp32fc, QspsIIRState32fc_16sc, Qsp16sc>{"32fc_BiQuad_16sc", 8, Shape::BiQuad,
        qspsIIRGetStateSize32fc_BiQuad_16sc, qspsIIRInit32fc_BiQuad_16sc, qspsIIRGetDlyLine32fc_16sc,
        qspsIIRSetDlyLine32fc_16sc,
        IIRTEST_SCALED(QspsIIRState32fc_16sc, Qsp16sc, qspsIIR32fc_16sc_Sfs, qspsIIR32fc_16sc_ISfs)});
    f(Kind<Qsp64f, Qsp64f, S64f, Qsp64f>{"64f", 13, Shape::AR, qspsIIRGetStateSize_64f, qspsIIRInit_64f,
        qspsIIRGetDlyLine_64f, qspsIIRSetDlyLine_64f, IIRTEST_FILTERS(S64f, Qsp64f, qspsIIR_64f, qspsIIR_64f_I)});
    f(Kind<Qsp64f, Qsp64f, S64f, Qsp64f>{"BiQuad_64f", 14, Shape::BiQuad, qspsIIRGetStateSize_BiQuad_64f,
        qspsIIRInit_BiQuad_64f, qspsIIRGetDlyLine_64f, qspsIIRSetDlyLine_64f,
        IIRTEST_FILTERS(S64f, Qsp64f, qspsIIR_64f, qspsIIR_64f_I)});
    f(Kind<Qsp64fc, Qsp64fc, S64fc, Qsp64fc>{"64fc", 15, Shape::AR, qspsIIRGetStateSize_64fc, qspsIIRInit_64fc,
        qspsIIRGetDlyLine_64fc, qspsIIRSetDlyLine_64fc,
        IIRTEST_FILTERS(S64fc, Qsp64fc, qspsIIR_64fc, qspsIIR_64fc_I)});
    f(Kind<Qsp64fc, Qsp64fc, S64fc, Qsp64fc>{"BiQuad_64fc", 16, Shape::BiQuad, qspsIIRGetStateSize_BiQuad_64fc,
        qspsIIRInit_BiQuad_64fc, qspsIIRGetDlyLine_64fc, qspsIIRSetDlyLine_64fc,
        IIRTEST_FILTERS(S64fc, Qsp64fc, qspsIIR_64fc, qspsIIR_64fc_I)});
    f(Kind<Qsp64f, Qsp64f, QspsIIRState64f_32f, Qsp32f>{"64f_32f", 17, Shape::AR, qspsIIRGetStateSize64f_32f,
        qspsIIRInit64f_32f, qspsIIRGetDlyLine64f_32f, qspsIIRSetDlyLine64f_32f,
        IIRTEST_FILTERS(QspsIIRState64f_32f, Qsp32f, qspsIIR64f_32f, qspsIIR64f_32f_I)});
    f(Kind<Qsp64f, Qsp64f, QspsIIRState64f_32f, Qsp32f>{"64f_BiQuad_32f", 18, Shape::BiQuad,
        qspsIIRGetStateSize64f_BiQuad_32f, qspsIIRInit64f_BiQuad_32f, qspsIIRGetDlyLine64f_32f,
        qspsIIRSetDlyLine64f_32f, IIRTEST_FILTERS(QspsIIRState64f_32f, Qsp32f, qspsIIR64f_32f, qspsIIR64f_32f_I)});
    f(Kind<Qsp64fc, Qsp64fc, QspsIIRState64fc_32fc, Qsp32fc>{"64fc_32fc", 19, Shape::AR,
        qspsIIRGetStateSize64fc_32fc, qspsIIRInit64fc_32fc, qspsIIRGetDlyLine64fc_32fc, qspsIIRSetDlyLine64fc_32fc,
        IIRTEST_FILTERS(QspsIIRState64fc_32fc, Qsp32fc, qspsIIR64fc_32fc, qspsIIR64fc_32fc_I)});
    f(Kind<Qsp64fc, Qsp64fc, QspsIIRState64fc_32fc, Qsp32fc>{"64fc_BiQuad_32fc", 20, Shape::BiQuad,
        qspsIIRGetStateSize64fc_BiQuad_32fc, qspsIIRInit64fc_BiQuad_32fc, qspsIIRGetDlyLine64fc_32fc,
        qspsIIRSetDlyLine64fc_32fc,
        IIRTEST_FILTERS(QspsIIRState64fc_32fc, Qsp32fc, qspsIIR64fc_32fc, qspsIIR64fc_32fc_I)});
    f(Kind<Qsp64f, Qsp64f, QspsIIRState64f_32s, Qsp32s>{"64f_32s", 21, Shape::AR, qspsIIRGetStateSize64f_32s,
        qspsIIRInit64f_32s, qspsIIRGetDlyLine64f_32s, qspsIIRSetDlyLine64f_32s,
        IIRTEST_SCALED(QspsIIRState64f_32s, Qsp32s, qspsIIR64f_32s_Sfs, qspsIIR64f_32s_ISfs)});
    f(Kind<Qsp64f, Qsp64f, QspsIIRState64f_32s, Qsp32s>{"64f_BiQuad_32s", 22, Shape::BiQuad,
        qspsIIRGetStateSize64f_BiQuad_32s, qspsIIRInit64f_BiQuad_32s, qspsIIRGetDlyLine64f_32s,
        qspsIIRSetDlyLine64f_32s, IIRTEST_SCALED(QspsIIRState64f_32s, Qsp32s, qspsIIR64f_32s_Sfs, qspsIIR64f_32s_ISfs)});
    f(Kind<Qsp64fc, Qsp64fc, QspsIIRState64fc_32sc, Qsp32sc>{"64fc_32sc", 23, Shape::AR,
        qspsIIRGetStateSize64fc_32sc, qspsIIRInit64fc_32sc, qspsIIRGetDlyLine64fc_32sc, qspsIIRSetDlyLine64fc_32sc,
        IIRTEST_SCALED(QspsIIRState64fc_32sc, Qsp32sc, qspsIIR64fc_32sc_Sfs, qspsIIR64fc_32sc_ISfs)});
    f(Kind<Qsp64fc, Qsp64fc, QspsIIRState64fc_32sc, Qsp32sc>{"64fc_BiQuad_32sc", 24, Shape::BiQuad,
        qspsIIRGetStateSize64fc_BiQuad_32sc, qspsIIRInit64fc_BiQuad_32sc, qspsIIRGetDlyLine64fc_32sc,
        qspsIIRSetDlyLine64fc_32sc,
        IIRTEST_SCALED(QspsIIRState64fc_32sc, Qsp32sc, qspsIIR64fc_32sc_Sfs, qspsIIR64fc_32sc_ISfs)});
    f(Kind<Qsp64f, Qsp64f, QspsIIRState64f_16s, Qsp16s>{"64f_16s", 25, Shape::AR, qspsIIRGetStateSize64f_16s,
        qspsIIRInit64f_16s, qspsIIRGetDlyLine64f_16s, qspsIIRSetDlyLine64f_16s,
        IIRTEST_SCALED(QspsIIRState64f_16s, Qsp16s, qspsIIR64f_16s_Sfs, qspsIIR64f_16s_ISfs)});
    f(Kind<Qsp64f, Qsp64f, QspsIIRState64f_16s, Qsp16s>{"64f_BiQuad_16s", 26, Shape::BiQuad,
        qspsIIRGetStateSize64f_BiQuad_16s, qspsIIRInit64f_BiQuad_16s, qspsIIRGetDlyLine64f_16s,
        qspsIIRSetDlyLine64f_16s, IIRTEST_SCALED(QspsIIRState64f_16s, Qsp16s, qspsIIR64f_16s_Sfs, qspsIIR64f_16s_ISfs)});
    f(Kind<Qsp64fc, Qsp64fc, QspsIIRState64fc_16sc, Qsp16sc>{"64fc_16sc", 27, Shape::AR,
        qspsIIRGetStateSize64fc_16sc, qspsIIRInit64fc_16sc, qspsIIRGetDlyLine64fc_16sc, qspsIIRSetDlyLine64fc_16sc,
        IIRTEST_SCALED(QspsIIRState64fc_16sc, Qsp16sc, qspsIIR64fc_16sc_Sfs, qspsIIR64fc_16sc_ISfs)});
    f(Kind<Qsp64fc, Qsp64fc, QspsIIRState64fc_16sc, Qsp16sc>{"64fc_BiQuad_16sc", 28, Shape::BiQuad,
        qspsIIRGetStateSize64fc_BiQuad_16sc, qspsIIRInit64fc_BiQuad_16sc, qspsIIRGetDlyLine64fc_16sc,
        qspsIIRSetDlyLine64fc_16sc,
        IIRTEST_SCALED(QspsIIRState64fc_16sc, Qsp16sc, qspsIIR64fc_16sc_Sfs, qspsIIR64fc_16sc_ISfs)});
    f(Kind<Qsp32f, Qsp32f, S32f, Qsp32f>{"BiQuad_DF1_32f", 29, Shape::DF1, qspsIIRGetStateSize_BiQuad_DF1_32f,
        qspsIIRInit_BiQuad_DF1_32f, qspsIIRGetDlyLine_32f, qspsIIRSetDlyLine_32f,
        IIRTEST_FILTERS(S32f, Qsp32f, qspsIIR_32f, qspsIIR_32f_I)});
    f(Kind<Qsp64f, Qsp32s, QspsIIRState64f_32s, Qsp32s>{"64f_BiQuad_DF1_32s", 30, Shape::DF1,
        qspsIIRGetStateSize64f_BiQuad_DF1_32s, qspsIIRInit64f_BiQuad_DF1_32s, qspsIIRGetDlyLine64f_DF1_32s,
        qspsIIRSetDlyLine64f_DF1_32s,
        IIRTEST_SCALED(QspsIIRState64f_32s, Qsp32s, qspsIIR64f_32s_Sfs, qspsIIR64f_32s_ISfs)});
}

// Delay-line values of a state of order n (AR) or n sections.
inline int delayCount(Shape shape, int n) { return shape == Shape::AR ? n : shape == Shape::BiQuad ? 2 * n : 4 * n; }
// Taps of a state of order n or n sections.
inline int tapCount(Shape shape, int n) { return shape == Shape::AR ? 2 * n + 2 : 6 * n; }

// ---------------------------------------------------------------------------
// States in guarded caller memory.

// A state built in a canary-filled buffer of exactly the reported size
// whose start is `offset` bytes past a 64-byte boundary.
template <class K>
struct Built {
    std::vector<unsigned char> mem;
    unsigned char* buf = nullptr;
    int size = 0;
    typename K::StateT* st = nullptr;
    QspStatus status = qspStsOk;
    static constexpr size_t kGuard = 64;

    Built(const K& k, const std::vector<typename K::TapT>& taps, int n, const typename K::DlyT* dly, size_t offset = 0)
    {
        EXPECT_EQ(k.getSize(n, &size), qspStsOk) << k.name;
        mem.assign(size + offset + 2 * kGuard + 64, qsptest::kCanaryByte);
        buf = mem.data() + ((64 - reinterpret_cast<uintptr_t>(mem.data()) % 64) % 64) + kGuard + offset;
        status = k.init(&st, taps.data(), n, dly, buf);
    }
    // The bytes outside the reported size still hold the canary.
    bool guardsIntact() const
    {
        for (const unsigned char* p = mem.data(); p < buf; ++p)
            if (*p != qsptest::kCanaryByte) return false;
        for (const unsigned char* p = buf + size; p < mem.data() + mem.size(); ++p)
            if (*p != qsptest::kCanaryByte) return false;
        return true;
    }
};

// ---------------------------------------------------------------------------
// Random data.

inline std::mt19937_64& rng() { return qsptest::rng(); }

inline LD uniform(LD lo, LD hi) { return std::uniform_real_distribution<LD>(lo, hi)(rng()); }

// A random value of T: floating parts in [-1, 1], integer parts in
// [-range, range].
template <class T>
T randomValue(LD range = 1000)
{
    using P = typename Num<T>::Part;
    auto part = [&]() -> P {
        if constexpr (std::is_integral_v<P>) return P(std::llround(uniform(-range, range)));
        else return P(uniform(-1, 1));
    };
    if constexpr (Num<T>::kComplex) return T{part(), part()};
    else return T(part());
}

template <class T>
std::vector<T> randomVector(size_t n, LD range = 1000)
{
    std::vector<T> v(n);
    for (auto& x : v) x = randomValue<T>(range);
    return v;
}

// A random complex (or real) number of magnitude at most m.
inline CLD randomCLD(bool complex, LD m)
{
    if (!complex) return CLD(uniform(-m, m), 0);
    const LD r = m * std::sqrt(uniform(0, 1)), t = uniform(0, 2 * M_PIl);
    return std::polar(r, t);
}

template <class T>
T fromCLD(CLD v)
{
    return Num<T>::from(v);
}

// Taps of a stable AR filter of order N, a0 = 1: b random in [-1, 1], a1..aN
// random with the sum of their magnitudes `poleSum` (< 1 keeps every pole
// inside the unit circle: |A(z)| >= 1 - poleSum there).
template <class T>
std::vector<T> arTaps(int N, LD poleSum = 0.9L)
{
    const bool c = Num<T>::kComplex;
    std::vector<CLD> a(N + 1);
    LD sum = 0;
    for (int k = 1; k <= N; ++k) sum += std::abs(a[k] = randomCLD(c, 1));
    std::vector<T> t(2 * N + 2);
    for (int k = 0; k <= N; ++k) t[k] = fromCLD<T>(randomCLD(c, 1));
    t[N + 1] = fromCLD<T>(CLD(1, 0));
    for (int k = 1; k <= N; ++k) t[N + 1 + k] = fromCLD<T>(a[k] * (poleSum / sum));
    return t;
}

// Taps of K biquad sections, a0 = 1, poles at radius r (cycling through
// the list) and random angles, b random with b0 away from zero.
template <class T>
std::vector<T> biquadTaps(int K, std::vector<LD> radii = {0.5L, 0.8L, 0.7L})
{
    const bool c = Num<T>::kComplex;
    std::vector<T> t;
    for (int s = 0; s < K; ++s) {
        const LD r = radii[s % radii.size()];
        CLD a1, a2;
        if (c) {
            const CLD p1 = std::polar(r, uniform(0, 2 * M_PIl)), p2 = std::polar(r * uniform(0.3L, 1), uniform(0, 2 * M_PIl));
            a1 = -(p1 + p2);
            a2 = p1 * p2;
        } else {
            const LD w = uniform(0.05L, M_PIl - 0.05L);
            a1 = -2 * r * std::cos(w);
            a2 = r * r;
        }
        CLD b0 = randomCLD(c, 1);
        if (std::abs(b0) < 0.25L) b0 = CLD(0.5L, 0);
        for (CLD v : {b0, randomCLD(c, 1), randomCLD(c, 1), CLD(1, 0), a1, a2}) t.push_back(fromCLD<T>(v));
    }
    return t;
}

// Random taps of a stable state of the kind: order or sections n.
template <class K>
std::vector<typename K::TapT> tapsFor(const K& k, int n)
{
    using Tap = typename K::TapT;
    return k.shape == Shape::AR ? arTaps<Tap>(n) : biquadTaps<Tap>(n);
}

// The bytes of a built state, to show that a call left it alone.
template <class K>
std::vector<unsigned char> bytesOf(const Built<K>& b)
{
    return std::vector<unsigned char>(b.buf, b.buf + b.size);
}

// ---------------------------------------------------------------------------
// References.

// One section as the reference runs it: normalised taps (a[0] = 1) and its
// state: the transposed direct form (AR, biquads) or the past inputs and
// outputs (direct form 1).
struct Section {
    std::vector<CLD> b, a;   // b0..bN, 1, a1..aN
    std::vector<CLD> d;      // transposed direct form: N values
    CLD x1, x2, y1, y2;      // direct form 1
    bool df1 = false;
    // Bound bookkeeping: magnitudes of the terms in d, the largest S.
    std::vector<LD> dm;
    LD smax = 0;

    CLD step(CLD x)
    {
        const int N = int(a.size()) - 1;
        CLD y;
        LD s;
        if (df1) {
            y = b[0] * x + b[1] * x1 + b[2] * x2 - a[1] * y1 - a[2] * y2;
            s = std::abs(b[0] * x) + std::abs(b[1] * x1) + std::abs(b[2] * x2) + std::abs(a[1] * y1) +
                std::abs(a[2] * y2);
            x2 = x1, x1 = x, y2 = y1, y1 = y;
        } else {
            y = b[0] * x + d[0];
            s = std::abs(b[0] * x) + dm[0];
            for (int k = 0; k < N; ++k) {
                const CLD next = k + 1 < N ? d[k + 1] : CLD(0);
                const LD nextm = k + 1 < N ? dm[k + 1] : 0;
                d[k] = next + b[k + 1] * x - a[k + 1] * y;
                dm[k] = nextm + std::abs(b[k + 1] * x) + std::abs(a[k + 1] * y);
            }
        }
        smax = std::max({smax, s, std::abs(y)});
        return y;
    }
};

// The sections of a state from the caller's taps (normalised in long
// double) and delay line.
template <class Tap, class Dly>
std::vector<Section> sections(Shape shape, int n, const std::vector<Tap>& taps, const Dly* dly)
{
    auto dv = [&](int i) { return dly ? Num<Dly>::ld(dly[i]) : CLD(0); };
    std::vector<Section> out;
    if (shape == Shape::AR) {
        Section s;
        const CLD a0 = Num<Tap>::ld(taps[n + 1]);
        for (int k = 0; k <= n; ++k) s.b.push_back(Num<Tap>::ld(taps[k]) / a0);
        for (int k = 0; k <= n; ++k) s.a.push_back(Num<Tap>::ld(taps[n + 1 + k]) / a0);
        for (int k = 0; k < n; ++k) s.d.push_back(dv(k)), s.dm.push_back(std::abs(dv(k)));
        out.push_back(s);
        return out;
    }
    for (int q = 0; q < n; ++q) {
        Section s;
        const CLD a0 = Num<Tap>::ld(taps[6 * q + 3]);
        for (int k = 0; k < 3; ++k) s.b.push_back(Num<Tap>::ld(taps[6 * q + k]) / a0);
        for (int k = 0; k < 3; ++k) s.a.push_back(Num<Tap>::ld(taps[6 * q + 3 + k]) / a0);
        if (shape == Shape::DF1) {
            s.df1 = true;
            s.x1 = dv(4 * q), s.x2 = dv(4 * q + 1), s.y1 = dv(4 * q + 2), s.y2 = dv(4 * q + 3);
            s.smax = std::max({std::abs(s.y1), std::abs(s.y2)});
        } else {
            s.d = {dv(2 * q), dv(2 * q + 1)};
            s.dm = {std::abs(s.d[0]), std::abs(s.d[1])};
        }
        out.push_back(s);
    }
    return out;
}

// The cascade's output for x, the sections' states advanced.
inline std::vector<CLD> run(std::vector<Section>& secs, const std::vector<CLD>& x)
{
    std::vector<CLD> y(x);
    for (auto& s : secs)
        for (auto& v : y) v = s.step(v);
    return y;
}

// The delay line of the sections as Get reports it.
inline std::vector<CLD> delayOf(const std::vector<Section>& secs)
{
    std::vector<CLD> d;
    for (const auto& s : secs) {
        if (s.df1) d.insert(d.end(), {s.x1, s.x2, s.y1, s.y2});
        else d.insert(d.end(), s.d.begin(), s.d.end());
    }
    return d;
}

// l1 norm of the impulse response of B(z)/A(z), summed until the tail is
// below 1e-30 of the sum (every filter of the tests is stable).
inline LD l1Norm(const std::vector<CLD>& b, const std::vector<CLD>& a)
{
    const int N = int(a.size()) - 1;
    std::vector<CLD> y(N + 1, CLD(0));  // y[n-1] .. y[n-N] at 0 .. N-1
    LD sum = 0, recent = 0;
    for (int n = 0; n < 2000000; ++n) {
        CLD v = n < int(b.size()) ? b[n] : CLD(0);
        for (int k = 1; k <= N; ++k) v -= a[k] * y[k - 1];
        for (int k = N; k > 1; --k) y[k - 1] = y[k - 2];
        if (N > 0) y[0] = v;
        sum += std::abs(v);
        recent = n % 64 == 0 ? std::abs(v) : std::max(recent, std::abs(v));
        if (n > int(b.size()) + 4 * N && n % 64 == 63 && recent < 1e-30L * sum) break;
        if (N == 0 && n >= int(b.size())) break;
    }
    return sum;
}

// Lambda of a section's recursion solved over L samples: the lookahead of
// the nearest min(order, L-1) feedback taps for AR states, of both taps for
// biquads (the kernels' forms).
inline LD lookaheadGain(const std::vector<CLD>& a, int L, bool ar)
{
    const int N = int(a.size()) - 1;
    const int M = ar ? std::min(N, L - 1) : N;
    std::vector<CLD> g(L);
    LD worst = 0;
    for (int j = 0; j < L; ++j) {
        CLD s = j == 0 ? CLD(1) : CLD(0);
        for (int k = 1; k <= M && k <= j; ++k) s -= a[k] * g[j - k];
        g[j] = s;
    }
    for (int j = 0; j < L; ++j) {
        LD sum = 0;
        for (int i = 0; i <= j; ++i) sum += std::abs(g[i]);
        for (int m = 1; m <= M; ++m) {
            std::vector<CLD> h(M + L, CLD(0));  // h[i + M] = response at i
            h[M - m] = 1;
            for (int i = 0; i <= j; ++i) {
                CLD v = 0;
                for (int k = 1; k <= M; ++k) v -= a[k] * h[i - k + M];
                h[i + M] = v;
            }
            sum += std::abs(h[j + M]);
        }
        worst = std::max(worst, sum);
    }
    return worst;
}

// l1 norm of the impulse response of sections from..end of a cascade (1
// for none), run from rest until the tail is below 1e-30 of the sum.
inline LD tailNorm(const std::vector<Section>& secs, size_t from)
{
    if (from >= secs.size()) return 1;
    std::vector<Section> tail(secs.begin() + long(from), secs.end());
    for (auto& s : tail) {
        for (auto& v : s.d) v = 0;
        for (auto& v : s.dm) v = 0;
        s.x1 = s.x2 = s.y1 = s.y2 = 0;
    }
    LD sum = 0, recent = 0;
    for (int n = 0; n < 4000000; ++n) {
        CLD v = n == 0 ? CLD(1) : CLD(0);
        for (auto& s : tail) v = s.step(v);
        sum += std::abs(v);
        recent = n % 64 == 0 ? std::abs(v) : std::max(recent, std::abs(v));
        if (n > 256 && n % 64 == 63 && recent < 1e-30L * sum) break;
    }
    return sum;
}

// The error bound (above) of a cascade whose reference has run; the gain
// of the later sections is the l1 norm of their joint impulse response.
template <class K>
LD errorBound(const std::vector<Section>& secs, Shape shape)
{
    const bool ar = shape == Shape::AR;
    LD total = 0;
    for (size_t k = 0; k < secs.size(); ++k) {
        const Section& s = secs[k];
        const int N = int(s.a.size()) - 1;
        LD c = 2 * (2 * N + 1) + 2 * K::kLanes + 8;
        if (K::kComplex) c *= 2;
        total += c * lookaheadGain(s.a, K::kLanes, ar) * l1Norm({CLD(1)}, s.a) * s.smax * tailNorm(secs, k + 1);
    }
    return total * K::unit();
}

// ---------------------------------------------------------------------------
// The integer scaling rule: v times 2^-sf, rounded to nearest with ties to
// even, saturated (NaN: 0), in long double (exact for the values here).
template <class P>
P scaleRule(LD v, int sf)
{
    if (v != v) return P(0);
    const LD x = std::ldexp(v, sf > 20000 ? -20000 : sf < -20000 ? 20000 : -sf);
    LD r = std::nearbyint(x);  // the default mode: to nearest, ties to even
    if (r > LD(std::numeric_limits<P>::max())) return std::numeric_limits<P>::max();
    if (r < LD(std::numeric_limits<P>::min())) return std::numeric_limits<P>::min();
    return P(r);
}

template <class D>
D scaleRuleOf(CLD v, int sf)
{
    using P = typename Num<D>::Part;
    if constexpr (Num<D>::kComplex) return D{scaleRule<P>(v.real(), sf), scaleRule<P>(v.imag(), sf)};
    else return D(scaleRule<P>(v.real(), sf));
}

template <class T>
std::vector<CLD> toCLD(const std::vector<T>& v)
{
    std::vector<CLD> out;
    for (const T& x : v) out.push_back(Num<T>::ld(x));
    return out;
}

}  // namespace iirtest

// SPDX-License-Identifier: BSD-3-Clause
// Tone: pDst[n] = magn cos(2 pi rFreq n + phase); complex forms magn
// (cos, sin) of the same argument. The phase at which the next call
// continues is computed first and stored only when the call succeeds.
//
// Accurate path (hint other than 1). With w = 2 pi rFreq, the cosines of
// phase, phase + w and w come from the vector cosine; x(0) = magn cos
// phase, x(1) = magn cos(phase + w), x(2) = 2 cos w x(1) - x(0), x(3)
// likewise, and from x(4) on the recurrence takes two elements a step:
// x(n) = 2 cos 2w x(n-2) - x(n-4), 2 cos 2w = (2 cos w)^2 - 2, one register
// of two doubles a step. Values stay in double and are rounded to the
// element type when stored.
// The recurrence carries a rounding error of a step on scaled by up to
// min(k, 1/|sin 2w|) after k steps, which near rFreq = 0, 1/4 and 1/2 grows
// with k^2. So it runs for kSegment elements at a time and is seeded
// afresh: the seeds of the next run are the current ones turned by
// kSegment w (a rotation, whose error grows only linearly), and every
// kAnchor elements they are computed anew from the sine and cosine of the
// element's argument, with the whole turns of rFreq n removed exactly
// (phase.h). Runs are independent, so consecutive ones overlap in the
// processor. Error: within 2^-46 magn of the exact values at any length
// and frequency (the tests state the bound they check).
//
// Fast path (hint 1): blocks of 1024 elements, each seeded by one sine and
// cosine pair; within a block element b + 16a + j is
//     magn Re(e^(i(arg(b) + 16 a w)) e^(i j w)),
// the first factor advanced by a rotation every 16 elements, the second
// from a table of 16 built once per call, so an element costs two
// multiplications and an addition, with no dependence between elements.
// Error: within 2^-46 magn as well.
#include "mathfn/trig.h"
#include "phase.h"
#include "qsp_validators.h"
#include "sample_store.h"

namespace y8 {
namespace {

using VD = simd::Vec<double>;
using phase::kTwoPi;

constexpr int kSegment = 16;   // elements of one run of the recurrence
constexpr int kAnchor = 256;   // elements between exact seeds of the phasors
constexpr int kFastBlock = 1024;

template <class F>
QspStatus checkTone(const void* pDst, int len, F magn, F rFreq, const F* pPhase)
{
    if (pPhase == nullptr) return qspStsNullPtr;
    if (magn <= F(0)) return qspStsBadToneMagnitude;
    if (rFreq < F(0) || rFreq >= F(0.5)) return qspStsBadToneFrequency;
    const double ph = double(*pPhase);
    if (ph < 0.0 || ph >= kTwoPi) return qspStsBadTonePhase;
    if (pDst == nullptr) return qspStsNullPtr;
    if (len <= 0) return qspStsBadSize;
    return qspStsOk;
}

// The continuing phase: phase + len (2 pi rFreq) less its whole turns
// (counted toward zero), rounded to the phase's type, and 0 if that is not
// in [0, 2 pi).
template <class F>
F nextPhase(double ph, double rFreq, int len)
{
    double p = phase::advanced(ph, rFreq, len);
    const double k = _mm_cvtsd_f64(VD::truncate(_mm_set_sd(p * phase::kInvTwoPi)));
    p = p - k * kTwoPi;
    const F r = F(p);
    const double back = double(r);
    return (!(back < kTwoPi) || back < 0.0) ? F(0) : r;
}

// magn e^(i arg) of two consecutive elements: the seeds of a run.
struct Phasors {
    double c0, s0, c1, s1;  // element m: c0 + i s0; element m + 1: c1 + i s1
};

// The seeds of the first run as the recurrence states them: the cosines
// (and sines) of phase and phase + w, two lanes at a time; and 2 cos w.
Phasors firstPhasors(double magn, double ph, double w, double& twoCosW)
{
    alignas(16) double arg[4] = {ph, ph + w, w, w}, c[4], s[2];
    mathfn::qspsCos_64f_A53(arg, c, 4);
    mathfn::qspsSin_64f_A53(arg, s, 2);
    twoCosW = 2.0 * c[2];
    return {magn * c[0], magn * s[0], magn * c[1], magn * s[1]};
}

Phasors phasorsAt(double magn, double ph, double rFreq, Qsp64s m)
{
    const mathfn::SinCosOne a = mathfn::qspsSinCosOne(phase::angleAt(ph, rFreq, m));
    const mathfn::SinCosOne b = mathfn::qspsSinCosOne(phase::angleAt(ph, rFreq, m + 1));
    return {magn * a.cos, magn * a.sin, magn * b.cos, magn * b.sin};
}

// Both phasors turned by the angle whose cosine and sine are c, s.
inline void rotate(Phasors& p, double c, double s)
{
    const double c0 = p.c0 * c - p.s0 * s, s0 = p.c0 * s + p.s0 * c;
    const double c1 = p.c1 * c - p.s1 * s, s1 = p.c1 * s + p.s1 * c;
    p = {c0, s0, c1, s1};
}

// One run of kSegment values of the recurrence from its seeds into v
// (complex: re, im pairs): x(2), x(3) by single steps, then two elements
// a step.
template <bool Complex>
void run(const Phasors& p, VD::Reg c1, VD::Reg c2, double* v)
{
    if constexpr (!Complex) {
        VD::Reg older = VD::pair(p.c0, p.c1);
        const double x2 = _mm_cvtsd_f64(c1) * p.c1 - p.c0, x3 = _mm_cvtsd_f64(c1) * x2 - p.c1;
        VD::Reg old = VD::pair(x2, x3);
        VD::store(v, older);
        VD::store(v + 2, old);
        for (int i = 4; i < kSegment; i += 2) {
            const VD::Reg next = VD::sub(VD::mul(c2, old), older);
            VD::store(v + i, next);
            older = old;
            old = next;
        }
    } else {
        // Even and odd elements: two chains of one complex value each.
        VD::Reg a0 = VD::pair(p.c0, p.s0), b0 = VD::pair(p.c1, p.s1);
        VD::Reg a1 = VD::sub(VD::mul(c1, b0), a0);
        VD::Reg b1 = VD::sub(VD::mul(c1, a1), b0);
        VD::store(v, a0);
        VD::store(v + 2, b0);
        VD::store(v + 4, a1);
        VD::store(v + 6, b1);
        for (int i = 4; i < kSegment; i += 2) {
            const VD::Reg a2 = VD::sub(VD::mul(c2, a1), a0), b2 = VD::sub(VD::mul(c2, b1), b0);
            VD::store(v + 2 * i, a2);
            VD::store(v + 2 * i + 2, b2);
            a0 = a1, a1 = a2, b0 = b1, b1 = b2;
        }
    }
}

template <class T>
void toneAccurate(T* pDst, int len, double magn, double rFreq, double ph)
{
    constexpr bool cplx = samples::partsOf<T> == 2;
    constexpr int chunk = samples::kBlock / samples::partsOf<T>;  // elements staged at a time
    static_assert(kAnchor % kSegment == 0 && chunk % kAnchor == 0);
    double twoCosW;
    const Phasors first = firstPhasors(magn, ph, kTwoPi * rFreq, twoCosW);
    const VD::Reg c1 = VD::splat(twoCosW), c2 = VD::splat(twoCosW * twoCosW - 2.0);
    const mathfn::SinCosOne step = mathfn::qspsSinCosOne(phase::angleAt(0.0, rFreq, kSegment));
    alignas(16) double v[samples::kBlock];
    for (int b = 0; b < len; b += chunk) {
        const int n = len - b < chunk ? len - b : chunk;
        for (int a = 0; a < n; a += kAnchor) {
            Phasors p = b + a == 0 ? first : phasorsAt(magn, ph, rFreq, b + a);
            const int end = n - a < kAnchor ? n : a + kAnchor;
            for (int i = a; i < end; i += kSegment) {
                run<cplx>(p, c1, c2, v + samples::partsOf<T> * i);
                rotate(p, step.cos, step.sin);
            }
        }
        samples::store(v, pDst + b, n);
    }
}

// ---------------------------------------------------------------------------
// Fast path.

template <class T>
void toneFast(T* pDst, int len, double magn, double rFreq, double ph)
{
    constexpr bool cplx = samples::partsOf<T> == 2;
    // e^(i j w), j < 16, by rotation from e^(i w); the step e^(16 i w).
    alignas(16) double wc[16], ws[16];
    const mathfn::SinCosOne one = mathfn::qspsSinCosOne(phase::angleAt(0.0, rFreq, 1));
    const mathfn::SinCosOne sixteen = mathfn::qspsSinCosOne(phase::angleAt(0.0, rFreq, 16));
    wc[0] = 1.0, ws[0] = 0.0;
    for (int j = 1; j < 16; ++j) {
        wc[j] = wc[j - 1] * one.cos - ws[j - 1] * one.sin;
        ws[j] = wc[j - 1] * one.sin + ws[j - 1] * one.cos;
    }
    constexpr int chunk = samples::kBlock / samples::partsOf<T>;  // elements staged at a time
    alignas(16) double v[samples::kBlock];
    for (int b = 0; b < len; b += kFastBlock) {
        const int blockLen = len - b < kFastBlock ? len - b : kFastBlock;
        const mathfn::SinCosOne z = mathfn::qspsSinCosOne(phase::angleAt(ph, rFreq, b));
        double re = magn * z.cos, im = magn * z.sin;
        for (int c = 0; c < blockLen; c += chunk) {
            const int n = blockLen - c < chunk ? blockLen - c : chunk;
            for (int a = 0; a < n; a += 16) {
                const VD::Reg r = VD::splat(re), i = VD::splat(im);
                if constexpr (!cplx) {
                    for (int j = 0; j < 16; j += 2)
                        VD::store(v + a + j, VD::sub(VD::mul(r, VD::load(wc + j)), VD::mul(i, VD::load(ws + j))));
                } else {
                    for (int j = 0; j < 16; ++j) {
                        const VD::Reg w = VD::pair(wc[j], ws[j]), wSwap = VD::pair(-ws[j], wc[j]);
                        VD::store(v + 2 * (a + j), VD::add(VD::mul(r, w), VD::mul(i, wSwap)));
                    }
                }
                const double nextRe = re * sixteen.cos - im * sixteen.sin;
                im = re * sixteen.sin + im * sixteen.cos;
                re = nextRe;
            }
            samples::store(v, pDst + b + c, n);
        }
    }
}

template <class T, class F>
QspStatus tone(T* pDst, int len, F magn, F rFreq, F* pPhase, QspHintAlgorithm hint)
{
    if (QspStatus s = checkTone(pDst, len, magn, rFreq, pPhase)) return s;
    const double ph = double(*pPhase);
    const F next = nextPhase<F>(ph, double(rFreq), len);
    if (hint == qspAlgHintFast) toneFast(pDst, len, double(magn), double(rFreq), ph);
    else toneAccurate(pDst, len, double(magn), double(rFreq), ph);
    *pPhase = next;
    return qspStsOk;
}

}  // namespace

QspStatus qspsTone_16s(Qsp16s* pDst, int len, Qsp32f magn, Qsp32f rFreq, Qsp32f* pPhase, QspHintAlgorithm hint)
{
    return tone(pDst, len, magn, rFreq, pPhase, hint);
}
QspStatus qspsTone_16sc(Qsp16sc* pDst, int len, Qsp32f magn, Qsp32f rFreq, Qsp32f* pPhase, QspHintAlgorithm hint)
{
    return tone(pDst, len, magn, rFreq, pPhase, hint);
}
QspStatus qspsTone_32f(Qsp32f* pDst, int len, Qsp32f magn, Qsp32f rFreq, Qsp32f* pPhase, QspHintAlgorithm hint)
{
    return tone(pDst, len, magn, rFreq, pPhase, hint);
}
QspStatus qspsTone_32fc(Qsp32fc* pDst, int len, Qsp32f magn, Qsp32f rFreq, Qsp32f* pPhase, QspHintAlgorithm hint)
{
    return tone(pDst, len, magn, rFreq, pPhase, hint);
}
QspStatus qspsTone_64f(Qsp64f* pDst, int len, Qsp64f magn, Qsp64f rFreq, Qsp64f* pPhase, QspHintAlgorithm hint)
{
    return tone(pDst, len, magn, rFreq, pPhase, hint);
}
QspStatus qspsTone_64fc(Qsp64fc* pDst, int len, Qsp64f magn, Qsp64f rFreq, Qsp64f* pPhase, QspHintAlgorithm hint)
{
    return tone(pDst, len, magn, rFreq, pPhase, hint);
}

}  // namespace y8

// SPDX-License-Identifier: BSD-3-Clause
// Triangle: a triangle wave with the period 1/rFreq, the cosine's
// counterpart: at phase 0 it stands at +magn and falls linearly to -magn,
// then rises linearly back. asym in [-pi, pi) sets the share of the
// rising part: over the phases of one period, u = phase / 2 pi in [0, 1),
//     fall = (pi - asym) / 2 pi,  rise = 1 - fall,
//     tri(u) = 1 - 2u / fall                for u < fall
//     tri(u) = -1 + 2 (u - fall) / rise     from fall on,
// and pDst[n] = magn tri(u(n)), u(n) the fraction of a turn of phase /
// 2 pi + rFreq n. asym = 0 gives the symmetric wave, which agrees with the
// cosine at every quarter period; asym near pi gives a rising sawtooth,
// -pi a falling one. Complex forms: the imaginary part is the same wave a
// quarter period later, magn tri(u - 1/4), the sine's counterpart.
//
// u(n) is formed with the whole turns of rFreq n removed exactly
// (phase.h), in double, and the value rounded to the element type when
// stored. The continuing phase is p - floor(p / 2 pi) 2 pi, p = phase +
// len (2 pi rFreq), rounded to the phase's type.
#include "phase.h"
#include "qsp_validators.h"
#include "sample_store.h"

namespace y8 {
namespace {

using VD = simd::Vec<double>;
using phase::kTwoPi;

// asym is compared in its own precision against pi rounded to it, so that
// the float nearest -pi is accepted and the float nearest pi is not.
template <class F>
QspStatus checkTriangle(const void* pDst, int len, F magn, F rFreq, F asym, const F* pPhase)
{
    if (pPhase == nullptr) return qspStsNullPtr;
    if (magn <= F(0)) return qspStsBadTriangleMagnitude;
    if (rFreq < F(0) || rFreq >= F(0.5)) return qspStsBadTriangleFrequency;
    constexpr F pi = F(phase::kPi);
    if (asym < -pi || asym >= pi) return qspStsBadTriangleAsymmetry;
    const double ph = double(*pPhase);
    if (ph < 0.0 || ph >= kTwoPi) return qspStsBadTrianglePhase;
    if (pDst == nullptr) return qspStsNullPtr;
    if (len <= 0) return qspStsBadSize;
    return qspStsOk;
}

struct Shape {
    double fall, down, up;  // tri = 1 - down u below fall, up (u - fall) - 1 above
};

Shape shapeOf(double asym)
{
    double fall = (phase::kPi - asym) / kTwoPi;
    if (fall > 1.0) fall = 1.0;  // the float nearest -pi lies just below it
    const double rise = 1.0 - fall;
    return {fall, 2.0 / fall, rise > 0.0 ? 2.0 / rise : 0.0};
}

// magn tri(u) for the lanes of u in [0, 1).
inline VD::Reg wave(VD::Reg u, const Shape& s, VD::Reg magn)
{
    const VD::Reg one = VD::splat(1.0);
    const VD::Reg falling = VD::sub(one, VD::mul(VD::splat(s.down), u));
    const VD::Reg rising = VD::sub(VD::mul(VD::splat(s.up), VD::sub(u, VD::splat(s.fall))), one);
    return VD::mul(magn, VD::select(VD::cmplt(u, VD::splat(s.fall)), rising, falling));
}

// The fraction part of lanes that are not negative.
inline VD::Reg fraction(VD::Reg u) { return VD::sub(u, VD::truncate(u)); }

template <class T>
void generate(T* pDst, int len, double magn, double rFreq, const Shape& shape, double ph)
{
    constexpr bool cplx = samples::partsOf<T> == 2;
    constexpr int chunk = samples::kBlock / samples::partsOf<T>;
    const double turns0 = ph * phase::kInvTwoPi;
    const VD::Reg m = VD::splat(magn), quarterBack = VD::splat(0.75);
    alignas(16) double v[samples::kBlock + 2];
    for (int b = 0; b < len; b += chunk) {
        const int n = len - b < chunk ? len - b : chunk;
        const VD::Reg base = VD::splat(phase::turnFraction(turns0, rFreq, b)), f = VD::splat(rFreq);
        if constexpr (!cplx) {
            for (int j = 0; j < n; j += 2) {
                const VD::Reg u = fraction(VD::add(base, VD::mul(VD::pair(j, j + 1), f)));
                VD::store(v + j, wave(u, shape, m));
            }
        } else {
            for (int j = 0; j < n; j += 2) {
                const VD::Reg u = fraction(VD::add(base, VD::mul(VD::pair(j, j + 1), f)));
                const VD::Reg re = wave(u, shape, m), im = wave(fraction(VD::add(u, quarterBack)), shape, m);
                VD::store(v + 2 * j, VD::zipLo(re, im));
                VD::store(v + 2 * j + 2, VD::zipHi(re, im));
            }
        }
        samples::store(v, pDst + b, n);
    }
}

template <class T, class F>
QspStatus triangle(T* pDst, int len, F magn, F rFreq, F asym, F* pPhase)
{
    if (QspStatus s = checkTriangle(pDst, len, magn, rFreq, asym, pPhase)) return s;
    const double ph = double(*pPhase);
    double p = phase::advanced(ph, double(rFreq), len);
    p = p - mathfn::qspsFloorOne(p * phase::kInvTwoPi) * kTwoPi;
    const F next = F(p);
    generate(pDst, len, double(magn), double(rFreq), shapeOf(double(asym)), ph);
    *pPhase = next;
    return qspStsOk;
}

}  // namespace

QspStatus qspsTriangle_16s(Qsp16s* pDst, int len, Qsp32f magn, Qsp32f rFreq, Qsp32f asym, Qsp32f* pPhase)
{
    return triangle(pDst, len, magn, rFreq, asym, pPhase);
}
QspStatus qspsTriangle_16sc(Qsp16sc* pDst, int len, Qsp32f magn, Qsp32f rFreq, Qsp32f asym, Qsp32f* pPhase)
{
    return triangle(pDst, len, magn, rFreq, asym, pPhase);
}
QspStatus qspsTriangle_32f(Qsp32f* pDst, int len, Qsp32f magn, Qsp32f rFreq, Qsp32f asym, Qsp32f* pPhase)
{
    return triangle(pDst, len, magn, rFreq, asym, pPhase);
}
QspStatus qspsTriangle_32fc(Qsp32fc* pDst, int len, Qsp32f magn, Qsp32f rFreq, Qsp32f asym, Qsp32f* pPhase)
{
    return triangle(pDst, len, magn, rFreq, asym, pPhase);
}
QspStatus qspsTriangle_64f(Qsp64f* pDst, int len, Qsp64f magn, Qsp64f rFreq, Qsp64f asym, Qsp64f* pPhase)
{
    return triangle(pDst, len, magn, rFreq, asym, pPhase);
}
QspStatus qspsTriangle_64fc(Qsp64fc* pDst, int len, Qsp64f magn, Qsp64f rFreq, Qsp64f asym, Qsp64f* pPhase)
{
    return triangle(pDst, len, magn, rFreq, asym, pPhase);
}

}  // namespace y8

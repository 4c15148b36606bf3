// SPDX-License-Identifier: BSD-3-Clause
// IIRGen: Butterworth and Chebyshev type I lowpass and highpass filters of
// order 1..18, designed as analog prototypes and mapped to the z plane by
// the bilinear transform with the cut-off pre-warped.
//
// The prototype with cut-off 1 rad/s has its poles on the left half of a
// circle (Butterworth) or of an ellipse (Chebyshev I, ripple r dB,
// e = sqrt(10^(r/10) - 1), m = asinh(1/e)/N):
//     p_k = -sinh(m) sin(t_k) + i cosh(m) cos(t_k),  t_k = pi (2k+1) / (2N),
// sinh(m) = cosh(m) = 1 for Butterworth. With W = tan(pi rFreq) the
// lowpass takes the poles W p_k and N zeros at infinity, the highpass the
// poles W / p_k and N zeros at 0; the bilinear map z = (1 + s) / (1 - s)
// sends the analog frequency W to rFreq exactly and the zeros to z = -1
// (lowpass) or z = 1 (highpass). The result is a cascade of biquad
// sections, ready for IIRInit_BiQuad: each conjugate pole pair gives one
// section 1 - 2 Re(z) z^-1 + |z|^2 z^-2 over the numerator (1 +- z^-1)^2, the
// real pole of an odd order a first-order section, every section scaled to
// unit gain at the centre of the pass band (DC or half the sampling rate).
// A Chebyshev filter of even order starts its pass band at a ripple trough,
// so its first section carries the extra factor 1/sqrt(1 + e^2). Sections
// stay well conditioned at every order and cut-off, where the multiplied-out
// polynomial of a high order loses all its digits near z = 1 or z = -1.
#include "checks.h"
#include "mathfn/basic.h"
#include "mathfn/exp.h"
#include "mathfn/ln.h"
#include "mathfn/sincospi.h"
#include "qsp_validators.h"

namespace y8 {
namespace {

constexpr int kMaxOrder = 18;
// Chebyshev pass-band ripple in dB, above 0 and at most this.
constexpr double kMaxRipple = 100.0;

using Ext = long double;

// Second-order sections for an order, the last one first order when the
// order is odd.
constexpr int sections(int order) { return (order + 1) / 2; }

QspStatus orderCheck(int order) { return order < 1 || order > kMaxOrder ? qspStsBadFilterOrder : qspStsOk; }

// The prototype's ellipse (1, 1: the circle) and the gain at the centre
// of the pass band.
struct Design {
    Ext sinhM = 1, coshM = 1;
    Ext gain = 1;
};

// One section: b0 b1 b2 a0 a1 a2 with a0 = 1. The numerator is g (1 +- z^-1)^2
// (or g (1 +- z^-1) for the first-order section), g giving the section unit
// gain at the centre of the pass band, where (1 +- z^-1) = 2; c1, c2 the
// denominator's 1 + c1 z^-1 + c2 z^-2 (c2 = 0 first order).
void storeSection(Ext* t, Ext c1, Ext c2, bool second, bool highpass, Ext gain)
{
    const Ext at = highpass ? 1 - c1 + c2 : 1 + c1 + c2;
    const Ext g = gain * at / (second ? 4 : 2);
    t[0] = g;
    t[1] = (highpass ? -g : g) * (second ? 2 : 1);
    t[2] = second ? g : 0;
    t[3] = 1;
    t[4] = c1;
    t[5] = c2;
}

// Sections from the lowest to the highest quality factor: the real pole
// first (odd order), then the pole pairs k = N/2-1 .. 0, whose angle t_k
// moves from the real axis towards the imaginary one. The pass band's
// overall gain goes to the first section. The sections are formed in
// extended precision in ext and rounded once to pTaps.
void ownsIIRGen(Qsp64f* pTaps, int order, double rFreq, const Design& d, bool highpass, Ext* ext)
{
    const mathfn::SinCosExt w = mathfn::sinCosPiExt(rFreq);
    const Ext warp = w.s / w.c;  // tan(pi rFreq)
    Ext gain = d.gain;
    Ext* t = ext;
    if (order % 2) {
        // The real pole (t = pi/2): p = -sinh(m), s = W p or W / p, z = (1 +
        // s) / (1 - s), the factor 1 - z z^-1.
        const Ext s = highpass ? -warp / d.sinhM : -warp * d.sinhM;
        storeSection(t, -(1 + s) / (1 - s), 0, false, highpass, gain);
        t += 6, gain = 1;
    }
    for (int k = order / 2 - 1; k >= 0; --k) {
        // The pair p = -sinh(m) sin(t) +- i cosh(m) cos(t), s = W p or W / p;
        // z = (1 + s) / (1 - s) and its conjugate give 1 - 2 Re(z) z^-1 +
        // |z|^2 z^-2, with (1 + s)(1 - conj s) = 1 - |s|^2 + 2i Im s.
        const mathfn::SinCosExt a = mathfn::sinCosPiExt(double(2 * k + 1) / double(2 * order));
        const Ext pr = -d.sinhM * a.s, pi = d.coshM * a.c;
        Ext sr = warp * pr, si = warp * pi;
        if (highpass) {
            const Ext n = pr * pr + pi * pi;
            sr = warp * pr / n, si = -warp * pi / n;
        }
        const Ext den = (1 - sr) * (1 - sr) + si * si;
        const Ext zr = (1 - sr * sr - si * si) / den;
        const Ext zz = ((1 + sr) * (1 + sr) + si * si) / den;
        storeSection(t, -2 * zr, zz, true, highpass, gain);
        t += 6, gain = 1;
    }
    for (int i = 0; i < 6 * sections(order); ++i) pTaps[i] = double(ext[i]);
}

// ln 10 / 10: 10^(r/10) = e^(r ln10 / 10).
constexpr double kLn10Tenth = 0.23025850929940456840;

QspStatus iirGen(Qsp64f* pTaps, int order, Qsp64f rFreq, Qsp64f ripple, QspIIRFilterType filterType, Qsp8u* pBuffer,
                 bool highpass)
{
    if (QspStatus s = check::pointers(pTaps, pBuffer)) return s;
    if (QspStatus s = orderCheck(order)) return s;
    if (!(rFreq > 0.0 && rFreq < 0.5)) return qspStsBadRelFreq;
    if (filterType != qspIIRButterworth && filterType != qspIIRChebyshev1) return qspStsBadArgument;
    Design d;
    if (filterType == qspIIRChebyshev1) {
        if (!(ripple > 0.0 && ripple <= kMaxRipple)) return qspStsBadArgument;
        // e^2 = 10^(r/10) - 1, m = asinh(1/e) / N.
        const double e2 = mathfn::qspsExpOne(ripple * kLn10Tenth) - 1.0;
        const double inv = 1.0 / mathfn::qspsSqrtOne(e2);
        const double m = mathfn::qspsLnOne(inv + mathfn::qspsSqrtOne(inv * inv + 1.0)) / order;
        const Ext em = mathfn::qspsExpOne(m), emInv = 1 / em;
        d.sinhM = (em - emInv) / 2;
        d.coshM = (em + emInv) / 2;
        if (order % 2 == 0) d.gain = 1 / mathfn::qspsSqrtOne(1.0 + e2);
    }
    Ext* ext = reinterpret_cast<Ext*>((reinterpret_cast<Qsp64u>(pBuffer) + 15) & ~Qsp64u(15));
    ownsIIRGen(pTaps, order, rFreq, d, highpass, ext);
    return qspStsOk;
}

}  // namespace

QspStatus qspsIIRGenGetBufferSize(int order, int* pBufferSize)
{
    if (QspStatus s = check::pointers(pBufferSize)) return s;
    if (QspStatus s = orderCheck(order)) return s;
    // The sections in extended precision, 16-byte aligned.
    *pBufferSize = int(6 * sections(order) * sizeof(Ext) + 15);
    return qspStsOk;
}

QspStatus qspsIIRGenLowpass_64f(Qsp64f* pTaps, int order, Qsp64f rFreq, Qsp64f ripple, QspIIRFilterType filterType,
                                Qsp8u* pBuffer)
{
    return iirGen(pTaps, order, rFreq, ripple, filterType, pBuffer, false);
}

QspStatus qspsIIRGenHighpass_64f(Qsp64f* pTaps, int order, Qsp64f rFreq, Qsp64f ripple, QspIIRFilterType filterType,
                                 Qsp8u* pBuffer)
{
    return iirGen(pTaps, order, rFreq, ripple, filterType, pBuffer, true);
}

}  // namespace y8

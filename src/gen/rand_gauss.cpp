// SPDX-License-Identifier: BSD-3-Clause
// RandGauss: normally distributed values, mean + stdDev z, with z standard
// normal drawn from the core stream (random_engine.h) by the ziggurat
// method of Marsaglia and Tsang, 256 layers (ziggurat_tables.h).
//
// The method is exact in distribution: a point is drawn uniformly in one
// of 256 layers of equal area that together cover the half bell, and
// kept only if it lies under the curve, so the kept abscissae have exactly
// the normal density (up to the 2^-52 resolution of the uniform numbers).
// 98.5% of the draws land in the part of a layer that lies wholly under
// the curve and cost a multiplication; the rest test the curve with one
// logarithm (the wedges) or sample the tail beyond R by Marsaglia's
// exponential method.
//
// Bits of a word W: the layer i = W mod 256; the signed uniform
// u = (W >> 11) 2^-52 - 1 in [-1, 1); bits 8..10 unused. A wedge test
// takes one more word, a tail attempt two. Results are mean + stdDev z in
// double, rounded once to the element type (integers to nearest with ties
// to even, saturated). Complex forms are the real stream over twice the
// length.
#include <type_traits>

#include "arith/rounding.h"
#include "checks.h"
#include "mathfn/ln.h"
#include "qsp_validators.h"
#include "random_state.h"
#include "ziggurat_tables.h"

namespace y8 {
namespace {

struct GaussParams {
    double mean, stdDev;
};

// Uniform in [0, 1) and in (0, 1] from the top 53 bits of a word.
inline double unitClosedBelow(Qsp64u w) { return double(Qsp64s(w >> 11)) * 0x1p-53; }
inline double unitClosedAbove(Qsp64u w) { return double(Qsp64s(w >> 11) + 1) * 0x1p-53; }

// The tail beyond R: x = -ln(U1)/R, y = -ln(U2) until 2y > x^2, then R + x.
double tail(rng::Engine& e)
{
    for (;;) {
        const double x = -mathfn::lnPositive(unitClosedAbove(rng::nextWord(e))) * (1.0 / ziggurat::kR);
        const double y = -mathfn::lnPositive(unitClosedAbove(rng::nextWord(e)));
        if (2.0 * y > x * x) return ziggurat::kR + x;
    }
}

// One standard normal value.
inline double normal(rng::Engine& e)
{
    using namespace ziggurat;
    for (;;) {
        const Qsp64u w = rng::nextWord(e);
        const int i = int(w & 0xFF);
        const double u = double(Qsp64s(w >> 11)) * 0x1p-52 - 1.0;
        const double a = __builtin_fabs(u);
        if (a < kRatio[i]) return u * kX[i];
        if (i == 0) {
            const double t = tail(e);
            return u < 0 ? -t : t;
        }
        // The wedge: y uniform between the layer's bottom and top, kept
        // when below the curve, ln y < -x^2/2.
        const double x = u * kX[i];
        const double y = kF[i] + unitClosedBelow(rng::nextWord(e)) * (kF[i + 1] - kF[i]);
        if (mathfn::lnPositive(y) < -0.5 * x * x) return x;
    }
}

template <class D>
D toElement(double v)
{
    if constexpr (std::is_floating_point_v<D>) return D(v);
    else return rounding::toInt<rounding::kNear, D>(v);
}

template <class D>
void generate(rng::Engine& e, D* pDst, Qsp64s len, const GaussParams& p)
{
    for (Qsp64s i = 0; i < len; ++i) pDst[i] = toElement<D>(p.mean + p.stdDev * normal(e));
}

template <class D, class S>
QspStatus gauss(D* pDst, Qsp64s len, S* pState, rng::Kind kind)
{
    if (QspStatus s = check::pointers(pDst, pState)) return s;
    if (QspStatus s = check::length(len)) return s;
    rng::Record<GaussParams>* r = rng::opened<GaussParams>(pState, kind);
    if (r == nullptr) return qspStsBadRecord;
    generate(r->engine, pDst, len, r->params);
    return qspStsOk;
}

template <class D, class C, class S>
QspStatus gaussComplex(C* pDst, int len, S* pState, rng::Kind kind)
{
    if (QspStatus s = check::pointers(pDst, pState)) return s;
    if (QspStatus s = check::length(len)) return s;
    return gauss(reinterpret_cast<D*>(pDst), 2 * Qsp64s(len), pState, kind);
}

template <class S>
QspStatus init(S* pState, double mean, double stdDev, unsigned seed, rng::Kind kind)
{
    if (pState == nullptr) return qspStsNullPtr;
    if (!(mean - mean == 0.0)) return qspStsBadArgument;  // infinite or NaN
    if (!(stdDev >= 0.0 && stdDev - stdDev == 0.0)) return qspStsBadStdDev;
    return rng::build(pState, kind, GaussParams{mean, stdDev}, seed);
}

}  // namespace

QspStatus qspsRandGaussGetSize_8u(int* pStateSize) { return rng::getSize<GaussParams>(pStateSize); }
QspStatus qspsRandGaussGetSize_16s(int* pStateSize) { return rng::getSize<GaussParams>(pStateSize); }
QspStatus qspsRandGaussGetSize_32f(int* pStateSize) { return rng::getSize<GaussParams>(pStateSize); }
QspStatus qspsRandGaussGetSize_64f(int* pStateSize) { return rng::getSize<GaussParams>(pStateSize); }

QspStatus qspsRandGaussInit_8u(QspsRandGaussState_8u* pState, Qsp8u mean, Qsp8u stdDev, unsigned int seed)
{
    return init(pState, mean, stdDev, seed, rng::kGauss8u);
}
QspStatus qspsRandGaussInit_16s(QspsRandGaussState_16s* pState, int mean, int stdDev, unsigned int seed)
{
    return init(pState, mean, stdDev, seed, rng::kGauss16s);
}
QspStatus qspsRandGaussInit_32f(QspsRandGaussState_32f* pState, Qsp32f mean, Qsp32f stdDev, unsigned int seed)
{
    return init(pState, mean, stdDev, seed, rng::kGauss32f);
}
QspStatus qspsRandGaussInit_64f(QspsRandGaussState_64f* pState, Qsp64f mean, Qsp64f stdDev, unsigned int seed)
{
    return init(pState, mean, stdDev, seed, rng::kGauss64f);
}

QspStatus qspsRandGauss_8u(Qsp8u* pDst, int len, QspsRandGaussState_8u* pState)
{
    return gauss(pDst, len, pState, rng::kGauss8u);
}
QspStatus qspsRandGauss_16s(Qsp16s* pDst, int len, QspsRandGaussState_16s* pState)
{
    return gauss(pDst, len, pState, rng::kGauss16s);
}
QspStatus qspsRandGauss_32f(Qsp32f* pDst, int len, QspsRandGaussState_32f* pState)
{
    return gauss(pDst, len, pState, rng::kGauss32f);
}
QspStatus qspsRandGauss_64f(Qsp64f* pDst, int len, QspsRandGaussState_64f* pState)
{
    return gauss(pDst, len, pState, rng::kGauss64f);
}
QspStatus qspsRandGauss_16sc(Qsp16sc* pDst, int len, QspsRandGaussState_16s* pState)
{
    return gaussComplex<Qsp16s>(pDst, len, pState, rng::kGauss16s);
}
QspStatus qspsRandGauss_32fc(Qsp32fc* pDst, int len, QspsRandGaussState_32f* pState)
{
    return gaussComplex<Qsp32f>(pDst, len, pState, rng::kGauss32f);
}
QspStatus qspsRandGauss_64fc(Qsp64fc* pDst, int len, QspsRandGaussState_64f* pState)
{
    return gaussComplex<Qsp64f>(pDst, len, pState, rng::kGauss64f);
}

}  // namespace y8

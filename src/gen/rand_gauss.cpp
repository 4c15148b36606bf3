// SPDX-License-Identifier: BSD-3-Clause
// RandGauss: normally distributed values, mean + stdDev z, with z standard
// normal drawn from the core stream (random_engine.h) by the ziggurat
// method of Marsaglia and Tsang, 256 layers (ziggurat_tables.h).
//
// The method is exact in distribution: a point is drawn uniformly in one
// of 256 layers of equal area that together cover the half bell, and
// kept only if it lies under the curve, so the kept abscissae have exactly
// the normal density (up to the 2^-51 resolution of the uniform numbers).
// 98.5% of the draws land in the part of a layer that lies wholly under
// the curve and cost a multiplication; the rest test the curve with one
// logarithm (the wedges) or sample the tail beyond R by Marsaglia's
// exponential method.
//
// Bits of a word W: the layer i = W mod 256; the signed uniform
// u = (W >> 12) 2^-51 - 1 in [-1, 1), formed as 2m - 3 from the number m
// in [1, 2) whose mantissa is W >> 12; bits 8..11 unused. A wedge test
// takes one more word, a tail attempt two. Results are mean + stdDev z in
// double, rounded once to the element type (integers to nearest with ties
// to even, saturated). Complex forms are the real stream over twice the
// length.
//
// Words go through the rectangle test a register at a time; at a group
// where any word falls outside, the scalar method takes over for one
// value, so the values are those of the scalar method in order.
#include <limits>
#include <type_traits>

#include "arith/rounding.h"
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
double tail(rng::Words& words)
{
    for (;;) {
        const double x = -mathfn::lnPositive(unitClosedAbove(words.next())) * (1.0 / ziggurat::kR);
        const double y = -mathfn::lnPositive(unitClosedAbove(words.next()));
        if (2.0 * y > x * x) return ziggurat::kR + x;
    }
}

using VD = simd::Vec<double>;

// u = 2m - 3, m the number in [1, 2) with mantissa W >> 12: exact.
inline double signedUnit(Qsp64u w)
{
    const double m = __builtin_bit_cast(double, (w >> 12) | 0x3FF0000000000000ull);
    return (m + m) - 3.0;
}

// The layers' rectangle ratio and width side by side, one load a layer.
struct alignas(16) Layer {
    double ratio, x;
};
struct LayerTable {
    Layer layer[ziggurat::kLayers];
};
constexpr LayerTable kLayerTable = [] {
    LayerTable t{};
    for (int i = 0; i < ziggurat::kLayers; ++i) t.layer[i] = {ziggurat::kRatio[i], ziggurat::kX[i]};
    return t;
}();

// The values u x of the words at w, and the mask of those inside their
// rectangles (bit k for word k).
inline int pairInRectangles(const Qsp64u* w, VD::Reg& z)
{
    const __m128i words = _mm_loadu_si128(reinterpret_cast<const __m128i*>(w));
    const int i0 = _mm_cvtsi128_si32(words) & 0xFF, i1 = _mm_extract_epi32(words, 2) & 0xFF;
    const VD::Reg l0 = VD::load(&kLayerTable.layer[i0].ratio), l1 = VD::load(&kLayerTable.layer[i1].ratio);
    using VU = simd::Vec<Qsp64u>;
    const VD::Reg m = _mm_castsi128_pd(VU::bitOr(VU::shiftRight<12>(words), VU::splat(0x3FF0000000000000ull)));
    const VD::Reg u = VD::sub(VD::add(m, m), VD::splat(3.0));
    const VD::Reg inside = VD::cmplt(VD::andNot(VD::signBit(), u), VD::zipLo(l0, l1));
    z = VD::mul(u, VD::zipHi(l0, l1));
    return VD::anyMask(inside);
}

// One standard normal value.
inline double normal(rng::Words& words)
{
    using namespace ziggurat;
    for (;;) {
        const Qsp64u w = words.next();
        const int i = int(w & 0xFF);
        const double u = signedUnit(w);
        const double a = __builtin_fabs(u);
        if (a < kRatio[i]) return u * kX[i];
        if (i == 0) {
            const double t = tail(words);
            return u < 0 ? -t : t;
        }
        // The wedge: y uniform between the layer's bottom and top, kept
        // when below the curve, ln y < -x^2/2.
        const double x = u * kX[i];
        const double y = kF[i] + unitClosedBelow(words.next()) * (kF[i + 1] - kF[i]);
        if (mathfn::lnPositive(y) < -0.5 * x * x) return x;
    }
}

template <class D>
D toElement(double v)
{
    if constexpr (std::is_floating_point_v<D>) return D(v);
    else return rounding::toInt<rounding::kNear, D>(v);
}

// Two values of a register stored as elements, rounded as toElement does.
template <class D>
void storePair(D* d, VD::Reg v)
{
    if constexpr (std::is_same_v<D, Qsp64f>) {
        VD::storeu(d, v);
    } else if constexpr (std::is_same_v<D, Qsp32f>) {
        _mm_storel_pi(reinterpret_cast<__m64*>(d), _mm_cvtpd_ps(v));
    } else {
        using L = std::numeric_limits<D>;
        const __m128i r = rounding::toInt32<rounding::kNear>(v, VD::splat(L::min()), VD::splat(L::max()));
        d[0] = D(_mm_cvtsi128_si32(r));
        d[1] = D(_mm_extract_epi32(r, 1));
    }
}

// The fast loop takes kGroup words a round through the rectangle test,
// writes all kGroup results, and returns how many of them lead the group
// inside their rectangles; those stand, and the first word outside goes
// through the scalar method (which meets the same test first), as do the
// words at the ends of the batch and of the request. So the values are
// those of the scalar method in order.
template <int kGroup, class Reader, class Fast, class Slow>
void drive(Reader& words, Qsp64s len, Fast fast, Slow slow)
{
    Qsp64s i = 0;
    while (i < len) {
        const Qsp64s room = len - i < words.available() ? len - i : words.available();
        const auto* w = words.peek();
        Qsp64s done = 0;
        for (; done + kGroup <= room; done += kGroup) {
            const int inside = fast(w + done, i + done);
            if (inside < kGroup) {
                done += inside;
                break;
            }
        }
        words.skip(int(done));
        i += done;
        if (i < len) slow(i++);
    }
}

// The number of trailing set bits of a lane mask.
inline int leadingInside(int mask) { return __builtin_ctz(~mask); }

template <class D>
void generate(rng::Engine& e, D* pDst, Qsp64s len, const GaussParams& p)
{
    rng::Words words(e);
    const VD::Reg mean = VD::splat(p.mean), stdDev = VD::splat(p.stdDev);
    drive<4>(
        words, len,
        [&](const Qsp64u* w, Qsp64s at) {
            VD::Reg z0, z1;
            const int inside = pairInRectangles(w, z0) | pairInRectangles(w + 2, z1) << 2;
            storePair(pDst + at, VD::add(mean, VD::mul(stdDev, z0)));
            storePair(pDst + at + 2, VD::add(mean, VD::mul(stdDev, z1)));
            return leadingInside(inside);
        },
        [&](Qsp64s at) { pDst[at] = toElement<D>(p.mean + p.stdDev * normal(words)); });
}

// ---------------------------------------------------------------------------
// Single precision: the same ziggurat on 32-bit halves V, four at a time
// in one register: layer i = V mod 256, u = 2m - 3 from the number m in
// [1, 2) whose mantissa is V >> 9 (u = (V >> 9) 2^-22 - 1), z = u x_i with
// the tables rounded to single precision. The wedge and the tail work in
// double with uniform numbers V 2^-32 (wedge, one more half) and (V + 1)
// 2^-32 (tail, two halves an attempt); the wedge keeps z = u x_i, exact in
// double, rounded once.

using VF = simd::Vec<float>;

struct LayerF {
    float ratio, x;
};
struct LayerTableF {
    LayerF layer[ziggurat::kLayers];
};
constexpr LayerTableF kLayerTableF = [] {
    LayerTableF t{};
    for (int i = 0; i < ziggurat::kLayers; ++i) t.layer[i] = {float(ziggurat::kRatio[i]), float(ziggurat::kX[i])};
    return t;
}();

inline float signedUnitF(Qsp32u v)
{
    const float m = __builtin_bit_cast(float, (v >> 9) | 0x3F800000u);
    return (m + m) - 3.0f;
}

double tailF(rng::HalfWords& halves)
{
    for (;;) {
        const double x = -mathfn::lnPositive((double(halves.next()) + 1.0) * 0x1p-32) * (1.0 / ziggurat::kR);
        const double y = -mathfn::lnPositive((double(halves.next()) + 1.0) * 0x1p-32);
        if (2.0 * y > x * x) return ziggurat::kR + x;
    }
}

inline float normalF(rng::HalfWords& halves)
{
    using namespace ziggurat;
    for (;;) {
        const Qsp32u v = halves.next();
        const int i = int(v & 0xFF);
        const float u = signedUnitF(v);
        const LayerF layer = kLayerTableF.layer[i];
        if (__builtin_fabsf(u) < layer.ratio) return u * layer.x;
        if (i == 0) {
            const double t = tailF(halves);
            return float(u < 0 ? -t : t);
        }
        const double x = double(u) * double(layer.x);
        const double y = kF[i] + double(halves.next()) * 0x1p-32 * (kF[i + 1] - kF[i]);
        if (mathfn::lnPositive(y) < -0.5 * x * x) return float(x);
    }
}

// The values u x of the halves at v, and the mask of those inside their
// rectangles.
inline int quadInRectangles(const Qsp32u* v, VF::Reg& z)
{
    const __m128i h = _mm_loadu_si128(reinterpret_cast<const __m128i*>(v));
    const __m128i index = _mm_and_si128(h, _mm_set1_epi32(0xFF));
    const LayerF* t = kLayerTableF.layer;
    const VF::Reg l0 = VF::loadPair(&t[_mm_cvtsi128_si32(index)].ratio);
    const VF::Reg l1 = VF::loadPair(&t[_mm_extract_epi32(index, 1)].ratio);
    const VF::Reg l2 = VF::loadPair(&t[_mm_extract_epi32(index, 2)].ratio);
    const VF::Reg l3 = VF::loadPair(&t[_mm_extract_epi32(index, 3)].ratio);
    const VF::Reg a = VF::zipLo(l0, l1), b = VF::zipLo(l2, l3);  // r0 r1 x0 x1, r2 r3 x2 x3
    const VF::Reg m = _mm_castsi128_ps(_mm_or_si128(_mm_srli_epi32(h, 9), _mm_set1_epi32(0x3F800000)));
    const VF::Reg u = VF::sub(VF::add(m, m), VF::splat(3.0f));
    const VF::Reg inside = VF::cmplt(VF::andNot(VF::signBit(), u), VF::lowHalves(a, b));
    z = VF::mul(u, VF::highHalves(a, b));
    return VF::anyMask(inside);
}

void generate32f(rng::Engine& e, Qsp32f* pDst, Qsp64s len, float mean, float stdDev)
{
    rng::HalfWords halves(e);
    const VF::Reg m = VF::splat(mean), s = VF::splat(stdDev);
    drive<8>(
        halves, len,
        [&](const Qsp32u* v, Qsp64s at) {
            VF::Reg z0, z1;
            const int inside = quadInRectangles(v, z0) | quadInRectangles(v + 4, z1) << 4;
            VF::storeu(pDst + at, VF::add(m, VF::mul(s, z0)));
            VF::storeu(pDst + at + 4, VF::add(m, VF::mul(s, z1)));
            return leadingInside(inside);
        },
        [&](Qsp64s at) { pDst[at] = mean + stdDev * normalF(halves); });
}

template <class D, class S>
QspStatus gauss(D* pDst, Qsp64s len, S* pState, rng::Kind kind)
{
    if (QspStatus s = rng::checkCall(pDst, len, pState)) return s;
    rng::Record<GaussParams>* r = rng::opened<GaussParams>(pState, kind);
    if (r == nullptr) return qspStsBadRecord;
    if constexpr (std::is_same_v<D, Qsp32f>) generate32f(r->engine, pDst, len, float(r->params.mean), float(r->params.stdDev));
    else generate(r->engine, pDst, len, r->params);
    return qspStsOk;
}

template <class D, class C, class S>
QspStatus gaussComplex(C* pDst, int len, S* pState, rng::Kind kind)
{
    if (QspStatus s = rng::checkCall(pDst, len, pState)) return s;
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

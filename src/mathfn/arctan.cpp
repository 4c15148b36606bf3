// SPDX-License-Identifier: BSD-3-Clause
// Arctan: atan x element by element, correctly rounded in single precision
// and within 0.53 ULP in double (arctan.h); and the two-argument
// arctangent in double precision for the phase of complex values.
#include "arctan.h"

#include "checks.h"
#include "qsp_validators.h"
#include "qspdefs.h"
#include "simd.h"

namespace mathfn {
namespace {

struct Split {
    double hi, lo;
};

// atan(k/8), k = 0..8, as value plus correction.
constexpr Split kAtanEighths[9] = {
    {0x0.0p+0, 0x0.0p+0},
    {0x1.fd5ba9aac2f6ep-4, -0x1.cd37686760c17p-59},
    {0x1.f5b75f92c80ddp-3, 0x1.8ab6e3cf7afbdp-57},
    {0x1.6f61941e4def1p-2, -0x1.c63aae6f6e918p-56},
    {0x1.dac670561bb4fp-2, 0x1.a2b7f222f65e2p-56},
    {0x1.1e00babdefeb4p-1, -0x1.928df287a668fp-58},
    {0x1.4978fa3269ee1p-1, 0x1.2419a87f2a458p-56},
    {0x1.700a7c5784634p-1, -0x1.8c34d25aadef6p-56},
    {0x1.921fb54442d18p-1, 0x1.1a62633145c07p-55},
};
constexpr Split kPi = {0x1.921fb54442d18p+1, 0x1.1a62633145c07p-53};
constexpr Split kHalfPi = {0x1.921fb54442d18p+0, 0x1.1a62633145c07p-54};

double magnitude(double x) { return __builtin_bit_cast(double, __builtin_bit_cast(Qsp64u, x) & ~(Qsp64u(1) << 63)); }
bool signBit(double x) { return (__builtin_bit_cast(Qsp64u, x) >> 63) != 0; }
double withSign(double m, bool negative) { return negative ? -m : m; }

// u - u^3/3 + u^5/5 - ... - u^15/15 + u^17/17, on a double or a register
// of them, with the same operations in the same order.
template <class Ops, class R>
R series(R u)
{
    const R u2 = Ops::mul(u, u);
    R p = Ops::splat(1.0 / 17);
    constexpr double kTerms[] = {-1.0 / 15, 1.0 / 13, -1.0 / 11, 1.0 / 9, -1.0 / 7, 1.0 / 5, -1.0 / 3};
    for (double term : kTerms) p = Ops::add(Ops::mul(p, u2), Ops::splat(term));
    return Ops::add(u, Ops::mul(u, Ops::mul(u2, p)));
}
struct ScalarOps {
    static double mul(double a, double b) { return a * b; }
    static double add(double a, double b) { return a + b; }
    static double splat(double a) { return a; }
};

// atan(t) for 0 <= t <= 1 as a value plus correction: the correction holds
// the table's correction and the series, the value the table entry.
Split atanUnit(double t)
{
    const int k = int(t * 8.0 + 0.5);
    const double c = k * 0.125;
    const double u = (t - c) / (1.0 + t * c);  // t - c is exact
    return {kAtanEighths[k].hi, kAtanEighths[k].lo + series<ScalarOps>(u)};
}

// The angle's base and the sign of atan(t) in it, by the signs of x and
// whether |y| > |x| (index nx + 2 swap): a, pi - a, pi/2 - a, pi/2 + a.
struct Base {
    double hi, lo, sign;
};
constexpr Base kBases[4] = {
    {0.0, 0.0, 1.0}, {kPi.hi, kPi.lo, -1.0}, {kHalfPi.hi, kHalfPi.lo, -1.0}, {kHalfPi.hi, kHalfPi.lo, 1.0}};

}  // namespace

double atan2(double y, double x)
{
    if (x != x || y != y) return x + y;
    const bool ny = signBit(y), nx = signBit(x);
    double ay = magnitude(y), ax = magnitude(x);
    constexpr double inf = __builtin_inf();
    if (ay == inf || ax == inf) {
        // Both infinite: odd multiples of pi/4; one infinite: 0, pi/2 or pi.
        double a;
        if (ay == inf && ax == inf) a = nx ? 3 * (kPi.hi / 4) : kPi.hi / 4;
        else if (ay == inf) a = kHalfPi.hi;
        else a = nx ? kPi.hi : 0.0;
        return withSign(a, ny);
    }
    if (ay == 0 && ax == 0) return withSign(nx ? kPi.hi : 0.0, ny);
    const bool swap = ay > ax;
    const double t = swap ? ax / ay : ay / ax;
    const Split a = atanUnit(t);
    // The sign factor is exact, so a, pi - a, pi/2 - a or pi/2 + a come out
    // as if written directly.
    const Base& b = kBases[int(nx) + 2 * int(swap)];
    return withSign((b.hi + b.sign * a.hi) + (b.lo + b.sign * a.lo), ny);
}

void atan2(const double* y, const double* x, double* out, int n)
{
    using V = simd::Vec<double>;
    using VI = simd::Vec<Qsp32s>;
    const V::Reg largest = V::splat(__builtin_bit_cast(double, Qsp64u(0x7FEFFFFFFFFFFFFFull)));
    int i = 0;
    for (; i + 2 <= n; i += 2) {
        const V::Reg vy = V::loadu(y + i), vx = V::loadu(x + i);
        const V::Reg ay = V::andNot(V::signBit(), vy), ax = V::andNot(V::signBit(), vx);
        const int finite = V::anyMask(V::bitAnd(V::cmple(ax, largest), V::cmple(ay, largest)));
        const int zeros = V::anyMask(V::bitAnd(V::cmpeq(ax, V::zero()), V::cmpeq(ay, V::zero())));
        if (finite != 3 || zeros != 0) {
            const double y0 = y[i], x0 = x[i], y1 = y[i + 1], x1 = x[i + 1];
            out[i] = atan2(y0, x0);
            out[i + 1] = atan2(y1, x1);
            continue;
        }
        // t = min / max of the magnitudes, as the scalar path forms it.
        const V::Reg swap = V::cmpgt(ay, ax);
        const V::Reg t = V::div(V::select(swap, ay, ax), V::select(swap, ax, ay));
        const __m128i k = V::toInt32(V::add(V::mul(t, V::splat(8.0)), V::splat(0.5)));
        const V::Reg c = V::mul(V::fromInt32(k), V::splat(0.125));
        const V::Reg u = V::div(V::sub(t, c), V::add(V::splat(1.0), V::mul(t, c)));
        const int k0 = VI::lane<0>(k), k1 = VI::lane<1>(k);
        const V::Reg hi = V::pair(kAtanEighths[k0].hi, kAtanEighths[k1].hi);
        const V::Reg lo = V::add(V::pair(kAtanEighths[k0].lo, kAtanEighths[k1].lo), series<V>(u));
        const int cases = V::anyMask(vx) | V::anyMask(swap) << 2;  // nx0 nx1 swap0 swap1
        const Base& b0 = kBases[(cases & 1) | (cases >> 1 & 2)];
        const Base& b1 = kBases[(cases >> 1 & 1) | (cases >> 2 & 2)];
        const V::Reg sign = V::pair(b0.sign, b1.sign);
        const V::Reg r = V::add(V::add(V::pair(b0.hi, b1.hi), V::mul(sign, hi)),
                                V::add(V::pair(b0.lo, b1.lo), V::mul(sign, lo)));
        V::storeu(out + i, V::bitXor(r, V::bitAnd(vy, V::signBit())));
    }
    for (; i < n; ++i) out[i] = atan2(y[i], x[i]);
}

}  // namespace mathfn

namespace y8 {
namespace {

QspStatus arctan32f(const Qsp32f* pSrc, Qsp32f* pDst, int len)
{
    if (QspStatus s = check::vectors(len, pSrc, pDst)) return s;
    mathfn::qspsArctan_32f_A24(pSrc, pDst, len);
    return qspStsOk;
}

QspStatus arctan64f(const Qsp64f* pSrc, Qsp64f* pDst, int len)
{
    if (QspStatus s = check::vectors(len, pSrc, pDst)) return s;
    mathfn::qspsArctan_64f_A53(pSrc, pDst, len);
    return qspStsOk;
}

}  // namespace

QspStatus qspsArctan_32f(const Qsp32f* pSrc, Qsp32f* pDst, int len) { return arctan32f(pSrc, pDst, len); }
QspStatus qspsArctan_32f_I(Qsp32f* pSrcDst, int len) { return arctan32f(pSrcDst, pSrcDst, len); }
QspStatus qspsArctan_64f(const Qsp64f* pSrc, Qsp64f* pDst, int len) { return arctan64f(pSrc, pDst, len); }
QspStatus qspsArctan_64f_I(Qsp64f* pSrcDst, int len) { return arctan64f(pSrcDst, pSrcDst, len); }

}  // namespace y8

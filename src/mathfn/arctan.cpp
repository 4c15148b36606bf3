// Two-argument arctangent in double precision (see arctan.h).
#include "arctan.h"

#include "qspdefs.h"

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

// atan(t) for 0 <= t <= 1 as a value plus correction: the correction holds
// the table's correction and the series, the value the table entry.
Split atanUnit(double t)
{
    const int k = int(t * 8.0 + 0.5);
    const double c = k * 0.125;
    const double u = (t - c) / (1.0 + t * c);  // t - c is exact
    const double u2 = u * u;
    // u - u^3/3 + u^5/5 - ... - u^15/15 + u^17/17
    double p = 1.0 / 17;
    p = p * u2 - 1.0 / 15;
    p = p * u2 + 1.0 / 13;
    p = p * u2 - 1.0 / 11;
    p = p * u2 + 1.0 / 9;
    p = p * u2 - 1.0 / 7;
    p = p * u2 + 1.0 / 5;
    p = p * u2 - 1.0 / 3;
    const double series = u + u * (u2 * p);
    return {kAtanEighths[k].hi, kAtanEighths[k].lo + series};
}

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
    double r;
    if (!swap) {
        // a or pi - a.
        r = nx ? (kPi.hi - a.hi) + (kPi.lo - a.lo) : a.hi + a.lo;
    } else {
        // pi/2 - a or pi/2 + a.
        r = nx ? (kHalfPi.hi + a.hi) + (kHalfPi.lo + a.lo) : (kHalfPi.hi - a.hi) + (kHalfPi.lo - a.lo);
    }
    return withSign(r, ny);
}

}  // namespace mathfn

// SPDX-License-Identifier: BSD-3-Clause
// Exponentials and logarithms to about 2^-100, in double-double
// arithmetic, for the scaled integer forms: their results (up to 2^63) are
// the exact values rounded to integers, and a value within 2^-100 of the
// exact one rounds the same unless the exact value lies that close to a
// halfway point between integers.
//
//   Pair<double> expExtended(Pair<double> w)   e^w, for w below 710
//   Pair<double> lnExtended(Qsp64u x)          ln x, x >= 1
//   Qsp64s roundToInteger(Pair<double> v, bool& tooLarge)
//                                              v rounded to nearest, ties
//                                              to even; tooLarge when the
//                                              magnitude reaches 2^63
//
// Method. e^w = 2^(k/128) e^r as in exp.h, with ln2/128 in three parts and
// r carried as double-double; e^r - 1 is its Taylor series to r^10 (the
// first omitted term is below 2^-118) evaluated by Horner's rule in
// double-double with the coefficients 1/n! to 106 bits, and the table
// value 2^(j/128) is the kernel's value plus correction (2^-106). ln x as
// in ln.h: x = 2^e m, u = m c - 1 exact, ln(1 + u) to u^14 in double-double
// (first omitted term below 2^-110 of u), ln(1/c) from the table and ln 2
// in three parts; the rounding of x to double is added back as
// (x - hi) / hi.
#pragma once
#include "exp.h"
#include "ln.h"

namespace mathfn {
namespace extended {

using DD = Pair<double>;

constexpr DD add(DD a, DD b)
{
    DD s = twoSum(a.hi, b.hi);
    const DD t = twoSum(a.lo, b.lo);
    s = fastTwoSum(s.hi, s.lo + t.hi);
    return fastTwoSum(s.hi, s.lo + t.lo);
}
constexpr DD mul(DD a, DD b)
{
    const DD p = twoProd(a.hi, b.hi);
    return fastTwoSum(p.hi, p.lo + (a.hi * b.lo + a.lo * b.hi));
}
constexpr DD neg(DD a) { return {-a.hi, -a.lo}; }
constexpr DD of(double a) { return {a, 0.0}; }

// 1/n as a double-double.
constexpr DD reciprocal(double n)
{
    const double hi = 1.0 / n;
    const DD p = twoProd(hi, n);  // hi n = 1 - e exactly
    return {hi, ((1.0 - p.hi) - p.lo) / n};
}

// 1/n! for n = 0 .. 10.
struct Coefficients {
    DD c[11];
};
constexpr Coefficients inverseFactorials()
{
    Coefficients t{};
    t.c[0] = of(1.0);
    double f = 1.0;
    for (int n = 1; n <= 10; ++n) {
        f *= n;  // exact up to 18!
        t.c[n] = reciprocal(f);
    }
    return t;
}
constexpr Coefficients kInverseFactorials = inverseFactorials();

// 1/n for n = 1 .. 14.
struct Inverses {
    DD c[15];
};
constexpr Inverses inverses()
{
    Inverses t{};
    for (int n = 1; n <= 14; ++n) t.c[n] = reciprocal(double(n));
    return t;
}
constexpr Inverses kInverses = inverses();

// ln2/128 in three parts: the first of 40 bits, exact times k (|k| < 2^13).
constexpr double kLn2N1 = 0x1.62e42fefa2000p-8;
constexpr double kLn2N2 = 0x1.9ef35793c6000p-48;
constexpr double kLn2N3 = 0x1.673007e5ed5e8p-88;

constexpr DD expExtended(DD w)
{
    const double shifted = w.hi * expo::kInvLn2N + kRoundShift;
    const double k = shifted - kRoundShift;
    const Qsp64s ki = Qsp64s(bitsOf(shifted) - kRoundShiftBits);
    // r = w - k ln2/128: the first difference is exact (Sterbenz).
    DD r = twoSum(w.hi - k * kLn2N1, w.lo);
    r = add(r, of(-(k * kLn2N2)));
    r = add(r, neg(twoProd(k, kLn2N3)));
    // e^r - 1 = r (1 + r/2! + ... + r^9/10!) by Horner's rule.
    DD p = kInverseFactorials.c[10];
    for (int n = 9; n >= 1; --n) p = add(mul(p, r), kInverseFactorials.c[n]);
    p = mul(p, r);
    const Pair<double>& t = expo::kExp2Table[ki & 127];
    const DD y = add(of(t.hi), add(of(t.lo), mul({t.hi, t.lo}, p)));
    const double scale = rounding::pow2(int(ki >> 7));
    return {y.hi * scale, y.lo * scale};
}

// ln 2 in three parts; the first exact times any exponent.
constexpr double kLn2Lo2 = 0x1.f97b57a079a19p-103;

constexpr DD lnExtended(Qsp64u x)
{
    const double hi = double(x);
    const double lo = double(Qsp64s(x - Qsp64u(hi)));  // exact: |x - hi| <= 2^10
    const lnfn::Split s = lnfn::splitNormal(bitsOf(hi));
    const double m = fromBits(s.mBits);
    const int j = int(bitsOf(m * 128.0 + kRoundShift) - kRoundShiftBits);
    const lnfn::Entry& t = lnfn::kTable[j - lnfn::kFirst];
    const DD u = lnfn::reduced(m, fromBits(s.mBits & ~lnfn::kLow10), t.c);
    // ln(1 + u) = u (1 - u/2 + u^2/3 - ... - u^13/14).
    DD p = neg(kInverses.c[14]);
    for (int n = 13; n >= 1; --n) {
        const DD c = (n & 1) ? kInverses.c[n] : neg(kInverses.c[n]);
        p = add(mul(p, u), c);
    }
    p = mul(p, u);
    const double e = double(s.e);
    DD sum = add(of(e * lnfn::kLn2Hi), twoProd(e, lnfn::kLn2Lo));
    sum = add(sum, of(e * kLn2Lo2));
    sum = add(sum, {t.hi, t.lo});
    sum = add(sum, p);
    // ln x = ln hi + ln(1 + lo/hi), lo/hi below 2^-53.
    return add(sum, of(lo / hi));
}

constexpr Qsp64s roundToInteger(DD v, bool& tooLarge)
{
    tooLarge = !(qspsFabsOne(v.hi) < 0x1p63);
    if (tooLarge) return 0;
    // n: an integer within one of v.hi; then v - n = f, whose floor and
    // fraction decide (|f| stays below 2^10).
    const double n = v.hi < 0 ? -double(Qsp64s(0.5 - v.hi)) : double(Qsp64s(v.hi + 0.5));
    // v - n = f.hi + f.lo exactly (v.hi - n is exact), |f| below 2^10.
    const DD f = twoSum(v.hi - n, v.lo);
    double floorF = qspsFloorOne(f.hi);
    if (floorF == f.hi && f.lo < 0) floorF -= 1.0;
    const double rest = f.hi - floorF;  // exact; the fraction is rest + f.lo
    const Qsp64s total = Qsp64s(n) + Qsp64s(floorF);
    if (rest > 0.5 || (rest == 0.5 && f.lo > 0)) return total + 1;
    if (rest == 0.5 && f.lo == 0) return total + (total & 1);
    return total;
}

}  // namespace extended
}  // namespace mathfn

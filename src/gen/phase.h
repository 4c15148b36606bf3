// SPDX-License-Identifier: BSD-3-Clause
// Phases of the periodic generators (Tone, Triangle).
//
// The argument of element n is phase + 2 pi rFreq n. Formed naively in
// double, its rounding error grows with n (about n rFreq 2^-52 radians).
// Here the whole turns are removed exactly instead: rFreq n is formed as
// an exact double-double product, its nearest integer dropped, and the
// remaining fraction of a turn (|f| <= 1/2) carried on; so the argument of
// any element is as accurate as that of the first.
//
// The continuing phases that the generators hand back are formed as the
// interface states them, from phase + len (2 pi rFreq) in double.
#pragma once
#include "mathfn/basic.h"
#include "mathfn/double_double.h"
#include "qspdefs.h"

namespace phase {

constexpr double kTwoPi = 6.283185307179586;
constexpr double kInvTwoPi = 0.15915494309189535;
constexpr double kPi = 3.141592653589793;
// 2 pi as the double above plus its remainder.
constexpr double kTwoPiLo = 2.4492935982947064e-16;

// rFreq m minus its nearest integer, as hi + lo (|hi| <= 1/2).
inline mathfn::Pair<double> turnsAt(double rFreq, Qsp64s m)
{
    const mathfn::Pair<double> p = mathfn::twoProd(rFreq, double(m));
    const double whole = mathfn::qspsFloorOne(p.hi + 0.5);
    return mathfn::fastTwoSum(p.hi - whole, p.lo);  // p.hi - whole is exact
}

// phase + 2 pi rFreq m in radians, the whole turns of rFreq m removed.
inline double angleAt(double phase, double rFreq, Qsp64s m)
{
    const mathfn::Pair<double> t = turnsAt(rFreq, m);
    return phase + (kTwoPi * t.hi + (kTwoPiLo * t.hi + kTwoPi * t.lo));
}

// The fraction of a turn of phase/(2 pi) + rFreq m, in [0, 1).
inline double turnFraction(double phaseTurns, double rFreq, Qsp64s m)
{
    const mathfn::Pair<double> t = turnsAt(rFreq, m);
    double u = phaseTurns + t.hi + t.lo;
    u -= mathfn::qspsFloorOne(u);
    return u < 1.0 ? u : 0.0;
}

// phase + len (2 pi rFreq): the phase after len elements, before
// reduction.
inline double advanced(double phase, double rFreq, int len)
{
    return phase + double(len) * (kTwoPi * rFreq);
}

}  // namespace phase

// SPDX-License-Identifier: BSD-3-Clause
// Two-argument arctangent in double precision, for the phase of complex
// values. No library calls: the argument is reduced to [0, 1] by symmetry,
// then to |u| <= 1/16 around the nearest k/8 by
//     atan(t) = atan(k/8) + atan((t - k/8) / (1 + t k/8)),
// and atan(u) is its Taylor series to u^17 (remainder below 2^-76 |u|).
// atan(k/8), pi/2 and pi are held as a double plus a correction, so the
// result is within 2.5 ULP of the exact angle (2.03 measured). Special
// values follow the usual atan2 conventions: atan2(+-0, +0) = +-0, atan2(+-0, -0) = +-pi,
// infinities give the multiples of pi/4, and a NaN argument gives NaN.
#pragma once

namespace mathfn {

double atan2(double y, double x);

// out[i] = atan2(y[i], x[i]) for n pairs, two at a time in vector lanes,
// each result bit-identical to the function above (a pair holding a NaN,
// an infinity or a zero angle's two zeros goes through it). out may be y or x.
void atan2(const double* y, const double* x, double* out, int n);

}  // namespace mathfn

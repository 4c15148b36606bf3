// SPDX-License-Identifier: BSD-3-Clause
// Long double references for the polyphase resamplers: the Kaiser-windowed
// sinc g(u) = 2 fc sinc(2 fc u) I0(beta sqrt(1 - (u/W)^2)) / I0(beta), the
// Bessel function by its power series, and quality measurements of a
// resampled sine (gain and residual by least squares at the output times).
#pragma once
#include <cmath>
#include <vector>

namespace resampleref {

using Ext = long double;
constexpr Ext kPi = 3.141592653589793238462643383279502884L;

// Relative accuracy of the library's Kaiser weights as its manual states
// it: the Bessel polynomials are within 5.6e-6 of I0 (1.6e-9 below 4), and
// a weight is a ratio of two of them.
constexpr double kWindowRel = 2 * 5.6e-6 + 1.6e-9;

inline Ext besselI0(Ext x)
{
    // sum over k of ((x/2)^k / k!)^2
    Ext term = 1, sum = 1;
    const Ext q = x * x / 4;
    for (int k = 1; k < 500; ++k) {
        term *= q / (Ext(k) * Ext(k));
        sum += term;
        if (term < sum * 1e-21L) break;
    }
    return sum;
}

inline Ext kernel(Ext u, Ext fc, Ext halfWidth, Ext beta)
{
    if (std::fabs(u) > halfWidth) return 0;
    const Ext r = u / halfWidth;
    const Ext w = besselI0(beta * std::sqrt(std::fmax(Ext(0), 1 - r * r))) / besselI0(beta);
    const Ext s = u == 0 ? 2 * fc : std::sin(2 * kPi * fc * u) / (kPi * u);
    return s * w;
}

// Gain and residual of y[j] against a sine of frequency f (cycles per
// input sample) sampled at times t[j]: y is fitted by a sin + b cos; the
// gain is sqrt(a^2 + b^2) over the input amplitude, the residual the RMS
// of what the fit leaves, relative to the fitted amplitude.
struct Fit {
    double gain, residual;
};

inline Fit fitSine(const std::vector<double>& y, const std::vector<double>& t, double f, double amplitude)
{
    Ext ss = 0, cc = 0, sc = 0, ys = 0, yc = 0;
    for (size_t j = 0; j < y.size(); ++j) {
        const Ext s = std::sin(2 * kPi * f * t[j]), c = std::cos(2 * kPi * f * t[j]);
        ss += s * s, cc += c * c, sc += s * c, ys += y[j] * s, yc += y[j] * c;
    }
    const Ext det = ss * cc - sc * sc;
    const Ext a = (ys * cc - yc * sc) / det, b = (yc * ss - ys * sc) / det;
    Ext e = 0;
    for (size_t j = 0; j < y.size(); ++j) {
        const Ext r = y[j] - a * std::sin(2 * kPi * f * t[j]) - b * std::cos(2 * kPi * f * t[j]);
        e += r * r;
    }
    const Ext amp = std::sqrt(a * a + b * b);
    return {double(amp / amplitude), double(std::sqrt(e / Ext(y.size())) / amp)};
}

inline double dB(double ratio) { return 20.0 * std::log10(ratio); }

}  // namespace resampleref

// SPDX-License-Identifier: BSD-3-Clause
// What the two polyphase resamplers share: the Kaiser-windowed sinc they
// tabulate, the inner products of a phase's taps with the input, and the
// conversions of 16-bit samples in and out.
//
// The kernel. For a cut-off fc (cycles per input sample) and a half-width
// W (input samples)
//     g(u) = 2 fc sinc(2 fc u) w(u),   sinc(v) = sin(pi v) / (pi v),
//     w(u) = I0(beta sqrt(1 - (u/W)^2)) / I0(beta)   for |u| <= W, else 0,
// sampled at D points per input sample, u = (i - K) / D for i = 0 .. 2K,
// K = W D. The window is the library's Kaiser window over those 2K + 1
// points (its alpha is beta / K, which gives it the shape beta). The values
// are formed in double precision and rounded once to single precision.
//
// Inner products: y = sum over i < n of t[i] x[i], taps t in single
// precision (16-byte aligned), samples in single precision or 16-bit
// integers (converted exactly to single precision a piece at a time). The
// sums are kept in registers of four lanes, combined at the end, so an
// output depends on its taps and samples only and not on where it lies in
// a block: a stream resampled in pieces gives the same bits as in one call.
#pragma once
#include "qsp_validators.h"
#include "simd.h"
#include "arith/rounding.h"
#include "mathfn/sincospi.h"

namespace resample {

constexpr double kPi = 3.141592653589793;

// Largest Kaiser shape accepted: the window's own limit on beta.
constexpr double kMaxBeta = 308.0;

constexpr Qsp64s align16(Qsp64s x) { return (x + 15) & ~Qsp64s(15); }
constexpr Qsp64s roundUp4(Qsp64s x) { return (x + 3) & ~Qsp64s(3); }

template <class T>
T* alignUp64(T* p)
{
    return reinterpret_cast<T*>((reinterpret_cast<Qsp64u>(p) + 63) & ~Qsp64u(63));
}

// The kernel's shape: a roll-off in (0, 1] and a Kaiser beta in [0, 308].
inline QspStatus shapeChecks(float rollf, float alpha)
{
    if (!(rollf > 0.0f && rollf <= 1.0f)) return qspStsBadRelFreq;
    if (!(alpha >= 0.0f && alpha <= kMaxBeta)) return qspStsBadWindowParam;
    return qspStsOk;
}

inline QspStatus hintCheck(QspHintAlgorithm hint)
{
    return hint < qspAlgHintNone || hint > qspAlgHintAccurate ? qspStsBadArgument : qspStsOk;
}

// g((i - K) / d) for i = 0 .. 2K into t (2K + 1 doubles).
inline void kernel(double* t, Qsp64s k, double d, double fc, double beta)
{
    for (Qsp64s i = 0; i <= k; ++i) {
        const double u = double(i - k) / d;
        const double v = i == k ? 2.0 * fc : mathfn::sinPi(2.0 * fc * u) / (kPi * u);
        t[i] = v;
        t[2 * k - i] = v;  // even function: the same value mirrored
    }
    if (k > 0) y8::qspsWinKaiser_64f_I(t, int(2 * k + 1), beta / double(k));
}

// ---------------------------------------------------------------- inner products

using V = simd::Vec<float>;

// Sum of t[i] x[i] over i < n: four four-lane running sums (so that four
// additions are in flight), then a scalar tail, combined as
// ((s0 + s1) + (s2 + s3)) lanes left to right, then the tail.
inline float dot(const float* t, const float* x, Qsp64s n)
{
    V::Reg s0 = V::zero(), s1 = V::zero(), s2 = V::zero(), s3 = V::zero();
    Qsp64s i = 0;
    for (; i + 16 <= n; i += 16) {
        s0 = V::add(s0, V::mul(V::load(t + i), V::loadu(x + i)));
        s1 = V::add(s1, V::mul(V::load(t + i + 4), V::loadu(x + i + 4)));
        s2 = V::add(s2, V::mul(V::load(t + i + 8), V::loadu(x + i + 8)));
        s3 = V::add(s3, V::mul(V::load(t + i + 12), V::loadu(x + i + 12)));
    }
    for (; i + 4 <= n; i += 4) s0 = V::add(s0, V::mul(V::load(t + i), V::loadu(x + i)));
    alignas(16) float l[4];
    V::store(l, V::add(V::add(s0, s1), V::add(s2, s3)));
    float s = (l[0] + l[1]) + (l[2] + l[3]);
    for (; i < n; ++i) s += t[i] * x[i];
    return s;
}

// Both sums of two tap rows a and b against the same samples at once, each
// in two running sums.
inline void dot2(const float* a, const float* b, const float* x, Qsp64s n, float& ya, float& yb)
{
    V::Reg sa0 = V::zero(), sb0 = V::zero(), sa1 = V::zero(), sb1 = V::zero();
    Qsp64s i = 0;
    for (; i + 8 <= n; i += 8) {
        const auto v0 = V::loadu(x + i), v1 = V::loadu(x + i + 4);
        sa0 = V::add(sa0, V::mul(V::load(a + i), v0));
        sb0 = V::add(sb0, V::mul(V::load(b + i), v0));
        sa1 = V::add(sa1, V::mul(V::load(a + i + 4), v1));
        sb1 = V::add(sb1, V::mul(V::load(b + i + 4), v1));
    }
    if (i + 4 <= n) {
        const auto v = V::loadu(x + i);
        sa0 = V::add(sa0, V::mul(V::load(a + i), v));
        sb0 = V::add(sb0, V::mul(V::load(b + i), v));
        i += 4;
    }
    alignas(16) float la[4], lb[4];
    V::store(la, V::add(sa0, sa1));
    V::store(lb, V::add(sb0, sb1));
    float ra = (la[0] + la[1]) + (la[2] + la[3]);
    float rb = (lb[0] + lb[1]) + (lb[2] + lb[3]);
    for (; i < n; ++i) ra += a[i] * x[i], rb += b[i] * x[i];
    ya = ra;
    yb = rb;
}

// 16-bit samples go through a stack piece of single-precision copies; the
// piece is a multiple of four, so the taps stay aligned piece by piece.
constexpr Qsp64s kPiece = 512;

inline float dot(const float* t, const Qsp16s* x, Qsp64s n)
{
    alignas(16) float buf[kPiece];
    float s = 0.0f;
    for (Qsp64s i = 0; i < n; i += kPiece) {
        const Qsp64s m = n - i < kPiece ? n - i : kPiece;
        y8::qspsConvert_16s32f(x + i, buf, int(m));
        s += dot(t + i, buf, m);
    }
    return s;
}

inline void dot2(const float* a, const float* b, const Qsp16s* x, Qsp64s n, float& ya, float& yb)
{
    alignas(16) float buf[kPiece];
    float sa = 0.0f, sb = 0.0f;
    for (Qsp64s i = 0; i < n; i += kPiece) {
        const Qsp64s m = n - i < kPiece ? n - i : kPiece;
        y8::qspsConvert_16s32f(x + i, buf, int(m));
        float pa, pb;
        dot2(a + i, b + i, buf, m, pa, pb);
        sa += pa, sb += pb;
    }
    ya = sa;
    yb = sb;
}

// ---------------------------------------------------------------- samples out

inline float sampleIn(float x) { return x; }
inline float sampleIn(Qsp16s x) { return float(x); }

// norm times the sum, in single precision, or rounded to nearest (ties to
// even) and saturated for 16-bit outputs.
inline void sampleOut(float y, float norm, float* d) { *d = norm * y; }
inline void sampleOut(float y, float norm, Qsp16s* d)
{
    *d = rounding::toInt<rounding::kNear, Qsp16s>(double(norm) * double(y));
}

}  // namespace resample

// Floating-to-integer results: scaling by 2^-scaleFactor, rounding by one
// of the three rounding modes and saturation to the destination type. The
// work is done in double precision, where every single-precision value
// and its product with another single-precision value are exact and where
// scaling by a power of two is exact over the range that matters, so the
// result is the rule applied to the exact value.
//
// The rounding does not depend on the caller's floating-point control
// modes: each mode uses an explicit rounding instruction.
#pragma once
#include <limits>

#include "qspdefs.h"
#include "simd.h"

namespace rounding {

// Rounding modes, the values of QspRoundMode.
constexpr int kZero = 0;  // toward zero
constexpr int kNear = 1;  // to nearest, ties to even
constexpr int kAway = 2;  // to nearest, ties away from zero

// 2^e as a double for -1022 <= e <= 1023, built from its bits.
constexpr double pow2(int e)
{
    return __builtin_bit_cast(double, Qsp64u(e + 1023) << 52);
}

// The factor 2^-scaleFactor. Beyond +-400 every product of finite
// single-precision values rounds to 0 or saturates, and a double value
// beyond that range does as well, so the factor is clamped there.
constexpr double scaleOf(int scaleFactor)
{
    const int s = scaleFactor > 400 ? 400 : scaleFactor < -400 ? -400 : scaleFactor;
    return pow2(-s);
}

using V = simd::Vec<double>;

// Rounding of x to an integral value in the mode M.
template <int M>
V::Reg round(V::Reg x)
{
    if constexpr (M == kZero) {
        return _mm_round_pd(x, _MM_FROUND_TO_ZERO | _MM_FROUND_NO_EXC);
    } else if constexpr (M == kNear) {
        return _mm_round_pd(x, _MM_FROUND_TO_NEAREST_INT | _MM_FROUND_NO_EXC);
    } else {
        // The truncated value, moved one away from zero when the dropped
        // fraction (exact) is at least one half.
        const V::Reg t = _mm_round_pd(x, _MM_FROUND_TO_ZERO | _MM_FROUND_NO_EXC);
        const V::Reg sign = V::bitAnd(x, V::signBit());
        const V::Reg frac = V::andNot(V::signBit(), V::sub(x, t));
        const V::Reg step = V::bitAnd(_mm_cmpge_pd(frac, V::splat(0.5)), V::bitOr(V::splat(1.0), sign));
        return V::add(t, step);
    }
}

template <int M>
double round(double x)
{
    return _mm_cvtsd_f64(round<M>(_mm_set_sd(x)));
}

// x clamped to [lo, hi]; NaN gives 0.
inline V::Reg clamp(V::Reg x, V::Reg lo, V::Reg hi)
{
    const V::Reg ordered = _mm_cmpord_pd(x, x);
    return V::bitAnd(V::max(V::min(x, hi), lo), ordered);
}

// Two doubles, rounded and clamped to a range within 32 bits, as the two
// low 32-bit lanes.
template <int M>
__m128i toInt32(V::Reg x, V::Reg lo, V::Reg hi)
{
    return _mm_cvttpd_epi32(clamp(round<M>(x), lo, hi));
}

// One double rounded and saturated to the integer type D (up to 64 bits);
// NaN gives 0.
template <int M, class D>
D toInt(double x)
{
    constexpr int n = 8 * int(sizeof(D));
    using L = std::numeric_limits<D>;
    const double r = round<M>(x);
    if (r != r) return D(0);
    if constexpr (L::is_signed) {
        if (r >= pow2(n - 1)) return L::max();
        if (r < -pow2(n - 1)) return L::min();
    } else {
        if (r >= pow2(n)) return L::max();
        if (r <= 0) return D(0);
    }
    return D(r);
}

}  // namespace rounding

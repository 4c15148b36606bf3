// SPDX-License-Identifier: BSD-3-Clause
// The integer scale-factor rule, implemented once for every Sfs function.
//
// An Sfs function forms the exact result v of its operation in a wider
// integer (32-bit for 8- and 16-bit operands, 64-bit for 32-bit operands),
// multiplies it by 2^-scaleFactor, rounds to nearest with ties to even and
// saturates to the destination type:
//
//   s = 0        v saturated
//   s > 0        (v + 2^(s-1) - 1 + bit s of v) >> s, saturated (arithmetic
//                shift; bit s of v is the lowest bit that survives it)
//   s < 0        v * 2^-s, saturated
//
// The validating function chooses one of five kernels by the scale factor,
// once per call, so that no inner loop tests it:
//
//   s = 0             Plain    saturate only
//   s = 1             Half     (v + bit 1 of v) >> 1, formed as
//                              (v >> 1) + (bit 0 & bit 1)
//   2 <= s < Z        Pos      rounding constant and shift prepared once
//   s >= Z            (none)   every result rounds to 0: the zero fill of
//                              the destination's element width is called
//   -B < s < 0        Neg      v clamped to [min >> k, max >> k] and shifted
//                              left by k = -s (exact, no overflow)
//   s <= -B           Bound    max for v > 0, min for v < 0, 0 for v = 0
//
// Z is one more than the number of bits of the largest magnitude M of the
// exact result (the least Z with M <= 2^(Z-1): M / 2^Z is at most a half
// and a tie goes to the even 0). B is the shift from which every non-zero
// value saturates. Both come from the exact result's range: `limitsFor`.
//
// How a family uses it:
//
//   return scaling::select(scaleFactor, limits,
//       [&](auto mode) { ownsAdd(pSrc1, pSrc2, pDst, len, mode); return qspStsOk; },
//       [&] { return qspsZero_16s(pDst, len); });
//
// A kernel is a template over the mode; per element it calls
// `mode.template apply<D>(v)` (scalar) or, for 32-bit lanes bound for an 8-
// or 16-bit destination, prepares `auto m = mode.template lanes32<D>()`
// before its loop and calls `m(v)` per register; m(v) leaves 32-bit lanes
// that a saturating pack to D narrows to the rule's result. lanes32 needs
// v + 2^(Z-2) to stay inside 32 bits (true of sums and of 16-bit products);
// lanes32Full takes any 32-bit v at a few more instructions per register.
#pragma once
#include <limits>
#include <type_traits>

#include "qspdefs.h"
#include "simd.h"

namespace scaling {

// Kernel-selection thresholds of one Sfs function.
struct Limits {
    int zerosFrom;  // Z: scale factors from Z up give all zeros
    int boundFrom;  // B: scale factors from -B down give the bound kernel
};

// Z for an exact result whose magnitude is at most maxMagnitude.
constexpr int zerosFrom(Qsp64u maxMagnitude)
{
    int z = 1;
    while (z < 64 && (Qsp64u(1) << (z - 1)) < maxMagnitude) ++z;
    return z;
}

// B for a destination type D: the number of bits of its largest value, so
// that 1 << B lies above it and -1 << B below its minimum (16 for 16s, 16
// for 16u, 8 for 8u). A 32-bit destination keeps 31 so that the 64-bit
// shift of a 32-bit-range value stays inside its wide type.
template <class D>
constexpr int boundFrom()
{
    static_assert(std::is_integral_v<D>, "thresholds are per part: pass the part type of a complex type");
    constexpr int bits = int(8 * sizeof(D));
    return bits >= 32 ? bits - 1 : bits;
}

// The thresholds of a function with destination D whose exact result lies
// in [lo, hi].
template <class D>
constexpr Limits limitsFor(Qsp64s lo, Qsp64s hi)
{
    const Qsp64u mlo = lo < 0 ? Qsp64u(0) - Qsp64u(lo) : Qsp64u(lo);
    const Qsp64u mhi = hi < 0 ? Qsp64u(0) - Qsp64u(hi) : Qsp64u(hi);
    return {zerosFrom(mlo > mhi ? mlo : mhi), boundFrom<D>()};
}

// v saturated to the range of D.
template <class D, class W>
constexpr D saturate(W v)
{
    using Lim = std::numeric_limits<D>;
    if (v > W(Lim::max())) return Lim::max();
    if (v < W(Lim::min())) return Lim::min();
    return D(v);
}

namespace detail {
using V32 = simd::Vec<Qsp32s>;
using R = V32::Reg;

// The extreme values of D in 32-bit lanes (8- and 16-bit destinations).
template <class D>
constexpr Qsp32s dmax = Qsp32s(std::numeric_limits<D>::max());
template <class D>
constexpr Qsp32s dmin = Qsp32s(std::numeric_limits<D>::min());
}  // namespace detail

// Every mode has lanes32<D>(), valid while v + 2^(Z-2) stays inside 32
// bits, and lanes32Full<D>(), valid for any 32-bit v; they differ only for
// Pos.

// s = 0: saturation only.
struct Plain {
    template <class D, class W>
    D apply(W v) const { return saturate<D>(v); }

    struct Lanes {
        detail::R operator()(detail::R v) const { return v; }
    };
    template <class D>
    Lanes lanes32() const { return {}; }
    template <class D>
    Lanes lanes32Full() const { return {}; }
};

// s = 1: halve, ties to even: floor(v / 2), plus one when the halved-off
// bit is set and the quotient is odd (no intermediate leaves 32 bits).
struct Half {
    template <class D, class W>
    D apply(W v) const
    {
        const W q = v >> 1;
        return saturate<D>(q + (v & q & 1));
    }

    struct Lanes {
        detail::R one;
        detail::R operator()(detail::R v) const
        {
            using V = detail::V32;
            const detail::R q = V::srai1(v);
            return V::add(q, V::bitAnd(V::bitAnd(v, q), one));
        }
    };
    template <class D>
    Lanes lanes32() const { return {detail::V32::splat(1)}; }
    template <class D>
    Lanes lanes32Full() const { return {detail::V32::splat(1)}; }
};

// 2 <= s < Z: the rounding constant 2^(s-1) - 1 prepared once.
struct Pos {
    int s;
    Qsp64s bias;
    explicit Pos(int shift) : s(shift), bias((Qsp64s(1) << (shift - 1)) - 1) {}

    template <class D, class W>
    D apply(W v) const { return saturate<D>((v + W(bias) + ((v >> s) & 1)) >> s); }

    // Valid while v + 2^(s-1) stays inside 32 bits, which holds for every
    // exact result whose Z is at most 31 with magnitude below 2^30 + 2^29.
    struct Lanes {
        detail::R count, bias, one;
        detail::R operator()(detail::R v) const
        {
            using V = detail::V32;
            const detail::R bit = V::bitAnd(V::sra(v, count), one);
            return V::sra(V::add(V::add(v, bias), bit), count);
        }
    };
    template <class D>
    Lanes lanes32() const
    {
        using V = detail::V32;
        return {V::count(s), V::splat(Qsp32s(bias)), V::splat(1)};
    }

    // For any 32-bit v: the quotient floor(v / 2^s) plus the carry of the
    // remainder, rounding constant and bit s, which is formed without sign
    // in 32 bits (remainder + 2^(s-1) < 2^32 for every s up to 31).
    struct FullLanes {
        detail::R count, bias, one, mask;
        detail::R operator()(detail::R v) const
        {
            using V = detail::V32;
            const detail::R q = V::sra(v, count);
            const detail::R carry = V::add(V::add(V::bitAnd(v, mask), bias), V::bitAnd(q, one));
            return V::add(q, V::srl(carry, count));
        }
    };
    template <class D>
    FullLanes lanes32Full() const
    {
        using V = detail::V32;
        return {V::count(s), V::splat(Qsp32s(bias)), V::splat(1), V::splat(Qsp32s((Qsp64s(1) << s) - 1))};
    }
};

// -B < s < 0, k = -s: v clamped so that v << k stays inside D, then shifted.
struct Neg {
    int k;
    explicit Neg(int shift) : k(shift) {}

    template <class D, class W>
    D apply(W v) const
    {
        const W hi = W(std::numeric_limits<D>::max()) >> k;
        const W lo = W(std::numeric_limits<D>::min()) >> k;
        if (v > hi) return std::numeric_limits<D>::max();
        if (v < lo) return std::numeric_limits<D>::min();
        return D(v * (W(1) << k));
    }

    struct Lanes {
        detail::R count, lo, hi;
        detail::R operator()(detail::R v) const
        {
            using V = detail::V32;
            return V::sll(V::max(V::min(v, hi), lo), count);
        }
    };
    // The clamped and shifted value may fall below max (max >> k << k), so
    // the clamp bounds are chosen to saturate after the shift instead: the
    // upper one is max >> k plus one, which shifts above max and is then
    // narrowed to max by the saturating pack.
    template <class D>
    Lanes lanes32() const
    {
        using V = detail::V32;
        const Qsp32s hi = (detail::dmax<D> >> k) + 1;
        const Qsp32s lo = detail::dmin<D> < 0 ? (detail::dmin<D> >> k) - 1 : 0;
        return {V::count(k), V::splat(lo), V::splat(hi)};
    }
    template <class D>
    Lanes lanes32Full() const { return lanes32<D>(); }
};

// s <= -B: the sign of v decides.
struct Bound {
    template <class D, class W>
    D apply(W v) const
    {
        return v > 0 ? std::numeric_limits<D>::max() : v < 0 ? std::numeric_limits<D>::min() : D(0);
    }

    struct Lanes {
        detail::R big;
        detail::R operator()(detail::R v) const { return detail::V32::sign(big, v); }
    };
    // 2^16 lies outside every 8- and 16-bit range in both signs, so the
    // saturating pack turns +-2^16 into max and min.
    template <class D>
    Lanes lanes32() const { return {detail::V32::splat(1 << 16)}; }
    template <class D>
    Lanes lanes32Full() const { return lanes32<D>(); }
};

// The choice of kernel by the scale factor. `kernel` is called with one of
// Plain, Half, Pos, Neg, Bound and returns the status; `zeroFill` is called
// for scale factors of Z and above and returns the zero fill's status.
template <class Kernel, class ZeroFill>
QspStatus select(int scaleFactor, Limits limits, Kernel&& kernel, ZeroFill&& zeroFill)
{
    if (scaleFactor == 0) return kernel(Plain{});
    if (scaleFactor > 0) {
        if (scaleFactor == 1) return kernel(Half{});
        if (scaleFactor >= limits.zerosFrom) return zeroFill();
        return kernel(Pos(scaleFactor));
    }
    if (scaleFactor > -limits.boundFrom) return kernel(Neg(-scaleFactor));
    return kernel(Bound{});
}

}  // namespace scaling

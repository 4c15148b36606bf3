// SPDX-License-Identifier: BSD-3-Clause
// Integer quotients under the scale-factor rule: num / den * 2^-scaleFactor
// rounded in one of the three rounding modes (toward zero, to nearest even,
// to nearest with ties away from zero) and saturated. A zero divisor gives
// the destination's maximum for a positive dividend, its minimum for a
// negative one and 0 for 0.
//
// Two implementations: exact 128-bit integer arithmetic for any operand
// width, and a vector kernel in double precision for 8- and 16-bit
// operands, where the double quotient is close enough to the exact one
// that rounding it gives the same integer (a non-tie quotient whose result
// does not saturate lies at least 2^-32 of its value away from every
// integer and half-integer; the double quotient errs by at most 2^-53).
#pragma once
#include <limits>

#include "elementwise.h"
#include "rounding.h"

namespace quotient {

using i128 = __int128;

// Scale factors beyond +-80 give the same results as +-80 for operands of
// up to 32 bits: every quotient then rounds to 0 or saturates.
constexpr int clampScale(int s) { return s > 80 ? 80 : s < -80 ? -80 : s; }

template <class D>
D boundOf(i128 num)
{
    using L = std::numeric_limits<D>;
    return num > 0 ? L::max() : num < 0 ? L::min() : D(0);
}

// The rule for num / den exactly (rounding mode M).
template <int M, class D>
D exact(i128 num, i128 den, int scaleFactor)
{
    if (den == 0) return boundOf<D>(num);
    const int s = clampScale(scaleFactor);
    if (s >= 0) den <<= s;
    else num <<= -s;
    if (den < 0) num = -num, den = -den;
    i128 q = num / den, r = num % den;  // truncated toward zero
    if (r < 0) r = -r;
    if (M != rounding::kZero) {
        const i128 twice = 2 * r;
        const bool up = twice > den || (twice == den && (M == rounding::kAway || (q & 1) != 0));
        if (up) q += num < 0 ? -1 : 1;
    }
    using L = std::numeric_limits<D>;
    if (q > i128(L::max())) return L::max();
    if (q < i128(L::min())) return L::min();
    return D(q);
}

// The quotients of 8- and 16-bit operands in 32-bit lanes, two per double
// register: rounded in mode M and clamped to D's range (zero divisors give
// infinities or NaN, which clamp to the bounds or 0), with the lanes of
// zero divisors or'ed into *zeros.
template <int M, class D>
struct Lanes {
    using VD = simd::Vec<double>;
    using V32 = simd::Vec<Qsp32s>;
    VD::Reg k, lo, hi;
    V32::Reg* zeros;

    Lanes(int scaleFactor, V32::Reg* z)
        : k(VD::splat(rounding::scaleOf(scaleFactor))),
          lo(VD::splat(double(std::numeric_limits<D>::min()))),
          hi(VD::splat(double(std::numeric_limits<D>::max()))),
          zeros(z)
    {
    }
    V32::Reg quot(V32::Reg den, V32::Reg num) const
    {
        *zeros = V32::bitOr(*zeros, V32::cmpeq(den, V32::zero()));
        const auto half = [&](V32::Reg d, V32::Reg n) {
            const VD::Reg q = VD::div(VD::mul(_mm_cvtepi32_pd(n), k), _mm_cvtepi32_pd(d));
            return rounding::toInt32<M>(q, lo, hi);
        };
        return _mm_unpacklo_epi64(half(den, num), half(_mm_srli_si128(den, 8), _mm_srli_si128(num, 8)));
    }
};

// The three operand shapes: two vectors, a constant divisor, a constant
// dividend.
template <int M, class D>
struct VecByVec : Lanes<M, D> {
    using R = typename Lanes<M, D>::V32::Reg;
    R reg(R den, R num) const { return this->quot(den, num); }
};
template <int M, class D>
struct VecByConst : Lanes<M, D> {
    using R = typename Lanes<M, D>::V32::Reg;
    R den;
    R reg(R num) const { return this->quot(den, num); }
};
template <int M, class D>
struct ConstByVec : Lanes<M, D> {
    using R = typename Lanes<M, D>::V32::Reg;
    R num;
    R reg(R den) const { return this->quot(den, num); }
};

// pDst[i] = rule(pNum[i] / pDen[i]) for 8- and 16-bit operands and
// destinations. Returns whether any divisor was zero.
template <int M, class S, class D>
bool ownsDiv_16(const S* pDen, const S* pNum, D* pDst, Qsp64s len, int scaleFactor)
{
    simd::Vec<Qsp32s>::Reg zeros = simd::Vec<Qsp32s>::zero();
    // The quotients are already rounded and inside D: the lanes only narrow.
    elementwise::lanes<false>(pDst, len, VecByVec<M, D>{{scaleFactor, &zeros}}, scaling::Plain{}, pDen, pNum);
    return _mm_movemask_epi8(zeros) != 0;
}

// pDst[i] = rule(pNum[i] / den) for a non-zero constant divisor.
template <int M, class S, class D>
void ownsDivC_16(const S* pNum, S den, D* pDst, Qsp64s len, int scaleFactor)
{
    simd::Vec<Qsp32s>::Reg zeros;
    elementwise::lanes<false>(pDst, len, VecByConst<M, D>{{scaleFactor, &zeros}, _mm_set1_epi32(den)},
                              scaling::Plain{}, pNum);
}

// pDst[i] = rule(num / pDen[i]). Returns whether any divisor was zero.
template <int M, class S, class D>
bool ownsDivCRev_16(const S* pDen, S num, D* pDst, Qsp64s len, int scaleFactor)
{
    simd::Vec<Qsp32s>::Reg zeros = simd::Vec<Qsp32s>::zero();
    elementwise::lanes<false>(pDst, len, ConstByVec<M, D>{{scaleFactor, &zeros}, _mm_set1_epi32(num)},
                              scaling::Plain{}, pDen);
    return _mm_movemask_epi8(zeros) != 0;
}

}  // namespace quotient

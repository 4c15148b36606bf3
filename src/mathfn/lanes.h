// SPDX-License-Identifier: BSD-3-Clause
// A register of two doubles as a value type with the operators of double.
//
// The elementary functions write their arithmetic once, as templates over
// the value type; instantiated with double they are the one-element
// kernels, with Lanes2 the vector kernels. Both run the same operations in
// the same order, so every lane of a vector result is bit-identical to the
// one-element result for the same input, whatever its position. A double
// converts implicitly, as a constant in every lane.
#pragma once
#include "simd.h"

namespace mathfn {

struct Lanes2 {
    using V = simd::Vec<double>;
    V::Reg v;
    Lanes2() = default;
    Lanes2(V::Reg r) : v(r) {}
    Lanes2(double x) : v(V::splat(x)) {}
};

inline Lanes2 operator+(Lanes2 a, Lanes2 b) { return Lanes2::V::add(a.v, b.v); }
inline Lanes2 operator-(Lanes2 a, Lanes2 b) { return Lanes2::V::sub(a.v, b.v); }
inline Lanes2 operator*(Lanes2 a, Lanes2 b) { return Lanes2::V::mul(a.v, b.v); }
inline Lanes2 operator/(Lanes2 a, Lanes2 b) { return Lanes2::V::div(a.v, b.v); }
inline Lanes2 operator-(Lanes2 a) { return Lanes2::V::bitXor(a.v, Lanes2::V::signBit()); }

}  // namespace mathfn

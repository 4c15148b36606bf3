// SPDX-License-Identifier: BSD-3-Clause
// Complex elements of the generator and window tests seen as their parts:
// the part type, the number of parts, the parts of a vector and the real
// and imaginary part of one element (a real element is its own real part).
#pragma once
#include <type_traits>

#include "qsps.h"

namespace genparts {

template <class T> struct PartOf { using type = T; };
template <> struct PartOf<Qsp16sc> { using type = Qsp16s; };
template <> struct PartOf<Qsp32fc> { using type = Qsp32f; };
template <> struct PartOf<Qsp64fc> { using type = Qsp64f; };
template <class T>
using Part = typename PartOf<T>::type;
template <class T>
constexpr int partsOf = int(sizeof(T) / sizeof(Part<T>));
template <class T>
constexpr bool isComplex = partsOf<T> == 2;

template <class T>
Part<T>* parts(T* p)
{
    return reinterpret_cast<Part<T>*>(p);
}
template <class T>
const Part<T>* parts(const T* p)
{
    return reinterpret_cast<const Part<T>*>(p);
}

template <class T>
Part<T> re(const T& x)
{
    if constexpr (isComplex<T>) return x.re;
    else return x;
}
template <class T>
Part<T> im(const T& x)
{
    if constexpr (isComplex<T>) return x.im;
    else return Part<T>(0);
}

}  // namespace genparts

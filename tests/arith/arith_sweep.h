// SPDX-License-Identifier: BSD-3-Clause
// Sweeps of the element-wise functions over every length from 1 to 70
// plus a few large ones, at every alignment the element type can have
// (sources and destination at different offsets), with each element
// checked against a reference; the in-place forms are compared with the
// out-of-place results.
#pragma once
#include <string>

#include "arith_ref.h"

namespace arithsweep {

using arithref::At;

// Random operands of any element type.
template <class T>
std::vector<T> gen(size_t n)
{
    if constexpr (std::is_integral_v<T>) return arithref::operands<T>(n);
    else if constexpr (std::is_floating_point_v<T>) return arithref::floats<T>(n);
    else {
        using P = decltype(T{}.re);
        const std::vector<P> p = gen<P>(2 * n);
        std::vector<T> v(n);
        for (size_t i = 0; i < n; ++i) v[i] = T{p[2 * i], p[2 * i + 1]};
        return v;
    }
}

template <class T>
bool same(const T& a, const T& b)
{
    if constexpr (std::is_arithmetic_v<T>) return arithref::sameValue(a, b);
    else return arithref::sameValue(a.re, b.re) && arithref::sameValue(a.im, b.im);
}

template <class T>
std::string show(const T& x)
{
    if constexpr (std::is_arithmetic_v<T>) return std::to_string(sizeof(T) == 1 ? int(x) : x);
    else return "(" + show(x.re) + ", " + show(x.im) + ")";
}

// The offsets used for a length: all of them for the short lengths.
template <class T>
std::vector<int> offsetsFor(int len)
{
    std::vector<int> o;
    const int n = arithref::alignments<T>;
    for (int k = 0; k < (len <= 70 ? n : (n < 2 ? n : 2)); ++k) o.push_back(k);
    return o;
}

// fn(pSrc1, pSrc2, pDst, len) against check(a, b, got), and the in-place
// form fnI(pSrc, pSrcDst, len) (when given) against the out-of-place one.
template <class S1, class S2, class D, class Fn, class Check, class FnI = std::nullptr_t>
void binary(Fn fn, Check check, FnI fnI = nullptr, QspStatus expected = qspStsOk,
            std::vector<int> lengths = arithref::sweepLengths(), std::vector<S1> (*gen1)(size_t) = gen<S1>,
            std::vector<S2> (*gen2)(size_t) = gen<S2>)
{
    for (int len : lengths) {
        for (int off : offsetsFor<D>(len)) {
            const std::vector<S1> a = gen1(len);
            const std::vector<S2> b = gen2(len);
            At<S1> pa(len, (off * 3 + 1) % arithref::alignments<S1>);
            At<S2> pb(len, (off * 5 + 2) % arithref::alignments<S2>);
            At<D> pd(len + 1, off);
            for (int i = 0; i < len; ++i) pa.p[i] = a[i], pb.p[i] = b[i];
            std::memset(static_cast<void*>(pd.p), 0x5A, sizeof(D) * (len + 1));
            const D guard = pd.p[len];
            ASSERT_EQ(fn(pa.p, pb.p, pd.p, len), expected) << "len " << len;
            ASSERT_TRUE(same(pd.p[len], guard)) << "wrote past the end, len " << len;
            for (int i = 0; i < len; ++i) {
                const testing::AssertionResult r = check(a[i], b[i], pd.p[i]);
                ASSERT_TRUE(r) << "len " << len << " off " << off << " i " << i << " a " << show(a[i]) << " b "
                               << show(b[i]) << " got " << show(pd.p[i]);
            }
            if constexpr (!std::is_same_v<FnI, std::nullptr_t>) {
                static_assert(std::is_same_v<S2, D>);
                for (int i = 0; i < len; ++i) pb.p[i] = b[i];
                ASSERT_EQ(fnI(pa.p, pb.p, len), expected) << "in place, len " << len;
                for (int i = 0; i < len; ++i)
                    ASSERT_TRUE(same(pb.p[i], pd.p[i])) << "in place differs, len " << len << " i " << i;
            }
        }
    }
}

// fn(pSrc, pDst, len) against check(a, got); fnI(pSrcDst, len) against it.
template <class S, class D, class Fn, class Check, class FnI = std::nullptr_t>
void unary(Fn fn, Check check, FnI fnI = nullptr, QspStatus expected = qspStsOk,
           std::vector<int> lengths = arithref::sweepLengths(), std::vector<S> (*gen1)(size_t) = gen<S>)
{
    for (int len : lengths) {
        for (int off : offsetsFor<D>(len)) {
            const std::vector<S> a = gen1(len);
            At<S> pa(len, (off * 3 + 1) % arithref::alignments<S>);
            At<D> pd(len + 1, off);
            for (int i = 0; i < len; ++i) pa.p[i] = a[i];
            std::memset(static_cast<void*>(pd.p), 0x5A, sizeof(D) * (len + 1));
            const D guard = pd.p[len];
            ASSERT_EQ(fn(pa.p, pd.p, len), expected) << "len " << len;
            ASSERT_TRUE(same(pd.p[len], guard)) << "wrote past the end, len " << len;
            for (int i = 0; i < len; ++i) {
                const testing::AssertionResult r = check(a[i], pd.p[i]);
                ASSERT_TRUE(r) << "len " << len << " off " << off << " i " << i << " a " << show(a[i]) << " got "
                               << show(pd.p[i]);
            }
            if constexpr (!std::is_same_v<FnI, std::nullptr_t>) {
                static_assert(std::is_same_v<S, D>);
                ASSERT_EQ(fnI(pa.p, len), expected) << "in place, len " << len;
                for (int i = 0; i < len; ++i)
                    ASSERT_TRUE(same(pa.p[i], pd.p[i])) << "in place differs, len " << len << " i " << i;
            }
        }
    }
}

// An in-place function fnI(pSrc, pSrcDst, len) called as fn(a, b, d, len):
// b is copied into d first.
template <class FnI>
auto asOutOfPlace(FnI fnI)
{
    return [=](auto* a, auto* b, auto* d, int len) {
        for (int i = 0; i < len; ++i) d[i] = b[i];
        return fnI(a, d, len);
    };
}

// Checks of one element.
template <class D>
testing::AssertionResult equals(const D& got, const D& expected)
{
    if (same(got, expected)) return testing::AssertionSuccess();
    return testing::AssertionFailure() << "expected " << show(expected);
}

template <class F>
testing::AssertionResult withinUlps(F got, long double exact, double ulps)
{
    if (exact != exact) {
        if (got != got) return testing::AssertionSuccess();
        return testing::AssertionFailure() << "expected NaN";
    }
    // An exact value beyond the largest finite one rounds to infinity.
    const long double big = std::numeric_limits<F>::max();
    if (exact > big || exact < -big) {
        const long double ulpMax = arithref::ulpAt<F>(big);
        if ((exact > 0 && got == std::numeric_limits<F>::infinity() && exact >= big + ulpMax / 2) ||
            (exact < 0 && got == -std::numeric_limits<F>::infinity() && exact <= -big - ulpMax / 2))
            return testing::AssertionSuccess();
    }
    const double e = arithref::ulpError(got, exact);
    if (e <= ulps) return testing::AssertionSuccess();
    return testing::AssertionFailure() << "error " << e << " ulp (bound " << ulps << "), exact "
                                       << double(exact);
}

// The sweep lengths with only a few large ones, for functions checked at
// every scale factor.
inline std::vector<int> shortLengths() { return {1, 2, 3, 5, 7, 8, 9, 15, 16, 17, 31, 33, 64, 70}; }

}  // namespace arithsweep

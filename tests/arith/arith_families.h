// SPDX-License-Identifier: BSD-3-Clause
// Shared test bodies of the two-operand families (Add, Sub, Mul and the
// constant forms): one call checks a function at every scale factor from
// -40 to 40 against the exact rule, or a floating function against the
// long double reference.
#pragma once
#include "arith_checks.h"
#include "arith_sweep.h"

namespace arithfam {

using arithref::i128;
using arithsweep::equals;

// An integer Sfs function of two vectors: every scale factor from -40 to
// 40 on the short lengths, every length at a few scale factors; exact(a, b)
// gives the exact result. fnI is the in-place form (or nullptr).
template <class S1, class S2, class D, class Exact, class FnI = std::nullptr_t>
void sfs2(QspStatus (*fn)(const S1*, const S2*, D*, int, int), Exact exact, FnI fnI = nullptr)
{
    auto run = [&](int sf, std::vector<int> lengths) {
        auto call = [&](const S1* a, const S2* b, D* d, int len) { return fn(a, b, d, len, sf); };
        auto check = [&](S1 a, S2 b, D got) { return equals(got, arithref::scaled<D>(exact(a, b), sf)); };
        if constexpr (std::is_same_v<FnI, std::nullptr_t>) {
            arithsweep::binary<S1, S2, D>(call, check, nullptr, qspStsOk, lengths);
        } else {
            auto callI = [&](const S1* a, D* sd, int len) { return fnI(a, sd, len, sf); };
            arithsweep::binary<S1, S2, D>(call, check, callI, qspStsOk, lengths);
        }
    };
    for (int sf = -40; sf <= 40; ++sf) {
        run(sf, arithsweep::shortLengths());
        if (testing::Test::HasFatalFailure()) {
            ADD_FAILURE() << "scale factor " << sf;
            return;
        }
    }
    for (int sf : {0, 1, 3, -2}) {
        run(sf, arithref::sweepLengths());
        if (testing::Test::HasFatalFailure()) {
            ADD_FAILURE() << "scale factor " << sf;
            return;
        }
    }
}

// The same for a vector and a constant: fn(pSrc, val, pDst, len, sf) and
// fnI(val, pSrcDst, len, sf); exact(a, val).
template <class S, class D, class C, class Fn, class Exact, class FnI = std::nullptr_t>
void sfsCT(Fn fn, Exact exact, FnI fnI = nullptr);
template <class S, class D, class C, class Exact, class FnI = std::nullptr_t>
void sfsC(QspStatus (*fn)(const S*, C, D*, int, int), Exact exact, FnI fnI = nullptr)
{
    sfsCT<S, D, C>(fn, exact, fnI);
}
template <class S, class D, class C, class Fn, class Exact, class FnI>
void sfsCT(Fn fn, Exact exact, FnI fnI)
{
    const std::vector<C> consts = arithsweep::gen<C>(3);
    for (int sf = -40; sf <= 40; ++sf) {
        for (size_t k = 0; k < consts.size(); ++k) {
            const C val = consts[k];
            const std::vector<int> lengths =
                (sf == 0 || sf == 3) && k == 0 ? arithref::sweepLengths() : arithsweep::shortLengths();
            auto call = [&](const S* a, D* d, int len) { return fn(a, val, d, len, sf); };
            auto check = [&](S a, D got) { return equals(got, exact(a, val, sf)); };
            if constexpr (std::is_same_v<FnI, std::nullptr_t>) {
                arithsweep::unary<S, D>(call, check, nullptr, qspStsOk, lengths);
            } else {
                auto callI = [&](D* sd, int len) { return fnI(val, sd, len, sf); };
                arithsweep::unary<S, D>(call, check, callI, qspStsOk, lengths);
            }
            if (testing::Test::HasFatalFailure()) {
                ADD_FAILURE() << "scale factor " << sf << " val " << arithsweep::show(val);
                return;
            }
        }
    }
}

// A floating function of two vectors within `ulps` of exact(a, b) (long
// double, complex values checked part by part).
template <class T, class Fn, class Exact, class FnI = std::nullptr_t>
void float2(Fn fn, Exact exact, double ulps, FnI fnI = nullptr)
{
    auto check = [&](T a, T b, T got) {
        if constexpr (std::is_floating_point_v<T>) {
            return arithsweep::withinUlps(got, exact(a, b), ulps);
        } else {
            using P = decltype(T{}.re);
            const auto e = exact(a, b);  // pair of long double
            const testing::AssertionResult re = arithsweep::withinUlps<P>(got.re, e.first, ulps);
            if (!re) return re;
            return arithsweep::withinUlps<P>(got.im, e.second, ulps);
        }
    };
    arithsweep::binary<T, T, T>(fn, check, fnI);
}

// A floating function of a vector and a constant: fn(pSrc, val, pDst, len),
// fnI(val, pSrcDst, len).
template <class T, class Fn, class Exact, class FnI = std::nullptr_t>
void floatC(Fn fn, Exact exact, double ulps, FnI fnI = nullptr)
{
    for (T val : arithsweep::gen<T>(3)) {
        auto call = [&](const T* a, T* d, int len) { return fn(a, val, d, len); };
        auto check = [&](T a, T got) {
            if constexpr (std::is_floating_point_v<T>) {
                return arithsweep::withinUlps(got, exact(a, val), ulps);
            } else {
                using P = decltype(T{}.re);
                const auto e = exact(a, val);
                const testing::AssertionResult re = arithsweep::withinUlps<P>(got.re, e.first, ulps);
                if (!re) return re;
                return arithsweep::withinUlps<P>(got.im, e.second, ulps);
            }
        };
        if constexpr (std::is_same_v<FnI, std::nullptr_t>) {
            arithsweep::unary<T, T>(call, check);
        } else {
            auto callI = [&](T* sd, int len) { return fnI(val, sd, len); };
            arithsweep::unary<T, T>(call, check, callI);
        }
        if (testing::Test::HasFatalFailure()) return;
    }
}

// A 64-bit length function called with an int length, as the sweeps do.
inline auto viaL = [](auto fnL) { return [=](auto... args) { return fnL(args...); }; };

using LD = long double;
using LDC = std::pair<long double, long double>;

// The 0.5 ULP bound of a correctly rounded result, with room for the
// rounding of the long double reference itself (below 2^-10 ULP of a
// double result; float results of + - * are exact in long double).
constexpr double kHalfUlp = 0.5 + 1.0 / 1024;

}  // namespace arithfam

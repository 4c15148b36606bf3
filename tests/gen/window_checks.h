// SPDX-License-Identifier: BSD-3-Clause
// Shared checks of the window families, over all twelve type forms of a
// family: argument checks in order with canaries, and results against a
// long double evaluation of the family's closed formula.
//
// A family is described by its forms (WIN_FORMS binds extra arguments such
// as alpha), its shortest length, its reference weight w(N, n) and the
// bound on the error of its computed weights for a length N.
#pragma once
#include <cmath>
#include <functional>
#include <limits>
#include <string>
#include <vector>

#include "qsp_test.h"

namespace wintest {

using LD = long double;
constexpr LD kPi = 3.141592653589793238462643383279502884L;

template <class T>
struct Forms {
    std::function<QspStatus(const T*, T*, int)> out;
    std::function<QspStatus(T*, int)> inPlace;
};

struct Family {
    std::string name;
    Forms<Qsp16s> s16;
    Forms<Qsp16sc> sc16;
    Forms<Qsp32f> f32;
    Forms<Qsp32fc> fc32;
    Forms<Qsp64f> f64;
    Forms<Qsp64fc> fc64;
};

// The twelve forms of qspsWin<Name>, each called with the extra arguments
// given (cast to the parameter types of the form).
#define WIN_FORM(F, T, ...)                                                                \
    wintest::Forms<T>{[=](const T* s, T* d, int n) { return F(s, d, n __VA_OPT__(, ) __VA_ARGS__); }, \
                      [=](T* sd, int n) { return F##_I(sd, n __VA_OPT__(, ) __VA_ARGS__); }}
#define WIN_FORMS(Name, ...)                                                                              \
    wintest::Family                                                                                       \
    {                                                                                                     \
        #Name, WIN_FORM(qspsWin##Name##_16s, Qsp16s, __VA_ARGS__),                                       \
            WIN_FORM(qspsWin##Name##_16sc, Qsp16sc, __VA_ARGS__),                                         \
            WIN_FORM(qspsWin##Name##_32f, Qsp32f, __VA_ARGS__), WIN_FORM(qspsWin##Name##_32fc, Qsp32fc, __VA_ARGS__), \
            WIN_FORM(qspsWin##Name##_64f, Qsp64f, __VA_ARGS__), WIN_FORM(qspsWin##Name##_64fc, Qsp64fc, __VA_ARGS__) \
    }

// Calls f(forms, tag) for each of the six element types.
template <class F>
void forEachType(const Family& fam, F f)
{
    f(fam.s16, Qsp16s{});
    f(fam.sc16, Qsp16sc{});
    f(fam.f32, Qsp32f{});
    f(fam.fc32, Qsp32fc{});
    f(fam.f64, Qsp64f{});
    f(fam.fc64, Qsp64fc{});
}

template <class T> struct PartOf { using type = T; };
template <> struct PartOf<Qsp16sc> { using type = Qsp16s; };
template <> struct PartOf<Qsp32fc> { using type = Qsp32f; };
template <> struct PartOf<Qsp64fc> { using type = Qsp64f; };
template <class T>
using Part = typename PartOf<T>::type;
template <class T>
constexpr int partsOf = sizeof(T) / sizeof(Part<T>);

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

// Random data: full-range integers, floating values in [-100, 100].
template <class T>
std::vector<T> randomData(int n)
{
    std::vector<T> v(n);
    Part<T>* p = parts(v.data());
    for (int i = 0; i < n * partsOf<T>; ++i) {
        if constexpr (std::is_integral_v<Part<T>>) {
            p[i] = Part<T>(qsptest::rng()());
        } else {
            p[i] = Part<T>(std::uniform_real_distribution<double>(-100.0, 100.0)(qsptest::rng()));
        }
    }
    return v;
}

// Null pointers first (qspStsNullPtr even with a bad length), then lengths
// below the shortest (qspStsBadSize); nothing written by any of them.
template <class T>
void expectArgumentChecks(const std::string& what, const Forms<T>& f, int shortest)
{
    SCOPED_TRACE(what);
    qsptest::Guarded<T> src(64), dst(64);
    EXPECT_EQ(f.out(nullptr, dst.data(), 16), qspStsNullPtr);
    EXPECT_EQ(f.out(src.data(), nullptr, 16), qspStsNullPtr);
    EXPECT_EQ(f.out(nullptr, dst.data(), 0), qspStsNullPtr);
    EXPECT_EQ(f.out(src.data(), nullptr, -1), qspStsNullPtr);
    EXPECT_EQ(f.inPlace(nullptr, 16), qspStsNullPtr);
    EXPECT_EQ(f.inPlace(nullptr, 0), qspStsNullPtr);
    for (int len : {shortest - 1, shortest - 2, 0, -1, std::numeric_limits<int>::min()}) {
        if (len >= shortest) continue;
        EXPECT_EQ(f.out(src.data(), dst.data(), len), qspStsBadSize) << "len " << len;
        EXPECT_EQ(f.inPlace(dst.data(), len), qspStsBadSize) << "len " << len;
    }
    EXPECT_TRUE(src.untouched());
    EXPECT_TRUE(dst.untouched());
}

inline void expectArgumentChecks(const Family& fam, int shortest)
{
    forEachType(fam, [&](const auto& f, auto tag) {
        expectArgumentChecks(fam.name + " " + std::to_string(sizeof(tag)) + "-byte", f, shortest);
    });
}

// The bounds of one element: x times the weight w, whose computed value
// may be off by weightError, in the precision of T. Integer parts: the
// rounding of any value in that interval, saturated.
template <class P>
bool partWithin(P got, P x, LD w, LD weightError)
{
    const LD v = LD(x) * w, slack = fabsl(LD(x)) * weightError;
    if constexpr (std::is_integral_v<P>) {
        auto sat = [](LD r) {
            r = nearbyintl(r);
            if (r > LD(std::numeric_limits<P>::max())) r = std::numeric_limits<P>::max();
            if (r < LD(std::numeric_limits<P>::min())) r = std::numeric_limits<P>::min();
            return r;
        };
        return LD(got) >= sat(v - slack - 1e-9L) && LD(got) <= sat(v + slack + 1e-9L);
    } else {
        // Single precision multiplies by the weight rounded to float: one
        // more rounding of the weight, one of the product.
        const LD eps = std::numeric_limits<P>::epsilon() / 2;
        const LD tol = slack + fabsl(v) * (sizeof(P) == 4 ? 2.5L * eps : eps) + std::numeric_limits<P>::denorm_min();
        return fabsl(LD(got) - v) <= tol;
    }
}

// Every element of both forms against x(n) w(N, n); in place and out of
// place agree bit for bit; the source of the out-of-place form and the
// guards are untouched.
template <class T, class W, class B>
void expectWeights(const std::string& what, const Forms<T>& f, int N, W weight, B bound)
{
    SCOPED_TRACE(what + " N=" + std::to_string(N));
    const std::vector<T> x = randomData<T>(N);
    qsptest::Guarded<T> src(N), dst(N), io(N);
    std::copy(x.begin(), x.end(), src.data());
    std::copy(x.begin(), x.end(), io.data());
    ASSERT_EQ(f.out(src.data(), dst.data(), N), qspStsOk);
    ASSERT_EQ(f.inPlace(io.data(), N), qspStsOk);
    EXPECT_TRUE(src.guardsIntact() && dst.guardsIntact() && io.guardsIntact());
    EXPECT_EQ(std::memcmp(src.data(), x.data(), N * sizeof(T)), 0);
    EXPECT_EQ(std::memcmp(dst.data(), io.data(), N * sizeof(T)), 0);
    const LD err = bound(N, Part<T>{});
    int bad = 0;
    for (int n = 0; n < N && bad < 5; ++n) {
        const LD w = weight(N, n);
        for (int p = 0; p < partsOf<T>; ++p) {
            const Part<T> got = parts(dst.data())[n * partsOf<T> + p], xin = parts(x.data())[n * partsOf<T> + p];
            if (!partWithin(got, xin, w, err)) {
                ADD_FAILURE() << "n=" << n << " part " << p << " x=" << double(xin) << " w=" << double(w)
                              << " got " << double(got) << " want " << double(LD(xin) * w);
                ++bad;
            }
        }
    }
}

template <class W, class B>
void expectWeights(const Family& fam, const std::vector<int>& lengths, W weight, B bound)
{
    for (int N : lengths) {
        forEachType(fam, [&](const auto& f, auto tag) {
            expectWeights(fam.name + " " + std::to_string(sizeof(tag)) + "-byte", f, N, weight, bound);
        });
    }
}

// Lengths that reach every tail of the vector loops (the blocks of the
// driver are 256 weights, so lengths around 512 and beyond cross them).
inline std::vector<int> sweepLengths(int shortest)
{
    std::vector<int> v;
    for (int n = shortest; n <= 40; ++n) v.push_back(n);
    for (int n : {63, 64, 65, 511, 512, 513, 514, 1000, 1025, 4097}) v.push_back(n);
    return v;
}

// The cosine windows: a0 - a1 cos(n theta) + a2 cos(2n theta) with theta the double
// 6.283185307179586 * (1/(N-1)) that the library forms, the cosines in long
// double.
inline LD cosineWindow(int N, int n, LD a0, LD a1, LD a2)
{
    const LD theta = LD(6.283185307179586 * (1.0 / double(N - 1)));
    return a0 - a1 * cosl(theta * n) + a2 * cosl(2 * theta * n);
}

// The error of the weights of a cosine window with coefficients of
// magnitude up to `scale`: a few roundings, and the drift of the cosine
// recurrence, which grows with N^2 (measured: at most 0.006 N^2 2^-53 for N up
// to 10^6; the bound allows 0.0156 N^2 2^-53).
inline LD cosineBound(int N, LD scale = 1)
{
    return scale * (0x1p-51L + LD(N) * LD(N) * 0x1p-59L);
}

// The largest weight error of the computed window against the reference,
// measured on the 64f form with a source of ones.
template <class W>
LD measuredWeightError(const std::function<QspStatus(const Qsp64f*, Qsp64f*, int)>& f, int N, W weight)
{
    std::vector<Qsp64f> one(N, 1.0), w(N);
    EXPECT_EQ(f(one.data(), w.data(), N), qspStsOk);
    LD worst = 0;
    for (int n = 0; n < N; ++n) worst = std::max(worst, fabsl(LD(w[n]) - weight(N, n)));
    return worst;
}

}  // namespace wintest

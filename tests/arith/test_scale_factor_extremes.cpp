// SPDX-License-Identifier: BSD-3-Clause
// Every scaled (Sfs) function at the scale factors farthest from the
// ordinary ones, INT_MIN, -1000, 1000 and INT_MAX (and +-2100, just past the
// clamp of the power-of-two scaling), on 10^4 elements, against the rule
// applied to the exact result: v * 2^-scaleFactor rounded (to nearest even
// unless the function takes a rounding mode) and saturated, with v formed
// in long double, whose exponent range holds every such product exactly.
//
// The suite's name starts with BoundedCost, which gives it a one-minute
// CTest timeout (tests/CMakeLists.txt): a function whose cost grows with
// |scaleFactor| cannot finish in time. The last test reads the API table and
// fails when an implemented Sfs export has no case here, so every scaled
// function added later is held to the same bound.
#include <climits>
#include <complex>
#include <fstream>
#include <functional>
#include <map>
#include <memory>
#include <set>
#include <sstream>

#include "arith_ref.h"

namespace {

using LD = long double;
using arithref::i128;

constexpr int kLen = 10000;
constexpr int kScaleFactors[] = {INT_MIN, -2100, -1000, 1000, 2100, INT_MAX};

// The exact result of one element: a real value or the two parts of a
// complex one.
struct Exact {
    LD re, im = 0;
};

LD roundIn(LD x, int mode)
{
    if (mode == 0) return std::trunc(x);
    if (mode == 1) return std::nearbyint(x);  // the default rounding: to nearest even
    return std::round(x);
}

// v * 2^-s, exact in long double for every v here and |s| up to 20000;
// beyond that the result no longer changes.
LD scaledExactly(LD v, int s)
{
    const long long e = -static_cast<long long>(s);
    return std::ldexp(v, int(e > 20000 ? 20000 : e < -20000 ? -20000 : e));
}

// The rule for an integer destination with the range [lo, hi]; NaN gives 0.
Qsp64s rule(LD v, int s, int mode, LD lo, LD hi)
{
    if (v != v) return 0;
    const LD r = roundIn(scaledExactly(v, s), mode);
    return Qsp64s(r > hi ? hi : r < lo ? lo : r);
}

template <class D>
Qsp64s rule(LD v, int s, int mode)
{
    return rule(v, s, mode, LD(std::numeric_limits<D>::min()), LD(std::numeric_limits<D>::max()));
}

template <class T>
constexpr bool isComplex = !std::is_arithmetic_v<T>;

template <class T>
LD re(const T& x)
{
    if constexpr (isComplex<T>) return LD(x.re);
    else return LD(x);
}
template <class T>
LD im(const T& x)
{
    if constexpr (isComplex<T>) return LD(x.im);
    else return 0;
}

// got against the rule applied to v (part by part for complex D).
template <class D>
testing::AssertionResult follows(const D& got, Exact v, int s, int mode)
{
    auto one = [&](auto part, LD exact) -> testing::AssertionResult {
        using P = decltype(part);
        if constexpr (std::is_floating_point_v<P>) {
            const P want = P(scaledExactly(exact, s));
            if (qsptest::sameBits(part, want)) return testing::AssertionSuccess();
            return testing::AssertionFailure() << "got " << part << ", want " << want << " (exact " << exact << ")";
        } else {
            const Qsp64s want = rule<P>(exact, s, mode);
            if (Qsp64s(part) == want) return testing::AssertionSuccess();
            return testing::AssertionFailure() << "got " << Qsp64s(part) << ", want " << want << " (exact " << exact
                                               << ")";
        }
    };
    if constexpr (isComplex<D>) {
        const testing::AssertionResult r = one(got.re, v.re);
        return r ? one(got.im, v.im) : r;
    } else {
        return one(got, v.re);
    }
}

// Checks n results; exact(i) is the exact result of element i.
template <class D, class ExactAt>
void expectRule(const D* got, int n, ExactAt exact, int s, int mode = 1)
{
    for (int i = 0; i < n; ++i) {
        const testing::AssertionResult r = follows(got[i], exact(i), s, mode);
        if (!r) {
            ADD_FAILURE() << "element " << i << ": " << r.message();
            return;
        }
    }
}

// ---------------------------------------------------------------------------
// Operands: random values with the type's extremes mixed in; floating ones
// over their whole exponent range with infinities, NaN and subnormals.

template <class T>
std::vector<T> operands()
{
    if constexpr (std::is_integral_v<T>) {
        return arithref::operands<T>(kLen);
    } else if constexpr (std::is_floating_point_v<T>) {
        using L = std::numeric_limits<T>;
        std::vector<T> v = arithref::floats<T>(kLen, L::max_exponent - 2);
        const T special[] = {L::infinity(), -L::infinity(), L::quiet_NaN(), L::denorm_min(), -L::denorm_min(),
                             L::min(), L::max(), -L::max(), T(0.5), T(-1.5), T(2.5), T(0)};
        for (size_t i = 0; i < std::size(special); ++i) v[7 * i] = special[i];
        return v;
    } else {
        using P = decltype(T{}.re);
        const std::vector<P> a = operands<P>(), b = operands<P>();
        std::vector<T> v(kLen);
        for (int i = 0; i < kLen; ++i) v[i] = T{a[i], b[(i * 7919) % kLen]};
        return v;
    }
}

// Divisors: operands with no zero (a zero divisor is not a scaling case).
template <class T>
std::vector<T> divisors()
{
    std::vector<T> v = operands<T>();
    for (T& x : v) {
        if constexpr (isComplex<T>) {
            if (x.re == 0 && x.im == 0) x.re = 1;
        } else if (x == 0) {
            x = 1;
        }
    }
    return v;
}

// Non-negative operands of a signed type (square roots of real integers).
template <class T>
std::vector<T> nonNegative()
{
    std::vector<T> v = operands<T>();
    for (T& x : v) x = x < 0 ? T(-(x + 1)) : x;
    return v;
}

// ---------------------------------------------------------------------------
// The cases: one per export, each calling it at one scale factor.

using Run = std::function<void(int scaleFactor)>;

std::map<std::string, Run>& cases()
{
    static std::map<std::string, Run> all;
    return all;
}

void add(const char* name, Run run)
{
    const bool fresh = cases().emplace(std::string("qsps") + name, std::move(run)).second;
    if (!fresh) ADD_FAILURE() << name << " listed twice";
}

#define QSPS(name) #name, qsps##name

// fn(pSrc1, pSrc2, pDst, len, sf) and its in-place form fnI(pSrc, pSrcDst,
// len, sf) on the operands a and b, result exact(a[i], b[i]).
template <class S1, class S2, class D, class Exact2>
void twoVectors(const char* name, QspStatus (*fn)(const S1*, const S2*, D*, int, int), const char* nameI,
                QspStatus (*fnI)(const S1*, D*, int, int), Exact2 exact, std::vector<S1> a = operands<S1>(),
                std::vector<S2> b = operands<S2>())
{
    auto exactAt = [=](int i) { return exact(a[i], b[i]); };
    add(name, [=](int sf) {
        std::vector<D> d(kLen);
        ASSERT_EQ(fn(a.data(), b.data(), d.data(), kLen, sf), qspStsOk);
        expectRule(d.data(), kLen, exactAt, sf);
    });
    if constexpr (std::is_same_v<S2, D>) {
        if (fnI) {
            add(nameI, [=](int sf) {
                std::vector<D> d = b;
                ASSERT_EQ(fnI(a.data(), d.data(), kLen, sf), qspStsOk);
                expectRule(d.data(), kLen, exactAt, sf);
            });
        }
    }
}

// fn(pSrc, val, pDst, len, sf) and fnI(val, pSrcDst, len, sf), result
// exact(a[i], val), for each constant given.
template <class S, class D, class C, class Len, class ExactC>
void withConstant(const char* name, QspStatus (*fn)(const S*, C, D*, Len, int), const char* nameI,
                  QspStatus (*fnI)(C, D*, Len, int), ExactC exact, std::vector<C> constants)
{
    const auto a = operands<S>();
    add(name, [=](int sf) {
        for (const C& val : constants) {
            std::vector<D> d(kLen);
            ASSERT_EQ(fn(a.data(), val, d.data(), kLen, sf), qspStsOk);
            expectRule(d.data(), kLen, [&](int i) { return exact(a[i], val); }, sf);
        }
    });
    if constexpr (std::is_same_v<S, D>) {
        if (fnI) {
            add(nameI, [=](int sf) {
                for (const C& val : constants) {
                    std::vector<D> d = a;
                    ASSERT_EQ(fnI(val, d.data(), kLen, sf), qspStsOk);
                    expectRule(d.data(), kLen, [&](int i) { return exact(a[i], val); }, sf);
                }
            });
        }
    }
}

// call(pSrc, pDst, len, mode, sf) and callI(pSrcDst, len, mode, sf) on the
// operands a, result exactAt(i); `modes` lists the rounding modes the calls
// are made with (-1 alone: the function takes none and rounds to nearest
// even).
template <class S, class D, class Call, class CallI, class ExactAt>
void oneVector(const char* name, Call call, const char* nameI, CallI callI, ExactAt exactAt, std::vector<S> a,
               std::vector<int> modes = {-1})
{
    add(name, [=](int sf) {
        for (int mode : modes) {
            std::vector<D> d(kLen);
            ASSERT_EQ(call(a.data(), d.data(), kLen, mode, sf), qspStsOk) << "mode " << mode;
            expectRule(d.data(), kLen, exactAt, sf, mode < 0 ? 1 : mode);
        }
    });
    if constexpr (!std::is_same_v<CallI, std::nullptr_t> && std::is_same_v<S, D>) {
        add(nameI, [=](int sf) {
            for (int mode : modes) {
                std::vector<D> d = a;
                ASSERT_EQ(callI(d.data(), kLen, mode, sf), qspStsOk) << "mode " << mode;
                expectRule(d.data(), kLen, exactAt, sf, mode < 0 ? 1 : mode);
            }
        });
    }
}

// A unary Sfs function without a mode: fn(pSrc, pDst, len, sf) and
// fnI(pSrcDst, len, sf), result exact(a[i]).
template <class S, class D, class Exact1>
void unary(const char* name, QspStatus (*fn)(const S*, D*, int, int), const char* nameI,
           QspStatus (*fnI)(D*, int, int), Exact1 exact, std::vector<S> a = operands<S>())
{
    auto call = [=](const S* s, D* d, int n, int, int sf) { return fn(s, d, n, sf); };
    auto exactAt = [=](int i) { return exact(a[i]); };
    if (fnI) {
        auto callI = [=](D* sd, int n, int, int sf) { return fnI(sd, n, sf); };
        oneVector<S, D>(name, call, nameI, callI, exactAt, a);
    } else {
        oneVector<S, D>(name, call, nullptr, nullptr, exactAt, a);
    }
}

// Exact results of the operations, from the parts of their operands.
template <class A, class B>
Exact sumOf(const A& a, const B& b)
{
    return {re(a) + re(b), im(a) + im(b)};
}
template <class A, class B>
Exact differenceOf(const A& a, const B& b)  // a - b
{
    return {re(a) - re(b), im(a) - im(b)};
}
template <class A, class B>
Exact productOf(const A& a, const B& b)
{
    return {re(a) * re(b) - im(a) * im(b), re(a) * im(b) + im(a) * re(b)};
}
template <class A, class B>
Exact quotientOf(const A& num, const B& den)  // num / den
{
    if constexpr (isComplex<B>) {
        const LD d = re(den) * re(den) + im(den) * im(den);
        return {(re(num) * re(den) + im(num) * im(den)) / d, (im(num) * re(den) - re(num) * im(den)) / d};
    } else {
        return {re(num) / re(den), im(num) / re(den)};
    }
}

const auto add2 = [](auto a, auto b) { return sumOf(a, b); };
const auto sub2 = [](auto a, auto b) { return differenceOf(b, a); };  // the second minus the first
const auto mul2 = [](auto a, auto b) { return productOf(a, b); };
const auto div2 = [](auto a, auto b) { return quotientOf(b, a); };  // the second divided by the first
const auto addC = [](auto a, auto c) { return sumOf(a, c); };
const auto subC = [](auto a, auto c) { return differenceOf(a, c); };
const auto subCRev = [](auto a, auto c) { return differenceOf(c, a); };
const auto mulC = [](auto a, auto c) { return productOf(a, c); };
const auto divC = [](auto a, auto c) { return quotientOf(a, c); };

// Two constants of a type: an ordinary one and an extreme one (for 16sc
// the constant with kernels of its own, -32768 - 32768i).
template <class C>
std::vector<C> constantsOf()
{
    if constexpr (isComplex<C>) {
        using P = decltype(C{}.re);
        return {C{P(3), P(-7)}, C{std::numeric_limits<P>::min(), std::numeric_limits<P>::min()}};
    } else if constexpr (std::is_floating_point_v<C>) {
        return {C(0.75), C(-3.0e-30)};
    } else {
        return {C(3), std::numeric_limits<C>::is_signed ? std::numeric_limits<C>::min() : std::numeric_limits<C>::max()};
    }
}
template <class C>
std::vector<C> nonZeroConstantsOf()
{
    if constexpr (isComplex<C>) return {C{3, -7}, C{0, -1}};
    else if constexpr (std::is_signed_v<C>) return {C(3), C(-7)};
    else return {C(3), C(250)};
}

// Add, Sub and Mul of two vectors of one integer type.
template <class T>
void addSubMul(const char* add_, QspStatus (*fAdd)(const T*, const T*, T*, int, int), const char* addI,
               QspStatus (*fAddI)(const T*, T*, int, int), const char* sub, QspStatus (*fSub)(const T*, const T*, T*, int, int),
               const char* subI, QspStatus (*fSubI)(const T*, T*, int, int), const char* mul,
               QspStatus (*fMul)(const T*, const T*, T*, int, int), const char* mulI, QspStatus (*fMulI)(const T*, T*, int, int))
{
    twoVectors(add_, fAdd, addI, fAddI, add2);
    twoVectors(sub, fSub, subI, fSubI, sub2);
    twoVectors(mul, fMul, mulI, fMulI, mul2);
}

// AddC, SubC, SubCRev and MulC of one integer type.
template <class T>
void constantForms(const char* addC_, QspStatus (*fAddC)(const T*, T, T*, int, int), const char* addCI,
                   QspStatus (*fAddCI)(T, T*, int, int), const char* subC_, QspStatus (*fSubC)(const T*, T, T*, int, int),
                   const char* subCI, QspStatus (*fSubCI)(T, T*, int, int), const char* subCRev_,
                   QspStatus (*fSubCRev)(const T*, T, T*, int, int), const char* subCRevI,
                   QspStatus (*fSubCRevI)(T, T*, int, int), const char* mulC_, QspStatus (*fMulC)(const T*, T, T*, int, int),
                   const char* mulCI, QspStatus (*fMulCI)(T, T*, int, int))
{
    withConstant(addC_, fAddC, addCI, fAddCI, addC, constantsOf<T>());
    withConstant(subC_, fSubC, subCI, fSubCI, subC, constantsOf<T>());
    withConstant(subCRev_, fSubCRev, subCRevI, fSubCRevI, subCRev, constantsOf<T>());
    withConstant(mulC_, fMulC, mulCI, fMulCI, mulC, constantsOf<T>());
}

// Div_Round: the quotient of the second operand by the first in each of the
// three rounding modes.
template <class T>
void divRound(const char* name, QspStatus (*fn)(const T*, const T*, T*, int, QspRoundMode, int), const char* nameI,
              QspStatus (*fnI)(const T*, T*, int, QspRoundMode, int))
{
    const auto den = divisors<T>();
    const auto num = operands<T>();
    auto call = [=](const T* s, T* d, int n, int mode, int sf) { return fn(den.data(), s, d, n, mode, sf); };
    auto callI = [=](T* sd, int n, int mode, int sf) { return fnI(den.data(), sd, n, mode, sf); };
    auto exactAt = [=](int i) { return quotientOf(num[i], den[i]); };
    oneVector<T, T>(name, call, nameI, callI, exactAt, num, {0, 1, 2});
}

// Floating to integer conversions in each rounding mode.
template <class S, class D>
void floatToInt(const char* name, QspStatus (*fn)(const S*, D*, int, QspRoundMode, int), std::vector<S> a = operands<S>())
{
    auto call = [=](const S* s, D* d, int n, int mode, int sf) { return fn(s, d, n, mode, sf); };
    auto exactAt = [=](int i) { return Exact{LD(a[i])}; };
    oneVector<S, D>(name, call, nullptr, nullptr, exactAt, a, {0, 1, 2});
}

// 24-bit destinations are three bytes an element, least significant first.
Qsp32s read24(const std::vector<Qsp8u>& d, int i, bool isSigned)
{
    const Qsp32u u = Qsp32u(d[3 * i]) | Qsp32u(d[3 * i + 1]) << 8 | Qsp32u(d[3 * i + 2]) << 16;
    return isSigned ? Qsp32s(u << 8) >> 8 : Qsp32s(u);
}
template <class S, class Call>
void to24(const char* name, Call call, bool isSigned, std::vector<int> modes)
{
    const auto a = operands<S>();
    const LD lo = isSigned ? -LD(1 << 23) : 0, hi = isSigned ? LD((1 << 23) - 1) : LD((1 << 24) - 1);
    add(name, [=](int sf) {
        for (int mode : modes) {
            std::vector<Qsp8u> d(3 * size_t(kLen));
            ASSERT_EQ(call(a.data(), d.data(), kLen, mode, sf), qspStsOk);
            for (int i = 0; i < kLen; ++i)
                ASSERT_EQ(read24(d, i, isSigned), rule(LD(a[i]), sf, mode < 0 ? 1 : mode, lo, hi))
                    << "element " << i << " mode " << mode;
        }
    });
}

// Reductions: one or two sources, one result.
template <class S, class D>
void reduction(const char* name, QspStatus (*fn)(const S*, int, D*, int), Exact exact, std::vector<S> a)
{
    add(name, [=](int sf) {
        D got{};
        ASSERT_EQ(fn(a.data(), kLen, &got, sf), qspStsOk);
        expectRule(&got, 1, [&](int) { return exact; }, sf);
    });
}
template <class S1, class S2, class D>
void reduction2(const char* name, QspStatus (*fn)(const S1*, const S2*, int, D*, int), Exact exact,
                std::vector<S1> a, std::vector<S2> b)
{
    add(name, [=](int sf) {
        D got{};
        ASSERT_EQ(fn(a.data(), b.data(), kLen, &got, sf), qspStsOk);
        expectRule(&got, 1, [&](int) { return exact; }, sf);
    });
}
template <class D>
void meanStdDev(const char* name, QspStatus (*fn)(const Qsp16s*, int, D*, D*, int), Exact mean, Exact stdDev,
                std::vector<Qsp16s> a)
{
    add(name, [=](int sf) {
        D m{}, sd{};
        ASSERT_EQ(fn(a.data(), kLen, &m, &sd, sf), qspStsOk);
        expectRule(&m, 1, [&](int) { return mean; }, sf);
        expectRule(&sd, 1, [&](int) { return stdDev; }, sf);
    });
}

// Exact sums over whole vectors, in 128-bit integers.
template <class T, class Term>
Exact total(const std::vector<T>& a, Term term)
{
    i128 r = 0, i = 0;
    for (const T& x : a) {
        const Exact t = term(x);
        r += i128(t.re);
        i += i128(t.im);
    }
    return {LD(r), LD(i)};
}
template <class T1, class T2, class Term>
Exact total2(const std::vector<T1>& a, const std::vector<T2>& b, Term term)
{
    i128 r = 0;
    for (size_t k = 0; k < a.size(); ++k) r += term(a[k], b[k]);
    return {LD(r)};
}
const auto itself = [](auto x) { return Exact{re(x), im(x)}; };
const auto magnitudeOf = [](auto x) { return Exact{x < 0 ? -LD(x) : LD(x)}; };
const auto squareOf = [](auto x) { return Exact{LD(x) * LD(x)}; };

Exact sampleStdDev(const std::vector<Qsp16s>& a)
{
    const i128 s = i128(total(a, itself).re), q = i128(total(a, squareOf).re);
    return {std::sqrt(LD(i128(kLen) * q - s * s) / (LD(kLen) * LD(kLen - 1)))};
}

void registerAll()
{
    // Add, Sub and Mul of two vectors (Sub: the second minus the first).
    addSubMul<Qsp8u>(QSPS(Add_8u_Sfs), QSPS(Add_8u_ISfs), QSPS(Sub_8u_Sfs), QSPS(Sub_8u_ISfs), QSPS(Mul_8u_Sfs),
                     QSPS(Mul_8u_ISfs));
    addSubMul<Qsp16s>(QSPS(Add_16s_Sfs), QSPS(Add_16s_ISfs), QSPS(Sub_16s_Sfs), QSPS(Sub_16s_ISfs),
                      QSPS(Mul_16s_Sfs), QSPS(Mul_16s_ISfs));
    addSubMul<Qsp16u>(QSPS(Add_16u_Sfs), QSPS(Add_16u_ISfs), QSPS(Sub_16u_Sfs), QSPS(Sub_16u_ISfs),
                      QSPS(Mul_16u_Sfs), QSPS(Mul_16u_ISfs));
    addSubMul<Qsp32s>(QSPS(Add_32s_Sfs), QSPS(Add_32s_ISfs), QSPS(Sub_32s_Sfs), QSPS(Sub_32s_ISfs),
                      QSPS(Mul_32s_Sfs), QSPS(Mul_32s_ISfs));
    addSubMul<Qsp16sc>(QSPS(Add_16sc_Sfs), QSPS(Add_16sc_ISfs), QSPS(Sub_16sc_Sfs), QSPS(Sub_16sc_ISfs),
                       QSPS(Mul_16sc_Sfs), QSPS(Mul_16sc_ISfs));
    addSubMul<Qsp32sc>(QSPS(Add_32sc_Sfs), QSPS(Add_32sc_ISfs), QSPS(Sub_32sc_Sfs), QSPS(Sub_32sc_ISfs),
                       QSPS(Mul_32sc_Sfs), QSPS(Mul_32sc_ISfs));
    twoVectors<Qsp16u, Qsp16s, Qsp16s>(QSPS(Mul_16u16s_Sfs), nullptr, nullptr, mul2);
    twoVectors<Qsp16s, Qsp16s, Qsp32s>(QSPS(Mul_16s32s_Sfs), nullptr, nullptr, mul2);
    twoVectors(QSPS(Mul_32s32sc_Sfs), QSPS(Mul_32s32sc_ISfs), mul2);

    // AddProduct: the old destination plus the exact product.
    auto addProduct = [](const char* name, auto fn, auto s1, auto d1) {
        using S = decltype(s1);
        using D = decltype(d1);
        const auto a = operands<S>(), b = operands<S>(), c = operands<D>();
        add(name, [=](int sf) {
            std::vector<D> d = c;
            ASSERT_EQ(fn(a.data(), b.data(), d.data(), kLen, sf), qspStsOk);
            expectRule(d.data(), kLen, [&](int i) { return Exact{LD(c[i]) + LD(a[i]) * LD(b[i])}; }, sf);
        });
    };
    addProduct(QSPS(AddProduct_16s_Sfs), Qsp16s{}, Qsp16s{});
    addProduct(QSPS(AddProduct_32s_Sfs), Qsp32s{}, Qsp32s{});
    addProduct(QSPS(AddProduct_16s32s_Sfs), Qsp16s{}, Qsp32s{});

    // Division: the second operand divided by the first, no zero divisor.
    twoVectors(QSPS(Div_8u_Sfs), QSPS(Div_8u_ISfs), div2, divisors<Qsp8u>());
    twoVectors(QSPS(Div_16s_Sfs), QSPS(Div_16s_ISfs), div2, divisors<Qsp16s>());
    twoVectors(QSPS(Div_16u_Sfs), QSPS(Div_16u_ISfs), div2, divisors<Qsp16u>());
    twoVectors(QSPS(Div_32s_Sfs), QSPS(Div_32s_ISfs), div2, divisors<Qsp32s>());
    twoVectors(QSPS(Div_16sc_Sfs), QSPS(Div_16sc_ISfs), div2, divisors<Qsp16sc>());
    divRound<Qsp8u>(QSPS(Div_Round_8u_Sfs), QSPS(Div_Round_8u_ISfs));
    divRound<Qsp16s>(QSPS(Div_Round_16s_Sfs), QSPS(Div_Round_16s_ISfs));
    divRound<Qsp16u>(QSPS(Div_Round_16u_Sfs), QSPS(Div_Round_16u_ISfs));

    // Constant forms.
    constantForms<Qsp8u>(QSPS(AddC_8u_Sfs), QSPS(AddC_8u_ISfs), QSPS(SubC_8u_Sfs), QSPS(SubC_8u_ISfs),
                         QSPS(SubCRev_8u_Sfs), QSPS(SubCRev_8u_ISfs), QSPS(MulC_8u_Sfs), QSPS(MulC_8u_ISfs));
    constantForms<Qsp16s>(QSPS(AddC_16s_Sfs), QSPS(AddC_16s_ISfs), QSPS(SubC_16s_Sfs), QSPS(SubC_16s_ISfs),
                          QSPS(SubCRev_16s_Sfs), QSPS(SubCRev_16s_ISfs), QSPS(MulC_16s_Sfs), QSPS(MulC_16s_ISfs));
    constantForms<Qsp16u>(QSPS(AddC_16u_Sfs), QSPS(AddC_16u_ISfs), QSPS(SubC_16u_Sfs), QSPS(SubC_16u_ISfs),
                          QSPS(SubCRev_16u_Sfs), QSPS(SubCRev_16u_ISfs), QSPS(MulC_16u_Sfs), QSPS(MulC_16u_ISfs));
    constantForms<Qsp32s>(QSPS(AddC_32s_Sfs), QSPS(AddC_32s_ISfs), QSPS(SubC_32s_Sfs), QSPS(SubC_32s_ISfs),
                          QSPS(SubCRev_32s_Sfs), QSPS(SubCRev_32s_ISfs), QSPS(MulC_32s_Sfs), QSPS(MulC_32s_ISfs));
    constantForms<Qsp16sc>(QSPS(AddC_16sc_Sfs), QSPS(AddC_16sc_ISfs), QSPS(SubC_16sc_Sfs), QSPS(SubC_16sc_ISfs),
                           QSPS(SubCRev_16sc_Sfs), QSPS(SubCRev_16sc_ISfs), QSPS(MulC_16sc_Sfs),
                           QSPS(MulC_16sc_ISfs));
    constantForms<Qsp32sc>(QSPS(AddC_32sc_Sfs), QSPS(AddC_32sc_ISfs), QSPS(SubC_32sc_Sfs), QSPS(SubC_32sc_ISfs),
                           QSPS(SubCRev_32sc_Sfs), QSPS(SubCRev_32sc_ISfs), QSPS(MulC_32sc_Sfs),
                           QSPS(MulC_32sc_ISfs));
    withConstant<Qsp32f, Qsp16s, Qsp32f, int>(QSPS(MulC_32f16s_Sfs), nullptr, nullptr, mulC, constantsOf<Qsp32f>());
    withConstant(QSPS(MulC_32s_Sfs_L), QSPS(MulC_32s_ISfs_L), mulC, constantsOf<Qsp32s>());
    withConstant(QSPS(DivC_8u_Sfs), QSPS(DivC_8u_ISfs), divC, nonZeroConstantsOf<Qsp8u>());
    withConstant(QSPS(DivC_16s_Sfs), QSPS(DivC_16s_ISfs), divC, nonZeroConstantsOf<Qsp16s>());
    withConstant(QSPS(DivC_16u_Sfs), QSPS(DivC_16u_ISfs), divC, nonZeroConstantsOf<Qsp16u>());
    withConstant(QSPS(DivC_16sc_Sfs), QSPS(DivC_16sc_ISfs), divC, nonZeroConstantsOf<Qsp16sc>());

    // Squares and roots (real roots of non-negative elements).
    const auto square = [](auto x) { return productOf(x, x); };
    unary(QSPS(Sqr_8u_Sfs), QSPS(Sqr_8u_ISfs), square);
    unary(QSPS(Sqr_16s_Sfs), QSPS(Sqr_16s_ISfs), square);
    unary(QSPS(Sqr_16u_Sfs), QSPS(Sqr_16u_ISfs), square);
    unary(QSPS(Sqr_16sc_Sfs), QSPS(Sqr_16sc_ISfs), square);
    const auto root = [](auto x) { return Exact{std::sqrt(LD(x))}; };
    unary(QSPS(Sqrt_8u_Sfs), QSPS(Sqrt_8u_ISfs), root);
    unary(QSPS(Sqrt_16s_Sfs), QSPS(Sqrt_16s_ISfs), root, nonNegative<Qsp16s>());
    unary(QSPS(Sqrt_16u_Sfs), QSPS(Sqrt_16u_ISfs), root);
    unary<Qsp32s, Qsp16s>(QSPS(Sqrt_32s16s_Sfs), nullptr, nullptr, root, nonNegative<Qsp32s>());
    unary<Qsp64s, Qsp16s>(QSPS(Sqrt_64s16s_Sfs), nullptr, nullptr, root, nonNegative<Qsp64s>());
    unary(QSPS(Sqrt_16sc_Sfs), QSPS(Sqrt_16sc_ISfs), [](Qsp16sc x) {
        const std::complex<LD> r = std::sqrt(std::complex<LD>(x.re, x.im));
        return Exact{r.real(), r.imag()};
    });

    // Complex to real.
    const auto magnitude = [](auto x) { return Exact{std::sqrt(re(x) * re(x) + im(x) * im(x))}; };
    unary<Qsp16sc, Qsp16s>(QSPS(Magnitude_16sc_Sfs), nullptr, nullptr, magnitude);
    unary<Qsp32sc, Qsp32s>(QSPS(Magnitude_32sc_Sfs), nullptr, nullptr, magnitude);
    unary<Qsp16sc, Qsp16s>(QSPS(Phase_16sc_Sfs), nullptr, nullptr,
                           [](Qsp16sc x) { return Exact{std::atan2(LD(x.im), LD(x.re))}; });
    unary<Qsp16sc, Qsp16s>(QSPS(PowerSpectr_16sc_Sfs), nullptr, nullptr,
                           [](Qsp16sc x) { return Exact{re(x) * re(x) + im(x) * im(x)}; });

    // Normalize: (x - vSub) / vDiv.
    auto normalize = [](const char* name, auto fn, const char* nameI, auto fnI, auto vSub) {
        using T = decltype(vSub);
        constexpr int vDiv = -3;
        auto call = [=](const T* s, T* d, int n, int, int sf) { return fn(s, d, n, vSub, vDiv, sf); };
        auto callI = [=](T* sd, int n, int, int sf) { return fnI(sd, n, vSub, vDiv, sf); };
        const auto a = operands<T>();
        auto exactAt = [=](int i) { return quotientOf(differenceOf(a[i], vSub), Qsp32s(vDiv)); };
        oneVector<T, T>(name, call, nameI, callI, exactAt, a);
    };
    normalize(QSPS(Normalize_16s_Sfs), QSPS(Normalize_16s_ISfs), Qsp16s(-1234));
    normalize(QSPS(Normalize_16sc_Sfs), QSPS(Normalize_16sc_ISfs), Qsp16sc{1234, -321});

    // Conversions.
    floatToInt<Qsp32f, Qsp8s>(QSPS(Convert_32f8s_Sfs));
    floatToInt<Qsp32f, Qsp8u>(QSPS(Convert_32f8u_Sfs));
    floatToInt<Qsp32f, Qsp16s>(QSPS(Convert_32f16s_Sfs));
    floatToInt<Qsp32f, Qsp16u>(QSPS(Convert_32f16u_Sfs));
    floatToInt<Qsp32f, Qsp32s>(QSPS(Convert_32f32s_Sfs));
    floatToInt<Qsp64f, Qsp16s>(QSPS(Convert_64f16s_Sfs));
    floatToInt<Qsp64f, Qsp32s>(QSPS(Convert_64f32s_Sfs));
    floatToInt<Qsp64f, Qsp64s>(QSPS(Convert_64f64s_Sfs));
    {
        const auto h = qsptest::randomBits<Qsp16f>(kLen);
        auto call = [](const Qsp16f* s, Qsp16s* d, int n, int mode, int sf) {
            return qspsConvert_16f16s_Sfs(s, d, n, mode, sf);
        };
        oneVector<Qsp16f, Qsp16s>("Convert_16f16s_Sfs", call, nullptr, nullptr,
                                  [=](int i) { return Exact{arithref::halfValue(h[i])}; }, h, {0, 1, 2});
    }
    to24<Qsp32f>("Convert_32f24s_Sfs", qspsConvert_32f24s_Sfs, true, {0, 1, 2});
    to24<Qsp32f>("Convert_32f24u_Sfs", qspsConvert_32f24u_Sfs, false, {0, 1, 2});
    to24<Qsp32s>("Convert_32s24s_Sfs",
                 [](const Qsp32s* s, Qsp8u* d, int n, int, int sf) { return qspsConvert_32s24s_Sfs(s, d, n, sf); },
                 true, {-1});
    to24<Qsp32u>("Convert_32u24u_Sfs",
                 [](const Qsp32u* s, Qsp8u* d, int n, int, int sf) { return qspsConvert_32u24u_Sfs(s, d, n, sf); },
                 false, {-1});
    unary<Qsp32s, Qsp16s>(QSPS(Convert_32s16s_Sfs), nullptr, nullptr, itself);
    unary<Qsp64s, Qsp32s>(QSPS(Convert_64s32s_Sfs), nullptr, nullptr, itself);
    unary<Qsp16s, Qsp32f>(QSPS(Convert_16s32f_Sfs), nullptr, nullptr, itself);
    unary<Qsp32s, Qsp32f>(QSPS(Convert_32s32f_Sfs), nullptr, nullptr, itself);
    unary<Qsp32s, Qsp64f>(QSPS(Convert_32s64f_Sfs), nullptr, nullptr, itself);

    // Reductions.
    const auto s16 = operands<Qsp16s>(), t16 = operands<Qsp16s>();
    const auto s16c = operands<Qsp16sc>();
    const auto s32 = operands<Qsp32s>(), t32 = operands<Qsp32s>();
    const Exact sum16 = total(s16, itself), sum16c = total(s16c, itself);
    reduction(QSPS(Sum_16s_Sfs), sum16, s16);
    reduction(QSPS(Sum_16s32s_Sfs), sum16, s16);
    reduction(QSPS(Sum_16sc_Sfs), sum16c, s16c);
    reduction(QSPS(Sum_16sc32sc_Sfs), sum16c, s16c);
    reduction(QSPS(Sum_32s_Sfs), total(s32, itself), s32);
    reduction(QSPS(Mean_16s_Sfs), Exact{sum16.re / kLen}, s16);
    reduction(QSPS(Mean_16sc_Sfs), Exact{sum16c.re / kLen, sum16c.im / kLen}, s16c);
    reduction(QSPS(Mean_32s_Sfs), Exact{total(s32, itself).re / kLen}, s32);
    reduction(QSPS(StdDev_16s_Sfs), sampleStdDev(s16), s16);
    reduction(QSPS(StdDev_16s32s_Sfs), sampleStdDev(s16), s16);
    meanStdDev(QSPS(MeanStdDev_16s_Sfs), Exact{sum16.re / kLen}, sampleStdDev(s16), s16);
    meanStdDev(QSPS(MeanStdDev_16s32s_Sfs), Exact{sum16.re / kLen}, sampleStdDev(s16), s16);
    LD largest = 0;
    for (Qsp16s x : s16) largest = std::max(largest, magnitudeOf(x).re);
    reduction(QSPS(Norm_Inf_16s32s_Sfs), Exact{largest}, s16);
    reduction(QSPS(Norm_L1_16s32s_Sfs), total(s16, magnitudeOf), s16);
    reduction(QSPS(Norm_L1_16s64s_Sfs), total(s16, magnitudeOf), s16);
    reduction(QSPS(Norm_L2_16s32s_Sfs), Exact{std::sqrt(total(s16, squareOf).re)}, s16);
    reduction(QSPS(Norm_L2Sqr_16s64s_Sfs), total(s16, squareOf), s16);
    const auto diff = [](Qsp16s x, Qsp16s y) { return i128(x) - i128(y); };
    i128 largestDiff = 0;
    for (int i = 0; i < kLen; ++i) largestDiff = std::max(largestDiff, diff(s16[i], t16[i]) < 0 ? -diff(s16[i], t16[i]) : diff(s16[i], t16[i]));
    const Exact l1Diff = total2(s16, t16, [&](Qsp16s x, Qsp16s y) { const i128 d = diff(x, y); return d < 0 ? -d : d; });
    const Exact sqrDiff = total2(s16, t16, [&](Qsp16s x, Qsp16s y) { return diff(x, y) * diff(x, y); });
    reduction2(QSPS(NormDiff_Inf_16s32s_Sfs), Exact{LD(largestDiff)}, s16, t16);
    reduction2(QSPS(NormDiff_L1_16s32s_Sfs), l1Diff, s16, t16);
    reduction2(QSPS(NormDiff_L1_16s64s_Sfs), l1Diff, s16, t16);
    reduction2(QSPS(NormDiff_L2_16s32s_Sfs), Exact{std::sqrt(sqrDiff.re)}, s16, t16);
    reduction2(QSPS(NormDiff_L2Sqr_16s64s_Sfs), sqrDiff, s16, t16);
    const auto product = [](auto x, auto y) { return i128(x) * i128(y); };
    reduction2(QSPS(DotProd_16s32s_Sfs), total2(s16, t16, product), s16, t16);
    reduction2(QSPS(DotProd_16s32s32s_Sfs), total2(s16, s32, product), s16, s32);
    reduction2(QSPS(DotProd_32s_Sfs), total2(s32, t32, product), s32, t32);
}

// ---------------------------------------------------------------------------
// Scaled functions of the elementary-function, transform and filter
// families. At these scale factors a result is 0 or saturated unless its
// exact value lies beyond 2^+-1000 (only the exponential gets there), so a
// long double evaluation decides every element; the filters run with taps
// whose exact output is half the input, and the Hilbert transform's
// imaginary parts are those of its single-precision form, which the scaled
// form rounds.

// Positive operands (logarithms of integers).
template <class T>
std::vector<T> positive()
{
    std::vector<T> v = nonNegative<T>();
    for (T& x : v) x = x == 0 ? T(1) : x;
    return v;
}

template <class S, class D, class F>
void elementary(const char* name, QspStatus (*fn)(const S*, D*, int, int), const char* nameI,
                QspStatus (*fnI)(D*, int, int), F f, std::vector<S> a)
{
    auto exactAt = [=](int i) { return Exact{f(LD(a[i]))}; };
    auto call = [fn](const S* x, D* y, int n, int, int sf) { return fn(x, y, n, sf); };
    if constexpr (std::is_same_v<S, D>) {
        if (fnI) {
            auto callI = [fnI](D* x, int n, int, int sf) { return fnI(x, n, sf); };
            oneVector<S, D>(name, call, nameI, callI, exactAt, a);
            return;
        }
    }
    oneVector<S, D>(name, call, nameI, nullptr, exactAt, a);
}

// e^x 2^-s rounded and saturated, from log2 of the scaled value (x log2 e
// - s), which no floating type could hold as a value for every x and s.
template <class D>
Qsp64s expRule(LD x, int s)
{
    const LD l2 = x * 1.4426950408889634073599246810018921L - LD(s);
    if (l2 > 80) return std::numeric_limits<D>::max();
    if (l2 < -80) return 0;
    return rule<D>(std::exp2(l2), 0, 1);
}

// The exponential's integer forms: e^x overflows the destination at many
// of these operands, which the warning qspStsWarnOutOfDomain reports.
template <class T>
void exponential(const char* name, QspStatus (*fn)(const T*, T*, int, int), const char* nameI,
                 QspStatus (*fnI)(T*, int, int))
{
    const std::vector<T> a = operands<T>();
    auto check = [a](const std::vector<T>& d, QspStatus st, int sf) {
        ASSERT_TRUE(st == qspStsOk || st == qspStsWarnOutOfDomain) << "status " << st;
        for (int i = 0; i < kLen; ++i)
            ASSERT_EQ(Qsp64s(d[i]), expRule<T>(LD(a[i]), sf)) << "element " << i << ", x = " << Qsp64s(a[i]);
    };
    add(name, [=](int sf) {
        std::vector<T> d(kLen);
        const QspStatus st = fn(a.data(), d.data(), kLen, sf);
        check(d, st, sf);
    });
    add(nameI, [=](int sf) {
        std::vector<T> d = a;
        const QspStatus st = fnI(d.data(), kLen, sf);
        check(d, st, sf);
    });
}

// A filter run by run(pSrc, pDst, sf) on 16-bit (or 32-bit) samples with
// taps that halve them: each result is the exact x/2, scaled.
template <class T, class Run2>
void halving(const char* name, Run2 run)
{
    const std::vector<T> a = operands<T>();
    add(name, [=](int sf) {
        std::vector<T> d = a;
        ASSERT_EQ(run(a, d, sf), qspStsOk);
        expectRule(d.data(), kLen, [&](int i) { return Exact{re(a[i]) / 2, im(a[i]) / 2}; }, sf);
    });
}

// IIR states of order 1 with taps b = (1/2, 0), a = (1, 0), in caller memory
// that lives as long as the case.
template <class Tap, class State>
std::shared_ptr<std::vector<Qsp8u>> halvingIir(QspStatus (*getSize)(int, int*),
                                               QspStatus (*init)(State**, const Tap*, int, const Tap*, Qsp8u*),
                                               State** ppState)
{
    int size = 0;
    EXPECT_EQ(getSize(1, &size), qspStsOk);
    auto mem = std::make_shared<std::vector<Qsp8u>>(static_cast<size_t>(size));
    Tap taps[4] = {};
    if constexpr (isComplex<Tap>) {
        taps[0].re = 0.5;
        taps[2].re = 1;
    } else {
        taps[0] = Tap(0.5);
        taps[2] = Tap(1);
    }
    EXPECT_EQ(init(ppState, taps, 1, nullptr, mem->data()), qspStsOk);
    return mem;
}

// A single-channel IIR form and its in-place form.
template <class T, class Tap, class State>
void iirScaled(const char* name, QspStatus (*fn)(const T*, T*, int, State*, int), const char* nameI,
               QspStatus (*fnI)(T*, int, State*, int), QspStatus (*getSize)(int, int*),
               QspStatus (*init)(State**, const Tap*, int, const Tap*, Qsp8u*))
{
    halving<T>(name, [=](const std::vector<T>& a, std::vector<T>& d, int sf) {
        State* st = nullptr;
        const auto mem = halvingIir<Tap, State>(getSize, init, &st);
        return fn(a.data(), d.data(), kLen, st, sf);
    });
    halving<T>(nameI, [=](const std::vector<T>&, std::vector<T>& d, int sf) {
        State* st = nullptr;
        const auto mem = halvingIir<Tap, State>(getSize, init, &st);
        return fnI(d.data(), kLen, st, sf);
    });
}

// Sums of products of 16-bit operands, exact in 64 bits.
std::vector<Qsp64s> fullConvolution(const std::vector<Qsp16s>& x, const std::vector<Qsp16s>& h)
{
    std::vector<Qsp64s> c(x.size() + h.size() - 1, 0);
    for (size_t i = 0; i < x.size(); ++i)
        for (size_t j = 0; j < h.size(); ++j) c[i + j] += Qsp64s(x[i]) * h[j];
    return c;
}

// Goertzel at relative frequency 0: the plain sum of the samples.
template <class S, class D>
void goertz(const char* name, QspStatus (*fn)(const S*, int, D*, Qsp32f, int))
{
    const std::vector<S> a = operands<S>();
    add(name, [=](int sf) {
        LD sumRe = 0, sumIm = 0;
        for (const S& x : a) sumRe += re(x), sumIm += im(x);
        D got{};
        ASSERT_EQ(fn(a.data(), kLen, &got, 0.0f, sf), qspStsOk);
        expectRule(&got, 1, [&](int) { return Exact{sumRe, sumIm}; }, sf);
    });
}

void registerOtherFamilies()
{
    elementary(QSPS(Ln_16s_Sfs), QSPS(Ln_16s_ISfs), [](LD x) { return std::log(x); }, positive<Qsp16s>());
    elementary(QSPS(Ln_32s_Sfs), QSPS(Ln_32s_ISfs), [](LD x) { return std::log(x); }, positive<Qsp32s>());
    elementary(QSPS(Ln_64s_Sfs), QSPS(Ln_64s_ISfs), [](LD x) { return std::log(x); }, positive<Qsp64s>());
    elementary<Qsp32s, Qsp16s>(QSPS(Ln_32s16s_Sfs), nullptr, nullptr, [](LD x) { return std::log(x); },
                               positive<Qsp32s>());
    elementary<Qsp16s, Qsp16s>(QSPS(Cubrt_16s_Sfs), nullptr, nullptr, [](LD x) { return std::cbrt(x); },
                               operands<Qsp16s>());
    elementary<Qsp32s, Qsp16s>(QSPS(Cubrt_32s16s_Sfs), nullptr, nullptr, [](LD x) { return std::cbrt(x); },
                               operands<Qsp32s>());
    exponential(QSPS(Exp_16s_Sfs), QSPS(Exp_16s_ISfs));
    exponential(QSPS(Exp_32s_Sfs), QSPS(Exp_32s_ISfs));
    exponential(QSPS(Exp_64s_Sfs), QSPS(Exp_64s_ISfs));

    goertz<Qsp16s, Qsp16sc>(QSPS(Goertz_16s_Sfs));
    goertz<Qsp16sc, Qsp16sc>(QSPS(Goertz_16sc_Sfs));
    goertz<Qsp32s, Qsp32sc>(QSPS(Goertz_32s_Sfs));
    goertz<Qsp32sc, Qsp32sc>(QSPS(Goertz_32sc_Sfs));

    add("Hilbert_16s16sc_Sfs", [](int sf) {
        const std::vector<Qsp16s> a = operands<Qsp16s>();
        int specSize = 0, bufSize = 0;
        ASSERT_EQ(qspsHilbertGetSize_32f32fc(kLen, qspAlgHintNone, &specSize, &bufSize), qspStsOk);
        std::vector<Qsp8u> spec(static_cast<size_t>(specSize)), buf(static_cast<size_t>(bufSize) + 1);
        QspsHilbertSpec_32f* pSpec = nullptr;
        ASSERT_EQ(qspsHilbertInit_32f32fc(&pSpec, kLen, qspAlgHintNone, spec.data(), buf.data()), qspStsOk);
        std::vector<Qsp32f> x(a.begin(), a.end());
        std::vector<Qsp32fc> analytic(kLen);
        ASSERT_EQ(qspsHilbert_32f32fc(x.data(), analytic.data(), pSpec, buf.data()), qspStsOk);
        std::vector<Qsp16sc> d(kLen);
        ASSERT_EQ(qspsHilbert_16s16sc_Sfs(a.data(), d.data(), pSpec, buf.data(), sf), qspStsOk);
        expectRule(d.data(), kLen, [&](int i) { return Exact{LD(a[i]), LD(analytic[i].im)}; }, sf);
    });

    add("WTHaarFwd_16s_Sfs", [](int sf) {
        const std::vector<Qsp16s> a = operands<Qsp16s>();
        std::vector<Qsp16s> low(kLen / 2), high(kLen / 2);
        ASSERT_EQ(qspsWTHaarFwd_16s_Sfs(a.data(), low.data(), high.data(), kLen, sf), qspStsOk);
        expectRule(low.data(), kLen / 2, [&](int k) { return Exact{(LD(a[2 * k]) + a[2 * k + 1]) / 2}; }, sf);
        expectRule(high.data(), kLen / 2, [&](int k) { return Exact{(LD(a[2 * k + 1]) - a[2 * k]) / 2}; }, sf);
    });
    add("WTHaarInv_16s_Sfs", [](int sf) {
        const std::vector<Qsp16s> low = operands<Qsp16s>(), high = nonNegative<Qsp16s>();
        std::vector<Qsp16s> d(2 * kLen);
        ASSERT_EQ(qspsWTHaarInv_16s_Sfs(low.data(), high.data(), d.data(), 2 * kLen, sf), qspStsOk);
        expectRule(d.data(), 2 * kLen,
                   [&](int n) { return Exact{LD(low[n / 2]) + (n % 2 ? LD(high[n / 2]) : -LD(high[n / 2]))}; }, sf);
    });

    // Convolution and correlation of two 200-sample operands (exact sums).
    const std::vector<Qsp16s> x0 = operands<Qsp16s>();
    const std::vector<Qsp16s> x(x0.begin(), x0.begin() + 200), h(x0.begin() + 200, x0.begin() + 400);
    const int n = 200, full = 2 * n - 1;
    add("Convolve_16s_Sfs", [=](int sf) {
        const std::vector<Qsp64s> c = fullConvolution(x, h);
        int bufSize = 0;
        ASSERT_EQ(qspsConvolveGetBufferSize(n, n, qsp16s, qspAlgAuto, &bufSize), qspStsOk);
        std::vector<Qsp8u> buf(static_cast<size_t>(bufSize) + 1);
        std::vector<Qsp16s> d(full);
        ASSERT_EQ(qspsConvolve_16s_Sfs(x.data(), h.data(), d.data(), n, n, qspAlgAuto, buf.data(), sf), qspStsOk);
        expectRule(d.data(), full, [&](int i) { return Exact{LD(c[i])}; }, sf);
    });
    add("ConvBiased_16s_Sfs", [=](int sf) {
        const std::vector<Qsp64s> c = fullConvolution(x, h);
        std::vector<Qsp16s> d(full);
        ASSERT_EQ(qspsConvBiased_16s_Sfs(x.data(), h.data(), d.data(), n, n, full, 0, sf), qspStsOk);
        expectRule(d.data(), full, [&](int i) { return Exact{LD(c[i])}; }, sf);
    });
    add("CrossCorrNorm_16s_Sfs", [=](int sf) {
        // r[lag] = sum of h[m+lag] x[m], lags -(n-1) .. n-1: the convolution
        // of h with x reversed.
        const std::vector<Qsp16s> xr(x.rbegin(), x.rend());
        const std::vector<Qsp64s> c = fullConvolution(xr, h);
        int bufSize = 0;
        ASSERT_EQ(qspsCrossCorrNormGetBufferSize(n, n, full, -(n - 1), qsp16s, qspAlgAuto, &bufSize), qspStsOk);
        std::vector<Qsp8u> buf(static_cast<size_t>(bufSize) + 1);
        std::vector<Qsp16s> d(full);
        ASSERT_EQ(qspsCrossCorrNorm_16s_Sfs(x.data(), h.data(), d.data(), n, n, full, -(n - 1), qspAlgAuto,
                                            qspNormNone, buf.data(), sf),
                  qspStsOk);
        expectRule(d.data(), full, [&](int i) { return Exact{LD(c[i])}; }, sf);
    });
    add("AutoCorrNorm_16s_Sfs", [=](int sf) {
        int bufSize = 0;
        ASSERT_EQ(qspsAutoCorrNormGetBufferSize(n, n, qsp16s, qspAlgAuto, &bufSize), qspStsOk);
        std::vector<Qsp8u> buf(static_cast<size_t>(bufSize) + 1);
        std::vector<Qsp16s> d(n);
        ASSERT_EQ(qspsAutoCorrNorm_16s_Sfs(x.data(), d.data(), n, n, qspAlgAuto, qspNormNone, buf.data(), sf),
                  qspStsOk);
        expectRule(d.data(), n, [&](int k) {
            Qsp64s r = 0;
            for (int m = 0; m + k < n; ++m) r += Qsp64s(x[m + k]) * x[m];
            return Exact{LD(r)};
        }, sf);
    });

    iirScaled(QSPS(IIR32f_16s_Sfs), QSPS(IIR32f_16s_ISfs), qspsIIRGetStateSize32f_16s, qspsIIRInit32f_16s);
    iirScaled(QSPS(IIR64f_16s_Sfs), QSPS(IIR64f_16s_ISfs), qspsIIRGetStateSize64f_16s, qspsIIRInit64f_16s);
    iirScaled(QSPS(IIR64f_32s_Sfs), QSPS(IIR64f_32s_ISfs), qspsIIRGetStateSize64f_32s, qspsIIRInit64f_32s);
    iirScaled(QSPS(IIR32fc_16sc_Sfs), QSPS(IIR32fc_16sc_ISfs), qspsIIRGetStateSize32fc_16sc,
              qspsIIRInit32fc_16sc);
    iirScaled(QSPS(IIR64fc_16sc_Sfs), QSPS(IIR64fc_16sc_ISfs), qspsIIRGetStateSize64fc_16sc,
              qspsIIRInit64fc_16sc);
    iirScaled(QSPS(IIR64fc_32sc_Sfs), QSPS(IIR64fc_32sc_ISfs), qspsIIRGetStateSize64fc_32sc,
              qspsIIRInit64fc_32sc);
    // The multi-channel forms with one channel.
    halving<Qsp32s>("IIR64f_32s_PSfs", [](const std::vector<Qsp32s>& a, std::vector<Qsp32s>& d, int sf) {
        QspsIIRState64f_32s* st = nullptr;
        const auto mem = halvingIir<Qsp64f>(qspsIIRGetStateSize64f_32s, qspsIIRInit64f_32s, &st);
        const Qsp32s* src[1] = {a.data()};
        Qsp32s* dst[1] = {d.data()};
        return qspsIIR64f_32s_PSfs(src, dst, kLen, 1, &st, sf);
    });
    halving<Qsp32s>("IIR64f_32s_IPSfs", [](const std::vector<Qsp32s>&, std::vector<Qsp32s>& d, int sf) {
        QspsIIRState64f_32s* st = nullptr;
        const auto mem = halvingIir<Qsp64f>(qspsIIRGetStateSize64f_32s, qspsIIRInit64f_32s, &st);
        Qsp32s* srcDst[1] = {d.data()};
        return qspsIIR64f_32s_IPSfs(srcDst, kLen, 1, &st, sf);
    });

    // Sparse filters with the one tap 1/2 at delay 0 (and no feedback).
    halving<Qsp16s>("FIRSparse32f_16s_Sfs", [](const std::vector<Qsp16s>& a, std::vector<Qsp16s>& d, int sf) {
        int size = 0;
        EXPECT_EQ(qspsFIRSparseGetStateSize32f_16s(1, 0, &size), qspStsOk);
        std::vector<Qsp8u> mem(static_cast<size_t>(size));
        const Qsp32f tap = 0.5f;
        const int pos = 0;
        QspsFIRSparseState32f_16s* st = nullptr;
        EXPECT_EQ(qspsFIRSparseInit32f_16s(&st, &tap, &pos, 1, nullptr, mem.data()), qspStsOk);
        return qspsFIRSparse32f_16s_Sfs(a.data(), d.data(), kLen, st, sf);
    });
    halving<Qsp16s>("IIRSparse32f_16s_Sfs", [](const std::vector<Qsp16s>& a, std::vector<Qsp16s>& d, int sf) {
        int size = 0;
        EXPECT_EQ(qspsIIRSparseGetStateSize32f_16s(1, 0, 0, 0, &size), qspStsOk);
        std::vector<Qsp8u> mem(static_cast<size_t>(size));
        const Qsp32f tap = 0.5f;
        const int pos = 0;
        QspsIIRSparseState32f_16s* st = nullptr;
        EXPECT_EQ(qspsIIRSparseInit32f_16s(&st, &tap, &pos, 1, 0, nullptr, mem.data()), qspStsOk);
        return qspsIIRSparse32f_16s_Sfs(a.data(), d.data(), kLen, st, sf);
    });
}

const std::map<std::string, Run>& allCases()
{
    static const bool registered = (registerAll(), registerOtherFamilies(), true);
    (void)registered;
    return cases();
}

}  // namespace

TEST(BoundedCostScaleFactors, EveryScaledFunctionAtTheExtremes)
{
    for (const auto& [name, run] : allCases()) {
        for (int sf : kScaleFactors) {
            SCOPED_TRACE(name + " scaleFactor " + std::to_string(sf));
            run(sf);
            if (HasFailure()) return;
        }
    }
}

// The API table's implemented Sfs exports are exactly the cases above.
TEST(BoundedCostScaleFactors, EveryScaledExportHasACase)
{
    const auto& all = allCases();
    std::ifstream table(QSP_SOURCE_DIR "/api/qsps.api");
    ASSERT_TRUE(table) << "cannot read the API table";
    std::set<std::string> scaled;
    for (std::string line; std::getline(table, line);) {
        if (line.rfind("+ ", 0) != 0) continue;
        const size_t open = line.find('(');
        size_t start = line.rfind(' ', open) + 1;
        while (line[start] == '*') ++start;
        const std::string name = line.substr(start, open - start);
        if (name.find("Sfs") != std::string::npos) scaled.insert(name);
    }
    EXPECT_GT(scaled.size(), 100u);
    for (const std::string& name : scaled) EXPECT_TRUE(all.count(name)) << name << " has no case here";
    for (const auto& [name, run] : all) EXPECT_TRUE(scaled.count(name)) << name << " is not an implemented export";
}

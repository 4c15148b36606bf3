// SPDX-License-Identifier: BSD-3-Clause
// Threshold: elements compared with a level and replaced. Real forms
// compare values (Abs forms their magnitudes); complex forms compare
// magnitudes and keep the phase. A NaN element compares false and stays.
// Mode checks follow the pointers and the length: the comparison selector
// (qspStsBadArgument), a negative level of an Abs or Inv form and levelLT
// above levelGT (qspStsBadThreshold).
#include "complex_div.h"
#include "forms.h"
#include "roots.h"

namespace y8 {
namespace {

template <class T>
using Reg = typename simd::Vec<T>::Reg;

// Lane helpers: |x| below or above a non-negative level (integers compare
// the magnitude without sign, so that |-32768| is 32768), and the level
// with the sign of x.
template <class T>
Reg<T> absBelow(Reg<T> x, Reg<T> level)
{
    using V = simd::Vec<T>;
    if constexpr (std::is_floating_point_v<T>) return V::cmplt(V::andNot(V::signBit(), x), level);
    else return V::cmplt(V::bitXor(V::abs(x), V::signBit()), V::bitXor(level, V::signBit()));
}
template <class T>
Reg<T> absAbove(Reg<T> x, Reg<T> level)
{
    using V = simd::Vec<T>;
    if constexpr (std::is_floating_point_v<T>) return V::cmpgt(V::andNot(V::signBit(), x), level);
    else return V::cmplt(V::bitXor(level, V::signBit()), V::bitXor(V::abs(x), V::signBit()));
}
template <class T>
Reg<T> levelWithSign(Reg<T> x, Reg<T> level, Reg<T> negLevel)
{
    using V = simd::Vec<T>;
    if constexpr (std::is_floating_point_v<T>) return V::bitOr(level, V::bitAnd(x, V::signBit()));
    else return V::select(V::cmplt(x, V::zero()), level, negLevel);
}

// The same on one element.
template <class T>
bool negative(T x)
{
    if constexpr (std::is_floating_point_v<T>) return __builtin_signbit(x);
    else return x < 0;
}
template <class T>
Qsp64f magnitude(T x)
{
    return negative(x) ? -Qsp64f(x) : Qsp64f(x);
}
// The negated level, wrapping for integers: the most negative level is
// only ever compared as a value, its negation is never used.
template <class T>
T negated(T level)
{
    if constexpr (std::is_floating_point_v<T>) return -level;
    else return T(std::make_unsigned_t<T>(0) - std::make_unsigned_t<T>(level));
}
template <class T>
T signedLevel(T x, T level)
{
    return negative(x) ? negated(level) : level;
}

template <class T>
struct Level {
    using V = simd::Vec<T>;
    Reg<T> l, nl;
    T lv;
    explicit Level(T level) : l(V::splat(level)), nl(V::splat(negated(level))), lv(level) {}
};

template <class T>
struct LT : Level<T> {
    using Level<T>::Level;
    Reg<T> reg(Reg<T> x) const { return simd::Vec<T>::max(this->l, x); }
    T one(T x) const { return x < this->lv ? this->lv : x; }
};
template <class T>
struct GT : Level<T> {
    using Level<T>::Level;
    Reg<T> reg(Reg<T> x) const { return simd::Vec<T>::min(this->l, x); }
    T one(T x) const { return x > this->lv ? this->lv : x; }
};
template <class T>
struct LTVal : Level<T> {
    Reg<T> v;
    T vv;
    LTVal(T level, T value) : Level<T>(level), v(simd::Vec<T>::splat(value)), vv(value) {}
    Reg<T> reg(Reg<T> x) const { return simd::Vec<T>::select(simd::Vec<T>::cmplt(x, this->l), x, v); }
    T one(T x) const { return x < this->lv ? vv : x; }
};
template <class T>
struct GTVal : LTVal<T> {
    using LTVal<T>::LTVal;
    Reg<T> reg(Reg<T> x) const { return simd::Vec<T>::select(simd::Vec<T>::cmpgt(x, this->l), x, this->v); }
    T one(T x) const { return x > this->lv ? this->vv : x; }
};
template <class T>
struct LTAbs : Level<T> {
    using Level<T>::Level;
    Reg<T> reg(Reg<T> x) const
    {
        return simd::Vec<T>::select(absBelow<T>(x, this->l), x, levelWithSign<T>(x, this->l, this->nl));
    }
    T one(T x) const { return magnitude(x) < Qsp64f(this->lv) ? signedLevel(x, this->lv) : x; }
};
template <class T>
struct GTAbs : Level<T> {
    using Level<T>::Level;
    Reg<T> reg(Reg<T> x) const
    {
        return simd::Vec<T>::select(absAbove<T>(x, this->l), x, levelWithSign<T>(x, this->l, this->nl));
    }
    T one(T x) const { return magnitude(x) > Qsp64f(this->lv) ? signedLevel(x, this->lv) : x; }
};
template <class T>
struct LTAbsVal : LTVal<T> {
    using LTVal<T>::LTVal;
    Reg<T> reg(Reg<T> x) const { return simd::Vec<T>::select(absBelow<T>(x, this->l), x, this->v); }
    T one(T x) const { return magnitude(x) < Qsp64f(this->lv) ? this->vv : x; }
};
// Both comparisons look at the original element.
template <class T>
struct LTValGTVal {
    LTVal<T> lo;
    GTVal<T> hi;
    Reg<T> reg(Reg<T> x) const
    {
        using V = simd::Vec<T>;
        return V::select(V::cmpgt(x, hi.l), lo.reg(x), hi.v);
    }
    T one(T x) const { return x > hi.lv ? hi.vv : lo.one(x); }
};
// 1/x, magnitudes below the level taken as the level (sign kept); with a
// zero level a zero element is divided as it is, and noted.
template <class T>
struct LTInv : Level<T> {
    Reg<T>* zeros;
    bool* zero;
    LTInv(T level, Reg<T>* z, bool* zz) : Level<T>(level), zeros(z), zero(zz) {}
    Reg<T> reg(Reg<T> x) const
    {
        using V = simd::Vec<T>;
        *zeros = V::bitOr(*zeros, V::cmpeq(x, V::zero()));
        const Reg<T> y = V::select(absBelow<T>(x, this->l), x, levelWithSign<T>(x, this->l, this->nl));
        return V::div(V::splat(T(1)), y);
    }
    T one(T x) const
    {
        *zero = *zero || x == T(0);
        return T(1) / (magnitude(x) < Qsp64f(this->lv) ? signedLevel(x, this->lv) : x);
    }
};

// Checks, then the kernel.
template <class T, class Op>
QspStatus apply(const T* pSrc, T* pDst, int len, QspStatus modeCheck, Op op)
{
    if (QspStatus s = check::vectors(len, pSrc, pDst)) return s;
    if (modeCheck) return modeCheck;
    elementwise::map1(pSrc, pDst, len, op);
    return qspStsOk;
}

template <class T>
QspStatus notNegative(T level)
{
    return level < T(0) ? qspStsBadThreshold : qspStsOk;
}

template <class T>
QspStatus thresholdT(const T* pSrc, T* pDst, int len, T level, QspCmpOp relOp)
{
    if (QspStatus s = check::vectors(len, pSrc, pDst)) return s;
    if (relOp == qspCmpLess) return apply(pSrc, pDst, len, qspStsOk, LT<T>(level));
    if (relOp == qspCmpGreater) return apply(pSrc, pDst, len, qspStsOk, GT<T>(level));
    return qspStsBadArgument;
}

template <class T>
QspStatus ltInv(const T* pSrc, T* pDst, int len, T level)
{
    if (QspStatus s = check::vectors(len, pSrc, pDst)) return s;
    if (QspStatus s = notNegative(level)) return s;
    Reg<T> zeros = simd::Vec<T>::zero();
    bool zero = false;
    elementwise::map1(pSrc, pDst, len, LTInv<T>(level, &zeros, &zero));
    // Zero elements reach the division only with a zero level.
    return level == T(0) && (zero || simd::Vec<T>::anyMask(zeros)) ? qspStsWarnDivByZero : qspStsOk;
}

// ---------------------------------------------------------------------------
// Complex elements: magnitudes compared, the phase kept.

inline Qsp64f cabs(Qsp32fc z) { return __builtin_sqrt(Qsp64f(z.re) * z.re + Qsp64f(z.im) * z.im); }
inline Qsp64f cabs(Qsp64fc z) { return roots::hypot(z.re, z.im); }

// z scaled to magnitude m (0 has no phase: it becomes m on the real axis).
template <class C>
C withMagnitude(C z, Qsp64f m, Qsp64f mz)
{
    using P = ops::Part<C>;
    if (mz == 0) return {P(m), P(0)};
    const Qsp64f k = m / mz;
    return {P(z.re * k), P(z.im * k)};
}

enum class Cmp { Below, Above };

template <Cmp Rel, class C, class P>
QspStatus complexLevel(const C* pSrc, C* pDst, int len, P level)
{
    if (QspStatus s = check::vectors(len, pSrc, pDst)) return s;
    for (int i = 0; i < len; ++i) {
        const C z = pSrc[i];
        const Qsp64f m = cabs(z);
        const bool hit = Rel == Cmp::Below ? m < level : m > level;
        pDst[i] = hit ? withMagnitude(z, level, m) : z;
    }
    return qspStsOk;
}

template <Cmp Rel, class C, class P>
QspStatus complexValue(const C* pSrc, C* pDst, int len, P level, C value)
{
    if (QspStatus s = check::vectors(len, pSrc, pDst)) return s;
    for (int i = 0; i < len; ++i) {
        const C z = pSrc[i];
        const Qsp64f m = cabs(z);
        const bool hit = Rel == Cmp::Below ? m < level : m > level;
        pDst[i] = hit ? value : z;
    }
    return qspStsOk;
}

template <class C, class P>
QspStatus complexT(const C* pSrc, C* pDst, int len, P level, QspCmpOp relOp)
{
    if (QspStatus s = check::vectors(len, pSrc, pDst)) return s;
    if (relOp == qspCmpLess) return complexLevel<Cmp::Below>(pSrc, pDst, len, level);
    if (relOp == qspCmpGreater) return complexLevel<Cmp::Above>(pSrc, pDst, len, level);
    return qspStsBadArgument;
}

template <class C, class P>
QspStatus complexInv(const C* pSrc, C* pDst, int len, P level)
{
    if (QspStatus s = check::vectors(len, pSrc, pDst)) return s;
    if (QspStatus s = notNegative(level)) return s;
    bool zero = false;
    for (int i = 0; i < len; ++i) {
        const C z = pSrc[i];
        const Qsp64f m = cabs(z);
        zero = zero || m == 0;
        pDst[i] = cdiv::quotient(m < level ? withMagnitude(z, level, m) : z, C{1, 0});
    }
    return level == P(0) && zero ? qspStsWarnDivByZero : qspStsOk;
}

}  // namespace

// Threshold with a comparison selector.
QspStatus qspsThreshold_16s(const Qsp16s* pSrc, Qsp16s* pDst, int len, int level, QspCmpOp relOp)
{
    return thresholdT(pSrc, pDst, len, Qsp16s(level), relOp);
}
QspStatus qspsThreshold_16s_I(Qsp16s* pSrcDst, int len, int level, QspCmpOp relOp)
{
    return thresholdT(pSrcDst, pSrcDst, len, Qsp16s(level), relOp);
}
QspStatus qspsThreshold_32f(const Qsp32f* pSrc, Qsp32f* pDst, int len, Qsp32f level, QspCmpOp relOp)
{
    return thresholdT(pSrc, pDst, len, level, relOp);
}
QspStatus qspsThreshold_32f_I(Qsp32f* pSrcDst, int len, Qsp32f level, QspCmpOp relOp)
{
    return thresholdT(pSrcDst, pSrcDst, len, level, relOp);
}
QspStatus qspsThreshold_64f(const Qsp64f* pSrc, Qsp64f* pDst, int len, Qsp64f level, QspCmpOp relOp)
{
    return thresholdT(pSrc, pDst, len, level, relOp);
}
QspStatus qspsThreshold_64f_I(Qsp64f* pSrcDst, int len, Qsp64f level, QspCmpOp relOp)
{
    return thresholdT(pSrcDst, pSrcDst, len, level, relOp);
}
QspStatus qspsThreshold_32fc(const Qsp32fc* pSrc, Qsp32fc* pDst, int len, Qsp32f level, QspCmpOp relOp)
{
    return complexT(pSrc, pDst, len, level, relOp);
}
QspStatus qspsThreshold_32fc_I(Qsp32fc* pSrcDst, int len, Qsp32f level, QspCmpOp relOp)
{
    return complexT(pSrcDst, pSrcDst, len, level, relOp);
}
QspStatus qspsThreshold_64fc(const Qsp64fc* pSrc, Qsp64fc* pDst, int len, Qsp64f level, QspCmpOp relOp)
{
    return complexT(pSrc, pDst, len, level, relOp);
}
QspStatus qspsThreshold_64fc_I(Qsp64fc* pSrcDst, int len, Qsp64f level, QspCmpOp relOp)
{
    return complexT(pSrcDst, pSrcDst, len, level, relOp);
}

// LT and GT.
#define QSP_REAL_LEVEL(NAME, OP, T, LEVEL)                                                      \
    QspStatus qspsThreshold_##NAME(const T* pSrc, T* pDst, int len, LEVEL level)               \
    {                                                                                          \
        return apply(pSrc, pDst, len, qspStsOk, OP<T>(T(level)));                              \
    }                                                                                          \
    QspStatus qspsThreshold_##NAME##_I(T* pSrcDst, int len, LEVEL level)                       \
    {                                                                                          \
        return apply(pSrcDst, pSrcDst, len, qspStsOk, OP<T>(T(level)));                        \
    }
QSP_REAL_LEVEL(LT_16s, LT, Qsp16s, int)
QSP_REAL_LEVEL(LT_32s, LT, Qsp32s, Qsp32s)
QSP_REAL_LEVEL(LT_32f, LT, Qsp32f, Qsp32f)
QSP_REAL_LEVEL(LT_64f, LT, Qsp64f, Qsp64f)
QSP_REAL_LEVEL(GT_16s, GT, Qsp16s, int)
QSP_REAL_LEVEL(GT_32s, GT, Qsp32s, Qsp32s)
QSP_REAL_LEVEL(GT_32f, GT, Qsp32f, Qsp32f)
QSP_REAL_LEVEL(GT_64f, GT, Qsp64f, Qsp64f)
#undef QSP_REAL_LEVEL

#define QSP_COMPLEX_LEVEL(NAME, REL, C, P)                                                     \
    QspStatus qspsThreshold_##NAME(const C* pSrc, C* pDst, int len, P level)                   \
    {                                                                                          \
        return complexLevel<REL>(pSrc, pDst, len, level);                                      \
    }                                                                                          \
    QspStatus qspsThreshold_##NAME##_I(C* pSrcDst, int len, P level)                           \
    {                                                                                          \
        return complexLevel<REL>(pSrcDst, pSrcDst, len, level);                                \
    }
QSP_COMPLEX_LEVEL(LT_32fc, Cmp::Below, Qsp32fc, Qsp32f)
QSP_COMPLEX_LEVEL(LT_64fc, Cmp::Below, Qsp64fc, Qsp64f)
QSP_COMPLEX_LEVEL(GT_32fc, Cmp::Above, Qsp32fc, Qsp32f)
QSP_COMPLEX_LEVEL(GT_64fc, Cmp::Above, Qsp64fc, Qsp64f)
#undef QSP_COMPLEX_LEVEL

// LTVal and GTVal.
#define QSP_REAL_VALUE(NAME, OP, T, ARG)                                                       \
    QspStatus qspsThreshold_##NAME(const T* pSrc, T* pDst, int len, ARG level, ARG value)      \
    {                                                                                          \
        return apply(pSrc, pDst, len, qspStsOk, OP<T>(T(level), T(value)));                    \
    }                                                                                          \
    QspStatus qspsThreshold_##NAME##_I(T* pSrcDst, int len, ARG level, ARG value)              \
    {                                                                                          \
        return apply(pSrcDst, pSrcDst, len, qspStsOk, OP<T>(T(level), T(value)));              \
    }
QSP_REAL_VALUE(LTVal_16s, LTVal, Qsp16s, int)
QSP_REAL_VALUE(LTVal_32f, LTVal, Qsp32f, Qsp32f)
QSP_REAL_VALUE(LTVal_64f, LTVal, Qsp64f, Qsp64f)
QSP_REAL_VALUE(GTVal_16s, GTVal, Qsp16s, int)
QSP_REAL_VALUE(GTVal_32f, GTVal, Qsp32f, Qsp32f)
QSP_REAL_VALUE(GTVal_64f, GTVal, Qsp64f, Qsp64f)
#undef QSP_REAL_VALUE

#define QSP_COMPLEX_VALUE(NAME, REL, C, P)                                                     \
    QspStatus qspsThreshold_##NAME(const C* pSrc, C* pDst, int len, P level, C value)          \
    {                                                                                          \
        return complexValue<REL>(pSrc, pDst, len, level, value);                               \
    }                                                                                          \
    QspStatus qspsThreshold_##NAME##_I(C* pSrcDst, int len, P level, C value)                  \
    {                                                                                          \
        return complexValue<REL>(pSrcDst, pSrcDst, len, level, value);                         \
    }
QSP_COMPLEX_VALUE(LTVal_32fc, Cmp::Below, Qsp32fc, Qsp32f)
QSP_COMPLEX_VALUE(LTVal_64fc, Cmp::Below, Qsp64fc, Qsp64f)
QSP_COMPLEX_VALUE(GTVal_32fc, Cmp::Above, Qsp32fc, Qsp32f)
QSP_COMPLEX_VALUE(GTVal_64fc, Cmp::Above, Qsp64fc, Qsp64f)
#undef QSP_COMPLEX_VALUE

// LTAbs, GTAbs, LTAbsVal: a negative level is an error.
#define QSP_ABS_LEVEL(NAME, OP, T, ARG)                                                        \
    QspStatus qspsThreshold_##NAME(const T* pSrc, T* pDst, int len, ARG level)                 \
    {                                                                                          \
        return apply(pSrc, pDst, len, notNegative(level), OP<T>(T(level)));                    \
    }                                                                                          \
    QspStatus qspsThreshold_##NAME##_I(T* pSrcDst, int len, ARG level)                         \
    {                                                                                          \
        return apply(pSrcDst, pSrcDst, len, notNegative(level), OP<T>(T(level)));              \
    }
QSP_ABS_LEVEL(LTAbs_16s, LTAbs, Qsp16s, int)
QSP_ABS_LEVEL(LTAbs_32s, LTAbs, Qsp32s, Qsp32s)
QSP_ABS_LEVEL(LTAbs_32f, LTAbs, Qsp32f, Qsp32f)
QSP_ABS_LEVEL(LTAbs_64f, LTAbs, Qsp64f, Qsp64f)
QSP_ABS_LEVEL(GTAbs_16s, GTAbs, Qsp16s, int)
QSP_ABS_LEVEL(GTAbs_32s, GTAbs, Qsp32s, Qsp32s)
QSP_ABS_LEVEL(GTAbs_32f, GTAbs, Qsp32f, Qsp32f)
QSP_ABS_LEVEL(GTAbs_64f, GTAbs, Qsp64f, Qsp64f)
#undef QSP_ABS_LEVEL

#define QSP_ABS_VALUE(NAME, T, ARG)                                                            \
    QspStatus qspsThreshold_##NAME(const T* pSrc, T* pDst, int len, ARG level, ARG value)      \
    {                                                                                          \
        return apply(pSrc, pDst, len, notNegative(level), LTAbsVal<T>(T(level), T(value)));    \
    }                                                                                          \
    QspStatus qspsThreshold_##NAME##_I(T* pSrcDst, int len, ARG level, ARG value)              \
    {                                                                                          \
        return apply(pSrcDst, pSrcDst, len, notNegative(level), LTAbsVal<T>(T(level), T(value))); \
    }
QSP_ABS_VALUE(LTAbsVal_16s, Qsp16s, int)
QSP_ABS_VALUE(LTAbsVal_32s, Qsp32s, Qsp32s)
QSP_ABS_VALUE(LTAbsVal_32f, Qsp32f, Qsp32f)
QSP_ABS_VALUE(LTAbsVal_64f, Qsp64f, Qsp64f)
#undef QSP_ABS_VALUE

QspStatus qspsThreshold_LTAbs_32f_L(const Qsp32f* pSrc, Qsp32f* pDst, Qsp64s len, Qsp32f level)
{
    return chunked<Qsp32f>(len, [=](Qsp64s at, int n) { return qspsThreshold_LTAbs_32f(pSrc + at, pDst + at, n, level); });
}
QspStatus qspsThreshold_LTAbs_32f_I_L(Qsp32f* pSrcDst, Qsp64s len, Qsp32f level)
{
    return chunked<Qsp32f>(len, [=](Qsp64s at, int n) { return qspsThreshold_LTAbs_32f_I(pSrcDst + at, n, level); });
}
QspStatus qspsThreshold_LTAbs_64f_L(const Qsp64f* pSrc, Qsp64f* pDst, Qsp64s len, Qsp64f level)
{
    return chunked<Qsp64f>(len, [=](Qsp64s at, int n) { return qspsThreshold_LTAbs_64f(pSrc + at, pDst + at, n, level); });
}
QspStatus qspsThreshold_LTAbs_64f_I_L(Qsp64f* pSrcDst, Qsp64s len, Qsp64f level)
{
    return chunked<Qsp64f>(len, [=](Qsp64s at, int n) { return qspsThreshold_LTAbs_64f_I(pSrcDst + at, n, level); });
}

// LTInv.
QspStatus qspsThreshold_LTInv_32f(const Qsp32f* pSrc, Qsp32f* pDst, int len, Qsp32f level)
{
    return ltInv(pSrc, pDst, len, level);
}
QspStatus qspsThreshold_LTInv_32f_I(Qsp32f* pSrcDst, int len, Qsp32f level) { return ltInv(pSrcDst, pSrcDst, len, level); }
QspStatus qspsThreshold_LTInv_64f(const Qsp64f* pSrc, Qsp64f* pDst, int len, Qsp64f level)
{
    return ltInv(pSrc, pDst, len, level);
}
QspStatus qspsThreshold_LTInv_64f_I(Qsp64f* pSrcDst, int len, Qsp64f level) { return ltInv(pSrcDst, pSrcDst, len, level); }
QspStatus qspsThreshold_LTInv_32fc(const Qsp32fc* pSrc, Qsp32fc* pDst, int len, Qsp32f level)
{
    return complexInv(pSrc, pDst, len, level);
}
QspStatus qspsThreshold_LTInv_32fc_I(Qsp32fc* pSrcDst, int len, Qsp32f level)
{
    return complexInv(pSrcDst, pSrcDst, len, level);
}
QspStatus qspsThreshold_LTInv_64fc(const Qsp64fc* pSrc, Qsp64fc* pDst, int len, Qsp64f level)
{
    return complexInv(pSrc, pDst, len, level);
}
QspStatus qspsThreshold_LTInv_64fc_I(Qsp64fc* pSrcDst, int len, Qsp64f level)
{
    return complexInv(pSrcDst, pSrcDst, len, level);
}

// LTValGTVal: levelLT above levelGT is an error. The 16-bit levels and
// values arrive sign-extended to 32 bits.
#define QSP_LT_GT(NAME, T, ARG)                                                                            \
    QspStatus qspsThreshold_##NAME(const T* pSrc, T* pDst, int len, ARG levelLT, ARG valueLT, ARG levelGT, \
                                   ARG valueGT)                                                            \
    {                                                                                                      \
        return apply(pSrc, pDst, len, levelLT > levelGT ? qspStsBadThreshold : qspStsOk,                  \
                     LTValGTVal<T>{LTVal<T>(T(levelLT), T(valueLT)), GTVal<T>(T(levelGT), T(valueGT))});   \
    }                                                                                                      \
    QspStatus qspsThreshold_##NAME##_I(T* pSrcDst, int len, ARG levelLT, ARG valueLT, ARG levelGT, ARG valueGT) \
    {                                                                                                      \
        return apply(pSrcDst, pSrcDst, len, levelLT > levelGT ? qspStsBadThreshold : qspStsOk,            \
                     LTValGTVal<T>{LTVal<T>(T(levelLT), T(valueLT)), GTVal<T>(T(levelGT), T(valueGT))});   \
    }
QSP_LT_GT(LTValGTVal_16s, Qsp16s, int)
QSP_LT_GT(LTValGTVal_32s, Qsp32s, Qsp32s)
QSP_LT_GT(LTValGTVal_32f, Qsp32f, Qsp32f)
QSP_LT_GT(LTValGTVal_64f, Qsp64f, Qsp64f)
#undef QSP_LT_GT

}  // namespace y8

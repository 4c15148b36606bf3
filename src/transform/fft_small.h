// The straight-line kernels of the small tier (N <= 32): one function per
// order, with their twiddles as compile-time constants.
#pragma once
#include "fft_engine.h"

namespace fft {

// ---------------------------------------------------------------- small

// The straight-line kernels, orders 0..5. Orders 0..3 are written out on
// scalars; orders 4 and 5 run the radix-4 passes on registers with a
// built-in twiddle table and a buffer on the stack. Scaled variants multiply
// by the factor as they store.

// Pass twiddles of a 2^Order-point transform, block-split, computed by the
// compiler from the library's sine and cosine.
template <class T, int Order>
struct SmallPassTwiddles {
    C<T> w[3 * (1 << Order)];
};

template <class T, int Order>
constexpr SmallPassTwiddles<T, Order> makeSmallPassTwiddles()
{
    SmallPassTwiddles<T, Order> t{};
    constexpr Qsp64s L = simd::Vec<T>::lanes;
    Qsp64s at = 0;
    for (Qsp64s cur = Qsp64s(1) << Order; cur >= 8; cur >>= 2) {
        const Qsp64s m = cur >> 2, mp = (m + L - 1) / L * L;
        // The float at flat position i of an array of pairs is part i % 2
        // of element i / 2.
        auto put = [&](Qsp64s base, Qsp64s i, T v) {
            C<T>& e = t.w[base + i / 2];
            (i % 2 ? e.im : e.re) = v;
        };
        for (int j = 1; j <= 3; ++j) {
            const Qsp64s base = at + (j - 1) * mp;
            for (Qsp64s p = 0; p < mp; ++p) {
                // exp(-2 pi i j p / cur) = (cos, sin) of pi * (-2 j p / cur)
                const mathfn::SinCosExt sc = p < m ? mathfn::sinCosPiExt(-2.0 * double(j * p) / double(cur))
                                                   : mathfn::SinCosExt{0.0L, 1.0L};
                put(base, (p / L) * 2 * L + p % L, T(sc.c));
                put(base, (p / L) * 2 * L + p % L + L, T(sc.s));
            }
        }
        at += 3 * mp;
    }
    return t;
}

template <class T, int Order>
inline constexpr SmallPassTwiddles<T, Order> kSmallPass = makeSmallPassTwiddles<T, Order>();

// W_32^k, k < 32, for the written-out kernels.
template <class T>
struct SmallW {
    C<T> w[32];
};

template <class T>
constexpr SmallW<T> makeSmallW()
{
    SmallW<T> t{};
    for (int k = 0; k < 32; ++k) {
        const mathfn::SinCosExt sc = mathfn::sinCosPiExt(-2.0 * k / 32.0);
        t.w[k] = {T(sc.c), T(sc.s)};
    }
    return t;
}

template <class T>
inline constexpr SmallW<T> kSmallW = makeSmallW<T>();

// Values of the written-out kernels: scalar pairs in single precision, one
// register per complex value in double precision.
struct CD {
    __m128d v;
};

template <class T>
struct SmallOps {
    using Value = C<T>;
    static Value load(const C<T>* p) { return *p; }
    static void store(C<T>* p, Value v) { *p = v; }
    static Value add(Value a, Value b) { return {a.re + b.re, a.im + b.im}; }
    static Value sub(Value a, Value b) { return {a.re - b.re, a.im - b.im}; }
    static Value scale(Value v, T f) { return {v.re * f, v.im * f}; }
    // -i*v forward, +i*v inverse.
    template <bool Inv>
    static Value rot(Value v) { return Inv ? Value{-v.im, v.re} : Value{v.im, -v.re}; }
    // v * w, or v * conj(w) for the inverse.
    template <bool Inv>
    static Value mulConst(Value v, C<T> w)
    {
        const T wi = Inv ? -w.im : w.im;
        return {v.re * w.re - v.im * wi, v.re * wi + v.im * w.re};
    }
    // v * exp(-+ i pi/4) and v * exp(-+ 3 i pi/4), times sqrt 2.
    template <bool Inv>
    static Value eighth(Value v) { return Inv ? Value{v.re - v.im, v.re + v.im} : Value{v.re + v.im, v.im - v.re}; }
    template <bool Inv>
    static Value threeEighths(Value v)
    {
        return Inv ? Value{-(v.re + v.im), v.re - v.im} : Value{v.im - v.re, -(v.re + v.im)};
    }
};

template <>
struct SmallOps<double> {
    using V = simd::Vec<double>;
    using Value = CD;
    static Value load(const C<double>* p) { return {V::loadu(&p->re)}; }
    static void store(C<double>* p, Value v) { V::storeu(&p->re, v.v); }
    static Value add(Value a, Value b) { return {V::add(a.v, b.v)}; }
    static Value sub(Value a, Value b) { return {V::sub(a.v, b.v)}; }
    static Value scale(Value v, double f) { return {V::mul(v.v, V::splat(f))}; }
    template <bool Inv>
    static Value rot(Value v)
    {
        return {Inv ? V::negEven(V::swapParts(v.v)) : V::negOdd(V::swapParts(v.v))};
    }
    template <bool Inv>
    static Value mulConst(Value v, C<double> w)
    {
        // (re wr - im wi, im wr + re wi) as addsub(v wr, swap(v) wi)
        return {V::addsub(V::mul(v.v, V::splat(w.re)), V::mul(V::swapParts(v.v), V::splat(Inv ? -w.im : w.im)))};
    }
    template <bool Inv>
    static Value eighth(Value v)
    {
        // addsub(swap v, v) = (im - re, re + im); addsub(v, swap v) = (re - im, im + re)
        return {Inv ? V::addsub(v.v, V::swapParts(v.v)) : V::swapParts(V::addsub(V::swapParts(v.v), v.v))};
    }
    template <bool Inv>
    static Value threeEighths(Value v)
    {
        return {Inv ? V::negEven(V::swapParts(V::addsub(v.v, V::swapParts(v.v))))
                    : V::negOdd(V::addsub(V::swapParts(v.v), v.v))};
    }
};

// Everything called here is inlined (flatten), so that the passes of
// orders 4 and 5 unroll for their fixed length.
template <class T, bool Inv, int Order, bool Scaled>
__attribute__((flatten)) void ownsFftSmall(const C<T>* src, C<T>* dst, T f)
{
    using O = SmallOps<T>;
    using Val = typename O::Value;
    auto put = [&](int k, Val v) { O::store(dst + k, Scaled ? O::scale(v, f) : v); };
    if constexpr (Order == 0) {
        put(0, O::load(src));
    } else if constexpr (Order == 1) {
        const Val a = O::load(src), b = O::load(src + 1);
        put(0, O::add(a, b));
        put(1, O::sub(a, b));
    } else if constexpr (Order == 2) {
        const Val x0 = O::load(src), x1 = O::load(src + 1), x2 = O::load(src + 2), x3 = O::load(src + 3);
        const Val apc = O::add(x0, x2), amc = O::sub(x0, x2);
        const Val bpd = O::add(x1, x3), jbd = O::template rot<Inv>(O::sub(x1, x3));
        put(0, O::add(apc, bpd));
        put(1, O::add(amc, jbd));
        put(2, O::sub(apc, bpd));
        put(3, O::sub(amc, jbd));
    } else if constexpr (Order == 3) {
        // Two 4-point transforms (even and odd samples) and the 8-point
        // twiddles (1 -+ i)/sqrt 2, -+i, (-1 -+ i)/sqrt 2.
        constexpr T h = T(0.707106781186547524400844362104849039L);
        Val e[4], o[4];
        for (int par = 0; par < 2; ++par) {
            const Val x0 = O::load(src + par), x1 = O::load(src + par + 2), x2 = O::load(src + par + 4),
                      x3 = O::load(src + par + 6);
            const Val apc = O::add(x0, x2), amc = O::sub(x0, x2), bpd = O::add(x1, x3);
            const Val jbd = O::template rot<Inv>(O::sub(x1, x3));
            Val* r = par ? o : e;
            r[0] = O::add(apc, bpd);
            r[1] = O::add(amc, jbd);
            r[2] = O::sub(apc, bpd);
            r[3] = O::sub(amc, jbd);
        }
        const Val t[4] = {o[0], O::scale(O::template eighth<Inv>(o[1]), h), O::template rot<Inv>(o[2]),
                          O::scale(O::template threeEighths<Inv>(o[3]), h)};
        for (int k = 0; k < 4; ++k) {
            put(k, O::add(e[k], t[k]));
            put(k + 4, O::sub(e[k], t[k]));
        }
    } else if constexpr (sizeof(T) == 8) {
        // A radix-4 level with the twiddles W_n^(kp) as constants, then
        // 4- or 8-point transforms of the columns, all in registers.
        constexpr int n = 1 << Order, m = n / 4;
        Val y[n];
        for (int p = 0; p < m; ++p) {
            const Val x0 = O::load(src + p), x1 = O::load(src + p + m), x2 = O::load(src + p + 2 * m),
                      x3 = O::load(src + p + 3 * m);
            const Val apc = O::add(x0, x2), amc = O::sub(x0, x2), bpd = O::add(x1, x3);
            const Val jbd = O::template rot<Inv>(O::sub(x1, x3));
            const Val r[4] = {O::add(apc, bpd), O::add(amc, jbd), O::sub(apc, bpd), O::sub(amc, jbd)};
            for (int k = 0; k < 4; ++k)
                y[4 * p + k] = k * p == 0 ? r[k] : O::template mulConst<Inv>(r[k], kSmallW<T>.w[(k * p * (32 / n)) & 31]);
        }
        constexpr T h = T(0.707106781186547524400844362104849039L);
        for (int k = 0; k < 4; ++k) {
            if constexpr (m == 4) {
                const Val apc = O::add(y[k], y[8 + k]), amc = O::sub(y[k], y[8 + k]), bpd = O::add(y[4 + k], y[12 + k]);
                const Val jbd = O::template rot<Inv>(O::sub(y[4 + k], y[12 + k]));
                put(k, O::add(apc, bpd));
                put(k + 4, O::add(amc, jbd));
                put(k + 8, O::sub(apc, bpd));
                put(k + 12, O::sub(amc, jbd));
            } else {
                // 8 points y[4p + k], p = 0..7: radix 2, eighth turns, two 4-point transforms.
                Val a[4], b[4];
                for (int j = 0; j < 4; ++j) {
                    a[j] = O::add(y[4 * j + k], y[4 * (j + 4) + k]);
                    b[j] = O::sub(y[4 * j + k], y[4 * (j + 4) + k]);
                }
                b[1] = O::scale(O::template eighth<Inv>(b[1]), h);
                b[2] = O::template rot<Inv>(b[2]);
                b[3] = O::scale(O::template threeEighths<Inv>(b[3]), h);
                for (int par = 0; par < 2; ++par) {
                    const Val* q = par ? b : a;
                    const Val apc = O::add(q[0], q[2]), amc = O::sub(q[0], q[2]), bpd = O::add(q[1], q[3]);
                    const Val jbd = O::template rot<Inv>(O::sub(q[1], q[3]));
                    // X[k + 4(2r + par)]
                    put(k + 4 * par, O::add(apc, bpd));
                    put(k + 4 * (2 + par), O::add(amc, jbd));
                    put(k + 4 * (4 + par), O::sub(apc, bpd));
                    put(k + 4 * (6 + par), O::sub(amc, jbd));
                }
            }
        }
    } else {
        // Single precision, 16 and 32 points: the first radix-4 pass into a
        // buffer on the stack, then the last radix-4 or radix-8 pass into the
        // destination (so src may be dst).
        constexpr Qsp64s n = Qsp64s(1) << Order;
        alignas(16) C<T> buf[n];
        ownsPass4First<T, Inv, true>({src, src + n / 2}, halvesOf(buf, n), n, kSmallPass<T, Order>.w);
        if constexpr (Order == 4)
            ownsPass4Last<T, Inv, false, true>({buf, buf + n / 2}, halvesOf(dst, n), n);
        else
            ownsPass8Last<T, Inv, false, true>({buf, buf + n / 2}, halvesOf(dst, n), n);
        if constexpr (Scaled)
            for (Qsp64s i = 0; i < n; ++i) O::store(dst + i, O::scale(O::load(dst + i), f));
    }
}

// A kernel returns qspStsOk, so that an entry point can end in a jump to it.
template <class T, bool Inv>
using SmallKernel = QspStatus (*)(const C<T>*, C<T>*, T);

template <class T, bool Inv, int Order, bool Scaled>
QspStatus ownsFftSmallEntry(const C<T>* src, C<T>* dst, T f)
{
    ownsFftSmall<T, Inv, Order, Scaled>(src, dst, f);
    return qspStsOk;
}

// The twelve straight-line kernels, at 2 * order + scaled.
template <class T, bool Inv>
inline constexpr SmallKernel<T, Inv> kSmallKernels[12] = {
    ownsFftSmallEntry<T, Inv, 0, false>, ownsFftSmallEntry<T, Inv, 0, true>,
    ownsFftSmallEntry<T, Inv, 1, false>, ownsFftSmallEntry<T, Inv, 1, true>,
    ownsFftSmallEntry<T, Inv, 2, false>, ownsFftSmallEntry<T, Inv, 2, true>,
    ownsFftSmallEntry<T, Inv, 3, false>, ownsFftSmallEntry<T, Inv, 3, true>,
    ownsFftSmallEntry<T, Inv, 4, false>, ownsFftSmallEntry<T, Inv, 4, true>,
    ownsFftSmallEntry<T, Inv, 5, false>, ownsFftSmallEntry<T, Inv, 5, true>,
};

// A small transform, src to dst (src may equal dst), scaled by f when
// scaled is set.
template <class T, bool Inv>
inline QspStatus ownsSmall(int order, bool scaled, const C<T>* src, C<T>* dst, T f)
{
    return kSmallKernels<T, Inv>[2 * order + int(scaled)](src, dst, f);
}

}  // namespace fft

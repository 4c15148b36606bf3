// SPDX-License-Identifier: BSD-3-Clause
// The prime-factor plan: a complex transform of length n = n1 * n2 whose
// factors are the plan's list (radices 2, 3, 4, 5, 6, 7 with their own
// butterflies, any other odd prime with the generic one).
//
// The list is cut in two: its first factors multiply to n1, the rest to n2,
// with n1 close to sqrt(n). With x[n1' n2 + n2'] the transform is
//   step 1: for every column n2', the n1-point transform over n1';
//   step 2: multiplication by W_n^(n2' k1);
//   step 3: for every row k1, the n2-point transform over n2', which lands
//           at X[k1 + n1 k2].
// Each step works on as many columns (or rows) at once as a register has
// lanes, one column per lane: every butterfly is plain vertical arithmetic.
// A batch is copied into a small scratch area (two arrays of the longer
// sub-length, cache resident), transformed there by self-sorting radix
// passes, and written out: step 1 writes the batch transposed into the work
// buffer (rows k1 of n2 values, real and imaginary parts in two planes), so
// that step 3 reads its rows with the same plain loads. When a count of
// columns is not a multiple of the lanes, the last batch overlaps the one
// before it (recomputing identical values); below one register of columns
// the batch runs with idle lanes.
//
// A pass of radix p at stride s over a sub-length l (m = l/(s p) groups)
// computes, for q < m and k < s, from a_j = x[k + s (q + j m)]:
//   y[k + s (p q + j)] = W_l^(q j) * sum_i a_i W_p^(i j).
#pragma once
#include "dft_factor.h"
#include "dft_lanes.h"
#include "dft_layout.h"

namespace dft {

// One factor of the plan, with what its pass needs.
struct FactorEntry {
    Qsp32s factor;
    Qsp32s stride;           // s: product of the factors before it in its group
    Qsp32s groups;           // m: the groups of the pass
    Qsp32s reserved;
    const void* twiddles;    // (m-1)(p-1) lane pairs W_l^(q j), q >= 1; null when m == 1
    const void* constants;   // p lane pairs (cos, sin)(2 pi j / p) for the generic butterfly
};

struct Plan {
    Qsp32s countMinus1;      // number of factors - 1
    Qsp32u inUse;
    Qsp32s n;                // the length transformed
    Qsp32s split;            // factors [0, split) make the n1-point transform
    Qsp32s n1, n2;
    Qsp32s scratch;          // lane pairs per scratch array
    Qsp32s reserved;
    const void* outer;       // W_n^(n2' k1) at n2' n1 + k1: n real parts, then n imaginary parts
    FactorEntry factor[kMaxFactors];
};

// Where the plan's tables go in the record and what it needs elsewhere;
// byte offsets from the start of the plan's table area.
struct PlanLayout {
    FactorList list;
    int split = 1;
    Qsp64s n1 = 1, n2 = 1;
    Qsp64s twiddleAt[kMaxFactors] = {};
    Qsp64s constantsAt[kMaxFactors] = {};
    Qsp64s outerAt = 0;
    Qsp64s tableBytes = 0;   // record bytes of all tables
    Qsp64s scratch = 0;      // lane pairs per scratch array
    Qsp64s workBytes = 0;    // planes + scratch (aligned to 64 inside)
};

template <class T>
constexpr Qsp64s kPairBytes = sizeof(typename Lanes<T>::X);

// The cut of the list: n1 as close to sqrt(n) as the prefixes allow,
// preferring both parts at least one register of lanes wide.
inline int chooseSplit(const FactorList& f, int lanes)
{
    double best = 1e300;
    int split = 1;
    Qsp64s total = 1;
    for (int i = 0; i < f.count; ++i) total *= f.f[i];
    Qsp64s n1 = 1;
    for (int s = 1; s < f.count; ++s) {
        n1 *= f.f[s - 1];
        const Qsp64s n2 = total / n1;
        double score = n1 > n2 ? double(n1) / double(n2) : double(n2) / double(n1);
        if (n1 < lanes || n2 < lanes) score *= 1e6;
        if (score < best) {
            best = score;
            split = s;
        }
    }
    return split;
}

template <class T>
PlanLayout planLayout(const FactorList& list, Qsp64s n)
{
    constexpr int lanes = Lanes<T>::n;
    PlanLayout l;
    l.list = list;
    l.split = chooseSplit(list, lanes);
    for (int i = 0; i < l.split; ++i) l.n1 *= list.f[i];
    l.n2 = n / l.n1;
    Qsp64s at = 0;
    for (int g = 0; g < 2; ++g) {
        const int from = g == 0 ? 0 : l.split, to = g == 0 ? l.split : list.count;
        const Qsp64s len = g == 0 ? l.n1 : l.n2;
        Qsp64s s = 1;
        for (int i = from; i < to; ++i) {
            const Qsp64s p = list.f[i], m = len / (s * p);
            l.twiddleAt[i] = at;
            at += roundUp64((m - 1) * (p - 1) * kPairBytes<T>);
            l.constantsAt[i] = at;
            if (p > 7) at += roundUp64(p * kPairBytes<T>);
            s *= p;
        }
    }
    l.outerAt = at;
    at += roundUp64(2 * n * Qsp64s(sizeof(T)));
    l.tableBytes = at;
    l.scratch = l.n1 > l.n2 ? l.n1 : l.n2;
    l.workBytes = roundUp64(2 * n * Qsp64s(sizeof(T))) + 2 * roundUp64(l.scratch * kPairBytes<T>);
    return l;
}

// Fills the plan and its tables (at `tables`, 64-byte aligned) from the
// roots W_n^j = roots[j * stride], j < n.
template <class T>
void ownsBuildPlan(Plan* plan, const PlanLayout& l, Qsp64s n, Qsp8u* tables, const Cx<T>* roots, Qsp64s stride)
{
    using K = Lanes<T>;
    using X = typename K::X;
    plan->countMinus1 = l.list.count - 1;
    plan->inUse = 1;
    plan->n = static_cast<Qsp32s>(n);
    plan->split = l.split;
    plan->n1 = static_cast<Qsp32s>(l.n1);
    plan->n2 = static_cast<Qsp32s>(l.n2);
    plan->scratch = static_cast<Qsp32s>(l.scratch);
    for (int g = 0; g < 2; ++g) {
        const int from = g == 0 ? 0 : l.split, to = g == 0 ? l.split : l.list.count;
        const Qsp64s len = g == 0 ? l.n1 : l.n2;
        Qsp64s s = 1;
        for (int i = from; i < to; ++i) {
            const Qsp64s p = l.list.f[i], m = len / (s * p);
            FactorEntry& e = plan->factor[i];
            e.factor = static_cast<Qsp32s>(p);
            e.stride = static_cast<Qsp32s>(s);
            e.groups = static_cast<Qsp32s>(m);
            X* tw = reinterpret_cast<X*>(tables + l.twiddleAt[i]);
            e.twiddles = m > 1 ? tw : nullptr;
            // W_l^(q j) = W_n^(q j n / l), l = len / s the sub-length of this pass
            const Qsp64s step = (n / len) * s;
            for (Qsp64s q = 1; q < m; ++q)
                for (Qsp64s j = 1; j < p; ++j) *tw++ = K::splat(roots[((q * j * step) % n) * stride]);
            if (p > 7) {
                X* cw = reinterpret_cast<X*>(tables + l.constantsAt[i]);
                e.constants = cw;
                for (Qsp64s j = 0; j < p; ++j) {
                    const Cx<T> w = roots[j * (n / p) * stride];
                    cw[j] = K::splat(Cx<T>{w.re, -w.im});  // (cos, sin)
                }
            } else {
                e.constants = nullptr;
            }
            s *= p;
        }
    }
    T* outer = reinterpret_cast<T*>(tables + l.outerAt);
    plan->outer = outer;
    for (Qsp64s r = 0; r < l.n2; ++r) {
        Qsp64s idx = 0;
        for (Qsp64s c = 0; c < l.n1; ++c) {
            outer[r * l.n1 + c] = roots[idx * stride].re;
            outer[n + r * l.n1 + c] = roots[idx * stride].im;
            idx += r;
            if (idx >= n) idx -= n;
        }
    }
}

// ------------------------------------------------------------------ passes

template <class T, int P>
void ownsPassFixed(const typename Lanes<T>::X* x, typename Lanes<T>::X* y, Qsp64s s, Qsp64s m,
                   const typename Lanes<T>::X* tw)
{
    using K = Lanes<T>;
    using X = typename K::X;
    for (Qsp64s k = 0; k < s; ++k) {
        X a[P];
        for (int j = 0; j < P; ++j) a[j] = x[k + s * j * m];
        Butterfly<T, P>::run(a);
        for (int j = 0; j < P; ++j) y[k + s * j] = a[j];
    }
    for (Qsp64s q = 1; q < m; ++q) {
        X w[P - 1];
        for (int j = 0; j < P - 1; ++j) w[j] = tw[(q - 1) * (P - 1) + j];
        const X* xq = x + s * q;
        X* yq = y + s * P * q;
        for (Qsp64s k = 0; k < s; ++k) {
            X a[P];
            for (int j = 0; j < P; ++j) a[j] = xq[k + s * j * m];
            Butterfly<T, P>::run(a);
            yq[k] = a[0];
            for (int j = 1; j < P; ++j) yq[k + s * j] = K::mul(a[j], w[j - 1]);
        }
    }
}

// The generic odd prime: a, t, u on the stack (p <= 150).
template <class T>
void ownsPassOdd(const typename Lanes<T>::X* x, typename Lanes<T>::X* y, Qsp64s s, Qsp64s m, int p,
                 const typename Lanes<T>::X* tw, const typename Lanes<T>::X* cw)
{
    using K = Lanes<T>;
    using X = typename K::X;
    X a[151], t[76], u[76];
    for (Qsp64s q = 0; q < m; ++q) {
        const X* w = q > 0 ? tw + (q - 1) * (p - 1) : nullptr;
        for (Qsp64s k = 0; k < s; ++k) {
            for (int j = 0; j < p; ++j) a[j] = x[k + s * (q + j * m)];
            ownsOddButterflyAny<T>(a, p, cw, t, u);
            X* yq = y + k + s * p * q;
            yq[0] = a[0];
            if (w)
                for (int j = 1; j < p; ++j) yq[s * j] = K::mul(a[j], w[j - 1]);
            else
                for (int j = 1; j < p; ++j) yq[s * j] = a[j];
        }
    }
}

template <class T>
void ownsPass(const FactorEntry& e, const typename Lanes<T>::X* x, typename Lanes<T>::X* y)
{
    using X = typename Lanes<T>::X;
    const Qsp64s s = e.stride, m = e.groups;
    const X* tw = static_cast<const X*>(e.twiddles);
    switch (e.factor) {
    case 2: ownsPassFixed<T, 2>(x, y, s, m, tw); break;
    case 3: ownsPassFixed<T, 3>(x, y, s, m, tw); break;
    case 4: ownsPassFixed<T, 4>(x, y, s, m, tw); break;
    case 5: ownsPassFixed<T, 5>(x, y, s, m, tw); break;
    case 6: ownsPassFixed<T, 6>(x, y, s, m, tw); break;
    case 7: ownsPassFixed<T, 7>(x, y, s, m, tw); break;
    default: ownsPassOdd<T>(x, y, s, m, e.factor, tw, static_cast<const X*>(e.constants)); break;
    }
}

// The sub-transform of one group over a batch held in a; returns the
// array (a or b) holding the result in natural order.
template <class T>
typename Lanes<T>::X* ownsSubTransform(const FactorEntry* f, int count, typename Lanes<T>::X* a,
                                       typename Lanes<T>::X* b)
{
    for (int i = 0; i < count; ++i) {
        ownsPass<T>(f[i], a, b);
        auto* t = a;
        a = b;
        b = t;
    }
    return a;
}

// ------------------------------------------------------------------ data access

// Complex data as the transforms see it: interleaved pairs or two arrays
// of parts. lanes consecutive elements load into one lane pair; Swap
// exchanges real and imaginary parts (the inverse transform).
template <class T>
struct InterleavedData {
    using K = Lanes<T>;
    using V = typename K::V;
    using X = typename K::X;
    T* p;
    template <bool Swap>
    X load(Qsp64s e) const
    {
        const T* f = p + 2 * e;
        const auto a = V::loadu(f), b = V::loadu(f + K::n);
        const X v{V::evens(a, b), V::odds(a, b)};
        return Swap ? X{v.im, v.re} : v;
    }
    template <bool Swap>
    void store(Qsp64s e, X v) const
    {
        if (Swap) v = {v.im, v.re};
        T* f = p + 2 * e;
        V::storeu(f, V::zipLo(v.re, v.im));
        V::storeu(f + K::n, V::zipHi(v.re, v.im));
    }
    template <bool Swap>
    Cx<T> get(Qsp64s e) const
    {
        return Swap ? Cx<T>{p[2 * e + 1], p[2 * e]} : Cx<T>{p[2 * e], p[2 * e + 1]};
    }
    template <bool Swap>
    void put(Qsp64s e, Cx<T> v) const
    {
        p[2 * e] = Swap ? v.im : v.re;
        p[2 * e + 1] = Swap ? v.re : v.im;
    }
};

template <class T>
struct SplitData {
    using K = Lanes<T>;
    using V = typename K::V;
    using X = typename K::X;
    T* re;
    T* im;
    template <bool Swap>
    X load(Qsp64s e) const
    {
        const X v{V::loadu(re + e), V::loadu(im + e)};
        return Swap ? X{v.im, v.re} : v;
    }
    template <bool Swap>
    void store(Qsp64s e, X v) const
    {
        if (Swap) v = {v.im, v.re};
        V::storeu(re + e, v.re);
        V::storeu(im + e, v.im);
    }
    template <bool Swap>
    Cx<T> get(Qsp64s e) const
    {
        return Swap ? Cx<T>{im[e], re[e]} : Cx<T>{re[e], im[e]};
    }
    template <bool Swap>
    void put(Qsp64s e, Cx<T> v) const
    {
        re[e] = Swap ? v.im : v.re;
        im[e] = Swap ? v.re : v.im;
    }
};

// Lane transposition of a square block of registers: r[j] lane i becomes
// r[i] lane j.
template <class T>
inline void ownsTransposeLanes(typename Lanes<T>::R* r)
{
    using V = typename Lanes<T>::V;
    if constexpr (Lanes<T>::n == 4) {
        const auto t0 = V::zipLo(r[0], r[1]), t1 = V::zipLo(r[2], r[3]);
        const auto t2 = V::zipHi(r[0], r[1]), t3 = V::zipHi(r[2], r[3]);
        r[0] = V::lowHalves(t0, t1);
        r[1] = V::highHalves(t0, t1);
        r[2] = V::lowHalves(t2, t3);
        r[3] = V::highHalves(t2, t3);
    } else {
        const auto a = V::zipLo(r[0], r[1]), b = V::zipHi(r[0], r[1]);
        r[0] = a;
        r[1] = b;
    }
}

// Start of each batch of `lanes` out of count items: 0, lanes, ..., with the
// last one moved back to count - lanes so that it stays full.
inline Qsp64s batchStart(Qsp64s b, Qsp64s count, int lanes)
{
    const Qsp64s at = b * lanes;
    return at + lanes > count ? count - lanes : at;
}

// ------------------------------------------------------------------ transform

// The work buffer: two planes of n values (step 1 output, transposed), then
// the two scratch arrays.
template <class T>
struct PlanWork {
    T* re;
    T* im;
    typename Lanes<T>::X* a;
    typename Lanes<T>::X* b;
};

template <class T>
PlanWork<T> planWork(const Plan& plan, void* work)
{
    using X = typename Lanes<T>::X;
    const Qsp64s n = plan.n;
    Qsp8u* w = static_cast<Qsp8u*>(work);
    PlanWork<T> pw;
    pw.re = reinterpret_cast<T*>(w);
    pw.im = pw.re + n;
    Qsp8u* s = w + roundUp64(2 * n * Qsp64s(sizeof(T)));
    pw.a = reinterpret_cast<X*>(s);
    pw.b = reinterpret_cast<X*>(s + roundUp64(plan.scratch * kPairBytes<T>));
    return pw;
}

// Step 1: columns n2' of the source, n1-point transforms, written as rows.
template <class T, bool Swap, class In>
void ownsPlanColumns(const Plan& plan, const In& in, const PlanWork<T>& w)
{
    using K = Lanes<T>;
    using V = typename K::V;
    using X = typename K::X;
    using R = typename K::R;
    constexpr int L = K::n;
    const Qsp64s n1 = plan.n1, n2 = plan.n2;
    const FactorEntry* f = plan.factor;
    const int count = plan.split;
    if (n2 >= L) {
        const Qsp64s batches = (n2 + L - 1) / L;
        for (Qsp64s bi = 0; bi < batches; ++bi) {
            const Qsp64s c = batchStart(bi, n2, L);
            for (Qsp64s r = 0; r < n1; ++r) w.a[r] = in.template load<Swap>(r * n2 + c);
            const X* res = ownsSubTransform<T>(f, count, w.a, w.b);
            // rows c..c+L-1 of the transposed output, L values of k1 at a time
            if (n1 >= L) {
                const Qsp64s groups = (n1 + L - 1) / L;
                for (Qsp64s gi = 0; gi < groups; ++gi) {
                    const Qsp64s k = batchStart(gi, n1, L);
                    R re[L], im[L];
                    for (int j = 0; j < L; ++j) {
                        re[j] = res[k + j].re;
                        im[j] = res[k + j].im;
                    }
                    ownsTransposeLanes<T>(re);
                    ownsTransposeLanes<T>(im);
                    for (int i = 0; i < L; ++i) {
                        V::storeu(w.re + (c + i) * n1 + k, re[i]);
                        V::storeu(w.im + (c + i) * n1 + k, im[i]);
                    }
                }
            } else {
                for (Qsp64s k = 0; k < n1; ++k) {
                    alignas(16) T re[L], im[L];
                    V::store(re, res[k].re);
                    V::store(im, res[k].im);
                    for (int i = 0; i < L; ++i) {
                        w.re[(c + i) * n1 + k] = re[i];
                        w.im[(c + i) * n1 + k] = im[i];
                    }
                }
            }
        }
    } else {
        // Fewer columns than lanes: one batch, the idle lanes zero.
        for (Qsp64s r = 0; r < n1; ++r) {
            alignas(16) T re[L] = {}, im[L] = {};
            for (Qsp64s i = 0; i < n2; ++i) {
                const Cx<T> v = in.template get<Swap>(r * n2 + i);
                re[i] = v.re;
                im[i] = v.im;
            }
            w.a[r] = {V::load(re), V::load(im)};
        }
        const X* res = ownsSubTransform<T>(f, count, w.a, w.b);
        for (Qsp64s k = 0; k < n1; ++k) {
            alignas(16) T re[L], im[L];
            V::store(re, res[k].re);
            V::store(im, res[k].im);
            for (Qsp64s i = 0; i < n2; ++i) {
                w.re[i * n1 + k] = re[i];
                w.im[i * n1 + k] = im[i];
            }
        }
    }
}

// Step 2 and 3: rows k1 of the work planes times the outer twiddles,
// n2-point transforms, results to X[k1 + n1 k2] (scaled by f when Scaled).
template <class T, bool Swap, bool Scaled, class Out>
void ownsPlanRows(const Plan& plan, const PlanWork<T>& w, const Out& out, T f)
{
    using K = Lanes<T>;
    using V = typename K::V;
    using X = typename K::X;
    constexpr int L = K::n;
    const Qsp64s n = plan.n, n1 = plan.n1, n2 = plan.n2;
    const FactorEntry* fe = plan.factor + plan.split;
    const int count = plan.countMinus1 + 1 - plan.split;
    const T* ore = static_cast<const T*>(plan.outer);
    const T* oim = ore + n;
    const auto fs = V::splat(f);
    if (n1 >= L) {
        const Qsp64s batches = (n1 + L - 1) / L;
        for (Qsp64s bi = 0; bi < batches; ++bi) {
            const Qsp64s k = batchStart(bi, n1, L);
            w.a[0] = {V::loadu(w.re + k), V::loadu(w.im + k)};
            for (Qsp64s r = 1; r < n2; ++r) {
                const Qsp64s at = r * n1 + k;
                w.a[r] = K::mul(X{V::loadu(w.re + at), V::loadu(w.im + at)}, X{V::loadu(ore + at), V::loadu(oim + at)});
            }
            const X* res = ownsSubTransform<T>(fe, count, w.a, w.b);
            for (Qsp64s r = 0; r < n2; ++r) out.template store<Swap>(k + r * n1, Scaled ? K::scale(res[r], fs) : res[r]);
        }
    } else {
        for (Qsp64s r = 0; r < n2; ++r) {
            alignas(16) T re[L] = {}, im[L] = {}, tr[L] = {}, ti[L] = {};
            for (Qsp64s i = 0; i < n1; ++i) {
                re[i] = w.re[r * n1 + i];
                im[i] = w.im[r * n1 + i];
                tr[i] = ore[r * n1 + i];
                ti[i] = oim[r * n1 + i];
            }
            w.a[r] = K::mul(X{V::load(re), V::load(im)}, X{V::load(tr), V::load(ti)});
        }
        const X* res = ownsSubTransform<T>(fe, count, w.a, w.b);
        for (Qsp64s r = 0; r < n2; ++r) {
            alignas(16) T re[L], im[L];
            const X v = Scaled ? K::scale(res[r], fs) : res[r];
            V::store(re, v.re);
            V::store(im, v.im);
            for (Qsp64s i = 0; i < n1; ++i) out.template put<Swap>(i + r * n1, Cx<T>{re[i], im[i]});
        }
    }
}

// The whole transform: in may be out; work as planWork lays it out.
template <class T, bool Inv, class In, class Out>
void ownsPlanTransform(const Plan& plan, const In& in, const Out& out, void* work, bool scaled, T f)
{
    const PlanWork<T> w = planWork<T>(plan, work);
    ownsPlanColumns<T, Inv>(plan, in, w);
    if (scaled)
        ownsPlanRows<T, Inv, true>(plan, w, out, f);
    else
        ownsPlanRows<T, Inv, false>(plan, w, out, f);
}

}  // namespace dft

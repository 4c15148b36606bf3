// SPDX-License-Identifier: BSD-3-Clause
// The transform drivers shared by the forward and inverse families: entry
// checks against the record, the choice of tier, normalisation, and the real
// transforms' recombination and packed layouts.
#pragma once
#include "fft_fourstep.h"
#include "fft_medium.h"
#include "fft_record.h"
#include "fft_small.h"
#include "mathfn/half.h"
#include "qsp_validators.h"

namespace fft {

// ---------------------------------------------------------------- checks

// The record, its identifier, then the data pointers in parameter order.
template <class... P>
inline QspStatus checkRecordAndData(const void* spec, Kind kind, const P*... data)
{
    if (spec == nullptr) return qspStsNullPtr;
    if (static_cast<const Record*>(spec)->id != kind) return qspStsBadRecord;
    // One branch for the pointers: the tests are cheap and never fault.
    if (((data == nullptr) | ...)) return qspStsNullPtr;
    return qspStsOk;
}

// A record that needs a work buffer called without one.
inline bool missingWork(const Record* rec, const Qsp8u* work) { return rec->workSize > 0 && work == nullptr; }

// checkRecordAndData, then the work buffer when the record needs one.
template <class... P>
QspStatus checkCall(const void* spec, Kind kind, Qsp8u* work, const P*... data)
{
    if (QspStatus s = checkRecordAndData(spec, kind, data...)) return s;
    if (missingWork(static_cast<const Record*>(spec), work)) return qspStsNullPtr;
    return qspStsOk;
}

// The work buffer as the kernels see it: aligned up to 64, or none.
template <class T>
inline T* workOf(const Record* rec, Qsp8u* work)
{
    return rec->workSize > 0 ? reinterpret_cast<T*>(alignUp64(work)) : nullptr;
}

template <class T>
inline T factorOf(const Record* rec)
{
    if constexpr (sizeof(T) == 4)
        return rec->factor.f;
    else
        return rec->factor.d;
}

template <bool Inv>
inline bool normalises(const Record* rec)
{
    return (Inv ? rec->inverseNormalise : rec->forwardNormalise) != 0;
}

// ---------------------------------------------------------------- complex

// One complex transform of 2^order values, src to dst (src may equal dst),
// each result multiplied by f when scaled; work as the record's complex part
// needs it. The straight-line kernels, the medium tier's last pass and the
// large tier's row transforms apply the factor as they store.
template <class T, bool Inv>
void ownsComplex(const Record* rec, const C<T>* src, C<T>* dst, C<T>* work, int order, bool scaled, T f)
{
    const C<T>* tw = static_cast<const C<T>*>(rec->twiddles);
    const Qsp64s n = Qsp64s(1) << order;
    if (order <= kSmallMax)
        ownsSmall<T, Inv>(order, scaled, src, dst, f);
    else if (order <= kWideMax)
        ownsWide<T, Inv>(order, scaled, src, dst, f);
    else if (fourStepOrder<T>(order)) {
        if constexpr (sizeof(T) == 8)
            ownsFourStepRun<Inv>(InterleavedIn<T, Inv>{src}, FourStepInterleaved{dst}, work, order, tw, scaled, f);
    } else if (order < largeFrom(sizeof(T) == 8))
        ownsFftMediumRun<T>(InterleavedIn<T, Inv>{src}, halvesOf(dst, n), InterleavedOut<T, Inv>{dst}, true,
                            halvesOf(work, n), order, tw, scaled, f);
    else
        ownsFftLargeRun<T, Inv>(InterleavedIn<T, Inv>{src}, InterleavedMem<T>{dst}, work, largeTablesOf<T>(rec), order,
                                scaled, f);
}

// The interleaved complex kinds.
template <class T, bool Inv>
void ownsComplexCall(const Record* rec, const C<T>* src, C<T>* dst, C<T>* work)
{
    ownsComplex<T, Inv>(rec, src, dst, work, rec->order, normalises<Inv>(rec), factorOf<T>(rec));
}

// The interleaved complex kinds from their entry points: the small orders
// end in a jump to their kernel, everything else goes through
// ownsComplexCall, kept out of line so that the small path needs no stack
// frame.
template <class T, bool Inv>
__attribute__((noinline)) QspStatus ownsComplexCallOutOfLine(const Record* rec, const C<T>* src, C<T>* dst,
                                                             C<T>* work)
{
    ownsComplexCall<T, Inv>(rec, src, dst, work);
    return qspStsOk;
}

// The checks are those of checkCall; the records of the small orders never
// need a work buffer (their workSize is 0), so only the other tiers test it.
template <class T, bool Inv>
inline QspStatus ownsComplexEntry(const void* spec, Kind kind, const C<T>* src, C<T>* dst, Qsp8u* work)
{
    if (QspStatus s = checkRecordAndData(spec, kind, src, dst)) return s;
    const Record* rec = static_cast<const Record*>(spec);
    const int order = rec->order;
    if (__builtin_expect(order <= kSmallMax, 1))
        return ownsSmall<T, Inv>(order, normalises<Inv>(rec), src, dst, factorOf<T>(rec));
    if (missingWork(rec, work)) return qspStsNullPtr;
    return ownsComplexCallOutOfLine<T, Inv>(rec, src, dst, workOf<C<T>>(rec, work));
}

// The split kinds: real parts and imaginary parts in separate arrays.
template <class T, bool Inv>
void ownsSplitCall(const Record* rec, const T* srcRe, const T* srcIm, T* dstRe, T* dstIm, C<T>* work)
{
    const int order = rec->order;
    const Qsp64s n = Qsp64s(1) << order;
    const bool scaled = normalises<Inv>(rec);
    const T f = factorOf<T>(rec);
    const C<T>* tw = static_cast<const C<T>*>(rec->twiddles);
    if (order <= kWideMax) {
        // The straight-line kernels on an interleaved copy.
        C<T> buf[1 << kWideMax];
        for (Qsp64s i = 0; i < n; ++i) buf[i] = {srcRe[i], srcIm[i]};
        if (order <= kSmallMax)
            ownsSmall<T, Inv>(order, scaled, buf, buf, f);
        else
            ownsWide<T, Inv>(order, scaled, buf, buf, f);
        for (Qsp64s i = 0; i < n; ++i) {
            dstRe[i] = buf[i].re;
            dstIm[i] = buf[i].im;
        }
        return;
    }
    // The destination arrays serve as the second buffer of N values (real
    // array = first half, imaginary array = second half).
    const Halves<C<T>> dstPair{reinterpret_cast<C<T>*>(dstRe), reinterpret_cast<C<T>*>(dstIm)};
    if constexpr (sizeof(T) == 8) {
        if (fourStepOrder<T>(order)) {
            ownsFourStepRun<Inv>(SplitIn<T, Inv>{srcRe, srcIm}, FourStepSplit{dstRe, dstIm}, work, order, tw, scaled, f);
            return;
        }
    }
    if (order < largeFrom(sizeof(T) == 8)) {
        ownsFftMediumRun<T>(SplitIn<T, Inv>{srcRe, srcIm}, dstPair, SplitOut<T, Inv>{dstRe, dstIm}, false,
                            halvesOf(work, n), order, tw, scaled, f);
        return;
    }
    ownsFftLargeRun<T, Inv>(SplitIn<T, Inv>{srcRe, srcIm}, SplitMem<T>{dstRe, dstIm}, work, largeTablesOf<T>(rec), order,
                            scaled, f);
}

// Half precision: converted into 32-bit complex values in the part of the
// work buffer behind the single-precision work, transformed there in
// place, and converted back. Orders 0..5 use a stack copy.
template <bool Inv>
void ownsHalfCall(const Record* rec, const Qsp16fc* src, Qsp16fc* dst, Qsp8u* workAligned)
{
    const Qsp64s n = Qsp64s(1) << rec->order;
    C<float> small[1 << kSmallMax];
    C<float>* copy = rec->order <= kSmallMax ? small : reinterpret_cast<C<float>*>(workAligned + rec->workSize);
    for (Qsp64s i = 0; i < n; ++i) copy[i] = {mathfn::halfToFloat(src[i].re), mathfn::halfToFloat(src[i].im)};
    ownsComplexCall<float, Inv>(rec, copy, copy, reinterpret_cast<C<float>*>(workAligned));
    for (Qsp64s i = 0; i < n; ++i) dst[i] = {mathfn::floatToHalf(copy[i].re), mathfn::floatToHalf(copy[i].im)};
}

// ---------------------------------------------------------------- real

enum class Packed { Pack, Perm, Ccs };

// The two entries of bin k in a coarse + fine recombination table, whose
// product is the bin's factor: the coarse one, and the fine one after the
// N / 2^(kRecombFineBits + 2) coarse entries.
template <class T>
inline const C<T>* recombCoarseAt(const C<T>* table, Qsp64s k)
{
    return table + (k >> kRecombFineBits);
}

template <class T>
inline const C<T>* recombFineAt(const C<T>* table, Qsp64s k, Qsp64s n)
{
    return table + (n >> (kRecombFineBits + 2)) + (k & ((Qsp64s(1) << kRecombFineBits) - 1));
}

// W_N^k for the recombination (0 <= k < N/4), or conj(W_N^k) from the
// inverse table.
template <class T>
inline C<T> recombTwiddle(const Record* rec, const C<T>* table, Qsp64s k, Qsp64s n)
{
    if (!rec->recombSplit) return table[k];
    // coarse * fine in double (its products exact for single-precision
    // entries), rounded to T once.
    const C<T> a = *recombCoarseAt(table, k), b = *recombFineAt(table, k, n);
    const double re = double(a.re) * double(b.re) - double(a.im) * double(b.im);
    const double im = double(a.re) * double(b.im) + double(a.im) * double(b.re);
    return {T(re), T(im)};
}

// The whole forward recombination table (not coarse + fine) holds, for
// k = 1 .. N/4 - 1, v_k = -i W_N^k / 2 = (Im W/2, -Re W/2), block-split in
// blocks of L from k = 1, so that the vector loop reads its factors with
// plain loads and needs no halving of B: with A = Zk + conj Zm and
// B = Zk - conj Zm, Xk = A/2 + v_k B. (Both scalings by 2 are exact, and
// the products are those of the plain form; the double-precision loop
// forms A/2 as Zk - B/2, which saves an operation at the cost of a rounding
// error of the size of Zk's last bit rather than of A's.)
template <class T>
inline Qsp64s forwardWholeIndex(Qsp64s k)
{
    constexpr Qsp64s L = SV<T>::L;
    return ((k - 1) / L) * 2 * L + (k - 1) % L;  // float index of the real part
}

template <class T>
inline C<T> forwardWholeTwiddle(const C<T>* table, Qsp64s k)
{
    constexpr Qsp64s L = SV<T>::L;
    const T* f = &table->re + forwardWholeIndex<T>(k);
    return {T(-2) * f[L], T(2) * f[0]};
}

// The recombination twiddle of bin k: W_N^k (forward) or conj(W_N^k)
// (inverse), from the record's tables (orders above the straight-line ones).
template <class T, bool Inv>
inline C<T> realTwiddle(const Record* rec, Qsp64s k, int order)
{
    const Qsp64s n = Qsp64s(1) << order;
    if (!Inv && !rec->recombSplit) return forwardWholeTwiddle<T>(static_cast<const C<T>*>(rec->recomb), k);
    return recombTwiddle<T>(rec, static_cast<const C<T>*>(Inv ? rec->recombInv : rec->recomb), k, n);
}

// Bins k (ascending, L at a time) and their mirrors N/2 - k (descending) in
// registers, while both groups stay on their side of N/4; returns the first
// bin left for the scalar loop. Only for whole tables (not coarse + fine).
// The bins are read from src and written to z (src may equal z).
template <class T, bool Inv>
Qsp64s ownsRecombineVector(const C<T>* src, C<T>* z, const C<T>* table, Qsp64s half, Qsp64s quarter)
{
    if constexpr (sizeof(T) == 8) {
        // Double precision: one complex value per register, bin k and its
        // mirror as loaded, the twiddle's parts splatted by the loads. This
        // needs one shuffle per bin pair, where the split form needs six.
        using V = simd::Vec<double>;
        const auto halfSplat = V::splat(0.5);
        if constexpr (!Inv) {
            // E = (Zk + conj Zm)/2, F = v_k (Zk - conj Zm), Xk = E + F, Xm = conj(E - F);
            // v_k for k and k + 1 (k odd) from one block of the table.
            // D = Zk - conj Zm is one addsub, and E = Zk - D/2.
            auto bin = [&](Qsp64s k, double vr, double vi) {
                const auto a = V::loadu(&src[k].re);
                const auto d = V::addsub(a, V::loadu(&src[half - k].re));
                const auto e = V::sub(a, V::mul(d, halfSplat));
                const auto f = V::addsub(V::mul(d, V::splat(vr)), V::mul(V::swapParts(d), V::splat(vi)));
                V::storeu(&z[k].re, V::add(e, f));
                V::storeu(&z[half - k].re, V::negOdd(V::sub(e, f)));
            };
            constexpr Qsp64s L = SV<T>::L;
            const double* v = &table->re;
            Qsp64s k = 1;
            for (; k + 1 < quarter; k += 2, v += 2 * L) {
                bin(k, v[0], v[L]);
                bin(k + 1, v[1], v[L + 1]);
            }
            for (; k < quarter; ++k) {
                const double* w = &table->re + forwardWholeIndex<T>(k);
                bin(k, w[0], w[L]);
            }
            return quarter;
        }
        // (-0, +0): the sign of the real lane only.
        const auto signRe = V::pair(-0.0, 0.0);
        for (Qsp64s k = 1; k < quarter; ++k) {
            // E = Xk + conj Xm, i O = (Xk - conj Xm) i w; Zk = E + i O, Zm = conj(E - i O).
            // D = Xk - conj Xm is one addsub and E = 2 Xk - D; i O =
            // swap(D) (-wr, wr) - D wi.
            const auto a = V::loadu(&src[k].re);
            const auto d = V::addsub(a, V::loadu(&src[half - k].re));
            const auto e = V::sub(V::add(a, a), d);
            const auto io = V::sub(V::mul(V::swapParts(d), V::bitXor(V::splat(table[k].re), signRe)),
                                   V::mul(d, V::splat(table[k].im)));
            V::storeu(&z[k].re, V::add(e, io));
            V::storeu(&z[half - k].re, V::negOdd(V::sub(e, io)));
        }
        return quarter;
    }
    using K = SV<T>;
    using V = typename K::V;
    using X = typename K::X;
    constexpr Qsp64s L = K::L;
    const auto halfSplat = V::splat(T(0.5));
    Qsp64s k = 1;
    for (; k + L <= quarter; k += L) {
        const Qsp64s jk = k, jm = half - k - (L - 1);
        const X a = K::template load<true>(src + jk);
        X b = K::template load<true>(src + jm);
        b = {V::reverse(b.re), V::reverse(b.im)};
        X r, m;
        if constexpr (!Inv) {
            // E = (Zk + conj Zm)/2, F = v_k (Zk - conj Zm), Xk = E + F, Xm = conj(E - F)
            const X v = K::template load<false>(reinterpret_cast<const C<T>*>(&table->re + forwardWholeIndex<T>(k)));
            const X e{V::mul(V::add(a.re, b.re), halfSplat), V::mul(V::sub(a.im, b.im), halfSplat)};
            const X f = K::template mul<false>(X{V::sub(a.re, b.re), V::add(a.im, b.im)}, v);
            r = K::add(e, f);
            m = {V::sub(e.re, f.re), V::sub(f.im, e.im)};
        } else {
            const X w = K::template load<true>(table + k);
            // E = Xk + conj Xm, O = (Xk - conj Xm) w, Zk = E + i O, Zm = conj(E - i O)
            const X e{V::add(a.re, b.re), V::sub(a.im, b.im)};
            const X o = K::template mul<false>(X{V::sub(a.re, b.re), V::add(a.im, b.im)}, w);
            r = {V::sub(e.re, o.im), V::add(e.im, o.re)};
            m = {V::add(e.re, o.im), V::sub(o.re, e.im)};
        }
        K::template store<true>(z + jk, r);
        K::template store<true>(z + jm, X{V::reverse(m.re), V::reverse(m.im)});
    }
    return k;
}

// The factors of the L bins from k (one coarse entry for all of them) as
// split registers: coarse * fine, each product taken in double and rounded
// to T, exactly as recombTwiddle forms it.
template <class T>
inline typename SV<T>::X recombTwiddlesSplit(const C<T>* table, Qsp64s k, Qsp64s n)
{
    using D = simd::Vec<double>;
    const C<T>* fine = recombFineAt(table, k, n);
    const C<T> a = *recombCoarseAt(table, k);
    const auto ar = D::splat(double(a.re)), ai = D::splat(double(a.im));
    // Two bins from their fine entries b0 and b1, each (re, im) in double.
    auto two = [&](D::Reg b0, D::Reg b1, D::Reg& re, D::Reg& im) {
        const auto br = D::zipLo(b0, b1), bi = D::zipHi(b0, b1);
        re = D::sub(D::mul(ar, br), D::mul(ai, bi));
        im = D::add(D::mul(ar, bi), D::mul(ai, br));
    };
    if constexpr (sizeof(T) == 8) {
        typename SV<T>::X w;
        two(D::loadu(&fine[0].re), D::loadu(&fine[1].re), w.re, w.im);
        return w;
    } else {
        using F = simd::Vec<float>;
        const auto f01 = F::loadu(&fine[0].re), f23 = F::loadu(&fine[2].re);
        D::Reg re01, im01, re23, im23;
        two(D::widenLow(f01), D::widenHigh(f01), re01, im01);
        two(D::widenLow(f23), D::widenHigh(f23), re23, im23);
        return {D::narrow(re01, re23), D::narrow(im01, im23)};
    }
}

// The vector loop for coarse + fine tables (orders above 20): the factors
// of kRecombChunk bins at a time are formed, each as its table entry would
// be, in a block laid out like a whole table, and the vector loop runs on
// that chunk as on a shorter spectrum whose bin 1 is the chunk's first bin
// (bins k and N/2 - k keep their pairing: both move by the same offset, and
// the half length shrinks by twice that). Returns the first bin left for
// the scalar loop.
constexpr Qsp64s kRecombChunk = 512;

template <class T, bool Inv>
Qsp64s ownsRecombineSplitVector(const Record* rec, const C<T>* src, C<T>* z, Qsp64s half, Qsp64s quarter, int order)
{
    using K = SV<T>;
    using V = typename K::V;
    constexpr Qsp64s L = K::L, M = kRecombChunk;
    static_assert(M % (2 * L) == 0, "a chunk holds whole blocks of bins");
    const Qsp64s n = Qsp64s(1) << order;
    const C<T>* table = static_cast<const C<T>*>(Inv ? rec->recombInv : rec->recomb);
    alignas(64) C<T> block[M + 1];
    const auto halfSplat = V::splat(T(0.5)), sign = V::splat(T(-0.0));
    Qsp64s k0 = 1;
    for (; k0 + M <= quarter; k0 += M) {
        // L bins at a time, from block index j (j - 1 a multiple of L).
        for (Qsp64s j = 1; j <= M; j += L) {
            const Qsp64s k = k0 - 1 + j;
            typename K::X w;
            if (recombCoarseAt(table, k) == recombCoarseAt(table, k + L - 1)) {
                w = recombTwiddlesSplit<T>(table, k, n);
            } else {
                // The group spans a coarse step: its factors one by one.
                alignas(16) C<T> each[L];
                for (Qsp64s l = 0; l < L; ++l) each[l] = recombTwiddle<T>(rec, table, k + l, n);
                w = K::template load<true>(each);
            }
            if constexpr (Inv)
                K::template store<true>(block + j, w);
            else  // v = -i W / 2, block-split (forwardWholeIndex)
                K::template store<false>(block + (j - 1),
                                         {V::mul(w.im, halfSplat), V::bitXor(V::mul(w.re, halfSplat), sign)});
        }
        const Qsp64s off = k0 - 1;
        ownsRecombineVector<T, Inv>(src + off, z + off, block, half - 2 * off, M + 1);
    }
    return k0;
}

// One bin pair of the forward recombination: from Zk and Zm = Z(N/2-k),
// E = (Zk + conj Zm)/2, O = -i (Zk - conj Zm)/2, Xk = E + W O and
// X(N/2-k) = conj(E - W O).
template <class T>
inline void recombineBinForward(C<T>* z, Qsp64s k, Qsp64s half, C<T> w)
{
    const C<T> zk = z[k], zm = z[half - k];
    const C<T> e{(zk.re + zm.re) * T(0.5), (zk.im - zm.im) * T(0.5)};
    const C<T> o{(zk.im + zm.im) * T(0.5), (zm.re - zk.re) * T(0.5)};
    const C<T> wo{o.re * w.re - o.im * w.im, o.re * w.im + o.im * w.re};
    z[k] = {e.re + wo.re, e.im + wo.im};
    z[half - k] = {e.re - wo.re, wo.im - e.im};
}

// One bin pair of the inverse: E = Xk + conj Xm, O = (Xk - conj Xm) w with
// w = conj(W^k); Zk = E + i O, Zm = conj(E - i O) (twice the forward Z).
// The bins are read from src and written to z (src may equal z).
template <class T>
inline void recombineBinInverse(const C<T>* src, C<T>* z, Qsp64s k, Qsp64s half, C<T> w)
{
    const C<T> xk = src[k], xm = src[half - k];
    const C<T> e{xk.re + xm.re, xk.im - xm.im};
    const C<T> dlt{xk.re - xm.re, xk.im + xm.im};
    const C<T> o{dlt.re * w.re - dlt.im * w.im, dlt.re * w.im + dlt.im * w.re};
    z[k] = {e.re - o.im, e.im + o.re};
    z[half - k] = {e.re + o.im, o.re - e.im};
}

// Z (the half-length transform of x[2m] + i*x[2m+1]) to the spectrum X in
// Perm layout, in place. Bin 0 gives R0 and R(N/2); bin N/4 is conj(Z).
template <class T>
void ownsRecombineForward(const Record* rec, T* d, int order)
{
    const Qsp64s n = Qsp64s(1) << order, half = n >> 1, quarter = n >> 2;
    C<T>* z = reinterpret_cast<C<T>*>(d);
    const T a = z[0].re, b = z[0].im;
    z[0] = {a + b, a - b};
    Qsp64s k = 1;
    if (!rec->recombSplit)
        k = ownsRecombineVector<T, false>(z, z, static_cast<const C<T>*>(rec->recomb), half, quarter);
    else
        k = ownsRecombineSplitVector<T, false>(rec, z, z, half, quarter, order);
    for (; k < quarter; ++k) recombineBinForward(z, k, half, realTwiddle<T, false>(rec, k, order));
    z[quarter].im = -z[quarter].im;
}

// X to 2*Z, whose half-length inverse transform is N times x: R0 and
// R(N/2) given, bins 1 .. N/2 - 1 read from s (pairs at element 2k, as in
// Perm and CCS layout) and the result written to d (s may equal d).
template <class T>
void ownsRecombineInverseFrom(const Record* rec, const T* s, T* d, T r0, T rh, int order)
{
    const Qsp64s n = Qsp64s(1) << order, half = n >> 1, quarter = n >> 2;
    const C<T>* x = reinterpret_cast<const C<T>*>(s);
    C<T>* z = reinterpret_cast<C<T>*>(d);
    z[0] = {r0 + rh, r0 - rh};
    Qsp64s k = 1;
    if (!rec->recombSplit)
        k = ownsRecombineVector<T, true>(x, z, static_cast<const C<T>*>(rec->recombInv), half, quarter);
    else
        k = ownsRecombineSplitVector<T, true>(rec, x, z, half, quarter, order);
    for (; k < quarter; ++k) recombineBinInverse(x, z, k, half, realTwiddle<T, true>(rec, k, order));
    z[quarter] = {T(2) * x[quarter].re, T(-2) * x[quarter].im};
}

// The real forward transform above the straight-line orders: the
// half-length complex transform into the destination, the recombination
// there (Perm layout) and the move into the layout asked for.
template <class T>
void ownsRealForwardCall(const Record* rec, const T* src, T* dst, C<T>* work, Packed layout)
{
    const int order = rec->order;
    const Qsp64s n = Qsp64s(1) << order;
    ownsComplex<T, false>(rec, reinterpret_cast<const C<T>*>(src), reinterpret_cast<C<T>*>(dst), work, order - 1,
                          rec->forwardNormalise != 0, factorOf<T>(rec));
    ownsRecombineForward<T>(rec, dst, order);
    if (layout == Packed::Pack) {
        const T nyquist = dst[1];
        for (Qsp64s i = 1; i < n - 1; ++i) dst[i] = dst[i + 1];
        dst[n - 1] = nyquist;
    } else if (layout == Packed::Ccs) {
        dst[n] = dst[1];
        dst[n + 1] = T(0);
        dst[1] = T(0);
    }
}

// The real forward transforms of orders 0..5, one straight-line function
// per order, layout and scaling: the half-length complex kernel (scaling as
// it stores) into values of SmallOps, the recombination on those values with
// built-in twiddles, and every bin stored once, as one value, where the
// layout puts it. In CCS and Perm layout bin k is stored where the
// half-length transform loads value k, so that a transform in place of the
// previous one's result reads whole stores back.
template <class T, Packed Layout, int Order, bool Scaled>
__attribute__((flatten)) QspStatus ownsRealSmallForward(const T* src, T* dst, T f)
{
    if constexpr (Order == 0) {
        dst[0] = Scaled ? src[0] * f : src[0];
        if constexpr (Layout == Packed::Ccs) dst[1] = T(0);
    } else {
        using O = SmallOps<T>;
        using Val = typename O::Value;
        constexpr int n = 1 << Order, half = n / 2, quarter = n / 4;
        Val z[half], x[half + 1];
        smallDft<O, T, false, half>([&](int p) { return O::load(reinterpret_cast<const C<T>*>(src) + p); },
                                    [&](int k, Val v) { z[k] = Scaled ? O::scale(v, f) : v; });
        // Z[0] = (a, b): R0 = a + b, R(N/2) = a - b.
        const Val sum = O::add(z[0], O::swap(z[0])), dif = O::sub(z[0], O::swap(z[0]));
        x[0] = O::realParts(sum, O::zero());
        x[half] = O::realParts(dif, O::zero());
        // E = (Zk + conj Zm)/2, F = v_k (Zk - conj Zm) with v_k = -i W_N^k / 2;
        // Xk = E + F, Xm = conj(E - F), m = N/2 - k.
#pragma GCC unroll 16
        for (int k = 1; k < quarter; ++k) {
            const Val a = z[k], b = O::conj(z[half - k]);
            const Val e = O::scale(O::add(a, b), T(0.5));
            const C<T> w = kSmallW<T>.w[k << (kSmallMax - Order)];
            const Val fv = O::template mulConst<false>(O::sub(a, b), C<T>{w.im / 2, -w.re / 2});
            x[k] = O::add(e, fv);
            x[half - k] = O::conj(O::sub(e, fv));
        }
        if constexpr (quarter > 0) x[quarter] = O::conj(z[quarter]);
        C<T>* out = reinterpret_cast<C<T>*>(dst);
        if constexpr (Layout == Packed::Ccs) {
#pragma GCC unroll 32
            for (int k = 0; k <= half; ++k) O::store(out + k, x[k]);
        } else if constexpr (Layout == Packed::Perm || n == 2) {
            O::store(out, O::realParts(sum, dif));
#pragma GCC unroll 32
            for (int k = 1; k < half; ++k) O::store(out + k, x[k]);
        } else {
            // Pack: R0, then bin k at element 2k - 1, then R(N/2).
            O::storeRe(dst, sum);
#pragma GCC unroll 32
            for (int k = 1; k < half; ++k) O::storeAt(dst + 2 * k - 1, x[k]);
            O::storeRe(dst + n - 1, dif);
        }
    }
    return qspStsOk;
}

// Real single precision, orders 3 to 5: the half-length transform Z stays in
// registers as pairs (Z[2j], Z[2j+1]) and is recombined there, bins k, k+1
// together with their mirrors N/2-k, N/2-k-1, and the bins are stored as
// aligned pairs in the layout asked for.
template <Packed Layout, int Order, bool Scaled>
__attribute__((flatten)) QspStatus ownsRealSmallForwardPairs(const float* src, float* dst, float f)
{
    using V = simd::Vec<float>;
    constexpr int n = 1 << Order, half = n / 2;
    __m128 z[half / 2 + 1];
    ownsFftPairs<false, Order - 1>(reinterpret_cast<const C<float>*>(src),
                                   [&](int k, __m128 v) { z[k / 2] = Scaled ? V::mul(v, V::splat(f)) : v; });
    z[half / 2] = z[0];  // Z[N/2] = Z[0]
    constexpr int quarter = half / 2;
    const __m128 conj = V::negOdd(V::zero()), halfSplat = V::splat(0.5f);
    __m128 lo[quarter / 2], mirror[quarter / 2];
#pragma GCC unroll 8
    for (int k = 0; k < quarter; k += 2) {
        const __m128 a = z[k / 2];  // Z[k], Z[k+1]
        // Z[N/2-k], Z[N/2-k-1]
        const __m128 b = V::joinHalves(z[(half - k) / 2], z[(half - k) / 2 - 1]);
        const __m128 cb = V::bitXor(b, conj);
        // E = (Zk + conj Zm)/2, F = v_k (Zk - conj Zm) with v_k = -i W_N^k / 2
        const __m128 e = V::mul(V::add(a, cb), halfSplat), d = V::sub(a, cb);
        const C<float> w0 = kSmallW<float>.w[k << (kSmallMax - Order)];
        const C<float> w1 = kSmallW<float>.w[(k + 1) << (kSmallMax - Order)];
        const __m128 vr = _mm_setr_ps(w0.im / 2, w0.im / 2, w1.im / 2, w1.im / 2);
        const __m128 vi = _mm_setr_ps(-w0.re / 2, -w0.re / 2, -w1.re / 2, -w1.re / 2);
        const __m128 fv = V::addsub(V::mul(d, vr), V::mul(V::swapParts(d), vi));
        // X[k], X[k+1] = E + F; X[N/2-k], X[N/2-k-1] = conj(E - F). At k = 0
        // these are (a + b, 0) and (a - b, -0) for Z[0] = (a, b).
        lo[k / 2] = V::add(e, fv);
        mirror[k / 2] = V::bitXor(V::sub(e, fv), conj);
    }
    // The bins as aligned pairs p[j] = X[2j], X[2j+1], so that every store
    // covers what the half-length transform loads as one value: the pairs
    // below N/4, X[N/4] = conj Z[N/4] with X[N/4+1], the mirrored pairs
    // regrouped, and X[N/2] with its imaginary part zero.
    __m128 p[quarter + 1];
#pragma GCC unroll 8
    for (int j = 0; j < quarter / 2; ++j) p[j] = lo[j];
    p[quarter / 2] = V::joinHalves(V::bitXor(z[quarter / 2], conj), mirror[quarter / 2 - 1]);
#pragma GCC unroll 8
    for (int j = quarter / 2 + 1; j < quarter; ++j) {
        const int k = half - 2 * j;
        p[j] = V::joinHalves(mirror[k / 2], mirror[k / 2 - 1]);
    }
    p[quarter] = V::zipLo(mirror[0], V::zero());
    if constexpr (Layout == Packed::Ccs) {
#pragma GCC unroll 8
        for (int j = 0; j < quarter; ++j) V::storeu(dst + 4 * j, p[j]);
        V::storeLowHalf(dst + n, p[quarter]);
    } else if constexpr (Layout == Packed::Perm) {
        // R0, R(N/2), then bins 1.. in place.
        V::storeu(dst, V::joinHalves(V::zipLo(p[0], p[quarter]), p[0]));
#pragma GCC unroll 8
        for (int j = 1; j < quarter; ++j) V::storeu(dst + 4 * j, p[j]);
    } else {
        // R0, bin 1 at elements 1, 2, pair j from element 4j - 1, R(N/2) last.
        V::storeFirst(dst, p[0]);
        V::storeHighHalf(dst + 1, p[0]);
#pragma GCC unroll 8
        for (int j = 1; j < quarter; ++j) V::storeu(dst + 4 * j - 1, p[j]);
        V::storeFirst(dst + n - 1, p[quarter]);
    }
    return qspStsOk;
}


// The real inverse transforms of orders 0..5, one straight-line function
// per order, layout and scaling: the packed spectrum loaded into values of
// SmallOps, the inverse recombination on those values with built-in
// twiddles, and the half-length complex kernel on them (scaling as it
// stores) into the destination. Everything is read before the destination
// is written.
template <class T, Packed Layout, int Order, bool Scaled>
__attribute__((flatten)) QspStatus ownsRealSmallInverse(const T* src, T* dst, T f)
{
    if constexpr (Order == 0) {
        dst[0] = Scaled ? src[0] * f : src[0];
    } else {
        using O = SmallOps<T>;
        using Val = typename O::Value;
        constexpr int n = 1 << Order, half = n / 2, quarter = n / 4;
        const T r0 = src[0], rh = Layout == Packed::Pack ? src[n - 1] : Layout == Packed::Ccs ? src[n] : src[1];
        // Bin k at element 2k - 1 (Pack) or 2k (Perm, CCS).
        Val x[half], z[half];
#pragma GCC unroll 16
        for (int k = 1; k < half; ++k) x[k] = O::loadAt(src + 2 * k - (Layout == Packed::Pack ? 1 : 0));
        z[0] = O::pair(r0 + rh, r0 - rh);
        // E = Xk + conj Xm, i O = (Xk - conj Xm) i conj(W_N^k); Zk = E + i O,
        // Zm = conj(E - i O), m = N/2 - k (twice the forward Z).
#pragma GCC unroll 16
        for (int k = 1; k < quarter; ++k) {
            const Val a = x[k], b = O::conj(x[half - k]);
            const Val e = O::add(a, b);
            const C<T> w = kSmallW<T>.w[k << (kSmallMax - Order)];
            const Val io = O::template mulConst<false>(O::sub(a, b), C<T>{w.im, w.re});
            z[k] = O::add(e, io);
            z[half - k] = O::conj(O::sub(e, io));
        }
        if constexpr (quarter > 0) z[quarter] = O::scale(O::conj(x[quarter]), T(2));
        smallDft<O, T, true, half>([&](int p) { return z[p]; }, [&](int k, Val v) {
            O::store(reinterpret_cast<C<T>*>(dst) + k, Scaled ? O::scale(v, f) : v);
        });
    }
    return qspStsOk;
}

// Real single precision inverse, orders 3 to 5: the spectrum loaded as
// pairs p[j] = X[2j], X[2j+1] (bins 0 and N/2, whose pair lanes are not
// read, are taken as scalars), recombined in registers into the pairs of
// 2Z, and the half-length inverse transform run on those registers, storing
// pairs where the forward transform loads them.
template <Packed Layout, int Order, bool Scaled>
__attribute__((flatten)) QspStatus ownsRealSmallInversePairs(const float* src, float* dst, float f)
{
    using V = simd::Vec<float>;
    constexpr int n = 1 << Order, half = n / 2, quarter = half / 2;
    const float r0 = src[0], rh = Layout == Packed::Pack ? src[n - 1] : Layout == Packed::Ccs ? src[n] : src[1];
    __m128 p[quarter + 1];
    // Pack holds bin k at element 2k - 1; the others at 2k.
    p[0] = Layout == Packed::Pack ? V::loadPairDup(src + 1) : V::loadu(src);
#pragma GCC unroll 8
    for (int j = 1; j < quarter; ++j) p[j] = V::loadu(src + 4 * j - (Layout == Packed::Pack ? 1 : 0));
    p[quarter] = p[0];  // only the lanes of bin N/2, which are not used
    const __m128 conj = V::negOdd(V::zero());
    __m128 zk[quarter / 2], zm[quarter / 2];
#pragma GCC unroll 8
    for (int k = 0; k < quarter; k += 2) {
        const __m128 a = p[k / 2];  // X[k], X[k+1]
        // X[N/2-k], X[N/2-k-1]
        const __m128 cb = V::bitXor(V::joinHalves(p[(half - k) / 2], p[(half - k) / 2 - 1]), conj);
        // E = Xk + conj Xm, O = (Xk - conj Xm) conj(W_N^k); Zk = E + i O, Zm = conj(E - i O)
        const __m128 e = V::add(a, cb), d = V::sub(a, cb);
        const C<float> w0 = kSmallW<float>.w[k << (kSmallMax - Order)];
        const C<float> w1 = kSmallW<float>.w[(k + 1) << (kSmallMax - Order)];
        // i O = (Xk - conj Xm) i conj(W), with i conj(W) = (Im W, Re W)
        const __m128 wr = _mm_setr_ps(w0.im, w0.im, w1.im, w1.im);
        const __m128 wi = _mm_setr_ps(w0.re, w0.re, w1.re, w1.re);
        const __m128 io = V::addsub(V::mul(d, wr), V::mul(V::swapParts(d), wi));
        zk[k / 2] = V::add(e, io);
        zm[k / 2] = V::bitXor(V::sub(e, io), conj);
    }
    // The pairs of 2Z: Z[0] = (r0 + rh, r0 - rh), the pairs below N/4,
    // Z[N/4] = 2 conj X[N/4] with Z[N/4+1], and the mirrored pairs regrouped.
    __m128 q[quarter];
    q[0] = V::joinHalves(_mm_setr_ps(r0 + rh, r0 - rh, 0.0f, 0.0f), zk[0]);
#pragma GCC unroll 8
    for (int j = 1; j < quarter / 2; ++j) q[j] = zk[j];
    q[quarter / 2] = V::joinHalves(V::mul(V::bitXor(p[quarter / 2], conj), V::splat(2.0f)), zm[quarter / 2 - 1]);
#pragma GCC unroll 8
    for (int j = quarter / 2 + 1; j < quarter; ++j) {
        const int k = half - 2 * j;
        q[j] = V::joinHalves(zm[k / 2], zm[k / 2 - 1]);
    }
    ownsFftPairsOf<true, Order - 1>([&](int j) { return q[j]; }, [&](int k, __m128 v) {
        V::storeu(dst + 2 * k, Scaled ? V::mul(v, V::splat(f)) : v);
    });
    return qspStsOk;
}

template <class T>
using RealSmallKernel = QspStatus (*)(const T*, T*, T);

// The straight-line real kernel of one direction, layout, order and
// scaling: single precision from order 3 on register pairs.
template <class T, Packed Layout, bool Inverse, int Order, bool Scaled>
inline constexpr RealSmallKernel<T> kRealSmallOne =
    Inverse ? ownsRealSmallInverse<T, Layout, Order, Scaled> : ownsRealSmallForward<T, Layout, Order, Scaled>;
template <Packed Layout, bool Inverse, int Order, bool Scaled>
    requires(Order >= 3)
inline constexpr RealSmallKernel<float> kRealSmallOne<float, Layout, Inverse, Order, Scaled> =
    Inverse ? ownsRealSmallInversePairs<Layout, Order, Scaled> : ownsRealSmallForwardPairs<Layout, Order, Scaled>;

// At 2 * order + scaled.
template <class T, Packed Layout, bool Inverse>
inline constexpr RealSmallKernel<T> kRealSmall[12] = {
    kRealSmallOne<T, Layout, Inverse, 0, false>, kRealSmallOne<T, Layout, Inverse, 0, true>,
    kRealSmallOne<T, Layout, Inverse, 1, false>, kRealSmallOne<T, Layout, Inverse, 1, true>,
    kRealSmallOne<T, Layout, Inverse, 2, false>, kRealSmallOne<T, Layout, Inverse, 2, true>,
    kRealSmallOne<T, Layout, Inverse, 3, false>, kRealSmallOne<T, Layout, Inverse, 3, true>,
    kRealSmallOne<T, Layout, Inverse, 4, false>, kRealSmallOne<T, Layout, Inverse, 4, true>,
    kRealSmallOne<T, Layout, Inverse, 5, false>, kRealSmallOne<T, Layout, Inverse, 5, true>,
};

// The real inverse transform above the straight-line orders: the inverse
// recombination into the destination, then the half-length complex
// transform there.
template <class T>
void ownsRealInverseCall(const Record* rec, const T* src, T* dst, C<T>* work, Packed layout)
{
    const int order = rec->order;
    const Qsp64s n = Qsp64s(1) << order;
    // Perm and CCS hold bins 1 .. N/2 - 1 where the recombination reads
    // them, so it reads them from the source; Pack's bins are first moved
    // there in the destination (from the top down, so src may equal dst).
    if (layout == Packed::Pack) {
        const T r0 = src[0], rh = src[n - 1];
        for (Qsp64s i = n - 1; i >= 2; --i) dst[i] = src[i - 1];
        ownsRecombineInverseFrom<T>(rec, dst, dst, r0, rh, order);
    } else {
        ownsRecombineInverseFrom<T>(rec, src, dst, src[0], layout == Packed::Ccs ? src[n] : src[1], order);
    }
    C<T>* z = reinterpret_cast<C<T>*>(dst);
    ownsComplex<T, true>(rec, z, z, work, order - 1, rec->inverseNormalise != 0, factorOf<T>(rec));
}

template <class T, Packed Layout, bool Inverse>
__attribute__((noinline)) QspStatus ownsRealOutOfLine(const Record* rec, const T* src, T* dst, C<T>* work)
{
    if constexpr (Inverse)
        ownsRealInverseCall<T>(rec, src, dst, work, Layout);
    else
        ownsRealForwardCall<T>(rec, src, dst, work, Layout);
    return qspStsOk;
}

// The real kinds from their entry points, in either direction: the small
// orders end in a jump to their kernel. As for the complex kinds, only the
// other orders test the work buffer.
template <class T, Packed Layout, bool Inverse>
inline QspStatus ownsRealEntry(const void* spec, Kind kind, const T* src, T* dst, Qsp8u* work)
{
    if (QspStatus s = checkRecordAndData(spec, kind, src, dst)) return s;
    const Record* rec = static_cast<const Record*>(spec);
    const int order = rec->order;
    if (__builtin_expect(order <= kSmallMax, 1)) {
        const bool scaled = (Inverse ? rec->inverseNormalise : rec->forwardNormalise) != 0;
        return kRealSmall<T, Layout, Inverse>[2 * order + int(scaled)](src, dst, factorOf<T>(rec));
    }
    if (missingWork(rec, work)) return qspStsNullPtr;
    return ownsRealOutOfLine<T, Layout, Inverse>(rec, src, dst, workOf<C<T>>(rec, work));
}

}  // namespace fft

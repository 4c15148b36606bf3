// SPDX-License-Identifier: BSD-3-Clause
// Filters with few non-zero taps at arbitrary delays, shared by FIRSparse
// and IIRSparse (a sparse FIR is a sparse IIR without feedback taps):
//     s[n] = sum over j < nzFF of b[j] x[n - p[j]]
//     y[n] = s[n] - sum over k < nzFB of a[k] y[n - q[k]]
//
// Record, in caller memory from the first 64-byte boundary at or after the
// caller's pointer (every area 16-byte aligned):
//   header (64 bytes): identifier, tap counts, orders, block length
//   the taps (b then a), the positions (p then q)
//   xs: order1 + block samples of the arithmetic type: the input history
//       (order1 samples, oldest first) followed by room for one block
//   sums: block samples, the feed-forward sums of a block
//   ys: order2 + block samples: the output history, then room for a block
// The histories are the filter's delay line; they live in the record, so a
// record serves one stream at a time.
//
// A call runs in blocks of at most `block` samples: the block's inputs join
// the history in xs, the feed-forward sums are formed tap by tap over the
// whole block (one vectorised multiply-add pass per tap, taps in their
// given order), the feedback taps are applied sample by sample, and the
// newest order1 inputs and order2 outputs slide to the front. Every output
// is computed by the same sequence of roundings wherever it falls in a
// block, so calls on consecutive pieces of a stream give the bits of one
// call on the whole.
#pragma once
#include "checks.h"
#include "iir_kernels.h"
#include "samples.h"

namespace sparse {

// Samples of the arithmetic (float, double, Qsp32fc) seen as parts.
template <class T>
struct Parts {
    using P = T;
    static constexpr int n = 1;
};
template <>
struct Parts<Qsp32fc> {
    using P = float;
    static constexpr int n = 2;
};

struct Header {
    Qsp32u id;
    int nzFF, nzFB;   // tap counts
    int order1;       // largest feed-forward position
    int order2;       // largest feedback position (0 without feedback)
    int block;        // samples per block
    Qsp32s taps, pos, xs, sums, ys;  // byte offsets from the header
};
static_assert(sizeof(Header) <= 64);

constexpr Qsp64s align16(Qsp64s x) { return (x + 15) & ~Qsp64s(15); }

// Samples per block: at least 4096, and at least four times the longer
// history, so that sliding the histories costs at most a quarter of the
// block's own copies.
constexpr Qsp64s blockFor(Qsp64s order1, Qsp64s order2)
{
    const Qsp64s m = 4 * (order1 > order2 ? order1 : order2);
    return m > 4096 ? align16(m) : 4096;
}

struct Layout {
    Qsp64s taps, pos, xs, sums, ys, end, block;
};

template <class T>
Layout layoutFor(Qsp64s nz, Qsp64s order1, Qsp64s order2)
{
    Layout z;
    const Qsp64s s = sizeof(T);
    z.block = blockFor(order1, order2);
    z.taps = 64;
    z.pos = align16(z.taps + nz * s);
    z.xs = align16(z.pos + nz * 4);
    z.sums = align16(z.xs + (order1 + z.block) * s);
    z.ys = align16(z.sums + z.block * s);
    z.end = z.ys + (order2 > 0 ? (order2 + z.block) * s : 0);
    return z;
}

// The size query: the record plus the slack of aligning it.
template <class T>
QspStatus stateSize(Qsp64s nz, Qsp64s order1, Qsp64s order2, int* pSize)
{
    const Layout z = layoutFor<T>(nz, order1, order2);
    if (z.end + 63 > 0x7FFFFFFF) return qspStsOverflow;
    *pSize = int(z.end + 63);
    return qspStsOk;
}

template <class H>
H* alignUp64(void* p)
{
    return reinterpret_cast<H*>((reinterpret_cast<Qsp64u>(p) + 63) & ~Qsp64u(63));
}

// Positions ascending from `first` on.
inline bool ascending(const int* pos, int n, int first)
{
    for (int j = 0; j < n; ++j) {
        if (pos[j] < first) return false;
        first = pos[j] + 1;
    }
    return true;
}

inline Qsp8u* bytes(Header* h) { return reinterpret_cast<Qsp8u*>(h); }
inline const Qsp8u* bytes(const Header* h) { return reinterpret_cast<const Qsp8u*>(h); }

template <class T>
T* area(Header* h, Qsp32s off) { return reinterpret_cast<T*>(bytes(h) + off); }
template <class T>
const T* area(const Header* h, Qsp32s off) { return reinterpret_cast<const T*>(bytes(h) + off); }

// History samples from the caller's delay line (null: zeros), each
// converted exactly to the arithmetic's type.
template <class T, class V>
void loadHistory(T* dst, const V* src, int n)
{
    for (int k = 0; k < n; ++k) {
        if (!src) dst[k] = T{};
        else if constexpr (std::is_same_v<T, V>) dst[k] = simd::loadOne(src + k);
        else dst[k] = T(simd::loadOne(src + k));
    }
}

// Builds the record; the arguments are checked. taps: nzFF + nzFB values,
// pos their positions; dly: order1 input samples then order2 output
// samples, oldest first (null: zeros).
template <class T, class V>
Header* build(Qsp32u id, void* buf, const T* taps, const int* pos, int nzFF, int nzFB, const V* dly)
{
    const int order1 = pos[nzFF - 1];
    const int order2 = nzFB > 0 ? pos[nzFF + nzFB - 1] : 0;
    const Layout z = layoutFor<T>(nzFF + nzFB, order1, order2);
    Header* h = alignUp64<Header>(buf);
    h->id = id;
    h->nzFF = nzFF;
    h->nzFB = nzFB;
    h->order1 = order1;
    h->order2 = order2;
    h->block = int(z.block);
    h->taps = Qsp32s(z.taps);
    h->pos = Qsp32s(z.pos);
    h->xs = Qsp32s(z.xs);
    h->sums = Qsp32s(z.sums);
    h->ys = Qsp32s(z.ys);
    T* t = area<T>(h, h->taps);
    int* p = area<int>(h, h->pos);
    for (int j = 0; j < nzFF + nzFB; ++j) t[j] = simd::loadOne(taps + j), p[j] = simd::loadOne(pos + j);
    loadHistory(area<T>(h, h->xs), dly, order1);
    if (order2 > 0) loadHistory(area<T>(h, h->ys), dly ? dly + order1 : nullptr, order2);
    return h;
}

// ---------------------------------------------------------------- kernels

// acc[n] (+)= t * x[n] for n < count, x and acc in samples of T; `first`
// sets instead of adding. One register of parts at a time; a complex
// product is re = xr tr - xi ti, im = xi tr + xr ti, each product rounded,
// in the register and in the tail alike.
template <class T, bool First>
void multiplyAdd(T t, const T* x, T* acc, int count)
{
    using P = typename Parts<T>::P;
    using V = simd::Vec<P>;
    constexpr int S = Parts<T>::n;
    constexpr int perReg = V::lanes / S;
    const P* xp = reinterpret_cast<const P*>(x);
    P* ap = reinterpret_cast<P*>(acc);
    int n = 0;
    if constexpr (S == 1) {
        const typename V::Reg tv = V::splat(t);
        for (; n + 2 * perReg <= count; n += 2 * perReg) {
            typename V::Reg a = V::mul(V::loadu(xp + n), tv), b = V::mul(V::loadu(xp + n + perReg), tv);
            if constexpr (!First) a = V::add(V::loadu(ap + n), a), b = V::add(V::loadu(ap + n + perReg), b);
            V::storeu(ap + n, a);
            V::storeu(ap + n + perReg, b);
        }
        for (; n < count; ++n) ap[n] = First ? xp[n] * t : ap[n] + xp[n] * t;
    } else {
        const typename V::Reg tr = V::splat(t.re), ti = V::splat(t.im);
        for (; n + perReg <= count; n += perReg) {
            const typename V::Reg xv = V::loadu(xp + 2 * n);
            typename V::Reg a = V::addsub(V::mul(xv, tr), V::mul(V::swapParts(xv), ti));
            if constexpr (!First) a = V::add(V::loadu(ap + 2 * n), a);
            V::storeu(ap + 2 * n, a);
        }
        for (; n < count; ++n) {
            const P xr = xp[2 * n], xi = xp[2 * n + 1];
            const P re = xr * t.re - xi * t.im, im = xi * t.re + xr * t.im;
            ap[2 * n] = First ? re : ap[2 * n] + re;
            ap[2 * n + 1] = First ? im : ap[2 * n + 1] + im;
        }
    }
}

// The feedback of one sample, the farthest term first: s - a[nz-1]
// y[-q[nz-1]] - ... - a[0] y[-q[0]]. The nearest output, which the previous
// sample has only just produced, enters last, so that the chain from one
// output to the next is one multiply and one subtraction long.
template <class T>
T feedback(T s, const T* a, const int* q, int nz, const T* y)
{
    if constexpr (Parts<T>::n == 1) {
        for (int k = nz - 1; k >= 0; --k) s = s - a[k] * y[-q[k]];
    } else {
        for (int k = nz - 1; k >= 0; --k) {
            const T v = y[-q[k]];
            const float re = v.re * a[k].re - v.im * a[k].im, im = v.im * a[k].re + v.re * a[k].im;
            s = {s.re - re, s.im - im};
        }
    }
    return s;
}

// Sample input and output: IO::in converts a caller sample into T (exactly),
// IO::out writes a result.
template <class T>
struct SameIO {
    static void in(const T* src, T* dst, int n) { samples::copy(src, dst, n); }
    void out(T* dst, const T* y, int n) const { samples::copy(y, dst, n); }
    static T toCaller(T v) { return v; }
};

// 16-bit data, single-precision arithmetic, results by the scaling rule.
struct Scaled16 {
    iir::ScaledIO<float, Qsp16s> io;
    explicit Scaled16(int scaleFactor) : io(scaleFactor) {}
    static void in(const Qsp16s* src, float* dst, int n) { y8::qspsConvert_16s32f(src, dst, n); }
    void out(Qsp16s* dst, const float* y, int n) const
    {
        int i = 0;
        for (; i + 4 <= n; i += 4) io.store(dst + i, simd::Vec<float>::loadu(y + i));
        for (; i < n; ++i) io.storeOne(dst + i, y[i]);
    }
};

// Filters len samples through the record (arguments checked).
template <class T, class D, class IO>
void run(Header* h, const D* src, D* dst, int len, const IO& io)
{
    const int o1 = h->order1, o2 = h->order2, B = h->block, nzFF = h->nzFF, nzFB = h->nzFB;
    const T* b = area<T>(h, h->taps);
    const T* a = b + nzFF;
    const int* p = area<int>(h, h->pos);
    const int* q = p + nzFF;
    T* xs = area<T>(h, h->xs);
    T* sums = area<T>(h, h->sums);
    T* ys = area<T>(h, h->ys);
    for (int done = 0; done < len;) {
        const int n = len - done < B ? len - done : B;
        IO::in(src + done, xs + o1, n);
        const T* x = xs + o1;
        multiplyAdd<T, true>(b[0], x - p[0], sums, n);
        for (int j = 1; j < nzFF; ++j) multiplyAdd<T, false>(b[j], x - p[j], sums, n);
        const T* y = sums;
        if (nzFB > 0) {
            T* yo = ys + o2;
            bool done = false;
            if constexpr (Parts<T>::n == 1) {
                if (q[0] == 1) {
                    // The nearest output kept in a register rather than read
                    // back from memory: the same arithmetic, a shorter chain.
                    T prev = yo[-1];
                    for (int i = 0; i < n; ++i) {
                        const T s = feedback(sums[i], a + 1, q + 1, nzFB - 1, yo + i);
                        prev = s - a[0] * prev;
                        yo[i] = prev;
                    }
                    done = true;
                }
            }
            if (!done)
                for (int i = 0; i < n; ++i) yo[i] = feedback(sums[i], a, q, nzFB, yo + i);
            y = yo;
        }
        io.out(dst + done, y, n);
        if (nzFB > 0) samples::move(ys + n, ys, o2);
        samples::move(xs + n, xs, o1);
        done += n;
    }
}

// A filtering call: checks (pointers, length, the record's identifier),
// then the run.
template <class T, class D, class S, class IO>
QspStatus filter(Qsp32u id, const D* pSrc, D* pDst, int len, S* pState, const IO& io)
{
    if (QspStatus s = check::vectors(len, pSrc, pDst, pState)) return s;
    auto* h = reinterpret_cast<Header*>(pState);
    if (h->id != id) return qspStsBadRecord;
    run<T>(h, pSrc, pDst, len, io);
    return qspStsOk;
}

}  // namespace sparse

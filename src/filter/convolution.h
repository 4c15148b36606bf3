// SPDX-License-Identifier: BSD-3-Clause
// Linear convolution and correlation: the engine behind Convolve,
// ConvBiased, AutoCorrNorm and CrossCorrNorm.
//
// Everything is one sum,
//     y[j] = sum over i < M of t[i] x[m0 + j - i],   0 <= j < count,
// over a finite signal x (xLen samples, zeros outside) and M taps read
// through a view (natural or reversed order, conjugated or not):
// convolution takes the shorter operand as taps, correlation the reversed
// conjugate of one operand. Outputs outside [0, xLen + M - 1) are zeros;
// the rest are computed
//   - directly, with the register-blocked FIR kernel (taps broadcast into
//     the work buffer once), the first and last M - 1 outputs from a zero
//     padded copy of the ends of x, the others from x itself; or
//   - by overlap-save with an FFT of length L >= 2M chosen per call (one
//     block of the whole length when that is cheapest), the transform
//     record built in the work buffer.
// 16-bit data is convolved exactly: converted to double, where the direct
// sums are exact (taps taken 2^22 at a time) and the transform's error is
// kept far below one half (the operands split into 8-bit halves when their
// norms could bring it near), then rounded to 64-bit integers.
#pragma once
#include <type_traits>

#include "fir_direct.h"
#include "overlap_save.h"
#include "qsp_validators.h"
#include "samples.h"
#include "simd.h"

namespace conv {

inline Qsp64s roundUp64(Qsp64s x) { return (x + 63) & ~Qsp64s(63); }

template <class T>
inline T* alignUp64(T* p)
{
    return reinterpret_cast<T*>((reinterpret_cast<Qsp64u>(p) + 63) & ~Qsp64u(63));
}

// ---------------------------------------------------------------- element types

// The part type and the direct kernel's kind of a data type: real data with
// real taps, complex data (a pair of parts) with complex taps.
template <class D, bool = std::is_floating_point_v<D>>
struct PartOf {
    using type = D;
};
template <class D>
struct PartOf<D, false> {
    using type = decltype(D::re);
};

template <class D>
struct Traits {
    using Part = typename PartOf<D>::type;
    using Kind = std::conditional_t<std::is_floating_point_v<D>, fir::RealKind<Part>, fir::ComplexKind<Part>>;
};

// Tap i is p[i * Step], conjugated when Conj (complex types only).
template <class D, int Step, bool Conj>
struct Taps {
    const D* p;
    fir::ScalarTaps<typename Traits<D>::Part, Step, Conj> scalar() const
    {
        return {reinterpret_cast<const typename Traits<D>::Part*>(p)};
    }
    D at(Qsp64s i) const
    {
        D v = p[i * Step];
        if constexpr (Conj) v.im = -v.im;
        return v;
    }
};

// ---------------------------------------------------------------- plans

// The relative costs the choice between the methods rests on, in units of
// one multiply-add of the direct kernel in single precision (about 0.047 ns
// on the SSE4.2 core they were measured on):
//   direct     a multiply-add of the type (complex: one complex product);
//   transform  per point and level of a transform of the type's kind (real
//              transforms for real data), with the penalty of lengths
//              beyond the second-level cache;
//   block      per point of a block: the product with the spectrum and the
//              copies around the transforms;
//   call       per block, the fixed cost of its calls;
//   record     building a transform record, in transforms of its length.
// They were fitted to the thread times of Convolve with qspAlgDirect and
// qspAlgFFT for taps of 4 .. 1024 against signals of 256, 4096 and 65536
// samples (qsp_bench_conv, cases conv_<type>/m/n: fastest of 3 to 40 runs
// each). The crossovers they give for long signals: 32f about 56 taps, 64f
// about 36, 32fc and 64fc about 18.
template <class D>
struct Costs;
template <>
struct Costs<Qsp32f> {
    static constexpr double direct = 1.0, transform = 2.1, block = 1.7, call = 3000, record = 1.5;
};
template <>
struct Costs<Qsp64f> {
    static constexpr double direct = 2.4, transform = 4.0, block = 3.0, call = 3000, record = 1.5;
};
template <>
struct Costs<Qsp32fc> {
    static constexpr double direct = 3.8, transform = 4.2, block = 2.7, call = 3000, record = 1.5;
};
template <>
struct Costs<Qsp64fc> {
    static constexpr double direct = 9.5, transform = 10.0, block = 6.0, call = 3000, record = 1.5;
};

// Transforms beyond 2^18 points leave the caches.
inline double lengthPenalty(int order) { return order <= 18 ? 1.0 : order <= 20 ? 1.6 : 4.0; }

enum class Method { Direct, Fft };

struct Plan {
    Method method;
    bool whole;               // one transform of the whole zero-padded signal
    int order;                // the transform's, for Fft
    Qsp64s fftLen;
    overlap::FftSizes fft;
    Qsp64s bytes;             // the work buffer, alignment slack included
};

// Largest order of the transform kinds (the real ones go one further; the
// complex ones bound the complex types).
template <class D>
constexpr int kMaxOrder = std::is_same_v<D, Qsp32f> ? 29 : std::is_same_v<D, Qsp64fc> ? 27 : 28;

template <class D>
Qsp64s directBytes(Qsp64s m)
{
    using K = typename Traits<D>::Kind;
    const Qsp64s h = m > 1 ? m - 1 : 1;
    return roundUp64(fir::splatParts<K>(m) * Qsp64s(sizeof(typename K::Part))) + 64 + roundUp64(2 * h * sizeof(D)) + 64;
}

template <class D>
Qsp64s fftBytes(const overlap::FftSizes& f, Qsp64s len)
{
    return f.spec + f.init + f.work + 2 * roundUp64(len * Qsp64s(sizeof(D))) + 64;
}

inline int ceilLog2(Qsp64s n)
{
    int k = 0;
    while ((Qsp64s(1) << k) < n) ++k;
    return k;
}

// The plan for m taps over xLen samples, `count` outputs that reach into
// the signal: the method the algorithm type asks for, or for qspAlgAuto the
// cheaper by the costs above. The transform's candidates are overlap-save
// with blocks of 2 to 64 times the taps, and one block of the whole
// zero-padded signal (length at least xLen + m - 1, no values discarded:
// what wraps around is the padding). bytes < 0 when nothing fits in an int.
template <class D>
Plan plan(Qsp64s m, Qsp64s xLen, Qsp64s count, QspAlgType alg)
{
    using C = Costs<D>;
    const Plan direct{Method::Direct, false, 0, 0, {0, 0, 0}, directBytes<D>(m) > 0x7FFFFFFF ? -1 : directBytes<D>(m)};
    if (alg == qspAlgDirect) return direct;
    struct Candidate {
        int order;
        bool whole;
        double cost;
    } cands[8];
    int n = 0;
    auto transform = [](int order) { return C::transform * double(Qsp64s(1) << order) * order * lengthPenalty(order); };
    const int lo = ceilLog2(2 * m);
    // Any transform plan costs at least three transforms of the shortest
    // length and a record: short taps stop here.
    const double directCost = C::direct * double(m) * double(count);
    if (alg == qspAlgAuto && directCost <= transform(lo) * (3 + C::record)) return direct;
    for (int order = lo; order <= lo + 5 && order <= kMaxOrder<D>; ++order) {
        const Qsp64s len = Qsp64s(1) << order, step = len - (m - 1);
        const double blocks = double((count + step - 1) / step);
        cands[n++] = {order, false,
                      transform(order) * (2 * blocks + 1 + C::record) + (C::block * double(len) + C::call) * blocks};
        if (blocks <= 1) break;
    }
    const int whole = ceilLog2(xLen + m - 1);
    if (whole <= kMaxOrder<D>) {
        const Qsp64s len = Qsp64s(1) << whole;
        cands[n++] = {whole, true, transform(whole) * (3 + C::record) + C::block * double(len) + C::call};
    }
    // Direct unless a candidate is cheaper; then the cheapest whose buffer
    // fits (the size queries only once the transform is chosen).
    Plan best{Method::Fft, false, 0, 0, {0, 0, 0}, -1};
    for (;;) {
        int pick = -1;
        for (int i = 0; i < n; ++i)
            if (cands[i].order >= 0 && (pick < 0 || cands[i].cost < cands[pick].cost)) pick = i;
        if (pick < 0) return alg == qspAlgFFT ? best : direct;
        if (alg == qspAlgAuto && cands[pick].cost >= directCost) return direct;
        overlap::FftSizes f;
        const Qsp64s len = Qsp64s(1) << cands[pick].order;
        if (overlap::fftSizes<D>(cands[pick].order, f) && fftBytes<D>(f, len) <= 0x7FFFFFFF)
            return {Method::Fft, cands[pick].whole, cands[pick].order, len, f, fftBytes<D>(f, len)};
        cands[pick].order = -1;
    }
}

// ---------------------------------------------------------------- floating engine

// y[j] = sum over i < m of t[i] x[m0 + j - i] for j < count; x has xLen
// samples, zeros outside. y must not overlap x or the taps.
template <class D, int Step, bool Conj>
QspStatus ownsConvolve(Taps<D, Step, Conj> taps, Qsp64s m, const D* x, Qsp64s xLen, Qsp64s m0, D* y, Qsp64s count,
                       const Plan& pl, Qsp8u* work)
{
    using K = typename Traits<D>::Kind;
    using P = typename Traits<D>::Part;
    const Qsp64s end = xLen + m - 1;  // outputs from `end` on are zeros
    // Leading and trailing zeros.
    Qsp64s lead = m0 < 0 ? -m0 : 0;
    if (lead > count) lead = count;
    samples::zero(y, lead);
    const Qsp64s first = m0 + lead;
    Qsp64s inside = end - first;
    if (inside > count - lead) inside = count - lead;
    if (inside < 0) inside = 0;
    samples::zero(y + lead + inside, count - lead - inside);
    if (inside == 0) return qspStsOk;
    y += lead;

    if (pl.method == Method::Fft) {
        using Fft = overlap::Fft<D>;
        Qsp8u* mem = work;
        Qsp8u* init = mem + pl.fft.spec;
        Qsp8u* fftWork = init + pl.fft.init;
        D* spectrum = reinterpret_cast<D*>(alignUp64(fftWork + pl.fft.work));
        D* block = reinterpret_cast<D*>(reinterpret_cast<Qsp8u*>(spectrum) + roundUp64(pl.fftLen * Qsp64s(sizeof(D))));
        typename Fft::Spec* spec = nullptr;
        if (QspStatus s = Fft::init(&spec, pl.order, mem, init)) return s;
        for (Qsp64s i = 0; i < m; ++i) spectrum[i] = taps.at(i);
        if (QspStatus s = overlap::ownsSpectrum<D>(spec, m, spectrum, pl.fftLen, fftWork)) return s;
        if (pl.whole) {
            // The whole signal in one block: the circular convolution is the
            // linear one, since what wraps around is the zero padding.
            samples::copy(x, block, xLen);
            samples::zero(block + xLen, pl.fftLen - xLen);
            QspStatus s = Fft::forward(block, block, spec, fftWork);
            if (s >= 0) s = Fft::multiply(spectrum, block, int(pl.fftLen));
            if (s >= 0) s = Fft::inverse(block, block, spec, fftWork);
            if (s >= 0) samples::copy(block + first, y, inside);
            return s < 0 ? s : qspStsOk;
        }
        const overlap::Filter<D> f{spec, spectrum, pl.fftLen, m, block, fftWork};
        return overlap::ownsOverlapSave(f, samples::Signal<D>{nullptr, 0, x, xLen}, first, y, inside);
    }

    // Direct: the taps broadcast once; outputs whose window leaves x come
    // from a zero-padded copy of its ends, in pieces of at most h outputs.
    P* splat = reinterpret_cast<P*>(alignUp64(work));
    fir::splatFrom<K>(taps.scalar(), m, splat);
    const fir::SplatTaps<P> st{splat};
    const Qsp64s h = m - 1;
    D* pad = reinterpret_cast<D*>(alignUp64(reinterpret_cast<Qsp8u*>(splat) + fir::splatParts<K>(m) * Qsp64s(sizeof(P))));
    const samples::Signal<D> sx{nullptr, 0, x, xLen};
    Qsp64s j = 0;
    while (j < inside) {
        const Qsp64s at = first + j;  // the output index
        if (at >= h && at < xLen) {
            // Whole windows inside x.
            Qsp64s n = xLen - at;
            if (n > inside - j) n = inside - j;
            fir::ownsFir<K>(st, m, x + at, y + j, n);
            j += n;
            continue;
        }
        // A piece up to where windows start lying inside x (or h outputs).
        Qsp64s n = at < h ? h - at : (h > 0 ? h : 1);
        if (n > inside - j) n = inside - j;
        samples::gather(sx, at - h, h + n, pad);
        fir::ownsFir<K>(st, m, pad + h, y + j, n);
        j += n;
    }
    return qspStsOk;
}

// ---------------------------------------------------------------- 16-bit engine

// Taps of the direct method in one piece: with 16-bit operands every
// product is at most 2^30 in magnitude, so 2^22 of them sum exactly in
// double precision.
constexpr Qsp64s kExactTaps = Qsp64s(1) << 22;

// The transform's rounding error stays below 2^-9 while the product of the
// operands' norms times log2 of the length stays below 2^44 (the error of
// an FFT convolution is a few units of 2^-53 times that product); beyond,
// the operands are split into 8-bit halves.
constexpr double kWholeNorms = 17592186044416.0;  // 2^44

struct Plan16 {
    Plan inner;    // the double-precision engine's
    Qsp64s bytes;  // everything, or < 0 when it does not fit in an int
};

inline Plan16 plan16(Qsp64s m, Qsp64s xLen, Qsp64s count, QspAlgType alg)
{
    Plan inner = plan<Qsp64f>(m, xLen, count, alg);
    if (inner.method == Method::Direct) inner.bytes = directBytes<Qsp64f>(m < kExactTaps ? m : kExactTaps);
    if (inner.bytes < 0) return {inner, -1};
    const Qsp64s bytes = roundUp64(8 * m) + roundUp64(8 * xLen) + 2 * roundUp64(8 * count) + inner.bytes + 64;
    return {inner, bytes > 0x7FFFFFFF ? -1 : bytes};
}

// The value of a 16-bit sample in one part of the split: whole, high half
// (arithmetic shift), low half (0..255) or their sum.
enum class Part { Whole, High, Low, Sum };

inline double partOf(Qsp16s v, Part p)
{
    switch (p) {
    case Part::High: return double(v >> 8);
    case Part::Low: return double(v & 255);
    case Part::Sum: return double((v >> 8) + (v & 255));
    default: return double(v);
    }
}

// Exact y[j] = sum over i < m of t[i] x[first + j - i] for j < count, with
// t[i] = taps[i * step], x of xLen samples (zeros outside), into acc. The
// outputs must all lie in [0, xLen + m - 1).
inline QspStatus ownsConvolve16(const Qsp16s* taps, int step, Qsp64s m, const Qsp16s* x, Qsp64s xLen, Qsp64s first,
                                Qsp64s count, Qsp64s* acc, const Plan16& pl, Qsp8u* work)
{
    double* t64 = reinterpret_cast<double*>(alignUp64(work));
    double* x64 = t64 + roundUp64(8 * m) / 8;
    double* sub = x64 + roundUp64(8 * xLen) / 8;
    Qsp8u* inner = reinterpret_cast<Qsp8u*>(sub + roundUp64(8 * count) / 8);
    const bool direct = pl.inner.method == Method::Direct;
    bool split = false;
    if (!direct) {
        double nt = 0, nx = 0;
        for (Qsp64s i = 0; i < m; ++i) nt += double(taps[i * step]) * double(taps[i * step]);
        for (Qsp64s k = 0; k < xLen; ++k) nx += double(x[k]) * double(x[k]);
        split = simd::sqrtOne(nt * nx) * pl.inner.order >= kWholeNorms;
    }
    // a b = 65280 HH + 256 SS - 255 LL, with a = 256 aH + aL and S = H + L.
    const Part parts[3] = {split ? Part::High : Part::Whole, Part::Sum, Part::Low};
    const Qsp64s weights[3] = {split ? 65280 : 1, 256, -255};
    for (int p = 0; p < (split ? 3 : 1); ++p) {
        for (Qsp64s i = 0; i < m; ++i) t64[i] = partOf(taps[i * step], parts[p]);
        for (Qsp64s k = 0; k < xLen; ++k) x64[k] = partOf(x[k], parts[p]);
        const Qsp64s piece = direct ? kExactTaps : m;
        for (Qsp64s c = 0; c < m; c += piece) {
            const Qsp64s n = m - c < piece ? m - c : piece;
            if (QspStatus s = ownsConvolve(Taps<Qsp64f, 1, false>{t64 + c}, n, x64, xLen, first - c, sub, count,
                                           pl.inner, inner))
                return s;
            const Qsp64s w = weights[p];
            const bool start = p == 0 && c == 0;
            for (Qsp64s j = 0; j < count; ++j) {
                const Qsp64s v = Qsp64s(simd::roundEven(sub[j])) * w;
                acc[j] = start ? v : acc[j] + v;
            }
        }
    }
    return qspStsOk;
}

}  // namespace conv

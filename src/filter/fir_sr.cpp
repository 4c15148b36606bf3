// SPDX-License-Identifier: BSD-3-Clause
// FIRSR: the single-rate FIR filter. Size query, record set-up from the
// taps, and filtering by the direct form or by overlap-save, with the
// filter's history passed in and out through caller delay lines.
#include "checks.h"
#include "fir_direct.h"
#include "fir_sr_record.h"
#include "overlap_save.h"
#include "qsp_validators.h"
#include "samples.h"

namespace y8 {
namespace {

using firsr::Record;

// ---------------------------------------------------------------- types

// One filter type: data D, taps T, the direct kernel's kind and the
// per-type constants: the automatic choice takes the FFT method from
// fftTaps taps and fftIters samples per call on; in-place calls are staged
// in blocks of `staging` samples (32768 bytes); from splitFrom taps on the
// tap area holds reversed copies instead of broadcast registers.
template <class D, class T, class K, int FftTaps, int FftIters, int SplitFrom>
struct Type {
    using Data = D;
    using Tap = T;
    using Kind = K;
    using Part = typename K::Part;
    static constexpr int fftTaps = FftTaps;
    static constexpr unsigned fftIters = FftIters;
    static constexpr int staging = int(firsr::kStagingBytes / sizeof(D));
    static constexpr int splitFrom = SplitFrom;
    // Samples per vector register, and parts per tap.
    static constexpr int perVector = simd::Vec<Part>::lanes / K::partsPerSample;
    static constexpr int tapParts = K::complexTaps ? 2 : 1;
};

// The complex thresholds of the layout are the kernels' own: below them
// the broadcast registers (32 bytes a complex tap, 16 a real one) stay
// small enough for the first-level cache beside the data.
using T32f = Type<Qsp32f, Qsp32f, fir::RealKind<float>, 64, 128, 32>;
using T64f = Type<Qsp64f, Qsp64f, fir::RealKind<double>, 38, 128, 9>;
using T32f32fc = Type<Qsp32fc, Qsp32f, fir::MixedKind<float>, 64, 256, 32>;
using T32fc = Type<Qsp32fc, Qsp32fc, fir::ComplexKind<float>, 18, 256, 32>;
using T64fc = Type<Qsp64fc, Qsp64fc, fir::ComplexKind<double>, 18, 256, 32>;

// ---------------------------------------------------------------- sizes

template <class F>
QspStatus getSize(int tapsLen, int* pSpecSize, int* pBufSize)
{
    firsr::Sizes z;
    if (!firsr::sizesFor<typename F::Data>(tapsLen, z)) return qspStsOverflow;
    *pSpecSize = int(z.record);
    *pBufSize = int(z.buffer);
    return qspStsOk;
}

// ---------------------------------------------------------------- init

// Layout 0: broadcast registers, natural order.
// Layout 1: perVector reversed copies, copy k shifted by k taps.
template <class F>
void fillTaps(const typename F::Tap* pTaps, int n, Qsp32u layout, Qsp64s areaBytes, typename F::Part* area)
{
    using P = typename F::Part;
    const P* taps = reinterpret_cast<const P*>(pTaps);
    if (layout == 0) {
        fir::splatTaps<typename F::Kind>(taps, n, area);
        return;
    }
    qspsZero_8u(reinterpret_cast<Qsp8u*>(area), int(areaBytes));
    constexpr int V = F::perVector, tp = F::tapParts;
    const Qsp64s len = (Qsp64s(n) + 2 * V - 2) & ~Qsp64s(V - 1);
    for (int k = 0; k < V; ++k) {
        P* copy = area + (k * len + k) * tp;
        for (int i = 0; i < n; ++i)
            for (int p = 0; p < tp; ++p) copy[i * tp + p] = taps[(n - 1 - i) * tp + p];
    }
}

// The taps as data samples (real taps of complex data get zero imaginary
// parts), the start of their transform.
template <class F>
void tapsAsSamples(const typename F::Tap* pTaps, int n, typename F::Data* dst)
{
    if constexpr (sizeof(typename F::Tap) == sizeof(typename F::Data)) {
        samples::copy(pTaps, dst, n);
    } else {
        for (int i = 0; i < n; ++i) dst[i] = {pTaps[i], 0.0f};
    }
}

template <class F>
QspStatus init(const typename F::Tap* pTaps, int tapsLen, QspAlgType algType, void* pSpec)
{
    using D = typename F::Data;
    if (tapsLen < 1) return qspStsBadSize;
    if (QspStatus s = check::pointers(pTaps, pSpec)) return s;
    if (static_cast<unsigned>(algType) > 2u) return qspStsBadAlgType;
    firsr::Sizes z;
    if (!firsr::sizesFor<D>(tapsLen, z)) return qspStsOverflow;

    Record* r = firsr::alignUp64(static_cast<Record*>(pSpec));
    qspsZero_8u(reinterpret_cast<Qsp8u*>(r), int(firsr::kHeaderBytes));
    Qsp8u* area = reinterpret_cast<Qsp8u*>(r) + firsr::kHeaderBytes;
    r->tapsLen = tapsLen;
    r->taps = area;
    r->layout = tapsLen >= F::splitFrom ? 1u : 0u;
    r->algType = static_cast<Qsp32u>(algType);
    fillTaps<F>(pTaps, tapsLen, r->layout, z.tapArea, reinterpret_cast<typename F::Part*>(area));
    if (algType == qspAlgDirect) return qspStsOk;

    using Fft = overlap::Fft<D>;
    Qsp8u* mem = area + z.tapArea;
    Qsp8u* work = mem + z.fft.spec;
    const Qsp64s workBytes = z.fft.init > z.fft.work ? z.fft.init : z.fft.work;
    D* spectrum = reinterpret_cast<D*>(firsr::alignUp64(work + workBytes));
    typename Fft::Spec* spec = nullptr;
    if (QspStatus s = Fft::init(&spec, z.order, mem, work)) return s;
    r->fftSpec = spec;
    r->fftSpecMem = mem;
    r->fftWork = work;
    r->spectrum = spectrum;
    r->fftLen = static_cast<Qsp32u>(z.fftLen);
    tapsAsSamples<F>(pTaps, tapsLen, spectrum);
    return overlap::ownsSpectrum<D>(spec, tapsLen, spectrum, z.fftLen, work);
}

// ---------------------------------------------------------------- filtering

// The direct kernel over count outputs with the record's taps.
template <class F>
void ownsDirect(const Record* r, const typename F::Data* x, typename F::Data* y, Qsp64s count)
{
    using P = typename F::Part;
    const Qsp64s n = r->tapsLen;
    const P* taps = static_cast<const P*>(r->taps);
    if (r->layout == 0) fir::ownsFir<typename F::Kind>(fir::SplatTaps<P>{taps}, n, x, y, count);
    else fir::ownsFir<typename F::Kind>(fir::ScalarTaps<P, -1>{taps + (n - 1) * F::tapParts}, n, x, y, count);
}

// pDlyDst gets the last N - 1 samples of delay line (or zeros) and input.
template <class D>
void writeDelay(const D* src, Qsp64s count, const D* dly, D* dlyDst, Qsp64s h)
{
    if (count >= h) {
        samples::copy(src + count - h, dlyDst, h);
    } else {
        samples::copyOrZero(dly ? dly + count : nullptr, dlyDst, h - count);
        samples::copy(src, dlyDst + h - count, count);
    }
}

// One call's worth of filtering by the chosen method, the delay source
// and destination being distinct from each other and from the data.
template <class F>
struct Filtering {
    using D = typename F::Data;
    const Record* r;
    firsr::WorkAreas<D> w;
    bool fft;

    QspStatus run(const D* src, D* dst, Qsp64s count, const D* dly, D* dlyDst) const
    {
        const Qsp64s h = r->tapsLen - 1;
        if (dlyDst) writeDelay(src, count, dly, dlyDst, h);
        if (fft) {
            const overlap::Filter<D> f{static_cast<const typename overlap::Fft<D>::Spec*>(r->fftSpec),
                                       static_cast<const D*>(r->spectrum), r->fftLen, r->tapsLen, w.block, w.fftWork};
            return overlap::ownsOverlapSave(f, samples::Signal<D>{dly, h, src, count}, 0, dst, count);
        }
        // The first outputs reach back into the delay line: they are taken
        // from a copy of it followed by the first inputs; the rest from the
        // input itself.
        const Qsp64s head = count < h ? count : h;
        if (head > 0) {
            samples::copyOrZero(dly, w.head, h);
            samples::copy(src, w.head + h, head);
            ownsDirect<F>(r, w.head + h, dst, head);
        }
        if (count > head) ownsDirect<F>(r, src + head, dst + head, count - head);
        return qspStsOk;
    }
};

template <class F>
bool chooseFft(const Record* r, int numIters)
{
    if (r->algType == qspAlgFFT) return true;
    if (r->algType != qspAlgAuto) return false;
    return r->tapsLen >= F::fftTaps && static_cast<unsigned>(numIters) >= F::fftIters;
}

// The transform's work-buffer size, for the areas behind it.
template <class F>
Qsp64s fftWorkBytes(const Record* r, bool fft)
{
    overlap::FftSizes z{0, 0, 0};
    if (fft) overlap::fftSizes<typename F::Data>(firsr::fftOrder(r->tapsLen), z);
    return z.work;
}

template <class F>
QspStatus filter(const typename F::Data* pSrc, typename F::Data* pDst, int numIters, const void* pSpec,
                 const typename F::Data* pDlySrc, typename F::Data* pDlyDst, Qsp8u* pBuf)
{
    using D = typename F::Data;
    if (pSpec == nullptr) return qspStsNullPtr;
    if (QspStatus s = check::pointers(pSrc, pDst, pBuf)) return s;
    if (numIters < 1) return qspStsBadSize;

    const Record* r = firsr::recordOf(pSpec);
    const Qsp64s h = r->tapsLen - 1;
    const bool fft = chooseFft<F>(r, numIters);
    const Filtering<F> f{r, firsr::workAreas<D>(pBuf, r->tapsLen, fftWorkBytes<F>(r, fft)), fft};

    if (pSrc == pDst || pDst == pDlySrc) {
        // The output overwrites input or history still to be read: filter
        // block by block into the staging area, the history carried in the
        // work buffer.
        samples::copyOrZero(pDlySrc, f.w.delay, h);
        for (Qsp64s done = 0; done < numIters; done += F::staging) {
            const Qsp64s count = numIters - done < F::staging ? numIters - done : F::staging;
            if (QspStatus s = f.run(pSrc + done, f.w.staged, count, f.w.delay, f.w.delayNext)) return s;
            samples::copy(f.w.delayNext, f.w.delay, h);
            samples::copy(f.w.staged, pDst + done, count);
        }
        if (pDlyDst) samples::copy(f.w.delay, pDlyDst, h);
        return qspStsOk;
    }
    if (pDlyDst == pDlySrc) {
        // Writing the new delay line must not spoil the one being read.
        samples::copyOrZero(pDlySrc, f.w.delay, h);
        return f.run(pSrc, pDst, numIters, f.w.delay, pDlyDst);
    }
    return f.run(pSrc, pDst, numIters, pDlySrc, pDlyDst);
}

// ---------------------------------------------------------------- 16-bit

// 16-bit data through a single-precision record F, always by the direct
// method: blocks converted to single precision behind the single-precision
// history, filtered, and rounded back with saturation.
template <class F, class I>
QspStatus filter16(const I* pSrc, I* pDst, int numIters, const void* pSpec, const I* pDlySrc, I* pDlyDst, Qsp8u* pBuf)
{
    using D = typename F::Data;
    constexpr int S = F::Kind::partsPerSample;
    constexpr int block = F::staging / 2;
    if (pSpec == nullptr) return qspStsNullPtr;
    if (QspStatus s = check::pointers(pSrc, pDst, pBuf)) return s;
    if (numIters < 1) return qspStsBadSize;

    const Record* r = firsr::recordOf(pSpec);
    const Qsp64s h = r->tapsLen - 1;
    const firsr::WorkAreas<D> w = firsr::workAreas<D>(pBuf, r->tapsLen, 0);
    D* in = w.staged;          // block samples, the history right before them
    D* out = w.staged + block;
    auto widen = [](const I* s, D* d, Qsp64s n) {
        qspsConvert_16s32f(reinterpret_cast<const Qsp16s*>(s), reinterpret_cast<Qsp32f*>(d), int(n * S));
    };
    auto narrow = [](const D* s, I* d, Qsp64s n) {
        qspsConvert_32f16s_Sfs(reinterpret_cast<const Qsp32f*>(s), reinterpret_cast<Qsp16s*>(d), int(n * S),
                               qspRndNear, 0);
    };
    if (h > 0) {
        if (pDlySrc) widen(pDlySrc, in - h, h);
        else samples::zero(in - h, h);
    }
    for (Qsp64s done = 0; done < numIters; done += block) {
        const Qsp64s count = numIters - done < block ? numIters - done : block;
        widen(pSrc + done, in, count);
        ownsDirect<F>(r, in, out, count);
        samples::move(in + count - h, in - h, h);
        narrow(out, pDst + done, count);
    }
    if (pDlyDst && h > 0) narrow(in - h, pDlyDst, h);
    return qspStsOk;
}

}  // namespace

// ---------------------------------------------------------------- exports

QspStatus qspsFIRSRGetSize(int tapsLen, QspDataType tapsType, int* pSpecSize, int* pBufSize)
{
    if (tapsLen < 1) return qspStsBadSize;
    if (tapsType != qsp32f && tapsType != qsp32fc && tapsType != qsp64f && tapsType != qsp64fc)
        return qspStsBadDataType;
    if (QspStatus s = check::pointers(pSpecSize, pBufSize)) return s;
    switch (tapsType) {
    case qsp32f: return getSize<T32f>(tapsLen, pSpecSize, pBufSize);
    case qsp64f: return getSize<T64f>(tapsLen, pSpecSize, pBufSize);
    case qsp32fc: return getSize<T32fc>(tapsLen, pSpecSize, pBufSize);
    default: return getSize<T64fc>(tapsLen, pSpecSize, pBufSize);
    }
}

// Real single-precision taps on complex data take the sizes of complex
// taps: the same complex transform and complex spectrum.
QspStatus qspsFIRSRGetSize32f_32fc(int tapsLen, int* pSpecSize, int* pBufSize)
{
    if (tapsLen < 1) return qspStsBadSize;
    if (QspStatus s = check::pointers(pSpecSize, pBufSize)) return s;
    return getSize<T32f32fc>(tapsLen, pSpecSize, pBufSize);
}

QspStatus qspsFIRSRInit_32f(const Qsp32f* pTaps, int tapsLen, QspAlgType algType, QspsFIRSpec_32f* pSpec)
{
    return init<T32f>(pTaps, tapsLen, algType, pSpec);
}

QspStatus qspsFIRSRInit_64f(const Qsp64f* pTaps, int tapsLen, QspAlgType algType, QspsFIRSpec_64f* pSpec)
{
    return init<T64f>(pTaps, tapsLen, algType, pSpec);
}

QspStatus qspsFIRSRInit_32fc(const Qsp32fc* pTaps, int tapsLen, QspAlgType algType, QspsFIRSpec_32fc* pSpec)
{
    return init<T32fc>(pTaps, tapsLen, algType, pSpec);
}

QspStatus qspsFIRSRInit_64fc(const Qsp64fc* pTaps, int tapsLen, QspAlgType algType, QspsFIRSpec_64fc* pSpec)
{
    return init<T64fc>(pTaps, tapsLen, algType, pSpec);
}

QspStatus qspsFIRSRInit32f_32fc(const Qsp32f* pTaps, int tapsLen, QspAlgType algType, QspsFIRSpec32f_32fc* pSpec)
{
    return init<T32f32fc>(pTaps, tapsLen, algType, pSpec);
}

QspStatus qspsFIRSR_32f(const Qsp32f* pSrc, Qsp32f* pDst, int numIters, QspsFIRSpec_32f* pSpec, const Qsp32f* pDlySrc,
                        Qsp32f* pDlyDst, Qsp8u* pBuf)
{
    return filter<T32f>(pSrc, pDst, numIters, pSpec, pDlySrc, pDlyDst, pBuf);
}

QspStatus qspsFIRSR_64f(const Qsp64f* pSrc, Qsp64f* pDst, int numIters, QspsFIRSpec_64f* pSpec, const Qsp64f* pDlySrc,
                        Qsp64f* pDlyDst, Qsp8u* pBuf)
{
    return filter<T64f>(pSrc, pDst, numIters, pSpec, pDlySrc, pDlyDst, pBuf);
}

QspStatus qspsFIRSR_32fc(const Qsp32fc* pSrc, Qsp32fc* pDst, int numIters, QspsFIRSpec_32fc* pSpec,
                         const Qsp32fc* pDlySrc, Qsp32fc* pDlyDst, Qsp8u* pBuf)
{
    return filter<T32fc>(pSrc, pDst, numIters, pSpec, pDlySrc, pDlyDst, pBuf);
}

QspStatus qspsFIRSR_64fc(const Qsp64fc* pSrc, Qsp64fc* pDst, int numIters, QspsFIRSpec_64fc* pSpec,
                         const Qsp64fc* pDlySrc, Qsp64fc* pDlyDst, Qsp8u* pBuf)
{
    return filter<T64fc>(pSrc, pDst, numIters, pSpec, pDlySrc, pDlyDst, pBuf);
}

QspStatus qspsFIRSR32f_32fc(const Qsp32fc* pSrc, Qsp32fc* pDst, int numIters, QspsFIRSpec32f_32fc* pSpec,
                           const Qsp32fc* pDlySrc, Qsp32fc* pDlyDst, Qsp8u* pBuf)
{
    return filter<T32f32fc>(pSrc, pDst, numIters, pSpec, pDlySrc, pDlyDst, pBuf);
}

QspStatus qspsFIRSR_16s(const Qsp16s* pSrc, Qsp16s* pDst, int numIters, QspsFIRSpec_32f* pSpec, const Qsp16s* pDlySrc,
                        Qsp16s* pDlyDst, Qsp8u* pBuf)
{
    return filter16<T32f>(pSrc, pDst, numIters, pSpec, pDlySrc, pDlyDst, pBuf);
}

QspStatus qspsFIRSR_16sc(const Qsp16sc* pSrc, Qsp16sc* pDst, int numIters, QspsFIRSpec_32fc* pSpec,
                         const Qsp16sc* pDlySrc, Qsp16sc* pDlyDst, Qsp8u* pBuf)
{
    return filter16<T32fc>(pSrc, pDst, numIters, pSpec, pDlySrc, pDlyDst, pBuf);
}

}  // namespace y8

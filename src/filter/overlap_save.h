// SPDX-License-Identifier: BSD-3-Clause
// FFT block filtering by overlap-save, shared by the single-rate FIR filter
// and by convolution and correlation.
//
// With a transform of length L > N - 1 and the taps' spectrum H (taps zero
// padded to L), each block of L consecutive input samples x[s .. s+L) is
// transformed, multiplied by H and transformed back; the circular
// convolution it yields equals the linear one from its sample N-1 on, so a
// block gives S = L - (N - 1) outputs and the next block starts S samples
// later. The transforms are the library's power-of-two FFTs, called through
// their validating functions: real data uses the real transform with its
// Perm-packed spectrum, complex data the complex one. The inverse divides by
// L (normalisation flag 2), so the spectrum needs no scaling of its own.
#pragma once
#include "qsp_validators.h"
#include "samples.h"

namespace overlap {

// Inverse transform divided by the length.
constexpr int kFlag = 2;

// The transforms of one data type.
template <class D>
struct Fft;

template <>
struct Fft<Qsp32f> {
    using Spec = QspsFFTSpec_R_32f;
    static QspStatus getSize(int order, int* spec, int* init, int* work)
    {
        return y8::qspsFFTGetSize_R_32f(order, kFlag, 0, spec, init, work);
    }
    static QspStatus init(Spec** rec, int order, Qsp8u* mem, Qsp8u* buf)
    {
        return y8::qspsFFTInit_R_32f(rec, order, kFlag, 0, mem, buf);
    }
    static QspStatus forward(const Qsp32f* s, Qsp32f* d, const Spec* r, Qsp8u* w) { return y8::qspsFFTFwd_RToPerm_32f(s, d, r, w); }
    static QspStatus inverse(const Qsp32f* s, Qsp32f* d, const Spec* r, Qsp8u* w) { return y8::qspsFFTInv_PermToR_32f(s, d, r, w); }
    static QspStatus multiply(const Qsp32f* h, Qsp32f* d, int len) { return y8::qspsMulPerm_32f_I(h, d, len); }
};

template <>
struct Fft<Qsp64f> {
    using Spec = QspsFFTSpec_R_64f;
    static QspStatus getSize(int order, int* spec, int* init, int* work)
    {
        return y8::qspsFFTGetSize_R_64f(order, kFlag, 0, spec, init, work);
    }
    static QspStatus init(Spec** rec, int order, Qsp8u* mem, Qsp8u* buf)
    {
        return y8::qspsFFTInit_R_64f(rec, order, kFlag, 0, mem, buf);
    }
    static QspStatus forward(const Qsp64f* s, Qsp64f* d, const Spec* r, Qsp8u* w) { return y8::qspsFFTFwd_RToPerm_64f(s, d, r, w); }
    static QspStatus inverse(const Qsp64f* s, Qsp64f* d, const Spec* r, Qsp8u* w) { return y8::qspsFFTInv_PermToR_64f(s, d, r, w); }
    static QspStatus multiply(const Qsp64f* h, Qsp64f* d, int len) { return y8::qspsMulPerm_64f_I(h, d, len); }
};

template <>
struct Fft<Qsp32fc> {
    using Spec = QspsFFTSpec_C_32fc;
    static QspStatus getSize(int order, int* spec, int* init, int* work)
    {
        return y8::qspsFFTGetSize_C_32fc(order, kFlag, 0, spec, init, work);
    }
    static QspStatus init(Spec** rec, int order, Qsp8u* mem, Qsp8u* buf)
    {
        return y8::qspsFFTInit_C_32fc(rec, order, kFlag, 0, mem, buf);
    }
    static QspStatus forward(const Qsp32fc* s, Qsp32fc* d, const Spec* r, Qsp8u* w) { return y8::qspsFFTFwd_CToC_32fc(s, d, r, w); }
    static QspStatus inverse(const Qsp32fc* s, Qsp32fc* d, const Spec* r, Qsp8u* w) { return y8::qspsFFTInv_CToC_32fc(s, d, r, w); }
    static QspStatus multiply(const Qsp32fc* h, Qsp32fc* d, int len) { return y8::qspsMul_32fc_I(h, d, len); }
};

template <>
struct Fft<Qsp64fc> {
    using Spec = QspsFFTSpec_C_64fc;
    static QspStatus getSize(int order, int* spec, int* init, int* work)
    {
        return y8::qspsFFTGetSize_C_64fc(order, kFlag, 0, spec, init, work);
    }
    static QspStatus init(Spec** rec, int order, Qsp8u* mem, Qsp8u* buf)
    {
        return y8::qspsFFTInit_C_64fc(rec, order, kFlag, 0, mem, buf);
    }
    static QspStatus forward(const Qsp64fc* s, Qsp64fc* d, const Spec* r, Qsp8u* w) { return y8::qspsFFTFwd_CToC_64fc(s, d, r, w); }
    static QspStatus inverse(const Qsp64fc* s, Qsp64fc* d, const Spec* r, Qsp8u* w) { return y8::qspsFFTInv_CToC_64fc(s, d, r, w); }
    static QspStatus multiply(const Qsp64fc* h, Qsp64fc* d, int len) { return y8::qspsMul_64fc_I(h, d, len); }
};

// Byte sizes of a transform of 2^order for data type D, as its GetSize
// reports them (spec, init buffer, work buffer), in 64-bit arithmetic;
// false when the order is out of the transform's range.
struct FftSizes {
    Qsp64s spec, init, work;
};

template <class D>
bool fftSizes(int order, FftSizes& out)
{
    int s = 0, i = 0, w = 0;
    if (Fft<D>::getSize(order, &s, &i, &w) != qspStsOk) return false;
    out = {s, i, w};
    return true;
}

// A filter ready to run: a built transform, the taps' spectrum and the two
// work areas a block needs.
template <class D>
struct Filter {
    const typename Fft<D>::Spec* spec;
    const D* spectrum;  // fftLen values: Perm-packed (real) or complex
    Qsp64s fftLen;      // L
    Qsp64s taps;        // N, below L
    D* block;           // L samples
    Qsp8u* fftWork;     // the transform's work buffer, as its GetSize asks
};

// Transforms the taps, already placed in natural order in the first n
// values of the spectrum's area, after zero padding them to L; work is the
// transform's work buffer.
template <class D>
QspStatus ownsSpectrum(const typename Fft<D>::Spec* spec, Qsp64s n, D* spectrum, Qsp64s fftLen, Qsp8u* work)
{
    samples::zero(spectrum + n, fftLen - n);
    return Fft<D>::forward(spectrum, spectrum, spec, work);
}

// y[m] = sum over i < N of t[i] x[first + m - i] for 0 <= m < count. Blocks
// lying inside x.src are transformed straight from it; the others (the
// first, with the history, and the last, short of input) are gathered into
// f.block and zero padded. A negative status from a transform ends the loop
// and is returned.
template <class D>
QspStatus ownsOverlapSave(const Filter<D>& f, const samples::Signal<D>& x, Qsp64s first, D* y, Qsp64s count)
{
    using F = Fft<D>;
    const Qsp64s L = f.fftLen, h = f.taps - 1, step = L - h;
    for (Qsp64s done = 0; done < count; done += step) {
        const Qsp64s outs = count - done < step ? count - done : step;
        const Qsp64s start = first + done - h;
        QspStatus s;
        if (start >= 0 && start + L <= x.len) {
            s = F::forward(x.src + start, f.block, f.spec, f.fftWork);
        } else {
            samples::gather(x, start, h + outs, f.block);
            samples::zero(f.block + h + outs, L - h - outs);
            s = F::forward(f.block, f.block, f.spec, f.fftWork);
        }
        if (s < 0) return s;
        if ((s = F::multiply(f.spectrum, f.block, int(L))) < 0) return s;
        if ((s = F::inverse(f.block, f.block, f.spec, f.fftWork)) < 0) return s;
        samples::copy(f.block + h, y + done, outs);
    }
    return qspStsOk;
}

}  // namespace overlap

// SPDX-License-Identifier: BSD-3-Clause
// The convolution (chirp) method for lengths without a usable factor plan.
//
// With k m = (m^2 + k^2 - (k-m)^2) / 2 and the chirp c[m] = W_(2n)^(m^2),
//   X[k] = c[k] * sum_m (x[m] c[m]) conj(c[k-m]),
// a linear convolution of the chirped input with the conjugate chirp. It is
// carried out as a circular convolution of power-of-two length M >= 2n - 1
// with the FFT: the chirped input, zero-padded, is transformed, multiplied
// by the transform of the conjugate chirp (computed at Init, with the 1/M of
// the inverse folded in), transformed back, and the first n values are
// multiplied by the chirp again.
#pragma once
#include "dft_lanes.h"
#include "dft_layout.h"
#include "qsp_validators.h"

namespace dft {

struct Chirp {
    Qsp32u inUse;
    Qsp32s order;            // log2 M
    Qsp32s fftWork;          // bytes of the FFT's own work buffer
    Qsp32s reserved;
    void* fft;               // the FFT record of length M (no normalisation)
    const void* chirp;       // c[m], m < n
    const void* spectrum;    // FFT(conj chirp, circular) / M, M values
};

struct ChirpLayout {
    int order = 0;
    Qsp64s m = 0;
    Qsp64s fftSpec = 0, fftInit = 0, fftWork = 0;
    Qsp64s chirpAt = 0, spectrumAt = 0, fftAt = 0, tableBytes = 0;
    Qsp64s initBytes = 0;    // Init scratch: the conj chirp buffer, the FFT's init and work buffers
    Qsp64s workBytes = 0;    // M values, then the FFT work
};

// The complex FFT of each precision, through its validating functions.
template <class T>
struct ChirpFft;

template <>
struct ChirpFft<float> {
    using Spec = QspsFFTSpec_C_32fc;
    using C = Qsp32fc;
    static QspStatus getSize(int order, int* s, int* i, int* w) { return y8::qspsFFTGetSize_C_32fc(order, 8, 0, s, i, w); }
    static QspStatus init(Spec** r, int order, Qsp8u* spec, Qsp8u* buf) { return y8::qspsFFTInit_C_32fc(r, order, 8, 0, spec, buf); }
    static void forward(C* p, const void* r, Qsp8u* w) { y8::qspsFFTFwd_CToC_32fc(p, p, static_cast<const Spec*>(r), w); }
    static void inverse(C* p, const void* r, Qsp8u* w) { y8::qspsFFTInv_CToC_32fc(p, p, static_cast<const Spec*>(r), w); }
};

template <>
struct ChirpFft<double> {
    using Spec = QspsFFTSpec_C_64fc;
    using C = Qsp64fc;
    static QspStatus getSize(int order, int* s, int* i, int* w) { return y8::qspsFFTGetSize_C_64fc(order, 8, 0, s, i, w); }
    static QspStatus init(Spec** r, int order, Qsp8u* spec, Qsp8u* buf) { return y8::qspsFFTInit_C_64fc(r, order, 8, 0, spec, buf); }
    static void forward(C* p, const void* r, Qsp8u* w) { y8::qspsFFTFwd_CToC_64fc(p, p, static_cast<const Spec*>(r), w); }
    static void inverse(C* p, const void* r, Qsp8u* w) { y8::qspsFFTInv_CToC_64fc(p, p, static_cast<const Spec*>(r), w); }
};

template <class T>
ChirpLayout chirpLayout(Qsp64s n)
{
    ChirpLayout l;
    l.m = 1;
    while (l.m < 2 * n - 1) {
        l.m *= 2;
        ++l.order;
    }
    int s = 0, i = 0, w = 0;
    ChirpFft<T>::getSize(l.order, &s, &i, &w);
    l.fftSpec = u32(s);
    l.fftInit = u32(i);
    l.fftWork = u32(w);
    const Qsp64s c = 2 * Qsp64s(sizeof(T));
    l.chirpAt = 0;
    l.spectrumAt = roundUp64(n * c);
    l.fftAt = l.spectrumAt + roundUp64(l.m * c);
    l.tableBytes = l.fftAt + roundUp64(l.fftSpec);
    l.initBytes = roundUp64(l.m * c) + roundUp64(l.fftInit) + roundUp64(l.fftWork);
    l.workBytes = roundUp64(l.m * c) + roundUp64(l.fftWork);
    return l;
}

// Builds the chirp state at `tables` (64-byte aligned) from the roots
// W_(2n)^j, j < 2n; `scratch` is 64-byte aligned, l.initBytes long.
template <class T>
QspStatus ownsBuildChirp(Chirp* ch, const ChirpLayout& l, Qsp64s n, Qsp8u* tables, const Cx<T>* roots,
                         Qsp8u* scratch)
{
    const Qsp64s m = l.m;
    Cx<T>* buf = reinterpret_cast<Cx<T>*>(scratch);
    Qsp8u* fftInit = scratch + roundUp64(m * 2 * Qsp64s(sizeof(T)));
    Qsp8u* fftWork = fftInit + roundUp64(l.fftInit);
    Cx<T>* chirp = reinterpret_cast<Cx<T>*>(tables + l.chirpAt);
    Cx<T>* spectrum = reinterpret_cast<Cx<T>*>(tables + l.spectrumAt);
    // c[j] = W_(2n)^(j^2 mod 2n), the index kept by (j+1)^2 = j^2 + 2j + 1.
    Qsp64s idx = 0;
    for (Qsp64s j = 0; j < n; ++j) {
        chirp[j] = roots[idx];
        idx += 2 * j + 1;
        if (idx >= 2 * n) idx -= 2 * n;
    }
    // conj(c) at 0..n-1 and, mirrored, at M-n+1..M-1; zeros between.
    for (Qsp64s j = 0; j < m; ++j) buf[j] = {T(0), T(0)};
    for (Qsp64s j = 0; j < n; ++j) {
        const Cx<T> v{chirp[j].re, -chirp[j].im};
        buf[j] = v;
        if (j > 0) buf[m - j] = v;
    }
    typename ChirpFft<T>::Spec* fft = nullptr;
    if (QspStatus s = ChirpFft<T>::init(&fft, l.order, tables + l.fftAt, fftInit)) return s;
    ChirpFft<T>::forward(reinterpret_cast<typename ChirpFft<T>::C*>(buf), fft, fftWork);
    const T inv = T(1) / static_cast<T>(m);  // exact: a power of two
    for (Qsp64s j = 0; j < m; ++j) spectrum[j] = {buf[j].re * inv, buf[j].im * inv};
    ch->inUse = 1;
    ch->order = l.order;
    ch->fftWork = static_cast<Qsp32s>(l.fftWork);
    ch->fft = fft;
    ch->chirp = chirp;
    ch->spectrum = spectrum;
    return qspStsOk;
}

// Pointwise products over interleaved complex arrays, two values (single)
// or one (double) per register.
template <class T>
struct ChirpOps {
    using V = simd::Vec<T>;
    using R = typename V::Reg;
    static constexpr int per = V::lanes / 2;  // complex values per register
    static R cmul(R a, R w)
    {
        const R re = V::mul(a, V::dupRe(w));
        const R im = V::mul(V::swapParts(a), V::dupIm(w));
        return V::addsub(re, im);
    }
};

// The transform: in (any data view, with Swap for the inverse) to out;
// work holds M values then the FFT's work buffer.
template <class T, bool Swap, class In, class Out>
void ownsChirpTransform(const Chirp& ch, Qsp64s n, const In& in, const Out& out, Qsp8u* work, bool scaled, T f)
{
    using O = ChirpOps<T>;
    using V = typename O::V;
    const Qsp64s m = Qsp64s(1) << ch.order;
    T* a = reinterpret_cast<T*>(work);
    Qsp8u* fftWork = work + roundUp64(m * 2 * Qsp64s(sizeof(T)));
    const T* c = static_cast<const T*>(ch.chirp);
    const T* sp = static_cast<const T*>(ch.spectrum);
    // a = x c, zero-padded
    for (Qsp64s j = 0; j < n; ++j) {
        const Cx<T> x = in.template get<Swap>(j);
        const T cr = c[2 * j], ci = c[2 * j + 1];
        a[2 * j] = x.re * cr - x.im * ci;
        a[2 * j + 1] = x.re * ci + x.im * cr;
    }
    for (Qsp64s j = 2 * n; j < 2 * m; ++j) a[j] = T(0);
    ChirpFft<T>::forward(reinterpret_cast<typename ChirpFft<T>::C*>(a), ch.fft, fftWork);
    for (Qsp64s j = 0; j < 2 * m; j += V::lanes) V::storeu(a + j, O::cmul(V::loadu(a + j), V::loadu(sp + j)));
    ChirpFft<T>::inverse(reinterpret_cast<typename ChirpFft<T>::C*>(a), ch.fft, fftWork);
    const T g = scaled ? f : T(1);
    for (Qsp64s j = 0; j < n; ++j) {
        const T yr = a[2 * j], yi = a[2 * j + 1];
        const T cr = c[2 * j], ci = c[2 * j + 1];
        out.template put<Swap>(j, Cx<T>{(yr * cr - yi * ci) * g, (yr * ci + yi * cr) * g});
    }
}

}  // namespace dft

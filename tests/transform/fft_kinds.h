// SPDX-License-Identifier: BSD-3-Clause
// Uniform access to the seven FFT kinds for the tests: size query, Init and
// the transforms, with data exchanged as long double complex vectors.
#pragma once
#include "fft_reference.h"
#include "mathfn/half.h"

namespace fftkinds {

using fftref::LC;

enum class K { C16fc, C32fc, C32f, C64fc, C64f };

inline const char* name(K k)
{
    switch (k) {
    case K::C16fc: return "C_16fc";
    case K::C32fc: return "C_32fc";
    case K::C32f: return "C_32f";
    case K::C64fc: return "C_64fc";
    default: return "C_64f";
    }
}
inline bool isDouble(K k) { return k == K::C64fc || k == K::C64f; }
inline int maxOrder(K k) { return isDouble(k) ? 27 : 28; }

inline QspStatus getSize(K k, int order, int flag, int* s, int* i, int* w)
{
    switch (k) {
    case K::C16fc: return qspsFFTGetSize_C_16fc(order, flag, 0, s, i, w);
    case K::C32fc: return qspsFFTGetSize_C_32fc(order, flag, 0, s, i, w);
    case K::C32f: return qspsFFTGetSize_C_32f(order, flag, 0, s, i, w);
    case K::C64fc: return qspsFFTGetSize_C_64fc(order, flag, 0, s, i, w);
    default: return qspsFFTGetSize_C_64f(order, flag, 0, s, i, w);
    }
}

inline QspStatus init(K k, void** rec, int order, int flag, Qsp8u* spec, Qsp8u* buf)
{
    switch (k) {
    case K::C16fc: return qspsFFTInit_C_16fc(reinterpret_cast<QspsFFTSpec_C_16fc**>(rec), order, flag, 0, spec, buf);
    case K::C32fc: return qspsFFTInit_C_32fc(reinterpret_cast<QspsFFTSpec_C_32fc**>(rec), order, flag, 0, spec, buf);
    case K::C32f: return qspsFFTInit_C_32f(reinterpret_cast<QspsFFTSpec_C_32f**>(rec), order, flag, 0, spec, buf);
    case K::C64fc: return qspsFFTInit_C_64fc(reinterpret_cast<QspsFFTSpec_C_64fc**>(rec), order, flag, 0, spec, buf);
    default: return qspsFFTInit_C_64f(reinterpret_cast<QspsFFTSpec_C_64f**>(rec), order, flag, 0, spec, buf);
    }
}

// A record with its blocks, built with the blocks misaligned by offset.
struct Built {
    fftref::Blocks blocks;
    void* rec = nullptr;
};

inline Built build(K k, int order, int flag, int offset = 0)
{
    Built b;
    b.blocks = fftref::makeBlocks([k](int o, int f, int, int* s, int* i, int* w) { return getSize(k, o, f, s, i, w); },
                                  order, flag, offset);
    EXPECT_EQ(init(k, &b.rec, order, flag, b.blocks.specPtr(), b.blocks.initPtr()), qspStsOk);
    return b;
}

// Runs one transform: data in x (N values), result returned. inPlace uses
// the _I form where the kind has one (16fc has none: same array passed twice).
inline std::vector<LC> run(K k, bool inverse, Built& b, const std::vector<LC>& x, bool inPlace, QspStatus* st = nullptr,
                           int dataOffset = 0)
{
    const size_t n = x.size();
    std::vector<LC> y(n);
    QspStatus s = qspStsOk;
    Qsp8u* work = b.blocks.workPtr();
    auto tpl = [&](auto zero, auto fwd, auto inv, auto fwdI, auto invI) {
        using T = decltype(zero);
        std::vector<T> src(2 * n + 4), dst(2 * n + 4);
        T* ps = src.data() + dataOffset;
        T* pd = inPlace ? ps : dst.data() + dataOffset;
        for (size_t i = 0; i < n; ++i) {
            ps[2 * i] = (T)x[i].real();
            ps[2 * i + 1] = (T)x[i].imag();
        }
        if (inPlace)
            s = inverse ? invI(ps, b.rec, work) : fwdI(ps, b.rec, work);
        else
            s = inverse ? inv(ps, pd, b.rec, work) : fwd(ps, pd, b.rec, work);
        for (size_t i = 0; i < n; ++i) y[i] = LC(pd[2 * i], pd[2 * i + 1]);
    };
    auto splitTpl = [&](auto zero, auto fwd, auto inv, auto fwdI, auto invI) {
        using T = decltype(zero);
        std::vector<T> sr(n + 4), si(n + 4), dr(n + 4), di(n + 4);
        T* psr = sr.data() + dataOffset;
        T* psi = si.data() + dataOffset;
        T* pdr = inPlace ? psr : dr.data() + dataOffset;
        T* pdi = inPlace ? psi : di.data() + dataOffset;
        for (size_t i = 0; i < n; ++i) {
            psr[i] = (T)x[i].real();
            psi[i] = (T)x[i].imag();
        }
        if (inPlace)
            s = inverse ? invI(psr, psi, b.rec, work) : fwdI(psr, psi, b.rec, work);
        else
            s = inverse ? inv(psr, psi, pdr, pdi, b.rec, work) : fwd(psr, psi, pdr, pdi, b.rec, work);
        for (size_t i = 0; i < n; ++i) y[i] = LC(pdr[i], pdi[i]);
    };
    using S32 = const QspsFFTSpec_C_32fc*;
    using S64 = const QspsFFTSpec_C_64fc*;
    using S32s = const QspsFFTSpec_C_32f*;
    using S64s = const QspsFFTSpec_C_64f*;
    switch (k) {
    case K::C32fc:
        tpl(0.0f, [](float* a, float* d, void* r, Qsp8u* w) { return qspsFFTFwd_CToC_32fc((Qsp32fc*)a, (Qsp32fc*)d, (S32)r, w); },
            [](float* a, float* d, void* r, Qsp8u* w) { return qspsFFTInv_CToC_32fc((Qsp32fc*)a, (Qsp32fc*)d, (S32)r, w); },
            [](float* a, void* r, Qsp8u* w) { return qspsFFTFwd_CToC_32fc_I((Qsp32fc*)a, (S32)r, w); },
            [](float* a, void* r, Qsp8u* w) { return qspsFFTInv_CToC_32fc_I((Qsp32fc*)a, (S32)r, w); });
        break;
    case K::C64fc:
        tpl(0.0, [](double* a, double* d, void* r, Qsp8u* w) { return qspsFFTFwd_CToC_64fc((Qsp64fc*)a, (Qsp64fc*)d, (S64)r, w); },
            [](double* a, double* d, void* r, Qsp8u* w) { return qspsFFTInv_CToC_64fc((Qsp64fc*)a, (Qsp64fc*)d, (S64)r, w); },
            [](double* a, void* r, Qsp8u* w) { return qspsFFTFwd_CToC_64fc_I((Qsp64fc*)a, (S64)r, w); },
            [](double* a, void* r, Qsp8u* w) { return qspsFFTInv_CToC_64fc_I((Qsp64fc*)a, (S64)r, w); });
        break;
    case K::C32f:
        splitTpl(0.0f,
                 [](float* a, float* b2, float* c, float* d, void* r, Qsp8u* w) { return qspsFFTFwd_CToC_32f(a, b2, c, d, (S32s)r, w); },
                 [](float* a, float* b2, float* c, float* d, void* r, Qsp8u* w) { return qspsFFTInv_CToC_32f(a, b2, c, d, (S32s)r, w); },
                 [](float* a, float* b2, void* r, Qsp8u* w) { return qspsFFTFwd_CToC_32f_I(a, b2, (S32s)r, w); },
                 [](float* a, float* b2, void* r, Qsp8u* w) { return qspsFFTInv_CToC_32f_I(a, b2, (S32s)r, w); });
        break;
    case K::C64f:
        splitTpl(0.0,
                 [](double* a, double* b2, double* c, double* d, void* r, Qsp8u* w) { return qspsFFTFwd_CToC_64f(a, b2, c, d, (S64s)r, w); },
                 [](double* a, double* b2, double* c, double* d, void* r, Qsp8u* w) { return qspsFFTInv_CToC_64f(a, b2, c, d, (S64s)r, w); },
                 [](double* a, double* b2, void* r, Qsp8u* w) { return qspsFFTFwd_CToC_64f_I(a, b2, (S64s)r, w); },
                 [](double* a, double* b2, void* r, Qsp8u* w) { return qspsFFTInv_CToC_64f_I(a, b2, (S64s)r, w); });
        break;
    case K::C16fc: {
        std::vector<Qsp16fc> src(n + 2), dst(n + 2);
        Qsp16fc* ps = src.data() + (dataOffset ? 1 : 0);
        Qsp16fc* pd = inPlace ? ps : dst.data() + (dataOffset ? 1 : 0);
        for (size_t i = 0; i < n; ++i)
            ps[i] = {mathfn::floatToHalf((float)x[i].real()), mathfn::floatToHalf((float)x[i].imag())};
        using S16 = const QspsFFTSpec_C_16fc*;
        s = inverse ? qspsFFTInv_CToC_16fc(ps, pd, (S16)b.rec, work) : qspsFFTFwd_CToC_16fc(ps, pd, (S16)b.rec, work);
        for (size_t i = 0; i < n; ++i) y[i] = LC(mathfn::halfToFloat(pd[i].re), mathfn::halfToFloat(pd[i].im));
        break;
    }
    }
    if (st) *st = s;
    else EXPECT_EQ(s, qspStsOk);
    return y;
}

// The input as the transform sees it (rounded to the kind's precision).
inline std::vector<LC> rounded(K k, const std::vector<LC>& x)
{
    std::vector<LC> r(x.size());
    for (size_t i = 0; i < x.size(); ++i) {
        if (k == K::C16fc)
            r[i] = LC(mathfn::halfToFloat(mathfn::floatToHalf((float)x[i].real())),
                      mathfn::halfToFloat(mathfn::floatToHalf((float)x[i].imag())));
        else if (isDouble(k))
            r[i] = LC((double)x[i].real(), (double)x[i].imag());
        else
            r[i] = LC((float)x[i].real(), (float)x[i].imag());
    }
    return r;
}

}  // namespace fftkinds

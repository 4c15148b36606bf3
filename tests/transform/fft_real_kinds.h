// SPDX-License-Identifier: BSD-3-Clause
// Access to the real FFT kinds for the tests.
#pragma once
#include "fft_reference.h"

namespace fftreal {

using fftref::LC;

enum class Layout { Pack, Perm, Ccs };
inline const char* name(Layout l) { return l == Layout::Pack ? "Pack" : l == Layout::Perm ? "Perm" : "CCS"; }
// CCS holds N+2 values (N = 1: R0 and 0).
inline size_t packedLength(Layout l, size_t n) { return l == Layout::Ccs ? (n == 1 ? 2 : n + 2) : n; }

// The half spectrum X[0..N/2] written in a layout.
inline std::vector<long double> pack(Layout l, const std::vector<LC>& x, size_t n)
{
    std::vector<long double> p(packedLength(l, n));
    if (l == Layout::Ccs) {
        p[1] = 0;
        for (size_t k = 0; k <= n / 2; ++k) {
            p[2 * k] = x[k].real();
            p[2 * k + 1] = (k == 0 || 2 * k == n) ? 0.0L : x[k].imag();
        }
        return p;
    }
    p[0] = x[0].real();
    if (n == 1) return p;
    if (l == Layout::Perm) {
        p[1] = x[n / 2].real();
        for (size_t k = 1; k < n / 2; ++k) {
            p[2 * k] = x[k].real();
            p[2 * k + 1] = x[k].imag();
        }
    } else {
        for (size_t k = 1; k < n / 2; ++k) {
            p[2 * k - 1] = x[k].real();
            p[2 * k] = x[k].imag();
        }
        p[n - 1] = x[n / 2].real();
    }
    return p;
}

template <class T>
struct Api;

template <>
struct Api<float> {
    using Spec = QspsFFTSpec_R_32f;
    static QspStatus getSize(int o, int f, int h, int* s, int* i, int* w) { return qspsFFTGetSize_R_32f(o, f, h, s, i, w); }
    static QspStatus init(Spec** r, int o, int f, Qsp8u* s, Qsp8u* b) { return qspsFFTInit_R_32f(r, o, f, 0, s, b); }
    static QspStatus fwd(Layout l, const float* s, float* d, const Spec* r, Qsp8u* w)
    {
        return l == Layout::Pack ? qspsFFTFwd_RToPack_32f(s, d, r, w)
             : l == Layout::Perm ? qspsFFTFwd_RToPerm_32f(s, d, r, w)
                                 : qspsFFTFwd_RToCCS_32f(s, d, r, w);
    }
    static QspStatus fwdI(Layout l, float* sd, const Spec* r, Qsp8u* w)
    {
        return l == Layout::Pack ? qspsFFTFwd_RToPack_32f_I(sd, r, w)
             : l == Layout::Perm ? qspsFFTFwd_RToPerm_32f_I(sd, r, w)
                                 : qspsFFTFwd_RToCCS_32f_I(sd, r, w);
    }
    static QspStatus inv(Layout l, const float* s, float* d, const Spec* r, Qsp8u* w)
    {
        return l == Layout::Pack ? qspsFFTInv_PackToR_32f(s, d, r, w)
             : l == Layout::Perm ? qspsFFTInv_PermToR_32f(s, d, r, w)
                                 : qspsFFTInv_CCSToR_32f(s, d, r, w);
    }
    static QspStatus invI(Layout l, float* sd, const Spec* r, Qsp8u* w)
    {
        return l == Layout::Pack ? qspsFFTInv_PackToR_32f_I(sd, r, w)
             : l == Layout::Perm ? qspsFFTInv_PermToR_32f_I(sd, r, w)
                                 : qspsFFTInv_CCSToR_32f_I(sd, r, w);
    }
};

template <>
struct Api<double> {
    using Spec = QspsFFTSpec_R_64f;
    static QspStatus getSize(int o, int f, int h, int* s, int* i, int* w) { return qspsFFTGetSize_R_64f(o, f, h, s, i, w); }
    static QspStatus init(Spec** r, int o, int f, Qsp8u* s, Qsp8u* b) { return qspsFFTInit_R_64f(r, o, f, 0, s, b); }
    static QspStatus fwd(Layout l, const double* s, double* d, const Spec* r, Qsp8u* w)
    {
        return l == Layout::Pack ? qspsFFTFwd_RToPack_64f(s, d, r, w)
             : l == Layout::Perm ? qspsFFTFwd_RToPerm_64f(s, d, r, w)
                                 : qspsFFTFwd_RToCCS_64f(s, d, r, w);
    }
    static QspStatus fwdI(Layout l, double* sd, const Spec* r, Qsp8u* w)
    {
        return l == Layout::Pack ? qspsFFTFwd_RToPack_64f_I(sd, r, w)
             : l == Layout::Perm ? qspsFFTFwd_RToPerm_64f_I(sd, r, w)
                                 : qspsFFTFwd_RToCCS_64f_I(sd, r, w);
    }
    static QspStatus inv(Layout l, const double* s, double* d, const Spec* r, Qsp8u* w)
    {
        return l == Layout::Pack ? qspsFFTInv_PackToR_64f(s, d, r, w)
             : l == Layout::Perm ? qspsFFTInv_PermToR_64f(s, d, r, w)
                                 : qspsFFTInv_CCSToR_64f(s, d, r, w);
    }
    static QspStatus invI(Layout l, double* sd, const Spec* r, Qsp8u* w)
    {
        return l == Layout::Pack ? qspsFFTInv_PackToR_64f_I(sd, r, w)
             : l == Layout::Perm ? qspsFFTInv_PermToR_64f_I(sd, r, w)
                                 : qspsFFTInv_CCSToR_64f_I(sd, r, w);
    }
};

template <class T>
struct Built {
    fftref::Blocks blocks;
    typename Api<T>::Spec* rec = nullptr;
};

template <class T>
Built<T> build(int order, int flag, int offset = 0)
{
    Built<T> b;
    b.blocks = fftref::makeBlocks(Api<T>::getSize, order, flag, offset);
    EXPECT_EQ(Api<T>::init(&b.rec, order, flag, b.blocks.specPtr(), b.blocks.initPtr()), qspStsOk);
    return b;
}

}  // namespace fftreal

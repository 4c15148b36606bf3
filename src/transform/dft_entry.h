// SPDX-License-Identifier: BSD-3-Clause
// The DFT transforms of every kind, for both directions: checks, then the
// embedded FFT for powers of two or the record's own method.
#pragma once
#include "dft_transform.h"

namespace dft {

template <bool Inv>
QspStatus ownsDftC32fc(const Qsp32fc* src, Qsp32fc* dst, const void* spec, Qsp8u* work)
{
    if (QspStatus s = checkCall(spec, kC32fc, work, src, dst)) return s;
    const Record* rec = recordOf(spec);
    if (rec->powerOfTwo) {
        const auto* f = static_cast<const QspsFFTSpec_C_32fc*>(rec->fft);
        return Inv ? y8::qspsFFTInv_CToC_32fc(src, dst, f, work) : y8::qspsFFTFwd_CToC_32fc(src, dst, f, work);
    }
    ownsComplexCall<float, Inv>(rec, interleaved<float>(src), interleaved<float>(dst), work);
    return qspStsOk;
}

template <bool Inv>
QspStatus ownsDftC64fc(const Qsp64fc* src, Qsp64fc* dst, const void* spec, Qsp8u* work)
{
    if (QspStatus s = checkCall(spec, kC64fc, work, src, dst)) return s;
    const Record* rec = recordOf(spec);
    if (rec->powerOfTwo) {
        const auto* f = static_cast<const QspsFFTSpec_C_64fc*>(rec->fft);
        return Inv ? y8::qspsFFTInv_CToC_64fc(src, dst, f, work) : y8::qspsFFTFwd_CToC_64fc(src, dst, f, work);
    }
    ownsComplexCall<double, Inv>(rec, interleaved<double>(src), interleaved<double>(dst), work);
    return qspStsOk;
}

template <bool Inv>
QspStatus ownsDftC32f(const Qsp32f* sr, const Qsp32f* si, Qsp32f* dr, Qsp32f* di, const void* spec, Qsp8u* work)
{
    if (QspStatus s = checkCall(spec, kC32f, work, sr, si, dr, di)) return s;
    const Record* rec = recordOf(spec);
    if (rec->powerOfTwo) {
        const auto* f = static_cast<const QspsFFTSpec_C_32f*>(rec->fft);
        return Inv ? y8::qspsFFTInv_CToC_32f(sr, si, dr, di, f, work) : y8::qspsFFTFwd_CToC_32f(sr, si, dr, di, f, work);
    }
    ownsComplexCall<float, Inv>(rec, split<float>(sr, si), split<float>(dr, di), work);
    return qspStsOk;
}

template <bool Inv>
QspStatus ownsDftC64f(const Qsp64f* sr, const Qsp64f* si, Qsp64f* dr, Qsp64f* di, const void* spec, Qsp8u* work)
{
    if (QspStatus s = checkCall(spec, kC64f, work, sr, si, dr, di)) return s;
    const Record* rec = recordOf(spec);
    if (rec->powerOfTwo) {
        const auto* f = static_cast<const QspsFFTSpec_C_64f*>(rec->fft);
        return Inv ? y8::qspsFFTInv_CToC_64f(sr, si, dr, di, f, work) : y8::qspsFFTFwd_CToC_64f(sr, si, dr, di, f, work);
    }
    ownsComplexCall<double, Inv>(rec, split<double>(sr, si), split<double>(dr, di), work);
    return qspStsOk;
}

// Half precision: the data are converted to single precision (on the stack
// up to length 16, else in the work buffer), transformed there in place by
// the single-precision method and converted back.
template <bool Inv>
QspStatus ownsDftC16fc(const Qsp16fc* src, Qsp16fc* dst, const void* spec, Qsp8u* work)
{
    if (QspStatus s = checkCall(spec, kC16fc, work, src, dst)) return s;
    const Record* rec = recordOf(spec);
    const Qsp64s len = rec->len;
    const bool block = halfBlockPath();
    Cx<float> small[16];
    Qsp8u* w = workOf(rec, work);
    Cx<float>* copy = len <= 16 ? small : reinterpret_cast<Cx<float>*>(w + rec->tempAt);
    ownsHalfToFloat(&src->re, &copy->re, 2 * len, block);
    if (rec->powerOfTwo) {
        const auto* f = static_cast<const QspsFFTSpec_C_32fc*>(rec->fft);
        auto* c = reinterpret_cast<Qsp32fc*>(copy);
        if (Inv)
            y8::qspsFFTInv_CToC_32fc(c, c, f, w);
        else
            y8::qspsFFTFwd_CToC_32fc(c, c, f, w);
    } else {
        const InterleavedData<float> v{&copy->re};
        ownsCore<float, Inv>(rec, v, v, w, normalises<Inv>(rec), factorOf<float>(rec));
    }
    ownsFloatToHalf(&copy->re, &dst->re, 2 * len, block);
    return qspStsOk;
}

// The real kinds: the embedded real FFT keeps the same packed layouts.
template <class T>
struct RealFft;

template <>
struct RealFft<float> {
    using Spec = QspsFFTSpec_R_32f;
    static QspStatus fwd(Packed l, const float* s, float* d, const void* r, Qsp8u* w)
    {
        const auto* f = static_cast<const Spec*>(r);
        return l == Packed::Pack ? y8::qspsFFTFwd_RToPack_32f(s, d, f, w)
               : l == Packed::Perm ? y8::qspsFFTFwd_RToPerm_32f(s, d, f, w)
                                   : y8::qspsFFTFwd_RToCCS_32f(s, d, f, w);
    }
    static QspStatus inv(Packed l, const float* s, float* d, const void* r, Qsp8u* w)
    {
        const auto* f = static_cast<const Spec*>(r);
        return l == Packed::Pack ? y8::qspsFFTInv_PackToR_32f(s, d, f, w)
               : l == Packed::Perm ? y8::qspsFFTInv_PermToR_32f(s, d, f, w)
                                   : y8::qspsFFTInv_CCSToR_32f(s, d, f, w);
    }
};

template <>
struct RealFft<double> {
    using Spec = QspsFFTSpec_R_64f;
    static QspStatus fwd(Packed l, const double* s, double* d, const void* r, Qsp8u* w)
    {
        const auto* f = static_cast<const Spec*>(r);
        return l == Packed::Pack ? y8::qspsFFTFwd_RToPack_64f(s, d, f, w)
               : l == Packed::Perm ? y8::qspsFFTFwd_RToPerm_64f(s, d, f, w)
                                   : y8::qspsFFTFwd_RToCCS_64f(s, d, f, w);
    }
    static QspStatus inv(Packed l, const double* s, double* d, const void* r, Qsp8u* w)
    {
        const auto* f = static_cast<const Spec*>(r);
        return l == Packed::Pack ? y8::qspsFFTInv_PackToR_64f(s, d, f, w)
               : l == Packed::Perm ? y8::qspsFFTInv_PermToR_64f(s, d, f, w)
                                   : y8::qspsFFTInv_CCSToR_64f(s, d, f, w);
    }
};

template <class T, bool Inv, Packed Layout>
QspStatus ownsDftReal(const T* src, T* dst, const void* spec, Qsp8u* work)
{
    const Kind kind = sizeof(T) == 4 ? kR32f : kR64f;
    if (QspStatus s = checkCall(spec, kind, work, src, dst)) return s;
    const Record* rec = recordOf(spec);
    if (rec->powerOfTwo)
        return Inv ? RealFft<T>::inv(Layout, src, dst, rec->fft, work) : RealFft<T>::fwd(Layout, src, dst, rec->fft, work);
    if (Inv)
        ownsRealInverse<T>(rec, src, dst, work, Layout);
    else
        ownsRealForward<T>(rec, src, dst, work, Layout);
    return qspStsOk;
}

// Direct evaluation without a record, half-precision data: outputs in
// blocks of kOutBlock accumulated in double over inputs converted kInBlock
// at a time on the stack; the twiddles W^(k m) advance by multiplication
// in double and are recomputed exactly every kInBlock inputs.
template <bool Inv>
QspStatus ownsDftDirect16fc(const Qsp16fc* src, Qsp16fc* dst, int len)
{
    if (QspStatus s = check::vectors(len, src, dst)) return s;
    constexpr int kOutBlock = 32, kInBlock = 128;
    const bool block = halfBlockPath();
    const double sign = Inv ? -1.0 : 1.0;
    Cx<float> x[kInBlock];
    for (Qsp64s k0 = 0; k0 < len; k0 += kOutBlock) {
        const int nk = static_cast<int>(len - k0 < kOutBlock ? len - k0 : kOutBlock);
        double accRe[kOutBlock] = {}, accIm[kOutBlock] = {};
        for (Qsp64s m0 = 0; m0 < len; m0 += kInBlock) {
            const int nm = static_cast<int>(len - m0 < kInBlock ? len - m0 : kInBlock);
            ownsHalfToFloat(&src[m0].re, &x[0].re, 2 * nm, block);
            for (int kk = 0; kk < nk; ++kk) {
                const Qsp64s k = k0 + kk;
                // W^(k m0) exactly, then times W^k per input
                const CxExt w0 = rootExt((k * m0) % len, len);
                const CxExt st = rootExt(k, len);
                double wr = static_cast<double>(w0.re), wi = sign * static_cast<double>(w0.im);
                const double sr = static_cast<double>(st.re), si = sign * static_cast<double>(st.im);
                double ar = 0, ai = 0;
                for (int j = 0; j < nm; ++j) {
                    const double xr = x[j].re, xi = x[j].im;
                    ar += xr * wr - xi * wi;
                    ai += xr * wi + xi * wr;
                    const double t = wr * sr - wi * si;
                    wi = wr * si + wi * sr;
                    wr = t;
                }
                accRe[kk] += ar;
                accIm[kk] += ai;
            }
        }
        Cx<float> y[kOutBlock];
        for (int kk = 0; kk < nk; ++kk) y[kk] = {static_cast<float>(accRe[kk]), static_cast<float>(accIm[kk])};
        ownsFloatToHalf(&y[0].re, &dst[k0].re, 2 * nk, block);
    }
    return qspStsOk;
}

}  // namespace dft

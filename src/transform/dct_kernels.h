// SPDX-License-Identifier: BSD-3-Clause
// The DCT kernels: the orthonormal type-II transform
//   y[0] = (1/sqrt L) sum x[n],  y[k] = sqrt(2/L) sum x[n] cos(pi (2n+1) k / 2L),
// and its inverse (type III with the same factors, the transpose).
//
// The FFT and convolution methods reorder x into v (v[n] = x[2n],
// v[L-1-n] = x[2n+1]), take the real transform V of v, and with
// z_k = W_4L^k V[k] obtain y[k] = f Re z_k and y[L-k] = -f Im z_k; bin L/2
// of an even length gives y[L/2] = f cos(pi/4) V[L/2]. The inverse forms
// V[k] = (f/2) conj(W_4L^k) (y[k] - i y[L-k]) (bin 0: y[0]/sqrt L), runs the
// real inverse transform and undoes the reordering.
#pragma once
#include "dct_record.h"

namespace dct {

// The fixed kernels of lengths 1, 2, 4, 8: the matrix of the transform as
// compile-time constants, its transpose for the inverse.
template <class T, int L>
struct SmallMatrix {
    T m[L][L]{};
    constexpr SmallMatrix()
    {
        constexpr long double half = 0.70710678118654752440084436210484903928L;  // sqrt(1/2)
        const long double f0 = L == 1 ? 1.0L : L == 2 ? half : L == 4 ? 0.5L : half / 2;
        const long double f = L == 1 ? 1.0L : L == 2 ? 1.0L : L == 4 ? half : 0.5L;
        for (int k = 0; k < L; ++k)
            for (int n = 0; n < L; ++n)
                m[k][n] = static_cast<T>((k == 0 ? f0 : f) * dft::rootExt(Qsp64s(2 * n + 1) * k, 4 * L).re);
    }
};

template <class T, int L>
inline constexpr SmallMatrix<T, L> kSmallMatrix{};

template <class T, int L, bool Inv>
void ownsDctSmallOne(const T* src, T* dst)
{
    T x[L], y[L];
    for (int i = 0; i < L; ++i) x[i] = src[i];
    for (int k = 0; k < L; ++k) {
        T acc = T(0);
        for (int n = 0; n < L; ++n) acc += (Inv ? kSmallMatrix<T, L>.m[n][k] : kSmallMatrix<T, L>.m[k][n]) * x[n];
        y[k] = acc;
    }
    for (int i = 0; i < L; ++i) dst[i] = y[i];
}

template <class T, bool Inv>
void ownsDctSmall(Qsp64s len, const T* src, T* dst)
{
    switch (len) {
    case 1: ownsDctSmallOne<T, 1, Inv>(src, dst); break;
    case 2: ownsDctSmallOne<T, 2, Inv>(src, dst); break;
    case 4: ownsDctSmallOne<T, 4, Inv>(src, dst); break;
    default: ownsDctSmallOne<T, 8, Inv>(src, dst); break;
    }
}

// Direct evaluation from c[j] = cos(pi j / 2L), j < 4L; copy holds L values
// (the source may be the destination).
template <class T, bool Inv>
void ownsDctDirect(const Record<T>* rec, const T* src, T* dst, T* copy)
{
    const Qsp64s len = rec->len, period = 4 * len;
    const T* c = rec->direct;
    for (Qsp64s i = 0; i < len; ++i) copy[i] = src[i];
    for (Qsp64s out = 0; out < len; ++out) {
        T acc = T(0);
        for (Qsp64s in = 0; in < len; ++in) {
            // forward: k = out, n = in; inverse: n = out, k = in
            const Qsp64s k = Inv ? in : out, n = Inv ? out : in;
            const T f = k == 0 ? rec->scale0 : rec->scale;
            const T term = c[((2 * n + 1) * k) % period] * copy[in];
            acc += Inv ? f * term : term;
        }
        dst[out] = Inv ? acc : (out == 0 ? rec->scale0 : rec->scale) * acc;
    }
}

// The FFT and convolution methods. work is aligned; v holds L + 2 values.
template <class T>
void ownsDctForward(const Record<T>* rec, const T* src, T* dst, Qsp8u* work)
{
    const Qsp64s len = rec->len, half = len / 2;
    T* v = reinterpret_cast<T*>(work);
    Qsp8u* inner = work + rec->transformWorkAt;
    for (Qsp64s n = 0; 2 * n < len; ++n) v[n] = src[2 * n];
    for (Qsp64s n = 0; 2 * n + 1 < len; ++n) v[len - 1 - n] = src[2 * n + 1];
    if (rec->fftMethod)
        Embedded<T>::fftFwd(v, rec->transform, inner);
    else
        Embedded<T>::dftFwd(v, rec->transform, inner);
    const Cx<T>* w = rec->roots;
    const T f = rec->scale;
    dst[0] = rec->scale0 * v[0];
    for (Qsp64s k = 1; 2 * k < len; ++k) {
        const T vr = v[2 * k], vi = v[2 * k + 1];
        const T zr = vr * w[k].re - vi * w[k].im, zi = vr * w[k].im + vi * w[k].re;
        dst[k] = f * zr;
        dst[len - k] = -f * zi;
    }
    if ((len & 1) == 0) dst[half] = f * w[half].re * v[len];
}

template <class T>
void ownsDctInverse(const Record<T>* rec, const T* src, T* dst, Qsp8u* work)
{
    const Qsp64s len = rec->len, half = len / 2;
    T* v = reinterpret_cast<T*>(work);
    Qsp8u* inner = work + rec->transformWorkAt;
    const Cx<T>* w = rec->roots;
    const T g = rec->scale * T(0.5);
    v[0] = rec->scale0 * src[0];
    v[1] = T(0);
    for (Qsp64s k = 1; 2 * k < len; ++k) {
        const T ar = g * src[k], ai = -g * src[len - k];
        v[2 * k] = ar * w[k].re + ai * w[k].im;
        v[2 * k + 1] = ai * w[k].re - ar * w[k].im;
    }
    if ((len & 1) == 0) {
        v[len] = rec->scale * w[half].re * src[half];
        v[len + 1] = T(0);
    }
    if (rec->fftMethod)
        Embedded<T>::fftInv(v, rec->transform, inner);
    else
        Embedded<T>::dftInv(v, rec->transform, inner);
    for (Qsp64s n = 0; 2 * n < len; ++n) dst[2 * n] = v[n];
    for (Qsp64s n = 0; 2 * n + 1 < len; ++n) dst[2 * n + 1] = v[len - 1 - n];
}

// The transform calls: pointers, identifier, the fixed kernels at once,
// then the work buffer and the method of the flags.
template <class T, bool Inv>
QspStatus ownsDctCall(const T* src, T* dst, const void* spec, Qsp8u* work, Qsp32u kind)
{
    if (src == nullptr || dst == nullptr || spec == nullptr) return qspStsNullPtr;
    const Record<T>* rec = static_cast<const Record<T>*>(spec);
    if (rec->id != kind) return qspStsBadRecord;
    if (rec->smallKernel) {
        ownsDctSmall<T, Inv>(rec->len, src, dst);
        return qspStsOk;
    }
    if (rec->workSize > 0 && work == nullptr) return qspStsNullPtr;
    Qsp8u* w = dft::alignUp64(work);
    if (!rec->fftMethod && !rec->convMethod)
        ownsDctDirect<T, Inv>(rec, src, dst, reinterpret_cast<T*>(w));
    else if (Inv)
        ownsDctInverse<T>(rec, src, dst, w);
    else
        ownsDctForward<T>(rec, src, dst, w);
    return qspStsOk;
}

}  // namespace dct

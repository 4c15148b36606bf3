// SPDX-License-Identifier: BSD-3-Clause
// Access to the DCT for the tests: records of both precisions and
// directions built from their size queries, the transforms, and the long
// double reference of the orthonormal type-II transform and its inverse.
#pragma once
#include <cmath>
#include <vector>

#include "dft_reference.h"

namespace dctref {

using fftref::kPi;

// y[k] = f_k sum x[n] cos(pi (2n+1) k / 2L), f_0 = 1/sqrt L, f_k = sqrt(2/L);
// the inverse is the transpose.
inline std::vector<long double> reference(const std::vector<long double>& x, bool inverse)
{
    const size_t n = x.size();
    std::vector<long double> c(4 * n), y(n);
    for (size_t j = 0; j < 4 * n; ++j) c[j] = cosl(kPi * (long double)j / (2 * (long double)n));
    const long double f0 = 1 / sqrtl((long double)n), f = sqrtl(2 / (long double)n);
    for (size_t o = 0; o < n; ++o) {
        long double acc = 0;
        for (size_t i = 0; i < n; ++i) {
            const size_t k = inverse ? i : o, m = inverse ? o : i;
            acc += (k == 0 ? f0 : f) * c[(2 * m + 1) * k % (4 * n)] * x[i];
        }
        y[o] = acc;
    }
    return y;
}

inline double relRms(const std::vector<long double>& ref, const std::vector<long double>& got)
{
    long double num = 0, den = 0;
    for (size_t i = 0; i < ref.size(); ++i) {
        num += (got[i] - ref[i]) * (got[i] - ref[i]);
        den += ref[i] * ref[i];
    }
    return den == 0 ? (double)sqrtl(num) : (double)sqrtl(num / den);
}

// A record of one precision and direction in blocks misaligned by offset.
template <class T>
struct Record {
    bool inverse = false;
    int len = 0, offset = 0;
    int specSize = 0, initSize = 0, workSize = 0;
    std::vector<Qsp8u> spec, init, work;
    void* rec = nullptr;
    QspStatus status = qspStsOk;
    Qsp8u* workPtr() { return workSize ? work.data() + offset : nullptr; }
};

template <class T>
QspStatus getSize(bool inverse, int len, int* s, int* i, int* w)
{
    if constexpr (sizeof(T) == 4)
        return inverse ? qspsDCTInvGetSize_32f(len, 0, s, i, w) : qspsDCTFwdGetSize_32f(len, 0, s, i, w);
    else
        return inverse ? qspsDCTInvGetSize_64f(len, 0, s, i, w) : qspsDCTFwdGetSize_64f(len, 0, s, i, w);
}

template <class T>
QspStatus init(bool inverse, void** rec, int len, Qsp8u* spec, Qsp8u* buf)
{
    if constexpr (sizeof(T) == 4)
        return inverse ? qspsDCTInvInit_32f(reinterpret_cast<QspsDCTInvSpec_32f**>(rec), len, 0, spec, buf)
                       : qspsDCTFwdInit_32f(reinterpret_cast<QspsDCTFwdSpec_32f**>(rec), len, 0, spec, buf);
    else
        return inverse ? qspsDCTInvInit_64f(reinterpret_cast<QspsDCTInvSpec_64f**>(rec), len, 0, spec, buf)
                       : qspsDCTFwdInit_64f(reinterpret_cast<QspsDCTFwdSpec_64f**>(rec), len, 0, spec, buf);
}

template <class T>
Record<T> make(bool inverse, int len, int offset = 0)
{
    Record<T> r;
    r.inverse = inverse;
    r.len = len;
    r.offset = offset;
    r.status = getSize<T>(inverse, len, &r.specSize, &r.initSize, &r.workSize);
    if (r.status) return r;
    r.spec.assign(r.specSize + offset, 0xA5);
    r.init.assign(r.initSize + offset, 0xA5);
    r.work.assign(r.workSize + offset, 0xA5);
    r.status = init<T>(inverse, &r.rec, len, r.spec.data() + offset, r.initSize ? r.init.data() + offset : nullptr);
    return r;
}

// The transform through the record's direction (or the other one's entry,
// to see a record refused), out of place or in place.
template <class T>
QspStatus call(bool inverse, const T* s, T* d, const void* rec, Qsp8u* w)
{
    if constexpr (sizeof(T) == 4) {
        if (inverse) return qspsDCTInv_32f(s, d, static_cast<const QspsDCTInvSpec_32f*>(rec), w);
        return qspsDCTFwd_32f(s, d, static_cast<const QspsDCTFwdSpec_32f*>(rec), w);
    } else {
        if (inverse) return qspsDCTInv_64f(s, d, static_cast<const QspsDCTInvSpec_64f*>(rec), w);
        return qspsDCTFwd_64f(s, d, static_cast<const QspsDCTFwdSpec_64f*>(rec), w);
    }
}

template <class T>
QspStatus callInPlace(bool inverse, T* p, const void* rec, Qsp8u* w)
{
    if constexpr (sizeof(T) == 4) {
        if (inverse) return qspsDCTInv_32f_I(p, static_cast<const QspsDCTInvSpec_32f*>(rec), w);
        return qspsDCTFwd_32f_I(p, static_cast<const QspsDCTFwdSpec_32f*>(rec), w);
    } else {
        if (inverse) return qspsDCTInv_64f_I(p, static_cast<const QspsDCTInvSpec_64f*>(rec), w);
        return qspsDCTFwd_64f_I(p, static_cast<const QspsDCTFwdSpec_64f*>(rec), w);
    }
}

template <class T>
std::vector<long double> transform(Record<T>& r, const std::vector<long double>& x, bool inPlace = false,
                                   QspStatus* st = nullptr)
{
    std::vector<T> s(x.size()), d(x.size());
    for (size_t i = 0; i < x.size(); ++i) s[i] = T(x[i]);
    const QspStatus status = inPlace ? callInPlace<T>(r.inverse, s.data(), r.rec, r.workPtr())
                                     : call<T>(r.inverse, s.data(), d.data(), r.rec, r.workPtr());
    if (st) *st = status;
    const std::vector<T>& out = inPlace ? s : d;
    return std::vector<long double>(out.begin(), out.end());
}

// Values that are multiples of 2^-10 in [-1, 1): exact in both precisions.
inline std::vector<long double> signal(size_t n, unsigned salt)
{
    std::vector<long double> x(n);
    const std::vector<fftref::LC> c = dftref::exactSignal(n, true, 100 + salt);
    for (size_t i = 0; i < n; ++i) x[i] = c[i].real();
    return x;
}

}  // namespace dctref

// SPDX-License-Identifier: BSD-3-Clause
// Uniform access to the seven DFT kinds for the tests: size query, Init and
// the transforms, with data exchanged as long double complex vectors. The
// real kinds take the real parts of their input and give their half
// spectrum expanded to the whole conjugate-symmetric spectrum; their inverse
// takes bins 0..L/2 of a spectrum.
#pragma once
#include "dft_reference.h"
#include "mathfn/half.h"

namespace dftkinds {

using dftref::LC;

enum class K { C16fc, C32fc, C32f, C64fc, C64f, R32f, R64f };
enum class Layout { Pack, Perm, Ccs };

constexpr K kAll[] = {K::C16fc, K::C32fc, K::C32f, K::C64fc, K::C64f, K::R32f, K::R64f};
constexpr K kExact[] = {K::C32fc, K::C32f, K::C64fc, K::C64f, K::R32f, K::R64f};

inline const char* name(K k)
{
    switch (k) {
    case K::C16fc: return "C_16fc";
    case K::C32fc: return "C_32fc";
    case K::C32f: return "C_32f";
    case K::C64fc: return "C_64fc";
    case K::C64f: return "C_64f";
    case K::R32f: return "R_32f";
    default: return "R_64f";
    }
}
inline const char* name(Layout l) { return l == Layout::Pack ? "Pack" : l == Layout::Perm ? "Perm" : "CCS"; }
inline bool isDouble(K k) { return k == K::C64fc || k == K::C64f || k == K::R64f; }
inline bool isReal(K k) { return k == K::R32f || k == K::R64f; }

// The accuracy bound of a kind: the DFT's, plus for half precision the
// rounding of every output part to 11 significant bits (at most 2^-11
// relative each).
inline double bound(K k, size_t n)
{
    return k == K::C16fc ? 4.9e-4 + dftref::bound(false, n) : dftref::bound(isDouble(k), n);
}

inline QspStatus getSize(K k, int len, int flag, int* s, int* i, int* w)
{
    switch (k) {
    case K::C16fc: return qspsDFTGetSize_C_16fc(len, flag, 0, s, i, w);
    case K::C32fc: return qspsDFTGetSize_C_32fc(len, flag, 0, s, i, w);
    case K::C32f: return qspsDFTGetSize_C_32f(len, flag, 0, s, i, w);
    case K::C64fc: return qspsDFTGetSize_C_64fc(len, flag, 0, s, i, w);
    case K::C64f: return qspsDFTGetSize_C_64f(len, flag, 0, s, i, w);
    case K::R32f: return qspsDFTGetSize_R_32f(len, flag, 0, s, i, w);
    default: return qspsDFTGetSize_R_64f(len, flag, 0, s, i, w);
    }
}

inline QspStatus init(K k, int len, int flag, Qsp8u* spec, Qsp8u* buf)
{
    switch (k) {
    case K::C16fc: return qspsDFTInit_C_16fc(len, flag, 0, reinterpret_cast<QspsDFTSpec_C_16fc*>(spec), buf);
    case K::C32fc: return qspsDFTInit_C_32fc(len, flag, 0, reinterpret_cast<QspsDFTSpec_C_32fc*>(spec), buf);
    case K::C32f: return qspsDFTInit_C_32f(len, flag, 0, reinterpret_cast<QspsDFTSpec_C_32f*>(spec), buf);
    case K::C64fc: return qspsDFTInit_C_64fc(len, flag, 0, reinterpret_cast<QspsDFTSpec_C_64fc*>(spec), buf);
    case K::C64f: return qspsDFTInit_C_64f(len, flag, 0, reinterpret_cast<QspsDFTSpec_C_64f*>(spec), buf);
    case K::R32f: return qspsDFTInit_R_32f(len, flag, 0, reinterpret_cast<QspsDFTSpec_R_32f*>(spec), buf);
    default: return qspsDFTInit_R_64f(len, flag, 0, reinterpret_cast<QspsDFTSpec_R_64f*>(spec), buf);
    }
}

// A record with its blocks, misaligned by `offset` bytes.
struct Record {
    K kind;
    int len = 0, flag = 8, offset = 0;
    int specSize = 0, initSize = 0, workSize = 0;
    std::vector<Qsp8u> spec, initBuf, work;
    QspStatus status = qspStsOk;
    Qsp8u* at = nullptr;  // when set, the record pointer handed to the transforms
    Qsp8u* specPtr() { return at ? at : spec.data() + offset; }
    Qsp8u* initPtr() { return initSize ? initBuf.data() + offset : nullptr; }
    Qsp8u* workPtr() { return workSize ? work.data() + offset : nullptr; }
};

inline Record make(K k, int len, int flag = 8, int offset = 0)
{
    Record r;
    r.kind = k;
    r.len = len;
    r.flag = flag;
    r.offset = offset;
    r.status = getSize(k, len, flag, &r.specSize, &r.initSize, &r.workSize);
    if (r.status) return r;
    r.spec.assign(r.specSize + offset, 0xA5);
    r.initBuf.assign(r.initSize + offset, 0xA5);
    r.work.assign(r.workSize + offset, 0xA5);
    r.status = init(k, len, flag, r.specPtr(), r.initPtr());
    return r;
}

// Elements of the packed layout for a real length.
inline size_t packedLength(Layout l, size_t n)
{
    return l == Layout::Ccs ? (n % 2 == 0 ? n + 2 : n + 1) : n;
}

// Bin k (k <= n/2) of a packed half spectrum, and back.
template <class T>
LC binOf(const std::vector<T>& p, Layout l, size_t n, size_t k)
{
    if (k == 0) return LC(p[0], 0);
    if (2 * k == n) return LC(l == Layout::Pack ? p[n - 1] : l == Layout::Perm ? p[1] : p[n], 0);
    const size_t at = (l == Layout::Pack || (l == Layout::Perm && n % 2)) ? 2 * k - 1 : 2 * k;
    return LC(p[at], p[at + 1]);
}

template <class T>
void putBin(std::vector<T>& p, Layout l, size_t n, size_t k, LC v)
{
    if (k == 0) {
        p[0] = T(v.real());
        if (l == Layout::Ccs) p[1] = 0;
        return;
    }
    if (2 * k == n) {
        if (l == Layout::Pack) p[n - 1] = T(v.real());
        else if (l == Layout::Perm) p[1] = T(v.real());
        else p[n] = T(v.real()), p[n + 1] = 0;
        return;
    }
    const size_t at = (l == Layout::Pack || (l == Layout::Perm && n % 2)) ? 2 * k - 1 : 2 * k;
    p[at] = T(v.real());
    p[at + 1] = T(v.imag());
}

template <class T>
QspStatus realCall(Record& r, const T* s, T* d, bool inverse, Layout l)
{
    Qsp8u* w = r.workPtr();
    if constexpr (sizeof(T) == 4) {
        auto* rec = reinterpret_cast<const QspsDFTSpec_R_32f*>(r.specPtr());
        if (!inverse)
            return l == Layout::Pack   ? qspsDFTFwd_RToPack_32f(s, d, rec, w)
                   : l == Layout::Perm ? qspsDFTFwd_RToPerm_32f(s, d, rec, w)
                                       : qspsDFTFwd_RToCCS_32f(s, d, rec, w);
        return l == Layout::Pack   ? qspsDFTInv_PackToR_32f(s, d, rec, w)
               : l == Layout::Perm ? qspsDFTInv_PermToR_32f(s, d, rec, w)
                                   : qspsDFTInv_CCSToR_32f(s, d, rec, w);
    } else {
        auto* rec = reinterpret_cast<const QspsDFTSpec_R_64f*>(r.specPtr());
        if (!inverse)
            return l == Layout::Pack   ? qspsDFTFwd_RToPack_64f(s, d, rec, w)
                   : l == Layout::Perm ? qspsDFTFwd_RToPerm_64f(s, d, rec, w)
                                       : qspsDFTFwd_RToCCS_64f(s, d, rec, w);
        return l == Layout::Pack   ? qspsDFTInv_PackToR_64f(s, d, rec, w)
               : l == Layout::Perm ? qspsDFTInv_PermToR_64f(s, d, rec, w)
                                   : qspsDFTInv_CCSToR_64f(s, d, rec, w);
    }
}

template <class T>
std::vector<LC> realTransform(Record& r, const std::vector<LC>& x, bool inverse, bool inPlace, Layout l,
                              QspStatus* st)
{
    const size_t n = x.size(), p = packedLength(l, n);
    std::vector<T> src(p + 2, T(0)), dst(p + 2, T(0));
    std::vector<LC> out(n);
    if (!inverse) {
        for (size_t i = 0; i < n; ++i) src[i] = T(x[i].real());
        *st = realCall<T>(r, src.data(), inPlace ? src.data() : dst.data(), false, l);
        const std::vector<T>& res = inPlace ? src : dst;
        for (size_t k = 0; 2 * k <= n; ++k) {
            out[k] = binOf(res, l, n, k);
            if (k > 0) out[n - k] = std::conj(out[k]);
        }
    } else {
        for (size_t k = 0; 2 * k <= n; ++k) putBin(src, l, n, k, x[k]);
        *st = realCall<T>(r, src.data(), inPlace ? src.data() : dst.data(), true, l);
        const std::vector<T>& res = inPlace ? src : dst;
        for (size_t i = 0; i < n; ++i) out[i] = LC(res[i], 0);
    }
    return out;
}

template <class T>
std::vector<Qsp8u> toBytes(const std::vector<LC>& x, bool split)
{
    const size_t n = x.size();
    std::vector<Qsp8u> b(2 * n * sizeof(T) + 1);
    T* p = reinterpret_cast<T*>(b.data());
    for (size_t i = 0; i < n; ++i) {
        if (split) {
            p[i] = T(x[i].real());
            p[n + i] = T(x[i].imag());
        } else {
            p[2 * i] = T(x[i].real());
            p[2 * i + 1] = T(x[i].imag());
        }
    }
    return b;
}

template <class T>
std::vector<LC> fromBytes(const std::vector<Qsp8u>& b, size_t n, bool split)
{
    const T* p = reinterpret_cast<const T*>(b.data());
    std::vector<LC> x(n);
    for (size_t i = 0; i < n; ++i) x[i] = split ? LC(p[i], p[n + i]) : LC(p[2 * i], p[2 * i + 1]);
    return x;
}

// One transform of x through the record's kind (out of place, or in place
// with the source as destination).
inline std::vector<LC> transform(Record& r, const std::vector<LC>& x, bool inverse, bool inPlace = false,
                                 QspStatus* status = nullptr, Layout layout = Layout::Ccs)
{
    QspStatus dummy;
    QspStatus* st = status ? status : &dummy;
    const size_t n = x.size();
    Qsp8u* spec = r.specPtr();
    Qsp8u* w = r.workPtr();
    switch (r.kind) {
    case K::R32f: return realTransform<float>(r, x, inverse, inPlace, layout, st);
    case K::R64f: return realTransform<double>(r, x, inverse, inPlace, layout, st);
    case K::C16fc: {
        std::vector<Qsp16fc> s(n + 1), d(n + 1);
        for (size_t i = 0; i < n; ++i)
            s[i] = {mathfn::floatToHalf(float(x[i].real())), mathfn::floatToHalf(float(x[i].imag()))};
        Qsp16fc* dp = inPlace ? s.data() : d.data();
        auto* rec = reinterpret_cast<const QspsDFTSpec_C_16fc*>(spec);
        *st = inverse ? qspsDFTInv_CToC_16fc(s.data(), dp, rec, w) : qspsDFTFwd_CToC_16fc(s.data(), dp, rec, w);
        std::vector<LC> out(n);
        for (size_t i = 0; i < n; ++i) out[i] = LC(mathfn::halfToFloat(dp[i].re), mathfn::halfToFloat(dp[i].im));
        return out;
    }
    case K::C32fc:
    case K::C64fc: {
        const bool dbl = r.kind == K::C64fc;
        std::vector<Qsp8u> s = dbl ? toBytes<double>(x, false) : toBytes<float>(x, false);
        std::vector<Qsp8u> d(s.size());
        Qsp8u* dp = inPlace ? s.data() : d.data();
        if (dbl) {
            auto* rec = reinterpret_cast<const QspsDFTSpec_C_64fc*>(spec);
            auto* a = reinterpret_cast<const Qsp64fc*>(s.data());
            auto* b = reinterpret_cast<Qsp64fc*>(dp);
            *st = inverse ? qspsDFTInv_CToC_64fc(a, b, rec, w) : qspsDFTFwd_CToC_64fc(a, b, rec, w);
        } else {
            auto* rec = reinterpret_cast<const QspsDFTSpec_C_32fc*>(spec);
            auto* a = reinterpret_cast<const Qsp32fc*>(s.data());
            auto* b = reinterpret_cast<Qsp32fc*>(dp);
            *st = inverse ? qspsDFTInv_CToC_32fc(a, b, rec, w) : qspsDFTFwd_CToC_32fc(a, b, rec, w);
        }
        return dbl ? fromBytes<double>(inPlace ? s : d, n, false) : fromBytes<float>(inPlace ? s : d, n, false);
    }
    default: {
        const bool dbl = r.kind == K::C64f;
        std::vector<Qsp8u> s = dbl ? toBytes<double>(x, true) : toBytes<float>(x, true);
        std::vector<Qsp8u> d(s.size());
        Qsp8u* dp = inPlace ? s.data() : d.data();
        if (dbl) {
            auto* rec = reinterpret_cast<const QspsDFTSpec_C_64f*>(spec);
            auto* a = reinterpret_cast<const double*>(s.data());
            auto* b = reinterpret_cast<double*>(dp);
            *st = inverse ? qspsDFTInv_CToC_64f(a, a + n, b, b + n, rec, w) : qspsDFTFwd_CToC_64f(a, a + n, b, b + n, rec, w);
        } else {
            auto* rec = reinterpret_cast<const QspsDFTSpec_C_32f*>(spec);
            auto* a = reinterpret_cast<const float*>(s.data());
            auto* b = reinterpret_cast<float*>(dp);
            *st = inverse ? qspsDFTInv_CToC_32f(a, a + n, b, b + n, rec, w) : qspsDFTFwd_CToC_32f(a, a + n, b, b + n, rec, w);
        }
        return dbl ? fromBytes<double>(inPlace ? s : d, n, true) : fromBytes<float>(inPlace ? s : d, n, true);
    }
    }
}

// Relative RMS error of got against ref.
inline double relRms(const std::vector<LC>& ref, const std::vector<LC>& got)
{
    return fftref::relRms(ref, [&](size_t i) { return got[i]; });
}

}  // namespace dftkinds

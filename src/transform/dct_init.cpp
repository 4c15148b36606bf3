// SPDX-License-Identifier: BSD-3-Clause
// DCTInit: builds a forward or inverse DCT record in the caller's block. The
// length is checked before the pointers; the identifier is written last,
// only when everything else has succeeded.
#include "dct_record.h"
#include "dft_record.h"

namespace y8 {
namespace {

// The work bytes of the embedded transform, as its record says (the real
// DFT's also for lengths beyond its size query).
template <class T>
Qsp64s innerWork(dct::Method m, int len, const void* inner)
{
    if (m == dct::kConv) return dft::recordOf(inner)->workSize;
    int s = 0, i = 0, w = 0;
    dct::Embedded<T>::fftSize(dct::orderOf(len), &s, &i, &w);
    return dft::u32(w);
}

template <class T>
QspStatus init(dct::Kind kind, void** ppSpec, int len, int hint, Qsp8u* pSpec, Qsp8u* pSpecBuffer)
{
    if (len < 1) return qspStsBadSize;
    const dct::Method m = dct::methodOf<T>(len);
    if (m == dct::kConv && len > dct::Bounds<T>::convInitLimit) return qspStsBadSize;
    if (m == dct::kFft && len > dct::Bounds<T>::fftLimit) return qspStsBadSize;
    if (ppSpec == nullptr || pSpec == nullptr) return qspStsNullPtr;
    Qsp8u* base = dft::alignUp64(pSpec);
    auto* rec = reinterpret_cast<dct::Record<T>*>(base);
    const Qsp64s t = sizeof(T);
    rec->id = 0;  // a record being rebuilt is never accepted halfway
    if (m == dct::kSmall || m == dct::kDirect) {
        qspsZero_8u(base, static_cast<int>(sizeof(dct::Record<T>)));
    } else {
        // the embedded transform first: its Init reports a missing Init buffer
        Qsp8u* inner = base + dct::innerAt(len, t);
        QspStatus s;
        if (m == dct::kFft)
            s = dct::Embedded<T>::fftInit(&rec->transform, dct::orderOf(len), inner, pSpecBuffer);
        else
            s = dct::Embedded<T>::dftInit(len, inner, pSpecBuffer);
        if (s) return s;
        void* transform = m == dct::kFft ? rec->transform : inner;
        qspsZero_8u(base, static_cast<int>(sizeof(dct::Record<T>)));
        rec->transform = transform;
        rec->fftMethod = m == dct::kFft;
        rec->convMethod = m == dct::kConv;
        auto* roots = reinterpret_cast<dft::Cx<T>*>(base + dct::kRootsAt);
        dft::ownsBuildRoots<T>(roots, 4 * Qsp64s(len), len / 2 + 1);
        rec->roots = roots;
        rec->transformWorkAt = dct::innerWorkAt(len, t);
        const Qsp64s work = 64 + rec->transformWorkAt + innerWork<T>(m, len, transform);
        rec->workSize = work > 0x7FFFFFFF ? 0x7FFFFFFF : static_cast<Qsp32s>(work);
    }
    rec->len = len;
    rec->hint = static_cast<Qsp32u>(hint);
    rec->zero = 0;
    const double root = simd::sqrtOne(static_cast<double>(len));
    rec->scale0 = static_cast<T>(1.0 / root);
    rec->scale = static_cast<T>(simd::sqrtOne(2.0) / root);
    if (m == dct::kSmall) {
        rec->smallKernel = 1;
    } else if (m == dct::kDirect) {
        T* c = reinterpret_cast<T*>(base + dct::kHeaderBytes);
        for (Qsp64s j = 0; j < 4 * Qsp64s(len); ++j) c[j] = static_cast<T>(dft::rootExt(j, 4 * Qsp64s(len)).re);
        rec->direct = c;
        rec->workSize = static_cast<Qsp32s>(t * len + 64);
    }
    rec->id = kind;
    *ppSpec = rec;
    return qspStsOk;
}

}  // namespace

QspStatus qspsDCTFwdInit_32f(QspsDCTFwdSpec_32f** ppDCTSpec, int len, QspHintAlgorithm hint, Qsp8u* pSpec,
                             Qsp8u* pSpecBuffer)
{
    return init<float>(dct::kFwd32f, reinterpret_cast<void**>(ppDCTSpec), len, hint, pSpec, pSpecBuffer);
}

QspStatus qspsDCTInvInit_32f(QspsDCTInvSpec_32f** ppDCTSpec, int len, QspHintAlgorithm hint, Qsp8u* pSpec,
                             Qsp8u* pSpecBuffer)
{
    return init<float>(dct::kInv32f, reinterpret_cast<void**>(ppDCTSpec), len, hint, pSpec, pSpecBuffer);
}

QspStatus qspsDCTFwdInit_64f(QspsDCTFwdSpec_64f** ppDCTSpec, int len, QspHintAlgorithm hint, Qsp8u* pSpec,
                             Qsp8u* pSpecBuffer)
{
    return init<double>(dct::kFwd64f, reinterpret_cast<void**>(ppDCTSpec), len, hint, pSpec, pSpecBuffer);
}

QspStatus qspsDCTInvInit_64f(QspsDCTInvSpec_64f** ppDCTSpec, int len, QspHintAlgorithm hint, Qsp8u* pSpec,
                             Qsp8u* pSpecBuffer)
{
    return init<double>(dct::kInv64f, reinterpret_cast<void**>(ppDCTSpec), len, hint, pSpec, pSpecBuffer);
}

}  // namespace y8

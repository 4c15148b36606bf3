// SPDX-License-Identifier: BSD-3-Clause
// DFTInit: builds a DFT record of any length in the caller's block.
#include "dft_record.h"
#include "dft_transform.h"
#include "qsp_validators.h"

namespace y8 {
namespace {

using dft::Cx;
using dft::Kind;
using dft::Record;

template <class T>
void setNormalisation(Record* rec, int flag, Qsp64s len)
{
    rec->forwardNormalise = (flag == 1 || flag == 4) ? 1 : 0;
    rec->inverseNormalise = (flag == 2 || flag == 4) ? 1 : 0;
    if (flag == 1 || flag == 2) {
        if constexpr (sizeof(T) == 4)
            rec->factor.f = 1.0f / static_cast<float>(len);
        else
            rec->factor.d = 1.0 / static_cast<double>(len);
    } else if (flag == 4) {
        const double r = 1.0 / simd::sqrtOne(static_cast<double>(len));
        if constexpr (sizeof(T) == 4)
            rec->factor.f = static_cast<float>(r);
        else
            rec->factor.d = r;
    }
}

// The embedded FFT record of each kind (the half-precision kind runs the
// single-precision one on a converted copy).
QspStatus fftInit(Kind kind, void** fft, int order, int flag, int hint, Qsp8u* at, Qsp8u* buf)
{
    switch (kind) {
    case dft::kC16fc:
    case dft::kC32fc:
        return qspsFFTInit_C_32fc(reinterpret_cast<QspsFFTSpec_C_32fc**>(fft), order, flag, hint, at, buf);
    case dft::kC32f: return qspsFFTInit_C_32f(reinterpret_cast<QspsFFTSpec_C_32f**>(fft), order, flag, hint, at, buf);
    case dft::kR32f: return qspsFFTInit_R_32f(reinterpret_cast<QspsFFTSpec_R_32f**>(fft), order, flag, hint, at, buf);
    case dft::kC64fc:
        return qspsFFTInit_C_64fc(reinterpret_cast<QspsFFTSpec_C_64fc**>(fft), order, flag, hint, at, buf);
    case dft::kC64f: return qspsFFTInit_C_64f(reinterpret_cast<QspsFFTSpec_C_64f**>(fft), order, flag, hint, at, buf);
    default: return qspsFFTInit_R_64f(reinterpret_cast<QspsFFTSpec_R_64f**>(fft), order, flag, hint, at, buf);
    }
}

inline Qsp32s saturatedInt(Qsp64s v) { return v > 0x7FFFFFFF ? 0x7FFFFFFF : static_cast<Qsp32s>(v); }

// Every failure after the header is cleared leaves identifier 0, so that a
// half-built record is never accepted by a transform.
template <class T>
QspStatus init(Kind kind, int len, int flag, int hint, void* pDFTSpec, Qsp8u* pSpecBuffer)
{
    if (pDFTSpec == nullptr) return qspStsNullPtr;
    if (len < 1) return qspStsBadSize;
    Record* rec = dft::recordOf(pDFTSpec);
    Qsp8u* base = reinterpret_cast<Qsp8u*>(rec);
    qspsZero_8u(base, static_cast<int>(dft::kHeaderBytes));
    rec->id = kind;
    rec->len = len;
    rec->hint = static_cast<Qsp32u>(hint);
    auto fail = [rec](QspStatus s) {
        rec->id = 0;
        return s;
    };
    if (!dft::validFlag(flag)) return fail(qspStsBadFftFlag);
    setNormalisation<T>(rec, flag, len);

    if (len <= 16) {
        rec->method = dft::kDirect;
        rec->coreMethod = dft::kCoreSmall;
        rec->core = len;
        return qspStsOk;
    }
    if (dft::isPowerOfTwo(len)) {
        rec->powerOfTwo = 1;
        rec->method = dft::kFft;
        void* fft = nullptr;
        const int order = dft::log2Of(len);
        if (QspStatus s = fftInit(kind, &fft, order, flag, hint, base + dft::kHeaderBytes, pSpecBuffer)) return fail(s);
        rec->fft = fft;
        Qsp64s spec = 0, ini = 0, work = 0;
        dft::fftSizes(kind, order, flag, hint, spec, ini, work);
        if (kind == dft::kC16fc) {
            Qsp64s fftWork = 0;
            dft::fftSizes(dft::kC32fc, order, flag, hint, spec, ini, fftWork);
            rec->tempAt = dft::fftHalfCopyAt(fftWork);
        }
        rec->workSize = saturatedInt(work);
        return qspStsOk;
    }
    if (len > dft::planLimit(kind)) return fail(qspStsBadSize);
    if (pSpecBuffer == nullptr) return fail(qspStsNullPtr);
    dft::Layout l;
    if (QspStatus s = dft::recordLayout<T>(kind, len, false, l)) return fail(s);

    Cx<T>* roots = reinterpret_cast<Cx<T>*>(dft::alignUp64(pSpecBuffer));
    dft::ownsBuildRoots<T>(roots, l.rootN, l.rootCount);
    const Qsp64s stride = l.rootN / l.core;
    Qsp8u* tables = base + l.tablesAt;
    switch (l.coreMethod) {
    case dft::kCoreTable: {
        Cx<T>* t = reinterpret_cast<Cx<T>*>(base + l.directAt);
        for (Qsp64s j = 0; j < l.core; ++j) t[j] = roots[j * stride];
        rec->direct = t;
        break;
    }
    case dft::kCorePlan: dft::ownsBuildPlan<T>(&rec->plan, l.plan, l.core, tables, roots, stride); break;
    case dft::kCoreChirp: {
        Qsp8u* scratch = reinterpret_cast<Qsp8u*>(roots) + dft::roundUp64(l.rootCount * 2 * Qsp64s(sizeof(T)));
        if (QspStatus s = dft::ownsBuildChirp<T>(&rec->chirp, l.chirp, l.core, tables, roots, scratch))
            return fail(s);
        break;
    }
    default: break;
    }
    if (l.recombAt) {
        Cx<T>* w = reinterpret_cast<Cx<T>*>(base + l.recombAt);
        for (Qsp64s k = 0; k <= len / 4; ++k) w[k] = roots[k];
        rec->recomb = w;
    }
    rec->method = l.method;
    rec->coreMethod = l.coreMethod;
    rec->core = static_cast<Qsp32s>(l.core);
    rec->tempAt = l.tempAt;
    rec->workSize = saturatedInt(l.work);
    return qspStsOk;
}

}  // namespace

QspStatus qspsDFTInit_C_16fc(int len, int flag, QspHintAlgorithm hint, QspsDFTSpec_C_16fc* pDFTSpec, Qsp8u* pSpecBuffer)
{
    return init<float>(dft::kC16fc, len, flag, hint, pDFTSpec, pSpecBuffer);
}

QspStatus qspsDFTInit_C_32fc(int len, int flag, QspHintAlgorithm hint, QspsDFTSpec_C_32fc* pDFTSpec, Qsp8u* pSpecBuffer)
{
    return init<float>(dft::kC32fc, len, flag, hint, pDFTSpec, pSpecBuffer);
}

QspStatus qspsDFTInit_C_32f(int len, int flag, QspHintAlgorithm hint, QspsDFTSpec_C_32f* pDFTSpec, Qsp8u* pSpecBuffer)
{
    return init<float>(dft::kC32f, len, flag, hint, pDFTSpec, pSpecBuffer);
}

QspStatus qspsDFTInit_R_32f(int len, int flag, QspHintAlgorithm hint, QspsDFTSpec_R_32f* pDFTSpec, Qsp8u* pSpecBuffer)
{
    return init<float>(dft::kR32f, len, flag, hint, pDFTSpec, pSpecBuffer);
}

QspStatus qspsDFTInit_C_64fc(int len, int flag, QspHintAlgorithm hint, QspsDFTSpec_C_64fc* pDFTSpec, Qsp8u* pSpecBuffer)
{
    return init<double>(dft::kC64fc, len, flag, hint, pDFTSpec, pSpecBuffer);
}

QspStatus qspsDFTInit_C_64f(int len, int flag, QspHintAlgorithm hint, QspsDFTSpec_C_64f* pDFTSpec, Qsp8u* pSpecBuffer)
{
    return init<double>(dft::kC64f, len, flag, hint, pDFTSpec, pSpecBuffer);
}

QspStatus qspsDFTInit_R_64f(int len, int flag, QspHintAlgorithm hint, QspsDFTSpec_R_64f* pDFTSpec, Qsp8u* pSpecBuffer)
{
    return init<double>(dft::kR64f, len, flag, hint, pDFTSpec, pSpecBuffer);
}

}  // namespace y8

// SPDX-License-Identifier: BSD-3-Clause
// FFTInit: builds an FFT record in the caller's block.
#include "fft_transform.h"
#include "qspcore.h"
#include "qsp_validators.h"

namespace y8 {
namespace {

using fft::C;

// 1/N in the record's precision; 1/sqrt(N) from the double square root.
template <class T>
void setFactor(fft::Record* rec, int flag, int order)
{
    const Qsp64s n = Qsp64s(1) << order;
    if (flag == 1 || flag == 2) {
        if constexpr (sizeof(T) == 4)
            rec->factor.f = 1.0f / static_cast<float>(n);
        else
            rec->factor.d = 1.0 / static_cast<double>(n);
    } else if (flag == 4) {
        const double r = 1.0 / _mm_cvtsd_f64(_mm_sqrt_sd(_mm_setzero_pd(), _mm_set_sd(static_cast<double>(n))));
        if constexpr (sizeof(T) == 4)
            rec->factor.f = static_cast<float>(r);
        else
            rec->factor.d = r;
    }
}

template <class T>
Qsp8u* fillComplexTables(fft::Record* rec, int order, const fft::Octant<T>& oct, Qsp8u* at)
{
    C<T>* tw = reinterpret_cast<C<T>*>(at);
    rec->twiddles = tw;
    if (order <= fft::kSmallMax) {
        rec->twiddles = nullptr;
        return at;
    }
    if (order < fft::largeFrom(sizeof(T) == 8)) {
        if (fft::fourStepOrder<T>(order))
            fft::ownsFillFourStepTwiddles<T>(tw, order, oct);
        else
            fft::ownsFillMediumTwiddles<T>(tw, order, oct);
        return fft::alignUp64(reinterpret_cast<Qsp8u*>(tw + fft::complexTwiddleCount<T>(order)));
    }
    // The large tier's tables, followed by the large layout's own extra
    // record bytes (single precision, order 19 and above).
    rec->twiddles = nullptr;
    fft::ownsFillLargeTables<T>(fft::largeTablesOf<T>(rec), at, order, oct);
    return at + fft::complexRawSizes(order, sizeof(T) == 8).spec;
}

// W_N^k (forward table) and conj(W_N^k) (inverse table), k < N/4.
template <class T>
Qsp8u* fillRealTable(fft::Record* rec, int order, const fft::Octant<T>& oct, Qsp8u* at, bool inverse)
{
    C<T>* t = reinterpret_cast<C<T>*>(at);
    const Qsp64s n = Qsp64s(1) << order;
    auto put = [&](Qsp64s i, Qsp64s k) {
        const C<T> w = fft::twiddle(oct, k);
        t[i] = {w.re, inverse ? -w.im : w.im};
    };
    Qsp64s count;
    if (rec->recombSplit) {
        const Qsp64s coarse = n >> (fft::kRecombFineBits + 2), fine = Qsp64s(1) << fft::kRecombFineBits;
        for (Qsp64s h = 0; h < coarse; ++h) put(h, h << fft::kRecombFineBits);
        for (Qsp64s l = 0; l < fine; ++l) put(coarse + l, l);
        count = coarse + fine;
    } else if (!inverse) {
        // v_k = -i W^k / 2, block-split from k = 1 (see forwardWholeTwiddle);
        // the padding of the last block is 0.
        T* f = &t->re;
        constexpr Qsp64s L = fft::SV<T>::L;
        const Qsp64s blocks = (n / 4 - 1 + L - 1) / L;
        for (Qsp64s i = 0; i < 2 * L * blocks; ++i) f[i] = T(0);
        for (Qsp64s k = 1; k < n / 4; ++k) {
            const C<T> w = fft::twiddle(oct, k);
            const Qsp64s at = fft::forwardWholeIndex<T>(k);
            f[at] = w.im * T(0.5);
            f[at + L] = -w.re * T(0.5);
        }
        count = blocks * L;
    } else {
        for (Qsp64s k = 0; k < n / 4; ++k) put(k, k);
        count = n / 4;
    }
    return fft::alignUp64(reinterpret_cast<Qsp8u*>(t + count));
}

template <class T>
QspStatus init(fft::Kind kind, void** ppSpec, int order, int flag, int hint, Qsp8u* pSpec, Qsp8u* pSpecBuffer)
{
    if (ppSpec == nullptr) return qspStsNullPtr;
    if (static_cast<unsigned>(order) > static_cast<unsigned>(fft::maxOrder(kind))) return qspStsBadFftOrder;
    if (pSpec == nullptr) return qspStsNullPtr;
    // Every size of these kinds fits in an int (see fft_record.h); checked
    // all the same, before anything is written.
    if (fft::validFlag(flag) && !fft::sizesFit(fft::kindSizes(kind, order))) return qspStsOverflow;

    Qsp8u* base = fft::alignUp64(pSpec);
    fft::Record* rec = reinterpret_cast<fft::Record*>(base);
    qspsZero_8u(base, static_cast<int>(fft::kHeaderBytes));
    rec->id = kind;
    rec->order = order;
    rec->hint = static_cast<Qsp32u>(hint);
    rec->zero = 0;

    if (!fft::validFlag(flag)) {
        rec->id = 0;
        return qspStsBadFftFlag;
    }
    rec->forwardNormalise = (flag == 1 || flag == 4) ? 1 : 0;
    rec->inverseNormalise = (flag == 2 || flag == 4) ? 1 : 0;
    setFactor<T>(rec, flag, order);

    const bool real = fft::isReal(kind);
    const bool dbl = sizeof(T) == 8;
    const int complexOrder = real ? order - 1 : order;
    if ((real && order < 5) || (!real && order <= fft::kSmallMax)) {
        rec->workSize = 0;
        *ppSpec = rec;
        return qspStsOk;
    }

    fft::Octant<T> oct{};
    if (order <= fft::kBuiltinOrder) {
        oct = fft::builtinOctant<T>(order);
    } else {
        if (pSpecBuffer == nullptr) {
            rec->id = 0;
            return qspStsNullPtr;
        }
        C<T>* table = reinterpret_cast<C<T>*>(fft::alignUp64(pSpecBuffer));
        fft::ownsBuildOctant<T>(table, order);
        oct = {table, 1, order};
    }

    Qsp8u* at = base + fft::kHeaderBytes;
    at = fillComplexTables<T>(rec, complexOrder, oct, at);
    rec->workSize = complexOrder <= fft::kSmallMax
                        ? 0
                        : static_cast<Qsp32s>(fft::complexRawSizes(complexOrder, dbl).work);
    if (real) {
        rec->recombSplit = fft::realSplitTables(order) ? 1 : 0;
        rec->recomb = at;
        at = fillRealTable<T>(rec, order, oct, at, false);
        rec->recombInv = at;
        at = fillRealTable<T>(rec, order, oct, at, true);
    }
    *ppSpec = rec;
    return qspStsOk;
}

template <class Spec, class T>
QspStatus initAs(fft::Kind kind, Spec** pp, int order, int flag, int hint, Qsp8u* pSpec, Qsp8u* pSpecBuffer)
{
    void* rec = nullptr;
    const QspStatus s = init<T>(kind, pp ? &rec : nullptr, order, flag, hint, pSpec, pSpecBuffer);
    if (s == qspStsOk) *pp = static_cast<Spec*>(rec);
    return s;
}

}  // namespace

QspStatus qspsFFTInit_C_32fc(QspsFFTSpec_C_32fc** ppFFTSpec, int order, int flag, QspHintAlgorithm hint,
                             Qsp8u* pSpec, Qsp8u* pSpecBuffer)
{
    return initAs<QspsFFTSpec_C_32fc, float>(fft::kC32fc, ppFFTSpec, order, flag, hint, pSpec, pSpecBuffer);
}

QspStatus qspsFFTInit_C_32f(QspsFFTSpec_C_32f** ppFFTSpec, int order, int flag, QspHintAlgorithm hint, Qsp8u* pSpec,
                            Qsp8u* pSpecBuffer)
{
    QspsFFTSpec_C_32fc* rec = nullptr;
    const QspStatus s = qspsFFTInit_C_32fc(ppFFTSpec ? &rec : nullptr, order, flag, hint, pSpec, pSpecBuffer);
    if (s != qspStsOk) return s;
    reinterpret_cast<fft::Record*>(rec)->id = fft::kC32f;
    *ppFFTSpec = reinterpret_cast<QspsFFTSpec_C_32f*>(rec);
    return s;
}

QspStatus qspsFFTInit_R_32f(QspsFFTSpec_R_32f** ppFFTSpec, int order, int flag, QspHintAlgorithm hint, Qsp8u* pSpec,
                            Qsp8u* pSpecBuffer)
{
    return initAs<QspsFFTSpec_R_32f, float>(fft::kR32f, ppFFTSpec, order, flag, hint, pSpec, pSpecBuffer);
}

QspStatus qspsFFTInit_C_64fc(QspsFFTSpec_C_64fc** ppFFTSpec, int order, int flag, QspHintAlgorithm hint,
                             Qsp8u* pSpec, Qsp8u* pSpecBuffer)
{
    return initAs<QspsFFTSpec_C_64fc, double>(fft::kC64fc, ppFFTSpec, order, flag, hint, pSpec, pSpecBuffer);
}

QspStatus qspsFFTInit_C_64f(QspsFFTSpec_C_64f** ppFFTSpec, int order, int flag, QspHintAlgorithm hint, Qsp8u* pSpec,
                            Qsp8u* pSpecBuffer)
{
    QspsFFTSpec_C_64fc* rec = nullptr;
    const QspStatus s = qspsFFTInit_C_64fc(ppFFTSpec ? &rec : nullptr, order, flag, hint, pSpec, pSpecBuffer);
    if (s != qspStsOk) return s;
    reinterpret_cast<fft::Record*>(rec)->id = fft::kC64f;
    *ppFFTSpec = reinterpret_cast<QspsFFTSpec_C_64f*>(rec);
    return s;
}

QspStatus qspsFFTInit_R_64f(QspsFFTSpec_R_64f** ppFFTSpec, int order, int flag, QspHintAlgorithm hint, Qsp8u* pSpec,
                            Qsp8u* pSpecBuffer)
{
    return initAs<QspsFFTSpec_R_64f, double>(fft::kR64f, ppFFTSpec, order, flag, hint, pSpec, pSpecBuffer);
}

// Half precision: the argument checks of single precision, and a good flag
// at order 28, where the work buffer cannot be described by an int, is
// refused with qspStsOverflow before anything is written. Then
// flush-to-zero and denormals-are-zero are switched on (and left on), a
// single-precision record is built and marked as half.
QspStatus qspsFFTInit_C_16fc(QspsFFTSpec_C_16fc** ppFFTSpec, int order, int flag, QspHintAlgorithm hint,
                             Qsp8u* pSpec, Qsp8u* pSpecBuffer)
{
    if (ppFFTSpec == nullptr) return qspStsNullPtr;
    if (static_cast<unsigned>(order) > static_cast<unsigned>(fft::maxOrder(fft::kC16fc))) return qspStsBadFftOrder;
    if (pSpec == nullptr) return qspStsNullPtr;
    if (fft::validFlag(flag) && !fft::sizesFit(fft::kindSizes(fft::kC16fc, order))) return qspStsOverflow;
    qspSetFlushToZero(1, nullptr);
    qspSetDenormAreZeros(1, nullptr);
    QspsFFTSpec_C_32fc* rec = nullptr;
    const QspStatus s = qspsFFTInit_C_32fc(ppFFTSpec ? &rec : nullptr, order, flag, hint, pSpec, pSpecBuffer);
    if (s != qspStsOk) return s;
    reinterpret_cast<fft::Record*>(rec)->id = fft::kC16fc;
    *ppFFTSpec = reinterpret_cast<QspsFFTSpec_C_16fc*>(rec);
    return s;
}

}  // namespace y8

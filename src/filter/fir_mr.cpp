// SPDX-License-Identifier: BSD-3-Clause
// FIRMR: the multi-rate FIR filter, upsampling by upFactor, filtering and
// downsampling by downFactor in one polyphase pass (polyphase.h). The
// record holds the plan (phases, pieces, the taps rearranged per piece);
// the filter's history travels through the caller's delay lines as in the
// single-rate filter.
//
// Record, in caller memory from the first 64-byte boundary at or after the
// caller's pointer:
//   0    header (64 bytes): identifier, the plan's numbers and pointers
//   64   the phases (8 bytes each, upFactor of them)
//        the pieces (16 bytes each), 16-byte aligned
//        the taps per piece, 16-byte aligned
// The identifier names the record's type; every filtering call checks it.
#include "checks.h"
#include "polyphase.h"
#include "qsp_validators.h"
#include "rate_args.h"
#include "arith/rounding.h"

namespace y8 {
namespace {

using polyphase::Phase;
using polyphase::Piece;
using polyphase::Plan;

// Identifiers: "MR" and the type's number.
constexpr Qsp32u kId32f = 0x4D523031u;
constexpr Qsp32u kId64f = 0x4D523032u;
constexpr Qsp32u kId32fc = 0x4D523033u;
constexpr Qsp32u kId64fc = 0x4D523034u;
constexpr Qsp32u kId32f32fc = 0x4D523035u;

struct Record {
    Qsp32u id;
    Qsp32u reserved;
    Plan plan;
};
static_assert(sizeof(Record) <= 64);

constexpr Qsp64s kHeaderBytes = 64;

constexpr Qsp64s align16(Qsp64s x) { return (x + 15) & ~Qsp64s(15); }

// One record type: taps Tap, data Data, the kernel's kind, identifier.
template <class Tap, class Data, class K, Qsp32u Id>
struct Type {
    using TapT = Tap;
    using DataT = Data;
    using Kind = K;
    using Part = typename K::Part;
    static constexpr Qsp32u id = Id;
    static constexpr int tapParts = K::complexTaps ? 2 : 1;
};

using T32f = Type<Qsp32f, Qsp32f, fir::RealKind<float>, kId32f>;
using T64f = Type<Qsp64f, Qsp64f, fir::RealKind<double>, kId64f>;
using T32fc = Type<Qsp32fc, Qsp32fc, fir::ComplexKind<float>, kId32fc>;
using T64fc = Type<Qsp64fc, Qsp64fc, fir::ComplexKind<double>, kId64fc>;
using T32f32fc = Type<Qsp32f, Qsp32fc, fir::MixedKind<float>, kId32f32fc>;

struct Layout {
    Qsp64s phases, pieces, taps;  // byte offsets from the record
    Qsp64s record, buffer;        // the sizes GetSize reports
};

// Offsets and sizes, from upper bounds of the piece and tap counts; false
// when they do not fit in an int.
template <class F>
bool layoutFor(Qsp64s n, Qsp64s up, Qsp64s down, Layout& z)
{
    z.phases = kHeaderBytes;
    z.pieces = align16(z.phases + up * Qsp64s(sizeof(Phase)));
    z.taps = align16(z.pieces + polyphase::pieceBound(n, up, down) * Qsp64s(sizeof(Piece)));
    z.record = 63 + z.taps + polyphase::tapBound(n, up) * Qsp64s(sizeof(typename F::TapT));
    z.buffer = 15 + polyphase::workSamples(n, up, down) * Qsp64s(sizeof(typename F::DataT));
    return z.record <= 0x7FFFFFFF && z.buffer <= 0x7FFFFFFF;
}

template <class T>
T* alignUp64(T* p)
{
    return reinterpret_cast<T*>((reinterpret_cast<Qsp64u>(p) + 63) & ~Qsp64u(63));
}

template <class F>
QspStatus getSize(int tapsLen, int upFactor, int downFactor, int* pSpecSize, int* pBufSize)
{
    Layout z;
    if (!layoutFor<F>(tapsLen, upFactor, downFactor, z)) return qspStsOverflow;
    *pSpecSize = int(z.record);
    *pBufSize = int(z.buffer);
    return qspStsOk;
}

QspStatus sizeChecks(int tapsLen, int upFactor, int downFactor)
{
    if (tapsLen < 1) return qspStsBadTapCount;
    if (QspStatus s = rate::factor(upFactor)) return s;
    return rate::factor(downFactor);
}

template <class F>
QspStatus init(const typename F::TapT* pTaps, int tapsLen, int upFactor, int upPhase, int downFactor, int downPhase,
               void* pSpec)
{
    if (tapsLen < 1) return qspStsBadTapCount;
    if (QspStatus s = check::pointers(pTaps, pSpec)) return s;
    if (QspStatus s = rate::factorAndPhase(upFactor, upPhase)) return s;
    if (QspStatus s = rate::factorAndPhase(downFactor, downPhase)) return s;
    Layout z;
    if (!layoutFor<F>(tapsLen, upFactor, downFactor, z)) return qspStsOverflow;
    using P = typename F::Part;
    Record* r = alignUp64(static_cast<Record*>(pSpec));
    Qsp8u* base = reinterpret_cast<Qsp8u*>(r);
    r->id = F::id;
    r->reserved = 0;
    r->plan = polyphase::build<P, F::tapParts>(reinterpret_cast<const P*>(pTaps), tapsLen, upFactor, upPhase,
                                                downFactor, downPhase, reinterpret_cast<Phase*>(base + z.phases),
                                                reinterpret_cast<Piece*>(base + z.pieces),
                                                reinterpret_cast<P*>(base + z.taps));
    return qspStsOk;
}

// ---------------------------------------------------------------- filtering

// 16-bit samples through single-precision arithmetic.
struct Real16 {
    using In = Qsp16s;
    static Qsp32f in(Qsp16s x) { return Qsp32f(x); }
    static Qsp16s out(Qsp32f y) { return rounding::toInt<rounding::kNear, Qsp16s>(double(y)); }
};
struct Complex16 {
    using In = Qsp16sc;
    static Qsp32fc in(Qsp16sc x) { return {Qsp32f(x.re), Qsp32f(x.im)}; }
    static Qsp16sc out(Qsp32fc y) { return {Real16::out(y.re), Real16::out(y.im)}; }
};

// The last `h` samples of the delay line followed by `count` inputs,
// oldest first, converted to the arithmetic's samples.
template <class IO, class T>
void latest(const typename IO::In* src, Qsp64s count, const T* dly, Qsp64s h, T* out)
{
    for (Qsp64s j = 0; j < h; ++j) {
        const Qsp64s g = count - h + j;
        out[j] = g >= 0 ? IO::in(src[g]) : dly[h + g];
    }
}

template <class F, class IO>
QspStatus filter(const typename IO::In* pSrc, typename IO::In* pDst, int numIters, const void* pSpec,
                 const typename IO::In* pDlySrc, typename IO::In* pDlyDst, Qsp8u* pBuf)
{
    using T = typename F::DataT;
    if (pSpec == nullptr) return qspStsNullPtr;
    if (QspStatus s = check::pointers(pSrc, pDst, pBuf)) return s;
    if (numIters < 1) return qspStsBadSize;
    const Record* r = alignUp64(static_cast<const Record*>(pSpec));
    if (r->id != F::id) return qspStsBadRecord;

    const Plan& plan = r->plan;
    const polyphase::Work<T> w = polyphase::workAreas<T>(plan, pBuf);
    const Qsp64s h = plan.history, inputs = Qsp64s(numIters) * plan.down;
    // The delay line and the new one are taken before anything is written,
    // so that any of the arrays may share memory with the delay lines and
    // the output may overwrite the input.
    for (Qsp64s j = 0; j < h; ++j) w.dlyIn[j] = pDlySrc ? IO::in(pDlySrc[j]) : T{};
    if (pDlyDst) latest<IO>(pSrc, inputs, w.dlyIn, h, w.dlyOut);
    const polyphase::Run<typename F::Kind, IO> run{plan, w, pSrc};
    run.all(pDst, numIters, pSrc == pDst && plan.up > plan.down);
    if (pDlyDst)
        for (Qsp64s j = 0; j < h; ++j) pDlyDst[j] = IO::out(w.dlyOut[j]);
    return qspStsOk;
}

}  // namespace

// ---------------------------------------------------------------- exports

QspStatus qspsFIRMRGetSize(int tapsLen, int upFactor, int downFactor, QspDataType tapsType, int* pSpecSize,
                           int* pBufSize)
{
    if (QspStatus s = sizeChecks(tapsLen, upFactor, downFactor)) return s;
    if (tapsType != qsp32f && tapsType != qsp32fc && tapsType != qsp64f && tapsType != qsp64fc)
        return qspStsBadDataType;
    if (QspStatus s = check::pointers(pSpecSize, pBufSize)) return s;
    switch (tapsType) {
    case qsp32f: return getSize<T32f>(tapsLen, upFactor, downFactor, pSpecSize, pBufSize);
    case qsp64f: return getSize<T64f>(tapsLen, upFactor, downFactor, pSpecSize, pBufSize);
    case qsp32fc: return getSize<T32fc>(tapsLen, upFactor, downFactor, pSpecSize, pBufSize);
    default: return getSize<T64fc>(tapsLen, upFactor, downFactor, pSpecSize, pBufSize);
    }
}

QspStatus qspsFIRMRGetSize32f_32fc(int tapsLen, int upFactor, int downFactor, int* pSpecSize, int* pBufSize)
{
    if (QspStatus s = sizeChecks(tapsLen, upFactor, downFactor)) return s;
    if (QspStatus s = check::pointers(pSpecSize, pBufSize)) return s;
    return getSize<T32f32fc>(tapsLen, upFactor, downFactor, pSpecSize, pBufSize);
}

QspStatus qspsFIRMRInit_32f(const Qsp32f* pTaps, int tapsLen, int upFactor, int upPhase, int downFactor,
                            int downPhase, QspsFIRMRSpec_32f* pSpec)
{
    return init<T32f>(pTaps, tapsLen, upFactor, upPhase, downFactor, downPhase, pSpec);
}
QspStatus qspsFIRMRInit_64f(const Qsp64f* pTaps, int tapsLen, int upFactor, int upPhase, int downFactor,
                            int downPhase, QspsFIRMRSpec_64f* pSpec)
{
    return init<T64f>(pTaps, tapsLen, upFactor, upPhase, downFactor, downPhase, pSpec);
}
QspStatus qspsFIRMRInit_32fc(const Qsp32fc* pTaps, int tapsLen, int upFactor, int upPhase, int downFactor,
                             int downPhase, QspsFIRMRSpec_32fc* pSpec)
{
    return init<T32fc>(pTaps, tapsLen, upFactor, upPhase, downFactor, downPhase, pSpec);
}
QspStatus qspsFIRMRInit_64fc(const Qsp64fc* pTaps, int tapsLen, int upFactor, int upPhase, int downFactor,
                             int downPhase, QspsFIRMRSpec_64fc* pSpec)
{
    return init<T64fc>(pTaps, tapsLen, upFactor, upPhase, downFactor, downPhase, pSpec);
}
QspStatus qspsFIRMRInit32f_32fc(const Qsp32f* pTaps, int tapsLen, int upFactor, int upPhase, int downFactor,
                               int downPhase, QspsFIRMRSpec32f_32fc* pSpec)
{
    return init<T32f32fc>(pTaps, tapsLen, upFactor, upPhase, downFactor, downPhase, pSpec);
}

QspStatus qspsFIRMR_32f(const Qsp32f* pSrc, Qsp32f* pDst, int numIters, QspsFIRMRSpec_32f* pSpec,
                        const Qsp32f* pDlySrc, Qsp32f* pDlyDst, Qsp8u* pBuf)
{
    return filter<T32f, polyphase::Same<Qsp32f>>(pSrc, pDst, numIters, pSpec, pDlySrc, pDlyDst, pBuf);
}
QspStatus qspsFIRMR_64f(const Qsp64f* pSrc, Qsp64f* pDst, int numIters, QspsFIRMRSpec_64f* pSpec,
                        const Qsp64f* pDlySrc, Qsp64f* pDlyDst, Qsp8u* pBuf)
{
    return filter<T64f, polyphase::Same<Qsp64f>>(pSrc, pDst, numIters, pSpec, pDlySrc, pDlyDst, pBuf);
}
QspStatus qspsFIRMR_32fc(const Qsp32fc* pSrc, Qsp32fc* pDst, int numIters, QspsFIRMRSpec_32fc* pSpec,
                         const Qsp32fc* pDlySrc, Qsp32fc* pDlyDst, Qsp8u* pBuf)
{
    return filter<T32fc, polyphase::Same<Qsp32fc>>(pSrc, pDst, numIters, pSpec, pDlySrc, pDlyDst, pBuf);
}
QspStatus qspsFIRMR_64fc(const Qsp64fc* pSrc, Qsp64fc* pDst, int numIters, QspsFIRMRSpec_64fc* pSpec,
                         const Qsp64fc* pDlySrc, Qsp64fc* pDlyDst, Qsp8u* pBuf)
{
    return filter<T64fc, polyphase::Same<Qsp64fc>>(pSrc, pDst, numIters, pSpec, pDlySrc, pDlyDst, pBuf);
}
QspStatus qspsFIRMR32f_32fc(const Qsp32fc* pSrc, Qsp32fc* pDst, int numIters, QspsFIRMRSpec32f_32fc* pSpec,
                           const Qsp32fc* pDlySrc, Qsp32fc* pDlyDst, Qsp8u* pBuf)
{
    return filter<T32f32fc, polyphase::Same<Qsp32fc>>(pSrc, pDst, numIters, pSpec, pDlySrc, pDlyDst, pBuf);
}
QspStatus qspsFIRMR_16s(const Qsp16s* pSrc, Qsp16s* pDst, int numIters, QspsFIRMRSpec_32f* pSpec,
                        const Qsp16s* pDlySrc, Qsp16s* pDlyDst, Qsp8u* pBuf)
{
    return filter<T32f, Real16>(pSrc, pDst, numIters, pSpec, pDlySrc, pDlyDst, pBuf);
}
QspStatus qspsFIRMR_16sc(const Qsp16sc* pSrc, Qsp16sc* pDst, int numIters, QspsFIRMRSpec_32fc* pSpec,
                         const Qsp16sc* pDlySrc, Qsp16sc* pDlyDst, Qsp8u* pBuf)
{
    return filter<T32fc, Complex16>(pSrc, pDst, numIters, pSpec, pDlySrc, pDlyDst, pBuf);
}

}  // namespace y8

// SPDX-License-Identifier: BSD-3-Clause
// IIRIIR: zero-phase filtering by one AR filter run forward and then
// backward over the block, so that the magnitude response is squared and
// the phase cancels. The edges are treated as in the usual forward-backward
// scheme: the block is extended at each end by P = min(3N, len - 1) samples
// reflected about its end sample (x[-k] = 2 x[0] - x[k], x[len-1+k] =
// 2 x[len-1] - x[len-1-k]), and each pass starts from the steady state the
// filter reaches under a constant input equal to the first sample it sees,
// which removes the start-up transient. The forward pass starts from that
// state plus the state's forward delay line (zeros unless the caller sets
// one); filtering does not change the forward delay line.
//
// The passes run on an AR state of the IIR family (Init, SetDlyLine and
// filtering in place), so the zero-phase filter computes with the same
// kernels as IIR. Record, in caller memory from the first 64-byte boundary
// at or after the caller's pointer:
//   header (64 bytes): identifier, order, pointer to the AR state
//   the AR state's memory
//   fwd, zi, start: N values each of the state's type (the forward delay
//   line; the steady state for a unit input; the delay line a pass starts
//   from), then two areas of 3N samples for the extensions at both ends.
#include "checks.h"
#include "qsp_validators.h"
#include "simd.h"

namespace y8 {
namespace {

// Identifiers: "ZP" and the type's number.
constexpr Qsp32u kId32f = 0x5A503031u;
constexpr Qsp32u kId64f = 0x5A503032u;
constexpr Qsp32u kId64f32f = 0x5A503033u;

struct Header {
    Qsp32u id;
    int order;
    void* ar;        // the AR state
    Qsp64s values;   // byte offset of fwd, zi, start, the extensions
};
static_assert(sizeof(Header) <= 64);

constexpr Qsp64s align64(Qsp64s x) { return (x + 63) & ~Qsp64s(63); }

// One type of the family: state values S, samples D, the AR state's calls.
template <class S, class D, class St>
struct Kind {
    using StateT = S;
    using Data = D;
    using ArState = St;
};

struct K32f : Kind<Qsp32f, Qsp32f, QspsIIRState_32f> {
    static constexpr Qsp32u id = kId32f;
    static QspStatus arSize(int n, int* s) { return qspsIIRGetStateSize_32f(n, s); }
    static QspStatus arInit(ArState** p, const Qsp32f* t, int n, Qsp8u* b) { return qspsIIRInit_32f(p, t, n, nullptr, b); }
    static QspStatus arSet(ArState* p, const Qsp32f* d) { return qspsIIRSetDlyLine_32f(p, d); }
    static QspStatus arRun(const Qsp32f* s, Qsp32f* d, int n, ArState* p) { return qspsIIR_32f(s, d, n, p); }
    static QspStatus arRunI(Qsp32f* d, int n, ArState* p) { return qspsIIR_32f_I(d, n, p); }
    static QspStatus flip(Qsp32f* d, int n) { return qspsFlip_32f_I(d, n); }
};
struct K64f : Kind<Qsp64f, Qsp64f, QspsIIRState_64f> {
    static constexpr Qsp32u id = kId64f;
    static QspStatus arSize(int n, int* s) { return qspsIIRGetStateSize_64f(n, s); }
    static QspStatus arInit(ArState** p, const Qsp64f* t, int n, Qsp8u* b) { return qspsIIRInit_64f(p, t, n, nullptr, b); }
    static QspStatus arSet(ArState* p, const Qsp64f* d) { return qspsIIRSetDlyLine_64f(p, d); }
    static QspStatus arRun(const Qsp64f* s, Qsp64f* d, int n, ArState* p) { return qspsIIR_64f(s, d, n, p); }
    static QspStatus arRunI(Qsp64f* d, int n, ArState* p) { return qspsIIR_64f_I(d, n, p); }
    static QspStatus flip(Qsp64f* d, int n) { return qspsFlip_64f_I(d, n); }
};
struct K64f32f : Kind<Qsp64f, Qsp32f, QspsIIRState64f_32f> {
    static constexpr Qsp32u id = kId64f32f;
    static QspStatus arSize(int n, int* s) { return qspsIIRGetStateSize64f_32f(n, s); }
    static QspStatus arInit(ArState** p, const Qsp64f* t, int n, Qsp8u* b) { return qspsIIRInit64f_32f(p, t, n, nullptr, b); }
    static QspStatus arSet(ArState* p, const Qsp64f* d) { return qspsIIRSetDlyLine64f_32f(p, d); }
    static QspStatus arRun(const Qsp32f* s, Qsp32f* d, int n, ArState* p) { return qspsIIR64f_32f(s, d, n, p); }
    static QspStatus arRunI(Qsp32f* d, int n, ArState* p) { return qspsIIR64f_32f_I(d, n, p); }
    static QspStatus flip(Qsp32f* d, int n) { return qspsFlip_32f_I(d, n); }
};

// Byte sizes: the AR state from its offset 64, then the values.
template <class K>
bool layout(int N, Qsp64s& values, Qsp64s& total)
{
    int ar = 0;
    if (K::arSize(N, &ar) != qspStsOk) return false;
    values = align64(64 + Qsp64s(ar));
    total = values + 3 * Qsp64s(N) * Qsp64s(sizeof(typename K::StateT)) + 6 * Qsp64s(N) * Qsp64s(sizeof(typename K::Data)) + 63;
    return total <= 0x7FFFFFFF;
}

template <class K>
QspStatus getSize(int order, int* pBufferSize)
{
    if (QspStatus s = check::pointers(pBufferSize)) return s;
    if (order < 1) return qspStsBadFilterOrder;
    Qsp64s values, total;
    if (!layout<K>(order, values, total)) return qspStsOverflow;
    *pBufferSize = int(total);
    return qspStsOk;
}

template <class K>
typename K::StateT* valuesOf(Header* h)
{
    return reinterpret_cast<typename K::StateT*>(reinterpret_cast<Qsp8u*>(h) + h->values);
}

// The forward delay line from the caller's (null: zeros).
template <class S>
void loadForward(S* fwd, const S* src, int N)
{
    for (int k = 0; k < N; ++k) fwd[k] = src ? simd::loadOne(src + k) : S(0);
}

template <class K, class S = typename K::StateT>
QspStatus init(typename K::ArState** ppState, const S* pTaps, int order, const S* pDlyLine, Qsp8u* pBuf)
{
    if (QspStatus s = check::pointers(ppState, pTaps, pBuf)) return s;
    if (order < 1) return qspStsBadFilterOrder;
    const int N = order;
    const S* b = pTaps;
    const S* a = pTaps + N + 1;
    if (a[0] == S(0)) return qspStsZeroDivisor;
    Qsp64s values, total;
    if (!layout<K>(N, values, total)) return qspStsOverflow;
    Header* h = reinterpret_cast<Header*>((reinterpret_cast<Qsp64u>(pBuf) + 63) & ~Qsp64u(63));
    h->id = K::id;
    h->order = N;
    h->values = values;
    typename K::ArState* ar = nullptr;
    K::arInit(&ar, pTaps, N, reinterpret_cast<Qsp8u*>(h) + 64);
    h->ar = ar;
    S* fwd = valuesOf<K>(h);
    S* zi = fwd + N;
    loadForward(fwd, pDlyLine, N);
    // The steady state under x = 1 of the transposed direct form: the output
    // is g = sum b / sum a, and d[k] = sum over j > k of (b_j - a_j g) / a0.
    // A pole at z = 1 (sum a = 0) has no steady state: zeros.
    double sb = 0, sa = 0;
    for (int j = 0; j <= N; ++j) sb += double(b[j]), sa += double(a[j]);
    const double g = sa != 0 ? sb / sa : 0;
    double acc = 0;
    for (int k = N - 1; k >= 0; --k) {
        acc += sa != 0 ? double(b[k + 1]) - double(a[k + 1]) * g : 0;
        zi[k] = S(acc / double(a[0]));
    }
    *ppState = reinterpret_cast<typename K::ArState*>(h);
    return qspStsOk;
}

// The AR state's delay line set to base + zi * v (base null: zeros).
template <class K, class S>
void startFrom(Header* h, const S* base, const S* zi, S* start, S v)
{
    for (int k = 0; k < h->order; ++k) start[k] = (base ? base[k] : S(0)) + zi[k] * v;
    K::arSet(static_cast<typename K::ArState*>(h->ar), start);
}

template <class K>
QspStatus filter(const typename K::Data* pSrc, typename K::Data* pDst, int len, typename K::ArState* pState)
{
    using S = typename K::StateT;
    using D = typename K::Data;
    if (QspStatus s = check::vectors(len, pSrc, pDst, pState)) return s;
    Header* h = reinterpret_cast<Header*>(pState);
    if (h->id != K::id) return qspStsBadRecord;
    const int N = h->order;
    auto* ar = static_cast<typename K::ArState*>(h->ar);
    S* fwd = valuesOf<K>(h);
    S* zi = fwd + N;
    S* start = zi + N;
    D* front = reinterpret_cast<D*>(start + N);
    D* back = front + 3 * N;
    const int P = len - 1 < 3 * N ? len - 1 : 3 * N;
    // Both extensions are taken before anything is written (pDst may be pSrc).
    const S x0 = S(pSrc[0]), xe = S(pSrc[len - 1]);
    for (int i = 0; i < P; ++i) front[i] = D(2 * x0 - S(pSrc[P - i]));
    for (int k = 0; k < P; ++k) back[k] = D(2 * xe - S(pSrc[len - 2 - k]));

    // Forward over front, block, back.
    startFrom<K>(h, fwd, zi, start, P > 0 ? S(front[0]) : x0);
    if (P > 0) K::arRunI(front, P, ar);
    if (pSrc == pDst) K::arRunI(pDst, len, ar);
    else K::arRun(pSrc, pDst, len, ar);
    if (P > 0) K::arRunI(back, P, ar);

    // Backward over back, block (front is not needed: its outputs would be
    // cut off).
    startFrom<K>(h, static_cast<const S*>(nullptr), zi, start, P > 0 ? S(back[P - 1]) : S(pDst[len - 1]));
    if (P > 0) {
        K::flip(back, P);
        K::arRunI(back, P, ar);
    }
    K::flip(pDst, len);
    K::arRunI(pDst, len, ar);
    K::flip(pDst, len);
    return qspStsOk;
}

template <class K, class S = typename K::StateT>
QspStatus getDly(const typename K::ArState* pState, S* pDlyLine)
{
    if (QspStatus s = check::pointers(pState, pDlyLine)) return s;
    Header* h = reinterpret_cast<Header*>(const_cast<typename K::ArState*>(pState));
    if (h->id != K::id) return qspStsBadRecord;
    const S* fwd = valuesOf<K>(h);
    for (int k = 0; k < h->order; ++k) simd::storeOne(pDlyLine + k, fwd[k]);
    return qspStsOk;
}

template <class K, class S = typename K::StateT>
QspStatus setDly(typename K::ArState* pState, const S* pDlyLine)
{
    if (QspStatus s = check::pointers(pState)) return s;
    Header* h = reinterpret_cast<Header*>(pState);
    if (h->id != K::id) return qspStsBadRecord;
    loadForward(valuesOf<K>(h), pDlyLine, h->order);
    return qspStsOk;
}

}  // namespace

QspStatus qspsIIRIIRGetStateSize_32f(int order, int* pBufferSize) { return getSize<K32f>(order, pBufferSize); }
QspStatus qspsIIRIIRInit_32f(QspsIIRState_32f** ppState, const Qsp32f* pTaps, int order, const Qsp32f* pDlyLine,
                             Qsp8u* pBuf)
{
    return init<K32f>(ppState, pTaps, order, pDlyLine, pBuf);
}
QspStatus qspsIIRIIR_32f(const Qsp32f* pSrc, Qsp32f* pDst, int len, QspsIIRState_32f* pState)
{
    return filter<K32f>(pSrc, pDst, len, pState);
}
QspStatus qspsIIRIIR_32f_I(Qsp32f* pSrcDst, int len, QspsIIRState_32f* pState)
{
    return filter<K32f>(pSrcDst, pSrcDst, len, pState);
}
QspStatus qspsIIRIIRGetDlyLine_32f(const QspsIIRState_32f* pState, Qsp32f* pDlyLine)
{
    return getDly<K32f>(pState, pDlyLine);
}
QspStatus qspsIIRIIRSetDlyLine_32f(QspsIIRState_32f* pState, const Qsp32f* pDlyLine)
{
    return setDly<K32f>(pState, pDlyLine);
}

QspStatus qspsIIRIIRGetStateSize_64f(int order, int* pBufferSize) { return getSize<K64f>(order, pBufferSize); }
QspStatus qspsIIRIIRInit_64f(QspsIIRState_64f** ppState, const Qsp64f* pTaps, int order, const Qsp64f* pDlyLine,
                             Qsp8u* pBuf)
{
    return init<K64f>(ppState, pTaps, order, pDlyLine, pBuf);
}
QspStatus qspsIIRIIR_64f(const Qsp64f* pSrc, Qsp64f* pDst, int len, QspsIIRState_64f* pState)
{
    return filter<K64f>(pSrc, pDst, len, pState);
}
QspStatus qspsIIRIIR_64f_I(Qsp64f* pSrcDst, int len, QspsIIRState_64f* pState)
{
    return filter<K64f>(pSrcDst, pSrcDst, len, pState);
}
QspStatus qspsIIRIIRGetDlyLine_64f(const QspsIIRState_64f* pState, Qsp64f* pDlyLine)
{
    return getDly<K64f>(pState, pDlyLine);
}
QspStatus qspsIIRIIRSetDlyLine_64f(QspsIIRState_64f* pState, const Qsp64f* pDlyLine)
{
    return setDly<K64f>(pState, pDlyLine);
}

QspStatus qspsIIRIIRGetStateSize64f_32f(int order, int* pBufferSize) { return getSize<K64f32f>(order, pBufferSize); }
QspStatus qspsIIRIIRInit64f_32f(QspsIIRState64f_32f** ppState, const Qsp64f* pTaps, int order,
                                const Qsp64f* pDlyLine, Qsp8u* pBuf)
{
    return init<K64f32f>(ppState, pTaps, order, pDlyLine, pBuf);
}
QspStatus qspsIIRIIR64f_32f(const Qsp32f* pSrc, Qsp32f* pDst, int len, QspsIIRState64f_32f* pState)
{
    return filter<K64f32f>(pSrc, pDst, len, pState);
}
QspStatus qspsIIRIIR64f_32f_I(Qsp32f* pSrcDst, int len, QspsIIRState64f_32f* pState)
{
    return filter<K64f32f>(pSrcDst, pSrcDst, len, pState);
}
QspStatus qspsIIRIIRGetDlyLine64f_32f(const QspsIIRState64f_32f* pState, Qsp64f* pDlyLine)
{
    return getDly<K64f32f>(pState, pDlyLine);
}
QspStatus qspsIIRIIRSetDlyLine64f_32f(QspsIIRState64f_32f* pState, const Qsp64f* pDlyLine)
{
    return setDly<K64f32f>(pState, pDlyLine);
}

}  // namespace y8

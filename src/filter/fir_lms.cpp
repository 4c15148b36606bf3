// SPDX-License-Identifier: BSD-3-Clause
// FIRLMS: the adaptive FIR filter of the least-mean-squares rule. For every
// input x[n]: y[n] = sum over k of t[k] x[n-k], e = ref[n] - y[n], then
// t[k] += mu e x[n-k] for every k.
//
// State, in caller memory from the first 64-byte boundary at or after the
// caller's pointer:
//   header (64 bytes): identifier, tap count L, delay index
//   the taps, reversed (rt[i] = t[L-1-i]), L values, 16-byte aligned
//   the delay ring twice over: 2L values, d[i] = d[i + L]
// The caller's delay line is the ring d[0 .. L): d[(idx - k) mod L] holds
// x[-k] for k = 1 .. L-1, and d[idx] takes the next input. Keeping a second
// copy of the ring behind the first makes the window of the last L inputs,
// oldest first, the contiguous run d[idx+1 .. idx+L], so that the inner
// product and the update run over plain arrays in the taps' reversed order.
#include "checks.h"
#include "iir_kernels.h"
#include "qsp_validators.h"

namespace y8 {
namespace {

using V = simd::Vec<float>;

// Identifiers: "LM" and the type's number.
constexpr Qsp32u kId32f = 0x4C4D3031u;
constexpr Qsp32u kId32f16s = 0x4C4D3032u;

struct Header {
    Qsp32u id;
    int taps;  // L
    int index;
};

constexpr Qsp64s align16(Qsp64s x) { return (x + 15) & ~Qsp64s(15); }
constexpr Qsp64s kTaps = 64;
constexpr Qsp64s ringOffset(Qsp64s L) { return kTaps + align16(4 * L); }

Header* alignUp64(void* p) { return reinterpret_cast<Header*>((reinterpret_cast<Qsp64u>(p) + 63) & ~Qsp64u(63)); }
float* tapsOf(Header* h) { return reinterpret_cast<float*>(reinterpret_cast<Qsp8u*>(h) + kTaps); }
float* ringOf(Header* h) { return reinterpret_cast<float*>(reinterpret_cast<Qsp8u*>(h) + ringOffset(h->taps)); }
const float* tapsOf(const Header* h) { return tapsOf(const_cast<Header*>(h)); }
const float* ringOf(const Header* h) { return ringOf(const_cast<Header*>(h)); }

QspStatus sizeAndIndex(int tapsLen, int dlyIndex)
{
    if (tapsLen < 1) return qspStsBadTapCount;
    if (unsigned(dlyIndex) >= unsigned(tapsLen)) return qspStsBadDelayIndex;
    return qspStsOk;
}

// The state's size in bytes, alignment slack included; qspStsOverflow when
// it does not fit in an int.
QspStatus stateBytes(int tapsLen, int* size)
{
    const Qsp64s bytes = ringOffset(tapsLen) + 8 * Qsp64s(tapsLen) + 63;
    if (bytes > 0x7FFFFFFF) return qspStsOverflow;
    *size = int(bytes);
    return qspStsOk;
}

QspStatus getSize(int tapsLen, int dlyIndex, int* pBufferSize)
{
    if (QspStatus s = check::pointers(pBufferSize)) return s;
    if (QspStatus s = sizeAndIndex(tapsLen, dlyIndex)) return s;
    return stateBytes(tapsLen, pBufferSize);
}

// The ring from the caller's delay line (null: zeros), both copies.
template <class D>
void loadRing(float* d, const D* dly, int L)
{
    for (int i = 0; i < L; ++i) d[i] = d[i + L] = dly ? float(simd::loadOne(dly + i)) : 0.0f;
}

template <class D, class S>
QspStatus init(Qsp32u id, S** ppState, const Qsp32f* pTaps, int tapsLen, const D* pDlyLine, int dlyIndex,
               Qsp8u* pBuffer)
{
    if (QspStatus s = check::pointers(ppState, pBuffer)) return s;
    if (QspStatus s = sizeAndIndex(tapsLen, dlyIndex)) return s;
    int size;  // a state too large to size is refused as its size query refuses it
    if (QspStatus s = stateBytes(tapsLen, &size)) return s;
    Header* h = alignUp64(pBuffer);
    h->id = id;
    h->taps = tapsLen;
    h->index = dlyIndex;
    float* rt = tapsOf(h);
    for (int i = 0; i < tapsLen; ++i) rt[i] = pTaps ? simd::loadOne(pTaps + tapsLen - 1 - i) : 0.0f;
    loadRing(ringOf(h), pDlyLine, tapsLen);
    *ppState = reinterpret_cast<S*>(h);
    return qspStsOk;
}

// sum of t[i] w[i] for i < L: eight running sums (lanes of two registers,
// term i in sum i mod 8) over the runs of eight, then the lanes added as
// ((s0 + s4) + (s2 + s6)) + ((s1 + s5) + (s3 + s7)), then the remaining
// terms one by one.
inline float dot(const float* t, const float* w, int L)
{
    V::Reg a = V::zero(), b = V::zero();
    int i = 0;
    for (; i + 8 <= L; i += 8) {
        a = V::add(a, V::mul(V::load(t + i), V::loadu(w + i)));
        b = V::add(b, V::mul(V::load(t + i + 4), V::loadu(w + i + 4)));
    }
    const V::Reg s = V::add(a, b);                  // s0+s4, s1+s5, s2+s6, s3+s7
    alignas(16) float lane[4];
    V::store(lane, V::add(s, V::highHalves(s, s)));  // lanes 0, 1: (s0+s4)+(s2+s6), (s1+s5)+(s3+s7)
    float y = lane[0] + lane[1];
    for (; i < L; ++i) y += t[i] * w[i];
    return y;
}

// t[i] += g w[i] for i < L.
inline void update(float* t, const float* w, int L, float g)
{
    const V::Reg gv = V::splat(g);
    int i = 0;
    for (; i + 4 <= L; i += 4) V::store(t + i, V::add(V::load(t + i), V::mul(gv, V::loadu(w + i))));
    for (; i < L; ++i) t[i] += g * w[i];
}

struct Plain {
    static float in(Qsp32f v) { return v; }
    static void out(Qsp32f* p, float y) { simd::storeOne(p, y); }
};
struct Int16 {
    iir::ScaledIO<float, Qsp16s> io{0};
    static float in(Qsp16s v) { return float(v); }
    void out(Qsp16s* p, float y) const { io.storeOne(p, y); }
};

template <class D, class S, class IO>
QspStatus lms(Qsp32u id, const D* pSrc, const D* pRef, D* pDst, int len, Qsp32f mu, S* pState, const IO& io)
{
    if (QspStatus s = check::vectors(len, pSrc, pRef, pDst, pState)) return s;
    if (!(mu > 0.0f && mu < 1.0f)) return qspStsBadMu;
    Header* h = reinterpret_cast<Header*>(pState);
    if (h->id != id) return qspStsBadRecord;
    const int L = h->taps;
    float* t = tapsOf(h);
    float* d = ringOf(h);
    int p = h->index;
    for (int n = 0; n < len; ++n) {
        const float x = IO::in(simd::loadOne(pSrc + n)), r = IO::in(simd::loadOne(pRef + n));
        d[p] = d[p + L] = x;
        const float* w = d + p + 1;
        const float y = dot(t, w, L);
        io.out(pDst + n, y);
        update(t, w, L, mu * (r - y));
        p = p + 1 == L ? 0 : p + 1;
    }
    h->index = p;
    return qspStsOk;
}

template <class S>
QspStatus getTaps(Qsp32u id, const S* pState, Qsp32f* pOutTaps)
{
    if (QspStatus s = check::pointers(pState, pOutTaps)) return s;
    const Header* h = reinterpret_cast<const Header*>(pState);
    if (h->id != id) return qspStsBadRecord;
    const float* rt = tapsOf(h);
    for (int k = 0; k < h->taps; ++k) simd::storeOne(pOutTaps + k, rt[h->taps - 1 - k]);
    return qspStsOk;
}

template <class D, class S>
QspStatus getDly(Qsp32u id, const S* pState, D* pDlyLine, int* pDlyIndex)
{
    if (QspStatus s = check::pointers(pState, pDlyLine, pDlyIndex)) return s;
    const Header* h = reinterpret_cast<const Header*>(pState);
    if (h->id != id) return qspStsBadRecord;
    const float* d = ringOf(h);
    for (int i = 0; i < h->taps; ++i) simd::storeOne(pDlyLine + i, D(d[i]));
    *pDlyIndex = h->index;
    return qspStsOk;
}

template <class D, class S>
QspStatus setDly(Qsp32u id, S* pState, const D* pDlyLine, int dlyIndex)
{
    if (QspStatus s = check::pointers(pState)) return s;
    Header* h = reinterpret_cast<Header*>(pState);
    if (h->id != id) return qspStsBadRecord;
    if (unsigned(dlyIndex) >= unsigned(h->taps)) return qspStsBadDelayIndex;
    loadRing(ringOf(h), pDlyLine, h->taps);
    h->index = dlyIndex;
    return qspStsOk;
}

}  // namespace

QspStatus qspsFIRLMSGetStateSize_32f(int tapsLen, int dlyIndex, int* pBufferSize)
{
    return getSize(tapsLen, dlyIndex, pBufferSize);
}
QspStatus qspsFIRLMSInit_32f(QspsFIRLMSState_32f** ppState, const Qsp32f* pTaps, int tapsLen, const Qsp32f* pDlyLine,
                             int dlyIndex, Qsp8u* pBuffer)
{
    return init(kId32f, ppState, pTaps, tapsLen, pDlyLine, dlyIndex, pBuffer);
}
QspStatus qspsFIRLMS_32f(const Qsp32f* pSrc, const Qsp32f* pRef, Qsp32f* pDst, int len, Qsp32f mu,
                         QspsFIRLMSState_32f* pState)
{
    return lms(kId32f, pSrc, pRef, pDst, len, mu, pState, Plain{});
}
QspStatus qspsFIRLMSGetTaps_32f(const QspsFIRLMSState_32f* pState, Qsp32f* pOutTaps)
{
    return getTaps(kId32f, pState, pOutTaps);
}
QspStatus qspsFIRLMSGetDlyLine_32f(const QspsFIRLMSState_32f* pState, Qsp32f* pDlyLine, int* pDlyIndex)
{
    return getDly(kId32f, pState, pDlyLine, pDlyIndex);
}
QspStatus qspsFIRLMSSetDlyLine_32f(QspsFIRLMSState_32f* pState, const Qsp32f* pDlyLine, int dlyIndex)
{
    return setDly(kId32f, pState, pDlyLine, dlyIndex);
}

QspStatus qspsFIRLMSGetStateSize32f_16s(int tapsLen, int dlyIndex, int* pBufferSize)
{
    return getSize(tapsLen, dlyIndex, pBufferSize);
}
QspStatus qspsFIRLMSInit32f_16s(QspsFIRLMSState32f_16s** ppState, const Qsp32f* pTaps, int tapsLen,
                                const Qsp16s* pDlyLine, int dlyIndex, Qsp8u* pBuffer)
{
    return init(kId32f16s, ppState, pTaps, tapsLen, pDlyLine, dlyIndex, pBuffer);
}
QspStatus qspsFIRLMS32f_16s(const Qsp16s* pSrc, const Qsp16s* pRef, Qsp16s* pDst, int len, Qsp32f mu,
                            QspsFIRLMSState32f_16s* pState)
{
    return lms(kId32f16s, pSrc, pRef, pDst, len, mu, pState, Int16{});
}
QspStatus qspsFIRLMSGetTaps32f_16s(const QspsFIRLMSState32f_16s* pState, Qsp32f* pOutTaps)
{
    return getTaps(kId32f16s, pState, pOutTaps);
}
QspStatus qspsFIRLMSGetDlyLine32f_16s(const QspsFIRLMSState32f_16s* pState, Qsp16s* pDlyLine, int* pDlyIndex)
{
    return getDly(kId32f16s, pState, pDlyLine, pDlyIndex);
}
QspStatus qspsFIRLMSSetDlyLine32f_16s(QspsFIRLMSState32f_16s* pState, const Qsp16s* pDlyLine, int dlyIndex)
{
    return setDly(kId32f16s, pState, pDlyLine, dlyIndex);
}

}  // namespace y8

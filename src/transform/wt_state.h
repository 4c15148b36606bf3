// SPDX-License-Identifier: BSD-3-Clause
// The state of the two-channel wavelet filter banks (WTFwd, WTInv): taps,
// offsets and delay lines in the caller's block, and the argument checks of
// their size queries and initialisers.
//
// Analysis (per channel, taps h of length N, offset a in [-1, N-1]):
//   out[k] = sum_j h[j] x[2k - a - j]
// so the newest sample used is x[2k+1] for a = -1 and every larger a delays
// the channel by a + 1 samples. Synthesis (taps g, offset b):
//   y[n] = sum_j g[j] u[n - (b + 1) - j],  u[2k] = in[k], u[2k+1] = 0,
// summed over both channels. Indices below 0 reach back into the delay
// line: the analysis channel keeps the last max(0, N + a - 1) input samples,
// the synthesis channel the last floor((N + b) / 2) input values, oldest
// first.
#pragma once
#include "dft_layout.h"
#include "qsp_validators.h"

namespace wt {

enum Kind : Qsp32u { kFwd32f = 29, kInv32f = 30 };

struct Channel {
    Qsp32s len;      // taps
    Qsp32s offs;
    Qsp32s dly;      // delay-line values
    Qsp32s reserved;
    Qsp32f* taps;
    Qsp32f* line;    // oldest first
};

struct State {
    Qsp32u id;
    Qsp32u reserved[3];
    Channel ch[2];   // low, high
};

constexpr Qsp64s kHeaderBytes = 64 + 64;  // state header, kept a multiple of 64
static_assert(sizeof(State) <= kHeaderBytes);

inline Qsp64s round16(Qsp64s x) { return (x + 15) & ~Qsp64s(15); }

// Delay-line lengths of a channel.
inline Qsp32s analysisDelay(int len, int offs) { return len + offs - 1 > 0 ? len + offs - 1 : 0; }
inline Qsp32s synthesisDelay(int len, int offs) { return (len + offs) / 2; }

inline Qsp32s delayOf(Kind k, int len, int offs) { return k == kFwd32f ? analysisDelay(len, offs) : synthesisDelay(len, offs); }

inline bool validOffset(int len, int offs) { return offs >= -1 && offs <= len - 1; }

// Bytes of the state block, with the 64 bytes of alignment slack.
inline Qsp64s stateBytes(Kind k, int lenLow, int offsLow, int lenHigh, int offsHigh)
{
    return 64 + kHeaderBytes + round16(4 * Qsp64s(lenLow)) + round16(4 * Qsp64s(lenHigh)) +
           round16(4 * Qsp64s(delayOf(k, lenLow, offsLow))) + round16(4 * Qsp64s(delayOf(k, lenHigh, offsHigh)));
}

// The size query: the pointer, the filter lengths, the data type (qsp32f
// only), the offsets.
inline QspStatus getSize(Kind k, QspDataType dataType, int lenLow, int offsLow, int lenHigh, int offsHigh, int* pStateSize)
{
    if (pStateSize == nullptr) return qspStsNullPtr;
    if (lenLow < 1 || lenHigh < 1) return qspStsBadWaveletParam;
    if (dataType != qsp32f) return qspStsBadDataType;
    if (!validOffset(lenLow, offsLow) || !validOffset(lenHigh, offsHigh)) return qspStsBadWaveletParam;
    const Qsp64s bytes = stateBytes(k, lenLow, offsLow, lenHigh, offsHigh);
    if (bytes > 0x7FFFFFFF) return qspStsBadWaveletParam;
    *pStateSize = static_cast<int>(bytes);
    return qspStsOk;
}

// Init: the pointers, the lengths, the offsets; the state is laid out at the
// block's first 64-byte boundary with its delay lines zero, and its
// identifier written last.
inline QspStatus init(Kind k, void** ppState, const Qsp32f* pTapsLow, int lenLow, int offsLow, const Qsp32f* pTapsHigh,
                      int lenHigh, int offsHigh, Qsp8u* pBuf)
{
    if (ppState == nullptr || pTapsLow == nullptr || pTapsHigh == nullptr || pBuf == nullptr) return qspStsNullPtr;
    if (lenLow < 1 || lenHigh < 1) return qspStsBadWaveletParam;
    if (!validOffset(lenLow, offsLow) || !validOffset(lenHigh, offsHigh)) return qspStsBadWaveletParam;
    if (stateBytes(k, lenLow, offsLow, lenHigh, offsHigh) > 0x7FFFFFFF) return qspStsBadWaveletParam;
    Qsp8u* base = dft::alignUp64(pBuf);
    State* s = reinterpret_cast<State*>(base);
    y8::qspsZero_8u(base, static_cast<int>(kHeaderBytes));
    Qsp8u* at = base + kHeaderBytes;
    const Qsp32f* taps[2] = {pTapsLow, pTapsHigh};
    const int lens[2] = {lenLow, lenHigh}, offs[2] = {offsLow, offsHigh};
    for (int c = 0; c < 2; ++c) {
        Channel& ch = s->ch[c];
        ch.len = lens[c];
        ch.offs = offs[c];
        ch.dly = delayOf(k, lens[c], offs[c]);
        ch.taps = reinterpret_cast<Qsp32f*>(at);
        y8::qspsCopy_32f(taps[c], ch.taps, lens[c]);
        at += round16(4 * Qsp64s(lens[c]));
    }
    for (int c = 0; c < 2; ++c) {
        Channel& ch = s->ch[c];
        ch.line = reinterpret_cast<Qsp32f*>(at);
        if (ch.dly > 0) y8::qspsZero_32f(ch.line, ch.dly);
        at += round16(4 * Qsp64s(ch.dly));
    }
    s->id = k;
    *ppState = s;
    return qspStsOk;
}

// Delay-line access: the state, its identifier, then the two lines.
inline QspStatus checkLines(const void* pState, Kind k, const void* low, const void* high)
{
    if (pState == nullptr || low == nullptr || high == nullptr) return qspStsNullPtr;
    if (static_cast<const State*>(pState)->id != k) return qspStsBadRecord;
    return qspStsOk;
}

inline QspStatus getLines(const void* pState, Kind k, Qsp32f* pDlyLow, Qsp32f* pDlyHigh)
{
    if (QspStatus s = checkLines(pState, k, pDlyLow, pDlyHigh)) return s;
    const State* st = static_cast<const State*>(pState);
    Qsp32f* out[2] = {pDlyLow, pDlyHigh};
    for (int c = 0; c < 2; ++c)
        if (st->ch[c].dly > 0) y8::qspsCopy_32f(st->ch[c].line, out[c], st->ch[c].dly);
    return qspStsOk;
}

inline QspStatus setLines(void* pState, Kind k, const Qsp32f* pDlyLow, const Qsp32f* pDlyHigh)
{
    if (QspStatus s = checkLines(pState, k, pDlyLow, pDlyHigh)) return s;
    State* st = static_cast<State*>(pState);
    const Qsp32f* in[2] = {pDlyLow, pDlyHigh};
    for (int c = 0; c < 2; ++c)
        if (st->ch[c].dly > 0) y8::qspsCopy_32f(in[c], st->ch[c].line, st->ch[c].dly);
    return qspStsOk;
}

// The new delay line of `dly` values after `count` more values of src: the
// newest dly values of the line followed by the source.
inline void ownsAdvanceLine(Qsp32f* line, Qsp32s dly, const Qsp32f* src, Qsp64s count)
{
    if (dly <= 0) return;
    if (count >= dly) {
        for (Qsp32s i = 0; i < dly; ++i) line[i] = src[count - dly + i];
        return;
    }
    const Qsp32s keep = dly - static_cast<Qsp32s>(count);
    for (Qsp32s i = 0; i < keep; ++i) line[i] = line[i + count];
    for (Qsp64s i = 0; i < count; ++i) line[keep + i] = src[i];
}

}  // namespace wt

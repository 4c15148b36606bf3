// SPDX-License-Identifier: BSD-3-Clause
// WTFwd: wavelet analysis by a two-channel filter bank. Each channel filters
// the stream with its taps and keeps every second output (wt_state.h gives
// the indexing): out[k] = sum_j h[j] x[2k - offs - j], with the samples
// before the block taken from the channel's delay line, which the call then
// advances by the block's 2 * dstLen samples.
#include "wt_state.h"

namespace y8 {
namespace {

template <class S>
void ownsAnalysis(const S* src, Qsp32f* dst, Qsp64s dstLen, const wt::Channel& ch)
{
    const Qsp32f* h = ch.taps;
    const Qsp32s len = ch.len, offs = ch.offs, dly = ch.dly;
    // outputs that reach into the delay line, then those that do not
    Qsp64s k = 0;
    for (; k < dstLen && 2 * k - offs - (len - 1) < 0; ++k) {
        float acc = 0.0f;
        for (Qsp32s j = 0; j < len; ++j) {
            const Qsp64s m = 2 * k - offs - j;
            acc += h[j] * (m >= 0 ? static_cast<float>(src[m]) : ch.line[dly + m]);
        }
        dst[k] = acc;
    }
    for (; k < dstLen; ++k) {
        const S* x = src + 2 * k - offs;
        float acc = 0.0f;
        for (Qsp32s j = 0; j < len; ++j) acc += h[j] * static_cast<float>(x[-j]);
        dst[k] = acc;
    }
}

template <class S>
void ownsAdvance(wt::Channel& ch, const S* src, Qsp64s count)
{
    if constexpr (sizeof(S) == 4) {
        wt::ownsAdvanceLine(ch.line, ch.dly, reinterpret_cast<const Qsp32f*>(src), count);
    } else {
        // integer samples: converted on the way into the line
        if (ch.dly <= 0) return;
        const Qsp32s dly = ch.dly;
        const Qsp32s keep = count >= dly ? 0 : dly - static_cast<Qsp32s>(count);
        for (Qsp32s i = 0; i < keep; ++i) ch.line[i] = ch.line[i + count];
        for (Qsp32s i = keep; i < dly; ++i) ch.line[i] = static_cast<float>(src[count - dly + i]);
    }
}

// Pointers, the length, the state's identifier.
template <class S>
QspStatus analysis(const S* pSrc, Qsp32f* pDstLow, Qsp32f* pDstHigh, int dstLen, QspsWTFwdState_32f* pState)
{
    if (pSrc == nullptr || pDstLow == nullptr || pDstHigh == nullptr || pState == nullptr) return qspStsNullPtr;
    if (dstLen < 1) return qspStsBadSize;
    wt::State* st = reinterpret_cast<wt::State*>(pState);
    if (st->id != wt::kFwd32f) return qspStsBadRecord;
    ownsAnalysis(pSrc, pDstLow, dstLen, st->ch[0]);
    ownsAnalysis(pSrc, pDstHigh, dstLen, st->ch[1]);
    ownsAdvance(st->ch[0], pSrc, 2 * Qsp64s(dstLen));
    ownsAdvance(st->ch[1], pSrc, 2 * Qsp64s(dstLen));
    return qspStsOk;
}

}  // namespace

QspStatus qspsWTFwdGetSize(QspDataType dataType, int lenLow, int offsLow, int lenHigh, int offsHigh, int* pStateSize)
{
    return wt::getSize(wt::kFwd32f, dataType, lenLow, offsLow, lenHigh, offsHigh, pStateSize);
}

QspStatus qspsWTFwdInit_32f(QspsWTFwdState_32f** ppState, const Qsp32f* pTapsLow, int lenLow, int offsLow,
                            const Qsp32f* pTapsHigh, int lenHigh, int offsHigh, Qsp8u* pBuf)
{
    return wt::init(wt::kFwd32f, reinterpret_cast<void**>(ppState), pTapsLow, lenLow, offsLow, pTapsHigh, lenHigh,
                    offsHigh, pBuf);
}

QspStatus qspsWTFwd_32f(const Qsp32f* pSrc, Qsp32f* pDstLow, Qsp32f* pDstHigh, int dstLen, QspsWTFwdState_32f* pState)
{
    return analysis(pSrc, pDstLow, pDstHigh, dstLen, pState);
}

QspStatus qspsWTFwd_8s32f(const Qsp8s* pSrc, Qsp32f* pDstLow, Qsp32f* pDstHigh, int dstLen, QspsWTFwdState_32f* pState)
{
    return analysis(pSrc, pDstLow, pDstHigh, dstLen, pState);
}

QspStatus qspsWTFwd_8u32f(const Qsp8u* pSrc, Qsp32f* pDstLow, Qsp32f* pDstHigh, int dstLen, QspsWTFwdState_32f* pState)
{
    return analysis(pSrc, pDstLow, pDstHigh, dstLen, pState);
}

QspStatus qspsWTFwd_16s32f(const Qsp16s* pSrc, Qsp32f* pDstLow, Qsp32f* pDstHigh, int dstLen,
                           QspsWTFwdState_32f* pState)
{
    return analysis(pSrc, pDstLow, pDstHigh, dstLen, pState);
}

QspStatus qspsWTFwd_16u32f(const Qsp16u* pSrc, Qsp32f* pDstLow, Qsp32f* pDstHigh, int dstLen,
                           QspsWTFwdState_32f* pState)
{
    return analysis(pSrc, pDstLow, pDstHigh, dstLen, pState);
}

QspStatus qspsWTFwdGetDlyLine_32f(const QspsWTFwdState_32f* pState, Qsp32f* pDlyLow, Qsp32f* pDlyHigh)
{
    return wt::getLines(pState, wt::kFwd32f, pDlyLow, pDlyHigh);
}

QspStatus qspsWTFwdSetDlyLine_32f(QspsWTFwdState_32f* pState, const Qsp32f* pDlyLow, const Qsp32f* pDlyHigh)
{
    return wt::setLines(pState, wt::kFwd32f, pDlyLow, pDlyHigh);
}

}  // namespace y8

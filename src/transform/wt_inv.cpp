// SPDX-License-Identifier: BSD-3-Clause
// WTInv: wavelet synthesis, the inverse of WTFwd. Each channel's values are
// upsampled by 2 (a zero after each), filtered by its taps,
// y[n] = sum_j g[j] u[n - (offs + 1) - j], and the two channels summed into
// 2 * srcLen outputs; values before the block come from the channel's delay
// line, which the call then advances by srcLen values. The integer forms
// round each output to nearest (ties to even) and saturate it.
#include "arith/rounding.h"
#include "wt_state.h"

namespace y8 {
namespace {

// One channel added into acc (2 * srcLen values).
void ownsSynthesis(const Qsp32f* src, float* acc, Qsp64s srcLen, const wt::Channel& ch)
{
    const Qsp32f* g = ch.taps;
    const Qsp32s len = ch.len, dly = ch.dly;
    const Qsp64s shift = ch.offs + 1;
    for (Qsp64s n = 0; n < 2 * srcLen; ++n) {
        float y = 0.0f;
        // u[m] is non-zero at even m only: the taps j with n - shift - j even
        for (Qsp32s j = (n - shift) & 1; j < len; j += 2) {
            const Qsp64s idx = (n - shift - j) >> 1;  // exact: n - shift - j is even
            y += g[j] * (idx >= 0 ? src[idx] : ch.line[dly + idx]);
        }
        acc[n] += y;
    }
}

template <class D>
inline D outputOf(float v)
{
    if constexpr (sizeof(D) == 4)
        return v;
    else
        return rounding::toInt<rounding::kNear, D>(static_cast<double>(v));
}

// Pointers, the length, the state's identifier. The outputs are summed in
// blocks on the stack and then converted.
template <class D>
QspStatus synthesis(const Qsp32f* pSrcLow, const Qsp32f* pSrcHigh, D* pDst, int srcLen, QspsWTInvState_32f* pState)
{
    if (pSrcLow == nullptr || pSrcHigh == nullptr || pDst == nullptr || pState == nullptr) return qspStsNullPtr;
    if (srcLen < 1) return qspStsBadSize;
    wt::State* st = reinterpret_cast<wt::State*>(pState);
    if (st->id != wt::kInv32f) return qspStsBadRecord;
    // Blocks of kBlock values per channel continue each other through
    // temporary channels whose delay lines are the state's, advanced as
    // the blocks go.
    constexpr Qsp64s kBlock = 256;
    float acc[2 * kBlock];
    for (Qsp64s b = 0; b < srcLen; b += kBlock) {
        const Qsp64s count = srcLen - b < kBlock ? srcLen - b : kBlock;
        for (Qsp64s i = 0; i < 2 * count; ++i) acc[i] = 0.0f;
        ownsSynthesis(pSrcLow + b, acc, count, st->ch[0]);
        ownsSynthesis(pSrcHigh + b, acc, count, st->ch[1]);
        for (Qsp64s i = 0; i < 2 * count; ++i) pDst[2 * b + i] = outputOf<D>(acc[i]);
        wt::ownsAdvanceLine(st->ch[0].line, st->ch[0].dly, pSrcLow + b, count);
        wt::ownsAdvanceLine(st->ch[1].line, st->ch[1].dly, pSrcHigh + b, count);
    }
    return qspStsOk;
}

}  // namespace

QspStatus qspsWTInvGetSize(QspDataType dataType, int lenLow, int offsLow, int lenHigh, int offsHigh, int* pStateSize)
{
    return wt::getSize(wt::kInv32f, dataType, lenLow, offsLow, lenHigh, offsHigh, pStateSize);
}

QspStatus qspsWTInvInit_32f(QspsWTInvState_32f** ppState, const Qsp32f* pTapsLow, int lenLow, int offsLow,
                            const Qsp32f* pTapsHigh, int lenHigh, int offsHigh, Qsp8u* pBuf)
{
    return wt::init(wt::kInv32f, reinterpret_cast<void**>(ppState), pTapsLow, lenLow, offsLow, pTapsHigh, lenHigh,
                    offsHigh, pBuf);
}

QspStatus qspsWTInv_32f(const Qsp32f* pSrcLow, const Qsp32f* pSrcHigh, Qsp32f* pDst, int srcLen,
                        QspsWTInvState_32f* pState)
{
    return synthesis(pSrcLow, pSrcHigh, pDst, srcLen, pState);
}

QspStatus qspsWTInv_32f8s(const Qsp32f* pSrcLow, const Qsp32f* pSrcHigh, Qsp8s* pDst, int srcLen,
                          QspsWTInvState_32f* pState)
{
    return synthesis(pSrcLow, pSrcHigh, pDst, srcLen, pState);
}

QspStatus qspsWTInv_32f8u(const Qsp32f* pSrcLow, const Qsp32f* pSrcHigh, Qsp8u* pDst, int srcLen,
                          QspsWTInvState_32f* pState)
{
    return synthesis(pSrcLow, pSrcHigh, pDst, srcLen, pState);
}

QspStatus qspsWTInv_32f16s(const Qsp32f* pSrcLow, const Qsp32f* pSrcHigh, Qsp16s* pDst, int srcLen,
                           QspsWTInvState_32f* pState)
{
    return synthesis(pSrcLow, pSrcHigh, pDst, srcLen, pState);
}

QspStatus qspsWTInv_32f16u(const Qsp32f* pSrcLow, const Qsp32f* pSrcHigh, Qsp16u* pDst, int srcLen,
                           QspsWTInvState_32f* pState)
{
    return synthesis(pSrcLow, pSrcHigh, pDst, srcLen, pState);
}

QspStatus qspsWTInvGetDlyLine_32f(const QspsWTInvState_32f* pState, Qsp32f* pDlyLow, Qsp32f* pDlyHigh)
{
    return wt::getLines(pState, wt::kInv32f, pDlyLow, pDlyHigh);
}

QspStatus qspsWTInvSetDlyLine_32f(QspsWTInvState_32f* pState, const Qsp32f* pDlyLow, const Qsp32f* pDlyHigh)
{
    return wt::setLines(pState, wt::kInv32f, pDlyLow, pDlyHigh);
}

}  // namespace y8

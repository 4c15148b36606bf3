// SPDX-License-Identifier: BSD-3-Clause
// WTHaar: one level of the Haar wavelet transform.
//   Fwd: low[k] = (x[2k] + x[2k+1]) / 2, high[k] = (x[2k+1] - x[2k]) / 2 for
//        k < len/2; an odd len puts x[len-1] / 2 into low[(len-1)/2].
//   Inv: x[2k] = low[k] - high[k], x[2k+1] = low[k] + high[k]; an odd len
//        takes x[len-1] = 2 low[(len-1)/2].
// The 16-bit forms compute the exact integer sums and differences and apply
// the library's scale-factor rule to them with the halving (Fwd) or the
// doubling of the odd last value (Inv) folded into the shift: multiplied by
// 2^-(scaleFactor+1), rounded to nearest with ties to even, saturated. With
// scaleFactor -1 forward and 1 inverse the pair is lossless.
#include "arith/scaling.h"
#include "checks.h"
#include "qsp_validators.h"

namespace y8 {
namespace {

// Runs body with the scale-factor rule of shift s chosen once: body gets a
// function of the exact value v (|v| <= 2^17) giving the 16-bit result. Every
// shift from 19 on rounds such a v to 0, every one from -17 down saturates
// it, so the shift (taken in 64 bits, scaleFactor +- 1 cannot overflow) is
// clamped to +-40 first.
template <class Body>
void withRule(Qsp64s shift, Body body)
{
    const int s = shift > 40 ? 40 : shift < -40 ? -40 : static_cast<int>(shift);
    scaling::select(s, scaling::limitsFor<Qsp16s>(-(1 << 17), 1 << 17),
                    [&](auto mode) {
                        body([mode](Qsp32s v) { return mode.template apply<Qsp16s>(Qsp64s(v)); });
                        return qspStsOk;
                    },
                    [&] {
                        body([](Qsp32s) { return Qsp16s(0); });
                        return qspStsOk;
                    });
}

template <class T>
void ownsHaarFwd(const T* src, T* low, T* high, Qsp64s len)
{
    const Qsp64s pairs = len / 2;
    for (Qsp64s k = 0; k < pairs; ++k) {
        const T a = src[2 * k], b = src[2 * k + 1];
        low[k] = (a + b) * T(0.5);
        high[k] = (b - a) * T(0.5);
    }
    if (len & 1) low[pairs] = src[len - 1] * T(0.5);
}

template <class T>
void ownsHaarInv(const T* low, const T* high, T* dst, Qsp64s len)
{
    const Qsp64s pairs = len / 2;
    for (Qsp64s k = 0; k < pairs; ++k) {
        const T l = low[k], h = high[k];
        dst[2 * k] = l - h;
        dst[2 * k + 1] = l + h;
    }
    if (len & 1) dst[len - 1] = low[pairs] * T(2);
}

}  // namespace

QspStatus qspsWTHaarFwd_32f(const Qsp32f* pSrc, Qsp32f* pDstLow, Qsp32f* pDstHigh, int len)
{
    if (QspStatus s = check::vectors(len, pSrc, pDstLow, pDstHigh)) return s;
    ownsHaarFwd(pSrc, pDstLow, pDstHigh, len);
    return qspStsOk;
}

QspStatus qspsWTHaarFwd_64f(const Qsp64f* pSrc, Qsp64f* pDstLow, Qsp64f* pDstHigh, int len)
{
    if (QspStatus s = check::vectors(len, pSrc, pDstLow, pDstHigh)) return s;
    ownsHaarFwd(pSrc, pDstLow, pDstHigh, len);
    return qspStsOk;
}

QspStatus qspsWTHaarInv_32f(const Qsp32f* pSrcLow, const Qsp32f* pSrcHigh, Qsp32f* pDst, int len)
{
    if (QspStatus s = check::vectors(len, pSrcLow, pSrcHigh, pDst)) return s;
    ownsHaarInv(pSrcLow, pSrcHigh, pDst, len);
    return qspStsOk;
}

QspStatus qspsWTHaarInv_64f(const Qsp64f* pSrcLow, const Qsp64f* pSrcHigh, Qsp64f* pDst, int len)
{
    if (QspStatus s = check::vectors(len, pSrcLow, pSrcHigh, pDst)) return s;
    ownsHaarInv(pSrcLow, pSrcHigh, pDst, len);
    return qspStsOk;
}

QspStatus qspsWTHaarFwd_16s_Sfs(const Qsp16s* pSrc, Qsp16s* pDstLow, Qsp16s* pDstHigh, int len, int scaleFactor)
{
    if (QspStatus s = check::vectors(len, pSrc, pDstLow, pDstHigh)) return s;
    withRule(Qsp64s(scaleFactor) + 1, [&](auto rule) {
        const int pairs = len / 2;
        for (int k = 0; k < pairs; ++k) {
            const Qsp32s a = pSrc[2 * k], b = pSrc[2 * k + 1];
            pDstLow[k] = rule(a + b);
            pDstHigh[k] = rule(b - a);
        }
        if (len & 1) pDstLow[pairs] = rule(pSrc[len - 1]);
    });
    return qspStsOk;
}

QspStatus qspsWTHaarInv_16s_Sfs(const Qsp16s* pSrcLow, const Qsp16s* pSrcHigh, Qsp16s* pDst, int len, int scaleFactor)
{
    if (QspStatus s = check::vectors(len, pSrcLow, pSrcHigh, pDst)) return s;
    const int pairs = len / 2;
    // the odd last value is doubled: one shift less
    const Qsp32s last = (len & 1) ? pSrcLow[pairs] : 0;
    withRule(scaleFactor, [&](auto rule) {
        for (int k = 0; k < pairs; ++k) {
            const Qsp32s l = pSrcLow[k], h = pSrcHigh[k];
            pDst[2 * k] = rule(l - h);
            pDst[2 * k + 1] = rule(l + h);
        }
    });
    if (len & 1) withRule(Qsp64s(scaleFactor) - 1, [&](auto rule) { pDst[len - 1] = rule(last); });
    return qspStsOk;
}

}  // namespace y8

// SPDX-License-Identifier: BSD-3-Clause
// ConvBiased: a window of the full convolution, pDst[n] = y[n + bias],
// evaluated directly without a work buffer.
#include "checks.h"
#include "correlation.h"
#include "fir_direct.h"
#include "qsp_validators.h"

namespace y8 {
namespace {

// The window's place in the full convolution of taps (the shorter operand,
// m samples) and x (len samples): outputs below 0 and from m + len - 1 on
// are zeros; the ones whose window lies inside x come from the kernel, the
// others (the first and last m - 1) from their partial sums. dot(t, n, x)
// sums t[i] x[-i] for i < n.
template <class D, class Dot, class Run>
void window(const D* taps, Qsp64s m, const D* x, Qsp64s len, Qsp64s bias, D* pDst, Qsp64s dstLen, Dot dot, Run run)
{
    const Qsp64s end = m + len - 1;
    Qsp64s n = 0;
    while (n < dstLen) {
        const Qsp64s j = n + bias;
        if (j < 0 || j >= end) {
            pDst[n++] = D(0);
        } else if (j < m - 1) {
            pDst[n++] = dot(taps, j + 1, x + j);
        } else if (j >= len) {
            const Qsp64s skip = j - len + 1;
            pDst[n++] = dot(taps + skip, m - skip, x + len - 1);
        } else {
            Qsp64s count = len - j;
            if (count > dstLen - n) count = dstLen - n;
            run(taps, m, x + j, pDst + n, count);
            n += count;
        }
    }
}

}  // namespace

QspStatus qspsConvBiased_32f(const Qsp32f* pSrc1, const Qsp32f* pSrc2, Qsp32f* pDst, int src1Len, int src2Len,
                             int dstLen, int bias)
{
    if (QspStatus s = check::pointers(pSrc1, pSrc2, pDst)) return s;
    if (src1Len < 1 || src2Len < 1 || dstLen < 1) return qspStsBadSize;
    using K = fir::RealKind<float>;
    const bool first = src1Len <= src2Len;
    window<Qsp32f>(
        first ? pSrc1 : pSrc2, first ? src1Len : src2Len, first ? pSrc2 : pSrc1, first ? src2Len : src1Len, bias, pDst,
        dstLen, [](const Qsp32f* t, Qsp64s n, const Qsp32f* x) { return fir::ownsFirOne<K>(fir::ScalarTaps<float>{t}, n, x); },
        [](const Qsp32f* t, Qsp64s n, const Qsp32f* x, Qsp32f* y, Qsp64s count) {
            fir::ownsFir<K>(fir::ScalarTaps<float>{t}, n, x, y, count);
        });
    return qspStsOk;
}

QspStatus qspsConvBiased_16s_Sfs(const Qsp16s* pSrc1, const Qsp16s* pSrc2, Qsp16s* pDst, int src1Len, int src2Len,
                                 int dstLen, int bias, int scaleFactor)
{
    if (QspStatus s = check::pointers(pSrc1, pSrc2, pDst)) return s;
    if (src1Len < 1 || src2Len < 1 || dstLen < 1) return qspStsBadSize;
    const bool first = src1Len <= src2Len;
    const Qsp16s* taps = first ? pSrc1 : pSrc2;
    const Qsp16s* x = first ? pSrc2 : pSrc1;
    const Qsp64s m = first ? src1Len : src2Len, len = first ? src2Len : src1Len;
    // Exact 64-bit sums.
    auto dot = [](const Qsp16s* t, Qsp64s n, const Qsp16s* v) {
        Qsp64s acc = 0;
        for (Qsp64s i = 0; i < n; ++i) acc += Qsp64s(Qsp32s(t[i]) * Qsp32s(v[-i]));
        return acc;
    };
    return corr::sink16s(pDst, dstLen, corr::kNone, scaleFactor, m, [&](auto store) {
        for (Qsp64s n = 0; n < dstLen; ++n) {
            const Qsp64s j = n + bias;
            Qsp64s v = 0;
            if (j >= 0 && j < m + len - 1) {
                const Qsp64s lo = j - len + 1 > 0 ? j - len + 1 : 0, hi = j < m - 1 ? j : m - 1;
                v = dot(taps + lo, hi - lo + 1, x + j - lo);
            }
            store(n, v, 1.0);
        }
        return qspStsOk;
    });
}

}  // namespace y8

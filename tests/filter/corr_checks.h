// SPDX-License-Identifier: BSD-3-Clause
// The checks shared by the correlation tests: a correlation through a
// guarded buffer of the reported size, compared value by value with the
// sums in long double (16-bit forms with the exact sums), normalised.
#pragma once
#include <algorithm>

#include "conv_calls.h"

namespace convtest {

const QspAlgType kAlgs[] = {qspAlgAuto, qspAlgDirect, qspAlgFFT};
const QspCorrNorm kNorms[] = {qspNormNone, qspNormBiased, qspNormUnbiased, qspNormUnitEnergy};

inline int crossBuffer(int n1, int n2, int dstLen, int lowLag, QspDataType type, QspAlgType alg)
{
    int bytes = -1;
    EXPECT_EQ(qspsCrossCorrNormGetBufferSize(n1, n2, dstLen, lowLag, type, alg, &bytes), qspStsOk);
    return bytes;
}

// What the normalisation divides lag's sum by (0: the result is 0).
template <class T>
long double divisor(QspCorrNorm norm, const T* a, long long n1, const T* b, long long n2, long long lag)
{
    switch (norm) {
    case qspNormBiased: return std::max(n1, n2);
    case qspNormUnbiased: return std::max(0LL, std::min(n1, n2 - lag) - std::max(0LL, -lag));
    case qspNormUnitEnergy: return std::sqrt(std::norm(norm2(a, n1)) * std::norm(norm2(b, n2)));
    default: return 1;
    }
}

// Correlates through a guarded buffer of the reported size and checks every
// output against the long double sum, normalised.
template <class A>
void checkCross(const std::vector<typename A::D>& a, const std::vector<typename A::D>& b, int dstLen, int lowLag,
                QspAlgType alg, QspCorrNorm norm, bool viaAuto = false)
{
    using D = typename A::D;
    const int n1 = int(a.size()), n2 = int(b.size());
    qsptest::Guarded<Qsp8u> buf(crossBuffer(n1, n2, dstLen, lowLag, A::type, alg), 64);
    qsptest::Guarded<D> y(dstLen);
    if (viaAuto) ASSERT_EQ(A::autoc(a.data(), y.data(), n1, dstLen, alg, norm, buf.data()), qspStsOk);
    else ASSERT_EQ(A::cross(a.data(), b.data(), y.data(), n1, n2, dstLen, lowLag, alg, norm, buf.data()), qspStsOk);
    ASSERT_TRUE(y.guardsIntact() && buf.guardsIntact());
    const long double norms = norm2(a.data(), n1) * norm2(b.data(), n2);
    for (int k = 0; k < dstLen; ++k) {
        const long long lag = (long long)lowLag + k;
        auto [want, m] = corrAt(a.data(), n1, b.data(), n2, lag);
        const long double d = divisor(norm, a.data(), n1, b.data(), n2, lag);
        long double tol = bound<typename A::Part>(alg, std::min(n1, n2), m, n1, n2, norms);
        if (d > 0) {
            want /= d;
            tol = tol / d + 2 * kU<typename A::Part> * mag(want);
        } else {
            want = 0;
        }
        ASSERT_LE(deviation(y[k], want), tol)
            << A::name << " " << n1 << "x" << n2 << " lowLag " << lowLag << " alg " << alg << " norm " << norm << " k " << k;
    }
}

inline void check16(const std::vector<Qsp16s>& a, const std::vector<Qsp16s>& b, int dstLen, int lowLag, QspAlgType alg,
             QspCorrNorm norm, const std::vector<int>& scales, bool viaAuto = false)
{
    const int n1 = int(a.size()), n2 = int(b.size());
    int bytes = 0;
    ASSERT_EQ(qspsCrossCorrNormGetBufferSize(n1, n2, dstLen, lowLag, qsp16s, alg, &bytes), qspStsOk);
    qsptest::Guarded<Qsp8u> buf(bytes, 64);
    std::vector<long long> exact(dstLen);
    std::vector<long double> div(dstLen);
    long double e1 = 0, e2 = 0;
    for (Qsp16s v : a) e1 += (long double)v * v;
    for (Qsp16s v : b) e2 += (long double)v * v;
    for (int k = 0; k < dstLen; ++k) {
        const long long lag = (long long)lowLag + k;
        exact[k] = corrAt16(a.data(), n1, b.data(), n2, lag);
        div[k] = norm == qspNormBiased     ? std::max(n1, n2)
                 : norm == qspNormUnbiased ? std::max(0LL, std::min<long long>(n1, n2 - lag) - std::max(0LL, -lag))
                 : norm == qspNormUnitEnergy ? std::sqrt(e1 * e2)
                                             : 1;
    }
    qsptest::Guarded<Qsp32f> yf(dstLen);
    QspStatus st = viaAuto ? qspsAutoCorrNorm_16s32f(a.data(), yf.data(), n1, dstLen, alg, norm, buf.data())
                           : qspsCrossCorrNorm_16s32f(a.data(), b.data(), yf.data(), n1, n2, dstLen, lowLag, alg, norm, buf.data());
    ASSERT_EQ(st, qspStsOk);
    ASSERT_TRUE(yf.guardsIntact() && buf.guardsIntact());
    for (int k = 0; k < dstLen; ++k) {
        if (norm == qspNormNone) {
            ASSERT_EQ(yf[k], Qsp32f(exact[k])) << k;
        } else {
            const long double want = div[k] > 0 ? exact[k] / div[k] : 0;
            ASSERT_LE(qsptest::ulpDistance(yf[k], Qsp32f(want)), 1.0) << n1 << "x" << n2 << " norm " << norm << " k " << k;
        }
    }
    for (int s : scales) {
        qsptest::Guarded<Qsp16s> y(dstLen);
        st = viaAuto ? qspsAutoCorrNorm_16s_Sfs(a.data(), y.data(), n1, dstLen, alg, norm, buf.data(), s)
                     : qspsCrossCorrNorm_16s_Sfs(a.data(), b.data(), y.data(), n1, n2, dstLen, lowLag, alg, norm,
                                                 buf.data(), s);
        ASSERT_EQ(st, qspStsOk);
        ASSERT_TRUE(y.guardsIntact() && buf.guardsIntact());
        for (int k = 0; k < dstLen; ++k) {
            if (norm == qspNormNone) {
                ASSERT_EQ(y[k], scaleRule16(exact[k], s)) << k << " sf " << s;
            } else if (norm != qspNormUnitEnergy) {
                ASSERT_EQ(y[k], div[k] > 0 ? ratioRule16(exact[k], (long long)div[k], s) : 0)
                    << n1 << "x" << n2 << " norm " << norm << " sf " << s << " k " << k;
            } else {
                // Rounded from a double-precision quotient: the nearest
                // integer, or a neighbour when the value is within rounding
                // of a half.
                const long double v = div[k] > 0 ? std::ldexp(exact[k] / div[k], -s) : 0;
                const long double r = std::min<long double>(32767, std::max<long double>(-32768, std::nearbyint(v)));
                const long double frac = std::abs(v - std::trunc(v));
                if (std::abs(frac - 0.5L) > 1e-9L) ASSERT_EQ(y[k], Qsp16s(r)) << k << " sf " << s;
                else ASSERT_LE(std::abs(y[k] - r), 1) << k;
            }
        }
    }
}

}  // namespace convtest

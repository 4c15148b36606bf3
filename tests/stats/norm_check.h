// SPDX-License-Identifier: BSD-3-Clause
// The checks of Norm and NormDiff: one set, run on a vector (Norm) or on
// two vectors whose element-wise difference, formed in the element type,
// is the vector whose norms are expected (NormDiff).
#pragma once
#include "reduce_reference.h"

namespace normcheck {

using redref::Term;

// The single-precision L2 scheme: squares of the elements before the
// source's first 16-byte boundary start lanes 0.. of the first register;
// two registers add eight squares a step; s = a0 + a1, folded as
// (s0 + s2) + (s1 + s3); the rest one by one, all in single precision.
inline float squares8(const float* x, const void* base, long long n)
{
    const long long h = redref::head(base, 4, 1, n);
    float lane[8] = {};
    long long i = 0;
    for (; i < h; ++i) lane[i] = x[i] * x[i];
    for (; i + 8 <= n; i += 8)
        for (int l = 0; l < 8; ++l) lane[l] += x[i + l] * x[i + l];
    float s[4];
    for (int l = 0; l < 4; ++l) s[l] = lane[l] + lane[4 + l];
    float total = (s[0] + s[2]) + (s[1] + s[3]);
    for (; i < n; ++i) total += x[i] * x[i];
    return total;
}

template <class T>
T maxMagnitude(const std::vector<T>& x)
{
    T m = 0;
    for (T e : x) m = std::max<T>(m, std::fabs(e));
    return m;
}

// The vectors a function is given and the one whose norm it computes.
template <class T>
struct Case {
    std::vector<T> d;        // the vector whose norms are expected
    redref::Placed<T> a, b;  // the arguments (b unused for Norm)
};

template <class T>
Case<T> makeCase(bool diff, size_t n, int offset, double lo, double hi)
{
    std::vector<T> x, y(n, T(0));
    if constexpr (std::is_floating_point_v<T>)
        x = redref::uniform<T>(n, lo, hi), y = diff ? redref::uniform<T>(n, lo, hi) : y;
    else
        x = redref::randomInts<T>(n), y = diff ? redref::randomInts<T>(n) : y;
    std::vector<T> d(n);
    if constexpr (std::is_floating_point_v<T>)
        for (size_t i = 0; i < n; ++i) d[i] = diff ? T(x[i] - y[i]) : x[i];
    return Case<T>{diff ? d : x, redref::Placed<T>(x, offset), redref::Placed<T>(y, offset)};
}

// Integer elements as exact wide values (16-bit differences exactly).
inline std::vector<long long> exact16(const Case<Qsp16s>& c, bool diff, int n)
{
    std::vector<long long> v(n);
    for (int i = 0; i < n; ++i) v[i] = (long long)c.a.data[i] - (diff ? c.b.data[i] : 0);
    return v;
}

}  // namespace normcheck

// Calls a Norm member on case c (the source pointer, or both for NormDiff).
#define NORM_CALL(fnNorm, fnDiff, c, ...) \
    (diff ? fnDiff((c).a.data, (c).b.data, __VA_ARGS__) : fnNorm((c).a.data, __VA_ARGS__))
#define NORM_CALLC(fnNorm, fnDiff, T, c, ...)                                                      \
    (diff ? fnDiff(reinterpret_cast<const T*>((c).a.data), reinterpret_cast<const T*>((c).b.data), \
                   __VA_ARGS__)                                                                      \
          : fnNorm(reinterpret_cast<const T*>((c).a.data), __VA_ARGS__))

namespace normcheck {

inline void checkFloating(bool diff)
{
    for (int len : redref::lengths()) {
        for (int offset = 0; offset < 4; offset += (len > 100 ? 3 : 1)) {
            auto c = makeCase<float>(diff, len, offset, -10, 10);
            const auto& d = c.d;
            float got;
            double got64;
            // Infinity norm: the largest magnitude (no NaNs here, so any
            // order of steps gives it).
            ASSERT_EQ(NORM_CALL(qspsNorm_Inf_32f, qspsNormDiff_Inf_32f, c, len, &got), qspStsOk);
            ASSERT_EQ(got, maxMagnitude(d)) << len;
            // L1: magnitudes in the double-lane scheme.
            double want;
            redref::wideSum(d.data(), len, 1, Term::Magnitude, &want);
            ASSERT_EQ(NORM_CALL(qspsNorm_L1_32f, qspsNormDiff_L1_32f, c, len, &got), qspStsOk);
            ASSERT_TRUE(qsptest::sameBits(got, float(want))) << len;
            // L2: single-precision squares in eight lanes, rooted in double.
            const float sq = squares8(d.data(), c.a.data, len);
            ASSERT_EQ(NORM_CALL(qspsNorm_L2_32f, qspsNormDiff_L2_32f, c, len, &got), qspStsOk);
            ASSERT_TRUE(qsptest::sameBits(got, float(std::sqrt(double(sq))))) << len << " offset " << offset;
            if (!diff) {
                ASSERT_EQ(qspsNorm_L2_32f_L(c.a.data, len, &got), qspStsOk);
                ASSERT_TRUE(qsptest::sameBits(got, float(std::sqrt(double(sq)))));
            }
            // Complex: the same values read as len / 2 pairs.
            const int half = len / 2;
            if (half == 0 || offset % 2) continue;
            double m = 0, l1 = 0;
            for (int k = 0; k < half; ++k) {
                const double re = d[2 * k], im = d[2 * k + 1];
                m = std::max(m, re * re + im * im);
                l1 += std::sqrt(re * re + im * im);
            }
            ASSERT_EQ(NORM_CALLC(qspsNorm_Inf_32fc32f, qspsNormDiff_Inf_32fc32f, Qsp32fc, c, half, &got), qspStsOk);
            ASSERT_TRUE(qsptest::sameBits(got, float(std::sqrt(m))));
            ASSERT_EQ(NORM_CALLC(qspsNorm_L1_32fc64f, qspsNormDiff_L1_32fc64f, Qsp32fc, c, half, &got64), qspStsOk);
            ASSERT_TRUE(qsptest::sameBits(got64, l1));
            redref::wideSum(d.data(), 2 * half, 1, Term::Square, &want);
            ASSERT_EQ(NORM_CALLC(qspsNorm_L2_32fc64f, qspsNormDiff_L2_32fc64f, Qsp32fc, c, half, &got64), qspStsOk);
            ASSERT_TRUE(qsptest::sameBits(got64, std::sqrt(want)));
            if (!diff) {
                ASSERT_EQ(qspsNorm_L2_32fc64f_L(reinterpret_cast<const Qsp32fc*>(c.a.data), half, &got64), qspStsOk);
                ASSERT_TRUE(qsptest::sameBits(got64, std::sqrt(want)));
            }
        }
        auto c = makeCase<double>(diff, len, 0, -1e3, 1e3);
        const auto& d = c.d;
        double got, want;
        ASSERT_EQ(NORM_CALL(qspsNorm_Inf_64f, qspsNormDiff_Inf_64f, c, len, &got), qspStsOk);
        ASSERT_EQ(got, maxMagnitude(d));
        redref::wideSum(d.data(), len, 1, Term::Magnitude, &want);
        ASSERT_EQ(NORM_CALL(qspsNorm_L1_64f, qspsNormDiff_L1_64f, c, len, &got), qspStsOk);
        ASSERT_TRUE(qsptest::sameBits(got, want));
        redref::wideSum(d.data(), len, 1, Term::Square, &want);
        ASSERT_EQ(NORM_CALL(qspsNorm_L2_64f, qspsNormDiff_L2_64f, c, len, &got), qspStsOk);
        ASSERT_TRUE(qsptest::sameBits(got, std::sqrt(want)));
        if (!diff) {
            ASSERT_EQ(qspsNorm_L2_64f_L(c.a.data, len, &got), qspStsOk);
            ASSERT_TRUE(qsptest::sameBits(got, std::sqrt(want)));
        }
        const int half = len / 2;
        if (half == 0) continue;
        double m = 0, l1 = 0;
        for (int k = 0; k < half; ++k) {
            const double re = d[2 * k], im = d[2 * k + 1];
            m = std::max(m, re * re + im * im);
            l1 += std::sqrt(re * re + im * im);
        }
        ASSERT_EQ(NORM_CALLC(qspsNorm_Inf_64fc64f, qspsNormDiff_Inf_64fc64f, Qsp64fc, c, half, &got), qspStsOk);
        ASSERT_TRUE(qsptest::sameBits(got, std::sqrt(m)));
        ASSERT_EQ(NORM_CALLC(qspsNorm_L1_64fc64f, qspsNormDiff_L1_64fc64f, Qsp64fc, c, half, &got), qspStsOk);
        ASSERT_TRUE(qsptest::sameBits(got, l1));
        redref::wideSum(d.data(), 2 * half, 1, Term::Square, &want);
        ASSERT_EQ(NORM_CALLC(qspsNorm_L2_64fc64f, qspsNormDiff_L2_64fc64f, Qsp64fc, c, half, &got), qspStsOk);
        ASSERT_TRUE(qsptest::sameBits(got, std::sqrt(want)));
        if (!diff) {
            ASSERT_EQ(qspsNorm_L2_64fc64f_L(reinterpret_cast<const Qsp64fc*>(c.a.data), half, &got), qspStsOk);
            ASSERT_TRUE(qsptest::sameBits(got, std::sqrt(want)));
        }
    }
}

inline void checkInt16(bool diff)
{
    const long long largest = diff ? 65535 : 32768;
    for (int len : {1, 2, 5, 64, 1000, 4099}) {
        auto c = makeCase<Qsp16s>(diff, len, 0, 0, 0);
        const std::vector<long long> v = exact16(c, diff, len);
        long long inf = 0, l1 = 0;
        __int128 sq = 0;
        for (long long x : v) inf = std::max(inf, std::llabs(x)), l1 += std::llabs(x), sq += x * x;
        float f;
        ASSERT_EQ(NORM_CALL(qspsNorm_Inf_16s32f, qspsNormDiff_Inf_16s32f, c, len, &f), qspStsOk);
        ASSERT_EQ(f, float(inf));
        ASSERT_EQ(NORM_CALL(qspsNorm_L1_16s32f, qspsNormDiff_L1_16s32f, c, len, &f), qspStsOk);
        ASSERT_EQ(f, float(l1));
        ASSERT_EQ(NORM_CALL(qspsNorm_L2_16s32f, qspsNormDiff_L2_16s32f, c, len, &f), qspStsOk);
        ASSERT_EQ(f, float(std::sqrt(double(sq))));
        for (int sf = -70; sf <= 70; sf += (sf > -40 && sf < 40 ? 1 : 7)) {
            Qsp32s r32;
            Qsp64s r64;
            // Infinity: truncating shifts, left shifts limited to 31 and
            // saturated.
            ASSERT_EQ(NORM_CALL(qspsNorm_Inf_16s32s_Sfs, qspsNormDiff_Inf_16s32s_Sfs, c, len, &r32, sf), qspStsOk);
            const long long wantInf = sf >= 32 ? 0 : sf >= 0 ? inf >> sf : std::min<__int128>(__int128(inf) << std::min(-sf, 31), INT32_MAX);
            ASSERT_EQ(r32, wantInf) << "sf " << sf;
            ASSERT_EQ(NORM_CALL(qspsNorm_L1_16s32s_Sfs, qspsNormDiff_L1_16s32s_Sfs, c, len, &r32, sf), qspStsOk);
            ASSERT_EQ(r32, redref::roundScaleExact(l1, sf, INT32_MIN, INT32_MAX)) << "sf " << sf;
            ASSERT_EQ(NORM_CALL(qspsNorm_L1_16s64s_Sfs, qspsNormDiff_L1_16s64s_Sfs, c, len, &r64, sf), qspStsOk);
            ASSERT_EQ(r64, redref::roundScaleExact(l1, sf, INT64_MIN, INT64_MAX)) << "sf " << sf;
            ASSERT_EQ(NORM_CALL(qspsNorm_L2Sqr_16s64s_Sfs, qspsNormDiff_L2Sqr_16s64s_Sfs, c, len, &r64, sf), qspStsOk);
            ASSERT_EQ(r64, redref::roundScaleExact(sq, sf, INT64_MIN, INT64_MAX)) << "sf " << sf;
            // L2: the root of the exact sum in double, scaled and rounded to
            // nearest even.
            ASSERT_EQ(NORM_CALL(qspsNorm_L2_16s32s_Sfs, qspsNormDiff_L2_16s32s_Sfs, c, len, &r32, sf), qspStsOk);
            const long double l2 = std::sqrt((long double)double(sq)) * std::pow(2.0L, -sf);
            const long long wantL2 = l2 >= INT32_MAX ? INT32_MAX : (long long)std::nearbyint((double)l2);
            ASSERT_EQ(r32, wantL2) << "sf " << sf;
        }
    }
    // The extremes: the largest magnitude alone.
    std::vector<Qsp16s> lo(3, -32768), hi(3, 32767);
    Qsp32s r;
    ASSERT_EQ(diff ? qspsNormDiff_Inf_16s32s_Sfs(hi.data(), lo.data(), 3, &r, 0) : qspsNorm_Inf_16s32s_Sfs(lo.data(), 3, &r, 0),
              qspStsOk);
    EXPECT_EQ(r, largest);
    for (int sf : {40, 32}) {
        ASSERT_EQ(diff ? qspsNormDiff_Inf_16s32s_Sfs(hi.data(), lo.data(), 3, &r, sf) : qspsNorm_Inf_16s32s_Sfs(lo.data(), 3, &r, sf),
                  qspStsOk);
        EXPECT_EQ(r, 0);
    }
    ASSERT_EQ(diff ? qspsNormDiff_Inf_16s32s_Sfs(hi.data(), lo.data(), 3, &r, -100) : qspsNorm_Inf_16s32s_Sfs(lo.data(), 3, &r, -100),
              qspStsOk);
    EXPECT_EQ(r, INT32_MAX);
    ASSERT_EQ(diff ? qspsNormDiff_Inf_16s32s_Sfs(hi.data(), lo.data(), 3, &r, 15) : qspsNorm_Inf_16s32s_Sfs(lo.data(), 3, &r, 15),
              qspStsOk);
    EXPECT_EQ(r, diff ? 1 : 1);  // 65535 >> 15 and 32768 >> 15, truncated
}

}  // namespace normcheck

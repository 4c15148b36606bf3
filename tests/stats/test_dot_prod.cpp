// SPDX-License-Identifier: BSD-3-Clause
// DotProd: sums of products by their accumulation schemes.
#include "reduce_reference.h"

namespace {

// Six single lanes, whole groups of six, lanes added from lane 0 up, then
// the remaining products one by one.
float sixLanes(const float* a, const float* b, long long n)
{
    float lane[6] = {};
    long long i = 0;
    for (; i + 6 <= n; i += 6)
        for (int l = 0; l < 6; ++l) lane[l] += a[i + l] * b[i + l];
    float total = lane[0];
    for (int l = 1; l < 6; ++l) total += lane[l];
    for (; i < n; ++i) total += a[i] * b[i];
    return total;
}

// Eight double lanes of exact products, folded as the sums fold.
template <class T>
double eightLanes(const T* a, const T* b, long long n)
{
    double lane[8] = {};
    long long i = 0;
    for (; i + 8 <= n; i += 8)
        for (int l = 0; l < 8; ++l) lane[l] += double(a[i + l]) * double(b[i + l]);
    const double t0 = (lane[0] + lane[4]) + (lane[2] + lane[6]);
    const double t1 = (lane[1] + lane[5]) + (lane[3] + lane[7]);
    double total = t0 + t1;
    for (; i < n; ++i) total += double(a[i]) * double(b[i]);
    return total;
}

// Complex products gathered in double as (ar br, ai br) and (ai bi, ar bi);
// a real first factor x as (x br, x bi).
template <class TA, class TB>
void complexDot(const TA* a, const TB* b, long long n, bool realFirst, double& re, double& im)
{
    double p0 = 0, p1 = 0, q0 = 0, q1 = 0;
    for (long long k = 0; k < n; ++k) {
        const double br = b[2 * k], bi = b[2 * k + 1];
        if (realFirst) {
            p0 += double(a[k]) * br;
            p1 += double(a[k]) * bi;
        } else {
            const double ar = a[2 * k], ai = a[2 * k + 1];
            p0 += ar * br;
            p1 += ai * br;
            q0 += ai * bi;
            q1 += ar * bi;
        }
    }
    re = realFirst ? p0 : p0 - q0;
    im = realFirst ? p1 : p1 + q1;
}

}  // namespace

TEST(DotProd, Statuses)
{
    qsptest::Guarded<Qsp32f> a(4), b(4), out(4);
    EXPECT_EQ(qspsDotProd_32f(nullptr, b.data(), 4, out.data()), qspStsNullPtr);
    EXPECT_EQ(qspsDotProd_32f(a.data(), nullptr, 4, out.data()), qspStsNullPtr);
    EXPECT_EQ(qspsDotProd_32f(a.data(), b.data(), 4, nullptr), qspStsNullPtr);
    EXPECT_EQ(qspsDotProd_32f(a.data(), b.data(), 0, nullptr), qspStsNullPtr);
    EXPECT_EQ(qspsDotProd_32f(a.data(), b.data(), 0, out.data()), qspStsBadSize);
    EXPECT_EQ(qspsDotProd_32f64f_L(nullptr, nullptr, 0, nullptr), qspStsBadSize);
    EXPECT_EQ(qspsDotProd_32f64f_L(a.data(), nullptr, 3, reinterpret_cast<Qsp64f*>(out.data())), qspStsNullPtr);
    EXPECT_EQ(qspsDotProd_64fc_L(nullptr, nullptr, -1, nullptr), qspStsBadSize);
    EXPECT_EQ(qspsDotProd_16s32s32s_Sfs(reinterpret_cast<Qsp16s*>(a.data()), nullptr, 2,
                                        reinterpret_cast<Qsp32s*>(out.data()), 0),
              qspStsNullPtr);
    EXPECT_EQ(qspsDotProd_32s_Sfs(reinterpret_cast<Qsp32s*>(a.data()), reinterpret_cast<Qsp32s*>(b.data()), -2,
                                  reinterpret_cast<Qsp32s*>(out.data()), 0),
              qspStsBadSize);
    EXPECT_EQ(qspsDotProd_16sc64sc(reinterpret_cast<Qsp16sc*>(a.data()), reinterpret_cast<Qsp16sc*>(b.data()), 2, nullptr),
              qspStsNullPtr);
    EXPECT_EQ(qspsDotProd_32f32fc(a.data(), reinterpret_cast<Qsp32fc*>(b.data()), 0, reinterpret_cast<Qsp32fc*>(out.data())),
              qspStsBadSize);
    EXPECT_TRUE(out.untouched());
}

TEST(DotProd, FloatingFollowTheirSchemes)
{
    for (int len : redref::lengths()) {
        const auto a = redref::uniform<float>(2 * len, -4, 4), b = redref::uniform<float>(2 * len, -4, 4);
        float f;
        double d;
        ASSERT_EQ(qspsDotProd_32f(a.data(), b.data(), len, &f), qspStsOk);
        ASSERT_TRUE(qsptest::sameBits(f, sixLanes(a.data(), b.data(), len))) << len;
        ASSERT_EQ(qspsDotProd_32f64f(a.data(), b.data(), len, &d), qspStsOk);
        ASSERT_TRUE(qsptest::sameBits(d, eightLanes(a.data(), b.data(), len))) << len;
        ASSERT_EQ(qspsDotProd_32f64f_L(a.data(), b.data(), len, &d), qspStsOk);
        ASSERT_TRUE(qsptest::sameBits(d, eightLanes(a.data(), b.data(), len)));
        const auto x = redref::uniform<double>(2 * len, -4, 4), y = redref::uniform<double>(2 * len, -4, 4);
        ASSERT_EQ(qspsDotProd_64f(x.data(), y.data(), len, &d), qspStsOk);
        ASSERT_TRUE(qsptest::sameBits(d, eightLanes(x.data(), y.data(), len)));
        ASSERT_EQ(qspsDotProd_64f_L(x.data(), y.data(), len, &d), qspStsOk);
        ASSERT_TRUE(qsptest::sameBits(d, eightLanes(x.data(), y.data(), len)));

        double re, im;
        const auto* ac = reinterpret_cast<const Qsp32fc*>(a.data());
        const auto* bc = reinterpret_cast<const Qsp32fc*>(b.data());
        Qsp32fc c32;
        Qsp64fc c64;
        complexDot(a.data(), b.data(), len, false, re, im);
        ASSERT_EQ(qspsDotProd_32fc(ac, bc, len, &c32), qspStsOk);
        ASSERT_TRUE(qsptest::sameBits(c32.re, float(re)) && qsptest::sameBits(c32.im, float(im))) << len;
        ASSERT_EQ(qspsDotProd_32fc64fc(ac, bc, len, &c64), qspStsOk);
        ASSERT_TRUE(qsptest::sameBits(c64.re, re) && qsptest::sameBits(c64.im, im));
        ASSERT_EQ(qspsDotProd_32fc64fc_L(ac, bc, len, &c64), qspStsOk);
        ASSERT_TRUE(qsptest::sameBits(c64.re, re) && qsptest::sameBits(c64.im, im));
        complexDot(a.data(), b.data(), len, true, re, im);
        ASSERT_EQ(qspsDotProd_32f32fc(a.data(), bc, len, &c32), qspStsOk);
        ASSERT_TRUE(qsptest::sameBits(c32.re, float(re)) && qsptest::sameBits(c32.im, float(im)));
        ASSERT_EQ(qspsDotProd_32f32fc64fc(a.data(), bc, len, &c64), qspStsOk);
        ASSERT_TRUE(qsptest::sameBits(c64.re, re) && qsptest::sameBits(c64.im, im));
        ASSERT_EQ(qspsDotProd_32f32fc64fc_L(a.data(), bc, len, &c64), qspStsOk);
        ASSERT_TRUE(qsptest::sameBits(c64.re, re) && qsptest::sameBits(c64.im, im));
        const auto* xc = reinterpret_cast<const Qsp64fc*>(x.data());
        const auto* yc = reinterpret_cast<const Qsp64fc*>(y.data());
        complexDot(x.data(), y.data(), len, false, re, im);
        ASSERT_EQ(qspsDotProd_64fc(xc, yc, len, &c64), qspStsOk);
        ASSERT_TRUE(qsptest::sameBits(c64.re, re) && qsptest::sameBits(c64.im, im));
        ASSERT_EQ(qspsDotProd_64fc_L(xc, yc, len, &c64), qspStsOk);
        ASSERT_TRUE(qsptest::sameBits(c64.re, re) && qsptest::sameBits(c64.im, im));
        complexDot(x.data(), y.data(), len, true, re, im);
        ASSERT_EQ(qspsDotProd_64f64fc(x.data(), yc, len, &c64), qspStsOk);
        ASSERT_TRUE(qsptest::sameBits(c64.re, re) && qsptest::sameBits(c64.im, im));
        ASSERT_EQ(qspsDotProd_64f64fc_L(x.data(), yc, len, &c64), qspStsOk);
        ASSERT_TRUE(qsptest::sameBits(c64.re, re) && qsptest::sameBits(c64.im, im));
    }
}

TEST(DotProd, IntegersExactAndScaled)
{
    for (int len : {1, 2, 9, 100, 4099}) {
        const auto a = redref::randomInts<Qsp16s>(2 * len), b = redref::randomInts<Qsp16s>(2 * len);
        const auto w = redref::randomInts<Qsp32s>(len), z = redref::randomInts<Qsp32s>(len);
        long long s16 = 0, cre = 0, cim = 0, mre = 0, mim = 0;
        __int128 s1632 = 0, s32 = 0;
        for (int i = 0; i < len; ++i) {
            s16 += (long long)a[i] * b[i];
            s1632 += (long long)a[i] * w[i];
            s32 += (__int128)((long long)w[i] * z[i]);
            cre += (long long)a[2 * i] * b[2 * i] - (long long)a[2 * i + 1] * b[2 * i + 1];
            cim += (long long)a[2 * i] * b[2 * i + 1] + (long long)a[2 * i + 1] * b[2 * i];
            mre += (long long)a[i] * b[2 * i];
            mim += (long long)a[i] * b[2 * i + 1];
        }
        float f;
        Qsp64s l;
        Qsp64sc c;
        ASSERT_EQ(qspsDotProd_16s32f(a.data(), b.data(), len, &f), qspStsOk);
        ASSERT_EQ(f, float(s16));
        ASSERT_EQ(qspsDotProd_16s64s(a.data(), b.data(), len, &l), qspStsOk);
        ASSERT_EQ(l, s16);
        ASSERT_EQ(qspsDotProd_16sc64sc(reinterpret_cast<const Qsp16sc*>(a.data()), reinterpret_cast<const Qsp16sc*>(b.data()),
                                       len, &c),
                  qspStsOk);
        ASSERT_EQ(c.re, cre);
        ASSERT_EQ(c.im, cim);
        ASSERT_EQ(qspsDotProd_16s16sc64sc(a.data(), reinterpret_cast<const Qsp16sc*>(b.data()), len, &c), qspStsOk);
        ASSERT_EQ(c.re, mre);
        ASSERT_EQ(c.im, mim);
        for (int sf = -70; sf <= 100; ++sf) {
            Qsp32s r = 7;
            ASSERT_EQ(qspsDotProd_16s32s_Sfs(a.data(), b.data(), len, &r, sf), qspStsOk);
            ASSERT_EQ(r, redref::roundScaleExact(s16, sf, INT32_MIN, INT32_MAX)) << len << " sf " << sf;
            ASSERT_EQ(qspsDotProd_16s32s32s_Sfs(a.data(), w.data(), len, &r, sf), qspStsOk);
            ASSERT_EQ(r, redref::roundScaleExact(s1632, sf, INT32_MIN, INT32_MAX)) << len << " sf " << sf;
            ASSERT_EQ(qspsDotProd_32s_Sfs(w.data(), z.data(), len, &r, sf), qspStsOk);
            ASSERT_EQ(r, redref::roundScaleExact(s32, sf, INT32_MIN, INT32_MAX)) << len << " sf " << sf;
        }
    }
    // Sums beyond 64 bits keep their rounding at large scale factors.
    std::vector<Qsp32s> big(3000, INT32_MIN);
    const __int128 exact = __int128(3000) * ((long long)INT32_MIN * INT32_MIN);  // 3000 * 2^62
    for (int sf = 60; sf <= 80; ++sf) {
        Qsp32s r;
        ASSERT_EQ(qspsDotProd_32s_Sfs(big.data(), big.data(), 3000, &r, sf), qspStsOk);
        ASSERT_EQ(r, redref::roundScaleExact(exact, sf, INT32_MIN, INT32_MAX)) << sf;
    }
}

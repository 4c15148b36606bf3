// SPDX-License-Identifier: BSD-3-Clause
// Goertz: the DFT bin sum x[n] exp(-2 pi i f n) against a long double
// reference, every type, lengths across the phase blocks, frequencies over
// [0, 1) including 0 and the neighbourhood of 1/2; the integer forms'
// scaling, rounding and saturation; and the status paths.
#include <cmath>
#include <complex>
#include <limits>
#include <vector>

#include "qsp_test.h"

namespace {

using LC = std::complex<long double>;
using qsptest::Guarded;
constexpr long double kPi = 3.141592653589793238462643383279502884L;

// The reference, with the phase frac(f n) formed exactly: the frequencies
// used have at most 24 significant bits and the lengths stay below 2^40, so
// f n is exact in the extended format.
template <class S>
LC reference(const std::vector<S>& x, long double f)
{
    long double re = 0, im = 0;
    for (size_t n = 0; n < x.size(); ++n) {
        long double ph = f * (long double)n;
        ph -= floorl(ph);
        const long double c = cosl(2 * kPi * ph), s = -sinl(2 * kPi * ph);
        long double xr, xi = 0;
        if constexpr (requires { x[n].re; }) {
            xr = x[n].re;
            xi = x[n].im;
        } else {
            xr = x[n];
        }
        re += xr * c - xi * s;
        im += xr * s + xi * c;
    }
    return LC(re, im);
}

template <class S>
long double absSum(const std::vector<S>& x)
{
    long double a = 0;
    for (const S& v : x) {
        if constexpr (requires { v.re; })
            a += fabsl(v.re) + fabsl(v.im);
        else
            a += fabsl(v);
    }
    return a;
}

template <class S>
std::vector<S> data(size_t n, unsigned salt)
{
    std::mt19937_64 g(77 + salt + 31 * n);
    std::vector<S> x(n);
    for (S& v : x) {
        auto draw = [&]() -> double {
            if constexpr (requires { v.re; }) {
                using P = decltype(v.re);
                if constexpr (std::is_integral_v<P>) return double(P(g()));
            } else if constexpr (std::is_integral_v<S>) {
                return double(S(g()));
            }
            return double(int64_t(g() % 2001) - 1000) / 1000.0;
        };
        if constexpr (requires { v.re; }) {
            v.re = decltype(v.re)(draw());
            v.im = decltype(v.im)(draw());
        } else {
            v = S(draw());
        }
    }
    return x;
}

const std::vector<double> kFreqs = {0.0, 0.125, 0.1, 0.25, 0.3, 0.4999999, 0.5, 0.5000001, 0.75, 0.999, 1.0 - 0x1p-24, 0x1p-20};
const std::vector<size_t> kLengths = {1, 2, 3, 4, 5, 7, 8, 13, 100, 1000, 2047, 2048, 2049, 4100, 10007};

// Floating types: each part within one rounding of the output type of the
// reference, plus the error of the sum in double (a few units of 2^-52 per
// term at worst).
template <class S, class C, class F, class Call>
void checkFloating(Call call)
{
    using P = decltype(C{}.re);
    const long double eps = std::numeric_limits<P>::epsilon();
    for (size_t n : kLengths)
        for (double fd : kFreqs) {
            const F f = F(fd);
            const std::vector<S> x = data<S>(n, 1);
            C v{};
            ASSERT_EQ(call(x.data(), n, &v, f), qspStsOk);
            const LC want = reference(x, (long double)f);
            const long double tol = absSum(x) * (4e-13L + 4 * (long double)n * 0x1p-53L);
            EXPECT_LE(fabsl(v.re - want.real()), eps * fabsl(want.real()) + tol) << "L=" << n << " f=" << f;
            EXPECT_LE(fabsl(v.im - want.imag()), eps * fabsl(want.imag()) + tol) << "L=" << n << " f=" << f;
        }
}

TEST(Goertz, FloatingTypes)
{
    checkFloating<Qsp32f, Qsp32fc, float>(
        [](const Qsp32f* x, size_t n, Qsp32fc* v, float f) { return qspsGoertz_32f(x, int(n), v, f); });
    checkFloating<Qsp32fc, Qsp32fc, float>(
        [](const Qsp32fc* x, size_t n, Qsp32fc* v, float f) { return qspsGoertz_32fc(x, int(n), v, f); });
    checkFloating<Qsp64f, Qsp64fc, double>(
        [](const Qsp64f* x, size_t n, Qsp64fc* v, double f) { return qspsGoertz_64f(x, int(n), v, f); });
    checkFloating<Qsp64fc, Qsp64fc, double>(
        [](const Qsp64fc* x, size_t n, Qsp64fc* v, double f) { return qspsGoertz_64fc(x, int(n), v, f); });
    checkFloating<Qsp32f, Qsp32fc, float>(
        [](const Qsp32f* x, size_t n, Qsp32fc* v, float f) { return qspsGoertz_32f_L(x, Qsp64s(n), v, f); });
    checkFloating<Qsp32fc, Qsp32fc, float>(
        [](const Qsp32fc* x, size_t n, Qsp32fc* v, float f) { return qspsGoertz_32fc_L(x, Qsp64s(n), v, f); });
    checkFloating<Qsp64f, Qsp64fc, double>(
        [](const Qsp64f* x, size_t n, Qsp64fc* v, double f) { return qspsGoertz_64f_L(x, Qsp64s(n), v, f); });
    checkFloating<Qsp64fc, Qsp64fc, double>(
        [](const Qsp64fc* x, size_t n, Qsp64fc* v, double f) { return qspsGoertz_64fc_L(x, Qsp64s(n), v, f); });
}

// A bin of a pure tone at a bin frequency is the tone's amplitude times L;
// the others vanish (to rounding).
TEST(Goertz, ToneAtBinFrequency)
{
    const int n = 1000;
    std::vector<double> x(n);
    for (int i = 0; i < n; ++i) x[i] = std::cos(2 * 3.14159265358979323846 * 37 * i / n);
    Qsp64fc v;
    ASSERT_EQ(qspsGoertz_64f(x.data(), n, &v, 37.0 / n), qspStsOk);
    EXPECT_NEAR(v.re, n / 2.0, 1e-10);
    EXPECT_NEAR(v.im, 0.0, 1e-10);
    ASSERT_EQ(qspsGoertz_64f(x.data(), n, &v, 36.0 / n), qspStsOk);
    EXPECT_NEAR(std::hypot(v.re, v.im), 0.0, 1e-10);
}

// Integer forms: the reference scaled by 2^-sf, rounded to nearest with ties
// to even and saturated; where the error of the sum spans rounding
// boundaries, any integer in its reach is accepted.
template <class S, class C, class Call>
void checkScaled(Call call)
{
    using P = decltype(C{}.re);
    for (size_t n : {1, 2, 5, 8, 100, 2049, 10007})
        for (double fd : kFreqs)
            for (int sf : {-3, 0, 1, 5, 16, 40}) {
                const float f = float(fd);
                const std::vector<S> x = data<S>(n, 2);
                C v{};
                ASSERT_EQ(call(x.data(), int(n), &v, f, sf), qspStsOk);
                const LC want = reference(x, (long double)f);
                const long double tol = absSum(x) * (4e-13L + 4 * (long double)n * 0x1p-53L) * ldexpl(1, -sf);
                for (int part = 0; part < 2; ++part) {
                    const long double r = ldexpl(part ? want.imag() : want.real(), -sf);
                    const long double lo = (long double)std::numeric_limits<P>::min(),
                                      hi = (long double)std::numeric_limits<P>::max();
                    auto saturate = [&](long double a) { return a < lo ? lo : a > hi ? hi : a; };
                    const long double a = saturate(nearbyintl(r - tol)), b = saturate(nearbyintl(r + tol));
                    const long double got = part ? v.im : v.re;
                    EXPECT_TRUE(got >= a && got <= b) << "L=" << n << " f=" << f << " sf=" << sf << " got " << got
                                                      << " want " << (double)r;
                }
            }
}

TEST(Goertz, IntegerTypesScaleRoundAndSaturate)
{
    checkScaled<Qsp16s, Qsp16sc>([](const Qsp16s* x, int n, Qsp16sc* v, float f, int sf) {
        return qspsGoertz_16s_Sfs(x, n, v, f, sf);
    });
    checkScaled<Qsp16sc, Qsp16sc>([](const Qsp16sc* x, int n, Qsp16sc* v, float f, int sf) {
        return qspsGoertz_16sc_Sfs(x, n, v, f, sf);
    });
    checkScaled<Qsp32s, Qsp32sc>([](const Qsp32s* x, int n, Qsp32sc* v, float f, int sf) {
        return qspsGoertz_32s_Sfs(x, n, v, f, sf);
    });
    checkScaled<Qsp32sc, Qsp32sc>([](const Qsp32sc* x, int n, Qsp32sc* v, float f, int sf) {
        return qspsGoertz_32sc_Sfs(x, n, v, f, sf);
    });
}

// At frequency 0 the bin of integers is their exact sum: ties go to even.
TEST(Goertz, ExactSumsRoundToEven)
{
    const Qsp16s x[4] = {1, 2, 2, 0};  // sum 5
    Qsp16sc v;
    ASSERT_EQ(qspsGoertz_16s_Sfs(x, 4, &v, 0.0f, 1), qspStsOk);
    EXPECT_EQ(v.re, 2);  // 2.5 to even
    EXPECT_EQ(v.im, 0);
    const Qsp16s y[3] = {1, 2, 4};  // sum 7
    ASSERT_EQ(qspsGoertz_16s_Sfs(y, 3, &v, 0.0f, 1), qspStsOk);
    EXPECT_EQ(v.re, 4);  // 3.5 to even
    const Qsp16s big[4] = {30000, 30000, 30000, -1};
    ASSERT_EQ(qspsGoertz_16s_Sfs(big, 4, &v, 0.0f, 0), qspStsOk);
    EXPECT_EQ(v.re, 32767);
    const Qsp32s neg[2] = {-2147483647 - 1, -2147483647 - 1};
    Qsp32sc w;
    ASSERT_EQ(qspsGoertz_32s_Sfs(neg, 2, &w, 0.0f, 0), qspStsOk);
    EXPECT_EQ(w.re, -2147483647 - 1);
    ASSERT_EQ(qspsGoertz_32s_Sfs(neg, 2, &w, 0.0f, 1), qspStsOk);
    EXPECT_EQ(w.re, -2147483647 - 1);
    ASSERT_EQ(qspsGoertz_32s_Sfs(neg, 2, &w, 0.0f, 2), qspStsOk);
    EXPECT_EQ(w.re, -1073741824);
}

TEST(Goertz, ChecksInOrderAndNothingWritten)
{
    std::vector<float> x(8, 1.0f);
    Guarded<Qsp32fc> v(1);
    for (float bad : {-0.1f, 1.0f, 1.5f, std::numeric_limits<float>::quiet_NaN(), std::numeric_limits<float>::infinity(),
                      -0.0f * 0 - 1e-30f}) {
        EXPECT_EQ(qspsGoertz_32f(x.data(), 8, v.data(), bad), qspStsBadRelFreq) << bad;
        EXPECT_EQ(qspsGoertz_32f_L(x.data(), 8, v.data(), bad), qspStsBadRelFreq) << bad;
    }
    EXPECT_EQ(qspsGoertz_32f(nullptr, 8, v.data(), 0.1f), qspStsNullPtr);
    EXPECT_EQ(qspsGoertz_32f(x.data(), 8, nullptr, 0.1f), qspStsNullPtr);
    EXPECT_EQ(qspsGoertz_32f(nullptr, 0, v.data(), 2.0f), qspStsNullPtr) << "pointers first";
    EXPECT_EQ(qspsGoertz_32f(x.data(), 0, v.data(), 2.0f), qspStsBadSize) << "the length before the frequency";
    EXPECT_EQ(qspsGoertz_32f(x.data(), -1, v.data(), 0.1f), qspStsBadSize);
    // the 64-bit length forms check the length before the pointers
    EXPECT_EQ(qspsGoertz_32f_L(nullptr, 0, nullptr, 0.1f), qspStsBadSize);
    EXPECT_EQ(qspsGoertz_64fc_L(nullptr, -5, nullptr, 0.1), qspStsBadSize);
    EXPECT_EQ(qspsGoertz_64f_L(nullptr, 5, nullptr, 0.1), qspStsNullPtr);
    EXPECT_TRUE(v.untouched());
    Qsp16sc iv;
    const Qsp16s s[2] = {1, 2};
    EXPECT_EQ(qspsGoertz_16s_Sfs(s, 2, &iv, 1.0f, 0), qspStsBadRelFreq);
    EXPECT_EQ(qspsGoertz_16sc_Sfs(nullptr, 2, &iv, 0.5f, 0), qspStsNullPtr);
    EXPECT_EQ(qspsGoertz_32sc_Sfs(reinterpret_cast<const Qsp32sc*>(s), 0, nullptr, 0.5f, 0), qspStsNullPtr);
    EXPECT_EQ(qspsGoertz_32s_Sfs(reinterpret_cast<const Qsp32s*>(s), 0, reinterpret_cast<Qsp32sc*>(&iv), 0.5f, 0),
              qspStsBadSize);
    EXPECT_EQ(qspsGoertz_64f(reinterpret_cast<const double*>(x.data()), 2, reinterpret_cast<Qsp64fc*>(v.data()), 1.0),
              qspStsBadRelFreq);
}

// The one-pass 64-bit forms agree with the ordinary ones bit for bit.
TEST(Goertz, LongFormsEqualOrdinary)
{
    for (size_t n : {3, 4000, 70001}) {
        const std::vector<Qsp32fc> x = data<Qsp32fc>(n, 3);
        Qsp32fc a, b;
        ASSERT_EQ(qspsGoertz_32fc(x.data(), int(n), &a, 0.3f), qspStsOk);
        ASSERT_EQ(qspsGoertz_32fc_L(x.data(), Qsp64s(n), &b, 0.3f), qspStsOk);
        EXPECT_TRUE(qsptest::sameBits(a, b));
    }
}

}  // namespace

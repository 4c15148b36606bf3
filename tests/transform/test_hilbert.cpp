// SPDX-License-Identifier: BSD-3-Clause
// Hilbert: the analytic signal against a long double reference (the inverse
// DFT of X[k] H[k], H = 1 at bin 0 and L/2, 2 below L/2, 0 above), its real
// part exactly the input, the transform of a cosine, the integer front ends,
// and the status paths of the size query, Init and the transforms.
#include <cmath>
#include <cstdint>
#include <cstring>
#include <vector>

#include "dft_reference.h"

namespace {

using dftref::LC;
using qsptest::Guarded;

// The imaginary part of the analytic signal, in long double.
std::vector<long double> reference(const std::vector<long double>& x)
{
    const size_t n = x.size();
    std::vector<LC> c(n);
    for (size_t i = 0; i < n; ++i) c[i] = LC(x[i], 0);
    std::vector<LC> spec = dftref::dft(c, -1);
    for (size_t k = 0; k < n; ++k) {
        const bool edge = k == 0 || 2 * k == n;
        spec[k] *= edge ? 1.0L : 2 * k < n ? 2.0L : 0.0L;
    }
    const std::vector<LC> z = dftref::dft(spec, 1);
    std::vector<long double> h(n);
    for (size_t i = 0; i < n; ++i) h[i] = z[i].imag() / (long double)n;
    return h;
}

template <class T>
struct Rec {
    std::vector<Qsp8u> spec, buf;
    void* rec = nullptr;
    QspStatus status = qspStsOk;
    Qsp8u* buffer() { return buf.data() + 3; }
};

template <class T>
Rec<T> make(int len)
{
    Rec<T> r;
    int s = 0, b = 0;
    r.status = sizeof(T) == 4 ? qspsHilbertGetSize_32f32fc(len, 0, &s, &b) : qspsHilbertGetSize_64f64fc(len, 0, &s, &b);
    if (r.status) return r;
    r.spec.assign(s + 5, 0xA5);
    r.buf.assign(b + 3, 0xA5);
    r.status = sizeof(T) == 4 ? qspsHilbertInit_32f32fc(reinterpret_cast<QspsHilbertSpec_32f**>(&r.rec), len, 0,
                                                        r.spec.data() + 5, r.buffer())
                              : qspsHilbertInit_64f64fc(reinterpret_cast<QspsHilbertSpec_64f**>(&r.rec), len, 0,
                                                        r.spec.data() + 5, r.buffer());
    return r;
}

const int kLengths[] = {1, 2, 3, 4, 5, 8, 15, 16, 17, 31, 32, 48, 100, 101, 1000, 1024, 1031};

template <class T>
void accuracy(int n)
{
    Rec<T> r = make<T>(n);
    ASSERT_EQ(r.status, qspStsOk) << n;
    const std::vector<dftref::LC> c = dftref::exactSignal(n, true, 31);
    std::vector<long double> x(n);
    std::vector<T> src(n);
    for (int i = 0; i < n; ++i) x[i] = c[i].real(), src[i] = T(x[i]);
    std::vector<T> dst(2 * n);
    QspStatus st;
    if constexpr (sizeof(T) == 4)
        st = qspsHilbert_32f32fc(src.data(), reinterpret_cast<Qsp32fc*>(dst.data()),
                                 static_cast<const QspsHilbertSpec_32f*>(r.rec), r.buffer());
    else
        st = qspsHilbert_64f64fc(src.data(), reinterpret_cast<Qsp64fc*>(dst.data()),
                                 static_cast<const QspsHilbertSpec_64f*>(r.rec), r.buffer());
    ASSERT_EQ(st, qspStsOk);
    const std::vector<long double> h = reference(x);
    long double err = 0, norm = 0;
    for (int i = 0; i < n; ++i) {
        EXPECT_EQ(dst[2 * i], src[i]) << "the real part is the input: L=" << n;
        err += (dst[2 * i + 1] - h[i]) * (dst[2 * i + 1] - h[i]);
        norm += x[i] * x[i];
    }
    // two transforms, each within the DFT's bound relative to the signal
    EXPECT_LE(sqrtl(err / norm), 2 * dftref::bound(sizeof(T) == 8, n)) << "L=" << n;
}

TEST(Hilbert, AnalyticSignalAgainstTheReference)
{
    for (int n : kLengths) {
        accuracy<float>(n);
        accuracy<double>(n);
    }
}

// The Hilbert transform of cos(2 pi k n / L) is sin(2 pi k n / L) for
// 0 < k < L/2; of a constant, zero.
TEST(Hilbert, CosineGivesSine)
{
    const int n = 360, k = 7;
    Rec<double> r = make<double>(n);
    std::vector<double> x(n);
    std::vector<Qsp64fc> z(n);
    for (int i = 0; i < n; ++i) x[i] = std::cos(2 * 3.14159265358979323846 * k * i / n);
    ASSERT_EQ(qspsHilbert_64f64fc(x.data(), z.data(), static_cast<const QspsHilbertSpec_64f*>(r.rec), r.buffer()),
              qspStsOk);
    for (int i = 0; i < n; ++i) EXPECT_NEAR(z[i].im, std::sin(2 * 3.14159265358979323846 * k * i / n), 1e-13) << i;
    std::fill(x.begin(), x.end(), 3.0);
    ASSERT_EQ(qspsHilbert_64f64fc(x.data(), z.data(), static_cast<const QspsHilbertSpec_64f*>(r.rec), r.buffer()),
              qspStsOk);
    for (int i = 0; i < n; ++i) EXPECT_NEAR(z[i].im, 0.0, 1e-13);
}

// The 16-bit front ends: the same transform of the converted input, and the
// scaled form its rounding (to nearest, ties to even) with saturation.
TEST(Hilbert, IntegerFrontEnds)
{
    for (int n : {1, 5, 16, 17, 100, 1024}) {
        Rec<float> r = make<float>(n);
        auto* rec = static_cast<const QspsHilbertSpec_32f*>(r.rec);
        std::vector<Qsp16s> s(n);
        std::vector<float> f(n);
        for (int i = 0; i < n; ++i) s[i] = Qsp16s((i * 7919) % 65536 - 32768), f[i] = s[i];
        std::vector<Qsp32fc> a(n), b(n);
        ASSERT_EQ(qspsHilbert_16s32fc(s.data(), a.data(), rec, r.buffer()), qspStsOk);
        ASSERT_EQ(qspsHilbert_32f32fc(f.data(), b.data(), rec, r.buffer()), qspStsOk);
        EXPECT_EQ(std::memcmp(a.data(), b.data(), n * sizeof(Qsp32fc)), 0) << n;
        for (int sf : {-2, 0, 1, 3, 20}) {
            std::vector<Qsp16sc> c(n);
            ASSERT_EQ(qspsHilbert_16s16sc_Sfs(s.data(), c.data(), rec, r.buffer(), sf), qspStsOk);
            for (int i = 0; i < n; ++i) {
                auto want = [&](float v) {
                    const double t = std::nearbyint(std::ldexp(double(v), -sf));
                    return Qsp16s(t > 32767 ? 32767 : t < -32768 ? -32768 : t);
                };
                EXPECT_EQ(c[i].re, want(b[i].re)) << n << " sf " << sf;
                EXPECT_EQ(c[i].im, want(b[i].im)) << n << " sf " << sf;
            }
        }
    }
}

TEST(Hilbert, SizeQueryAndInitChecks)
{
    int s = -1, b = -1;
    EXPECT_EQ(qspsHilbertGetSize_32f32fc(16, 0, nullptr, &b), qspStsNullPtr);
    EXPECT_EQ(qspsHilbertGetSize_32f32fc(16, 0, &s, nullptr), qspStsNullPtr);
    EXPECT_EQ(qspsHilbertGetSize_64f64fc(0, 0, nullptr, &b), qspStsNullPtr) << "pointers first";
    EXPECT_EQ(qspsHilbertGetSize_64f64fc(0, 0, &s, &b), qspStsBadSize);
    EXPECT_EQ(qspsHilbertGetSize_32f32fc(-4, 0, &s, &b), qspStsBadSize);
    EXPECT_EQ(qspsHilbertGetSize_32f32fc(134217729, 0, &s, &b), qspStsBadSize) << "the real DFT's limit";
    EXPECT_EQ(s, -1);
    EXPECT_EQ(b, -1);
    Guarded<Qsp8u> spec(4096), buf(4096);
    QspsHilbertSpec_32f* rec = nullptr;
    EXPECT_EQ(qspsHilbertInit_32f32fc(nullptr, 16, 0, spec.data(), buf.data()), qspStsNullPtr);
    EXPECT_EQ(qspsHilbertInit_32f32fc(&rec, 16, 0, nullptr, buf.data()), qspStsNullPtr);
    EXPECT_EQ(qspsHilbertInit_32f32fc(&rec, 0, 0, spec.data(), buf.data()), qspStsBadSize);
    EXPECT_TRUE(spec.untouched());
    EXPECT_TRUE(buf.untouched());
    // up to 16 the real DFT needs no tables, from 17 it does
    for (int n : {1, 16}) {
        ASSERT_EQ(qspsHilbertGetSize_32f32fc(n, 0, &s, &b), qspStsOk);
        std::vector<Qsp8u> block(s);
        EXPECT_EQ(qspsHilbertInit_32f32fc(&rec, n, 0, block.data(), nullptr), qspStsOk) << n;
    }
    ASSERT_EQ(qspsHilbertGetSize_32f32fc(17, 0, &s, &b), qspStsOk);
    std::vector<Qsp8u> block(s + 64);
    EXPECT_EQ(qspsHilbertInit_32f32fc(&rec, 17, 0, block.data(), nullptr), qspStsNullPtr);
    Qsp32u id;
    std::memcpy(&id, reinterpret_cast<Qsp8u*>((reinterpret_cast<uintptr_t>(block.data()) + 63) & ~uintptr_t(63)), 4);
    EXPECT_EQ(id, 0u) << "no identifier on failure";
}

TEST(Hilbert, TransformChecks)
{
    Rec<float> r = make<float>(100);
    Rec<double> d = make<double>(100);
    auto* rec = static_cast<const QspsHilbertSpec_32f*>(r.rec);
    std::vector<float> x(100, 1.0f);
    Guarded<Qsp32fc> z(100);
    EXPECT_EQ(qspsHilbert_32f32fc(nullptr, z.data(), rec, r.buffer()), qspStsNullPtr);
    EXPECT_EQ(qspsHilbert_32f32fc(x.data(), nullptr, rec, r.buffer()), qspStsNullPtr);
    EXPECT_EQ(qspsHilbert_32f32fc(x.data(), z.data(), nullptr, r.buffer()), qspStsNullPtr);
    EXPECT_EQ(qspsHilbert_32f32fc(x.data(), z.data(), reinterpret_cast<const QspsHilbertSpec_32f*>(d.rec), r.buffer()),
              qspStsBadRecord);
    std::vector<Qsp8u> zeros(256, 0);
    EXPECT_EQ(qspsHilbert_32f32fc(x.data(), z.data(), reinterpret_cast<const QspsHilbertSpec_32f*>(zeros.data()),
                                  r.buffer()),
              qspStsBadRecord);
    EXPECT_EQ(qspsHilbert_32f32fc(x.data(), z.data(), rec, nullptr), qspStsNullPtr);
    std::vector<Qsp16s> s(100);
    std::vector<Qsp16sc> c(100);
    EXPECT_EQ(qspsHilbert_16s16sc_Sfs(s.data(), c.data(), rec, nullptr, 0), qspStsNullPtr);
    EXPECT_EQ(qspsHilbert_16s32fc(nullptr, z.data(), rec, r.buffer()), qspStsNullPtr);
    EXPECT_TRUE(z.untouched());
    EXPECT_EQ(qspsHilbert_32f32fc(x.data(), z.data(), rec, r.buffer()), qspStsOk);
    EXPECT_TRUE(z.guardsIntact());
}

}  // namespace

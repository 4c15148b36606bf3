// SPDX-License-Identifier: BSD-3-Clause
#include "fft_real_kinds.h"

using namespace fftreal;
using fftref::LC;

namespace {

long double flagScale(int flag, bool inverse, int order)
{
    const long double n = (long double)(1LL << order);
    if (flag == 4) return 1.0L / sqrtl(n);
    if ((flag == 1 && !inverse) || (flag == 2 && inverse)) return 1.0L / n;
    return 1.0L;
}

// Relative RMS error of packed values against the reference.
double packedError(const std::vector<long double>& ref, const std::vector<long double>& got)
{
    long double num = 0, den = 0;
    for (size_t i = 0; i < ref.size(); ++i) {
        num += (got[i] - ref[i]) * (got[i] - ref[i]);
        den += ref[i] * ref[i];
    }
    return (double)sqrtl(den == 0 ? num : num / den);
}

template <class T>
void checkForward(int order, int flag, Layout l, bool report = false)
{
    const size_t n = size_t(1) << order, len = packedLength(l, n);
    const auto& c = fftref::cached(order, true);
    const auto& x = c.x;
    auto spec = c.forward;
    for (auto& v : spec) v *= flagScale(flag, false, order);
    const auto ref = pack(l, spec, n);
    Built<T> b = build<T>(order, flag);
    std::vector<T> src(n), dst(len + 8, T(-7)), inPlace(len + 8, T(-7));
    for (size_t i = 0; i < n; ++i) src[i] = inPlace[i] = (T)x[i].real();
    ASSERT_EQ(Api<T>::fwd(l, src.data(), dst.data(), b.rec, b.blocks.workPtr()), qspStsOk);
    ASSERT_EQ(Api<T>::fwdI(l, inPlace.data(), b.rec, b.blocks.workPtr()), qspStsOk);
    std::vector<long double> got(dst.begin(), dst.begin() + len);
    const double err = packedError(ref, got);
    const double bound = fftref::bound(sizeof(T) == 8, order);
    EXPECT_LE(err, bound) << name(l) << " order " << order << " flag " << flag;
    for (size_t i = 0; i < len; ++i) ASSERT_EQ(dst[i], inPlace[i]) << name(l) << " order " << order << " index " << i;
    for (size_t i = len; i < len + 8; ++i) ASSERT_EQ(dst[i], T(-7)) << "written past the packed length";
    if (l == Layout::Ccs) {
        EXPECT_EQ(dst[1], T(0));
        if (n >= 2) EXPECT_EQ(dst[n + 1], T(0));
    }
    if (report)
        printf("  R_%s fwd %s order %2d: relative RMS error %.3g (bound %.3g)\n", sizeof(T) == 8 ? "64f" : "32f", name(l),
               order, err, bound);
}

template <class T>
void checkInverse(int order, int flag, Layout l, bool report = false)
{
    const size_t n = size_t(1) << order, len = packedLength(l, n);
    // A conjugate-symmetric spectrum with values exact in T, and its
    // inverse transform.
    const auto& c = fftref::cached(order, true);
    const auto packedRef = pack(l, c.hermitian, n);
    std::vector<T> src(len), dst(n + 8, T(-7)), inPlace(len + 8, T(-7));
    for (size_t i = 0; i < len; ++i) src[i] = inPlace[i] = (T)packedRef[i];
    auto ref = c.hermitianInverse;
    for (auto& v : ref) v *= flagScale(flag, true, order);
    Built<T> b = build<T>(order, flag);
    ASSERT_EQ(Api<T>::inv(l, src.data(), dst.data(), b.rec, b.blocks.workPtr()), qspStsOk);
    ASSERT_EQ(Api<T>::invI(l, inPlace.data(), b.rec, b.blocks.workPtr()), qspStsOk);
    const double err = fftref::relRms(ref, [&](size_t i) { return LC(dst[i], 0); });
    const double bound = fftref::bound(sizeof(T) == 8, order);
    EXPECT_LE(err, bound) << name(l) << " inverse order " << order << " flag " << flag;
    for (size_t i = 0; i < n; ++i) ASSERT_EQ(dst[i], inPlace[i]) << name(l) << " order " << order << " index " << i;
    for (size_t i = n; i < n + 8; ++i) ASSERT_EQ(dst[i], T(-7)) << "written past N";
    if (report)
        printf("  R_%s inv %s order %2d: relative RMS error %.3g (bound %.3g)\n", sizeof(T) == 8 ? "64f" : "32f", name(l),
               order, err, bound);
}

}  // namespace

// One test for both precisions, every layout and flag, so that the
// reference transforms are computed once.
TEST(FFTReal, EveryPrecisionOrderLayoutAndFlag)
{
    for (int order = 0; order <= 20; ++order)
        for (Layout l : {Layout::Pack, Layout::Perm, Layout::Ccs}) {
            checkForward<float>(order, 8, l, l == Layout::Perm);
            checkInverse<float>(order, 8, l, l == Layout::Perm);
            checkForward<double>(order, 8, l, l == Layout::Perm);
            checkInverse<double>(order, 8, l, l == Layout::Perm);
        }
    // Every flag at every straight-line real order (0..5), at the orders
    // whose half-length transform is straight-line (7, 8) or in two steps
    // (double precision, 9..11), and a few above, up to order 20, whose
    // half-length transform is the last of the medium tier.
    for (int flag : {1, 2, 4, 8})
        for (int order : {0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 18, 19, 20})
            for (Layout l : {Layout::Pack, Layout::Perm, Layout::Ccs}) {
                checkForward<float>(order, flag, l);
                checkInverse<float>(order, flag, l);
                checkForward<double>(order, flag, l);
                checkInverse<double>(order, flag, l);
            }
}

namespace {

// The spectrum of a real signal from the complex double-precision
// transform (flag qspFftNoDiv), an independent path: the real kinds run a
// half-length complex transform and a recombination, whose factors come
// from coarse and fine tables above order 20.
std::vector<LC> complexSpectrum(const std::vector<double>& x, int order)
{
    const size_t n = x.size();
    fftref::Blocks b = fftref::makeBlocks(qspsFFTGetSize_C_64fc, order, 8, 0);
    QspsFFTSpec_C_64fc* rec = nullptr;
    EXPECT_EQ(qspsFFTInit_C_64fc(&rec, order, 8, qspAlgHintNone, b.specPtr(), b.initPtr()), qspStsOk);
    std::vector<Qsp64fc> in(n), out(n);
    for (size_t i = 0; i < n; ++i) in[i] = {x[i], 0.0};
    EXPECT_EQ(qspsFFTFwd_CToC_64fc(in.data(), out.data(), rec, b.workPtr()), qspStsOk);
    std::vector<LC> y(n / 2 + 1);
    for (size_t k = 0; k <= n / 2; ++k) y[k] = LC(out[k].re, out[k].im);
    return y;
}

// Forward: CCS against the complex spectrum. Both are within half the
// bound of the exact spectrum (the complex transform measures 0.17 of the
// bound against long double up to order 20; the double reference is nine
// orders below the single-precision bound), so they differ by less than
// the bound. Inverse: the CCS spectrum of that reference, rounded to T,
// against N x (flag qspFftNoDiv); rounding the spectrum to single
// precision adds 6e-8, within the bound. In place must equal out of place.
template <class T>
void checkAgainstComplex(int order, const std::vector<double>& x, const std::vector<LC>& y)
{
    const size_t n = x.size();
    const double bound = fftref::bound(sizeof(T) == 8, order);
    Built<T> b = build<T>(order, 8);
    std::vector<T> src(n + 2), dst(n + 2), inPlace(n + 2);
    for (size_t i = 0; i < n; ++i) src[i] = inPlace[i] = (T)x[i];
    ASSERT_EQ(Api<T>::fwd(Layout::Ccs, src.data(), dst.data(), b.rec, b.blocks.workPtr()), qspStsOk);
    ASSERT_EQ(Api<T>::fwdI(Layout::Ccs, inPlace.data(), b.rec, b.blocks.workPtr()), qspStsOk);
    EXPECT_LE(fftref::relRms(y, [&](size_t k) { return LC(dst[2 * k], dst[2 * k + 1]); }), bound)
        << "forward order " << order;
    ASSERT_TRUE(dst == inPlace) << "forward in place differs at order " << order;

    std::vector<T> spec(n + 2);
    for (size_t k = 0; k <= n / 2; ++k) {
        spec[2 * k] = (T)y[k].real();
        spec[2 * k + 1] = (k == 0 || 2 * k == n) ? T(0) : (T)y[k].imag();
    }
    std::vector<T> back(n), backI(spec);
    ASSERT_EQ(Api<T>::inv(Layout::Ccs, spec.data(), back.data(), b.rec, b.blocks.workPtr()), qspStsOk);
    ASSERT_EQ(Api<T>::invI(Layout::Ccs, backI.data(), b.rec, b.blocks.workPtr()), qspStsOk);
    std::vector<LC> ref(n);
    for (size_t i = 0; i < n; ++i) ref[i] = LC((long double)n * x[i], 0);
    EXPECT_LE(fftref::relRms(ref, [&](size_t i) { return LC(back[i], 0); }), bound) << "inverse order " << order;
    for (size_t i = 0; i < n; ++i) ASSERT_EQ(back[i], backI[i]) << "inverse in place differs at order " << order;
}

}  // namespace

// Orders 21 and 22, the first whose recombination factors come from
// coarse and fine tables (too long for a long double reference).
TEST(FFTRealHeavy, OrdersAboveTwentyAgainstTheComplexTransform)
{
    for (int order : {21, 22}) {
        const auto sig = fftref::randomSignal(size_t(1) << order, true);
        std::vector<double> x(sig.size());
        for (size_t i = 0; i < x.size(); ++i) x[i] = (double)(float)sig[i].real();
        const auto y = complexSpectrum(x, order);
        checkAgainstComplex<float>(order, x, y);
        checkAgainstComplex<double>(order, x, y);
    }
}

namespace {

// Forward (Ccs) or inverse (from a Ccs spectrum) of one record.
template <class T>
std::vector<T> runCcs(int order, int flag, bool inverse, const std::vector<T>& in)
{
    const size_t n = size_t(1) << order;
    Built<T> b = build<T>(order, flag);
    std::vector<T> out(n + 2);
    const QspStatus st = inverse ? Api<T>::inv(Layout::Ccs, in.data(), out.data(), b.rec, b.blocks.workPtr())
                                 : Api<T>::fwd(Layout::Ccs, in.data(), out.data(), b.rec, b.blocks.workPtr());
    EXPECT_EQ(st, qspStsOk);
    if (inverse) out.resize(n);
    return out;
}

template <class T>
void checkFlagsAgainstUnscaled(int order)
{
    const size_t n = size_t(1) << order;
    // The unit roundoff of T (2^-24 or 2^-53).
    const double unit = sizeof(T) == 8 ? 0x1p-53 : 0x1p-24;
    const auto sig = fftref::randomSignal(n, true);
    std::vector<T> x(n);
    for (size_t i = 0; i < n; ++i) x[i] = (T)sig[i].real();
    for (bool inverse : {false, true}) {
        // The inverse starts from the unscaled forward spectrum.
        const std::vector<T> in = inverse ? runCcs<T>(order, 8, false, x) : x;
        const std::vector<T> y8 = runCcs<T>(order, 8, inverse, in);
        for (int flag : {1, 2, 4}) {
            const std::vector<T> y = runCcs<T>(order, flag, inverse, in);
            const long double f = flagScale(flag, inverse, order);
            if (flag == 4) {
                long double num = 0, den = 0;
                for (size_t i = 0; i < y.size(); ++i) {
                    const long double d = (long double)y[i] - (long double)y8[i] * f;
                    num += d * d;
                    den += (long double)y8[i] * f * ((long double)y8[i] * f);
                }
                EXPECT_LE((double)sqrtl(num / den), 9 * unit)
                    << "order " << order << (inverse ? " inverse" : " forward");
                continue;
            }
            for (size_t i = 0; i < y.size(); ++i)
                ASSERT_TRUE((long double)y[i] == (long double)y8[i] * f)
                    << "order " << order << " flag " << flag << (inverse ? " inverse" : " forward") << " index " << i;
        }
    }
}

}  // namespace

// Orders 21 and 22 (half-length transforms on the large tier, except
// single precision's order 21), which have no long double reference: each
// flag against the unscaled result times its factor. 1/N is a power of
// two and scales exactly wherever it is applied. 1/sqrt(N) (not a power of
// two at odd orders) is applied to the half-length transform's values
// (forward: one rounding, then the recombination rounds differently) or to
// the finished values (inverse: one rounding). A recombined value rounds
// at most four times (sum, difference, product with the factor, final
// sum) on each side, so the two results differ by at most 9 units of
// roundoff; measured 1.2 (single) and 1.4 (double) at order 21.
TEST(FFTRealHeavy, FlagsAboveTwentyScaleTheUnscaledResult)
{
    for (int order : {21, 22}) {
        checkFlagsAgainstUnscaled<float>(order);
        checkFlagsAgainstUnscaled<double>(order);
    }
}

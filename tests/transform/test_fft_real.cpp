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
    // (double precision, 9..11), and a few above.
    for (int flag : {1, 2, 4, 8})
        for (int order : {0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 18, 19})
            for (Layout l : {Layout::Pack, Layout::Perm, Layout::Ccs}) {
                checkForward<float>(order, flag, l);
                checkInverse<float>(order, flag, l);
                checkForward<double>(order, flag, l);
                checkInverse<double>(order, flag, l);
            }
}

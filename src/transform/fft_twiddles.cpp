// SPDX-License-Identifier: BSD-3-Clause
// Init-time construction of the octant table for lengths above 1024.
#include "fft_twiddles.h"
#include "simd.h"

namespace fft {

// j = a*F + b: exp(i*2*pi*j/N) = exp(i*2*pi*a*F/N) * exp(i*2*pi*b/N).
// Double precision needs the product in the extended format to round
// correctly; single precision takes it in double, whose error (a few units
// of 2^-53) can only matter within that distance of a float rounding
// boundary, and is vectorised two values at a time.
template <class T>
void ownsBuildOctant(Cplx<T>* octant, int order)
{
    // About sqrt(N/8) fine values (at most 256) and as many coarse ones, so
    // that few values are evaluated directly.
    constexpr int kMaxFine = 256;
    const int fineOrder = (order - 3 + 1) / 2 < 8 ? (order - 3 + 1) / 2 : 8;
    const int kFine = 1 << fineOrder;
    const Qsp64s n = Qsp64s(1) << order;
    const Qsp64s last = n >> 3;
    const double step = 2.0 / static_cast<double>(n);  // exact: a power of two
    if constexpr (sizeof(T) == 8) {
        mathfn::SinCosExt fine[kMaxFine];
        for (int b = 0; b < kFine && b <= last; ++b) fine[b] = mathfn::sinCosPiExt(step * b);
        for (Qsp64s base = 0; base <= last; base += kFine) {
            const mathfn::SinCosExt c = mathfn::sinCosPiExt(step * static_cast<double>(base));
            const Qsp64s count = last - base + 1 < kFine ? last - base + 1 : kFine;
            for (Qsp64s b = 0; b < count; ++b) {
                const long double re = c.c * fine[b].c - c.s * fine[b].s;
                const long double im = c.c * fine[b].s + c.s * fine[b].c;
                octant[base + b] = {T(re), T(im)};
            }
        }
    } else {
        using V = simd::Vec<double>;
        alignas(16) double fineC[kMaxFine], fineS[kMaxFine];
        for (int b = 0; b < kFine; ++b) {
            const mathfn::SinCos sc = mathfn::sinCosPi(step * b);
            fineC[b] = sc.c;
            fineS[b] = sc.s;
        }
        for (Qsp64s base = 0; base <= last; base += kFine) {
            const mathfn::SinCos c = mathfn::sinCosPi(step * static_cast<double>(base));
            const Qsp64s count = last - base + 1 < kFine ? last - base + 1 : kFine;
            const auto cc = V::splat(c.c), cs = V::splat(c.s);
            Qsp64s b = 0;
            for (; b + 2 <= count; b += 2) {
                const auto fc = V::load(fineC + b), fs = V::load(fineS + b);
                const auto re = V::sub(V::mul(cc, fc), V::mul(cs, fs));
                const auto im = V::add(V::mul(cc, fs), V::mul(cs, fc));
                const __m128 r = _mm_cvtpd_ps(re), i = _mm_cvtpd_ps(im);
                _mm_storeu_ps(&octant[base + b].re, _mm_unpacklo_ps(r, i));
            }
            for (; b < count; ++b)
                octant[base + b] = {T(c.c * fineC[b] - c.s * fineS[b]), T(c.c * fineS[b] + c.s * fineC[b])};
        }
    }
}

template void ownsBuildOctant<float>(Cplx<float>*, int);
template void ownsBuildOctant<double>(Cplx<double>*, int);

}  // namespace fft

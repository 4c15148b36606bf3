// Init-time construction of the octant table for lengths above 1024.
#include "fft_twiddles.h"

namespace fft {

template <class T>
void ownsBuildOctant(Cplx<T>* octant, int order)
{
    // j = a*F + b: exp(i*2*pi*j/N) = exp(i*2*pi*a*F/N) * exp(i*2*pi*b/N),
    // both factors and the product in the extended format.
    constexpr int kFineOrder = 8;
    constexpr int kFine = 1 << kFineOrder;
    const Qsp64s n = Qsp64s(1) << order;
    const Qsp64s last = n >> 3;
    const double step = 2.0 / static_cast<double>(n);  // exact: a power of two
    mathfn::SinCosExt fine[kFine];
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
}

template void ownsBuildOctant<float>(Cplx<float>*, int);
template void ownsBuildOctant<double>(Cplx<double>*, int);

}  // namespace fft

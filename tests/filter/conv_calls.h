// SPDX-License-Identifier: BSD-3-Clause
// The convolution and correlation families behind one interface per data
// type, for the typed tests, with the error bounds their results are held
// to.
#pragma once
#include "fir_reference.h"

namespace convtest {

using namespace firref;

// One floating type with its Convolve, CrossCorrNorm and AutoCorrNorm.
template <class D_, QspDataType Code, auto Convolve, auto Cross, auto Auto>
struct Calls {
    using D = D_;
    using Part = typename Elem<D>::Part;
    static constexpr QspDataType type = Code;
    static constexpr auto convolve = Convolve;
    static constexpr auto cross = Cross;
    static constexpr auto autoc = Auto;
};

struct C32f : Calls<Qsp32f, qsp32f, qspsConvolve_32f, qspsCrossCorrNorm_32f, qspsAutoCorrNorm_32f> {
    static constexpr const char* name = "32f";
};
struct C64f : Calls<Qsp64f, qsp64f, qspsConvolve_64f, qspsCrossCorrNorm_64f, qspsAutoCorrNorm_64f> {
    static constexpr const char* name = "64f";
};
struct C32fc : Calls<Qsp32fc, qsp32fc, qspsConvolve_32fc, qspsCrossCorrNorm_32fc, qspsAutoCorrNorm_32fc> {
    static constexpr const char* name = "32fc";
};
struct C64fc : Calls<Qsp64fc, qsp64fc, qspsConvolve_64fc, qspsCrossCorrNorm_64fc, qspsAutoCorrNorm_64fc> {
    static constexpr const char* name = "64fc";
};

// Caller memory of a reported size, at an offset from a 64-byte boundary.
struct Buffer {
    std::vector<Qsp8u> mem;
    Qsp8u* p;
    explicit Buffer(int bytes, int offset = 0) : mem(size_t(bytes) + 128, 0)
    {
        p = reinterpret_cast<Qsp8u*>((reinterpret_cast<uintptr_t>(mem.data()) + 63) & ~uintptr_t(63)) + offset;
    }
};

// Direct evaluation: every value a running sum of at most m rounded
// products (complex: four such sums combined).
template <class P>
long double directBound(long long m, long double magnitude)
{
    return 2 * (m + 2) * kU<P> * magnitude;
}

// Transforms: a few units of the precision per level of a transform of
// length at most 2 nextpow2(n1 + n2), times the product of the operands'
// norms, which bounds every value of the sum.
template <class P>
long double fftBound(long long n1, long long n2, long double norms)
{
    return 4 * kU<P> * (log2Ceil(n1 + n2) + 1) * norms;
}

template <class P>
long double bound(QspAlgType alg, long long m, long double magnitude, long long n1, long long n2, long double norms)
{
    const long double d = directBound<P>(m, magnitude);
    return alg == qspAlgDirect ? d : std::max(d, fftBound<P>(n1, n2, norms));
}

}  // namespace convtest

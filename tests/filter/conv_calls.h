// SPDX-License-Identifier: BSD-3-Clause
// The convolution and correlation families behind one interface per data
// type, for the typed tests, with the error bounds their results are held
// to.
#pragma once
#include "fir_reference.h"

namespace convtest {

using namespace firref;

struct C32f {
    using D = Qsp32f;
    using Part = float;
    static constexpr const char* name = "32f";
    static constexpr QspDataType type = qsp32f;
    static constexpr auto convolve = qspsConvolve_32f;
    static constexpr auto cross = qspsCrossCorrNorm_32f;
    static constexpr auto autoc = qspsAutoCorrNorm_32f;
};
struct C64f {
    using D = Qsp64f;
    using Part = double;
    static constexpr const char* name = "64f";
    static constexpr QspDataType type = qsp64f;
    static constexpr auto convolve = qspsConvolve_64f;
    static constexpr auto cross = qspsCrossCorrNorm_64f;
    static constexpr auto autoc = qspsAutoCorrNorm_64f;
};
struct C32fc {
    using D = Qsp32fc;
    using Part = float;
    static constexpr const char* name = "32fc";
    static constexpr QspDataType type = qsp32fc;
    static constexpr auto convolve = qspsConvolve_32fc;
    static constexpr auto cross = qspsCrossCorrNorm_32fc;
    static constexpr auto autoc = qspsAutoCorrNorm_32fc;
};
struct C64fc {
    using D = Qsp64fc;
    using Part = double;
    static constexpr const char* name = "64fc";
    static constexpr QspDataType type = qsp64fc;
    static constexpr auto convolve = qspsConvolve_64fc;
    static constexpr auto cross = qspsCrossCorrNorm_64fc;
    static constexpr auto autoc = qspsAutoCorrNorm_64fc;
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

// SPDX-License-Identifier: BSD-3-Clause
// VectorSlope: the ramp pDst[n] = offset + slope n, formed in double as
// offset + slope * n (n exact, one rounding each for the product and the
// sum) and stored as the element type: 32f rounded to nearest, integers
// rounded to nearest with ties to even and saturated (NaN gives 0). Any
// offset and slope are accepted.
#include "checks.h"
#include "qsp_validators.h"
#include "sample_store.h"

namespace y8 {
namespace {

template <class T>
QspStatus slope(T* pDst, int len, double offset, double slope)
{
    if (QspStatus s = check::vectors(len, pDst)) return s;
    using VD = simd::Vec<double>;
    const VD::Reg a = VD::splat(offset), b = VD::splat(slope), two = VD::splat(2.0);
    alignas(16) double v[samples::kBlock];
    for (int m = 0; m < len; m += samples::kBlock) {
        const int n = len - m < samples::kBlock ? len - m : samples::kBlock;
        VD::Reg k = VD::pair(double(m), double(m) + 1.0);
        for (int j = 0; j < n; j += 2, k = VD::add(k, two)) VD::store(v + j, VD::add(a, VD::mul(b, k)));
        samples::store(v, pDst + m, n);
    }
    return qspStsOk;
}

}  // namespace

QspStatus qspsVectorSlope_8u(Qsp8u* pDst, int len, Qsp64f offset, Qsp64f s) { return slope(pDst, len, offset, s); }
QspStatus qspsVectorSlope_8s(Qsp8s* pDst, int len, Qsp64f offset, Qsp64f s) { return slope(pDst, len, offset, s); }
QspStatus qspsVectorSlope_16u(Qsp16u* pDst, int len, Qsp64f offset, Qsp64f s) { return slope(pDst, len, offset, s); }
QspStatus qspsVectorSlope_16s(Qsp16s* pDst, int len, Qsp64f offset, Qsp64f s) { return slope(pDst, len, offset, s); }
QspStatus qspsVectorSlope_32u(Qsp32u* pDst, int len, Qsp64f offset, Qsp64f s) { return slope(pDst, len, offset, s); }
QspStatus qspsVectorSlope_32s(Qsp32s* pDst, int len, Qsp64f offset, Qsp64f s) { return slope(pDst, len, offset, s); }
QspStatus qspsVectorSlope_64s(Qsp64s* pDst, int len, Qsp64f offset, Qsp64f s) { return slope(pDst, len, offset, s); }
QspStatus qspsVectorSlope_32f(Qsp32f* pDst, int len, Qsp64f offset, Qsp64f s) { return slope(pDst, len, offset, s); }
QspStatus qspsVectorSlope_64f(Qsp64f* pDst, int len, Qsp64f offset, Qsp64f s) { return slope(pDst, len, offset, s); }

}  // namespace y8

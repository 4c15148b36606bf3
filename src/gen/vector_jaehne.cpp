// SPDX-License-Identifier: BSD-3-Clause
// VectorJaehne: the chirp test pattern pDst[n] = magn sin(pi n^2 / (2 len)),
// whose frequency rises linearly from 0 at n = 0 to half the sampling rate
// at n = len. Rounded to nearest with ties to even and saturated to the
// element type (the unsigned types keep the positive half-waves). magn
// must be positive (qspStsBadArgument, after the pointer and the length).
//
// The argument is reduced exactly in integers: sin(pi n^2 / 2len) depends
// on n^2 mod 4len only; sin(pi - x) = sin x folds it to q / 2len with q <=
// len, and the sign is that of the half-turn. The sine of pi q / 2len is
// within an ULP (sinPi); the one exact half-integer case, sin(pi/6) = 1/2
// (q = len/3: by Niven's theorem the only rational values of sin(pi x)
// for rational x are 0, +-1/2 and +-1), is set exactly, so that ties
// round as they should.
#include "checks.h"
#include "mathfn/sincospi.h"
#include "qsp_validators.h"
#include "sample_store.h"

namespace y8 {
namespace {

template <class T, class M>
QspStatus jaehne(T* pDst, int len, M magn)
{
    if (QspStatus s = check::vectors(len, pDst)) return s;
    if (magn <= 0) return qspStsBadArgument;
    const Qsp64u period = 4 * Qsp64u(len), half = 2 * Qsp64u(len);
    const double scale = double(magn), toTurns = 1.0 / double(half);
    alignas(16) double v[samples::kBlock];
    Qsp64u sq = 0;  // n^2 mod 4len, advanced by 2n + 1 per element
    for (int m = 0; m < len; m += samples::kBlock) {
        const int n = len - m < samples::kBlock ? len - m : samples::kBlock;
        for (int j = 0; j < n; ++j) {
            const Qsp64u k = Qsp64u(m + j);
            Qsp64u q = sq < half ? sq : sq - half;
            if (q > Qsp64u(len)) q = half - q;
            double s = 3 * q == Qsp64u(len) ? 0.5 : mathfn::sinPi(double(q) * toTurns);
            v[j] = scale * (sq < half ? s : -s);
            sq += 2 * k + 1;
            while (sq >= period) sq -= period;
        }
        samples::store(v, pDst + m, n);
    }
    return qspStsOk;
}

}  // namespace

QspStatus qspsVectorJaehne_8u(Qsp8u* pDst, int len, Qsp8u magn) { return jaehne(pDst, len, magn); }
QspStatus qspsVectorJaehne_8s(Qsp8s* pDst, int len, Qsp8s magn) { return jaehne(pDst, len, magn); }
QspStatus qspsVectorJaehne_16u(Qsp16u* pDst, int len, int magn) { return jaehne(pDst, len, magn); }
QspStatus qspsVectorJaehne_16s(Qsp16s* pDst, int len, int magn) { return jaehne(pDst, len, magn); }
QspStatus qspsVectorJaehne_32s(Qsp32s* pDst, int len, Qsp32s magn) { return jaehne(pDst, len, magn); }

}  // namespace y8

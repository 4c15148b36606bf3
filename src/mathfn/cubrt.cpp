// SPDX-License-Identifier: BSD-3-Clause
// Cubrt: cube roots element by element. Single precision is correctly
// rounded (cbrt.h); the integer forms give the exact root times
// 2^-scaleFactor rounded to nearest with ties to even, found by comparing
// integer cubes, and saturated. The scale factor selects the kernel as the
// scaling rule does: from Z up every result rounds to 0 (the zero fill),
// from -B down every non-zero result saturates (the bound kernel).
#include <limits>
#include <type_traits>

#include "checks.h"
#include "mathfn/cbrt.h"
#include "qsp_validators.h"
#include "arith/rounding.h"
#include "arith/scaling.h"

namespace y8 {
namespace {

using u128 = unsigned __int128;

QspStatus cbrt32f(const Qsp32f* pSrc, Qsp32f* pDst, int len)
{
    if (QspStatus s = check::vectors(len, pSrc, pDst)) return s;
    mathfn::qspsCbrt_32f_A24(pSrc, pDst, len);
    return qspStsOk;
}

// round(cbrt(a) 2^-s) for 0 <= a < 2^32 and -16 < s < 12, ties to even,
// or `cap` + 1 when it exceeds cap (a root below 2^11 times 2^15).
Qsp64u scaledCbrt(Qsp64u a, int s, Qsp64u cap)
{
    if (a == 0) return 0;
    // Compare k 2^s with cbrt(a): k^3 2^(3s) against a, both scaled to
    // integers (A = a 2^(-3s) for s < 0, unit = 2^(3s) for s > 0).
    const u128 big = s < 0 ? u128(a) << (-3 * s) : u128(a);
    const u128 unit = s > 0 ? u128(1) << (3 * s) : u128(1);
    auto cube = [&](u128 k) { return k * k * k * unit; };
    const double estimate = mathfn::qspsCbrtOne(double(a)) * rounding::pow2(-s);
    if (estimate > double(cap) + 2) return cap + 1;
    u128 k = u128(estimate);
    while (k > 0 && cube(k) > big) --k;
    while (cube(k + 1) <= big) ++k;
    // Against k + 1/2: (2k + 1)^3 unit against 8 big.
    const u128 half = cube(2 * k + 1), eight = 8 * big;
    if (eight > half || (eight == half && (k & 1))) ++k;
    return k > cap ? cap + 1 : Qsp64u(k);
}

template <class S>
QspStatus cbrtScaled(const S* pSrc, Qsp16s* pDst, int len, int scaleFactor)
{
    if (QspStatus s = check::vectors(len, pSrc, pDst)) return s;
    // The exact roots lie within [-32, 32] (16s) or [-1291, 1291] (32s).
    constexpr Qsp64s kRoot = std::is_same_v<S, Qsp16s> ? 32 : 1291;
    constexpr scaling::Limits kLimits = scaling::limitsFor<Qsp16s>(-kRoot, kRoot);
    return scaling::select(
        scaleFactor, kLimits,
        [&](auto mode) {
            if constexpr (std::is_same_v<decltype(mode), scaling::Bound>) {
                for (int i = 0; i < len; ++i) pDst[i] = mode.template apply<Qsp16s>(Qsp64s(pSrc[i]));
            } else {
                constexpr Qsp64u kMax = 32767, kMin = 32768;  // magnitudes of the bounds
                for (int i = 0; i < len; ++i) {
                    const Qsp64s x = pSrc[i];
                    const Qsp64u r = scaledCbrt(x < 0 ? Qsp64u(-x) : Qsp64u(x), scaleFactor, x < 0 ? kMin : kMax);
                    pDst[i] = x < 0 ? Qsp16s(r > kMin ? -Qsp64s(kMin) : -Qsp64s(r)) : Qsp16s(r > kMax ? kMax : r);
                }
            }
            return qspStsOk;
        },
        [&] { return qspsZero_16s(pDst, len); });
}

}  // namespace

QspStatus qspsCubrt_32f(const Qsp32f* pSrc, Qsp32f* pDst, int len) { return cbrt32f(pSrc, pDst, len); }
QspStatus qspsCubrt_16s_Sfs(const Qsp16s* pSrc, Qsp16s* pDst, int len, int scaleFactor)
{
    return cbrtScaled(pSrc, pDst, len, scaleFactor);
}
QspStatus qspsCubrt_32s16s_Sfs(const Qsp32s* pSrc, Qsp16s* pDst, int len, int scaleFactor)
{
    return cbrtScaled(pSrc, pDst, len, scaleFactor);
}

}  // namespace y8

// SPDX-License-Identifier: BSD-3-Clause
// Convert: element type conversions. Widening ones are exact; integer to
// floating ones round as the floating type does (to nearest even);
// narrowing integer ones saturate; scaled ones (Sfs) apply the scale-factor
// rule, floating sources in the rounding mode given (checked after the
// pointers and the length: anything but 0, 1, 2 is qspStsBadRoundMode).
// 24-bit elements are three bytes, least significant first.
#include "forms.h"
#include "half.h"
#include "rounding.h"

namespace y8 {
namespace {

// ---------------------------------------------------------------------------
// Element conversions without scaling.

template <class S, class D, class F>
QspStatus each(const S* pSrc, D* pDst, int len, F f)
{
    if (QspStatus s = check::vectors(len, pSrc, pDst)) return s;
    for (int i = 0; i < len; ++i) pDst[i] = f(pSrc[i]);
    return qspStsOk;
}

template <class S, class D>
QspStatus plain(const S* pSrc, D* pDst, int len)
{
    return each(pSrc, pDst, len, [](S x) { return D(x); });
}

// 24-bit elements.
inline Qsp32u load24u(const Qsp8u* p) { return Qsp32u(p[0]) | Qsp32u(p[1]) << 8 | Qsp32u(p[2]) << 16; }
inline Qsp32s load24s(const Qsp8u* p) { return Qsp32s(load24u(p) << 8) >> 8; }
inline void store24(Qsp8u* p, Qsp32u v)
{
    p[0] = Qsp8u(v);
    p[1] = Qsp8u(v >> 8);
    p[2] = Qsp8u(v >> 16);
}

template <class D, class F>
QspStatus from24(const Qsp8u* pSrc, D* pDst, int len, F f)
{
    if (QspStatus s = check::vectors(len, pSrc, pDst)) return s;
    for (int i = 0; i < len; ++i) pDst[i] = f(pSrc + 3 * i);
    return qspStsOk;
}

// ---------------------------------------------------------------------------
// Floating to integer: x * 2^-scaleFactor rounded in the mode and saturated.
// The kernel is chosen once by the mode.

template <class Kernel>
QspStatus byMode(QspRoundMode rndMode, Kernel kernel)
{
    switch (rndMode) {
    case rounding::kZero: kernel(std::integral_constant<int, rounding::kZero>{}); return qspStsOk;
    case rounding::kNear: kernel(std::integral_constant<int, rounding::kNear>{}); return qspStsOk;
    case rounding::kAway: kernel(std::integral_constant<int, rounding::kAway>{}); return qspStsOk;
    default: return qspStsBadRoundMode;
    }
}

// Saturation bounds of a destination (24-bit ones included).
template <class D, int Bits = 8 * int(sizeof(D))>
struct Bounds {
    static constexpr bool full = Bits == 8 * int(sizeof(D));
    static constexpr Qsp64s lo = full ? Qsp64s(std::numeric_limits<D>::min())
                                      : std::is_signed_v<D> ? -(Qsp64s(1) << (Bits - 1)) : 0;
    static constexpr Qsp64s hi = full ? Qsp64s(std::numeric_limits<D>::max())
                                      : std::is_signed_v<D> ? (Qsp64s(1) << (Bits - 1)) - 1 : (Qsp64s(1) << Bits) - 1;
};

// Single precision to 16-bit integers, eight per iteration. While 2^-scaleFactor
// is a normal float the product is formed in single precision: it is exact
// unless it overflows (and saturates) or falls below 2^-126 (and rounds
// to 0), so the result is the one double precision gives, four lanes at a
// time instead of two. Beyond that the product is formed in double.
template <int M, bool Single, class D>
void ownsConvert_32f16(const Qsp32f* pSrc, D* pDst, Qsp64s len, double k)
{
    using VD = simd::Vec<double>;
    using VF = simd::Vec<float>;
    const VD::Reg kk = VD::splat(k), lo = VD::splat(double(Bounds<D>::lo)), hi = VD::splat(double(Bounds<D>::hi));
    const VF::Reg kf = VF::splat(float(k)), lof = VF::splat(float(Bounds<D>::lo)), hif = VF::splat(float(Bounds<D>::hi));
    auto four = [&](VF::Reg x) {
        if constexpr (Single) return rounding::toInt32<M, VF>(VF::mul(x, kf), lof, hif);
        const __m128i a = rounding::toInt32<M>(VD::mul(VD::widenLow(x), kk), lo, hi);
        const __m128i b = rounding::toInt32<M>(VD::mul(VD::widenHigh(x), kk), lo, hi);
        return _mm_unpacklo_epi64(a, b);
    };
    Qsp64s i = 0;
    for (; i + 8 <= len; i += 8) {
        const __m128i a = four(VF::loadu(pSrc + i)), b = four(VF::loadu(pSrc + i + 4));
        if constexpr (std::is_signed_v<D>) simd::Vec<Qsp16s>::storeu(pDst + i, _mm_packs_epi32(a, b));
        else simd::Vec<Qsp16u>::storeu(pDst + i, _mm_packus_epi32(a, b));
    }
    for (; i < len; ++i) pDst[i] = rounding::toInt<M, D>(double(pSrc[i]) * k);
}

// A floating value (as double) rounded and saturated to [lo, hi]; NaN
// gives 0.
template <int M, class D, int Bits>
Qsp64s toBounded(double x)
{
    const double r = rounding::round<M>(x);
    if (r != r) return 0;
    if (r >= double(Bounds<D, Bits>::hi)) return Bounds<D, Bits>::hi;
    if (r <= double(Bounds<D, Bits>::lo)) return Bounds<D, Bits>::lo;
    return Qsp64s(r);
}

template <class S, class D, int Bits = 8 * int(sizeof(D))>
QspStatus floatToInt(const S* pSrc, D* pDst, int len, QspRoundMode rndMode, int scaleFactor)
{
    if (QspStatus s = check::vectors(len, pSrc, pDst)) return s;
    return byMode(rndMode, [&](auto m) {
        constexpr int M = decltype(m)::value;
        if constexpr (std::is_same_v<S, Qsp32f> && sizeof(D) == 2) {
            const double k = rounding::scaleOf(scaleFactor);
            if (k >= 0x1p-126 && k <= 0x1p127) ownsConvert_32f16<M, true>(pSrc, pDst, len, k);
            else ownsConvert_32f16<M, false>(pSrc, pDst, len, k);
        } else {
            const auto k = rounding::PowerOfTwo::scaleFactor(scaleFactor);
            for (int i = 0; i < len; ++i) pDst[i] = D(toBounded<M, D, Bits>(k(double(pSrc[i]))));
        }
    });
}

// To 24-bit elements: the bounds of 24 bits, three bytes written.
template <class Signed>
QspStatus floatTo24(const Qsp32f* pSrc, Qsp8u* pDst, int len, QspRoundMode rndMode, int scaleFactor)
{
    if (QspStatus s = check::vectors(len, pSrc, pDst)) return s;
    return byMode(rndMode, [&](auto m) {
        constexpr int M = decltype(m)::value;
        const double k = rounding::scaleOf(scaleFactor);
        for (int i = 0; i < len; ++i)
            store24(pDst + 3 * i, Qsp32u(toBounded<M, Signed, 24>(double(pSrc[i]) * k)));
    });
}

// ---------------------------------------------------------------------------
// Integer to integer under the scale-factor rule (to nearest even).

template <class W, class S, class D, int Bits, class Store>
QspStatus intScaled(const S* pSrc, D* pDst, int len, int scaleFactor, Store store)
{
    if (QspStatus s = check::vectors(len, pSrc, pDst)) return s;
    using L = std::numeric_limits<S>;
    constexpr scaling::Limits lim{scaling::zerosFrom(L::is_signed ? Qsp64u(1) << (8 * sizeof(S) - 1) : Qsp64u(L::max())),
                                  Bits};
    return scaling::select(
        scaleFactor, lim,
        [&](auto mode) {
            for (int i = 0; i < len; ++i) store(pDst, i, mode.template apply<Qsp64s>(W(pSrc[i])));
            return qspStsOk;
        },
        [&] {
            for (int i = 0; i < len; ++i) store(pDst, i, 0);
            return qspStsOk;
        });
}

// ---------------------------------------------------------------------------
// Integer to floating, scaled: x * 2^-scaleFactor, formed exactly in double
// and rounded once to the destination.

template <class S, class D>
QspStatus intToFloatScaled(const S* pSrc, D* pDst, int len, int scaleFactor)
{
    const auto k = rounding::PowerOfTwo::scaleFactor(scaleFactor);
    return each(pSrc, pDst, len, [=](S x) { return D(k(double(x))); });
}

template <int Bits>
Qsp64s clampBits(Qsp64s v, bool isSigned)
{
    const Qsp64s hi = isSigned ? (Qsp64s(1) << (Bits - 1)) - 1 : (Qsp64s(1) << Bits) - 1;
    const Qsp64s lo = isSigned ? -(Qsp64s(1) << (Bits - 1)) : 0;
    return v > hi ? hi : v < lo ? lo : v;
}

}  // namespace

QspStatus qspsConvert_8s16s(const Qsp8s* pSrc, Qsp16s* pDst, int len) { return plain(pSrc, pDst, len); }
QspStatus qspsConvert_8s32f(const Qsp8s* pSrc, Qsp32f* pDst, int len) { return plain(pSrc, pDst, len); }
QspStatus qspsConvert_8u32f(const Qsp8u* pSrc, Qsp32f* pDst, int len) { return plain(pSrc, pDst, len); }
QspStatus qspsConvert_16s32s(const Qsp16s* pSrc, Qsp32s* pDst, int len) { return plain(pSrc, pDst, len); }
QspStatus qspsConvert_16s32f(const Qsp16s* pSrc, Qsp32f* pDst, int len) { return plain(pSrc, pDst, len); }
QspStatus qspsConvert_16s64f(const Qsp16s* pSrc, Qsp64f* pDst, int len) { return plain(pSrc, pDst, len); }
QspStatus qspsConvert_16u32f(const Qsp16u* pSrc, Qsp32f* pDst, int len) { return plain(pSrc, pDst, len); }
QspStatus qspsConvert_32s16s(const Qsp32s* pSrc, Qsp16s* pDst, int len)
{
    return each(pSrc, pDst, len, [](Qsp32s x) { return scaling::saturate<Qsp16s>(x); });
}
QspStatus qspsConvert_32s32f(const Qsp32s* pSrc, Qsp32f* pDst, int len) { return plain(pSrc, pDst, len); }
QspStatus qspsConvert_32s64f(const Qsp32s* pSrc, Qsp64f* pDst, int len) { return plain(pSrc, pDst, len); }
QspStatus qspsConvert_32f64f(const Qsp32f* pSrc, Qsp64f* pDst, int len) { return plain(pSrc, pDst, len); }
QspStatus qspsConvert_64f32f(const Qsp64f* pSrc, Qsp32f* pDst, int len) { return plain(pSrc, pDst, len); }
QspStatus qspsConvert_64s64f(const Qsp64s* pSrc, Qsp64f* pDst, int len) { return plain(pSrc, pDst, len); }
QspStatus qspsConvert_8u16u(const Qsp8u* pSrc, Qsp16u* pDst, int len) { return plain(pSrc, pDst, len); }
QspStatus qspsConvert_8u16s(const Qsp8u* pSrc, Qsp16s* pDst, int len) { return plain(pSrc, pDst, len); }
QspStatus qspsConvert_16u32u(const Qsp16u* pSrc, Qsp32u* pDst, int len) { return plain(pSrc, pDst, len); }
QspStatus qspsConvert_16u32s(const Qsp16u* pSrc, Qsp32s* pDst, int len) { return plain(pSrc, pDst, len); }
QspStatus qspsConvert_32s64s(const Qsp32s* pSrc, Qsp64s* pDst, int len) { return plain(pSrc, pDst, len); }
QspStatus qspsConvert_32u64u(const Qsp32u* pSrc, Qsp64u* pDst, int len) { return plain(pSrc, pDst, len); }
QspStatus qspsConvert_32u32f(const Qsp32u* pSrc, Qsp32f* pDst, int len) { return plain(pSrc, pDst, len); }
QspStatus qspsConvert_32u64f(const Qsp32u* pSrc, Qsp64f* pDst, int len) { return plain(pSrc, pDst, len); }
QspStatus qspsConvert_64u64f(const Qsp64u* pSrc, Qsp64f* pDst, int len) { return plain(pSrc, pDst, len); }
QspStatus qspsConvert_64s32f(const Qsp64s* pSrc, Qsp32f* pDst, int len) { return plain(pSrc, pDst, len); }
QspStatus qspsConvert_16u64f(const Qsp16u* pSrc, Qsp64f* pDst, int len) { return plain(pSrc, pDst, len); }
QspStatus qspsConvert_16s8u(const Qsp16s* pSrc, Qsp8u* pDst, int len)
{
    return each(pSrc, pDst, len, [](Qsp16s x) { return scaling::saturate<Qsp8u>(x); });
}

// Complex elements convert part by part.
template <class S, class D>
QspStatus complexParts(const S* pSrc, D* pDst, int len)
{
    using P = ops::Part<D>;
    return each(pSrc, pDst, len, [](S x) { return D{P(x.re), P(x.im)}; });
}
QspStatus qspsConvert_16sc32sc(const Qsp16sc* pSrc, Qsp32sc* pDst, int len) { return complexParts(pSrc, pDst, len); }
QspStatus qspsConvert_16sc32fc(const Qsp16sc* pSrc, Qsp32fc* pDst, int len) { return complexParts(pSrc, pDst, len); }
QspStatus qspsConvert_32sc64fc(const Qsp32sc* pSrc, Qsp64fc* pDst, int len) { return complexParts(pSrc, pDst, len); }
QspStatus qspsConvert_32fc64fc(const Qsp32fc* pSrc, Qsp64fc* pDst, int len) { return complexParts(pSrc, pDst, len); }
QspStatus qspsConvert_64fc32fc(const Qsp64fc* pSrc, Qsp32fc* pDst, int len) { return complexParts(pSrc, pDst, len); }

QspStatus qspsConvert_16f32f(const Qsp16f* pSrc, Qsp32f* pDst, int len) { return each(pSrc, pDst, len, half::toFloat); }

QspStatus qspsConvert_24u32u(const Qsp8u* pSrc, Qsp32u* pDst, int len) { return from24(pSrc, pDst, len, load24u); }
QspStatus qspsConvert_24s32s(const Qsp8u* pSrc, Qsp32s* pDst, int len) { return from24(pSrc, pDst, len, load24s); }
QspStatus qspsConvert_24u32f(const Qsp8u* pSrc, Qsp32f* pDst, int len)
{
    return from24(pSrc, pDst, len, [](const Qsp8u* p) { return Qsp32f(load24u(p)); });
}
QspStatus qspsConvert_24s32f(const Qsp8u* pSrc, Qsp32f* pDst, int len)
{
    return from24(pSrc, pDst, len, [](const Qsp8u* p) { return Qsp32f(load24s(p)); });
}

QspStatus qspsConvert_16s16f(const Qsp16s* pSrc, Qsp16f* pDst, int len, QspRoundMode rndMode)
{
    if (QspStatus s = check::vectors(len, pSrc, pDst)) return s;
    return byMode(rndMode, [&](auto m) {
        for (int i = 0; i < len; ++i) pDst[i] = half::fromFloat<decltype(m)::value>(Qsp32f(pSrc[i]));
    });
}
QspStatus qspsConvert_32f16f(const Qsp32f* pSrc, Qsp16f* pDst, int len, QspRoundMode rndMode)
{
    if (QspStatus s = check::vectors(len, pSrc, pDst)) return s;
    return byMode(rndMode, [&](auto m) {
        for (int i = 0; i < len; ++i) pDst[i] = half::fromFloat<decltype(m)::value>(pSrc[i]);
    });
}
QspStatus qspsConvert_16f16s_Sfs(const Qsp16f* pSrc, Qsp16s* pDst, int len, QspRoundMode rndMode, int scaleFactor)
{
    if (QspStatus s = check::vectors(len, pSrc, pDst)) return s;
    return byMode(rndMode, [&](auto m) {
        constexpr int M = decltype(m)::value;
        const double k = rounding::scaleOf(scaleFactor);
        for (int i = 0; i < len; ++i) pDst[i] = Qsp16s(toBounded<M, Qsp16s, 16>(double(half::toFloat(pSrc[i])) * k));
    });
}

QspStatus qspsConvert_32f8s_Sfs(const Qsp32f* pSrc, Qsp8s* pDst, int len, QspRoundMode rndMode, int scaleFactor)
{
    return floatToInt(pSrc, pDst, len, rndMode, scaleFactor);
}
QspStatus qspsConvert_32f8u_Sfs(const Qsp32f* pSrc, Qsp8u* pDst, int len, QspRoundMode rndMode, int scaleFactor)
{
    return floatToInt(pSrc, pDst, len, rndMode, scaleFactor);
}
QspStatus qspsConvert_32f16s_Sfs(const Qsp32f* pSrc, Qsp16s* pDst, int len, QspRoundMode rndMode, int scaleFactor)
{
    return floatToInt(pSrc, pDst, len, rndMode, scaleFactor);
}
QspStatus qspsConvert_32f16u_Sfs(const Qsp32f* pSrc, Qsp16u* pDst, int len, QspRoundMode rndMode, int scaleFactor)
{
    return floatToInt(pSrc, pDst, len, rndMode, scaleFactor);
}
QspStatus qspsConvert_32f24s_Sfs(const Qsp32f* pSrc, Qsp8u* pDst, int len, QspRoundMode rndMode, int scaleFactor)
{
    return floatTo24<Qsp32s>(pSrc, pDst, len, rndMode, scaleFactor);
}
QspStatus qspsConvert_32f24u_Sfs(const Qsp32f* pSrc, Qsp8u* pDst, int len, QspRoundMode rndMode, int scaleFactor)
{
    return floatTo24<Qsp32u>(pSrc, pDst, len, rndMode, scaleFactor);
}
QspStatus qspsConvert_32f32s_Sfs(const Qsp32f* pSrc, Qsp32s* pDst, int len, QspRoundMode rndMode, int scaleFactor)
{
    return floatToInt(pSrc, pDst, len, rndMode, scaleFactor);
}
QspStatus qspsConvert_64f16s_Sfs(const Qsp64f* pSrc, Qsp16s* pDst, int len, QspRoundMode rndMode, int scaleFactor)
{
    return floatToInt(pSrc, pDst, len, rndMode, scaleFactor);
}
QspStatus qspsConvert_64f32s_Sfs(const Qsp64f* pSrc, Qsp32s* pDst, int len, QspRoundMode rndMode, int scaleFactor)
{
    return floatToInt(pSrc, pDst, len, rndMode, scaleFactor);
}
QspStatus qspsConvert_64f64s_Sfs(const Qsp64f* pSrc, Qsp64s* pDst, int len, QspRoundMode rndMode, int scaleFactor)
{
    return floatToInt(pSrc, pDst, len, rndMode, scaleFactor);
}

QspStatus qspsConvert_32s16s_Sfs(const Qsp32s* pSrc, Qsp16s* pDst, int len, int scaleFactor)
{
    return intScaled<Qsp64s, Qsp32s, Qsp16s, 16>(pSrc, pDst, len, scaleFactor, [](Qsp16s* d, int i, Qsp64s v) {
        d[i] = scaling::saturate<Qsp16s>(v);
    });
}
QspStatus qspsConvert_64s32s_Sfs(const Qsp64s* pSrc, Qsp32s* pDst, int len, int scaleFactor)
{
    return intScaled<__int128, Qsp64s, Qsp32s, 31>(pSrc, pDst, len, scaleFactor, [](Qsp32s* d, int i, Qsp64s v) {
        d[i] = scaling::saturate<Qsp32s>(v);
    });
}
QspStatus qspsConvert_32u24u_Sfs(const Qsp32u* pSrc, Qsp8u* pDst, int len, int scaleFactor)
{
    return intScaled<Qsp64s, Qsp32u, Qsp8u, 24>(pSrc, pDst, len, scaleFactor, [](Qsp8u* d, int i, Qsp64s v) {
        store24(d + 3 * i, Qsp32u(clampBits<24>(v, false)));
    });
}
QspStatus qspsConvert_32s24s_Sfs(const Qsp32s* pSrc, Qsp8u* pDst, int len, int scaleFactor)
{
    return intScaled<Qsp64s, Qsp32s, Qsp8u, 24>(pSrc, pDst, len, scaleFactor, [](Qsp8u* d, int i, Qsp64s v) {
        store24(d + 3 * i, Qsp32u(clampBits<24>(v, true)));
    });
}

QspStatus qspsConvert_16s32f_Sfs(const Qsp16s* pSrc, Qsp32f* pDst, int len, int scaleFactor)
{
    return intToFloatScaled(pSrc, pDst, len, scaleFactor);
}
QspStatus qspsConvert_32s32f_Sfs(const Qsp32s* pSrc, Qsp32f* pDst, int len, int scaleFactor)
{
    return intToFloatScaled(pSrc, pDst, len, scaleFactor);
}
QspStatus qspsConvert_32s64f_Sfs(const Qsp32s* pSrc, Qsp64f* pDst, int len, int scaleFactor)
{
    return intToFloatScaled(pSrc, pDst, len, scaleFactor);
}

}  // namespace y8

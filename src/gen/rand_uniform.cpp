// SPDX-License-Identifier: BSD-3-Clause
// RandUniform: uniformly distributed values from the core stream
// (random_engine.h), one state record per element type.
//
// Mappings from the core stream (V: 32-bit halves, W: 64-bit words):
//   8u, 16s  each integer of [low, high] equally likely: with r = high -
//            low + 1, a half V gives low + floor(V r / 2^32) unless the low
//            32 bits of V r are below 2^32 mod r, in which case V is
//            dropped and the next half is used (Lemire's method; the
//            dropping makes every integer exactly equally likely, and
//            happens with probability below r / 2^32).
//   32f      u = (V >> 8) 2^-24 in [0, 1), value = low + (high - low) u in
//            single precision, at most the float below high.
//   64f      u = (W >> 12) 2^-52, value = low + (high - low) u in double,
//            at most the double below high.
// When high - low overflows its type, both bounds are halved and the value
// doubled (exact, the bounds being that large). Complex forms are the real
// stream over twice the length: real part, then imaginary part.
#include <type_traits>

#include "checks.h"
#include "qsp_validators.h"
#include "random_state.h"

namespace y8 {
namespace {

// ---------------------------------------------------------------------------
// Floating: a scaled affine map of u, clamped below high.

template <class F>
struct FloatParams {
    F low, width, scale, top;  // value = min(scale (low + width u), top)
};

template <class F>
bool finite(F x)
{
    return x - x == x - x;  // false for infinities and NaN
}

template <class F>
QspStatus floatParams(F low, F high, FloatParams<F>& p)
{
    if (!finite(low) || !finite(high) || !(low <= high)) return qspStsBadRange;
    p.scale = 1;
    p.low = low;
    p.width = high - low;
    if (!finite(p.width)) {
        p.scale = 2;
        p.low = low / 2;
        p.width = high / 2 - low / 2;
    }
    // The largest value below high (high itself when the range is empty).
    if (low < high) {
        using I = std::conditional_t<sizeof(F) == 4, Qsp32s, Qsp64s>;
        I bits = __builtin_bit_cast(I, high);
        if (high > 0) --bits;
        else if (high < 0) ++bits;
        else bits = __builtin_bit_cast(I, -F(0)) + 1;  // below +-0: the negative denormal
        p.top = __builtin_bit_cast(F, bits);
    } else {
        p.top = high;
    }
    return qspStsOk;
}

void map32f(const Qsp32u* v, Qsp32f* d, int n, const FloatParams<Qsp32f>& p)
{
    using VF = simd::Vec<float>;
    using VI = simd::Vec<Qsp32s>;
    const VF::Reg step = VF::splat(0x1p-24f), low = VF::splat(p.low), width = VF::splat(p.width);
    const VF::Reg scale = VF::splat(p.scale), top = VF::splat(p.top);
    int i = 0;
    for (; i + 4 <= n; i += 4) {
        const VI::Reg bits = _mm_srli_epi32(VI::loadu(v + i), 8);
        const VF::Reg u = VF::mul(_mm_cvtepi32_ps(bits), step);
        VF::storeu(d + i, VF::min(VF::mul(scale, VF::add(low, VF::mul(width, u))), top));
    }
    for (; i < n; ++i) {
        const float u = float(Qsp32s(v[i] >> 8)) * 0x1p-24f;
        const float r = p.scale * (p.low + p.width * u);
        d[i] = r < p.top ? r : p.top;
    }
}

void map64f(const Qsp64u* w, Qsp64f* d, int n, const FloatParams<Qsp64f>& p)
{
    using VD = simd::Vec<double>;
    using VU = simd::Vec<Qsp64u>;
    const VU::Reg one = VU::splat(0x3FF0000000000000ull);
    const VD::Reg low = VD::splat(p.low), width = VD::splat(p.width), scale = VD::splat(p.scale);
    const VD::Reg top = VD::splat(p.top), unit = VD::splat(1.0);
    int i = 0;
    for (; i + 2 <= n; i += 2) {
        // (W >> 12) as the mantissa of a number in [1, 2), minus 1.
        const VD::Reg u = VD::sub(_mm_castsi128_pd(VU::bitOr(VU::shiftRight<12>(VU::loadu(w + i)), one)), unit);
        VD::storeu(d + i, VD::min(VD::mul(scale, VD::add(low, VD::mul(width, u))), top));
    }
    for (; i < n; ++i) {
        const double u = __builtin_bit_cast(double, (w[i] >> 12) | 0x3FF0000000000000ull) - 1.0;
        const double r = p.scale * (p.low + p.width * u);
        d[i] = r < p.top ? r : p.top;
    }
}

// ---------------------------------------------------------------------------
// Integers: Lemire's multiply-and-shift with rejection.

struct IntParams {
    Qsp32s low;
    Qsp32u range;   // high - low + 1, 1..65536
    Qsp32u reject;  // 2^32 mod range: low product halves below it are dropped
};

IntParams intParams(Qsp32s low, Qsp32s high)
{
    const Qsp32u range = Qsp32u(high - low) + 1;
    return {low, range, Qsp32u((Qsp64u(1) << 32) % range)};
}

// Four results, one per half of x: the products' high halves (plus low)
// and whether any low half falls below the rejection bound.
struct Four {
    __m128i values;
    bool anyDropped;
};
inline Four lemire4(__m128i x, __m128i range, __m128i rejectMinus1, __m128i low, bool mayDrop)
{
    const __m128i even = _mm_mul_epu32(x, range), odd = _mm_mul_epu32(_mm_srli_epi64(x, 32), range);
    // The products of halves 0 and 2 (even) and of halves 1 and 3 (odd)
    // fill 64-bit lanes; their high halves go to 32-bit lanes 0..3 in
    // order, and so do their low halves.
    const __m128i hi = _mm_blend_epi16(_mm_srli_epi64(even, 32), odd, 0xCC);
    bool dropped = false;
    if (mayDrop) {
        const __m128i lo = _mm_blend_epi16(even, _mm_slli_epi64(odd, 32), 0xCC);
        // lo < reject, unsigned: lo equals min(lo, reject - 1).
        dropped = _mm_movemask_epi8(_mm_cmpeq_epi32(_mm_min_epu32(lo, rejectMinus1), lo)) != 0;
    }
    return {_mm_add_epi32(hi, low), dropped};
}

template <class D>
void store4(D* d, __m128i v)
{
    if constexpr (sizeof(D) == 2) {
        _mm_storel_epi64(reinterpret_cast<__m128i*>(d), _mm_packs_epi32(v, v));
    } else {
        const __m128i w = _mm_packs_epi32(v, v), b = _mm_packus_epi16(w, w);
        simd::storeOne(reinterpret_cast<Qsp32s*>(d), _mm_cvtsi128_si32(b));
    }
}

template <class D>
void generateInt(rng::Engine& e, D* pDst, Qsp64s len, const IntParams& p)
{
    const __m128i range = _mm_set1_epi32(Qsp32s(p.range)), low = _mm_set1_epi32(p.low);
    const __m128i rejectMinus1 = _mm_set1_epi32(Qsp32s(p.reject - 1));
    const bool mayDrop = p.reject != 0;
    Qsp64s done = 0;
    while (done < len) {
        const rng::Halves h = rng::unread(e);
        int i = 0;
        while (i < h.count && done < len) {
            if (i + 4 <= h.count && done + 4 <= len) {
                const Four f = lemire4(_mm_loadu_si128(reinterpret_cast<const __m128i*>(h.p + i)), range,
                                       rejectMinus1, low, mayDrop);
                if (!f.anyDropped) {
                    store4(pDst + done, f.values);
                    i += 4;
                    done += 4;
                    continue;
                }
            }
            // One half at a time where a group has a dropped half, and at
            // the ends.
            const Qsp64u m = Qsp64u(h.p[i++]) * p.range;
            if (Qsp32u(m) >= p.reject) pDst[done++] = D(p.low + Qsp32s(m >> 32));
        }
        rng::consume(e, i);
    }
}

// ---------------------------------------------------------------------------
// Validating functions.

template <class P>
using Rec = rng::Record<P>;

template <class P, class Map, class D>
QspStatus generateFloat(D* pDst, Qsp64s len, void* pState, rng::Kind kind, Map map)
{
    Rec<P>* r = rng::opened<P>(pState, kind);
    if (r == nullptr) return qspStsBadRecord;
    constexpr int perValue = sizeof(D) / 4;  // halves per value
    Qsp64s done = 0;
    while (done < len) {
        const rng::Halves h = rng::unread(r->engine);
        const Qsp64s room = (len - done) * perValue;
        const int n = int(room < h.count ? room : h.count) / perValue;
        map(h.p, pDst + done, n, r->params);
        rng::consume(r->engine, n * perValue);
        done += n;
    }
    return qspStsOk;
}

template <class T>
QspStatus checkCall(T* pDst, Qsp64s len, void* pState)
{
    if (QspStatus s = check::pointers(pDst, pState)) return s;
    return check::length(len);
}

QspStatus uniform32f(Qsp32f* pDst, Qsp64s len, QspsRandUniformState_32f* pState)
{
    if (QspStatus s = checkCall(pDst, len, pState)) return s;
    return generateFloat<FloatParams<Qsp32f>>(pDst, len, pState, rng::kUniform32f,
                                              [](const Qsp32u* v, Qsp32f* d, int n, const FloatParams<Qsp32f>& p) {
                                                  map32f(v, d, n, p);
                                              });
}

QspStatus uniform64f(Qsp64f* pDst, Qsp64s len, QspsRandUniformState_64f* pState)
{
    if (QspStatus s = checkCall(pDst, len, pState)) return s;
    return generateFloat<FloatParams<Qsp64f>>(pDst, len, pState, rng::kUniform64f,
                                              [](const Qsp32u* v, Qsp64f* d, int n, const FloatParams<Qsp64f>& p) {
                                                  map64f(reinterpret_cast<const Qsp64u*>(v), d, n, p);
                                              });
}

template <class D, class S>
QspStatus uniformInt(D* pDst, Qsp64s len, S* pState, rng::Kind kind)
{
    if (QspStatus s = checkCall(pDst, len, pState)) return s;
    Rec<IntParams>* r = rng::opened<IntParams>(pState, kind);
    if (r == nullptr) return qspStsBadRecord;
    generateInt(r->engine, pDst, len, r->params);
    return qspStsOk;
}

// A complex vector as its parts; the doubled length in 64 bits.
template <class C>
auto parts(C* p)
{
    return reinterpret_cast<decltype(p->re)*>(p);
}
inline Qsp64s twice(int len) { return 2 * Qsp64s(len); }

template <class F, class S>
QspStatus initFloat(S* pState, F low, F high, unsigned seed, rng::Kind kind)
{
    if (pState == nullptr) return qspStsNullPtr;
    FloatParams<F> p;
    if (QspStatus s = floatParams(low, high, p)) return s;
    return rng::build(pState, kind, p, seed);
}

template <class S>
QspStatus initInt(S* pState, Qsp32s low, Qsp32s high, unsigned seed, rng::Kind kind)
{
    if (pState == nullptr) return qspStsNullPtr;
    if (low > high) return qspStsBadRange;
    return rng::build(pState, kind, intParams(low, high), seed);
}

}  // namespace

QspStatus qspsRandUniformGetSize_8u(int* pStateSize) { return rng::getSize<IntParams>(pStateSize); }
QspStatus qspsRandUniformGetSize_16s(int* pStateSize) { return rng::getSize<IntParams>(pStateSize); }
QspStatus qspsRandUniformGetSize_32f(int* pStateSize) { return rng::getSize<FloatParams<Qsp32f>>(pStateSize); }
QspStatus qspsRandUniformGetSize_64f(int* pStateSize) { return rng::getSize<FloatParams<Qsp64f>>(pStateSize); }

QspStatus qspsRandUniformInit_8u(QspsRandUniformState_8u* pState, Qsp8u low, Qsp8u high, unsigned int seed)
{
    return initInt(pState, low, high, seed, rng::kUniform8u);
}
QspStatus qspsRandUniformInit_16s(QspsRandUniformState_16s* pState, int low, int high, unsigned int seed)
{
    return initInt(pState, low, high, seed, rng::kUniform16s);
}
QspStatus qspsRandUniformInit_32f(QspsRandUniformState_32f* pState, Qsp32f low, Qsp32f high, unsigned int seed)
{
    return initFloat(pState, low, high, seed, rng::kUniform32f);
}
QspStatus qspsRandUniformInit_64f(QspsRandUniformState_64f* pState, Qsp64f low, Qsp64f high, unsigned int seed)
{
    return initFloat(pState, low, high, seed, rng::kUniform64f);
}

QspStatus qspsRandUniform_8u(Qsp8u* pDst, int len, QspsRandUniformState_8u* pState)
{
    return uniformInt(pDst, len, pState, rng::kUniform8u);
}
QspStatus qspsRandUniform_16s(Qsp16s* pDst, int len, QspsRandUniformState_16s* pState)
{
    return uniformInt(pDst, len, pState, rng::kUniform16s);
}
QspStatus qspsRandUniform_32f(Qsp32f* pDst, int len, QspsRandUniformState_32f* pState)
{
    return uniform32f(pDst, len, pState);
}
QspStatus qspsRandUniform_64f(Qsp64f* pDst, int len, QspsRandUniformState_64f* pState)
{
    return uniform64f(pDst, len, pState);
}
QspStatus qspsRandUniform_16sc(Qsp16sc* pDst, int len, QspsRandUniformState_16s* pState)
{
    if (QspStatus s = checkCall(pDst, len, pState)) return s;
    return uniformInt(parts(pDst), twice(len), pState, rng::kUniform16s);
}
QspStatus qspsRandUniform_32fc(Qsp32fc* pDst, int len, QspsRandUniformState_32f* pState)
{
    if (QspStatus s = checkCall(pDst, len, pState)) return s;
    return uniform32f(parts(pDst), twice(len), pState);
}
QspStatus qspsRandUniform_64fc(Qsp64fc* pDst, int len, QspsRandUniformState_64f* pState)
{
    if (QspStatus s = checkCall(pDst, len, pState)) return s;
    return uniform64f(parts(pDst), twice(len), pState);
}

}  // namespace y8

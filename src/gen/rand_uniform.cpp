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
//   32f      value = low + w (V >> 8) in single precision, w = (high - low)
//            2^-24, at most the float below high.
//   64f      u = (W >> 12) 2^-52, value = low + (high - low) u in double,
//            at most the double below high.
// When high - low overflows its type, both bounds are halved and the value
// doubled (exact, the bounds being that large). Complex forms are the real
// stream over twice the length: real part, then imaginary part.
#include <type_traits>

#include "qsp_validators.h"
#include "random_state.h"

namespace y8 {
namespace {

// ---------------------------------------------------------------------------
// Floating: a scaled affine map of u, clamped below high.

// value = min(scale (low + width r), top), r the random part (Unit below);
// for 32f width carries r's scale 2^-24.
template <class F>
struct FloatParams {
    F low, width, scale, top;
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
    if constexpr (sizeof(F) == 4) p.width *= 0x1p-24f;
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

// The random part from the core stream: a register of values from a
// register of halves (32f: four halves, four values; 64f: two words, two
// values), or the value of element i of the halves at v. 32f: the integer
// V >> 8 (its scale 2^-24 lies in the width); 64f: u in [0, 1).
template <class F>
struct Unit;
template <>
struct Unit<Qsp32f> {
    static __m128 reg(__m128i halves)
    {
        return _mm_cvtepi32_ps(_mm_srli_epi32(halves, 8));
    }
    static float one(const Qsp32u* v, int i) { return float(Qsp32s(v[i] >> 8)); }
};
template <>
struct Unit<Qsp64f> {
    // (W >> 12) as the mantissa of a number in [1, 2), minus 1.
    static __m128d reg(__m128i words)
    {
        using VU = simd::Vec<Qsp64u>;
        const VU::Reg m = VU::bitOr(VU::shiftRight<12>(words), VU::splat(0x3FF0000000000000ull));
        return _mm_sub_pd(_mm_castsi128_pd(m), _mm_set1_pd(1.0));
    }
    static double one(const Qsp32u* v, int i)
    {
        Qsp64u w;
        __builtin_memcpy(&w, v + 2 * i, 8);
        return __builtin_bit_cast(double, (w >> 12) | 0x3FF0000000000000ull) - 1.0;
    }
};

// min(low + width u, top), or with the bounds halved, min(2 (low + width
// u), top). The kernel is chosen once per call, so the common case does
// no doubling.
template <class F, bool Halved>
struct FloatMap {
    using V = simd::Vec<F>;
    typename V::Reg low, width, top;
    const FloatParams<F>& p;
    explicit FloatMap(const FloatParams<F>& params)
        : low(V::splat(params.low)), width(V::splat(params.width)), top(V::splat(params.top)), p(params)
    {
    }
    typename V::Reg reg(__m128i bits) const
    {
        typename V::Reg r = V::add(low, V::mul(width, Unit<F>::reg(bits)));
        if constexpr (Halved) r = V::add(r, r);
        return V::min(r, top);
    }
    F one(const Qsp32u* v, int i) const
    {
        F r = p.low + p.width * Unit<F>::one(v, i);
        if constexpr (Halved) r = r + r;
        return r < p.top ? r : p.top;
    }
    // n values from the halves at v.
    void run(const Qsp32u* v, F* d, int n) const
    {
        constexpr int lanes = V::lanes;
        int i = 0;
        for (; i + lanes <= n; i += lanes) V::storeu(d + i, reg(_mm_loadu_si128(reinterpret_cast<const __m128i*>(v) + i / lanes)));
        for (; i < n; ++i) d[i] = one(v, i);
    }
};

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

// The batch first, then whole batches mapped straight from the generator's
// registers (the same values, without the round trip through the batch),
// then the rest through the batch.
template <class F, bool Halved>
void generateFloat(rng::Engine& e, F* pDst, Qsp64s len, const FloatParams<F>& p)
{
    constexpr int perValue = sizeof(F) / 4;  // halves per value
    constexpr int perBatch = rng::kBatchHalves / perValue;
    constexpr int perWord = 2 / perValue;    // values per 64-bit word
    const FloatMap<F, Halved> map(p);
    Qsp64s done = 0;
    while (done < len) {
        if (e.next == rng::kBatchHalves && len - done >= perBatch) {
            F* d = pDst + done;
            rng::advance(e, rng::kBatchSteps, [&map, d](int word, __m128i a, __m128i b) {
                simd::Vec<F>::storeu(d + perWord * word, map.reg(a));
                simd::Vec<F>::storeu(d + perWord * (word + 2), map.reg(b));
            });
            done += perBatch;
            continue;
        }
        const rng::Halves h = rng::unread(e);
        const Qsp64s room = (len - done) * perValue;
        const int n = int(room < h.count ? room : h.count) / perValue;
        map.run(h.p, pDst + done, n);
        rng::consume(e, n * perValue);
        done += n;
    }
}

template <class F, class S>
QspStatus uniformFloat(F* pDst, Qsp64s len, S* pState, rng::Kind kind)
{
    if (QspStatus s = rng::checkCall(pDst, len, pState)) return s;
    Rec<FloatParams<F>>* r = rng::opened<FloatParams<F>>(pState, kind);
    if (r == nullptr) return qspStsBadRecord;
    if (r->params.scale == F(1)) generateFloat<F, false>(r->engine, pDst, len, r->params);
    else generateFloat<F, true>(r->engine, pDst, len, r->params);
    return qspStsOk;
}

template <class D, class S>
QspStatus uniformInt(D* pDst, Qsp64s len, S* pState, rng::Kind kind)
{
    if (QspStatus s = rng::checkCall(pDst, len, pState)) return s;
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
    return uniformFloat(pDst, len, pState, rng::kUniform32f);
}
QspStatus qspsRandUniform_64f(Qsp64f* pDst, int len, QspsRandUniformState_64f* pState)
{
    return uniformFloat(pDst, len, pState, rng::kUniform64f);
}
QspStatus qspsRandUniform_16sc(Qsp16sc* pDst, int len, QspsRandUniformState_16s* pState)
{
    if (QspStatus s = rng::checkCall(pDst, len, pState)) return s;
    return uniformInt(parts(pDst), twice(len), pState, rng::kUniform16s);
}
QspStatus qspsRandUniform_32fc(Qsp32fc* pDst, int len, QspsRandUniformState_32f* pState)
{
    if (QspStatus s = rng::checkCall(pDst, len, pState)) return s;
    return uniformFloat(parts(pDst), twice(len), pState, rng::kUniform32f);
}
QspStatus qspsRandUniform_64fc(Qsp64fc* pDst, int len, QspsRandUniformState_64f* pState)
{
    if (QspStatus s = rng::checkCall(pDst, len, pState)) return s;
    return uniformFloat(parts(pDst), twice(len), pState, rng::kUniform64f);
}

}  // namespace y8

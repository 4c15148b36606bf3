// SPDX-License-Identifier: BSD-3-Clause
// The 128-bit vector layer. Kernels are written against Vec<T>, a traits
// type per element type, instead of raw intrinsics, so that the same
// algorithm can later be built for wider vectors by adding another layer
// with the same member names.
//
// Members every Vec<T> has:
//   Reg, lanes                 register type, elements per register
//   load/store                 16-byte aligned pointer
//   loadu/storeu               any alignment
//   stream                     aligned non-temporal store
//   zero(), splat(x)           constant registers
//   reverse(r)                 lanes in reverse order
// Arithmetic members are added beside these as kernels need them.
#pragma once
#include <nmmintrin.h>

#include "qspdefs.h"

namespace simd {

constexpr int kBytes = 16;

// Scalar access that makes no alignment assumption: callers may hand us
// element pointers at any byte address, and the compiler turns these into
// plain moves.
template <class T>
inline T loadOne(const T* p)
{
    T x;
    __builtin_memcpy(&x, p, sizeof(T));
    return x;
}

template <class T>
inline void storeOne(T* p, const T& x)
{
    __builtin_memcpy(p, &x, sizeof(T));
}

// p, with its value hidden from the optimizer: a loop that steps a pointer
// through it is not analysed for loads that a later iteration could take
// over from an earlier one (predictive commoning), which in register-
// blocked kernels costs more registers than it saves loads.
template <class T>
inline T* opaque(T* p)
{
    __asm__("" : "+r"(p));
    return p;
}

// Asks for the cache line holding p ahead of its use. Only a hint: it never
// faults, whatever the address.
inline void prefetch(const void* p) { _mm_prefetch(static_cast<const char*>(p), _MM_HINT_T0); }

// Operations on the raw 128 bits, shared by all integer element types.
struct IntRegOps {
    using Reg = __m128i;
    static Reg load(const void* p) { return _mm_load_si128(static_cast<const __m128i*>(p)); }
    static Reg loadu(const void* p) { return _mm_loadu_si128(static_cast<const __m128i*>(p)); }
    static void store(void* p, Reg r) { _mm_store_si128(static_cast<__m128i*>(p), r); }
    static void storeu(void* p, Reg r) { _mm_storeu_si128(static_cast<__m128i*>(p), r); }
    static void stream(void* p, Reg r) { _mm_stream_si128(static_cast<__m128i*>(p), r); }
    static Reg zero() { return _mm_setzero_si128(); }
    static Reg shuffleBytes(Reg r, Reg order) { return _mm_shuffle_epi8(r, order); }
    // The low 8 or 4 bytes alone, at any alignment (loads clear the rest).
    static Reg loadLow8(const void* p) { return _mm_loadl_epi64(static_cast<const __m128i*>(p)); }
    static void storeLow8(void* p, Reg r) { _mm_storel_epi64(static_cast<__m128i*>(p), r); }
    static Reg loadLow4(const void* p) { return _mm_cvtsi32_si128(loadOne(static_cast<const int*>(p))); }
    static void storeLow4(void* p, Reg r) { storeOne(static_cast<int*>(p), _mm_cvtsi128_si32(r)); }
};

template <class T>
struct Vec;

template <>
struct Vec<Qsp8u> : IntRegOps {
    static constexpr int lanes = 16;
    static Reg splat(Qsp8u x) { return _mm_set1_epi8(static_cast<char>(x)); }
    static Reg reverse(Reg r)
    {
        return _mm_shuffle_epi8(r, _mm_setr_epi8(15, 14, 13, 12, 11, 10, 9, 8, 7, 6, 5, 4, 3, 2, 1, 0));
    }
    static Reg min(Reg a, Reg b) { return _mm_min_epu8(a, b); }
    static Reg max(Reg a, Reg b) { return _mm_max_epu8(a, b); }
    static Reg cmpeq(Reg a, Reg b) { return _mm_cmpeq_epi8(a, b); }
    // One bit per lane: the top bit of each lane.
    static int anyMask(Reg a) { return _mm_movemask_epi8(a); }
};

template <>
struct Vec<Qsp16u> : IntRegOps {
    static constexpr int lanes = 8;
    static Reg splat(Qsp16u x) { return _mm_set1_epi16(static_cast<short>(x)); }
    static Reg reverse(Reg r)
    {
        return _mm_shuffle_epi8(r, _mm_setr_epi8(14, 15, 12, 13, 10, 11, 8, 9, 6, 7, 4, 5, 2, 3, 0, 1));
    }
    static Reg min(Reg a, Reg b) { return _mm_min_epu16(a, b); }
    static Reg max(Reg a, Reg b) { return _mm_max_epu16(a, b); }
    static Reg cmpeq(Reg a, Reg b) { return _mm_cmpeq_epi16(a, b); }
    // One bit per lane of a comparison result (all-ones or all-zero lanes).
    static int anyMask(Reg a) { return _mm_movemask_epi8(_mm_packs_epi16(a, _mm_setzero_si128())); }
};

template <>
struct Vec<Qsp32u> : IntRegOps {
    static constexpr int lanes = 4;
    static Reg splat(Qsp32u x) { return _mm_set1_epi32(static_cast<int>(x)); }
    static Reg reverse(Reg r) { return _mm_shuffle_epi32(r, _MM_SHUFFLE(0, 1, 2, 3)); }
    static Reg min(Reg a, Reg b) { return _mm_min_epu32(a, b); }
    static Reg max(Reg a, Reg b) { return _mm_max_epu32(a, b); }
    static Reg cmpeq(Reg a, Reg b) { return _mm_cmpeq_epi32(a, b); }
    static int anyMask(Reg a) { return _mm_movemask_ps(_mm_castsi128_ps(a)); }
};

template <>
struct Vec<Qsp64u> : IntRegOps {
    static constexpr int lanes = 2;
    static Reg splat(Qsp64u x) { return _mm_set1_epi64x(static_cast<long long>(x)); }
    static Reg reverse(Reg r) { return _mm_shuffle_epi32(r, _MM_SHUFFLE(1, 0, 3, 2)); }
    // Wrapping arithmetic and shifts of 64-bit lanes (the bit patterns of
    // doubles: exponents and table indices).
    static Reg add(Reg a, Reg b) { return _mm_add_epi64(a, b); }
    static Reg sub(Reg a, Reg b) { return _mm_sub_epi64(a, b); }
    static Reg bitAnd(Reg a, Reg b) { return _mm_and_si128(a, b); }
    template <int n>
    static Reg shiftLeft(Reg a) { return _mm_slli_epi64(a, n); }
    template <int n>
    static Reg shiftRight(Reg a) { return _mm_srli_epi64(a, n); }
    static Reg bitOr(Reg a, Reg b) { return _mm_or_si128(a, b); }
    static Reg bitXor(Reg a, Reg b) { return _mm_xor_si128(a, b); }
    template <int n>
    static Reg rotateLeft(Reg a) { return _mm_or_si128(_mm_slli_epi64(a, n), _mm_srli_epi64(a, 64 - n)); }
    static Reg andNot(Reg a, Reg b) { return _mm_andnot_si128(a, b); }  // ~a & b
};

template <>
struct Vec<float> {
    using Reg = __m128;
    static constexpr int lanes = 4;
    static Reg load(const float* p) { return _mm_load_ps(p); }
    static Reg loadu(const float* p) { return _mm_loadu_ps(p); }
    static void store(float* p, Reg r) { _mm_store_ps(p, r); }
    static void storeu(float* p, Reg r) { _mm_storeu_ps(p, r); }
    static void stream(float* p, Reg r) { _mm_stream_ps(p, r); }
    static Reg zero() { return _mm_setzero_ps(); }
    static Reg splat(float x) { return _mm_set1_ps(x); }
    static Reg reverse(Reg r) { return _mm_shuffle_ps(r, r, _MM_SHUFFLE(0, 1, 2, 3)); }
    static Reg add(Reg a, Reg b) { return _mm_add_ps(a, b); }
    static Reg sub(Reg a, Reg b) { return _mm_sub_ps(a, b); }
    static Reg mul(Reg a, Reg b) { return _mm_mul_ps(a, b); }
    static Reg div(Reg a, Reg b) { return _mm_div_ps(a, b); }
    static Reg sqrt(Reg a) { return _mm_sqrt_ps(a); }
    static Reg min(Reg a, Reg b) { return _mm_min_ps(a, b); }
    static Reg max(Reg a, Reg b) { return _mm_max_ps(a, b); }
    static Reg bitAnd(Reg a, Reg b) { return _mm_and_ps(a, b); }
    static Reg bitOr(Reg a, Reg b) { return _mm_or_ps(a, b); }
    static Reg bitXor(Reg a, Reg b) { return _mm_xor_ps(a, b); }
    static Reg andNot(Reg a, Reg b) { return _mm_andnot_ps(a, b); }  // ~a & b
    static Reg cmplt(Reg a, Reg b) { return _mm_cmplt_ps(a, b); }
    static Reg cmple(Reg a, Reg b) { return _mm_cmple_ps(a, b); }
    static Reg cmpgt(Reg a, Reg b) { return _mm_cmpgt_ps(a, b); }
    static Reg cmpeq(Reg a, Reg b) { return _mm_cmpeq_ps(a, b); }
    static Reg cmpge(Reg a, Reg b) { return _mm_cmpge_ps(a, b); }
    static Reg cmpord(Reg a, Reg b) { return _mm_cmpord_ps(a, b); }
    // Integral values: toward zero, and to nearest with ties to even,
    // whatever the current rounding mode.
    static Reg truncate(Reg a) { return _mm_round_ps(a, _MM_FROUND_TO_ZERO | _MM_FROUND_NO_EXC); }
    static Reg roundEven(Reg a) { return _mm_round_ps(a, _MM_FROUND_TO_NEAREST_INT | _MM_FROUND_NO_EXC); }
    // Integral lanes (within 32 bits) as 32-bit integers.
    static __m128i toInt32(Reg a) { return _mm_cvttps_epi32(a); }
    static int anyMask(Reg a) { return _mm_movemask_ps(a); }
    // Lanes of b where mask is set, of a elsewhere.
    static Reg select(Reg mask, Reg a, Reg b) { return _mm_blendv_ps(a, b, mask); }
    // Interleaved complex pairs: real parts duplicated, imaginary parts
    // duplicated, parts exchanged, and subtract-in-even/add-in-odd lanes.
    static Reg dupRe(Reg a) { return _mm_moveldup_ps(a); }
    static Reg dupIm(Reg a) { return _mm_movehdup_ps(a); }
    static Reg swapParts(Reg a) { return _mm_shuffle_ps(a, a, _MM_SHUFFLE(2, 3, 0, 1)); }
    static Reg addsub(Reg a, Reg b) { return _mm_addsub_ps(a, b); }
    static Reg signBit() { return _mm_castsi128_ps(_mm_set1_epi32(int(0x80000000u))); }
    // Halves of two registers of complex pairs, and single pairs.
    static Reg lowHalves(Reg a, Reg b) { return _mm_movelh_ps(a, b); }  // a0, a1, b0, b1
    static Reg highHalves(Reg a, Reg b) { return _mm_movehl_ps(b, a); } // a2, a3, b2, b3
    // The low or the high two lanes stored alone (8 bytes, p need not be
    // aligned; no shuffle).
    static void storeLowHalf(float* p, Reg r) { _mm_storel_pi(reinterpret_cast<__m64*>(p), r); }
    static void storeHighHalf(float* p, Reg r) { _mm_storeh_pi(reinterpret_cast<__m64*>(p), r); }
    // One 8-byte pair repeated in both halves (p need not be aligned).
    static Reg loadPairDup(const float* p)
    {
        return _mm_castpd_ps(_mm_loaddup_pd(reinterpret_cast<const double*>(p)));
    }
    // One 8-byte pair alone in the low half, the high half zero (p need not
    // be aligned: an integer move, where a double load would require 8-byte
    // alignment of p).
    static Reg loadPair(const float* p)
    {
        return _mm_castsi128_ps(_mm_loadl_epi64(reinterpret_cast<const __m128i*>(p)));
    }
    static Reg negOdd(Reg r) { return _mm_xor_ps(r, _mm_setr_ps(0.0f, -0.0f, 0.0f, -0.0f)); }
    static Reg negEven(Reg r) { return _mm_xor_ps(r, _mm_setr_ps(-0.0f, 0.0f, -0.0f, 0.0f)); }
    // Split and join of complex pairs: evens/odds take the real/imaginary
    // parts of a0 a1 b0 b1 (as pairs); zipLo/zipHi interleave two registers.
    static Reg evens(Reg a, Reg b) { return _mm_shuffle_ps(a, b, _MM_SHUFFLE(2, 0, 2, 0)); }
    static Reg odds(Reg a, Reg b) { return _mm_shuffle_ps(a, b, _MM_SHUFFLE(3, 1, 3, 1)); }
    static Reg zipLo(Reg a, Reg b) { return _mm_unpacklo_ps(a, b); }
    static Reg zipHi(Reg a, Reg b) { return _mm_unpackhi_ps(a, b); }
    // The lanes' bit patterns as 32-bit integer lanes, and back.
    static __m128i bits(Reg a) { return _mm_castps_si128(a); }
    static Reg ofBits(__m128i a) { return _mm_castsi128_ps(a); }
    // Lanes as a sequence in time (lane 0 first): shiftUp<j> delays r by j
    // lanes with zeros entering; alignUp<j> delays cur by j lanes with the
    // last j lanes of prev (the register before it) entering; broadcast<i>
    // repeats lane i. j runs from 0 to 4.
    template <int j>
    static Reg shiftUp(Reg r)
    {
        return _mm_castsi128_ps(_mm_slli_si128(_mm_castps_si128(r), 4 * j));
    }
    template <int j>
    static Reg alignUp(Reg cur, Reg prev)
    {
        if constexpr (j == 0) return cur;
        else if constexpr (j == 4) return prev;
        else return _mm_castsi128_ps(_mm_alignr_epi8(_mm_castps_si128(cur), _mm_castps_si128(prev), 16 - 4 * j));
    }
    template <int i>
    static Reg broadcast(Reg r) { return _mm_shuffle_ps(r, r, i * 0x55); }
    // 32-bit integer lanes as floats (exact below 2^24).
    static Reg fromInt32(__m128i a) { return _mm_cvtepi32_ps(a); }
    // The low two lanes of a with the high two lanes of b: a0, a1, b2, b3.
    static Reg joinHalves(Reg a, Reg b) { return _mm_shuffle_ps(a, b, _MM_SHUFFLE(3, 2, 1, 0)); }
    // Lane 0 stored alone.
    static void storeFirst(float* p, Reg r) { _mm_store_ss(p, r); }
};

template <>
struct Vec<double> {
    using Reg = __m128d;
    static constexpr int lanes = 2;
    static Reg load(const double* p) { return _mm_load_pd(p); }
    static Reg loadu(const double* p) { return _mm_loadu_pd(p); }
    static void store(double* p, Reg r) { _mm_store_pd(p, r); }
    static void storeu(double* p, Reg r) { _mm_storeu_pd(p, r); }
    static void stream(double* p, Reg r) { _mm_stream_pd(p, r); }
    static Reg zero() { return _mm_setzero_pd(); }
    static Reg splat(double x) { return _mm_set1_pd(x); }
    static Reg reverse(Reg r) { return _mm_shuffle_pd(r, r, 1); }
    static Reg add(Reg a, Reg b) { return _mm_add_pd(a, b); }
    static Reg sub(Reg a, Reg b) { return _mm_sub_pd(a, b); }
    static Reg mul(Reg a, Reg b) { return _mm_mul_pd(a, b); }
    static Reg div(Reg a, Reg b) { return _mm_div_pd(a, b); }
    static Reg sqrt(Reg a) { return _mm_sqrt_pd(a); }
    static Reg min(Reg a, Reg b) { return _mm_min_pd(a, b); }
    static Reg max(Reg a, Reg b) { return _mm_max_pd(a, b); }
    static Reg bitAnd(Reg a, Reg b) { return _mm_and_pd(a, b); }
    static Reg bitOr(Reg a, Reg b) { return _mm_or_pd(a, b); }
    static Reg bitXor(Reg a, Reg b) { return _mm_xor_pd(a, b); }
    static Reg andNot(Reg a, Reg b) { return _mm_andnot_pd(a, b); }  // ~a & b
    static Reg cmplt(Reg a, Reg b) { return _mm_cmplt_pd(a, b); }
    static Reg cmple(Reg a, Reg b) { return _mm_cmple_pd(a, b); }
    static Reg cmpgt(Reg a, Reg b) { return _mm_cmpgt_pd(a, b); }
    static Reg cmpeq(Reg a, Reg b) { return _mm_cmpeq_pd(a, b); }
    static Reg cmpge(Reg a, Reg b) { return _mm_cmpge_pd(a, b); }
    static Reg cmpord(Reg a, Reg b) { return _mm_cmpord_pd(a, b); }
    static Reg truncate(Reg a) { return _mm_round_pd(a, _MM_FROUND_TO_ZERO | _MM_FROUND_NO_EXC); }
    static Reg roundEven(Reg a) { return _mm_round_pd(a, _MM_FROUND_TO_NEAREST_INT | _MM_FROUND_NO_EXC); }
    // Integral lanes (within 32 bits) as 32-bit integers in the low two lanes.
    static __m128i toInt32(Reg a) { return _mm_cvttpd_epi32(a); }
    static int anyMask(Reg a) { return _mm_movemask_pd(a); }
    static Reg select(Reg mask, Reg a, Reg b) { return _mm_blendv_pd(a, b, mask); }
    static Reg dupRe(Reg a) { return _mm_movedup_pd(a); }
    static Reg dupIm(Reg a) { return _mm_unpackhi_pd(a, a); }
    static Reg swapParts(Reg a) { return _mm_shuffle_pd(a, a, 1); }
    static Reg addsub(Reg a, Reg b) { return _mm_addsub_pd(a, b); }
    static Reg signBit() { return _mm_castsi128_pd(_mm_set1_epi64x(0x8000000000000000ll)); }
    static Reg lowHalves(Reg a, Reg b) { return _mm_unpacklo_pd(a, b); }  // a0, b0
    static Reg highHalves(Reg a, Reg b) { return _mm_unpackhi_pd(a, b); } // a1, b1
    static Reg negOdd(Reg r) { return _mm_xor_pd(r, _mm_setr_pd(0.0, -0.0)); }
    static Reg negEven(Reg r) { return _mm_xor_pd(r, _mm_setr_pd(-0.0, 0.0)); }
    static Reg evens(Reg a, Reg b) { return _mm_unpacklo_pd(a, b); }
    static Reg odds(Reg a, Reg b) { return _mm_unpackhi_pd(a, b); }
    static Reg zipLo(Reg a, Reg b) { return _mm_unpacklo_pd(a, b); }
    static Reg zipHi(Reg a, Reg b) { return _mm_unpackhi_pd(a, b); }
    // Lanes 0, 1 or lanes 2, 3 of a register of floats, widened exactly.
    static Reg widenLow(__m128 f) { return _mm_cvtps_pd(f); }
    static Reg widenHigh(__m128 f) { return _mm_cvtps_pd(_mm_movehl_ps(f, f)); }
    // Two registers rounded to single precision into one: lo's lanes, then hi's.
    static __m128 narrow(Reg lo, Reg hi) { return _mm_movelh_ps(_mm_cvtpd_ps(lo), _mm_cvtpd_ps(hi)); }
    static Reg pair(double a, double b) { return _mm_setr_pd(a, b); }
    static Reg fromInt32(__m128i a) { return _mm_cvtepi32_pd(a); }
    // The lanes' bit patterns as 64-bit integer lanes, and back.
    static __m128i bits(Reg a) { return _mm_castpd_si128(a); }
    static Reg ofBits(__m128i a) { return _mm_castsi128_pd(a); }
    // Lanes 2, 3 of a register of 32-bit integers, as doubles.
    static Reg fromInt32High(__m128i a) { return _mm_cvtepi32_pd(_mm_unpackhi_epi64(a, a)); }
    // The low 32 bits of the lanes of a, then of b, as four 32-bit lanes.
    static __m128i lowWords(Reg a, Reg b)
    {
        return _mm_castps_si128(_mm_shuffle_ps(_mm_castpd_ps(a), _mm_castpd_ps(b), _MM_SHUFFLE(2, 0, 2, 0)));
    }
    // Lanes as a sequence in time, as in Vec<float>; j runs from 0 to 2.
    template <int j>
    static Reg shiftUp(Reg r)
    {
        return _mm_castsi128_pd(_mm_slli_si128(_mm_castpd_si128(r), 8 * j));
    }
    template <int j>
    static Reg alignUp(Reg cur, Reg prev)
    {
        if constexpr (j == 0) return cur;
        else if constexpr (j == 2) return prev;
        else return _mm_shuffle_pd(prev, cur, 1);  // prev1, cur0
    }
    template <int i>
    static Reg broadcast(Reg r)
    {
        if constexpr (i == 0) return _mm_movedup_pd(r);
        else return _mm_unpackhi_pd(r, r);
    }
    // Both lanes rounded to single precision, in lanes 0 and 1.
    static __m128 narrowLow(Reg a) { return _mm_cvtpd_ps(a); }
    // Lane 0 stored alone.
    static void storeFirst(double* p, Reg r) { _mm_store_sd(p, r); }
};

// Scalar conversions and roots done by the processor's instructions (no
// library calls): x to a 32-bit integer under the current rounding mode;
// x rounded to the nearest integer, ties to even, whatever the mode; the
// correctly rounded square root.
inline Qsp32s toInt32Current(double x) { return _mm_cvtsd_si32(_mm_set_sd(x)); }
inline double roundEven(double x)
{
    const __m128d v = _mm_set_sd(x);
    return _mm_cvtsd_f64(_mm_round_sd(v, v, _MM_FROUND_TO_NEAREST_INT | _MM_FROUND_NO_EXC));
}
// A float widened to double by the instruction itself: a value rounded to
// single precision and widened again stays rounded (a plain conversion
// pair may be folded away by the vectorizer).
inline double widenOne(float x) { return _mm_cvtsd_f64(_mm_cvtss_sd(_mm_setzero_pd(), _mm_set_ss(x))); }
inline double sqrtOne(double x) { return _mm_cvtsd_f64(_mm_sqrt_sd(_mm_setzero_pd(), _mm_set_sd(x))); }

// A 16-byte element handled only as bits (complex double, complex 64-bit
// integer): one per register.
struct Bits128 {
    Qsp64u lo, hi;
};

template <>
struct Vec<Bits128> : IntRegOps {
    static constexpr int lanes = 1;
    static Reg reverse(Reg r) { return r; }
};

// The integer type with the size of T: data movement and bit-pattern
// kernels work on this instead of T itself.
template <unsigned Size> struct BitsOfSize;
template <> struct BitsOfSize<1> { using type = Qsp8u; };
template <> struct BitsOfSize<2> { using type = Qsp16u; };
template <> struct BitsOfSize<4> { using type = Qsp32u; };
template <> struct BitsOfSize<8> { using type = Qsp64u; };
template <> struct BitsOfSize<16> { using type = Bits128; };

template <class T>
using Bits = typename BitsOfSize<sizeof(T)>::type;

}  // namespace simd

// ---------------------------------------------------------------------------
// Signed integer lanes with arithmetic: the element-wise integer kernels
// widen their operands to 32-bit lanes, form the exact result there, scale
// it and narrow it with saturation.
namespace simd {

template <>
struct Vec<Qsp16s> : IntRegOps {
    static constexpr int lanes = 8;
    static Reg splat(Qsp16s x) { return _mm_set1_epi16(x); }
    static Reg reverse(Reg r) { return Vec<Qsp16u>::reverse(r); }
    static Reg adds(Reg a, Reg b) { return _mm_adds_epi16(a, b); }
    static Reg subs(Reg a, Reg b) { return _mm_subs_epi16(a, b); }
    static Reg mullo(Reg a, Reg b) { return _mm_mullo_epi16(a, b); }
    static Reg mulhi(Reg a, Reg b) { return _mm_mulhi_epi16(a, b); }
    // Two registers of 32-bit lanes narrowed to 16-bit lanes with signed
    // saturation (a first).
    static Reg packs32(Reg a, Reg b) { return _mm_packs_epi32(a, b); }
    static Reg min(Reg a, Reg b) { return _mm_min_epi16(a, b); }
    static Reg max(Reg a, Reg b) { return _mm_max_epi16(a, b); }
    static Reg cmplt(Reg a, Reg b) { return _mm_cmplt_epi16(a, b); }
    static Reg cmpgt(Reg a, Reg b) { return _mm_cmpgt_epi16(a, b); }
    static Reg cmpeq(Reg a, Reg b) { return _mm_cmpeq_epi16(a, b); }
    // Magnitudes as unsigned lanes: -32768 keeps its pattern, 32768.
    static Reg abs(Reg a) { return _mm_abs_epi16(a); }
    static Reg neg(Reg a) { return _mm_sub_epi16(_mm_setzero_si128(), a); }
    static Reg bitXor(Reg a, Reg b) { return _mm_xor_si128(a, b); }
    static Reg select(Reg mask, Reg a, Reg b) { return _mm_blendv_epi8(a, b, mask); }
    static Reg signBit() { return _mm_set1_epi16(Qsp16s(0x8000)); }
    // Sums of the products of adjacent lane pairs, in 32-bit lanes.
    static Reg madd(Reg a, Reg b) { return _mm_madd_epi16(a, b); }
    // Full 32-bit products of lanes 0..3 and 4..7.
    static Reg mulWideLo(Reg a, Reg b) { return _mm_unpacklo_epi16(_mm_mullo_epi16(a, b), _mm_mulhi_epi16(a, b)); }
    static Reg mulWideHi(Reg a, Reg b) { return _mm_unpackhi_epi16(_mm_mullo_epi16(a, b), _mm_mulhi_epi16(a, b)); }
    // Lanes exchanged within each pair (the parts of complex elements).
    static Reg swapPairs(Reg a) { return _mm_shufflehi_epi16(_mm_shufflelo_epi16(a, 0xB1), 0xB1); }
    static int anyMask(Reg a) { return Vec<Qsp16u>::anyMask(a); }
};

template <>
struct Vec<Qsp32s> : IntRegOps {
    static constexpr int lanes = 4;
    static Reg splat(Qsp32s x) { return _mm_set1_epi32(x); }
    static Reg reverse(Reg r) { return Vec<Qsp32u>::reverse(r); }
    static Reg add(Reg a, Reg b) { return _mm_add_epi32(a, b); }
    static Reg sub(Reg a, Reg b) { return _mm_sub_epi32(a, b); }
    static Reg mullo(Reg a, Reg b) { return _mm_mullo_epi32(a, b); }
    static Reg bitAnd(Reg a, Reg b) { return _mm_and_si128(a, b); }
    static Reg bitOr(Reg a, Reg b) { return _mm_or_si128(a, b); }
    static Reg min(Reg a, Reg b) { return _mm_min_epi32(a, b); }
    static Reg max(Reg a, Reg b) { return _mm_max_epi32(a, b); }
    static Reg cmpgt(Reg a, Reg b) { return _mm_cmpgt_epi32(a, b); }
    static Reg cmpeq(Reg a, Reg b) { return _mm_cmpeq_epi32(a, b); }
    static int anyMask(Reg a) { return Vec<Qsp32u>::anyMask(a); }
    // Magnitudes as unsigned lanes: the most negative value keeps its
    // pattern, 2^31.
    static Reg abs(Reg a) { return _mm_abs_epi32(a); }
    static Reg cmplt(Reg a, Reg b) { return _mm_cmplt_epi32(a, b); }
    static Reg neg(Reg a) { return _mm_sub_epi32(_mm_setzero_si128(), a); }
    static Reg bitXor(Reg a, Reg b) { return _mm_xor_si128(a, b); }
    static Reg select(Reg mask, Reg a, Reg b) { return _mm_blendv_epi8(a, b, mask); }
    template <int i>
    static Qsp32s lane(Reg a) { return _mm_extract_epi32(a, i); }
    static Reg signBit() { return _mm_set1_epi32(Qsp32s(0x80000000u)); }
    // a with the sign of b applied: a, -a or 0 as b is positive, negative, 0.
    static Reg sign(Reg a, Reg b) { return _mm_sign_epi32(a, b); }
    // Shift counts held in the low 64 bits of a register (see count()).
    static Reg count(int n) { return _mm_cvtsi32_si128(n); }
    static Reg sra(Reg a, Reg n) { return _mm_sra_epi32(a, n); }
    static Reg sll(Reg a, Reg n) { return _mm_sll_epi32(a, n); }
    static Reg srl(Reg a, Reg n) { return _mm_srl_epi32(a, n); }
    static Reg srai1(Reg a) { return _mm_srai_epi32(a, 1); }
    // Differences of adjacent lane pairs: a0-a1, a2-a3, b0-b1, b2-b3.
    static Reg hsub(Reg a, Reg b) { return _mm_hsub_epi32(a, b); }
    static Reg hadd(Reg a, Reg b) { return _mm_hadd_epi32(a, b); }
    static Reg interleaveLo(Reg a, Reg b) { return _mm_unpacklo_epi32(a, b); }
    static Reg interleaveHi(Reg a, Reg b) { return _mm_unpackhi_epi32(a, b); }
    // Widening of the low or high half of a register of 16-bit lanes.
    static Reg lo16s(Reg a) { return _mm_cvtepi16_epi32(a); }
    static Reg hi16s(Reg a) { return _mm_cvtepi16_epi32(_mm_srli_si128(a, 8)); }
    static Reg lo16u(Reg a) { return _mm_cvtepu16_epi32(a); }
    static Reg hi16u(Reg a) { return _mm_cvtepu16_epi32(_mm_srli_si128(a, 8)); }
    // Widening of the quarter q (0..3) of a register of 8-bit lanes.
    template <int q>
    static Reg quarter8u(Reg a) { return _mm_cvtepu8_epi32(_mm_srli_si128(a, 4 * q)); }
    template <int q>
    static Reg quarter8s(Reg a) { return _mm_cvtepi8_epi32(_mm_srli_si128(a, 4 * q)); }
    // Lanes 0, 1 of a, then lanes 0, 1 of b.
    static Reg lowHalves(Reg a, Reg b) { return _mm_unpacklo_epi64(a, b); }
    // Arithmetic shift by a constant, and lanes picked by index.
    template <int n>
    static Reg srai(Reg a) { return _mm_srai_epi32(a, n); }
    template <int n>
    static Reg slli(Reg a) { return _mm_slli_epi32(a, n); }
    template <int a, int b, int c, int d>
    static Reg shuffle(Reg r) { return _mm_shuffle_epi32(r, _MM_SHUFFLE(d, c, b, a)); }
};

// Narrowing of 32-bit lanes with saturation to the unsigned types.
template <>
struct Vec<Qsp8s> : IntRegOps {
    static constexpr int lanes = 16;
    static Reg splat(Qsp8s x) { return _mm_set1_epi8(x); }
    static Reg reverse(Reg r) { return Vec<Qsp8u>::reverse(r); }
    // Signed comparisons and selections of 8-bit lanes.
    static Reg cmpgt(Reg a, Reg b) { return _mm_cmpgt_epi8(a, b); }
    static Reg min(Reg a, Reg b) { return _mm_min_epi8(a, b); }
    static Reg max(Reg a, Reg b) { return _mm_max_epi8(a, b); }
    static Reg select(Reg mask, Reg a, Reg b) { return _mm_blendv_epi8(a, b, mask); }
};

// Four registers of 32-bit lanes to one register of 16 saturated 8u lanes.
inline __m128i packs32to8u(__m128i a, __m128i b, __m128i c, __m128i d)
{
    return _mm_packus_epi16(_mm_packs_epi32(a, b), _mm_packs_epi32(c, d));
}
// Two registers of 32-bit lanes to one register of 8 saturated 16u lanes.
inline __m128i packs32to16u(__m128i a, __m128i b) { return _mm_packus_epi32(a, b); }

}  // namespace simd

// ---------------------------------------------------------------------------
// Complex floating elements as registers of interleaved parts (two 32fc or
// one 64fc per register): the arithmetic is that of the part type; loads
// and stores take element pointers.
namespace simd {

template <class C, class P>
struct ComplexVec : Vec<P> {
    using Reg = typename Vec<P>::Reg;
    static constexpr int lanes = Vec<P>::lanes / 2;
    static Reg load(const C* p) { return Vec<P>::load(reinterpret_cast<const P*>(p)); }
    static Reg loadu(const C* p) { return Vec<P>::loadu(reinterpret_cast<const P*>(p)); }
    static void store(C* p, Reg r) { Vec<P>::store(reinterpret_cast<P*>(p), r); }
    static void storeu(C* p, Reg r) { Vec<P>::storeu(reinterpret_cast<P*>(p), r); }
    static void stream(C* p, Reg r) { Vec<P>::stream(reinterpret_cast<P*>(p), r); }
    // Every element equal to c.
    static Reg splat(C c)
    {
        if constexpr (lanes == 2) return _mm_setr_ps(c.re, c.im, c.re, c.im);
        else return _mm_setr_pd(c.re, c.im);
    }
};

template <>
struct Vec<Qsp32fc> : ComplexVec<Qsp32fc, float> {};
template <>
struct Vec<Qsp64fc> : ComplexVec<Qsp64fc, double> {};

}  // namespace simd

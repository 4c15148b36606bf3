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
// Arithmetic members are added beside these as kernels need them:
//   max(a, b), min(a, b)       lane-wise; for floating types exactly
//                              (a > b ? a : b) and (a < b ? a : b), so the
//                              second operand comes out when the lanes are
//                              unordered (a NaN on either side)
//   eq(a, b)                   all ones in the lanes that compare equal
//                              (floating: ordered, so -0 == +0, NaN != NaN)
//   laneMask(r)                one bit per lane, from the top bit of each
//                              lane of a comparison result
//   abs(r)                     magnitudes (signed integers: as unsigned, so
//                              the most negative value keeps its pattern)
#pragma once
#include <nmmintrin.h>

#include "qspdefs.h"

namespace simd {

constexpr int kBytes = 16;

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
    static Reg max(Reg a, Reg b) { return _mm_max_epu8(a, b); }
    static Reg min(Reg a, Reg b) { return _mm_min_epu8(a, b); }
    static Reg eq(Reg a, Reg b) { return _mm_cmpeq_epi8(a, b); }
    static int laneMask(Reg r) { return _mm_movemask_epi8(r); }
};

template <>
struct Vec<Qsp16u> : IntRegOps {
    static constexpr int lanes = 8;
    static Reg splat(Qsp16u x) { return _mm_set1_epi16(static_cast<short>(x)); }
    static Reg reverse(Reg r)
    {
        return _mm_shuffle_epi8(r, _mm_setr_epi8(14, 15, 12, 13, 10, 11, 8, 9, 6, 7, 4, 5, 2, 3, 0, 1));
    }
    static Reg max(Reg a, Reg b) { return _mm_max_epu16(a, b); }
    static Reg min(Reg a, Reg b) { return _mm_min_epu16(a, b); }
    static Reg eq(Reg a, Reg b) { return _mm_cmpeq_epi16(a, b); }
    static int laneMask(Reg r) { return _mm_movemask_epi8(_mm_packs_epi16(r, _mm_setzero_si128())); }
};

template <>
struct Vec<Qsp16s> : Vec<Qsp16u> {
    static Reg splat(Qsp16s x) { return _mm_set1_epi16(x); }
    static Reg max(Reg a, Reg b) { return _mm_max_epi16(a, b); }
    static Reg min(Reg a, Reg b) { return _mm_min_epi16(a, b); }
    static Reg abs(Reg r) { return _mm_abs_epi16(r); }
};

template <>
struct Vec<Qsp32u> : IntRegOps {
    static constexpr int lanes = 4;
    static Reg splat(Qsp32u x) { return _mm_set1_epi32(static_cast<int>(x)); }
    static Reg reverse(Reg r) { return _mm_shuffle_epi32(r, _MM_SHUFFLE(0, 1, 2, 3)); }
    static Reg max(Reg a, Reg b) { return _mm_max_epu32(a, b); }
    static Reg min(Reg a, Reg b) { return _mm_min_epu32(a, b); }
    static Reg eq(Reg a, Reg b) { return _mm_cmpeq_epi32(a, b); }
    static int laneMask(Reg r) { return _mm_movemask_ps(_mm_castsi128_ps(r)); }
};

template <>
struct Vec<Qsp32s> : Vec<Qsp32u> {
    static Reg splat(Qsp32s x) { return _mm_set1_epi32(x); }
    static Reg max(Reg a, Reg b) { return _mm_max_epi32(a, b); }
    static Reg min(Reg a, Reg b) { return _mm_min_epi32(a, b); }
    static Reg abs(Reg r) { return _mm_abs_epi32(r); }
};

template <>
struct Vec<Qsp64u> : IntRegOps {
    static constexpr int lanes = 2;
    static Reg splat(Qsp64u x) { return _mm_set1_epi64x(static_cast<long long>(x)); }
    static Reg reverse(Reg r) { return _mm_shuffle_epi32(r, _MM_SHUFFLE(1, 0, 3, 2)); }
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
    static Reg max(Reg a, Reg b) { return _mm_max_ps(a, b); }
    static Reg min(Reg a, Reg b) { return _mm_min_ps(a, b); }
    static Reg eq(Reg a, Reg b) { return _mm_cmpeq_ps(a, b); }
    static int laneMask(Reg r) { return _mm_movemask_ps(r); }
    static Reg abs(Reg r) { return _mm_and_ps(r, _mm_castsi128_ps(_mm_set1_epi32(0x7FFFFFFF))); }
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
    static Reg max(Reg a, Reg b) { return _mm_max_pd(a, b); }
    static Reg min(Reg a, Reg b) { return _mm_min_pd(a, b); }
    static Reg eq(Reg a, Reg b) { return _mm_cmpeq_pd(a, b); }
    static int laneMask(Reg r) { return _mm_movemask_pd(r); }
    static Reg abs(Reg r) { return _mm_and_pd(r, _mm_castsi128_pd(_mm_set1_epi64x(0x7FFFFFFFFFFFFFFFll))); }
};

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

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
#include <pmmintrin.h>

#include "qspdefs.h"

namespace simd {

constexpr int kBytes = 16;

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
};

template <>
struct Vec<Qsp16u> : IntRegOps {
    static constexpr int lanes = 8;
    static Reg splat(Qsp16u x) { return _mm_set1_epi16(static_cast<short>(x)); }
    static Reg reverse(Reg r)
    {
        return _mm_shuffle_epi8(r, _mm_setr_epi8(14, 15, 12, 13, 10, 11, 8, 9, 6, 7, 4, 5, 2, 3, 0, 1));
    }
};

template <>
struct Vec<Qsp32u> : IntRegOps {
    static constexpr int lanes = 4;
    static Reg splat(Qsp32u x) { return _mm_set1_epi32(static_cast<int>(x)); }
    static Reg reverse(Reg r) { return _mm_shuffle_epi32(r, _MM_SHUFFLE(0, 1, 2, 3)); }
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
    static Reg bitXor(Reg a, Reg b) { return _mm_xor_ps(a, b); }
    // Members for interleaved complex data, two (re, im) pairs a register.
    static Reg addsub(Reg a, Reg b) { return _mm_addsub_ps(a, b); }   // a0-b0, a1+b1, a2-b2, a3+b3
    static Reg dupEven(Reg r) { return _mm_moveldup_ps(r); }           // r0, r0, r2, r2
    static Reg dupOdd(Reg r) { return _mm_movehdup_ps(r); }            // r1, r1, r3, r3
    static Reg swapPairs(Reg r) { return _mm_shuffle_ps(r, r, _MM_SHUFFLE(2, 3, 0, 1)); }
    static Reg lowHalves(Reg a, Reg b) { return _mm_movelh_ps(a, b); }  // a0, a1, b0, b1
    static Reg highHalves(Reg a, Reg b) { return _mm_movehl_ps(b, a); } // a2, a3, b2, b3
    // One 8-byte pair repeated in both halves (p need not be aligned).
    static Reg loadPairDup(const float* p)
    {
        return _mm_castpd_ps(_mm_loaddup_pd(reinterpret_cast<const double*>(p)));
    }
    static Reg loadPair(const float* p) { return _mm_castpd_ps(_mm_load_sd(reinterpret_cast<const double*>(p))); }
    static void storePair(float* p, Reg r) { _mm_store_sd(reinterpret_cast<double*>(p), _mm_castps_pd(r)); }
    static void storeHighPair(float* p, Reg r) { _mm_storeh_pd(reinterpret_cast<double*>(p), _mm_castps_pd(r)); }
    static Reg negOdd(Reg r) { return _mm_xor_ps(r, _mm_setr_ps(0.0f, -0.0f, 0.0f, -0.0f)); }
    static Reg negEven(Reg r) { return _mm_xor_ps(r, _mm_setr_ps(-0.0f, 0.0f, -0.0f, 0.0f)); }
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
    static Reg bitXor(Reg a, Reg b) { return _mm_xor_pd(a, b); }
    // Members for interleaved complex data, one (re, im) pair a register.
    static Reg addsub(Reg a, Reg b) { return _mm_addsub_pd(a, b); }   // a0-b0, a1+b1
    static Reg dupEven(Reg r) { return _mm_movedup_pd(r); }            // r0, r0
    static Reg dupOdd(Reg r) { return _mm_unpackhi_pd(r, r); }         // r1, r1
    static Reg swapPairs(Reg r) { return _mm_shuffle_pd(r, r, 1); }
    static Reg lowHalves(Reg a, Reg b) { return _mm_unpacklo_pd(a, b); } // a0, b0
    static Reg highHalves(Reg a, Reg b) { return _mm_unpackhi_pd(a, b); } // a1, b1
    static Reg negOdd(Reg r) { return _mm_xor_pd(r, _mm_setr_pd(0.0, -0.0)); }
    static Reg negEven(Reg r) { return _mm_xor_pd(r, _mm_setr_pd(-0.0, 0.0)); }
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

/*
 * qsps.h - the functions of libqspsy8, the qsp signal-processing library.
 *
 * This file is generated from api/qsps.api by tools/gen_api.py; edit the
 * table, not this file.
 *
 * Conventions that hold for every function below:
 *  - Names: qsps + operation + _ + type codes (source before destination) +
 *    suffixes: I (in place), Sfs/ISfs (integer result scaled by
 *    2^-scaleFactor, rounded to nearest even and saturated), L (64-bit
 *    lengths).
 *  - Arguments: sources, destination, length, mode arguments, scale factor
 *    last; records and work buffers after the data.
 *  - Lengths count elements (a complex pair is one element), never bytes.
 *  - Checks, in this order: pointers in parameter order (qspStsNullPtr),
 *    then lengths (qspStsBadSize), then mode arguments. On any error nothing
 *    is written. Warnings are returned after the whole output is written.
 *    The chunking _L functions check their 64-bit length first.
 *  - Pointers need no particular alignment; 16-byte alignment is the fast
 *    case. Sources and destinations must not overlap unless the function's
 *    block says otherwise.
 *  - Threads: no function keeps state between calls; any function may run on
 *    any number of threads at once as long as no two calls write the same
 *    destination, record or buffer.
 */
#ifndef QSPS_H
#define QSPS_H

#include "qspdefs.h"

#ifdef __cplusplus
extern "C" {
#endif

/* Malloc ------------------------------------------------------------------ */
/*
 * Aligned allocation of vectors: qspsMalloc_<type>(len) returns memory for
 * len elements of the type, 64-byte aligned, or a null pointer. Release it
 * with qspsFree. The element count must be positive and its byte count must
 * fit in the size type: a 32-bit variant accepts len up to (2^31-1)/size
 * (1-byte types 2147483647, 2-byte 1073741823, 4-byte 536870911, 8-byte
 * 268435455, 16-byte 134217727); a _L variant up to (2^63-1)/size, except
 * the 2-byte types (16s, 16u, 8sc), whose _L forms accept any positive len
 * and pass 2*len on unchecked (from 2^62 on the doubled count wraps).
 * Outside those ranges the result is null and nothing is allocated.
 * qspsFree releases such memory: the pointer goes unchanged to the support
 * library's qspFree (a null pointer does nothing). Thread-safe.
 */
void qspsFree(void* ptr);
Qsp8u* qspsMalloc_8u(int len);
Qsp8s* qspsMalloc_8s(int len);
Qsp8sc* qspsMalloc_8sc(int len);
Qsp16s* qspsMalloc_16s(int len);
Qsp16u* qspsMalloc_16u(int len);
Qsp16sc* qspsMalloc_16sc(int len);
Qsp32s* qspsMalloc_32s(int len);
Qsp32u* qspsMalloc_32u(int len);
Qsp32sc* qspsMalloc_32sc(int len);
Qsp32f* qspsMalloc_32f(int len);
Qsp32fc* qspsMalloc_32fc(int len);
Qsp64s* qspsMalloc_64s(int len);
Qsp64sc* qspsMalloc_64sc(int len);
Qsp64f* qspsMalloc_64f(int len);
Qsp64fc* qspsMalloc_64fc(int len);
Qsp8u* qspsMalloc_8u_L(Qsp64s len);
Qsp8s* qspsMalloc_8s_L(Qsp64s len);
Qsp8sc* qspsMalloc_8sc_L(Qsp64s len);
Qsp16s* qspsMalloc_16s_L(Qsp64s len);
Qsp16u* qspsMalloc_16u_L(Qsp64s len);
Qsp16sc* qspsMalloc_16sc_L(Qsp64s len);
Qsp32s* qspsMalloc_32s_L(Qsp64s len);
Qsp32u* qspsMalloc_32u_L(Qsp64s len);
Qsp32sc* qspsMalloc_32sc_L(Qsp64s len);
Qsp32f* qspsMalloc_32f_L(Qsp64s len);
Qsp32fc* qspsMalloc_32fc_L(Qsp64s len);
Qsp64s* qspsMalloc_64s_L(Qsp64s len);
Qsp64sc* qspsMalloc_64sc_L(Qsp64s len);
Qsp64f* qspsMalloc_64f_L(Qsp64s len);
Qsp64fc* qspsMalloc_64fc_L(Qsp64s len);

/* GetLibVersion ----------------------------------------------------------- */
/*
 * Returns the address of the library's constant version record. The record
 * lives in read-only data: never write or free it. Thread-safe.
 */
const QspVersionRecord* qspsGetLibVersion(void);

/* Zero -------------------------------------------------------------------- */
/*
 * pDst[i] = 0 (all bits clear) for 0 <= i < len.
 * _L forms take a 64-bit length and check it before the pointer; they work in
 * chunks of floor((2^31-1)/element size) elements.
 */
QspStatus qspsZero_8u(Qsp8u* pDst, int len);
QspStatus qspsZero_16s(Qsp16s* pDst, int len);
QspStatus qspsZero_16sc(Qsp16sc* pDst, int len);
QspStatus qspsZero_32s(Qsp32s* pDst, int len);
QspStatus qspsZero_32sc(Qsp32sc* pDst, int len);
QspStatus qspsZero_32f(Qsp32f* pDst, int len);
QspStatus qspsZero_32fc(Qsp32fc* pDst, int len);
QspStatus qspsZero_64s(Qsp64s* pDst, int len);
QspStatus qspsZero_64sc(Qsp64sc* pDst, int len);
QspStatus qspsZero_64f(Qsp64f* pDst, int len);
QspStatus qspsZero_64fc(Qsp64fc* pDst, int len);
QspStatus qspsZero_32f_L(Qsp32f* pDst, Qsp64s len);
QspStatus qspsZero_32fc_L(Qsp32fc* pDst, Qsp64s len);
QspStatus qspsZero_64f_L(Qsp64f* pDst, Qsp64s len);
QspStatus qspsZero_64fc_L(Qsp64fc* pDst, Qsp64s len);

/* Set --------------------------------------------------------------------- */
/*
 * pDst[i] = val for 0 <= i < len. The value's bit pattern is stored exactly:
 * -0.0 stays -0.0 and every NaN keeps its payload and sign. Complex values are
 * written as their pair of parts.
 */
QspStatus qspsSet_8u(Qsp8u val, Qsp8u* pDst, int len);
QspStatus qspsSet_16s(Qsp16s val, Qsp16s* pDst, int len);
QspStatus qspsSet_16sc(Qsp16sc val, Qsp16sc* pDst, int len);
QspStatus qspsSet_32s(Qsp32s val, Qsp32s* pDst, int len);
QspStatus qspsSet_32sc(Qsp32sc val, Qsp32sc* pDst, int len);
QspStatus qspsSet_32f(Qsp32f val, Qsp32f* pDst, int len);
QspStatus qspsSet_32fc(Qsp32fc val, Qsp32fc* pDst, int len);
QspStatus qspsSet_64s(Qsp64s val, Qsp64s* pDst, int len);
QspStatus qspsSet_64sc(Qsp64sc val, Qsp64sc* pDst, int len);
QspStatus qspsSet_64f(Qsp64f val, Qsp64f* pDst, int len);
QspStatus qspsSet_64fc(Qsp64fc val, Qsp64fc* pDst, int len);

/* Copy -------------------------------------------------------------------- */
/*
 * pDst[i] = pSrc[i] for 0 <= i < len. Source and destination must not
 * overlap (use Move for overlapping vectors). _L forms take a 64-bit length,
 * check it first, and copy in chunks of floor((2^31-1)/element size)
 * elements.
 */
QspStatus qspsCopy_8u(const Qsp8u* pSrc, Qsp8u* pDst, int len);
QspStatus qspsCopy_16s(const Qsp16s* pSrc, Qsp16s* pDst, int len);
QspStatus qspsCopy_16sc(const Qsp16sc* pSrc, Qsp16sc* pDst, int len);
QspStatus qspsCopy_32s(const Qsp32s* pSrc, Qsp32s* pDst, int len);
QspStatus qspsCopy_32sc(const Qsp32sc* pSrc, Qsp32sc* pDst, int len);
QspStatus qspsCopy_32f(const Qsp32f* pSrc, Qsp32f* pDst, int len);
QspStatus qspsCopy_32fc(const Qsp32fc* pSrc, Qsp32fc* pDst, int len);
QspStatus qspsCopy_64s(const Qsp64s* pSrc, Qsp64s* pDst, int len);
QspStatus qspsCopy_64sc(const Qsp64sc* pSrc, Qsp64sc* pDst, int len);
QspStatus qspsCopy_64f(const Qsp64f* pSrc, Qsp64f* pDst, int len);
QspStatus qspsCopy_64fc(const Qsp64fc* pSrc, Qsp64fc* pDst, int len);
QspStatus qspsCopy_32f_L(const Qsp32f* pSrc, Qsp32f* pDst, Qsp64s len);
QspStatus qspsCopy_32fc_L(const Qsp32fc* pSrc, Qsp32fc* pDst, Qsp64s len);
QspStatus qspsCopy_64f_L(const Qsp64f* pSrc, Qsp64f* pDst, Qsp64s len);
QspStatus qspsCopy_64fc_L(const Qsp64fc* pSrc, Qsp64fc* pDst, Qsp64s len);

/* Move -------------------------------------------------------------------- */
/*
 * pDst[i] = old pSrc[i] for 0 <= i < len, for any overlap of the two
 * vectors: the bytes move front to back when the source lies above the
 * destination and back to front otherwise; the same pointer does nothing.
 */
QspStatus qspsMove_8u(const Qsp8u* pSrc, Qsp8u* pDst, int len);
QspStatus qspsMove_16s(const Qsp16s* pSrc, Qsp16s* pDst, int len);
QspStatus qspsMove_16sc(const Qsp16sc* pSrc, Qsp16sc* pDst, int len);
QspStatus qspsMove_32s(const Qsp32s* pSrc, Qsp32s* pDst, int len);
QspStatus qspsMove_32sc(const Qsp32sc* pSrc, Qsp32sc* pDst, int len);
QspStatus qspsMove_32f(const Qsp32f* pSrc, Qsp32f* pDst, int len);
QspStatus qspsMove_32fc(const Qsp32fc* pSrc, Qsp32fc* pDst, int len);
QspStatus qspsMove_64s(const Qsp64s* pSrc, Qsp64s* pDst, int len);
QspStatus qspsMove_64sc(const Qsp64sc* pSrc, Qsp64sc* pDst, int len);
QspStatus qspsMove_64f(const Qsp64f* pSrc, Qsp64f* pDst, int len);
QspStatus qspsMove_64fc(const Qsp64fc* pSrc, Qsp64fc* pDst, int len);

/* Flip -------------------------------------------------------------------- */
/*
 * Reverses the order of the elements: pDst[i] = pSrc[len-1-i]. A complex
 * element moves as a whole; its parts are not exchanged. _I forms reverse
 * pSrcDst where it stands (the middle element of an odd length stays). The
 * out-of-place forms need vectors that do not overlap. _L forms take a 64-bit
 * length and check it before the pointers.
 */
QspStatus qspsFlip_8u(const Qsp8u* pSrc, Qsp8u* pDst, int len);
QspStatus qspsFlip_8u_I(Qsp8u* pSrcDst, int len);
QspStatus qspsFlip_16u(const Qsp16u* pSrc, Qsp16u* pDst, int len);
QspStatus qspsFlip_16u_I(Qsp16u* pSrcDst, int len);
QspStatus qspsFlip_32f(const Qsp32f* pSrc, Qsp32f* pDst, int len);
QspStatus qspsFlip_32f_I(Qsp32f* pSrcDst, int len);
QspStatus qspsFlip_32fc(const Qsp32fc* pSrc, Qsp32fc* pDst, int len);
QspStatus qspsFlip_32fc_I(Qsp32fc* pSrcDst, int len);
QspStatus qspsFlip_64f(const Qsp64f* pSrc, Qsp64f* pDst, int len);
QspStatus qspsFlip_64f_I(Qsp64f* pSrcDst, int len);
QspStatus qspsFlip_64fc(const Qsp64fc* pSrc, Qsp64fc* pDst, int len);
QspStatus qspsFlip_64fc_I(Qsp64fc* pSrcDst, int len);
QspStatus qspsFlip_32f_L(const Qsp32f* pSrc, Qsp32f* pDst, Qsp64s len);
QspStatus qspsFlip_32f_I_L(Qsp32f* pSrcDst, Qsp64s len);
QspStatus qspsFlip_32fc_L(const Qsp32fc* pSrc, Qsp32fc* pDst, Qsp64s len);
QspStatus qspsFlip_32fc_I_L(Qsp32fc* pSrcDst, Qsp64s len);
QspStatus qspsFlip_64f_L(const Qsp64f* pSrc, Qsp64f* pDst, Qsp64s len);
QspStatus qspsFlip_64f_I_L(Qsp64f* pSrcDst, Qsp64s len);
QspStatus qspsFlip_64fc_L(const Qsp64fc* pSrc, Qsp64fc* pDst, Qsp64s len);
QspStatus qspsFlip_64fc_I_L(Qsp64fc* pSrcDst, Qsp64s len);

/* SwapBytes --------------------------------------------------------------- */
/*
 * Reverses the byte order inside every element (endianness conversion).
 * 24u: an element is three bytes (len counts elements, so the vectors hold
 * 3*len bytes); its first and third bytes are exchanged, the middle one stays.
 * Out-of-place forms need vectors that do not overlap.
 */
QspStatus qspsSwapBytes_16u(const Qsp16u* pSrc, Qsp16u* pDst, int len);
QspStatus qspsSwapBytes_16u_I(Qsp16u* pSrcDst, int len);
QspStatus qspsSwapBytes_24u(const Qsp8u* pSrc, Qsp8u* pDst, int len);
QspStatus qspsSwapBytes_24u_I(Qsp8u* pSrcDst, int len);
QspStatus qspsSwapBytes_32u(const Qsp32u* pSrc, Qsp32u* pDst, int len);
QspStatus qspsSwapBytes_32u_I(Qsp32u* pSrcDst, int len);
QspStatus qspsSwapBytes_64u(const Qsp64u* pSrc, Qsp64u* pDst, int len);
QspStatus qspsSwapBytes_64u_I(Qsp64u* pSrcDst, int len);

/* CopyBits ---------------------------------------------------------------- */
/*
 * Copies a run of len bits from bit srcBitOffset of pSrc to bit dstBitOffset
 * of pDst; destination bits outside the run keep their values. Bit k of a
 * string is bit k%8 of byte k/8, so an offset of 8 or more first advances the
 * byte pointer. Within a byte, CopyLE_1u numbers bits from the most
 * significant (bit 0 is mask 0x80), CopyBE_1u from the least significant
 * (bit 0 is mask 0x01). Checks: pSrc, then pDst null gives qspStsNullPtr; len
 * below 1 gives qspStsBadSize, and so does a negative offset. Source and
 * destination runs must not overlap.
 */
QspStatus qspsCopyLE_1u(const Qsp8u* pSrc, int srcBitOffset, Qsp8u* pDst, int dstBitOffset, int len);
QspStatus qspsCopyBE_1u(const Qsp8u* pSrc, int srcBitOffset, Qsp8u* pDst, int dstBitOffset, int len);

/* MulC -------------------------------------------------------------------- */
/*
 * Multiplication by a constant: pDst[i] = pSrc[i] * val (in place:
 * pSrcDst[i] = pSrcDst[i] * val). Floating results are the IEEE products,
 * rounded to nearest.
 */
QspStatus qspsMulC_32f_I(Qsp32f val, Qsp32f* pSrcDst, int len);

/* Add --------------------------------------------------------------------- */
/*
 * Element-wise sum: pDst[i] = pSrc1[i] + pSrc2[i]; in place pSrcDst[i] += pSrc[i].
 * Integer forms without Sfs saturate to the destination type; Sfs/ISfs forms
 * scale the exact sum by 2^-scaleFactor, round to nearest even and saturate
 * (complex: each part alone). Mixed codes name the sources first and the
 * destination last (8u16u: 8u sources, 16u sum). Floating sums are IEEE sums.
 * _L forms take a 64-bit length, check it first and work in chunks of
 * floor((2^31-1)/element size) elements.
 */
QspStatus qspsAdd_16u(const Qsp16u* pSrc1, const Qsp16u* pSrc2, Qsp16u* pDst, int len);
QspStatus qspsAdd_16u_I(const Qsp16u* pSrc, Qsp16u* pSrcDst, int len);
QspStatus qspsAdd_32u(const Qsp32u* pSrc1, const Qsp32u* pSrc2, Qsp32u* pDst, int len);
QspStatus qspsAdd_32f(const Qsp32f* pSrc1, const Qsp32f* pSrc2, Qsp32f* pDst, int len);
QspStatus qspsAdd_32f_I(const Qsp32f* pSrc, Qsp32f* pSrcDst, int len);
QspStatus qspsAdd_64f(const Qsp64f* pSrc1, const Qsp64f* pSrc2, Qsp64f* pDst, int len);
QspStatus qspsAdd_64f_I(const Qsp64f* pSrc, Qsp64f* pSrcDst, int len);
QspStatus qspsAdd_32fc(const Qsp32fc* pSrc1, const Qsp32fc* pSrc2, Qsp32fc* pDst, int len);
QspStatus qspsAdd_32fc_I(const Qsp32fc* pSrc, Qsp32fc* pSrcDst, int len);
QspStatus qspsAdd_64fc(const Qsp64fc* pSrc1, const Qsp64fc* pSrc2, Qsp64fc* pDst, int len);
QspStatus qspsAdd_64fc_I(const Qsp64fc* pSrc, Qsp64fc* pSrcDst, int len);
QspStatus qspsAdd_8u16u(const Qsp8u* pSrc1, const Qsp8u* pSrc2, Qsp16u* pDst, int len);
QspStatus qspsAdd_16s32f(const Qsp16s* pSrc1, const Qsp16s* pSrc2, Qsp32f* pDst, int len);
QspStatus qspsAdd_16s32s(const Qsp16s* pSrc1, const Qsp16s* pSrc2, Qsp32s* pDst, int len);
QspStatus qspsAdd_16s32s_I(const Qsp16s* pSrc, Qsp32s* pSrcDst, int len);
QspStatus qspsAdd_32f64f_I(const Qsp32f* pSrc, Qsp64f* pSrcDst, int len);
QspStatus qspsAdd_8u_Sfs(const Qsp8u* pSrc1, const Qsp8u* pSrc2, Qsp8u* pDst, int len, int scaleFactor);
QspStatus qspsAdd_8u_ISfs(const Qsp8u* pSrc, Qsp8u* pSrcDst, int len, int scaleFactor);
QspStatus qspsAdd_16s_Sfs(const Qsp16s* pSrc1, const Qsp16s* pSrc2, Qsp16s* pDst, int len, int scaleFactor);
QspStatus qspsAdd_16s_ISfs(const Qsp16s* pSrc, Qsp16s* pSrcDst, int len, int scaleFactor);
QspStatus qspsAdd_16u_Sfs(const Qsp16u* pSrc1, const Qsp16u* pSrc2, Qsp16u* pDst, int len, int scaleFactor);
QspStatus qspsAdd_16u_ISfs(const Qsp16u* pSrc, Qsp16u* pSrcDst, int len, int scaleFactor);
QspStatus qspsAdd_32s_Sfs(const Qsp32s* pSrc1, const Qsp32s* pSrc2, Qsp32s* pDst, int len, int scaleFactor);
QspStatus qspsAdd_32s_ISfs(const Qsp32s* pSrc, Qsp32s* pSrcDst, int len, int scaleFactor);
QspStatus qspsAdd_16sc_Sfs(const Qsp16sc* pSrc1, const Qsp16sc* pSrc2, Qsp16sc* pDst, int len, int scaleFactor);
QspStatus qspsAdd_16sc_ISfs(const Qsp16sc* pSrc, Qsp16sc* pSrcDst, int len, int scaleFactor);
QspStatus qspsAdd_32sc_Sfs(const Qsp32sc* pSrc1, const Qsp32sc* pSrc2, Qsp32sc* pDst, int len, int scaleFactor);
QspStatus qspsAdd_32sc_ISfs(const Qsp32sc* pSrc, Qsp32sc* pSrcDst, int len, int scaleFactor);
QspStatus qspsAdd_32f_L(const Qsp32f* pSrc1, const Qsp32f* pSrc2, Qsp32f* pDst, Qsp64s len);
QspStatus qspsAdd_32f_I_L(const Qsp32f* pSrc, Qsp32f* pSrcDst, Qsp64s len);
QspStatus qspsAdd_64f_L(const Qsp64f* pSrc1, const Qsp64f* pSrc2, Qsp64f* pDst, Qsp64s len);
QspStatus qspsAdd_64f_I_L(const Qsp64f* pSrc, Qsp64f* pSrcDst, Qsp64s len);
QspStatus qspsAdd_32fc_L(const Qsp32fc* pSrc1, const Qsp32fc* pSrc2, Qsp32fc* pDst, Qsp64s len);
QspStatus qspsAdd_32fc_I_L(const Qsp32fc* pSrc, Qsp32fc* pSrcDst, Qsp64s len);
QspStatus qspsAdd_64fc_L(const Qsp64fc* pSrc1, const Qsp64fc* pSrc2, Qsp64fc* pDst, Qsp64s len);
QspStatus qspsAdd_64fc_I_L(const Qsp64fc* pSrc, Qsp64fc* pSrcDst, Qsp64s len);

/* FFTGetSize -------------------------------------------------------------- */
/*
 * Sizes, in bytes, that a power-of-two FFT of length N = 2^order needs:
 * *pSpecSize for the record block, *pSpecBufferSize for the buffer used only
 * during Init, *pBufferSize for the work buffer of every transform call (0: no
 * buffer needed). flag is the normalisation: 1 forward divided by N, 2 inverse
 * divided by N, 4 both divided by sqrt(N), 8 none; any other value gives
 * qspStsBadFftFlag. hint is not checked. Kinds and orders: C_16fc, C_32fc, C_32f
 * (split parts) 0..28; R_32f 0..29; C_64fc, C_64f 0..27; R_64f 0..28; other
 * orders give qspStsBadFftOrder. Every size includes 64 bytes of slack per
 * non-empty block, so the blocks need no alignment.
 * Checks: order 31 or above, then the three pointers, then the flag, then the
 * kind's maximum order (C_16fc: the pointers, then orders above 30, then as
 * C_32fc). Complex single precision: orders 0..5 need 208 bytes of record and
 * no buffers; orders 6..17 a record of r64(8N+71) + r64(N+67) + 256 bytes, a
 * work buffer of r64(8N+63) + 64 and, from order 11, an Init buffer of
 * r64(N+67) + 64 (r64(x) = x rounded down to a multiple of 64); from order 18
 * the blocked layout (record (4 << (order-12)) + 4160 bytes larger from order
 * 19, work at least 65536 + 64). Split kinds report what the interleaved kinds
 * do; C_16fc adds 8N to the work buffer (a single-precision copy of the data)
 * and 20 to the record. Complex double precision: r64(16N+79) + r64(N+67) +
 * 256, work r64(16N+63) + 64, Init buffer r64(2N+71) + 64, blocked from order
 * 17. R_32f: the complex sizes of order-1 plus two recombination tables. Sizes
 * are formed in 64 bits and stored as int: the C_32fc record and work sizes of
 * order 28 exceed the int range and wrap as 32-bit arithmetic does. Thread-safe.
 */
QspStatus qspsFFTGetSize_C_16fc(int order, int flag, QspHintAlgorithm hint, int* pSpecSize, int* pSpecBufferSize, int* pBufferSize);
QspStatus qspsFFTGetSize_C_32fc(int order, int flag, QspHintAlgorithm hint, int* pSpecSize, int* pSpecBufferSize, int* pBufferSize);
QspStatus qspsFFTGetSize_C_32f(int order, int flag, QspHintAlgorithm hint, int* pSpecSize, int* pSpecBufferSize, int* pBufferSize);
QspStatus qspsFFTGetSize_R_32f(int order, int flag, QspHintAlgorithm hint, int* pSpecSize, int* pSpecBufferSize, int* pBufferSize);
QspStatus qspsFFTGetSize_C_64fc(int order, int flag, QspHintAlgorithm hint, int* pSpecSize, int* pSpecBufferSize, int* pBufferSize);
QspStatus qspsFFTGetSize_C_64f(int order, int flag, QspHintAlgorithm hint, int* pSpecSize, int* pSpecBufferSize, int* pBufferSize);
QspStatus qspsFFTGetSize_R_64f(int order, int flag, QspHintAlgorithm hint, int* pSpecSize, int* pSpecBufferSize, int* pBufferSize);

/* FFTInit ----------------------------------------------------------------- */
/*
 * Builds an FFT record of the kind in the name inside the caller's block pSpec
 * (at least *pSpecSize bytes, any alignment): the record starts at the next
 * 64-byte boundary, whose address is stored in *ppFFTSpec. pSpecBuffer (the
 * Init buffer) may be null when its size is 0. order, flag and hint as in
 * FFTGetSize. A rejected flag leaves the record unusable (transforms give
 * qspStsBadRecord). Init of C_16fc switches the processor to flush-to-zero and
 * denormals-are-zero and leaves them so. Records are read-only afterwards and
 * may be shared by threads; there is no release call.
 * Checks: null ppFFTSpec, order above the kind's maximum (unsigned, so negative
 * orders fail too), null pSpec, all before anything is written; then the
 * record header is cleared, the flag decoded (a bad flag leaves identifier 0)
 * and, from order 11, a null pSpecBuffer gives qspStsNullPtr (identifier 0).
 * The normalisation factor is 1.0f/(float)N and (float)(1.0/sqrt(N)) in single
 * precision, 1.0/N and 1.0/sqrt(N) in double. Twiddles are cos and sin of
 * 2 pi j / N from the library's own sine and cosine, taken from one octant by
 * exact symmetry (correctly rounded values, never built by repeated
 * multiplication); orders up to 10 read a built-in table, larger ones build
 * the octant in pSpecBuffer. Nothing is allocated and the record never points
 * outside pSpec.
 */
QspStatus qspsFFTInit_C_16fc(QspsFFTSpec_C_16fc** ppFFTSpec, int order, int flag, QspHintAlgorithm hint, Qsp8u* pSpec, Qsp8u* pSpecBuffer);
QspStatus qspsFFTInit_C_32fc(QspsFFTSpec_C_32fc** ppFFTSpec, int order, int flag, QspHintAlgorithm hint, Qsp8u* pSpec, Qsp8u* pSpecBuffer);
QspStatus qspsFFTInit_C_32f(QspsFFTSpec_C_32f** ppFFTSpec, int order, int flag, QspHintAlgorithm hint, Qsp8u* pSpec, Qsp8u* pSpecBuffer);
QspStatus qspsFFTInit_R_32f(QspsFFTSpec_R_32f** ppFFTSpec, int order, int flag, QspHintAlgorithm hint, Qsp8u* pSpec, Qsp8u* pSpecBuffer);
QspStatus qspsFFTInit_C_64fc(QspsFFTSpec_C_64fc** ppFFTSpec, int order, int flag, QspHintAlgorithm hint, Qsp8u* pSpec, Qsp8u* pSpecBuffer);
QspStatus qspsFFTInit_C_64f(QspsFFTSpec_C_64f** ppFFTSpec, int order, int flag, QspHintAlgorithm hint, Qsp8u* pSpec, Qsp8u* pSpecBuffer);
QspStatus qspsFFTInit_R_64f(QspsFFTSpec_R_64f** ppFFTSpec, int order, int flag, QspHintAlgorithm hint, Qsp8u* pSpec, Qsp8u* pSpecBuffer);

/* FFTFwd ------------------------------------------------------------------ */
/*
 * Forward FFT, X[k] = sum over m of x[m] e^(-2 pi i k m / N), N = 2^order of
 * the record. CToC: complex to complex (interleaved, or split into pSrcRe/
 * pSrcIm and pDstRe/pDstIm for 32f and 64f). RToPack, RToPerm, RToCCS: real
 * signal of N values to its half spectrum in the packed layout named (Pack and
 * Perm hold N values, CCS N+2). Divided by N or sqrt(N) only as the record's
 * flag says. _I forms transform in place (for RToCCS the array holds N+2
 * values). Checks: null record, then the record's kind (qspStsBadRecord), then
 * the data pointers, then a null pBuffer while the record needs one.
 * pBuffer may be null whenever the record's work size is 0 (complex orders
 * 0..5, real orders 0..6, and C_16fc up to order 5, whose data copy then fits
 * on the stack); a buffer given where none is needed is not touched. Source
 * and destination may be the same array (that is what the _I forms do); any
 * other overlap is not allowed. In-place and out-of-place results are
 * bit-identical. Packed layouts for N values, X[k] = R_k + i I_k:
 *   Pack  R0, R1, I1, ..., R(N/2-1), I(N/2-1), R(N/2)
 *   Perm  R0, R(N/2), R1, I1, ..., R(N/2-1), I(N/2-1)
 *   CCS   R0, 0, R1, I1, ..., R(N/2-1), I(N/2-1), R(N/2), 0   (N+2 values)
 * N = 1: R0 (CCS: R0, 0); N = 2: Pack and Perm are R0, R1. Accuracy against
 * the exact transform: relative RMS error below 2e-7 sqrt(log2 N) in single
 * and 4e-16 sqrt(log2 N) in double precision. C_16fc converts to single
 * precision in the work buffer, transforms there and rounds back to half
 * precision (ties to even). A record and its tables are only read, so several
 * threads may use one record at once with a work buffer each.
 */
QspStatus qspsFFTFwd_CToC_16fc(const Qsp16fc* pSrc, Qsp16fc* pDst, const QspsFFTSpec_C_16fc* pFFTSpec, Qsp8u* pBuffer);
QspStatus qspsFFTFwd_CToC_32fc(const Qsp32fc* pSrc, Qsp32fc* pDst, const QspsFFTSpec_C_32fc* pFFTSpec, Qsp8u* pBuffer);
QspStatus qspsFFTFwd_CToC_32fc_I(Qsp32fc* pSrcDst, const QspsFFTSpec_C_32fc* pFFTSpec, Qsp8u* pBuffer);
QspStatus qspsFFTFwd_CToC_32f(const Qsp32f* pSrcRe, const Qsp32f* pSrcIm, Qsp32f* pDstRe, Qsp32f* pDstIm, const QspsFFTSpec_C_32f* pFFTSpec, Qsp8u* pBuffer);
QspStatus qspsFFTFwd_CToC_32f_I(Qsp32f* pSrcDstRe, Qsp32f* pSrcDstIm, const QspsFFTSpec_C_32f* pFFTSpec, Qsp8u* pBuffer);
QspStatus qspsFFTFwd_CToC_64fc(const Qsp64fc* pSrc, Qsp64fc* pDst, const QspsFFTSpec_C_64fc* pFFTSpec, Qsp8u* pBuffer);
QspStatus qspsFFTFwd_CToC_64fc_I(Qsp64fc* pSrcDst, const QspsFFTSpec_C_64fc* pFFTSpec, Qsp8u* pBuffer);
QspStatus qspsFFTFwd_CToC_64f(const Qsp64f* pSrcRe, const Qsp64f* pSrcIm, Qsp64f* pDstRe, Qsp64f* pDstIm, const QspsFFTSpec_C_64f* pFFTSpec, Qsp8u* pBuffer);
QspStatus qspsFFTFwd_CToC_64f_I(Qsp64f* pSrcDstRe, Qsp64f* pSrcDstIm, const QspsFFTSpec_C_64f* pFFTSpec, Qsp8u* pBuffer);
QspStatus qspsFFTFwd_RToPack_32f(const Qsp32f* pSrc, Qsp32f* pDst, const QspsFFTSpec_R_32f* pFFTSpec, Qsp8u* pBuffer);
QspStatus qspsFFTFwd_RToPack_32f_I(Qsp32f* pSrcDst, const QspsFFTSpec_R_32f* pFFTSpec, Qsp8u* pBuffer);
QspStatus qspsFFTFwd_RToPerm_32f(const Qsp32f* pSrc, Qsp32f* pDst, const QspsFFTSpec_R_32f* pFFTSpec, Qsp8u* pBuffer);
QspStatus qspsFFTFwd_RToPerm_32f_I(Qsp32f* pSrcDst, const QspsFFTSpec_R_32f* pFFTSpec, Qsp8u* pBuffer);
QspStatus qspsFFTFwd_RToCCS_32f(const Qsp32f* pSrc, Qsp32f* pDst, const QspsFFTSpec_R_32f* pFFTSpec, Qsp8u* pBuffer);
QspStatus qspsFFTFwd_RToCCS_32f_I(Qsp32f* pSrcDst, const QspsFFTSpec_R_32f* pFFTSpec, Qsp8u* pBuffer);
QspStatus qspsFFTFwd_RToPack_64f(const Qsp64f* pSrc, Qsp64f* pDst, const QspsFFTSpec_R_64f* pFFTSpec, Qsp8u* pBuffer);
QspStatus qspsFFTFwd_RToPack_64f_I(Qsp64f* pSrcDst, const QspsFFTSpec_R_64f* pFFTSpec, Qsp8u* pBuffer);
QspStatus qspsFFTFwd_RToPerm_64f(const Qsp64f* pSrc, Qsp64f* pDst, const QspsFFTSpec_R_64f* pFFTSpec, Qsp8u* pBuffer);
QspStatus qspsFFTFwd_RToPerm_64f_I(Qsp64f* pSrcDst, const QspsFFTSpec_R_64f* pFFTSpec, Qsp8u* pBuffer);
QspStatus qspsFFTFwd_RToCCS_64f(const Qsp64f* pSrc, Qsp64f* pDst, const QspsFFTSpec_R_64f* pFFTSpec, Qsp8u* pBuffer);
QspStatus qspsFFTFwd_RToCCS_64f_I(Qsp64f* pSrcDst, const QspsFFTSpec_R_64f* pFFTSpec, Qsp8u* pBuffer);

/* FFTInv ------------------------------------------------------------------ */
/*
 * Inverse FFT, x[m] = sum over k of X[k] e^(+2 pi i k m / N), the exact inverse
 * of FFTFwd up to the normalisation the record's flag chooses (flag 2 divides
 * the inverse by N, 4 by sqrt(N)). PackToR, PermToR, CCSToR read a packed half
 * spectrum and write N real values. Arguments and checks as in FFTFwd.
 * The inverse real transforms read the packed values and ignore the stored
 * zeros of CCS (its elements 1 and N+1); the _I forms of CCSToR need N+2
 * values in the array. Buffers, aliasing, accuracy and threads as in FFTFwd.
 */
QspStatus qspsFFTInv_CToC_16fc(const Qsp16fc* pSrc, Qsp16fc* pDst, const QspsFFTSpec_C_16fc* pFFTSpec, Qsp8u* pBuffer);
QspStatus qspsFFTInv_CToC_32fc(const Qsp32fc* pSrc, Qsp32fc* pDst, const QspsFFTSpec_C_32fc* pFFTSpec, Qsp8u* pBuffer);
QspStatus qspsFFTInv_CToC_32fc_I(Qsp32fc* pSrcDst, const QspsFFTSpec_C_32fc* pFFTSpec, Qsp8u* pBuffer);
QspStatus qspsFFTInv_CToC_32f(const Qsp32f* pSrcRe, const Qsp32f* pSrcIm, Qsp32f* pDstRe, Qsp32f* pDstIm, const QspsFFTSpec_C_32f* pFFTSpec, Qsp8u* pBuffer);
QspStatus qspsFFTInv_CToC_32f_I(Qsp32f* pSrcDstRe, Qsp32f* pSrcDstIm, const QspsFFTSpec_C_32f* pFFTSpec, Qsp8u* pBuffer);
QspStatus qspsFFTInv_CToC_64fc(const Qsp64fc* pSrc, Qsp64fc* pDst, const QspsFFTSpec_C_64fc* pFFTSpec, Qsp8u* pBuffer);
QspStatus qspsFFTInv_CToC_64fc_I(Qsp64fc* pSrcDst, const QspsFFTSpec_C_64fc* pFFTSpec, Qsp8u* pBuffer);
QspStatus qspsFFTInv_CToC_64f(const Qsp64f* pSrcRe, const Qsp64f* pSrcIm, Qsp64f* pDstRe, Qsp64f* pDstIm, const QspsFFTSpec_C_64f* pFFTSpec, Qsp8u* pBuffer);
QspStatus qspsFFTInv_CToC_64f_I(Qsp64f* pSrcDstRe, Qsp64f* pSrcDstIm, const QspsFFTSpec_C_64f* pFFTSpec, Qsp8u* pBuffer);
QspStatus qspsFFTInv_PackToR_32f(const Qsp32f* pSrc, Qsp32f* pDst, const QspsFFTSpec_R_32f* pFFTSpec, Qsp8u* pBuffer);
QspStatus qspsFFTInv_PackToR_32f_I(Qsp32f* pSrcDst, const QspsFFTSpec_R_32f* pFFTSpec, Qsp8u* pBuffer);
QspStatus qspsFFTInv_PermToR_32f(const Qsp32f* pSrc, Qsp32f* pDst, const QspsFFTSpec_R_32f* pFFTSpec, Qsp8u* pBuffer);
QspStatus qspsFFTInv_PermToR_32f_I(Qsp32f* pSrcDst, const QspsFFTSpec_R_32f* pFFTSpec, Qsp8u* pBuffer);
QspStatus qspsFFTInv_CCSToR_32f(const Qsp32f* pSrc, Qsp32f* pDst, const QspsFFTSpec_R_32f* pFFTSpec, Qsp8u* pBuffer);
QspStatus qspsFFTInv_CCSToR_32f_I(Qsp32f* pSrcDst, const QspsFFTSpec_R_32f* pFFTSpec, Qsp8u* pBuffer);
QspStatus qspsFFTInv_PackToR_64f(const Qsp64f* pSrc, Qsp64f* pDst, const QspsFFTSpec_R_64f* pFFTSpec, Qsp8u* pBuffer);
QspStatus qspsFFTInv_PackToR_64f_I(Qsp64f* pSrcDst, const QspsFFTSpec_R_64f* pFFTSpec, Qsp8u* pBuffer);
QspStatus qspsFFTInv_PermToR_64f(const Qsp64f* pSrc, Qsp64f* pDst, const QspsFFTSpec_R_64f* pFFTSpec, Qsp8u* pBuffer);
QspStatus qspsFFTInv_PermToR_64f_I(Qsp64f* pSrcDst, const QspsFFTSpec_R_64f* pFFTSpec, Qsp8u* pBuffer);
QspStatus qspsFFTInv_CCSToR_64f(const Qsp64f* pSrc, Qsp64f* pDst, const QspsFFTSpec_R_64f* pFFTSpec, Qsp8u* pBuffer);
QspStatus qspsFFTInv_CCSToR_64f_I(Qsp64f* pSrcDst, const QspsFFTSpec_R_64f* pFFTSpec, Qsp8u* pBuffer);

/* MulPack ----------------------------------------------------------------- */
/*
 * Multiplies two half spectra in Pack layout bin by bin: pSrcDst = pSrc *
 * pSrcDst, where element 0 (and, for even len, element len-1) are real and the
 * pairs in between complex. len is the packed length (N values).
 * Odd len: element 0 real, then (len-1)/2 pairs. Each product is formed in the
 * element type ((a_r b_r - a_i b_i), (a_r b_i + a_i b_r)). Checks: pointers,
 * then len < 1 (qspStsBadSize); nothing is written on error. pSrc must not
 * overlap pSrcDst. Thread-safe.
 */
QspStatus qspsMulPack_32f_I(const Qsp32f* pSrc, Qsp32f* pSrcDst, int len);
QspStatus qspsMulPack_64f_I(const Qsp64f* pSrc, Qsp64f* pSrcDst, int len);

/* MulPackConj ------------------------------------------------------------- */
/*
 * As MulPack, with the in-place operand conjugated: pSrcDst = pSrc *
 * conj(pSrcDst), bin by bin, in Pack layout.
 * A pair becomes a_r b_r + a_i b_i + i (a_i b_r - a_r b_i), a = pSrc,
 * b = pSrcDst. Checks, aliasing and threads as in MulPack.
 */
QspStatus qspsMulPackConj_32f_I(const Qsp32f* pSrc, Qsp32f* pSrcDst, int len);
QspStatus qspsMulPackConj_64f_I(const Qsp64f* pSrc, Qsp64f* pSrcDst, int len);

/* MulPerm ----------------------------------------------------------------- */
/*
 * Multiplies two half spectra in Perm layout bin by bin: pDst = pSrc1 * pSrc2,
 * or in place pSrcDst = pSrc * pSrcDst. Element 0 and, for even len, element 1
 * are real; the complex pairs follow. len is the packed length (N values).
 * Odd len is laid out as Pack (element 0 real, pairs from element 1), so
 * MulPerm and MulPack agree there. pDst may be pSrc1 or pSrc2 (the _I form is
 * the out-of-place one with pDst = pSrc2). Checks as in MulPack. Thread-safe.
 */
QspStatus qspsMulPerm_32f(const Qsp32f* pSrc1, const Qsp32f* pSrc2, Qsp32f* pDst, int len);
QspStatus qspsMulPerm_32f_I(const Qsp32f* pSrc, Qsp32f* pSrcDst, int len);
QspStatus qspsMulPerm_64f(const Qsp64f* pSrc1, const Qsp64f* pSrc2, Qsp64f* pDst, int len);
QspStatus qspsMulPerm_64f_I(const Qsp64f* pSrc, Qsp64f* pSrcDst, int len);

/* ConjPerm ---------------------------------------------------------------- */
/*
 * Expands a half spectrum in Perm layout (real values) into the complete
 * conjugate-symmetric spectrum of len complex values: pDst[k] = X[k] for the
 * stored bins and conj(X[len-k]) for the others. The _I form reads the packed
 * values from the start of pSrcDst and writes the len complex values over them
 * (the array holds len complex values).
 * Even len: X[0] = (R0, 0), X[len/2] = (R(len/2), 0) from element 1; odd len
 * as Pack. Checks: pointers, then len < 1. Thread-safe.
 */
QspStatus qspsConjPerm_32fc(const Qsp32f* pSrc, Qsp32fc* pDst, int len);
QspStatus qspsConjPerm_32fc_I(Qsp32fc* pSrcDst, int len);
QspStatus qspsConjPerm_64fc(const Qsp64f* pSrc, Qsp64fc* pDst, int len);
QspStatus qspsConjPerm_64fc_I(Qsp64fc* pSrcDst, int len);

/* ConjPack ---------------------------------------------------------------- */
/*
 * Expands a half spectrum in Pack layout (real values) into the complete
 * conjugate-symmetric spectrum of len complex values: pDst[k] = X[k] for the
 * stored bins and conj(X[len-k]) for the others. The _I form reads the packed
 * values from the start of pSrcDst and writes the len complex values over them
 * (the array holds len complex values). _L forms take a 64-bit length
 * and run in one pass.
 * The _L forms check the 64-bit length before the pointers; a packed value
 * is read before its place in the output is written, so the in-place forms
 * need no extra room. Thread-safe.
 */
QspStatus qspsConjPack_32fc(const Qsp32f* pSrc, Qsp32fc* pDst, int len);
QspStatus qspsConjPack_32fc_I(Qsp32fc* pSrcDst, int len);
QspStatus qspsConjPack_32fc_L(const Qsp32f* pSrc, Qsp32fc* pDst, Qsp64s len);
QspStatus qspsConjPack_32fc_I_L(Qsp32fc* pSrcDst, Qsp64s len);
QspStatus qspsConjPack_64fc(const Qsp64f* pSrc, Qsp64fc* pDst, int len);
QspStatus qspsConjPack_64fc_I(Qsp64fc* pSrcDst, int len);
QspStatus qspsConjPack_64fc_L(const Qsp64f* pSrc, Qsp64fc* pDst, Qsp64s len);
QspStatus qspsConjPack_64fc_I_L(Qsp64fc* pSrcDst, Qsp64s len);

/* ConjCcs ----------------------------------------------------------------- */
/*
 * Expands a half spectrum in CCS layout (real values) into the complete
 * conjugate-symmetric spectrum of len complex values: pDst[k] = X[k] for the
 * stored bins and conj(X[len-k]) for the others. The _I form reads the packed
 * values from the start of pSrcDst and writes the len complex values over them
 * (the array holds len complex values). _L forms take a 64-bit length
 * and run in one pass.
 * CCS holds len/2 + 1 complex bins (len + 2 values for even len, len + 1 for
 * odd); the stored values of bin 0 (and bin len/2) are copied as they are.
 * The _L forms check the 64-bit length before the pointers. Thread-safe.
 */
QspStatus qspsConjCcs_32fc(const Qsp32f* pSrc, Qsp32fc* pDst, int len);
QspStatus qspsConjCcs_32fc_I(Qsp32fc* pSrcDst, int len);
QspStatus qspsConjCcs_32fc_L(const Qsp32f* pSrc, Qsp32fc* pDst, Qsp64s len);
QspStatus qspsConjCcs_32fc_I_L(Qsp32fc* pSrcDst, Qsp64s len);
QspStatus qspsConjCcs_64fc(const Qsp64f* pSrc, Qsp64fc* pDst, int len);
QspStatus qspsConjCcs_64fc_I(Qsp64fc* pSrcDst, int len);
QspStatus qspsConjCcs_64fc_L(const Qsp64f* pSrc, Qsp64fc* pDst, Qsp64s len);
QspStatus qspsConjCcs_64fc_I_L(Qsp64fc* pSrcDst, Qsp64s len);

#ifdef __cplusplus
}
#endif

#endif /* QSPS_H */

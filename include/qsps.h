/* SPDX-License-Identifier: BSD-3-Clause
 *
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
 *    The chunking _L functions check their 64-bit length first. Status
 *    values are listed in qspdefs.h; qspStatusText(status) names one.
 *  - Pointers need no particular alignment; 16-byte alignment is the fast
 *    case. Sources and destinations must not overlap unless the function's
 *    block says otherwise.
 *  - State and threads: the library keeps no global state and no function
 *    keeps state between calls, with one exception: qspsFFTInit_C_16fc
 *    switches flush-to-zero and denormals-are-zero on (through libqspcore's
 *    qspSetFlushToZero and qspSetDenormAreZeros, in the MXCSR register of
 *    the calling thread) and leaves them on, so that afterwards denormal
 *    single and double results of that thread become zero and denormal
 *    operands read as zero. A program that needs denormals switches them
 *    back after that call (both libqspcore functions report the previous
 *    mode). Any function may run on any number of threads at once as long
 *    as no two calls write the same destination, record or buffer.
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
 * Multiplication by a constant: pDst[i] = pSrc[i] * val (in place: pSrcDst[i]
 * = pSrcDst[i] * val). Floating results are the IEEE products (complex: re =
 * ar*cr - ai*ci, im = ai*cr + ar*ci, each product rounded before the sum, so
 * each part is within 2^-23 (single) or 2^-52 (double) of |ar*cr| + |ai*ci|).
 * Integer Sfs forms scale the exact product by 2^-scaleFactor, round to
 * nearest even and saturate; the 16sc constant -32768 - 32768i, whose products
 * reach 2^31, runs its own kernels with the same results. 32f16s: the exact
 * product of the floats, scaled, rounded to nearest even and saturated (NaN
 * gives 0). The _L forms run over their 64-bit length with kernels of their
 * own: the floating ones check the length before the pointers, 32s_Sfs_L and
 * 32s_ISfs_L the pointers first. A destination may be the same vector as a
 * source (that is how the I forms run); other overlaps are not allowed.
 * Thread-safe.
 */
QspStatus qspsMulC_32f_I(Qsp32f val, Qsp32f* pSrcDst, int len);
QspStatus qspsMulC_32f(const Qsp32f* pSrc, Qsp32f val, Qsp32f* pDst, int len);
QspStatus qspsMulC_64f(const Qsp64f* pSrc, Qsp64f val, Qsp64f* pDst, int len);
QspStatus qspsMulC_64f_I(Qsp64f val, Qsp64f* pSrcDst, int len);
QspStatus qspsMulC_32fc(const Qsp32fc* pSrc, Qsp32fc val, Qsp32fc* pDst, int len);
QspStatus qspsMulC_32fc_I(Qsp32fc val, Qsp32fc* pSrcDst, int len);
QspStatus qspsMulC_64fc(const Qsp64fc* pSrc, Qsp64fc val, Qsp64fc* pDst, int len);
QspStatus qspsMulC_64fc_I(Qsp64fc val, Qsp64fc* pSrcDst, int len);
QspStatus qspsMulC_8u_Sfs(const Qsp8u* pSrc, Qsp8u val, Qsp8u* pDst, int len, int scaleFactor);
QspStatus qspsMulC_8u_ISfs(Qsp8u val, Qsp8u* pSrcDst, int len, int scaleFactor);
QspStatus qspsMulC_16s_Sfs(const Qsp16s* pSrc, Qsp16s val, Qsp16s* pDst, int len, int scaleFactor);
QspStatus qspsMulC_16s_ISfs(Qsp16s val, Qsp16s* pSrcDst, int len, int scaleFactor);
QspStatus qspsMulC_16u_Sfs(const Qsp16u* pSrc, Qsp16u val, Qsp16u* pDst, int len, int scaleFactor);
QspStatus qspsMulC_16u_ISfs(Qsp16u val, Qsp16u* pSrcDst, int len, int scaleFactor);
QspStatus qspsMulC_32s_Sfs(const Qsp32s* pSrc, Qsp32s val, Qsp32s* pDst, int len, int scaleFactor);
QspStatus qspsMulC_32s_ISfs(Qsp32s val, Qsp32s* pSrcDst, int len, int scaleFactor);
QspStatus qspsMulC_16sc_Sfs(const Qsp16sc* pSrc, Qsp16sc val, Qsp16sc* pDst, int len, int scaleFactor);
QspStatus qspsMulC_16sc_ISfs(Qsp16sc val, Qsp16sc* pSrcDst, int len, int scaleFactor);
QspStatus qspsMulC_32sc_Sfs(const Qsp32sc* pSrc, Qsp32sc val, Qsp32sc* pDst, int len, int scaleFactor);
QspStatus qspsMulC_32sc_ISfs(Qsp32sc val, Qsp32sc* pSrcDst, int len, int scaleFactor);
QspStatus qspsMulC_32f16s_Sfs(const Qsp32f* pSrc, Qsp32f val, Qsp16s* pDst, int len, int scaleFactor);
QspStatus qspsMulC_32f_L(const Qsp32f* pSrc, Qsp32f val, Qsp32f* pDst, Qsp64s len);
QspStatus qspsMulC_32f_I_L(Qsp32f val, Qsp32f* pSrcDst, Qsp64s len);
QspStatus qspsMulC_64f_L(const Qsp64f* pSrc, Qsp64f val, Qsp64f* pDst, Qsp64s len);
QspStatus qspsMulC_64f_I_L(Qsp64f val, Qsp64f* pSrcDst, Qsp64s len);
QspStatus qspsMulC_32fc_L(const Qsp32fc* pSrc, Qsp32fc val, Qsp32fc* pDst, Qsp64s len);
QspStatus qspsMulC_32fc_I_L(Qsp32fc val, Qsp32fc* pSrcDst, Qsp64s len);
QspStatus qspsMulC_64fc_L(const Qsp64fc* pSrc, Qsp64fc val, Qsp64fc* pDst, Qsp64s len);
QspStatus qspsMulC_64fc_I_L(Qsp64fc val, Qsp64fc* pSrcDst, Qsp64s len);
QspStatus qspsMulC_32s_Sfs_L(const Qsp32s* pSrc, Qsp32s val, Qsp32s* pDst, Qsp64s len, int scaleFactor);
QspStatus qspsMulC_32s_ISfs_L(Qsp32s val, Qsp32s* pSrcDst, Qsp64s len, int scaleFactor);

/* Add --------------------------------------------------------------------- */
/*
 * Element-wise sum: pDst[i] = pSrc1[i] + pSrc2[i]; in place pSrcDst[i] +=
 * pSrc[i]. Integer forms without Sfs saturate to the destination type;
 * Sfs/ISfs forms scale the exact sum by 2^-scaleFactor, round to nearest even
 * and saturate (complex: each part alone; scale factors from the bit length of
 * the largest sum plus one up write zeros, e.g. 17 and above for 16s). Mixed
 * codes name the sources first and the destination last (8u16u: 8u sources,
 * 16u sum; 16s32f: the exact sum as a float; 32f64f_I: the float widened, then
 * added). Floating sums are IEEE sums, correctly rounded. _L forms take a
 * 64-bit length, check it first and work in chunks of floor((2^31-1)/element
 * size) elements; the status is that of the last chunk. A destination may be
 * the same vector as a source (that is how the I forms run); other overlaps
 * are not allowed. Thread-safe.
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

/* Sub --------------------------------------------------------------------- */
/*
 * Element-wise difference, second source minus first: pDst[i] = pSrc2[i] -
 * pSrc1[i]; in place pSrcDst[i] = pSrcDst[i] - pSrc[i]. Scaling, saturation
 * and the _L chunking as for Add.
 */
QspStatus qspsSub_16u(const Qsp16u* pSrc1, const Qsp16u* pSrc2, Qsp16u* pDst, int len);
QspStatus qspsSub_16u_I(const Qsp16u* pSrc, Qsp16u* pSrcDst, int len);
QspStatus qspsSub_32f(const Qsp32f* pSrc1, const Qsp32f* pSrc2, Qsp32f* pDst, int len);
QspStatus qspsSub_32f_I(const Qsp32f* pSrc, Qsp32f* pSrcDst, int len);
QspStatus qspsSub_64f(const Qsp64f* pSrc1, const Qsp64f* pSrc2, Qsp64f* pDst, int len);
QspStatus qspsSub_64f_I(const Qsp64f* pSrc, Qsp64f* pSrcDst, int len);
QspStatus qspsSub_32fc(const Qsp32fc* pSrc1, const Qsp32fc* pSrc2, Qsp32fc* pDst, int len);
QspStatus qspsSub_32fc_I(const Qsp32fc* pSrc, Qsp32fc* pSrcDst, int len);
QspStatus qspsSub_64fc(const Qsp64fc* pSrc1, const Qsp64fc* pSrc2, Qsp64fc* pDst, int len);
QspStatus qspsSub_64fc_I(const Qsp64fc* pSrc, Qsp64fc* pSrcDst, int len);
QspStatus qspsSub_8u_Sfs(const Qsp8u* pSrc1, const Qsp8u* pSrc2, Qsp8u* pDst, int len, int scaleFactor);
QspStatus qspsSub_8u_ISfs(const Qsp8u* pSrc, Qsp8u* pSrcDst, int len, int scaleFactor);
QspStatus qspsSub_16s_Sfs(const Qsp16s* pSrc1, const Qsp16s* pSrc2, Qsp16s* pDst, int len, int scaleFactor);
QspStatus qspsSub_16s_ISfs(const Qsp16s* pSrc, Qsp16s* pSrcDst, int len, int scaleFactor);
QspStatus qspsSub_16u_Sfs(const Qsp16u* pSrc1, const Qsp16u* pSrc2, Qsp16u* pDst, int len, int scaleFactor);
QspStatus qspsSub_16u_ISfs(const Qsp16u* pSrc, Qsp16u* pSrcDst, int len, int scaleFactor);
QspStatus qspsSub_32s_Sfs(const Qsp32s* pSrc1, const Qsp32s* pSrc2, Qsp32s* pDst, int len, int scaleFactor);
QspStatus qspsSub_32s_ISfs(const Qsp32s* pSrc, Qsp32s* pSrcDst, int len, int scaleFactor);
QspStatus qspsSub_16sc_Sfs(const Qsp16sc* pSrc1, const Qsp16sc* pSrc2, Qsp16sc* pDst, int len, int scaleFactor);
QspStatus qspsSub_16sc_ISfs(const Qsp16sc* pSrc, Qsp16sc* pSrcDst, int len, int scaleFactor);
QspStatus qspsSub_32sc_Sfs(const Qsp32sc* pSrc1, const Qsp32sc* pSrc2, Qsp32sc* pDst, int len, int scaleFactor);
QspStatus qspsSub_32sc_ISfs(const Qsp32sc* pSrc, Qsp32sc* pSrcDst, int len, int scaleFactor);
QspStatus qspsSub_32f_L(const Qsp32f* pSrc1, const Qsp32f* pSrc2, Qsp32f* pDst, Qsp64s len);
QspStatus qspsSub_32f_I_L(const Qsp32f* pSrc, Qsp32f* pSrcDst, Qsp64s len);
QspStatus qspsSub_64f_L(const Qsp64f* pSrc1, const Qsp64f* pSrc2, Qsp64f* pDst, Qsp64s len);
QspStatus qspsSub_64f_I_L(const Qsp64f* pSrc, Qsp64f* pSrcDst, Qsp64s len);
QspStatus qspsSub_32fc_L(const Qsp32fc* pSrc1, const Qsp32fc* pSrc2, Qsp32fc* pDst, Qsp64s len);
QspStatus qspsSub_32fc_I_L(const Qsp32fc* pSrc, Qsp32fc* pSrcDst, Qsp64s len);
QspStatus qspsSub_64fc_L(const Qsp64fc* pSrc1, const Qsp64fc* pSrc2, Qsp64fc* pDst, Qsp64s len);
QspStatus qspsSub_64fc_I_L(const Qsp64fc* pSrc, Qsp64fc* pSrcDst, Qsp64s len);

/* Mul --------------------------------------------------------------------- */
/*
 * Element-wise product: pDst[i] = pSrc1[i] * pSrc2[i]; in place pSrcDst[i] *=
 * pSrc[i]. Real floating products are correctly rounded IEEE products; complex
 * products are formed as for MulC (each part within 2^-23 or 2^-52 of |ar*br|
 * + |ai*bi|). Mixed forms: 32f32fc multiplies a complex vector (second source,
 * or pSrcDst) by a real one; 16s32f rounds the exact product once to single;
 * 8u16u, 16u16s and 16s32s widen. Integer forms round and saturate as Add
 * does; the exact product of two 16s values lies in [-1073709056, 1073741824].
 * _L forms chunk as Add does. A destination may be the same vector as a source
 * (that is how the I forms run); other overlaps are not allowed. Thread-safe.
 */
QspStatus qspsMul_32f(const Qsp32f* pSrc1, const Qsp32f* pSrc2, Qsp32f* pDst, int len);
QspStatus qspsMul_32f_I(const Qsp32f* pSrc, Qsp32f* pSrcDst, int len);
QspStatus qspsMul_64f(const Qsp64f* pSrc1, const Qsp64f* pSrc2, Qsp64f* pDst, int len);
QspStatus qspsMul_64f_I(const Qsp64f* pSrc, Qsp64f* pSrcDst, int len);
QspStatus qspsMul_32fc(const Qsp32fc* pSrc1, const Qsp32fc* pSrc2, Qsp32fc* pDst, int len);
QspStatus qspsMul_32fc_I(const Qsp32fc* pSrc, Qsp32fc* pSrcDst, int len);
QspStatus qspsMul_64fc(const Qsp64fc* pSrc1, const Qsp64fc* pSrc2, Qsp64fc* pDst, int len);
QspStatus qspsMul_64fc_I(const Qsp64fc* pSrc, Qsp64fc* pSrcDst, int len);
QspStatus qspsMul_32f32fc(const Qsp32f* pSrc1, const Qsp32fc* pSrc2, Qsp32fc* pDst, int len);
QspStatus qspsMul_16s32f(const Qsp16s* pSrc1, const Qsp16s* pSrc2, Qsp32f* pDst, int len);
QspStatus qspsMul_8u16u(const Qsp8u* pSrc1, const Qsp8u* pSrc2, Qsp16u* pDst, int len);
QspStatus qspsMul_32f32fc_I(const Qsp32f* pSrc, Qsp32fc* pSrcDst, int len);
QspStatus qspsMul_8u_Sfs(const Qsp8u* pSrc1, const Qsp8u* pSrc2, Qsp8u* pDst, int len, int scaleFactor);
QspStatus qspsMul_8u_ISfs(const Qsp8u* pSrc, Qsp8u* pSrcDst, int len, int scaleFactor);
QspStatus qspsMul_16s_Sfs(const Qsp16s* pSrc1, const Qsp16s* pSrc2, Qsp16s* pDst, int len, int scaleFactor);
QspStatus qspsMul_16s_ISfs(const Qsp16s* pSrc, Qsp16s* pSrcDst, int len, int scaleFactor);
QspStatus qspsMul_16u_Sfs(const Qsp16u* pSrc1, const Qsp16u* pSrc2, Qsp16u* pDst, int len, int scaleFactor);
QspStatus qspsMul_16u_ISfs(const Qsp16u* pSrc, Qsp16u* pSrcDst, int len, int scaleFactor);
QspStatus qspsMul_32s_Sfs(const Qsp32s* pSrc1, const Qsp32s* pSrc2, Qsp32s* pDst, int len, int scaleFactor);
QspStatus qspsMul_32s_ISfs(const Qsp32s* pSrc, Qsp32s* pSrcDst, int len, int scaleFactor);
QspStatus qspsMul_16sc_Sfs(const Qsp16sc* pSrc1, const Qsp16sc* pSrc2, Qsp16sc* pDst, int len, int scaleFactor);
QspStatus qspsMul_16sc_ISfs(const Qsp16sc* pSrc, Qsp16sc* pSrcDst, int len, int scaleFactor);
QspStatus qspsMul_32sc_Sfs(const Qsp32sc* pSrc1, const Qsp32sc* pSrc2, Qsp32sc* pDst, int len, int scaleFactor);
QspStatus qspsMul_32sc_ISfs(const Qsp32sc* pSrc, Qsp32sc* pSrcDst, int len, int scaleFactor);
QspStatus qspsMul_32f_L(const Qsp32f* pSrc1, const Qsp32f* pSrc2, Qsp32f* pDst, Qsp64s len);
QspStatus qspsMul_32f_I_L(const Qsp32f* pSrc, Qsp32f* pSrcDst, Qsp64s len);
QspStatus qspsMul_64f_L(const Qsp64f* pSrc1, const Qsp64f* pSrc2, Qsp64f* pDst, Qsp64s len);
QspStatus qspsMul_64f_I_L(const Qsp64f* pSrc, Qsp64f* pSrcDst, Qsp64s len);
QspStatus qspsMul_32fc_L(const Qsp32fc* pSrc1, const Qsp32fc* pSrc2, Qsp32fc* pDst, Qsp64s len);
QspStatus qspsMul_32fc_I_L(const Qsp32fc* pSrc, Qsp32fc* pSrcDst, Qsp64s len);
QspStatus qspsMul_64fc_L(const Qsp64fc* pSrc1, const Qsp64fc* pSrc2, Qsp64fc* pDst, Qsp64s len);
QspStatus qspsMul_64fc_I_L(const Qsp64fc* pSrc, Qsp64fc* pSrcDst, Qsp64s len);
QspStatus qspsMul_16u16s_Sfs(const Qsp16u* pSrc1, const Qsp16s* pSrc2, Qsp16s* pDst, int len, int scaleFactor);
QspStatus qspsMul_16s32s_Sfs(const Qsp16s* pSrc1, const Qsp16s* pSrc2, Qsp32s* pDst, int len, int scaleFactor);
QspStatus qspsMul_32s32sc_Sfs(const Qsp32s* pSrc1, const Qsp32sc* pSrc2, Qsp32sc* pDst, int len, int scaleFactor);
QspStatus qspsMul_32s32sc_ISfs(const Qsp32s* pSrc, Qsp32sc* pSrcDst, int len, int scaleFactor);

/* AddC -------------------------------------------------------------------- */
/*
 * Adds a constant: pDst[i] = pSrc[i] + val; in place pSrcDst[i] += val.
 * Scaling, saturation and the _L chunking as for Add.
 */
QspStatus qspsAddC_32f(const Qsp32f* pSrc, Qsp32f val, Qsp32f* pDst, int len);
QspStatus qspsAddC_32f_I(Qsp32f val, Qsp32f* pSrcDst, int len);
QspStatus qspsAddC_64f(const Qsp64f* pSrc, Qsp64f val, Qsp64f* pDst, int len);
QspStatus qspsAddC_64f_I(Qsp64f val, Qsp64f* pSrcDst, int len);
QspStatus qspsAddC_32fc(const Qsp32fc* pSrc, Qsp32fc val, Qsp32fc* pDst, int len);
QspStatus qspsAddC_32fc_I(Qsp32fc val, Qsp32fc* pSrcDst, int len);
QspStatus qspsAddC_64fc(const Qsp64fc* pSrc, Qsp64fc val, Qsp64fc* pDst, int len);
QspStatus qspsAddC_64fc_I(Qsp64fc val, Qsp64fc* pSrcDst, int len);
QspStatus qspsAddC_8u_Sfs(const Qsp8u* pSrc, Qsp8u val, Qsp8u* pDst, int len, int scaleFactor);
QspStatus qspsAddC_8u_ISfs(Qsp8u val, Qsp8u* pSrcDst, int len, int scaleFactor);
QspStatus qspsAddC_16s_Sfs(const Qsp16s* pSrc, Qsp16s val, Qsp16s* pDst, int len, int scaleFactor);
QspStatus qspsAddC_16s_ISfs(Qsp16s val, Qsp16s* pSrcDst, int len, int scaleFactor);
QspStatus qspsAddC_16u_Sfs(const Qsp16u* pSrc, Qsp16u val, Qsp16u* pDst, int len, int scaleFactor);
QspStatus qspsAddC_16u_ISfs(Qsp16u val, Qsp16u* pSrcDst, int len, int scaleFactor);
QspStatus qspsAddC_32s_Sfs(const Qsp32s* pSrc, Qsp32s val, Qsp32s* pDst, int len, int scaleFactor);
QspStatus qspsAddC_32s_ISfs(Qsp32s val, Qsp32s* pSrcDst, int len, int scaleFactor);
QspStatus qspsAddC_16sc_Sfs(const Qsp16sc* pSrc, Qsp16sc val, Qsp16sc* pDst, int len, int scaleFactor);
QspStatus qspsAddC_16sc_ISfs(Qsp16sc val, Qsp16sc* pSrcDst, int len, int scaleFactor);
QspStatus qspsAddC_32sc_Sfs(const Qsp32sc* pSrc, Qsp32sc val, Qsp32sc* pDst, int len, int scaleFactor);
QspStatus qspsAddC_32sc_ISfs(Qsp32sc val, Qsp32sc* pSrcDst, int len, int scaleFactor);
QspStatus qspsAddC_32f_L(const Qsp32f* pSrc, Qsp32f val, Qsp32f* pDst, Qsp64s len);
QspStatus qspsAddC_32f_I_L(Qsp32f val, Qsp32f* pSrcDst, Qsp64s len);
QspStatus qspsAddC_64f_L(const Qsp64f* pSrc, Qsp64f val, Qsp64f* pDst, Qsp64s len);
QspStatus qspsAddC_64f_I_L(Qsp64f val, Qsp64f* pSrcDst, Qsp64s len);
QspStatus qspsAddC_32fc_L(const Qsp32fc* pSrc, Qsp32fc val, Qsp32fc* pDst, Qsp64s len);
QspStatus qspsAddC_32fc_I_L(Qsp32fc val, Qsp32fc* pSrcDst, Qsp64s len);
QspStatus qspsAddC_64fc_L(const Qsp64fc* pSrc, Qsp64fc val, Qsp64fc* pDst, Qsp64s len);
QspStatus qspsAddC_64fc_I_L(Qsp64fc val, Qsp64fc* pSrcDst, Qsp64s len);

/* SubC -------------------------------------------------------------------- */
/*
 * Subtracts a constant: pDst[i] = pSrc[i] - val; in place pSrcDst[i] -= val.
 * Scaling, saturation and the _L chunking as for Add.
 */
QspStatus qspsSubC_32f(const Qsp32f* pSrc, Qsp32f val, Qsp32f* pDst, int len);
QspStatus qspsSubC_32f_I(Qsp32f val, Qsp32f* pSrcDst, int len);
QspStatus qspsSubC_64f(const Qsp64f* pSrc, Qsp64f val, Qsp64f* pDst, int len);
QspStatus qspsSubC_64f_I(Qsp64f val, Qsp64f* pSrcDst, int len);
QspStatus qspsSubC_32fc(const Qsp32fc* pSrc, Qsp32fc val, Qsp32fc* pDst, int len);
QspStatus qspsSubC_32fc_I(Qsp32fc val, Qsp32fc* pSrcDst, int len);
QspStatus qspsSubC_64fc(const Qsp64fc* pSrc, Qsp64fc val, Qsp64fc* pDst, int len);
QspStatus qspsSubC_64fc_I(Qsp64fc val, Qsp64fc* pSrcDst, int len);
QspStatus qspsSubC_8u_Sfs(const Qsp8u* pSrc, Qsp8u val, Qsp8u* pDst, int len, int scaleFactor);
QspStatus qspsSubC_8u_ISfs(Qsp8u val, Qsp8u* pSrcDst, int len, int scaleFactor);
QspStatus qspsSubC_16s_Sfs(const Qsp16s* pSrc, Qsp16s val, Qsp16s* pDst, int len, int scaleFactor);
QspStatus qspsSubC_16s_ISfs(Qsp16s val, Qsp16s* pSrcDst, int len, int scaleFactor);
QspStatus qspsSubC_16u_Sfs(const Qsp16u* pSrc, Qsp16u val, Qsp16u* pDst, int len, int scaleFactor);
QspStatus qspsSubC_16u_ISfs(Qsp16u val, Qsp16u* pSrcDst, int len, int scaleFactor);
QspStatus qspsSubC_32s_Sfs(const Qsp32s* pSrc, Qsp32s val, Qsp32s* pDst, int len, int scaleFactor);
QspStatus qspsSubC_32s_ISfs(Qsp32s val, Qsp32s* pSrcDst, int len, int scaleFactor);
QspStatus qspsSubC_16sc_Sfs(const Qsp16sc* pSrc, Qsp16sc val, Qsp16sc* pDst, int len, int scaleFactor);
QspStatus qspsSubC_16sc_ISfs(Qsp16sc val, Qsp16sc* pSrcDst, int len, int scaleFactor);
QspStatus qspsSubC_32sc_Sfs(const Qsp32sc* pSrc, Qsp32sc val, Qsp32sc* pDst, int len, int scaleFactor);
QspStatus qspsSubC_32sc_ISfs(Qsp32sc val, Qsp32sc* pSrcDst, int len, int scaleFactor);
QspStatus qspsSubC_32f_L(const Qsp32f* pSrc, Qsp32f val, Qsp32f* pDst, Qsp64s len);
QspStatus qspsSubC_32f_I_L(Qsp32f val, Qsp32f* pSrcDst, Qsp64s len);
QspStatus qspsSubC_64f_L(const Qsp64f* pSrc, Qsp64f val, Qsp64f* pDst, Qsp64s len);
QspStatus qspsSubC_64f_I_L(Qsp64f val, Qsp64f* pSrcDst, Qsp64s len);
QspStatus qspsSubC_32fc_L(const Qsp32fc* pSrc, Qsp32fc val, Qsp32fc* pDst, Qsp64s len);
QspStatus qspsSubC_32fc_I_L(Qsp32fc val, Qsp32fc* pSrcDst, Qsp64s len);
QspStatus qspsSubC_64fc_L(const Qsp64fc* pSrc, Qsp64fc val, Qsp64fc* pDst, Qsp64s len);
QspStatus qspsSubC_64fc_I_L(Qsp64fc val, Qsp64fc* pSrcDst, Qsp64s len);

/* SubCRev ----------------------------------------------------------------- */
/*
 * Subtracts from a constant: pDst[i] = val - pSrc[i]; in place pSrcDst[i] =
 * val - pSrcDst[i]. Scaling, saturation and the _L chunking as for Add.
 */
QspStatus qspsSubCRev_32f(const Qsp32f* pSrc, Qsp32f val, Qsp32f* pDst, int len);
QspStatus qspsSubCRev_32f_I(Qsp32f val, Qsp32f* pSrcDst, int len);
QspStatus qspsSubCRev_64f(const Qsp64f* pSrc, Qsp64f val, Qsp64f* pDst, int len);
QspStatus qspsSubCRev_64f_I(Qsp64f val, Qsp64f* pSrcDst, int len);
QspStatus qspsSubCRev_32fc(const Qsp32fc* pSrc, Qsp32fc val, Qsp32fc* pDst, int len);
QspStatus qspsSubCRev_32fc_I(Qsp32fc val, Qsp32fc* pSrcDst, int len);
QspStatus qspsSubCRev_64fc(const Qsp64fc* pSrc, Qsp64fc val, Qsp64fc* pDst, int len);
QspStatus qspsSubCRev_64fc_I(Qsp64fc val, Qsp64fc* pSrcDst, int len);
QspStatus qspsSubCRev_8u_Sfs(const Qsp8u* pSrc, Qsp8u val, Qsp8u* pDst, int len, int scaleFactor);
QspStatus qspsSubCRev_8u_ISfs(Qsp8u val, Qsp8u* pSrcDst, int len, int scaleFactor);
QspStatus qspsSubCRev_16s_Sfs(const Qsp16s* pSrc, Qsp16s val, Qsp16s* pDst, int len, int scaleFactor);
QspStatus qspsSubCRev_16s_ISfs(Qsp16s val, Qsp16s* pSrcDst, int len, int scaleFactor);
QspStatus qspsSubCRev_16u_Sfs(const Qsp16u* pSrc, Qsp16u val, Qsp16u* pDst, int len, int scaleFactor);
QspStatus qspsSubCRev_16u_ISfs(Qsp16u val, Qsp16u* pSrcDst, int len, int scaleFactor);
QspStatus qspsSubCRev_32s_Sfs(const Qsp32s* pSrc, Qsp32s val, Qsp32s* pDst, int len, int scaleFactor);
QspStatus qspsSubCRev_32s_ISfs(Qsp32s val, Qsp32s* pSrcDst, int len, int scaleFactor);
QspStatus qspsSubCRev_16sc_Sfs(const Qsp16sc* pSrc, Qsp16sc val, Qsp16sc* pDst, int len, int scaleFactor);
QspStatus qspsSubCRev_16sc_ISfs(Qsp16sc val, Qsp16sc* pSrcDst, int len, int scaleFactor);
QspStatus qspsSubCRev_32sc_Sfs(const Qsp32sc* pSrc, Qsp32sc val, Qsp32sc* pDst, int len, int scaleFactor);
QspStatus qspsSubCRev_32sc_ISfs(Qsp32sc val, Qsp32sc* pSrcDst, int len, int scaleFactor);
QspStatus qspsSubCRev_32f_L(const Qsp32f* pSrc, Qsp32f val, Qsp32f* pDst, Qsp64s len);
QspStatus qspsSubCRev_32f_I_L(Qsp32f val, Qsp32f* pSrcDst, Qsp64s len);
QspStatus qspsSubCRev_64f_L(const Qsp64f* pSrc, Qsp64f val, Qsp64f* pDst, Qsp64s len);
QspStatus qspsSubCRev_64f_I_L(Qsp64f val, Qsp64f* pSrcDst, Qsp64s len);
QspStatus qspsSubCRev_32fc_L(const Qsp32fc* pSrc, Qsp32fc val, Qsp32fc* pDst, Qsp64s len);
QspStatus qspsSubCRev_32fc_I_L(Qsp32fc val, Qsp32fc* pSrcDst, Qsp64s len);
QspStatus qspsSubCRev_64fc_L(const Qsp64fc* pSrc, Qsp64fc val, Qsp64fc* pDst, Qsp64s len);
QspStatus qspsSubCRev_64fc_I_L(Qsp64fc val, Qsp64fc* pSrcDst, Qsp64s len);

/* AddProduct -------------------------------------------------------------- */
/*
 * pSrcDst[i] = pSrcDst[i] + pSrc1[i] * pSrc2[i] in the floating forms and
 * pSrcDst[i] = (pSrcDst[i] + pSrc1[i] * pSrc2[i]) * 2^-scaleFactor in the Sfs
 * forms. Floating forms round the product, then the sum (no fused operation;
 * complex: the complex product, each part's products rounded before their
 * sum). Sfs forms form the sum exactly (16s32s: 16-bit sources, 32-bit
 * accumulator), then scale it, round to nearest even and saturate to the
 * destination's range. pSrcDst may be the same vector as a source; other
 * overlaps are not allowed. Thread-safe.
 */
QspStatus qspsAddProduct_32f(const Qsp32f* pSrc1, const Qsp32f* pSrc2, Qsp32f* pSrcDst, int len);
QspStatus qspsAddProduct_64f(const Qsp64f* pSrc1, const Qsp64f* pSrc2, Qsp64f* pSrcDst, int len);
QspStatus qspsAddProduct_32fc(const Qsp32fc* pSrc1, const Qsp32fc* pSrc2, Qsp32fc* pSrcDst, int len);
QspStatus qspsAddProduct_64fc(const Qsp64fc* pSrc1, const Qsp64fc* pSrc2, Qsp64fc* pSrcDst, int len);
QspStatus qspsAddProduct_16s_Sfs(const Qsp16s* pSrc1, const Qsp16s* pSrc2, Qsp16s* pSrcDst, int len, int scaleFactor);
QspStatus qspsAddProduct_32s_Sfs(const Qsp32s* pSrc1, const Qsp32s* pSrc2, Qsp32s* pSrcDst, int len, int scaleFactor);
QspStatus qspsAddProduct_16s32s_Sfs(const Qsp16s* pSrc1, const Qsp16s* pSrc2, Qsp32s* pSrcDst, int len, int scaleFactor);

/* Sqr --------------------------------------------------------------------- */
/*
 * Square: pDst[i] = pSrc[i]^2 (complex: the complex square); in place on
 * pSrcDst. Integer forms scale, round and saturate (Sfs rule).
 */
QspStatus qspsSqr_32f(const Qsp32f* pSrc, Qsp32f* pDst, int len);
QspStatus qspsSqr_32f_I(Qsp32f* pSrcDst, int len);
QspStatus qspsSqr_64f(const Qsp64f* pSrc, Qsp64f* pDst, int len);
QspStatus qspsSqr_64f_I(Qsp64f* pSrcDst, int len);
QspStatus qspsSqr_32fc(const Qsp32fc* pSrc, Qsp32fc* pDst, int len);
QspStatus qspsSqr_32fc_I(Qsp32fc* pSrcDst, int len);
QspStatus qspsSqr_64fc(const Qsp64fc* pSrc, Qsp64fc* pDst, int len);
QspStatus qspsSqr_64fc_I(Qsp64fc* pSrcDst, int len);
QspStatus qspsSqr_8u_Sfs(const Qsp8u* pSrc, Qsp8u* pDst, int len, int scaleFactor);
QspStatus qspsSqr_8u_ISfs(Qsp8u* pSrcDst, int len, int scaleFactor);
QspStatus qspsSqr_16s_Sfs(const Qsp16s* pSrc, Qsp16s* pDst, int len, int scaleFactor);
QspStatus qspsSqr_16s_ISfs(Qsp16s* pSrcDst, int len, int scaleFactor);
QspStatus qspsSqr_16u_Sfs(const Qsp16u* pSrc, Qsp16u* pDst, int len, int scaleFactor);
QspStatus qspsSqr_16u_ISfs(Qsp16u* pSrcDst, int len, int scaleFactor);
QspStatus qspsSqr_16sc_Sfs(const Qsp16sc* pSrc, Qsp16sc* pDst, int len, int scaleFactor);
QspStatus qspsSqr_16sc_ISfs(Qsp16sc* pSrcDst, int len, int scaleFactor);
QspStatus qspsSqr_32f_L(const Qsp32f* pSrc, Qsp32f* pDst, Qsp64s len);
QspStatus qspsSqr_32f_I_L(Qsp32f* pSrcDst, Qsp64s len);
QspStatus qspsSqr_64f_L(const Qsp64f* pSrc, Qsp64f* pDst, Qsp64s len);
QspStatus qspsSqr_64f_I_L(Qsp64f* pSrcDst, Qsp64s len);

/* Sqrt -------------------------------------------------------------------- */
/*
 * Square root: pDst[i] = sqrt(pSrc[i]); in place on pSrcDst. Real floating
 * roots are correctly rounded (-0.0 gives -0.0); a negative element gives a
 * NaN (floating) or 0 (integer) and the warning qspStsWarnOutOfDomain once the
 * whole output is written. Complex forms give the principal root (real part >=
 * 0), computed in double precision with scaling, so no intermediate overflows.
 * Integer forms take the exact root of the element, scaled by 2^-scaleFactor,
 * rounded to nearest even and saturated; 32s16s and 64s16s read wide integers
 * and write 16-bit roots; 16sc rounds the double-precision complex root part
 * by part. A destination may be the same vector as a source (that is how the I
 * forms run); other overlaps are not allowed. Thread-safe.
 */
QspStatus qspsSqrt_32f(const Qsp32f* pSrc, Qsp32f* pDst, int len);
QspStatus qspsSqrt_32f_I(Qsp32f* pSrcDst, int len);
QspStatus qspsSqrt_64f(const Qsp64f* pSrc, Qsp64f* pDst, int len);
QspStatus qspsSqrt_64f_I(Qsp64f* pSrcDst, int len);
QspStatus qspsSqrt_32fc(const Qsp32fc* pSrc, Qsp32fc* pDst, int len);
QspStatus qspsSqrt_32fc_I(Qsp32fc* pSrcDst, int len);
QspStatus qspsSqrt_64fc(const Qsp64fc* pSrc, Qsp64fc* pDst, int len);
QspStatus qspsSqrt_64fc_I(Qsp64fc* pSrcDst, int len);
QspStatus qspsSqrt_8u_Sfs(const Qsp8u* pSrc, Qsp8u* pDst, int len, int scaleFactor);
QspStatus qspsSqrt_8u_ISfs(Qsp8u* pSrcDst, int len, int scaleFactor);
QspStatus qspsSqrt_16s_Sfs(const Qsp16s* pSrc, Qsp16s* pDst, int len, int scaleFactor);
QspStatus qspsSqrt_16s_ISfs(Qsp16s* pSrcDst, int len, int scaleFactor);
QspStatus qspsSqrt_16u_Sfs(const Qsp16u* pSrc, Qsp16u* pDst, int len, int scaleFactor);
QspStatus qspsSqrt_16u_ISfs(Qsp16u* pSrcDst, int len, int scaleFactor);
QspStatus qspsSqrt_16sc_Sfs(const Qsp16sc* pSrc, Qsp16sc* pDst, int len, int scaleFactor);
QspStatus qspsSqrt_16sc_ISfs(Qsp16sc* pSrcDst, int len, int scaleFactor);
QspStatus qspsSqrt_32s16s_Sfs(const Qsp32s* pSrc, Qsp16s* pDst, int len, int scaleFactor);
QspStatus qspsSqrt_64s16s_Sfs(const Qsp64s* pSrc, Qsp16s* pDst, int len, int scaleFactor);

/* Abs --------------------------------------------------------------------- */
/*
 * Absolute value: pDst[i] = |pSrc[i]|; in place on pSrcDst. Integer forms
 * saturate (|-32768| gives 32767 in 16s). _L forms chunk as Add does.
 */
QspStatus qspsAbs_16s(const Qsp16s* pSrc, Qsp16s* pDst, int len);
QspStatus qspsAbs_16s_I(Qsp16s* pSrcDst, int len);
QspStatus qspsAbs_32s(const Qsp32s* pSrc, Qsp32s* pDst, int len);
QspStatus qspsAbs_32s_I(Qsp32s* pSrcDst, int len);
QspStatus qspsAbs_32f(const Qsp32f* pSrc, Qsp32f* pDst, int len);
QspStatus qspsAbs_32f_I(Qsp32f* pSrcDst, int len);
QspStatus qspsAbs_64f(const Qsp64f* pSrc, Qsp64f* pDst, int len);
QspStatus qspsAbs_64f_I(Qsp64f* pSrcDst, int len);
QspStatus qspsAbs_32f_L(const Qsp32f* pSrc, Qsp32f* pDst, Qsp64s len);
QspStatus qspsAbs_32f_I_L(Qsp32f* pSrcDst, Qsp64s len);
QspStatus qspsAbs_64f_L(const Qsp64f* pSrc, Qsp64f* pDst, Qsp64s len);
QspStatus qspsAbs_64f_I_L(Qsp64f* pSrcDst, Qsp64s len);

/* Conj -------------------------------------------------------------------- */
/*
 * Complex conjugate: pDst[i] = conj(pSrc[i]) (the imaginary part negated; in
 * 16sc, -32768 becomes 32767); in place on pSrcDst. _L forms chunk as Add
 * does.
 */
QspStatus qspsConj_16sc(const Qsp16sc* pSrc, Qsp16sc* pDst, int len);
QspStatus qspsConj_16sc_I(Qsp16sc* pSrcDst, int len);
QspStatus qspsConj_32fc(const Qsp32fc* pSrc, Qsp32fc* pDst, int len);
QspStatus qspsConj_32fc_I(Qsp32fc* pSrcDst, int len);
QspStatus qspsConj_64fc(const Qsp64fc* pSrc, Qsp64fc* pDst, int len);
QspStatus qspsConj_64fc_I(Qsp64fc* pSrcDst, int len);
QspStatus qspsConj_32fc_L(const Qsp32fc* pSrc, Qsp32fc* pDst, Qsp64s len);
QspStatus qspsConj_32fc_I_L(Qsp32fc* pSrcDst, Qsp64s len);
QspStatus qspsConj_64fc_L(const Qsp64fc* pSrc, Qsp64fc* pDst, Qsp64s len);
QspStatus qspsConj_64fc_I_L(Qsp64fc* pSrcDst, Qsp64s len);

/* CplxToReal -------------------------------------------------------------- */
/*
 * Splits a complex vector into its parts: pDstRe[i] = re(pSrc[i]), pDstIm[i] =
 * im(pSrc[i]). _L forms chunk as Add does.
 */
QspStatus qspsCplxToReal_16sc(const Qsp16sc* pSrc, Qsp16s* pDstRe, Qsp16s* pDstIm, int len);
QspStatus qspsCplxToReal_32fc(const Qsp32fc* pSrc, Qsp32f* pDstRe, Qsp32f* pDstIm, int len);
QspStatus qspsCplxToReal_64fc(const Qsp64fc* pSrc, Qsp64f* pDstRe, Qsp64f* pDstIm, int len);
QspStatus qspsCplxToReal_32fc_L(const Qsp32fc* pSrc, Qsp32f* pDstRe, Qsp32f* pDstIm, Qsp64s len);
QspStatus qspsCplxToReal_64fc_L(const Qsp64fc* pSrc, Qsp64f* pDstRe, Qsp64f* pDstIm, Qsp64s len);

/* RealToCplx -------------------------------------------------------------- */
/*
 * Joins two real vectors into a complex one: pDst[i] = pSrcRe[i] + i
 * pSrcIm[i]. Either source may be null; its part is then 0. _L forms chunk as
 * Add does.
 */
QspStatus qspsRealToCplx_16s(const Qsp16s* pSrcRe, const Qsp16s* pSrcIm, Qsp16sc* pDst, int len);
QspStatus qspsRealToCplx_32f(const Qsp32f* pSrcRe, const Qsp32f* pSrcIm, Qsp32fc* pDst, int len);
QspStatus qspsRealToCplx_64f(const Qsp64f* pSrcRe, const Qsp64f* pSrcIm, Qsp64fc* pDst, int len);
QspStatus qspsRealToCplx_32f_L(const Qsp32f* pSrcRe, const Qsp32f* pSrcIm, Qsp32fc* pDst, Qsp64s len);
QspStatus qspsRealToCplx_64f_L(const Qsp64f* pSrcRe, const Qsp64f* pSrcIm, Qsp64fc* pDst, Qsp64s len);

/* Magnitude --------------------------------------------------------------- */
/*
 * Magnitude of complex elements: pDst[i] = sqrt(re^2 + im^2), from an
 * interleaved complex vector (pSrc) or from separate parts (pSrcRe, pSrcIm),
 * without overflow or underflow on the way. Single precision (and 16sc32f) is
 * formed in double and rounded once more: within 0.5 ULP plus 2^-20 ULP.
 * Double precision is scaled by a power of two first: within 1.5 ULP. The Sfs
 * forms take the exact root of the exact sum of squares, scaled, rounded to
 * nearest even and saturated. _L forms chunk as Add does. Thread-safe.
 */
QspStatus qspsMagnitude_32fc(const Qsp32fc* pSrc, Qsp32f* pDst, int len);
QspStatus qspsMagnitude_64fc(const Qsp64fc* pSrc, Qsp64f* pDst, int len);
QspStatus qspsMagnitude_32f(const Qsp32f* pSrcRe, const Qsp32f* pSrcIm, Qsp32f* pDst, int len);
QspStatus qspsMagnitude_64f(const Qsp64f* pSrcRe, const Qsp64f* pSrcIm, Qsp64f* pDst, int len);
QspStatus qspsMagnitude_16sc32f(const Qsp16sc* pSrc, Qsp32f* pDst, int len);
QspStatus qspsMagnitude_16sc_Sfs(const Qsp16sc* pSrc, Qsp16s* pDst, int len, int scaleFactor);
QspStatus qspsMagnitude_32sc_Sfs(const Qsp32sc* pSrc, Qsp32s* pDst, int len, int scaleFactor);
QspStatus qspsMagnitude_32fc_L(const Qsp32fc* pSrc, Qsp32f* pDst, Qsp64s len);
QspStatus qspsMagnitude_64fc_L(const Qsp64fc* pSrc, Qsp64f* pDst, Qsp64s len);

/* Phase ------------------------------------------------------------------- */
/*
 * Phase angle of complex elements: pDst[i] = atan2(im, re) in radians, in
 * [-pi, pi] (-pi only for a negative real part with a -0.0 imaginary part;
 * atan2(+-0, +0) is +-0), from an interleaved vector (pSrc) or from separate
 * parts (pSrcRe, pSrcIm). Computed in double precision: double results within
 * 2.5 ULP (2.03 measured), single results that angle rounded to single (within
 * 0.5 ULP plus 2^-20 ULP). The Sfs form rounds the angle times 2^-scaleFactor
 * to nearest even and saturates (scaleFactor -13 maps pi to 25736). A NaN part
 * gives NaN. Thread-safe.
 */
QspStatus qspsPhase_32fc(const Qsp32fc* pSrc, Qsp32f* pDst, int len);
QspStatus qspsPhase_64fc(const Qsp64fc* pSrc, Qsp64f* pDst, int len);
QspStatus qspsPhase_32f(const Qsp32f* pSrcRe, const Qsp32f* pSrcIm, Qsp32f* pDst, int len);
QspStatus qspsPhase_64f(const Qsp64f* pSrcRe, const Qsp64f* pSrcIm, Qsp64f* pDst, int len);
QspStatus qspsPhase_16sc32f(const Qsp16sc* pSrc, Qsp32f* pDst, int len);
QspStatus qspsPhase_16sc_Sfs(const Qsp16sc* pSrc, Qsp16s* pDst, int len, int scaleFactor);

/* PowerSpectr ------------------------------------------------------------- */
/*
 * Power of complex elements: pDst[i] = re^2 + im^2, from an interleaved vector
 * (pSrc) or from separate parts (pSrcRe, pSrcIm). Floating forms round both
 * squares and their sum: within 1.5 ULP. The Sfs form scales the exact sum of
 * squares (up to 2^31), rounds to nearest even and saturates. _L forms chunk
 * as Add does. Thread-safe.
 */
QspStatus qspsPowerSpectr_32fc(const Qsp32fc* pSrc, Qsp32f* pDst, int len);
QspStatus qspsPowerSpectr_64fc(const Qsp64fc* pSrc, Qsp64f* pDst, int len);
QspStatus qspsPowerSpectr_32f(const Qsp32f* pSrcRe, const Qsp32f* pSrcIm, Qsp32f* pDst, int len);
QspStatus qspsPowerSpectr_64f(const Qsp64f* pSrcRe, const Qsp64f* pSrcIm, Qsp64f* pDst, int len);
QspStatus qspsPowerSpectr_16sc_Sfs(const Qsp16sc* pSrc, Qsp16s* pDst, int len, int scaleFactor);
QspStatus qspsPowerSpectr_32fc_L(const Qsp32fc* pSrc, Qsp32f* pDst, Qsp64s len);
QspStatus qspsPowerSpectr_64fc_L(const Qsp64fc* pSrc, Qsp64f* pDst, Qsp64s len);

/* Normalize --------------------------------------------------------------- */
/*
 * Shifts and scales: pDst[i] = (pSrc[i] - vSub) / vDiv; in place on pSrcDst.
 * vDiv equal to zero (-0.0 included) gives qspStsZeroDivisor, checked after
 * the pointers and the length. Floating forms round the difference, then the
 * quotient (complex: each part divided by the real vDiv). The 16-bit forms
 * divide the exact difference exactly, then scale by 2^-scaleFactor, round to
 * nearest even and saturate. A destination may be the same vector as a source
 * (that is how the I forms run); other overlaps are not allowed. Thread-safe.
 */
QspStatus qspsNormalize_32f(const Qsp32f* pSrc, Qsp32f* pDst, int len, Qsp32f vSub, Qsp32f vDiv);
QspStatus qspsNormalize_32f_I(Qsp32f* pSrcDst, int len, Qsp32f vSub, Qsp32f vDiv);
QspStatus qspsNormalize_64f(const Qsp64f* pSrc, Qsp64f* pDst, int len, Qsp64f vSub, Qsp64f vDiv);
QspStatus qspsNormalize_64f_I(Qsp64f* pSrcDst, int len, Qsp64f vSub, Qsp64f vDiv);
QspStatus qspsNormalize_32fc(const Qsp32fc* pSrc, Qsp32fc* pDst, int len, Qsp32fc vSub, Qsp32f vDiv);
QspStatus qspsNormalize_32fc_I(Qsp32fc* pSrcDst, int len, Qsp32fc vSub, Qsp32f vDiv);
QspStatus qspsNormalize_64fc(const Qsp64fc* pSrc, Qsp64fc* pDst, int len, Qsp64fc vSub, Qsp64f vDiv);
QspStatus qspsNormalize_64fc_I(Qsp64fc* pSrcDst, int len, Qsp64fc vSub, Qsp64f vDiv);
QspStatus qspsNormalize_16s_Sfs(const Qsp16s* pSrc, Qsp16s* pDst, int len, Qsp16s vSub, int vDiv, int scaleFactor);
QspStatus qspsNormalize_16s_ISfs(Qsp16s* pSrcDst, int len, Qsp16s vSub, int vDiv, int scaleFactor);
QspStatus qspsNormalize_16sc_Sfs(const Qsp16sc* pSrc, Qsp16sc* pDst, int len, Qsp16sc vSub, int vDiv, int scaleFactor);
QspStatus qspsNormalize_16sc_ISfs(Qsp16sc* pSrcDst, int len, Qsp16sc vSub, int vDiv, int scaleFactor);

/* Div --------------------------------------------------------------------- */
/*
 * Element-wise quotient, second source divided by the first: pDst[i] =
 * pSrc2[i] / pSrc1[i]; in place pSrcDst[i] = pSrcDst[i] / pSrc[i]. When any
 * divisor element compares equal to zero (complex: both parts) the whole
 * output is still written and the warning qspStsWarnDivByZero is returned;
 * integer quotients by zero are the type's maximum for a positive dividend,
 * its minimum for a negative one and 0 for 0 (16sc: part by part). Real
 * floating quotients are IEEE quotients; 32fc quotients are formed in double
 * (each part within 0.5 ULP plus 2^-20 ULP), 64fc ones with the divisor scaled
 * by a power of two (each part within 6 * 2^-53 of |b| / |a|). Integer forms
 * take the exact quotient, scale it, round to nearest even and saturate. _L
 * forms chunk as Add does (the status is the last chunk's). A destination may
 * be the same vector as a source (that is how the I forms run); other overlaps
 * are not allowed. Thread-safe.
 */
QspStatus qspsDiv_32f(const Qsp32f* pSrc1, const Qsp32f* pSrc2, Qsp32f* pDst, int len);
QspStatus qspsDiv_32f_I(const Qsp32f* pSrc, Qsp32f* pSrcDst, int len);
QspStatus qspsDiv_64f(const Qsp64f* pSrc1, const Qsp64f* pSrc2, Qsp64f* pDst, int len);
QspStatus qspsDiv_64f_I(const Qsp64f* pSrc, Qsp64f* pSrcDst, int len);
QspStatus qspsDiv_32fc(const Qsp32fc* pSrc1, const Qsp32fc* pSrc2, Qsp32fc* pDst, int len);
QspStatus qspsDiv_32fc_I(const Qsp32fc* pSrc, Qsp32fc* pSrcDst, int len);
QspStatus qspsDiv_64fc(const Qsp64fc* pSrc1, const Qsp64fc* pSrc2, Qsp64fc* pDst, int len);
QspStatus qspsDiv_64fc_I(const Qsp64fc* pSrc, Qsp64fc* pSrcDst, int len);
QspStatus qspsDiv_8u_Sfs(const Qsp8u* pSrc1, const Qsp8u* pSrc2, Qsp8u* pDst, int len, int scaleFactor);
QspStatus qspsDiv_8u_ISfs(const Qsp8u* pSrc, Qsp8u* pSrcDst, int len, int scaleFactor);
QspStatus qspsDiv_16s_Sfs(const Qsp16s* pSrc1, const Qsp16s* pSrc2, Qsp16s* pDst, int len, int scaleFactor);
QspStatus qspsDiv_16s_ISfs(const Qsp16s* pSrc, Qsp16s* pSrcDst, int len, int scaleFactor);
QspStatus qspsDiv_16u_Sfs(const Qsp16u* pSrc1, const Qsp16u* pSrc2, Qsp16u* pDst, int len, int scaleFactor);
QspStatus qspsDiv_16u_ISfs(const Qsp16u* pSrc, Qsp16u* pSrcDst, int len, int scaleFactor);
QspStatus qspsDiv_32s_Sfs(const Qsp32s* pSrc1, const Qsp32s* pSrc2, Qsp32s* pDst, int len, int scaleFactor);
QspStatus qspsDiv_32s_ISfs(const Qsp32s* pSrc, Qsp32s* pSrcDst, int len, int scaleFactor);
QspStatus qspsDiv_16sc_Sfs(const Qsp16sc* pSrc1, const Qsp16sc* pSrc2, Qsp16sc* pDst, int len, int scaleFactor);
QspStatus qspsDiv_16sc_ISfs(const Qsp16sc* pSrc, Qsp16sc* pSrcDst, int len, int scaleFactor);
QspStatus qspsDiv_32f_L(const Qsp32f* pSrc1, const Qsp32f* pSrc2, Qsp32f* pDst, Qsp64s len);
QspStatus qspsDiv_32f_I_L(const Qsp32f* pSrc, Qsp32f* pSrcDst, Qsp64s len);
QspStatus qspsDiv_64f_L(const Qsp64f* pSrc1, const Qsp64f* pSrc2, Qsp64f* pDst, Qsp64s len);
QspStatus qspsDiv_64f_I_L(const Qsp64f* pSrc, Qsp64f* pSrcDst, Qsp64s len);
QspStatus qspsDiv_32fc_L(const Qsp32fc* pSrc1, const Qsp32fc* pSrc2, Qsp32fc* pDst, Qsp64s len);
QspStatus qspsDiv_32fc_I_L(const Qsp32fc* pSrc, Qsp32fc* pSrcDst, Qsp64s len);
QspStatus qspsDiv_64fc_L(const Qsp64fc* pSrc1, const Qsp64fc* pSrc2, Qsp64fc* pDst, Qsp64s len);
QspStatus qspsDiv_64fc_I_L(const Qsp64fc* pSrc, Qsp64fc* pSrcDst, Qsp64s len);

/* Div_Round --------------------------------------------------------------- */
/*
 * Div with an explicit rounding of the scaled quotient: rndMode 0 rounds toward
 * zero, 1 to nearest even, 2 to nearest with ties away from zero; any other
 * mode (above 2, or negative) gives qspStsBadRoundMode, checked after the
 * pointers and the length. Operand order, zero divisors and saturation as in
 * Div.
 */
QspStatus qspsDiv_Round_8u_Sfs(const Qsp8u* pSrc1, const Qsp8u* pSrc2, Qsp8u* pDst, int len, QspRoundMode rndMode, int scaleFactor);
QspStatus qspsDiv_Round_8u_ISfs(const Qsp8u* pSrc, Qsp8u* pSrcDst, int len, QspRoundMode rndMode, int scaleFactor);
QspStatus qspsDiv_Round_16s_Sfs(const Qsp16s* pSrc1, const Qsp16s* pSrc2, Qsp16s* pDst, int len, QspRoundMode rndMode, int scaleFactor);
QspStatus qspsDiv_Round_16s_ISfs(const Qsp16s* pSrc, Qsp16s* pSrcDst, int len, QspRoundMode rndMode, int scaleFactor);
QspStatus qspsDiv_Round_16u_Sfs(const Qsp16u* pSrc1, const Qsp16u* pSrc2, Qsp16u* pDst, int len, QspRoundMode rndMode, int scaleFactor);
QspStatus qspsDiv_Round_16u_ISfs(const Qsp16u* pSrc, Qsp16u* pSrcDst, int len, QspRoundMode rndMode, int scaleFactor);

/* DivC -------------------------------------------------------------------- */
/*
 * Divides by a constant: pDst[i] = pSrc[i] / val; in place pSrcDst[i] /= val.
 * A zero val (floating: one that compares equal to 0.0; complex: both parts)
 * gives qspStsZeroDivisor after the pointer and length checks. The floating
 * forms are MulC with the reciprocal of val, computed once and rounded to the
 * element precision. Integer forms take the exact quotient, scale it, round to
 * nearest even and saturate. _L forms chunk as Add does. A destination may be
 * the same vector as a source (that is how the I forms run); other overlaps
 * are not allowed. Thread-safe.
 */
QspStatus qspsDivC_32f(const Qsp32f* pSrc, Qsp32f val, Qsp32f* pDst, int len);
QspStatus qspsDivC_32f_I(Qsp32f val, Qsp32f* pSrcDst, int len);
QspStatus qspsDivC_64f(const Qsp64f* pSrc, Qsp64f val, Qsp64f* pDst, int len);
QspStatus qspsDivC_64f_I(Qsp64f val, Qsp64f* pSrcDst, int len);
QspStatus qspsDivC_32fc(const Qsp32fc* pSrc, Qsp32fc val, Qsp32fc* pDst, int len);
QspStatus qspsDivC_32fc_I(Qsp32fc val, Qsp32fc* pSrcDst, int len);
QspStatus qspsDivC_64fc(const Qsp64fc* pSrc, Qsp64fc val, Qsp64fc* pDst, int len);
QspStatus qspsDivC_64fc_I(Qsp64fc val, Qsp64fc* pSrcDst, int len);
QspStatus qspsDivC_8u_Sfs(const Qsp8u* pSrc, Qsp8u val, Qsp8u* pDst, int len, int scaleFactor);
QspStatus qspsDivC_8u_ISfs(Qsp8u val, Qsp8u* pSrcDst, int len, int scaleFactor);
QspStatus qspsDivC_16s_Sfs(const Qsp16s* pSrc, Qsp16s val, Qsp16s* pDst, int len, int scaleFactor);
QspStatus qspsDivC_16s_ISfs(Qsp16s val, Qsp16s* pSrcDst, int len, int scaleFactor);
QspStatus qspsDivC_16u_Sfs(const Qsp16u* pSrc, Qsp16u val, Qsp16u* pDst, int len, int scaleFactor);
QspStatus qspsDivC_16u_ISfs(Qsp16u val, Qsp16u* pSrcDst, int len, int scaleFactor);
QspStatus qspsDivC_16sc_Sfs(const Qsp16sc* pSrc, Qsp16sc val, Qsp16sc* pDst, int len, int scaleFactor);
QspStatus qspsDivC_16sc_ISfs(Qsp16sc val, Qsp16sc* pSrcDst, int len, int scaleFactor);
QspStatus qspsDivC_32f_L(const Qsp32f* pSrc, Qsp32f val, Qsp32f* pDst, Qsp64s len);
QspStatus qspsDivC_32f_I_L(Qsp32f val, Qsp32f* pSrcDst, Qsp64s len);
QspStatus qspsDivC_64f_L(const Qsp64f* pSrc, Qsp64f val, Qsp64f* pDst, Qsp64s len);
QspStatus qspsDivC_64f_I_L(Qsp64f val, Qsp64f* pSrcDst, Qsp64s len);
QspStatus qspsDivC_32fc_L(const Qsp32fc* pSrc, Qsp32fc val, Qsp32fc* pDst, Qsp64s len);
QspStatus qspsDivC_32fc_I_L(Qsp32fc val, Qsp32fc* pSrcDst, Qsp64s len);
QspStatus qspsDivC_64fc_L(const Qsp64fc* pSrc, Qsp64fc val, Qsp64fc* pDst, Qsp64s len);
QspStatus qspsDivC_64fc_I_L(Qsp64fc val, Qsp64fc* pSrcDst, Qsp64s len);

/* DivCRev ----------------------------------------------------------------- */
/*
 * Divides a constant by every element: pDst[i] = val / pSrc[i]; in place
 * pSrcDst[i] = val / pSrcDst[i]. Zero elements give the warning
 * qspStsWarnDivByZero after the whole output is written, as in Div (16u: 65535
 * for a non-zero val, 0 for 0; other 16u quotients round to nearest even). _L
 * forms chunk as Add does. A destination may be the same vector as a source
 * (that is how the I forms run); other overlaps are not allowed. Thread-safe.
 */
QspStatus qspsDivCRev_16u(const Qsp16u* pSrc, Qsp16u val, Qsp16u* pDst, int len);
QspStatus qspsDivCRev_16u_I(Qsp16u val, Qsp16u* pSrcDst, int len);
QspStatus qspsDivCRev_32f(const Qsp32f* pSrc, Qsp32f val, Qsp32f* pDst, int len);
QspStatus qspsDivCRev_32f_I(Qsp32f val, Qsp32f* pSrcDst, int len);
QspStatus qspsDivCRev_64f(const Qsp64f* pSrc, Qsp64f val, Qsp64f* pDst, int len);
QspStatus qspsDivCRev_64f_I(Qsp64f val, Qsp64f* pSrcDst, int len);
QspStatus qspsDivCRev_32f_L(const Qsp32f* pSrc, Qsp32f val, Qsp32f* pDst, Qsp64s len);
QspStatus qspsDivCRev_32f_I_L(Qsp32f val, Qsp32f* pSrcDst, Qsp64s len);
QspStatus qspsDivCRev_64f_L(const Qsp64f* pSrc, Qsp64f val, Qsp64f* pDst, Qsp64s len);
QspStatus qspsDivCRev_64f_I_L(Qsp64f val, Qsp64f* pSrcDst, Qsp64s len);

/* Convert ----------------------------------------------------------------- */
/*
 * Converts between element types, source code first: pDst[i] = pSrc[i] in the
 * destination type. Widening conversions are exact; integer to floating and
 * 64f32f round to nearest even (IEEE); narrowing integer ones without Sfs
 * saturate; complex ones convert part by part. Float-to-integer Sfs forms
 * multiply by 2^-scaleFactor exactly, round as rndMode says (0 toward zero, 1
 * to nearest even, 2 to nearest with ties away from zero) and saturate; NaN
 * gives 0. rndMode other than 0, 1, 2 (negative too) gives qspStsBadRoundMode
 * after the pointer and length checks. Integer Sfs forms apply the scale-
 * factor rule (to nearest even); integer-to-float Sfs forms scale exactly and
 * round once. 16f is IEEE half precision, held as its bits: widening is exact;
 * narrowing rounds on the half grid in the given mode, values beyond 65504
 * give infinity (toward zero: 65504), NaN stays NaN. 24u/24s elements are
 * three bytes, least significant first, so those vectors hold 3*len bytes.
 * Thread-safe.
 */
QspStatus qspsConvert_8s16s(const Qsp8s* pSrc, Qsp16s* pDst, int len);
QspStatus qspsConvert_8s32f(const Qsp8s* pSrc, Qsp32f* pDst, int len);
QspStatus qspsConvert_8u32f(const Qsp8u* pSrc, Qsp32f* pDst, int len);
QspStatus qspsConvert_16s32s(const Qsp16s* pSrc, Qsp32s* pDst, int len);
QspStatus qspsConvert_16s32f(const Qsp16s* pSrc, Qsp32f* pDst, int len);
QspStatus qspsConvert_16s64f(const Qsp16s* pSrc, Qsp64f* pDst, int len);
QspStatus qspsConvert_16u32f(const Qsp16u* pSrc, Qsp32f* pDst, int len);
QspStatus qspsConvert_32s16s(const Qsp32s* pSrc, Qsp16s* pDst, int len);
QspStatus qspsConvert_32s32f(const Qsp32s* pSrc, Qsp32f* pDst, int len);
QspStatus qspsConvert_32s64f(const Qsp32s* pSrc, Qsp64f* pDst, int len);
QspStatus qspsConvert_32f64f(const Qsp32f* pSrc, Qsp64f* pDst, int len);
QspStatus qspsConvert_64f32f(const Qsp64f* pSrc, Qsp32f* pDst, int len);
QspStatus qspsConvert_64s64f(const Qsp64s* pSrc, Qsp64f* pDst, int len);
QspStatus qspsConvert_16f32f(const Qsp16f* pSrc, Qsp32f* pDst, int len);
QspStatus qspsConvert_24u32u(const Qsp8u* pSrc, Qsp32u* pDst, int len);
QspStatus qspsConvert_24s32s(const Qsp8u* pSrc, Qsp32s* pDst, int len);
QspStatus qspsConvert_24u32f(const Qsp8u* pSrc, Qsp32f* pDst, int len);
QspStatus qspsConvert_24s32f(const Qsp8u* pSrc, Qsp32f* pDst, int len);
QspStatus qspsConvert_8u16u(const Qsp8u* pSrc, Qsp16u* pDst, int len);
QspStatus qspsConvert_8u16s(const Qsp8u* pSrc, Qsp16s* pDst, int len);
QspStatus qspsConvert_16u32u(const Qsp16u* pSrc, Qsp32u* pDst, int len);
QspStatus qspsConvert_16u32s(const Qsp16u* pSrc, Qsp32s* pDst, int len);
QspStatus qspsConvert_32s64s(const Qsp32s* pSrc, Qsp64s* pDst, int len);
QspStatus qspsConvert_32u64u(const Qsp32u* pSrc, Qsp64u* pDst, int len);
QspStatus qspsConvert_32u32f(const Qsp32u* pSrc, Qsp32f* pDst, int len);
QspStatus qspsConvert_32u64f(const Qsp32u* pSrc, Qsp64f* pDst, int len);
QspStatus qspsConvert_64u64f(const Qsp64u* pSrc, Qsp64f* pDst, int len);
QspStatus qspsConvert_64s32f(const Qsp64s* pSrc, Qsp32f* pDst, int len);
QspStatus qspsConvert_16u64f(const Qsp16u* pSrc, Qsp64f* pDst, int len);
QspStatus qspsConvert_16s8u(const Qsp16s* pSrc, Qsp8u* pDst, int len);
QspStatus qspsConvert_16sc32sc(const Qsp16sc* pSrc, Qsp32sc* pDst, int len);
QspStatus qspsConvert_16sc32fc(const Qsp16sc* pSrc, Qsp32fc* pDst, int len);
QspStatus qspsConvert_32sc64fc(const Qsp32sc* pSrc, Qsp64fc* pDst, int len);
QspStatus qspsConvert_32fc64fc(const Qsp32fc* pSrc, Qsp64fc* pDst, int len);
QspStatus qspsConvert_64fc32fc(const Qsp64fc* pSrc, Qsp32fc* pDst, int len);
QspStatus qspsConvert_16s16f(const Qsp16s* pSrc, Qsp16f* pDst, int len, QspRoundMode rndMode);
QspStatus qspsConvert_32f16f(const Qsp32f* pSrc, Qsp16f* pDst, int len, QspRoundMode rndMode);
QspStatus qspsConvert_16f16s_Sfs(const Qsp16f* pSrc, Qsp16s* pDst, int len, QspRoundMode rndMode, int scaleFactor);
QspStatus qspsConvert_32f8s_Sfs(const Qsp32f* pSrc, Qsp8s* pDst, int len, QspRoundMode rndMode, int scaleFactor);
QspStatus qspsConvert_32f8u_Sfs(const Qsp32f* pSrc, Qsp8u* pDst, int len, QspRoundMode rndMode, int scaleFactor);
QspStatus qspsConvert_32f16s_Sfs(const Qsp32f* pSrc, Qsp16s* pDst, int len, QspRoundMode rndMode, int scaleFactor);
QspStatus qspsConvert_32f16u_Sfs(const Qsp32f* pSrc, Qsp16u* pDst, int len, QspRoundMode rndMode, int scaleFactor);
QspStatus qspsConvert_32f24s_Sfs(const Qsp32f* pSrc, Qsp8u* pDst, int len, QspRoundMode rndMode, int scaleFactor);
QspStatus qspsConvert_32f24u_Sfs(const Qsp32f* pSrc, Qsp8u* pDst, int len, QspRoundMode rndMode, int scaleFactor);
QspStatus qspsConvert_32f32s_Sfs(const Qsp32f* pSrc, Qsp32s* pDst, int len, QspRoundMode rndMode, int scaleFactor);
QspStatus qspsConvert_64f16s_Sfs(const Qsp64f* pSrc, Qsp16s* pDst, int len, QspRoundMode rndMode, int scaleFactor);
QspStatus qspsConvert_64f32s_Sfs(const Qsp64f* pSrc, Qsp32s* pDst, int len, QspRoundMode rndMode, int scaleFactor);
QspStatus qspsConvert_64f64s_Sfs(const Qsp64f* pSrc, Qsp64s* pDst, int len, QspRoundMode rndMode, int scaleFactor);
QspStatus qspsConvert_32s16s_Sfs(const Qsp32s* pSrc, Qsp16s* pDst, int len, int scaleFactor);
QspStatus qspsConvert_64s32s_Sfs(const Qsp64s* pSrc, Qsp32s* pDst, int len, int scaleFactor);
QspStatus qspsConvert_32u24u_Sfs(const Qsp32u* pSrc, Qsp8u* pDst, int len, int scaleFactor);
QspStatus qspsConvert_32s24s_Sfs(const Qsp32s* pSrc, Qsp8u* pDst, int len, int scaleFactor);
QspStatus qspsConvert_16s32f_Sfs(const Qsp16s* pSrc, Qsp32f* pDst, int len, int scaleFactor);
QspStatus qspsConvert_32s32f_Sfs(const Qsp32s* pSrc, Qsp32f* pDst, int len, int scaleFactor);
QspStatus qspsConvert_32s64f_Sfs(const Qsp32s* pSrc, Qsp64f* pDst, int len, int scaleFactor);

/* Threshold --------------------------------------------------------------- */
/*
 * Clamps elements against a level. Threshold with relOp qspCmpLess (0):
 * pDst[i] = pSrc[i] < level ? level : pSrc[i]; with qspCmpGreater (4): pSrc[i]
 * > level ? level : pSrc[i]; any other relOp gives qspStsBadArgument. LT/GT:
 * the same with the comparison fixed. LTVal/GTVal: elements below (above)
 * level are replaced by value. LTAbs/GTAbs: elements whose magnitude is below
 * (above) level get magnitude level, keeping their sign (-0.0 gives -level).
 * LTAbsVal: elements whose magnitude is below level become value. LTInv:
 * pDst[i] = 1/pSrc[i], with magnitudes below level taken as level (a zero
 * level with a zero element gives infinity and the warning
 * qspStsWarnDivByZero). LTValGTVal: below levelLT becomes valueLT, above
 * levelGT becomes valueGT (both compared with the original element); levelLT
 * above levelGT gives qspStsBadThreshold. NaN elements compare false and stay.
 * Complex forms compare magnitudes and keep the phase (a zero element raised
 * to a level becomes level on the real axis). A negative level of an Abs or
 * Inv form gives qspStsBadThreshold. Mode checks come after the pointers and
 * the length. _L forms of LTAbs chunk as Add does. A destination may be the
 * same vector as a source (that is how the I forms run); other overlaps are
 * not allowed. Thread-safe.
 */
QspStatus qspsThreshold_16s(const Qsp16s* pSrc, Qsp16s* pDst, int len, Qsp16s level, QspCmpOp relOp);
QspStatus qspsThreshold_16s_I(Qsp16s* pSrcDst, int len, Qsp16s level, QspCmpOp relOp);
QspStatus qspsThreshold_32f(const Qsp32f* pSrc, Qsp32f* pDst, int len, Qsp32f level, QspCmpOp relOp);
QspStatus qspsThreshold_32f_I(Qsp32f* pSrcDst, int len, Qsp32f level, QspCmpOp relOp);
QspStatus qspsThreshold_64f(const Qsp64f* pSrc, Qsp64f* pDst, int len, Qsp64f level, QspCmpOp relOp);
QspStatus qspsThreshold_64f_I(Qsp64f* pSrcDst, int len, Qsp64f level, QspCmpOp relOp);
QspStatus qspsThreshold_32fc(const Qsp32fc* pSrc, Qsp32fc* pDst, int len, Qsp32f level, QspCmpOp relOp);
QspStatus qspsThreshold_32fc_I(Qsp32fc* pSrcDst, int len, Qsp32f level, QspCmpOp relOp);
QspStatus qspsThreshold_64fc(const Qsp64fc* pSrc, Qsp64fc* pDst, int len, Qsp64f level, QspCmpOp relOp);
QspStatus qspsThreshold_64fc_I(Qsp64fc* pSrcDst, int len, Qsp64f level, QspCmpOp relOp);
QspStatus qspsThreshold_LT_16s(const Qsp16s* pSrc, Qsp16s* pDst, int len, Qsp16s level);
QspStatus qspsThreshold_LT_16s_I(Qsp16s* pSrcDst, int len, Qsp16s level);
QspStatus qspsThreshold_LT_32s(const Qsp32s* pSrc, Qsp32s* pDst, int len, Qsp32s level);
QspStatus qspsThreshold_LT_32s_I(Qsp32s* pSrcDst, int len, Qsp32s level);
QspStatus qspsThreshold_LT_32f(const Qsp32f* pSrc, Qsp32f* pDst, int len, Qsp32f level);
QspStatus qspsThreshold_LT_32f_I(Qsp32f* pSrcDst, int len, Qsp32f level);
QspStatus qspsThreshold_LT_64f(const Qsp64f* pSrc, Qsp64f* pDst, int len, Qsp64f level);
QspStatus qspsThreshold_LT_64f_I(Qsp64f* pSrcDst, int len, Qsp64f level);
QspStatus qspsThreshold_LT_32fc(const Qsp32fc* pSrc, Qsp32fc* pDst, int len, Qsp32f level);
QspStatus qspsThreshold_LT_32fc_I(Qsp32fc* pSrcDst, int len, Qsp32f level);
QspStatus qspsThreshold_LT_64fc(const Qsp64fc* pSrc, Qsp64fc* pDst, int len, Qsp64f level);
QspStatus qspsThreshold_LT_64fc_I(Qsp64fc* pSrcDst, int len, Qsp64f level);
QspStatus qspsThreshold_GT_16s(const Qsp16s* pSrc, Qsp16s* pDst, int len, Qsp16s level);
QspStatus qspsThreshold_GT_16s_I(Qsp16s* pSrcDst, int len, Qsp16s level);
QspStatus qspsThreshold_GT_32s(const Qsp32s* pSrc, Qsp32s* pDst, int len, Qsp32s level);
QspStatus qspsThreshold_GT_32s_I(Qsp32s* pSrcDst, int len, Qsp32s level);
QspStatus qspsThreshold_GT_32f(const Qsp32f* pSrc, Qsp32f* pDst, int len, Qsp32f level);
QspStatus qspsThreshold_GT_32f_I(Qsp32f* pSrcDst, int len, Qsp32f level);
QspStatus qspsThreshold_GT_64f(const Qsp64f* pSrc, Qsp64f* pDst, int len, Qsp64f level);
QspStatus qspsThreshold_GT_64f_I(Qsp64f* pSrcDst, int len, Qsp64f level);
QspStatus qspsThreshold_GT_32fc(const Qsp32fc* pSrc, Qsp32fc* pDst, int len, Qsp32f level);
QspStatus qspsThreshold_GT_32fc_I(Qsp32fc* pSrcDst, int len, Qsp32f level);
QspStatus qspsThreshold_GT_64fc(const Qsp64fc* pSrc, Qsp64fc* pDst, int len, Qsp64f level);
QspStatus qspsThreshold_GT_64fc_I(Qsp64fc* pSrcDst, int len, Qsp64f level);
QspStatus qspsThreshold_LTVal_16s(const Qsp16s* pSrc, Qsp16s* pDst, int len, Qsp16s level, Qsp16s value);
QspStatus qspsThreshold_LTVal_16s_I(Qsp16s* pSrcDst, int len, Qsp16s level, Qsp16s value);
QspStatus qspsThreshold_LTVal_32f(const Qsp32f* pSrc, Qsp32f* pDst, int len, Qsp32f level, Qsp32f value);
QspStatus qspsThreshold_LTVal_32f_I(Qsp32f* pSrcDst, int len, Qsp32f level, Qsp32f value);
QspStatus qspsThreshold_LTVal_64f(const Qsp64f* pSrc, Qsp64f* pDst, int len, Qsp64f level, Qsp64f value);
QspStatus qspsThreshold_LTVal_64f_I(Qsp64f* pSrcDst, int len, Qsp64f level, Qsp64f value);
QspStatus qspsThreshold_LTVal_32fc(const Qsp32fc* pSrc, Qsp32fc* pDst, int len, Qsp32f level, Qsp32fc value);
QspStatus qspsThreshold_LTVal_32fc_I(Qsp32fc* pSrcDst, int len, Qsp32f level, Qsp32fc value);
QspStatus qspsThreshold_LTVal_64fc(const Qsp64fc* pSrc, Qsp64fc* pDst, int len, Qsp64f level, Qsp64fc value);
QspStatus qspsThreshold_LTVal_64fc_I(Qsp64fc* pSrcDst, int len, Qsp64f level, Qsp64fc value);
QspStatus qspsThreshold_GTVal_16s(const Qsp16s* pSrc, Qsp16s* pDst, int len, Qsp16s level, Qsp16s value);
QspStatus qspsThreshold_GTVal_16s_I(Qsp16s* pSrcDst, int len, Qsp16s level, Qsp16s value);
QspStatus qspsThreshold_GTVal_32f(const Qsp32f* pSrc, Qsp32f* pDst, int len, Qsp32f level, Qsp32f value);
QspStatus qspsThreshold_GTVal_32f_I(Qsp32f* pSrcDst, int len, Qsp32f level, Qsp32f value);
QspStatus qspsThreshold_GTVal_64f(const Qsp64f* pSrc, Qsp64f* pDst, int len, Qsp64f level, Qsp64f value);
QspStatus qspsThreshold_GTVal_64f_I(Qsp64f* pSrcDst, int len, Qsp64f level, Qsp64f value);
QspStatus qspsThreshold_GTVal_32fc(const Qsp32fc* pSrc, Qsp32fc* pDst, int len, Qsp32f level, Qsp32fc value);
QspStatus qspsThreshold_GTVal_32fc_I(Qsp32fc* pSrcDst, int len, Qsp32f level, Qsp32fc value);
QspStatus qspsThreshold_GTVal_64fc(const Qsp64fc* pSrc, Qsp64fc* pDst, int len, Qsp64f level, Qsp64fc value);
QspStatus qspsThreshold_GTVal_64fc_I(Qsp64fc* pSrcDst, int len, Qsp64f level, Qsp64fc value);
QspStatus qspsThreshold_LTAbs_16s(const Qsp16s* pSrc, Qsp16s* pDst, int len, Qsp16s level);
QspStatus qspsThreshold_LTAbs_16s_I(Qsp16s* pSrcDst, int len, Qsp16s level);
QspStatus qspsThreshold_LTAbs_32s(const Qsp32s* pSrc, Qsp32s* pDst, int len, Qsp32s level);
QspStatus qspsThreshold_LTAbs_32s_I(Qsp32s* pSrcDst, int len, Qsp32s level);
QspStatus qspsThreshold_LTAbs_32f(const Qsp32f* pSrc, Qsp32f* pDst, int len, Qsp32f level);
QspStatus qspsThreshold_LTAbs_32f_I(Qsp32f* pSrcDst, int len, Qsp32f level);
QspStatus qspsThreshold_LTAbs_64f(const Qsp64f* pSrc, Qsp64f* pDst, int len, Qsp64f level);
QspStatus qspsThreshold_LTAbs_64f_I(Qsp64f* pSrcDst, int len, Qsp64f level);
QspStatus qspsThreshold_LTAbs_32f_L(const Qsp32f* pSrc, Qsp32f* pDst, Qsp64s len, Qsp32f level);
QspStatus qspsThreshold_LTAbs_32f_I_L(Qsp32f* pSrcDst, Qsp64s len, Qsp32f level);
QspStatus qspsThreshold_LTAbs_64f_L(const Qsp64f* pSrc, Qsp64f* pDst, Qsp64s len, Qsp64f level);
QspStatus qspsThreshold_LTAbs_64f_I_L(Qsp64f* pSrcDst, Qsp64s len, Qsp64f level);
QspStatus qspsThreshold_GTAbs_16s(const Qsp16s* pSrc, Qsp16s* pDst, int len, Qsp16s level);
QspStatus qspsThreshold_GTAbs_16s_I(Qsp16s* pSrcDst, int len, Qsp16s level);
QspStatus qspsThreshold_GTAbs_32s(const Qsp32s* pSrc, Qsp32s* pDst, int len, Qsp32s level);
QspStatus qspsThreshold_GTAbs_32s_I(Qsp32s* pSrcDst, int len, Qsp32s level);
QspStatus qspsThreshold_GTAbs_32f(const Qsp32f* pSrc, Qsp32f* pDst, int len, Qsp32f level);
QspStatus qspsThreshold_GTAbs_32f_I(Qsp32f* pSrcDst, int len, Qsp32f level);
QspStatus qspsThreshold_GTAbs_64f(const Qsp64f* pSrc, Qsp64f* pDst, int len, Qsp64f level);
QspStatus qspsThreshold_GTAbs_64f_I(Qsp64f* pSrcDst, int len, Qsp64f level);
QspStatus qspsThreshold_LTAbsVal_16s(const Qsp16s* pSrc, Qsp16s* pDst, int len, Qsp16s level, Qsp16s value);
QspStatus qspsThreshold_LTAbsVal_16s_I(Qsp16s* pSrcDst, int len, Qsp16s level, Qsp16s value);
QspStatus qspsThreshold_LTAbsVal_32s(const Qsp32s* pSrc, Qsp32s* pDst, int len, Qsp32s level, Qsp32s value);
QspStatus qspsThreshold_LTAbsVal_32s_I(Qsp32s* pSrcDst, int len, Qsp32s level, Qsp32s value);
QspStatus qspsThreshold_LTAbsVal_32f(const Qsp32f* pSrc, Qsp32f* pDst, int len, Qsp32f level, Qsp32f value);
QspStatus qspsThreshold_LTAbsVal_32f_I(Qsp32f* pSrcDst, int len, Qsp32f level, Qsp32f value);
QspStatus qspsThreshold_LTAbsVal_64f(const Qsp64f* pSrc, Qsp64f* pDst, int len, Qsp64f level, Qsp64f value);
QspStatus qspsThreshold_LTAbsVal_64f_I(Qsp64f* pSrcDst, int len, Qsp64f level, Qsp64f value);
QspStatus qspsThreshold_LTInv_32f(const Qsp32f* pSrc, Qsp32f* pDst, int len, Qsp32f level);
QspStatus qspsThreshold_LTInv_32f_I(Qsp32f* pSrcDst, int len, Qsp32f level);
QspStatus qspsThreshold_LTInv_64f(const Qsp64f* pSrc, Qsp64f* pDst, int len, Qsp64f level);
QspStatus qspsThreshold_LTInv_64f_I(Qsp64f* pSrcDst, int len, Qsp64f level);
QspStatus qspsThreshold_LTInv_32fc(const Qsp32fc* pSrc, Qsp32fc* pDst, int len, Qsp32f level);
QspStatus qspsThreshold_LTInv_32fc_I(Qsp32fc* pSrcDst, int len, Qsp32f level);
QspStatus qspsThreshold_LTInv_64fc(const Qsp64fc* pSrc, Qsp64fc* pDst, int len, Qsp64f level);
QspStatus qspsThreshold_LTInv_64fc_I(Qsp64fc* pSrcDst, int len, Qsp64f level);
QspStatus qspsThreshold_LTValGTVal_16s(const Qsp16s* pSrc, Qsp16s* pDst, int len, Qsp16s levelLT, Qsp16s valueLT, Qsp16s levelGT, Qsp16s valueGT);
QspStatus qspsThreshold_LTValGTVal_16s_I(Qsp16s* pSrcDst, int len, Qsp16s levelLT, Qsp16s valueLT, Qsp16s levelGT, Qsp16s valueGT);
QspStatus qspsThreshold_LTValGTVal_32s(const Qsp32s* pSrc, Qsp32s* pDst, int len, Qsp32s levelLT, Qsp32s valueLT, Qsp32s levelGT, Qsp32s valueGT);
QspStatus qspsThreshold_LTValGTVal_32s_I(Qsp32s* pSrcDst, int len, Qsp32s levelLT, Qsp32s valueLT, Qsp32s levelGT, Qsp32s valueGT);
QspStatus qspsThreshold_LTValGTVal_32f(const Qsp32f* pSrc, Qsp32f* pDst, int len, Qsp32f levelLT, Qsp32f valueLT, Qsp32f levelGT, Qsp32f valueGT);
QspStatus qspsThreshold_LTValGTVal_32f_I(Qsp32f* pSrcDst, int len, Qsp32f levelLT, Qsp32f valueLT, Qsp32f levelGT, Qsp32f valueGT);
QspStatus qspsThreshold_LTValGTVal_64f(const Qsp64f* pSrc, Qsp64f* pDst, int len, Qsp64f levelLT, Qsp64f valueLT, Qsp64f levelGT, Qsp64f valueGT);
QspStatus qspsThreshold_LTValGTVal_64f_I(Qsp64f* pSrcDst, int len, Qsp64f levelLT, Qsp64f valueLT, Qsp64f levelGT, Qsp64f valueGT);

/* And --------------------------------------------------------------------- */
/*
 * Bitwise and: pDst[i] = pSrc1[i] & pSrc2[i] (in place pSrcDst[i] &= pSrc[i]);
 * the AndC forms take a constant: pDst[i] = pSrc[i] & val.
 */
QspStatus qspsAnd_8u(const Qsp8u* pSrc1, const Qsp8u* pSrc2, Qsp8u* pDst, int len);
QspStatus qspsAnd_8u_I(const Qsp8u* pSrc, Qsp8u* pSrcDst, int len);
QspStatus qspsAnd_16u(const Qsp16u* pSrc1, const Qsp16u* pSrc2, Qsp16u* pDst, int len);
QspStatus qspsAnd_16u_I(const Qsp16u* pSrc, Qsp16u* pSrcDst, int len);
QspStatus qspsAnd_32u(const Qsp32u* pSrc1, const Qsp32u* pSrc2, Qsp32u* pDst, int len);
QspStatus qspsAnd_32u_I(const Qsp32u* pSrc, Qsp32u* pSrcDst, int len);
QspStatus qspsAndC_8u(const Qsp8u* pSrc, Qsp8u val, Qsp8u* pDst, int len);
QspStatus qspsAndC_8u_I(Qsp8u val, Qsp8u* pSrcDst, int len);
QspStatus qspsAndC_16u(const Qsp16u* pSrc, Qsp16u val, Qsp16u* pDst, int len);
QspStatus qspsAndC_16u_I(Qsp16u val, Qsp16u* pSrcDst, int len);
QspStatus qspsAndC_32u(const Qsp32u* pSrc, Qsp32u val, Qsp32u* pDst, int len);
QspStatus qspsAndC_32u_I(Qsp32u val, Qsp32u* pSrcDst, int len);

/* Or ---------------------------------------------------------------------- */
/*
 * Bitwise or: pDst[i] = pSrc1[i] | pSrc2[i] (in place pSrcDst[i] |= pSrc[i]);
 * the OrC forms take a constant: pDst[i] = pSrc[i] | val.
 */
QspStatus qspsOr_8u(const Qsp8u* pSrc1, const Qsp8u* pSrc2, Qsp8u* pDst, int len);
QspStatus qspsOr_8u_I(const Qsp8u* pSrc, Qsp8u* pSrcDst, int len);
QspStatus qspsOr_16u(const Qsp16u* pSrc1, const Qsp16u* pSrc2, Qsp16u* pDst, int len);
QspStatus qspsOr_16u_I(const Qsp16u* pSrc, Qsp16u* pSrcDst, int len);
QspStatus qspsOr_32u(const Qsp32u* pSrc1, const Qsp32u* pSrc2, Qsp32u* pDst, int len);
QspStatus qspsOr_32u_I(const Qsp32u* pSrc, Qsp32u* pSrcDst, int len);
QspStatus qspsOrC_8u(const Qsp8u* pSrc, Qsp8u val, Qsp8u* pDst, int len);
QspStatus qspsOrC_8u_I(Qsp8u val, Qsp8u* pSrcDst, int len);
QspStatus qspsOrC_16u(const Qsp16u* pSrc, Qsp16u val, Qsp16u* pDst, int len);
QspStatus qspsOrC_16u_I(Qsp16u val, Qsp16u* pSrcDst, int len);
QspStatus qspsOrC_32u(const Qsp32u* pSrc, Qsp32u val, Qsp32u* pDst, int len);
QspStatus qspsOrC_32u_I(Qsp32u val, Qsp32u* pSrcDst, int len);

/* Xor --------------------------------------------------------------------- */
/*
 * Bitwise exclusive or: pDst[i] = pSrc1[i] ^ pSrc2[i] (in place pSrcDst[i] ^= pSrc[i]);
 * the XorC forms take a constant: pDst[i] = pSrc[i] ^ val.
 */
QspStatus qspsXor_8u(const Qsp8u* pSrc1, const Qsp8u* pSrc2, Qsp8u* pDst, int len);
QspStatus qspsXor_8u_I(const Qsp8u* pSrc, Qsp8u* pSrcDst, int len);
QspStatus qspsXor_16u(const Qsp16u* pSrc1, const Qsp16u* pSrc2, Qsp16u* pDst, int len);
QspStatus qspsXor_16u_I(const Qsp16u* pSrc, Qsp16u* pSrcDst, int len);
QspStatus qspsXor_32u(const Qsp32u* pSrc1, const Qsp32u* pSrc2, Qsp32u* pDst, int len);
QspStatus qspsXor_32u_I(const Qsp32u* pSrc, Qsp32u* pSrcDst, int len);
QspStatus qspsXorC_8u(const Qsp8u* pSrc, Qsp8u val, Qsp8u* pDst, int len);
QspStatus qspsXorC_8u_I(Qsp8u val, Qsp8u* pSrcDst, int len);
QspStatus qspsXorC_16u(const Qsp16u* pSrc, Qsp16u val, Qsp16u* pDst, int len);
QspStatus qspsXorC_16u_I(Qsp16u val, Qsp16u* pSrcDst, int len);
QspStatus qspsXorC_32u(const Qsp32u* pSrc, Qsp32u val, Qsp32u* pDst, int len);
QspStatus qspsXorC_32u_I(Qsp32u val, Qsp32u* pSrcDst, int len);

/* Not --------------------------------------------------------------------- */
/*
 * Bitwise complement: pDst[i] = ~pSrc[i]; in place on pSrcDst.
 */
QspStatus qspsNot_8u(const Qsp8u* pSrc, Qsp8u* pDst, int len);
QspStatus qspsNot_8u_I(Qsp8u* pSrcDst, int len);
QspStatus qspsNot_16u(const Qsp16u* pSrc, Qsp16u* pDst, int len);
QspStatus qspsNot_16u_I(Qsp16u* pSrcDst, int len);
QspStatus qspsNot_32u(const Qsp32u* pSrc, Qsp32u* pDst, int len);
QspStatus qspsNot_32u_I(Qsp32u* pSrcDst, int len);

/* LShiftC ----------------------------------------------------------------- */
/*
 * Shifts every element left by val bits: pDst[i] = pSrc[i] << val (in place on
 * pSrcDst). A shift of 0 is a copy and a shift of the element width or more
 * gives zeros; both are decided before the other checks, the copy or zero fill
 * then checking the pointers itself. A negative val gives qspStsBadShift after
 * the pointer and length checks.
 */
QspStatus qspsLShiftC_8u(const Qsp8u* pSrc, int val, Qsp8u* pDst, int len);
QspStatus qspsLShiftC_8u_I(int val, Qsp8u* pSrcDst, int len);
QspStatus qspsLShiftC_16s(const Qsp16s* pSrc, int val, Qsp16s* pDst, int len);
QspStatus qspsLShiftC_16s_I(int val, Qsp16s* pSrcDst, int len);
QspStatus qspsLShiftC_16u(const Qsp16u* pSrc, int val, Qsp16u* pDst, int len);
QspStatus qspsLShiftC_16u_I(int val, Qsp16u* pSrcDst, int len);
QspStatus qspsLShiftC_32s(const Qsp32s* pSrc, int val, Qsp32s* pDst, int len);
QspStatus qspsLShiftC_32s_I(int val, Qsp32s* pSrcDst, int len);

/* RShiftC ----------------------------------------------------------------- */
/*
 * Shifts every element right by val bits: pDst[i] = pSrc[i] >> val (in place
 * on pSrcDst), arithmetic for signed types, logical for unsigned ones. A shift
 * of 0 is a copy; a shift of the element width or more gives zeros for
 * unsigned types and the sign (0 or -1) for signed ones. Both are decided
 * before the other checks, as in LShiftC. A negative val gives qspStsBadShift
 * after the pointer and length checks.
 */
QspStatus qspsRShiftC_8u(const Qsp8u* pSrc, int val, Qsp8u* pDst, int len);
QspStatus qspsRShiftC_8u_I(int val, Qsp8u* pSrcDst, int len);
QspStatus qspsRShiftC_16s(const Qsp16s* pSrc, int val, Qsp16s* pDst, int len);
QspStatus qspsRShiftC_16s_I(int val, Qsp16s* pSrcDst, int len);
QspStatus qspsRShiftC_16u(const Qsp16u* pSrc, int val, Qsp16u* pDst, int len);
QspStatus qspsRShiftC_16u_I(int val, Qsp16u* pSrcDst, int len);
QspStatus qspsRShiftC_32s(const Qsp32s* pSrc, int val, Qsp32s* pDst, int len);
QspStatus qspsRShiftC_32s_I(int val, Qsp32s* pSrcDst, int len);

/* FFTGetSize -------------------------------------------------------------- */
/*
 * Sizes, in bytes, that a power-of-two FFT of length N = 2^order needs:
 * *pSpecSize for the record block, *pSpecBufferSize for the buffer used only
 * during Init (0 below order 11), *pBufferSize for the work buffer of every
 * transform call (0: no buffer is needed; so for complex orders 0..5 and
 * real orders 0..6). flag is the normalisation: 1 divides the forward
 * transform by N, 2 the inverse by N, 4 both by sqrt(N), 8 neither; any
 * other value gives qspStsBadFftFlag. hint is stored, never checked.
 * Kinds and orders: C_16fc, C_32fc, C_32f (split parts) 0..28; R_32f 0..29;
 * C_64fc, C_64f 0..27; R_64f 0..28; other orders give qspStsBadFftOrder.
 * Checks in order: order 31 or above, then the three pointers (C_16fc: the
 * pointers, then orders above 30), the flag, the kind's maximum order.
 * Every size includes 64 bytes of slack per non-empty block, so the blocks
 * need no alignment; Init and the transforms stay within the sizes
 * reported. The record takes a little over 9N bytes (complex single
 * precision, orders 6..20) or 17N (complex double, 6..19) and the work
 * buffer 8N or 16N; above those orders the record holds O(sqrt N) values
 * and the work buffer O(sqrt N) values (under 3 MB at every order), while
 * the Init buffer stays at about N bytes (single) or 2N (double). Real
 * kinds take the sizes of the complex transform of half their length plus
 * their recombination tables; C_16fc those of C_32fc plus 20 record bytes
 * and 8N work bytes, where it keeps the data as single-precision values.
 * Every size fits in an int except that C_16fc work buffer at order 28
 * (2^31 bytes): GetSize, and Init, return qspStsOverflow there and write
 * nothing.
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
 * Init buffer, at least *pSpecBufferSize bytes) is used during the call only
 * and may be null when that size is 0. order, flag and hint as in
 * FFTGetSize. Checks in order: ppFFTSpec, the order, pSpec (qspStsNullPtr,
 * qspStsBadFftOrder; the block is untouched), then the flag: a rejected flag
 * leaves the record marked unusable (transforms given it return
 * qspStsBadRecord), as does a null pSpecBuffer from order 11 on. C_16fc at
 * order 28 returns qspStsOverflow with nothing written. Init of C_16fc
 * switches the processor to flush-to-zero and denormals-are-zero and leaves
 * them so. Records hold no pointer outside their block, are read-only
 * afterwards and may be shared by threads; there is no release call (free
 * the block).
 * Usage (1024 points, the inverse divided by N):
 *   int specSize, initSize, workSize;
 *   QspsFFTSpec_C_32fc* fft;
 *   qspsFFTGetSize_C_32fc(10, 2, 0, &specSize, &initSize, &workSize);
 *   Qsp8u* spec = qspsMalloc_8u(specSize);
 *   Qsp8u* init = initSize ? qspsMalloc_8u(initSize) : NULL;
 *   Qsp8u* work = workSize ? qspsMalloc_8u(workSize) : NULL;
 *   qspsFFTInit_C_32fc(&fft, 10, 2, 0, spec, init);
 *   qspsFree(init);                         // Init's alone
 *   qspsFFTFwd_CToC_32fc(x, X, fft, work);  // as often as needed
 *   qspsFFTInv_CToC_32fc(X, x, fft, work);  // x again
 *   qspsFree(work);
 *   qspsFree(spec);
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
 * the record, divided by N (qspFftDivFwdByN on forward, qspFftDivInvByN on
 * inverse calls) or sqrt(N) (qspFftDivBySqrtN) as the record's flag says
 * (qspFftNoDiv: never); the division is a multiplication of every result by
 * the record's factor (1/N or 1/sqrt(N) rounded to the element type). CToC:
 * complex to complex, interleaved (16fc, 32fc, 64fc) or split into
 * pSrcRe/pSrcIm and pDstRe/pDstIm (32f, 64f). 16fc values are converted to
 * single precision, transformed so, and rounded back. RToPack, RToPerm,
 * RToCCS: a real signal of N values to its half spectrum in the packed
 * layout named below. _I forms transform in place (for RToCCS the array
 * holds N+2 values), as does a call whose source equals its destination,
 * with results identical to the out-of-place call's; otherwise source and
 * destination must not overlap. pBuffer, of the size FFTGetSize reports, may
 * be null when that size is 0; calls running at once on one record need a
 * buffer each. Checks in order: null record, the record's kind
 * (qspStsBadRecord), the data pointers in parameter order, then a null
 * pBuffer while the record needs one; nothing is written on an error.
 * Relative RMS error against the exact transform: within 2e-7 sqrt(log2 N)
 * in single precision, 4e-16 sqrt(log2 N) in double.
 *
 * Packed real spectra. The spectrum of N real values is conjugate-symmetric,
 * X[N-k] = conj(X[k]), so X[0] .. X[N/2] describe it (X[k] = R_k + i I_k).
 * I_0 is always 0, and so is I_{N/2} when N is even. Three layouts keep these
 * bins in an array of real values (the FFT has even N from order 1 on; N = 1
 * and the odd lengths of other transforms and of MulPack, MulPerm and the
 * Conj functions follow the odd rule):
 *
 * (N/2 and (N-1)/2 below are rounded down, so for even N (N-1)/2 = N/2 - 1.)
 *
 *   Pack, N values:  p[0] = R_0; p[2k-1] = R_k, p[2k] = I_k for 1 <= k <=
 *                    (N-1)/2; even N also p[N-1] = R_{N/2}. No zero stored.
 *   Perm, N values:  even N: p[0] = R_0, p[1] = R_{N/2}, p[2k] = R_k,
 *                    p[2k+1] = I_k for 1 <= k <= N/2 - 1. Odd N: as Pack.
 *                    No zero stored.
 *   CCS, N+2 values (even N) or N+1 (odd N): c[2k] = R_k, c[2k+1] = I_k for
 *                    0 <= k <= N/2; the zeros c[1] = I_0 and, for even N,
 *                    c[N+1] = I_{N/2} are stored.
 *
 *   index:          0    1    2    3    4    5    6    7    8    9
 *   N = 8  Pack     R_0  R_1  I_1  R_2  I_2  R_3  I_3  R_4
 *          Perm     R_0  R_4  R_1  I_1  R_2  I_2  R_3  I_3
 *          CCS      R_0  0    R_1  I_1  R_2  I_2  R_3  I_3  R_4  0
 *   N = 7  Pack     R_0  R_1  I_1  R_2  I_2  R_3  I_3
 *          Perm     R_0  R_1  I_1  R_2  I_2  R_3  I_3
 *          CCS      R_0  0    R_1  I_1  R_2  I_2  R_3  I_3
 *   N = 2  Pack     R_0  R_1            (Perm the same)
 *          CCS      R_0  0    R_1  0
 *   N = 1  Pack     R_0                 (Perm the same; CCS R_0, 0)
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
 * Inverse FFT, x[m] = sum over k of X[k] e^(+2 pi i k m / N), divided by N
 * (flag 2) or sqrt(N) (flag 4) when the record's flag says so: with flag 1,
 * 2 or 4, Inv(Fwd(x)) returns x to rounding, with flag 8 N times x. PackToR, PermToR, CCSToR read a
 * packed half spectrum (layouts as in FFTFwd; the values a layout leaves
 * out, and the imaginary parts of bins 0 and N/2 of CCS, are taken as 0)
 * and write N real values. Arguments, in-place rules, buffers, checks and
 * accuracy as in FFTFwd.
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
 * Multiplies two half spectra in Pack layout (index table under FFTFwd) bin by
 * bin: pSrcDst = pSrc * pSrcDst, where element 0 (and, for even len, element
 * len-1) are real and the pairs in between complex. len is the packed length
 * (N values, even or odd).
 */
QspStatus qspsMulPack_32f_I(const Qsp32f* pSrc, Qsp32f* pSrcDst, int len);
QspStatus qspsMulPack_64f_I(const Qsp64f* pSrc, Qsp64f* pSrcDst, int len);

/* MulPackConj ------------------------------------------------------------- */
/*
 * As MulPack, with the in-place operand conjugated: pSrcDst = pSrc *
 * conj(pSrcDst), bin by bin, in Pack layout (index table under FFTFwd).
 */
QspStatus qspsMulPackConj_32f_I(const Qsp32f* pSrc, Qsp32f* pSrcDst, int len);
QspStatus qspsMulPackConj_64f_I(const Qsp64f* pSrc, Qsp64f* pSrcDst, int len);

/* MulPerm ----------------------------------------------------------------- */
/*
 * Multiplies two half spectra in Perm layout (index table under FFTFwd) bin by
 * bin: pDst = pSrc1 * pSrc2, or in place pSrcDst = pSrc * pSrcDst. Element 0
 * and, for even len, element 1 are real; the complex pairs follow. len is the
 * packed length (N values; for odd len Perm is Pack and so is the result).
 */
QspStatus qspsMulPerm_32f(const Qsp32f* pSrc1, const Qsp32f* pSrc2, Qsp32f* pDst, int len);
QspStatus qspsMulPerm_32f_I(const Qsp32f* pSrc, Qsp32f* pSrcDst, int len);
QspStatus qspsMulPerm_64f(const Qsp64f* pSrc1, const Qsp64f* pSrc2, Qsp64f* pDst, int len);
QspStatus qspsMulPerm_64f_I(const Qsp64f* pSrc, Qsp64f* pSrcDst, int len);

/* ConjPerm ---------------------------------------------------------------- */
/*
 * Expands a half spectrum in Perm layout (real values; index table under
 * FFTFwd) into the complete conjugate-symmetric spectrum of len complex
 * values: pDst[k] = X[k] for the stored bins and conj(X[len-k]) for the
 * others. The _I form reads the packed values from the start of pSrcDst and
 * writes the len complex values over them (the array holds len complex
 * values).
 */
QspStatus qspsConjPerm_32fc(const Qsp32f* pSrc, Qsp32fc* pDst, int len);
QspStatus qspsConjPerm_32fc_I(Qsp32fc* pSrcDst, int len);
QspStatus qspsConjPerm_64fc(const Qsp64f* pSrc, Qsp64fc* pDst, int len);
QspStatus qspsConjPerm_64fc_I(Qsp64fc* pSrcDst, int len);

/* ConjPack ---------------------------------------------------------------- */
/*
 * Expands a half spectrum in Pack layout (real values; index table under
 * FFTFwd) into the complete conjugate-symmetric spectrum of len complex
 * values: pDst[k] = X[k] for the stored bins and conj(X[len-k]) for the
 * others. The _I form reads the packed values from the start of pSrcDst and
 * writes the len complex values over them (the array holds len complex
 * values). _L forms take a 64-bit length and run in one pass.
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
 * Expands a half spectrum in CCS layout (real values; index table under
 * FFTFwd) into the complete conjugate-symmetric spectrum of len complex
 * values: pDst[k] = X[k] for the stored bins and conj(X[len-k]) for the
 * others. The _I form reads the packed values from the start of pSrcDst and
 * writes the len complex values over them (the array holds len complex
 * values). _L forms take a 64-bit length and run in one pass.
 */
QspStatus qspsConjCcs_32fc(const Qsp32f* pSrc, Qsp32fc* pDst, int len);
QspStatus qspsConjCcs_32fc_I(Qsp32fc* pSrcDst, int len);
QspStatus qspsConjCcs_32fc_L(const Qsp32f* pSrc, Qsp32fc* pDst, Qsp64s len);
QspStatus qspsConjCcs_32fc_I_L(Qsp32fc* pSrcDst, Qsp64s len);
QspStatus qspsConjCcs_64fc(const Qsp64f* pSrc, Qsp64fc* pDst, int len);
QspStatus qspsConjCcs_64fc_I(Qsp64fc* pSrcDst, int len);
QspStatus qspsConjCcs_64fc_L(const Qsp64f* pSrc, Qsp64fc* pDst, Qsp64s len);
QspStatus qspsConjCcs_64fc_I_L(Qsp64fc* pSrcDst, Qsp64s len);

/* Sum --------------------------------------------------------------------- */
/*
 * Sum of the elements: *pSum = sum of pSrc[i]. 32f/32fc by the hint, the
 * double total rounded to single precision: hint 1 (fast) adds the elements
 * before the source's first 16-byte boundary one by one in double, then
 * blocks of 32768 in 16 single lanes (four registers, folded (a0+a1)+(a2+a3),
 * lanes (s0+s2)+(s1+s3); complex: s0+s2 real, s1+s3 imaginary), each block
 * widened and added in double, a block's last elements one by one in double;
 * any other hint (0 and 2 alike) widens every element into eight double lanes
 * (a first element that is not 8-byte aligned first, folded (a0+a2)+(a1+a3),
 * then t0+t1; complex t0 real, t1 imaginary), the rest one by one. 64f/64fc:
 * the double-lane scheme. 16s32s/16sc32sc: the exact sum times 2^-scaleFactor
 * (a double with exponent 1023-scaleFactor clamped to 0..2047), clamped to 32
 * bits and converted by the current rounding mode; a zero sum gives 0 for every
 * factor; 16s/16sc saturate that 32-bit result to 16 bits. 32s: a 64-bit sum,
 * rounded to nearest even and saturated by the scale-factor rule. _L forms
 * take a 64-bit length and check it first. Thread-safe.
 */
QspStatus qspsSum_16s_Sfs(const Qsp16s* pSrc, int len, Qsp16s* pSum, int scaleFactor);
QspStatus qspsSum_16s32s_Sfs(const Qsp16s* pSrc, int len, Qsp32s* pSum, int scaleFactor);
QspStatus qspsSum_16sc_Sfs(const Qsp16sc* pSrc, int len, Qsp16sc* pSum, int scaleFactor);
QspStatus qspsSum_16sc32sc_Sfs(const Qsp16sc* pSrc, int len, Qsp32sc* pSum, int scaleFactor);
QspStatus qspsSum_32s_Sfs(const Qsp32s* pSrc, int len, Qsp32s* pSum, int scaleFactor);
QspStatus qspsSum_32f(const Qsp32f* pSrc, int len, Qsp32f* pSum, QspHintAlgorithm hint);
QspStatus qspsSum_32f_L(const Qsp32f* pSrc, Qsp64s len, Qsp32f* pSum, QspHintAlgorithm hint);
QspStatus qspsSum_32fc(const Qsp32fc* pSrc, int len, Qsp32fc* pSum, QspHintAlgorithm hint);
QspStatus qspsSum_32fc_L(const Qsp32fc* pSrc, Qsp64s len, Qsp32fc* pSum, QspHintAlgorithm hint);
QspStatus qspsSum_64f(const Qsp64f* pSrc, int len, Qsp64f* pSum);
QspStatus qspsSum_64f_L(const Qsp64f* pSrc, Qsp64s len, Qsp64f* pSum);
QspStatus qspsSum_64fc(const Qsp64fc* pSrc, int len, Qsp64fc* pSum);
QspStatus qspsSum_64fc_L(const Qsp64fc* pSrc, Qsp64s len, Qsp64fc* pSum);

/* Mean -------------------------------------------------------------------- */
/*
 * Mean of the elements: *pMean = (sum of pSrc[i]) / len. Floating forms divide
 * the Sum result (for 32f/32fc already rounded to single precision, by the
 * hint's scheme) by len in double. Integer forms divide the exact sum by len in
 * double, multiply by 2^-scaleFactor as Sum does, clamp to the result type and
 * convert by the current rounding mode (32s too). _L forms take a 64-bit length
 * and check it first.
 */
QspStatus qspsMean_16s_Sfs(const Qsp16s* pSrc, int len, Qsp16s* pMean, int scaleFactor);
QspStatus qspsMean_16sc_Sfs(const Qsp16sc* pSrc, int len, Qsp16sc* pMean, int scaleFactor);
QspStatus qspsMean_32s_Sfs(const Qsp32s* pSrc, int len, Qsp32s* pMean, int scaleFactor);
QspStatus qspsMean_32f(const Qsp32f* pSrc, int len, Qsp32f* pMean, QspHintAlgorithm hint);
QspStatus qspsMean_32f_L(const Qsp32f* pSrc, Qsp64s len, Qsp32f* pMean, QspHintAlgorithm hint);
QspStatus qspsMean_32fc(const Qsp32fc* pSrc, int len, Qsp32fc* pMean, QspHintAlgorithm hint);
QspStatus qspsMean_32fc_L(const Qsp32fc* pSrc, Qsp64s len, Qsp32fc* pMean, QspHintAlgorithm hint);
QspStatus qspsMean_64f(const Qsp64f* pSrc, int len, Qsp64f* pMean);
QspStatus qspsMean_64f_L(const Qsp64f* pSrc, Qsp64s len, Qsp64f* pMean);
QspStatus qspsMean_64fc(const Qsp64fc* pSrc, int len, Qsp64fc* pMean);
QspStatus qspsMean_64fc_L(const Qsp64fc* pSrc, Qsp64s len, Qsp64fc* pMean);

/* StdDev ------------------------------------------------------------------ */
/*
 * Sample standard deviation: *pStdDev = sqrt((len*Q - S^2) / (len*(len-1))),
 * S the sum and Q the sum of squares in double (a negative numerator from
 * cancellation is taken as 0, so a constant vector gives exactly 0); the root is
 * taken in double and rounded to the result. len below 2 gives qspStsBadSize
 * (after the pointers). 32f: hint 1 sums S and Q by the fast scheme of Sum
 * (single lanes per block of 32768), other hints widen to double lanes; 64f
 * double lanes. 16s forms: S, Q and the numerator exact, the deviation times
 * 2^-scaleFactor clamped and converted as in Sum.
 */
QspStatus qspsStdDev_16s_Sfs(const Qsp16s* pSrc, int len, Qsp16s* pStdDev, int scaleFactor);
QspStatus qspsStdDev_16s32s_Sfs(const Qsp16s* pSrc, int len, Qsp32s* pStdDev, int scaleFactor);
QspStatus qspsStdDev_32f(const Qsp32f* pSrc, int len, Qsp32f* pStdDev, QspHintAlgorithm hint);
QspStatus qspsStdDev_64f(const Qsp64f* pSrc, int len, Qsp64f* pStdDev);

/* MeanStdDev -------------------------------------------------------------- */
/*
 * Mean and sample standard deviation from one pair of sums (see Mean and
 * StdDev); len below 2 gives qspStsBadSize. The mean is S / len. The 32f form
 * always uses the accurate (double-lane) sums and ignores its hint.
 */
QspStatus qspsMeanStdDev_16s_Sfs(const Qsp16s* pSrc, int len, Qsp16s* pMean, Qsp16s* pStdDev, int scaleFactor);
QspStatus qspsMeanStdDev_16s32s_Sfs(const Qsp16s* pSrc, int len, Qsp32s* pMean, Qsp32s* pStdDev, int scaleFactor);
QspStatus qspsMeanStdDev_32f(const Qsp32f* pSrc, int len, Qsp32f* pMean, Qsp32f* pStdDev, QspHintAlgorithm hint);
QspStatus qspsMeanStdDev_64f(const Qsp64f* pSrc, int len, Qsp64f* pMean, Qsp64f* pStdDev);

/* Norm -------------------------------------------------------------------- */
/*
 * Vector norms: Inf *pNorm = max |pSrc[i]|; L1 sum of |pSrc[i]|; L2 sqrt(sum of
 * |pSrc[i]|^2); L2Sqr sum of |pSrc[i]|^2 (complex: magnitudes, formed in
 * double). Two type codes: source, then result. 32f L2 sums the squares in
 * eight single lanes (the squares before the first 16-byte boundary start the
 * first register's lanes; s = a0 + a1, (s0+s2)+(s1+s3), the rest one by one)
 * and roots in double; the other floating sums use the double lanes of Sum.
 * Inf follows the step of Max (a NaN may come out). 16-bit sources sum exactly:
 * L1 and L2Sqr Sfs forms round to nearest even and saturate by the scale-factor
 * rule, L2_16s32s_Sfs rounds the double root times 2^-scaleFactor to nearest
 * even; Inf_16s32s_Sfs shifts the largest magnitude (32768 for -32768) right
 * truncating (0 from 32 on) or left by at most 31, saturating to 2^31-1. _L
 * forms take a 64-bit length and check it first.
 */
QspStatus qspsNorm_Inf_16s32f(const Qsp16s* pSrc, int len, Qsp32f* pNorm);
QspStatus qspsNorm_Inf_16s32s_Sfs(const Qsp16s* pSrc, int len, Qsp32s* pNorm, int scaleFactor);
QspStatus qspsNorm_Inf_32f(const Qsp32f* pSrc, int len, Qsp32f* pNorm);
QspStatus qspsNorm_Inf_32fc32f(const Qsp32fc* pSrc, int len, Qsp32f* pNorm);
QspStatus qspsNorm_Inf_64f(const Qsp64f* pSrc, int len, Qsp64f* pNorm);
QspStatus qspsNorm_Inf_64fc64f(const Qsp64fc* pSrc, int len, Qsp64f* pNorm);
QspStatus qspsNorm_L1_16s32f(const Qsp16s* pSrc, int len, Qsp32f* pNorm);
QspStatus qspsNorm_L1_16s32s_Sfs(const Qsp16s* pSrc, int len, Qsp32s* pNorm, int scaleFactor);
QspStatus qspsNorm_L1_16s64s_Sfs(const Qsp16s* pSrc, int len, Qsp64s* pNorm, int scaleFactor);
QspStatus qspsNorm_L1_32f(const Qsp32f* pSrc, int len, Qsp32f* pNorm);
QspStatus qspsNorm_L1_32fc64f(const Qsp32fc* pSrc, int len, Qsp64f* pNorm);
QspStatus qspsNorm_L1_64f(const Qsp64f* pSrc, int len, Qsp64f* pNorm);
QspStatus qspsNorm_L1_64fc64f(const Qsp64fc* pSrc, int len, Qsp64f* pNorm);
QspStatus qspsNorm_L2_16s32f(const Qsp16s* pSrc, int len, Qsp32f* pNorm);
QspStatus qspsNorm_L2_16s32s_Sfs(const Qsp16s* pSrc, int len, Qsp32s* pNorm, int scaleFactor);
QspStatus qspsNorm_L2_32f(const Qsp32f* pSrc, int len, Qsp32f* pNorm);
QspStatus qspsNorm_L2_32f_L(const Qsp32f* pSrc, Qsp64s len, Qsp32f* pNorm);
QspStatus qspsNorm_L2_32fc64f(const Qsp32fc* pSrc, int len, Qsp64f* pNorm);
QspStatus qspsNorm_L2_32fc64f_L(const Qsp32fc* pSrc, Qsp64s len, Qsp64f* pNorm);
QspStatus qspsNorm_L2_64f(const Qsp64f* pSrc, int len, Qsp64f* pNorm);
QspStatus qspsNorm_L2_64f_L(const Qsp64f* pSrc, Qsp64s len, Qsp64f* pNorm);
QspStatus qspsNorm_L2_64fc64f(const Qsp64fc* pSrc, int len, Qsp64f* pNorm);
QspStatus qspsNorm_L2_64fc64f_L(const Qsp64fc* pSrc, Qsp64s len, Qsp64f* pNorm);
QspStatus qspsNorm_L2Sqr_16s64s_Sfs(const Qsp16s* pSrc, int len, Qsp64s* pNorm, int scaleFactor);

/* NormDiff ---------------------------------------------------------------- */
/*
 * Norms of the difference pSrc1[i] - pSrc2[i], formed in the element type (16-bit
 * differences exactly, up to 65535 in magnitude; floating ones rounded), then as
 * Norm computes them of one vector; same type set and scaling. The 32f L2
 * scheme takes its boundary from pSrc1.
 */
QspStatus qspsNormDiff_Inf_16s32f(const Qsp16s* pSrc1, const Qsp16s* pSrc2, int len, Qsp32f* pNorm);
QspStatus qspsNormDiff_Inf_16s32s_Sfs(const Qsp16s* pSrc1, const Qsp16s* pSrc2, int len, Qsp32s* pNorm, int scaleFactor);
QspStatus qspsNormDiff_Inf_32f(const Qsp32f* pSrc1, const Qsp32f* pSrc2, int len, Qsp32f* pNorm);
QspStatus qspsNormDiff_Inf_32fc32f(const Qsp32fc* pSrc1, const Qsp32fc* pSrc2, int len, Qsp32f* pNorm);
QspStatus qspsNormDiff_Inf_64f(const Qsp64f* pSrc1, const Qsp64f* pSrc2, int len, Qsp64f* pNorm);
QspStatus qspsNormDiff_Inf_64fc64f(const Qsp64fc* pSrc1, const Qsp64fc* pSrc2, int len, Qsp64f* pNorm);
QspStatus qspsNormDiff_L1_16s32f(const Qsp16s* pSrc1, const Qsp16s* pSrc2, int len, Qsp32f* pNorm);
QspStatus qspsNormDiff_L1_16s32s_Sfs(const Qsp16s* pSrc1, const Qsp16s* pSrc2, int len, Qsp32s* pNorm, int scaleFactor);
QspStatus qspsNormDiff_L1_16s64s_Sfs(const Qsp16s* pSrc1, const Qsp16s* pSrc2, int len, Qsp64s* pNorm, int scaleFactor);
QspStatus qspsNormDiff_L1_32f(const Qsp32f* pSrc1, const Qsp32f* pSrc2, int len, Qsp32f* pNorm);
QspStatus qspsNormDiff_L1_32fc64f(const Qsp32fc* pSrc1, const Qsp32fc* pSrc2, int len, Qsp64f* pNorm);
QspStatus qspsNormDiff_L1_64f(const Qsp64f* pSrc1, const Qsp64f* pSrc2, int len, Qsp64f* pNorm);
QspStatus qspsNormDiff_L1_64fc64f(const Qsp64fc* pSrc1, const Qsp64fc* pSrc2, int len, Qsp64f* pNorm);
QspStatus qspsNormDiff_L2_16s32f(const Qsp16s* pSrc1, const Qsp16s* pSrc2, int len, Qsp32f* pNorm);
QspStatus qspsNormDiff_L2_16s32s_Sfs(const Qsp16s* pSrc1, const Qsp16s* pSrc2, int len, Qsp32s* pNorm, int scaleFactor);
QspStatus qspsNormDiff_L2_32f(const Qsp32f* pSrc1, const Qsp32f* pSrc2, int len, Qsp32f* pNorm);
QspStatus qspsNormDiff_L2_32fc64f(const Qsp32fc* pSrc1, const Qsp32fc* pSrc2, int len, Qsp64f* pNorm);
QspStatus qspsNormDiff_L2_64f(const Qsp64f* pSrc1, const Qsp64f* pSrc2, int len, Qsp64f* pNorm);
QspStatus qspsNormDiff_L2_64fc64f(const Qsp64fc* pSrc1, const Qsp64fc* pSrc2, int len, Qsp64f* pNorm);
QspStatus qspsNormDiff_L2Sqr_16s64s_Sfs(const Qsp16s* pSrc1, const Qsp16s* pSrc2, int len, Qsp64s* pNorm, int scaleFactor);

/* DotProd ----------------------------------------------------------------- */
/*
 * Dot product: *pDp = sum of pSrc1[i] * pSrc2[i], without conjugation. Type
 * codes: both sources, then the result (16s32f: 16s sources, 32f result;
 * 32f32fc: a 32f and a 32fc source, 32fc result; 16s32s32s: 16s and 32s
 * sources, 32s result). 32f: six single lanes over every whole group of six,
 * lanes added from lane 0 up, then the 0..5 remaining products one by one.
 * 32f64f and 64f: exact products (floats widened) in eight double lanes, folded
 * as in Sum. Complex and mixed forms: products and sums in double, rounded to
 * the result. Integer forms sum exactly (64 or 128 bits); Sfs forms round to
 * nearest even and saturate by the scale-factor rule at any scale factor. _L
 * forms take a 64-bit length and check it first.
 */
QspStatus qspsDotProd_16s16sc64sc(const Qsp16s* pSrc1, const Qsp16sc* pSrc2, int len, Qsp64sc* pDp);
QspStatus qspsDotProd_16s32f(const Qsp16s* pSrc1, const Qsp16s* pSrc2, int len, Qsp32f* pDp);
QspStatus qspsDotProd_16s32s32s_Sfs(const Qsp16s* pSrc1, const Qsp32s* pSrc2, int len, Qsp32s* pDp, int scaleFactor);
QspStatus qspsDotProd_16s32s_Sfs(const Qsp16s* pSrc1, const Qsp16s* pSrc2, int len, Qsp32s* pDp, int scaleFactor);
QspStatus qspsDotProd_16s64s(const Qsp16s* pSrc1, const Qsp16s* pSrc2, int len, Qsp64s* pDp);
QspStatus qspsDotProd_16sc64sc(const Qsp16sc* pSrc1, const Qsp16sc* pSrc2, int len, Qsp64sc* pDp);
QspStatus qspsDotProd_32f(const Qsp32f* pSrc1, const Qsp32f* pSrc2, int len, Qsp32f* pDp);
QspStatus qspsDotProd_32f32fc(const Qsp32f* pSrc1, const Qsp32fc* pSrc2, int len, Qsp32fc* pDp);
QspStatus qspsDotProd_32f32fc64fc(const Qsp32f* pSrc1, const Qsp32fc* pSrc2, int len, Qsp64fc* pDp);
QspStatus qspsDotProd_32f32fc64fc_L(const Qsp32f* pSrc1, const Qsp32fc* pSrc2, Qsp64s len, Qsp64fc* pDp);
QspStatus qspsDotProd_32f64f(const Qsp32f* pSrc1, const Qsp32f* pSrc2, int len, Qsp64f* pDp);
QspStatus qspsDotProd_32f64f_L(const Qsp32f* pSrc1, const Qsp32f* pSrc2, Qsp64s len, Qsp64f* pDp);
QspStatus qspsDotProd_32fc(const Qsp32fc* pSrc1, const Qsp32fc* pSrc2, int len, Qsp32fc* pDp);
QspStatus qspsDotProd_32fc64fc(const Qsp32fc* pSrc1, const Qsp32fc* pSrc2, int len, Qsp64fc* pDp);
QspStatus qspsDotProd_32fc64fc_L(const Qsp32fc* pSrc1, const Qsp32fc* pSrc2, Qsp64s len, Qsp64fc* pDp);
QspStatus qspsDotProd_32s_Sfs(const Qsp32s* pSrc1, const Qsp32s* pSrc2, int len, Qsp32s* pDp, int scaleFactor);
QspStatus qspsDotProd_64f(const Qsp64f* pSrc1, const Qsp64f* pSrc2, int len, Qsp64f* pDp);
QspStatus qspsDotProd_64f64fc(const Qsp64f* pSrc1, const Qsp64fc* pSrc2, int len, Qsp64fc* pDp);
QspStatus qspsDotProd_64f64fc_L(const Qsp64f* pSrc1, const Qsp64fc* pSrc2, Qsp64s len, Qsp64fc* pDp);
QspStatus qspsDotProd_64f_L(const Qsp64f* pSrc1, const Qsp64f* pSrc2, Qsp64s len, Qsp64f* pDp);
QspStatus qspsDotProd_64fc(const Qsp64fc* pSrc1, const Qsp64fc* pSrc2, int len, Qsp64fc* pDp);
QspStatus qspsDotProd_64fc_L(const Qsp64fc* pSrc1, const Qsp64fc* pSrc2, Qsp64s len, Qsp64fc* pDp);

/* SumLn ------------------------------------------------------------------- */
/*
 * Sum of natural logarithms: *pSum = sum of ln(pSrc[i]), formed in blocks of
 * 512 from the binary exponents (added as integers) and the mantissas in
 * [0.5, 1) (multiplied in double): a block adds (exponent sum) ln 2 + ln of
 * its product; blocks add in double. The first special element decides: a
 * zero gives +infinity and the warning qspStsWarnLogOfZero (kept so, though
 * the limit is -infinity); a set sign bit (negative values, -0.0) a NaN and
 * qspStsWarnLogOfNegative; a NaN a NaN and qspStsOk; +infinity +infinity and
 * qspStsOk. The NaN results have the sign bit set.
 */
QspStatus qspsSumLn_16s32f(const Qsp16s* pSrc, int len, Qsp32f* pSum);
QspStatus qspsSumLn_32f(const Qsp32f* pSrc, int len, Qsp32f* pSum);
QspStatus qspsSumLn_32f64f(const Qsp32f* pSrc, int len, Qsp64f* pSum);
QspStatus qspsSumLn_64f(const Qsp64f* pSrc, int len, Qsp64f* pSum);

/* Max --------------------------------------------------------------------- */
/*
 * Largest element: *pMax = max pSrc[i] (a step keeps the current value while it
 * compares greater, so NaN elements follow that rule lane by lane). _L forms
 * take a 64-bit length.
 */
QspStatus qspsMax_16s(const Qsp16s* pSrc, int len, Qsp16s* pMax);
QspStatus qspsMax_32f(const Qsp32f* pSrc, int len, Qsp32f* pMax);
QspStatus qspsMax_32f_L(const Qsp32f* pSrc, Qsp64s len, Qsp32f* pMax);
QspStatus qspsMax_32s(const Qsp32s* pSrc, int len, Qsp32s* pMax);
QspStatus qspsMax_64f(const Qsp64f* pSrc, int len, Qsp64f* pMax);
QspStatus qspsMax_64f_L(const Qsp64f* pSrc, Qsp64s len, Qsp64f* pMax);

/* Min --------------------------------------------------------------------- */
/*
 * Smallest element: *pMin = min pSrc[i], the mirror of Max (a step keeps the
 * current value while it compares less).
 */
QspStatus qspsMin_16s(const Qsp16s* pSrc, int len, Qsp16s* pMin);
QspStatus qspsMin_32f(const Qsp32f* pSrc, int len, Qsp32f* pMin);
QspStatus qspsMin_32f_L(const Qsp32f* pSrc, Qsp64s len, Qsp32f* pMin);
QspStatus qspsMin_32s(const Qsp32s* pSrc, int len, Qsp32s* pMin);
QspStatus qspsMin_64f(const Qsp64f* pSrc, int len, Qsp64f* pMin);
QspStatus qspsMin_64f_L(const Qsp64f* pSrc, Qsp64s len, Qsp64f* pMin);

/* MaxIndx ----------------------------------------------------------------- */
/*
 * Largest element and the lowest index holding it (ordered comparisons: a NaN
 * never replaces the best, a NaN at index 0 stays). pIndx may be null; the
 * call is then Max. _L forms take a 64-bit length and give a 64-bit index.
 */
QspStatus qspsMaxIndx_16s(const Qsp16s* pSrc, int len, Qsp16s* pMax, int* pIndx);
QspStatus qspsMaxIndx_32f(const Qsp32f* pSrc, int len, Qsp32f* pMax, int* pIndx);
QspStatus qspsMaxIndx_32f_L(const Qsp32f* pSrc, Qsp64s len, Qsp32f* pMax, Qsp64s* pIndx);
QspStatus qspsMaxIndx_32s(const Qsp32s* pSrc, int len, Qsp32s* pMax, int* pIndx);
QspStatus qspsMaxIndx_64f(const Qsp64f* pSrc, int len, Qsp64f* pMax, int* pIndx);
QspStatus qspsMaxIndx_64f_L(const Qsp64f* pSrc, Qsp64s len, Qsp64f* pMax, Qsp64s* pIndx);

/* MinIndx ----------------------------------------------------------------- */
/*
 * Smallest element and the lowest index holding it; the mirror of MaxIndx.
 */
QspStatus qspsMinIndx_16s(const Qsp16s* pSrc, int len, Qsp16s* pMin, int* pIndx);
QspStatus qspsMinIndx_32f(const Qsp32f* pSrc, int len, Qsp32f* pMin, int* pIndx);
QspStatus qspsMinIndx_32f_L(const Qsp32f* pSrc, Qsp64s len, Qsp32f* pMin, Qsp64s* pIndx);
QspStatus qspsMinIndx_32s(const Qsp32s* pSrc, int len, Qsp32s* pMin, int* pIndx);
QspStatus qspsMinIndx_64f(const Qsp64f* pSrc, int len, Qsp64f* pMin, int* pIndx);
QspStatus qspsMinIndx_64f_L(const Qsp64f* pSrc, Qsp64s len, Qsp64f* pMin, Qsp64s* pIndx);

/* MinMax ------------------------------------------------------------------ */
/*
 * Smallest and largest element in one pass: *pMin, *pMax.
 */
QspStatus qspsMinMax_8u(const Qsp8u* pSrc, int len, Qsp8u* pMin, Qsp8u* pMax);
QspStatus qspsMinMax_16s(const Qsp16s* pSrc, int len, Qsp16s* pMin, Qsp16s* pMax);
QspStatus qspsMinMax_16u(const Qsp16u* pSrc, int len, Qsp16u* pMin, Qsp16u* pMax);
QspStatus qspsMinMax_32f(const Qsp32f* pSrc, int len, Qsp32f* pMin, Qsp32f* pMax);
QspStatus qspsMinMax_32f_L(const Qsp32f* pSrc, Qsp64s len, Qsp32f* pMin, Qsp32f* pMax);
QspStatus qspsMinMax_32s(const Qsp32s* pSrc, int len, Qsp32s* pMin, Qsp32s* pMax);
QspStatus qspsMinMax_32u(const Qsp32u* pSrc, int len, Qsp32u* pMin, Qsp32u* pMax);
QspStatus qspsMinMax_64f(const Qsp64f* pSrc, int len, Qsp64f* pMin, Qsp64f* pMax);
QspStatus qspsMinMax_64f_L(const Qsp64f* pSrc, Qsp64s len, Qsp64f* pMin, Qsp64f* pMax);

/* MinMaxIndx -------------------------------------------------------------- */
/*
 * Smallest and largest element with the lowest index of each (an extreme that
 * is a NaN reports index 0). All four outputs are required.
 */
QspStatus qspsMinMaxIndx_8u(const Qsp8u* pSrc, int len, Qsp8u* pMin, int* pMinIndx, Qsp8u* pMax, int* pMaxIndx);
QspStatus qspsMinMaxIndx_16s(const Qsp16s* pSrc, int len, Qsp16s* pMin, int* pMinIndx, Qsp16s* pMax, int* pMaxIndx);
QspStatus qspsMinMaxIndx_16u(const Qsp16u* pSrc, int len, Qsp16u* pMin, int* pMinIndx, Qsp16u* pMax, int* pMaxIndx);
QspStatus qspsMinMaxIndx_32f(const Qsp32f* pSrc, int len, Qsp32f* pMin, int* pMinIndx, Qsp32f* pMax, int* pMaxIndx);
QspStatus qspsMinMaxIndx_32f_L(const Qsp32f* pSrc, Qsp64s len, Qsp32f* pMin, Qsp64s* pMinIndx, Qsp32f* pMax, Qsp64s* pMaxIndx);
QspStatus qspsMinMaxIndx_32s(const Qsp32s* pSrc, int len, Qsp32s* pMin, int* pMinIndx, Qsp32s* pMax, int* pMaxIndx);
QspStatus qspsMinMaxIndx_32u(const Qsp32u* pSrc, int len, Qsp32u* pMin, int* pMinIndx, Qsp32u* pMax, int* pMaxIndx);
QspStatus qspsMinMaxIndx_64f(const Qsp64f* pSrc, int len, Qsp64f* pMin, int* pMinIndx, Qsp64f* pMax, int* pMaxIndx);
QspStatus qspsMinMaxIndx_64f_L(const Qsp64f* pSrc, Qsp64s len, Qsp64f* pMin, Qsp64s* pMinIndx, Qsp64f* pMax, Qsp64s* pMaxIndx);

/* MaxAbs ------------------------------------------------------------------ */
/*
 * Largest magnitude: *pMaxAbs = max |pSrc[i]|. For 16s the magnitude is taken
 * unsigned, so -32768 is the largest; its value saturates to 32767.
 */
QspStatus qspsMaxAbs_16s(const Qsp16s* pSrc, int len, Qsp16s* pMaxAbs);
QspStatus qspsMaxAbs_32f(const Qsp32f* pSrc, int len, Qsp32f* pMaxAbs);
QspStatus qspsMaxAbs_32f_L(const Qsp32f* pSrc, Qsp64s len, Qsp32f* pMaxAbs);
QspStatus qspsMaxAbs_32s(const Qsp32s* pSrc, int len, Qsp32s* pMaxAbs);
QspStatus qspsMaxAbs_64f(const Qsp64f* pSrc, int len, Qsp64f* pMaxAbs);
QspStatus qspsMaxAbs_64f_L(const Qsp64f* pSrc, Qsp64s len, Qsp64f* pMaxAbs);

/* MinAbs ------------------------------------------------------------------ */
/*
 * Smallest magnitude: *pMinAbs = min |pSrc[i]|.
 */
QspStatus qspsMinAbs_16s(const Qsp16s* pSrc, int len, Qsp16s* pMinAbs);
QspStatus qspsMinAbs_32f(const Qsp32f* pSrc, int len, Qsp32f* pMinAbs);
QspStatus qspsMinAbs_32f_L(const Qsp32f* pSrc, Qsp64s len, Qsp32f* pMinAbs);
QspStatus qspsMinAbs_32s(const Qsp32s* pSrc, int len, Qsp32s* pMinAbs);
QspStatus qspsMinAbs_64f(const Qsp64f* pSrc, int len, Qsp64f* pMinAbs);
QspStatus qspsMinAbs_64f_L(const Qsp64f* pSrc, Qsp64s len, Qsp64f* pMinAbs);

/* MaxAbsIndx -------------------------------------------------------------- */
/*
 * Largest magnitude and the lowest index holding it (16s: -32768 is the
 * largest magnitude). pIndx may be null.
 */
QspStatus qspsMaxAbsIndx_16s(const Qsp16s* pSrc, int len, Qsp16s* pMaxAbs, int* pIndx);
QspStatus qspsMaxAbsIndx_32f(const Qsp32f* pSrc, int len, Qsp32f* pMaxAbs, int* pIndx);
QspStatus qspsMaxAbsIndx_32f_L(const Qsp32f* pSrc, Qsp64s len, Qsp32f* pMaxAbs, Qsp64s* pIndx);
QspStatus qspsMaxAbsIndx_32s(const Qsp32s* pSrc, int len, Qsp32s* pMaxAbs, int* pIndx);
QspStatus qspsMaxAbsIndx_64f(const Qsp64f* pSrc, int len, Qsp64f* pMaxAbs, int* pIndx);
QspStatus qspsMaxAbsIndx_64f_L(const Qsp64f* pSrc, Qsp64s len, Qsp64f* pMaxAbs, Qsp64s* pIndx);

/* MinAbsIndx -------------------------------------------------------------- */
/*
 * Smallest magnitude and the lowest index holding it. pIndx may be null.
 */
QspStatus qspsMinAbsIndx_16s(const Qsp16s* pSrc, int len, Qsp16s* pMinAbs, int* pIndx);
QspStatus qspsMinAbsIndx_32f(const Qsp32f* pSrc, int len, Qsp32f* pMinAbs, int* pIndx);
QspStatus qspsMinAbsIndx_32f_L(const Qsp32f* pSrc, Qsp64s len, Qsp32f* pMinAbs, Qsp64s* pIndx);
QspStatus qspsMinAbsIndx_32s(const Qsp32s* pSrc, int len, Qsp32s* pMinAbs, int* pIndx);
QspStatus qspsMinAbsIndx_64f(const Qsp64f* pSrc, int len, Qsp64f* pMinAbs, int* pIndx);
QspStatus qspsMinAbsIndx_64f_L(const Qsp64f* pSrc, Qsp64s len, Qsp64f* pMinAbs, Qsp64s* pIndx);

/* MaxEvery ---------------------------------------------------------------- */
/*
 * Element-wise maximum of two vectors: pDst[i] = pSrc1[i] > pSrc2[i] ? pSrc1[i] :
 * pSrc2[i], so where neither is greater (equal values such as -0.0 and +0.0, or
 * a NaN on either side) the second operand's element comes out. The _I forms
 * write into the second operand, pSrcDst.
 */
QspStatus qspsMaxEvery_8u(const Qsp8u* pSrc1, const Qsp8u* pSrc2, Qsp8u* pDst, int len);
QspStatus qspsMaxEvery_8u_I(const Qsp8u* pSrc, Qsp8u* pSrcDst, int len);
QspStatus qspsMaxEvery_16u(const Qsp16u* pSrc1, const Qsp16u* pSrc2, Qsp16u* pDst, int len);
QspStatus qspsMaxEvery_16u_I(const Qsp16u* pSrc, Qsp16u* pSrcDst, int len);
QspStatus qspsMaxEvery_16s_I(const Qsp16s* pSrc, Qsp16s* pSrcDst, int len);
QspStatus qspsMaxEvery_32s_I(const Qsp32s* pSrc, Qsp32s* pSrcDst, int len);
QspStatus qspsMaxEvery_32f(const Qsp32f* pSrc1, const Qsp32f* pSrc2, Qsp32f* pDst, int len);
QspStatus qspsMaxEvery_32f_I(const Qsp32f* pSrc, Qsp32f* pSrcDst, int len);
QspStatus qspsMaxEvery_64f(const Qsp64f* pSrc1, const Qsp64f* pSrc2, Qsp64f* pDst, int len);
QspStatus qspsMaxEvery_64f_I(const Qsp64f* pSrc, Qsp64f* pSrcDst, int len);

/* MinEvery ---------------------------------------------------------------- */
/*
 * Element-wise minimum of two vectors: pDst[i] = pSrc1[i] < pSrc2[i] ? pSrc1[i] :
 * pSrc2[i] (the second operand's element where neither is smaller). The _I forms
 * write into the second operand, pSrcDst.
 */
QspStatus qspsMinEvery_8u(const Qsp8u* pSrc1, const Qsp8u* pSrc2, Qsp8u* pDst, int len);
QspStatus qspsMinEvery_8u_I(const Qsp8u* pSrc, Qsp8u* pSrcDst, int len);
QspStatus qspsMinEvery_16u(const Qsp16u* pSrc1, const Qsp16u* pSrc2, Qsp16u* pDst, int len);
QspStatus qspsMinEvery_16u_I(const Qsp16u* pSrc, Qsp16u* pSrcDst, int len);
QspStatus qspsMinEvery_16s_I(const Qsp16s* pSrc, Qsp16s* pSrcDst, int len);
QspStatus qspsMinEvery_32s_I(const Qsp32s* pSrc, Qsp32s* pSrcDst, int len);
QspStatus qspsMinEvery_32f(const Qsp32f* pSrc1, const Qsp32f* pSrc2, Qsp32f* pDst, int len);
QspStatus qspsMinEvery_32f_I(const Qsp32f* pSrc, Qsp32f* pSrcDst, int len);
QspStatus qspsMinEvery_64f(const Qsp64f* pSrc1, const Qsp64f* pSrc2, Qsp64f* pDst, int len);
QspStatus qspsMinEvery_64f_I(const Qsp64f* pSrc, Qsp64f* pSrcDst, int len);

/* SortRadix --------------------------------------------------------------- */
/*
 * In-place radix sorts, ascending or descending, with a work buffer of
 * qspsSortRadixGetBufferSize(len, type) bytes (no alignment needed; the
 * sort overwrites it). The size query takes a data-type code: qsp8u (len +
 * 1024 bytes), qsp16u or qsp16s (2*len + 2048), qsp32u, qsp32s or qsp32f
 * (4*len + 20480), qsp64u or qsp64s (8*len + 81920), qsp64f (8*len +
 * 40960); any other code writes 0 and returns qspStsBadDataType. A size
 * that does not fit the result type gives qspStsOverflow (_L: 2^63 or
 * more) and writes nothing. Checks: size pointer, then len below 1.
 * Sorts: pSrcDst or pBuffer null gives qspStsNullPtr, len below 1
 * qspStsBadSize; _L forms take a 64-bit len and check it first.
 * Order: integers by value. Floating values by the total order of their
 * bit patterns: -NaN < -Inf < ... < -0.0 < +0.0 < ... < +Inf < +NaN (NaNs
 * among themselves by payload); descending is the exact reverse. Bytes are
 * sorted by counting; wider types by stable radix passes of 8 bits
 * (16-bit), 11+11+10 bits (32-bit) or 4x11+2x10 bits (64-bit).
 * Thread-safe when no two calls share a vector or buffer.
 */
QspStatus qspsSortRadixGetBufferSize(int len, QspDataType dataType, int* pBufferSize);
QspStatus qspsSortRadixGetBufferSize_L(Qsp64s len, QspDataType dataType, Qsp64s* pBufferSize);
QspStatus qspsSortRadixAscend_8u_I(Qsp8u* pSrcDst, int len, Qsp8u* pBuffer);
QspStatus qspsSortRadixAscend_16u_I(Qsp16u* pSrcDst, int len, Qsp8u* pBuffer);
QspStatus qspsSortRadixAscend_16s_I(Qsp16s* pSrcDst, int len, Qsp8u* pBuffer);
QspStatus qspsSortRadixAscend_32u_I(Qsp32u* pSrcDst, int len, Qsp8u* pBuffer);
QspStatus qspsSortRadixAscend_32s_I(Qsp32s* pSrcDst, int len, Qsp8u* pBuffer);
QspStatus qspsSortRadixAscend_32s_I_L(Qsp32s* pSrcDst, Qsp64s len, Qsp8u* pBuffer);
QspStatus qspsSortRadixAscend_32f_I(Qsp32f* pSrcDst, int len, Qsp8u* pBuffer);
QspStatus qspsSortRadixAscend_32f_I_L(Qsp32f* pSrcDst, Qsp64s len, Qsp8u* pBuffer);
QspStatus qspsSortRadixAscend_64u_I(Qsp64u* pSrcDst, int len, Qsp8u* pBuffer);
QspStatus qspsSortRadixAscend_64u_I_L(Qsp64u* pSrcDst, Qsp64s len, Qsp8u* pBuffer);
QspStatus qspsSortRadixAscend_64s_I(Qsp64s* pSrcDst, int len, Qsp8u* pBuffer);
QspStatus qspsSortRadixAscend_64s_I_L(Qsp64s* pSrcDst, Qsp64s len, Qsp8u* pBuffer);
QspStatus qspsSortRadixAscend_64f_I(Qsp64f* pSrcDst, int len, Qsp8u* pBuffer);
QspStatus qspsSortRadixAscend_64f_I_L(Qsp64f* pSrcDst, Qsp64s len, Qsp8u* pBuffer);
QspStatus qspsSortRadixDescend_8u_I(Qsp8u* pSrcDst, int len, Qsp8u* pBuffer);
QspStatus qspsSortRadixDescend_16u_I(Qsp16u* pSrcDst, int len, Qsp8u* pBuffer);
QspStatus qspsSortRadixDescend_16s_I(Qsp16s* pSrcDst, int len, Qsp8u* pBuffer);
QspStatus qspsSortRadixDescend_32u_I(Qsp32u* pSrcDst, int len, Qsp8u* pBuffer);
QspStatus qspsSortRadixDescend_32s_I(Qsp32s* pSrcDst, int len, Qsp8u* pBuffer);
QspStatus qspsSortRadixDescend_32s_I_L(Qsp32s* pSrcDst, Qsp64s len, Qsp8u* pBuffer);
QspStatus qspsSortRadixDescend_32f_I(Qsp32f* pSrcDst, int len, Qsp8u* pBuffer);
QspStatus qspsSortRadixDescend_32f_I_L(Qsp32f* pSrcDst, Qsp64s len, Qsp8u* pBuffer);
QspStatus qspsSortRadixDescend_64u_I(Qsp64u* pSrcDst, int len, Qsp8u* pBuffer);
QspStatus qspsSortRadixDescend_64u_I_L(Qsp64u* pSrcDst, Qsp64s len, Qsp8u* pBuffer);
QspStatus qspsSortRadixDescend_64s_I(Qsp64s* pSrcDst, int len, Qsp8u* pBuffer);
QspStatus qspsSortRadixDescend_64s_I_L(Qsp64s* pSrcDst, Qsp64s len, Qsp8u* pBuffer);
QspStatus qspsSortRadixDescend_64f_I(Qsp64f* pSrcDst, int len, Qsp8u* pBuffer);
QspStatus qspsSortRadixDescend_64f_I_L(Qsp64f* pSrcDst, Qsp64s len, Qsp8u* pBuffer);

/* Sort -------------------------------------------------------------------- */
/*
 * In-place comparison sort, ascending or descending, needing no buffer and
 * allocating nothing (n log n in the worst case). Values order as in SortRadix:
 * floating values by the total order of their bit patterns (-NaN < -Inf < ... <
 * -0.0 < +0.0 < ... < +Inf < +NaN). Equal values are indistinguishable. _L
 * forms take a 64-bit length and check it first.
 */
QspStatus qspsSortAscend_8u_I(Qsp8u* pSrcDst, int len);
QspStatus qspsSortAscend_16u_I(Qsp16u* pSrcDst, int len);
QspStatus qspsSortAscend_16s_I(Qsp16s* pSrcDst, int len);
QspStatus qspsSortAscend_32s_I(Qsp32s* pSrcDst, int len);
QspStatus qspsSortAscend_32f_I(Qsp32f* pSrcDst, int len);
QspStatus qspsSortAscend_64s_I(Qsp64s* pSrcDst, int len);
QspStatus qspsSortAscend_64f_I(Qsp64f* pSrcDst, int len);
QspStatus qspsSortAscend_32s_I_L(Qsp32s* pSrcDst, Qsp64s len);
QspStatus qspsSortAscend_32f_I_L(Qsp32f* pSrcDst, Qsp64s len);
QspStatus qspsSortAscend_64f_I_L(Qsp64f* pSrcDst, Qsp64s len);
QspStatus qspsSortDescend_8u_I(Qsp8u* pSrcDst, int len);
QspStatus qspsSortDescend_16u_I(Qsp16u* pSrcDst, int len);
QspStatus qspsSortDescend_16s_I(Qsp16s* pSrcDst, int len);
QspStatus qspsSortDescend_32s_I(Qsp32s* pSrcDst, int len);
QspStatus qspsSortDescend_32f_I(Qsp32f* pSrcDst, int len);
QspStatus qspsSortDescend_64s_I(Qsp64s* pSrcDst, int len);
QspStatus qspsSortDescend_64f_I(Qsp64f* pSrcDst, int len);
QspStatus qspsSortDescend_32s_I_L(Qsp32s* pSrcDst, Qsp64s len);
QspStatus qspsSortDescend_32f_I_L(Qsp32f* pSrcDst, Qsp64s len);
QspStatus qspsSortDescend_64f_I_L(Qsp64f* pSrcDst, Qsp64s len);

/* SortIndex --------------------------------------------------------------- */
/*
 * Sorts a vector in place, ascending or descending (the order of SortRadix),
 * and writes beside it the permutation: pDstIndx[j] is the original index of
 * the value now at j. Equal values keep their original order. No buffer and
 * no allocation.
 */
QspStatus qspsSortIndexAscend_8u_I(Qsp8u* pSrcDst, int* pDstIndx, int len);
QspStatus qspsSortIndexAscend_16u_I(Qsp16u* pSrcDst, int* pDstIndx, int len);
QspStatus qspsSortIndexAscend_16s_I(Qsp16s* pSrcDst, int* pDstIndx, int len);
QspStatus qspsSortIndexAscend_32s_I(Qsp32s* pSrcDst, int* pDstIndx, int len);
QspStatus qspsSortIndexAscend_32f_I(Qsp32f* pSrcDst, int* pDstIndx, int len);
QspStatus qspsSortIndexAscend_64f_I(Qsp64f* pSrcDst, int* pDstIndx, int len);
QspStatus qspsSortIndexDescend_8u_I(Qsp8u* pSrcDst, int* pDstIndx, int len);
QspStatus qspsSortIndexDescend_16u_I(Qsp16u* pSrcDst, int* pDstIndx, int len);
QspStatus qspsSortIndexDescend_16s_I(Qsp16s* pSrcDst, int* pDstIndx, int len);
QspStatus qspsSortIndexDescend_32s_I(Qsp32s* pSrcDst, int* pDstIndx, int len);
QspStatus qspsSortIndexDescend_32f_I(Qsp32f* pSrcDst, int* pDstIndx, int len);
QspStatus qspsSortIndexDescend_64f_I(Qsp64f* pSrcDst, int* pDstIndx, int len);

/* SortRadixIndex ---------------------------------------------------------- */
/*
 * Writes the sorting permutation of a vector without moving it: pDstIndx[j] is
 * the index of the j-th smallest (Ascend) or largest (Descend) element in the
 * order of SortRadix, equal values in index order (stable radix passes). The
 * work buffer (no alignment needed) has the size SortRadixIndexGetBufferSize
 * reports for len and the type code: qsp8u 1024 bytes; 16-bit codes 2048 +
 * 6 len; 32-bit codes 20480 + 12 len; 64-bit codes 40960 + 20 len; the _L query
 * (64-bit indices) 4 more bytes per element for every type but qsp8u. Other
 * codes give size 0 and qspStsBadDataType; a size that does not fit gives
 * qspStsOverflow. _L forms take 64-bit lengths and indices, lengths checked
 * first.
 */
QspStatus qspsSortRadixIndexGetBufferSize(int len, QspDataType dataType, int* pBufferSize);
QspStatus qspsSortRadixIndexGetBufferSize_L(Qsp64s len, QspDataType dataType, Qsp64s* pBufferSize);
QspStatus qspsSortRadixIndexAscend_8u(const Qsp8u* pSrc, int* pDstIndx, int len, Qsp8u* pBuffer);
QspStatus qspsSortRadixIndexAscend_16u(const Qsp16u* pSrc, int* pDstIndx, int len, Qsp8u* pBuffer);
QspStatus qspsSortRadixIndexAscend_16s(const Qsp16s* pSrc, int* pDstIndx, int len, Qsp8u* pBuffer);
QspStatus qspsSortRadixIndexAscend_32u(const Qsp32u* pSrc, int* pDstIndx, int len, Qsp8u* pBuffer);
QspStatus qspsSortRadixIndexAscend_32s(const Qsp32s* pSrc, int* pDstIndx, int len, Qsp8u* pBuffer);
QspStatus qspsSortRadixIndexAscend_32s_L(const Qsp32s* pSrc, Qsp64s* pDstIndx, Qsp64s len, Qsp8u* pBuffer);
QspStatus qspsSortRadixIndexAscend_32f(const Qsp32f* pSrc, int* pDstIndx, int len, Qsp8u* pBuffer);
QspStatus qspsSortRadixIndexAscend_32f_L(const Qsp32f* pSrc, Qsp64s* pDstIndx, Qsp64s len, Qsp8u* pBuffer);
QspStatus qspsSortRadixIndexAscend_64u(const Qsp64u* pSrc, int* pDstIndx, int len, Qsp8u* pBuffer);
QspStatus qspsSortRadixIndexAscend_64s(const Qsp64s* pSrc, int* pDstIndx, int len, Qsp8u* pBuffer);
QspStatus qspsSortRadixIndexAscend_64s_L(const Qsp64s* pSrc, Qsp64s* pDstIndx, Qsp64s len, Qsp8u* pBuffer);
QspStatus qspsSortRadixIndexAscend_64f(const Qsp64f* pSrc, int* pDstIndx, int len, Qsp8u* pBuffer);
QspStatus qspsSortRadixIndexAscend_64f_L(const Qsp64f* pSrc, Qsp64s* pDstIndx, Qsp64s len, Qsp8u* pBuffer);
QspStatus qspsSortRadixIndexDescend_8u(const Qsp8u* pSrc, int* pDstIndx, int len, Qsp8u* pBuffer);
QspStatus qspsSortRadixIndexDescend_16u(const Qsp16u* pSrc, int* pDstIndx, int len, Qsp8u* pBuffer);
QspStatus qspsSortRadixIndexDescend_16s(const Qsp16s* pSrc, int* pDstIndx, int len, Qsp8u* pBuffer);
QspStatus qspsSortRadixIndexDescend_32u(const Qsp32u* pSrc, int* pDstIndx, int len, Qsp8u* pBuffer);
QspStatus qspsSortRadixIndexDescend_32s(const Qsp32s* pSrc, int* pDstIndx, int len, Qsp8u* pBuffer);
QspStatus qspsSortRadixIndexDescend_32s_L(const Qsp32s* pSrc, Qsp64s* pDstIndx, Qsp64s len, Qsp8u* pBuffer);
QspStatus qspsSortRadixIndexDescend_32f(const Qsp32f* pSrc, int* pDstIndx, int len, Qsp8u* pBuffer);
QspStatus qspsSortRadixIndexDescend_32f_L(const Qsp32f* pSrc, Qsp64s* pDstIndx, Qsp64s len, Qsp8u* pBuffer);
QspStatus qspsSortRadixIndexDescend_64u(const Qsp64u* pSrc, int* pDstIndx, int len, Qsp8u* pBuffer);
QspStatus qspsSortRadixIndexDescend_64s(const Qsp64s* pSrc, int* pDstIndx, int len, Qsp8u* pBuffer);
QspStatus qspsSortRadixIndexDescend_64s_L(const Qsp64s* pSrc, Qsp64s* pDstIndx, Qsp64s len, Qsp8u* pBuffer);
QspStatus qspsSortRadixIndexDescend_64f(const Qsp64f* pSrc, int* pDstIndx, int len, Qsp8u* pBuffer);
QspStatus qspsSortRadixIndexDescend_64f_L(const Qsp64f* pSrc, Qsp64s* pDstIndx, Qsp64s len, Qsp8u* pBuffer);

/* TopK -------------------------------------------------------------------- */
/*
 * The k largest elements in descending order with their indices: pDstValue[j],
 * pDstIndx[j] for j < k; equal values: lower index first. Floating values
 * compare by the order of SortRadix (a NaN with the sign bit clear above +Inf,
 * one with it set below -Inf). Checks: pointers, len below 1 (qspStsBadSize),
 * then k below 1 or above len (qspStsBadCount). The work buffer holds k keys
 * and k indices: TopKGetBufferSize gives k*8 bytes for qsp32s and qsp32f, k*12
 * for qsp64f, size 0 and qspStsBadDataType for other codes.
 */
QspStatus qspsTopKGetBufferSize(int len, int k, QspDataType dataType, int* pBufferSize);
QspStatus qspsTopK_32s(const Qsp32s* pSrc, Qsp32s* pDstValue, int* pDstIndx, int len, int k, Qsp8u* pBuffer);
QspStatus qspsTopK_32f(const Qsp32f* pSrc, Qsp32f* pDstValue, int* pDstIndx, int len, int k, Qsp8u* pBuffer);
QspStatus qspsTopK_64f(const Qsp64f* pSrc, Qsp64f* pDstValue, int* pDstIndx, int len, int k, Qsp8u* pBuffer);

/* FindNearest ------------------------------------------------------------- */
/*
 * For every element, the nearest entry of an ascending table: pDst[i] =
 * pTable[j] and pDstIndx[i] = j with |pSrc[i] - pTable[j]| least, by binary
 * search (distances in double); ties, and equal entries, go to the lower j. A
 * NaN element takes entry 0. Checks: pointers, then len and tableLen below 1
 * (qspStsBadSize). FindNearestOne does it for one value.
 */
QspStatus qspsFindNearest_16u(const Qsp16u* pSrc, const Qsp16u* pTable, Qsp16u* pDst, int* pDstIndx, int len, int tableLen);
QspStatus qspsFindNearest_32s(const Qsp32s* pSrc, const Qsp32s* pTable, Qsp32s* pDst, int* pDstIndx, int len, int tableLen);
QspStatus qspsFindNearest_32f(const Qsp32f* pSrc, const Qsp32f* pTable, Qsp32f* pDst, int* pDstIndx, int len, int tableLen);
QspStatus qspsFindNearest_64f(const Qsp64f* pSrc, const Qsp64f* pTable, Qsp64f* pDst, int* pDstIndx, int len, int tableLen);
QspStatus qspsFindNearestOne_16u(Qsp16u val, const Qsp16u* pTable, Qsp16u* pDst, int* pDstIndx, int tableLen);
QspStatus qspsFindNearestOne_32f(Qsp32f val, const Qsp32f* pTable, Qsp32f* pDst, int* pDstIndx, int tableLen);

/* CountInRange ------------------------------------------------------------ */
/*
 * Counts the elements with lowerBound <= pSrc[i] <= upperBound into *pCount
 * (NaN elements never count). lowerBound above upperBound gives qspStsBadRange,
 * after the pointer and length checks.
 */
QspStatus qspsCountInRange_32s(const Qsp32s* pSrc, int len, int* pCount, Qsp32s lowerBound, Qsp32s upperBound);
QspStatus qspsCountInRange_32f(const Qsp32f* pSrc, int len, int* pCount, Qsp32f lowerBound, Qsp32f upperBound);
QspStatus qspsCountInRange_64f(const Qsp64f* pSrc, int len, int* pCount, Qsp64f lowerBound, Qsp64f upperBound);

/* ZeroCrossing ------------------------------------------------------------ */
/*
 * Zero-crossing measure of a signal, normalised to [0, 1]: zcType qspZCR (0)
 * counts sign changes (a zero counts as positive) divided by len-1; qspZCXor
 * (1) the neighbours whose sign bits differ (-0.0 is negative) divided by
 * len-1; qspZCC (2) half the sum of |sign(x[i]) - sign(x[i-1])| divided by
 * len-1 (sign 0 for zeros and NaNs). Computed in double, rounded to the result.
 * Checks: pointers, len below 2 (qspStsBadSize), then zcType
 * (qspStsBadArgument).
 */
QspStatus qspsZeroCrossing_16s32f(const Qsp16s* pSrc, int len, Qsp32f* pValZC, QspZCType zcType);
QspStatus qspsZeroCrossing_32f(const Qsp32f* pSrc, int len, Qsp32f* pValZC, QspZCType zcType);
QspStatus qspsZeroCrossing_64f(const Qsp64f* pSrc, int len, Qsp64f* pValZC, QspZCType zcType);

/* PatternMatch ------------------------------------------------------------ */
/*
 * Slides a pattern along a vector: pDst[i] = the number of positions j <
 * patternLen where pSrc[i+j] equals pPattern[j] (mode qspPatternMatchEqual, 0)
 * or the number of differing bits over the window (qspPatternMatchHamming, 1),
 * saturated at 65535, for 0 <= i <= len - patternLen. Checks: pointers; len,
 * then patternLen below 1 (qspStsBadSize); patternLen above len
 * (qspStsBadPatternSize); the mode (qspStsBadArgument).
 */
QspStatus qspsPatternMatch_8u16u(const Qsp8u* pSrc, const Qsp8u* pPattern, Qsp16u* pDst, int len, int patternLen, QspPatternMatchMode mode);
QspStatus qspsPatternMatch_16u(const Qsp16u* pSrc, const Qsp16u* pPattern, Qsp16u* pDst, int len, int patternLen, QspPatternMatchMode mode);

/* ReplaceNAN -------------------------------------------------------------- */
/*
 * Replaces every NaN element (complex: every NaN part) of pSrcDst by value in
 * place; other elements, infinities included, stay.
 */
QspStatus qspsReplaceNAN_32f_I(Qsp32f* pSrcDst, int len, Qsp32f value);
QspStatus qspsReplaceNAN_64f_I(Qsp64f* pSrcDst, int len, Qsp64f value);
QspStatus qspsReplaceNAN_32fc_I(Qsp32fc* pSrcDst, int len, Qsp32f value);
QspStatus qspsReplaceNAN_64fc_I(Qsp64fc* pSrcDst, int len, Qsp64f value);

/* DFTGetSize -------------------------------------------------------------- */
/*
 * Sizes, in bytes, that a DFT of any length len >= 1 needs: *pSpecSize for the
 * record block, *pSpecBufferSize for the buffer used only during Init,
 * *pBufferSize for the work buffer of every transform call (0: none). Every
 * non-empty size includes 64 bytes of slack, so blocks need no alignment.
 * flag as for the FFT: 1 forward divided by len, 2 inverse divided by len, 4
 * both divided by sqrt(len), 8 none; hint is stored, never checked. Kinds:
 * C_32fc, C_32f (split parts), C_64fc, C_64f, R_32f, R_64f, C_16fc.
 * The method follows len (DFTInit tells which); powers of two from 32 report
 * the FFT's sizes of that order (and its status: qspStsBadFftOrder beyond
 * its orders) with the DFT header added to the record. Checks: a null size
 * pointer (qspStsNullPtr), len < 1 (qspStsBadSize), the flag
 * (qspStsBadFftFlag), then the limits: lengths that are not powers of two
 * above 134217727 (64-bit kinds: 67108863), chirp lengths above 33554431
 * (64-bit kinds: 16777215), and any length whose sizes would exceed 2^31-1
 * bytes give qspStsBadSize (Init accepts the single-precision chirp lengths
 * up to 67108863 and the FFT's longest orders, with blocks of their 64-bit
 * sizes).
 */
QspStatus qspsDFTGetSize_C_16fc(int len, int flag, QspHintAlgorithm hint, int* pSpecSize, int* pSpecBufferSize, int* pBufferSize);
QspStatus qspsDFTGetSize_C_32fc(int len, int flag, QspHintAlgorithm hint, int* pSpecSize, int* pSpecBufferSize, int* pBufferSize);
QspStatus qspsDFTGetSize_C_32f(int len, int flag, QspHintAlgorithm hint, int* pSpecSize, int* pSpecBufferSize, int* pBufferSize);
QspStatus qspsDFTGetSize_R_32f(int len, int flag, QspHintAlgorithm hint, int* pSpecSize, int* pSpecBufferSize, int* pBufferSize);
QspStatus qspsDFTGetSize_C_64fc(int len, int flag, QspHintAlgorithm hint, int* pSpecSize, int* pSpecBufferSize, int* pBufferSize);
QspStatus qspsDFTGetSize_C_64f(int len, int flag, QspHintAlgorithm hint, int* pSpecSize, int* pSpecBufferSize, int* pBufferSize);
QspStatus qspsDFTGetSize_R_64f(int len, int flag, QspHintAlgorithm hint, int* pSpecSize, int* pSpecBufferSize, int* pBufferSize);

/* DFTInit ----------------------------------------------------------------- */
/*
 * Builds a DFT record for len inside the caller's block pDFTSpec (at least
 * *pSpecSize bytes, any alignment): the record proper starts at the block's
 * first 64-byte boundary, and the transforms find it there from the same
 * block pointer (or from that aligned address). The record keeps one method
 * chosen by len, the same rule for every kind:
 *   len <= 16: direct evaluation by a straight-line kernel (no tables, no
 *     buffers);
 *   a power of two from 32: an FFT record of that order inside the block
 *     (C_32fc for the 16fc kind), with the same flag and hint; its errors are
 *     returned as they are;
 *   otherwise len is factorised: 4s while it divides, a leading 2, odd
 *     divisors 3, 5, 7, ... up to 48 (a failed one above 48 ends the attempt),
 *     a 3 behind a leading 2 merged into 6, the remainder last; with a factor
 *     found and the last factor at most 50 (150 when 4 divides len) a
 *     prime-factor plan (e.g. 96 = 2*4*4*3, 1000 = 2*4*5*5*5, 48 = 4*4*3);
 *   else above 50: the chirp convolution through the FFT (length a power of
 *     two >= 2 len - 1; e.g. 53, 101, 1031, 2597 = 7*7*53);
 *   else (the primes 17..47): direct evaluation from a table of len roots,
 *     work buffer 8 len + 64 bytes (16 len + 64 for 64-bit data).
 * The real kinds of even length run a complex transform of len/2 and
 * recombine. Identifiers: C_16fc 14, C_32fc 15, C_32f 16, R_32f 17, C_64fc 18,
 * C_64f 19, R_64f 20. pSpecBuffer may be null when its size is 0. Checks: a
 * null pDFTSpec, len < 1 (nothing written); then the header is cleared and
 * the flag checked (qspStsBadFftFlag); above 134217727 (not a power of two;
 * 64-bit kinds 67108863) qspStsBadSize; a null pSpecBuffer that tables need
 * qspStsNullPtr; a chirp length above 67108863 (64-bit kinds 16777215)
 * qspStsBadSize. After any failure past the clearing the record carries
 * identifier 0 and every transform refuses it. Init of C_16fc leaves the
 * floating-point modes alone. Records are read-only afterwards and may be
 * shared by threads; there is no release call.
 */
QspStatus qspsDFTInit_C_16fc(int len, int flag, QspHintAlgorithm hint, QspsDFTSpec_C_16fc* pDFTSpec, Qsp8u* pSpecBuffer);
QspStatus qspsDFTInit_C_32fc(int len, int flag, QspHintAlgorithm hint, QspsDFTSpec_C_32fc* pDFTSpec, Qsp8u* pSpecBuffer);
QspStatus qspsDFTInit_C_32f(int len, int flag, QspHintAlgorithm hint, QspsDFTSpec_C_32f* pDFTSpec, Qsp8u* pSpecBuffer);
QspStatus qspsDFTInit_R_32f(int len, int flag, QspHintAlgorithm hint, QspsDFTSpec_R_32f* pDFTSpec, Qsp8u* pSpecBuffer);
QspStatus qspsDFTInit_C_64fc(int len, int flag, QspHintAlgorithm hint, QspsDFTSpec_C_64fc* pDFTSpec, Qsp8u* pSpecBuffer);
QspStatus qspsDFTInit_C_64f(int len, int flag, QspHintAlgorithm hint, QspsDFTSpec_C_64f* pDFTSpec, Qsp8u* pSpecBuffer);
QspStatus qspsDFTInit_R_64f(int len, int flag, QspHintAlgorithm hint, QspsDFTSpec_R_64f* pDFTSpec, Qsp8u* pSpecBuffer);

/* DFTFwd ------------------------------------------------------------------ */
/*
 * Forward DFT of the record's length L: X[k] = sum over m of x[m]
 * e^(-2 pi i k m / L), for any L >= 1, divided by L or sqrt(L) only as the
 * record's flag says. CToC on interleaved complex data or on split arrays
 * (pSrcRe/pSrcIm to pDstRe/pDstIm, 32f and 64f). RToPack, RToPerm, RToCCS
 * write the half spectrum of a real signal in the packed layouts of the FFT,
 * odd L included: Pack R0, R1, I1, ..., ending R(L/2) for even L; Perm R0,
 * R(L/2), R1, I1, ... (odd L: as Pack); CCS R0, 0, R1, I1, ..., R(L/2), 0
 * (L+2 values; odd L: L+1, ending with the pair of bin (L-1)/2).
 * CToC_16fc transforms half-precision data through single precision
 * (rounded to nearest on the way back); it chooses its conversion path
 * (four values at a time, or one) by the support library's feature query
 * with the mask 0x1000000000, with the same results either way.
 * Direct_CToC_16fc evaluates the sums of the definition without a record
 * (len values; not normalised; pSrc and pDst must not overlap).
 * A call whose source equals its destination transforms in place with the
 * same results; other overlaps are not allowed. Concurrent calls sharing a
 * record each need their own pBuffer. Checks: a null record, its identifier
 * (qspStsBadRecord), the data pointers, then a null pBuffer while the
 * record needs one (Direct: the pointers, then len < 1).
 * Example:
 *   int s, i, w;
 *   qspsDFTGetSize_C_32fc(1000, 1, 0, &s, &i, &w);
 *   Qsp8u *spec = qspsMalloc_8u(s), *init = qspsMalloc_8u(i), *work = qspsMalloc_8u(w);
 *   qspsDFTInit_C_32fc(1000, 1, 0, (QspsDFTSpec_C_32fc*)spec, init);
 *   qspsFree(init);
 *   qspsDFTFwd_CToC_32fc(x, X, (QspsDFTSpec_C_32fc*)spec, work);   (X = DFT(x) / 1000)
 */
QspStatus qspsDFTFwd_CToC_16fc(const Qsp16fc* pSrc, Qsp16fc* pDst, const QspsDFTSpec_C_16fc* pDFTSpec, Qsp8u* pBuffer);
QspStatus qspsDFTFwd_CToC_32fc(const Qsp32fc* pSrc, Qsp32fc* pDst, const QspsDFTSpec_C_32fc* pDFTSpec, Qsp8u* pBuffer);
QspStatus qspsDFTFwd_CToC_32f(const Qsp32f* pSrcRe, const Qsp32f* pSrcIm, Qsp32f* pDstRe, Qsp32f* pDstIm, const QspsDFTSpec_C_32f* pDFTSpec, Qsp8u* pBuffer);
QspStatus qspsDFTFwd_CToC_64fc(const Qsp64fc* pSrc, Qsp64fc* pDst, const QspsDFTSpec_C_64fc* pDFTSpec, Qsp8u* pBuffer);
QspStatus qspsDFTFwd_CToC_64f(const Qsp64f* pSrcRe, const Qsp64f* pSrcIm, Qsp64f* pDstRe, Qsp64f* pDstIm, const QspsDFTSpec_C_64f* pDFTSpec, Qsp8u* pBuffer);
QspStatus qspsDFTFwd_RToPack_32f(const Qsp32f* pSrc, Qsp32f* pDst, const QspsDFTSpec_R_32f* pDFTSpec, Qsp8u* pBuffer);
QspStatus qspsDFTFwd_RToPerm_32f(const Qsp32f* pSrc, Qsp32f* pDst, const QspsDFTSpec_R_32f* pDFTSpec, Qsp8u* pBuffer);
QspStatus qspsDFTFwd_RToCCS_32f(const Qsp32f* pSrc, Qsp32f* pDst, const QspsDFTSpec_R_32f* pDFTSpec, Qsp8u* pBuffer);
QspStatus qspsDFTFwd_RToPack_64f(const Qsp64f* pSrc, Qsp64f* pDst, const QspsDFTSpec_R_64f* pDFTSpec, Qsp8u* pBuffer);
QspStatus qspsDFTFwd_RToPerm_64f(const Qsp64f* pSrc, Qsp64f* pDst, const QspsDFTSpec_R_64f* pDFTSpec, Qsp8u* pBuffer);
QspStatus qspsDFTFwd_RToCCS_64f(const Qsp64f* pSrc, Qsp64f* pDst, const QspsDFTSpec_R_64f* pDFTSpec, Qsp8u* pBuffer);
QspStatus qspsDFTFwd_Direct_CToC_16fc(const Qsp16fc* pSrc, Qsp16fc* pDst, int len);

/* DFTInv ------------------------------------------------------------------ */
/*
 * Inverse DFT: x[m] = sum over k of X[k] e^(+2 pi i k m / L), the exact inverse
 * of DFTFwd up to the normalisation of the record's flag. PackToR, PermToR,
 * CCSToR read a packed half spectrum (see DFTFwd) and write L real values;
 * the imaginary slots of bin 0 and (even L) bin L/2 in CCS are not read.
 * Everything else as DFTFwd.
 */
QspStatus qspsDFTInv_CToC_16fc(const Qsp16fc* pSrc, Qsp16fc* pDst, const QspsDFTSpec_C_16fc* pDFTSpec, Qsp8u* pBuffer);
QspStatus qspsDFTInv_CToC_32fc(const Qsp32fc* pSrc, Qsp32fc* pDst, const QspsDFTSpec_C_32fc* pDFTSpec, Qsp8u* pBuffer);
QspStatus qspsDFTInv_CToC_32f(const Qsp32f* pSrcRe, const Qsp32f* pSrcIm, Qsp32f* pDstRe, Qsp32f* pDstIm, const QspsDFTSpec_C_32f* pDFTSpec, Qsp8u* pBuffer);
QspStatus qspsDFTInv_CToC_64fc(const Qsp64fc* pSrc, Qsp64fc* pDst, const QspsDFTSpec_C_64fc* pDFTSpec, Qsp8u* pBuffer);
QspStatus qspsDFTInv_CToC_64f(const Qsp64f* pSrcRe, const Qsp64f* pSrcIm, Qsp64f* pDstRe, Qsp64f* pDstIm, const QspsDFTSpec_C_64f* pDFTSpec, Qsp8u* pBuffer);
QspStatus qspsDFTInv_PackToR_32f(const Qsp32f* pSrc, Qsp32f* pDst, const QspsDFTSpec_R_32f* pDFTSpec, Qsp8u* pBuffer);
QspStatus qspsDFTInv_PermToR_32f(const Qsp32f* pSrc, Qsp32f* pDst, const QspsDFTSpec_R_32f* pDFTSpec, Qsp8u* pBuffer);
QspStatus qspsDFTInv_CCSToR_32f(const Qsp32f* pSrc, Qsp32f* pDst, const QspsDFTSpec_R_32f* pDFTSpec, Qsp8u* pBuffer);
QspStatus qspsDFTInv_PackToR_64f(const Qsp64f* pSrc, Qsp64f* pDst, const QspsDFTSpec_R_64f* pDFTSpec, Qsp8u* pBuffer);
QspStatus qspsDFTInv_PermToR_64f(const Qsp64f* pSrc, Qsp64f* pDst, const QspsDFTSpec_R_64f* pDFTSpec, Qsp8u* pBuffer);
QspStatus qspsDFTInv_CCSToR_64f(const Qsp64f* pSrc, Qsp64f* pDst, const QspsDFTSpec_R_64f* pDFTSpec, Qsp8u* pBuffer);
QspStatus qspsDFTInv_Direct_CToC_16fc(const Qsp16fc* pSrc, Qsp16fc* pDst, int len);

/* DCTGetSize -------------------------------------------------------------- */
/*
 * Sizes, in bytes, that a DCT of length len >= 1 needs (record block, Init
 * buffer, work buffer); the inverse sizes equal the forward ones. By method:
 * len 1, 2, 4, 8 fixed kernels, record 160 bytes (64-bit: 168), no buffers;
 * other lengths below 36 direct evaluation from a table, record 16 len + 192
 * (64-bit: 32 len + 192), no Init buffer, work 4 len + 64 (8 len + 64);
 * powers of two from 16 the real FFT of length len; other lengths from 36
 * the real DFT of length len (prime factors or the chirp convolution) - for
 * these two the embedded transform's sizes plus 192 (record), 64 (a
 * non-zero Init buffer) and 64 (work). Checks: len < 1 (qspStsBadSize), a
 * null size pointer, then the limits (qspStsBadSize): powers of two above
 * 268435455 (64-bit: 134217727), other lengths above 33554431 (64-bit:
 * 16777215).
 */
QspStatus qspsDCTFwdGetSize_32f(int len, QspHintAlgorithm hint, int* pSpecSize, int* pSpecBufferSize, int* pBufferSize);
QspStatus qspsDCTFwdGetSize_64f(int len, QspHintAlgorithm hint, int* pSpecSize, int* pSpecBufferSize, int* pBufferSize);
QspStatus qspsDCTInvGetSize_32f(int len, QspHintAlgorithm hint, int* pSpecSize, int* pSpecBufferSize, int* pBufferSize);
QspStatus qspsDCTInvGetSize_64f(int len, QspHintAlgorithm hint, int* pSpecSize, int* pSpecBufferSize, int* pBufferSize);

/* DCTInit ----------------------------------------------------------------- */
/*
 * Builds a forward or inverse DCT record for len inside the caller's block
 * pSpec (aligned up to 64 bytes inside it; the aligned address goes to
 * *ppDCTSpec). The method follows len as in DCTGetSize. Identifiers: 23
 * forward 32f, 24 inverse 32f, 25 forward 64f, 26 inverse 64f, written last,
 * only when Init succeeds. The record holds 1/sqrt(len) and sqrt(2/len)
 * (from double) and its method flags. Checks: the length first - len < 1,
 * powers of two above 268435455 (64-bit: 134217727), other lengths above
 * 67108863 (64-bit: 16777215) give qspStsBadSize; Init thus accepts the
 * single-precision lengths 33554433..67108863 (not powers of two) that the
 * size query refuses, given blocks of the 64-bit sizes of their real DFT
 * plus the DCT's own tables (their work buffers, too, can pass 2^31 bytes:
 * the record's work size then reads 2147483647, and the caller sizes the
 * work buffer as for the Init buffer); then null ppDCTSpec or pSpec,
 * then a null pSpecBuffer that the embedded transform needs
 * (qspStsNullPtr). Records are read-only afterwards.
 */
QspStatus qspsDCTFwdInit_32f(QspsDCTFwdSpec_32f** ppDCTSpec, int len, QspHintAlgorithm hint, Qsp8u* pSpec, Qsp8u* pSpecBuffer);
QspStatus qspsDCTFwdInit_64f(QspsDCTFwdSpec_64f** ppDCTSpec, int len, QspHintAlgorithm hint, Qsp8u* pSpec, Qsp8u* pSpecBuffer);
QspStatus qspsDCTInvInit_32f(QspsDCTInvSpec_32f** ppDCTSpec, int len, QspHintAlgorithm hint, Qsp8u* pSpec, Qsp8u* pSpecBuffer);
QspStatus qspsDCTInvInit_64f(QspsDCTInvSpec_64f** ppDCTSpec, int len, QspHintAlgorithm hint, Qsp8u* pSpec, Qsp8u* pSpecBuffer);

/* DCTFwd ------------------------------------------------------------------ */
/*
 * Orthonormal type-II DCT: y[0] = (1/sqrt(L)) sum x[n], y[k] = sqrt(2/L) sum
 * x[n] cos(pi (2n+1) k / (2L)) for k = 1..L-1, L the record's length. _I
 * transforms in place (as does a call whose source equals its destination);
 * other overlaps are not allowed. Checks: null pSrc, pDst or record
 * (qspStsNullPtr), the record's identifier (qspStsBadRecord); the fixed
 * kernels (1, 2, 4, 8) need no buffer; otherwise a null pBuffer gives
 * qspStsNullPtr. Concurrent calls sharing a record need their own pBuffer.
 */
QspStatus qspsDCTFwd_32f(const Qsp32f* pSrc, Qsp32f* pDst, const QspsDCTFwdSpec_32f* pDCTSpec, Qsp8u* pBuffer);
QspStatus qspsDCTFwd_32f_I(Qsp32f* pSrcDst, const QspsDCTFwdSpec_32f* pDCTSpec, Qsp8u* pBuffer);
QspStatus qspsDCTFwd_64f(const Qsp64f* pSrc, Qsp64f* pDst, const QspsDCTFwdSpec_64f* pDCTSpec, Qsp8u* pBuffer);
QspStatus qspsDCTFwd_64f_I(Qsp64f* pSrcDst, const QspsDCTFwdSpec_64f* pDCTSpec, Qsp8u* pBuffer);

/* DCTInv ------------------------------------------------------------------ */
/*
 * Inverse of DCTFwd (type III with the same factors): x[n] = (1/sqrt(L)) y[0]
 * + sqrt(2/L) sum over k >= 1 of y[k] cos(pi (2n+1) k / (2L)); DCTFwd followed
 * by DCTInv returns the input. _I transforms in place. Checks as DCTFwd.
 */
QspStatus qspsDCTInv_32f(const Qsp32f* pSrc, Qsp32f* pDst, const QspsDCTInvSpec_32f* pDCTSpec, Qsp8u* pBuffer);
QspStatus qspsDCTInv_32f_I(Qsp32f* pSrcDst, const QspsDCTInvSpec_32f* pDCTSpec, Qsp8u* pBuffer);
QspStatus qspsDCTInv_64f(const Qsp64f* pSrc, Qsp64f* pDst, const QspsDCTInvSpec_64f* pDCTSpec, Qsp8u* pBuffer);
QspStatus qspsDCTInv_64f_I(Qsp64f* pSrcDst, const QspsDCTInvSpec_64f* pDCTSpec, Qsp8u* pBuffer);

/* FIRSR ------------------------------------------------------------------- */
/*
 * Single-rate FIR filter, one output per input:
 *   y[n] = sum over k = 0..N-1 of taps[k] * x[n-k],   N = tapsLen,
 * with x[n] = pSrc[n] for n >= 0 and x[-j] = pDlySrc[N-1-j] for j = 1..N-1
 * (zeros when pDlySrc is null). Complex taps multiply as complex numbers;
 * 32f_32fc multiplies complex samples by real taps.
 *
 * Sizing. FIRSRGetSize(tapsLen, tapsType, &specSize, &bufSize) with tapsType
 * qsp32f, qsp64f, qsp32fc or qsp64fc (FIRSRGetSize32f_32fc for real taps on
 * complex data) gives the bytes of the record and of the work buffer; both
 * need no alignment. For an element of e bytes (4 for 32f; 8 for 64f, 32fc
 * and 32f_32fc; 16 for 64fc), A(x) = x rounded up to a multiple of 64 and the
 * FFT of order k+1 (fftLen = 2^(k+1), 2^k the smallest power of two above N,
 * k >= 1; real FFT for real data, complex FFT for complex data, flag 2):
 *   spec = max(A(e*N), A(4*e*N), 4*e*((N+6) & ~3)) + 191 + FFT spec size
 *          + max(FFT init size, FFT work size) + e*fftLen
 *   buf  = 64*(ceil(2*e*N/64) + ceil(2*e*(N-1)/64)) + 32768 + FFT work size
 *          + e*fftLen
 * The FFT part is counted whatever algorithm the record will use. Checks:
 * tapsLen < 1 qspStsBadSize, then another tapsType qspStsBadDataType, then a
 * null size pointer qspStsNullPtr. Sizes beyond int give qspStsOverflow.
 *
 * Init. FIRSRInit_<type>(pTaps, tapsLen, algType, pSpec) builds the record in
 * the caller's block, at its first 64-byte boundary; the filter calls take
 * the same unaligned pointer. The record keeps the taps for the direct form
 * and, unless algType is qspAlgDirect, their spectrum for overlap-save
 * (fftLen above). Checks: tapsLen < 1 qspStsBadSize, null pTaps or pSpec
 * qspStsNullPtr, algType other than qspAlgAuto (0), qspAlgDirect (1),
 * qspAlgFFT (2) qspStsBadAlgType. The record carries no identifier and is
 * not checked; it is read-only afterwards, so threads may share one record
 * as long as each call has its own pBuf, destination and delay lines.
 *
 * Filtering. FIRSR_<type>(pSrc, pDst, numIters, pSpec, pDlySrc, pDlyDst,
 * pBuf) filters numIters samples. Method: qspAlgFFT records always use
 * overlap-save (FFT of fftLen, step fftLen - (N-1)); qspAlgDirect records the
 * direct form; qspAlgAuto records overlap-save when N >= T_taps and numIters
 * >= T_len, else the direct form:
 *   32f 64/128, 64f 38/128, 32f_32fc 64/256, 32fc 18/256, 64fc 18/256.
 * The direct form sums from the first tap to the last, each output by itself,
 * so a stream filtered in pieces gives the same bits as in one call;
 * overlap-save agrees with it to rounding (an error of a few units of the
 * precision times log2(fftLen) times the norms of taps and block).
 * 16s and 16sc use a 32f or 32fc record, always filter by the direct form in
 * single precision and round the results to nearest (ties to even) with
 * saturation; their delay lines are 16-bit.
 * Delay lines hold N-1 samples of the call's data type, oldest first: before
 * the call pDlySrc[N-2] is the sample just before pSrc[0]. After it pDlyDst
 * (if not null) holds the last N-1 samples of delay line followed by input:
 * pSrc[numIters-N+1 .. numIters-1] when numIters >= N-1, else the newest
 * N-1-numIters samples of pDlySrc (zeros if null) and then all of pSrc. With
 * N = 1 no delay line is read or written.
 * Aliasing: pSrc == pDst (in place), pDst == pDlySrc and pDlySrc == pDlyDst
 * (continuing a stream) are allowed and give the results of separate arrays
 * (overlap-save to rounding: in place it runs in staging blocks of 32768
 * bytes of samples); other overlaps are not. pBuf holds nothing between
 * calls.
 * Checks: null pSpec, then null pSrc, pDst or pBuf qspStsNullPtr; numIters < 1
 * qspStsBadSize. Nothing is written on error.
 *
 * Example, a 64-tap filter over a stream of blocks, dly carrying the history:
 *   int specSize, bufSize;
 *   qspsFIRSRGetSize(64, qsp32f, &specSize, &bufSize);
 *   QspsFIRSpec_32f* spec = (QspsFIRSpec_32f*)qspsMalloc_8u(specSize);
 *   Qsp8u* buf = qspsMalloc_8u(bufSize);
 *   Qsp32f dly[63] = {0};
 *   qspsFIRSRInit_32f(taps, 64, qspAlgAuto, spec);
 *   while (readBlock(in, 1024))
 *       qspsFIRSR_32f(in, out, 1024, spec, dly, dly, buf);
 *   qspsFree(buf);
 *   qspsFree(spec);
 */
QspStatus qspsFIRSRGetSize(int tapsLen, QspDataType tapsType, int* pSpecSize, int* pBufSize);
QspStatus qspsFIRSRGetSize32f_32fc(int tapsLen, int* pSpecSize, int* pBufSize);
QspStatus qspsFIRSRInit_32f(const Qsp32f* pTaps, int tapsLen, QspAlgType algType, QspsFIRSpec_32f* pSpec);
QspStatus qspsFIRSRInit_64f(const Qsp64f* pTaps, int tapsLen, QspAlgType algType, QspsFIRSpec_64f* pSpec);
QspStatus qspsFIRSRInit_32fc(const Qsp32fc* pTaps, int tapsLen, QspAlgType algType, QspsFIRSpec_32fc* pSpec);
QspStatus qspsFIRSRInit_64fc(const Qsp64fc* pTaps, int tapsLen, QspAlgType algType, QspsFIRSpec_64fc* pSpec);
QspStatus qspsFIRSRInit32f_32fc(const Qsp32f* pTaps, int tapsLen, QspAlgType algType, QspsFIRSpec32f_32fc* pSpec);
QspStatus qspsFIRSR_32f(const Qsp32f* pSrc, Qsp32f* pDst, int numIters, QspsFIRSpec_32f* pSpec, const Qsp32f* pDlySrc, Qsp32f* pDlyDst, Qsp8u* pBuf);
QspStatus qspsFIRSR_64f(const Qsp64f* pSrc, Qsp64f* pDst, int numIters, QspsFIRSpec_64f* pSpec, const Qsp64f* pDlySrc, Qsp64f* pDlyDst, Qsp8u* pBuf);
QspStatus qspsFIRSR_32fc(const Qsp32fc* pSrc, Qsp32fc* pDst, int numIters, QspsFIRSpec_32fc* pSpec, const Qsp32fc* pDlySrc, Qsp32fc* pDlyDst, Qsp8u* pBuf);
QspStatus qspsFIRSR_64fc(const Qsp64fc* pSrc, Qsp64fc* pDst, int numIters, QspsFIRSpec_64fc* pSpec, const Qsp64fc* pDlySrc, Qsp64fc* pDlyDst, Qsp8u* pBuf);
QspStatus qspsFIRSR32f_32fc(const Qsp32fc* pSrc, Qsp32fc* pDst, int numIters, QspsFIRSpec32f_32fc* pSpec, const Qsp32fc* pDlySrc, Qsp32fc* pDlyDst, Qsp8u* pBuf);
QspStatus qspsFIRSR_16s(const Qsp16s* pSrc, Qsp16s* pDst, int numIters, QspsFIRSpec_32f* pSpec, const Qsp16s* pDlySrc, Qsp16s* pDlyDst, Qsp8u* pBuf);
QspStatus qspsFIRSR_16sc(const Qsp16sc* pSrc, Qsp16sc* pDst, int numIters, QspsFIRSpec_32fc* pSpec, const Qsp16sc* pDlySrc, Qsp16sc* pDlyDst, Qsp8u* pBuf);

/* IIRGetStateSize --------------------------------------------------------- */
/*
 * Bytes of caller memory that an IIR state of the kind in the name needs, 32
 * bytes of alignment slack included: for order N (AR shape: N+1 feed-forward
 * and N+1 feedback taps) or numBq second-order sections (BiQuad shapes:
 * BiQuad, and BiQuad_DF1 in direct form 1). The precision before the
 * underscore (32f, 32fc, 64f, 64fc; none: that of the samples) is that of
 * the taps, the delay line and the arithmetic; the code after it names the
 * samples (32f_16s: a single-precision state for 16s samples). For
 * qspsIIRGetStateSize_32f the size is ((4N+19) & ~15) + ((8N+19) & ~15) +
 * 4760 + 16(2N+1); every other kind reports what its initialiser uses.
 * Checks: null pBufferSize gives qspStsNullPtr; order or numBq below 1
 * qspStsBadFilterOrder; a size that does not fit an int qspStsOverflow.
 * Nothing is written on error. Thread-safe.
 */
QspStatus qspsIIRGetStateSize_32f(int order, int* pBufferSize);
QspStatus qspsIIRGetStateSize_BiQuad_32f(int numBq, int* pBufferSize);
QspStatus qspsIIRGetStateSize_32fc(int order, int* pBufferSize);
QspStatus qspsIIRGetStateSize_BiQuad_32fc(int numBq, int* pBufferSize);
QspStatus qspsIIRGetStateSize32f_16s(int order, int* pBufferSize);
QspStatus qspsIIRGetStateSize32f_BiQuad_16s(int numBq, int* pBufferSize);
QspStatus qspsIIRGetStateSize32fc_16sc(int order, int* pBufferSize);
QspStatus qspsIIRGetStateSize32fc_BiQuad_16sc(int numBq, int* pBufferSize);
QspStatus qspsIIRGetStateSize_64f(int order, int* pBufferSize);
QspStatus qspsIIRGetStateSize_BiQuad_64f(int numBq, int* pBufferSize);
QspStatus qspsIIRGetStateSize_64fc(int order, int* pBufferSize);
QspStatus qspsIIRGetStateSize_BiQuad_64fc(int numBq, int* pBufferSize);
QspStatus qspsIIRGetStateSize64f_32f(int order, int* pBufferSize);
QspStatus qspsIIRGetStateSize64f_BiQuad_32f(int numBq, int* pBufferSize);
QspStatus qspsIIRGetStateSize64fc_32fc(int order, int* pBufferSize);
QspStatus qspsIIRGetStateSize64fc_BiQuad_32fc(int numBq, int* pBufferSize);
QspStatus qspsIIRGetStateSize64f_32s(int order, int* pBufferSize);
QspStatus qspsIIRGetStateSize64f_BiQuad_32s(int numBq, int* pBufferSize);
QspStatus qspsIIRGetStateSize64fc_32sc(int order, int* pBufferSize);
QspStatus qspsIIRGetStateSize64fc_BiQuad_32sc(int numBq, int* pBufferSize);
QspStatus qspsIIRGetStateSize64f_16s(int order, int* pBufferSize);
QspStatus qspsIIRGetStateSize64f_BiQuad_16s(int numBq, int* pBufferSize);
QspStatus qspsIIRGetStateSize64fc_16sc(int order, int* pBufferSize);
QspStatus qspsIIRGetStateSize64fc_BiQuad_16sc(int numBq, int* pBufferSize);
QspStatus qspsIIRGetStateSize_BiQuad_DF1_32f(int numBq, int* pBufferSize);
QspStatus qspsIIRGetStateSize64f_BiQuad_DF1_32s(int numBq, int* pBufferSize);

/* IIRInit ----------------------------------------------------------------- */
/*
 * Builds an IIR state in the caller's buffer pBuf, which holds at least the
 * size IIRGetStateSize reports for the same kind and order and needs no
 * particular alignment: the state starts at the first 32-byte boundary in
 * pBuf, and that address goes to *ppState. Taps: AR shape of order N, the
 * 2N+2 values b0..bN then a0..aN; BiQuad shapes, numBq sections of six values
 * b0, b1, b2, a0, a1, a2. The state keeps the taps normalised by a0 (times r =
 * 1/a0 in the state's precision; each section by its own a0). pDlyLine is
 * the initial delay line (IIRDlyLine describes it: N values, 2 per section, 4
 * per direct-form-1 section; 32-bit integer samples for BiQuad_DF1_32s), or
 * null for zeros. Taps and delay line are copied: the caller's arrays may be
 * reused at once. Checks: null ppState, pTaps or pBuf gives qspStsNullPtr;
 * order or numBq below 1 qspStsBadFilterOrder (a state whose size does not
 * fit an int qspStsOverflow), with nothing written. Then the header and the
 * delay line are written, and a0 = 0 gives qspStsZeroDivisor, as does, for
 * the BiQuad shapes, a section whose b0 is 0 (sections in turn; a complex
 * tap is zero when both parts are; -0 is zero). After any error *ppState is
 * unchanged and the buffer holds no usable state. Init writes nothing
 * outside the reported size.
 */
QspStatus qspsIIRInit_32f(QspsIIRState_32f** ppState, const Qsp32f* pTaps, int order, const Qsp32f* pDlyLine, Qsp8u* pBuf);
QspStatus qspsIIRInit_BiQuad_32f(QspsIIRState_32f** ppState, const Qsp32f* pTaps, int numBq, const Qsp32f* pDlyLine, Qsp8u* pBuf);
QspStatus qspsIIRInit_32fc(QspsIIRState_32fc** ppState, const Qsp32fc* pTaps, int order, const Qsp32fc* pDlyLine, Qsp8u* pBuf);
QspStatus qspsIIRInit_BiQuad_32fc(QspsIIRState_32fc** ppState, const Qsp32fc* pTaps, int numBq, const Qsp32fc* pDlyLine, Qsp8u* pBuf);
QspStatus qspsIIRInit32f_16s(QspsIIRState32f_16s** ppState, const Qsp32f* pTaps, int order, const Qsp32f* pDlyLine, Qsp8u* pBuf);
QspStatus qspsIIRInit32f_BiQuad_16s(QspsIIRState32f_16s** ppState, const Qsp32f* pTaps, int numBq, const Qsp32f* pDlyLine, Qsp8u* pBuf);
QspStatus qspsIIRInit32fc_16sc(QspsIIRState32fc_16sc** ppState, const Qsp32fc* pTaps, int order, const Qsp32fc* pDlyLine, Qsp8u* pBuf);
QspStatus qspsIIRInit32fc_BiQuad_16sc(QspsIIRState32fc_16sc** ppState, const Qsp32fc* pTaps, int numBq, const Qsp32fc* pDlyLine, Qsp8u* pBuf);
QspStatus qspsIIRInit_64f(QspsIIRState_64f** ppState, const Qsp64f* pTaps, int order, const Qsp64f* pDlyLine, Qsp8u* pBuf);
QspStatus qspsIIRInit_BiQuad_64f(QspsIIRState_64f** ppState, const Qsp64f* pTaps, int numBq, const Qsp64f* pDlyLine, Qsp8u* pBuf);
QspStatus qspsIIRInit_64fc(QspsIIRState_64fc** ppState, const Qsp64fc* pTaps, int order, const Qsp64fc* pDlyLine, Qsp8u* pBuf);
QspStatus qspsIIRInit_BiQuad_64fc(QspsIIRState_64fc** ppState, const Qsp64fc* pTaps, int numBq, const Qsp64fc* pDlyLine, Qsp8u* pBuf);
QspStatus qspsIIRInit64f_32f(QspsIIRState64f_32f** ppState, const Qsp64f* pTaps, int order, const Qsp64f* pDlyLine, Qsp8u* pBuf);
QspStatus qspsIIRInit64f_BiQuad_32f(QspsIIRState64f_32f** ppState, const Qsp64f* pTaps, int numBq, const Qsp64f* pDlyLine, Qsp8u* pBuf);
QspStatus qspsIIRInit64fc_32fc(QspsIIRState64fc_32fc** ppState, const Qsp64fc* pTaps, int order, const Qsp64fc* pDlyLine, Qsp8u* pBuf);
QspStatus qspsIIRInit64fc_BiQuad_32fc(QspsIIRState64fc_32fc** ppState, const Qsp64fc* pTaps, int numBq, const Qsp64fc* pDlyLine, Qsp8u* pBuf);
QspStatus qspsIIRInit64f_32s(QspsIIRState64f_32s** ppState, const Qsp64f* pTaps, int order, const Qsp64f* pDlyLine, Qsp8u* pBuf);
QspStatus qspsIIRInit64f_BiQuad_32s(QspsIIRState64f_32s** ppState, const Qsp64f* pTaps, int numBq, const Qsp64f* pDlyLine, Qsp8u* pBuf);
QspStatus qspsIIRInit64fc_32sc(QspsIIRState64fc_32sc** ppState, const Qsp64fc* pTaps, int order, const Qsp64fc* pDlyLine, Qsp8u* pBuf);
QspStatus qspsIIRInit64fc_BiQuad_32sc(QspsIIRState64fc_32sc** ppState, const Qsp64fc* pTaps, int numBq, const Qsp64fc* pDlyLine, Qsp8u* pBuf);
QspStatus qspsIIRInit64f_16s(QspsIIRState64f_16s** ppState, const Qsp64f* pTaps, int order, const Qsp64f* pDlyLine, Qsp8u* pBuf);
QspStatus qspsIIRInit64f_BiQuad_16s(QspsIIRState64f_16s** ppState, const Qsp64f* pTaps, int numBq, const Qsp64f* pDlyLine, Qsp8u* pBuf);
QspStatus qspsIIRInit64fc_16sc(QspsIIRState64fc_16sc** ppState, const Qsp64fc* pTaps, int order, const Qsp64fc* pDlyLine, Qsp8u* pBuf);
QspStatus qspsIIRInit64fc_BiQuad_16sc(QspsIIRState64fc_16sc** ppState, const Qsp64fc* pTaps, int numBq, const Qsp64fc* pDlyLine, Qsp8u* pBuf);
QspStatus qspsIIRInit_BiQuad_DF1_32f(QspsIIRState_32f** ppState, const Qsp32f* pTaps, int numBq, const Qsp32f* pDlyLine, Qsp8u* pBuf);
QspStatus qspsIIRInit64f_BiQuad_DF1_32s(QspsIIRState64f_32s** ppState, const Qsp64f* pTaps, int numBq, const Qsp32s* pDlyLine, Qsp8u* pBuf);

/* IIR --------------------------------------------------------------------- */
/*
 * Filters len samples through an IIR state. With the taps normalised by a0:
 * y[n] = b0 x[n] + b1 x[n-1] + ... + bN x[n-N] - a1 y[n-1] - ... - aN y[n-N];
 * a BiQuad state runs its sections in turn, each on the previous one's
 * output. A form serves the AR, BiQuad and (32f, 64f_32s) direct-form-1
 * states of its types. The state's delay line holds the history, so
 * consecutive calls continue one signal: calls on consecutive pieces give
 * the result of one call on the joined signal, to rounding (the kernels solve
 * the recursion for a register of samples, AR filters for blocks of 1024, at
 * a time). The arithmetic has the state's precision; samples of another type
 * are converted exactly on the way in. 64f_32f and 64fc_32fc round the
 * results to single precision. The integer forms (Sfs) deliver the result
 * times 2^-scaleFactor, rounded to nearest with ties to even and saturated
 * (NaN gives 0); every scale factor is accepted. _I forms filter in place;
 * otherwise pSrc and pDst are one array or do not overlap. _P, _IP, _PSfs
 * and _IPSfs filter nChannels channels of len samples each, channel c from
 * ppSrc[c] to ppDst[c] (_IP: in place in ppSrcDst[c]) through its own state
 * ppState[c]; kinds and orders may differ between channels, states and
 * destinations may not be shared. Checks: null pState, then null pSrc or
 * pDst (channel forms: ppSrc, ppDst, then ppState) gives qspStsNullPtr; len
 * below 1 qspStsBadSize; channel forms then nChannels below 1 qspStsBadSize
 * and a null channel pointer qspStsNullPtr; then a state of another kind
 * qspStsBadRecord. All channels are checked before any is filtered; on error
 * nothing is written. Threads: every call writes its state, so a state
 * serves one signal at a time; calls on different states may run at once.
 * Example, a cascade of two sections over a stream of blocks:
 *     Qsp32f taps[12] = {b0, b1, b2, 1, a1, a2,   c0, c1, c2, 1, e1, e2};
 *     Qsp32f x[256];
 *     int size, n;
 *     qspsIIRGetStateSize_BiQuad_32f(2, &size);
 *     Qsp8u* buf = qspsMalloc_8u(size);
 *     QspsIIRState_32f* st;
 *     if (buf && qspsIIRInit_BiQuad_32f(&st, taps, 2, NULL, buf) == qspStsOk)
 *         while ((n = read_block(x, 256)) > 0) { // n samples in x
 *             qspsIIR_32f_I(x, n, st);             // continues the signal
 *             write_block(x, n);
 *         }
 *     qspsFree(buf);                               // no release call
 */
QspStatus qspsIIR_32f(const Qsp32f* pSrc, Qsp32f* pDst, int len, QspsIIRState_32f* pState);
QspStatus qspsIIR_32f_I(Qsp32f* pSrcDst, int len, QspsIIRState_32f* pState);
QspStatus qspsIIR_32f_P(const Qsp32f** ppSrc, Qsp32f** ppDst, int len, int nChannels, QspsIIRState_32f** ppState);
QspStatus qspsIIR_32f_IP(Qsp32f** ppSrcDst, int len, int nChannels, QspsIIRState_32f** ppState);
QspStatus qspsIIR_32fc(const Qsp32fc* pSrc, Qsp32fc* pDst, int len, QspsIIRState_32fc* pState);
QspStatus qspsIIR_32fc_I(Qsp32fc* pSrcDst, int len, QspsIIRState_32fc* pState);
QspStatus qspsIIR32f_16s_Sfs(const Qsp16s* pSrc, Qsp16s* pDst, int len, QspsIIRState32f_16s* pState, int scaleFactor);
QspStatus qspsIIR32f_16s_ISfs(Qsp16s* pSrcDst, int len, QspsIIRState32f_16s* pState, int scaleFactor);
QspStatus qspsIIR32fc_16sc_Sfs(const Qsp16sc* pSrc, Qsp16sc* pDst, int len, QspsIIRState32fc_16sc* pState, int scaleFactor);
QspStatus qspsIIR32fc_16sc_ISfs(Qsp16sc* pSrcDst, int len, QspsIIRState32fc_16sc* pState, int scaleFactor);
QspStatus qspsIIR_64f(const Qsp64f* pSrc, Qsp64f* pDst, int len, QspsIIRState_64f* pState);
QspStatus qspsIIR_64f_I(Qsp64f* pSrcDst, int len, QspsIIRState_64f* pState);
QspStatus qspsIIR_64fc(const Qsp64fc* pSrc, Qsp64fc* pDst, int len, QspsIIRState_64fc* pState);
QspStatus qspsIIR_64fc_I(Qsp64fc* pSrcDst, int len, QspsIIRState_64fc* pState);
QspStatus qspsIIR64f_32f(const Qsp32f* pSrc, Qsp32f* pDst, int len, QspsIIRState64f_32f* pState);
QspStatus qspsIIR64f_32f_I(Qsp32f* pSrcDst, int len, QspsIIRState64f_32f* pState);
QspStatus qspsIIR64fc_32fc(const Qsp32fc* pSrc, Qsp32fc* pDst, int len, QspsIIRState64fc_32fc* pState);
QspStatus qspsIIR64fc_32fc_I(Qsp32fc* pSrcDst, int len, QspsIIRState64fc_32fc* pState);
QspStatus qspsIIR64f_32s_Sfs(const Qsp32s* pSrc, Qsp32s* pDst, int len, QspsIIRState64f_32s* pState, int scaleFactor);
QspStatus qspsIIR64f_32s_ISfs(Qsp32s* pSrcDst, int len, QspsIIRState64f_32s* pState, int scaleFactor);
QspStatus qspsIIR64f_32s_PSfs(const Qsp32s** ppSrc, Qsp32s** ppDst, int len, int nChannels, QspsIIRState64f_32s** ppState, int scaleFactor);
QspStatus qspsIIR64f_32s_IPSfs(Qsp32s** ppSrcDst, int len, int nChannels, QspsIIRState64f_32s** ppState, int scaleFactor);
QspStatus qspsIIR64fc_32sc_Sfs(const Qsp32sc* pSrc, Qsp32sc* pDst, int len, QspsIIRState64fc_32sc* pState, int scaleFactor);
QspStatus qspsIIR64fc_32sc_ISfs(Qsp32sc* pSrcDst, int len, QspsIIRState64fc_32sc* pState, int scaleFactor);
QspStatus qspsIIR64f_16s_Sfs(const Qsp16s* pSrc, Qsp16s* pDst, int len, QspsIIRState64f_16s* pState, int scaleFactor);
QspStatus qspsIIR64f_16s_ISfs(Qsp16s* pSrcDst, int len, QspsIIRState64f_16s* pState, int scaleFactor);
QspStatus qspsIIR64fc_16sc_Sfs(const Qsp16sc* pSrc, Qsp16sc* pDst, int len, QspsIIRState64fc_16sc* pState, int scaleFactor);
QspStatus qspsIIR64fc_16sc_ISfs(Qsp16sc* pSrcDst, int len, QspsIIRState64fc_16sc* pState, int scaleFactor);

/* IIRDlyLine -------------------------------------------------------------- */
/*
 * Reads (Get) or replaces (Set) the delay line of an IIR state: the history
 * that joins one filtering call to the next. AR states hold N values d[0..N-1]
 * of the transposed direct form, the state before input x[n]: y[n] = b0 x[n]
 * + d[0], then d[k] = d[k+1] + b(k+1) x[n] - a(k+1) y[n] (d[N] = 0), with the
 * normalised taps. BiQuad states hold s1, s2 of each section in the same form
 * (y = b0 x + s1, s1 = b1 x - a1 y + s2, s2 = b2 x - a2 y), section after
 * section. Direct-form-1 states hold x[n-1], x[n-2], y[n-1], y[n-2] of each
 * section (its last two inputs and outputs), section after section. Values
 * in the state's precision; the direct-form-1 state for 32s samples
 * exchanges them as 32-bit integers (Set converts exactly; Get rounds to
 * nearest with ties to even and saturates). After Init the delay line holds
 * the values Init was given (or zeros); after a call, the history of the
 * signal so far. Set with a null pDlyLine clears it, as Init does. Get and
 * Set are inverse: Set then Get returns the values set, Get then Set leaves
 * the state as it was (the 32s direct form 1 to the rounding of Get). Each
 * function accepts the states of the filtering forms of its suffix (_32f:
 * AR, BiQuad and direct-form-1 states; 64f_32s: AR and BiQuad; 64f_DF1_32s:
 * direct form 1). Checks: null pState (Get: or pDlyLine) gives
 * qspStsNullPtr, then a state of another kind qspStsBadRecord; nothing is
 * written on error. Get only reads the state; Set writes it, so no other
 * call may use that state meanwhile.
 */
QspStatus qspsIIRGetDlyLine_64fc(const QspsIIRState_64fc* pState, Qsp64fc* pDlyLine);
QspStatus qspsIIRGetDlyLine_64f(const QspsIIRState_64f* pState, Qsp64f* pDlyLine);
QspStatus qspsIIRGetDlyLine_32fc(const QspsIIRState_32fc* pState, Qsp32fc* pDlyLine);
QspStatus qspsIIRGetDlyLine_32f(const QspsIIRState_32f* pState, Qsp32f* pDlyLine);
QspStatus qspsIIRGetDlyLine64fc_32sc(const QspsIIRState64fc_32sc* pState, Qsp64fc* pDlyLine);
QspStatus qspsIIRGetDlyLine64fc_32fc(const QspsIIRState64fc_32fc* pState, Qsp64fc* pDlyLine);
QspStatus qspsIIRGetDlyLine64fc_16sc(const QspsIIRState64fc_16sc* pState, Qsp64fc* pDlyLine);
QspStatus qspsIIRGetDlyLine64f_DF1_32s(const QspsIIRState64f_32s* pState, Qsp32s* pDlyLine);
QspStatus qspsIIRGetDlyLine64f_32s(const QspsIIRState64f_32s* pState, Qsp64f* pDlyLine);
QspStatus qspsIIRGetDlyLine64f_32f(const QspsIIRState64f_32f* pState, Qsp64f* pDlyLine);
QspStatus qspsIIRGetDlyLine64f_16s(const QspsIIRState64f_16s* pState, Qsp64f* pDlyLine);
QspStatus qspsIIRGetDlyLine32fc_16sc(const QspsIIRState32fc_16sc* pState, Qsp32fc* pDlyLine);
QspStatus qspsIIRGetDlyLine32f_16s(const QspsIIRState32f_16s* pState, Qsp32f* pDlyLine);
QspStatus qspsIIRSetDlyLine_64fc(QspsIIRState_64fc* pState, const Qsp64fc* pDlyLine);
QspStatus qspsIIRSetDlyLine_64f(QspsIIRState_64f* pState, const Qsp64f* pDlyLine);
QspStatus qspsIIRSetDlyLine_32fc(QspsIIRState_32fc* pState, const Qsp32fc* pDlyLine);
QspStatus qspsIIRSetDlyLine_32f(QspsIIRState_32f* pState, const Qsp32f* pDlyLine);
QspStatus qspsIIRSetDlyLine64fc_32sc(QspsIIRState64fc_32sc* pState, const Qsp64fc* pDlyLine);
QspStatus qspsIIRSetDlyLine64fc_32fc(QspsIIRState64fc_32fc* pState, const Qsp64fc* pDlyLine);
QspStatus qspsIIRSetDlyLine64fc_16sc(QspsIIRState64fc_16sc* pState, const Qsp64fc* pDlyLine);
QspStatus qspsIIRSetDlyLine64f_DF1_32s(QspsIIRState64f_32s* pState, const Qsp32s* pDlyLine);
QspStatus qspsIIRSetDlyLine64f_32s(QspsIIRState64f_32s* pState, const Qsp64f* pDlyLine);
QspStatus qspsIIRSetDlyLine64f_32f(QspsIIRState64f_32f* pState, const Qsp64f* pDlyLine);
QspStatus qspsIIRSetDlyLine64f_16s(QspsIIRState64f_16s* pState, const Qsp64f* pDlyLine);
QspStatus qspsIIRSetDlyLine32fc_16sc(QspsIIRState32fc_16sc* pState, const Qsp32fc* pDlyLine);
QspStatus qspsIIRSetDlyLine32f_16s(QspsIIRState32f_16s* pState, const Qsp32f* pDlyLine);

/* WinBartlett ------------------------------------------------------------- */
/*
 * Bartlett (triangle) window: pDst[n] = pSrc[n] w(n), w(n) = 2n/(N-1) for
 * n up to the centre, N = len >= 3. The slope 2/(N-1) is formed once and
 * each weight is n times it (within 2^-52). N = 3 sets both end elements
 * to 0, whatever they hold, and keeps the middle one.
 * Every window is symmetric, w(n) = w(N-1-n), N = len; each weight serves
 * element n and element N-1-n, and the centre element of an odd length
 * has weight 1: it is copied unchanged (in place: left alone). Complex
 * elements: both parts times the same real weight. 64f/64fc multiply in
 * double, 32f/32fc by the weight rounded to single precision, 16s/16sc
 * form x w in double and round to nearest with ties to even, saturating.
 * _I forms work in place; otherwise pSrc and pDst are one vector or do not
 * overlap. Checks: pSrc, then pDst null (qspStsNullPtr), then len below
 * the shortest (qspStsBadSize); nothing is written on error. Reentrant.
 */
QspStatus qspsWinBartlett_16s(const Qsp16s* pSrc, Qsp16s* pDst, int len);
QspStatus qspsWinBartlett_16s_I(Qsp16s* pSrcDst, int len);
QspStatus qspsWinBartlett_16sc(const Qsp16sc* pSrc, Qsp16sc* pDst, int len);
QspStatus qspsWinBartlett_16sc_I(Qsp16sc* pSrcDst, int len);
QspStatus qspsWinBartlett_32f(const Qsp32f* pSrc, Qsp32f* pDst, int len);
QspStatus qspsWinBartlett_32f_I(Qsp32f* pSrcDst, int len);
QspStatus qspsWinBartlett_32fc(const Qsp32fc* pSrc, Qsp32fc* pDst, int len);
QspStatus qspsWinBartlett_32fc_I(Qsp32fc* pSrcDst, int len);
QspStatus qspsWinBartlett_64f(const Qsp64f* pSrc, Qsp64f* pDst, int len);
QspStatus qspsWinBartlett_64f_I(Qsp64f* pSrcDst, int len);
QspStatus qspsWinBartlett_64fc(const Qsp64fc* pSrc, Qsp64fc* pDst, int len);
QspStatus qspsWinBartlett_64fc_I(Qsp64fc* pSrcDst, int len);

/* WinHann ----------------------------------------------------------------- */
/*
 * Hann window: pDst[n] = pSrc[n] w(n), w(n) = 0.5 - 0.5 cos(2 pi n/(N-1)),
 * N = len >= 3 (N = 3: weights 0, 1, 0).
 * The weights come from the recurrence cos(k+1)x = 2 cos x cos kx -
 * cos(k-1)x seeded with cos t and cos 2t, t = 2 pi/(N-1) formed as
 * 6.283185307179586 * (1/(N-1)): two cosines per call. Weight error
 * against the formula: within 2^-51 + N^2 2^-59 (the recurrence's drift
 * grows with N^2: 2.4e-7 at N = 10^6).
 * Every window is symmetric, w(n) = w(N-1-n), N = len; each weight serves
 * element n and element N-1-n, and the centre element of an odd length
 * has weight 1: it is copied unchanged (in place: left alone). Complex
 * elements: both parts times the same real weight. 64f/64fc multiply in
 * double, 32f/32fc by the weight rounded to single precision, 16s/16sc
 * form x w in double and round to nearest with ties to even, saturating.
 * _I forms work in place; otherwise pSrc and pDst are one vector or do not
 * overlap. Checks: pSrc, then pDst null (qspStsNullPtr), then len below
 * the shortest (qspStsBadSize); nothing is written on error. Reentrant.
 */
QspStatus qspsWinHann_16s(const Qsp16s* pSrc, Qsp16s* pDst, int len);
QspStatus qspsWinHann_16s_I(Qsp16s* pSrcDst, int len);
QspStatus qspsWinHann_16sc(const Qsp16sc* pSrc, Qsp16sc* pDst, int len);
QspStatus qspsWinHann_16sc_I(Qsp16sc* pSrcDst, int len);
QspStatus qspsWinHann_32f(const Qsp32f* pSrc, Qsp32f* pDst, int len);
QspStatus qspsWinHann_32f_I(Qsp32f* pSrcDst, int len);
QspStatus qspsWinHann_32fc(const Qsp32fc* pSrc, Qsp32fc* pDst, int len);
QspStatus qspsWinHann_32fc_I(Qsp32fc* pSrcDst, int len);
QspStatus qspsWinHann_64f(const Qsp64f* pSrc, Qsp64f* pDst, int len);
QspStatus qspsWinHann_64f_I(Qsp64f* pSrcDst, int len);
QspStatus qspsWinHann_64fc(const Qsp64fc* pSrc, Qsp64fc* pDst, int len);
QspStatus qspsWinHann_64fc_I(Qsp64fc* pSrcDst, int len);

/* WinHamming -------------------------------------------------------------- */
/*
 * Hamming window: pDst[n] = pSrc[n] w(n), w(n) = 0.54 - 0.46
 * cos(2 pi n/(N-1)), N = len >= 3.
 * The weights come from the recurrence cos(k+1)x = 2 cos x cos kx -
 * cos(k-1)x seeded with cos t and cos 2t, t = 2 pi/(N-1) formed as
 * 6.283185307179586 * (1/(N-1)): two cosines per call. Weight error
 * against the formula: within 2^-51 + N^2 2^-59 (the recurrence's drift
 * grows with N^2: 2.4e-7 at N = 10^6).
 * Every window is symmetric, w(n) = w(N-1-n), N = len; each weight serves
 * element n and element N-1-n, and the centre element of an odd length
 * has weight 1: it is copied unchanged (in place: left alone). Complex
 * elements: both parts times the same real weight. 64f/64fc multiply in
 * double, 32f/32fc by the weight rounded to single precision, 16s/16sc
 * form x w in double and round to nearest with ties to even, saturating.
 * _I forms work in place; otherwise pSrc and pDst are one vector or do not
 * overlap. Checks: pSrc, then pDst null (qspStsNullPtr), then len below
 * the shortest (qspStsBadSize); nothing is written on error. Reentrant.
 */
QspStatus qspsWinHamming_16s(const Qsp16s* pSrc, Qsp16s* pDst, int len);
QspStatus qspsWinHamming_16s_I(Qsp16s* pSrcDst, int len);
QspStatus qspsWinHamming_16sc(const Qsp16sc* pSrc, Qsp16sc* pDst, int len);
QspStatus qspsWinHamming_16sc_I(Qsp16sc* pSrcDst, int len);
QspStatus qspsWinHamming_32f(const Qsp32f* pSrc, Qsp32f* pDst, int len);
QspStatus qspsWinHamming_32f_I(Qsp32f* pSrcDst, int len);
QspStatus qspsWinHamming_32fc(const Qsp32fc* pSrc, Qsp32fc* pDst, int len);
QspStatus qspsWinHamming_32fc_I(Qsp32fc* pSrcDst, int len);
QspStatus qspsWinHamming_64f(const Qsp64f* pSrc, Qsp64f* pDst, int len);
QspStatus qspsWinHamming_64f_I(Qsp64f* pSrcDst, int len);
QspStatus qspsWinHamming_64fc(const Qsp64fc* pSrc, Qsp64fc* pDst, int len);
QspStatus qspsWinHamming_64fc_I(Qsp64fc* pSrcDst, int len);

/* WinBlackman ------------------------------------------------------------- */
/*
 * Blackman window with parameter alpha: pDst[n] = pSrc[n] w(n), w(n) =
 * (alpha+1)/2 - 0.5 cos(2 pi n/(N-1)) - (alpha/2) cos(4 pi n/(N-1)), N = len >= 3.
 * alpha is a double for 64f/64fc, a float otherwise, and is used as given.
 * Evaluated as (1 - c)(0.5 + alpha (1 + c)), c = cos(2 pi n/(N-1)), so the
 * end weights are exactly 0. N = 3 sets both end elements to 0, whatever
 * they hold, and keeps the middle one.
 * The weights come from the recurrence cos(k+1)x = 2 cos x cos kx -
 * cos(k-1)x seeded with cos t and cos 2t, t = 2 pi/(N-1) formed as
 * 6.283185307179586 * (1/(N-1)): two cosines per call. Weight error
 * against the formula: within 2^-51 + N^2 2^-59 (the recurrence's drift
 * grows with N^2: 2.4e-7 at N = 10^6), times 1 + 2|alpha|.
 * Every window is symmetric, w(n) = w(N-1-n), N = len; each weight serves
 * element n and element N-1-n, and the centre element of an odd length
 * has weight 1: it is copied unchanged (in place: left alone). Complex
 * elements: both parts times the same real weight. 64f/64fc multiply in
 * double, 32f/32fc by the weight rounded to single precision, 16s/16sc
 * form x w in double and round to nearest with ties to even, saturating.
 * _I forms work in place; otherwise pSrc and pDst are one vector or do not
 * overlap. Checks: pSrc, then pDst null (qspStsNullPtr), then len below
 * the shortest (qspStsBadSize); nothing is written on error. Reentrant.
 */
QspStatus qspsWinBlackman_16s(const Qsp16s* pSrc, Qsp16s* pDst, int len, Qsp32f alpha);
QspStatus qspsWinBlackman_16s_I(Qsp16s* pSrcDst, int len, Qsp32f alpha);
QspStatus qspsWinBlackman_16sc(const Qsp16sc* pSrc, Qsp16sc* pDst, int len, Qsp32f alpha);
QspStatus qspsWinBlackman_16sc_I(Qsp16sc* pSrcDst, int len, Qsp32f alpha);
QspStatus qspsWinBlackman_32f(const Qsp32f* pSrc, Qsp32f* pDst, int len, Qsp32f alpha);
QspStatus qspsWinBlackman_32f_I(Qsp32f* pSrcDst, int len, Qsp32f alpha);
QspStatus qspsWinBlackman_32fc(const Qsp32fc* pSrc, Qsp32fc* pDst, int len, Qsp32f alpha);
QspStatus qspsWinBlackman_32fc_I(Qsp32fc* pSrcDst, int len, Qsp32f alpha);
QspStatus qspsWinBlackman_64f(const Qsp64f* pSrc, Qsp64f* pDst, int len, Qsp64f alpha);
QspStatus qspsWinBlackman_64f_I(Qsp64f* pSrcDst, int len, Qsp64f alpha);
QspStatus qspsWinBlackman_64fc(const Qsp64fc* pSrc, Qsp64fc* pDst, int len, Qsp64f alpha);
QspStatus qspsWinBlackman_64fc_I(Qsp64fc* pSrcDst, int len, Qsp64f alpha);

/* WinBlackmanStd ---------------------------------------------------------- */
/*
 * Standard Blackman window: WinBlackman with alpha = -0.16 (the double
 * nearest it, for every form), N = len >= 3; N = 3 zeroes both ends.
 * The weights come from the recurrence cos(k+1)x = 2 cos x cos kx -
 * cos(k-1)x seeded with cos t and cos 2t, t = 2 pi/(N-1) formed as
 * 6.283185307179586 * (1/(N-1)): two cosines per call. Weight error
 * against the formula: within 2^-51 + N^2 2^-59 (the recurrence's drift
 * grows with N^2: 2.4e-7 at N = 10^6), times 1.32.
 * Every window is symmetric, w(n) = w(N-1-n), N = len; each weight serves
 * element n and element N-1-n, and the centre element of an odd length
 * has weight 1: it is copied unchanged (in place: left alone). Complex
 * elements: both parts times the same real weight. 64f/64fc multiply in
 * double, 32f/32fc by the weight rounded to single precision, 16s/16sc
 * form x w in double and round to nearest with ties to even, saturating.
 * _I forms work in place; otherwise pSrc and pDst are one vector or do not
 * overlap. Checks: pSrc, then pDst null (qspStsNullPtr), then len below
 * the shortest (qspStsBadSize); nothing is written on error. Reentrant.
 */
QspStatus qspsWinBlackmanStd_16s(const Qsp16s* pSrc, Qsp16s* pDst, int len);
QspStatus qspsWinBlackmanStd_16s_I(Qsp16s* pSrcDst, int len);
QspStatus qspsWinBlackmanStd_16sc(const Qsp16sc* pSrc, Qsp16sc* pDst, int len);
QspStatus qspsWinBlackmanStd_16sc_I(Qsp16sc* pSrcDst, int len);
QspStatus qspsWinBlackmanStd_32f(const Qsp32f* pSrc, Qsp32f* pDst, int len);
QspStatus qspsWinBlackmanStd_32f_I(Qsp32f* pSrcDst, int len);
QspStatus qspsWinBlackmanStd_32fc(const Qsp32fc* pSrc, Qsp32fc* pDst, int len);
QspStatus qspsWinBlackmanStd_32fc_I(Qsp32fc* pSrcDst, int len);
QspStatus qspsWinBlackmanStd_64f(const Qsp64f* pSrc, Qsp64f* pDst, int len);
QspStatus qspsWinBlackmanStd_64f_I(Qsp64f* pSrcDst, int len);
QspStatus qspsWinBlackmanStd_64fc(const Qsp64fc* pSrc, Qsp64fc* pDst, int len);
QspStatus qspsWinBlackmanStd_64fc_I(Qsp64fc* pSrcDst, int len);

/* WinBlackmanOpt ---------------------------------------------------------- */
/*
 * Optimal Blackman window: WinBlackman with alpha = -0.25/cos^2(pi/(N-1)),
 * formed in double as t = 0.5/cos(pi/(N-1)), alpha = -(t t), pi =
 * 3.141592653589793; N = len >= 4 (3 is qspStsBadSize here).
 * The weights come from the recurrence cos(k+1)x = 2 cos x cos kx -
 * cos(k-1)x seeded with cos t and cos 2t, t = 2 pi/(N-1) formed as
 * 6.283185307179586 * (1/(N-1)): two cosines per call. Weight error
 * against the formula: within 2^-51 + N^2 2^-59 (the recurrence's drift
 * grows with N^2: 2.4e-7 at N = 10^6), times 1 + 2|alpha|.
 * Every window is symmetric, w(n) = w(N-1-n), N = len; each weight serves
 * element n and element N-1-n, and the centre element of an odd length
 * has weight 1: it is copied unchanged (in place: left alone). Complex
 * elements: both parts times the same real weight. 64f/64fc multiply in
 * double, 32f/32fc by the weight rounded to single precision, 16s/16sc
 * form x w in double and round to nearest with ties to even, saturating.
 * _I forms work in place; otherwise pSrc and pDst are one vector or do not
 * overlap. Checks: pSrc, then pDst null (qspStsNullPtr), then len below
 * the shortest (qspStsBadSize); nothing is written on error. Reentrant.
 */
QspStatus qspsWinBlackmanOpt_16s(const Qsp16s* pSrc, Qsp16s* pDst, int len);
QspStatus qspsWinBlackmanOpt_16s_I(Qsp16s* pSrcDst, int len);
QspStatus qspsWinBlackmanOpt_16sc(const Qsp16sc* pSrc, Qsp16sc* pDst, int len);
QspStatus qspsWinBlackmanOpt_16sc_I(Qsp16sc* pSrcDst, int len);
QspStatus qspsWinBlackmanOpt_32f(const Qsp32f* pSrc, Qsp32f* pDst, int len);
QspStatus qspsWinBlackmanOpt_32f_I(Qsp32f* pSrcDst, int len);
QspStatus qspsWinBlackmanOpt_32fc(const Qsp32fc* pSrc, Qsp32fc* pDst, int len);
QspStatus qspsWinBlackmanOpt_32fc_I(Qsp32fc* pSrcDst, int len);
QspStatus qspsWinBlackmanOpt_64f(const Qsp64f* pSrc, Qsp64f* pDst, int len);
QspStatus qspsWinBlackmanOpt_64f_I(Qsp64f* pSrcDst, int len);
QspStatus qspsWinBlackmanOpt_64fc(const Qsp64fc* pSrc, Qsp64fc* pDst, int len);
QspStatus qspsWinBlackmanOpt_64fc_I(Qsp64fc* pSrcDst, int len);

/* WinKaiser --------------------------------------------------------------- */
/*
 * Kaiser window: pDst[n] = pSrc[n] w(n), w(n) = I0(beta sqrt(1 - r^2)) /
 * I0(beta), r = (2n - (N-1))/(N-1), beta = 0.5 |alpha| (N-1) formed in
 * double, N = len >= 1; beta above 308 gives qspStsBadWindowParam (after
 * the pointer and length checks; nothing written). N = 1 copies the
 * element. alpha is a double for 64f/64fc, a float otherwise.
 * I0 is the polynomial approximation: below 4, with t = (x/4)^2,
 * ((((((0.0008267816 t + 0.0075942968) t + 0.0713758187) t + 0.4443189384)
 * t + 1.777809969) t + 3.9999959541) t + 4.0000001935) t + 0.9999999985;
 * from 4 on, e^x / sqrt(x) P(4/x) with P of degree 12 (coefficients
 * 0.0051246015, -0.0366694767, 0.1113315511, -0.1867783276, 0.1895476618,
 * -0.1209940805, 0.0495811118, -0.0128314822, 0.0022585672, 0.00026,
 * 0.0017623668, 0.0124667783, 0.3989422809, highest power first). Against
 * the true I0 the approximation is within 1.6e-9 below 4 and 5.6e-6 from
 * 4 on. 64f, 64fc, 16s and 16sc evaluate it in double and multiply by
 * 1/I0(beta) (within (32 + 4 beta) 2^-53 of the approximation); 32f and
 * 32fc in single precision with e^x and e^-beta paired into e^(x-beta), so
 * that beta up to 308 stays in range (within 2^-19 of the weight's size).
 * Every window is symmetric, w(n) = w(N-1-n), N = len; each weight serves
 * element n and element N-1-n, and the centre element of an odd length
 * has weight 1: it is copied unchanged (in place: left alone). Complex
 * elements: both parts times the same real weight. 64f/64fc multiply in
 * double, 32f/32fc by the weight rounded to single precision, 16s/16sc
 * form x w in double and round to nearest with ties to even, saturating.
 * _I forms work in place; otherwise pSrc and pDst are one vector or do not
 * overlap. Checks: pSrc, then pDst null (qspStsNullPtr), then len below
 * the shortest (qspStsBadSize); nothing is written on error. Reentrant.
 */
QspStatus qspsWinKaiser_16s(const Qsp16s* pSrc, Qsp16s* pDst, int len, Qsp32f alpha);
QspStatus qspsWinKaiser_16s_I(Qsp16s* pSrcDst, int len, Qsp32f alpha);
QspStatus qspsWinKaiser_16sc(const Qsp16sc* pSrc, Qsp16sc* pDst, int len, Qsp32f alpha);
QspStatus qspsWinKaiser_16sc_I(Qsp16sc* pSrcDst, int len, Qsp32f alpha);
QspStatus qspsWinKaiser_32f(const Qsp32f* pSrc, Qsp32f* pDst, int len, Qsp32f alpha);
QspStatus qspsWinKaiser_32f_I(Qsp32f* pSrcDst, int len, Qsp32f alpha);
QspStatus qspsWinKaiser_32fc(const Qsp32fc* pSrc, Qsp32fc* pDst, int len, Qsp32f alpha);
QspStatus qspsWinKaiser_32fc_I(Qsp32fc* pSrcDst, int len, Qsp32f alpha);
QspStatus qspsWinKaiser_64f(const Qsp64f* pSrc, Qsp64f* pDst, int len, Qsp64f alpha);
QspStatus qspsWinKaiser_64f_I(Qsp64f* pSrcDst, int len, Qsp64f alpha);
QspStatus qspsWinKaiser_64fc(const Qsp64fc* pSrc, Qsp64fc* pDst, int len, Qsp64f alpha);
QspStatus qspsWinKaiser_64fc_I(Qsp64fc* pSrcDst, int len, Qsp64f alpha);

/* Tone -------------------------------------------------------------------- */
/*
 * Tone: pDst[n] = magn cos(2 pi rFreq n + phase), n = 0 .. len-1; complex
 * forms magn (cos, sin) of the same argument. *pPhase is the starting
 * phase on entry and, on success, the phase at which the next call
 * continues: p = phase + len (2 pi rFreq) in double, less trunc(p (1/2 pi))
 * whole turns (2 pi = 6.283185307179586, 1/2 pi = 0.15915494309189535),
 * rounded to the phase's type, and 0 when that is not in [0, 2 pi). magn,
 * rFreq and the phase are double for 64f/64fc, float otherwise.
 * Checks, in this order: pPhase null (qspStsNullPtr), magn not above 0
 * (qspStsBadToneMagnitude), rFreq below 0 or not below 0.5
 * (qspStsBadToneFrequency), the phase widened to double below 0 or not
 * below 2 pi (qspStsBadTonePhase), pDst null, len 0 or less. The range
 * tests are ordered comparisons, so NaN passes them. Nothing is written on
 * error, the phase neither.
 * hint 1 (qspAlgHintFast) selects the fast path, every other value the
 * accurate one. Accurate: with w = 2 pi rFreq, x(0) = magn cos phase and
 * x(1) = magn cos(phase + w) (the cosines of phase, phase + w and w are
 * computed once), x(n) = 2 cos w x(n-1) - x(n-2) for n = 2, 3, and from
 * n = 4 on x(n) = 2 cos 2w x(n-2) - x(n-4), 2 cos 2w = (2 cos w)^2 - 2;
 * values stay in double and are rounded when stored. The recurrence is
 * seeded afresh every 16 elements from phasors turned by 16 w, which are
 * recomputed from the exact argument every 256 elements. Fast: blocks of
 * 1024 elements, each from one sine-cosine pair, turned every 16 elements
 * and multiplied by a 16-entry table. Both paths are within 2^-44 magn of
 * the exact values at any length and frequency (measured over 10^6
 * elements: 2^-45.1 accurate, 2^-47 fast), before the rounding to the
 * element type; integer forms round to nearest with ties to even and
 * saturate. Reentrant: the phase variable is the only state.
 */
QspStatus qspsTone_16s(Qsp16s* pDst, int len, Qsp32f magn, Qsp32f rFreq, Qsp32f* pPhase, QspHintAlgorithm hint);
QspStatus qspsTone_16sc(Qsp16sc* pDst, int len, Qsp32f magn, Qsp32f rFreq, Qsp32f* pPhase, QspHintAlgorithm hint);
QspStatus qspsTone_32f(Qsp32f* pDst, int len, Qsp32f magn, Qsp32f rFreq, Qsp32f* pPhase, QspHintAlgorithm hint);
QspStatus qspsTone_32fc(Qsp32fc* pDst, int len, Qsp32f magn, Qsp32f rFreq, Qsp32f* pPhase, QspHintAlgorithm hint);
QspStatus qspsTone_64f(Qsp64f* pDst, int len, Qsp64f magn, Qsp64f rFreq, Qsp64f* pPhase, QspHintAlgorithm hint);
QspStatus qspsTone_64fc(Qsp64fc* pDst, int len, Qsp64f magn, Qsp64f rFreq, Qsp64f* pPhase, QspHintAlgorithm hint);

/* Triangle ---------------------------------------------------------------- */
/*
 * Triangle wave: pDst[n] = magn tri(u(n)), u(n) = phase/2 pi + rFreq n mod
 * 1 (the fraction of a period), asym in [-pi, pi) setting the shares of
 * the falling and rising parts: fall = (pi - asym)/2 pi, tri(u) = 1 -
 * 2u/fall for u < fall and -1 + 2(u - fall)/(1 - fall) from fall on. The
 * wave stands at +magn at phase 0, falls to -magn and rises back; asym = 0
 * gives the symmetric wave, which meets the cosine at every quarter
 * period, asym near pi a rising sawtooth, -pi a falling one. Complex
 * forms: the imaginary part is the same wave a quarter period later,
 * magn tri(u - 1/4) (the sine's counterpart). u(n) is formed in double
 * with the whole turns of rFreq n removed exactly; integer forms round to
 * nearest with ties to even and saturate.
 * *pPhase: the starting phase; on success the phase after len elements,
 * p - floor(p (1/2 pi)) 2 pi with p = phase + len (2 pi rFreq) in double,
 * rounded to the phase's type. magn, rFreq, asym and the phase are double
 * for 64f/64fc, float otherwise. Checks, in this order: pPhase null
 * (qspStsNullPtr), magn not above 0 (qspStsBadTriangleMagnitude), rFreq
 * below 0 or not below 0.5 (qspStsBadTriangleFrequency), asym below -pi or
 * not below pi, compared in its own precision with pi =
 * 3.141592653589793 rounded to it (qspStsBadTriangleAsymmetry: the float
 * nearest -pi passes, the one nearest pi does not), the phase widened to
 * double below 0 or not below 2 pi = 6.283185307179586
 * (qspStsBadTrianglePhase), pDst null, len 0 or less. NaN passes the
 * ordered comparisons. Nothing is written on error, the phase neither.
 */
QspStatus qspsTriangle_16s(Qsp16s* pDst, int len, Qsp32f magn, Qsp32f rFreq, Qsp32f asym, Qsp32f* pPhase);
QspStatus qspsTriangle_16sc(Qsp16sc* pDst, int len, Qsp32f magn, Qsp32f rFreq, Qsp32f asym, Qsp32f* pPhase);
QspStatus qspsTriangle_32f(Qsp32f* pDst, int len, Qsp32f magn, Qsp32f rFreq, Qsp32f asym, Qsp32f* pPhase);
QspStatus qspsTriangle_32fc(Qsp32fc* pDst, int len, Qsp32f magn, Qsp32f rFreq, Qsp32f asym, Qsp32f* pPhase);
QspStatus qspsTriangle_64f(Qsp64f* pDst, int len, Qsp64f magn, Qsp64f rFreq, Qsp64f asym, Qsp64f* pPhase);
QspStatus qspsTriangle_64fc(Qsp64fc* pDst, int len, Qsp64f magn, Qsp64f rFreq, Qsp64f asym, Qsp64f* pPhase);

/* Goertz ------------------------------------------------------------------ */
/*
 * Goertzel: one bin of the DFT at relative frequency rFreq in [0, 1): *pVal =
 * sum over n < len of pSrc[n] e^(-2 pi i rFreq n) (rFreq outside, NaN included,
 * gives qspStsBadRelFreq). The sum is formed in double precision with phase
 * factors taken afresh from the exactly reduced phase frac(rFreq n) every
 * 2048 samples, so its error stays near the rounding of the sums however
 * long the vector and wherever rFreq lies (unlike the second-order
 * recurrence); the floating forms round the bin to their type. The integer
 * forms multiply the bin by 2^-scaleFactor, round to nearest with ties to
 * even and saturate each part. Checks: pointers, len < 1 (qspStsBadSize),
 * then rFreq; the _L forms take a 64-bit length, check it first (then the
 * pointers) and run in one pass.
 */
QspStatus qspsGoertz_16s_Sfs(const Qsp16s* pSrc, int len, Qsp16sc* pVal, Qsp32f rFreq, int scaleFactor);
QspStatus qspsGoertz_16sc_Sfs(const Qsp16sc* pSrc, int len, Qsp16sc* pVal, Qsp32f rFreq, int scaleFactor);
QspStatus qspsGoertz_32s_Sfs(const Qsp32s* pSrc, int len, Qsp32sc* pVal, Qsp32f rFreq, int scaleFactor);
QspStatus qspsGoertz_32sc_Sfs(const Qsp32sc* pSrc, int len, Qsp32sc* pVal, Qsp32f rFreq, int scaleFactor);
QspStatus qspsGoertz_32f(const Qsp32f* pSrc, int len, Qsp32fc* pVal, Qsp32f rFreq);
QspStatus qspsGoertz_32fc(const Qsp32fc* pSrc, int len, Qsp32fc* pVal, Qsp32f rFreq);
QspStatus qspsGoertz_64f(const Qsp64f* pSrc, int len, Qsp64fc* pVal, Qsp64f rFreq);
QspStatus qspsGoertz_64fc(const Qsp64fc* pSrc, int len, Qsp64fc* pVal, Qsp64f rFreq);
QspStatus qspsGoertz_32f_L(const Qsp32f* pSrc, Qsp64s len, Qsp32fc* pVal, Qsp32f rFreq);
QspStatus qspsGoertz_32fc_L(const Qsp32fc* pSrc, Qsp64s len, Qsp32fc* pVal, Qsp32f rFreq);
QspStatus qspsGoertz_64f_L(const Qsp64f* pSrc, Qsp64s len, Qsp64fc* pVal, Qsp64f rFreq);
QspStatus qspsGoertz_64fc_L(const Qsp64fc* pSrc, Qsp64s len, Qsp64fc* pVal, Qsp64f rFreq);

/* Hilbert ----------------------------------------------------------------- */
/*
 * Analytic signal of a real block by the Hilbert transform: pDst[n] = x[n] + i
 * h[n] for the record's length L, where h is the inverse DFT of
 * -i sgn(k) X[k], X = DFT(x), sgn(k) = +1 for 0 < k < L/2, -1 for
 * L/2 < k < L, 0 for k = 0 and k = L/2: the inverse DFT of X[k] H[k] with
 * H = 1 at 0 and L/2, 2 below L/2, 0 above. The real part is written from
 * x itself. HilbertGetSize reports the record bytes and one buffer size that
 * serves both Init and the transforms (64 bytes of slack each; any
 * alignment). The record holds a real DFT record of length L (identifiers 27
 * for 32f, 28 for 64f); GetSize and Init refuse lengths beyond the real
 * DFT's limits as it does. 16s32fc transforms a 16-bit signal in single
 * precision; 16s16sc_Sfs scales both parts by 2^-scaleFactor, rounds to
 * nearest with ties to even and saturates. pSrc and pDst must not overlap.
 * Checks: GetSize and Init: pointers (Init: ppSpec, pSpec), len < 1, then a
 * null pBuffer that Init needs for its tables (the identifier is written
 * last); transforms: pSrc, pDst, the record (qspStsNullPtr), its identifier
 * (qspStsBadRecord), a null pBuffer.
 */
QspStatus qspsHilbertGetSize_32f32fc(int len, QspHintAlgorithm hint, int* pSpecSize, int* pBufferSize);
QspStatus qspsHilbertGetSize_64f64fc(int len, QspHintAlgorithm hint, int* pSpecSize, int* pBufferSize);
QspStatus qspsHilbertInit_32f32fc(QspsHilbertSpec_32f** ppSpec, int len, QspHintAlgorithm hint, Qsp8u* pSpec, Qsp8u* pBuffer);
QspStatus qspsHilbertInit_64f64fc(QspsHilbertSpec_64f** ppSpec, int len, QspHintAlgorithm hint, Qsp8u* pSpec, Qsp8u* pBuffer);
QspStatus qspsHilbert_32f32fc(const Qsp32f* pSrc, Qsp32fc* pDst, const QspsHilbertSpec_32f* pSpec, Qsp8u* pBuffer);
QspStatus qspsHilbert_64f64fc(const Qsp64f* pSrc, Qsp64fc* pDst, const QspsHilbertSpec_64f* pSpec, Qsp8u* pBuffer);
QspStatus qspsHilbert_16s32fc(const Qsp16s* pSrc, Qsp32fc* pDst, const QspsHilbertSpec_32f* pSpec, Qsp8u* pBuffer);
QspStatus qspsHilbert_16s16sc_Sfs(const Qsp16s* pSrc, Qsp16sc* pDst, const QspsHilbertSpec_32f* pSpec, Qsp8u* pBuffer, int scaleFactor);

/* WTHaar ------------------------------------------------------------------ */
/*
 * One level of the Haar wavelet transform. Fwd: pDstLow[k] = (x[2k] + x[2k+1])/2
 * and pDstHigh[k] = (x[2k+1] - x[2k])/2 for k < len/2 (odd len: the last value
 * goes to pDstLow[(len-1)/2] alone, halved); Inv (len the output length):
 * x[2k] = low[k] - high[k], x[2k+1] = low[k] + high[k], and for odd len
 * x[len-1] = 2 low[(len-1)/2]. The 16s forms form the exact integer sums and
 * differences and apply the scale-factor rule with the halving (Fwd) or
 * doubling (the odd last value of Inv) folded into the shift: a result is
 * v 2^-(scaleFactor+1) (Fwd), rounded to nearest with ties to even and
 * saturated; Fwd with scaleFactor -1 and Inv with 1 are lossless while the
 * sums fit in 16 bits. Sources and destinations must not overlap. Checks:
 * pointers, then len < 1.
 */
QspStatus qspsWTHaarFwd_16s_Sfs(const Qsp16s* pSrc, Qsp16s* pDstLow, Qsp16s* pDstHigh, int len, int scaleFactor);
QspStatus qspsWTHaarInv_16s_Sfs(const Qsp16s* pSrcLow, const Qsp16s* pSrcHigh, Qsp16s* pDst, int len, int scaleFactor);
QspStatus qspsWTHaarFwd_32f(const Qsp32f* pSrc, Qsp32f* pDstLow, Qsp32f* pDstHigh, int len);
QspStatus qspsWTHaarInv_32f(const Qsp32f* pSrcLow, const Qsp32f* pSrcHigh, Qsp32f* pDst, int len);
QspStatus qspsWTHaarFwd_64f(const Qsp64f* pSrc, Qsp64f* pDstLow, Qsp64f* pDstHigh, int len);
QspStatus qspsWTHaarInv_64f(const Qsp64f* pSrcLow, const Qsp64f* pSrcHigh, Qsp64f* pDst, int len);

/* WTFwd ------------------------------------------------------------------- */
/*
 * Wavelet analysis by a two-channel filter bank: each channel filters the
 * source with its taps h (length N, offset a in [-1, N-1]) and keeps every
 * second output, out[k] = sum over j < N of h[j] x[2k - a - j], so dstLen
 * values of pDstLow and pDstHigh come from 2*dstLen source values; a = -1
 * uses x[2k+1] as the newest sample, a larger a delays the channel. Samples
 * before the block come from the channel's delay line, max(0, N + a - 1)
 * values (oldest first, zeros after Init), which each call advances, so
 * consecutive calls continue a stream. The state (identifier 29) keeps
 * copies of the taps, the offsets and the lines in the caller's block
 * (pBuf, at least *pStateSize bytes, any alignment; the state is updated
 * by every call: one stream per state). WTFwdGetSize takes the data type
 * qsp32f only (qspStsBadDataType otherwise). The 8s32f, 8u32f, 16s32f and
 * 16u32f forms analyse an integer signal with the same 32f state. With the
 * synthesis of WTInv an orthogonal bank (h1[j] = (-1)^j h0[N-1-j], synthesis
 * taps the time reverse of the analysis taps, same offsets per channel)
 * reconstructs its input delayed by N + a + b samples (b the synthesis
 * offset; Haar with a = b = -1: no delay). Checks: pointers; a filter length
 * below 1 (qspStsBadWaveletParam); the data type; an offset outside
 * [-1, N-1] (qspStsBadWaveletParam); calls: pointers, dstLen < 1, the state's
 * identifier (qspStsBadRecord). Get/SetDlyLine copy both lines out of or
 * into the state (pointers, then the identifier).
 * Example (Haar, no delay):
 *   const Qsp32f c = 0.70710678f, h0[2] = {c, c}, h1[2] = {c, -c};
 *   int size; qspsWTFwdGetSize(qsp32f, 2, -1, 2, -1, &size);
 *   QspsWTFwdState_32f* st; qspsWTFwdInit_32f(&st, h0, 2, -1, h1, 2, -1, qspsMalloc_8u(size));
 *   qspsWTFwd_32f(x, low, high, n / 2, st);
 */
QspStatus qspsWTFwdGetSize(QspDataType dataType, int lenLow, int offsLow, int lenHigh, int offsHigh, int* pStateSize);
QspStatus qspsWTFwdInit_32f(QspsWTFwdState_32f** ppState, const Qsp32f* pTapsLow, int lenLow, int offsLow, const Qsp32f* pTapsHigh, int lenHigh, int offsHigh, Qsp8u* pBuf);
QspStatus qspsWTFwd_32f(const Qsp32f* pSrc, Qsp32f* pDstLow, Qsp32f* pDstHigh, int dstLen, QspsWTFwdState_32f* pState);
QspStatus qspsWTFwd_8s32f(const Qsp8s* pSrc, Qsp32f* pDstLow, Qsp32f* pDstHigh, int dstLen, QspsWTFwdState_32f* pState);
QspStatus qspsWTFwd_8u32f(const Qsp8u* pSrc, Qsp32f* pDstLow, Qsp32f* pDstHigh, int dstLen, QspsWTFwdState_32f* pState);
QspStatus qspsWTFwd_16s32f(const Qsp16s* pSrc, Qsp32f* pDstLow, Qsp32f* pDstHigh, int dstLen, QspsWTFwdState_32f* pState);
QspStatus qspsWTFwd_16u32f(const Qsp16u* pSrc, Qsp32f* pDstLow, Qsp32f* pDstHigh, int dstLen, QspsWTFwdState_32f* pState);
QspStatus qspsWTFwdGetDlyLine_32f(const QspsWTFwdState_32f* pState, Qsp32f* pDlyLow, Qsp32f* pDlyHigh);
QspStatus qspsWTFwdSetDlyLine_32f(QspsWTFwdState_32f* pState, const Qsp32f* pDlyLow, const Qsp32f* pDlyHigh);

/* WTInv ------------------------------------------------------------------- */
/*
 * Wavelet synthesis: the inverse of WTFwd. pSrcLow and pSrcHigh (srcLen values
 * each) are upsampled by 2 (a zero after each value), filtered by the
 * channel's taps g (length N, offset b in [-1, N-1]),
 * y[n] = sum over j < N of g[j] u[n - (b + 1) - j], u[2k] = in[k],
 * and summed into 2*srcLen values of pDst. Values before the block come from
 * the channel's delay line of floor((N + b) / 2) input values (oldest
 * first), advanced by each call. State (identifier 30), sizes, offsets and
 * checks as in WTFwd. The 32f8s, 32f8u, 32f16s and 32f16u forms round each
 * output to nearest (ties to even) and saturate it to the integer type.
 * Example (the Haar synthesis matching WTFwd's): g0 = {c, c}, g1 = {-c, c},
 * offsets -1: qspsWTInv_32f(low, high, x, n / 2, st) returns x.
 */
QspStatus qspsWTInvGetSize(QspDataType dataType, int lenLow, int offsLow, int lenHigh, int offsHigh, int* pStateSize);
QspStatus qspsWTInvInit_32f(QspsWTInvState_32f** ppState, const Qsp32f* pTapsLow, int lenLow, int offsLow, const Qsp32f* pTapsHigh, int lenHigh, int offsHigh, Qsp8u* pBuf);
QspStatus qspsWTInv_32f(const Qsp32f* pSrcLow, const Qsp32f* pSrcHigh, Qsp32f* pDst, int srcLen, QspsWTInvState_32f* pState);
QspStatus qspsWTInv_32f8s(const Qsp32f* pSrcLow, const Qsp32f* pSrcHigh, Qsp8s* pDst, int srcLen, QspsWTInvState_32f* pState);
QspStatus qspsWTInv_32f8u(const Qsp32f* pSrcLow, const Qsp32f* pSrcHigh, Qsp8u* pDst, int srcLen, QspsWTInvState_32f* pState);
QspStatus qspsWTInv_32f16s(const Qsp32f* pSrcLow, const Qsp32f* pSrcHigh, Qsp16s* pDst, int srcLen, QspsWTInvState_32f* pState);
QspStatus qspsWTInv_32f16u(const Qsp32f* pSrcLow, const Qsp32f* pSrcHigh, Qsp16u* pDst, int srcLen, QspsWTInvState_32f* pState);
QspStatus qspsWTInvGetDlyLine_32f(const QspsWTInvState_32f* pState, Qsp32f* pDlyLow, Qsp32f* pDlyHigh);
QspStatus qspsWTInvSetDlyLine_32f(QspsWTInvState_32f* pState, const Qsp32f* pDlyLow, const Qsp32f* pDlyHigh);

/* FIRMR ------------------------------------------------------------------- */
/*
 * Multi-rate FIR filter: the input is upsampled by U = upFactor, filtered by
 * the N = tapsLen taps h and downsampled by D = downFactor,
 *     u[mU + upPhase] = x[m] (zeros between),
 *     y[n] = sum over j < N of h[j] u[nD + downPhase - j],
 * computed in polyphase form: without the inserted zeros and without the
 * outputs that are dropped. Every call takes numIters blocks of D inputs and
 * writes U outputs per block: pSrc holds numIters*D samples, pDst receives
 * numIters*U. The phases are fixed by Init (0 <= upPhase < U, 0 <= downPhase
 * < D); with U = D = 1 the filter is FIRSR's direct form, bit for bit.
 * Delay line: H = ceil((N-1)/U) input samples, oldest first, pDlySrc[H-1] the
 * one just before pSrc[0] (x[-j] = pDlySrc[H-j]); a null pDlySrc means zeros.
 * pDlyDst, when not null, receives the last H samples of delay line and input
 * (for numIters*D >= H: pSrc[numIters*D - H ..]). With pDlySrc == pDlyDst
 * consecutive calls give, bit for bit, the result of one call on the joined
 * input. Latency: the taps' own delay, in output samples of the upsampled
 * rate divided by D. pDst may equal pSrc (in place) or pDlySrc; the delay
 * lines may be the same array; no other overlap.
 * Arithmetic: each output sums its taps' products from the first tap on in
 * the precision of the data (the direct kernels of FIRSR); with D > 1 the
 * taps of an output are summed in D interleaved groups that are then added.
 * 32f_32fc: real taps on complex data. 16s, 16sc: the 32f or 32fc record on
 * 16-bit data, computed in single precision, rounded to nearest (ties to
 * even) and saturated; their delay lines hold 16-bit samples.
 * Sizes: FIRMRGetSize(tapsLen, U, D, taps type qsp32f/qsp64f/qsp32fc/qsp64fc)
 * (and FIRMRGetSize32f_32fc) give the record's and the work buffer's bytes;
 * neither needs alignment. Init builds the record at the first 64-byte
 * boundary of pSpec; it begins with an identifier of its type, which every
 * filtering call checks (qspStsBadRecord). The record is read-only after Init
 * and may serve several streams and threads, each with its own delay lines
 * and work buffer.
 * Checks: GetSize in parameter order: tapsLen < 1 qspStsBadTapCount, a factor
 * < 1 qspStsBadFactor, another type qspStsBadDataType, a null pointer
 * qspStsNullPtr, sizes above 2^31-1 bytes qspStsOverflow. Init: tapsLen,
 * then null pTaps or pSpec, then upFactor, upPhase, downFactor, downPhase (a
 * phase not below its factor, compared unsigned, qspStsBadPhase). Filtering: a
 * null pSpec, then null pSrc, pDst or pBuf (qspStsNullPtr), numIters < 1
 * (qspStsBadSize), then the record's identifier. Nothing is written on an
 * error.
 *     qspsFIRMRGetSize(64, 3, 2, qsp32f, &specSize, &bufSize);
 *     qspsFIRMRInit_32f(taps, 64, 3, 0, 2, 0, (QspsFIRMRSpec_32f*)spec);
 *     Qsp32f dly[21] = {0};                           // ceil(63 / 3)
 *     qspsFIRMR_32f(x, y, 100, spec, dly, dly, buf);  // 200 in, 300 out
 */
QspStatus qspsFIRMRGetSize(int tapsLen, int upFactor, int downFactor, QspDataType tapsType, int* pSpecSize, int* pBufSize);
QspStatus qspsFIRMRGetSize32f_32fc(int tapsLen, int upFactor, int downFactor, int* pSpecSize, int* pBufSize);
QspStatus qspsFIRMRInit_32f(const Qsp32f* pTaps, int tapsLen, int upFactor, int upPhase, int downFactor, int downPhase, QspsFIRMRSpec_32f* pSpec);
QspStatus qspsFIRMRInit_64f(const Qsp64f* pTaps, int tapsLen, int upFactor, int upPhase, int downFactor, int downPhase, QspsFIRMRSpec_64f* pSpec);
QspStatus qspsFIRMRInit_32fc(const Qsp32fc* pTaps, int tapsLen, int upFactor, int upPhase, int downFactor, int downPhase, QspsFIRMRSpec_32fc* pSpec);
QspStatus qspsFIRMRInit_64fc(const Qsp64fc* pTaps, int tapsLen, int upFactor, int upPhase, int downFactor, int downPhase, QspsFIRMRSpec_64fc* pSpec);
QspStatus qspsFIRMRInit32f_32fc(const Qsp32f* pTaps, int tapsLen, int upFactor, int upPhase, int downFactor, int downPhase, QspsFIRMRSpec32f_32fc* pSpec);
QspStatus qspsFIRMR_32f(const Qsp32f* pSrc, Qsp32f* pDst, int numIters, QspsFIRMRSpec_32f* pSpec, const Qsp32f* pDlySrc, Qsp32f* pDlyDst, Qsp8u* pBuf);
QspStatus qspsFIRMR_64f(const Qsp64f* pSrc, Qsp64f* pDst, int numIters, QspsFIRMRSpec_64f* pSpec, const Qsp64f* pDlySrc, Qsp64f* pDlyDst, Qsp8u* pBuf);
QspStatus qspsFIRMR_32fc(const Qsp32fc* pSrc, Qsp32fc* pDst, int numIters, QspsFIRMRSpec_32fc* pSpec, const Qsp32fc* pDlySrc, Qsp32fc* pDlyDst, Qsp8u* pBuf);
QspStatus qspsFIRMR_64fc(const Qsp64fc* pSrc, Qsp64fc* pDst, int numIters, QspsFIRMRSpec_64fc* pSpec, const Qsp64fc* pDlySrc, Qsp64fc* pDlyDst, Qsp8u* pBuf);
QspStatus qspsFIRMR_16s(const Qsp16s* pSrc, Qsp16s* pDst, int numIters, QspsFIRMRSpec_32f* pSpec, const Qsp16s* pDlySrc, Qsp16s* pDlyDst, Qsp8u* pBuf);
QspStatus qspsFIRMR_16sc(const Qsp16sc* pSrc, Qsp16sc* pDst, int numIters, QspsFIRMRSpec_32fc* pSpec, const Qsp16sc* pDlySrc, Qsp16sc* pDlyDst, Qsp8u* pBuf);
QspStatus qspsFIRMR32f_32fc(const Qsp32fc* pSrc, Qsp32fc* pDst, int numIters, QspsFIRMRSpec32f_32fc* pSpec, const Qsp32fc* pDlySrc, Qsp32fc* pDlyDst, Qsp8u* pBuf);

/* FIRGen ------------------------------------------------------------------ */
/*
 * FIR filter design by the window method: N = tapsLen linear-phase taps,
 * symmetric about M = (N-1)/2 (bit for bit), for relative frequencies
 * (fractions of the sampling rate) in (0, 0.5):
 *     lowpass   h[n] = w[n] sin(2 pi f k) / (pi k),   k = n - M (2f at k = 0)
 *     highpass  h[n] = w[n] (d[n] - lowpass(f)),      d the unit sample at M
 *     bandpass  h[n] = w[n] (lowpass(fHigh) - lowpass(fLow))
 *     bandstop  h[n] = w[n] (d[n] - bandpass(fLow, fHigh))
 * w is the library's window of length N chosen by winType: qspWinBartlett
 * (WinBartlett), qspWinBlackman (WinBlackmanStd), qspWinHamming (WinHamming),
 * qspWinHann (WinHann) or qspWinRect (no window). doNormal non-zero scales the
 * taps so that the amplitude is exactly 1 at DC (lowpass, bandstop), at half
 * the sampling rate (highpass) or at (fLow + fHigh)/2 (bandpass); 0 leaves
 * them as above. The taps are computed in double precision in pBuffer (any
 * alignment, FIRGenGetBufferSize bytes for tapsLen) and rounded once to the
 * destination type; the 32f forms take their frequencies as floats.
 * Checks, in order: a null pointer gives qspStsNullPtr; tapsLen below 1
 * qspStsBadTapCount, below 3 qspStsBadSize, even for a highpass or bandstop
 * (a symmetric filter of even length has a zero at half the sampling rate)
 * qspStsBadSize; a frequency outside (0, 0.5), NaN, or fLow not below fHigh
 * qspStsBadRelFreq; another winType qspStsBadArgument. Nothing is written on
 * an error. Thread-safe with a buffer per call.
 *     Qsp32f taps[101];
 *     qspsFIRGenGetBufferSize(101, &size);        // then allocate buf
 *     qspsFIRGenLowpass_32f(taps, 101, 0.1f, qspWinHamming, 1, buf);
 */
QspStatus qspsFIRGenGetBufferSize(int tapsLen, int* pBufferSize);
QspStatus qspsFIRGenLowpass_32f(Qsp32f* pTaps, int tapsLen, Qsp32f rFreq, QspWinType winType, int doNormal, Qsp8u* pBuffer);
QspStatus qspsFIRGenLowpass_64f(Qsp64f* pTaps, int tapsLen, Qsp64f rFreq, QspWinType winType, int doNormal, Qsp8u* pBuffer);
QspStatus qspsFIRGenHighpass_32f(Qsp32f* pTaps, int tapsLen, Qsp32f rFreq, QspWinType winType, int doNormal, Qsp8u* pBuffer);
QspStatus qspsFIRGenHighpass_64f(Qsp64f* pTaps, int tapsLen, Qsp64f rFreq, QspWinType winType, int doNormal, Qsp8u* pBuffer);
QspStatus qspsFIRGenBandpass_32f(Qsp32f* pTaps, int tapsLen, Qsp32f rLowFreq, Qsp32f rHighFreq, QspWinType winType, int doNormal, Qsp8u* pBuffer);
QspStatus qspsFIRGenBandpass_64f(Qsp64f* pTaps, int tapsLen, Qsp64f rLowFreq, Qsp64f rHighFreq, QspWinType winType, int doNormal, Qsp8u* pBuffer);
QspStatus qspsFIRGenBandstop_32f(Qsp32f* pTaps, int tapsLen, Qsp32f rLowFreq, Qsp32f rHighFreq, QspWinType winType, int doNormal, Qsp8u* pBuffer);
QspStatus qspsFIRGenBandstop_64f(Qsp64f* pTaps, int tapsLen, Qsp64f rLowFreq, Qsp64f rHighFreq, QspWinType winType, int doNormal, Qsp8u* pBuffer);

/* IIRGen ------------------------------------------------------------------ */
/*
 * IIR filter design: Butterworth or Chebyshev type I (filterType
 * qspIIRButterworth, qspIIRChebyshev1) lowpass or highpass of order N = 1..18,
 * by the bilinear transform of the analog prototype with the cut-off
 * pre-warped, W = tan(pi rFreq). Magnitude at the relative frequency f, with
 * v = tan(pi f)/W (lowpass) or W/tan(pi f) (highpass):
 *     Butterworth  |H|^2 = 1 / (1 + v^(2N)): rFreq is the -3 dB point;
 *     Chebyshev I  |H|^2 = 1 / (1 + e^2 T_N(v)^2), e^2 = 10^(ripple/10) - 1:
 *                  the pass band ripples between 0 and -ripple dB and rFreq
 *                  is where it leaves that band.
 * The result is a cascade of (N+1)/2 biquad sections, ready for
 * IIRInit_BiQuad_64f (numBq = (N+1)/2): pTaps receives 6 values per section,
 *     b0 b1 b2 a0 a1 a2,  H_s(z) = (b0 + b1 z^-1 + b2 z^-2) / (1 + a1 z^-1 + a2 z^-2),
 * a0 = 1 and the numerator g (1 + z^-1)^2 (lowpass) or g (1 - z^-1)^2
 * (highpass). For odd N the first section is of first order (b2 = a2 = 0),
 * then come the pole pairs from the lowest to the highest quality factor.
 * Every section has gain 1 at the centre of the pass band (DC for lowpass,
 * half the sampling rate for highpass); for Chebyshev of even order that
 * point is a ripple trough and the first section carries 1/sqrt(1 + e^2).
 * Sections are computed in extended precision and rounded once: the response
 * keeps nearly full double precision at every order and cut-off, also where
 * the multiplied-out polynomial of a high order would not (poles crowding at
 * z = 1 or -1). pTaps holds 6*((N+1)/2) values.
 * Checks, in order: a null pTaps or pBuffer gives qspStsNullPtr; an order
 * outside 1..18 qspStsBadFilterOrder; rFreq outside (0, 0.5) or NaN
 * qspStsBadRelFreq; another filterType qspStsBadArgument; for Chebyshev a
 * ripple (dB) outside (0, 100] qspStsBadArgument (Butterworth ignores it).
 * Nothing is written on an error. pBuffer (any alignment) has the size
 * IIRGenGetBufferSize reports for the order. Thread-safe with a buffer per
 * call.
 *     Qsp64f taps[6 * 3];                           // order 5: 3 sections
 *     qspsIIRGenGetBufferSize(5, &size);              // then allocate buf
 *     qspsIIRGenLowpass_64f(taps, 5, 0.1, 0.5, qspIIRChebyshev1, buf);
 *     qspsIIRInit_BiQuad_64f(&state, taps, 3, NULL, stateMem);
 */
QspStatus qspsIIRGenGetBufferSize(int order, int* pBufferSize);
QspStatus qspsIIRGenLowpass_64f(Qsp64f* pTaps, int order, Qsp64f rFreq, Qsp64f ripple, QspIIRFilterType filterType, Qsp8u* pBuffer);
QspStatus qspsIIRGenHighpass_64f(Qsp64f* pTaps, int order, Qsp64f rFreq, Qsp64f ripple, QspIIRFilterType filterType, Qsp8u* pBuffer);

/* FilterMedian ------------------------------------------------------------ */
/*
 * Running median of the last maskSize inputs (maskSize odd):
 *     pDst[i] = median of x[i - maskSize + 1], ..., x[i],
 * where x[i] = pSrc[i] and the maskSize - 1 values before pSrc[0] come from
 * the delay line: x[-j] = pDlySrc[maskSize - 1 - j] for j = 1 .. maskSize - 1
 * (pDlySrc[0] the oldest). A null pDlySrc stands for pSrc[0] repeated, so
 * the signal is extended to the left by its first value. The filter is
 * causal: the median of a window is centred maskSize/2 samples before the
 * output, which is the latency. pDlyDst, when not null, receives the last
 * maskSize - 1 values of the delay line followed by the source, oldest
 * first; pDlySrc == pDlyDst continues a stream, so consecutive calls give the
 * result of one call on the joined source. maskSize 1 copies and uses no
 * delay line.
 * Order: values are compared as numbers; 32f values in the total order of
 * their bit patterns, -NaN < -Inf < ... < -0 < +0 < ... < +Inf < +NaN, so
 * every output is one of the inputs, bit for bit.
 * The work buffer pBuffer (any alignment) has the size that
 * FilterMedianGetBufferSize reports for the mask and the data type (qsp8u,
 * qsp16s, qsp32s or qsp32f; another code gives qspStsBadDataType, a buffer
 * above 2^31-1 bytes qspStsOverflow); nothing in it survives a call.
 * Cost per output: masks up to 767 (8u), 383 (16s) or 191 (32s, 32f) keep a
 * sorted window, maskSize/16, /8 or /4 register operations; longer masks a
 * double heap, O(log maskSize).
 * Checks: a null pSrc, pDst or pBuffer gives qspStsNullPtr; len < 1
 * qspStsBadSize; an even or non-positive maskSize qspStsBadMaskSize; nothing
 * is written then. _I filters in place; otherwise pDst must not overlap
 * pSrc, and the delay lines must not overlap the data. Thread-safe with a
 * work buffer per call.
 *     int size;
 *     qspsFilterMedianGetBufferSize(31, qsp32f, &size);
 *     Qsp8u* buf = qspsMalloc_8u(size);
 *     Qsp32f dly[30] = {0};
 *     qspsFilterMedian_32f(x, y, n, 31, dly, dly, buf);        // first block
 *     qspsFilterMedian_32f(x + n, y + n, n, 31, dly, dly, buf); // continues
 */
QspStatus qspsFilterMedianGetBufferSize(int maskSize, QspDataType dataType, int* pBufferSize);
QspStatus qspsFilterMedian_8u(const Qsp8u* pSrc, Qsp8u* pDst, int len, int maskSize, const Qsp8u* pDlySrc, Qsp8u* pDlyDst, Qsp8u* pBuffer);
QspStatus qspsFilterMedian_8u_I(Qsp8u* pSrcDst, int len, int maskSize, const Qsp8u* pDlySrc, Qsp8u* pDlyDst, Qsp8u* pBuffer);
QspStatus qspsFilterMedian_16s(const Qsp16s* pSrc, Qsp16s* pDst, int len, int maskSize, const Qsp16s* pDlySrc, Qsp16s* pDlyDst, Qsp8u* pBuffer);
QspStatus qspsFilterMedian_16s_I(Qsp16s* pSrcDst, int len, int maskSize, const Qsp16s* pDlySrc, Qsp16s* pDlyDst, Qsp8u* pBuffer);
QspStatus qspsFilterMedian_32s(const Qsp32s* pSrc, Qsp32s* pDst, int len, int maskSize, const Qsp32s* pDlySrc, Qsp32s* pDlyDst, Qsp8u* pBuffer);
QspStatus qspsFilterMedian_32s_I(Qsp32s* pSrcDst, int len, int maskSize, const Qsp32s* pDlySrc, Qsp32s* pDlyDst, Qsp8u* pBuffer);
QspStatus qspsFilterMedian_32f(const Qsp32f* pSrc, Qsp32f* pDst, int len, int maskSize, const Qsp32f* pDlySrc, Qsp32f* pDlyDst, Qsp8u* pBuffer);
QspStatus qspsFilterMedian_32f_I(Qsp32f* pSrcDst, int len, int maskSize, const Qsp32f* pDlySrc, Qsp32f* pDlyDst, Qsp8u* pBuffer);

/* ResamplePolyphase ------------------------------------------------------- */
/*
 * Polyphase resampling by a Kaiser-windowed sinc, in two forms: any ratio
 * (ResamplePolyphase, a tabulated kernel interpolated per output) and a
 * fixed rational ratio (ResamplePolyphaseFixed, one stored filter per phase).
 *
 * Kernel. With cut-off fc (cycles per input sample), half-width W (input
 * samples) and Kaiser shape beta = alpha:
 *     g(u) = 2 fc sinc(2 fc u) I0(beta sqrt(1 - (u/W)^2)) / I0(beta)
 * for |u| <= W, 0 beyond; sinc(v) = sin(pi v)/(pi v); the window is the
 * library's Kaiser window (WinKaiser) over the sampled points. Taps are
 * formed in double and rounded once to single precision. An output at time
 * t (in input samples) is norm * sum over k of g_s(t - k) pSrc[k], where
 * going up g_s = g and fc = rollf / 2, and going down by s = output rate /
 * input rate < 1 the kernel is stretched, g_s(u) = s g(s u), so that the
 * cut-off is rollf s / 2 of the input rate. The DC gain is 1 (times norm).
 *
 * Design figures (Kaiser's formulas, A the stop-band attenuation in dB,
 * for A > 50): beta = 0.1102 (A - 8.7); transition width, in the lower of
 * the two rates' units of cycles per sample, df = (A - 7.95) / (14.36 L)
 * with L the kernel's full width in samples of that rate; pass band up to
 * rollf/2 - df/2, stop band from rollf/2 + df/2 (both relative to the lower
 * rate); pass-band ripple about 10^(-A/20). Example, measured: width 128,
 * nStep 512, rollf 0.9, alpha 10 (A = 99 dB): SNR of a sine 116 dB, ripple
 * within 1e-4 dB up to 0.425, stop band below -112 dB from 0.475.
 *
 * Arguments and statuses. rollf in (0, 1] (else qspStsBadRelFreq); alpha
 * in [0, 308] (else qspStsBadWindowParam); hint one of the QspHintAlgorithm
 * values (else qspStsBadArgument; all give the same result). Checks in the
 * order pointers, sizes, factors, shape, hint; nothing is written on error.
 *
 * Any ratio. GetSize/Init: window is the kernel's full width in input
 * samples (in (0, 1e9], else qspStsBadSize), nStep the table points per
 * input sample (>= 1, else qspStsBadSize; a table beyond 2^28 points or a
 * record beyond 2^31 bytes gives qspStsOverflow): the table spans |u| <= W = K / nStep,
 * K = ceil(window nStep / 2) (at least 1), i.e. the width rounded up to
 * 2/nStep. Between table points g is interpolated linearly (its error is
 * about (pi rollf / nStep)^2 / 8 of the kernel's peak), and beyond the two
 * ends it falls linearly to zero over one table step.
 * qspsResamplePolyphase_*(pSrc, pDst, len, factor, norm, pTime, pOutLen,
 * pSpec): factor = output rate / input rate in [2^-20, 2^20] (else
 * qspStsBadFactor). Outputs are formed at the times t = *pTime, *pTime +
 * 1/factor, ... (times are kept on a grid of 2^-32 input samples, *pTime
 * rounded to it) for as long as floor(t) + h + 1 <= len - 1, h the
 * history: floor(K / nStep) for factor >= 1, floor((K + 1) / (nStep
 * factor)) below 1. Every output reads pSrc[floor(t) - h .. floor(t) + h
 * + 1] only, so *pTime must be at least h (else qspStsBadArgument, also for
 * a NaN): the caller keeps h samples of history before the first time.
 * On return *pOutLen holds the outputs written (at most (len - *pTime)
 * factor + 1; pDst needs that room) and *pTime the time of the next
 * output. A time at or beyond len gives 0 outputs and keeps *pTime.
 *
 * Fixed ratio. With g = gcd(inRate, outRate) the form has outRate/g phases
 * (the filters, *pNumFilters) and output j lies at time *pTime + j inRate /
 * outRate; times are kept exactly as multiples of g / outRate. Phase p
 * weighs the filterLen inputs pSrc[n - a .. n - a + filterLen - 1], n =
 * floor(t), a = (filterLen - 1)/2 (integer division), tap i being
 * g(p g / outRate - (i - a)) with W = filterLen / 2 and fc = rollf
 * min(1, outRate/inRate) / 2. inRate or outRate below 1 give
 * qspStsBadFactor, filterLen below 1 qspStsBadTapCount; GetSize reports the
 * record size, the taps per filter and the number of filters.
 * qspsResamplePolyphaseFixed_*(pSrc, pDst, len, norm, pTime, pOutLen,
 * pSpec) forms outputs while n - a + filterLen - 1 <= len - 1 (at most
 * (len - *pTime) outRate / inRate + 1 of them); *pTime must
 * be at least a (else qspStsBadArgument). GetFixedFilter copies filters
 * 0 .. height-1 to pDst, filter p at pDst + p step; SetFixedFilter replaces
 * them from pSrc the same way (the record is then changed: not to be shared
 * while it is set). step below filterLen, height below 1 or above the
 * number of filters give qspStsBadSize, after the pointer and record checks.
 *
 * Both forms. 16-bit samples are converted exactly to single precision and
 * the result norm * y is rounded to nearest (ties to even) and saturated;
 * single-precision sums are formed in a fixed order per output, so that
 * block processing gives the same bits as one call when the caller moves
 * its samples by whole positions and subtracts the same amount from *pTime
 * (exact while times stay below 2^20 samples). pDst must not overlap pSrc.
 * Records live in caller memory (any address; Init aligns inside the
 * block), begin with an identifier each call checks (qspStsBadRecord), and
 * are read-only after Init (SetFixedFilter excepted): they may be shared
 * by threads. Example, 44.1 kHz to 48 kHz in blocks:
 *     int size;
 *     qspsResamplePolyphaseGetSize_32f(128.0f, 512, &size, qspAlgHintNone);
 *     QspsResamplingPolyphase_32f* spec = (QspsResamplingPolyphase_32f*)qspsMalloc_8u(size);
 *     qspsResamplePolyphaseInit_32f(128.0f, 512, 0.9f, 10.0f, spec, qspAlgHintNone);
 *     double t = 64;                 // h = 64 samples of history (zeros at first)
 *     int n;                         // buf: 64 history samples, then new ones
 *     qspsResamplePolyphase_32f(buf, out, have, 48000.0 / 44100.0, 1.0f, &t, &n, spec);
 *     // then move buf[(int)t - 64 .. have) to buf[0], t -= (int)t - 64, append input
 */
QspStatus qspsResamplePolyphaseGetSize_16s(Qsp32f window, int nStep, int* pSize, QspHintAlgorithm hint);
QspStatus qspsResamplePolyphaseInit_16s(Qsp32f window, int nStep, Qsp32f rollf, Qsp32f alpha, QspsResamplingPolyphase_16s* pSpec, QspHintAlgorithm hint);
QspStatus qspsResamplePolyphase_16s(const Qsp16s* pSrc, Qsp16s* pDst, int len, Qsp64f factor, Qsp32f norm, Qsp64f* pTime, int* pOutLen, const QspsResamplingPolyphase_16s* pSpec);
QspStatus qspsResamplePolyphaseGetSize_32f(Qsp32f window, int nStep, int* pSize, QspHintAlgorithm hint);
QspStatus qspsResamplePolyphaseInit_32f(Qsp32f window, int nStep, Qsp32f rollf, Qsp32f alpha, QspsResamplingPolyphase_32f* pSpec, QspHintAlgorithm hint);
QspStatus qspsResamplePolyphase_32f(const Qsp32f* pSrc, Qsp32f* pDst, int len, Qsp64f factor, Qsp32f norm, Qsp64f* pTime, int* pOutLen, const QspsResamplingPolyphase_32f* pSpec);
QspStatus qspsResamplePolyphaseFixedGetSize_16s(int inRate, int outRate, int filterLen, int* pSize, int* pFilterLen, int* pNumFilters, QspHintAlgorithm hint);
QspStatus qspsResamplePolyphaseFixedInit_16s(int inRate, int outRate, int filterLen, Qsp32f rollf, Qsp32f alpha, QspsResamplingPolyphaseFixed_16s* pSpec, QspHintAlgorithm hint);
QspStatus qspsResamplePolyphaseFixed_16s(const Qsp16s* pSrc, Qsp16s* pDst, int len, Qsp32f norm, Qsp64f* pTime, int* pOutLen, const QspsResamplingPolyphaseFixed_16s* pSpec);
QspStatus qspsResamplePolyphaseGetFixedFilter_16s(const QspsResamplingPolyphaseFixed_16s* pSpec, Qsp32f* pDst, int step, int height);
QspStatus qspsResamplePolyphaseSetFixedFilter_16s(QspsResamplingPolyphaseFixed_16s* pSpec, const Qsp32f* pSrc, int step, int height);
QspStatus qspsResamplePolyphaseFixedGetSize_32f(int inRate, int outRate, int filterLen, int* pSize, int* pFilterLen, int* pNumFilters, QspHintAlgorithm hint);
QspStatus qspsResamplePolyphaseFixedInit_32f(int inRate, int outRate, int filterLen, Qsp32f rollf, Qsp32f alpha, QspsResamplingPolyphaseFixed_32f* pSpec, QspHintAlgorithm hint);
QspStatus qspsResamplePolyphaseFixed_32f(const Qsp32f* pSrc, Qsp32f* pDst, int len, Qsp32f norm, Qsp64f* pTime, int* pOutLen, const QspsResamplingPolyphaseFixed_32f* pSpec);
QspStatus qspsResamplePolyphaseGetFixedFilter_32f(const QspsResamplingPolyphaseFixed_32f* pSpec, Qsp32f* pDst, int step, int height);
QspStatus qspsResamplePolyphaseSetFixedFilter_32f(QspsResamplingPolyphaseFixed_32f* pSpec, const Qsp32f* pSrc, int step, int height);

/* FIRLMS ------------------------------------------------------------------ */
/*
 * Adaptive FIR filter by the least-mean-squares rule. For every input x[n]:
 *     y[n] = sum over k < tapsLen of t[k] x[n-k],   pDst[n] = y[n],
 *     e = pRef[n] - y[n],   then t[k] += mu e x[n-k] for every k,
 * so the taps of sample n+1 have seen sample n. All arithmetic is single
 * precision: y is a sum of eight interleaved partial sums (term k of the
 * reversed taps in sum k mod 8) added pairwise, then the last tapsLen mod 8
 * terms; each tap update is one multiply and one add. Checks: pointers
 * (pSrc, pRef, pDst, pState), len < 1 gives qspStsBadSize, mu outside the
 * open interval (0, 1) (NaN included) gives qspStsBadMu, a state of another
 * kind gives qspStsBadRecord; nothing is written on error. pDst may be
 * pSrc or pRef.
 *
 * Delay line: a ring of tapsLen samples with a current index dlyIndex
 * (outside [0, tapsLen) gives qspStsBadDelayIndex): pDlyLine[(dlyIndex - k)
 * mod tapsLen] is x[-k] for k = 1 .. tapsLen-1, and the element at
 * dlyIndex is overwritten by the next input; each input advances the index
 * by one (mod tapsLen). Init takes the taps (null: zeros) and the delay line
 * (null: zeros); GetTaps reads the current taps in natural order (t[0]
 * first), GetDlyLine the ring and its index, SetDlyLine replaces them (null:
 * zeros). The state (its taps and ring) changes with every call: one state
 * per stream, not shared between threads. Consecutive calls on the pieces
 * of a stream give the bits of one call on the whole; latency 0.
 * 32f_16s: 16-bit inputs, references, outputs and delay line, single-
 * precision taps and arithmetic; pDst receives y rounded to nearest (ties
 * to even) and saturated, the error uses the unrounded y.
 * Size: GetStateSize(tapsLen, dlyIndex) bytes, any alignment; a state whose
 * size does not fit in an int gives qspStsOverflow there and at Init.
 *     int size; qspsFIRLMSGetStateSize_32f(32, 0, &size);
 *     QspsFIRLMSState_32f* st; Qsp8u* mem = qspsMalloc_8u(size);
 *     qspsFIRLMSInit_32f(&st, NULL, 32, NULL, 0, mem);
 *     qspsFIRLMS_32f(x, desired, y, len, 0.01f, st);
 *     qspsFIRLMSGetTaps_32f(st, taps);
 */
QspStatus qspsFIRLMSGetStateSize_32f(int tapsLen, int dlyIndex, int* pBufferSize);
QspStatus qspsFIRLMSInit_32f(QspsFIRLMSState_32f** ppState, const Qsp32f* pTaps, int tapsLen, const Qsp32f* pDlyLine, int dlyIndex, Qsp8u* pBuffer);
QspStatus qspsFIRLMS_32f(const Qsp32f* pSrc, const Qsp32f* pRef, Qsp32f* pDst, int len, Qsp32f mu, QspsFIRLMSState_32f* pState);
QspStatus qspsFIRLMSGetTaps_32f(const QspsFIRLMSState_32f* pState, Qsp32f* pOutTaps);
QspStatus qspsFIRLMSGetDlyLine_32f(const QspsFIRLMSState_32f* pState, Qsp32f* pDlyLine, int* pDlyIndex);
QspStatus qspsFIRLMSSetDlyLine_32f(QspsFIRLMSState_32f* pState, const Qsp32f* pDlyLine, int dlyIndex);
QspStatus qspsFIRLMSGetStateSize32f_16s(int tapsLen, int dlyIndex, int* pBufferSize);
QspStatus qspsFIRLMSInit32f_16s(QspsFIRLMSState32f_16s** ppState, const Qsp32f* pTaps, int tapsLen, const Qsp16s* pDlyLine, int dlyIndex, Qsp8u* pBuffer);
QspStatus qspsFIRLMS32f_16s(const Qsp16s* pSrc, const Qsp16s* pRef, Qsp16s* pDst, int len, Qsp32f mu, QspsFIRLMSState32f_16s* pState);
QspStatus qspsFIRLMSGetTaps32f_16s(const QspsFIRLMSState32f_16s* pState, Qsp32f* pOutTaps);
QspStatus qspsFIRLMSGetDlyLine32f_16s(const QspsFIRLMSState32f_16s* pState, Qsp16s* pDlyLine, int* pDlyIndex);
QspStatus qspsFIRLMSSetDlyLine32f_16s(QspsFIRLMSState32f_16s* pState, const Qsp16s* pDlyLine, int dlyIndex);

/* IIRIIR ------------------------------------------------------------------ */
/*
 * Zero-phase IIR filtering: the block is filtered forward and then backward
 * through the same AR filter of order N (taps as in IIRInit: b0 .. bN,
 * a0 .. aN, a0 not zero, else qspStsZeroDivisor), so the magnitude response
 * is |H|^2 and the phase is zero; no delay, no latency. The edges: the block
 * is extended at each end by P = min(3N, len - 1) samples reflected about
 * its end sample, x[-k] = 2 x[0] - x[k] and x[len-1+k] = 2 x[len-1] -
 * x[len-1-k] (k = 1 .. P); each pass starts from the steady state z that
 * the filter reaches under a constant input, scaled by the first sample the
 * pass sees (z[k] = sum over j > k of (b_j - a_j g) / a0 with g = sum b /
 * sum a, the transposed direct form of IIR; zero when sum a = 0, a pole at
 * z = 1), which removes the start-up transients; the extensions are cut
 * off. The forward pass starts from that state plus the forward delay line
 * (N values in the order of IIRGetDlyLine; zeros by default): Init
 * (pDlyLine null: zeros), GetDlyLine and SetDlyLine (null: zeros) exchange
 * it, and filtering leaves it unchanged, since every call treats its block
 * as a whole signal. The arithmetic is IIR's of the same type (64f_32f:
 * double precision, the forward results rounded to single precision
 * between the passes). _I filters in place; pDst may also be pSrc. Checks:
 * pointers, len < 1 qspStsBadSize, a foreign state qspStsBadRecord; order
 * < 1 at GetStateSize and Init qspStsBadFilterOrder. The record holds
 * the passes' working state: one call at a time per state.
 *     int size; qspsIIRIIRGetStateSize_32f(2, &size);
 *     QspsIIRState_32f* st; Qsp8u* mem = qspsMalloc_8u(size);
 *     qspsIIRIIRInit_32f(&st, taps, 2, NULL, mem);   // taps: b0 b1 b2 a0 a1 a2
 *     qspsIIRIIR_32f(x, y, len, st);
 */
QspStatus qspsIIRIIRGetStateSize_32f(int order, int* pBufferSize);
QspStatus qspsIIRIIRInit_32f(QspsIIRState_32f** ppState, const Qsp32f* pTaps, int order, const Qsp32f* pDlyLine, Qsp8u* pBuf);
QspStatus qspsIIRIIR_32f(const Qsp32f* pSrc, Qsp32f* pDst, int len, QspsIIRState_32f* pState);
QspStatus qspsIIRIIR_32f_I(Qsp32f* pSrcDst, int len, QspsIIRState_32f* pState);
QspStatus qspsIIRIIRGetDlyLine_32f(const QspsIIRState_32f* pState, Qsp32f* pDlyLine);
QspStatus qspsIIRIIRSetDlyLine_32f(QspsIIRState_32f* pState, const Qsp32f* pDlyLine);
QspStatus qspsIIRIIRGetStateSize_64f(int order, int* pBufferSize);
QspStatus qspsIIRIIRInit_64f(QspsIIRState_64f** ppState, const Qsp64f* pTaps, int order, const Qsp64f* pDlyLine, Qsp8u* pBuf);
QspStatus qspsIIRIIR_64f(const Qsp64f* pSrc, Qsp64f* pDst, int len, QspsIIRState_64f* pState);
QspStatus qspsIIRIIR_64f_I(Qsp64f* pSrcDst, int len, QspsIIRState_64f* pState);
QspStatus qspsIIRIIRGetDlyLine_64f(const QspsIIRState_64f* pState, Qsp64f* pDlyLine);
QspStatus qspsIIRIIRSetDlyLine_64f(QspsIIRState_64f* pState, const Qsp64f* pDlyLine);
QspStatus qspsIIRIIRGetStateSize64f_32f(int order, int* pBufferSize);
QspStatus qspsIIRIIRInit64f_32f(QspsIIRState64f_32f** ppState, const Qsp64f* pTaps, int order, const Qsp64f* pDlyLine, Qsp8u* pBuf);
QspStatus qspsIIRIIR64f_32f(const Qsp32f* pSrc, Qsp32f* pDst, int len, QspsIIRState64f_32f* pState);
QspStatus qspsIIRIIR64f_32f_I(Qsp32f* pSrcDst, int len, QspsIIRState64f_32f* pState);
QspStatus qspsIIRIIRGetDlyLine64f_32f(const QspsIIRState64f_32f* pState, Qsp64f* pDlyLine);
QspStatus qspsIIRIIRSetDlyLine64f_32f(QspsIIRState64f_32f* pState, const Qsp64f* pDlyLine);

/* FIRSparse --------------------------------------------------------------- */
/*
 * FIR filter with few non-zero taps:
 *     y[n] = sum over j < nzTapsLen of pNZTaps[j] x[n - pNZTapPos[j]],
 * positions strictly ascending and non-negative (else qspStsBadArgument at
 * Init), so it equals the dense filter of order + 1 taps with zeros
 * elsewhere, order being the largest position. Each output is formed
 * tap by tap in the given order (the first product, then each further
 * product added), the same for every sample, so consecutive calls on the
 * pieces of a stream give the bits of one call on the whole; latency 0.
 * Checks: GetStateSize: null pointer, nzTapsLen < 1 qspStsBadTapCount,
 * order < nzTapsLen - 1 qspStsBadFilterOrder; Init: pointers (the delay
 * line may be null: zeros), nzTapsLen < 1 qspStsBadTapCount, positions;
 * filtering: pointers, len < 1 qspStsBadSize, a foreign state
 * qspStsBadRecord. The state must be sized with an order of at least the
 * largest position; a state whose size does not fit in an int gives
 * qspStsOverflow at GetStateSize and Init. Delay line: the last `order`
 * inputs, oldest first (the last one is x[-1]), kept in the state (one
 * state per stream); GetDlyLine reads and SetDlyLine (null: zeros) replaces
 * it; order 0 has none. pDst may be pSrc.
 * 32f_16s: 16-bit data and delay line, 32f taps and arithmetic, results
 * times 2^-scaleFactor, rounded to nearest even and saturated.
 *     int pos[3] = {0, 40, 1000}; Qsp32f t[3] = {1.0f, 0.5f, 0.25f};
 *     int size; qspsFIRSparseGetStateSize_32f(3, 1000, &size);
 *     QspsFIRSparseState_32f* st; Qsp8u* mem = qspsMalloc_8u(size);
 *     qspsFIRSparseInit_32f(&st, t, pos, 3, NULL, mem);
 *     qspsFIRSparse_32f(x, y, len, st);
 */
QspStatus qspsFIRSparseGetStateSize_32f(int nzTapsLen, int order, int* pStateSize);
QspStatus qspsFIRSparseInit_32f(QspsFIRSparseState_32f** ppState, const Qsp32f* pNZTaps, const int* pNZTapPos, int nzTapsLen, const Qsp32f* pDlyLine, Qsp8u* pBuffer);
QspStatus qspsFIRSparse_32f(const Qsp32f* pSrc, Qsp32f* pDst, int len, QspsFIRSparseState_32f* pState);
QspStatus qspsFIRSparseGetDlyLine_32f(const QspsFIRSparseState_32f* pState, Qsp32f* pDlyLine);
QspStatus qspsFIRSparseSetDlyLine_32f(QspsFIRSparseState_32f* pState, const Qsp32f* pDlyLine);
QspStatus qspsFIRSparseGetStateSize_32fc(int nzTapsLen, int order, int* pStateSize);
QspStatus qspsFIRSparseInit_32fc(QspsFIRSparseState_32fc** ppState, const Qsp32fc* pNZTaps, const int* pNZTapPos, int nzTapsLen, const Qsp32fc* pDlyLine, Qsp8u* pBuffer);
QspStatus qspsFIRSparse_32fc(const Qsp32fc* pSrc, Qsp32fc* pDst, int len, QspsFIRSparseState_32fc* pState);
QspStatus qspsFIRSparseGetDlyLine_32fc(const QspsFIRSparseState_32fc* pState, Qsp32fc* pDlyLine);
QspStatus qspsFIRSparseSetDlyLine_32fc(QspsFIRSparseState_32fc* pState, const Qsp32fc* pDlyLine);
QspStatus qspsFIRSparseGetStateSize32f_16s(int nzTapsLen, int order, int* pStateSize);
QspStatus qspsFIRSparseInit32f_16s(QspsFIRSparseState32f_16s** ppState, const Qsp32f* pNZTaps, const int* pNZTapPos, int nzTapsLen, const Qsp16s* pDlyLine, Qsp8u* pBuffer);
QspStatus qspsFIRSparse32f_16s_Sfs(const Qsp16s* pSrc, Qsp16s* pDst, int len, QspsFIRSparseState32f_16s* pState, int scaleFactor);
QspStatus qspsFIRSparseGetDlyLine32f_16s(const QspsFIRSparseState32f_16s* pState, Qsp16s* pDlyLine);
QspStatus qspsFIRSparseSetDlyLine32f_16s(QspsFIRSparseState32f_16s* pState, const Qsp16s* pDlyLine);

/* IIRSparse --------------------------------------------------------------- */
/*
 * IIR filter with few non-zero taps:
 *     y[n] = sum over j < nzTapsLen1 of b_j x[n - p_j]
 *            - sum over k < nzTapsLen2 of a_k y[n - q_k];
 * pNZTaps holds the nzTapsLen1 feed-forward values b then the nzTapsLen2
 * feedback values a (already normalised: no a0), pNZTapPos their positions,
 * p strictly ascending from 0 on, q strictly ascending from 1 on (else
 * qspStsBadArgument at Init). order1 and order2 are the largest p and q
 * (order2 = 0 without feedback taps); the state must be sized with orders of
 * at least those. The feed-forward sum is formed as in
 * FIRSparse, then the feedback terms are subtracted one by one from the last
 * (farthest) to the first (nearest); consecutive calls on the pieces of a stream give the bits of one
 * call on the whole. Checks: GetStateSize: null pointer, nzTapsLen1 < 1 or
 * nzTapsLen2 < 0 qspStsBadTapCount, order1 < nzTapsLen1 - 1 or order2 <
 * nzTapsLen2 qspStsBadFilterOrder; Init: pointers, counts, positions;
 * filtering: pointers, len < 1 qspStsBadSize, a foreign state
 * qspStsBadRecord. Delay line at Init (null: zeros): the last order1 inputs
 * then the last order2 outputs, each oldest first; it lives in the state
 * (one state per stream); a state whose size does not fit in an int gives
 * qspStsOverflow at GetStateSize and Init. 32f_16s: 16-bit data, 32f taps
 * and arithmetic;
 * the output history keeps the single-precision results before scaling (a
 * 16-bit delay line gives its values), pDst receives them times
 * 2^-scaleFactor, rounded to nearest even and saturated.
 *     Qsp32f t[2] = {1.0f, -0.9f}; int pos[2] = {0, 100};  // a comb
 *     int size; qspsIIRSparseGetStateSize_32f(1, 1, 0, 100, &size);
 *     QspsIIRSparseState_32f* st; Qsp8u* mem = qspsMalloc_8u(size);
 *     qspsIIRSparseInit_32f(&st, t, pos, 1, 1, NULL, mem);
 *     qspsIIRSparse_32f(x, y, len, st);
 */
QspStatus qspsIIRSparseGetStateSize_32f(int nzTapsLen1, int nzTapsLen2, int order1, int order2, int* pStateSize);
QspStatus qspsIIRSparseInit_32f(QspsIIRSparseState_32f** ppState, const Qsp32f* pNZTaps, const int* pNZTapPos, int nzTapsLen1, int nzTapsLen2, const Qsp32f* pDlyLine, Qsp8u* pBuffer);
QspStatus qspsIIRSparse_32f(const Qsp32f* pSrc, Qsp32f* pDst, int len, QspsIIRSparseState_32f* pState);
QspStatus qspsIIRSparseGetStateSize32f_16s(int nzTapsLen1, int nzTapsLen2, int order1, int order2, int* pStateSize);
QspStatus qspsIIRSparseInit32f_16s(QspsIIRSparseState32f_16s** ppState, const Qsp32f* pNZTaps, const int* pNZTapPos, int nzTapsLen1, int nzTapsLen2, const Qsp16s* pDlyLine, Qsp8u* pBuffer);
QspStatus qspsIIRSparse32f_16s_Sfs(const Qsp16s* pSrc, Qsp16s* pDst, int len, QspsIIRSparseState32f_16s* pState, int scaleFactor);

/* SampleUp ---------------------------------------------------------------- */
/*
 * Upsampling by an integer factor: every source element becomes a group of
 * factor destination elements, the source element at position *pPhase of the
 * group and zeros at the others:
 *     pDst[i*factor + j] = (j == *pPhase) ? pSrc[i] : 0,  0 <= i < len, 0 <= j < factor.
 * *pDstLen receives factor*len. *pPhase is read and left as it is: every block
 * of a stream uses the same phase, so consecutive calls give the same result
 * as one call on the joined source. factor 1 copies.
 * Checks: a null pointer gives qspStsNullPtr, len < 1 qspStsBadSize, factor < 1
 * qspStsBadFactor, *pPhase outside [0, factor) qspStsBadPhase, and factor*len
 * above 2^31-1 qspStsOverflow; nothing is written then.
 * pDst holds factor*len elements; it may start at pSrc (the groups are written
 * from the last to the first), no other overlap. Thread-safe.
 *     int n, phase = 0;
 *     qspsSampleUp_32f(x, y, 100, &n, 4, &phase);   // n = 400
 */
QspStatus qspsSampleUp_16s(const Qsp16s* pSrc, Qsp16s* pDst, int len, int* pDstLen, int factor, int* pPhase);
QspStatus qspsSampleUp_16sc(const Qsp16sc* pSrc, Qsp16sc* pDst, int len, int* pDstLen, int factor, int* pPhase);
QspStatus qspsSampleUp_32s(const Qsp32s* pSrc, Qsp32s* pDst, int len, int* pDstLen, int factor, int* pPhase);
QspStatus qspsSampleUp_32sc(const Qsp32sc* pSrc, Qsp32sc* pDst, int len, int* pDstLen, int factor, int* pPhase);
QspStatus qspsSampleUp_32f(const Qsp32f* pSrc, Qsp32f* pDst, int len, int* pDstLen, int factor, int* pPhase);
QspStatus qspsSampleUp_32fc(const Qsp32fc* pSrc, Qsp32fc* pDst, int len, int* pDstLen, int factor, int* pPhase);
QspStatus qspsSampleUp_64f(const Qsp64f* pSrc, Qsp64f* pDst, int len, int* pDstLen, int factor, int* pPhase);
QspStatus qspsSampleUp_64fc(const Qsp64fc* pSrc, Qsp64fc* pDst, int len, int* pDstLen, int factor, int* pPhase);

/* SampleDown -------------------------------------------------------------- */
/*
 * Downsampling by an integer factor: the source elements at positions *pPhase,
 * *pPhase + factor, *pPhase + 2*factor, ... below len are kept:
 *     pDst[k] = pSrc[*pPhase + k*factor],  0 <= k < *pDstLen,
 * *pDstLen = (len - *pPhase + factor - 1) / factor (0 when *pPhase >= len).
 * *pPhase then receives the position in the next block at which the stream
 * continues, *pPhase + *pDstLen*factor - len (in [0, factor)), so consecutive
 * calls give the same elements as one call on the joined source. factor 1
 * copies.
 * Checks: a null pointer gives qspStsNullPtr, len < 1 qspStsBadSize, factor < 1
 * qspStsBadFactor, *pPhase outside [0, factor) qspStsBadPhase; nothing is
 * written then. pDst holds (len + factor - 1) / factor elements; it may be
 * pSrc itself (in place), no other overlap. Thread-safe.
 *     int n, phase = 1;
 *     qspsSampleDown_32f(x, y, 10, &n, 4, &phase);   // y: x[1] x[5] x[9]; n 3, phase 3
 */
QspStatus qspsSampleDown_16s(const Qsp16s* pSrc, Qsp16s* pDst, int len, int* pDstLen, int factor, int* pPhase);
QspStatus qspsSampleDown_16sc(const Qsp16sc* pSrc, Qsp16sc* pDst, int len, int* pDstLen, int factor, int* pPhase);
QspStatus qspsSampleDown_32s(const Qsp32s* pSrc, Qsp32s* pDst, int len, int* pDstLen, int factor, int* pPhase);
QspStatus qspsSampleDown_32sc(const Qsp32sc* pSrc, Qsp32sc* pDst, int len, int* pDstLen, int factor, int* pPhase);
QspStatus qspsSampleDown_32f(const Qsp32f* pSrc, Qsp32f* pDst, int len, int* pDstLen, int factor, int* pPhase);
QspStatus qspsSampleDown_32fc(const Qsp32fc* pSrc, Qsp32fc* pDst, int len, int* pDstLen, int factor, int* pPhase);
QspStatus qspsSampleDown_64f(const Qsp64f* pSrc, Qsp64f* pDst, int len, int* pDstLen, int factor, int* pPhase);
QspStatus qspsSampleDown_64fc(const Qsp64fc* pSrc, Qsp64fc* pDst, int len, int* pDstLen, int factor, int* pPhase);

/* RandUniform ------------------------------------------------------------- */
/*
 * Uniformly distributed pseudo-random values from a generator state in
 * caller memory. RandUniformGetSize gives the state's size in bytes (63
 * bytes of alignment slack included); RandUniformInit builds the state at
 * the first 64-byte boundary inside the caller's block for the interval
 * and the seed; each RandUniform call continues the sequence. The same
 * seed gives the same values on every machine, however a request is split
 * into calls.
 * The core stream: eight interleaved xoshiro256++ generators (Blackman and
 * Vigna; period 2^256 - 1, all output bits pass BigCrush and PractRand).
 * The seed goes through SplitMix64 into generator 0; generator s is
 * generator 0 advanced by s 2^128 steps (never overlapping); step t of all
 * eight gives the 64-bit words W(8t) .. W(8t+7) in that order; V(2j) and
 * V(2j+1) are the low and the high half of W(j).
 * Values: 8u, 16s: every integer of [low, high] equally likely, low +
 * floor(V r / 2^32), r = high - low + 1, where a half V is skipped when
 * the low 32 bits of V r fall below 2^32 mod r (so each value takes one
 * half, rarely more). 32f: low + w (V >> 8) in single precision, w =
 * (high - low) 2^-24; 64f: low + (high - low) u, u = (W >> 12) 2^-52, in
 * double; results at or above high are replaced by the value just below
 * high (low = high gives low). When high - low overflows, both bounds are
 * halved and the result doubled. Complex forms: the real stream over
 * 2 len values, real part first, from the state of the real type.
 * Init checks pState (qspStsNullPtr), then low above high or a bound that
 * is not finite (qspStsBadRange). Generating calls check pDst, then pState
 * (qspStsNullPtr), len (qspStsBadSize), then the state's identifier
 * (qspStsBadRecord); nothing is written on error. Every call updates the
 * state: one state serves one thread at a time. A state copied byte for
 * byte works where the copy has the same address modulo 64.
 * Example:
 *     int size;
 *     qspsRandUniformGetSize_32f(&size);
 *     Qsp8u* block = qspsMalloc_8u(size);
 *     QspsRandUniformState_32f* state = (QspsRandUniformState_32f*)block;
 *     qspsRandUniformInit_32f(state, -1.0f, 1.0f, 2026);
 *     qspsRandUniform_32f(x, 1024, state);   // x[i] in [-1, 1)
 *     qspsFree(block);
 */
QspStatus qspsRandUniformGetSize_8u(int* pStateSize);
QspStatus qspsRandUniformInit_8u(QspsRandUniformState_8u* pState, Qsp8u low, Qsp8u high, unsigned int seed);
QspStatus qspsRandUniform_8u(Qsp8u* pDst, int len, QspsRandUniformState_8u* pState);
QspStatus qspsRandUniformGetSize_16s(int* pStateSize);
QspStatus qspsRandUniformInit_16s(QspsRandUniformState_16s* pState, Qsp16s low, Qsp16s high, unsigned int seed);
QspStatus qspsRandUniform_16s(Qsp16s* pDst, int len, QspsRandUniformState_16s* pState);
QspStatus qspsRandUniformGetSize_32f(int* pStateSize);
QspStatus qspsRandUniformInit_32f(QspsRandUniformState_32f* pState, Qsp32f low, Qsp32f high, unsigned int seed);
QspStatus qspsRandUniform_32f(Qsp32f* pDst, int len, QspsRandUniformState_32f* pState);
QspStatus qspsRandUniformGetSize_64f(int* pStateSize);
QspStatus qspsRandUniformInit_64f(QspsRandUniformState_64f* pState, Qsp64f low, Qsp64f high, unsigned int seed);
QspStatus qspsRandUniform_64f(Qsp64f* pDst, int len, QspsRandUniformState_64f* pState);
QspStatus qspsRandUniform_16sc(Qsp16sc* pDst, int len, QspsRandUniformState_16s* pState);
QspStatus qspsRandUniform_32fc(Qsp32fc* pDst, int len, QspsRandUniformState_32f* pState);
QspStatus qspsRandUniform_64fc(Qsp64fc* pDst, int len, QspsRandUniformState_64f* pState);

/* RandGauss --------------------------------------------------------------- */
/*
 * Normally distributed pseudo-random values mean + stdDev z, z standard
 * normal, from a generator state in caller memory: sizes, Init, seeding,
 * the core stream of 64-bit words W(j) and the threading rules as in
 * RandUniform.
 * z by the ziggurat method (Marsaglia and Tsang; 256 layers of equal area,
 * R = 3.654152885361009), exact in distribution up to the spacing of its
 * uniform numbers: a word W gives the layer i = W mod 256 and u = (W >>
 * 12) 2^-51 - 1; z = u x_i when |u| < x_(i+1)/x_i (98.5% of words);
 * otherwise layer 0 samples the tail beyond R by Marsaglia's method (x =
 * -ln(U)/R, y = -ln(U') from two more words, U = ((W >> 11) + 1) 2^-53,
 * until 2y > x^2; z = +-(R + x) by the sign of u) and the other layers
 * keep z when ln(f(x_i) + U (f(x_(i+1)) - f(x_i))) < -z^2/2, f(x) =
 * e^(-x^2/2), U = (W >> 11) 2^-53 from one more word (else the next word
 * starts over). mean + stdDev z is formed in double
 * and rounded once to the element type (8u, 16s: to nearest with ties to
 * even, saturating). 32f and 32fc run the same method in single precision
 * on 32-bit halves V: i = V mod 256, u = (V >> 9) 2^-22 - 1, tables
 * rounded to single, z = u x_i; wedge and tail in double from one and two
 * more halves (V 2^-32 and (V + 1) 2^-32); mean + stdDev z in single
 * precision.
 * Complex forms: the real stream over 2 len values, real part first.
 * Init checks pState (qspStsNullPtr), then mean not finite
 * (qspStsBadArgument), then stdDev negative or not finite
 * (qspStsBadStdDev); stdDev 0 gives the mean. Generating calls check pDst,
 * then pState (qspStsNullPtr), len (qspStsBadSize), then the state's
 * identifier (qspStsBadRecord); nothing is written on error.
 */
QspStatus qspsRandGaussGetSize_8u(int* pStateSize);
QspStatus qspsRandGaussInit_8u(QspsRandGaussState_8u* pState, Qsp8u mean, Qsp8u stdDev, unsigned int seed);
QspStatus qspsRandGauss_8u(Qsp8u* pDst, int len, QspsRandGaussState_8u* pState);
QspStatus qspsRandGaussGetSize_16s(int* pStateSize);
QspStatus qspsRandGaussInit_16s(QspsRandGaussState_16s* pState, Qsp16s mean, Qsp16s stdDev, unsigned int seed);
QspStatus qspsRandGauss_16s(Qsp16s* pDst, int len, QspsRandGaussState_16s* pState);
QspStatus qspsRandGaussGetSize_32f(int* pStateSize);
QspStatus qspsRandGaussInit_32f(QspsRandGaussState_32f* pState, Qsp32f mean, Qsp32f stdDev, unsigned int seed);
QspStatus qspsRandGauss_32f(Qsp32f* pDst, int len, QspsRandGaussState_32f* pState);
QspStatus qspsRandGaussGetSize_64f(int* pStateSize);
QspStatus qspsRandGaussInit_64f(QspsRandGaussState_64f* pState, Qsp64f mean, Qsp64f stdDev, unsigned int seed);
QspStatus qspsRandGauss_64f(Qsp64f* pDst, int len, QspsRandGaussState_64f* pState);
QspStatus qspsRandGauss_16sc(Qsp16sc* pDst, int len, QspsRandGaussState_16s* pState);
QspStatus qspsRandGauss_32fc(Qsp32fc* pDst, int len, QspsRandGaussState_32f* pState);
QspStatus qspsRandGauss_64fc(Qsp64fc* pDst, int len, QspsRandGaussState_64f* pState);

/* VectorJaehne ------------------------------------------------------------ */
/*
 * Jaehne test signal, a chirp whose frequency rises linearly from 0 at
 * n = 0 to half the sampling rate at n = len: pDst[n] = magn sin(pi n^2 /
 * (2 len)), rounded to nearest with ties to even and saturated (the
 * unsigned types keep the positive half-waves only). The argument is
 * reduced exactly (n^2 mod 4 len, in integers), the sine is within an
 * ULP, and sin(pi/6) is exactly 1/2, so exact halves round to even. Checks:
 * pDst null (qspStsNullPtr), len 0 or less (qspStsBadSize), then magn not
 * above 0 (qspStsBadArgument); nothing is written on error.
 */
QspStatus qspsVectorJaehne_8u(Qsp8u* pDst, int len, Qsp8u magn);
QspStatus qspsVectorJaehne_8s(Qsp8s* pDst, int len, Qsp8s magn);
QspStatus qspsVectorJaehne_16u(Qsp16u* pDst, int len, Qsp16u magn);
QspStatus qspsVectorJaehne_16s(Qsp16s* pDst, int len, Qsp16s magn);
QspStatus qspsVectorJaehne_32s(Qsp32s* pDst, int len, Qsp32s magn);

/* VectorSlope ------------------------------------------------------------- */
/*
 * Linear ramp: pDst[n] = offset + slope n, formed in double as offset +
 * slope * n (n exact) and stored as the element type: 32f rounded to
 * nearest, integers rounded to nearest with ties to even and saturated
 * (NaN gives 0). Any offset and slope are accepted. Checks: pDst null
 * (qspStsNullPtr), then len 0 or less (qspStsBadSize).
 */
QspStatus qspsVectorSlope_8u(Qsp8u* pDst, int len, Qsp64f offset, Qsp64f slope);
QspStatus qspsVectorSlope_8s(Qsp8s* pDst, int len, Qsp64f offset, Qsp64f slope);
QspStatus qspsVectorSlope_16u(Qsp16u* pDst, int len, Qsp64f offset, Qsp64f slope);
QspStatus qspsVectorSlope_16s(Qsp16s* pDst, int len, Qsp64f offset, Qsp64f slope);
QspStatus qspsVectorSlope_32u(Qsp32u* pDst, int len, Qsp64f offset, Qsp64f slope);
QspStatus qspsVectorSlope_32s(Qsp32s* pDst, int len, Qsp64f offset, Qsp64f slope);
QspStatus qspsVectorSlope_64s(Qsp64s* pDst, int len, Qsp64f offset, Qsp64f slope);
QspStatus qspsVectorSlope_32f(Qsp32f* pDst, int len, Qsp64f offset, Qsp64f slope);
QspStatus qspsVectorSlope_64f(Qsp64f* pDst, int len, Qsp64f offset, Qsp64f slope);

/* Convolve ---------------------------------------------------------------- */
/*
 * Full linear convolution (numpy.convolve(a, b, "full")):
 *   pDst[n] = sum over k of pSrc1[k] * pSrc2[n-k],  0 <= n < src1Len+src2Len-1,
 * the sum over the k inside both operands. Complex operands multiply as
 * complex numbers. The operands may be the same array; pDst must not
 * overlap them.
 * algType: qspAlgDirect sums directly (the shorter operand as taps, the
 * register-blocked FIR kernel; each value is a left-to-right sum of rounded
 * products); qspAlgFFT by overlap-save FFTs whose length (at least twice
 * the shorter operand, up to one block of the whole result) is chosen per
 * call for the least work; qspAlgAuto takes whichever the library's cost
 * model, fitted to measurements, says is faster for the lengths. Floating
 * results agree with the exact sum to a few units of the precision times the
 * length (direct) or times log2 of the length and the norms of the
 * operands (FFT).
 * 16s32f and 16s_Sfs are exact: the integer sums are formed exactly (in
 * double precision, direct or by FFT with the operands split into 8-bit
 * halves when their size could bring the rounding near one half), then
 * 16s32f rounds each sum once to single precision and 16s_Sfs multiplies it
 * by 2^-scaleFactor, rounds to nearest even and saturates; a scale factor at
 * which every sum rounds to 0 writes zeros without computing.
 * ConvolveGetBufferSize(src1Len, src2Len, dataType, algType, &size) gives
 * the bytes of pBuffer (any alignment) for the lengths, the type (qsp32f,
 * qsp64f, qsp32fc, qsp64fc, or qsp16s for both 16-bit forms) and the
 * algorithm; pBuffer must not be null and holds nothing between calls, so
 * threads need one each. Checks of the size query: null pBufferSize
 * qspStsNullPtr, a length below 1 qspStsBadSize, another type
 * qspStsBadDataType, algType other than 0, 1, 2 qspStsBadAlgType, a size
 * beyond int qspStsOverflow. Checks of the convolution: null pointer (pSrc1,
 * pSrc2, pDst, pBuffer) qspStsNullPtr, a length below 1 qspStsBadSize, then
 * qspStsBadAlgType. Nothing is written on error.
 */
QspStatus qspsConvolveGetBufferSize(int src1Len, int src2Len, QspDataType dataType, QspAlgType algType, int* pBufferSize);
QspStatus qspsConvolve_16s_Sfs(const Qsp16s* pSrc1, const Qsp16s* pSrc2, Qsp16s* pDst, int src1Len, int src2Len, QspAlgType algType, Qsp8u* pBuffer, int scaleFactor);
QspStatus qspsConvolve_32f(const Qsp32f* pSrc1, const Qsp32f* pSrc2, Qsp32f* pDst, int src1Len, int src2Len, QspAlgType algType, Qsp8u* pBuffer);
QspStatus qspsConvolve_64f(const Qsp64f* pSrc1, const Qsp64f* pSrc2, Qsp64f* pDst, int src1Len, int src2Len, QspAlgType algType, Qsp8u* pBuffer);
QspStatus qspsConvolve_32fc(const Qsp32fc* pSrc1, const Qsp32fc* pSrc2, Qsp32fc* pDst, int src1Len, int src2Len, QspAlgType algType, Qsp8u* pBuffer);
QspStatus qspsConvolve_64fc(const Qsp64fc* pSrc1, const Qsp64fc* pSrc2, Qsp64fc* pDst, int src1Len, int src2Len, QspAlgType algType, Qsp8u* pBuffer);
QspStatus qspsConvolve_16s32f(const Qsp16s* pSrc1, const Qsp16s* pSrc2, Qsp32f* pDst, int src1Len, int src2Len, QspAlgType algType, Qsp8u* pBuffer);

/* ConvBiased -------------------------------------------------------------- */
/*
 * A window of the full convolution, starting at index bias:
 *   pDst[n] = sum over k of pSrc1[k] * pSrc2[n+bias-k],  0 <= n < dstLen,
 * the sum over the k inside both operands (zero where there is none, for
 * instance n+bias < 0 or >= src1Len+src2Len-1; any bias is accepted): for
 * 0 <= bias <= src1Len+src2Len-1-dstLen this is
 * numpy.convolve(a, b, "full")[bias : bias+dstLen]. Direct evaluation, no
 * work buffer. 16s_Sfs forms the exact integer sums and applies the
 * scale-factor rule (2^-scaleFactor, nearest even, saturation).
 * Checks: null pSrc1, pSrc2 or pDst qspStsNullPtr; src1Len, src2Len or dstLen
 * below 1 qspStsBadSize. The operands may be the same array; pDst must not
 * overlap them. Nothing is written on error.
 */
QspStatus qspsConvBiased_32f(const Qsp32f* pSrc1, const Qsp32f* pSrc2, Qsp32f* pDst, int src1Len, int src2Len, int dstLen, int bias);
QspStatus qspsConvBiased_16s_Sfs(const Qsp16s* pSrc1, const Qsp16s* pSrc2, Qsp16s* pDst, int src1Len, int src2Len, int dstLen, int bias, int scaleFactor);

/* AutoCorrNorm ------------------------------------------------------------ */
/*
 * Autocorrelation for lags 0 .. dstLen-1:
 *   pDst[k] = r[k] / norm(k),  r[k] = sum over n of pSrc[n+k] * conj(pSrc[n])
 * (the sum over 0 <= n < srcLen-k; zero for k >= srcLen), which is
 * numpy.correlate(x, x, "full")[srcLen-1+k]. It is CrossCorrNorm of the
 * vector with itself from lowLag 0, with the same checks, methods and
 * buffer: normType qspNormNone (norm 1), qspNormBiased (srcLen),
 * qspNormUnbiased (srcLen-k), qspNormUnitEnergy (the energy sum |x|^2, so
 * lag 0 gives 1 to rounding); algType and the buffer
 * (AutoCorrNormGetBufferSize) as for CrossCorrNorm.
 */
QspStatus qspsAutoCorrNormGetBufferSize(int srcLen, int dstLen, QspDataType dataType, QspAlgType algType, int* pBufferSize);
QspStatus qspsAutoCorrNorm_32f(const Qsp32f* pSrc, Qsp32f* pDst, int srcLen, int dstLen, QspAlgType algType, QspCorrNorm normType, Qsp8u* pBuffer);
QspStatus qspsAutoCorrNorm_64f(const Qsp64f* pSrc, Qsp64f* pDst, int srcLen, int dstLen, QspAlgType algType, QspCorrNorm normType, Qsp8u* pBuffer);
QspStatus qspsAutoCorrNorm_32fc(const Qsp32fc* pSrc, Qsp32fc* pDst, int srcLen, int dstLen, QspAlgType algType, QspCorrNorm normType, Qsp8u* pBuffer);
QspStatus qspsAutoCorrNorm_64fc(const Qsp64fc* pSrc, Qsp64fc* pDst, int srcLen, int dstLen, QspAlgType algType, QspCorrNorm normType, Qsp8u* pBuffer);
QspStatus qspsAutoCorrNorm_16s32f(const Qsp16s* pSrc, Qsp32f* pDst, int srcLen, int dstLen, QspAlgType algType, QspCorrNorm normType, Qsp8u* pBuffer);
QspStatus qspsAutoCorrNorm_16s_Sfs(const Qsp16s* pSrc, Qsp16s* pDst, int srcLen, int dstLen, QspAlgType algType, QspCorrNorm normType, Qsp8u* pBuffer, int scaleFactor);

/* CrossCorrNorm ----------------------------------------------------------- */
/*
 * Cross-correlation for the lags lowLag .. lowLag+dstLen-1:
 *   pDst[k] = r[lowLag+k] / norm(lowLag+k),
 *   r[lag] = sum over n of pSrc2[n+lag] * conj(pSrc1[n]),
 * the sum over the n with both indices inside their operands (zero where
 * there is none). With lowLag = -(src1Len-1) and dstLen = src1Len+src2Len-1
 * this is numpy.correlate(pSrc2, pSrc1, "full"); lag 0 pairs the first
 * samples. normType: qspNormNone (norm 1), qspNormBiased (the longer length,
 * max(src1Len, src2Len)), qspNormUnbiased (the number of products at the lag;
 * 0 where there is none), qspNormUnitEnergy (sqrt(E1*E2), E the sum of |x|^2
 * of each operand; 0 when either is 0); any other value gives
 * qspStsBadArgument. Floating results are divided in double precision.
 * algType as for Convolve (direct, FFT, or the cheaper for the lengths);
 * values outside the lags with products cost nothing.
 * 16-bit forms use the exact integer sums: 16s32f writes them rounded once to
 * single precision (normalised ones as the double-precision quotient rounded
 * to single); 16s_Sfs applies the scale-factor rule to the plain sum (zeros
 * without computing when every result rounds to 0), to the exact quotient
 * sum/(norm*2^scaleFactor) for qspNormBiased and qspNormUnbiased, and to
 * the double-precision quotient for qspNormUnitEnergy.
 * CrossCorrNormGetBufferSize(src1Len, src2Len, dstLen, lowLag, dataType,
 * algType, &size) sizes pBuffer (any alignment, not null, nothing kept
 * between calls; one per thread) for every normType; dataType qsp32f,
 * qsp64f, qsp32fc, qsp64fc, or qsp16s for both 16-bit forms. Checks of the
 * size query: null pBufferSize, lengths below 1, dataType, algType, size
 * beyond int (qspStsOverflow), in that order. Checks of the correlation:
 * null pointer (pSrc1, pSrc2, pDst, pBuffer) qspStsNullPtr, src1Len, src2Len
 * or dstLen below 1 qspStsBadSize, algType qspStsBadAlgType, normType
 * qspStsBadArgument. The operands may be the same array; pDst must not
 * overlap them. Nothing is written on error.
 */
QspStatus qspsCrossCorrNormGetBufferSize(int src1Len, int src2Len, int dstLen, int lowLag, QspDataType dataType, QspAlgType algType, int* pBufferSize);
QspStatus qspsCrossCorrNorm_32f(const Qsp32f* pSrc1, const Qsp32f* pSrc2, Qsp32f* pDst, int src1Len, int src2Len, int dstLen, int lowLag, QspAlgType algType, QspCorrNorm normType, Qsp8u* pBuffer);
QspStatus qspsCrossCorrNorm_64f(const Qsp64f* pSrc1, const Qsp64f* pSrc2, Qsp64f* pDst, int src1Len, int src2Len, int dstLen, int lowLag, QspAlgType algType, QspCorrNorm normType, Qsp8u* pBuffer);
QspStatus qspsCrossCorrNorm_32fc(const Qsp32fc* pSrc1, const Qsp32fc* pSrc2, Qsp32fc* pDst, int src1Len, int src2Len, int dstLen, int lowLag, QspAlgType algType, QspCorrNorm normType, Qsp8u* pBuffer);
QspStatus qspsCrossCorrNorm_64fc(const Qsp64fc* pSrc1, const Qsp64fc* pSrc2, Qsp64fc* pDst, int src1Len, int src2Len, int dstLen, int lowLag, QspAlgType algType, QspCorrNorm normType, Qsp8u* pBuffer);
QspStatus qspsCrossCorrNorm_16s32f(const Qsp16s* pSrc1, const Qsp16s* pSrc2, Qsp32f* pDst, int src1Len, int src2Len, int dstLen, int lowLag, QspAlgType algType, QspCorrNorm normType, Qsp8u* pBuffer);
QspStatus qspsCrossCorrNorm_16s_Sfs(const Qsp16s* pSrc1, const Qsp16s* pSrc2, Qsp16s* pDst, int src1Len, int src2Len, int dstLen, int lowLag, QspAlgType algType, QspCorrNorm normType, Qsp8u* pBuffer, int scaleFactor);

/* Exp --------------------------------------------------------------------- */
/*
 * Exponential: pDst[i] = e^pSrc[i]; in place on pSrcDst.
 * Accuracy: 32f is correctly rounded (all 2^32 floats checked against the
 * exact values); 64f and 32f64f are within 0.52 ULP (0.506 measured against
 * MPFR on 10^7 arguments), subnormal results within 0.76 ULP (rounded twice;
 * 0.750 measured); 64f32f rounds the double result to float, within 0.5 +
 * 2^-28 ULP. Complex forms: e^(a+ib) = e^a cos b + i e^a sin b from double
 * e^a, cos b and sin b (b reduced exactly modulo pi/2 for every finite b):
 * each 32fc part within 0.5 + 2^-26 ULP, each 64fc part within 2.74 ULP (4.3
 * where |a| > 708, where e^(a/2) is applied twice so that no intermediate
 * overflows); a zero imaginary part gives a zero imaginary part of the same
 * sign. Special values: NaN gives the same NaN made quiet; +inf gives +inf,
 * -inf gives +0; results overflow to +inf above 88.72283 (single) and
 * 709.782712893384 (double) and underflow through the subnormals to +0.
 * Integer forms: e^x of the integer x times 2^-scaleFactor, rounded to
 * nearest (ties to even; e^x is irrational for x != 0 and the rounding is
 * decided on a value within 2^-100 of it) and saturated; every scale factor
 * is accepted. An element whose result exceeds the type's maximum gives the
 * maximum and the warning qspStsWarnOutOfDomain once the whole output is
 * written; results below 1/2 give 0 without a warning. Vector results equal
 * the one-element results bit for bit, whatever the position and the length.
 * A destination may be the same vector as the source (the I forms); other
 * overlaps are not allowed (32f64f writes doubles over its destination
 * first). Results assume the default floating-point modes (round to
 * nearest; no flush-to-zero or denormals-are-zero). Thread-safe.
 */
QspStatus qspsExp_32f(const Qsp32f* pSrc, Qsp32f* pDst, int len);
QspStatus qspsExp_32f_I(Qsp32f* pSrcDst, int len);
QspStatus qspsExp_64f(const Qsp64f* pSrc, Qsp64f* pDst, int len);
QspStatus qspsExp_64f_I(Qsp64f* pSrcDst, int len);
QspStatus qspsExp_32fc(const Qsp32fc* pSrc, Qsp32fc* pDst, int len);
QspStatus qspsExp_32fc_I(Qsp32fc* pSrcDst, int len);
QspStatus qspsExp_64fc(const Qsp64fc* pSrc, Qsp64fc* pDst, int len);
QspStatus qspsExp_64fc_I(Qsp64fc* pSrcDst, int len);
QspStatus qspsExp_32f64f(const Qsp32f* pSrc, Qsp64f* pDst, int len);
QspStatus qspsExp_64f32f(const Qsp64f* pSrc, Qsp32f* pDst, int len);
QspStatus qspsExp_16s_Sfs(const Qsp16s* pSrc, Qsp16s* pDst, int len, int scaleFactor);
QspStatus qspsExp_16s_ISfs(Qsp16s* pSrcDst, int len, int scaleFactor);
QspStatus qspsExp_32s_Sfs(const Qsp32s* pSrc, Qsp32s* pDst, int len, int scaleFactor);
QspStatus qspsExp_32s_ISfs(Qsp32s* pSrcDst, int len, int scaleFactor);
QspStatus qspsExp_64s_Sfs(const Qsp64s* pSrc, Qsp64s* pDst, int len, int scaleFactor);
QspStatus qspsExp_64s_ISfs(Qsp64s* pSrcDst, int len, int scaleFactor);

/* Ln ---------------------------------------------------------------------- */
/*
 * Natural logarithm: pDst[i] = ln(pSrc[i]); in place on pSrcDst.
 * Accuracy: 32f is correctly rounded (all 2^32 floats checked against the
 * exact values); 64f and 32f64f are within 0.52 ULP (0.501 measured against
 * MPFR on 10^7 arguments); 64f32f rounds the double result to float, within
 * 0.5 + 2^-28 ULP. Complex forms give ln|z| + i arg z on the principal branch
 * (arg in [-pi, pi], atan2 conventions: a negative real axis reached from
 * above gives +pi, from below (imaginary part -0) -pi): |z|^2 is formed
 * exactly in double-double (scaled by a power of two in 64fc), so |z| near
 * 1 keeps full relative accuracy; each 32fc part within 0.5 + 2^-26 ULP; 64fc
 * real parts within 2 ULP and imaginary parts within 2.5 ULP. Special
 * values: +inf gives +inf, NaN the same NaN made quiet. Zero and negative
 * elements, in every form: a zero (either sign; in complex forms 0 + 0i)
 * gives -infinity (integer forms: the type's minimum) and the warning
 * qspStsWarnLogOfZero; a negative element (-infinity included) gives the NaN
 * with the sign bit set (0xFFC00000 or 0xFFF8000000000000; integer forms:
 * the type's minimum) and the warning qspStsWarnLogOfNegative, which takes
 * precedence when both occur; the warning comes once the whole output is
 * written. Integer forms: ln x times 2^-scaleFactor, rounded to nearest (ties
 * to even; ln x is irrational for x > 1 and the rounding is decided on a
 * value within 2^-100 of it) and saturated; 32s16s reads 32-bit and writes
 * 16-bit integers; every scale factor is accepted. Vector results equal the
 * one-element results bit for bit. A destination may be the same vector as
 * the source (the I forms); other overlaps are not allowed. Results assume
 * the default floating-point modes. Thread-safe.
 */
QspStatus qspsLn_32f(const Qsp32f* pSrc, Qsp32f* pDst, int len);
QspStatus qspsLn_32f_I(Qsp32f* pSrcDst, int len);
QspStatus qspsLn_64f(const Qsp64f* pSrc, Qsp64f* pDst, int len);
QspStatus qspsLn_64f_I(Qsp64f* pSrcDst, int len);
QspStatus qspsLn_32fc(const Qsp32fc* pSrc, Qsp32fc* pDst, int len);
QspStatus qspsLn_32fc_I(Qsp32fc* pSrcDst, int len);
QspStatus qspsLn_64fc(const Qsp64fc* pSrc, Qsp64fc* pDst, int len);
QspStatus qspsLn_64fc_I(Qsp64fc* pSrcDst, int len);
QspStatus qspsLn_32f64f(const Qsp32f* pSrc, Qsp64f* pDst, int len);
QspStatus qspsLn_64f32f(const Qsp64f* pSrc, Qsp32f* pDst, int len);
QspStatus qspsLn_16s_Sfs(const Qsp16s* pSrc, Qsp16s* pDst, int len, int scaleFactor);
QspStatus qspsLn_16s_ISfs(Qsp16s* pSrcDst, int len, int scaleFactor);
QspStatus qspsLn_32s_Sfs(const Qsp32s* pSrc, Qsp32s* pDst, int len, int scaleFactor);
QspStatus qspsLn_32s_ISfs(Qsp32s* pSrcDst, int len, int scaleFactor);
QspStatus qspsLn_64s_Sfs(const Qsp64s* pSrc, Qsp64s* pDst, int len, int scaleFactor);
QspStatus qspsLn_64s_ISfs(Qsp64s* pSrcDst, int len, int scaleFactor);
QspStatus qspsLn_32s16s_Sfs(const Qsp32s* pSrc, Qsp16s* pDst, int len, int scaleFactor);

/* Cubrt ------------------------------------------------------------------- */
/*
 * Cube root: pDst[i] = cbrt(pSrc[i]); negative elements give negative roots.
 * 32f is correctly rounded (all 2^32 floats checked against the exact
 * values); cbrt(+-0) = +-0, cbrt(+-inf) = +-inf, NaN gives the same NaN made
 * quiet. Integer forms (16s, and 32s16s: 32-bit source, 16-bit root) give the
 * exact root times 2^-scaleFactor rounded to nearest with ties to even
 * (decided by comparing integer cubes: 27 with scaleFactor 1 gives 2) and
 * saturated; every scale factor is accepted, and it selects the kernel as the
 * scaling rule does: from 6 (16s) or 12 (32s16s) up every result rounds to 0
 * and the destination is zero-filled; from -16 down every non-zero root
 * saturates to the maximum or minimum. Vector results equal the one-element
 * results bit for bit. pDst must not overlap pSrc. Results assume the
 * default floating-point modes. Thread-safe.
 */
QspStatus qspsCubrt_32f(const Qsp32f* pSrc, Qsp32f* pDst, int len);
QspStatus qspsCubrt_16s_Sfs(const Qsp16s* pSrc, Qsp16s* pDst, int len, int scaleFactor);
QspStatus qspsCubrt_32s16s_Sfs(const Qsp32s* pSrc, Qsp16s* pDst, int len, int scaleFactor);

/* Arctan ------------------------------------------------------------------ */
/*
 * Arctangent: pDst[i] = atan(pSrc[i]) in [-pi/2, pi/2]; in place on pSrcDst.
 * 32f is correctly rounded (all 2^32 floats checked against the exact
 * values); 64f is within 0.53 ULP (0.522 measured against MPFR on 10^7
 * arguments). atan(+-0) = +-0, atan(+-inf) = +-pi/2 rounded, NaN gives the
 * same NaN made quiet. Vector results equal the one-element results bit for
 * bit. A destination may be the same vector as the source (the I forms);
 * other overlaps are not allowed. Results assume the default floating-point
 * modes. Thread-safe.
 */
QspStatus qspsArctan_32f(const Qsp32f* pSrc, Qsp32f* pDst, int len);
QspStatus qspsArctan_32f_I(Qsp32f* pSrcDst, int len);
QspStatus qspsArctan_64f(const Qsp64f* pSrc, Qsp64f* pDst, int len);
QspStatus qspsArctan_64f_I(Qsp64f* pSrcDst, int len);

#ifdef __cplusplus
}
#endif

#endif /* QSPS_H */

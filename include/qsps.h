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
 * pSrc[i]. Complex operands use the complex product. Mixed forms: 32f32fc
 * multiplies a complex vector (second source, or pSrcDst) by a real one;
 * 16u16s and 16s32s widen. Integer forms round and saturate as Add does; the
 * exact product of two 16s values lies in [-1073709056, 1073741824].
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
 * Accumulates a product: pSrcDst[i] += pSrc1[i] * pSrc2[i] (complex: the
 * complex product). Integer forms scale and saturate the new sum as Add does
 * (the product and the old value are added exactly before scaling).
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
 * Square root: pDst[i] = sqrt(pSrc[i]) (complex: the principal root); in place
 * on pSrcDst. A negative real element gives a NaN (floating) or 0 (integer)
 * and the warning qspStsWarnOutOfDomain once the whole output is written.
 * Integer forms scale, round and saturate (Sfs rule); 32s16s and 64s16s read
 * wide integers and write 16-bit roots.
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
 * interleaved complex vector (pSrc) or from separate parts (pSrcRe, pSrcIm).
 * 16sc and 32sc forms: 16sc32f writes floats, Sfs forms scale, round and saturate.
 * _L forms chunk as Add does.
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
 * (-pi, pi]; from an interleaved vector (pSrc) or from separate parts (pSrcRe,
 * pSrcIm). The Sfs form scale the angle by 2^-scaleFactor before rounding.
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
 * (pSrc) or from separate parts (pSrcRe, pSrcIm). Sfs forms scale, round and saturate. _L forms
 * chunk as Add does.
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
 * vDiv equal to zero gives qspStsZeroDivisor. The 16-bit forms compute
 * exactly, then scale by 2^-scaleFactor, round and saturate.
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
 * divisor element compares equal to zero the whole output is still written and
 * the warning qspStsWarnDivByZero is returned; integer quotients by zero are the
 * type's maximum for a positive dividend, its minimum for a negative one and 0
 * for 0. Integer forms scale, round to nearest even and saturate. _L forms
 * chunk as Add does.
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
 * A zero val (floating: one that compares equal to 0.0) gives
 * qspStsZeroDivisor. The floating forms multiply by the reciprocal of val,
 * computed once in the element precision. Integer forms scale, round and
 * saturate. _L forms chunk as Add does.
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
 * qspStsWarnDivByZero as in Div. _L forms chunk as Add does.
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
 * destination type. Widening conversions are exact. Narrowing integer and
 * float-to-integer forms (Sfs) multiply by 2^-scaleFactor, round as rndMode
 * says (0 toward zero, 1 to nearest even, 2 to nearest with ties away from
 * zero; above 2 gives qspStsBadRoundMode) and saturate; integer-to-float Sfs
 * forms only scale. 16f is IEEE half precision; 24u/24s elements are three
 * bytes, least significant first, so those vectors hold 3*len bytes.
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
 * Clamps elements against a level. Threshold_T with relOp qspCmpLess (0):
 * pDst[i] = max(pSrc[i], level); with qspCmpGreater (4): min(pSrc[i], level);
 * any other relOp gives qspStsBadArgument. LT/GT: the same with the comparison
 * fixed. LTVal/GTVal: elements below (above) level are replaced by value.
 * LTAbs/GTAbs: elements whose magnitude is below (above) level get magnitude
 * level, keeping their sign. LTAbsVal: elements whose magnitude is below level
 * become value. LTInv: pDst[i] = 1/pSrc[i], with magnitudes below level taken
 * as level (a zero level with a zero element gives the warning
 * qspStsWarnDivByZero). LTValGTVal: below levelLT becomes valueLT, above
 * levelGT becomes valueGT; levelLT above levelGT gives qspStsBadThreshold.
 * Complex forms compare magnitudes and keep the phase. A negative level of an
 * Abs or Inv form gives qspStsBadThreshold. _L forms of LTAbs chunk as Add
 * does.
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

#ifdef __cplusplus
}
#endif

#endif /* QSPS_H */

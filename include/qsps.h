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
 * Accumulates a product: pSrcDst[i] += pSrc1[i] * pSrc2[i] (complex: the
 * complex product). Floating forms round the product, then the sum (no fused
 * operation). Integer forms add the exact product to the old value, then scale
 * by 2^-scaleFactor, round to nearest even and saturate. A destination may be
 * the same vector as a source (that is how the I forms run); other overlaps
 * are not allowed. Thread-safe.
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
 * during Init, *pBufferSize for the work buffer of every transform call (0: no
 * buffer needed). flag is the normalisation: 1 forward divided by N, 2 inverse
 * divided by N, 4 both divided by sqrt(N), 8 none; any other value gives
 * qspStsBadFftFlag. hint is not checked. Kinds and orders: C_16fc, C_32fc, C_32f
 * (split parts) 0..28; R_32f 0..29; C_64fc, C_64f 0..27; R_64f 0..28; other
 * orders give qspStsBadFftOrder. Every size includes 64 bytes of slack per
 * non-empty block, so the blocks need no alignment.
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
 * values), and so does a call whose source equals its destination, with the
 * same results; otherwise source and destination must not overlap. Concurrent
 * calls sharing a record each need their own pBuffer. Checks: null record,
 * then the record's kind (qspStsBadRecord), then the data pointers, then a
 * null pBuffer while the record needs one.
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
 */
QspStatus qspsMulPack_32f_I(const Qsp32f* pSrc, Qsp32f* pSrcDst, int len);
QspStatus qspsMulPack_64f_I(const Qsp64f* pSrc, Qsp64f* pSrcDst, int len);

/* MulPackConj ------------------------------------------------------------- */
/*
 * As MulPack, with the in-place operand conjugated: pSrcDst = pSrc *
 * conj(pSrcDst), bin by bin, in Pack layout.
 */
QspStatus qspsMulPackConj_32f_I(const Qsp32f* pSrc, Qsp32f* pSrcDst, int len);
QspStatus qspsMulPackConj_64f_I(const Qsp64f* pSrc, Qsp64f* pSrcDst, int len);

/* MulPerm ----------------------------------------------------------------- */
/*
 * Multiplies two half spectra in Perm layout bin by bin: pDst = pSrc1 * pSrc2,
 * or in place pSrcDst = pSrc * pSrcDst. Element 0 and, for even len, element 1
 * are real; the complex pairs follow. len is the packed length (N values).
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

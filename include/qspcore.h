/* SPDX-License-Identifier: BSD-3-Clause
 *
 * qspcore.h - libqspcore, the support library of libqspsy8: aligned
 * allocation, the processor-feature query and the denormal controls.
 *
 * Plain C; usable from C and C++. All functions are thread-safe; the two
 * denormal controls change the calling thread's floating-point modes only.
 */
#ifndef QSPCORE_H
#define QSPCORE_H

#include "qspdefs.h"

#ifdef __cplusplus
extern "C" {
#endif

/* Allocation. qspMalloc takes a 32-bit byte count, qspMalloc_L a 64-bit one.
 * Both return memory aligned to 64 bytes, or null when the count is zero or
 * negative or the memory cannot be had. qspFree releases memory from either;
 * a null pointer does nothing. */
void* qspMalloc(int size);
void* qspMalloc_L(Qsp64s size);
void  qspFree(void* ptr);

/* Processor features, one bit each, for ownGetFeature. A bit reads as set
 * only when the processor has the feature and, for the features that use
 * the 256-bit or 512-bit register state, the operating system saves that
 * state. */
#define qspCPUID_MMX        0x0000000001ULL
#define qspCPUID_SSE        0x0000000002ULL
#define qspCPUID_SSE2       0x0000000004ULL
#define qspCPUID_SSE3       0x0000000008ULL
#define qspCPUID_SSSE3      0x0000000010ULL
#define qspCPUID_MOVBE      0x0000000020ULL
#define qspCPUID_SSE41      0x0000000040ULL
#define qspCPUID_SSE42      0x0000000080ULL
#define qspCPUID_AVX        0x0000000100ULL
#define qspCPUID_AES        0x0000000200ULL
#define qspCPUID_CLMUL      0x0000000400ULL
#define qspCPUID_POPCNT     0x0000000800ULL
#define qspCPUID_RDRAND     0x0000001000ULL
#define qspCPUID_FMA        0x0000002000ULL
#define qspCPUID_AVX2       0x0000004000ULL
#define qspCPUID_BMI1       0x0000008000ULL
#define qspCPUID_BMI2       0x0000010000ULL
#define qspCPUID_ADX        0x0000020000ULL
#define qspCPUID_RDSEED     0x0000040000ULL
#define qspCPUID_SHA        0x0000080000ULL
#define qspCPUID_AVX512F    0x0000100000ULL
#define qspCPUID_AVX512CD   0x0000200000ULL
#define qspCPUID_AVX512BW   0x0000400000ULL
#define qspCPUID_AVX512DQ   0x0000800000ULL
#define qspCPUID_AVX512VL   0x0001000000ULL
/* Half-precision conversion instructions (F16C); the half-precision
 * transforms ask for this bit to choose their path. */
#define qspCPUID_F16C       0x1000000000ULL

/* Returns 1 when the processor has every feature whose bit is set in
 * featureMask, else 0. A mask of 0 gives 1; a bit with no feature assigned
 * above reads as absent. The answer is computed on each call (CPUID); no
 * state is kept. */
int ownGetFeature(Qsp64u featureMask);

/* Denormal control of the calling thread (MXCSR register).
 * qspSetFlushToZero: value non-zero switches flush-to-zero on (denormal
 * results become zero), 0 switches it off. qspSetDenormAreZeros: likewise
 * for denormals-are-zero (denormal operands read as zero).
 * If pPrevious is not null it receives the mode before the call (1 on,
 * 0 off). Both return qspStsOk. */
QspStatus qspSetFlushToZero(int value, unsigned int* pPrevious);
QspStatus qspSetDenormAreZeros(int value, unsigned int* pPrevious);

#ifdef __cplusplus
}
#endif

#endif /* QSPCORE_H */

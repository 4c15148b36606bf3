/* SPDX-License-Identifier: BSD-3-Clause
 *
 * qspdefs.h - element types, status values and selector codes shared by
 * libqspsy8 (the signal-processing functions, <qsps.h>) and libqspcore
 * (allocation and processor support, <qspcore.h>).
 *
 * Plain C; usable from C and C++. Everything here is a type or a constant.
 */
#ifndef QSPDEFS_H
#define QSPDEFS_H

/* ------------------------------------------------------------------------
 * Version of these headers. qspsGetLibVersion() reports the version of the
 * library actually loaded; a program can compare the two at start-up:
 *
 *     const QspVersionRecord* v = qspsGetLibVersion();
 *     if (v->majorVersion != QSP_VERSION_MAJOR) ... built for another library
 *
 * QSP_VERSION is one number for #if tests: major * 10000 + minor * 100 +
 * update (2026.0.0 is 20260000).
 * ------------------------------------------------------------------------ */
#define QSP_VERSION_MAJOR  2026
#define QSP_VERSION_MINOR  0
#define QSP_VERSION_UPDATE 0
#define QSP_VERSION_STRING "2026.0.0"
#define QSP_VERSION (QSP_VERSION_MAJOR * 10000 + QSP_VERSION_MINOR * 100 + QSP_VERSION_UPDATE)

#ifdef __cplusplus
extern "C" {
#endif

/* ------------------------------------------------------------------------
 * Element types. The type code in a function name (8u, 16sc, 32f, ...)
 * names one of these. A complex element is a pair, real part first, and
 * counts as one element in every length.
 * ------------------------------------------------------------------------ */
typedef unsigned char      Qsp8u;
typedef signed char        Qsp8s;
typedef unsigned short     Qsp16u;
typedef short              Qsp16s;
typedef unsigned int       Qsp32u;
typedef int                Qsp32s;
typedef unsigned long long Qsp64u;
typedef long long          Qsp64s;
typedef float              Qsp32f;
typedef double             Qsp64f;
/* IEEE 754 binary16, held as its raw bit pattern. */
typedef unsigned short     Qsp16f;

typedef struct { Qsp8s  re; Qsp8s  im; } Qsp8sc;
typedef struct { Qsp16s re; Qsp16s im; } Qsp16sc;
typedef struct { Qsp32s re; Qsp32s im; } Qsp32sc;
typedef struct { Qsp64s re; Qsp64s im; } Qsp64sc;
typedef struct { Qsp16f re; Qsp16f im; } Qsp16fc;
typedef struct { Qsp32f re; Qsp32f im; } Qsp32fc;
typedef struct { Qsp64f re; Qsp64f im; } Qsp64fc;

/* ------------------------------------------------------------------------
 * Status. Every function of libqspsy8 returns a QspStatus, except the
 * allocators, qspsFree and qspsGetLibVersion.
 *   0         success
 *   negative  error: checked before anything is written, so the
 *             destination is untouched
 *   positive  warning: the whole output is written, but some element met a
 *             special case
 * ------------------------------------------------------------------------ */
typedef int QspStatus;

enum {
    qspStsOk                    = 0,

    /* errors */
    qspStsOverflow              = -4,   /* a computed size does not fit its type */
    qspStsBadArgument           = -5,   /* a selector is not one of its allowed values */
    qspStsBadSize               = -6,   /* a length is zero or negative */
    qspStsBadRange              = -7,   /* a lower bound lies above its upper bound */
    qspStsNullPtr               = -8,   /* a required pointer is null */
    qspStsZeroDivisor           = -10,  /* the divisor constant is zero */
    qspStsBadRecord             = -13,  /* a record lacks the identifier of its kind */
    qspStsBadRelFreq            = -14,  /* a relative frequency is outside its range */
    qspStsBadMaskSize           = -15,  /* a filter mask size is not positive and odd */
    qspStsBadStdDev             = -16,  /* a standard deviation is negative */
    qspStsBadFftOrder           = -17,  /* an FFT order is out of range */
    qspStsBadFftFlag            = -18,  /* an FFT normalisation flag is not 1, 2, 4 or 8 */
    qspStsBadWaveletParam       = -19,  /* a wavelet filter length or offset is out of range */
    qspStsBadPatternSize        = -20,  /* a pattern is longer than the vector searched */
    qspStsBadFilterOrder        = -25,  /* a filter order or biquad count is not positive */
    qspStsBadTapCount           = -26,  /* a FIR tap count is not positive */
    qspStsBadMu                 = -27,  /* an adaptation step size is outside its range */
    qspStsBadPhase              = -28,  /* a multi-rate phase is not below its factor */
    qspStsBadFactor             = -29,  /* a multi-rate factor is below 1 */
    qspStsBadDelayIndex         = -30,  /* a delay-line index is outside the delay line */
    qspStsBadThreshold          = -31,  /* a threshold level is not allowed for its mode */
    qspStsBadShift              = -32,  /* a shift count is negative */
    qspStsBadCount              = -33,  /* a requested count (as TopK's k) is out of range */
    qspStsBadTolerance          = -35,  /* a tolerance or accuracy argument is negative */
    qspStsBadWindowParam        = -39,  /* the Kaiser window parameter is too large */
    qspStsBadTriangleAsymmetry  = -40,  /* triangle asymmetry outside [-pi, pi) */
    qspStsBadTrianglePhase      = -41,  /* triangle phase outside [0, 2pi) */
    qspStsBadTriangleFrequency  = -42,  /* triangle relative frequency outside [0, 0.5) */
    qspStsBadTriangleMagnitude  = -43,  /* triangle magnitude not above zero */
    qspStsBadTonePhase          = -44,  /* tone phase outside [0, 2pi) */
    qspStsBadToneFrequency      = -45,  /* tone relative frequency outside [0, 0.5) */
    qspStsBadToneMagnitude      = -46,  /* tone magnitude not above zero */
    qspStsBadDataType           = -59,  /* a data-type code the function does not support */
    qspStsBadRoundMode          = -213, /* a rounding mode other than 0, 1 or 2 */
    qspStsBadAlgType            = -228, /* an algorithm type not 0, 1 or 2 */

    /* warnings */
    qspStsWarnNoOperation       = 1,    /* nothing needed doing; the output equals the input */
    qspStsWarnDivByZero         = 2,    /* a division met one or more zero divisors */
    qspStsWarnOutOfDomain       = 3,    /* an element was outside the function's domain */
    qspStsWarnLogOfZero         = 7,    /* a logarithm met a zero argument */
    qspStsWarnLogOfNegative     = 8     /* a logarithm met a negative argument */
};

/* The name and meaning of a status, as constant text: for messages, as in
 *
 *     QspStatus st = qspsAdd_32f(a, b, c, n);
 *     if (st != qspStsOk) fprintf(stderr, "Add_32f: %s\n", qspStatusText(st));
 *
 * A value this header does not name gives "unknown error" or "unknown
 * warning". Defined here, in the header, so it adds nothing to either
 * library's exports; thread-safe. */
static inline const char* qspStatusText(QspStatus status)
{
    switch (status) {
    case qspStsOk:                   return "qspStsOk: no error";
    case qspStsOverflow:             return "qspStsOverflow: a computed size does not fit its type";
    case qspStsBadArgument:          return "qspStsBadArgument: a selector is not one of its allowed values";
    case qspStsBadSize:              return "qspStsBadSize: a length is zero or negative";
    case qspStsBadRange:             return "qspStsBadRange: a lower bound lies above its upper bound";
    case qspStsNullPtr:              return "qspStsNullPtr: a required pointer is null";
    case qspStsZeroDivisor:          return "qspStsZeroDivisor: the divisor constant is zero";
    case qspStsBadRecord:            return "qspStsBadRecord: a record lacks the identifier of its kind";
    case qspStsBadRelFreq:           return "qspStsBadRelFreq: a relative frequency is outside its range";
    case qspStsBadMaskSize:          return "qspStsBadMaskSize: a filter mask size is not positive and odd";
    case qspStsBadStdDev:            return "qspStsBadStdDev: a standard deviation is negative";
    case qspStsBadFftOrder:          return "qspStsBadFftOrder: an FFT order is out of range";
    case qspStsBadFftFlag:           return "qspStsBadFftFlag: an FFT normalisation flag is not 1, 2, 4 or 8";
    case qspStsBadWaveletParam:      return "qspStsBadWaveletParam: a wavelet filter length or offset is out of range";
    case qspStsBadPatternSize:       return "qspStsBadPatternSize: a pattern is longer than the vector searched";
    case qspStsBadFilterOrder:       return "qspStsBadFilterOrder: a filter order or biquad count is not positive";
    case qspStsBadTapCount:          return "qspStsBadTapCount: a FIR tap count is not positive";
    case qspStsBadMu:                return "qspStsBadMu: an adaptation step size is outside its range";
    case qspStsBadPhase:             return "qspStsBadPhase: a multi-rate phase is not below its factor";
    case qspStsBadFactor:            return "qspStsBadFactor: a multi-rate factor is below 1";
    case qspStsBadDelayIndex:        return "qspStsBadDelayIndex: a delay-line index is outside the delay line";
    case qspStsBadThreshold:         return "qspStsBadThreshold: a threshold level is not allowed for its mode";
    case qspStsBadShift:             return "qspStsBadShift: a shift count is negative";
    case qspStsBadCount:             return "qspStsBadCount: a requested count is out of range";
    case qspStsBadTolerance:         return "qspStsBadTolerance: a tolerance or accuracy argument is negative";
    case qspStsBadWindowParam:       return "qspStsBadWindowParam: the Kaiser window parameter is too large";
    case qspStsBadTriangleAsymmetry: return "qspStsBadTriangleAsymmetry: triangle asymmetry outside [-pi, pi)";
    case qspStsBadTrianglePhase:     return "qspStsBadTrianglePhase: triangle phase outside [0, 2pi)";
    case qspStsBadTriangleFrequency: return "qspStsBadTriangleFrequency: triangle relative frequency outside [0, 0.5)";
    case qspStsBadTriangleMagnitude: return "qspStsBadTriangleMagnitude: triangle magnitude not above zero";
    case qspStsBadTonePhase:         return "qspStsBadTonePhase: tone phase outside [0, 2pi)";
    case qspStsBadToneFrequency:     return "qspStsBadToneFrequency: tone relative frequency outside [0, 0.5)";
    case qspStsBadToneMagnitude:     return "qspStsBadToneMagnitude: tone magnitude not above zero";
    case qspStsBadDataType:          return "qspStsBadDataType: a data-type code the function does not support";
    case qspStsBadRoundMode:         return "qspStsBadRoundMode: a rounding mode other than 0, 1 or 2";
    case qspStsBadAlgType:           return "qspStsBadAlgType: an algorithm type not 0, 1 or 2";
    case qspStsWarnNoOperation:      return "qspStsWarnNoOperation: nothing needed doing; the output equals the input";
    case qspStsWarnDivByZero:        return "qspStsWarnDivByZero: a division met one or more zero divisors";
    case qspStsWarnOutOfDomain:      return "qspStsWarnOutOfDomain: an element was outside the function's domain";
    case qspStsWarnLogOfZero:        return "qspStsWarnLogOfZero: a logarithm met a zero argument";
    case qspStsWarnLogOfNegative:    return "qspStsWarnLogOfNegative: a logarithm met a negative argument";
    default:                         return status < 0 ? "unknown error" : "unknown warning";
    }
}

/* Accuracy hint of some floating-point functions: 1 asks for the fast
 * path; every other value, including 0 and 2, means accurate. Never
 * rejected. */
typedef int QspHintAlgorithm;
enum {
    qspAlgHintNone     = 0,
    qspAlgHintFast     = 1,
    qspAlgHintAccurate = 2
};

/* Normalisation of the FFT: the flag argument of the FFTGetSize and
 * FFTInit functions (any other value gives qspStsBadFftFlag). N is the
 * transform length, 2^order. */
enum {
    qspFftDivFwdByN  = 1,  /* the forward transform divided by N, the inverse not */
    qspFftDivInvByN  = 2,  /* the inverse transform divided by N, the forward not */
    qspFftDivBySqrtN = 4,  /* both divided by sqrt(N): forward then inverse is the identity */
    qspFftNoDiv      = 8   /* neither divided: forward then inverse gives N times the input */
};

/* Data-type codes, used by the size queries of the filters and sorts to
 * name the element type they will work on. */
typedef int QspDataType;
enum {
    qsp1u   = 0,
    qsp8u   = 1,  qsp8uc  = 2,  qsp8s   = 3,  qsp8sc  = 4,
    qsp16u  = 5,  qsp16uc = 6,  qsp16s  = 7,  qsp16sc = 8,
    qsp32u  = 9,  qsp32uc = 10, qsp32s  = 11, qsp32sc = 12,
    qsp32f  = 13, qsp32fc = 14,
    qsp64u  = 15, qsp64uc = 16, qsp64s  = 17, qsp64sc = 18,
    qsp64f  = 19, qsp64fc = 20
};

/* Method choice of the FIR filters. */
typedef int QspAlgType;
enum {
    qspAlgAuto   = 0,
    qspAlgDirect = 1,
    qspAlgFFT    = 2
};

/* Rounding of scaled integer results where a function takes a rounding
 * mode (Div_Round, the float-to-integer conversions). Any other value
 * gives qspStsBadRoundMode. */
typedef int QspRoundMode;
enum {
    qspRndZero      = 0,  /* toward zero */
    qspRndNear      = 1,  /* to nearest, ties to even */
    qspRndFinancial = 2   /* to nearest, ties away from zero */
};

/* Comparison selector of Threshold: the relation under which an element
 * is replaced by the level. Threshold accepts qspCmpLess and qspCmpGreater
 * only; other values give qspStsBadArgument. */
typedef int QspCmpOp;
enum {
    qspCmpLess      = 0,
    qspCmpLessEq    = 1,
    qspCmpEq        = 2,
    qspCmpGreaterEq = 3,
    qspCmpGreater   = 4
};

/* Zero-crossing measure of ZeroCrossing. */
typedef int QspZCType;
enum {
    qspZCR   = 0,  /* sign changes, a zero counting as positive */
    qspZCXor = 1,  /* sign bits of neighbours differ */
    qspZCC   = 2   /* half the sum of |sign(x[i]) - sign(x[i-1])| */
};

/* Comparison of PatternMatch. */
typedef int QspPatternMatchMode;
enum {
    qspPatternMatchEqual   = 0,  /* count the equal elements */
    qspPatternMatchHamming = 1   /* count the differing bits */
};

/* Window of FIR filter design (FIRGen). */
typedef int QspWinType;
enum {
    qspWinBartlett = 0,
    qspWinBlackman = 1,
    qspWinHamming  = 2,
    qspWinHann     = 3,
    qspWinRect     = 4
};

/* Prototype of IIR filter design (IIRGen). */
typedef int QspIIRFilterType;
enum {
    qspIIRButterworth = 0,
    qspIIRChebyshev1  = 1
};

/* Normalisation of AutoCorrNorm and CrossCorrNorm. */
typedef int QspCorrNorm;
enum {
    qspNormNone     = 0,  /* the plain sums */
    qspNormBiased   = 1,  /* divided by the source length */
    qspNormUnbiased = 2,  /* divided by the number of products at each lag */
    qspNormUnitEnergy = 3 /* divided by the square root of the product of the energies */
};

/* ------------------------------------------------------------------------
 * Records in caller memory. Their layouts are internal: a caller only sizes
 * them with the matching GetSize/GetStateSize query, has Init build them
 * inside its own block and passes the pointer that Init returns.
 * ------------------------------------------------------------------------ */
/* FFT records, one kind per data kind (C: complex, R: real; 32f/64f after
 * C: split real and imaginary arrays). */
typedef struct QspsFFTSpec_C_16fc QspsFFTSpec_C_16fc;
typedef struct QspsFFTSpec_C_32fc QspsFFTSpec_C_32fc;
typedef struct QspsFFTSpec_C_32f QspsFFTSpec_C_32f;
typedef struct QspsFFTSpec_R_32f QspsFFTSpec_R_32f;
typedef struct QspsFFTSpec_C_64fc QspsFFTSpec_C_64fc;
typedef struct QspsFFTSpec_C_64f QspsFFTSpec_C_64f;
typedef struct QspsFFTSpec_R_64f QspsFFTSpec_R_64f;
/* DFT records (any length), same kinds as the FFT. */
typedef struct QspsDFTSpec_C_16fc QspsDFTSpec_C_16fc;
typedef struct QspsDFTSpec_C_32fc QspsDFTSpec_C_32fc;
typedef struct QspsDFTSpec_C_32f QspsDFTSpec_C_32f;
typedef struct QspsDFTSpec_R_32f QspsDFTSpec_R_32f;
typedef struct QspsDFTSpec_C_64fc QspsDFTSpec_C_64fc;
typedef struct QspsDFTSpec_C_64f QspsDFTSpec_C_64f;
typedef struct QspsDFTSpec_R_64f QspsDFTSpec_R_64f;
/* DCT records, forward and inverse. */
typedef struct QspsDCTFwdSpec_32f QspsDCTFwdSpec_32f;
typedef struct QspsDCTInvSpec_32f QspsDCTInvSpec_32f;
typedef struct QspsDCTFwdSpec_64f QspsDCTFwdSpec_64f;
typedef struct QspsDCTInvSpec_64f QspsDCTInvSpec_64f;
/* FIR single-rate records; 32f_32fc: real taps, complex data. */
typedef struct QspsFIRSpec_32f QspsFIRSpec_32f;
typedef struct QspsFIRSpec_64f QspsFIRSpec_64f;
typedef struct QspsFIRSpec_32fc QspsFIRSpec_32fc;
typedef struct QspsFIRSpec_64fc QspsFIRSpec_64fc;
typedef struct QspsFIRSpec32f_32fc QspsFIRSpec32f_32fc;
/* IIR states. A precision before the underscore names the arithmetic and
 * the state, the code after it the data (64f_32s: double state, 32s data). */
typedef struct QspsIIRState_32f QspsIIRState_32f;
typedef struct QspsIIRState_32fc QspsIIRState_32fc;
typedef struct QspsIIRState32f_16s QspsIIRState32f_16s;
typedef struct QspsIIRState32fc_16sc QspsIIRState32fc_16sc;
typedef struct QspsIIRState_64f QspsIIRState_64f;
typedef struct QspsIIRState_64fc QspsIIRState_64fc;
typedef struct QspsIIRState64f_32f QspsIIRState64f_32f;
typedef struct QspsIIRState64fc_32fc QspsIIRState64fc_32fc;
typedef struct QspsIIRState64f_32s QspsIIRState64f_32s;
typedef struct QspsIIRState64fc_32sc QspsIIRState64fc_32sc;
typedef struct QspsIIRState64f_16s QspsIIRState64f_16s;
typedef struct QspsIIRState64fc_16sc QspsIIRState64fc_16sc;

/* Records of the other transforms and filters, and generator states. */
typedef struct QspsHilbertSpec_32f QspsHilbertSpec_32f;
typedef struct QspsHilbertSpec_64f QspsHilbertSpec_64f;
typedef struct QspsWTFwdState_32f QspsWTFwdState_32f;
typedef struct QspsWTInvState_32f QspsWTInvState_32f;
typedef struct QspsFIRMRSpec_32f QspsFIRMRSpec_32f;
typedef struct QspsFIRMRSpec_64f QspsFIRMRSpec_64f;
typedef struct QspsFIRMRSpec_32fc QspsFIRMRSpec_32fc;
typedef struct QspsFIRMRSpec_64fc QspsFIRMRSpec_64fc;
typedef struct QspsFIRMRSpec32f_32fc QspsFIRMRSpec32f_32fc;
typedef struct QspsFIRLMSState_32f QspsFIRLMSState_32f;
typedef struct QspsFIRLMSState32f_16s QspsFIRLMSState32f_16s;
typedef struct QspsFIRSparseState_32f QspsFIRSparseState_32f;
typedef struct QspsFIRSparseState_32fc QspsFIRSparseState_32fc;
typedef struct QspsFIRSparseState32f_16s QspsFIRSparseState32f_16s;
typedef struct QspsIIRSparseState_32f QspsIIRSparseState_32f;
typedef struct QspsIIRSparseState32f_16s QspsIIRSparseState32f_16s;
typedef struct QspsResamplingPolyphase_16s QspsResamplingPolyphase_16s;
typedef struct QspsResamplingPolyphase_32f QspsResamplingPolyphase_32f;
typedef struct QspsResamplingPolyphaseFixed_16s QspsResamplingPolyphaseFixed_16s;
typedef struct QspsResamplingPolyphaseFixed_32f QspsResamplingPolyphaseFixed_32f;
typedef struct QspsRandUniformState_8u QspsRandUniformState_8u;
typedef struct QspsRandUniformState_16s QspsRandUniformState_16s;
typedef struct QspsRandUniformState_32f QspsRandUniformState_32f;
typedef struct QspsRandUniformState_64f QspsRandUniformState_64f;
typedef struct QspsRandGaussState_8u QspsRandGaussState_8u;
typedef struct QspsRandGaussState_16s QspsRandGaussState_16s;
typedef struct QspsRandGaussState_32f QspsRandGaussState_32f;
typedef struct QspsRandGaussState_64f QspsRandGaussState_64f;

/* Version record returned by qspsGetLibVersion. One constant record in the
 * library's read-only data; never written, never freed by the caller. */
typedef struct {
    int          majorVersion;   /* 2026 */
    int          minorVersion;   /* 0 */
    int          updateNumber;   /* 0 */
    unsigned int buildNumber;    /* build identifier */
    char         cpuCode[4];     /* processor variant, "y8" and two zero bytes */
    const char  *libraryName;    /* "qspSP SSE4.2 (y8)" */
    const char  *versionText;    /* "major.minor.update (r0x<build number in hex>)" */
    const char  *buildDateText;  /* "Mon DD YYYY" */
    int          recordLevel;    /* layout level of the library's records */
} QspVersionRecord;

#ifdef __cplusplus
}
#endif

#endif /* QSPDEFS_H */

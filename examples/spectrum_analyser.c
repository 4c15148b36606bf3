/* SPDX-License-Identifier: BSD-3-Clause
 *
 * Spectrum analyser: a 1 kHz tone and a weak 2.5 kHz tone in noise, sampled
 * at 8 kHz, are windowed (a Hann window computed here), transformed by the
 * real FFT into the CCS layout, turned into magnitudes and searched for
 * their two strongest lines, printed in dB.
 *
 * What it shows: the life of an FFT record in caller memory (size query,
 * allocation, Init, transforms, free), a named normalisation flag, the CCS
 * layout read as N/2 + 1 complex bins, and turning a status into text.
 *
 * Build against an installed library:
 *     cc spectrum_analyser.c $(pkg-config --cflags --libs qsp) -lm
 */
#include <math.h>
#include <stdio.h>

#include "qsps.h"

enum { kOrder = 10, kN = 1 << kOrder, kBins = kN / 2 + 1 };
static const double kRate = 8000.0; /* samples per second */
static const double kPi = 3.14159265358979323846;

/* Prints a failed call's status as text; returns the status. */
static QspStatus check(const char* what, QspStatus st)
{
    if (st != qspStsOk) fprintf(stderr, "%s: %s\n", what, qspStatusText(st));
    return st;
}

/* Uniform noise in [-1, 1) from a fixed linear congruential sequence, so
 * that every run prints the same figures. */
static double noise(unsigned* state)
{
    *state = *state * 1664525u + 1013904223u;
    return (double)(*state >> 8) / 8388608.0 - 1.0;
}

/* Finds the bin with the largest magnitude and prints it as frequency,
 * amplitude and level relative to a full-scale sine (amplitude 1). A sine
 * of amplitude A leaves A/2 in its bin when the forward transform is
 * divided by N, and the Hann window halves that: the amplitude is 4 times
 * the magnitude. */
static QspStatus strongest(const char* label, const Qsp32f* mag, int* bin)
{
    Qsp32f peak;
    const QspStatus st = check("qspsMaxIndx_32f", qspsMaxIndx_32f(mag, kBins, &peak, bin));
    if (st == qspStsOk) {
        const double amplitude = 4.0 * peak;
        printf("%s bin %d = %.1f Hz, amplitude %.4f (%.1f dBFS)\n", label, *bin, *bin * kRate / kN, amplitude,
               20.0 * log10(amplitude));
    }
    return st;
}

static QspStatus analyse(Qsp32f* x, Qsp32f* window, Qsp32f* ccs, Qsp32f* mag)
{
    int specSize, initSize, workSize, bin, from, to, n;
    unsigned seed = 12345u;
    QspsFFTSpec_R_32f* spec = NULL;
    Qsp8u *specMem = NULL, *initMem = NULL, *work = NULL;
    QspStatus st;

    /* The signal: 0.5 sin(2 pi 1000 t) + 0.005 sin(2 pi 2500 t) + noise,
     * windowed. */
    for (n = 0; n < kN; ++n) {
        const double t = n / kRate;
        x[n] = (Qsp32f)(0.5 * sin(2 * kPi * 1000.0 * t) + 0.005 * sin(2 * kPi * 2500.0 * t) + 1e-4 * noise(&seed));
        window[n] = (Qsp32f)(0.5 - 0.5 * cos(2 * kPi * n / kN)); /* periodic Hann */
    }
    if ((st = check("qspsMul_32f_I", qspsMul_32f_I(window, x, kN))) != qspStsOk) return st;

    /* The FFT record: ask for the sizes, allocate, build it in place. The
     * Init buffer is needed during Init only, the work buffer by every
     * transform; a size of 0 means no buffer. */
    st = qspsFFTGetSize_R_32f(kOrder, qspFftDivFwdByN, qspAlgHintNone, &specSize, &initSize, &workSize);
    if (check("qspsFFTGetSize_R_32f", st) != qspStsOk) return st;
    specMem = qspsMalloc_8u(specSize);
    initMem = initSize > 0 ? qspsMalloc_8u(initSize) : NULL;
    work = workSize > 0 ? qspsMalloc_8u(workSize) : NULL;
    if (!specMem || (initSize > 0 && !initMem) || (workSize > 0 && !work)) {
        fprintf(stderr, "out of memory\n");
        st = qspStsNullPtr;
    } else {
        st = check("qspsFFTInit_R_32f",
                   qspsFFTInit_R_32f(&spec, kOrder, qspFftDivFwdByN, qspAlgHintNone, specMem, initMem));
    }
    qspsFree(initMem);

    /* Forward transform into CCS: element 2k is the real part of bin k and
     * element 2k + 1 its imaginary part, k = 0 .. N/2, so the array reads
     * as N/2 + 1 complex values. */
    if (st == qspStsOk) st = check("qspsFFTFwd_RToCCS_32f", qspsFFTFwd_RToCCS_32f(x, ccs, spec, work));
    if (st == qspStsOk) st = check("qspsMagnitude_32fc", qspsMagnitude_32fc((const Qsp32fc*)ccs, mag, kBins));
    qspsFree(work);
    qspsFree(specMem);
    if (st != qspStsOk) return st;

    printf("spectrum analyser: %d samples at %.0f Hz, Hann window, real FFT of order %d (CCS)\n", kN, kRate, kOrder);
    if ((st = strongest("strongest:", mag, &bin)) != qspStsOk) return st;
    /* Clear the strongest line's main lobe (the Hann window spreads a tone
     * over its bin and two on each side), then look again. */
    from = bin > 3 ? bin - 3 : 0;
    to = bin + 3 < kBins - 1 ? bin + 3 : kBins - 1;
    if ((st = check("qspsZero_32f", qspsZero_32f(mag + from, to - from + 1))) != qspStsOk) return st;
    return strongest("next:     ", mag, &bin);
}

int main(void)
{
    Qsp32f* x = qspsMalloc_32f(kN);
    Qsp32f* window = qspsMalloc_32f(kN);
    Qsp32f* ccs = qspsMalloc_32f(kN + 2); /* CCS holds N + 2 values */
    Qsp32f* mag = qspsMalloc_32f(kBins);
    const QspStatus st = x && window && ccs && mag ? analyse(x, window, ccs, mag) : qspStsNullPtr;
    qspsFree(x);
    qspsFree(window);
    qspsFree(ccs);
    qspsFree(mag);
    return st == qspStsOk ? 0 : 1;
}

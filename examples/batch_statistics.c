/* SPDX-License-Identifier: BSD-3-Clause
 *
 * Batch statistics: for each batch of measurements (response times in
 * milliseconds, here generated), the mean and standard deviation, the
 * extremes, and the median and 95th percentile from a radix sort.
 *
 * What it shows: reductions that return their result through a pointer
 * (MeanStdDev, MinMax), and the in-place radix sort with a work buffer
 * that the caller sizes once for the longest batch and reuses. The sort
 * works on a copy, so the batch itself keeps its order.
 *
 * Build against an installed library:
 *     cc batch_statistics.c $(pkg-config --cflags --libs qsp)
 */
#include <stdio.h>

#include "qsps.h"

enum { kBatches = 4, kMaxLen = 1000 };

static QspStatus check(const char* what, QspStatus st)
{
    if (st != qspStsOk) fprintf(stderr, "%s: %s\n", what, qspStatusText(st));
    return st;
}

/* Batch b: the values base + step * (k + 0.5) for k = 0 .. len-1, in an
 * order shuffled by a fixed sequence, so that the median and percentile
 * are known exactly; batch 2 also carries one outlier, which moves the
 * mean and the deviation but hardly the median. */
static int makeBatch(int b, Qsp32f* v)
{
    static const int lengths[kBatches] = {1000, 400, 1000, 250};
    static const float base[kBatches] = {10.0f, 12.0f, 10.0f, 30.0f};
    static const float step[kBatches] = {0.01f, 0.02f, 0.01f, 0.04f};
    const int len = lengths[b];
    unsigned state = 2026u + (unsigned)b;
    int k;
    for (k = 0; k < len; ++k) v[k] = base[b] + step[b] * ((float)k + 0.5f);
    for (k = len - 1; k > 0; --k) { /* Fisher-Yates with a linear congruential sequence */
        int j;
        Qsp32f t;
        state = state * 1664525u + 1013904223u;
        j = (int)((state >> 8) % (unsigned)(k + 1));
        t = v[k];
        v[k] = v[j];
        v[j] = t;
    }
    if (b == 2) v[len / 3] = 250.0f;
    return len;
}

int main(void)
{
    int bufferSize, b, rc = 1;
    Qsp32f* batch = qspsMalloc_32f(kMaxLen);
    Qsp32f* sorted = qspsMalloc_32f(kMaxLen);
    Qsp8u* buffer = NULL;

    /* One sort buffer for the longest batch serves every shorter one. */
    if (check("qspsSortRadixGetBufferSize", qspsSortRadixGetBufferSize(kMaxLen, qsp32f, &bufferSize)) != qspStsOk)
        goto done;
    buffer = qspsMalloc_8u(bufferSize);
    if (!batch || !sorted || !buffer) goto done;

    printf("batch statistics of response times (ms), sort buffer %d bytes\n", bufferSize);
    printf("batch     n     mean   stddev      min   median      p95      max\n");
    for (b = 0; b < kBatches; ++b) {
        Qsp32f mean, stdDev, min, max, median, p95;
        const int len = makeBatch(b, batch);
        if (check("qspsMeanStdDev_32f", qspsMeanStdDev_32f(batch, len, &mean, &stdDev, qspAlgHintAccurate)) ||
            check("qspsMinMax_32f", qspsMinMax_32f(batch, len, &min, &max)) ||
            check("qspsCopy_32f", qspsCopy_32f(batch, sorted, len)) ||
            check("qspsSortRadixAscend_32f_I", qspsSortRadixAscend_32f_I(sorted, len, buffer)))
            goto done;
        /* The median of an even count is the mean of the middle two; the
         * 95th percentile is the smallest value with 95 % at or below it. */
        median = len % 2 ? sorted[len / 2] : 0.5f * (sorted[len / 2 - 1] + sorted[len / 2]);
        p95 = sorted[(95 * len + 99) / 100 - 1];
        printf("%5d %5d %8.3f %8.3f %8.3f %8.3f %8.3f %8.3f\n", b, len, mean, stdDev, min, median, p95, max);
    }
    rc = 0;

done:
    qspsFree(batch);
    qspsFree(sorted);
    qspsFree(buffer);
    return rc;
}

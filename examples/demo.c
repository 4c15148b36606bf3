/* SPDX-License-Identifier: BSD-3-Clause
 * A first look at libqspsy8: allocate a vector, fill, copy and reverse it,
 * and print the library's version. */
#include <stdio.h>

#include "qsps.h"

int main(void)
{
    const QspVersionRecord* v = qspsGetLibVersion();
    printf("%s %s, built %s\n", v->libraryName, v->versionText, v->buildDateText);

    enum { N = 8 };
    Qsp32f* ramp = qspsMalloc_32f(N);
    Qsp32f* rev = qspsMalloc_32f(N);
    if (!ramp || !rev) return 1;
    for (int i = 0; i < N; ++i) ramp[i] = (Qsp32f)i;

    QspStatus st = qspsFlip_32f(ramp, rev, N);
    printf("Flip_32f: status %d:", st);
    for (int i = 0; i < N; ++i) printf(" %g", rev[i]);
    printf("\n");

    st = qspsSet_32f(-0.0f, rev, N);
    printf("Set_32f(-0.0): status %d, first element %g\n", st, rev[0]);

    st = qspsCopy_32f(ramp, NULL, N);
    printf("Copy_32f to a null destination: status %d (qspStsNullPtr is %d)\n", st, qspStsNullPtr);

    qspsFree(ramp);
    qspsFree(rev);
    return 0;
}

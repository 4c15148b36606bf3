/* SPDX-License-Identifier: BSD-3-Clause
 * A plain C99 program using the public headers: it must compile without a
 * warning and return 0. */
#include <stdio.h>

#include "qspcore.h"
#include "qsps.h"

int main(void)
{
    Qsp32fc* v = qspsMalloc_32fc(4);
    Qsp32fc one = {1.0f, -2.0f};
    int failures = 0;
    if (!v) return 1;
    failures += qspsSet_32fc(one, v, 4) != qspStsOk;
    failures += v[3].re != 1.0f || v[3].im != -2.0f;
    failures += qspsZero_32fc(v, 4) != qspStsOk || v[0].re != 0.0f;
    failures += qspsCopy_32fc(v, NULL, 4) != qspStsNullPtr;
    failures += qspsGetLibVersion()->majorVersion != 2026;
    failures += ownGetFeature(qspCPUID_SSE42) != 1;
    qspsFree(v);
    if (failures) printf("%d failures\n", failures);
    return failures;
}

/* SPDX-License-Identifier: BSD-3-Clause
 * A plain C99 program using the public headers: it must compile without a
 * warning and return 0. */
#include <stdio.h>
#include <string.h>

#include "qspcore.h"
#include "qsps.h"

#if QSP_VERSION < 20260000
#error "the header's version macros are missing"
#endif

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
    failures += qspsGetLibVersion()->majorVersion != QSP_VERSION_MAJOR;
    failures += strncmp(qspStatusText(qspStsNullPtr), "qspStsNullPtr: ", 15) != 0;
    failures += qspFftDivFwdByN != 1 || qspFftDivInvByN != 2 || qspFftDivBySqrtN != 4 || qspFftNoDiv != 8;
    failures += ownGetFeature(qspCPUID_SSE42) != 1;
    qspsFree(v);
    if (failures) printf("%d failures\n", failures);
    return failures;
}

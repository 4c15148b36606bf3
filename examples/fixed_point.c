/* SPDX-License-Identifier: BSD-3-Clause
 *
 * Fixed-point pipeline: y = x * g + d computed in Q15, the 16-bit format
 * whose value is the integer times 2^-15 (range -1 .. 1 - 2^-15), and
 * compared with the same computation in double precision.
 *
 *   1. float to Q15: Convert_32f16s_Sfs with scale factor -15 multiplies by
 *      2^15, rounds to nearest even and saturates (1.5 becomes 32767);
 *   2. scaled multiply: Mul_16s_Sfs with scale factor 15 divides the exact
 *      product (Q30) by 2^15, rounding to nearest even: Q15 again;
 *   3. add: Add_16s_Sfs with scale factor 0 saturates the sum;
 *   4. back to float: Convert_16s32f_Sfs with scale factor 15.
 *
 * Four roundings of at most half a unit of Q15 (2^-16) each: x, g and d on
 * conversion and the product; the errors of x and g are weighted by |g|
 * and |x|, both at most 1, and the sum is exact unless it saturates. So
 * the result stays within 4 * 2^-16 of the double computation on the
 * clamped input; the program checks that bound.
 *
 * Build against an installed library:
 *     cc fixed_point.c $(pkg-config --cflags --libs qsp) -lm
 */
#include <math.h>
#include <stdio.h>

#include "qsps.h"

enum { kLen = 16 };
static const double kPi = 3.14159265358979323846;
static const double kQ15Max = 32767.0 / 32768.0;

static QspStatus check(const char* what, QspStatus st)
{
    if (st != qspStsOk) fprintf(stderr, "%s: %s\n", what, qspStatusText(st));
    return st;
}

static double clampQ15(double v) { return v > kQ15Max ? kQ15Max : v < -1.0 ? -1.0 : v; }

int main(void)
{
    Qsp32f x[kLen], g[kLen], d[kLen], y[kLen];
    Qsp16s xq[kLen], gq[kLen], dq[kLen], pq[kLen], yq[kLen];
    int n, saturatedInput = 0, saturatedSum = 0;
    double worst = 0.0;
    const double bound = 4.0 / 65536.0;

    /* A sine with one sample beyond the range, a gain ramp from 0.5 to 1
     * (1 itself saturates to 1 - 2^-15) and an offset that drives the
     * largest sums beyond the range. */
    for (n = 0; n < kLen; ++n) {
        x[n] = (Qsp32f)(0.9 * sin(2 * kPi * n / kLen));
        g[n] = (Qsp32f)(0.5 + 0.5 * n / (kLen - 1));
        d[n] = 0.5f;
    }
    x[5] = 1.5f;

    if (check("qspsConvert_32f16s_Sfs", qspsConvert_32f16s_Sfs(x, xq, kLen, qspRndNear, -15)) ||
        check("qspsConvert_32f16s_Sfs", qspsConvert_32f16s_Sfs(g, gq, kLen, qspRndNear, -15)) ||
        check("qspsConvert_32f16s_Sfs", qspsConvert_32f16s_Sfs(d, dq, kLen, qspRndNear, -15)) ||
        check("qspsMul_16s_Sfs", qspsMul_16s_Sfs(xq, gq, pq, kLen, 15)) ||
        check("qspsAdd_16s_Sfs", qspsAdd_16s_Sfs(pq, dq, yq, kLen, 0)) ||
        check("qspsConvert_16s32f_Sfs", qspsConvert_16s32f_Sfs(yq, y, kLen, 15)))
        return 1;

    printf("fixed-point pipeline y = x * g + d in Q15 (16-bit, scale 2^-15)\n");
    printf("  n        x        g     x (Q15)  y (Q15)    y float     y double    error\n");
    for (n = 0; n < kLen; ++n) {
        const double exact = x[n] * (double)g[n] + d[n];
        const double sum = clampQ15(x[n]) * g[n] + d[n];
        const double error = fabs(y[n] - clampQ15(sum));
        saturatedInput += x[n] > kQ15Max || x[n] < -1.0;
        saturatedSum += sum > kQ15Max || sum < -1.0;
        if (error > worst) worst = error;
        printf("%3d %8.4f %8.4f %8d %8d %11.6f %11.6f %9.2e%s\n", n, x[n], g[n], xq[n], yq[n], y[n], exact,
               fabs(y[n] - exact), yq[n] == 32767 || yq[n] == -32768 ? "  saturated" : "");
    }
    printf("saturated on conversion: %d sample(s); saturated sums: %d\n", saturatedInput, saturatedSum);
    printf("largest error against double on the clamped input: %.2e (bound 4 * 2^-16 = %.2e): %s\n", worst, bound,
           worst <= bound ? "within the bound" : "BOUND EXCEEDED");
    return worst <= bound ? 0 : 1;
}

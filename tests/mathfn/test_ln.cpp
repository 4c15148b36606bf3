// SPDX-License-Identifier: BSD-3-Clause
// The natural logarithm of positive doubles.
#include <cmath>
#include <random>

#include "mathfn/ln.h"
#include "qsp_test.h"

// Within 2 ULP of the extended-precision logarithm: the series is truncated
// below 2^-54 of ln m, forming s rounds once (about 1 ULP of ln m), and the
// additions of e ln 2 round once more; near x = 1 the result is ln m alone.
TEST(Ln, WithinTwoUlpOverTheWholeRange)
{
    std::mt19937_64 rng(5);
    double worst = 0;
    for (int i = 0; i < 200000; ++i) {
        const Qsp64u bits = rng() % 0x7FF0000000000000ull;  // every positive finite pattern
        double x;
        std::memcpy(&x, &bits, 8);
        if (x == 0) continue;
        const double want = double(logl((long double)x));
        worst = std::max(worst, qsptest::ulpDistance(mathfn::lnPositive(x), want));
    }
    std::uniform_real_distribution<double> nearOne(0.5, 2.0);
    for (int i = 0; i < 200000; ++i) {
        const double x = nearOne(rng);
        worst = std::max(worst, qsptest::ulpDistance(mathfn::lnPositive(x), double(logl((long double)x))));
    }
    for (double x : {0.5, 0.7071067811865476, 0.9999999999999999, 1.0000000000000002, 1.4142135623730951, 2.0,
                     1e-300, 4.9406564584124654e-324, 1.7976931348623157e308}) {
        worst = std::max(worst, qsptest::ulpDistance(mathfn::lnPositive(x), double(logl((long double)x))));
    }
    EXPECT_LE(worst, 2.0);
    EXPECT_EQ(mathfn::lnPositive(1.0), 0.0);
}

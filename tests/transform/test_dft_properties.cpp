// SPDX-License-Identifier: BSD-3-Clause
// DFT properties at every length up to 4096, complex single and double
// precision: an impulse transforms into the roots W^(k n0); the transform is
// linear; a circular shift of the input multiplies bin k by W^(k s); and
// forward then inverse with flag 4 returns the input. Tolerances follow the
// accuracy bound of each transform involved.
#include "dft_kinds.h"

namespace {

using namespace dftkinds;

// a * b without the infinity checks of std::complex's product
LC mul(LC a, LC b) { return LC(a.real() * b.real() - a.imag() * b.imag(), a.real() * b.imag() + a.imag() * b.real()); }

void checkProperties(K k, size_t n)
{
    Record r = make(k, int(n), 8);
    ASSERT_EQ(r.status, qspStsOk) << name(k) << " L=" << n;
    const double b = bound(k, n);
    std::vector<LC> w(n);
    for (size_t j = 0; j < n; ++j) w[j] = dftref::rootL((long long)j, (long long)n, -1);
    // impulse at n0: X[k] = W^(k n0)
    const size_t n0 = (n * 7) / 11;
    std::vector<LC> d(n, LC(0, 0)), want(n);
    d[n0] = 1;
    for (size_t i = 0; i < n; ++i) want[i] = w[i * n0 % n];
    EXPECT_LE(relRms(want, transform(r, d, false)), b) << name(k) << " impulse L=" << n;
    // linearity: T(a x + c y) = a T(x) + c T(y), a = 0.75, c = -1.25 (exact
    // scalings of exactly representable data)
    const std::vector<LC> x = dftref::exactSignal(n, false, 1), y = dftref::exactSignal(n, false, 2);
    std::vector<LC> z(n);
    for (size_t i = 0; i < n; ++i) z[i] = 0.75L * x[i] - 1.25L * y[i];
    const std::vector<LC> tx = transform(r, x, false), ty = transform(r, y, false), tz = transform(r, z, false);
    std::vector<LC> comb(n);
    for (size_t i = 0; i < n; ++i) comb[i] = 0.75L * tx[i] - 1.25L * ty[i];
    EXPECT_LE(relRms(comb, tz), 3 * b) << name(k) << " linearity L=" << n;
    // circular shift by s: X_s[k] = W^(k s) X[k]
    const size_t s = n / 3 + 1;
    std::vector<LC> xs(n), shifted(n);
    for (size_t i = 0; i < n; ++i) xs[(i + s) % n] = x[i];
    const std::vector<LC> ts = transform(r, xs, false);
    for (size_t i = 0; i < n; ++i) shifted[i] = mul(tx[i], w[i * s % n]);
    EXPECT_LE(relRms(shifted, ts), 2 * b) << name(k) << " shift L=" << n;
}

void checkRoundTrip(K k, size_t n)
{
    Record r = make(k, int(n), 4);
    ASSERT_EQ(r.status, qspStsOk);
    const std::vector<LC> x = dftref::exactSignal(n, isReal(k), 3);
    const std::vector<LC> back = transform(r, transform(r, x, false), true);
    EXPECT_LE(relRms(x, back), 2 * bound(k, n)) << name(k) << " round trip L=" << n;
}

TEST(DftProperties, EveryLengthUpTo4096Single)
{
    for (size_t n = 1; n <= 4096; ++n) {
        checkProperties(K::C32fc, n);
        if (HasFatalFailure()) return;
    }
}

TEST(DftProperties, EveryLengthUpTo4096Double)
{
    for (size_t n = 1; n <= 4096; ++n) {
        checkProperties(K::C64fc, n);
        if (HasFatalFailure()) return;
    }
}

TEST(DftProperties, RoundTripEveryKindEveryLengthUpTo1100)
{
    for (size_t n = 1; n <= 1100; ++n)
        for (K k : kAll) {
            checkRoundTrip(k, n);
            if (HasFatalFailure()) return;
        }
}

}  // namespace

// SPDX-License-Identifier: BSD-3-Clause
// DFT accuracy against the long double reference: relative RMS error within
// 3e-7 sqrt(log2 L) (single), 6e-16 sqrt(log2 L) (double) and, for half
// precision data, the rounding of the outputs to half on top; forward and
// inverse, every kind, at every length up to 512, the primes up to 2000,
// the lengths 2^k - 1 and 2^k + 1, lengths of the form 4m + 2 and the
// lengths the method choice names.
#include <set>

#include "dft_kinds.h"

namespace {

using namespace dftkinds;

// Forward and inverse of the length's exact signal through the kind, flag 8
// (no normalisation); real kinds cycle through the three layouts.
void checkLength(K k, size_t n)
{
    Record r = make(k, int(n), 8, int(n % 7));
    ASSERT_EQ(r.status, qspStsOk) << name(k) << " L=" << n;
    const dftref::Cached& c = dftref::cached(n, isReal(k));
    const Layout layout = Layout(n % 3);
    QspStatus st;
    const std::vector<LC> fwd = transform(r, c.x, false, false, &st, layout);
    ASSERT_EQ(st, qspStsOk);
    EXPECT_LE(relRms(c.forward, fwd), bound(k, n)) << name(k) << " forward L=" << n << " " << name(layout);
    // the inverse of the forward reference is n x
    std::vector<LC> nx(n);
    for (size_t i = 0; i < n; ++i) nx[i] = c.x[i] * (long double)n;
    const std::vector<LC> inv = transform(r, c.forward, true, false, &st, layout);
    ASSERT_EQ(st, qspStsOk);
    EXPECT_LE(relRms(nx, inv), bound(k, n)) << name(k) << " inverse L=" << n << " " << name(layout);
}

void checkLengths(const std::vector<size_t>& lengths, const K* kinds, size_t kindCount)
{
    for (size_t n : lengths)
        for (size_t i = 0; i < kindCount; ++i) {
            checkLength(kinds[i], n);
            if (testing::Test::HasFatalFailure()) return;
        }
}

TEST(DftAccuracy, EveryLengthUpTo512EveryKind)
{
    std::vector<size_t> lengths;
    for (size_t n = 1; n <= 512; ++n) lengths.push_back(n);
    checkLengths(lengths, kAll, std::size(kAll));
}

TEST(DftAccuracy, PrimesUpTo2000)
{
    std::vector<size_t> lengths;
    for (size_t n = 513; n <= 2000; ++n)
        if (dftref::isPrime((long long)n)) lengths.push_back(n);
    const K kinds[] = {K::C32fc, K::C64f, K::R32f, K::R64f};
    checkLengths(lengths, kinds, std::size(kinds));
}

TEST(DftAccuracy, PowersOfTwoPlusAndMinusOne)
{
    std::vector<size_t> lengths;
    for (int e = 10; e <= 16; ++e) {
        lengths.push_back((size_t(1) << e) - 1);
        lengths.push_back((size_t(1) << e) + 1);
    }
    const K kinds[] = {K::C32fc, K::C32f, K::C64fc, K::R32f, K::R64f};
    checkLengths(lengths, kinds, std::size(kinds));
}

// 2 mod 4: a leading factor 2 (merged with a 3 into a 6 where one follows),
// and for real data an odd-length half transform.
TEST(DftAccuracy, LengthsTwoModFour)
{
    const std::vector<size_t> lengths = {514, 530, 594, 626, 1002, 1030, 1458, 2002, 2062, 3126, 4098, 5194, 10002};
    checkLengths(lengths, kExact, std::size(kExact));
}

// The lengths the method choice names: 16 direct, 17 and 19 from a table,
// 32 and 64 through the FFT, 48 and 96 and 1000 by prime factors, 53, 101,
// 1031 and 2597 by the chirp convolution, 4 p (p up to 150) by prime
// factors with the generic prime kernel.
TEST(DftAccuracy, LengthsOfTheMethodChoice)
{
    const std::vector<size_t> lengths = {16, 17, 19, 32, 48, 53, 64, 96, 101, 1000, 1031, 2597, 596, 604, 4 * 113};
    checkLengths(lengths, kAll, std::size(kAll));
}

TEST(DftAccuracyHeavy, PowersOfTwoPlusAndMinusOneTo2To18)
{
    std::vector<size_t> lengths;
    for (int e = 17; e <= 18; ++e) {
        lengths.push_back((size_t(1) << e) - 1);
        lengths.push_back((size_t(1) << e) + 1);
    }
    const K kinds[] = {K::C32fc, K::C64fc, K::R32f};
    checkLengths(lengths, kinds, std::size(kinds));
}

TEST(DftAccuracyHeavy, LongFactorPlansAndChirps)
{
    // long plans (2^a 3^b 5^c 7^d, a factor 149 behind 4^k) and long chirps
    const std::vector<size_t> lengths = {100000, 3 * 3 * 3 * 3 * 3 * 3 * 3 * 3 * 3 * 3 * 3, 5 * 5 * 5 * 5 * 5 * 5 * 5,
                                         7 * 7 * 7 * 7 * 7 * 7, 4 * 149 * 256, 199999, 2 * 99989};
    const K kinds[] = {K::C32fc, K::C64f, K::R64f};
    checkLengths(lengths, kinds, std::size(kinds));
}

}  // namespace

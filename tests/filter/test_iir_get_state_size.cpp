// SPDX-License-Identifier: BSD-3-Clause
// IIRGetStateSize: the single-precision AR size by its formula, the checks
// (null pointer first, then the order), sizes that grow with the order,
// and every kind's size holding what its initialiser writes at any
// alignment of the buffer.
#include <climits>

#include "iir_reference.h"

using namespace iirtest;

TEST(IIRGetStateSize, SinglePrecisionARSizeIsTheFormula)
{
    auto formula = [](long long N) {
        return ((4 * N + 19) & ~15LL) + ((8 * N + 19) & ~15LL) + 4760 + 16 * (2 * N + 1);
    };
    std::vector<long long> orders;
    for (int N = 1; N <= 3000; ++N) orders.push_back(N);
    for (long long N : {65535LL, 65536LL, 1000000LL, 10000000LL, 48806000LL}) orders.push_back(N);
    for (long long N : orders) {
        int size = -1;
        ASSERT_EQ(qspsIIRGetStateSize_32f(int(N), &size), qspStsOk) << N;
        ASSERT_EQ(size, formula(N)) << N;
    }
    // The largest order whose size fits an int, and the next one.
    long long last = 1;
    while (formula(last * 2) <= INT_MAX) last *= 2;
    for (long long step = last / 2; step > 0; step /= 2)
        if (formula(last + step) <= INT_MAX) last += step;
    int size = -1;
    EXPECT_EQ(qspsIIRGetStateSize_32f(int(last), &size), qspStsOk);
    EXPECT_EQ(size, formula(last));
    size = -1;
    EXPECT_EQ(qspsIIRGetStateSize_32f(int(last + 1), &size), qspStsOverflow);
    EXPECT_EQ(size, -1);
}

TEST(IIRGetStateSize, ChecksThePointerFirstThenTheOrder)
{
    forEachKind([](const auto& k) {
        for (int n : {1, 0, -1, INT_MIN}) EXPECT_EQ(k.getSize(n, nullptr), qspStsNullPtr) << k.name;
        for (int n : {0, -1, -1000, INT_MIN}) {
            int size = 12345;
            EXPECT_EQ(k.getSize(n, &size), qspStsBadFilterOrder) << k.name << " " << n;
            EXPECT_EQ(size, 12345) << k.name;
        }
        int size = 12345;
        EXPECT_EQ(k.getSize(INT_MAX, &size), qspStsOverflow) << k.name;
        EXPECT_EQ(size, 12345) << k.name;
    });
}

// Sizes grow with the order and include the 32 bytes of alignment slack:
// Init at every buffer offset writes only inside the reported size
// (Built checks the canaries on both sides).
TEST(IIRGetStateSize, EveryKindHoldsWhatItsInitialiserWrites)
{
    forEachKind([](const auto& k) {
        using K = std::decay_t<decltype(k)>;
        using Tap = typename K::TapT;
        int prev = 0;
        for (int n : {1, 2, 3, 4, 7, 8, 9, 31, 64, 200}) {
            int size = 0;
            ASSERT_EQ(k.getSize(n, &size), qspStsOk) << k.name;
            EXPECT_GT(size, prev) << k.name;
            prev = size;
            const auto taps = k.shape == Shape::AR ? arTaps<Tap>(n) : biquadTaps<Tap>(n);
            const auto dly = randomVector<typename K::DlyT>(delayCount(k.shape, n), 10);
            for (size_t offset : {0, 1, 7, 16, 31, 32, 45}) {
                Built<K> b(k, taps, n, dly.data(), offset);
                ASSERT_EQ(b.status, qspStsOk) << k.name;
                EXPECT_TRUE(b.guardsIntact()) << k.name << " n=" << n << " offset " << offset;
                // Filtering stays inside the state as well.
                std::vector<typename K::DataT> x = randomVector<typename K::DataT>(2100, 100), y(2100);
                ASSERT_EQ(k.filter(x.data(), y.data(), 2100, b.st, 0), qspStsOk);
                EXPECT_TRUE(b.guardsIntact()) << k.name << " n=" << n << " offset " << offset;
            }
        }
    });
}

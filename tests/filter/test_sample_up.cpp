// SPDX-License-Identifier: BSD-3-Clause
// SampleUp: every type, the phase, the length reported, block continuation,
// in place, and every status with nothing written.
#include <cstring>
#include <vector>

#include "qsp_test.h"

using qsptest::Guarded;

namespace {

template <class T>
using UpFn = QspStatus (*)(const T*, T*, int, int*, int, int*);

template <class T>
std::vector<T> randomValues(size_t n)
{
    return qsptest::randomBits<T>(n);
}

// The definition, element by element: source i at i*factor + phase, zero
// bits elsewhere.
template <class T>
std::vector<T> reference(const std::vector<T>& x, int factor, int phase)
{
    std::vector<T> y(x.size() * factor);
    std::memset(y.data(), 0, y.size() * sizeof(T));
    for (size_t i = 0; i < x.size(); ++i) y[i * factor + phase] = x[i];
    return y;
}

template <class T>
void expectUpsamples(UpFn<T> fn)
{
    for (int factor : {1, 2, 3, 4, 7, 16, 17, 40})
        for (int phase : {0, 1, factor / 2, factor - 1}) {
            if (phase >= factor) continue;
            for (int len : {1, 2, 5, 33}) {
                const std::vector<T> x = randomValues<T>(len);
                Guarded<T> y(size_t(len) * factor);
                int n = -1, ph = phase;
                ASSERT_EQ(fn(x.data(), y.data(), len, &n, factor, &ph), qspStsOk);
                EXPECT_EQ(n, len * factor);
                EXPECT_EQ(ph, phase);
                EXPECT_TRUE(y.guardsIntact());
                const std::vector<T> want = reference(x, factor, phase);
                EXPECT_EQ(std::memcmp(y.data(), want.data(), want.size() * sizeof(T)), 0)
                    << "factor " << factor << " phase " << phase << " len " << len;
            }
        }
}

template <class T>
void expectInPlace(UpFn<T> fn)
{
    for (int factor : {1, 3, 20}) {
        const int len = 37, phase = factor - 1;
        const std::vector<T> x = randomValues<T>(len);
        Guarded<T> buf(size_t(len) * factor);
        std::memcpy(buf.data(), x.data(), len * sizeof(T));
        int n = 0, ph = phase;
        ASSERT_EQ(fn(buf.data(), buf.data(), len, &n, factor, &ph), qspStsOk);
        const std::vector<T> want = reference(x, factor, phase);
        EXPECT_EQ(std::memcmp(buf.data(), want.data(), want.size() * sizeof(T)), 0) << factor;
    }
}

// Two blocks of a stream equal one block of both.
template <class T>
void expectBlocksJoin(UpFn<T> fn)
{
    const int factor = 5, len = 23, first = 9;
    const std::vector<T> x = randomValues<T>(len);
    std::vector<T> whole(len * factor), parts(len * factor);
    int n = 0, ph = 2;
    ASSERT_EQ(fn(x.data(), whole.data(), len, &n, factor, &ph), qspStsOk);
    ph = 2;
    int n1 = 0, n2 = 0;
    ASSERT_EQ(fn(x.data(), parts.data(), first, &n1, factor, &ph), qspStsOk);
    ASSERT_EQ(fn(x.data() + first, parts.data() + n1, len - first, &n2, factor, &ph), qspStsOk);
    EXPECT_EQ(n1 + n2, n);
    EXPECT_EQ(std::memcmp(whole.data(), parts.data(), whole.size() * sizeof(T)), 0);
}

template <class T>
void expectStatuses(UpFn<T> fn)
{
    const std::vector<T> x = randomValues<T>(8);
    Guarded<T> y(64);
    int n = 77, ph = 0;
    auto untouched = [&] { return y.untouched() && n == 77; };
    EXPECT_EQ(fn(nullptr, y.data(), 8, &n, 2, &ph), qspStsNullPtr);
    EXPECT_EQ(fn(x.data(), nullptr, 8, &n, 2, &ph), qspStsNullPtr);
    EXPECT_EQ(fn(x.data(), y.data(), 8, nullptr, 2, &ph), qspStsNullPtr);
    EXPECT_EQ(fn(x.data(), y.data(), 8, &n, 2, nullptr), qspStsNullPtr);
    // Pointers before the length, the length before the factor and phase.
    EXPECT_EQ(fn(nullptr, y.data(), 0, &n, 0, &ph), qspStsNullPtr);
    EXPECT_EQ(fn(x.data(), y.data(), 0, &n, 2, &ph), qspStsBadSize);
    EXPECT_EQ(fn(x.data(), y.data(), -3, &n, 0, &ph), qspStsBadSize);
    EXPECT_EQ(fn(x.data(), y.data(), 8, &n, 0, &ph), qspStsBadFactor);
    EXPECT_EQ(fn(x.data(), y.data(), 8, &n, -1, &ph), qspStsBadFactor);
    for (int bad : {2, 3, -1, int(0x80000000)}) {
        ph = bad;
        EXPECT_EQ(fn(x.data(), y.data(), 8, &n, 2, &ph), qspStsBadPhase) << bad;
        EXPECT_EQ(ph, bad);
    }
    ph = 0;
    // factor * len above 2^31 - 1 cannot be reported.
    EXPECT_EQ(fn(x.data(), y.data(), 0x40000000, &n, 2, &ph), qspStsOverflow);
    EXPECT_TRUE(untouched());
}

template <class T>
void expectAll(UpFn<T> fn)
{
    expectUpsamples(fn);
    expectInPlace(fn);
    expectBlocksJoin(fn);
    expectStatuses(fn);
}

}  // namespace

TEST(SampleUp, Type16s) { expectAll<Qsp16s>(qspsSampleUp_16s); }
TEST(SampleUp, Type16sc) { expectAll<Qsp16sc>(qspsSampleUp_16sc); }
TEST(SampleUp, Type32s) { expectAll<Qsp32s>(qspsSampleUp_32s); }
TEST(SampleUp, Type32sc) { expectAll<Qsp32sc>(qspsSampleUp_32sc); }
TEST(SampleUp, Type32f) { expectAll<Qsp32f>(qspsSampleUp_32f); }
TEST(SampleUp, Type32fc) { expectAll<Qsp32fc>(qspsSampleUp_32fc); }
TEST(SampleUp, Type64f) { expectAll<Qsp64f>(qspsSampleUp_64f); }
TEST(SampleUp, Type64fc) { expectAll<Qsp64fc>(qspsSampleUp_64fc); }

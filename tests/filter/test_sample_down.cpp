// SPDX-License-Identifier: BSD-3-Clause
// SampleDown: every type, the phase carried between blocks, the length
// reported, in place, and every status with nothing written.
#include <algorithm>
#include <cstring>
#include <vector>

#include "qsp_test.h"

using qsptest::Guarded;

namespace {

template <class T>
using DownFn = QspStatus (*)(const T*, T*, int, int*, int, int*);

template <class T>
std::vector<T> reference(const std::vector<T>& x, int factor, int phase)
{
    std::vector<T> y;
    for (size_t i = phase; i < x.size(); i += factor) y.push_back(x[i]);
    return y;
}

template <class T>
void expectDownsamples(DownFn<T> fn)
{
    for (int factor : {1, 2, 3, 4, 7, 16, 40})
        for (int phase : {0, 1, factor / 2, factor - 1}) {
            if (phase >= factor) continue;
            for (int len : {1, 2, 3, 5, 33, 100}) {
                const std::vector<T> x = qsptest::randomBits<T>(len);
                const std::vector<T> want = reference(x, factor, phase);
                Guarded<T> y((len + factor - 1) / factor);
                int n = -1, ph = phase;
                ASSERT_EQ(fn(x.data(), y.data(), len, &n, factor, &ph), qspStsOk);
                ASSERT_EQ(n, int(want.size()));
                // The next kept element lies ph elements into the next block.
                EXPECT_EQ(ph, phase + n * factor - len);
                EXPECT_GE(ph, 0);
                EXPECT_LT(ph, factor);
                EXPECT_TRUE(y.guardsIntact());
                if (n) EXPECT_EQ(std::memcmp(y.data(), want.data(), n * sizeof(T)), 0);
            }
        }
}

// Blocks of uneven lengths, some shorter than the factor, continue one
// stream.
template <class T>
void expectBlocksJoin(DownFn<T> fn)
{
    const int factor = 6, len = 61;
    const std::vector<T> x = qsptest::randomBits<T>(len);
    const std::vector<T> want = reference(x, factor, 4);
    std::vector<T> got(len);
    int ph = 4, done = 0;
    for (int at = 0, step = 1; at < len; at += step, step = step % 9 + 2) {
        const int n = std::min(step, len - at);
        int out = -1;
        ASSERT_EQ(fn(x.data() + at, got.data() + done, n, &out, factor, &ph), qspStsOk);
        done += out;
    }
    ASSERT_EQ(done, int(want.size()));
    EXPECT_EQ(std::memcmp(got.data(), want.data(), done * sizeof(T)), 0);
}

template <class T>
void expectInPlace(DownFn<T> fn)
{
    const int len = 50;
    const std::vector<T> x = qsptest::randomBits<T>(len);
    for (int factor : {1, 3}) {
        std::vector<T> buf = x;
        int n = 0, ph = 1 % factor;
        ASSERT_EQ(fn(buf.data(), buf.data(), len, &n, factor, &ph), qspStsOk);
        const std::vector<T> want = reference(x, factor, 1 % factor);
        ASSERT_EQ(n, int(want.size()));
        EXPECT_EQ(std::memcmp(buf.data(), want.data(), n * sizeof(T)), 0);
    }
}

template <class T>
void expectStatuses(DownFn<T> fn)
{
    const std::vector<T> x = qsptest::randomBits<T>(8);
    Guarded<T> y(8);
    int n = 77, ph = 0;
    EXPECT_EQ(fn(nullptr, y.data(), 8, &n, 2, &ph), qspStsNullPtr);
    EXPECT_EQ(fn(x.data(), nullptr, 8, &n, 2, &ph), qspStsNullPtr);
    EXPECT_EQ(fn(x.data(), y.data(), 8, nullptr, 2, &ph), qspStsNullPtr);
    EXPECT_EQ(fn(x.data(), y.data(), 8, &n, 2, nullptr), qspStsNullPtr);
    EXPECT_EQ(fn(nullptr, y.data(), -1, &n, 0, &ph), qspStsNullPtr);
    EXPECT_EQ(fn(x.data(), y.data(), 0, &n, 2, &ph), qspStsBadSize);
    EXPECT_EQ(fn(x.data(), y.data(), -1, &n, 0, &ph), qspStsBadSize);
    EXPECT_EQ(fn(x.data(), y.data(), 8, &n, 0, &ph), qspStsBadFactor);
    EXPECT_EQ(fn(x.data(), y.data(), 8, &n, int(0x80000000), &ph), qspStsBadFactor);
    for (int bad : {2, 5, -1}) {
        ph = bad;
        EXPECT_EQ(fn(x.data(), y.data(), 8, &n, 2, &ph), qspStsBadPhase);
        EXPECT_EQ(ph, bad);
    }
    EXPECT_TRUE(y.untouched());
    EXPECT_EQ(n, 77);
}

template <class T>
void expectAll(DownFn<T> fn)
{
    expectDownsamples(fn);
    expectBlocksJoin(fn);
    expectInPlace(fn);
    expectStatuses(fn);
}

}  // namespace

TEST(SampleDown, Type16s) { expectAll<Qsp16s>(qspsSampleDown_16s); }
TEST(SampleDown, Type16sc) { expectAll<Qsp16sc>(qspsSampleDown_16sc); }
TEST(SampleDown, Type32s) { expectAll<Qsp32s>(qspsSampleDown_32s); }
TEST(SampleDown, Type32sc) { expectAll<Qsp32sc>(qspsSampleDown_32sc); }
TEST(SampleDown, Type32f) { expectAll<Qsp32f>(qspsSampleDown_32f); }
TEST(SampleDown, Type32fc) { expectAll<Qsp32fc>(qspsSampleDown_32fc); }
TEST(SampleDown, Type64f) { expectAll<Qsp64f>(qspsSampleDown_64f); }
TEST(SampleDown, Type64fc) { expectAll<Qsp64fc>(qspsSampleDown_64fc); }

// SPDX-License-Identifier: BSD-3-Clause
// PatternMatch: matching counts and Hamming distances along a vector.
#include "qsp_test.h"

namespace {

template <class T>
void checkPatternMatch(QspStatus (*fn)(const T*, const T*, Qsp16u*, int, int, QspPatternMatchMode))
{
    for (int len : {1, 5, 40, 300}) {
        std::vector<T> src(len);
        for (auto& x : src) x = T(qsptest::rng()() % 4);
        for (int patternLen : {1, 2, len / 2, len}) {
            if (patternLen < 1 || patternLen > len) continue;
            std::vector<T> pattern(patternLen);
            for (auto& x : pattern) x = T(qsptest::rng()() % 4);
            const int n = len - patternLen + 1;
            for (int mode : {qspPatternMatchEqual, qspPatternMatchHamming}) {
                qsptest::Guarded<Qsp16u> dst(n);
                ASSERT_EQ(fn(src.data(), pattern.data(), dst.data(), len, patternLen, mode), qspStsOk);
                for (int i = 0; i < n; ++i) {
                    int want = 0;
                    for (int j = 0; j < patternLen; ++j)
                        want += mode == qspPatternMatchEqual ? src[i + j] == pattern[j]
                                                             : std::popcount(unsigned(src[i + j] ^ pattern[j]));
                    ASSERT_EQ(dst[i], want) << "len " << len << " pattern " << patternLen << " at " << i;
                }
                ASSERT_TRUE(dst.guardsIntact());
            }
        }
    }
    // Hamming counts saturate: 5000 elements of 16 differing bits.
    std::vector<T> ones(5000, T(~T(0))), zeros(5000, T(0));
    Qsp16u got;
    ASSERT_EQ(fn(ones.data(), zeros.data(), &got, 5000, 5000, qspPatternMatchHamming), qspStsOk);
    EXPECT_EQ(got, sizeof(T) == 2 ? 65535 : 40000);
    const T v[] = {1, 2, 3};
    qsptest::Guarded<Qsp16u> d(3);
    EXPECT_EQ(fn(nullptr, v, d.data(), 3, 1, qspPatternMatchEqual), qspStsNullPtr);
    EXPECT_EQ(fn(v, nullptr, d.data(), 3, 1, qspPatternMatchEqual), qspStsNullPtr);
    EXPECT_EQ(fn(v, v, nullptr, 3, 1, qspPatternMatchEqual), qspStsNullPtr);
    EXPECT_EQ(fn(v, v, d.data(), 0, 1, qspPatternMatchEqual), qspStsBadSize);
    EXPECT_EQ(fn(v, v, d.data(), 3, 0, qspPatternMatchEqual), qspStsBadSize);
    EXPECT_EQ(fn(v, v, d.data(), 3, 4, qspPatternMatchEqual), qspStsBadPatternSize);
    EXPECT_EQ(fn(v, v, d.data(), 3, 2, 2), qspStsBadArgument);
    EXPECT_TRUE(d.untouched());
}

}  // namespace

TEST(PatternMatch, Bytes) { checkPatternMatch<Qsp8u>(qspsPatternMatch_8u16u); }
TEST(PatternMatch, Unsigned16) { checkPatternMatch<Qsp16u>(qspsPatternMatch_16u); }

// SPDX-License-Identifier: BSD-3-Clause
// MinIndx: the smallest element and the lowest index holding it.
#include "extremum_reference.h"
#include "stats/extremum.h"

using exref::Want;

TEST(MinIndx, Statuses)
{
    exref::checkIndexStatuses<Qsp16s>(qspsMinIndx_16s, qspsMin_16s);
    exref::checkIndexStatuses<Qsp32s>(qspsMinIndx_32s, qspsMin_32s);
    exref::checkIndexStatuses<Qsp32f>(qspsMinIndx_32f, qspsMin_32f);
    exref::checkIndexStatuses<Qsp64f>(qspsMinIndx_64f, qspsMin_64f);
    exref::checkIndexStatuses<Qsp32f>(qspsMinIndx_32f_L, qspsMin_32f_L, true);
    exref::checkIndexStatuses<Qsp64f>(qspsMinIndx_64f_L, qspsMin_64f_L, true);
}

TEST(MinIndx, LowestIndexOfTheSmallest)
{
    exref::checkIndexSearch<Qsp16s, false>(qspsMinIndx_16s, Want::Smallest);
    exref::checkIndexSearch<Qsp32s, false>(qspsMinIndx_32s, Want::Smallest);
    exref::checkIndexSearch<Qsp32f, false>(qspsMinIndx_32f, Want::Smallest);
    exref::checkIndexSearch<Qsp64f, false>(qspsMinIndx_64f, Want::Smallest);
    exref::checkIndexSearch<Qsp32f, false>(qspsMinIndx_32f_L, Want::Smallest);
    exref::checkIndexSearch<Qsp64f, false>(qspsMinIndx_64f_L, Want::Smallest);
}

TEST(MinIndx, Examples)
{
    const float nan = exref::quietNaN<float>();
    std::vector<float> a = {5, 1, 1, 2};
    float m = 0;
    int at = -1;
    ASSERT_EQ(qspsMinIndx_32f(a.data(), 4, &m, &at), qspStsOk);
    EXPECT_EQ(m, 1.0f);
    EXPECT_EQ(at, 1);

    std::vector<float> b = {nan, 1, 2};
    ASSERT_EQ(qspsMinIndx_32f(b.data(), 3, &m, &at), qspStsOk);
    EXPECT_TRUE(std::isnan(m));
    EXPECT_EQ(at, 0);

    // Without an index pointer: the maximum only.
    m = 0;
    ASSERT_EQ(qspsMinIndx_32f(a.data(), 4, &m, nullptr), qspStsOk);
    EXPECT_EQ(m, 1.0f);

    // The first of equal zeros wins, whatever its sign.
    std::vector<float> z(50, 1.0f);
    z[20] = -0.0f;
    z[30] = 0.0f;
    ASSERT_EQ(qspsMinIndx_32f(z.data(), 50, &m, &at), qspStsOk);
    EXPECT_EQ(at, 20);
    EXPECT_TRUE(std::signbit(m));
}

// The 64-bit length forms combine chunk results; with small chunks a later
// chunk that opens with NaNs must still offer the elements behind them.
TEST(MinIndx, ChunkResultsCombineByTheSequentialRule)
{
    for (int chunk : {1, 2, 5, 64}) {
        for (int len : {1, 7, 64, 200}) {
            for (int pos = 0; pos < len; pos += 3) {
                std::vector<float> v = exref::randomValues<float>(len, 6);
                v[pos] = exref::quietNaN<float>();
                if (pos + 1 < len) v[pos + 1] = exref::quietNaN<float>();
                if (pos + 2 < len) v[pos + 2] = -99.0f;
                float m;
                Qsp64s at = -1;
                ASSERT_EQ((y8::extremum::searchIndexL<y8::extremum::Smallest, y8::extremum::Value<float>>(
                              chunk, v.data(), len, &m, &at, qspsMinIndx_32f, qspsMin_32f_L)),
                          qspStsOk);
                const long long want = exref::indexOfExtreme<float>(v, Want::Smallest);
                ASSERT_EQ(at, want) << "chunk " << chunk << " len " << len << " NaN at " << pos;
                ASSERT_TRUE(exref::sameBits(m, v[want]));
            }
        }
    }
}

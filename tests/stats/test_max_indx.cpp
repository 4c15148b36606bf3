// SPDX-License-Identifier: BSD-3-Clause
// MaxIndx: the largest element and the lowest index holding it.
#include "extremum_reference.h"
#include "stats/extremum.h"

using exref::Want;

TEST(MaxIndx, Statuses)
{
    exref::checkIndexStatuses<Qsp16s>(qspsMaxIndx_16s, qspsMax_16s);
    exref::checkIndexStatuses<Qsp32s>(qspsMaxIndx_32s, qspsMax_32s);
    exref::checkIndexStatuses<Qsp32f>(qspsMaxIndx_32f, qspsMax_32f);
    exref::checkIndexStatuses<Qsp64f>(qspsMaxIndx_64f, qspsMax_64f);
    exref::checkIndexStatuses<Qsp32f>(qspsMaxIndx_32f_L, qspsMax_32f_L, true);
    exref::checkIndexStatuses<Qsp64f>(qspsMaxIndx_64f_L, qspsMax_64f_L, true);
}

TEST(MaxIndx, LowestIndexOfTheLargest)
{
    exref::checkIndexSearch<Qsp16s, false>(qspsMaxIndx_16s, Want::Largest);
    exref::checkIndexSearch<Qsp32s, false>(qspsMaxIndx_32s, Want::Largest);
    exref::checkIndexSearch<Qsp32f, false>(qspsMaxIndx_32f, Want::Largest);
    exref::checkIndexSearch<Qsp64f, false>(qspsMaxIndx_64f, Want::Largest);
    exref::checkIndexSearch<Qsp32f, false>(qspsMaxIndx_32f_L, Want::Largest);
    exref::checkIndexSearch<Qsp64f, false>(qspsMaxIndx_64f_L, Want::Largest);
}

TEST(MaxIndx, Examples)
{
    const float nan = exref::quietNaN<float>();
    std::vector<float> a = {1, 5, 5, 2};
    float m = 0;
    int at = -1;
    ASSERT_EQ(qspsMaxIndx_32f(a.data(), 4, &m, &at), qspStsOk);
    EXPECT_EQ(m, 5.0f);
    EXPECT_EQ(at, 1);

    std::vector<float> b = {nan, 1, 2};
    ASSERT_EQ(qspsMaxIndx_32f(b.data(), 3, &m, &at), qspStsOk);
    EXPECT_TRUE(std::isnan(m));
    EXPECT_EQ(at, 0);

    // Without an index pointer: the maximum only.
    m = 0;
    ASSERT_EQ(qspsMaxIndx_32f(a.data(), 4, &m, nullptr), qspStsOk);
    EXPECT_EQ(m, 5.0f);

    // The first of equal zeros wins, whatever its sign.
    std::vector<float> z(50, -1.0f);
    z[20] = -0.0f;
    z[30] = 0.0f;
    ASSERT_EQ(qspsMaxIndx_32f(z.data(), 50, &m, &at), qspStsOk);
    EXPECT_EQ(at, 20);
    EXPECT_TRUE(std::signbit(m));
}

// The 64-bit length forms combine chunk results; with small chunks a later
// chunk that opens with NaNs must still offer the elements behind them.
TEST(MaxIndx, ChunkResultsCombineByTheSequentialRule)
{
    for (int chunk : {1, 2, 5, 64}) {
        for (int len : {1, 7, 64, 200}) {
            for (int pos = 0; pos < len; pos += 3) {
                std::vector<float> v = exref::randomValues<float>(len, 6);
                v[pos] = exref::quietNaN<float>();
                if (pos + 1 < len) v[pos + 1] = exref::quietNaN<float>();
                if (pos + 2 < len) v[pos + 2] = 99.0f;
                float m;
                Qsp64s at = -1;
                ASSERT_EQ((y8::extremum::searchIndexL<y8::extremum::Largest, y8::extremum::Value<float>>(
                              chunk, v.data(), len, &m, &at, qspsMaxIndx_32f, qspsMax_32f_L)),
                          qspStsOk);
                const long long want = exref::indexOfExtreme<float>(v, Want::Largest);
                ASSERT_EQ(at, want) << "chunk " << chunk << " len " << len << " NaN at " << pos;
                ASSERT_TRUE(exref::sameBits(m, v[want]));
            }
        }
    }
}

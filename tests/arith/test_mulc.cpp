#include "qsp_test.h"

using qsptest::Guarded;

TEST(MulC, F32InPlaceStatuses)
{
    Guarded<Qsp32f> v(4);
    EXPECT_EQ(qspsMulC_32f_I(2.0f, nullptr, 4), qspStsNullPtr);
    EXPECT_EQ(qspsMulC_32f_I(2.0f, nullptr, 0), qspStsNullPtr);
    EXPECT_EQ(qspsMulC_32f_I(2.0f, v.data(), 0), qspStsBadSize);
    EXPECT_EQ(qspsMulC_32f_I(2.0f, v.data(), -1), qspStsBadSize);
    EXPECT_TRUE(v.untouched());
}

TEST(MulC, F32InPlaceIsTheRoundedProductForEveryLength)
{
    for (int len = 1; len <= 70; ++len) {
        for (int offset = 0; offset < 4; ++offset) {
            std::vector<Qsp32f> data(len + offset);
            std::uniform_real_distribution<float> dist(-1e3f, 1e3f);
            for (auto& x : data) x = dist(qsptest::rng());
            const std::vector<Qsp32f> before = data;
            const Qsp32f c = 0.37f;
            ASSERT_EQ(qspsMulC_32f_I(c, data.data() + offset, len), qspStsOk);
            for (int i = 0; i < len; ++i) {
                // A single IEEE multiplication: exactly the float-rounded product.
                const float expected = float((long double)before[offset + i] * c);
                ASSERT_EQ(data[offset + i], expected) << "len " << len << " i " << i;
            }
            for (int i = 0; i < offset; ++i) ASSERT_EQ(data[i], before[i]);
        }
    }
}

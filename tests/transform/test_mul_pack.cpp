#include "packed_reference.h"

using namespace packedref;

namespace {

// Each product is one rounding of an exact real product or of a complex
// component (two exact products in double, one subtraction): compared with
// the product rounded from long double, single precision agrees exactly
// for the real bins and within 1 ULP-scale error for pairs.
template <class T, bool Conj>
void checkLength(int len, QspStatus (*f)(const T*, T*, int))
{
    auto a = randomValues<T>(len), b = randomValues<T>(len);
    auto d = b;
    ASSERT_EQ(f(a.data(), d.data(), len), qspStsOk);
    const auto ba = bins(Layout::Pack, a.data(), len), bb = bins(Layout::Pack, b.data(), len);
    const auto bd = bins(Layout::Pack, d.data(), len);
    for (size_t k = 0; k < ba.size(); ++k) {
        const LC want = ba[k] * (Conj ? std::conj(bb[k]) : bb[k]);
        const long double tol = 4 * std::numeric_limits<T>::epsilon() * 16;  // |a|,|b| <= 4
        EXPECT_LE(std::abs(bd[k] - want), tol) << "len " << len << " bin " << k;
    }
    // Real bins exactly.
    EXPECT_EQ(d[0], a[0] * b[0]);
    if (len % 2 == 0) EXPECT_EQ(d[len - 1], a[len - 1] * b[len - 1]);
}

}  // namespace

TEST(MulPack, StatusesAndCanaries)
{
    qsptest::Guarded<Qsp32f> v(4);
    Qsp32f s[4] = {1, 2, 3, 4};
    EXPECT_EQ(qspsMulPack_32f_I(nullptr, v.data(), 4), qspStsNullPtr);
    EXPECT_EQ(qspsMulPack_32f_I(s, nullptr, 0), qspStsNullPtr);
    EXPECT_EQ(qspsMulPack_32f_I(s, v.data(), 0), qspStsBadSize);
    EXPECT_EQ(qspsMulPack_32f_I(s, v.data(), -3), qspStsBadSize);
    EXPECT_TRUE(v.untouched());
    qsptest::Guarded<Qsp64f> w(4);
    Qsp64f t[4] = {1, 2, 3, 4};
    EXPECT_EQ(qspsMulPack_64f_I(nullptr, w.data(), 4), qspStsNullPtr);
    EXPECT_EQ(qspsMulPack_64f_I(t, nullptr, 4), qspStsNullPtr);
    EXPECT_EQ(qspsMulPack_64f_I(t, w.data(), 0), qspStsBadSize);
    EXPECT_TRUE(w.untouched());
}

TEST(MulPack, EveryLengthBothParities)
{
    for (int len = 1; len <= 40; ++len) {
        checkLength<Qsp32f, false>(len, qspsMulPack_32f_I);
        checkLength<Qsp64f, false>(len, qspsMulPack_64f_I);
    }
}

TEST(MulPack, OneAndTwoRealValues)
{
    Qsp32f a[2] = {3, -2}, b[2] = {5, 7};
    ASSERT_EQ(qspsMulPack_32f_I(a, b, 1), qspStsOk);
    EXPECT_EQ(b[0], 15);
    EXPECT_EQ(b[1], 7);  // beyond len: untouched
    Qsp32f c[2] = {5, 7};
    ASSERT_EQ(qspsMulPack_32f_I(a, c, 2), qspStsOk);
    EXPECT_EQ(c[0], 15);
    EXPECT_EQ(c[1], -14);
    // len 3: one real value and one pair.
    Qsp64f x[3] = {2, 1, 2}, y[3] = {3, 3, -1};
    ASSERT_EQ(qspsMulPack_64f_I(x, y, 3), qspStsOk);
    EXPECT_EQ(y[0], 6);
    EXPECT_EQ(y[1], 1 * 3 - 2 * -1);
    EXPECT_EQ(y[2], 1 * -1 + 2 * 3);
}

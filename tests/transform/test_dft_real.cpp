// SPDX-License-Identifier: BSD-3-Clause
// The real DFT kinds and their packed layouts at any length: what each
// layout holds and where, how many elements it writes, the zeros of CCS, the
// agreement of the three layouts, and the inverse from each of them.
#include "dft_kinds.h"

namespace {

using namespace dftkinds;
using qsptest::Guarded;

template <class T>
struct Real {
    static constexpr K kind = sizeof(T) == 4 ? K::R32f : K::R64f;
};

template <class T>
void forward(Record& r, const T* x, T* y, Layout l)
{
    ASSERT_EQ(realCall<T>(r, x, y, false, l), qspStsOk);
}

template <class T>
void layoutsAtLength(int n)
{
    Record r = make(Real<T>::kind, n, 8);
    ASSERT_EQ(r.status, qspStsOk);
    const std::vector<LC> x = dftref::exactSignal(n, true, 21);
    std::vector<T> src(n);
    for (int i = 0; i < n; ++i) src[i] = T(x[i].real());
    const size_t ccsLen = n % 2 == 0 ? n + 2 : n + 1;
    Guarded<T> pack(n), perm(n), ccs(ccsLen);
    forward<T>(r, src.data(), pack.data(), Layout::Pack);
    forward<T>(r, src.data(), perm.data(), Layout::Perm);
    forward<T>(r, src.data(), ccs.data(), Layout::Ccs);
    EXPECT_TRUE(pack.guardsIntact() && perm.guardsIntact() && ccs.guardsIntact()) << "L=" << n;
    // CCS: R0, 0, R1, I1, ..., with exact zeros for the imaginary parts of
    // bin 0 and (even L) bin L/2
    EXPECT_EQ(ccs[1], T(0)) << "L=" << n;
    if (n % 2 == 0) EXPECT_EQ(ccs[n + 1], T(0)) << "L=" << n;
    // the same values in the three layouts
    EXPECT_EQ(pack[0], ccs[0]);
    EXPECT_EQ(perm[0], ccs[0]);
    for (int k = 1; 2 * k < n; ++k) {
        EXPECT_EQ(pack[2 * k - 1], ccs[2 * k]) << "L=" << n << " bin " << k;
        EXPECT_EQ(pack[2 * k], ccs[2 * k + 1]);
        const int at = n % 2 ? 2 * k - 1 : 2 * k;  // odd L: Perm is Pack
        EXPECT_EQ(perm[at], ccs[2 * k]);
        EXPECT_EQ(perm[at + 1], ccs[2 * k + 1]);
    }
    if (n % 2 == 0 && n >= 2) {
        EXPECT_EQ(pack[n - 1], ccs[n]) << "L=" << n;
        EXPECT_EQ(perm[1], ccs[n]) << "L=" << n;
    }
    // the inverse from each layout gives the same real signal, n times x
    std::vector<T> a(n), b(n), c(n);
    ASSERT_EQ(realCall<T>(r, pack.data(), a.data(), true, Layout::Pack), qspStsOk);
    ASSERT_EQ(realCall<T>(r, perm.data(), b.data(), true, Layout::Perm), qspStsOk);
    ASSERT_EQ(realCall<T>(r, ccs.data(), c.data(), true, Layout::Ccs), qspStsOk);
    EXPECT_EQ(a, b) << "L=" << n;
    EXPECT_EQ(a, c) << "L=" << n;
    std::vector<LC> got(n), want(n);
    for (int i = 0; i < n; ++i) {
        got[i] = LC(a[i], 0);
        want[i] = x[i] * (long double)n;
    }
    EXPECT_LE(relRms(want, got), 2 * dftref::bound(sizeof(T) == 8, n)) << "L=" << n;
}

TEST(DftReal, LayoutsAgreeAndHoldTheirElements)
{
    for (int n = 1; n <= 130; ++n) {
        layoutsAtLength<float>(n);
        layoutsAtLength<double>(n);
    }
    for (int n : {255, 256, 257, 1000, 1001, 1031, 1058, 2048, 2597, 4099}) {
        layoutsAtLength<float>(n);
        layoutsAtLength<double>(n);
    }
}

// Length 1 holds R0 (CCS: R0, 0); length 2 holds R0, R1 in Pack and Perm
// and R0, 0, R1, 0 in CCS.
TEST(DftReal, LengthsOneAndTwo)
{
    Record one = make(K::R32f, 1, 8), two = make(K::R32f, 2, 8);
    const float x1[1] = {2.5f}, x2[2] = {3.0f, -1.0f};
    float p[4] = {9, 9, 9, 9}, c[4] = {9, 9, 9, 9};
    forward<float>(one, x1, p, Layout::Pack);
    forward<float>(one, x1, c, Layout::Ccs);
    EXPECT_EQ(p[0], 2.5f);
    EXPECT_EQ(p[1], 9.0f);
    EXPECT_EQ(c[0], 2.5f);
    EXPECT_EQ(c[1], 0.0f);
    EXPECT_EQ(c[2], 9.0f);
    forward<float>(two, x2, p, Layout::Perm);
    forward<float>(two, x2, c, Layout::Ccs);
    EXPECT_EQ(p[0], 2.0f);
    EXPECT_EQ(p[1], 4.0f);
    EXPECT_EQ(p[2], 9.0f);
    const float want[4] = {2.0f, 0.0f, 4.0f, 0.0f};
    for (int i = 0; i < 4; ++i) EXPECT_EQ(c[i], want[i]);
}

// A constant c gives L c in bin 0 and (to rounding) zeros elsewhere.
TEST(DftReal, ConstantSignal)
{
    for (int n : {3, 17, 18, 53, 100, 101, 1000}) {
        Record r = make(K::R64f, n, 8);
        std::vector<double> x(n, 0.75), y(n + 2, 9);
        forward<double>(r, x.data(), y.data(), Layout::Pack);
        EXPECT_NEAR(y[0], 0.75 * n, 1e-13 * n) << "L=" << n;
        for (int i = 1; i < n; ++i) EXPECT_NEAR(y[i], 0.0, 1e-13 * n) << "L=" << n << " element " << i;
    }
}

// The inverse reads only the real parts of bin 0 and bin L/2: the zero
// slots of CCS are ignored.
TEST(DftReal, InverseIgnoresTheZeroSlotsOfCcs)
{
    for (int n : {8, 17, 18, 64, 100, 101}) {
        Record r = make(K::R32f, n, 2);
        std::vector<float> s(n + 2), a(n), b(n);
        for (int i = 0; i < n + 2; ++i) s[i] = float((i * 37) % 11) - 5;
        s[1] = 0;
        if (n % 2 == 0) s[n + 1] = 0;
        ASSERT_EQ(realCall<float>(r, s.data(), a.data(), true, Layout::Ccs), qspStsOk);
        s[1] = 123;
        if (n % 2 == 0) s[n + 1] = -77;
        ASSERT_EQ(realCall<float>(r, s.data(), b.data(), true, Layout::Ccs), qspStsOk);
        EXPECT_EQ(a, b) << "L=" << n;
    }
}

}  // namespace

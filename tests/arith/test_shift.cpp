// SPDX-License-Identifier: BSD-3-Clause
// LShiftC and RShiftC: shifts by a constant count, with the count examined
// before the pointers (copy for 0, zeros or the sign from the width on)
// and a negative count reported after them.
#include "arith_families.h"

using namespace arithfam;

namespace {
template <class T, bool Left, class Fn, class FnI>
void shifts(Fn fn, FnI fnI)
{
    constexpr int width = 8 * int(sizeof(T));
    for (int n : {1, 2, 3, 5, 7, width - 1, width, width + 1, 40, 0x7FFFFFFF}) {
        arithsweep::unary<T, T>(
            [&](auto a, auto d, int len) { return fn(a, n, d, len); },
            [&](T a, T got) {
                const i128 v = a;
                i128 e;
                if (Left) e = n >= width ? 0 : i128(std::make_unsigned_t<T>(Qsp64u(v) << n));
                else e = n >= width ? (v < 0 ? -1 : 0) : (v >> n);
                return equals(got, T(e));
            },
            [&](auto sd, int len) { return fnI(n, sd, len); });
        if (testing::Test::HasFatalFailure()) {
            ADD_FAILURE() << "shift " << n;
            return;
        }
    }
    arithsweep::unary<T, T>([&](auto a, auto d, int len) { return fn(a, 0, d, len); },
                            [&](T a, T got) { return equals(got, a); }, [&](auto sd, int len) { return fnI(0, sd, len); });
}

template <class T, class Fn, class FnI>
void order(Fn fn, FnI fnI)
{
    constexpr int width = 8 * int(sizeof(T));
    qsptest::Guarded<T> a(8), d(8);
    // Count 0: the copy's checks (source, destination, length).
    EXPECT_EQ(fn(nullptr, 0, d.data(), 8), qspStsNullPtr);
    EXPECT_EQ(fn(a.data(), 0, nullptr, 8), qspStsNullPtr);
    EXPECT_EQ(fn(a.data(), 0, d.data(), 0), qspStsBadSize);
    // The width or more: the source, then the zero fill's checks (or, for
    // a signed right shift, the ordinary checks).
    EXPECT_EQ(fn(nullptr, width, d.data(), 8), qspStsNullPtr);
    EXPECT_EQ(fn(a.data(), width + 4, nullptr, 8), qspStsNullPtr);
    EXPECT_EQ(fn(a.data(), width, d.data(), -1), qspStsBadSize);
    // Negative: after the pointers and the length.
    EXPECT_EQ(fn(nullptr, -1, d.data(), 8), qspStsNullPtr);
    EXPECT_EQ(fn(a.data(), -1, nullptr, 8), qspStsNullPtr);
    EXPECT_EQ(fn(a.data(), -1, d.data(), 0), qspStsBadSize);
    EXPECT_EQ(fn(a.data(), -1, d.data(), 8), qspStsBadShift);
    EXPECT_EQ(fn(a.data(), int(0x80000000), d.data(), 8), qspStsBadShift);
    EXPECT_EQ(fn(a.data(), 3, d.data(), 0), qspStsBadSize);
    EXPECT_EQ(fn(nullptr, 3, d.data(), 0), qspStsNullPtr);
    EXPECT_EQ(fnI(-1, nullptr, 8), qspStsNullPtr);
    EXPECT_EQ(fnI(-1, d.data(), 0), qspStsBadSize);
    EXPECT_EQ(fnI(-1, d.data(), 8), qspStsBadShift);
    EXPECT_EQ(fnI(0, nullptr, 8), qspStsNullPtr);
    EXPECT_EQ(fnI(0, d.data(), 0), qspStsBadSize);
    EXPECT_EQ(fnI(width, nullptr, 8), qspStsNullPtr);
    EXPECT_EQ(fnI(width, d.data(), 0), qspStsBadSize);
    EXPECT_TRUE(a.untouched());
    EXPECT_TRUE(d.untouched());
}
}  // namespace

TEST(LShiftC, CheckOrder)
{
    order<Qsp8u>(qspsLShiftC_8u, qspsLShiftC_8u_I);
    order<Qsp16s>(qspsLShiftC_16s, qspsLShiftC_16s_I);
    order<Qsp16u>(qspsLShiftC_16u, qspsLShiftC_16u_I);
    order<Qsp32s>(qspsLShiftC_32s, qspsLShiftC_32s_I);
}

TEST(LShiftC, Results)
{
    shifts<Qsp8u, true>(qspsLShiftC_8u, qspsLShiftC_8u_I);
    shifts<Qsp16s, true>(qspsLShiftC_16s, qspsLShiftC_16s_I);
    shifts<Qsp16u, true>(qspsLShiftC_16u, qspsLShiftC_16u_I);
    shifts<Qsp32s, true>(qspsLShiftC_32s, qspsLShiftC_32s_I);
}

TEST(RShiftC, CheckOrder)
{
    order<Qsp8u>(qspsRShiftC_8u, qspsRShiftC_8u_I);
    order<Qsp16s>(qspsRShiftC_16s, qspsRShiftC_16s_I);
    order<Qsp16u>(qspsRShiftC_16u, qspsRShiftC_16u_I);
    order<Qsp32s>(qspsRShiftC_32s, qspsRShiftC_32s_I);
}

TEST(RShiftC, Results)
{
    shifts<Qsp8u, false>(qspsRShiftC_8u, qspsRShiftC_8u_I);
    shifts<Qsp16s, false>(qspsRShiftC_16s, qspsRShiftC_16s_I);
    shifts<Qsp16u, false>(qspsRShiftC_16u, qspsRShiftC_16u_I);
    shifts<Qsp32s, false>(qspsRShiftC_32s, qspsRShiftC_32s_I);
}

// SPDX-License-Identifier: BSD-3-Clause
// IIRGetDlyLine and IIRSetDlyLine: the delay line Init was given, Set and
// Get inverse to each other, a null Set clearing it, a state continued
// after Get and Set as if nothing happened, the rounding of the 32-bit
// direct-form-1 delay line, the checks and the records each accepts.
#include <climits>

#include "iir_reference.h"

using namespace iirtest;


TEST(IIRDlyLine, GetReturnsWhatInitAndSetWereGiven)
{
    forEachKind([](const auto& k) {
        using K = std::decay_t<decltype(k)>;
        using Dly = typename K::DlyT;
        for (int n : {1, 2, 5, 33}) {
            const int count = delayCount(k.shape, n);
            const auto dly = randomVector<Dly>(count, 1000);
            Built<K> b(k, tapsFor(k, n), n, dly.data());
            qsptest::Guarded<Dly> got(count);
            ASSERT_EQ(k.getDly(b.st, got.data()), qspStsOk) << k.name;
            EXPECT_TRUE(got.guardsIntact()) << k.name;
            for (int i = 0; i < count; ++i) ASSERT_TRUE(qsptest::sameBits(got[i], dly[i])) << k.name << " " << i;
            const auto other = randomVector<Dly>(count, 1000);
            ASSERT_EQ(k.setDly(b.st, other.data()), qspStsOk);
            ASSERT_EQ(k.getDly(b.st, got.data()), qspStsOk);
            for (int i = 0; i < count; ++i) ASSERT_TRUE(qsptest::sameBits(got[i], other[i])) << k.name << " " << i;
            // A null delay line clears it, as at Init.
            ASSERT_EQ(k.setDly(b.st, nullptr), qspStsOk);
            ASSERT_EQ(k.getDly(b.st, got.data()), qspStsOk);
            for (int i = 0; i < count; ++i) ASSERT_TRUE(qsptest::sameBits(got[i], fromCLD<Dly>(0))) << k.name;
            Built<K> z(k, tapsFor(k, n), n, nullptr);
            ASSERT_EQ(k.getDly(z.st, got.data()), qspStsOk);
            for (int i = 0; i < count; ++i) ASSERT_TRUE(qsptest::sameBits(got[i], fromCLD<Dly>(0))) << k.name;
        }
    });
}

// A state whose delay line was read and written back continues exactly;
// Set on a used state equals a fresh Init with that delay line.
TEST(IIRDlyLine, GetThenSetContinuesTheSignalAndSetEqualsInit)
{
    forEachKind([](const auto& k) {
        using K = std::decay_t<decltype(k)>;
        using D = typename K::DataT;
        using Dly = typename K::DlyT;
        for (int n : {1, 4, 9}) {
            const auto taps = tapsFor(k, n);
            const int count = delayCount(k.shape, n);
            Built<K> a(k, taps, n, nullptr), b(k, taps, n, nullptr);
            const auto x = randomVector<D>(3000, 200);
            std::vector<D> ya(3000), yb(3000);
            ASSERT_EQ(k.filter(x.data(), ya.data(), 1100, a.st, 0), qspStsOk);
            ASSERT_EQ(k.filter(x.data(), yb.data(), 1100, b.st, 0), qspStsOk);
            std::vector<Dly> d(count);
            ASSERT_EQ(k.getDly(b.st, d.data()), qspStsOk);
            if constexpr (!std::is_same_v<Dly, Qsp32s>) {
                ASSERT_EQ(k.setDly(b.st, d.data()), qspStsOk);
                ASSERT_EQ(k.filter(x.data() + 1100, ya.data() + 1100, 1900, a.st, 0), qspStsOk);
                ASSERT_EQ(k.filter(x.data() + 1100, yb.data() + 1100, 1900, b.st, 0), qspStsOk);
                for (int i = 0; i < 3000; ++i) ASSERT_TRUE(qsptest::sameBits(ya[i], yb[i])) << k.name << " " << i;
            }
            const auto v = randomVector<Dly>(count, 100);
            Built<K> fresh(k, taps, n, v.data());
            ASSERT_EQ(k.setDly(a.st, v.data()), qspStsOk);
            std::vector<D> y1(777), y2(777);
            ASSERT_EQ(k.filter(x.data(), y1.data(), 777, a.st, 0), qspStsOk);
            ASSERT_EQ(k.filter(x.data(), y2.data(), 777, fresh.st, 0), qspStsOk);
            for (int i = 0; i < 777; ++i) ASSERT_TRUE(qsptest::sameBits(y1[i], y2[i])) << k.name << " " << i;
        }
    });
}

// The direct-form-1 cascade of 32s samples keeps its history in double
// precision and reports it as 32-bit integers: rounded to nearest with
// ties to even, saturated. One section y = x / 2 + ...: odd inputs make
// outputs that lie half way; b0 = 2^31 makes outputs beyond the range.
TEST(IIRDlyLine, DirectForm1Of32sRoundsToEvenAndSaturates)
{
    QspsIIRState64f_32s* st = nullptr;
    int size = 0;
    ASSERT_EQ(qspsIIRGetStateSize64f_BiQuad_DF1_32s(1, &size), qspStsOk);
    std::vector<Qsp8u> mem(size);
    const Qsp64f half[6] = {0.5, 0, 0, 1, 0, 0};
    ASSERT_EQ(qspsIIRInit64f_BiQuad_DF1_32s(&st, half, 1, nullptr, mem.data()), qspStsOk);
    const Qsp32s x[4] = {9, 3, 5, 7};  // y = 4.5, 1.5, 2.5, 3.5
    Qsp32s y[4];
    ASSERT_EQ(qspsIIR64f_32s_Sfs(x, y, 4, st, 0), qspStsOk);
    EXPECT_EQ(y[0], 4);
    EXPECT_EQ(y[1], 2);
    EXPECT_EQ(y[2], 2);
    EXPECT_EQ(y[3], 4);
    Qsp32s d[4];
    ASSERT_EQ(qspsIIRGetDlyLine64f_DF1_32s(st, d), qspStsOk);
    EXPECT_EQ(d[0], 7);  // x[n-1]
    EXPECT_EQ(d[1], 5);  // x[n-2]
    EXPECT_EQ(d[2], 4);  // y[n-1] = 3.5
    EXPECT_EQ(d[3], 2);  // y[n-2] = 2.5

    const Qsp64f big[6] = {2147483648.0, 0, 0, 1, 0, 0};
    ASSERT_EQ(qspsIIRInit64f_BiQuad_DF1_32s(&st, big, 1, nullptr, mem.data()), qspStsOk);
    const Qsp32s z[2] = {-3, 5};
    ASSERT_EQ(qspsIIR64f_32s_Sfs(z, y, 2, st, 0), qspStsOk);
    EXPECT_EQ(y[0], INT_MIN);
    EXPECT_EQ(y[1], INT_MAX);
    ASSERT_EQ(qspsIIRGetDlyLine64f_DF1_32s(st, d), qspStsOk);
    EXPECT_EQ(d[0], 5);
    EXPECT_EQ(d[1], -3);
    EXPECT_EQ(d[2], INT_MAX);
    EXPECT_EQ(d[3], INT_MIN);
}

// Pointers first, then the record; nothing written on error; each
// function accepts the states of the filtering forms of its suffix and
// those only.
TEST(IIRDlyLine, ChecksAndAcceptedRecords)
{
    forEachKind([](const auto& k) {
        using K = std::decay_t<decltype(k)>;
        using Dly = typename K::DlyT;
        using St = typename K::StateT;
        const int n = 3;
        Built<K> b(k, tapsFor(k, n), n, nullptr);
        const auto before = bytesOf(b);
        qsptest::Guarded<Dly> out(64);
        const auto v = randomVector<Dly>(64, 10);
        EXPECT_EQ(k.getDly(nullptr, out.data()), qspStsNullPtr);
        EXPECT_EQ(k.getDly(b.st, nullptr), qspStsNullPtr);
        EXPECT_EQ(k.setDly(nullptr, v.data()), qspStsNullPtr);
        EXPECT_EQ(k.setDly(nullptr, nullptr), qspStsNullPtr);
        std::vector<unsigned char> zeros(4096, 0);
        St* zeroState = reinterpret_cast<St*>(zeros.data() + 1);
        EXPECT_EQ(k.getDly(zeroState, nullptr), qspStsNullPtr);
        EXPECT_EQ(k.getDly(zeroState, out.data()), qspStsBadRecord);
        EXPECT_EQ(k.setDly(zeroState, v.data()), qspStsBadRecord);
        EXPECT_EQ(k.setDly(zeroState, nullptr), qspStsBadRecord);
        EXPECT_TRUE(std::all_of(zeros.begin(), zeros.end(), [](unsigned char c) { return c == 0; }));
        EXPECT_TRUE(out.untouched());
        EXPECT_TRUE(bytesOf(b) == before);

        forEachKind([&](const auto& other) {
            using KO = std::decay_t<decltype(other)>;
            Built<KO> o(other, tapsFor(other, n), n, nullptr);
            const auto obefore = bytesOf(o);
            auto* st = reinterpret_cast<St*>(o.st);
            qsptest::Guarded<Dly> got(64);
            const bool accepted = std::is_same_v<typename KO::StateT, St> && std::is_same_v<typename KO::DlyT, Dly> &&
                                  std::is_same_v<typename KO::DataT, typename K::DataT>;
            const QspStatus sg = k.getDly(st, got.data());
            const QspStatus ss = k.setDly(st, v.data());
            if (accepted) {
                EXPECT_EQ(sg, qspStsOk) << k.name << " with " << other.name;
                EXPECT_EQ(ss, qspStsOk) << k.name << " with " << other.name;
            } else {
                EXPECT_EQ(sg, qspStsBadRecord) << k.name << " with " << other.name;
                EXPECT_EQ(ss, qspStsBadRecord) << k.name << " with " << other.name;
                EXPECT_TRUE(got.untouched());
                EXPECT_TRUE(bytesOf(o) == obefore);
            }
        });
    });
}

// SPDX-License-Identifier: BSD-3-Clause
// The half-precision DFT: its two conversion paths, chosen by the support
// library's feature query with the mask 0x1000000000. This program defines
// ownGetFeature itself, so the library's calls reach this definition first:
// it records the masks asked and answers as the test says (or passes the
// question on to the support library).
#include <dlfcn.h>

#include <cstring>
#include <vector>

#include "dft_kinds.h"

namespace {

int gAnswer = -1;  // -1: ask the support library
std::vector<Qsp64u> gAsked;

}  // namespace

extern "C" int ownGetFeature(Qsp64u featureMask)
{
    gAsked.push_back(featureMask);
    if (gAnswer >= 0) return gAnswer;
    using Fn = int (*)(Qsp64u);
    static const Fn next = reinterpret_cast<Fn>(dlsym(RTLD_NEXT, "ownGetFeature"));
    return next ? next(featureMask) : 0;
}

namespace {

using namespace dftkinds;

constexpr Qsp64u kHalfMask = 0x1000000000ULL;

struct Answer {
    explicit Answer(int a) { gAnswer = a, gAsked.clear(); }
    ~Answer() { gAnswer = -1; }
};

std::vector<Qsp16fc> halves(const std::vector<LC>& x)
{
    std::vector<Qsp16fc> h(x.size());
    for (size_t i = 0; i < x.size(); ++i)
        h[i] = {mathfn::floatToHalf(float(x[i].real())), mathfn::floatToHalf(float(x[i].imag()))};
    return h;
}

std::vector<Qsp16fc> viaRecord(Record& r, const std::vector<Qsp16fc>& x, bool inverse)
{
    std::vector<Qsp16fc> y(x.size());
    auto* rec = reinterpret_cast<const QspsDFTSpec_C_16fc*>(r.specPtr());
    const QspStatus st = inverse ? qspsDFTInv_CToC_16fc(x.data(), y.data(), rec, r.workPtr())
                                 : qspsDFTFwd_CToC_16fc(x.data(), y.data(), rec, r.workPtr());
    EXPECT_EQ(st, qspStsOk);
    return y;
}

std::vector<Qsp16fc> viaDirect(const std::vector<Qsp16fc>& x, bool inverse)
{
    std::vector<Qsp16fc> y(x.size());
    const QspStatus st = inverse ? qspsDFTInv_Direct_CToC_16fc(x.data(), y.data(), int(x.size()))
                                 : qspsDFTFwd_Direct_CToC_16fc(x.data(), y.data(), int(x.size()));
    EXPECT_EQ(st, qspStsOk);
    return y;
}

bool sameBits(const std::vector<Qsp16fc>& a, const std::vector<Qsp16fc>& b)
{
    return a.size() == b.size() && std::memcmp(a.data(), b.data(), a.size() * sizeof(Qsp16fc)) == 0;
}

// Both answers of the query give the same bits, and every transform asks
// with the half-precision mask.
TEST(DftHalf, BothPathsAgreeAndTheMaskIsAsked)
{
    for (int n : {1, 3, 8, 16, 17, 33, 48, 53, 64, 100, 1000, 1031}) {
        const std::vector<Qsp16fc> x = halves(dftref::exactSignal(n, false, 11));
        for (bool inverse : {false, true}) {
            std::vector<Qsp16fc> withFeature, without, directWith, directWithout;
            {
                Answer a(1);
                Record r = make(K::C16fc, n, 1);
                withFeature = viaRecord(r, x, inverse);
                directWith = viaDirect(x, inverse);
                ASSERT_FALSE(gAsked.empty()) << "L=" << n;
                for (Qsp64u m : gAsked) EXPECT_EQ(m, kHalfMask);
            }
            {
                Answer a(0);
                Record r = make(K::C16fc, n, 1);
                without = viaRecord(r, x, inverse);
                directWithout = viaDirect(x, inverse);
                ASSERT_FALSE(gAsked.empty());
            }
            EXPECT_TRUE(sameBits(withFeature, without)) << "L=" << n << (inverse ? " inverse" : " forward");
            EXPECT_TRUE(sameBits(directWith, directWithout)) << "L=" << n;
        }
    }
}

// Length 1 with flag 8 is the identity: every half value that is not a NaN
// comes back with its bits (zeros, subnormals, infinities), NaNs as NaNs,
// on both paths.
TEST(DftHalf, EveryHalfValueConvertsExactlyOnBothPaths)
{
    for (int answer : {0, 1}) {
        Answer a(answer);
        Record r = make(K::C16fc, 1, 8);
        auto* rec = reinterpret_cast<const QspsDFTSpec_C_16fc*>(r.specPtr());
        for (unsigned bits = 0; bits < 65536; bits += 2) {
            const Qsp16fc x = {Qsp16f(bits), Qsp16f(bits + 1)};
            Qsp16fc y{}, z{};
            ASSERT_EQ(qspsDFTFwd_CToC_16fc(&x, &y, rec, nullptr), qspStsOk);
            ASSERT_EQ(qspsDFTFwd_Direct_CToC_16fc(&x, &z, 1), qspStsOk);
            const bool finite = (x.re & 0x7C00) != 0x7C00 && (x.im & 0x7C00) != 0x7C00;
            for (int part = 0; part < 2; ++part) {
                const Qsp16f in = part ? x.im : x.re, out = part ? y.im : y.re, direct = part ? z.im : z.re;
                const bool nan = (in & 0x7C00) == 0x7C00 && (in & 0x3FF);
                if (nan) {
                    EXPECT_TRUE((out & 0x7C00) == 0x7C00 && (out & 0x3FF)) << std::hex << in;
                } else {
                    EXPECT_EQ(out, in) << std::hex << in << " path " << answer;
                }
                // the direct sum multiplies both parts by W^0 = 1 + 0i: the
                // value (not the sign of a zero) of finite data survives
                if (finite) EXPECT_EQ(mathfn::halfToFloat(direct), mathfn::halfToFloat(in)) << std::hex << in;
            }
        }
    }
}

// Longer blocks through both conversion paths: values across the whole
// half range, subnormal, overflowing to infinity, and the rounding ties.
TEST(DftHalf, ConversionOfEveryRangeOnBothPaths)
{
    const int n = 60;
    Record r8 = make(K::C16fc, n, 8);
    std::vector<Qsp16fc> x(n);
    for (int i = 0; i < n; ++i) x[i] = {Qsp16f(i == 0 ? 0x0001 : 0), Qsp16f(i == 0 ? 0x8400 : 0)};
    std::vector<Qsp16fc> a, b;
    {
        Answer on(1);
        a = viaRecord(r8, x, false);
    }
    {
        Answer off(0);
        b = viaRecord(r8, x, false);
    }
    // an impulse at 0 transforms into a constant: every bin holds x[0]
    for (int i = 0; i < n; ++i) {
        EXPECT_EQ(a[i].re, 0x0001);
        EXPECT_EQ(a[i].im, 0x8400);
    }
    EXPECT_TRUE(sameBits(a, b));
}

TEST(DftHalf, Accuracy)
{
    for (int n : {5, 16, 17, 48, 53, 96, 128, 1000, 1031}) {
        const std::vector<LC> x0 = dftref::exactSignal(n, false, 12);
        std::vector<LC> x(n);
        const std::vector<Qsp16fc> h = halves(x0);
        for (int i = 0; i < n; ++i) x[i] = LC(mathfn::halfToFloat(h[i].re), mathfn::halfToFloat(h[i].im));
        const std::vector<LC> want = dftref::dft(x, -1);
        // flag 1: the forward transform divided by L stays within half range
        Record r = make(K::C16fc, n, 1);
        const std::vector<Qsp16fc> y = viaRecord(r, h, false);
        std::vector<LC> got(n), ref(n);
        for (int i = 0; i < n; ++i) {
            got[i] = LC(mathfn::halfToFloat(y[i].re), mathfn::halfToFloat(y[i].im));
            ref[i] = want[i] / (long double)n;
        }
        EXPECT_LE(relRms(ref, got), bound(K::C16fc, n)) << "L=" << n;
        // the direct evaluation: no normalisation, so the outputs are L times larger
        const std::vector<Qsp16fc> d = viaDirect(h, false);
        for (int i = 0; i < n; ++i) got[i] = LC(mathfn::halfToFloat(d[i].re), mathfn::halfToFloat(d[i].im));
        EXPECT_LE(relRms(want, got), bound(K::C16fc, n)) << "direct L=" << n;
        // inverse direct: the positive exponent
        const std::vector<Qsp16fc> e = viaDirect(h, true);
        for (int i = 0; i < n; ++i) {
            got[i] = LC(mathfn::halfToFloat(e[i].re), mathfn::halfToFloat(e[i].im));
            ref[i] = want[(n - i) % n];
        }
        std::vector<LC> inv = dftref::dft(x, 1);
        EXPECT_LE(relRms(inv, got), bound(K::C16fc, n)) << "inverse direct L=" << n;
    }
}

TEST(DftHalf, DirectChecksPointersThenLength)
{
    std::vector<Qsp16fc> x(8), y(8);
    qsptest::Guarded<Qsp16fc> g(8);
    EXPECT_EQ(qspsDFTFwd_Direct_CToC_16fc(nullptr, g.data(), 8), qspStsNullPtr);
    EXPECT_EQ(qspsDFTFwd_Direct_CToC_16fc(x.data(), nullptr, 8), qspStsNullPtr);
    EXPECT_EQ(qspsDFTInv_Direct_CToC_16fc(nullptr, nullptr, 0), qspStsNullPtr);
    EXPECT_EQ(qspsDFTInv_Direct_CToC_16fc(x.data(), g.data(), 0), qspStsBadSize);
    EXPECT_EQ(qspsDFTFwd_Direct_CToC_16fc(x.data(), g.data(), -3), qspStsBadSize);
    EXPECT_TRUE(g.untouched());
}

}  // namespace

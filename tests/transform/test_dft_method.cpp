// SPDX-License-Identifier: BSD-3-Clause
// White-box checks of the DFT's choice of method: the factorisation rule and
// its lists, and what Init records for each length (the record's header).
#include <cstdint>
#include <vector>

#include "dft_kinds.h"
#include "transform/dft_factor.h"
#include "transform/dft_record.h"

namespace {

using dft::factorise;

std::vector<int> listOf(const dft::FactorList& f) { return std::vector<int>(f.f, f.f + f.count); }

TEST(DftFactorRule, ListsOfTheRule)
{
    struct Case {
        long long len;
        std::vector<int> list;
        bool planned;
    };
    const Case cases[] = {
        {96, {2, 4, 4, 3}, true},          // a leading 2 in front of the 4s, no merge behind a 4
        {1000, {2, 4, 5, 5, 5}, true},
        {48, {4, 4, 3}, true},
        {24, {2, 4, 3}, true},
        {18, {6, 3}, true},                // 2 and 3 merge into 6
        {54, {6, 3, 3}, true},
        {30, {6, 5}, true},
        {6, {2, 3}, true},                 // the remainder 3 comes after the merge step
        {45, {3, 3, 5}, true},
        {343, {7, 7, 7}, true},
        {2 * 47, {2, 47}, true},           // last factor at most 50
        {2 * 53, {2, 53}, false},          // above 50 without a factor 4
        {4 * 53, {4, 53}, true},           // at most 150 with one
        {4 * 149, {4, 149}, true},
        {4 * 151, {4, 151}, false},
        {2597, {7, 7, 53}, false},         // 7 * 7 * 53
        {4 * 2597, {4, 7, 7, 53}, true},
        {2 * 3 * 53, {6, 53}, false},
        {53, {53}, false},                 // no factor found
        {17, {17}, false},
        {1031, {1031}, false},
        {25, {5, 5}, true},
        {49, {7, 7}, true},
    };
    for (const Case& c : cases) {
        const dft::FactorList f = factorise(c.len);
        EXPECT_EQ(listOf(f), c.list) << "L=" << c.len;
        EXPECT_EQ(f.planned, c.planned) << "L=" << c.len;
    }
    // the trial division stops at an odd divisor above 48 that fails
    EXPECT_FALSE(factorise(53 * 53).planned);
    EXPECT_FALSE(factorise(4 * 53 * 59).planned);
    EXPECT_FALSE(factorise(101).planned);
    // 3^17 is the longest list below 2^27
    const dft::FactorList t = factorise(129140163);
    EXPECT_EQ(t.count, 17);
    EXPECT_TRUE(t.planned);
}

const dft::Record* recordIn(dftkinds::Record& r)
{
    return reinterpret_cast<const dft::Record*>((reinterpret_cast<uintptr_t>(r.specPtr()) + 63) & ~uintptr_t(63));
}

TEST(DftMethod, InitRecordsTheMethodOfTheRule)
{
    using dftkinds::K;
    for (K k : dftkinds::kAll) {
        for (int n = 1; n <= 16; ++n) {
            dftkinds::Record r = dftkinds::make(k, n, 1);
            EXPECT_EQ(recordIn(r)->method, dft::kDirect) << dftkinds::name(k) << " L=" << n;
        }
        for (int n : {32, 64, 4096}) {
            dftkinds::Record r = dftkinds::make(k, n, 1);
            EXPECT_EQ(recordIn(r)->method, dft::kFft);
            EXPECT_EQ(recordIn(r)->powerOfTwo, 1u);
            EXPECT_NE(recordIn(r)->fft, nullptr);
        }
        for (int n : {17, 19, 23, 47}) {
            dftkinds::Record r = dftkinds::make(k, n, 1);
            EXPECT_EQ(recordIn(r)->method, dft::kTable) << dftkinds::name(k) << " L=" << n;
            EXPECT_NE(recordIn(r)->direct, nullptr);
        }
        for (int n : {48, 96, 1000, 18, 34, 596}) {
            dftkinds::Record r = dftkinds::make(k, n, 1);
            EXPECT_EQ(recordIn(r)->method, dft::kPlan) << dftkinds::name(k) << " L=" << n;
        }
        for (int n : {53, 101, 1031, 2597, 106, 604}) {
            dftkinds::Record r = dftkinds::make(k, n, 1);
            EXPECT_EQ(recordIn(r)->method, dft::kChirp) << dftkinds::name(k) << " L=" << n;
            EXPECT_EQ(recordIn(r)->chirp.inUse, 1u);
        }
    }
}

// The plan in the record: its count (minus one), in-use flag and ordered
// factors, and the chirp's power-of-two length (at least 2L - 1).
TEST(DftMethod, PlanAndChirpState)
{
    dftkinds::Record r = dftkinds::make(dftkinds::K::C32fc, 96, 1);
    const dft::Plan& p = recordIn(r)->plan;
    EXPECT_EQ(p.countMinus1, 3);
    EXPECT_EQ(p.inUse, 1u);
    const int want[] = {2, 4, 4, 3};
    for (int i = 0; i < 4; ++i) EXPECT_EQ(p.factor[i].factor, want[i]);
    dftkinds::Record q = dftkinds::make(dftkinds::K::C64fc, 1000, 1);
    const dft::Plan& p2 = recordIn(q)->plan;
    EXPECT_EQ(p2.countMinus1, 4);
    const int want2[] = {2, 4, 5, 5, 5};
    for (int i = 0; i < 5; ++i) EXPECT_EQ(p2.factor[i].factor, want2[i]);
    for (int n : {53, 67, 1031, 2597}) {
        dftkinds::Record c = dftkinds::make(dftkinds::K::C32fc, n, 1);
        const int order = recordIn(c)->chirp.order;
        EXPECT_GE(1LL << order, 2LL * n - 1) << "L=" << n;
        EXPECT_LT(1LL << (order - 1), 2LL * n - 1) << "L=" << n;
        EXPECT_EQ(recordIn(c)->plan.inUse, 0u);
    }
}

// The header fields shared with the FFT record, in its order.
TEST(DftMethod, HeaderFields)
{
    for (int flag : {1, 2, 4, 8}) {
        dftkinds::Record r = dftkinds::make(dftkinds::K::C32fc, 1000, flag);
        const dft::Record* h = recordIn(r);
        EXPECT_EQ(h->id, 15u);
        EXPECT_EQ(h->len, 1000);
        EXPECT_EQ(h->forwardNormalise, flag == 1 || flag == 4 ? 1u : 0u);
        EXPECT_EQ(h->inverseNormalise, flag == 2 || flag == 4 ? 1u : 0u);
        const float want = flag == 4 ? float(1.0 / std::sqrt(1000.0)) : flag == 8 ? 0.0f : 1.0f / 1000.0f;
        EXPECT_EQ(h->factor.f, want);
        EXPECT_EQ(h->workSize, r.workSize);
    }
    const Qsp32u ids[] = {14, 15, 16, 18, 19, 17, 20};
    const dftkinds::K kinds[] = {dftkinds::K::C16fc, dftkinds::K::C32fc, dftkinds::K::C32f, dftkinds::K::C64fc,
                                 dftkinds::K::C64f, dftkinds::K::R32f, dftkinds::K::R64f};
    for (int i = 0; i < 7; ++i) {
        dftkinds::Record r = dftkinds::make(kinds[i], 12, 4);
        EXPECT_EQ(recordIn(r)->id, ids[i]);
        if (dftkinds::isDouble(kinds[i])) EXPECT_EQ(recordIn(r)->factor.d, 1.0 / std::sqrt(12.0));
    }
}

}  // namespace

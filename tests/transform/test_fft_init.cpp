// SPDX-License-Identifier: BSD-3-Clause
#include <cmath>

#include "fft_kinds.h"
#include "fft_real_kinds.h"
#include "transform/fft_fourstep.h"
#include "transform/fft_record.h"

using namespace fftkinds;

namespace {

const fft::Record* header(const void* rec) { return static_cast<const fft::Record*>(rec); }

// Every kind's Init through one signature.
using AnyInit = QspStatus (*)(void**, int, int, int, Qsp8u*, Qsp8u*);
using AnySize = QspStatus (*)(int, int, int, int*, int*, int*);

struct KindApi {
    const char* name;
    Qsp32u id;
    int maxOrder;
    bool dbl;
    AnySize size;
    AnyInit init;
};

const KindApi kKinds[] = {
    {"C_32fc", 5, 28, false, (AnySize)qspsFFTGetSize_C_32fc, (AnyInit)qspsFFTInit_C_32fc},
    {"C_32f", 6, 28, false, (AnySize)qspsFFTGetSize_C_32f, (AnyInit)qspsFFTInit_C_32f},
    {"R_32f", 7, 29, false, (AnySize)qspsFFTGetSize_R_32f, (AnyInit)qspsFFTInit_R_32f},
    {"C_64fc", 8, 27, true, (AnySize)qspsFFTGetSize_C_64fc, (AnyInit)qspsFFTInit_C_64fc},
    {"C_64f", 9, 27, true, (AnySize)qspsFFTGetSize_C_64f, (AnyInit)qspsFFTInit_C_64f},
    {"R_64f", 10, 28, true, (AnySize)qspsFFTGetSize_R_64f, (AnyInit)qspsFFTInit_R_64f},
};

bool inside(const void* p, const Qsp8u* block, int size)
{
    return p == nullptr || ((const Qsp8u*)p >= block && (const Qsp8u*)p < block + size);
}

}  // namespace

TEST(FFTInit, ArgumentErrorsLeaveTheBlockUntouched)
{
    for (const KindApi& k : kKinds) {
        qsptest::Guarded<Qsp8u> spec(512);
        void* rec = (void*)0x1;
        EXPECT_EQ(k.init(nullptr, 99, 3, 0, nullptr, nullptr), qspStsNullPtr) << k.name;
        EXPECT_EQ(k.init(&rec, k.maxOrder + 1, 3, 0, nullptr, nullptr), qspStsBadFftOrder) << k.name;
        EXPECT_EQ(k.init(&rec, -1, 8, 0, spec.data(), nullptr), qspStsBadFftOrder) << k.name;
        EXPECT_EQ(k.init(&rec, 3, 3, 0, nullptr, nullptr), qspStsNullPtr) << k.name;
        EXPECT_TRUE(spec.untouched()) << k.name;
        EXPECT_EQ(rec, (void*)0x1);
    }
}

TEST(FFTInit, RejectedFlagLeavesIdentifierZero)
{
    for (const KindApi& k : kKinds)
        for (int flag : {3, 0, 5, 16, -1}) {
            std::vector<Qsp8u> spec(4096, 0xA5);
            void* rec = nullptr;
            EXPECT_EQ(k.init(&rec, 7, flag, 0, spec.data() + 3, nullptr), qspStsBadFftFlag) << k.name;
            EXPECT_EQ(rec, nullptr);
            const Qsp8u* aligned = fft::alignUp64(spec.data() + 3);
            Qsp32u id;
            memcpy(&id, aligned, 4);
            EXPECT_EQ(id, 0u) << k.name;
        }
}

TEST(FFTInit, RecordWithItsHeaderFieldsInsideTheBlock)
{
    for (const KindApi& k : kKinds)
        for (int order : {0, 1, 4, 5, 6, 7, 10, 11, 12, 16, 17, 18, 19})
            for (int flag : {1, 2, 4, 8})
                for (int offset : {0, 1, 13, 63}) {
                    if (flag != 8 && offset != 13 && order != 11) continue;  // keep the sweep short
                    int s, i, w;
                    ASSERT_EQ(k.size(order, flag, 7, &s, &i, &w), qspStsOk);
                    std::vector<Qsp8u> spec(s + offset + 64, 0xA5), init(i + offset + 64, 0xA5);
                    void* rec = nullptr;
                    ASSERT_EQ(k.init(&rec, order, flag, 7, spec.data() + offset, i ? init.data() + offset : nullptr),
                              qspStsOk)
                        << k.name << " order " << order;
                    const Qsp8u* block = spec.data() + offset;
                    ASSERT_EQ(rec, fft::alignUp64(block));
                    EXPECT_LE((Qsp8u*)rec - block, 63);
                    const fft::Record* h = header(rec);
                    EXPECT_EQ(h->id, k.id);
                    EXPECT_EQ(h->order, order);
                    EXPECT_EQ(h->forwardNormalise, (flag == 1 || flag == 4) ? 1u : 0u);
                    EXPECT_EQ(h->inverseNormalise, (flag == 2 || flag == 4) ? 1u : 0u);
                    const double n = double(1LL << order);
                    if (k.dbl) {
                        const double f = flag == 4 ? 1.0 / std::sqrt(n) : (flag == 8 ? 0.0 : 1.0 / n);
                        EXPECT_EQ(h->factor.d, f);
                    } else {
                        const float f = flag == 4 ? (float)(1.0 / std::sqrt(n)) : (flag == 8 ? 0.0f : 1.0f / (float)n);
                        EXPECT_EQ(h->factor.f, f);
                    }
                    EXPECT_EQ(h->hint, 7u);
                    EXPECT_EQ(h->zero, 0u);
                    // The work size the calls need: what GetSize reported, less the slack.
                    EXPECT_EQ(h->workSize, w ? w - 64 : 0) << k.name << " order " << order;
                    EXPECT_TRUE(inside(h->twiddles, block, s));
                    EXPECT_TRUE(inside(h->recomb, block, s));
                    EXPECT_TRUE(inside(h->recombInv, block, s));
                    EXPECT_TRUE(inside(h->bitReverse, block, s));
                    // Nothing written beyond the reported sizes.
                    for (int b = 0; b < offset; ++b) ASSERT_EQ(spec[b], 0xA5);
                    for (size_t b = s + offset; b < spec.size(); ++b) ASSERT_EQ(spec[b], 0xA5) << k.name << " order " << order;
                    for (size_t b = i + offset; b < init.size(); ++b) ASSERT_EQ(init[b], 0xA5);
                }
}

TEST(FFTInit, InitBufferNeededFromOrder11)
{
    for (const KindApi& k : kKinds) {
        int s, i, w;
        ASSERT_EQ(k.size(10, 8, 0, &s, &i, &w), qspStsOk);
        EXPECT_EQ(i, 0);
        std::vector<Qsp8u> spec(s);
        void* rec = nullptr;
        EXPECT_EQ(k.init(&rec, 10, 8, 0, spec.data(), nullptr), qspStsOk);
        ASSERT_EQ(k.size(11, 8, 0, &s, &i, &w), qspStsOk);
        EXPECT_GT(i, 0);
        spec.assign(s, 0);
        rec = nullptr;
        EXPECT_EQ(k.init(&rec, 11, 8, 0, spec.data(), nullptr), qspStsNullPtr) << k.name;
        EXPECT_EQ(rec, nullptr);
        // The half-built record is not accepted later.
        Qsp32u id;
        memcpy(&id, fft::alignUp64(spec.data()), 4);
        EXPECT_EQ(id, 0u);
    }
}

TEST(FFTInit, SplitRecordsAreInterleavedOnesWithTheirOwnIdentifier)
{
    for (int order : {3, 9, 12}) {
        int s, i, w;
        ASSERT_EQ(qspsFFTGetSize_C_32fc(order, 2, 0, &s, &i, &w), qspStsOk);
        std::vector<Qsp8u> a(s), b(s), ia(i + 1), ib(i + 1);
        QspsFFTSpec_C_32fc* ra;
        QspsFFTSpec_C_32f* rb;
        ASSERT_EQ(qspsFFTInit_C_32fc(&ra, order, 2, 0, a.data(), ia.data()), qspStsOk);
        ASSERT_EQ(qspsFFTInit_C_32f(&rb, order, 2, 0, b.data(), ib.data()), qspStsOk);
        EXPECT_EQ(header(ra)->id, 5u);
        EXPECT_EQ(header(rb)->id, 6u);
        // Same twiddle tables, value for value.
        const size_t count = order <= 5 ? 0 : (size_t)fft::complexTwiddleCount<float>(order);
        if (count == 0) {
            EXPECT_EQ(header(ra)->twiddles, nullptr);
            EXPECT_EQ(header(rb)->twiddles, nullptr);
        } else {
            EXPECT_EQ(0, memcmp(header(ra)->twiddles, header(rb)->twiddles, count * 8));
        }
    }
}

TEST(FFTInit, HalfPrecisionSwitchesDenormalHandling)
{
    unsigned ftz = 0, daz = 0;
    qspSetFlushToZero(0, &ftz);
    qspSetDenormAreZeros(0, &daz);
    std::vector<Qsp8u> spec(4096);
    QspsFFTSpec_C_16fc* rec;
    ASSERT_EQ(qspsFFTInit_C_16fc(&rec, 4, 8, 0, spec.data(), nullptr), qspStsOk);
    EXPECT_EQ(header(rec)->id, 4u);
    const unsigned csr = _mm_getcsr();
    EXPECT_NE(csr & 0x8000, 0u);
    EXPECT_NE(csr & 0x0040, 0u);
    qspSetFlushToZero((int)ftz, nullptr);
    qspSetDenormAreZeros((int)daz, nullptr);
}

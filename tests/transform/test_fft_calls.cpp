// SPDX-License-Identifier: BSD-3-Clause
// Entry checks shared by every forward and inverse transform call: the
// record, its identifier, the data pointers, the work buffer; nothing is
// written on any error.
#include "fft_calls.h"

using namespace fftcalls;

namespace {

// Data buffers big enough for order 7 of any kind (split arrays included).
struct Data {
    qsptest::Guarded<Qsp8u> src{4096}, dst{4096};
};

}  // namespace

TEST(FFTCalls, CheckOrderAndCanaries)
{
    for (const Entry& e : entries()) {
        Record r = makeRecord(e.id, 7);  // every kind needs a work buffer here
        ASSERT_GT(r.workSize, 0);
        Data d;
        Qsp8u* work = r.work.data();
        const bool inPlace = std::string(e.name).ends_with("_I");
        // The record first: null, then its identifier, before the data.
        EXPECT_EQ(e.call(nullptr, nullptr, nullptr, nullptr), qspStsNullPtr) << e.name;
        Record other = makeRecord(e.id == 5 ? 7 : 5, 7);
        EXPECT_EQ(e.call(other.rec, nullptr, nullptr, nullptr), qspStsBadRecord) << e.name;
        // Then source, destination, work buffer.
        EXPECT_EQ(e.call(r.rec, nullptr, d.dst.data(), work), qspStsNullPtr) << e.name;
        if (!inPlace) EXPECT_EQ(e.call(r.rec, d.src.data(), nullptr, work), qspStsNullPtr) << e.name;
        EXPECT_EQ(e.call(r.rec, d.src.data(), d.dst.data(), nullptr), qspStsNullPtr) << e.name;
        EXPECT_TRUE(d.src.untouched()) << e.name;
        EXPECT_TRUE(d.dst.untouched()) << e.name;
    }
}

TEST(FFTCalls, RecordOfAnotherKindIsRefused)
{
    for (Qsp32u id = 4; id <= 10; ++id) {
        Record r = makeRecord(id, 3);
        for (const Entry& e : entries()) {
            Data d;
            const QspStatus s = e.call(r.rec, d.src.data(), d.dst.data(), nullptr);
            if (e.id == id) {
                EXPECT_EQ(s, qspStsOk) << e.name;
            } else {
                EXPECT_EQ(s, qspStsBadRecord) << e.name << " with identifier " << id;
                EXPECT_TRUE(d.src.untouched());
                EXPECT_TRUE(d.dst.untouched());
            }
        }
    }
}

TEST(FFTCalls, RejectedFlagRecordIsRefusedLater)
{
    std::vector<Qsp8u> spec(4096);
    QspsFFTSpec_C_32fc* rec = (QspsFFTSpec_C_32fc*)0x1;
    // A good record first, then a failed Init over the same block.
    ASSERT_EQ(qspsFFTInit_C_32fc(&rec, 3, 8, 0, spec.data(), nullptr), qspStsOk);
    QspsFFTSpec_C_32fc* unused = nullptr;
    ASSERT_EQ(qspsFFTInit_C_32fc(&unused, 3, 3, 0, spec.data(), nullptr), qspStsBadFftFlag);
    Qsp32fc x[8] = {};
    EXPECT_EQ(qspsFFTFwd_CToC_32fc(x, x, rec, nullptr), qspStsBadRecord);
}

TEST(FFTCalls, NullWorkBufferOnlyWhereNoneIsNeeded)
{
    for (const Entry& e : entries()) {
        for (int order = 0; order <= 7; ++order) {
            Record r = makeRecord(e.id, order);
            Data d;
            const QspStatus s = e.call(r.rec, d.src.data(), d.dst.data(), nullptr);
            // The record's own work size decides; for half precision that is
            // the single-precision one (0 up to order 5, where the 32-bit copy
            // of the data fits on the stack).
            if (r.workSize == 0 || (e.id == 4 && order <= 5))
                EXPECT_EQ(s, qspStsOk) << e.name << " order " << order;
            else
                EXPECT_EQ(s, qspStsNullPtr) << e.name << " order " << order;
        }
    }
    // GetSize of half precision reports room for the 32-bit copy at every
    // order; the single-precision kinds up to order 5 need no buffer.
    EXPECT_GT(makeRecord(4, 0).workSize, 0);
    EXPECT_EQ(makeRecord(5, 5).workSize, 0);
    EXPECT_GT(makeRecord(5, 6).workSize, 0);
    EXPECT_EQ(makeRecord(7, 6).workSize, 0);
    EXPECT_GT(makeRecord(7, 7).workSize, 0);
}

TEST(FFTCalls, GivenWorkBufferIsIgnoredWhenNoneIsNeeded)
{
    for (const Entry& e : entries()) {
        if (e.id == 4) continue;
        Record r = makeRecord(e.id, 4);
        ASSERT_EQ(r.workSize, 0);
        qsptest::Guarded<Qsp8u> work(256);
        Data d;
        EXPECT_EQ(e.call(r.rec, d.src.data(), d.dst.data(), work.data()), qspStsOk) << e.name;
        EXPECT_TRUE(work.untouched()) << e.name;
    }
}

// SPDX-License-Identifier: BSD-3-Clause
// DFT size queries, Init and transform calls: every status path in its
// order, nothing written on an error, records in blocks at any address,
// foreign records refused, in place equal to out of place, the
// normalisation flags, and the limits of the methods.
#include <cstdint>
#include <cstring>
#include <thread>

#include "dft_kinds.h"

namespace {

using namespace dftkinds;
using qsptest::Guarded;

const int kMethodLengths[] = {1, 2, 7, 16, 17, 31, 32, 48, 53, 64, 96, 100, 101, 1000, 1031, 2048, 2597};

// ------------------------------------------------------------ GetSize

TEST(DftGetSize, PointersThenLengthThenFlag)
{
    for (K k : kAll) {
        int s = -7, i = -7, w = -7;
        EXPECT_EQ(getSize(k, 17, 1, nullptr, &i, &w), qspStsNullPtr) << name(k);
        EXPECT_EQ(getSize(k, 17, 1, &s, nullptr, &w), qspStsNullPtr);
        EXPECT_EQ(getSize(k, 17, 1, &s, &i, nullptr), qspStsNullPtr);
        EXPECT_EQ(getSize(k, 0, 3, nullptr, &i, &w), qspStsNullPtr) << "pointers come first";
        EXPECT_EQ(getSize(k, 0, 3, &s, &i, &w), qspStsBadSize) << "the length before the flag";
        EXPECT_EQ(getSize(k, -5, 1, &s, &i, &w), qspStsBadSize);
        for (int flag : {0, 3, 5, 16, -1, 6, 7, 9})
            EXPECT_EQ(getSize(k, 17, flag, &s, &i, &w), qspStsBadFftFlag) << name(k) << " flag " << flag;
        EXPECT_EQ(getSize(k, 134217729, 3, &s, &i, &w), qspStsBadFftFlag) << "the flag before the limits";
        EXPECT_EQ(s, -7);
        EXPECT_EQ(i, -7);
        EXPECT_EQ(w, -7);
        for (int flag : {1, 2, 4, 8}) EXPECT_EQ(getSize(k, 17, flag, &s, &i, &w), qspStsOk);
    }
}

TEST(DftGetSize, ShortLengthsNeedNoBuffers)
{
    for (K k : kAll)
        for (int n = 1; n <= 16; ++n) {
            int s, i, w;
            ASSERT_EQ(getSize(k, n, 8, &s, &i, &w), qspStsOk);
            EXPECT_GT(s, 64);
            EXPECT_EQ(i, 0) << name(k) << " L=" << n;
            EXPECT_EQ(w, 0) << name(k) << " L=" << n;
        }
}

TEST(DftGetSize, TablesNeedAnInitBufferAndTheDirectTableItsWork)
{
    for (K k : kAll)
        for (int n : {17, 18, 47, 48, 53, 96, 1000, 1031}) {
            int s, i, w;
            ASSERT_EQ(getSize(k, n, 1, &s, &i, &w), qspStsOk);
            EXPECT_GT(i, 0) << name(k) << " L=" << n;
            EXPECT_GT(w, 0) << name(k) << " L=" << n;
        }
    // the direct table of a prime below 50: work = 8 L + 64 (16 L + 64 double)
    int s, i, w;
    ASSERT_EQ(qspsDFTGetSize_C_32fc(47, 8, 0, &s, &i, &w), qspStsOk);
    EXPECT_EQ(w, 8 * 47 + 64);
    ASSERT_EQ(qspsDFTGetSize_C_64fc(47, 8, 0, &s, &i, &w), qspStsOk);
    EXPECT_EQ(w, 16 * 47 + 64);
}

// Powers of two take the FFT's sizes, with the DFT header added to the record.
TEST(DftGetSize, PowersOfTwoAreTheFftSizes)
{
    for (int order = 5; order <= 16; ++order) {
        int s, i, w, fs, fi, fw;
        ASSERT_EQ(qspsDFTGetSize_C_32fc(1 << order, 2, 0, &s, &i, &w), qspStsOk);
        ASSERT_EQ(qspsFFTGetSize_C_32fc(order, 2, 0, &fs, &fi, &fw), qspStsOk);
        EXPECT_GT(s, fs);
        EXPECT_EQ(i, fi);
        EXPECT_EQ(w, fw);
        ASSERT_EQ(qspsDFTGetSize_R_64f(1 << order, 2, 0, &s, &i, &w), qspStsOk);
        ASSERT_EQ(qspsFFTGetSize_R_64f(order, 2, 0, &fs, &fi, &fw), qspStsOk);
        EXPECT_GT(s, fs);
        EXPECT_EQ(i, fi);
        EXPECT_EQ(w, fw);
    }
}

TEST(DftGetSize, Limits)
{
    int s, i, w;
    // beyond the plan's limit, not a power of two
    EXPECT_EQ(qspsDFTGetSize_C_32fc(134217729, 8, 0, &s, &i, &w), qspStsBadSize);
    EXPECT_EQ(qspsDFTGetSize_C_32fc(0x7FFFFFFF, 8, 0, &s, &i, &w), qspStsBadSize);
    EXPECT_EQ(qspsDFTGetSize_R_32f(134217729, 8, 0, &s, &i, &w), qspStsBadSize);
    // powers of two beyond the FFT's orders: the FFT's status
    EXPECT_EQ(qspsDFTGetSize_C_32fc(1 << 29, 8, 0, &s, &i, &w), qspStsBadFftOrder);
    EXPECT_EQ(qspsDFTGetSize_C_64fc(1 << 28, 8, 0, &s, &i, &w), qspStsBadFftOrder);
    EXPECT_EQ(qspsDFTGetSize_R_32f(1 << 30, 8, 0, &s, &i, &w), qspStsBadFftOrder);
    // a chirp length beyond 67108863 (2^26 + 3 = 67108867, no plan)
    EXPECT_EQ(qspsDFTGetSize_C_32fc(67108867, 8, 0, &s, &i, &w), qspStsBadSize);
    // the double kinds halve the plan's limit and quarter the chirp's
    EXPECT_EQ(qspsDFTGetSize_C_64fc(67108863 + 2 * 3, 8, 0, &s, &i, &w), qspStsBadSize);
    EXPECT_EQ(qspsDFTGetSize_C_64f(16777219, 8, 0, &s, &i, &w), qspStsBadSize);
}

// ------------------------------------------------------------ Init

// The aligned record inside a block.
Qsp8u* recordAt(Qsp8u* block) { return reinterpret_cast<Qsp8u*>((reinterpret_cast<uintptr_t>(block) + 63) & ~uintptr_t(63)); }

Qsp32u idAt(Qsp8u* block)
{
    Qsp32u id;
    std::memcpy(&id, recordAt(block), 4);
    return id;
}

TEST(DftInit, NullBlockThenLength)
{
    for (K k : kAll) {
        std::vector<Qsp8u> buf(4096);
        EXPECT_EQ(init(k, 17, 1, nullptr, buf.data()), qspStsNullPtr);
        EXPECT_EQ(init(k, 0, 3, nullptr, buf.data()), qspStsNullPtr);
        Guarded<Qsp8u> block(4096);
        EXPECT_EQ(init(k, 0, 1, block.data(), buf.data()), qspStsBadSize) << name(k);
        EXPECT_EQ(init(k, -1, 3, block.data(), buf.data()), qspStsBadSize) << "the length before the flag";
        EXPECT_TRUE(block.untouched()) << name(k);
    }
}

// A bad flag is found after the header is cleared: the record keeps
// identifier 0 and every transform refuses it; nothing before the aligned
// record is written.
TEST(DftInit, BadFlagLeavesARefusedRecord)
{
    for (K k : kAll)
        for (int flag : {0, 3, 5, 16, -1}) {
            Guarded<Qsp8u> block(4096);
            std::vector<Qsp8u> buf(4096);
            Qsp8u* at = block.data() + 5;
            EXPECT_EQ(init(k, 100, flag, at, buf.data()), qspStsBadFftFlag) << name(k) << " flag " << flag;
            EXPECT_EQ(idAt(at), 0u);
            for (Qsp8u* p = block.data() - 16; p < recordAt(at); ++p) EXPECT_EQ(*p, qsptest::kCanaryByte);
            Record r;
            r.kind = k;
            r.len = 100;
            r.at = at;
            r.workSize = 1 << 16;
            r.work.assign(r.workSize, 0);
            QspStatus st;
            transform(r, std::vector<LC>(100, LC(1, 0)), false, false, &st);
            EXPECT_EQ(st, qspStsBadRecord) << name(k);
        }
}

TEST(DftInit, InitBufferNeededOnlyForTables)
{
    for (K k : kAll) {
        for (int n : {1, 5, 16, 32}) {
            Record r = make(k, n, 1);
            std::vector<Qsp8u> block(r.specSize + 64);
            EXPECT_EQ(init(k, n, 1, block.data(), nullptr), qspStsOk) << name(k) << " L=" << n;
        }
        for (int n : {17, 18, 48, 53, 1000}) {
            Record r = make(k, n, 1);
            std::vector<Qsp8u> block(r.specSize + 64);
            EXPECT_EQ(init(k, n, 1, block.data(), nullptr), qspStsNullPtr) << name(k) << " L=" << n;
            EXPECT_EQ(idAt(block.data()), 0u) << "no half-built record is accepted";
        }
        // the FFT's own rule from order 11
        Record r = make(k, 2048, 1);
        std::vector<Qsp8u> block(r.specSize + 64);
        EXPECT_EQ(init(k, 2048, 1, block.data(), nullptr), qspStsNullPtr) << name(k);
    }
}

TEST(DftInit, Limits)
{
    std::vector<Qsp8u> block(8192), buf(8192);
    for (K k : kAll) {
        // beyond the plan's limit, not a power of two: after the header is cleared
        EXPECT_EQ(init(k, 134217729, 1, block.data(), buf.data()), qspStsBadSize) << name(k);
        EXPECT_EQ(idAt(block.data()), 0u);
        EXPECT_EQ(init(k, 0x7FFFFFFF, 1, block.data(), nullptr), qspStsBadSize) << "before the Init buffer";
        // a chirp length beyond the chirp's limit, with and without the Init
        // buffer (which is checked before the method is known)
        const int chirpTooLong = isDouble(k) ? 16777259 : 67108867;
        EXPECT_EQ(init(k, chirpTooLong, 1, block.data(), buf.data()), qspStsBadSize) << name(k);
        EXPECT_EQ(init(k, chirpTooLong, 1, block.data(), nullptr), qspStsNullPtr) << name(k);
    }
    // powers of two beyond the FFT's orders give the FFT's status
    EXPECT_EQ(qspsDFTInit_C_32fc(1 << 29, 1, 0, reinterpret_cast<QspsDFTSpec_C_32fc*>(block.data()), buf.data()),
              qspStsBadFftOrder);
    EXPECT_EQ(qspsDFTInit_C_64f(1 << 28, 1, 0, reinterpret_cast<QspsDFTSpec_C_64f*>(block.data()), buf.data()),
              qspStsBadFftOrder);
    // the double kinds stop their plan at 67108863
    EXPECT_EQ(qspsDFTInit_C_64fc(67108869, 1, 0, reinterpret_cast<QspsDFTSpec_C_64fc*>(block.data()), buf.data()),
              qspStsBadSize);
}

// ------------------------------------------------------------ transforms

TEST(DftCalls, ChecksInOrderAndNothingWrittenOnError)
{
    for (K k : {K::C32fc, K::C64fc, K::C16fc})
        for (int n : kMethodLengths) {
            Record r = make(k, n, 1);
            ASSERT_EQ(r.status, qspStsOk);
            const size_t bytes = k == K::C64fc ? 16 : k == K::C32fc ? 8 : 4;
            Guarded<Qsp8u> src(n * bytes), dst(n * bytes);
            std::memset(src.data(), 0, n * bytes);
            auto call = [&](const void* s, void* d, const void* rec, Qsp8u* w) {
                if (k == K::C32fc)
                    return qspsDFTFwd_CToC_32fc(static_cast<const Qsp32fc*>(s), static_cast<Qsp32fc*>(d),
                                                static_cast<const QspsDFTSpec_C_32fc*>(rec), w);
                if (k == K::C64fc)
                    return qspsDFTInv_CToC_64fc(static_cast<const Qsp64fc*>(s), static_cast<Qsp64fc*>(d),
                                                static_cast<const QspsDFTSpec_C_64fc*>(rec), w);
                return qspsDFTFwd_CToC_16fc(static_cast<const Qsp16fc*>(s), static_cast<Qsp16fc*>(d),
                                            static_cast<const QspsDFTSpec_C_16fc*>(rec), w);
            };
            Record other = make(k == K::C32fc ? K::C32f : K::C32fc, n, 1);
            std::vector<Qsp8u> zeros(r.specSize + 64, 0);
            EXPECT_EQ(call(src.data(), dst.data(), nullptr, r.workPtr()), qspStsNullPtr);
            EXPECT_EQ(call(nullptr, nullptr, other.specPtr(), r.workPtr()), qspStsBadRecord) << "the record first";
            EXPECT_EQ(call(src.data(), dst.data(), zeros.data(), r.workPtr()), qspStsBadRecord);
            EXPECT_EQ(call(nullptr, dst.data(), r.specPtr(), r.workPtr()), qspStsNullPtr);
            EXPECT_EQ(call(src.data(), nullptr, r.specPtr(), r.workPtr()), qspStsNullPtr);
            if (r.workSize > 0)
                EXPECT_EQ(call(src.data(), dst.data(), r.specPtr(), nullptr), qspStsNullPtr) << name(k) << " L=" << n;
            else
                EXPECT_EQ(call(src.data(), dst.data(), r.specPtr(), nullptr), qspStsOk) << name(k) << " L=" << n;
            if (r.workSize > 0) EXPECT_TRUE(dst.untouched()) << name(k) << " L=" << n;
            EXPECT_EQ(call(src.data(), dst.data(), r.specPtr(), r.workPtr()), qspStsOk);
            EXPECT_TRUE(dst.guardsIntact());
        }
}

TEST(DftCalls, SplitAndRealKindsCheckEveryPointer)
{
    for (int n : kMethodLengths) {
        Record c = make(K::C64f, n, 1), rr = make(K::R32f, n, 1), other = make(K::C64fc, n, 1);
        std::vector<double> a(n + 2), b(n + 2), d(n + 2), e(n + 2);
        auto* cs = reinterpret_cast<const QspsDFTSpec_C_64f*>(c.specPtr());
        EXPECT_EQ(qspsDFTFwd_CToC_64f(nullptr, b.data(), d.data(), e.data(), cs, c.workPtr()), qspStsNullPtr);
        EXPECT_EQ(qspsDFTFwd_CToC_64f(a.data(), nullptr, d.data(), e.data(), cs, c.workPtr()), qspStsNullPtr);
        EXPECT_EQ(qspsDFTFwd_CToC_64f(a.data(), b.data(), nullptr, e.data(), cs, c.workPtr()), qspStsNullPtr);
        EXPECT_EQ(qspsDFTInv_CToC_64f(a.data(), b.data(), d.data(), nullptr, cs, c.workPtr()), qspStsNullPtr);
        EXPECT_EQ(qspsDFTInv_CToC_64f(a.data(), b.data(), d.data(), e.data(),
                                      reinterpret_cast<const QspsDFTSpec_C_64f*>(other.specPtr()), c.workPtr()),
                  qspStsBadRecord);
        EXPECT_EQ(qspsDFTFwd_CToC_64f(a.data(), b.data(), d.data(), e.data(), cs, c.workPtr()), qspStsOk);
        std::vector<float> x(n + 2), y(n + 2);
        auto* rs = reinterpret_cast<const QspsDFTSpec_R_32f*>(rr.specPtr());
        EXPECT_EQ(qspsDFTFwd_RToCCS_32f(nullptr, y.data(), rs, rr.workPtr()), qspStsNullPtr);
        EXPECT_EQ(qspsDFTInv_PackToR_32f(x.data(), nullptr, rs, rr.workPtr()), qspStsNullPtr);
        EXPECT_EQ(qspsDFTFwd_RToPerm_32f(x.data(), y.data(), reinterpret_cast<const QspsDFTSpec_R_32f*>(c.specPtr()),
                                         rr.workPtr()),
                  qspStsBadRecord);
        EXPECT_EQ(qspsDFTFwd_RToPack_32f(x.data(), y.data(), nullptr, rr.workPtr()), qspStsNullPtr);
        if (rr.workSize > 0) EXPECT_EQ(qspsDFTInv_CCSToR_32f(x.data(), y.data(), rs, nullptr), qspStsNullPtr);
        EXPECT_EQ(qspsDFTInv_PermToR_32f(x.data(), y.data(), rs, rr.workPtr()), qspStsOk);
    }
}

// Records of one kind are refused by every other kind, FFT records too.
TEST(DftCalls, ForeignRecordsRefused)
{
    for (K k : kAll)
        for (K other : kAll) {
            if (k == other) continue;
            Record r = make(other, 48, 1);
            r.kind = k;
            QspStatus st;
            transform(r, std::vector<LC>(48, LC(1, 1)), false, false, &st);
            EXPECT_EQ(st, qspStsBadRecord) << name(k) << " given a " << name(other) << " record";
        }
    int s, i, w;
    ASSERT_EQ(qspsFFTGetSize_C_32fc(6, 1, 0, &s, &i, &w), qspStsOk);
    std::vector<Qsp8u> spec(s), work(w);
    QspsFFTSpec_C_32fc* fft;
    ASSERT_EQ(qspsFFTInit_C_32fc(&fft, 6, 1, 0, spec.data(), nullptr), qspStsOk);
    std::vector<Qsp32fc> x(64), y(64);
    EXPECT_EQ(qspsDFTFwd_CToC_32fc(x.data(), y.data(), reinterpret_cast<const QspsDFTSpec_C_32fc*>(fft), work.data()),
              qspStsBadRecord);
}

// The same record built at any address gives the same bits, and a record
// may be found from its block or from its aligned address.
TEST(DftCalls, RecordsAtAnyAddress)
{
    for (K k : kAll)
        for (int n : kMethodLengths) {
            const std::vector<LC> x = dftref::exactSignal(n, isReal(k), 5);
            Record a = make(k, n, 4, 0);
            const std::vector<LC> want = transform(a, x, false);
            for (int offset : {1, 17, 63}) {
                Record b = make(k, n, 4, offset);
                ASSERT_EQ(b.status, qspStsOk);
                EXPECT_EQ(transform(b, x, false), want) << name(k) << " L=" << n << " offset " << offset;
                b.at = recordAt(b.specPtr());
                EXPECT_EQ(transform(b, x, true), transform(a, x, true)) << "from the aligned address";
            }
        }
}

TEST(DftCalls, InPlaceEqualsOutOfPlace)
{
    for (K k : kAll)
        for (int n : kMethodLengths)
            for (bool inverse : {false, true})
                for (Layout l : {Layout::Pack, Layout::Perm, Layout::Ccs}) {
                    Record r = make(k, n, 2);
                    const std::vector<LC> x = dftref::exactSignal(n, isReal(k) && !inverse, 6);
                    std::vector<LC> spec = x;
                    if (isReal(k) && inverse) spec = dftref::cached(n, true).forward;
                    QspStatus s1, s2;
                    const std::vector<LC> out = transform(r, spec, inverse, false, &s1, l);
                    const std::vector<LC> in = transform(r, spec, inverse, true, &s2, l);
                    ASSERT_EQ(s1, qspStsOk);
                    ASSERT_EQ(s2, qspStsOk);
                    EXPECT_EQ(in, out) << name(k) << " L=" << n << (inverse ? " inverse " : " forward ") << name(l);
                    if (!isReal(k)) break;
                }
}

// Flag 1 divides the forward transform by L, 2 the inverse, 4 both by
// sqrt(L), 8 neither.
TEST(DftCalls, Normalisation)
{
    for (K k : kAll)
        for (int n : kMethodLengths) {
            const dftref::Cached& c = dftref::cached(n, isReal(k));
            const long double ln = n, rs = 1 / std::sqrt((long double)n);
            for (int flag : {1, 2, 4, 8}) {
                Record r = make(k, n, flag);
                const long double fs = flag == 1 ? 1 / ln : flag == 4 ? rs : 1;
                const long double is = flag == 2 ? 1 / ln : flag == 4 ? rs : 1;
                std::vector<LC> f(n), i(n);
                for (int j = 0; j < n; ++j) {
                    f[j] = c.forward[j] * fs;
                    i[j] = c.x[j] * (ln * is);
                }
                EXPECT_LE(relRms(f, transform(r, c.x, false)), bound(k, n)) << name(k) << " L=" << n << " flag " << flag;
                EXPECT_LE(relRms(i, transform(r, c.forward, true)), bound(k, n)) << name(k) << " L=" << n << " flag " << flag;
            }
        }
}

// Length 1: the transform is the identity (times the factor of the flag).
TEST(DftCalls, LengthOne)
{
    for (K k : kExact) {
        Record r = make(k, 1, 8);
        const std::vector<LC> x = {LC(0.375, isReal(k) ? 0 : -2.5)};
        EXPECT_EQ(transform(r, x, false), x) << name(k);
        EXPECT_EQ(transform(r, x, true), x) << name(k);
    }
}

// Several threads may share one record, each with its own work buffer.
TEST(DftCalls, ARecordIsSharedByThreads)
{
    Record r = make(K::C32fc, 1000, 1);
    const std::vector<LC> x = dftref::exactSignal(1000, false, 9);
    const std::vector<LC> want = transform(r, x, false);
    std::vector<std::thread> threads;
    std::vector<int> same(4, 0);
    for (int t = 0; t < 4; ++t)
        threads.emplace_back([&, t] {
            Record mine;
            mine.kind = K::C32fc;
            mine.len = 1000;
            mine.at = r.specPtr();
            mine.workSize = r.workSize;
            mine.work.assign(r.workSize, 0);
            int ok = 1;
            for (int rep = 0; rep < 20; ++rep) ok &= transform(mine, x, false) == want;
            same[t] = ok;
        });
    for (auto& th : threads) th.join();
    for (int t = 0; t < 4; ++t) EXPECT_EQ(same[t], 1);
}

}  // namespace

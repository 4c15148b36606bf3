// SPDX-License-Identifier: BSD-3-Clause
// IIRInit: the check order with nothing written on error, the identifier of
// every initialiser at the first 32-byte boundary of the buffer, the header
// fields, the normalised taps, the zero-divisor cases (a0, and the BiQuad
// b0) with the header and delay line written, a null delay line as zeros,
// normalisation by a0, and the caller's arrays copied.
#include <climits>

#include "iir_reference.h"

using namespace iirtest;

namespace {

// The header as the state record lays it out.
struct HeaderView {
    Qsp32u id;
    void* taps;
    void* dly;
    Qsp32s order;
    void* vectors1;
    void* vectors2;
    Qsp32s numBq;
    Qsp32u cleared;
};

HeaderView headerAt(const void* p)
{
    HeaderView h;
    const auto* b = static_cast<const unsigned char*>(p);
    std::memcpy(&h.id, b, 4);
    std::memcpy(&h.taps, b + 8, 8);
    std::memcpy(&h.dly, b + 16, 8);
    std::memcpy(&h.order, b + 24, 4);
    std::memcpy(&h.vectors1, b + 32, 8);
    std::memcpy(&h.vectors2, b + 40, 8);
    std::memcpy(&h.numBq, b + 48, 4);
    std::memcpy(&h.cleared, b + 52, 4);
    return h;
}

unsigned char* align32(unsigned char* p)
{
    return p + (32 - reinterpret_cast<uintptr_t>(p) % 32) % 32;
}

// The normalised taps a state keeps, computed as the state's precision
// does: r = 1/a0, then each tap times r (complex taps with a0 of the form
// (0, 2^k) or (2^k, 0), where both steps are exact).
template <class T>
T timesReciprocal(T b, T a0)
{
    if constexpr (Num<T>::kComplex) return fromCLD<T>(Num<T>::ld(b) / Num<T>::ld(a0));
    else {
        const T r = T(1) / a0;
        return b * r;
    }
}

}  // namespace

// Null pointers (the delay line may be null) before the order; the order
// below 1; nothing written: not the buffer, not *ppState.
TEST(IIRInit, ChecksInOrderAndWritesNothingOnError)
{
    forEachKind([](const auto& k) {
        using K = std::decay_t<decltype(k)>;
        using St = typename K::StateT;
        const auto taps = randomVector<typename K::TapT>(64);
        qsptest::Guarded<Qsp8u> buf(4096);
        St* sentinel = reinterpret_cast<St*>(uintptr_t(0x1234));
        St* st = sentinel;
        for (int n : {2, 0, -1, INT_MIN}) {
            EXPECT_EQ(k.init(nullptr, taps.data(), n, nullptr, buf.data()), qspStsNullPtr) << k.name;
            EXPECT_EQ(k.init(&st, nullptr, n, nullptr, buf.data()), qspStsNullPtr) << k.name;
            EXPECT_EQ(k.init(&st, taps.data(), n, nullptr, nullptr), qspStsNullPtr) << k.name;
        }
        for (int n : {0, -1, INT_MIN}) EXPECT_EQ(k.init(&st, taps.data(), n, nullptr, buf.data()), qspStsBadFilterOrder) << k.name;
        // An order whose state does not fit an int is refused before
        // anything is read or written.
        EXPECT_EQ(k.init(&st, taps.data(), INT_MAX, nullptr, buf.data()), qspStsOverflow) << k.name;
        EXPECT_EQ(st, sentinel) << k.name;
        EXPECT_TRUE(buf.untouched()) << k.name;
    });
}

// Every initialiser: the state at the first 32-byte boundary of the
// buffer, whatever its alignment, starting with 0x4949 and the kind's two
// digits; the order field N or twice the sections, the sections or 0, the
// cleared word 0; the normalised taps and the delay line (with its extra
// element 0) where the header points, inside the buffer; nothing written
// outside the reported size.
TEST(IIRInit, IdentifierAlignmentAndHeader)
{
    forEachKind([](const auto& k) {
        using K = std::decay_t<decltype(k)>;
        using Tap = typename K::TapT;
        using Dly = typename K::DlyT;
        for (int n : {1, 2, 5, 17}) {
            for (size_t offset = 0; offset < 64; offset += (offset < 8 ? 1 : 13)) {
                auto taps = k.shape == Shape::AR ? arTaps<Tap>(n) : biquadTaps<Tap>(n);
                // a0 a power of two so that the normalised taps are exact
                // for complex taps as well.
                const int per = k.shape == Shape::AR ? 2 * n + 2 : 6;
                for (size_t s = 0; s < taps.size(); s += per) taps[s + (k.shape == Shape::AR ? n + 1 : 3)] = fromCLD<Tap>(CLD(0, 2));
                if (!K::kComplex)
                    for (size_t s = 0; s < taps.size(); s += per) taps[s + (k.shape == Shape::AR ? n + 1 : 3)] = fromCLD<Tap>(CLD(-0.5L, 0));
                const auto dly = randomVector<Dly>(delayCount(k.shape, n), 50);
                Built<K> b(k, taps, n, dly.data(), offset);
                ASSERT_EQ(b.status, qspStsOk) << k.name;
                ASSERT_EQ(reinterpret_cast<unsigned char*>(b.st), align32(b.buf)) << k.name << " offset " << offset;
                EXPECT_TRUE(b.guardsIntact()) << k.name;
                const HeaderView h = headerAt(b.st);
                EXPECT_EQ(h.id, k.id()) << k.name;
                EXPECT_EQ((h.id >> 16), 0x4949u);
                EXPECT_EQ(h.order, k.shape == Shape::AR ? n : 2 * n) << k.name;
                EXPECT_EQ(h.numBq, k.shape == Shape::AR ? 0 : n) << k.name;
                EXPECT_EQ(h.cleared, 0u) << k.name;
                auto inside = [&](const void* p) {
                    const auto* q = static_cast<const unsigned char*>(p);
                    return q >= b.buf && q < b.buf + b.size;
                };
                ASSERT_TRUE(inside(h.taps) && inside(h.dly) && inside(h.vectors1) && inside(h.vectors2)) << k.name;
                EXPECT_GT(h.dly, h.taps) << k.name;  // the delay line after the taps
                // Normalised taps: AR b0..bN, a1..aN; biquads b0 b1 b2 a1 a2.
                const Tap* t = static_cast<const Tap*>(h.taps);
                std::vector<Tap> want;
                if (k.shape == Shape::AR) {
                    for (int i = 0; i <= n; ++i) want.push_back(timesReciprocal(taps[i], taps[n + 1]));
                    for (int i = 1; i <= n; ++i) want.push_back(timesReciprocal(taps[n + 1 + i], taps[n + 1]));
                } else {
                    for (int s = 0; s < n; ++s)
                        for (int i : {0, 1, 2, 4, 5}) want.push_back(timesReciprocal(taps[6 * s + i], taps[6 * s + 3]));
                }
                for (size_t i = 0; i < want.size(); ++i)
                    ASSERT_TRUE(qsptest::sameBits(t[i], want[i])) << k.name << " tap " << i;
                // The delay line: the values given (in the state's
                // precision), then one element 0.
                const Tap* d = static_cast<const Tap*>(h.dly);
                const int count = delayCount(k.shape, n);
                for (int i = 0; i < count; ++i)
                    ASSERT_TRUE(qsptest::sameBits(d[i], fromCLD<Tap>(Num<Dly>::ld(dly[i])))) << k.name << " dly " << i;
                EXPECT_TRUE(qsptest::sameBits(d[count], fromCLD<Tap>(0))) << k.name;
            }
        }
    });
}

// a0 = 0 gives qspStsZeroDivisor, and so does a BiQuad section whose b0 is
// 0 (kept on purpose); the header and the delay line are written first,
// *ppState is left alone, nothing goes past the reported size.
TEST(IIRInit, ZeroA0OrBiQuadB0IsAZeroDivisor)
{
    forEachKind([](const auto& k) {
        using K = std::decay_t<decltype(k)>;
        using Tap = typename K::TapT;
        using Dly = typename K::DlyT;
        using St = typename K::StateT;
        const int n = 4;
        const auto dly = randomVector<Dly>(delayCount(k.shape, n), 50);
        std::vector<std::vector<Tap>> bad;
        const Tap zero = fromCLD<Tap>(0), negZero = fromCLD<Tap>(CLD(-0.0L, K::kComplex ? -0.0L : 0.0L));
        if (k.shape == Shape::AR) {
            auto t = arTaps<Tap>(n);
            t[n + 1] = zero;
            bad.push_back(t);
            t[n + 1] = negZero;
            bad.push_back(t);
        } else {
            for (int s : {0, 2, 3})
                for (int which : {0, 3}) {  // b0, a0 of section s
                    auto t = biquadTaps<Tap>(n);
                    t[6 * s + which] = which ? negZero : zero;
                    bad.push_back(t);
                }
        }
        for (const auto& t : bad) {
            qsptest::Guarded<Qsp8u> mem(8192);
            int size = 0;
            ASSERT_EQ(k.getSize(n, &size), qspStsOk);
            Qsp8u* buf = mem.data() + 3;
            St* sentinel = reinterpret_cast<St*>(uintptr_t(0x40));
            St* st = sentinel;
            EXPECT_EQ(k.init(&st, t.data(), n, dly.data(), buf), qspStsZeroDivisor) << k.name;
            EXPECT_EQ(st, sentinel) << k.name;
            const unsigned char* s = align32(buf);
            const HeaderView h = headerAt(s);
            EXPECT_EQ(h.id, k.id()) << k.name;
            const Tap* d = static_cast<const Tap*>(h.dly);
            for (int i = 0; i < delayCount(k.shape, n); ++i)
                ASSERT_TRUE(qsptest::sameBits(d[i], fromCLD<Tap>(Num<Dly>::ld(dly[i])))) << k.name;
            for (size_t i = 3 + size; i < 8192; ++i) ASSERT_EQ(mem.data()[i], qsptest::kCanaryByte) << k.name;
            EXPECT_TRUE(mem.guardsIntact());
        }
        // A complex a0 or b0 with one part non-zero is not zero.
        if constexpr (K::kComplex) {
            auto t = k.shape == Shape::AR ? arTaps<Tap>(n) : biquadTaps<Tap>(n);
            t[k.shape == Shape::AR ? n + 1 : 3] = fromCLD<Tap>(CLD(0, 1));
            if (k.shape != Shape::AR) t[0] = fromCLD<Tap>(CLD(0, -1));
            Built<K> b(k, t, n, nullptr);
            EXPECT_EQ(b.status, qspStsOk) << k.name;
        }
    });
}

// Init with a null delay line equals Init with zeros; Init normalises by
// a0 (a state from taps times any a0 filters as the state from the
// normalised taps, bit for bit); Init copies taps and delay line.
TEST(IIRInit, NullDelayLineNormalisationAndCopies)
{
    forEachKind([](const auto& k) {
        using K = std::decay_t<decltype(k)>;
        using Tap = typename K::TapT;
        using Dly = typename K::DlyT;
        using D = typename K::DataT;
        for (int n : {1, 3, 10}) {
            const auto taps = k.shape == Shape::AR ? arTaps<Tap>(n) : biquadTaps<Tap>(n);
            const std::vector<Dly> zeros(delayCount(k.shape, n), fromCLD<Dly>(0));
            Built<K> a(k, taps, n, nullptr), b(k, taps, n, zeros.data());
            // Scaled taps: every a0 (each section's) becomes c, the others
            // are multiplied by c in long double, then rounded; the state
            // keeps tap * (1/c) in its precision, which for c = 3 (real) or
            // (0, 2) (complex) is the test's own computation below.
            const CLD c = K::kComplex ? CLD(0, 2) : CLD(3, 0);
            auto scaled = taps, normal = taps;
            const int per = k.shape == Shape::AR ? 2 * n + 2 : 6, a0 = k.shape == Shape::AR ? n + 1 : 3;
            for (size_t s = 0; s < taps.size(); s += per)
                for (int i = 0; i < per; ++i) {
                    scaled[s + i] = i == a0 ? fromCLD<Tap>(c) : fromCLD<Tap>(Num<Tap>::ld(taps[s + i]) * c);
                    normal[s + i] = i == a0 ? fromCLD<Tap>(1) : timesReciprocal(scaled[s + i], fromCLD<Tap>(c));
                }
            auto dly = randomVector<Dly>(delayCount(k.shape, n), 40);
            auto mutableTaps = scaled;
            Built<K> cS(k, mutableTaps, n, dly.data()), cN(k, normal, n, dly.data());
            for (auto& v : mutableTaps) v = fromCLD<Tap>(CLD(7, 0));  // copied, so no effect
            for (auto& v : dly) v = fromCLD<Dly>(CLD(9, 0));
            for (int len : {1, 8, 1500}) {
                const auto x = randomVector<D>(len, 300);
                std::vector<D> ya(len), yb(len), yc(len), yd(len);
                ASSERT_EQ(k.filter(x.data(), ya.data(), len, a.st, 0), qspStsOk);
                ASSERT_EQ(k.filter(x.data(), yb.data(), len, b.st, 0), qspStsOk);
                ASSERT_EQ(k.filter(x.data(), yc.data(), len, cS.st, 0), qspStsOk);
                ASSERT_EQ(k.filter(x.data(), yd.data(), len, cN.st, 0), qspStsOk);
                for (int i = 0; i < len; ++i) {
                    ASSERT_TRUE(qsptest::sameBits(ya[i], yb[i])) << k.name << " null delay " << i;
                    ASSERT_TRUE(qsptest::sameBits(yc[i], yd[i])) << k.name << " a0 " << i;
                }
            }
        }
    });
}

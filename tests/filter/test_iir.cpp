// SPDX-License-Identifier: BSD-3-Clause
// IIR filtering: every filtering form against a long double recursion
// within the bound of iir_reference.h, over lengths that cross the
// register, block and split thresholds; in-place and out-of-place calls;
// consecutive calls against one call; the integer forms bit-exact against
// the scaling rule applied to the floating result; the multi-channel forms;
// the check order, foreign records and canaries.
#include <climits>
#include <cstring>
#include <memory>
#include <thread>

#include "iir_reference.h"

using namespace iirtest;

namespace {

// Orders (AR) and section counts (biquads) of the accuracy sweep: every
// register remainder, the 4N threshold of the AR split on both sides at
// 1024 samples (N = 255 splits a full block, 256 does not), cascades longer
// than one kernel pass of 8 sections.
const std::vector<int> kOrders = {1, 2, 3, 4, 5, 7, 8, 9, 16, 31, 100, 255, 256, 300};
const std::vector<int> kSections = {1, 2, 3, 4, 5, 7, 8, 9, 12, 17};
// Lengths of consecutive calls: single samples, partial registers, a whole
// block, a block and a bit, several blocks.
const std::vector<int> kCalls = {1, 2, 3, 5, 8, 13, 100, 1024, 1500, 3000};
// For the long AR filters: a short call, a whole block, a block and a bit.
const std::vector<int> kLongOrderCalls = {5, 1024, 1500};

// A random delay line of the kind: magnitudes below 1 (integer samples of
// the direct-form-1 cascade below 100).
template <class K>
std::vector<typename K::DlyT> delayFor(const K& k, int n)
{
    return randomVector<typename K::DlyT>(delayCount(k.shape, n), 100);
}

// Input range and scale factor of the integer forms: outputs of a few
// thousand and a scale factor that keeps most of them in range.
template <class K>
LD rangeOf()
{
    using P = typename Num<typename K::DataT>::Part;
    if constexpr (std::is_same_v<P, Qsp16s>) return 300;
    else if constexpr (std::is_same_v<P, Qsp32s>) return 1e6L;
    else return 1;
}

// |out - ref| within the bound: floating outputs directly (plus the final
// rounding of double results to single precision), integer ones after the
// scaling rule (one unit more for the rounding of a perturbed value).
template <class K>
::testing::AssertionResult within(const typename K::DataT& out, CLD ref, LD bound, int sf)
{
    using D = typename K::DataT;
    LD err, allowed;
    if constexpr (K::kScaled) {
        const CLD r = Num<D>::ld(scaleRuleOf<D>(ref, sf));
        err = std::abs(Num<D>::ld(out) - r);
        allowed = std::floor(std::ldexp(bound, -sf) * std::sqrt(LD(2))) + 1 + (K::kComplex ? 1 : 0);
    } else {
        err = std::abs(Num<D>::ld(out) - ref);
        allowed = bound;
        if (std::is_same_v<typename Num<D>::Part, float> && K::kDouble) allowed += 2 * std::ldexp(std::abs(ref), -24);
    }
    if (err <= allowed) return ::testing::AssertionSuccess();
    return ::testing::AssertionFailure() << "error " << double(err) << " above " << double(allowed) << " (ref "
                                         << double(ref.real()) << "," << double(ref.imag()) << ")";
}

// One accuracy case: a state of order (or sections) n with a random delay
// line, consecutive calls of the given lengths, alternately out of place
// and in place; every output and the final delay line against the
// reference.
template <class K>
void accuracyCase(const K& k, int n, const std::vector<int>& calls, int sf)
{
    using D = typename K::DataT;
    const auto taps = tapsFor(k, n);
    const auto dly = delayFor(k, n);
    Built<K> b(k, taps, n, dly.data());
    ASSERT_EQ(b.status, qspStsOk) << k.name << " n=" << n;
    auto secs = sections(k.shape, n, taps, dly.data());
    std::vector<D> out;
    std::vector<CLD> ref;
    int c = 0;
    for (int len : calls) {
        const auto x = randomVector<D>(len, rangeOf<K>());
        qsptest::Guarded<D> y(len);
        std::copy(x.begin(), x.end(), y.data());
        const QspStatus st = (c++ % 2) ? k.filterI(y.data(), len, b.st, sf) : k.filter(x.data(), y.data(), len, b.st, sf);
        ASSERT_EQ(st, qspStsOk) << k.name;
        ASSERT_TRUE(y.guardsIntact()) << k.name;
        out.insert(out.end(), y.data(), y.data() + len);
        const auto r = run(secs, toCLD(x));
        ref.insert(ref.end(), r.begin(), r.end());
    }
    ASSERT_TRUE(b.guardsIntact()) << k.name;
    const LD bound = errorBound<K>(secs, k.shape);
    for (size_t i = 0; i < out.size(); ++i)
        ASSERT_TRUE(within<K>(out[i], ref[i], bound, sf)) << k.name << " n=" << n << " sample " << i;
    // The delay line after the calls: within the bound too (its values
    // are partial outputs, sums of the same products).
    std::vector<typename K::DlyT> got(delayCount(k.shape, n));
    ASSERT_EQ(k.getDly(b.st, got.data()), qspStsOk);
    const auto want = delayOf(secs);
    for (size_t i = 0; i < got.size(); ++i) {
        const LD err = std::abs(Num<typename K::DlyT>::ld(got[i]) - want[i]);
        const LD allowed = isInteger<typename K::DlyT> ? bound + 0.5L + 1e-9L : bound;
        ASSERT_LE(err, allowed) << k.name << " n=" << n << " delay " << i;
    }
}

}  // namespace

TEST(IIR, EveryFormMatchesTheLongDoubleRecursion)
{
    forEachKind([](const auto& k) {
        using K = std::decay_t<decltype(k)>;
        // Long AR filters through the forms of the state's own samples;
        // the converting forms deliver the same values (below).
        const bool converts = !std::is_same_v<typename K::DataT, typename K::TapT>;
        for (int n : k.shape == Shape::AR ? kOrders : kSections) {
            if (converts && n > 31) continue;
            accuracyCase(k, n, n < 100 ? kCalls : kLongOrderCalls, 0);
            if (::testing::Test::HasFatalFailure()) return;
        }
    });
}

namespace {

// ---------------------------------------------------------------------------
// Exact filters: integer taps (a0 = 1) whose recursion only adds or
// subtracts one past output, integer samples and delay lines, so that
// every value on the way, the lookahead coefficients of the kernels
// included, is an integer well inside the precision: then the result is
// exact whatever the order of the operations, and every form must match
// the long double reference bit for bit, for any split into calls.

template <class T>
T intValue(int lo, int hi)
{
    using P = typename Num<T>::Part;
    auto part = [&] { return P(std::uniform_int_distribution<int>(lo, hi)(rng())); };
    if constexpr (Num<T>::kComplex) return T{part(), part()};
    else return T(part());
}

template <class T>
T nonZeroInt(int m)
{
    for (;;) {
        const T v = intValue<T>(-m, m);
        if (std::abs(Num<T>::ld(v)) != 0) return v;
    }
}

// AR of order N: b random in [-2, 2] (long filters: [-1, 1]), one
// feedback tap a_k = +-1.
template <class T>
std::vector<T> exactArTaps(int N)
{
    std::vector<T> t(2 * N + 2, fromCLD<T>(0));
    const int m = N < 16 ? 2 : 1;
    for (int k = 0; k <= N; ++k) t[k] = intValue<T>(-m, m);
    t[N + 1] = fromCLD<T>(1);
    const int k = std::uniform_int_distribution<int>(1, N)(rng());
    t[N + 1 + k] = fromCLD<T>(std::uniform_int_distribution<int>(0, 1)(rng()) ? 1 : -1);
    return t;
}

// Biquads: b0 non-zero, (a1, a2) one of (0, 0), (+-1, 0), (0, +-1); at
// most two sections recursive, so that the values stay small.
template <class T>
std::vector<T> exactBiQuadTaps(int K)
{
    static const int a[5][2] = {{0, 0}, {1, 0}, {-1, 0}, {0, 1}, {0, -1}};
    const int r1 = std::uniform_int_distribution<int>(0, K - 1)(rng());
    const int r2 = std::uniform_int_distribution<int>(0, K - 1)(rng());
    const int m = K < 8 ? 2 : 1;
    std::vector<T> t;
    for (int s = 0; s < K; ++s) {
        const int* p = a[s == r1 || s == r2 ? std::uniform_int_distribution<int>(0, 4)(rng()) : 0];
        for (T v : {nonZeroInt<T>(m), intValue<T>(-m, m), intValue<T>(-m, m), fromCLD<T>(1), fromCLD<T>(p[0]),
                    fromCLD<T>(p[1])})
            t.push_back(v);
    }
    return t;
}

template <class T>
std::vector<T> intVector(size_t n, int m)
{
    std::vector<T> v(n);
    for (auto& x : v) x = intValue<T>(-m, m);
    return v;
}

// The same value (floating zeros of either sign are the same: the sign of
// an exact zero depends on the order of operations), the same bits for
// integers.
template <class T>
bool sameValue(const T& a, const T& b)
{
    if constexpr (isInteger<T>) return qsptest::sameBits(a, b);
    else return Num<T>::ld(a) == Num<T>::ld(b);
}

template <class K>
void expectSame(const typename K::DataT& got, CLD want, int sf, const K& k, size_t i)
{
    using D = typename K::DataT;
    const D w = K::kScaled ? scaleRuleOf<D>(want, sf) : fromCLD<D>(want);
    ASSERT_TRUE(sameValue(got, w)) << k.name << " sample " << i << " sf " << sf << " want " << double(want.real())
                                   << "," << double(want.imag()) << " got " << double(Num<D>::ld(got).real()) << ","
                                   << double(Num<D>::ld(got).imag());
}

// One exact case; false when the reference left the exact range (the
// caller draws another).
template <class K>
bool exactCase(const K& k, int n, const std::vector<int>& calls, int sf)
{
    using D = typename K::DataT;
    using Tap = typename K::TapT;
    const auto taps = k.shape == Shape::AR ? exactArTaps<Tap>(n) : exactBiQuadTaps<Tap>(n);
    const auto dly = intVector<typename K::DlyT>(delayCount(k.shape, n), 3);
    auto secs = sections(k.shape, n, taps, dly.data());
    std::vector<std::vector<D>> xs;
    std::vector<CLD> ref;
    LD big = 0;
    const int range = n < 16 ? 20 : 3;
    for (int len : calls) {
        xs.push_back(intVector<D>(len, range));
        for (CLD v : run(secs, toCLD(xs.back()))) ref.push_back(v), big = std::max(big, std::abs(v));
        for (const Section& s : secs) big = std::max(big, s.smax);
    }
    if (big > (K::kDouble ? 1e14L : 4e6L)) return false;
    Built<K> b(k, taps, n, dly.data());
    EXPECT_EQ(b.status, qspStsOk) << k.name;
    size_t i = 0;
    int c = 0;
    for (const auto& x : xs) {
        std::vector<D> y(x);
        const QspStatus st = (c++ % 2) ? k.filterI(y.data(), int(y.size()), b.st, sf)
                                       : k.filter(x.data(), y.data(), int(y.size()), b.st, sf);
        EXPECT_EQ(st, qspStsOk) << k.name;
        for (const D& v : y) {
            expectSame(v, ref[i], sf, k, i);
            if (::testing::Test::HasFatalFailure()) return true;
            ++i;
        }
    }
    std::vector<typename K::DlyT> got(delayCount(k.shape, n));
    EXPECT_EQ(k.getDly(b.st, got.data()), qspStsOk);
    const auto want = delayOf(secs);
    for (size_t j = 0; j < got.size(); ++j)
        EXPECT_TRUE(sameValue(got[j], fromCLD<typename K::DlyT>(want[j]))) << k.name << " delay " << j;
    return true;
}

template <class K>
void exactCases(const K& k, const std::vector<int>& orders, const std::vector<int>& calls,
                const std::vector<int>& scaleFactors)
{
    for (int n : orders) {
        for (int sf : scaleFactors) {
            int tries = 0;
            while (!exactCase(k, n, calls, sf) && ++tries < 50) {
            }
            ASSERT_LT(tries, 50) << k.name << " n=" << n << " sf=" << sf << ": no exact case found";
            if (::testing::Test::HasFatalFailure()) return;
        }
    }
}

}  // namespace

// Bit-exact results of exact filters, every kind, split into calls that
// start and end anywhere in a register, a block or the AR split; the
// integer forms at scale factors that round, shift left and saturate.
TEST(IIR, ExactFiltersGiveExactResultsForAnySplitIntoCalls)
{
    forEachKind([](const auto& k) {
        using K = std::decay_t<decltype(k)>;
        const bool ar = k.shape == Shape::AR;
        const std::vector<int> orders = ar ? std::vector<int>{1, 2, 3, 4, 5, 8, 13, 40, 255, 300}
                                           : std::vector<int>{1, 2, 3, 4, 5, 8, 9, 11, 16, 20};
        const std::vector<int> few = ar ? std::vector<int>{1, 3, 9} : std::vector<int>{1, 3, 10};
        exactCases(k, orders, {1, 2, 1, 3, 4, 5, 6, 7, 9, 16, 50, 1030}, {0});
        exactCases(k, few, {700, 1, 333, 2}, {0});
        if (K::kScaled) exactCases(k, few, {1100}, {1, 2, 3, 7, -1, -4, 40, -40});
    });
}

// The integer scaling of the Sfs forms: a value exactly half way rounds to
// even, a large negative scale factor saturates, a large positive one
// gives zeros; checked on the identity filter (b0 = 1), which passes the
// samples through exactly.
TEST(IIR, ScaledFormsRoundToEvenAndSaturate)
{
    forEachKind([](const auto& k) {
        using K = std::decay_t<decltype(k)>;
        using D = typename K::DataT;
        if constexpr (K::kScaled) {
            using Tap = typename K::TapT;
            using P = typename Num<D>::Part;
            const int n = 1;
            std::vector<Tap> taps(tapCount(k.shape, n), fromCLD<Tap>(0));
            taps[0] = fromCLD<Tap>(1);
            taps[k.shape == Shape::AR ? 2 : 3] = fromCLD<Tap>(1);
            Built<K> b(k, taps, n, nullptr);
            ASSERT_EQ(b.status, qspStsOk);
            const P hi = std::numeric_limits<P>::max(), lo = std::numeric_limits<P>::min();
            const std::vector<LD> parts = {1, 2, 3, 5, 6, -1, -2, -3, -5, -6, 0, LD(hi), LD(lo), LD(hi) - 1, 7, -7};
            std::vector<D> x;
            for (size_t i = 0; i < parts.size(); ++i) x.push_back(fromCLD<D>(CLD(parts[i], parts[parts.size() - 1 - i])));
            for (int sf : {0, 1, 2, 3, -1, -2, 16, 17, 31, 32, 33, 100, -15, -16, -17, -31, -32, -100, 1000, -1000,
                           INT_MAX, INT_MIN}) {
                std::vector<D> y(x.size());
                ASSERT_EQ(k.filter(x.data(), y.data(), int(x.size()), b.st, sf), qspStsOk);
                for (size_t i = 0; i < x.size(); ++i) {
                    expectSame(y[i], Num<D>::ld(x[i]), sf, k, i);
                    if (::testing::Test::HasFatalFailure()) return;
                }
            }
            // Ties: 1/2 -> 0, 3/2 -> 2, 5/2 -> 2, -1/2 -> 0, -3/2 -> -2.
            const std::vector<D> t = {fromCLD<D>(CLD(1, 3)), fromCLD<D>(CLD(5, -1)), fromCLD<D>(CLD(-3, -5))};
            std::vector<D> y(t.size());
            ASSERT_EQ(k.filter(t.data(), y.data(), int(t.size()), b.st, 1), qspStsOk);
            const std::vector<D> want = {fromCLD<D>(CLD(0, 2)), fromCLD<D>(CLD(2, 0)), fromCLD<D>(CLD(-2, -2))};
            for (size_t i = 0; i < t.size(); ++i) {
                if (!K::kComplex) EXPECT_TRUE(qsptest::sameBits(y[i], fromCLD<D>(CLD(Num<D>::ld(want[i]).real(), 0))));
                else EXPECT_TRUE(qsptest::sameBits(y[i], want[i])) << k.name << " " << i;
            }
        }
    });
}

namespace {

// Two states of a kind with the same taps and delay line.
template <class K>
struct Twin {
    std::vector<typename K::TapT> taps;
    std::vector<typename K::DlyT> dly;
    Built<K> a, b;
    Twin(const K& k, int n)
        : taps(tapsFor(k, n)), dly(delayFor(k, n)), a(k, taps, n, dly.data()), b(k, taps, n, dly.data(), 7)
    {
    }
};

}  // namespace

// In place and out of place run the same arithmetic: the same bits, and
// the same delay line afterwards; so does the out-of-place form called
// with pSrc == pDst.
TEST(IIR, InPlaceEqualsOutOfPlace)
{
    forEachKind([](const auto& k) {
        using K = std::decay_t<decltype(k)>;
        using D = typename K::DataT;
        for (int n : {1, 3, 9, 300}) {
            if (k.shape != Shape::AR && n == 300) continue;
            Twin<K> t(k, n);
            Built<K> c(k, t.taps, n, t.dly.data(), 33);
            for (int len : {1, 7, 1024, 2500}) {
                const auto x = randomVector<D>(len, rangeOf<K>());
                std::vector<D> y(len), z(x), w(x);
                ASSERT_EQ(k.filter(x.data(), y.data(), len, t.a.st, 3), qspStsOk);
                ASSERT_EQ(k.filterI(z.data(), len, t.b.st, 3), qspStsOk);
                ASSERT_EQ(k.filter(w.data(), w.data(), len, c.st, 3), qspStsOk);
                for (int i = 0; i < len; ++i) {
                    ASSERT_TRUE(qsptest::sameBits(y[i], z[i])) << k.name << " " << i;
                    ASSERT_TRUE(qsptest::sameBits(y[i], w[i])) << k.name << " " << i;
                }
            }
            std::vector<typename K::DlyT> da(delayCount(k.shape, n)), db(da.size());
            k.getDly(t.a.st, da.data());
            k.getDly(t.b.st, db.data());
            for (size_t i = 0; i < da.size(); ++i) ASSERT_TRUE(qsptest::sameBits(da[i], db[i])) << k.name;
        }
    });
}

// Calls on consecutive pieces equal one call on the joined signal to
// rounding: each is within the bound of the one long double reference.
TEST(IIR, ConsecutiveCallsEqualOneCall)
{
    forEachKind([](const auto& k) {
        using K = std::decay_t<decltype(k)>;
        using D = typename K::DataT;
        for (int n : {2, 5, 17}) {
            Twin<K> t(k, n);
            auto secs = sections(k.shape, n, t.taps, t.dly.data());
            const int len = 2600;
            const auto x = randomVector<D>(len, rangeOf<K>());
            std::vector<D> whole(len), parts(len);
            ASSERT_EQ(k.filter(x.data(), whole.data(), len, t.a.st, 0), qspStsOk);
            for (int off = 0, step = 1; off < len; off += step, step = step * 3 % 1031 + 1) {
                const int m = std::min(step, len - off);
                ASSERT_EQ(k.filter(x.data() + off, parts.data() + off, m, t.b.st, 0), qspStsOk);
            }
            const auto ref = run(secs, toCLD(x));
            const LD bound = errorBound<K>(secs, k.shape);
            for (int i = 0; i < len; ++i) {
                ASSERT_TRUE(within<K>(whole[i], ref[i], bound, 0)) << k.name << " whole " << i;
                ASSERT_TRUE(within<K>(parts[i], ref[i], bound, 0)) << k.name << " parts " << i;
            }
        }
    });
}

// The integer and single-precision forms of a state deliver the floating
// result of the same state on the same samples, scaled by the rule (or
// rounded to single precision): bit for bit against the form whose
// samples have the state's own type.
TEST(IIR, ConvertingFormsDeliverTheFloatingResultExactly)
{
    forEachKind([](const auto& conv) {
        using KC = std::decay_t<decltype(conv)>;
        using DC = typename KC::DataT;
        if constexpr (!std::is_same_v<DC, typename KC::TapT> && std::is_same_v<typename KC::DlyT, typename KC::TapT>) {
            forEachKind([&](const auto& plain) {
                using KP = std::decay_t<decltype(plain)>;
                using T = typename KP::DataT;
                if constexpr (std::is_same_v<T, typename KC::TapT> && std::is_same_v<T, typename KP::TapT>) {
                    if (plain.shape != conv.shape) return;
                    for (int n : {1, 2, 6, 9, 64}) {
                        if (conv.shape != Shape::AR && n == 64) continue;
                        const auto taps = tapsFor(conv, n);
                        const auto dly = delayFor(conv, n);
                        Built<KC> bc(conv, taps, n, dly.data());
                        Built<KP> bp(plain, taps, n, dly.data());
                        for (int len : {1, 5, 1027, 3000}) {
                            const auto x = randomVector<DC>(len, rangeOf<KC>());
                            std::vector<T> xt(len), yt(len);
                            for (int i = 0; i < len; ++i) xt[i] = fromCLD<T>(Num<DC>::ld(x[i]));
                            std::vector<DC> y(len);
                            const int sf = KC::kScaled ? (len % 3) - 1 : 0;
                            ASSERT_EQ(conv.filter(x.data(), y.data(), len, bc.st, sf), qspStsOk);
                            ASSERT_EQ(plain.filter(xt.data(), yt.data(), len, bp.st, 0), qspStsOk);
                            for (int i = 0; i < len; ++i) {
                                const CLD v = Num<T>::ld(yt[i]);
                                const DC want = KC::kScaled ? scaleRuleOf<DC>(v, sf) : fromCLD<DC>(v);
                                ASSERT_TRUE(qsptest::sameBits(y[i], want)) << conv.name << " vs " << plain.name << " " << i;
                            }
                        }
                    }
                }
            });
        }
    });
}

namespace {

// States of the kinds a form accepts have its state and sample types.
template <class KA, class KB>
constexpr bool sameForm = std::is_same_v<typename KA::StateT, typename KB::StateT> &&
                          std::is_same_v<typename KA::DataT, typename KB::DataT>;

}  // namespace

// Pointers first (state included), then the length, then the record; on
// every error nothing is written: not the destination, not the state.
TEST(IIR, ChecksInOrderAndWritesNothingOnError)
{
    forEachKind([](const auto& k) {
        using K = std::decay_t<decltype(k)>;
        using D = typename K::DataT;
        using St = typename K::StateT;
        const int n = 2;
        const auto taps = tapsFor(k, n);
        Built<K> b(k, taps, n, nullptr);
        const auto before = bytesOf(b);
        const auto x = randomVector<D>(16, rangeOf<K>());
        qsptest::Guarded<D> y(16);
        // A state of another kind, and blocks without an identifier.
        std::vector<unsigned char> zeros(4096, 0), garbage(4096);
        for (auto& c : garbage) c = static_cast<unsigned char>(rng()());
        garbage[2] = 0x12;  // not 0x4949 in the upper half
        St* zeroState = reinterpret_cast<St*>(zeros.data() + 32);
        St* garbageState = reinterpret_cast<St*>(garbage.data() + 3);
        for (int len : {16, 0, -1, INT_MIN}) {
            EXPECT_EQ(k.filter(x.data(), y.data(), len, nullptr, 0), qspStsNullPtr) << k.name;
            EXPECT_EQ(k.filter(nullptr, y.data(), len, b.st, 0), qspStsNullPtr) << k.name;
            EXPECT_EQ(k.filter(x.data(), nullptr, len, b.st, 0), qspStsNullPtr) << k.name;
            EXPECT_EQ(k.filter(nullptr, nullptr, len, zeroState, 0), qspStsNullPtr) << k.name;
            EXPECT_EQ(k.filterI(nullptr, len, b.st, 0), qspStsNullPtr) << k.name;
            EXPECT_EQ(k.filterI(y.data(), len, nullptr, 0), qspStsNullPtr) << k.name;
        }
        for (int len : {0, -1, INT_MIN}) {
            EXPECT_EQ(k.filter(x.data(), y.data(), len, b.st, 0), qspStsBadSize) << k.name;
            EXPECT_EQ(k.filter(x.data(), y.data(), len, zeroState, 0), qspStsBadSize) << k.name;
            EXPECT_EQ(k.filterI(y.data(), len, garbageState, 0), qspStsBadSize) << k.name;
        }
        EXPECT_EQ(k.filter(x.data(), y.data(), 16, zeroState, 0), qspStsBadRecord) << k.name;
        EXPECT_EQ(k.filter(x.data(), y.data(), 16, garbageState, 0), qspStsBadRecord) << k.name;
        EXPECT_EQ(k.filterI(y.data(), 16, zeroState, 0), qspStsBadRecord) << k.name;
        EXPECT_TRUE(y.untouched()) << k.name;
        EXPECT_TRUE(bytesOf(b) == before) << k.name;
    });
}

// A form refuses every state of a kind it does not serve (qspStsBadRecord,
// nothing written) and accepts the others: 32f takes the AR, BiQuad and
// direct-form-1 states of 32f, 64f_32s those of 64f for 32s samples.
TEST(IIR, ForeignRecordsAreRefusedByEveryForm)
{
    forEachKind([](const auto& form) {
        using KF = std::decay_t<decltype(form)>;
        using D = typename KF::DataT;
        forEachKind([&](const auto& other) {
            using KO = std::decay_t<decltype(other)>;
            const int n = 3;
            Built<KO> b(other, tapsFor(other, n), n, nullptr);
            const auto before = bytesOf(b);
            auto* st = reinterpret_cast<typename KF::StateT*>(b.st);
            const auto x = randomVector<D>(40, rangeOf<KF>());
            qsptest::Guarded<D> y(40);
            const QspStatus s1 = form.filter(x.data(), y.data(), 40, st, 0);
            const QspStatus s2 = form.filterI(y.data(), 40, st, 0);
            if constexpr (sameForm<KF, KO>) {
                EXPECT_EQ(s1, qspStsOk) << form.name << " with " << other.name;
                EXPECT_EQ(s2, qspStsOk) << form.name << " with " << other.name;
            } else {
                EXPECT_EQ(s1, qspStsBadRecord) << form.name << " with " << other.name;
                EXPECT_EQ(s2, qspStsBadRecord) << form.name << " with " << other.name;
                EXPECT_TRUE(y.untouched()) << form.name << " with " << other.name;
                EXPECT_TRUE(bytesOf(b) == before) << form.name << " with " << other.name;
            }
        });
    });
}

namespace {

// The multi-channel forms against one call per channel, states of every
// shape the form serves, mixed; then their checks.
template <class K, class Multi, class MultiI, class Kinds>
void channelForms(Multi multi, MultiI multiI, const Kinds& kinds, int sf)
{
    using D = typename K::DataT;
    using St = typename K::StateT;
    const int nch = 7;
    for (int len : {1, 3, 100, 1500}) {
        std::vector<std::unique_ptr<Built<K>>> a, b, c;
        std::vector<std::vector<D>> x, ya, yb, yc;
        for (int ch = 0; ch < nch; ++ch) {
            const K& k = kinds[ch % kinds.size()];
            const int n = 1 + ch % 4;
            const auto taps = tapsFor(k, n);
            const auto dly = delayFor(k, n);
            a.emplace_back(new Built<K>(k, taps, n, dly.data()));
            b.emplace_back(new Built<K>(k, taps, n, dly.data(), 5));
            c.emplace_back(new Built<K>(k, taps, n, dly.data(), 9));
            x.push_back(randomVector<D>(len, rangeOf<K>()));
            ya.emplace_back(len);
            yb.emplace_back(len);
            yc.push_back(x.back());
            ASSERT_EQ(k.filter(x[ch].data(), ya[ch].data(), len, a[ch]->st, sf), qspStsOk);
        }
        std::vector<const D*> src;
        std::vector<D*> dstB, dstC;
        std::vector<St*> stB, stC;
        for (int ch = 0; ch < nch; ++ch) {
            src.push_back(x[ch].data());
            dstB.push_back(yb[ch].data());
            dstC.push_back(yc[ch].data());
            stB.push_back(b[ch]->st);
            stC.push_back(c[ch]->st);
        }
        ASSERT_EQ(multi(src.data(), dstB.data(), len, nch, stB.data(), sf), qspStsOk);
        ASSERT_EQ(multiI(dstC.data(), len, nch, stC.data(), sf), qspStsOk);
        for (int ch = 0; ch < nch; ++ch)
            for (int i = 0; i < len; ++i) {
                ASSERT_TRUE(qsptest::sameBits(ya[ch][i], yb[ch][i])) << ch << " " << i;
                ASSERT_TRUE(qsptest::sameBits(ya[ch][i], yc[ch][i])) << ch << " " << i;
            }

        // Checks: the arrays, the length, the channel count, every
        // channel's pointers, every channel's state, all before anything
        // is written.
        std::vector<std::vector<unsigned char>> states;
        for (auto& s : b) states.push_back(bytesOf(*s));
        const auto ybBefore = yb;
        EXPECT_EQ(multi(nullptr, dstB.data(), len, nch, stB.data(), sf), qspStsNullPtr);
        EXPECT_EQ(multi(src.data(), nullptr, 0, nch, stB.data(), sf), qspStsNullPtr);
        EXPECT_EQ(multi(src.data(), dstB.data(), -1, 0, nullptr, sf), qspStsNullPtr);
        EXPECT_EQ(multiI(nullptr, len, nch, stB.data(), sf), qspStsNullPtr);
        EXPECT_EQ(multiI(dstB.data(), len, nch, nullptr, sf), qspStsNullPtr);
        EXPECT_EQ(multi(src.data(), dstB.data(), 0, 0, stB.data(), sf), qspStsBadSize);
        EXPECT_EQ(multi(src.data(), dstB.data(), len, 0, stB.data(), sf), qspStsBadSize);
        EXPECT_EQ(multi(src.data(), dstB.data(), len, -3, stB.data(), sf), qspStsBadSize);
        EXPECT_EQ(multiI(dstB.data(), -2, nch, stB.data(), sf), qspStsBadSize);
        EXPECT_EQ(multiI(dstB.data(), len, 0, stB.data(), sf), qspStsBadSize);
        for (int bad = 0; bad < nch; bad += 3) {
            auto s2 = src;
            s2[bad] = nullptr;
            EXPECT_EQ(multi(s2.data(), dstB.data(), len, nch, stB.data(), sf), qspStsNullPtr);
            auto d2 = dstB;
            d2[bad] = nullptr;
            EXPECT_EQ(multi(src.data(), d2.data(), len, nch, stB.data(), sf), qspStsNullPtr);
            EXPECT_EQ(multiI(d2.data(), len, nch, stB.data(), sf), qspStsNullPtr);
            auto t2 = stB;
            t2[bad] = nullptr;
            EXPECT_EQ(multi(src.data(), dstB.data(), len, nch, t2.data(), sf), qspStsNullPtr);
            std::vector<unsigned char> zeros(4096, 0);
            t2[bad] = reinterpret_cast<St*>(zeros.data());
            EXPECT_EQ(multi(src.data(), dstB.data(), len, nch, t2.data(), sf), qspStsBadRecord);
            EXPECT_EQ(multiI(dstB.data(), len, nch, t2.data(), sf), qspStsBadRecord);
            // A null pointer in a later channel is found before a foreign
            // state in an earlier one.
            if (bad + 1 < nch) {
                auto s3 = src;
                s3[bad + 1] = nullptr;
                EXPECT_EQ(multi(s3.data(), dstB.data(), len, nch, t2.data(), sf), qspStsNullPtr);
            }
        }
        EXPECT_TRUE(yb == ybBefore);
        for (int ch = 0; ch < nch; ++ch) EXPECT_TRUE(bytesOf(*b[ch]) == states[ch]);
    }
}

template <class K>
std::vector<K> kindsOfForm(const char* a, const char* b, const char* c)
{
    std::vector<K> out;
    forEachKind([&](const auto& k) {
        if constexpr (std::is_same_v<std::decay_t<decltype(k)>, K>)
            if (!strcmp(k.name, a) || !strcmp(k.name, b) || !strcmp(k.name, c)) out.push_back(k);
    });
    return out;
}

}  // namespace

TEST(IIR, MultiChannelFormsEqualOneCallPerChannel)
{
    using K32f = Kind<Qsp32f, Qsp32f, QspsIIRState_32f, Qsp32f>;
    const auto k32f = kindsOfForm<K32f>("32f", "BiQuad_32f", "BiQuad_DF1_32f");
    ASSERT_EQ(k32f.size(), 3u);
    channelForms<K32f>(
        [](const Qsp32f** s, Qsp32f** d, int n, int c, QspsIIRState_32f** st, int) { return qspsIIR_32f_P(s, d, n, c, st); },
        [](Qsp32f** sd, int n, int c, QspsIIRState_32f** st, int) { return qspsIIR_32f_IP(sd, n, c, st); }, k32f, 0);

    using K32s = Kind<Qsp64f, Qsp64f, QspsIIRState64f_32s, Qsp32s>;
    const auto k32s = kindsOfForm<K32s>("64f_32s", "64f_BiQuad_32s", "");
    ASSERT_EQ(k32s.size(), 2u);
    for (int sf : {0, 3, -2}) {
        channelForms<K32s>(
            [](const Qsp32s** s, Qsp32s** d, int n, int c, QspsIIRState64f_32s** st, int f) {
                return qspsIIR64f_32s_PSfs(s, d, n, c, st, f);
            },
            [](Qsp32s** sd, int n, int c, QspsIIRState64f_32s** st, int f) {
                return qspsIIR64f_32s_IPSfs(sd, n, c, st, f);
            },
            k32s, sf);
    }
    // The direct-form-1 state of 32s samples serves the channel forms too.
    using KDF1 = Kind<Qsp64f, Qsp32s, QspsIIRState64f_32s, Qsp32s>;
    const auto kdf1 = kindsOfForm<KDF1>("64f_BiQuad_DF1_32s", "", "");
    ASSERT_EQ(kdf1.size(), 1u);
    channelForms<KDF1>(
        [](const Qsp32s** s, Qsp32s** d, int n, int c, QspsIIRState64f_32s** st, int f) {
            return qspsIIR64f_32s_PSfs(s, d, n, c, st, f);
        },
        [](Qsp32s** sd, int n, int c, QspsIIRState64f_32s** st, int f) { return qspsIIR64f_32s_IPSfs(sd, n, c, st, f); },
        kdf1, 1);
}

// States share nothing: eight threads, each filtering its own signal
// through its own state, give what one thread gives.
TEST(IIR, EightThreadsWithTheirOwnStates)
{
    forEachKind([](const auto& k) {
        using K = std::decay_t<decltype(k)>;
        using D = typename K::DataT;
        const int threads = 8, n = 4, len = 3000;
        std::vector<std::vector<typename K::TapT>> taps;
        std::vector<std::vector<D>> x, serial(threads), parallel(threads);
        for (int t = 0; t < threads; ++t) {
            taps.push_back(tapsFor(k, n));
            x.push_back(randomVector<D>(len, rangeOf<K>()));
        }
        auto work = [&](int t, std::vector<D>& out) {
            Built<K> b(k, taps[t], n, nullptr);
            out.resize(len);
            for (int off = 0; off < len; off += 700) k.filter(x[t].data() + off, out.data() + off, std::min(700, len - off), b.st, 1);
        };
        for (int t = 0; t < threads; ++t) work(t, serial[t]);
        std::vector<std::thread> pool;
        for (int t = 0; t < threads; ++t) pool.emplace_back([&, t] { work(t, parallel[t]); });
        for (auto& th : pool) th.join();
        for (int t = 0; t < threads; ++t)
            for (int i = 0; i < len; ++i) ASSERT_TRUE(qsptest::sameBits(serial[t][i], parallel[t][i])) << k.name;
    });
}

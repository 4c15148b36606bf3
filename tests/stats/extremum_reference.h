// SPDX-License-Identifier: BSD-3-Clause
// Reference searches and data makers shared by the extremum tests. The
// references are the plain sequential definitions, written without the
// library's lanes or blocks.
#pragma once
#include <cmath>
#include <cstring>
#include <limits>
#include <tuple>
#include <type_traits>
#include <vector>

#include "qsp_test.h"

namespace exref {

// The parameter types of a function pointer.
template <class Fn>
struct FnArgs;
template <class R, class... A>
struct FnArgs<R (*)(A...)> {
    using type = std::tuple<A...>;
};

enum class Want { Largest, Smallest };

// Magnitude in a type wide enough to hold every magnitude exactly.
template <class T>
auto magnitude(T x)
{
    if constexpr (std::is_floating_point_v<T>)
        return std::fabs(x);
    else
        return x < 0 ? -(long long)x : (long long)x;
}

template <class T, bool Abs>
auto compared(T x)
{
    if constexpr (Abs)
        return magnitude(x);
    else
        return x;
}

// The sequential index rule: the best starts as element 0 and is replaced
// only by a strictly better element (so ties keep the lowest index, NaNs are
// passed over, and a NaN element 0 stays).
template <class T, bool Abs = false>
long long indexOfExtreme(const std::vector<T>& v, Want want)
{
    long long at = 0;
    auto best = compared<T, Abs>(v[0]);
    for (size_t i = 1; i < v.size(); ++i) {
        const auto x = compared<T, Abs>(v[i]);
        if (want == Want::Largest ? x > best : x < best) {
            best = x;
            at = (long long)i;
        }
    }
    return at;
}

template <class T>
bool isNaN(T x)
{
    if constexpr (std::is_floating_point_v<T>)
        return std::isnan(x);
    else
        return false;
}

// The extreme compared value over the elements that are not NaN.
template <class T, bool Abs = false>
auto extremeOfNumbers(const std::vector<T>& v, Want want)
{
    using C = decltype(compared<T, Abs>(v[0]));
    bool any = false;
    C best{};
    for (T e : v) {
        if (isNaN(e)) continue;
        const C x = compared<T, Abs>(e);
        if (!any || (want == Want::Largest ? x > best : x < best)) best = x;
        any = true;
    }
    return best;
}

// Random values of T with many repeats (so ties are common): a few distinct
// values for small ranges, the whole range otherwise.
template <class T>
std::vector<T> randomValues(size_t n, int distinct)
{
    std::vector<T> v(n);
    auto& rng = qsptest::rng();
    for (auto& x : v) {
        if constexpr (std::is_floating_point_v<T>) {
            x = distinct > 0 ? T(int(rng() % distinct) - distinct / 2) * T(0.5)
                             : T(std::uniform_real_distribution<double>(-1e6, 1e6)(rng));
            if (x == 0 && rng() % 2) x = -T(0);  // zeros of both signs
        } else {
            if (distinct > 0)
                x = T(long(rng() % distinct) - (std::is_signed_v<T> ? distinct / 2 : 0));
            else
                x = T(rng());
        }
    }
    return v;
}

template <class T>
T quietNaN()
{
    return std::numeric_limits<T>::quiet_NaN();
}

template <class T>
bool sameBits(T a, T b)
{
    return std::memcmp(&a, &b, sizeof(T)) == 0;
}

// The lengths the searches are tried at: every length to 100 and a few
// long ones that cross many blocks.
inline std::vector<int> lengths()
{
    std::vector<int> out;
    for (int n = 1; n <= 100; ++n) out.push_back(n);
    for (int n : {127, 128, 129, 1000, 4099, 65536 + 7}) out.push_back(n);
    return out;
}

// The reported value of a compared value: itself, or for integer magnitudes
// the magnitude saturated to the element type.
template <class T, bool Abs, class C>
T reported(C c)
{
    if constexpr (Abs && !std::is_floating_point_v<T>)
        return c > std::numeric_limits<T>::max() ? std::numeric_limits<T>::max() : T(c);
    else
        return T(c);
}

// Copies v into a fresh buffer `offset` elements past a 16-byte boundary,
// so that every alignment of the source is tried.
template <class T>
struct Placed {
    std::vector<T> storage;
    T* data;
    Placed(const std::vector<T>& v, int offset) : storage(v.size() + 4)
    {
        data = storage.data() + offset;
        std::memcpy(data, v.data(), v.size() * sizeof(T));
    }
};

// A value search (Max, Min, MaxAbs, MinAbs) against the plain extreme, on
// NaN-free data of every length and alignment, few or many distinct values.
template <class T, bool Abs, class Fn>
void checkValueSearch(Fn fn, Want want)
{
    using Len = std::tuple_element_t<1, typename FnArgs<Fn>::type>;
    for (int len : lengths()) {
        for (int distinct : {3, 0}) {
            const std::vector<T> v = randomValues<T>(len, distinct);
            const T want0 = reported<T, Abs>(extremeOfNumbers<T, Abs>(v, want));
            for (int offset = 0; offset < 4; ++offset) {
                Placed<T> in(v, offset);
                qsptest::Guarded<T> out(1);
                ASSERT_EQ(fn(in.data, Len(len), out.data()), qspStsOk);
                ASSERT_TRUE(out[0] == want0) << "len " << len << " offset " << offset;
                // Among equal zeros the sign that comes out is the lanes'.
                ASSERT_TRUE(sameBits(out[0], laneRule<T, Abs>(in.data, len, want)));
                ASSERT_TRUE(out.guardsIntact());
            }
        }
    }
}

// The value search's lane rule written out element by element: the extreme
// so far starts as element 0; elements before the source's first 16-byte
// boundary are stepped one by one; then four registers of W lanes, all
// starting from the extreme so far, step through four registers a time;
// the registers are folded as (r0, r1) with (r2, r3), the lanes from lane 0
// up; the rest are stepped one by one. A step keeps the current value only
// while it is strictly better than the element, so a NaN element replaces
// it and a NaN current value is replaced.
template <class T, bool Abs>
T laneRule(const T* p, long long len, Want want)
{
    using C = decltype(compared<T, Abs>(p[0]));
    auto step = [&](C cur, C x) { return (want == Want::Largest ? cur > x : cur < x) ? cur : x; };
    constexpr long long W = 16 / sizeof(T);
    const auto address = reinterpret_cast<uintptr_t>(p);
    long long head = address % sizeof(T) ? 0 : (long long)((16 - address % 16) % 16 / sizeof(T));
    if (head > len) head = len;
    C cur = compared<T, Abs>(p[0]);
    long long i = head == 0 ? 0 : 1;
    for (; i < head; ++i) cur = step(cur, compared<T, Abs>(p[i]));
    if (i + 4 * W <= len) {
        std::vector<C> acc(4 * W, cur);
        for (; i + 4 * W <= len; i += 4 * W)
            for (long long k = 0; k < 4 * W; ++k) acc[k] = step(acc[k], compared<T, Abs>(p[i + k]));
        std::vector<C> m(W);
        for (long long l = 0; l < W; ++l) m[l] = step(step(acc[l], acc[W + l]), step(acc[2 * W + l], acc[3 * W + l]));
        cur = m[0];
        for (long long l = 1; l < W; ++l) cur = step(cur, m[l]);
    }
    for (; i < len; ++i) cur = step(cur, compared<T, Abs>(p[i]));
    return reported<T, Abs>(cur);
}

// NaNs planted at random places, at every alignment: bit for bit the lane
// rule; a vector of NaNs gives a NaN.
template <class T, bool Abs, class Fn>
void checkValueSearchWithNaNs(Fn fn, Want want)
{
    using Len = std::tuple_element_t<1, typename FnArgs<Fn>::type>;
    for (int len : lengths()) {
        for (int nans : {1, 2, 5}) {
            std::vector<T> v = randomValues<T>(len, 11);
            for (int k = 0; k < nans; ++k) v[qsptest::rng()() % len] = k % 2 ? -quietNaN<T>() : quietNaN<T>();
            for (int offset = 0; offset < 4; ++offset) {
                Placed<T> in(v, offset);
                T out;
                ASSERT_EQ(fn(in.data, Len(len), &out), qspStsOk);
                ASSERT_TRUE(sameBits(out, laneRule<T, Abs>(in.data, len, want))) << "len " << len << " offset " << offset;
            }
        }
        std::vector<T> all(len, quietNaN<T>());
        T out;
        ASSERT_EQ(fn(all.data(), Len(len), &out), qspStsOk);
        ASSERT_TRUE(std::isnan(out));
    }
}

// An index search (MaxIndx, MinIndx, MaxAbsIndx, MinAbsIndx) against the
// sequential rule, exactly: index, and value bit for bit.
template <class T, bool Abs, class Fn>
void expectIndexSearch(Fn fn, const std::vector<T>& v, Want want, int offset, const char* what)
{
    using Args = typename FnArgs<Fn>::type;
    using Len = std::tuple_element_t<1, Args>;
    using I = std::remove_pointer_t<std::tuple_element_t<3, Args>>;
    const long long at = indexOfExtreme<T, Abs>(v, want);
    const T value = reported<T, Abs>(compared<T, Abs>(v[at]));
    Placed<T> in(v, offset);
    qsptest::Guarded<T> out(1);
    qsptest::Guarded<I> index(1);
    ASSERT_EQ(fn(in.data, Len(v.size()), out.data(), index.data()), qspStsOk);
    ASSERT_TRUE(sameBits(out[0], value)) << what << " len " << v.size() << " offset " << offset;
    ASSERT_EQ(index[0], at) << what << " len " << v.size() << " offset " << offset;
    ASSERT_TRUE(out.guardsIntact() && index.guardsIntact());
}

template <class T, bool Abs, class Fn>
void checkIndexSearch(Fn fn, Want want)
{
    for (int len : lengths()) {
        for (int distinct : {2, 7, 0}) expectIndexSearch<T, Abs>(fn, randomValues<T>(len, distinct), want, len % 4, "random");
        // The extreme planted at every position (and again further on), for
        // short vectors; at a spread of positions for long ones.
        const int step = len <= 100 ? 1 : len / 8 + 1;
        for (int pos = 0; pos < len; pos += step) {
            std::vector<T> v = randomValues<T>(len, 5);
            const T big = want == Want::Largest ? T(100) : (Abs ? T(0) : T(-100));
            v[pos] = big;
            if (pos + 3 < len) v[pos + 3] = big;
            v[len - 1] = big;
            expectIndexSearch<T, Abs>(fn, v, want, pos % 4, "planted tie");
            if constexpr (std::is_floating_point_v<T>) {
                // A NaN at every position, and NaNs right before the extreme.
                std::vector<T> w = randomValues<T>(len, 9);
                w[pos] = quietNaN<T>();
                expectIndexSearch<T, Abs>(fn, w, want, 0, "planted NaN");
                v[pos > 0 ? pos - 1 : 0] = -quietNaN<T>();
                expectIndexSearch<T, Abs>(fn, v, want, 1, "NaN before extreme");
            }
        }
    }
}

// Statuses of a value search (source, length, one output): pointers before
// the length, nothing written on error. The 64-bit length forms look at the
// length first.
template <class T, class Fn>
void checkValueStatuses(Fn fn, bool lengthFirst = false)
{
    qsptest::Guarded<T> src(4), out(1);
    EXPECT_EQ(fn(nullptr, 4, out.data()), qspStsNullPtr);
    EXPECT_EQ(fn(src.data(), 4, nullptr), qspStsNullPtr);
    EXPECT_EQ(fn(nullptr, 0, out.data()), lengthFirst ? qspStsBadSize : qspStsNullPtr);
    EXPECT_EQ(fn(src.data(), 0, nullptr), lengthFirst ? qspStsBadSize : qspStsNullPtr);
    EXPECT_EQ(fn(src.data(), 0, out.data()), qspStsBadSize);
    EXPECT_EQ(fn(src.data(), -1, out.data()), qspStsBadSize);
    EXPECT_TRUE(out.untouched());
}

// Statuses of an index search; a null index pointer makes it the value
// search, whose checks it then has.
template <class T, class Fn, class ValueFn>
void checkIndexStatuses(Fn fn, ValueFn valueOnly, bool lengthFirst = false)
{
    using I = std::remove_pointer_t<std::tuple_element_t<3, typename FnArgs<Fn>::type>>;
    qsptest::Guarded<T> src(4), out(1);
    qsptest::Guarded<I> index(1);
    EXPECT_EQ(fn(nullptr, 4, out.data(), index.data()), qspStsNullPtr);
    EXPECT_EQ(fn(src.data(), 4, nullptr, index.data()), qspStsNullPtr);
    EXPECT_EQ(fn(nullptr, 0, out.data(), index.data()), lengthFirst ? qspStsBadSize : qspStsNullPtr);
    EXPECT_EQ(fn(src.data(), 0, out.data(), index.data()), qspStsBadSize);
    EXPECT_EQ(fn(src.data(), -2, out.data(), index.data()), qspStsBadSize);
    EXPECT_EQ(fn(nullptr, 4, out.data(), nullptr), qspStsNullPtr);
    EXPECT_EQ(fn(src.data(), 0, out.data(), nullptr), qspStsBadSize);
    EXPECT_TRUE(out.untouched());
    EXPECT_TRUE(index.untouched());

    std::vector<T> v = randomValues<T>(57, 0);
    T viaIndex, viaValue;
    EXPECT_EQ(fn(v.data(), 57, &viaIndex, nullptr), qspStsOk);
    EXPECT_EQ(valueOnly(v.data(), 57, &viaValue), qspStsOk);
    EXPECT_TRUE(sameBits(viaIndex, viaValue));
}

}  // namespace exref

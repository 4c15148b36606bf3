// SPDX-License-Identifier: BSD-3-Clause
// Generic argument-check tests of the element-wise functions, driven by the
// function's own signature: every pointer parameter gets a canary-filled
// buffer, the length is the first integer parameter after the last
// pointer, and the remaining (mode) parameters take the values the test
// gives, in order.
//
//   expectChecks(qspsAdd_16s_Sfs, 0);           // scale factor 0
//   expectChecks(qspsAddC_32f_L, 1.0f);          // val; a chunking _L form
//
// Checked: each pointer null alone gives qspStsNullPtr; with valid
// pointers a length of 0 and of -1 give qspStsBadSize; a null first
// pointer with a zero length gives qspStsNullPtr from an ordinary function
// and qspStsBadSize from an _L function (which checks its length first);
// no buffer is written by any of these calls.
#pragma once
#include <tuple>
#include <type_traits>
#include <utility>

#include "qsp_test.h"

namespace arithchecks {

template <class T>
struct Holder {
    T value{};
    T get() const { return value; }
};
template <class T>
struct Holder<T*> {
    qsptest::Guarded<std::remove_const_t<T>> buf{64};
    bool null = false;
    T* get() { return null ? nullptr : buf.data(); }
};
// A void* parameter (none in these families) is not supported.

template <class... P>
struct Signature {
    static constexpr int n = sizeof...(P);
    static constexpr bool isPtr[n > 0 ? n : 1] = {std::is_pointer_v<P>...};
    static constexpr bool isInt[n > 0 ? n : 1] = {(std::is_same_v<P, int> || std::is_same_v<P, long long>)...};
    static constexpr int lastPtr()
    {
        int k = -1;
        for (int i = 0; i < n; ++i)
            if (isPtr[i]) k = i;
        return k;
    }
    static constexpr int lenAt()
    {
        for (int i = lastPtr() + 1; i < n; ++i)
            if (isInt[i]) return i;
        return -1;
    }
    // Position of parameter i among the mode parameters (neither pointer
    // nor length), or -1.
    static constexpr int modeIndex(int i)
    {
        if (isPtr[i] || i == lenAt()) return -1;
        int k = 0;
        for (int j = 0; j < i; ++j)
            if (!isPtr[j] && j != lenAt()) ++k;
        return k;
    }
};

template <class... P, class... M, size_t... I>
void assignModes(std::tuple<Holder<P>...>& h, const std::tuple<M...>& modes, std::index_sequence<I...>)
{
    using S = Signature<P...>;
    auto one = [&](auto idx) {
        constexpr size_t i = decltype(idx)::value;
        constexpr int k = S::modeIndex(int(i));
        if constexpr (k >= 0 && k < int(sizeof...(M))) {
            using T = std::tuple_element_t<i, std::tuple<P...>>;
            std::get<i>(h).value = T(std::get<k>(modes));
        }
    };
    (one(std::integral_constant<size_t, I>{}), ...);
}

template <class... P>
struct Call {
    std::tuple<Holder<P>...> h;
    static constexpr int lenAt = Signature<P...>::lenAt();

    template <size_t... I>
    QspStatus run(QspStatus (*fn)(P...), std::index_sequence<I...>)
    {
        return fn(std::get<I>(h).get()...);
    }
    QspStatus operator()(QspStatus (*fn)(P...)) { return run(fn, std::index_sequence_for<P...>{}); }

    template <size_t... I>
    void setNull(int k, bool v, std::index_sequence<I...>)
    {
        auto one = [&](auto idx) {
            constexpr size_t i = decltype(idx)::value;
            if constexpr (std::is_pointer_v<std::tuple_element_t<i, std::tuple<P...>>>)
                if (int(i) == k) std::get<i>(h).null = v;
        };
        (one(std::integral_constant<size_t, I>{}), ...);
    }
    void setNull(int k, bool v) { setNull(k, v, std::index_sequence_for<P...>{}); }

    template <size_t... I>
    void setLen(long long len, std::index_sequence<I...>)
    {
        auto one = [&](auto idx) {
            constexpr size_t i = decltype(idx)::value;
            if constexpr (int(i) == lenAt) std::get<i>(h).value = decltype(std::get<i>(h).value)(len);
        };
        (one(std::integral_constant<size_t, I>{}), ...);
    }
    void setLen(long long len) { setLen(len, std::index_sequence_for<P...>{}); }

    template <size_t... I>
    bool untouched(std::index_sequence<I...>)
    {
        bool ok = true;
        auto one = [&](auto idx) {
            constexpr size_t i = decltype(idx)::value;
            if constexpr (std::is_pointer_v<std::tuple_element_t<i, std::tuple<P...>>>)
                ok = ok && std::get<i>(h).buf.untouched();
        };
        (one(std::integral_constant<size_t, I>{}), ...);
        return ok;
    }
    bool untouched() { return untouched(std::index_sequence_for<P...>{}); }
};

// The pointer and length checks of fn, with `modes` for its mode arguments.
template <class... P, class... M>
void expectChecks(QspStatus (*fn)(P...), M... modes)
{
    using S = Signature<P...>;
    static_assert(S::lenAt() >= 0, "no length parameter after the pointers");
    constexpr bool longLen = std::is_same_v<std::tuple_element_t<S::lenAt(), std::tuple<P...>>, long long>;
    Call<P...> c;
    assignModes(c.h, std::tuple<M...>(modes...), std::index_sequence_for<P...>{});
    c.setLen(8);
    int firstPtr = -1;
    for (int k = 0; k < S::n; ++k) {
        if (!S::isPtr[k]) continue;
        if (firstPtr < 0) firstPtr = k;
        c.setNull(k, true);
        EXPECT_EQ(c(fn), qspStsNullPtr) << "pointer " << k << " null";
        c.setNull(k, false);
    }
    c.setLen(0);
    EXPECT_EQ(c(fn), qspStsBadSize) << "length 0";
    c.setLen(-1);
    EXPECT_EQ(c(fn), qspStsBadSize) << "length -1";
    c.setNull(firstPtr, true);
    c.setLen(0);
    EXPECT_EQ(c(fn), longLen ? qspStsBadSize : qspStsNullPtr) << "null pointer with length 0";
    EXPECT_TRUE(c.untouched()) << "a failed call wrote into a buffer";
}

// The mode argument check: fn with valid buffers and length and `modes`
// returns `expected` and writes nothing.
template <class... P, class... M>
void expectModeError(QspStatus expected, QspStatus (*fn)(P...), M... modes)
{
    Call<P...> c;
    assignModes(c.h, std::tuple<M...>(modes...), std::index_sequence_for<P...>{});
    c.setLen(8);
    EXPECT_EQ(c(fn), expected);
    EXPECT_TRUE(c.untouched()) << "a failed call wrote into a buffer";
    // The pointer and length errors come first.
    c.setLen(0);
    EXPECT_EQ(c(fn), qspStsBadSize) << "length checked before the mode argument";
}

}  // namespace arithchecks

// SPDX-License-Identifier: BSD-3-Clause
// Shared helpers of the test programs: canary-filled buffers that prove
// nothing was written, deterministic random data, and distances in units
// in the last place.
#pragma once
#include <gtest/gtest.h>

#include <cmath>
#include <cstdint>
#include <cstring>
#include <random>
#include <type_traits>
#include <vector>

#include "qspcore.h"
#include "qsps.h"

namespace qsptest {

constexpr unsigned char kCanaryByte = 0xA5;

// A buffer of n elements with `guard` extra elements on each side, all
// bytes set to the canary. data() points past the front guard.
template <class T>
class Guarded {
public:
    explicit Guarded(size_t n, size_t guard = 16) : n_(n), guard_(guard), bytes_((n + 2 * guard) * sizeof(T) + 16)
    {
        std::memset(bytes_.data(), kCanaryByte, bytes_.size());
    }
    T* data() { return reinterpret_cast<T*>(bytes_.data()) + guard_; }
    const T* data() const { return reinterpret_cast<const T*>(bytes_.data()) + guard_; }
    T& operator[](size_t i) { return data()[i]; }
    size_t size() const { return n_; }
    // True when every byte, guards included, still holds the canary.
    bool untouched() const { return allCanary(0, bytes_.size()); }
    // True when the guards on both sides still hold the canary.
    bool guardsIntact() const
    {
        const size_t front = guard_ * sizeof(T), body = n_ * sizeof(T);
        return allCanary(0, front) && allCanary(front + body, bytes_.size());
    }

private:
    bool allCanary(size_t from, size_t to) const
    {
        for (size_t i = from; i < to; ++i)
            if (bytes_[i] != kCanaryByte) return false;
        return true;
    }
    size_t n_, guard_;
    std::vector<unsigned char> bytes_;
};

inline std::mt19937_64& rng()
{
    static std::mt19937_64 engine(20261121);
    return engine;
}

// Random bit patterns of T (every value, NaNs and denormals included).
template <class T>
std::vector<T> randomBits(size_t n)
{
    std::vector<T> v(n);
    auto* bytes = reinterpret_cast<unsigned char*>(v.data());
    for (size_t i = 0; i < n * sizeof(T); ++i) bytes[i] = static_cast<unsigned char>(rng()());
    return v;
}

template <class T>
bool sameBits(const T& a, const T& b)
{
    return std::memcmp(&a, &b, sizeof(T)) == 0;
}

// Distance in units in the last place between two finite values of the
// same floating type (0 for equal values, including +0 and -0).
template <class F>
double ulpDistance(F a, F b)
{
    static_assert(std::is_floating_point_v<F>);
    using I = std::conditional_t<sizeof(F) == 4, int32_t, int64_t>;
    auto ordered = [](F x) {
        I i;
        std::memcpy(&i, &x, sizeof(F));
        return i < 0 ? std::numeric_limits<I>::min() - i : i;
    };
    const long double d = (long double)ordered(a) - (long double)ordered(b);
    return (double)(d < 0 ? -d : d);
}

}  // namespace qsptest

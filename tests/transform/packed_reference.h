// SPDX-License-Identifier: BSD-3-Clause
// Reference unpacking of half spectra for the packed-arithmetic tests.
#pragma once
#include <complex>
#include <vector>

#include "qsp_test.h"

namespace packedref {

using LC = std::complex<long double>;

enum class Layout { Pack, Perm, Ccs };

// Bins 0..len/2 of a packed half spectrum of packed length len.
template <class T>
std::vector<LC> bins(Layout l, const T* p, long long len)
{
    std::vector<LC> b(len / 2 + 1);
    const bool even = len % 2 == 0;
    b[0] = LC(p[0], l == Layout::Ccs ? p[1] : 0);
    for (long long k = 1; k <= len / 2; ++k) {
        if (even && 2 * k == len) {
            if (l == Layout::Pack) b[k] = LC(p[len - 1], 0);
            else if (l == Layout::Perm) b[k] = LC(p[1], 0);
            else b[k] = LC(p[2 * k], p[2 * k + 1]);
        } else if (l == Layout::Pack || (l == Layout::Perm && !even)) {
            b[k] = LC(p[2 * k - 1], p[2 * k]);
        } else {
            b[k] = LC(p[2 * k], p[2 * k + 1]);
        }
    }
    return b;
}

template <class T>
std::vector<T> randomValues(size_t n)
{
    std::uniform_real_distribution<double> d(-4.0, 4.0);
    std::vector<T> v(n);
    for (auto& x : v) x = (T)d(qsptest::rng());
    return v;
}

// Checks an in-place packed product f(src, srcDst, len) for lengths 1..40
// against the bin-by-bin product in long double. With operands in [-4, 4]
// every component is at most 32 in size and carries at most two roundings
// of the element type, so 64 units of its epsilon bound the error.
template <class T, bool Conj>
void checkInPlaceProducts(Layout l, QspStatus (*f)(const T*, T*, int))
{
    const long double tol = 64 * (long double)std::numeric_limits<T>::epsilon();
    for (int len = 1; len <= 40; ++len) {
        auto a = randomValues<T>(len), b = randomValues<T>(len);
        auto d = b;
        ASSERT_EQ(f(a.data(), d.data(), len), qspStsOk);
        const auto ba = bins(l, a.data(), len), bb = bins(l, b.data(), len), bd = bins(l, d.data(), len);
        for (size_t k = 0; k < ba.size(); ++k) {
            const LC want = ba[k] * (Conj ? std::conj(bb[k]) : bb[k]);
            EXPECT_LE(std::abs(bd[k] - want), tol) << "len " << len << " bin " << k;
        }
        // The real bins are single roundings of the exact product.
        EXPECT_EQ(d[0], a[0] * b[0]);
    }
}

}  // namespace packedref

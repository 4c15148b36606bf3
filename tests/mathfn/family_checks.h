// SPDX-License-Identifier: BSD-3-Clause
// Shared checks of the elementary-function families' exports: every
// length from 1 to 67 at two alignments, the in-place form equal to the
// out-of-place one, nothing written outside the destination, and every
// element equal to a reference computed one element at a time.
#pragma once
#include <mpfr.h>

#include <cmath>
#include <functional>
#include <random>
#include <vector>

#include "qsp_test.h"

namespace familychecks {

template <class T>
bool same(const T& a, const T& b)
{
    return qsptest::sameBits(a, b);
}

// out-of-place fn(src, dst, len) and in-place fnI(srcDst, len) (may be
// null) against want(x) element by element, for every length 1..67 at
// element offsets 0 and 1, sources drawn from pool in turn.
template <class S, class D, class FnI, class Want>
void expectElementwise(QspStatus (*fn)(const S*, D*, int), FnI fnI, const std::vector<S>& pool, Want want,
                       QspStatus expected = qspStsOk)
{
    size_t at = 0;
    for (int len = 1; len <= 67; ++len) {
        for (int offset = 0; offset < 2; ++offset) {
            qsptest::Guarded<S> src(len + 1);
            qsptest::Guarded<D> dst(len + 1);
            for (int i = 0; i < len; ++i) src[offset + i] = pool[(at + i) % pool.size()];
            at += len;
            const QspStatus st = fn(src.data() + offset, dst.data() + offset, len);
            if (expected == qspStsOk) EXPECT_EQ(st, qspStsOk) << "len " << len;
            for (int i = 0; i < len; ++i) {
                const D w = want(src[offset + i]);
                ASSERT_TRUE(same(dst[offset + i], w)) << "len " << len << " element " << i;
            }
            EXPECT_TRUE(dst.guardsIntact()) << "len " << len;
            if constexpr (!std::is_same_v<FnI, std::nullptr_t>) {
                {
                    std::vector<D> before(src.data() + offset, src.data() + offset + len);
                    const QspStatus stI = fnI(src.data() + offset, len);
                    if (expected == qspStsOk) EXPECT_EQ(stI, st);
                    for (int i = 0; i < len; ++i) ASSERT_TRUE(same(src[offset + i], want(before[i])));
                    EXPECT_TRUE(src.guardsIntact());
                }
            }
        }
    }
}

// The status of fn over vectors of the given elements, and that it
// equals the in-place form's status.
template <class T, class... M>
QspStatus statusOf(QspStatus (*fn)(const T*, T*, int, M...), QspStatus (*fnI)(T*, int, M...), std::vector<T> v,
                   M... modes)
{
    std::vector<T> out(v.size());
    const QspStatus st = fn(v.data(), out.data(), int(v.size()), modes...);
    EXPECT_EQ(fnI(v.data(), int(v.size()), modes...), st);
    return st;
}

// Floats of every kind: random bit patterns (NaNs, infinities, subnormals
// among them) and moderate values.
inline std::vector<float> floatPool(size_t n, std::mt19937_64& rng, float lo, float hi)
{
    std::vector<float> v = qsptest::randomBits<float>(n / 2);
    std::uniform_real_distribution<float> d(lo, hi);
    for (size_t i = v.size(); i < n; ++i) v.push_back(d(rng));
    return v;
}
inline std::vector<double> doublePool(size_t n, std::mt19937_64& rng, double lo, double hi)
{
    std::vector<double> v = qsptest::randomBits<double>(n / 2);
    std::uniform_real_distribution<double> d(lo, hi);
    for (size_t i = v.size(); i < n; ++i) v.push_back(d(rng));
    return v;
}

// A real value rounded to the nearest integer with ties to even and
// saturated to D, from MPFR (v is consumed).
template <class D>
D roundSaturate(mpfr_ptr v)
{
    using L = std::numeric_limits<D>;
    if (mpfr_nan_p(v)) return D(0);
    mpfr_rint(v, v, MPFR_RNDN);
    if (mpfr_cmp_d(v, double(L::max())) >= 0) return L::max();
    if (mpfr_cmp_d(v, double(L::min())) <= 0) return L::min();
    return D(mpfr_get_si(v, MPFR_RNDN));
}

}  // namespace familychecks

// SPDX-License-Identifier: BSD-3-Clause
// Shared check of the three expansion families (ConjPerm, ConjPack,
// ConjCcs): the complete conjugate-symmetric spectrum from a half spectrum.
#pragma once
#include "packed_reference.h"

namespace conjexpand {

using namespace packedref;

// Packed floats read by the expansion of len values.
inline long long packedFloats(Layout l, long long len)
{
    return l == Layout::Ccs ? 2 * (len / 2) + 2 : len;
}

template <class T, class F, class FI>
void checkLengths(Layout l, F outOfPlace, FI inPlace)
{
    for (long long len = 1; len <= 33; ++len) {
        auto p = randomValues<T>(packedFloats(l, len));
        if (l == Layout::Ccs) p[1] = 0;
        if (l == Layout::Ccs && len % 2 == 0) p[len + 1] = 0;
        std::vector<T> out(2 * len + 2, T(-9));
        ASSERT_EQ(outOfPlace(p.data(), out.data(), len), qspStsOk);
        std::vector<T> io(2 * len + 2, T(-9));
        std::copy(p.begin(), p.end(), io.begin());
        ASSERT_EQ(inPlace(io.data(), len), qspStsOk);
        const auto b = bins(l, p.data(), len);
        for (long long k = 0; k < len; ++k) {
            const LC want = k <= len / 2 ? b[k] : std::conj(b[len - k]);
            ASSERT_EQ(out[2 * k], (T)want.real()) << len << " bin " << k;
            ASSERT_EQ(out[2 * k + 1], (T)want.imag()) << len << " bin " << k;
        }
        for (long long i = 0; i < 2 * len; ++i) ASSERT_EQ(out[i], io[i]) << "in place, len " << len;
        EXPECT_EQ(out[2 * len], T(-9));
        EXPECT_EQ(io[2 * len], T(-9));
    }
}

}  // namespace conjexpand

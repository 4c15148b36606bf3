// SPDX-License-Identifier: BSD-3-Clause
// The factorisation rule that decides whether a length gets a prime-factor
// plan, and the factor list that plan is built from.
//
//  a. while L is divisible by 4, append a factor 4;
//  b. if what remains is even, halve it and put a factor 2 at the front;
//  c. if what remains is at least 9, divide by odd d = 3, 5, 7, ... in turn
//     (trying each d again after it divides) until d*d exceeds the remainder;
//     an odd divisor above 48 that fails to divide ends the attempt: the
//     length is not factorable this way;
//  d. a factor 3 right behind a leading 2 merges with it into a 6;
//  e. a remainder above 1 is the last factor.
// The plan is used when at least one factor came from steps a to c and the
// last factor is at most 50, or at most 150 when 4 divides L.
#pragma once
#include "qspdefs.h"

namespace dft {

// 3^17 is the longest list a length below 2^27 can give.
constexpr int kMaxFactors = 18;

struct FactorList {
    int count = 0;
    int f[kMaxFactors] = {};
    bool planned = false;  // the rule accepts a prime-factor plan
};

inline FactorList factorise(Qsp64s len)
{
    FactorList r;
    Qsp64s rem = len;
    while (rem % 4 == 0) {
        r.f[r.count++] = 4;
        rem /= 4;
    }
    if (rem % 2 == 0) {
        rem /= 2;
        for (int i = r.count; i > 0; --i) r.f[i] = r.f[i - 1];
        r.f[0] = 2;
        ++r.count;
    }
    if (rem >= 9) {
        for (Qsp64s d = 3; d * d <= rem;) {
            if (rem % d == 0) {
                r.f[r.count++] = static_cast<int>(d);
                rem /= d;
                continue;
            }
            if (d > 48) return r;  // not factorable: no plan
            d += 2;
        }
    }
    const bool found = r.count > 0;
    if (r.count >= 2 && r.f[0] == 2 && r.f[1] == 3) {
        r.f[0] = 6;
        for (int i = 1; i + 1 < r.count; ++i) r.f[i] = r.f[i + 1];
        --r.count;
    }
    if (rem > 1) r.f[r.count++] = static_cast<int>(rem);
    const Qsp64s bound = len % 4 == 0 ? 150 : 50;
    r.planned = found && r.f[r.count - 1] <= bound;
    return r;
}

inline bool isPowerOfTwo(Qsp64s n) { return n > 0 && (n & (n - 1)) == 0; }

inline int log2Of(Qsp64s n)
{
    int k = 0;
    while ((Qsp64s(1) << k) < n) ++k;
    return k;
}

}  // namespace dft

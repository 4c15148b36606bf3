// SPDX-License-Identifier: BSD-3-Clause
// The Blackman family's kernel, shared by WinBlackman (alpha given),
// WinBlackmanStd (alpha = -0.16) and WinBlackmanOpt (alpha from the
// length):
//     w(k) = (alpha + 1)/2 - 0.5 cos k theta - (alpha/2) cos 2k theta.
// With cos 2k theta = 2c^2 - 1 (c = cos k theta) this is (1 - c)(0.5 + alpha (1 + c)),
// the form evaluated: one cosine series serves both terms, and the factor
// 1 - c, exact near the ends (c close to 1), makes the end weights exactly
// 0 and keeps the small weights near the ends accurate.
#pragma once
#include "window.h"
#include "window_cosines.h"

namespace window {

// After the family's checks. Three elements: both ends zeroed, the middle
// kept.
template <class T>
void blackman(const T* pSrc, T* pDst, int len, double alpha)
{
    if (len == 3) {
        endsZeroed(pSrc, pDst);
        return;
    }
    const VD::Reg a = VD::splat(alpha);
    auto weights = cosineWeights(len, [a](VD::Reg c) {
        const VD::Reg one = VD::splat(1.0);
        return VD::mul(VD::sub(one, c), VD::add(VD::splat(0.5), VD::mul(a, VD::add(one, c))));
    });
    apply(pSrc, pDst, len, weights);
}

}  // namespace window

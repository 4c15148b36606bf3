// SPDX-License-Identifier: BSD-3-Clause
// The checks of the rate-change arguments shared by SampleUp, SampleDown
// and the multi-rate FIR: a factor below 1 is qspStsBadFactor, a phase not
// below its factor qspStsBadPhase. The phase is compared unsigned, so a
// negative phase fails as well.
#pragma once
#include "qspdefs.h"

namespace rate {

constexpr QspStatus factor(int f) { return f < 1 ? qspStsBadFactor : qspStsOk; }

// Assumes a valid factor.
constexpr QspStatus phase(int p, int f) { return unsigned(p) >= unsigned(f) ? qspStsBadPhase : qspStsOk; }

constexpr QspStatus factorAndPhase(int f, int p)
{
    if (QspStatus s = factor(f)) return s;
    return phase(p, f);
}

}  // namespace rate

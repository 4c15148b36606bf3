// SPDX-License-Identifier: BSD-3-Clause
// The library's constant version record.
#include "qsp_validators.h"

namespace y8 {
namespace {

// "major.minor.update (r0x<build number in lower-case hex>)".
#define QSP_VERSION_TEXT "2026.0.0 (r0xa7ad6ebc)"

constexpr QspVersionRecord kVersion = {
    2026, 0, 0, 0xa7ad6ebcu, {'y', '8', '\0', '\0'},
    "qspSP SSE4.2 (y8)", QSP_VERSION_TEXT, "Mar 27 2026", 12,
};

}  // namespace

const QspVersionRecord* qspsGetLibVersion(void) { return &kVersion; }

}  // namespace y8

// SPDX-License-Identifier: BSD-3-Clause
// Test program entry: GoogleTest with a listener that fails any test that
// leaves the floating-point control modes (rounding, flush-to-zero,
// denormals-are-zero, exception masks) different from how it found them.
#include <gtest/gtest.h>
#include <xmmintrin.h>

namespace {

constexpr unsigned kModeBits = 0xFFC0;  // everything in MXCSR but the sticky flags

class FloatingModeGuard : public testing::EmptyTestEventListener {
    unsigned before_ = 0;
    void OnTestStart(const testing::TestInfo&) override { before_ = _mm_getcsr() & kModeBits; }
    void OnTestEnd(const testing::TestInfo&) override
    {
        const unsigned after = _mm_getcsr() & kModeBits;
        EXPECT_EQ(before_, after) << "the test changed the floating-point modes (MXCSR)";
        _mm_setcsr((_mm_getcsr() & ~kModeBits) | before_);
    }
};

}  // namespace

int main(int argc, char** argv)
{
    testing::InitGoogleTest(&argc, argv);
    testing::UnitTest::GetInstance()->listeners().Append(new FloatingModeGuard);
    return RUN_ALL_TESTS();
}

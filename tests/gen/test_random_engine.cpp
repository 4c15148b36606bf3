// SPDX-License-Identifier: BSD-3-Clause
// The core generator of the random families (white box): the jump is the
// step raised to 2^128, the step's linear map has the full period 2^256 - 1,
// the vector batches are the scalar steps of the eight streams, and the
// ziggurat tables satisfy their defining equations.
#include "gen/random_engine.h"
#include "gen/ziggurat_tables.h"
#include "random_reference.h"

namespace {

randref::State randomState()
{
    randref::State s;
    for (auto& w : s) w = qsptest::rng()();
    return s;
}

}  // namespace

TEST(RandomEngine, JumpIsTheStepRaisedToTwoToThe128)
{
    for (int i = 0; i < 4; ++i) {
        const randref::State s = randomState();
        Qsp64u t[4] = {s[0], s[1], s[2], s[3]};
        rng::jump(t);
        const randref::State want = randref::jumpMatrix().apply(s);
        for (int w = 0; w < 4; ++w) EXPECT_EQ(t[w], want[w]);
    }
}

TEST(RandomEngine, BatchesAreTheScalarStepsOfTheEightStreams)
{
    rng::Engine e;
    rng::seed(e, 99);
    Qsp64u scalar[rng::kStreams][4];
    for (int j = 0; j < rng::kStreams; ++j)
        for (int i = 0; i < 4; ++i) scalar[j][i] = e.s[i][j];
    for (int batch = 0; batch < 3; ++batch) {
        rng::refill(e);
        for (int t = 0; t < rng::kBatchSteps; ++t)
            for (int j = 0; j < rng::kStreams; ++j)
                ASSERT_EQ(e.batch[t * rng::kStreams + j], rng::step(scalar[j])) << batch << " " << t << " " << j;
    }
    // The scalar step is the model's.
    randref::State m = randomState();
    Qsp64u s[4] = {m[0], m[1], m[2], m[3]};
    for (int i = 0; i < 100; ++i) EXPECT_EQ(rng::step(s), randref::step(m));
}

TEST(RandomEngineHeavy, TheStepHasTheFullPeriod)
{
    // The state update M is invertible and of order 2^256 - 1 exactly: M
    // to that power is the identity and to (2^256 - 1)/p is not, for every
    // prime factor p (the factors of the Fermat numbers F0..F7).
    using randref::Matrix;
    std::vector<Matrix> pow2(257);  // M^(2^k)
    pow2[0] = Matrix::step();
    for (int k = 1; k <= 256; ++k) pow2[k] = pow2[k - 1].times(pow2[k - 1]);
    auto power = [&](const char* hex) {
        // hex: 64 digits, most significant first.
        Matrix r = Matrix::identity();
        for (int d = 0; d < 64; ++d) {
            const int v = hex[d] <= '9' ? hex[d] - '0' : hex[d] - 'a' + 10;
            for (int b = 0; b < 4; ++b)
                if ((v >> b) & 1) r = r.times(pow2[4 * (63 - d) + b]);
        }
        return r;
    };
    // M^(2^256) = M, so M^(2^256 - 1) = I.
    EXPECT_TRUE(pow2[256] == pow2[0]);
    const char* cofactors[] = {
        "5555555555555555555555555555555555555555555555555555555555555555",  // / 3
        "3333333333333333333333333333333333333333333333333333333333333333",  // / 5
        "0f0f0f0f0f0f0f0f0f0f0f0f0f0f0f0f0f0f0f0f0f0f0f0f0f0f0f0f0f0f0f0f",  // / 17
        "00ff00ff00ff00ff00ff00ff00ff00ff00ff00ff00ff00ff00ff00ff00ff00ff",  // / 257
        "0000ffff0000ffff0000ffff0000ffff0000ffff0000ffff0000ffff0000ffff",  // / 65537
        "00663d80ff99c27f00663d80ff99c27f00663d80ff99c27f00663d80ff99c27f",  // / 641
        "00000280fffffd7f00000280fffffd7f00000280fffffd7f00000280fffffd7f",  // / 6700417
        "00003d30f19cd100ffffc2cf0e632eff00003d30f19cd100ffffc2cf0e632eff",  // / 274177
        "0000000000042f00fffffffffffbd0ff0000000000042f00fffffffffffbd0ff",  // / 67280421310721
        "000000000000013540775b48cc32ba00fffffffffffffecabf88a4b733cd45ff",  // / 59649589127497217
        "000000000000000000d3eafc3af14600ffffffffffffffffff2c1503c50eb9ff",  // / 5704689200685129054721
    };
    for (const char* c : cofactors) EXPECT_FALSE(power(c) == Matrix::identity()) << c;
}

TEST(RandomEngine, ZigguratTablesSatisfyTheirEquations)
{
    using namespace ziggurat;
    using LD = long double;
    auto f = [](LD x) { return expl(-x * x / 2); };
    // Layer 0: the rectangle under f(R) and the tail beyond R.
    const LD tail = sqrtl(acosl(-1) / 2) * erfcl(LD(kR) / sqrtl(2));
    EXPECT_NEAR(double(LD(kR) * f(kR) + tail), kV, 1e-17);
    EXPECT_NEAR(double(LD(kX[0]) * f(kR)), kV, 1e-17);
    EXPECT_EQ(kX[1], kR);
    EXPECT_EQ(kX[kLayers], 0.0);
    EXPECT_EQ(kF[kLayers], 1.0);
    for (int i = 1; i < kLayers; ++i) {
        // Every other layer has the same area.
        EXPECT_NEAR(double(LD(kX[i]) * (LD(kF[i + 1]) - LD(kF[i])) / kV), 1.0, 1e-12) << i;
    }
    // f at the rounded abscissae: the rounding of x moves f by x^2 of its
    // relative size.
    for (int i = 0; i <= kLayers; ++i) {
        const LD x = kX[i];
        EXPECT_NEAR(double(f(x)), kF[i], double((2 + x * x) * 0x1p-52L * kF[i])) << i;
    }
    for (int i = 0; i < kLayers; ++i) EXPECT_NEAR(double(LD(kX[i + 1]) / kX[i]), kRatio[i], 4e-16) << i;
}

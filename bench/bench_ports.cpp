// SPDX-License-Identifier: BSD-3-Clause
// Throughput of the SSE instructions the FFT kernels are made of, in
// instructions per clock cycle of this machine. The cycle is timed with a
// chain of dependent integer additions (one cycle each), so the figures do
// not depend on the clock rate.
//
// They set the bound of a 128-bit FFT: every radix-2 level costs each
// complex point two real additions and, with radix-4 twiddles, three
// quarters of another, all on the ports that additions and shuffles share;
// multiplications have a port of their own. With two such ports and four
// single-precision lanes that is 2.75 / 4 / 2 = 0.34 cycles per point and
// level before any shuffle, twice that in double precision.
#include <benchmark/benchmark.h>

#include <algorithm>
#include <chrono>
#include <cstdint>

namespace {

// Fourteen independent instructions per step (xmm0..xmm13, each its own
// chain, so that even four-cycle multiplications are not held up by their
// latency), with xmm15 as the second operand.
#define QSP_OP(op, r) op " %%xmm15, %%xmm" #r "\n\t"
#define QSP_SIX(op) QSP_OP(op, 0) QSP_OP(op, 1) QSP_OP(op, 2) QSP_OP(op, 3) QSP_OP(op, 4) QSP_OP(op, 5)
#define QSP_EIGHT(op) \
    QSP_OP(op, 6) QSP_OP(op, 7) QSP_OP(op, 8) QSP_OP(op, 9) QSP_OP(op, 10) QSP_OP(op, 11) QSP_OP(op, 12) QSP_OP(op, 13)
#define QSP_CLOBBERS \
    "xmm0", "xmm1", "xmm2", "xmm3", "xmm4", "xmm5", "xmm6", "xmm7", "xmm8", "xmm9", "xmm10", "xmm11", "xmm12", "xmm13"

constexpr std::int64_t kSteps = 1 << 16;

// Seconds for 8 kSteps dependent additions: 8 kSteps cycles.
double cycleTime()
{
    const auto t0 = std::chrono::steady_clock::now();
    std::uint64_t x = 1;
    for (std::int64_t i = 0; i < kSteps; ++i)
        __asm__ volatile("add %0, %0\n\tadd %0, %0\n\tadd %0, %0\n\tadd %0, %0\n\t"
                         "add %0, %0\n\tadd %0, %0\n\tadd %0, %0\n\tadd %0, %0"
                         : "+r"(x));
    benchmark::DoNotOptimize(x);
    return std::chrono::duration<double>(std::chrono::steady_clock::now() - t0).count();
}

template <int Which>
void steps()
{
    for (std::int64_t i = 0; i < kSteps; ++i) {
        if constexpr (Which == 0) __asm__ volatile(QSP_SIX("addps") QSP_EIGHT("addps")::: QSP_CLOBBERS);
        if constexpr (Which == 1) __asm__ volatile(QSP_SIX("mulps") QSP_EIGHT("mulps")::: QSP_CLOBBERS);
        if constexpr (Which == 2) __asm__ volatile(QSP_SIX("shufps $0x4e,") QSP_EIGHT("shufps $0x4e,")::: QSP_CLOBBERS);
        if constexpr (Which == 3) __asm__ volatile(QSP_SIX("unpcklps") QSP_EIGHT("unpcklps")::: QSP_CLOBBERS);
        if constexpr (Which == 4) __asm__ volatile(QSP_SIX("addps") QSP_EIGHT("shufps $0x4e,")::: QSP_CLOBBERS);
        if constexpr (Which == 5) __asm__ volatile(QSP_SIX("addps") QSP_EIGHT("mulps")::: QSP_CLOBBERS);
    }
}

// Instructions per cycle: the fastest of the iterations against the
// fastest cycle timing.
template <int Which>
void perCycle(benchmark::State& state)
{
    double best = 1e30, cycle = 1e30;
    for (auto _ : state) {
        cycle = std::min(cycle, cycleTime());
        const auto t0 = std::chrono::steady_clock::now();
        steps<Which>();
        best = std::min(best, std::chrono::duration<double>(std::chrono::steady_clock::now() - t0).count());
    }
    state.counters["per_cycle"] = 14 * cycle / (8 * best);
}

}  // namespace

BENCHMARK(perCycle<0>)->Name("addps");
BENCHMARK(perCycle<1>)->Name("mulps");
BENCHMARK(perCycle<2>)->Name("shufps");
BENCHMARK(perCycle<3>)->Name("unpcklps");
BENCHMARK(perCycle<4>)->Name("6addps+8shufps");
BENCHMARK(perCycle<5>)->Name("6addps+8mulps");

int main(int argc, char** argv)
{
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return 0;
}

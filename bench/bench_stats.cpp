// SPDX-License-Identifier: BSD-3-Clause
// Reductions and searches against a plain loop built with -O3 -msse4.2 and
// against VOLK where it has the operation (VOLK picks its own kernels for
// this machine, which may use wider vectors than SSE4.2). Two sizes: 4096
// elements (cache resident) and 16 Mi elements (memory bound).
#include <benchmark/benchmark.h>
#include <volk/volk.h>

#include <cmath>
#include <random>
#include <vector>

#include "qsps.h"

namespace {

std::vector<float> data(size_t n, unsigned seed)
{
    std::mt19937 rng(seed);
    std::uniform_real_distribution<float> d(-1.0f, 1.0f);
    std::vector<float> v(n);
    for (auto& x : v) x = d(rng);
    return v;
}

// One volk-aligned copy of the inputs per size, shared by every benchmark.
struct Inputs {
    float* a;
    float* b;
    explicit Inputs(size_t n)
    {
        a = static_cast<float*>(volk_malloc(n * sizeof(float), volk_get_alignment()));
        b = static_cast<float*>(volk_malloc(n * sizeof(float), volk_get_alignment()));
        const auto x = data(n, 1), y = data(n, 2);
        std::copy(x.begin(), x.end(), a);
        std::copy(y.begin(), y.end(), b);
    }
};

const Inputs& inputs(size_t n)
{
    static Inputs small(4096), large(size_t(1) << 24);
    return n == 4096 ? small : large;
}

template <class Body>
void run(benchmark::State& state, Body body)
{
    const size_t n = size_t(state.range(0));
    const Inputs& in = inputs(n);
    for (auto _ : state) body(in, int(n));
    state.SetBytesProcessed(int64_t(state.iterations()) * int64_t(n * sizeof(float)));
}

// Plain loops: what the compiler makes of the obvious code.
__attribute__((noinline)) float plainSum(const float* x, int n)
{
    float s = 0;
    for (int i = 0; i < n; ++i) s += x[i];
    return s;
}
__attribute__((noinline)) float plainDot(const float* x, const float* y, int n)
{
    float s = 0;
    for (int i = 0; i < n; ++i) s += x[i] * y[i];
    return s;
}
__attribute__((noinline)) float plainNorm(const float* x, int n)
{
    float s = 0;
    for (int i = 0; i < n; ++i) s += x[i] * x[i];
    return std::sqrt(s);
}
__attribute__((noinline)) float plainMax(const float* x, int n)
{
    float m = x[0];
    for (int i = 1; i < n; ++i) m = m > x[i] ? m : x[i];
    return m;
}
__attribute__((noinline)) int plainMaxIndx(const float* x, int n)
{
    int at = 0;
    for (int i = 1; i < n; ++i)
        if (x[i] > x[at]) at = i;
    return at;
}
__attribute__((noinline)) void plainMeanStdDev(const float* x, int n, float* mean, float* sd)
{
    double s = 0, q = 0;
    for (int i = 0; i < n; ++i) s += x[i], q += double(x[i]) * x[i];
    *mean = float(s / n);
    *sd = float(std::sqrt((n * q - s * s) / (double(n) * (n - 1))));
}

}  // namespace

#define SIZES ->Arg(4096)->Arg(1 << 24)

// Sum
BENCHMARK_CAPTURE(run, sum_plain, [](const Inputs& in, int n) { benchmark::DoNotOptimize(plainSum(in.a, n)); }) SIZES;
BENCHMARK_CAPTURE(run, sum_qsp_fast, [](const Inputs& in, int n) {
    float s;
    qspsSum_32f(in.a, n, &s, qspAlgHintFast);
    benchmark::DoNotOptimize(s);
}) SIZES;
BENCHMARK_CAPTURE(run, sum_qsp_accurate, [](const Inputs& in, int n) {
    float s;
    qspsSum_32f(in.a, n, &s, qspAlgHintAccurate);
    benchmark::DoNotOptimize(s);
}) SIZES;
BENCHMARK_CAPTURE(run, sum_volk, [](const Inputs& in, int n) {
    float s;
    volk_32f_accumulator_s32f(&s, in.a, unsigned(n));
    benchmark::DoNotOptimize(s);
}) SIZES;

// Dot product
BENCHMARK_CAPTURE(run, dot_plain, [](const Inputs& in, int n) { benchmark::DoNotOptimize(plainDot(in.a, in.b, n)); }) SIZES;
BENCHMARK_CAPTURE(run, dot_qsp, [](const Inputs& in, int n) {
    float s;
    qspsDotProd_32f(in.a, in.b, n, &s);
    benchmark::DoNotOptimize(s);
}) SIZES;
BENCHMARK_CAPTURE(run, dot_volk, [](const Inputs& in, int n) {
    float s;
    volk_32f_x2_dot_prod_32f(&s, in.a, in.b, unsigned(n));
    benchmark::DoNotOptimize(s);
}) SIZES;

// L2 norm
BENCHMARK_CAPTURE(run, norm_l2_plain, [](const Inputs& in, int n) { benchmark::DoNotOptimize(plainNorm(in.a, n)); }) SIZES;
BENCHMARK_CAPTURE(run, norm_l2_qsp, [](const Inputs& in, int n) {
    float s;
    qspsNorm_L2_32f(in.a, n, &s);
    benchmark::DoNotOptimize(s);
}) SIZES;

// Max and its index
BENCHMARK_CAPTURE(run, max_plain, [](const Inputs& in, int n) { benchmark::DoNotOptimize(plainMax(in.a, n)); }) SIZES;
BENCHMARK_CAPTURE(run, max_qsp, [](const Inputs& in, int n) {
    float m;
    qspsMax_32f(in.a, n, &m);
    benchmark::DoNotOptimize(m);
}) SIZES;
BENCHMARK_CAPTURE(run, maxindx_plain, [](const Inputs& in, int n) { benchmark::DoNotOptimize(plainMaxIndx(in.a, n)); }) SIZES;
BENCHMARK_CAPTURE(run, maxindx_qsp, [](const Inputs& in, int n) {
    float m;
    int at;
    qspsMaxIndx_32f(in.a, n, &m, &at);
    benchmark::DoNotOptimize(at);
}) SIZES;
BENCHMARK_CAPTURE(run, maxindx_volk, [](const Inputs& in, int n) {
    uint32_t at;
    volk_32f_index_max_32u(&at, in.a, uint32_t(n));
    benchmark::DoNotOptimize(at);
}) SIZES;

// Mean and standard deviation
BENCHMARK_CAPTURE(run, meanstddev_plain, [](const Inputs& in, int n) {
    float m, s;
    plainMeanStdDev(in.a, n, &m, &s);
    benchmark::DoNotOptimize(s);
}) SIZES;
BENCHMARK_CAPTURE(run, meanstddev_qsp, [](const Inputs& in, int n) {
    float m, s;
    qspsMeanStdDev_32f(in.a, n, &m, &s, qspAlgHintAccurate);
    benchmark::DoNotOptimize(s);
}) SIZES;
BENCHMARK_CAPTURE(run, meanstddev_volk, [](const Inputs& in, int n) {
    float m, s;
    volk_32f_stddev_and_mean_32f_x2(&s, &m, in.a, unsigned(n));
    benchmark::DoNotOptimize(s);
}) SIZES;

BENCHMARK_MAIN();

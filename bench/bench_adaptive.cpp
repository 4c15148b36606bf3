// SPDX-License-Identifier: BSD-3-Clause
// The adaptive, zero-phase and sparse filters against plain loops compiled
// here with -O3 -msse4.2:
//   LMS: FIRLMS against the textbook loop (inner product over the input
//        read in place, then the tap update), 16 to 256 taps;
//   zero phase: IIRIIR of a biquad (AR order 2) and of two biquads (AR
//        order 4) against two passes of the plain biquad loop, forward and
//        then backward, with no edge handling at all;
//   sparse: FIRSparse and IIRSparse against a loop over the non-zero taps
//        per output.
// Each case runs as qsp/<case> and loop/<case>; the report ends with loop
// time / qsp time (above 1: the library is faster). Run with
// --benchmark_repetitions=N --benchmark_enable_random_interleaving so that
// the implementations alternate and the fastest repetition counts.
#include <cmath>
#include <random>
#include <string>
#include <vector>

#include "qsps.h"
#include "ratio_reporter.h"

namespace {

std::vector<float> randomFloats(size_t n, unsigned seed, float scale = 1)
{
    std::mt19937 g(seed);
    std::uniform_real_distribution<float> u(-scale, scale);
    std::vector<float> v(n);
    for (auto& x : v) x = u(g);
    return v;
}

std::vector<Qsp8u> stateMemory(int size) { return std::vector<Qsp8u>(size_t(size)); }

// ---------------------------------------------------------------- LMS

constexpr int kLmsLen = 1 << 14;

void lmsQsp(benchmark::State& state, int L)
{
    const auto x = randomFloats(kLmsLen, 1), r = randomFloats(kLmsLen, 2);
    std::vector<float> y(kLmsLen);
    int size = 0;
    qspsFIRLMSGetStateSize_32f(L, 0, &size);
    auto mem = stateMemory(size);
    QspsFIRLMSState_32f* st = nullptr;
    qspsFIRLMSInit_32f(&st, nullptr, L, nullptr, 0, mem.data());
    for (auto _ : state) {
        qspsFIRLMS_32f(x.data(), r.data(), y.data(), kLmsLen, 0.001f, st);
        benchmark::DoNotOptimize(y.data());
    }
    state.SetItemsProcessed(state.iterations() * kLmsLen);
}

__attribute__((noinline)) void plainLms(const float* x, const float* r, float* y, int n, float* t, int L, float mu)
{
    for (int i = 0; i < n; ++i) {
        float acc = 0;
        for (int k = 0; k < L; ++k) acc += t[k] * x[i - k];
        y[i] = acc;
        const float g = mu * (r[i] - acc);
        for (int k = 0; k < L; ++k) t[k] += g * x[i - k];
    }
}

void lmsLoop(benchmark::State& state, int L)
{
    std::vector<float> xp(size_t(kLmsLen + L), 0.0f);
    const auto x = randomFloats(kLmsLen, 1), r = randomFloats(kLmsLen, 2);
    std::copy(x.begin(), x.end(), xp.begin() + L);
    std::vector<float> y(kLmsLen), t(size_t(L), 0.0f);
    for (auto _ : state) {
        plainLms(xp.data() + L, r.data(), y.data(), kLmsLen, t.data(), L, 0.001f);
        benchmark::DoNotOptimize(y.data());
    }
    state.SetItemsProcessed(state.iterations() * kLmsLen);
}

// ---------------------------------------------------------------- zero phase

constexpr int kZpLen = 1 << 16;

// Sections b0 b1 b2 a0 a1 a2 of a low-pass: poles at radius 0.9.
std::vector<double> section(double w)
{
    const double r = 0.9, a1 = -2 * r * std::cos(w), a2 = r * r, g = (1 + a1 + a2) / 4;
    return {g, 2 * g, g, 1.0, a1, a2};
}

// The product of the sections as one AR filter: b0..bN then a0..aN.
std::vector<float> arOf(int sections)
{
    std::vector<double> b{1}, a{1};
    for (int s = 0; s < sections; ++s) {
        const auto c = section(0.3 + 0.4 * s);
        std::vector<double> nb(b.size() + 2, 0), na(a.size() + 2, 0);
        for (size_t i = 0; i < b.size(); ++i)
            for (int j = 0; j < 3; ++j) nb[i + size_t(j)] += b[i] * c[size_t(j)], na[i + size_t(j)] += a[i] * c[size_t(3 + j)];
        b = nb, a = na;
    }
    std::vector<float> t;
    for (double v : b) t.push_back(float(v));
    for (double v : a) t.push_back(float(v));
    return t;
}

void zeroPhaseQsp(benchmark::State& state, int sections)
{
    const int N = 2 * sections;
    const auto taps = arOf(sections);
    const auto x = randomFloats(kZpLen, 3);
    std::vector<float> y(kZpLen);
    int size = 0;
    qspsIIRIIRGetStateSize_32f(N, &size);
    auto mem = stateMemory(size);
    QspsIIRState_32f* st = nullptr;
    qspsIIRIIRInit_32f(&st, taps.data(), N, nullptr, mem.data());
    for (auto _ : state) {
        qspsIIRIIR_32f(x.data(), y.data(), kZpLen, st);
        benchmark::DoNotOptimize(y.data());
    }
    state.SetItemsProcessed(state.iterations() * kZpLen);
}

// One pass of the plain biquad cascade (transposed direct form) forward
// (step 1) or backward (step -1) over n samples.
__attribute__((noinline)) void plainBiQuad(const float* c, int sections, const float* x, float* y, int n, int step)
{
    float st[16] = {};
    int i = step > 0 ? 0 : n - 1;
    for (int m = 0; m < n; ++m, i += step) {
        float v = x[i];
        for (int s = 0; s < sections; ++s) {
            const float* t = c + 5 * s;
            const float out = t[0] * v + st[2 * s];
            st[2 * s] = t[1] * v - t[3] * out + st[2 * s + 1];
            st[2 * s + 1] = t[2] * v - t[4] * out;
            v = out;
        }
        y[i] = v;
    }
}

void zeroPhaseLoop(benchmark::State& state, int sections)
{
    std::vector<float> c;
    for (int s = 0; s < sections; ++s) {
        const auto v = section(0.3 + 0.4 * s);
        for (int j : {0, 1, 2, 4, 5}) c.push_back(float(v[size_t(j)]));
    }
    const auto x = randomFloats(kZpLen, 3);
    std::vector<float> y(kZpLen);
    for (auto _ : state) {
        plainBiQuad(c.data(), sections, x.data(), y.data(), kZpLen, 1);
        plainBiQuad(c.data(), sections, y.data(), y.data(), kZpLen, -1);
        benchmark::DoNotOptimize(y.data());
    }
    state.SetItemsProcessed(state.iterations() * kZpLen);
}

// ---------------------------------------------------------------- sparse

constexpr int kSpLen = 1 << 16;

struct Sparse {
    int nz, order;
    bool feedback;
};

std::vector<int> spread(int nz, int first, int last)
{
    std::vector<int> p;
    for (int j = 0; j < nz; ++j) p.push_back(first + int((long(last - first) * j) / (nz > 1 ? nz - 1 : 1)));
    return p;
}

void sparseQsp(benchmark::State& state, Sparse c)
{
    const auto x = randomFloats(kSpLen, 4);
    std::vector<float> y(kSpLen);
    std::vector<float> taps = randomFloats(size_t(c.nz), 5, 0.3f);
    std::vector<int> pos = spread(c.nz, 0, c.order);
    int size = 0;
    std::vector<Qsp8u> mem;
    QspsFIRSparseState_32f* fs = nullptr;
    QspsIIRSparseState_32f* is = nullptr;
    if (c.feedback) {
        const auto a = randomFloats(size_t(c.nz), 6, 0.9f / float(c.nz));
        const auto q = spread(c.nz, 1, c.order);
        taps.insert(taps.end(), a.begin(), a.end());
        pos.insert(pos.end(), q.begin(), q.end());
        qspsIIRSparseGetStateSize_32f(c.nz, c.nz, c.order, c.order, &size);
        mem = stateMemory(size);
        qspsIIRSparseInit_32f(&is, taps.data(), pos.data(), c.nz, c.nz, nullptr, mem.data());
    } else {
        qspsFIRSparseGetStateSize_32f(c.nz, c.order, &size);
        mem = stateMemory(size);
        qspsFIRSparseInit_32f(&fs, taps.data(), pos.data(), c.nz, nullptr, mem.data());
    }
    for (auto _ : state) {
        if (c.feedback) qspsIIRSparse_32f(x.data(), y.data(), kSpLen, is);
        else qspsFIRSparse_32f(x.data(), y.data(), kSpLen, fs);
        benchmark::DoNotOptimize(y.data());
    }
    state.SetItemsProcessed(state.iterations() * kSpLen);
}

// y[n] = sum b x[n - p] - sum a y[n - q], x and y with their histories
// in front.
__attribute__((noinline)) void plainSparse(const float* b, const int* p, const float* a, const int* q, int nz,
                                           int nzb, const float* x, float* y, int n)
{
    for (int i = 0; i < n; ++i) {
        float acc = 0;
        for (int j = 0; j < nz; ++j) acc += b[j] * x[i - p[j]];
        for (int k = 0; k < nzb; ++k) acc -= a[k] * y[i - q[k]];
        y[i] = acc;
    }
}

void sparseLoop(benchmark::State& state, Sparse c)
{
    const auto x = randomFloats(kSpLen, 4);
    std::vector<float> xp(size_t(kSpLen + c.order), 0.0f), yp(size_t(kSpLen + c.order), 0.0f);
    std::copy(x.begin(), x.end(), xp.begin() + c.order);
    const auto b = randomFloats(size_t(c.nz), 5, 0.3f), a = randomFloats(size_t(c.nz), 6, 0.9f / float(c.nz));
    const auto p = spread(c.nz, 0, c.order), q = spread(c.nz, 1, c.order);
    for (auto _ : state) {
        plainSparse(b.data(), p.data(), a.data(), q.data(), c.nz, c.feedback ? c.nz : 0, xp.data() + c.order,
                    yp.data() + c.order, kSpLen);
        benchmark::DoNotOptimize(yp.data());
    }
    state.SetItemsProcessed(state.iterations() * kSpLen);
}

}  // namespace

int main(int argc, char** argv)
{
    for (int L : {16, 64, 256}) {
        const std::string name = "lms_32f/taps" + std::to_string(L);
        benchmark::RegisterBenchmark(("qsp/" + name).c_str(), lmsQsp, L);
        benchmark::RegisterBenchmark(("loop/" + name).c_str(), lmsLoop, L);
    }
    for (int s : {1, 2}) {
        const std::string name = "zerophase_32f/biquads" + std::to_string(s);
        benchmark::RegisterBenchmark(("qsp/" + name).c_str(), zeroPhaseQsp, s);
        benchmark::RegisterBenchmark(("loop/" + name).c_str(), zeroPhaseLoop, s);
    }
    for (Sparse c : {Sparse{4, 1000, false}, Sparse{16, 4000, false}, Sparse{4, 1000, true}, Sparse{8, 300, true}}) {
        const std::string name = std::string(c.feedback ? "iirsparse_32f" : "firsparse_32f") + "/nz" +
                                 std::to_string(c.nz) + "_order" + std::to_string(c.order);
        benchmark::RegisterBenchmark(("qsp/" + name).c_str(), sparseQsp, c);
        benchmark::RegisterBenchmark(("loop/" + name).c_str(), sparseLoop, c);
    }
    return qspbench::runWithRatios(argc, argv);
}

// SPDX-License-Identifier: BSD-3-Clause
// IIR filters over 10^6 single-precision samples: biquad cascades of 1 to 8
// sections against a plain scalar cascade (transposed direct form, compiled
// here with -O3 -msse4.2) and against liquid-dsp's iirfilt_rrrf built from
// the same second-order sections; AR filters of a few orders against a
// plain scalar loop. Each case runs as qsp/<case> and <peer>/<case>; the
// report ends with peer time / qsp time (above 1: the library is faster).
// Run with --benchmark_repetitions=N --benchmark_enable_random_interleaving
// so that the implementations alternate and the fastest repetition counts.
#include <liquid/liquid.h>

#include <cmath>
#include <random>
#include <string>
#include <vector>

#include "qsps.h"
#include "ratio_reporter.h"

namespace {

constexpr int kLen = 1000000;

const std::vector<float>& input()
{
    static const std::vector<float> x = [] {
        std::mt19937 rng(7);
        std::uniform_real_distribution<float> d(-1.0f, 1.0f);
        std::vector<float> v(kLen);
        for (auto& s : v) s = d(rng);
        return v;
    }();
    return x;
}

// Sections b0 b1 b2 a0 a1 a2 of a low-pass cascade: pole pairs at radius
// 0.9 and angles spread below a quarter turn, zeros at -1.
std::vector<float> sections(int numBq)
{
    std::vector<float> t;
    for (int s = 0; s < numBq; ++s) {
        const double r = 0.9, w = 0.2 + 1.2 * s / 8.0;
        const double a1 = -2 * r * std::cos(w), a2 = r * r, g = (1 + a1 + a2) / 4;
        for (double v : {g, 2 * g, g, 1.0, a1, a2}) t.push_back(float(v));
    }
    return t;
}

// The plain scalar cascade: y = b0 x + s1, s1 = b1 x - a1 y + s2,
// s2 = b2 x - a2 y, section after section for each sample.
__attribute__((noinline)) void plainBiQuad(const float* c, float* state, int numBq, const float* x, float* y,
                                           int n)
{
    for (int i = 0; i < n; ++i) {
        float v = x[i];
        for (int s = 0; s < numBq; ++s) {
            const float* t = c + 5 * s;
            float* st = state + 2 * s;
            const float out = t[0] * v + st[0];
            st[0] = t[1] * v - t[3] * out + st[1];
            st[1] = t[2] * v - t[4] * out;
            v = out;
        }
        y[i] = v;
    }
}

// The plain AR loop of order N in the same form.
__attribute__((noinline)) void plainAR(const float* b, const float* a, float* d, int N, const float* x, float* y,
                                       int n)
{
    for (int i = 0; i < n; ++i) {
        const float out = b[0] * x[i] + d[0];
        for (int k = 0; k < N; ++k) d[k] = d[k + 1] + b[k + 1] * x[i] - a[k + 1] * out;
        y[i] = out;
    }
}

struct QspState {
    std::vector<Qsp8u> mem;
    QspsIIRState_32f* st = nullptr;
};

void setRate(benchmark::State& state)
{
    state.SetItemsProcessed(int64_t(state.iterations()) * kLen);
}

void registerBiQuad(int numBq)
{
    const std::string name = "BiQuad_32f/" + std::to_string(numBq);
    benchmark::RegisterBenchmark(("qsp/" + name).c_str(), [numBq](benchmark::State& state) {
        const std::vector<float> t = sections(numBq);
        int size = 0;
        qspsIIRGetStateSize_BiQuad_32f(numBq, &size);
        std::vector<Qsp8u> mem(size);
        QspsIIRState_32f* st = nullptr;
        qspsIIRInit_BiQuad_32f(&st, t.data(), numBq, nullptr, mem.data());
        std::vector<float> y(kLen);
        for (auto _ : state) {
            qspsIIR_32f(input().data(), y.data(), kLen, st);
            benchmark::ClobberMemory();
        }
        setRate(state);
    });
    benchmark::RegisterBenchmark(("scalar/" + name).c_str(), [numBq](benchmark::State& state) {
        const std::vector<float> t = sections(numBq);
        std::vector<float> c, s(2 * numBq, 0.0f), y(kLen);
        for (int k = 0; k < numBq; ++k)
            for (int j : {0, 1, 2, 4, 5}) c.push_back(t[6 * k + j]);
        for (auto _ : state) {
            plainBiQuad(c.data(), s.data(), numBq, input().data(), y.data(), kLen);
            benchmark::ClobberMemory();
        }
        setRate(state);
    });
    benchmark::RegisterBenchmark(("liquid/" + name).c_str(), [numBq](benchmark::State& state) {
        const std::vector<float> t = sections(numBq);
        std::vector<float> b, a;
        for (int k = 0; k < numBq; ++k)
            for (int j = 0; j < 3; ++j) b.push_back(t[6 * k + j]), a.push_back(t[6 * k + 3 + j]);
        iirfilt_rrrf q = iirfilt_rrrf_create_sos(b.data(), a.data(), unsigned(numBq));
        std::vector<float> x = input(), y(kLen);
        for (auto _ : state) {
            iirfilt_rrrf_execute_block(q, x.data(), kLen, y.data());
            benchmark::ClobberMemory();
        }
        iirfilt_rrrf_destroy(q);
        setRate(state);
    });
}

// AR filters with b and a random, sum of |a_k| 0.9 (stable).
void registerAR(int order)
{
    const std::string name = "AR_32f/" + std::to_string(order);
    auto taps = [order] {
        std::mt19937 rng(order);
        std::uniform_real_distribution<float> d(-1.0f, 1.0f);
        std::vector<float> t(2 * order + 2);
        float sum = 0;
        for (int k = 0; k <= order; ++k) t[k] = d(rng);
        for (int k = 1; k <= order; ++k) sum += std::fabs(t[order + 1 + k] = d(rng));
        for (int k = 1; k <= order; ++k) t[order + 1 + k] *= 0.9f / sum;
        t[order + 1] = 1.0f;
        return t;
    };
    benchmark::RegisterBenchmark(("qsp/" + name).c_str(), [order, taps](benchmark::State& state) {
        const std::vector<float> t = taps();
        int size = 0;
        qspsIIRGetStateSize_32f(order, &size);
        std::vector<Qsp8u> mem(size);
        QspsIIRState_32f* st = nullptr;
        qspsIIRInit_32f(&st, t.data(), order, nullptr, mem.data());
        std::vector<float> y(kLen);
        for (auto _ : state) {
            qspsIIR_32f(input().data(), y.data(), kLen, st);
            benchmark::ClobberMemory();
        }
        setRate(state);
    });
    benchmark::RegisterBenchmark(("scalar/" + name).c_str(), [order, taps](benchmark::State& state) {
        const std::vector<float> t = taps();
        std::vector<float> d(order + 1, 0.0f), y(kLen);
        for (auto _ : state) {
            plainAR(t.data(), t.data() + order + 1, d.data(), order, input().data(), y.data(), kLen);
            benchmark::ClobberMemory();
        }
        setRate(state);
    });
}

const int registered = [] {
    for (int k = 1; k <= 8; ++k) registerBiQuad(k);
    for (int n : {1, 2, 4, 8, 16, 64}) registerAR(n);
    return 0;
}();

}  // namespace

QSP_BENCH_MAIN()

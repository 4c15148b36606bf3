// SPDX-License-Identifier: BSD-3-Clause
// FIRMR against liquid-dsp's polyphase interpolator and decimator
// (firinterp, firdecim: real and complex data, real taps) and against a
// register-blocked polyphase loop written here: interpolation keeps eight
// outputs of one phase in two registers and broadcasts each tap,
// decimation keeps four outputs in four registers, runs along the taps and
// adds the lanes at the end. Each case runs the same signal through the
// same taps; cases are registered side by side so that they alternate.
#include <benchmark/benchmark.h>
#include <liquid/liquid.h>
#include <nmmintrin.h>

#include <complex>
#include <random>
#include <string>
#include <vector>

#include "qsps.h"
#include "ratio_reporter.h"

namespace {

constexpr int kInputs = 1 << 14;  // input samples per call

std::vector<float> randomFloats(size_t n, unsigned seed)
{
    std::mt19937 g(seed);
    std::uniform_real_distribution<float> u(-1, 1);
    std::vector<float> v(n);
    for (auto& x : v) x = u(g);
    return v;
}

struct Case {
    int taps, up, down;
    bool complex;
};

// ---------------------------------------------------------------- qsp

void qsp(benchmark::State& state, Case c)
{
    const int iters = kInputs / c.down;
    const std::vector<float> h = randomFloats(c.taps, 1);
    int specSize = 0, bufSize = 0;
    if (c.complex) qspsFIRMRGetSize32f_32fc(c.taps, c.up, c.down, &specSize, &bufSize);
    else qspsFIRMRGetSize(c.taps, c.up, c.down, qsp32f, &specSize, &bufSize);
    std::vector<Qsp8u> spec(specSize), buf(bufSize);
    const int parts = c.complex ? 2 : 1;
    const std::vector<float> x = randomFloats(size_t(kInputs) * parts, 2);
    std::vector<float> y(size_t(iters) * c.up * parts), dly(size_t(c.taps) * parts);
    if (c.complex) {
        auto* r = reinterpret_cast<QspsFIRMRSpec32f_32fc*>(spec.data());
        qspsFIRMRInit32f_32fc(h.data(), c.taps, c.up, 0, c.down, 0, r);
        for (auto _ : state) {
            qspsFIRMR32f_32fc(reinterpret_cast<const Qsp32fc*>(x.data()), reinterpret_cast<Qsp32fc*>(y.data()), iters,
                              r, reinterpret_cast<Qsp32fc*>(dly.data()), reinterpret_cast<Qsp32fc*>(dly.data()),
                              buf.data());
            benchmark::DoNotOptimize(y.data());
        }
    } else {
        auto* r = reinterpret_cast<QspsFIRMRSpec_32f*>(spec.data());
        qspsFIRMRInit_32f(h.data(), c.taps, c.up, 0, c.down, 0, r);
        for (auto _ : state) {
            qspsFIRMR_32f(x.data(), y.data(), iters, r, dly.data(), dly.data(), buf.data());
            benchmark::DoNotOptimize(y.data());
        }
    }
    state.SetItemsProcessed(state.iterations() * kInputs);
}

// ---------------------------------------------------------------- liquid

void liquid(benchmark::State& state, Case c)
{
    std::vector<float> h = randomFloats(c.taps, 1);
    const int parts = c.complex ? 2 : 1;
    std::vector<float> x = randomFloats(size_t(kInputs) * parts, 2);
    const int outs = kInputs / c.down * c.up;
    std::vector<float> y(size_t(outs) * parts);
    if (c.up > 1 && !c.complex) {
        firinterp_rrrf q = firinterp_rrrf_create(c.up, h.data(), c.taps);
        for (auto _ : state) {
            firinterp_rrrf_execute_block(q, x.data(), kInputs, y.data());
            benchmark::DoNotOptimize(y.data());
        }
        firinterp_rrrf_destroy(q);
    } else if (c.up > 1) {
        firinterp_crcf q = firinterp_crcf_create(c.up, h.data(), c.taps);
        for (auto _ : state) {
            firinterp_crcf_execute_block(q, reinterpret_cast<liquid_float_complex*>(x.data()), kInputs,
                                         reinterpret_cast<liquid_float_complex*>(y.data()));
            benchmark::DoNotOptimize(y.data());
        }
        firinterp_crcf_destroy(q);
    } else if (!c.complex) {
        firdecim_rrrf q = firdecim_rrrf_create(c.down, h.data(), c.taps);
        for (auto _ : state) {
            firdecim_rrrf_execute_block(q, x.data(), kInputs / c.down, y.data());
            benchmark::DoNotOptimize(y.data());
        }
        firdecim_rrrf_destroy(q);
    } else {
        firdecim_crcf q = firdecim_crcf_create(c.down, h.data(), c.taps);
        for (auto _ : state) {
            firdecim_crcf_execute_block(q, reinterpret_cast<liquid_float_complex*>(x.data()), kInputs / c.down,
                                        reinterpret_cast<liquid_float_complex*>(y.data()));
            benchmark::DoNotOptimize(y.data());
        }
        firdecim_crcf_destroy(q);
    }
    state.SetItemsProcessed(state.iterations() * kInputs);
}

// ---------------------------------------------------------------- the loop

// Interpolation by U of real data: phase r has the taps h[r + iU], i < L.
// For eight consecutive inputs the phase's eight outputs stay in two
// registers while the taps are broadcast one by one.
void interpLoop(const float* x, float* y, int inputs, const std::vector<float>& h, int up)
{
    const int len = int(h.size()) / up;
    for (int q = 0; q + 8 <= inputs; q += 8)
        for (int r = 0; r < up; ++r) {
            __m128 a0 = _mm_setzero_ps(), a1 = _mm_setzero_ps();
            for (int i = 0; i < len; ++i) {
                const __m128 t = _mm_set1_ps(h[r + i * up]);
                a0 = _mm_add_ps(a0, _mm_mul_ps(t, _mm_loadu_ps(x + q - i)));
                a1 = _mm_add_ps(a1, _mm_mul_ps(t, _mm_loadu_ps(x + q + 4 - i)));
            }
            alignas(16) float o[8];
            _mm_store_ps(o, a0);
            _mm_store_ps(o + 4, a1);
            for (int k = 0; k < 8; ++k) y[(q + k) * up + r] = o[k];
        }
}

// Decimation by D of real data with reversed taps: four outputs in four
// registers along the taps, four taps per step, lanes summed at the end.
void decimLoop(const float* x, float* y, int outputs, const std::vector<float>& rev, int down)
{
    const int n = int(rev.size());
    for (int q = 0; q + 4 <= outputs; q += 4) {
        const float* s = x + q * down - n + 1;
        __m128 a0 = _mm_setzero_ps(), a1 = a0, a2 = a0, a3 = a0;
        for (int j = 0; j < n; j += 4) {
            const __m128 t = _mm_loadu_ps(rev.data() + j);
            a0 = _mm_add_ps(a0, _mm_mul_ps(t, _mm_loadu_ps(s + j)));
            a1 = _mm_add_ps(a1, _mm_mul_ps(t, _mm_loadu_ps(s + down + j)));
            a2 = _mm_add_ps(a2, _mm_mul_ps(t, _mm_loadu_ps(s + 2 * down + j)));
            a3 = _mm_add_ps(a3, _mm_mul_ps(t, _mm_loadu_ps(s + 3 * down + j)));
        }
        _mm_storeu_ps(y + q, _mm_hadd_ps(_mm_hadd_ps(a0, a1), _mm_hadd_ps(a2, a3)));
    }
}

void loop(benchmark::State& state, Case c)
{
    const std::vector<float> h = randomFloats(c.taps, 1);
    const std::vector<float> rev(h.rbegin(), h.rend());
    const int pad = c.taps + 8;
    std::vector<float> xp(size_t(kInputs) + pad, 0.0f);
    const std::vector<float> x = randomFloats(kInputs, 2);
    std::copy(x.begin(), x.end(), xp.begin() + pad);
    std::vector<float> y(size_t(kInputs) / c.down * c.up);
    for (auto _ : state) {
        if (c.up > 1) interpLoop(xp.data() + pad, y.data(), kInputs, h, c.up);
        else decimLoop(xp.data() + pad, y.data(), kInputs / c.down, rev, c.down);
        benchmark::DoNotOptimize(y.data());
    }
    state.SetItemsProcessed(state.iterations() * kInputs);
}

}  // namespace

int main(int argc, char** argv)
{
    const Case cases[] = {
        {32, 2, 1, false}, {64, 4, 1, false}, {128, 4, 1, false}, {48, 3, 1, false},
        {32, 1, 2, false}, {64, 1, 4, false}, {128, 1, 4, false}, {256, 1, 8, false},
        {64, 4, 1, true},  {64, 1, 4, true},
    };
    for (const Case& c : cases) {
        const std::string name = std::string(c.complex ? "32f_32fc" : "32f") + (c.up > 1 ? "/interp" : "/decim") +
                                 std::to_string(c.up > 1 ? c.up : c.down) + "_taps" + std::to_string(c.taps);
        benchmark::RegisterBenchmark(("qsp/" + name).c_str(), qsp, c);
        benchmark::RegisterBenchmark(("liquid/" + name).c_str(), liquid, c);
        if (!c.complex) benchmark::RegisterBenchmark(("loop/" + name).c_str(), loop, c);
    }
    return qspbench::runWithRatios(argc, argv);
}

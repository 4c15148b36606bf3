// SPDX-License-Identifier: BSD-3-Clause
// What the FIR and convolution benchmarks share: the plain register-blocked
// 128-bit FIR loop they compare the library's direct form with, the system
// FFTW behind the interface of the SSE2-only one, timing by the thread's
// processor time, and the interleaving of cases in rounds.
#pragma once
#include <benchmark/benchmark.h>
#include <fftw3.h>
#include <nmmintrin.h>
#include <time.h>

#include <algorithm>
#include <cstdlib>
#include <cstring>

#include "fftw_sse2.h"

namespace qspbench {

// The reference loop: eight registers of four outputs each, every tap
// broadcast once per row of 32 outputs, the input read unaligned.
inline void loopFir(const float* h, int n, const float* x, float* y, int count)
{
    int i = 0;
    for (; i + 32 <= count; i += 32) {
        __m128 a0 = _mm_setzero_ps(), a1 = a0, a2 = a0, a3 = a0, a4 = a0, a5 = a0, a6 = a0, a7 = a0;
        const float* p = x + i;
        for (int k = 0; k < n; ++k, --p) {
            const __m128 t = _mm_set1_ps(h[k]);
            a0 = _mm_add_ps(a0, _mm_mul_ps(t, _mm_loadu_ps(p)));
            a1 = _mm_add_ps(a1, _mm_mul_ps(t, _mm_loadu_ps(p + 4)));
            a2 = _mm_add_ps(a2, _mm_mul_ps(t, _mm_loadu_ps(p + 8)));
            a3 = _mm_add_ps(a3, _mm_mul_ps(t, _mm_loadu_ps(p + 12)));
            a4 = _mm_add_ps(a4, _mm_mul_ps(t, _mm_loadu_ps(p + 16)));
            a5 = _mm_add_ps(a5, _mm_mul_ps(t, _mm_loadu_ps(p + 20)));
            a6 = _mm_add_ps(a6, _mm_mul_ps(t, _mm_loadu_ps(p + 24)));
            a7 = _mm_add_ps(a7, _mm_mul_ps(t, _mm_loadu_ps(p + 28)));
        }
        _mm_storeu_ps(y + i, a0), _mm_storeu_ps(y + i + 4, a1), _mm_storeu_ps(y + i + 8, a2);
        _mm_storeu_ps(y + i + 12, a3), _mm_storeu_ps(y + i + 16, a4), _mm_storeu_ps(y + i + 20, a5);
        _mm_storeu_ps(y + i + 24, a6), _mm_storeu_ps(y + i + 28, a7);
    }
    for (; i < count; ++i) {
        float a = 0;
        for (int k = 0; k < n; ++k) a += h[k] * x[i - k];
        y[i] = a;
    }
}

// The system FFTW through the same interface as the SSE2-only build.
inline FftwSse2f systemFftw()
{
    FftwSse2f a;
    a.plan_dft_r2c_1d = fftwf_plan_dft_r2c_1d;
    a.plan_dft_c2r_1d = fftwf_plan_dft_c2r_1d;
    a.execute_dft_r2c = fftwf_execute_dft_r2c;
    a.execute_dft_c2r = fftwf_execute_dft_c2r;
    a.destroy_plan = fftwf_destroy_plan;
    a.malloc = fftwf_malloc;
    a.free = fftwf_free;
    a.execute = fftwf_execute;
    return a;
}

// The processor time of this thread, in seconds. The shared machine runs
// far more threads than it has cores: wall time measures the scheduler,
// the thread's own time measures the code. Cases using it are registered
// with UseManualTime().
inline double threadSeconds()
{
    timespec ts;
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &ts);
    return double(ts.tv_sec) + double(ts.tv_nsec) * 1e-9;
}

template <class Body>
void timeThread(benchmark::State& state, Body&& body)
{
    for (auto _ : state) {
        const double t0 = threadSeconds();
        body();
        benchmark::ClobberMemory();
        state.SetIterationTime(threadSeconds() - t0);
    }
}

// Every case is registered `rounds` times, the rounds one after the other,
// so that ours and the peers alternate through the run; the ratio table
// keeps the fastest run of each (--rounds=K, default 3).
inline int takeRounds(int& argc, char** argv)
{
    int rounds = 3;
    for (int i = 1; i < argc; ++i)
        if (std::strncmp(argv[i], "--rounds=", 9) == 0) {
            rounds = std::max(1, std::atoi(argv[i] + 9));
            for (int j = i; j + 1 < argc; ++j) argv[j] = argv[j + 1];
            --argc;
            break;
        }
    return rounds;
}

}  // namespace qspbench

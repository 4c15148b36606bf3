// SPDX-License-Identifier: BSD-3-Clause
// Transforms of any length against FFTW 3: the complex DFT (single and
// double precision, forward, out of place) at lengths with a large prime
// factor and at lengths 2^a 3^b 5^c 7^d, against FFTW's plan of the same
// length (FFTW_MEASURE, one thread) from the system library ("fftw") and
// from the build with 128-bit SSE2 codelets only ("fftw-sse2"); the record
// set-up (GetSize + Init) against FFTW_ESTIMATE planning. Each case runs
// right after its twins, so that all see the same machine state; the ratio
// table at the end gives peer time / our time. Also the orthonormal DCT-II
// against FFTW's REDFT10 of the same length (an unnormalised DCT-II), and
// one Goertzel bin against the plain second-order recurrence ("loop").
#include <cmath>
#include <fftw3.h>

#include <cstring>
#include <string>
#include <vector>

#include "fftw_sse2.h"
#include "qsps.h"
#include "ratio_reporter.h"

namespace {

// The length of the case being run (set by run() around each benchmark).
thread_local int gLength = 0;
int lengthOf(benchmark::State&) { return gLength; }
void run(benchmark::State& s, int n, void (*f)(benchmark::State&))
{
    gLength = n;
    f(s);
}

struct Block {
    explicit Block(long long bytes) : p(bytes ? qspsMalloc_8u_L(bytes) : nullptr)
    {
        if (p) std::memset(p, 0, size_t(bytes));
    }
    ~Block() { qspsFree(p); }
    Block(const Block&) = delete;
    Block& operator=(const Block&) = delete;
    Qsp8u* p;
};

// ------------------------------------------------------------ the library

template <class T>
struct Dft;

template <>
struct Dft<float> {
    using Value = Qsp32fc;
    using Spec = QspsDFTSpec_C_32fc;
    static constexpr auto getSize = qspsDFTGetSize_C_32fc;
    static constexpr auto init = qspsDFTInit_C_32fc;
    static constexpr auto forward = qspsDFTFwd_CToC_32fc;
};

template <>
struct Dft<double> {
    using Value = Qsp64fc;
    using Spec = QspsDFTSpec_C_64fc;
    static constexpr auto getSize = qspsDFTGetSize_C_64fc;
    static constexpr auto init = qspsDFTInit_C_64fc;
    static constexpr auto forward = qspsDFTFwd_CToC_64fc;
};

template <class T>
void qspDft(benchmark::State& state)
{
    using A = Dft<T>;
    const int n = lengthOf(state);
    int s, i, w;
    A::getSize(n, 8, 0, &s, &i, &w);
    Block spec(s), init(i), work(w);
    auto* rec = reinterpret_cast<typename A::Spec*>(spec.p);
    A::init(n, 8, 0, rec, init.p);
    std::vector<typename A::Value> src(n), dst(n);
    for (int k = 0; k < n; ++k) src[k] = {T(k % 7) - 3, T(k % 5) - 2};
    for (auto _ : state) {
        A::forward(src.data(), dst.data(), rec, work.p);
        benchmark::ClobberMemory();
    }
}

void qspSetup(benchmark::State& state)
{
    const int n = lengthOf(state);
    int s, i, w;
    qspsDFTGetSize_C_32fc(n, 8, 0, &s, &i, &w);
    Block spec(s), init(i);
    for (auto _ : state) {
        qspsDFTGetSize_C_32fc(n, 8, 0, &s, &i, &w);
        qspsDFTInit_C_32fc(n, 8, 0, reinterpret_cast<QspsDFTSpec_C_32fc*>(spec.p), init.p);
        benchmark::ClobberMemory();
    }
}

void qspDct(benchmark::State& state)
{
    const int n = lengthOf(state);
    int s, i, w;
    qspsDCTFwdGetSize_32f(n, qspAlgHintNone, &s, &i, &w);
    Block spec(s), init(i), work(w);
    QspsDCTFwdSpec_32f* rec = nullptr;
    qspsDCTFwdInit_32f(&rec, n, qspAlgHintNone, spec.p, init.p);
    std::vector<float> src(n), dst(n);
    for (int k = 0; k < n; ++k) src[k] = float(k % 7) - 3;
    for (auto _ : state) {
        qspsDCTFwd_32f(src.data(), dst.data(), rec, work.p);
        benchmark::ClobberMemory();
    }
}

template <class T>
void qspGoertz(benchmark::State& state)
{
    const int n = lengthOf(state);
    std::vector<T> src(n);
    for (int k = 0; k < n; ++k) src[k] = T(k % 7) - 3;
    if constexpr (sizeof(T) == 4) {
        Qsp32fc v;
        for (auto _ : state) {
            qspsGoertz_32f(src.data(), n, &v, 0.1234f);
            benchmark::DoNotOptimize(v);
        }
    } else {
        Qsp64fc v;
        for (auto _ : state) {
            qspsGoertz_64f(src.data(), n, &v, 0.1234);
            benchmark::DoNotOptimize(v);
        }
    }
}

// The textbook recurrence s[n] = x[n] + 2 cos(w) s[n-1] - s[n-2] in the data
// type, the bin formed from the last two states.
template <class T>
void loopGoertz(benchmark::State& state)
{
    const int n = lengthOf(state);
    std::vector<T> src(n);
    for (int k = 0; k < n; ++k) src[k] = T(k % 7) - 3;
    const T w = T(2 * M_PI * 0.1234);
    const T c = std::cos(w), sn = std::sin(w), c2 = 2 * c;
    for (auto _ : state) {
        const T* x = src.data();
        benchmark::DoNotOptimize(x);
        T s1 = 0, s2 = 0;
        for (int k = 0; k < n; ++k) {
            const T s0 = x[k] + c2 * s1 - s2;
            s2 = s1;
            s1 = s0;
        }
        T re = s1 * c - s2, im = s1 * sn;
        benchmark::DoNotOptimize(re);
        benchmark::DoNotOptimize(im);
    }
}

// ------------------------------------------------------------ FFTW

// One FFTW library and precision: the system one, or the SSE2-only build
// through its loaded entry points.
template <class T, bool Sse2>
struct Peer;

template <bool Sse2>
struct Peer<float, Sse2> {
    using C = fftwf_complex;
    using Plan = fftwf_plan;
    static const qspbench::FftwSse2f& api() { return qspbench::fftwSse2f(); }
    static bool available() { return !Sse2 || api().available(); }
    static C* alloc(int n) { return static_cast<C*>(Sse2 ? api().malloc(sizeof(C) * n) : fftwf_malloc(sizeof(C) * n)); }
    static void release(void* p) { Sse2 ? api().free(p) : fftwf_free(p); }
    static Plan plan(int n, C* s, C* d, unsigned flags)
    {
        return Sse2 ? api().plan_dft_1d(n, s, d, FFTW_FORWARD, flags) : fftwf_plan_dft_1d(n, s, d, FFTW_FORWARD, flags);
    }
    static void execute(Plan p) { Sse2 ? api().execute(p) : fftwf_execute(p); }
    static void destroy(Plan p) { Sse2 ? api().destroy_plan(p) : fftwf_destroy_plan(p); }
    static void forget() { Sse2 ? api().forget_wisdom() : fftwf_forget_wisdom(); }
};

template <bool Sse2>
struct Peer<double, Sse2> {
    using C = fftw_complex;
    using Plan = fftw_plan;
    static const qspbench::FftwSse2d& api() { return qspbench::fftwSse2d(); }
    static bool available() { return !Sse2 || api().available(); }
    static C* alloc(int n) { return static_cast<C*>(Sse2 ? api().malloc(sizeof(C) * n) : fftw_malloc(sizeof(C) * n)); }
    static void release(void* p) { Sse2 ? api().free(p) : fftw_free(p); }
    static Plan plan(int n, C* s, C* d, unsigned flags)
    {
        return Sse2 ? api().plan_dft_1d(n, s, d, FFTW_FORWARD, flags) : fftw_plan_dft_1d(n, s, d, FFTW_FORWARD, flags);
    }
    static void execute(Plan p) { Sse2 ? api().execute(p) : fftw_execute(p); }
    static void destroy(Plan p) { Sse2 ? api().destroy_plan(p) : fftw_destroy_plan(p); }
    static void forget() { Sse2 ? api().forget_wisdom() : fftw_forget_wisdom(); }
};

template <class T, bool Sse2>
void peerDft(benchmark::State& state)
{
    using P = Peer<T, Sse2>;
    if (!P::available()) {
        state.SkipWithError("SSE2-only FFTW not installed");
        return;
    }
    const int n = lengthOf(state);
    typename P::C* src = P::alloc(n);
    typename P::C* dst = P::alloc(n);
    typename P::Plan p = P::plan(n, src, dst, FFTW_MEASURE);
    for (int k = 0; k < n; ++k) src[k][0] = T(k % 7) - 3, src[k][1] = T(k % 5) - 2;
    for (auto _ : state) {
        P::execute(p);
        benchmark::ClobberMemory();
    }
    P::destroy(p);
    P::release(src), P::release(dst);
}

template <bool Sse2>
void peerSetup(benchmark::State& state)
{
    using P = Peer<float, Sse2>;
    if (!P::available()) {
        state.SkipWithError("SSE2-only FFTW not installed");
        return;
    }
    const int n = lengthOf(state);
    typename P::C* src = P::alloc(n);
    typename P::C* dst = P::alloc(n);
    for (auto _ : state) {
        P::forget();
        typename P::Plan p = P::plan(n, src, dst, FFTW_ESTIMATE);
        benchmark::DoNotOptimize(p);
        P::destroy(p);
    }
    P::release(src), P::release(dst);
}

template <bool Sse2>
void peerDct(benchmark::State& state)
{
    using P = Peer<float, Sse2>;
    if (!P::available()) {
        state.SkipWithError("SSE2-only FFTW not installed");
        return;
    }
    const int n = lengthOf(state);
    float* src = reinterpret_cast<float*>(P::alloc(n));
    float* dst = reinterpret_cast<float*>(P::alloc(n));
    fftwf_plan p = Sse2 ? P::api().plan_r2r_1d(n, src, dst, FFTW_REDFT10, FFTW_MEASURE)
                        : fftwf_plan_r2r_1d(n, src, dst, FFTW_REDFT10, FFTW_MEASURE);
    for (int k = 0; k < n; ++k) src[k] = float(k % 7) - 3;
    for (auto _ : state) {
        P::execute(p);
        benchmark::ClobberMemory();
    }
    P::destroy(p);
    P::release(src), P::release(dst);
}

// Lengths with a prime factor above 50, and lengths 2^a 3^b 5^c 7^d up to
// 10^5 (none a power of two: those are the FFT's).
const int kLargePrime[] = {53, 101, 106, 212, 596, 1031, 2597, 4099, 10007, 20011, 65537};
const int kSmooth[] = {6,    12,   15,   24,   48,   60,   96,   100,   120,   240,   360,    480,
                       1000, 1536, 2000, 2187, 3000, 3375, 5000, 6000,  10000, 16807, 30000, 50000,
                       84375, 100000};
// DCT-II lengths: powers of two and others from 16 to 4096.
const int kDct[] = {16, 32, 36, 60, 64, 100, 128, 256, 360, 500, 512, 1000, 1024, 2048, 3000, 4096};
const int kGoertz[] = {64, 256, 1024, 4096, 65536};

}  // namespace

int main(int argc, char** argv)
{
    std::printf("peers: %s; fftw-sse2: %s\n", fftwf_version,
                qspbench::fftwSse2f().available() ? qspbench::fftwSse2f().version : "not installed");
    auto add = [](const std::string& name, int n, void (*qsp)(benchmark::State&), void (*peer)(benchmark::State&),
                  void (*sse2)(benchmark::State&)) {
        const std::string c = name + "/" + std::to_string(n);
        // the length travels as the argument; the name carries it once
        benchmark::RegisterBenchmark(("qsp/" + c).c_str(), [=](benchmark::State& s) { run(s, n, qsp); });
        benchmark::RegisterBenchmark(("fftw/" + c).c_str(), [=](benchmark::State& s) { run(s, n, peer); });
        benchmark::RegisterBenchmark(("fftw-sse2/" + c).c_str(), [=](benchmark::State& s) { run(s, n, sse2); });
    };
    for (int n : kLargePrime) add("C_32fc", n, qspDft<float>, peerDft<float, false>, peerDft<float, true>);
    for (int n : kSmooth) add("C_32fc", n, qspDft<float>, peerDft<float, false>, peerDft<float, true>);
    for (int n : kLargePrime) add("C_64fc", n, qspDft<double>, peerDft<double, false>, peerDft<double, true>);
    for (int n : kSmooth) add("C_64fc", n, qspDft<double>, peerDft<double, false>, peerDft<double, true>);
    for (int n : kLargePrime) add("setup_C_32fc", n, qspSetup, peerSetup<false>, peerSetup<true>);
    for (int n : kSmooth) add("setup_C_32fc", n, qspSetup, peerSetup<false>, peerSetup<true>);
    for (int n : kDct) add("DCT2_32f", n, qspDct, peerDct<false>, peerDct<true>);
    for (int n : kGoertz) {
        const std::string c = "Goertz_32f/" + std::to_string(n), d = "Goertz_64f/" + std::to_string(n);
        benchmark::RegisterBenchmark(("qsp/" + c).c_str(), [=](benchmark::State& s) { run(s, n, qspGoertz<float>); });
        benchmark::RegisterBenchmark(("loop/" + c).c_str(), [=](benchmark::State& s) { run(s, n, loopGoertz<float>); });
        benchmark::RegisterBenchmark(("qsp/" + d).c_str(), [=](benchmark::State& s) { run(s, n, qspGoertz<double>); });
        benchmark::RegisterBenchmark(("loop/" + d).c_str(), [=](benchmark::State& s) { run(s, n, loopGoertz<double>); });
    }
    return qspbench::runWithRatios(argc, argv);
}

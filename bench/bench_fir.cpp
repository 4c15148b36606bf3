// SPDX-License-Identifier: BSD-3-Clause
// Single-rate FIR filtering of 2^20 samples against its peers, and the
// crossover between our two methods.
//
//   direct_32f/N   our direct form (qspAlgDirect record) against a plain
//                  register-blocked 128-bit loop kept here ("loop") and
//                  liquid-dsp's firfilt_rrrf ("liquid");
//   fft_32f/N      our overlap-save (qspAlgFFT record) against liquid-dsp's
//                  fftfilt_rrrf ("liquid") and an overlap-save filter on
//                  FFTW's r2c/c2r written here, with the system FFTW
//                  ("fftw") and with the SSE2-only build ("fftw_sse2"); the
//                  peers use our transform length (fftLen = 2^(k+1), 2^k the
//                  smallest power of two above N);
//   xover_<type>/N the automatic choice ("qsp") against our direct form
//                  ("direct") and overlap-save ("fft") for the same taps:
//                  the ratio table gives method time / automatic time.
// Tap counts 16, 64, 256, 1024, 4096 for the peers; the crossover runs
// through 8 .. 4096. The ratio table at the end gives peer time / our time.
#include <liquid/liquid.h>
#include <fftw3.h>
#include <nmmintrin.h>

#include <algorithm>
#include <complex>
#include <cstdlib>
#include <cstring>
#include <string>
#include <vector>

#include "fftw_sse2.h"
#include "qsps.h"
#include "ratio_reporter.h"

namespace {

constexpr int kSamples = 1 << 20;

void setRate(benchmark::State& state, long long samples, int taps)
{
    state.counters["Msps"] = benchmark::Counter(double(samples) * double(state.iterations()) * 1e-6,
                                                benchmark::Counter::kIsRate);
    state.counters["GMAC/s"] = benchmark::Counter(double(samples) * taps * double(state.iterations()) * 1e-9,
                                                  benchmark::Counter::kIsRate);
}

std::vector<float> testTaps(int n)
{
    std::vector<float> h(n);
    for (int i = 0; i < n; ++i) h[i] = float((i * 7919) % 1000) / 1000.0f - 0.5f;
    return h;
}

// Input with N - 1 zeros of history in front, 64-byte aligned.
struct Signal {
    Signal(int taps, int n) : hist(taps - 1), len(n), mem(qspsMalloc_32f(hist + n + 64))
    {
        for (int i = 0; i < hist + n + 64; ++i) mem[i] = i < hist ? 0.0f : float((i * 2654435761u) >> 20) / 4096.0f - 0.5f;
    }
    ~Signal() { qspsFree(mem); }
    float* x() const { return mem + hist; }
    int hist, len;
    float* mem;
};

int fftLenFor(int n)
{
    int k = 1;
    while ((1 << k) <= n) ++k;
    return 1 << (k + 1);
}

// ------------------------------------------------------------ ours

template <class T>
struct Ours;

#define QSP_OURS(T, Spec, code, initFn, filterFn)                                              \
    template <>                                                                               \
    struct Ours<T> {                                                                          \
        using S = Spec;                                                                       \
        static QspStatus size(int n, int* s, int* b) { return qspsFIRSRGetSize(n, code, s, b); } \
        static constexpr auto init = initFn;                                                  \
        static constexpr auto filter = filterFn;                                              \
    };
QSP_OURS(Qsp32f, QspsFIRSpec_32f, qsp32f, qspsFIRSRInit_32f, qspsFIRSR_32f)
QSP_OURS(Qsp64f, QspsFIRSpec_64f, qsp64f, qspsFIRSRInit_64f, qspsFIRSR_64f)
QSP_OURS(Qsp32fc, QspsFIRSpec_32fc, qsp32fc, qspsFIRSRInit_32fc, qspsFIRSR_32fc)
QSP_OURS(Qsp64fc, QspsFIRSpec_64fc, qsp64fc, qspsFIRSRInit_64fc, qspsFIRSR_64fc)
#undef QSP_OURS

// Real single-precision taps on complex data.
struct Mixed {};
template <>
struct Ours<Mixed> {
    using S = QspsFIRSpec32f_32fc;
    static QspStatus size(int n, int* s, int* b) { return qspsFIRSRGetSize32f_32fc(n, s, b); }
    static constexpr auto init = qspsFIRSRInit32f_32fc;
    static constexpr auto filter = qspsFIRSR32f_32fc;
};

template <class T>
struct DataOf {
    using type = T;
    using tap = T;
};
template <>
struct DataOf<Mixed> {
    using type = Qsp32fc;
    using tap = Qsp32f;
};

template <class T>
void ours(benchmark::State& state, QspAlgType alg, int samples)
{
    using D = typename DataOf<T>::type;
    using Tap = typename DataOf<T>::tap;
    const int n = int(state.range(0));
    int s, b;
    Ours<T>::size(n, &s, &b);
    Qsp8u* spec = qspsMalloc_8u(s);
    Qsp8u* buf = qspsMalloc_8u(b);
    std::vector<Tap> taps(n);
    const auto h = testTaps(2 * n);
    std::memcpy(static_cast<void*>(taps.data()), h.data(), sizeof(Tap) * n);
    Ours<T>::init(taps.data(), n, alg, reinterpret_cast<typename Ours<T>::S*>(spec));
    Signal in(n, samples * int(sizeof(D) / 4)), out(1, samples * int(sizeof(D) / 4));
    std::vector<D> dly(n);
    std::memset(static_cast<void*>(dly.data()), 0, sizeof(D) * n);
    const D* x = reinterpret_cast<const D*>(in.x());
    D* y = reinterpret_cast<D*>(out.x());
    for (auto _ : state) {
        Ours<T>::filter(x, y, samples, reinterpret_cast<typename Ours<T>::S*>(spec), dly.data(), dly.data(), buf);
        benchmark::ClobberMemory();
    }
    setRate(state, samples, n);
    qspsFree(spec), qspsFree(buf);
}

// ------------------------------------------------------------ plain loop

// The reference loop: eight registers of four outputs each, every tap
// broadcast once per row of 32 outputs, the input read unaligned.
void loopFir(const float* h, int n, const float* x, float* y, int count)
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

void loop(benchmark::State& state)
{
    const int n = int(state.range(0));
    const auto h = testTaps(n);
    Signal in(n, kSamples), out(1, kSamples);
    for (auto _ : state) {
        loopFir(h.data(), n, in.x(), out.x(), kSamples);
        benchmark::ClobberMemory();
    }
    setRate(state, kSamples, n);
}

// ------------------------------------------------------------ liquid-dsp

void liquidFirfilt(benchmark::State& state)
{
    const int n = int(state.range(0));
    auto h = testTaps(n);
    firfilt_rrrf q = firfilt_rrrf_create(h.data(), unsigned(n));
    Signal in(1, kSamples), out(1, kSamples);
    for (auto _ : state) {
        firfilt_rrrf_execute_block(q, in.x(), unsigned(kSamples), out.x());
        benchmark::ClobberMemory();
    }
    setRate(state, kSamples, n);
    firfilt_rrrf_destroy(q);
}

// Blocks of half our transform length: liquid's transform is then ours.
void liquidFftfilt(benchmark::State& state)
{
    const int n = int(state.range(0));
    const int block = fftLenFor(n) / 2;
    auto h = testTaps(n);
    fftfilt_rrrf q = fftfilt_rrrf_create(h.data(), unsigned(n), unsigned(block));
    Signal in(1, kSamples), out(1, kSamples);
    for (auto _ : state) {
        for (int i = 0; i < kSamples; i += block) fftfilt_rrrf_execute(q, in.x() + i, out.x() + i);
        benchmark::ClobberMemory();
    }
    setRate(state, kSamples, n);
    fftfilt_rrrf_destroy(q);
}

// ------------------------------------------------------------ FFTW overlap-save

// Overlap-save on FFTW's real transforms, our transform length L: each block
// of L inputs is copied into the plan's aligned input, transformed (r2c),
// multiplied by the taps' spectrum (scaled by 1/L beforehand) and
// transformed back (c2r); the last L - (N - 1) outputs are kept.
template <class Api>
void fftwOverlapSave(benchmark::State& state, const Api& api)
{
    using Complex = fftwf_complex;
    const int n = int(state.range(0));
    const int L = fftLenFor(n), step = L - (n - 1);
    float* real = static_cast<float*>(api.malloc(sizeof(float) * L));
    Complex* spec = static_cast<Complex*>(api.malloc(sizeof(Complex) * (L / 2 + 1)));
    Complex* taps = static_cast<Complex*>(api.malloc(sizeof(Complex) * (L / 2 + 1)));
    auto fwd = api.plan_dft_r2c_1d(L, real, spec, FFTW_MEASURE);
    auto inv = api.plan_dft_c2r_1d(L, spec, real, FFTW_MEASURE);
    const auto h = testTaps(n);
    std::fill(real, real + L, 0.0f);
    std::copy(h.begin(), h.end(), real);
    api.execute_dft_r2c(fwd, real, taps);
    for (int k = 0; k <= L / 2; ++k) taps[k][0] /= float(L), taps[k][1] /= float(L);
    Signal in(n, kSamples), out(1, kSamples);
    for (auto _ : state) {
        for (int at = 0; at < kSamples; at += step) {
            const int outs = std::min(step, kSamples - at);
            const int have = std::min(L, kSamples - at + (n - 1));
            std::memcpy(real, in.x() + at - (n - 1), sizeof(float) * have);
            std::fill(real + have, real + L, 0.0f);
            api.execute_dft_r2c(fwd, real, spec);
            for (int k = 0; k <= L / 2; ++k) {
                const float a = spec[k][0], b = spec[k][1], c = taps[k][0], d = taps[k][1];
                spec[k][0] = a * c - b * d;
                spec[k][1] = a * d + b * c;
            }
            api.execute_dft_c2r(inv, spec, real);
            std::memcpy(out.x() + at, real + (n - 1), sizeof(float) * outs);
        }
        benchmark::ClobberMemory();
    }
    setRate(state, kSamples, n);
    api.destroy_plan(fwd), api.destroy_plan(inv);
    api.free(real), api.free(spec), api.free(taps);
}

// The system FFTW through the same interface as the SSE2-only build.
qspbench::FftwSse2f systemFftw()
{
    qspbench::FftwSse2f a;
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

}  // namespace

// Every case is registered `rounds` times, the rounds one after the other,
// so that ours and the peers alternate through the run; the ratio table
// keeps the fastest run of each (--rounds=K, default 3).
int takeRounds(int& argc, char** argv)
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

int main(int argc, char** argv)
{
    std::printf("peers: %s, liquid-dsp %s, SSE2 FFTW %s\n", fftwf_version, LIQUID_VERSION,
                qspbench::fftwSse2f().available() ? qspbench::fftwSse2f().version : "not found");
    static const qspbench::FftwSse2f sys = systemFftw();
    const int rounds = takeRounds(argc, argv);
    const int peerTaps[] = {16, 64, 256, 1024, 4096};
    // The crossover: 2^18 samples per call, so that even 4096 taps run many
    // transform blocks.
    const int xoverTaps[] = {8, 12, 16, 18, 24, 32, 38, 48, 64, 96, 128, 192, 256, 512, 1024, 2048, 4096};
    auto xover = [&](const char* type, auto tag) {
        using T = decltype(tag);
        for (int n : xoverTaps) {
            const std::string c = std::string("xover_") + type;
            benchmark::RegisterBenchmark(("qsp/" + c).c_str(), [](benchmark::State& s) { ours<T>(s, qspAlgAuto, 1 << 18); })->Arg(n);
            benchmark::RegisterBenchmark(("direct/" + c).c_str(), [](benchmark::State& s) { ours<T>(s, qspAlgDirect, 1 << 18); })->Arg(n);
            benchmark::RegisterBenchmark(("fft/" + c).c_str(), [](benchmark::State& s) { ours<T>(s, qspAlgFFT, 1 << 18); })->Arg(n);
        }
    };
    for (int round = 0; round < rounds; ++round) {
        for (int n : peerTaps) {
            const std::string c = "direct_32f";
            benchmark::RegisterBenchmark(("qsp/" + c).c_str(), [](benchmark::State& s) { ours<Qsp32f>(s, qspAlgDirect, kSamples); })->Arg(n);
            benchmark::RegisterBenchmark(("loop/" + c).c_str(), loop)->Arg(n);
            benchmark::RegisterBenchmark(("liquid/" + c).c_str(), liquidFirfilt)->Arg(n);
        }
        for (int n : peerTaps) {
            const std::string c = "fft_32f";
            benchmark::RegisterBenchmark(("qsp/" + c).c_str(), [](benchmark::State& s) { ours<Qsp32f>(s, qspAlgFFT, kSamples); })->Arg(n);
            benchmark::RegisterBenchmark(("liquid/" + c).c_str(), liquidFftfilt)->Arg(n);
            benchmark::RegisterBenchmark(("fftw/" + c).c_str(), [](benchmark::State& s) { fftwOverlapSave(s, sys); })->Arg(n);
            if (qspbench::fftwSse2f().available())
                benchmark::RegisterBenchmark(("fftw_sse2/" + c).c_str(),
                                             [](benchmark::State& s) { fftwOverlapSave(s, qspbench::fftwSse2f()); })
                    ->Arg(n);
        }
        xover("32f", Qsp32f{});
        xover("64f", Qsp64f{});
        xover("32fc", Qsp32fc{});
        xover("64fc", Qsp64fc{});
        xover("32f_32fc", Mixed{});
    }
    return qspbench::runWithRatios(argc, argv);
}

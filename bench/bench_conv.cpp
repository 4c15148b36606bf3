// SPDX-License-Identifier: BSD-3-Clause
// Full linear convolution of two operands of 16 .. 2^20 samples each, against
// its peers, and our two methods against the automatic choice.
//
//   conv_32f/n1/n2  Convolve_32f with qspAlgAuto ("qsp") against
//                   "loop"       the plain register-blocked 128-bit FIR loop
//                                over a zero-padded copy of the longer operand
//                                (the copy made outside the timing; run while
//                                n1 n2 <= 2^32),
//                   "fftw"       a convolution on the system FFTW: both
//                                operands zero padded to the next power of
//                                two of n1 + n2 - 1, r2c, product, c2r,
//                                FFTW_MEASURE plans made outside the timing,
//                   "fftw_sse2"  the same on the SSE2-only FFTW,
//                   "direct", "fft"  Convolve_32f with qspAlgDirect and
//                                qspAlgFFT (direct while n1 n2 <= 2^32);
//   conv_<type>/m/n the automatic choice of 64f, 32fc and 64fc against our
//                   two methods, the measurements behind the cost model's
//                   constants (src/filter/convolution.h).
// The ratio table at the end gives peer time / our time.
#include <fftw3.h>

#include <algorithm>
#include <cstring>
#include <string>
#include <type_traits>
#include <vector>

#include "fftw_sse2.h"
#include "fir_peers.h"
#include "qsps.h"
#include "ratio_reporter.h"

namespace {

constexpr long long kDirectLimit = 1LL << 32;

// Deterministic values in [-0.5, 0.5), part by part.
template <class T>
std::vector<T> testSignal(long long n, int seed)
{
    constexpr bool dbl = std::is_same_v<T, double> || std::is_same_v<T, Qsp64fc>;
    using Part = std::conditional_t<dbl, double, float>;
    std::vector<T> v(n);
    Part* p = reinterpret_cast<Part*>(v.data());
    const long long parts = n * (long long)(sizeof(T) / sizeof(Part));
    for (long long i = 0; i < parts; ++i) p[i] = Part(double(((i + seed) * 2654435761u) >> 20 & 4095) / 4096.0 - 0.5);
    return v;
}

void setRate(benchmark::State& state, long long n1, long long n2)
{
    state.counters["Msps"] = benchmark::Counter(double(n1 + n2 - 1) * double(state.iterations()) * 1e-6,
                                                benchmark::Counter::kIsRate);
}

// ------------------------------------------------------------ ours

// The library's convolution of each type and the type code of its buffer
// size query.
template <QspDataType Code, auto Call>
struct OursOf {
    static constexpr QspDataType type = Code;
    static constexpr auto call = Call;
};
template <class T>
struct Ours;
template <>
struct Ours<float> : OursOf<qsp32f, qspsConvolve_32f> {};
template <>
struct Ours<double> : OursOf<qsp64f, qspsConvolve_64f> {};
template <>
struct Ours<Qsp32fc> : OursOf<qsp32fc, qspsConvolve_32fc> {};
template <>
struct Ours<Qsp64fc> : OursOf<qsp64fc, qspsConvolve_64fc> {};

template <class T>
void ours(benchmark::State& state, QspAlgType alg)
{
    const long long n1 = state.range(0), n2 = state.range(1);
    const auto a = testSignal<T>(n1, 1), b = testSignal<T>(n2, 2);
    std::vector<T> y(n1 + n2 - 1);
    int bytes = 0;
    qspsConvolveGetBufferSize(int(n1), int(n2), Ours<T>::type, alg, &bytes);
    Qsp8u* buf = qspsMalloc_8u(bytes);
    qspbench::timeThread(state, [&] {
        Ours<T>::call(a.data(), b.data(), y.data(), int(n1), int(n2), alg, buf);
    });
    setRate(state, n1, n2);
    qspsFree(buf);
}

// ------------------------------------------------------------ peers

void loop(benchmark::State& state)
{
    const long long n1 = state.range(0), n2 = state.range(1);
    const long long m = std::min(n1, n2), len = std::max(n1, n2), count = n1 + n2 - 1;
    const auto taps = testSignal<float>(m, 1), x = testSignal<float>(len, 2);
    // The longer operand with m - 1 zeros on each side.
    std::vector<float> padded(len + 2 * (m - 1), 0.0f), y(count);
    std::copy(x.begin(), x.end(), padded.begin() + (m - 1));
    qspbench::timeThread(state, [&] {
        qspbench::loopFir(taps.data(), int(m), padded.data() + (m - 1), y.data(), int(count));
    });
    setRate(state, n1, n2);
}

template <class Api>
void fftwConvolve(benchmark::State& state, const Api& api)
{
    const long long n1 = state.range(0), n2 = state.range(1);
    long long len = 1;
    while (len < n1 + n2 - 1) len *= 2;
    const auto a = testSignal<float>(n1, 1), b = testSignal<float>(n2, 2);
    float* ra = static_cast<float*>(api.malloc(sizeof(float) * len));
    float* rb = static_cast<float*>(api.malloc(sizeof(float) * len));
    auto* ca = static_cast<fftwf_complex*>(api.malloc(sizeof(fftwf_complex) * (len / 2 + 1)));
    auto* cb = static_cast<fftwf_complex*>(api.malloc(sizeof(fftwf_complex) * (len / 2 + 1)));
    auto fa = api.plan_dft_r2c_1d(int(len), ra, ca, FFTW_MEASURE);
    auto fb = api.plan_dft_r2c_1d(int(len), rb, cb, FFTW_MEASURE);
    auto inv = api.plan_dft_c2r_1d(int(len), ca, ra, FFTW_MEASURE);
    std::vector<float> y(n1 + n2 - 1);
    const float scale = 1.0f / float(len);
    qspbench::timeThread(state, [&] {
        std::memcpy(ra, a.data(), sizeof(float) * n1);
        std::fill(ra + n1, ra + len, 0.0f);
        std::memcpy(rb, b.data(), sizeof(float) * n2);
        std::fill(rb + n2, rb + len, 0.0f);
        api.execute_dft_r2c(fa, ra, ca);
        api.execute_dft_r2c(fb, rb, cb);
        for (long long k = 0; k <= len / 2; ++k) {
            const float p = ca[k][0], q = ca[k][1], r = cb[k][0], s = cb[k][1];
            ca[k][0] = (p * r - q * s) * scale;
            ca[k][1] = (p * s + q * r) * scale;
        }
        api.execute_dft_c2r(inv, ca, ra);
        std::memcpy(y.data(), ra, sizeof(float) * (n1 + n2 - 1));
    });
    setRate(state, n1, n2);
    api.destroy_plan(fa), api.destroy_plan(fb), api.destroy_plan(inv);
    api.free(ra), api.free(rb), api.free(ca), api.free(cb);
}

}  // namespace

int main(int argc, char** argv)
{
    std::printf("peers: %s, SSE2 FFTW %s\n", fftwf_version,
                qspbench::fftwSse2f().available() ? qspbench::fftwSse2f().version : "not found");
    static const qspbench::FftwSse2f sys = qspbench::systemFftw();
    const int rounds = qspbench::takeRounds(argc, argv);
    const long long lengths[] = {16, 64, 256, 1024, 4096, 16384, 65536, 262144, 1048576};
    // The crossover of the other types: short taps against longer signals.
    const long long taps[] = {4, 8, 16, 24, 32, 48, 64, 96, 128, 256, 1024};
    const long long signals[] = {256, 4096, 65536};
    for (int round = 0; round < rounds; ++round) {
        for (long long n1 : lengths)
            for (long long n2 : lengths) {
                if (n1 > n2) continue;
                const bool direct = n1 * n2 <= kDirectLimit;
                benchmark::RegisterBenchmark("qsp/conv_32f", [](benchmark::State& s) { ours<float>(s, qspAlgAuto); })->UseManualTime()->Args({n1, n2});
                if (direct) {
                    benchmark::RegisterBenchmark("direct/conv_32f", [](benchmark::State& s) { ours<float>(s, qspAlgDirect); })->UseManualTime()->Args({n1, n2});
                    benchmark::RegisterBenchmark("loop/conv_32f", loop)->UseManualTime()->Args({n1, n2});
                }
                benchmark::RegisterBenchmark("fft/conv_32f", [](benchmark::State& s) { ours<float>(s, qspAlgFFT); })->UseManualTime()->Args({n1, n2});
                benchmark::RegisterBenchmark("fftw/conv_32f", [](benchmark::State& s) { fftwConvolve(s, sys); })->UseManualTime()->Args({n1, n2});
                if (qspbench::fftwSse2f().available())
                    benchmark::RegisterBenchmark("fftw_sse2/conv_32f",
                                                 [](benchmark::State& s) { fftwConvolve(s, qspbench::fftwSse2f()); })
                        ->UseManualTime()->Args({n1, n2});
            }
        auto others = [&](const char* name, auto tag) {
            using T = decltype(tag);
            for (long long m : taps)
                for (long long n : signals) {
                    const std::string c = std::string("conv_") + name;
                    benchmark::RegisterBenchmark(("qsp/" + c).c_str(), [](benchmark::State& s) { ours<T>(s, qspAlgAuto); })->UseManualTime()->Args({m, n});
                    benchmark::RegisterBenchmark(("direct/" + c).c_str(), [](benchmark::State& s) { ours<T>(s, qspAlgDirect); })->UseManualTime()->Args({m, n});
                    benchmark::RegisterBenchmark(("fft/" + c).c_str(), [](benchmark::State& s) { ours<T>(s, qspAlgFFT); })->UseManualTime()->Args({m, n});
                }
        };
        others("32f_taps", float{});
        others("64f", double{});
        others("32fc", Qsp32fc{});
        others("64fc", Qsp64fc{});
    }
    return qspbench::runWithRatios(argc, argv);
}

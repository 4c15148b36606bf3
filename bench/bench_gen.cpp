// SPDX-License-Identifier: BSD-3-Clause
// Windows, tones and random numbers against the obvious code and against
// liquid-dsp. Each case runs as qsp/<case> and <peer>/<case>; the report
// ends with peer time / qsp time (above 1: the library is faster).
//   windows  a plain loop that calls the cosine (or the Bessel function)
//            per element, and liquid's window functions, which give one
//            weight per call
//   tones    a plain loop calling cos per element, and liquid's
//            oscillator, table-driven (liquid_nco) and exact (liquid_vco)
//   random   std::mt19937 with std::uniform_real_distribution and
//            std::normal_distribution, and liquid's randf and randnf
// Run with --benchmark_repetitions=5 --benchmark_enable_random_interleaving
// on a busy machine: the reporter keeps each case's fastest repetition.
#include <liquid/liquid.h>

#include <cmath>
#include <functional>
#include <map>
#include <random>
#include <string>
#include <vector>

#include "qsps.h"
#include "ratio_reporter.h"

namespace {

constexpr double kTwoPi = 6.283185307179586;

// Two buffers of n elements of up to 16 bytes, filled with data.
struct Buffers {
    explicit Buffers(int n) : src(qspsMalloc_8u(16 * n + 64)), dst(qspsMalloc_8u(16 * n + 64))
    {
        auto* f = reinterpret_cast<float*>(src);
        for (int i = 0; i < 4 * n; ++i) f[i] = 1.0f + float(i % 97) * 0.03125f;
    }
    ~Buffers()
    {
        qspsFree(src);
        qspsFree(dst);
    }
    template <class T>
    T* in()
    {
        return reinterpret_cast<T*>(src);
    }
    template <class T>
    T* out()
    {
        return reinterpret_cast<T*>(dst);
    }
    Qsp8u *src, *dst;
};

using Body = std::function<void(Buffers&, int)>;

void registerCase(const std::string& name, const char* impl, const std::vector<int>& sizes, Body body)
{
    for (int n : sizes) {
        const std::string full = std::string(impl) + "/" + name + "/" + std::to_string(n);
        benchmark::RegisterBenchmark(full.c_str(), [=](benchmark::State& state) {
            static std::map<int, Buffers> shared;
            Buffers& b = shared.try_emplace(n, n).first->second;
            for (auto _ : state) {
                body(b, n);
                benchmark::ClobberMemory();
            }
            state.SetItemsProcessed(state.iterations() * n);
        });
    }
}

const std::vector<int> kWindowSizes = {1024, 65536};
const std::vector<int> kSignalSizes = {4096, 1 << 20};

// ---------------------------------------------------------------------------
// Windows.

template <class T>
void plainCosineWindow(const T* s, T* d, int n, T a0, T a1, T a2)
{
    for (int i = 0; i < n; ++i) {
        const T x = T(kTwoPi) * T(i) / T(n - 1);
        d[i] = s[i] * (a0 - a1 * std::cos(x) + a2 * std::cos(2 * x));
    }
}

template <class T>
void plainKaiser(const T* s, T* d, int n, double beta)
{
    const double norm = 1.0 / std::cyl_bessel_i(0.0, beta);
    for (int i = 0; i < n; ++i) {
        const double r = (2.0 * i - (n - 1)) / (n - 1);
        d[i] = T(s[i] * std::cyl_bessel_i(0.0, beta * std::sqrt(1 - r * r)) * norm);
    }
}

void registerWindows()
{
    registerCase("hann_32f", "qsp", kWindowSizes, [](Buffers& b, int n) { qspsWinHann_32f(b.in<float>(), b.out<float>(), n); });
    registerCase("hann_32f", "plain", kWindowSizes,
                 [](Buffers& b, int n) { plainCosineWindow(b.in<float>(), b.out<float>(), n, 0.5f, 0.5f, 0.0f); });
    registerCase("hann_32f", "liquid", kWindowSizes, [](Buffers& b, int n) {
        const float* s = b.in<float>();
        float* d = b.out<float>();
        for (int i = 0; i < n; ++i) d[i] = s[i] * liquid_hann(unsigned(i), unsigned(n));
    });
    registerCase("hann_64f", "qsp", kWindowSizes, [](Buffers& b, int n) { qspsWinHann_64f(b.in<double>(), b.out<double>(), n); });
    registerCase("hann_64f", "plain", kWindowSizes,
                 [](Buffers& b, int n) { plainCosineWindow(b.in<double>(), b.out<double>(), n, 0.5, 0.5, 0.0); });
    registerCase("hamming_32fc", "qsp", kWindowSizes,
                 [](Buffers& b, int n) { qspsWinHamming_32fc(b.in<Qsp32fc>(), b.out<Qsp32fc>(), n); });
    registerCase("hamming_32fc", "liquid", kWindowSizes, [](Buffers& b, int n) {
        const Qsp32fc* s = b.in<Qsp32fc>();
        Qsp32fc* d = b.out<Qsp32fc>();
        for (int i = 0; i < n; ++i) {
            const float w = liquid_hamming(unsigned(i), unsigned(n));
            d[i] = {s[i].re * w, s[i].im * w};
        }
    });
    registerCase("blackman_32f", "qsp", kWindowSizes,
                 [](Buffers& b, int n) { qspsWinBlackmanStd_32f(b.in<float>(), b.out<float>(), n); });
    registerCase("blackman_32f", "plain", kWindowSizes,
                 [](Buffers& b, int n) { plainCosineWindow(b.in<float>(), b.out<float>(), n, 0.42f, 0.5f, 0.08f); });
    registerCase("hann_16s", "qsp", kWindowSizes, [](Buffers& b, int n) { qspsWinHann_16s(b.in<Qsp16s>(), b.out<Qsp16s>(), n); });
    registerCase("hann_16s", "liquid", kWindowSizes, [](Buffers& b, int n) {
        const Qsp16s* s = b.in<Qsp16s>();
        Qsp16s* d = b.out<Qsp16s>();
        for (int i = 0; i < n; ++i) d[i] = Qsp16s(std::lrint(s[i] * liquid_hann(unsigned(i), unsigned(n))));
    });
    // Kaiser with beta = 8 (alpha = 16/(N-1)).
    registerCase("kaiser_32f", "qsp", kWindowSizes,
                 [](Buffers& b, int n) { qspsWinKaiser_32f(b.in<float>(), b.out<float>(), n, 16.0f / float(n - 1)); });
    registerCase("kaiser_32f", "plain", kWindowSizes,
                 [](Buffers& b, int n) { plainKaiser(b.in<float>(), b.out<float>(), n, 8.0); });
    registerCase("kaiser_32f", "liquid", kWindowSizes, [](Buffers& b, int n) {
        const float* s = b.in<float>();
        float* d = b.out<float>();
        for (int i = 0; i < n; ++i) d[i] = s[i] * liquid_kaiser(unsigned(i), unsigned(n), 8.0f);
    });
    registerCase("kaiser_64f", "qsp", kWindowSizes,
                 [](Buffers& b, int n) { qspsWinKaiser_64f(b.in<double>(), b.out<double>(), n, 16.0 / (n - 1)); });
    registerCase("kaiser_64f", "plain", kWindowSizes,
                 [](Buffers& b, int n) { plainKaiser(b.in<double>(), b.out<double>(), n, 8.0); });
}

// ---------------------------------------------------------------------------
// Tones: magnitude 1, rFreq 0.0123, phase 0.3, continuing from call to call.

constexpr double kFreq = 0.0123, kPhase = 0.3;

// One oscillator of each kind for the whole run, continuing from call to
// call like the library's phase.
nco_crcf oscillator(liquid_ncotype type)
{
    static std::map<int, nco_crcf> made;
    auto it = made.find(int(type));
    if (it == made.end()) {
        nco_crcf o = nco_crcf_create(type);
        nco_crcf_set_frequency(o, float(kTwoPi * kFreq));
        it = made.emplace(int(type), o).first;
    }
    return it->second;
}

template <class T>
void plainTone(T* d, int n)
{
    for (int i = 0; i < n; ++i) d[i] = T(std::cos(kTwoPi * kFreq * i + kPhase));
}

void registerTones()
{
    for (int hint : {qspAlgHintAccurate, qspAlgHintFast}) {
        const std::string tag = hint == qspAlgHintFast ? "_fast" : "";
        registerCase("tone_32f" + tag, "qsp", kSignalSizes, [hint](Buffers& b, int n) {
            float ph = float(kPhase);
            qspsTone_32f(b.out<float>(), n, 1.0f, float(kFreq), &ph, hint);
        });
        registerCase("tone_64f" + tag, "qsp", kSignalSizes, [hint](Buffers& b, int n) {
            double ph = kPhase;
            qspsTone_64f(b.out<double>(), n, 1.0, kFreq, &ph, hint);
        });
        registerCase("tone_32fc" + tag, "qsp", kSignalSizes, [hint](Buffers& b, int n) {
            float ph = float(kPhase);
            qspsTone_32fc(b.out<Qsp32fc>(), n, 1.0f, float(kFreq), &ph, hint);
        });
        registerCase("tone_32f" + tag, "plain", kSignalSizes, [](Buffers& b, int n) { plainTone(b.out<float>(), n); });
        registerCase("tone_64f" + tag, "plain", kSignalSizes, [](Buffers& b, int n) { plainTone(b.out<double>(), n); });
        for (auto [peer, type] : {std::pair{"liquid_nco", LIQUID_NCO}, std::pair{"liquid_vco", LIQUID_VCO}}) {
            registerCase("tone_32f" + tag, peer, kSignalSizes, [type](Buffers& b, int n) {
                nco_crcf q = oscillator(type);
                float* d = b.out<float>();
                for (int i = 0; i < n; ++i) {
                    d[i] = nco_crcf_cos(q);
                    nco_crcf_step(q);
                }
            });
            registerCase("tone_32fc" + tag, peer, kSignalSizes, [type](Buffers& b, int n) {
                nco_crcf q = oscillator(type);
                auto* d = reinterpret_cast<liquid_float_complex*>(b.out<Qsp32fc>());
                for (int i = 0; i < n; ++i) {
                    nco_crcf_cexpf(q, d + i);
                    nco_crcf_step(q);
                }
            });
        }
    }
    registerCase("triangle_32f", "qsp", kSignalSizes, [](Buffers& b, int n) {
        float ph = 0.0f;
        qspsTriangle_32f(b.out<float>(), n, 1.0f, float(kFreq), 0.0f, &ph);
    });
    registerCase("triangle_32f", "plain", kSignalSizes, [](Buffers& b, int n) {
        float* d = b.out<float>();
        for (int i = 0; i < n; ++i) {
            const double u = std::fmod(kFreq * i, 1.0);
            d[i] = float(u < 0.5 ? 1 - 4 * u : 4 * u - 3);
        }
    });
}

// ---------------------------------------------------------------------------
// Random numbers: uniform on [0, 1), normal with mean 0 and deviation 1.

template <class State>
State* newState(QspStatus (*size)(int*))
{
    int bytes = 0;
    size(&bytes);
    return reinterpret_cast<State*>(qspsMalloc_8u(bytes));
}

void registerRandom()
{
    registerCase("uniform_32f", "qsp", kSignalSizes, [](Buffers& b, int n) {
        static auto* s = [] {
            auto* p = newState<QspsRandUniformState_32f>(qspsRandUniformGetSize_32f);
            qspsRandUniformInit_32f(p, 0.0f, 1.0f, 1);
            return p;
        }();
        qspsRandUniform_32f(b.out<float>(), n, s);
    });
    registerCase("uniform_32f", "std", kSignalSizes, [](Buffers& b, int n) {
        static std::mt19937 g(1);
        std::uniform_real_distribution<float> u(0.0f, 1.0f);
        float* d = b.out<float>();
        for (int i = 0; i < n; ++i) d[i] = u(g);
    });
    registerCase("uniform_32f", "liquid", kSignalSizes, [](Buffers& b, int n) {
        float* d = b.out<float>();
        for (int i = 0; i < n; ++i) d[i] = randf();
    });
    registerCase("uniform_64f", "qsp", kSignalSizes, [](Buffers& b, int n) {
        static auto* s = [] {
            auto* p = newState<QspsRandUniformState_64f>(qspsRandUniformGetSize_64f);
            qspsRandUniformInit_64f(p, 0.0, 1.0, 1);
            return p;
        }();
        qspsRandUniform_64f(b.out<double>(), n, s);
    });
    registerCase("uniform_64f", "std", kSignalSizes, [](Buffers& b, int n) {
        static std::mt19937 g(1);
        std::uniform_real_distribution<double> u(0.0, 1.0);
        double* d = b.out<double>();
        for (int i = 0; i < n; ++i) d[i] = u(g);
    });
    registerCase("uniform_16s", "qsp", kSignalSizes, [](Buffers& b, int n) {
        static auto* s = [] {
            auto* p = newState<QspsRandUniformState_16s>(qspsRandUniformGetSize_16s);
            qspsRandUniformInit_16s(p, -1000, 1000, 1);
            return p;
        }();
        qspsRandUniform_16s(b.out<Qsp16s>(), n, s);
    });
    registerCase("uniform_16s", "std", kSignalSizes, [](Buffers& b, int n) {
        static std::mt19937 g(1);
        std::uniform_int_distribution<int> u(-1000, 1000);
        Qsp16s* d = b.out<Qsp16s>();
        for (int i = 0; i < n; ++i) d[i] = Qsp16s(u(g));
    });
    registerCase("gauss_32f", "qsp", kSignalSizes, [](Buffers& b, int n) {
        static auto* s = [] {
            auto* p = newState<QspsRandGaussState_32f>(qspsRandGaussGetSize_32f);
            qspsRandGaussInit_32f(p, 0.0f, 1.0f, 1);
            return p;
        }();
        qspsRandGauss_32f(b.out<float>(), n, s);
    });
    registerCase("gauss_32f", "std", kSignalSizes, [](Buffers& b, int n) {
        static std::mt19937 g(1);
        static std::normal_distribution<float> z(0.0f, 1.0f);
        float* d = b.out<float>();
        for (int i = 0; i < n; ++i) d[i] = z(g);
    });
    registerCase("gauss_32f", "liquid", kSignalSizes, [](Buffers& b, int n) {
        float* d = b.out<float>();
        for (int i = 0; i < n; ++i) d[i] = randnf();
    });
    registerCase("gauss_64f", "qsp", kSignalSizes, [](Buffers& b, int n) {
        static auto* s = [] {
            auto* p = newState<QspsRandGaussState_64f>(qspsRandGaussGetSize_64f);
            qspsRandGaussInit_64f(p, 0.0, 1.0, 1);
            return p;
        }();
        qspsRandGauss_64f(b.out<double>(), n, s);
    });
    registerCase("gauss_64f", "std", kSignalSizes, [](Buffers& b, int n) {
        static std::mt19937 g(1);
        static std::normal_distribution<double> z(0.0, 1.0);
        double* d = b.out<double>();
        for (int i = 0; i < n; ++i) d[i] = z(g);
    });
}

}  // namespace

int main(int argc, char** argv)
{
    registerWindows();
    registerTones();
    registerRandom();
    return qspbench::runWithRatios(argc, argv);
}

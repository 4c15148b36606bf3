// SPDX-License-Identifier: BSD-3-Clause
// FilterMedian against the obvious way of computing a running median:
// copy each window and let std::nth_element find its middle value. Both run
// on the same random signal with the same delay line; cases are registered
// side by side (qsp/<case>, nth_element/<case>) so that they alternate.
#include <benchmark/benchmark.h>

#include <algorithm>
#include <random>
#include <string>
#include <vector>

#include "qsps.h"
#include "ratio_reporter.h"

namespace {

constexpr int kLen = 1 << 14;

template <class T>
std::vector<T> signal(size_t n)
{
    std::mt19937 rng(5);
    std::vector<T> v(n);
    for (auto& x : v) {
        if constexpr (std::is_floating_point_v<T>) x = T(std::uniform_real_distribution<double>(-1, 1)(rng));
        else x = T(rng());
    }
    return v;
}

template <class T>
struct Median;
template <>
struct Median<Qsp32f> {
    static constexpr QspDataType code = qsp32f;
    static constexpr auto fn = qspsFilterMedian_32f;
};
template <>
struct Median<Qsp16s> {
    static constexpr QspDataType code = qsp16s;
    static constexpr auto fn = qspsFilterMedian_16s;
};
template <>
struct Median<Qsp8u> {
    static constexpr QspDataType code = qsp8u;
    static constexpr auto fn = qspsFilterMedian_8u;
};

template <class T>
void qsp(benchmark::State& state)
{
    const int m = int(state.range(0));
    const std::vector<T> x = signal<T>(kLen), dly = signal<T>(m);
    std::vector<T> y(kLen);
    int size = 0;
    qspsFilterMedianGetBufferSize(m, Median<T>::code, &size);
    std::vector<Qsp8u> buf(size);
    for (auto _ : state) {
        Median<T>::fn(x.data(), y.data(), kLen, m, dly.data(), nullptr, buf.data());
        benchmark::DoNotOptimize(y.data());
    }
    state.SetItemsProcessed(state.iterations() * kLen);
}

template <class T>
void nthElement(benchmark::State& state)
{
    const int m = int(state.range(0));
    const std::vector<T> x = signal<T>(kLen), dly = signal<T>(m);
    std::vector<T> ext(dly.begin(), dly.begin() + (m - 1)), y(kLen), win(m);
    ext.insert(ext.end(), x.begin(), x.end());
    for (auto _ : state) {
        for (int i = 0; i < kLen; ++i) {
            std::copy(ext.begin() + i, ext.begin() + i + m, win.begin());
            std::nth_element(win.begin(), win.begin() + m / 2, win.end());
            y[i] = win[m / 2];
        }
        benchmark::DoNotOptimize(y.data());
    }
    state.SetItemsProcessed(state.iterations() * kLen);
}

}  // namespace

int main(int argc, char** argv)
{
    const struct {
        const char* type;
        void (*ours)(benchmark::State&);
        void (*peer)(benchmark::State&);
    } kinds[] = {
        {"32f", qsp<Qsp32f>, nthElement<Qsp32f>},
        {"16s", qsp<Qsp16s>, nthElement<Qsp16s>},
        {"8u", qsp<Qsp8u>, nthElement<Qsp8u>},
    };
    for (const auto& k : kinds)
        for (int m : {3, 7, 31, 63, 127, 255, 511, 1023, 4095}) {
            const std::string c = std::string(k.type) + "/mask" + std::to_string(m);
            benchmark::RegisterBenchmark(("qsp/" + c).c_str(), k.ours)->Arg(m);
            benchmark::RegisterBenchmark(("nth_element/" + c).c_str(), k.peer)->Arg(m);
        }
    return qspbench::runWithRatios(argc, argv);
}

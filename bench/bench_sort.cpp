// SPDX-License-Identifier: BSD-3-Clause
// Radix sorts against std::sort on the same random data. Each iteration
// sorts a fresh copy of the input; the copy is outside the timed region.
#include <benchmark/benchmark.h>

#include <algorithm>
#include <cstring>
#include <random>
#include <vector>

#include "qsps.h"

namespace {

template <class T>
std::vector<T> randomValues(size_t n)
{
    std::mt19937_64 rng(7);
    std::vector<T> v(n);
    for (auto& x : v) {
        if constexpr (std::is_floating_point_v<T>)
            x = T(std::uniform_real_distribution<double>(-1e6, 1e6)(rng));
        else
            x = T(rng());
    }
    return v;
}

template <class T, class Sort>
void run(benchmark::State& state, Sort sort)
{
    const auto in = randomValues<T>(size_t(state.range(0)));
    std::vector<T> v(in.size());
    for (auto _ : state) {
        state.PauseTiming();
        std::memcpy(v.data(), in.data(), in.size() * sizeof(T));
        state.ResumeTiming();
        sort(v);
        benchmark::DoNotOptimize(v.data());
    }
    state.SetItemsProcessed(state.iterations() * state.range(0));
}

template <class T>
void stdSort(benchmark::State& state)
{
    run<T>(state, [](std::vector<T>& v) { std::sort(v.begin(), v.end()); });
}

template <class T, QspStatus (*Fn)(T*, int, Qsp8u*), QspDataType Code>
void radixSort(benchmark::State& state)
{
    int bytes = 0;
    qspsSortRadixGetBufferSize(int(state.range(0)), Code, &bytes);
    std::vector<Qsp8u> buffer(bytes);
    run<T>(state, [&](std::vector<T>& v) { Fn(v.data(), int(v.size()), buffer.data()); });
}

template <class T, QspStatus (*Fn)(T*, int)>
void comparisonSort(benchmark::State& state)
{
    run<T>(state, [](std::vector<T>& v) { Fn(v.data(), int(v.size())); });
}

constexpr int kLen = 1 << 20;

}  // namespace

BENCHMARK(stdSort<Qsp32f>)->Name("std_sort/32f")->Arg(kLen)->Unit(benchmark::kMillisecond);
BENCHMARK(radixSort<Qsp32f, qspsSortRadixAscend_32f_I, qsp32f>)->Name("radix_ascend/32f")->Arg(kLen)->Unit(benchmark::kMillisecond);
BENCHMARK(stdSort<Qsp32s>)->Name("std_sort/32s")->Arg(kLen)->Unit(benchmark::kMillisecond);
BENCHMARK(radixSort<Qsp32s, qspsSortRadixAscend_32s_I, qsp32s>)->Name("radix_ascend/32s")->Arg(kLen)->Unit(benchmark::kMillisecond);
BENCHMARK(stdSort<Qsp32u>)->Name("std_sort/32u")->Arg(kLen)->Unit(benchmark::kMillisecond);
BENCHMARK(radixSort<Qsp32u, qspsSortRadixAscend_32u_I, qsp32u>)->Name("radix_ascend/32u")->Arg(kLen)->Unit(benchmark::kMillisecond);
BENCHMARK(stdSort<Qsp64f>)->Name("std_sort/64f")->Arg(kLen)->Unit(benchmark::kMillisecond);
BENCHMARK(radixSort<Qsp64f, qspsSortRadixAscend_64f_I, qsp64f>)->Name("radix_ascend/64f")->Arg(kLen)->Unit(benchmark::kMillisecond);
BENCHMARK(stdSort<Qsp64s>)->Name("std_sort/64s")->Arg(kLen)->Unit(benchmark::kMillisecond);
BENCHMARK(radixSort<Qsp64s, qspsSortRadixAscend_64s_I, qsp64s>)->Name("radix_ascend/64s")->Arg(kLen)->Unit(benchmark::kMillisecond);
BENCHMARK(stdSort<Qsp16s>)->Name("std_sort/16s")->Arg(kLen)->Unit(benchmark::kMillisecond);
BENCHMARK(radixSort<Qsp16s, qspsSortRadixAscend_16s_I, qsp16s>)->Name("radix_ascend/16s")->Arg(kLen)->Unit(benchmark::kMillisecond);
BENCHMARK(stdSort<Qsp8u>)->Name("std_sort/8u")->Arg(kLen)->Unit(benchmark::kMillisecond);
BENCHMARK(radixSort<Qsp8u, qspsSortRadixAscend_8u_I, qsp8u>)->Name("radix_ascend/8u")->Arg(kLen)->Unit(benchmark::kMillisecond);

// The library's comparison sort (no buffer) on the same data.
BENCHMARK(comparisonSort<Qsp32f, qspsSortAscend_32f_I>)->Name("sort_ascend/32f")->Arg(kLen)->Unit(benchmark::kMillisecond);
BENCHMARK(comparisonSort<Qsp64f, qspsSortAscend_64f_I>)->Name("sort_ascend/64f")->Arg(kLen)->Unit(benchmark::kMillisecond);

BENCHMARK_MAIN();

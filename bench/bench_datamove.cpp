// SPDX-License-Identifier: BSD-3-Clause
// Copy, Set, Zero, Move and Flip against the C library's memcpy, memset,
// memmove and std::reverse_copy, from 1 KiB to 64 MiB.
#include <algorithm>
#include <cstring>

#include "qsps.h"
#include "ratio_reporter.h"

namespace {

struct Buffers {
    explicit Buffers(size_t bytes)
        : src(qspsMalloc_8u(int(bytes) + 64)), dst(qspsMalloc_8u(int(bytes) + 64)), bytes(bytes)
    {
        std::memset(src, 1, bytes + 64);
        std::memset(dst, 2, bytes + 64);
    }
    ~Buffers() { qspsFree(src), qspsFree(dst); }
    Qsp8u* src;
    Qsp8u* dst;
    size_t bytes;
};

template <class Body>
void timeBytes(benchmark::State& state, Body body)
{
    Buffers b(size_t(state.range(0)));
    for (auto _ : state) {
        body(b);
        benchmark::ClobberMemory();
    }
    state.SetBytesProcessed(int64_t(state.iterations()) * int64_t(b.bytes));
}

void qspCopy(benchmark::State& s) { timeBytes(s, [](Buffers& b) { qspsCopy_8u(b.src, b.dst, int(b.bytes)); }); }
void libcCopy(benchmark::State& s) { timeBytes(s, [](Buffers& b) { std::memcpy(b.dst, b.src, b.bytes); }); }
void qspSet(benchmark::State& s) { timeBytes(s, [](Buffers& b) { qspsSet_8u(7, b.dst, int(b.bytes)); }); }
void libcSet(benchmark::State& s) { timeBytes(s, [](Buffers& b) { std::memset(b.dst, 7, b.bytes); }); }
void qspSet32f(benchmark::State& s)
{
    timeBytes(s, [](Buffers& b) { qspsSet_32f(1.5f, reinterpret_cast<Qsp32f*>(b.dst), int(b.bytes / 4)); });
}
void qspZero(benchmark::State& s) { timeBytes(s, [](Buffers& b) { qspsZero_8u(b.dst, int(b.bytes)); }); }
void libcZero(benchmark::State& s) { timeBytes(s, [](Buffers& b) { std::memset(b.dst, 0, b.bytes); }); }
// An overlapping move by one cache line and a bit, the harder direction.
void qspMove(benchmark::State& s) { timeBytes(s, [](Buffers& b) { qspsMove_8u(b.dst, b.dst + 40, int(b.bytes)); }); }
void libcMove(benchmark::State& s) { timeBytes(s, [](Buffers& b) { std::memmove(b.dst + 40, b.dst, b.bytes); }); }
void qspFlip(benchmark::State& s)
{
    timeBytes(s, [](Buffers& b) {
        qspsFlip_32f(reinterpret_cast<Qsp32f*>(b.src), reinterpret_cast<Qsp32f*>(b.dst), int(b.bytes / 4));
    });
}
void stdReverse(benchmark::State& s)
{
    timeBytes(s, [](Buffers& b) {
        auto* src = reinterpret_cast<const float*>(b.src);
        std::reverse_copy(src, src + b.bytes / 4, reinterpret_cast<float*>(b.dst));
    });
}
void qspFlipInPlace(benchmark::State& s)
{
    timeBytes(s, [](Buffers& b) { qspsFlip_32f_I(reinterpret_cast<Qsp32f*>(b.dst), int(b.bytes / 4)); });
}
void stdReverseInPlace(benchmark::State& s)
{
    timeBytes(s, [](Buffers& b) {
        auto* p = reinterpret_cast<float*>(b.dst);
        std::reverse(p, p + b.bytes / 4);
    });
}

void sizes(benchmark::internal::Benchmark* b)
{
    for (int64_t n = 1 << 10; n <= (int64_t(64) << 20); n *= 4) b->Arg(n);
}

}  // namespace

// Each case is measured side by side: ours first, then the peer.
BENCHMARK(qspCopy)->Name("qsp/Copy")->Apply(sizes);
BENCHMARK(libcCopy)->Name("memcpy/Copy")->Apply(sizes);
BENCHMARK(qspSet)->Name("qsp/Set_8u")->Apply(sizes);
BENCHMARK(libcSet)->Name("memset/Set_8u")->Apply(sizes);
BENCHMARK(qspSet32f)->Name("qsp/Set_32f")->Apply(sizes);
BENCHMARK(libcSet)->Name("memset/Set_32f")->Apply(sizes);
BENCHMARK(qspZero)->Name("qsp/Zero")->Apply(sizes);
BENCHMARK(libcZero)->Name("memset/Zero")->Apply(sizes);
BENCHMARK(qspMove)->Name("qsp/Move")->Apply(sizes);
BENCHMARK(libcMove)->Name("memmove/Move")->Apply(sizes);
BENCHMARK(qspFlip)->Name("qsp/Flip_32f")->Apply(sizes);
BENCHMARK(stdReverse)->Name("reverse_copy/Flip_32f")->Apply(sizes);
BENCHMARK(qspCopy)->Name("qspCopy/Flip_32f")->Apply(sizes);
BENCHMARK(qspFlipInPlace)->Name("qsp/Flip_32f_I")->Apply(sizes);
BENCHMARK(stdReverseInPlace)->Name("reverse/Flip_32f_I")->Apply(sizes);

QSP_BENCH_MAIN()

// SPDX-License-Identifier: BSD-3-Clause
// Copy, Zero, Set, Move and Flip against the C library's memcpy, memset,
// memmove and std::reverse_copy, from 1 KiB to 128 MiB.
//
// Run with repetitions interleaved so that ours and the C library's take
// turns on the shared machine; the ratio reporter keeps each case's
// fastest repetition:
//     qsp_bench_datamove --benchmark_repetitions=10 --benchmark_enable_random_interleaving=true
//
// The "Copy_8u" and "Zero_8u" cases step through the sizes around the
// thresholds of src/core/memory_kernels.h in powers of two, at odd
// alignments (--benchmark_filter=_8u). Where the two buffers start at the
// same offset in their pages (as large allocations do), Copy_8u's
// destination lies 3 bytes above its source modulo 4 KiB, the distance at
// which the string copy is avoided.
#include <algorithm>
#include <cstring>

#include "qsps.h"
#include "ratio_reporter.h"

namespace {

// Source and destination of `bytes` bytes, 64-byte aligned, with a margin
// for the overlapping moves; both written once so that no page is fresh.
struct Buffers {
    explicit Buffers(size_t n)
        : src(qspsMalloc_8u_L(Qsp64s(n) + 128)), dst(qspsMalloc_8u_L(Qsp64s(n) + 128)), bytes(n)
    {
        std::memset(src, 1, bytes + 128);
        std::memset(dst, 2, bytes + 128);
    }
    ~Buffers() { qspsFree(src), qspsFree(dst); }
    Qsp32f* src32f() const { return reinterpret_cast<Qsp32f*>(src); }
    Qsp32f* dst32f() const { return reinterpret_cast<Qsp32f*>(dst); }
    int len32f() const { return int(bytes / 4); }
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

// The operations on 32f elements, the form most callers use.
void qspCopy(benchmark::State& s) { timeBytes(s, [](Buffers& b) { qspsCopy_32f(b.src32f(), b.dst32f(), b.len32f()); }); }
void libcCopy(benchmark::State& s) { timeBytes(s, [](Buffers& b) { std::memcpy(b.dst, b.src, b.bytes); }); }
void qspZero(benchmark::State& s) { timeBytes(s, [](Buffers& b) { qspsZero_32f(b.dst32f(), b.len32f()); }); }
void libcZero(benchmark::State& s) { timeBytes(s, [](Buffers& b) { std::memset(b.dst, 0, b.bytes); }); }
// Set has no C library twin for a float pattern: memset of a byte value is
// the speed to reach.
void qspSet(benchmark::State& s) { timeBytes(s, [](Buffers& b) { qspsSet_32f(1.5f, b.dst32f(), b.len32f()); }); }
void libcSet(benchmark::State& s) { timeBytes(s, [](Buffers& b) { std::memset(b.dst, 7, b.bytes); }); }
// Moves that overlap: the destination 40 bytes above the source (copied
// back to front) and 40 bytes below it (front to back).
void qspMoveUp(benchmark::State& s)
{
    timeBytes(s, [](Buffers& b) { qspsMove_32f(b.dst32f(), b.dst32f() + 10, b.len32f()); });
}
void libcMoveUp(benchmark::State& s) { timeBytes(s, [](Buffers& b) { std::memmove(b.dst + 40, b.dst, b.bytes); }); }
void qspMoveDown(benchmark::State& s)
{
    timeBytes(s, [](Buffers& b) { qspsMove_32f(b.dst32f() + 10, b.dst32f(), b.len32f()); });
}
void libcMoveDown(benchmark::State& s) { timeBytes(s, [](Buffers& b) { std::memmove(b.dst, b.dst + 40, b.bytes); }); }
// A move between separate vectors, as Move is often used.
void qspMoveApart(benchmark::State& s)
{
    timeBytes(s, [](Buffers& b) { qspsMove_32f(b.src32f(), b.dst32f(), b.len32f()); });
}
void libcMoveApart(benchmark::State& s) { timeBytes(s, [](Buffers& b) { std::memmove(b.dst, b.src, b.bytes); }); }
// The byte forms share the kernels; an odd length tests the tails.
void qspCopy8u(benchmark::State& s) { timeBytes(s, [](Buffers& b) { qspsCopy_8u(b.src, b.dst + 3, int(b.bytes) - 5); }); }
void libcCopy8u(benchmark::State& s) { timeBytes(s, [](Buffers& b) { std::memcpy(b.dst + 3, b.src, b.bytes - 5); }); }
void qspZero8u(benchmark::State& s) { timeBytes(s, [](Buffers& b) { qspsZero_8u(b.dst + 3, int(b.bytes) - 5); }); }
void libcZero8u(benchmark::State& s) { timeBytes(s, [](Buffers& b) { std::memset(b.dst + 3, 0, b.bytes - 5); }); }

void qspFlip(benchmark::State& s)
{
    timeBytes(s, [](Buffers& b) { qspsFlip_32f(b.src32f(), b.dst32f(), b.len32f()); });
}
void stdReverse(benchmark::State& s)
{
    timeBytes(s, [](Buffers& b) {
        const float* src = b.src32f();
        std::reverse_copy(src, src + b.len32f(), b.dst32f());
    });
}
void qspFlipInPlace(benchmark::State& s) { timeBytes(s, [](Buffers& b) { qspsFlip_32f_I(b.dst32f(), b.len32f()); }); }
void stdReverseInPlace(benchmark::State& s)
{
    timeBytes(s, [](Buffers& b) { std::reverse(b.dst32f(), b.dst32f() + b.len32f()); });
}

// 1 KiB, where call overhead and short-copy code count; 16 KiB and 128 KiB
// in the first- and second-level caches; 1 MiB and 8 MiB in the last-level
// cache (32 MiB here); 32 MiB and 128 MiB beyond it, in memory.
void sizes(benchmark::internal::Benchmark* b)
{
    for (int64_t n : {int64_t(1) << 10, int64_t(16) << 10, int64_t(128) << 10, int64_t(1) << 20, int64_t(8) << 20,
                      int64_t(32) << 20, int64_t(128) << 20})
        b->Arg(n);
}
// Finer steps for choosing the thresholds between the methods.
void thresholdSizes(benchmark::internal::Benchmark* b)
{
    for (int64_t n = 256; n <= (int64_t(256) << 20); n *= 2) b->Arg(n);
}

}  // namespace

BENCHMARK(qspCopy)->Name("qsp/Copy_32f")->Apply(sizes);
BENCHMARK(libcCopy)->Name("memcpy/Copy_32f")->Apply(sizes);
BENCHMARK(qspZero)->Name("qsp/Zero_32f")->Apply(sizes);
BENCHMARK(libcZero)->Name("memset/Zero_32f")->Apply(sizes);
BENCHMARK(qspSet)->Name("qsp/Set_32f")->Apply(sizes);
BENCHMARK(libcSet)->Name("memset/Set_32f")->Apply(sizes);
BENCHMARK(qspMoveUp)->Name("qsp/Move_32f_up")->Apply(sizes);
BENCHMARK(libcMoveUp)->Name("memmove/Move_32f_up")->Apply(sizes);
BENCHMARK(qspMoveDown)->Name("qsp/Move_32f_down")->Apply(sizes);
BENCHMARK(libcMoveDown)->Name("memmove/Move_32f_down")->Apply(sizes);
BENCHMARK(qspMoveApart)->Name("qsp/Move_32f_apart")->Apply(sizes);
BENCHMARK(libcMoveApart)->Name("memmove/Move_32f_apart")->Apply(sizes);
BENCHMARK(qspCopy8u)->Name("qsp/Copy_8u")->Apply(thresholdSizes);
BENCHMARK(libcCopy8u)->Name("memcpy/Copy_8u")->Apply(thresholdSizes);
BENCHMARK(qspZero8u)->Name("qsp/Zero_8u")->Apply(thresholdSizes);
BENCHMARK(libcZero8u)->Name("memset/Zero_8u")->Apply(thresholdSizes);
BENCHMARK(qspFlip)->Name("qsp/Flip_32f")->Apply(sizes);
BENCHMARK(stdReverse)->Name("reverse_copy/Flip_32f")->Apply(sizes);
BENCHMARK(qspFlipInPlace)->Name("qsp/Flip_32f_I")->Apply(sizes);
BENCHMARK(stdReverseInPlace)->Name("reverse/Flip_32f_I")->Apply(sizes);

QSP_BENCH_MAIN()

// Power-of-two FFTs against FFTW 3 (plans made with FFTW_MEASURE, single
// thread, same direction and placement): complex single and double
// precision and real single precision, orders 1..22; and the record set-up
// (GetSize + Init) against FFTW_ESTIMATE planning. Each benchmark reports
// the conventional rate 5 N log2(N) / t as "flops"; the ratio table at the
// end gives FFTW time / our time.
#include <fftw3.h>

#include <cstring>
#include <vector>

#include "qsps.h"
#include "ratio_reporter.h"

namespace {

constexpr int kMinOrder = 1, kMaxOrder = 22;

void setRate(benchmark::State& state, int order)
{
    const double n = double(1LL << order);
    state.counters["flops"] = benchmark::Counter(5.0 * n * order * double(state.iterations()),
                                                 benchmark::Counter::kIsRate);
}

struct Block {
    explicit Block(long long bytes) : p(bytes ? qspsMalloc_8u_L(bytes) : nullptr)
    {
        if (p) std::memset(p, 0, size_t(bytes));
    }
    ~Block() { qspsFree(p); }
    Qsp8u* p;
};

// ------------------------------------------------------------ complex 32fc

void qspC32(benchmark::State& state)
{
    const int order = int(state.range(0));
    const int n = 1 << order;
    int s, i, w;
    qspsFFTGetSize_C_32fc(order, 8, 0, &s, &i, &w);
    Block spec(s), init(i), work(w);
    QspsFFTSpec_C_32fc* rec;
    qspsFFTInit_C_32fc(&rec, order, 8, 0, spec.p, init.p);
    Qsp32fc* src = qspsMalloc_32fc(n);
    Qsp32fc* dst = qspsMalloc_32fc(n);
    for (int k = 0; k < n; ++k) src[k] = {float(k % 7) - 3.0f, float(k % 5) - 2.0f};
    for (auto _ : state) {
        qspsFFTFwd_CToC_32fc(src, dst, rec, work.p);
        benchmark::ClobberMemory();
    }
    setRate(state, order);
    qspsFree(src), qspsFree(dst);
}

void fftwC32(benchmark::State& state)
{
    const int order = int(state.range(0));
    const int n = 1 << order;
    fftwf_complex* src = fftwf_alloc_complex(n);
    fftwf_complex* dst = fftwf_alloc_complex(n);
    fftwf_plan p = fftwf_plan_dft_1d(n, src, dst, FFTW_FORWARD, FFTW_MEASURE);
    for (int k = 0; k < n; ++k) src[k][0] = float(k % 7) - 3.0f, src[k][1] = float(k % 5) - 2.0f;
    for (auto _ : state) {
        fftwf_execute(p);
        benchmark::ClobberMemory();
    }
    setRate(state, order);
    fftwf_destroy_plan(p);
    fftwf_free(src), fftwf_free(dst);
}

// ------------------------------------------------------------ complex 64fc

void qspC64(benchmark::State& state)
{
    const int order = int(state.range(0));
    const int n = 1 << order;
    int s, i, w;
    qspsFFTGetSize_C_64fc(order, 8, 0, &s, &i, &w);
    Block spec(s), init(i), work(w);
    QspsFFTSpec_C_64fc* rec;
    qspsFFTInit_C_64fc(&rec, order, 8, 0, spec.p, init.p);
    Qsp64fc* src = qspsMalloc_64fc(n);
    Qsp64fc* dst = qspsMalloc_64fc(n);
    for (int k = 0; k < n; ++k) src[k] = {double(k % 7) - 3.0, double(k % 5) - 2.0};
    for (auto _ : state) {
        qspsFFTFwd_CToC_64fc(src, dst, rec, work.p);
        benchmark::ClobberMemory();
    }
    setRate(state, order);
    qspsFree(src), qspsFree(dst);
}

void fftwC64(benchmark::State& state)
{
    const int order = int(state.range(0));
    const int n = 1 << order;
    fftw_complex* src = fftw_alloc_complex(n);
    fftw_complex* dst = fftw_alloc_complex(n);
    fftw_plan p = fftw_plan_dft_1d(n, src, dst, FFTW_FORWARD, FFTW_MEASURE);
    for (int k = 0; k < n; ++k) src[k][0] = double(k % 7) - 3.0, src[k][1] = double(k % 5) - 2.0;
    for (auto _ : state) {
        fftw_execute(p);
        benchmark::ClobberMemory();
    }
    setRate(state, order);
    fftw_destroy_plan(p);
    fftw_free(src), fftw_free(dst);
}

// ------------------------------------------------------------ real 32f

void qspR32(benchmark::State& state)
{
    const int order = int(state.range(0));
    const int n = 1 << order;
    int s, i, w;
    qspsFFTGetSize_R_32f(order, 8, 0, &s, &i, &w);
    Block spec(s), init(i), work(w);
    QspsFFTSpec_R_32f* rec;
    qspsFFTInit_R_32f(&rec, order, 8, 0, spec.p, init.p);
    Qsp32f* src = qspsMalloc_32f(n);
    Qsp32f* dst = qspsMalloc_32f(n + 2);
    for (int k = 0; k < n; ++k) src[k] = float(k % 7) - 3.0f;
    for (auto _ : state) {
        qspsFFTFwd_RToCCS_32f(src, dst, rec, work.p);
        benchmark::ClobberMemory();
    }
    setRate(state, order);
    qspsFree(src), qspsFree(dst);
}

void fftwR32(benchmark::State& state)
{
    const int order = int(state.range(0));
    const int n = 1 << order;
    float* src = fftwf_alloc_real(n);
    fftwf_complex* dst = fftwf_alloc_complex(n / 2 + 1);
    fftwf_plan p = fftwf_plan_dft_r2c_1d(n, src, dst, FFTW_MEASURE);
    for (int k = 0; k < n; ++k) src[k] = float(k % 7) - 3.0f;
    for (auto _ : state) {
        fftwf_execute(p);
        benchmark::ClobberMemory();
    }
    setRate(state, order);
    fftwf_destroy_plan(p);
    fftwf_free(src), fftwf_free(dst);
}

// ------------------------------------------------------------ set-up

void qspSetup(benchmark::State& state)
{
    const int order = int(state.range(0));
    int s, i, w;
    qspsFFTGetSize_C_32fc(order, 8, 0, &s, &i, &w);
    Block spec(s), init(i);
    for (auto _ : state) {
        QspsFFTSpec_C_32fc* rec;
        qspsFFTGetSize_C_32fc(order, 8, 0, &s, &i, &w);
        qspsFFTInit_C_32fc(&rec, order, 8, 0, spec.p, init.p);
        benchmark::DoNotOptimize(rec);
        benchmark::ClobberMemory();
    }
}

void fftwSetup(benchmark::State& state)
{
    const int order = int(state.range(0));
    const int n = 1 << order;
    fftwf_complex* src = fftwf_alloc_complex(n);
    fftwf_complex* dst = fftwf_alloc_complex(n);
    for (auto _ : state) {
        fftwf_plan p = fftwf_plan_dft_1d(n, src, dst, FFTW_FORWARD, FFTW_ESTIMATE);
        benchmark::DoNotOptimize(p);
        fftwf_destroy_plan(p);
    }
    fftwf_free(src), fftwf_free(dst);
}

void orders(benchmark::internal::Benchmark* b)
{
    for (int o = kMinOrder; o <= kMaxOrder; ++o) b->Arg(o);
}

}  // namespace

BENCHMARK(qspC32)->Name("qsp/C_32fc")->Apply(orders);
BENCHMARK(fftwC32)->Name("fftw/C_32fc")->Apply(orders);
BENCHMARK(qspC64)->Name("qsp/C_64fc")->Apply(orders);
BENCHMARK(fftwC64)->Name("fftw/C_64fc")->Apply(orders);
BENCHMARK(qspR32)->Name("qsp/R_32f")->Apply(orders);
BENCHMARK(fftwR32)->Name("fftw/R_32f")->Apply(orders);
BENCHMARK(qspSetup)->Name("qsp/setup_C_32fc")->Arg(10)->Arg(16)->Arg(20);
BENCHMARK(fftwSetup)->Name("fftw/setup_C_32fc")->Arg(10)->Arg(16)->Arg(20);

int main(int argc, char** argv)
{
    std::printf("peer: %s\n", fftwf_version);
    return qspbench::runWithRatios(argc, argv);
}

// SPDX-License-Identifier: BSD-3-Clause
// Power-of-two FFTs against FFTW 3 (plans made with FFTW_MEASURE, single
// thread, same direction and placement): complex single and double
// precision and real single precision, orders 0..22; and the record set-up
// (GetSize + Init) against FFTW_ESTIMATE planning at the same orders. Each
// case runs right after its twin, so that both see the same machine state.
// Each benchmark reports the conventional rate 5 N log2(N) / t as "flops";
// the ratio table at the end gives FFTW time / our time.
#include <fftw3.h>

#include <cstring>
#include <string>
#include <vector>

#include "qsps.h"
#include "ratio_reporter.h"

namespace {

constexpr int kMinOrder = 0, kMaxOrder = 22;

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

// ------------------------------------------------------------ complex

// The library's and FFTW's interfaces for one complex precision.
template <class T>
struct Complex;

template <>
struct Complex<float> {
    using Value = Qsp32fc;
    using Spec = QspsFFTSpec_C_32fc;
    using PeerValue = fftwf_complex;
    using Plan = fftwf_plan;
    static constexpr auto getSize = qspsFFTGetSize_C_32fc;
    static constexpr auto init = qspsFFTInit_C_32fc;
    static constexpr auto forward = qspsFFTFwd_CToC_32fc;
    static constexpr auto alloc = qspsMalloc_32fc;
    static PeerValue* peerAlloc(int n) { return fftwf_alloc_complex(n); }
    static Plan plan(int n, PeerValue* s, PeerValue* d) { return fftwf_plan_dft_1d(n, s, d, FFTW_FORWARD, FFTW_MEASURE); }
    static void execute(Plan p) { fftwf_execute(p); }
    static void destroy(Plan p) { fftwf_destroy_plan(p); }
    static void peerFree(PeerValue* p) { fftwf_free(p); }
};

template <>
struct Complex<double> {
    using Value = Qsp64fc;
    using Spec = QspsFFTSpec_C_64fc;
    using PeerValue = fftw_complex;
    using Plan = fftw_plan;
    static constexpr auto getSize = qspsFFTGetSize_C_64fc;
    static constexpr auto init = qspsFFTInit_C_64fc;
    static constexpr auto forward = qspsFFTFwd_CToC_64fc;
    static constexpr auto alloc = qspsMalloc_64fc;
    static PeerValue* peerAlloc(int n) { return fftw_alloc_complex(n); }
    static Plan plan(int n, PeerValue* s, PeerValue* d) { return fftw_plan_dft_1d(n, s, d, FFTW_FORWARD, FFTW_MEASURE); }
    static void execute(Plan p) { fftw_execute(p); }
    static void destroy(Plan p) { fftw_destroy_plan(p); }
    static void peerFree(PeerValue* p) { fftw_free(p); }
};

template <class T>
void qspComplex(benchmark::State& state)
{
    using A = Complex<T>;
    const int order = int(state.range(0));
    const int n = 1 << order;
    int s, i, w;
    A::getSize(order, 8, 0, &s, &i, &w);
    Block spec(s), init(i), work(w);
    typename A::Spec* rec;
    A::init(&rec, order, 8, 0, spec.p, init.p);
    typename A::Value* src = A::alloc(n);
    typename A::Value* dst = A::alloc(n);
    for (int k = 0; k < n; ++k) src[k] = {T(k % 7) - 3, T(k % 5) - 2};
    for (auto _ : state) {
        A::forward(src, dst, rec, work.p);
        benchmark::ClobberMemory();
    }
    setRate(state, order);
    qspsFree(src), qspsFree(dst);
}

template <class T>
void fftwComplex(benchmark::State& state)
{
    using A = Complex<T>;
    const int order = int(state.range(0));
    const int n = 1 << order;
    typename A::PeerValue* src = A::peerAlloc(n);
    typename A::PeerValue* dst = A::peerAlloc(n);
    typename A::Plan p = A::plan(n, src, dst);
    for (int k = 0; k < n; ++k) src[k][0] = T(k % 7) - 3, src[k][1] = T(k % 5) - 2;
    for (auto _ : state) {
        A::execute(p);
        benchmark::ClobberMemory();
    }
    setRate(state, order);
    A::destroy(p);
    A::peerFree(src), A::peerFree(dst);
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
        fftwf_forget_wisdom();
        fftwf_plan p = fftwf_plan_dft_1d(n, src, dst, FFTW_FORWARD, FFTW_ESTIMATE);
        benchmark::DoNotOptimize(p);
        fftwf_destroy_plan(p);
    }
    fftwf_free(src), fftwf_free(dst);
}

}  // namespace

int main(int argc, char** argv)
{
    std::printf("peer: %s\n", fftwf_version);
    // Registered kind by kind and order by order, ours first, the peer next.
    const struct {
        const char* name;
        void (*qsp)(benchmark::State&);
        void (*peer)(benchmark::State&);
    } kinds[] = {
        {"C_32fc", qspComplex<float>, fftwComplex<float>},
        {"C_64fc", qspComplex<double>, fftwComplex<double>},
        {"R_32f", qspR32, fftwR32},
        {"setup_C_32fc", qspSetup, fftwSetup},
    };
    for (const auto& k : kinds)
        for (int o = kMinOrder; o <= kMaxOrder; ++o) {
            benchmark::RegisterBenchmark((std::string("qsp/") + k.name).c_str(), k.qsp)->Arg(o);
            benchmark::RegisterBenchmark((std::string("fftw/") + k.name).c_str(), k.peer)->Arg(o);
        }
    return qspbench::runWithRatios(argc, argv);
}

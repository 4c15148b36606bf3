// SPDX-License-Identifier: BSD-3-Clause
// Elementary functions against SLEEF's 128-bit SSE4 variants of 1.0-ULP
// accuracy (Sleef_expf4_u10sse4 and kin), glibc's 128-bit vector functions
// (libmvec, _ZGVbN4v_expf and kin) and a plain loop over glibc's scalar
// functions, on vectors of 1 Ki and 1 Mi elements. Each case runs as
// qsp/<case>, sleef/<case>, mvec/<case> and libm/<case>; the report ends
// with the ratios peer time / qsp time (above 1: the library is faster),
// from the fastest repetition of each. Repetitions are interleaved at
// random by default, so that the machine's changing load falls on all
// implementations alike.
#include <sleef.h>

#include <cmath>
#include <cstring>
#include <functional>
#include <map>
#include <random>
#include <string>
#include <vector>

#include "qsps.h"
#include "ratio_reporter.h"

extern "C" {
__m128 _ZGVbN4v_expf(__m128);
__m128 _ZGVbN4v_logf(__m128);
__m128 _ZGVbN4v_atanf(__m128);
__m128 _ZGVbN4v_cbrtf(__m128);
__m128d _ZGVbN2v_exp(__m128d);
__m128d _ZGVbN2v_log(__m128d);
__m128d _ZGVbN2v_atan(__m128d);
}

namespace {

constexpr int kSizes[] = {1 << 10, 1 << 20};

struct Range {
    double lo, hi;
    bool logarithmic;  // 2^v for v uniform in [lo, hi]
};

// Sources of n floats and n doubles drawn from the range, and a
// destination of n elements of 8 bytes at most.
struct Data {
    Data(int n, Range r) : n(n), fsrc(n), dsrc(n)
    {
        std::mt19937_64 rng(n);
        std::uniform_real_distribution<double> d(r.lo, r.hi);
        for (int i = 0; i < n; ++i) {
            const double v = r.logarithmic ? std::exp2(d(rng)) : d(rng);
            dsrc[i] = v;
            fsrc[i] = float(v);
        }
        dst = qspsMalloc_8u(n * 8);
    }
    ~Data() { qspsFree(dst); }
    const float* f() const { return fsrc.data(); }
    const double* d() const { return dsrc.data(); }
    float* fo() { return reinterpret_cast<float*>(dst); }
    double* dout() { return reinterpret_cast<double*>(dst); }
    int n;
    std::vector<float> fsrc;
    std::vector<double> dsrc;
    Qsp8u* dst;
};

using Body = std::function<void(Data&)>;

void registerCase(const std::string& name, const char* impl, Range r, Body body)
{
    for (int n : kSizes) {
        const std::string full = std::string(impl) + "/" + name + "/" + std::to_string(n);
        benchmark::RegisterBenchmark(full.c_str(), [=](benchmark::State& state) {
            static std::map<std::string, Data> shared;
            Data& data = shared.try_emplace(name + std::to_string(n), n, r).first->second;
            for (auto _ : state) {
                body(data);
                benchmark::ClobberMemory();
            }
            state.SetItemsProcessed(int64_t(state.iterations()) * n);
        });
    }
}

// Four floats or two doubles at a time through a 128-bit peer function.
inline __m128 load(const float* p) { return _mm_loadu_ps(p); }
inline __m128d load(const double* p) { return _mm_loadu_pd(p); }
inline void store(float* p, __m128 v) { _mm_storeu_ps(p, v); }
inline void store(double* p, __m128d v) { _mm_storeu_pd(p, v); }

template <class T, class R>
void vectorLoop(const T* x, T* y, int n, R (*v)(R))
{
    for (int i = 0; i < n; i += int(16 / sizeof(T))) store(y + i, v(load(x + i)));
}

const float* source(const Data& d, float) { return d.f(); }
const double* source(const Data& d, double) { return d.d(); }
float* destination(Data& d, float) { return d.fo(); }
double* destination(Data& d, double) { return d.dout(); }

// One case in one precision: the library, SLEEF, libmvec and the libm loop.
template <class T, class R>
void peerCase(const char* name, Range r, QspStatus (*qsp)(const T*, T*, int), R (*sleef)(R), R (*mvec)(R),
              T (*libm)(T))
{
    registerCase(name, "qsp", r, [=](Data& d) { qsp(source(d, T()), destination(d, T()), d.n); });
    registerCase(name, "sleef", r, [=](Data& d) { vectorLoop(source(d, T()), destination(d, T()), d.n, sleef); });
    registerCase(name, "mvec", r, [=](Data& d) { vectorLoop(source(d, T()), destination(d, T()), d.n, mvec); });
    registerCase(name, "libm", r, [=](Data& d) {
        const T* x = source(d, T());
        T* y = destination(d, T());
        for (int i = 0; i < d.n; ++i) y[i] = libm(x[i]);
    });
}

// SLEEF's functions are declared const; pointers to them convert.
__m128 sleefExpf(__m128 x) { return Sleef_expf4_u10sse4(x); }
__m128 sleefLogf(__m128 x) { return Sleef_logf4_u10sse4(x); }
__m128 sleefAtanf(__m128 x) { return Sleef_atanf4_u10sse4(x); }
__m128 sleefCbrtf(__m128 x) { return Sleef_cbrtf4_u10sse4(x); }
__m128d sleefExp(__m128d x) { return Sleef_expd2_u10sse4(x); }
__m128d sleefLog(__m128d x) { return Sleef_logd2_u10sse4(x); }
__m128d sleefAtan(__m128d x) { return Sleef_atand2_u10sse4(x); }
float libmExpf(float x) { return std::exp(x); }
float libmLogf(float x) { return std::log(x); }
float libmAtanf(float x) { return std::atan(x); }
float libmCbrtf(float x) { return std::cbrt(x); }
double libmExp(double x) { return std::exp(x); }
double libmLog(double x) { return std::log(x); }
double libmAtan(double x) { return std::atan(x); }

const bool registered = [] {
    peerCase("exp_32f", {-87.0, 88.0, false}, qspsExp_32f, sleefExpf, _ZGVbN4v_expf, libmExpf);
    peerCase("ln_32f", {-120.0, 120.0, true}, qspsLn_32f, sleefLogf, _ZGVbN4v_logf, libmLogf);
    peerCase("arctan_32f", {-100.0, 100.0, false}, qspsArctan_32f, sleefAtanf, _ZGVbN4v_atanf, libmAtanf);
    peerCase("cubrt_32f", {-1e10, 1e10, false}, qspsCubrt_32f, sleefCbrtf, _ZGVbN4v_cbrtf, libmCbrtf);
    peerCase("exp_64f", {-700.0, 700.0, false}, qspsExp_64f, sleefExp, _ZGVbN2v_exp, libmExp);
    peerCase("ln_64f", {-900.0, 900.0, true}, qspsLn_64f, sleefLog, _ZGVbN2v_log, libmLog);
    peerCase("arctan_64f", {-100.0, 100.0, false}, qspsArctan_64f, sleefAtan, _ZGVbN2v_atan, libmAtan);
    return true;
}();

}  // namespace

// Repetitions interleaved at random unless the command line says otherwise.
int main(int argc, char** argv)
{
    std::vector<char*> args(argv, argv + argc);
    std::string reps = "--benchmark_repetitions=8", interleave = "--benchmark_enable_random_interleaving=true";
    bool hasReps = false;
    for (int i = 1; i < argc; ++i) hasReps = hasReps || std::strncmp(argv[i], "--benchmark_repetitions", 23) == 0;
    if (!hasReps) args.push_back(reps.data()), args.push_back(interleave.data());
    int n = int(args.size());
    return qspbench::runWithRatios(n, args.data());
}

// SPDX-License-Identifier: BSD-3-Clause
// Power-of-two FFTs against FFTW 3, orders 0..22 of every kind: complex
// single and double precision (C_32fc, C_64fc) and real single and double
// precision into CCS (R_32f, R_64f, against FFTW's r2c). Two peers: the
// FFTW built with 128-bit SSE2 codelets only (fftw_sse2, the same vector
// width as ours; skipped when it is not installed) and the system FFTW
// (fftw, which uses 256-bit AVX). Plans are made with FFTW_MEASURE, single
// thread, out of place, in the same direction.
//
// Cases, each <impl>/<case>/<order>:
//   <kind>          forward, out of place: qsp, fftw_sse2, fftw
//   <kind>_inv      inverse, out of place: qsp and, for the complex kinds,
//                   both peers; qsp_forward is our forward transform, so its
//                   ratio is forward time / inverse time
//   <kind>_I        forward in place (flag 4): qsp, and qsp_out_of_place,
//                   the same record out of place, whose ratio is
//                   out-of-place time / in-place time. Each call first
//                   copies the source into the array it transforms (in
//                   place: that array; out of place: a scratch source), so
//                   both sides read fresh data of the same history. Without
//                   the copy, repeated in-place calls would each wait for
//                   the previous result (a latency chain that out-of-place
//                   calls do not have), and a real spectrum transformed
//                   again and again loses half its energy per call until
//                   it runs on denormal numbers.
//   setup_C_32fc    GetSize + Init against FFTW_ESTIMATE planning
//
//   <kind>_same     qsp and qsp_again: the same forward call measured twice,
//                   whose ratio shows the noise of the measurement
//
// All contenders of one kind and order are measured together, alternating
// in short chunks (about 30 microseconds of calls each, at least one call)
// for a number of rounds (about 0.15 s per contender, 15 to 300 rounds),
// and each keeps its fastest chunk: on a
// shared machine the slower chunks measure the neighbours, and chunks this
// short are rarely interrupted. Google Benchmark then reports each
// contender's time per call as manual time. The ratio table at the end
// gives peer time / our time (above 1: we are faster), and a summary table
// per kind follows it.
#include <fftw3.h>

#include <chrono>
#include <cstring>
#include <functional>
#include <map>
#include <memory>
#include <string>
#include <vector>

#include "fftw_sse2.h"
#include "qsps.h"
#include "ratio_reporter.h"

namespace {

constexpr int kMaxOrder = 22;

// ------------------------------------------------------------ peers

// One FFTW library of one precision: the SSE2-only build loaded at run time,
// or the system library linked in.
template <class T>
struct PeerTraits;

template <>
struct PeerTraits<float> {
    using Api = qspbench::FftwSse2f;
    using Complex = fftwf_complex;
    using Plan = fftwf_plan;
    static const Api* sse2() { return qspbench::fftwSse2f().available() ? &qspbench::fftwSse2f() : nullptr; }
    static const Api* system()
    {
        static const Api api = [] {
            Api a;
            a.version = fftwf_version;
            a.plan_dft_1d = fftwf_plan_dft_1d;
            a.plan_dft_r2c_1d = fftwf_plan_dft_r2c_1d;
            a.execute = fftwf_execute;
            a.destroy_plan = fftwf_destroy_plan;
            return a;
        }();
        return &api;
    }
};

template <>
struct PeerTraits<double> {
    using Api = qspbench::FftwSse2d;
    using Complex = fftw_complex;
    using Plan = fftw_plan;
    static const Api* sse2() { return qspbench::fftwSse2d().available() ? &qspbench::fftwSse2d() : nullptr; }
    static const Api* system()
    {
        static const Api api = [] {
            Api a;
            a.version = fftw_version;
            a.plan_dft_1d = fftw_plan_dft_1d;
            a.plan_dft_r2c_1d = fftw_plan_dft_r2c_1d;
            a.execute = fftw_execute;
            a.destroy_plan = fftw_destroy_plan;
            return a;
        }();
        return &api;
    }
};

// ------------------------------------------------------------ the library

// The library's calls of one kind through one shape: getSize, init, and the
// forward, inverse and in-place forward transforms on raw pointers.
template <class T, bool Real>
struct Ours;

template <>
struct Ours<float, false> {
    using Spec = QspsFFTSpec_C_32fc;
    static constexpr auto getSize = qspsFFTGetSize_C_32fc;
    static constexpr auto init = qspsFFTInit_C_32fc;
    static void fwd(const void* s, void* d, const Spec* r, Qsp8u* w) { qspsFFTFwd_CToC_32fc((const Qsp32fc*)s, (Qsp32fc*)d, r, w); }
    static void inv(const void* s, void* d, const Spec* r, Qsp8u* w) { qspsFFTInv_CToC_32fc((const Qsp32fc*)s, (Qsp32fc*)d, r, w); }
    static void fwdI(void* sd, const Spec* r, Qsp8u* w) { qspsFFTFwd_CToC_32fc_I((Qsp32fc*)sd, r, w); }
};

template <>
struct Ours<double, false> {
    using Spec = QspsFFTSpec_C_64fc;
    static constexpr auto getSize = qspsFFTGetSize_C_64fc;
    static constexpr auto init = qspsFFTInit_C_64fc;
    static void fwd(const void* s, void* d, const Spec* r, Qsp8u* w) { qspsFFTFwd_CToC_64fc((const Qsp64fc*)s, (Qsp64fc*)d, r, w); }
    static void inv(const void* s, void* d, const Spec* r, Qsp8u* w) { qspsFFTInv_CToC_64fc((const Qsp64fc*)s, (Qsp64fc*)d, r, w); }
    static void fwdI(void* sd, const Spec* r, Qsp8u* w) { qspsFFTFwd_CToC_64fc_I((Qsp64fc*)sd, r, w); }
};

template <>
struct Ours<float, true> {
    using Spec = QspsFFTSpec_R_32f;
    static constexpr auto getSize = qspsFFTGetSize_R_32f;
    static constexpr auto init = qspsFFTInit_R_32f;
    static void fwd(const void* s, void* d, const Spec* r, Qsp8u* w) { qspsFFTFwd_RToCCS_32f((const Qsp32f*)s, (Qsp32f*)d, r, w); }
    static void inv(const void* s, void* d, const Spec* r, Qsp8u* w) { qspsFFTInv_CCSToR_32f((const Qsp32f*)s, (Qsp32f*)d, r, w); }
    static void fwdI(void* sd, const Spec* r, Qsp8u* w) { qspsFFTFwd_RToCCS_32f_I((Qsp32f*)sd, r, w); }
};

template <>
struct Ours<double, true> {
    using Spec = QspsFFTSpec_R_64f;
    static constexpr auto getSize = qspsFFTGetSize_R_64f;
    static constexpr auto init = qspsFFTInit_R_64f;
    static void fwd(const void* s, void* d, const Spec* r, Qsp8u* w) { qspsFFTFwd_RToCCS_64f((const Qsp64f*)s, (Qsp64f*)d, r, w); }
    static void inv(const void* s, void* d, const Spec* r, Qsp8u* w) { qspsFFTInv_CCSToR_64f((const Qsp64f*)s, (Qsp64f*)d, r, w); }
    static void fwdI(void* sd, const Spec* r, Qsp8u* w) { qspsFFTFwd_RToCCS_64f_I((Qsp64f*)sd, r, w); }
};

// A block of the library's aligned memory, zero-filled.
struct Block {
    explicit Block(long long bytes) : p(bytes > 0 ? qspsMalloc_8u_L(bytes) : nullptr)
    {
        if (p) std::memset(p, 0, size_t(bytes));
    }
    ~Block() { qspsFree(p); }
    Block(const Block&) = delete;
    Block& operator=(const Block&) = delete;
    Qsp8u* p;
};

// A record of one kind, order and flag with its work buffer.
template <class T, bool Real>
struct Record {
    Record(int order, int flag)
    {
        int s = 0, i = 0, w = 0;
        Ours<T, Real>::getSize(order, flag, 0, &s, &i, &w);
        spec = std::make_unique<Block>(s);
        work = std::make_unique<Block>(w);
        Block init(i);
        Ours<T, Real>::init(&rec, order, flag, 0, spec->p, init.p);
    }
    std::unique_ptr<Block> spec, work;
    typename Ours<T, Real>::Spec* rec = nullptr;
};

// Everything one kind and order shares: the records, the arrays (the
// source keeps its values; out-of-place calls write only the destination;
// in-place calls have an array of their own) and the peers' plans, all
// made once and kept for the whole run.
template <class T, bool Real>
struct Setup {
    explicit Setup(int order) : n(1LL << order), plain(order, 8), halved(order, 4)
    {
        // Values per array: N complex or N + 2 real (the CCS spectrum).
        const long long values = Real ? n + 2 : 2 * n;
        src = std::make_unique<Block>(values * (long long)sizeof(T));
        dst = std::make_unique<Block>(values * (long long)sizeof(T));
        inPlace = std::make_unique<Block>(values * (long long)sizeof(T));
        scratch = std::make_unique<Block>(values * (long long)sizeof(T));
        bytes = size_t(values) * sizeof(T);
        fill(src->p, values);
        fill(inPlace->p, values);
    }
    static void fill(Qsp8u* p, long long values)
    {
        T* v = reinterpret_cast<T*>(p);
        for (long long k = 0; k < values; ++k) v[k] = T(k % 7) - T(3) + T(k % 5) * T(0.25);
    }
    long long n;
    Record<T, Real> plain, halved;
    size_t bytes = 0;  // of each array
    std::unique_ptr<Block> src, dst, inPlace, scratch;
    // Plans by (peer, inverse).
    std::map<std::pair<const void*, bool>, void*> plans;
};

template <class T, bool Real>
Setup<T, Real>& setupOf(int order)
{
    static std::map<int, std::unique_ptr<Setup<T, Real>>> all;
    auto& s = all[order];
    if (!s) s = std::make_unique<Setup<T, Real>>(order);
    return *s;
}

// The peer's plan for a case, made with FFTW_MEASURE on the shared arrays
// (planning overwrites them, so the source is filled again afterwards).
template <class T, bool Real>
typename PeerTraits<T>::Plan peerPlan(const typename PeerTraits<T>::Api* api, Setup<T, Real>& s, bool inverse)
{
    using Complex = typename PeerTraits<T>::Complex;
    using Plan = typename PeerTraits<T>::Plan;
    void*& slot = s.plans[{api, inverse}];
    if (!slot) {
        Plan p;
        if constexpr (Real)
            p = api->plan_dft_r2c_1d(int(s.n), reinterpret_cast<T*>(s.src->p), reinterpret_cast<Complex*>(s.dst->p),
                                     FFTW_MEASURE);
        else
            p = api->plan_dft_1d(int(s.n), reinterpret_cast<Complex*>(s.src->p), reinterpret_cast<Complex*>(s.dst->p),
                                 inverse ? FFTW_BACKWARD : FFTW_FORWARD, FFTW_MEASURE);
        Setup<T, Real>::fill(s.src->p, Real ? s.n + 2 : 2 * s.n);
        slot = reinterpret_cast<void*>(p);
    }
    return reinterpret_cast<Plan>(slot);
}

double secondsNow()
{
    return std::chrono::duration<double>(std::chrono::steady_clock::now().time_since_epoch()).count();
}

// A contender runs a chunk of `calls` calls and returns its seconds per
// call. The call is inlined into the chunk's loop (contender()), so the
// time per call holds the transform and its own call, not an indirect call
// of the harness: at orders 0..3, where a transform takes 3..7 ns, such a
// call would add the same 1..3 ns to both sides and pull every ratio
// towards 1.
struct Contender {
    std::string name;
    std::function<double(long)> chunk;
};

template <class Call>
Contender contender(std::string name, Call call)
{
    return {std::move(name), [call](long calls) {
                const double t0 = secondsNow();
                for (long i = 0; i < calls; ++i) call();
                return (secondsNow() - t0) / double(calls);
            }};
}

// The fastest chunk of every contender of one kind and order, in seconds
// per call, measured once and kept.
std::map<std::string, double> measure(std::vector<Contender> cs)
{
    for (auto& c : cs) c.chunk(1);  // warm up (and first-touch the buffers)
    const double one = cs[0].chunk(1);
    const long calls = one > 30e-6 ? 1 : long(30e-6 / (one > 1e-9 ? one : 1e-9)) + 1;
    // About 0.15 s per contender in all, between 15 and 300 rounds.
    long rounds = long(0.15 / (one * double(calls)));
    rounds = rounds < 15 ? 15 : rounds > 300 ? 300 : rounds;
    std::map<std::string, double> best;
    for (long r = 0; r < rounds; ++r)
        for (const auto& c : cs) {
            const double t = c.chunk(calls);
            auto it = best.find(c.name);
            if (it == best.end() || t < it->second) best[c.name] = t;
        }
    return best;
}

// The contenders of a kind and order, by name as registered (impl/case).
template <class T, bool Real>
std::map<std::string, double>& resultsOf(const std::string& kind, int order)
{
    static std::map<int, std::map<std::string, double>> all;
    auto it = all.find(order);
    if (it != all.end()) return it->second;
    Setup<T, Real>& s = setupOf<T, Real>(order);
    using O = Ours<T, Real>;
    std::vector<Contender> cs;
    cs.push_back(contender("qsp/" + kind, [&s] { O::fwd(s.src->p, s.dst->p, s.plain.rec, s.plain.work->p); }));
    cs.push_back(
        contender("qsp_again/" + kind + "_same", [&s] { O::fwd(s.src->p, s.dst->p, s.plain.rec, s.plain.work->p); }));
    cs.push_back(contender("qsp/" + kind + "_inv", [&s] { O::inv(s.src->p, s.dst->p, s.plain.rec, s.plain.work->p); }));
    cs.push_back(contender("qsp/" + kind + "_I", [&s] {
        std::memcpy(s.inPlace->p, s.src->p, s.bytes);
        O::fwdI(s.inPlace->p, s.halved.rec, s.halved.work->p);
    }));
    cs.push_back(contender("qsp_out_of_place/" + kind + "_I", [&s] {
        std::memcpy(s.scratch->p, s.src->p, s.bytes);
        O::fwd(s.scratch->p, s.dst->p, s.halved.rec, s.halved.work->p);
    }));
    for (int sse2 = 0; sse2 < 2; ++sse2) {
        const auto* api = sse2 ? PeerTraits<T>::sse2() : PeerTraits<T>::system();
        if (!api) continue;
        const std::string peer = sse2 ? "fftw_sse2/" : "fftw/";
        const auto fwd = peerPlan<T, Real>(api, s, false);
        cs.push_back(contender(peer + kind, [api, fwd] { api->execute(fwd); }));
        if constexpr (!Real) {
            const auto inv = peerPlan<T, Real>(api, s, true);
            cs.push_back(contender(peer + kind + "_inv", [api, inv] { api->execute(inv); }));
        }
    }
    auto& r = all[order];
    r = measure(cs);
    // Our forward call is also the reference of the inverse: qsp_forward.
    r["qsp_forward/" + kind + "_inv"] = r["qsp/" + kind];
    r["qsp/" + kind + "_same"] = r["qsp/" + kind];
    return r;
}

template <class T, bool Real>
void reportOne(benchmark::State& state, const std::string& kind, const std::string& name)
{
    const int order = int(state.range(0));
    const auto& r = resultsOf<T, Real>(kind, order);
    const auto it = r.find(name);
    if (it == r.end()) {
        state.SkipWithError("peer not installed");
        return;
    }
    for (auto _ : state) state.SetIterationTime(it->second);
    const double n = double(1LL << order);
    state.counters["flops"] = benchmark::Counter(5.0 * n * order / it->second);
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

// ------------------------------------------------------------ summary

// The ratio table of the base reporter, then one table per kind with the
// orders as rows: forward against each peer, inverse against each peer
// (complex kinds), and our in-place and inverse times against our own
// out-of-place forward ones.
class SummaryReporter : public qspbench::RatioReporter {
public:
    void ReportRuns(const std::vector<Run>& runs) override
    {
        RatioReporter::ReportRuns(runs);
        for (const Run& r : runs) {
            if (r.run_type != Run::RT_Iteration || r.error_occurred) continue;
            // Keyed impl/case/order, without the run's iteration and time-type
            // suffixes.
            double& t = best_[r.run_name.function_name + "/" + r.run_name.args];
            const double now = r.GetAdjustedRealTime();
            if (t == 0 || now < t) t = now;
        }
    }

    void Finalize() override
    {
        RatioReporter::Finalize();
        for (const char* kind : {"C_32fc", "C_64fc", "R_32f", "R_64f"}) {
            const bool complex = kind[0] == 'C';
            std::printf("\n%s: peer time / qsp time; then qsp in-place / out-of-place and inverse / forward "
                        "time, and the same call measured twice (noise)\n",
                        kind);
            std::printf("order  fwd/sse2  fwd/fftw  inv/sse2  inv/fftw     I/oop   inv/fwd     noise\n");
            for (int o = 0; o <= kMaxOrder; ++o) {
                const std::string k = std::string(kind), s = "/" + std::to_string(o);
                auto ratio = [&](const std::string& a, const std::string& b) {
                    const auto x = best_.find(a), y = best_.find(b);
                    return (x == best_.end() || y == best_.end() || y->second == 0) ? 0.0 : x->second / y->second;
                };
                auto cell = [](double v) {
                    if (v == 0)
                        std::printf("  %8s", "-");
                    else
                        std::printf("  %8.3f", v);
                };
                std::printf("%5d", o);
                cell(ratio("fftw_sse2/" + k + s, "qsp/" + k + s));
                cell(ratio("fftw/" + k + s, "qsp/" + k + s));
                cell(complex ? ratio("fftw_sse2/" + k + "_inv" + s, "qsp/" + k + "_inv" + s) : 0.0);
                cell(complex ? ratio("fftw/" + k + "_inv" + s, "qsp/" + k + "_inv" + s) : 0.0);
                cell(ratio("qsp/" + k + "_I" + s, "qsp_out_of_place/" + k + "_I" + s));
                cell(ratio("qsp/" + k + "_inv" + s, "qsp_forward/" + k + "_inv" + s));
                cell(ratio("qsp_again/" + k + "_same" + s, "qsp/" + k + "_same" + s));
                std::printf("\n");
            }
        }
    }

private:
    std::map<std::string, double> best_;
};

template <class T, bool Real>
void registerKind(const char* kind)
{
    const std::string k = kind;
    std::vector<std::string> names = {"qsp/" + k, "qsp_again/" + k + "_same", "qsp/" + k + "_same",
                                      "fftw_sse2/" + k, "fftw/" + k, "qsp/" + k + "_inv", "qsp_forward/" + k + "_inv",
                                      "qsp/" + k + "_I", "qsp_out_of_place/" + k + "_I"};
    if constexpr (!Real) {
        names.push_back("fftw_sse2/" + k + "_inv");
        names.push_back("fftw/" + k + "_inv");
    }
    for (int o = 0; o <= kMaxOrder; ++o)
        for (const std::string& name : names)
            benchmark::RegisterBenchmark(name.c_str(),
                                         [k, name](benchmark::State& st) { reportOne<T, Real>(st, k, name); })
                ->Arg(o)
                ->UseManualTime()
                ->Iterations(1);
}

}  // namespace

int main(int argc, char** argv)
{
    std::printf("peers: fftw %s; fftw_sse2 %s\n", fftwf_version,
                PeerTraits<float>::sse2() ? PeerTraits<float>::sse2()->version : "not installed");
    registerKind<float, false>("C_32fc");
    registerKind<double, false>("C_64fc");
    registerKind<float, true>("R_32f");
    registerKind<double, true>("R_64f");
    for (int o = 0; o <= kMaxOrder; ++o) {
        benchmark::RegisterBenchmark("qsp/setup_C_32fc", qspSetup)->Arg(o);
        benchmark::RegisterBenchmark("fftw/setup_C_32fc", fftwSetup)->Arg(o);
    }
    benchmark::Initialize(&argc, argv);
    SummaryReporter reporter;
    benchmark::RunSpecifiedBenchmarks(&reporter);
    benchmark::Shutdown();
    return 0;
}

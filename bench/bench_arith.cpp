// SPDX-License-Identifier: BSD-3-Clause
// Element-wise arithmetic against VOLK (where it has the same operation)
// and against a plain loop compiled here with -O3 -msse4.2, at 1 Ki, 16 Ki,
// 256 Ki and 16 Mi elements. Each case runs as qsp/<case>, volk/<case> and
// plain/<case>; the report ends with the time ratios (above 1: the library
// is faster). VOLK chooses its own kernels for this machine (its choice is
// printed first).
#include <volk/volk.h>

#include <cmath>
#include <cstdio>
#include <cstring>
#include <functional>
#include <map>
#include <string>

#include "qsps.h"
#include "ratio_reporter.h"

namespace {

constexpr int64_t kSizes[] = {1 << 10, 1 << 14, 1 << 18, 1 << 24};

// Three aligned buffers of n elements of 16 bytes at most, with data.
struct Buffers {
    explicit Buffers(int64_t n) : n(n)
    {
        for (auto*& p : buf) {
            p = qspsMalloc_8u(int(n * 16 + 64));
            auto* f = reinterpret_cast<float*>(p);
            for (int64_t i = 0; i < n * 4; ++i) f[i] = 1.0f + float(i % 97) * 0.03125f;
        }
    }
    ~Buffers()
    {
        for (auto* p : buf) qspsFree(p);
    }
    template <class T>
    T* at(int k)
    {
        return reinterpret_cast<T*>(buf[k]);
    }
    Qsp8u* buf[3];
    int64_t n;
};

using Body = std::function<void(Buffers&, int)>;

void registerCase(const std::string& name, const char* impl, Body body, int bytesPerElement)
{
    for (int64_t n : kSizes) {
        const std::string full = std::string(impl) + "/" + name + "/" + std::to_string(n);
        benchmark::RegisterBenchmark(full.c_str(), [=](benchmark::State& state) {
            // One set of buffers per size for the whole run: filling 16 Mi
            // elements for every repetition would take longer than timing them.
            static std::map<int64_t, Buffers> shared;
            Buffers& b = shared.try_emplace(n, n).first->second;
            for (auto _ : state) {
                body(b, int(n));
                benchmark::ClobberMemory();
            }
            state.SetBytesProcessed(int64_t(state.iterations()) * n * bytesPerElement);
        });
    }
}

// One case: the library, then VOLK (if it has the operation), then the
// plain loop.
void add(const std::string& name, int bytes, Body qsp, Body volk, Body plain)
{
    registerCase(name, "qsp", qsp, bytes);
    if (volk) registerCase(name, "volk", volk, bytes);
    registerCase(name, "plain", plain, bytes);
}

// Plain loops, written the obvious way.
template <class F>
void loop(int n, F f)
{
    for (int i = 0; i < n; ++i) f(i);
}

void registerAll()
{
    using F = float;
    add(
        "Add_32f", 12, [](Buffers& b, int n) { qspsAdd_32f(b.at<F>(0), b.at<F>(1), b.at<F>(2), n); },
        [](Buffers& b, int n) { volk_32f_x2_add_32f(b.at<F>(2), b.at<F>(0), b.at<F>(1), n); },
        [](Buffers& b, int n) {
            const F *a = b.at<F>(0), *c = b.at<F>(1);
            F* d = b.at<F>(2);
            loop(n, [&](int i) { d[i] = a[i] + c[i]; });
        });
    add(
        "Sub_32f", 12, [](Buffers& b, int n) { qspsSub_32f(b.at<F>(1), b.at<F>(0), b.at<F>(2), n); },
        [](Buffers& b, int n) { volk_32f_x2_subtract_32f(b.at<F>(2), b.at<F>(0), b.at<F>(1), n); },
        [](Buffers& b, int n) {
            const F *a = b.at<F>(0), *c = b.at<F>(1);
            F* d = b.at<F>(2);
            loop(n, [&](int i) { d[i] = a[i] - c[i]; });
        });
    add(
        "Mul_32f", 12, [](Buffers& b, int n) { qspsMul_32f(b.at<F>(0), b.at<F>(1), b.at<F>(2), n); },
        [](Buffers& b, int n) { volk_32f_x2_multiply_32f(b.at<F>(2), b.at<F>(0), b.at<F>(1), n); },
        [](Buffers& b, int n) {
            const F *a = b.at<F>(0), *c = b.at<F>(1);
            F* d = b.at<F>(2);
            loop(n, [&](int i) { d[i] = a[i] * c[i]; });
        });
    add(
        "Div_32f", 12, [](Buffers& b, int n) { qspsDiv_32f(b.at<F>(1), b.at<F>(0), b.at<F>(2), n); },
        [](Buffers& b, int n) { volk_32f_x2_divide_32f(b.at<F>(2), b.at<F>(0), b.at<F>(1), n); },
        [](Buffers& b, int n) {
            const F *a = b.at<F>(0), *c = b.at<F>(1);
            F* d = b.at<F>(2);
            loop(n, [&](int i) { d[i] = a[i] / c[i]; });
        });
    add(
        "MulC_32f", 8, [](Buffers& b, int n) { qspsMulC_32f(b.at<F>(0), 1.5f, b.at<F>(2), n); },
        [](Buffers& b, int n) { volk_32f_s32f_multiply_32f(b.at<F>(2), b.at<F>(0), 1.5f, n); },
        [](Buffers& b, int n) {
            const F* a = b.at<F>(0);
            F* d = b.at<F>(2);
            loop(n, [&](int i) { d[i] = a[i] * 1.5f; });
        });
    add(
        "AddC_32f", 8, [](Buffers& b, int n) { qspsAddC_32f(b.at<F>(0), 1.5f, b.at<F>(2), n); },
        [](Buffers& b, int n) { volk_32f_s32f_add_32f(b.at<F>(2), b.at<F>(0), 1.5f, n); },
        [](Buffers& b, int n) {
            const F* a = b.at<F>(0);
            F* d = b.at<F>(2);
            loop(n, [&](int i) { d[i] = a[i] + 1.5f; });
        });
    add(
        "Add_64f", 24, [](Buffers& b, int n) { qspsAdd_64f(b.at<double>(0), b.at<double>(1), b.at<double>(2), n); },
        [](Buffers& b, int n) { volk_64f_x2_add_64f(b.at<double>(2), b.at<double>(0), b.at<double>(1), n); },
        [](Buffers& b, int n) {
            const double *a = b.at<double>(0), *c = b.at<double>(1);
            double* d = b.at<double>(2);
            loop(n, [&](int i) { d[i] = a[i] + c[i]; });
        });
    add(
        "Mul_64f", 24, [](Buffers& b, int n) { qspsMul_64f(b.at<double>(0), b.at<double>(1), b.at<double>(2), n); },
        [](Buffers& b, int n) { volk_64f_x2_multiply_64f(b.at<double>(2), b.at<double>(0), b.at<double>(1), n); },
        [](Buffers& b, int n) {
            const double *a = b.at<double>(0), *c = b.at<double>(1);
            double* d = b.at<double>(2);
            loop(n, [&](int i) { d[i] = a[i] * c[i]; });
        });
    using C = Qsp32fc;
    add(
        "Add_32fc", 24, [](Buffers& b, int n) { qspsAdd_32fc(b.at<C>(0), b.at<C>(1), b.at<C>(2), n); },
        [](Buffers& b, int n) {
            volk_32fc_x2_add_32fc(b.at<lv_32fc_t>(2), b.at<lv_32fc_t>(0), b.at<lv_32fc_t>(1), n);
        },
        [](Buffers& b, int n) {
            const C *a = b.at<C>(0), *c = b.at<C>(1);
            C* d = b.at<C>(2);
            loop(n, [&](int i) { d[i] = {a[i].re + c[i].re, a[i].im + c[i].im}; });
        });
    add(
        "Mul_32fc", 24, [](Buffers& b, int n) { qspsMul_32fc(b.at<C>(0), b.at<C>(1), b.at<C>(2), n); },
        [](Buffers& b, int n) {
            volk_32fc_x2_multiply_32fc(b.at<lv_32fc_t>(2), b.at<lv_32fc_t>(0), b.at<lv_32fc_t>(1), n);
        },
        [](Buffers& b, int n) {
            const C *a = b.at<C>(0), *c = b.at<C>(1);
            C* d = b.at<C>(2);
            loop(n, [&](int i) {
                d[i] = {a[i].re * c[i].re - a[i].im * c[i].im, a[i].re * c[i].im + a[i].im * c[i].re};
            });
        });
    add(
        "MulC_32fc", 16, [](Buffers& b, int n) { qspsMulC_32fc(b.at<C>(0), C{0.5f, -2.0f}, b.at<C>(2), n); },
        [](Buffers& b, int n) {
            const lv_32fc_t k = lv_cmake(0.5f, -2.0f);
            volk_32fc_s32fc_multiply_32fc(b.at<lv_32fc_t>(2), b.at<lv_32fc_t>(0), k, n);
        },
        [](Buffers& b, int n) {
            const C* a = b.at<C>(0);
            C* d = b.at<C>(2);
            const C k{0.5f, -2.0f};
            loop(n, [&](int i) { d[i] = {a[i].re * k.re - a[i].im * k.im, a[i].re * k.im + a[i].im * k.re}; });
        });
    add(
        "Mul_32f32fc", 20, [](Buffers& b, int n) { qspsMul_32f32fc(b.at<F>(0), b.at<C>(1), b.at<C>(2), n); },
        [](Buffers& b, int n) { volk_32fc_32f_multiply_32fc(b.at<lv_32fc_t>(2), b.at<lv_32fc_t>(1), b.at<F>(0), n); },
        [](Buffers& b, int n) {
            const F* a = b.at<F>(0);
            const C* c = b.at<C>(1);
            C* d = b.at<C>(2);
            loop(n, [&](int i) { d[i] = {a[i] * c[i].re, a[i] * c[i].im}; });
        });
    add(
        "Div_32fc", 24, [](Buffers& b, int n) { qspsDiv_32fc(b.at<C>(1), b.at<C>(0), b.at<C>(2), n); },
        [](Buffers& b, int n) {
            volk_32fc_x2_divide_32fc(b.at<lv_32fc_t>(2), b.at<lv_32fc_t>(0), b.at<lv_32fc_t>(1), n);
        },
        [](Buffers& b, int n) {
            const C *a = b.at<C>(0), *c = b.at<C>(1);
            C* d = b.at<C>(2);
            // The library's contract forms the quotient in double (no overflow,
            // each part within 0.5 ULP plus 2^-20 ULP), so the plain loop does too;
            // VOLK computes in single precision.
            loop(n, [&](int i) {
                const double ar = a[i].re, ai = a[i].im, cr = c[i].re, ci = c[i].im;
                const double m = cr * cr + ci * ci;
                d[i] = {F((ar * cr + ai * ci) / m), F((ai * cr - ar * ci) / m)};
            });
        });
    add(
        "Magnitude_32fc", 12, [](Buffers& b, int n) { qspsMagnitude_32fc(b.at<C>(0), b.at<F>(2), n); },
        [](Buffers& b, int n) { volk_32fc_magnitude_32f(b.at<F>(2), b.at<lv_32fc_t>(0), n); },
        [](Buffers& b, int n) {
            const C* a = b.at<C>(0);
            F* d = b.at<F>(2);
            loop(n, [&](int i) { d[i] = std::sqrt(a[i].re * a[i].re + a[i].im * a[i].im); });
        });
    add(
        "PowerSpectr_32fc", 12, [](Buffers& b, int n) { qspsPowerSpectr_32fc(b.at<C>(0), b.at<F>(2), n); },
        [](Buffers& b, int n) { volk_32fc_magnitude_squared_32f(b.at<F>(2), b.at<lv_32fc_t>(0), n); },
        [](Buffers& b, int n) {
            const C* a = b.at<C>(0);
            F* d = b.at<F>(2);
            loop(n, [&](int i) { d[i] = a[i].re * a[i].re + a[i].im * a[i].im; });
        });
    add(
        "Phase_32fc", 12, [](Buffers& b, int n) { qspsPhase_32fc(b.at<C>(0), b.at<F>(2), n); },
        [](Buffers& b, int n) { volk_32fc_s32f_atan2_32f(b.at<F>(2), b.at<lv_32fc_t>(0), 1.0f, n); },
        [](Buffers& b, int n) {
            const C* a = b.at<C>(0);
            F* d = b.at<F>(2);
            loop(n, [&](int i) { d[i] = std::atan2(a[i].im, a[i].re); });
        });
    add(
        "Sqrt_32f", 8, [](Buffers& b, int n) { qspsSqrt_32f(b.at<F>(0), b.at<F>(2), n); },
        [](Buffers& b, int n) { volk_32f_sqrt_32f(b.at<F>(2), b.at<F>(0), n); },
        [](Buffers& b, int n) {
            const F* a = b.at<F>(0);
            F* d = b.at<F>(2);
            loop(n, [&](int i) { d[i] = std::sqrt(a[i]); });
        });
    add(
        "Conj_32fc", 16, [](Buffers& b, int n) { qspsConj_32fc(b.at<C>(0), b.at<C>(2), n); },
        [](Buffers& b, int n) { volk_32fc_conjugate_32fc(b.at<lv_32fc_t>(2), b.at<lv_32fc_t>(0), n); },
        [](Buffers& b, int n) {
            const C* a = b.at<C>(0);
            C* d = b.at<C>(2);
            loop(n, [&](int i) { d[i] = {a[i].re, -a[i].im}; });
        });
    add(
        "CplxToReal_32fc", 16, [](Buffers& b, int n) { qspsCplxToReal_32fc(b.at<C>(0), b.at<F>(1), b.at<F>(2), n); },
        [](Buffers& b, int n) { volk_32fc_deinterleave_32f_x2(b.at<F>(1), b.at<F>(2), b.at<lv_32fc_t>(0), n); },
        [](Buffers& b, int n) {
            const C* a = b.at<C>(0);
            F *re = b.at<F>(1), *im = b.at<F>(2);
            loop(n, [&](int i) { re[i] = a[i].re, im[i] = a[i].im; });
        });
    add(
        "RealToCplx_32f", 16, [](Buffers& b, int n) { qspsRealToCplx_32f(b.at<F>(0), b.at<F>(1), b.at<C>(2), n); },
        [](Buffers& b, int n) { volk_32f_x2_interleave_32fc(b.at<lv_32fc_t>(2), b.at<F>(0), b.at<F>(1), n); },
        [](Buffers& b, int n) {
            const F *re = b.at<F>(0), *im = b.at<F>(1);
            C* d = b.at<C>(2);
            loop(n, [&](int i) { d[i] = {re[i], im[i]}; });
        });
    add(
        "Convert_32f64f", 12, [](Buffers& b, int n) { qspsConvert_32f64f(b.at<F>(0), b.at<double>(2), n); },
        [](Buffers& b, int n) { volk_32f_convert_64f(b.at<double>(2), b.at<F>(0), n); },
        [](Buffers& b, int n) {
            const F* a = b.at<F>(0);
            double* d = b.at<double>(2);
            loop(n, [&](int i) { d[i] = a[i]; });
        });
    add(
        "Convert_64f32f", 12, [](Buffers& b, int n) { qspsConvert_64f32f(b.at<double>(0), b.at<F>(2), n); },
        [](Buffers& b, int n) { volk_64f_convert_32f(b.at<F>(2), b.at<double>(0), n); },
        [](Buffers& b, int n) {
            const double* a = b.at<double>(0);
            F* d = b.at<F>(2);
            loop(n, [&](int i) { d[i] = F(a[i]); });
        });
    add(
        "Convert_16s32f", 6, [](Buffers& b, int n) { qspsConvert_16s32f(b.at<Qsp16s>(0), b.at<F>(2), n); },
        [](Buffers& b, int n) { volk_16i_s32f_convert_32f(b.at<F>(2), b.at<int16_t>(0), 1.0f, n); },
        [](Buffers& b, int n) {
            const Qsp16s* a = b.at<Qsp16s>(0);
            F* d = b.at<F>(2);
            loop(n, [&](int i) { d[i] = F(a[i]); });
        });
    add(
        "Convert_32f16s_Sfs", 6,
        [](Buffers& b, int n) { qspsConvert_32f16s_Sfs(b.at<F>(0), b.at<Qsp16s>(2), n, qspRndNear, 0); },
        [](Buffers& b, int n) { volk_32f_s32f_convert_16i(b.at<int16_t>(2), b.at<F>(0), 1.0f, n); },
        [](Buffers& b, int n) {
            const F* a = b.at<F>(0);
            Qsp16s* d = b.at<Qsp16s>(2);
            loop(n, [&](int i) {
                const F r = std::nearbyint(a[i]);
                d[i] = Qsp16s(r > 32767.0f ? 32767.0f : r < -32768.0f ? -32768.0f : r);
            });
        });
    add(
        "And_32u", 12, [](Buffers& b, int n) { qspsAnd_32u(b.at<Qsp32u>(0), b.at<Qsp32u>(1), b.at<Qsp32u>(2), n); },
        [](Buffers& b, int n) { volk_32i_x2_and_32i(b.at<int32_t>(2), b.at<int32_t>(0), b.at<int32_t>(1), n); },
        [](Buffers& b, int n) {
            const Qsp32u *a = b.at<Qsp32u>(0), *c = b.at<Qsp32u>(1);
            Qsp32u* d = b.at<Qsp32u>(2);
            loop(n, [&](int i) { d[i] = a[i] & c[i]; });
        });
    add(
        "Threshold_LT_32f", 8, [](Buffers& b, int n) { qspsThreshold_LT_32f(b.at<F>(0), b.at<F>(2), n, 2.0f); }, nullptr,
        [](Buffers& b, int n) {
            const F* a = b.at<F>(0);
            F* d = b.at<F>(2);
            loop(n, [&](int i) { d[i] = a[i] < 2.0f ? 2.0f : a[i]; });
        });
    // Scaled 16-bit integers: the rule written out as a plain loop.
    add(
        "Add_16s_Sfs0", 6,
        [](Buffers& b, int n) { qspsAdd_16s_Sfs(b.at<Qsp16s>(0), b.at<Qsp16s>(1), b.at<Qsp16s>(2), n, 0); }, nullptr,
        [](Buffers& b, int n) {
            const Qsp16s *a = b.at<Qsp16s>(0), *c = b.at<Qsp16s>(1);
            Qsp16s* d = b.at<Qsp16s>(2);
            loop(n, [&](int i) {
                const int v = a[i] + c[i];
                d[i] = Qsp16s(v > 32767 ? 32767 : v < -32768 ? -32768 : v);
            });
        });
    add(
        "Add_16s_Sfs3", 6,
        [](Buffers& b, int n) { qspsAdd_16s_Sfs(b.at<Qsp16s>(0), b.at<Qsp16s>(1), b.at<Qsp16s>(2), n, 3); }, nullptr,
        [](Buffers& b, int n) {
            const Qsp16s *a = b.at<Qsp16s>(0), *c = b.at<Qsp16s>(1);
            Qsp16s* d = b.at<Qsp16s>(2);
            loop(n, [&](int i) {
                const int v = a[i] + c[i];
                const int r = (v + 3 + ((v >> 3) & 1)) >> 3;
                d[i] = Qsp16s(r > 32767 ? 32767 : r < -32768 ? -32768 : r);
            });
        });
    add(
        "Mul_16s_Sfs15", 6,
        [](Buffers& b, int n) { qspsMul_16s_Sfs(b.at<Qsp16s>(0), b.at<Qsp16s>(1), b.at<Qsp16s>(2), n, 15); }, nullptr,
        [](Buffers& b, int n) {
            const Qsp16s *a = b.at<Qsp16s>(0), *c = b.at<Qsp16s>(1);
            Qsp16s* d = b.at<Qsp16s>(2);
            loop(n, [&](int i) {
                const int v = a[i] * c[i];
                const int r = (v + 16383 + ((v >> 15) & 1)) >> 15;
                d[i] = Qsp16s(r > 32767 ? 32767 : r < -32768 ? -32768 : r);
            });
        });
}

}  // namespace

int main(int argc, char** argv)
{
    std::printf("VOLK machine: %s\n", volk_get_machine());
    registerAll();
    return qspbench::runWithRatios(argc, argv);
}

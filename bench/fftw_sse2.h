// SPDX-License-Identifier: BSD-3-Clause
// The same-width peer: FFTW built with 128-bit SSE2 codelets only, loaded at
// run time from QSP_FFTW_SSE2_PREFIX/lib. It exports the same names as the
// system FFTW that the benchmarks also link, so it is opened with
// RTLD_DEEPBIND: its own calls bind inside it, and we reach it only through
// the pointers below. available() is false when it is not installed; the
// benchmarks then skip the same-width columns.
#pragma once
#include <dlfcn.h>
#include <fftw3.h>

#include <string>
#include <type_traits>

namespace qspbench {

// One precision's entry points, by FFTW's names without the prefix.
template <class Real, class Complex, class Plan>
struct FftwApi {
    const char* version = nullptr;
    Plan (*plan_dft_1d)(int, Complex*, Complex*, int, unsigned) = nullptr;
    Plan (*plan_dft_r2c_1d)(int, Real*, Complex*, unsigned) = nullptr;
    Plan (*plan_dft_c2r_1d)(int, Complex*, Real*, unsigned) = nullptr;
    Plan (*plan_r2r_1d)(int, Real*, Real*, fftw_r2r_kind, unsigned) = nullptr;
    void (*execute)(Plan) = nullptr;
    void (*execute_dft)(Plan, Complex*, Complex*) = nullptr;
    void (*execute_dft_r2c)(Plan, Real*, Complex*) = nullptr;
    void (*execute_dft_c2r)(Plan, Complex*, Real*) = nullptr;
    void (*destroy_plan)(Plan) = nullptr;
    void (*forget_wisdom)() = nullptr;
    void* (*malloc)(size_t) = nullptr;
    void (*free)(void*) = nullptr;

    bool available() const { return execute != nullptr; }

    // Fills every pointer from the library at path, names prefixed by
    // prefix ("fftwf_" or "fftw_"); leaves the set empty if anything is
    // missing.
    void load(const std::string& path, const std::string& prefix)
    {
        void* lib = dlopen(path.c_str(), RTLD_NOW | RTLD_LOCAL | RTLD_DEEPBIND);
        if (!lib) return;
        auto sym = [&](const char* name) { return dlsym(lib, (prefix + name).c_str()); };
        bool ok = true;
        auto get = [&](auto& fn, const char* name) {
            void* p = sym(name);
            ok = ok && p;
            fn = reinterpret_cast<std::remove_reference_t<decltype(fn)>>(p);
        };
        get(plan_dft_1d, "plan_dft_1d");
        get(plan_dft_r2c_1d, "plan_dft_r2c_1d");
        get(plan_dft_c2r_1d, "plan_dft_c2r_1d");
        get(plan_r2r_1d, "plan_r2r_1d");
        get(execute_dft, "execute_dft");
        get(execute_dft_r2c, "execute_dft_r2c");
        get(execute_dft_c2r, "execute_dft_c2r");
        get(destroy_plan, "destroy_plan");
        get(forget_wisdom, "forget_wisdom");
        get(malloc, "malloc");
        get(free, "free");
        version = static_cast<const char*>(sym("version"));
        get(execute, "execute");
        if (!ok || !version) *this = FftwApi{};
    }
};

using FftwSse2f = FftwApi<float, fftwf_complex, fftwf_plan>;
using FftwSse2d = FftwApi<double, fftw_complex, fftw_plan>;

// The single- and double-precision libraries, loaded once per process.
inline const FftwSse2f& fftwSse2f()
{
    static const FftwSse2f api = [] {
        FftwSse2f a;
        a.load(std::string(QSP_FFTW_SSE2_PREFIX) + "/lib/libfftw3f.so.3", "fftwf_");
        return a;
    }();
    return api;
}

inline const FftwSse2d& fftwSse2d()
{
    static const FftwSse2d api = [] {
        FftwSse2d a;
        a.load(std::string(QSP_FFTW_SSE2_PREFIX) + "/lib/libfftw3.so.3", "fftw_");
        return a;
    }();
    return api;
}

}  // namespace qspbench

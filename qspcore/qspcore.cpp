// SPDX-License-Identifier: BSD-3-Clause
// libqspcore: aligned allocation, processor-feature query, denormal controls.
#include "qspcore.h"

#include <cpuid.h>
#include <stdlib.h>
#include <xmmintrin.h>

#define QSP_EXPORT extern "C" __attribute__((visibility("default")))

namespace {

constexpr size_t kAlignment = 64;

void* alignedAlloc(Qsp64s size)
{
    if (size <= 0) return nullptr;
    void* p = nullptr;
    return posix_memalign(&p, kAlignment, static_cast<size_t>(size)) == 0 ? p : nullptr;
}

struct CpuidRegs {
    unsigned a = 0, b = 0, c = 0, d = 0;
};

CpuidRegs cpuid(unsigned leaf, unsigned subleaf)
{
    CpuidRegs r;
    if (!__get_cpuid_count(leaf, subleaf, &r.a, &r.b, &r.c, &r.d)) return CpuidRegs{};
    return r;
}

Qsp64u xgetbv0()
{
    unsigned lo, hi;
    __asm__ volatile("xgetbv" : "=a"(lo), "=d"(hi) : "c"(0));
    return (static_cast<Qsp64u>(hi) << 32) | lo;
}

// Reads every feature the mask layout knows into one bit set.
Qsp64u detectFeatures()
{
    const CpuidRegs l1 = cpuid(1, 0);
    const CpuidRegs l7 = cpuid(7, 0);
    const bool osxsave = (l1.c >> 27) & 1;
    const Qsp64u xcr0 = osxsave ? xgetbv0() : 0;
    const bool ymmState = (xcr0 & 0x6) == 0x6;
    const bool zmmState = ymmState && (xcr0 & 0xE0) == 0xE0;
    auto bit = [](unsigned reg, int n) { return (reg >> n) & 1u; };

    Qsp64u f = 0;
    auto put = [&f](Qsp64u mask, bool on) { if (on) f |= mask; };
    put(qspCPUID_MMX, bit(l1.d, 23));
    put(qspCPUID_SSE, bit(l1.d, 25));
    put(qspCPUID_SSE2, bit(l1.d, 26));
    put(qspCPUID_SSE3, bit(l1.c, 0));
    put(qspCPUID_SSSE3, bit(l1.c, 9));
    put(qspCPUID_MOVBE, bit(l1.c, 22));
    put(qspCPUID_SSE41, bit(l1.c, 19));
    put(qspCPUID_SSE42, bit(l1.c, 20));
    put(qspCPUID_AVX, bit(l1.c, 28) && ymmState);
    put(qspCPUID_AES, bit(l1.c, 25));
    put(qspCPUID_CLMUL, bit(l1.c, 1));
    put(qspCPUID_POPCNT, bit(l1.c, 23));
    put(qspCPUID_RDRAND, bit(l1.c, 30));
    put(qspCPUID_FMA, bit(l1.c, 12) && ymmState);
    put(qspCPUID_AVX2, bit(l7.b, 5) && ymmState);
    put(qspCPUID_BMI1, bit(l7.b, 3));
    put(qspCPUID_BMI2, bit(l7.b, 8));
    put(qspCPUID_ADX, bit(l7.b, 19));
    put(qspCPUID_RDSEED, bit(l7.b, 18));
    put(qspCPUID_SHA, bit(l7.b, 29));
    put(qspCPUID_AVX512F, bit(l7.b, 16) && zmmState);
    put(qspCPUID_AVX512CD, bit(l7.b, 28) && zmmState);
    put(qspCPUID_AVX512BW, bit(l7.b, 30) && zmmState);
    put(qspCPUID_AVX512DQ, bit(l7.b, 17) && zmmState);
    put(qspCPUID_AVX512VL, bit(l7.b, 31) && zmmState);
    put(qspCPUID_F16C, bit(l1.c, 29) && ymmState);
    return f;
}

QspStatus setMxcsrBit(unsigned mask, int value, unsigned int* pPrevious)
{
    const unsigned csr = _mm_getcsr();
    if (pPrevious) *pPrevious = (csr & mask) ? 1u : 0u;
    _mm_setcsr(value ? (csr | mask) : (csr & ~mask));
    return qspStsOk;
}

constexpr unsigned kMxcsrFlushToZero = 0x8000;
constexpr unsigned kMxcsrDenormalsAreZero = 0x0040;

}  // namespace

QSP_EXPORT void* qspMalloc(int size) { return alignedAlloc(size); }
QSP_EXPORT void* qspMalloc_L(Qsp64s size) { return alignedAlloc(size); }
QSP_EXPORT void qspFree(void* ptr) { free(ptr); }

QSP_EXPORT int ownGetFeature(Qsp64u featureMask)
{
    return (detectFeatures() & featureMask) == featureMask ? 1 : 0;
}

QSP_EXPORT QspStatus qspSetFlushToZero(int value, unsigned int* pPrevious)
{
    return setMxcsrBit(kMxcsrFlushToZero, value, pPrevious);
}

QSP_EXPORT QspStatus qspSetDenormAreZeros(int value, unsigned int* pPrevious)
{
    return setMxcsrBit(kMxcsrDenormalsAreZero, value, pPrevious);
}

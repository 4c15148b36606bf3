// SPDX-License-Identifier: BSD-3-Clause
// ResamplePolyphaseFixed: resampling by a fixed rational ratio with one
// filter per phase (resample_polyphase.h for the kernel and the sums).
//
// With g = gcd(inRate, outRate), L = outRate / g phases and M = inRate / g,
// output j lies at time j M / L input samples. Time is kept as an integer
// count of 1/L input samples, so its phase p (the count modulo L) is exact.
// Phase p has filterLen taps: tap i weighs the input m = m0 + i after the
// output's integer time n, m0 = -((filterLen - 1) / 2), with the kernel
// g(p / L - m) of half-width W = filterLen / 2 and cut-off
// fc = rollf min(1, outRate / inRate) / 2.
//
// Record, in caller memory from the first 64-byte boundary at or after the
// caller's pointer: a 64-byte header, the L filters (rows of filterLen taps
// rounded up to a multiple of four, zero padded) and the double-precision
// table Init samples the filters from.
#include "checks.h"
#include "resample_polyphase.h"

namespace y8 {
namespace {

// Identifiers: "RF" and the type's number.
constexpr Qsp32u kId16s = 0x52463031u;
constexpr Qsp32u kId32f = 0x52463032u;

struct Record {
    Qsp32u id;
    Qsp32s reserved;
    Qsp64s phases;  // L
    Qsp64s advance; // M
    Qsp64s taps;    // filterLen
    Qsp64s stride;  // taps rounded up to four
    Qsp64s before;  // -m0: inputs read before the output's integer time
};
static_assert(sizeof(Record) <= 64);

constexpr Qsp64s kHeaderBytes = 64;

constexpr Qsp64s gcd(Qsp64s a, Qsp64s b)
{
    while (b != 0) {
        const Qsp64s t = a % b;
        a = b;
        b = t;
    }
    return a;
}

struct Layout {
    Qsp64s phases, advance, stride;
    Qsp64s perSample, k;  // table points per input sample, half the table
    Qsp64s scratch, size;
};

bool layoutFor(int inRate, int outRate, int filterLen, Layout& z)
{
    const Qsp64s g = gcd(inRate, outRate);
    z.phases = outRate / g;
    z.advance = inRate / g;
    z.stride = resample::roundUp4(filterLen);
    // Points at every 1/L, or every 1/(2L) so that W = filterLen / 2 falls on one.
    z.perSample = (Qsp64s(filterLen) * z.phases) % 2 == 0 ? z.phases : 2 * z.phases;
    if (Qsp64s(filterLen) * z.perSample > (Qsp64s(1) << 29)) return false;
    z.k = Qsp64s(filterLen) * z.perSample / 2;
    z.scratch = kHeaderBytes + z.phases * z.stride * 4;
    z.size = 63 + z.scratch + (2 * z.k + 1) * 8 + 15;
    return z.size <= 0x7FFFFFFF;
}

QspStatus argChecks(int inRate, int outRate, int filterLen)
{
    if (filterLen < 1) return qspStsBadTapCount;
    if (inRate < 1 || outRate < 1) return qspStsBadFactor;
    return qspStsOk;
}

QspStatus getSize(int inRate, int outRate, int filterLen, int* pSize, int* pFilterLen, int* pNumFilters,
                  QspHintAlgorithm hint)
{
    if (QspStatus s = check::pointers(pSize, pFilterLen, pNumFilters)) return s;
    if (QspStatus s = argChecks(inRate, outRate, filterLen)) return s;
    if (QspStatus s = resample::hintCheck(hint)) return s;
    Layout z;
    if (!layoutFor(inRate, outRate, filterLen, z)) return qspStsOverflow;
    *pSize = int(z.size);
    *pFilterLen = filterLen;
    *pNumFilters = int(z.phases);
    return qspStsOk;
}

QspStatus init(int inRate, int outRate, int filterLen, float rollf, float alpha, void* pSpec, QspHintAlgorithm hint,
               Qsp32u id)
{
    if (QspStatus s = check::pointers(pSpec)) return s;
    if (QspStatus s = argChecks(inRate, outRate, filterLen)) return s;
    if (QspStatus s = resample::shapeChecks(rollf, alpha)) return s;
    if (QspStatus s = resample::hintCheck(hint)) return s;
    Layout z;
    if (!layoutFor(inRate, outRate, filterLen, z)) return qspStsOverflow;

    Record* r = resample::alignUp64(static_cast<Record*>(pSpec));
    Qsp8u* base = reinterpret_cast<Qsp8u*>(r);
    const double shrink = outRate < inRate ? double(outRate) / double(inRate) : 1.0;
    double* table = reinterpret_cast<double*>(resample::align16(reinterpret_cast<Qsp64s>(base + z.scratch)));
    resample::kernel(table, z.k, double(z.perSample), 0.5 * double(rollf) * shrink, double(alpha));

    const Qsp64s before = (Qsp64s(filterLen) - 1) / 2, per = z.perSample / z.phases;
    float* bank = reinterpret_cast<float*>(base + kHeaderBytes);
    for (Qsp64s p = 0; p < z.phases; ++p) {
        for (Qsp64s i = 0; i < z.stride; ++i) {
            // u = p / L - m, m = i - before: table index u D + K.
            const Qsp64s j = (p - (i - before) * z.phases) * per + z.k;
            bank[p * z.stride + i] = i < filterLen && j >= 0 && j <= 2 * z.k ? float(table[j]) : 0.0f;
        }
    }
    r->id = id;
    r->reserved = 0;
    r->phases = z.phases;
    r->advance = z.advance;
    r->taps = filterLen;
    r->stride = z.stride;
    r->before = before;
    return qspStsOk;
}

template <class T>
QspStatus run(const T* pSrc, T* pDst, int len, float norm, double* pTime, int* pOutLen, const void* pSpec, Qsp32u id)
{
    if (QspStatus s = check::pointers(pSrc, pDst, pTime, pOutLen, pSpec)) return s;
    if (QspStatus s = check::length(len)) return s;
    const Record* r = resample::alignUp64(static_cast<const Record*>(pSpec));
    if (r->id != id) return qspStsBadRecord;
    const double t = *pTime;
    const Qsp64s before = r->before, after = r->taps - 1 - before;
    if (!(t >= double(before))) return qspStsBadArgument;
    if (t >= double(len)) {
        *pOutLen = 0;
        return qspStsOk;
    }
    const Qsp64s l = r->phases, whole = r->advance / l, part = r->advance % l;
    const Qsp64u pos = Qsp64u(t * double(l) + 0.5);
    Qsp64s n = Qsp64s(pos / Qsp64u(l)), p = Qsp64s(pos % Qsp64u(l));
    const float* bank = reinterpret_cast<const float*>(reinterpret_cast<const Qsp8u*>(r) + kHeaderBytes);
    Qsp64s count = 0;
    while (n + after <= Qsp64s(len) - 1) {
        resample::sampleOut(resample::dot(bank + p * r->stride, pSrc + n - before, r->taps), norm, pDst + count++);
        n += whole, p += part;
        if (p >= l) p -= l, ++n;
    }
    *pTime = double(n) + double(p) / double(l);
    *pOutLen = int(count);
    return qspStsOk;
}

// The filters to or from a caller's array of `height` rows `step` apart.
QspStatus filterChecks(const void* pSpec, const void* pArray, int step, int height, Qsp32u id, const Record*& r)
{
    if (QspStatus s = check::pointers(pSpec, pArray)) return s;
    r = resample::alignUp64(static_cast<const Record*>(pSpec));
    if (r->id != id) return qspStsBadRecord;
    if (step < r->taps || height < 1 || height > r->phases) return qspStsBadSize;
    return qspStsOk;
}

QspStatus getFilter(const void* pSpec, float* pDst, int step, int height, Qsp32u id)
{
    const Record* r = nullptr;
    if (QspStatus s = filterChecks(pSpec, pDst, step, height, id, r)) return s;
    const float* bank = reinterpret_cast<const float*>(reinterpret_cast<const Qsp8u*>(r) + kHeaderBytes);
    for (Qsp64s p = 0; p < height; ++p) qspsCopy_32f(bank + p * r->stride, pDst + p * step, int(r->taps));
    return qspStsOk;
}

QspStatus setFilter(void* pSpec, const float* pSrc, int step, int height, Qsp32u id)
{
    const Record* r = nullptr;
    if (QspStatus s = filterChecks(pSpec, pSrc, step, height, id, r)) return s;
    float* bank = reinterpret_cast<float*>(reinterpret_cast<Qsp8u*>(const_cast<Record*>(r)) + kHeaderBytes);
    for (Qsp64s p = 0; p < height; ++p) qspsCopy_32f(pSrc + p * step, bank + p * r->stride, int(r->taps));
    return qspStsOk;
}

}  // namespace

QspStatus qspsResamplePolyphaseFixedGetSize_16s(int inRate, int outRate, int filterLen, int* pSize, int* pFilterLen,
                                                int* pNumFilters, QspHintAlgorithm hint)
{
    return getSize(inRate, outRate, filterLen, pSize, pFilterLen, pNumFilters, hint);
}
QspStatus qspsResamplePolyphaseFixedGetSize_32f(int inRate, int outRate, int filterLen, int* pSize, int* pFilterLen,
                                                int* pNumFilters, QspHintAlgorithm hint)
{
    return getSize(inRate, outRate, filterLen, pSize, pFilterLen, pNumFilters, hint);
}
QspStatus qspsResamplePolyphaseFixedInit_16s(int inRate, int outRate, int filterLen, Qsp32f rollf, Qsp32f alpha,
                                             QspsResamplingPolyphaseFixed_16s* pSpec, QspHintAlgorithm hint)
{
    return init(inRate, outRate, filterLen, rollf, alpha, pSpec, hint, kId16s);
}
QspStatus qspsResamplePolyphaseFixedInit_32f(int inRate, int outRate, int filterLen, Qsp32f rollf, Qsp32f alpha,
                                             QspsResamplingPolyphaseFixed_32f* pSpec, QspHintAlgorithm hint)
{
    return init(inRate, outRate, filterLen, rollf, alpha, pSpec, hint, kId32f);
}
QspStatus qspsResamplePolyphaseFixed_16s(const Qsp16s* pSrc, Qsp16s* pDst, int len, Qsp32f norm, Qsp64f* pTime,
                                         int* pOutLen, const QspsResamplingPolyphaseFixed_16s* pSpec)
{
    return run(pSrc, pDst, len, norm, pTime, pOutLen, pSpec, kId16s);
}
QspStatus qspsResamplePolyphaseFixed_32f(const Qsp32f* pSrc, Qsp32f* pDst, int len, Qsp32f norm, Qsp64f* pTime,
                                         int* pOutLen, const QspsResamplingPolyphaseFixed_32f* pSpec)
{
    return run(pSrc, pDst, len, norm, pTime, pOutLen, pSpec, kId32f);
}
QspStatus qspsResamplePolyphaseGetFixedFilter_16s(const QspsResamplingPolyphaseFixed_16s* pSpec, Qsp32f* pDst,
                                                  int step, int height)
{
    return getFilter(pSpec, pDst, step, height, kId16s);
}
QspStatus qspsResamplePolyphaseGetFixedFilter_32f(const QspsResamplingPolyphaseFixed_32f* pSpec, Qsp32f* pDst,
                                                  int step, int height)
{
    return getFilter(pSpec, pDst, step, height, kId32f);
}
QspStatus qspsResamplePolyphaseSetFixedFilter_16s(QspsResamplingPolyphaseFixed_16s* pSpec, const Qsp32f* pSrc,
                                                  int step, int height)
{
    return setFilter(pSpec, pSrc, step, height, kId16s);
}
QspStatus qspsResamplePolyphaseSetFixedFilter_32f(QspsResamplingPolyphaseFixed_32f* pSpec, const Qsp32f* pSrc,
                                                  int step, int height)
{
    return setFilter(pSpec, pSrc, step, height, kId32f);
}

}  // namespace y8

// SPDX-License-Identifier: BSD-3-Clause
// ResamplePolyphase: resampling by any ratio with a tabulated
// Kaiser-windowed sinc (resample_polyphase.h).
//
// Init tabulates g(u) at nStep points per input sample over |u| <= W, the
// half-width W = K / nStep with K = ceil(window nStep / 2), and the cut-off
// fc = rollf / 2. It keeps three forms of the table:
//   - the table itself, for rates going down;
//   - nStep rows of taps, row r holding g(r / nStep - m) for the inputs
//     m = -h .. h + 1 around the output's integer time (h = floor(W)),
//   - and the differences of consecutive rows,
// so that going up (factor >= 1) an output at time n + f interpolates
// between rows r = floor(f nStep) and r + 1 linearly, as the sum of one
// row and mu times one row of differences, both against the same inputs.
// Going down (factor < 1) the kernel is stretched to s g(s u), s = factor,
// and every tap is interpolated from the table and its differences.
//
// Time is kept on a grid of 2^-32 input samples, so that the phase of an
// output depends on the fraction of its time only and not on the integer
// part: a caller moving its samples by a whole number of positions
// between calls gets the same outputs as from one call.
//
// Record, in caller memory from the first 64-byte boundary at or after the
// caller's pointer: a 64-byte header, the table (2K + 1 floats between two
// zeros) and the differences of its neighbours, the rows, the differences
// of the rows (rows of a multiple of four floats), and the
// double-precision table Init computes first.
#include "checks.h"
#include "resample_polyphase.h"

namespace y8 {
namespace {

// Identifiers: "RP" and the type's number.
constexpr Qsp32u kId16s = 0x52503031u;
constexpr Qsp32u kId32f = 0x52503032u;

constexpr double kGrid = 4294967296.0;  // time units per input sample
constexpr Qsp64u kFracMask = 0xFFFFFFFFu;
constexpr double kMaxFactor = 1048576.0;  // 2^20 either way

struct Record {
    Qsp32u id;
    Qsp32s nStep;
    Qsp64s k;       // half the table, in table steps
    Qsp64s half;    // h = floor(K / nStep)
    Qsp64s rowLen;  // 2h + 2 taps per row
    Qsp64s stride;  // row length rounded up to four
    Qsp64s rows, deltas;  // byte offsets of the rows and the differences
};
static_assert(sizeof(Record) <= 64);

constexpr Qsp64s kHeaderBytes = 64;

struct Layout {
    Qsp64s k, half, rowLen, stride;
    Qsp64s rows, deltas, scratch, size;
};

// The record's numbers; false when they do not fit in an int.
bool layoutFor(double window, int nStep, Layout& z)
{
    const double halfSteps = window * double(nStep) * 0.5;
    if (!(halfSteps <= double(1 << 28))) return false;
    Qsp64s k = Qsp64s(halfSteps);
    if (double(k) < halfSteps) ++k;
    if (k < 1) k = 1;
    z.k = k;
    z.half = k / nStep;
    z.rowLen = 2 * z.half + 2;
    z.stride = resample::roundUp4(z.rowLen);
    // The table between its zeros, then its differences.
    z.rows = resample::align16(kHeaderBytes + 2 * (2 * k + 3) * 4);
    z.deltas = z.rows + Qsp64s(nStep) * z.stride * 4;
    z.scratch = z.deltas + Qsp64s(nStep) * z.stride * 4;
    z.size = 63 + z.scratch + (2 * k + 1) * 8 + 15;
    return z.size <= 0x7FFFFFFF;
}

QspStatus sizeChecks(float window, int nStep)
{
    if (!(window > 0.0f && window <= 1.0e9f)) return qspStsBadSize;
    if (nStep < 1) return qspStsBadSize;
    return qspStsOk;
}

QspStatus getSize(float window, int nStep, int* pSize, QspHintAlgorithm hint)
{
    if (QspStatus s = check::pointers(pSize)) return s;
    if (QspStatus s = sizeChecks(window, nStep)) return s;
    if (QspStatus s = resample::hintCheck(hint)) return s;
    Layout z;
    if (!layoutFor(window, nStep, z)) return qspStsOverflow;
    *pSize = int(z.size);
    return qspStsOk;
}

QspStatus init(float window, int nStep, float rollf, float alpha, void* pSpec, QspHintAlgorithm hint, Qsp32u id)
{
    if (QspStatus s = check::pointers(pSpec)) return s;
    if (QspStatus s = sizeChecks(window, nStep)) return s;
    if (QspStatus s = resample::shapeChecks(rollf, alpha)) return s;
    if (QspStatus s = resample::hintCheck(hint)) return s;
    Layout z;
    if (!layoutFor(window, nStep, z)) return qspStsOverflow;

    Record* r = resample::alignUp64(static_cast<Record*>(pSpec));
    Qsp8u* base = reinterpret_cast<Qsp8u*>(r);
    const Qsp64s k = z.k, h = z.half;
    double* g = reinterpret_cast<double*>(resample::align16(reinterpret_cast<Qsp64s>(base + z.scratch)));
    resample::kernel(g, k, double(nStep), 0.5 * double(rollf), double(alpha));

    float* table = reinterpret_cast<float*>(base + kHeaderBytes) + 1;
    for (Qsp64s i = 0; i <= 2 * k; ++i) table[i] = float(g[i]);
    table[-1] = 0.0f;
    table[2 * k + 1] = 0.0f;
    // steps[j] = table[j + 1] - table[j] for j = -1 .. 2K.
    float* steps = table + 2 * k + 3;
    for (Qsp64s j = -1; j <= 2 * k; ++j) steps[j] = table[j + 1] - table[j];

    // Row r, tap j weighs the input m = j - h after the output's integer
    // time: g(r / nStep - m), table index r + K - m nStep.
    auto tap = [&](Qsp64s row, Qsp64s j) {
        const Qsp64s i = row + k - (j - h) * nStep;
        return i >= 0 && i <= 2 * k ? float(g[i]) : 0.0f;
    };
    float* rows = reinterpret_cast<float*>(base + z.rows);
    float* deltas = reinterpret_cast<float*>(base + z.deltas);
    for (Qsp64s row = 0; row < nStep; ++row) {
        for (Qsp64s j = 0; j < z.stride; ++j) {
            const float a = j < z.rowLen ? tap(row, j) : 0.0f;
            const float b = j < z.rowLen ? tap(row + 1, j) : 0.0f;
            rows[row * z.stride + j] = a;
            deltas[row * z.stride + j] = b - a;
        }
    }
    r->id = id;
    r->nStep = nStep;
    r->k = k;
    r->half = h;
    r->rowLen = z.rowLen;
    r->stride = z.stride;
    r->rows = z.rows;
    r->deltas = z.deltas;
    return qspStsOk;
}

// Inputs read before an output's integer time at this factor (one more is
// read after it): the kernel reaches one table step beyond each end of the
// table, where it falls linearly to zero.
Qsp64s historyFor(const Record* r, double factor)
{
    if (factor >= 1.0) return r->half;
    const double w = double(r->k + 1) / double(r->nStep) / factor;
    return w < 1.0e12 ? Qsp64s(w) : Qsp64s(1.0e12);
}

template <class T>
Qsp64s upward(const Record* r, const T* src, T* dst, Qsp64s len, Qsp64u step, float norm, Qsp64u& pos)
{
    const Qsp8u* base = reinterpret_cast<const Qsp8u*>(r);
    const float* rows = reinterpret_cast<const float*>(base + r->rows);
    const float* deltas = reinterpret_cast<const float*>(base + r->deltas);
    const Qsp64s h = r->half, n = r->rowLen, stride = r->stride, nStep = r->nStep;
    Qsp64s count = 0;
    for (;; pos += step) {
        const Qsp64s i = Qsp64s(pos >> 32);
        if (i + h + 1 > len - 1) break;
        const Qsp64u q = (pos & kFracMask) * Qsp64u(nStep);
        const Qsp64s row = Qsp64s(q >> 32);
        const float mu = float(double(q & kFracMask) * (1.0 / kGrid));
        float a, b;
        resample::dot2(rows + row * stride, deltas + row * stride, src + i - h, n, a, b);
        resample::sampleOut(a + mu * b, norm, dst + count++);
    }
    return count;
}

// Going down every tap is interpolated from the table: the positions
// P = (f - m) s nStep + K fall by s nStep table steps from one input to the
// next and are kept in fixed point (2^-32 table steps), so that the table
// index is a shift and the interpolation weight the low 32 bits. The
// products are summed in single precision from the farthest input on.
template <class T>
Qsp64s downward(const Record* r, const T* src, T* dst, Qsp64s len, Qsp64u step, double factor, float norm,
                Qsp64s h, Qsp64u& pos)
{
    const float* table = reinterpret_cast<const float*>(reinterpret_cast<const Qsp8u*>(r) + kHeaderBytes) + 1;
    const float* steps = table + 2 * r->k + 3;
    const double k = double(r->k), scale = factor * double(r->nStep);
    const Qsp64s fall = Qsp64s(scale * kGrid + 0.5);
    const Qsp64s far = (2 * r->k + 1) << 32, near = -(Qsp64s(1) << 32);
    const float fs = float(factor);
    Qsp64s count = 0;
    for (;; pos += step) {
        const Qsp64s i = Qsp64s(pos >> 32);
        if (i + h + 1 > len - 1) break;
        const double f = double(pos & kFracMask) * (1.0 / kGrid);
        Qsp64s m = -h;
        Qsp64s p = Qsp64s(((f + double(h)) * scale + k) * kGrid + 0.5);
        for (; m <= h + 1 && p >= far; ++m) p -= fall;
        float acc = 0.0f;
        for (; m <= h + 1 && p > near; ++m, p -= fall) {
            const Qsp64s j = p >> 32;  // floor: -1 just before the table
            const float mu = float(Qsp32u(p)) * (1.0f / 4294967296.0f);
            acc += (table[j] + mu * steps[j]) * resample::sampleIn(src[i + m]);
        }
        resample::sampleOut(acc * fs, norm, dst + count++);
    }
    return count;
}

template <class T>
QspStatus run(const T* pSrc, T* pDst, int len, double factor, float norm, double* pTime, int* pOutLen,
              const void* pSpec, Qsp32u id)
{
    if (QspStatus s = check::pointers(pSrc, pDst, pTime, pOutLen, pSpec)) return s;
    if (QspStatus s = check::length(len)) return s;
    const Record* r = resample::alignUp64(static_cast<const Record*>(pSpec));
    if (r->id != id) return qspStsBadRecord;
    if (!(factor >= 1.0 / kMaxFactor && factor <= kMaxFactor)) return qspStsBadFactor;
    const Qsp64s h = historyFor(r, factor);
    const double t = *pTime;
    if (!(t >= double(h))) return qspStsBadArgument;
    if (t >= double(len)) {
        *pOutLen = 0;
        return qspStsOk;
    }
    // Below 2^31 samples (len is an int), so on the grid within 64 bits.
    Qsp64u pos = Qsp64u(t * kGrid + 0.5);
    const Qsp64u step = Qsp64u(kGrid / factor + 0.5);
    const Qsp64s count = factor >= 1.0 ? upward(r, pSrc, pDst, len, step, norm, pos)
                                       : downward(r, pSrc, pDst, len, step, factor, norm, h, pos);
    *pTime = double(pos) * (1.0 / kGrid);
    *pOutLen = int(count);
    return qspStsOk;
}

}  // namespace

QspStatus qspsResamplePolyphaseGetSize_16s(Qsp32f window, int nStep, int* pSize, QspHintAlgorithm hint)
{
    return getSize(window, nStep, pSize, hint);
}
QspStatus qspsResamplePolyphaseGetSize_32f(Qsp32f window, int nStep, int* pSize, QspHintAlgorithm hint)
{
    return getSize(window, nStep, pSize, hint);
}
QspStatus qspsResamplePolyphaseInit_16s(Qsp32f window, int nStep, Qsp32f rollf, Qsp32f alpha,
                                        QspsResamplingPolyphase_16s* pSpec, QspHintAlgorithm hint)
{
    return init(window, nStep, rollf, alpha, pSpec, hint, kId16s);
}
QspStatus qspsResamplePolyphaseInit_32f(Qsp32f window, int nStep, Qsp32f rollf, Qsp32f alpha,
                                        QspsResamplingPolyphase_32f* pSpec, QspHintAlgorithm hint)
{
    return init(window, nStep, rollf, alpha, pSpec, hint, kId32f);
}
QspStatus qspsResamplePolyphase_16s(const Qsp16s* pSrc, Qsp16s* pDst, int len, Qsp64f factor, Qsp32f norm,
                                    Qsp64f* pTime, int* pOutLen, const QspsResamplingPolyphase_16s* pSpec)
{
    return run(pSrc, pDst, len, factor, norm, pTime, pOutLen, pSpec, kId16s);
}
QspStatus qspsResamplePolyphase_32f(const Qsp32f* pSrc, Qsp32f* pDst, int len, Qsp64f factor, Qsp32f norm,
                                    Qsp64f* pTime, int* pOutLen, const QspsResamplingPolyphase_32f* pSpec)
{
    return run(pSrc, pDst, len, factor, norm, pTime, pOutLen, pSpec, kId32f);
}

}  // namespace y8

// SPDX-License-Identifier: BSD-3-Clause
// Polyphase form of "upsample by U, filter, downsample by D", computed
// without the inserted zeros and without the discarded outputs.
//
// The input x is upsampled by U with x[m] at position mU + upPhase, filtered
// by h (N taps) and every D-th value is kept from position downPhase on:
//     y[n] = sum over j of h[j] u[nD + downPhase - j],  u[mU + upPhase] = x[m].
// Output n = qU + r (r = 0 .. U-1) then reads the taps of one phase,
//     y[qU + r] = sum over j < L_r of h[p_r + jU] x[qD + o_r - j],
// with c_r = rD + downPhase - upPhase, p_r = c_r mod U, o_r = floor(c_r / U)
// (-1 <= o_r < D) and L_r the count of p_r + jU below N: U interleaved
// filters on the input taken every D-th sample. For D > 1 each of them is
// split once more by the taps' index j = iD + s, which reads the input
// stream z_b[k] = x[kD + b], b = (o_r - s) mod D, at k = q + a - i with
// a = floor((o_r - s) / D) in {-1, 0}:
//     y[qU + r] = sum over s of sum over i of h[p_r + (iD + s)U] z_b[q + a - i].
// Every such piece is an ordinary FIR filter on a contiguous stream, run by
// the direct kernels of fir_direct.h over a block of outputs; the pieces of
// one phase are added, then the phase's outputs are written every U-th.
//
// History: no output reads more than history = ceil((N - 1) / U) inputs
// before its block of D (the delay line). A block of Q iterations (Q U
// outputs from Q D inputs) reads each stream from streamHistory samples
// before its first iteration on; the streams live in the work buffer, where
// each block's input is gathered (and converted, for the 16-bit forms) and
// the last streamHistory samples of every stream slide to the front for the
// next block.
#pragma once
#include "fir_direct.h"
#include "samples.h"

namespace polyphase {

// One piece: `count` taps (natural order) from part `taps` of the tap area,
// reading stream `stream` from sample `shift` + q on.
struct Piece {
    Qsp32s taps;
    Qsp32s count;
    Qsp32s stream;
    Qsp32s shift;
};

// The pieces of one output phase: pieces[first .. first + count).
struct Phase {
    Qsp32s first;
    Qsp32s count;
};

struct Plan {
    Qsp32s tapsLen;
    Qsp32s up, upPhase, down, downPhase;
    Qsp32s history;        // input samples of the delay line
    Qsp32s streamHistory;  // stream samples before a block's first
    Qsp32s pieceCount;
    const Phase* phases;   // up entries
    const Piece* pieces;
    const void* taps;      // parts of the tap type
};

constexpr Qsp64s floorDiv(Qsp64s a, Qsp64s b) { return a >= 0 ? a / b : -((-a + b - 1) / b); }
constexpr Qsp64s ceilDiv(Qsp64s a, Qsp64s b) { return (a + b - 1) / b; }

// The delay line's length: ceil((N - 1) / U).
constexpr Qsp64s historyOf(Qsp64s n, Qsp64s up) { return ceilDiv(n - 1, up); }

// Upper bounds of what a plan stores, from N, U and D alone (the phases
// decide the exact counts): taps of all phases, pieces, stream history.
constexpr Qsp64s tapBound(Qsp64s n, Qsp64s up) { return up * ceilDiv(n, up); }
constexpr Qsp64s pieceBound(Qsp64s n, Qsp64s up, Qsp64s down)
{
    const Qsp64s perPhase = ceilDiv(n, up);
    return up * (down < perPhase ? down : perPhase);
}
constexpr Qsp64s streamHistoryBound(Qsp64s n, Qsp64s up, Qsp64s down) { return ceilDiv(ceilDiv(n, up), down) + 1; }

// Iterations per block: about 4096 input samples, at least one iteration.
constexpr Qsp64s kBlockInputs = 4096;
constexpr Qsp64s blockIters(Qsp64s down) { return down >= kBlockInputs ? 1 : kBlockInputs / down; }

// Samples of the work buffer: the delay line copied in, the new delay line,
// the D streams with their history, a phase's outputs and one piece's.
constexpr Qsp64s workSamples(Qsp64s n, Qsp64s up, Qsp64s down)
{
    const Qsp64s q = blockIters(down);
    return 2 * historyOf(n, up) + down * (streamHistoryBound(n, up, down) + q) + 2 * q;
}

// Builds the phases and pieces into the given arrays and copies the taps
// (parts of P, tapParts per tap) into `taps`; returns the plan.
template <class P, int TapParts>
Plan build(const P* h, Qsp32s n, Qsp32s up, Qsp32s upPhase, Qsp32s down, Qsp32s downPhase, Phase* phases,
           Piece* pieces, P* taps)
{
    Plan plan{n, up, upPhase, down, downPhase, Qsp32s(historyOf(n, up)), 0, 0, phases, pieces, taps};
    Qsp64s cursor = 0;
    for (Qsp64s r = 0; r < up; ++r) {
        const Qsp64s c = r * down + downPhase - upPhase;
        const Qsp64s p = c - floorDiv(c, up) * up, o = floorDiv(c, up);
        const Qsp64s len = p < n ? ceilDiv(n - p, up) : 0;
        phases[r].first = plan.pieceCount;
        phases[r].count = 0;
        for (Qsp64s s = 0; s < down && s < len; ++s) {
            const Qsp64s count = ceilDiv(len - s, down);
            const Qsp64s e = o - s;
            Piece& piece = pieces[plan.pieceCount++];
            piece.taps = Qsp32s(cursor * TapParts);
            piece.count = Qsp32s(count);
            piece.stream = Qsp32s(e - floorDiv(e, down) * down);
            piece.shift = Qsp32s(floorDiv(e, down));
            for (Qsp64s i = 0; i < count; ++i, ++cursor)
                for (int k = 0; k < TapParts; ++k) taps[cursor * TapParts + k] = h[(p + (i * down + s) * up) * TapParts + k];
            const Qsp64s reach = count - 1 - piece.shift;
            if (reach > plan.streamHistory) plan.streamHistory = Qsp32s(reach);
            ++phases[r].count;
        }
    }
    return plan;
}

// Element conversions of the data forms: the identity for the floating
// types; 16-bit samples widened exactly and narrowed by rounding to
// nearest (ties to even) with saturation.
template <class T>
struct Same {
    using In = T;
    static T in(const T& x) { return x; }
    static T out(const T& y) { return y; }
};

// The work areas of a call, inside the caller's buffer.
template <class T>
struct Work {
    T* dlyIn;     // history samples
    T* dlyOut;    // history samples
    T* streams;   // down streams of (streamHistory + block) samples
    T* out;       // block samples
    T* piece;     // block samples
    Qsp64s block;
    Qsp64s stride;  // samples per stream
};

template <class T>
Work<T> workAreas(const Plan& plan, Qsp8u* buf)
{
    T* base = reinterpret_cast<T*>((reinterpret_cast<Qsp64u>(buf) + 15) & ~Qsp64u(15));
    Work<T> w;
    w.block = blockIters(plan.down);
    w.stride = plan.streamHistory + w.block;
    w.dlyIn = base;
    w.dlyOut = w.dlyIn + plan.history;
    w.streams = w.dlyOut + plan.history;
    w.out = w.streams + Qsp64s(plan.down) * w.stride;
    w.piece = w.out + w.block;
    return w;
}

// The filtering of one call. IO converts the caller's samples (IO::In) to
// the arithmetic's (K::Sample) and back.
template <class K, class IO>
struct Run {
    using T = typename K::Sample;
    using P = typename K::Part;
    using In = typename IO::In;
    static constexpr int kTapParts = K::complexTaps ? 2 : 1;
    static constexpr int kParts = K::partsPerSample;

    const Plan& plan;
    const Work<T>& w;
    const In* src;

    // x[g]: the source from 0 on, the copied delay line before it.
    T input(Qsp64s g) const
    {
        if (g >= 0) return IO::in(src[g]);
        if (g >= -Qsp64s(plan.history)) return w.dlyIn[plan.history + g];
        return T{};
    }

    // Stream samples k in [from, to) of the block starting at iteration q0.
    void gather(Qsp64s q0, Qsp64s from, Qsp64s to) const
    {
        const Qsp64s d = plan.down;
        for (Qsp64s b = 0; b < d; ++b) {
            T* z = w.streams + b * w.stride + plan.streamHistory;
            for (Qsp64s k = from; k < to; ++k) z[k] = input((q0 + k) * d + b);
        }
    }

    // The streams' last streamHistory samples before the next block.
    void slide(Qsp64s count) const
    {
        for (Qsp64s b = 0; b < plan.down; ++b) {
            T* z = w.streams + b * w.stride;
            for (Qsp64s k = 0; k < plan.streamHistory; ++k) z[k] = z[k + count];
        }
    }

    // The count outputs of every phase of the block, written to
    // dst[q U + r], q < count.
    template <class Out>
    void phases(Out* dst, Qsp64s count) const
    {
        const P* taps = static_cast<const P*>(plan.taps);
        for (Qsp64s r = 0; r < plan.up; ++r) {
            const Phase& ph = plan.phases[r];
            if (ph.count == 0) {
                for (Qsp64s q = 0; q < count; ++q) dst[q * plan.up + r] = IO::out(T{});
                continue;
            }
            for (Qsp32s i = 0; i < ph.count; ++i) {
                const Piece& pc = plan.pieces[ph.first + i];
                const T* z = w.streams + pc.stream * w.stride + plan.streamHistory + pc.shift;
                T* y = i == 0 ? w.out : w.piece;
                fir::ownsFir<K>(fir::ScalarTaps<P>{taps + pc.taps}, pc.count, z, y, count);
                if (i > 0) {
                    P* a = reinterpret_cast<P*>(w.out);
                    const P* b = reinterpret_cast<const P*>(w.piece);
                    for (Qsp64s j = 0; j < count * kParts; ++j) a[j] += b[j];
                }
            }
            for (Qsp64s q = 0; q < count; ++q) dst[q * plan.up + r] = IO::out(w.out[q]);
        }
    }

    // numIters iterations into dst. Blocks run forward, the streams
    // sliding from block to block; with `backward` (the output overwrites
    // the input and outgrows it, U > D) they run from the last block to the
    // first, each gathering its own history from the source, which the
    // outputs written so far have not reached.
    template <class Out>
    void all(Out* dst, Qsp64s numIters, bool backward) const
    {
        const Qsp64s h = plan.streamHistory, q = w.block;
        if (backward) {
            for (Qsp64s q0 = (numIters - 1) / q * q; q0 >= 0; q0 -= q) {
                const Qsp64s count = numIters - q0 < q ? numIters - q0 : q;
                gather(q0, -h, count);
                phases(dst + q0 * plan.up, count);
            }
            return;
        }
        gather(0, -h, 0);
        for (Qsp64s q0 = 0; q0 < numIters; q0 += q) {
            const Qsp64s count = numIters - q0 < q ? numIters - q0 : q;
            gather(q0, 0, count);
            phases(dst + q0 * plan.up, count);
            slide(count);
        }
    }
};

}  // namespace polyphase

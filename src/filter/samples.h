// SPDX-License-Identifier: BSD-3-Clause
// Copies, zero fills and moves of sample arrays for the filters, by element
// type, through the data-movement family. Counts of zero or less do
// nothing, so that callers need not test the empty pieces of a split.
#pragma once
#include "qsp_validators.h"

namespace samples {

inline void copy(const Qsp16s* s, Qsp16s* d, Qsp64s n) { if (n > 0) y8::qspsCopy_16s(s, d, int(n)); }
inline void copy(const Qsp16sc* s, Qsp16sc* d, Qsp64s n) { if (n > 0) y8::qspsCopy_16sc(s, d, int(n)); }
inline void copy(const Qsp32f* s, Qsp32f* d, Qsp64s n) { if (n > 0) y8::qspsCopy_32f_L(s, d, n); }
inline void copy(const Qsp64f* s, Qsp64f* d, Qsp64s n) { if (n > 0) y8::qspsCopy_64f_L(s, d, n); }
inline void copy(const Qsp32fc* s, Qsp32fc* d, Qsp64s n) { if (n > 0) y8::qspsCopy_32fc_L(s, d, n); }
inline void copy(const Qsp64fc* s, Qsp64fc* d, Qsp64s n) { if (n > 0) y8::qspsCopy_64fc_L(s, d, n); }

inline void zero(Qsp16s* d, Qsp64s n) { if (n > 0) y8::qspsZero_16s(d, int(n)); }
inline void zero(Qsp16sc* d, Qsp64s n) { if (n > 0) y8::qspsZero_16sc(d, int(n)); }
inline void zero(Qsp32f* d, Qsp64s n) { if (n > 0) y8::qspsZero_32f_L(d, n); }
inline void zero(Qsp64f* d, Qsp64s n) { if (n > 0) y8::qspsZero_64f_L(d, n); }
inline void zero(Qsp32fc* d, Qsp64s n) { if (n > 0) y8::qspsZero_32fc_L(d, n); }
inline void zero(Qsp64fc* d, Qsp64s n) { if (n > 0) y8::qspsZero_64fc_L(d, n); }

// Overlapping ranges allowed (a move); counts fit in int here.
inline void move(const Qsp32f* s, Qsp32f* d, Qsp64s n) { if (n > 0) y8::qspsMove_32f(s, d, int(n)); }
inline void move(const Qsp64f* s, Qsp64f* d, Qsp64s n) { if (n > 0) y8::qspsMove_64f(s, d, int(n)); }
inline void move(const Qsp32fc* s, Qsp32fc* d, Qsp64s n) { if (n > 0) y8::qspsMove_32fc(s, d, int(n)); }
inline void move(const Qsp64fc* s, Qsp64fc* d, Qsp64s n) { if (n > 0) y8::qspsMove_64fc(s, d, int(n)); }

// n samples copied from s, or zeros when s is null.
template <class T>
inline void copyOrZero(const T* s, T* d, Qsp64s n)
{
    if (s) copy(s, d, n);
    else zero(d, n);
}

// A finite signal seen as an infinite one: x[k] = src[k] for 0 <= k < len,
// zeros from len on; before 0 the N-1 samples of a history (oldest first,
// its last one being x[-1]) or, without one, zeros. Filters read their
// delay lines, convolution its zero-padded operands, through it.
template <class T>
struct Signal {
    const T* history;    // may be null
    Qsp64s historyLen;   // samples of history
    const T* src;
    Qsp64s len;
};

// dst[0 .. n) = x[start .. start + n).
template <class T>
void gather(const Signal<T>& x, Qsp64s start, Qsp64s n, T* dst)
{
    Qsp64s k = 0;
    if (start < 0) {
        // Before the history, then the history.
        const Qsp64s before = -start - x.historyLen;
        const Qsp64s zeros = before < n ? before : n;
        if (zeros > 0) zero(dst, zeros), k = zeros;
        const Qsp64s negEnd = -start < n ? -start : n;
        if (k < negEnd) copyOrZero(x.history ? x.history + x.historyLen + start + k : nullptr, dst + k, negEnd - k);
        k = negEnd > k ? negEnd : k;
    }
    const Qsp64s srcEnd = x.len - start < n ? x.len - start : n;
    if (k < srcEnd) copy(x.src + start + k, dst + k, srcEnd - k), k = srcEnd;
    zero(dst + k, n - k);
}

}  // namespace samples

// SPDX-License-Identifier: BSD-3-Clause
// An in-place comparison sort with no allocation and no library calls:
// quicksort with a median-of-three pivot, a heapsort once the partitions
// have gone too deep (so the worst case stays n log n), and insertion sort
// for short runs. Not stable; `less` must be a strict weak order.
#pragma once
#include "qspdefs.h"

namespace y8::introsort {

template <class T>
inline void swapOne(T& a, T& b)
{
    const T t = a;
    a = b;
    b = t;
}

template <class T, class Less>
void insertion(T* a, Qsp64s n, Less less)
{
    for (Qsp64s i = 1; i < n; ++i) {
        const T x = a[i];
        Qsp64s j = i;
        for (; j > 0 && less(x, a[j - 1]); --j) a[j] = a[j - 1];
        a[j] = x;
    }
}

template <class T, class Less>
void siftDown(T* a, Qsp64s root, Qsp64s n, Less less)
{
    const T x = a[root];
    for (Qsp64s child; (child = 2 * root + 1) < n; root = child) {
        if (child + 1 < n && less(a[child], a[child + 1])) ++child;
        if (!less(x, a[child])) break;
        a[root] = a[child];
    }
    a[root] = x;
}

template <class T, class Less>
void heapsort(T* a, Qsp64s n, Less less)
{
    for (Qsp64s i = n / 2; i-- > 0;) siftDown(a, i, n, less);
    for (Qsp64s end = n - 1; end > 0; --end) {
        swapOne(a[0], a[end]);
        siftDown(a, 0, end, less);
    }
}

template <class T, class Less>
void sortDepth(T* a, Qsp64s n, int depth, Less less)
{
    while (n > 16) {
        if (depth-- == 0) {
            heapsort(a, n, less);
            return;
        }
        // Median of first, middle and last as the pivot, left in a[0].
        T* mid = a + n / 2;
        T* last = a + n - 1;
        if (less(*mid, *a)) swapOne(*mid, *a);
        if (less(*last, *mid)) swapOne(*last, *mid);
        if (less(*mid, *a)) swapOne(*mid, *a);
        swapOne(*a, *mid);
        const T pivot = a[0];
        // Hoare partition of a[1 .. n-1] around the pivot.
        Qsp64s i = 0, j = n;
        for (;;) {
            do ++i; while (i < n && less(a[i], pivot));
            do --j; while (less(pivot, a[j]));
            if (i >= j) break;
            swapOne(a[i], a[j]);
        }
        swapOne(a[0], a[j]);
        // Recurse into the smaller side, loop on the larger.
        if (j < n - 1 - j) {
            sortDepth(a, j, depth, less);
            a += j + 1;
            n -= j + 1;
        } else {
            sortDepth(a + j + 1, n - j - 1, depth, less);
            n = j;
        }
    }
    insertion(a, n, less);
}

template <class T, class Less>
void sort(T* a, Qsp64s n, Less less)
{
    int depth = 0;
    for (Qsp64s m = n; m > 1; m >>= 1) depth += 2;
    sortDepth(a, n, depth, less);
}

}  // namespace y8::introsort

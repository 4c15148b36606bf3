// SPDX-License-Identifier: BSD-3-Clause
// The large tier of the complex FFT: a transform of N = R x C values
// (R = 2^ceil(order/2) rows of C = 2^floor(order/2) columns, so R = C or
// R = 2C) in the destination itself, with a record of O(sqrt N) twiddles
// and a work buffer of O(sqrt N) values.
//
// With the source read as the matrix A[a][b] = x[C a + b]:
//  1. columns: for every column b, Y[k1][b] = sum over a of A[a][b] W_R^(a k1),
//     multiplied by W_N^(b k1), written to row k1, column b of the
//     destination. A batch of B adjacent columns is gathered into the work
//     buffer (one cache line of every row), transformed there as B
//     interleaved R-point transforms, and scattered back with its factors,
//     so the source may be the destination. The factors come from two
//     small tables: W_N^(k1 b0) for the batch start b0 (a product of a
//     coarse and a fine table, once per batch and row) and W_N^(k1 j) for
//     j < B.
//  2. rows: every row k1 of Y is transformed into Z[k1][k2] (C points: the
//     medium tier, or the two-step transform where double precision has one
//     for C), and X[k1 + R k2] = Z[k1][k2]: the result is the
//     transpose of Z. For R = C the transposition happens as the rows are
//     done, band by band (t rows at a time, t x t tiles): band a is
//     gathered into the work buffer and transformed there, and its tile of
//     column band c is written, transposed, to tile (c, a). Tile (c, a)
//     still holds untransformed data of band c when c > a; that tile is
//     first moved, as it is, to tile (a, c), whose data band a has already
//     taken. Band a therefore finds its data for column bands c < a in
//     tile (c, a).
//  3. for R = 2C the two squares P (rows 0..C-1) and Q (rows C..2C-1) are
//     done band by band together, and the transposed tiles of P go to the
//     even rows of the destination, those of Q to the odd rows: row j of
//     the result (2C values) is [P^T row j, Q^T row j]. Band a still
//     writes column band a only, so the moves of step 2, done within each
//     square, keep every untransformed tile readable.
// The inverse transform is the forward one with the real and imaginary
// parts exchanged on the way in (step 1) and out (by each row transform as
// it writes its result), as in the medium tier.
#pragma once
#include "fft_fourstep.h"
#include "mathfn/sincospi.h"

namespace fft {

// ---------------------------------------------------------------- shape

struct LargeShape {
    int rowsOrder;  // R = 2^rowsOrder: the length of the column transforms
    int colsOrder;  // C = 2^colsOrder: the length of the row transforms
};

inline LargeShape largeShape(int order) { return {(order + 1) / 2, order / 2}; }

// Rows per band (and side of the transposed tiles): two cache lines of
// complex values, so that every visit of a tile row, one page of its own at
// the larger orders, moves 128 bytes. (Against one cache line: 1.08-1.15x
// faster at orders 18, 20..22 of both precisions, within the noise
// elsewhere; four cache lines gained nothing more.)
template <class T>
inline constexpr Qsp64s kLargeBand = 128 / Qsp64s(sizeof(C<T>));

// Columns per batch: R x B values in each of the column phase's two
// buffers, about 512 KiB each, and never fewer than a band (kLargeBand) of
// columns. Wide batches keep the column transforms' inner loops long, make
// the batch-start factors (R per batch) cheap, and above all read more of
// each source row per visit: rows lie C values apart, each on a page of its
// own, so a narrow batch pays a page walk for every cache line it gathers.
// (Against 128 KiB, 512 KiB measured 1.1-1.35x faster at double-precision
// orders 20..22, and no slower elsewhere within the noise.)
template <class T>
inline Qsp64s largeBatch(int order)
{
    const Qsp64s r = Qsp64s(1) << largeShape(order).rowsOrder;
    Qsp64s b = (Qsp64s(512) << 10) / (r * Qsp64s(sizeof(C<T>)));
    if (b < kLargeBand<T>) b = kLargeBand<T>;
    return b;
}

// The last pass of the column transforms is radix 8 for odd rowsOrder.
inline int columnPasses(int rowsOrder) { return (rowsOrder - mediumLastBits(rowsOrder)) / 2; }

// Factors of the column transforms' radix-4 passes (three complex values
// per p, for sub-lengths R, R/4, ... down to 16 or 32).
inline Qsp64s columnTwiddleCount(int rowsOrder)
{
    Qsp64s count = 0, sub = Qsp64s(1) << rowsOrder;
    for (int i = 0; i < columnPasses(rowsOrder); ++i, sub >>= 2) count += 3 * (sub >> 2);
    return count;
}

// The exponent split of W_N^e = coarse[e >> fineOrder] * fine[e & (F - 1)].
inline int largeFineOrder(int order) { return (order + 1) / 2; }

// The record's tables, after its header (each 64-byte aligned):
//   column pass factors (columnTwiddleCount values of C<T>),
//   row transform factors (complexTwiddleCount of C values),
//   within-batch factors W_N^(k1 j), k1 < R, j < B, split in blocks of L,
//   fine W_N^l, l < F, and coarse W_N^(h F), h < N/F, in double.
template <class T>
inline Qsp64s largeTableBytes(int order)
{
    const LargeShape sh = largeShape(order);
    const Qsp64s n = Qsp64s(1) << order, fine = Qsp64s(1) << largeFineOrder(order);
    auto up = [](Qsp64s x) { return (x + 63) & ~Qsp64s(63); };
    return up(columnTwiddleCount(sh.rowsOrder) * Qsp64s(sizeof(C<T>))) +
           up(complexTwiddleCount<T>(sh.colsOrder) * Qsp64s(sizeof(C<T>))) +
           up((Qsp64s(1) << sh.rowsOrder) * largeBatch<T>(order) * Qsp64s(sizeof(C<T>))) + up(fine * 16) +
           up((n / fine) * 16);
}

// Work values: the column phase needs two buffers of R x B values and the
// R batch-start factors; the row phase a band of t rows of each of the R / C
// squares and a row of work.
template <class T>
inline Qsp64s largeWorkValues(int order)
{
    const LargeShape sh = largeShape(order);
    const Qsp64s r = Qsp64s(1) << sh.rowsOrder, c = Qsp64s(1) << sh.colsOrder;
    const Qsp64s columns = 2 * r * largeBatch<T>(order) + r, rows = ((r / c) * kLargeBand<T> + 1) * c;
    return columns > rows ? columns : rows;
}

// Pointers to the tables of a large record, kept in its header.
template <class T>
struct LargeTables {
    const C<T>* columns;
    const C<T>* rows;
    const C<T>* within;
    const C<double>* fine;
    const C<double>* coarse;
};

// W_N^e in T from the coarse and fine tables, the product taken in double
// (within an ulp or two of double precision, far below single precision's).
template <class T>
inline C<T> largeFactor(const LargeTables<T>& t, Qsp64s e, int order)
{
    const int fo = largeFineOrder(order);
    e &= (Qsp64s(1) << order) - 1;
    const C<double> a = t.coarse[e >> fo], b = t.fine[e & ((Qsp64s(1) << fo) - 1)];
    return {T(a.re * b.re - a.im * b.im), T(a.re * b.im + a.im * b.re)};
}

// Fills the tables at `at` (64-byte aligned) and sets their pointers; the
// octant is that of a length 2^oct.order >= N. Returns the end of the
// tables.
template <class T, class O>
Qsp8u* ownsFillLargeTables(LargeTables<T>& t, Qsp8u* at, int order, const Octant<O>& oct)
{
    const LargeShape sh = largeShape(order);
    const Qsp64s n = Qsp64s(1) << order, r = Qsp64s(1) << sh.rowsOrder;
    constexpr Qsp64s L = SV<T>::L;
    const Qsp64s B = largeBatch<T>(order);
    auto w = [&](Qsp64s e) {
        const C<O> v = twiddle(oct, e << (oct.order - order));
        return C<T>{T(v.re), T(v.im)};
    };
    auto next = [](Qsp8u* p, Qsp64s bytes) { return p + ((bytes + 63) & ~Qsp64s(63)); };
    // Column passes: sub-length `sub` reads W_sub^(k p) = W_N^(k p N/sub).
    C<T>* col = reinterpret_cast<C<T>*>(at);
    t.columns = col;
    {
        Qsp64s sub = r;
        C<T>* out = col;
        for (int i = 0; i < columnPasses(sh.rowsOrder); ++i, sub >>= 2)
            for (Qsp64s p = 0; p < sub / 4; ++p)
                for (int k = 1; k <= 3; ++k) *out++ = w(k * p * (n / sub));
    }
    at = next(at, columnTwiddleCount(sh.rowsOrder) * Qsp64s(sizeof(C<T>)));
    C<T>* rows = reinterpret_cast<C<T>*>(at);
    t.rows = rows;
    if (fourStepOrder<T>(sh.colsOrder))
        ownsFillFourStepTwiddles<T>(rows, sh.colsOrder, oct);
    else
        ownsFillMediumTwiddles<T>(rows, sh.colsOrder, oct);
    at = next(at, complexTwiddleCount<T>(sh.colsOrder) * Qsp64s(sizeof(C<T>)));
    // Within-batch factors, row by row, split in blocks of L.
    C<T>* within = reinterpret_cast<C<T>*>(at);
    t.within = within;
    for (Qsp64s k1 = 0; k1 < r; ++k1) {
        T* f = &within[k1 * B].re;
        for (Qsp64s j0 = 0; j0 < B; j0 += L, f += 2 * L)
            for (Qsp64s l = 0; l < L; ++l) {
                const C<T> v = w(k1 * (j0 + l));
                f[l] = v.re;
                f[L + l] = v.im;
            }
    }
    at = next(at, r * B * Qsp64s(sizeof(C<T>)));
    // Coarse and fine factors from the library's extended sine and cosine.
    const int fo = largeFineOrder(order);
    const Qsp64s fine = Qsp64s(1) << fo, coarse = n >> fo;
    const double step = -2.0 / static_cast<double>(n);  // exact: a power of two
    C<double>* fineT = reinterpret_cast<C<double>*>(at);
    for (Qsp64s l = 0; l < fine; ++l) {
        const mathfn::SinCosExt v = mathfn::sinCosPiExt(step * static_cast<double>(l));
        fineT[l] = {double(v.c), double(v.s)};
    }
    t.fine = fineT;
    at = next(at, fine * 16);
    C<double>* coarseT = reinterpret_cast<C<double>*>(at);
    for (Qsp64s h = 0; h < coarse; ++h) {
        const mathfn::SinCosExt v = mathfn::sinCosPiExt(step * static_cast<double>(h << fo));
        coarseT[h] = {double(v.c), double(v.s)};
    }
    t.coarse = coarseT;
    return next(at, coarse * 16);
}

// ---------------------------------------------------------------- memory

// The destination as a matrix of complex values: interleaved, or the split
// kinds' two arrays. Rows of the large algorithm never straddle anything.
template <class T>
struct InterleavedMem {
    C<T>* p;
    // L values from element i as split registers, and back.
    typename SV<T>::X load(Qsp64s i) const { return SV<T>::template load<true>(p + i); }
    void store(Qsp64s i, typename SV<T>::X v) const { SV<T>::template store<true>(p + i, v); }
    // count values (a multiple of the register width) between element i and
    // an interleaved buffer.
    void read(Qsp64s i, C<T>* to, Qsp64s count) const
    {
        using K = CV<T>;
        for (Qsp64s k = 0; k < count; k += K::per) K::store(to + k, K::load(p + i + k));
    }
    void write(Qsp64s i, const C<T>* from, Qsp64s count) const
    {
        using K = CV<T>;
        for (Qsp64s k = 0; k < count; k += K::per) K::store(p + i + k, K::load(from + k));
    }
    void move(Qsp64s to, Qsp64s from, Qsp64s count) const
    {
        using K = CV<T>;
        for (Qsp64s k = 0; k < count; k += K::per) K::store(p + to + k, K::load(p + from + k));
    }
};

template <class T>
struct SplitMem {
    T* re;
    T* im;
    typename SV<T>::X load(Qsp64s i) const { return {SV<T>::V::loadu(re + i), SV<T>::V::loadu(im + i)}; }
    void store(Qsp64s i, typename SV<T>::X v) const
    {
        SV<T>::V::storeu(re + i, v.re);
        SV<T>::V::storeu(im + i, v.im);
    }
    void read(Qsp64s i, C<T>* to, Qsp64s count) const
    {
        for (Qsp64s k = 0; k < count; k += SV<T>::L) SV<T>::template store<true>(to + k, load(i + k));
    }
    void write(Qsp64s i, const C<T>* from, Qsp64s count) const
    {
        for (Qsp64s k = 0; k < count; k += SV<T>::L) store(i + k, SV<T>::template load<true>(from + k));
    }
    void move(Qsp64s to, Qsp64s from, Qsp64s count) const
    {
        using V = typename SV<T>::V;
        for (Qsp64s k = 0; k < count; k += V::lanes) {
            V::storeu(re + to + k, V::loadu(re + from + k));
            V::storeu(im + to + k, V::loadu(im + from + k));
        }
    }
};

// ---------------------------------------------------------------- columns

constexpr Qsp64s kColumnAhead = 8;

// Step 1 for all batches: src (a first-pass view, element C a + b) to mem.
template <class T, class Src, class Mem>
void ownsLargeColumns(Src src, Mem mem, C<T>* work, const LargeTables<T>& t, int order)
{
    using K = SV<T>;
    using V = typename K::V;
    using X = typename K::X;
    constexpr Qsp64s L = K::L;
    const Qsp64s B = largeBatch<T>(order);
    const LargeShape sh = largeShape(order);
    const Qsp64s r = Qsp64s(1) << sh.rowsOrder, c = Qsp64s(1) << sh.colsOrder, total = r * B;
    C<T>* const bufA = work;
    C<T>* const bufB = work + total;
    C<T>* const start = bufB + total;
    const int lastBits = mediumLastBits(sh.rowsOrder);
    const Qsp64s s = total >> lastBits, rows = r >> lastBits;
    for (Qsp64s b0 = 0; b0 < c; b0 += B) {
        // Rows are C values apart, each read on a page of its own: their
        // pieces are asked for kColumnAhead rows ahead.
        for (Qsp64s a = 0; a < r; ++a) {
            const Qsp64s from = c * a + b0;
            if (a + kColumnAhead < r) src.prefetch(from + kColumnAhead * c, B);
            for (Qsp64s j = 0; j < B; j += L) K::template store<false>(bufA + a * B + j, src.load(from + j));
        }
        for (Qsp64s k1 = 0; k1 < r; ++k1) start[k1] = largeFactor<T>(t, k1 * b0, order);
        // B interleaved R-point transforms: stride B, sub-lengths R, R/4, ...
        Halves<C<T>> in = halvesOf(bufA, total), out = halvesOf(bufB, total);
        const C<T>* tw = t.columns;
        Qsp64s sub = r, stride = B;
        for (int i = 0; i < columnPasses(sh.rowsOrder); ++i, sub >>= 2, stride <<= 2) {
            ownsMediumPass<T, false>(asConst(in), out, total, sub, stride, tw);
            tw += 3 * (sub >> 2);
            const Halves<C<T>> x = in;
            in = out;
            out = x;
        }
        // The last radix-4 or 8 step, its outputs (row k1, columns j..j+L-1)
        // multiplied by W_N^(k1 (b0 + j)) and written to mem.
        const Qsp64s half = total >> 1;
        for (Qsp64s q = 0; q < s; q += L) {
            const Qsp64s u = q / B, j = q % B;
            auto inAt = [&](int k) { return K::template load<false>(at(in, q + k * s, half)); };
            auto put = [&](int k, X v) {
                const Qsp64s k1 = u + rows * k;
                const C<T> w0 = start[k1];
                const X w = K::template mul<false>(K::template load<false>(t.within + k1 * B + j),
                                                   X{V::splat(w0.re), V::splat(w0.im)});
                mem.store(c * k1 + b0 + j, K::template mul<false>(v, w));
            };
            if (lastBits == 3)
                dft8<T>(inAt, put);
            else
                dft4<T>(inAt, put);
        }
    }
}

// ---------------------------------------------------------------- rows

// Writes the t x t tile of band (rows i < t of `band`, columns c0..c0+t-1,
// rows of length side) transposed to mem: element base + (c0 + j) stride +
// a0 + i receives band[i][c0 + j].
template <class T, class Mem>
void ownsTileTransposed(Mem mem, Qsp64s base, Qsp64s stride, const C<T>* band, Qsp64s side, Qsp64s c0, Qsp64s a0)
{
    constexpr Qsp64s t = kLargeBand<T>;
    alignas(16) C<T> tile[t][t];
    using K = CV<T>;
    if constexpr (K::per == 2) {
        // Two complex values per register: 2 x 2 blocks.
        using V = typename K::V;
        for (Qsp64s i = 0; i < t; i += 2)
            for (Qsp64s j = 0; j < t; j += 2) {
                const auto r0 = K::load(band + i * side + c0 + j), r1 = K::load(band + (i + 1) * side + c0 + j);
                K::store(&tile[j][i], V::lowHalves(r0, r1));
                K::store(&tile[j + 1][i], V::highHalves(r0, r1));
            }
    } else {
        for (Qsp64s i = 0; i < t; ++i)
            for (Qsp64s j = 0; j < t; ++j) K::store(&tile[j][i], K::load(band + i * side + c0 + j));
    }
    for (Qsp64s j = 0; j < t; ++j) mem.write(base + (c0 + j) * stride + a0, tile[j], t);
}

// Steps 2 and 3: row transforms and transposition, band by band, for the
// H squares of side C (H = R / C, 1 or 2) at once. Band a is rows a0..a0+t-1
// of every square; work holds (H t + 1) C values.
//
// Square h's result Z_h is wanted transposed and, for H = 2, its rows
// interleaved with the other square's: row k2 of Z_h^T goes to row H k2 + h
// of the destination (rows of C values), so that row k2 of the result, 2C
// values long, is [Z_0^T row k2, Z_1^T row k2]. Band a therefore writes the
// tiles of column band a, every row band, and nothing else; tile (c, a) of
// a square holds, when c > a, data of its band c not yet transformed, which
// is first moved, as it is, to tile (a, c) of the same square, whose data
// band a has already taken. Band a finds its data for column bands c < a in
// tile (c, a) of its square, moved there by band c. No pass over the whole
// array is needed besides the bands themselves.
template <class T, bool Swap, class Mem>
void ownsLargeRows(Mem mem, C<T>* work, const LargeTables<T>& t, int rowsOrder, int colsOrder, bool scaled, T f)
{
    constexpr Qsp64s tb = kLargeBand<T>;
    const Qsp64s side = Qsp64s(1) << colsOrder, bands = side / tb, squares = Qsp64s(1) << (rowsOrder - colsOrder);
    C<T>* const band = work;
    C<T>* const rowWork = work + squares * tb * side;
    auto rowAt = [&](Qsp64s h, Qsp64s row, Qsp64s col) { return (h * side + row) * side + col; };
    for (Qsp64s a = 0; a < bands; ++a) {
        const Qsp64s a0 = a * tb;
        for (Qsp64s h = 0; h < squares; ++h)
            for (Qsp64s i = 0; i < tb; ++i)
                for (Qsp64s cb = 0; cb < bands; ++cb) {
                    const Qsp64s c0 = cb * tb;
                    const Qsp64s from = cb < a ? rowAt(h, c0 + i, a0) : rowAt(h, a0 + i, c0);
                    mem.read(from, band + (h * tb + i) * side + c0, tb);
                }
        for (Qsp64s i = 0; i < squares * tb; ++i) {
            C<T>* row = band + i * side;
            if constexpr (sizeof(T) == 8) {
                // The inverse two-step run of values z gives the inverse
                // transform of z with its parts exchanged, which is the
                // forward transform of z with the parts of its result
                // exchanged: what Swap asks for. (1.01..1.03x faster than
                // the radix-4 passes at orders 20 and 21.)
                if (fourStepOrder<T>(colsOrder)) {
                    ownsFourStepRun<Swap>(InterleavedIn<T, false>{row}, FourStepInterleaved{row}, rowWork, colsOrder,
                                          t.rows, scaled, f);
                    continue;
                }
            }
            ownsFftMediumRun<T>(InterleavedIn<T, false>{row}, halvesOf(row, side), InterleavedOut<T, Swap>{row}, true,
                                halvesOf(rowWork, side), colsOrder, t.rows, scaled, f);
        }
        // With two squares, the tiles of column band c land in row bands 2c
        // and 2c + 1, so every move is done before the first of them.
        for (Qsp64s cb = a + 1; cb < bands; ++cb)
            for (Qsp64s h = 0; h < squares; ++h)
                for (Qsp64s i = 0; i < tb; ++i)
                    mem.move(rowAt(h, a0 + i, cb * tb), rowAt(h, cb * tb + i, a0), tb);
        for (Qsp64s cb = 0; cb < bands; ++cb)
            for (Qsp64s h = 0; h < squares; ++h)
                ownsTileTransposed<T>(mem, h * side, squares * side, band + h * tb * side, side, cb * tb, a0);
    }
}

// The whole large transform: src (first-pass view) to mem; work holds
// largeWorkValues(order) values.
template <class T, bool Swap, class Src, class Mem>
void ownsFftLargeRun(Src src, Mem mem, C<T>* work, const LargeTables<T>& t, int order, bool scaled, T f)
{
    const LargeShape sh = largeShape(order);
    ownsLargeColumns<T>(src, mem, work, t, order);
    ownsLargeRows<T, Swap>(mem, work, t, sh.rowsOrder, sh.colsOrder, scaled, f);
}

}  // namespace fft

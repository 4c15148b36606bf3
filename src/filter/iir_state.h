// SPDX-License-Identifier: BSD-3-Clause
// IIR state records: the identifiers, the header, the layout of every kind
// inside the caller's buffer (what the size queries report), the builders
// the initialisers use, the filtering driver that hands a record to its
// kernel, and the delay-line exchange.
//
// A record starts at the first 32-byte boundary of the caller's buffer:
//   header (64 bytes, below)
//   normalised taps   AR: b0..bN, a1..aN (2N+1); biquads: b0 b1 b2 a1 a2 per
//                     section (5 numBq)
//   delay line        AR: the N values of the transposed direct form and
//                     one more that stays 0; biquads: s1 s2 per section (the
//                     same form), direct form 1: x[n-1] x[n-2] y[n-1]
//                     y[n-2] per section; then one element 0
//   multipliers       AR: b0..bN then a1..aN, one Coef each; biquads: one
//                     BiQuadCoefs per section
//   work area         kArBlock elements (AR: the feed-forward sums; biquads:
//                     the samples of calls on other sample types); AR
//                     states of other sample types another kArBlock
//                     elements for the converted samples
//   auxiliary area    AR: kArReserve bytes holding the lookahead
//                     multipliers; biquads: one BiQuadHistory per section,
//                     the sections' registers while a call runs.
// Every area starts on a 16-byte boundary. The size of a kind is the end
// of its last area plus 32 bytes for the alignment of the buffer.
#pragma once
#include <initializer_list>
#include <type_traits>

#include "iir_kernels.h"

namespace iir {

enum class Shape { AR, BiQuad, DF1 };

// 0x4949 in the upper half, two ASCII digits in the lower half.
constexpr Qsp32u idOf(int digits)
{
    return 0x49490000u | Qsp32u('0' + digits / 10) << 8 | Qsp32u('0' + digits % 10);
}

// The digits of an identifier of the IIR kind, or -1.
constexpr int digitsOf(Qsp32u id)
{
    const Qsp32u hi = (id >> 8) & 0xFF, lo = id & 0xFF;
    if ((id >> 16) != 0x4949u || hi < '0' || hi > '9' || lo < '0' || lo > '9') return -1;
    return int(hi - '0') * 10 + int(lo - '0');
}

// Odd digits up to 27 are AR states, even ones up to 28 biquad cascades, 29
// and 30 biquad cascades in direct form 1.
constexpr Shape shapeOf(int digits)
{
    return digits >= 29 ? Shape::DF1 : (digits & 1) ? Shape::AR : Shape::BiQuad;
}

struct Header {
    Qsp32u id;
    Qsp32u unused0;
    void* taps;       // normalised taps
    void* dly;        // delay line, one element more that stays 0
    Qsp32s order;     // N, or twice the number of sections
    Qsp32u unused1;
    void* coefs;      // multipliers of the kernels
    void* aux;        // AR: lookahead of the nearest feedback taps; biquads:
                      // the sections' registers during a call
    Qsp32s numBq;     // sections; 0 for AR
    Qsp32u cleared;
    void* scratch;    // work area
};
static_assert(sizeof(Header) == 64);

constexpr Qsp64s kAlign = 32;
// AR states end with this many bytes for the lookahead multipliers (at most
// 96 are used): together with the header, the work area of 1024 floats and
// the alignment slack it makes the 4760 bytes of the single-precision size.
constexpr Qsp64s kArReserve = 568;

constexpr Qsp64s ceil16(Qsp64s x) { return (x + 15) & ~Qsp64s(15); }

struct Layout {
    Qsp64s taps, dly, coefs, scratch, aux, end;
    Qsp64s bytes() const { return end + kAlign; }
};

template <class T>
constexpr Layout arLayout(Qsp64s N, bool converts)
{
    constexpr Qsp64s s = sizeof(T), c = sizeof(typename Lanes<T>::Coef);
    Layout l{};
    l.taps = sizeof(Header);
    l.dly = l.taps + ceil16((2 * N + 1) * s);
    l.coefs = l.dly + ceil16((N + 1) * s);
    l.scratch = l.coefs + c * (2 * N + 1);
    l.aux = l.scratch + kArBlock * s * (converts ? 2 : 1);
    l.end = l.aux + kArReserve;
    return l;
}

// Delay-line values per section.
constexpr int perSection(Shape shape) { return shape == Shape::DF1 ? 4 : 2; }

template <class T>
constexpr Layout biquadLayout(Qsp64s K, Shape shape)
{
    constexpr Qsp64s s = sizeof(T);
    Layout l{};
    l.taps = sizeof(Header);
    l.dly = l.taps + ceil16(5 * K * s);
    l.coefs = l.dly + ceil16((perSection(shape) * K + 1) * s);
    l.scratch = l.coefs + Qsp64s(sizeof(BiQuadCoefs<T>)) * K;
    l.aux = l.scratch + kArBlock * s;
    l.end = l.aux + Qsp64s(sizeof(BiQuadHistory<T>)) * K;
    return l;
}

// The bytes a kind needs for order (AR) or numBq (biquads), or -1 when that
// is not a positive int.
template <class T>
constexpr Qsp64s stateBytes(Shape shape, int n, bool converts)
{
    if (n < 1) return -1;
    const Qsp64s b = shape == Shape::AR ? arLayout<T>(n, converts).bytes() : biquadLayout<T>(n, shape).bytes();
    return b > 0x7FFFFFFF ? -1 : b;
}

// The size query of every kind: order below 1 is refused, and so is one
// whose size does not fit an int.
template <class T>
QspStatus getStateSize(Shape shape, bool converts, int n, int* pBufferSize)
{
    if (pBufferSize == nullptr) return qspStsNullPtr;
    if (n < 1) return qspStsBadFilterOrder;
    const Qsp64s bytes = stateBytes<T>(shape, n, converts);
    if (bytes < 0) return qspStsOverflow;
    *pBufferSize = int(bytes);
    return qspStsOk;
}

inline Header* alignState(Qsp8u* p)
{
    return reinterpret_cast<Header*>((reinterpret_cast<Qsp64u>(p) + Qsp64u(kAlign - 1)) & ~Qsp64u(kAlign - 1));
}

// The identifier of a record, read without assuming its alignment.
inline Qsp32u idOfRecord(const void* p) { return simd::loadOne(static_cast<const Qsp32u*>(p)); }

// Whether a record carries one of the identifiers given by their digits.
inline bool accepts(const void* pState, std::initializer_list<int> digits)
{
    const int d = digitsOf(idOfRecord(pState));
    for (int x : digits)
        if (d == x) return true;
    return false;
}

// The states each family of forms serves, by their digits: the AR, BiQuad
// and direct-form-1 states of its sample and state types.
namespace served {
constexpr std::initializer_list<int> k32f = {1, 2, 29};
constexpr std::initializer_list<int> k32fc = {3, 4};
constexpr std::initializer_list<int> k32f16s = {5, 6};
constexpr std::initializer_list<int> k32fc16sc = {7, 8};
constexpr std::initializer_list<int> k64f = {13, 14};
constexpr std::initializer_list<int> k64fc = {15, 16};
constexpr std::initializer_list<int> k64f32f = {17, 18};
constexpr std::initializer_list<int> k64fc32fc = {19, 20};
constexpr std::initializer_list<int> k64f32s = {21, 22};  // delay lines of 64f values
constexpr std::initializer_list<int> kDF164f32s = {30};   // delay lines of 32s samples
constexpr std::initializer_list<int> k64f32sAll = {21, 22, 30};
constexpr std::initializer_list<int> k64fc32sc = {23, 24};
constexpr std::initializer_list<int> k64f16s = {25, 26};
constexpr std::initializer_list<int> k64fc16sc = {27, 28};
}  // namespace served

// 1 / a0 in T (complex: formed in extended precision, then rounded).
template <class T>
T reciprocal(T a0)
{
    if constexpr (Lanes<T>::kComplex) {
        const long double re = a0.re, im = a0.im, den = re * re + im * im;
        return Wide<T>::to({re / den, -im / den});
    } else {
        return T(1) / a0;
    }
}

// A caller's delay-line value in the state's type: the same type, or a
// 32-bit integer sample of the direct-form-1 integer cascade.
template <class T, class V>
T dlyIn(const V* p)
{
    if constexpr (std::is_same_v<T, V>) return simd::loadOne(p);
    else return T(simd::loadOne(p));
}

inline void writeHeader(Header* h, Qsp32u id, const Layout& l, int order, int numBq)
{
    Qsp8u* base = reinterpret_cast<Qsp8u*>(h);
    h->id = id;
    h->unused0 = 0;
    h->taps = base + l.taps;
    h->dly = base + l.dly;
    h->order = order;
    h->unused1 = 0;
    h->coefs = base + l.coefs;
    h->aux = base + l.aux;
    h->numBq = numBq;
    h->cleared = 0;
    h->scratch = base + l.scratch;
}

// The delay line from the caller's values, or zeros, and the extra 0.
template <class T, class V>
void loadDelay(T* d, int count, const V* pDlyLine)
{
    for (int k = 0; k < count; ++k) d[k] = pDlyLine ? dlyIn<T>(pDlyLine + k) : Lanes<T>::szero();
    d[count] = Lanes<T>::szero();
}

// Builds an AR state of order N in pBuf: header and delay line first, then
// the a0 test, then the normalised taps and the multipliers. The state's
// address goes to *ppState only when it is complete.
template <class T, class V>
QspStatus buildAR(Qsp32u id, void** ppState, const T* pTaps, int N, const V* pDlyLine, Qsp8u* pBuf, bool converts)
{
    using E = Lanes<T>;
    Header* h = alignState(pBuf);
    const Layout l = arLayout<T>(N, converts);
    writeHeader(h, id, l, N, 0);
    loadDelay(static_cast<T*>(h->dly), N, pDlyLine);
    const T a0 = simd::loadOne(pTaps + N + 1);
    if (E::isZero(a0)) return qspStsZeroDivisor;
    const T r = reciprocal(a0);
    T* t = static_cast<T*>(h->taps);
    for (int k = 0; k <= N; ++k) t[k] = E::smul(simd::loadOne(pTaps + k), r);
    for (int k = 1; k <= N; ++k) t[N + k] = E::smul(simd::loadOne(pTaps + N + 1 + k), r);
    prepareAR<T>(t, N, static_cast<typename E::Coef*>(h->coefs), static_cast<typename E::Coef*>(h->aux));
    *ppState = h;
    return qspStsOk;
}

// Builds a biquad cascade of K sections: header and delay line, then
// section by section the a0 and b0 tests, the normalised taps and the
// block multipliers.
template <class T, class V>
QspStatus buildBiQuad(Qsp32u id, Shape shape, void** ppState, const T* pTaps, int K, const V* pDlyLine, Qsp8u* pBuf)
{
    using E = Lanes<T>;
    Header* h = alignState(pBuf);
    const Layout l = biquadLayout<T>(K, shape);
    writeHeader(h, id, l, 2 * K, K);
    loadDelay(static_cast<T*>(h->dly), perSection(shape) * K, pDlyLine);
    T* t = static_cast<T*>(h->taps);
    auto* c = static_cast<BiQuadCoefs<T>*>(h->coefs);
    for (int s = 0; s < K; ++s) {
        const T* in = pTaps + 6 * s;
        const T b0 = simd::loadOne(in), a0 = simd::loadOne(in + 3);
        if (E::isZero(a0) || E::isZero(b0)) return qspStsZeroDivisor;
        const T r = reciprocal(a0);
        T* out = t + 5 * s;
        out[0] = E::smul(b0, r);
        out[1] = E::smul(simd::loadOne(in + 1), r);
        out[2] = E::smul(simd::loadOne(in + 2), r);
        out[3] = E::smul(simd::loadOne(in + 4), r);
        out[4] = E::smul(simd::loadOne(in + 5), r);
        prepareBiQuad(out, c + s);
    }
    *ppState = h;
    return qspStsOk;
}

// ---------------------------------------------------------------------------
// Filtering.

// A biquad cascade: the history of every section from the delay line, the
// kernel, the delay line back from the history.
template <class T, class In, class Out, class Ds, class Dd>
void filterBiQuad(Header* h, Shape shape, const Ds* src, Dd* dst, int len, const In& in, const Out& out)
{
    using E = Lanes<T>;
    const int K = h->numBq;
    T* d = static_cast<T*>(h->dly);
    const T* t = static_cast<const T*>(h->taps);
    const auto* c = static_cast<const BiQuadCoefs<T>*>(h->coefs);
    auto* hist = static_cast<BiQuadHistory<T>*>(h->aux);
    const bool df1 = shape == Shape::DF1;
    for (int s = 0; s < K; ++s) hist[s] = df1 ? historyFromDF1(d + 4 * s) : historyFromDF2(d[2 * s], d[2 * s + 1]);
    ownsIIRBiQuadCascade(c, hist, K, static_cast<T*>(h->scratch), src, dst, len, in, out);
    const int m = len - E::L * ((len - 1) / E::L);
    for (int s = 0; s < K; ++s) {
        if (df1) lastSamples(hist[s], m, d + 4 * s);
        else endDF2(hist[s], m, len, t + 5 * s, d[2 * s + 1], d + 2 * s);
    }
}

template <class T, class In, class Out, class Ds, class Dd>
void filterAR(Header* h, const Ds* src, Dd* dst, int len, const In& in, const Out& out)
{
    const int N = h->order;
    const auto* c = static_cast<const typename Lanes<T>::Coef*>(h->coefs);
    const auto* look = static_cast<const typename Lanes<T>::Coef*>(h->aux);
    const ArTaps<T> f = arTaps(static_cast<const T*>(h->taps), N, c, look);
    T* sums = static_cast<T*>(h->scratch);
    ownsIIRAR(f, static_cast<T*>(h->dly), sums, sums + kArBlock, src, dst, len, in, out);
}

// Filters through a record whose identifier has been checked.
template <class T, class In, class Out, class Ds, class Dd>
void filter(void* state, const Ds* src, Dd* dst, int len, const In& in, const Out& out)
{
    Header* h = static_cast<Header*>(state);
    const Shape shape = shapeOf(digitsOf(h->id));
    if (shape == Shape::AR) filterAR<T>(h, src, dst, len, in, out);
    else filterBiQuad<T>(h, shape, src, dst, len, in, out);
}

// Delay-line values of a record: N, 2 per section, or 4 per section.
inline int delayCount(const Header* h)
{
    const Shape shape = shapeOf(digitsOf(h->id));
    return shape == Shape::AR ? h->order : perSection(shape) * h->numBq;
}

}  // namespace iir

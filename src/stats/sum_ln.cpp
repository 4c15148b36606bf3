// SPDX-License-Identifier: BSD-3-Clause
// SumLn: the sum of the natural logarithms of the elements of a vector,
// block by block from binary exponents and mantissa products.
#include "mathfn/ln.h"
#include "qsp_validators.h"
#include "reduce.h"

namespace y8 {
namespace {

// Each element x = M 2^(e - bias) with its mantissa M in [0.5, 1): the
// exponents are added in an integer and the mantissas multiplied in double,
// which cannot underflow in a block of 512 (the product stays above
// 2^-512). A block's value is (sum of e - bias per element) ln 2 + ln of the
// product; the block values are added in double.
//
// The elements are checked in order and the first special one decides the
// result: a set sign bit (negative values, -0.0, NaNs with the sign bit)
// gives a NaN and qspStsWarnLogOfNegative; an all-zero pattern gives +inf
// and qspStsWarnLogOfZero (so kept, though the limit is -inf); a NaN gives a
// NaN and qspStsOk; +inf gives +inf and qspStsOk.
constexpr Qsp64s kBlock = 512;
constexpr double kLn2 = 0.6931471805599453;

template <class T>
struct FloatBits;
template <>
struct FloatBits<Qsp32f> {
    using U = Qsp32u;
    static constexpr int mantissaBits = 23, bias = 126;
    static constexpr U expMask = 0x7F800000u;
};
template <>
struct FloatBits<Qsp64f> {
    using U = Qsp64u;
    static constexpr int mantissaBits = 52, bias = 1022;
    static constexpr U expMask = 0x7FF0000000000000ull;
};

struct LogSum {
    double value;
    QspStatus status;
};

constexpr double kPlusInf = __builtin_inf();
inline double negativeNaN()
{
    const Qsp64u bits = 0xFFF8000000000000ull;
    double d;
    __builtin_memcpy(&d, &bits, 8);
    return d;
}

template <class T>
LogSum ownsSumLn(const T* pSrc, Qsp64s len)
{
    using B = FloatBits<T>;
    using U = typename B::U;
    constexpr U top = U(1) << (8 * sizeof(U) - 1);
    constexpr U fraction = (U(1) << B::mantissaBits) - 1;
    constexpr U one = U(1) << B::mantissaBits;
    double total = 0;
    for (Qsp64s start = 0; start < len; start += kBlock) {
        const Qsp64s end = len - start < kBlock ? len : start + kBlock;
        Qsp64s exponents = 0;
        double product = 1;
        for (Qsp64s i = start; i < end; ++i) {
            U x;
            __builtin_memcpy(&x, pSrc + i, sizeof(T));
            if (x & top) return {negativeNaN(), qspStsWarnLogOfNegative};
            if (x == 0) return {kPlusInf, qspStsWarnLogOfZero};
            if ((x & B::expMask) == B::expMask) return {(x & fraction) ? negativeNaN() : kPlusInf, qspStsOk};
            // The integer mantissa with its leading one at bit mantissaBits
            // (subnormals shifted up, their exponent lowered to match).
            int e = int(x >> B::mantissaBits);
            U mant = x & fraction;
            if (e == 0) {
                e = 1;
                while (!(mant & one)) mant <<= 1, --e;
            } else {
                mant |= one;
            }
            exponents += e - B::bias;
            product *= double(mant) * (0.5 / double(one));  // M = mant / 2^(mantissaBits + 1)
        }
        total += double(exponents) * kLn2 + mathfn::lnPositive(product);
    }
    return {total, qspStsOk};
}

// 16-bit integers: negative and zero elements as above, the others exactly
// as 32-bit floats.
LogSum ownsSumLn16(const Qsp16s* pSrc, int len)
{
    double total = 0;
    Qsp32f block[kBlock];
    for (int start = 0; start < len; start += int(kBlock)) {
        const int n = len - start < kBlock ? len - start : int(kBlock);
        for (int i = 0; i < n; ++i) {
            const Qsp16s x = pSrc[start + i];
            if (x < 0) return {negativeNaN(), qspStsWarnLogOfNegative};
            if (x == 0) return {kPlusInf, qspStsWarnLogOfZero};
            block[i] = Qsp32f(x);
        }
        total += ownsSumLn(block, n).value;
    }
    return {total, qspStsOk};
}

template <class D, class T>
QspStatus sumLn(const T* pSrc, int len, D* pSum)
{
    if (QspStatus s = check::vectors(len, pSrc, pSum)) return s;
    const LogSum r = ownsSumLn(pSrc, len);
    *pSum = D(r.value);
    return r.status;
}

}  // namespace

QspStatus qspsSumLn_32f(const Qsp32f* pSrc, int len, Qsp32f* pSum) { return sumLn(pSrc, len, pSum); }
QspStatus qspsSumLn_32f64f(const Qsp32f* pSrc, int len, Qsp64f* pSum) { return sumLn(pSrc, len, pSum); }
QspStatus qspsSumLn_64f(const Qsp64f* pSrc, int len, Qsp64f* pSum) { return sumLn(pSrc, len, pSum); }

QspStatus qspsSumLn_16s32f(const Qsp16s* pSrc, int len, Qsp32f* pSum)
{
    if (QspStatus s = check::vectors(len, pSrc, pSum)) return s;
    const LogSum r = ownsSumLn16(pSrc, len);
    *pSum = Qsp32f(r.value);
    return r.status;
}

}  // namespace y8

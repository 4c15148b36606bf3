// SPDX-License-Identifier: BSD-3-Clause
// The natural logarithm of a double, within 1 ULP for every double.
//
// Interface (stable; other families call these):
//
//   double qspsLnOne(double x)      ln x
//   double lnPositive(double x)     the same, for callers that know x > 0
//   void   qspsLn_64f_A53(const double* pSrc, double* pDst, int len)
//          the vector form: pDst[i] = qspsLnOne(pSrc[i]) bit for bit, two
//          lanes at a time; pDst may be pSrc; len <= 0 does nothing.
//   float  qspsLnOne_32f(float x)  ln x correctly rounded to float
//   void   qspsLn_32f_A24(const float* pSrc, float* pDst, Qsp64s len)
//          the vector form, four at a time, the same bits (single.h)
//
// The one-element function is constexpr for positive finite arguments;
// none needs a library call. Special values: ln(+-0) = -infinity,
// ln(+inf) = +inf, ln of a negative number or of -infinity is the default
// NaN (bit pattern 0xFFF8000000000000), ln(NaN) is that NaN made quiet.
// Results assume the default floating-point modes (round to nearest, no
// flush-to-zero or denormals-are-zero). No state: any thread may call them
// at any time.
//
// Method. x = 2^e m with m in [sqrt(1/2), sqrt(2)) (subnormals scaled by
// 2^54 first); j = m 128 rounded, c = 128/j rounded to 10 bits (c = 1 for
// j = 128), so that u = m c - 1 is exact as the sum of two products: m is
// split into its upper 43 bits and the rest, each times c exact, and
// |u| < 2^-7.3. Then ln x = e ln 2 + ln(1/c) + ln(1 + u): ln 2 as a 42-bit
// part (exact times e) plus a correction, ln(1/c) from a table as value
// plus correction, ln(1 + u) = u + u^2 (-1/2 + u/3 - ... - u^6/8) (the
// first omitted term is below 2^-69). The three leading parts are added
// with their rounding errors kept and everything else added to those
// errors, so only the final addition rounds by up to half an ULP: within
// 0.52 ULP. Near 1 (j = 128, c = 1) the table term vanishes and u = m - 1.
#pragma once
#include "basic.h"
#include "double_double.h"
#include "lanes.h"
#include "single.h"

namespace mathfn {
namespace lnfn {

// c_j = 128/j to 10 bits, and ln(1/c_j) as value plus correction, for
// j = 90 .. 182 (m 128 rounded lies in 91 .. 181).
struct Entry {
    double c, hi, lo;
};
constexpr int kFirst = 90;
constexpr Entry kTable[93] = {
    {0x1.6c00000000000p+0, -0x1.686c81e9b14afp-2, 0x1.ddea0f7f58e3dp-57},
    {0x1.6800000000000p+0, -0x1.5d1bdbf5809cap-2, -0x1.4236383dc7fe1p-56},
    {0x1.6400000000000p+0, -0x1.51aad872df82dp-2, -0x1.3927ac19f55e3p-59},
    {0x1.6080000000000p+0, -0x1.478cd5959b3d9p-2, -0x1.37e191a12fb48p-58},
    {0x1.5c80000000000p+0, -0x1.3bdd24eb14b6ap-2, -0x1.2da3c6449a7d0p-58},
    {0x1.5900000000000p+0, -0x1.31871c9544185p-2, 0x1.51acc4c09b379p-60},
    {0x1.5580000000000p+0, -0x1.27161913f853dp-2, -0x1.e3ec2ac9676b8p-57},
    {0x1.5200000000000p+0, -0x1.1c898c16999fbp-2, 0x1.0e5c62aff1c44p-60},
    {0x1.4e80000000000p+0, -0x1.11e0e2dad9cb7p-2, -0x1.dc0cc6917022bp-63},
    {0x1.4b00000000000p+0, -0x1.071b85fcd590dp-2, -0x1.d1707f97bde80p-58},
    {0x1.4780000000000p+0, -0x1.f871b28955045p-3, -0x1.4ad6c8812d31ap-63},
    {0x1.4480000000000p+0, -0x1.e598ed5a87e2fp-3, 0x1.a5e78f4c50659p-58},
    {0x1.4180000000000p+0, -0x1.d293581b6b3e7p-3, 0x1.c04a2aa97ac8ep-58},
    {0x1.3e00000000000p+0, -0x1.bc286742d8cd6p-3, -0x1.4fce744870f55p-58},
    {0x1.3b00000000000p+0, -0x1.a8becfc882f19p-3, 0x1.e8c37918c39ebp-58},
    {0x1.3800000000000p+0, -0x1.9525a9cf456b4p-3, -0x1.d904c1d4e2e26p-57},
    {0x1.3500000000000p+0, -0x1.815c0a14357ebp-3, 0x1.4be48073a0564p-58},
    {0x1.3200000000000p+0, -0x1.6d60fe719d21dp-3, 0x1.caae268ecd179p-57},
    {0x1.2f80000000000p+0, -0x1.5c940075972b9p-3, -0x1.adccb73379cc5p-58},
    {0x1.2c80000000000p+0, -0x1.483bccce6e3ddp-3, -0x1.29391fb1b4b22p-57},
    {0x1.2a00000000000p+0, -0x1.371fc201e8f74p-3, -0x1.de6cb62af18a0p-58},
    {0x1.2700000000000p+0, -0x1.2266f190a5acbp-3, -0x1.f547bf1809e88p-57},
    {0x1.2480000000000p+0, -0x1.10f8e422539b1p-3, -0x1.8f798d39f1b7dp-58},
    {0x1.2200000000000p+0, -0x1.fec9131dbeabbp-4, 0x1.5746b9981b36cp-58},
    {0x1.1f80000000000p+0, -0x1.db5270187d927p-4, -0x1.e15ab8607d2acp-58},
    {0x1.1d00000000000p+0, -0x1.b78c82bb0eda1p-4, -0x1.0878cf0327e21p-61},
    {0x1.1a80000000000p+0, -0x1.9375e55595edep-4, 0x1.e463f9e4dd920p-59},
    {0x1.1800000000000p+0, -0x1.6f0d28ae56b4cp-4, 0x1.906d99184b992p-58},
    {0x1.1580000000000p+0, -0x1.4a50d3aa1b040p-4, -0x1.ecf768c1dd57bp-61},
    {0x1.1380000000000p+0, -0x1.2cb0283f5de1fp-4, 0x1.d359a8fde8adep-60},
    {0x1.1100000000000p+0, -0x1.075983598e471p-4, -0x1.80da5333c45b8p-59},
    {0x1.0f00000000000p+0, -0x1.d276b8adb0b52p-5, -0x1.1e3c53257fd47p-61},
    {0x1.0c80000000000p+0, -0x1.868a83083f6cfp-5, 0x1.d09a5634943dbp-61},
    {0x1.0a80000000000p+0, -0x1.494acc34d911cp-5, -0x1.e295bf491ccc5p-59},
    {0x1.0880000000000p+0, -0x1.0b94f7c196176p-5, -0x1.da43f761f4dc4p-59},
    {0x1.0600000000000p+0, -0x1.7b91b07d5b11bp-6, 0x1.5b602ace3a510p-60},
    {0x1.0400000000000p+0, -0x1.fc0a8b0fc03e4p-7, 0x1.83092c59642a1p-62},
    {0x1.0200000000000p+0, -0x1.fe02a6b106789p-8, 0x1.e44b7e3711ebfp-67},
    {0x1.0000000000000p+0, 0x0.0p+0, 0x0.0p+0},
    {0x1.fc00000000000p-1, 0x1.010157588de71p-7, 0x1.46662d417ced0p-62},
    {0x1.f800000000000p-1, 0x1.0205658935847p-6, 0x1.27c8e8416e71fp-60},
    {0x1.f480000000000p-1, 0x1.74321d3d006d3p-6, -0x1.96f016b887bf4p-60},
    {0x1.f080000000000p-1, 0x1.f7a9b16782856p-6, -0x1.36c720c147756p-60},
    {0x1.ed00000000000p-1, 0x1.35c8bfaa1306bp-5, -0x1.50830a65543a4p-63},
    {0x1.e900000000000p-1, 0x1.788595a3577bap-5, 0x1.e5ef898b67923p-59},
    {0x1.e580000000000p-1, 0x1.b35dd9b58baadp-5, -0x1.6526154e379dfp-61},
    {0x1.e200000000000p-1, 0x1.eea31c006b87cp-5, -0x1.3e4fc93b7b66cp-59},
    {0x1.de80000000000p-1, 0x1.152b799bb3cc9p-4, -0x1.948381841487fp-58},
    {0x1.db00000000000p-1, 0x1.333d7f8183f4bp-4, 0x1.a92afc8ef70b1p-58},
    {0x1.d780000000000p-1, 0x1.518874226130ap-4, 0x1.d96258b3d8a8fp-60},
    {0x1.d400000000000p-1, 0x1.700d30aeac0e1p-4, -0x1.72566212cdd05p-61},
    {0x1.d100000000000p-1, 0x1.8a6477a91dc29p-4, -0x1.fa83214904842p-59},
    {0x1.cd80000000000p-1, 0x1.a956d3ecade63p-4, 0x1.e5300b12bd55ep-58},
    {0x1.ca80000000000p-1, 0x1.c40d6425a5cb1p-4, 0x1.21d1930dc8acdp-60},
    {0x1.c700000000000p-1, 0x1.e3707ee30487bp-4, 0x1.09ccecd579d99p-58},
    {0x1.c400000000000p-1, 0x1.fe89139dbd566p-4, -0x1.ac9f4215f9393p-58},
    {0x1.c100000000000p-1, 0x1.0ce7ecdccc28dp-3, -0x1.692a0055dc959p-57},
    {0x1.be00000000000p-1, 0x1.1aa2b7e23f72ap-3, -0x1.c6ef1d9b2ef7ep-59},
    {0x1.bb00000000000p-1, 0x1.28753bc11aba5p-3, -0x1.6394d9fa33311p-57},
    {0x1.b800000000000p-1, 0x1.365fcb0159016p-3, 0x1.7d411a5b944adp-58},
    {0x1.b500000000000p-1, 0x1.4462b9dc9b3dcp-3, -0x1.629c46c186385p-58},
    {0x1.b200000000000p-1, 0x1.527e5e4a1b58dp-3, -0x1.71a9682395bfdp-61},
    {0x1.af00000000000p-1, 0x1.60b3100b09476p-3, -0x1.5b2623e05016bp-58},
    {0x1.ac80000000000p-1, 0x1.6c9d07d203fc7p-3, 0x1.80a04c9a46c61p-59},
    {0x1.a980000000000p-1, 0x1.7b0091651528cp-3, 0x1.4069f303518c8p-57},
    {0x1.a700000000000p-1, 0x1.871213750e994p-3, 0x1.d685f35eea2a0p-57},
    {0x1.a400000000000p-1, 0x1.95a5adcf7017fp-3, 0x1.142c507fb7a3dp-58},
    {0x1.a180000000000p-1, 0x1.a1dfc40f1b7f1p-3, -0x1.e009e6f018fe8p-61},
    {0x1.9f00000000000p-1, 0x1.ae2ca6f672bd4p-3, 0x1.ab5ca9eaa088ap-57},
    {0x1.9c00000000000p-1, 0x1.bd087383bd8adp-3, 0x1.dd355f6a516d7p-60},
    {0x1.9980000000000p-1, 0x1.c97f8079d44ecp-3, 0x1.61a8c6e6c4ee7p-57},
    {0x1.9700000000000p-1, 0x1.d60a17f903515p-3, -0x1.c0df841a71b7ap-57},
    {0x1.9480000000000p-1, 0x1.e2a877a6b2c12p-3, -0x1.fa21e3df99430p-58},
    {0x1.9200000000000p-1, 0x1.ef5ade4dcffe6p-3, -0x1.08ab2ddc708a0p-58},
    {0x1.8f80000000000p-1, 0x1.fc218be620a5ep-3, -0x1.6e438c258187fp-58},
    {0x1.8d00000000000p-1, 0x1.047e60cde83b8p-2, -0x1.0779634061cbcp-56},
    {0x1.8b00000000000p-1, 0x1.09aa572e6c6d4p-2, 0x1.43c2e68684d53p-57},
    {0x1.8880000000000p-1, 0x1.102ac0a35cc1cp-2, 0x1.088080a5e68b4p-59},
    {0x1.8600000000000p-1, 0x1.16b5ccbacfb73p-2, 0x1.66fbd28b40935p-56},
    {0x1.8400000000000p-1, 0x1.1bf99635a6b95p-2, -0x1.12aeb84249223p-57},
    {0x1.8180000000000p-1, 0x1.22981fbef797bp-2, -0x1.0b04ac06cebe0p-59},
    {0x1.7f80000000000p-1, 0x1.27ebaf58d8c9dp-2, -0x1.8800b4bda6c97p-57},
    {0x1.7d00000000000p-1, 0x1.2e9e2bce12286p-2, 0x1.8251a3b83d97ap-62},
    {0x1.7b00000000000p-1, 0x1.3401e12aecba1p-2, -0x1.cd55b8a4746c0p-58},
    {0x1.7880000000000p-1, 0x1.3ac8ca38e5c5fp-2, -0x1.f7de015f253eep-56},
    {0x1.7680000000000p-1, 0x1.403d086cea79cp-2, -0x1.0a8bb78cf7cdap-56},
    {0x1.7480000000000p-1, 0x1.45b8c0a17df13p-2, 0x1.dbe305eaf5a20p-56},
    {0x1.7280000000000p-1, 0x1.4b3c077267e9ap-2, 0x1.2e5fbeb518508p-56},
    {0x1.7000000000000p-1, 0x1.522ae0738a3d8p-2, -0x1.8f7e9b38a6979p-57},
    {0x1.6e00000000000p-1, 0x1.57bf753c8d1fbp-2, -0x1.0908d15f88b63p-57},
    {0x1.6c00000000000p-1, 0x1.5d5bddf595f30p-2, -0x1.6541148cbb8a2p-56},
    {0x1.6a00000000000p-1, 0x1.630030b3aac49p-2, 0x1.dc18ce51fff99p-57},
    {0x1.6800000000000p-1, 0x1.68ac83e9c6a14p-2, 0x1.a64eadd740178p-58},
};

constexpr double kLn2Hi = 0x1.62e42fefa3800p-1;  // 42 bits: exact times any exponent
constexpr double kLn2Lo = 0x1.ef35793c76730p-45;
// The bit pattern of the largest double below sqrt(1/2) (rounded up, so
// that m never reaches sqrt(2)): subtracting it leaves e in the top bits.
constexpr Qsp64u kReduceBits = 0x3FE6A09E667F3BCDull;
constexpr Qsp64u kLow10 = 0x3FFull;

// ln(1 + u) - u as u^2 (-1/2 + u/3 - u^2/4 + ... - u^6/8).
template <class R>
constexpr R log1pTail(R u)
{
    R p = R(-1.0 / 8);
    p = p * u + R(1.0 / 7);
    p = p * u + R(-1.0 / 6);
    p = p * u + R(1.0 / 5);
    p = p * u + R(-1.0 / 4);
    p = p * u + R(1.0 / 3);
    p = p * u + R(-0.5);
    return (u * u) * p;
}

// m c - 1 exactly as hi + lo, from m's upper 43 bits (mh) and the rest.
template <class R>
constexpr Pair<R> reduced(R m, R mh, R c)
{
    return twoSum(mh * c - R(1.0), (m - mh) * c);
}

// ln x from e (as a double), the table entry and u: the leading parts
// e ln2hi, ln(1/c) and u added with their errors kept.
template <class R>
constexpr R assemble(R e, R tHi, R tLo, Pair<R> u)
{
    const Pair<R> a = fastTwoSum(e * R(kLn2Hi), tHi);
    const Pair<R> b = twoSum(a.hi, u.hi);
    const R rest = ((b.lo + a.lo) + (e * R(kLn2Lo) + tLo)) + (u.lo - u.lo * u.hi) + log1pTail(u.hi);
    return b.hi + rest;
}

// Positive normal x: e and m, m in [sqrt(1/2), sqrt(2)), from the bits.
struct Split {
    Qsp64u mBits;
    int e;
};
constexpr Split splitNormal(Qsp64u bits)
{
    const Qsp64u t = bits - kReduceBits;
    const int e = int(Qsp64s(t) >> 52);
    return {bits - (Qsp64u(Qsp64s(e)) << 52), e};
}

// ln x for positive normal x, with the extra exponent `shift` of a
// subnormal that was scaled up.
constexpr double positive(double x, int shift)
{
    const Split s = splitNormal(bitsOf(x));
    const double m = fromBits(s.mBits);
    const int j = int(bitsOf(m * 128.0 + kRoundShift) - kRoundShiftBits);
    const Entry& t = kTable[j - kFirst];
    const double mh = fromBits(s.mBits & ~kLow10);
    return assemble(double(s.e - shift), t.hi, t.lo, reduced(m, mh, t.c));
}

// Zero, negative, subnormal, infinite or NaN x.
constexpr double edge(double x)
{
    if (x != x) return x + x;
    if (x == 0) return -__builtin_inf();
    if (x < 0) return fromBits(0xFFF8000000000000ull);
    if (x == __builtin_inf()) return x;
    return positive(x * 0x1p54, 54);  // subnormal
}

constexpr Qsp64u kSmallestNormalBits = 0x0010000000000000ull;
constexpr Qsp64u kNormalSpan = 0x7FE0000000000000ull;  // normal positive: bits - smallest below this

}  // namespace lnfn

constexpr double qspsLnOne(double x)
{
    if (bitsOf(x) - lnfn::kSmallestNormalBits >= lnfn::kNormalSpan) return lnfn::edge(x);
    return lnfn::positive(x, 0);
}

constexpr double lnPositive(double x) { return qspsLnOne(x); }

// Two lanes at a time while both are positive normal numbers; any other
// pair goes through the one-element function.
inline void qspsLn_64f_A53(const double* pSrc, double* pDst, int len)
{
    using V = simd::Vec<double>;
    using B = simd::Vec<Qsp64u>;
    using I = simd::Vec<Qsp32s>;
    const V::Reg smallest = V::splat(0x1p-1022), largest = V::splat(kLargestDouble);
    const B::Reg reduceBits = B::splat(lnfn::kReduceBits), low10 = B::splat(lnfn::kLow10);
    const B::Reg exponentMask = B::splat(0xFFF0000000000000ull);
    int i = 0;
    for (; i + 2 <= len; i += 2) {
        const V::Reg x = V::loadu(pSrc + i);
        if (V::anyMask(V::bitAnd(V::cmpge(x, smallest), V::cmple(x, largest))) != 3) {
            const double x0 = pSrc[i], x1 = pSrc[i + 1];
            pDst[i] = qspsLnOne(x0);
            pDst[i + 1] = qspsLnOne(x1);
            continue;
        }
        // e in the top 12 bits of bits - kReduceBits (an arithmetic shift
        // of 52, done as: the exponent field moved out of m, and e
        // converted from the two 32-bit halves' upper one).
        const B::Reg bits = V::bits(x);
        const B::Reg eField = B::bitAnd(B::sub(bits, reduceBits), exponentMask);
        const B::Reg mBits = B::sub(bits, eField);
        const Lanes2 m = V::ofBits(mBits);
        const Lanes2 e = V::fromInt32(I::shuffle<1, 3, 1, 3>(I::srai<20>(eField)));
        const Lanes2 mh = V::ofBits(B::andNot(low10, mBits));
        const B::Reg jBits = V::bits((m * 128.0 + kRoundShift).v);
        const lnfn::Entry& t0 = lnfn::kTable[I::lane<0>(jBits) - lnfn::kFirst];
        const lnfn::Entry& t1 = lnfn::kTable[I::lane<2>(jBits) - lnfn::kFirst];
        const Lanes2 c = V::pair(t0.c, t1.c);
        const Pair<Lanes2> u = lnfn::reduced(m, mh, c);
        V::storeu(pDst + i, lnfn::assemble(e, Lanes2(V::pair(t0.hi, t1.hi)), Lanes2(V::pair(t0.lo, t1.lo)), u).v);
    }
    if (i < len) pDst[i] = qspsLnOne(pSrc[i]);
}

namespace lnfn {

// Floats whose double-precision logarithm lies exactly halfway between two
// floats, with the correctly rounded result (the first entry is a NaN
// pattern, never a tie).
constexpr single::Exception kSingleTies[] = {
    {0xFFFFFFFFu, 0},          {0x3C413D3Au, 0xC08E158Fu}, {0x41178FEBu, 0x400FE5E7u},
    {0x4C5D65A5u, 0x418F034Bu}, {0x65D890D3u, 0x4254D1F9u}, {0x6F31A8ECu, 0x42845A89u},
};

}  // namespace lnfn

constexpr float qspsLnOne_32f(float x) { return single::rounded(qspsLnOne(double(x)), x, lnfn::kSingleTies); }

namespace lnfn {

// Single precision, fast evaluation for positive normal floats. The split
// is done on the floats' bits, four lanes at a time: m in [sqrt(1/2),
// sqrt(2)) and e, j = m 128 rounded. m has 24 bits, so m c - 1 = r is
// exact in double; ln(1 + r) to r^5 (the omitted term is below 2^-46 of
// r), ln(1/c) and ln 2 rounded to double: the double result is within
// 2^-45 of ln x relative, less than 256 units of its last place.
struct alignas(16) SingleEntry {
    double c, l;
};
struct SingleTable {
    SingleEntry e[93];
};
constexpr SingleTable singleTable()
{
    SingleTable t{};
    for (int i = 0; i < 93; ++i) t.e[i] = {kTable[i].c, kTable[i].hi};
    return t;
}
alignas(16) constexpr SingleTable kSingle = singleTable();

constexpr Qsp32s kHalfSqrt2Bits = 0x3F3504F3;  // sqrt(1/2) rounded down to float
constexpr float kRoundShift32 = 12582912.0f;    // 1.5 2^23: rounds a float below 2^22 to an integer
constexpr double kLn2 = 0x1.62e42fefa39efp-1;

struct Single {
    static constexpr Qsp32s kSlack = 1024;
    static void evaluate(simd::Vec<float>::Reg x, simd::Vec<double>::Reg& y0, simd::Vec<double>::Reg& y1)
    {
        using F = simd::Vec<float>;
        using D = simd::Vec<double>;
        using I = simd::Vec<Qsp32s>;
        const I::Reg bits = F::bits(x);
        const I::Reg e = I::srai<23>(I::sub(bits, I::splat(kHalfSqrt2Bits)));
        const F::Reg m = F::ofBits(I::sub(bits, I::slli<23>(e)));
        const I::Reg j = I::sub(F::bits(F::add(F::mul(m, F::splat(128.0f)), F::splat(kRoundShift32))),
                                I::splat(Qsp32s(single::floatBits(kRoundShift32)) + kFirst));
        const D::Reg t0 = D::load(&kSingle.e[I::lane<0>(j)].c), t1 = D::load(&kSingle.e[I::lane<1>(j)].c);
        const D::Reg t2 = D::load(&kSingle.e[I::lane<2>(j)].c), t3 = D::load(&kSingle.e[I::lane<3>(j)].c);
        y0 = half(D::widenLow(m), D::fromInt32(e), D::zipLo(t0, t1), D::zipHi(t0, t1)).v;
        y1 = half(D::widenHigh(m), D::fromInt32(I::shuffle<2, 3, 2, 3>(e)), D::zipLo(t2, t3), D::zipHi(t2, t3)).v;
    }
    static Lanes2 half(Lanes2 m, Lanes2 e, Lanes2 c, Lanes2 l)
    {
        const Lanes2 r = m * c - 1.0;
        const Lanes2 p = r + (r * r) * (-0.5 + r * (1.0 / 3 + r * (-0.25 + r * 0.2)));
        return (e * kLn2 + l) + p;
    }
    static simd::Vec<float>::Reg outside(simd::Vec<float>::Reg x)
    {
        using F = simd::Vec<float>;
        using I = simd::Vec<Qsp32s>;
        const I::Reg bits = F::bits(x);
        return F::ofBits(I::bitOr(I::cmpgt(I::splat(0x00800000), bits), I::cmpgt(bits, I::splat(0x7F7FFFFF))));
    }
    static float one(float x) { return qspsLnOne_32f(x); }
};

}  // namespace lnfn

inline void qspsLn_32f_A24(const float* pSrc, float* pDst, Qsp64s len) { single::run<lnfn::Single>(pSrc, pDst, len); }

}  // namespace mathfn

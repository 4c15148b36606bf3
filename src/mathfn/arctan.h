// SPDX-License-Identifier: BSD-3-Clause
// Arctangents in double precision.
//
// Interface (stable; other families call these):
//
//   double qspsArctanOne(double x)   atan x, within 1 ULP for every double
//   void   qspsArctan_64f_A53(const double* pSrc, double* pDst, int len)
//          the vector form: pDst[i] = qspsArctanOne(pSrc[i]) bit for bit, two
//          lanes at a time; pDst may be pSrc; len <= 0 does nothing.
//   float  qspsArctanOne_32f(float x)  atan x correctly rounded to float
//   void   qspsArctan_32f_A24(const float* pSrc, float* pDst, Qsp64s len)
//          the vector form of the latter, four at a time, the same bits
//          (single.h)
//   double atan2(double y, double x)  the angle of (x, y), within 2.5 ULP
//   void   atan2(const double* y, const double* x, double* out, int n)
//
// qspsArctanOne is constexpr; none needs a library call. Special values:
// atan(+-0) = +-0, atan x = x for tiny x, atan(+-inf) = +-pi/2 rounded,
// atan(NaN) is that NaN made quiet. Results assume the default
// floating-point modes (round to nearest, no flush-to-zero). No state: any
// thread may call them at any time.
//
// Method of qspsArctanOne. t = |x|; a table of 130 points c holds 16 per
// binade from 2^-4 to 2^4 (the middles of sixteenths of the binade), 0
// below and 2^500 above, with atan c as value plus correction; t's point
// comes from its exponent and top four mantissa bits. Then
//     atan t = atan c + atan u,   u = (t - c) / (1 + t c),
// with t - c exact, so u carries the rounding of one product, one sum and
// one division (|u| <= 2^-5 of atan c between 2^-4 and 16; u = t below,
// u ~ -1/t above), and atan u = u - u^3/3 + ... - u^15/15 (the first
// omitted term is below 2^-64 of the result for |u| <= 1/16). atan c and u
// are added with the rounding error kept, the rest added to that error,
// so only the final addition rounds by up to half an ULP and u's errors
// add at most a tenth of an ULP: 0.6 ULP at most.
//
// atan2 (for the phase of complex values): the argument is reduced to
// [0, 1] by symmetry, then to |u| <= 1/16 around the nearest k/8 by the same
// identity, and atan u is its Taylor series to u^17 (remainder below
// 2^-76 |u|). atan(k/8), pi/2 and pi are held as a double plus a
// correction, so the result is within 2.5 ULP of the exact angle (2.03
// measured). Special values follow the usual atan2 conventions:
// atan2(+-0, +0) = +-0, atan2(+-0, -0) = +-pi, infinities give the
// multiples of pi/4, and a NaN argument gives NaN.
#pragma once
#include "double_double.h"
#include "lanes.h"
#include "single.h"

namespace mathfn {

double atan2(double y, double x);

// out[i] = atan2(y[i], x[i]) for n pairs, two at a time in vector lanes,
// each result bit-identical to the function above (a pair holding a NaN,
// an infinity or a zero angle's two zeros goes through it). out may be y or x.
void atan2(const double* y, const double* x, double* out, int n);

namespace atanfn {

// The points c and atan c as value plus correction: index 0 is c = 0, 1 to
// 128 the binades 2^-4 .. 2^4 in sixteenths, 129 is c = 2^500.
struct Entry {
    double c, hi, lo;
};
constexpr Entry kTable[130] = {
    {0x0.0p+0, 0x0.0p+0, 0x0.0p+0},
    {0x1.0800000000000p-4, 0x1.07a2a58a0c16fp-4, 0x1.286a0aa8fbfd2p-58},
    {0x1.1800000000000p-4, 0x1.1790a88aca931p-4, 0x1.c57fd08281008p-58},
    {0x1.2800000000000p-4, 0x1.277c80c02ec4dp-4, 0x1.869be03c4d7f0p-58},
    {0x1.3800000000000p-4, 0x1.37660f1a6b5d8p-4, 0x1.00c2bea115ef0p-58},
    {0x1.4800000000000p-4, 0x1.474d34a4bbb9dp-4, -0x1.0d3965910af34p-62},
    {0x1.5800000000000p-4, 0x1.5731d286c4ecbp-4, -0x1.e6e754b5c9fd0p-59},
    {0x1.6800000000000p-4, 0x1.6713ca05f38b3p-4, 0x1.8844be8e0089bp-61},
    {0x1.7800000000000p-4, 0x1.76f2fc86d613dp-4, -0x1.0517b6267cdb9p-59},
    {0x1.8800000000000p-4, 0x1.86cf4b8e73cbfp-4, -0x1.dcdd915cf736bp-58},
    {0x1.9800000000000p-4, 0x1.96a898c39fefbp-4, -0x1.1cfa6eef407cep-58},
    {0x1.a800000000000p-4, 0x1.a67ec5f04910ap-4, 0x1.9eda51bd12082p-58},
    {0x1.b800000000000p-4, 0x1.b651b502c480ap-4, -0x1.c46fc87331ba0p-58},
    {0x1.c800000000000p-4, 0x1.c621480f15a6ap-4, -0x1.cfccaa3f66870p-60},
    {0x1.d800000000000p-4, 0x1.d5ed6150311dcp-4, 0x1.eb3fd6855286cp-59},
    {0x1.e800000000000p-4, 0x1.e5b5e3293b7cfp-4, 0x1.d4aae80ff2fd5p-59},
    {0x1.f800000000000p-4, 0x1.f57ab026c3a90p-4, -0x1.c26c3afc8b17ap-59},
    {0x1.0800000000000p-3, 0x1.068d584212b3ep-3, -0x1.9e2d283019bfdp-57},
    {0x1.1800000000000p-3, 0x1.1646541060850p-3, 0x1.6bcee8ae7ea92p-57},
    {0x1.2800000000000p-3, 0x1.25f6e171a535cp-3, 0x1.7c6d7bde1a310p-57},
    {0x1.3800000000000p-3, 0x1.359e8edeb99a4p-3, -0x1.a5fd74e4604c6p-57},
    {0x1.4800000000000p-3, 0x1.453cec6092a9ep-3, 0x1.1f653b3a5a78bp-57},
    {0x1.5800000000000p-3, 0x1.54d18ba11570ap-3, 0x1.18282f2884073p-57},
    {0x1.6800000000000p-3, 0x1.645bfffb3aa74p-3, -0x1.f536b677c2cb4p-60},
    {0x1.7800000000000p-3, 0x1.73dbde8a7d202p-3, -0x1.5ad0f6d4a665dp-58},
    {0x1.8800000000000p-3, 0x1.8350be398ebc8p-3, -0x1.5a91332b9c90dp-58},
    {0x1.9800000000000p-3, 0x1.92ba37d050272p-3, -0x1.0d3ded0ff4764p-57},
    {0x1.a800000000000p-3, 0x1.a217e601081a6p-3, -0x1.0def8a60af374p-57},
    {0x1.b800000000000p-3, 0x1.b1696574d780cp-3, -0x1.85ab8fc15a673p-58},
    {0x1.c800000000000p-3, 0x1.c0ae54d768467p-3, -0x1.04cdbf55f26dcp-57},
    {0x1.d800000000000p-3, 0x1.cfe654e1d5395p-3, 0x1.47b9a3f71eafbp-57},
    {0x1.e800000000000p-3, 0x1.df110864c9d9ep-3, -0x1.5818b53bf4781p-60},
    {0x1.f800000000000p-3, 0x1.ee2e1451d980dp-3, -0x1.9a7708c46ba91p-58},
    {0x1.0800000000000p-2, 0x1.025fa510665b6p-2, -0x1.672df6832fa48p-56},
    {0x1.1800000000000p-2, 0x1.1151a362431cap-2, -0x1.4dc8dc9077b9fp-56},
    {0x1.2800000000000p-2, 0x1.2025567e47c96p-2, -0x1.1832328f4290ep-57},
    {0x1.3800000000000p-2, 0x1.2ed987a823cfep-2, 0x1.b91258ea012cap-57},
    {0x1.4800000000000p-2, 0x1.3d6d129271134p-2, 0x1.137ca41cc958ap-56},
    {0x1.5800000000000p-2, 0x1.4bdee586890e7p-2, -0x1.e4dc77c22a757p-57},
    {0x1.6800000000000p-2, 0x1.5a2e0175e0f4ep-2, 0x1.13b7a8f82e457p-56},
    {0x1.7800000000000p-2, 0x1.685979f5fa6fep-2, -0x1.257814d1ada9cp-59},
    {0x1.8800000000000p-2, 0x1.7660752817502p-2, -0x1.dd11791cc7600p-59},
    {0x1.9800000000000p-2, 0x1.84422b8df95d7p-2, 0x1.d76a0299b41b6p-56},
    {0x1.a800000000000p-2, 0x1.91fde7cd0c662p-2, 0x1.1074188054b53p-56},
    {0x1.b800000000000p-2, 0x1.9f93066168002p-2, -0x1.c827047c9439ap-56},
    {0x1.c800000000000p-2, 0x1.ad00f5422058bp-2, 0x1.fc4c33891d2e8p-56},
    {0x1.d800000000000p-2, 0x1.ba473378624a5p-2, 0x1.519a1b46e4affp-56},
    {0x1.e800000000000p-2, 0x1.c76550aad71f9p-2, -0x1.74b8bff7043e4p-56},
    {0x1.f800000000000p-2, 0x1.d45aec9ec862bp-2, 0x1.89421163ef92dp-57},
    {0x1.0800000000000p-1, 0x1.e77eb7f175a34p-2, 0x1.0e53dc1bf3435p-56},
    {0x1.1800000000000p-1, 0x1.0039c73c1a40cp-1, -0x1.b32c949c9d593p-55},
    {0x1.2800000000000p-1, 0x1.0c6145b5b43dap-1, 0x1.974fa13b5404fp-58},
    {0x1.3800000000000p-1, 0x1.1835a88be7c13p-1, 0x1.c621cec00c301p-55},
    {0x1.4800000000000p-1, 0x1.23b71e2cc9e6ap-1, 0x1.c421c9f38224ep-57},
    {0x1.5800000000000p-1, 0x1.2ee628406cbcap-1, 0x1.c5d5e9ff0cf8dp-55},
    {0x1.6800000000000p-1, 0x1.39c391cd4171ap-1, -0x1.2304331d8bf46p-55},
    {0x1.7800000000000p-1, 0x1.445065b795b56p-1, -0x1.f76d0163f79c8p-56},
    {0x1.8800000000000p-1, 0x1.4e8de5bb6ec04p-1, 0x1.4a33dbeb3796cp-55},
    {0x1.9800000000000p-1, 0x1.587d81f732fbbp-1, -0x1.5e5c9d8c5a950p-56},
    {0x1.a800000000000p-1, 0x1.6220d115d7b8ep-1, -0x1.2b785350ee8c1p-57},
    {0x1.b800000000000p-1, 0x1.6b798920b3d99p-1, -0x1.a80386188c50ep-55},
    {0x1.c800000000000p-1, 0x1.748978fba8e0fp-1, 0x1.7b2a6165884a1p-59},
    {0x1.d800000000000p-1, 0x1.7d528289fa093p-1, 0x1.560821e2f3aa9p-55},
    {0x1.e800000000000p-1, 0x1.85d69576cc2c5p-1, 0x1.6b66e7fc8b8c3p-57},
    {0x1.f800000000000p-1, 0x1.8e17aa99cc05ep-1, -0x1.ec182ab042f61p-56},
    {0x1.0800000000000p+0, 0x1.9a000a935bd8ep-1, 0x1.59411df0dccefp-56},
    {0x1.1800000000000p+0, 0x1.a908afa5b1d4ap-1, -0x1.5d7be5d5f808bp-56},
    {0x1.2800000000000p+0, 0x1.b7291b4e25bdap-1, -0x1.c49cc26e63660p-56},
    {0x1.3800000000000p+0, 0x1.c470abf2d3d01p-1, 0x1.6a61dbf199479p-56},
    {0x1.4800000000000p+0, 0x1.d0ee2253886a6p-1, 0x1.2c9f73793ddedp-55},
    {0x1.5800000000000p+0, 0x1.dcaf82dc1a6f4p-1, -0x1.f99cb3ddd4790p-55},
    {0x1.6800000000000p+0, 0x1.e7c2042350f87p-1, -0x1.0e14d8d5a7dd8p-57},
    {0x1.7800000000000p+0, 0x1.f232073aeb172p-1, -0x1.5f5b3a2cdfc2cp-55},
    {0x1.8800000000000p+0, 0x1.fc0b171ec926cp-1, -0x1.3337369af334fp-58},
    {0x1.9800000000000p+0, 0x1.02abf692f6d0cp+0, -0x1.7e03a29351e05p-54},
    {0x1.a800000000000p+0, 0x1.07113c6a93a21p+0, 0x1.c2bc4d3a3e69fp-56},
    {0x1.b800000000000p+0, 0x1.0b39f4eca23aep+0, 0x1.25934545c016cp-54},
    {0x1.c800000000000p+0, 0x1.0f2a5d9fff026p+0, 0x1.e6ac2e9161719p-55},
    {0x1.d800000000000p+0, 0x1.12e65fa32aaedp+0, -0x1.f25b08b14d8d6p-54},
    {0x1.e800000000000p+0, 0x1.167195a203265p+0, 0x1.1a5aca105c6aep-54},
    {0x1.f800000000000p+0, 0x1.19cf51b0603ddp+0, -0x1.4b79cf12e503dp-55},
    {0x1.0800000000000p+1, 0x1.1e8d473c5d5cap+0, 0x1.40b5b2505c143p-54},
    {0x1.1800000000000p+1, 0x1.245b4faf23111p+0, -0x1.bcadba0fe318bp-54},
    {0x1.2800000000000p+1, 0x1.29a33f97bdbeap+0, 0x1.20768f82d028dp-54},
    {0x1.3800000000000p+1, 0x1.2e75728833a54p+0, 0x1.16e3ef7326bdap-56},
    {0x1.4800000000000p+1, 0x1.32dfe01c11c21p+0, 0x1.cb1af39d75eb5p-54},
    {0x1.5800000000000p+1, 0x1.36ee7f2a24644p+0, -0x1.2c820975621fbp-54},
    {0x1.6800000000000p+1, 0x1.3aab98641f26bp+0, -0x1.dc349cc175bc7p-55},
    {0x1.7800000000000p+1, 0x1.3e200aea00d99p+0, -0x1.4794dda3dc8fbp-54},
    {0x1.8800000000000p+1, 0x1.41538521b2f98p+0, 0x1.b0a24edb2ee98p-57},
    {0x1.9800000000000p+1, 0x1.444cb3d7d780cp+0, 0x1.84edbdae1963fp-54},
    {0x1.a800000000000p+1, 0x1.4711695fedde2p+0, -0x1.369e22089162cp-55},
    {0x1.b800000000000p+1, 0x1.49a6be20c3a52p+0, 0x1.61f86cbdae1abp-54},
    {0x1.c800000000000p+1, 0x1.4c112bb9f7c63p+0, 0x1.f746650006c33p-57},
    {0x1.d800000000000p+1, 0x1.4e54a3b8e6cf8p+0, -0x1.546673bfb75f0p-55},
    {0x1.e800000000000p+1, 0x1.5074a2a612ac3p+0, -0x1.70b6f0046b390p-55},
    {0x1.f800000000000p+1, 0x1.5274400eea72bp+0, -0x1.c8ca264844338p-54},
    {0x1.0800000000000p+2, 0x1.553ce48a04765p+0, -0x1.fb2a15b01af76p-55},
    {0x1.1800000000000p+2, 0x1.58990974dfc9bp+0, -0x1.38724877fdf56p-54},
    {0x1.2800000000000p+2, 0x1.5b9c9494c0d73p+0, -0x1.dbb3cb11f72aep-56},
    {0x1.3800000000000p+2, 0x1.5e545b9b1a4c8p+0, -0x1.b1f8afb3dd31dp-54},
    {0x1.4800000000000p+2, 0x1.60cadf03e444dp+0, -0x1.1cafc7209e76bp-54},
    {0x1.5800000000000p+2, 0x1.6308ca2a1ee29p+0, 0x1.69afbaa88c2dcp-55},
    {0x1.6800000000000p+2, 0x1.6515542adf35bp+0, 0x1.1abca6117c655p-54},
    {0x1.7800000000000p+2, 0x1.66f689fe6ecd7p+0, 0x1.296b3ad3ab6dap-56},
    {0x1.8800000000000p+2, 0x1.68b187b9d2c61p+0, -0x1.e65414ed76ae6p-54},
    {0x1.9800000000000p+2, 0x1.6a4aa53aac449p+0, -0x1.4371a18cdc2a7p-55},
    {0x1.a800000000000p+2, 0x1.6bc59952bf3b1p+0, 0x1.977d7c13d209cp-56},
    {0x1.b800000000000p+2, 0x1.6d2595b4f5943p+0, 0x1.6d3e45139467ep-54},
    {0x1.c800000000000p+2, 0x1.6e6d5d4f4d24bp+0, 0x1.bc3dadd1ee93fp-58},
    {0x1.d800000000000p+2, 0x1.6f9f5650fd3efp+0, 0x1.9b070ed3f43e4p-54},
    {0x1.e800000000000p+2, 0x1.70bd98cd96433p+0, 0x1.a965f981024a8p-58},
    {0x1.f800000000000p+2, 0x1.71c9fab4414b2p+0, 0x1.ed22abd9c91bcp-54},
    {0x1.0800000000000p+3, 0x1.733e83ec95ff3p+0, 0x1.daa1cb741b5afp-54},
    {0x1.1800000000000p+3, 0x1.74fe3c2f08578p+0, -0x1.85702971de777p-55},
    {0x1.2800000000000p+3, 0x1.768e250aec6fcp+0, 0x1.7d3c945f7481bp-55},
    {0x1.3800000000000p+3, 0x1.77f57d148f11cp+0, -0x1.2113a4a1ff42dp-56},
    {0x1.4800000000000p+3, 0x1.793a1f5a56d14p+0, -0x1.436a317c1ec50p-54},
    {0x1.5800000000000p+3, 0x1.7a60d4728e3dap+0, -0x1.3ccc36faf1683p-54},
    {0x1.6800000000000p+3, 0x1.7b6d8e630ad5ep+0, 0x1.8a1b0e4f4fe5bp-55},
    {0x1.7800000000000p+3, 0x1.7c63958a05d02p+0, -0x1.47cce616ff378p-54},
    {0x1.8800000000000p+3, 0x1.7d45aab9c6633p+0, -0x1.8eca10bf2b832p-54},
    {0x1.9800000000000p+3, 0x1.7e16216f80625p+0, 0x1.df2f346b6593dp-56},
    {0x1.a800000000000p+3, 0x1.7ed6f431b596fp+0, -0x1.cc4ff0c22192ep-57},
    {0x1.b800000000000p+3, 0x1.7f89d48cc7f43p+0, 0x1.eb24ac99c7f13p-56},
    {0x1.c800000000000p+3, 0x1.803037bd17135p+0, -0x1.d61a03be8ededp-54},
    {0x1.d800000000000p+3, 0x1.80cb60cd9f7edp+0, -0x1.e3611150d62acp-54},
    {0x1.e800000000000p+3, 0x1.815c68beac681p+0, 0x1.733b941c0a1c0p-54},
    {0x1.f800000000000p+3, 0x1.81e445233973dp+0, -0x1.5943116be80adp-55},
    {0x1.0000000000000p+500, 0x1.921fb54442d18p+0, 0x1.1a62633145c07p-54},
};

constexpr Qsp32s kFirstHigh = 0x3FB00000;  // upper half of the bits of 2^-4
constexpr Qsp32s kLastIndex = 129;

// The table index of t >= 0 from the upper half of its bits: binade and
// top four mantissa bits, clamped to the two end points.
constexpr int indexOf(Qsp32s high)
{
    const int i = ((high - kFirstHigh) >> 16) + 1;
    return i < 0 ? 0 : i > kLastIndex ? kLastIndex : i;
}

// atan t from the table entry (c, atan c) and t >= 0.
template <class R>
constexpr R fromPoint(R t, R c, R aHi, R aLo)
{
    const R u = (t - c) / (R(1.0) + t * c);
    const R u2 = u * u;
    R p = R(-1.0 / 15);
    p = p * u2 + R(1.0 / 13);
    p = p * u2 + R(-1.0 / 11);
    p = p * u2 + R(1.0 / 9);
    p = p * u2 + R(-1.0 / 7);
    p = p * u2 + R(1.0 / 5);
    p = p * u2 + R(-1.0 / 3);
    const Pair<R> s = fastTwoSum(aHi, u);
    return s.hi + ((s.lo + aLo) + (u * u2) * p);
}

}  // namespace atanfn

constexpr double qspsArctanOne(double x)
{
    const Qsp64u bits = bitsOf(x);
    const double t = fromBits(bits & ~kSignMask);
    if (!(t <= kLargestDouble)) return t == t ? fromBits((bits & kSignMask) | bitsOf(atanfn::kTable[atanfn::kLastIndex].hi)) : x + x;
    const atanfn::Entry& e = atanfn::kTable[atanfn::indexOf(Qsp32s(bits >> 32 & 0x7FFFFFFF))];
    return fromBits(bitsOf(atanfn::fromPoint(t, e.c, e.hi, e.lo)) | (bits & kSignMask));
}

// Two lanes at a time while both are finite; a pair holding an infinity or
// a NaN goes through the one-element function.
inline void qspsArctan_64f_A53(const double* pSrc, double* pDst, int len)
{
    using V = simd::Vec<double>;
    using I = simd::Vec<Qsp32s>;
    const V::Reg largest = V::splat(kLargestDouble);
    const I::Reg firstHigh = I::splat(atanfn::kFirstHigh), one = I::splat(1), last = I::splat(atanfn::kLastIndex);
    int i = 0;
    for (; i + 2 <= len; i += 2) {
        const V::Reg x = V::loadu(pSrc + i);
        const V::Reg t = V::andNot(V::signBit(), x);
        if (V::anyMask(V::cmple(t, largest)) != 3) {
            const double x0 = pSrc[i], x1 = pSrc[i + 1];
            pDst[i] = qspsArctanOne(x0);
            pDst[i + 1] = qspsArctanOne(x1);
            continue;
        }
        const I::Reg index = I::min(I::max(I::add(I::srai<16>(I::sub(V::bits(t), firstHigh)), one), I::zero()), last);
        const atanfn::Entry& e0 = atanfn::kTable[I::lane<1>(index)];
        const atanfn::Entry& e1 = atanfn::kTable[I::lane<3>(index)];
        const Lanes2 r = atanfn::fromPoint(Lanes2(t), Lanes2(V::pair(e0.c, e1.c)), Lanes2(V::pair(e0.hi, e1.hi)),
                                           Lanes2(V::pair(e0.lo, e1.lo)));
        V::storeu(pDst + i, V::bitOr(r.v, V::bitAnd(x, V::signBit())));
    }
    if (i < len) pDst[i] = qspsArctanOne(pSrc[i]);
}

namespace atanfn {

// Floats whose double-precision arctangent lies exactly halfway between
// two floats, with the correctly rounded result (the first entry is a NaN
// pattern, never a tie).
constexpr single::Exception kSingleTies[] = {
    {0xFFFFFFFFu, 0},
    {0x3D8D6B23u, 0x3D8D31C3u},
    {0xBD8D6B23u, 0xBD8D31C3u},
};

}  // namespace atanfn

constexpr float qspsArctanOne_32f(float x) { return single::rounded(qspsArctanOne(double(x)), x, atanfn::kSingleTies); }

namespace atanfn {

// Single precision, fast evaluation for finite floats: the same points c
// and identity as the double kernel, atan c rounded to double, atan u to
// u^11 (the omitted term is below 2^-48 of u): the double result is within
// 2^-47 of atan x relative, so less than 64 units of its last place.
struct alignas(16) SingleEntry {
    double c, a;
};
struct SingleTable {
    SingleEntry e[130];
};
constexpr SingleTable singleTable()
{
    SingleTable t{};
    for (int i = 0; i < 130; ++i) t.e[i] = {kTable[i].c, kTable[i].hi};
    return t;
}
alignas(16) constexpr SingleTable kSingle = singleTable();
constexpr Qsp32s kFirstBits32 = 0x3D800000;  // the bits of 2^-4 as a float

struct Single {
    static constexpr Qsp32s kSlack = 1024;
    using F = simd::Vec<float>;
    using D = simd::Vec<double>;
    using I = simd::Vec<Qsp32s>;

    static void evaluate(F::Reg x, D::Reg& y0, D::Reg& y1)
    {
        const I::Reg magnitude = I::bitAnd(F::bits(x), I::splat(0x7FFFFFFF));
        const I::Reg index = I::min(
            I::max(I::add(I::srai<19>(I::sub(magnitude, I::splat(kFirstBits32))), I::splat(1)), I::zero()),
            I::splat(kLastIndex));
        const D::Reg e0 = D::load(&kSingle.e[I::lane<0>(index)].c), e1 = D::load(&kSingle.e[I::lane<1>(index)].c);
        const D::Reg e2 = D::load(&kSingle.e[I::lane<2>(index)].c), e3 = D::load(&kSingle.e[I::lane<3>(index)].c);
        const F::Reg t = F::ofBits(magnitude), sign = F::bitAnd(x, F::signBit());
        y0 = D::bitOr(half(D::widenLow(t), D::zipLo(e0, e1), D::zipHi(e0, e1)).v, D::widenLow(sign));
        y1 = D::bitOr(half(D::widenHigh(t), D::zipLo(e2, e3), D::zipHi(e2, e3)).v, D::widenHigh(sign));
    }
    static Lanes2 half(Lanes2 t, Lanes2 c, Lanes2 a)
    {
        const Lanes2 u = (t - c) / (1.0 + t * c);
        const Lanes2 u2 = u * u;
        const Lanes2 p = -1.0 / 3 + u2 * (1.0 / 5 + u2 * (-1.0 / 7 + u2 * (1.0 / 9 + u2 * (-1.0 / 11))));
        return (a + u) + (u * u2) * p;
    }
    static F::Reg outside(F::Reg x)
    {
        return F::ofBits(I::cmpgt(I::bitAnd(F::bits(x), I::splat(0x7FFFFFFF)), I::splat(0x7F7FFFFF)));
    }
    static float one(float x) { return qspsArctanOne_32f(x); }
};

}  // namespace atanfn

inline void qspsArctan_32f_A24(const float* pSrc, float* pDst, Qsp64s len)
{
    single::run<atanfn::Single>(pSrc, pDst, len);
}

}  // namespace mathfn

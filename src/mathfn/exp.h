// SPDX-License-Identifier: BSD-3-Clause
// The exponential of a double, within 1 ULP for every double.
//
// Interface (stable: windows, generators and filter design call these):
//
//   double qspsExpOne(double x)     e^x
//   void   qspsExp_64f_A53(const double* pSrc, double* pDst, int len)
//          the vector form: pDst[i] = qspsExpOne(pSrc[i]) bit for bit, two
//          lanes at a time; pDst may be pSrc; len <= 0 does nothing.
//   float  qspsExpOne_32f(float x)  e^x correctly rounded to float
//   void   qspsExp_32f_A24(const float* pSrc, float* pDst, Qsp64s len)
//          the vector form, four at a time, the same bits (single.h)
//
// The one-element function is constexpr for arguments whose result is
// finite and not zero; none needs a library call. Special values: e^NaN
// is that NaN made quiet, e^+inf = +inf, e^-inf = +0; e^x overflows to
// +inf above 709.782712893384 and underflows through the subnormals to +0
// below -745.1332191019412, rounded once there. Results assume the default
// floating-point modes (round to nearest, no flush-to-zero). No state: any
// thread may call them at any time.
//
// Method. e^x = 2^(k/128) e^r with k = x 128/ln 2 rounded to an integer
// and r = x - k ln2/128, |r| <= ln2/256 (and a rounding): ln2/128 is held
// as a 35-bit part, whose product with k (|k| < 2^18) and difference from
// x are exact, and a correction, so r is within 2^-60 of its value
// relative to the result. 2^(j/128), j = k mod 128, comes from a table as
// value plus correction, e^r - 1 = p from its Taylor series to r^5 (the
// first omitted term is below 2^-60), and 2^(j/128) e^r =
// t.hi + (t.hi p + t.lo): one rounding of the final sum and errors below
// 2^-58 before it, within 0.52 ULP (0.506 measured against MPFR on 10^7
// arguments). The power 2^(k >> 7) is added to the exponent field; near
// overflow and in the subnormal range it is applied by two
// multiplications instead, the second one rounding: a subnormal result is
// rounded twice and is within 0.76 ULP (0.750 measured).
#pragma once
#include "arith/rounding.h"
#include "basic.h"
#include "double_double.h"
#include "lanes.h"
#include "single.h"

namespace mathfn {
namespace expo {

constexpr double kInvLn2N = 0x1.71547652b82fep+7;  // 128 / ln 2
constexpr double kLn2NHi = 0x1.62e42fef80000p-8;   // ln2/128 to 35 bits
constexpr double kLn2NLo = 0x1.1cf79abc9e3b4p-43;  // ln2/128 - kLn2NHi
// Below this magnitude the result and 2^(k >> 7) are normal doubles.
constexpr double kFastLimit = 704.0;

// 2^(j/128), j = 0..127, rounded to nearest, and the rounding error.
constexpr Pair<double> kExp2Table[128] = {
    {0x1.0000000000000p+0, 0x0.0p+0}, {0x1.0163da9fb3335p+0, 0x1.b61299ab8cdb7p-54},
    {0x1.02c9a3e778061p+0, -0x1.19083535b085dp-56}, {0x1.04315e86e7f85p+0, -0x1.0a31c1977c96ep-54},
    {0x1.059b0d3158574p+0, 0x1.d73e2a475b465p-55}, {0x1.0706b29ddf6dep+0, -0x1.c91dfe2b13c27p-55},
    {0x1.0874518759bc8p+0, 0x1.186be4bb284ffp-57}, {0x1.09e3ecac6f383p+0, 0x1.1487818316136p-54},
    {0x1.0b5586cf9890fp+0, 0x1.8a62e4adc610bp-54}, {0x1.0cc922b7247f7p+0, 0x1.01edc16e24f71p-54},
    {0x1.0e3ec32d3d1a2p+0, 0x1.03a1727c57b53p-59}, {0x1.0fb66affed31bp+0, -0x1.b9bedc44ebd7bp-57},
    {0x1.11301d0125b51p+0, -0x1.6c51039449b3ap-54}, {0x1.12abdc06c31ccp+0, -0x1.1b514b36ca5c7p-58},
    {0x1.1429aaea92de0p+0, -0x1.32fbf9af1369ep-54}, {0x1.15a98c8a58e51p+0, 0x1.2406ab9eeab0ap-55},
    {0x1.172b83c7d517bp+0, -0x1.19041b9d78a76p-55}, {0x1.18af9388c8deap+0, -0x1.11023d1970f6cp-54},
    {0x1.1a35beb6fcb75p+0, 0x1.e5b4c7b4968e4p-55}, {0x1.1bbe084045cd4p+0, -0x1.95386352ef607p-54},
    {0x1.1d4873168b9aap+0, 0x1.e016e00a2643cp-54}, {0x1.1ed5022fcd91dp+0, -0x1.1df98027bb78cp-54},
    {0x1.2063b88628cd6p+0, 0x1.dc775814a8495p-55}, {0x1.21f49917ddc96p+0, 0x1.2a97e9494a5eep-55},
    {0x1.2387a6e756238p+0, 0x1.9b07eb6c70573p-54}, {0x1.251ce4fb2a63fp+0, 0x1.ac155bef4f4a4p-55},
    {0x1.26b4565e27cddp+0, 0x1.2bd339940e9d9p-55}, {0x1.284dfe1f56381p+0, -0x1.a4c3a8c3f0d7ep-54},
    {0x1.29e9df51fdee1p+0, 0x1.612e8afad1255p-55}, {0x1.2b87fd0dad990p+0, -0x1.10adcd6381aa4p-59},
    {0x1.2d285a6e4030bp+0, 0x1.0024754db41d5p-54}, {0x1.2ecafa93e2f56p+0, 0x1.1ca0f45d52383p-56},
    {0x1.306fe0a31b715p+0, 0x1.6f46ad23182e4p-55}, {0x1.32170fc4cd831p+0, 0x1.a9ce78e18047cp-55},
    {0x1.33c08b26416ffp+0, 0x1.32721843659a6p-54}, {0x1.356c55f929ff1p+0, -0x1.b5cee5c4e4628p-55},
    {0x1.371a7373aa9cbp+0, -0x1.63aeabf42eae2p-54}, {0x1.38cae6d05d866p+0, -0x1.e958d3c9904bdp-54},
    {0x1.3a7db34e59ff7p+0, -0x1.5e436d661f5e3p-56}, {0x1.3c32dc313a8e5p+0, -0x1.efff8375d29c3p-54},
    {0x1.3dea64c123422p+0, 0x1.ada0911f09ebcp-55}, {0x1.3fa4504ac801cp+0, -0x1.7d023f956f9f3p-54},
    {0x1.4160a21f72e2ap+0, -0x1.ef3691c309278p-58}, {0x1.431f5d950a897p+0, -0x1.1c7dde35f7999p-55},
    {0x1.44e086061892dp+0, 0x1.89b7a04ef80d0p-59}, {0x1.46a41ed1d0057p+0, 0x1.c944bd1648a76p-54},
    {0x1.486a2b5c13cd0p+0, 0x1.3c1a3b69062f0p-56}, {0x1.4a32af0d7d3dep+0, 0x1.9cb62f3d1be56p-54},
    {0x1.4bfdad5362a27p+0, 0x1.d4397afec42e2p-56}, {0x1.4dcb299fddd0dp+0, 0x1.8ecdbbc6a7833p-54},
    {0x1.4f9b2769d2ca7p+0, -0x1.4b309d25957e3p-54}, {0x1.516daa2cf6642p+0, -0x1.f768569bd93efp-55},
    {0x1.5342b569d4f82p+0, -0x1.07abe1db13cadp-55}, {0x1.551a4ca5d920fp+0, -0x1.d689cefede59bp-55},
    {0x1.56f4736b527dap+0, 0x1.9bb2c011d93adp-54}, {0x1.58d12d497c7fdp+0, 0x1.295e15b9a1de8p-55},
    {0x1.5ab07dd485429p+0, 0x1.6324c054647adp-54}, {0x1.5c9268a5946b7p+0, 0x1.c4b1b816986a2p-60},
    {0x1.5e76f15ad2148p+0, 0x1.ba6f93080e65ep-54}, {0x1.605e1b976dc09p+0, -0x1.3e2429b56de47p-54},
    {0x1.6247eb03a5585p+0, -0x1.383c17e40b497p-54}, {0x1.6434634ccc320p+0, -0x1.c483c759d8933p-55},
    {0x1.6623882552225p+0, -0x1.bb60987591c34p-54}, {0x1.68155d44ca973p+0, 0x1.038ae44f73e65p-57},
    {0x1.6a09e667f3bcdp+0, -0x1.bdd3413b26456p-54}, {0x1.6c012750bdabfp+0, -0x1.2895667ff0b0dp-56},
    {0x1.6dfb23c651a2fp+0, -0x1.bbe3a683c88abp-57}, {0x1.6ff7df9519484p+0, -0x1.83c0f25860ef6p-55},
    {0x1.71f75e8ec5f74p+0, -0x1.16e4786887a99p-55}, {0x1.73f9a48a58174p+0, -0x1.0a8d96c65d53cp-54},
    {0x1.75feb564267c9p+0, -0x1.0245957316dd3p-54}, {0x1.780694fde5d3fp+0, 0x1.866b80a02162dp-54},
    {0x1.7a11473eb0187p+0, -0x1.41577ee04992fp-55}, {0x1.7c1ed0130c132p+0, 0x1.f124cd1164dd6p-54},
    {0x1.7e2f336cf4e62p+0, 0x1.05d02ba15797ep-56}, {0x1.80427543e1a12p+0, -0x1.27c86626d972bp-54},
    {0x1.82589994cce13p+0, -0x1.d4c1dd41532d8p-54}, {0x1.8471a4623c7adp+0, -0x1.8d684a341cdfbp-55},
    {0x1.868d99b4492edp+0, -0x1.fc6f89bd4f6bap-54}, {0x1.88ac7d98a6699p+0, 0x1.994c2f37cb53ap-54},
    {0x1.8ace5422aa0dbp+0, 0x1.6e9f156864b27p-54}, {0x1.8cf3216b5448cp+0, -0x1.0d55e32e9e3aap-56},
    {0x1.8f1ae99157736p+0, 0x1.5cc13a2e3976cp-55}, {0x1.9145b0b91ffc6p+0, -0x1.dd6792e582524p-54},
    {0x1.93737b0cdc5e5p+0, -0x1.75fc781b57ebcp-57}, {0x1.95a44cbc8520fp+0, -0x1.64b7c96a5f039p-56},
    {0x1.97d829fde4e50p+0, -0x1.d185b7c1b85d1p-54}, {0x1.9a0f170ca07bap+0, -0x1.173bd91cee632p-54},
    {0x1.9c49182a3f090p+0, 0x1.c7c46b071f2bep-56}, {0x1.9e86319e32323p+0, 0x1.824ca78e64c6ep-56},
    {0x1.a0c667b5de565p+0, -0x1.359495d1cd533p-54}, {0x1.a309bec4a2d33p+0, 0x1.6305c7ddc36abp-54},
    {0x1.a5503b23e255dp+0, -0x1.d2f6edb8d41e1p-54}, {0x1.a799e1330b358p+0, 0x1.bcb7ecac563c7p-54},
    {0x1.a9e6b5579fdbfp+0, 0x1.0fac90ef7fd31p-54}, {0x1.ac36bbfd3f37ap+0, -0x1.f9234cae76cd0p-55},
    {0x1.ae89f995ad3adp+0, 0x1.7a1cd345dcc81p-54}, {0x1.b0e07298db666p+0, -0x1.bdef54c80e425p-54},
    {0x1.b33a2b84f15fbp+0, -0x1.2805e3084d708p-57}, {0x1.b59728de5593ap+0, -0x1.c71dfbbba6de3p-54},
    {0x1.b7f76f2fb5e47p+0, -0x1.5584f7e54ac3bp-56}, {0x1.ba5b030a1064ap+0, -0x1.efcd30e54292ep-54},
    {0x1.bcc1e904bc1d2p+0, 0x1.23dd07a2d9e84p-55}, {0x1.bf2c25bd71e09p+0, -0x1.efdca3f6b9c73p-54},
    {0x1.c199bdd85529cp+0, 0x1.11065895048ddp-55}, {0x1.c40ab5fffd07ap+0, 0x1.b4537e083c60ap-54},
    {0x1.c67f12e57d14bp+0, 0x1.2884dff483cadp-54}, {0x1.c8f6d9406e7b5p+0, 0x1.1acbc48805c44p-56},
    {0x1.cb720dcef9069p+0, 0x1.503cbd1e949dbp-56}, {0x1.cdf0b555dc3fap+0, -0x1.dd83b53829d72p-55},
    {0x1.d072d4a07897cp+0, -0x1.cbc3743797a9cp-54}, {0x1.d2f87080d89f2p+0, -0x1.d487b719d8578p-54},
    {0x1.d5818dcfba487p+0, 0x1.2ed02d75b3707p-55}, {0x1.d80e316c98398p+0, -0x1.11ec18beddfe8p-54},
    {0x1.da9e603db3285p+0, 0x1.c2300696db532p-54}, {0x1.dd321f301b460p+0, 0x1.2da5778f018c3p-54},
    {0x1.dfc97337b9b5fp+0, -0x1.1a5cd4f184b5cp-54}, {0x1.e264614f5a129p+0, -0x1.7b627817a1496p-54},
    {0x1.e502ee78b3ff6p+0, 0x1.39e8980a9cc8fp-55}, {0x1.e7a51fbc74c83p+0, 0x1.2d522ca0c8de2p-54},
    {0x1.ea4afa2a490dap+0, -0x1.e9c23179c2893p-54}, {0x1.ecf482d8e67f1p+0, -0x1.c93f3b411ad8cp-54},
    {0x1.efa1bee615a27p+0, 0x1.dc7f486a4b6b0p-54}, {0x1.f252b376bba97p+0, 0x1.3a1a5bf0d8e43p-54},
    {0x1.f50765b6e4540p+0, 0x1.9d3e12dd8a18bp-54}, {0x1.f7bfdad9cbe14p+0, -0x1.dbb12d006350ap-54},
    {0x1.fa7c1819e90d8p+0, 0x1.74853f3a5931ep-55}, {0x1.fd3c22b8f71f1p+0, 0x1.2eb74966579e7p-57},
};

// k = round(x 128/ln 2) (held in the low bits of `shifted`) and
// r = x - k ln2/128.
template <class R>
struct Reduction {
    R r, shifted;
};

template <class R>
constexpr Reduction<R> reduce(R x)
{
    const R shifted = x * R(kInvLn2N) + R(kRoundShift);
    const R k = shifted - R(kRoundShift);
    return {(x - k * R(kLn2NHi)) - k * R(kLn2NLo), shifted};
}

// 2^(j/128) e^r from the table entry t.
template <class R>
constexpr R combine(R r, R tHi, R tLo)
{
    const R p = r + (r * r) * (R(0.5) + r * (R(1.0 / 6) + r * (R(1.0 / 24) + r * R(1.0 / 120))));
    return tHi + (tHi * p + tLo);
}

// (k >> 7) << 52 from the bits of `shifted`: added to a double's bits, it
// multiplies the double by 2^(k >> 7).
constexpr Qsp64u scaleBits(Qsp64u shiftedBits)
{
    return ((shiftedBits - kRoundShiftBits) << 45) & 0xFFF0000000000000ull;
}

// NaN, infinities, and the magnitudes from kFastLimit up.
constexpr double edge(double x)
{
    if (x != x) return x + x;
    if (x > 710.0) return __builtin_inf();
    if (x < -746.0) return 0.0;
    const Reduction<double> red = reduce(x);
    const Qsp64u bits = bitsOf(red.shifted);
    const Qsp64s k = Qsp64s(bits - kRoundShiftBits);
    const Pair<double>& t = kExp2Table[k & 127];
    const double y = combine(red.r, t.hi, t.lo);
    const int e = int(k >> 7);
    // Exact scaling to near the final exponent, then one rounding: into
    // infinity above the largest double, into the subnormals below 2^-1022.
    if (e > 0) return y * rounding::pow2(e - 1) * 2.0;
    return y * rounding::pow2(e + 64) * 0x1p-64;
}

}  // namespace expo

constexpr double qspsExpOne(double x)
{
    if (!(qspsFabsOne(x) < expo::kFastLimit)) return expo::edge(x);
    const expo::Reduction<double> red = expo::reduce(x);
    const Qsp64u bits = bitsOf(red.shifted);
    const Pair<double>& t = expo::kExp2Table[bits & 127];
    return fromBits(bitsOf(expo::combine(red.r, t.hi, t.lo)) + expo::scaleBits(bits));
}

namespace expo {

// Single precision, fast evaluation for |x| < 87.3 (normal results):
// e^x = 2^(k/256) e^r with u = x 256/ln 2 (rounded: below 2^-37 absolute,
// 2^-46.5 in the exponent), k = u rounded to an integer, r = u - k exact,
// e^r = 1 + p with p to its third power of r (the omitted term is below
// 2^-42.7), so the double result is within 2^-42.5 of e^x relative: less
// than 2048 units of its last place.
constexpr double kInvLn2N256 = 0x1.71547652b82fep+8;  // 256 / ln 2
constexpr double kP1 = 0x1.62e42fefa39efp-9;           // ln2/256
constexpr double kP2 = 0x1.ebfbdff82c58fp-19;          // (ln2/256)^2 / 2
constexpr double kP3 = 0x1.c6b08d704a0c0p-29;          // (ln2/256)^3 / 6

// The bits of 2^(j/256) less j << 44: adding the bits of `shifted` moved
// up by 44 (that is k << 44, the exponent k >> 8 in its field and j just
// above the 44th bit) gives the bits of 2^(k/256).
constexpr Qsp64u kExp2Bits256[256] = {
    0x3ff0000000000000ull, 0x3feffb1afa5abcbfull, 0x3feff63da9fb3335ull, 0x3feff168143b0281ull,
    0x3fefec9a3e778061ull, 0x3fefe7d42e11bbccull, 0x3fefe315e86e7f85ull, 0x3fefde5f72f654b1ull,
    0x3fefd9b0d3158574ull, 0x3fefd50a0e3c1f89ull, 0x3fefd06b29ddf6deull, 0x3fefcbd42b72a836ull,
    0x3fefc74518759bc8ull, 0x3fefc2bdf66607e0ull, 0x3fefbe3ecac6f383ull, 0x3fefb9c79b1f3919ull,
    0x3fefb5586cf9890full, 0x3fefb0f145e46c85ull, 0x3fefac922b7247f7ull, 0x3fefa83b23395decull,
    0x3fefa3ec32d3d1a2ull, 0x3fef9fa55fdfa9c5ull, 0x3fef9b66affed31bull, 0x3fef973028d7233eull,
    0x3fef9301d0125b51ull, 0x3fef8edbab5e2ab6ull, 0x3fef8abdc06c31ccull, 0x3fef86a814f204abull,
    0x3fef829aaea92de0ull, 0x3fef7e95934f312eull, 0x3fef7a98c8a58e51ull, 0x3fef76a45471c3c2ull,
    0x3fef72b83c7d517bull, 0x3fef6ed48695bbc0ull, 0x3fef6af9388c8deaull, 0x3fef672658375d2full,
    0x3fef635beb6fcb75ull, 0x3fef5f99f8138a1cull, 0x3fef5be084045cd4ull, 0x3fef582f95281c6bull,
    0x3fef54873168b9aaull, 0x3fef50e75eb44027ull, 0x3fef4d5022fcd91dull, 0x3fef49c18438ce4dull,
    0x3fef463b88628cd6ull, 0x3fef42be3578a819ull, 0x3fef3f49917ddc96ull, 0x3fef3bdda27912d1ull,
    0x3fef387a6e756238ull, 0x3fef351ffb82140aull, 0x3fef31ce4fb2a63full, 0x3fef2e85711ece75ull,
    0x3fef2b4565e27cddull, 0x3fef280e341ddf29ull, 0x3fef24dfe1f56381ull, 0x3fef21ba7591bb70ull,
    0x3fef1e9df51fdee1ull, 0x3fef1b8a66d10f13ull, 0x3fef187fd0dad990ull, 0x3fef157e39771b2full,
    0x3fef1285a6e4030bull, 0x3fef0f961f641589ull, 0x3fef0cafa93e2f56ull, 0x3fef09d24abd886bull,
    0x3fef06fe0a31b715ull, 0x3fef0432edeeb2fdull, 0x3fef0170fc4cd831ull, 0x3feefeb83ba8ea32ull,
    0x3feefc08b26416ffull, 0x3feef96266e3fa2dull, 0x3feef6c55f929ff1ull, 0x3feef431a2de883bull,
    0x3feef1a7373aa9cbull, 0x3feeef26231e754aull, 0x3feeecae6d05d866ull, 0x3feeea401b7140efull,
    0x3feee7db34e59ff7ull, 0x3feee57fbfec6cf4ull, 0x3feee32dc313a8e5ull, 0x3feee0e544ede173ull,
    0x3feedea64c123422ull, 0x3feedc70df1c5175ull, 0x3feeda4504ac801cull, 0x3feed822c367a024ull,
    0x3feed60a21f72e2aull, 0x3feed3fb2709468aull, 0x3feed1f5d950a897ull, 0x3feecffa3f84b9d4ull,
    0x3feece086061892dull, 0x3feecc2042a7d232ull, 0x3feeca41ed1d0057ull, 0x3feec86d668b3237ull,
    0x3feec6a2b5c13cd0ull, 0x3feec4e1e192aed2ull, 0x3feec32af0d7d3deull, 0x3feec17dea6db7d7ull,
    0x3feebfdad5362a27ull, 0x3feebe41b817c114ull, 0x3feebcb299fddd0dull, 0x3feebb2d81d8abffull,
    0x3feeb9b2769d2ca7ull, 0x3feeb8417f4531eeull, 0x3feeb6daa2cf6642ull, 0x3feeb57de83f4eefull,
    0x3feeb42b569d4f82ull, 0x3feeb2e2f4f6ad27ull, 0x3feeb1a4ca5d920full, 0x3feeb070dde910d2ull,
    0x3feeaf4736b527daull, 0x3feeae27dbe2c4cfull, 0x3feead12d497c7fdull, 0x3feeac0827ff07ccull,
    0x3feeab07dd485429ull, 0x3feeaa11fba87a03ull, 0x3feea9268a5946b7ull, 0x3feea84590998b93ull,
    0x3feea76f15ad2148ull, 0x3feea6a320dceb71ull, 0x3feea5e1b976dc09ull, 0x3feea52ae6cdf6f4ull,
    0x3feea47eb03a5585ull, 0x3feea3dd1d1929fdull, 0x3feea34634ccc320ull, 0x3feea2b9febc8fb7ull,
    0x3feea23882552225ull, 0x3feea1c1c70833f6ull, 0x3feea155d44ca973ull, 0x3feea0f4b19e9538ull,
    0x3feea09e667f3bcdull, 0x3feea052fa75173eull, 0x3feea012750bdabfull, 0x3fee9fdcddd47645ull,
    0x3fee9fb23c651a2full, 0x3fee9f9298593ae5ull, 0x3fee9f7df9519484ull, 0x3fee9f7466f42e87ull,
    0x3fee9f75e8ec5f74ull, 0x3fee9f8286ead08aull, 0x3fee9f9a48a58174ull, 0x3fee9fbd35d7cbfdull,
    0x3fee9feb564267c9ull, 0x3feea024b1ab6e09ull, 0x3feea0694fde5d3full, 0x3feea0b938ac1cf6ull,
    0x3feea11473eb0187ull, 0x3feea17b0976cfdbull, 0x3feea1ed0130c132ull, 0x3feea26a62ff86f0ull,
    0x3feea2f336cf4e62ull, 0x3feea3878491c491ull, 0x3feea427543e1a12ull, 0x3feea4d2add106d9ull,
    0x3feea589994cce13ull, 0x3feea64c1eb941f7ull, 0x3feea71a4623c7adull, 0x3feea7f4179f5b21ull,
    0x3feea8d99b4492edull, 0x3feea9cad931a436ull, 0x3feeaac7d98a6699ull, 0x3feeabd0a478580full,
    0x3feeace5422aa0dbull, 0x3feeae05bad61778ull, 0x3feeaf3216b5448cull, 0x3feeb06a5e0866d9ull,
    0x3feeb1ae99157736ull, 0x3feeb2fed0282c8aull, 0x3feeb45b0b91ffc6ull, 0x3feeb5c353aa2fe2ull,
    0x3feeb737b0cdc5e5ull, 0x3feeb8b82b5f98e5ull, 0x3feeba44cbc8520full, 0x3feebbdd9a7670b3ull,
    0x3feebd829fde4e50ull, 0x3feebf33e47a22a2ull, 0x3feec0f170ca07baull, 0x3feec2bb4d53fe0dull,
    0x3feec49182a3f090ull, 0x3feec674194bb8d5ull, 0x3feec86319e32323ull, 0x3feeca5e8d07f29eull,
    0x3feecc667b5de565ull, 0x3feece7aed8eb8bbull, 0x3feed09bec4a2d33ull, 0x3feed2c980460ad8ull,
    0x3feed503b23e255dull, 0x3feed74a8af46052ull, 0x3feed99e1330b358ull, 0x3feedbfe53c12e59ull,
    0x3feede6b5579fdbfull, 0x3feee0e521356ebaull, 0x3feee36bbfd3f37aull, 0x3feee5ff3a3c2774ull,
    0x3feee89f995ad3adull, 0x3feeeb4ce622f2ffull, 0x3feeee07298db666ull, 0x3feef0ce6c9a8952ull,
    0x3feef3a2b84f15fbull, 0x3feef68415b749b1ull, 0x3feef9728de5593aull, 0x3feefc6e29f1c52aull,
    0x3feeff76f2fb5e47ull, 0x3fef028cf22749e4ull, 0x3fef05b030a1064aull, 0x3fef08e0b79a6f1full,
    0x3fef0c1e904bc1d2ull, 0x3fef0f69c3f3a207ull, 0x3fef12c25bd71e09ull, 0x3fef16286141b33dull,
    0x3fef199bdd85529cull, 0x3fef1d1cd9fa652cull, 0x3fef20ab5fffd07aull, 0x3fef244778fafb22ull,
    0x3fef27f12e57d14bull, 0x3fef2ba88988c933ull, 0x3fef2f6d9406e7b5ull, 0x3fef33405751c4dbull,
    0x3fef3720dcef9069ull, 0x3fef3b0f2e6d1675ull, 0x3fef3f0b555dc3faull, 0x3fef43155b5bab74ull,
    0x3fef472d4a07897cull, 0x3fef4b532b08c968ull, 0x3fef4f87080d89f2ull, 0x3fef53c8eacaa1d6ull,
    0x3fef5818dcfba487ull, 0x3fef5c76e862e6d3ull, 0x3fef60e316c98398ull, 0x3fef655d71ff6075ull,
    0x3fef69e603db3285ull, 0x3fef6e7cd63a8315ull, 0x3fef7321f301b460ull, 0x3fef77d5641c0658ull,
    0x3fef7c97337b9b5full, 0x3fef81676b197d17ull, 0x3fef864614f5a129ull, 0x3fef8b333b16ee12ull,
    0x3fef902ee78b3ff6ull, 0x3fef953924676d76ull, 0x3fef9a51fbc74c83ull, 0x3fef9f7977cdb740ull,
    0x3fefa4afa2a490daull, 0x3fefa9f4867cca6eull, 0x3fefaf482d8e67f1ull, 0x3fefb4aaa2188510ull,
    0x3fefba1bee615a27ull, 0x3fefbf9c1cb6412aull, 0x3fefc52b376bba97ull, 0x3fefcac948dd7274ull,
    0x3fefd0765b6e4540ull, 0x3fefd632798844f8ull, 0x3fefdbfdad9cbe14ull, 0x3fefe1d802243c89ull,
    0x3fefe7c1819e90d8ull, 0x3fefedba3692d514ull, 0x3feff3c22b8f71f1ull, 0x3feff9d96b2a23d9ull,
};

// Floats whose double-precision exponential lies exactly halfway between
// two floats, with the correctly rounded result (the first entry is a
// NaN pattern, never a tie).
constexpr single::Exception kSingleTies[] = {
    {0xFFFFFFFFu, 0},
};

}  // namespace expo

constexpr float qspsExpOne_32f(float x) { return single::rounded(qspsExpOne(double(x)), x, expo::kSingleTies); }

namespace expo {

struct Single {
    static constexpr Qsp32s kSlack = 4096;
    static void evaluate(simd::Vec<float>::Reg x, simd::Vec<double>::Reg& y0, simd::Vec<double>::Reg& y1)
    {
        y0 = lanes(simd::Vec<double>::widenLow(x)).v;
        y1 = lanes(simd::Vec<double>::widenHigh(x)).v;
    }
    static Lanes2 lanes(Lanes2 x)
    {
        using V = simd::Vec<double>;
        using B = simd::Vec<Qsp64u>;
        using I = simd::Vec<Qsp32s>;
        const Lanes2 u = x * kInvLn2N256;
        const Lanes2 shifted = u + kRoundShift;
        const Lanes2 r = u - (shifted - kRoundShift);
        const Lanes2 p = r * (kP1 + r * (kP2 + r * kP3));
        const B::Reg bits = V::bits(shifted.v);
        const Qsp64u t0 = kExp2Bits256[I::lane<0>(bits) & 255], t1 = kExp2Bits256[I::lane<2>(bits) & 255];
        const Lanes2 t = V::ofBits(B::add(V::bits(V::pair(fromBits(t0), fromBits(t1))), B::shiftLeft<44>(bits)));
        return t + t * p;
    }
    static simd::Vec<float>::Reg outside(simd::Vec<float>::Reg x)
    {
        using F = simd::Vec<float>;
        using I = simd::Vec<Qsp32s>;
        const I::Reg magnitude = I::bitAnd(F::bits(x), I::splat(0x7FFFFFFF));
        return F::ofBits(I::cmpgt(magnitude, I::splat(Qsp32s(single::floatBits(87.3f)))));
    }
    static float one(float x) { return qspsExpOne_32f(x); }
};

}  // namespace expo

inline void qspsExp_32f_A24(const float* pSrc, float* pDst, Qsp64s len) { single::run<expo::Single>(pSrc, pDst, len); }

// Two lanes at a time while both lie below kFastLimit in magnitude; any
// other pair goes through the one-element function.
inline void qspsExp_64f_A53(const double* pSrc, double* pDst, int len)
{
    using V = simd::Vec<double>;
    using B = simd::Vec<Qsp64u>;
    using I = simd::Vec<Qsp32s>;
    const V::Reg limit = V::splat(expo::kFastLimit);
    const B::Reg shiftBits = B::splat(kRoundShiftBits), exponentField = B::splat(0xFFF0000000000000ull);
    int i = 0;
    for (; i + 2 <= len; i += 2) {
        const Lanes2 x = V::loadu(pSrc + i);
        if (V::anyMask(V::cmplt(V::andNot(V::signBit(), x.v), limit)) != 3) {
            const double x0 = pSrc[i], x1 = pSrc[i + 1];
            pDst[i] = qspsExpOne(x0);
            pDst[i + 1] = qspsExpOne(x1);
            continue;
        }
        const expo::Reduction<Lanes2> red = expo::reduce(x);
        const B::Reg bits = V::bits(red.shifted.v);
        const Pair<double>& t0 = expo::kExp2Table[I::lane<0>(bits) & 127];
        const Pair<double>& t1 = expo::kExp2Table[I::lane<2>(bits) & 127];
        const Lanes2 y = expo::combine(red.r, Lanes2(V::pair(t0.hi, t1.hi)), Lanes2(V::pair(t0.lo, t1.lo)));
        const B::Reg scale = B::bitAnd(B::shiftLeft<45>(B::sub(bits, shiftBits)), exponentField);
        V::storeu(pDst + i, V::ofBits(B::add(V::bits(y.v), scale)));
    }
    if (i < len) pDst[i] = qspsExpOne(pSrc[i]);
}

}  // namespace mathfn

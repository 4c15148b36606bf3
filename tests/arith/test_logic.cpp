// SPDX-License-Identifier: BSD-3-Clause
// And, Or, Xor, Not and their constant forms: bitwise operations.
#include "arith_families.h"

using namespace arithfam;
using arithchecks::expectChecks;

namespace {
template <class T, class F2, class F2I, class FC, class FCI, class Bit>
void family(F2 fn, F2I fnI, FC fnC, FCI fnCI, Bit bit)
{
    expectChecks(fn);
    expectChecks(fnI);
    expectChecks(fnC, T(5));
    expectChecks(fnCI, T(5));
    arithsweep::binary<T, T, T>(fn, [&](T a, T b, T got) { return equals(got, T(bit(a, b))); }, fnI);
    for (T c : arithsweep::gen<T>(3)) {
        arithsweep::unary<T, T>([&](auto a, auto d, int len) { return fnC(a, c, d, len); },
                                [&](T a, T got) { return equals(got, T(bit(a, c))); },
                                [&](auto sd, int len) { return fnCI(c, sd, len); });
    }
}
auto andOp = [](auto a, auto b) { return a & b; };
auto orOp = [](auto a, auto b) { return a | b; };
auto xorOp = [](auto a, auto b) { return a ^ b; };
}  // namespace

TEST(And, EveryTypeAndForm)
{
    family<Qsp8u>(qspsAnd_8u, qspsAnd_8u_I, qspsAndC_8u, qspsAndC_8u_I, andOp);
    family<Qsp16u>(qspsAnd_16u, qspsAnd_16u_I, qspsAndC_16u, qspsAndC_16u_I, andOp);
    family<Qsp32u>(qspsAnd_32u, qspsAnd_32u_I, qspsAndC_32u, qspsAndC_32u_I, andOp);
}

TEST(Or, EveryTypeAndForm)
{
    family<Qsp8u>(qspsOr_8u, qspsOr_8u_I, qspsOrC_8u, qspsOrC_8u_I, orOp);
    family<Qsp16u>(qspsOr_16u, qspsOr_16u_I, qspsOrC_16u, qspsOrC_16u_I, orOp);
    family<Qsp32u>(qspsOr_32u, qspsOr_32u_I, qspsOrC_32u, qspsOrC_32u_I, orOp);
}

TEST(Xor, EveryTypeAndForm)
{
    family<Qsp8u>(qspsXor_8u, qspsXor_8u_I, qspsXorC_8u, qspsXorC_8u_I, xorOp);
    family<Qsp16u>(qspsXor_16u, qspsXor_16u_I, qspsXorC_16u, qspsXorC_16u_I, xorOp);
    family<Qsp32u>(qspsXor_32u, qspsXor_32u_I, qspsXorC_32u, qspsXorC_32u_I, xorOp);
}

TEST(Not, EveryTypeAndForm)
{
    expectChecks(qspsNot_8u);
    expectChecks(qspsNot_8u_I);
    expectChecks(qspsNot_16u);
    expectChecks(qspsNot_16u_I);
    expectChecks(qspsNot_32u);
    expectChecks(qspsNot_32u_I);
    arithsweep::unary<Qsp8u, Qsp8u>(qspsNot_8u, [](Qsp8u a, Qsp8u got) { return equals(got, Qsp8u(~a)); }, qspsNot_8u_I);
    arithsweep::unary<Qsp16u, Qsp16u>(qspsNot_16u, [](Qsp16u a, Qsp16u got) { return equals(got, Qsp16u(~a)); }, qspsNot_16u_I);
    arithsweep::unary<Qsp32u, Qsp32u>(qspsNot_32u, [](Qsp32u a, Qsp32u got) { return equals(got, Qsp32u(~a)); }, qspsNot_32u_I);
}

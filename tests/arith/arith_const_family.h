// SPDX-License-Identifier: BSD-3-Clause
// The shared tests of the three constant families with identical rows
// (AddC, SubC, SubCRev): each test file names its family's rows once and
// gives the exact operation; the argument checks, the exactness of every
// scaled integer type at every scale factor, the floating results and the
// 64-bit length forms are checked here.
#pragma once
#include "arith_families.h"

namespace constfamily {

using namespace arithfam;

template <class T>
using Fn = QspStatus (*)(const T*, T, T*, int);
template <class T>
using FnI = QspStatus (*)(T, T*, int);
template <class T>
using FnL = QspStatus (*)(const T*, T, T*, Qsp64s);
template <class T>
using FnIL = QspStatus (*)(T, T*, Qsp64s);
template <class T>
using Sfs = QspStatus (*)(const T*, T, T*, int, int);
template <class T>
using ISfs = QspStatus (*)(T, T*, int, int);

struct Rows {
    Fn<Qsp32f> f32;
    FnI<Qsp32f> f32I;
    Fn<Qsp64f> f64;
    FnI<Qsp64f> f64I;
    Fn<Qsp32fc> fc32;
    FnI<Qsp32fc> fc32I;
    Fn<Qsp64fc> fc64;
    FnI<Qsp64fc> fc64I;
    Sfs<Qsp8u> s8u;
    ISfs<Qsp8u> s8uI;
    Sfs<Qsp16s> s16s;
    ISfs<Qsp16s> s16sI;
    Sfs<Qsp16u> s16u;
    ISfs<Qsp16u> s16uI;
    Sfs<Qsp32s> s32s;
    ISfs<Qsp32s> s32sI;
    Sfs<Qsp16sc> s16sc;
    ISfs<Qsp16sc> s16scI;
    Sfs<Qsp32sc> s32sc;
    ISfs<Qsp32sc> s32scI;
    FnL<Qsp32f> f32L;
    FnIL<Qsp32f> f32IL;
    FnL<Qsp64f> f64L;
    FnIL<Qsp64f> f64IL;
    FnL<Qsp32fc> fc32L;
    FnIL<Qsp32fc> fc32IL;
    FnL<Qsp64fc> fc64L;
    FnIL<Qsp64fc> fc64IL;
};

// The rows of family F, in the order of Rows.
#define QSP_CONST_ROWS(F)                                                                                        \
    constfamily::Rows                                                                                            \
    {                                                                                                            \
        qsps##F##_32f, qsps##F##_32f_I, qsps##F##_64f, qsps##F##_64f_I, qsps##F##_32fc, qsps##F##_32fc_I,         \
            qsps##F##_64fc, qsps##F##_64fc_I, qsps##F##_8u_Sfs, qsps##F##_8u_ISfs, qsps##F##_16s_Sfs,             \
            qsps##F##_16s_ISfs, qsps##F##_16u_Sfs, qsps##F##_16u_ISfs, qsps##F##_32s_Sfs, qsps##F##_32s_ISfs,     \
            qsps##F##_16sc_Sfs, qsps##F##_16sc_ISfs, qsps##F##_32sc_Sfs, qsps##F##_32sc_ISfs, qsps##F##_32f_L,    \
            qsps##F##_32f_I_L, qsps##F##_64f_L, qsps##F##_64f_I_L, qsps##F##_32fc_L, qsps##F##_32fc_I_L,          \
            qsps##F##_64fc_L, qsps##F##_64fc_I_L                                                                  \
    }

inline void argumentChecks(const Rows& r)
{
    using arithchecks::expectChecks;
    expectChecks(r.f32, 1.0f);
    expectChecks(r.f32I, 1.0f);
    expectChecks(r.f64, 1.0);
    expectChecks(r.f64I, 1.0);
    expectChecks(r.fc32, Qsp32fc{1, 2});
    expectChecks(r.fc32I, Qsp32fc{1, 2});
    expectChecks(r.fc64, Qsp64fc{1, 2});
    expectChecks(r.fc64I, Qsp64fc{1, 2});
    for (int sf : {0, 1, 5, 40, -5, -40}) {
        expectChecks(r.s8u, Qsp8u(3), sf);
        expectChecks(r.s8uI, Qsp8u(3), sf);
        expectChecks(r.s16s, Qsp16s(3), sf);
        expectChecks(r.s16sI, Qsp16s(3), sf);
        expectChecks(r.s16u, Qsp16u(3), sf);
        expectChecks(r.s16uI, Qsp16u(3), sf);
        expectChecks(r.s32s, 3, sf);
        expectChecks(r.s32sI, 3, sf);
        expectChecks(r.s16sc, Qsp16sc{3, 4}, sf);
        expectChecks(r.s16scI, Qsp16sc{3, 4}, sf);
        expectChecks(r.s32sc, Qsp32sc{3, 4}, sf);
        expectChecks(r.s32scI, Qsp32sc{3, 4}, sf);
    }
    expectChecks(r.f32L, 1.0f);
    expectChecks(r.f32IL, 1.0f);
    expectChecks(r.f64L, 1.0);
    expectChecks(r.f64IL, 1.0);
    expectChecks(r.fc32L, Qsp32fc{1, 2});
    expectChecks(r.fc32IL, Qsp32fc{1, 2});
    expectChecks(r.fc64L, Qsp64fc{1, 2});
    expectChecks(r.fc64IL, Qsp64fc{1, 2});
}

// exact(x, c): the exact result on one part (as a 128-bit integer).
template <class Exact>
void scaledIntegers(const Rows& r, Exact exact)
{
    auto part = [&](auto x, auto c, int sf) { return arithref::scaled<decltype(x)>(exact(x, c), sf); };
    auto s16sc = [&](Qsp16sc x, Qsp16sc c, int sf) { return Qsp16sc{part(x.re, c.re, sf), part(x.im, c.im, sf)}; };
    auto s32sc = [&](Qsp32sc x, Qsp32sc c, int sf) { return Qsp32sc{part(x.re, c.re, sf), part(x.im, c.im, sf)}; };
    sfsC(r.s8u, part, r.s8uI);
    sfsC(r.s16s, part, r.s16sI);
    sfsC(r.s16u, part, r.s16uI);
    sfsC(r.s32s, part, r.s32sI);
    sfsC(r.s16sc, s16sc, r.s16scI);
    sfsC(r.s32sc, s32sc, r.s32scI);
}

// real(x, c): the exact result on one part in long double.
template <class Real>
void floatingAndLongForms(const Rows& r, Real real)
{
    auto cplx = [&](auto x, auto c) { return LDC(real(x.re, c.re), real(x.im, c.im)); };
    floatC<Qsp32f>(r.f32, real, 0.5, r.f32I);
    floatC<Qsp64f>(r.f64, real, kHalfUlp, r.f64I);
    floatC<Qsp32fc>(r.fc32, cplx, 0.5, r.fc32I);
    floatC<Qsp64fc>(r.fc64, cplx, kHalfUlp, r.fc64I);
    floatC<Qsp32f>(viaL(r.f32L), real, 0.5, viaL(r.f32IL));
    floatC<Qsp64f>(viaL(r.f64L), real, kHalfUlp, viaL(r.f64IL));
    floatC<Qsp32fc>(viaL(r.fc32L), cplx, 0.5, viaL(r.fc32IL));
    floatC<Qsp64fc>(viaL(r.fc64L), cplx, kHalfUlp, viaL(r.fc64IL));
}

}  // namespace constfamily

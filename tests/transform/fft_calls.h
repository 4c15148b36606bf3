// SPDX-License-Identifier: BSD-3-Clause
// Every transform call of the FFT families behind one signature, for the
// tests of the entry checks: call(record, src, dst, work) with src and dst
// raw buffers large enough for any kind at the order used (a split kind
// takes its imaginary arrays 1024 bytes behind the real ones).
#pragma once
#include "qsp_test.h"

namespace fftcalls {

using Call = QspStatus (*)(const void* rec, void* src, void* dst, Qsp8u* work);

struct Entry {
    const char* name;
    Qsp32u id;
    bool inverse;
    Call call;
};

constexpr size_t kSplit = 1024;

#define QSP_CPLX(fn, T, S) [](const void* r, void* s, void* d, Qsp8u* w) { return fn((const T*)s, (T*)d, (const S*)r, w); }
#define QSP_CPLX_I(fn, T, S) [](const void* r, void* s, void*, Qsp8u* w) { return fn((T*)s, (const S*)r, w); }
#define QSP_SPLIT(fn, T, S)                                                                                   \
    [](const void* r, void* s, void* d, Qsp8u* w) {                                                           \
        return fn((const T*)s, s ? (const T*)((char*)s + kSplit) : nullptr, (T*)d, d ? (T*)((char*)d + kSplit) : nullptr, \
                  (const S*)r, w);                                                                            \
    }
#define QSP_SPLIT_I(fn, T, S) \
    [](const void* r, void* s, void*, Qsp8u* w) { return fn((T*)s, s ? (T*)((char*)s + kSplit) : nullptr, (const S*)r, w); }

inline const std::vector<Entry>& entries()
{
    static const std::vector<Entry> all = {
        {"Fwd_CToC_16fc", 4, false, QSP_CPLX(qspsFFTFwd_CToC_16fc, Qsp16fc, QspsFFTSpec_C_16fc)},
        {"Inv_CToC_16fc", 4, true, QSP_CPLX(qspsFFTInv_CToC_16fc, Qsp16fc, QspsFFTSpec_C_16fc)},
        {"Fwd_CToC_32fc", 5, false, QSP_CPLX(qspsFFTFwd_CToC_32fc, Qsp32fc, QspsFFTSpec_C_32fc)},
        {"Inv_CToC_32fc", 5, true, QSP_CPLX(qspsFFTInv_CToC_32fc, Qsp32fc, QspsFFTSpec_C_32fc)},
        {"Fwd_CToC_32fc_I", 5, false, QSP_CPLX_I(qspsFFTFwd_CToC_32fc_I, Qsp32fc, QspsFFTSpec_C_32fc)},
        {"Inv_CToC_32fc_I", 5, true, QSP_CPLX_I(qspsFFTInv_CToC_32fc_I, Qsp32fc, QspsFFTSpec_C_32fc)},
        {"Fwd_CToC_32f", 6, false, QSP_SPLIT(qspsFFTFwd_CToC_32f, Qsp32f, QspsFFTSpec_C_32f)},
        {"Inv_CToC_32f", 6, true, QSP_SPLIT(qspsFFTInv_CToC_32f, Qsp32f, QspsFFTSpec_C_32f)},
        {"Fwd_CToC_32f_I", 6, false, QSP_SPLIT_I(qspsFFTFwd_CToC_32f_I, Qsp32f, QspsFFTSpec_C_32f)},
        {"Inv_CToC_32f_I", 6, true, QSP_SPLIT_I(qspsFFTInv_CToC_32f_I, Qsp32f, QspsFFTSpec_C_32f)},
        {"Fwd_RToPack_32f", 7, false, QSP_CPLX(qspsFFTFwd_RToPack_32f, Qsp32f, QspsFFTSpec_R_32f)},
        {"Fwd_RToPerm_32f", 7, false, QSP_CPLX(qspsFFTFwd_RToPerm_32f, Qsp32f, QspsFFTSpec_R_32f)},
        {"Fwd_RToCCS_32f", 7, false, QSP_CPLX(qspsFFTFwd_RToCCS_32f, Qsp32f, QspsFFTSpec_R_32f)},
        {"Fwd_RToPack_32f_I", 7, false, QSP_CPLX_I(qspsFFTFwd_RToPack_32f_I, Qsp32f, QspsFFTSpec_R_32f)},
        {"Fwd_RToPerm_32f_I", 7, false, QSP_CPLX_I(qspsFFTFwd_RToPerm_32f_I, Qsp32f, QspsFFTSpec_R_32f)},
        {"Fwd_RToCCS_32f_I", 7, false, QSP_CPLX_I(qspsFFTFwd_RToCCS_32f_I, Qsp32f, QspsFFTSpec_R_32f)},
        {"Inv_PackToR_32f", 7, true, QSP_CPLX(qspsFFTInv_PackToR_32f, Qsp32f, QspsFFTSpec_R_32f)},
        {"Inv_PermToR_32f", 7, true, QSP_CPLX(qspsFFTInv_PermToR_32f, Qsp32f, QspsFFTSpec_R_32f)},
        {"Inv_CCSToR_32f", 7, true, QSP_CPLX(qspsFFTInv_CCSToR_32f, Qsp32f, QspsFFTSpec_R_32f)},
        {"Inv_PackToR_32f_I", 7, true, QSP_CPLX_I(qspsFFTInv_PackToR_32f_I, Qsp32f, QspsFFTSpec_R_32f)},
        {"Inv_PermToR_32f_I", 7, true, QSP_CPLX_I(qspsFFTInv_PermToR_32f_I, Qsp32f, QspsFFTSpec_R_32f)},
        {"Inv_CCSToR_32f_I", 7, true, QSP_CPLX_I(qspsFFTInv_CCSToR_32f_I, Qsp32f, QspsFFTSpec_R_32f)},
        {"Fwd_CToC_64fc", 8, false, QSP_CPLX(qspsFFTFwd_CToC_64fc, Qsp64fc, QspsFFTSpec_C_64fc)},
        {"Inv_CToC_64fc", 8, true, QSP_CPLX(qspsFFTInv_CToC_64fc, Qsp64fc, QspsFFTSpec_C_64fc)},
        {"Fwd_CToC_64fc_I", 8, false, QSP_CPLX_I(qspsFFTFwd_CToC_64fc_I, Qsp64fc, QspsFFTSpec_C_64fc)},
        {"Inv_CToC_64fc_I", 8, true, QSP_CPLX_I(qspsFFTInv_CToC_64fc_I, Qsp64fc, QspsFFTSpec_C_64fc)},
        {"Fwd_CToC_64f", 9, false, QSP_SPLIT(qspsFFTFwd_CToC_64f, Qsp64f, QspsFFTSpec_C_64f)},
        {"Inv_CToC_64f", 9, true, QSP_SPLIT(qspsFFTInv_CToC_64f, Qsp64f, QspsFFTSpec_C_64f)},
        {"Fwd_CToC_64f_I", 9, false, QSP_SPLIT_I(qspsFFTFwd_CToC_64f_I, Qsp64f, QspsFFTSpec_C_64f)},
        {"Inv_CToC_64f_I", 9, true, QSP_SPLIT_I(qspsFFTInv_CToC_64f_I, Qsp64f, QspsFFTSpec_C_64f)},
        {"Fwd_RToPack_64f", 10, false, QSP_CPLX(qspsFFTFwd_RToPack_64f, Qsp64f, QspsFFTSpec_R_64f)},
        {"Fwd_RToPerm_64f", 10, false, QSP_CPLX(qspsFFTFwd_RToPerm_64f, Qsp64f, QspsFFTSpec_R_64f)},
        {"Fwd_RToCCS_64f", 10, false, QSP_CPLX(qspsFFTFwd_RToCCS_64f, Qsp64f, QspsFFTSpec_R_64f)},
        {"Fwd_RToPack_64f_I", 10, false, QSP_CPLX_I(qspsFFTFwd_RToPack_64f_I, Qsp64f, QspsFFTSpec_R_64f)},
        {"Fwd_RToPerm_64f_I", 10, false, QSP_CPLX_I(qspsFFTFwd_RToPerm_64f_I, Qsp64f, QspsFFTSpec_R_64f)},
        {"Fwd_RToCCS_64f_I", 10, false, QSP_CPLX_I(qspsFFTFwd_RToCCS_64f_I, Qsp64f, QspsFFTSpec_R_64f)},
        {"Inv_PackToR_64f", 10, true, QSP_CPLX(qspsFFTInv_PackToR_64f, Qsp64f, QspsFFTSpec_R_64f)},
        {"Inv_PermToR_64f", 10, true, QSP_CPLX(qspsFFTInv_PermToR_64f, Qsp64f, QspsFFTSpec_R_64f)},
        {"Inv_CCSToR_64f", 10, true, QSP_CPLX(qspsFFTInv_CCSToR_64f, Qsp64f, QspsFFTSpec_R_64f)},
        {"Inv_PackToR_64f_I", 10, true, QSP_CPLX_I(qspsFFTInv_PackToR_64f_I, Qsp64f, QspsFFTSpec_R_64f)},
        {"Inv_PermToR_64f_I", 10, true, QSP_CPLX_I(qspsFFTInv_PermToR_64f_I, Qsp64f, QspsFFTSpec_R_64f)},
        {"Inv_CCSToR_64f_I", 10, true, QSP_CPLX_I(qspsFFTInv_CCSToR_64f_I, Qsp64f, QspsFFTSpec_R_64f)},
    };
    return all;
}

#undef QSP_CPLX
#undef QSP_CPLX_I
#undef QSP_SPLIT
#undef QSP_SPLIT_I

// A record of the identifier's kind at an order, in its own blocks.
struct Record {
    std::vector<Qsp8u> spec, init, work;
    void* rec = nullptr;
    int workSize = 0;
};

inline Record makeRecord(Qsp32u id, int order, int flag = 8)
{
    Record r;
    int s = 0, i = 0, w = 0;
    QspStatus st = qspStsOk;
    switch (id) {
    case 4: st = qspsFFTGetSize_C_16fc(order, flag, 0, &s, &i, &w); break;
    case 5: st = qspsFFTGetSize_C_32fc(order, flag, 0, &s, &i, &w); break;
    case 6: st = qspsFFTGetSize_C_32f(order, flag, 0, &s, &i, &w); break;
    case 7: st = qspsFFTGetSize_R_32f(order, flag, 0, &s, &i, &w); break;
    case 8: st = qspsFFTGetSize_C_64fc(order, flag, 0, &s, &i, &w); break;
    case 9: st = qspsFFTGetSize_C_64f(order, flag, 0, &s, &i, &w); break;
    default: st = qspsFFTGetSize_R_64f(order, flag, 0, &s, &i, &w); break;
    }
    EXPECT_EQ(st, qspStsOk);
    r.spec.assign(s, 0);
    r.init.assign(i + 1, 0);
    r.work.assign(w + 1, 0);
    r.workSize = w;
    Qsp8u* sp = r.spec.data();
    Qsp8u* ib = i ? r.init.data() : nullptr;
    switch (id) {
    case 4: {
        unsigned ftz, daz;
        qspSetFlushToZero(0, &ftz);
        qspSetDenormAreZeros(0, &daz);
        st = qspsFFTInit_C_16fc((QspsFFTSpec_C_16fc**)&r.rec, order, flag, 0, sp, ib);
        qspSetFlushToZero((int)ftz, nullptr);
        qspSetDenormAreZeros((int)daz, nullptr);
        break;
    }
    case 5: st = qspsFFTInit_C_32fc((QspsFFTSpec_C_32fc**)&r.rec, order, flag, 0, sp, ib); break;
    case 6: st = qspsFFTInit_C_32f((QspsFFTSpec_C_32f**)&r.rec, order, flag, 0, sp, ib); break;
    case 7: st = qspsFFTInit_R_32f((QspsFFTSpec_R_32f**)&r.rec, order, flag, 0, sp, ib); break;
    case 8: st = qspsFFTInit_C_64fc((QspsFFTSpec_C_64fc**)&r.rec, order, flag, 0, sp, ib); break;
    case 9: st = qspsFFTInit_C_64f((QspsFFTSpec_C_64f**)&r.rec, order, flag, 0, sp, ib); break;
    default: st = qspsFFTInit_R_64f((QspsFFTSpec_R_64f**)&r.rec, order, flag, 0, sp, ib); break;
    }
    EXPECT_EQ(st, qspStsOk);
    return r;
}

}  // namespace fftcalls

// SPDX-License-Identifier: BSD-3-Clause
// IIRGetStateSize: the bytes of caller memory an IIR state needs, alignment
// slack included. Each kind's size is the layout its initialiser builds
// (iir_state.h); the single-precision AR size is
// ((4N+19) & ~15) + ((8N+19) & ~15) + 4760 + 16 (2N+1).
#include "iir_state.h"
#include "qsp_validators.h"

namespace y8 {

using iir::Shape;

namespace {

// AR states of the sample type itself, and of other sample types (those
// also hold a block of converted samples).
template <class T>
QspStatus arSize(int order, int* pBufferSize, bool converts)
{
    return iir::getStateSize<T>(Shape::AR, converts, order, pBufferSize);
}

template <class T>
QspStatus biquadSize(int numBq, int* pBufferSize, Shape shape = Shape::BiQuad)
{
    return iir::getStateSize<T>(shape, false, numBq, pBufferSize);
}

}  // namespace

QspStatus qspsIIRGetStateSize_32f(int order, int* pBufferSize) { return arSize<float>(order, pBufferSize, false); }
QspStatus qspsIIRGetStateSize_BiQuad_32f(int numBq, int* pBufferSize) { return biquadSize<float>(numBq, pBufferSize); }
QspStatus qspsIIRGetStateSize_32fc(int order, int* pBufferSize) { return arSize<Qsp32fc>(order, pBufferSize, false); }
QspStatus qspsIIRGetStateSize_BiQuad_32fc(int numBq, int* pBufferSize)
{
    return biquadSize<Qsp32fc>(numBq, pBufferSize);
}
QspStatus qspsIIRGetStateSize32f_16s(int order, int* pBufferSize) { return arSize<float>(order, pBufferSize, true); }
QspStatus qspsIIRGetStateSize32f_BiQuad_16s(int numBq, int* pBufferSize)
{
    return biquadSize<float>(numBq, pBufferSize);
}
QspStatus qspsIIRGetStateSize32fc_16sc(int order, int* pBufferSize)
{
    return arSize<Qsp32fc>(order, pBufferSize, true);
}
QspStatus qspsIIRGetStateSize32fc_BiQuad_16sc(int numBq, int* pBufferSize)
{
    return biquadSize<Qsp32fc>(numBq, pBufferSize);
}
QspStatus qspsIIRGetStateSize_64f(int order, int* pBufferSize) { return arSize<double>(order, pBufferSize, false); }
QspStatus qspsIIRGetStateSize_BiQuad_64f(int numBq, int* pBufferSize) { return biquadSize<double>(numBq, pBufferSize); }
QspStatus qspsIIRGetStateSize_64fc(int order, int* pBufferSize) { return arSize<Qsp64fc>(order, pBufferSize, false); }
QspStatus qspsIIRGetStateSize_BiQuad_64fc(int numBq, int* pBufferSize)
{
    return biquadSize<Qsp64fc>(numBq, pBufferSize);
}
QspStatus qspsIIRGetStateSize64f_32f(int order, int* pBufferSize) { return arSize<double>(order, pBufferSize, true); }
QspStatus qspsIIRGetStateSize64f_BiQuad_32f(int numBq, int* pBufferSize)
{
    return biquadSize<double>(numBq, pBufferSize);
}
QspStatus qspsIIRGetStateSize64fc_32fc(int order, int* pBufferSize)
{
    return arSize<Qsp64fc>(order, pBufferSize, true);
}
QspStatus qspsIIRGetStateSize64fc_BiQuad_32fc(int numBq, int* pBufferSize)
{
    return biquadSize<Qsp64fc>(numBq, pBufferSize);
}
QspStatus qspsIIRGetStateSize64f_32s(int order, int* pBufferSize) { return arSize<double>(order, pBufferSize, true); }
QspStatus qspsIIRGetStateSize64f_BiQuad_32s(int numBq, int* pBufferSize)
{
    return biquadSize<double>(numBq, pBufferSize);
}
QspStatus qspsIIRGetStateSize64fc_32sc(int order, int* pBufferSize)
{
    return arSize<Qsp64fc>(order, pBufferSize, true);
}
QspStatus qspsIIRGetStateSize64fc_BiQuad_32sc(int numBq, int* pBufferSize)
{
    return biquadSize<Qsp64fc>(numBq, pBufferSize);
}
QspStatus qspsIIRGetStateSize64f_16s(int order, int* pBufferSize) { return arSize<double>(order, pBufferSize, true); }
QspStatus qspsIIRGetStateSize64f_BiQuad_16s(int numBq, int* pBufferSize)
{
    return biquadSize<double>(numBq, pBufferSize);
}
QspStatus qspsIIRGetStateSize64fc_16sc(int order, int* pBufferSize)
{
    return arSize<Qsp64fc>(order, pBufferSize, true);
}
QspStatus qspsIIRGetStateSize64fc_BiQuad_16sc(int numBq, int* pBufferSize)
{
    return biquadSize<Qsp64fc>(numBq, pBufferSize);
}
QspStatus qspsIIRGetStateSize_BiQuad_DF1_32f(int numBq, int* pBufferSize)
{
    return biquadSize<float>(numBq, pBufferSize, Shape::DF1);
}
QspStatus qspsIIRGetStateSize64f_BiQuad_DF1_32s(int numBq, int* pBufferSize)
{
    return biquadSize<double>(numBq, pBufferSize, Shape::DF1);
}

}  // namespace y8

// SPDX-License-Identifier: BSD-3-Clause
// IIRInit: builds an IIR state in the caller's buffer, at its first 32-byte
// boundary. Checks: the pointers (the delay line may be null: zeros), then
// the order or section count (below 1: qspStsBadFilterOrder; a state whose
// size does not fit an int: qspStsOverflow). Then the header and the delay
// line are written, and a0 = 0 (biquads: a0 or b0 = 0 in any section) gives
// qspStsZeroDivisor; the state's address is returned only for a complete
// state.
#include "checks.h"
#include "iir_state.h"
#include "qsp_validators.h"

namespace y8 {
namespace {

using iir::idOf;
using iir::Shape;

template <class T, class P, class V>
QspStatus initAR(int digits, P** ppState, const T* pTaps, int order, const V* pDlyLine, Qsp8u* pBuf,
                 bool converts)
{
    if (QspStatus s = check::pointers(ppState, pTaps, pBuf)) return s;
    if (order < 1) return qspStsBadFilterOrder;
    if (iir::stateBytes<T>(Shape::AR, order, converts) < 0) return qspStsOverflow;
    return iir::buildAR<T>(idOf(digits), reinterpret_cast<void**>(ppState), pTaps, order, pDlyLine, pBuf,
                           converts);
}

template <class T, class P, class V>
QspStatus initBiQuad(int digits, P** ppState, const T* pTaps, int numBq, const V* pDlyLine, Qsp8u* pBuf,
                     Shape shape = Shape::BiQuad)
{
    if (QspStatus s = check::pointers(ppState, pTaps, pBuf)) return s;
    if (numBq < 1) return qspStsBadFilterOrder;
    if (iir::stateBytes<T>(shape, numBq, false) < 0) return qspStsOverflow;
    return iir::buildBiQuad<T>(idOf(digits), shape, reinterpret_cast<void**>(ppState), pTaps, numBq, pDlyLine,
                               pBuf);
}

}  // namespace

QspStatus qspsIIRInit_32f(QspsIIRState_32f** ppState, const Qsp32f* pTaps, int order, const Qsp32f* pDlyLine,
                          Qsp8u* pBuf)
{
    return initAR(1, ppState, pTaps, order, pDlyLine, pBuf, false);
}
QspStatus qspsIIRInit_BiQuad_32f(QspsIIRState_32f** ppState, const Qsp32f* pTaps, int numBq,
                                 const Qsp32f* pDlyLine, Qsp8u* pBuf)
{
    return initBiQuad(2, ppState, pTaps, numBq, pDlyLine, pBuf);
}
QspStatus qspsIIRInit_32fc(QspsIIRState_32fc** ppState, const Qsp32fc* pTaps, int order, const Qsp32fc* pDlyLine,
                           Qsp8u* pBuf)
{
    return initAR(3, ppState, pTaps, order, pDlyLine, pBuf, false);
}
QspStatus qspsIIRInit_BiQuad_32fc(QspsIIRState_32fc** ppState, const Qsp32fc* pTaps, int numBq,
                                  const Qsp32fc* pDlyLine, Qsp8u* pBuf)
{
    return initBiQuad(4, ppState, pTaps, numBq, pDlyLine, pBuf);
}
QspStatus qspsIIRInit32f_16s(QspsIIRState32f_16s** ppState, const Qsp32f* pTaps, int order, const Qsp32f* pDlyLine,
                             Qsp8u* pBuf)
{
    return initAR(5, ppState, pTaps, order, pDlyLine, pBuf, true);
}
QspStatus qspsIIRInit32f_BiQuad_16s(QspsIIRState32f_16s** ppState, const Qsp32f* pTaps, int numBq,
                                    const Qsp32f* pDlyLine, Qsp8u* pBuf)
{
    return initBiQuad(6, ppState, pTaps, numBq, pDlyLine, pBuf);
}
QspStatus qspsIIRInit32fc_16sc(QspsIIRState32fc_16sc** ppState, const Qsp32fc* pTaps, int order,
                               const Qsp32fc* pDlyLine, Qsp8u* pBuf)
{
    return initAR(7, ppState, pTaps, order, pDlyLine, pBuf, true);
}
QspStatus qspsIIRInit32fc_BiQuad_16sc(QspsIIRState32fc_16sc** ppState, const Qsp32fc* pTaps, int numBq,
                                      const Qsp32fc* pDlyLine, Qsp8u* pBuf)
{
    return initBiQuad(8, ppState, pTaps, numBq, pDlyLine, pBuf);
}
QspStatus qspsIIRInit_64f(QspsIIRState_64f** ppState, const Qsp64f* pTaps, int order, const Qsp64f* pDlyLine,
                          Qsp8u* pBuf)
{
    return initAR(13, ppState, pTaps, order, pDlyLine, pBuf, false);
}
QspStatus qspsIIRInit_BiQuad_64f(QspsIIRState_64f** ppState, const Qsp64f* pTaps, int numBq,
                                 const Qsp64f* pDlyLine, Qsp8u* pBuf)
{
    return initBiQuad(14, ppState, pTaps, numBq, pDlyLine, pBuf);
}
QspStatus qspsIIRInit_64fc(QspsIIRState_64fc** ppState, const Qsp64fc* pTaps, int order, const Qsp64fc* pDlyLine,
                           Qsp8u* pBuf)
{
    return initAR(15, ppState, pTaps, order, pDlyLine, pBuf, false);
}
QspStatus qspsIIRInit_BiQuad_64fc(QspsIIRState_64fc** ppState, const Qsp64fc* pTaps, int numBq,
                                  const Qsp64fc* pDlyLine, Qsp8u* pBuf)
{
    return initBiQuad(16, ppState, pTaps, numBq, pDlyLine, pBuf);
}
QspStatus qspsIIRInit64f_32f(QspsIIRState64f_32f** ppState, const Qsp64f* pTaps, int order, const Qsp64f* pDlyLine,
                             Qsp8u* pBuf)
{
    return initAR(17, ppState, pTaps, order, pDlyLine, pBuf, true);
}
QspStatus qspsIIRInit64f_BiQuad_32f(QspsIIRState64f_32f** ppState, const Qsp64f* pTaps, int numBq,
                                    const Qsp64f* pDlyLine, Qsp8u* pBuf)
{
    return initBiQuad(18, ppState, pTaps, numBq, pDlyLine, pBuf);
}
QspStatus qspsIIRInit64fc_32fc(QspsIIRState64fc_32fc** ppState, const Qsp64fc* pTaps, int order,
                               const Qsp64fc* pDlyLine, Qsp8u* pBuf)
{
    return initAR(19, ppState, pTaps, order, pDlyLine, pBuf, true);
}
QspStatus qspsIIRInit64fc_BiQuad_32fc(QspsIIRState64fc_32fc** ppState, const Qsp64fc* pTaps, int numBq,
                                      const Qsp64fc* pDlyLine, Qsp8u* pBuf)
{
    return initBiQuad(20, ppState, pTaps, numBq, pDlyLine, pBuf);
}
QspStatus qspsIIRInit64f_32s(QspsIIRState64f_32s** ppState, const Qsp64f* pTaps, int order, const Qsp64f* pDlyLine,
                             Qsp8u* pBuf)
{
    return initAR(21, ppState, pTaps, order, pDlyLine, pBuf, true);
}
QspStatus qspsIIRInit64f_BiQuad_32s(QspsIIRState64f_32s** ppState, const Qsp64f* pTaps, int numBq,
                                    const Qsp64f* pDlyLine, Qsp8u* pBuf)
{
    return initBiQuad(22, ppState, pTaps, numBq, pDlyLine, pBuf);
}
QspStatus qspsIIRInit64fc_32sc(QspsIIRState64fc_32sc** ppState, const Qsp64fc* pTaps, int order,
                               const Qsp64fc* pDlyLine, Qsp8u* pBuf)
{
    return initAR(23, ppState, pTaps, order, pDlyLine, pBuf, true);
}
QspStatus qspsIIRInit64fc_BiQuad_32sc(QspsIIRState64fc_32sc** ppState, const Qsp64fc* pTaps, int numBq,
                                      const Qsp64fc* pDlyLine, Qsp8u* pBuf)
{
    return initBiQuad(24, ppState, pTaps, numBq, pDlyLine, pBuf);
}
QspStatus qspsIIRInit64f_16s(QspsIIRState64f_16s** ppState, const Qsp64f* pTaps, int order, const Qsp64f* pDlyLine,
                             Qsp8u* pBuf)
{
    return initAR(25, ppState, pTaps, order, pDlyLine, pBuf, true);
}
QspStatus qspsIIRInit64f_BiQuad_16s(QspsIIRState64f_16s** ppState, const Qsp64f* pTaps, int numBq,
                                    const Qsp64f* pDlyLine, Qsp8u* pBuf)
{
    return initBiQuad(26, ppState, pTaps, numBq, pDlyLine, pBuf);
}
QspStatus qspsIIRInit64fc_16sc(QspsIIRState64fc_16sc** ppState, const Qsp64fc* pTaps, int order,
                               const Qsp64fc* pDlyLine, Qsp8u* pBuf)
{
    return initAR(27, ppState, pTaps, order, pDlyLine, pBuf, true);
}
QspStatus qspsIIRInit64fc_BiQuad_16sc(QspsIIRState64fc_16sc** ppState, const Qsp64fc* pTaps, int numBq,
                                      const Qsp64fc* pDlyLine, Qsp8u* pBuf)
{
    return initBiQuad(28, ppState, pTaps, numBq, pDlyLine, pBuf);
}
QspStatus qspsIIRInit_BiQuad_DF1_32f(QspsIIRState_32f** ppState, const Qsp32f* pTaps, int numBq,
                                     const Qsp32f* pDlyLine, Qsp8u* pBuf)
{
    return initBiQuad(29, ppState, pTaps, numBq, pDlyLine, pBuf, Shape::DF1);
}
QspStatus qspsIIRInit64f_BiQuad_DF1_32s(QspsIIRState64f_32s** ppState, const Qsp64f* pTaps, int numBq,
                                        const Qsp32s* pDlyLine, Qsp8u* pBuf)
{
    return initBiQuad(30, ppState, pTaps, numBq, pDlyLine, pBuf, Shape::DF1);
}

}  // namespace y8

// SPDX-License-Identifier: BSD-3-Clause
// FIRGen: linear-phase FIR design by the window method. The ideal response
// of the band (a lowpass, a highpass, a bandpass or a bandstop) is sampled
// around the centre M = (N - 1) / 2 of the N taps,
//     lowpass  h[n] = sin(2 pi fc k) / (pi k),  k = n - M   (2 fc at k = 0)
//     highpass d[n] - lowpass(fc)
//     bandpass lowpass(fh) - lowpass(fl)
//     bandstop d[n] - bandpass(fl, fh)
// with d[n] the unit sample at the centre, multiplied by one of the
// library's windows of length N, and optionally scaled to unit gain at the
// centre of the pass band. The taps are formed in double precision in the
// work buffer and rounded once to the destination type.
#include "checks.h"
#include "mathfn/sincospi.h"
#include "qsp_validators.h"

namespace y8 {
namespace {

enum class Band { lowpass, highpass, bandpass, bandstop };

constexpr int kShortest = 3;
constexpr double kPi = 3.141592653589793;

// A tap count below 1 is not a filter; below 3 there is no window; a
// highpass or bandstop keeps its gain at half the sampling rate only with
// an odd count (an even-length symmetric filter has a zero there).
QspStatus lengthCheck(int tapsLen, Band band)
{
    if (tapsLen < 1) return qspStsBadTapCount;
    if (tapsLen < kShortest) return qspStsBadSize;
    if ((band == Band::highpass || band == Band::bandstop) && tapsLen % 2 == 0) return qspStsBadSize;
    return qspStsOk;
}

bool inBand(double f) { return f > 0.0 && f < 0.5; }

// 2 fc sinc(2 fc k) for the k of every tap, added with the sign given.
void addLowpass(double* h, int n, double fc, double sign)
{
    const double centre = 0.5 * (n - 1);
    for (int i = 0; i < n; ++i) {
        const double k = i - centre;
        h[i] += sign * (k == 0.0 ? 2.0 * fc : mathfn::sinPi(2.0 * fc * k) / (kPi * k));
    }
}

QspStatus applyWindow(double* h, int n, QspWinType winType)
{
    switch (winType) {
    case qspWinBartlett: return qspsWinBartlett_64f_I(h, n);
    case qspWinBlackman: return qspsWinBlackmanStd_64f_I(h, n);
    case qspWinHamming: return qspsWinHamming_64f_I(h, n);
    case qspWinHann: return qspsWinHann_64f_I(h, n);
    default: return qspStsOk;  // rectangular
    }
}

// The amplitude of the linear-phase response at relative frequency f:
// the sum of h[n] cos(2 pi f (n - M)).
double amplitudeAt(const double* h, int n, double f)
{
    const double centre = 0.5 * (n - 1);
    double sum = 0.0;
    for (int i = 0; i < n; ++i) sum += h[i] * mathfn::cosPi(2.0 * f * (i - centre));
    return sum;
}

void design(double* h, int n, Band band, double lo, double hi, QspWinType winType, int doNormal)
{
    for (int i = 0; i < n; ++i) h[i] = 0.0;
    switch (band) {
    case Band::lowpass: addLowpass(h, n, lo, 1.0); break;
    case Band::highpass: addLowpass(h, n, lo, -1.0), h[n / 2] += 1.0; break;
    case Band::bandpass: addLowpass(h, n, hi, 1.0), addLowpass(h, n, lo, -1.0); break;
    case Band::bandstop: addLowpass(h, n, lo, 1.0), addLowpass(h, n, hi, -1.0), h[n / 2] += 1.0; break;
    }
    applyWindow(h, n, winType);
    if (doNormal) {
        // Unit gain at DC (lowpass, bandstop), at half the sampling rate
        // (highpass) or at the band's centre (bandpass).
        const double at = band == Band::highpass ? 0.5 : band == Band::bandpass ? 0.5 * (lo + hi) : 0.0;
        const double scale = 1.0 / amplitudeAt(h, n, at);
        for (int i = 0; i < n; ++i) h[i] *= scale;
    }
}

void store(const double* h, Qsp32f* pTaps, int n) { qspsConvert_64f32f(h, pTaps, n); }
void store(const double* h, Qsp64f* pTaps, int n) { qspsCopy_64f(h, pTaps, n); }

template <class T>
QspStatus firGen(T* pTaps, int tapsLen, double lo, double hi, QspWinType winType, int doNormal, Qsp8u* pBuffer,
                 Band band)
{
    if (QspStatus s = check::pointers(pTaps, pBuffer)) return s;
    if (QspStatus s = lengthCheck(tapsLen, band)) return s;
    const bool twoEdges = band == Band::bandpass || band == Band::bandstop;
    if (!inBand(lo) || (twoEdges && !(inBand(hi) && lo < hi))) return qspStsBadRelFreq;
    if (winType < qspWinBartlett || winType > qspWinRect) return qspStsBadArgument;
    double* h = reinterpret_cast<double*>((reinterpret_cast<Qsp64u>(pBuffer) + 15) & ~Qsp64u(15));
    design(h, tapsLen, band, lo, hi, winType, doNormal);
    store(h, pTaps, tapsLen);
    return qspStsOk;
}

}  // namespace

QspStatus qspsFIRGenGetBufferSize(int tapsLen, int* pBufferSize)
{
    if (QspStatus s = check::pointers(pBufferSize)) return s;
    if (tapsLen < 1) return qspStsBadTapCount;
    const Qsp64s bytes = Qsp64s(tapsLen) * 8 + 15;
    if (bytes > 0x7FFFFFFF) return qspStsOverflow;
    *pBufferSize = int(bytes);
    return qspStsOk;
}

QspStatus qspsFIRGenLowpass_32f(Qsp32f* pTaps, int tapsLen, Qsp32f rFreq, QspWinType winType, int doNormal,
                                Qsp8u* pBuffer)
{
    return firGen(pTaps, tapsLen, rFreq, 0.0, winType, doNormal, pBuffer, Band::lowpass);
}
QspStatus qspsFIRGenLowpass_64f(Qsp64f* pTaps, int tapsLen, Qsp64f rFreq, QspWinType winType, int doNormal,
                                Qsp8u* pBuffer)
{
    return firGen(pTaps, tapsLen, rFreq, 0.0, winType, doNormal, pBuffer, Band::lowpass);
}
QspStatus qspsFIRGenHighpass_32f(Qsp32f* pTaps, int tapsLen, Qsp32f rFreq, QspWinType winType, int doNormal,
                                 Qsp8u* pBuffer)
{
    return firGen(pTaps, tapsLen, rFreq, 0.0, winType, doNormal, pBuffer, Band::highpass);
}
QspStatus qspsFIRGenHighpass_64f(Qsp64f* pTaps, int tapsLen, Qsp64f rFreq, QspWinType winType, int doNormal,
                                 Qsp8u* pBuffer)
{
    return firGen(pTaps, tapsLen, rFreq, 0.0, winType, doNormal, pBuffer, Band::highpass);
}
QspStatus qspsFIRGenBandpass_32f(Qsp32f* pTaps, int tapsLen, Qsp32f rLowFreq, Qsp32f rHighFreq, QspWinType winType,
                                 int doNormal, Qsp8u* pBuffer)
{
    return firGen(pTaps, tapsLen, rLowFreq, rHighFreq, winType, doNormal, pBuffer, Band::bandpass);
}
QspStatus qspsFIRGenBandpass_64f(Qsp64f* pTaps, int tapsLen, Qsp64f rLowFreq, Qsp64f rHighFreq, QspWinType winType,
                                 int doNormal, Qsp8u* pBuffer)
{
    return firGen(pTaps, tapsLen, rLowFreq, rHighFreq, winType, doNormal, pBuffer, Band::bandpass);
}
QspStatus qspsFIRGenBandstop_32f(Qsp32f* pTaps, int tapsLen, Qsp32f rLowFreq, Qsp32f rHighFreq, QspWinType winType,
                                 int doNormal, Qsp8u* pBuffer)
{
    return firGen(pTaps, tapsLen, rLowFreq, rHighFreq, winType, doNormal, pBuffer, Band::bandstop);
}
QspStatus qspsFIRGenBandstop_64f(Qsp64f* pTaps, int tapsLen, Qsp64f rLowFreq, Qsp64f rHighFreq, QspWinType winType,
                                 int doNormal, Qsp8u* pBuffer)
{
    return firGen(pTaps, tapsLen, rLowFreq, rHighFreq, winType, doNormal, pBuffer, Band::bandstop);
}

}  // namespace y8

// SPDX-License-Identifier: BSD-3-Clause
// WinKaiser: w(k) = I0(beta sqrt(1 - r^2)) / I0(beta), r = (2k - (N-1))/(N-1),
// beta = 0.5 |alpha| (N-1), N >= 1; beta above 308 is
// qspStsBadWindowParam.
//
// I0 is the library's polynomial approximation (relative error below
// 1.6e-9 under 4 and below 5.6e-6 from 4 on, against the true function):
//   x < 4:   I0(x) = S(t), t = (x/4)^2, S of degree 7 below
//   x >= 4:  I0(x) = e^x / sqrt(x) P(4/x), P of degree 12 below
// beta is formed in double from alpha as given (a float for every form
// but 64f and 64fc). The 64f, 64fc, 16s and 16sc forms evaluate in double,
// as written: w = I0(x) times 1/I0(beta). The 32f and 32fc forms evaluate
// the polynomials in single precision, where e^beta overflows above 88.7,
// so the exponentials are paired first:
//   w = e^(x-beta) sqrt(beta/x) P(4/x)/P(4/beta)    for x >= 4
//   w = S(t) e^-beta sqrt(beta)/P(4/beta)           below,
// with x - beta = -beta r^2/(1 + sqrt(1 - r^2)) formed in double without
// cancellation and the exponential taken by the library's double
// exponential and rounded.
//
// sqrt(1 - r^2) is formed as 2 sqrt(k (N-1-k)) / (N-1): exact up to the
// root and the division.
#include <type_traits>

#include "mathfn/exp.h"
#include "qsp_validators.h"
#include "window.h"

namespace y8 {
namespace {

// S(t) and P(u) by Horner's rule with the coefficients as given, highest
// power first, in the precision F.
template <class F>
F smallSeries(F t)
{
    constexpr double c[] = {0.0008267816, 0.0075942968, 0.0713758187, 0.4443189384,
                            1.777809969,  3.9999959541, 4.0000001935, 0.9999999985};
    F s = F(c[0]);
    for (int i = 1; i < 8; ++i) s = s * t + F(c[i]);
    return s;
}
template <class F>
F largeSeries(F u)
{
    constexpr double c[] = {0.0051246015,  -0.0366694767, 0.1113315511,  -0.1867783276, 0.1895476618,
                            -0.1209940805, 0.0495811118,  -0.0128314822, 0.0022585672,  0.00026,
                            0.0017623668,  0.0124667783,  0.3989422809};
    F s = F(c[0]);
    for (int i = 1; i < 13; ++i) s = s * u + F(c[i]);
    return s;
}

float sqrtF(float x) { return _mm_cvtss_f32(_mm_sqrt_ss(_mm_set_ss(x))); }

// sqrt(1 - r^2) for element k of a window of N = m + 1 elements.
double rootOf(int k, int m)
{
    return 2.0 * mathfn::qspsSqrtOne(double(k) * double(m - k)) / double(m);
}

// I0 in double, as the approximation states it.
double besselI0(double x)
{
    if (x < 4.0) {
        const double q = x * 0.25;
        return smallSeries(q * q);
    }
    return mathfn::qspsExpOne(x) / mathfn::qspsSqrtOne(x) * largeSeries(4.0 / x);
}

// Double-precision weights: I0(beta sqrt(1 - r^2)) / I0(beta).
class KaiserWeights {
public:
    KaiserWeights(int len, double beta) : beta_(beta), inv_(1.0 / besselI0(beta)), m_(len - 1) {}
    void fill(double* w, int count)
    {
        for (int j = 0; j < count; ++j, ++k_) w[j] = besselI0(beta_ * rootOf(k_, m_)) * inv_;
    }

private:
    double beta_, inv_;
    int m_, k_ = 0;
};

// Single-precision weights with the exponentials paired. beta stays in double
// where it enters an exponent, so that its rounding to single precision
// does not scale the weights.
class KaiserWeights32f {
public:
    KaiserWeights32f(int len, double beta) : m_(len - 1), beta_(beta), betaF_(float(beta))
    {
        if (betaF_ < 4.0f) {
            const float q = betaF_ * 0.25f;
            small_ = 1.0f / smallSeries(q * q);
        } else {
            // 1/I0(beta) = e^-beta sqrt(beta)/P(4/beta).
            invP_ = 1.0f / largeSeries(4.0f / betaF_);
            small_ = float(mathfn::qspsExpOne(-beta)) * sqrtF(betaF_) * invP_;
        }
    }
    void fill(double* w, int count)
    {
        for (int j = 0; j < count; ++j, ++k_) w[j] = weight(k_);
    }

private:
    float weight(int k) const
    {
        const double root = rootOf(k, m_);
        const float x = float(beta_ * root);
        if (!(x >= 4.0f)) {
            const float q = x * 0.25f;
            return smallSeries(q * q) * small_;
        }
        const double r = double(m_ - 2 * k) / double(m_);
        const double exponent = -beta_ * (r * r) / (1.0 + root);  // x - beta
        const float e = float(mathfn::qspsExpOne(exponent));
        return e * sqrtF(betaF_ / x) * largeSeries(4.0f / x) * invP_;
    }

    int m_, k_ = 0;
    double beta_;
    float betaF_, small_ = 0, invP_ = 0;
};

// beta in double from alpha as given; rejected above 308 before anything is
// written.
template <class T, class A>
QspStatus kaiser(const T* pSrc, T* pDst, int len, A alpha)
{
    if (QspStatus s = window::check(pSrc, pDst, len, 1)) return s;
    const double beta = 0.5 * __builtin_fabs(double(alpha)) * double(len - 1);
    if (beta > 308.0) return qspStsBadWindowParam;
    if constexpr (std::is_same_v<T, Qsp32f> || std::is_same_v<T, Qsp32fc>) {
        KaiserWeights32f weights(len, beta);
        window::apply(pSrc, pDst, len, weights);
    } else {
        KaiserWeights weights(len, beta);
        window::apply(pSrc, pDst, len, weights);
    }
    return qspStsOk;
}

}  // namespace

QspStatus qspsWinKaiser_16s(const Qsp16s* pSrc, Qsp16s* pDst, int len, Qsp32f alpha) { return kaiser(pSrc, pDst, len, alpha); }
QspStatus qspsWinKaiser_16s_I(Qsp16s* pSrcDst, int len, Qsp32f alpha) { return kaiser(pSrcDst, pSrcDst, len, alpha); }
QspStatus qspsWinKaiser_16sc(const Qsp16sc* pSrc, Qsp16sc* pDst, int len, Qsp32f alpha) { return kaiser(pSrc, pDst, len, alpha); }
QspStatus qspsWinKaiser_16sc_I(Qsp16sc* pSrcDst, int len, Qsp32f alpha) { return kaiser(pSrcDst, pSrcDst, len, alpha); }
QspStatus qspsWinKaiser_32f(const Qsp32f* pSrc, Qsp32f* pDst, int len, Qsp32f alpha) { return kaiser(pSrc, pDst, len, alpha); }
QspStatus qspsWinKaiser_32f_I(Qsp32f* pSrcDst, int len, Qsp32f alpha) { return kaiser(pSrcDst, pSrcDst, len, alpha); }
QspStatus qspsWinKaiser_32fc(const Qsp32fc* pSrc, Qsp32fc* pDst, int len, Qsp32f alpha) { return kaiser(pSrc, pDst, len, alpha); }
QspStatus qspsWinKaiser_32fc_I(Qsp32fc* pSrcDst, int len, Qsp32f alpha) { return kaiser(pSrcDst, pSrcDst, len, alpha); }
QspStatus qspsWinKaiser_64f(const Qsp64f* pSrc, Qsp64f* pDst, int len, Qsp64f alpha) { return kaiser(pSrc, pDst, len, alpha); }
QspStatus qspsWinKaiser_64f_I(Qsp64f* pSrcDst, int len, Qsp64f alpha) { return kaiser(pSrcDst, pSrcDst, len, alpha); }
QspStatus qspsWinKaiser_64fc(const Qsp64fc* pSrc, Qsp64fc* pDst, int len, Qsp64f alpha) { return kaiser(pSrc, pDst, len, alpha); }
QspStatus qspsWinKaiser_64fc_I(Qsp64fc* pSrcDst, int len, Qsp64f alpha) { return kaiser(pSrcDst, pSrcDst, len, alpha); }

}  // namespace y8

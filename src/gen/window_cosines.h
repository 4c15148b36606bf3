// SPDX-License-Identifier: BSD-3-Clause
// The cosine windows' weights: c(k) = cos(k t), k = 0, 1, 2, ..., produced
// from two seeds, cos t and cos 2t, by the three-term recurrence
//     cos((k+1)x) = 2 cos x cos kx - cos((k-1)x),
// and turned into weights by the family's formula.
//
// The first sixteen values come from the recurrence with x = t. From there
// on eight interleaved chains carry on, chain j holding cos((j + 8m) t) and
// stepping by x = 8t, with the coefficient 2 cos 8t formed from the second
// seed by two doublings (cos 2y = 2 cos^2 y - 1). The chains are
// independent, so four registers of two lanes step at once; and the wider
// step is better conditioned: a rounding error of a step is carried on
// scaled by up to 1/sin x, and a chain takes an eighth of the steps.
// What remains is the drift that the seed's own rounding causes, which
// grows with k^2: window weights are within 2^-51 + N^2 2^-59 of the
// closed formula (measured: at most 0.006 N^2 2^-53 up to N = 10^6).
#pragma once
#include "mathfn/trig.h"
#include "qspdefs.h"
#include "simd.h"

namespace window {

class CosineSeries {
public:
    using VD = simd::Vec<double>;
    using Reg = VD::Reg;

    CosineSeries(double cos1, double cos2)
    {
        head_[0] = 1.0;
        head_[1] = cos1;
        head_[2] = cos2;
        for (int k = 2; k < 15; ++k) head_[k + 1] = 2.0 * cos1 * head_[k] - head_[k - 1];
        const double cos4 = 2.0 * cos2 * cos2 - 1.0, cos8 = 2.0 * cos4 * cos4 - 1.0;
        coef_ = VD::splat(2.0 * cos8);
        for (int r = 0; r < 4; ++r) {
            low_[r] = VD::loadu(head_ + 2 * r);
            high_[r] = VD::loadu(head_ + 8 + 2 * r);
        }
    }

    // The next count values. Every call but the last asks for a multiple
    // of eight.
    void fill(double* c, int count)
    {
        int j = 0;
        for (; j < count && k_ < 16; ++j, ++k_) c[j] = head_[k_];
        for (; j < count; j += 8, k_ += 8) {
            for (int r = 0; r < 4; ++r) {
                const Reg next = VD::sub(VD::mul(coef_, high_[r]), low_[r]);
                low_[r] = high_[r];
                high_[r] = next;
            }
            if (j + 8 <= count) {
                for (int r = 0; r < 4; ++r) VD::storeu(c + j + 2 * r, high_[r]);
            } else {
                alignas(16) double last[8];
                for (int r = 0; r < 4; ++r) VD::store(last + 2 * r, high_[r]);
                for (int i = 0; j + i < count; ++i) c[j + i] = last[i];
            }
        }
    }

private:
    double head_[16];
    Reg coef_, low_[4], high_[4];
    int k_ = 0;
};

// A weight source for window::apply: the cosines of the series mapped by
// formula(c), a function of a register of cosines.
template <class Formula>
class CosineWeights {
public:
    CosineWeights(double cos1, double cos2, Formula formula) : series_(cos1, cos2), formula_(formula) {}
    void fill(double* w, int count)
    {
        using VD = simd::Vec<double>;
        series_.fill(w, count);
        int j = 0;
        for (; j + 2 <= count; j += 2) VD::store(w + j, formula_(VD::load(w + j)));
        if (j < count) w[j] = _mm_cvtsd_f64(formula_(VD::splat(w[j])));
    }

private:
    CosineSeries series_;
    Formula formula_;
};

// The weights of a cosine window of len elements: t = 2 pi/(N-1), formed
// as 6.283185307179586 times 1/(N-1), and the seeds cos t and cos 2t by the
// library's cosine.
template <class Formula>
CosineWeights<Formula> cosineWeights(int len, Formula formula)
{
    const double t = 6.283185307179586 * (1.0 / double(len - 1));
    return CosineWeights<Formula>(mathfn::qspsCosOne(t), mathfn::qspsCosOne(2.0 * t), formula);
}

}  // namespace window

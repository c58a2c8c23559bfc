#pragma once

#include "dspclasses/blocks/CResetRequest.h"
#include "dspclasses/blocks/FilterCoefficients.h"
#include "dspclasses/kernels/StereoFrames.h"
#include "dspclasses/modules/CDSPBase.h"
#include "values/TRelaxed.h"

/// Three-band equaliser. Two one-pole low-passes split each channel, and the mid and the high band
/// are differences: at 0 dB the sum is the input, up to rounding, whatever the crossovers.
///
///     x --+-----------------------------------------> + --> * high gain --+
///         |                                           ^ -                 |
///         +--> low-pass at the high crossover --+-----+                   v
///         |                                     |                         + --> y
///         |                                     +---> + --> * mid gain ---^
///         |                                           ^ -                 |
///         +--> low-pass at the low crossover ---+-----+                   |
///                                               |                         |
///                                               +---------> * low gain ---+
class CDSP3EQ : public CDSPBase {
public:
    enum EParameter : int {
        kLowGain,        ///< dB
        kMidGain,        ///< dB
        kHighGain,       ///< dB
        kLowCrossover,   ///< low to mid, Hz
        kHighCrossover,  ///< mid to high, Hz; both below a sixth of the sample rate, not checked
    };

    /// A new crossover also clears the filters, which can be heard as a small step.
    void setParameter(int index, float value) override;
    float getParameter(int index) override;
    void processReplacing(float **in, float **out, int frames) override;
    void processDoubleReplacing(double **in, double **out, int frames) override;
    void reset() override;

private:
    /// Both channels, for runGuarded.
    struct SFilter {
        SDoubles2 lowCoef{}, highCoef{};
        SDoubles2 lowGain{}, midGain{}, highGain{};
        SDoubles2 low{}, high{};  // outputs of the two low-passes

        template <typename Guard>
        SDoubles2 step(SDoubles2 x, Guard &guard) {
            low = guard.flush(low + (x - low) * lowCoef);
            high = guard.flush(high + (x - high) * highCoef);
            return (x - high) * highGain + (high - low) * midGain + low * lowGain;
        }
    };

    void setGain(TRelaxed<float> &decibels, TRelaxed<double> &gain, float value);
    void setCrossover(TRelaxed<float> &crossover, TRelaxed<double> &coefficient, float value);

    template <typename Sample>
    void run(Sample *const *in, Sample *const *out, int frames);

    SFilter filter;  // receives coefficients and gains before each group of frames
    TRelaxed<double> lowCoef = bandSplitCoefficient(350.0f, invSampleRate);
    TRelaxed<double> highCoef = bandSplitCoefficient(1500.0f, invSampleRate);
    TRelaxed<double> lowGain = 1.0, midGain = 1.0, highGain = 1.0;   // linear
    TRelaxed<float> lowCrossover = 350.0f, highCrossover = 1500.0f;  // Hz
    TRelaxed<float> lowDb = 0.0f, midDb = 0.0f, highDb = 0.0f;
    CResetRequest resetRequest;
};

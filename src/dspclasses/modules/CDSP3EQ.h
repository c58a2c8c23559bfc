#pragma once

#include "dspclasses/blocks/CResetRequest.h"
#include "dspclasses/modules/CDSPBase.h"
#include "values/TRelaxed.h"

/// Three-band equaliser: two one-pole low-passes split each channel, and the bands are differences,
/// so that at unity gains they sum to the input whatever the crossovers are.
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
    double smoothingFactor(float crossover) const;
    void setGain(TRelaxed<float> &decibels, TRelaxed<double> &gain, float value);
    void setCrossover(TRelaxed<float> &crossover, TRelaxed<double> &coefficient, float value);

    template <typename Sample>
    void run(Sample *const *in, Sample *const *out, int frames);

    TRelaxed<double> lowCoef = smoothingFactor(350.0f);
    TRelaxed<double> highCoef = smoothingFactor(1500.0f);
    TRelaxed<double> lowGain = 1.0, midGain = 1.0, highGain = 1.0;  // linear
    double lowStateLeft = 0.0, lowStateRight = 0.0;
    double highStateLeft = 0.0, highStateRight = 0.0;
    TRelaxed<float> lowCrossover = 350.0f, highCrossover = 1500.0f;  // Hz
    TRelaxed<float> lowDb = 0.0f, midDb = 0.0f, highDb = 0.0f;
    CResetRequest resetRequest;
};

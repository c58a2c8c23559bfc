#pragma once

#include "dspclasses/modules/CDSPBase.h"
#include "values/TRelaxed.h"

/// Level; -60 dB and below is silence. It has one parameter and ignores the index.
class CDSPGain : public CDSPBase {
public:
    enum EParameter : int {
        kLevel,  ///< dB
    };

    void setParameter(int index, float value) override;
    float getParameter(int index) override;
    void processReplacing(float **in, float **out, int frames) override;
    void processDoubleReplacing(double **in, double **out, int frames) override;

private:
    template <typename Sample>
    void run(const Sample *const *in, Sample *const *out, int frames) const;

    TRelaxed<float> gain = 1.0f;  // linear
    TRelaxed<float> decibels = 0.0f;
};

#pragma once

#include "dspclasses/modules/CDSPBase.h"
#include "values/TRelaxed.h"

/// Attenuates one side and leaves the other at unity. It has one parameter and ignores the index.
class CDSPBalance : public CDSPBase {
public:
    enum EParameter : int {
        kPosition,  ///< 0, left only, to 1, right only; 0.5 in the middle
    };

    void setParameter(int index, float value) override;
    float getParameter(int index) override;
    void processReplacing(float **in, float **out, int frames) override;
    void processDoubleReplacing(double **in, double **out, int frames) override;

private:
    template <typename Sample>
    void run(const Sample *const *in, Sample *const *out, int frames) const;

    TRelaxed<float> balance = 0.5f;
    TRelaxed<float> leftGain = 1.0f;   // linear
    TRelaxed<float> rightGain = 1.0f;  // linear
};

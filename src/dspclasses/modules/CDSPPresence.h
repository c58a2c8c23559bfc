#pragma once

#include "dspclasses/modules/CDSPRBJFilter.h"

/// A peaking band half an octave wide; CDSPRBJFilter does the work.
class CDSPPresence : public CDSPBase {
public:
    enum EParameter : int {
        kFrequency,  ///< Hz
        kGain,       ///< dB
    };

    void setParameter(int index, float value) override;
    float getParameter(int index) override;
    void processReplacing(float **in, float **out, int frames) override;
    void processDoubleReplacing(double **in, double **out, int frames) override;
    void reset() override;

private:
    TRelaxed<float> frequency = 2000.0f;  // as set, Hz
    TRelaxed<float> gainDb = 0.0f;        // as set, dB
    CDSPRBJFilter filter{CDSPRBJFilter::EKind::Peaking, 2000.0f, 0.0f, 0.5f, true};
};

#pragma once

#include "dspclasses/modules/CDSPRBJFilter.h"

/// A peaking band of any width; CDSPRBJFilter does the work.
class CDSPParametric : public CDSPBase {
public:
    enum EParameter : int {
        kFrequency,  ///< Hz
        kBandwidth,  ///< octaves
        kGain,       ///< dB
    };

    void setParameter(int index, float value) override;
    float getParameter(int index) override;
    void processReplacing(float **in, float **out, int frames) override;
    void processDoubleReplacing(double **in, double **out, int frames) override;
    void reset() override;

private:
    TRelaxed<float> frequency = 440.0f;  // as set, Hz
    TRelaxed<float> bandwidth = 0.5f;    // as set, octaves
    TRelaxed<float> gainDb = 0.0f;       // as set, dB
    CDSPRBJFilter filter{CDSPRBJFilter::EKind::Peaking, 440.0f, 0.0f, 0.5f, true};
};

#pragma once

#include "dspclasses/modules/CDSPBase.h"
#include "values/TRelaxed.h"

/// Waveshaper: Schlick's bias curve, from the identity at 0 to a strong bend at 1. It has one
/// parameter and ignores the index.
///
///     x --> x / ((x - 1) k + x) --> y    with k = 1 - 1 / bias, bias = 0.5 + 0.2 * warmth
///
/// Kept: the curve is applied to the signed sample, so that the two half-waves bend differently,
/// which adds the even harmonics. Kept: it has a pole at x = k / (1 + k), -0.75 at full warmth, and
/// nothing guards it.
/// Source: C. Schlick, Fast alternatives to Perlin's bias and gain functions, Graphics Gems IV.
class CDSPWarmer : public CDSPBase {
public:
    enum EParameter : int {
        kWarmth,  ///< 0 to 1
    };

    void setParameter(int index, float value) override;
    float getParameter(int index) override;
    void processReplacing(float **in, float **out, int frames) override;
    void processDoubleReplacing(double **in, double **out, int frames) override;

private:
    TRelaxed<float> curve = -1.0f;  // 1 - 1 / bias
    TRelaxed<float> bias = 0.5f;    // 0.5 to 0.7, from warmth
    TRelaxed<float> warmth = 0.0f;
};

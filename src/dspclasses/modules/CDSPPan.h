#pragma once

#include "dspclasses/modules/CDSPBase.h"
#include "values/TRelaxed.h"

/// Moves one input across the stereo image while the other stays where it is: the right input left
/// of the middle, the left input in the middle and right of it. The one parameter is set whatever
/// the index.
class CDSPPan : public CDSPBase {
public:
    enum EParameter : int {
        kPosition,  ///< 0 to 1
    };

    void setParameter(int index, float value) override;
    float getParameter(int index) override;
    void processReplacing(float **in, float **out, int frames) override;
    void processDoubleReplacing(double **in, double **out, int frames) override;

private:
    void spreadRightInput(float spread);  // with the position left of the middle
    void spreadLeftInput(float spread);
    template <typename Sample>
    void run(const Sample *const *in, Sample *const *out, int frames) const;

    TRelaxed<float> pan = 0.5f;
    // The last spread of each half, 0 in the middle and 1 at the side.
    TRelaxed<float> rightHalfSpread = 1.0f;
    TRelaxed<float> leftHalfSpread = 1.0f;
    // Linear. A pan that has never been moved lets the signal through as it is.
    TRelaxed<float> leftToLeft = 1.0f;
    TRelaxed<float> leftToRight = 0.0f;
    TRelaxed<float> rightToLeft = 0.0f;
    TRelaxed<float> rightToRight = 1.0f;
};

#pragma once

#include "dspclasses/modules/CDSPBase.h"
#include "values/TRelaxed.h"

/// Moves one input across the stereo image and leaves the other on its side: the right input while
/// the position is left of the middle, the left input from the middle on. It has one parameter and
/// ignores the index.
///
///     | left out  |   | leftToLeft   rightToLeft  |   | left in  |
///     | right out | = | leftToRight  rightToRight | * | right in |
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
    void spreadRightInput(float spread);  // position left of the middle
    void spreadLeftInput(float spread);   // position in the middle or right of it
    template <typename Sample>
    void run(const Sample *const *in, Sample *const *out, int frames) const;

    TRelaxed<float> pan = 0.5f;
    // The last spread of each half, 0 in the middle and 1 at the side.
    TRelaxed<float> rightHalfSpread = 1.0f;
    TRelaxed<float> leftHalfSpread = 1.0f;
    // Linear; the identity until the pan is moved. Kept: a first move straight to either end
    // changes nothing, since its spread of 1 equals the initial one.
    TRelaxed<float> leftToLeft = 1.0f;
    TRelaxed<float> leftToRight = 0.0f;
    TRelaxed<float> rightToLeft = 0.0f;
    TRelaxed<float> rightToRight = 1.0f;
};

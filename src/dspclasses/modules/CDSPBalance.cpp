#include "dspclasses/modules/CDSPBalance.h"

#include "dspclasses/blocks/SquareRootLaw.h"
#include "dspclasses/kernels/ScaledCopy.h"

void CDSPBalance::setParameter(int /*index*/, float value) {
    if (value == balance)
        return;
    balance = value;
    const float position = value * 2.0f - 1.0f;  // -1 is left, 1 is right
    if (0.0f > position) {
        leftGain = 1.0f;
        rightGain = squareRootLaw(position + 1.0f);
    } else {
        rightGain = 1.0f;
        leftGain = squareRootLaw(1.0f - position);
    }
}

float CDSPBalance::getParameter(int /*index*/) {
    return balance;
}

template <typename Sample>
void CDSPBalance::run(const Sample *const *in, Sample *const *out, int frames) const {
    copyScaled(in, out, frames, leftGain, rightGain);
}

void CDSPBalance::processReplacing(float **in, float **out, int frames) {
    run<float>(in, out, frames);
}

void CDSPBalance::processDoubleReplacing(double **in, double **out, int frames) {
    run<double>(in, out, frames);
}

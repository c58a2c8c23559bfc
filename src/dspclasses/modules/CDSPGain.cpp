#include "dspclasses/modules/CDSPGain.h"

#include "dspclasses/kernels/ScaledCopy.h"
#include "dspclasses/kernels/SingleMath.h"

void CDSPGain::setParameter(int /*index*/, float value) {
    if (value == decibels)
        return;
    decibels = value;
    constexpr float ln10 = 2.30258509f;
    // Kept: a step at -60 dB, from a factor of 0.001 to silence.
    gain = value > -60.0f ? expSingle(ln10 * value * 0.05f) : 0.0f;
}

float CDSPGain::getParameter(int /*index*/) {
    return decibels;
}

template <typename Sample>
void CDSPGain::run(const Sample *const *in, Sample *const *out, int frames) const {
    copyScaled(in, out, frames, gain, gain);
}

void CDSPGain::processReplacing(float **in, float **out, int frames) {
    run<float>(in, out, frames);
}

void CDSPGain::processDoubleReplacing(double **in, double **out, int frames) {
    run<double>(in, out, frames);
}

#include "dspclasses/blocks/FilterCoefficients.h"

#include "dspclasses/kernels/SingleMath.h"

#include <cmath>

float highPassPole(float cutoff, float invSampleRate) {
    // Kept: -2 pi, one unit in the last place short.
    return expSingle(cutoff * -6.283185f * invSampleRate);
}

double bandSplitCoefficient(float crossover, float invSampleRate) {
    // The cosine is rounded from double precision, since cosf differs between libraries.
    const double angle = crossover * 6.2831855f * invSampleRate;
    // Kept: a low-pass that is 3 dB down at the angle has t = 2 - cos.
    const float t = static_cast<float>(std::cos(angle)) * 2.0f;
    return double{1.0f - (t - std::sqrt(t * t - 1.0f))};
}

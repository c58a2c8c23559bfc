#pragma once

#include "dspclasses/kernels/SingleMath.h"

#include <cmath>

/// How fast a reverb decays.

/// @param seconds  reverb time, until the level has fallen by 60 dB.
/// @return factor per sample, 0.001^(1 / (seconds sampleRate)).
inline double decayPerSample(float seconds, float sampleRate) {
    return std::pow(0.001, 1.0 / double{seconds * sampleRate});
}

/// @return the gain after that many samples, decay^samples. Kept: the power is in single precision,
///         which makes long reverb times inexact, by up to 0.1 dB in 60 dB.
inline float decayAfter(float samples, double decay) {
    return powSingle(static_cast<float>(decay), samples);
}

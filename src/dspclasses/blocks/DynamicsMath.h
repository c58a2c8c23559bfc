#pragma once

#include "dspclasses/kernels/SingleMath.h"

/// ln(10) / 20: a level in dB times this is the natural logarithm of the factor.
inline constexpr float exponentPerDecibel = 0.115129255f;

inline float linearFromDecibels(float decibels) {
    return expSingle(decibels * exponentPerDecibel);
}

/// @return the share of the old value that a smoother of this time keeps per sample.
inline float smoothingCoefficient(float ms, float sampleRate) {
    return 1.0f - 1.0f / (ms * sampleRate * 0.001f);
}

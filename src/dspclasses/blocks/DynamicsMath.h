#pragma once

#include "dspclasses/kernels/SingleMath.h"

/// ln(10) / 20: a level in dB times this is the natural logarithm of the factor.
inline constexpr float exponentPerDecibel = 0.115129255f;

/// @return the factor of a level in dB: 10^(dB / 20) = exp(dB * ln(10) / 20).
/// Kept: CDSPGain multiplies its constants in another order, so its bits differ for some levels.
inline float linearFromDecibels(float decibels) {
    return expSingle(decibels * exponentPerDecibel);
}

/// @param ms  the time constant, above 0; not checked.
/// @return the share of its distance to the input that a one-pole smoother keeps per frame:
///         1 - 1 / n with n = ms * sampleRate / 1000, the number of frames in that time.
/// Kept: a first-order approximation of exp(-1 / n). After n frames a little less than 1 / e is
/// left, and below one frame the share is negative.
constexpr float smoothingCoefficient(float ms, float sampleRate) {
    return 1.0f - 1.0f / (ms * sampleRate * 0.001f);
}

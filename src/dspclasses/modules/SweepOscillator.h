#pragma once

#include <cmath>

/// The oscillator that sweeps the delay of a modulator. Its phase goes from -1 to 1 in a cycle.

/// The wave, two parabolas in place of a sine:
///
///     phase   -1   -0.75  -0.5  -0.25    0   0.25   0.5   0.75   1
///     wave    0.5  0.125   0    0.125   0.5  0.875   1    0.875  0.5
///
/// @return (1 - |phase|) 2 phase + 0.5.
inline float sweepWave(float phase) {
    return (1.0f - std::fabs(phase)) * phase * 2.0f + 0.5f;
}

/// @param speedHz  cycles per second.
/// @return how far the phase moves in a sample.
inline float sweepIncrement(float speedHz, float secondsPerSample) {
    return speedHz * secondsPerSample * 2.0f;
}

inline float nextSweepPhase(float phase, float increment) {
    phase += increment;
    // A branch, so that the next phase need not wait for the test. It is mispredicted only once a
    // cycle.
    if (phase > 1.0f) [[unlikely]]
        phase -= 2.0f;
    return phase;
}

/// @param spreadChange  1 shifts by a quarter of a cycle.
/// @return the phase after a change of the stereo offset. Kept: it does not wrap at -1. Below -1
///         the wave can exceed 1 until the oscillator has come back.
inline float shiftedSweepPhase(float phase, float spreadChange) {
    phase += spreadChange * 0.5f;
    return phase > 1.0f ? phase - 2.0f : phase;
}

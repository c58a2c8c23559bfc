#pragma once

#include "dspclasses/blocks/Followers.h"
#include "dspclasses/blocks/GainLaw.h"

/// The parameters of a detector, as the audio thread uses them for up to 64 frames.
struct SDetectorSettings {
    float thresholdDb, thresholdLinear;
    SFollower smoother;  // of the excess
    SGainLaw law;
};

/// What a detector carries from frame to frame. Floats even if the samples are doubles.
struct SDetectorState {
    float peak = 0.0f;
    float smoothedExcessDb = 0.0f;
};

/// A detector is active while it is above the threshold, and then until the smoothed excess has
/// fallen to this, in dB.
inline constexpr float leastActiveExcessDb = 0.01f;

/// The result of a detector for four frames.
struct SDetected {
    Mask4 areActive;  // above the threshold, or the excess has not yet died away
    Floats4 smoothedExcessesDb;
};

#pragma once

#include "dspclasses/blocks/DynamicsMath.h"

/// A gain in both forms.
struct SGain {
    float decibels = 0.0f;
    float linear = 1.0f;
};

/// The static curve of a dynamics module: the gain for an excess over the threshold.
struct SGainLaw {
    float slope;         // dB of gain per dB of excess
    float offsetDb;      // the gain of an inactive detector
    float offsetLinear;  // the same as a factor

    SGain gain(bool isActive, float smoothedExcessDb) const {
        if (!isActive)
            return {offsetDb, offsetLinear};
        const float decibels = slope * smoothedExcessDb + offsetDb;
        return {decibels, linearFromDecibels(decibels)};
    }
};

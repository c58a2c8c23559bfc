#pragma once

#include <cmath>

/// The gain of a side that is turned down: the square root of its share of the power, from 0 to 1.
/// What would be inaudible is exactly 0. A negative share gives a NaN.
inline float squareRootLaw(float share) {
    const float gain = std::sqrt(share);
    return gain < 1e-20f ? 0.0f : gain;
}

#pragma once

#include <cmath>

/// @param share  of its power that the lowered side keeps, from 0 to 1.
/// @return its gain, sqrt(share), and exactly 0 below -400 dB. Kept: a negative share returns a
///         NaN.
inline float squareRootLaw(float share) {
    const float gain = std::sqrt(share);
    return gain < 1e-20f ? 0.0f : gain;
}

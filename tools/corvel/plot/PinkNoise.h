#pragma once

#include <cstddef>
#include <vector>

namespace Tessitor::Tool {

/// One period of noise that can be repeated without a seam: a sine at each multiple of
/// probeRate / period between two frequencies, 3 dB weaker for each octave, at a random phase.
/// @param period     frames, a power of two.
/// @param low, high  Hz.
/// @param level      dB, of the mean square; 0 dB is a mean square of 1.
/// @return the same samples at every call.
std::vector<float> pinkNoise(std::size_t period, double low, double high, double level);

}  // namespace Tessitor::Tool

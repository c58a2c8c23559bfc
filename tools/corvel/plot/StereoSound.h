#pragma once

#include "corvel/effect/CEffectInstance.h"

#include <array>
#include <span>
#include <vector>

namespace Tessitor::Tool {

/// At which all measurements are made: the rate that the strip is tuned for.
inline constexpr int probeRate = 44100;  // Hz
inline constexpr int probeBlock = 1024;  // frames

/// Sound or numbers for the left and the right output.
template <typename Value>
using BothSides = std::array<std::vector<Value>, 2>;

/// Sends a signal to both inputs of an effect.
/// @param effect  started with probeBlock.
/// @return what comes out meanwhile.
BothSides<float> passThrough(CEffectInstance &effect, std::span<const float> signal);

double decibelsOfPower(double power);  ///< minus infinity for 0

/// @return the mean of the squares; 0 for no samples.
double meanPower(std::span<const float> samples);

}  // namespace Tessitor::Tool

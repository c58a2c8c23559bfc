#pragma once

#include "corvel/plot/CCanvas.h"

#include <vector>

namespace Tessitor::Tool {

/// Loudness over time: x in seconds, y in LUFS, or not a number where there is nothing to hear.
using LoudnessCurve = std::vector<SPoint>;

/// @param shortTerm  from CLoudness::shortTerm().
/// @param together   how many values, 100 ms apart, make one point.
LoudnessCurve loudnessCurve(const std::vector<float> &shortTerm, std::size_t together);

/// @return how much louder `after` is, in LU, where both have a value.
LoudnessCurve difference(const LoudnessCurve &before, const LoudnessCurve &after);

/// @return how many values to take together for a curve that is not longer than a picture is wide.
std::size_t valuesPerPoint(std::size_t values);

}  // namespace Tessitor::Tool

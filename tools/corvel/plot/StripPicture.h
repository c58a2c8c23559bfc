#pragma once

#include "corvel/plot/CCanvas.h"
#include "corvel/plot/Measurement.h"

#include <string>

namespace Tessitor::Tool {

/// Draws a measurement:
///
///     effect, program, chain, settings
///     +------ frequency response ------+
///     +--- level ---+ +---- decay -----+
///
/// @return the bytes of the picture's file.
std::string drawStrip(const SMeasurement &measurement, const SPictureOptions &options);

}  // namespace Tessitor::Tool

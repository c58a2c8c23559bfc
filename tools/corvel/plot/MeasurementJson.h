#pragma once

#include "corvel/plot/Measurement.h"

#include <nlohmann/json.hpp>

namespace Tessitor::Tool {

/// @return all numbers of a measurement. A level that is minus infinity, or no number, is null.
nlohmann::ordered_json jsonFrom(const SMeasurement &measurement);

}  // namespace Tessitor::Tool

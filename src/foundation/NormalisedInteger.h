#pragma once

#include <cstdint>

namespace Tessitor::MathTools {

/// The integer that a value from 0 to 1 stands for: the next one up in the range.
/// @param value  above 1 and below 0 go on outside the range; a result that no integer holds gives
///               the least one. [any thread]
std::int32_t normalisedToInteger(std::int32_t minimum, std::int32_t maximum, double value);

/// The value for an integer of a range: 0 for the minimum, 0.99999 for the maximum, which keeps it
/// below 1. An index outside the range goes on outside.
/// @return not a finite number if the range is empty. [any thread]
double integerToNormalised(std::int32_t minimum, std::int32_t maximum, std::int32_t index);

}  // namespace Tessitor::MathTools

#pragma once

#include <cstdint>

namespace Tessitor::MathTools {

/// Maps a value from 0 to 1 to an integer from minimum to maximum, rounding up.
/// @param value  if it is below 0 or above 1, the result lies outside the range.
/// @return the smallest int32 if the result does not fit. [any thread]
std::int32_t normalisedToInteger(std::int32_t minimum, std::int32_t maximum, double value);

/// Maps an integer from minimum to maximum to a value from 0 to 0.99999. Kept: not to 1.
/// @param index  if it is outside the range, the result lies outside 0 to 0.99999.
/// @return infinity or NaN if the range is empty. [any thread]
double integerToNormalised(std::int32_t minimum, std::int32_t maximum, std::int32_t index);

}  // namespace Tessitor::MathTools

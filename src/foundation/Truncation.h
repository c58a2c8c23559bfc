#pragma once

#include <cstdint>
#include <limits>

namespace Tessitor::MathTools {

/// `value` without its fraction. What no 32-bit integer holds, and what is not a number, gives the
/// least integer, as the processor's own conversion does where the language leaves it undefined.
constexpr std::int32_t truncated(double value) {
    constexpr std::int32_t least = std::numeric_limits<std::int32_t>::min();
    constexpr double beyond = 2147483648.0;
    return value > least - 1.0 && value < beyond ? static_cast<std::int32_t>(value) : least;
}

}  // namespace Tessitor::MathTools

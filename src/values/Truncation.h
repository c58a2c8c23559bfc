#pragma once

#include <cstdint>
#include <limits>

/// Drops the fraction. A value that does not fit into 32 bits, or is not a number, becomes the
/// smallest integer: a cast would be undefined in C++, and this is what the processor returns.
constexpr std::int32_t truncated(double value) {
    constexpr std::int32_t smallest = std::numeric_limits<std::int32_t>::min();
    constexpr double tooLarge = 0x1p31;
    return value > smallest - 1.0 && value < tooLarge ? static_cast<std::int32_t>(value) : smallest;
}

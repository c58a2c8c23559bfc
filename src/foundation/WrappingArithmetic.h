#pragma once

#include <cstdint>

namespace Tessitor::MathTools {

/// Sums, differences and products of coordinates wrap at the ends of the range and never trap.
constexpr std::int32_t wrappedSum(std::int32_t left, std::int32_t right) {
    return static_cast<std::int32_t>(std::int64_t{left} + right);
}

constexpr std::int32_t wrappedDifference(std::int32_t left, std::int32_t right) {
    return static_cast<std::int32_t>(std::int64_t{left} - right);
}

constexpr std::int32_t wrappedProduct(std::int32_t left, std::int32_t right) {
    return static_cast<std::int32_t>(std::int64_t{left} * right);
}

}  // namespace Tessitor::MathTools

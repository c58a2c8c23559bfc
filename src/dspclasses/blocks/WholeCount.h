#pragma once

#include <cstdint>

/// `value` without its fraction, as a count of samples or of milliseconds. A count that 32 bits do
/// not hold keeps its low 32 bits; infinity, and what is not a number, gives 0.
inline std::uint32_t wholeCount(float value) {
    constexpr float limit = 0x1p63f;
    if (value > -limit && value < limit)
        return static_cast<std::uint32_t>(static_cast<std::int64_t>(value));
    return 0;
}

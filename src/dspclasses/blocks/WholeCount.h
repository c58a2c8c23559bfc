#pragma once

#include <cstdint>

/// @return `value` without its fraction, as a count of samples or of milliseconds. Kept: a count
///         beyond 32 bits returns its low 32 bits; a magnitude of 2^63 or more, an infinity or a
///         NaN returns 0.
inline std::uint32_t wholeCount(float value) {
    constexpr float limit = 0x1p63f;
    if (value > -limit && value < limit)
        return static_cast<std::uint32_t>(static_cast<std::int64_t>(value));
    return 0;
}

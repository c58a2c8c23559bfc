#pragma once

#include <cstdint>
#include <limits>

/// `value` without its fraction. What no 32-bit integer holds, and what is not a number, gives the
/// least integer, as the processor's own conversion does where the language leaves it undefined.
inline std::int32_t truncated(float value) {
    constexpr float limit = 2147483648.0f;
    if (value >= -limit && value < limit)
        return static_cast<std::int32_t>(value);
    return std::numeric_limits<std::int32_t>::min();
}

#pragma once

#include <bit>
#include <cstdint>

/// Tests each value and replaces a denormal by zero. The processor's flush-to-zero mode is left
/// alone: it belongs to the host.

/// @return true for zero of either sign and for denormals: the exponent bits are all zero.
inline bool isDenormalOrZero(float value) {
    return (std::bit_cast<std::uint32_t>(value) & 0x7f800000u) == 0;
}
inline bool isDenormalOrZero(double value) {
    return (std::bit_cast<std::uint64_t>(value) & 0x7ff0000000000000u) == 0;
}

/// @return 0.0 for zero of either sign and for denormals, otherwise the value itself.
inline float flushDenormal(float value) {
    return isDenormalOrZero(value) ? 0.0f : value;
}
inline double flushDenormal(double value) {
    return isDenormalOrZero(value) ? 0.0 : value;
}

#pragma once

#include <cstdint>
#include <cstring>

/// The test for zeros and denormals in the plain versions: all exponent bits are zero.

inline bool exponentIsZero(float value) {
    std::uint32_t bits;
    std::memcpy(&bits, &value, sizeof bits);
    return (bits & 0x7f800000u) == 0;
}

inline bool exponentIsZero(double value) {
    std::uint64_t bits;
    std::memcpy(&bits, &value, sizeof bits);
    return (bits & 0x7ff0000000000000u) == 0;
}

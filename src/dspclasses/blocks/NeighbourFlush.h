#pragma once

#include <bit>
#include <cstdint>
#include <type_traits>

/// Kept: in double precision a detector tests its float fields for denormals with the exponent mask
/// of a double. The mask is applied to the 64 bits that begin at the field and misses the field
/// itself. The neighbour in memory decides whether the field becomes zero:
///
///     bit    63         52           32 31            0
///            +-------------------------+--------------+
///            |        neighbour        |    field     |
///            +-------------------------+--------------+
///     mask    0 11111111111 0 ..... 0 0 0 .......... 0     0x7ff0000000000000
///
/// docs/kernels.md has the table of the fields and their neighbours.

/// @return whether the field in front of this neighbour becomes zero: the neighbour is below 2^-129
///         in magnitude. Always false in single precision, which tests the field itself.
template <typename Sample>
bool isFlushedByNeighbour(float neighbour) {
    constexpr std::uint32_t upperHalfOfMask = 0x7ff00000u;
    return std::is_same_v<Sample, double> &&
           (std::bit_cast<std::uint32_t>(neighbour) & upperHalfOfMask) == 0;
}

/// The fields of a detector that become zero in every frame of a block.
struct SFlushedFields {
    bool peak = false;
    bool smoothedExcess = false;
};

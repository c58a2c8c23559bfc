#pragma once

#include <cstddef>
#include <cstdint>

namespace Tessitor::Tool {

/// Rounds samples to integers of `bits` bits, left-justified in 32 as audio files are written.
/// The inverse of reading them as n / 2^(bits - 1), so what was read comes back unchanged.
/// @param bits  8 to 32.
/// @return how many samples lay outside the range of the integers, or were no number, and were
///         clipped to its ends.
std::uint64_t quantise(const float *samples, std::size_t count, int bits, std::int32_t *integers);
std::uint64_t quantise(const double *samples, std::size_t count, int bits, std::int32_t *integers);

}  // namespace Tessitor::Tool

#pragma once

#include <cstddef>
#include <cstdint>

namespace Tessitor::Tool {

/// Rounds samples to integers of `bits` bits, left-aligned in 32, the form that libsndfile writes.
/// It is the inverse of reading them as n / 2^(bits - 1), so samples read from a file do not
/// change.
/// @param bits  8 to 32.
/// @return the number of samples that were clipped because they were out of range or not a number.
std::uint64_t quantise(const float *samples, std::size_t count, int bits, std::int32_t *integers);
std::uint64_t quantise(const double *samples, std::size_t count, int bits, std::int32_t *integers);

}  // namespace Tessitor::Tool

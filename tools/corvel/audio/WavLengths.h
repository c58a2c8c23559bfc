#pragma once

#include <cstdint>
#include <optional>
#include <string>

namespace Tessitor::Tool {

/// @param head        the header of a WAV file up to the first sample; others are returned as they
///                    are.
/// @param soundBytes  the length of the sound; none if it is not known.
/// @param frameBytes  for all channels.
/// @return the header with all lengths. Lengths that are not known, or that 32 bits cannot hold,
///         are 0xFFFFFFFF, as other programs write them to a pipe.
std::string withWavLengths(std::string head, std::optional<std::uint64_t> soundBytes,
                           std::uint64_t frameBytes);

}  // namespace Tessitor::Tool

#pragma once

#include <optional>
#include <vector>

namespace Tessitor::Tool {

/// The integrated loudness of a sound after a gain, from its blocks before it. It does not simply
/// rise with the gain: blocks below -70 LUFS do not count, and the gain lifts some above that.
/// @param blocks  LUFS, from CLoudness::blocks().
/// @param gain    dB.
/// @return LUFS, or nothing if all blocks are then below -70 LUFS.
std::optional<double> gatedLoudness(const std::vector<double> &blocks, double gain);

/// @return the gain in dB after which a sound has that loudness, or nothing if it has no loudness.
///         If no gain gives it exactly, one that comes close.
std::optional<double> gainForLoudness(const std::vector<double> &blocks, double target);

}  // namespace Tessitor::Tool

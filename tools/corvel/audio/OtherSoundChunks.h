#pragma once

#include "corvel/audio/SoundChunk.h"

namespace Tessitor::Tool {

/// findSoundChunk() for W64, CAF and AU.
std::optional<SSoundChunk> findOtherSoundChunk(const std::filesystem::path &file);

}  // namespace Tessitor::Tool

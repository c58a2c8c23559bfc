#pragma once

#include <filesystem>

namespace Tessitor::Tool {

/// @return true if a file's ending is one of those of the audio files that this program reads.
bool isNamedLikeAudio(const std::filesystem::path &file);

}  // namespace Tessitor::Tool

#pragma once

#include <cstdint>
#include <filesystem>

namespace Tessitor::Tool {

/// Bytes of sound that a WAV or AIFF file announces and does not have; 0 for a whole file, for one
/// whose writer did not know the length, and for every other kind of file. libsndfile reads such a
/// file as if it were whole.
std::uint64_t bytesMissing(const std::filesystem::path &file);

}  // namespace Tessitor::Tool

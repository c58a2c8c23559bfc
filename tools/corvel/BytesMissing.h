#pragma once

#include <cstdint>
#include <filesystem>

namespace Tessitor::Tool {

/// libsndfile reads a WAV or AIFF file that was cut short as if it were complete.
/// @return the bytes of sound that the header announces and the file does not have. 0 for a
///         complete file, for one whose writer did not know the length, and for other kinds of
///         file.
std::uint64_t bytesMissing(const std::filesystem::path &file);

}  // namespace Tessitor::Tool

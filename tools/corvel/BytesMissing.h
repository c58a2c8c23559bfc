#pragma once

#include <cstdint>
#include <filesystem>

namespace Tessitor::Tool {

/// libsndfile does not notice when a WAV or AIFF file is cut short.
/// @return how many bytes of sound are missing at the end of the file, going by the length in its
///         header. 0 for a complete file, for one whose writer did not know the length, and for
///         other kinds of file.
std::uint64_t bytesMissing(const std::filesystem::path &file);

}  // namespace Tessitor::Tool

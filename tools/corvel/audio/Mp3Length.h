#pragma once

#include <cstdint>
#include <filesystem>

namespace Tessitor::Tool {

/// Most encoders write the length of an MP3 file into its first frame.
/// @return how many bytes are missing at its end; 0 if it does not say how long it is, and for
///         other kinds of file.
std::uint64_t mp3BytesMissing(const std::filesystem::path &file);

}  // namespace Tessitor::Tool
